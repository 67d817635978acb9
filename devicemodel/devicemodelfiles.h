#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class QSettings;

namespace EmulationManagement::Internal {

/*!
 * Reads the INI files of \a directory, each of which describes a device model.
 *
 * Returns the result of \a read for each file, by the name of the device model ("device-name"). If
 * two files name the same device model, the one listed later wins. A file without a name has the
 * empty name. A missing folder gives an empty map.
 */
[[nodiscard]] QMap<QString, QVariant> readDeviceModelFiles(const QString &directory,
                                                           QVariantMap (*read)(QSettings &file));

} // namespace EmulationManagement::Internal
