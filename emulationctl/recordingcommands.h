#pragma once

#include "commandline.h"

#include <link/positionshift.h>

#include <optional>

namespace EmulationCtl {

/// Reads "latitude,longitude", or returns nothing.
[[nodiscard]] std::optional<EmulationManagement::Internal::Place> parsePlace(const QString &text);
[[nodiscard]] QString placeError(const QString &text);

// The commands play, info and move. They return the exit status, or nothing if the arguments are
// wrong: \a error says why.
[[nodiscard]] std::optional<int> playRecording(const CommandLine &line, QString *error);
[[nodiscard]] int describeRecording(const CommandLine &line);
[[nodiscard]] std::optional<int> moveFile(const CommandLine &line, QString *error);

} // namespace EmulationCtl
