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

class Journal;
struct RelayFaults;
struct Request;

/// One client of the relay. Its requests are carried out side by side, but answered in their own
/// order, as replies are matched to requests by nothing else.
class RelayClient : public QObject
{
    Q_OBJECT

public:
    /// Takes \a socket over. \a faults and \a journal are the relay's and outlive this object.
    RelayClient(QWebSocket *socket, const QDBusConnection &bus, RelayFaults &faults,
                Journal &journal, QObject *parent);
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
    Journal &m_journal;
    std::deque<PendingReply> m_pending; // in the order of the requests
};

} // namespace NimbraEmulator
