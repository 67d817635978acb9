#include "stoprequest.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace NimbraEmulator {

// A signal handler may do little more than write a byte, which wakes the event loop.
static std::array<int, 2> s_signalPipe{-1, -1};

static void writeToSignalPipe(int)
{
    const int savedErrno = errno;
    [[maybe_unused]] const ssize_t written = ::write(s_signalPipe[1], "", 1);
    errno = savedErrno;
}

static int openSignalPipe()
{
    if (::pipe2(s_signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe can be opened");
    return s_signalPipe[0];
}

StopRequest::StopRequest(QObject *parent)
    : QObject(parent)
    , m_signalNotifier(openSignalPipe(), QSocketNotifier::Read)
    , m_inputNotifier(QSocketNotifier::Read)
{
    connect(&m_signalNotifier, &QSocketNotifier::activated, this, [this] {
        m_signalNotifier.setEnabled(false);
        Q_EMIT requested();
    });
    connect(&m_inputNotifier, &QSocketNotifier::activated, this, [this] {
        std::array<char, 256> ignored;
        const ssize_t size = ::read(STDIN_FILENO, ignored.data(), ignored.size());
        if (size > 0 || (size < 0 && (errno == EINTR || errno == EAGAIN)))
            return;
        m_inputNotifier.setEnabled(false);
        Q_EMIT requested();
    });
    struct sigaction action = {};
    action.sa_handler = writeToSignalPipe;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGTERM, &action, nullptr);
    ::sigaction(SIGINT, &action, nullptr);
}

StopRequest::~StopRequest()
{
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGINT, SIG_DFL);
    for (const int end : s_signalPipe)
        ::close(end);
}

void StopRequest::watchStandardInput()
{
    m_inputNotifier.setSocket(STDIN_FILENO);
    m_inputNotifier.setEnabled(true);
}

} // namespace NimbraEmulator
