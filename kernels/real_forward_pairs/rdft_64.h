// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 64.
// Forward DFT of 64 real points, twiddled 16, 4; two lanes to a register.
// 114 sums, 89 differences, 67 products of registers, which do the 594 steps of the graph, those with
// `scale` included; 93 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<64> {
    static constexpr int steps = 594;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 1/16
        0.3826834323650898,  // c[1]: sin 2 pi 1/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.9807852804032304,  // c[3]: cos 2 pi 2/64
        0.19509032201612828,  // c[4]: sin 2 pi 2/64
        0.8314696123025452,  // c[5]: cos 2 pi 6/64
        0.5555702330196022,  // c[6]: sin 2 pi 6/64
        0.9951847266721969,  // c[7]: cos 2 pi 1/64
        0.0980171403295606,  // c[8]: sin 2 pi 1/64
        0.9569403357322088,  // c[9]: cos 2 pi 3/64
        0.2902846772544624,  // c[10]: sin 2 pi 3/64
        0.6343932841636455,  // c[11]: cos 2 pi 9/64
        0.773010453362737,  // c[12]: sin 2 pi 9/64
        0.881921264348355,  // c[13]: cos 2 pi 5/64
        0.47139673682599764,  // c[14]: sin 2 pi 5/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_1 = io.in(0, 1);
        const P x32_33 = io.in(32, 33);
        // real block of 2
        const P t0 = x0_1 + x32_33;
        const P t1 = x0_1 - x32_33;
        const P x16_17 = io.in(16, 17);
        const P x48_49 = io.in(48, 49);
        // real block of 2
        const P t2 = x16_17 + x48_49;
        const P t3 = x16_17 - x48_49;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x4_5 = io.in(4, 5);
        const P x36_37 = io.in(36, 37);
        // real block of 2
        const P t6 = x4_5 + x36_37;
        const P t7 = x4_5 - x36_37;
        const P x20_21 = io.in(20, 21);
        const P x52_53 = io.in(52, 53);
        // real block of 2
        const P t8 = x20_21 + x52_53;
        const P t9 = x20_21 - x52_53;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x8_9 = io.in(8, 9);
        const P x40_41 = io.in(40, 41);
        // real block of 2
        const P t12 = x8_9 + x40_41;
        const P t13 = x8_9 - x40_41;
        const P x24_25 = io.in(24, 25);
        const P x56_57 = io.in(56, 57);
        // real block of 2
        const P t14 = x24_25 + x56_57;
        const P t15 = x24_25 - x56_57;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x12_13 = io.in(12, 13);
        const P x44_45 = io.in(44, 45);
        // real block of 2
        const P t18 = x12_13 + x44_45;
        const P t19 = x12_13 - x44_45;
        const P x28_29 = io.in(28, 29);
        const P x60_61 = io.in(60, 61);
        // real block of 2
        const P t20 = x28_29 + x60_61;
        const P t21 = x28_29 - x60_61;
        // real block of 2
        const P t22 = t18 + t20;
        const P t23 = t18 - t20;
        // real block of 2
        const P t24 = t4 + t16;
        const P t25 = t4 - t16;
        // real block of 2
        const P t26 = t10 + t22;
        const P t27 = t10 - t22;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        // real block of 16
        const P t30 = c[0] * t7;
        const P t31 = c[1] * t9;
        const P t32 = t30 - t31;
        const P t33 = c[0] * t9;
        const P t34 = c[1] * t7;
        const P t35 = t33 + t34;
        const P t36 = t13 - t15;
        const P t37 = t15 + t13;
        const P t38 = c[1] * t19;
        const P t39 = c[0] * t21;
        const P t40 = t38 - t39;
        const P t41 = c[1] * t21;
        const P t42 = c[0] * t19;
        const P t43 = t41 + t42;
        const P t44 = c[2] * t36;
        // complex block of 2
        const P t45 = t1 + t44;
        // real block of 16
        const P t46 = c[2] * t37;
        // complex block of 2
        const P t47 = t3 + t46;
        const P t48 = t1 - t44;
        const P t49 = t46 - t3;
        // complex block of 2
        const P t50 = t32 + t40;
        const P t51 = t35 + t43;
        const P t52 = t32 - t40;
        const P t53 = t43 - t35;
        // complex block of 2
        const P t54 = t45 + t50;
        const P t55 = t47 + t51;
        const P t56 = t45 - t50;
        const P t57 = t51 - t47;
        // complex block of 2
        const P t58 = t48 + t53;
        const P t59 = t49 - t52;
        const P t60 = t48 - t53;
        const P t61 = t49 + t52;
        // skew block of 4
        const P t62 = t11 - t23;
        const P t63 = t11 + t23;
        const P t64 = c[2] * t63;
        const P t65 = t64 - t17;
        const P t66 = c[2] * t62;
        const P t67 = t5 + t66;
        const P t68 = t17 + t64;
        const P t69 = t5 - t66;
        const P x2_3 = io.in(2, 3);
        const P x34_35 = io.in(34, 35);
        // real block of 2
        const P t70 = x2_3 + x34_35;
        const P t71 = x2_3 - x34_35;
        const P x18_19 = io.in(18, 19);
        const P x50_51 = io.in(50, 51);
        // real block of 2
        const P t72 = x18_19 + x50_51;
        const P t73 = x18_19 - x50_51;
        // real block of 2
        const P t74 = t70 + t72;
        const P t75 = t70 - t72;
        const P x6_7 = io.in(6, 7);
        const P x38_39 = io.in(38, 39);
        // real block of 2
        const P t76 = x6_7 + x38_39;
        const P t77 = x6_7 - x38_39;
        const P x22_23 = io.in(22, 23);
        const P x54_55 = io.in(54, 55);
        // real block of 2
        const P t78 = x22_23 + x54_55;
        const P t79 = x22_23 - x54_55;
        // real block of 2
        const P t80 = t76 + t78;
        const P t81 = t76 - t78;
        const P x10_11 = io.in(10, 11);
        const P x42_43 = io.in(42, 43);
        // real block of 2
        const P t82 = x10_11 + x42_43;
        const P t83 = x10_11 - x42_43;
        const P x26_27 = io.in(26, 27);
        const P x58_59 = io.in(58, 59);
        // real block of 2
        const P t84 = x26_27 + x58_59;
        const P t85 = x26_27 - x58_59;
        // real block of 2
        const P t86 = t82 + t84;
        const P t87 = t82 - t84;
        const P x14_15 = io.in(14, 15);
        const P x46_47 = io.in(46, 47);
        // real block of 2
        const P t88 = x14_15 + x46_47;
        const P t89 = x14_15 - x46_47;
        const P x30_31 = io.in(30, 31);
        const P x62_63 = io.in(62, 63);
        // real block of 2
        const P t90 = x30_31 + x62_63;
        const P t91 = x30_31 - x62_63;
        // real block of 2
        const P t92 = t88 + t90;
        const P t93 = t88 - t90;
        // real block of 2
        const P t94 = t74 + t86;
        const P t95 = t74 - t86;
        // real block of 2
        const P t96 = t80 + t92;
        const P t97 = t80 - t92;
        // real block of 2
        const P t98 = t94 + t96;
        const P t99 = t94 - t96;
        // real block of 16
        const P t100 = c[0] * t77;
        const P t101 = c[1] * t79;
        const P t102 = t100 - t101;
        const P t103 = c[0] * t79;
        const P t104 = c[1] * t77;
        const P t105 = t103 + t104;
        const P t106 = t83 - t85;
        const P t107 = t85 + t83;
        const P t108 = c[1] * t89;
        const P t109 = c[0] * t91;
        const P t110 = t108 - t109;
        const P t111 = c[1] * t91;
        const P t112 = c[0] * t89;
        const P t113 = t111 + t112;
        const P t114 = c[2] * t106;
        // complex block of 2
        const P t115 = t71 + t114;
        // real block of 16
        const P t116 = c[2] * t107;
        // complex block of 2
        const P t117 = t73 + t116;
        const P t118 = t71 - t114;
        const P t119 = t116 - t73;
        // complex block of 2
        const P t120 = t102 + t110;
        const P t121 = t105 + t113;
        const P t122 = t102 - t110;
        const P t123 = t113 - t105;
        // complex block of 2
        const P t124 = t115 + t120;
        const P t125 = t117 + t121;
        const P t126 = t115 - t120;
        const P t127 = t121 - t117;
        // complex block of 2
        const P t128 = t118 + t123;
        const P t129 = t119 - t122;
        const P t130 = t118 - t123;
        const P t131 = t119 + t122;
        // skew block of 4
        const P t132 = t81 - t93;
        const P t133 = t81 + t93;
        const P t134 = c[2] * t133;
        const P t135 = t134 - t87;
        const P t136 = c[2] * t132;
        const P t137 = t75 + t136;
        const P t138 = t87 + t134;
        const P t139 = t75 - t136;
        // real block of 2
        const P t140 = t28 + t98;
        const P t141 = t28 - t98;
        io.pair(16, negated<0, 1>(t141));
        const V t142 = part<0>(t140);
        const V t143 = part<1>(t140);
        // real block of 2
        const V t144 = t142 + t143;
        io.re(0, t144);
        const V t145 = t142 - t143;
        io.re(32, t145);
        const P t146 = shuffled<1, 3>(t54, t55);
        // real block of 64
        const P t147 = c[7] * t146;
        const P t148 = shuffled<1, 0>(t146);
        const P t149 = P(-c[8], c[8]) * t148;
        const P t150 = t147 + t149;
        const P t151 = shuffled<0, 2>(t124, t125);
        const P t152 = c[3] * t151;
        const P t153 = shuffled<1, 0>(t151);
        const P t154 = P(-c[4], c[4]) * t153;
        const P t155 = t152 + t154;
        const P t156 = shuffled<1, 3>(t124, t125);
        const P t157 = c[9] * t156;
        const P t158 = shuffled<1, 0>(t156);
        const P t159 = P(-c[10], c[10]) * t158;
        const P t160 = t157 + t159;
        const P t161 = shuffled<0, 2>(t54, t55);
        // complex block of 2
        const P t162 = t161 + t155;
        const P t163 = shuffled<0, 3>(t161, t155);
        const P t164 = shuffled<0, 3>(t155, t161);
        const P t165 = t163 - t164;
        // complex block of 2
        const P t166 = t150 + t160;
        const P t167 = shuffled<0, 3>(t150, t160);
        const P t168 = shuffled<0, 3>(t160, t150);
        const P t169 = t167 - t168;
        // complex block of 2
        const P t170 = t162 + t166;
        io.pair(1, negated<0, 1>(t170));
        const P t171 = shuffled<0, 3>(t162, t166);
        const P t172 = shuffled<0, 3>(t166, t162);
        const P t173 = t171 - t172;
        io.pair(31, negated<0, 1>(t173));
        const P t174 = shuffled<1, 0>(t169);
        const P t175 = flipped<0, 1>(t174);
        // complex block of 2
        const P t176 = t165 + t175;
        io.pair(17, t176);
        const P t177 = t165 - t175;
        io.pair(15, negated<0, 1>(t177));
        const P t178 = shuffled<1, 3>(t67, t68);
        // real block of 64
        const P t179 = c[3] * t178;
        const P t180 = shuffled<1, 0>(t178);
        const P t181 = P(-c[4], c[4]) * t180;
        const P t182 = t179 + t181;
        const P t183 = shuffled<0, 2>(t137, t138);
        const P t184 = c[0] * t183;
        const P t185 = shuffled<1, 0>(t183);
        const P t186 = P(-c[1], c[1]) * t185;
        const P t187 = t184 + t186;
        const P t188 = shuffled<1, 3>(t137, t138);
        const P t189 = c[5] * t188;
        const P t190 = shuffled<1, 0>(t188);
        const P t191 = P(-c[6], c[6]) * t190;
        const P t192 = t189 + t191;
        const P t193 = shuffled<0, 2>(t67, t68);
        // complex block of 2
        const P t194 = t193 + t187;
        const P t195 = shuffled<0, 3>(t193, t187);
        const P t196 = shuffled<0, 3>(t187, t193);
        const P t197 = t195 - t196;
        // complex block of 2
        const P t198 = t182 + t192;
        const P t199 = shuffled<0, 3>(t182, t192);
        const P t200 = shuffled<0, 3>(t192, t182);
        const P t201 = t199 - t200;
        // complex block of 2
        const P t202 = t194 + t198;
        io.pair(2, negated<0, 1>(t202));
        const P t203 = shuffled<0, 3>(t194, t198);
        const P t204 = shuffled<0, 3>(t198, t194);
        const P t205 = t203 - t204;
        io.pair(30, negated<0, 1>(t205));
        const P t206 = shuffled<1, 0>(t201);
        const P t207 = flipped<0, 1>(t206);
        // complex block of 2
        const P t208 = t197 + t207;
        io.pair(18, t208);
        const P t209 = t197 - t207;
        io.pair(14, negated<0, 1>(t209));
        const P t210 = shuffled<1, 3>(t60, t61);
        // real block of 64
        const P t211 = c[9] * t210;
        const P t212 = shuffled<1, 0>(t210);
        const P t213 = P(-c[10], c[10]) * t212;
        const P t214 = t211 + t213;
        const P t215 = shuffled<0, 2>(t130, t131);
        const P t216 = c[5] * t215;
        const P t217 = shuffled<1, 0>(t215);
        const P t218 = P(-c[6], c[6]) * t217;
        const P t219 = t216 + t218;
        const P t220 = shuffled<1, 3>(t130, t131);
        const P t221 = c[11] * t220;
        const P t222 = shuffled<1, 0>(t220);
        const P t223 = P(-c[12], c[12]) * t222;
        const P t224 = t221 + t223;
        const P t225 = shuffled<0, 2>(t60, t61);
        // complex block of 2
        const P t226 = t225 + t219;
        const P t227 = shuffled<0, 3>(t225, t219);
        const P t228 = shuffled<0, 3>(t219, t225);
        const P t229 = t227 - t228;
        // complex block of 2
        const P t230 = t214 + t224;
        const P t231 = shuffled<0, 3>(t214, t224);
        const P t232 = shuffled<0, 3>(t224, t214);
        const P t233 = t231 - t232;
        // complex block of 2
        const P t234 = t226 + t230;
        io.pair(3, negated<0, 1>(t234));
        const P t235 = shuffled<0, 3>(t226, t230);
        const P t236 = shuffled<0, 3>(t230, t226);
        const P t237 = t235 - t236;
        io.pair(29, negated<0, 1>(t237));
        const P t238 = shuffled<1, 0>(t233);
        const P t239 = flipped<0, 1>(t238);
        // complex block of 2
        const P t240 = t229 + t239;
        io.pair(19, t240);
        const P t241 = t229 - t239;
        io.pair(13, negated<0, 1>(t241));
        const P t242 = shuffled<1, 3>(t25, t27);
        // real block of 64
        const P t243 = c[0] * t242;
        const P t244 = shuffled<1, 0>(t242);
        const P t245 = P(-c[1], c[1]) * t244;
        const P t246 = t243 + t245;
        const P t247 = shuffled<0, 2>(t95, t97);
        const P t248 = shuffled<1, 0>(t247);
        const P t249 = flipped<1, 0>(t248);
        const P t250 = t247 + t249;
        const P t251 = shuffled<1, 3>(t95, t97);
        const P t252 = c[1] * t251;
        const P t253 = shuffled<1, 0>(t251);
        const P t254 = P(-c[0], c[0]) * t253;
        const P t255 = t252 + t254;
        const P t256 = shuffled<0, 2>(t25, t27);
        const P t257 = c[2] * t250;
        // complex block of 2
        const P t258 = t256 + t257;
        const P t259 = shuffled<0, 3>(t256, t257);
        const P t260 = shuffled<0, 3>(t257, t256);
        const P t261 = t259 - t260;
        // complex block of 2
        const P t262 = t246 + t255;
        const P t263 = shuffled<0, 3>(t246, t255);
        const P t264 = shuffled<0, 3>(t255, t246);
        const P t265 = t263 - t264;
        // complex block of 2
        const P t266 = t258 + t262;
        io.pair(4, negated<0, 1>(t266));
        const P t267 = shuffled<0, 3>(t258, t262);
        const P t268 = shuffled<0, 3>(t262, t258);
        const P t269 = t267 - t268;
        io.pair(28, negated<0, 1>(t269));
        const P t270 = shuffled<1, 0>(t265);
        const P t271 = flipped<0, 1>(t270);
        // complex block of 2
        const P t272 = t261 + t271;
        io.pair(20, t272);
        const P t273 = t261 - t271;
        io.pair(12, negated<0, 1>(t273));
        const P t274 = shuffled<1, 3>(t58, t59);
        // real block of 64
        const P t275 = c[13] * t274;
        const P t276 = shuffled<1, 0>(t274);
        const P t277 = P(c[14], -c[14]) * t276;
        const P t278 = t275 + t277;
        const P t279 = shuffled<0, 2>(t128, t129);
        const P t280 = c[6] * t279;
        const P t281 = shuffled<1, 0>(t279);
        const P t282 = P(c[5], -c[5]) * t281;
        const P t283 = t280 + t282;
        const P t284 = shuffled<1, 3>(t128, t129);
        const P t285 = c[8] * t284;
        const P t286 = shuffled<1, 0>(t284);
        const P t287 = P(c[7], -c[7]) * t286;
        const P t288 = t285 + t287;
        const P t289 = shuffled<0, 2>(t58, t59);
        // complex block of 2
        const P t290 = t289 + t283;
        const P t291 = t289 - t283;
        // complex block of 2
        const P t292 = t278 + t288;
        const P t293 = t278 - t288;
        // complex block of 2
        const P t294 = t290 + t292;
        io.pair(5, t294);
        const P t295 = t290 - t292;
        io.pair(27, negated<0, 1>(t295));
        const P t296 = shuffled<1, 0>(t293);
        const P t297 = flipped<0, 1>(t296);
        // complex block of 2
        const P t298 = t291 + t297;
        io.pair(21, t298);
        const P t299 = t291 - t297;
        io.pair(11, negated<0, 1>(t299));
        const P t300 = shuffled<1, 3>(t69, t65);
        // real block of 64
        const P t301 = c[5] * t300;
        const P t302 = shuffled<1, 0>(t300);
        const P t303 = P(-c[6], c[6]) * t302;
        const P t304 = t301 + t303;
        const P t305 = shuffled<0, 2>(t139, t135);
        const P t306 = c[1] * t305;
        const P t307 = shuffled<1, 0>(t305);
        const P t308 = P(-c[0], c[0]) * t307;
        const P t309 = t306 + t308;
        const P t310 = shuffled<1, 3>(t139, t135);
        const P t311 = c[4] * t310;
        const P t312 = shuffled<1, 0>(t310);
        const P t313 = P(c[3], -c[3]) * t312;
        const P t314 = t311 + t313;
        const P t315 = shuffled<0, 2>(t69, t65);
        // complex block of 2
        const P t316 = t315 + t309;
        const P t317 = shuffled<0, 3>(t315, t309);
        const P t318 = shuffled<0, 3>(t309, t315);
        const P t319 = t317 - t318;
        const P t320 = shuffled<0, 3>(t304, t314);
        const P t321 = shuffled<0, 3>(t314, t304);
        // complex block of 2
        const P t322 = t320 - t321;
        const P t323 = t304 + t314;
        const P t324 = flipped<0, 1>(t316);
        // complex block of 2
        const P t325 = t322 + t324;
        io.pair(6, t325);
        const P t326 = flipped<1, 0>(t322);
        const P t327 = t316 + t326;
        io.pair(26, t327);
        const P t328 = shuffled<1, 0>(t323);
        // complex block of 2
        const P t329 = t319 - t328;
        io.pair(22, t329);
        const P t330 = t319 + t328;
        io.pair(10, negated<0, 1>(t330));
        const P t331 = shuffled<1, 3>(t56, t57);
        // real block of 64
        const P t332 = c[12] * t331;
        const P t333 = shuffled<1, 0>(t331);
        const P t334 = P(-c[11], c[11]) * t333;
        const P t335 = t332 + t334;
        const P t336 = shuffled<0, 2>(t126, t127);
        const P t337 = c[4] * t336;
        const P t338 = shuffled<1, 0>(t336);
        const P t339 = P(-c[3], c[3]) * t338;
        const P t340 = t337 + t339;
        const P t341 = shuffled<1, 3>(t126, t127);
        const P t342 = c[14] * t341;
        const P t343 = shuffled<1, 0>(t341);
        const P t344 = P(c[13], -c[13]) * t343;
        const P t345 = t342 + t344;
        const P t346 = shuffled<0, 2>(t56, t57);
        // complex block of 2
        const P t347 = t346 + t340;
        const P t348 = shuffled<0, 3>(t346, t340);
        const P t349 = shuffled<0, 3>(t340, t346);
        const P t350 = t348 - t349;
        const P t351 = shuffled<0, 3>(t335, t345);
        const P t352 = shuffled<0, 3>(t345, t335);
        // complex block of 2
        const P t353 = t351 - t352;
        const P t354 = t335 + t345;
        const P t355 = flipped<0, 1>(t347);
        // complex block of 2
        const P t356 = t353 + t355;
        io.pair(7, t356);
        const P t357 = flipped<1, 0>(t353);
        const P t358 = t347 + t357;
        io.pair(25, t358);
        const P t359 = shuffled<1, 0>(t354);
        // complex block of 2
        const P t360 = t350 - t359;
        io.pair(23, t360);
        const P t361 = t350 + t359;
        io.pair(9, negated<0, 1>(t361));
        const V t362 = part<1>(t29);
        const V t363 = part<1>(t99);
        // skew block of 4
        const V t364 = t362 - t363;
        const V t365 = t362 + t363;
        const V t366 = c[2] * t365;
        const V t367 = part<0>(t99);
        const V t368 = t366 - t367;
        const V t369 = part<0>(t29);
        const V t370 = c[2] * t364;
        const V t371 = t369 + t370;
        const V t372 = t367 + t366;
        const V t373 = flipped<1>(t372);
        const P t374 = joined(t371, t373);
        io.pair(8, t374);
        const V t375 = t369 - t370;
        const V t376 = flipped<1>(t368);
        const P t377 = joined(t375, t376);
        io.pair(24, t377);
    }
};

}  // namespace zulg
