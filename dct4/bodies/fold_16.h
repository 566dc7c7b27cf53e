// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_fold, 16.
// Skew transform of 16 folded points, decimation in time.
// 34 additions, 34 subtractions, 32 multiplications; 7 constants; 18 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Fold<16> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.19509032201612828,  // c[1]: -sin 2 pi 31/32
        0.9807852804032304,  // c[2]: cos 2 pi 31/32
        0.3826834323650898,  // c[3]: -sin 2 pi 30/32
        0.9238795325112867,  // c[4]: cos 2 pi 30/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Fold> c{};
        // part 0 of 16
        const V x4 = io.in(4);
        const V x12 = io.in(12);
        const V t0 = x4 + x12;
        const V t1 = c[0] * t0;
        const V t2 = x4 - x12;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x8 = io.in(8);
        const V t5 = t3 - x8;
        const V t6 = x0 - t1;
        const V t7 = t3 + x8;
        // part 1 of 16
        const V x5 = io.in(5);
        const V x13 = io.in(13);
        const V t8 = x5 + x13;
        const V t9 = c[0] * t8;
        const V t10 = x5 - x13;
        const V t11 = c[0] * t10;
        const V x1 = io.in(1);
        const V t12 = x1 + t9;
        const V x9 = io.in(9);
        const V t13 = t11 - x9;
        const V t14 = x1 - t9;
        const V t15 = t11 + x9;
        // part 2 of 16
        const V x6 = io.in(6);
        const V x14 = io.in(14);
        const V t16 = x6 + x14;
        const V t17 = c[0] * t16;
        const V t18 = x6 - x14;
        const V t19 = c[0] * t18;
        const V x2 = io.in(2);
        const V t20 = x2 + t17;
        const V x10 = io.in(10);
        const V t21 = t19 - x10;
        const V t22 = x2 - t17;
        const V t23 = t19 + x10;
        // part 3 of 16
        const V x7 = io.in(7);
        const V x15 = io.in(15);
        const V t24 = x7 + x15;
        const V t25 = c[0] * t24;
        const V t26 = x7 - x15;
        const V t27 = c[0] * t26;
        const V x3 = io.in(3);
        const V t28 = x3 + t25;
        const V x11 = io.in(11);
        const V t29 = t27 - x11;
        const V t30 = x3 - t25;
        const V t31 = t27 + x11;
        // row 0 of 16
        const V t32 = c[1] * t13;
        const V t33 = c[2] * t12;
        const V t34 = t33 - t32;
        const V t35 = c[1] * t12;
        const V t36 = c[2] * t13;
        const V t37 = t36 + t35;
        const V t38 = c[3] * t21;
        const V t39 = c[4] * t20;
        const V t40 = t39 - t38;
        const V t41 = c[3] * t20;
        const V t42 = c[4] * t21;
        const V t43 = t42 + t41;
        const V t44 = c[5] * t29;
        const V t45 = c[6] * t28;
        const V t46 = t45 - t44;
        const V t47 = c[5] * t28;
        const V t48 = c[6] * t29;
        const V t49 = t48 + t47;
        // complex block of 2
        const V t50 = t5 + t43;
        const V t51 = t4 + t40;
        const V t52 = t5 - t43;
        const V t53 = t4 - t40;
        // complex block of 2
        const V t54 = t37 + t49;
        const V t55 = t34 + t46;
        const V t56 = t37 - t49;
        const V t57 = t34 - t46;
        // complex block of 2
        const V t58 = t50 + t54;
        io.im(0, t58);
        const V t59 = t51 + t55;
        io.re(0, t59);
        const V t60 = t51 - t55;
        io.re(7, t60);
        // complex block of 2
        const V t61 = t52 + t57;
        io.im(4, t61);
        const V t62 = t53 - t56;
        io.re(4, t62);
        const V t63 = t53 + t56;
        io.re(3, t63);
        // row 1 of 16
        const V t64 = c[5] * t15;
        const V t65 = c[6] * t14;
        const V t66 = t65 - t64;
        const V t67 = c[5] * t14;
        const V t68 = c[6] * t15;
        const V t69 = t68 + t67;
        const V t70 = c[4] * t23;
        const V t71 = c[3] * t22;
        const V t72 = t71 - t70;
        const V t73 = c[4] * t22;
        const V t74 = c[3] * t23;
        const V t75 = t74 + t73;
        const V t76 = c[2] * t31;
        const V t77 = c[1] * t30;
        const V t78 = t77 + t76;
        const V t79 = c[2] * t30;
        const V t80 = c[1] * t31;
        const V t81 = t79 - t80;
        // complex block of 2
        const V t82 = t7 + t75;
        const V t83 = t6 + t72;
        const V t84 = t7 - t75;
        const V t85 = t6 - t72;
        // complex block of 2
        const V t86 = t69 + t81;
        const V t87 = t66 - t78;
        const V t88 = t69 - t81;
        const V t89 = t66 + t78;
        // complex block of 2
        const V t90 = t82 + t86;
        io.im(1, t90);
        const V t91 = t83 + t87;
        io.re(1, t91);
        const V t92 = t83 - t87;
        io.re(6, t92);
        // complex block of 2
        const V t93 = t84 + t89;
        io.im(5, t93);
        const V t94 = t85 - t88;
        io.re(5, t94);
        const V t95 = t85 + t88;
        io.re(2, t95);
        const V t96 = t89 - t84;
        io.im(2, t96);
        const V t97 = t57 - t52;
        io.im(3, t97);
        const V t98 = t86 - t82;
        io.im(6, t98);
        const V t99 = t54 - t50;
        io.im(7, t99);
    }
};

}  // namespace zulg
