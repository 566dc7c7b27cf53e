// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 18.
// Hartley transform of 18 points, form I; two lanes to a register.
// 25 sums, 25 differences, 18 products of registers, which do the 152 steps of the graph, those with
// `scale` included; 17 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<18> {
    static constexpr int steps = 152;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.17364817766693036,  // c[2]: cos 2 pi 7/9
        0.984807753012208,  // c[3]: -sin 2 pi 7/9
        0.9396926207859084,  // c[4]: -cos 2 pi 5/9
        0.3420201433256687,  // c[5]: -sin 2 pi 5/9
        0.1503837331804353,  // c[6]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[7]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[9]: sin 2 pi 1/3 times -cos 2 pi 5/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x17_16 = io.in(17, 16);
        // input stage
        const P t0 = x1_2 + x17_16;
        const P t1 = x1_2 - x17_16;
        const P x3_4 = io.in(3, 4);
        const P x15_14 = io.in(15, 14);
        const P t2 = x3_4 + x15_14;
        const P t3 = x3_4 - x15_14;
        const P x5_6 = io.in(5, 6);
        const P x13_12 = io.in(13, 12);
        const P t4 = x5_6 + x13_12;
        const P t5 = x5_6 - x13_12;
        const P x7_8 = io.in(7, 8);
        const P x11_10 = io.in(11, 10);
        const P t6 = x7_8 + x11_10;
        const P t7 = x7_8 - x11_10;
        const V x0 = io.in(0);
        const V x9 = io.in(9);
        // spectrum block of 2
        const V t8 = x0 + x9;
        const V t9 = x0 - x9;
        const P t10 = shuffled<1, 3>(t0, t1);
        const P t11 = shuffled<0, 2>(t6, t7);
        const P t12 = flipped<0, 1>(t11);
        // complex block of 2
        const P t13 = t10 + t12;
        const P t14 = t10 - t12;
        const P t15 = shuffled<1, 3>(t2, t3);
        const P t16 = shuffled<0, 2>(t4, t5);
        const P t17 = flipped<0, 1>(t16);
        // complex block of 2
        const P t18 = t15 + t17;
        const P t19 = t15 - t17;
        const P t20 = shuffled<1, 3>(t4, t5);
        const P t21 = shuffled<0, 2>(t2, t3);
        const P t22 = flipped<0, 1>(t21);
        // complex block of 2
        const P t23 = t20 + t22;
        const P t24 = t20 - t22;
        const P t25 = shuffled<1, 3>(t6, t7);
        const P t26 = shuffled<0, 2>(t0, t1);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t25 + t27;
        const P t29 = t25 - t27;
        const P t30 = shuffled<0, 2>(t23, t24);
        const P t31 = joined(t8, t9);
        // spectrum block of 3, multiplier 2
        const P t32 = t30 + t31;
        const P t33 = c[0] * t30;
        const P t34 = t31 - t33;
        const P t35 = shuffled<1, 3>(t23, t24);
        const P t36 = c[1] * t35;
        const P t37 = t34 - t36;
        const P t38 = t34 + t36;
        const P t39 = shuffled<1, 3>(t28, t29);
        const P t40 = shuffled<1, 3>(t18, t19);
        // complex block of 3, multiplier 2
        const P t41 = t39 - t40;
        const P t42 = shuffled<0, 2>(t28, t29);
        const P t43 = shuffled<0, 2>(t18, t19);
        const P t44 = t42 + t43;
        const P t45 = t39 + t40;
        const P t46 = t42 - t43;
        const P t47 = shuffled<1, 3>(t13, t14);
        const P t48 = t41 + t47;
        const P t49 = shuffled<0, 2>(t13, t14);
        const P t50 = t44 + t49;
        const P t51 = c[0] * t41;
        const P t52 = t47 - t51;
        const P t53 = c[0] * t44;
        const P t54 = t49 - t53;
        const P t55 = c[1] * t46;
        const P t56 = t52 + t55;
        const P t57 = c[1] * t45;
        const P t58 = t54 - t57;
        const P t59 = t52 - t55;
        const P t60 = t54 + t57;
        // spectrum block of 9, multiplier 2
        const P t61 = c[2] * t60;
        const P t62 = c[3] * t59;
        const P t63 = t61 - t62;
        const P t64 = c[4] * t58;
        const P t65 = c[5] * t56;
        const P t66 = t64 + t65;
        // spectrum block of 3, multiplier 2
        const P t67 = t50 + t32;
        io.out(0, 9, t67);
        const P t68 = c[0] * t50;
        const P t69 = t32 - t68;
        const P t70 = c[1] * t48;
        const P t71 = t69 - t70;
        io.out(6, 15, t71);
        const P t72 = t69 + t70;
        io.out(12, 3, t72);
        // spectrum block of 3, multiplier 2
        const P t73 = t63 + t38;
        io.out(16, 7, t73);
        const P t74 = c[0] * t63;
        const P t75 = t38 - t74;
        const P t76 = c[6] * t59;
        const P t77 = c[7] * t60;
        const P t78 = t76 + t77;
        const P t79 = t75 - t78;
        io.out(4, 13, t79);
        const P t80 = t75 + t78;
        io.out(10, 1, t80);
        // spectrum block of 3, multiplier 2
        const P t81 = t37 - t66;
        io.out(14, 5, t81);
        const P t82 = c[0] * t66;
        const P t83 = t82 + t37;
        const P t84 = c[8] * t58;
        const P t85 = c[9] * t56;
        const P t86 = t84 - t85;
        const P t87 = t83 - t86;
        io.out(2, 11, t87);
        const P t88 = t83 + t86;
        io.out(8, 17, t88);
    }
};

}  // namespace zulg
