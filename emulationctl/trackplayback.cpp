#include "trackplayback.h"

#include "interruption.h"
#include "output.h"
#include "recordingcommands.h"

#include <location/gpsemulationmanager.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryFile>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

namespace EmulationCtl {

// As the GPS page has them.
static constexpr qint64 maximumFileSize = 300'000'000; // bytes
static constexpr int maximumPoints = 1'400'000;

struct PlaybackOptions
{
    int speed = 1;
    std::optional<int> interval; // milliseconds
    std::optional<Place> place = {};
    bool looped = false;
    bool untilEnd = false;
};

static std::optional<PlaybackOptions> readOptions(const CommandLine &line, QString *error)
{
    PlaybackOptions options{
        .interval = {}, .looped = line.isSet(u"loop"_s), .untilEnd = line.isSet(u"until-end"_s)};
    bool ok = true;
    if (line.isSet(u"speed"_s)) {
        const MethodArgument &speed = findMethod(locationService, u"setTrackSpeed")->arguments[0];
        options.speed = line.value(u"speed"_s).toInt(&ok);
        ok = ok && options.speed >= speed.minimum && options.speed <= speed.maximum;
        if (!ok)
            *error = u"--speed must be 1 to 5, not %1."_s.arg(line.value(u"speed"_s));
    }
    if (ok && line.isSet(u"interval"_s)) {
        options.interval = line.value(u"interval"_s).toInt(&ok);
        ok = ok && *options.interval > 0;
        if (!ok)
            *error = u"--interval must be a whole number of milliseconds above 0, not %1."_s.arg(
                line.value(u"interval"_s));
    }
    if (ok && line.isSet(u"move-to"_s)) {
        options.place = parsePlace(line.value(u"move-to"_s));
        ok = options.place.has_value();
        if (!ok)
            *error = placeError(line.value(u"move-to"_s));
    }
    if (ok && options.looped && options.untilEnd) {
        ok = false;
        *error = u"--loop and --until-end exclude each other."_s;
    }
    return ok ? std::optional(options) : std::nullopt;
}

/// Copies standard input or a pipe to a file, because tracks are read from files.
static bool copyPipe(const QString &path, QTemporaryFile &file)
{
    static constexpr qint64 pieceSize = 1 << 20; // bytes
    QFile input(path);
    if (!file.open()
        || !(path == u"-"_s ? input.open(stdin, QIODevice::ReadOnly)
                            : input.open(QIODevice::ReadOnly)))
        return false;
    for (QByteArray piece = input.read(pieceSize); !piece.isEmpty();
         piece = input.read(pieceSize)) {
        if (file.size() > maximumFileSize || file.write(piece) != piece.size())
            return false;
    }
    return file.flush();
}

/// Reads the track of a file, without points if it cannot be read.
static Track readTrack(const QString &path, QString *error)
{
    QTemporaryFile copy;
    const bool isFile = path != u"-"_s && QFileInfo(path).isFile();
    const QString name = path == u"-"_s ? u"Standard input"_s : path;
    if (!isFile && !copyPipe(path, copy)) {
        *error = u"%1 cannot be read."_s.arg(name);
        return {};
    }
    const QString file = isFile ? path : copy.fileName();
    if (QFileInfo(file).size() > maximumFileSize) {
        *error = u"%1 is larger than %2 MB."_s.arg(name).arg(maximumFileSize / 1'000'000);
        return {};
    }
    const QString address = requestAddress(locationService);
    TrackReader reader(address + u"loadTrack "_s);
    QEventLoop loop;
    QObject::connect(&reader, &TrackReader::loaded, &loop, &QEventLoop::quit);
    QObject::connect(&reader, &TrackReader::failed, &loop, [&](const QString &message, int line) {
        const QString place = line > 0 ? u"%1, line %2"_s.arg(name).arg(line) : name;
        *error = u"%1: %2"_s.arg(place, message.isEmpty() ? u"cannot be read."_s : message);
        loop.quit();
    });
    reader.read(QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()), maximumPoints);
    loop.exec();
    Track track = error->isEmpty() ? reader.takeTrack() : Track();
    if (error->isEmpty() && track.points.isEmpty())
        *error = u"%1 has no points."_s.arg(name);
    return track;
}

