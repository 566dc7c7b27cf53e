// The blocks of the Walsh-Hadamard family: straight-line texts of 2 to 128 points, each in a file of bodies/. A loop
// runs one through ports that know the arrays, the stride and whether to scale.
#pragma once

#include "kernel/text.h"

namespace zulg {

// run(io): io.in(n) reads point n, io.out(k, value) writes point k.
template <int points>
struct WhtBlock;

}  // namespace zulg
