// The table of proved error bounds, one row for each transform, element and scale factor.
#pragma once

#include <string>

namespace gen {

// Lines of family, element, length (the order of a Walsh-Hadamard transform), factor and bound. A bound is the greatest
// error of an output over the root mean square of the input times sqrt(N), and over the factor: in units of 2^-53 for
// double elements, of 2^-24 for single ones.
std::string boundsTable();

}  // namespace gen
