// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 25.
// Complex DFT of 25 points, twiddled, inner 5, outer 5; one complex number to a register.
// 109 sums, 67 differences, 112 products of registers, which do the 626 steps of the graph, those with
// `scale` included; 38 shuffles, 26 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<25> {
    static constexpr int steps = 626;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5358267949789967,  // c[4]: cos 2 pi 4/25
        0.8443279255020151,  // c[5]: sin 2 pi 4/25
        0.8763066800438636,  // c[6]: cos 2 pi 2/25
        0.48175367410171527,  // c[7]: sin 2 pi 2/25
        0.7289686274214116,  // c[8]: cos 2 pi 3/25
        0.6845471059286887,  // c[9]: sin 2 pi 3/25
        0.06279051952931337,  // c[10]: cos 2 pi 6/25
        0.9980267284282716,  // c[11]: sin 2 pi 6/25
        0.42577929156507266,  // c[12]: -cos 2 pi 8/25
        0.9048270524660196,  // c[13]: sin 2 pi 8/25
        0.6374239897486897,  // c[14]: -cos 2 pi 9/25
        0.7705132427757893,  // c[15]: sin 2 pi 9/25
        0.9921147013144779,  // c[16]: -cos 2 pi 12/25
        0.12533323356430426,  // c[17]: sin 2 pi 12/25
        0.9685831611286311,  // c[18]: cos 2 pi 1/25
        0.2486898871648548,  // c[19]: sin 2 pi 1/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x5 = io.pair(5);
        const P x20 = io.pair(20);
        // complex block of 5
        const P t0 = x5 + x20;
        const P t1 = x5 - x20;
        const P x15 = io.pair(15);
        const P x10 = io.pair(10);
        const P t2 = x15 + x10;
        const P t3 = x15 - x10;
        const P t4 = t0 + t2;
        const P x0 = io.pair(0);
        const P t5 = t4 + x0;
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x0;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 - t11;
        const P t13 = shuffled<1, 0>(t12);
        const P t14 = flipped<0, 1>(t13);
        const P t15 = t9 + t14;
        const P t16 = t9 - t14;
        const P t17 = c[1] * t0;
        const P t18 = x0 - t17;
        const P t19 = c[0] * t2;
        const P t20 = t18 + t19;
        const P t21 = c[3] * t1;
        const P t22 = c[2] * t3;
        const P t23 = t21 + t22;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = flipped<0, 1>(t24);
        const P t26 = t20 + t25;
        const P t27 = t20 - t25;
        const P x6 = io.pair(6);
        const P x21 = io.pair(21);
        // complex block of 5
        const P t28 = x6 + x21;
        const P t29 = x6 - x21;
        const P x16 = io.pair(16);
        const P x11 = io.pair(11);
        const P t30 = x16 + x11;
        const P t31 = x16 - x11;
        const P t32 = t28 + t30;
        const P x1 = io.pair(1);
        const P t33 = t32 + x1;
        const P t34 = c[0] * t28;
        const P t35 = c[1] * t30;
        const P t36 = t34 - t35;
        const P t37 = t36 + x1;
        const P t38 = c[2] * t29;
        const P t39 = c[3] * t31;
        const P t40 = t38 - t39;
        const P t41 = shuffled<1, 0>(t40);
        const P t42 = flipped<0, 1>(t41);
        const P t43 = t37 + t42;
        const P t44 = t37 - t42;
        const P t45 = c[1] * t28;
        const P t46 = x1 - t45;
        const P t47 = c[0] * t30;
        const P t48 = t46 + t47;
        const P t49 = c[3] * t29;
        const P t50 = c[2] * t31;
        const P t51 = t49 + t50;
        const P t52 = shuffled<1, 0>(t51);
        const P t53 = flipped<0, 1>(t52);
        const P t54 = t48 + t53;
        const P t55 = t48 - t53;
        const P x7 = io.pair(7);
        const P x22 = io.pair(22);
        // complex block of 5
        const P t56 = x7 + x22;
        const P t57 = x7 - x22;
        const P x17 = io.pair(17);
        const P x12 = io.pair(12);
        const P t58 = x17 + x12;
        const P t59 = x17 - x12;
        const P t60 = t56 + t58;
        const P x2 = io.pair(2);
        const P t61 = t60 + x2;
        const P t62 = c[0] * t56;
        const P t63 = c[1] * t58;
        const P t64 = t62 - t63;
        const P t65 = t64 + x2;
        const P t66 = c[2] * t57;
        const P t67 = c[3] * t59;
        const P t68 = t66 - t67;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = flipped<0, 1>(t69);
        const P t71 = t65 + t70;
        const P t72 = t65 - t70;
        const P t73 = c[1] * t56;
        const P t74 = x2 - t73;
        const P t75 = c[0] * t58;
        const P t76 = t74 + t75;
        const P t77 = c[3] * t57;
        const P t78 = c[2] * t59;
        const P t79 = t77 + t78;
        const P t80 = shuffled<1, 0>(t79);
        const P t81 = flipped<0, 1>(t80);
        const P t82 = t76 + t81;
        const P t83 = t76 - t81;
        const P x8 = io.pair(8);
        const P x23 = io.pair(23);
        // complex block of 5
        const P t84 = x8 + x23;
        const P t85 = x8 - x23;
        const P x18 = io.pair(18);
        const P x13 = io.pair(13);
        const P t86 = x18 + x13;
        const P t87 = x18 - x13;
        const P t88 = t84 + t86;
        const P x3 = io.pair(3);
        const P t89 = t88 + x3;
        const P t90 = c[0] * t84;
        const P t91 = c[1] * t86;
        const P t92 = t90 - t91;
        const P t93 = t92 + x3;
        const P t94 = c[2] * t85;
        const P t95 = c[3] * t87;
        const P t96 = t94 - t95;
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = flipped<0, 1>(t97);
        const P t99 = t93 + t98;
        const P t100 = t93 - t98;
        const P t101 = c[1] * t84;
        const P t102 = x3 - t101;
        const P t103 = c[0] * t86;
        const P t104 = t102 + t103;
        const P t105 = c[3] * t85;
        const P t106 = c[2] * t87;
        const P t107 = t105 + t106;
        const P t108 = shuffled<1, 0>(t107);
        const P t109 = flipped<0, 1>(t108);
        const P t110 = t104 + t109;
        const P t111 = t104 - t109;
        const P x9 = io.pair(9);
        const P x24 = io.pair(24);
        // complex block of 5
        const P t112 = x9 + x24;
        const P t113 = x9 - x24;
        const P x19 = io.pair(19);
        const P x14 = io.pair(14);
        const P t114 = x19 + x14;
        const P t115 = x19 - x14;
        const P t116 = t112 + t114;
        const P x4 = io.pair(4);
        const P t117 = t116 + x4;
        const P t118 = c[0] * t112;
        const P t119 = c[1] * t114;
        const P t120 = t118 - t119;
        const P t121 = t120 + x4;
        const P t122 = c[2] * t113;
        const P t123 = c[3] * t115;
        const P t124 = t122 - t123;
        const P t125 = shuffled<1, 0>(t124);
        const P t126 = flipped<0, 1>(t125);
        const P t127 = t121 + t126;
        const P t128 = t121 - t126;
        const P t129 = c[1] * t112;
        const P t130 = x4 - t129;
        const P t131 = c[0] * t114;
        const P t132 = t130 + t131;
        const P t133 = c[3] * t113;
        const P t134 = c[2] * t115;
        const P t135 = t133 + t134;
        const P t136 = shuffled<1, 0>(t135);
        const P t137 = flipped<0, 1>(t136);
        const P t138 = t132 + t137;
        const P t139 = t132 - t137;
        // complex block of 5
        const P t140 = t33 + t117;
        const P t141 = t33 - t117;
        const P t142 = t89 + t61;
        const P t143 = t89 - t61;
        const P t144 = t140 + t142;
        const P t145 = t144 + t5;
        io.pair(0, t145);
        const P t146 = c[0] * t140;
        const P t147 = c[1] * t142;
        const P t148 = t146 - t147;
        const P t149 = t148 + t5;
        const P t150 = c[2] * t141;
        const P t151 = c[3] * t143;
        const P t152 = t150 - t151;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = flipped<0, 1>(t153);
        const P t155 = t149 + t154;
        io.pair(5, t155);
        const P t156 = t149 - t154;
        io.pair(20, t156);
        const P t157 = c[1] * t140;
        const P t158 = t5 - t157;
        const P t159 = c[0] * t142;
        const P t160 = t158 + t159;
        const P t161 = c[3] * t141;
        const P t162 = c[2] * t143;
        const P t163 = t161 + t162;
        const P t164 = shuffled<1, 0>(t163);
        const P t165 = flipped<0, 1>(t164);
        const P t166 = t160 + t165;
        io.pair(10, t166);
        const P t167 = t160 - t165;
        io.pair(15, t167);
        // complex block of 25
        const P t168 = c[18] * t43;
        const P t169 = shuffled<1, 0>(t43);
        const P t170 = P(c[19], -c[19]) * t169;
        const P t171 = t168 + t170;
        const P t172 = c[6] * t71;
        const P t173 = shuffled<1, 0>(t71);
        const P t174 = P(c[7], -c[7]) * t173;
        const P t175 = t172 + t174;
        const P t176 = c[8] * t99;
        const P t177 = shuffled<1, 0>(t99);
        const P t178 = P(c[9], -c[9]) * t177;
        const P t179 = t176 + t178;
        const P t180 = c[4] * t127;
        const P t181 = shuffled<1, 0>(t127);
        const P t182 = P(c[5], -c[5]) * t181;
        const P t183 = t180 + t182;
        // complex block of 5
        const P t184 = t171 + t183;
        const P t185 = t171 - t183;
        const P t186 = t179 + t175;
        const P t187 = t179 - t175;
        const P t188 = t184 + t186;
        const P t189 = t188 + t15;
        io.pair(1, t189);
        const P t190 = c[0] * t184;
        const P t191 = c[1] * t186;
        const P t192 = t190 - t191;
        const P t193 = t192 + t15;
        const P t194 = c[2] * t185;
        const P t195 = c[3] * t187;
        const P t196 = t194 - t195;
        const P t197 = shuffled<1, 0>(t196);
        const P t198 = flipped<0, 1>(t197);
        const P t199 = t193 + t198;
        io.pair(6, t199);
        const P t200 = t193 - t198;
        io.pair(21, t200);
        const P t201 = c[1] * t184;
        const P t202 = t15 - t201;
        const P t203 = c[0] * t186;
        const P t204 = t202 + t203;
        const P t205 = c[3] * t185;
        const P t206 = c[2] * t187;
        const P t207 = t205 + t206;
        const P t208 = shuffled<1, 0>(t207);
        const P t209 = flipped<0, 1>(t208);
        const P t210 = t204 + t209;
        io.pair(11, t210);
        const P t211 = t204 - t209;
        io.pair(16, t211);
        // complex block of 25
        const P t212 = c[6] * t54;
        const P t213 = shuffled<1, 0>(t54);
        const P t214 = P(c[7], -c[7]) * t213;
        const P t215 = t212 + t214;
        const P t216 = c[4] * t82;
        const P t217 = shuffled<1, 0>(t82);
        const P t218 = P(c[5], -c[5]) * t217;
        const P t219 = t216 + t218;
        const P t220 = c[10] * t110;
        const P t221 = shuffled<1, 0>(t110);
        const P t222 = P(c[11], -c[11]) * t221;
        const P t223 = t220 + t222;
        const P t224 = P(-c[12], c[12]) * t138;
        const P t225 = shuffled<1, 0>(t138);
        const P t226 = c[13] * t225;
        const P t227 = t224 + t226;
        const P t228 = flipped<0, 1>(t227);
        // complex block of 5
        const P t229 = t215 + t228;
        const P t230 = t215 - t228;
        const P t231 = t223 + t219;
        const P t232 = t223 - t219;
        const P t233 = t229 + t231;
        const P t234 = t233 + t26;
        io.pair(2, t234);
        const P t235 = c[0] * t229;
        const P t236 = c[1] * t231;
        const P t237 = t235 - t236;
        const P t238 = t237 + t26;
        const P t239 = c[2] * t230;
        const P t240 = c[3] * t232;
        const P t241 = t239 - t240;
        const P t242 = shuffled<1, 0>(t241);
        const P t243 = flipped<0, 1>(t242);
        const P t244 = t238 + t243;
        io.pair(7, t244);
        const P t245 = t238 - t243;
        io.pair(22, t245);
        const P t246 = c[1] * t229;
        const P t247 = t26 - t246;
        const P t248 = c[0] * t231;
        const P t249 = t247 + t248;
        const P t250 = c[3] * t230;
        const P t251 = c[2] * t232;
        const P t252 = t250 + t251;
        const P t253 = shuffled<1, 0>(t252);
        const P t254 = flipped<0, 1>(t253);
        const P t255 = t249 + t254;
        io.pair(12, t255);
        const P t256 = t249 - t254;
        io.pair(17, t256);
        // complex block of 25
        const P t257 = c[8] * t55;
        const P t258 = shuffled<1, 0>(t55);
        const P t259 = P(c[9], -c[9]) * t258;
        const P t260 = t257 + t259;
        const P t261 = c[10] * t83;
        const P t262 = shuffled<1, 0>(t83);
        const P t263 = P(c[11], -c[11]) * t262;
        const P t264 = t261 + t263;
        const P t265 = P(-c[14], c[14]) * t111;
        const P t266 = shuffled<1, 0>(t111);
        const P t267 = c[15] * t266;
        const P t268 = t265 + t267;
        const P t269 = P(-c[16], c[16]) * t139;
        const P t270 = shuffled<1, 0>(t139);
        const P t271 = c[17] * t270;
        const P t272 = t269 + t271;
        const P t273 = flipped<0, 1>(t272);
        // complex block of 5
        const P t274 = t260 + t273;
        const P t275 = t260 - t273;
        const P t276 = flipped<0, 1>(t268);
        const P t277 = t264 + t276;
        const P t278 = flipped<1, 0>(t264);
        const P t279 = t268 + t278;
        const P t280 = t274 + t277;
        const P t281 = t280 + t27;
        io.pair(3, t281);
        const P t282 = c[0] * t274;
        const P t283 = c[1] * t277;
        const P t284 = t282 - t283;
        const P t285 = t284 + t27;
        const P t286 = c[2] * t275;
        const P t287 = P(-c[3], c[3]) * t279;
        const P t288 = t286 + t287;
        const P t289 = shuffled<1, 0>(t288);
        const P t290 = flipped<0, 1>(t289);
        const P t291 = t285 + t290;
        io.pair(8, t291);
        const P t292 = t285 - t290;
        io.pair(23, t292);
        const P t293 = c[1] * t274;
        const P t294 = t27 - t293;
        const P t295 = c[0] * t277;
        const P t296 = t294 + t295;
        const P t297 = c[3] * t275;
        const P t298 = P(c[2], -c[2]) * t279;
        const P t299 = t297 + t298;
        const P t300 = shuffled<1, 0>(t299);
        const P t301 = flipped<0, 1>(t300);
        const P t302 = t296 + t301;
        io.pair(13, t302);
        const P t303 = t296 - t301;
        io.pair(18, t303);
        // complex block of 25
        const P t304 = c[4] * t44;
        const P t305 = shuffled<1, 0>(t44);
        const P t306 = P(c[5], -c[5]) * t305;
        const P t307 = t304 + t306;
        const P t308 = P(-c[12], c[12]) * t72;
        const P t309 = shuffled<1, 0>(t72);
        const P t310 = c[13] * t309;
        const P t311 = t308 + t310;
        const P t312 = P(-c[16], c[16]) * t100;
        const P t313 = shuffled<1, 0>(t100);
        const P t314 = c[17] * t313;
        const P t315 = t312 + t314;
        const P t316 = shuffled<1, 0>(t128);
        const P t317 = c[15] * t316;
        const P t318 = P(c[14], -c[14]) * t128;
        const P t319 = t317 + t318;
        const P t320 = flipped<1, 0>(t319);
        // complex block of 5
        const P t321 = t307 + t320;
        const P t322 = t307 - t320;
        const P t323 = t315 + t311;
        const P t324 = shuffled<0, 3>(t315, t311);
        const P t325 = shuffled<0, 3>(t311, t315);
        const P t326 = t324 - t325;
        const P t327 = flipped<0, 1>(t323);
        const P t328 = t321 + t327;
        const P t329 = t328 + t16;
        io.pair(4, t329);
        const P t330 = c[0] * t321;
        const P t331 = P(-c[1], c[1]) * t323;
        const P t332 = t330 + t331;
        const P t333 = t332 + t16;
        const P t334 = c[2] * t322;
        const P t335 = c[3] * t326;
        const P t336 = t334 - t335;
        const P t337 = shuffled<1, 0>(t336);
        const P t338 = flipped<0, 1>(t337);
        const P t339 = t333 + t338;
        io.pair(9, t339);
        const P t340 = t333 - t338;
        io.pair(24, t340);
        const P t341 = c[1] * t321;
        const P t342 = t16 - t341;
        const P t343 = P(c[0], -c[0]) * t323;
        const P t344 = t342 + t343;
        const P t345 = c[3] * t322;
        const P t346 = c[2] * t326;
        const P t347 = t345 + t346;
        const P t348 = shuffled<1, 0>(t347);
        const P t349 = flipped<0, 1>(t348);
        const P t350 = t344 + t349;
        io.pair(14, t350);
        const P t351 = t344 - t349;
        io.pair(19, t351);
    }
};

}  // namespace zulg
