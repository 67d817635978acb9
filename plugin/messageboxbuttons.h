#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QMessageBox;
QT_END_NAMESPACE

namespace EmulationManagement::Internal {

/// Names the standard buttons in the plugin's language: Qt's own catalogues may not be installed.
void translateButtons(QMessageBox *box);

} // namespace EmulationManagement::Internal
