// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 37.
// Hartley transform of 37 points, form I.
// 219 additions, 219 subtractions, 236 multiplications (273 with `scale`); 52 constants; 67 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<37> {
    static constexpr int steps = 711;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.766044443118978,  // c[4]: cos 2 pi 4/36
        0.6427876096865394,  // c[5]: sin 2 pi 4/36
        0.984807753012208,  // c[6]: sin 2 pi 2/9
        0.17364817766693036,  // c[7]: cos 2 pi 2/9
        0.3103516055691282,  // c[8]: P[4] of 37
        0.13371391769319224,  // c[9]: Q[4] of 37
        0.24397448521981976,  // c[10]: P[8] of 37
        0.2338246809597342,  // c[11]: Q[8] of 37
        0.10416787634306994,  // c[12]: P[16] of 37
        0.32147563578344845,  // c[13]: Q[16] of 37
        0.17138312220807392,  // c[14]: P[14] of 37
        0.2912479292396942,  // c[15]: Q[14] of 37
        0.19211188317920547,  // c[16]: P[2] of 37
        0.27801178968802176,  // c[17]: Q[2] of 37
        0.22496483527968195,  // c[18]: -P[10] of 37
        0.25216731301218065,  // c[19]: Q[10] of 37
        0.10832934393017396,  // c[20]: -Q[3] of 37
        0.3200973041246296,  // c[21]: -P[3] of 37
        0.22329890434335598,  // c[22]: Q[7] of 37
        0.25364370716273305,  // c[23]: -P[7] of 37
        0.2870996561549517,  // c[24]: -Q[11] of 37
        0.1782451073659696,  // c[25]: -P[11] of 37
        0.2349547827807796,  // c[26]: Q[5] of 37
        0.24288635390370164,  // c[27]: -P[5] of 37
        0.026690240834250763,  // c[28]: -Q[17] of 37
        0.3368755881752301,  // c[29]: -P[17] of 37
        0.29019472587628237,  // c[30]: P[1] of 37
        0.1731604803001738,  // c[31]: -Q[1] of 37
        0.2578482977363278,  // c[32]: -Q[9] of 37
        0.21843027770589768,  // c[33]: P[9] of 37
        0.15947907926271018,  // c[34]: P[15] of 37
        0.2979328013860101,  // c[35]: Q[15] of 37
        0.3301590368394409,  // c[36]: P[13] of 37
        0.07205928987611672,  // c[37]: -Q[13] of 37
        0.29619813272602386,  // c[38]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[39]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.6634139481689384,  // c[40]: -sin 2 pi 2/3 times cos 2 pi 4/36
        0.5566703992264194,  // c[41]: -sin 2 pi 2/3 times sin 2 pi 4/36
        0.12424540759822993,  // c[42]: P[12] of 37
        0.027777777777777776,  // c[43]: 1/36
        0.3142620078134601,  // c[44]: -Q[12] of 37
        0.07684148255397624,  // c[45]: -P[6] of 37
        0.3290788923998385,  // c[46]: Q[6] of 37
        0.10759967928361923,  // c[47]: -sin 2 pi 2/3 times P[12] of 37
        0.2721588822107602,  // c[48]: -sin 2 pi 2/3 times -Q[12] of 37
        0.1689656258416172,  // c[49]: beta of 37
        0.06654667595620217,  // c[50]: -sin 2 pi 2/3 times -P[6] of 37
        0.284990680667506,  // c[51]: -sin 2 pi 2/3 times Q[6] of 37
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x36 = io.in(36);
        const V t0 = x1 + x36;
        const V t1 = x1 - x36;
        const V x6 = io.in(6);
        const V x31 = io.in(31);
        const V t2 = x6 - x31;
        const V x8 = io.in(8);
        const V x29 = io.in(29);
        const V t3 = x8 + x29;
        const V x10 = io.in(10);
        const V x27 = io.in(27);
        const V t4 = x10 + x27;
        const V t5 = x10 - x27;
        const V x11 = io.in(11);
        const V x26 = io.in(26);
        const V t6 = x11 + x26;
        const V t7 = x11 - x26;
        const V x14 = io.in(14);
        const V x23 = io.in(23);
        const V t8 = x14 + x23;
        const V t9 = x14 - x23;
        const V t10 = x6 + x31;
        const V t11 = x8 - x29;
        // real block of 2
        const V t12 = t4 + t8;
        const V t13 = t4 - t8;
        // real block of 2
        const V t14 = t6 + t3;
        const V t15 = t6 - t3;
        // real block of 3
        const V t16 = t5 - t7;
        // real block of 3
        const V t17 = t2 - t9;
        const V t18 = t2 + t9;
        // real block of 2
        const V t19 = t0 + t10;
        const V t20 = t0 - t10;
        // real block of 3, multiplier 2
        const V t21 = t12 + t14;
        const V t22 = c[0] * t21;
        const V t23 = t12 - t14;
        // real block of 3, multiplier 2
        const V t24 = t13 + t15;
        const V t25 = c[0] * t24;
        const V t26 = t13 - t15;
        // real block of 3
        const V t27 = t5 + t7;
        const V t28 = c[1] * t27;
        const V t29 = c[0] * t16;
        const V t30 = t1 - t29;
        // real block of 3
        const V t31 = c[0] * t17;
        const V t32 = t11 - t31;
        // skew block of 18
        const V t33 = c[1] * t32;
        const V t34 = c[0] * t32;
        // real block of 3
        const V t35 = c[1] * t18;
        // skew block of 18
        const V t36 = c[0] * t35;
        const V t37 = c[1] * t35;
        // input stage
        const V x2 = io.in(2);
        const V x35 = io.in(35);
        const V t38 = x2 + x35;
        const V x9 = io.in(9);
        const V x28 = io.in(28);
        const V t39 = x9 + x28;
        const V t40 = x9 - x28;
        const V x12 = io.in(12);
        const V x25 = io.in(25);
        const V t41 = x12 + x25;
        const V t42 = x12 - x25;
        const V x15 = io.in(15);
        const V x22 = io.in(22);
        const V t43 = x15 + x22;
        const V t44 = x15 - x22;
        const V x16 = io.in(16);
        const V x21 = io.in(21);
        const V t45 = x16 + x21;
        const V x17 = io.in(17);
        const V x20 = io.in(20);
        const V t46 = x17 + x20;
        const V t47 = x17 - x20;
        const V t48 = x2 - x35;
        const V t49 = x16 - x21;
        // real block of 2
        const V t50 = t45 + t43;
        const V t51 = t45 - t43;
        // real block of 2
        const V t52 = t41 + t38;
        // real block of 2
        const V t53 = t39 + t46;
        // real block of 3, multiplier 2
        const V t54 = t52 + t53;
        // real block of 2
        const V t55 = t41 - t38;
        // real block of 2
        const V t56 = t39 - t46;
        // real block of 3, multiplier 2
        const V t57 = t55 + t56;
        // real block of 3
        const V t58 = t44 - t47;
        const V t59 = c[0] * t58;
        const V t60 = t47 + t44;
        // real block of 3
        const V t61 = t42 + t40;
        const V t62 = c[0] * t61;
        const V t63 = t42 - t40;
        // real block of 3, multiplier 2
        const V t64 = t52 - t53;
        const V t65 = c[1] * t64;
        // real block of 9, multiplier 2
        const V t66 = c[2] * t65;
        const V t67 = c[3] * t65;
        // real block of 3, multiplier 2
        const V t68 = t54 + t50;
        const V t69 = c[0] * t54;
        const V t70 = t50 - t69;
        // real block of 9, multiplier 2
        const V t71 = c[3] * t70;
        const V t72 = c[2] * t70;
        // real block of 3, multiplier 2
        const V t73 = t55 - t56;
        const V t74 = c[1] * t73;
        // real block of 9, multiplier 2
        const V t75 = c[2] * t74;
        const V t76 = c[3] * t74;
        // real block of 3, multiplier 2
        const V t77 = t57 + t51;
        const V t78 = c[0] * t57;
        const V t79 = t51 - t78;
        // real block of 9, multiplier 2
        const V t80 = c[3] * t79;
        const V t81 = c[2] * t79;
        // real block of 3
        const V t82 = t58 + t48;
        // skew block of 6
        const V t83 = c[1] * t82;
        const V t84 = c[0] * t82;
        // real block of 3
        const V t85 = t48 - t59;
        // skew block of 18
        const V t86 = c[6] * t85;
        const V t87 = c[7] * t85;
        // real block of 3
        const V t88 = c[1] * t60;
        // skew block of 18
        const V t89 = c[7] * t88;
        const V t90 = c[6] * t88;
        const V t91 = t86 - t89;
        const V t92 = t90 + t87;
        // real block of 3
        const V t93 = t61 + t49;
        // skew block of 6
        const V t94 = c[0] * t93;
        const V t95 = c[1] * t93;
        // real block of 3
        const V t96 = t49 - t62;
        // skew block of 18
        const V t97 = c[4] * t96;
        const V t98 = c[5] * t96;
        // real block of 3
        const V t99 = c[1] * t63;
        // skew block of 18
        const V t100 = c[5] * t99;
        const V t101 = c[4] * t99;
        const V t102 = t97 + t100;
        const V t103 = t101 - t98;
        // input stage
        const V x3 = io.in(3);
        const V x34 = io.in(34);
        const V t104 = x3 + x34;
        const V t105 = x3 - x34;
        const V x4 = io.in(4);
        const V x33 = io.in(33);
        const V t106 = x4 + x33;
        const V x5 = io.in(5);
        const V x32 = io.in(32);
        const V t107 = x5 + x32;
        const V x7 = io.in(7);
        const V x30 = io.in(30);
        const V t108 = x7 + x30;
        const V t109 = x7 - x30;
        const V x13 = io.in(13);
        const V x24 = io.in(24);
        const V t110 = x13 + x24;
        const V t111 = x13 - x24;
        const V x18 = io.in(18);
        const V x19 = io.in(19);
        const V t112 = x18 + x19;
        const V t113 = x18 - x19;
        const V t114 = x4 - x33;
        const V t115 = x5 - x32;
        // real block of 2
        const V t116 = t106 + t110;
        const V t117 = t106 - t110;
        // real block of 2
        const V t118 = t104 + t112;
        // real block of 2
        const V t119 = t108 + t107;
        // real block of 3, multiplier 2
        const V t120 = t118 + t119;
        // real block of 2
        const V t121 = t104 - t112;
        // real block of 2
        const V t122 = t108 - t107;
        // real block of 3, multiplier 2
        const V t123 = t121 + t122;
        // real block of 3
        const V t124 = t105 - t109;
        const V t125 = c[0] * t124;
        const V t126 = t105 + t109;
        // real block of 3
        const V t127 = t113 - t111;
        const V t128 = c[0] * t127;
        const V t129 = t111 + t113;
        // real block of 3, multiplier 2
        const V t130 = t118 - t119;
        const V t131 = c[1] * t130;
        // real block of 9, multiplier 2
        const V t132 = c[6] * t131;
        const V t133 = c[7] * t131;
        // real block of 3, multiplier 2
        const V t134 = t120 + t116;
        const V t135 = c[0] * t120;
        const V t136 = t116 - t135;
        // real block of 9, multiplier 2
        const V t137 = c[7] * t136;
        const V t138 = c[6] * t136;
        // real block of 3, multiplier 2
        const V t139 = t121 - t122;
        const V t140 = c[1] * t139;
        // real block of 9, multiplier 2
        const V t141 = c[6] * t140;
        const V t142 = c[7] * t140;
        // real block of 3, multiplier 2
        const V t143 = t123 + t117;
        const V t144 = c[0] * t123;
        const V t145 = t117 - t144;
        // real block of 9, multiplier 2
        const V t146 = c[7] * t145;
        const V t147 = c[6] * t145;
        // real block of 3
        const V t148 = t124 + t114;
        // skew block of 6
        const V t149 = c[0] * t148;
        const V t150 = c[1] * t148;
        // real block of 3
        const V t151 = t114 - t125;
        // skew block of 18
        const V t152 = c[3] * t151;
        const V t153 = c[2] * t151;
        // real block of 3
        const V t154 = c[1] * t126;
        // skew block of 18
        const V t155 = c[2] * t154;
        const V t156 = c[3] * t154;
        const V t157 = t152 + t155;
        const V t158 = t156 - t153;
        // real block of 3
        const V t159 = t127 - t115;
        // skew block of 6
        const V t160 = c[1] * t159;
        const V t161 = c[0] * t159;
        // real block of 3
        const V t162 = t115 + t128;
        // skew block of 18
        const V t163 = c[5] * t162;
        const V t164 = c[4] * t162;
        // real block of 3
        const V t165 = c[1] * t129;
        // skew block of 18
        const V t166 = c[4] * t165;
        const V t167 = c[5] * t165;
        const V t168 = t163 + t166;
        const V t169 = t164 - t167;
        // real block of 3, multiplier 2
        const V t170 = t21 + t19;
        // real block of 3, multiplier 2
        const V t171 = t134 + t68;
        const V t172 = t171 + t170;
        const V t173 = c[0] * t171;
        const V t174 = t170 - t173;
        // spectrum block of 37
        const V t175 = c[42] * t174;
        const V t176 = c[43] * t172;
        // real block of 3, multiplier 2
        const V t177 = t19 - t22;
        const V t178 = c[1] * t23;
        // real block of 9, multiplier 2
        const V t179 = t137 + t132;
        const V t180 = t66 - t71;
        // complex block of 3, multiplier 2
        const V t181 = t179 + t180;
        const V t182 = t179 - t180;
        const V t183 = c[0] * t181;
        const V t184 = c[1] * t182;
        // real block of 9, multiplier 2
        const V t185 = t133 - t138;
        const V t186 = t67 + t72;
        // complex block of 3, multiplier 2
        const V t187 = t185 - t186;
        const V t188 = t185 + t186;
        const V t189 = c[0] * t187;
        const V t190 = c[1] * t188;
        const V t191 = t181 + t177;
        // spectrum block of 37
        const V t192 = c[8] * t191;
        const V t193 = c[9] * t191;
        // complex block of 3, multiplier 2
        const V t194 = t187 + t178;
        // spectrum block of 37
        const V t195 = c[9] * t194;
        const V t196 = c[8] * t194;
        // complex block of 3, multiplier 2
        const V t197 = t177 - t183;
        const V t198 = t197 + t190;
        const V t199 = t197 - t190;
        // spectrum block of 37
        const V t200 = c[10] * t198;
        const V t201 = c[11] * t198;
        const V t202 = c[12] * t199;
        const V t203 = c[13] * t199;
        // complex block of 3, multiplier 2
        const V t204 = t178 - t189;
        const V t205 = t204 - t184;
        const V t206 = t204 + t184;
        // spectrum block of 37
        const V t207 = c[11] * t205;
        const V t208 = c[10] * t205;
        const V t209 = c[13] * t206;
        const V t210 = c[12] * t206;
        // real block of 3, multiplier 2
        const V t211 = t134 - t68;
        const V t212 = c[1] * t211;
        // spectrum block of 37
        const V t213 = c[44] * t212;
        // real block of 3, multiplier 2
        const V t214 = t24 + t20;
        // real block of 3, multiplier 2
        const V t215 = t143 + t77;
        const V t216 = c[0] * t215;
        const V t217 = t215 + t214;
        const V t218 = t214 - t216;
        // spectrum block of 37
        const V t219 = c[45] * t218;
        // real block of 3, multiplier 2
        const V t220 = t20 - t25;
        const V t221 = c[1] * t26;
        // real block of 9, multiplier 2
        const V t222 = t146 + t141;
        const V t223 = t75 - t80;
        // complex block of 3, multiplier 2
        const V t224 = t222 + t223;
        const V t225 = t222 - t223;
        const V t226 = c[0] * t224;
        const V t227 = c[1] * t225;
        // real block of 9, multiplier 2
        const V t228 = t142 - t147;
        const V t229 = t76 + t81;
        // complex block of 3, multiplier 2
        const V t230 = t228 - t229;
        const V t231 = t228 + t229;
        const V t232 = c[0] * t230;
        const V t233 = c[1] * t231;
        const V t234 = t224 + t220;
        // spectrum block of 37
        const V t235 = c[14] * t234;
        const V t236 = c[15] * t234;
        // complex block of 3, multiplier 2
        const V t237 = t230 + t221;
        // spectrum block of 37
        const V t238 = c[15] * t237;
        const V t239 = c[14] * t237;
        // complex block of 3, multiplier 2
        const V t240 = t220 - t226;
        const V t241 = t240 + t233;
        const V t242 = t240 - t233;
        // spectrum block of 37
        const V t243 = c[16] * t242;
        const V t244 = c[17] * t242;
        const V t245 = c[18] * t241;
        const V t246 = c[19] * t241;
        // complex block of 3, multiplier 2
        const V t247 = t221 - t232;
        const V t248 = t247 - t227;
        const V t249 = t247 + t227;
        // spectrum block of 37
        const V t250 = c[17] * t249;
        const V t251 = c[16] * t249;
        const V t252 = c[19] * t248;
        const V t253 = c[18] * t248;
        // real block of 3, multiplier 2
        const V t254 = t143 - t77;
        const V t255 = c[1] * t254;
        // spectrum block of 37
        const V t256 = c[46] * t255;
        // real block of 3
        const V t257 = t16 + t1;
        // real block of 3
        const V t258 = t17 + t11;
        // skew block of 6
        const V t259 = t83 - t94;
        const V t260 = t149 - t160;
        // complex block of 3
        const V t261 = t259 + t260;
        const V t262 = t259 - t260;
        const V t263 = c[0] * t261;
        // skew block of 6
        const V t264 = t95 + t84;
        const V t265 = t161 + t150;
        // complex block of 3
        const V t266 = t264 + t265;
        const V t267 = t265 - t264;
        const V t268 = c[0] * t266;
        const V t269 = t261 + t257;
        // spectrum block of 37
        const V t270 = c[20] * t269;
        const V t271 = c[21] * t269;
        // complex block of 3
        const V t272 = t266 + t258;
        // spectrum block of 37
        const V t273 = c[21] * t272;
        const V t274 = c[20] * t272;
        // complex block of 3
        const V t275 = t257 - t263;
        const V t276 = c[1] * t267;
        const V t277 = t275 + t276;
        const V t278 = t268 - t258;
        const V t279 = c[1] * t262;
        const V t280 = t278 - t279;
        // skew block of 18
        const V t281 = t33 + t36;
        // complex block of 3, multiplier 2
        const V t282 = t91 - t168;
        const V t283 = t282 + t281;
        const V t284 = c[0] * t282;
        // complex block of 3, multiplier 2
        const V t285 = t157 + t102;
        const V t286 = t285 + t30;
        const V t287 = c[0] * t285;
        const V t288 = t30 - t287;
        // complex block of 3, multiplier 2
        const V t289 = t281 - t284;
        // complex block of 2
        const V t290 = t286 + t283;
        // skew block of 18
        const V t291 = t37 - t34;
        // complex block of 3, multiplier 2
        const V t292 = t169 - t92;
        const V t293 = t292 + t291;
        const V t294 = c[0] * t292;
        // complex block of 3, multiplier 2
        const V t295 = t158 + t103;
        const V t296 = t295 + t28;
        const V t297 = c[0] * t295;
        const V t298 = t28 - t297;
        // complex block of 3, multiplier 2
        const V t299 = t291 - t294;
        // complex block of 2
        const V t300 = t296 + t293;
        // complex block of 3, multiplier 2
        const V t301 = t157 - t102;
        const V t302 = c[1] * t301;
        const V t303 = t158 - t103;
        const V t304 = c[1] * t303;
        // complex block of 3, multiplier 2
        const V t305 = t168 + t91;
        const V t306 = c[1] * t305;
        const V t307 = t169 + t92;
        const V t308 = c[1] * t307;
        // complex block of 3, multiplier 2
        const V t309 = t288 + t304;
        // complex block of 3, multiplier 2
        const V t310 = t289 + t308;
        // complex block of 2
        const V t311 = t309 + t310;
        const V t312 = t309 - t310;
        // spectrum block of 37
        const V t313 = c[22] * t312;
        const V t314 = c[23] * t312;
        const V t315 = c[24] * t311;
        const V t316 = c[25] * t311;
        // complex block of 3, multiplier 2
        const V t317 = t298 - t302;
        // complex block of 3, multiplier 2
        const V t318 = t299 + t306;
        // complex block of 2
        const V t319 = t317 + t318;
        const V t320 = t317 - t318;
        // spectrum block of 37
        const V t321 = c[23] * t320;
        const V t322 = c[22] * t320;
        const V t323 = c[25] * t319;
        const V t324 = c[24] * t319;
        // complex block of 3, multiplier 2
        const V t325 = t288 - t304;
        // complex block of 3, multiplier 2
        const V t326 = t289 - t308;
        // complex block of 2
        const V t327 = t325 - t326;
        const V t328 = t325 + t326;
        // spectrum block of 37
        const V t329 = c[26] * t327;
        const V t330 = c[27] * t327;
        // complex block of 3, multiplier 2
        const V t331 = t298 + t302;
        // complex block of 3, multiplier 2
        const V t332 = t299 - t306;
        // complex block of 2
        const V t333 = t331 - t332;
        const V t334 = t331 + t332;
        // spectrum block of 37
        const V t335 = c[27] * t333;
        const V t336 = c[26] * t333;
        // complex block of 2
        const V t337 = t286 - t283;
        // spectrum block of 37
        const V t338 = c[28] * t337;
        const V t339 = c[29] * t337;
        // complex block of 2
        const V t340 = t296 - t293;
        // spectrum block of 37
        const V t341 = c[29] * t340;
        const V t342 = c[28] * t340;
        const V t343 = c[30] * t300;
        const V t344 = c[31] * t290;
        const V t345 = t344 + t343;
        const V t346 = c[30] * t290;
        const V t347 = c[31] * t300;
        const V t348 = t346 - t347;
        // complex block of 3
        const V t349 = t275 - t276;
        // spectrum block of 37
        const V t350 = c[32] * t349;
        const V t351 = c[33] * t349;
        // complex block of 3
        const V t352 = t278 + t279;
        // spectrum block of 37
        const V t353 = c[33] * t352;
        const V t354 = c[32] * t352;
        const V t355 = t270 + t273;
        const V t356 = c[34] * t280;
        const V t357 = c[35] * t277;
        const V t358 = t357 - t356;
        // complex block of 3
        const V t359 = t358 - t355;
        // spectrum block of 37
        const V t360 = t274 - t271;
        const V t361 = c[34] * t277;
        const V t362 = c[35] * t280;
        const V t363 = t362 + t361;
        // complex block of 3
        const V t364 = t363 + t360;
        // spectrum block of 37
        const V t365 = t353 - t350;
        // complex block of 3
        const V t366 = c[0] * t359;
        const V t367 = t359 + t365;
        const V t368 = t365 - t366;
        // spectrum block of 37
        const V t369 = t354 + t351;
        // complex block of 3
        const V t370 = c[0] * t364;
        const V t371 = t369 - t364;
        const V t372 = t370 + t369;
        const V t373 = t360 - t363;
        const V t374 = c[1] * t373;
        const V t375 = t358 + t355;
        const V t376 = c[1] * t375;
        // spectrum block of 37
        const V x0 = io.in(0);
        const V t377 = x0 - t176;
        const V t378 = t175 + t213;
        // spectrum block of 3
        const V t379 = c[0] * t378;
        const V t380 = c[47] * t212;
        const V t381 = c[48] * t174;
        const V t382 = t380 - t381;
        const V t383 = t378 + t377;
        const V t384 = t377 - t379;
        const V t385 = t384 - t382;
        const V t386 = t384 + t382;
        // spectrum block of 37
        const V t387 = t243 + t250;
        const V t388 = t245 + t252;
        // complex block of 3
        const V t389 = t387 - t388;
        const V t390 = t387 + t388;
        const V t391 = c[0] * t389;
        const V t392 = c[1] * t390;
        // spectrum block of 37
        const V t393 = t244 - t251;
        const V t394 = t246 - t253;
        // complex block of 3
        const V t395 = t394 - t393;
        const V t396 = t393 + t394;
        const V t397 = c[0] * t395;
        const V t398 = c[1] * t396;
        // spectrum block of 37
        const V t399 = t235 + t238;
        const V t400 = t236 - t239;
        // complex block of 3
        const V t401 = t395 - t400;
        // spectrum block of 3
        const V t402 = c[1] * t401;
        // complex block of 3
        const V t403 = t389 + t399;
        // spectrum block of 3
        const V t404 = c[0] * t403;
        // complex block of 3
        const V t405 = t400 + t397;
        const V t406 = t392 - t405;
        const V t407 = t405 + t392;
        // spectrum block of 9, multiplier 4
        const V t408 = c[2] * t406;
        const V t409 = c[5] * t407;
        // complex block of 3
        const V t410 = t399 - t391;
        const V t411 = t410 + t398;
        const V t412 = t410 - t398;
        // spectrum block of 9, multiplier 4
        const V t413 = c[3] * t411;
        const V t414 = c[4] * t412;
        // spectrum block of 37
        const V t415 = t192 - t195;
        const V t416 = t196 + t193;
        const V t417 = t200 + t207;
        const V t418 = t202 - t209;
        // complex block of 3
        const V t419 = t418 + t417;
        const V t420 = t418 - t417;
        const V t421 = c[0] * t419;
        const V t422 = c[1] * t420;
        // spectrum block of 37
        const V t423 = t201 - t208;
        const V t424 = t210 + t203;
        // complex block of 3
        const V t425 = t424 - t423;
        const V t426 = t424 + t423;
        const V t427 = c[0] * t425;
        const V t428 = c[1] * t426;
        const V t429 = t425 + t416;
        // spectrum block of 3
        const V t430 = c[1] * t429;
        // complex block of 3
        const V t431 = t419 + t415;
        // spectrum block of 3
        const V t432 = c[0] * t431;
        // complex block of 3
        const V t433 = t416 - t427;
        const V t434 = t433 + t422;
        const V t435 = t433 - t422;
        // spectrum block of 9, multiplier 4
        const V t436 = c[2] * t434;
        const V t437 = c[5] * t435;
        // complex block of 3
        const V t438 = t415 - t421;
        const V t439 = t438 - t428;
        const V t440 = t438 + t428;
        // spectrum block of 9, multiplier 4
        const V t441 = c[3] * t439;
        const V t442 = c[4] * t440;
        // spectrum block of 37
        const V t443 = t329 - t335;
        const V t444 = t313 + t321;
        // complex block of 3
        const V t445 = t444 + t443;
        const V t446 = t444 - t443;
        const V t447 = c[0] * t445;
        const V t448 = c[1] * t446;
        // spectrum block of 37
        const V t449 = t336 + t330;
        const V t450 = t322 - t314;
        // complex block of 3
        const V t451 = t450 + t449;
        const V t452 = t449 - t450;
        const V t453 = c[0] * t451;
        const V t454 = c[1] * t452;
        // spectrum block of 37
        const V t455 = t315 + t323;
        // complex block of 3
        const V t456 = t455 + t345;
        const V t457 = t345 - t455;
        const V t458 = c[0] * t456;
        const V t459 = c[1] * t457;
        // spectrum block of 37
        const V t460 = t324 - t316;
        // complex block of 3
        const V t461 = t348 - t460;
        const V t462 = t460 + t348;
        const V t463 = c[0] * t461;
        const V t464 = c[1] * t462;
        // spectrum block of 37
        const V t465 = c[36] * t334;
        const V t466 = c[37] * t328;
        const V t467 = t466 + t465;
        const V t468 = c[36] * t328;
        const V t469 = c[37] * t334;
        const V t470 = t468 - t469;
        const V t471 = t338 + t341;
        const V t472 = t342 - t339;
        // complex block of 3
        const V t473 = t461 + t470;
        // complex block of 3
        const V t474 = t472 - t451;
        // complex block of 3
        const V t475 = t473 + t474;
        const V t476 = t473 - t474;
        // complex block of 3
        const V t477 = t456 + t467;
        // complex block of 3
        const V t478 = t445 - t471;
        // complex block of 3
        const V t479 = t478 - t477;
        const V t480 = t477 + t478;
        // complex block of 3
        const V t481 = t470 - t463;
        const V t482 = t481 + t459;
        const V t483 = t481 - t459;
        // complex block of 9, multiplier 4
        const V t484 = c[3] * t482;
        const V t485 = c[2] * t482;
        const V t486 = c[4] * t483;
        const V t487 = c[5] * t483;
        // complex block of 3
        const V t488 = t458 - t467;
        const V t489 = t488 + t464;
        const V t490 = t488 - t464;
        // complex block of 9, multiplier 4
        const V t491 = c[2] * t489;
        const V t492 = c[3] * t489;
        const V t493 = c[5] * t490;
        const V t494 = c[4] * t490;
        // complex block of 3
        const V t495 = t453 + t472;
        const V t496 = t495 + t448;
        const V t497 = t495 - t448;
        // complex block of 9, multiplier 4
        const V t498 = c[4] * t496;
        const V t499 = c[5] * t496;
        const V t500 = c[7] * t497;
        const V t501 = c[6] * t497;
        // complex block of 3
        const V t502 = t471 + t447;
        const V t503 = t502 + t454;
        const V t504 = t454 - t502;
        // complex block of 9, multiplier 4
        const V t505 = c[5] * t503;
        const V t506 = c[4] * t503;
        const V t507 = c[6] * t504;
        const V t508 = c[7] * t504;
        // spectrum block of 37
        const V t509 = t256 - t219;
        // spectrum block of 3
        const V t510 = c[0] * t509;
        // spectrum block of 37
        const V t511 = c[49] * t217;
        // spectrum block of 3
        const V t512 = c[50] * t255;
        const V t513 = c[51] * t218;
        const V t514 = t512 + t513;
        const V t515 = t509 + t511;
        const V t516 = t511 - t510;
        const V t517 = t516 + t514;
        const V t518 = t516 - t514;
        // spectrum block of 9, multiplier 4
        const V t519 = t441 + t436;
        // spectrum block of 3
        const V t520 = c[0] * t519;
        const V t521 = t385 - t519;
        const V t522 = t520 + t385;
        const V t523 = c[38] * t439;
        const V t524 = c[39] * t434;
        const V t525 = t523 - t524;
        // complex block of 3
        const V t526 = t372 + t376;
        const V t527 = t368 - t374;
        // complex block of 9, multiplier 4
        const V t528 = t491 - t484;
        const V t529 = t498 + t505;
        // complex block of 3
        const V t530 = t528 + t529;
        const V t531 = t528 - t529;
        const V t532 = c[0] * t530;
        const V t533 = c[1] * t531;
        // complex block of 9, multiplier 4
        const V t534 = t492 + t485;
        const V t535 = t499 - t506;
        // complex block of 3
        const V t536 = t535 - t534;
        const V t537 = t534 + t535;
        const V t538 = c[0] * t536;
        const V t539 = c[1] * t537;
        // spectrum block of 9, multiplier 4
        const V t540 = t413 + t408;
        // spectrum block of 3
        const V t541 = c[0] * t540;
        const V t542 = t517 - t540;
        const V t543 = t541 + t517;
        const V t544 = c[38] * t411;
        const V t545 = c[39] * t406;
        const V t546 = t544 - t545;
        // spectrum block of 3
        const V t547 = t522 - t525;
        // spectrum block of 3
        const V t548 = t543 - t546;
        // spectrum block of 2
        const V t549 = t547 + t548;
        const V t550 = t547 - t548;
        // spectrum block of 3
        const V t551 = t522 + t525;
        // spectrum block of 3
        const V t552 = t543 + t546;
        // spectrum block of 2
        const V t553 = t551 + t552;
        const V t554 = t551 - t552;
        // complex block of 3
        const V t555 = t526 - t532;
        const V t556 = t555 - t539;
        const V t557 = t555 + t539;
        const V t558 = t527 - t538;
        const V t559 = t558 - t533;
        const V t560 = t558 + t533;
        // spectrum block of 2
        const V t561 = t549 + t559;
        io.out(4, t561);
        const V t562 = t549 - t559;
        io.out(33, t562);
        // spectrum block of 2
        const V t563 = t550 - t556;
        io.out(24, t563);
        const V t564 = t550 + t556;
        io.out(13, t564);
        // spectrum block of 2
        const V t565 = t553 + t560;
        io.out(3, t565);
        const V t566 = t553 - t560;
        io.out(34, t566);
        // spectrum block of 2
        const V t567 = t554 - t557;
        io.out(18, t567);
        const V t568 = t554 + t557;
        io.out(19, t568);
        // complex block of 3
        const V t569 = t530 + t526;
        // spectrum block of 2
        const V t570 = t521 - t542;
        // spectrum block of 2
        const V t571 = t570 - t569;
        io.out(32, t571);
        const V t572 = t570 + t569;
        io.out(5, t572);
        // complex block of 3
        const V t573 = t536 + t527;
        // spectrum block of 2
        const V t574 = t521 + t542;
        // spectrum block of 2
        const V t575 = t574 + t573;
        io.out(30, t575);
        const V t576 = t574 - t573;
        io.out(7, t576);
        // spectrum block of 9, multiplier 4
        const V t577 = t442 + t437;
        // spectrum block of 3
        const V t578 = c[0] * t577;
        const V t579 = t577 + t386;
        const V t580 = t386 - t578;
        const V t581 = c[40] * t435;
        const V t582 = c[41] * t440;
        const V t583 = t581 - t582;
        // complex block of 3
        const V t584 = t372 - t376;
        const V t585 = t368 + t374;
        // complex block of 9, multiplier 4
        const V t586 = t486 - t493;
        const V t587 = t500 - t507;
        // complex block of 3
        const V t588 = t586 + t587;
        const V t589 = t586 - t587;
        const V t590 = c[0] * t588;
        const V t591 = c[1] * t589;
        // complex block of 9, multiplier 4
        const V t592 = t494 + t487;
        const V t593 = t508 + t501;
        // complex block of 3
        const V t594 = t592 + t593;
        const V t595 = t592 - t593;
        const V t596 = c[0] * t594;
        const V t597 = c[1] * t595;
        // spectrum block of 9, multiplier 4
        const V t598 = t414 - t409;
        // spectrum block of 3
        const V t599 = c[0] * t598;
        const V t600 = t598 + t518;
        const V t601 = t518 - t599;
        const V t602 = c[40] * t407;
        const V t603 = c[41] * t412;
        const V t604 = t602 + t603;
        // spectrum block of 3
        const V t605 = t580 - t583;
        // spectrum block of 3
        const V t606 = t601 + t604;
        // spectrum block of 2
        const V t607 = t605 + t606;
        const V t608 = t605 - t606;
        // spectrum block of 3
        const V t609 = t580 + t583;
        // spectrum block of 3
        const V t610 = t601 - t604;
        // spectrum block of 2
        const V t611 = t609 + t610;
        const V t612 = t609 - t610;
        // complex block of 3
        const V t613 = t584 - t590;
        const V t614 = t613 + t597;
        const V t615 = t613 - t597;
        const V t616 = t585 - t596;
        const V t617 = t616 - t591;
        const V t618 = t616 + t591;
        // spectrum block of 2
        const V t619 = t607 + t617;
        io.out(28, t619);
        const V t620 = t607 - t617;
        io.out(9, t620);
        // spectrum block of 2
        const V t621 = t608 - t614;
        io.out(20, t621);
        const V t622 = t608 + t614;
        io.out(17, t622);
        // spectrum block of 2
        const V t623 = t611 + t618;
        io.out(21, t623);
        const V t624 = t611 - t618;
        io.out(16, t624);
        // spectrum block of 2
        const V t625 = t612 - t615;
        io.out(15, t625);
        const V t626 = t612 + t615;
        io.out(22, t626);
        // complex block of 3
        const V t627 = t588 + t584;
        // spectrum block of 2
        const V t628 = t579 - t600;
        // spectrum block of 2
        const V t629 = t628 - t627;
        io.out(2, t629);
        const V t630 = t628 + t627;
        io.out(35, t630);
        // complex block of 3
        const V t631 = t594 + t585;
        // spectrum block of 2
        const V t632 = t579 + t600;
        // spectrum block of 2
        const V t633 = t632 + t631;
        io.out(25, t633);
        const V t634 = t632 - t631;
        io.out(12, t634);
        // spectrum block of 3
        const V t635 = t431 + t383;
        // spectrum block of 3
        const V t636 = t403 + t515;
        // spectrum block of 2
        const V t637 = t635 + t636;
        const V t638 = t635 - t636;
        // complex block of 3
        const V t639 = t475 + t371;
        const V t640 = t479 + t367;
        // spectrum block of 2
        const V t641 = t637 + t640;
        io.out(36, t641);
        const V t642 = t637 - t640;
        io.out(1, t642);
        // spectrum block of 2
        const V t643 = t638 - t639;
        io.out(31, t643);
        const V t644 = t638 + t639;
        io.out(6, t644);
        // spectrum block of 3
        const V t645 = t383 - t432;
        const V t646 = t645 - t430;
        const V t647 = t645 + t430;
        // complex block of 3
        const V t648 = c[0] * t475;
        const V t649 = t371 - t648;
        const V t650 = c[0] * t479;
        const V t651 = t367 - t650;
        const V t652 = c[1] * t476;
        const V t653 = c[1] * t480;
        // spectrum block of 3
        const V t654 = t515 - t404;
        const V t655 = t654 - t402;
        const V t656 = t654 + t402;
        // complex block of 3
        const V t657 = t649 - t653;
        // spectrum block of 2
        const V t658 = t646 - t655;
        // spectrum block of 2
        const V t659 = t658 - t657;
        io.out(14, t659);
        const V t660 = t658 + t657;
        io.out(23, t660);
        // complex block of 3
        const V t661 = t651 - t652;
        // spectrum block of 2
        const V t662 = t646 + t655;
        // spectrum block of 2
        const V t663 = t662 + t661;
        io.out(27, t663);
        const V t664 = t662 - t661;
        io.out(10, t664);
        // complex block of 3
        const V t665 = t649 + t653;
        // spectrum block of 2
        const V t666 = t647 - t656;
        // spectrum block of 2
        const V t667 = t666 - t665;
        io.out(29, t667);
        const V t668 = t666 + t665;
        io.out(8, t668);
        // complex block of 3
        const V t669 = t651 + t652;
        // spectrum block of 2
        const V t670 = t647 + t656;
        // spectrum block of 2
        const V t671 = t670 + t669;
        io.out(11, t671);
        const V t672 = t670 - t669;
        io.out(26, t672);
        // spectrum block of 37
        const V t673 = x0 + t172;
        io.out(0, t673);
    }
};

}  // namespace zulg
