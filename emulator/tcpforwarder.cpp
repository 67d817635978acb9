#include "tcpforwarder.h"

#include <QTcpSocket>

namespace NimbraEmulator {

// The bytes that are kept for an end that reads more slowly than the other end writes.
static constexpr qint64 bufferSize = 256 << 10;

static void pump(QTcpSocket *from, QTcpSocket *to)
{
    if (to->state() == QAbstractSocket::ConnectedState && to->bytesToWrite() < bufferSize) {
        to->write(from->read(bufferSize));
        to->flush(); // does not wait for the next turn of the event loop
    }
}

// Passes on the data of `from`. When `from` has closed, closes `to` after the last data.
static void forward(QTcpSocket *from, QTcpSocket *to)
{
    from->setReadBufferSize(bufferSize);
    const auto pumpNow = [from, to] { pump(from, to); };
    QObject::connect(from, &QTcpSocket::readyRead, to, pumpNow);
    QObject::connect(to, &QTcpSocket::connected, from, pumpNow);
    QObject::connect(to, &QTcpSocket::bytesWritten, from, pumpNow);
    QObject::connect(from, &QTcpSocket::disconnected, to, [from, to] {
        if (to->state() == QAbstractSocket::ConnectedState) {
            to->write(from->readAll());
            to->disconnectFromHost();
        } else {
            to->abort();
        }
    });
}

TcpForwarder::TcpForwarder(const QHostAddress &address, quint16 port, QObject *parent)
    : QObject(parent)
    , m_address(address)
    , m_port(port)
{
    connect(&m_server, &QTcpServer::newConnection, this, &TcpForwarder::acceptConnections);
}

bool TcpForwarder::listen(quint16 hostPort)
{
    return m_server.listen(QHostAddress::LocalHost, hostPort);
}

void TcpForwarder::acceptConnections()
{
    while (QTcpSocket *client = m_server.nextPendingConnection()) {
        auto *guest = new QTcpSocket(client);
        // Otherwise TCP holds back a short message until the one before was acknowledged.
        client->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        connect(guest, &QTcpSocket::connected, guest,
                [guest] { guest->setSocketOption(QAbstractSocket::LowDelayOption, 1); });
        forward(client, guest);
        forward(guest, client);
        connect(guest, &QTcpSocket::errorOccurred, client, [client, guest] {
            if (guest->state() != QAbstractSocket::ConnectedState
                && guest->error() != QAbstractSocket::RemoteHostClosedError)
                client->abort();
        });
        connect(client, &QTcpSocket::disconnected, client, [client, guest] {
            // the guest's socket may still be writing the client's last data
            if (guest->state() == QAbstractSocket::UnconnectedState)
                client->deleteLater();
            else
                connect(guest, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        });
        guest->connectToHost(m_address, m_port);
    }
}

} // namespace NimbraEmulator
