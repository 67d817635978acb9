#include "positionmodel.h"

namespace EmulationManagement::Internal {

double PositionModel::latitude() const
{
    return m_latitude;
}

void PositionModel::setLatitude(double latitude)
{
    m_latitude = latitude;
    Q_EMIT latitudeChanged();
}

double PositionModel::longitude() const
{
    return m_longitude;
}

void PositionModel::setLongitude(double longitude)
{
    m_longitude = longitude;
    Q_EMIT longitudeChanged();
}

double PositionModel::altitude() const
{
    return m_altitude;
}

void PositionModel::setAltitude(double altitude)
{
    m_altitude = altitude;
    Q_EMIT altitudeChanged();
}

void PositionModel::setValues(double latitude, double longitude, double altitude)
{
    setLatitude(latitude);
    setLongitude(longitude);
    setAltitude(altitude);
}

} // namespace EmulationManagement::Internal
