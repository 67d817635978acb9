#include "relay.h"

#include "journalwriter.h"
#include "relayclient.h"

#include <QTcpSocket>
#include <QWebSocket>
#include <QWebSocketCorsAuthenticator>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

// Equals the plugin's maxReplySize, because replies repeat the arguments of their requests.
// parseRequest() refuses arrays that are too long for D-Bus.
static constexpr quint64 maxRequestBytes = 64 << 20;

Relay::Relay(const QHostAddress &address, const QDBusConnection &bus, JournalWriter &journal,
             QObject *parent)
    : QObject(parent)
    , m_address(address)
    , m_bus(bus)
    , m_journal(journal)
    , m_server(u"remote-dbus-invoker"_s, QWebSocketServer::NonSecureMode)
{
    connect(&m_listener, &QTcpServer::newConnection, this, &Relay::acceptConnections);
    connect(&m_server, &QWebSocketServer::newConnection, this, &Relay::acceptClients);
    // Browsers let any web page open WebSockets to this machine, but send the page's origin.
    connect(&m_server, &QWebSocketServer::originAuthenticationRequired, this,
            [](QWebSocketCorsAuthenticator *page) { page->setAllowed(page->origin().isEmpty()); });
}

Relay::~Relay()
{
    close();
}

bool Relay::open(QString *error)
{
    if (m_listener.isListening() || m_listener.listen(m_address, port))
        return true;
    *error = u"The relay cannot listen on %1 port %2: %3."_s.arg(m_address.toString())
                 .arg(port)
                 .arg(m_listener.errorString());
    return false;
}

void Relay::close()
{
    m_listener.close();
    m_server.close();
    const QList<RelayClient *> clients = std::exchange(m_clients, {});
    for (RelayClient *client : clients) {
        delete client;
        m_journal.write("relay-disconnected"_L1);
    }
}

// A reply must not wait until the host acknowledges the reply before.
void Relay::acceptConnections()
{
    while (QTcpSocket *socket = m_listener.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        m_server.handleConnection(socket);
    }
}

void Relay::acceptClients()
{
    while (QWebSocket *socket = m_server.nextPendingConnection()) {
        socket->setMaxAllowedIncomingFrameSize(maxRequestBytes);
        socket->setMaxAllowedIncomingMessageSize(maxRequestBytes);
        auto *client = new RelayClient(socket, m_bus, m_faults, m_journal, this);
        m_clients.append(client);
        m_journal.write("relay-connected"_L1);
        connect(client, &RelayClient::disconnected, this, [this, client] {
            m_clients.removeOne(client);
            client->deleteLater();
            m_journal.write("relay-disconnected"_L1);
        });
    }
}

} // namespace NimbraEmulator
