#pragma once

#include "servicemethods.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QString>

namespace EmulationManagement::Internal {

/*!
 * Converts the arguments of a call between their forms: the text of a request (see
 * argumentencoding.h), JSON values, and texts for people.
 *
 * The camera's arguments may contain spaces, so their text is a JSON array instead.
 */
class MethodArguments
{
    Q_DECLARE_TR_FUNCTIONS(EmulationManagement::Internal::MethodArguments)

public:
    /// The text of a request, or a sentence that says what is wrong.
    struct Encoded
    {
        QString text = {};
        QString error = {};
    };

    /// Refuses values that the method does not have: another number or type, out of range.
    [[nodiscard]] static Encoded fromJson(const ServiceMethod &method, const QJsonArray &values);
    /// Reads each text as a value of its argument's type, in the C locale, and points as JSON.
    [[nodiscard]] static Encoded fromTexts(const ServiceMethod &method, const QStringList &texts);
    /// Returns the values of a request that the plugin has made.
    [[nodiscard]] static QJsonArray toJson(const ServiceMethod &method, QStringView text);

    /// Returns names, values and units: "x 250 mg, y 0 mg, z 1000 mg".
    [[nodiscard]] static QString description(const ServiceMethod &method, QStringView text);
    /// Returns the method with its arguments' names, units and ranges, as its usage.
    [[nodiscard]] static QString usage(const ServiceMethod &method);
    /// Returns unit and range, "0 to 3" for example, or the accepted texts. May be empty.
    [[nodiscard]] static QString limits(const MethodArgument &argument);
};

} // namespace EmulationManagement::Internal
