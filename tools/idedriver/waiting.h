#pragma once

#include <QString>

#include <chrono>
#include <functional>
#include <stdexcept>

/// A condition was not met in time; what() names it.
class WaitingFailed : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Runs the event loop until \a condition holds. Throws WaitingFailed after \a limit.
void waitFor(const QString &what, const std::function<bool()> &condition,
             std::chrono::milliseconds limit = std::chrono::seconds(20));
