// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 24.
// Inverse DFT to 24 real points, prime-factor 8, 3.
// 52 additions, 52 subtractions, 44 multiplications (68 with `scale`); 4 constants; 26 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<24> {
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.7071067811865476;  // cos 2 pi 1/8
    static constexpr double c2 = 0.5;  // -cos 2 pi 1/3
    static constexpr double c3 = 0.8660254037844386;  // sin 2 pi 1/3

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = c0 * x1r;
        const V x1i = io.im(1);
        const V t1 = c0 * x1i;
        const V x2r = io.re(2);
        const V t2 = c0 * x2r;
        const V x2i = io.im(2);
        const V t3 = c0 * x2i;
        const V x3r = io.re(3);
        const V t4 = c0 * x3r;
        const V x3i = io.im(3);
        const V t5 = c0 * x3i;
        const V x4r = io.re(4);
        const V t6 = c0 * x4r;
        const V x4i = io.im(4);
        const V t7 = c0 * x4i;
        const V x5r = io.re(5);
        const V t8 = c0 * x5r;
        const V x5i = io.im(5);
        const V t9 = c0 * x5i;
        const V x6r = io.re(6);
        const V t10 = c0 * x6r;
        const V x6i = io.im(6);
        const V t11 = c0 * x6i;
        const V x7r = io.re(7);
        const V t12 = c0 * x7r;
        const V x7i = io.im(7);
        const V t13 = c0 * x7i;
        const V x8r = io.re(8);
        const V t14 = c0 * x8r;
        const V x8i = io.im(8);
        const V t15 = c0 * x8i;
        const V x9r = io.re(9);
        const V t16 = c0 * x9r;
        const V x9i = io.im(9);
        const V t17 = c0 * x9i;
        const V x10r = io.re(10);
        const V t18 = c0 * x10r;
        const V x10i = io.im(10);
        const V t19 = c0 * x10i;
        const V x11r = io.re(11);
        const V t20 = c0 * x11r;
        const V x11i = io.im(11);
        const V t21 = c0 * x11i;
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x12r = io.re(12);
        const V t22 = x0r + x12r;
        const V t23 = x0r - x12r;
        // spectrum block of 2
        const V t24 = t22 + t10;
        const V t25 = t22 - t10;
        // spectrum block of 2
        const V t26 = t23 + t11;
        const V t27 = t23 - t11;
        // mirrored skew block of 4, multiplier 3
        const V t28 = t16 - t4;
        const V t29 = c1 * t28;
        const V t30 = t17 + t5;
        const V t31 = c1 * t30;
        const V t32 = t16 + t4;
        const V t33 = t29 - t31;
        const V t34 = t17 - t5;
        const V t35 = t29 + t31;
        // spectrum block of 2
        const V t36 = t24 + t32;
        const V t37 = t24 - t32;
        // spectrum block of 2
        const V t38 = t26 + t33;
        const V t39 = t26 - t33;
        // spectrum block of 2
        const V t40 = t25 - t34;
        const V t41 = t25 + t34;
        // spectrum block of 2
        const V t42 = t27 - t35;
        const V t43 = t27 + t35;
        // complex block of 2
        const V t44 = t15 - t7;
        const V t45 = t14 + t6;
        const V t46 = t15 + t7;
        const V t47 = t14 - t6;
        // complex block of 2
        const V t48 = t21 - t1;
        const V t49 = t20 + t0;
        const V t50 = t21 + t1;
        const V t51 = t20 - t0;
        // complex block of 2
        const V t52 = t3 - t19;
        const V t53 = t18 + t2;
        const V t54 = t19 + t3;
        const V t55 = t18 - t2;
        // complex block of 2
        const V t56 = t9 - t13;
        const V t57 = t12 + t8;
        const V t58 = t13 + t9;
        const V t59 = t12 - t8;
        // complex block of 2
        const V t60 = t44 + t52;
        const V t61 = t45 + t53;
        const V t62 = t44 - t52;
        const V t63 = t45 - t53;
        // complex block of 2
        const V t64 = t48 + t56;
        const V t65 = t49 + t57;
        const V t66 = t48 - t56;
        const V t67 = t49 - t57;
        // complex block of 2
        const V t68 = t60 + t64;
        const V t69 = t61 + t65;
        const V t70 = t60 - t64;
        const V t71 = t61 - t65;
        // complex block of 2
        const V t72 = t62 - t67;
        const V t73 = t63 + t66;
        const V t74 = t62 + t67;
        const V t75 = t63 - t66;
        // complex block of 8, multiplier 3
        const V t76 = c1 * t50;
        const V t77 = c1 * t51;
        const V t78 = t76 + t77;
        const V t79 = t77 - t76;
        const V t80 = c1 * t58;
        const V t81 = c1 * t59;
        const V t82 = t81 - t80;
        const V t83 = t81 + t80;
        // complex block of 2
        const V t84 = t46 - t55;
        const V t85 = t47 - t54;
        const V t86 = t46 + t55;
        const V t87 = t47 + t54;
        // complex block of 2
        const V t88 = t79 + t82;
        const V t89 = t83 - t78;
        const V t90 = t79 - t82;
        const V t91 = t78 + t83;
        // complex block of 2
        const V t92 = t84 + t88;
        const V t93 = t85 + t89;
        const V t94 = t84 - t88;
        const V t95 = t85 - t89;
        // complex block of 2
        const V t96 = t86 + t91;
        const V t97 = t87 + t90;
        const V t98 = t86 - t91;
        const V t99 = t87 - t90;
        // spectrum block of 3, multiplier 2
        const V t100 = t69 + t36;
        io.out(0, t100);
        const V t101 = c2 * t69;
        const V t102 = t36 - t101;
        const V t103 = c3 * t68;
        const V t104 = t102 - t103;
        io.out(16, t104);
        const V t105 = t102 + t103;
        io.out(8, t105);
        // spectrum block of 3, multiplier 2
        const V t106 = t93 + t38;
        io.out(3, t106);
        const V t107 = c2 * t93;
        const V t108 = t38 - t107;
        const V t109 = c3 * t92;
        const V t110 = t108 - t109;
        io.out(19, t110);
        const V t111 = t108 + t109;
        io.out(11, t111);
        // spectrum block of 3, multiplier 2
        const V t112 = t73 + t40;
        io.out(6, t112);
        const V t113 = c2 * t73;
        const V t114 = t40 - t113;
        const V t115 = c3 * t72;
        const V t116 = t114 - t115;
        io.out(22, t116);
        const V t117 = t114 + t115;
        io.out(14, t117);
        // spectrum block of 3, multiplier 2
        const V t118 = t97 + t42;
        io.out(9, t118);
        const V t119 = c2 * t97;
        const V t120 = t42 - t119;
        const V t121 = c3 * t96;
        const V t122 = t120 - t121;
        io.out(1, t122);
        const V t123 = t120 + t121;
        io.out(17, t123);
        // spectrum block of 3, multiplier 2
        const V t124 = t71 + t37;
        io.out(12, t124);
        const V t125 = c2 * t71;
        const V t126 = t37 - t125;
        const V t127 = c3 * t70;
        const V t128 = t126 - t127;
        io.out(4, t128);
        const V t129 = t126 + t127;
        io.out(20, t129);
        // spectrum block of 3, multiplier 2
        const V t130 = t95 + t39;
        io.out(15, t130);
        const V t131 = c2 * t95;
        const V t132 = t39 - t131;
        const V t133 = c3 * t94;
        const V t134 = t132 - t133;
        io.out(7, t134);
        const V t135 = t132 + t133;
        io.out(23, t135);
        // spectrum block of 3, multiplier 2
        const V t136 = t75 + t41;
        io.out(18, t136);
        const V t137 = c2 * t75;
        const V t138 = t41 - t137;
        const V t139 = c3 * t74;
        const V t140 = t138 - t139;
        io.out(10, t140);
        const V t141 = t138 + t139;
        io.out(2, t141);
        // spectrum block of 3, multiplier 2
        const V t142 = t99 + t43;
        io.out(21, t142);
        const V t143 = c2 * t99;
        const V t144 = t43 - t143;
        const V t145 = c3 * t98;
        const V t146 = t144 - t145;
        io.out(13, t146);
        const V t147 = t144 + t145;
        io.out(5, t147);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 24, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 24, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 24, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 24, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 24, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 24, double>(const double*, double*, std::int32_t);

}  // namespace zulg
