#pragma once

#include "ravik_global.h"

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Ravik {

/// Starts an asynchronous operation and waits for its result in a local event loop. \a start is
/// given the context and the callback to hand on to the operation. False when the application
/// quits meanwhile.
RAVIK_EXPORT bool execAsynchronous(
    const std::function<void(const QObject *context, std::function<void(bool)> callback)> &start);

} // namespace Ravik
