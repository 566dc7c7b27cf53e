// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 28.
// Inverse DFT to 28 real points, prime-factor 4, 7.
// 75 additions, 75 subtractions, 98 multiplications (126 with `scale`); 7 constants; 44 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<28> {
    static constexpr int steps = 276;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 2/7
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x14r = io.re(14);
        const V t0 = x0r + x14r;
        const V t1 = x0r - x14r;
        // doubled bins
        const V x7r = io.re(7);
        const V t2 = two * x7r;
        const V x7i = io.im(7);
        const V t3 = two * x7i;
        // spectrum block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // spectrum block of 2
        const V t6 = t1 + t3;
        const V t7 = t1 - t3;
        // doubled bins
        const V x1r = io.re(1);
        const V t8 = two * x1r;
        const V x13r = io.re(13);
        const V t9 = two * x13r;
        // complex block of 2
        const V t10 = t9 + t8;
        // doubled bins
        const V x1i = io.im(1);
        const V t11 = two * x1i;
        const V x13i = io.im(13);
        const V t12 = two * x13i;
        // complex block of 2
        const V t13 = t12 + t11;
        // doubled bins
        const V x6r = io.re(6);
        const V t14 = two * x6r;
        const V x8r = io.re(8);
        const V t15 = two * x8r;
        // complex block of 2
        const V t16 = t15 + t14;
        const V t17 = t15 - t14;
        // doubled bins
        const V x6i = io.im(6);
        const V t18 = two * x6i;
        const V x8i = io.im(8);
        const V t19 = two * x8i;
        // complex block of 2
        const V t20 = t19 - t18;
        // complex block of 2
        const V t21 = t11 - t12;
        // complex block of 2
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        // complex block of 2
        const V t24 = t19 + t18;
        // complex block of 2
        const V t25 = t9 - t8;
        // complex block of 2
        const V t26 = t24 - t25;
        const V t27 = t24 + t25;
        // complex block of 2
        const V t28 = t16 + t10;
        // spectrum block of 7, multiplier 4
        const V t29 = c[0] * t28;
        // complex block of 2
        const V t30 = t16 - t10;
        // spectrum block of 7, multiplier 4
        const V t31 = c[0] * t30;
        // complex block of 2
        const V t32 = t17 - t13;
        // spectrum block of 7, multiplier 4
        const V t33 = c[0] * t32;
        // complex block of 2
        const V t34 = t17 + t13;
        // spectrum block of 7, multiplier 4
        const V t35 = c[0] * t34;
        // doubled bins
        const V x2r = io.re(2);
        const V t36 = two * x2r;
        const V x2i = io.im(2);
        const V t37 = two * x2i;
        const V x5r = io.re(5);
        const V t38 = two * x5r;
        const V x5i = io.im(5);
        const V t39 = two * x5i;
        const V x9r = io.re(9);
        const V t40 = two * x9r;
        const V x9i = io.im(9);
        const V t41 = two * x9i;
        const V x12r = io.re(12);
        const V t42 = two * x12r;
        const V x12i = io.im(12);
        const V t43 = two * x12i;
        // complex block of 2
        const V t44 = t43 - t37;
        // complex block of 2
        const V t45 = t39 - t41;
        // complex block of 2
        const V t46 = t44 + t45;
        const V t47 = t44 - t45;
        // complex block of 2
        const V t48 = t42 + t36;
        // complex block of 2
        const V t49 = t40 + t38;
        // complex block of 2
        const V t50 = t48 + t49;
        const V t51 = t48 - t49;
        // complex block of 2
        const V t52 = t43 + t37;
        // complex block of 2
        const V t53 = t40 - t38;
        // complex block of 2
        const V t54 = t52 - t53;
        const V t55 = t52 + t53;
        // complex block of 2
        const V t56 = t42 - t36;
        // complex block of 2
        const V t57 = t41 + t39;
        // complex block of 2
        const V t58 = t56 - t57;
        const V t59 = t56 + t57;
        // doubled bins
        const V x3r = io.re(3);
        const V t60 = two * x3r;
        const V x11r = io.re(11);
        const V t61 = two * x11r;
        // complex block of 2
        const V t62 = t61 + t60;
        // doubled bins
        const V x3i = io.im(3);
        const V t63 = two * x3i;
        const V x11i = io.im(11);
        const V t64 = two * x11i;
        // complex block of 2
        const V t65 = t64 + t63;
        // doubled bins
        const V x4r = io.re(4);
        const V t66 = two * x4r;
        const V x10r = io.re(10);
        const V t67 = two * x10r;
        // complex block of 2
        const V t68 = t66 + t67;
        const V t69 = t66 - t67;
        // doubled bins
        const V x4i = io.im(4);
        const V t70 = two * x4i;
        const V x10i = io.im(10);
        const V t71 = two * x10i;
        // complex block of 2
        const V t72 = t70 - t71;
        // complex block of 2
        const V t73 = t64 - t63;
        // complex block of 2
        const V t74 = t72 + t73;
        const V t75 = t72 - t73;
        // complex block of 2
        const V t76 = t70 + t71;
        // complex block of 2
        const V t77 = t61 - t60;
        // complex block of 2
        const V t78 = t76 - t77;
        const V t79 = t76 + t77;
        // complex block of 2
        const V t80 = t68 + t62;
        // spectrum block of 7, multiplier 4
        const V t81 = c[1] * t80;
        const V t82 = c[0] * t80;
        const V t83 = c[2] * t80;
        // complex block of 2
        const V t84 = t68 - t62;
        // spectrum block of 7, multiplier 4
        const V t85 = c[1] * t84;
        const V t86 = c[0] * t84;
        const V t87 = c[2] * t84;
        // complex block of 2
        const V t88 = t69 + t65;
        // spectrum block of 7, multiplier 4
        const V t89 = c[1] * t88;
        const V t90 = c[0] * t88;
        const V t91 = c[2] * t88;
        // complex block of 2
        const V t92 = t69 - t65;
        // spectrum block of 7, multiplier 4
        const V t93 = c[1] * t92;
        const V t94 = c[0] * t92;
        const V t95 = c[2] * t92;
        // spectrum block of 7, multiplier 4
        const V t96 = t80 + t28;
        const V t97 = t96 + t50;
        const V t98 = t97 + t4;
        io.out(0, t98);
        const V t99 = t81 - t29;
        const V t100 = c[2] * t50;
        const V t101 = t99 - t100;
        const V t102 = c[3] * t74;
        const V t103 = c[4] * t22;
        const V t104 = t102 + t103;
        const V t105 = c[5] * t46;
        const V t106 = t101 + t4;
        const V t107 = t104 + t105;
        const V t108 = t106 - t107;
        io.out(8, t108);
        const V t109 = t106 + t107;
        io.out(20, t109);
        const V t110 = t4 - t82;
        const V t111 = c[2] * t28;
        const V t112 = t110 - t111;
        const V t113 = c[1] * t50;
        const V t114 = c[4] * t74;
        const V t115 = c[5] * t22;
        const V t116 = t114 - t115;
        const V t117 = c[3] * t46;
        const V t118 = t112 + t113;
        const V t119 = t116 - t117;
        const V t120 = t118 - t119;
        io.out(16, t120);
        const V t121 = t118 + t119;
        io.out(12, t121);
        const V t122 = t4 - t83;
        const V t123 = c[1] * t28;
        const V t124 = t122 + t123;
        const V t125 = c[0] * t50;
        const V t126 = c[5] * t74;
        const V t127 = c[3] * t22;
        const V t128 = t126 - t127;
        const V t129 = c[4] * t46;
        const V t130 = t124 - t125;
        const V t131 = t128 + t129;
        const V t132 = t130 - t131;
        io.out(24, t132);
        const V t133 = t130 + t131;
        io.out(4, t133);
        // spectrum block of 7, multiplier 4
        const V t134 = t88 + t32;
        const V t135 = t134 + t58;
        const V t136 = t135 + t6;
        io.out(7, t136);
        const V t137 = t89 - t33;
        const V t138 = c[2] * t58;
        const V t139 = t137 - t138;
        const V t140 = c[3] * t78;
        const V t141 = c[4] * t26;
        const V t142 = t140 + t141;
        const V t143 = c[5] * t54;
        const V t144 = t139 + t6;
        const V t145 = t142 + t143;
        const V t146 = t144 - t145;
        io.out(15, t146);
        const V t147 = t144 + t145;
        io.out(27, t147);
        const V t148 = t6 - t90;
        const V t149 = c[2] * t32;
        const V t150 = t148 - t149;
        const V t151 = c[1] * t58;
        const V t152 = c[4] * t78;
        const V t153 = c[5] * t26;
        const V t154 = t152 - t153;
        const V t155 = c[3] * t54;
        const V t156 = t150 + t151;
        const V t157 = t154 - t155;
        const V t158 = t156 - t157;
        io.out(23, t158);
        const V t159 = t156 + t157;
        io.out(19, t159);
        const V t160 = t6 - t91;
        const V t161 = c[1] * t32;
        const V t162 = t160 + t161;
        const V t163 = c[0] * t58;
        const V t164 = c[5] * t78;
        const V t165 = c[3] * t26;
        const V t166 = t164 - t165;
        const V t167 = c[4] * t54;
        const V t168 = t162 - t163;
        const V t169 = t166 + t167;
        const V t170 = t168 - t169;
        io.out(3, t170);
        const V t171 = t168 + t169;
        io.out(11, t171);
        // spectrum block of 7, multiplier 4
        const V t172 = t84 + t30;
        const V t173 = t172 + t51;
        const V t174 = t173 + t5;
        io.out(14, t174);
        const V t175 = t85 - t31;
        const V t176 = c[2] * t51;
        const V t177 = t175 - t176;
        const V t178 = c[3] * t75;
        const V t179 = c[4] * t23;
        const V t180 = t178 + t179;
        const V t181 = c[5] * t47;
        const V t182 = t177 + t5;
        const V t183 = t180 + t181;
        const V t184 = t182 - t183;
        io.out(22, t184);
        const V t185 = t182 + t183;
        io.out(6, t185);
        const V t186 = t5 - t86;
        const V t187 = c[2] * t30;
        const V t188 = t186 - t187;
        const V t189 = c[1] * t51;
        const V t190 = c[4] * t75;
        const V t191 = c[5] * t23;
        const V t192 = t190 - t191;
        const V t193 = c[3] * t47;
        const V t194 = t188 + t189;
        const V t195 = t192 - t193;
        const V t196 = t194 - t195;
        io.out(2, t196);
        const V t197 = t194 + t195;
        io.out(26, t197);
        const V t198 = t5 - t87;
        const V t199 = c[1] * t30;
        const V t200 = t198 + t199;
        const V t201 = c[0] * t51;
        const V t202 = c[5] * t75;
        const V t203 = c[3] * t23;
        const V t204 = t202 - t203;
        const V t205 = c[4] * t47;
        const V t206 = t200 - t201;
        const V t207 = t204 + t205;
        const V t208 = t206 - t207;
        io.out(10, t208);
        const V t209 = t206 + t207;
        io.out(18, t209);
        // spectrum block of 7, multiplier 4
        const V t210 = t92 + t34;
        const V t211 = t210 + t59;
        const V t212 = t211 + t7;
        io.out(21, t212);
        const V t213 = t93 - t35;
        const V t214 = c[2] * t59;
        const V t215 = t213 - t214;
        const V t216 = c[3] * t79;
        const V t217 = c[4] * t27;
        const V t218 = t216 + t217;
        const V t219 = c[5] * t55;
        const V t220 = t215 + t7;
        const V t221 = t218 + t219;
        const V t222 = t220 - t221;
        io.out(1, t222);
        const V t223 = t220 + t221;
        io.out(13, t223);
        const V t224 = t7 - t94;
        const V t225 = c[2] * t34;
        const V t226 = t224 - t225;
        const V t227 = c[1] * t59;
        const V t228 = c[4] * t79;
        const V t229 = c[5] * t27;
        const V t230 = t228 - t229;
        const V t231 = c[3] * t55;
        const V t232 = t226 + t227;
        const V t233 = t230 - t231;
        const V t234 = t232 - t233;
        io.out(9, t234);
        const V t235 = t232 + t233;
        io.out(5, t235);
        const V t236 = t7 - t95;
        const V t237 = c[1] * t34;
        const V t238 = t236 + t237;
        const V t239 = c[0] * t59;
        const V t240 = c[5] * t79;
        const V t241 = c[3] * t27;
        const V t242 = t240 - t241;
        const V t243 = c[4] * t55;
        const V t244 = t238 - t239;
        const V t245 = t242 + t243;
        const V t246 = t244 - t245;
        io.out(17, t246);
        const V t247 = t244 + t245;
        io.out(25, t247);
    }
};

}  // namespace zulg
