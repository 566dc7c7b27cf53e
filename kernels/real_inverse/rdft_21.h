// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 21.
// Inverse DFT to 21 real points, prime-factor 3, 7.
// 56 additions, 56 subtractions, 87 multiplications (108 with `scale`); 10 constants; 37 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<21> {
    static constexpr int steps = 220;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 2/7
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
        1.7320508075688772,  // c[8]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x7r = io.re(7);
        const V t0 = two * x7r;
        // spectrum block of 3
        const V t1 = c[6] * t0;
        const V x7i = io.im(7);
        const V t2 = c[8] * x7i;
        const V x0r = io.re(0);
        const V t3 = t0 + x0r;
        const V t4 = x0r - t1;
        const V t5 = t4 - t2;
        const V t6 = t4 + t2;
        // doubled bins
        const V x1r = io.re(1);
        const V t7 = two * x1r;
        const V x8r = io.re(8);
        const V t8 = two * x8r;
        // complex block of 3
        const V t9 = t8 + t7;
        // doubled bins
        const V x1i = io.im(1);
        const V t10 = two * x1i;
        const V x8i = io.im(8);
        const V t11 = two * x8i;
        // complex block of 3
        const V t12 = t11 + t10;
        const V t13 = t10 - t11;
        // doubled bins
        const V x6r = io.re(6);
        const V t14 = two * x6r;
        const V x6i = io.im(6);
        const V t15 = two * x6i;
        // complex block of 3
        const V t16 = t8 - t7;
        const V t17 = c[7] * t16;
        const V t18 = t15 - t12;
        const V t19 = t9 + t14;
        // spectrum block of 7, multiplier 3
        const V t20 = c[0] * t19;
        // complex block of 3
        const V t21 = c[6] * t12;
        const V t22 = t21 + t15;
        const V t23 = c[6] * t9;
        const V t24 = t14 - t23;
        const V t25 = c[7] * t13;
        const V t26 = t24 - t25;
        const V t27 = t24 + t25;
        // doubled bins
        const V x2r = io.re(2);
        const V t28 = two * x2r;
        const V x5r = io.re(5);
        const V t29 = two * x5r;
        // complex block of 3
        const V t30 = t29 + t28;
        // doubled bins
        const V x9r = io.re(9);
        const V t31 = two * x9r;
        // complex block of 3
        const V t32 = t29 - t28;
        const V t33 = c[7] * t32;
        const V t34 = t30 + t31;
        const V t35 = c[6] * t30;
        const V t36 = t31 - t35;
        // doubled bins
        const V x2i = io.im(2);
        const V t37 = two * x2i;
        const V x5i = io.im(5);
        const V t38 = two * x5i;
        // complex block of 3
        const V t39 = t37 - t38;
        // doubled bins
        const V x9i = io.im(9);
        const V t40 = two * x9i;
        // complex block of 3
        const V t41 = t38 + t37;
        const V t42 = c[7] * t41;
        const V t43 = t39 + t40;
        const V t44 = c[6] * t39;
        const V t45 = t40 - t44;
        // doubled bins
        const V x3r = io.re(3);
        const V t46 = two * x3r;
        const V x3i = io.im(3);
        const V t47 = two * x3i;
        const V x4r = io.re(4);
        const V t48 = two * x4r;
        const V x10r = io.re(10);
        const V t49 = two * x10r;
        // complex block of 3
        const V t50 = t49 + t48;
        // doubled bins
        const V x4i = io.im(4);
        const V t51 = two * x4i;
        const V x10i = io.im(10);
        const V t52 = two * x10i;
        // complex block of 3
        const V t53 = t52 - t51;
        const V t54 = t52 + t51;
        const V t55 = t49 - t48;
        const V t56 = c[7] * t55;
        const V t57 = t53 + t47;
        const V t58 = t50 + t46;
        // spectrum block of 7, multiplier 3
        const V t59 = c[1] * t58;
        const V t60 = c[0] * t58;
        const V t61 = c[2] * t58;
        // complex block of 3
        const V t62 = c[6] * t53;
        const V t63 = t47 - t62;
        const V t64 = c[6] * t50;
        const V t65 = t46 - t64;
        const V t66 = c[7] * t54;
        const V t67 = t65 - t66;
        const V t68 = t65 + t66;
        const V t69 = t63 + t56;
        // spectrum block of 7, multiplier 3
        const V t70 = c[3] * t69;
        const V t71 = c[4] * t69;
        const V t72 = c[5] * t69;
        // complex block of 3
        const V t73 = t22 + t17;
        // spectrum block of 7, multiplier 3
        const V t74 = c[4] * t73;
        const V t75 = c[5] * t73;
        const V t76 = c[3] * t73;
        const V t77 = t70 + t74;
        const V t78 = t71 - t75;
        const V t79 = t72 - t76;
        // complex block of 3
        const V t80 = t45 + t33;
        // spectrum block of 7, multiplier 3
        const V t81 = c[5] * t80;
        const V t82 = c[3] * t80;
        const V t83 = c[4] * t80;
        // complex block of 3
        const V t84 = t36 + t42;
        // spectrum block of 7, multiplier 3
        const V t85 = c[2] * t84;
        const V t86 = t67 + t26;
        const V t87 = c[1] * t67;
        const V t88 = c[0] * t26;
        const V t89 = t87 - t88;
        const V t90 = t86 + t84;
        const V t91 = t89 - t85;
        const V t92 = c[1] * t84;
        const V t93 = c[0] * t84;
        const V t94 = c[0] * t67;
        const V t95 = t5 - t94;
        const V t96 = c[2] * t26;
        const V t97 = t95 - t96;
        const V t98 = c[2] * t67;
        const V t99 = t5 - t98;
        const V t100 = c[1] * t26;
        const V t101 = t99 + t100;
        const V t102 = t90 + t5;
        io.out(7, t102);
        const V t103 = t91 + t5;
        const V t104 = t77 + t81;
        const V t105 = t103 - t104;
        io.out(1, t105);
        const V t106 = t103 + t104;
        io.out(13, t106);
        const V t107 = t97 + t92;
        const V t108 = t78 - t82;
        const V t109 = t107 - t108;
        io.out(16, t109);
        const V t110 = t107 + t108;
        io.out(19, t110);
        const V t111 = t101 - t93;
        const V t112 = t79 + t83;
        const V t113 = t111 - t112;
        io.out(10, t113);
        const V t114 = t111 + t112;
        io.out(4, t114);
        // complex block of 3
        const V t115 = t63 - t56;
        // spectrum block of 7, multiplier 3
        const V t116 = c[3] * t115;
        const V t117 = c[4] * t115;
        const V t118 = c[5] * t115;
        // complex block of 3
        const V t119 = t22 - t17;
        // spectrum block of 7, multiplier 3
        const V t120 = c[4] * t119;
        const V t121 = c[5] * t119;
        const V t122 = c[3] * t119;
        const V t123 = t116 + t120;
        const V t124 = t117 - t121;
        const V t125 = t118 - t122;
        // complex block of 3
        const V t126 = t45 - t33;
        // spectrum block of 7, multiplier 3
        const V t127 = c[5] * t126;
        const V t128 = c[3] * t126;
        const V t129 = c[4] * t126;
        // complex block of 3
        const V t130 = t36 - t42;
        // spectrum block of 7, multiplier 3
        const V t131 = c[2] * t130;
        const V t132 = t68 + t27;
        const V t133 = c[1] * t68;
        const V t134 = c[0] * t27;
        const V t135 = t133 - t134;
        const V t136 = t132 + t130;
        const V t137 = t135 - t131;
        const V t138 = c[1] * t130;
        const V t139 = c[0] * t130;
        const V t140 = c[0] * t68;
        const V t141 = t6 - t140;
        const V t142 = c[2] * t27;
        const V t143 = t141 - t142;
        const V t144 = c[2] * t68;
        const V t145 = t6 - t144;
        const V t146 = c[1] * t27;
        const V t147 = t145 + t146;
        const V t148 = t136 + t6;
        io.out(14, t148);
        const V t149 = t137 + t6;
        const V t150 = t123 + t127;
        const V t151 = t149 - t150;
        io.out(8, t151);
        const V t152 = t149 + t150;
        io.out(20, t152);
        const V t153 = t143 + t138;
        const V t154 = t124 - t128;
        const V t155 = t153 - t154;
        io.out(2, t155);
        const V t156 = t153 + t154;
        io.out(5, t156);
        const V t157 = t147 - t139;
        const V t158 = t125 + t129;
        const V t159 = t157 - t158;
        io.out(17, t159);
        const V t160 = t157 + t158;
        io.out(11, t160);
        // spectrum block of 7, multiplier 3
        const V t161 = t58 + t19;
        const V t162 = t161 + t34;
        const V t163 = t162 + t3;
        io.out(0, t163);
        const V t164 = t59 - t20;
        const V t165 = c[2] * t34;
        const V t166 = t164 - t165;
        const V t167 = c[3] * t57;
        const V t168 = c[4] * t18;
        const V t169 = t167 + t168;
        const V t170 = c[5] * t43;
        const V t171 = t166 + t3;
        const V t172 = t169 + t170;
        const V t173 = t171 - t172;
        io.out(15, t173);
        const V t174 = t171 + t172;
        io.out(6, t174);
        const V t175 = t3 - t60;
        const V t176 = c[2] * t19;
        const V t177 = t175 - t176;
        const V t178 = c[1] * t34;
        const V t179 = c[4] * t57;
        const V t180 = c[5] * t18;
        const V t181 = t179 - t180;
        const V t182 = c[3] * t43;
        const V t183 = t177 + t178;
        const V t184 = t181 - t182;
        const V t185 = t183 - t184;
        io.out(9, t185);
        const V t186 = t183 + t184;
        io.out(12, t186);
        const V t187 = t3 - t61;
        const V t188 = c[1] * t19;
        const V t189 = t187 + t188;
        const V t190 = c[0] * t34;
        const V t191 = c[5] * t57;
        const V t192 = c[3] * t18;
        const V t193 = t191 - t192;
        const V t194 = c[4] * t43;
        const V t195 = t189 - t190;
        const V t196 = t193 + t194;
        const V t197 = t195 - t196;
        io.out(3, t197);
        const V t198 = t195 + t196;
        io.out(18, t198);
    }
};

}  // namespace zulg
