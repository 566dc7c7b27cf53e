// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 11.
// Inverse DFT to 11 real points, Rader 2, 5.
// 38 additions, 30 subtractions, 60 multiplications (71 with `scale`); 15 constants; 22 values alive at most.
#include "kernel/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<11> {
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.30901699437494745;  // cos 2 pi 1/5
    static constexpr double c2 = 0.8090169943749475;  // -cos 2 pi 3/5
    static constexpr double c3 = 0.1;  // 1/10
    static constexpr double c4 = 0.5272211128649671;  // P[2] of 11
    static constexpr double c5 = 0.9510565162951535;  // sin 2 pi 1/5
    static constexpr double c6 = 0.5877852522924731;  // -sin 2 pi 3/5
    static constexpr double c7 = 0.4025393125514894;  // Q[2] of 11
    static constexpr double c8 = 0.41403241996621415;  // P[4] of 11
    static constexpr double c9 = 0.5182443007085755;  // Q[4] of 11
    static constexpr double c10 = 0.4262349587304204;  // Q[3] of 11
    static constexpr double c11 = 0.5082556049431003;  // -P[3] of 11
    static constexpr double c12 = 0.635213297150478;  // -Q[1] of 11
    static constexpr double c13 = 0.19106037559687397;  // -P[1] of 11
    static constexpr double c14 = 0.33166247903553997;  // -beta of 11

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = c0 * x1r;
        const V x2r = io.re(2);
        const V t1 = c0 * x2r;
        const V x5r = io.re(5);
        const V t2 = c0 * x5r;
        // real block of 5
        const V t3 = t1 + t2;
        const V t4 = c1 * t3;
        const V t5 = c2 * t3;
        const V t6 = t1 - t2;
        // doubled bins
        const V x3r = io.re(3);
        const V t7 = c0 * x3r;
        const V x4r = io.re(4);
        const V t8 = c0 * x4r;
        // real block of 5
        const V t9 = t7 + t8;
        const V t10 = c2 * t9;
        const V t11 = t7 - t8;
        const V t12 = t3 + t9;
        const V t13 = t12 + t0;
        // spectrum block of 11
        const V t14 = c3 * t13;
        // real block of 5
        const V t15 = t4 - t10;
        const V t16 = t15 + t0;
        // spectrum block of 11
        const V t17 = c4 * t16;
        // real block of 5
        const V t18 = c5 * t6;
        const V t19 = c6 * t11;
        const V t20 = t19 - t18;
        // spectrum block of 11
        const V t21 = c7 * t20;
        const V t22 = c4 * t20;
        // real block of 5
        const V t23 = t0 - t5;
        const V t24 = c1 * t9;
        const V t25 = t23 + t24;
        // spectrum block of 11
        const V t26 = c8 * t25;
        // real block of 5
        const V t27 = c6 * t6;
        const V t28 = c5 * t11;
        const V t29 = t27 + t28;
        // spectrum block of 11
        const V t30 = c9 * t29;
        const V t31 = c8 * t29;
        // doubled bins
        const V x1i = io.im(1);
        const V t32 = c0 * x1i;
        const V x2i = io.im(2);
        const V t33 = c0 * x2i;
        const V x5i = io.im(5);
        const V t34 = c0 * x5i;
        // real block of 5
        const V t35 = t34 - t33;
        const V t36 = c1 * t35;
        const V t37 = c2 * t35;
        const V t38 = t33 + t34;
        // doubled bins
        const V x3i = io.im(3);
        const V t39 = c0 * x3i;
        const V x4i = io.im(4);
        const V t40 = c0 * x4i;
        // real block of 5
        const V t41 = t39 + t40;
        const V t42 = c2 * t41;
        const V t43 = t39 - t40;
        const V t44 = t35 + t41;
        const V t45 = t44 + t32;
        const V t46 = t36 - t42;
        const V t47 = t46 + t32;
        // spectrum block of 11
        const V t48 = c10 * t47;
        // real block of 5
        const V t49 = c5 * t38;
        const V t50 = c6 * t43;
        const V t51 = t49 + t50;
        // spectrum block of 11
        const V t52 = c11 * t51;
        const V t53 = c10 * t51;
        // real block of 5
        const V t54 = t32 - t37;
        const V t55 = c1 * t41;
        const V t56 = t54 + t55;
        // spectrum block of 11
        const V t57 = c12 * t56;
        // real block of 5
        const V t58 = c6 * t38;
        const V t59 = c5 * t43;
        const V t60 = t58 - t59;
        // spectrum block of 11
        const V t61 = c13 * t60;
        const V t62 = c12 * t60;
        const V x0r = io.re(0);
        const V t63 = x0r - t14;
        const V t64 = c14 * t45;
        // spectrum block of 2
        const V t65 = t63 - t64;
        const V t66 = t63 + t64;
        // spectrum block of 11
        const V t67 = t57 + t61;
        const V t68 = t26 + t30;
        // complex block of 2
        const V t69 = t68 - t67;
        const V t70 = t68 + t67;
        // spectrum block of 5, multiplier 2
        const V t71 = c2 * t69;
        const V t72 = c1 * t69;
        // spectrum block of 5, multiplier 2
        const V t73 = c2 * t70;
        const V t74 = c1 * t70;
        // spectrum block of 11
        const V t75 = c13 * t56;
        const V t76 = t62 - t75;
        const V t77 = c9 * t25;
        const V t78 = t77 - t31;
        // complex block of 2
        const V t79 = t78 - t76;
        const V t80 = t78 + t76;
        // spectrum block of 11
        const V t81 = t17 - t21;
        const V t82 = t48 - t52;
        // complex block of 2
        const V t83 = t81 + t82;
        const V t84 = t81 - t82;
        // spectrum block of 5, multiplier 2
        const V t85 = c1 * t83;
        const V t86 = c2 * t83;
        // spectrum block of 5, multiplier 2
        const V t87 = c1 * t84;
        const V t88 = c2 * t84;
        // spectrum block of 11
        const V t89 = c7 * t16;
        const V t90 = t22 + t89;
        const V t91 = c11 * t47;
        const V t92 = t53 + t91;
        // complex block of 2
        const V t93 = t90 + t92;
        const V t94 = t90 - t92;
        // spectrum block of 5, multiplier 2
        const V t95 = t83 + t69;
        const V t96 = t95 + t65;
        io.out(1, t96);
        const V t97 = t85 - t71;
        const V t98 = t97 + t65;
        const V t99 = c5 * t93;
        const V t100 = c6 * t79;
        const V t101 = t99 + t100;
        const V t102 = t98 - t101;
        io.out(5, t102);
        const V t103 = t98 + t101;
        io.out(9, t103);
        const V t104 = t65 - t86;
        const V t105 = t104 + t72;
        const V t106 = c6 * t93;
        const V t107 = c5 * t79;
        const V t108 = t106 - t107;
        const V t109 = t105 - t108;
        io.out(3, t109);
        const V t110 = t105 + t108;
        io.out(4, t110);
        // spectrum block of 5, multiplier 2
        const V t111 = t84 + t70;
        const V t112 = t111 + t66;
        io.out(10, t112);
        const V t113 = t87 - t73;
        const V t114 = t113 + t66;
        const V t115 = c5 * t94;
        const V t116 = c6 * t80;
        const V t117 = t115 + t116;
        const V t118 = t114 - t117;
        io.out(6, t118);
        const V t119 = t114 + t117;
        io.out(2, t119);
        const V t120 = t66 - t88;
        const V t121 = t120 + t74;
        const V t122 = c6 * t94;
        const V t123 = c5 * t80;
        const V t124 = t122 - t123;
        const V t125 = t121 - t124;
        io.out(8, t125);
        const V t126 = t121 + t124;
        io.out(7, t126);
        // spectrum block of 11
        const V t127 = x0r + t13;
        io.out(0, t127);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 11, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 11, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 11, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 11, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 11, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 11, double>(const double*, double*, std::int32_t);

}  // namespace zulg
