// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 15.
// Hartley transform of 15 points, form I.
// 42 additions, 36 subtractions, 34 multiplications (49 with `scale`); 6 constants; 18 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<15> {
    static constexpr int steps = 127;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x14 = io.in(14);
        const V t0 = x1 + x14;
        const V t1 = x1 - x14;
        const V x2 = io.in(2);
        const V x13 = io.in(13);
        const V t2 = x2 + x13;
        const V t3 = x2 - x13;
        const V x3 = io.in(3);
        const V x12 = io.in(12);
        const V t4 = x3 + x12;
        const V t5 = x3 - x12;
        const V x4 = io.in(4);
        const V x11 = io.in(11);
        const V t6 = x4 + x11;
        const V t7 = x4 - x11;
        const V x5 = io.in(5);
        const V x10 = io.in(10);
        const V t8 = x5 + x10;
        const V t9 = x5 - x10;
        const V x6 = io.in(6);
        const V x9 = io.in(9);
        const V t10 = x6 + x9;
        const V t11 = x6 - x9;
        const V x7 = io.in(7);
        const V x8 = io.in(8);
        const V t12 = x7 + x8;
        const V t13 = x7 - x8;
        // spectrum block of 3, multiplier 2
        const V x0 = io.in(0);
        const V t14 = t8 + x0;
        const V t15 = c[4] * t8;
        const V t16 = x0 - t15;
        const V t17 = c[5] * t9;
        const V t18 = t16 - t17;
        const V t19 = t16 + t17;
        // complex block of 3, multiplier 2
        const V t20 = t13 + t3;
        const V t21 = t12 + t2;
        const V t22 = t3 - t13;
        const V t23 = t12 - t2;
        const V t24 = t5 - t20;
        const V t25 = t21 + t4;
        const V t26 = c[4] * t20;
        const V t27 = t26 + t5;
        const V t28 = c[4] * t21;
        const V t29 = t4 - t28;
        const V t30 = c[5] * t22;
        const V t31 = c[5] * t23;
        const V t32 = t27 + t31;
        const V t33 = t29 - t30;
        const V t34 = t27 - t31;
        const V t35 = t29 + t30;
        // complex block of 3, multiplier 2
        const V t36 = t1 - t7;
        const V t37 = t6 + t0;
        const V t38 = t7 + t1;
        const V t39 = t6 - t0;
        const V t40 = t36 + t11;
        const V t41 = t37 + t10;
        const V t42 = c[4] * t36;
        const V t43 = t11 - t42;
        const V t44 = c[4] * t37;
        const V t45 = t10 - t44;
        const V t46 = c[5] * t38;
        const V t47 = c[5] * t39;
        const V t48 = t43 + t47;
        const V t49 = t45 + t46;
        const V t50 = t43 - t47;
        const V t51 = t45 - t46;
        // spectrum block of 5, multiplier 3
        const V t52 = t25 + t41;
        const V t53 = t52 + t14;
        io.out(0, t53);
        const V t54 = c[0] * t25;
        const V t55 = c[1] * t41;
        const V t56 = t54 - t55;
        const V t57 = t56 + t14;
        const V t58 = c[2] * t24;
        const V t59 = c[3] * t40;
        const V t60 = t58 + t59;
        const V t61 = t57 - t60;
        io.out(9, t61);
        const V t62 = t57 + t60;
        io.out(6, t62);
        const V t63 = c[1] * t25;
        const V t64 = t14 - t63;
        const V t65 = c[0] * t41;
        const V t66 = t64 + t65;
        const V t67 = c[3] * t24;
        const V t68 = c[2] * t40;
        const V t69 = t67 - t68;
        const V t70 = t66 - t69;
        io.out(3, t70);
        const V t71 = t66 + t69;
        io.out(12, t71);
        // spectrum block of 5, multiplier 3
        const V t72 = t35 + t51;
        const V t73 = t72 + t19;
        io.out(10, t73);
        const V t74 = c[0] * t35;
        const V t75 = c[1] * t51;
        const V t76 = t74 - t75;
        const V t77 = t76 + t19;
        const V t78 = c[2] * t34;
        const V t79 = c[3] * t50;
        const V t80 = t78 + t79;
        const V t81 = t77 - t80;
        io.out(4, t81);
        const V t82 = t77 + t80;
        io.out(1, t82);
        const V t83 = c[1] * t35;
        const V t84 = t19 - t83;
        const V t85 = c[0] * t51;
        const V t86 = t84 + t85;
        const V t87 = c[3] * t34;
        const V t88 = c[2] * t50;
        const V t89 = t87 - t88;
        const V t90 = t86 - t89;
        io.out(13, t90);
        const V t91 = t86 + t89;
        io.out(7, t91);
        // spectrum block of 5, multiplier 3
        const V t92 = t33 + t49;
        const V t93 = t92 + t18;
        io.out(5, t93);
        const V t94 = c[0] * t33;
        const V t95 = c[1] * t49;
        const V t96 = t94 - t95;
        const V t97 = t96 + t18;
        const V t98 = c[2] * t32;
        const V t99 = c[3] * t48;
        const V t100 = t98 + t99;
        const V t101 = t97 - t100;
        io.out(14, t101);
        const V t102 = t97 + t100;
        io.out(11, t102);
        const V t103 = c[1] * t33;
        const V t104 = t18 - t103;
        const V t105 = c[0] * t49;
        const V t106 = t104 + t105;
        const V t107 = c[3] * t32;
        const V t108 = c[2] * t48;
        const V t109 = t107 - t108;
        const V t110 = t106 - t109;
        io.out(8, t110);
        const V t111 = t106 + t109;
        io.out(2, t111);
    }
};

}  // namespace zulg
