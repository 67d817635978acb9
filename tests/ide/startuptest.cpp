#include "startuptest.h"

#include <plugindriver.h>

#include <coreplugin/actionmanager/actioncontainer.h>
#include <coreplugin/actionmanager/actionmanager.h>

#include <utils/theme/theme.h>

#include <QMenu>
#include <QQmlContext>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

void StartUpTest::testThemeColors()
{
    const QQmlContext *context = PluginDriver::view()->rootContext();
    const auto color = [](int role) {
        return Utils::creatorTheme()->color(static_cast<Utils::Theme::Color>(role));
    };
    QCOMPARE(context->contextProperty("themeBackgroundColorNormal").value<QColor>(), color(2));
    QCOMPARE(context->contextProperty("themeHighlightColor").value<QColor>(), color(59));
    QCOMPARE(context->contextProperty("themeSeparatorColor").value<QColor>(), color(13));
    const bool isDark = Utils::creatorTheme()->flag(static_cast<Utils::Theme::Flag>(14));
    QCOMPARE(context->contextProperty("darkUserInterface"), QVariant(isDark));
}

void StartUpTest::testMenu()
{
    const QMenu *tools = Core::ActionManager::actionContainer("QtCreator.Menu.Tools")->menu();
    QMenu *sdkMenu = Core::ActionManager::actionContainer("Kiv.Tools.Menu")->menu();
    QCOMPARE(tools->actions().count(sdkMenu->menuAction()), 1);
    const auto isAction
        = [](const QAction *action) { return action->text() == u"Emulation Management\u2026"_s; };
    const QList<QAction *> actions = sdkMenu->actions();
    QCOMPARE(std::ranges::count_if(actions, isAction), 1);
}

void StartUpTest::testManagersFollowInvoker()
{
    const std::pair<QObject *, int> managers[] = {
        {PluginDriver::gpsManager(), 2},
        {PluginDriver::sensorsManager(), 1},
    };
    for (const auto &[manager, times] : managers) {
        QSignalSpy connected(manager, SIGNAL(emulatorConnected()));
        QSignalSpy reply(manager, SIGNAL(replyFromEmulatorReceived(QString)));
        QMetaObject::invokeMethod(PluginDriver::invoker(), "webSocketConnected");
        QMetaObject::invokeMethod(PluginDriver::invoker(), "replyReceived", u"x::::"_s);
        QCOMPARE(connected.size(), times);
        QCOMPARE(reply.size(), times);
    }
}
