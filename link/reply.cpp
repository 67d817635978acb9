#include "reply.h"

#include <QStringTokenizer>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

static constexpr qsizetype replyFieldCount = ReplyErrorText + 1;

QStringList replyFields(const QString &line)
{
    QStringList fields;
    for (const QStringView field : QStringTokenizer(line, u':')) {
        // Millions of fields would take many times the memory of the line.
        if (fields.size() == replyFieldCount)
            return {};
        fields.append(QString::fromRawData(field.data(), field.size()));
    }
    return fields.size() == replyFieldCount ? fields : QStringList();
}

QString replyError(QStringView errorName, QStringView errorText)
{
    return errorName % u' ' % errorText;
}

} // namespace EmulationManagement::Internal
