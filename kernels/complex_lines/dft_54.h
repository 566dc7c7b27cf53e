// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 54.
// Complex DFT of 54 points, prime-factor, order 27, 2; two lines of a stage to a register.
// 129 sums, 89 differences, 110 products of registers, which do the 1416 steps of the graph, those with
// `scale` included; 112 shuffles, 17 changes of sign.
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
        0.11609291412523023,  // c[16]: -sin 2 pi 14/27
        0.993238357741943,  // c[17]: -cos 2 pi 14/27
        0.9730448705798238,  // c[18]: cos 2 pi 1/27
        0.23061587074244017,  // c[19]: sin 2 pi 1/27
        0.6862416378687336,  // c[20]: -cos 2 pi 10/27
        0.7273736415730487,  // c[21]: sin 2 pi 10/27
        0.9983081582712682,  // c[22]: -sin 2 pi 20/27
        0.05814482891047583,  // c[23]: -cos 2 pi 20/27
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
        const Q x28_1 = io.pairs(28, 1);
        const Q x46_19 = io.pairs(46, 19);
        // complex block of 3, multiplier 2
        const Q t9 = x28_1 + x46_19;
        const Q t10 = x28_1 - x46_19;
        const Q x34_7 = io.pairs(34, 7);
        const Q x52_25 = io.pairs(52, 25);
        // complex block of 3, multiplier 2
        const Q t11 = x34_7 + x52_25;
        const Q t12 = x34_7 - x52_25;
        const Q x10_37 = io.pairs(10, 37);
        // complex block of 3, multiplier 2
        const Q t13 = t9 + x10_37;
        const Q x16_43 = io.pairs(16, 43);
        // complex block of 3, multiplier 2
        const Q t14 = t11 + x16_43;
        // complex block of 3, multiplier 2
        const Q t15 = t13 + t14;
        // complex block of 3, multiplier 2
        const Q t16 = c[0] * t9;
        const Q t17 = x10_37 - t16;
        const Q t18 = Q(-c[1], c[1], -c[1], c[1]) * t10;
        const Q t19 = shuffled<1, 0, 3, 2>(t18);
        const Q t20 = t17 + t19;
        const Q t21 = t17 - t19;
        // complex block of 3, multiplier 2
        const Q t22 = c[0] * t11;
        const Q t23 = x16_43 - t22;
        const Q t24 = Q(-c[1], c[1], -c[1], c[1]) * t12;
        const Q t25 = shuffled<1, 0, 3, 2>(t24);
        const Q t26 = t23 + t25;
        const Q t27 = t23 - t25;
        const Q x22_49 = io.pairs(22, 49);
        const Q x40_13 = io.pairs(40, 13);
        // complex block of 3, multiplier 2
        const Q t28 = x22_49 + x40_13;
        const Q t29 = x22_49 - x40_13;
        const Q x4_31 = io.pairs(4, 31);
        const Q t30 = t28 + x4_31;
        const Q t31 = c[0] * t28;
        const Q t32 = x4_31 - t31;
        const Q t33 = Q(-c[1], c[1], -c[1], c[1]) * t29;
        const Q t34 = shuffled<1, 0, 3, 2>(t33);
        const Q t35 = t32 + t34;
        const Q t36 = t32 - t34;
        // complex block of 3, multiplier 2
        const Q t37 = t13 - t14;
        const Q t38 = c[0] * t15;
        const Q t39 = t30 - t38;
        const Q t40 = Q(-c[1], c[1], -c[1], c[1]) * t37;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = t39 + t41;
        const Q t43 = t39 - t41;
        const Q t44 = t15 + t30;
        // complex block of 9, multiplier 2
        const Q t45 = c[4] * t21;
        const Q t46 = shuffled<1, 0, 3, 2>(t21);
        const Q t47 = Q(c[5], -c[5], c[5], -c[5]) * t46;
        const Q t48 = t45 + t47;
        const Q t49 = Q(-c[2], c[2], -c[2], c[2]) * t27;
        const Q t50 = shuffled<1, 0, 3, 2>(t27);
        const Q t51 = c[3] * t50;
        const Q t52 = t49 + t51;
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        // complex block of 3, multiplier 2
        const Q t54 = t48 + t53;
        const Q t55 = t48 - t53;
        // complex block of 9, multiplier 2
        const Q t56 = Q(-c[2], c[2], -c[2], c[2]) * t20;
        const Q t57 = shuffled<1, 0, 3, 2>(t20);
        const Q t58 = c[3] * t57;
        const Q t59 = t56 + t58;
        const Q t60 = c[6] * t26;
        const Q t61 = shuffled<1, 0, 3, 2>(t26);
        const Q t62 = Q(-c[7], c[7], -c[7], c[7]) * t61;
        const Q t63 = t60 + t62;
        const Q t64 = flipped<0, 1, 0, 1>(t59);
        // complex block of 3, multiplier 2
        const Q t65 = t63 + t64;
        const Q t66 = flipped<1, 0, 1, 0>(t63);
        const Q t67 = t59 + t66;
        const Q x20_47 = io.pairs(20, 47);
        const Q x38_11 = io.pairs(38, 11);
        // complex block of 3, multiplier 2
        const Q t68 = x20_47 + x38_11;
        const Q t69 = x20_47 - x38_11;
        const Q x2_29 = io.pairs(2, 29);
        const Q t70 = t68 + x2_29;
        const Q x32_5 = io.pairs(32, 5);
        const Q x50_23 = io.pairs(50, 23);
        // complex block of 3, multiplier 2
        const Q t71 = x32_5 + x50_23;
        const Q t72 = x32_5 - x50_23;
        const Q x26_53 = io.pairs(26, 53);
        const Q x44_17 = io.pairs(44, 17);
        // complex block of 3, multiplier 2
        const Q t73 = x26_53 + x44_17;
        const Q t74 = x26_53 - x44_17;
        const Q x8_35 = io.pairs(8, 35);
        const Q t75 = t73 + x8_35;
        const Q x14_41 = io.pairs(14, 41);
        // complex block of 3, multiplier 2
        const Q t76 = t71 + x14_41;
        // complex block of 3, multiplier 2
        const Q t77 = t75 + t76;
        // complex block of 3, multiplier 2
        const Q t78 = c[0] * t73;
        const Q t79 = x8_35 - t78;
        const Q t80 = Q(-c[1], c[1], -c[1], c[1]) * t74;
        const Q t81 = shuffled<1, 0, 3, 2>(t80);
        const Q t82 = t79 + t81;
        const Q t83 = t79 - t81;
        // complex block of 3, multiplier 2
        const Q t84 = c[0] * t71;
        const Q t85 = x14_41 - t84;
        const Q t86 = Q(-c[1], c[1], -c[1], c[1]) * t72;
        const Q t87 = shuffled<1, 0, 3, 2>(t86);
        const Q t88 = t85 + t87;
        const Q t89 = t85 - t87;
        // complex block of 3, multiplier 2
        const Q t90 = c[0] * t68;
        const Q t91 = x2_29 - t90;
        const Q t92 = Q(-c[1], c[1], -c[1], c[1]) * t69;
        const Q t93 = shuffled<1, 0, 3, 2>(t92);
        const Q t94 = t91 + t93;
        const Q t95 = t91 - t93;
        // complex block of 3, multiplier 2
        const Q t96 = t75 - t76;
        const Q t97 = c[0] * t77;
        const Q t98 = t70 - t97;
        const Q t99 = Q(-c[1], c[1], -c[1], c[1]) * t96;
        const Q t100 = shuffled<1, 0, 3, 2>(t99);
        const Q t101 = t98 + t100;
        const Q t102 = t98 - t100;
        const Q t103 = t77 + t70;
        // complex block of 9, multiplier 2
        const Q t104 = c[4] * t83;
        const Q t105 = shuffled<1, 0, 3, 2>(t83);
        const Q t106 = Q(c[5], -c[5], c[5], -c[5]) * t105;
        const Q t107 = t104 + t106;
        const Q t108 = Q(-c[2], c[2], -c[2], c[2]) * t89;
        const Q t109 = shuffled<1, 0, 3, 2>(t89);
        const Q t110 = c[3] * t109;
        const Q t111 = t108 + t110;
        const Q t112 = flipped<0, 1, 0, 1>(t111);
        // complex block of 3, multiplier 2
        const Q t113 = t107 + t112;
        const Q t114 = t107 - t112;
        // complex block of 9, multiplier 2
        const Q t115 = Q(-c[2], c[2], -c[2], c[2]) * t82;
        const Q t116 = shuffled<1, 0, 3, 2>(t82);
        const Q t117 = c[3] * t116;
        const Q t118 = t115 + t117;
        const Q t119 = c[6] * t88;
        const Q t120 = shuffled<1, 0, 3, 2>(t88);
        const Q t121 = Q(-c[7], c[7], -c[7], c[7]) * t120;
        const Q t122 = t119 + t121;
        const Q t123 = flipped<0, 1, 0, 1>(t118);
        // complex block of 3, multiplier 2
        const Q t124 = t122 + t123;
        const Q t125 = flipped<1, 0, 1, 0>(t122);
        const Q t126 = t118 + t125;
        const Q x30_3 = io.pairs(30, 3);
        const Q x48_21 = io.pairs(48, 21);
        // complex block of 3, multiplier 2
        const Q t127 = x30_3 + x48_21;
        const Q t128 = x30_3 - x48_21;
        const Q x12_39 = io.pairs(12, 39);
        const Q t129 = t127 + x12_39;
        const Q t130 = c[0] * t127;
        const Q t131 = x12_39 - t130;
        const Q x24_51 = io.pairs(24, 51);
        const Q x42_15 = io.pairs(42, 15);
        // complex block of 3, multiplier 2
        const Q t132 = x24_51 + x42_15;
        const Q t133 = x24_51 - x42_15;
        const Q x6_33 = io.pairs(6, 33);
        const Q t134 = t132 + x6_33;
        const Q t135 = c[0] * t132;
        const Q t136 = x6_33 - t135;
        const Q t137 = Q(-c[1], c[1], -c[1], c[1]) * t133;
        const Q t138 = shuffled<1, 0, 3, 2>(t137);
        const Q t139 = t136 + t138;
        // complex block of 9, multiplier 2
        const Q t140 = Q(-c[2], c[2], -c[2], c[2]) * t139;
        const Q t141 = shuffled<1, 0, 3, 2>(t139);
        const Q t142 = c[3] * t141;
        const Q t143 = t140 + t142;
        // complex block of 3, multiplier 2
        const Q t144 = t136 - t138;
        // complex block of 9, multiplier 2
        const Q t145 = c[4] * t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t144);
        const Q t147 = Q(c[5], -c[5], c[5], -c[5]) * t146;
        const Q t148 = t145 + t147;
        // complex block of 3, multiplier 2
        const Q t149 = Q(-c[1], c[1], -c[1], c[1]) * t128;
        const Q t150 = shuffled<1, 0, 3, 2>(t149);
        const Q t151 = t131 + t150;
        // complex block of 9, multiplier 2
        const Q t152 = c[6] * t151;
        const Q t153 = shuffled<1, 0, 3, 2>(t151);
        const Q t154 = Q(-c[7], c[7], -c[7], c[7]) * t153;
        const Q t155 = t152 + t154;
        // complex block of 3, multiplier 2
        const Q t156 = t131 - t150;
        // complex block of 9, multiplier 2
        const Q t157 = Q(-c[2], c[2], -c[2], c[2]) * t156;
        const Q t158 = shuffled<1, 0, 3, 2>(t156);
        const Q t159 = c[3] * t158;
        const Q t160 = t157 + t159;
        // complex block of 3, multiplier 2
        const Q t161 = t134 + t129;
        const Q t162 = t134 - t129;
        const Q t163 = t161 + t2;
        // complex block of 3, multiplier 2
        const Q t164 = t103 + t44;
        const Q t165 = t164 + t163;
        const Q t166 = c[0] * t164;
        const Q t167 = t163 - t166;
        // complex block of 3, multiplier 2
        const Q t168 = c[0] * t161;
        const Q t169 = t2 - t168;
        const Q t170 = Q(-c[1], c[1], -c[1], c[1]) * t162;
        const Q t171 = shuffled<1, 0, 3, 2>(t170);
        const Q t172 = t169 + t171;
        const Q t173 = t169 - t171;
        const Q t174 = flipped<0, 1, 0, 1>(t160);
        // complex block of 3, multiplier 2
        const Q t175 = t148 + t174;
        const Q t176 = t148 - t174;
        const Q t177 = t175 + t8;
        const Q t178 = c[0] * t175;
        const Q t179 = t8 - t178;
        const Q t180 = Q(-c[1], c[1], -c[1], c[1]) * t176;
        const Q t181 = shuffled<1, 0, 3, 2>(t180);
        const Q t182 = t179 + t181;
        const Q t183 = t179 - t181;
        const Q t184 = flipped<0, 1, 0, 1>(t143);
        // complex block of 3, multiplier 2
        const Q t185 = t155 + t184;
        const Q t186 = flipped<1, 0, 1, 0>(t155);
        const Q t187 = t143 + t186;
        const Q t188 = t185 + t7;
        const Q t189 = c[0] * t185;
        const Q t190 = t7 - t189;
        const Q t191 = c[1] * t187;
        const Q t192 = shuffled<1, 0, 3, 2>(t191);
        const Q t193 = t190 - t192;
        const Q t194 = t190 + t192;
        // complex block of 3, multiplier 2
        const Q t195 = t113 + t95;
        // complex block of 3, multiplier 2
        const Q t196 = t54 + t36;
        // complex block of 27, multiplier 2
        const Q t197 = c[14] * t195;
        const Q t198 = shuffled<1, 0, 3, 2>(t195);
        const Q t199 = Q(c[15], -c[15], c[15], -c[15]) * t198;
        const Q t200 = t197 + t199;
        const Q t201 = c[8] * t196;
        const Q t202 = shuffled<1, 0, 3, 2>(t196);
        const Q t203 = Q(c[9], -c[9], c[9], -c[9]) * t202;
        const Q t204 = t201 + t203;
        // complex block of 3, multiplier 2
        const Q t205 = t200 + t204;
        const Q t206 = t200 - t204;
        // complex block of 3, multiplier 2
        const Q t207 = c[0] * t113;
        const Q t208 = t95 - t207;
        const Q t209 = Q(-c[1], c[1], -c[1], c[1]) * t114;
        const Q t210 = shuffled<1, 0, 3, 2>(t209);
        const Q t211 = t208 + t210;
        const Q t212 = t208 - t210;
        // complex block of 3, multiplier 2
        const Q t213 = c[0] * t54;
        const Q t214 = t36 - t213;
        const Q t215 = Q(-c[1], c[1], -c[1], c[1]) * t55;
        const Q t216 = shuffled<1, 0, 3, 2>(t215);
        const Q t217 = t214 + t216;
        const Q t218 = t214 - t216;
        // complex block of 27, multiplier 2
        const Q t219 = Q(-c[10], c[10], -c[10], c[10]) * t212;
        const Q t220 = shuffled<1, 0, 3, 2>(t212);
        const Q t221 = c[11] * t220;
        const Q t222 = t219 + t221;
        const Q t223 = shuffled<1, 0, 3, 2>(t218);
        const Q t224 = c[12] * t223;
        const Q t225 = Q(c[13], -c[13], c[13], -c[13]) * t218;
        const Q t226 = t224 + t225;
        const Q t227 = shuffled<0, 5, 2, 7>(t222, t226);
        const Q t228 = shuffled<0, 5, 2, 7>(t226, t222);
        // complex block of 3, multiplier 2
        const Q t229 = t227 - t228;
        const Q t230 = shuffled<1, 0, 3, 2>(t211);
        // complex block of 27, multiplier 2
        const Q t231 = c[16] * t230;
        const Q t232 = Q(c[17], -c[17], c[17], -c[17]) * t211;
        const Q t233 = t231 + t232;
        const Q t234 = c[18] * t217;
        const Q t235 = shuffled<1, 0, 3, 2>(t217);
        const Q t236 = Q(c[19], -c[19], c[19], -c[19]) * t235;
        const Q t237 = t234 + t236;
        const Q t238 = flipped<1, 0, 1, 0>(t233);
        // complex block of 3, multiplier 2
        const Q t239 = t238 + t237;
        // complex block of 3, multiplier 2
        const Q t240 = t124 + t94;
        // complex block of 3, multiplier 2
        const Q t241 = t65 + t35;
        // complex block of 27, multiplier 2
        const Q t242 = c[8] * t240;
        const Q t243 = shuffled<1, 0, 3, 2>(t240);
        const Q t244 = Q(c[9], -c[9], c[9], -c[9]) * t243;
        const Q t245 = t242 + t244;
        const Q t246 = Q(-c[10], c[10], -c[10], c[10]) * t241;
        const Q t247 = shuffled<1, 0, 3, 2>(t241);
        const Q t248 = c[11] * t247;
        const Q t249 = t246 + t248;
        const Q t250 = flipped<0, 1, 0, 1>(t249);
        // complex block of 3, multiplier 2
        const Q t251 = t245 + t250;
        const Q t252 = t245 - t250;
        // complex block of 3, multiplier 2
        const Q t253 = c[0] * t124;
        const Q t254 = t94 - t253;
        const Q t255 = c[1] * t126;
        const Q t256 = shuffled<1, 0, 3, 2>(t255);
        const Q t257 = t254 - t256;
        const Q t258 = t254 + t256;
        // complex block of 3, multiplier 2
        const Q t259 = c[0] * t65;
        const Q t260 = t35 - t259;
        const Q t261 = c[1] * t67;
        const Q t262 = shuffled<1, 0, 3, 2>(t261);
        const Q t263 = t260 - t262;
        const Q t264 = t260 + t262;
        // complex block of 27, multiplier 2
        const Q t265 = Q(-c[20], c[20], -c[20], c[20]) * t258;
        const Q t266 = shuffled<1, 0, 3, 2>(t258);
        const Q t267 = c[21] * t266;
        const Q t268 = t265 + t267;
        const Q t269 = shuffled<1, 0, 3, 2>(t264);
        const Q t270 = c[22] * t269;
        const Q t271 = Q(c[23], -c[23], c[23], -c[23]) * t264;
        const Q t272 = t270 + t271;
        const Q t273 = shuffled<0, 5, 2, 7>(t268, t272);
        const Q t274 = shuffled<0, 5, 2, 7>(t272, t268);
        // complex block of 3, multiplier 2
        const Q t275 = t273 - t274;
        const Q t276 = shuffled<1, 0, 3, 2>(t257);
        // complex block of 27, multiplier 2
        const Q t277 = c[12] * t276;
        const Q t278 = Q(c[13], -c[13], c[13], -c[13]) * t257;
        const Q t279 = t277 + t278;
        const Q t280 = c[24] * t263;
        const Q t281 = shuffled<1, 0, 3, 2>(t263);
        const Q t282 = Q(c[25], -c[25], c[25], -c[25]) * t281;
        const Q t283 = t280 + t282;
        const Q t284 = flipped<1, 0, 1, 0>(t279);
        // complex block of 3, multiplier 2
        const Q t285 = t284 + t283;
        // complex block of 3, multiplier 2
        const Q t286 = t103 - t44;
        // complex block of 27, multiplier 2
        const Q t287 = c[4] * t102;
        const Q t288 = shuffled<1, 0, 3, 2>(t102);
        const Q t289 = Q(c[5], -c[5], c[5], -c[5]) * t288;
        const Q t290 = t287 + t289;
        const Q t291 = Q(-c[2], c[2], -c[2], c[2]) * t43;
        const Q t292 = shuffled<1, 0, 3, 2>(t43);
        const Q t293 = c[3] * t292;
        const Q t294 = t291 + t293;
        const Q t295 = flipped<0, 1, 0, 1>(t294);
        // complex block of 3, multiplier 2
        const Q t296 = t290 + t295;
        const Q t297 = t290 - t295;
        // complex block of 27, multiplier 2
        const Q t298 = Q(-c[2], c[2], -c[2], c[2]) * t101;
        const Q t299 = shuffled<1, 0, 3, 2>(t101);
        const Q t300 = c[3] * t299;
        const Q t301 = t298 + t300;
        const Q t302 = c[6] * t42;
        const Q t303 = shuffled<1, 0, 3, 2>(t42);
        const Q t304 = Q(-c[7], c[7], -c[7], c[7]) * t303;
        const Q t305 = t302 + t304;
        const Q t306 = flipped<0, 1, 0, 1>(t301);
        // complex block of 3, multiplier 2
        const Q t307 = t305 + t306;
        const Q t308 = flipped<1, 0, 1, 0>(t305);
        const Q t309 = t301 + t308;
        // complex block of 3, multiplier 2
        const Q t310 = Q(-c[1], c[1], -c[1], c[1]) * t286;
        const Q t311 = shuffled<1, 0, 3, 2>(t310);
        const Q t312 = t167 + t311;
        // complex block of 3, multiplier 2
        const Q t313 = t229 + t183;
        const Q t314 = shuffled<0, 1, 4, 5>(t313, t312);
        const Q t315 = shuffled<2, 3, 6, 7>(t313, t312);
        // complex block of 2
        const Q t316 = t314 + t315;
        const Q t317 = t314 - t315;
        const Q t318 = shuffled<0, 1, 6, 7>(t316, t317);
        io.pairs(8, 9, t318);
        const Q t319 = shuffled<0, 1, 6, 7>(t317, t316);
        io.pairs(35, 36, t319);
        // complex block of 3, multiplier 2
        const Q t320 = t167 - t311;
        // complex block of 3, multiplier 2
        const Q t321 = t268 + t272;
        const Q t322 = c[0] * t275;
        const Q t323 = t194 - t322;
        const Q t324 = c[1] * t321;
        const Q t325 = shuffled<1, 0, 3, 2>(t324);
        const Q t326 = t323 - t325;
        const Q t327 = shuffled<0, 1, 4, 5>(t320, t326);
        const Q t328 = shuffled<2, 3, 6, 7>(t320, t326);
        // complex block of 2
        const Q t329 = t327 + t328;
        const Q t330 = t327 - t328;
        const Q t331 = shuffled<0, 1, 6, 7>(t329, t330);
        io.pairs(18, 19, t331);
        const Q t332 = shuffled<0, 1, 6, 7>(t330, t329);
        io.pairs(45, 46, t332);
        // complex block of 3, multiplier 2
        const Q t333 = t323 + t325;
        const Q t334 = shuffled<0, 1, 4, 5>(t165, t333);
        const Q t335 = shuffled<2, 3, 6, 7>(t165, t333);
        // complex block of 2
        const Q t336 = t334 + t335;
        const Q t337 = t334 - t335;
        const Q t338 = shuffled<0, 1, 6, 7>(t336, t337);
        io.pairs(0, 1, t338);
        const Q t339 = shuffled<0, 1, 6, 7>(t337, t336);
        io.pairs(27, 28, t339);
        // complex block of 3, multiplier 2
        const Q t340 = t205 + t177;
        const Q t341 = c[0] * t205;
        const Q t342 = t177 - t341;
        // complex block of 3, multiplier 2
        const Q t343 = t275 + t194;
        // complex block of 3, multiplier 2
        const Q t344 = c[0] * t307;
        const Q t345 = t172 - t344;
        const Q t346 = c[1] * t309;
        const Q t347 = shuffled<1, 0, 3, 2>(t346);
        const Q t348 = t345 - t347;
        const Q t349 = t345 + t347;
        // complex block of 3, multiplier 2
        const Q t350 = Q(-c[1], c[1], -c[1], c[1]) * t206;
        const Q t351 = shuffled<1, 0, 3, 2>(t350);
        const Q t352 = t342 + t351;
        const Q t353 = shuffled<0, 1, 4, 5>(t343, t352);
        const Q t354 = shuffled<2, 3, 6, 7>(t343, t352);
        // complex block of 2
        const Q t355 = t353 + t354;
        const Q t356 = t353 - t354;
        const Q t357 = shuffled<0, 1, 6, 7>(t355, t356);
        io.pairs(10, 11, t357);
        const Q t358 = shuffled<0, 1, 6, 7>(t356, t355);
        io.pairs(37, 38, t358);
        // complex block of 3, multiplier 2
        const Q t359 = t342 - t351;
        const Q t360 = shuffled<0, 1, 4, 5>(t359, t348);
        const Q t361 = shuffled<2, 3, 6, 7>(t359, t348);
        // complex block of 2
        const Q t362 = t360 + t361;
        const Q t363 = t360 - t361;
        const Q t364 = shuffled<0, 1, 6, 7>(t362, t363);
        io.pairs(20, 21, t364);
        const Q t365 = shuffled<0, 1, 6, 7>(t363, t362);
        io.pairs(47, 48, t365);
        const Q t366 = shuffled<0, 1, 4, 5>(t340, t349);
        const Q t367 = shuffled<2, 3, 6, 7>(t340, t349);
        // complex block of 2
        const Q t368 = t366 + t367;
        const Q t369 = t366 - t367;
        const Q t370 = shuffled<0, 1, 6, 7>(t368, t369);
        io.pairs(2, 3, t370);
        const Q t371 = shuffled<0, 1, 6, 7>(t369, t368);
        io.pairs(29, 30, t371);
        // complex block of 3, multiplier 2
        const Q t372 = t251 + t188;
        const Q t373 = c[0] * t251;
        const Q t374 = t188 - t373;
        // complex block of 3, multiplier 2
        const Q t375 = t307 + t172;
        const Q t376 = flipped<0, 1, 0, 1>(t237);
        // complex block of 3, multiplier 2
        const Q t377 = t233 + t376;
        const Q t378 = c[0] * t239;
        const Q t379 = t182 - t378;
        // complex block of 3, multiplier 2
        const Q t380 = Q(-c[1], c[1], -c[1], c[1]) * t252;
        const Q t381 = shuffled<1, 0, 3, 2>(t380);
        const Q t382 = t374 + t381;
        const Q t383 = shuffled<0, 1, 4, 5>(t375, t382);
        const Q t384 = shuffled<2, 3, 6, 7>(t375, t382);
        // complex block of 2
        const Q t385 = t383 + t384;
        const Q t386 = t383 - t384;
        const Q t387 = shuffled<0, 1, 6, 7>(t385, t386);
        io.pairs(12, 13, t387);
        const Q t388 = shuffled<0, 1, 6, 7>(t386, t385);
        io.pairs(39, 40, t388);
        // complex block of 3, multiplier 2
        const Q t389 = t374 - t381;
        // complex block of 3, multiplier 2
        const Q t390 = c[1] * t377;
        const Q t391 = shuffled<1, 0, 3, 2>(t390);
        const Q t392 = t379 + t391;
        const Q t393 = shuffled<0, 1, 4, 5>(t389, t392);
        const Q t394 = shuffled<2, 3, 6, 7>(t389, t392);
        // complex block of 2
        const Q t395 = t393 + t394;
        const Q t396 = t393 - t394;
        const Q t397 = shuffled<0, 1, 6, 7>(t395, t396);
        io.pairs(22, 23, t397);
        const Q t398 = shuffled<0, 1, 6, 7>(t396, t395);
        io.pairs(49, 50, t398);
        // complex block of 3, multiplier 2
        const Q t399 = t379 - t391;
        const Q t400 = shuffled<0, 1, 4, 5>(t372, t399);
        const Q t401 = shuffled<2, 3, 6, 7>(t372, t399);
        // complex block of 2
        const Q t402 = t400 + t401;
        const Q t403 = t400 - t401;
        const Q t404 = shuffled<0, 1, 6, 7>(t402, t403);
        io.pairs(4, 5, t404);
        const Q t405 = shuffled<0, 1, 6, 7>(t403, t402);
        io.pairs(31, 32, t405);
        // complex block of 3, multiplier 2
        const Q t406 = t296 + t173;
        const Q t407 = c[0] * t296;
        const Q t408 = t173 - t407;
        const Q t409 = Q(-c[1], c[1], -c[1], c[1]) * t297;
        const Q t410 = shuffled<1, 0, 3, 2>(t409);
        const Q t411 = t408 + t410;
        const Q t412 = t408 - t410;
        // complex block of 3, multiplier 2
        const Q t413 = t239 + t182;
        const Q t414 = flipped<0, 1, 0, 1>(t283);
        // complex block of 3, multiplier 2
        const Q t415 = t279 + t414;
        const Q t416 = c[0] * t285;
        const Q t417 = t193 - t416;
        const Q t418 = c[1] * t415;
        const Q t419 = shuffled<1, 0, 3, 2>(t418);
        const Q t420 = t417 + t419;
        const Q t421 = shuffled<0, 1, 4, 5>(t412, t420);
        const Q t422 = shuffled<2, 3, 6, 7>(t412, t420);
        // complex block of 2
        const Q t423 = t421 + t422;
        const Q t424 = t421 - t422;
        const Q t425 = shuffled<0, 1, 6, 7>(t423, t424);
        io.pairs(24, 25, t425);
        const Q t426 = shuffled<0, 1, 6, 7>(t424, t423);
        io.pairs(51, 52, t426);
        // complex block of 3, multiplier 2
        const Q t427 = t417 - t419;
        const Q t428 = shuffled<0, 1, 4, 5>(t406, t427);
        const Q t429 = shuffled<2, 3, 6, 7>(t406, t427);
        // complex block of 2
        const Q t430 = t428 + t429;
        const Q t431 = t428 - t429;
        const Q t432 = shuffled<0, 1, 6, 7>(t430, t431);
        io.pairs(6, 7, t432);
        const Q t433 = shuffled<0, 1, 6, 7>(t431, t430);
        io.pairs(33, 34, t433);
        const Q t434 = shuffled<0, 1, 4, 5>(t413, t411);
        const Q t435 = shuffled<2, 3, 6, 7>(t413, t411);
        // complex block of 2
        const Q t436 = t434 + t435;
        const Q t437 = t434 - t435;
        const Q t438 = shuffled<0, 1, 6, 7>(t436, t437);
        io.pairs(14, 15, t438);
        const Q t439 = shuffled<0, 1, 6, 7>(t437, t436);
        io.pairs(41, 42, t439);
        // complex block of 3, multiplier 2
        const Q t440 = t222 + t226;
        const Q t441 = c[0] * t229;
        const Q t442 = t183 - t441;
        // complex block of 3, multiplier 2
        const Q t443 = t285 + t193;
        // complex block of 3, multiplier 2
        const Q t444 = c[1] * t440;
        const Q t445 = shuffled<1, 0, 3, 2>(t444);
        const Q t446 = t442 - t445;
        const Q t447 = shuffled<0, 1, 4, 5>(t443, t446);
        const Q t448 = shuffled<2, 3, 6, 7>(t443, t446);
        // complex block of 2
        const Q t449 = t447 + t448;
        const Q t450 = t447 - t448;
        const Q t451 = shuffled<0, 1, 6, 7>(t449, t450);
        io.pairs(16, 17, t451);
        const Q t452 = shuffled<0, 1, 6, 7>(t450, t449);
        io.pairs(43, 44, t452);
        // complex block of 3, multiplier 2
        const Q t453 = t442 + t445;
        const P t454 = part<0>(t453);
        const P t455 = part<1>(t453);
        // complex block of 2
        const P t456 = t454 + t455;
        io.pair(26, t456);
        const P t457 = t454 - t455;
        io.pair(53, t457);
    }
};

}  // namespace zulg
