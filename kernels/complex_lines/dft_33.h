// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 33.
// Complex DFT of 33 points, prime-factor, order 3, 11; two lines of a stage to a register.
// 104 sums, 84 differences, 104 products of registers, which do the 1010 steps of the graph, those with
// `scale` included; 43 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<33> {
    static constexpr int steps = 1010;  // with `scale`
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.014582488655234533,  // c[6]: Q[1] of 11
        0.6631646485033863,  // c[7]: P[1] of 11
        0.6631375114867465,  // c[8]: -P[2] of 11
        0.01576834991891041,  // c[9]: -Q[2] of 11
        0.16065279913205563,  // c[10]: -P[3] of 11
        0.6435764741901582,  // c[11]: Q[3] of 11
        0.6208226732134613,  // c[12]: P[4] of 11
        0.23362193480940913,  // c[13]: -Q[4] of 11
        0.1,  // c[14]: 1/10
        0.33166247903553997,  // c[15]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x11_14 = io.pairs(11, 14);
        const Q x22_25 = io.pairs(22, 25);
        // complex block of 3, multiplier 2
        const Q t0 = x11_14 + x22_25;
        const Q t1 = x11_14 - x22_25;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[4] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[5], c[5], -c[5], c[5]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x17_20 = io.pairs(17, 20);
        const Q x28_31 = io.pairs(28, 31);
        // complex block of 3, multiplier 2
        const Q t9 = x17_20 + x28_31;
        const Q t10 = x17_20 - x28_31;
        const Q x6_9 = io.pairs(6, 9);
        const Q t11 = t9 + x6_9;
        const Q t12 = c[4] * t9;
        const Q t13 = x6_9 - t12;
        const Q t14 = Q(-c[5], c[5], -c[5], c[5]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x23_26 = io.pairs(23, 26);
        const Q x1_4 = io.pairs(1, 4);
        // complex block of 3, multiplier 2
        const Q t18 = x23_26 + x1_4;
        const Q t19 = x23_26 - x1_4;
        const Q x12_15 = io.pairs(12, 15);
        const Q t20 = t18 + x12_15;
        const Q t21 = c[4] * t18;
        const Q t22 = x12_15 - t21;
        const Q t23 = Q(-c[5], c[5], -c[5], c[5]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        const Q x29_32 = io.pairs(29, 32);
        const Q x7_10 = io.pairs(7, 10);
        // complex block of 3, multiplier 2
        const Q t27 = x29_32 + x7_10;
        const Q t28 = x29_32 - x7_10;
        const Q x18_21 = io.pairs(18, 21);
        const Q t29 = t27 + x18_21;
        const Q t30 = c[4] * t27;
        const Q t31 = x18_21 - t30;
        const Q t32 = Q(-c[5], c[5], -c[5], c[5]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q x2_5 = io.pairs(2, 5);
        const Q x13_16 = io.pairs(13, 16);
        // complex block of 3, multiplier 2
        const Q t36 = x2_5 + x13_16;
        const Q t37 = x2_5 - x13_16;
        const Q x24_27 = io.pairs(24, 27);
        const Q t38 = t36 + x24_27;
        const Q t39 = c[4] * t36;
        const Q t40 = x24_27 - t39;
        const Q t41 = Q(-c[5], c[5], -c[5], c[5]) * t37;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        const P x8 = io.pair(8);
        const P x19 = io.pair(19);
        // complex block of 3, multiplier 2
        const P t45 = x8 + x19;
        const P t46 = x8 - x19;
        const P x30 = io.pair(30);
        const P t47 = t45 + x30;
        const P t48 = c[4] * t45;
        const P t49 = x30 - t48;
        const P t50 = P(-c[5], c[5]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const Q t54 = shuffled<0, 1, 4, 5>(t20, t26);
        const Q t55 = shuffled<2, 3, 6, 7>(t11, t17);
        // real block of 5, multiplier 2
        const Q t56 = t54 + t55;
        const Q t57 = t54 - t55;
        const Q t58 = shuffled<2, 3, 6, 7>(t38, t44);
        const Q t59 = shuffled<2, 3, 6, 7>(t20, t26);
        const Q t60 = t58 + t59;
        const Q t61 = t58 - t59;
        const Q t62 = t56 + t60;
        const Q t63 = shuffled<2, 3, 6, 7>(t2, t8);
        const Q t64 = t62 + t63;
        const Q t65 = c[0] * t56;
        const Q t66 = t63 - t65;
        const Q t67 = c[1] * t60;
        const Q t68 = t66 + t67;
        const Q t69 = c[2] * t57;
        const Q t70 = c[3] * t61;
        const Q t71 = t69 + t70;
        const Q t72 = c[1] * t56;
        const Q t73 = c[0] * t60;
        const Q t74 = t72 - t73;
        const Q t75 = t74 + t63;
        const Q t76 = c[3] * t57;
        const Q t77 = c[2] * t61;
        const Q t78 = t76 - t77;
        const Q t79 = shuffled<2, 3, 6, 7>(t29, t35);
        const Q t80 = shuffled<0, 1, 4, 5>(t38, t44);
        // real block of 5, multiplier 2
        const Q t81 = t79 + t80;
        const Q t82 = t79 - t80;
        const Q t83 = shuffled<0, 1, 4, 5>(t11, t17);
        const Q t84 = shuffled<0, 1, 4, 5>(t29, t35);
        const Q t85 = t83 + t84;
        const Q t86 = t83 - t84;
        const Q t87 = t81 + t85;
        const Q t88 = joined(t47, t53);
        const Q t89 = t87 + t88;
        const Q t90 = c[0] * t81;
        const Q t91 = t88 - t90;
        const Q t92 = c[1] * t85;
        const Q t93 = t91 + t92;
        const Q t94 = c[2] * t82;
        const Q t95 = c[3] * t86;
        const Q t96 = t94 + t95;
        const Q t97 = c[1] * t81;
        const Q t98 = c[0] * t85;
        const Q t99 = t97 - t98;
        const Q t100 = t99 + t88;
        const Q t101 = c[3] * t82;
        const Q t102 = c[2] * t86;
        const Q t103 = t101 - t102;
        // real block of 2
        const Q t104 = t64 + t89;
        const Q t105 = t64 - t89;
        // complex block of 2
        const Q t106 = t68 + t93;
        const Q t107 = t71 + t96;
        const Q t108 = t68 - t93;
        const Q t109 = t96 - t71;
        // complex block of 2
        const Q t110 = t75 + t100;
        const Q t111 = t78 + t103;
        const Q t112 = t75 - t100;
        const Q t113 = t78 - t103;
        const Q t114 = shuffled<0, 1, 4, 5>(t2, t8);
        // complex block of 11, multiplier 3
        const Q t115 = t114 + t104;
        io.pairs(0, 11, t115);
        const Q t116 = c[14] * t104;
        const Q t117 = t114 - t116;
        const Q t118 = shuffled<1, 0, 3, 2>(t112);
        const Q t119 = c[6] * t118;
        const Q t120 = shuffled<1, 0, 3, 2>(t113);
        const Q t121 = c[7] * t120;
        const Q t122 = t119 + t121;
        const Q t123 = Q(-c[6], c[6], -c[6], c[6]) * t120;
        const Q t124 = Q(c[7], -c[7], c[7], -c[7]) * t118;
        const Q t125 = t123 + t124;
        const Q t126 = c[8] * t106;
        const Q t127 = c[9] * t107;
        const Q t128 = t126 + t127;
        const Q t129 = c[8] * t107;
        const Q t130 = c[9] * t106;
        const Q t131 = t129 - t130;
        const Q t132 = shuffled<1, 0, 3, 2>(t109);
        const Q t133 = Q(-c[10], c[10], -c[10], c[10]) * t132;
        const Q t134 = shuffled<1, 0, 3, 2>(t108);
        const Q t135 = Q(c[11], -c[11], c[11], -c[11]) * t134;
        const Q t136 = t133 + t135;
        const Q t137 = c[11] * t132;
        const Q t138 = c[10] * t134;
        const Q t139 = t137 + t138;
        const Q t140 = c[12] * t110;
        const Q t141 = c[13] * t111;
        const Q t142 = t140 + t141;
        const Q t143 = c[12] * t111;
        const Q t144 = c[13] * t110;
        const Q t145 = t143 - t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t105);
        const Q t147 = Q(c[15], -c[15], c[15], -c[15]) * t146;
        // spectrum block of 2
        const Q t148 = t117 + t147;
        const Q t149 = t117 - t147;
        const Q t150 = flipped<0, 1, 0, 1>(t139);
        // complex block of 2
        const Q t151 = t131 + t150;
        const Q t152 = t136 - t128;
        const Q t153 = t131 - t150;
        const Q t154 = t128 + t136;
        // complex block of 2
        const Q t155 = t145 - t125;
        const Q t156 = flipped<0, 1, 0, 1>(t122);
        const Q t157 = t142 + t156;
        const Q t158 = t145 + t125;
        const Q t159 = t142 - t156;
        // spectrum block of 5, multiplier 2
        const Q t160 = t152 + t157;
        const Q t161 = t160 + t148;
        io.pairs(3, 14, t161);
        const Q t162 = c[1] * t152;
        const Q t163 = c[0] * t157;
        const Q t164 = t162 - t163;
        const Q t165 = t164 + t148;
        const Q t166 = c[3] * t151;
        const Q t167 = c[2] * t155;
        const Q t168 = t166 + t167;
        const Q t169 = t165 - t168;
        io.pairs(15, 26, t169);
        const Q t170 = t165 + t168;
        io.pairs(27, 5, t170);
        const Q t171 = c[0] * t152;
        const Q t172 = t148 - t171;
        const Q t173 = c[1] * t157;
        const Q t174 = t172 + t173;
        const Q t175 = c[2] * t151;
        const Q t176 = c[3] * t155;
        const Q t177 = t175 - t176;
        const Q t178 = t174 - t177;
        io.pairs(9, 20, t178);
        const Q t179 = t174 + t177;
        io.pairs(12, 23, t179);
        // spectrum block of 5, multiplier 2
        const Q t180 = t159 - t154;
        const Q t181 = t180 + t149;
        io.pairs(30, 8, t181);
        const Q t182 = c[1] * t154;
        const Q t183 = t149 - t182;
        const Q t184 = c[0] * t159;
        const Q t185 = t183 - t184;
        const Q t186 = c[3] * t153;
        const Q t187 = c[2] * t158;
        const Q t188 = t186 + t187;
        const Q t189 = t185 - t188;
        io.pairs(18, 29, t189);
        const Q t190 = t185 + t188;
        io.pairs(6, 17, t190);
        const Q t191 = c[0] * t154;
        const Q t192 = c[1] * t159;
        const Q t193 = t191 + t192;
        const Q t194 = t193 + t149;
        const Q t195 = c[2] * t153;
        const Q t196 = c[3] * t158;
        const Q t197 = t195 - t196;
        const Q t198 = t194 - t197;
        io.pairs(24, 2, t198);
        const Q t199 = t194 + t197;
        io.pairs(21, 32, t199);
        const P t200 = part<0>(t25);
        const P t201 = part<1>(t16);
        // real block of 5, multiplier 2
        const P t202 = t200 + t201;
        const P t203 = t200 - t201;
        const P t204 = part<1>(t43);
        const P t205 = part<1>(t25);
        const P t206 = t204 + t205;
        const P t207 = t204 - t205;
        const P t208 = t202 + t206;
        const P t209 = part<1>(t7);
        const P t210 = t208 + t209;
        const P t211 = c[0] * t202;
        const P t212 = t209 - t211;
        const P t213 = c[1] * t206;
        const P t214 = t212 + t213;
        const P t215 = c[2] * t203;
        const P t216 = c[3] * t207;
        const P t217 = t215 + t216;
        const P t218 = c[1] * t202;
        const P t219 = c[0] * t206;
        const P t220 = t218 - t219;
        const P t221 = t220 + t209;
        const P t222 = c[3] * t203;
        const P t223 = c[2] * t207;
        const P t224 = t222 - t223;
        const P t225 = part<1>(t34);
        const P t226 = part<0>(t43);
        // real block of 5, multiplier 2
        const P t227 = t225 + t226;
        const P t228 = t225 - t226;
        const P t229 = part<0>(t16);
        const P t230 = part<0>(t34);
        const P t231 = t229 + t230;
        const P t232 = t229 - t230;
        const P t233 = t227 + t231;
        const P t234 = t233 + t52;
        const P t235 = c[0] * t227;
        const P t236 = t52 - t235;
        const P t237 = c[1] * t231;
        const P t238 = t236 + t237;
        const P t239 = c[2] * t228;
        const P t240 = c[3] * t232;
        const P t241 = t239 + t240;
        const P t242 = c[1] * t227;
        const P t243 = c[0] * t231;
        const P t244 = t242 - t243;
        const P t245 = t244 + t52;
        const P t246 = c[3] * t228;
        const P t247 = c[2] * t232;
        const P t248 = t246 - t247;
        // real block of 2
        const P t249 = t210 + t234;
        const P t250 = t210 - t234;
        // complex block of 2
        const P t251 = t214 + t238;
        const P t252 = t217 + t241;
        const P t253 = t214 - t238;
        const P t254 = t241 - t217;
        // complex block of 2
        const P t255 = t221 + t245;
        const P t256 = t224 + t248;
        const P t257 = t221 - t245;
        const P t258 = t224 - t248;
        const P t259 = part<0>(t7);
        // complex block of 11, multiplier 3
        const P t260 = t259 + t249;
        io.pair(22, t260);
        const P t261 = c[14] * t249;
        const P t262 = t259 - t261;
        const Q t263 = joined(t258, t258);
        const Q t264 = shuffled<1, 0, 3, 2>(t263);
        const Q t265 = Q(c[7], c[7], -c[6], c[6]) * t264;
        const Q t266 = joined(t257, t257);
        const Q t267 = shuffled<1, 0, 3, 2>(t266);
        const Q t268 = Q(c[6], c[6], c[7], -c[7]) * t267;
        const Q t269 = t265 + t268;
        const Q t270 = joined(t251, t252);
        const Q t271 = c[8] * t270;
        const Q t272 = shuffled<2, 3, 0, 1>(t270);
        const Q t273 = Q(c[9], c[9], -c[9], -c[9]) * t272;
        const Q t274 = t271 + t273;
        const Q t275 = joined(t253, t254);
        const Q t276 = shuffled<1, 0, 3, 2>(t275);
        const Q t277 = Q(c[11], -c[11], c[11], c[11]) * t276;
        const Q t278 = shuffled<2, 3, 0, 1>(t276);
        const Q t279 = Q(-c[10], c[10], c[10], c[10]) * t278;
        const Q t280 = t277 + t279;
        const Q t281 = joined(t255, t256);
        const Q t282 = c[12] * t281;
        const Q t283 = shuffled<2, 3, 0, 1>(t281);
        const Q t284 = Q(c[13], c[13], -c[13], -c[13]) * t283;
        const Q t285 = t282 + t284;
        const P t286 = shuffled<1, 0>(t250);
        const P t287 = P(c[15], -c[15]) * t286;
        // spectrum block of 2
        const P t288 = t262 + t287;
        const P t289 = t262 - t287;
        const P t290 = part<1>(t274);
        const P t291 = part<1>(t280);
        const P t292 = flipped<0, 1>(t291);
        // complex block of 2
        const P t293 = t290 + t292;
        const P t294 = part<0>(t280);
        const P t295 = part<0>(t274);
        const P t296 = t294 - t295;
        const P t297 = t290 - t292;
        const P t298 = t295 + t294;
        const P t299 = part<1>(t285);
        const P t300 = part<1>(t269);
        // complex block of 2
        const P t301 = t299 - t300;
        const P t302 = part<0>(t285);
        const P t303 = part<0>(t269);
        const P t304 = flipped<0, 1>(t303);
        const P t305 = t302 + t304;
        const P t306 = t299 + t300;
        const P t307 = t302 - t304;
        // spectrum block of 5, multiplier 2
        const P t308 = t296 + t305;
        const P t309 = t308 + t288;
        io.pair(25, t309);
        const P t310 = c[1] * t296;
        const P t311 = c[0] * t305;
        const P t312 = t310 - t311;
        const P t313 = t312 + t288;
        const P t314 = c[3] * t293;
        const P t315 = c[2] * t301;
        const P t316 = t314 + t315;
        const P t317 = t313 - t316;
        io.pair(4, t317);
        const P t318 = t313 + t316;
        io.pair(16, t318);
        const P t319 = c[0] * t296;
        const P t320 = t288 - t319;
        const P t321 = c[1] * t305;
        const P t322 = t320 + t321;
        const P t323 = c[2] * t293;
        const P t324 = c[3] * t301;
        const P t325 = t323 - t324;
        const P t326 = t322 - t325;
        io.pair(31, t326);
        const P t327 = t322 + t325;
        io.pair(1, t327);
        // spectrum block of 5, multiplier 2
        const P t328 = t307 - t298;
        const P t329 = t328 + t289;
        io.pair(19, t329);
        const P t330 = c[1] * t298;
        const P t331 = t289 - t330;
        const P t332 = c[0] * t307;
        const P t333 = t331 - t332;
        const P t334 = c[3] * t297;
        const P t335 = c[2] * t306;
        const P t336 = t334 + t335;
        const P t337 = t333 - t336;
        io.pair(7, t337);
        const P t338 = t333 + t336;
        io.pair(28, t338);
        const P t339 = c[0] * t298;
        const P t340 = c[1] * t307;
        const P t341 = t339 + t340;
        const P t342 = t341 + t289;
        const P t343 = c[2] * t297;
        const P t344 = c[3] * t306;
        const P t345 = t343 - t344;
        const P t346 = t342 - t345;
        io.pair(13, t346);
        const P t347 = t342 + t345;
        io.pair(10, t347);
    }
};

}  // namespace zulg
