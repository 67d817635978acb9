#include "remotedbusinvokerservice.h"

#include <QUrl>

namespace EmulationManagement::Internal {

const QString RemoteDBusInvokerService::portForwardingRule
    = QStringLiteral("emulationmanagementtcp");

RemoteDBusInvokerService::RemoteDBusInvokerService(QObject *parent)
    : QObject(parent)
{}

RemoteDBusInvokerService::~RemoteDBusInvokerService()
{
    // a socket that goes reports its end, which would open it again
    if (m_webSocket)
        m_webSocket->disconnect(this);
}

void RemoteDBusInvokerService::createWebSocket()
{
    m_webSocket.emplace(QString(), QWebSocketProtocol::Version13);
    QWebSocket *webSocket = &*m_webSocket;
    webSocket->setMaxAllowedIncomingFrameSize(maxReplySize);
    webSocket->setMaxAllowedIncomingMessageSize(maxReplySize);
    connect(webSocket, &QWebSocket::connected, this, &RemoteDBusInvokerService::webSocketConnected);
    connect(webSocket, &QWebSocket::disconnected, this,
            &RemoteDBusInvokerService::webSocketDisconnected);
    connect(webSocket, &QWebSocket::disconnected, this,
            &RemoteDBusInvokerService::connectToEmulator);
    connect(webSocket, &QWebSocket::textMessageReceived, this,
            &RemoteDBusInvokerService::replyReceived);
}

void RemoteDBusInvokerService::connectToEmulator()
{
    if (!m_webSocket)
        createWebSocket();
    m_webSocket->open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(hostTcpPort)));
}

void RemoteDBusInvokerService::callDBusMethod(const QString &bus, const QString &service,
                                              const QString &objectPath, const QString &interface,
                                              const QString &method, const QString &arguments)
{
    if (!m_webSocket)
        return;
    // Filled one after the other, the arguments last: nothing in them is taken for a placeholder.
    m_webSocket->sendTextMessage(QStringLiteral("%1 %2 %3 %4 %5 %6")
                                     .arg(bus)
                                     .arg(service)
                                     .arg(objectPath)
                                     .arg(interface)
                                     .arg(method)
                                     .arg(arguments));
    // The call is under way while the pages follow the models.
    m_webSocket->flush();
}

} // namespace EmulationManagement::Internal
