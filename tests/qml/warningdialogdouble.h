#pragma once

#include <plugin/warningdialog.h>

namespace EmulationManagement::Internal {

/// Takes the answer from the host: the real dialog needs the IDE's main window.
class WarningDialogDouble : public WarningDialog
{
    Q_OBJECT
    QML_NAMED_ELEMENT(WarningDialog)

public:
    using WarningDialog::WarningDialog;

    Q_INVOKABLE void show();
};

} // namespace EmulationManagement::Internal
