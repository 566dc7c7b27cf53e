// One level by itself, for the libraries of the tests: ZULG_LEVEL names it, and each slot holds its routine.
#pragma once

#include "level_routines.h"

namespace zulg {

template <Family family, int length, class Element>
inline constexpr auto bestKernel = &ZULG_LEVEL::kernel<family, length, Element>;

template <int order, class Element>
inline constexpr auto bestWht = &ZULG_LEVEL::whtInLanes<order, Element>;

template <class Element>
inline constexpr auto bestDct4 = &ZULG_LEVEL::dct4InLanes<Element>;

}  // namespace zulg
