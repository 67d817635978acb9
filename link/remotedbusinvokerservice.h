#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <QWebSocket>

#include <chrono>
#include <optional>

namespace EmulationManagement::Internal {

/*!
 * The one link to the services inside the emulator.
 *
 * A relay inside the emulator performs D-Bus calls: each text frame of a WebSocket (RFC 6455) is
 * one request, each text frame that comes back one reply. Replies carry no request identifier.
 *
 * Once opened, the link reconnects for as long as the object lives: at once when a connection was
 * lost, and then every retryInterval. Without a pause, a loopback that refuses connections would be
 * asked tens of thousands of times a second for as long as the emulator is off.
 */
class RemoteDBusInvokerService : public QObject
{
    Q_OBJECT

public:
    /// Host end of the forwarded TCP port.
    static constexpr unsigned short hostTcpPort = 5454;
    /// Emulator end of the forwarded TCP port, where the relay listens.
    static constexpr unsigned short emulatorTcpPort = 1234;
    /// Bytes of the longest reply; a longer one ends the connection. A reply repeats the arguments
    /// of its call: this holds the longest track, see maximumPoints of GpsManagementPage.qml.
    static constexpr quint64 maxReplySize = 64 << 20;
    /// Name of the SDK's port forwarding rule for the two.
    static const QString portForwardingRule;
    /// From an attempt to connect that failed until the next one.
    static constexpr std::chrono::milliseconds retryInterval{100};

    explicit RemoteDBusInvokerService(QObject *parent = nullptr);
    ~RemoteDBusInvokerService() override;

    /// Opens the WebSocket to the host end of the forwarded port.
    void connectToEmulator();

    /*!
     * Sends "bus service objectPath interface method arguments" as one text frame.
     *
     * \a arguments are "type:value" tokens separated by single spaces, or empty. The other texts
     * must not hold spaces. While the link is down the call is dropped without a reply.
     */
    void callDBusMethod(const QString &bus, const QString &service, const QString &objectPath,
                        const QString &interface, const QString &method, const QString &arguments);

Q_SIGNALS:
    void webSocketConnected();
    /// A connection was lost, or an attempt to connect failed.
    void webSocketDisconnected();
    /// A reply line of the relay, as it came.
    void replyReceived(const QString &reply);

private:
    void createWebSocket();
    void handleDisconnected();

    // Made with the first connection: the first socket of a process loads its TLS library, which
    // takes longer than all else that the plugin does in C++ when the IDE starts.
    std::optional<QWebSocket> m_webSocket;
    QElapsedTimer m_sinceConnected; // invalid while there is no connection
    QTimer m_retryTimer;
};

} // namespace EmulationManagement::Internal
