// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 20.
// Complex DFT of 20 points, prime-factor, order 4, 5; one complex number to a register.
// 56 sums, 48 differences, 32 products of registers, which do the 312 steps of the graph, those with
// `scale` included; 13 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<20> {
    static constexpr int steps = 312;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x10 = io.pair(10);
        // complex block of 2
        const P t0 = x0 + x10;
        const P t1 = x0 - x10;
        const P x5 = io.pair(5);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t2 = x5 + x15;
        const P t3 = x5 - x15;
        // complex block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P t6 = shuffled<1, 0>(t3);
        const P t7 = flipped<0, 1>(t6);
        // complex block of 2
        const P t8 = t1 + t7;
        const P t9 = t1 - t7;
        const P x4 = io.pair(4);
        const P x14 = io.pair(14);
        // complex block of 2
        const P t10 = x4 + x14;
        const P t11 = x4 - x14;
        const P x9 = io.pair(9);
        const P x19 = io.pair(19);
        // complex block of 2
        const P t12 = x9 + x19;
        const P t13 = x9 - x19;
        // complex block of 2
        const P t14 = t10 + t12;
        const P t15 = t10 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<0, 1>(t16);
        // complex block of 2
        const P t18 = t11 + t17;
        const P t19 = t11 - t17;
        const P x8 = io.pair(8);
        const P x18 = io.pair(18);
        // complex block of 2
        const P t20 = x8 + x18;
        const P t21 = x8 - x18;
        const P x13 = io.pair(13);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t22 = x13 + x3;
        const P t23 = x13 - x3;
        // complex block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        const P t26 = shuffled<1, 0>(t23);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t21 + t27;
        const P t29 = t21 - t27;
        const P x12 = io.pair(12);
        const P x2 = io.pair(2);
        // complex block of 2
        const P t30 = x12 + x2;
        const P t31 = x12 - x2;
        const P x17 = io.pair(17);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t32 = x17 + x7;
        const P t33 = x17 - x7;
        // complex block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        const P t36 = shuffled<1, 0>(t33);
        const P t37 = flipped<0, 1>(t36);
        // complex block of 2
        const P t38 = t31 + t37;
        const P t39 = t31 - t37;
        const P x16 = io.pair(16);
        const P x6 = io.pair(6);
        // complex block of 2
        const P t40 = x16 + x6;
        const P t41 = x16 - x6;
        const P x1 = io.pair(1);
        const P x11 = io.pair(11);
        // complex block of 2
        const P t42 = x1 + x11;
        const P t43 = x1 - x11;
        // complex block of 2
        const P t44 = t40 + t42;
        const P t45 = t40 - t42;
        const P t46 = shuffled<1, 0>(t43);
        const P t47 = flipped<0, 1>(t46);
        // complex block of 2
        const P t48 = t41 + t47;
        const P t49 = t41 - t47;
        // complex block of 5, multiplier 4
        const P t50 = t14 + t44;
        const P t51 = t14 - t44;
        const P t52 = t34 + t24;
        const P t53 = t34 - t24;
        const P t54 = t50 + t52;
        const P t55 = t54 + t4;
        io.pair(0, t55);
        const P t56 = c[0] * t50;
        const P t57 = c[1] * t52;
        const P t58 = t56 - t57;
        const P t59 = t58 + t4;
        const P t60 = c[2] * t51;
        const P t61 = c[3] * t53;
        const P t62 = t60 - t61;
        const P t63 = shuffled<1, 0>(t62);
        const P t64 = flipped<0, 1>(t63);
        const P t65 = t59 + t64;
        io.pair(16, t65);
        const P t66 = t59 - t64;
        io.pair(4, t66);
        const P t67 = c[1] * t50;
        const P t68 = t4 - t67;
        const P t69 = c[0] * t52;
        const P t70 = t68 + t69;
        const P t71 = c[3] * t51;
        const P t72 = c[2] * t53;
        const P t73 = t71 + t72;
        const P t74 = shuffled<1, 0>(t73);
        const P t75 = flipped<0, 1>(t74);
        const P t76 = t70 + t75;
        io.pair(12, t76);
        const P t77 = t70 - t75;
        io.pair(8, t77);
        // complex block of 5, multiplier 4
        const P t78 = t18 + t48;
        const P t79 = t18 - t48;
        const P t80 = t38 + t28;
        const P t81 = t38 - t28;
        const P t82 = t78 + t80;
        const P t83 = t82 + t8;
        io.pair(5, t83);
        const P t84 = c[0] * t78;
        const P t85 = c[1] * t80;
        const P t86 = t84 - t85;
        const P t87 = t86 + t8;
        const P t88 = c[2] * t79;
        const P t89 = c[3] * t81;
        const P t90 = t88 - t89;
        const P t91 = shuffled<1, 0>(t90);
        const P t92 = flipped<0, 1>(t91);
        const P t93 = t87 + t92;
        io.pair(1, t93);
        const P t94 = t87 - t92;
        io.pair(9, t94);
        const P t95 = c[1] * t78;
        const P t96 = t8 - t95;
        const P t97 = c[0] * t80;
        const P t98 = t96 + t97;
        const P t99 = c[3] * t79;
        const P t100 = c[2] * t81;
        const P t101 = t99 + t100;
        const P t102 = shuffled<1, 0>(t101);
        const P t103 = flipped<0, 1>(t102);
        const P t104 = t98 + t103;
        io.pair(17, t104);
        const P t105 = t98 - t103;
        io.pair(13, t105);
        // complex block of 5, multiplier 4
        const P t106 = t15 + t45;
        const P t107 = t15 - t45;
        const P t108 = t35 + t25;
        const P t109 = t35 - t25;
        const P t110 = t106 + t108;
        const P t111 = t110 + t5;
        io.pair(10, t111);
        const P t112 = c[0] * t106;
        const P t113 = c[1] * t108;
        const P t114 = t112 - t113;
        const P t115 = t114 + t5;
        const P t116 = c[2] * t107;
        const P t117 = c[3] * t109;
        const P t118 = t116 - t117;
        const P t119 = shuffled<1, 0>(t118);
        const P t120 = flipped<0, 1>(t119);
        const P t121 = t115 + t120;
        io.pair(6, t121);
        const P t122 = t115 - t120;
        io.pair(14, t122);
        const P t123 = c[1] * t106;
        const P t124 = t5 - t123;
        const P t125 = c[0] * t108;
        const P t126 = t124 + t125;
        const P t127 = c[3] * t107;
        const P t128 = c[2] * t109;
        const P t129 = t127 + t128;
        const P t130 = shuffled<1, 0>(t129);
        const P t131 = flipped<0, 1>(t130);
        const P t132 = t126 + t131;
        io.pair(2, t132);
        const P t133 = t126 - t131;
        io.pair(18, t133);
        // complex block of 5, multiplier 4
        const P t134 = t19 + t49;
        const P t135 = t19 - t49;
        const P t136 = t39 + t29;
        const P t137 = t39 - t29;
        const P t138 = t134 + t136;
        const P t139 = t138 + t9;
        io.pair(15, t139);
        const P t140 = c[0] * t134;
        const P t141 = c[1] * t136;
        const P t142 = t140 - t141;
        const P t143 = t142 + t9;
        const P t144 = c[2] * t135;
        const P t145 = c[3] * t137;
        const P t146 = t144 - t145;
        const P t147 = shuffled<1, 0>(t146);
        const P t148 = flipped<0, 1>(t147);
        const P t149 = t143 + t148;
        io.pair(11, t149);
        const P t150 = t143 - t148;
        io.pair(19, t150);
        const P t151 = c[1] * t134;
        const P t152 = t9 - t151;
        const P t153 = c[0] * t136;
        const P t154 = t152 + t153;
        const P t155 = c[3] * t135;
        const P t156 = c[2] * t137;
        const P t157 = t155 + t156;
        const P t158 = shuffled<1, 0>(t157);
        const P t159 = flipped<0, 1>(t158);
        const P t160 = t154 + t159;
        io.pair(7, t160);
        const P t161 = t154 - t159;
        io.pair(3, t161);
    }
};

}  // namespace zulg