static bool hasIntervals(const Track &track)
{
    return std::ranges::any_of(track.points, [](const TrackPoint &p) { return p.interval > 0; });
}

static Track changed(Track track, const PlaybackOptions &options)
{
    PositionShift shift(options.place.value_or(Place()));
    for (TrackPoint &point : track.points) {
        if (options.interval)
            point.interval = *options.interval;
        if (options.place)
            shift.move(point.latitude, point.longitude);
    }
    return {std::move(track.points), requestAddress(locationService) + u"loadTrack "_s};
}

/// Plays a track until it ends or the user stops it.
class TrackPlayback : public QObject
{
    Q_OBJECT

public:
    TrackPlayback(Session &session, const Track &track, const PlaybackOptions &options)
        : m_session(session)
        , m_options(options)
        , m_usesDefaultInterval(!options.interval && !hasIntervals(track))
    {
        m_model.setTrack(options.interval || options.place ? changed(track, options) : track);
        qmlRegisterTypesAndRevisions<GPSEmulationManager, TrackModel, TrackReader>("org.plova", 1);
        QQmlComponent component(&m_engine,
                                QUrl(u"qrc:/emulationmanagement/qml/location/TrackPlayer.qml"_s));
        m_player.reset(component.createWithInitialProperties(
            {{u"gpsManager"_s, QVariant::fromValue(&m_manager)},
             {u"trackModel"_s, QVariant::fromValue(&m_model)}}));
        if (!m_player)
            qFatal("The player of tracks cannot run: %s", qPrintable(component.errorString()));
        connect(m_player.get(), SIGNAL(playbackChanged()), this, SLOT(handlePlayback()));
        connect(&session, &Session::connected, this, &TrackPlayback::start);
        connect(&session, &Session::answered, this, [this](const LoggedCall &call) {
            if (call.outcome == LoggedCall::Outcome::Refused)
                stop();
        });
        connect(&m_interruption, &Interruption::requested, this, &TrackPlayback::stop);
    }

private Q_SLOTS:
    void handlePlayback()
    {
        if (m_player->property("playing").toBool() || m_stopping)
            return;
        if (m_options.untilEnd)
            m_session.close();
        else
            note(u"The track has ended. Ctrl+C stops it."_s);
    }

private:
    void start()
    {
        m_manager.setRdbusinvoker(&m_session.link());
        if (m_usesDefaultInterval)
            note(u"The track has no times: there are two seconds between its points."_s);
        // The player would upload a track that is not loaded when stopTrack() makes a row current.
        m_manager.uploadTrack(&m_model);
        m_manager.stopTrack();
        m_manager.setTrackLooped(m_options.looped);
        m_manager.setTrackIntervalMode(m_usesDefaultInterval);
        m_manager.setTrackSpeed(m_options.speed);
        QMetaObject::invokeMethod(m_player.get(), "start");
    }

    void stop()
    {
        if (m_stopping)
            return;
        m_stopping = true;
        if (m_manager.rdbusinvoker())
            QMetaObject::invokeMethod(m_player.get(), "stop");
        m_session.close();
    }

    Session &m_session;
    PlaybackOptions m_options;
    bool m_usesDefaultInterval;
    bool m_stopping = false;
    GPSEmulationManager m_manager;
    TrackModel m_model;
    Interruption m_interruption;
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_player;
};

std::optional<int> playTrack(const CommandLine &line, QString *error)
{
    const std::optional<PlaybackOptions> options = readOptions(line, error);
    if (!options)
        return std::nullopt;
    const Track track = readTrack(line.arguments.constFirst(), error);
    if (!error->isEmpty()) {
        complain(*error); // the form of the command was right
        return WrongUse;
    }
    Session session(line.general);
    TrackPlayback playback(session, track, *options);
    QObject::connect(&session, &Session::ended, QCoreApplication::instance(),
                     &QCoreApplication::exit, Qt::QueuedConnection);
    session.open();
    return QCoreApplication::exec();
}

} // namespace EmulationCtl

#include "trackplayback.moc"
