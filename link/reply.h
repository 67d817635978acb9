#pragma once

#include <QStringList>

namespace EmulationManagement::Internal {

/// The fields of a reply line "method:arguments:returned value:error name:error text".
enum ReplyField { ReplyMethod, ReplyArguments, ReplyValue, ReplyErrorName, ReplyErrorText };

/*!
 * Returns the five fields, which are parts of \a line and not copies, or nothing if the line has
 * another number of fields.
 */
[[nodiscard]] QStringList replyFields(const QString &line);

/// Returns the error name and the error text, as the user sees them.
[[nodiscard]] QString replyError(QStringView errorName, QStringView errorText);

} // namespace EmulationManagement::Internal
