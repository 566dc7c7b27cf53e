// There is one level: each slot holds its kernel.
#pragma once

#include "kernel/kernel.h"

namespace zulg {

template <Family family, int length, class Element>
inline constexpr auto bestKernel = &kernel<family, length, Element>;

template <class Element>
using KernelResolver = KernelRoutine<Element> (*)();

}  // namespace zulg
