// The levels of the native library. The slot of a kernel is settled while the library is loaded: the dynamic linker
// calls the slot's resolver and stores what it returns. After that a slot is never written, and no call looks at a
// level.
#pragma once

#include <cstdint>

#include "kernel/kernel.h"

namespace zulg {

enum Level : std::uintptr_t { levelX86_64 = 1, levelX86_64_v3 };

// That of the processor. Resolvers call it, when nothing of the library but its relative addresses is settled.
[[gnu::visibility("hidden")]] Level processorLevel() noexcept;

namespace x86_64_v3 {
template <Family family, int length, class Element>
Status ZULG_CALL kernel(const Element* pSrc, Element* pDst, std::int32_t flag);
}  // namespace x86_64_v3

template <class Element>
using KernelResolver = KernelRoutine<Element> (*)();

// The mark makes the address of this function, wherever it is stored, the address that it returns. The function is
// never inlined: the compiler does not know that a call of this address is a call of the kernel.
template <Family family, int length, class Element>
[[gnu::noinline]] KernelRoutine<Element> resolvedKernel() {
    asm(".type %c0, @gnu_indirect_function" : : "i"(&resolvedKernel<family, length, Element>));
    return processorLevel() >= levelX86_64_v3 ? &x86_64_v3::kernel<family, length, Element>
                                              : &kernel<family, length, Element>;
}

// What is stored in the slot of a kernel. A library that is built for tests has one level: ZULG_LEVEL names it.
template <Family family, int length, class Element>
inline constexpr auto bestKernel =
#ifdef ZULG_LEVEL
    &ZULG_LEVEL::kernel<family, length, Element>;
#else
    &resolvedKernel<family, length, Element>;
#endif

}  // namespace zulg
