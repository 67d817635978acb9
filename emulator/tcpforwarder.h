#pragma once

#include <QHostAddress>
#include <QObject>
#include <QTcpServer>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

namespace NimbraEmulator {

/// Forwards the TCP connections of a port of 127.0.0.1 to a port of the emulator. When the emulator
/// refuses or drops a connection, the other end is dropped, too.
class TcpForwarder : public QObject
{
    Q_OBJECT

public:
    TcpForwarder(const QHostAddress &address, quint16 port, QObject *parent = nullptr);

    [[nodiscard]] bool listen(quint16 hostPort);
    [[nodiscard]] QString errorString() const { return m_server.errorString(); }

private:
    void acceptConnections();

    QHostAddress m_address;
    quint16 m_port;
    QTcpServer m_server;
};

} // namespace NimbraEmulator
