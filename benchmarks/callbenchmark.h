#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QWebSocket>

#include <optional>

/*!
 * Measures calls of the emulator: WebSocket, forwarded port, relay, D-Bus and back. The baseline is
 * an echo of the same frame by a bare WebSocket server behind a forwarded port. For a round trip, a
 * call of a bare D-Bus service is added. The log that observes calls is measured against a link
 * without one.
 */
class CallBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testRoundTrip();
    void testThroughput();
    void testObserving();
    void cleanupTestCase();

private:
    QProcess m_busDaemon;
    QProcess m_peer;
    QWebSocket m_echo;
    std::optional<QDBusConnection> m_bus;
};
