// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 3.
// Complex DFT of 3 points, direct symmetric form.
// 6 additions, 6 subtractions, 4 multiplications (10 with `scale`); 2 constants; 7 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<3> {
    static constexpr int steps = 22;  // with `scale`
    static constexpr double inverseRoot = 0.5773502691896258;  // 1/sqrt(3), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3
        const V x1r = io.re(1);
        const V x2r = io.re(2);
        const V t0 = x1r + x2r;
        const V x1i = io.im(1);
        const V x2i = io.im(2);
        const V t1 = x1i + x2i;
        const V t2 = x1r - x2r;
        const V t3 = x1i - x2i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        io.re(0, t4);
        const V t5 = t1 + x0i;
        io.im(0, t5);
        const V t6 = c[0] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[0] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[1] * t2;
        const V t11 = c[1] * t3;
        const V t12 = t7 + t11;
        io.re(1, t12);
        const V t13 = t9 - t10;
        io.im(1, t13);
        const V t14 = t7 - t11;
        io.re(2, t14);
        const V t15 = t9 + t10;
        io.im(2, t15);
    }
};

}  // namespace zulg
