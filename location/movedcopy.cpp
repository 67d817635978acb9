#include "movedcopy.h"

#include <link/positionshift.h>
#include <link/recording.h>
#include <link/recordingwriter.h>

#include <QBuffer>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

/// Degrees of "4807.038", which is degrees and minutes.
static double parseDegrees(const QString &text)
{
    const double value = text.toDouble();
    const double degrees = std::floor(value / 100);
    return degrees + (value - 100 * degrees) / 60;
}

/// The field of an absolute value and that of its hemisphere, for example "4807.038,N".
static QString formatDegrees(double degrees, int degreesSize, int decimals,
                             QLatin1StringView hemispheres)
{
    // Whole numbers of the last decimal, so that there are never 60 minutes.
    const qint64 minute = std::llround(std::pow(10, decimals));
    const qint64 value = std::llround(std::abs(degrees) * 60 * double(minute));
    const double minutes = double(value % (60 * minute)) / double(minute);
    const int minutesSize = 3 + decimals; // two digits and the point
    return QString::number(value / (60 * minute)).rightJustified(degreesSize, u'0')
           + QString::number(minutes, 'f', decimals).rightJustified(minutesSize, u'0') + u','
           + hemispheres.at(degrees < 0 ? 1 : 0);
}

/// The exclusive or of the characters between "$" and "*".
static QString checksum(QStringView sentence)
{
    uint sum = 0;
    for (const QChar character : sentence)
        sum ^= character.unicode();
    return QString::number(sum & 0xff, 16).rightJustified(2, u'0').toUpper();
}

/// Returns an empty text if the line has no position, or more than one.
static QString moveSentence(const QString &line, PositionShift &shift)
{
    static const QRegularExpression position(
        u"(\\d{3,}\\.(\\d+)),([NS]),(\\d{3,}\\.\\d+),([EW])"_s);
    const QRegularExpressionMatch match = position.match(line);
    if (!match.hasMatch() || position.match(line, match.capturedEnd()).hasMatch())
        return {};
    const auto signedValue = [&](int value, int hemisphere) {
        const QString name = match.captured(hemisphere);
        const double degrees = parseDegrees(match.captured(value));
        return name == "S"_L1 || name == "W"_L1 ? -degrees : degrees;
    };
    double latitude = signedValue(1, 3);
    double longitude = signedValue(4, 5);
    shift.move(latitude, longitude);
    const int decimals = int(std::clamp<qsizetype>(match.capturedLength(2), 3, 8));
    QString moved = line;
    moved.replace(match.capturedStart(), match.capturedLength(),
                  formatDegrees(latitude, 2, decimals, "NS"_L1) + u','
                      + formatDegrees(longitude, 3, decimals, "EW"_L1));
    const qsizetype star = moved.lastIndexOf(u'*');
    return star < 0 ? moved
                    : moved.first(star + 1) + checksum(QStringView(moved).first(star).sliced(1));
}

/// Returns the number of lines that were written.
static qint64 writeNmeaLog(const QByteArray &log, const Place &place, QIODevice &target)
{
    static const QRegularExpression lines(u"[^\\r\\n]+"_s);
    PositionShift shift(place);
    qint64 count = 0;
    const QString text = QString::fromLatin1(log);
    for (const QRegularExpressionMatch &match : lines.globalMatchView(text)) {
        const QString line = moveSentence(match.captured(), shift);
        if (line.isEmpty())
            continue;
        target.write(line.toLatin1() + "\r\n");
        ++count;
    }
    return count;
}

QString MovedCopy::write(QIODevice &source, const Place &place, QIODevice &target)
{
    const QByteArray content = source.readAll();
    const QByteArray begin = content.first(std::min<qsizetype>(content.size(), 100)).trimmed();
    if (begin.startsWith('{') || begin.startsWith('#')) {
        QBuffer buffer;
        buffer.setData(content);
        buffer.open(QIODevice::ReadOnly);
        Recording recording = Recording::read(buffer);
        if (!recording.error().isEmpty())
            return recording.error();
        recording.movePositions(place);
        RecordingWriter::write(recording, target);
        return {};
    }
    return writeNmeaLog(content, place, target) > 0
               ? QString()
               : tr("The file is neither a recording nor a track.");
}

QString MovedCopy::writeFile(const QString &source, const Place &place, const QString &target)
{
    QFile input(source);
    if (!input.open(QIODevice::ReadOnly))
        return input.errorString();
    QSaveFile output(target);
    if (!output.open(QIODevice::WriteOnly))
        return output.errorString();
    const QString error = write(input, place, output);
    if (!error.isEmpty())
        return error; // an output that is not committed is dropped
    return output.commit() ? QString() : output.errorString();
}

} // namespace EmulationManagement::Internal
