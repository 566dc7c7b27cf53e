// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 21.
// Inverse DFT to 21 real points, prime-factor 3, 7.
// 56 additions, 56 subtractions, 87 multiplications (108 with `scale`); 10 constants; 24 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<21> {
    static constexpr int steps = 220;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
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
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        const V x7r = io.re(7);
        const V t12 = two * x7r;
        const V x8r = io.re(8);
        const V t13 = two * x8r;
        const V x8i = io.im(8);
        const V t14 = two * x8i;
        const V x9r = io.re(9);
        const V t15 = two * x9r;
        const V x9i = io.im(9);
        const V t16 = two * x9i;
        const V x10r = io.re(10);
        const V t17 = two * x10r;
        const V x10i = io.im(10);
        const V t18 = two * x10i;
        // spectrum block of 3
        const V x0r = io.re(0);
        const V t19 = t12 + x0r;
        const V t20 = c[6] * t12;
        const V t21 = x0r - t20;
        const V x7i = io.im(7);
        const V t22 = c[8] * x7i;
        const V t23 = t21 - t22;
        const V t24 = t21 + t22;
        // complex block of 3
        const V t25 = t18 - t7;
        const V t26 = t17 + t6;
        const V t27 = t18 + t7;
        const V t28 = t17 - t6;
        const V t29 = t25 + t5;
        const V t30 = t26 + t4;
        const V t31 = c[6] * t25;
        const V t32 = t5 - t31;
        const V t33 = c[6] * t26;
        const V t34 = t4 - t33;
        const V t35 = c[7] * t27;
        const V t36 = c[7] * t28;
        const V t37 = t32 + t36;
        const V t38 = t34 - t35;
        const V t39 = t32 - t36;
        const V t40 = t34 + t35;
        // complex block of 3
        const V t41 = t14 + t1;
        const V t42 = t13 + t0;
        const V t43 = t1 - t14;
        const V t44 = t13 - t0;
        const V t45 = t11 - t41;
        const V t46 = t42 + t10;
        const V t47 = c[6] * t41;
        const V t48 = t47 + t11;
        const V t49 = c[6] * t42;
        const V t50 = t10 - t49;
        const V t51 = c[7] * t43;
        const V t52 = c[7] * t44;
        const V t53 = t48 + t52;
        const V t54 = t50 - t51;
        const V t55 = t48 - t52;
        const V t56 = t50 + t51;
        // complex block of 3
        const V t57 = t3 - t9;
        const V t58 = t8 + t2;
        const V t59 = t9 + t3;
        const V t60 = t8 - t2;
        const V t61 = t57 + t16;
        const V t62 = t58 + t15;
        const V t63 = c[6] * t57;
        const V t64 = t16 - t63;
        const V t65 = c[6] * t58;
        const V t66 = t15 - t65;
        const V t67 = c[7] * t59;
        const V t68 = c[7] * t60;
        const V t69 = t64 + t68;
        const V t70 = t66 + t67;
        const V t71 = t64 - t68;
        const V t72 = t66 - t67;
        // spectrum block of 7, multiplier 3
        const V t73 = t30 + t46;
        const V t74 = t73 + t62;
        const V t75 = t74 + t19;
        io.out(0, t75);
        const V t76 = c[0] * t30;
        const V t77 = c[1] * t46;
        const V t78 = t76 - t77;
        const V t79 = c[2] * t62;
        const V t80 = t78 - t79;
        const V t81 = t80 + t19;
        const V t82 = c[3] * t29;
        const V t83 = c[4] * t45;
        const V t84 = t82 + t83;
        const V t85 = c[5] * t61;
        const V t86 = t84 + t85;
        const V t87 = t81 - t86;
        io.out(15, t87);
        const V t88 = t81 + t86;
        io.out(6, t88);
        const V t89 = c[1] * t30;
        const V t90 = t19 - t89;
        const V t91 = c[2] * t46;
        const V t92 = t90 - t91;
        const V t93 = c[0] * t62;
        const V t94 = t92 + t93;
        const V t95 = c[4] * t29;
        const V t96 = c[5] * t45;
        const V t97 = t95 - t96;
        const V t98 = c[3] * t61;
        const V t99 = t97 - t98;
        const V t100 = t94 - t99;
        io.out(9, t100);
        const V t101 = t94 + t99;
        io.out(12, t101);
        const V t102 = c[2] * t30;
        const V t103 = t19 - t102;
        const V t104 = c[0] * t46;
        const V t105 = t103 + t104;
        const V t106 = c[1] * t62;
        const V t107 = t105 - t106;
        const V t108 = c[5] * t29;
        const V t109 = c[3] * t45;
        const V t110 = t108 - t109;
        const V t111 = c[4] * t61;
        const V t112 = t110 + t111;
        const V t113 = t107 - t112;
        io.out(3, t113);
        const V t114 = t107 + t112;
        io.out(18, t114);
        // spectrum block of 7, multiplier 3
        const V t115 = t38 + t54;
        const V t116 = t115 + t70;
        const V t117 = t116 + t23;
        io.out(7, t117);
        const V t118 = c[0] * t38;
        const V t119 = c[1] * t54;
        const V t120 = t118 - t119;
        const V t121 = c[2] * t70;
        const V t122 = t120 - t121;
        const V t123 = t122 + t23;
        const V t124 = c[3] * t37;
        const V t125 = c[4] * t53;
        const V t126 = t124 + t125;
        const V t127 = c[5] * t69;
        const V t128 = t126 + t127;
        const V t129 = t123 - t128;
        io.out(1, t129);
        const V t130 = t123 + t128;
        io.out(13, t130);
        const V t131 = c[1] * t38;
        const V t132 = t23 - t131;
        const V t133 = c[2] * t54;
        const V t134 = t132 - t133;
        const V t135 = c[0] * t70;
        const V t136 = t134 + t135;
        const V t137 = c[4] * t37;
        const V t138 = c[5] * t53;
        const V t139 = t137 - t138;
        const V t140 = c[3] * t69;
        const V t141 = t139 - t140;
        const V t142 = t136 - t141;
        io.out(16, t142);
        const V t143 = t136 + t141;
        io.out(19, t143);
        const V t144 = c[2] * t38;
        const V t145 = t23 - t144;
        const V t146 = c[0] * t54;
        const V t147 = t145 + t146;
        const V t148 = c[1] * t70;
        const V t149 = t147 - t148;
        const V t150 = c[5] * t37;
        const V t151 = c[3] * t53;
        const V t152 = t150 - t151;
        const V t153 = c[4] * t69;
        const V t154 = t152 + t153;
        const V t155 = t149 - t154;
        io.out(10, t155);
        const V t156 = t149 + t154;
        io.out(4, t156);
        // spectrum block of 7, multiplier 3
        const V t157 = t40 + t56;
        const V t158 = t157 + t72;
        const V t159 = t158 + t24;
        io.out(14, t159);
        const V t160 = c[0] * t40;
        const V t161 = c[1] * t56;
        const V t162 = t160 - t161;
        const V t163 = c[2] * t72;
        const V t164 = t162 - t163;
        const V t165 = t164 + t24;
        const V t166 = c[3] * t39;
        const V t167 = c[4] * t55;
        const V t168 = t166 + t167;
        const V t169 = c[5] * t71;
        const V t170 = t168 + t169;
        const V t171 = t165 - t170;
        io.out(8, t171);
        const V t172 = t165 + t170;
        io.out(20, t172);
        const V t173 = c[1] * t40;
        const V t174 = t24 - t173;
        const V t175 = c[2] * t56;
        const V t176 = t174 - t175;
        const V t177 = c[0] * t72;
        const V t178 = t176 + t177;
        const V t179 = c[4] * t39;
        const V t180 = c[5] * t55;
        const V t181 = t179 - t180;
        const V t182 = c[3] * t71;
        const V t183 = t181 - t182;
        const V t184 = t178 - t183;
        io.out(2, t184);
        const V t185 = t178 + t183;
        io.out(5, t185);
        const V t186 = c[2] * t40;
        const V t187 = t24 - t186;
        const V t188 = c[0] * t56;
        const V t189 = t187 + t188;
        const V t190 = c[1] * t72;
        const V t191 = t189 - t190;
        const V t192 = c[5] * t39;
        const V t193 = c[3] * t55;
        const V t194 = t192 - t193;
        const V t195 = c[4] * t71;
        const V t196 = t194 + t195;
        const V t197 = t191 - t196;
        io.out(17, t197);
        const V t198 = t191 + t196;
        io.out(11, t198);
    }
};

}  // namespace zulg
