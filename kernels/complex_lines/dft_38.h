// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 38.
// Complex DFT of 38 points, prime-factor, order 19, 2; two lines of a stage to a register.
// 108 sums, 94 differences, 110 products of registers, which do the 1320 steps of the graph, those with
// `scale` included; 46 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<38> {
    static constexpr int steps = 1320;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.3937592850674352,  // c[6]: Q[3] of 19
        0.28199561460730244,  // c[7]: P[3] of 19
        0.47339199623771827,  // c[8]: P[6] of 19
        0.10231284930367265,  // c[9]: -Q[6] of 19
        0.25181241707905544,  // c[10]: -P[1] of 19
        0.4137129534343489,  // c[11]: Q[1] of 19
        0.007654694426448971,  // c[12]: -Q[8] of 19
        0.4842616099669739,  // c[13]: -P[8] of 19
        0.37568683358927524,  // c[14]: P[4] of 19
        0.3056588037374879,  // c[15]: -Q[4] of 19
        0.24188723407956064,  // c[16]: -Q[5] of 19
        0.4195932163702218,  // c[17]: P[5] of 19
        0.4798788450919296,  // c[18]: P[2] of 19
        0.06545376435166843,  // c[19]: Q[2] of 19
        0.3873109834397322,  // c[20]: -P[7] of 19
        0.2907887606863707,  // c[21]: Q[7] of 19
        0.1503837331804353,  // c[22]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[23]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x18_37 = io.pairs(18, 37);
        const Q x20_1 = io.pairs(20, 1);
        // real block of 2
        const Q t0 = x18_37 + x20_1;
        const Q t1 = x18_37 - x20_1;
        const Q x12_31 = io.pairs(12, 31);
        const Q x26_7 = io.pairs(26, 7);
        // real block of 2
        const Q t2 = x12_31 + x26_7;
        const Q t3 = x12_31 - x26_7;
        // real block of 3, multiplier 2
        const Q t4 = t0 + t2;
        const Q t5 = t0 - t2;
        // real block of 3, multiplier 2
        const Q t6 = t1 + t3;
        const Q t7 = t1 - t3;
        const Q x8_27 = io.pairs(8, 27);
        const Q x30_11 = io.pairs(30, 11);
        // real block of 2
        const Q t8 = x8_27 + x30_11;
        const Q t9 = x8_27 - x30_11;
        // real block of 3, multiplier 2
        const Q t10 = t4 + t8;
        const Q t11 = c[0] * t4;
        const Q t12 = t8 - t11;
        // real block of 3, multiplier 2
        const Q t13 = t6 + t9;
        const Q t14 = c[0] * t6;
        const Q t15 = t9 - t14;
        const Q x2_21 = io.pairs(2, 21);
        const Q x36_17 = io.pairs(36, 17);
        // real block of 2
        const Q t16 = x2_21 + x36_17;
        const Q t17 = x2_21 - x36_17;
        const Q x22_3 = io.pairs(22, 3);
        const Q x16_35 = io.pairs(16, 35);
        // real block of 2
        const Q t18 = x22_3 + x16_35;
        const Q t19 = x22_3 - x16_35;
        const Q x14_33 = io.pairs(14, 33);
        const Q x24_5 = io.pairs(24, 5);
        // real block of 2
        const Q t20 = x14_33 + x24_5;
        const Q t21 = x14_33 - x24_5;
        // real block of 3, multiplier 2
        const Q t22 = t20 + t18;
        const Q t23 = t20 - t18;
        // real block of 3, multiplier 2
        const Q t24 = t21 + t19;
        const Q t25 = t21 - t19;
        const Q x34_15 = io.pairs(34, 15);
        const Q x4_23 = io.pairs(4, 23);
        // real block of 2
        const Q t26 = x34_15 + x4_23;
        const Q t27 = x34_15 - x4_23;
        const Q x10_29 = io.pairs(10, 29);
        const Q x28_9 = io.pairs(28, 9);
        // real block of 2
        const Q t28 = x10_29 + x28_9;
        const Q t29 = x10_29 - x28_9;
        // real block of 3, multiplier 2
        const Q t30 = t26 + t28;
        const Q t31 = t26 - t28;
        // real block of 3, multiplier 2
        const Q t32 = t27 + t29;
        const Q t33 = t27 - t29;
        const Q x32_13 = io.pairs(32, 13);
        const Q x6_25 = io.pairs(6, 25);
        // real block of 2
        const Q t34 = x32_13 + x6_25;
        const Q t35 = x32_13 - x6_25;
        // real block of 3, multiplier 2
        const Q t36 = t30 + t34;
        const Q t37 = c[0] * t30;
        const Q t38 = t34 - t37;
        // real block of 3, multiplier 2
        const Q t39 = t32 + t35;
        const Q t40 = c[0] * t32;
        const Q t41 = t35 - t40;
        // real block of 3, multiplier 2
        const Q t42 = t22 + t16;
        // real block of 3, multiplier 2
        const Q t43 = t10 + t36;
        const Q t44 = t43 + t42;
        const Q t45 = c[0] * t43;
        const Q t46 = t42 - t45;
        // real block of 3, multiplier 2
        const Q t47 = c[0] * t22;
        const Q t48 = t16 - t47;
        // real block of 9, multiplier 2
        const Q t49 = c[2] * t12;
        // real block of 3, multiplier 2
        const Q t50 = c[1] * t5;
        // real block of 9, multiplier 2
        const Q t51 = c[3] * t50;
        const Q t52 = t49 + t51;
        // real block of 3, multiplier 2
        const Q t53 = c[1] * t31;
        // real block of 9, multiplier 2
        const Q t54 = c[4] * t53;
        const Q t55 = c[5] * t38;
        const Q t56 = t54 - t55;
        // complex block of 3, multiplier 2
        const Q t57 = t52 + t56;
        const Q t58 = t52 - t56;
        // real block of 9, multiplier 2
        const Q t59 = c[2] * t50;
        const Q t60 = c[3] * t12;
        const Q t61 = t59 - t60;
        const Q t62 = c[5] * t53;
        const Q t63 = c[4] * t38;
        const Q t64 = t62 + t63;
        // complex block of 3, multiplier 2
        const Q t65 = t61 - t64;
        const Q t66 = t61 + t64;
        const Q t67 = t57 + t48;
        // real block of 3, multiplier 2
        const Q t68 = c[1] * t23;
        // complex block of 3, multiplier 2
        const Q t69 = t65 + t68;
        const Q t70 = c[0] * t57;
        const Q t71 = t48 - t70;
        const Q t72 = c[1] * t66;
        const Q t73 = t71 + t72;
        const Q t74 = t71 - t72;
        const Q t75 = c[0] * t65;
        const Q t76 = t68 - t75;
        const Q t77 = c[1] * t58;
        const Q t78 = t76 - t77;
        const Q t79 = t76 + t77;
        // real block of 3, multiplier 2
        const Q t80 = t10 - t36;
        // real block of 3, multiplier 2
        const Q t81 = t24 + t17;
        // real block of 3, multiplier 2
        const Q t82 = t13 + t39;
        const Q t83 = t82 + t81;
        const Q t84 = c[0] * t82;
        const Q t85 = t81 - t84;
        // real block of 3, multiplier 2
        const Q t86 = c[0] * t24;
        const Q t87 = t17 - t86;
        // real block of 9, multiplier 2
        const Q t88 = c[2] * t15;
        // real block of 3, multiplier 2
        const Q t89 = c[1] * t7;
        // real block of 9, multiplier 2
        const Q t90 = c[3] * t89;
        const Q t91 = t88 + t90;
        // real block of 3, multiplier 2
        const Q t92 = c[1] * t33;
        // real block of 9, multiplier 2
        const Q t93 = c[4] * t92;
        const Q t94 = c[5] * t41;
        const Q t95 = t93 - t94;
        // complex block of 3, multiplier 2
        const Q t96 = t91 + t95;
        const Q t97 = t91 - t95;
        // real block of 9, multiplier 2
        const Q t98 = c[2] * t89;
        const Q t99 = c[3] * t15;
        const Q t100 = t98 - t99;
        const Q t101 = c[5] * t92;
        const Q t102 = c[4] * t41;
        const Q t103 = t101 + t102;
        // complex block of 3, multiplier 2
        const Q t104 = t100 - t103;
        const Q t105 = t100 + t103;
        const Q t106 = t96 + t87;
        // real block of 3, multiplier 2
        const Q t107 = c[1] * t25;
        // complex block of 3, multiplier 2
        const Q t108 = t104 + t107;
        const Q t109 = c[0] * t96;
        const Q t110 = t87 - t109;
        const Q t111 = c[1] * t105;
        const Q t112 = t110 + t111;
        const Q t113 = t110 - t111;
        const Q t114 = c[0] * t104;
        const Q t115 = t107 - t114;
        const Q t116 = c[1] * t97;
        const Q t117 = t115 - t116;
        const Q t118 = t115 + t116;
        // real block of 3, multiplier 2
        const Q t119 = t13 - t39;
        const Q x0_19 = io.pairs(0, 19);
        // complex block of 19, multiplier 2
        const Q t120 = x0_19 + t44;
        const Q t121 = c[26] * t44;
        const Q t122 = x0_19 - t121;
        const Q t123 = shuffled<1, 0, 3, 2>(t83);
        const Q t124 = Q(-c[27], c[27], -c[27], c[27]) * t123;
        // spectrum block of 2
        const Q t125 = t122 + t124;
        const Q t126 = t122 - t124;
        const Q t127 = shuffled<1, 0, 3, 2>(t85);
        // complex block of 19, multiplier 2
        const Q t128 = c[6] * t127;
        // real block of 3, multiplier 2
        const Q t129 = c[1] * t119;
        const Q t130 = shuffled<1, 0, 3, 2>(t129);
        // complex block of 19, multiplier 2
        const Q t131 = c[7] * t130;
        const Q t132 = t128 + t131;
        const Q t133 = c[8] * t46;
        // real block of 3, multiplier 2
        const Q t134 = c[1] * t80;
        // complex block of 19, multiplier 2
        const Q t135 = c[9] * t134;
        const Q t136 = t133 + t135;
        const Q t137 = flipped<0, 1, 0, 1>(t132);
        // complex block of 2
        const Q t138 = t136 + t137;
        const Q t139 = t136 - t137;
        // spectrum block of 3, multiplier 2
        const Q t140 = t138 + t125;
        const Q t141 = c[0] * t138;
        const Q t142 = t125 - t141;
        // spectrum block of 3, multiplier 2
        const Q t143 = t139 + t126;
        const Q t144 = c[0] * t139;
        const Q t145 = t126 - t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t118);
        // complex block of 19, multiplier 2
        const Q t147 = Q(-c[10], c[10], -c[10], c[10]) * t146;
        const Q t148 = shuffled<1, 0, 3, 2>(t113);
        const Q t149 = Q(c[11], -c[11], c[11], -c[11]) * t148;
        const Q t150 = t147 + t149;
        const Q t151 = c[12] * t79;
        const Q t152 = c[13] * t74;
        const Q t153 = t151 - t152;
        // complex block of 2
        const Q t154 = t153 + t150;
        const Q t155 = t153 - t150;
        // complex block of 19, multiplier 2
        const Q t156 = c[14] * t73;
        const Q t157 = c[15] * t78;
        const Q t158 = t156 - t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t112);
        const Q t160 = c[16] * t159;
        const Q t161 = shuffled<1, 0, 3, 2>(t117);
        const Q t162 = c[17] * t161;
        const Q t163 = t160 + t162;
        const Q t164 = flipped<1, 0, 1, 0>(t163);
        // complex block of 2
        const Q t165 = t158 + t164;
        const Q t166 = t158 - t164;
        // complex block of 3, multiplier 2
        const Q t167 = t154 + t165;
        const Q t168 = t154 - t165;
        // complex block of 3, multiplier 2
        const Q t169 = t155 + t166;
        const Q t170 = t155 - t166;
        // complex block of 19, multiplier 2
        const Q t171 = c[11] * t146;
        const Q t172 = c[10] * t148;
        const Q t173 = t171 + t172;
        const Q t174 = c[13] * t79;
        const Q t175 = c[12] * t74;
        const Q t176 = t174 + t175;
        const Q t177 = flipped<1, 0, 1, 0>(t176);
        // complex block of 2
        const Q t178 = t177 + t173;
        const Q t179 = t173 - t177;
        // complex block of 19, multiplier 2
        const Q t180 = c[14] * t78;
        const Q t181 = c[15] * t73;
        const Q t182 = t180 + t181;
        const Q t183 = Q(-c[16], c[16], -c[16], c[16]) * t161;
        const Q t184 = Q(c[17], -c[17], c[17], -c[17]) * t159;
        const Q t185 = t183 + t184;
        // complex block of 2
        const Q t186 = t182 + t185;
        const Q t187 = t185 - t182;
        const Q t188 = flipped<0, 1, 0, 1>(t178);
        // complex block of 3, multiplier 2
        const Q t189 = t186 + t188;
        const Q t190 = flipped<1, 0, 1, 0>(t186);
        const Q t191 = t178 + t190;
        const Q t192 = flipped<0, 1, 0, 1>(t187);
        // complex block of 3, multiplier 2
        const Q t193 = t179 + t192;
        const Q t194 = flipped<1, 0, 1, 0>(t179);
        const Q t195 = t194 + t187;
        // complex block of 19, multiplier 2
        const Q t196 = c[18] * t67;
        const Q t197 = c[19] * t69;
        const Q t198 = t196 - t197;
        const Q t199 = shuffled<1, 0, 3, 2>(t108);
        const Q t200 = Q(-c[20], c[20], -c[20], c[20]) * t199;
        const Q t201 = shuffled<1, 0, 3, 2>(t106);
        const Q t202 = Q(c[21], -c[21], c[21], -c[21]) * t201;
        const Q t203 = t200 + t202;
        // complex block of 2
        const Q t204 = t198 + t203;
        const Q t205 = t198 - t203;
        // complex block of 19, multiplier 2
        const Q t206 = c[18] * t69;
        const Q t207 = c[19] * t67;
        const Q t208 = t206 + t207;
        const Q t209 = c[21] * t199;
        const Q t210 = c[20] * t201;
        const Q t211 = t209 + t210;
        const Q t212 = flipped<0, 1, 0, 1>(t211);
        // complex block of 2
        const Q t213 = t208 + t212;
        const Q t214 = t208 - t212;
        // complex block of 3, multiplier 2
        const Q t215 = t189 + t213;
        const Q t216 = t167 + t204;
        const Q t217 = c[0] * t189;
        const Q t218 = t213 - t217;
        const Q t219 = c[1] * t168;
        const Q t220 = t218 + t219;
        const Q t221 = t218 - t219;
        const Q t222 = c[0] * t167;
        const Q t223 = t204 - t222;
        const Q t224 = Q(-c[1], c[1], -c[1], c[1]) * t191;
        const Q t225 = t223 + t224;
        const Q t226 = t223 - t224;
        const Q t227 = flipped<1, 0, 1, 0>(t193);
        // complex block of 3, multiplier 2
        const Q t228 = t227 + t214;
        const Q t229 = t169 + t205;
        const Q t230 = Q(c[0], -c[0], c[0], -c[0]) * t193;
        const Q t231 = t214 + t230;
        const Q t232 = c[1] * t170;
        const Q t233 = t231 + t232;
        const Q t234 = t231 - t232;
        const Q t235 = c[0] * t169;
        const Q t236 = t205 - t235;
        const Q t237 = c[1] * t195;
        const Q t238 = t236 - t237;
        const Q t239 = t236 + t237;
        // complex block of 19, multiplier 2
        const Q t240 = Q(-c[6], c[6], -c[6], c[6]) * t130;
        const Q t241 = Q(c[7], -c[7], c[7], -c[7]) * t127;
        const Q t242 = t240 + t241;
        const Q t243 = c[8] * t134;
        const Q t244 = c[9] * t46;
        const Q t245 = t243 - t244;
        // complex block of 2
        const Q t246 = t245 - t242;
        const Q t247 = t245 + t242;
        // spectrum block of 3, multiplier 2
        const Q t248 = c[1] * t246;
        const Q t249 = t142 - t248;
        const Q t250 = t142 + t248;
        // spectrum block of 9, multiplier 2
        const Q t251 = c[2] * t226;
        const Q t252 = c[3] * t221;
        const Q t253 = t251 - t252;
        const Q t254 = c[5] * t225;
        const Q t255 = c[4] * t220;
        const Q t256 = t254 + t255;
        // spectrum block of 3, multiplier 2
        const Q t257 = t216 + t140;
        const Q t258 = c[0] * t216;
        const Q t259 = t140 - t258;
        // spectrum block of 3, multiplier 2
        const Q t260 = c[22] * t221;
        const Q t261 = c[23] * t226;
        const Q t262 = t260 + t261;
        // spectrum block of 3, multiplier 2
        const Q t263 = c[24] * t225;
        const Q t264 = c[25] * t220;
        const Q t265 = t263 - t264;
        // spectrum block of 3, multiplier 2
        const Q t266 = c[1] * t247;
        const Q t267 = t145 - t266;
        const Q t268 = t145 + t266;
        // spectrum block of 9, multiplier 2
        const Q t269 = c[2] * t239;
        const Q t270 = c[3] * t234;
        const Q t271 = t269 - t270;
        const Q t272 = c[5] * t238;
        const Q t273 = c[4] * t233;
        const Q t274 = t272 + t273;
        // spectrum block of 3, multiplier 2
        const Q t275 = t229 + t143;
        const Q t276 = c[0] * t229;
        const Q t277 = t143 - t276;
        // spectrum block of 3, multiplier 2
        const Q t278 = c[22] * t234;
        const Q t279 = c[23] * t239;
        const Q t280 = t278 + t279;
        // spectrum block of 3, multiplier 2
        const Q t281 = c[24] * t238;
        const Q t282 = c[25] * t233;
        const Q t283 = t281 - t282;
        // spectrum block of 3, multiplier 2
        const Q t284 = c[1] * t215;
        const Q t285 = t259 - t284;
        // spectrum block of 3, multiplier 2
        const Q t286 = c[0] * t253;
        const Q t287 = t250 - t286;
        const Q t288 = t287 - t262;
        const Q t289 = t287 + t262;
        // spectrum block of 3, multiplier 2
        const Q t290 = t249 - t256;
        const Q t291 = shuffled<0, 1, 4, 5>(t290, t288);
        const Q t292 = shuffled<2, 3, 6, 7>(t290, t288);
        // complex block of 2
        const Q t293 = t291 + t292;
        const Q t294 = t291 - t292;
        const Q t295 = shuffled<0, 1, 6, 7>(t293, t294);
        io.pairs(12, 13, t295);
        const Q t296 = shuffled<0, 1, 6, 7>(t294, t293);
        io.pairs(31, 32, t296);
        const Q t297 = shuffled<0, 1, 4, 5>(t285, t289);
        const Q t298 = shuffled<2, 3, 6, 7>(t285, t289);
        // complex block of 2
        const Q t299 = t297 + t298;
        const Q t300 = t297 - t298;
        const Q t301 = shuffled<0, 1, 6, 7>(t299, t300);
        io.pairs(14, 15, t301);
        const Q t302 = shuffled<0, 1, 6, 7>(t300, t299);
        io.pairs(33, 34, t302);
        // spectrum block of 3, multiplier 2
        const Q t303 = t259 + t284;
        const Q t304 = shuffled<0, 1, 4, 5>(t257, t303);
        const Q t305 = shuffled<2, 3, 6, 7>(t257, t303);
        // complex block of 2
        const Q t306 = t304 + t305;
        const Q t307 = t304 - t305;
        const Q t308 = shuffled<0, 1, 6, 7>(t306, t307);
        io.pairs(2, 3, t308);
        const Q t309 = shuffled<0, 1, 6, 7>(t307, t306);
        io.pairs(21, 22, t309);
        // spectrum block of 3, multiplier 2
        const Q t310 = t253 + t250;
        // spectrum block of 3, multiplier 2
        const Q t311 = c[0] * t274;
        const Q t312 = t311 + t267;
        const Q t313 = t312 - t283;
        const Q t314 = t312 + t283;
        const Q t315 = shuffled<0, 1, 4, 5>(t120, t314);
        const Q t316 = shuffled<2, 3, 6, 7>(t120, t314);
        // complex block of 2
        const Q t317 = t315 + t316;
        const Q t318 = t315 - t316;
        const Q t319 = shuffled<0, 1, 6, 7>(t317, t318);
        io.pairs(0, 1, t319);
        const Q t320 = shuffled<0, 1, 6, 7>(t318, t317);
        io.pairs(19, 20, t320);
        const Q t321 = shuffled<0, 1, 4, 5>(t310, t313);
        const Q t322 = shuffled<2, 3, 6, 7>(t310, t313);
        // complex block of 2
        const Q t323 = t321 + t322;
        const Q t324 = t321 - t322;
        const Q t325 = shuffled<0, 1, 6, 7>(t323, t324);
        io.pairs(10, 11, t325);
        const Q t326 = shuffled<0, 1, 6, 7>(t324, t323);
        io.pairs(29, 30, t326);
        // spectrum block of 3, multiplier 2
        const Q t327 = c[0] * t256;
        const Q t328 = t327 + t249;
        const Q t329 = t328 - t265;
        const Q t330 = t328 + t265;
        // spectrum block of 3, multiplier 2
        const Q t331 = t271 + t268;
        const P t332 = part<0>(t330);
        const P t333 = part<1>(t330);
        // complex block of 2
        const P t334 = t332 + t333;
        io.pair(18, t334);
        const P t335 = t332 - t333;
        io.pair(37, t335);
        const Q t336 = shuffled<0, 1, 4, 5>(t329, t331);
        const Q t337 = shuffled<2, 3, 6, 7>(t329, t331);
        // complex block of 2
        const Q t338 = t336 + t337;
        const Q t339 = t336 - t337;
        const Q t340 = shuffled<0, 1, 6, 7>(t338, t339);
        io.pairs(8, 9, t340);
        const Q t341 = shuffled<0, 1, 6, 7>(t339, t338);
        io.pairs(27, 28, t341);
        // spectrum block of 3, multiplier 2
        const Q t342 = c[1] * t228;
        const Q t343 = t277 - t342;
        // spectrum block of 3, multiplier 2
        const Q t344 = c[0] * t271;
        const Q t345 = t268 - t344;
        const Q t346 = t345 - t280;
        const Q t347 = t345 + t280;
        // spectrum block of 3, multiplier 2
        const Q t348 = t267 - t274;
        const Q t349 = shuffled<0, 1, 4, 5>(t347, t343);
        const Q t350 = shuffled<2, 3, 6, 7>(t347, t343);
        // complex block of 2
        const Q t351 = t349 + t350;
        const Q t352 = t349 - t350;
        const Q t353 = shuffled<0, 1, 6, 7>(t351, t352);
        io.pairs(4, 5, t353);
        const Q t354 = shuffled<0, 1, 6, 7>(t352, t351);
        io.pairs(23, 24, t354);
        const Q t355 = shuffled<0, 1, 4, 5>(t346, t348);
        const Q t356 = shuffled<2, 3, 6, 7>(t346, t348);
        // complex block of 2
        const Q t357 = t355 + t356;
        const Q t358 = t355 - t356;
        const Q t359 = shuffled<0, 1, 6, 7>(t357, t358);
        io.pairs(6, 7, t359);
        const Q t360 = shuffled<0, 1, 6, 7>(t358, t357);
        io.pairs(25, 26, t360);
        // spectrum block of 3, multiplier 2
        const Q t361 = t277 + t342;
        const Q t362 = shuffled<0, 1, 4, 5>(t361, t275);
        const Q t363 = shuffled<2, 3, 6, 7>(t361, t275);
        // complex block of 2
        const Q t364 = t362 + t363;
        const Q t365 = t362 - t363;
        const Q t366 = shuffled<0, 1, 6, 7>(t364, t365);
        io.pairs(16, 17, t366);
        const Q t367 = shuffled<0, 1, 6, 7>(t365, t364);
        io.pairs(35, 36, t367);
    }
};

}  // namespace zulg
