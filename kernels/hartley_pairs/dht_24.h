// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 24.
// Hartley transform of 24 points, form F; two lanes to a register.
// 36 sums, 32 differences, 12 products of registers, which do the 172 steps of the graph, those with
// `scale` included; 26 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<24> {
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
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x8_11 = io.in(8, 11);
        const P x16_19 = io.in(16, 19);
        // real block of 3, multiplier 2
        const P t0 = x8_11 + x16_19;
        const P t1 = x8_11 - x16_19;
        const P x0_3 = io.in(0, 3);
        const P t2 = t0 + x0_3;
        const P t3 = c[0] * t0;
        const P t4 = x0_3 - t3;
        const P x14_17 = io.in(14, 17);
        const P x22_1 = io.in(22, 1);
        // real block of 3, multiplier 2
        const P t5 = x14_17 + x22_1;
        const P t6 = x14_17 - x22_1;
        const P x6_9 = io.in(6, 9);
        const P t7 = t5 + x6_9;
        const P t8 = c[0] * t5;
        const P t9 = x6_9 - t8;
        const P x20_23 = io.in(20, 23);
        const P x4_7 = io.in(4, 7);
        // real block of 3, multiplier 2
        const P t10 = x20_23 + x4_7;
        const P t11 = x20_23 - x4_7;
        const P x12_15 = io.in(12, 15);
        const P t12 = t10 + x12_15;
        const P t13 = c[0] * t10;
        const P t14 = x12_15 - t13;
        const P x2_5 = io.in(2, 5);
        const P x10_13 = io.in(10, 13);
        // real block of 3, multiplier 2
        const P t15 = x2_5 + x10_13;
        const P t16 = x2_5 - x10_13;
        const P x18_21 = io.in(18, 21);
        const P t17 = t15 + x18_21;
        const P t18 = c[0] * t15;
        const P t19 = x18_21 - t18;
        // real block of 2
        const P t20 = t2 + t12;
        const P t21 = t2 - t12;
        // real block of 2
        const P t22 = t7 + t17;
        const P t23 = t7 - t17;
        // real block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        const V t26 = part<1>(t21);
        const V t27 = part<1>(t23);
        // skew block of 4, multiplier 3
        const V t28 = t26 - t27;
        const V t29 = t26 + t27;
        const V t30 = part<0>(t23);
        const V t31 = c[2] * t29;
        const V t32 = t30 - t31;
        const V t33 = part<0>(t21);
        const V t34 = c[2] * t28;
        const V t35 = t33 + t34;
        const V t36 = t30 + t31;
        const V t37 = t33 - t34;
        // real block of 3, multiplier 2
        const P t38 = c[1] * t1;
        const P t39 = shuffled<0, 2>(t4, t38);
        // real block of 3, multiplier 2
        const P t40 = c[1] * t11;
        const P t41 = shuffled<0, 2>(t14, t40);
        // complex block of 2
        const P t42 = t39 + t41;
        const P t43 = t39 - t41;
        const P t44 = shuffled<1, 3>(t4, t38);
        const P t45 = shuffled<1, 3>(t14, t40);
        // complex block of 2
        const P t46 = t44 + t45;
        const P t47 = t44 - t45;
        // real block of 3, multiplier 2
        const P t48 = c[1] * t6;
        const P t49 = shuffled<0, 2>(t9, t48);
        // real block of 3, multiplier 2
        const P t50 = c[1] * t16;
        const P t51 = shuffled<0, 2>(t19, t50);
        // complex block of 2
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P t54 = shuffled<1, 3>(t9, t48);
        const P t55 = shuffled<1, 3>(t19, t50);
        // complex block of 2
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        // complex block of 2
        const P t58 = t42 + t52;
        const P t59 = t42 - t52;
        // complex block of 2
        const P t60 = t46 + t56;
        const P t61 = t46 - t56;
        // complex block of 2
        const P t62 = t58 + t60;
        const P t63 = t58 - t60;
        const P t64 = shuffled<1, 0>(t61);
        const P t65 = flipped<1, 0>(t64);
        // complex block of 2
        const P t66 = t59 + t65;
        const P t67 = t59 - t65;
        // complex block of 8, multiplier 3
        const P t68 = c[2] * t47;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = flipped<0, 1>(t69);
        const P t71 = t68 + t70;
        const P t72 = c[2] * t57;
        const P t73 = shuffled<1, 0>(t72);
        const P t74 = flipped<0, 1>(t73);
        const P t75 = t72 + t74;
        const P t76 = shuffled<1, 0>(t53);
        const P t77 = flipped<1, 0>(t76);
        // complex block of 2
        const P t78 = t43 + t77;
        const P t79 = t43 - t77;
        const P t80 = shuffled<1, 0>(t71);
        const P t81 = flipped<0, 1>(t80);
        // complex block of 2
        const P t82 = t75 + t81;
        const P t83 = flipped<1, 0>(t75);
        const P t84 = t80 + t83;
        // complex block of 2
        const P t85 = t78 + t82;
        const P t86 = t78 - t82;
        const P t87 = shuffled<1, 0>(t84);
        // complex block of 2
        const P t88 = t79 + t87;
        const P t89 = t79 - t87;
        // output stage
        const V t90 = t37 - t32;
        io.out(3, t90);
        const V t91 = t37 + t32;
        io.out(21, t91);
        const P t92 = shuffled<0, 2>(t24, t25);
        const P t93 = shuffled<1, 3>(t24, t25);
        // real block of 2
        const P t94 = t92 - t93;
        io.out(12, 6, t94);
        const P t95 = t92 + t93;
        io.out(0, 18, t95);
        const P t96 = shuffled<0, 2>(t88, t89);
        const P t97 = shuffled<1, 3>(t88, t89);
        // output stage
        const P t98 = t96 + t97;
        io.out(7, 19, t98);
        const P t99 = t96 - t97;
        io.out(17, 5, t99);
        const P t100 = shuffled<0, 2>(t62, t63);
        const P t101 = shuffled<1, 3>(t62, t63);
        const P t102 = t100 - t101;
        io.out(8, 20, t102);
        const P t103 = t100 + t101;
        io.out(16, 4, t103);
        const V t104 = t35 + t36;
        io.out(9, t104);
        const V t105 = t35 - t36;
        io.out(15, t105);
        const P t106 = shuffled<0, 2>(t66, t67);
        const P t107 = shuffled<1, 3>(t66, t67);
        const P t108 = t106 + t107;
        io.out(10, 22, t108);
        const P t109 = t106 - t107;
        io.out(14, 2, t109);
        const P t110 = shuffled<0, 2>(t85, t86);
        const P t111 = shuffled<1, 3>(t85, t86);
        const P t112 = t110 - t111;
        io.out(11, 23, t112);
        const P t113 = t110 + t111;
        io.out(13, 1, t113);
    }
};

}  // namespace zulg
