// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 54.
// Complex DFT of 54 points, prime-factor, order 27, 2; two lines of a stage to a register.
// 129 sums, 89 differences, 110 products of registers, which do the 1416 steps of the graph, those with
// `scale` included; 86 shuffles, 17 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<54> {
    static constexpr int steps = 1416;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 4/9
        0.3420201433256687,  // c[3]: sin 2 pi 4/9
        0.17364817766693036,  // c[4]: cos 2 pi 2/9
        0.984807753012208,  // c[5]: sin 2 pi 2/9
        0.766044443118978,  // c[6]: cos 2 pi 8/9
        0.6427876096865394,  // c[7]: -sin 2 pi 8/9
        0.5971585917027862,  // c[8]: cos 2 pi 4/27
        0.8021231927550437,  // c[9]: sin 2 pi 4/27
        0.28680323271109026,  // c[10]: -cos 2 pi 8/27
        0.9579895123154889,  // c[11]: sin 2 pi 8/27
        0.549508978070806,  // c[12]: -sin 2 pi 16/27
        0.8354878114129364,  // c[13]: -cos 2 pi 16/27
        0.8936326403234123,  // c[14]: cos 2 pi 2/27
        0.44879918020046217,  // c[15]: sin 2 pi 2/27
        0.6862416378687336,  // c[16]: -cos 2 pi 10/27
        0.7273736415730487,  // c[17]: sin 2 pi 10/27
        0.9983081582712682,  // c[18]: -sin 2 pi 20/27
        0.05814482891047583,  // c[19]: -cos 2 pi 20/27
        0.11609291412523023,  // c[20]: -sin 2 pi 14/27
        0.993238357741943,  // c[21]: -cos 2 pi 14/27
        0.9730448705798238,  // c[22]: cos 2 pi 1/27
        0.23061587074244017,  // c[23]: sin 2 pi 1/27
        0.39607976603915684,  // c[24]: cos 2 pi 5/27
        0.918216106880274,  // c[25]: sin 2 pi 5/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x18_45 = io.pairs(18, 45);
        const Q x36_9 = io.pairs(36, 9);
        // complex block of 3, multiplier 2
        const Q t0 = x18_45 + x36_9;
        const Q t1 = x18_45 - x36_9;
        const Q x0_27 = io.pairs(0, 27);
        const Q t2 = t0 + x0_27;
        const Q t3 = c[0] * t0;
        const Q t4 = x0_27 - t3;
        const Q t5 = Q(-c[1], c[1], -c[1], c[1]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x24_51 = io.pairs(24, 51);
        const Q x42_15 = io.pairs(42, 15);
        // complex block of 3, multiplier 2
        const Q t9 = x24_51 + x42_15;
        const Q t10 = x24_51 - x42_15;
        const Q x6_33 = io.pairs(6, 33);
        const Q t11 = t9 + x6_33;
        const Q t12 = c[0] * t9;
        const Q t13 = x6_33 - t12;
        const Q t14 = Q(-c[1], c[1], -c[1], c[1]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x30_3 = io.pairs(30, 3);
        const Q x48_21 = io.pairs(48, 21);
        // complex block of 3, multiplier 2
        const Q t18 = x30_3 + x48_21;
        const Q t19 = x30_3 - x48_21;
        const Q x12_39 = io.pairs(12, 39);
        const Q t20 = t18 + x12_39;
        const Q t21 = c[0] * t18;
        const Q t22 = x12_39 - t21;
        const Q t23 = Q(-c[1], c[1], -c[1], c[1]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        // complex block of 3, multiplier 2
        const Q t27 = t11 + t20;
        const Q t28 = t11 - t20;
        const Q t29 = t27 + t2;
        const Q t30 = c[0] * t27;
        const Q t31 = t2 - t30;
        const Q t32 = Q(-c[1], c[1], -c[1], c[1]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        // complex block of 9, multiplier 2
        const Q t36 = c[4] * t17;
        const Q t37 = shuffled<1, 0, 3, 2>(t17);
        const Q t38 = Q(c[5], -c[5], c[5], -c[5]) * t37;
        const Q t39 = t36 + t38;
        const Q t40 = Q(-c[2], c[2], -c[2], c[2]) * t26;
        const Q t41 = shuffled<1, 0, 3, 2>(t26);
        const Q t42 = c[3] * t41;
        const Q t43 = t40 + t42;
        const Q t44 = flipped<0, 1, 0, 1>(t43);
        // complex block of 3, multiplier 2
        const Q t45 = t39 + t44;
        const Q t46 = t39 - t44;
        const Q t47 = t45 + t8;
        const Q t48 = c[0] * t45;
        const Q t49 = t8 - t48;
        const Q t50 = Q(-c[1], c[1], -c[1], c[1]) * t46;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = t49 + t51;
        const Q t53 = t49 - t51;
        // complex block of 9, multiplier 2
        const Q t54 = Q(-c[2], c[2], -c[2], c[2]) * t16;
        const Q t55 = shuffled<1, 0, 3, 2>(t16);
        const Q t56 = c[3] * t55;
        const Q t57 = t54 + t56;
        const Q t58 = c[6] * t25;
        const Q t59 = shuffled<1, 0, 3, 2>(t25);
        const Q t60 = Q(-c[7], c[7], -c[7], c[7]) * t59;
        const Q t61 = t58 + t60;
        const Q t62 = flipped<0, 1, 0, 1>(t57);
        // complex block of 3, multiplier 2
        const Q t63 = t61 + t62;
        const Q t64 = flipped<1, 0, 1, 0>(t61);
        const Q t65 = t57 + t64;
        const Q t66 = t63 + t7;
        const Q t67 = c[0] * t63;
        const Q t68 = t7 - t67;
        const Q t69 = c[1] * t65;
        const Q t70 = shuffled<1, 0, 3, 2>(t69);
        const Q t71 = t68 - t70;
        const Q t72 = t68 + t70;
        const Q x20_47 = io.pairs(20, 47);
        const Q x38_11 = io.pairs(38, 11);
        // complex block of 3, multiplier 2
        const Q t73 = x20_47 + x38_11;
        const Q t74 = x20_47 - x38_11;
        const Q x2_29 = io.pairs(2, 29);
        const Q t75 = t73 + x2_29;
        const Q t76 = c[0] * t73;
        const Q t77 = x2_29 - t76;
        const Q t78 = Q(-c[1], c[1], -c[1], c[1]) * t74;
        const Q t79 = shuffled<1, 0, 3, 2>(t78);
        const Q t80 = t77 + t79;
        const Q t81 = t77 - t79;
        const Q x26_53 = io.pairs(26, 53);
        const Q x44_17 = io.pairs(44, 17);
        // complex block of 3, multiplier 2
        const Q t82 = x26_53 + x44_17;
        const Q t83 = x26_53 - x44_17;
        const Q x8_35 = io.pairs(8, 35);
        const Q t84 = t82 + x8_35;
        const Q t85 = c[0] * t82;
        const Q t86 = x8_35 - t85;
        const Q t87 = Q(-c[1], c[1], -c[1], c[1]) * t83;
        const Q t88 = shuffled<1, 0, 3, 2>(t87);
        const Q t89 = t86 + t88;
        const Q t90 = t86 - t88;
        const Q x32_5 = io.pairs(32, 5);
        const Q x50_23 = io.pairs(50, 23);
        // complex block of 3, multiplier 2
        const Q t91 = x32_5 + x50_23;
        const Q t92 = x32_5 - x50_23;
        const Q x14_41 = io.pairs(14, 41);
        const Q t93 = t91 + x14_41;
        const Q t94 = c[0] * t91;
        const Q t95 = x14_41 - t94;
        const Q t96 = Q(-c[1], c[1], -c[1], c[1]) * t92;
        const Q t97 = shuffled<1, 0, 3, 2>(t96);
        const Q t98 = t95 + t97;
        const Q t99 = t95 - t97;
        // complex block of 3, multiplier 2
        const Q t100 = t84 + t93;
        const Q t101 = t84 - t93;
        const Q t102 = t100 + t75;
        const Q t103 = c[0] * t100;
        const Q t104 = t75 - t103;
        const Q t105 = Q(-c[1], c[1], -c[1], c[1]) * t101;
        const Q t106 = shuffled<1, 0, 3, 2>(t105);
        const Q t107 = t104 + t106;
        const Q t108 = t104 - t106;
        // complex block of 9, multiplier 2
        const Q t109 = c[4] * t90;
        const Q t110 = shuffled<1, 0, 3, 2>(t90);
        const Q t111 = Q(c[5], -c[5], c[5], -c[5]) * t110;
        const Q t112 = t109 + t111;
        const Q t113 = Q(-c[2], c[2], -c[2], c[2]) * t99;
        const Q t114 = shuffled<1, 0, 3, 2>(t99);
        const Q t115 = c[3] * t114;
        const Q t116 = t113 + t115;
        const Q t117 = flipped<0, 1, 0, 1>(t116);
        // complex block of 3, multiplier 2
        const Q t118 = t112 + t117;
        const Q t119 = t112 - t117;
        const Q t120 = t118 + t81;
        const Q t121 = c[0] * t118;
        const Q t122 = t81 - t121;
        const Q t123 = Q(-c[1], c[1], -c[1], c[1]) * t119;
        const Q t124 = shuffled<1, 0, 3, 2>(t123);
        const Q t125 = t122 + t124;
        const Q t126 = t122 - t124;
        // complex block of 9, multiplier 2
        const Q t127 = Q(-c[2], c[2], -c[2], c[2]) * t89;
        const Q t128 = shuffled<1, 0, 3, 2>(t89);
        const Q t129 = c[3] * t128;
        const Q t130 = t127 + t129;
        const Q t131 = c[6] * t98;
        const Q t132 = shuffled<1, 0, 3, 2>(t98);
        const Q t133 = Q(-c[7], c[7], -c[7], c[7]) * t132;
        const Q t134 = t131 + t133;
        const Q t135 = flipped<0, 1, 0, 1>(t130);
        // complex block of 3, multiplier 2
        const Q t136 = t134 + t135;
        const Q t137 = flipped<1, 0, 1, 0>(t134);
        const Q t138 = t130 + t137;
        const Q t139 = t136 + t80;
        const Q t140 = c[0] * t136;
        const Q t141 = t80 - t140;
        const Q t142 = c[1] * t138;
        const Q t143 = shuffled<1, 0, 3, 2>(t142);
        const Q t144 = t141 - t143;
        const Q t145 = t141 + t143;
        const Q x22_49 = io.pairs(22, 49);
        const Q x40_13 = io.pairs(40, 13);
        // complex block of 3, multiplier 2
        const Q t146 = x22_49 + x40_13;
        const Q t147 = x22_49 - x40_13;
        const Q x4_31 = io.pairs(4, 31);
        const Q t148 = t146 + x4_31;
        const Q t149 = c[0] * t146;
        const Q t150 = x4_31 - t149;
        const Q t151 = Q(-c[1], c[1], -c[1], c[1]) * t147;
        const Q t152 = shuffled<1, 0, 3, 2>(t151);
        const Q t153 = t150 + t152;
        const Q t154 = t150 - t152;
        const Q x28_1 = io.pairs(28, 1);
        const Q x46_19 = io.pairs(46, 19);
        // complex block of 3, multiplier 2
        const Q t155 = x28_1 + x46_19;
        const Q t156 = x28_1 - x46_19;
        const Q x10_37 = io.pairs(10, 37);
        const Q t157 = t155 + x10_37;
        const Q t158 = c[0] * t155;
        const Q t159 = x10_37 - t158;
        const Q t160 = Q(-c[1], c[1], -c[1], c[1]) * t156;
        const Q t161 = shuffled<1, 0, 3, 2>(t160);
        const Q t162 = t159 + t161;
        const Q t163 = t159 - t161;
        const Q x34_7 = io.pairs(34, 7);
        const Q x52_25 = io.pairs(52, 25);
        // complex block of 3, multiplier 2
        const Q t164 = x34_7 + x52_25;
        const Q t165 = x34_7 - x52_25;
        const Q x16_43 = io.pairs(16, 43);
        const Q t166 = t164 + x16_43;
        const Q t167 = c[0] * t164;
        const Q t168 = x16_43 - t167;
        const Q t169 = Q(-c[1], c[1], -c[1], c[1]) * t165;
        const Q t170 = shuffled<1, 0, 3, 2>(t169);
        const Q t171 = t168 + t170;
        const Q t172 = t168 - t170;
        // complex block of 3, multiplier 2
        const Q t173 = t157 + t166;
        const Q t174 = t157 - t166;
        const Q t175 = t173 + t148;
        const Q t176 = c[0] * t173;
        const Q t177 = t148 - t176;
        const Q t178 = Q(-c[1], c[1], -c[1], c[1]) * t174;
        const Q t179 = shuffled<1, 0, 3, 2>(t178);
        const Q t180 = t177 + t179;
        const Q t181 = t177 - t179;
        // complex block of 9, multiplier 2
        const Q t182 = c[4] * t163;
        const Q t183 = shuffled<1, 0, 3, 2>(t163);
        const Q t184 = Q(c[5], -c[5], c[5], -c[5]) * t183;
        const Q t185 = t182 + t184;
        const Q t186 = Q(-c[2], c[2], -c[2], c[2]) * t172;
        const Q t187 = shuffled<1, 0, 3, 2>(t172);
        const Q t188 = c[3] * t187;
        const Q t189 = t186 + t188;
        const Q t190 = flipped<0, 1, 0, 1>(t189);
        // complex block of 3, multiplier 2
        const Q t191 = t185 + t190;
        const Q t192 = t185 - t190;
        const Q t193 = t191 + t154;
        const Q t194 = c[0] * t191;
        const Q t195 = t154 - t194;
        const Q t196 = Q(-c[1], c[1], -c[1], c[1]) * t192;
        const Q t197 = shuffled<1, 0, 3, 2>(t196);
        const Q t198 = t195 + t197;
        const Q t199 = t195 - t197;
        // complex block of 9, multiplier 2
        const Q t200 = Q(-c[2], c[2], -c[2], c[2]) * t162;
        const Q t201 = shuffled<1, 0, 3, 2>(t162);
        const Q t202 = c[3] * t201;
        const Q t203 = t200 + t202;
        const Q t204 = c[6] * t171;
        const Q t205 = shuffled<1, 0, 3, 2>(t171);
        const Q t206 = Q(-c[7], c[7], -c[7], c[7]) * t205;
        const Q t207 = t204 + t206;
        const Q t208 = flipped<0, 1, 0, 1>(t203);
        // complex block of 3, multiplier 2
        const Q t209 = t207 + t208;
        const Q t210 = flipped<1, 0, 1, 0>(t207);
        const Q t211 = t203 + t210;
        const Q t212 = t209 + t153;
        const Q t213 = c[0] * t209;
        const Q t214 = t153 - t213;
        const Q t215 = c[1] * t211;
        const Q t216 = shuffled<1, 0, 3, 2>(t215);
        const Q t217 = t214 - t216;
        const Q t218 = t214 + t216;
        // complex block of 3, multiplier 2
        const Q t219 = t102 + t175;
        const Q t220 = t102 - t175;
        const Q t221 = t219 + t29;
        const Q t222 = c[0] * t219;
        const Q t223 = t29 - t222;
        const Q t224 = Q(-c[1], c[1], -c[1], c[1]) * t220;
        const Q t225 = shuffled<1, 0, 3, 2>(t224);
        const Q t226 = t223 + t225;
        const Q t227 = t223 - t225;
        // complex block of 27, multiplier 2
        const Q t228 = c[14] * t120;
        const Q t229 = shuffled<1, 0, 3, 2>(t120);
        const Q t230 = Q(c[15], -c[15], c[15], -c[15]) * t229;
        const Q t231 = t228 + t230;
        const Q t232 = c[8] * t193;
        const Q t233 = shuffled<1, 0, 3, 2>(t193);
        const Q t234 = Q(c[9], -c[9], c[9], -c[9]) * t233;
        const Q t235 = t232 + t234;
        // complex block of 3, multiplier 2
        const Q t236 = t231 + t235;
        const Q t237 = t231 - t235;
        const Q t238 = t236 + t47;
        const Q t239 = c[0] * t236;
        const Q t240 = t47 - t239;
        const Q t241 = Q(-c[1], c[1], -c[1], c[1]) * t237;
        const Q t242 = shuffled<1, 0, 3, 2>(t241);
        const Q t243 = t240 + t242;
        const Q t244 = t240 - t242;
        // complex block of 27, multiplier 2
        const Q t245 = c[8] * t139;
        const Q t246 = shuffled<1, 0, 3, 2>(t139);
        const Q t247 = Q(c[9], -c[9], c[9], -c[9]) * t246;
        const Q t248 = t245 + t247;
        const Q t249 = Q(-c[10], c[10], -c[10], c[10]) * t212;
        const Q t250 = shuffled<1, 0, 3, 2>(t212);
        const Q t251 = c[11] * t250;
        const Q t252 = t249 + t251;
        const Q t253 = flipped<0, 1, 0, 1>(t252);
        // complex block of 3, multiplier 2
        const Q t254 = t248 + t253;
        const Q t255 = t248 - t253;
        const Q t256 = t254 + t66;
        const Q t257 = c[0] * t254;
        const Q t258 = t66 - t257;
        const Q t259 = Q(-c[1], c[1], -c[1], c[1]) * t255;
        const Q t260 = shuffled<1, 0, 3, 2>(t259);
        const Q t261 = t258 + t260;
        const Q t262 = t258 - t260;
        // complex block of 27, multiplier 2
        const Q t263 = c[4] * t108;
        const Q t264 = shuffled<1, 0, 3, 2>(t108);
        const Q t265 = Q(c[5], -c[5], c[5], -c[5]) * t264;
        const Q t266 = t263 + t265;
        const Q t267 = Q(-c[2], c[2], -c[2], c[2]) * t181;
        const Q t268 = shuffled<1, 0, 3, 2>(t181);
        const Q t269 = c[3] * t268;
        const Q t270 = t267 + t269;
        const Q t271 = flipped<0, 1, 0, 1>(t270);
        // complex block of 3, multiplier 2
        const Q t272 = t266 + t271;
        const Q t273 = t266 - t271;
        const Q t274 = t272 + t35;
        const Q t275 = c[0] * t272;
        const Q t276 = t35 - t275;
        const Q t277 = Q(-c[1], c[1], -c[1], c[1]) * t273;
        const Q t278 = shuffled<1, 0, 3, 2>(t277);
        const Q t279 = t276 + t278;
        const Q t280 = t276 - t278;
        // complex block of 27, multiplier 2
        const Q t281 = Q(-c[10], c[10], -c[10], c[10]) * t126;
        const Q t282 = shuffled<1, 0, 3, 2>(t126);
        const Q t283 = c[11] * t282;
        const Q t284 = t281 + t283;
        const Q t285 = shuffled<1, 0, 3, 2>(t199);
        const Q t286 = c[12] * t285;
        const Q t287 = Q(c[13], -c[13], c[13], -c[13]) * t199;
        const Q t288 = t286 + t287;
        const Q t289 = shuffled<0, 5, 2, 7>(t284, t288);
        const Q t290 = shuffled<0, 5, 2, 7>(t288, t284);
        // complex block of 3, multiplier 2
        const Q t291 = t289 - t290;
        const Q t292 = t284 + t288;
        const Q t293 = t291 + t53;
        const Q t294 = c[0] * t291;
        const Q t295 = t53 - t294;
        const Q t296 = c[1] * t292;
        const Q t297 = shuffled<1, 0, 3, 2>(t296);
        const Q t298 = t295 - t297;
        const Q t299 = t295 + t297;
        // complex block of 27, multiplier 2
        const Q t300 = Q(-c[16], c[16], -c[16], c[16]) * t145;
        const Q t301 = shuffled<1, 0, 3, 2>(t145);
        const Q t302 = c[17] * t301;
        const Q t303 = t300 + t302;
        const Q t304 = shuffled<1, 0, 3, 2>(t218);
        const Q t305 = c[18] * t304;
        const Q t306 = Q(c[19], -c[19], c[19], -c[19]) * t218;
        const Q t307 = t305 + t306;
        const Q t308 = shuffled<0, 5, 2, 7>(t303, t307);
        const Q t309 = shuffled<0, 5, 2, 7>(t307, t303);
        // complex block of 3, multiplier 2
        const Q t310 = t308 - t309;
        const Q t311 = t303 + t307;
        const Q t312 = t310 + t72;
        const Q t313 = c[0] * t310;
        const Q t314 = t72 - t313;
        const Q t315 = c[1] * t311;
        const Q t316 = shuffled<1, 0, 3, 2>(t315);
        const Q t317 = t314 - t316;
        const Q t318 = t314 + t316;
        // complex block of 27, multiplier 2
        const Q t319 = Q(-c[2], c[2], -c[2], c[2]) * t107;
        const Q t320 = shuffled<1, 0, 3, 2>(t107);
        const Q t321 = c[3] * t320;
        const Q t322 = t319 + t321;
        const Q t323 = c[6] * t180;
        const Q t324 = shuffled<1, 0, 3, 2>(t180);
        const Q t325 = Q(-c[7], c[7], -c[7], c[7]) * t324;
        const Q t326 = t323 + t325;
        const Q t327 = flipped<0, 1, 0, 1>(t322);
        // complex block of 3, multiplier 2
        const Q t328 = t326 + t327;
        const Q t329 = flipped<1, 0, 1, 0>(t326);
        const Q t330 = t322 + t329;
        const Q t331 = t328 + t34;
        const Q t332 = c[0] * t328;
        const Q t333 = t34 - t332;
        const Q t334 = c[1] * t330;
        const Q t335 = shuffled<1, 0, 3, 2>(t334);
        const Q t336 = t333 - t335;
        const Q t337 = t333 + t335;
        const Q t338 = shuffled<1, 0, 3, 2>(t125);
        // complex block of 27, multiplier 2
        const Q t339 = c[20] * t338;
        const Q t340 = Q(c[21], -c[21], c[21], -c[21]) * t125;
        const Q t341 = t339 + t340;
        const Q t342 = c[22] * t198;
        const Q t343 = shuffled<1, 0, 3, 2>(t198);
        const Q t344 = Q(c[23], -c[23], c[23], -c[23]) * t343;
        const Q t345 = t342 + t344;
        const Q t346 = flipped<1, 0, 1, 0>(t341);
        // complex block of 3, multiplier 2
        const Q t347 = t346 + t345;
        const Q t348 = flipped<0, 1, 0, 1>(t345);
        const Q t349 = t341 + t348;
        const Q t350 = t347 + t52;
        const Q t351 = c[0] * t347;
        const Q t352 = t52 - t351;
        const Q t353 = c[1] * t349;
        const Q t354 = shuffled<1, 0, 3, 2>(t353);
        const Q t355 = t352 + t354;
        const Q t356 = t352 - t354;
        const Q t357 = shuffled<1, 0, 3, 2>(t144);
        // complex block of 27, multiplier 2
        const Q t358 = c[12] * t357;
        const Q t359 = Q(c[13], -c[13], c[13], -c[13]) * t144;
        const Q t360 = t358 + t359;
        const Q t361 = c[24] * t217;
        const Q t362 = shuffled<1, 0, 3, 2>(t217);
        const Q t363 = Q(c[25], -c[25], c[25], -c[25]) * t362;
        const Q t364 = t361 + t363;
        const Q t365 = flipped<1, 0, 1, 0>(t360);
        // complex block of 3, multiplier 2
        const Q t366 = t365 + t364;
        const Q t367 = flipped<0, 1, 0, 1>(t364);
        const Q t368 = t360 + t367;
        const Q t369 = t366 + t71;
        const Q t370 = c[0] * t366;
        const Q t371 = t71 - t370;
        const Q t372 = c[1] * t368;
        const Q t373 = shuffled<1, 0, 3, 2>(t372);
        const Q t374 = t371 + t373;
        const Q t375 = t371 - t373;
        const Q t376 = shuffled<0, 1, 4, 5>(t221, t238);
        const Q t377 = shuffled<2, 3, 6, 7>(t221, t238);
        // complex block of 2
        const Q t378 = t376 + t377;
        io.pairs(0, 2, t378);
        const Q t379 = t376 - t377;
        io.pairs(27, 29, t379);
        const Q t380 = shuffled<0, 1, 4, 5>(t256, t274);
        const Q t381 = shuffled<2, 3, 6, 7>(t256, t274);
        // complex block of 2
        const Q t382 = t380 + t381;
        io.pairs(4, 6, t382);
        const Q t383 = t380 - t381;
        io.pairs(31, 33, t383);
        const Q t384 = shuffled<0, 1, 4, 5>(t293, t312);
        const Q t385 = shuffled<2, 3, 6, 7>(t293, t312);
        // complex block of 2
        const Q t386 = t384 + t385;
        io.pairs(8, 10, t386);
        const Q t387 = t384 - t385;
        io.pairs(35, 37, t387);
        const Q t388 = shuffled<0, 1, 4, 5>(t331, t350);
        const Q t389 = shuffled<2, 3, 6, 7>(t331, t350);
        // complex block of 2
        const Q t390 = t388 + t389;
        io.pairs(12, 14, t390);
        const Q t391 = t388 - t389;
        io.pairs(39, 41, t391);
        const Q t392 = shuffled<0, 1, 4, 5>(t369, t227);
        const Q t393 = shuffled<2, 3, 6, 7>(t369, t227);
        // complex block of 2
        const Q t394 = t392 + t393;
        io.pairs(16, 18, t394);
        const Q t395 = t392 - t393;
        io.pairs(43, 45, t395);
        const Q t396 = shuffled<0, 1, 4, 5>(t244, t262);
        const Q t397 = shuffled<2, 3, 6, 7>(t244, t262);
        // complex block of 2
        const Q t398 = t396 + t397;
        io.pairs(20, 22, t398);
        const Q t399 = t396 - t397;
        io.pairs(47, 49, t399);
        const Q t400 = shuffled<0, 1, 4, 5>(t280, t299);
        const Q t401 = shuffled<2, 3, 6, 7>(t280, t299);
        // complex block of 2
        const Q t402 = t400 + t401;
        io.pairs(24, 26, t402);
        const Q t403 = t400 - t401;
        io.pairs(51, 53, t403);
        const Q t404 = shuffled<0, 1, 4, 5>(t318, t337);
        const Q t405 = shuffled<2, 3, 6, 7>(t318, t337);
        // complex block of 2
        const Q t406 = t404 + t405;
        io.pairs(28, 30, t406);
        const Q t407 = t404 - t405;
        io.pairs(1, 3, t407);
        const Q t408 = shuffled<0, 1, 4, 5>(t356, t375);
        const Q t409 = shuffled<2, 3, 6, 7>(t356, t375);
        // complex block of 2
        const Q t410 = t408 + t409;
        io.pairs(32, 34, t410);
        const Q t411 = t408 - t409;
        io.pairs(5, 7, t411);
        const Q t412 = shuffled<0, 1, 4, 5>(t226, t243);
        const Q t413 = shuffled<2, 3, 6, 7>(t226, t243);
        // complex block of 2
        const Q t414 = t412 + t413;
        io.pairs(36, 38, t414);
        const Q t415 = t412 - t413;
        io.pairs(9, 11, t415);
        const Q t416 = shuffled<0, 1, 4, 5>(t261, t279);
        const Q t417 = shuffled<2, 3, 6, 7>(t261, t279);
        // complex block of 2
        const Q t418 = t416 + t417;
        io.pairs(40, 42, t418);
        const Q t419 = t416 - t417;
        io.pairs(13, 15, t419);
        const Q t420 = shuffled<0, 1, 4, 5>(t298, t317);
        const Q t421 = shuffled<2, 3, 6, 7>(t298, t317);
        // complex block of 2
        const Q t422 = t420 + t421;
        io.pairs(44, 46, t422);
        const Q t423 = t420 - t421;
        io.pairs(17, 19, t423);
        const Q t424 = shuffled<0, 1, 4, 5>(t336, t355);
        const Q t425 = shuffled<2, 3, 6, 7>(t336, t355);
        // complex block of 2
        const Q t426 = t424 + t425;
        io.pairs(48, 50, t426);
        const Q t427 = t424 - t425;
        io.pairs(21, 23, t427);
        const P t428 = part<0>(t374);
        const P t429 = part<1>(t374);
        // complex block of 2
        const P t430 = t428 + t429;
        io.pair(52, t430);
        const P t431 = t428 - t429;
        io.pair(25, t431);
    }
};

}  // namespace zulg
