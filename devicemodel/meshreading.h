#pragma once

#include "devicemesh.h"

#include <QByteArray>
#include <QJsonObject>
#include <QObject>

namespace EmulationManagement::Internal {

/*!
 * What the script works on that reads a mesh (DeviceMeshReader.qml): gives it the model, and takes
 * its faces. It belongs to the thread that runs the script.
 */
class MeshReading : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QJsonObject model READ model CONSTANT)

public:
    explicit MeshReading(QJsonObject model);

    [[nodiscard]] QJsonObject model() const { return m_model; }

    /// Takes the faces with texture coordinates and the others, as packedFaces() of mesh-reading.js
    /// packs them.
    Q_INVOKABLE void setFaces(const QByteArray &textured, const QByteArray &plain);

    /// The meshes are empty if the model is of no use.
    [[nodiscard]] const DeviceMesh &textured() const { return m_textured; }
    [[nodiscard]] const DeviceMesh &plain() const { return m_plain; }

private:
    QJsonObject m_model;
    DeviceMesh m_textured;
    DeviceMesh m_plain;
};

} // namespace EmulationManagement::Internal
