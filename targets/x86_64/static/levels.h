// The levels of the static library. A public name is an indirect function itself: the dynamic linker, or the start of a
// program that has none, calls it and puts the routine that it returns where the name is used.
#pragma once

#include "level_routines.h"
#include "targets/x86_64/processor_level.h"

namespace zulg {

template <class Routine>
struct RoutineOfLevels {
    Routine first, second;
};

// The routine that calls of a public name go to on this processor.
template <class Routine>
ZULG_INLINE Routine chosen(RoutineOfLevels<Routine> routine) {
    return processorLevel() >= levelX86_64_v3 ? routine.second : routine.first;
}
template <class Routine>
ZULG_INLINE Routine chosen(Routine routine) {
    return routine;
}

template <Family family, int length, class Element>
inline constexpr RoutineOfLevels<KernelRoutine<Element>> bestKernel{&kernel<family, length, Element>,
                                                                    &x86_64_v3::kernel<family, length, Element>};

template <int order, class Element>
inline constexpr RoutineOfLevels<WhtRoutine<Element>> bestWht{&whtInLanes<order, Element>,
                                                              &x86_64_v3::whtInLanes<order, Element>};

template <class Element>
inline constexpr RoutineOfLevels<Dct4Routine<Element>> bestDct4{&dct4InLanes<Element>,
                                                                &x86_64_v3::dct4InLanes<Element>};

}  // namespace zulg
