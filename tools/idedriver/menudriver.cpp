#include "menudriver.h"

#include "waiting.h"

#include <coreplugin/icore.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace MenuDriver {

QMainWindow *mainWindow()
{
    return qobject_cast<QMainWindow *>(Core::ICore::mainWindow());
}

/// Clicks an entry of a menu or menu bar with the mouse and returns its action.
template<typename Menu>
static QAction *use(Menu *menu, const QString &text)
{
    QAction *action = nullptr;
    waitFor(u"the menu entry \"%1\""_s.arg(text), [&] {
        const QList<QAction *> actions = menu->actions();
        const auto found = std::ranges::find_if(actions, [&](QAction *candidate) {
            return candidate->text().remove(u'&') == text && candidate->isVisible()
                   && candidate->isEnabled();
        });
        action = found == actions.end() ? nullptr : *found;
        return action != nullptr;
    });
    // Events to the window pass through the grab of open menus, as real events do.
    QWindow *window = menu->window()->windowHandle();
    const QPoint position = menu->mapTo(menu->window(), menu->actionGeometry(action).center());
    QTest::mouseMove(window, position - QPoint(1, 1));
    QTest::mouseMove(window, position);
    QTest::mouseClick(window, Qt::LeftButton, {}, position);
    return action;
}

/// Opens the menus of \a path; returns the last one, or null when a menu does not stay open.
static QMenu *tryToOpen(const QStringList &path)
{
    static constexpr int limit = 2000; // ms
    QMenu *menu = use(mainWindow()->menuBar(), path.first())->menu();
    for (const QString &text : path.sliced(1)) {
        if (!QTest::qWaitFor([&] { return menu->isVisible(); }, limit))
            return nullptr;
        menu = use(menu, text)->menu();
    }
    return QTest::qWaitFor([&] { return menu->isVisible(); }, limit) ? menu : nullptr;
}

QMenu *open(const QStringList &path)
{
    mainWindow()->activateWindow();
    waitFor(u"the IDE's window to be active"_s, [] { return mainWindow()->isActiveWindow(); });
    QMenu *menu = nullptr;
    // Tries again: open menus close when the window manager activates another window late.
    waitFor(u"the menu \"%1\" to open"_s.arg(path.last()), [&] {
        menu = tryToOpen(path);
        while (!menu && QApplication::activePopupWidget())
            QApplication::activePopupWidget()->close();
        return menu != nullptr;
    });
    return menu;
}

void choose(QMenu *menu, const QString &text)
{
    use(menu, text);
}

} // namespace MenuDriver
