// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_direct, 4.
// DCT-IV of 4 points, rotations by lifting.
// 5 additions, 7 subtractions, 8 multiplications; 5 constants; 6 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Direct<4> {
    static constexpr double constants[] = {
        0.8206787908286604,  // c[0]: tan 2 pi 7/64
        0.5345111359507917,  // c[1]: tan 2 pi 5/64
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.9807852804032304,  // c[3]: sin 2 pi 7/32
        0.8314696123025452,  // c[4]: sin 2 pi 5/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Direct> c{};
        const V x3 = io.in(3);
        const V t0 = c[0] * x3;
        const V x0 = io.in(0);
        const V t1 = x0 - t0;
        const V t2 = c[3] * t1;
        const V t3 = x3 + t2;
        const V t4 = c[0] * t3;
        const V t5 = t1 - t4;
        const V x2 = io.in(2);
        const V t6 = c[1] * x2;
        const V x1 = io.in(1);
        const V t7 = x1 - t6;
        const V t8 = c[4] * t7;
        const V t9 = x2 + t8;
        const V t10 = c[1] * t9;
        const V t11 = t7 - t10;
        const V t12 = t3 - t9;
        const V t13 = c[2] * t12;
        const V t14 = t5 + t11;
        const V t15 = c[2] * t14;
        const V t16 = t3 + t9;
        io.out(0, t16);
        const V t17 = t13 + t15;
        io.out(1, t17);
        const V t18 = t13 - t15;
        io.out(2, t18);
        const V t19 = t5 - t11;
        io.out(3, t19);
    }
};

}  // namespace zulg
