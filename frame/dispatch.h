// The length dispatcher of a family: one range check, one lookup, one call.
#pragma once

#include <array>
#include <utility>

#include "frame/kernel.h"

namespace zulg {

// Whether the kernel of a length exists yet: so far, where no prime factor asks for a Rader block. The forward real
// family has a direct form of 11.
constexpr bool exists(Family family, int length) {
    const bool isRealForward =
        family == Family::DFTFwd_RToCCS || family == Family::DFTFwd_RToPack || family == Family::DFTFwd_RToPerm;
    for (int p : {2, 3, 5, 7, isRealForward ? 11 : 7}) {
        while (length % p == 0) length /= p;
    }
    return length == 1;
}

template <Family family, int length, class Element>
constexpr KernelRoutine<Element> entry() {
    if constexpr (exists(family, length)) return kernel<family, length, Element>;
    return nullptr;
}

// Index 0 is the shortest length.
template <Family family, class Element>
inline constexpr auto kernelTable = []<int... index>(std::integer_sequence<int, index...>) {
    return std::array{entry<family, shortestLength + index, Element>()...};
}
(std::make_integer_sequence<int, longestLength - shortestLength + 1>{});

template <Family family, class Element>
Status ZULG_CALL dispatch(const Element* pSrc, Element* pDst, std::int32_t length, std::int32_t flag) {
    const std::uint32_t index = static_cast<std::uint32_t>(length) - shortestLength;
    if (index >= kernelTable<family, Element>.size()) return StatusSizeError;
    const KernelRoutine<Element> routine = kernelTable<family, Element>[index];
    if (routine == nullptr) return StatusSizeError;
    return routine(pSrc, pDst, flag);
}

}  // namespace zulg
