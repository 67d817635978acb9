#include "interruption.h"

#include <atomic>
#include <chrono>
#include <csignal>

namespace EmulationCtl {

// The handler may run in another thread.
static std::atomic<bool> wasRequested = false;
static_assert(std::atomic<bool>::is_always_lock_free);

static void handleSignal(int signal)
{
    wasRequested = true;
    std::signal(signal, SIG_DFL);
}

Interruption::Interruption(QObject *parent)
    : QObject(parent)
{
    static constexpr std::chrono::milliseconds interval{20};
    std::signal(SIGINT, handleSignal);
    std::signal(SIGTERM, handleSignal);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (!wasRequested)
            return;
        m_timer.stop();
        Q_EMIT requested();
    });
    m_timer.start(interval);
}

} // namespace EmulationCtl
