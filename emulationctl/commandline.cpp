#include "commandline.h"

#include "output.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace EmulationCtl {

// Stands before negative numbers while the parser, which would take them for options, reads them.
static constexpr QChar numberMark(1);

static const QString helpOption = u"help"_s;
static const QString jsonOption = u"json"_s;
static const QString verboseOption = u"verbose"_s;
static const QString timeoutOption = u"timeout"_s;
static const QString portOption = u"port"_s;

struct CommandDescription
{
    QString name;
    QString syntax;
    QString description;
    int minimumArguments = 0;
    int maximumArguments = 0;
    QList<QCommandLineOption> options = {};
};

static constexpr int anyNumber = std::numeric_limits<int>::max();

static QCommandLineOption option(const QString &name, const QString &description,
                                 const QString &value = {})
{
    return {name, description, value};
}

static const QList<CommandDescription> &commands()
{
    static const QList<CommandDescription> all{
        {u"status"_s, {}, u"Tell whether the emulator can be reached, and its sensors' states."_s},
        {u"sensor"_s, u"list | enable NAME... | disable NAME..."_s,
         u"List the sensors or switch them on and off."_s, 1, anyNumber},
        {u"set"_s, u"SENSOR VALUE..."_s,
         u"Set a sensor's reading, in the units of the window. Without values, say which."_s, 0,
         anyNumber},
        {u"position"_s, u"LATITUDE LONGITUDE [ALTITUDE]"_s,
         u"Set the position, in degrees and metres. Without an altitude, it is 0."_s, 2, 3},
        {u"track"_s,
         u"FILE"_s,
         u"Play the track of an NMEA file. Ctrl+C stops it. FILE may be - for standard input."_s,
         1,
         1,
         {option(u"speed"_s, u"Play 1 to 5 times as fast."_s, u"times"_s),
          option(u"interval"_s, u"Put this time between all points instead of the track's."_s,
                 u"milliseconds"_s),
          option(u"loop"_s, u"Start again after the last point."_s),
          option(u"move-to"_s, u"Move the track so that it begins there."_s, u"lat,lon"_s),
          option(u"until-end"_s, u"End after the last point, and leave the track there."_s)}},
        {u"camera"_s,
         u"list | start [NAME]"_s,
         u"List this host's cameras or stream one until Ctrl+C."_s,
         1,
         2,
         {option(u"size"_s, u"The size of the pictures, 640x480 for example."_s, u"WxH"_s),
          option(u"rate"_s, u"The pictures per second, 30/1 for example."_s, u"N/D"_s)}},
        {u"video"_s,
         u"FILE"_s,
         u"Stream a video file (VP8 or VP9) again and again until Ctrl+C."_s,
         1,
         1,
         {option(u"for"_s, u"End after this time."_s, u"seconds"_s)}},
        {u"play"_s,
         u"RECORDING"_s,
         u"Play a recording in real time. Ctrl+C stops it."_s,
         1,
         1,
         {option(u"rate"_s, u"Play 0.1 to 100 times as fast."_s, u"times"_s),
          option(u"loop"_s, u"Start again after the last call, until Ctrl+C."_s),
          option(u"start-offset"_s, u"Begin there, with the last values before it."_s,
                 u"seconds"_s),
          option(u"services"_s, u"Play only these: sensors, location, camera."_s, u"names"_s),
          option(u"move-to"_s, u"Move all positions so that the first one lies there."_s,
                 u"lat,lon"_s),
          option(u"stop-on-error"_s, u"End when the emulator refuses a call."_s)}},
        {u"info"_s, u"RECORDING"_s, u"Check a recording and count its calls."_s, 1, 1},
        {u"move"_s, u"FILE LATITUDE LONGITUDE"_s,
         u"Print a recording or a track moved there, to pass it on."_s, 3, 3},
        {u"call"_s, u"SERVICE METHOD [ARGUMENT...]"_s,
         u"Call a method of the service sensors or location. Without a method, list them."_s, 1,
         anyNumber},
    };
    return all;
}

static const CommandDescription *findCommand(const QString &name)
{
    const auto command = std::ranges::find(commands(), name, &CommandDescription::name);
    return command == commands().end() ? nullptr : &*command;
}

static void addGeneralOptions(QCommandLineParser &parser)
{
    parser.addOptions(
        {QCommandLineOption({u"h"_s, helpOption}, u"Show this help."_s),
         option(jsonOption, u"Print one JSON object a line."_s),
         option(verboseOption, u"Print the calls with their latencies."_s),
         option(timeoutOption, u"Wait this long for the link and for each reply (5)."_s,
                u"seconds"_s),
         option(portOption, u"The host's port that leads to the emulator (5454)."_s, u"port"_s)});
}

// Leaves out the first line, and what follows the options: both are worse than usage().
static QString optionsHelp(const QCommandLineParser &parser)
{
    return parser.helpText().section(u'\n', 1).section(u"\nArguments:"_s, 0, 0).trimmed();
}

