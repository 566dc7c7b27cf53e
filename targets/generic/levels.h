// There is one level, of one number to a register: each slot holds its routine.
#pragma once

#include "dct4/dct4.h"
#include "kernel/kernel.h"
#include "wht/wht.h"

namespace zulg {

template <Family family, int length, class Element>
inline constexpr auto bestKernel = &kernel<family, length, Element>;

template <int order, class Element>
inline constexpr auto bestWht = &wht<order, Element>;

template <class Element>
inline constexpr auto bestDct4 = &dct4<Element>;

}  // namespace zulg
