// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 60.
// Complex DFT of 60 points, prime-factor, order 3, 5, 4; two lines of a stage to a register.
// 114 sums, 102 differences, 68 products of registers, which do the 1256 steps of the graph, those with
// `scale` included; 60 shuffles, 20 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<60> {
    static constexpr int steps = 1256;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x20_35 = io.pairs(20, 35);
        const Q x40_55 = io.pairs(40, 55);
        // complex block of 3, multiplier 2
        const Q t0 = x20_35 + x40_55;
        const Q t1 = x20_35 - x40_55;
        const Q x0_15 = io.pairs(0, 15);
        const Q t2 = t0 + x0_15;
        const Q t3 = c[4] * t0;
        const Q t4 = x0_15 - t3;
        const Q t5 = Q(-c[5], c[5], -c[5], c[5]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x26_41 = io.pairs(26, 41);
        const Q x46_1 = io.pairs(46, 1);
        // complex block of 3, multiplier 2
        const Q t9 = x26_41 + x46_1;
        const Q t10 = x26_41 - x46_1;
        const Q x6_21 = io.pairs(6, 21);
        const Q t11 = t9 + x6_21;
        const Q x14_29 = io.pairs(14, 29);
        const Q x34_49 = io.pairs(34, 49);
        // complex block of 3, multiplier 2
        const Q t12 = x14_29 + x34_49;
        const Q t13 = x14_29 - x34_49;
        const Q x54_9 = io.pairs(54, 9);
        const Q t14 = t12 + x54_9;
        const Q t15 = c[4] * t12;
        const Q t16 = x54_9 - t15;
        const Q t17 = Q(-c[5], c[5], -c[5], c[5]) * t13;
        const Q t18 = shuffled<1, 0, 3, 2>(t17);
        const Q t19 = t16 + t18;
        const Q t20 = t16 - t18;
        // complex block of 3, multiplier 2
        const Q t21 = c[4] * t9;
        const Q t22 = x6_21 - t21;
        const Q t23 = Q(-c[5], c[5], -c[5], c[5]) * t10;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        // complex block of 5, multiplier 2
        const Q t27 = t26 + t20;
        const Q t28 = t26 - t20;
        // complex block of 5, multiplier 2
        const Q t29 = t25 + t19;
        const Q t30 = t25 - t19;
        // complex block of 5, multiplier 2
        const Q t31 = t11 + t14;
        const Q t32 = t11 - t14;
        const Q x2_17 = io.pairs(2, 17);
        const Q x22_37 = io.pairs(22, 37);
        // complex block of 3, multiplier 2
        const Q t33 = x2_17 + x22_37;
        const Q t34 = x2_17 - x22_37;
        const Q x42_57 = io.pairs(42, 57);
        const Q t35 = t33 + x42_57;
        const Q x38_53 = io.pairs(38, 53);
        const Q x58_13 = io.pairs(58, 13);
        // complex block of 3, multiplier 2
        const Q t36 = x38_53 + x58_13;
        const Q t37 = x38_53 - x58_13;
        const Q x18_33 = io.pairs(18, 33);
        const Q t38 = t36 + x18_33;
        // complex block of 3, multiplier 2
        const Q t39 = c[4] * t33;
        const Q t40 = x42_57 - t39;
        const Q t41 = Q(-c[5], c[5], -c[5], c[5]) * t34;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        // complex block of 3, multiplier 2
        const Q t45 = c[4] * t36;
        const Q t46 = x18_33 - t45;
        const Q t47 = Q(-c[5], c[5], -c[5], c[5]) * t37;
        const Q t48 = shuffled<1, 0, 3, 2>(t47);
        const Q t49 = t46 + t48;
        const Q t50 = t46 - t48;
        // complex block of 5, multiplier 2
        const Q t51 = t44 + t50;
        const Q t52 = t44 - t50;
        // complex block of 5, multiplier 2
        const Q t53 = t43 + t49;
        const Q t54 = t43 - t49;
        // complex block of 5, multiplier 2
        const Q t55 = t35 + t38;
        const Q t56 = t35 - t38;
        const Q x8_23 = io.pairs(8, 23);
        const Q x28_43 = io.pairs(28, 43);
        // complex block of 3, multiplier 2
        const Q t57 = x8_23 + x28_43;
        const Q t58 = x8_23 - x28_43;
        const Q x48_3 = io.pairs(48, 3);
        const Q t59 = t57 + x48_3;
        const Q x32_47 = io.pairs(32, 47);
        const Q x52_7 = io.pairs(52, 7);
        // complex block of 3, multiplier 2
        const Q t60 = x32_47 + x52_7;
        const Q t61 = x32_47 - x52_7;
        const Q x12_27 = io.pairs(12, 27);
        const Q t62 = t60 + x12_27;
        const Q t63 = c[4] * t60;
        const Q t64 = x12_27 - t63;
        const Q t65 = Q(-c[5], c[5], -c[5], c[5]) * t61;
        const Q t66 = shuffled<1, 0, 3, 2>(t65);
        const Q t67 = t64 + t66;
        const Q t68 = t64 - t66;
        // complex block of 3, multiplier 2
        const Q t69 = c[4] * t57;
        const Q t70 = x48_3 - t69;
        const Q t71 = Q(-c[5], c[5], -c[5], c[5]) * t58;
        const Q t72 = shuffled<1, 0, 3, 2>(t71);
        const Q t73 = t70 + t72;
        const Q t74 = t70 - t72;
        // complex block of 5, multiplier 2
        const Q t75 = t68 + t74;
        const Q t76 = t68 - t74;
        // complex block of 5, multiplier 2
        const Q t77 = t67 + t73;
        const Q t78 = t67 - t73;
        // complex block of 5, multiplier 2
        const Q t79 = t62 + t59;
        const Q t80 = t62 - t59;
        const Q x44_59 = io.pairs(44, 59);
        const Q x4_19 = io.pairs(4, 19);
        // complex block of 3, multiplier 2
        const Q t81 = x44_59 + x4_19;
        const Q t82 = x44_59 - x4_19;
        const Q x24_39 = io.pairs(24, 39);
        const Q t83 = t81 + x24_39;
        const Q x56_11 = io.pairs(56, 11);
        const Q x16_31 = io.pairs(16, 31);
        // complex block of 3, multiplier 2
        const Q t84 = x56_11 + x16_31;
        const Q t85 = x56_11 - x16_31;
        const Q x36_51 = io.pairs(36, 51);
        const Q t86 = t84 + x36_51;
        // complex block of 3, multiplier 2
        const Q t87 = c[4] * t81;
        const Q t88 = x24_39 - t87;
        const Q t89 = Q(-c[5], c[5], -c[5], c[5]) * t82;
        const Q t90 = shuffled<1, 0, 3, 2>(t89);
        const Q t91 = t88 + t90;
        const Q t92 = t88 - t90;
        // complex block of 3, multiplier 2
        const Q t93 = c[4] * t84;
        const Q t94 = x36_51 - t93;
        const Q t95 = Q(-c[5], c[5], -c[5], c[5]) * t85;
        const Q t96 = shuffled<1, 0, 3, 2>(t95);
        const Q t97 = t94 + t96;
        const Q t98 = t94 - t96;
        // complex block of 5, multiplier 2
        const Q t99 = t98 + t92;
        const Q t100 = t98 - t92;
        // complex block of 5, multiplier 2
        const Q t101 = t97 + t91;
        const Q t102 = t97 - t91;
        // complex block of 5, multiplier 2
        const Q t103 = t86 + t83;
        const Q t104 = t86 - t83;
        const Q x50_5 = io.pairs(50, 5);
        const Q x10_25 = io.pairs(10, 25);
        // complex block of 3, multiplier 2
        const Q t105 = x50_5 + x10_25;
        const Q t106 = x50_5 - x10_25;
        const Q x30_45 = io.pairs(30, 45);
        const Q t107 = t105 + x30_45;
        const Q t108 = c[4] * t105;
        const Q t109 = x30_45 - t108;
        const Q t110 = Q(-c[5], c[5], -c[5], c[5]) * t106;
        const Q t111 = shuffled<1, 0, 3, 2>(t110);
        const Q t112 = t109 + t111;
        const Q t113 = t109 - t111;
        // complex block of 5, multiplier 2
        const Q t114 = t79 + t103;
        const Q t115 = t114 + t2;
        const Q t116 = c[0] * t79;
        const Q t117 = t2 - t116;
        const Q t118 = c[1] * t103;
        const Q t119 = t117 + t118;
        const Q t120 = c[2] * t80;
        const Q t121 = c[3] * t104;
        const Q t122 = t120 + t121;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = flipped<0, 1, 0, 1>(t123);
        const Q t125 = t119 + t124;
        const Q t126 = t119 - t124;
        // complex block of 5, multiplier 2
        const Q t127 = t55 + t31;
        const Q t128 = t127 + t107;
        const Q t129 = c[0] * t55;
        const Q t130 = t107 - t129;
        const Q t131 = c[1] * t31;
        const Q t132 = t130 + t131;
        const Q t133 = c[2] * t56;
        const Q t134 = c[3] * t32;
        const Q t135 = t133 + t134;
        const Q t136 = shuffled<1, 0, 3, 2>(t135);
        const Q t137 = flipped<0, 1, 0, 1>(t136);
        const Q t138 = t132 + t137;
        const Q t139 = t132 - t137;
        // complex block of 5, multiplier 2
        const Q t140 = t75 + t99;
        const Q t141 = t140 + t8;
        // complex block of 5, multiplier 2
        const Q t142 = t51 + t27;
        const Q t143 = t142 + t113;
        const Q t144 = shuffled<0, 1, 4, 5>(t115, t125);
        const Q t145 = shuffled<0, 1, 4, 5>(t128, t138);
        // complex block of 2
        const Q t146 = t144 + t145;
        const Q t147 = shuffled<2, 3, 6, 7>(t115, t125);
        const Q t148 = shuffled<2, 3, 6, 7>(t128, t138);
        // complex block of 2
        const Q t149 = t147 + t148;
        // complex block of 2
        const Q t150 = t146 + t149;
        io.pairs(0, 12, t150);
        const Q t151 = t146 - t149;
        io.pairs(30, 42, t151);
        // complex block of 2
        const Q t152 = t144 - t145;
        // complex block of 2
        const Q t153 = t147 - t148;
        const Q t154 = shuffled<1, 0, 3, 2>(t153);
        const Q t155 = flipped<1, 0, 1, 0>(t154);
        // complex block of 2
        const Q t156 = t152 + t155;
        io.pairs(15, 27, t156);
        const Q t157 = t152 - t155;
        io.pairs(45, 57, t157);
        const Q t158 = shuffled<0, 1, 4, 5>(t126, t141);
        const Q t159 = shuffled<0, 1, 4, 5>(t139, t143);
        // complex block of 2
        const Q t160 = t158 + t159;
        const Q t161 = shuffled<2, 3, 6, 7>(t126, t141);
        const Q t162 = shuffled<2, 3, 6, 7>(t139, t143);
        // complex block of 2
        const Q t163 = t161 + t162;
        // complex block of 2
        const Q t164 = t160 + t163;
        io.pairs(48, 20, t164);
        const Q t165 = t160 - t163;
        io.pairs(18, 50, t165);
        // complex block of 2
        const Q t166 = t158 - t159;
        // complex block of 2
        const Q t167 = t161 - t162;
        const Q t168 = shuffled<1, 0, 3, 2>(t167);
        const Q t169 = flipped<1, 0, 1, 0>(t168);
        // complex block of 2
        const Q t170 = t166 + t169;
        io.pairs(3, 35, t170);
        const Q t171 = t166 - t169;
        io.pairs(33, 5, t171);
        // complex block of 5, multiplier 2
        const Q t172 = c[1] * t79;
        const Q t173 = c[0] * t103;
        const Q t174 = t172 - t173;
        const Q t175 = t174 + t2;
        const Q t176 = c[3] * t80;
        const Q t177 = c[2] * t104;
        const Q t178 = t176 - t177;
        const Q t179 = shuffled<1, 0, 3, 2>(t178);
        const Q t180 = flipped<0, 1, 0, 1>(t179);
        const Q t181 = t175 + t180;
        const Q t182 = t175 - t180;
        // complex block of 5, multiplier 2
        const Q t183 = c[1] * t55;
        const Q t184 = c[0] * t31;
        const Q t185 = t183 - t184;
        const Q t186 = t185 + t107;
        const Q t187 = c[3] * t56;
        const Q t188 = c[2] * t32;
        const Q t189 = t187 - t188;
        const Q t190 = shuffled<1, 0, 3, 2>(t189);
        const Q t191 = flipped<0, 1, 0, 1>(t190);
        const Q t192 = t186 + t191;
        const Q t193 = t186 - t191;
        const Q t194 = shuffled<0, 1, 4, 5>(t182, t181);
        const Q t195 = shuffled<0, 1, 4, 5>(t193, t192);
        // complex block of 2
        const Q t196 = t194 + t195;
        const Q t197 = shuffled<2, 3, 6, 7>(t182, t181);
        const Q t198 = shuffled<2, 3, 6, 7>(t193, t192);
        // complex block of 2
        const Q t199 = t197 + t198;
        // complex block of 2
        const Q t200 = t196 + t199;
        io.pairs(24, 36, t200);
        const Q t201 = t196 - t199;
        io.pairs(54, 6, t201);
        // complex block of 2
        const Q t202 = t194 - t195;
        // complex block of 2
        const Q t203 = t197 - t198;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = flipped<1, 0, 1, 0>(t204);
        // complex block of 2
        const Q t206 = t202 + t205;
        io.pairs(39, 51, t206);
        const Q t207 = t202 - t205;
        io.pairs(9, 21, t207);
        // complex block of 5, multiplier 2
        const Q t208 = c[1] * t75;
        const Q t209 = c[0] * t99;
        const Q t210 = t208 - t209;
        const Q t211 = t210 + t8;
        const Q t212 = c[3] * t76;
        const Q t213 = c[2] * t100;
        const Q t214 = t212 - t213;
        const Q t215 = c[0] * t75;
        const Q t216 = t8 - t215;
        const Q t217 = c[1] * t99;
        const Q t218 = t216 + t217;
        const Q t219 = c[2] * t76;
        const Q t220 = c[3] * t100;
        const Q t221 = t219 + t220;
        // complex block of 5, multiplier 2
        const Q t222 = c[1] * t51;
        const Q t223 = c[0] * t27;
        const Q t224 = t222 - t223;
        const Q t225 = t224 + t113;
        const Q t226 = c[3] * t52;
        const Q t227 = c[2] * t28;
        const Q t228 = t226 - t227;
        const Q t229 = c[0] * t51;
        const Q t230 = t113 - t229;
        const Q t231 = c[1] * t27;
        const Q t232 = t230 + t231;
        const Q t233 = c[2] * t52;
        const Q t234 = c[3] * t28;
        const Q t235 = t233 + t234;
        const Q t236 = shuffled<1, 0, 3, 2>(t214);
        const Q t237 = flipped<0, 1, 0, 1>(t236);
        // complex block of 5, multiplier 2
        const Q t238 = t211 + t237;
        const Q t239 = shuffled<1, 0, 3, 2>(t221);
        const Q t240 = flipped<1, 0, 1, 0>(t239);
        const Q t241 = t218 + t240;
        const Q t242 = shuffled<1, 0, 3, 2>(t228);
        const Q t243 = flipped<0, 1, 0, 1>(t242);
        // complex block of 5, multiplier 2
        const Q t244 = t225 + t243;
        const Q t245 = shuffled<1, 0, 3, 2>(t235);
        const Q t246 = flipped<1, 0, 1, 0>(t245);
        const Q t247 = t232 + t246;
        const Q t248 = shuffled<0, 1, 4, 5>(t238, t241);
        const Q t249 = shuffled<0, 1, 4, 5>(t244, t247);
        // complex block of 2
        const Q t250 = t248 + t249;
        const Q t251 = t248 - t249;
        const Q t252 = shuffled<2, 3, 6, 7>(t238, t241);
        const Q t253 = shuffled<2, 3, 6, 7>(t244, t247);
        // complex block of 2
        const Q t254 = t252 + t253;
        const Q t255 = t252 - t253;
        // complex block of 2
        const Q t256 = t250 + t254;
        io.pairs(56, 8, t256);
        const Q t257 = t250 - t254;
        io.pairs(26, 38, t257);
        const Q t258 = shuffled<1, 0, 3, 2>(t255);
        const Q t259 = flipped<1, 0, 1, 0>(t258);
        // complex block of 2
        const Q t260 = t251 + t259;
        io.pairs(11, 23, t260);
        const Q t261 = t251 - t259;
        io.pairs(41, 53, t261);
        // complex block of 5, multiplier 2
        const Q t262 = t211 - t237;
        const Q t263 = t218 - t240;
        // complex block of 5, multiplier 2
        const Q t264 = t225 - t243;
        const Q t265 = t232 - t246;
        const Q t266 = shuffled<0, 1, 4, 5>(t263, t262);
        const Q t267 = shuffled<0, 1, 4, 5>(t265, t264);
        // complex block of 2
        const Q t268 = t266 + t267;
        const Q t269 = t266 - t267;
        const Q t270 = shuffled<2, 3, 6, 7>(t263, t262);
        const Q t271 = shuffled<2, 3, 6, 7>(t265, t264);
        // complex block of 2
        const Q t272 = t270 + t271;
        const Q t273 = t270 - t271;
        // complex block of 2
        const Q t274 = t268 + t272;
        io.pairs(32, 44, t274);
        const Q t275 = t268 - t272;
        io.pairs(2, 14, t275);
        const Q t276 = shuffled<1, 0, 3, 2>(t273);
        const Q t277 = flipped<1, 0, 1, 0>(t276);
        // complex block of 2
        const Q t278 = t269 + t277;
        io.pairs(47, 59, t278);
        const Q t279 = t269 - t277;
        io.pairs(17, 29, t279);
        // complex block of 5, multiplier 2
        const Q t280 = t77 + t101;
        const Q t281 = t280 + t7;
        const Q t282 = c[0] * t77;
        const Q t283 = t7 - t282;
        const Q t284 = c[1] * t101;
        const Q t285 = t283 + t284;
        const Q t286 = c[2] * t78;
        const Q t287 = c[3] * t102;
        const Q t288 = t286 + t287;
        // complex block of 5, multiplier 2
        const Q t289 = t53 + t29;
        const Q t290 = t289 + t112;
        const Q t291 = c[0] * t53;
        const Q t292 = t112 - t291;
        const Q t293 = c[1] * t29;
        const Q t294 = t292 + t293;
        const Q t295 = c[2] * t54;
        const Q t296 = c[3] * t30;
        const Q t297 = t295 + t296;
        const Q t298 = shuffled<1, 0, 3, 2>(t288);
        const Q t299 = flipped<0, 1, 0, 1>(t298);
        // complex block of 5, multiplier 2
        const Q t300 = t285 + t299;
        const Q t301 = shuffled<1, 0, 3, 2>(t297);
        const Q t302 = flipped<0, 1, 0, 1>(t301);
        // complex block of 5, multiplier 2
        const Q t303 = t294 + t302;
        const Q t304 = shuffled<0, 1, 4, 5>(t281, t300);
        const Q t305 = shuffled<0, 1, 4, 5>(t290, t303);
        // complex block of 2
        const Q t306 = t304 + t305;
        const Q t307 = t304 - t305;
        const Q t308 = shuffled<2, 3, 6, 7>(t281, t300);
        const Q t309 = shuffled<2, 3, 6, 7>(t290, t303);
        // complex block of 2
        const Q t310 = t308 + t309;
        const Q t311 = t308 - t309;
        // complex block of 2
        const Q t312 = t306 + t310;
        io.pairs(40, 52, t312);
        const Q t313 = t306 - t310;
        io.pairs(10, 22, t313);
        const Q t314 = shuffled<1, 0, 3, 2>(t311);
        const Q t315 = flipped<1, 0, 1, 0>(t314);
        // complex block of 2
        const Q t316 = t307 + t315;
        io.pairs(55, 7, t316);
        const Q t317 = t307 - t315;
        io.pairs(25, 37, t317);
        // complex block of 5, multiplier 2
        const Q t318 = t285 - t299;
        // complex block of 5, multiplier 2
        const Q t319 = t294 - t302;
        // complex block of 2
        const Q t320 = t318 + t319;
        const Q t321 = t318 - t319;
        const Q t322 = shuffled<0, 1, 4, 5>(t320, t321);
        const Q t323 = shuffled<1, 0, 3, 2>(t321);
        const Q t324 = shuffled<2, 3, 6, 7>(t320, t323);
        const Q t325 = flipped<0, 0, 1, 0>(t324);
        // complex block of 2
        const Q t326 = t322 + t325;
        io.pairs(28, 43, t326);
        const Q t327 = t322 - t325;
        io.pairs(58, 13, t327);
        // complex block of 5, multiplier 2
        const Q t328 = c[1] * t77;
        const Q t329 = c[0] * t101;
        const Q t330 = t328 - t329;
        const Q t331 = t330 + t7;
        const Q t332 = c[3] * t78;
        const Q t333 = c[2] * t102;
        const Q t334 = t332 - t333;
        // complex block of 5, multiplier 2
        const Q t335 = c[1] * t53;
        const Q t336 = c[0] * t29;
        const Q t337 = t335 - t336;
        const Q t338 = t337 + t112;
        const Q t339 = c[3] * t54;
        const Q t340 = c[2] * t30;
        const Q t341 = t339 - t340;
        const Q t342 = shuffled<1, 0, 3, 2>(t334);
        const Q t343 = flipped<0, 1, 0, 1>(t342);
        // complex block of 5, multiplier 2
        const Q t344 = t331 + t343;
        const Q t345 = t331 - t343;
        const Q t346 = shuffled<1, 0, 3, 2>(t341);
        const Q t347 = flipped<0, 1, 0, 1>(t346);
        // complex block of 5, multiplier 2
        const Q t348 = t338 + t347;
        const Q t349 = t338 - t347;
        const Q t350 = shuffled<0, 1, 4, 5>(t345, t344);
        const Q t351 = shuffled<0, 1, 4, 5>(t349, t348);
        // complex block of 2
        const Q t352 = t350 + t351;
        const Q t353 = t350 - t351;
        const Q t354 = shuffled<2, 3, 6, 7>(t345, t344);
        const Q t355 = shuffled<2, 3, 6, 7>(t349, t348);
        // complex block of 2
        const Q t356 = t354 + t355;
        const Q t357 = t354 - t355;
        // complex block of 2
        const Q t358 = t352 + t356;
        io.pairs(4, 16, t358);
        const Q t359 = t352 - t356;
        io.pairs(34, 46, t359);
        const Q t360 = shuffled<1, 0, 3, 2>(t357);
        const Q t361 = flipped<1, 0, 1, 0>(t360);
        // complex block of 2
        const Q t362 = t353 + t361;
        io.pairs(19, 31, t362);
        const Q t363 = t353 - t361;
        io.pairs(49, 1, t363);
    }
};

}  // namespace zulg
