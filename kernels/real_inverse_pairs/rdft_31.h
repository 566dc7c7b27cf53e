// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 31.
// Inverse DFT to 31 real points, Rader 2, 3, 5; two lanes to a register.
// 100 sums, 60 differences, 113 products of registers, which do the 571 steps of the graph, those with
// `scale` included; 46 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<31> {
    static constexpr int steps = 571;  // with `scale`
    static constexpr double inverseRoot = 0.1796053020267749;  // 1/sqrt(31), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.30901699437494745,  // c[2]: cos 2 pi 9/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.9510565162951535,  // c[4]: -sin 2 pi 9/5
        0.5,  // c[5]: -cos 2 pi 2/3
        0.8660254037844386,  // c[6]: -sin 2 pi 2/3
        0.03988273291964531,  // c[7]: Q[1] of 31
        0.3690354256607867,  // c[8]: P[1] of 31
        0.3711833750943932,  // c[9]: P[2] of 31
        0.0008245188371257438,  // c[10]: -Q[2] of 31
        0.20210094150400285,  // c[11]: -Q[3] of 31
        0.31134062892750347,  // c[12]: -P[3] of 31
        0.057732967694591485,  // c[13]: P[4] of 31
        0.36666699090448956,  // c[14]: Q[4] of 31
        0.2580069240952765,  // c[15]: -Q[5] of 31
        0.26685240283098827,  // c[16]: -P[5] of 31
        0.30349444463155195,  // c[17]: P[6] of 31
        0.21370283071490567,  // c[18]: -Q[6] of 31
        0.36985241937462743,  // c[19]: Q[7] of 31
        0.031416009621091305,  // c[20]: -P[7] of 31
        0.22434412781271781,  // c[21]: -P[8] of 31
        0.2957152178933792,  // c[22]: Q[8] of 31
        0.35029620511956006,  // c[23]: Q[9] of 31
        0.12276133942171241,  // c[24]: -P[9] of 31
        0.3417205692768941,  // c[25]: P[10] of 31
        0.1449304326594425,  // c[26]: Q[10] of 31
        0.05080100546858957,  // c[27]: Q[11] of 31
        0.3676914951710987,  // c[28]: -P[11] of 31
        0.3484386235098738,  // c[29]: P[12] of 31
        0.127938670558679,  // c[30]: Q[12] of 31
        0.0592131223973046,  // c[31]: P[13] of 31
        0.36643087194413576,  // c[32]: -Q[13] of 31
        0.1853625778087589,  // c[33]: -P[14] of 31
        0.3215874570406464,  // c[34]: Q[14] of 31
        0.03333333333333333,  // c[35]: 1/30
        0.1855921454276674,  // c[36]: -beta of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x5 = io.pair(5);
        // doubled bins
        const P t0 = c[0] * x5;
        const P x6 = io.pair(6);
        const P t1 = P(c[0], -c[0]) * x6;
        // real block of 3, multiplier 2
        const P t2 = t0 + t1;
        const P t3 = t0 - t1;
        const P x1 = io.pair(1);
        // doubled bins
        const P t4 = c[0] * x1;
        // real block of 3, multiplier 2
        const P t5 = t2 + t4;
        const P t6 = c[5] * t2;
        const P t7 = t4 - t6;
        const P x7 = io.pair(7);
        // doubled bins
        const P t8 = c[0] * x7;
        const P x11 = io.pair(11);
        const P t9 = P(c[0], -c[0]) * x11;
        // real block of 3, multiplier 2
        const P t10 = t8 + t9;
        const P t11 = flipped<0, 1>(t9);
        const P t12 = flipped<1, 0>(t8);
        const P t13 = t11 + t12;
        const P x4 = io.pair(4);
        // doubled bins
        const P t14 = c[0] * x4;
        // real block of 3, multiplier 2
        const P t15 = t10 + t14;
        const P t16 = c[5] * t10;
        const P t17 = t14 - t16;
        const P x13 = io.pair(13);
        // doubled bins
        const P t18 = c[0] * x13;
        const P x3 = io.pair(3);
        const P t19 = c[0] * x3;
        // real block of 3, multiplier 2
        const P t20 = t18 + t19;
        const P t21 = shuffled<0, 3>(t18, t19);
        const P t22 = shuffled<0, 3>(t19, t18);
        const P t23 = t21 - t22;
        const P x15 = io.pair(15);
        // doubled bins
        const P t24 = c[0] * x15;
        // real block of 3, multiplier 2
        const P t25 = t20 + t24;
        const P t26 = P(-c[5], c[5]) * t20;
        const P t27 = flipped<0, 1>(t24);
        const P t28 = t26 + t27;
        const P x10 = io.pair(10);
        // doubled bins
        const P t29 = c[0] * x10;
        const P x12 = io.pair(12);
        const P t30 = P(c[0], -c[0]) * x12;
        // real block of 3, multiplier 2
        const P t31 = t29 + t30;
        const P t32 = t29 - t30;
        const P x2 = io.pair(2);
        // doubled bins
        const P t33 = c[0] * x2;
        // real block of 3, multiplier 2
        const P t34 = t31 + t33;
        const P t35 = c[5] * t31;
        const P t36 = t33 - t35;
        const P x9 = io.pair(9);
        // doubled bins
        const P t37 = c[0] * x9;
        const P x14 = io.pair(14);
        const P t38 = c[0] * x14;
        // real block of 3, multiplier 2
        const P t39 = t37 + t38;
        const P t40 = t37 - t38;
        const P x8 = io.pair(8);
        // doubled bins
        const P t41 = c[0] * x8;
        // real block of 3, multiplier 2
        const P t42 = t39 + t41;
        const P t43 = c[5] * t39;
        const P t44 = t41 - t43;
        // real block of 5, multiplier 3
        const P t45 = t15 + t42;
        const P t46 = t15 - t42;
        const P t47 = flipped<0, 1>(t25);
        const P t48 = t34 + t47;
        const P t49 = t34 - t47;
        const P t50 = t45 + t48;
        const P t51 = t50 + t5;
        const P t52 = c[1] * t45;
        const P t53 = t5 - t52;
        const P t54 = c[2] * t48;
        const P t55 = t53 + t54;
        const P t56 = c[3] * t46;
        const P t57 = c[4] * t49;
        const P t58 = t56 + t57;
        const P t59 = c[2] * t45;
        const P t60 = c[1] * t48;
        const P t61 = t59 - t60;
        const P t62 = t61 + t5;
        const P t63 = c[3] * t49;
        const P t64 = c[4] * t46;
        const P t65 = t63 - t64;
        // complex block of 5, multiplier 3
        const P t66 = t17 + t44;
        // real block of 3, multiplier 2
        const P t67 = c[6] * t40;
        // real block of 3, multiplier 2
        const P t68 = P(c[6], -c[6]) * t13;
        // complex block of 5, multiplier 3
        const P t69 = t67 + t68;
        const P t70 = t17 - t44;
        const P t71 = flipped<0, 1>(t68);
        const P t72 = flipped<1, 0>(t67);
        const P t73 = t71 + t72;
        const P t74 = t36 + t28;
        // real block of 3, multiplier 2
        const P t75 = c[6] * t32;
        // real block of 3, multiplier 2
        const P t76 = c[6] * t23;
        // complex block of 5, multiplier 3
        const P t77 = t75 + t76;
        const P t78 = t36 - t28;
        const P t79 = t75 - t76;
        const P t80 = t66 + t74;
        const P t81 = t69 + t77;
        const P t82 = t80 + t7;
        // real block of 3, multiplier 2
        const P t83 = c[6] * t3;
        // complex block of 5, multiplier 3
        const P t84 = t81 + t83;
        const P t85 = c[2] * t66;
        const P t86 = c[1] * t74;
        const P t87 = t85 - t86;
        const P t88 = t87 + t7;
        const P t89 = c[2] * t69;
        const P t90 = c[1] * t77;
        const P t91 = t89 - t90;
        const P t92 = t91 + t83;
        const P t93 = c[4] * t70;
        const P t94 = c[3] * t78;
        const P t95 = t93 - t94;
        const P t96 = c[4] * t73;
        const P t97 = P(-c[3], c[3]) * t79;
        const P t98 = t96 + t97;
        const P t99 = flipped<0, 1>(t98);
        const P t100 = t88 + t99;
        const P t101 = t92 - t95;
        const P t102 = t88 - t99;
        const P t103 = t92 + t95;
        const P t104 = c[1] * t66;
        const P t105 = t7 - t104;
        const P t106 = c[2] * t74;
        const P t107 = t105 + t106;
        const P t108 = c[1] * t69;
        const P t109 = t83 - t108;
        const P t110 = c[2] * t77;
        const P t111 = t109 + t110;
        const P t112 = c[3] * t70;
        const P t113 = c[4] * t78;
        const P t114 = t112 + t113;
        const P t115 = c[4] * t79;
        const P t116 = P(c[3], -c[3]) * t73;
        const P t117 = t115 + t116;
        const P t118 = t107 + t117;
        const P t119 = t111 - t114;
        const P t120 = t107 - t117;
        const P t121 = t111 + t114;
        const V x0r = io.re(0);
        const V t122 = part<0>(t51);
        // spectrum block of 31
        const V t123 = c[35] * t122;
        const V t124 = x0r - t123;
        const P t125 = shuffled<1, 3>(t120, t121);
        const P t126 = c[7] * t125;
        const P t127 = shuffled<1, 0>(t125);
        const P t128 = P(-c[8], c[8]) * t127;
        const P t129 = t126 + t128;
        const P t130 = shuffled<0, 2>(t102, t103);
        const P t131 = c[9] * t130;
        const P t132 = shuffled<1, 0>(t130);
        const P t133 = P(-c[10], c[10]) * t132;
        const P t134 = t131 + t133;
        const P t135 = shuffled<1, 3>(t62, t65);
        const P t136 = c[11] * t135;
        const P t137 = shuffled<1, 0>(t135);
        const P t138 = P(c[12], -c[12]) * t137;
        const P t139 = t136 + t138;
        const P t140 = shuffled<0, 2>(t118, t119);
        const P t141 = c[13] * t140;
        const P t142 = shuffled<1, 0>(t140);
        const P t143 = P(-c[14], c[14]) * t142;
        const P t144 = t141 + t143;
        const P t145 = shuffled<1, 3>(t82, t84);
        const P t146 = c[15] * t145;
        const P t147 = shuffled<1, 0>(t145);
        const P t148 = P(c[16], -c[16]) * t147;
        const P t149 = t146 + t148;
        const P t150 = shuffled<0, 2>(t55, t58);
        const P t151 = c[17] * t150;
        const P t152 = shuffled<1, 0>(t150);
        const P t153 = P(c[18], -c[18]) * t152;
        const P t154 = t151 + t153;
        const P t155 = shuffled<1, 3>(t100, t101);
        const P t156 = c[19] * t155;
        const P t157 = shuffled<1, 0>(t155);
        const P t158 = P(c[20], -c[20]) * t157;
        const P t159 = t156 + t158;
        const P t160 = shuffled<0, 2>(t100, t101);
        const P t161 = P(-c[21], c[21]) * t160;
        const P t162 = shuffled<1, 0>(t160);
        const P t163 = c[22] * t162;
        const P t164 = t161 + t163;
        const P t165 = shuffled<1, 3>(t55, t58);
        const P t166 = c[23] * t165;
        const P t167 = shuffled<1, 0>(t165);
        const P t168 = P(-c[24], c[24]) * t167;
        const P t169 = t166 + t168;
        const P t170 = shuffled<0, 2>(t82, t84);
        const P t171 = c[25] * t170;
        const P t172 = shuffled<1, 0>(t170);
        const P t173 = P(-c[26], c[26]) * t172;
        const P t174 = t171 + t173;
        const P t175 = shuffled<1, 3>(t118, t119);
        const P t176 = c[27] * t175;
        const P t177 = shuffled<1, 0>(t175);
        const P t178 = P(-c[28], c[28]) * t177;
        const P t179 = t176 + t178;
        const P t180 = shuffled<0, 2>(t62, t65);
        const P t181 = c[29] * t180;
        const P t182 = shuffled<1, 0>(t180);
        const P t183 = P(-c[30], c[30]) * t182;
        const P t184 = t181 + t183;
        const P t185 = shuffled<1, 3>(t103, t102);
        const P t186 = c[31] * t185;
        const P t187 = shuffled<1, 0>(t185);
        const P t188 = P(c[32], -c[32]) * t187;
        const P t189 = t186 + t188;
        const P t190 = shuffled<0, 2>(t120, t121);
        const P t191 = P(-c[33], c[33]) * t190;
        const P t192 = shuffled<1, 0>(t190);
        const P t193 = c[34] * t192;
        const P t194 = t191 + t193;
        const V t195 = part<1>(t51);
        const V t196 = c[36] * t195;
        // spectrum block of 2
        const V t197 = t124 - t196;
        const V t198 = t124 + t196;
        const P t199 = flipped<1, 0>(t189);
        // complex block of 2
        const P t200 = t134 + t199;
        const P t201 = flipped<0, 1>(t134);
        const P t202 = t189 + t201;
        // complex block of 2
        const P t203 = t144 + t179;
        const P t204 = t144 - t179;
        // complex block of 2
        const P t205 = t154 + t169;
        const P t206 = t154 - t169;
        const P t207 = flipped<0, 1>(t159);
        // complex block of 2
        const P t208 = t164 + t207;
        const P t209 = t164 - t207;
        // complex block of 2
        const P t210 = t174 - t149;
        const P t211 = t174 + t149;
        // complex block of 2
        const P t212 = t184 - t139;
        const P t213 = t184 + t139;
        const P t214 = flipped<0, 1>(t129);
        // complex block of 2
        const P t215 = t194 + t214;
        const P t216 = t194 - t214;
        const P t217 = shuffled<0, 2>(t210, t211);
        const P t218 = joined(t197, t198);
        // spectrum block of 3
        const P t219 = t217 + t218;
        const P t220 = c[5] * t217;
        const P t221 = t218 - t220;
        const P t222 = shuffled<1, 3>(t210, t211);
        const P t223 = c[6] * t222;
        const P t224 = t221 - t223;
        const P t225 = t221 + t223;
        const P t226 = shuffled<1, 3>(t215, t216);
        const P t227 = shuffled<1, 3>(t203, t204);
        // complex block of 3
        const P t228 = t226 + t227;
        const P t229 = shuffled<0, 2>(t215, t216);
        const P t230 = shuffled<0, 2>(t203, t204);
        const P t231 = t229 + t230;
        const P t232 = t227 - t226;
        const P t233 = t229 - t230;
        const P t234 = shuffled<1, 3>(t205, t206);
        const P t235 = t234 - t228;
        const P t236 = shuffled<0, 2>(t205, t206);
        const P t237 = t231 + t236;
        const P t238 = c[5] * t228;
        const P t239 = t238 + t234;
        const P t240 = c[5] * t231;
        const P t241 = t236 - t240;
        const P t242 = c[6] * t233;
        const P t243 = t239 + t242;
        const P t244 = c[6] * t232;
        const P t245 = t241 - t244;
        const P t246 = t239 - t242;
        const P t247 = t241 + t244;
        const P t248 = shuffled<1, 3>(t208, t202);
        const P t249 = shuffled<1, 3>(t200, t209);
        const P t250 = flipped<0, 1>(t249);
        // complex block of 3
        const P t251 = t248 + t250;
        const P t252 = shuffled<0, 2>(t208, t209);
        const P t253 = shuffled<0, 2>(t200, t202);
        const P t254 = t252 + t253;
        const P t255 = flipped<1, 0>(t248);
        const P t256 = t249 + t255;
        const P t257 = t252 - t253;
        const P t258 = flipped<1, 0>(t251);
        const P t259 = shuffled<1, 3>(t212, t213);
        const P t260 = t258 + t259;
        const P t261 = shuffled<0, 2>(t212, t213);
        const P t262 = t254 + t261;
        const P t263 = P(c[5], -c[5]) * t251;
        const P t264 = t259 + t263;
        const P t265 = c[5] * t254;
        const P t266 = t261 - t265;
        const P t267 = c[6] * t257;
        const P t268 = t264 + t267;
        const P t269 = P(-c[6], c[6]) * t256;
        const P t270 = t266 + t269;
        const P t271 = t264 - t267;
        const P t272 = t266 - t269;
        // spectrum block of 5
        const P t273 = t237 + t262;
        const P t274 = t273 + t219;
        io.out(1, 30, t274);
        const P t275 = c[2] * t237;
        const P t276 = c[1] * t262;
        const P t277 = t275 - t276;
        const P t278 = t277 + t219;
        const P t279 = c[4] * t235;
        const P t280 = c[3] * t260;
        const P t281 = t279 + t280;
        const P t282 = t278 - t281;
        io.out(2, 29, t282);
        const P t283 = t278 + t281;
        io.out(16, 15, t283);
        const P t284 = c[1] * t237;
        const P t285 = t219 - t284;
        const P t286 = c[2] * t262;
        const P t287 = t285 + t286;
        const P t288 = c[3] * t235;
        const P t289 = c[4] * t260;
        const P t290 = t288 - t289;
        const P t291 = t287 - t290;
        io.out(4, 27, t291);
        const P t292 = t287 + t290;
        io.out(8, 23, t292);
        // spectrum block of 5
        const P t293 = t245 + t270;
        const P t294 = t293 + t224;
        io.out(5, 26, t294);
        const P t295 = c[2] * t245;
        const P t296 = c[1] * t270;
        const P t297 = t295 - t296;
        const P t298 = t297 + t224;
        const P t299 = c[4] * t243;
        const P t300 = c[3] * t268;
        const P t301 = t299 + t300;
        const P t302 = t298 - t301;
        io.out(10, 21, t302);
        const P t303 = t298 + t301;
        io.out(18, 13, t303);
        const P t304 = c[1] * t245;
        const P t305 = t224 - t304;
        const P t306 = c[2] * t270;
        const P t307 = t305 + t306;
        const P t308 = c[3] * t243;
        const P t309 = c[4] * t268;
        const P t310 = t308 - t309;
        const P t311 = t307 - t310;
        io.out(20, 11, t311);
        const P t312 = t307 + t310;
        io.out(9, 22, t312);
        // spectrum block of 5
        const P t313 = t247 + t272;
        const P t314 = t313 + t225;
        io.out(25, 6, t314);
        const P t315 = c[2] * t247;
        const P t316 = c[1] * t272;
        const P t317 = t315 - t316;
        const P t318 = t317 + t225;
        const P t319 = c[4] * t246;
        const P t320 = c[3] * t271;
        const P t321 = t319 + t320;
        const P t322 = t318 - t321;
        io.out(19, 12, t322);
        const P t323 = t318 + t321;
        io.out(28, 3, t323);
        const P t324 = c[1] * t247;
        const P t325 = t225 - t324;
        const P t326 = c[2] * t272;
        const P t327 = t325 + t326;
        const P t328 = c[3] * t246;
        const P t329 = c[4] * t271;
        const P t330 = t328 - t329;
        const P t331 = t327 - t330;
        io.out(7, 24, t331);
        const P t332 = t327 + t330;
        io.out(14, 17, t332);
        // spectrum block of 31
        const V t333 = x0r + t122;
        io.out(0, t333);
    }
};

}  // namespace zulg
