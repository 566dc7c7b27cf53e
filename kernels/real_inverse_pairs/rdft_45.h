// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 45.
// Inverse DFT to 45 real points, prime-factor 5, 9; two lanes to a register.
// 91 sums, 66 differences, 107 products of registers, which do the 551 steps of the graph, those with
// `scale` included; 45 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<45> {
    static constexpr int steps = 551;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.30901699437494745,  // c[3]: cos 2 pi 1/5
        0.8090169943749475,  // c[4]: -cos 2 pi 2/5
        0.9510565162951535,  // c[5]: sin 2 pi 1/5
        0.5877852522924731,  // c[6]: sin 2 pi 2/5
        0.3420201433256687,  // c[7]: sin 2 pi 4/9
        0.9396926207859084,  // c[8]: -cos 2 pi 4/9
        0.766044443118978,  // c[9]: cos 2 pi 8/9
        0.6427876096865394,  // c[10]: -sin 2 pi 8/9
        0.8137976813493737,  // c[11]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[12]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.6634139481689384,  // c[13]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[14]: sin 2 pi 1/3 times -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x9 = io.pair(9);
        // doubled bins
        const P t0 = c[0] * x9;
        const V t1 = part<0>(t0);
        const P x18 = io.pair(18);
        const P t2 = c[0] * x18;
        const V t3 = part<0>(t2);
        // spectrum block of 5, multiplier 4
        const V t4 = t1 + t3;
        const V x0r = io.re(0);
        const V t5 = t4 + x0r;
        const V t6 = c[3] * t1;
        const V t7 = c[4] * t3;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0r;
        const V t10 = part<1>(t0);
        const V t11 = c[5] * t10;
        const V t12 = part<1>(t2);
        const V t13 = c[6] * t12;
        const V t14 = t11 + t13;
        const V t15 = t9 - t14;
        const V t16 = t9 + t14;
        const V t17 = c[4] * t1;
        const V t18 = x0r - t17;
        const V t19 = c[3] * t3;
        const V t20 = t18 + t19;
        const V t21 = c[6] * t10;
        const V t22 = c[5] * t12;
        const V t23 = t21 - t22;
        const V t24 = t20 - t23;
        const V t25 = t20 + t23;
        const P x14 = io.pair(14);
        // doubled bins
        const P t26 = c[0] * x14;
        const P x4 = io.pair(4);
        const P t27 = P(c[0], -c[0]) * x4;
        // complex block of 5, multiplier 4
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x13 = io.pair(13);
        // doubled bins
        const P t30 = c[0] * x13;
        const P x22 = io.pair(22);
        const P t31 = c[0] * x22;
        // complex block of 5, multiplier 4
        const P t32 = t30 + t31;
        const P t33 = shuffled<0, 3>(t30, t31);
        const P t34 = shuffled<0, 3>(t31, t30);
        const P t35 = t33 - t34;
        const P t36 = flipped<0, 1>(t32);
        const P t37 = t28 + t36;
        const P x5 = io.pair(5);
        // doubled bins
        const P t38 = c[0] * x5;
        // complex block of 5, multiplier 4
        const P t39 = t37 + t38;
        const P t40 = c[3] * t28;
        const P t41 = P(-c[4], c[4]) * t32;
        const P t42 = t40 + t41;
        const P t43 = t42 + t38;
        const P t44 = c[5] * t29;
        const P t45 = c[6] * t35;
        const P t46 = t44 - t45;
        const P t47 = shuffled<1, 0>(t46);
        const P t48 = flipped<1, 0>(t47);
        const P t49 = t43 + t48;
        const P t50 = t43 - t48;
        const P t51 = c[4] * t28;
        const P t52 = t38 - t51;
        const P t53 = P(c[3], -c[3]) * t32;
        const P t54 = t52 + t53;
        const P t55 = c[6] * t29;
        const P t56 = c[5] * t35;
        const P t57 = t55 + t56;
        const P t58 = shuffled<1, 0>(t57);
        const P t59 = flipped<1, 0>(t58);
        const P t60 = t54 + t59;
        const P t61 = t54 - t59;
        const P x19 = io.pair(19);
        // doubled bins
        const P t62 = c[0] * x19;
        const P x1 = io.pair(1);
        const P t63 = c[0] * x1;
        // complex block of 5, multiplier 4
        const P t64 = t62 + t63;
        const P t65 = t62 - t63;
        const P x8 = io.pair(8);
        // doubled bins
        const P t66 = c[0] * x8;
        const P x17 = io.pair(17);
        const P t67 = c[0] * x17;
        // complex block of 5, multiplier 4
        const P t68 = t66 + t67;
        const P t69 = shuffled<0, 3>(t66, t67);
        const P t70 = shuffled<0, 3>(t67, t66);
        const P t71 = t69 - t70;
        const P t72 = flipped<0, 1>(t68);
        const P t73 = t64 + t72;
        const P x10 = io.pair(10);
        // doubled bins
        const P t74 = c[0] * x10;
        // complex block of 5, multiplier 4
        const P t75 = t73 + t74;
        const P t76 = c[3] * t64;
        const P t77 = P(-c[4], c[4]) * t68;
        const P t78 = t76 + t77;
        const P t79 = t78 + t74;
        const P t80 = c[5] * t65;
        const P t81 = c[6] * t71;
        const P t82 = t80 - t81;
        const P t83 = shuffled<1, 0>(t82);
        const P t84 = flipped<1, 0>(t83);
        const P t85 = t79 + t84;
        const P t86 = t79 - t84;
        const P t87 = c[4] * t64;
        const P t88 = t74 - t87;
        const P t89 = P(c[3], -c[3]) * t68;
        const P t90 = t88 + t89;
        const P t91 = c[6] * t65;
        const P t92 = c[5] * t71;
        const P t93 = t91 + t92;
        const P t94 = shuffled<1, 0>(t93);
        const P t95 = flipped<1, 0>(t94);
        const P t96 = t90 + t95;
        const P t97 = t90 - t95;
        const P x6 = io.pair(6);
        // doubled bins
        const P t98 = c[0] * x6;
        const P x21 = io.pair(21);
        const P t99 = P(c[0], -c[0]) * x21;
        // complex block of 5, multiplier 4
        const P t100 = t98 + t99;
        const P t101 = flipped<0, 1>(t99);
        const P t102 = flipped<1, 0>(t98);
        const P t103 = t101 + t102;
        const P x3 = io.pair(3);
        // doubled bins
        const P t104 = c[0] * x3;
        const P x12 = io.pair(12);
        const P t105 = c[0] * x12;
        // complex block of 5, multiplier 4
        const P t106 = t104 + t105;
        const P t107 = shuffled<0, 3>(t104, t105);
        const P t108 = shuffled<0, 3>(t105, t104);
        const P t109 = t107 - t108;
        const P t110 = flipped<0, 1>(t106);
        const P t111 = t100 + t110;
        const P x15 = io.pair(15);
        // doubled bins
        const P t112 = c[0] * x15;
        // complex block of 5, multiplier 4
        const P t113 = t111 + t112;
        const P t114 = c[3] * t100;
        const P t115 = P(-c[4], c[4]) * t106;
        const P t116 = t114 + t115;
        const P t117 = t116 + t112;
        const P t118 = c[5] * t103;
        const P t119 = P(-c[6], c[6]) * t109;
        const P t120 = t118 + t119;
        const P t121 = shuffled<1, 0>(t120);
        const P t122 = t117 + t121;
        const P t123 = t117 - t121;
        const P t124 = c[4] * t100;
        const P t125 = t112 - t124;
        const P t126 = P(c[3], -c[3]) * t106;
        const P t127 = t125 + t126;
        const P t128 = c[5] * t109;
        const P t129 = P(c[6], -c[6]) * t103;
        const P t130 = t128 + t129;
        const P t131 = shuffled<1, 0>(t130);
        const P t132 = flipped<1, 0>(t131);
        const P t133 = t127 + t132;
        const P t134 = t127 - t132;
        const P x11 = io.pair(11);
        // doubled bins
        const P t135 = c[0] * x11;
        const P x16 = io.pair(16);
        const P t136 = P(c[0], -c[0]) * x16;
        // complex block of 5, multiplier 4
        const P t137 = t135 + t136;
        const P t138 = flipped<0, 1>(t136);
        const P t139 = flipped<1, 0>(t135);
        const P t140 = t138 + t139;
        const P x2 = io.pair(2);
        // doubled bins
        const P t141 = c[0] * x2;
        const P x7 = io.pair(7);
        const P t142 = P(c[0], -c[0]) * x7;
        // complex block of 5, multiplier 4
        const P t143 = t141 + t142;
        const P t144 = t141 - t142;
        const P t145 = t137 + t143;
        const P x20 = io.pair(20);
        // doubled bins
        const P t146 = c[0] * x20;
        // complex block of 5, multiplier 4
        const P t147 = t145 + t146;
        const P t148 = c[3] * t137;
        const P t149 = c[4] * t143;
        const P t150 = t148 - t149;
        const P t151 = t150 + t146;
        const P t152 = c[5] * t140;
        const P t153 = P(-c[6], c[6]) * t144;
        const P t154 = t152 + t153;
        const P t155 = shuffled<1, 0>(t154);
        const P t156 = t151 + t155;
        const P t157 = t151 - t155;
        const P t158 = c[4] * t137;
        const P t159 = t146 - t158;
        const P t160 = c[3] * t143;
        const P t161 = t159 + t160;
        const P t162 = c[5] * t144;
        const P t163 = P(c[6], -c[6]) * t140;
        const P t164 = t162 + t163;
        const P t165 = shuffled<1, 0>(t164);
        const P t166 = flipped<1, 0>(t165);
        const P t167 = t161 + t166;
        const P t168 = t161 - t166;
        const P t169 = shuffled<0, 2>(t113, t123);
        const P t170 = joined(t5, t16);
        // spectrum block of 3, multiplier 2
        const P t171 = t169 + t170;
        const P t172 = c[1] * t169;
        const P t173 = t170 - t172;
        const P t174 = shuffled<1, 3>(t113, t123);
        const P t175 = c[2] * t174;
        const P t176 = t173 - t175;
        const P t177 = t173 + t175;
        const P t178 = shuffled<1, 3>(t147, t157);
        const P t179 = shuffled<1, 3>(t75, t86);
        // complex block of 3, multiplier 2
        const P t180 = t178 - t179;
        const P t181 = shuffled<0, 2>(t147, t157);
        const P t182 = shuffled<0, 2>(t75, t86);
        const P t183 = t181 + t182;
        const P t184 = t178 + t179;
        const P t185 = t181 - t182;
        const P t186 = shuffled<1, 3>(t39, t50);
        const P t187 = t180 + t186;
        const P t188 = shuffled<0, 2>(t39, t50);
        const P t189 = t183 + t188;
        const P t190 = c[1] * t180;
        const P t191 = t186 - t190;
        const P t192 = c[1] * t183;
        const P t193 = t188 - t192;
        const P t194 = c[2] * t185;
        const P t195 = t191 + t194;
        const P t196 = c[2] * t184;
        const P t197 = t193 - t196;
        const P t198 = t191 - t194;
        const P t199 = t193 + t196;
        // spectrum block of 9, multiplier 5
        const P t200 = c[7] * t198;
        const P t201 = c[8] * t199;
        const P t202 = t200 - t201;
        const P t203 = c[9] * t197;
        const P t204 = c[10] * t195;
        const P t205 = t203 - t204;
        // spectrum block of 3, multiplier 2
        const P t206 = t189 + t171;
        io.out(0, 9, t206);
        const P t207 = c[1] * t189;
        const P t208 = t171 - t207;
        const P t209 = c[2] * t187;
        const P t210 = t208 - t209;
        io.out(30, 39, t210);
        const P t211 = t208 + t209;
        io.out(15, 24, t211);
        // spectrum block of 3, multiplier 2
        const P t212 = t202 + t177;
        io.out(5, 14, t212);
        const P t213 = c[1] * t202;
        const P t214 = t177 - t213;
        const P t215 = c[11] * t198;
        const P t216 = c[12] * t199;
        const P t217 = t215 + t216;
        const P t218 = t214 + t217;
        io.out(35, 44, t218);
        const P t219 = t214 - t217;
        io.out(20, 29, t219);
        // spectrum block of 3, multiplier 2
        const P t220 = t205 + t176;
        io.out(10, 19, t220);
        const P t221 = c[1] * t205;
        const P t222 = t176 - t221;
        const P t223 = c[13] * t195;
        const P t224 = c[14] * t197;
        const P t225 = t223 + t224;
        const P t226 = t222 - t225;
        io.out(40, 4, t226);
        const P t227 = t222 + t225;
        io.out(25, 34, t227);
        const P t228 = shuffled<0, 2>(t134, t133);
        const P t229 = joined(t25, t24);
        // spectrum block of 3, multiplier 2
        const P t230 = t228 + t229;
        const P t231 = c[1] * t228;
        const P t232 = t229 - t231;
        const P t233 = shuffled<1, 3>(t134, t133);
        const P t234 = c[2] * t233;
        const P t235 = t232 - t234;
        const P t236 = t232 + t234;
        const P t237 = shuffled<1, 3>(t168, t167);
        const P t238 = shuffled<1, 3>(t97, t96);
        // complex block of 3, multiplier 2
        const P t239 = t237 - t238;
        const P t240 = shuffled<0, 2>(t168, t167);
        const P t241 = shuffled<0, 2>(t97, t96);
        const P t242 = t240 + t241;
        const P t243 = t237 + t238;
        const P t244 = t240 - t241;
        const P t245 = shuffled<1, 3>(t61, t60);
        const P t246 = t239 + t245;
        const P t247 = shuffled<0, 2>(t61, t60);
        const P t248 = t242 + t247;
        const P t249 = c[1] * t239;
        const P t250 = t245 - t249;
        const P t251 = c[1] * t242;
        const P t252 = t247 - t251;
        const P t253 = c[2] * t244;
        const P t254 = t250 + t253;
        const P t255 = c[2] * t243;
        const P t256 = t252 - t255;
        const P t257 = t250 - t253;
        const P t258 = t252 + t255;
        // spectrum block of 9, multiplier 5
        const P t259 = c[7] * t257;
        const P t260 = c[8] * t258;
        const P t261 = t259 - t260;
        const P t262 = c[9] * t256;
        const P t263 = c[10] * t254;
        const P t264 = t262 - t263;
        // spectrum block of 3, multiplier 2
        const P t265 = t248 + t230;
        io.out(18, 27, t265);
        const P t266 = c[1] * t248;
        const P t267 = t230 - t266;
        const P t268 = c[2] * t246;
        const P t269 = t267 - t268;
        io.out(3, 12, t269);
        const P t270 = t267 + t268;
        io.out(33, 42, t270);
        // spectrum block of 3, multiplier 2
        const P t271 = t261 + t236;
        io.out(23, 32, t271);
        const P t272 = c[1] * t261;
        const P t273 = t236 - t272;
        const P t274 = c[11] * t257;
        const P t275 = c[12] * t258;
        const P t276 = t274 + t275;
        const P t277 = t273 + t276;
        io.out(8, 17, t277);
        const P t278 = t273 - t276;
        io.out(38, 2, t278);
        // spectrum block of 3, multiplier 2
        const P t279 = t264 + t235;
        io.out(28, 37, t279);
        const P t280 = c[1] * t264;
        const P t281 = t235 - t280;
        const P t282 = c[13] * t254;
        const P t283 = c[14] * t256;
        const P t284 = t282 + t283;
        const P t285 = t281 - t284;
        io.out(13, 22, t285);
        const P t286 = t281 + t284;
        io.out(43, 7, t286);
        const V t287 = part<0>(t122);
        // spectrum block of 3, multiplier 2
        const V t288 = t287 + t15;
        const P t289 = flipped<0, 1>(t85);
        // complex block of 3, multiplier 2
        const P t290 = t156 + t289;
        const P t291 = t156 - t289;
        const P t292 = t290 + t49;
        const P t293 = c[1] * t290;
        const P t294 = t49 - t293;
        const P t295 = P(c[2], -c[2]) * t291;
        const P t296 = shuffled<1, 0>(t295);
        const P t297 = t294 + t296;
        const P t298 = t294 - t296;
        const P t299 = shuffled<1, 2>(t298, t297);
        // spectrum block of 9, multiplier 5
        const P t300 = P(c[7], c[9]) * t299;
        const P t301 = shuffled<0, 3>(t298, t297);
        const P t302 = P(c[8], c[10]) * t301;
        const P t303 = t300 - t302;
        const V t304 = part<0>(t292);
        // spectrum block of 3, multiplier 2
        const V t305 = t304 + t288;
        io.out(36, t305);
        const P t306 = joined(t15, t288);
        const P t307 = shuffled<0, 2>(t122, t292);
        // spectrum block of 3, multiplier 2
        const P t308 = c[1] * t307;
        const P t309 = t306 - t308;
        const P t310 = shuffled<1, 3>(t122, t292);
        const P t311 = c[2] * t310;
        const P t312 = t309 - t311;
        const V t313 = part<1>(t312);
        io.out(21, t313);
        const P t314 = t309 + t311;
        const V t315 = part<1>(t314);
        io.out(6, t315);
        const P t316 = shuffled<0, 2>(t314, t312);
        // spectrum block of 3, multiplier 2
        const P t317 = t303 + t316;
        io.out(41, 1, t317);
        const P t318 = c[1] * t303;
        const P t319 = t316 - t318;
        const P t320 = shuffled<0, 3>(t299, t301);
        const P t321 = P(c[11], c[13]) * t320;
        const P t322 = shuffled<0, 3>(t301, t299);
        const P t323 = P(c[12], c[14]) * t322;
        const P t324 = t321 + t323;
        const P t325 = flipped<0, 1>(t324);
        const P t326 = t319 + t325;
        io.out(26, 31, t326);
        const P t327 = t319 - t325;
        io.out(11, 16, t327);
    }
};

}  // namespace zulg
