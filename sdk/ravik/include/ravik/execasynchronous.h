#pragma once

#include "ravik_global.h"

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Ravik {

/// Starts an asynchronous operation and waits for its result in a local event loop. \a start
/// receives the context and the callback for the operation. Returns false when the application
/// quits meanwhile.
RAVIK_EXPORT bool execAsynchronous(
    const std::function<void(const QObject *context, std::function<void(bool)> callback)> &start);

} // namespace Ravik
