#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <vector>

namespace EmulationManagement::Internal {

class CallLog;
struct LoggedCall;

/// The dialogs that ask for files of recordings.
///
/// They do not block: \a use gets the path unless \a context is gone by then.
class RecordingFiles
{
    Q_DECLARE_TR_FUNCTIONS(EmulationManagement::Internal::RecordingFiles)

public:
    using Use = std::function<void(const QString &path)>;

    /// Asks for a file to read. \a filter is that of QFileDialog::setNameFilter().
    static void askToRead(QObject *context, const QString &title, const QString &filter,
                          const Use &use);
    /// Asks for a file to write, whose name gets \a suffix unless it has one.
    static void askToWrite(QObject *context, const QString &title, const QString &suffix,
                           const Use &use);
    /// Asks for a file and writes \a calls of \a log as a recording. The messages tell the result.
    static void save(QObject *context, const std::vector<LoggedCall> &calls, const CallLog &log);
    /// The filter of recordings.
    [[nodiscard]] static QString recordingFilter();
};

} // namespace EmulationManagement::Internal
