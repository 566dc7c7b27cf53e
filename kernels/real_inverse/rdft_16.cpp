// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 16.
// Inverse DFT to 16 real points, twiddled 4, 4.
// 29 additions, 29 subtractions, 26 multiplications (42 with `scale`); 4 constants; 18 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<16> {
    static constexpr double inverseRoot = 0.25;  // 1/sqrt(16), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.3826834323650898;  // -sin 2 pi 15/16
    static constexpr double c2 = 0.9238795325112867;  // cos 2 pi 15/16
    static constexpr double c3 = 0.7071067811865476;  // cos 2 pi 1/8

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
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x8r = io.re(8);
        const V t14 = x0r + x8r;
        const V t15 = x0r - x8r;
        // spectrum block of 2
        const V t16 = t14 + t6;
        const V t17 = t14 - t6;
        // spectrum block of 2
        const V t18 = t15 - t7;
        const V t19 = t15 + t7;
        // complex block of 2
        const V t20 = t1 - t13;
        const V t21 = t0 + t12;
        const V t22 = t1 + t13;
        const V t23 = t0 - t12;
        // complex block of 2
        const V t24 = t9 - t5;
        const V t25 = t8 + t4;
        const V t26 = t9 + t5;
        const V t27 = t8 - t4;
        // complex block of 2
        const V t28 = t20 + t24;
        const V t29 = t21 + t25;
        const V t30 = t20 - t24;
        const V t31 = t21 - t25;
        // complex block of 2
        const V t32 = t22 + t27;
        const V t33 = t23 - t26;
        const V t34 = t22 - t27;
        const V t35 = t23 + t26;
        // spectrum block of 16
        const V t36 = c1 * t32;
        const V t37 = c2 * t33;
        const V t38 = t37 - t36;
        const V t39 = c1 * t33;
        const V t40 = c2 * t32;
        const V t41 = t40 + t39;
        const V t42 = c3 * t31;
        const V t43 = c3 * t30;
        const V t44 = t42 + t43;
        const V t45 = t43 - t42;
        const V t46 = c2 * t34;
        const V t47 = c1 * t35;
        const V t48 = t47 - t46;
        const V t49 = c2 * t35;
        const V t50 = c1 * t34;
        const V t51 = t50 + t49;
        // mirrored skew block of 4
        const V t52 = t2 - t10;
        const V t53 = c3 * t52;
        const V t54 = t3 + t11;
        const V t55 = c3 * t54;
        const V t56 = t2 + t10;
        const V t57 = t53 - t55;
        const V t58 = t3 - t11;
        const V t59 = t53 + t55;
        // spectrum block of 2
        const V t60 = t16 + t56;
        const V t61 = t16 - t56;
        // spectrum block of 2
        const V t62 = t60 + t29;
        io.out(0, t62);
        const V t63 = t60 - t29;
        io.out(8, t63);
        // spectrum block of 2
        const V t64 = t61 - t28;
        io.out(4, t64);
        const V t65 = t61 + t28;
        io.out(12, t65);
        // spectrum block of 2
        const V t66 = t18 + t57;
        const V t67 = t18 - t57;
        // spectrum block of 2
        const V t68 = t66 + t38;
        io.out(1, t68);
        const V t69 = t66 - t38;
        io.out(9, t69);
        // spectrum block of 2
        const V t70 = t67 - t41;
        io.out(5, t70);
        const V t71 = t67 + t41;
        io.out(13, t71);
        // spectrum block of 2
        const V t72 = t17 - t58;
        const V t73 = t17 + t58;
        // spectrum block of 2
        const V t74 = t72 - t45;
        io.out(2, t74);
        const V t75 = t72 + t45;
        io.out(10, t75);
        // spectrum block of 2
        const V t76 = t73 - t44;
        io.out(6, t76);
        const V t77 = t73 + t44;
        io.out(14, t77);
        // spectrum block of 2
        const V t78 = t19 - t59;
        const V t79 = t19 + t59;
        // spectrum block of 2
        const V t80 = t78 + t48;
        io.out(3, t80);
        const V t81 = t78 - t48;
        io.out(11, t81);
        // spectrum block of 2
        const V t82 = t79 - t51;
        io.out(7, t82);
        const V t83 = t79 + t51;
        io.out(15, t83);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 16, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 16, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 16, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 16, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 16, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 16, double>(const double*, double*, std::int32_t);

}  // namespace zulg
