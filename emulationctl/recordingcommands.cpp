#include "recordingcommands.h"

#include "interruption.h"
#include "output.h"

#include <camera/cameraemulationmanager.h>
#include <camera/cameraplayback.h>

#include <link/recording.h>
#include <link/recordingplayer.h>

#include <location/movedcopy.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonObject>
#include <QMap>

#include <algorithm>
#include <cmath>
#include <cstdio>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

namespace EmulationCtl {

struct PlayOptions
{
    double rate = 1;
    bool looped = false;
    bool stopOnError = false;
    std::chrono::microseconds start{};
    std::vector<const Service *> services = {};
    std::optional<Place> place = {};
};

static double millisecondsOf(std::chrono::microseconds time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

std::optional<Place> parsePlace(const QString &text)
{
    const QStringList numbers = text.split(u',');
    bool hasLatitude = false;
    bool hasLongitude = false;
    const Place place{.latitude = numbers.value(0).toDouble(&hasLatitude),
                      .longitude = numbers.value(1).toDouble(&hasLongitude)};
    const bool isPlace = numbers.size() == 2 && hasLatitude && hasLongitude
                         && std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180;
    return isPlace ? std::optional(place) : std::nullopt;
}

QString placeError(const QString &text)
{
    return u"--move-to must be a latitude and a longitude such as 60.05,30.18, not %1."_s.arg(text);
}

// Reads a number in a range.
static std::optional<double> readNumber(const CommandLine &line, const QString &option,
                                        double minimum, double maximum, QString *error)
{
    bool ok = false;
    const double number = line.value(option).toDouble(&ok);
    if (ok && number >= minimum && number <= maximum)
        return number;
    *error = u"--%1 must be %2 to %3, not %4."_s.arg(option).arg(minimum).arg(maximum).arg(
        line.value(option));
    return std::nullopt;
}

static std::vector<const Service *> readServices(const QString &names, QString *error)
{
    std::vector<const Service *> result;
    for (const QString &name : names.split(u',')) {
        const Service *service = findService(name);
        if (!service)
            *error = u"There is no service \"%1\", only sensors, location and camera."_s.arg(name);
        result.push_back(service);
    }
    return result;
}

// Sets \a error if an option is wrong.
static PlayOptions readOptions(const CommandLine &line, QString *error)
{
    static constexpr double longest = 1e9; // seconds
    PlayOptions options{.looped = line.isSet(u"loop"_s),
                        .stopOnError = line.isSet(u"stop-on-error"_s)};
    if (line.isSet(u"rate"_s)) {
        options.rate = readNumber(line, u"rate"_s, RecordingPlayer::slowestRate,
                                  RecordingPlayer::fastestRate, error)
                           .value_or(1);
    }
    if (line.isSet(u"start-offset"_s)) {
        const double start = readNumber(line, u"start-offset"_s, 0, longest, error).value_or(0);
        options.start = std::chrono::microseconds(std::llround(start * 1e6));
    }
    if (line.isSet(u"services"_s))
        options.services = readServices(line.value(u"services"_s), error);
    if (line.isSet(u"move-to"_s)) {
        options.place = parsePlace(line.value(u"move-to"_s));
        if (!options.place)
            *error = placeError(line.value(u"move-to"_s));
    }
    return options;
}

// A descriptor: stdin as FILE ends a line at a NUL.
static constexpr int standardInput = 0;

/// Reads a recording and reports its mistakes.
static Recording readRecording(const QString &path)
{
    QFile input;
    const bool isInput = path == u"-"_s && input.open(standardInput, QIODevice::ReadOnly);
    Recording recording = isInput ? Recording::read(input) : Recording::readFile(path);
    const QString name = isInput ? u"Standard input"_s : path;
    if (!recording.error().isEmpty())
        complain(name + u": "_s + recording.error());
    else if (!recording.warning().isEmpty())
        complain(name + u": "_s + recording.warning());
    return recording;
}

/// Plays a recording until it ends or the user stops it.
class RecordingPlayback : public QObject
{
public:
    RecordingPlayback(Session &session, Recording recording, const PlayOptions &options)
        : m_session(session)
        , m_player(&session.link())
    {
        CameraPlayback::prepare(m_camera, recording);
        m_player.setRecording(std::move(recording));
        m_player.setRate(options.rate);
        if (!options.services.empty())
            m_player.setServices(options.services);
        m_player.setLooped(options.looped);
        connect(&session, &Session::connected, this, [this, start = options.start] {
            m_player.play();
            if (start.count() > 0)
                m_player.seek(start);
        });
        connect(&m_player, &RecordingPlayer::cameraCallDue, this,
                &RecordingPlayback::playCameraCall);
        connect(&m_player, &RecordingPlayer::finished, this, &RecordingPlayback::end);
        connect(&m_interruption, &Interruption::requested, this, &RecordingPlayback::end);
        if (options.stopOnError) {
            connect(&session, &Session::answered, this, [this](const LoggedCall &call) {
                if (call.outcome == LoggedCall::Outcome::Refused)
                    end();
            });
        }
    }

    /// Says what was sent.
    void printTotals() const
    {
        const RecordingPlayer::Totals &totals = m_player.totals();
        const CallLog::Totals &calls = m_session.log().totals();
        const double latest = millisecondsOf(totals.latest);
        const double percentile99 = millisecondsOf(m_player.latenessQuantile(0.99));
        if (m_session.options().json) {
            print(QJsonObject{{u"sent"_s, totals.calls},
                              {u"refused"_s, calls.refused},
                              {u"lost"_s, calls.lost},
                              {u"latest"_s, latest},
                              {u"percentile99"_s, percentile99}});
            return;
        }
        print(u"%1 sent, %2 refused, %3 lost; %4 ms late at most, 99 % at most %5 ms"_s
                  .arg(totals.calls)
                  .arg(calls.refused)
                  .arg(calls.lost)
                  .arg(latest, 0, 'f', 1)
                  .arg(percentile99, 0, 'f', 1));
    }

private:
    void playCameraCall(const RecordedCall &call)
    {
        const QString error = CameraPlayback::play(m_camera, call);
        if (error.isEmpty())
            return;
        complain(error);
        m_session.fail();
    }

    void end()
    {
        m_player.stop();
        m_session.close();
    }

    Session &m_session;
    RecordingPlayer m_player;
    CameraEmulationManager m_camera;
    Interruption m_interruption;
};

std::optional<int> playRecording(const CommandLine &line, QString *error)
{
    const PlayOptions options = readOptions(line, error);
    if (!error->isEmpty())
        return std::nullopt;
    Recording recording = readRecording(line.arguments.constFirst());
    if (!recording.error().isEmpty())
        return WrongUse;
    if (options.place)
        recording.movePositions(*options.place);
    Session session(line.general);
    RecordingPlayback playback(session, std::move(recording), options);
    QObject::connect(&session, &Session::ended, QCoreApplication::instance(),
                     &QCoreApplication::exit, Qt::QueuedConnection);
    session.open();
    const int status = QCoreApplication::exec();
    playback.printTotals();
    return status;
}

int describeRecording(const CommandLine &line)
{
    const Recording recording = readRecording(line.arguments.constFirst());
    if (!recording.error().isEmpty())
        return WrongUse;
    QMap<QString, int> counts;
    for (const RecordedCall &call : recording.calls())
        ++counts[call.method->service->name + u' ' + call.method->name];
    const double seconds = millisecondsOf(recording.duration()) / 1000;
    const QString start = recording.start().toUTC().toString(Qt::ISODateWithMs);
    if (line.general.json) {
        QJsonObject methods;
        for (auto count = counts.cbegin(); count != counts.cend(); ++count)
            methods.insert(count.key(), *count);
        print(QJsonObject{{u"start"_s, start},
                          {u"seconds"_s, seconds},
                          {u"calls"_s, qint64(recording.calls().size())},
                          {u"methods"_s, methods}});
        return Success;
    }
    print(u"%1 calls in %2 s, recorded at %3"_s.arg(recording.calls().size())
              .arg(seconds, 0, 'f', 3)
              .arg(start));
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        print(u"%1  %2"_s.arg(*count, 8).arg(count.key()));
    return Success;
}

std::optional<int> moveFile(const CommandLine &line, QString *error)
{
    const std::optional<Place> place
        = parsePlace(line.arguments.at(1) + u',' + line.arguments.at(2));
    if (!place) {
        *error = u"%1 %2 is not a latitude and a longitude."_s.arg(line.arguments.at(1),
                                                                   line.arguments.at(2));
        return std::nullopt;
    }
    const QString path = line.arguments.constFirst();
    QFile input(path);
    const bool isOpen = path == u"-"_s ? input.open(standardInput, QIODevice::ReadOnly)
                                       : input.open(QIODevice::ReadOnly);
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return WrongUse;
    const QString mistake = isOpen ? MovedCopy::write(input, *place, output) : input.errorString();
    if (!mistake.isEmpty())
        complain((path == u"-"_s ? u"Standard input"_s : path) + u": "_s + mistake);
    return mistake.isEmpty() && output.flush() ? Success : WrongUse;
}

} // namespace EmulationCtl
