#pragma once

#include "commandline.h"

#include <link/servicemethods.h>

#include <functional>
#include <optional>

namespace EmulationCtl {

class Session;

/// What a command does once the link is there, before the session is closed.
using Calls = std::function<void(Session &)>;

/*!
 * Returns the calls of the commands status, sensor, set, position and call.
 *
 * Returns nothing if the arguments are wrong: \a error says why, or is empty if the command printed
 * all that was wanted.
 */
[[nodiscard]] std::optional<Calls> callsOf(const CommandLine &line, QString *error);

} // namespace EmulationCtl
