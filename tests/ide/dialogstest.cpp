#include "dialogstest.h"

#include <plugindriver.h>

#include <messageboxanswers.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

void DialogsTest::testWarningDialog_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QString>("signal");
    const QByteArray withBox = "withDoNotShowAgainCheckBox: true";
    const QByteArray apply = "standardButtons: MessageDialog.Apply | MessageDialog.Discard";
    const QByteArray yes = "standardButtons: MessageDialog.Yes";
    QTest::newRow("a hidden tick reported") << QByteArray() << QMessageBox::Ok << "accepted";
    QTest::newRow("a tick lost") << withBox << QMessageBox::Ok << "accepted, ticked";
    QTest::newRow("cancel ignored") << withBox << QMessageBox::Cancel << "rejected";
    QTest::newRow("apply ignored") << apply << QMessageBox::Apply << "accepted";
    QTest::newRow("discard ignored") << apply << QMessageBox::Discard << "rejected";
    QTest::newRow("Escape ignored") << apply << QMessageBox::NoButton << "";
    QTest::newRow("another answer reported") << yes << QMessageBox::Yes << "";
}

void DialogsTest::testWarningDialog()
{
    QFETCH(QByteArray, properties);
    QFETCH(QMessageBox::StandardButton, answer);
    const auto dialog = PluginDriver::createWarningDialog("text: 'Really?'; " + properties);
    QSignalSpy acceptedSpy(dialog.get(), SIGNAL(accepted(bool)));
    QSignalSpy rejectedSpy(dialog.get(), SIGNAL(rejected()));
    const MessageBoxAnswers answers(answer, true);
    QMetaObject::invokeMethod(dialog.get(), "show");

    QCOMPARE(answers.boxes().size(), 1);
    const MessageBoxAnswers::Box &box = answers.boxes().constFirst();
    QCOMPARE(box.title, "Warning");
    QCOMPARE(box.text, "Really?");
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.hasVisibleCheckBox, properties.startsWith("withDoNotShowAgain"));
    QString sent = u"rejected"_s.repeated(rejectedSpy.size());
    for (const QVariantList &arguments : acceptedSpy)
        sent += arguments.constFirst().toBool() ? "accepted, ticked" : "accepted";
    QTEST(sent, "signal");
}
