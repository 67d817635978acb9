#include "plugindriver.h"

#include "waiting.h"

#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>

#include <hostsdk.h>

#include <ravik/emulator.h>
#include <ravik/virtualmachine.h>

#include <QAction>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlListReference>
#include <QQuickItem>
#include <QSignalSpy>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace PluginDriver {

QQuickView *view()
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        auto *candidate = qobject_cast<QQuickView *>(window);
        if (candidate && candidate->source().path().endsWith(u"EmulationManagementView.qml"))
            return candidate;
    }
    qFatal("The plugin has no window");
}

QObject *contextObject(const char *name)
{
    return view()->rootContext()->contextProperty(QLatin1StringView(name)).value<QObject *>();
}

QObject *gpsManager()
{
    return contextObject("gpsEmulationManager");
}

QObject *sensorsManager()
{
    return contextObject("sensorsEmulationManager");
}

QObject *invoker()
{
    return contextObject("remoteDBusInvokerService");
}

QObject *errorDialog()
{
    return view()->rootObject()->property("errorDialog").value<QObject *>();
}

QObject *gpsPage()
{
    static constexpr qsizetype index = 3;
    return QQmlListReference(view()->rootObject(), "pagesIds").at(index);
}

QObject *trackPlayer()
{
    const QObjectList children = gpsPage()->findChildren<QObject *>();
    const auto player = std::ranges::find_if(children, [](const QObject *child) {
        return QByteArrayView(child->metaObject()->className()).startsWith("TrackPlayer_QML");
    });
    if (player == children.end())
        qFatal("The GPS page has no player");
    return *player;
}

QObject *deviceModelReader()
{
    const QObjectList children = view()->rootObject()->findChildren<QObject *>();
    for (QObject *child : children) {
        if (child->inherits("EmulationManagement::Internal::DeviceModelReader"))
            return child;
    }
    return nullptr;
}

std::unique_ptr<QObject> createWarningDialog(const QByteArray &properties)
{
    QQmlComponent component(view()->engine());
    component.setData(
        "import QtQuick.Dialogs\nimport org.plova 1.0\nWarningDialog {" + properties + "}", {});
    std::unique_ptr<QObject> dialog(component.create());
    if (!dialog)
        qFatal("%s", qPrintable(component.errorString()));
    return dialog;
}

void chooseAction()
{
    Core::ActionManager::command("EmulationManagement.ShowEmulationManagementView.Action")
        ->action()
        ->trigger();
}

Ravik::HostSdk *sdk()
{
    return qobject_cast<Ravik::HostSdk *>(Ravik::Sdk::instance());
}

Ravik::Emulator *emulator()
{
    waitFor(u"an emulator"_s, [] { return !sdk()->emulators().isEmpty(); });
    return sdk()->emulators().constFirst();
}

Ravik::VirtualMachine *machine()
{
    return emulator()->virtualMachine();
}

void showWindow()
{
    chooseAction();
    waitFor(u"the window"_s, [] { return view()->isVisible(); });
}

void openWindow(JournalReader &journal)
{
    // Showing the window opens the link again, even when it is open already.
    QSignalSpy connected(invoker(), SIGNAL(webSocketConnected()));
    qsizetype connectedBefore = -1;
    qsizetype start = 0;
    QObject context;
    QObject::connect(view(), &QWindow::visibleChanged, &context, [&] {
        connectedBefore = connected.size();
        start = journal.position();
    });
    chooseAction();
    waitFor(u"the window and the link"_s,
            [&] { return connectedBefore >= 0 && connected.size() > connectedBefore; });
    // The GPS manager sends its settings twice, before and after those of the sensors.
    waitFor(u"the emulator to be set up"_s,
            [&] { return journal.callsSince(start).filter(u"setPosition "_s).size() == 2; });
}

void startMachine()
{
    machine()->connectTo({}, machine(), [](bool) {});
    waitFor(u"the machine to be reachable"_s,
            [] { return machine()->state() == Ravik::VirtualMachine::Connected; });
}

void stopMachine()
{
    machine()->shutDown();
    waitFor(u"the machine to end"_s, [] { return machine()->isOff(nullptr, nullptr); });
}

QString dataFolder()
{
    emulator(); // waits for it
    return sdk()->dataFolder(0);
}

QString journalPath()
{
    return dataFolder() + u"/journal.jsonl";
}

void control(const QString &command)
{
    QLocalSocket socket;
    socket.connectToServer(dataFolder() + u"/control");
    socket.write(command.toUtf8() + '\n');
    waitFor(u"the answer to \"%1\""_s.arg(command), [&] {
        return socket.canReadLine() || socket.state() == QLocalSocket::UnconnectedState;
    });
    const QByteArray answer = socket.readLine().trimmed();
    if (answer != "ok" && command != u"kill")
        throw WaitingFailed(command.toStdString() + ": " + answer.toStdString());
}

void requestFault(const QString &command)
{
    auto *socket = new QLocalSocket(sdk());
    QObject::connect(socket, &QLocalSocket::errorOccurred, socket, &QObject::deleteLater);
    QObject::connect(socket, &QLocalSocket::readyRead, socket, &QObject::deleteLater);
    QObject::connect(socket, &QLocalSocket::connected, socket,
                     [socket, command] { socket->write(command.toUtf8() + '\n'); });
    socket->connectToServer(dataFolder() + u"/control");
}

} // namespace PluginDriver
