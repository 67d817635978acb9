#include "callbenchmark.h"

#include "ratio.h"

#include <link/calllog.h>
#include <link/remotedbusinvokerservice.h>

#include <plugindriver.h>
#include <waiting.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace PluginDriver;

static const QString frame = "system org.vexa.SensorfwEmulationManagement "
                             "/org/vexa/SensorfwEmulationManagement "
                             "org.vexa.SensorfwEmulationManagement setAccelerometerX int32:1000";

static QByteArray startAndReadLine(QProcess &process, const QString &program,
                                   const QStringList &arguments)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    waitFor("the first line of " + program, [&] { return process.canReadLine(); });
    return process.readLine().trimmed();
}

void CallBenchmark::initTestCase()
{
    const QByteArray address = startAndReadLine(
        m_busDaemon, "dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
    static const QString port = "5455";
    startAndReadLine(m_peer, BARE_PEER_PROGRAM, {QString::fromLatin1(address), port});
    m_bus = QDBusConnection::connectToBus(QString::fromLatin1(address), "benchmark");
    m_echo.open(QUrl("ws://127.0.0.1:" + port));
    waitFor("the echo", [&] { return m_echo.state() == QAbstractSocket::ConnectedState; });

    JournalReader journal(journalPath());
    openWindow(journal);
    view()->close();
    // waits for the last reply to the calls of the set-up
    const QSignalSpy replies(invoker(), SIGNAL(replyReceived(QString)));
    QMetaObject::invokeMethod(sensorsManager(), "setAccelerometerX", 12345);
    waitFor("the last reply", [&] {
        return !replies.isEmpty() && replies.constLast().constFirst().toString().contains("12345");
    });
}

void CallBenchmark::cleanupTestCase()
{
    stopMachine();
    QDBusConnection::disconnectFromBus("benchmark");
    for (QProcess *process : {&m_peer, &m_busDaemon}) {
        process->terminate();
        process->waitForFinished();
    }
}

void CallBenchmark::testRoundTrip()
{
    static constexpr int rounds = 4000;
    QEventLoop loop;
    connect(invoker(), SIGNAL(replyReceived(QString)), &loop, SLOT(quit()));
    connect(&m_echo, &QWebSocket::textMessageReceived, &loop, &QEventLoop::quit);
    QDBusMessage bareCall
        = QDBusMessage::createMethodCall("org.vexa.BarePeer", "/", "org.vexa.BarePeer", "setValue");
    bareCall << 1000;

    std::vector<double> calls;
    std::vector<double> bare;
    for (int round = 0; round < rounds; ++round) {
        calls.push_back(millisecondsOf([&] {
            QMetaObject::invokeMethod(sensorsManager(), "setAccelerometerX", 1000);
            loop.exec();
        }));
        const double echo = millisecondsOf([&] {
            m_echo.sendTextMessage(frame);
            m_echo.flush();
            loop.exec();
        });
        QDBusPendingCall reply = QDBusPendingCall::fromError({});
        const double dbus = millisecondsOf([&] {
            reply = m_bus->asyncCall(bareCall);
            const QDBusPendingCallWatcher watcher(reply);
            connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
            loop.exec();
        });
        QVERIFY(!reply.isError());
        bare.push_back(echo + dbus);
    }
    report({.what = "call round trip, median",
            .measured = quantile(calls, 0.5),
            .baseline = quantile(bare, 0.5),
            .unit = "ms",
            .limit = 1.15});
    report({.what = "call round trip, 99th percentile",
            .measured = quantile(calls, 0.99),
            .baseline = quantile(bare, 0.99),
            .unit = "ms",
            .limit = 1.15});
}

void CallBenchmark::testThroughput()
{
    static constexpr int calls = 20000;
    static constexpr int outstanding = 64; // calls at a time, to keep all processes busy
    QEventLoop loop;
    int sent = 0;
    const auto measure = [&](const QSignalSpy &replies, const std::function<void()> &send) {
        const qsizetype before = replies.size();
        sent = 0;
        return calls / millisecondsOf([&] {
                   while (replies.size() - before < calls) {
                       for (; sent < calls && sent - (replies.size() - before) < outstanding;
                            ++sent)
                           send();
                       loop.processEvents(QEventLoop::WaitForMoreEvents);
                   }
               });
    };
    JournalReader journal(journalPath());
    const qsizetype start = journal.position();
    const QSignalSpy replies(invoker(), SIGNAL(replyReceived(QString)));
    const double callRate = measure(replies, [&] {
        QMetaObject::invokeMethod(sensorsManager(), "setAccelerometerX", sent % 3000);
    });
    const QStringList received = journal.callsSince(start);
    QCOMPARE(received.size(), calls);
    for (int call = 0; call < calls; ++call)
        QCOMPARE(received.at(call), QString("setAccelerometerX int32:%1").arg(call % 3000));

    const QSignalSpy echoes(&m_echo, &QWebSocket::textMessageReceived);
    const double echoRate = measure(echoes, [&] {
        m_echo.sendTextMessage(frame);
        m_echo.flush();
    });
    report({.what = "calls sustained, none lost, against bare echoes",
            .measured = callRate,
            .baseline = echoRate,
            .unit = "per ms"});
}

void CallBenchmark::testObserving()
{
    using EmulationManagement::Internal::CallLog;
    using Link = EmulationManagement::Internal::RemoteDBusInvokerService;
    static constexpr int rounds = 8000;
    Link observed;
    Link bare;
    const CallLog log(&observed);
    QEventLoop loop;
    int connections = 0;
    for (Link *link : {&observed, &bare}) {
        connect(link, &Link::webSocketConnected, &loop, [&] { ++connections; });
        connect(link, &Link::replyReceived, &loop, &QEventLoop::quit);
        link->connectToEmulator();
    }
    waitFor("both links", [&] { return connections == 2; });
    const auto roundTrip = [&](Link &link) {
        return millisecondsOf([&] {
            link.sendRequest(frame);
            loop.exec();
        });
    };
    std::vector<double> observedCalls;
    std::vector<double> bareCalls;
    for (int round = 0; round < rounds; ++round) {
        // each goes first as often as the other
        if (round % 2 == 0)
            observedCalls.push_back(roundTrip(observed));
        bareCalls.push_back(roundTrip(bare));
        if (round % 2 != 0)
            observedCalls.push_back(roundTrip(observed));
    }
    QCOMPARE(log.totals().calls, rounds);
    report({.what = "observed call round trip, median",
            .measured = quantile(observedCalls, 0.5),
            .baseline = quantile(bareCalls, 0.5),
            .unit = "ms",
            .limit = 1.02});
}
