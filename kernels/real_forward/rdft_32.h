// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 32.
// Forward DFT of 32 real points, twiddled 8, 4.
// 79 additions, 79 subtractions, 44 multiplications (76 with `scale`); 10 outputs negated; 7 constants; 34 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<32> {
    static constexpr int steps = 234;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 2/32
        0.9238795325112867,  // c[2]: cos 2 pi 2/32
        0.19509032201612828,  // c[3]: sin 2 pi 1/32
        0.9807852804032304,  // c[4]: cos 2 pi 1/32
        0.5555702330196022,  // c[5]: sin 2 pi 3/32
        0.8314696123025452,  // c[6]: cos 2 pi 3/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x16 = io.in(16);
        const V t0 = x0 + x16;
        const V t1 = x0 - x16;
        // real block of 2
        const V x4 = io.in(4);
        const V x20 = io.in(20);
        const V t2 = x4 + x20;
        const V t3 = x4 - x20;
        // real block of 2
        const V x8 = io.in(8);
        const V x24 = io.in(24);
        const V t4 = x8 + x24;
        const V t5 = x8 - x24;
        // real block of 2
        const V x12 = io.in(12);
        const V x28 = io.in(28);
        const V t6 = x12 + x28;
        const V t7 = x12 - x28;
        // real block of 2
        const V t8 = t0 + t4;
        const V t9 = t0 - t4;
        // real block of 2
        const V t10 = t2 + t6;
        const V t11 = t2 - t6;
        // real block of 2
        const V t12 = t8 + t10;
        const V t13 = t8 - t10;
        // skew block of 4
        const V t14 = t3 - t7;
        const V t15 = c[0] * t14;
        const V t16 = t3 + t7;
        const V t17 = c[0] * t16;
        const V t18 = t17 - t5;
        const V t19 = t1 + t15;
        const V t20 = t5 + t17;
        const V t21 = t1 - t15;
        // real block of 2
        const V x1 = io.in(1);
        const V x17 = io.in(17);
        const V t22 = x1 + x17;
        const V t23 = x1 - x17;
        // real block of 2
        const V x5 = io.in(5);
        const V x21 = io.in(21);
        const V t24 = x5 + x21;
        const V t25 = x5 - x21;
        // real block of 2
        const V x9 = io.in(9);
        const V x25 = io.in(25);
        const V t26 = x9 + x25;
        const V t27 = x9 - x25;
        // real block of 2
        const V x13 = io.in(13);
        const V x29 = io.in(29);
        const V t28 = x13 + x29;
        const V t29 = x13 - x29;
        // real block of 2
        const V t30 = t22 + t26;
        const V t31 = t22 - t26;
        // real block of 2
        const V t32 = t24 + t28;
        const V t33 = t24 - t28;
        // real block of 2
        const V t34 = t30 + t32;
        const V t35 = t30 - t32;
        // skew block of 4
        const V t36 = t25 - t29;
        const V t37 = c[0] * t36;
        const V t38 = t25 + t29;
        const V t39 = c[0] * t38;
        const V t40 = t39 - t27;
        const V t41 = t23 + t37;
        const V t42 = t27 + t39;
        const V t43 = t23 - t37;
        // real block of 2
        const V x2 = io.in(2);
        const V x18 = io.in(18);
        const V t44 = x2 + x18;
        const V t45 = x2 - x18;
        // real block of 2
        const V x6 = io.in(6);
        const V x22 = io.in(22);
        const V t46 = x6 + x22;
        const V t47 = x6 - x22;
        // real block of 2
        const V x10 = io.in(10);
        const V x26 = io.in(26);
        const V t48 = x10 + x26;
        const V t49 = x10 - x26;
        // real block of 2
        const V x14 = io.in(14);
        const V x30 = io.in(30);
        const V t50 = x14 + x30;
        const V t51 = x14 - x30;
        // real block of 2
        const V t52 = t44 + t48;
        const V t53 = t44 - t48;
        // real block of 2
        const V t54 = t46 + t50;
        const V t55 = t46 - t50;
        // real block of 2
        const V t56 = t52 + t54;
        const V t57 = t52 - t54;
        // skew block of 4
        const V t58 = t47 - t51;
        const V t59 = c[0] * t58;
        const V t60 = t47 + t51;
        const V t61 = c[0] * t60;
        const V t62 = t61 - t49;
        const V t63 = t45 + t59;
        const V t64 = t49 + t61;
        const V t65 = t45 - t59;
        // real block of 2
        const V x3 = io.in(3);
        const V x19 = io.in(19);
        const V t66 = x3 + x19;
        const V t67 = x3 - x19;
        // real block of 2
        const V x7 = io.in(7);
        const V x23 = io.in(23);
        const V t68 = x7 + x23;
        const V t69 = x7 - x23;
        // real block of 2
        const V x11 = io.in(11);
        const V x27 = io.in(27);
        const V t70 = x11 + x27;
        const V t71 = x11 - x27;
        // real block of 2
        const V x15 = io.in(15);
        const V x31 = io.in(31);
        const V t72 = x15 + x31;
        const V t73 = x15 - x31;
        // real block of 2
        const V t74 = t66 + t70;
        const V t75 = t66 - t70;
        // real block of 2
        const V t76 = t68 + t72;
        const V t77 = t68 - t72;
        // real block of 2
        const V t78 = t74 + t76;
        const V t79 = t74 - t76;
        // skew block of 4
        const V t80 = t69 - t73;
        const V t81 = c[0] * t80;
        const V t82 = t69 + t73;
        const V t83 = c[0] * t82;
        const V t84 = t83 - t71;
        const V t85 = t67 + t81;
        const V t86 = t71 + t83;
        const V t87 = t67 - t81;
        // real block of 2
        const V t88 = t12 + t56;
        const V t89 = t12 - t56;
        io.re(8, t89);
        // real block of 2
        const V t90 = t34 + t78;
        const V t91 = t34 - t78;
        io.minusIm(8, t91);
        // real block of 2
        const V t92 = t88 + t90;
        io.re(0, t92);
        const V t93 = t88 - t90;
        io.re(16, t93);
        // real block of 32
        const V t94 = c[3] * t42;
        const V t95 = c[4] * t41;
        const V t96 = t95 - t94;
        const V t97 = c[3] * t41;
        const V t98 = c[4] * t42;
        const V t99 = t98 + t97;
        const V t100 = c[1] * t64;
        const V t101 = c[2] * t63;
        const V t102 = t101 - t100;
        const V t103 = c[1] * t63;
        const V t104 = c[2] * t64;
        const V t105 = t104 + t103;
        const V t106 = c[5] * t86;
        const V t107 = c[6] * t85;
        const V t108 = t107 - t106;
        const V t109 = c[5] * t85;
        const V t110 = c[6] * t86;
        const V t111 = t110 + t109;
        // complex block of 2
        const V t112 = t19 + t102;
        const V t113 = t20 + t105;
        const V t114 = t19 - t102;
        const V t115 = t105 - t20;
        // complex block of 2
        const V t116 = t96 + t108;
        const V t117 = t99 + t111;
        const V t118 = t96 - t108;
        const V t119 = t111 - t99;
        // complex block of 2
        const V t120 = t112 + t116;
        io.re(1, t120);
        const V t121 = t113 + t117;
        io.minusIm(1, t121);
        const V t122 = t112 - t116;
        io.re(15, t122);
        const V t123 = t117 - t113;
        io.minusIm(15, t123);
        // complex block of 2
        const V t124 = t114 + t119;
        io.re(9, t124);
        const V t125 = t115 - t118;
        io.im(9, t125);
        const V t126 = t114 - t119;
        io.re(7, t126);
        const V t127 = t115 + t118;
        io.minusIm(7, t127);
        // real block of 32
        const V t128 = c[1] * t33;
        const V t129 = c[2] * t31;
        const V t130 = t129 - t128;
        const V t131 = c[1] * t31;
        const V t132 = c[2] * t33;
        const V t133 = t132 + t131;
        const V t134 = t53 - t55;
        const V t135 = t55 + t53;
        const V t136 = c[0] * t134;
        const V t137 = c[0] * t135;
        const V t138 = c[2] * t77;
        const V t139 = c[1] * t75;
        const V t140 = t139 - t138;
        const V t141 = c[2] * t75;
        const V t142 = c[1] * t77;
        const V t143 = t142 + t141;
        // complex block of 2
        const V t144 = t9 + t136;
        const V t145 = t11 + t137;
        const V t146 = t9 - t136;
        const V t147 = t137 - t11;
        // complex block of 2
        const V t148 = t130 + t140;
        const V t149 = t133 + t143;
        const V t150 = t130 - t140;
        const V t151 = t143 - t133;
        // complex block of 2
        const V t152 = t144 + t148;
        io.re(2, t152);
        const V t153 = t145 + t149;
        io.minusIm(2, t153);
        const V t154 = t144 - t148;
        io.re(14, t154);
        const V t155 = t149 - t145;
        io.minusIm(14, t155);
        // complex block of 2
        const V t156 = t146 + t151;
        io.re(10, t156);
        const V t157 = t147 - t150;
        io.im(10, t157);
        const V t158 = t146 - t151;
        io.re(6, t158);
        const V t159 = t147 + t150;
        io.minusIm(6, t159);
        // real block of 32
        const V t160 = c[5] * t40;
        const V t161 = c[6] * t43;
        const V t162 = t161 - t160;
        const V t163 = c[5] * t43;
        const V t164 = c[6] * t40;
        const V t165 = t164 + t163;
        const V t166 = c[2] * t62;
        const V t167 = c[1] * t65;
        const V t168 = t167 - t166;
        const V t169 = c[2] * t65;
        const V t170 = c[1] * t62;
        const V t171 = t170 + t169;
        const V t172 = c[4] * t84;
        const V t173 = c[3] * t87;
        const V t174 = t173 + t172;
        const V t175 = c[4] * t87;
        const V t176 = c[3] * t84;
        const V t177 = t176 - t175;
        // complex block of 2
        const V t178 = t21 + t168;
        const V t179 = t18 + t171;
        const V t180 = t21 - t168;
        const V t181 = t171 - t18;
        // complex block of 2
        const V t182 = t162 - t174;
        const V t183 = t177 - t165;
        const V t184 = t162 + t174;
        const V t185 = t165 + t177;
        // complex block of 2
        const V t186 = t178 + t182;
        io.re(3, t186);
        const V t187 = t183 - t179;
        io.im(3, t187);
        const V t188 = t178 - t182;
        io.re(13, t188);
        const V t189 = t179 + t183;
        io.im(13, t189);
        // complex block of 2
        const V t190 = t180 - t185;
        io.re(11, t190);
        const V t191 = t181 - t184;
        io.im(11, t191);
        const V t192 = t180 + t185;
        io.re(5, t192);
        const V t193 = t181 + t184;
        io.minusIm(5, t193);
        // skew block of 4
        const V t194 = t35 - t79;
        const V t195 = c[0] * t194;
        const V t196 = t35 + t79;
        const V t197 = c[0] * t196;
        const V t198 = t197 - t57;
        io.minusIm(12, t198);
        const V t199 = t13 + t195;
        io.re(4, t199);
        const V t200 = t57 + t197;
        io.minusIm(4, t200);
        const V t201 = t13 - t195;
        io.re(12, t201);
    }
};

}  // namespace zulg
