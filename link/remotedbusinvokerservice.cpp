#include "remotedbusinvokerservice.h"

#include <QUrl>

namespace EmulationManagement::Internal {

const QString RemoteDBusInvokerService::portForwardingRule
    = QStringLiteral("emulationmanagementtcp");

RemoteDBusInvokerService::RemoteDBusInvokerService(QObject *parent)
    : QObject(parent)
    , m_webSocket(QString(), QWebSocketProtocol::Version13)
{
    connect(&m_webSocket, &QWebSocket::connected, this,
            &RemoteDBusInvokerService::webSocketConnected);
    connect(&m_webSocket, &QWebSocket::disconnected, this,
            &RemoteDBusInvokerService::webSocketDisconnected);
    connect(&m_webSocket, &QWebSocket::disconnected, this,
            &RemoteDBusInvokerService::connectToEmulator);
    connect(&m_webSocket, &QWebSocket::textMessageReceived, this,
            &RemoteDBusInvokerService::replyReceived);
}

void RemoteDBusInvokerService::connectToEmulator()
{
    m_webSocket.open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(hostTcpPort)));
}

void RemoteDBusInvokerService::callDBusMethod(const QString &bus, const QString &service,
                                              const QString &objectPath, const QString &interface,
                                              const QString &method, const QString &arguments)
{
    // Filled one after the other, the arguments last: nothing in them is taken for a placeholder.
    m_webSocket.sendTextMessage(QStringLiteral("%1 %2 %3 %4 %5 %6")
                                    .arg(bus)
                                    .arg(service)
                                    .arg(objectPath)
                                    .arg(interface)
                                    .arg(method)
                                    .arg(arguments));
    // The call is under way while the pages follow the models.
    m_webSocket.flush();
}

} // namespace EmulationManagement::Internal
