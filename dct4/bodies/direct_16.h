// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_direct, 16.
// DCT-IV of 16 points, two passes.
// 44 additions, 44 subtractions, 64 multiplications; 17 constants; 18 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Direct<16> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: -sin 2 pi 15/16
        0.9238795325112867,  // c[2]: cos 2 pi 15/16
        0.14673047445536175,  // c[3]: -sin 2 pi 125/128
        0.989176509964781,  // c[4]: cos 2 pi 125/128
        0.049067674327418015,  // c[5]: -sin 2 pi 127/128
        0.9987954562051724,  // c[6]: cos 2 pi 127/128
        0.2429801799032639,  // c[7]: -sin 2 pi 123/128
        0.970031253194544,  // c[8]: cos 2 pi 123/128
        0.33688985339222005,  // c[9]: -sin 2 pi 121/128
        0.9415440651830208,  // c[10]: cos 2 pi 121/128
        0.4275550934302821,  // c[11]: -sin 2 pi 119/128
        0.9039892931234433,  // c[12]: cos 2 pi 119/128
        0.6715589548470184,  // c[13]: -sin 2 pi 113/128
        0.7409511253549591,  // c[14]: cos 2 pi 113/128
        0.8577286100002721,  // c[15]: -sin 2 pi 107/128
        0.5141027441932218,  // c[16]: cos 2 pi 107/128
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Direct> c{};
        // fold 4
        const V x8 = io.in(8);
        const V x7 = io.in(7);
        const V t0 = x8 + x7;
        const V t1 = c[0] * t0;
        const V t2 = x8 - x7;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x15 = io.in(15);
        const V t5 = t3 - x15;
        const V t6 = x0 - t1;
        const V t7 = t3 + x15;
        // fold 4
        const V x9 = io.in(9);
        const V x6 = io.in(6);
        const V t8 = x9 + x6;
        const V t9 = c[0] * t8;
        const V t10 = x9 - x6;
        const V t11 = c[0] * t10;
        const V x1 = io.in(1);
        const V t12 = x1 + t9;
        const V x14 = io.in(14);
        const V t13 = t11 - x14;
        const V t14 = x1 - t9;
        const V t15 = t11 + x14;
        // fold 4
        const V x10 = io.in(10);
        const V x5 = io.in(5);
        const V t16 = x10 + x5;
        const V t17 = c[0] * t16;
        const V t18 = x10 - x5;
        const V t19 = c[0] * t18;
        const V x2 = io.in(2);
        const V t20 = x2 + t17;
        const V x13 = io.in(13);
        const V t21 = t19 - x13;
        const V t22 = x2 - t17;
        const V t23 = t19 + x13;
        // fold 4
        const V x11 = io.in(11);
        const V x4 = io.in(4);
        const V t24 = x11 + x4;
        const V t25 = c[0] * t24;
        const V t26 = x11 - x4;
        const V t27 = c[0] * t26;
        const V x3 = io.in(3);
        const V t28 = x3 + t25;
        const V x12 = io.in(12);
        const V t29 = t27 - x12;
        const V t30 = x3 - t25;
        const V t31 = t27 + x12;
        // row 0
        const V t32 = c[5] * t5;
        const V t33 = c[6] * t4;
        const V t34 = t33 - t32;
        const V t35 = c[5] * t4;
        const V t36 = c[6] * t5;
        const V t37 = t36 + t35;
        const V t38 = c[3] * t13;
        const V t39 = c[4] * t12;
        const V t40 = t39 - t38;
        const V t41 = c[3] * t12;
        const V t42 = c[4] * t13;
        const V t43 = t42 + t41;
        const V t44 = c[7] * t21;
        const V t45 = c[8] * t20;
        const V t46 = t45 - t44;
        const V t47 = c[7] * t20;
        const V t48 = c[8] * t21;
        const V t49 = t48 + t47;
        const V t50 = c[9] * t29;
        const V t51 = c[10] * t28;
        const V t52 = t51 - t50;
        const V t53 = c[9] * t28;
        const V t54 = c[10] * t29;
        const V t55 = t54 + t53;
        // complex block of 2
        const V t56 = t37 - t55;
        const V t57 = t34 + t52;
        const V t58 = t37 + t55;
        const V t59 = t34 - t52;
        // mirrored skew block of 8
        const V t60 = c[1] * t58;
        const V t61 = c[2] * t59;
        const V t62 = t61 - t60;
        const V t63 = c[1] * t59;
        const V t64 = c[2] * t58;
        const V t65 = t64 + t63;
        // complex block of 2
        const V t66 = t43 - t49;
        const V t67 = t40 + t46;
        const V t68 = t43 + t49;
        const V t69 = t40 - t46;
        // mirrored skew block of 8
        const V t70 = c[2] * t68;
        const V t71 = c[1] * t69;
        const V t72 = t71 - t70;
        const V t73 = c[2] * t69;
        const V t74 = c[1] * t68;
        const V t75 = t74 + t73;
        // mirrored skew block of 4
        const V t76 = t57 - t67;
        const V t77 = c[0] * t76;
        const V t78 = t56 + t66;
        const V t79 = c[0] * t78;
        const V t80 = t57 + t67;
        io.out(0, t80);
        const V t81 = t77 - t79;
        io.out(8, t81);
        const V t82 = t56 - t66;
        io.out(15, t82);
        const V t83 = t77 + t79;
        io.out(7, t83);
        // mirrored skew block of 4
        const V t84 = t62 - t72;
        const V t85 = c[0] * t84;
        const V t86 = t65 + t75;
        const V t87 = c[0] * t86;
        const V t88 = t62 + t72;
        io.out(4, t88);
        const V t89 = t85 - t87;
        io.out(12, t89);
        const V t90 = t65 - t75;
        io.out(11, t90);
        const V t91 = t85 + t87;
        io.out(3, t91);
        // row 1
        const V t92 = c[3] * t7;
        const V t93 = c[4] * t6;
        const V t94 = t93 - t92;
        const V t95 = c[3] * t6;
        const V t96 = c[4] * t7;
        const V t97 = t96 + t95;
        const V t98 = c[11] * t15;
        const V t99 = c[12] * t14;
        const V t100 = t99 - t98;
        const V t101 = c[11] * t14;
        const V t102 = c[12] * t15;
        const V t103 = t102 + t101;
        const V t104 = c[13] * t23;
        const V t105 = c[14] * t22;
        const V t106 = t105 - t104;
        const V t107 = c[13] * t22;
        const V t108 = c[14] * t23;
        const V t109 = t108 + t107;
        const V t110 = c[15] * t31;
        const V t111 = c[16] * t30;
        const V t112 = t111 - t110;
        const V t113 = c[15] * t30;
        const V t114 = c[16] * t31;
        const V t115 = t114 + t113;
        // complex block of 2
        const V t116 = t97 - t115;
        const V t117 = t94 + t112;
        const V t118 = t97 + t115;
        const V t119 = t94 - t112;
        // mirrored skew block of 8
        const V t120 = c[1] * t118;
        const V t121 = c[2] * t119;
        const V t122 = t121 - t120;
        const V t123 = c[1] * t119;
        const V t124 = c[2] * t118;
        const V t125 = t124 + t123;
        // complex block of 2
        const V t126 = t103 - t109;
        const V t127 = t100 + t106;
        const V t128 = t103 + t109;
        const V t129 = t100 - t106;
        // mirrored skew block of 8
        const V t130 = c[2] * t128;
        const V t131 = c[1] * t129;
        const V t132 = t131 - t130;
        const V t133 = c[2] * t129;
        const V t134 = c[1] * t128;
        const V t135 = t134 + t133;
        // mirrored skew block of 4
        const V t136 = t117 - t127;
        const V t137 = c[0] * t136;
        const V t138 = t116 + t126;
        const V t139 = c[0] * t138;
        const V t140 = t117 + t127;
        io.out(1, t140);
        const V t141 = t137 - t139;
        io.out(9, t141);
        const V t142 = t116 - t126;
        io.out(14, t142);
        const V t143 = t137 + t139;
        io.out(6, t143);
        // mirrored skew block of 4
        const V t144 = t122 - t132;
        const V t145 = c[0] * t144;
        const V t146 = t125 + t135;
        const V t147 = c[0] * t146;
        const V t148 = t122 + t132;
        io.out(5, t148);
        const V t149 = t145 - t147;
        io.out(13, t149);
        const V t150 = t125 - t135;
        io.out(10, t150);
        const V t151 = t145 + t147;
        io.out(2, t151);
    }
};

}  // namespace zulg
