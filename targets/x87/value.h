// Numbers on the x87 unit: its registers are wider than a double.
#pragma once

#include "kernel/doubles.h"
#include "kernel/near_constants.h"

// The namespace of what is compiled for this target.
#define ZULG_TARGET x87

namespace zulg {
inline namespace ZULG_TARGET {

struct TargetNumbers : Doubles {
    // Constants near a register make long kernels 5 % smaller.
    template <class Graph>
    using Constants = NearConstantsIfLong<Graph, 1200>;
};

}  // namespace ZULG_TARGET
}  // namespace zulg
