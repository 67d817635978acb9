#include "waiting.h"

#include <QTest>

using namespace Qt::StringLiterals;

void waitFor(const QString &what, const std::function<bool()> &condition,
             std::chrono::milliseconds limit)
{
    if (!QTest::qWaitFor(condition, QDeadlineTimer(limit)))
        throw WaitingFailed(u"waited in vain for %1"_s.arg(what).toStdString());
}
