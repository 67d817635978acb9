#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace ExtensionSystem {
class PluginManager;
}

namespace TestSupport {

/// Provides the IDE's settings, in a temporary file, to a program that is not the IDE.
class IdeSettings
{
public:
    IdeSettings();
    ~IdeSettings();

    [[nodiscard]] QString fileName() const;
    /// Writes the settings to their file and reads them back, as a restart of the IDE does.
    void reopen();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ExtensionSystem::PluginManager> m_pluginManager;
};

} // namespace TestSupport
