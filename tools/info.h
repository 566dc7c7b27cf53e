// The command `info`: one routine of the library, or the library itself.
#pragma once

#include "command_line.h"

namespace spectrum {

void declareInfo(CLI::App& app, Words& words);
int runInfo(const Words& words);

}  // namespace spectrum
