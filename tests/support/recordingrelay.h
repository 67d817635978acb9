#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWebSocketServer>

namespace EmulationManagement::Internal {
class RemoteDBusInvokerService;
}

namespace TestSupport {

/// Stands in for the relay inside the emulator: records request lines and answers only when told.
class RecordingRelay : public QObject
{
    Q_OBJECT

public:
    explicit RecordingRelay(QObject *parent = nullptr);
    ~RecordingRelay() override;

    [[nodiscard]] bool listen();
    /// Listens and lets \a link connect. Returns false if it does not within a few seconds.
    [[nodiscard]] bool connectLink(EmulationManagement::Internal::RemoteDBusInvokerService &link);
    /// Drops all clients and refuses new ones.
    void stop();
    void dropClients();

    /// Sends \a line to every client.
    void reply(const QString &line);

    /*!
     * Returns the lines that arrived over \a link since the last call.
     *
     * Lines arrive in order, so it sends a mark and waits until the mark has arrived.
     */
    [[nodiscard]] QStringList takeRequests(
        EmulationManagement::Internal::RemoteDBusInvokerService &link);

private:
    void acceptClients();

    QWebSocketServer m_server;
    QList<QWebSocket *> m_clients; // children of the server
    QStringList m_requests;
};

} // namespace TestSupport
