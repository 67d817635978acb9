#pragma once

#include "positionmodel.h"

#include <link/emulationmanager.h>

#include <sensors/settingsmanager.h>

#include <QUrl>
#include <QVariantList>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/*!
 * Sends positions and tracks to the emulator's location service and keeps what was sent.
 *
 * Each call changes the local state as soon as it is handed on, whatever the emulator answers.
 * Values are not checked: the page bounds them. A coordinate that is not a number leaves the one
 * before as it is. Every set notifies, also when nothing changed.
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

public:
    explicit GPSEmulationManager(QObject *parent = nullptr);

    QString bus() const override;
    QString dbusService() const override;
    QString dbusObject() const override;
    QString dbusInterface() const override;
    /// Does nothing: no call of the location service returns a value.
    void processDBusMethodsReturnValues(const QStringList &values) override;

    [[nodiscard]] PositionModel *currentPosition() const;
    [[nodiscard]] bool trackLooped() const;
    [[nodiscard]] bool useDefaultInterval() const;
    /// Multiplier of the playback speed.
    [[nodiscard]] int trackSpeed() const;
    /// Index of the current track point.
    [[nodiscard]] int currentPositionIndex() const;
    Q_INVOKABLE void setCurrentPositionIndex(int index);
    /// True from the upload of a track until the next set-up.
    [[nodiscard]] bool trackLoaded() const;

    /*!
     * Brings the emulator to a known state: track stopped, options and saved position sent.
     *
     * The track is not sent again; trackLoaded() tells the page to do so.
     */
    void setupGPSData();

    /// Shows and saves a position that the emulator learns in another way.
    Q_INVOKABLE void setLocalPosition(double latitude, double longitude, double altitude);
    Q_INVOKABLE void setPosition(double latitude, double longitude, double altitude);
    Q_INVOKABLE void setLatitude(double latitude);
    Q_INVOKABLE void setLongitude(double longitude);
    Q_INVOKABLE void setAltitude(double altitude);
    /*!
     * Uploads a track in one call. Each point is a map with "latitude", "longitude", "altitude"
     * and "interval" (milliseconds since the point before), as numbers or as texts of the C
     * locale; what is missing or does not convert is sent as 0.
     */
    Q_INVOKABLE void loadTrack(const QVariantList &trackPoints);
    Q_INVOKABLE void startTrack();
    Q_INVOKABLE void pauseTrack();
    Q_INVOKABLE void stopTrack();
    Q_INVOKABLE void setTrackLooped(bool looped);
    /// Plays the track with a fixed interval instead of the recorded ones.
    Q_INVOKABLE void setTrackIntervalMode(bool useDefaultInterval);
    Q_INVOKABLE void setTrackSpeed(int speed);
    Q_INVOKABLE void goToPositionOnTrack(int index);

    /// Milliseconds of a clock that nobody sets.
    [[nodiscard]] Q_INVOKABLE static double monotonicTime();
    /// Bytes of a local file, or -1 for what is missing and for folders, pipes and devices. Reading
    /// a pipe may take for ever, reading a device never end.
    [[nodiscard]] Q_INVOKABLE static qint64 fileSize(const QUrl &url);

Q_SIGNALS:
    void trackLoopedChanged();
    void defaultIntervalUsingChanged();
    void trackSpeedChanged();
    void currentPositionIndexChanged();

private:
    PositionModel *m_currentPosition;
    SettingsManager m_settings;
    bool m_trackLooped = false;
    bool m_useDefaultInterval = false;
    int m_trackSpeed = 1;
    int m_currentPositionIndex = 0;
    bool m_trackLoaded = false;
};

} // namespace EmulationManagement::Internal