static QString generalHelp(const QCommandLineParser &parser)
{
    QString help = u"Usage: emulationctl [options] COMMAND ...\n"_s + optionsHelp(parser)
                   + u"\n\nCommands:\n"_s;
    for (const CommandDescription &command : commands())
        help += u"  %1 %2\n        %3\n"_s.arg(command.name, command.syntax, command.description);
    return help + u"\nemulationctl COMMAND --help names the options of a command."_s;
}

static std::nullopt_t fail(ExitStatus *status, const QString &error, const QString &hint)
{
    complain(error);
    note(hint);
    *status = WrongUse;
    return std::nullopt;
}

static bool readGeneralOptions(const QCommandLineParser &parser, GeneralOptions &general,
                               QString *error)
{
    general.json = general.json || parser.isSet(jsonOption);
    general.verbose = general.verbose || parser.isSet(verboseOption);
    bool ok = true;
    if (parser.isSet(timeoutOption)) {
        static constexpr double longest = 1e6;
        const double seconds = parser.value(timeoutOption).toDouble(&ok);
        ok = ok && seconds > 0 && seconds <= longest;
        if (ok)
            general.timeout = std::chrono::milliseconds(std::llround(seconds * 1000));
        else
            *error = u"--timeout must be a number of seconds above 0, not %1."_s.arg(
                parser.value(timeoutOption));
    }
    if (ok && parser.isSet(portOption)) {
        general.port = parser.value(portOption).toUShort(&ok);
        ok = ok && general.port > 0;
        if (!ok)
            *error = u"--port must be 1 to 65535, not %1."_s.arg(parser.value(portOption));
    }
    return ok;
}

static QStringList markNumbers(QStringList arguments)
{
    static const QRegularExpression negativeNumber(uR"(\A-[.\d])"_s);
    for (QString &argument : arguments) {
        if (negativeNumber.match(argument).hasMatch())
            argument.prepend(numberMark);
    }
    return arguments;
}

static QString unmarked(QString text)
{
    return text.remove(numberMark);
}

QString usage(const QString &command)
{
    const CommandDescription *description = findCommand(command);
    QString usage = u"Usage: emulationctl "_s + command;
    for (const QCommandLineOption &option : description->options) {
        const QString value = option.valueName().isEmpty() ? QString() : u' ' + option.valueName();
        usage += u" [--%1%2]"_s.arg(option.names().constFirst(), value);
    }
    return QString(usage + u' ' + description->syntax).trimmed();
}

std::optional<CommandLine> parseCommandLine(const QStringList &arguments, ExitStatus *status)
{
    static const QString hint = u"emulationctl --help lists the commands."_s;
    CommandLine result;
    QString error;

    QCommandLineParser general;
    general.setApplicationDescription(
        u"Feeds a running emulator with readings, positions and pictures."_s);
    general.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    addGeneralOptions(general);
    if (!general.parse(markNumbers(arguments))
        || !readGeneralOptions(general, result.general, &error))
        return fail(status, error.isEmpty() ? general.errorText() : error, hint);
    const QStringList rest = general.positionalArguments();
    if (general.isSet(helpOption)) {
        print(generalHelp(general));
        *status = Success;
        return std::nullopt;
    }
    if (rest.isEmpty())
        return fail(status, u"No command is given."_s, hint);
    result.command = rest.constFirst();
    const CommandDescription *description = findCommand(result.command);
    if (!description)
        return fail(status, u"There is no command \"%1\"."_s.arg(result.command), hint);

    QCommandLineParser parser;
    parser.setApplicationDescription(description->description);
    addGeneralOptions(parser);
    parser.addOptions(description->options);
    const bool isRead = parser.parse(QStringList(arguments.first(1)) + rest)
                        && readGeneralOptions(parser, result.general, &error);
    if (parser.isSet(helpOption)) {
        print(usage(result.command) + u'\n' + optionsHelp(parser));
        *status = Success;
        return std::nullopt;
    }
    if (!isRead)
        return fail(status, error.isEmpty() ? parser.errorText() : error, usage(result.command));
    result.arguments = parser.positionalArguments().sliced(1);
    std::ranges::transform(result.arguments, result.arguments.begin(), unmarked);
    for (const QCommandLineOption &option : description->options) {
        if (!parser.isSet(option))
            continue;
        const bool hasValue = !option.valueName().isEmpty();
        result.options.insert(option.names().constFirst(),
                              hasValue ? unmarked(parser.value(option)) : QString());
    }
    if (result.arguments.size() < description->minimumArguments)
        return fail(status, u"%1 needs more arguments."_s.arg(result.command),
                    usage(result.command));
    if (result.arguments.size() > description->maximumArguments)
        return fail(status,
                    u"%1 does not know what to do with \"%2\"."_s.arg(
                        result.command, result.arguments.at(description->maximumArguments)),
                    usage(result.command));
    return result;
}

} // namespace EmulationCtl
