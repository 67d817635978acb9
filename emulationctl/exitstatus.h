#pragma once

namespace EmulationCtl {

/// What the program returns to the shell. Scripts depend on the numbers.
enum ExitStatus {
    Success = 0,  ///< the emulator answered every call without an error
    Refused = 1,  ///< the emulator refused a call, or a stream sends nothing
    WrongUse = 2, ///< of the command line or of a file
    NoLink = 3    ///< the emulator cannot be reached or does not answer
};

} // namespace EmulationCtl
