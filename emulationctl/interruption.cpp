#include "interruption.h"

#include <atomic>
#include <chrono>
#include <csignal>

namespace EmulationCtl {

// The handler may run in another thread.
static std::atomic<bool> wasRequested = false;
static_assert(std::atomic<bool>::is_always_lock_free);

static void setHandler(void (*handler)(int))
{
    std::signal(SIGINT, handler);
    std::signal(SIGTERM, handler);
}

static void handleSignal(int signal)
{
    if (wasRequested.exchange(true))
        std::signal(signal, SIG_DFL);
}

Interruption::Interruption(QObject *parent)
    : QObject(parent)
{
    static constexpr std::chrono::milliseconds interval{20};
    setHandler(handleSignal);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (!wasRequested)
            return;
        m_timer.stop();
        setHandler(SIG_DFL); // not before, because timeout(1) sends the same signal twice
        Q_EMIT requested();
    });
    m_timer.start(interval);
}

} // namespace EmulationCtl
