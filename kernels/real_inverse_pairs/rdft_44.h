// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 44.
// Inverse DFT to 44 real points, prime-factor 4, 11; two lanes to a register.
// 101 sums, 79 differences, 121 products of registers, which do the 644 steps of the graph, those with
// `scale` included; 26 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<44> {
    static constexpr int steps = 644;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5450828424811972,  // c[5]: P[1] of 11
        0.3780009190896476,  // c[6]: -Q[1] of 11
        0.6355539395974166,  // c[7]: -Q[2] of 11
        0.18992416871531467,  // c[8]: -P[2] of 11
        0.6617220446385197,  // c[9]: P[3] of 11
        0.046086176229070706,  // c[10]: -Q[3] of 11
        0.5539145271232301,  // c[11]: Q[4] of 11
        0.3649365652299704,  // c[12]: -P[4] of 11
        0.1,  // c[13]: 1/10
        0.33166247903553997,  // c[14]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x22r = io.re(22);
        // spectrum block of 2
        const V t0 = x0r + x22r;
        const V t1 = x0r - x22r;
        const P t2 = joined(t0, t1);
        const P x11 = io.pair(11);
        // doubled bins
        const P t3 = c[0] * x11;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x18 = io.pair(18);
        const P t7 = P(c[0], -c[0]) * x18;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x15 = io.pair(15);
        // doubled bins
        const P t10 = c[0] * x15;
        const P x7 = io.pair(7);
        const P t11 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        // complex block of 2
        const P t14 = t8 + t12;
        const P t15 = t8 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<0, 1>(t16);
        // complex block of 2
        const P t18 = t9 + t17;
        const P t19 = t9 - t17;
        const P x8 = io.pair(8);
        // doubled bins
        const P t20 = c[0] * x8;
        const P x14 = io.pair(14);
        const P t21 = P(c[0], -c[0]) * x14;
        // complex block of 2
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P x19 = io.pair(19);
        // doubled bins
        const P t24 = c[0] * x19;
        const P x3 = io.pair(3);
        const P t25 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        // complex block of 2
        const P t28 = t22 + t26;
        const P t29 = t22 - t26;
        const P t30 = shuffled<1, 0>(t27);
        const P t31 = flipped<0, 1>(t30);
        // complex block of 2
        const P t32 = t23 + t31;
        const P t33 = t23 - t31;
        const P x12 = io.pair(12);
        // doubled bins
        const P t34 = c[0] * x12;
        const P x10 = io.pair(10);
        const P t35 = P(c[0], -c[0]) * x10;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P x1 = io.pair(1);
        // doubled bins
        const P t38 = c[0] * x1;
        const P x21 = io.pair(21);
        const P t39 = P(c[0], -c[0]) * x21;
        // complex block of 2
        const P t40 = t38 + t39;
        const P t41 = flipped<0, 1>(t39);
        const P t42 = flipped<1, 0>(t38);
        const P t43 = t41 + t42;
        // complex block of 2
        const P t44 = t36 + t40;
        const P t45 = t36 - t40;
        const P t46 = shuffled<1, 0>(t43);
        // complex block of 2
        const P t47 = t37 - t46;
        const P t48 = t37 + t46;
        const P x16 = io.pair(16);
        // doubled bins
        const P t49 = c[0] * x16;
        const P x6 = io.pair(6);
        const P t50 = P(c[0], -c[0]) * x6;
        // complex block of 2
        const P t51 = t49 + t50;
        const P t52 = t49 - t50;
        const P x5 = io.pair(5);
        // doubled bins
        const P t53 = c[0] * x5;
        const P x17 = io.pair(17);
        const P t54 = P(c[0], -c[0]) * x17;
        // complex block of 2
        const P t55 = t53 + t54;
        const P t56 = flipped<0, 1>(t54);
        const P t57 = flipped<1, 0>(t53);
        const P t58 = t56 + t57;
        // complex block of 2
        const P t59 = t51 + t55;
        const P t60 = t51 - t55;
        const P t61 = shuffled<1, 0>(t58);
        // complex block of 2
        const P t62 = t52 - t61;
        const P t63 = t52 + t61;
        const P x20 = io.pair(20);
        // doubled bins
        const P t64 = c[0] * x20;
        const P x2 = io.pair(2);
        const P t65 = P(c[0], -c[0]) * x2;
        // complex block of 2
        const P t66 = t64 + t65;
        const P t67 = t64 - t65;
        const P x9 = io.pair(9);
        // doubled bins
        const P t68 = c[0] * x9;
        const P x13 = io.pair(13);
        const P t69 = P(c[0], -c[0]) * x13;
        // complex block of 2
        const P t70 = t68 + t69;
        const P t71 = flipped<0, 1>(t69);
        const P t72 = flipped<1, 0>(t68);
        const P t73 = t71 + t72;
        // complex block of 2
        const P t74 = t66 + t70;
        const P t75 = t66 - t70;
        const P t76 = shuffled<1, 0>(t73);
        // complex block of 2
        const P t77 = t67 - t76;
        const P t78 = t67 + t76;
        const P t79 = shuffled<0, 2>(t28, t32);
        const P t80 = shuffled<0, 2>(t74, t77);
        // real block of 5
        const P t81 = t79 + t80;
        const P t82 = t79 - t80;
        const P t83 = shuffled<0, 2>(t44, t47);
        const P t84 = shuffled<0, 2>(t59, t62);
        const P t85 = t83 + t84;
        const P t86 = t83 - t84;
        const P t87 = t81 + t85;
        const P t88 = shuffled<0, 2>(t14, t18);
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
        const P t104 = shuffled<1, 3>(t74, t77);
        const P t105 = shuffled<1, 3>(t28, t32);
        // real block of 5
        const P t106 = t104 - t105;
        const P t107 = t105 + t104;
        const P t108 = shuffled<1, 3>(t44, t47);
        const P t109 = shuffled<1, 3>(t59, t62);
        const P t110 = t108 + t109;
        const P t111 = t108 - t109;
        const P t112 = t106 + t110;
        const P t113 = shuffled<1, 3>(t14, t18);
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
        // spectrum block of 11, multiplier 4
        const P t129 = c[13] * t89;
        const P t130 = t4 - t129;
        const P t131 = c[5] * t128;
        const P t132 = c[6] * t125;
        const P t133 = t131 - t132;
        const P t134 = c[6] * t128;
        const P t135 = c[5] * t125;
        const P t136 = t134 + t135;
        const P t137 = c[7] * t96;
        const P t138 = c[8] * t93;
        const P t139 = t137 - t138;
        const P t140 = c[8] * t96;
        const P t141 = c[7] * t93;
        const P t142 = t140 + t141;
        const P t143 = c[9] * t121;
        const P t144 = c[10] * t118;
        const P t145 = t143 - t144;
        const P t146 = c[10] * t121;
        const P t147 = c[9] * t118;
        const P t148 = t146 + t147;
        const P t149 = c[11] * t103;
        const P t150 = c[12] * t100;
        const P t151 = t149 - t150;
        const P t152 = c[12] * t103;
        const P t153 = c[11] * t100;
        const P t154 = t152 + t153;
        const P t155 = c[14] * t114;
        // spectrum block of 2
        const P t156 = t130 - t155;
        const P t157 = t130 + t155;
        // complex block of 2
        const P t158 = t142 + t148;
        const P t159 = t139 + t145;
        const P t160 = t148 - t142;
        const P t161 = t139 - t145;
        // complex block of 2
        const P t162 = t154 - t136;
        const P t163 = t151 + t133;
        const P t164 = t154 + t136;
        const P t165 = t151 - t133;
        // spectrum block of 5, multiplier 2
        const P t166 = t159 + t163;
        const P t167 = t166 + t156;
        io.out(4, 15, t167);
        const P t168 = c[1] * t159;
        const P t169 = c[2] * t163;
        const P t170 = t168 - t169;
        const P t171 = t170 + t156;
        const P t172 = c[3] * t162;
        const P t173 = c[4] * t158;
        const P t174 = t172 - t173;
        const P t175 = t171 - t174;
        io.out(20, 31, t175);
        const P t176 = t171 + t174;
        io.out(36, 3, t176);
        const P t177 = c[2] * t159;
        const P t178 = t156 - t177;
        const P t179 = c[1] * t163;
        const P t180 = t178 + t179;
        const P t181 = c[3] * t158;
        const P t182 = c[4] * t162;
        const P t183 = t181 + t182;
        const P t184 = t180 + t183;
        io.out(12, 23, t184);
        const P t185 = t180 - t183;
        io.out(16, 27, t185);
        // spectrum block of 5, multiplier 2
        const P t186 = t161 + t165;
        const P t187 = t186 + t157;
        io.out(40, 7, t187);
        const P t188 = c[1] * t161;
        const P t189 = c[2] * t165;
        const P t190 = t188 - t189;
        const P t191 = t190 + t157;
        const P t192 = c[4] * t160;
        const P t193 = c[3] * t164;
        const P t194 = t192 + t193;
        const P t195 = t191 - t194;
        io.out(24, 35, t195);
        const P t196 = t191 + t194;
        io.out(8, 19, t196);
        const P t197 = c[2] * t161;
        const P t198 = t157 - t197;
        const P t199 = c[1] * t165;
        const P t200 = t198 + t199;
        const P t201 = c[3] * t160;
        const P t202 = c[4] * t164;
        const P t203 = t201 - t202;
        const P t204 = t200 - t203;
        io.out(32, 43, t204);
        const P t205 = t200 + t203;
        io.out(28, 39, t205);
        // spectrum block of 11, multiplier 4
        const P t206 = t4 + t89;
        io.out(0, 11, t206);
        const P t207 = shuffled<0, 2>(t29, t33);
        const P t208 = shuffled<0, 2>(t75, t78);
        // real block of 5
        const P t209 = t207 + t208;
        const P t210 = t207 - t208;
        const P t211 = shuffled<0, 2>(t45, t48);
        const P t212 = shuffled<0, 2>(t60, t63);
        const P t213 = t211 + t212;
        const P t214 = t211 - t212;
        const P t215 = t209 + t213;
        const P t216 = shuffled<0, 2>(t15, t19);
        const P t217 = t215 + t216;
        const P t218 = c[1] * t209;
        const P t219 = c[2] * t213;
        const P t220 = t218 - t219;
        const P t221 = t220 + t216;
        const P t222 = c[3] * t214;
        const P t223 = c[4] * t210;
        const P t224 = t222 - t223;
        const P t225 = c[2] * t209;
        const P t226 = t216 - t225;
        const P t227 = c[1] * t213;
        const P t228 = t226 + t227;
        const P t229 = c[3] * t210;
        const P t230 = c[4] * t214;
        const P t231 = t229 + t230;
        const P t232 = shuffled<1, 3>(t75, t78);
        const P t233 = shuffled<1, 3>(t29, t33);
        // real block of 5
        const P t234 = t232 - t233;
        const P t235 = t233 + t232;
        const P t236 = shuffled<1, 3>(t45, t48);
        const P t237 = shuffled<1, 3>(t60, t63);
        const P t238 = t236 + t237;
        const P t239 = t236 - t237;
        const P t240 = t234 + t238;
        const P t241 = shuffled<1, 3>(t15, t19);
        const P t242 = t240 + t241;
        const P t243 = c[1] * t234;
        const P t244 = c[2] * t238;
        const P t245 = t243 - t244;
        const P t246 = t245 + t241;
        const P t247 = c[4] * t235;
        const P t248 = c[3] * t239;
        const P t249 = t247 + t248;
        const P t250 = c[2] * t234;
        const P t251 = t241 - t250;
        const P t252 = c[1] * t238;
        const P t253 = t251 + t252;
        const P t254 = c[3] * t235;
        const P t255 = c[4] * t239;
        const P t256 = t254 - t255;
        // spectrum block of 11, multiplier 4
        const P t257 = c[13] * t217;
        const P t258 = t5 - t257;
        const P t259 = c[5] * t256;
        const P t260 = c[6] * t253;
        const P t261 = t259 - t260;
        const P t262 = c[6] * t256;
        const P t263 = c[5] * t253;
        const P t264 = t262 + t263;
        const P t265 = c[7] * t224;
        const P t266 = c[8] * t221;
        const P t267 = t265 - t266;
        const P t268 = c[8] * t224;
        const P t269 = c[7] * t221;
        const P t270 = t268 + t269;
        const P t271 = c[9] * t249;
        const P t272 = c[10] * t246;
        const P t273 = t271 - t272;
        const P t274 = c[10] * t249;
        const P t275 = c[9] * t246;
        const P t276 = t274 + t275;
        const P t277 = c[11] * t231;
        const P t278 = c[12] * t228;
        const P t279 = t277 - t278;
        const P t280 = c[12] * t231;
        const P t281 = c[11] * t228;
        const P t282 = t280 + t281;
        const P t283 = c[14] * t242;
        // spectrum block of 2
        const P t284 = t258 - t283;
        const P t285 = t258 + t283;
        // complex block of 2
        const P t286 = t270 + t276;
        const P t287 = t267 + t273;
        const P t288 = t276 - t270;
        const P t289 = t267 - t273;
        // complex block of 2
        const P t290 = t282 - t264;
        const P t291 = t279 + t261;
        const P t292 = t282 + t264;
        const P t293 = t279 - t261;
        // spectrum block of 5, multiplier 2
        const P t294 = t287 + t291;
        const P t295 = t294 + t284;
        io.out(26, 37, t295);
        const P t296 = c[1] * t287;
        const P t297 = c[2] * t291;
        const P t298 = t296 - t297;
        const P t299 = t298 + t284;
        const P t300 = c[3] * t290;
        const P t301 = c[4] * t286;
        const P t302 = t300 - t301;
        const P t303 = t299 - t302;
        io.out(42, 9, t303);
        const P t304 = t299 + t302;
        io.out(14, 25, t304);
        const P t305 = c[2] * t287;
        const P t306 = t284 - t305;
        const P t307 = c[1] * t291;
        const P t308 = t306 + t307;
        const P t309 = c[3] * t286;
        const P t310 = c[4] * t290;
        const P t311 = t309 + t310;
        const P t312 = t308 + t311;
        io.out(34, 1, t312);
        const P t313 = t308 - t311;
        io.out(38, 5, t313);
        // spectrum block of 5, multiplier 2
        const P t314 = t289 + t293;
        const P t315 = t314 + t285;
        io.out(18, 29, t315);
        const P t316 = c[1] * t289;
        const P t317 = c[2] * t293;
        const P t318 = t316 - t317;
        const P t319 = t318 + t285;
        const P t320 = c[4] * t288;
        const P t321 = c[3] * t292;
        const P t322 = t320 + t321;
        const P t323 = t319 - t322;
        io.out(2, 13, t323);
        const P t324 = t319 + t322;
        io.out(30, 41, t324);
        const P t325 = c[2] * t289;
        const P t326 = t285 - t325;
        const P t327 = c[1] * t293;
        const P t328 = t326 + t327;
        const P t329 = c[3] * t288;
        const P t330 = c[4] * t292;
        const P t331 = t329 - t330;
        const P t332 = t328 - t331;
        io.out(10, 21, t332);
        const P t333 = t328 + t331;
        io.out(6, 17, t333);
        // spectrum block of 11, multiplier 4
        const P t334 = t5 + t217;
        io.out(22, 33, t334);
    }
};

}  // namespace zulg
