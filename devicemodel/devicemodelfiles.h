#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class QSettings;

namespace EmulationManagement::Internal {

/*!
 * Reads the INI files of \a directory, one a device model.
 *
 * Returns what \a read makes of each file by the name of its device model ("device-name"). If two
 * files name the same device model, the one listed later wins. A file without a name is filed under
 * the empty name; a missing folder gives an empty map.
 */
[[nodiscard]] QMap<QString, QVariant> readDeviceModelFiles(const QString &directory,
                                                           QVariantMap (*read)(QSettings &file));

} // namespace EmulationManagement::Internal
