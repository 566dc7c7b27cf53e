// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 5.
// Complex DFT of 5 points, direct symmetric form.
// 18 additions, 14 subtractions, 16 multiplications (26 with `scale`); 4 constants; 15 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<5> {
    static constexpr int steps = 58;  // with `scale`
    static constexpr double inverseRoot = 0.4472135954999579;  // 1/sqrt(5), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 5
        const V x1r = io.re(1);
        const V x4r = io.re(4);
        const V t0 = x1r + x4r;
        const V x1i = io.im(1);
        const V x4i = io.im(4);
        const V t1 = x1i + x4i;
        const V t2 = x1r - x4r;
        const V t3 = x1i - x4i;
        const V x3r = io.re(3);
        const V x2r = io.re(2);
        const V t4 = x3r + x2r;
        const V x3i = io.im(3);
        const V x2i = io.im(2);
        const V t5 = x3i + x2i;
        const V t6 = x3r - x2r;
        const V t7 = x3i - x2i;
        const V t8 = t0 + t4;
        const V t9 = t1 + t5;
        const V x0r = io.re(0);
        const V t10 = t8 + x0r;
        const V x0i = io.im(0);
        io.re(0, t10);
        const V t11 = t9 + x0i;
        io.im(0, t11);
        const V t12 = c[0] * t0;
        const V t13 = c[1] * t4;
        const V t14 = t12 - t13;
        const V t15 = t14 + x0r;
        const V t16 = c[0] * t1;
        const V t17 = c[1] * t5;
        const V t18 = t16 - t17;
        const V t19 = t18 + x0i;
        const V t20 = c[2] * t2;
        const V t21 = c[3] * t6;
        const V t22 = t20 - t21;
        const V t23 = c[2] * t3;
        const V t24 = c[3] * t7;
        const V t25 = t23 - t24;
        const V t26 = t15 + t25;
        io.re(1, t26);
        const V t27 = t19 - t22;
        io.im(1, t27);
        const V t28 = t15 - t25;
        io.re(4, t28);
        const V t29 = t19 + t22;
        io.im(4, t29);
        const V t30 = c[1] * t0;
        const V t31 = x0r - t30;
        const V t32 = c[0] * t4;
        const V t33 = t31 + t32;
        const V t34 = c[1] * t1;
        const V t35 = x0i - t34;
        const V t36 = c[0] * t5;
        const V t37 = t35 + t36;
        const V t38 = c[3] * t2;
        const V t39 = c[2] * t6;
        const V t40 = t38 + t39;
        const V t41 = c[3] * t3;
        const V t42 = c[2] * t7;
        const V t43 = t41 + t42;
        const V t44 = t33 + t43;
        io.re(2, t44);
        const V t45 = t37 - t40;
        io.im(2, t45);
        const V t46 = t33 - t43;
        io.re(3, t46);
        const V t47 = t37 + t40;
        io.im(3, t47);
    }
};

}  // namespace zulg
