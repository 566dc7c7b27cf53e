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

// Whether transforms that are side by side are done in parts at every step, not at bad ones only.
template <int length, class Element, class Real>
inline constexpr bool isAlwaysInParts = false;

// A line for each such length: ALWAYS_IN_PARTS(length, type of the elements, type that it computes in).
#define ALWAYS_IN_PARTS(length, Element, Real) \
    template <>                                \
    inline constexpr bool isAlwaysInParts<length, Element, Real> = true;
#include "many_texts.inc"
#undef ALWAYS_IN_PARTS
#undef MANY_TEXT

}  // namespace ZULG_TARGET
}  // namespace zulg
