#include "emulatorwindow.h"

#include "camerapicture.h"
#include "locationservice.h"
#include "sensorservice.h"
#include "trackplot.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include <chrono>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static constexpr std::chrono::milliseconds refreshInterval = 33ms;
static constexpr int coordinateDecimals = 7;
static constexpr int altitudeDecimals = 2;

static QString decimal(double number, int decimals)
{
    return QLocale::c().toString(number, 'f', decimals);
}

static QString yesNo(bool yes)
{
    return yes ? EmulatorWindow::tr("yes") : EmulatorWindow::tr("no");
}

static QString playbackText(LocationService::Playback playback)
{
    switch (playback) {
    case LocationService::Playback::Stopped:
        return EmulatorWindow::tr("stopped");
    case LocationService::Playback::Playing:
        return EmulatorWindow::tr("playing");
    case LocationService::Playback::Paused:
        return EmulatorWindow::tr("paused");
    }
    return {};
}

EmulatorWindow::EmulatorWindow(const QString &name, const QString &deviceModel,
                               const SensorService &sensors, const LocationService &location,
                               const VideoReceiver &video, QWidget *parent)
    : QWidget(parent)
    , m_sensors(sensors)
    , m_location(location)
{
    setWindowTitle(u"%1 – %2"_s.arg(name, deviceModel));

    auto *sensorsLayout = new QGridLayout;
    addSensors(sensorsLayout);
    auto *deviceLayout = new QVBoxLayout;
    deviceLayout->addWidget(createCamera(video), 1);
    deviceLayout->addWidget(createPosition());
    deviceLayout->addWidget(createTrack());
    auto *layout = new QHBoxLayout(this);
    layout->addLayout(deviceLayout, 1);
    layout->addLayout(sensorsLayout, 1);

    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(refreshInterval);
    connect(&m_refreshTimer, &QTimer::timeout, this, &EmulatorWindow::refresh);
    connect(&m_sensors, &SensorService::changed, this, &EmulatorWindow::refreshSoon);
    connect(&m_location, &LocationService::changed, this, &EmulatorWindow::refreshSoon);
    refresh();
}

void EmulatorWindow::addSensors(QGridLayout *layout)
{
    const SensorReadings &readings = m_sensors.readings();
    const auto integer
        = [](const int &value) { return [&value] { return QString::number(value); }; };
    const auto real
        = [](const double &value) { return [&value] { return QString::number(value); }; };
    const auto &[ax, ay, az] = readings.accelerometer;
    const auto &[gx, gy, gz] = readings.gyroscope;
    const auto &[mx, my, mz] = readings.magnetometer;
    addSensor(layout, u"accelerometer"_s, tr("Accelerometer"),
              {{tr("X, mG"), integer(ax)}, {tr("Y, mG"), integer(ay)}, {tr("Z, mG"), integer(az)}});
    addSensor(layout, u"gyroscope"_s, tr("Gyroscope"),
              {{tr("X"), real(gx)}, {tr("Y"), real(gy)}, {tr("Z"), real(gz)}});
    addSensor(layout, u"magnetometer"_s, tr("Magnetometer"),
              {{tr("X"), real(mx)},
               {tr("Y"), real(my)},
               {tr("Z"), real(mz)},
               {tr("Calibration"), integer(readings.magnetometerCalibrationLevel)}});
    addSensor(layout, u"als"_s, tr("Ambient light"), {{tr("Lux"), integer(readings.als)}});
    addSensor(layout, u"proximity"_s, tr("Proximity"),
              {{tr("Reflectance"), integer(readings.proximity)}});
    addSensor(layout, u"tap"_s, tr("Tap"), {{tr("Direction"), integer(readings.tap)}});
    // the device derives these two from the accelerometer and the magnetometer
    addSensor(layout, u"compass"_s, tr("Compass"), {});
    addSensor(layout, u"orientation"_s, tr("Orientation"), {});
    layout->setRowStretch(layout->rowCount(), 1);
}

void EmulatorWindow::addSensor(QGridLayout *layout, const QString &sensor, const QString &title,
                               const QList<std::pair<QString, std::function<QString()>>> &values)
{
    constexpr int columns = 2;
    auto *group = new QGroupBox(title);
    new QFormLayout(group);
    addValue(group, tr("Sensor"),
             [this, sensor] { return m_sensors.sensors().value(sensor) ? tr("on") : tr("off"); });
    for (const auto &[valueTitle, text] : values)
        addValue(group, valueTitle, text);
    const int index = layout->count();
    layout->addWidget(group, index / columns, index % columns);
}

QGroupBox *EmulatorWindow::createCamera(const VideoReceiver &video)
{
    auto *group = new QGroupBox(tr("Camera"));
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(new CameraPicture(video));
    return group;
}

QGroupBox *EmulatorWindow::createPosition()
{
    auto *group = new QGroupBox(tr("Position"));
    new QFormLayout(group);
    addValue(group, tr("Latitude, °"),
             [this] { return decimal(m_location.position().latitude, coordinateDecimals); });
    addValue(group, tr("Longitude, °"),
             [this] { return decimal(m_location.position().longitude, coordinateDecimals); });
    addValue(group, tr("Altitude, m"),
             [this] { return decimal(m_location.position().altitude, altitudeDecimals); });
    return group;
}

QGroupBox *EmulatorWindow::createTrack()
{
    auto *group = new QGroupBox(tr("Track"));
    new QFormLayout(group);
    addValue(group, tr("State"), [this] { return playbackText(m_location.playback()); });
    addValue(group, tr("Point"), [this] {
        return m_location.trackSize() == 0
                   ? tr("no track")
                   : tr("%1 of %2").arg(m_location.trackIndex() + 1).arg(m_location.trackSize());
    });
    addValue(group, tr("Looped"), [this] { return yesNo(m_location.trackOptions().looped); });
    addValue(group, tr("Default interval"),
             [this] { return yesNo(m_location.trackOptions().defaultInterval); });
    addValue(group, tr("Speed"),
             [this] { return tr("× %1").arg(m_location.trackOptions().speed); });
    static_cast<QFormLayout *>(group->layout())->addRow(new TrackPlot(m_location));
    return group;
}

void EmulatorWindow::addValue(QGroupBox *group, const QString &title, std::function<QString()> text)
{
    auto *label = new QLabel;
    // Room for most values keeps the layout still while the values change.
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(u"-0.0000000000"_s));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    static_cast<QFormLayout *>(group->layout())->addRow(title, label);
    m_updates.append([label, text = std::move(text)] { label->setText(text()); });
}

void EmulatorWindow::refreshSoon()
{
    if (!m_refreshTimer.isActive())
        m_refreshTimer.start();
}

void EmulatorWindow::refresh()
{
    for (const auto &update : std::as_const(m_updates))
        update();
}

} // namespace NimbraEmulator
