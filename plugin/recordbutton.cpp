#include "recordbutton.h"

#include "recordingfiles.h"

#include <coreplugin/messagemanager.h>

#include <link/recording.h>

#include <QLocale>

#include <utility>

namespace EmulationManagement::Internal {

RecordButton::RecordButton(RemoteDBusInvokerService *link, QWidget *parent)
    : QToolButton(parent)
    , m_link(link)
{
    setCheckable(true);
    connect(this, &QToolButton::clicked, this, &RecordButton::toggle);
    showState();
}

void RecordButton::addCameraCall(const ServiceMethod &method, const QString &arguments)
{
    if (m_writer)
        m_writer->add(RecordingWriter::Clock::now(), method, arguments);
}

void RecordButton::showState()
{
    setChecked(m_writer != nullptr);
    setText(m_writer ? tr("Stop Recording") : tr("Record…"));
    setToolTip(m_writer ? tr("Recording to %1").arg(m_path)
                        : tr("Record what is sent to the emulator"));
}

void RecordButton::toggle()
{
    showState(); // the file decides, not the click
    if (m_writer) {
        end();
        return;
    }
    RecordingFiles::askToWrite(this, tr("Record"), Recording::fileSuffix,
                               [this](const QString &path) { begin(path); });
}

void RecordButton::begin(const QString &path)
{
    auto writer = std::make_unique<RecordingWriter>();
    const QString error = writer->open(path);
    if (!error.isEmpty()) {
        Core::MessageManager::writeDisrupting(
            tr("The recording \"%1\" cannot be written: %2").arg(path, error));
        return;
    }
    writer->watch(m_link);
    connect(writer.get(), &RecordingWriter::failed, this, [this, writer = writer.get()] {
        if (m_writer.get() == writer)
            end();
    });
    m_writer = std::move(writer);
    m_path = path;
    showState();
}

void RecordButton::end()
{
    const QString error = m_writer->close();
    const qint64 count = m_writer->count();
    m_writer.reset();
    showState();
    if (error.isEmpty()) {
        Core::MessageManager::writeFlashing(
            tr("The recording \"%1\" has %L2 calls.").arg(m_path, QLocale().toString(count)));
    } else {
        Core::MessageManager::writeDisrupting(
            tr("The recording \"%1\" is incomplete: %2").arg(m_path, error));
    }
}

} // namespace EmulationManagement::Internal
