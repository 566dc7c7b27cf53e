// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 10.
// Complex DFT of 10 points, prime-factor, order 2, 5.
// 46 additions, 38 subtractions, 32 multiplications (52 with `scale`); 4 constants; 33 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<10> {
    static constexpr int steps = 136;  // with `scale`
    static constexpr double inverseRoot = 0.31622776601683794;  // 1/sqrt(10), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
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
        const V t1 = x0r - x5r;
        const V x0i = io.im(0);
        const V x5i = io.im(5);
        const V t2 = x0i + x5i;
        const V t3 = x0i - x5i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x1r = io.re(1);
        const V t4 = x6r + x1r;
        const V t5 = x6r - x1r;
        // complex block of 2
        const V x4r = io.re(4);
        const V x9r = io.re(9);
        const V t6 = x4r + x9r;
        const V t7 = x4r - x9r;
        // complex block of 5, multiplier 2
        const V t8 = t4 + t6;
        const V t9 = c[0] * t8;
        const V t10 = t4 - t6;
        // complex block of 5, multiplier 2
        const V t11 = t5 + t7;
        const V t12 = c[0] * t11;
        const V t13 = t5 - t7;
        // complex block of 2
        const V x6i = io.im(6);
        const V x1i = io.im(1);
        const V t14 = x6i + x1i;
        const V t15 = x6i - x1i;
        // complex block of 2
        const V x4i = io.im(4);
        const V x9i = io.im(9);
        const V t16 = x4i + x9i;
        const V t17 = x4i - x9i;
        // complex block of 5, multiplier 2
        const V t18 = t14 + t16;
        const V t19 = c[0] * t18;
        const V t20 = t14 - t16;
        // complex block of 5, multiplier 2
        const V t21 = t15 + t17;
        const V t22 = c[0] * t21;
        const V t23 = t15 - t17;
        // complex block of 2
        const V x2r = io.re(2);
        const V x7r = io.re(7);
        const V t24 = x2r + x7r;
        const V t25 = x2r - x7r;
        // complex block of 2
        const V x8r = io.re(8);
        const V x3r = io.re(3);
        const V t26 = x8r + x3r;
        const V t27 = x8r - x3r;
        // complex block of 5, multiplier 2
        const V t28 = t24 + t26;
        const V t29 = c[1] * t28;
        const V t30 = c[0] * t28;
        const V t31 = t24 - t26;
        // complex block of 5, multiplier 2
        const V t32 = t25 + t27;
        const V t33 = c[1] * t32;
        const V t34 = c[0] * t32;
        const V t35 = t25 - t27;
        // complex block of 2
        const V x2i = io.im(2);
        const V x7i = io.im(7);
        const V t36 = x2i + x7i;
        const V t37 = x2i - x7i;
        // complex block of 2
        const V x8i = io.im(8);
        const V x3i = io.im(3);
        const V t38 = x8i + x3i;
        const V t39 = x8i - x3i;
        // complex block of 5, multiplier 2
        const V t40 = t36 + t38;
        const V t41 = c[1] * t40;
        const V t42 = c[0] * t40;
        const V t43 = t36 - t38;
        // complex block of 5, multiplier 2
        const V t44 = t37 + t39;
        const V t45 = c[1] * t44;
        const V t46 = c[0] * t44;
        const V t47 = t37 - t39;
        // complex block of 5, multiplier 2
        const V t48 = t28 + t8;
        const V t49 = t48 + t0;
        io.re(0, t49);
        const V t50 = t40 + t18;
        const V t51 = t50 + t2;
        io.im(0, t51);
        const V t52 = t29 - t9;
        const V t53 = t52 + t0;
        const V t54 = c[2] * t43;
        const V t55 = c[3] * t20;
        const V t56 = t54 - t55;
        const V t57 = t53 + t56;
        io.re(6, t57);
        const V t58 = t53 - t56;
        io.re(4, t58);
        const V t59 = t41 - t19;
        const V t60 = t59 + t2;
        const V t61 = c[2] * t31;
        const V t62 = c[3] * t10;
        const V t63 = t61 - t62;
        const V t64 = t60 - t63;
        io.im(6, t64);
        const V t65 = t60 + t63;
        io.im(4, t65);
        const V t66 = t0 - t30;
        const V t67 = c[1] * t8;
        const V t68 = t66 + t67;
        const V t69 = c[3] * t43;
        const V t70 = c[2] * t20;
        const V t71 = t69 + t70;
        const V t72 = t68 + t71;
        io.re(2, t72);
        const V t73 = t68 - t71;
        io.re(8, t73);
        const V t74 = t2 - t42;
        const V t75 = c[1] * t18;
        const V t76 = t74 + t75;
        const V t77 = c[3] * t31;
        const V t78 = c[2] * t10;
        const V t79 = t77 + t78;
        const V t80 = t76 - t79;
        io.im(2, t80);
        const V t81 = t76 + t79;
        io.im(8, t81);
        // complex block of 5, multiplier 2
        const V t82 = t32 + t11;
        const V t83 = t82 + t1;
        io.re(5, t83);
        const V t84 = t44 + t21;
        const V t85 = t84 + t3;
        io.im(5, t85);
        const V t86 = t33 - t12;
        const V t87 = t86 + t1;
        const V t88 = c[2] * t47;
        const V t89 = c[3] * t23;
        const V t90 = t88 - t89;
        const V t91 = t87 + t90;
        io.re(1, t91);
        const V t92 = t87 - t90;
        io.re(9, t92);
        const V t93 = t45 - t22;
        const V t94 = t93 + t3;
        const V t95 = c[2] * t35;
        const V t96 = c[3] * t13;
        const V t97 = t95 - t96;
        const V t98 = t94 - t97;
        io.im(1, t98);
        const V t99 = t94 + t97;
        io.im(9, t99);
        const V t100 = t1 - t34;
        const V t101 = c[1] * t11;
        const V t102 = t100 + t101;
        const V t103 = c[3] * t47;
        const V t104 = c[2] * t23;
        const V t105 = t103 + t104;
        const V t106 = t102 + t105;
        io.re(7, t106);
        const V t107 = t102 - t105;
        io.re(3, t107);
        const V t108 = t3 - t46;
        const V t109 = c[1] * t21;
        const V t110 = t108 + t109;
        const V t111 = c[3] * t35;
        const V t112 = c[2] * t13;
        const V t113 = t111 + t112;
        const V t114 = t110 - t113;
        io.im(7, t114);
        const V t115 = t110 + t113;
        io.im(3, t115);
    }
};

}  // namespace zulg
