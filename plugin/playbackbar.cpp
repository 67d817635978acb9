#include "playbackbar.h"

#include <link/calllog.h>
#include <link/recordingplayer.h>
#include <link/remotedbusinvokerservice.h>
#include <link/servicemethods.h>

#include <utils/elidinglabel.h>
#include <utils/utilsicons.h>

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QMenu>
#include <QSlider>
#include <QToolButton>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

using State = RecordingPlayer::State;
using std::chrono::milliseconds;

static constexpr milliseconds showingInterval{100};
static constexpr double rates[] = {0.1, 0.25, 0.5, 1, 2, 5, 10, 20, 50, 100};
static constexpr int usualRate = 3; // the index of 1

static int millisecondsOf(std::chrono::microseconds time)
{
    return int(std::min<qint64>(std::chrono::duration_cast<milliseconds>(time).count(),
                                std::numeric_limits<int>::max()));
}

static QString timeText(std::chrono::microseconds time)
{
    const qint64 tenths = time.count() / 100'000;
    return u"%1:%2%3%4"_s.arg(tenths / 600)
        .arg(tenths / 10 % 60, 2, 10, QChar(u'0'))
        .arg(QLocale().decimalPoint())
        .arg(tenths % 10);
}

/// Describes a control without a text to everyone.
static void describe(QWidget *control, const QString &description)
{
    control->setToolTip(description);
    control->setAccessibleName(description);
}

PlaybackBar::PlaybackBar(RecordingPlayer *player, const RemoteDBusInvokerService *link,
                         const CallLog *log, QWidget *parent)
    : QWidget(parent)
    , m_player(player)
    , m_link(link)
    , m_log(log)
    , m_play(new QToolButton)
    , m_step(new QToolButton)
    , m_time(new QSlider(Qt::Horizontal))
    , m_text(new Utils::ElidingLabel)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(m_play);
    connect(m_play, &QToolButton::clicked, this, &PlaybackBar::togglePlay);
    m_step->setIcon(Utils::Icons::NEXT.icon());
    describe(m_step, tr("Send the Next Call"));
    layout->addWidget(m_step);
    connect(m_step, &QToolButton::clicked, this, [this] {
        m_player->step();
        showPosition();
    });
    layout->addWidget(m_time, 2);
    m_time->setMinimumWidth(80);
    m_time->setAccessibleName(tr("Time of the recording"));
    connect(m_time, &QSlider::actionTriggered, this, [this] {
        m_player->seek(milliseconds(m_time->sliderPosition()));
        showPosition();
    });
    layout->addWidget(m_text, 1); // a long text elides
    m_text->setMinimumWidth(m_text->fontMetrics().horizontalAdvance(u"00:00.0 / 00:00.0"_s));

    auto *rate = new QComboBox;
    for (const double value : rates)
        rate->addItem(tr("%L1x", "speed").arg(value), value);
    rate->setCurrentIndex(usualRate);
    describe(rate, tr("Speed"));
    connect(rate, &QComboBox::currentIndexChanged, this,
            [this, rate] { m_player->setRate(rate->currentData().toDouble()); });
    layout->addWidget(rate);
    auto *menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    const auto addOption = [menu](const QString &name, bool on) {
        QAction *option = menu->addAction(name);
        option->setCheckable(true);
        option->setChecked(on);
        return option;
    };
    connect(addOption(tr("Loop"), false), &QAction::toggled, this,
            [this](bool on) { m_player->setLooped(on); });
    QAction *waits = addOption(tr("Wait for the Link"), true);
    waits->setToolTip(tr("Go on when a lost link is there again, instead of stopping"));
    connect(waits, &QAction::toggled, this, [this](bool on) {
        m_player->setWhenLinkIsDown(on ? RecordingPlayer::WhenLinkIsDown::Wait
                                       : RecordingPlayer::WhenLinkIsDown::Stop);
    });
    menu->addSeparator();
    const QStringList names{tr("Sensors"), tr("Location"), tr("Camera")};
    for (const Service *service : services()) {
        QAction *option = addOption(names.at(qsizetype(m_services.size())), true);
        connect(option, &QAction::toggled, this, &PlaybackBar::chooseServices);
        m_services.emplace_back(option, service);
    }
    auto *options = new QToolButton;
    options->setText(tr("Options"));
    options->setMenu(menu);
    options->setPopupMode(QToolButton::InstantPopup);
    layout->addWidget(options);
    auto *close = new QToolButton;
    close->setIcon(Utils::Icons::CLOSE_FOREGROUND.icon());
    describe(close, tr("Stop and Close the Recording"));
    connect(close, &QToolButton::clicked, this, [this] {
        m_player->stop();
        Q_EMIT closed();
    });
    layout->addWidget(close);

    connect(player, &RecordingPlayer::stateChanged, this, &PlaybackBar::updateButtons);
    connect(player, &RecordingPlayer::finished, this, &PlaybackBar::showEnd);
    connect(player, &RecordingPlayer::linkIsDown, this, &PlaybackBar::showLostLink);
    connect(link, &RemoteDBusInvokerService::webSocketConnected, this, &PlaybackBar::updateButtons);
    connect(link, &RemoteDBusInvokerService::connectionLost, m_step,
            [this] { m_step->setEnabled(false); });
    connect(log, &CallLog::cleared, this, [this] { m_refusedBefore = m_lostBefore = 0; });
    connect(&m_timer, &QTimer::timeout, this, &PlaybackBar::showPosition);
    updateButtons();
}

