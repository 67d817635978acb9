#pragma once

#include <link/recordingplayer.h>

#include <QTimer>
#include <QWidget>

#include <vector>

QT_BEGIN_NAMESPACE
class QAction;
class QSlider;
class QToolButton;
QT_END_NAMESPACE

namespace Utils {
class ElidingLabel;
}

namespace EmulationManagement::Internal {

class CallLog;
class RemoteDBusInvokerService;
struct Service;

/// The controls that play a recording: a bar of its time, rate, loop and the services that are
/// played.
class PlaybackBar : public QWidget
{
    Q_OBJECT

public:
    /// \a player, \a link and \a log must outlive the bar.
    PlaybackBar(RecordingPlayer *player, const RemoteDBusInvokerService *link, const CallLog *log,
                QWidget *parent = nullptr);

    /// Plays the player's recording from its start.
    void play();

Q_SIGNALS:
    /// The user closed the bar. Nothing plays.
    void closed();

private:
    void togglePlay();
    void updateButtons();
    void showPosition();
    void showEnd();
    void showLostLink();
    void chooseServices();

    RecordingPlayer *m_player;
    const RemoteDBusInvokerService *m_link;
    const CallLog *m_log;
    RecordingPlayer::State m_shownState = RecordingPlayer::State::Stopped;
    qint64 m_refusedBefore = 0;
    qint64 m_lostBefore = 0;
    QToolButton *m_play;
    QToolButton *m_step;
    QSlider *m_time;
    Utils::ElidingLabel *m_text;
    std::vector<std::pair<QAction *, const Service *>> m_services;
    QTimer m_timer; // shows the position
};

} // namespace EmulationManagement::Internal
