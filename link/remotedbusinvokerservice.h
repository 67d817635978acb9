#pragma once

#include "textmessage.h"

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QWebSocket>

#include <chrono>
#include <deque>
#include <optional>

namespace EmulationManagement::Internal {

/*!
 * The one link to the services inside the emulator.
 *
 * A relay inside the emulator performs D-Bus calls. Each text frame (RFC 6455) that this class
 * sends is one request, and each text frame that it receives is one reply. Replies carry no request
 * identifier.
 *
 * Once opened, the link reconnects as long as the object lives: at once after a connection is lost,
 * then every retryInterval. The interval limits the load while the emulator is off, when each
 * attempt fails within microseconds.
 */
class RemoteDBusInvokerService : public QObject
{
    Q_OBJECT

public:
    /// Host end of the forwarded TCP port.
    static constexpr unsigned short hostTcpPort = 5454;
    /// Emulator end of the forwarded TCP port, where the relay listens.
    static constexpr unsigned short emulatorTcpPort = 1234;
    /// Length of the longest reply in bytes; a longer one ends the connection. A reply repeats the
    /// arguments of its call, so this has room for the longest track (maximumPoints of
    /// GpsManagementPage.qml).
    static constexpr quint64 maxReplySize = 64 << 20;
    /// Name of the SDK's port forwarding rule for these two ports.
    static const QString portForwardingRule;
    /// Time between a failed attempt to connect and the next one.
    static constexpr std::chrono::milliseconds retryInterval{100};

    explicit RemoteDBusInvokerService(QObject *parent = nullptr);
    ~RemoteDBusInvokerService() override;

    /// Sets the port of this host that leads to the relay, in place of hostTcpPort.
    void setPort(unsigned short port) { m_port = port; }
    [[nodiscard]] bool isConnected() const { return m_sinceConnected.isValid(); }
    /// Opens the WebSocket to the host end of the forwarded port, again if it is open.
    void connectToEmulator();

    /*!
     * Sends "bus service objectPath interface method arguments" as one text frame.
     *
     * \a arguments are tokens as argumentencoding.h writes them, or empty. The other texts must not
     * contain spaces. While the link is down, the call is dropped without a reply.
     */
    void callDBusMethod(const QString &bus, const QString &service, const QString &objectPath,
                        const QString &interface, const QString &method, const QString &arguments);

    /// Returns the request that callDBusMethod() sends, so that it can be made in another thread.
    [[nodiscard]] static QString request(const QString &bus, const QString &service,
                                         const QString &objectPath, const QString &interface,
                                         const QString &method, const QString &arguments);
    /*!
     * Sends one text frame. While the link is down, the request is dropped without a reply.
     *
     * A long request, such as a track, is sent frame by frame, each in a turn of the event loop.
     * Requests that are made meanwhile follow it, in order.
     */
    void sendRequest(const QString &request);

Q_SIGNALS:
    void webSocketConnected();
    /// A connection was lost, and webSocketDisconnected() follows, or it is opened again.
    void connectionLost();
    /// A connection was lost, or an attempt to connect failed.
    void webSocketDisconnected();
    /// A request is about to be sent. Its reply is the next one that no earlier request awaits.
    void requestSent(const QString &request);
    /// A request was not sent, because there is no connection or because it was lost meanwhile.
    void requestDropped(const QString &request);
    /// A reply line of the relay, unchanged.
    void replyReceived(const QString &reply);

private:
    void createWebSocket();
    void handleDisconnected();
    void loseConnection();
    [[nodiscard]] QAbstractSocket *openSocket() const;
    void sendFrame();
    void scheduleFrame();

    // Created by the first connectToEmulator(): the first socket of a process loads the TLS
    // library, which would be the largest part of the plugin's C++ start-up time.
    std::optional<QWebSocket> m_webSocket;
    unsigned short m_port = hostTcpPort;
    QElapsedTimer m_sinceConnected; // invalid while there is no connection
    QTimer m_retryTimer;
    std::deque<TextMessage> m_waitingRequests;
    QTimer m_nextTurn; // sends a frame of them
};

} // namespace EmulationManagement::Internal
