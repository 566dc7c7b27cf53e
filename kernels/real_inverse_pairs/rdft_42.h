// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 42.
// Inverse DFT to 42 real points, prime-factor 2, 3, 7; two lanes to a register.
// 67 sums, 67 differences, 88 products of registers, which do the 484 steps of the graph, those with
// `scale` included; 21 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<42> {
    static constexpr int steps = 484;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
        0.5,  // c[7]: -cos 2 pi 1/3
        0.8660254037844386,  // c[8]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x21r = io.re(21);
        // spectrum block of 2
        const V t0 = x0r + x21r;
        const V t1 = x0r - x21r;
        const P x2 = io.pair(2);
        // doubled bins
        const P t2 = c[0] * x2;
        const P x19 = io.pair(19);
        const P t3 = P(c[0], -c[0]) * x19;
        // complex block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x17 = io.pair(17);
        const P t7 = P(c[0], -c[0]) * x17;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x6 = io.pair(6);
        // doubled bins
        const P t10 = c[0] * x6;
        const P x15 = io.pair(15);
        const P t11 = P(c[0], -c[0]) * x15;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        const P x8 = io.pair(8);
        // doubled bins
        const P t14 = c[0] * x8;
        const P x13 = io.pair(13);
        const P t15 = P(c[0], -c[0]) * x13;
        // complex block of 2
        const P t16 = t14 + t15;
        const P t17 = t14 - t15;
        const P x10 = io.pair(10);
        // doubled bins
        const P t18 = c[0] * x10;
        const P x11 = io.pair(11);
        const P t19 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t20 = t18 + t19;
        const P t21 = t18 - t19;
        const P x12 = io.pair(12);
        // doubled bins
        const P t22 = c[0] * x12;
        const P x9 = io.pair(9);
        const P t23 = P(c[0], -c[0]) * x9;
        // complex block of 2
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        const P x14 = io.pair(14);
        // doubled bins
        const P t26 = c[0] * x14;
        const P x7 = io.pair(7);
        const P t27 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x16 = io.pair(16);
        // doubled bins
        const P t30 = c[0] * x16;
        const P x5 = io.pair(5);
        const P t31 = P(c[0], -c[0]) * x5;
        // complex block of 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P x18 = io.pair(18);
        // doubled bins
        const P t34 = c[0] * x18;
        const P x3 = io.pair(3);
        const P t35 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P x20 = io.pair(20);
        // doubled bins
        const P t38 = c[0] * x20;
        const P x1 = io.pair(1);
        const P t39 = P(c[0], -c[0]) * x1;
        // complex block of 2
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = shuffled<0, 2>(t28, t29);
        const P t43 = joined(t0, t1);
        // spectrum block of 3, multiplier 2
        const P t44 = t42 + t43;
        const P t45 = c[7] * t42;
        const P t46 = t43 - t45;
        const P t47 = shuffled<1, 3>(t28, t29);
        const P t48 = c[8] * t47;
        const P t49 = t46 - t48;
        const P t50 = t46 + t48;
        const P t51 = shuffled<1, 3>(t40, t41);
        const P t52 = shuffled<1, 3>(t16, t17);
        // complex block of 3, multiplier 2
        const P t53 = t51 - t52;
        const P t54 = shuffled<0, 2>(t40, t41);
        const P t55 = shuffled<0, 2>(t16, t17);
        const P t56 = t54 + t55;
        const P t57 = t51 + t52;
        const P t58 = t54 - t55;
        const P t59 = shuffled<1, 3>(t12, t13);
        const P t60 = t53 + t59;
        const P t61 = shuffled<0, 2>(t12, t13);
        const P t62 = t56 + t61;
        const P t63 = c[7] * t53;
        const P t64 = t59 - t63;
        const P t65 = c[7] * t56;
        const P t66 = t61 - t65;
        const P t67 = c[8] * t58;
        const P t68 = t64 + t67;
        const P t69 = c[8] * t57;
        const P t70 = t66 - t69;
        const P t71 = t64 - t67;
        const P t72 = t66 + t69;
        const P t73 = shuffled<1, 3>(t32, t33);
        const P t74 = shuffled<1, 3>(t4, t5);
        // complex block of 3, multiplier 2
        const P t75 = t73 + t74;
        const P t76 = shuffled<0, 2>(t32, t33);
        const P t77 = shuffled<0, 2>(t4, t5);
        const P t78 = t76 + t77;
        const P t79 = t74 - t73;
        const P t80 = t76 - t77;
        const P t81 = shuffled<1, 3>(t24, t25);
        const P t82 = t81 - t75;
        const P t83 = shuffled<0, 2>(t24, t25);
        const P t84 = t78 + t83;
        const P t85 = c[7] * t75;
        const P t86 = t85 + t81;
        const P t87 = c[7] * t78;
        const P t88 = t83 - t87;
        const P t89 = c[8] * t80;
        const P t90 = t86 + t89;
        const P t91 = c[8] * t79;
        const P t92 = t88 - t91;
        const P t93 = t86 - t89;
        const P t94 = t88 + t91;
        const P t95 = shuffled<1, 3>(t8, t9);
        const P t96 = shuffled<1, 3>(t20, t21);
        // complex block of 3, multiplier 2
        const P t97 = t95 - t96;
        const P t98 = shuffled<0, 2>(t20, t21);
        const P t99 = shuffled<0, 2>(t8, t9);
        const P t100 = t98 + t99;
        const P t101 = t96 + t95;
        const P t102 = t98 - t99;
        const P t103 = shuffled<1, 3>(t36, t37);
        const P t104 = t97 + t103;
        const P t105 = shuffled<0, 2>(t36, t37);
        const P t106 = t100 + t105;
        const P t107 = c[7] * t97;
        const P t108 = t103 - t107;
        const P t109 = c[7] * t100;
        const P t110 = t105 - t109;
        const P t111 = c[8] * t102;
        const P t112 = t108 + t111;
        const P t113 = c[8] * t101;
        const P t114 = t110 + t113;
        const P t115 = t108 - t111;
        const P t116 = t110 - t113;
        // spectrum block of 7, multiplier 6
        const P t117 = t62 + t84;
        const P t118 = t117 + t106;
        const P t119 = t118 + t44;
        io.out(0, 21, t119);
        const P t120 = c[1] * t62;
        const P t121 = c[2] * t84;
        const P t122 = t120 - t121;
        const P t123 = c[3] * t106;
        const P t124 = t122 - t123;
        const P t125 = t124 + t44;
        const P t126 = c[4] * t60;
        const P t127 = c[5] * t82;
        const P t128 = t126 + t127;
        const P t129 = c[6] * t104;
        const P t130 = t128 + t129;
        const P t131 = t125 - t130;
        io.out(36, 15, t131);
        const P t132 = t125 + t130;
        io.out(6, 27, t132);
        const P t133 = c[2] * t62;
        const P t134 = t44 - t133;
        const P t135 = c[3] * t84;
        const P t136 = t134 - t135;
        const P t137 = c[1] * t106;
        const P t138 = t136 + t137;
        const P t139 = c[5] * t60;
        const P t140 = c[6] * t82;
        const P t141 = t139 - t140;
        const P t142 = c[4] * t104;
        const P t143 = t141 - t142;
        const P t144 = t138 - t143;
        io.out(30, 9, t144);
        const P t145 = t138 + t143;
        io.out(12, 33, t145);
        const P t146 = c[3] * t62;
        const P t147 = t44 - t146;
        const P t148 = c[1] * t84;
        const P t149 = t147 + t148;
        const P t150 = c[2] * t106;
        const P t151 = t149 - t150;
        const P t152 = c[6] * t60;
        const P t153 = c[4] * t82;
        const P t154 = t152 - t153;
        const P t155 = c[5] * t104;
        const P t156 = t154 + t155;
        const P t157 = t151 - t156;
        io.out(24, 3, t157);
        const P t158 = t151 + t156;
        io.out(18, 39, t158);
        // spectrum block of 7, multiplier 6
        const P t159 = t72 + t94;
        const P t160 = t159 + t116;
        const P t161 = t160 + t50;
        io.out(14, 35, t161);
        const P t162 = c[1] * t72;
        const P t163 = c[2] * t94;
        const P t164 = t162 - t163;
        const P t165 = c[3] * t116;
        const P t166 = t164 - t165;
        const P t167 = t166 + t50;
        const P t168 = c[4] * t71;
        const P t169 = c[5] * t93;
        const P t170 = t168 + t169;
        const P t171 = c[6] * t115;
        const P t172 = t170 + t171;
        const P t173 = t167 - t172;
        io.out(8, 29, t173);
        const P t174 = t167 + t172;
        io.out(20, 41, t174);
        const P t175 = c[2] * t72;
        const P t176 = t50 - t175;
        const P t177 = c[3] * t94;
        const P t178 = t176 - t177;
        const P t179 = c[1] * t116;
        const P t180 = t178 + t179;
        const P t181 = c[5] * t71;
        const P t182 = c[6] * t93;
        const P t183 = t181 - t182;
        const P t184 = c[4] * t115;
        const P t185 = t183 - t184;
        const P t186 = t180 - t185;
        io.out(2, 23, t186);
        const P t187 = t180 + t185;
        io.out(26, 5, t187);
        const P t188 = c[3] * t72;
        const P t189 = t50 - t188;
        const P t190 = c[1] * t94;
        const P t191 = t189 + t190;
        const P t192 = c[2] * t116;
        const P t193 = t191 - t192;
        const P t194 = c[6] * t71;
        const P t195 = c[4] * t93;
        const P t196 = t194 - t195;
        const P t197 = c[5] * t115;
        const P t198 = t196 + t197;
        const P t199 = t193 - t198;
        io.out(38, 17, t199);
        const P t200 = t193 + t198;
        io.out(32, 11, t200);
        // spectrum block of 7, multiplier 6
        const P t201 = t70 + t92;
        const P t202 = t201 + t114;
        const P t203 = t202 + t49;
        io.out(28, 7, t203);
        const P t204 = c[1] * t70;
        const P t205 = c[2] * t92;
        const P t206 = t204 - t205;
        const P t207 = c[3] * t114;
        const P t208 = t206 - t207;
        const P t209 = t208 + t49;
        const P t210 = c[4] * t68;
        const P t211 = c[5] * t90;
        const P t212 = t210 + t211;
        const P t213 = c[6] * t112;
        const P t214 = t212 + t213;
        const P t215 = t209 - t214;
        io.out(22, 1, t215);
        const P t216 = t209 + t214;
        io.out(34, 13, t216);
        const P t217 = c[2] * t70;
        const P t218 = t49 - t217;
        const P t219 = c[3] * t92;
        const P t220 = t218 - t219;
        const P t221 = c[1] * t114;
        const P t222 = t220 + t221;
        const P t223 = c[5] * t68;
        const P t224 = c[6] * t90;
        const P t225 = t223 - t224;
        const P t226 = c[4] * t112;
        const P t227 = t225 - t226;
        const P t228 = t222 - t227;
        io.out(16, 37, t228);
        const P t229 = t222 + t227;
        io.out(40, 19, t229);
        const P t230 = c[3] * t70;
        const P t231 = t49 - t230;
        const P t232 = c[1] * t92;
        const P t233 = t231 + t232;
        const P t234 = c[2] * t114;
        const P t235 = t233 - t234;
        const P t236 = c[6] * t68;
        const P t237 = c[4] * t90;
        const P t238 = t236 - t237;
        const P t239 = c[5] * t112;
        const P t240 = t238 + t239;
        const P t241 = t235 - t240;
        io.out(10, 31, t241);
        const P t242 = t235 + t240;
        io.out(4, 25, t242);
    }
};

}  // namespace zulg
