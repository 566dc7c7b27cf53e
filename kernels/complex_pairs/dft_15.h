// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 15.
// Complex DFT of 15 points, prime-factor, order 3, 5; one complex number to a register.
// 42 sums, 36 differences, 34 products of registers, which do the 254 steps of the graph, those with
// `scale` included; 11 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<15> {
    static constexpr int steps = 254;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x5 = io.pair(5);
        const P x10 = io.pair(10);
        // complex block of 3, multiplier 2
        const P t0 = x5 + x10;
        const P t1 = x5 - x10;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[4] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[5], c[5]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x8 = io.pair(8);
        const P x13 = io.pair(13);
        // complex block of 3, multiplier 2
        const P t9 = x8 + x13;
        const P t10 = x8 - x13;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[4] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[5], c[5]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x11 = io.pair(11);
        const P x1 = io.pair(1);
        // complex block of 3, multiplier 2
        const P t18 = x11 + x1;
        const P t19 = x11 - x1;
        const P x6 = io.pair(6);
        const P t20 = t18 + x6;
        const P t21 = c[4] * t18;
        const P t22 = x6 - t21;
        const P t23 = P(-c[5], c[5]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x14 = io.pair(14);
        const P x4 = io.pair(4);
        // complex block of 3, multiplier 2
        const P t27 = x14 + x4;
        const P t28 = x14 - x4;
        const P x9 = io.pair(9);
        const P t29 = t27 + x9;
        const P t30 = c[4] * t27;
        const P t31 = x9 - t30;
        const P t32 = P(-c[5], c[5]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x2 = io.pair(2);
        const P x7 = io.pair(7);
        // complex block of 3, multiplier 2
        const P t36 = x2 + x7;
        const P t37 = x2 - x7;
        const P x12 = io.pair(12);
        const P t38 = t36 + x12;
        const P t39 = c[4] * t36;
        const P t40 = x12 - t39;
        const P t41 = P(-c[5], c[5]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        // complex block of 5, multiplier 3
        const P t45 = t11 + t38;
        const P t46 = t11 - t38;
        const P t47 = t29 + t20;
        const P t48 = t29 - t20;
        const P t49 = t45 + t47;
        const P t50 = t49 + t2;
        io.pair(0, t50);
        const P t51 = c[0] * t45;
        const P t52 = c[1] * t47;
        const P t53 = t51 - t52;
        const P t54 = t53 + t2;
        const P t55 = c[2] * t46;
        const P t56 = c[3] * t48;
        const P t57 = t55 - t56;
        const P t58 = shuffled<1, 0>(t57);
        const P t59 = flipped<0, 1>(t58);
        const P t60 = t54 + t59;
        io.pair(6, t60);
        const P t61 = t54 - t59;
        io.pair(9, t61);
        const P t62 = c[1] * t45;
        const P t63 = t2 - t62;
        const P t64 = c[0] * t47;
        const P t65 = t63 + t64;
        const P t66 = c[3] * t46;
        const P t67 = c[2] * t48;
        const P t68 = t66 + t67;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = flipped<0, 1>(t69);
        const P t71 = t65 + t70;
        io.pair(12, t71);
        const P t72 = t65 - t70;
        io.pair(3, t72);
        // complex block of 5, multiplier 3
        const P t73 = t17 + t44;
        const P t74 = t17 - t44;
        const P t75 = t35 + t26;
        const P t76 = t35 - t26;
        const P t77 = t73 + t75;
        const P t78 = t77 + t8;
        io.pair(5, t78);
        const P t79 = c[0] * t73;
        const P t80 = c[1] * t75;
        const P t81 = t79 - t80;
        const P t82 = t81 + t8;
        const P t83 = c[2] * t74;
        const P t84 = c[3] * t76;
        const P t85 = t83 - t84;
        const P t86 = shuffled<1, 0>(t85);
        const P t87 = flipped<0, 1>(t86);
        const P t88 = t82 + t87;
        io.pair(11, t88);
        const P t89 = t82 - t87;
        io.pair(14, t89);
        const P t90 = c[1] * t73;
        const P t91 = t8 - t90;
        const P t92 = c[0] * t75;
        const P t93 = t91 + t92;
        const P t94 = c[3] * t74;
        const P t95 = c[2] * t76;
        const P t96 = t94 + t95;
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = flipped<0, 1>(t97);
        const P t99 = t93 + t98;
        io.pair(2, t99);
        const P t100 = t93 - t98;
        io.pair(8, t100);
        // complex block of 5, multiplier 3
        const P t101 = t16 + t43;
        const P t102 = t16 - t43;
        const P t103 = t34 + t25;
        const P t104 = t34 - t25;
        const P t105 = t101 + t103;
        const P t106 = t105 + t7;
        io.pair(10, t106);
        const P t107 = c[0] * t101;
        const P t108 = c[1] * t103;
        const P t109 = t107 - t108;
        const P t110 = t109 + t7;
        const P t111 = c[2] * t102;
        const P t112 = c[3] * t104;
        const P t113 = t111 - t112;
        const P t114 = shuffled<1, 0>(t113);
        const P t115 = flipped<0, 1>(t114);
        const P t116 = t110 + t115;
        io.pair(1, t116);
        const P t117 = t110 - t115;
        io.pair(4, t117);
        const P t118 = c[1] * t101;
        const P t119 = t7 - t118;
        const P t120 = c[0] * t103;
        const P t121 = t119 + t120;
        const P t122 = c[3] * t102;
        const P t123 = c[2] * t104;
        const P t124 = t122 + t123;
        const P t125 = shuffled<1, 0>(t124);
        const P t126 = flipped<0, 1>(t125);
        const P t127 = t121 + t126;
        io.pair(7, t127);
        const P t128 = t121 - t126;
        io.pair(13, t128);
    }
};

}  // namespace zulg
