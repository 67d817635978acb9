#include "dialogstest.h"

#include <plugindriver.h>

#include <messageboxanswers.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

static std::unique_ptr<QObject> createDialog(const QByteArray &properties)
{
    QQmlComponent component(PluginDriver::view()->engine());
    component.setData(
        "import QtQuick.Dialogs\nimport org.plova 1.0\nWarningDialog {" + properties + "}", {});
    std::unique_ptr<QObject> dialog(component.create());
    if (!dialog)
        qFatal("%s", qPrintable(component.errorString()));
    return dialog;
}

void DialogsTest::testWarningDialog_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<QString>("told");
    const QByteArray withBox = "withDoNotShowAgainCheckBox: true";
    const QByteArray apply = "standardButtons: MessageDialog.Apply | MessageDialog.Discard";
    const QByteArray yes = "standardButtons: MessageDialog.Yes";
    QTest::newRow("the hidden box does not count") << QByteArray() << QMessageBox::Ok << "accepted";
    QTest::newRow("the ticked box is told") << withBox << QMessageBox::Ok << "accepted, ticked";
    QTest::newRow("cancel") << withBox << QMessageBox::Cancel << "rejected";
    QTest::newRow("apply accepts") << apply << QMessageBox::Apply << "accepted";
    QTest::newRow("discard rejects") << apply << QMessageBox::Discard << "rejected";
    QTest::newRow("other answers say nothing") << yes << QMessageBox::Yes << "";
}

void DialogsTest::testWarningDialog()
{
    QFETCH(QByteArray, properties);
    QFETCH(QMessageBox::StandardButton, answer);
    const std::unique_ptr<QObject> dialog = createDialog("text: 'Really?'; " + properties);
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
    QString told = QStringLiteral("rejected").repeated(rejectedSpy.size());
    for (const QVariantList &arguments : acceptedSpy)
        told += arguments.constFirst().toBool() ? "accepted, ticked" : "accepted";
    QTEST(told, "told");
}
