// The Walsh-Hadamard routines that take the order as an argument: the dispatcher, and the size of the buffer.
#include <array>
#include <utility>

#include "boundary/dispatch.h"
#include "levels.h"
#include "wht/wht.h"

namespace ZULG_SLOTS {
namespace {

constexpr auto orders = std::make_integer_sequence<int, highestOrder - lowestOrder + 1>{};

// Index 0 is the lowest order.
template <class Element>
constexpr auto whtTable = []<int... index>(std::integer_sequence<int, index...>) {
    return std::array{DispatchSlot<WhtRoutine<Element>>(bestWht<lowestOrder + index, Element>)...};
}
(orders);

constexpr auto bufferTable = []<int... index>(std::integer_sequence<int, index...>) {
    return std::array{whtBufferElements(lowestOrder + index)...};
}
(orders);

// An order below the lowest becomes an index above the highest.
std::uint32_t indexOf(std::int32_t order) { return static_cast<std::uint32_t>(order) - lowestOrder; }

}  // namespace

template <class Element>
Status ZULG_CALL whtDispatch(const Element* pSrc, Element* pDst, std::int32_t order, std::int32_t flag,
                             Element* pBuffer) {
    const std::uint32_t index = indexOf(order);
    if (index >= whtTable<Element>.size()) return StatusSizeError;
    return whtTable<Element>[index].first(pSrc, pDst, flag, pBuffer);
}

template <class Element>
Status ZULG_CALL whtGetBufferSize(std::int32_t order, std::int32_t* pSize) {
    const std::uint32_t index = indexOf(order);
    if (index >= bufferTable.size()) return StatusSizeError;
    *pSize = bufferTable[index] * static_cast<std::int32_t>(sizeof(Element));
    return StatusOk;
}

template Status ZULG_CALL whtDispatch<float>(const float*, float*, std::int32_t, std::int32_t, float*);
template Status ZULG_CALL whtDispatch<double>(const double*, double*, std::int32_t, std::int32_t, double*);
template Status ZULG_CALL whtGetBufferSize<float>(std::int32_t, std::int32_t*);
template Status ZULG_CALL whtGetBufferSize<double>(std::int32_t, std::int32_t*);

}  // namespace ZULG_SLOTS
