// Numbers on AArch64: in a register of the vector unit, one double or two.
#pragma once

// The namespace of what is compiled for this target.
#define ZULG_TARGET aarch64

#include "kernel/doubles.h"
#include "targets/aarch64/in_lanes.h"

namespace zulg {
inline namespace ZULG_TARGET {

struct TargetNumbers : Doubles, DoublesInLanes {};

}  // namespace ZULG_TARGET
}  // namespace zulg
