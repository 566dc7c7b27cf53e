// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 16.
// Complex DFT of 16 points, twiddled, inner 2, outer 8.
// 74 additions, 74 subtractions, 28 multiplications (60 with `scale`); 3 constants; 40 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<16> {
    static constexpr int steps = 208;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x8r = io.re(8);
        const V t0 = x0r + x8r;
        const V t1 = x0r - x8r;
        const V x0i = io.im(0);
        const V x8i = io.im(8);
        const V t2 = x0i + x8i;
        const V t3 = x0i - x8i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x12r = io.re(12);
        const V t4 = x4r + x12r;
        const V t5 = x4r - x12r;
        const V x4i = io.im(4);
        const V x12i = io.im(12);
        const V t6 = x4i + x12i;
        const V t7 = x4i - x12i;
        // complex block of 2
        const V t8 = t0 + t4;
        const V t9 = t2 + t6;
        const V t10 = t0 - t4;
        const V t11 = t2 - t6;
        // complex block of 2
        const V t12 = t1 + t7;
        const V t13 = t3 - t5;
        const V t14 = t1 - t7;
        const V t15 = t3 + t5;
        // complex block of 2
        const V x1r = io.re(1);
        const V x9r = io.re(9);
        const V t16 = x1r - x9r;
        const V t17 = x1r + x9r;
        // complex block of 16
        const V t18 = c[1] * t16;
        const V t19 = c[2] * t16;
        // complex block of 2
        const V x1i = io.im(1);
        const V x9i = io.im(9);
        const V t20 = x1i - x9i;
        const V t21 = x1i + x9i;
        // complex block of 16
        const V t22 = c[2] * t20;
        const V t23 = c[1] * t20;
        // complex block of 2
        const V x5r = io.re(5);
        const V x13r = io.re(13);
        const V t24 = x5r - x13r;
        const V t25 = x5r + x13r;
        // complex block of 16
        const V t26 = c[2] * t24;
        const V t27 = c[1] * t24;
        // complex block of 2
        const V x5i = io.im(5);
        const V x13i = io.im(13);
        const V t28 = x5i - x13i;
        const V t29 = x5i + x13i;
        // complex block of 16
        const V t30 = c[1] * t28;
        const V t31 = c[2] * t28;
        // complex block of 2
        const V t32 = t17 + t25;
        const V t33 = t21 + t29;
        const V t34 = t17 - t25;
        // complex block of 8
        const V t35 = c[0] * t34;
        // complex block of 2
        const V t36 = t21 - t29;
        // complex block of 8
        const V t37 = c[0] * t36;
        // complex block of 16
        const V t38 = t18 + t22;
        const V t39 = t30 - t26;
        // complex block of 2
        const V t40 = t38 - t39;
        // complex block of 16
        const V t41 = t23 - t19;
        const V t42 = t31 + t27;
        // complex block of 2
        const V t43 = t41 + t42;
        // complex block of 2
        const V x2r = io.re(2);
        const V x10r = io.re(10);
        const V t44 = x2r + x10r;
        const V t45 = x2r - x10r;
        const V x2i = io.im(2);
        const V x10i = io.im(10);
        const V t46 = x2i + x10i;
        const V t47 = x2i - x10i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x14r = io.re(14);
        const V t48 = x6r + x14r;
        const V t49 = x6r - x14r;
        const V x6i = io.im(6);
        const V x14i = io.im(14);
        const V t50 = x6i + x14i;
        const V t51 = x6i - x14i;
        // complex block of 2
        const V t52 = t44 + t48;
        const V t53 = t46 + t50;
        const V t54 = t44 - t48;
        const V t55 = t46 - t50;
        // complex block of 16
        const V t56 = c[0] * t45;
        const V t57 = c[0] * t47;
        const V t58 = t56 + t57;
        const V t59 = t57 - t56;
        const V t60 = c[0] * t49;
        const V t61 = c[0] * t51;
        const V t62 = t60 + t61;
        const V t63 = t61 - t60;
        // complex block of 2
        const V x3r = io.re(3);
        const V x11r = io.re(11);
        const V t64 = x3r - x11r;
        const V t65 = x3r + x11r;
        // complex block of 16
        const V t66 = c[2] * t64;
        const V t67 = c[1] * t64;
        // complex block of 2
        const V x3i = io.im(3);
        const V x11i = io.im(11);
        const V t68 = x3i - x11i;
        const V t69 = x3i + x11i;
        // complex block of 16
        const V t70 = c[1] * t68;
        const V t71 = c[2] * t68;
        // complex block of 2
        const V x7r = io.re(7);
        const V x15r = io.re(15);
        const V t72 = x7r - x15r;
        const V t73 = x7r + x15r;
        // complex block of 16
        const V t74 = c[1] * t72;
        const V t75 = c[2] * t72;
        // complex block of 2
        const V x7i = io.im(7);
        const V x15i = io.im(15);
        const V t76 = x7i - x15i;
        const V t77 = x7i + x15i;
        // complex block of 16
        const V t78 = c[2] * t76;
        const V t79 = c[1] * t76;
        // complex block of 2
        const V t80 = t65 + t73;
        const V t81 = t69 + t77;
        const V t82 = t65 - t73;
        // complex block of 8
        const V t83 = c[0] * t82;
        // complex block of 2
        const V t84 = t69 - t77;
        // complex block of 8
        const V t85 = c[0] * t84;
        // complex block of 16
        const V t86 = t66 + t70;
        const V t87 = t78 - t74;
        // complex block of 2
        const V t88 = t86 - t87;
        // complex block of 16
        const V t89 = t71 - t67;
        const V t90 = t79 + t75;
        // complex block of 2
        const V t91 = t89 + t90;
        // complex block of 2
        const V t92 = t8 + t52;
        // complex block of 2
        const V t93 = t32 + t80;
        // complex block of 2
        const V t94 = t92 + t93;
        io.re(0, t94);
        const V t95 = t92 - t93;
        io.re(8, t95);
        // complex block of 2
        const V t96 = t9 + t53;
        // complex block of 2
        const V t97 = t33 + t81;
        // complex block of 2
        const V t98 = t96 + t97;
        io.im(0, t98);
        const V t99 = t96 - t97;
        io.im(8, t99);
        // complex block of 2
        const V t100 = t8 - t52;
        // complex block of 2
        const V t101 = t33 - t81;
        // complex block of 2
        const V t102 = t100 + t101;
        io.re(4, t102);
        const V t103 = t100 - t101;
        io.re(12, t103);
        // complex block of 2
        const V t104 = t9 - t53;
        // complex block of 2
        const V t105 = t32 - t80;
        // complex block of 2
        const V t106 = t104 - t105;
        io.im(4, t106);
        const V t107 = t104 + t105;
        io.im(12, t107);
        // complex block of 8
        const V t108 = t35 + t37;
        const V t109 = t85 - t83;
        // complex block of 2
        const V t110 = t108 + t109;
        const V t111 = t108 - t109;
        // complex block of 2
        const V t112 = t10 + t55;
        const V t113 = t11 + t54;
        // complex block of 2
        const V t114 = t112 + t110;
        io.re(2, t114);
        const V t115 = t112 - t110;
        io.re(10, t115);
        // complex block of 2
        const V t116 = t113 - t111;
        io.im(6, t116);
        const V t117 = t113 + t111;
        io.im(14, t117);
        // complex block of 8
        const V t118 = t37 - t35;
        const V t119 = t83 + t85;
        // complex block of 2
        const V t120 = t118 - t119;
        const V t121 = t118 + t119;
        // complex block of 2
        const V t122 = t11 - t54;
        const V t123 = t10 - t55;
        // complex block of 2
        const V t124 = t122 + t120;
        io.im(2, t124);
        const V t125 = t122 - t120;
        io.im(10, t125);
        // complex block of 2
        const V t126 = t123 + t121;
        io.re(6, t126);
        const V t127 = t123 - t121;
        io.re(14, t127);
        // complex block of 2
        const V t128 = t38 + t39;
        // complex block of 2
        const V t129 = t86 + t87;
        // complex block of 2
        const V t130 = t128 + t129;
        const V t131 = t128 - t129;
        // complex block of 2
        const V t132 = t41 - t42;
        // complex block of 2
        const V t133 = t89 - t90;
        // complex block of 2
        const V t134 = t132 + t133;
        const V t135 = t132 - t133;
        // complex block of 2
        const V t136 = t58 + t63;
        // complex block of 2
        const V t137 = t12 + t136;
        const V t138 = t12 - t136;
        // complex block of 2
        const V t139 = t59 - t62;
        // complex block of 2
        const V t140 = t13 + t139;
        const V t141 = t13 - t139;
        // complex block of 2
        const V t142 = t137 + t130;
        io.re(1, t142);
        const V t143 = t140 + t134;
        io.im(1, t143);
        const V t144 = t137 - t130;
        io.re(9, t144);
        const V t145 = t140 - t134;
        io.im(9, t145);
        // complex block of 2
        const V t146 = t138 + t135;
        io.re(5, t146);
        const V t147 = t141 - t131;
        io.im(5, t147);
        const V t148 = t138 - t135;
        io.re(13, t148);
        const V t149 = t141 + t131;
        io.im(13, t149);
        // complex block of 2
        const V t150 = t58 - t63;
        // complex block of 2
        const V t151 = t15 - t150;
        const V t152 = t15 + t150;
        // complex block of 2
        const V t153 = t59 + t62;
        // complex block of 2
        const V t154 = t14 + t153;
        const V t155 = t14 - t153;
        // complex block of 8
        const V t156 = c[0] * t40;
        const V t157 = c[0] * t43;
        const V t158 = t156 + t157;
        const V t159 = t157 - t156;
        const V t160 = c[0] * t88;
        const V t161 = c[0] * t91;
        const V t162 = t160 + t161;
        const V t163 = t161 - t160;
        // complex block of 2
        const V t164 = t158 + t163;
        // complex block of 2
        const V t165 = t154 + t164;
        io.re(3, t165);
        const V t166 = t154 - t164;
        io.re(11, t166);
        // complex block of 2
        const V t167 = t159 - t162;
        // complex block of 2
        const V t168 = t151 + t167;
        io.im(3, t168);
        const V t169 = t151 - t167;
        io.im(11, t169);
        // complex block of 2
        const V t170 = t158 - t163;
        // complex block of 2
        const V t171 = t152 - t170;
        io.im(7, t171);
        const V t172 = t152 + t170;
        io.im(15, t172);
        // complex block of 2
        const V t173 = t159 + t162;
        // complex block of 2
        const V t174 = t155 + t173;
        io.re(7, t174);
        const V t175 = t155 - t173;
        io.re(15, t175);
    }
};

}  // namespace zulg
