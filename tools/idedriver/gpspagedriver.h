#pragma once

#include "windowdriver.h"

/// Uses the controls of the page "GPS Management".
class GpsPageDriver
{
public:
    /// Shows the page.
    explicit GpsPageDriver(const WindowDriver &driver);

    /// Chooses a file in the page's dialog. \a vanishing deletes it before the page reads it.
    void chooseTrack(const QString &path, bool vanishing = false) const;
    /// Chooses a file and waits until the page has read it.
    void openTrack(const QString &path, bool vanishing = false) const;
    /// Types into the field with this label and presses Enter.
    void type(const QString &label, const QString &text) const;
    /// Clicks "Play", "Pause" or "Stop" once it is enabled.
    void clickTrackButton(const QString &name) const;
    void clickRow(int row) const;

    [[nodiscard]] QQuickItem *progress() const;
    [[nodiscard]] QQuickItem *table() const;
    [[nodiscard]] QString shownFile() const;

private:
    WindowDriver m_driver;
};
