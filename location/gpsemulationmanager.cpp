#include "gpsemulationmanager.h"

#include <QFileInfo>

#include <chrono>
#include <cmath>

namespace EmulationManagement::Internal {

namespace {

constexpr int coordinateDecimals = 7;
constexpr int altitudeDecimals = 2;

// Of a point of a track.
const QString latitudeKey = QStringLiteral("latitude");
const QString longitudeKey = QStringLiteral("longitude");
const QString altitudeKey = QStringLiteral("altitude");
const QString intervalKey = QStringLiteral("interval");

QString coordinateText(double degrees)
{
    return QString::number(degrees, 'f', coordinateDecimals);
}

QString altitudeText(double metres)
{
    return QString::number(metres, 'f', altitudeDecimals);
}

double numberOr(double value, double replacement)
{
    return std::isnan(value) ? replacement : value;
}

// What a point of a track lacks, or what is no number, counts as 0.
double numberOf(const QVariantMap &point, const QString &key)
{
    const auto value = point.constFind(key);
    if (value == point.cend())
        return 0;
    // the page gives texts, which a variant would convert by a detour
    const auto *text = get_if<QString>(&*value);
    return numberOr(text ? text->toDouble() : value->toDouble(), 0);
}

QString doubleArgument(const QString &value)
{
    return QStringLiteral("double:%1").arg(value);
}

QString booleanArgument(bool value)
{
    return QStringLiteral("boolean:%1").arg(value ? 1 : 0);
}

QString intArgument(int value)
{
    return QStringLiteral("int32:%1").arg(value);
}

} // namespace

GPSEmulationManager::GPSEmulationManager(QObject *parent)
    : EmulationManager(parent)
    , m_currentPosition(new PositionModel(this))
{
    connect(this, &EmulationManager::emulatorConnected, this, &GPSEmulationManager::setupGPSData);
}

QString GPSEmulationManager::bus() const
{
    return QStringLiteral("system");
}

QString GPSEmulationManager::dbusService() const
{
    return QStringLiteral("org.vexa.GeoclueEmulationManagement");
}

QString GPSEmulationManager::dbusObject() const
{
    return QStringLiteral("/org/vexa/GeoclueEmulationManagement");
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
    // The page passes "1,234.00" of its table, which is not a number: that coordinate stays.
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
    callDBusMethod(
        QStringLiteral("setPosition"),
        QStringLiteral("double:%1 double:%2 double:%3")
            .arg(coordinateText(latitude), coordinateText(longitude), altitudeText(altitude)));
    setLocalPosition(latitude, longitude, altitude);
}

void GPSEmulationManager::setLatitude(double latitude)
{
    if (std::isnan(latitude))
        return;
    callDBusMethod(QStringLiteral("setLatitude"), doubleArgument(coordinateText(latitude)));
    m_currentPosition->setLatitude(latitude);
    m_settings.saveGpsLatitude(latitude);
}

void GPSEmulationManager::setLongitude(double longitude)
{
    if (std::isnan(longitude))
        return;
    callDBusMethod(QStringLiteral("setLongitude"), doubleArgument(coordinateText(longitude)));
    m_currentPosition->setLongitude(longitude);
    m_settings.saveGpsLongitude(longitude);
}

void GPSEmulationManager::setAltitude(double altitude)
{
    if (std::isnan(altitude))
        return;
    callDBusMethod(QStringLiteral("setAltitude"), doubleArgument(altitudeText(altitude)));
    m_currentPosition->setAltitude(altitude);
    m_settings.saveGpsAltitude(altitude);
}

void GPSEmulationManager::loadTrack(const QVariantList &trackPoints)
{
    static constexpr qsizetype usualPointSize = 40; // characters
    QString arguments = QStringLiteral("array:array:double:");
    arguments.reserve(arguments.size() + trackPoints.size() * usualPointSize);
    for (qsizetype i = 0; i < trackPoints.size(); ++i) {
        const QVariantMap point = trackPoints.at(i).toMap();
        if (i > 0)
            arguments += u';';
        arguments += coordinateText(numberOf(point, latitudeKey)) + u','
                     + coordinateText(numberOf(point, longitudeKey)) + u','
                     + altitudeText(numberOf(point, altitudeKey)) + u','
                     + QString::number(numberOf(point, intervalKey));
    }
    // before the call: the loss of the link, which may show in it, takes the track away again
    m_currentPositionIndex = 0;
    m_trackLoaded = true;
    callDBusMethod(QStringLiteral("loadTrack"), arguments);
}

void GPSEmulationManager::startTrack()
{
    callDBusMethod(QStringLiteral("startTrack"), {});
}

void GPSEmulationManager::pauseTrack()
{
    callDBusMethod(QStringLiteral("pauseTrack"), {});
}

void GPSEmulationManager::stopTrack()
{
    callDBusMethod(QStringLiteral("stopTrack"), {});
    setCurrentPositionIndex(0);
}

void GPSEmulationManager::setTrackLooped(bool looped)
{
    callDBusMethod(QStringLiteral("setTrackLooped"), booleanArgument(looped));
    m_trackLooped = looped;
    Q_EMIT trackLoopedChanged();
}

void GPSEmulationManager::setTrackIntervalMode(bool useDefaultInterval)
{
    callDBusMethod(QStringLiteral("setTrackIntervalMode"), booleanArgument(useDefaultInterval));
    m_useDefaultInterval = useDefaultInterval;
    Q_EMIT defaultIntervalUsingChanged();
}

void GPSEmulationManager::setTrackSpeed(int speed)
{
    callDBusMethod(QStringLiteral("setTrackSpeed"), intArgument(speed));
    m_trackSpeed = speed;
    Q_EMIT trackSpeedChanged();
}

void GPSEmulationManager::goToPositionOnTrack(int index)
{
    callDBusMethod(QStringLiteral("goToPositionOnTrack"), intArgument(index));
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
