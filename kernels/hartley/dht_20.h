// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 20.
// Hartley transform of 20 points, form I.
// 55 additions, 49 subtractions, 32 multiplications (52 with `scale`); 4 constants; 27 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<20> {
    static constexpr int steps = 156;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x19 = io.in(19);
        const V t0 = x1 + x19;
        const V t1 = x1 - x19;
        const V x2 = io.in(2);
        const V x18 = io.in(18);
        const V t2 = x2 + x18;
        const V t3 = x2 - x18;
        const V x3 = io.in(3);
        const V x17 = io.in(17);
        const V t4 = x3 + x17;
        const V t5 = x3 - x17;
        const V x4 = io.in(4);
        const V x16 = io.in(16);
        const V t6 = x4 + x16;
        const V t7 = x4 - x16;
        const V x5 = io.in(5);
        const V x15 = io.in(15);
        const V t8 = x5 + x15;
        const V t9 = x5 - x15;
        const V x6 = io.in(6);
        const V x14 = io.in(14);
        const V t10 = x6 + x14;
        const V t11 = x6 - x14;
        const V x7 = io.in(7);
        const V x13 = io.in(13);
        const V t12 = x7 + x13;
        const V t13 = x7 - x13;
        const V x8 = io.in(8);
        const V x12 = io.in(12);
        const V t14 = x8 + x12;
        const V t15 = x8 - x12;
        const V x9 = io.in(9);
        const V x11 = io.in(11);
        const V t16 = x9 + x11;
        const V t17 = x9 - x11;
        // spectrum block of 5, multiplier 4
        const V t18 = t6 + t14;
        const V x0 = io.in(0);
        const V t19 = t18 + x0;
        const V t20 = c[0] * t6;
        const V t21 = c[1] * t14;
        const V t22 = t20 - t21;
        const V t23 = t22 + x0;
        const V t24 = c[2] * t7;
        const V t25 = c[3] * t15;
        const V t26 = t24 + t25;
        const V t27 = t23 - t26;
        const V t28 = t23 + t26;
        const V t29 = c[1] * t6;
        const V t30 = x0 - t29;
        const V t31 = c[0] * t14;
        const V t32 = t30 + t31;
        const V t33 = c[3] * t7;
        const V t34 = c[2] * t15;
        const V t35 = t33 - t34;
        const V t36 = t32 - t35;
        const V t37 = t32 + t35;
        // complex block of 5, multiplier 4
        const V t38 = t17 + t1;
        const V t39 = t16 + t0;
        const V t40 = t17 - t1;
        const V t41 = t16 - t0;
        const V t42 = t5 + t13;
        const V t43 = t4 + t12;
        const V t44 = t13 - t5;
        const V t45 = t4 - t12;
        const V t46 = t38 - t42;
        const V t47 = t39 + t43;
        const V t48 = t46 + t9;
        const V t49 = t47 + t8;
        const V t50 = c[0] * t38;
        const V t51 = c[1] * t42;
        const V t52 = t50 + t51;
        const V t53 = t52 + t9;
        const V t54 = c[0] * t39;
        const V t55 = c[1] * t43;
        const V t56 = t54 - t55;
        const V t57 = t56 + t8;
        const V t58 = c[2] * t40;
        const V t59 = c[3] * t44;
        const V t60 = t58 - t59;
        const V t61 = c[2] * t41;
        const V t62 = c[3] * t45;
        const V t63 = t61 - t62;
        const V t64 = t53 + t63;
        const V t65 = t57 - t60;
        const V t66 = t53 - t63;
        const V t67 = t57 + t60;
        const V t68 = c[1] * t38;
        const V t69 = t9 - t68;
        const V t70 = c[0] * t42;
        const V t71 = t69 - t70;
        const V t72 = c[1] * t39;
        const V t73 = t8 - t72;
        const V t74 = c[0] * t43;
        const V t75 = t73 + t74;
        const V t76 = c[3] * t40;
        const V t77 = c[2] * t44;
        const V t78 = t76 + t77;
        const V t79 = c[3] * t41;
        const V t80 = c[2] * t45;
        const V t81 = t79 + t80;
        const V t82 = t71 + t81;
        const V t83 = t75 - t78;
        const V t84 = t71 - t81;
        const V t85 = t75 + t78;
        // spectrum block of 5, multiplier 4
        const V t86 = t10 + t2;
        const V x10 = io.in(10);
        const V t87 = t86 + x10;
        const V t88 = c[0] * t10;
        const V t89 = c[1] * t2;
        const V t90 = t88 - t89;
        const V t91 = t90 + x10;
        const V t92 = c[2] * t11;
        const V t93 = c[3] * t3;
        const V t94 = t92 + t93;
        const V t95 = t91 + t94;
        const V t96 = t91 - t94;
        const V t97 = c[1] * t10;
        const V t98 = x10 - t97;
        const V t99 = c[0] * t2;
        const V t100 = t98 + t99;
        const V t101 = c[3] * t11;
        const V t102 = c[2] * t3;
        const V t103 = t102 - t101;
        const V t104 = t100 - t103;
        const V t105 = t100 + t103;
        // spectrum block of 2
        const V t106 = t19 + t87;
        const V t107 = t19 - t87;
        // spectrum block of 2
        const V t108 = t106 + t49;
        io.out(0, t108);
        const V t109 = t106 - t49;
        io.out(10, t109);
        // spectrum block of 2
        const V t110 = t107 - t48;
        io.out(15, t110);
        const V t111 = t107 + t48;
        io.out(5, t111);
        // spectrum block of 2
        const V t112 = t28 + t96;
        const V t113 = t28 - t96;
        // spectrum block of 2
        const V t114 = t112 + t67;
        io.out(16, t114);
        const V t115 = t112 - t67;
        io.out(6, t115);
        // spectrum block of 2
        const V t116 = t113 - t66;
        io.out(11, t116);
        const V t117 = t113 + t66;
        io.out(1, t117);
        // spectrum block of 2
        const V t118 = t37 + t105;
        const V t119 = t37 - t105;
        // spectrum block of 2
        const V t120 = t118 + t85;
        io.out(12, t120);
        const V t121 = t118 - t85;
        io.out(2, t121);
        // spectrum block of 2
        const V t122 = t119 - t84;
        io.out(7, t122);
        const V t123 = t119 + t84;
        io.out(17, t123);
        // spectrum block of 2
        const V t124 = t36 + t104;
        const V t125 = t36 - t104;
        // spectrum block of 2
        const V t126 = t124 + t83;
        io.out(8, t126);
        const V t127 = t124 - t83;
        io.out(18, t127);
        // spectrum block of 2
        const V t128 = t125 - t82;
        io.out(3, t128);
        const V t129 = t125 + t82;
        io.out(13, t129);
        // spectrum block of 2
        const V t130 = t27 + t95;
        const V t131 = t27 - t95;
        // spectrum block of 2
        const V t132 = t130 + t65;
        io.out(4, t132);
        const V t133 = t130 - t65;
        io.out(14, t133);
        // spectrum block of 2
        const V t134 = t131 - t64;
        io.out(19, t134);
        const V t135 = t131 + t64;
        io.out(9, t135);
    }
};

}  // namespace zulg
