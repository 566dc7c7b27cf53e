// Numbers on any machine: doubles, wherever the compiler has them.
#pragma once

#include <cfloat>
#include <limits>

#include "kernel/doubles.h"

// The namespace of what is compiled for this target.
#define ZULG_TARGET generic

namespace zulg {
inline namespace ZULG_TARGET {

// Every sum, difference and product is rounded once, to its own type. Otherwise the results are not those of the other
// targets.
static_assert(FLT_EVAL_METHOD == 0, "this compiler evaluates in a wider type");
static_assert(std::numeric_limits<double>::is_iec559 && std::numeric_limits<float>::is_iec559);

struct TargetNumbers : Doubles {};

}  // namespace ZULG_TARGET
}  // namespace zulg
