#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QWebSocket>

#include <optional>

/*!
 * What a call of the emulator costs: WebSocket, forwarded port, relay, D-Bus and back. The baseline
 * is a bare WebSocket echo of the same frame by way of a forwarded port, and a bare D-Bus call
 * where that counts, of a process that does nothing else.
 */
class CallBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testRoundTrip();
    void testThroughput();
    void cleanupTestCase();

private:
    QProcess m_busDaemon;
    QProcess m_peer;
    QWebSocket m_echo;
    std::optional<QDBusConnection> m_bus;
};
