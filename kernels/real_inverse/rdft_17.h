// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 17.
// Inverse DFT to 17 real points, Rader 16.
// 58 additions, 58 subtractions, 68 multiplications (85 with `scale`); 21 constants; 20 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<17> {
    static constexpr int steps = 201;  // with `scale`
    static constexpr double inverseRoot = 0.24253562503633297;  // 1/sqrt(17), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: sin 2 pi 1/16
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        1.4142135623730951,  // c[3]: cos 2 pi 1/8 times 2
        0.2906530375466148,  // c[4]: P[1] of 17
        0.425612278682049,  // c[5]: -Q[1] of 17
        0.347088927763506,  // c[6]: -Q[2] of 17
        0.3809911760447736,  // c[7]: P[2] of 17
        0.07814056923069293,  // c[8]: -P[3] of 17
        0.5094301241979152,  // c[9]: -Q[3] of 17
        0.40623178445333147,  // c[10]: Q[4] of 17
        0.31717619283272513,  // c[11]: P[4] of 17
        0.1165738748337385,  // c[12]: P[5] of 17
        0.5020314050995693,  // c[13]: Q[5] of 17
        0.5139020806887744,  // c[14]: Q[6] of 17
        0.039110758925753275,  // c[15]: P[6] of 17
        0.5103666946839882,  // c[16]: -P[7] of 17
        0.07176933159324189,  // c[17]: Q[7] of 17
        0.0625,  // c[18]: 1/16
        0.2576941016011038,  // c[19]: beta of 17
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
        const V x3r = io.re(3);
        const V t3 = two * x3r;
        const V x3i = io.im(3);
        const V t4 = two * x3i;
        const V x4r = io.re(4);
        const V t5 = two * x4r;
        const V x4i = io.im(4);
        const V t6 = two * x4i;
        const V x5r = io.re(5);
        const V t7 = two * x5r;
        const V x5i = io.im(5);
        const V t8 = two * x5i;
        const V x6r = io.re(6);
        const V t9 = two * x6r;
        const V x6i = io.im(6);
        const V t10 = two * x6i;
        const V x7r = io.re(7);
        const V t11 = two * x7r;
        const V x7i = io.im(7);
        const V t12 = two * x7i;
        const V x8r = io.re(8);
        const V t13 = two * x8r;
        // real block of 2
        const V t14 = t0 + t5;
        const V t15 = t0 - t5;
        // real block of 2
        const V t16 = t3 + t7;
        const V t17 = t3 - t7;
        // real block of 2
        const V t18 = t13 + t2;
        const V t19 = t13 - t2;
        // real block of 2
        const V t20 = t11 + t9;
        const V t21 = t11 - t9;
        // real block of 2
        const V t22 = t14 + t18;
        const V t23 = t14 - t18;
        // real block of 2
        const V t24 = t16 + t20;
        const V t25 = t16 - t20;
        // real block of 2
        const V t26 = t22 + t24;
        const V t27 = t22 - t24;
        // skew block of 4
        const V t28 = t17 - t21;
        const V t29 = c[2] * t28;
        const V t30 = t17 + t21;
        const V t31 = c[2] * t30;
        const V t32 = t31 - t19;
        const V t33 = t15 + t29;
        const V t34 = t19 + t31;
        const V t35 = t15 - t29;
        // skew block of 8
        const V t36 = c[0] * t8;
        const V t37 = c[1] * t4;
        const V t38 = t37 - t36;
        const V t39 = c[0] * t4;
        const V t40 = c[1] * t8;
        const V t41 = t40 + t39;
        const V x8i = io.im(8);
        const V t42 = c[3] * x8i;
        const V x2i = io.im(2);
        const V t43 = c[3] * x2i;
        const V t44 = t43 - t42;
        const V t45 = t43 + t42;
        const V t46 = c[1] * t10;
        const V t47 = c[0] * t12;
        const V t48 = t46 - t47;
        const V t49 = c[1] * t12;
        const V t50 = c[0] * t10;
        const V t51 = t50 + t49;
        // complex block of 2
        const V t52 = t1 + t44;
        const V t53 = t6 + t45;
        const V t54 = t1 - t44;
        const V t55 = t6 - t45;
        // complex block of 2
        const V t56 = t38 + t48;
        const V t57 = t51 - t41;
        const V t58 = t38 - t48;
        const V t59 = t41 + t51;
        // complex block of 2
        const V t60 = t52 + t56;
        const V t61 = t53 + t57;
        const V t62 = t52 - t56;
        const V t63 = t53 - t57;
        // complex block of 2
        const V t64 = t54 - t59;
        const V t65 = t55 - t58;
        const V t66 = t54 + t59;
        const V t67 = t55 + t58;
        // spectrum block of 17
        const V t68 = c[18] * t26;
        const V x0r = io.re(0);
        const V t69 = x0r - t68;
        const V t70 = c[4] * t61;
        const V t71 = c[5] * t60;
        const V t72 = t71 + t70;
        const V t73 = c[4] * t60;
        const V t74 = c[5] * t61;
        const V t75 = t73 - t74;
        const V t76 = c[6] * t34;
        const V t77 = c[7] * t33;
        const V t78 = t77 - t76;
        const V t79 = c[6] * t33;
        const V t80 = c[7] * t34;
        const V t81 = t80 + t79;
        const V t82 = c[8] * t67;
        const V t83 = c[9] * t66;
        const V t84 = t83 + t82;
        const V t85 = c[8] * t66;
        const V t86 = c[9] * t67;
        const V t87 = t86 - t85;
        const V t88 = c[10] * t25;
        const V t89 = c[11] * t23;
        const V t90 = t89 + t88;
        const V t91 = c[10] * t23;
        const V t92 = c[11] * t25;
        const V t93 = t91 - t92;
        const V t94 = c[12] * t65;
        const V t95 = c[13] * t64;
        const V t96 = t95 - t94;
        const V t97 = c[12] * t64;
        const V t98 = c[13] * t65;
        const V t99 = t98 + t97;
        const V t100 = c[14] * t32;
        const V t101 = c[15] * t35;
        const V t102 = t101 + t100;
        const V t103 = c[14] * t35;
        const V t104 = c[15] * t32;
        const V t105 = t103 - t104;
        const V t106 = c[16] * t63;
        const V t107 = c[17] * t62;
        const V t108 = t107 - t106;
        const V t109 = c[16] * t62;
        const V t110 = c[17] * t63;
        const V t111 = t110 + t109;
        const V t112 = c[19] * t27;
        // spectrum block of 2
        const V t113 = t69 + t112;
        const V t114 = t69 - t112;
        // spectrum block of 2
        const V t115 = t113 + t90;
        const V t116 = t113 - t90;
        // spectrum block of 2
        const V t117 = t114 - t93;
        const V t118 = t114 + t93;
        // complex block of 2
        const V t119 = t75 + t111;
        const V t120 = t108 - t72;
        const V t121 = t75 - t111;
        const V t122 = t72 + t108;
        // complex block of 2
        const V t123 = t99 - t87;
        const V t124 = t96 - t84;
        const V t125 = t99 + t87;
        const V t126 = t96 + t84;
        // complex block of 2
        const V t127 = t119 + t123;
        const V t128 = t120 + t124;
        const V t129 = t119 - t123;
        const V t130 = t120 - t124;
        // complex block of 2
        const V t131 = t121 + t126;
        const V t132 = t122 + t125;
        const V t133 = t121 - t126;
        const V t134 = t125 - t122;
        // spectrum block of 16
        const V t135 = c[0] * t131;
        const V t136 = c[1] * t132;
        const V t137 = t136 + t135;
        const V t138 = c[0] * t132;
        const V t139 = c[1] * t131;
        const V t140 = t139 - t138;
        const V t141 = t130 + t129;
        const V t142 = t129 - t130;
        const V t143 = c[2] * t141;
        const V t144 = c[2] * t142;
        const V t145 = c[1] * t133;
        const V t146 = c[0] * t134;
        const V t147 = t146 - t145;
        const V t148 = c[1] * t134;
        const V t149 = c[0] * t133;
        const V t150 = t149 + t148;
        // mirrored skew block of 4
        const V t151 = t78 - t102;
        const V t152 = c[2] * t151;
        const V t153 = t105 - t81;
        const V t154 = c[2] * t153;
        const V t155 = t78 + t102;
        const V t156 = t152 - t154;
        const V t157 = t81 + t105;
        const V t158 = t152 + t154;
        // spectrum block of 2
        const V t159 = t115 + t155;
        const V t160 = t115 - t155;
        // spectrum block of 2
        const V t161 = t159 + t128;
        io.out(1, t161);
        const V t162 = t159 - t128;
        io.out(16, t162);
        // spectrum block of 2
        const V t163 = t160 - t127;
        io.out(4, t163);
        const V t164 = t160 + t127;
        io.out(13, t164);
        // spectrum block of 2
        const V t165 = t117 + t156;
        const V t166 = t117 - t156;
        // spectrum block of 2
        const V t167 = t165 - t137;
        io.out(6, t167);
        const V t168 = t165 + t137;
        io.out(11, t168);
        // spectrum block of 2
        const V t169 = t166 - t140;
        io.out(7, t169);
        const V t170 = t166 + t140;
        io.out(10, t170);
        // spectrum block of 2
        const V t171 = t116 + t157;
        const V t172 = t116 - t157;
        // spectrum block of 2
        const V t173 = t171 - t144;
        io.out(2, t173);
        const V t174 = t171 + t144;
        io.out(15, t174);
        // spectrum block of 2
        const V t175 = t172 - t143;
        io.out(8, t175);
        const V t176 = t172 + t143;
        io.out(9, t176);
        // spectrum block of 2
        const V t177 = t118 - t158;
        const V t178 = t118 + t158;
        // spectrum block of 2
        const V t179 = t177 + t147;
        io.out(12, t179);
        const V t180 = t177 - t147;
        io.out(5, t180);
        // spectrum block of 2
        const V t181 = t178 - t150;
        io.out(14, t181);
        const V t182 = t178 + t150;
        io.out(3, t182);
        // spectrum block of 17
        const V t183 = x0r + t26;
        io.out(0, t183);
    }
};

}  // namespace zulg
