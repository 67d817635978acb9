#pragma once

#include <QFile>
#include <QJsonObject>

namespace NimbraEmulator {

/// Writes the record of the emulator's actions to standard output: each line is one compact JSON
/// object, the lines have the order of the events, and each is flushed at once.
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
