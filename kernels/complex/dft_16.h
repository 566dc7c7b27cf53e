// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 16.
// Complex DFT of 16 points, twiddled, inner 2, outer 8.
// 74 additions, 74 subtractions, 28 multiplications (60 with `scale`); 3 constants; 34 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<16> {
    static constexpr int steps = 208;  // with `scale`
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.9238795325112867,  // c[2]: cos 2 pi 1/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x8r = io.re(8);
        const V t0 = x0r + x8r;
        const V x0i = io.im(0);
        const V x8i = io.im(8);
        const V t1 = x0i + x8i;
        const V t2 = x0r - x8r;
        const V t3 = x0i - x8i;
        // complex block of 2
        const V x1r = io.re(1);
        const V x9r = io.re(9);
        const V t4 = x1r + x9r;
        const V x1i = io.im(1);
        const V x9i = io.im(9);
        const V t5 = x1i + x9i;
        const V t6 = x1r - x9r;
        const V t7 = x1i - x9i;
        // complex block of 2
        const V x2r = io.re(2);
        const V x10r = io.re(10);
        const V t8 = x2r + x10r;
        const V x2i = io.im(2);
        const V x10i = io.im(10);
        const V t9 = x2i + x10i;
        const V t10 = x2r - x10r;
        const V t11 = x2i - x10i;
        // complex block of 2
        const V x3r = io.re(3);
        const V x11r = io.re(11);
        const V t12 = x3r + x11r;
        const V x3i = io.im(3);
        const V x11i = io.im(11);
        const V t13 = x3i + x11i;
        const V t14 = x3r - x11r;
        const V t15 = x3i - x11i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x12r = io.re(12);
        const V t16 = x4r + x12r;
        const V x4i = io.im(4);
        const V x12i = io.im(12);
        const V t17 = x4i + x12i;
        const V t18 = x4r - x12r;
        const V t19 = x4i - x12i;
        // complex block of 2
        const V x5r = io.re(5);
        const V x13r = io.re(13);
        const V t20 = x5r + x13r;
        const V x5i = io.im(5);
        const V x13i = io.im(13);
        const V t21 = x5i + x13i;
        const V t22 = x5r - x13r;
        const V t23 = x5i - x13i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x14r = io.re(14);
        const V t24 = x6r + x14r;
        const V x6i = io.im(6);
        const V x14i = io.im(14);
        const V t25 = x6i + x14i;
        const V t26 = x6r - x14r;
        const V t27 = x6i - x14i;
        // complex block of 2
        const V x7r = io.re(7);
        const V x15r = io.re(15);
        const V t28 = x7r + x15r;
        const V x7i = io.im(7);
        const V x15i = io.im(15);
        const V t29 = x7i + x15i;
        const V t30 = x7r - x15r;
        const V t31 = x7i - x15i;
        // complex block of 2
        const V t32 = t0 + t16;
        const V t33 = t1 + t17;
        const V t34 = t0 - t16;
        const V t35 = t1 - t17;
        // complex block of 2
        const V t36 = t4 + t20;
        const V t37 = t5 + t21;
        const V t38 = t4 - t20;
        const V t39 = t5 - t21;
        // complex block of 2
        const V t40 = t8 + t24;
        const V t41 = t9 + t25;
        const V t42 = t8 - t24;
        const V t43 = t9 - t25;
        // complex block of 2
        const V t44 = t12 + t28;
        const V t45 = t13 + t29;
        const V t46 = t12 - t28;
        const V t47 = t13 - t29;
        // complex block of 2
        const V t48 = t32 + t40;
        const V t49 = t33 + t41;
        const V t50 = t32 - t40;
        const V t51 = t33 - t41;
        // complex block of 2
        const V t52 = t36 + t44;
        const V t53 = t37 + t45;
        const V t54 = t36 - t44;
        const V t55 = t37 - t45;
        // complex block of 2
        const V t56 = t48 + t52;
        io.re(0, t56);
        const V t57 = t49 + t53;
        io.im(0, t57);
        const V t58 = t48 - t52;
        io.re(8, t58);
        const V t59 = t49 - t53;
        io.im(8, t59);
        // complex block of 2
        const V t60 = t50 + t55;
        io.re(4, t60);
        const V t61 = t51 - t54;
        io.im(4, t61);
        const V t62 = t50 - t55;
        io.re(12, t62);
        const V t63 = t51 + t54;
        io.im(12, t63);
        // complex block of 8
        const V t64 = c[0] * t38;
        const V t65 = c[0] * t39;
        const V t66 = t64 + t65;
        const V t67 = t65 - t64;
        const V t68 = c[0] * t46;
        const V t69 = c[0] * t47;
        const V t70 = t68 + t69;
        const V t71 = t69 - t68;
        // complex block of 2
        const V t72 = t34 + t43;
        const V t73 = t35 - t42;
        const V t74 = t34 - t43;
        const V t75 = t35 + t42;
        // complex block of 2
        const V t76 = t66 + t71;
        const V t77 = t67 - t70;
        const V t78 = t66 - t71;
        const V t79 = t67 + t70;
        // complex block of 2
        const V t80 = t72 + t76;
        io.re(2, t80);
        const V t81 = t73 + t77;
        io.im(2, t81);
        const V t82 = t72 - t76;
        io.re(10, t82);
        const V t83 = t73 - t77;
        io.im(10, t83);
        // complex block of 2
        const V t84 = t74 + t79;
        io.re(6, t84);
        const V t85 = t75 - t78;
        io.im(6, t85);
        const V t86 = t74 - t79;
        io.re(14, t86);
        const V t87 = t75 + t78;
        io.im(14, t87);
        // complex block of 16
        const V t88 = c[1] * t7;
        const V t89 = c[2] * t6;
        const V t90 = t89 + t88;
        const V t91 = c[1] * t6;
        const V t92 = c[2] * t7;
        const V t93 = t92 - t91;
        const V t94 = c[0] * t10;
        const V t95 = c[0] * t11;
        const V t96 = t94 + t95;
        const V t97 = t95 - t94;
        const V t98 = c[2] * t15;
        const V t99 = c[1] * t14;
        const V t100 = t99 + t98;
        const V t101 = c[2] * t14;
        const V t102 = c[1] * t15;
        const V t103 = t102 - t101;
        const V t104 = c[2] * t23;
        const V t105 = c[1] * t22;
        const V t106 = t104 - t105;
        const V t107 = c[2] * t22;
        const V t108 = c[1] * t23;
        const V t109 = t108 + t107;
        const V t110 = c[0] * t26;
        const V t111 = c[0] * t27;
        const V t112 = t110 + t111;
        const V t113 = t111 - t110;
        const V t114 = c[1] * t31;
        const V t115 = c[2] * t30;
        const V t116 = t114 - t115;
        const V t117 = c[1] * t30;
        const V t118 = c[2] * t31;
        const V t119 = t118 + t117;
        // complex block of 2
        const V t120 = t2 + t19;
        const V t121 = t3 - t18;
        const V t122 = t2 - t19;
        const V t123 = t3 + t18;
        // complex block of 2
        const V t124 = t90 + t106;
        const V t125 = t93 - t109;
        const V t126 = t90 - t106;
        const V t127 = t93 + t109;
        // complex block of 2
        const V t128 = t96 + t113;
        const V t129 = t97 - t112;
        const V t130 = t96 - t113;
        const V t131 = t97 + t112;
        // complex block of 2
        const V t132 = t100 + t116;
        const V t133 = t103 - t119;
        const V t134 = t100 - t116;
        const V t135 = t103 + t119;
        // complex block of 2
        const V t136 = t120 + t128;
        const V t137 = t121 + t129;
        const V t138 = t120 - t128;
        const V t139 = t121 - t129;
        // complex block of 2
        const V t140 = t124 + t132;
        const V t141 = t125 + t133;
        const V t142 = t124 - t132;
        const V t143 = t125 - t133;
        // complex block of 2
        const V t144 = t136 + t140;
        io.re(1, t144);
        const V t145 = t137 + t141;
        io.im(1, t145);
        const V t146 = t136 - t140;
        io.re(9, t146);
        const V t147 = t137 - t141;
        io.im(9, t147);
        // complex block of 2
        const V t148 = t138 + t143;
        io.re(5, t148);
        const V t149 = t139 - t142;
        io.im(5, t149);
        const V t150 = t138 - t143;
        io.re(13, t150);
        const V t151 = t139 + t142;
        io.im(13, t151);
        // complex block of 8
        const V t152 = c[0] * t126;
        const V t153 = c[0] * t127;
        const V t154 = t152 + t153;
        const V t155 = t153 - t152;
        const V t156 = c[0] * t134;
        const V t157 = c[0] * t135;
        const V t158 = t156 + t157;
        const V t159 = t157 - t156;
        // complex block of 2
        const V t160 = t122 + t131;
        const V t161 = t123 - t130;
        const V t162 = t122 - t131;
        const V t163 = t123 + t130;
        // complex block of 2
        const V t164 = t154 + t159;
        const V t165 = t155 - t158;
        const V t166 = t154 - t159;
        const V t167 = t155 + t158;
        // complex block of 2
        const V t168 = t160 + t164;
        io.re(3, t168);
        const V t169 = t161 + t165;
        io.im(3, t169);
        const V t170 = t160 - t164;
        io.re(11, t170);
        const V t171 = t161 - t165;
        io.im(11, t171);
        // complex block of 2
        const V t172 = t162 + t167;
        io.re(7, t172);
        const V t173 = t163 - t166;
        io.im(7, t173);
        const V t174 = t162 - t167;
        io.re(15, t174);
        const V t175 = t163 + t166;
        io.im(15, t175);
    }
};

}  // namespace zulg
