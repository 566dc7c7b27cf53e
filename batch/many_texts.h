// The families, lengths and placements for which a level has a routine that does several transforms at once.
#pragma once

#include "batch/many_routines.h"

namespace zulg {
inline namespace ZULG_TARGET {

template <Family family, int length, class Real, Placement placement>
inline constexpr bool hasManyText = false;

// The build writes a line for each: MANY_TEXT(family, length, type that it computes in, placement).
#define MANY_TEXT(family, length, Real, placement) \
    template <>                                    \
    inline constexpr bool hasManyText<Family::family, length, Real, Placement::placement> = true;
#include "many_texts.inc"
#undef MANY_TEXT

}  // namespace ZULG_TARGET
}  // namespace zulg
