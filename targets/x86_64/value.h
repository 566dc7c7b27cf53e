// Numbers on x86-64: in a register of the vector unit, one double or the two of a complex number.
#pragma once

// The namespace of what is compiled for this target.
#define ZULG_TARGET x86_64

#include "kernel/doubles.h"
#include "kernel/near_constants.h"
#include "targets/x86_64/in_lanes.h"

namespace zulg {
inline namespace ZULG_TARGET {

struct TargetNumbers : Doubles, DoublesInLanes {
    // The processor's cache of decoded instructions holds about 16 KB of code, and where it ends the bytes of code are
    // the time: a constant near a register saves 3 bytes a product over one with an address of its own. A short kernel
    // gains nothing or loses.
    template <class Graph>
    using Constants = NearConstantsIfLong<Graph, 1200>;
};

}  // namespace ZULG_TARGET
}  // namespace zulg
