#pragma once

#include <optional>

namespace EmulationManagement::Internal {

/// A place on the earth, in degrees.
struct Place
{
    double latitude = 0;
    double longitude = 0;
};

/*!
 * Moves positions so that the first one lies at a place. Distances between them stay about the
 * same.
 *
 * The position 0, 0 stays, because it is that of an emulator whose user has set none. Moved, it
 * would tell how far the others were moved.
 */
class PositionShift
{
public:
    explicit PositionShift(const Place &place)
        : m_place(place)
    {}

    void move(double &latitude, double &longitude);
    [[nodiscard]] double movedLatitude(double latitude);
    [[nodiscard]] double movedLongitude(double longitude);

private:
    Place m_place;
    std::optional<double> m_firstLatitude;
    std::optional<double> m_firstLongitude;
};

} // namespace EmulationManagement::Internal
