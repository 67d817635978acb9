// The command line keeps no values: it must not change those of the IDE.

#include <sensors/storedvalues.h>

namespace EmulationManagement::Internal {

QVariant storedValue(const QString & /*key*/, const QVariant &defaultValue)
{
    return defaultValue;
}

void storeValue(const QString & /*key*/, const QVariant & /*value*/)
{}

} // namespace EmulationManagement::Internal
