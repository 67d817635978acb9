#pragma once

#include "servicemethods.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <chrono>
#include <vector>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

namespace EmulationManagement::Internal {

struct Place;

/// A call of a recording.
struct RecordedCall
{
    std::chrono::microseconds time{}; ///< since the recording's start
    const ServiceMethod *method = nullptr;
    QString arguments = {}; ///< as MethodArguments writes them
};

/*!
 * What was sent to an emulator, with the times. docs/recordings.md describes the files.
 *
 * A file is accepted as a whole or not at all: nothing of one with a mistake is played.
 */
class Recording
{
    Q_DECLARE_TR_FUNCTIONS(EmulationManagement::Internal::Recording)

public:
    static constexpr int version = 1;
    static const QString formatName;
    /// The end of the names of files.
    static const QString fileSuffix;

    /// Reads a file. Takes about a second for half a million calls.
    [[nodiscard]] static Recording read(QIODevice &device);
    [[nodiscard]] static Recording readFile(const QString &path);

    /// A sentence with the number of the line, or an empty text if the recording can be played.
    [[nodiscard]] const QString &error() const { return m_error; }
    /// What was left out. Empty if nothing was.
    [[nodiscard]] const QString &warning() const { return m_warning; }

    [[nodiscard]] const QDateTime &start() const { return m_start; }
    /// In the order of their times.
    [[nodiscard]] const std::vector<RecordedCall> &calls() const { return m_calls; }
    /// The time of the last call.
    [[nodiscard]] std::chrono::microseconds duration() const
    {
        return m_calls.empty() ? std::chrono::microseconds() : m_calls.back().time;
    }

    /// Moves all positions, see PositionShift.
    void movePositions(const Place &place);

private:
    [[nodiscard]] QString readHeader(const QByteArray &line);
    [[nodiscard]] QString readCall(const QByteArray &line);

    QDateTime m_start;
    std::vector<RecordedCall> m_calls;
    double m_time = 0; // milliseconds
    QString m_error;
    QString m_warning;
};

} // namespace EmulationManagement::Internal
