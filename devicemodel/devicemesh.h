#pragma once

#include <QList>
#include <QObject>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// A part of the drawn device: triangles, each of three corners. All lists have an entry for each
/// corner.
class DeviceMesh
{
    Q_GADGET
    QML_VALUE_TYPE(deviceMesh)
    Q_PROPERTY(QList<QVector3D> positions MEMBER positions)
    Q_PROPERTY(QList<QVector3D> normals MEMBER normals)
    Q_PROPERTY(QList<QVector4D> colors MEMBER colors)
    Q_PROPERTY(QList<QVector2D> uvs MEMBER uvs)

public:
    QList<QVector3D> positions;
    QList<QVector3D> normals;
    QList<QVector4D> colors; ///< red, green, blue and opacity, from 0 to 1, linear
    QList<QVector2D> uvs;    ///< places in the texture

    /// Adds the triangles of another part.
    void append(const DeviceMesh &other)
    {
        positions += other.positions;
        normals += other.normals;
        colors += other.colors;
        uvs += other.uvs;
    }
};

} // namespace EmulationManagement::Internal
