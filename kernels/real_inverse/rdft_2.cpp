// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 2.
// Inverse DFT to 2 real points, base.
// 1 additions, 1 subtractions, 0 multiplications (2 with `scale`); 0 constants; 3 values alive at most.
#include "kernel/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<2> {
    static constexpr double inverseRoot = 0.7071067811865475;  // 1/sqrt(2), for `scale`

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x1r = io.re(1);
        const V t0 = x0r + x1r;
        io.out(0, t0);
        const V t1 = x0r - x1r;
        io.out(1, t1);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 2, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 2, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 2, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 2, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 2, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 2, double>(const double*, double*, std::int32_t);

}  // namespace zulg
