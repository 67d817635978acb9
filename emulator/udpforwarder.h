#pragma once

#include <QHostAddress>
#include <QObject>
#include <QUdpSocket>

namespace NimbraEmulator {

/// Forwards the datagrams of a port of 127.0.0.1 to a port of the emulator, in this direction only:
/// nothing in the emulator answers them.
class UdpForwarder : public QObject
{
    Q_OBJECT

public:
    UdpForwarder(const QHostAddress &address, quint16 port, QObject *parent = nullptr);

    [[nodiscard]] bool listen(quint16 hostPort);
    [[nodiscard]] QString errorString() const { return m_incoming.errorString(); }

private:
    void forwardDatagrams();

    QHostAddress m_address;
    quint16 m_port;
    QUdpSocket m_incoming;
    QUdpSocket m_outgoing;
};

} // namespace NimbraEmulator
