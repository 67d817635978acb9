#pragma once

#include <plugin/textfielddoublevalidator.h>
#include <plugin/warningdialog.h>

#include <sensors/sensorsemulationmanager.h>

#include <QObject>
#include <QtQmlIntegration>

// Tells qmllint of the types that the plugin registers for the pages at run time.

namespace EmulationManagement::Internal {

struct WarningDialogType
{
    Q_GADGET
    QML_FOREIGN(EmulationManagement::Internal::WarningDialog)
    QML_NAMED_ELEMENT(WarningDialog)
};

struct SettingsManagerType
{
    Q_GADGET
    QML_FOREIGN(EmulationManagement::Internal::SettingsManager)
    QML_NAMED_ELEMENT(SettingsManager)
};

struct SensorsEmulationManagerType
{
    Q_GADGET
    QML_FOREIGN(EmulationManagement::Internal::SensorsEmulationManager)
    QML_NAMED_ELEMENT(SensorsEmulationManager)
};

struct TextFieldDoubleValidatorType
{
    Q_GADGET
    QML_FOREIGN(TextFieldDoubleValidator)
    QML_NAMED_ELEMENT(TextFieldDoubleValidator)
};

struct AlsModelType
{
    Q_GADGET
    QML_FOREIGN(EmulationManagement::Internal::AlsModel)
    QML_NAMED_ELEMENT(AlsModel)
    QML_UNCREATABLE("")
};

struct TapModelType
{
    Q_GADGET
    QML_FOREIGN(EmulationManagement::Internal::TapModel)
    QML_NAMED_ELEMENT(TapModel)
    QML_UNCREATABLE("")
};

} // namespace EmulationManagement::Internal
