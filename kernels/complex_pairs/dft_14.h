// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 14.
// Complex DFT of 14 points, prime-factor, order 2, 7; one complex number to a register.
// 37 sums, 37 differences, 36 products of registers, which do the 248 steps of the graph, those with
// `scale` included; 6 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<14> {
    static constexpr int steps = 248;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t0 = x0 + x7;
        const P t1 = x0 - x7;
        const P x2 = io.pair(2);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t2 = x2 + x9;
        const P t3 = x2 - x9;
        const P x4 = io.pair(4);
        const P x11 = io.pair(11);
        // complex block of 2
        const P t4 = x4 + x11;
        const P t5 = x4 - x11;
        const P x6 = io.pair(6);
        const P x13 = io.pair(13);
        // complex block of 2
        const P t6 = x6 + x13;
        const P t7 = x6 - x13;
        const P x8 = io.pair(8);
        const P x1 = io.pair(1);
        // complex block of 2
        const P t8 = x8 + x1;
        const P t9 = x8 - x1;
        const P x10 = io.pair(10);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t10 = x10 + x3;
        const P t11 = x10 - x3;
        const P x12 = io.pair(12);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t12 = x12 + x5;
        const P t13 = x12 - x5;
        // complex block of 7, multiplier 2
        const P t14 = t2 + t12;
        const P t15 = t2 - t12;
        const P t16 = t10 + t4;
        const P t17 = t10 - t4;
        const P t18 = t8 + t6;
        const P t19 = t8 - t6;
        const P t20 = t14 + t16;
        const P t21 = t20 + t18;
        const P t22 = t21 + t0;
        io.pair(0, t22);
        const P t23 = c[0] * t14;
        const P t24 = c[1] * t16;
        const P t25 = t23 - t24;
        const P t26 = c[2] * t18;
        const P t27 = t25 - t26;
        const P t28 = t27 + t0;
        const P t29 = c[3] * t15;
        const P t30 = c[4] * t17;
        const P t31 = t29 - t30;
        const P t32 = c[5] * t19;
        const P t33 = t31 - t32;
        const P t34 = shuffled<1, 0>(t33);
        const P t35 = flipped<0, 1>(t34);
        const P t36 = t28 + t35;
        io.pair(8, t36);
        const P t37 = t28 - t35;
        io.pair(6, t37);
        const P t38 = c[1] * t14;
        const P t39 = t0 - t38;
        const P t40 = c[2] * t16;
        const P t41 = t39 - t40;
        const P t42 = c[0] * t18;
        const P t43 = t41 + t42;
        const P t44 = c[4] * t15;
        const P t45 = c[5] * t17;
        const P t46 = t44 + t45;
        const P t47 = c[3] * t19;
        const P t48 = t46 + t47;
        const P t49 = shuffled<1, 0>(t48);
        const P t50 = flipped<0, 1>(t49);
        const P t51 = t43 + t50;
        io.pair(2, t51);
        const P t52 = t43 - t50;
        io.pair(12, t52);
        const P t53 = c[2] * t14;
        const P t54 = t0 - t53;
        const P t55 = c[0] * t16;
        const P t56 = t54 + t55;
        const P t57 = c[1] * t18;
        const P t58 = t56 - t57;
        const P t59 = c[5] * t15;
        const P t60 = c[3] * t17;
        const P t61 = t59 + t60;
        const P t62 = c[4] * t19;
        const P t63 = t61 - t62;
        const P t64 = shuffled<1, 0>(t63);
        const P t65 = flipped<0, 1>(t64);
        const P t66 = t58 + t65;
        io.pair(10, t66);
        const P t67 = t58 - t65;
        io.pair(4, t67);
        // complex block of 7, multiplier 2
        const P t68 = t3 + t13;
        const P t69 = t3 - t13;
        const P t70 = t11 + t5;
        const P t71 = t11 - t5;
        const P t72 = t9 + t7;
        const P t73 = t9 - t7;
        const P t74 = t68 + t70;
        const P t75 = t74 + t72;
        const P t76 = t75 + t1;
        io.pair(7, t76);
        const P t77 = c[0] * t68;
        const P t78 = c[1] * t70;
        const P t79 = t77 - t78;
        const P t80 = c[2] * t72;
        const P t81 = t79 - t80;
        const P t82 = t81 + t1;
        const P t83 = c[3] * t69;
        const P t84 = c[4] * t71;
        const P t85 = t83 - t84;
        const P t86 = c[5] * t73;
        const P t87 = t85 - t86;
        const P t88 = shuffled<1, 0>(t87);
        const P t89 = flipped<0, 1>(t88);
        const P t90 = t82 + t89;
        io.pair(1, t90);
        const P t91 = t82 - t89;
        io.pair(13, t91);
        const P t92 = c[1] * t68;
        const P t93 = t1 - t92;
        const P t94 = c[2] * t70;
        const P t95 = t93 - t94;
        const P t96 = c[0] * t72;
        const P t97 = t95 + t96;
        const P t98 = c[4] * t69;
        const P t99 = c[5] * t71;
        const P t100 = t98 + t99;
        const P t101 = c[3] * t73;
        const P t102 = t100 + t101;
        const P t103 = shuffled<1, 0>(t102);
        const P t104 = flipped<0, 1>(t103);
        const P t105 = t97 + t104;
        io.pair(9, t105);
        const P t106 = t97 - t104;
        io.pair(5, t106);
        const P t107 = c[2] * t68;
        const P t108 = t1 - t107;
        const P t109 = c[0] * t70;
        const P t110 = t108 + t109;
        const P t111 = c[1] * t72;
        const P t112 = t110 - t111;
        const P t113 = c[5] * t69;
        const P t114 = c[3] * t71;
        const P t115 = t113 + t114;
        const P t116 = c[4] * t73;
        const P t117 = t115 - t116;
        const P t118 = shuffled<1, 0>(t117);
        const P t119 = flipped<0, 1>(t118);
        const P t120 = t112 + t119;
        io.pair(3, t120);
        const P t121 = t112 - t119;
        io.pair(11, t121);
    }
};

}  // namespace zulg
