// The slots of one level of x86-64 by itself: ZULG_LEVEL names it, and each slot holds its routine.
#pragma once

#include "kernel/slot_names.h"
#include "targets/x86_64/level_routines.h"

namespace ZULG_SLOTS {

template <Family family, int length, class Element>
inline constexpr auto bestKernel = &ZULG_LEVEL::kernel<family, length, Element>;

template <int order, class Element>
inline constexpr auto bestWht = &ZULG_LEVEL::whtInLanes<order, Element>;

template <class Element>
inline constexpr auto bestDct4 = &ZULG_LEVEL::dct4InLanes<Element>;

}  // namespace ZULG_SLOTS
