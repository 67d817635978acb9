#include "gpsemulationmanager.h"

#include "trackargument.h"

#include <link/argumentencoding.h>

#include <QFileInfo>

#include <chrono>
#include <cmath>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

static constexpr int coordinateDecimals = TrackArgument::coordinateDecimals;
static constexpr int altitudeDecimals = TrackArgument::altitudeDecimals;

static const QString loadTrackMethod = u"loadTrack"_s;

// The keys of a track point.
const QString latitudeKey = u"latitude"_s;
const QString longitudeKey = u"longitude"_s;
const QString altitudeKey = u"altitude"_s;
const QString intervalKey = u"interval"_s;

static double numberOr(double value, double replacement)
{
    return std::isnan(value) ? replacement : value;
}

// Returns 0 if the point has no such key or its value is not a number.
static double numberOf(const QVariantMap &point, const QString &key)
{
    const auto value = point.constFind(key);
    if (value == point.cend())
        return 0;
    // Most values are texts, which QVariant::toDouble() converts more slowly.
    const auto *text = get_if<QString>(&*value);
    return numberOr(text ? text->toDouble() : value->toDouble(), 0);
}

GPSEmulationManager::GPSEmulationManager(QObject *parent)
    : EmulationManager(parent)
    , m_currentPosition(new PositionModel(this))
    , m_trackReader(request(loadTrackMethod, {}))
{
    connect(this, &EmulationManager::emulatorConnected, this, &GPSEmulationManager::setupGPSData);
}

QString GPSEmulationManager::bus() const
{
    return u"system"_s;
}

QString GPSEmulationManager::dbusService() const
{
    return u"org.vexa.GeoclueEmulationManagement"_s;
}

QString GPSEmulationManager::dbusObject() const
{
    return u"/org/vexa/GeoclueEmulationManagement"_s;
}

QString GPSEmulationManager::dbusInterface() const
{
    return dbusService();
}

void GPSEmulationManager::processDBusMethodsReturnValues(const QStringList &values)
{
    Q_UNUSED(values)
}

PositionModel *GPSEmulationManager::currentPosition() const
{
    return m_currentPosition;
}

bool GPSEmulationManager::trackLooped() const
{
    return m_trackLooped;
}

bool GPSEmulationManager::useDefaultInterval() const
{
    return m_useDefaultInterval;
}

int GPSEmulationManager::trackSpeed() const
{
    return m_trackSpeed;
}

int GPSEmulationManager::currentPositionIndex() const
{
    return m_currentPositionIndex;
}

void GPSEmulationManager::setCurrentPositionIndex(int index)
{
    m_currentPositionIndex = index;
    Q_EMIT currentPositionIndexChanged();
}

bool GPSEmulationManager::trackLoaded() const
{
    return m_trackLoaded;
}

TrackReader *GPSEmulationManager::trackReader()
{
    return &m_trackReader;
}

void GPSEmulationManager::setupGPSData()
{
    stopTrack();
    m_trackLoaded = false;
    setTrackLooped(m_trackLooped);
    setTrackIntervalMode(m_useDefaultInterval);
    setTrackSpeed(m_trackSpeed);
    setPosition(m_settings.readGpsLatitude(), m_settings.readGpsLongitude(),
                m_settings.readGpsAltitude());
}

void GPSEmulationManager::setLocalPosition(double latitude, double longitude, double altitude)
{
    // The page converts the texts of its table, of which "1,234.00" is not a number. The coordinate
    // then keeps its value.
    m_currentPosition->setValues(numberOr(latitude, m_currentPosition->latitude()),
                                 numberOr(longitude, m_currentPosition->longitude()),
                                 numberOr(altitude, m_currentPosition->altitude()));
    m_settings.saveGpsValues(m_currentPosition->latitude(), m_currentPosition->longitude(),
                             m_currentPosition->altitude());
}

