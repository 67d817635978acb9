#pragma once

#include <QVariant>

class QString;

/*!
 * \file
 * Where SettingsManager keeps its values. Each program links one implementation: the plugin the
 * IDE's settings (target ide_stored_values), a program without the IDE its own.
 */

namespace EmulationManagement::Internal {

[[nodiscard]] QVariant storedValue(const QString &key, const QVariant &defaultValue);
void storeValue(const QString &key, const QVariant &value);

} // namespace EmulationManagement::Internal
