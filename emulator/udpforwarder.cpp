#include "udpforwarder.h"

#include <QVariant>

namespace NimbraEmulator {

// The buffer has room for several video frames that arrive at once.
static constexpr int receiveBufferSize = 2 << 20; // bytes
static constexpr qint64 maxDatagramSize = 65536;

UdpForwarder::UdpForwarder(const QHostAddress &address, quint16 port, QObject *parent)
    : QObject(parent)
    , m_address(address)
    , m_port(port)
{
    connect(&m_incoming, &QUdpSocket::readyRead, this, &UdpForwarder::forwardDatagrams);
}

bool UdpForwarder::listen(quint16 hostPort)
{
    if (!m_incoming.bind(QHostAddress::LocalHost, hostPort, QUdpSocket::DontShareAddress))
        return false;
    m_incoming.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, receiveBufferSize);
    return true;
}

void UdpForwarder::forwardDatagrams()
{
    QByteArray datagram(maxDatagramSize, Qt::Uninitialized);
    while (m_incoming.hasPendingDatagrams()) {
        const qint64 size = m_incoming.readDatagram(datagram.data(), datagram.size());
        if (size >= 0)
            m_outgoing.writeDatagram(datagram.constData(), size, m_address, m_port);
    }
}

} // namespace NimbraEmulator
