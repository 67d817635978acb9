#pragma once

#include <link/recording.h>

#include <QFutureWatcher>
#include <QToolButton>

namespace EmulationManagement::Internal {

/// Asks for a recording and reads it.
class PlayButton : public QToolButton
{
    Q_OBJECT

public:
    explicit PlayButton(QWidget *parent = nullptr);

Q_SIGNALS:
    /// A recording without mistakes was read.
    void recordingRead(const EmulationManagement::Internal::Recording &recording);

private:
    void read(const QString &path);
    void handleRead();

    QFutureWatcher<Recording> m_reading;
    QString m_path;
};

} // namespace EmulationManagement::Internal
