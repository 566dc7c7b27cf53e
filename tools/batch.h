// The command `batch`: many files on all cores of a machine.
#pragma once

#include "command_line.h"

namespace spectrum {

void declareBatch(CLI::App& app, Words& words);
int runBatch(const Words& words);

}  // namespace spectrum
