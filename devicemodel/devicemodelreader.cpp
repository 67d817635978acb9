#include "devicemodelreader.h"

#include "meshreading.h"

#include <script/scriptrun.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <QtConcurrentRun>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

using Problem = DeviceModelReader::Problem;
using DeviceModel = DeviceModelReader::DeviceModel;

/// What ends a reading. It stays in the reading thread.
struct ReadingFailed
{
    Problem problem;
    QString path;
};

static QByteArray readFile(const QString &path)
{
    QFile file(path);
    // opening a pipe could block for ever
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        throw ReadingFailed{Problem::Unreadable, path};
    QByteArray content = file.read(DeviceModelReader::maximumFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        throw ReadingFailed{Problem::Unreadable, path};
    if (content.size() > DeviceModelReader::maximumFileSize)
        throw ReadingFailed{Problem::TooLarge, path};
    return content;
}

static QImage readTexture(const QString &path)
{
    static constexpr int usefulSize = 1024; // pixels; the drawing is hardly larger
    QByteArray content = readFile(path);
    QBuffer buffer(&content);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > DeviceModelReader::maximumPixels)
        throw ReadingFailed{Problem::TooLarge, path};
    QImage image = reader.read();
    if (image.isNull())
        throw ReadingFailed{Problem::NoImage, path};
    if (std::max(image.width(), image.height()) > usefulSize) {
        image = image.scaled(usefulSize, usefulSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    return image;
}

static QJsonArray numbers(const QJsonValue &value, const QString &path)
{
    const QJsonArray list = value.toArray();
    if (list.size() > DeviceModelReader::maximumNumbers)
        throw ReadingFailed{Problem::TooLarge, path};
    if (!std::ranges::all_of(list, [](const QJsonValue &number) { return number.isDouble(); }))
        throw ReadingFailed{Problem::NoMesh, path};
    return list;
}

/// What is drawn of the model in a file. The script does not get the text, because a JSON parser of
/// Qt's script engine crashes at lists with more than half a million numbers.
static QJsonObject readJson(const QString &path)
{
    const QJsonObject file = QJsonDocument::fromJson(readFile(path)).object();
    QJsonObject model;
    for (const QString &name : {u"vertices"_s, u"normals"_s, u"colors"_s, u"faces"_s})
        model.insert(name, numbers(file.value(name), path));
    model.insert(u"uvs"_s, QJsonArray{numbers(file.value("uvs"_L1).toArray().first(), path)});
    model.insert(u"scale"_s, file.value("scale"_L1).toDouble(1));
    return model;
}

static std::unique_ptr<MeshReading> readMesh(const QString &path)
{
    auto reading = std::make_unique<MeshReading>(readJson(path));
    runScript(QUrl(u"qrc:/emulationmanagement/qml/devicemodel/DeviceMeshReader.qml"_s),
              {{u"reading"_s, QVariant::fromValue(reading.get())}});
    if (reading->textured().positions.isEmpty() && reading->plain().positions.isEmpty())
        throw ReadingFailed{Problem::NoMesh, path};
    return reading;
}

/// The smallest box around a device.
struct Bounds
{
    QVector3D lowest{std::numeric_limits<float>::max(), std::numeric_limits<float>::max(),
                     std::numeric_limits<float>::max()};
    QVector3D highest = -lowest;

    void add(const DeviceMesh &mesh)
    {
        for (const QVector3D &position : mesh.positions) {
            for (int axis = 0; axis < 3; ++axis) {
                lowest[axis] = std::min(lowest[axis], position[axis]);
                highest[axis] = std::max(highest[axis], position[axis]);
            }
        }
    }
};

static double largestDistance(const DeviceMesh &mesh, const QVector3D &centre)
{
    double largest = 0;
    for (const QVector3D &position : mesh.positions) {
        const QVector3D offset = position - centre;
        largest = std::max(largest,
                           std::hypot(double(offset.x()), double(offset.y()), double(offset.z())));
    }
    return largest;
}

/// Moves and scales the device into the ball of radius 1. Returns false if it has no size.
static bool normalize(DeviceModel &model)
{
    Bounds bounds;
    bounds.add(model.caseMesh);
    bounds.add(model.frontMesh);
    const QVector3D centre = bounds.lowest / 2 + bounds.highest / 2;
    const double radius = std::max(largestDistance(model.caseMesh, centre),
                                   largestDistance(model.frontMesh, centre));
    if (!(radius > std::numeric_limits<float>::min()))
        return false;
    for (DeviceMesh *mesh : {&model.caseMesh, &model.frontMesh}) {
        for (QVector3D &position : mesh->positions)
            position = (position - centre) / float(radius);
    }
    return true;
}

static bool isFinite(const DeviceMesh &mesh)
{
    static constexpr float limit = 1e18F; // squares of larger numbers overflow
    const auto isFiniteVector
        = [](const auto &vector) { return QVector4D(vector).lengthSquared() < limit * limit; };
    return std::ranges::all_of(mesh.positions, isFiniteVector)
           && std::ranges::all_of(mesh.normals, isFiniteVector)
           && std::ranges::all_of(mesh.colors, isFiniteVector)
           && std::ranges::all_of(mesh.uvs, isFiniteVector);
}

static double surface(const DeviceMesh &mesh)
{
    double sum = 0;
    for (qsizetype i = 0; i < mesh.positions.size(); i += 3) {
        const QVector3D corner = mesh.positions.at(i);
        sum += QVector3D::crossProduct(mesh.positions.at(i + 1) - corner,
                                       mesh.positions.at(i + 2) - corner)
                   .length()
               / 2;
    }
    return sum;
}

static DeviceModel readModel(const QString &meshPath, const QString &texturePath)
{
    DeviceModel model;
    model.texture = readTexture(texturePath);
    const std::unique_ptr<MeshReading> mesh = readMesh(meshPath);
    model.caseMesh = mesh->plain();
    const QFileInfo meshFile(meshPath);
    if (meshFile.fileName().contains("default.json"_L1)) {
        const std::unique_ptr<MeshReading> front
            = readMesh(meshFile.dir().filePath(u"default_front.json"_s));
        model.caseMesh.append(mesh->textured());
        model.caseMesh.append(front->plain());
        model.frontMesh = front->textured();
    } else {
        model.frontMesh = mesh->textured();
    }
    if (!isFinite(model.caseMesh) || !isFinite(model.frontMesh) || !normalize(model))
        throw ReadingFailed{Problem::NoMesh, meshPath};
    if (surface(model.caseMesh) + surface(model.frontMesh) > DeviceModelReader::maximumSurface)
        throw ReadingFailed{Problem::TooLarge, meshPath};
    return model;
}

static DeviceModel readDeviceModel(const QString &meshPath, const QString &texturePath)
{
    try {
        return readModel(meshPath, texturePath);
    } catch (const ReadingFailed &failed) {
        return {.problem = failed.problem, .problemFile = QFileInfo(failed.path).fileName()};
    }
}

DeviceModelReader::DeviceModelReader(QObject *parent)
    : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &DeviceModelReader::finish);
}

void DeviceModelReader::read(const QString &meshUri, const QString &textureUri)
{
    m_watcher.future().cancel(); // does nothing if it has begun
    m_watcher.setFuture(QtConcurrent::run(&m_thread, &readDeviceModel, QUrl(meshUri).toLocalFile(),
                                          QUrl(textureUri).toLocalFile()));
}

void DeviceModelReader::finish()
{
    QFuture<DeviceModel> future = m_watcher.future();
    if (!future.isValid() || future.resultCount() == 0)
        return;
    m_model = future.takeResult();
    Q_EMIT finished();
}

} // namespace EmulationManagement::Internal
