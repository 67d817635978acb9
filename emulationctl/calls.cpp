#include "calls.h"

#include "output.h"
#include "session.h"

#include <link/methodarguments.h>

#include <sensors/sensorsemulationmanager.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QMetaEnum>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

namespace EmulationCtl {

using Outcome = LoggedCall::Outcome;

static QString mistake(const QString &command, const QString &text)
{
    return text + u'\n' + usage(command);
}

static const ServiceMethod &method(const Service &service, QStringView name)
{
    return *findMethod(service, name);
}

static const ServiceMethod &enabledMethod()
{
    return method(sensorsService, u"enabled");
}

static void printState(const Session &session, const LoggedCall &call)
{
    if (call.outcome != Outcome::Answered || call.method != &enabledMethod())
        return;
    const QString sensor = MethodArguments::toJson(*call.method, call.arguments).at(0).toString();
    const bool isOn = call.reply == u"1"_s || call.reply == u"true"_s;
    if (session.options().json)
        print(QJsonObject{{u"sensor"_s, sensor}, {u"enabled"_s, isOn}});
    else
        print(u"%1 %2"_s.arg(sensor, -13).arg(isOn ? "on"_L1 : "off"_L1));
}

static Calls listSensors(bool withLink)
{
    return [withLink](Session &session) {
        session.setQuiet();
        const quint16 port = session.options().port;
        if (withLink && session.options().json)
            print(QJsonObject{{u"link"_s, true}, {u"port"_s, port}});
        else if (withLink)
            print(u"The emulator answers on port %1."_s.arg(port));
        QObject::connect(&session, &Session::answered, &session,
                         [&session](const LoggedCall &call) { printState(session, call); });
        for (const QLatin1StringView sensor : enabledMethod().arguments.front().texts)
            session.call(enabledMethod(),
                         MethodArguments::fromTexts(enabledMethod(), {sensor}).text);
    };
}

static Calls oneCall(const ServiceMethod &called, const QString &arguments)
{
    return [&called, arguments](Session &session) { session.call(called, arguments); };
}

static std::optional<Calls> sensorCalls(const QStringList &arguments, QString *error)
{
    const QString &action = arguments.constFirst();
    const QStringList names = arguments.sliced(1);
    if (action == u"list"_s && names.isEmpty())
        return listSensors(false);
    if ((action != u"enable"_s && action != u"disable"_s) || names.isEmpty()) {
        const bool isKnown = action == u"enable"_s || action == u"disable"_s;
        *error = mistake(u"sensor"_s, (isKnown ? u"sensor %1 needs the names of sensors."_s
                                               : u"sensor %1 is not known."_s)
                                          .arg(arguments.join(u' ')));
        return std::nullopt;
    }
    const ServiceMethod &called = method(sensorsService, QString(action + u"Sensor"_s));
    QStringList texts;
    for (const QString &name : names) {
        const MethodArguments::Encoded encoded = MethodArguments::fromTexts(called, {name});
        if (!encoded.error.isEmpty()) {
            *error = mistake(u"sensor"_s, encoded.error + u'.');
            return std::nullopt;
        }
        texts.append(encoded.text);
    }
    return [&called, texts](Session &session) {
        for (const QString &text : texts)
            session.call(called, text);
    };
}

struct NamedNumber
{
    QString name;
    int number = 0;
};

static QList<NamedNumber> namesOf(const QMetaEnum &enumeration, int minimum)
{
    QList<NamedNumber> names;
    for (int i = 0; i < enumeration.keyCount(); ++i) {
        if (enumeration.value(i) >= minimum)
            names.append({QString::fromLatin1(enumeration.key(i)), enumeration.value(i)});
    }
    return names;
}

/// A reading in the units of the window.
struct Reading
{
    QString name;
    QString unit;
    QStringView method;                ///< empty for readings that others make up
    double factor = 1;                 ///< from the window's unit to the method's
    QList<NamedNumber> names = {};
    void (SensorsEmulationManager::*set)(int) = nullptr; ///< if there is no method
    int minimum = 0;
    int maximum = 0;
};

static QString listed(const QStringList &forms)
{
    return u"  "_s + forms.join(u"\n  "_s);
}

/// Prints forms such as "als VALUE (lx)", which begin with the names of what they are.
static void printForms(const QString &kind, const QStringList &forms, bool json)
{
    if (!json) {
        print(listed(forms));
        return;
    }
    for (const QString &form : forms)
        print(QJsonObject{{kind, form.section(u' ', 0, 0)}, {u"usage"_s, form}});
}

static const QList<Reading> &readings()
{
    static const QList<Reading> all{
        {u"accelerometer"_s, u"g"_s, u"setAccelerometerValues", 1000},
        {u"gyroscope"_s, u"deg/s"_s, u"setGyroscopeValues"},
        {u"magnetometer"_s, u"uT"_s, u"setMagnetometerValues", 1e-6},
        {u"calibration"_s, {}, u"setMagnetometerCalibrationLevel"},
        {.name = u"compass"_s,
         .unit = u"deg"_s,
         .method = {},
         .set = &SensorsEmulationManager::setCompassAzimuth,
         .maximum = 359},
        {.name = u"orientation"_s,
         .unit = {},
         .method = {},
         .names = namesOf(QMetaEnum::fromType<QOrientationReading::Orientation>(),
                          QOrientationReading::TopUp),
         .set = &SensorsEmulationManager::setOrientation,
         .minimum = QOrientationReading::TopUp,
         .maximum = QOrientationReading::FaceDown},
        {u"als"_s, u"lx"_s, u"setAlsValue", 1,
         namesOf(QMetaEnum::fromType<AlsModel::LightLevel>(), AlsModel::Undefined)},
        {u"proximity"_s,
         {},
         u"setProximitySensorValue",
         1,
         {{u"near"_s, ProximityModel::nearReflectance},
          {u"far"_s, ProximityModel::farReflectance}}},
        {u"tap"_s,
         {},
         u"setTapSensorValue",
         1,
         namesOf(QMetaEnum::fromType<TapModel::TapDirection>(), TapModel::Undefined)},
    };
    return all;
}

static qsizetype valueCount(const Reading &reading)
{
    return reading.set ? 1 : qsizetype(method(sensorsService, reading.method).arguments.size());
}

static QString textOf(const Reading &reading)
{
    QString text = reading.name;
    if (valueCount(reading) == 3)
        text += u" X Y Z"_s;
    else
        text += u" VALUE"_s;
    if (!reading.unit.isEmpty())
        text += u" (%1)"_s.arg(reading.unit);
    if (reading.set && reading.names.isEmpty())
        text += u", %1 to %2"_s.arg(reading.minimum).arg(reading.maximum);
    if (!reading.set && valueCount(reading) == 1) {
        MethodArgument argument = method(sensorsService, reading.method).arguments.front();
        argument.unit = {};
        text += u", "_s + MethodArguments::limits(argument);
    }
    QString separator = u", or"_s;
    for (const NamedNumber &name : reading.names)
        text += std::exchange(separator, {}) + u' ' + name.name;
    return text;
}

static QStringList readingForms()
{
    QStringList forms;
    for (const Reading &reading : readings())
        forms.append(textOf(reading));
    return forms;
}

static std::optional<double> numberOf(const Reading &reading, const QString &text)
{
    const auto name = std::ranges::find(reading.names, text, &NamedNumber::name);
    if (name != reading.names.end())
        return name->number;
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

static std::optional<Calls> setCalls(const QStringList &arguments, bool json, QString *error)
{
    if (arguments.isEmpty()) {
        printForms(u"reading"_s, readingForms(), json);
        return std::nullopt;
    }
    const auto reading = std::ranges::find(readings(), arguments.constFirst(), &Reading::name);
    if (reading == readings().end()) {
        *error = u"There is no reading \"%1\", only:\n"_s.arg(arguments.constFirst())
                 + listed(readingForms());
        return std::nullopt;
    }
    const QString expected = u"\nUsage: emulationctl set "_s + textOf(*reading);
    if (arguments.size() - 1 != valueCount(*reading)) {
        *error = u"%1 takes %2 value(s), not %3."_s.arg(reading->name)
                     .arg(valueCount(*reading))
                     .arg(arguments.size() - 1)
                 + expected;
        return std::nullopt;
    }
    QJsonArray values;
    const bool isWhole = reading->set
                         || method(sensorsService, reading->method).arguments.front().type
                                == MethodArgument::Type::Int32;
    for (const QString &text : arguments.sliced(1)) {
        const std::optional<double> number = numberOf(*reading, text);
        if (!number) {
            *error = u"\"%1\" is not a value of %2."_s.arg(text, reading->name) + expected;
            return std::nullopt;
        }
        const double value = *number * reading->factor;
        // Floating-point error puts 1.001 g times 1000 below 1001.
        values.append(isWhole && reading->factor != 1 ? std::round(value) : value);
    }
    if (reading->set) {
        const double value = values.at(0).toDouble();
        if (value != std::round(value) || value < reading->minimum || value > reading->maximum) {
            *error = u"%1 is not a value of %2."_s.arg(arguments.at(1), reading->name) + expected;
            return std::nullopt;
        }
        return [set = reading->set, value = int(value)](Session &session) {
            SensorsEmulationManager sensors;
            sensors.setRdbusinvoker(&session.link());
            (sensors.*set)(value);
        };
    }
    const ServiceMethod &called = method(sensorsService, reading->method);
    const MethodArguments::Encoded encoded = MethodArguments::fromJson(called, values);
    if (!encoded.error.isEmpty()) {
        *error = encoded.error + u'.' + expected;
        return std::nullopt;
    }
    return oneCall(called, encoded.text);
}

static std::optional<Calls> checkedCall(const QString &command, const ServiceMethod &called,
                                        const QStringList &arguments, QString *error)
{
    const MethodArguments::Encoded encoded = MethodArguments::fromTexts(called, arguments);
    if (!encoded.error.isEmpty()) {
        *error = mistake(command, encoded.error + u'.');
        return std::nullopt;
    }
    return oneCall(called, encoded.text);
}

static QStringList methodForms(const Service &service)
{
    QStringList forms;
    for (const ServiceMethod &called : service.methods)
        forms.append(MethodArguments::usage(called));
    return forms;
}

static std::optional<Calls> serviceCall(const QStringList &arguments, bool json, QString *error)
{
    const Service *service = findService(arguments.constFirst());
    if (!service || service->dbusName.isEmpty()) {
        *error = u"There is no service \"%1\", only sensors and location."_s.arg(
            arguments.constFirst());
        return std::nullopt;
    }
    if (arguments.size() == 1) {
        printForms(u"method"_s, methodForms(*service), json);
        return std::nullopt;
    }
    const ServiceMethod *called = findMethod(*service, arguments.at(1));
    if (!called) {
        *error = u"The service %1 has no method \"%2\", only:\n"_s.arg(arguments.at(0),
                                                                       arguments.at(1))
                 + listed(methodForms(*service));
        return std::nullopt;
    }
    const std::optional<Calls> calls = checkedCall(u"call"_s, *called, arguments.sliced(2), error);
    if (!calls)
        return std::nullopt;
    return [send = *calls](Session &session) {
        QObject::connect(&session, &Session::answered, &session,
                         [&session](const LoggedCall &call) {
                             const bool hasResult = call.outcome == Outcome::Answered
                                                    && !call.method->result.isEmpty();
                             if (hasResult && !session.options().json)
                                 print(call.reply);
                         });
        send(session);
    };
}

std::optional<Calls> callsOf(const CommandLine &line, QString *error)
{
    if (line.command == u"status"_s)
        return listSensors(true);
    if (line.command == u"sensor"_s)
        return sensorCalls(line.arguments, error);
    if (line.command == u"set"_s)
        return setCalls(line.arguments, line.general.json, error);
    if (line.command == u"call"_s)
        return serviceCall(line.arguments, line.general.json, error);
    QStringList position = line.arguments;
    if (position.size() == 2)
        position.append(u"0"_s);
    return checkedCall(line.command, method(locationService, u"setPosition"), position, error);
}

} // namespace EmulationCtl
