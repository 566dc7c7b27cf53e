// The statuses of the library in words.
// Nothing else in the tool knows what a status means.
#pragma once

#include <string>

#include "zulgenpx.h"

namespace spectrum {

std::string statusText(ZulgStatus status);

}  // namespace spectrum
