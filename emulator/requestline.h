#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

namespace NimbraEmulator {

/// One D-Bus call, as a client of the relay requests it.
///
/// A request line is "bus service path interface method arguments", split on single spaces. The
/// arguments are "type:value" tokens, also split on single spaces, so no value contains a space:
///  - int32, double (both in C notation) and string;
///  - boolean: 1, 0, true or false;
///  - array:array:double: with ";" between the inner arrays and "," between their numbers.
struct Request
{
    QString service;
    QString objectPath;
    QString interface;
    QString method;
    QVariantList arguments;
    QStringList argumentTexts; ///< the values as written in the line
    QString error;             ///< one sentence without ":"; empty: the request is valid
};

/// Parses a request line. Sets only `error` if it is invalid. D-Bus can carry every valid request.
[[nodiscard]] Request parseRequest(const QString &line);

/// The reply to \a request: five fields separated by ":". Nothing is escaped, so each ":" in a text
/// adds a field.
[[nodiscard]] QString replyLine(const Request &request, const QString &returned,
                                const QString &errorName = {}, const QString &errorText = {});

/// The text of \a value, an argument of a D-Bus message, in a reply line: 1 or 0 for a boolean, the
/// elements separated by "," for a list of texts, empty for other compound values.
[[nodiscard]] QString returnedText(const QVariant &value);

/// The reply to a line that is not a valid request.
[[nodiscard]] QString invalidRequestLine(const QString &error);

} // namespace NimbraEmulator
