#pragma once

#include "journalreader.h"

#include <QObject>
#include <QQuickView>

#include <memory>

namespace Ravik {
class Emulator;
class HostSdk;
class VirtualMachine;
} // namespace Ravik

/// Gives access to the plugin through the IDE, the SDK and the emulator.
namespace PluginDriver {

/// The tool window, shown or hidden.
QQuickView *view();
/// An object that the plugin has put into the QML context.
QObject *contextObject(const char *name);
QObject *gpsManager();
QObject *sensorsManager();
QObject *invoker();

/// The dialog of the errors that the emulator sends, a QML object.
QObject *errorDialog();
/// The GPS page and the player of its track.
QObject *gpsPage();
QObject *trackPlayer();

/// Reads the files of the drawn device; null before the device has been drawn.
QObject *deviceModelReader();

/// Creates a question as the pages do. \a properties is QML text.
std::unique_ptr<QObject> createWarningDialog(const QByteArray &properties);

/// Triggers the menu's action "Emulation Management…".
void chooseAction();

Ravik::HostSdk *sdk();
/// The emulator that the plugin serves; waits until the SDK has listed it.
Ravik::Emulator *emulator();
Ravik::VirtualMachine *machine();
/// Chooses the action and waits for the window.
void showWindow();
/// Shows the window and waits until it is connected to the emulator and has set it up.
void openWindow(JournalReader &journal);
/// Starts the machine without the plugin and waits until it can be reached.
void startMachine();
void stopMachine();
/// The folder of the emulator's files.
QString dataFolder();
/// The file of the emulator's journal, which JournalReader reads.
QString journalPath();
/// Requests a fault of the running emulator; throws WaitingFailed when it refuses.
void control(const QString &command);
/// Requests a fault without waiting for the answer: the emulator may be off or frozen.
void requestFault(const QString &command);

} // namespace PluginDriver
