#pragma once

#include <extensionsystem/iplugin.h>

/// Registers the benchmarks with the IDE, which runs those that its option -test names.
class BenchmarkPlugin final : public ExtensionSystem::IPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QtCreatorPlugin" FILE
                          "EmulationManagementBenchmarks.json")

public:
    bool initialize(const QStringList &arguments, QString *errorString) override;
};
