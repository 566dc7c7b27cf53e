// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 28.
// Inverse DFT to 28 real points, prime-factor 4, 7.
// 75 additions, 75 subtractions, 98 multiplications (126 with `scale`); 7 constants; 31 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<28> {
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.6234898018587335;  // cos 2 pi 1/7
    static constexpr double c2 = 0.2225209339563144;  // -cos 2 pi 2/7
    static constexpr double c3 = 0.9009688679024191;  // -cos 2 pi 3/7
    static constexpr double c4 = 0.7818314824680298;  // sin 2 pi 1/7
    static constexpr double c5 = 0.9749279121818236;  // sin 2 pi 2/7
    static constexpr double c6 = 0.4338837391175581;  // sin 2 pi 3/7

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
        const V x12r = io.re(12);
        const V t22 = c0 * x12r;
        const V x12i = io.im(12);
        const V t23 = c0 * x12i;
        const V x13r = io.re(13);
        const V t24 = c0 * x13r;
        const V x13i = io.im(13);
        const V t25 = c0 * x13i;
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x14r = io.re(14);
        const V t26 = x0r + x14r;
        const V t27 = x0r - x14r;
        // spectrum block of 2
        const V t28 = t26 + t12;
        const V t29 = t26 - t12;
        // spectrum block of 2
        const V t30 = t27 + t13;
        const V t31 = t27 - t13;
        // complex block of 2
        const V t32 = t7 - t19;
        const V t33 = t6 + t18;
        const V t34 = t7 + t19;
        const V t35 = t6 - t18;
        // complex block of 2
        const V t36 = t21 - t5;
        const V t37 = t20 + t4;
        const V t38 = t21 + t5;
        const V t39 = t20 - t4;
        // complex block of 2
        const V t40 = t32 + t36;
        const V t41 = t33 + t37;
        const V t42 = t32 - t36;
        const V t43 = t33 - t37;
        // complex block of 2
        const V t44 = t34 - t39;
        const V t45 = t35 + t38;
        const V t46 = t34 + t39;
        const V t47 = t35 - t38;
        // complex block of 2
        const V t48 = t15 - t11;
        const V t49 = t14 + t10;
        const V t50 = t15 + t11;
        const V t51 = t14 - t10;
        // complex block of 2
        const V t52 = t1 - t25;
        const V t53 = t24 + t0;
        const V t54 = t25 + t1;
        const V t55 = t24 - t0;
        // complex block of 2
        const V t56 = t48 + t52;
        const V t57 = t49 + t53;
        const V t58 = t48 - t52;
        const V t59 = t49 - t53;
        // complex block of 2
        const V t60 = t50 - t55;
        const V t61 = t51 - t54;
        const V t62 = t50 + t55;
        const V t63 = t51 + t54;
        // complex block of 2
        const V t64 = t23 - t3;
        const V t65 = t22 + t2;
        const V t66 = t23 + t3;
        const V t67 = t22 - t2;
        // complex block of 2
        const V t68 = t9 - t17;
        const V t69 = t16 + t8;
        const V t70 = t17 + t9;
        const V t71 = t16 - t8;
        // complex block of 2
        const V t72 = t64 + t68;
        const V t73 = t65 + t69;
        const V t74 = t64 - t68;
        const V t75 = t65 - t69;
        // complex block of 2
        const V t76 = t66 - t71;
        const V t77 = t67 - t70;
        const V t78 = t66 + t71;
        const V t79 = t67 + t70;
        // spectrum block of 7, multiplier 4
        const V t80 = t41 + t57;
        const V t81 = t80 + t73;
        const V t82 = t81 + t28;
        io.out(0, t82);
        const V t83 = c1 * t41;
        const V t84 = c2 * t57;
        const V t85 = t83 - t84;
        const V t86 = c3 * t73;
        const V t87 = t85 - t86;
        const V t88 = t87 + t28;
        const V t89 = c4 * t40;
        const V t90 = c5 * t56;
        const V t91 = t89 + t90;
        const V t92 = c6 * t72;
        const V t93 = t91 + t92;
        const V t94 = t88 - t93;
        io.out(8, t94);
        const V t95 = t88 + t93;
        io.out(20, t95);
        const V t96 = c2 * t41;
        const V t97 = t28 - t96;
        const V t98 = c3 * t57;
        const V t99 = t97 - t98;
        const V t100 = c1 * t73;
        const V t101 = t99 + t100;
        const V t102 = c5 * t40;
        const V t103 = c6 * t56;
        const V t104 = t102 - t103;
        const V t105 = c4 * t72;
        const V t106 = t104 - t105;
        const V t107 = t101 - t106;
        io.out(16, t107);
        const V t108 = t101 + t106;
        io.out(12, t108);
        const V t109 = c3 * t41;
        const V t110 = t28 - t109;
        const V t111 = c1 * t57;
        const V t112 = t110 + t111;
        const V t113 = c2 * t73;
        const V t114 = t112 - t113;
        const V t115 = c6 * t40;
        const V t116 = c4 * t56;
        const V t117 = t115 - t116;
        const V t118 = c5 * t72;
        const V t119 = t117 + t118;
        const V t120 = t114 - t119;
        io.out(24, t120);
        const V t121 = t114 + t119;
        io.out(4, t121);
        // spectrum block of 7, multiplier 4
        const V t122 = t45 + t61;
        const V t123 = t122 + t77;
        const V t124 = t123 + t30;
        io.out(7, t124);
        const V t125 = c1 * t45;
        const V t126 = c2 * t61;
        const V t127 = t125 - t126;
        const V t128 = c3 * t77;
        const V t129 = t127 - t128;
        const V t130 = t129 + t30;
        const V t131 = c4 * t44;
        const V t132 = c5 * t60;
        const V t133 = t131 + t132;
        const V t134 = c6 * t76;
        const V t135 = t133 + t134;
        const V t136 = t130 - t135;
        io.out(15, t136);
        const V t137 = t130 + t135;
        io.out(27, t137);
        const V t138 = c2 * t45;
        const V t139 = t30 - t138;
        const V t140 = c3 * t61;
        const V t141 = t139 - t140;
        const V t142 = c1 * t77;
        const V t143 = t141 + t142;
        const V t144 = c5 * t44;
        const V t145 = c6 * t60;
        const V t146 = t144 - t145;
        const V t147 = c4 * t76;
        const V t148 = t146 - t147;
        const V t149 = t143 - t148;
        io.out(23, t149);
        const V t150 = t143 + t148;
        io.out(19, t150);
        const V t151 = c3 * t45;
        const V t152 = t30 - t151;
        const V t153 = c1 * t61;
        const V t154 = t152 + t153;
        const V t155 = c2 * t77;
        const V t156 = t154 - t155;
        const V t157 = c6 * t44;
        const V t158 = c4 * t60;
        const V t159 = t157 - t158;
        const V t160 = c5 * t76;
        const V t161 = t159 + t160;
        const V t162 = t156 - t161;
        io.out(3, t162);
        const V t163 = t156 + t161;
        io.out(11, t163);
        // spectrum block of 7, multiplier 4
        const V t164 = t43 + t59;
        const V t165 = t164 + t75;
        const V t166 = t165 + t29;
        io.out(14, t166);
        const V t167 = c1 * t43;
        const V t168 = c2 * t59;
        const V t169 = t167 - t168;
        const V t170 = c3 * t75;
        const V t171 = t169 - t170;
        const V t172 = t171 + t29;
        const V t173 = c4 * t42;
        const V t174 = c5 * t58;
        const V t175 = t173 + t174;
        const V t176 = c6 * t74;
        const V t177 = t175 + t176;
        const V t178 = t172 - t177;
        io.out(22, t178);
        const V t179 = t172 + t177;
        io.out(6, t179);
        const V t180 = c2 * t43;
        const V t181 = t29 - t180;
        const V t182 = c3 * t59;
        const V t183 = t181 - t182;
        const V t184 = c1 * t75;
        const V t185 = t183 + t184;
        const V t186 = c5 * t42;
        const V t187 = c6 * t58;
        const V t188 = t186 - t187;
        const V t189 = c4 * t74;
        const V t190 = t188 - t189;
        const V t191 = t185 - t190;
        io.out(2, t191);
        const V t192 = t185 + t190;
        io.out(26, t192);
        const V t193 = c3 * t43;
        const V t194 = t29 - t193;
        const V t195 = c1 * t59;
        const V t196 = t194 + t195;
        const V t197 = c2 * t75;
        const V t198 = t196 - t197;
        const V t199 = c6 * t42;
        const V t200 = c4 * t58;
        const V t201 = t199 - t200;
        const V t202 = c5 * t74;
        const V t203 = t201 + t202;
        const V t204 = t198 - t203;
        io.out(10, t204);
        const V t205 = t198 + t203;
        io.out(18, t205);
        // spectrum block of 7, multiplier 4
        const V t206 = t47 + t63;
        const V t207 = t206 + t79;
        const V t208 = t207 + t31;
        io.out(21, t208);
        const V t209 = c1 * t47;
        const V t210 = c2 * t63;
        const V t211 = t209 - t210;
        const V t212 = c3 * t79;
        const V t213 = t211 - t212;
        const V t214 = t213 + t31;
        const V t215 = c4 * t46;
        const V t216 = c5 * t62;
        const V t217 = t215 + t216;
        const V t218 = c6 * t78;
        const V t219 = t217 + t218;
        const V t220 = t214 - t219;
        io.out(1, t220);
        const V t221 = t214 + t219;
        io.out(13, t221);
        const V t222 = c2 * t47;
        const V t223 = t31 - t222;
        const V t224 = c3 * t63;
        const V t225 = t223 - t224;
        const V t226 = c1 * t79;
        const V t227 = t225 + t226;
        const V t228 = c5 * t46;
        const V t229 = c6 * t62;
        const V t230 = t228 - t229;
        const V t231 = c4 * t78;
        const V t232 = t230 - t231;
        const V t233 = t227 - t232;
        io.out(9, t233);
        const V t234 = t227 + t232;
        io.out(5, t234);
        const V t235 = c3 * t47;
        const V t236 = t31 - t235;
        const V t237 = c1 * t63;
        const V t238 = t236 + t237;
        const V t239 = c2 * t79;
        const V t240 = t238 - t239;
        const V t241 = c6 * t46;
        const V t242 = c4 * t62;
        const V t243 = t241 - t242;
        const V t244 = c5 * t78;
        const V t245 = t243 + t244;
        const V t246 = t240 - t245;
        io.out(17, t246);
        const V t247 = t240 + t245;
        io.out(25, t247);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 28, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 28, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 28, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 28, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 28, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 28, double>(const double*, double*, std::int32_t);

}  // namespace zulg
