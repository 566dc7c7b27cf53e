// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 11.
// Complex DFT of 11 points, Rader block; two lines of a stage to a register.
// 25 sums, 17 differences, 26 products of registers, which do the 278 steps of the graph, those with
// `scale` included; 19 shuffles, 2 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<11> {
    static constexpr int steps = 278;  // with `scale`
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5082556049431003,  // c[4]: P[3] of 11
        0.635213297150478,  // c[5]: Q[1] of 11
        0.4262349587304204,  // c[6]: -Q[3] of 11
        0.19106037559687397,  // c[7]: P[1] of 11
        0.5272211128649671,  // c[8]: P[2] of 11
        0.41403241996621415,  // c[9]: P[4] of 11
        0.4025393125514894,  // c[10]: Q[2] of 11
        0.5182443007085755,  // c[11]: Q[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x9_2 = io.pairs(9, 2);
        const Q x5_6 = io.pairs(5, 6);
        // real block of 5, multiplier 2
        const Q t0 = x9_2 + x5_6;
        const Q t1 = x9_2 - x5_6;
        const Q x4_7 = io.pairs(4, 7);
        const Q x3_8 = io.pairs(3, 8);
        const Q t2 = x4_7 + x3_8;
        const Q t3 = x4_7 - x3_8;
        const Q t4 = t2 + t0;
        const Q x1_10 = io.pairs(1, 10);
        const Q t5 = c[0] * t2;
        const Q t6 = x1_10 - t5;
        const Q t7 = c[1] * t2;
        const Q t8 = c[0] * t0;
        const Q t9 = t7 - t8;
        const Q t10 = t4 + x1_10;
        const P t11 = part<0>(t10);
        const P t12 = part<1>(t10);
        // real block of 2
        const P t13 = t11 + t12;
        const P t14 = t11 - t12;
        // real block of 5, multiplier 2
        const Q t15 = c[1] * t0;
        const Q t16 = t6 + t15;
        const Q t17 = t9 + x1_10;
        const Q t18 = shuffled<0, 1, 4, 5>(t16, t17);
        const Q t19 = shuffled<2, 3, 6, 7>(t16, t17);
        // complex block of 2
        const Q t20 = t18 + t19;
        const Q t21 = t18 - t19;
        // real block of 5, multiplier 2
        const Q t22 = c[2] * t3;
        const Q t23 = c[3] * t1;
        const Q t24 = t22 + t23;
        const Q t25 = c[3] * t3;
        const Q t26 = c[2] * t1;
        const Q t27 = t25 - t26;
        const Q t28 = shuffled<0, 1, 4, 5>(t24, t27);
        const Q t29 = shuffled<2, 3, 6, 7>(t24, t27);
        // complex block of 2
        const Q t30 = t28 + t29;
        const Q t31 = shuffled<0, 1, 6, 7>(t29, t28);
        const Q t32 = shuffled<0, 1, 6, 7>(t28, t29);
        const Q t33 = t31 - t32;
        const P x0 = io.pair(0);
        // complex block of 11
        const P t34 = x0 + t13;
        io.pair(0, t34);
        const P t35 = c[12] * t13;
        const P t36 = x0 - t35;
        const P t37 = shuffled<1, 0>(t14);
        const P t38 = P(c[13], -c[13]) * t37;
        // spectrum block of 2
        const P t39 = t36 + t38;
        const P t40 = t36 - t38;
        const Q t41 = shuffled<0, 1, 6, 7>(t33, t21);
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        // complex block of 11
        const Q t43 = Q(c[4], -c[4], c[5], c[5]) * t42;
        const Q t44 = shuffled<0, 1, 6, 7>(t21, t33);
        const Q t45 = shuffled<1, 0, 3, 2>(t44);
        const Q t46 = Q(-c[6], c[6], c[7], c[7]) * t45;
        const Q t47 = t43 + t46;
        const Q t48 = Q(c[8], c[8], c[9], c[9]) * t20;
        const Q t49 = Q(c[10], c[10], -c[11], -c[11]) * t30;
        const Q t50 = t48 + t49;
        const Q t51 = flipped<0, 0, 0, 1>(t47);
        // complex block of 2
        const Q t52 = t50 + t51;
        const Q t53 = t50 - t51;
        // complex block of 11
        const Q t54 = Q(c[4], c[4], -c[5], c[5]) * t45;
        const Q t55 = Q(c[6], c[6], c[7], -c[7]) * t42;
        const Q t56 = t54 + t55;
        const Q t57 = shuffled<0, 1, 6, 7>(t20, t30);
        const Q t58 = Q(c[10], c[10], c[9], c[9]) * t57;
        const Q t59 = shuffled<0, 1, 6, 7>(t30, t20);
        const Q t60 = Q(-c[8], -c[8], c[11], c[11]) * t59;
        const Q t61 = t58 + t60;
        const Q t62 = flipped<0, 1, 0, 0>(t56);
        // complex block of 2
        const Q t63 = t61 - t62;
        const Q t64 = t61 + t62;
        const Q t65 = shuffled<0, 1, 4, 5>(t52, t53);
        const Q t66 = shuffled<2, 3, 6, 7>(t52, t53);
        // spectrum block of 5, multiplier 2
        const Q t67 = t65 + t66;
        const Q t68 = joined(t39, t40);
        const Q t69 = t67 + t68;
        io.pairs(1, 10, t69);
        const Q t70 = c[1] * t65;
        const Q t71 = c[0] * t66;
        const Q t72 = t70 - t71;
        const Q t73 = t72 + t68;
        const Q t74 = shuffled<0, 1, 4, 5>(t63, t64);
        const Q t75 = c[3] * t74;
        const Q t76 = shuffled<2, 3, 6, 7>(t63, t64);
        const Q t77 = c[2] * t76;
        const Q t78 = t75 + t77;
        const Q t79 = t73 - t78;
        io.pairs(5, 6, t79);
        const Q t80 = t73 + t78;
        io.pairs(9, 2, t80);
        const Q t81 = c[0] * t65;
        const Q t82 = t68 - t81;
        const Q t83 = c[1] * t66;
        const Q t84 = t82 + t83;
        const Q t85 = c[2] * t74;
        const Q t86 = c[3] * t76;
        const Q t87 = t85 - t86;
        const Q t88 = t84 - t87;
        io.pairs(3, 8, t88);
        const Q t89 = t84 + t87;
        io.pairs(4, 7, t89);
    }
};

}  // namespace zulg
