#pragma once

#include <QString>

/// Uses the output pane "Emulation".
namespace OutputPaneDriver {

void show();

/// Clicks the button with this text. Throws WaitingFailed if there is none.
void click(const QString &text);

/// Answers the file dialog that the last click has opened. Throws WaitingFailed if there is none.
void chooseFile(const QString &path);

} // namespace OutputPaneDriver
