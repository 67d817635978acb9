#include "ravik/execasynchronous.h"

#include <QEventLoop>

#include <optional>

namespace Ravik {

bool execAsynchronous(
    const std::function<void(const QObject *context, std::function<void(bool)> callback)> &start)
{
    QEventLoop loop;
    std::optional<bool> result;
    start(&loop, [&](bool success) {
        result = success;
        loop.quit();
    });
    // The operation may already have called back.
    if (!result)
        loop.exec();
    return result.value_or(false);
}

} // namespace Ravik
