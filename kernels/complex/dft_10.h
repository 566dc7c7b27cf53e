// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 10.
// Complex DFT of 10 points, prime-factor, order 2, 5.
// 46 additions, 38 subtractions, 32 multiplications (52 with `scale`); 4 constants; 25 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<10> {
    static constexpr int steps = 136;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
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
        // complex block of 2
        const V x0r = io.re(0);
        const V x5r = io.re(5);
        const V t0 = x0r + x5r;
        const V x0i = io.im(0);
        const V x5i = io.im(5);
        const V t1 = x0i + x5i;
        const V t2 = x0r - x5r;
        const V t3 = x0i - x5i;
        // complex block of 2
        const V x2r = io.re(2);
        const V x7r = io.re(7);
        const V t4 = x2r + x7r;
        const V x2i = io.im(2);
        const V x7i = io.im(7);
        const V t5 = x2i + x7i;
        const V t6 = x2r - x7r;
        const V t7 = x2i - x7i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x9r = io.re(9);
        const V t8 = x4r + x9r;
        const V x4i = io.im(4);
        const V x9i = io.im(9);
        const V t9 = x4i + x9i;
        const V t10 = x4r - x9r;
        const V t11 = x4i - x9i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x1r = io.re(1);
        const V t12 = x6r + x1r;
        const V x6i = io.im(6);
        const V x1i = io.im(1);
        const V t13 = x6i + x1i;
        const V t14 = x6r - x1r;
        const V t15 = x6i - x1i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x3r = io.re(3);
        const V t16 = x8r + x3r;
        const V x8i = io.im(8);
        const V x3i = io.im(3);
        const V t17 = x8i + x3i;
        const V t18 = x8r - x3r;
        const V t19 = x8i - x3i;
        // complex block of 5, multiplier 2
        const V t20 = t4 + t16;
        const V t21 = t5 + t17;
        const V t22 = t4 - t16;
        const V t23 = t5 - t17;
        const V t24 = t12 + t8;
        const V t25 = t13 + t9;
        const V t26 = t12 - t8;
        const V t27 = t13 - t9;
        const V t28 = t20 + t24;
        const V t29 = t21 + t25;
        const V t30 = t28 + t0;
        io.re(0, t30);
        const V t31 = t29 + t1;
        io.im(0, t31);
        const V t32 = c[0] * t20;
        const V t33 = c[1] * t24;
        const V t34 = t32 - t33;
        const V t35 = t34 + t0;
        const V t36 = c[0] * t21;
        const V t37 = c[1] * t25;
        const V t38 = t36 - t37;
        const V t39 = t38 + t1;
        const V t40 = c[2] * t22;
        const V t41 = c[3] * t26;
        const V t42 = t40 - t41;
        const V t43 = c[2] * t23;
        const V t44 = c[3] * t27;
        const V t45 = t43 - t44;
        const V t46 = t35 + t45;
        io.re(6, t46);
        const V t47 = t39 - t42;
        io.im(6, t47);
        const V t48 = t35 - t45;
        io.re(4, t48);
        const V t49 = t39 + t42;
        io.im(4, t49);
        const V t50 = c[1] * t20;
        const V t51 = t0 - t50;
        const V t52 = c[0] * t24;
        const V t53 = t51 + t52;
        const V t54 = c[1] * t21;
        const V t55 = t1 - t54;
        const V t56 = c[0] * t25;
        const V t57 = t55 + t56;
        const V t58 = c[3] * t22;
        const V t59 = c[2] * t26;
        const V t60 = t58 + t59;
        const V t61 = c[3] * t23;
        const V t62 = c[2] * t27;
        const V t63 = t61 + t62;
        const V t64 = t53 + t63;
        io.re(2, t64);
        const V t65 = t57 - t60;
        io.im(2, t65);
        const V t66 = t53 - t63;
        io.re(8, t66);
        const V t67 = t57 + t60;
        io.im(8, t67);
        // complex block of 5, multiplier 2
        const V t68 = t6 + t18;
        const V t69 = t7 + t19;
        const V t70 = t6 - t18;
        const V t71 = t7 - t19;
        const V t72 = t14 + t10;
        const V t73 = t15 + t11;
        const V t74 = t14 - t10;
        const V t75 = t15 - t11;
        const V t76 = t68 + t72;
        const V t77 = t69 + t73;
        const V t78 = t76 + t2;
        io.re(5, t78);
        const V t79 = t77 + t3;
        io.im(5, t79);
        const V t80 = c[0] * t68;
        const V t81 = c[1] * t72;
        const V t82 = t80 - t81;
        const V t83 = t82 + t2;
        const V t84 = c[0] * t69;
        const V t85 = c[1] * t73;
        const V t86 = t84 - t85;
        const V t87 = t86 + t3;
        const V t88 = c[2] * t70;
        const V t89 = c[3] * t74;
        const V t90 = t88 - t89;
        const V t91 = c[2] * t71;
        const V t92 = c[3] * t75;
        const V t93 = t91 - t92;
        const V t94 = t83 + t93;
        io.re(1, t94);
        const V t95 = t87 - t90;
        io.im(1, t95);
        const V t96 = t83 - t93;
        io.re(9, t96);
        const V t97 = t87 + t90;
        io.im(9, t97);
        const V t98 = c[1] * t68;
        const V t99 = t2 - t98;
        const V t100 = c[0] * t72;
        const V t101 = t99 + t100;
        const V t102 = c[1] * t69;
        const V t103 = t3 - t102;
        const V t104 = c[0] * t73;
        const V t105 = t103 + t104;
        const V t106 = c[3] * t70;
        const V t107 = c[2] * t74;
        const V t108 = t106 + t107;
        const V t109 = c[3] * t71;
        const V t110 = c[2] * t75;
        const V t111 = t109 + t110;
        const V t112 = t101 + t111;
        io.re(7, t112);
        const V t113 = t105 - t108;
        io.im(7, t113);
        const V t114 = t101 - t111;
        io.re(3, t114);
        const V t115 = t105 + t108;
        io.im(3, t115);
    }
};

}  // namespace zulg
