// The length dispatchers of all families.
#include "boundary/dispatch.h"

#include <array>
#include <utility>

#include "levels.h"

namespace ZULG_SLOTS {

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
    return kernelTable<family, Element>[index].first(pSrc, pDst, flag);
}

// clang-format off
template Status ZULG_CALL dispatch<Family::DFTFwd_CToC, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_CToC, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CToC, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CToC, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToCCS, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToCCS, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPack, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPack, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPerm, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTFwd_RToPerm, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CCSToR, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_CCSToR, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PackToR, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PackToR, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PermToR, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::DFTInv_PermToR, double>(const double*, double*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::Hartley, float>(const float*, float*, std::int32_t, std::int32_t);
template Status ZULG_CALL dispatch<Family::Hartley, double>(const double*, double*, std::int32_t, std::int32_t);
// clang-format on

}  // namespace ZULG_SLOTS
