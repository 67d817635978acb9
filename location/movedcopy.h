#pragma once

#include <QCoreApplication>
#include <QString>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace EmulationManagement::Internal {

struct Place;

/*!
 * Copies of recordings and of NMEA logs that lie at another place, see PositionShift.
 *
 * Of an NMEA log only the lines with one position are copied: others may tell the place, too. A
 * position is four fields such as "4807.038,N,01131.000,E". Lines with a checksum get a new one.
 */
class MovedCopy
{
    Q_DECLARE_TR_FUNCTIONS(EmulationManagement::Internal::MovedCopy)

public:
    /// Writes \a target. Returns a sentence if that failed, else an empty text.
    [[nodiscard]] static QString write(QIODevice &source, const Place &place, QIODevice &target);
    /// Likewise. An older file \a target stays if the new one cannot be written. It may be
    /// \a source.
    [[nodiscard]] static QString writeFile(const QString &source, const Place &place,
                                           const QString &target);
};

} // namespace EmulationManagement::Internal
