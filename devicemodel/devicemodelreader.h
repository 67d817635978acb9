#pragma once

#include "devicemesh.h"

#include <QFutureWatcher>
#include <QImage>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/*!
 * Reads the mesh and the texture of a device model in a thread of its own, so that windows keep
 * responding.
 *
 * It keeps the device model that it read last until the next one has been read. The device is
 * moved and scaled so that it fills a ball of radius 1 around the origin, whatever unit its file
 * uses. If one of the files is of no use, both meshes are empty and problem() says why.
 */
class DeviceModelReader : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(EmulationManagement::Internal::DeviceMesh caseMesh READ caseMesh NOTIFY finished)
    Q_PROPERTY(EmulationManagement::Internal::DeviceMesh frontMesh READ frontMesh NOTIFY finished)
    Q_PROPERTY(QImage texture READ texture NOTIFY finished)
    Q_PROPERTY(Problem problem READ problem NOTIFY finished)
    Q_PROPERTY(QString problemFile READ problemFile NOTIFY finished)

public:
    enum class Problem { None, Unreadable, TooLarge, NoMesh, NoImage };
    Q_ENUM(Problem)

    /// What reading the files gave.
    struct DeviceModel
    {
        DeviceMesh caseMesh = {};  ///< the parts without texture
        DeviceMesh frontMesh = {}; ///< the parts with texture
        QImage texture = {};
        Problem problem = Problem::None;
        QString problemFile = {}; ///< the name of the file that has the problem
    };

    /// The largest file that is read, in bytes.
    static constexpr qint64 maximumFileSize = 8 << 20;
    /// The most numbers of each list of a mesh: those of some ten thousand faces.
    static constexpr qsizetype maximumNumbers = 300'000;
    /// The largest sum of the faces' areas, where the device fills a ball of radius 1. Without a
    /// graphics card, faces that cover each other many times take minutes to draw.
    static constexpr double maximumSurface = 100;
    /// The most pixels of a texture.
    static constexpr qint64 maximumPixels = 4096 * 4096;

    explicit DeviceModelReader(QObject *parent = nullptr);
    /// Waits until a reading has ended, which takes a second or two for the largest mesh.
    ~DeviceModelReader() override = default;

    [[nodiscard]] DeviceMesh caseMesh() const { return m_model.caseMesh; }
    [[nodiscard]] DeviceMesh frontMesh() const { return m_model.frontMesh; }
    [[nodiscard]] QImage texture() const { return m_model.texture; }
    [[nodiscard]] Problem problem() const { return m_model.problem; }
    [[nodiscard]] QString problemFile() const { return m_model.problemFile; }

    /*!
     * Reads local files, in place of those that are being read.
     *
     * A mesh file is JSON as three.js's JSONLoader reads it (format 3). Its faces with texture
     * coordinates are the front. A file whose name contains "default.json" has its front in
     * "default_front.json" beside it.
     */
    Q_INVOKABLE void read(const QString &meshUri, const QString &textureUri);

Q_SIGNALS:
    void finished();

private:
    void finish();

    DeviceModel m_model;
    QFutureWatcher<DeviceModel> m_watcher;
    QThreadPool m_thread;
};

} // namespace EmulationManagement::Internal
