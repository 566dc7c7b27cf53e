// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 38.
// Forward DFT of 38 real points, prime-factor 19, 2; two lanes to a register.
// 92 sums, 92 differences, 108 products of registers, which do the 620 steps of the graph, those with
// `scale` included; 25 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<38> {
    static constexpr int steps = 620;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.25181241707905544,  // c[6]: -P[1] of 19
        0.4137129534343489,  // c[7]: -Q[1] of 19
        0.4798788450919296,  // c[8]: P[2] of 19
        0.06545376435166843,  // c[9]: Q[2] of 19
        0.37568683358927524,  // c[10]: P[4] of 19
        0.3056588037374879,  // c[11]: -Q[4] of 19
        0.4195932163702218,  // c[12]: P[5] of 19
        0.24188723407956064,  // c[13]: Q[5] of 19
        0.3873109834397322,  // c[14]: -P[7] of 19
        0.2907887606863707,  // c[15]: -Q[7] of 19
        0.007654694426448971,  // c[16]: -Q[8] of 19
        0.4842616099669739,  // c[17]: -P[8] of 19
        0.1503837331804353,  // c[18]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[19]: -sin 2 pi 2/3 times sin 2 pi 2/9
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
        0.29619813272602386,  // c[34]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[35]: -sin 2 pi 2/3 times -cos 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x14_33 = io.in(14, 33);
        const P x22_3 = io.in(22, 3);
        // real block of 3, multiplier 2
        const P t0 = x14_33 + x22_3;
        const P t1 = x14_33 - x22_3;
        const P x2_21 = io.in(2, 21);
        const P t2 = t0 + x2_21;
        const P t3 = c[0] * t0;
        const P t4 = x2_21 - t3;
        const P x18_37 = io.in(18, 37);
        const P x12_31 = io.in(12, 31);
        // real block of 3, multiplier 2
        const P t5 = x18_37 + x12_31;
        const P t6 = x18_37 - x12_31;
        const P x8_27 = io.in(8, 27);
        const P t7 = t5 + x8_27;
        const P t8 = c[0] * t5;
        const P t9 = x8_27 - t8;
        const P x34_15 = io.in(34, 15);
        const P x10_29 = io.in(10, 29);
        // real block of 3, multiplier 2
        const P t10 = x34_15 + x10_29;
        const P t11 = x34_15 - x10_29;
        const P x32_13 = io.in(32, 13);
        const P t12 = t10 + x32_13;
        const P t13 = c[0] * t10;
        const P t14 = x32_13 - t13;
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
        const P x24_5 = io.in(24, 5);
        const P x16_35 = io.in(16, 35);
        // real block of 3, multiplier 2
        const P t51 = x24_5 + x16_35;
        const P t52 = x24_5 - x16_35;
        const P x36_17 = io.in(36, 17);
        const P t53 = t51 + x36_17;
        const P t54 = c[0] * t51;
        const P t55 = x36_17 - t54;
        const P x20_1 = io.in(20, 1);
        const P x26_7 = io.in(26, 7);
        // real block of 3, multiplier 2
        const P t56 = x20_1 + x26_7;
        const P t57 = x20_1 - x26_7;
        const P x30_11 = io.in(30, 11);
        const P t58 = t56 + x30_11;
        const P t59 = c[0] * t56;
        const P t60 = x30_11 - t59;
        const P x4_23 = io.in(4, 23);
        const P x28_9 = io.in(28, 9);
        // real block of 3, multiplier 2
        const P t61 = x4_23 + x28_9;
        const P t62 = x4_23 - x28_9;
        const P x6_25 = io.in(6, 25);
        const P t63 = t61 + x6_25;
        const P t64 = c[0] * t61;
        const P t65 = x6_25 - t64;
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
        // real block of 19, multiplier 2
        const P t122 = x0_19 + t102;
        const P t123 = c[20] * t102;
        const P t124 = x0_19 - t123;
        const P t125 = c[6] * t120;
        const P t126 = c[7] * t121;
        const P t127 = t125 + t126;
        const P t128 = c[6] * t121;
        const P t129 = c[7] * t120;
        const P t130 = t128 - t129;
        const P t131 = c[8] * t104;
        const P t132 = c[9] * t105;
        const P t133 = t131 - t132;
        const P t134 = c[8] * t105;
        const P t135 = c[9] * t104;
        const P t136 = t134 + t135;
        const P t137 = c[21] * t117;
        const P t138 = c[22] * t116;
        const P t139 = t137 + t138;
        const P t140 = c[10] * t108;
        const P t141 = c[11] * t109;
        const P t142 = t140 - t141;
        const P t143 = c[10] * t109;
        const P t144 = c[11] * t108;
        const P t145 = t143 + t144;
        const P t146 = c[12] * t110;
        const P t147 = c[13] * t111;
        const P t148 = t146 + t147;
        const P t149 = c[13] * t110;
        const P t150 = c[12] * t111;
        const P t151 = t149 - t150;
        const P t152 = c[23] * t112;
        const P t153 = c[24] * t115;
        const P t154 = t152 + t153;
        const P t155 = c[14] * t106;
        const P t156 = c[15] * t107;
        const P t157 = t155 + t156;
        const P t158 = c[14] * t107;
        const P t159 = c[15] * t106;
        const P t160 = t158 - t159;
        const P t161 = c[16] * t119;
        const P t162 = c[17] * t118;
        const P t163 = t161 - t162;
        const P t164 = c[17] * t119;
        const P t165 = c[16] * t118;
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
        const P t175 = t145 - t166;
        const P t176 = t163 + t142;
        const P t177 = t166 + t145;
        const P t178 = t163 - t142;
        const P t179 = t175 + t136;
        const P t180 = t176 + t133;
        const P t181 = c[0] * t175;
        const P t182 = t136 - t181;
        const P t183 = c[0] * t176;
        const P t184 = t133 - t183;
        const P t185 = c[1] * t178;
        const P t186 = t182 + t185;
        const P t187 = c[1] * t177;
        const P t188 = t184 + t187;
        const P t189 = t182 - t185;
        const P t190 = t184 - t187;
        // spectrum block of 9
        const P t191 = c[27] * t188;
        const P t192 = c[28] * t186;
        const P t193 = t191 - t192;
        const P t194 = c[2] * t190;
        const P t195 = c[3] * t189;
        const P t196 = t194 - t195;
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
        const P t214 = c[18] * t189;
        const P t215 = c[19] * t190;
        const P t216 = t214 + t215;
        const P t217 = t213 - t216;
        const P t218 = t213 + t216;
        // real block of 19, multiplier 2
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
        const P t229 = t130 + t151;
        const P t230 = t148 - t127;
        const P t231 = t130 - t151;
        const P t232 = t228 + t157;
        const P t233 = t229 + t160;
        const P t234 = c[0] * t228;
        const P t235 = t234 - t157;
        const P t236 = c[0] * t229;
        const P t237 = t160 - t236;
        const P t238 = c[1] * t231;
        const P t239 = t235 + t238;
        const P t240 = c[1] * t230;
        const P t241 = t237 - t240;
        const P t242 = t235 - t238;
        const P t243 = t237 + t240;
        // spectrum block of 9, multiplier 2
        const P t244 = c[2] * t243;
        const P t245 = c[3] * t242;
        const P t246 = t244 - t245;
        const P t247 = c[5] * t241;
        const P t248 = c[4] * t239;
        const P t249 = t247 + t248;
        // spectrum block of 3, multiplier 2
        const P t250 = t233 + t220;
        const P t251 = c[0] * t233;
        const P t252 = t220 - t251;
        const P t253 = c[1] * t232;
        const P t254 = t252 + t253;
        const P t255 = t252 - t253;
        // spectrum block of 3, multiplier 2
        const P t256 = t246 + t227;
        const P t257 = c[0] * t246;
        const P t258 = t227 - t257;
        const P t259 = c[18] * t242;
        const P t260 = c[19] * t243;
        const P t261 = t259 + t260;
        const P t262 = t258 - t261;
        const P t263 = t258 + t261;
        // spectrum block of 3, multiplier 2
        const P t264 = t226 - t249;
        const P t265 = c[0] * t249;
        const P t266 = t265 + t226;
        const P t267 = c[34] * t241;
        const P t268 = c[35] * t239;
        const P t269 = t267 - t268;
        const P t270 = t266 - t269;
        const P t271 = t266 + t269;
        const V t272 = part<0>(t122);
        const V t273 = part<1>(t122);
        // real block of 2
        const V t274 = t272 + t273;
        io.re(0, t274);
        const V t275 = t272 - t273;
        io.re(19, t275);
        const P t276 = shuffled<0, 2>(t197, t250);
        const P t277 = shuffled<1, 3>(t197, t250);
        // complex block of 2
        const P t278 = t276 + t277;
        io.pair(2, t278);
        const P t279 = t276 - t277;
        io.pair(17, negated<0, 1>(t279));
        const P t280 = shuffled<0, 2>(t218, t263);
        const P t281 = shuffled<1, 3>(t218, t263);
        // complex block of 2
        const P t282 = t280 + t281;
        io.pair(4, negated<0, 1>(t282));
        const P t283 = shuffled<0, 3>(t280, t281);
        const P t284 = shuffled<0, 3>(t281, t280);
        const P t285 = t283 - t284;
        io.pair(15, negated<0, 1>(t285));
        const P t286 = shuffled<0, 2>(t217, t262);
        const P t287 = shuffled<1, 3>(t217, t262);
        // complex block of 2
        const P t288 = t286 + t287;
        io.pair(6, negated<0, 1>(t288));
        const P t289 = shuffled<0, 3>(t286, t287);
        const P t290 = shuffled<0, 3>(t287, t286);
        const P t291 = t289 - t290;
        io.pair(13, negated<0, 1>(t291));
        const P t292 = shuffled<0, 2>(t210, t270);
        const P t293 = shuffled<1, 3>(t210, t270);
        // complex block of 2
        const P t294 = t292 + t293;
        io.pair(8, t294);
        const P t295 = t292 - t293;
        io.pair(11, negated<0, 1>(t295));
        const P t296 = shuffled<0, 2>(t211, t256);
        const P t297 = shuffled<1, 3>(t211, t256);
        // complex block of 2
        const P t298 = t296 + t297;
        io.pair(10, t298);
        const P t299 = t296 - t297;
        io.pair(9, negated<0, 1>(t299));
        const P t300 = shuffled<0, 2>(t209, t264);
        const P t301 = shuffled<1, 3>(t209, t264);
        // complex block of 2
        const P t302 = t300 + t301;
        io.pair(12, t302);
        const P t303 = t300 - t301;
        io.pair(7, negated<0, 1>(t303));
        const P t304 = shuffled<0, 2>(t201, t254);
        const P t305 = shuffled<1, 3>(t201, t254);
        // complex block of 2
        const P t306 = t304 + t305;
        io.pair(14, t306);
        const P t307 = t304 - t305;
        io.pair(5, negated<0, 1>(t307));
        const P t308 = shuffled<0, 2>(t202, t255);
        const P t309 = shuffled<1, 3>(t202, t255);
        // complex block of 2
        const P t310 = t308 + t309;
        io.pair(16, negated<0, 1>(t310));
        const P t311 = shuffled<0, 3>(t308, t309);
        const P t312 = shuffled<0, 3>(t309, t308);
        const P t313 = t311 - t312;
        io.pair(3, negated<0, 1>(t313));
        const P t314 = shuffled<0, 2>(t203, t271);
        const P t315 = shuffled<1, 3>(t203, t271);
        // complex block of 2
        const P t316 = t314 + t315;
        io.pair(18, t316);
        const P t317 = t314 - t315;
        io.pair(1, negated<0, 1>(t317));
    }
};

}  // namespace zulg
