#pragma once

#include <extensionsystem/iplugin.h>

#include <memory>

namespace Ravik {
class HostSdk;
}

namespace Kiv::Internal {

class EmulatorMenu;

/// Owns the SDK for as long as the IDE runs.
class KivPlugin final : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QtCreatorPlugin" FILE "kiv.json")

public:
    KivPlugin();
    ~KivPlugin() override;

    void extensionsInitialized() override;
    ShutdownFlag aboutToShutdown() override;

protected:
    void initialize() override;

private:
    std::unique_ptr<Ravik::HostSdk> m_sdk;
    std::unique_ptr<EmulatorMenu> m_menu;
};

} // namespace Kiv::Internal
