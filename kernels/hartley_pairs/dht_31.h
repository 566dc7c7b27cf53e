// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 31.
// Hartley transform of 31 points, form I; two lanes to a register.
// 107 sums, 69 differences, 98 products of registers, which do the 571 steps of the graph, those with
// `scale` included; 61 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<31> {
    static constexpr int steps = 571;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.03988273291964531,  // c[6]: Q[1] of 31
        0.3690354256607867,  // c[7]: P[1] of 31
        0.3711833750943932,  // c[8]: P[2] of 31
        0.0008245188371257438,  // c[9]: -Q[2] of 31
        0.20210094150400285,  // c[10]: -Q[3] of 31
        0.31134062892750347,  // c[11]: -P[3] of 31
        0.057732967694591485,  // c[12]: P[4] of 31
        0.36666699090448956,  // c[13]: Q[4] of 31
        0.2580069240952765,  // c[14]: -Q[5] of 31
        0.26685240283098827,  // c[15]: -P[5] of 31
        0.30349444463155195,  // c[16]: P[6] of 31
        0.21370283071490567,  // c[17]: -Q[6] of 31
        0.36985241937462743,  // c[18]: Q[7] of 31
        0.031416009621091305,  // c[19]: -P[7] of 31
        0.22434412781271781,  // c[20]: -P[8] of 31
        0.2957152178933792,  // c[21]: Q[8] of 31
        0.35029620511956006,  // c[22]: Q[9] of 31
        0.12276133942171241,  // c[23]: -P[9] of 31
        0.3417205692768941,  // c[24]: P[10] of 31
        0.1449304326594425,  // c[25]: Q[10] of 31
        0.05080100546858957,  // c[26]: Q[11] of 31
        0.3676914951710987,  // c[27]: -P[11] of 31
        0.3484386235098738,  // c[28]: P[12] of 31
        0.127938670558679,  // c[29]: Q[12] of 31
        0.0592131223973046,  // c[30]: P[13] of 31
        0.36643087194413576,  // c[31]: -Q[13] of 31
        0.1853625778087589,  // c[32]: -P[14] of 31
        0.3215874570406464,  // c[33]: Q[14] of 31
        0.03333333333333333,  // c[34]: 1/30
        0.1855921454276674,  // c[35]: -beta of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x30_29 = io.in(30, 29);
        // input stage
        const P t0 = x1_2 + x30_29;
        const P t1 = x1_2 - x30_29;
        const P x3_4 = io.in(3, 4);
        const P x28_27 = io.in(28, 27);
        const P t2 = x3_4 + x28_27;
        const P t3 = x3_4 - x28_27;
        const P x5_6 = io.in(5, 6);
        const P x26_25 = io.in(26, 25);
        const P t4 = x5_6 + x26_25;
        const P t5 = x5_6 - x26_25;
        const P x7_8 = io.in(7, 8);
        const P x24_23 = io.in(24, 23);
        const P t6 = x7_8 + x24_23;
        const P t7 = x7_8 - x24_23;
        const P x9_10 = io.in(9, 10);
        const P x22_21 = io.in(22, 21);
        const P t8 = x9_10 + x22_21;
        const P t9 = x9_10 - x22_21;
        const P x11_12 = io.in(11, 12);
        const P x20_19 = io.in(20, 19);
        const P t10 = x11_12 + x20_19;
        const P t11 = x11_12 - x20_19;
        const P x13_14 = io.in(13, 14);
        const P x18_17 = io.in(18, 17);
        const P t12 = x13_14 + x18_17;
        const P t13 = x13_14 - x18_17;
        const V x15 = io.in(15);
        const V x16 = io.in(16);
        const V t14 = x15 + x16;
        const V t15 = x15 - x16;
        const P t16 = shuffled<0, 2>(t4, t5);
        const P t17 = shuffled<1, 3>(t4, t5);
        const P t18 = flipped<0, 1>(t17);
        // real block of 3, multiplier 2
        const P t19 = t16 + t18;
        const P t20 = t16 - t18;
        const P t21 = shuffled<0, 2>(t0, t1);
        const P t22 = t19 + t21;
        const P t23 = c[4] * t19;
        const P t24 = t21 - t23;
        const P t25 = shuffled<0, 2>(t10, t7);
        const P t26 = shuffled<0, 2>(t6, t11);
        const P t27 = flipped<0, 1>(t26);
        // real block of 3, multiplier 2
        const P t28 = t25 + t27;
        const P t29 = t25 - t27;
        const P t30 = shuffled<1, 3>(t2, t3);
        const P t31 = t28 + t30;
        const P t32 = c[4] * t28;
        const P t33 = t30 - t32;
        const P t34 = shuffled<0, 2>(t12, t13);
        const P t35 = shuffled<0, 2>(t2, t3);
        // real block of 3, multiplier 2
        const P t36 = t34 + t35;
        const P t37 = shuffled<0, 3>(t34, t35);
        const P t38 = shuffled<0, 3>(t35, t34);
        const P t39 = t37 - t38;
        const P t40 = joined(t14, t15);
        const P t41 = t36 + t40;
        const P t42 = P(-c[4], c[4]) * t36;
        const P t43 = flipped<0, 1>(t40);
        const P t44 = t42 + t43;
        const P t45 = shuffled<1, 3>(t8, t9);
        const P t46 = shuffled<1, 3>(t10, t11);
        const P t47 = flipped<0, 1>(t46);
        // real block of 3, multiplier 2
        const P t48 = t45 + t47;
        const P t49 = t45 - t47;
        const P t50 = shuffled<1, 3>(t0, t1);
        const P t51 = t48 + t50;
        const P t52 = c[4] * t48;
        const P t53 = t50 - t52;
        const P t54 = shuffled<0, 2>(t8, t9);
        const P t55 = shuffled<1, 3>(t12, t13);
        // real block of 3, multiplier 2
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        const P t58 = shuffled<1, 3>(t6, t7);
        const P t59 = t56 + t58;
        const P t60 = c[4] * t56;
        const P t61 = t58 - t60;
        // real block of 5, multiplier 3
        const P t62 = t31 + t59;
        const P t63 = t31 - t59;
        const P t64 = flipped<0, 1>(t41);
        const P t65 = t51 + t64;
        const P t66 = t51 - t64;
        const P t67 = t62 + t65;
        const P t68 = t67 + t22;
        const P t69 = c[0] * t62;
        const P t70 = t22 - t69;
        const P t71 = c[1] * t65;
        const P t72 = t70 + t71;
        const P t73 = c[2] * t63;
        const P t74 = c[3] * t66;
        const P t75 = t73 + t74;
        const P t76 = c[1] * t62;
        const P t77 = c[0] * t65;
        const P t78 = t76 - t77;
        const P t79 = t78 + t22;
        const P t80 = c[2] * t66;
        const P t81 = c[3] * t63;
        const P t82 = t80 - t81;
        // complex block of 5, multiplier 3
        const P t83 = t33 + t61;
        // real block of 3, multiplier 2
        const P t84 = c[5] * t57;
        // real block of 3, multiplier 2
        const P t85 = P(c[5], -c[5]) * t29;
        // complex block of 5, multiplier 3
        const P t86 = t84 + t85;
        const P t87 = t33 - t61;
        const P t88 = flipped<0, 1>(t85);
        const P t89 = flipped<1, 0>(t84);
        const P t90 = t88 + t89;
        const P t91 = t53 + t44;
        // real block of 3, multiplier 2
        const P t92 = c[5] * t49;
        // real block of 3, multiplier 2
        const P t93 = c[5] * t39;
        // complex block of 5, multiplier 3
        const P t94 = t92 + t93;
        const P t95 = t53 - t44;
        const P t96 = t92 - t93;
        const P t97 = t83 + t91;
        const P t98 = t86 + t94;
        const P t99 = t97 + t24;
        // real block of 3, multiplier 2
        const P t100 = c[5] * t20;
        // complex block of 5, multiplier 3
        const P t101 = t98 + t100;
        const P t102 = c[1] * t83;
        const P t103 = c[0] * t91;
        const P t104 = t102 - t103;
        const P t105 = t104 + t24;
        const P t106 = c[1] * t86;
        const P t107 = c[0] * t94;
        const P t108 = t106 - t107;
        const P t109 = t108 + t100;
        const P t110 = c[3] * t87;
        const P t111 = c[2] * t95;
        const P t112 = t110 - t111;
        const P t113 = c[3] * t90;
        const P t114 = P(-c[2], c[2]) * t96;
        const P t115 = t113 + t114;
        const P t116 = flipped<0, 1>(t115);
        const P t117 = t105 + t116;
        const P t118 = t109 - t112;
        const P t119 = t105 - t116;
        const P t120 = t109 + t112;
        const P t121 = c[0] * t83;
        const P t122 = t24 - t121;
        const P t123 = c[1] * t91;
        const P t124 = t122 + t123;
        const P t125 = c[0] * t86;
        const P t126 = t100 - t125;
        const P t127 = c[1] * t94;
        const P t128 = t126 + t127;
        const P t129 = c[2] * t87;
        const P t130 = c[3] * t95;
        const P t131 = t129 + t130;
        const P t132 = c[3] * t96;
        const P t133 = P(c[2], -c[2]) * t90;
        const P t134 = t132 + t133;
        const P t135 = t124 + t134;
        const P t136 = t128 - t131;
        const P t137 = t124 - t134;
        const P t138 = t128 + t131;
        const V x0 = io.in(0);
        const V t139 = part<0>(t68);
        // spectrum block of 31
        const V t140 = c[34] * t139;
        const V t141 = x0 - t140;
        const P t142 = shuffled<1, 3>(t137, t138);
        const P t143 = c[6] * t142;
        const P t144 = shuffled<1, 0>(t142);
        const P t145 = P(-c[7], c[7]) * t144;
        const P t146 = t143 + t145;
        const P t147 = shuffled<0, 2>(t119, t120);
        const P t148 = c[8] * t147;
        const P t149 = shuffled<1, 0>(t147);
        const P t150 = P(-c[9], c[9]) * t149;
        const P t151 = t148 + t150;
        const P t152 = shuffled<1, 3>(t79, t82);
        const P t153 = c[10] * t152;
        const P t154 = shuffled<1, 0>(t152);
        const P t155 = P(c[11], -c[11]) * t154;
        const P t156 = t153 + t155;
        const P t157 = shuffled<0, 2>(t135, t136);
        const P t158 = c[12] * t157;
        const P t159 = shuffled<1, 0>(t157);
        const P t160 = P(-c[13], c[13]) * t159;
        const P t161 = t158 + t160;
        const P t162 = shuffled<1, 3>(t99, t101);
        const P t163 = c[14] * t162;
        const P t164 = shuffled<1, 0>(t162);
        const P t165 = P(c[15], -c[15]) * t164;
        const P t166 = t163 + t165;
        const P t167 = shuffled<0, 2>(t72, t75);
        const P t168 = c[16] * t167;
        const P t169 = shuffled<1, 0>(t167);
        const P t170 = P(c[17], -c[17]) * t169;
        const P t171 = t168 + t170;
        const P t172 = shuffled<1, 3>(t117, t118);
        const P t173 = c[18] * t172;
        const P t174 = shuffled<1, 0>(t172);
        const P t175 = P(c[19], -c[19]) * t174;
        const P t176 = t173 + t175;
        const P t177 = shuffled<0, 2>(t117, t118);
        const P t178 = P(-c[20], c[20]) * t177;
        const P t179 = shuffled<1, 0>(t177);
        const P t180 = c[21] * t179;
        const P t181 = t178 + t180;
        const P t182 = shuffled<1, 3>(t72, t75);
        const P t183 = c[22] * t182;
        const P t184 = shuffled<1, 0>(t182);
        const P t185 = P(-c[23], c[23]) * t184;
        const P t186 = t183 + t185;
        const P t187 = shuffled<0, 2>(t99, t101);
        const P t188 = c[24] * t187;
        const P t189 = shuffled<1, 0>(t187);
        const P t190 = P(-c[25], c[25]) * t189;
        const P t191 = t188 + t190;
        const P t192 = shuffled<1, 3>(t135, t136);
        const P t193 = c[26] * t192;
        const P t194 = shuffled<1, 0>(t192);
        const P t195 = P(-c[27], c[27]) * t194;
        const P t196 = t193 + t195;
        const P t197 = shuffled<0, 2>(t79, t82);
        const P t198 = c[28] * t197;
        const P t199 = shuffled<1, 0>(t197);
        const P t200 = P(-c[29], c[29]) * t199;
        const P t201 = t198 + t200;
        const P t202 = shuffled<1, 3>(t120, t119);
        const P t203 = c[30] * t202;
        const P t204 = shuffled<1, 0>(t202);
        const P t205 = P(c[31], -c[31]) * t204;
        const P t206 = t203 + t205;
        const P t207 = shuffled<0, 2>(t137, t138);
        const P t208 = P(-c[32], c[32]) * t207;
        const P t209 = shuffled<1, 0>(t207);
        const P t210 = c[33] * t209;
        const P t211 = t208 + t210;
        const V t212 = part<1>(t68);
        const V t213 = c[35] * t212;
        // spectrum block of 2
        const V t214 = t141 - t213;
        const V t215 = t141 + t213;
        const P t216 = flipped<1, 0>(t206);
        // complex block of 2
        const P t217 = t151 + t216;
        const P t218 = flipped<0, 1>(t151);
        const P t219 = t206 + t218;
        // complex block of 2
        const P t220 = t161 + t196;
        const P t221 = t161 - t196;
        // complex block of 2
        const P t222 = t171 + t186;
        const P t223 = t171 - t186;
        const P t224 = flipped<0, 1>(t176);
        // complex block of 2
        const P t225 = t181 + t224;
        const P t226 = t181 - t224;
        // complex block of 2
        const P t227 = t191 - t166;
        const P t228 = t191 + t166;
        // complex block of 2
        const P t229 = t201 - t156;
        const P t230 = t201 + t156;
        const P t231 = flipped<0, 1>(t146);
        // complex block of 2
        const P t232 = t211 + t231;
        const P t233 = t211 - t231;
        const P t234 = shuffled<0, 2>(t227, t228);
        const P t235 = joined(t214, t215);
        // spectrum block of 3
        const P t236 = t234 + t235;
        const P t237 = c[4] * t234;
        const P t238 = t235 - t237;
        const P t239 = shuffled<1, 3>(t227, t228);
        const P t240 = c[5] * t239;
        const P t241 = t238 - t240;
        const P t242 = t238 + t240;
        const P t243 = shuffled<1, 3>(t232, t233);
        const P t244 = shuffled<1, 3>(t220, t221);
        // complex block of 3
        const P t245 = t243 + t244;
        const P t246 = shuffled<0, 2>(t232, t233);
        const P t247 = shuffled<0, 2>(t220, t221);
        const P t248 = t246 + t247;
        const P t249 = t244 - t243;
        const P t250 = t246 - t247;
        const P t251 = shuffled<1, 3>(t222, t223);
        const P t252 = t251 - t245;
        const P t253 = shuffled<0, 2>(t222, t223);
        const P t254 = t248 + t253;
        const P t255 = c[4] * t245;
        const P t256 = t255 + t251;
        const P t257 = c[4] * t248;
        const P t258 = t253 - t257;
        const P t259 = c[5] * t250;
        const P t260 = t256 + t259;
        const P t261 = c[5] * t249;
        const P t262 = t258 - t261;
        const P t263 = t256 - t259;
        const P t264 = t258 + t261;
        const P t265 = shuffled<1, 3>(t225, t219);
        const P t266 = shuffled<1, 3>(t217, t226);
        const P t267 = flipped<0, 1>(t266);
        // complex block of 3
        const P t268 = t265 + t267;
        const P t269 = shuffled<0, 2>(t225, t226);
        const P t270 = shuffled<0, 2>(t217, t219);
        const P t271 = t269 + t270;
        const P t272 = flipped<1, 0>(t265);
        const P t273 = t266 + t272;
        const P t274 = t269 - t270;
        const P t275 = flipped<1, 0>(t268);
        const P t276 = shuffled<1, 3>(t229, t230);
        const P t277 = t275 + t276;
        const P t278 = shuffled<0, 2>(t229, t230);
        const P t279 = t271 + t278;
        const P t280 = P(c[4], -c[4]) * t268;
        const P t281 = t276 + t280;
        const P t282 = c[4] * t271;
        const P t283 = t278 - t282;
        const P t284 = c[5] * t274;
        const P t285 = t281 + t284;
        const P t286 = P(-c[5], c[5]) * t273;
        const P t287 = t283 + t286;
        const P t288 = t281 - t284;
        const P t289 = t283 - t286;
        // spectrum block of 5
        const P t290 = t254 + t279;
        const P t291 = t290 + t236;
        io.out(30, 1, t291);
        const P t292 = c[1] * t254;
        const P t293 = c[0] * t279;
        const P t294 = t292 - t293;
        const P t295 = t294 + t236;
        const P t296 = c[3] * t252;
        const P t297 = c[2] * t277;
        const P t298 = t296 + t297;
        const P t299 = t295 - t298;
        io.out(29, 2, t299);
        const P t300 = t295 + t298;
        io.out(15, 16, t300);
        const P t301 = c[0] * t254;
        const P t302 = t236 - t301;
        const P t303 = c[1] * t279;
        const P t304 = t302 + t303;
        const P t305 = c[2] * t252;
        const P t306 = c[3] * t277;
        const P t307 = t305 - t306;
        const P t308 = t304 - t307;
        io.out(27, 4, t308);
        const P t309 = t304 + t307;
        io.out(23, 8, t309);
        // spectrum block of 5
        const P t310 = t262 + t287;
        const P t311 = t310 + t241;
        io.out(26, 5, t311);
        const P t312 = c[1] * t262;
        const P t313 = c[0] * t287;
        const P t314 = t312 - t313;
        const P t315 = t314 + t241;
        const P t316 = c[3] * t260;
        const P t317 = c[2] * t285;
        const P t318 = t316 + t317;
        const P t319 = t315 - t318;
        io.out(21, 10, t319);
        const P t320 = t315 + t318;
        io.out(13, 18, t320);
        const P t321 = c[0] * t262;
        const P t322 = t241 - t321;
        const P t323 = c[1] * t287;
        const P t324 = t322 + t323;
        const P t325 = c[2] * t260;
        const P t326 = c[3] * t285;
        const P t327 = t325 - t326;
        const P t328 = t324 - t327;
        io.out(11, 20, t328);
        const P t329 = t324 + t327;
        io.out(22, 9, t329);
        // spectrum block of 5
        const P t330 = t264 + t289;
        const P t331 = t330 + t242;
        io.out(6, 25, t331);
        const P t332 = c[1] * t264;
        const P t333 = c[0] * t289;
        const P t334 = t332 - t333;
        const P t335 = t334 + t242;
        const P t336 = c[3] * t263;
        const P t337 = c[2] * t288;
        const P t338 = t336 + t337;
        const P t339 = t335 - t338;
        io.out(12, 19, t339);
        const P t340 = t335 + t338;
        io.out(3, 28, t340);
        const P t341 = c[0] * t264;
        const P t342 = t242 - t341;
        const P t343 = c[1] * t289;
        const P t344 = t342 + t343;
        const P t345 = c[2] * t263;
        const P t346 = c[3] * t288;
        const P t347 = t345 - t346;
        const P t348 = t344 - t347;
        io.out(24, 7, t348);
        const P t349 = t344 + t347;
        io.out(17, 14, t349);
        // spectrum block of 31
        const V t350 = x0 + t139;
        io.out(0, t350);
    }
};

}  // namespace zulg
