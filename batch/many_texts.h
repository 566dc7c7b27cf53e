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
// And how complex transforms that are side by side have their parts in registers of their own, if they have: only
// at bad steps, or always. MANY_PARTS(family, length, type of the elements, type that it computes in, when).
enum class InParts { Never, AtBadSteps, Always };

template <Family family, int length, class Element, class Real>
inline constexpr InParts inPartsOf = InParts::Never;

#define MANY_PARTS(family, length, Element, Real, when) \
    template <>                                         \
    inline constexpr InParts inPartsOf<Family::family, length, Element, Real> = InParts::when;
#include "many_texts.inc"
#undef MANY_PARTS
#undef MANY_TEXT

}  // namespace ZULG_TARGET
}  // namespace zulg
