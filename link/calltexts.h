#pragma once

#include "calllog.h"

#include <QCoreApplication>
#include <QString>

namespace EmulationManagement::Internal {

/// Texts of logged calls, for the table and for the clipboard.
class CallTexts
{
    Q_DECLARE_TR_FUNCTIONS(EmulationManagement::Internal::CallTexts)

public:
    /// The time of day with milliseconds.
    [[nodiscard]] static QString time(const CallLog &log, const LoggedCall &call);
    /// Arguments with names and units, or the whole text of what is not described.
    [[nodiscard]] static QString arguments(const LoggedCall &call);
    /// The returned value, the error, or what became of the call.
    [[nodiscard]] static QString reply(const LoggedCall &call);
    /// In milliseconds, or empty without a reply.
    [[nodiscard]] static QString latency(const LoggedCall &call);

    /// All of it, separated by tabs.
    [[nodiscard]] static QString line(const CallLog &log, const LoggedCall &call);
    [[nodiscard]] static QString csvHeader();
    /// A line of RFC 4180, with the time in full.
    [[nodiscard]] static QString csvLine(const CallLog &log, const LoggedCall &call);
    /// The command line that makes the same call in a shell. Empty if there is none.
    [[nodiscard]] static QString command(const LoggedCall &call);
};

} // namespace EmulationManagement::Internal
