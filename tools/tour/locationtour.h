#pragma once

#include "journalreader.h"
#include "windowdriver.h"

#include <functional>

class GpsPageDriver;

/// The part of the tour on the GPS page: sets a position, plays a track at five times its speed,
/// goes to another point, and checks the emulator's position.
class LocationTour
{
public:
    /// \a takePicture saves a picture under the given name.
    LocationTour(const WindowDriver &driver, JournalReader &journal,
                 std::function<void(const QString &)> takePicture);

    /// \a track is the file of a track of at least ten points.
    void visit(const QString &track);

private:
    void setPosition(const GpsPageDriver &page);
    void playTrack(const GpsPageDriver &page, const QString &track);

    const WindowDriver &m_driver;
    JournalReader &m_journal;
    std::function<void(const QString &)> m_takePicture;
};
