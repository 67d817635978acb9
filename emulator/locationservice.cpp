#include "locationservice.h"

#include <QDBusMetaType>

#include <algorithm>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

LocationService::LocationService(QObject *parent)
    : QObject(parent)
{
    qDBusRegisterMetaType<QList<double>>();
    qDBusRegisterMetaType<QList<QList<double>>>();
}

void LocationService::setPosition(double latitude, double longitude, double altitude)
{
    store(m_position, {latitude, longitude, altitude});
}

void LocationService::setLatitude(double latitude)
{
    store(m_position.latitude, latitude);
}

void LocationService::setLongitude(double longitude)
{
    store(m_position.longitude, longitude);
}

void LocationService::setAltitude(double altitude)
{
    store(m_position.altitude, altitude);
}

void LocationService::loadTrack(const QList<QList<double>> &track)
{
    constexpr qsizetype numbersOfPoint = 4;
    const auto bad = std::ranges::find_if(
        track, [](const QList<double> &point) { return point.size() != numbersOfPoint; });
    if (bad != track.end()) {
        sendErrorReply(
            serviceName + ".Error.InvalidTrack"_L1,
            u"Point %1 of the track has not four numbers"_s.arg(std::distance(track.begin(), bad)));
        return;
    }
    m_trackIndex = 0;
    store(m_track, track);
    Q_EMIT trackChanged();
}

void LocationService::startTrack()
{
    store(m_playback, Playback::Playing);
}

void LocationService::pauseTrack()
{
    store(m_playback, Playback::Paused);
}

void LocationService::stopTrack()
{
    m_trackIndex = 0;
    store(m_playback, Playback::Stopped);
}

void LocationService::setTrackLooped(bool looped)
{
    store(m_trackOptions.looped, looped);
}

void LocationService::setTrackIntervalMode(bool defaultInterval)
{
    store(m_trackOptions.defaultInterval, defaultInterval);
}

void LocationService::setTrackSpeed(int speed)
{
    store(m_trackOptions.speed, speed);
}

void LocationService::goToPositionOnTrack(int index)
{
    if (index < 0 || index >= m_track.size()) {
        sendErrorReply(serviceName + ".Error.IndexOutOfRange"_L1,
                       u"The track of %1 points has no point %2"_s.arg(m_track.size()).arg(index));
        return;
    }
    m_trackIndex = index;
    const QList<double> &point = m_track.at(index);
    store(m_position, {point.at(0), point.at(1), point.at(2)});
}

} // namespace NimbraEmulator
