#pragma once

#include "commandline.h"

#include <optional>

namespace EmulationCtl {

/// Runs the commands camera and video and returns the exit status, or nothing if the arguments are
/// wrong: \a error says why.
[[nodiscard]] std::optional<int> streamPictures(const CommandLine &line, QString *error);

} // namespace EmulationCtl
