#include "relayclient.h"

#include "journalwriter.h"
#include "relay.h"
#include "requestline.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QJsonArray>
#include <QTimer>
#include <QWebSocket>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

// The journal keeps only the beginning of longer lines: tracks may have a million points, and
// requested faults send huge replies.
static constexpr qsizetype longestJournalText = 1 << 20;

static QJsonValue toJson(const QVariant &argument)
{
    if (argument.metaType() != QMetaType::fromType<QList<QList<double>>>())
        return QJsonValue::fromVariant(argument);
    QJsonArray points;
    for (const QList<double> &point : argument.value<QList<QList<double>>>()) {
        QJsonArray numbers;
        for (const double number : point)
            numbers.append(number);
        points.append(numbers);
    }
    return points;
}

static QJsonObject toJson(const QString &line, const Request &request)
{
    QJsonObject details{{u"text"_s, line.left(longestJournalText)}};
    if (request.error.isEmpty()) {
        details.insert("service"_L1, request.service);
        details.insert("method"_L1, request.method);
        if (line.size() > longestJournalText)
            return details;
        QJsonArray arguments;
        for (const QVariant &argument : request.arguments)
            arguments.append(toJson(argument));
        details.insert("arguments"_L1, arguments);
    }
    return details;
}

static QString replyLine(const Request &request, const QDBusMessage &reply)
{
    if (reply.type() == QDBusMessage::ErrorMessage)
        return replyLine(request, {}, reply.errorName(), reply.errorMessage());
    QStringList values;
    for (const QVariant &value : reply.arguments())
        values.append(returnedText(value));
    return replyLine(request, values.join(u'|'));
}

RelayClient::RelayClient(QWebSocket *socket, const QDBusConnection &bus, RelayFaults &faults,
                         JournalWriter &journal, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_bus(bus)
    , m_faults(faults)
    , m_journal(journal)
{
    m_socket->setParent(this);
    connect(m_socket, &QWebSocket::textMessageReceived, this, &RelayClient::handleRequest);
    connect(m_socket, &QWebSocket::binaryMessageReceived, this, &RelayClient::handleBinaryMessage);
    connect(m_socket, &QWebSocket::disconnected, this, &RelayClient::disconnected);
}

RelayClient::~RelayClient()
{
    m_socket->disconnect(this);
    m_socket->abort();
}

void RelayClient::handleRequest(const QString &line)
{
    const Request request = parseRequest(line);
    const PendingReply pending = expectReply();
    const auto failure = m_faults.failures.constFind(request.method);
    const bool failing = failure != m_faults.failures.constEnd();
    if (request.error.isEmpty() && !failing)
        call(request, pending); // before writing the journal, so that the service works meanwhile
    m_journal.write("call"_L1, toJson(line, request));
    if (!request.error.isEmpty())
        answer(pending, invalidRequestLine(request.error));
    else if (failing)
        answer(pending, replyLine(request, {}, failure->errorName, failure->errorText));
}

void RelayClient::handleBinaryMessage()
{
    m_journal.write("call"_L1, {{u"text"_s, QString()}});
    answer(expectReply(), invalidRequestLine(u"The request is not a text"_s));
}

void RelayClient::call(const Request &request, const PendingReply &pending)
{
    QDBusMessage message = QDBusMessage::createMethodCall(request.service, request.objectPath,
                                                          request.interface, request.method);
    message.setArguments(request.arguments);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, request, pending, watcher] {
        answer(pending, replyLine(request, watcher->reply()));
        watcher->deleteLater();
    });
}

RelayClient::PendingReply RelayClient::expectReply()
{
    return m_pending.emplace_back(std::make_shared<std::optional<QString>>());
}

void RelayClient::answer(const PendingReply &pending, const QString &reply)
{
    const auto finish = [this, pending, reply] {
        *pending = reply;
        sendReadyReplies();
    };
    if (m_faults.delay.count() == 0)
        finish();
    else
        QTimer::singleShot(m_faults.delay, this, finish);
}

void RelayClient::sendReadyReplies()
{
    while (!m_pending.empty()) {
        const std::optional<QString> &first = *m_pending.front();
        if (!first)
            return;
        const QString reply = std::exchange(m_faults.answer, std::nullopt).value_or(*first);
        m_pending.pop_front();
        m_socket->sendTextMessage(reply);
        m_socket->flush(); // before writing the journal, so that the client need not wait for it
        m_journal.write("reply"_L1, {{u"text"_s, reply.left(longestJournalText)}});
    }
}

} // namespace NimbraEmulator
