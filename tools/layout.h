// Where the parts of the spectrum of a real signal stand: the slots of the layouts CCS, Pack and Perm.
#pragma once

#include <string>

namespace spectrum {

inline constexpr int longestLayout = 64;

// For people: a table of one line for each layout, below the numbers of the slots; long lengths go on in further
// tables below. R3 is the real part of bin 3, I3 its imaginary part, 0 a slot that holds zero.
// Throws UserError when the length is not one of 2 to longestLayout.
std::string layoutText(int length);

}  // namespace spectrum
