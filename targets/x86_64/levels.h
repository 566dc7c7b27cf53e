// The levels of the native library. The slot of a routine that has levels is settled while the library is loaded: the
// dynamic linker calls the slot's resolver and stores what it returns. After that a slot is never written, and no call
// looks at a level.
#pragma once

#include "level_routines.h"
#include "targets/x86_64/processor_level.h"

namespace zulg {

// The mark makes the address of this function, wherever it is stored, the address that it returns. The function is
// never inlined: the compiler does not know that a call of this address is a call of the routine.
template <class Routine, Routine first, Routine second>
[[gnu::noinline]] Routine resolved() {
    asm(".type %c0, @gnu_indirect_function" : : "i"(&resolved<Routine, first, second>));
    return processorLevel() >= levelX86_64_v3 ? second : first;
}

// What is stored in the slot of a routine: its resolver.
template <Family family, int length, class Element>
inline constexpr auto bestKernel =
    &resolved<KernelRoutine<Element>, &kernel<family, length, Element>, &x86_64_v3::kernel<family, length, Element>>;

template <int order, class Element>
inline constexpr auto bestWht =
    &resolved<WhtRoutine<Element>, &whtInLanes<order, Element>, &x86_64_v3::whtInLanes<order, Element>>;

template <class Element>
inline constexpr auto bestDct4 =
    &resolved<Dct4Routine<Element>, &dct4InLanes<Element>, &x86_64_v3::dct4InLanes<Element>>;

}  // namespace zulg
