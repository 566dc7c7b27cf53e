// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 57.
// Hartley transform of 57 points, form F; two lanes to a register.
// 179 sums, 157 differences, 183 products of registers, which do the 1079 steps of the graph, those with
// `scale` included; 103 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<57> {
    static constexpr int steps = 1079;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.48419213608836237,  // c[6]: P[1] of 19
        0.011219473461650014,  // c[7]: -Q[1] of 19
        0.4483141527641826,  // c[8]: -Q[2] of 19
        0.18325479984409965,  // c[9]: -P[2] of 19
        0.0768648721323888,  // c[10]: P[4] of 19
        0.4781837436243932,  // c[11]: Q[4] of 19
        0.0003161186210583505,  // c[12]: -P[5] of 19
        0.48432200167201295,  // c[13]: -Q[5] of 19
        0.4454859456092568,  // c[14]: P[7] of 19
        0.19002677048035677,  // c[15]: -Q[7] of 19
        0.235501645151975,  // c[16]: P[8] of 19
        0.4232102035221754,  // c[17]: Q[8] of 19
        0.8528685319524432,  // c[18]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.1503837331804353,  // c[19]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.05555555555555555,  // c[20]: 1/18
        0.28199561460730244,  // c[21]: P[3] of 19
        0.3937592850674352,  // c[22]: -Q[3] of 19
        0.47339199623771827,  // c[23]: P[6] of 19
        0.10231284930367265,  // c[24]: -Q[6] of 19
        0.4099694946900914,  // c[25]: -sin 2 pi 2/3 times P[6] of 19
        0.08860552663054953,  // c[26]: -sin 2 pi 2/3 times -Q[6] of 19
        0.766044443118978,  // c[27]: cos 2 pi 8/9
        0.6427876096865394,  // c[28]: -sin 2 pi 8/9
        0.6634139481689384,  // c[29]: -sin 2 pi 2/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[30]: -sin 2 pi 2/3 times -sin 2 pi 8/9
        0.2421610524189263,  // c[31]: beta of 19
        0.24421536600573002,  // c[32]: -sin 2 pi 2/3 times P[3] of 19
        0.3410055438443974,  // c[33]: -sin 2 pi 2/3 times -Q[3] of 19
        0.8137976813493737,  // c[34]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[35]: -sin 2 pi 2/3 times sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x21_40 = io.in(21, 40);
        const P x33_52 = io.in(33, 52);
        // real block of 3, multiplier 2
        const P t0 = x21_40 + x33_52;
        const P t1 = x21_40 - x33_52;
        const P x3_22 = io.in(3, 22);
        const P t2 = t0 + x3_22;
        const P t3 = c[0] * t0;
        const P t4 = x3_22 - t3;
        const P x27_46 = io.in(27, 46);
        const P x18_37 = io.in(18, 37);
        // real block of 3, multiplier 2
        const P t5 = x27_46 + x18_37;
        const P t6 = x27_46 - x18_37;
        const P x12_31 = io.in(12, 31);
        const P t7 = t5 + x12_31;
        const P t8 = c[0] * t5;
        const P t9 = x12_31 - t8;
        const P x51_13 = io.in(51, 13);
        const P x15_34 = io.in(15, 34);
        // real block of 3, multiplier 2
        const P t10 = x51_13 + x15_34;
        const P t11 = x51_13 - x15_34;
        const P x48_10 = io.in(48, 10);
        const P t12 = t10 + x48_10;
        const P t13 = c[0] * t10;
        const P t14 = x48_10 - t13;
        // real block of 3, multiplier 2
        const P t15 = t7 + t12;
        const P t16 = t7 - t12;
        const P t17 = t15 + t2;
        const P t18 = c[0] * t15;
        const P t19 = t2 - t18;
        // real block of 9, multiplier 2
        const P t20 = c[2] * t9;
        // real block of 3, multiplier 2
        const P t21 = c[1] * t6;
        // real block of 9, multiplier 2
        const P t22 = c[3] * t21;
        const P t23 = t20 + t22;
        const P t24 = c[2] * t21;
        const P t25 = c[3] * t9;
        const P t26 = t24 - t25;
        // real block of 3, multiplier 2
        const P t27 = c[1] * t11;
        // real block of 9, multiplier 2
        const P t28 = c[4] * t27;
        const P t29 = c[5] * t14;
        const P t30 = t28 - t29;
        const P t31 = c[5] * t27;
        const P t32 = c[4] * t14;
        const P t33 = t31 + t32;
        // complex block of 3, multiplier 2
        const P t34 = t23 + t30;
        const P t35 = t26 - t33;
        const P t36 = t23 - t30;
        const P t37 = t26 + t33;
        const P t38 = t34 + t4;
        // real block of 3, multiplier 2
        const P t39 = c[1] * t1;
        // complex block of 3, multiplier 2
        const P t40 = t35 + t39;
        const P t41 = c[0] * t34;
        const P t42 = t4 - t41;
        const P t43 = c[0] * t35;
        const P t44 = t39 - t43;
        const P t45 = c[1] * t37;
        const P t46 = t42 + t45;
        const P t47 = c[1] * t36;
        const P t48 = t44 - t47;
        const P t49 = t42 - t45;
        const P t50 = t44 + t47;
        const P x36_55 = io.in(36, 55);
        const P x24_43 = io.in(24, 43);
        // real block of 3, multiplier 2
        const P t51 = x36_55 + x24_43;
        const P t52 = x36_55 - x24_43;
        const P x54_16 = io.in(54, 16);
        const P t53 = t51 + x54_16;
        const P t54 = c[0] * t51;
        const P t55 = x54_16 - t54;
        const P x30_49 = io.in(30, 49);
        const P x39_1 = io.in(39, 1);
        // real block of 3, multiplier 2
        const P t56 = x30_49 + x39_1;
        const P t57 = x30_49 - x39_1;
        const P x45_7 = io.in(45, 7);
        const P t58 = t56 + x45_7;
        const P t59 = c[0] * t56;
        const P t60 = x45_7 - t59;
        const P x6_25 = io.in(6, 25);
        const P x42_4 = io.in(42, 4);
        // real block of 3, multiplier 2
        const P t61 = x6_25 + x42_4;
        const P t62 = x6_25 - x42_4;
        const P x9_28 = io.in(9, 28);
        const P t63 = t61 + x9_28;
        const P t64 = c[0] * t61;
        const P t65 = x9_28 - t64;
        // real block of 3, multiplier 2
        const P t66 = t58 + t63;
        const P t67 = t58 - t63;
        const P t68 = t66 + t53;
        const P t69 = c[0] * t66;
        const P t70 = t53 - t69;
        // real block of 9, multiplier 2
        const P t71 = c[2] * t60;
        // real block of 3, multiplier 2
        const P t72 = c[1] * t57;
        // real block of 9, multiplier 2
        const P t73 = c[3] * t72;
        const P t74 = t71 + t73;
        const P t75 = c[2] * t72;
        const P t76 = c[3] * t60;
        const P t77 = t75 - t76;
        // real block of 3, multiplier 2
        const P t78 = c[1] * t62;
        // real block of 9, multiplier 2
        const P t79 = c[4] * t78;
        const P t80 = c[5] * t65;
        const P t81 = t79 - t80;
        const P t82 = c[5] * t78;
        const P t83 = c[4] * t65;
        const P t84 = t82 + t83;
        // complex block of 3, multiplier 2
        const P t85 = t74 + t81;
        const P t86 = t77 - t84;
        const P t87 = t74 - t81;
        const P t88 = t77 + t84;
        const P t89 = t85 + t55;
        // real block of 3, multiplier 2
        const P t90 = c[1] * t52;
        // complex block of 3, multiplier 2
        const P t91 = t86 + t90;
        const P t92 = c[0] * t85;
        const P t93 = t55 - t92;
        const P t94 = c[0] * t86;
        const P t95 = t90 - t94;
        const P t96 = c[1] * t88;
        const P t97 = t93 + t96;
        const P t98 = c[1] * t87;
        const P t99 = t95 - t98;
        const P t100 = t93 - t96;
        const P t101 = t95 + t98;
        // real block of 2
        const P t102 = t17 + t68;
        const P t103 = t17 - t68;
        // complex block of 2
        const P t104 = t38 + t89;
        const P t105 = t40 + t91;
        const P t106 = t38 - t89;
        const P t107 = t40 - t91;
        // complex block of 2
        const P t108 = t46 + t97;
        const P t109 = t48 + t99;
        const P t110 = t46 - t97;
        const P t111 = t99 - t48;
        // complex block of 2
        const P t112 = t19 + t70;
        // real block of 3, multiplier 2
        const P t113 = c[1] * t16;
        // real block of 3, multiplier 2
        const P t114 = c[1] * t67;
        // complex block of 2
        const P t115 = t113 + t114;
        const P t116 = t19 - t70;
        const P t117 = t113 - t114;
        // complex block of 2
        const P t118 = t49 + t100;
        const P t119 = t50 + t101;
        const P t120 = t49 - t100;
        const P t121 = t50 - t101;
        const P x0_19 = io.in(0, 19);
        // real block of 19, multiplier 3
        const P t122 = x0_19 + t102;
        const P t123 = c[20] * t102;
        const P t124 = x0_19 - t123;
        const P t125 = c[6] * t120;
        const P t126 = c[7] * t121;
        const P t127 = t125 - t126;
        const P t128 = c[6] * t121;
        const P t129 = c[7] * t120;
        const P t130 = t128 + t129;
        const P t131 = c[8] * t105;
        const P t132 = c[9] * t104;
        const P t133 = t131 - t132;
        const P t134 = c[9] * t105;
        const P t135 = c[8] * t104;
        const P t136 = t134 + t135;
        const P t137 = c[21] * t117;
        const P t138 = c[22] * t116;
        const P t139 = t137 + t138;
        const P t140 = c[10] * t108;
        const P t141 = c[11] * t109;
        const P t142 = t140 + t141;
        const P t143 = c[11] * t108;
        const P t144 = c[10] * t109;
        const P t145 = t143 - t144;
        const P t146 = c[12] * t110;
        const P t147 = c[13] * t111;
        const P t148 = t146 + t147;
        const P t149 = c[12] * t111;
        const P t150 = c[13] * t110;
        const P t151 = t149 - t150;
        const P t152 = c[23] * t112;
        const P t153 = c[24] * t115;
        const P t154 = t152 + t153;
        const P t155 = c[14] * t106;
        const P t156 = c[15] * t107;
        const P t157 = t155 - t156;
        const P t158 = c[14] * t107;
        const P t159 = c[15] * t106;
        const P t160 = t158 + t159;
        const P t161 = c[16] * t118;
        const P t162 = c[17] * t119;
        const P t163 = t161 - t162;
        const P t164 = c[16] * t119;
        const P t165 = c[17] * t118;
        const P t166 = t164 + t165;
        // spectrum block of 3
        const P t167 = t154 + t124;
        const P t168 = c[0] * t154;
        const P t169 = t124 - t168;
        const P t170 = c[25] * t115;
        const P t171 = c[26] * t112;
        const P t172 = t170 - t171;
        const P t173 = t169 - t172;
        const P t174 = t169 + t172;
        // complex block of 3
        const P t175 = t166 - t145;
        const P t176 = t163 + t142;
        const P t177 = t166 + t145;
        const P t178 = t163 - t142;
        const P t179 = t175 - t136;
        const P t180 = t176 + t133;
        const P t181 = c[0] * t175;
        const P t182 = t136 + t181;
        const P t183 = c[0] * t176;
        const P t184 = t133 - t183;
        const P t185 = c[1] * t178;
        const P t186 = t185 - t182;
        const P t187 = c[1] * t177;
        const P t188 = t184 - t187;
        const P t189 = t182 + t185;
        const P t190 = t184 + t187;
        // spectrum block of 9
        const P t191 = c[27] * t188;
        const P t192 = c[28] * t186;
        const P t193 = t191 - t192;
        const P t194 = c[2] * t190;
        const P t195 = c[3] * t189;
        const P t196 = t194 + t195;
        // spectrum block of 3
        const P t197 = t180 + t167;
        const P t198 = c[0] * t180;
        const P t199 = t167 - t198;
        const P t200 = c[1] * t179;
        const P t201 = t199 - t200;
        const P t202 = t199 + t200;
        // spectrum block of 3
        const P t203 = t193 + t173;
        const P t204 = c[0] * t193;
        const P t205 = t173 - t204;
        const P t206 = c[29] * t186;
        const P t207 = c[30] * t188;
        const P t208 = t206 + t207;
        const P t209 = t205 - t208;
        const P t210 = t205 + t208;
        // spectrum block of 3
        const P t211 = t196 + t174;
        const P t212 = c[0] * t196;
        const P t213 = t174 - t212;
        const P t214 = c[18] * t190;
        const P t215 = c[19] * t189;
        const P t216 = t214 - t215;
        const P t217 = t213 - t216;
        const P t218 = t213 + t216;
        // real block of 19, multiplier 3
        const P t219 = c[31] * t103;
        // spectrum block of 3, multiplier 2
        const P t220 = t219 - t139;
        const P t221 = c[0] * t139;
        const P t222 = t221 + t219;
        const P t223 = c[32] * t116;
        const P t224 = c[33] * t117;
        const P t225 = t223 - t224;
        const P t226 = t222 - t225;
        const P t227 = t222 + t225;
        // complex block of 3, multiplier 2
        const P t228 = t127 + t148;
        const P t229 = t151 - t130;
        const P t230 = t127 - t148;
        const P t231 = t130 + t151;
        const P t232 = t228 + t157;
        const P t233 = t229 - t160;
        const P t234 = c[0] * t228;
        const P t235 = t157 - t234;
        const P t236 = c[0] * t229;
        const P t237 = t160 + t236;
        const P t238 = c[1] * t231;
        const P t239 = t235 - t238;
        const P t240 = c[1] * t230;
        const P t241 = t237 + t240;
        const P t242 = t235 + t238;
        const P t243 = t240 - t237;
        // spectrum block of 9, multiplier 2
        const P t244 = c[2] * t243;
        const P t245 = c[3] * t242;
        const P t246 = t244 - t245;
        const P t247 = c[5] * t241;
        const P t248 = c[4] * t239;
        const P t249 = t247 - t248;
        // spectrum block of 3, multiplier 2
        const P t250 = t233 + t220;
        const P t251 = c[0] * t233;
        const P t252 = t220 - t251;
        const P t253 = c[1] * t232;
        const P t254 = t252 - t253;
        const P t255 = t252 + t253;
        // spectrum block of 3, multiplier 2
        const P t256 = t246 + t227;
        const P t257 = c[0] * t246;
        const P t258 = t227 - t257;
        const P t259 = c[19] * t242;
        const P t260 = c[18] * t243;
        const P t261 = t259 + t260;
        const P t262 = t258 - t261;
        const P t263 = t258 + t261;
        // spectrum block of 3, multiplier 2
        const P t264 = t249 + t226;
        const P t265 = c[0] * t249;
        const P t266 = t226 - t265;
        const P t267 = c[34] * t239;
        const P t268 = c[35] * t241;
        const P t269 = t267 + t268;
        const P t270 = t266 + t269;
        const P t271 = t266 - t269;
        const P x2_17 = io.in(2, 17);
        const P x14_5 = io.in(14, 5);
        // real block of 3, multiplier 2
        const P t272 = x2_17 + x14_5;
        const P t273 = x2_17 - x14_5;
        const P x41_35 = io.in(41, 35);
        const P t274 = t272 + x41_35;
        const P t275 = c[0] * t272;
        const P t276 = x41_35 - t275;
        const P x8_11 = io.in(8, 11);
        const P x56_20 = io.in(56, 20);
        // real block of 3, multiplier 2
        const P t277 = x8_11 + x56_20;
        const P t278 = x8_11 - x56_20;
        const P x50_26 = io.in(50, 26);
        const P t279 = t277 + x50_26;
        const P t280 = c[0] * t277;
        const P t281 = x50_26 - t280;
        const P x32_44 = io.in(32, 44);
        const P x53_23 = io.in(53, 23);
        // real block of 3, multiplier 2
        const P t282 = x32_44 + x53_23;
        const P t283 = x32_44 - x53_23;
        const P x29_47 = io.in(29, 47);
        const P t284 = t282 + x29_47;
        const P t285 = c[0] * t282;
        const P t286 = x29_47 - t285;
        // real block of 3, multiplier 2
        const P t287 = t279 + t284;
        const P t288 = t279 - t284;
        const P t289 = t287 + t274;
        const P t290 = c[0] * t287;
        const P t291 = t274 - t290;
        // real block of 9, multiplier 2
        const P t292 = c[2] * t281;
        // real block of 3, multiplier 2
        const P t293 = c[1] * t278;
        // real block of 9, multiplier 2
        const P t294 = c[3] * t293;
        const P t295 = t292 + t294;
        const P t296 = c[2] * t293;
        const P t297 = c[3] * t281;
        const P t298 = t296 - t297;
        // real block of 3, multiplier 2
        const P t299 = c[1] * t283;
        // real block of 9, multiplier 2
        const P t300 = c[4] * t299;
        const P t301 = c[5] * t286;
        const P t302 = t300 - t301;
        const P t303 = c[5] * t299;
        const P t304 = c[4] * t286;
        const P t305 = t303 + t304;
        // complex block of 3, multiplier 2
        const P t306 = t295 + t302;
        const P t307 = t298 - t305;
        const P t308 = t295 - t302;
        const P t309 = t298 + t305;
        const P t310 = t306 + t276;
        // real block of 3, multiplier 2
        const P t311 = c[1] * t273;
        // complex block of 3, multiplier 2
        const P t312 = t307 + t311;
        const P t313 = c[0] * t306;
        const P t314 = t276 - t313;
        const P t315 = c[0] * t307;
        const P t316 = t311 - t315;
        const P t317 = c[1] * t309;
        const P t318 = t314 + t317;
        const P t319 = c[1] * t308;
        const P t320 = t316 - t319;
        const P t321 = t314 - t317;
        const P t322 = t316 + t319;
        const V t323 = part<0>(t289);
        const V t324 = part<1>(t289);
        // real block of 2
        const V t325 = t323 + t324;
        const V t326 = t323 - t324;
        const P t327 = shuffled<0, 2>(t310, t312);
        const P t328 = shuffled<1, 3>(t310, t312);
        // complex block of 2
        const P t329 = t327 + t328;
        const P t330 = t327 - t328;
        const P t331 = shuffled<0, 2>(t318, t320);
        const P t332 = shuffled<1, 3>(t318, t320);
        // complex block of 2
        const P t333 = t331 + t332;
        const P t334 = shuffled<0, 3>(t331, t332);
        const P t335 = shuffled<0, 3>(t332, t331);
        const P t336 = t334 - t335;
        // real block of 3, multiplier 2
        const P t337 = c[1] * t288;
        const P t338 = shuffled<0, 2>(t291, t337);
        const P t339 = shuffled<1, 3>(t291, t337);
        // complex block of 2
        const P t340 = t338 + t339;
        const P t341 = t338 - t339;
        const P t342 = shuffled<0, 2>(t321, t322);
        const P t343 = shuffled<1, 3>(t321, t322);
        // complex block of 2
        const P t344 = t342 + t343;
        const P t345 = t342 - t343;
        const V x38 = io.in(38);
        // real block of 19, multiplier 3
        const V t346 = x38 + t325;
        const V t347 = c[20] * t325;
        const V t348 = x38 - t347;
        const P t349 = c[6] * t345;
        const P t350 = shuffled<1, 0>(t345);
        const P t351 = P(-c[7], c[7]) * t350;
        const P t352 = t349 + t351;
        const P t353 = P(-c[9], c[9]) * t329;
        const P t354 = shuffled<1, 0>(t329);
        const P t355 = c[8] * t354;
        const P t356 = t353 + t355;
        const P t357 = shuffled<1, 0>(t333);
        const P t358 = c[11] * t357;
        const P t359 = P(c[10], -c[10]) * t333;
        const P t360 = t358 + t359;
        const P t361 = c[12] * t336;
        const P t362 = shuffled<1, 0>(t336);
        const P t363 = P(c[13], -c[13]) * t362;
        const P t364 = t361 + t363;
        const P t365 = shuffled<0, 3>(t340, t341);
        const P t366 = P(c[23], c[21]) * t365;
        const P t367 = shuffled<1, 2>(t340, t341);
        const P t368 = P(c[24], c[22]) * t367;
        const P t369 = t366 + t368;
        const P t370 = c[14] * t330;
        const P t371 = shuffled<1, 0>(t330);
        const P t372 = P(-c[15], c[15]) * t371;
        const P t373 = t370 + t372;
        const P t374 = c[16] * t344;
        const P t375 = shuffled<1, 0>(t344);
        const P t376 = P(-c[17], c[17]) * t375;
        const P t377 = t374 + t376;
        const V t378 = c[31] * t326;
        const P t379 = joined(t348, t378);
        const P t380 = flipped<0, 1>(t369);
        // spectrum block of 3
        const P t381 = t379 + t380;
        const P t382 = P(-c[0], c[0]) * t369;
        const P t383 = t382 + t379;
        const P t384 = P(c[25], c[32]) * t367;
        const P t385 = P(c[26], c[33]) * t365;
        const P t386 = t384 - t385;
        const P t387 = t383 - t386;
        const P t388 = t383 + t386;
        const P t389 = shuffled<1, 2>(t377, t352);
        const P t390 = shuffled<1, 2>(t360, t364);
        const P t391 = flipped<1, 0>(t390);
        // complex block of 3
        const P t392 = t389 + t391;
        const P t393 = shuffled<0, 3>(t377, t364);
        const P t394 = shuffled<0, 3>(t360, t352);
        const P t395 = flipped<0, 1>(t394);
        const P t396 = t393 + t395;
        const P t397 = t389 - t391;
        const P t398 = t393 - t395;
        const P t399 = shuffled<1, 2>(t356, t373);
        const P t400 = flipped<1, 0>(t399);
        const P t401 = t392 + t400;
        const P t402 = shuffled<0, 3>(t356, t373);
        const P t403 = flipped<0, 1>(t402);
        const P t404 = t396 + t403;
        const P t405 = P(c[0], -c[0]) * t392;
        const P t406 = t399 + t405;
        const P t407 = P(-c[0], c[0]) * t396;
        const P t408 = t402 + t407;
        const P t409 = flipped<1, 0>(t406);
        const P t410 = P(c[1], -c[1]) * t398;
        const P t411 = t409 + t410;
        const P t412 = P(-c[1], c[1]) * t397;
        const P t413 = t408 + t412;
        const P t414 = flipped<0, 1>(t410);
        const P t415 = t406 + t414;
        const P t416 = shuffled<0, 3>(t408, t412);
        const P t417 = shuffled<0, 3>(t412, t408);
        const P t418 = t416 - t417;
        const P t419 = shuffled<0, 3>(t413, t418);
        // spectrum block of 9
        const P t420 = P(c[27], c[2]) * t419;
        const P t421 = shuffled<0, 3>(t411, t415);
        const P t422 = P(c[28], c[3]) * t421;
        const P t423 = t420 - t422;
        const P t424 = shuffled<0, 3>(t418, t413);
        const P t425 = P(c[2], c[5]) * t424;
        const P t426 = shuffled<0, 3>(t415, t411);
        const P t427 = P(c[3], -c[4]) * t426;
        const P t428 = t425 + t427;
        // spectrum block of 3
        const P t429 = t404 + t381;
        const P t430 = c[0] * t404;
        const P t431 = t381 - t430;
        const P t432 = c[1] * t401;
        const P t433 = t431 - t432;
        const P t434 = t431 + t432;
        const P t435 = shuffled<0, 3>(t387, t388);
        // spectrum block of 3
        const P t436 = t423 + t435;
        const P t437 = c[0] * t423;
        const P t438 = t435 - t437;
        const P t439 = P(c[29], c[19]) * t421;
        const P t440 = P(c[30], c[18]) * t419;
        const P t441 = t439 + t440;
        const P t442 = t438 - t441;
        const P t443 = t438 + t441;
        const P t444 = shuffled<0, 3>(t388, t387);
        // spectrum block of 3
        const P t445 = t428 + t444;
        const P t446 = c[0] * t428;
        const P t447 = t444 - t446;
        const P t448 = shuffled<0, 3>(t424, t426);
        const P t449 = P(c[18], c[34]) * t448;
        const P t450 = shuffled<0, 3>(t426, t424);
        const P t451 = P(-c[19], c[35]) * t450;
        const P t452 = t449 + t451;
        const P t453 = flipped<1, 0>(t452);
        const P t454 = t447 + t453;
        const P t455 = t447 - t453;
        const V t456 = part<1>(t122);
        // real block of 3
        const V t457 = t456 + t346;
        const V t458 = t456 - t346;
        const V t459 = part<0>(t122);
        const V t460 = t457 + t459;
        io.out(0, t460);
        const V t461 = c[0] * t457;
        const V t462 = t459 - t461;
        const P t463 = shuffled<1, 3>(t197, t250);
        // complex block of 3
        const P t464 = t463 + t429;
        const P t465 = t463 - t429;
        const P t466 = shuffled<0, 2>(t197, t250);
        const P t467 = t464 + t466;
        const P t468 = c[0] * t464;
        const P t469 = t466 - t468;
        const P t470 = P(-c[1], c[1]) * t465;
        const P t471 = shuffled<1, 0>(t470);
        const P t472 = t469 + t471;
        const P t473 = t469 - t471;
        const P t474 = shuffled<1, 3>(t218, t263);
        const P t475 = shuffled<0, 3>(t455, t443);
        // complex block of 3
        const P t476 = t474 + t475;
        const P t477 = shuffled<0, 3>(t474, t475);
        const P t478 = shuffled<0, 3>(t475, t474);
        const P t479 = t477 - t478;
        const P t480 = shuffled<0, 2>(t218, t263);
        const P t481 = t476 + t480;
        const P t482 = P(-c[0], c[0]) * t476;
        const P t483 = flipped<0, 1>(t480);
        const P t484 = t482 + t483;
        const P t485 = P(-c[1], c[1]) * t479;
        const P t486 = shuffled<1, 0>(t485);
        const P t487 = t484 + t486;
        const P t488 = t484 - t486;
        const P t489 = shuffled<1, 3>(t217, t262);
        const P t490 = shuffled<0, 3>(t454, t442);
        // complex block of 3
        const P t491 = t489 + t490;
        const P t492 = shuffled<0, 3>(t489, t490);
        const P t493 = shuffled<0, 3>(t490, t489);
        const P t494 = t492 - t493;
        const P t495 = shuffled<0, 2>(t217, t262);
        const P t496 = t491 + t495;
        const P t497 = P(-c[0], c[0]) * t491;
        const P t498 = flipped<0, 1>(t495);
        const P t499 = t497 + t498;
        const P t500 = P(-c[1], c[1]) * t494;
        const P t501 = shuffled<1, 0>(t500);
        const P t502 = t499 + t501;
        const P t503 = t499 - t501;
        const P t504 = shuffled<1, 3>(t210, t270);
        const P t505 = shuffled<0, 3>(t443, t454);
        // complex block of 3
        const P t506 = t504 + t505;
        const P t507 = t504 - t505;
        const P t508 = shuffled<0, 2>(t210, t270);
        const P t509 = t506 + t508;
        const P t510 = c[0] * t506;
        const P t511 = t508 - t510;
        const P t512 = P(-c[1], c[1]) * t507;
        const P t513 = shuffled<1, 0>(t512);
        const P t514 = t511 + t513;
        const P t515 = t511 - t513;
        const P t516 = shuffled<1, 3>(t211, t256);
        const P t517 = shuffled<0, 3>(t445, t436);
        // complex block of 3
        const P t518 = t516 + t517;
        const P t519 = t516 - t517;
        const P t520 = shuffled<0, 2>(t211, t256);
        const P t521 = t518 + t520;
        const P t522 = c[0] * t518;
        const P t523 = t520 - t522;
        const P t524 = P(-c[1], c[1]) * t519;
        const P t525 = shuffled<1, 0>(t524);
        const P t526 = t523 + t525;
        const P t527 = t523 - t525;
        const P t528 = shuffled<1, 3>(t209, t264);
        const P t529 = shuffled<0, 3>(t442, t445);
        // complex block of 3
        const P t530 = t528 + t529;
        const P t531 = t528 - t529;
        const P t532 = shuffled<0, 2>(t209, t264);
        const P t533 = t530 + t532;
        const P t534 = c[0] * t530;
        const P t535 = t532 - t534;
        const P t536 = P(-c[1], c[1]) * t531;
        const P t537 = shuffled<1, 0>(t536);
        const P t538 = t535 + t537;
        const P t539 = t535 - t537;
        const P t540 = shuffled<1, 3>(t201, t254);
        // complex block of 3
        const P t541 = t540 + t433;
        const P t542 = t540 - t433;
        const P t543 = shuffled<0, 2>(t201, t254);
        const P t544 = t541 + t543;
        const P t545 = c[0] * t541;
        const P t546 = t543 - t545;
        const P t547 = P(-c[1], c[1]) * t542;
        const P t548 = shuffled<1, 0>(t547);
        const P t549 = t546 + t548;
        const P t550 = t546 - t548;
        const P t551 = shuffled<1, 3>(t202, t255);
        // complex block of 3
        const P t552 = t551 + t434;
        const P t553 = shuffled<0, 3>(t551, t434);
        const P t554 = shuffled<0, 3>(t434, t551);
        const P t555 = t553 - t554;
        const P t556 = shuffled<0, 2>(t202, t255);
        const P t557 = t552 + t556;
        const P t558 = P(-c[0], c[0]) * t552;
        const P t559 = flipped<0, 1>(t556);
        const P t560 = t558 + t559;
        const P t561 = P(-c[1], c[1]) * t555;
        const P t562 = shuffled<1, 0>(t561);
        const P t563 = t560 + t562;
        const P t564 = t560 - t562;
        const P t565 = shuffled<1, 3>(t203, t271);
        const P t566 = shuffled<0, 3>(t436, t455);
        // complex block of 3
        const P t567 = t565 + t566;
        const P t568 = t565 - t566;
        const P t569 = shuffled<0, 2>(t203, t271);
        const P t570 = t567 + t569;
        const P t571 = c[0] * t567;
        const P t572 = t569 - t571;
        const P t573 = P(-c[1], c[1]) * t568;
        const P t574 = shuffled<1, 0>(t573);
        const P t575 = t572 + t574;
        const P t576 = t572 - t574;
        const V t577 = part<0>(t467);
        const V t578 = part<1>(t467);
        // output stage
        const V t579 = t577 - t578;
        io.out(3, t579);
        const V t580 = t577 + t578;
        io.out(54, t580);
        const P t581 = shuffled<0, 2>(t575, t576);
        const P t582 = shuffled<1, 3>(t575, t576);
        const P t583 = t581 + t582;
        io.out(11, 49, t583);
        const P t584 = t581 - t582;
        io.out(46, 8, t584);
        const P t585 = shuffled<0, 2>(t488, t496);
        const P t586 = shuffled<1, 3>(t488, t496);
        const P t587 = t585 + t586;
        io.out(13, 9, t587);
        const P t588 = t585 - t586;
        io.out(44, 48, t588);
        const P t589 = shuffled<0, 2>(t515, t521);
        const P t590 = shuffled<1, 3>(t515, t521);
        const P t591 = t589 - t590;
        io.out(50, 15, t591);
        const P t592 = t589 + t590;
        io.out(7, 42, t592);
        const P t593 = shuffled<0, 2>(t549, t550);
        const P t594 = shuffled<1, 3>(t549, t550);
        const P t595 = t593 + t594;
        io.out(17, 55, t595);
        const P t596 = t593 - t594;
        io.out(40, 2, t596);
        // real block of 3
        const V t597 = c[1] * t458;
        // output stage
        const V t598 = t462 + t597;
        io.out(19, t598);
        const V t599 = t462 - t597;
        io.out(38, t599);
        const P t600 = shuffled<0, 2>(t533, t538);
        const P t601 = shuffled<1, 3>(t533, t538);
        const P t602 = t600 + t601;
        io.out(39, 20, t602);
        const P t603 = t600 - t601;
        io.out(18, 37, t603);
        const P t604 = shuffled<0, 2>(t539, t544);
        const P t605 = shuffled<1, 3>(t539, t544);
        const P t606 = t604 - t605;
        io.out(56, 21, t606);
        const P t607 = t604 + t605;
        io.out(1, 36, t607);
        const P t608 = shuffled<0, 2>(t472, t473);
        const P t609 = shuffled<1, 3>(t472, t473);
        const P t610 = t608 - t609;
        io.out(22, 41, t610);
        const P t611 = t608 + t609;
        io.out(35, 16, t611);
        const P t612 = shuffled<0, 2>(t526, t527);
        const P t613 = shuffled<1, 3>(t526, t527);
        const P t614 = t612 + t613;
        io.out(23, 4, t614);
        const P t615 = t612 - t613;
        io.out(34, 53, t615);
        const P t616 = shuffled<0, 2>(t557, t563);
        const P t617 = shuffled<1, 3>(t557, t563);
        const P t618 = t616 + t617;
        io.out(24, 14, t618);
        const P t619 = t616 - t617;
        io.out(33, 43, t619);
        const P t620 = shuffled<0, 2>(t481, t487);
        const P t621 = shuffled<1, 3>(t481, t487);
        const P t622 = t620 - t621;
        io.out(51, 25, t622);
        const P t623 = t620 + t621;
        io.out(6, 32, t623);
        const P t624 = shuffled<0, 2>(t509, t514);
        const P t625 = shuffled<1, 3>(t509, t514);
        const P t626 = t624 + t625;
        io.out(45, 26, t626);
        const P t627 = t624 - t625;
        io.out(12, 31, t627);
        const P t628 = shuffled<0, 2>(t564, t570);
        const P t629 = shuffled<1, 3>(t564, t570);
        const P t630 = t628 - t629;
        io.out(5, 27, t630);
        const P t631 = t628 + t629;
        io.out(52, 30, t631);
        const P t632 = shuffled<0, 2>(t502, t503);
        const P t633 = shuffled<1, 3>(t502, t503);
        const P t634 = t632 - t633;
        io.out(28, 47, t634);
        const P t635 = t632 + t633;
        io.out(29, 10, t635);
    }
};

}  // namespace zulg
