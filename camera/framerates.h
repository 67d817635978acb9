#pragma once

#include <QString>
#include <QStringList>

// Frame rates are texts "numerator/denominator", as in GStreamer's caps.

/// An end of a range of frame rates.
enum class LIMIT { Low, High };

/*!
 * Turns a list of fractions "30000/1001,15/2" into whole frame rates: 29/1 and 7/1, truncated.
 *
 * A part that is no fraction, or whose denominator is "1", stays as it is. A denominator that is
 * no number above 1 counts as 1, a numerator that is no number as 0.
 */
[[nodiscard]] QStringList normalizeFractions(const QString &text);

/// An end of a serialised range "[ 5/1, 30/1 ]" as a whole number, truncated; 0 where there is
/// none.
[[nodiscard]] int parseGstFramerate(const QString &text, LIMIT limit);

/*!
 * Appends a choice of frame rates within a serialised range: its low end, that plus one, and each
 * multiple of five from there up to the first that is not below the high end.
 *
 * No text counts as 1/1. An endless range ends after some 200 rates.
 */
void initFrameratesFromRange(QStringList *framerates, const QString &text);

/*!
 * Appends the frame rates of a serialised field "framerate", which is a list in braces, a range in
 * brackets or a single fraction, and sorts all by their numerators, largest first.
 *
 * Fractions of a list become whole rates; a single one stays as it is, 30000/1001 for example.
 */
void initAvailableFramerates(QStringList *framerates, const QString &text);
