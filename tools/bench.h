// The command `bench`: how long the transforms of a family take on this machine.
#pragma once

#include "command_line.h"

namespace spectrum {

void declareBench(CLI::App& app, Words& words);
int runBench(const Words& words);

}  // namespace spectrum
