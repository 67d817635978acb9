#include "recording.h"

#include "methodarguments.h"
#include "positionshift.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

const QString Recording::formatName = u"emulation"_s;
const QString Recording::fileSuffix = u".emulation.jsonl"_s;

static constexpr qint64 longestHeader = 1 << 20; // bytes
static constexpr double longestRecording = 1e12; // milliseconds, about 30 years

static QString serviceNames()
{
    QStringList names;
    for (const Service *service : services())
        names.append(service->name);
    return names.join(u", "_s);
}

static std::optional<QJsonObject> parseObject(const QByteArray &line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

Recording Recording::readFile(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        return read(file);
    Recording recording;
    recording.m_error = tr("The file cannot be read: %1").arg(file.errorString());
    return recording;
}

Recording Recording::read(QIODevice &device)
{
    Recording recording;
    bool hasHeader = false;
    for (int number = 1;; ++number) {
        // A file without lines is refused before all of it is read.
        const QByteArray whole = device.readLine(hasHeader ? 0 : longestHeader);
        if (whole.isEmpty()) // the end: a pipe does not know it before
            break;
        const QByteArray line = whole.trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        // A program that crashes while it records leaves an incomplete last line.
        if (hasHeader && !whole.endsWith('\n') && !parseObject(line)) {
            recording.m_warning = tr("Line %1 is incomplete and was left out.").arg(number);
            break;
        }
        const QString mistake = hasHeader ? recording.readCall(line) : recording.readHeader(line);
        if (!mistake.isEmpty()) {
            recording.m_calls.clear();
            recording.m_error = tr("Line %1: %2.").arg(number).arg(mistake);
            return recording;
        }
        hasHeader = true;
    }
    if (!hasHeader)
        recording.m_error = tr("The file is empty.");
    return recording;
}

// Returns a mistake, or an empty text.
QString Recording::readHeader(const QByteArray &line)
{
    const std::optional<QJsonObject> header = parseObject(line);
    if (!header || header->value("format"_L1) != formatName)
        return tr("this is not the header of a recording, which has the format \"%1\"")
            .arg(formatName);
    const QJsonValue number = header->value("version"_L1);
    if (number.toDouble() > version)
        return tr("the version %1 is later than %2, the last one that is known")
            .arg(number.toDouble())
            .arg(version);
    if (number != version)
        return tr("the version must be %1").arg(version);
    if (header->value("unit"_L1) != "ms"_L1)
        return tr("the unit of time must be \"ms\"");
    m_start = QDateTime::fromString(header->value("start"_L1).toString(), Qt::ISODateWithMs);
    return m_start.isValid() ? QString() : tr("the start must be a date and a time of ISO 8601");
}

QString Recording::readCall(const QByteArray &line)
{
    const std::optional<QJsonObject> object = parseObject(line);
    if (!object)
        return tr("this is not a JSON object");
    static const QStringList members{u"after"_s, u"service"_s, u"method"_s, u"arguments"_s};
    for (auto member = object->constBegin(); member != object->constEnd(); ++member) {
        if (!members.contains(member.key()))
            return tr("\"%1\" is not one of %2").arg(member.key(), members.join(u", "_s));
    }
    const QJsonValue after = object->value("after"_L1);
    if (!after.isDouble() || after.toDouble() < 0)
        return tr("\"after\" must be a number of milliseconds, not below 0");
    m_time += after.toDouble();
    if (m_time > longestRecording)
        return tr("the time is too long");
    const QString serviceName = object->value("service"_L1).toString();
    const Service *service = findService(serviceName);
    if (!service)
        return tr("the service \"%1\" is not one of %2").arg(serviceName, serviceNames());
    const QString methodName = object->value("method"_L1).toString();
    const ServiceMethod *method = findMethod(*service, methodName);
    if (!method)
        return tr("the service %1 has no method \"%2\"").arg(serviceName, methodName);
    const QJsonValue arguments = object->value("arguments"_L1);
    if (!arguments.isArray() && !arguments.isUndefined())
        return tr("\"arguments\" must be an array");
    const MethodArguments::Encoded encoded
        = MethodArguments::fromJson(*method, arguments.toArray());
    m_calls.push_back({.time = std::chrono::microseconds(std::llround(m_time * 1000)),
                       .method = method,
                       .arguments = encoded.text});
    return encoded.error;
}

static void move(QStringView method, QJsonArray &values, PositionShift &shift)
{
    const auto movePoint = [&](QJsonArray &numbers) {
        double latitude = numbers.at(0).toDouble();
        double longitude = numbers.at(1).toDouble();
        shift.move(latitude, longitude);
        numbers[0] = latitude;
        numbers[1] = longitude;
    };
    if (method == u"setPosition") {
        movePoint(values);
    } else if (method == u"setLatitude") {
        values[0] = shift.movedLatitude(values.at(0).toDouble());
    } else if (method == u"setLongitude") {
        values[0] = shift.movedLongitude(values.at(0).toDouble());
    } else if (method == u"loadTrack") {
        QJsonArray points = values.at(0).toArray();
        for (QJsonValueRef point : points) {
            QJsonArray numbers = point.toArray();
            movePoint(numbers);
            point = numbers;
        }
        values[0] = points;
    }
}

void Recording::movePositions(const Place &place)
{
    PositionShift shift(place);
    for (RecordedCall &call : m_calls) {
        if (call.method->service != &locationService)
            continue;
        QJsonArray values = MethodArguments::toJson(*call.method, call.arguments);
        move(QString(call.method->name), values, shift);
        call.arguments = MethodArguments::fromJson(*call.method, values).text;
    }
}

} // namespace EmulationManagement::Internal
