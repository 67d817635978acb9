#pragma once

#include "positionmodel.h"
#include "trackmodel.h"
#include "trackreader.h"

#include <link/emulationmanager.h>

#include <sensors/settingsmanager.h>

#include <QUrl>
#include <QVariantList>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/*!
 * Sends positions and tracks to the emulator's location service and keeps what was sent.
 *
 * Each call is handed to the link and changes the local state, whatever the emulator replies.
 * Latitudes and longitudes are degrees, altitudes are metres. The manager does not check ranges,
 * because the page's fields do. A coordinate that is not a number is not changed. Every setter
 * notifies, even if the value stays the same.
 */
class GPSEmulationManager : public EmulationManager
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("gpsEmulationManager is the only instance")
    Q_PROPERTY(EmulationManagement::Internal::PositionModel *currentPosition READ currentPosition
                   CONSTANT)
    Q_PROPERTY(bool trackLooped READ trackLooped NOTIFY trackLoopedChanged)
    Q_PROPERTY(bool useDefaultInterval READ useDefaultInterval NOTIFY defaultIntervalUsingChanged)
    Q_PROPERTY(int trackSpeed READ trackSpeed NOTIFY trackSpeedChanged)
    Q_PROPERTY(int currentPositionIndex READ currentPositionIndex WRITE setCurrentPositionIndex
                   NOTIFY currentPositionIndexChanged)
    Q_PROPERTY(bool trackLoaded READ trackLoaded)
    Q_PROPERTY(EmulationManagement::Internal::TrackReader *trackReader READ trackReader CONSTANT)

public:
    explicit GPSEmulationManager(QObject *parent = nullptr);

    QString bus() const override;
    QString dbusService() const override;
    QString dbusObject() const override;
    QString dbusInterface() const override;
    /// Does nothing, because no method of the location service returns a value.
    void processDBusMethodsReturnValues(const QStringList &values) override;

    [[nodiscard]] PositionModel *currentPosition() const;
    [[nodiscard]] bool trackLooped() const;
    [[nodiscard]] bool useDefaultInterval() const;
    /// The multiplier of the playback speed.
    [[nodiscard]] int trackSpeed() const;
    /// The index of the current track point.
    [[nodiscard]] int currentPositionIndex() const;
    Q_INVOKABLE void setCurrentPositionIndex(int index);
    /// True from the upload of a track until the next set-up.
    [[nodiscard]] bool trackLoaded() const;
    /// Reads the tracks that uploadTrack() sends.
    [[nodiscard]] TrackReader *trackReader();

    /*!
     * Stops the track and sends the playback options and the saved position.
     *
     * Does not send the track again. trackLoaded() tells the page to send it.
     */
    void setupGPSData();

    /// Shows and saves a position without sending it. The emulator gets it as a track point.
    Q_INVOKABLE void setLocalPosition(double latitude, double longitude, double altitude);
    Q_INVOKABLE void setPosition(double latitude, double longitude, double altitude);
    Q_INVOKABLE void setLatitude(double latitude);
    Q_INVOKABLE void setLongitude(double longitude);
    Q_INVOKABLE void setAltitude(double altitude);
    /*!
     * Uploads a track in one call. Each point is a map with "latitude", "longitude", "altitude"
     * and "interval" (milliseconds since the previous point), as numbers or as texts in the C
     * locale. A missing value, or one that is not a number, is sent as 0.
     */
    Q_INVOKABLE void loadTrack(const QVariantList &trackPoints);
    /// Does what loadTrack() does, with the request that has been made in another thread.
    Q_INVOKABLE void uploadTrack(const EmulationManagement::Internal::TrackModel *track);
    Q_INVOKABLE void startTrack();
    Q_INVOKABLE void pauseTrack();
    Q_INVOKABLE void stopTrack();
    Q_INVOKABLE void setTrackLooped(bool looped);
    /// Plays the track with a fixed interval instead of the recorded ones.
    Q_INVOKABLE void setTrackIntervalMode(bool useDefaultInterval);
    Q_INVOKABLE void setTrackSpeed(int speed);
    Q_INVOKABLE void goToPositionOnTrack(int index);

    /// Returns the milliseconds of a clock that nobody sets.
    [[nodiscard]] Q_INVOKABLE static double monotonicTime();
    /// Returns the bytes of a local file, or -1 if it does not exist or is a folder, a pipe or a
    /// device. Reading a pipe may block forever, and reading a device may never end.
    [[nodiscard]] Q_INVOKABLE static qint64 fileSize(const QUrl &url);

Q_SIGNALS:
    void trackLoopedChanged();
    void defaultIntervalUsingChanged();
    void trackSpeedChanged();
    void currentPositionIndexChanged();

private:
    void noteTrackUpload();

    PositionModel *m_currentPosition;
    TrackReader m_trackReader;
    SettingsManager m_settings;
    bool m_trackLooped = false;
    bool m_useDefaultInterval = false;
    int m_trackSpeed = 1;
    int m_currentPositionIndex = 0;
    bool m_trackLoaded = false;
};

} // namespace EmulationManagement::Internal
