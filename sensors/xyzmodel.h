#pragma once

#include "sensormodel.h"

#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Holds a reading along the device's three axes.
template<typename T>
class XYZModel : public SensorModel
{
public:
    XYZModel(T x, T y, T z, QObject *parent = nullptr)
        : SensorModel(parent)
        , m_x(x)
        , m_y(y)
        , m_z(z)
    {}

    [[nodiscard]] T x() const { return m_x; }
    [[nodiscard]] T y() const { return m_y; }
    [[nodiscard]] T z() const { return m_z; }

    virtual void setX(T x) = 0;
    virtual void setY(T y) = 0;
    virtual void setZ(T z) = 0;

    /// Sets the three values in the order x, y, z, each with its notification.
    void setValues(T x, T y, T z)
    {
        setX(x);
        setY(y);
        setZ(z);
    }

protected:
    T m_x;
    T m_y;
    T m_z;
};

/// A reading in integers.
class IntXYZModel : public XYZModel<int>
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int x READ x WRITE setX NOTIFY xChanged)
    Q_PROPERTY(int y READ y WRITE setY NOTIFY yChanged)
    Q_PROPERTY(int z READ z WRITE setZ NOTIFY zChanged)

public:
    using XYZModel::XYZModel;

    void setX(int x) override;
    void setY(int y) override;
    void setZ(int z) override;

Q_SIGNALS:
    void xChanged();
    void yChanged();
    void zChanged();
};

/// A reading in real numbers.
class DoubleXYZModel : public XYZModel<double>
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(double x READ x WRITE setX NOTIFY xChanged)
    Q_PROPERTY(double y READ y WRITE setY NOTIFY yChanged)
    Q_PROPERTY(double z READ z WRITE setZ NOTIFY zChanged)

public:
    using XYZModel::XYZModel;

    void setX(double x) override;
    void setY(double y) override;
    void setZ(double z) override;

Q_SIGNALS:
    void xChanged();
    void yChanged();
    void zChanged();
};

} // namespace EmulationManagement::Internal
