#include "journalwriter.h"

#include <QDateTime>
#include <QJsonDocument>

#include <unistd.h>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

JournalWriter::JournalWriter()
{
    // open() fails only when standard output is closed; then nobody reads the journal.
    [[maybe_unused]] const bool opened
        = m_file.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void JournalWriter::write(QLatin1StringView event, QJsonObject details)
{
    if (!m_file.isOpen())
        return;
    details.insert("time"_L1, QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    details.insert("event"_L1, event);
    m_file.write(QJsonDocument(details).toJson(QJsonDocument::Compact) + '\n');
}

} // namespace NimbraEmulator
