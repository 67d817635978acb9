#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QGridLayout;
class QGroupBox;
QT_END_NAMESPACE

namespace NimbraEmulator {

class LocationService;
class SensorService;
class VideoReceiver;

/// Shows the sensors and their values, the position, the track and the camera's picture. Updates
/// at the rate of a screen, however often the services change.
class EmulatorWindow : public QWidget
{
    Q_OBJECT

public:
    /// The services and the receiver outlive the window.
    EmulatorWindow(const QString &name, const QString &deviceModel, const SensorService &sensors,
                   const LocationService &location, const VideoReceiver &video,
                   QWidget *parent = nullptr);

private:
    void addSensors(QGridLayout *layout);
    void addSensor(QGridLayout *layout, const QString &sensor, const QString &title,
                   const QList<std::pair<QString, std::function<QString()>>> &values);
    [[nodiscard]] QGroupBox *createCamera(const VideoReceiver &video);
    [[nodiscard]] QGroupBox *createPosition();
    [[nodiscard]] QGroupBox *createTrack();
    void addValue(QGroupBox *group, const QString &title, std::function<QString()> text);
    void refreshSoon();
    void refresh();

    const SensorService &m_sensors;
    const LocationService &m_location;
    QList<std::function<void()>> m_updates; // one for each shown value
    QTimer m_refreshTimer;
};

} // namespace NimbraEmulator
