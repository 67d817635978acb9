#include "waiting.h"

#include <QTest>

void waitFor(const QString &what, const std::function<bool()> &condition,
             std::chrono::milliseconds limit)
{
    if (!QTest::qWaitFor(condition, QDeadlineTimer(limit)))
        throw WaitingFailed(QStringLiteral("waited in vain for %1").arg(what).toStdString());
}
