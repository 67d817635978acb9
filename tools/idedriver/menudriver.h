#pragma once

#include <QStringList>

class QMainWindow;
class QMenu;

namespace MenuDriver {

/// The IDE's window, which has the menu bar.
QMainWindow *mainWindow();

/// Opens the menus of \a path with the mouse, from the menu bar on, and returns the last one.
QMenu *open(const QStringList &path);

/// Clicks the entry with this text. Returns when the entry's action is done.
void choose(QMenu *menu, const QString &text);

} // namespace MenuDriver
