// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 11.
// Inverse DFT to 11 real points, Rader 2, 5.
// 38 additions, 30 subtractions, 60 multiplications (71 with `scale`); 15 constants; 22 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<11> {
    static constexpr int steps = 139;  // with `scale`
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5272211128649671,  // c[4]: P[2] of 11
        0.4025393125514894,  // c[5]: Q[2] of 11
        0.41403241996621415,  // c[6]: P[4] of 11
        0.5182443007085755,  // c[7]: Q[4] of 11
        0.4262349587304204,  // c[8]: Q[3] of 11
        0.5082556049431003,  // c[9]: -P[3] of 11
        0.635213297150478,  // c[10]: -Q[1] of 11
        0.19106037559687397,  // c[11]: -P[1] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x2r = io.re(2);
        const V t1 = two * x2r;
        const V x5r = io.re(5);
        const V t2 = two * x5r;
        // real block of 5
        const V t3 = t1 + t2;
        const V t4 = c[0] * t3;
        const V t5 = c[1] * t3;
        const V t6 = t1 - t2;
        // doubled bins
        const V x3r = io.re(3);
        const V t7 = two * x3r;
        const V x4r = io.re(4);
        const V t8 = two * x4r;
        // real block of 5
        const V t9 = t7 + t8;
        const V t10 = c[1] * t9;
        const V t11 = t7 - t8;
        const V t12 = t3 + t9;
        const V t13 = t12 + t0;
        // spectrum block of 11
        const V t14 = c[12] * t13;
        // real block of 5
        const V t15 = t4 - t10;
        const V t16 = t15 + t0;
        // spectrum block of 11
        const V t17 = c[4] * t16;
        // real block of 5
        const V t18 = c[2] * t6;
        const V t19 = c[3] * t11;
        const V t20 = t19 - t18;
        // spectrum block of 11
        const V t21 = c[5] * t20;
        const V t22 = c[4] * t20;
        // real block of 5
        const V t23 = t0 - t5;
        const V t24 = c[0] * t9;
        const V t25 = t23 + t24;
        // spectrum block of 11
        const V t26 = c[6] * t25;
        // real block of 5
        const V t27 = c[3] * t6;
        const V t28 = c[2] * t11;
        const V t29 = t27 + t28;
        // spectrum block of 11
        const V t30 = c[7] * t29;
        const V t31 = c[6] * t29;
        // doubled bins
        const V x1i = io.im(1);
        const V t32 = two * x1i;
        const V x2i = io.im(2);
        const V t33 = two * x2i;
        const V x5i = io.im(5);
        const V t34 = two * x5i;
        // real block of 5
        const V t35 = t34 - t33;
        const V t36 = c[0] * t35;
        const V t37 = c[1] * t35;
        const V t38 = t33 + t34;
        // doubled bins
        const V x3i = io.im(3);
        const V t39 = two * x3i;
        const V x4i = io.im(4);
        const V t40 = two * x4i;
        // real block of 5
        const V t41 = t39 + t40;
        const V t42 = c[1] * t41;
        const V t43 = t39 - t40;
        const V t44 = t35 + t41;
        const V t45 = t44 + t32;
        const V t46 = t36 - t42;
        const V t47 = t46 + t32;
        // spectrum block of 11
        const V t48 = c[8] * t47;
        // real block of 5
        const V t49 = c[2] * t38;
        const V t50 = c[3] * t43;
        const V t51 = t49 + t50;
        // spectrum block of 11
        const V t52 = c[9] * t51;
        const V t53 = c[8] * t51;
        // real block of 5
        const V t54 = t32 - t37;
        const V t55 = c[0] * t41;
        const V t56 = t54 + t55;
        // spectrum block of 11
        const V t57 = c[10] * t56;
        // real block of 5
        const V t58 = c[3] * t38;
        const V t59 = c[2] * t43;
        const V t60 = t58 - t59;
        // spectrum block of 11
        const V t61 = c[11] * t60;
        const V t62 = c[10] * t60;
        const V x0r = io.re(0);
        const V t63 = x0r - t14;
        const V t64 = c[13] * t45;
        // spectrum block of 2
        const V t65 = t63 - t64;
        const V t66 = t63 + t64;
        // spectrum block of 11
        const V t67 = t57 + t61;
        const V t68 = t26 + t30;
        // complex block of 2
        const V t69 = t68 - t67;
        const V t70 = t68 + t67;
        // spectrum block of 5, multiplier 2
        const V t71 = c[1] * t69;
        const V t72 = c[0] * t69;
        // spectrum block of 5, multiplier 2
        const V t73 = c[1] * t70;
        const V t74 = c[0] * t70;
        // spectrum block of 11
        const V t75 = c[11] * t56;
        const V t76 = t62 - t75;
        const V t77 = c[7] * t25;
        const V t78 = t77 - t31;
        // complex block of 2
        const V t79 = t78 - t76;
        const V t80 = t78 + t76;
        // spectrum block of 11
        const V t81 = t17 - t21;
        const V t82 = t48 - t52;
        // complex block of 2
        const V t83 = t81 + t82;
        const V t84 = t81 - t82;
        // spectrum block of 5, multiplier 2
        const V t85 = c[0] * t83;
        const V t86 = c[1] * t83;
        // spectrum block of 5, multiplier 2
        const V t87 = c[0] * t84;
        const V t88 = c[1] * t84;
        // spectrum block of 11
        const V t89 = c[5] * t16;
        const V t90 = t22 + t89;
        const V t91 = c[9] * t47;
        const V t92 = t53 + t91;
        // complex block of 2
        const V t93 = t90 + t92;
        const V t94 = t90 - t92;
        // spectrum block of 5, multiplier 2
        const V t95 = t83 + t69;
        const V t96 = t95 + t65;
        io.out(1, t96);
        const V t97 = t85 - t71;
        const V t98 = t97 + t65;
        const V t99 = c[2] * t93;
        const V t100 = c[3] * t79;
        const V t101 = t99 + t100;
        const V t102 = t98 - t101;
        io.out(5, t102);
        const V t103 = t98 + t101;
        io.out(9, t103);
        const V t104 = t65 - t86;
        const V t105 = t104 + t72;
        const V t106 = c[3] * t93;
        const V t107 = c[2] * t79;
        const V t108 = t106 - t107;
        const V t109 = t105 - t108;
        io.out(3, t109);
        const V t110 = t105 + t108;
        io.out(4, t110);
        // spectrum block of 5, multiplier 2
        const V t111 = t84 + t70;
        const V t112 = t111 + t66;
        io.out(10, t112);
        const V t113 = t87 - t73;
        const V t114 = t113 + t66;
        const V t115 = c[2] * t94;
        const V t116 = c[3] * t80;
        const V t117 = t115 + t116;
        const V t118 = t114 - t117;
        io.out(6, t118);
        const V t119 = t114 + t117;
        io.out(2, t119);
        const V t120 = t66 - t88;
        const V t121 = t120 + t74;
        const V t122 = c[3] * t94;
        const V t123 = c[2] * t80;
        const V t124 = t122 - t123;
        const V t125 = t121 - t124;
        io.out(8, t125);
        const V t126 = t121 + t124;
        io.out(7, t126);
        // spectrum block of 11
        const V t127 = x0r + t13;
        io.out(0, t127);
    }
};

}  // namespace zulg
