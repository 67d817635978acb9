#include "playbutton.h"

#include "recordingfiles.h"

#include <coreplugin/messagemanager.h>

#include <QtConcurrentRun>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

PlayButton::PlayButton(QWidget *parent)
    : QToolButton(parent)
{
    setText(tr("Play…"));
    setToolTip(tr("Play a Recording…"));
    connect(this, &QToolButton::clicked, this, [this] {
        RecordingFiles::askToRead(this, tr("Play a Recording"), RecordingFiles::recordingFilter(),
                                  [this](const QString &path) { read(path); });
    });
    connect(&m_reading, &QFutureWatcherBase::finished, this, &PlayButton::handleRead);
}

void PlayButton::read(const QString &path)
{
    m_path = path;
    setEnabled(false);
    m_reading.setFuture(QtConcurrent::run(&Recording::readFile, path));
}

void PlayButton::handleRead()
{
    setEnabled(true);
    const Recording recording = m_reading.future().takeResult();
    if (!recording.error().isEmpty()) {
        Core::MessageManager::writeDisrupting(
            tr("The recording \"%1\" cannot be played. %2").arg(m_path, recording.error()));
        return;
    }
    if (!recording.warning().isEmpty())
        Core::MessageManager::writeFlashing(m_path + u": "_s + recording.warning());
    Q_EMIT recordingRead(recording);
}

} // namespace EmulationManagement::Internal
