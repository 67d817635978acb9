#pragma once

#include "journalreader.h"
#include "windowdriver.h"

#include <QPoint>
#include <QString>

#include <functional>

/*!
 * The part of the tour on the device model's page: turns and moves the device with every control,
 * key, drag and wheel, and checks the readings that the emulator receives.
 *
 * The page must be visible, with -99.999 μT along each axis of the magnetic field.
 */
class DeviceModelTour
{
public:
    using TakePicture = std::function<void(const QString &name)>;

    DeviceModelTour(const WindowDriver &driver, JournalReader &journal,
                    const TakePicture &takePicture);

    /// Throws WaitingFailed when the device or the emulator does not reach the expected state.
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
    /// The values of the visible sliders.
    [[nodiscard]] QList<double> sliderValues() const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    void waitForSliders(const QString &what, const QList<double> &values) const;
    void waitForAcceleration(int x, int y, int z, qsizetype since);

    const WindowDriver &m_driver;
    JournalReader &m_journal;
    TakePicture m_takePicture;
};
