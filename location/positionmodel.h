#pragma once

#include <QObject>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/*!
 * Holds a position: latitude and longitude in degrees (north and east positive), and altitude in
 * metres.
 *
 * Setters always notify, even if the value stays the same.
 */
class PositionModel : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(double latitude READ latitude WRITE setLatitude NOTIFY latitudeChanged)
    Q_PROPERTY(double longitude READ longitude WRITE setLongitude NOTIFY longitudeChanged)
    Q_PROPERTY(double altitude READ altitude WRITE setAltitude NOTIFY altitudeChanged)

public:
    using QObject::QObject;

    [[nodiscard]] double latitude() const;
    void setLatitude(double latitude);

    [[nodiscard]] double longitude() const;
    void setLongitude(double longitude);

    [[nodiscard]] double altitude() const;
    void setAltitude(double altitude);

    Q_INVOKABLE void setValues(double latitude, double longitude, double altitude);

Q_SIGNALS:
    void latitudeChanged();
    void longitudeChanged();
    void altitudeChanged();

private:
    double m_latitude = 0.0;
    double m_longitude = 0.0;
    double m_altitude = 0.0;
};

} // namespace EmulationManagement::Internal
