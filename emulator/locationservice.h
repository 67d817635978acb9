#pragma once

#include <QDBusContext>
#include <QList>
#include <QObject>

namespace NimbraEmulator {

/// The location service on the emulator's system bus. Its slots are the methods of its D-Bus
/// interface; D-Bus refuses calls with other argument types.
///
/// It has no timer: during playback the host sends the current point several times a second.
class LocationService : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    static constexpr QLatin1StringView serviceName{"org.vexa.GeoclueEmulationManagement"};
    static constexpr QLatin1StringView objectPath{"/org/vexa/GeoclueEmulationManagement"};

    enum class Playback { Stopped, Playing, Paused };

    /// Latitude and longitude in degrees, altitude in metres.
    struct Position
    {
        double latitude = 0;
        double longitude = 0;
        double altitude = 0;
    };

    /// How a track is played.
    struct TrackOptions
    {
        bool looped = false;
        bool defaultInterval = false; ///< instead of the track's own intervals
        int speed = 1;                ///< multiple of the recorded speed
    };

    explicit LocationService(QObject *parent = nullptr);

    [[nodiscard]] const Position &position() const { return m_position; }
    /// The points: latitude, longitude, altitude and the interval before each in milliseconds.
    [[nodiscard]] const QList<QList<double>> &track() const { return m_track; }
    [[nodiscard]] qsizetype trackSize() const { return m_track.size(); }
    [[nodiscard]] int trackIndex() const { return m_trackIndex; }
    [[nodiscard]] Playback playback() const { return m_playback; }
    [[nodiscard]] const TrackOptions &trackOptions() const { return m_trackOptions; }

Q_SIGNALS:
    void changed();
    void trackChanged();

public Q_SLOTS:
    void setPosition(double latitude, double longitude, double altitude);
    void setLatitude(double latitude);
    void setLongitude(double longitude);
    void setAltitude(double altitude);

    /// A point is latitude, longitude, altitude and the interval before it in milliseconds. Fails
    /// with …Error.InvalidTrack when a point has more or fewer numbers.
    void loadTrack(const QList<QList<double>> &track);
    void startTrack();
    void pauseTrack();
    void stopTrack();
    void setTrackLooped(bool looped);
    void setTrackIntervalMode(bool defaultInterval);
    void setTrackSpeed(int speed);
    /// Fails with …Error.IndexOutOfRange for an index outside of the track.
    void goToPositionOnTrack(int index);

private:
    template<typename Value>
    void store(Value &field, const Value &value)
    {
        field = value;
        Q_EMIT changed();
    }

    Position m_position;
    QList<QList<double>> m_track;
    int m_trackIndex = 0;
    Playback m_playback = Playback::Stopped;
    TrackOptions m_trackOptions;
};

} // namespace NimbraEmulator
