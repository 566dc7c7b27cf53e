// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 38.
// Inverse DFT to 38 real points, prime-factor 2, 19; two lanes to a register.
// 92 sums, 92 differences, 128 products of registers, which do the 660 steps of the graph, those with
// `scale` included; 19 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<38> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        2.0,  // c[2]: 2
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.25181241707905544,  // c[7]: P[1] of 19
        0.4137129534343489,  // c[8]: -Q[1] of 19
        0.4798788450919296,  // c[9]: P[2] of 19
        0.06545376435166843,  // c[10]: Q[2] of 19
        0.28199561460730244,  // c[11]: -P[3] of 19
        0.3937592850674352,  // c[12]: -Q[3] of 19
        0.37568683358927524,  // c[13]: P[4] of 19
        0.3056588037374879,  // c[14]: -Q[4] of 19
        0.24188723407956064,  // c[15]: Q[5] of 19
        0.4195932163702218,  // c[16]: -P[5] of 19
        0.47339199623771827,  // c[17]: P[6] of 19
        0.10231284930367265,  // c[18]: -Q[6] of 19
        0.3873109834397322,  // c[19]: P[7] of 19
        0.2907887606863707,  // c[20]: -Q[7] of 19
        0.007654694426448971,  // c[21]: -Q[8] of 19
        0.4842616099669739,  // c[22]: -P[8] of 19
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.3420201433256687,  // c[24]: -sin 2 pi 5/9
        0.1503837331804353,  // c[25]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[26]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[28]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.05555555555555555,  // c[29]: 1/18
        0.2421610524189263,  // c[30]: beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x19r = io.re(19);
        // spectrum block of 2
        const V t0 = x0r + x19r;
        const V t1 = x0r - x19r;
        const P x2 = io.pair(2);
        // doubled bins
        const P t2 = c[2] * x2;
        const P x17 = io.pair(17);
        const P t3 = P(c[2], -c[2]) * x17;
        // complex block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[2] * x4;
        const P x15 = io.pair(15);
        const P t7 = P(c[2], -c[2]) * x15;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x6 = io.pair(6);
        // doubled bins
        const P t10 = c[2] * x6;
        const P x13 = io.pair(13);
        const P t11 = P(c[2], -c[2]) * x13;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        const P x8 = io.pair(8);
        // doubled bins
        const P t14 = c[2] * x8;
        const P x11 = io.pair(11);
        const P t15 = P(c[2], -c[2]) * x11;
        // complex block of 2
        const P t16 = t14 + t15;
        const P t17 = t14 - t15;
        const P x10 = io.pair(10);
        // doubled bins
        const P t18 = c[2] * x10;
        const P x9 = io.pair(9);
        const P t19 = P(c[2], -c[2]) * x9;
        // complex block of 2
        const P t20 = t18 + t19;
        const P t21 = t18 - t19;
        const P x12 = io.pair(12);
        // doubled bins
        const P t22 = c[2] * x12;
        const P x7 = io.pair(7);
        const P t23 = P(c[2], -c[2]) * x7;
        // complex block of 2
        const P t24 = t22 + t23;
        const P t25 = t22 - t23;
        const P x14 = io.pair(14);
        // doubled bins
        const P t26 = c[2] * x14;
        const P x5 = io.pair(5);
        const P t27 = P(c[2], -c[2]) * x5;
        // complex block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P x16 = io.pair(16);
        // doubled bins
        const P t30 = c[2] * x16;
        const P x3 = io.pair(3);
        const P t31 = P(c[2], -c[2]) * x3;
        // complex block of 2
        const P t32 = t30 + t31;
        const P t33 = t30 - t31;
        const P x18 = io.pair(18);
        // doubled bins
        const P t34 = c[2] * x18;
        const P x1 = io.pair(1);
        const P t35 = P(c[2], -c[2]) * x1;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P t38 = shuffled<0, 2>(t32, t33);
        const P t39 = shuffled<0, 2>(t28, t29);
        // real block of 3
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        const P t42 = shuffled<0, 2>(t4, t5);
        const P t43 = t40 + t42;
        const P t44 = c[0] * t40;
        const P t45 = t42 - t44;
        const P t46 = shuffled<0, 2>(t12, t13);
        const P t47 = shuffled<0, 2>(t20, t21);
        // real block of 3
        const P t48 = t46 + t47;
        const P t49 = t46 - t47;
        const P t50 = shuffled<0, 2>(t8, t9);
        const P t51 = t48 + t50;
        const P t52 = c[0] * t48;
        const P t53 = t50 - t52;
        const P t54 = shuffled<0, 2>(t24, t25);
        const P t55 = shuffled<0, 2>(t36, t37);
        // real block of 3
        const P t56 = t54 + t55;
        const P t57 = t54 - t55;
        const P t58 = shuffled<0, 2>(t16, t17);
        const P t59 = t56 + t58;
        const P t60 = c[0] * t56;
        const P t61 = t58 - t60;
        // real block of 3
        const P t62 = t51 + t59;
        const P t63 = t51 - t59;
        const P t64 = t62 + t43;
        const P t65 = c[0] * t62;
        const P t66 = t43 - t65;
        // real block of 9
        const P t67 = c[5] * t53;
        // real block of 3
        const P t68 = c[1] * t49;
        // real block of 9
        const P t69 = c[6] * t68;
        const P t70 = t67 - t69;
        const P t71 = c[5] * t68;
        const P t72 = c[6] * t53;
        const P t73 = t71 + t72;
        const P t74 = c[3] * t61;
        // real block of 3
        const P t75 = c[1] * t57;
        // real block of 9
        const P t76 = c[4] * t75;
        const P t77 = t74 - t76;
        const P t78 = c[3] * t75;
        const P t79 = c[4] * t61;
        const P t80 = t78 + t79;
        // complex block of 3
        const P t81 = t70 + t77;
        const P t82 = t73 + t80;
        const P t83 = t70 - t77;
        const P t84 = t80 - t73;
        const P t85 = t81 + t45;
        // real block of 3
        const P t86 = c[1] * t41;
        // complex block of 3
        const P t87 = t82 + t86;
        const P t88 = c[0] * t81;
        const P t89 = t45 - t88;
        const P t90 = c[0] * t82;
        const P t91 = t90 - t86;
        const P t92 = c[1] * t84;
        const P t93 = t89 + t92;
        const P t94 = c[1] * t83;
        const P t95 = t91 - t94;
        const P t96 = t89 - t92;
        const P t97 = t91 + t94;
        const P t98 = shuffled<1, 3>(t28, t29);
        const P t99 = shuffled<1, 3>(t32, t33);
        // real block of 3
        const P t100 = t98 - t99;
        const P t101 = t99 + t98;
        const P t102 = shuffled<1, 3>(t4, t5);
        const P t103 = t100 + t102;
        const P t104 = c[0] * t100;
        const P t105 = t102 - t104;
        const P t106 = shuffled<1, 3>(t20, t21);
        const P t107 = shuffled<1, 3>(t12, t13);
        // real block of 3
        const P t108 = t106 - t107;
        const P t109 = t107 + t106;
        const P t110 = shuffled<1, 3>(t8, t9);
        const P t111 = t108 - t110;
        const P t112 = c[0] * t108;
        const P t113 = t110 + t112;
        const P t114 = shuffled<1, 3>(t24, t25);
        const P t115 = shuffled<1, 3>(t36, t37);
        // real block of 3
        const P t116 = t114 + t115;
        const P t117 = t114 - t115;
        const P t118 = shuffled<1, 3>(t16, t17);
        const P t119 = t116 + t118;
        const P t120 = c[0] * t116;
        const P t121 = t118 - t120;
        // real block of 3
        const P t122 = t111 + t119;
        const P t123 = t111 - t119;
        const P t124 = t122 + t103;
        const P t125 = c[0] * t122;
        const P t126 = t103 - t125;
        // real block of 3
        const P t127 = c[1] * t109;
        // real block of 9
        const P t128 = c[6] * t127;
        const P t129 = c[5] * t113;
        const P t130 = t128 - t129;
        const P t131 = c[5] * t127;
        const P t132 = c[6] * t113;
        const P t133 = t131 + t132;
        const P t134 = c[3] * t121;
        // real block of 3
        const P t135 = c[1] * t117;
        // real block of 9
        const P t136 = c[4] * t135;
        const P t137 = t134 - t136;
        const P t138 = c[3] * t135;
        const P t139 = c[4] * t121;
        const P t140 = t138 + t139;
        // complex block of 3
        const P t141 = t130 + t137;
        const P t142 = t133 - t140;
        const P t143 = t130 - t137;
        const P t144 = t133 + t140;
        const P t145 = t141 + t105;
        // real block of 3
        const P t146 = c[1] * t101;
        // complex block of 3
        const P t147 = t142 + t146;
        const P t148 = c[0] * t141;
        const P t149 = t105 - t148;
        const P t150 = c[0] * t142;
        const P t151 = t146 - t150;
        const P t152 = c[1] * t144;
        const P t153 = t149 + t152;
        const P t154 = c[1] * t143;
        const P t155 = t151 - t154;
        const P t156 = t149 - t152;
        const P t157 = t151 + t154;
        const P t158 = joined(t0, t1);
        // spectrum block of 19, multiplier 2
        const P t159 = c[29] * t64;
        const P t160 = t158 - t159;
        const P t161 = c[7] * t155;
        const P t162 = c[8] * t153;
        const P t163 = t161 - t162;
        const P t164 = c[8] * t155;
        const P t165 = c[7] * t153;
        const P t166 = t164 + t165;
        const P t167 = c[9] * t85;
        const P t168 = c[10] * t87;
        const P t169 = t167 + t168;
        const P t170 = c[10] * t85;
        const P t171 = c[9] * t87;
        const P t172 = t170 - t171;
        // real block of 3
        const P t173 = c[1] * t123;
        // spectrum block of 19, multiplier 2
        const P t174 = c[11] * t173;
        const P t175 = c[12] * t126;
        const P t176 = t174 - t175;
        const P t177 = c[12] * t173;
        const P t178 = c[11] * t126;
        const P t179 = t177 + t178;
        const P t180 = c[13] * t96;
        const P t181 = c[14] * t97;
        const P t182 = t180 - t181;
        const P t183 = c[13] * t97;
        const P t184 = c[14] * t96;
        const P t185 = t183 + t184;
        const P t186 = c[15] * t156;
        const P t187 = c[16] * t157;
        const P t188 = t186 + t187;
        const P t189 = c[15] * t157;
        const P t190 = c[16] * t156;
        const P t191 = t189 - t190;
        const P t192 = c[17] * t66;
        // real block of 3
        const P t193 = c[1] * t63;
        // spectrum block of 19, multiplier 2
        const P t194 = c[18] * t193;
        const P t195 = t192 - t194;
        const P t196 = c[17] * t193;
        const P t197 = c[18] * t66;
        const P t198 = t196 + t197;
        const P t199 = c[19] * t147;
        const P t200 = c[20] * t145;
        const P t201 = t199 - t200;
        const P t202 = c[20] * t147;
        const P t203 = c[19] * t145;
        const P t204 = t202 + t203;
        const P t205 = c[21] * t95;
        const P t206 = c[22] * t93;
        const P t207 = t205 - t206;
        const P t208 = c[22] * t95;
        const P t209 = c[21] * t93;
        const P t210 = t208 + t209;
        const P t211 = c[30] * t124;
        // spectrum block of 2
        const P t212 = t160 + t211;
        const P t213 = t160 - t211;
        // complex block of 2
        const P t214 = t172 - t204;
        const P t215 = t169 + t201;
        const P t216 = t172 + t204;
        const P t217 = t169 - t201;
        // complex block of 2
        const P t218 = t185 + t191;
        const P t219 = t182 + t188;
        const P t220 = t191 - t185;
        const P t221 = t182 - t188;
        // complex block of 2
        const P t222 = t179 - t198;
        const P t223 = t195 + t176;
        const P t224 = t198 + t179;
        const P t225 = t195 - t176;
        // complex block of 2
        const P t226 = t210 + t166;
        const P t227 = t207 + t163;
        const P t228 = t166 - t210;
        const P t229 = t207 - t163;
        // spectrum block of 3, multiplier 2
        const P t230 = t223 + t212;
        const P t231 = c[0] * t223;
        const P t232 = t212 - t231;
        const P t233 = c[1] * t222;
        const P t234 = t232 - t233;
        const P t235 = t232 + t233;
        // complex block of 3, multiplier 2
        const P t236 = t218 - t226;
        const P t237 = t227 + t219;
        const P t238 = t226 + t218;
        const P t239 = t227 - t219;
        const P t240 = t236 + t214;
        const P t241 = t237 + t215;
        const P t242 = c[0] * t236;
        const P t243 = t214 - t242;
        const P t244 = c[0] * t237;
        const P t245 = t215 - t244;
        const P t246 = c[1] * t239;
        const P t247 = t243 + t246;
        const P t248 = c[1] * t238;
        const P t249 = t245 + t248;
        const P t250 = t243 - t246;
        const P t251 = t245 - t248;
        // spectrum block of 9, multiplier 2
        const P t252 = c[3] * t251;
        const P t253 = c[4] * t250;
        const P t254 = t252 - t253;
        const P t255 = c[23] * t249;
        const P t256 = c[24] * t247;
        const P t257 = t255 + t256;
        // spectrum block of 3, multiplier 2
        const P t258 = t241 + t230;
        io.out(2, 21, t258);
        const P t259 = c[0] * t241;
        const P t260 = t230 - t259;
        const P t261 = c[1] * t240;
        const P t262 = t260 - t261;
        io.out(14, 33, t262);
        const P t263 = t260 + t261;
        io.out(22, 3, t263);
        // spectrum block of 3, multiplier 2
        const P t264 = t254 + t235;
        io.out(10, 29, t264);
        const P t265 = c[0] * t254;
        const P t266 = t235 - t265;
        const P t267 = c[25] * t250;
        const P t268 = c[26] * t251;
        const P t269 = t267 + t268;
        const P t270 = t266 - t269;
        io.out(32, 13, t270);
        const P t271 = t266 + t269;
        io.out(34, 15, t271);
        // spectrum block of 3, multiplier 2
        const P t272 = t234 - t257;
        io.out(12, 31, t272);
        const P t273 = c[0] * t257;
        const P t274 = t273 + t234;
        const P t275 = c[27] * t249;
        const P t276 = c[28] * t247;
        const P t277 = t275 - t276;
        const P t278 = t274 - t277;
        io.out(8, 27, t278);
        const P t279 = t274 + t277;
        io.out(18, 37, t279);
        // spectrum block of 3, multiplier 2
        const P t280 = t225 + t213;
        const P t281 = c[0] * t225;
        const P t282 = t213 - t281;
        const P t283 = c[1] * t224;
        const P t284 = t282 + t283;
        const P t285 = t282 - t283;
        // complex block of 3, multiplier 2
        const P t286 = t228 - t220;
        const P t287 = t229 + t221;
        const P t288 = t228 + t220;
        const P t289 = t229 - t221;
        const P t290 = t286 + t216;
        const P t291 = t287 + t217;
        const P t292 = c[0] * t286;
        const P t293 = t216 - t292;
        const P t294 = c[0] * t287;
        const P t295 = t217 - t294;
        const P t296 = c[1] * t289;
        const P t297 = t293 + t296;
        const P t298 = c[1] * t288;
        const P t299 = t295 - t298;
        const P t300 = t293 - t296;
        const P t301 = t295 + t298;
        // spectrum block of 9, multiplier 2
        const P t302 = c[3] * t301;
        const P t303 = c[4] * t300;
        const P t304 = t302 - t303;
        const P t305 = c[23] * t299;
        const P t306 = c[24] * t297;
        const P t307 = t305 + t306;
        // spectrum block of 3, multiplier 2
        const P t308 = t291 + t280;
        io.out(36, 17, t308);
        const P t309 = c[0] * t291;
        const P t310 = t280 - t309;
        const P t311 = c[1] * t290;
        const P t312 = t310 - t311;
        io.out(24, 5, t312);
        const P t313 = t310 + t311;
        io.out(16, 35, t313);
        // spectrum block of 3, multiplier 2
        const P t314 = t304 + t285;
        io.out(28, 9, t314);
        const P t315 = c[0] * t304;
        const P t316 = t285 - t315;
        const P t317 = c[25] * t300;
        const P t318 = c[26] * t301;
        const P t319 = t317 + t318;
        const P t320 = t316 - t319;
        io.out(6, 25, t320);
        const P t321 = t316 + t319;
        io.out(4, 23, t321);
        // spectrum block of 3, multiplier 2
        const P t322 = t284 - t307;
        io.out(26, 7, t322);
        const P t323 = c[0] * t307;
        const P t324 = t323 + t284;
        const P t325 = c[27] * t299;
        const P t326 = c[28] * t297;
        const P t327 = t325 - t326;
        const P t328 = t324 - t327;
        io.out(30, 11, t328);
        const P t329 = t324 + t327;
        io.out(20, 1, t329);
        // spectrum block of 19, multiplier 2
        const P t330 = t158 + t64;
        io.out(0, 19, t330);
    }
};

}  // namespace zulg
