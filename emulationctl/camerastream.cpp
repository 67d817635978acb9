#include "camerastream.h"

#include "interruption.h"
#include "output.h"

#include <camera/cameraemulationmanager.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QTimer>

#include <cmath>

using namespace Qt::StringLiterals;

namespace EmulationCtl {

static void listCameras(CameraEmulationManager &manager, bool json)
{
    const QStringList cameras = manager.cameras();
    for (const QString &camera : cameras) {
        manager.setCameraName(camera);
        QJsonArray sizes;
        if (!json)
            print(camera);
        const QVariantList resolutions = manager.resolutions();
        for (const QVariant &entry : resolutions) {
            const QVariantMap resolution = entry.toMap();
            const QString size = resolution.value(u"string"_s).toString();
            const QStringList rates = resolution.value(u"framerates"_s).toStringList();
            sizes.append(
                QJsonObject{{u"size"_s, size}, {u"rates"_s, QJsonArray::fromStringList(rates)}});
            if (!json)
                print(u"  %1  %2"_s.arg(size, rates.join(u' ')));
        }
        if (json)
            print(QJsonObject{{u"camera"_s, camera}, {u"sizes"_s, sizes}});
    }
    if (cameras.isEmpty() && !json)
        note(u"This host has no cameras."_s);
}

// Returns an error, or an empty text.
static QString selectCamera(CameraEmulationManager &manager, const CommandLine &line)
{
    const QStringList cameras = manager.cameras();
    const QString name = line.arguments.value(1, cameras.value(0));
    if (cameras.isEmpty())
        return u"This host has no cameras."_s;
    if (!cameras.contains(name))
        return u"There is no camera \"%1\", only %2."_s.arg(name, cameras.join(u", "_s));
    manager.setCameraName(name);
    if (line.isSet(u"size"_s)) {
        QStringList sizes;
        for (const QVariant &entry : manager.resolutions())
            sizes.append(entry.toMap().value(u"string"_s).toString());
        const qsizetype index = sizes.indexOf(line.value(u"size"_s));
        if (index < 0) {
            return u"%1 has no size %2, only %3."_s.arg(name, line.value(u"size"_s),
                                                        sizes.join(u", "_s));
        }
        manager.setResolutionIndex(int(index));
    }
    if (line.isSet(u"rate"_s)) {
        const QString rate = line.value(u"rate"_s);
        if (!manager.framerates().contains(rate)) {
            return u"%1 has no rate %2 at this size, only %3."_s.arg(
                name, rate, manager.framerates().join(u", "_s));
        }
        manager.setFramerate(rate);
    }
    return {};
}

static std::optional<double> durationOf(const CommandLine &line, QString *error)
{
    if (!line.isSet(u"for"_s))
        return std::nullopt;
    static constexpr double longest = 1e6; // seconds
    bool ok = false;
    const double duration = line.value(u"for"_s).toDouble(&ok);
    if (!ok || std::isnan(duration) || duration <= 0 || duration > longest)
        *error = u"--for must be a number of seconds above 0, not %1."_s.arg(line.value(u"for"_s));
    return duration;
}

static void printRate(const CameraEmulationManager &manager, const GeneralOptions &options)
{
    const int rate = manager.streamFramesPerSecond();
    if (rate < 0)
        return;
    const QSize size = manager.streamSize();
    if (options.json) {
        print(QJsonObject{{u"framesPerSecond"_s, rate},
                          {u"width"_s, size.width()},
                          {u"height"_s, size.height()}});
    } else if (options.verbose) {
        note(u"%1 pictures a second, %2 x %3"_s.arg(rate).arg(size.width()).arg(size.height()));
    }
}

// Runs until the user or the time ends it. Returns Refused if not one picture was sent.
static int run(CameraEmulationManager &manager, const GeneralOptions &options,
               std::optional<double> duration)
{
    bool sent = false;
    QObject::connect(&manager, &CameraEmulationManager::streamMeasured, &manager, [&] {
        sent = sent || manager.streamFramesPerSecond() > 0;
        printRate(manager, options);
    });
    QTimer::singleShot(options.timeout, &manager, [&] {
        if (!sent)
            complain(u"No picture was sent for %1 s."_s.arg(double(options.timeout.count()) / 1e3));
    });
    QElapsedTimer time;
    time.start();
    const Interruption interruption;
    QObject::connect(&interruption, &Interruption::requested, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    if (duration) {
        QTimer::singleShot(std::chrono::milliseconds(std::llround(*duration * 1000)),
                           QCoreApplication::instance(), &QCoreApplication::quit);
    }
    QCoreApplication::exec();
    manager.stopStreams();
    static constexpr std::chrono::seconds measured{2}; // the longest time to the first measurement
    return sent || time.durationElapsed() < measured ? Success : Refused;
}

static std::optional<int> streamCamera(const CommandLine &line, QString *error)
{
    const QString action = line.arguments.constFirst();
    const bool isList = action == u"list"_s && line.arguments.size() == 1;
    if (!isList && action != u"start"_s) {
        *error = u"camera does not know what to do with \"%1\"."_s.arg(line.arguments.constLast());
        return std::nullopt;
    }
    CameraEmulationManager manager;
    manager.setupCameraStreamPipeline();
    if (isList) {
        listCameras(manager, line.general.json);
        return Success;
    }
    const QString mistake = selectCamera(manager, line);
    if (!mistake.isEmpty()) {
        complain(mistake);
        return WrongUse;
    }
    manager.setCameraStreamSettings();
    manager.startCameraStream();
    if (!manager.streamRunning()) {
        complain(u"A side of the pictures is longer than %1 pixels."_s.arg(
            CameraEmulationManager::maximumSideLength));
        return WrongUse;
    }
    return run(manager, line.general, std::nullopt);
}

static std::optional<int> streamVideo(const CommandLine &line, QString *error)
{
    const std::optional<double> duration = durationOf(line, error);
    if (!error->isEmpty())
        return std::nullopt;
    const QString file = line.arguments.constFirst();
    if (!QFileInfo(file).isFile()) {
        complain(u"There is no file \"%1\"."_s.arg(file));
        return WrongUse;
    }
    CameraEmulationManager manager;
    QString reason;
    QObject::connect(&manager, &CameraEmulationManager::videoFileCodecChecked, &manager,
                     [&](bool success, const QString &codec) {
                         if (!success)
                             reason = codec.isEmpty() ? u"is no VP8 or VP9 video"_s
                                                      : u"is %1, not VP8 or VP9"_s.arg(codec);
                     });
    QObject::connect(&manager, &CameraEmulationManager::streamSizeRefused, &manager, [&] {
        reason = u"has pictures with a side longer than %1 pixels"_s.arg(
            CameraEmulationManager::maximumSideLength);
    });
    manager.startVideoStream(QFileInfo(file).absoluteFilePath());
    if (!reason.isEmpty()) {
        complain(u"\"%1\" %2."_s.arg(file, reason));
        return WrongUse;
    }
    return run(manager, line.general, duration);
}

std::optional<int> streamPictures(const CommandLine &line, QString *error)
{
    return line.command == u"camera"_s ? streamCamera(line, error) : streamVideo(line, error);
}

} // namespace EmulationCtl
