// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 37.
// Inverse DFT to 37 real points, Rader 9, 4.
// 201 additions, 201 subtractions, 272 multiplications (309 with `scale`); 53 constants; 67 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<37> {
    static constexpr int steps = 711;  // with `scale`
    static constexpr double inverseRoot = 0.1643989873053573;  // 1/sqrt(37), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.6427876096865394,  // c[4]: sin 2 pi 4/36
        0.766044443118978,  // c[5]: cos 2 pi 4/36
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
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x6r = io.re(6);
        const V t1 = two * x6r;
        // real block of 2
        const V t2 = t0 + t1;
        const V t3 = t0 - t1;
        // doubled bins
        const V x2r = io.re(2);
        const V t4 = two * x2r;
        const V x9r = io.re(9);
        const V t5 = two * x9r;
        const V x12r = io.re(12);
        const V t6 = two * x12r;
        const V x17r = io.re(17);
        const V t7 = two * x17r;
        // real block of 2
        const V t8 = t6 + t4;
        // real block of 2
        const V t9 = t5 + t7;
        // real block of 3, multiplier 2
        const V t10 = t8 + t9;
        // real block of 2
        const V t11 = t6 - t4;
        // real block of 2
        const V t12 = t5 - t7;
        // real block of 3, multiplier 2
        const V t13 = t11 + t12;
        // doubled bins
        const V x15r = io.re(15);
        const V t14 = two * x15r;
        const V x16r = io.re(16);
        const V t15 = two * x16r;
        // real block of 2
        const V t16 = t15 + t14;
        const V t17 = t15 - t14;
        // real block of 3, multiplier 2
        const V t18 = t8 - t9;
        const V t19 = c[1] * t18;
        // real block of 9, multiplier 2
        const V t20 = c[2] * t19;
        const V t21 = c[3] * t19;
        // real block of 3, multiplier 2
        const V t22 = t10 + t16;
        const V t23 = c[0] * t10;
        const V t24 = t16 - t23;
        // real block of 9, multiplier 2
        const V t25 = c[3] * t24;
        const V t26 = c[2] * t24;
        // real block of 3, multiplier 2
        const V t27 = t11 - t12;
        const V t28 = c[1] * t27;
        // real block of 9, multiplier 2
        const V t29 = c[2] * t28;
        const V t30 = c[3] * t28;
        // real block of 3, multiplier 2
        const V t31 = t13 + t17;
        const V t32 = c[0] * t13;
        const V t33 = t17 - t32;
        // real block of 9, multiplier 2
        const V t34 = c[3] * t33;
        const V t35 = c[2] * t33;
        // doubled bins
        const V x3r = io.re(3);
        const V t36 = two * x3r;
        const V x5r = io.re(5);
        const V t37 = two * x5r;
        const V x7r = io.re(7);
        const V t38 = two * x7r;
        const V x18r = io.re(18);
        const V t39 = two * x18r;
        // real block of 2
        const V t40 = t36 + t39;
        // real block of 2
        const V t41 = t38 + t37;
        // real block of 3, multiplier 2
        const V t42 = t40 + t41;
        // real block of 2
        const V t43 = t36 - t39;
        // real block of 2
        const V t44 = t38 - t37;
        // real block of 3, multiplier 2
        const V t45 = t43 + t44;
        // doubled bins
        const V x4r = io.re(4);
        const V t46 = two * x4r;
        const V x13r = io.re(13);
        const V t47 = two * x13r;
        // real block of 2
        const V t48 = t46 + t47;
        const V t49 = t46 - t47;
        // real block of 3, multiplier 2
        const V t50 = t40 - t41;
        const V t51 = c[1] * t50;
        // real block of 9, multiplier 2
        const V t52 = c[6] * t51;
        const V t53 = c[7] * t51;
        // real block of 3, multiplier 2
        const V t54 = t42 + t48;
        const V t55 = c[0] * t42;
        const V t56 = t48 - t55;
        // real block of 9, multiplier 2
        const V t57 = c[7] * t56;
        const V t58 = c[6] * t56;
        // real block of 3, multiplier 2
        const V t59 = t43 - t44;
        const V t60 = c[1] * t59;
        // real block of 9, multiplier 2
        const V t61 = c[6] * t60;
        const V t62 = c[7] * t60;
        // real block of 3, multiplier 2
        const V t63 = t45 + t49;
        const V t64 = c[0] * t45;
        const V t65 = t49 - t64;
        // real block of 9, multiplier 2
        const V t66 = c[7] * t65;
        const V t67 = c[6] * t65;
        // doubled bins
        const V x8r = io.re(8);
        const V t68 = two * x8r;
        const V x11r = io.re(11);
        const V t69 = two * x11r;
        // real block of 2
        const V t70 = t69 + t68;
        const V t71 = t69 - t68;
        // doubled bins
        const V x10r = io.re(10);
        const V t72 = two * x10r;
        const V x14r = io.re(14);
        const V t73 = two * x14r;
        // real block of 2
        const V t74 = t72 + t73;
        const V t75 = t72 - t73;
        // real block of 3, multiplier 2
        const V t76 = t74 + t70;
        const V t77 = c[0] * t76;
        const V t78 = t74 - t70;
        // real block of 3, multiplier 2
        const V t79 = t75 + t71;
        const V t80 = c[0] * t79;
        const V t81 = t75 - t71;
        // real block of 3, multiplier 2
        const V t82 = t76 + t2;
        // real block of 3, multiplier 2
        const V t83 = t54 + t22;
        const V t84 = t83 + t82;
        const V t85 = c[0] * t83;
        const V t86 = t82 - t85;
        // spectrum block of 37
        const V t87 = c[42] * t86;
        const V t88 = c[43] * t84;
        // real block of 3, multiplier 2
        const V t89 = t2 - t77;
        const V t90 = c[1] * t78;
        // real block of 9, multiplier 2
        const V t91 = t57 + t52;
        const V t92 = t20 - t25;
        // complex block of 3, multiplier 2
        const V t93 = t91 + t92;
        const V t94 = t91 - t92;
        const V t95 = c[0] * t93;
        const V t96 = c[1] * t94;
        // real block of 9, multiplier 2
        const V t97 = t53 - t58;
        const V t98 = t21 + t26;
        // complex block of 3, multiplier 2
        const V t99 = t97 - t98;
        const V t100 = t97 + t98;
        const V t101 = c[0] * t99;
        const V t102 = c[1] * t100;
        const V t103 = t93 + t89;
        // spectrum block of 37
        const V t104 = c[8] * t103;
        const V t105 = c[9] * t103;
        // complex block of 3, multiplier 2
        const V t106 = t99 + t90;
        // spectrum block of 37
        const V t107 = c[9] * t106;
        const V t108 = c[8] * t106;
        // complex block of 3, multiplier 2
        const V t109 = t89 - t95;
        const V t110 = t109 + t102;
        const V t111 = t109 - t102;
        // spectrum block of 37
        const V t112 = c[10] * t110;
        const V t113 = c[11] * t110;
        const V t114 = c[12] * t111;
        const V t115 = c[13] * t111;
        // complex block of 3, multiplier 2
        const V t116 = t90 - t101;
        const V t117 = t116 - t96;
        const V t118 = t116 + t96;
        // spectrum block of 37
        const V t119 = c[11] * t117;
        const V t120 = c[10] * t117;
        const V t121 = c[13] * t118;
        const V t122 = c[12] * t118;
        // real block of 3, multiplier 2
        const V t123 = t54 - t22;
        const V t124 = c[1] * t123;
        // spectrum block of 37
        const V t125 = c[44] * t124;
        // real block of 3, multiplier 2
        const V t126 = t79 + t3;
        // real block of 3, multiplier 2
        const V t127 = t63 + t31;
        const V t128 = c[0] * t127;
        const V t129 = t127 + t126;
        const V t130 = t126 - t128;
        // spectrum block of 37
        const V t131 = c[45] * t130;
        // real block of 3, multiplier 2
        const V t132 = t3 - t80;
        const V t133 = c[1] * t81;
        // real block of 9, multiplier 2
        const V t134 = t66 + t61;
        const V t135 = t29 - t34;
        // complex block of 3, multiplier 2
        const V t136 = t134 + t135;
        const V t137 = t134 - t135;
        const V t138 = c[0] * t136;
        const V t139 = c[1] * t137;
        // real block of 9, multiplier 2
        const V t140 = t62 - t67;
        const V t141 = t30 + t35;
        // complex block of 3, multiplier 2
        const V t142 = t140 - t141;
        const V t143 = t140 + t141;
        const V t144 = c[0] * t142;
        const V t145 = c[1] * t143;
        const V t146 = t136 + t132;
        // spectrum block of 37
        const V t147 = c[14] * t146;
        const V t148 = c[15] * t146;
        // complex block of 3, multiplier 2
        const V t149 = t142 + t133;
        // spectrum block of 37
        const V t150 = c[15] * t149;
        const V t151 = c[14] * t149;
        // complex block of 3, multiplier 2
        const V t152 = t132 - t138;
        const V t153 = t152 + t145;
        const V t154 = t152 - t145;
        // spectrum block of 37
        const V t155 = c[16] * t154;
        const V t156 = c[17] * t154;
        const V t157 = c[18] * t153;
        const V t158 = c[19] * t153;
        // complex block of 3, multiplier 2
        const V t159 = t133 - t144;
        const V t160 = t159 - t139;
        const V t161 = t159 + t139;
        // spectrum block of 37
        const V t162 = c[17] * t161;
        const V t163 = c[16] * t161;
        const V t164 = c[19] * t160;
        const V t165 = c[18] * t160;
        // real block of 3, multiplier 2
        const V t166 = t63 - t31;
        const V t167 = c[1] * t166;
        // spectrum block of 37
        const V t168 = c[46] * t167;
        // doubled bins
        const V x1i = io.im(1);
        const V t169 = two * x1i;
        const V x10i = io.im(10);
        const V t170 = two * x10i;
        const V x11i = io.im(11);
        const V t171 = two * x11i;
        // real block of 3
        const V t172 = t170 - t171;
        const V t173 = t170 + t171;
        const V t174 = c[1] * t173;
        const V t175 = c[0] * t172;
        const V t176 = t169 - t175;
        // doubled bins
        const V x2i = io.im(2);
        const V t177 = two * x2i;
        const V x15i = io.im(15);
        const V t178 = two * x15i;
        const V x17i = io.im(17);
        const V t179 = two * x17i;
        // real block of 3
        const V t180 = t178 - t179;
        const V t181 = c[0] * t180;
        const V t182 = t179 + t178;
        const V t183 = t180 + t177;
        // skew block of 6
        const V t184 = c[1] * t183;
        const V t185 = c[0] * t183;
        // real block of 3
        const V t186 = t177 - t181;
        // skew block of 18
        const V t187 = c[6] * t186;
        const V t188 = c[7] * t186;
        // real block of 3
        const V t189 = c[1] * t182;
        // skew block of 18
        const V t190 = c[7] * t189;
        const V t191 = c[6] * t189;
        const V t192 = t187 - t190;
        const V t193 = t191 + t188;
        // doubled bins
        const V x3i = io.im(3);
        const V t194 = two * x3i;
        const V x7i = io.im(7);
        const V t195 = two * x7i;
        // real block of 3
        const V t196 = t194 - t195;
        const V t197 = c[0] * t196;
        const V t198 = t194 + t195;
        // doubled bins
        const V x4i = io.im(4);
        const V t199 = two * x4i;
        // real block of 3
        const V t200 = t196 + t199;
        // skew block of 6
        const V t201 = c[0] * t200;
        const V t202 = c[1] * t200;
        // real block of 3
        const V t203 = t199 - t197;
        // skew block of 18
        const V t204 = c[3] * t203;
        const V t205 = c[2] * t203;
        // real block of 3
        const V t206 = c[1] * t198;
        // skew block of 18
        const V t207 = c[2] * t206;
        const V t208 = c[3] * t206;
        const V t209 = t204 + t207;
        const V t210 = t208 - t205;
        // doubled bins
        const V x5i = io.im(5);
        const V t211 = two * x5i;
        const V x13i = io.im(13);
        const V t212 = two * x13i;
        const V x18i = io.im(18);
        const V t213 = two * x18i;
        // real block of 3
        const V t214 = t213 - t212;
        const V t215 = c[0] * t214;
        const V t216 = t212 + t213;
        const V t217 = t214 - t211;
        // skew block of 6
        const V t218 = c[1] * t217;
        const V t219 = c[0] * t217;
        // real block of 3
        const V t220 = t211 + t215;
        // skew block of 18
        const V t221 = c[4] * t220;
        const V t222 = c[5] * t220;
        // real block of 3
        const V t223 = c[1] * t216;
        // skew block of 18
        const V t224 = c[5] * t223;
        const V t225 = c[4] * t223;
        const V t226 = t221 + t224;
        const V t227 = t222 - t225;
        // doubled bins
        const V x6i = io.im(6);
        const V t228 = two * x6i;
        const V x14i = io.im(14);
        const V t229 = two * x14i;
        // real block of 3
        const V t230 = t228 - t229;
        const V t231 = t228 + t229;
        // doubled bins
        const V x8i = io.im(8);
        const V t232 = two * x8i;
        // real block of 3
        const V t233 = c[0] * t230;
        const V t234 = t232 - t233;
        // skew block of 18
        const V t235 = c[1] * t234;
        const V t236 = c[0] * t234;
        // real block of 3
        const V t237 = c[1] * t231;
        // skew block of 18
        const V t238 = c[0] * t237;
        const V t239 = c[1] * t237;
        // doubled bins
        const V x9i = io.im(9);
        const V t240 = two * x9i;
        const V x12i = io.im(12);
        const V t241 = two * x12i;
        // real block of 3
        const V t242 = t241 + t240;
        const V t243 = c[0] * t242;
        const V t244 = t241 - t240;
        // doubled bins
        const V x16i = io.im(16);
        const V t245 = two * x16i;
        // real block of 3
        const V t246 = t242 + t245;
        // skew block of 6
        const V t247 = c[0] * t246;
        const V t248 = c[1] * t246;
        // real block of 3
        const V t249 = t245 - t243;
        // skew block of 18
        const V t250 = c[5] * t249;
        const V t251 = c[4] * t249;
        // real block of 3
        const V t252 = c[1] * t244;
        // skew block of 18
        const V t253 = c[4] * t252;
        const V t254 = c[5] * t252;
        const V t255 = t250 + t253;
        const V t256 = t254 - t251;
        // real block of 3
        const V t257 = t172 + t169;
        // real block of 3
        const V t258 = t230 + t232;
        // skew block of 6
        const V t259 = t184 - t247;
        const V t260 = t201 - t218;
        // complex block of 3
        const V t261 = t259 + t260;
        const V t262 = t259 - t260;
        const V t263 = c[0] * t261;
        // skew block of 6
        const V t264 = t248 + t185;
        const V t265 = t219 + t202;
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
        const V t281 = t235 + t238;
        // complex block of 3, multiplier 2
        const V t282 = t192 - t226;
        const V t283 = t282 + t281;
        const V t284 = c[0] * t282;
        // complex block of 3, multiplier 2
        const V t285 = t209 + t255;
        const V t286 = t285 + t176;
        const V t287 = c[0] * t285;
        const V t288 = t176 - t287;
        // complex block of 3, multiplier 2
        const V t289 = t281 - t284;
        // complex block of 2
        const V t290 = t286 + t283;
        // skew block of 18
        const V t291 = t239 - t236;
        // complex block of 3, multiplier 2
        const V t292 = t227 - t193;
        const V t293 = t292 + t291;
        const V t294 = c[0] * t292;
        // complex block of 3, multiplier 2
        const V t295 = t210 + t256;
        const V t296 = t295 + t174;
        const V t297 = c[0] * t295;
        const V t298 = t174 - t297;
        // complex block of 3, multiplier 2
        const V t299 = t291 - t294;
        // complex block of 2
        const V t300 = t296 + t293;
        // complex block of 3, multiplier 2
        const V t301 = t209 - t255;
        const V t302 = c[1] * t301;
        const V t303 = t210 - t256;
        const V t304 = c[1] * t303;
        // complex block of 3, multiplier 2
        const V t305 = t226 + t192;
        const V t306 = c[1] * t305;
        const V t307 = t227 + t193;
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
        const V x0r = io.re(0);
        const V t377 = x0r - t88;
        const V t378 = t87 + t125;
        // spectrum block of 3
        const V t379 = c[0] * t378;
        const V t380 = c[47] * t124;
        const V t381 = c[48] * t86;
        const V t382 = t380 - t381;
        const V t383 = t378 + t377;
        const V t384 = t377 - t379;
        const V t385 = t384 - t382;
        const V t386 = t384 + t382;
        // spectrum block of 37
        const V t387 = t155 + t162;
        const V t388 = t157 + t164;
        // complex block of 3
        const V t389 = t387 - t388;
        const V t390 = t387 + t388;
        const V t391 = c[0] * t389;
        const V t392 = c[1] * t390;
        // spectrum block of 37
        const V t393 = t156 - t163;
        const V t394 = t158 - t165;
        // complex block of 3
        const V t395 = t394 - t393;
        const V t396 = t393 + t394;
        const V t397 = c[0] * t395;
        const V t398 = c[1] * t396;
        // spectrum block of 37
        const V t399 = t147 + t150;
        const V t400 = t148 - t151;
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
        const V t409 = c[4] * t407;
        // complex block of 3
        const V t410 = t399 - t391;
        const V t411 = t410 + t398;
        const V t412 = t410 - t398;
        // spectrum block of 9, multiplier 4
        const V t413 = c[3] * t411;
        const V t414 = c[5] * t412;
        // spectrum block of 37
        const V t415 = t104 - t107;
        const V t416 = t108 + t105;
        const V t417 = t112 + t119;
        const V t418 = t114 - t121;
        // complex block of 3
        const V t419 = t418 + t417;
        const V t420 = t418 - t417;
        const V t421 = c[0] * t419;
        const V t422 = c[1] * t420;
        // spectrum block of 37
        const V t423 = t113 - t120;
        const V t424 = t122 + t115;
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
        const V t437 = c[4] * t435;
        // complex block of 3
        const V t438 = t415 - t421;
        const V t439 = t438 - t428;
        const V t440 = t438 + t428;
        // spectrum block of 9, multiplier 4
        const V t441 = c[3] * t439;
        const V t442 = c[5] * t440;
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
        const V t486 = c[5] * t483;
        const V t487 = c[4] * t483;
        // complex block of 3
        const V t488 = t458 - t467;
        const V t489 = t488 + t464;
        const V t490 = t488 - t464;
        // complex block of 9, multiplier 4
        const V t491 = c[2] * t489;
        const V t492 = c[3] * t489;
        const V t493 = c[4] * t490;
        const V t494 = c[5] * t490;
        // complex block of 3
        const V t495 = t453 + t472;
        const V t496 = t495 + t448;
        const V t497 = t495 - t448;
        // complex block of 9, multiplier 4
        const V t498 = c[5] * t496;
        const V t499 = c[4] * t496;
        const V t500 = c[7] * t497;
        const V t501 = c[6] * t497;
        // complex block of 3
        const V t502 = t471 + t447;
        const V t503 = t502 + t454;
        const V t504 = t454 - t502;
        // complex block of 9, multiplier 4
        const V t505 = c[4] * t503;
        const V t506 = c[5] * t503;
        const V t507 = c[6] * t504;
        const V t508 = c[7] * t504;
        // spectrum block of 37
        const V t509 = t168 - t131;
        // spectrum block of 3
        const V t510 = c[0] * t509;
        // spectrum block of 37
        const V t511 = c[49] * t129;
        // spectrum block of 3
        const V t512 = c[50] * t167;
        const V t513 = c[51] * t130;
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
        io.out(33, t561);
        const V t562 = t549 - t559;
        io.out(4, t562);
        // spectrum block of 2
        const V t563 = t550 - t556;
        io.out(13, t563);
        const V t564 = t550 + t556;
        io.out(24, t564);
        // spectrum block of 2
        const V t565 = t553 + t560;
        io.out(34, t565);
        const V t566 = t553 - t560;
        io.out(3, t566);
        // spectrum block of 2
        const V t567 = t554 - t557;
        io.out(19, t567);
        const V t568 = t554 + t557;
        io.out(18, t568);
        // complex block of 3
        const V t569 = t530 + t526;
        // spectrum block of 2
        const V t570 = t521 - t542;
        // spectrum block of 2
        const V t571 = t570 - t569;
        io.out(5, t571);
        const V t572 = t570 + t569;
        io.out(32, t572);
        // complex block of 3
        const V t573 = t536 + t527;
        // spectrum block of 2
        const V t574 = t521 + t542;
        // spectrum block of 2
        const V t575 = t574 + t573;
        io.out(7, t575);
        const V t576 = t574 - t573;
        io.out(30, t576);
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
        io.out(9, t619);
        const V t620 = t607 - t617;
        io.out(28, t620);
        // spectrum block of 2
        const V t621 = t608 - t614;
        io.out(17, t621);
        const V t622 = t608 + t614;
        io.out(20, t622);
        // spectrum block of 2
        const V t623 = t611 + t618;
        io.out(16, t623);
        const V t624 = t611 - t618;
        io.out(21, t624);
        // spectrum block of 2
        const V t625 = t612 - t615;
        io.out(22, t625);
        const V t626 = t612 + t615;
        io.out(15, t626);
        // complex block of 3
        const V t627 = t588 + t584;
        // spectrum block of 2
        const V t628 = t579 - t600;
        // spectrum block of 2
        const V t629 = t628 - t627;
        io.out(35, t629);
        const V t630 = t628 + t627;
        io.out(2, t630);
        // complex block of 3
        const V t631 = t594 + t585;
        // spectrum block of 2
        const V t632 = t579 + t600;
        // spectrum block of 2
        const V t633 = t632 + t631;
        io.out(12, t633);
        const V t634 = t632 - t631;
        io.out(25, t634);
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
        io.out(1, t641);
        const V t642 = t637 - t640;
        io.out(36, t642);
        // spectrum block of 2
        const V t643 = t638 - t639;
        io.out(6, t643);
        const V t644 = t638 + t639;
        io.out(31, t644);
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
        io.out(23, t659);
        const V t660 = t658 + t657;
        io.out(14, t660);
        // complex block of 3
        const V t661 = t651 - t652;
        // spectrum block of 2
        const V t662 = t646 + t655;
        // spectrum block of 2
        const V t663 = t662 + t661;
        io.out(10, t663);
        const V t664 = t662 - t661;
        io.out(27, t664);
        // complex block of 3
        const V t665 = t649 + t653;
        // spectrum block of 2
        const V t666 = t647 - t656;
        // spectrum block of 2
        const V t667 = t666 - t665;
        io.out(8, t667);
        const V t668 = t666 + t665;
        io.out(29, t668);
        // complex block of 3
        const V t669 = t651 + t652;
        // spectrum block of 2
        const V t670 = t647 + t656;
        // spectrum block of 2
        const V t671 = t670 + t669;
        io.out(26, t671);
        const V t672 = t670 - t669;
        io.out(11, t672);
        // spectrum block of 37
        const V t673 = x0r + t84;
        io.out(0, t673);
    }
};

}  // namespace zulg
