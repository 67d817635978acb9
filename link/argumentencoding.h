#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>

/*!
 * \file
 * Writes the arguments of a call. Each argument is one token "type:value"; single spaces separate
 * the tokens.
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
/// STRING. \a value must not contain spaces: the relay would read the rest as another argument.
[[nodiscard]] QString stringArgument(const QString &value);

/// Several arguments of one call, in the order of the method's signature.
[[nodiscard]] QString joinArguments(const QStringList &arguments);

/*!
 * Writes one argument of type ARRAY of ARRAY of DOUBLE, one inner array at a time.
 *
 * Commas separate numbers, and semicolons separate inner arrays.
 */
class DoubleArraysArgument
{
public:
    /// \a begin is text before the argument; \a expectedSize is an estimate of the length of the
    /// argument, in characters.
    DoubleArraysArgument(const QString &begin, qsizetype expectedSize);

    /// Appends an inner array. \a numbers are texts in the C locale.
    void append(std::initializer_list<QString> numbers);

    [[nodiscard]] QString toString() const { return m_text; }

private:
    QString m_text;
    bool m_empty = true;
};

} // namespace EmulationManagement::Internal