void GPSEmulationManager::setPosition(double latitude, double longitude, double altitude)
{
    latitude = numberOr(latitude, m_currentPosition->latitude());
    longitude = numberOr(longitude, m_currentPosition->longitude());
    altitude = numberOr(altitude, m_currentPosition->altitude());
    callDBusMethod(u"setPosition"_s, joinArguments({doubleArgument(latitude, coordinateDecimals),
                                                    doubleArgument(longitude, coordinateDecimals),
                                                    doubleArgument(altitude, altitudeDecimals)}));
    setLocalPosition(latitude, longitude, altitude);
}

void GPSEmulationManager::setLatitude(double latitude)
{
    if (std::isnan(latitude))
        return;
    callDBusMethod(u"setLatitude"_s, doubleArgument(latitude, coordinateDecimals));
    m_currentPosition->setLatitude(latitude);
    m_settings.saveGpsLatitude(latitude);
}

void GPSEmulationManager::setLongitude(double longitude)
{
    if (std::isnan(longitude))
        return;
    callDBusMethod(u"setLongitude"_s, doubleArgument(longitude, coordinateDecimals));
    m_currentPosition->setLongitude(longitude);
    m_settings.saveGpsLongitude(longitude);
}

void GPSEmulationManager::setAltitude(double altitude)
{
    if (std::isnan(altitude))
        return;
    callDBusMethod(u"setAltitude"_s, doubleArgument(altitude, altitudeDecimals));
    m_currentPosition->setAltitude(altitude);
    m_settings.saveGpsAltitude(altitude);
}

void GPSEmulationManager::loadTrack(const QVariantList &trackPoints)
{
    TrackArgument argument({}, trackPoints.size());
    for (const QVariant &trackPoint : trackPoints) {
        const QVariantMap point = trackPoint.toMap();
        argument.append(numberOf(point, latitudeKey), numberOf(point, longitudeKey),
                        numberOf(point, altitudeKey), numberOf(point, intervalKey));
    }
    noteTrackUpload();
    callDBusMethod(loadTrackMethod, argument.toString());
}

void GPSEmulationManager::uploadTrack(const TrackModel *track)
{
    noteTrackUpload();
    sendRequest(track->track().uploadRequest);
}

// Comes before the call, because the call may notice that the link is lost, which resets both.
void GPSEmulationManager::noteTrackUpload()
{
    m_currentPositionIndex = 0;
    m_trackLoaded = true;
}

void GPSEmulationManager::startTrack()
{
    callDBusMethod(u"startTrack"_s, {});
}

void GPSEmulationManager::pauseTrack()
{
    callDBusMethod(u"pauseTrack"_s, {});
}

void GPSEmulationManager::stopTrack()
{
    callDBusMethod(u"stopTrack"_s, {});
    setCurrentPositionIndex(0);
}

void GPSEmulationManager::setTrackLooped(bool looped)
{
    callDBusMethod(u"setTrackLooped"_s, booleanArgument(looped));
    m_trackLooped = looped;
    Q_EMIT trackLoopedChanged();
}

void GPSEmulationManager::setTrackIntervalMode(bool useDefaultInterval)
{
    callDBusMethod(u"setTrackIntervalMode"_s, booleanArgument(useDefaultInterval));
    m_useDefaultInterval = useDefaultInterval;
    Q_EMIT defaultIntervalUsingChanged();
}

void GPSEmulationManager::setTrackSpeed(int speed)
{
    callDBusMethod(u"setTrackSpeed"_s, int32Argument(speed));
    m_trackSpeed = speed;
    Q_EMIT trackSpeedChanged();
}

void GPSEmulationManager::goToPositionOnTrack(int index)
{
    callDBusMethod(u"goToPositionOnTrack"_s, int32Argument(index));
    setCurrentPositionIndex(index);
}

double GPSEmulationManager::monotonicTime()
{
    using Milliseconds = std::chrono::duration<double, std::milli>;
    return Milliseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

qint64 GPSEmulationManager::fileSize(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    return file.isFile() ? file.size() : -1;
}

} // namespace EmulationManagement::Internal
