#include "startuptest.h"

#include <plugindriver.h>

#include <coreplugin/actionmanager/actioncontainer.h>
#include <coreplugin/actionmanager/actionmanager.h>

#include <extensionsystem/pluginmanager.h>
#include <extensionsystem/pluginspec.h>

#include <utils/theme/theme.h>

#include <QMenu>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <memory>

void StartUpTest::testMetadata()
{
    const auto specs = ExtensionSystem::PluginManager::plugins();
    const auto found = std::ranges::find_if(specs, [](const ExtensionSystem::PluginSpec *spec) {
        return spec->id() == "emulationmanagement";
    });
    QVERIFY(found != specs.end());
    const ExtensionSystem::PluginSpec *spec = *found;
    QCOMPARE(spec->name(), "EmulationManagement");
    QCOMPARE(spec->version(), "16.0.0");
    QCOMPARE(spec->compatVersion(), "16.0.0");
    QCOMPARE(spec->description(), "Nimbra OS emulator management plugin");
    QCOMPARE(spec->license(), "Proprietary");
    QCOMPARE(spec->dependencies().size(), 1);
    QCOMPARE(spec->dependencies().constFirst().id, "core");
    QCOMPARE(spec->dependencies().constFirst().version, "16.0.0");
    QCOMPARE(spec->plugin()->metaObject()->className(),
             "EmulationManagement::Internal::EmulationManagementPlugin");
}

void StartUpTest::testContextProperties()
{
    const QList<std::pair<const char *, const char *>> objects = {
        {"remoteDBusInvokerService", "EmulationManagement::Internal::RemoteDBusInvokerService"},
        {"gpsEmulationManager", "EmulationManagement::Internal::GPSEmulationManager"},
        {"sensorsEmulationManager", "EmulationManagement::Internal::SensorsEmulationManager"},
        {"smartphone3DModelConfig", "EmulationManagement::Internal::Smartphone3DModelConfig"},
        {"cameraEmulationManager", "CameraEmulationManager"},
        {"emulationManagementPlugin", "EmulationManagement::Internal::EmulationManagementPlugin"},
    };
    for (const auto &[name, className] : objects) {
        const QObject *object = PluginDriver::contextObject(name);
        QVERIFY2(object, name);
        QCOMPARE(object->metaObject()->className(), className);
    }

    const QQmlContext *context = PluginDriver::view()->rootContext();
    const auto color = [](int role) {
        return Utils::creatorTheme()->color(static_cast<Utils::Theme::Color>(role));
    };
    QCOMPARE(context->contextProperty("themeBackgroundColorNormal").value<QColor>(), color(2));
    QCOMPARE(context->contextProperty("themeHighlightColor").value<QColor>(), color(59));
    QCOMPARE(context->contextProperty("themeSeparatorColor").value<QColor>(), color(13));
    QCOMPARE(context->contextProperty("darkUserInterface").typeId(), QMetaType::Bool);
    QCOMPARE(context->contextProperty("darkUserInterface").toBool(),
             Utils::creatorTheme()->flag(static_cast<Utils::Theme::Flag>(14)));
}

void StartUpTest::testWindow()
{
    const QQuickView *view = PluginDriver::view();
    QVERIFY(!view->isVisible());
    QCOMPARE(view->status(), QQuickView::Ready);
    QCOMPARE(view->resizeMode(), QQuickView::SizeRootObjectToView);
    QCOMPARE(view->size(), QSize(1100, 600));
    QCOMPARE(view->parent(), nullptr);
    QCOMPARE(qgetenv("QML_XHR_ALLOW_FILE_READ"), "1");
}

void StartUpTest::testMenu()
{
    const QMenu *tools = Core::ActionManager::actionContainer("QtCreator.Menu.Tools")->menu();
    QMenu *sdkMenu = Core::ActionManager::actionContainer("Kiv.Tools.Menu")->menu();
    QCOMPARE(tools->actions().count(sdkMenu->menuAction()), 1);
    const auto isAction = [](const QAction *action) {
        return action->text() == QStringLiteral("Emulation Management\u2026");
    };
    const QList<QAction *> actions = sdkMenu->actions();
    QCOMPARE(std::ranges::count_if(actions, isAction), 1);
}

void StartUpTest::testQmlTypes_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("error");
    QTest::newRow("WarningDialog") << "WarningDialog {}" << QString();
    QTest::newRow("SettingsManager") << "SettingsManager {}" << QString();
    QTest::newRow("TextFieldDoubleValidator") << "TextFieldDoubleValidator {}" << QString();
    QTest::newRow("AlsModel is not creatable")
        << "AlsModel {}" << "Could not create the AlsModel instance";
    QTest::newRow("TapModel is not creatable")
        << "TapModel {}" << "Could not create the TapModel instance";
    QTest::newRow("enums") << "QtObject { property int sum: AlsModel.Sunny + TapModel.Y_Neg }"
                           << QString();
}

void StartUpTest::testQmlTypes()
{
    QFETCH(QString, body);
    QFETCH(QString, error);
    QQmlComponent component(PluginDriver::view()->engine());
    component.setData("import QtQml\nimport org.plova 1.0\n" + body.toUtf8(), {});
    const std::unique_ptr<QObject> object(component.create());
    if (error.isEmpty())
        QVERIFY2(object, qPrintable(component.errorString()));
    else
        QVERIFY2(component.errorString().contains(error), qPrintable(component.errorString()));
}

void StartUpTest::testManagersFollowInvoker()
{
    QSignalSpy gpsConnected(PluginDriver::gpsManager(), SIGNAL(emulatorConnected()));
    QSignalSpy gpsReply(PluginDriver::gpsManager(), SIGNAL(replyFromEmulatorReceived(QString)));
    QSignalSpy sensorsConnected(PluginDriver::sensorsManager(), SIGNAL(emulatorConnected()));
    QSignalSpy sensorsReply(PluginDriver::sensorsManager(),
                            SIGNAL(replyFromEmulatorReceived(QString)));
    QMetaObject::invokeMethod(PluginDriver::invoker(), "webSocketConnected");
    QMetaObject::invokeMethod(PluginDriver::invoker(), "replyReceived",
                              Q_ARG(QString, QStringLiteral("x::::")));
    QCOMPARE(gpsConnected.size(), 2);
    QCOMPARE(gpsReply.size(), 2);
    QCOMPARE(sensorsConnected.size(), 1);
    QCOMPARE(sensorsReply.size(), 1);
}
