#pragma once

#include "journal.h"
#include "windowdriver.h"

#include <functional>

class GpsPageDriver;

/// Sets a position, plays a track at five times its speed, goes elsewhere on it, and checks where
/// the emulator is.
class LocationTour
{
public:
    /// \a takePicture saves one under the name that it is given.
    LocationTour(const WindowDriver &driver, Journal &journal,
                 std::function<void(const QString &)> takePicture);

    /// \a track is the file of a track of at least ten points.
    void visit(const QString &track);

private:
    void setPosition(const GpsPageDriver &page);
    void playTrack(const GpsPageDriver &page, const QString &track);

    const WindowDriver &m_driver;
    Journal &m_journal;
    std::function<void(const QString &)> m_takePicture;
};
