#pragma once

#include <QVariantMap>

class QUrl;

namespace EmulationManagement::Internal {

/*!
 * Runs a script in an engine of its own, in any thread: creates the object of a QML file, which
 * does its work as soon as it is created, and removes it again.
 *
 * A script ends when it has done its work. It cannot be interrupted from another thread, because
 * that crashes inside the engine of Qt 6.8 about once in 15 runs. The file handles all errors. It
 * is a fault of the program if the file cannot be loaded.
 */
void runScript(const QUrl &file, const QVariantMap &initialProperties);

} // namespace EmulationManagement::Internal
