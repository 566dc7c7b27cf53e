// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 54.
// Forward DFT of 54 real points, prime-factor 2, 27; two lanes to a register.
// 96 sums, 96 differences, 110 products of registers, which do the 656 steps of the graph, those with
// `scale` included; 54 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<54> {
    static constexpr int steps = 656;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.5971585917027862,  // c[6]: cos 2 pi 4/27
        0.8021231927550437,  // c[7]: sin 2 pi 4/27
        0.28680323271109026,  // c[8]: -cos 2 pi 8/27
        0.9579895123154889,  // c[9]: sin 2 pi 8/27
        0.8936326403234123,  // c[10]: cos 2 pi 2/27
        0.44879918020046217,  // c[11]: sin 2 pi 2/27
        0.8354878114129364,  // c[12]: -cos 2 pi 16/27
        0.549508978070806,  // c[13]: -sin 2 pi 16/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_2 = io.in(0, 2);
        const P x27_29 = io.in(27, 29);
        // real block of 2
        const P t0 = x0_2 + x27_29;
        const P t1 = x0_2 - x27_29;
        const P x4_6 = io.in(4, 6);
        const P x31_33 = io.in(31, 33);
        // real block of 2
        const P t2 = x4_6 + x31_33;
        const P t3 = x4_6 - x31_33;
        const P x8_10 = io.in(8, 10);
        const P x35_37 = io.in(35, 37);
        // real block of 2
        const P t4 = x8_10 + x35_37;
        const P t5 = x8_10 - x35_37;
        const P x12_14 = io.in(12, 14);
        const P x39_41 = io.in(39, 41);
        // real block of 2
        const P t6 = x12_14 + x39_41;
        const P t7 = x12_14 - x39_41;
        const P x16_18 = io.in(16, 18);
        const P x43_45 = io.in(43, 45);
        // real block of 2
        const P t8 = x16_18 + x43_45;
        const P t9 = x16_18 - x43_45;
        const P x20_22 = io.in(20, 22);
        const P x47_49 = io.in(47, 49);
        // real block of 2
        const P t10 = x20_22 + x47_49;
        const P t11 = x20_22 - x47_49;
        const P x24_26 = io.in(24, 26);
        const P x51_53 = io.in(51, 53);
        // real block of 2
        const P t12 = x24_26 + x51_53;
        const P t13 = x24_26 - x51_53;
        const P x28_30 = io.in(28, 30);
        const P x1_3 = io.in(1, 3);
        // real block of 2
        const P t14 = x28_30 + x1_3;
        const P t15 = x28_30 - x1_3;
        const P x32_34 = io.in(32, 34);
        const P x5_7 = io.in(5, 7);
        // real block of 2
        const P t16 = x32_34 + x5_7;
        const P t17 = x32_34 - x5_7;
        const P x36_38 = io.in(36, 38);
        const P x9_11 = io.in(9, 11);
        // real block of 2
        const P t18 = x36_38 + x9_11;
        const P t19 = x36_38 - x9_11;
        const P x40_42 = io.in(40, 42);
        const P x13_15 = io.in(13, 15);
        // real block of 2
        const P t20 = x40_42 + x13_15;
        const P t21 = x40_42 - x13_15;
        const P x44_46 = io.in(44, 46);
        const P x17_19 = io.in(17, 19);
        // real block of 2
        const P t22 = x44_46 + x17_19;
        const P t23 = x44_46 - x17_19;
        const P x48_50 = io.in(48, 50);
        const P x21_23 = io.in(21, 23);
        // real block of 2
        const P t24 = x48_50 + x21_23;
        const P t25 = x48_50 - x21_23;
        const V x52 = io.in(52);
        const V x25 = io.in(25);
        // real block of 2
        const V t26 = x52 + x25;
        const V t27 = x52 - x25;
        const P t28 = shuffled<1, 3>(t8, t9);
        const P t29 = shuffled<0, 2>(t18, t19);
        // real block of 3, multiplier 2
        const P t30 = t28 + t29;
        const P t31 = t28 - t29;
        const P t32 = shuffled<0, 2>(t0, t1);
        const P t33 = t30 + t32;
        const P t34 = c[0] * t30;
        const P t35 = t32 - t34;
        const P t36 = shuffled<0, 2>(t12, t13);
        const P t37 = shuffled<1, 3>(t20, t21);
        // real block of 3, multiplier 2
        const P t38 = t36 + t37;
        const P t39 = t36 - t37;
        const P t40 = shuffled<1, 3>(t2, t3);
        const P t41 = t38 + t40;
        const P t42 = c[0] * t38;
        const P t43 = t40 - t42;
        const P t44 = shuffled<1, 3>(t14, t15);
        const P t45 = shuffled<0, 2>(t24, t25);
        // real block of 3, multiplier 2
        const P t46 = t44 + t45;
        const P t47 = t44 - t45;
        const P t48 = shuffled<0, 2>(t6, t7);
        const P t49 = t46 + t48;
        const P t50 = c[0] * t46;
        const P t51 = t48 - t50;
        // real block of 3, multiplier 2
        const P t52 = t41 + t49;
        const P t53 = t41 - t49;
        const P t54 = t52 + t33;
        const P t55 = c[0] * t52;
        const P t56 = t33 - t55;
        // real block of 9, multiplier 2
        const P t57 = c[2] * t43;
        // real block of 3, multiplier 2
        const P t58 = c[1] * t39;
        // real block of 9, multiplier 2
        const P t59 = c[3] * t58;
        const P t60 = t57 + t59;
        const P t61 = c[2] * t58;
        const P t62 = c[3] * t43;
        const P t63 = t61 - t62;
        // real block of 3, multiplier 2
        const P t64 = c[1] * t47;
        // real block of 9, multiplier 2
        const P t65 = c[4] * t64;
        const P t66 = c[5] * t51;
        const P t67 = t65 - t66;
        const P t68 = c[5] * t64;
        const P t69 = c[4] * t51;
        const P t70 = t68 + t69;
        // complex block of 3, multiplier 2
        const P t71 = t60 + t67;
        const P t72 = t63 - t70;
        const P t73 = t60 - t67;
        const P t74 = t63 + t70;
        const P t75 = t71 + t35;
        // real block of 3, multiplier 2
        const P t76 = c[1] * t31;
        // complex block of 3, multiplier 2
        const P t77 = t72 + t76;
        const P t78 = c[0] * t71;
        const P t79 = t35 - t78;
        const P t80 = c[0] * t72;
        const P t81 = t76 - t80;
        const P t82 = c[1] * t74;
        const P t83 = t79 + t82;
        const P t84 = c[1] * t73;
        const P t85 = t81 - t84;
        const P t86 = t79 - t82;
        const P t87 = t81 + t84;
        const P t88 = shuffled<0, 2>(t10, t11);
        const P t89 = shuffled<1, 3>(t18, t19);
        // real block of 3, multiplier 2
        const P t90 = t88 + t89;
        const P t91 = t88 - t89;
        const P t92 = shuffled<1, 3>(t0, t1);
        const P t93 = t90 + t92;
        const P t94 = c[0] * t90;
        const P t95 = t92 - t94;
        const P t96 = shuffled<1, 3>(t12, t13);
        const P t97 = shuffled<0, 2>(t22, t23);
        // real block of 3, multiplier 2
        const P t98 = t96 + t97;
        const P t99 = t96 - t97;
        const P t100 = shuffled<0, 2>(t4, t5);
        const P t101 = t98 + t100;
        const P t102 = c[0] * t98;
        const P t103 = t100 - t102;
        const P t104 = shuffled<0, 2>(t16, t17);
        const P t105 = shuffled<1, 3>(t24, t25);
        // real block of 3, multiplier 2
        const P t106 = t104 + t105;
        const P t107 = t104 - t105;
        const P t108 = shuffled<1, 3>(t6, t7);
        const P t109 = t106 + t108;
        const P t110 = c[0] * t106;
        const P t111 = t108 - t110;
        // real block of 3, multiplier 2
        const P t112 = t101 + t109;
        const P t113 = t101 - t109;
        const P t114 = t112 + t93;
        const P t115 = c[0] * t112;
        const P t116 = t93 - t115;
        // real block of 9, multiplier 2
        const P t117 = c[2] * t103;
        // real block of 3, multiplier 2
        const P t118 = c[1] * t99;
        // real block of 9, multiplier 2
        const P t119 = c[3] * t118;
        const P t120 = t117 + t119;
        const P t121 = c[2] * t118;
        const P t122 = c[3] * t103;
        const P t123 = t121 - t122;
        // real block of 3, multiplier 2
        const P t124 = c[1] * t107;
        // real block of 9, multiplier 2
        const P t125 = c[4] * t124;
        const P t126 = c[5] * t111;
        const P t127 = t125 - t126;
        const P t128 = c[5] * t124;
        const P t129 = c[4] * t111;
        const P t130 = t128 + t129;
        // complex block of 3, multiplier 2
        const P t131 = t120 + t127;
        const P t132 = t123 - t130;
        const P t133 = t120 - t127;
        const P t134 = t123 + t130;
        const P t135 = t131 + t95;
        // real block of 3, multiplier 2
        const P t136 = c[1] * t91;
        // complex block of 3, multiplier 2
        const P t137 = t132 + t136;
        const P t138 = c[0] * t131;
        const P t139 = t95 - t138;
        const P t140 = c[0] * t132;
        const P t141 = t136 - t140;
        const P t142 = c[1] * t134;
        const P t143 = t139 + t142;
        const P t144 = c[1] * t133;
        const P t145 = t141 - t144;
        const P t146 = t139 - t142;
        const P t147 = t141 + t144;
        const P t148 = shuffled<1, 3>(t10, t11);
        const P t149 = shuffled<0, 2>(t20, t21);
        // real block of 3, multiplier 2
        const P t150 = t148 + t149;
        const P t151 = t148 - t149;
        const P t152 = shuffled<0, 2>(t2, t3);
        const P t153 = t150 + t152;
        const P t154 = c[0] * t150;
        const P t155 = t152 - t154;
        const P t156 = shuffled<0, 2>(t14, t15);
        const P t157 = shuffled<1, 3>(t22, t23);
        // real block of 3, multiplier 2
        const P t158 = t156 + t157;
        const P t159 = t156 - t157;
        const P t160 = shuffled<1, 3>(t4, t5);
        const P t161 = t158 + t160;
        const P t162 = c[0] * t158;
        const P t163 = t160 - t162;
        const P t164 = shuffled<1, 3>(t16, t17);
        const P t165 = joined(t26, t27);
        // real block of 3, multiplier 2
        const P t166 = t164 + t165;
        const P t167 = t164 - t165;
        const P t168 = shuffled<0, 2>(t8, t9);
        const P t169 = t166 + t168;
        const P t170 = c[0] * t166;
        const P t171 = t168 - t170;
        // real block of 3, multiplier 2
        const P t172 = t161 + t169;
        const P t173 = t161 - t169;
        const P t174 = t172 + t153;
        const P t175 = c[0] * t172;
        const P t176 = t153 - t175;
        // real block of 9, multiplier 2
        const P t177 = c[2] * t163;
        // real block of 3, multiplier 2
        const P t178 = c[1] * t159;
        // real block of 9, multiplier 2
        const P t179 = c[3] * t178;
        const P t180 = t177 + t179;
        const P t181 = c[2] * t178;
        const P t182 = c[3] * t163;
        const P t183 = t181 - t182;
        // real block of 3, multiplier 2
        const P t184 = c[1] * t167;
        // real block of 9, multiplier 2
        const P t185 = c[4] * t184;
        const P t186 = c[5] * t171;
        const P t187 = t185 - t186;
        const P t188 = c[5] * t184;
        const P t189 = c[4] * t171;
        const P t190 = t188 + t189;
        // complex block of 3, multiplier 2
        const P t191 = t180 + t187;
        const P t192 = t183 - t190;
        const P t193 = t180 - t187;
        const P t194 = t183 + t190;
        const P t195 = t191 + t155;
        // real block of 3, multiplier 2
        const P t196 = c[1] * t151;
        // complex block of 3, multiplier 2
        const P t197 = t192 + t196;
        const P t198 = c[0] * t191;
        const P t199 = t155 - t198;
        const P t200 = c[0] * t192;
        const P t201 = t196 - t200;
        const P t202 = c[1] * t194;
        const P t203 = t199 + t202;
        const P t204 = c[1] * t193;
        const P t205 = t201 - t204;
        const P t206 = t199 - t202;
        const P t207 = t201 + t204;
        // real block of 3, multiplier 2
        const P t208 = t114 + t174;
        const P t209 = t114 - t174;
        const P t210 = t208 + t54;
        const V t211 = part<0>(t210);
        io.re(0, t211);
        const V t212 = part<1>(t210);
        io.re(27, t212);
        const P t213 = c[0] * t208;
        const P t214 = t54 - t213;
        const P t215 = P(c[1], -c[1]) * t209;
        const P t216 = shuffled<1, 3>(t214, t215);
        io.pair(9, t216);
        const P t217 = shuffled<0, 2>(t214, t215);
        io.pair(18, t217);
        // real block of 27, multiplier 2
        const P t218 = c[10] * t135;
        const P t219 = c[11] * t137;
        const P t220 = t218 + t219;
        const P t221 = c[10] * t137;
        const P t222 = c[11] * t135;
        const P t223 = t221 - t222;
        const P t224 = c[6] * t195;
        const P t225 = c[7] * t197;
        const P t226 = t224 + t225;
        const P t227 = c[6] * t197;
        const P t228 = c[7] * t195;
        const P t229 = t227 - t228;
        // complex block of 3, multiplier 2
        const P t230 = t220 + t226;
        const P t231 = t223 + t229;
        const P t232 = t220 - t226;
        const P t233 = t223 - t229;
        const P t234 = t230 + t75;
        const P t235 = t231 + t77;
        const P t236 = shuffled<0, 2>(t234, t235);
        io.pair(2, t236);
        const P t237 = shuffled<1, 3>(t234, t235);
        io.pair(25, negated<0, 1>(t237));
        const P t238 = c[0] * t230;
        const P t239 = t75 - t238;
        const P t240 = c[0] * t231;
        const P t241 = t77 - t240;
        const P t242 = c[1] * t233;
        const P t243 = t239 + t242;
        const P t244 = c[1] * t232;
        const P t245 = t241 - t244;
        const P t246 = shuffled<1, 3>(t243, t245);
        io.pair(11, t246);
        const P t247 = shuffled<0, 2>(t243, t245);
        io.pair(16, negated<0, 1>(t247));
        const P t248 = t239 - t242;
        const P t249 = t241 + t244;
        const P t250 = shuffled<1, 3>(t248, t249);
        io.pair(7, negated<0, 1>(t250));
        const P t251 = shuffled<0, 2>(t248, t249);
        io.pair(20, t251);
        // real block of 27, multiplier 2
        const P t252 = c[6] * t143;
        const P t253 = c[7] * t145;
        const P t254 = t252 - t253;
        const P t255 = c[6] * t145;
        const P t256 = c[7] * t143;
        const P t257 = t255 + t256;
        const P t258 = c[8] * t203;
        const P t259 = c[9] * t205;
        const P t260 = t258 + t259;
        const P t261 = c[8] * t205;
        const P t262 = c[9] * t203;
        const P t263 = t261 - t262;
        // complex block of 3, multiplier 2
        const P t264 = t254 - t260;
        const P t265 = t263 - t257;
        const P t266 = t254 + t260;
        const P t267 = t257 + t263;
        const P t268 = t264 + t83;
        const P t269 = t265 - t85;
        const P t270 = shuffled<0, 2>(t268, t269);
        io.pair(4, t270);
        const P t271 = shuffled<1, 3>(t268, t269);
        io.pair(23, negated<0, 1>(t271));
        const P t272 = c[0] * t264;
        const P t273 = t83 - t272;
        const P t274 = c[0] * t265;
        const P t275 = t85 + t274;
        const P t276 = c[1] * t267;
        const P t277 = t273 - t276;
        const P t278 = c[1] * t266;
        const P t279 = t275 + t278;
        const P t280 = shuffled<1, 3>(t277, t279);
        io.pair(13, negated<0, 1>(t280));
        const P t281 = shuffled<0, 2>(t277, t279);
        io.pair(14, t281);
        const P t282 = t273 + t276;
        const P t283 = t278 - t275;
        const P t284 = shuffled<1, 3>(t282, t283);
        io.pair(5, negated<0, 1>(t284));
        const P t285 = shuffled<0, 2>(t282, t283);
        io.pair(22, t285);
        // real block of 27, multiplier 2
        const P t286 = c[2] * t116;
        // real block of 3, multiplier 2
        const P t287 = c[1] * t113;
        // real block of 27, multiplier 2
        const P t288 = c[3] * t287;
        const P t289 = t286 + t288;
        const P t290 = c[2] * t287;
        const P t291 = c[3] * t116;
        const P t292 = t290 - t291;
        // real block of 3, multiplier 2
        const P t293 = c[1] * t173;
        // real block of 27, multiplier 2
        const P t294 = c[4] * t293;
        const P t295 = c[5] * t176;
        const P t296 = t294 - t295;
        const P t297 = c[5] * t293;
        const P t298 = c[4] * t176;
        const P t299 = t297 + t298;
        // complex block of 3, multiplier 2
        const P t300 = t289 + t296;
        const P t301 = t292 - t299;
        const P t302 = t289 - t296;
        const P t303 = t292 + t299;
        const P t304 = t300 + t56;
        // real block of 3, multiplier 2
        const P t305 = c[1] * t53;
        // complex block of 3, multiplier 2
        const P t306 = t301 + t305;
        const P t307 = shuffled<0, 2>(t304, t306);
        io.pair(6, t307);
        const P t308 = shuffled<1, 3>(t304, t306);
        io.pair(21, negated<0, 1>(t308));
        const P t309 = c[0] * t300;
        const P t310 = t56 - t309;
        const P t311 = c[0] * t301;
        const P t312 = t305 - t311;
        const P t313 = c[1] * t303;
        const P t314 = t310 + t313;
        const P t315 = c[1] * t302;
        const P t316 = t312 - t315;
        const P t317 = shuffled<0, 2>(t314, t316);
        io.pair(12, negated<0, 1>(t317));
        const P t318 = shuffled<1, 3>(t314, t316);
        io.pair(15, t318);
        const P t319 = t310 - t313;
        const P t320 = t312 + t315;
        const P t321 = shuffled<1, 3>(t319, t320);
        io.pair(3, negated<0, 1>(t321));
        const P t322 = shuffled<0, 2>(t319, t320);
        io.pair(24, t322);
        // real block of 27, multiplier 2
        const P t323 = c[9] * t147;
        const P t324 = c[8] * t146;
        const P t325 = t323 - t324;
        const P t326 = c[8] * t147;
        const P t327 = c[9] * t146;
        const P t328 = t326 + t327;
        const P t329 = c[12] * t206;
        const P t330 = c[13] * t207;
        const P t331 = t329 + t330;
        const P t332 = c[13] * t206;
        const P t333 = c[12] * t207;
        const P t334 = t332 - t333;
        // complex block of 3, multiplier 2
        const P t335 = t325 - t331;
        const P t336 = t334 - t328;
        const P t337 = t325 + t331;
        const P t338 = t328 + t334;
        const P t339 = t335 + t86;
        const P t340 = t336 + t87;
        const P t341 = shuffled<0, 2>(t339, t340);
        io.pair(8, t341);
        const P t342 = shuffled<1, 3>(t339, t340);
        io.pair(19, negated<0, 1>(t342));
        const P t343 = c[0] * t335;
        const P t344 = t86 - t343;
        const P t345 = c[0] * t336;
        const P t346 = t87 - t345;
        const P t347 = c[1] * t338;
        const P t348 = t344 - t347;
        const P t349 = c[1] * t337;
        const P t350 = t346 - t349;
        const P t351 = shuffled<0, 2>(t348, t350);
        io.pair(10, negated<0, 1>(t351));
        const P t352 = shuffled<1, 3>(t348, t350);
        io.pair(17, t352);
        const P t353 = t344 + t347;
        const P t354 = t346 + t349;
        const P t355 = shuffled<1, 3>(t353, t354);
        io.pair(1, negated<0, 1>(t355));
        const P t356 = shuffled<0, 2>(t353, t354);
        io.pair(26, t356);
    }
};

}  // namespace zulg
