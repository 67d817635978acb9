#include "recordingfiles.h"

#include <coreplugin/icore.h>
#include <coreplugin/messagemanager.h>

#include <link/calllog.h>
#include <link/recording.h>
#include <link/recordingwriter.h>

#include <QFileDialog>
#include <QLocale>

namespace EmulationManagement::Internal {

static QFileDialog *makeDialog(QObject *context, const QString &title, const QString &filter,
                               const RecordingFiles::Use &use)
{
    auto *dialog = new QFileDialog(Core::ICore::dialogParent(), title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilter(filter);
    // Queued, because a dialog that use() opens would become a child of this one.
    QObject::connect(dialog, &QFileDialog::fileSelected, context, use, Qt::QueuedConnection);
    return dialog;
}

QString RecordingFiles::recordingFilter()
{
    return tr("Recordings (*%1)").arg(Recording::fileSuffix);
}

void RecordingFiles::askToRead(QObject *context, const QString &title, const QString &filter,
                               const Use &use)
{
    QFileDialog *dialog = makeDialog(context, title, filter, use);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->open();
}

void RecordingFiles::askToWrite(QObject *context, const QString &title, const QString &suffix,
                                const Use &use)
{
    const QString filter
        = suffix == Recording::fileSuffix ? recordingFilter() : tr("Tracks (*%1)").arg(suffix);
    QFileDialog *dialog = makeDialog(context, title, filter, use);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(suffix.sliced(1));
    dialog->open();
}

void RecordingFiles::save(QObject *context, const std::vector<LoggedCall> &calls,
                          const CallLog &log)
{
    const auto write = [calls, &log](const QString &path) {
        QString error;
        const RecordingWriter::Saved saved = RecordingWriter::save(path, calls, log, &error);
        if (!error.isEmpty()) {
            Core::MessageManager::writeDisrupting(
                tr("The recording \"%1\" was not saved: %2").arg(path, error));
            return;
        }
        QString message
            = tr("The recording \"%1\" has %L2 calls.").arg(path, QLocale().toString(saved.calls));
        if (saved.leftOut > 0) {
            message
                += u' '
                   + tr("%L1 were left out, because they were not sent or the log does not keep "
                        "all of them.")
                         .arg(saved.leftOut);
        }
        Core::MessageManager::writeFlashing(message);
    };
    askToWrite(context, tr("Save as a Recording"), Recording::fileSuffix, write);
}

} // namespace EmulationManagement::Internal