void PlaybackBar::play()
{
    m_time->setRange(0, millisecondsOf(m_player->recording().duration()));
    m_player->play();
}

void PlaybackBar::togglePlay()
{
    if (m_player->state() == State::Playing)
        m_player->pause();
    else
        m_player->play();
}

void PlaybackBar::updateButtons()
{
    const State state = m_player->state();
    const bool playing = state == State::Playing;
    m_play->setIcon(playing ? Utils::Icons::INTERRUPT_SMALL.icon()
                            : Utils::Icons::RUN_SMALL.icon());
    describe(m_play, playing ? tr("Pause") : tr("Play"));
    m_step->setEnabled(!playing && m_link->isConnected());
    if (playing)
        m_timer.start(showingInterval);
    else
        m_timer.stop();
    if (std::exchange(m_shownState, state) == State::Stopped) {
        m_refusedBefore = m_log->totals().refused;
        m_lostBefore = m_log->totals().lost;
    }
    showPosition();
}

void PlaybackBar::showLostLink()
{
    m_text->setText(m_player->state() == State::Playing ? tr("Waiting for the link")
                                                        : tr("Stopped, because the link is down"));
}

void PlaybackBar::showPosition()
{
    if (!m_time->isSliderDown())
        m_time->setValue(millisecondsOf(m_player->position()));
    if (m_player->isWaitingForLink()) {
        showLostLink();
        return;
    }
    m_text->setText(u"%1 / %2"_s.arg(timeText(m_player->position()),
                                     timeText(m_player->recording().duration())));
}

void PlaybackBar::showEnd()
{
    const CallLog::Totals &totals = m_log->totals();
    const std::chrono::duration<double, std::milli> latest = m_player->totals().latest;
    m_text->setText(tr("%L1 sent, %L2 refused, %L3 lost, latest %L4 ms")
                        .arg(m_player->totals().calls)
                        .arg(std::max<qint64>(0, totals.refused - m_refusedBefore))
                        .arg(std::max<qint64>(0, totals.lost - m_lostBefore))
                        .arg(latest.count(), 0, 'f', 1));
    if (m_log->waiting() > 0) { // for replies, which may be refusals
        QTimer::singleShot(showingInterval, this, [this] {
            if (m_player->state() == State::Stopped)
                showEnd();
        });
    }
}

void PlaybackBar::chooseServices()
{
    std::vector<const Service *> chosen;
    for (const auto &[option, service] : m_services) {
        if (option->isChecked())
            chosen.push_back(service);
    }
    m_player->setServices(std::move(chosen));
}

} // namespace EmulationManagement::Internal
