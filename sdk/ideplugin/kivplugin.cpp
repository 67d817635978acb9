#include "kivplugin.h"

#include "emulatormenu.h"

#include <hostsdk.h>

#include <coreplugin/icore.h>
#include <utils/filepath.h>

using namespace Qt::StringLiterals;

namespace Kiv::Internal {

KivPlugin::KivPlugin() = default;
KivPlugin::~KivPlugin() = default;

void KivPlugin::initialize()
{
    const Utils::FilePath settingsFile = Core::ICore::userResourcePath(u"nimbra-sdk.ini"_s);
    m_sdk = std::make_unique<Ravik::HostSdk>(settingsFile.toFSPathString());
    m_menu = std::make_unique<EmulatorMenu>(*m_sdk);
}

void KivPlugin::extensionsInitialized()
{
    // When the core opens, every plugin has connected to the SDK's signals.
    connect(Core::ICore::instance(), &Core::ICore::coreOpened, m_sdk.get(),
            &Ravik::HostSdk::listEmulators);
}

ExtensionSystem::IPlugin::ShutdownFlag KivPlugin::aboutToShutdown()
{
    m_sdk->shutDown();
    if (m_sdk->isShutDown())
        return SynchronousShutdown;
    connect(m_sdk.get(), &Ravik::HostSdk::shutDownFinished, this,
            &IPlugin::asynchronousShutdownFinished);
    return AsynchronousShutdown;
}

} // namespace Kiv::Internal
