// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 35.
// Inverse DFT to 35 real points, prime-factor 5, 7; two lanes to a register.
// 74 sums, 58 differences, 103 products of registers, which do the 443 steps of the graph, those with
// `scale` included; 29 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<35> {
    static constexpr int steps = 443;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 3/7
        0.7818314824680298,  // c[4]: sin 2 pi 1/7
        0.9749279121818236,  // c[5]: sin 2 pi 2/7
        0.4338837391175581,  // c[6]: sin 2 pi 3/7
        0.30901699437494745,  // c[7]: cos 2 pi 1/5
        0.8090169943749475,  // c[8]: -cos 2 pi 2/5
        0.9510565162951535,  // c[9]: sin 2 pi 1/5
        0.5877852522924731,  // c[10]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x7 = io.pair(7);
        // doubled bins
        const P t0 = c[0] * x7;
        const V t1 = part<0>(t0);
        const P x14 = io.pair(14);
        const P t2 = c[0] * x14;
        const V t3 = part<0>(t2);
        // spectrum block of 5, multiplier 2
        const V t4 = t1 + t3;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        const V t6 = c[7] * t1;
        const V t7 = c[8] * t3;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = part<1>(t0);
        const V t11 = c[9] * t10;
        const V t12 = part<1>(t2);
        const V t13 = c[10] * t12;
        const V t14 = t11 + t13;
        const V t15 = t9 - t14;
        const V t16 = t9 + t14;
        const V t17 = c[8] * t1;
        const V t18 = x0r - t17;
        const V t19 = c[7] * t3;
        const V t20 = t18 + t19;
        const V t21 = c[10] * t10;
        const V t22 = c[9] * t12;
        const V t23 = t21 - t22;
        const V t24 = t20 - t23;
        const V t25 = t20 + t23;
        const P x12 = io.pair(12);
        // doubled bins
        const P t26 = c[0] * x12;
        const P x2 = io.pair(2);
        const P t27 = P(c[0], -c[0]) * x2;
        // complex block of 5, multiplier 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x9 = io.pair(9);
        // doubled bins
        const P t30 = c[0] * x9;
        const P x16 = io.pair(16);
        const P t31 = c[0] * x16;
        // complex block of 5, multiplier 2
        const P t32 = t30 + t31;
        const P t33 = shuffled<0, 3>(t30, t31);
        const P t34 = shuffled<0, 3>(t31, t30);
        const P t35 = t33 - t34;
        const P t36 = flipped<0, 1>(t32);
        const P t37 = t28 + t36;
        const P x5 = io.pair(5);
        // doubled bins
        const P t38 = c[0] * x5;
        // complex block of 5, multiplier 2
        const P t39 = t37 + t38;
        const P t40 = c[7] * t28;
        const P t41 = P(-c[8], c[8]) * t32;
        const P t42 = t40 + t41;
        const P t43 = t42 + t38;
        const P t44 = c[9] * t29;
        const P t45 = c[10] * t35;
        const P t46 = t44 - t45;
        const P t47 = shuffled<1, 0>(t46);
        const P t48 = flipped<1, 0>(t47);
        const P t49 = t43 + t48;
        const P t50 = t43 - t48;
        const P t51 = c[8] * t28;
        const P t52 = t38 - t51;
        const P t53 = P(c[7], -c[7]) * t32;
        const P t54 = t52 + t53;
        const P t55 = c[10] * t29;
        const P t56 = c[9] * t35;
        const P t57 = t55 + t56;
        const P t58 = shuffled<1, 0>(t57);
        const P t59 = flipped<1, 0>(t58);
        const P t60 = t54 + t59;
        const P t61 = t54 - t59;
        const P x17 = io.pair(17);
        // doubled bins
        const P t62 = c[0] * x17;
        const P x3 = io.pair(3);
        const P t63 = c[0] * x3;
        // complex block of 5, multiplier 2
        const P t64 = t62 + t63;
        const P t65 = t62 - t63;
        const P x4 = io.pair(4);
        // doubled bins
        const P t66 = c[0] * x4;
        const P x11 = io.pair(11);
        const P t67 = c[0] * x11;
        // complex block of 5, multiplier 2
        const P t68 = t66 + t67;
        const P t69 = shuffled<0, 3>(t66, t67);
        const P t70 = shuffled<0, 3>(t67, t66);
        const P t71 = t69 - t70;
        const P t72 = flipped<0, 1>(t68);
        const P t73 = t64 + t72;
        const P x10 = io.pair(10);
        // doubled bins
        const P t74 = c[0] * x10;
        // complex block of 5, multiplier 2
        const P t75 = t73 + t74;
        const P t76 = c[7] * t64;
        const P t77 = P(-c[8], c[8]) * t68;
        const P t78 = t76 + t77;
        const P t79 = t78 + t74;
        const P t80 = c[9] * t65;
        const P t81 = c[10] * t71;
        const P t82 = t80 - t81;
        const P t83 = shuffled<1, 0>(t82);
        const P t84 = flipped<1, 0>(t83);
        const P t85 = t79 + t84;
        const P t86 = t79 - t84;
        const P t87 = c[8] * t64;
        const P t88 = t74 - t87;
        const P t89 = P(c[7], -c[7]) * t68;
        const P t90 = t88 + t89;
        const P t91 = c[10] * t65;
        const P t92 = c[9] * t71;
        const P t93 = t91 + t92;
        const P t94 = shuffled<1, 0>(t93);
        const P t95 = flipped<1, 0>(t94);
        const P t96 = t90 + t95;
        const P t97 = t90 - t95;
        const P x8 = io.pair(8);
        // doubled bins
        const P t98 = c[0] * x8;
        const P x13 = io.pair(13);
        const P t99 = P(c[0], -c[0]) * x13;
        // complex block of 5, multiplier 2
        const P t100 = t98 + t99;
        const P t101 = flipped<0, 1>(t99);
        const P t102 = flipped<1, 0>(t98);
        const P t103 = t101 + t102;
        const P x1 = io.pair(1);
        // doubled bins
        const P t104 = c[0] * x1;
        const P x6 = io.pair(6);
        const P t105 = P(c[0], -c[0]) * x6;
        // complex block of 5, multiplier 2
        const P t106 = t104 + t105;
        const P t107 = t104 - t105;
        const P t108 = t100 + t106;
        const P x15 = io.pair(15);
        // doubled bins
        const P t109 = c[0] * x15;
        // complex block of 5, multiplier 2
        const P t110 = t108 + t109;
        const P t111 = c[7] * t100;
        const P t112 = c[8] * t106;
        const P t113 = t111 - t112;
        const P t114 = t113 + t109;
        const P t115 = c[9] * t103;
        const P t116 = P(-c[10], c[10]) * t107;
        const P t117 = t115 + t116;
        const P t118 = shuffled<1, 0>(t117);
        const P t119 = t114 + t118;
        const P t120 = t114 - t118;
        const P t121 = c[8] * t100;
        const P t122 = t109 - t121;
        const P t123 = c[7] * t106;
        const P t124 = t122 + t123;
        const P t125 = c[9] * t107;
        const P t126 = P(c[10], -c[10]) * t103;
        const P t127 = t125 + t126;
        const P t128 = shuffled<1, 0>(t127);
        const P t129 = flipped<1, 0>(t128);
        const P t130 = t124 + t129;
        const P t131 = t124 - t129;
        const P t132 = shuffled<0, 2>(t39, t60);
        const P t133 = shuffled<0, 2>(t75, t96);
        // spectrum block of 7, multiplier 5
        const P t134 = t132 + t133;
        const P t135 = shuffled<0, 2>(t110, t130);
        const P t136 = t134 + t135;
        const P t137 = joined(t5, t24);
        const P t138 = t136 + t137;
        io.out(0, 7, t138);
        const P t139 = c[1] * t132;
        const P t140 = c[2] * t133;
        const P t141 = t139 - t140;
        const P t142 = c[3] * t135;
        const P t143 = t141 - t142;
        const P t144 = t143 + t137;
        const P t145 = shuffled<1, 3>(t39, t60);
        const P t146 = c[4] * t145;
        const P t147 = shuffled<1, 3>(t75, t96);
        const P t148 = c[5] * t147;
        const P t149 = t146 + t148;
        const P t150 = shuffled<1, 3>(t110, t130);
        const P t151 = c[6] * t150;
        const P t152 = t149 + t151;
        const P t153 = t144 - t152;
        io.out(15, 22, t153);
        const P t154 = t144 + t152;
        io.out(20, 27, t154);
        const P t155 = c[2] * t132;
        const P t156 = t137 - t155;
        const P t157 = c[3] * t133;
        const P t158 = t156 - t157;
        const P t159 = c[1] * t135;
        const P t160 = t158 + t159;
        const P t161 = c[5] * t145;
        const P t162 = c[6] * t147;
        const P t163 = t161 - t162;
        const P t164 = c[4] * t150;
        const P t165 = t163 - t164;
        const P t166 = t160 - t165;
        io.out(30, 2, t166);
        const P t167 = t160 + t165;
        io.out(5, 12, t167);
        const P t168 = c[3] * t132;
        const P t169 = t137 - t168;
        const P t170 = c[1] * t133;
        const P t171 = t169 + t170;
        const P t172 = c[2] * t135;
        const P t173 = t171 - t172;
        const P t174 = c[6] * t145;
        const P t175 = c[4] * t147;
        const P t176 = t174 - t175;
        const P t177 = c[5] * t150;
        const P t178 = t176 + t177;
        const P t179 = t173 - t178;
        io.out(10, 17, t179);
        const P t180 = t173 + t178;
        io.out(25, 32, t180);
        const P t181 = shuffled<0, 2>(t50, t49);
        const P t182 = shuffled<0, 2>(t86, t85);
        // spectrum block of 7, multiplier 5
        const P t183 = t181 + t182;
        const P t184 = shuffled<0, 2>(t120, t119);
        const P t185 = t183 + t184;
        const P t186 = joined(t16, t15);
        const P t187 = t185 + t186;
        io.out(14, 21, t187);
        const P t188 = c[1] * t181;
        const P t189 = c[2] * t182;
        const P t190 = t188 - t189;
        const P t191 = c[3] * t184;
        const P t192 = t190 - t191;
        const P t193 = t192 + t186;
        const P t194 = shuffled<1, 3>(t50, t49);
        const P t195 = c[4] * t194;
        const P t196 = shuffled<1, 3>(t86, t85);
        const P t197 = c[5] * t196;
        const P t198 = t195 + t197;
        const P t199 = shuffled<1, 3>(t120, t119);
        const P t200 = c[6] * t199;
        const P t201 = t198 + t200;
        const P t202 = t193 - t201;
        io.out(29, 1, t202);
        const P t203 = t193 + t201;
        io.out(34, 6, t203);
        const P t204 = c[2] * t181;
        const P t205 = t186 - t204;
        const P t206 = c[3] * t182;
        const P t207 = t205 - t206;
        const P t208 = c[1] * t184;
        const P t209 = t207 + t208;
        const P t210 = c[5] * t194;
        const P t211 = c[6] * t196;
        const P t212 = t210 - t211;
        const P t213 = c[4] * t199;
        const P t214 = t212 - t213;
        const P t215 = t209 - t214;
        io.out(9, 16, t215);
        const P t216 = t209 + t214;
        io.out(19, 26, t216);
        const P t217 = c[3] * t181;
        const P t218 = t186 - t217;
        const P t219 = c[1] * t182;
        const P t220 = t218 + t219;
        const P t221 = c[2] * t184;
        const P t222 = t220 - t221;
        const P t223 = c[6] * t194;
        const P t224 = c[4] * t196;
        const P t225 = t223 - t224;
        const P t226 = c[5] * t199;
        const P t227 = t225 + t226;
        const P t228 = t222 - t227;
        io.out(24, 31, t228);
        const P t229 = t222 + t227;
        io.out(4, 11, t229);
        const V t230 = part<0>(t61);
        const V t231 = part<0>(t97);
        // spectrum block of 7, multiplier 5
        const V t232 = t230 + t231;
        const V t233 = part<0>(t131);
        const V t234 = t232 + t233;
        const V t235 = t234 + t25;
        io.out(28, t235);
        const V t236 = c[1] * t230;
        const V t237 = c[2] * t231;
        const V t238 = t236 - t237;
        const V t239 = c[3] * t233;
        const V t240 = t238 - t239;
        const V t241 = t240 + t25;
        const V t242 = part<1>(t61);
        const V t243 = c[4] * t242;
        const V t244 = part<1>(t97);
        const V t245 = c[5] * t244;
        const V t246 = t243 + t245;
        const V t247 = part<1>(t131);
        const V t248 = c[6] * t247;
        const V t249 = t246 + t248;
        const V t250 = t241 - t249;
        io.out(8, t250);
        const V t251 = t241 + t249;
        io.out(13, t251);
        const V t252 = c[2] * t230;
        const V t253 = t25 - t252;
        const V t254 = c[3] * t231;
        const V t255 = t253 - t254;
        const V t256 = c[1] * t233;
        const V t257 = t255 + t256;
        const V t258 = c[5] * t242;
        const V t259 = c[6] * t244;
        const V t260 = t258 - t259;
        const V t261 = c[4] * t247;
        const V t262 = t260 - t261;
        const V t263 = t257 - t262;
        io.out(23, t263);
        const V t264 = t257 + t262;
        io.out(33, t264);
        const V t265 = c[3] * t230;
        const V t266 = t25 - t265;
        const V t267 = c[1] * t231;
        const V t268 = t266 + t267;
        const V t269 = c[2] * t233;
        const V t270 = t268 - t269;
        const V t271 = c[6] * t242;
        const V t272 = c[4] * t244;
        const V t273 = t271 - t272;
        const V t274 = c[5] * t247;
        const V t275 = t273 + t274;
        const V t276 = t270 - t275;
        io.out(3, t276);
        const V t277 = t270 + t275;
        io.out(18, t277);
    }
};

}  // namespace zulg
