#pragma once

#include "session.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace EmulationCtl {

/// What the user wants.
struct CommandLine
{
    GeneralOptions general;
    QString command;
    QStringList arguments;
    QHash<QString, QString> options; ///< of the command; an option without a value has an empty one

    [[nodiscard]] bool isSet(const QString &option) const { return options.contains(option); }
    [[nodiscard]] QString value(const QString &option) const { return options.value(option); }
};

/*!
 * Reads the program's arguments. Negative numbers are values and no options.
 *
 * Returns nothing if the program has to end with \a status: the arguments were wrong, which the
 * user was told, or the user wanted help.
 */
[[nodiscard]] std::optional<CommandLine> parseCommandLine(const QStringList &arguments,
                                                          ExitStatus *status);

/// Returns the right form of a command, for messages.
[[nodiscard]] QString usage(const QString &command);

} // namespace EmulationCtl
