// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 11.
// Inverse DFT to 11 real points, Rader 2, 5.
// 38 additions, 30 subtractions, 60 multiplications (71 with `scale`); 15 constants; 15 values alive at most.
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
        0.19106037559687397,  // c[4]: -P[1] of 11
        0.635213297150478,  // c[5]: -Q[1] of 11
        0.4025393125514894,  // c[6]: Q[2] of 11
        0.5272211128649671,  // c[7]: P[2] of 11
        0.5082556049431003,  // c[8]: -P[3] of 11
        0.4262349587304204,  // c[9]: Q[3] of 11
        0.5182443007085755,  // c[10]: Q[4] of 11
        0.41403241996621415,  // c[11]: P[4] of 11
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
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        // real block of 5
        const V t10 = t2 + t8;
        const V t11 = t2 - t8;
        const V t12 = t4 + t6;
        const V t13 = t4 - t6;
        const V t14 = t10 + t12;
        const V t15 = t14 + t0;
        const V t16 = c[0] * t10;
        const V t17 = c[1] * t12;
        const V t18 = t16 - t17;
        const V t19 = t18 + t0;
        const V t20 = c[2] * t11;
        const V t21 = c[3] * t13;
        const V t22 = t21 - t20;
        const V t23 = c[1] * t10;
        const V t24 = t0 - t23;
        const V t25 = c[0] * t12;
        const V t26 = t24 + t25;
        const V t27 = c[3] * t11;
        const V t28 = c[2] * t13;
        const V t29 = t27 + t28;
        // real block of 5
        const V t30 = t9 - t3;
        const V t31 = t3 + t9;
        const V t32 = t5 + t7;
        const V t33 = t5 - t7;
        const V t34 = t30 + t32;
        const V t35 = t34 + t1;
        const V t36 = c[0] * t30;
        const V t37 = c[1] * t32;
        const V t38 = t36 - t37;
        const V t39 = t38 + t1;
        const V t40 = c[2] * t31;
        const V t41 = c[3] * t33;
        const V t42 = t40 + t41;
        const V t43 = c[1] * t30;
        const V t44 = t1 - t43;
        const V t45 = c[0] * t32;
        const V t46 = t44 + t45;
        const V t47 = c[3] * t31;
        const V t48 = c[2] * t33;
        const V t49 = t47 - t48;
        // spectrum block of 11
        const V t50 = c[12] * t15;
        const V x0r = io.re(0);
        const V t51 = x0r - t50;
        const V t52 = c[4] * t49;
        const V t53 = c[5] * t46;
        const V t54 = t53 + t52;
        const V t55 = c[4] * t46;
        const V t56 = c[5] * t49;
        const V t57 = t56 - t55;
        const V t58 = c[6] * t22;
        const V t59 = c[7] * t19;
        const V t60 = t59 - t58;
        const V t61 = c[6] * t19;
        const V t62 = c[7] * t22;
        const V t63 = t62 + t61;
        const V t64 = c[8] * t42;
        const V t65 = c[9] * t39;
        const V t66 = t65 - t64;
        const V t67 = c[8] * t39;
        const V t68 = c[9] * t42;
        const V t69 = t68 + t67;
        const V t70 = c[10] * t29;
        const V t71 = c[11] * t26;
        const V t72 = t71 + t70;
        const V t73 = c[10] * t26;
        const V t74 = c[11] * t29;
        const V t75 = t73 - t74;
        const V t76 = c[13] * t35;
        // spectrum block of 2
        const V t77 = t51 - t76;
        const V t78 = t51 + t76;
        // complex block of 2
        const V t79 = t63 + t69;
        const V t80 = t60 + t66;
        const V t81 = t63 - t69;
        const V t82 = t60 - t66;
        // complex block of 2
        const V t83 = t75 - t57;
        const V t84 = t72 - t54;
        const V t85 = t75 + t57;
        const V t86 = t72 + t54;
        // spectrum block of 5, multiplier 2
        const V t87 = t80 + t84;
        const V t88 = t87 + t77;
        io.out(1, t88);
        const V t89 = c[0] * t80;
        const V t90 = c[1] * t84;
        const V t91 = t89 - t90;
        const V t92 = t91 + t77;
        const V t93 = c[2] * t79;
        const V t94 = c[3] * t83;
        const V t95 = t93 + t94;
        const V t96 = t92 - t95;
        io.out(5, t96);
        const V t97 = t92 + t95;
        io.out(9, t97);
        const V t98 = c[1] * t80;
        const V t99 = t77 - t98;
        const V t100 = c[0] * t84;
        const V t101 = t99 + t100;
        const V t102 = c[3] * t79;
        const V t103 = c[2] * t83;
        const V t104 = t102 - t103;
        const V t105 = t101 - t104;
        io.out(3, t105);
        const V t106 = t101 + t104;
        io.out(4, t106);
        // spectrum block of 5, multiplier 2
        const V t107 = t82 + t86;
        const V t108 = t107 + t78;
        io.out(10, t108);
        const V t109 = c[0] * t82;
        const V t110 = c[1] * t86;
        const V t111 = t109 - t110;
        const V t112 = t111 + t78;
        const V t113 = c[2] * t81;
        const V t114 = c[3] * t85;
        const V t115 = t113 + t114;
        const V t116 = t112 - t115;
        io.out(6, t116);
        const V t117 = t112 + t115;
        io.out(2, t117);
        const V t118 = c[1] * t82;
        const V t119 = t78 - t118;
        const V t120 = c[0] * t86;
        const V t121 = t119 + t120;
        const V t122 = c[3] * t81;
        const V t123 = c[2] * t85;
        const V t124 = t122 - t123;
        const V t125 = t121 - t124;
        io.out(8, t125);
        const V t126 = t121 + t124;
        io.out(7, t126);
        // spectrum block of 11
        const V t127 = x0r + t15;
        io.out(0, t127);
    }
};

}  // namespace zulg
