#pragma once

#include <extensionsystem/iplugin.h>

/// Runs the tour once the IDE is open, and ends the IDE with the exit status of the tour.
class TourPlugin final : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QtCreatorPlugin" FILE "EmulationManagementTour.json")

public:
    void extensionsInitialized() override;
};
