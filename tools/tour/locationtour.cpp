#include "locationtour.h"

#include "gpspagedriver.h"
#include "waiting.h"

#include <QQuickItem>

LocationTour::LocationTour(const WindowDriver &driver, Journal &journal,
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
        page.type(QLatin1String(field), QLatin1String(text));
        m_journal.waitForCall(QLatin1String(call), start);
    }
    start = m_journal.position();
    m_driver.clickButton(QStringLiteral("Set"));
    m_journal.waitForCall(
        QStringLiteral("setPosition double:59.9342802 double:-30.5000000 double:12.25"), start);
    m_takePicture(QStringLiteral("gps-position"));
}

void LocationTour::playTrack(const GpsPageDriver &page, const QString &track)
{
    qsizetype start = m_journal.position();
    page.openTrack(track);
    waitFor(QStringLiteral("the track's upload"), [&] {
        return !m_journal.callsSince(start).filter(QStringLiteral("loadTrack ")).isEmpty();
    });
    m_takePicture(QStringLiteral("gps-track"));

    start = m_journal.position();
    m_driver.choose(m_driver.items(QStringLiteral("QQuickComboBox")).constFirst(),
                    QStringLiteral("5x"));
    m_journal.waitForCall(QStringLiteral("setTrackSpeed int32:5"), start);
    m_driver.clickButton(QStringLiteral("Loop track"));
    m_journal.waitForCall(QStringLiteral("setTrackLooped boolean:1"), start);
    page.clickTrackButton(QStringLiteral("Play"));
    for (int index = 1; index <= 3; ++index)
        m_journal.waitForCall(QStringLiteral("goToPositionOnTrack int32:%1").arg(index), start);
    m_takePicture(QStringLiteral("gps-playing"));

    start = m_journal.position();
    m_driver.drag(page.progress(), 0.5);
    const int index = page.progress()->property("value").toInt();
    m_journal.waitForCall(QStringLiteral("goToPositionOnTrack int32:%1").arg(index), start);
    m_journal.waitForCall(QStringLiteral("goToPositionOnTrack int32:%1").arg(index + 1), start);
    page.clickTrackButton(QStringLiteral("Pause"));
    m_journal.waitForCall(QStringLiteral("pauseTrack "), start);
    m_takePicture(QStringLiteral("gps-paused"));
    page.clickTrackButton(QStringLiteral("Stop"));
    m_journal.waitForCall(QStringLiteral("stopTrack "), start);
    m_driver.clickButton(QStringLiteral("Loop track"));
    m_journal.waitForCall(QStringLiteral("setTrackLooped boolean:0"), start);
}
