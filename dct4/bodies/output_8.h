// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_output, 8.
// Output row of radix 8, rotations by the table, then a mirrored skew transform.
// 44 additions, 44 subtractions, 72 multiplications; 7 constants; 20 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Output<8> {
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: -sin 2 pi 15/16
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.19509032201612828,  // c[3]: -sin 2 pi 31/32
        0.9807852804032304,  // c[4]: cos 2 pi 31/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Output> c{};
        const V x0i = io.im(0);
        const V w1 = io.table(1);
        const V t0 = x0i * w1;
        const V x0r = io.re(0);
        const V w0 = io.table(0);
        const V t1 = x0r * w0;
        const V t2 = t1 - t0;
        const V t3 = x0i * w0;
        const V t4 = x0r * w1;
        const V t5 = t4 + t3;
        const V x7i = io.im(7);
        const V w3 = io.table(3);
        const V t6 = x7i * w3;
        const V x7r = io.re(7);
        const V w2 = io.table(2);
        const V t7 = x7r * w2;
        const V t8 = t7 - t6;
        const V t9 = x7i * w2;
        const V t10 = x7r * w3;
        const V t11 = t10 + t9;
        const V x1i = io.im(1);
        const V w5 = io.table(5);
        const V t12 = x1i * w5;
        const V x1r = io.re(1);
        const V w4 = io.table(4);
        const V t13 = x1r * w4;
        const V t14 = t13 - t12;
        const V t15 = x1i * w4;
        const V t16 = x1r * w5;
        const V t17 = t16 + t15;
        const V x6i = io.im(6);
        const V w7 = io.table(7);
        const V t18 = x6i * w7;
        const V x6r = io.re(6);
        const V w6 = io.table(6);
        const V t19 = x6r * w6;
        const V t20 = t19 - t18;
        const V t21 = x6i * w6;
        const V t22 = x6r * w7;
        const V t23 = t22 + t21;
        const V x2i = io.im(2);
        const V w9 = io.table(9);
        const V t24 = x2i * w9;
        const V x2r = io.re(2);
        const V w8 = io.table(8);
        const V t25 = x2r * w8;
        const V t26 = t25 - t24;
        const V t27 = x2i * w8;
        const V t28 = x2r * w9;
        const V t29 = t28 + t27;
        const V x5i = io.im(5);
        const V w11 = io.table(11);
        const V t30 = x5i * w11;
        const V x5r = io.re(5);
        const V w10 = io.table(10);
        const V t31 = x5r * w10;
        const V t32 = t31 - t30;
        const V t33 = x5i * w10;
        const V t34 = x5r * w11;
        const V t35 = t34 + t33;
        const V x3i = io.im(3);
        const V w13 = io.table(13);
        const V t36 = x3i * w13;
        const V x3r = io.re(3);
        const V w12 = io.table(12);
        const V t37 = x3r * w12;
        const V t38 = t37 - t36;
        const V t39 = x3i * w12;
        const V t40 = x3r * w13;
        const V t41 = t40 + t39;
        const V x4i = io.im(4);
        const V w15 = io.table(15);
        const V t42 = x4i * w15;
        const V x4r = io.re(4);
        const V w14 = io.table(14);
        const V t43 = x4r * w14;
        const V t44 = t43 - t42;
        const V t45 = x4i * w14;
        const V t46 = x4r * w15;
        const V t47 = t46 + t45;
        // complex block of 2
        const V t48 = t5 - t11;
        const V t49 = t2 + t8;
        const V t50 = t5 + t11;
        const V t51 = t2 - t8;
        // mirrored skew block of 16
        const V t52 = c[3] * t50;
        const V t53 = c[4] * t51;
        const V t54 = t53 - t52;
        const V t55 = c[3] * t51;
        const V t56 = c[4] * t50;
        const V t57 = t56 + t55;
        // complex block of 2
        const V t58 = t17 - t23;
        const V t59 = t14 + t20;
        const V t60 = t17 + t23;
        const V t61 = t14 - t20;
        // mirrored skew block of 16
        const V t62 = c[5] * t60;
        const V t63 = c[6] * t61;
        const V t64 = t63 - t62;
        const V t65 = c[5] * t61;
        const V t66 = c[6] * t60;
        const V t67 = t66 + t65;
        // complex block of 2
        const V t68 = t29 - t35;
        const V t69 = t26 + t32;
        const V t70 = t29 + t35;
        const V t71 = t26 - t32;
        // mirrored skew block of 16
        const V t72 = c[6] * t70;
        const V t73 = c[5] * t71;
        const V t74 = t73 - t72;
        const V t75 = c[6] * t71;
        const V t76 = c[5] * t70;
        const V t77 = t76 + t75;
        // complex block of 2
        const V t78 = t41 - t47;
        const V t79 = t38 + t44;
        const V t80 = t41 + t47;
        const V t81 = t38 - t44;
        // mirrored skew block of 16
        const V t82 = c[4] * t80;
        const V t83 = c[3] * t81;
        const V t84 = t83 - t82;
        const V t85 = c[4] * t81;
        const V t86 = c[3] * t80;
        const V t87 = t86 + t85;
        // complex block of 2
        const V t88 = t48 - t78;
        const V t89 = t49 + t79;
        const V t90 = t48 + t78;
        const V t91 = t49 - t79;
        // mirrored skew block of 8
        const V t92 = c[0] * t90;
        const V t93 = c[1] * t91;
        const V t94 = t93 - t92;
        const V t95 = c[0] * t91;
        const V t96 = c[1] * t90;
        const V t97 = t96 + t95;
        // complex block of 2
        const V t98 = t58 - t68;
        const V t99 = t59 + t69;
        const V t100 = t58 + t68;
        const V t101 = t59 - t69;
        // mirrored skew block of 8
        const V t102 = c[1] * t100;
        const V t103 = c[0] * t101;
        const V t104 = t103 - t102;
        const V t105 = c[1] * t101;
        const V t106 = c[0] * t100;
        const V t107 = t106 + t105;
        // mirrored skew block of 4
        const V t108 = t89 - t99;
        const V t109 = c[2] * t108;
        const V t110 = t88 + t98;
        const V t111 = c[2] * t110;
        const V t112 = t89 + t99;
        io.rising(0, t112);
        const V t113 = t109 - t111;
        io.rising(4, t113);
        const V t114 = t88 - t98;
        io.falling(0, t114);
        const V t115 = t109 + t111;
        io.falling(4, t115);
        // mirrored skew block of 4
        const V t116 = t94 - t104;
        const V t117 = c[2] * t116;
        const V t118 = t97 + t107;
        const V t119 = c[2] * t118;
        const V t120 = t94 + t104;
        io.rising(2, t120);
        const V t121 = t117 - t119;
        io.rising(6, t121);
        const V t122 = t97 - t107;
        io.falling(2, t122);
        const V t123 = t117 + t119;
        io.falling(6, t123);
        // complex block of 2
        const V t124 = t57 - t87;
        const V t125 = t54 + t84;
        const V t126 = t57 + t87;
        const V t127 = t54 - t84;
        // mirrored skew block of 8
        const V t128 = c[0] * t126;
        const V t129 = c[1] * t127;
        const V t130 = t129 - t128;
        const V t131 = c[0] * t127;
        const V t132 = c[1] * t126;
        const V t133 = t132 + t131;
        // complex block of 2
        const V t134 = t67 - t77;
        const V t135 = t64 + t74;
        const V t136 = t67 + t77;
        const V t137 = t64 - t74;
        // mirrored skew block of 8
        const V t138 = c[1] * t136;
        const V t139 = c[0] * t137;
        const V t140 = t139 - t138;
        const V t141 = c[1] * t137;
        const V t142 = c[0] * t136;
        const V t143 = t142 + t141;
        // mirrored skew block of 4
        const V t144 = t125 - t135;
        const V t145 = c[2] * t144;
        const V t146 = t124 + t134;
        const V t147 = c[2] * t146;
        const V t148 = t125 + t135;
        io.rising(1, t148);
        const V t149 = t145 - t147;
        io.rising(5, t149);
        const V t150 = t124 - t134;
        io.falling(1, t150);
        const V t151 = t145 + t147;
        io.falling(5, t151);
        // mirrored skew block of 4
        const V t152 = t130 - t140;
        const V t153 = c[2] * t152;
        const V t154 = t133 + t143;
        const V t155 = c[2] * t154;
        const V t156 = t130 + t140;
        io.rising(3, t156);
        const V t157 = t153 - t155;
        io.rising(7, t157);
        const V t158 = t133 - t143;
        io.falling(3, t158);
        const V t159 = t153 + t155;
        io.falling(7, t159);
    }
};

}  // namespace zulg
