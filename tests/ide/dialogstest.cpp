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
    QTest::addColumn<bool>("checkBoxVisible");
    QTest::addColumn<QVariantList>("accepted");
    QTest::addColumn<bool>("rejected");

    const QByteArray plain = "text: 'Really?'";
    const QByteArray withBox = "text: 'Really?'; withDoNotShowAgainCheckBox: true";
    const QByteArray apply = "text: 'Really?'; "
                             "standardButtons: MessageDialog.Apply | MessageDialog.Discard";
    const QByteArray yes = "text: 'Really?'; standardButtons: MessageDialog.Yes";
    QTest::newRow("the hidden box does not count")
        << plain << QMessageBox::Ok << false << QVariantList{false} << false;
    QTest::newRow("the ticked box is told")
        << withBox << QMessageBox::Ok << true << QVariantList{true} << false;
    QTest::newRow("cancel") << withBox << QMessageBox::Cancel << true << QVariantList() << true;
    QTest::newRow("apply accepts")
        << apply << QMessageBox::Apply << false << QVariantList{false} << false;
    QTest::newRow("discard rejects")
        << apply << QMessageBox::Discard << false << QVariantList() << true;
    QTest::newRow("other answers say nothing")
        << yes << QMessageBox::Yes << false << QVariantList() << false;
}

void DialogsTest::testWarningDialog()
{
    QFETCH(QByteArray, properties);
    QFETCH(QMessageBox::StandardButton, answer);
    QFETCH(bool, checkBoxVisible);
    QFETCH(QVariantList, accepted);
    QFETCH(bool, rejected);

    const std::unique_ptr<QObject> dialog = createDialog(properties);
    QSignalSpy acceptedSpy(dialog.get(), SIGNAL(accepted(bool)));
    QSignalSpy rejectedSpy(dialog.get(), SIGNAL(rejected()));
    const MessageBoxAnswers answers(answer, true);
    QMetaObject::invokeMethod(dialog.get(), "show");

    QCOMPARE(answers.boxes().size(), 1);
    const MessageBoxAnswers::Box &box = answers.boxes().constFirst();
    QCOMPARE(box.title, "Warning");
    QCOMPARE(box.text, "Really?");
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.hasVisibleCheckBox, checkBoxVisible);
    QCOMPARE(acceptedSpy.isEmpty() ? QVariantList() : acceptedSpy.constFirst(), accepted);
    QCOMPARE(rejectedSpy.size(), rejected ? 1 : 0);
}

void DialogsTest::testWarningDialogSettersNotify()
{
    const std::unique_ptr<QObject> dialog = createDialog({});
    for (const char *property : {"text", "standardButtons", "withDoNotShowAgainCheckBox"}) {
        const QByteArray signal = '2' + QByteArray(property) + "Changed()";
        QSignalSpy changed(dialog.get(), signal.constData());
        dialog->setProperty(property, dialog->property(property));
        QCOMPARE(changed.size(), 1);
    }
    QCOMPARE(dialog->property("standardButtons").value<QMessageBox::StandardButtons>(),
             QMessageBox::Ok | QMessageBox::Cancel);
}
