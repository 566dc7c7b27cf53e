// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 18.
// Hartley transform of 18 points, form I.
// 49 additions, 49 subtractions, 36 multiplications (54 with `scale`); 10 constants; 21 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<18> {
    static constexpr int steps = 152;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.984807753012208,  // c[2]: -sin 2 pi 7/9
        0.17364817766693036,  // c[3]: cos 2 pi 7/9
        0.3420201433256687,  // c[4]: -sin 2 pi 5/9
        0.9396926207859084,  // c[5]: -cos 2 pi 5/9
        0.1503837331804353,  // c[6]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[7]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[9]: sin 2 pi 1/3 times -cos 2 pi 5/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x17 = io.in(17);
        const V t0 = x1 + x17;
        const V t1 = x1 - x17;
        const V x2 = io.in(2);
        const V x16 = io.in(16);
        const V t2 = x2 + x16;
        const V t3 = x2 - x16;
        const V x3 = io.in(3);
        const V x15 = io.in(15);
        const V t4 = x3 + x15;
        const V t5 = x3 - x15;
        const V x4 = io.in(4);
        const V x14 = io.in(14);
        const V t6 = x4 + x14;
        const V t7 = x4 - x14;
        const V x5 = io.in(5);
        const V x13 = io.in(13);
        const V t8 = x5 + x13;
        const V t9 = x5 - x13;
        const V x6 = io.in(6);
        const V x12 = io.in(12);
        const V t10 = x6 + x12;
        const V t11 = x6 - x12;
        const V x7 = io.in(7);
        const V x11 = io.in(11);
        const V t12 = x7 + x11;
        const V t13 = x7 - x11;
        const V x8 = io.in(8);
        const V x10 = io.in(10);
        const V t14 = x8 + x10;
        const V t15 = x8 - x10;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x9 = io.in(9);
        const V t16 = x0 + x9;
        const V t17 = x0 - x9;
        // complex block of 2
        const V t18 = t3 - t13;
        const V t19 = t2 + t12;
        const V t20 = t3 + t13;
        const V t21 = t2 - t12;
        // complex block of 2
        const V t22 = t7 - t9;
        const V t23 = t6 + t8;
        const V t24 = t7 + t9;
        const V t25 = t6 - t8;
        // complex block of 2
        const V t26 = t11 - t5;
        const V t27 = t10 + t4;
        const V t28 = t11 + t5;
        const V t29 = t10 - t4;
        // complex block of 2
        const V t30 = t15 - t1;
        const V t31 = t14 + t0;
        const V t32 = t15 + t1;
        const V t33 = t14 - t0;
        // spectrum block of 3, multiplier 2
        const V t34 = t27 + t16;
        const V t35 = c[0] * t27;
        const V t36 = t16 - t35;
        const V t37 = c[1] * t26;
        const V t38 = t36 - t37;
        const V t39 = t36 + t37;
        // complex block of 3, multiplier 2
        const V t40 = t30 - t22;
        const V t41 = t31 + t23;
        const V t42 = t30 + t22;
        const V t43 = t31 - t23;
        const V t44 = t40 + t18;
        const V t45 = t41 + t19;
        const V t46 = c[0] * t40;
        const V t47 = t18 - t46;
        const V t48 = c[0] * t41;
        const V t49 = t19 - t48;
        const V t50 = c[1] * t42;
        const V t51 = c[1] * t43;
        const V t52 = t47 + t51;
        const V t53 = t49 - t50;
        const V t54 = t47 - t51;
        const V t55 = t49 + t50;
        // spectrum block of 9, multiplier 2
        const V t56 = c[2] * t54;
        const V t57 = c[3] * t55;
        const V t58 = t57 - t56;
        const V t59 = c[4] * t52;
        const V t60 = c[5] * t53;
        const V t61 = t60 + t59;
        // spectrum block of 3, multiplier 2
        const V t62 = t45 + t34;
        io.out(0, t62);
        const V t63 = c[0] * t45;
        const V t64 = t34 - t63;
        const V t65 = c[1] * t44;
        const V t66 = t64 - t65;
        io.out(6, t66);
        const V t67 = t64 + t65;
        io.out(12, t67);
        // spectrum block of 3, multiplier 2
        const V t68 = t58 + t39;
        io.out(16, t68);
        const V t69 = c[0] * t58;
        const V t70 = t39 - t69;
        const V t71 = c[6] * t54;
        const V t72 = c[7] * t55;
        const V t73 = t71 + t72;
        const V t74 = t70 - t73;
        io.out(4, t74);
        const V t75 = t70 + t73;
        io.out(10, t75);
        // spectrum block of 3, multiplier 2
        const V t76 = t38 - t61;
        io.out(14, t76);
        const V t77 = c[0] * t61;
        const V t78 = t77 + t38;
        const V t79 = c[8] * t53;
        const V t80 = c[9] * t52;
        const V t81 = t79 - t80;
        const V t82 = t78 - t81;
        io.out(2, t82);
        const V t83 = t78 + t81;
        io.out(8, t83);
        // spectrum block of 3, multiplier 2
        const V t84 = t29 + t17;
        const V t85 = c[0] * t29;
        const V t86 = t17 - t85;
        const V t87 = c[1] * t28;
        const V t88 = t86 - t87;
        const V t89 = t86 + t87;
        // complex block of 3, multiplier 2
        const V t90 = t32 - t24;
        const V t91 = t33 + t25;
        const V t92 = t32 + t24;
        const V t93 = t33 - t25;
        const V t94 = t90 + t20;
        const V t95 = t91 + t21;
        const V t96 = c[0] * t90;
        const V t97 = t20 - t96;
        const V t98 = c[0] * t91;
        const V t99 = t21 - t98;
        const V t100 = c[1] * t92;
        const V t101 = c[1] * t93;
        const V t102 = t97 + t101;
        const V t103 = t99 - t100;
        const V t104 = t97 - t101;
        const V t105 = t99 + t100;
        // spectrum block of 9, multiplier 2
        const V t106 = c[2] * t104;
        const V t107 = c[3] * t105;
        const V t108 = t107 - t106;
        const V t109 = c[4] * t102;
        const V t110 = c[5] * t103;
        const V t111 = t110 + t109;
        // spectrum block of 3, multiplier 2
        const V t112 = t95 + t84;
        io.out(9, t112);
        const V t113 = c[0] * t95;
        const V t114 = t84 - t113;
        const V t115 = c[1] * t94;
        const V t116 = t114 - t115;
        io.out(15, t116);
        const V t117 = t114 + t115;
        io.out(3, t117);
        // spectrum block of 3, multiplier 2
        const V t118 = t108 + t89;
        io.out(7, t118);
        const V t119 = c[0] * t108;
        const V t120 = t89 - t119;
        const V t121 = c[6] * t104;
        const V t122 = c[7] * t105;
        const V t123 = t121 + t122;
        const V t124 = t120 - t123;
        io.out(13, t124);
        const V t125 = t120 + t123;
        io.out(1, t125);
        // spectrum block of 3, multiplier 2
        const V t126 = t88 - t111;
        io.out(5, t126);
        const V t127 = c[0] * t111;
        const V t128 = t127 + t88;
        const V t129 = c[8] * t103;
        const V t130 = c[9] * t102;
        const V t131 = t129 - t130;
        const V t132 = t128 - t131;
        io.out(11, t132);
        const V t133 = t128 + t131;
        io.out(17, t133);
    }
};

}  // namespace zulg
