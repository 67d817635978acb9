#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>

/*!
 * \file
 * How the arguments of a call are written: one token "type:value" an argument, separated by single
 * spaces.
 *
 * The emulator-side relay splits the text on spaces and converts each value to the D-Bus type that
 * its token names. Numbers are written in the C locale.
 */

namespace EmulationManagement::Internal {

/// INT32.
[[nodiscard]] QString int32Argument(int value);
/// BOOLEAN, written as 1 or 0.
[[nodiscard]] QString booleanArgument(bool value);
/// DOUBLE in general notation with six significant digits.
[[nodiscard]] QString doubleArgument(double value);
/// DOUBLE in fixed notation.
[[nodiscard]] QString doubleArgument(double value, int decimals);
/// STRING. \a value must not hold spaces: the relay would take the rest for another argument.
[[nodiscard]] QString stringArgument(const QString &value);

/// Several arguments of one call, in the order of the method's signature.
[[nodiscard]] QString joinArguments(const QStringList &arguments);

/*!
 * One argument of type ARRAY of ARRAY of DOUBLE, written array by array.
 *
 * Numbers are separated by commas and arrays by semicolons.
 */
class DoubleArraysArgument
{
public:
    /// \a expectedSize is the length of the whole text in characters, an estimate.
    explicit DoubleArraysArgument(qsizetype expectedSize);

    /// Appends an array; \a numbers are texts in the C locale.
    void append(std::initializer_list<QString> numbers);

    [[nodiscard]] QString toString() const { return m_text; }

private:
    QString m_text;
    bool m_empty = true;
};

} // namespace EmulationManagement::Internal
