#pragma once

#include "journalreader.h"
#include "windowdriver.h"

#include <functional>

/*!
 * The part of the tour on both pages of sensors: drags each slider, types into each field, chooses
 * each entry of each list, clicks each button and box, and checks what the emulator receives.
 */
class SensorsTour
{
public:
    /// \a takePicture saves a picture under the given name.
    SensorsTour(const WindowDriver &driver, JournalReader &journal,
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
    JournalReader &m_journal;
    std::function<void(const QString &)> m_takePicture;
};
