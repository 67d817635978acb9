#include "gpspagedriver.h"

#include "waiting.h"

#include <QFile>
#include <QQuickItem>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

GpsPageDriver::GpsPageDriver(const WindowDriver &driver)
    : m_driver(driver)
{
    m_driver.clickButton(u"GPS Management"_s);
}

void GpsPageDriver::chooseTrack(const QString &path, bool vanishing) const
{
    auto *page = m_driver.item(u"GpsManagementPage"_s, "visible", u"true"_s);
    QObject *dialog = nullptr;
    const QObjectList children = page->findChildren<QObject *>();
    for (QObject *child : children) {
        if (child->inherits("QQuickFileDialog"))
            dialog = child;
    }
    if (!dialog)
        throw WaitingFailed("the page has no file dialog");
    // the dialog opens with this file selected
    dialog->setProperty("selectedFile", QUrl::fromLocalFile(path));
    m_driver.clickButton(u"…"_s);
    const WindowDriver dialogDriver = WindowDriver::waitForFileDialog();
    const QQuickItem *button = dialogDriver.item(u"QQuickAbstractButton"_s, "text", u"Open"_s);
    if (vanishing)
        QFile::remove(path);
    dialogDriver.click(button);
    waitFor(u"the choice of the file"_s, [&] {
        return !dialog->property("visible").toBool()
               && QUrl(shownFile()) == QUrl::fromLocalFile(path);
    });
}

void GpsPageDriver::openTrack(const QString &path, bool vanishing) const
{
    chooseTrack(path, vanishing);
    const QObject *reader = m_driver.item(u"GpsManagementPage"_s, "visible", u"true"_s)
                                ->property("trackReader")
                                .value<QObject *>();
    waitFor(u"the file to be read"_s, [&] { return !reader->property("reading").toBool(); });
}

void GpsPageDriver::type(const QString &label, const QString &text) const
{
    QQuickItem *field = m_driver.item(u"CoordinateField"_s, "label", label);
    m_driver.type(m_driver.items(u"QQuickTextField"_s, field).constFirst(), text);
}

void GpsPageDriver::clickTrackButton(const QString &name) const
{
    m_driver.click(m_driver.item(u"TrackButton"_s, "name", name));
}

void GpsPageDriver::clickRow(int row) const
{
    const QQuickItem *labelOfRow = nullptr;
    // The table creates the items of a row when it draws the row for the first time.
    waitFor(u"row %1"_s.arg(row), [&] {
        const QList<QQuickItem *> labels = m_driver.items(u"QQuickLabel"_s, table());
        const auto label = std::ranges::find_if(labels, [row](const QQuickItem *item) {
            const QVariant rowOfCell = item->parentItem()->property("row");
            return rowOfCell.isValid() && rowOfCell.toInt() == row;
        });
        labelOfRow = label == labels.cend() ? nullptr : *label;
        return labelOfRow != nullptr;
    });
    m_driver.click(labelOfRow);
}

QQuickItem *GpsPageDriver::progress() const
{
    QQuickItem *row = m_driver.item(u"TrackProgress"_s, "visible", u"true"_s);
    return m_driver.items(u"QQuickSlider"_s, row).constFirst();
}

QQuickItem *GpsPageDriver::table() const
{
    return m_driver.item(u"TrackTable"_s, "visible", u"true"_s);
}

QString GpsPageDriver::shownFile() const
{
    return m_driver.item(u"GpsManagementPage"_s, "visible", u"true"_s)
        ->property("nmeaFileUrl")
        .toString();
}
