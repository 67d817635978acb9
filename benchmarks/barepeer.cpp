// The minimal counterpart of a relay and its D-Bus service: a WebSocket server, behind a forwarded
// port like the emulator's, that sends every frame back, and a D-Bus object whose only method does
// almost nothing.

#include <tcpforwarder.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QWebSocket>
#include <QWebSocketServer>

#include <cstdio>

using namespace Qt::StringLiterals;

class Peer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vexa.BarePeer")

public Q_SLOTS:
    void setValue(int value) { m_value = value; }

private:
    int m_value = 0;
};

/// Usage: bare_peer D-BUS_ADDRESS PORT. Prints a line once PORT leads to the WebSocket server.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QDBusConnection bus
        = QDBusConnection::connectToBus(QCoreApplication::arguments().at(1), u"bus"_s);
    Peer peer;
    if (!bus.registerObject(u"/"_s, &peer, QDBusConnection::ExportAllSlots)
        || !bus.registerService(u"org.vexa.BarePeer"_s))
        return 1;

    QWebSocketServer server({}, QWebSocketServer::NonSecureMode);
    QObject::connect(&server, &QWebSocketServer::newConnection, &server, [&] {
        QWebSocket *socket = server.nextPendingConnection();
        socket->setParent(&server);
        QObject::connect(socket, &QWebSocket::textMessageReceived, socket,
                         &QWebSocket::sendTextMessage);
    });
    if (!server.listen(QHostAddress::LocalHost))
        return 1;
    NimbraEmulator::TcpForwarder forwarder(QHostAddress::LocalHost, server.serverPort());
    if (!forwarder.listen(QCoreApplication::arguments().at(2).toUShort()))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

#include "barepeer.moc"
