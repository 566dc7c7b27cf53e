// Orders 1 to 7: one straight-line block from source to destination.
#include "kernel/ports.h"
#include "wht/bodies/wht_128.h"
#include "wht/bodies/wht_16.h"
#include "wht/bodies/wht_2.h"
#include "wht/bodies/wht_32.h"
#include "wht/bodies/wht_4.h"
#include "wht/bodies/wht_64.h"
#include "wht/bodies/wht_8.h"
#include "wht/checks.h"

namespace zulg {

// The buffer is part of the signature of all orders and is ignored here.
template <int order, class Element>
Status ZULG_CALL wht(const Element* pSrc, Element* pDst, std::int32_t flag, Element*) {
    return whtChecked<order>(pSrc, pDst, flag, [=](Element scale) ZULG_INLINE_LAMBDA {
        WhtBlock<1 << order>::run(RealPorts<TargetNumbers, Element>{{pSrc, pDst, scale}});
    });
}

// clang-format off
template Status ZULG_CALL wht<1, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<2, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<3, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<4, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<5, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<6, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<7, float>(const float*, float*, std::int32_t, float*);
template Status ZULG_CALL wht<1, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<2, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<3, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<4, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<5, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<6, double>(const double*, double*, std::int32_t, double*);
template Status ZULG_CALL wht<7, double>(const double*, double*, std::int32_t, double*);
// clang-format on

}  // namespace zulg
