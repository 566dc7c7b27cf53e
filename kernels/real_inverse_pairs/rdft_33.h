// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 33.
// Inverse DFT to 33 real points, prime-factor 3, 11; two lanes to a register.
// 85 sums, 53 differences, 104 products of registers, which do the 504 steps of the graph, those with
// `scale` included; 37 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<33> {
    static constexpr int steps = 504;  // with `scale`
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
        0.014582488655234533,  // c[7]: -Q[1] of 11
        0.6631646485033863,  // c[8]: -P[1] of 11
        0.01576834991891041,  // c[9]: -Q[2] of 11
        0.6631375114867465,  // c[10]: -P[2] of 11
        0.16065279913205563,  // c[11]: P[3] of 11
        0.6435764741901582,  // c[12]: -Q[3] of 11
        0.6208226732134613,  // c[13]: P[4] of 11
        0.23362193480940913,  // c[14]: -Q[4] of 11
        0.1,  // c[15]: 1/10
        0.33166247903553997,  // c[16]: -beta of 11
        1.7320508075688772,  // c[17]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x11 = io.pair(11);
        const V t0 = part<0>(x11);
        // doubled bins
        const V t1 = c[0] * t0;
        const V x0r = io.re(0);
        // spectrum block of 3, multiplier 2
        const V t2 = t1 + x0r;
        const V t3 = c[5] * t1;
        const V t4 = x0r - t3;
        const V t5 = part<1>(x11);
        const V t6 = c[17] * t5;
        const V t7 = t4 - t6;
        const V t8 = t4 + t6;
        const P x14 = io.pair(14);
        // doubled bins
        const P t9 = c[0] * x14;
        const P x8 = io.pair(8);
        const P t10 = P(c[0], -c[0]) * x8;
        // complex block of 3, multiplier 2
        const P t11 = t9 + t10;
        const P t12 = t9 - t10;
        const P x3 = io.pair(3);
        // doubled bins
        const P t13 = c[0] * x3;
        // complex block of 3, multiplier 2
        const P t14 = t11 + t13;
        const P t15 = c[5] * t11;
        const P t16 = t13 - t15;
        const P t17 = P(c[6], -c[6]) * t12;
        const P t18 = shuffled<1, 0>(t17);
        const P t19 = t16 + t18;
        const P t20 = t16 - t18;
        const P x16 = io.pair(16);
        // doubled bins
        const P t21 = c[0] * x16;
        const P x5 = io.pair(5);
        const P t22 = c[0] * x5;
        // complex block of 3, multiplier 2
        const P t23 = t21 + t22;
        const P t24 = shuffled<0, 3>(t21, t22);
        const P t25 = shuffled<0, 3>(t22, t21);
        const P t26 = t24 - t25;
        const P x6 = io.pair(6);
        // doubled bins
        const P t27 = c[0] * x6;
        const P t28 = flipped<0, 1>(t23);
        // complex block of 3, multiplier 2
        const P t29 = t27 + t28;
        const P t30 = P(-c[5], c[5]) * t23;
        const P t31 = t30 + t27;
        const P t32 = P(c[6], -c[6]) * t26;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x13 = io.pair(13);
        // doubled bins
        const P t36 = c[0] * x13;
        const P x2 = io.pair(2);
        const P t37 = c[0] * x2;
        // complex block of 3, multiplier 2
        const P t38 = t36 + t37;
        const P t39 = shuffled<0, 3>(t36, t37);
        const P t40 = shuffled<0, 3>(t37, t36);
        const P t41 = t39 - t40;
        const P x9 = io.pair(9);
        // doubled bins
        const P t42 = c[0] * x9;
        const P t43 = flipped<0, 1>(t38);
        // complex block of 3, multiplier 2
        const P t44 = t42 + t43;
        const P t45 = P(-c[5], c[5]) * t38;
        const P t46 = t45 + t42;
        const P t47 = P(c[6], -c[6]) * t41;
        const P t48 = shuffled<1, 0>(t47);
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        const P x1 = io.pair(1);
        // doubled bins
        const P t51 = c[0] * x1;
        const P x10 = io.pair(10);
        const P t52 = P(c[0], -c[0]) * x10;
        // complex block of 3, multiplier 2
        const P t53 = t51 + t52;
        const P t54 = flipped<0, 1>(t52);
        const P t55 = flipped<1, 0>(t51);
        const P t56 = t54 + t55;
        const P x12 = io.pair(12);
        // doubled bins
        const P t57 = c[0] * x12;
        // complex block of 3, multiplier 2
        const P t58 = t53 + t57;
        const P t59 = c[5] * t53;
        const P t60 = t57 - t59;
        const P t61 = c[6] * t56;
        const P t62 = shuffled<1, 0>(t61);
        const P t63 = t60 + t62;
        const P t64 = t60 - t62;
        const P x4 = io.pair(4);
        // doubled bins
        const P t65 = c[0] * x4;
        const P x7 = io.pair(7);
        const P t66 = P(c[0], -c[0]) * x7;
        // complex block of 3, multiplier 2
        const P t67 = t65 + t66;
        const P t68 = flipped<0, 1>(t66);
        const P t69 = flipped<1, 0>(t65);
        const P t70 = t68 + t69;
        const P x15 = io.pair(15);
        // doubled bins
        const P t71 = c[0] * x15;
        // complex block of 3, multiplier 2
        const P t72 = t67 + t71;
        const P t73 = c[5] * t67;
        const P t74 = t71 - t73;
        const P t75 = c[6] * t70;
        const P t76 = shuffled<1, 0>(t75);
        const P t77 = t74 + t76;
        const P t78 = t74 - t76;
        const P t79 = shuffled<0, 2>(t29, t35);
        const P t80 = shuffled<0, 2>(t72, t78);
        // real block of 5
        const P t81 = t79 + t80;
        const P t82 = t79 - t80;
        const P t83 = shuffled<0, 2>(t44, t50);
        const P t84 = shuffled<0, 2>(t58, t64);
        const P t85 = t83 + t84;
        const P t86 = t83 - t84;
        const P t87 = t81 + t85;
        const P t88 = shuffled<0, 2>(t14, t20);
        const P t89 = t87 + t88;
        const P t90 = c[1] * t81;
        const P t91 = c[2] * t85;
        const P t92 = t90 - t91;
        const P t93 = t92 + t88;
        const P t94 = c[3] * t86;
        const P t95 = c[4] * t82;
        const P t96 = t94 - t95;
        const P t97 = c[2] * t81;
        const P t98 = t88 - t97;
        const P t99 = c[1] * t85;
        const P t100 = t98 + t99;
        const P t101 = c[3] * t82;
        const P t102 = c[4] * t86;
        const P t103 = t101 + t102;
        const P t104 = shuffled<1, 3>(t72, t78);
        const P t105 = shuffled<1, 3>(t29, t35);
        // real block of 5
        const P t106 = t104 - t105;
        const P t107 = t105 + t104;
        const P t108 = shuffled<1, 3>(t44, t50);
        const P t109 = shuffled<1, 3>(t58, t64);
        const P t110 = t108 + t109;
        const P t111 = t108 - t109;
        const P t112 = t106 + t110;
        const P t113 = shuffled<1, 3>(t14, t20);
        const P t114 = t112 + t113;
        const P t115 = c[1] * t106;
        const P t116 = c[2] * t110;
        const P t117 = t115 - t116;
        const P t118 = t117 + t113;
        const P t119 = c[4] * t107;
        const P t120 = c[3] * t111;
        const P t121 = t119 + t120;
        const P t122 = c[2] * t106;
        const P t123 = t113 - t122;
        const P t124 = c[1] * t110;
        const P t125 = t123 + t124;
        const P t126 = c[3] * t107;
        const P t127 = c[4] * t111;
        const P t128 = t126 - t127;
        const P t129 = joined(t2, t8);
        // spectrum block of 11, multiplier 3
        const P t130 = c[15] * t89;
        const P t131 = t129 - t130;
        const P t132 = c[7] * t125;
        const P t133 = c[8] * t128;
        const P t134 = t132 + t133;
        const P t135 = c[7] * t128;
        const P t136 = c[8] * t125;
        const P t137 = t135 - t136;
        const P t138 = c[9] * t96;
        const P t139 = c[10] * t93;
        const P t140 = t138 - t139;
        const P t141 = c[10] * t96;
        const P t142 = c[9] * t93;
        const P t143 = t141 + t142;
        const P t144 = c[11] * t121;
        const P t145 = c[12] * t118;
        const P t146 = t144 - t145;
        const P t147 = c[12] * t121;
        const P t148 = c[11] * t118;
        const P t149 = t147 + t148;
        const P t150 = c[13] * t100;
        const P t151 = c[14] * t103;
        const P t152 = t150 - t151;
        const P t153 = c[13] * t103;
        const P t154 = c[14] * t100;
        const P t155 = t153 + t154;
        const P t156 = c[16] * t114;
        // spectrum block of 2
        const P t157 = t131 - t156;
        const P t158 = t131 + t156;
        // complex block of 2
        const P t159 = t143 + t149;
        const P t160 = t140 + t146;
        const P t161 = t149 - t143;
        const P t162 = t140 - t146;
        // complex block of 2
        const P t163 = t155 + t137;
        const P t164 = t152 - t134;
        const P t165 = t137 - t155;
        const P t166 = t152 + t134;
        // spectrum block of 5, multiplier 2
        const P t167 = t160 + t164;
        const P t168 = t167 + t157;
        io.out(3, 14, t168);
        const P t169 = c[1] * t160;
        const P t170 = c[2] * t164;
        const P t171 = t169 - t170;
        const P t172 = t171 + t157;
        const P t173 = c[4] * t159;
        const P t174 = c[3] * t163;
        const P t175 = t173 + t174;
        const P t176 = t172 + t175;
        io.out(15, 26, t176);
        const P t177 = t172 - t175;
        io.out(27, 5, t177);
        const P t178 = c[2] * t160;
        const P t179 = t157 - t178;
        const P t180 = c[1] * t164;
        const P t181 = t179 + t180;
        const P t182 = c[4] * t163;
        const P t183 = c[3] * t159;
        const P t184 = t182 - t183;
        const P t185 = t181 - t184;
        io.out(9, 20, t185);
        const P t186 = t181 + t184;
        io.out(12, 23, t186);
        // spectrum block of 5, multiplier 2
        const P t187 = t162 + t166;
        const P t188 = t187 + t158;
        io.out(30, 8, t188);
        const P t189 = c[1] * t162;
        const P t190 = c[2] * t166;
        const P t191 = t189 - t190;
        const P t192 = t191 + t158;
        const P t193 = c[4] * t161;
        const P t194 = c[3] * t165;
        const P t195 = t193 + t194;
        const P t196 = t192 - t195;
        io.out(18, 29, t196);
        const P t197 = t192 + t195;
        io.out(6, 17, t197);
        const P t198 = c[2] * t162;
        const P t199 = t158 - t198;
        const P t200 = c[1] * t166;
        const P t201 = t199 + t200;
        const P t202 = c[3] * t161;
        const P t203 = c[4] * t165;
        const P t204 = t202 - t203;
        const P t205 = t201 - t204;
        io.out(24, 2, t205);
        const P t206 = t201 + t204;
        io.out(21, 32, t206);
        // spectrum block of 11, multiplier 3
        const P t207 = t129 + t89;
        io.out(0, 11, t207);
        const P t208 = flipped<0, 1>(t34);
        // real block of 5
        const P t209 = t77 + t208;
        const P t210 = flipped<1, 0>(t77);
        const P t211 = t34 + t210;
        const P t212 = t49 + t63;
        const P t213 = t49 - t63;
        const P t214 = t209 + t212;
        const P t215 = t214 + t19;
        const P t216 = c[1] * t209;
        const P t217 = c[2] * t212;
        const P t218 = t216 - t217;
        const P t219 = t218 + t19;
        const P t220 = P(-c[4], c[4]) * t211;
        const P t221 = c[3] * t213;
        const P t222 = t220 + t221;
        const P t223 = c[2] * t209;
        const P t224 = t19 - t223;
        const P t225 = c[1] * t212;
        const P t226 = t224 + t225;
        const P t227 = c[3] * t211;
        const P t228 = P(c[4], -c[4]) * t213;
        const P t229 = t227 + t228;
        const V t230 = part<0>(t215);
        // spectrum block of 11, multiplier 3
        const V t231 = c[15] * t230;
        const V t232 = t7 - t231;
        const P t233 = shuffled<1, 3>(t226, t229);
        const P t234 = c[7] * t233;
        const P t235 = shuffled<1, 0>(t233);
        const P t236 = P(c[8], -c[8]) * t235;
        const P t237 = t234 + t236;
        const P t238 = shuffled<0, 2>(t219, t222);
        const P t239 = P(-c[10], c[10]) * t238;
        const P t240 = shuffled<1, 0>(t238);
        const P t241 = c[9] * t240;
        const P t242 = t239 + t241;
        const P t243 = shuffled<1, 3>(t219, t222);
        const P t244 = P(-c[12], c[12]) * t243;
        const P t245 = shuffled<1, 0>(t243);
        const P t246 = c[11] * t245;
        const P t247 = t244 + t246;
        const P t248 = shuffled<0, 2>(t226, t229);
        const P t249 = c[13] * t248;
        const P t250 = shuffled<1, 0>(t248);
        const P t251 = P(-c[14], c[14]) * t250;
        const P t252 = t249 + t251;
        const V t253 = part<1>(t215);
        const V t254 = c[16] * t253;
        // spectrum block of 2
        const V t255 = t232 - t254;
        const V t256 = t232 + t254;
        // complex block of 2
        const P t257 = t242 + t247;
        const P t258 = shuffled<0, 3>(t242, t247);
        const P t259 = shuffled<0, 3>(t247, t242);
        const P t260 = t258 - t259;
        const P t261 = flipped<1, 0>(t237);
        // complex block of 2
        const P t262 = t252 + t261;
        const P t263 = flipped<0, 1>(t252);
        const P t264 = t237 + t263;
        const P t265 = shuffled<0, 2>(t257, t260);
        const P t266 = shuffled<0, 2>(t262, t264);
        // spectrum block of 5, multiplier 2
        const P t267 = t265 + t266;
        const P t268 = joined(t255, t256);
        const P t269 = t267 + t268;
        io.out(25, 19, t269);
        const P t270 = c[1] * t265;
        const P t271 = c[2] * t266;
        const P t272 = t270 - t271;
        const P t273 = t272 + t268;
        const P t274 = shuffled<1, 3>(t257, t260);
        const P t275 = c[4] * t274;
        const P t276 = shuffled<1, 3>(t262, t264);
        const P t277 = c[3] * t276;
        const P t278 = t275 + t277;
        const P t279 = flipped<0, 1>(t278);
        const P t280 = t273 + t279;
        io.out(4, 7, t280);
        const P t281 = t273 - t279;
        io.out(16, 28, t281);
        const P t282 = c[2] * t265;
        const P t283 = t268 - t282;
        const P t284 = c[1] * t266;
        const P t285 = t283 + t284;
        const P t286 = P(-c[3], c[3]) * t274;
        const P t287 = P(c[4], -c[4]) * t276;
        const P t288 = t286 + t287;
        const P t289 = t285 - t288;
        io.out(31, 13, t289);
        const P t290 = t285 + t288;
        io.out(1, 10, t290);
        // spectrum block of 11, multiplier 3
        const V t291 = t7 + t230;
        io.out(22, t291);
    }
};

}  // namespace zulg
