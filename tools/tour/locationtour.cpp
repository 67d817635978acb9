#include "locationtour.h"

#include "gpspagedriver.h"
#include "waiting.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;

LocationTour::LocationTour(const WindowDriver &driver, JournalReader &journal,
                           std::function<void(const QString &)> takePicture)
    : m_driver(driver)
    , m_journal(journal)
    , m_takePicture(std::move(takePicture))
{}

void LocationTour::visit(const QString &track)
{
    const GpsPageDriver page(m_driver);
    setPosition(page);
    playTrack(page, track);
}

void LocationTour::setPosition(const GpsPageDriver &page)
{
    static constexpr struct
    {
        const char *field;
        const char *text;
        const char *call;
    } values[] = {
        {"Latitude", "59.9342802", "setLatitude double:59.9342802"},
        {"Longitude", "-30.5", "setLongitude double:-30.5000000"},
        {"Altitude", "12.25", "setAltitude double:12.25"},
    };
    qsizetype start = m_journal.position();
    for (const auto &[field, text, call] : values) {
        page.type(QLatin1StringView(field), QLatin1StringView(text));
        m_journal.waitForCall(QLatin1StringView(call), start);
    }
    start = m_journal.position();
    m_driver.clickButton(u"Set"_s);
    m_journal.waitForCall(u"setPosition double:59.9342802 double:-30.5000000 double:12.25"_s,
                          start);
    m_takePicture(u"gps-position"_s);
}

void LocationTour::playTrack(const GpsPageDriver &page, const QString &track)
{
    qsizetype start = m_journal.position();
    page.openTrack(track);
    waitFor(u"the track's upload"_s,
            [&] { return !m_journal.callsSince(start).filter(u"loadTrack "_s).isEmpty(); });
    m_takePicture(u"gps-track"_s);

    start = m_journal.position();
    m_driver.choose(m_driver.items(u"QQuickComboBox"_s).constFirst(), u"5x"_s);
    m_journal.waitForCall(u"setTrackSpeed int32:5"_s, start);
    m_driver.clickButton(u"Loop track"_s);
    m_journal.waitForCall(u"setTrackLooped boolean:1"_s, start);
    page.clickTrackButton(u"Play"_s);
    for (int index = 1; index <= 3; ++index)
        m_journal.waitForCall(u"goToPositionOnTrack int32:%1"_s.arg(index), start);
    m_takePicture(u"gps-playing"_s);

    start = m_journal.position();
    m_driver.drag(page.progress(), 0.5);
    const int index = page.progress()->property("value").toInt();
    m_journal.waitForCall(u"goToPositionOnTrack int32:%1"_s.arg(index), start);
    m_journal.waitForCall(u"goToPositionOnTrack int32:%1"_s.arg(index + 1), start);
    page.clickTrackButton(u"Pause"_s);
    m_journal.waitForCall(u"pauseTrack "_s, start);
    m_takePicture(u"gps-paused"_s);
    page.clickTrackButton(u"Stop"_s);
    m_journal.waitForCall(u"stopTrack "_s, start);
    m_driver.clickButton(u"Loop track"_s);
    m_journal.waitForCall(u"setTrackLooped boolean:0"_s, start);
}
