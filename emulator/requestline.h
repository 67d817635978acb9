#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

namespace NimbraEmulator {

/// One D-Bus call that a client of the relay asks for.
///
/// A request line is "bus service path interface method arguments", split on single spaces. The
/// arguments are "type:value" tokens, split on single spaces too, so that no value can hold one:
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
    QStringList argumentTexts; ///< the values as the line has them
    QString error;             ///< one sentence without ":"; empty: the request is valid
};

/// Reads a request line. Of a bad one only `error` is set; what it accepts, D-Bus can carry.
[[nodiscard]] Request parseRequest(const QString &line);

/// The line that answers \a request: five fields with ":" in between. Nothing is escaped: a text
/// with ":" makes more fields.
[[nodiscard]] QString replyLine(const Request &request, const QString &returned,
                                const QString &errorName = {}, const QString &errorText = {});

/// \a value, an argument of a D-Bus message, as the reply line has it: 1 or 0 for a boolean, the
/// elements with "," in between for a list of texts, nothing for other compound values.
[[nodiscard]] QString returnedText(const QVariant &value);

/// Returns the answer to what is not a request.
[[nodiscard]] QString invalidRequestLine(const QString &error);

} // namespace NimbraEmulator
