// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_combine, 8.
// Combine row of radix 8, rotations by the table, then a DFT.
// 33 additions, 33 subtractions, 32 multiplications; 1 constants; 18 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Combine<8> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Combine> c{};
        const V x1i = io.im(1);
        const V w1 = io.table(1);
        const V t0 = x1i * w1;
        const V x1r = io.re(1);
        const V w0 = io.table(0);
        const V t1 = x1r * w0;
        const V t2 = t1 - t0;
        const V t3 = x1i * w0;
        const V t4 = x1r * w1;
        const V t5 = t4 + t3;
        const V x2i = io.im(2);
        const V w3 = io.table(3);
        const V t6 = x2i * w3;
        const V x2r = io.re(2);
        const V w2 = io.table(2);
        const V t7 = x2r * w2;
        const V t8 = t7 - t6;
        const V t9 = x2i * w2;
        const V t10 = x2r * w3;
        const V t11 = t10 + t9;
        const V x3i = io.im(3);
        const V w5 = io.table(5);
        const V t12 = x3i * w5;
        const V x3r = io.re(3);
        const V w4 = io.table(4);
        const V t13 = x3r * w4;
        const V t14 = t13 - t12;
        const V t15 = x3i * w4;
        const V t16 = x3r * w5;
        const V t17 = t16 + t15;
        const V x4i = io.im(4);
        const V w7 = io.table(7);
        const V t18 = x4i * w7;
        const V x4r = io.re(4);
        const V w6 = io.table(6);
        const V t19 = x4r * w6;
        const V t20 = t19 - t18;
        const V t21 = x4i * w6;
        const V t22 = x4r * w7;
        const V t23 = t22 + t21;
        const V x5i = io.im(5);
        const V w9 = io.table(9);
        const V t24 = x5i * w9;
        const V x5r = io.re(5);
        const V w8 = io.table(8);
        const V t25 = x5r * w8;
        const V t26 = t25 - t24;
        const V t27 = x5i * w8;
        const V t28 = x5r * w9;
        const V t29 = t28 + t27;
        const V x6i = io.im(6);
        const V w11 = io.table(11);
        const V t30 = x6i * w11;
        const V x6r = io.re(6);
        const V w10 = io.table(10);
        const V t31 = x6r * w10;
        const V t32 = t31 - t30;
        const V t33 = x6i * w10;
        const V t34 = x6r * w11;
        const V t35 = t34 + t33;
        const V x7i = io.im(7);
        const V w13 = io.table(13);
        const V t36 = x7i * w13;
        const V x7r = io.re(7);
        const V w12 = io.table(12);
        const V t37 = x7r * w12;
        const V t38 = t37 - t36;
        const V t39 = x7i * w12;
        const V t40 = x7r * w13;
        const V t41 = t40 + t39;
        // complex block of 2
        const V x0i = io.im(0);
        const V t42 = x0i + t23;
        const V x0r = io.re(0);
        const V t43 = x0r + t20;
        const V t44 = x0i - t23;
        const V t45 = x0r - t20;
        // complex block of 2
        const V t46 = t5 + t29;
        const V t47 = t2 + t26;
        const V t48 = t5 - t29;
        const V t49 = t2 - t26;
        // complex block of 2
        const V t50 = t11 + t35;
        const V t51 = t8 + t32;
        const V t52 = t11 - t35;
        const V t53 = t8 - t32;
        // complex block of 2
        const V t54 = t17 + t41;
        const V t55 = t14 + t38;
        const V t56 = t17 - t41;
        const V t57 = t14 - t38;
        // complex block of 2
        const V t58 = t42 + t50;
        const V t59 = t43 + t51;
        const V t60 = t42 - t50;
        const V t61 = t43 - t51;
        // complex block of 2
        const V t62 = t46 + t54;
        const V t63 = t47 + t55;
        const V t64 = t46 - t54;
        const V t65 = t47 - t55;
        // complex block of 2
        const V t66 = t58 + t62;
        io.im(0, t66);
        const V t67 = t59 + t63;
        io.re(0, t67);
        const V t68 = t59 - t63;
        io.re(4, t68);
        // complex block of 2
        const V t69 = t60 + t65;
        io.im(2, t69);
        const V t70 = t61 - t64;
        io.re(2, t70);
        const V t71 = t61 + t64;
        io.re(6, t71);
        // complex block of 8
        const V t72 = c[0] * t48;
        const V t73 = c[0] * t49;
        const V t74 = t72 + t73;
        const V t75 = t73 - t72;
        const V t76 = c[0] * t56;
        const V t77 = c[0] * t57;
        const V t78 = t76 + t77;
        const V t79 = t77 - t76;
        // complex block of 2
        const V t80 = t44 + t53;
        const V t81 = t45 - t52;
        const V t82 = t44 - t53;
        const V t83 = t45 + t52;
        // complex block of 2
        const V t84 = t74 + t79;
        const V t85 = t75 - t78;
        const V t86 = t74 - t79;
        const V t87 = t75 + t78;
        // complex block of 2
        const V t88 = t80 + t84;
        io.im(1, t88);
        const V t89 = t81 + t85;
        io.re(1, t89);
        const V t90 = t81 - t85;
        io.re(5, t90);
        // complex block of 2
        const V t91 = t82 + t87;
        io.im(3, t91);
        const V t92 = t83 - t86;
        io.re(3, t92);
        const V t93 = t83 + t86;
        io.re(7, t93);
        const V t94 = t62 - t58;
        io.im(4, t94);
        const V t95 = t84 - t80;
        io.im(5, t95);
        const V t96 = t65 - t60;
        io.im(6, t96);
        const V t97 = t87 - t82;
        io.im(7, t97);
    }
};

}  // namespace zulg
