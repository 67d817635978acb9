#pragma once

#include "journal.h"
#include "windowdriver.h"

#include <QPoint>
#include <QString>

#include <functional>

/*!
 * The tour of the device model's page: turns and moves the device with every control, key, drag and
 * wheel, and checks what the emulator's accelerometer, gyroscope and magnetometer are told.
 *
 * The page must be shown, with -99.999 μT along each axis of the magnetic field.
 */
class DeviceModelTour
{
public:
    using TakePicture = std::function<void(const QString &name)>;

    DeviceModelTour(const WindowDriver &driver, Journal &journal, const TakePicture &takePicture);

    /// Throws WaitingFailed when the device or the emulator is not where it should be.
    void run();

private:
    void pressPresets();
    void typeRotation();
    void pressArrowKeys();
    void holdControl();
    void goPastHalfTurn();
    void moveWithMouse();
    void turnSlowly();
    void leave();

    /// A point of the window, by fractions of the model's area.
    [[nodiscard]] QPoint inArea(double x, double y) const;
    /// The values of the sliders that are shown.
    [[nodiscard]] QList<double> sliderValues() const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    void waitForSliders(const QString &what, const QList<double> &values) const;
    void waitForAcceleration(int x, int y, int z, qsizetype since);

    const WindowDriver &m_driver;
    Journal &m_journal;
    TakePicture m_takePicture;
};
