// Which slot of the layouts CCS, Pack and Perm holds which part of the spectrum of a real signal.
#pragma once

#include <string>

namespace spectrum {

inline constexpr int longestLayout = 64;

// A table to read: one line for each layout, below the numbers of the slots. Long lengths continue in further tables
// below. R3 is the real part of bin 3, I3 its imaginary part, and 0 a slot that holds zero.
// Throws UserError when the length is not one of 2 to longestLayout.
std::string layoutText(int length);
// For programs: the slots of each layout in their order.
std::string layoutJson(int length);

}  // namespace spectrum
