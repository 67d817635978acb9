#pragma once

#include <QString>
#include <QStringList>

// Frame rates are texts "numerator/denominator" in frames per second, as in GStreamer's caps.

/// The ends of a range of frame rates.
enum class LIMIT { Low, High };

/*!
 * Truncates a list of fractions to whole frame rates: "30000/1001,15/2" becomes 29/1 and 7/1.
 *
 * A part that is not a fraction, or has the denominator "1", stays as it is. Any other denominator
 * that is not a number above 1 counts as 1. A numerator that is not a number counts as 0.
 */
[[nodiscard]] QStringList normalizeFractions(const QString &text);

/// One end of a serialised range "[ 5/1, 30/1 ]", truncated to a whole number. 0 if the text has no
/// such end or its denominator is 0.
[[nodiscard]] int parseGstFramerate(const QString &text, LIMIT limit);

/*!
 * Appends a choice of frame rates from a serialised range "[ 5/1, 30/1 ]": the low end, the low end
 * plus one, and the multiples of five above, up to the first that reaches the high end.
 *
 * An empty text counts as the range from 1/1 to 1/1. At most about 200 rates are appended.
 */
void initFrameratesFromRange(QStringList *framerates, const QString &text);

/*!
 * Appends the frame rates of a serialised field "framerate", and sorts all by their numerators,
 * largest first.
 *
 * The field is a list in braces, see normalizeFractions(), a range in brackets, see
 * initFrameratesFromRange(), or a single fraction. Only a single fraction is not truncated:
 * 30000/1001 stays as it is.
 */
void initAvailableFramerates(QStringList *framerates, const QString &text);
