#pragma once

#include "commandline.h"

#include <optional>

namespace EmulationCtl {

/// Plays a track by the player of the window and returns the exit status, or nothing if the
/// arguments are wrong: \a error says why.
[[nodiscard]] std::optional<int> playTrack(const CommandLine &line, QString *error);

} // namespace EmulationCtl
