#include "gpspagedriver.h"

#include "waiting.h"

#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QUrl>

static QQuickWindow *popupWindow()
{
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        if (window->isVisible() && window->inherits("QQuickPopupWindow"))
            return qobject_cast<QQuickWindow *>(window);
    }
    return nullptr;
}

GpsPageDriver::GpsPageDriver(const WindowDriver &driver)
    : m_driver(driver)
{
    m_driver.clickButton(QStringLiteral("GPS Management"));
}

void GpsPageDriver::openTrack(const QString &path, bool vanishing) const
{
    auto *page
        = m_driver.item(QStringLiteral("GpsManagementPage"), "visible", QStringLiteral("true"));
    QObject *dialog = nullptr;
    const QObjectList children = page->findChildren<QObject *>();
    for (QObject *child : children) {
        if (child->inherits("QQuickFileDialog"))
            dialog = child;
    }
    if (!dialog)
        throw WaitingFailed("the page has no file dialog");
    // the dialog starts with the file chosen
    dialog->setProperty("selectedFile", QUrl::fromLocalFile(path));
    m_driver.clickButton(QStringLiteral("…"));
    QQuickWindow *window = nullptr;
    waitFor(QStringLiteral("the file dialog"), [&] {
        window = popupWindow();
        return window != nullptr;
    });
    const WindowDriver dialogDriver(window);
    const QQuickItem *button
        = dialogDriver.item(QStringLiteral("QQuickAbstractButton"), "text", QStringLiteral("Open"));
    if (vanishing)
        QFile::remove(path);
    dialogDriver.click(button);
    waitFor(QStringLiteral("the file dialog to close"),
            [&] { return !dialog->property("visible").toBool(); });
}

void GpsPageDriver::type(const QString &label, const QString &text) const
{
    QQuickItem *field = m_driver.item(QStringLiteral("CoordinateField"), "label", label);
    m_driver.type(m_driver.items(QStringLiteral("QQuickTextField"), field).constFirst(), text);
}

void GpsPageDriver::clickTrackButton(const QString &name) const
{
    m_driver.click(m_driver.item(QStringLiteral("TrackButton"), "name", name));
}

void GpsPageDriver::clickRow(int row) const
{
    const QList<QQuickItem *> labels = m_driver.items(QStringLiteral("QQuickLabel"), table());
    for (const QQuickItem *label : labels) {
        const QQuickItem *cell = label->parentItem();
        if (cell->property("row").toInt() == row && cell->property("row").isValid()) {
            m_driver.click(label);
            return;
        }
    }
    throw WaitingFailed("there is no row " + std::to_string(row));
}

QQuickItem *GpsPageDriver::progress() const
{
    QQuickItem *row
        = m_driver.item(QStringLiteral("TrackProgress"), "visible", QStringLiteral("true"));
    return m_driver.items(QStringLiteral("QQuickSlider"), row).constFirst();
}

QQuickItem *GpsPageDriver::table() const
{
    return m_driver.item(QStringLiteral("TrackTable"), "visible", QStringLiteral("true"));
}

QString GpsPageDriver::shownFile() const
{
    return m_driver.item(QStringLiteral("GpsManagementPage"), "visible", QStringLiteral("true"))
        ->property("nmeaFileUrl")
        .toString();
}
