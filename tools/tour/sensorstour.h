#pragma once

#include "journal.h"
#include "windowdriver.h"

#include <functional>

/*!
 * Uses every control of both pages of sensors once and checks what the emulator receives: each
 * slider is dragged, each field typed into, each entry of each list chosen, each button and box
 * clicked.
 */
class SensorsTour
{
public:
    /// \a takePicture saves one under the name that it is given.
    SensorsTour(const WindowDriver &driver, Journal &journal,
                std::function<void(const QString &)> takePicture);

    void visitManagement();
    void visitValues();
    /// Checks that both pages offer all sensors but those with these titles.
    void checkMissing(const QStringList &titles);

private:
    struct Field;
    struct Choice;

    void applyAll(bool enabled);
    void drag(const Field &field);
    void type(const Field &field);
    void choose(const Choice &choice);
    void clickProximityButtons();
    void changeMagneticField();
    void resetValues();

    const WindowDriver &m_driver;
    Journal &m_journal;
    std::function<void(const QString &)> m_takePicture;
};
