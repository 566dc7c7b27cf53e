// Numbers of a target that is C++ and nothing else: doubles, wherever the compiler has them.
#pragma once

#include "kernel/doubles.h"

#define ZULG_TARGET plain

namespace zulg {
inline namespace ZULG_TARGET {

struct TargetNumbers : Doubles {};

}  // namespace ZULG_TARGET
}  // namespace zulg
