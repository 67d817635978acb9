#include "journalreader.h"

#include "waiting.h"

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

// Bus, service, object path and interface precede the method in a request line.
static constexpr qsizetype addressFieldCount = 4;

JournalReader::JournalReader(const QString &path)
    : m_file(path)
{}

void JournalReader::clear()
{
    read();
    m_entries.clear();
}

qsizetype JournalReader::position()
{
    read();
    return m_entries.size();
}

QList<QJsonObject> JournalReader::entriesSince(qsizetype position)
{
    read();
    return m_entries.sliced(position);
}

qsizetype JournalReader::countSince(qsizetype position, const QString &event)
{
    const QList<QJsonObject> entries = entriesSince(position);
    return std::ranges::count_if(entries, [&](const QJsonObject &entry) {
        return entry.value(u"event").toString() == event;
    });
}

QStringList JournalReader::callsSince(qsizetype position)
{
    QStringList calls;
    const QList<QJsonObject> entries = entriesSince(position);
    for (const QJsonObject &entry : entries) {
        if (entry.value(u"event").toString() == u"call")
            calls << entry.value(u"text").toString().section(u' ', addressFieldCount);
    }
    return calls;
}

void JournalReader::waitForEvent(const QString &event, qsizetype since)
{
    waitFor(u"the emulator's event \"%1\""_s.arg(event),
            [&] { return countSince(since, event) > 0; });
}

void JournalReader::waitForCall(const QString &call, qsizetype since)
{
    try {
        waitFor(u"the emulator to get \"%1\""_s.arg(call),
                [&] { return callsSince(since).contains(call); });
    } catch (const WaitingFailed &error) {
        throw WaitingFailed(error.what() + std::string("; it got:\n")
                            + callsSince(since).join(u'\n').toStdString());
    }
}

void JournalReader::read()
{
    // the emulator creates the file when it starts
    if (!m_file.isOpen() && (!m_file.exists() || !m_file.open(QIODevice::ReadOnly)))
        return;
    m_partialLine += m_file.readAll();
    QByteArrayList lines = m_partialLine.split('\n');
    m_partialLine = lines.takeLast();
    for (const QByteArray &line : std::as_const(lines))
        m_entries << QJsonDocument::fromJson(line).object();
}
