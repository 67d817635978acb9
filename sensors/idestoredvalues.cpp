#include "storedvalues.h"

#include <coreplugin/icore.h>

#include <utils/qtcsettings.h>

namespace EmulationManagement::Internal {

QVariant storedValue(const QString &key, const QVariant &defaultValue)
{
    return Core::ICore::settings()->value(Utils::keyFromString(key), defaultValue);
}

void storeValue(const QString &key, const QVariant &value)
{
    Core::ICore::settings()->setValue(Utils::keyFromString(key), value);
}

} // namespace EmulationManagement::Internal
