// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 17.
// Inverse DFT to 17 real points, Rader 16.
// 58 additions, 58 subtractions, 68 multiplications (85 with `scale`); 21 constants; 33 values alive at most.
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
        0.31717619283272513,  // c[3]: P[4] of 17
        0.40623178445333147,  // c[4]: Q[4] of 17
        0.3809911760447736,  // c[5]: P[2] of 17
        0.347088927763506,  // c[6]: -Q[2] of 17
        0.039110758925753275,  // c[7]: P[6] of 17
        0.5139020806887744,  // c[8]: Q[6] of 17
        1.4142135623730951,  // c[9]: cos 2 pi 1/8 times 2
        0.425612278682049,  // c[10]: -Q[1] of 17
        0.2906530375466148,  // c[11]: P[1] of 17
        0.07176933159324189,  // c[12]: Q[7] of 17
        0.5103666946839882,  // c[13]: -P[7] of 17
        0.5094301241979152,  // c[14]: -Q[3] of 17
        0.07814056923069293,  // c[15]: -P[3] of 17
        0.5020314050995693,  // c[16]: Q[5] of 17
        0.1165738748337385,  // c[17]: P[5] of 17
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
        const V x4r = io.re(4);
        const V t1 = two * x4r;
        // real block of 2
        const V t2 = t0 + t1;
        const V t3 = t0 - t1;
        // doubled bins
        const V x2r = io.re(2);
        const V t4 = two * x2r;
        const V x8r = io.re(8);
        const V t5 = two * x8r;
        // real block of 2
        const V t6 = t5 + t4;
        const V t7 = t5 - t4;
        // doubled bins
        const V x3r = io.re(3);
        const V t8 = two * x3r;
        const V x5r = io.re(5);
        const V t9 = two * x5r;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x7r = io.re(7);
        const V t11 = two * x7r;
        // real block of 2
        const V t12 = t8 + t9;
        const V t13 = t8 - t9;
        // real block of 2
        const V t14 = t11 - t10;
        // skew block of 4
        const V t15 = t13 - t14;
        const V t16 = t13 + t14;
        // real block of 2
        const V t17 = t11 + t10;
        // real block of 2
        const V t18 = t2 + t6;
        // real block of 2
        const V t19 = t12 + t17;
        // real block of 2
        const V t20 = t18 + t19;
        const V t21 = t18 - t19;
        // spectrum block of 17
        const V t22 = c[18] * t20;
        // real block of 2
        const V t23 = t2 - t6;
        // spectrum block of 17
        const V t24 = c[3] * t23;
        const V t25 = c[4] * t23;
        // real block of 2
        const V t26 = t12 - t17;
        // spectrum block of 17
        const V t27 = c[4] * t26;
        const V t28 = c[3] * t26;
        // skew block of 4
        const V t29 = c[2] * t15;
        const V t30 = t3 + t29;
        const V t31 = t3 - t29;
        // spectrum block of 17
        const V t32 = c[5] * t30;
        const V t33 = c[6] * t30;
        const V t34 = c[7] * t31;
        const V t35 = c[8] * t31;
        // skew block of 4
        const V t36 = c[2] * t16;
        const V t37 = t36 - t7;
        const V t38 = t7 + t36;
        // spectrum block of 17
        const V t39 = c[6] * t38;
        const V t40 = c[5] * t38;
        const V t41 = c[8] * t37;
        const V t42 = c[7] * t37;
        // doubled bins
        const V x1i = io.im(1);
        const V t43 = two * x1i;
        // skew block of 8
        const V x2i = io.im(2);
        const V t44 = c[9] * x2i;
        const V x8i = io.im(8);
        const V t45 = c[9] * x8i;
        const V t46 = t44 - t45;
        const V t47 = t44 + t45;
        // doubled bins
        const V x3i = io.im(3);
        const V t48 = two * x3i;
        const V x5i = io.im(5);
        const V t49 = two * x5i;
        // skew block of 8
        const V t50 = c[0] * t49;
        const V t51 = c[1] * t48;
        const V t52 = t51 - t50;
        const V t53 = c[0] * t48;
        const V t54 = c[1] * t49;
        const V t55 = t54 + t53;
        // doubled bins
        const V x4i = io.im(4);
        const V t56 = two * x4i;
        const V x6i = io.im(6);
        const V t57 = two * x6i;
        const V x7i = io.im(7);
        const V t58 = two * x7i;
        // skew block of 8
        const V t59 = c[1] * t57;
        const V t60 = c[0] * t58;
        const V t61 = t59 - t60;
        const V t62 = c[1] * t58;
        const V t63 = c[0] * t57;
        const V t64 = t63 + t62;
        // complex block of 2
        const V t65 = t43 + t46;
        // complex block of 2
        const V t66 = t52 + t61;
        // complex block of 2
        const V t67 = t65 + t66;
        const V t68 = t65 - t66;
        // spectrum block of 17
        const V t69 = c[10] * t67;
        const V t70 = c[11] * t67;
        const V t71 = c[12] * t68;
        const V t72 = c[13] * t68;
        // complex block of 2
        const V t73 = t56 + t47;
        // complex block of 2
        const V t74 = t64 - t55;
        // complex block of 2
        const V t75 = t73 + t74;
        const V t76 = t73 - t74;
        // spectrum block of 17
        const V t77 = c[11] * t75;
        const V t78 = c[10] * t75;
        const V t79 = c[13] * t76;
        const V t80 = c[12] * t76;
        // complex block of 2
        const V t81 = t43 - t46;
        // complex block of 2
        const V t82 = t55 + t64;
        // complex block of 2
        const V t83 = t81 - t82;
        const V t84 = t81 + t82;
        // spectrum block of 17
        const V t85 = c[14] * t84;
        const V t86 = c[15] * t84;
        const V t87 = c[16] * t83;
        const V t88 = c[17] * t83;
        // complex block of 2
        const V t89 = t56 - t47;
        // complex block of 2
        const V t90 = t52 - t61;
        // complex block of 2
        const V t91 = t89 - t90;
        const V t92 = t89 + t90;
        // spectrum block of 17
        const V t93 = c[15] * t92;
        const V t94 = c[14] * t92;
        const V t95 = c[17] * t91;
        const V t96 = c[16] * t91;
        const V x0r = io.re(0);
        const V t97 = x0r - t22;
        const V t98 = c[19] * t21;
        // spectrum block of 2
        const V t99 = t97 + t98;
        const V t100 = t97 - t98;
        // spectrum block of 17
        const V t101 = t24 + t27;
        const V t102 = t25 - t28;
        // spectrum block of 2
        const V t103 = t99 + t101;
        const V t104 = t99 - t101;
        // spectrum block of 2
        const V t105 = t100 - t102;
        const V t106 = t100 + t102;
        // spectrum block of 17
        const V t107 = t69 + t77;
        const V t108 = t71 - t79;
        // complex block of 2
        const V t109 = t108 - t107;
        const V t110 = t107 + t108;
        // spectrum block of 17
        const V t111 = t70 - t78;
        const V t112 = t80 + t72;
        // complex block of 2
        const V t113 = t111 + t112;
        const V t114 = t111 - t112;
        // spectrum block of 17
        const V t115 = t85 + t93;
        const V t116 = t87 - t95;
        // complex block of 2
        const V t117 = t116 - t115;
        const V t118 = t116 + t115;
        // spectrum block of 17
        const V t119 = t94 - t86;
        const V t120 = t96 + t88;
        // complex block of 2
        const V t121 = t120 - t119;
        const V t122 = t120 + t119;
        // complex block of 2
        const V t123 = t113 - t121;
        const V t124 = t109 - t117;
        // complex block of 2
        const V t125 = t114 + t118;
        const V t126 = t110 + t122;
        const V t127 = t114 - t118;
        const V t128 = t122 - t110;
        // spectrum block of 17
        const V t129 = t32 - t39;
        const V t130 = t34 + t41;
        // mirrored skew block of 4
        const V t131 = t129 - t130;
        const V t132 = c[2] * t131;
        const V t133 = t129 + t130;
        // spectrum block of 17
        const V t134 = t40 + t33;
        const V t135 = t35 - t42;
        // mirrored skew block of 4
        const V t136 = t135 - t134;
        const V t137 = c[2] * t136;
        const V t138 = t134 + t135;
        // complex block of 2
        const V t139 = t113 + t121;
        // spectrum block of 2
        const V t140 = t103 - t133;
        // spectrum block of 2
        const V t141 = t140 - t139;
        io.out(4, t141);
        const V t142 = t140 + t139;
        io.out(13, t142);
        // complex block of 2
        const V t143 = t109 + t117;
        // spectrum block of 2
        const V t144 = t103 + t133;
        // spectrum block of 2
        const V t145 = t144 + t143;
        io.out(1, t145);
        const V t146 = t144 - t143;
        io.out(16, t146);
        // spectrum block of 16
        const V t147 = c[0] * t125;
        const V t148 = c[1] * t126;
        const V t149 = t148 + t147;
        const V t150 = c[0] * t126;
        const V t151 = c[1] * t125;
        const V t152 = t151 - t150;
        // mirrored skew block of 4
        const V t153 = t132 - t137;
        // spectrum block of 2
        const V t154 = t105 + t153;
        const V t155 = t105 - t153;
        // spectrum block of 2
        const V t156 = t154 - t149;
        io.out(6, t156);
        const V t157 = t154 + t149;
        io.out(11, t157);
        // spectrum block of 2
        const V t158 = t155 - t152;
        io.out(7, t158);
        const V t159 = t155 + t152;
        io.out(10, t159);
        // spectrum block of 16
        const V t160 = t124 + t123;
        const V t161 = c[2] * t160;
        // spectrum block of 2
        const V t162 = t104 - t138;
        // spectrum block of 2
        const V t163 = t162 - t161;
        io.out(8, t163);
        const V t164 = t162 + t161;
        io.out(9, t164);
        // spectrum block of 16
        const V t165 = t123 - t124;
        const V t166 = c[2] * t165;
        // spectrum block of 2
        const V t167 = t104 + t138;
        // spectrum block of 2
        const V t168 = t167 - t166;
        io.out(2, t168);
        const V t169 = t167 + t166;
        io.out(15, t169);
        // spectrum block of 16
        const V t170 = c[1] * t127;
        const V t171 = c[0] * t128;
        const V t172 = t171 - t170;
        const V t173 = c[1] * t128;
        const V t174 = c[0] * t127;
        const V t175 = t174 + t173;
        // mirrored skew block of 4
        const V t176 = t132 + t137;
        // spectrum block of 2
        const V t177 = t106 - t176;
        const V t178 = t106 + t176;
        // spectrum block of 2
        const V t179 = t177 + t172;
        io.out(12, t179);
        const V t180 = t177 - t172;
        io.out(5, t180);
        // spectrum block of 2
        const V t181 = t178 - t175;
        io.out(14, t181);
        const V t182 = t178 + t175;
        io.out(3, t182);
        // spectrum block of 17
        const V t183 = x0r + t20;
        io.out(0, t183);
    }
};

}  // namespace zulg
