// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 63.
// Hartley transform of 63 points, form F; up to four lanes to a register.
// 97 sums, 77 differences, 90 products of registers, which do the 915 steps of the graph, those with
// `scale` included; 131 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<63> {
    static constexpr int steps = 915;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.9009688679024191,  // c[3]: -cos 2 pi 10/7
        0.6234898018587335,  // c[4]: cos 2 pi 8/7
        0.7818314824680298,  // c[5]: sin 2 pi 8/7
        0.9749279121818236,  // c[6]: sin 2 pi 2/7
        0.4338837391175581,  // c[7]: sin 2 pi 10/7
        0.9396926207859084,  // c[8]: -cos 2 pi 5/9
        0.3420201433256687,  // c[9]: -sin 2 pi 5/9
        0.984807753012208,  // c[10]: -sin 2 pi 7/9
        0.17364817766693036,  // c[11]: cos 2 pi 7/9
        0.766044443118978,  // c[12]: cos 2 pi 1/9
        0.6427876096865394,  // c[13]: sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x45_52_59_3 = io.in(45, 52, 59, 3);
        const Q x18_25_32_39 = io.in(18, 25, 32, 39);
        // real block of 7, multiplier 2
        const Q t0 = x45_52_59_3 + x18_25_32_39;
        const Q t1 = x45_52_59_3 - x18_25_32_39;
        const Q x9_16_23_30 = io.in(9, 16, 23, 30);
        const Q x54_61_5_12 = io.in(54, 61, 5, 12);
        const Q t2 = x9_16_23_30 + x54_61_5_12;
        const Q t3 = x9_16_23_30 - x54_61_5_12;
        const Q t4 = t2 + t0;
        const Q x36_43_50_57 = io.in(36, 43, 50, 57);
        const Q x27_34_41_48 = io.in(27, 34, 41, 48);
        const Q t5 = x36_43_50_57 + x27_34_41_48;
        const Q t6 = x36_43_50_57 - x27_34_41_48;
        const Q t7 = t4 + t5;
        const Q x0_7_14_21 = io.in(0, 7, 14, 21);
        const Q t8 = t7 + x0_7_14_21;
        const Q t9 = c[2] * t2;
        const Q t10 = x0_7_14_21 - t9;
        const Q t11 = c[3] * t2;
        const Q t12 = x0_7_14_21 - t11;
        const Q t13 = c[4] * t2;
        const Q t14 = c[2] * t0;
        const Q t15 = t13 - t14;
        const Q t16 = c[3] * t5;
        const Q t17 = t15 - t16;
        const Q t18 = c[5] * t3;
        const Q t19 = c[6] * t1;
        const Q t20 = t18 - t19;
        const Q t21 = c[7] * t6;
        const Q t22 = t20 - t21;
        const Q x1_8_15_22 = io.in(1, 8, 15, 22);
        const Q x55_62_6_13 = io.in(55, 62, 6, 13);
        // real block of 7, multiplier 2
        const Q t23 = x1_8_15_22 + x55_62_6_13;
        const Q t24 = x1_8_15_22 - x55_62_6_13;
        const Q x10_17_24_31 = io.in(10, 17, 24, 31);
        const Q x46_53_60_4 = io.in(46, 53, 60, 4);
        const Q t25 = x10_17_24_31 + x46_53_60_4;
        const Q t26 = x10_17_24_31 - x46_53_60_4;
        const Q x37_44_51_58 = io.in(37, 44, 51, 58);
        const Q x19_26_33_40 = io.in(19, 26, 33, 40);
        const Q t27 = x37_44_51_58 + x19_26_33_40;
        const Q t28 = x37_44_51_58 - x19_26_33_40;
        const Q t29 = t27 + t25;
        const Q t30 = t29 + t23;
        const Q x28_35_42_49 = io.in(28, 35, 42, 49);
        const Q t31 = t30 + x28_35_42_49;
        const Q t32 = c[2] * t27;
        const Q t33 = x28_35_42_49 - t32;
        const Q t34 = c[3] * t25;
        const Q t35 = t33 - t34;
        const Q t36 = c[6] * t28;
        const Q t37 = c[7] * t26;
        const Q t38 = t36 + t37;
        const Q t39 = c[3] * t27;
        const Q t40 = x28_35_42_49 - t39;
        const Q t41 = c[4] * t25;
        const Q t42 = t40 + t41;
        const Q t43 = c[7] * t28;
        const Q t44 = c[5] * t26;
        const Q t45 = t43 + t44;
        const Q t46 = c[4] * t27;
        const Q t47 = c[2] * t25;
        const Q t48 = t46 - t47;
        const Q t49 = c[3] * t23;
        const Q t50 = t48 - t49;
        const Q t51 = c[5] * t28;
        const Q t52 = c[6] * t26;
        const Q t53 = t51 - t52;
        const Q t54 = c[7] * t24;
        const Q t55 = t53 - t54;
        const V x2 = io.in(2);
        const V x47 = io.in(47);
        // real block of 7, multiplier 2
        const V t56 = x2 + x47;
        const V t57 = x2 - x47;
        const V x38 = io.in(38);
        const V x11 = io.in(11);
        const V t58 = x38 + x11;
        const V t59 = x38 - x11;
        const V t60 = t56 + t58;
        const V x29 = io.in(29);
        const V x20 = io.in(20);
        const V t61 = x29 + x20;
        const V t62 = x29 - x20;
        const V t63 = t60 + t61;
        const V x56 = io.in(56);
        const V t64 = t63 + x56;
        const V t65 = c[2] * t56;
        const V t66 = x56 - t65;
        const V t67 = c[3] * t58;
        const V t68 = t66 - t67;
        const V t69 = c[6] * t57;
        const V t70 = c[7] * t59;
        const V t71 = t69 + t70;
        const V t72 = c[3] * t56;
        const V t73 = x56 - t72;
        const V t74 = c[4] * t58;
        const V t75 = t73 + t74;
        const V t76 = c[7] * t57;
        const V t77 = c[5] * t59;
        const V t78 = t76 + t77;
        const V t79 = c[4] * t56;
        const V t80 = c[2] * t58;
        const V t81 = t79 - t80;
        const V t82 = c[3] * t61;
        const V t83 = t81 - t82;
        const V t84 = c[5] * t57;
        const V t85 = c[6] * t59;
        const V t86 = t84 - t85;
        const V t87 = c[7] * t62;
        const V t88 = t86 - t87;
        // real block of 7, multiplier 2
        const Q t89 = c[3] * t0;
        const Q t90 = t10 - t89;
        const Q t91 = c[4] * t5;
        const Q t92 = t90 + t91;
        const Q t93 = c[6] * t3;
        const Q t94 = c[7] * t1;
        const Q t95 = t93 + t94;
        const Q t96 = c[5] * t6;
        const Q t97 = t95 + t96;
        const Q t98 = c[4] * t0;
        const Q t99 = t12 + t98;
        const Q t100 = c[2] * t5;
        const Q t101 = t99 - t100;
        const Q t102 = c[7] * t3;
        const Q t103 = c[5] * t1;
        const Q t104 = t102 + t103;
        const Q t105 = c[6] * t6;
        const Q t106 = t104 - t105;
        // real block of 7, multiplier 2
        const Q t107 = c[4] * t23;
        const Q t108 = t35 + t107;
        const Q t109 = c[5] * t24;
        const Q t110 = t38 + t109;
        const Q t111 = c[2] * t23;
        const Q t112 = t42 - t111;
        const Q t113 = c[6] * t24;
        const Q t114 = t45 - t113;
        // real block of 7, multiplier 2
        const V t115 = c[4] * t61;
        const V t116 = t68 + t115;
        const V t117 = c[5] * t62;
        const V t118 = t71 + t117;
        const V t119 = c[2] * t61;
        const V t120 = t75 - t119;
        const V t121 = c[6] * t62;
        const V t122 = t78 - t121;
        const Q t123 = shuffled<0, 4, 2, 6>(t108, t110);
        const Q t124 = shuffled<0, 4, 2, 6>(t112, t114);
        const Q t125 = shuffled<0, 1, 4, 5>(t123, t124);
        const Q t126 = shuffled<1, 5, 3, 7>(t108, t110);
        const Q t127 = shuffled<1, 5, 3, 7>(t112, t114);
        const Q t128 = shuffled<2, 3, 6, 7>(t126, t127);
        // complex block of 3
        const Q t129 = t125 + t128;
        const Q t130 = flipped<0, 1, 0, 0>(t125);
        const Q t131 = flipped<0, 1, 0, 0>(t128);
        const Q t132 = t130 - t131;
        const Q t133 = shuffled<0, 1, 4, 5>(t126, t127);
        const P t134 = joined(t116, t118);
        const P t135 = joined(t120, t122);
        const Q t136 = joined(t134, t135);
        // complex block of 3
        const Q t137 = t133 + t136;
        const Q t138 = flipped<0, 1, 0, 0>(t133);
        const Q t139 = flipped<0, 1, 0, 0>(t136);
        const Q t140 = t138 - t139;
        const Q t141 = shuffled<1, 5, 3, 7>(t92, t97);
        const Q t142 = shuffled<1, 5, 3, 7>(t101, t106);
        const Q t143 = shuffled<2, 3, 6, 7>(t141, t142);
        const Q t144 = shuffled<2, 3, 6, 7>(t123, t124);
        // complex block of 3
        const Q t145 = t143 + t144;
        const Q t146 = shuffled<0, 1, 4, 5>(t141, t142);
        const Q t147 = flipped<0, 1, 0, 0>(t146);
        // complex block of 3
        const Q t148 = Q(c[0], -c[0], c[0], c[0]) * t129;
        const Q t149 = t147 - t148;
        const Q t150 = shuffled<0, 4, 2, 6>(t92, t97);
        const Q t151 = shuffled<0, 4, 2, 6>(t101, t106);
        const Q t152 = shuffled<2, 3, 6, 7>(t150, t151);
        const Q t153 = flipped<0, 1, 0, 0>(t152);
        // complex block of 3
        const Q t154 = Q(c[0], -c[0], c[0], c[0]) * t137;
        const Q t155 = t153 - t154;
        // real block of 7, multiplier 2
        const Q t156 = t17 + x0_7_14_21;
        // real block of 7, multiplier 2
        const Q t157 = t50 + x28_35_42_49;
        // real block of 7, multiplier 2
        const V t158 = t83 + x56;
        const Q t159 = shuffled<1, 5, 3, 7>(t156, t22);
        const Q t160 = shuffled<0, 4, 2, 6>(t157, t55);
        const Q t161 = shuffled<2, 3, 4, 5>(t159, t160);
        const Q t162 = shuffled<1, 5, 3, 7>(t157, t55);
        const Q t163 = shuffled<2, 3, 6, 7>(t160, t162);
        // complex block of 3
        const Q t164 = t161 + t163;
        const P t165 = part<0>(t162);
        const P t166 = joined(t158, t88);
        // complex block of 3
        const P t167 = t165 + t166;
        // complex block of 3
        const Q t168 = t161 - t163;
        const Q t169 = shuffled<0, 4, 2, 6>(t156, t22);
        const Q t170 = shuffled<0, 1, 4, 5>(t169, t159);
        const Q t171 = t164 + t170;
        const P t172 = part<1>(t169);
        // complex block of 3
        const P t173 = t167 + t172;
        // complex block of 3
        const Q t174 = c[0] * t164;
        const Q t175 = t170 - t174;
        const P t176 = part<1>(t171);
        const V t177 = part<0>(t176);
        const V t178 = part<0>(t173);
        // complex block of 3
        const V t179 = t177 + t178;
        const V t180 = part<1>(t176);
        const V t181 = part<1>(t173);
        const V t182 = t180 + t181;
        const Q t183 = shuffled<0, 1, 6, 7>(t162, t171);
        const Q t184 = joined(t166, t173);
        // complex block of 3
        const Q t185 = t183 - t184;
        const P t186 = part<1>(t8);
        const P t187 = part<0>(t31);
        const P t188 = shuffled<1, 2>(t186, t187);
        const P t189 = part<1>(t31);
        // real block of 3
        const P t190 = t188 + t189;
        const P t191 = part<0>(t8);
        const P t192 = t190 + t191;
        const V t193 = part<1>(t187);
        // real block of 3
        const V t194 = t193 + t64;
        const V t195 = part<0>(t186);
        const V t196 = t194 + t195;
        const V t197 = part<1>(t192);
        // real block of 3
        const V t198 = t197 + t196;
        const P t199 = shuffled<1, 3>(t187, t192);
        const Q t200 = joined(t188, t199);
        const P t201 = joined(t64, t196);
        const Q t202 = joined(t189, t201);
        // real block of 3
        const Q t203 = t200 - t202;
        const V t204 = part<0>(t192);
        // real block of 3
        const V t205 = t198 + t204;
        io.out(0, t205);
        const P t206 = shuffled<0, 2>(t186, t192);
        const Q t207 = joined(t191, t206);
        const P t208 = joined(t194, t198);
        const Q t209 = joined(t190, t208);
        // real block of 3
        const Q t210 = c[0] * t209;
        const Q t211 = t207 - t210;
        const Q t212 = c[1] * t203;
        const Q t213 = shuffled<0, 4, 2, 6>(t211, t212);
        const Q t214 = shuffled<1, 5, 3, 7>(t212, t211);
        const Q t215 = shuffled<2, 3, 4, 5>(t213, t214);
        // real block of 9, multiplier 7
        const Q t216 = Q(-c[8], c[8], c[10], c[10]) * t215;
        const Q t217 = shuffled<1, 0, 3, 2>(t215);
        const Q t218 = Q(c[9], c[9], c[11], -c[11]) * t217;
        const Q t219 = t216 + t218;
        const P t220 = part<1>(t219);
        const P t221 = part<0>(t219);
        // complex block of 3
        const P t222 = t220 + t221;
        const P t223 = t220 - t221;
        const P t224 = part<0>(t213);
        const P t225 = flipped<0, 1>(t224);
        const P t226 = t222 + t225;
        const P t227 = P(-c[0], c[0]) * t222;
        const P t228 = t224 + t227;
        const P t229 = c[1] * t223;
        const P t230 = shuffled<1, 0>(t229);
        const P t231 = t228 + t230;
        const P t232 = shuffled<0, 2>(t226, t231);
        const P t233 = shuffled<1, 3>(t226, t231);
        // output stage
        const P t234 = t232 + t233;
        io.out(56, 28, t234);
        const P t235 = t232 - t233;
        io.out(7, 35, t235);
        const P t236 = shuffled<0, 3>(t228, t230);
        const P t237 = shuffled<0, 3>(t230, t228);
        // complex block of 3
        const P t238 = t236 - t237;
        const V t239 = part<0>(t238);
        const V t240 = part<1>(t238);
        // output stage
        const V t241 = t239 + t240;
        io.out(14, t241);
        const V t242 = t239 - t240;
        io.out(49, t242);
        const P t243 = part<1>(t214);
        const V t244 = part<1>(t243);
        const V t245 = part<0>(t243);
        const V t246 = t244 + t245;
        io.out(21, t246);
        const V t247 = t244 - t245;
        io.out(42, t247);
        const Q t248 = flipped<0, 1, 0, 0>(t143);
        const Q t249 = flipped<0, 1, 0, 0>(t144);
        // complex block of 3
        const Q t250 = t248 - t249;
        const Q t251 = shuffled<0, 1, 4, 5>(t150, t151);
        const Q t252 = flipped<0, 1, 0, 0>(t251);
        const Q t253 = Q(c[0], -c[0], c[0], c[0]) * t145;
        const Q t254 = t252 - t253;
        const Q t255 = Q(-c[1], c[1], -c[1], c[1]) * t250;
        const Q t256 = shuffled<1, 0, 3, 2>(t255);
        const Q t257 = t254 + t256;
        const Q t258 = t254 - t256;
        const Q t259 = t145 + t251;
        // complex block of 3
        const Q t260 = t129 + t146;
        // complex block of 3
        const Q t261 = t137 + t152;
        // complex block of 3
        const Q t262 = t260 + t261;
        const Q t263 = flipped<0, 1, 0, 0>(t260);
        const Q t264 = flipped<0, 1, 0, 0>(t261);
        const Q t265 = t263 - t264;
        // complex block of 3
        const Q t266 = Q(-c[1], c[1], -c[1], c[1]) * t132;
        const Q t267 = shuffled<1, 0, 3, 2>(t266);
        const Q t268 = t149 + t267;
        // complex block of 3
        const Q t269 = Q(-c[1], c[1], -c[1], c[1]) * t140;
        const Q t270 = shuffled<1, 0, 3, 2>(t269);
        const Q t271 = t155 + t270;
        // complex block of 9, multiplier 7
        const Q t272 = c[11] * t268;
        const Q t273 = shuffled<1, 0, 3, 2>(t268);
        const Q t274 = Q(-c[10], c[10], -c[10], c[10]) * t273;
        const Q t275 = t272 + t274;
        const Q t276 = shuffled<1, 0, 3, 2>(t271);
        const Q t277 = c[9] * t276;
        const Q t278 = Q(c[8], -c[8], c[8], -c[8]) * t271;
        const Q t279 = t277 + t278;
        const Q t280 = flipped<1, 0, 1, 0>(t279);
        // complex block of 3
        const Q t281 = t275 + t280;
        const Q t282 = t275 - t280;
        // complex block of 3
        const Q t283 = t149 - t267;
        // complex block of 3
        const Q t284 = t155 - t270;
        const Q t285 = shuffled<1, 0, 3, 2>(t283);
        // complex block of 9, multiplier 7
        const Q t286 = c[9] * t285;
        const Q t287 = Q(c[8], -c[8], c[8], -c[8]) * t283;
        const Q t288 = t286 + t287;
        const Q t289 = c[12] * t284;
        const Q t290 = shuffled<1, 0, 3, 2>(t284);
        const Q t291 = Q(c[13], -c[13], c[13], -c[13]) * t290;
        const Q t292 = t289 + t291;
        const Q t293 = flipped<1, 0, 1, 0>(t288);
        // complex block of 3
        const Q t294 = t293 + t292;
        const Q t295 = flipped<0, 1, 0, 1>(t292);
        const Q t296 = t288 + t295;
        // complex block of 3
        const Q t297 = Q(-c[1], c[1], -c[1], c[1]) * t168;
        const Q t298 = shuffled<1, 0, 3, 2>(t297);
        const Q t299 = t175 + t298;
        const Q t300 = t175 - t298;
        const Q t301 = shuffled<2, 3, 4, 5>(t169, t171);
        const P t302 = joined(t179, t182);
        const Q t303 = joined(t167, t302);
        // complex block of 3
        const Q t304 = c[0] * t303;
        const Q t305 = t301 - t304;
        const Q t306 = Q(-c[1], c[1], -c[1], c[1]) * t185;
        const Q t307 = shuffled<1, 0, 3, 2>(t306);
        const Q t308 = t305 + t307;
        const Q t309 = t305 - t307;
        const Q t310 = shuffled<0, 1, 6, 7>(t308, t300);
        const Q t311 = shuffled<1, 0, 3, 2>(t310);
        // complex block of 9, multiplier 7
        const Q t312 = c[9] * t311;
        const Q t313 = Q(c[8], -c[8], c[8], -c[8]) * t310;
        const Q t314 = t312 + t313;
        const Q t315 = shuffled<2, 3, 4, 5>(t299, t309);
        const Q t316 = Q(c[11], c[11], c[12], c[12]) * t315;
        const Q t317 = shuffled<1, 0, 3, 2>(t315);
        const Q t318 = Q(-c[10], c[10], c[13], -c[13]) * t317;
        const Q t319 = t316 + t318;
        const Q t320 = flipped<1, 0, 1, 0>(t314);
        // complex block of 3
        const Q t321 = t320 + t319;
        // complex block of 3
        const Q t322 = t262 + t259;
        const Q t323 = flipped<0, 1, 0, 0>(t259);
        const Q t324 = Q(c[0], -c[0], c[0], c[0]) * t262;
        const Q t325 = t323 - t324;
        const Q t326 = Q(-c[1], c[1], -c[1], c[1]) * t265;
        const Q t327 = shuffled<1, 0, 3, 2>(t326);
        const Q t328 = t325 + t327;
        const Q t329 = t325 - t327;
        // complex block of 3
        const Q t330 = t281 + t257;
        const P t331 = part<1>(t329);
        const P t332 = part<0>(t330);
        const P t333 = shuffled<0, 2>(t331, t332);
        const P t334 = part<0>(t329);
        const P t335 = part<1>(t330);
        const P t336 = shuffled<0, 2>(t334, t335);
        const Q t337 = joined(t333, t336);
        const P t338 = shuffled<1, 3>(t331, t332);
        const P t339 = shuffled<1, 3>(t334, t335);
        const Q t340 = joined(t338, t339);
        // output stage
        const Q t341 = t337 - t340;
        io.out(60, 16, 51, 25, t341);
        const Q t342 = t337 + t340;
        io.out(3, 47, 12, 38, t342);
        const P t343 = part<0>(t322);
        const P t344 = part<1>(t328);
        const P t345 = shuffled<0, 2>(t343, t344);
        const P t346 = part<1>(t322);
        const P t347 = part<0>(t328);
        const P t348 = shuffled<0, 2>(t346, t347);
        const Q t349 = joined(t345, t348);
        const P t350 = shuffled<1, 3>(t343, t344);
        const P t351 = shuffled<1, 3>(t346, t347);
        const Q t352 = joined(t350, t351);
        const Q t353 = t349 - t352;
        io.out(54, 39, 18, 30, t353);
        const Q t354 = t349 + t352;
        io.out(9, 24, 45, 33, t354);
        // complex block of 3
        const Q t355 = c[0] * t281;
        const Q t356 = t257 - t355;
        const Q t357 = Q(-c[1], c[1], -c[1], c[1]) * t282;
        const Q t358 = shuffled<1, 0, 3, 2>(t357);
        const Q t359 = t356 + t358;
        const Q t360 = t356 - t358;
        const Q t361 = shuffled<0, 4, 2, 6>(t359, t360);
        const Q t362 = shuffled<0, 4, 2, 6>(t359, t360);
        const Q t363 = shuffled<2, 3, 4, 5>(t361, t362);
        const Q t364 = shuffled<1, 5, 3, 7>(t359, t360);
        const Q t365 = shuffled<1, 5, 3, 7>(t359, t360);
        const Q t366 = shuffled<2, 3, 4, 5>(t364, t365);
        // output stage
        const Q t367 = t363 + t366;
        io.out(17, 59, 26, 5, t367);
        const Q t368 = t363 - t366;
        io.out(46, 4, 37, 58, t368);
        // complex block of 3
        const Q t369 = t294 + t258;
        const Q t370 = c[0] * t294;
        const Q t371 = t258 - t370;
        const Q t372 = shuffled<0, 1, 4, 5>(t299, t300);
        // complex block of 3
        const Q t373 = t321 + t372;
        // complex block of 3
        const Q t374 = c[1] * t296;
        const Q t375 = shuffled<1, 0, 3, 2>(t374);
        const Q t376 = t371 + t375;
        const P t377 = part<0>(t369);
        const P t378 = part<1>(t376);
        const P t379 = shuffled<0, 2>(t377, t378);
        const P t380 = part<1>(t369);
        const P t381 = part<0>(t376);
        const P t382 = shuffled<0, 2>(t380, t381);
        const Q t383 = joined(t379, t382);
        const P t384 = shuffled<1, 3>(t377, t378);
        const P t385 = shuffled<1, 3>(t380, t381);
        const Q t386 = joined(t384, t385);
        // output stage
        const Q t387 = t383 + t386;
        io.out(40, 10, 31, 19, t387);
        const Q t388 = t383 - t386;
        io.out(23, 53, 32, 44, t388);
        // complex block of 3
        const Q t389 = t371 - t375;
        const P t390 = part<0>(t389);
        const P t391 = part<1>(t373);
        const P t392 = shuffled<0, 2>(t390, t391);
        const P t393 = part<1>(t389);
        const P t394 = part<0>(t373);
        const P t395 = shuffled<0, 2>(t393, t394);
        const Q t396 = joined(t392, t395);
        const P t397 = shuffled<1, 3>(t390, t391);
        const P t398 = shuffled<1, 3>(t393, t394);
        const Q t399 = joined(t397, t398);
        // output stage
        const Q t400 = t396 + t399;
        io.out(61, 22, 52, 29, t400);
        const Q t401 = t396 - t399;
        io.out(2, 41, 11, 34, t401);
        const Q t402 = flipped<1, 1, 1, 0>(t320);
        const Q t403 = flipped<0, 0, 0, 1>(t319);
        // complex block of 3
        const Q t404 = t402 + t403;
        const Q t405 = c[0] * t321;
        const Q t406 = t372 - t405;
        const Q t407 = Q(-c[1], c[1], c[1], c[1]) * t404;
        const Q t408 = shuffled<1, 0, 3, 2>(t407);
        const Q t409 = t406 + t408;
        const Q t410 = t406 - t408;
        const P t411 = part<1>(t409);
        const P t412 = part<0>(t410);
        const P t413 = shuffled<0, 2>(t411, t412);
        const P t414 = part<0>(t409);
        const P t415 = part<1>(t410);
        const P t416 = shuffled<0, 2>(t414, t415);
        const Q t417 = joined(t413, t416);
        const P t418 = shuffled<1, 3>(t411, t412);
        const P t419 = shuffled<1, 3>(t414, t415);
        const Q t420 = joined(t418, t419);
        // output stage
        const Q t421 = t417 - t420;
        io.out(62, 13, 55, 20, t421);
        const Q t422 = t417 + t420;
        io.out(1, 50, 8, 43, t422);
        const P t423 = part<1>(t309);
        const V t424 = part<0>(t423);
        const V t425 = part<1>(t423);
        const V t426 = t424 - t425;
        io.out(6, t426);
        const V t427 = t424 + t425;
        io.out(57, t427);
        const P t428 = part<1>(t308);
        const V t429 = part<0>(t428);
        const V t430 = part<1>(t428);
        const V t431 = t429 + t430;
        io.out(15, t431);
        const V t432 = t429 - t430;
        io.out(48, t432);
        const P t433 = part<0>(t171);
        // complex block of 3
        const P t434 = t302 + t433;
        const V t435 = part<0>(t434);
        const V t436 = part<1>(t434);
        // output stage
        const V t437 = t435 - t436;
        io.out(27, t437);
        const V t438 = t435 + t436;
        io.out(36, t438);
    }
};

}  // namespace zulg
