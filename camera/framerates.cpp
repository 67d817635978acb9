#include "framerates.h"

#include <QList>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

// Limits the rates that a range gives: its high end may be the largest integer, although no camera
// exceeds a few hundred frames/s.
static constexpr qsizetype maxRangeSize = 200;
static constexpr qint64 rangeStep = 5;

static QStringList splitAtCommas(const QString &text)
{
    return text.split(u',', Qt::SkipEmptyParts);
}

static QString wholeFramerate(qint64 framesPerSecond)
{
    return u"%1/1"_s.arg(framesPerSecond);
}

static int numerator(const QString &framerate)
{
    return framerate.section(u'/', 0, 0).toInt();
}

QStringList normalizeFractions(const QString &text)
{
    QStringList framerates = splitAtCommas(text);
    for (QString &framerate : framerates) {
        const QStringList pieces = framerate.split(u'/');
        if (pieces.size() == 2 && pieces.at(1) != u"1")
            framerate = wholeFramerate(numerator(framerate) / std::max(pieces.at(1).toInt(), 1));
    }
    return framerates;
}

int parseGstFramerate(const QString &text, LIMIT limit)
{
    QString ends = text;
    ends.removeIf([](QChar character) { return QStringView(u"[] ").contains(character); });
    const QStringList pieces = splitAtCommas(ends).value(static_cast<int>(limit)).split(u'/');
    const qint64 denominator = pieces.value(1).toInt();
    return denominator == 0 ? 0 : static_cast<int>(pieces.constFirst().toInt() / denominator);
}

void initFrameratesFromRange(QStringList *framerates, const QString &text)
{
    const qint64 low = text.isEmpty() ? 1 : parseGstFramerate(text, LIMIT::Low);
    const qint64 high = text.isEmpty() ? 1 : parseGstFramerate(text, LIMIT::High);

    QList<qint64> rates{low};
    if (low != high)
        rates << low + 1;
    while (rates.constLast() < high && rates.size() < maxRangeSize) {
        if (rates.constLast() % rangeStep != 0)
            rates << rates.constLast() / rangeStep * rangeStep + rangeStep;
        rates << rates.constLast() + rangeStep;
    }
    std::ranges::transform(rates, std::back_inserter(*framerates), wholeFramerate);
}

void initAvailableFramerates(QStringList *framerates, const QString &text)
{
    if (text.contains(u'{') && text.contains(u'}')) {
        // for example "{ (fraction)30/1, (fraction)15/1 }"
        QString fractions = text;
        fractions.removeIf(
            [](QChar character) { return QStringView(u"{}(fraction) ").contains(character); });
        *framerates << normalizeFractions(fractions);
    } else if (text.contains(u'[') && text.contains(u']')) {
        initFrameratesFromRange(framerates, text);
    } else {
        *framerates << splitAtCommas(text);
    }
    std::ranges::stable_sort(*framerates, std::ranges::greater(), numerator);
}
