// Written by `generate write`; do not edit. The rule: generator/rules/wht.cpp, wht, 32.
// Walsh-Hadamard transform of 32 points, stages in rising stride.
// 80 additions, 80 subtractions, 0 multiplications; 0 constants; 33 values alive at most.
#pragma once

#include "wht/bodies.h"

namespace zulg {

template <>
struct WhtBlock<32> {
    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // 8 points from 0, stride 1
        const V x0 = io.in(0);
        const V x1 = io.in(1);
        const V t0 = x0 + x1;
        const V t1 = x0 - x1;
        const V x2 = io.in(2);
        const V x3 = io.in(3);
        const V t2 = x2 + x3;
        const V t3 = x2 - x3;
        const V x4 = io.in(4);
        const V x5 = io.in(5);
        const V t4 = x4 + x5;
        const V t5 = x4 - x5;
        const V x6 = io.in(6);
        const V x7 = io.in(7);
        const V t6 = x6 + x7;
        const V t7 = x6 - x7;
        const V t8 = t0 + t2;
        const V t9 = t0 - t2;
        const V t10 = t1 + t3;
        const V t11 = t1 - t3;
        const V t12 = t4 + t6;
        const V t13 = t4 - t6;
        const V t14 = t5 + t7;
        const V t15 = t5 - t7;
        const V t16 = t8 + t12;
        const V t17 = t8 - t12;
        const V t18 = t10 + t14;
        const V t19 = t10 - t14;
        const V t20 = t9 + t13;
        const V t21 = t9 - t13;
        const V t22 = t11 + t15;
        const V t23 = t11 - t15;
        // 8 points from 8, stride 1
        const V x8 = io.in(8);
        const V x9 = io.in(9);
        const V t24 = x8 + x9;
        const V t25 = x8 - x9;
        const V x10 = io.in(10);
        const V x11 = io.in(11);
        const V t26 = x10 + x11;
        const V t27 = x10 - x11;
        const V x12 = io.in(12);
        const V x13 = io.in(13);
        const V t28 = x12 + x13;
        const V t29 = x12 - x13;
        const V x14 = io.in(14);
        const V x15 = io.in(15);
        const V t30 = x14 + x15;
        const V t31 = x14 - x15;
        const V t32 = t24 + t26;
        const V t33 = t24 - t26;
        const V t34 = t25 + t27;
        const V t35 = t25 - t27;
        const V t36 = t28 + t30;
        const V t37 = t28 - t30;
        const V t38 = t29 + t31;
        const V t39 = t29 - t31;
        const V t40 = t32 + t36;
        const V t41 = t32 - t36;
        const V t42 = t34 + t38;
        const V t43 = t34 - t38;
        const V t44 = t33 + t37;
        const V t45 = t33 - t37;
        const V t46 = t35 + t39;
        const V t47 = t35 - t39;
        // 8 points from 16, stride 1
        const V x16 = io.in(16);
        const V x17 = io.in(17);
        const V t48 = x16 + x17;
        const V t49 = x16 - x17;
        const V x18 = io.in(18);
        const V x19 = io.in(19);
        const V t50 = x18 + x19;
        const V t51 = x18 - x19;
        const V x20 = io.in(20);
        const V x21 = io.in(21);
        const V t52 = x20 + x21;
        const V t53 = x20 - x21;
        const V x22 = io.in(22);
        const V x23 = io.in(23);
        const V t54 = x22 + x23;
        const V t55 = x22 - x23;
        const V t56 = t48 + t50;
        const V t57 = t48 - t50;
        const V t58 = t49 + t51;
        const V t59 = t49 - t51;
        const V t60 = t52 + t54;
        const V t61 = t52 - t54;
        const V t62 = t53 + t55;
        const V t63 = t53 - t55;
        const V t64 = t56 + t60;
        const V t65 = t56 - t60;
        const V t66 = t58 + t62;
        const V t67 = t58 - t62;
        const V t68 = t57 + t61;
        const V t69 = t57 - t61;
        const V t70 = t59 + t63;
        const V t71 = t59 - t63;
        // 8 points from 24, stride 1
        const V x24 = io.in(24);
        const V x25 = io.in(25);
        const V t72 = x24 + x25;
        const V t73 = x24 - x25;
        const V x26 = io.in(26);
        const V x27 = io.in(27);
        const V t74 = x26 + x27;
        const V t75 = x26 - x27;
        const V x28 = io.in(28);
        const V x29 = io.in(29);
        const V t76 = x28 + x29;
        const V t77 = x28 - x29;
        const V x30 = io.in(30);
        const V x31 = io.in(31);
        const V t78 = x30 + x31;
        const V t79 = x30 - x31;
        const V t80 = t72 + t74;
        const V t81 = t72 - t74;
        const V t82 = t73 + t75;
        const V t83 = t73 - t75;
        const V t84 = t76 + t78;
        const V t85 = t76 - t78;
        const V t86 = t77 + t79;
        const V t87 = t77 - t79;
        const V t88 = t80 + t84;
        const V t89 = t80 - t84;
        const V t90 = t82 + t86;
        const V t91 = t82 - t86;
        const V t92 = t81 + t85;
        const V t93 = t81 - t85;
        const V t94 = t83 + t87;
        const V t95 = t83 - t87;
        // 4 points from 0, stride 8
        const V t96 = t16 + t40;
        const V t97 = t16 - t40;
        const V t98 = t64 + t88;
        const V t99 = t64 - t88;
        const V t100 = t96 + t98;
        io.out(0, t100);
        const V t101 = t96 - t98;
        io.out(16, t101);
        const V t102 = t97 + t99;
        io.out(8, t102);
        const V t103 = t97 - t99;
        io.out(24, t103);
        // 4 points from 1, stride 8
        const V t104 = t18 + t42;
        const V t105 = t18 - t42;
        const V t106 = t66 + t90;
        const V t107 = t66 - t90;
        const V t108 = t104 + t106;
        io.out(1, t108);
        const V t109 = t104 - t106;
        io.out(17, t109);
        const V t110 = t105 + t107;
        io.out(9, t110);
        const V t111 = t105 - t107;
        io.out(25, t111);
        // 4 points from 2, stride 8
        const V t112 = t20 + t44;
        const V t113 = t20 - t44;
        const V t114 = t68 + t92;
        const V t115 = t68 - t92;
        const V t116 = t112 + t114;
        io.out(2, t116);
        const V t117 = t112 - t114;
        io.out(18, t117);
        const V t118 = t113 + t115;
        io.out(10, t118);
        const V t119 = t113 - t115;
        io.out(26, t119);
        // 4 points from 3, stride 8
        const V t120 = t22 + t46;
        const V t121 = t22 - t46;
        const V t122 = t70 + t94;
        const V t123 = t70 - t94;
        const V t124 = t120 + t122;
        io.out(3, t124);
        const V t125 = t120 - t122;
        io.out(19, t125);
        const V t126 = t121 + t123;
        io.out(11, t126);
        const V t127 = t121 - t123;
        io.out(27, t127);
        // 4 points from 4, stride 8
        const V t128 = t17 + t41;
        const V t129 = t17 - t41;
        const V t130 = t65 + t89;
        const V t131 = t65 - t89;
        const V t132 = t128 + t130;
        io.out(4, t132);
        const V t133 = t128 - t130;
        io.out(20, t133);
        const V t134 = t129 + t131;
        io.out(12, t134);
        const V t135 = t129 - t131;
        io.out(28, t135);
        // 4 points from 5, stride 8
        const V t136 = t19 + t43;
        const V t137 = t19 - t43;
        const V t138 = t67 + t91;
        const V t139 = t67 - t91;
        const V t140 = t136 + t138;
        io.out(5, t140);
        const V t141 = t136 - t138;
        io.out(21, t141);
        const V t142 = t137 + t139;
        io.out(13, t142);
        const V t143 = t137 - t139;
        io.out(29, t143);
        // 4 points from 6, stride 8
        const V t144 = t21 + t45;
        const V t145 = t21 - t45;
        const V t146 = t69 + t93;
        const V t147 = t69 - t93;
        const V t148 = t144 + t146;
        io.out(6, t148);
        const V t149 = t144 - t146;
        io.out(22, t149);
        const V t150 = t145 + t147;
        io.out(14, t150);
        const V t151 = t145 - t147;
        io.out(30, t151);
        // 4 points from 7, stride 8
        const V t152 = t23 + t47;
        const V t153 = t23 - t47;
        const V t154 = t71 + t95;
        const V t155 = t71 - t95;
        const V t156 = t152 + t154;
        io.out(7, t156);
        const V t157 = t152 - t154;
        io.out(23, t157);
        const V t158 = t153 + t155;
        io.out(15, t158);
        const V t159 = t153 - t155;
        io.out(31, t159);
    }
};

}  // namespace zulg
