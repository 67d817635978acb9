#include "methodarguments.h"

#include "argumentencoding.h"

#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

using Type = MethodArgument::Type;

static constexpr QStringView pointsPrefix = u"array:array:double:";
static constexpr qsizetype numbersOfPoint = 4;

static bool isOnTheBus(const ServiceMethod &method)
{
    return !method.service->dbusName.isEmpty();
}

static QString jsonText(const QJsonValue &value)
{
    static constexpr qsizetype longest = 60;
    QString text = QString::fromUtf8(QJsonDocument({value}).toJson(QJsonDocument::Compact));
    text = text.sliced(1, text.size() - 2);
    return text.size() <= longest ? text : text.first(longest) + u'…';
}

static bool isInt32(const QJsonValue &value)
{
    using Limits = std::numeric_limits<int>;
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    return number == std::trunc(number) && number >= Limits::min() && number <= Limits::max();
}

static bool isPoint(const QJsonValue &value)
{
    const QJsonArray numbers = value.toArray();
    return numbers.size() == numbersOfPoint
           && std::ranges::all_of(numbers, [](const QJsonValue &n) { return n.isDouble(); });
}

static bool hasType(const QJsonValue &value, Type type)
{
    switch (type) {
    case Type::Int32:
        return isInt32(value);
    case Type::Double:
        return value.isDouble();
    case Type::Boolean:
        return value.isBool();
    case Type::String:
        return value.isString();
    case Type::Points:
        break;
    }
    return value.isArray() && std::ranges::all_of(value.toArray(), isPoint);
}

static bool isInRange(const QJsonValue &value, const MethodArgument &argument)
{
    if (!argument.texts.empty())
        return std::ranges::find(argument.texts, value.toString()) != argument.texts.end();
    return !value.isDouble()
           || (value.toDouble() >= argument.minimum && value.toDouble() <= argument.maximum);
}

static QString pointsText(const QJsonArray &points, const ServiceMethod &setPosition)
{
    static constexpr qsizetype usualPointSize = 40; // characters
    const int coordinateDecimals = setPosition.arguments[0].decimals;
    const int altitudeDecimals = setPosition.arguments[2].decimals;
    DoubleArraysArgument text({}, points.size() * usualPointSize);
    for (const auto &value : points) {
        const QJsonArray point = value.toArray();
        text.append({QString::number(point.at(0).toDouble(), 'f', coordinateDecimals),
                     QString::number(point.at(1).toDouble(), 'f', coordinateDecimals),
                     QString::number(point.at(2).toDouble(), 'f', altitudeDecimals),
                     QString::number(point.at(3).toDouble())});
    }
    return text.toString();
}

static QString argumentText(const QJsonValue &value, const MethodArgument &argument)
{
    switch (argument.type) {
    case Type::Int32:
        return int32Argument(value.toInt());
    case Type::Double:
        return argument.decimals < 0 ? doubleArgument(value.toDouble())
                                     : doubleArgument(value.toDouble(), argument.decimals);
    case Type::Boolean:
        return booleanArgument(value.toBool());
    case Type::String:
        return stringArgument(value.toString());
    case Type::Points:
        break;
    }
    return pointsText(value.toArray(), *findMethod(locationService, u"setPosition"));
}

static QString typeName(Type type)
{
    switch (type) {
    case Type::Int32:
        return MethodArguments::tr("a whole number");
    case Type::Double:
        return MethodArguments::tr("a number");
    case Type::Boolean:
        return MethodArguments::tr("true or false");
    case Type::String:
        return MethodArguments::tr("a text");
    case Type::Points:
        break;
    }
    return MethodArguments::tr("an array of points, each an array of latitude, longitude, altitude "
                               "and interval");
}

static QString rangeText(const MethodArgument &argument)
{
    if (!argument.texts.empty()) {
        QStringList texts;
        for (const QLatin1StringView text : argument.texts)
            texts.append(text);
        return MethodArguments::tr("one of %1").arg(texts.join(u", "_s));
    }
    const bool hasMinimum = std::isfinite(argument.minimum);
    const bool hasMaximum = std::isfinite(argument.maximum);
    if (hasMinimum && hasMaximum)
        return MethodArguments::tr("%1 to %2").arg(argument.minimum).arg(argument.maximum);
    return hasMinimum ? MethodArguments::tr("at least %1").arg(argument.minimum) : QString();
}

