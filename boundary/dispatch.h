// The length dispatcher of a family: one range check, one lookup, one call.
#pragma once

#include <array>
#include <utility>

#include "kernel/kernel.h"
#include "levels.h"

namespace zulg {

template <class Element>
using DispatchRoutine = Status(ZULG_CALL*)(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag);

// Gives a routine while the library is loaded, where that has levels.
template <class Routine>
using Resolver = Routine (*)();

// What is stored as a resolver is, in a library that is loaded, the routine that it returned.
template <class Routine>
union DispatchSlot {
    Routine routine;
    Resolver<Routine> resolver;

    constexpr DispatchSlot(Routine stored) : routine(stored) {}
    constexpr DispatchSlot(Resolver<Routine> stored) : resolver(stored) {}
};

// Index 0 is the shortest length.
template <Family family, class Element>
inline constexpr auto kernelTable = []<int... index>(std::integer_sequence<int, index...>) {
    return std::array{DispatchSlot<KernelRoutine<Element>>(bestKernel<family, shortestLength + index, Element>)...};
}
(std::make_integer_sequence<int, longestLength - shortestLength + 1>{});

template <Family family, class Element>
Status ZULG_CALL dispatch(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag) {
    const std::uint32_t index = static_cast<std::uint32_t>(length) - shortestLength;
    if (index >= kernelTable<family, Element>.size()) return StatusSizeError;
    return kernelTable<family, Element>[index].routine(pSrc, pDst, flag);
}

}  // namespace zulg
