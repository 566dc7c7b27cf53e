// Numbers on processors with AVX2: those of x86-64, and four in one register.
#pragma once

// The namespace of what is compiled for this target.
#define ZULG_TARGET x86_64_v3

#include "kernel/doubles.h"
#include "targets/x86_64/in_lanes.h"

namespace zulg {
inline namespace ZULG_TARGET {

struct TargetNumbers : Doubles, DoublesInLanes {};

}  // namespace ZULG_TARGET
}  // namespace zulg
