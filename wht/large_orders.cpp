// Orders 8 to 13: passes of blocks through a buffer.
#include "wht/checks.h"
#include "wht/passes.h"

namespace zulg {

template <int order, class Element>
Status ZULG_CALL wht(const Element* pSrc, Element* pDst, std::int32_t flag, Element* pBuffer) {
    return whtChecked<order>(pSrc, pDst, flag, [=](Element scale) ZULG_INLINE_LAMBDA {
        withBuffer<order>(pBuffer, [=](Element* buffer) ZULG_INLINE_LAMBDA {
            whtPasses<order, WhtBlockByBlock<TargetNumbers>>(pSrc, pDst, buffer, scale);
        });
    });
}

// clang-format off
template Status ZULG_CALL wht<8, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<9, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<10, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<11, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<12, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<13, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<8, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<9, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<10, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<11, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<12, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<13, double>(const double*, double*, std::int32_t, double*);
// clang-format on

}  // namespace zulg
