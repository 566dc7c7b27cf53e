// The command `inverse`: from spectra back to samples.
#pragma once

#include "command_line.h"

namespace spectrum {

void declareInverse(CLI::App& app, Words& words);
int runInverse(const Words& words);

}  // namespace spectrum
