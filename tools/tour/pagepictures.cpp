#include "pagepictures.h"

#include "devicepagedriver.h"
#include "plugindriver.h"
#include "waiting.h"
#include "windowdriver.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QQuickItem>
#include <QTest>

#include <algorithm>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

/// Shows the page of the button with this index.
static void showPage(const WindowDriver &driver, qsizetype index)
{
    driver.click(driver.items(u"PageButton"_s).at(index));
}

/// Reduces a picture to its most frequent colours, which quarters the size of its file.
static QImage withPalette(const QImage &picture)
{
    static constexpr qsizetype paletteSize = 256;
    const QImage opaque = picture.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < opaque.height(); ++y) {
        for (int x = 0; x < opaque.width(); ++x)
            ++counts[opaque.pixel(x, y)];
    }
    QList<QRgb> colors = counts.keys();
    // Also sorts by colour, so that the same picture always gives the same file.
    std::ranges::sort(colors, std::greater(),
                      [&](QRgb color) { return std::pair(counts[color], color); });
    colors.resize(std::min(colors.size(), paletteSize));
    return opaque.convertToFormat(QImage::Format_Indexed8, colors,
                                  Qt::ThresholdDither | Qt::AvoidDither);
}

static void takePicture(const QString &folder, const QString &name)
{
    static constexpr int untilDrawn = 500; // milliseconds
    QTest::qWait(untilDrawn);
    const QImage picture = withPalette(PluginDriver::view()->grabWindow());
    const QString path = u"%1/%2.png"_s.arg(folder, name);
    if (!picture.save(path, nullptr, 0))
        throw WaitingFailed("the picture " + path.toStdString() + " could not be saved");
}

void takePagePictures(const QString &folder)
{
    JournalReader journal(PluginDriver::journalPath());
    PluginDriver::openWindow(journal);
    const QStringList size = qEnvironmentVariable("TOUR_SIZE").split(u'x');
    if (size.size() == 2)
        PluginDriver::view()->resize(size[0].toInt(), size[1].toInt());

    const WindowDriver driver(PluginDriver::view());
    showPage(driver, 0);
    takePicture(folder, u"sensors-management"_s);
    showPage(driver, 1);
    takePicture(folder, u"sensors-values"_s);
    showPage(driver, 2);
    DevicePageDriver(driver).drag({{0.5, 0.6}, {0.35, 0.6}, {0.35, 0.65}}); // shows a side, too
    takePicture(folder, u"orientation-management"_s);

    showPage(driver, 3);
    QQuickItem *gpsPage = driver.items(u"GpsManagementPage"_s).constFirst();
    // the page shows the path, which must be the same on every machine
    const QString track = QDir::temp().filePath(u"lake.nmea"_s);
    QFile::copy(SAMPLE_TRACK, track);
    const qsizetype start = journal.position();
    QMetaObject::invokeMethod(gpsPage, "openFile", QUrl::fromLocalFile(track));
    waitFor(u"the track's upload"_s,
            [&] { return !journal.callsSince(start).filter(u"loadTrack "_s).isEmpty(); });
    QFile::remove(track);
    takePicture(folder, u"gps-management"_s);

    showPage(driver, 4);
    QObject *camera = PluginDriver::contextObject("cameraEmulationManager");
    QMetaObject::invokeMethod(camera, "startCameraStream");
    waitFor(u"the camera's frames to be counted"_s,
            [&] { return camera->property("streamFramesPerSecond").toInt() > 0; });
    takePicture(folder, u"camera-management"_s);
    driver.click(driver.items(u"QQuickRadioButton"_s).constLast());
    takePicture(folder, u"camera-management-file"_s);
}
