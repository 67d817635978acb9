#include <support/temporarysdk.h>

#include <ravik/virtualmachine.h>

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QUdpSocket>

using namespace Qt::StringLiterals;
using Ravik::VirtualMachine;
using TestSupport::TemporarySdk;

static constexpr quint16 sshPort = 2223; // on the host

static bool accepts(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    return socket.waitForConnected(1000);
}

class RavikTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forwardingRules_data()
    {
        QTest::addColumn<QString>("rule");
        QTest::addColumn<QString>("protocol");
        QTest::addColumn<int>("hostPort");
        QTest::addColumn<bool>("accepted"); // beside the rule "a", tcp, 5454
        QTest::newRow("another name and port refused") << u"b"_s << u"udp"_s << 34343 << true;
        QTest::newRow("same name taken") << u"a"_s << u"udp"_s << 34343 << false;
        QTest::newRow("same host port taken") << u"b"_s << u"udp"_s << 5454 << false;
        QTest::newRow("the SDK's own name taken") << u"ssh"_s << u"tcp"_s << 9 << false;
        QTest::newRow("the SDK's own port taken") << u"b"_s << u"tcp"_s << int(sshPort) << false;
        QTest::newRow("unknown protocol taken") << u"b"_s << u"sctp"_s << 9 << false;
        QTest::newRow("port 0 taken") << u"b"_s << u"tcp"_s << 0 << false;
        QTest::newRow("a name that breaks its line taken") << u"b,c"_s << u"tcp"_s << 9 << false;
    }

    void forwardingRules()
    {
        QFETCH(const QString, rule);
        QFETCH(const QString, protocol);
        QFETCH(const int, hostPort);
        QFETCH(const bool, accepted);
        TemporarySdk sdk;
        QVERIFY(sdk.addPortForwarding(u"a"_s, u"tcp"_s, 5454, 1234));
        QCOMPARE(sdk.addPortForwarding(rule, protocol, quint16(hostPort), 1234), accepted);
        sdk.reopen(); // keeps the rules
        QString name;
        QVERIFY(sdk.machine().hasPortForwarding(5454, &name));
        QCOMPARE(name, u"a"_s);
        QVERIFY(!accepted || sdk.machine().hasPortForwarding(quint16(hostPort), &name));
        QCOMPARE(name, accepted ? rule : u"a"_s);
    }

    void startAndStop()
    {
        TemporarySdk sdk;
        VirtualMachine &machine = sdk.machine();
        QVERIFY(sdk.addPortForwarding(u"relay"_s, u"tcp"_s, 5454, 1234));
        QVERIFY(sdk.addPortForwarding(u"data"_s, u"udp"_s, 40000, 40001));
        QList<int> states;
        connect(&machine, &VirtualMachine::stateChanged, this,
                [&] { states.append(machine.state()); });
        QSignalSpy off(&machine, &VirtualMachine::virtualMachineOffChanged);
        QVERIFY(!accepts(5454));

        QVERIFY2(sdk.start(), qPrintable(machine.errorString()));
        QCOMPARE(states, QList<int>({1, 2, 4}));
        QVERIFY(!machine.isOff(nullptr, nullptr));
        QVERIFY(sdk.start()); // a running machine is reachable at once
        QVERIFY(!sdk.addPortForwarding(u"late"_s, u"tcp"_s, 5455, 1234));
        QVERIFY(accepts(5454));
        QUdpSocket receiver;
        QVERIFY(receiver.bind(QHostAddress(u"127.0.0.2"_s), 40001));
        QUdpSocket().writeDatagram(QByteArray(60'000, 'x'), QHostAddress::LocalHost, 40000);
        QTRY_COMPARE(receiver.pendingDatagramSize(), 60'000);

        machine.shutDown();
        machine.shutDown(); // a second request does no harm
        QVERIFY(sdk.start()); // waits for the end and starts again
        machine.shutDown();
        QTRY_VERIFY(machine.isOff(nullptr, nullptr));
        QCOMPARE(states, QList<int>({1, 2, 4, 5, 0, 1, 2, 4, 5, 0}));
        QCOMPARE(off, (QList<QVariantList>{{false}, {true}, {false}, {true}}));
        QVERIFY(!accepts(sshPort));
        QVERIFY(machine.errorString().isEmpty());
        QCOMPARE(sdk.journal().count("\"stopped\""), 2); // nothing was killed
    }

    void endsWithItsOwner()
    {
        {
            TemporarySdk sdk;
            QVERIFY2(sdk.start(), qPrintable(sdk.machine().errorString()));
        }
        QVERIFY(!accepts(sshPort));

        TemporarySdk sdk;
        QVERIFY2(sdk.start(), qPrintable(sdk.machine().errorString()));
        QSignalSpy destroyed(&sdk.machine(), &QObject::destroyed);
        sdk.sdk().removeEmulator(0);
        QVERIFY(destroyed.isEmpty()); // listeners may still use it
        QVERIFY(destroyed.wait());
        QVERIFY(!accepts(sshPort));
    }

    void failedStartSaysWhy()
    {
        TemporarySdk sdk;
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost, sshPort));
        QVERIFY(!sdk.start());
        QCOMPARE(sdk.machine().state(), VirtualMachine::Error);
        QVERIFY(sdk.machine().errorString().contains(QString::number(sshPort)));
        other.close();
        QVERIFY2(sdk.start(), qPrintable(sdk.machine().errorString()));
    }
};

QTEST_GUILESS_MAIN(RavikTest)

#include "tst_ravik.moc"
