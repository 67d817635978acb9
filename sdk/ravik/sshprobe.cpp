#include "sshprobe.h"

#include <QHostAddress>
#include <QNetworkProxy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace Ravik::Internal {

static constexpr auto pollInterval = 100ms;
static constexpr auto timeLimit = 30s;

SshProbe::SshProbe()
{
    // Connect directly: the IDE may use the system's proxy for all sockets.
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_pollTimer.setInterval(pollInterval);
    connect(&m_pollTimer, &QTimer::timeout, this, &SshProbe::poll);
    connect(&m_socket, &QTcpSocket::readyRead, this, &SshProbe::readGreeting);
}

void SshProbe::start(quint16 port)
{
    m_port = port;
    m_deadline.setRemainingTime(timeLimit);
    m_pollTimer.start();
}

void SshProbe::stop()
{
    m_pollTimer.stop();
    m_socket.abort();
}

void SshProbe::poll()
{
    if (m_deadline.hasExpired()) {
        stop();
        Q_EMIT timedOut();
    } else if (m_socket.state() == QTcpSocket::UnconnectedState) {
        // Try again: a forwarder accepts connections before its server listens, and closes them.
        m_socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
    }
}

void SshProbe::readGreeting()
{
    static const QByteArray greeting = "SSH-2.0"_ba;
    if (m_socket.peek(greeting.size()) != greeting)
        return;
    stop();
    Q_EMIT reachable();
}

} // namespace Ravik::Internal
