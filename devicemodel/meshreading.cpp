#include "meshreading.h"

#include <cmath>
#include <cstring>
#include <utility>

namespace EmulationManagement::Internal {

/// A corner as packedFaces() of mesh-reading.js packs it.
struct PackedCorner
{
    float position[3];
    float normal[3];
    float color[3];
    float uv[2];
};

/// Colours in files are for screens, those of a mesh are amounts of light.
static float linear(float part)
{
    return std::pow(part, 2.2F);
}

static DeviceMesh unpacked(const QByteArray &packedFaces)
{
    const qsizetype count = packedFaces.size() / qsizetype(sizeof(PackedCorner));
    DeviceMesh mesh;
    mesh.positions.reserve(count);
    mesh.normals.reserve(count);
    mesh.colors.reserve(count);
    mesh.uvs.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        PackedCorner corner; // the bytes need not be aligned
        std::memcpy(&corner, packedFaces.constData() + i * qsizetype(sizeof(corner)),
                    sizeof(corner));
        const auto &[position, normal, color, uv] = corner;
        mesh.positions.emplace_back(position[0], position[1], position[2]);
        mesh.normals.emplace_back(normal[0], normal[1], normal[2]);
        mesh.colors.emplace_back(linear(color[0]), linear(color[1]), linear(color[2]), 1.F);
        mesh.uvs.emplace_back(uv[0], uv[1]);
    }
    return mesh;
}

MeshReading::MeshReading(QJsonObject model)
    : m_model(std::move(model))
{}

void MeshReading::setFaces(const QByteArray &textured, const QByteArray &plain)
{
    m_textured = unpacked(textured);
    m_plain = unpacked(plain);
}

} // namespace EmulationManagement::Internal
