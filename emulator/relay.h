#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QHostAddress>
#include <QObject>
#include <QTcpServer>
#include <QWebSocketServer>

#include <chrono>
#include <optional>

namespace NimbraEmulator {

class JournalWriter;
class RelayClient;

/// The faults that were requested of the relay, see Control.
struct RelayFaults
{
    struct Failure
    {
        QString errorName;
        QString errorText;
    };

    std::chrono::milliseconds delay{0}; ///< before each reply is sent
    std::optional<QString> answer;      ///< sent once, instead of the next reply
    QHash<QString, Failure> failures;   ///< by the names of the methods, which are not called
};

/// Connects the host to the emulator's system bus: a WebSocket server that receives request lines
/// and answers each with a reply line.
class Relay : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 port = 1234;

    Relay(const QHostAddress &address, const QDBusConnection &bus, JournalWriter &journal,
          QObject *parent = nullptr);
    ~Relay() override;

    /// Starts to listen unless it already listens. On failure puts one sentence into \a error.
    [[nodiscard]] bool open(QString *error);

    /// Drops all connections and stops listening.
    void close();

    [[nodiscard]] RelayFaults &faults() { return m_faults; }

private:
    void acceptConnections();
    void acceptClients();

    QHostAddress m_address;
    QDBusConnection m_bus;
    JournalWriter &m_journal;
    QTcpServer m_listener;
    QWebSocketServer m_server;
    RelayFaults m_faults;
    QList<RelayClient *> m_clients; // children of the relay
};

} // namespace NimbraEmulator
