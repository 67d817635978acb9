#include "pages.h"

#include "gpspagedriver.h"
#include "tourguide.h"
#include "waiting.h"

#include <QFile>
#include <QQuickItem>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

static void setPosition(TourGuide &guide, const GpsPageDriver &page)
{
    guide.begin(u"GPS Management: setting a position"_s);
    page.type(u"Latitude"_s, u"59.9342802"_s);
    guide.waitForCall(u"setLatitude double:59.9342802"_s);
    page.type(u"Longitude"_s, u"-30.5"_s);
    guide.waitForCall(u"setLongitude double:-30.5000000"_s);
    page.type(u"Altitude"_s, u"12.25"_s);
    guide.waitForCall(u"setAltitude double:12.25"_s);
    guide.window().clickButton(u"Set"_s);
    guide.waitForCall(u"setPosition double:59.9342802 double:-30.5000000 double:12.25"_s);
    guide.takePicture(u"gps-position"_s);
}

static void playTrack(TourGuide &guide, const GpsPageDriver &page)
{
    const WindowDriver &window = guide.window();
    guide.begin(u"GPS Management: playing a track, and going to its middle"_s);
    page.openTrack(SAMPLE_TRACK);
    waitFor(u"the track's upload"_s,
            [&] { return !guide.calls().filter(u"loadTrack "_s).isEmpty(); });
    window.choose(window.items(u"QQuickComboBox"_s).constFirst(), u"5x"_s);
    guide.waitForCall(u"setTrackSpeed int32:5"_s);
    window.clickButton(u"Loop track"_s);
    guide.waitForCall(u"setTrackLooped boolean:1"_s);
    page.clickTrackButton(u"Play"_s);
    guide.waitForCall(u"goToPositionOnTrack int32:2"_s);
    guide.takePicture(u"gps-playing"_s);

    window.drag(page.progress(), 0.5);
    const int index = page.progress()->property("value").toInt();
    guide.waitForCall(u"goToPositionOnTrack int32:%1"_s.arg(index));
    guide.waitForCall(u"goToPositionOnTrack int32:%1"_s.arg(index + 1));
    page.clickTrackButton(u"Pause"_s);
    guide.waitForCall(u"pauseTrack "_s);
    guide.takePicture(u"gps-paused"_s);
    page.clickTrackButton(u"Stop"_s);
    guide.waitForCall(u"stopTrack "_s);
    window.clickButton(u"Loop track"_s);
    guide.waitForCall(u"setTrackLooped boolean:0"_s);
}

static void readLongTrack(TourGuide &guide, const GpsPageDriver &page)
{
    guide.begin(u"GPS Management: reading a track of a million points, and cancelling it"_s);
    const QTemporaryDir folder;
    QFile log(folder.filePath(u"million.nmea"_s));
    if (!log.open(QIODevice::WriteOnly)
        || log.write(QByteArray("$GPWPL,6000.00,N,03000.00,E,W*5C\n").repeated(1'000'000)) < 0) {
        throw WaitingFailed("the log cannot be written");
    }
    log.close();
    page.chooseTrack(log.fileName());
    waitFor(u"the progress bar"_s, [&] {
        const QList<QQuickItem *> bars = guide.window().items(u"QQuickProgressBar"_s);
        return !bars.isEmpty() && bars.constFirst()->property("value").toDouble() > 0.1;
    });
    guide.takePicture(u"gps-reading"_s);
    guide.window().clickButton(u"Cancel"_s);
    waitFor(u"the end of the reading"_s,
            [&] { return guide.window().items(u"QQuickProgressBar"_s).isEmpty(); });
}

void visitGpsPage(TourGuide &guide)
{
    const GpsPageDriver page(guide.window());
    setPosition(guide, page);
    playTrack(guide, page);
    readLongTrack(guide, page);
}
