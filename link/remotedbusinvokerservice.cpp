#include "remotedbusinvokerservice.h"

#include <QAbstractSocket>
#include <QUrl>

#include <utility>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

const QString RemoteDBusInvokerService::portForwardingRule = u"emulationmanagementtcp"_s;

static constexpr qsizetype longRequest = 1 << 20; // characters, which take a millisecond or two

RemoteDBusInvokerService::RemoteDBusInvokerService(QObject *parent)
    : QObject(parent)
{
    m_retryTimer.setSingleShot(true);
    connect(&m_retryTimer, &QTimer::timeout, this, &RemoteDBusInvokerService::connectToEmulator);
    m_nextTurn.setSingleShot(true);
    connect(&m_nextTurn, &QTimer::timeout, this, &RemoteDBusInvokerService::sendFrame);
}

RemoteDBusInvokerService::~RemoteDBusInvokerService()
{
    // A socket that is destroyed emits disconnected(), which would open it again.
    if (m_webSocket)
        m_webSocket->disconnect(this);
}

void RemoteDBusInvokerService::createWebSocket()
{
    m_webSocket.emplace(QString(), QWebSocketProtocol::Version13, this);
    QWebSocket *webSocket = &*m_webSocket;
    webSocket->setMaxAllowedIncomingFrameSize(maxReplySize);
    webSocket->setMaxAllowedIncomingMessageSize(maxReplySize);
    connect(webSocket, &QWebSocket::connected, this, [this] {
        // Otherwise TCP holds back a short request until the one before was acknowledged.
        openSocket()->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        m_sinceConnected.start();
        Q_EMIT webSocketConnected();
    });
    connect(webSocket, &QWebSocket::disconnected, this,
            &RemoteDBusInvokerService::handleDisconnected);
    connect(webSocket, &QWebSocket::bytesWritten, this, &RemoteDBusInvokerService::scheduleFrame);
    connect(webSocket, &QWebSocket::textMessageReceived, this,
            &RemoteDBusInvokerService::replyReceived);
}

void RemoteDBusInvokerService::connectToEmulator()
{
    m_retryTimer.stop();
    if (!m_webSocket)
        createWebSocket();
    loseConnection(); // the socket drops an open connection without a signal
    m_webSocket->open(QUrl(u"ws://127.0.0.1:%1"_s.arg(m_port)));
}

void RemoteDBusInvokerService::loseConnection()
{
    const bool wasConnected = m_sinceConnected.isValid();
    m_sinceConnected.invalidate();
    m_nextTurn.stop();
    const std::deque<TextMessage> unsent = std::exchange(m_waitingRequests, {});
    for (const TextMessage &request : unsent) {
        if (!request.isBegun())
            Q_EMIT requestDropped(request.text());
    }
    if (wasConnected)
        Q_EMIT connectionLost();
}

void RemoteDBusInvokerService::handleDisconnected()
{
    // Wait before reconnecting to a relay that accepts connections only to close them.
    const bool wasUsable
        = m_sinceConnected.isValid() && m_sinceConnected.durationElapsed() >= retryInterval;
    loseConnection();
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
    sendRequest(request(bus, service, objectPath, interface, method, arguments));
}

QString RemoteDBusInvokerService::request(const QString &bus, const QString &service,
                                          const QString &objectPath, const QString &interface,
                                          const QString &method, const QString &arguments)
{
    return bus + u' ' + service + u' ' + objectPath + u' ' + interface + u' ' + method + u' '
           + arguments;
}

void RemoteDBusInvokerService::sendRequest(const QString &request)
{
    if (!m_sinceConnected.isValid()) {
        Q_EMIT requestDropped(request);
        return;
    }
    if (m_waitingRequests.empty() && request.size() < longRequest) {
        Q_EMIT requestSent(request); // before a flush that notices that the connection is lost
        m_webSocket->sendTextMessage(request);
        // Send now: the pages update before the event loop would flush the socket.
        m_webSocket->flush();
        return;
    }
    m_waitingRequests.emplace_back(request);
    scheduleFrame();
}

// Returns the socket below the WebSocket: the newest, because that of the last connection may not
// have been deleted yet.
QAbstractSocket *RemoteDBusInvokerService::openSocket() const
{
    return m_webSocket->findChildren<QAbstractSocket *>().constLast();
}

void RemoteDBusInvokerService::sendFrame()
{
    TextMessage &request = m_waitingRequests.front();
    if (!request.isBegun())
        Q_EMIT requestSent(request.text());
    QAbstractSocket *socket = openSocket();
    request.writeFrame(*socket);
    if (request.isWritten())
        m_waitingRequests.pop_front();
    socket->flush(); // may lose the connection
    scheduleFrame();
}

void RemoteDBusInvokerService::scheduleFrame()
{
    if (!m_waitingRequests.empty() && m_webSocket->bytesToWrite() == 0)
        m_nextTurn.start();
}

} // namespace EmulationManagement::Internal
