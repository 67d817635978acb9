#include "requestline.h"

#include <QRegularExpression>

#include <cmath>
#include <optional>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

static constexpr qsizetype maxNameLength = 255;         // limit of the D-Bus protocol
static constexpr qsizetype maxArrayBytes = 64 << 20;    // limit of the D-Bus protocol
static constexpr QStringView arrayType = u"array:array:double:";

static bool isFullMatch(const QString &text, const QRegularExpression &pattern)
{
    return text.size() <= maxNameLength && pattern.match(text).hasMatch();
}

static bool isBusName(const QString &text)
{
    static const QRegularExpression pattern(
        uR"(\A(?::[\w-]+(?:\.[\w-]+)+|(?!\d)[\w-]+(?:\.(?!\d)[\w-]+)+)\z)"_s);
    return isFullMatch(text, pattern);
}

static bool isObjectPath(const QString &text)
{
    static const QRegularExpression pattern(uR"(\A/(?:\w+(?:/\w+)*)?\z)"_s);
    return isFullMatch(text, pattern);
}

static bool isInterfaceName(const QString &text)
{
    static const QRegularExpression pattern(uR"(\A(?!\d)\w+(?:\.(?!\d)\w+)+\z)"_s);
    return isFullMatch(text, pattern);
}

static bool isMethodName(const QString &text)
{
    static const QRegularExpression pattern(uR"(\A(?!\d)\w+\z)"_s);
    return isFullMatch(text, pattern);
}

static std::optional<double> parseDouble(QStringView text)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return {};
    return number;
}

static std::optional<bool> parseBoolean(QStringView text)
{
    if (text == u"1" || text == u"true")
        return true;
    if (text == u"0" || text == u"false")
        return false;
    return {};
}

static std::optional<QList<QList<double>>> parsePoints(QStringView text)
{
    QList<QList<double>> points;
    if (text.isEmpty())
        return points;
    qsizetype bytes = 0;
    for (const QStringView pointText : text.tokenize(u';')) {
        QList<double> point;
        for (const QStringView numberText : pointText.tokenize(u',')) {
            const std::optional<double> number = parseDouble(numberText);
            if (!number)
                return {};
            point.append(*number);
        }
        // An inner array consists of its padded length and its numbers. If the whole array had more
        // bytes, the bus would close the relay's connection.
        bytes += 8 + point.size() * qsizetype(sizeof(double));
        if (bytes > maxArrayBytes)
            return {};
        points.append(std::move(point));
    }
    return points;
}

// Returns the D-Bus value of an argument, or an invalid variant if \a value is not of this type.
static QVariant parseValue(QStringView type, QStringView value)
{
    if (type == u"int32") {
        bool ok = false;
        const int number = value.toInt(&ok);
        return ok ? QVariant(number) : QVariant();
    }
    if (type == u"double") {
        const std::optional<double> number = parseDouble(value);
        return number ? QVariant(*number) : QVariant();
    }
    if (type == u"boolean") {
        const std::optional<bool> flag = parseBoolean(value);
        return flag ? QVariant(*flag) : QVariant();
    }
    if (type == u"string") // D-Bus texts cannot contain NUL
        return value.contains(QChar::Null) ? QVariant() : QVariant(value.toString());
    if (type == arrayType.chopped(1)) {
        const std::optional<QList<QList<double>>> points = parsePoints(value);
        return points ? QVariant::fromValue(*points) : QVariant();
    }
    return {};
}

static bool parseArguments(QStringView text, Request *request)
{
    if (text.isEmpty())
        return true;
    for (const QStringView token : text.tokenize(u' ')) {
        const qsizetype typeEnd
            = token.startsWith(arrayType) ? arrayType.size() - 1 : token.indexOf(u':');
        if (typeEnd < 0)
            return false;
        const QStringView value = token.sliced(typeEnd + 1);
        QVariant argument = parseValue(token.first(typeEnd), value);
        if (!argument.isValid())
            return false;
        request->arguments.append(std::move(argument));
        request->argumentTexts.append(value.toString());
    }
    return true;
}

static Request invalid(const QString &error)
{
    Request request;
    request.error = error;
    return request;
}

Request parseRequest(const QString &line)
{
    constexpr int nameCount = 5; // the space after the fifth may be missing without arguments
    QStringList names;
    QStringView rest = line;
    while (names.size() < nameCount && !rest.isNull()) {
        const qsizetype end = rest.indexOf(u' ');
        names.append((end < 0 ? rest : rest.first(end)).toString());
        rest = end < 0 ? QStringView() : rest.sliced(end + 1);
    }
    if (names.size() < nameCount)
        return invalid(u"The request has too few fields"_s);

    if (names.at(0) != "system"_L1)
        return invalid(u"The request's bus is not known"_s);
    Request request;
    request.service = names.at(1);
    request.objectPath = names.at(2);
    request.interface = names.at(3);
    request.method = names.at(4);
    if (!isBusName(request.service))
        return invalid(u"The request's service is not a D-Bus name"_s);
    if (!isObjectPath(request.objectPath))
        return invalid(u"The request's object is not a D-Bus path"_s);
    if (!isInterfaceName(request.interface))
        return invalid(u"The request's interface is not a D-Bus name"_s);
    if (!isMethodName(request.method))
        return invalid(u"The request's method is not a D-Bus name"_s);
    if (!parseArguments(rest, &request)) {
        return invalid(u"Argument %1 of %2 has an unknown type or a bad value"_s
                           .arg(request.arguments.size() + 1)
                           .arg(request.method));
    }
    return request;
}

QString replyLine(const Request &request, const QString &returned, const QString &errorName,
                  const QString &errorText)
{
    return request.method % u':' % request.argumentTexts.join(u'|') % u':' % returned % u':'
           % errorName % u':' % errorText;
}

QString returnedText(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? u"1"_s : u"0"_s;
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(u',');
    return value.toString();
}

QString invalidRequestLine(const QString &error)
{
    return replyLine({}, {}, u"org.vexa.RemoteDBusInvoker.Error.InvalidRequest"_s, error);
}

} // namespace NimbraEmulator