MethodArguments::Encoded MethodArguments::fromJson(const ServiceMethod &method,
                                                   const QJsonArray &values)
{
    const auto required
        = std::ranges::count(method.arguments, false, &MethodArgument::mayBeMissing);
    if (values.size() < required || values.size() > qsizetype(method.arguments.size())) {
        return {.error = tr("%1 has another number of arguments: %2")
                             .arg(QString(method.name), usage(method))};
    }
    QStringList texts;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const MethodArgument &argument = method.arguments[std::size_t(i)];
        const QJsonValue value = values.at(i);
        if (!hasType(value, argument.type) || !isInRange(value, argument)) {
            const QString range = rangeText(argument);
            const QString expected = range.isEmpty() || !hasType(value, argument.type)
                                         ? typeName(argument.type)
                                         : range;
            return {.error = tr("%1 of %2 must be %3, not %4")
                                 .arg(QString(argument.name), QString(method.name), expected,
                                      jsonText(value))};
        }
        if (isOnTheBus(method))
            texts.append(argumentText(value, argument));
    }
    if (isOnTheBus(method))
        return {.text = joinArguments(texts)};
    return {.text = QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact))};
}

static QJsonValue jsonValue(const QString &text, Type type)
{
    bool ok = false;
    switch (type) {
    case Type::Int32:
    case Type::Double: {
        const double number = text.toDouble(&ok);
        return ok && std::isfinite(number) ? QJsonValue(number) : QJsonValue(text);
    }
    case Type::Boolean:
        if (text == u"true"_s || text == u"1"_s)
            return true;
        return text == u"false"_s || text == u"0"_s ? QJsonValue(false) : QJsonValue(text);
    case Type::String:
        return text;
    case Type::Points:
        break;
    }
    const QJsonDocument points = QJsonDocument::fromJson(text.toUtf8());
    return points.isArray() ? QJsonValue(points.array()) : QJsonValue(text);
}

MethodArguments::Encoded MethodArguments::fromTexts(const ServiceMethod &method,
                                                    const QStringList &texts)
{
    QJsonArray values;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const bool isKnown = std::size_t(i) < method.arguments.size();
        values.append(isKnown ? jsonValue(texts.at(i), method.arguments[std::size_t(i)].type)
                              : QJsonValue(texts.at(i)));
    }
    return fromJson(method, values);
}

static QJsonArray pointsOf(QStringView text)
{
    QJsonArray points;
    if (text.isEmpty())
        return points;
    for (const QStringView pointText : text.tokenize(u';')) {
        QJsonArray point;
        for (const QStringView number : pointText.tokenize(u','))
            point.append(number.toDouble());
        points.append(point);
    }
    return points;
}

QJsonArray MethodArguments::toJson(const ServiceMethod &method, QStringView text)
{
    if (!isOnTheBus(method))
        return QJsonDocument::fromJson(text.toUtf8()).array();
    QJsonArray values;
    if (text.isEmpty())
        return values;
    for (const QStringView token : text.tokenize(u' ')) {
        if (values.size() == qsizetype(method.arguments.size()))
            break;
        const Type type = method.arguments[std::size_t(values.size())].type;
        if (type == Type::Points) {
            values.append(pointsOf(token.sliced(std::min(pointsPrefix.size(), token.size()))));
            continue;
        }
        const QString value = token.sliced(token.indexOf(u':') + 1).toString();
        values.append(jsonValue(value, type));
    }
    return values;
}

QString MethodArguments::description(const ServiceMethod &method, QStringView text)
{
    const QJsonArray values = toJson(method, text);
    QStringList descriptions;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const MethodArgument &argument = method.arguments[std::size_t(i)];
        const QJsonValue value = values.at(i);
        QString description
            = argument.name + u' ' + (value.isString() ? value.toString() : jsonText(value));
        if (!argument.unit.isEmpty())
            description += u' ' + argument.unit;
        if (argument.type == Type::Points)
            description = QString::number(value.toArray().size()) + u' ' + argument.name;
        descriptions.append(description);
    }
    return descriptions.join(u", "_s);
}

QString MethodArguments::limits(const MethodArgument &argument)
{
    const QString range = rangeText(argument);
    const QString separator = argument.unit.isEmpty() || range.isEmpty() ? QString() : u", "_s;
    return argument.unit + separator + range;
}

QString MethodArguments::usage(const ServiceMethod &method)
{
    QString usage = method.name;
    for (const MethodArgument &argument : method.arguments) {
        const QString limit = limits(argument);
        usage += u' ' + QString(argument.name).toUpper();
        if (!limit.isEmpty())
            usage += " ("_L1 + limit + u')';
    }
    return usage;
}

} // namespace EmulationManagement::Internal
