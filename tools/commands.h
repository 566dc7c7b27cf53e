// The table of commands, for the program, its help, its manual page and its completion.
#pragma once

#include <string>
#include <vector>

#include "command_line.h"

namespace spectrum {

// The first is the plain run, which has no name.
const std::vector<Command>& commands();

std::string versionText();

}  // namespace spectrum
