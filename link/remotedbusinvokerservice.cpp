#include "remotedbusinvokerservice.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

const QString RemoteDBusInvokerService::portForwardingRule = u"emulationmanagementtcp"_s;

RemoteDBusInvokerService::RemoteDBusInvokerService(QObject *parent)
    : QObject(parent)
{
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &RemoteDBusInvokerService::connectToEmulator);
}

RemoteDBusInvokerService::~RemoteDBusInvokerService()
{
    // A socket that is destroyed emits disconnected(), which would open it again.
    if (m_webSocket)
        m_webSocket->disconnect(this);
}

void RemoteDBusInvokerService::createWebSocket()
{
    m_webSocket.emplace(QString(), QWebSocketProtocol::Version13);
    QWebSocket *webSocket = &*m_webSocket;
    webSocket->setMaxAllowedIncomingFrameSize(maxReplySize);
    webSocket->setMaxAllowedIncomingMessageSize(maxReplySize);
    connect(webSocket, &QWebSocket::connected, this, [this] {
        m_sinceConnected.start();
        Q_EMIT webSocketConnected();
    });
    connect(webSocket, &QWebSocket::disconnected, this,
            &RemoteDBusInvokerService::handleDisconnected);
    connect(webSocket, &QWebSocket::textMessageReceived, this,
            &RemoteDBusInvokerService::replyReceived);
}

void RemoteDBusInvokerService::connectToEmulator()
{
    m_retryTimer.stop();
    if (!m_webSocket)
        createWebSocket();
    m_webSocket->open(QUrl(u"ws://127.0.0.1:%1"_s.arg(hostTcpPort)));
}

void RemoteDBusInvokerService::handleDisconnected()
{
    // Wait before reconnecting to a relay that accepts connections only to close them.
    const bool wasUsable
        = m_sinceConnected.isValid() && m_sinceConnected.durationElapsed() >= retryInterval;
    m_sinceConnected.invalidate();
    Q_EMIT webSocketDisconnected();
    if (wasUsable)
        connectToEmulator();
    else
        m_retryTimer.start(retryInterval);
}

void RemoteDBusInvokerService::callDBusMethod(const QString &bus, const QString &service,
                                              const QString &objectPath, const QString &interface,
                                              const QString &method, const QString &arguments)
{
    if (!m_webSocket)
        return;
    // Fill the arguments last: a "%1" in them must not be taken for a placeholder.
    m_webSocket->sendTextMessage(u"%1 %2 %3 %4 %5 %6"_s.arg(bus)
                                     .arg(service)
                                     .arg(objectPath)
                                     .arg(interface)
                                     .arg(method)
                                     .arg(arguments));
    // Send now: the pages update before the event loop would flush the socket.
    m_webSocket->flush();
}

} // namespace EmulationManagement::Internal
