#pragma once

#include "journalwriter.h"

namespace NimbraEmulator {

using Journal = JournalWriter;

} // namespace NimbraEmulator
