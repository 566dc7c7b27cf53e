// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 24.
// Hartley transform of 24 points, form F.
// 63 additions, 63 subtractions, 22 multiplications (46 with `scale`); 3 constants; 31 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<24> {
    static constexpr int steps = 172;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 3, multiplier 2
        const V x20 = io.in(20);
        const V x4 = io.in(4);
        const V t0 = x20 + x4;
        const V t1 = x20 - x4;
        // real block of 3, multiplier 2
        const V x8 = io.in(8);
        const V x16 = io.in(16);
        const V t2 = x8 + x16;
        const V t3 = x8 - x16;
        const V x0 = io.in(0);
        const V t4 = t2 + x0;
        const V t5 = c[0] * t2;
        const V t6 = x0 - t5;
        const V t7 = c[1] * t3;
        // real block of 3, multiplier 2
        const V t8 = c[1] * t1;
        // complex block of 2
        const V t9 = t7 + t8;
        const V t10 = t7 - t8;
        // real block of 3, multiplier 2
        const V x12 = io.in(12);
        const V t11 = t0 + x12;
        const V t12 = c[0] * t0;
        const V t13 = x12 - t12;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x1 = io.in(1);
        const V t14 = x17 + x1;
        const V t15 = x17 - x1;
        const V t16 = c[0] * t14;
        const V t17 = c[1] * t15;
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x13 = io.in(13);
        const V t18 = x5 + x13;
        const V t19 = x5 - x13;
        const V t20 = c[0] * t18;
        const V t21 = c[1] * t19;
        // real block of 3, multiplier 2
        const V x9 = io.in(9);
        const V t22 = t14 + x9;
        // real block of 3, multiplier 2
        const V x21 = io.in(21);
        const V t23 = t18 + x21;
        // real block of 2
        const V t24 = t22 - t23;
        // real block of 3, multiplier 2
        const V t25 = x9 - t16;
        // real block of 3, multiplier 2
        const V t26 = x21 - t20;
        // complex block of 2
        const V t27 = t25 - t26;
        const V t28 = t17 + t21;
        const V t29 = t17 - t21;
        // complex block of 8, multiplier 3
        const V t30 = c[2] * t29;
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x10 = io.in(10);
        const V t31 = x2 + x10;
        const V t32 = x2 - x10;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t33 = x14 + x22;
        const V t34 = x14 - x22;
        const V x6 = io.in(6);
        const V t35 = t33 + x6;
        const V t36 = c[0] * t33;
        const V t37 = x6 - t36;
        const V t38 = c[1] * t34;
        // real block of 3, multiplier 2
        const V t39 = c[1] * t32;
        // complex block of 2
        const V t40 = t38 + t39;
        const V t41 = t38 - t39;
        // real block of 3, multiplier 2
        const V x18 = io.in(18);
        const V t42 = t31 + x18;
        const V t43 = c[0] * t31;
        const V t44 = x18 - t43;
        // real block of 3, multiplier 2
        const V x23 = io.in(23);
        const V x7 = io.in(7);
        const V t45 = x23 + x7;
        const V t46 = x23 - x7;
        const V t47 = c[0] * t45;
        const V t48 = c[1] * t46;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V x19 = io.in(19);
        const V t49 = x11 + x19;
        const V t50 = x11 - x19;
        const V t51 = c[0] * t49;
        const V t52 = c[1] * t50;
        const V x3 = io.in(3);
        const V t53 = t49 + x3;
        // real block of 3, multiplier 2
        const V x15 = io.in(15);
        const V t54 = t45 + x15;
        // real block of 2
        const V t55 = t53 - t54;
        // real block of 3, multiplier 2
        const V t56 = x3 - t51;
        // real block of 3, multiplier 2
        const V t57 = x15 - t47;
        // complex block of 2
        const V t58 = t56 - t57;
        const V t59 = t52 + t48;
        const V t60 = t52 - t48;
        // complex block of 8, multiplier 3
        const V t61 = c[2] * t60;
        // real block of 2
        const V t62 = t4 + t11;
        // real block of 2
        const V t63 = t35 + t42;
        // real block of 2
        const V t64 = t62 + t63;
        const V t65 = t62 - t63;
        // real block of 2
        const V t66 = t53 + t54;
        // real block of 2
        const V t67 = t22 + t23;
        // real block of 2
        const V t68 = t66 + t67;
        const V t69 = t66 - t67;
        // real block of 2
        const V t70 = t64 + t68;
        io.out(0, t70);
        const V t71 = t64 - t68;
        io.out(12, t71);
        // output stage
        const V t72 = t65 - t69;
        io.out(6, t72);
        const V t73 = t65 + t69;
        io.out(18, t73);
        // real block of 2
        const V t74 = t4 - t11;
        // real block of 2
        const V t75 = t35 - t42;
        // skew block of 4, multiplier 3
        const V t76 = t55 - t24;
        const V t77 = c[2] * t76;
        const V t78 = t55 + t24;
        const V t79 = c[2] * t78;
        const V t80 = t75 - t79;
        const V t81 = t74 - t77;
        // output stage
        const V t82 = t81 - t80;
        io.out(3, t82);
        const V t83 = t81 + t80;
        io.out(21, t83);
        // skew block of 4, multiplier 3
        const V t84 = t74 + t77;
        const V t85 = t75 + t79;
        // output stage
        const V t86 = t84 + t85;
        io.out(9, t86);
        const V t87 = t84 - t85;
        io.out(15, t87);
        // complex block of 2
        const V t88 = t6 + t13;
        // complex block of 2
        const V t89 = t37 + t44;
        // complex block of 2
        const V t90 = t88 + t89;
        const V t91 = t88 - t89;
        // complex block of 2
        const V t92 = t56 + t57;
        // complex block of 2
        const V t93 = t25 + t26;
        // complex block of 2
        const V t94 = t92 + t93;
        const V t95 = t92 - t93;
        // complex block of 2
        const V t96 = t9 + t40;
        // complex block of 2
        const V t97 = t59 + t28;
        // complex block of 2
        const V t98 = t96 + t97;
        const V t99 = t96 - t97;
        // complex block of 2
        const V t100 = t9 - t40;
        // complex block of 2
        const V t101 = t59 - t28;
        // complex block of 2
        const V t102 = t90 + t94;
        // output stage
        const V t103 = t102 - t98;
        io.out(8, t103);
        const V t104 = t102 + t98;
        io.out(16, t104);
        // complex block of 2
        const V t105 = t90 - t94;
        // output stage
        const V t106 = t105 + t99;
        io.out(4, t106);
        const V t107 = t105 - t99;
        io.out(20, t107);
        // complex block of 2
        const V t108 = t91 - t101;
        const V t109 = t100 + t95;
        // output stage
        const V t110 = t108 + t109;
        io.out(10, t110);
        const V t111 = t108 - t109;
        io.out(14, t111);
        // complex block of 2
        const V t112 = t91 + t101;
        const V t113 = t100 - t95;
        // output stage
        const V t114 = t112 - t113;
        io.out(2, t114);
        const V t115 = t112 + t113;
        io.out(22, t115);
        // complex block of 2
        const V t116 = t6 - t13;
        // complex block of 2
        const V t117 = t116 - t41;
        const V t118 = t116 + t41;
        // complex block of 2
        const V t119 = t37 - t44;
        // complex block of 2
        const V t120 = t10 + t119;
        const V t121 = t10 - t119;
        // complex block of 8, multiplier 3
        const V t122 = c[2] * t58;
        const V t123 = t122 + t61;
        const V t124 = t61 - t122;
        const V t125 = c[2] * t27;
        const V t126 = t125 + t30;
        const V t127 = t30 - t125;
        // complex block of 2
        const V t128 = t124 + t126;
        const V t129 = t127 - t123;
        const V t130 = t124 - t126;
        const V t131 = t123 + t127;
        // complex block of 2
        const V t132 = t117 + t128;
        const V t133 = t120 + t129;
        // output stage
        const V t134 = t132 - t133;
        io.out(11, t134);
        const V t135 = t132 + t133;
        io.out(13, t135);
        // complex block of 2
        const V t136 = t117 - t128;
        const V t137 = t120 - t129;
        // output stage
        const V t138 = t136 + t137;
        io.out(1, t138);
        const V t139 = t136 - t137;
        io.out(23, t139);
        // complex block of 2
        const V t140 = t118 + t131;
        const V t141 = t121 + t130;
        // output stage
        const V t142 = t140 + t141;
        io.out(7, t142);
        const V t143 = t140 - t141;
        io.out(17, t143);
        // complex block of 2
        const V t144 = t118 - t131;
        const V t145 = t121 - t130;
        // output stage
        const V t146 = t144 - t145;
        io.out(5, t146);
        const V t147 = t144 + t145;
        io.out(19, t147);
    }
};

}  // namespace zulg
