#pragma once

#include <QFile>
#include <QJsonObject>

namespace NimbraEmulator {

/// The record of the emulator's actions on standard output: one compact JSON object a line, in the
/// order of the events, each line flushed at once.
class JournalWriter
{
public:
    JournalWriter();

    /// Adds a line with \a details and the members "time" (UTC, ISO 8601) and "event".
    void write(QLatin1StringView event, QJsonObject details = {});

private:
    QFile m_file;
};

} // namespace NimbraEmulator
