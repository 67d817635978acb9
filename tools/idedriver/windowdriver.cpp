#include "windowdriver.h"

#include "waiting.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

static bool isOfClass(const QObject *object, const QString &className)
{
    for (const QMetaObject *type = object->metaObject(); type; type = type->superClass()) {
        const QLatin1StringView name(type->className());
        if (name == className || name.startsWith(QString(className + u"_QML")))
            return true;
    }
    return false;
}

static void collect(QQuickItem *item, const QString &className, QList<QQuickItem *> &found)
{
    if (!item->isVisible())
        return;
    if (isOfClass(item, className))
        found << item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collect(child, className, found);
}

static QPoint centreOf(const QQuickItem *item)
{
    // takes screen coordinates, because a dialog has its own window
    const QPointF centre = item->mapToGlobal(QPointF(item->width() / 2, item->height() / 2));
    return item->window()->mapFromGlobal(centre).toPoint();
}

/// Waits until a window that fulfils \a condition is shown and can be used.
static WindowDriver waitForShown(const QString &what,
                                 const std::function<bool(const QWindow *)> &condition)
{
    QQuickWindow *window = nullptr;
    waitFor(what, [&] {
        const QWindowList windows = QGuiApplication::allWindows();
        for (QWindow *candidate : windows) {
            if (candidate->isExposed() && condition(candidate))
                window = qobject_cast<QQuickWindow *>(candidate);
        }
        return window && window->isSceneGraphInitialized();
    });
    return WindowDriver(window);
}

WindowDriver::WindowDriver(QQuickWindow *window)
    : m_window(window)
{}

WindowDriver WindowDriver::waitForWindow(const QString &title)
{
    return waitForShown(u"the window \"%1\""_s.arg(title),
                        [&](const QWindow *window) { return window->title() == title; });
}

WindowDriver WindowDriver::waitForFileDialog()
{
    return waitForShown(u"the file dialog"_s, [](const QWindow *window) {
        return window->inherits("QQuickPopupWindow");
    });
}

QQuickWindow *WindowDriver::window() const
{
    return m_window;
}

QList<QQuickItem *> WindowDriver::items(const QString &className, QQuickItem *root) const
{
    QList<QQuickItem *> found;
    collect(root ? root : m_window->contentItem(), className, found);
    return found;
}

QQuickItem *WindowDriver::item(const QString &className, const char *property,
                               const QString &value) const
{
    QQuickItem *found = nullptr;
    waitFor(u"the %1 \"%2\""_s.arg(className, value), [&] {
        const QList<QQuickItem *> candidates = items(className);
        for (QQuickItem *candidate : candidates) {
            if (candidate->property(property).toString() == value)
                found = candidate;
        }
        return found && found->isEnabled();
    });
    return found;
}

void WindowDriver::clickButton(const QString &text) const
{
    click(item(u"QQuickAbstractButton"_s, "text", text));
}

void WindowDriver::click(const QQuickItem *item) const
{
    waitFor(u"the layout to be done"_s,
            [&] { return QRect(QPoint(), m_window->size()).contains(centreOf(item)); });
    // a real click activates the window
    m_window->requestActivate();
    waitFor(u"the window to be active"_s, [&] { return m_window->isActive(); });
    QTest::mouseClick(m_window, Qt::LeftButton, {}, centreOf(item));
}

void WindowDriver::choose(const QQuickItem *comboBox, const QString &text) const
{
    click(comboBox);
    click(item(u"QQuickAbstractButton"_s, "text", text));
}

void WindowDriver::drag(const QQuickItem *slider, double fraction) const
{
    static constexpr int steps = 8;
    const auto *handle = slider->property("handle").value<QQuickItem *>();
    const double way = slider->width() - slider->property("leftPadding").toDouble()
                       - slider->property("rightPadding").toDouble() - handle->width();
    const QPoint start = centreOf(handle);
    const double end = slider->mapToScene({}).x() + slider->property("leftPadding").toDouble()
                       + handle->width() / 2 + fraction * way;

    QTest::mousePress(m_window, Qt::LeftButton, {}, start);
    for (int step = 1; step <= steps; ++step) {
        const double x = start.x() + (end - start.x()) * step / steps;
        QTest::mouseMove(m_window, QPointF(x, start.y()).toPoint());
    }
    QTest::mouseRelease(m_window, Qt::LeftButton, {}, QPointF(end, start.y()).toPoint());
}

void WindowDriver::type(const QQuickItem *textField, const QString &text) const
{
    click(textField);
    QTest::keySequence(m_window, QKeySequence::SelectAll);
    for (const QChar character : text)
        QTest::keyClick(m_window, character.toLatin1());
    QTest::keyClick(m_window, Qt::Key_Return);
}
