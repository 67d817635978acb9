#include <link/emulationmanager.h>
#include <link/remotedbusinvokerservice.h>
#include <support/recordingrelay.h>

#include <QSignalSpy>
#include <QTest>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;
using Link = RemoteDBusInvokerService;

/// A manager of an imaginary service whose requests have a different text in every field.
class LampManager : public EmulationManager
{
public:
    QString bus() const override { return u"session"_s; }
    QString dbusService() const override { return u"org.lamp.Service"_s; }
    QString dbusObject() const override { return u"/org/lamp/Object"_s; }
    QString dbusInterface() const override { return u"org.lamp.Interface"_s; }
    void processDBusMethodsReturnValues(const QStringList &values) override
    {
        seen.append(values.join(u','));
    }
    using EmulationManager::callDBusMethod;

    QStringList seen;
};

class LinkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void requestIsOneFrame_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::newRow("fields in another order") << u"int32:10 int32:-3 int32:981"_s;
        QTest::newRow("the space before no arguments lost") << QString();
        QTest::newRow("placeholders in a value filled") << u"string:%1%2%6%L1"_s;
        QTest::newRow("text beyond Latin 1 lost") << u"string:Приёмник"_s;
        QTest::newRow("split at a frame of the socket") << QString(2'000'000, u'7');
    }

    void requestIsOneFrame()
    {
        QFETCH(const QString, arguments);
        TestSupport::RecordingRelay relay;
        Link link;
        LampManager manager;
        QVERIFY(relay.connectLink(link));
        manager.setRdbusinvoker(&link);
        manager.callDBusMethod(u"dim"_s, arguments);
        const QString request
            = u"session org.lamp.Service /org/lamp/Object org.lamp.Interface dim "_s + arguments;
        QCOMPARE(relay.takeRequests(link), QStringList{request});
    }

    // A long request keeps the event loop busy, so the next ones wait for its next turn.
    void longRequestsTakeTurns()
    {
        TestSupport::RecordingRelay relay;
        Link link;
        QVERIFY(relay.connectLink(link));
        // Frames begin within a character of four bytes.
        const QString track = u'7' + u"\U0001F30D"_s.repeated(1'000'000);
        const QStringList requests{track, u"a"_s, track, QString(300, u'b'), u"c"_s};
        for (const QString &request : requests)
            link.sendRequest(request);
        QCOMPARE(relay.takeRequests(link), requests);

        QSignalSpy lost(&link, &Link::connectionLost);
        QSignalSpy connected(&link, &Link::webSocketConnected);
        relay.dropClients();
        link.sendRequest(track);
        link.sendRequest(u"for the lost connection"_s);
        QVERIFY(connected.wait());
        QCOMPARE(relay.takeRequests(link), QStringList());
        QCOMPARE(lost.size(), 1);
    }

    void retriesUntilSomethingListens()
    {
        TestSupport::RecordingRelay relay;
        Link link;
        QSignalSpy connected(&link, &Link::webSocketConnected);
        QSignalSpy disconnected(&link, &Link::webSocketDisconnected);
        link.callDBusMethod(u"lost"_s, {}, {}, {}, {}, {});
        QElapsedTimer sinceStart;
        sinceStart.start();
        link.connectToEmulator();
        QTRY_VERIFY(disconnected.size() >= 5);
        QVERIFY(sinceStart.durationElapsed() >= 4 * Link::retryInterval); // no busy loop
        link.callDBusMethod(u"lost"_s, {}, {}, {}, {}, {});
        QVERIFY(connected.isEmpty());
        QVERIFY(relay.listen());
        QVERIFY(connected.wait());
        QCOMPARE(relay.takeRequests(link), QStringList());
    }

    void lostConnectionIsOpenedAgainAtOnce()
    {
        TestSupport::RecordingRelay relay;
        Link link;
        QSignalSpy connected(&link, &Link::webSocketConnected);
        QElapsedTimer sinceLoss;
        connect(&link, &Link::webSocketDisconnected, this, [&] { sinceLoss.start(); });
        QVERIFY(relay.connectLink(link));
        // on a busy machine, one of them may be late all the same
        bool wasAtOnce = false;
        for (int i = 0; i < 10 && !wasAtOnce; ++i) {
            QTest::qWait(2 * Link::retryInterval); // a shorter connection counts as refused
            relay.dropClients();
            QVERIFY(connected.wait());
            wasAtOnce = sinceLoss.durationElapsed() < Link::retryInterval / 2;
        }
        QVERIFY(wasAtOnce);
    }

    void subclassSeesASuccessBeforeThePages()
    {
        TestSupport::RecordingRelay relay;
        Link link;
        LampManager manager;
        manager.setRdbusinvoker(&link);
        QVERIFY(relay.connectLink(link));
        QStringList seen;
        connect(&manager, &EmulationManager::replyFromEmulatorReceived, this,
                [&](const QString &text) { seen << text << manager.seen; });
        relay.reply(u"x:y:z:org.x.Bad:"_s); // the subclass gets no errors
        relay.reply(u"enabled:als:1:: "_s); // a text without an error's name is a success
        QTRY_COMPARE(seen, (QStringList{u"org.x.Bad "_s, u"OK"_s, u"enabled,als,1,, "_s}));
    }

    void tooLongReplyEndsTheConnection()
    {
        TestSupport::RecordingRelay relay;
        Link link;
        QVERIFY(relay.connectLink(link));
        QSignalSpy replies(&link, &Link::replyReceived);
        QSignalSpy connected(&link, &Link::webSocketConnected);
        relay.reply(QString(qsizetype(Link::maxReplySize), u'x'));
        QVERIFY(replies.wait());
        relay.reply(QString(qsizetype(Link::maxReplySize) + 1, u'x'));
        QVERIFY(connected.wait());
        QCOMPARE(replies.size(), 1);
    }
};

QTEST_GUILESS_MAIN(LinkTest)

#include "tst_link.moc"
