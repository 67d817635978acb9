#include "recordingrelay.h"

#include <link/remotedbusinvokerservice.h>

#include <QSignalSpy>
#include <QTest>
#include <QWebSocket>

#include <utility>

using namespace Qt::StringLiterals;

namespace TestSupport {

using EmulationManagement::Internal::RemoteDBusInvokerService;

RecordingRelay::RecordingRelay(QObject *parent)
    : QObject(parent)
    , m_server(u"relay"_s, QWebSocketServer::NonSecureMode)
{
    connect(&m_server, &QWebSocketServer::newConnection, this, &RecordingRelay::acceptClients);
}

RecordingRelay::~RecordingRelay()
{
    stop();
}

bool RecordingRelay::listen()
{
    return m_server.listen(QHostAddress::LocalHost, RemoteDBusInvokerService::hostTcpPort);
}

bool RecordingRelay::connectLink(RemoteDBusInvokerService &link)
{
    QSignalSpy connected(&link, &RemoteDBusInvokerService::webSocketConnected);
    if (!listen())
        return false;
    link.connectToEmulator();
    return connected.wait();
}

void RecordingRelay::stop()
{
    m_server.close();
    dropClients();
}

void RecordingRelay::dropClients()
{
    qDeleteAll(std::exchange(m_clients, {}));
}

void RecordingRelay::reply(const QString &line)
{
    for (QWebSocket *client : std::as_const(m_clients))
        client->sendTextMessage(line);
}

QStringList RecordingRelay::takeRequests(RemoteDBusInvokerService &link)
{
    link.callDBusMethod(u"mark"_s, {}, {}, {}, {}, {});
    const auto isMarked
        = [this] { return !m_requests.isEmpty() && m_requests.last().startsWith(u"mark "); };
    if (!QTest::qWaitFor(isMarked))
        return {u"the link is down"_s};
    m_requests.removeLast();
    return std::exchange(m_requests, {});
}

void RecordingRelay::acceptClients()
{
    while (QWebSocket *client = m_server.nextPendingConnection()) {
        m_clients.append(client);
        connect(client, &QWebSocket::textMessageReceived, this,
                [this](const QString &line) { m_requests.append(line); });
        connect(client, &QWebSocket::disconnected, this, [this, client] {
            m_clients.removeOne(client);
            client->deleteLater();
        });
    }
}

} // namespace TestSupport
