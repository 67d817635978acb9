#include "repliestest.h"

#include <plugindriver.h>

#include <waiting.h>
#include <windowdriver.h>

#include <ravik/emulator.h>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace PluginDriver;
using namespace Qt::StringLiterals;

void RepliesTest::initTestCase()
{
    QSignalSpy replies(sensorsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
    JournalReader journal(journalPath());
    openWindow(journal);
    waitFor("all replies", [&] { return replies.size() == journal.callsSince(0).size(); });
}

void RepliesTest::testErrorDialog_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("text");
    QTest::newRow("an error not shown")
        << "fail setAccelerometerY org.vexa.Error.Broken It is broken"
        << "org.vexa.Error.Broken It is broken";
    QTest::newRow("shown without an error") << "fail setAccelerometerY" << QString();
    QTest::newRow("four fields taken for a reply") << "relay answer a:b:c:d" << "a:b:c:d";
    QTest::newRow("six fields taken for a reply") << "relay answer a:b:c::e:f" << "a:b:c::e:f";
    QTest::newRow("a plain text not shown")
        << "relay answer connection refused" << "connection refused";
    QTest::newRow("markup interpreted") << "relay answer a<br>&amp;<img src='http://127.0.0.1/a'>"
                                        << "a<br>&amp;<img src='http://127.0.0.1/a'>";
    QTest::newRow("blocked by a long text")
        << "relay repeat 64000000 x" << QString(999, 'x') + QChar(0x2026);
    QTest::newRow("blocked by millions of lines")
        << "relay repeat 8000000 \r" << QString(19, '\n') + QChar(0x2026);
    QTest::newRow("blocked by millions of fields")
        << "relay repeat 64000000 :" << QString(999, ':') + QChar(0x2026);
    QTest::newRow("a reply taken for a text") << "relay answer a:b:c::e" << QString();
}

void RepliesTest::testErrorDialog()
{
    QFETCH(QString, fault);
    QFETCH(QString, text);
    control(fault);

    QSignalSpy replies(sensorsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
    QVERIFY(QMetaObject::invokeMethod(sensorsManager(), "setAccelerometerY", Q_ARG(int, 1250)));
    QVERIFY(QMetaObject::invokeMethod(sensorsManager(), "setAccelerometerZ", Q_ARG(int, 1)));
    // after an error the GPS page stops its track, so a third reply may follow
    waitFor("both replies", [&] { return replies.size() >= 2; });

    QObject *dialog = errorDialog();
    if (text.isEmpty()) {
        QVERIFY(!dialog->property("visible").toBool());
        return;
    }
    waitFor("the dialog", [&] { return dialog->property("visible").toBool(); });
    QCOMPARE(dialog->property("title").toString(), "Error");
    QCOMPARE(dialog->property("text").toString(), text);
    WindowDriver(view()).clickButton("OK");
    waitFor("the dialog to close", [&] { return !dialog->property("visible").toBool(); });
}

void RepliesTest::testErrorDialogClosesWithTheWindow()
{
    QObject *dialog = errorDialog();
    QMetaObject::invokeMethod(dialog, "show", u"It is broken"_s);
    QVERIFY(dialog->property("visible").toBool());
    view()->close();
    waitFor("the dialog to close", [&] { return !dialog->property("visible").toBool(); });
}

// After Apply the plugin asks once for the state of each sensor, even if the emulator refuses.
void RepliesTest::testRefusedApply()
{
    JournalReader journal(journalPath());
    QObject *dialog = errorDialog();
    const WindowDriver driver(view());
    driver.clickButton("Sensors Management");
    for (const QString &method : {QString("disableSensor"), QString("enabled")}) {
        QMetaObject::invokeMethod(dialog, "close");
        waitFor("the dialog to close", [&] { return !dialog->property("visible").toBool(); });
        control("fail " + method + " org.vexa.Error.Busy It cannot do " + method);
        const qsizetype start = journal.position();
        QSignalSpy replies(sensorsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
        driver.clickButton("Gyroscope");
        driver.clickButton("Apply");
        const auto questions
            = [&] { return journal.callsSince(start).filter("enabled string:").size(); };
        waitFor("as many answers as sensors and questions",
                [&] { return replies.size() >= 16 && questions() >= 8; });
        QCOMPARE(questions(), 8);
        QCOMPARE(sensorsManager()->property("sensorsEnabledStates").toMap().value("gyroscope"),
                 method == "disableSensor");
    }
}

void RepliesTest::cleanupTestCase()
{
    stopMachine();
}
