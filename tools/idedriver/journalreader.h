#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

/*!
 * Follows the emulator's journal, one JSON object a line.
 *
 * A position in the journal is the number of entries before it.
 */
class JournalReader
{
public:
    explicit JournalReader(const QString &path);

    /// Forgets all entries so far: positions count from here on.
    void clear();
    /// The position behind the last entry.
    [[nodiscard]] qsizetype position();
    [[nodiscard]] QList<QJsonObject> entriesSince(qsizetype position);
    /// The number of entries of this event, for example "ssh".
    [[nodiscard]] qsizetype countSince(qsizetype position, const QString &event);
    /// The D-Bus calls as "method arguments", without the address.
    [[nodiscard]] QStringList callsSince(qsizetype position);

    /// Waits for an entry of this event, for example "ready".
    void waitForEvent(const QString &event, qsizetype since);
    /// Waits for a call, for example "setAccelerometerX int32:10".
    void waitForCall(const QString &call, qsizetype since);

private:
    void read();

    QFile m_file;
    QByteArray m_partialLine;
    QList<QJsonObject> m_entries;
};
