#include "idesettings.h"

#include <extensionsystem/pluginmanager.h>

#include <utils/qtcsettings.h>

using namespace Qt::StringLiterals;

namespace TestSupport {

using ExtensionSystem::PluginManager;

IdeSettings::IdeSettings()
    : m_pluginManager(std::make_unique<PluginManager>())
{
    reopen();
}

IdeSettings::~IdeSettings() = default;

QString IdeSettings::fileName() const
{
    return m_folder.filePath(u"ide.ini"_s);
}

void IdeSettings::reopen()
{
    if (PluginManager::settings())
        PluginManager::settings()->sync();
    // the plugin manager owns the new settings and deletes the old ones
    PluginManager::setSettings(new Utils::QtcSettings(fileName(), QSettings::IniFormat));
}

} // namespace TestSupport
