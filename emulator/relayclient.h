#pragma once

#include <QDBusConnection>
#include <QObject>

#include <deque>
#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QDBusMessage;
class QWebSocket;
QT_END_NAMESPACE

namespace NimbraEmulator {

class JournalWriter;
struct RelayFaults;
struct Request;

/// One client of the relay. Its requests run in parallel, but replies keep the order of the
/// requests, because only the order tells which request a reply belongs to.
class RelayClient : public QObject
{
    Q_OBJECT

public:
    /// Takes ownership of \a socket. \a faults and \a journal belong to the relay, which outlives
    /// this object.
    RelayClient(QWebSocket *socket, const QDBusConnection &bus, RelayFaults &faults,
                JournalWriter &journal, QObject *parent);
    ~RelayClient() override;

Q_SIGNALS:
    void disconnected();

private:
    using PendingReply = std::shared_ptr<std::optional<QString>>;

    void handleRequest(const QString &line);
    void handleBinaryMessage();
    void call(const Request &request, const PendingReply &pending);
    [[nodiscard]] PendingReply expectReply();
    void answer(const PendingReply &pending, const QString &reply);
    void sendReadyReplies();

    QWebSocket *m_socket;
    QDBusConnection m_bus;
    RelayFaults &m_faults;
    JournalWriter &m_journal;
    std::deque<PendingReply> m_pending; // in the order of the requests
};

} // namespace NimbraEmulator
