// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 54.
// Inverse DFT to 54 real points, prime-factor 27, 2.
// 191 additions, 191 subtractions, 250 multiplications (304 with `scale`); 38 constants; 63 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<54> {
    static constexpr int steps = 686;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3420201433256687,  // c[2]: -sin 2 pi 5/9
        0.9396926207859084,  // c[3]: -cos 2 pi 5/9
        0.984807753012208,  // c[4]: -sin 2 pi 7/9
        0.17364817766693036,  // c[5]: cos 2 pi 7/9
        0.1503837331804353,  // c[6]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[7]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[9]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.6427876096865394,  // c[10]: -sin 2 pi 8/9
        0.766044443118978,  // c[11]: cos 2 pi 8/9
        1.7320508075688772,  // c[12]: sin 2 pi 1/3 times 2
        0.44879918020046217,  // c[13]: -sin 2 pi 25/27
        0.8936326403234123,  // c[14]: cos 2 pi 25/27
        0.8021231927550437,  // c[15]: -sin 2 pi 23/27
        0.5971585917027862,  // c[16]: cos 2 pi 23/27
        0.9579895123154889,  // c[17]: -sin 2 pi 19/27
        0.28680323271109026,  // c[18]: -cos 2 pi 19/27
        0.7273736415730487,  // c[19]: -sin 2 pi 17/27
        0.6862416378687336,  // c[20]: -cos 2 pi 17/27
        0.11609291412523023,  // c[21]: sin 2 pi 13/27
        0.993238357741943,  // c[22]: -cos 2 pi 13/27
        0.549508978070806,  // c[23]: sin 2 pi 11/27
        0.8354878114129364,  // c[24]: -cos 2 pi 11/27
        0.7739085681710371,  // c[25]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.3886714912512303,  // c[26]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.5171545105027521,  // c[27]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.6946590618905499,  // c[28]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.8296432542242788,  // c[29]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.24837888541530426,  // c[30]: sin 2 pi 1/3 times -cos 2 pi 19/27
        0.6299240516454571,  // c[31]: sin 2 pi 1/3 times -sin 2 pi 17/27
        0.5943026915289645,  // c[32]: sin 2 pi 1/3 times -cos 2 pi 17/27
        0.8601696498176589,  // c[33]: sin 2 pi 1/3 times -cos 2 pi 13/27
        0.10053941283181467,  // c[34]: sin 2 pi 1/3 times sin 2 pi 13/27
        0.7235536692358652,  // c[35]: sin 2 pi 1/3 times -cos 2 pi 11/27
        0.47588873461694403,  // c[36]: sin 2 pi 1/3 times sin 2 pi 11/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        const V x7r = io.re(7);
        const V t12 = two * x7r;
        const V x7i = io.im(7);
        const V t13 = two * x7i;
        const V x8r = io.re(8);
        const V t14 = two * x8r;
        const V x8i = io.im(8);
        const V t15 = two * x8i;
        const V x9r = io.re(9);
        const V t16 = two * x9r;
        const V x10r = io.re(10);
        const V t17 = two * x10r;
        const V x10i = io.im(10);
        const V t18 = two * x10i;
        const V x11r = io.re(11);
        const V t19 = two * x11r;
        const V x11i = io.im(11);
        const V t20 = two * x11i;
        const V x12r = io.re(12);
        const V t21 = two * x12r;
        const V x12i = io.im(12);
        const V t22 = two * x12i;
        const V x13r = io.re(13);
        const V t23 = two * x13r;
        const V x13i = io.im(13);
        const V t24 = two * x13i;
        const V x14r = io.re(14);
        const V t25 = two * x14r;
        const V x14i = io.im(14);
        const V t26 = two * x14i;
        const V x15r = io.re(15);
        const V t27 = two * x15r;
        const V x15i = io.im(15);
        const V t28 = two * x15i;
        const V x16r = io.re(16);
        const V t29 = two * x16r;
        const V x16i = io.im(16);
        const V t30 = two * x16i;
        const V x17r = io.re(17);
        const V t31 = two * x17r;
        const V x17i = io.im(17);
        const V t32 = two * x17i;
        const V x18r = io.re(18);
        const V t33 = two * x18r;
        const V x19r = io.re(19);
        const V t34 = two * x19r;
        const V x19i = io.im(19);
        const V t35 = two * x19i;
        const V x20r = io.re(20);
        const V t36 = two * x20r;
        const V x20i = io.im(20);
        const V t37 = two * x20i;
        const V x21r = io.re(21);
        const V t38 = two * x21r;
        const V x21i = io.im(21);
        const V t39 = two * x21i;
        const V x22r = io.re(22);
        const V t40 = two * x22r;
        const V x22i = io.im(22);
        const V t41 = two * x22i;
        const V x23r = io.re(23);
        const V t42 = two * x23r;
        const V x23i = io.im(23);
        const V t43 = two * x23i;
        const V x24r = io.re(24);
        const V t44 = two * x24r;
        const V x24i = io.im(24);
        const V t45 = two * x24i;
        const V x25r = io.re(25);
        const V t46 = two * x25r;
        const V x25i = io.im(25);
        const V t47 = two * x25i;
        const V x26r = io.re(26);
        const V t48 = two * x26r;
        const V x26i = io.im(26);
        const V t49 = two * x26i;
        // spectrum block of 3, multiplier 2
        const V x0r = io.re(0);
        const V t50 = t33 + x0r;
        const V t51 = c[0] * t33;
        const V t52 = x0r - t51;
        const V x18i = io.im(18);
        const V t53 = c[12] * x18i;
        const V t54 = t52 - t53;
        const V t55 = t52 + t53;
        // complex block of 3, multiplier 2
        const V t56 = t45 - t22;
        const V t57 = t44 + t21;
        const V t58 = t45 + t22;
        const V t59 = t44 - t21;
        const V t60 = t56 + t11;
        const V t61 = t57 + t10;
        const V t62 = c[0] * t56;
        const V t63 = t11 - t62;
        const V t64 = c[0] * t57;
        const V t65 = t10 - t64;
        const V t66 = c[1] * t58;
        const V t67 = c[1] * t59;
        const V t68 = t63 + t67;
        const V t69 = t65 - t66;
        const V t70 = t63 - t67;
        const V t71 = t65 + t66;
        // spectrum block of 9, multiplier 2
        const V t72 = c[4] * t70;
        const V t73 = c[5] * t71;
        const V t74 = t73 - t72;
        const V t75 = c[2] * t68;
        const V t76 = c[3] * t69;
        const V t77 = t76 + t75;
        // spectrum block of 3, multiplier 2
        const V t78 = t61 + t50;
        const V t79 = c[0] * t61;
        const V t80 = t50 - t79;
        const V t81 = c[1] * t60;
        const V t82 = t80 - t81;
        const V t83 = t80 + t81;
        // spectrum block of 3, multiplier 2
        const V t84 = t74 + t55;
        const V t85 = c[0] * t74;
        const V t86 = t55 - t85;
        const V t87 = c[6] * t70;
        const V t88 = c[7] * t71;
        const V t89 = t87 + t88;
        const V t90 = t86 - t89;
        const V t91 = t86 + t89;
        // spectrum block of 3, multiplier 2
        const V t92 = t54 - t77;
        const V t93 = c[0] * t77;
        const V t94 = t93 + t54;
        const V t95 = c[8] * t69;
        const V t96 = c[9] * t68;
        const V t97 = t95 - t96;
        const V t98 = t94 - t97;
        const V t99 = t94 + t97;
        // complex block of 3, multiplier 2
        const V t100 = t37 - t30;
        const V t101 = t36 + t29;
        const V t102 = t37 + t30;
        const V t103 = t36 - t29;
        const V t104 = t100 + t3;
        const V t105 = t101 + t2;
        const V t106 = c[0] * t100;
        const V t107 = t3 - t106;
        const V t108 = c[0] * t101;
        const V t109 = t2 - t108;
        const V t110 = c[1] * t102;
        const V t111 = c[1] * t103;
        const V t112 = t107 + t111;
        const V t113 = t109 - t110;
        const V t114 = t107 - t111;
        const V t115 = t109 + t110;
        // complex block of 3, multiplier 2
        const V t116 = t49 - t18;
        const V t117 = t48 + t17;
        const V t118 = t49 + t18;
        const V t119 = t48 - t17;
        const V t120 = t116 + t15;
        const V t121 = t117 + t14;
        const V t122 = c[0] * t116;
        const V t123 = t15 - t122;
        const V t124 = c[0] * t117;
        const V t125 = t14 - t124;
        const V t126 = c[1] * t118;
        const V t127 = c[1] * t119;
        const V t128 = t123 + t127;
        const V t129 = t125 - t126;
        const V t130 = t123 - t127;
        const V t131 = t125 + t126;
        // complex block of 3, multiplier 2
        const V t132 = t41 + t7;
        const V t133 = t40 + t6;
        const V t134 = t7 - t41;
        const V t135 = t40 - t6;
        const V t136 = t26 - t132;
        const V t137 = t133 + t25;
        const V t138 = c[0] * t132;
        const V t139 = t138 + t26;
        const V t140 = c[0] * t133;
        const V t141 = t25 - t140;
        const V t142 = c[1] * t134;
        const V t143 = c[1] * t135;
        const V t144 = t139 + t143;
        const V t145 = t141 - t142;
        const V t146 = t139 - t143;
        const V t147 = t141 + t142;
        // complex block of 3, multiplier 2
        const V t148 = t120 + t136;
        const V t149 = t121 + t137;
        const V t150 = t120 - t136;
        const V t151 = t121 - t137;
        const V t152 = t148 + t104;
        const V t153 = t149 + t105;
        const V t154 = c[0] * t148;
        const V t155 = t104 - t154;
        const V t156 = c[0] * t149;
        const V t157 = t105 - t156;
        const V t158 = c[1] * t150;
        const V t159 = c[1] * t151;
        const V t160 = t155 + t159;
        const V t161 = t157 - t158;
        const V t162 = t155 - t159;
        const V t163 = t157 + t158;
        // complex block of 9, multiplier 2
        const V t164 = c[4] * t131;
        const V t165 = c[5] * t130;
        const V t166 = t165 + t164;
        const V t167 = c[4] * t130;
        const V t168 = c[5] * t131;
        const V t169 = t168 - t167;
        const V t170 = c[2] * t147;
        const V t171 = c[3] * t146;
        const V t172 = t170 - t171;
        const V t173 = c[2] * t146;
        const V t174 = c[3] * t147;
        const V t175 = t174 + t173;
        // complex block of 3, multiplier 2
        const V t176 = t166 + t172;
        const V t177 = t169 - t175;
        const V t178 = t166 - t172;
        const V t179 = t169 + t175;
        const V t180 = t176 + t114;
        const V t181 = t177 + t115;
        const V t182 = c[0] * t176;
        const V t183 = t114 - t182;
        const V t184 = c[0] * t177;
        const V t185 = t115 - t184;
        const V t186 = c[1] * t178;
        const V t187 = c[1] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 - t186;
        const V t190 = t183 - t187;
        const V t191 = t185 + t186;
        // complex block of 9, multiplier 2
        const V t192 = c[2] * t129;
        const V t193 = c[3] * t128;
        const V t194 = t192 - t193;
        const V t195 = c[2] * t128;
        const V t196 = c[3] * t129;
        const V t197 = t196 + t195;
        const V t198 = c[10] * t145;
        const V t199 = c[11] * t144;
        const V t200 = t199 - t198;
        const V t201 = c[10] * t144;
        const V t202 = c[11] * t145;
        const V t203 = t202 + t201;
        // complex block of 3, multiplier 2
        const V t204 = t194 + t200;
        const V t205 = t203 - t197;
        const V t206 = t194 - t200;
        const V t207 = t197 + t203;
        const V t208 = t204 + t112;
        const V t209 = t205 + t113;
        const V t210 = c[0] * t204;
        const V t211 = t112 - t210;
        const V t212 = c[0] * t205;
        const V t213 = t113 - t212;
        const V t214 = c[1] * t206;
        const V t215 = c[1] * t207;
        const V t216 = t211 - t215;
        const V t217 = t213 - t214;
        const V t218 = t211 + t215;
        const V t219 = t213 + t214;
        // spectrum block of 27, multiplier 2
        const V t220 = c[13] * t180;
        const V t221 = c[14] * t181;
        const V t222 = t221 - t220;
        const V t223 = c[15] * t208;
        const V t224 = c[16] * t209;
        const V t225 = t224 - t223;
        const V t226 = c[4] * t162;
        const V t227 = c[5] * t163;
        const V t228 = t227 - t226;
        const V t229 = c[17] * t190;
        const V t230 = c[18] * t191;
        const V t231 = t230 + t229;
        const V t232 = c[19] * t218;
        const V t233 = c[20] * t219;
        const V t234 = t233 + t232;
        const V t235 = c[2] * t160;
        const V t236 = c[3] * t161;
        const V t237 = t236 + t235;
        const V t238 = c[21] * t188;
        const V t239 = c[22] * t189;
        const V t240 = t238 - t239;
        const V t241 = c[23] * t216;
        const V t242 = c[24] * t217;
        const V t243 = t241 - t242;
        // spectrum block of 3, multiplier 2
        const V t244 = t153 + t78;
        const V t245 = c[0] * t153;
        const V t246 = t78 - t245;
        const V t247 = c[1] * t152;
        const V t248 = t246 - t247;
        const V t249 = t246 + t247;
        // spectrum block of 3, multiplier 2
        const V t250 = t222 + t84;
        const V t251 = c[0] * t222;
        const V t252 = t84 - t251;
        const V t253 = c[25] * t180;
        const V t254 = c[26] * t181;
        const V t255 = t253 + t254;
        const V t256 = t252 - t255;
        const V t257 = t252 + t255;
        // spectrum block of 3, multiplier 2
        const V t258 = t225 + t92;
        const V t259 = c[0] * t225;
        const V t260 = t92 - t259;
        const V t261 = c[27] * t208;
        const V t262 = c[28] * t209;
        const V t263 = t261 + t262;
        const V t264 = t260 - t263;
        const V t265 = t260 + t263;
        // spectrum block of 3, multiplier 2
        const V t266 = t228 + t83;
        const V t267 = c[0] * t228;
        const V t268 = t83 - t267;
        const V t269 = c[6] * t162;
        const V t270 = c[7] * t163;
        const V t271 = t269 + t270;
        const V t272 = t268 - t271;
        const V t273 = t268 + t271;
        // spectrum block of 3, multiplier 2
        const V t274 = t91 - t231;
        const V t275 = c[0] * t231;
        const V t276 = t275 + t91;
        const V t277 = c[29] * t191;
        const V t278 = c[30] * t190;
        const V t279 = t277 - t278;
        const V t280 = t276 - t279;
        const V t281 = t276 + t279;
        // spectrum block of 3, multiplier 2
        const V t282 = t99 - t234;
        const V t283 = c[0] * t234;
        const V t284 = t283 + t99;
        const V t285 = c[31] * t219;
        const V t286 = c[32] * t218;
        const V t287 = t285 - t286;
        const V t288 = t284 - t287;
        const V t289 = t284 + t287;
        // spectrum block of 3, multiplier 2
        const V t290 = t82 - t237;
        const V t291 = c[0] * t237;
        const V t292 = t291 + t82;
        const V t293 = c[8] * t161;
        const V t294 = c[9] * t160;
        const V t295 = t293 - t294;
        const V t296 = t292 - t295;
        const V t297 = t292 + t295;
        // spectrum block of 3, multiplier 2
        const V t298 = t240 + t90;
        const V t299 = c[0] * t240;
        const V t300 = t90 - t299;
        const V t301 = c[33] * t188;
        const V t302 = c[34] * t189;
        const V t303 = t301 + t302;
        const V t304 = t300 + t303;
        const V t305 = t300 - t303;
        // spectrum block of 3, multiplier 2
        const V t306 = t243 + t98;
        const V t307 = c[0] * t243;
        const V t308 = t98 - t307;
        const V t309 = c[35] * t216;
        const V t310 = c[36] * t217;
        const V t311 = t309 + t310;
        const V t312 = t308 + t311;
        const V t313 = t308 - t311;
        // spectrum block of 3, multiplier 2
        const V x27r = io.re(27);
        const V t314 = t16 + x27r;
        const V t315 = c[0] * t16;
        const V t316 = x27r - t315;
        const V x9i = io.im(9);
        const V t317 = c[12] * x9i;
        const V t318 = t316 + t317;
        const V t319 = t316 - t317;
        // complex block of 3, multiplier 2
        const V t320 = t28 - t5;
        const V t321 = t4 + t27;
        const V t322 = t5 + t28;
        const V t323 = t4 - t27;
        const V t324 = t320 - t39;
        const V t325 = t321 + t38;
        const V t326 = c[0] * t320;
        const V t327 = t39 + t326;
        const V t328 = c[0] * t321;
        const V t329 = t38 - t328;
        const V t330 = c[1] * t322;
        const V t331 = c[1] * t323;
        const V t332 = t331 - t327;
        const V t333 = t329 + t330;
        const V t334 = t327 + t331;
        const V t335 = t329 - t330;
        // spectrum block of 9, multiplier 2
        const V t336 = c[4] * t334;
        const V t337 = c[5] * t335;
        const V t338 = t337 + t336;
        const V t339 = c[2] * t332;
        const V t340 = c[3] * t333;
        const V t341 = t340 + t339;
        // spectrum block of 3, multiplier 2
        const V t342 = t325 + t314;
        const V t343 = c[0] * t325;
        const V t344 = t314 - t343;
        const V t345 = c[1] * t324;
        const V t346 = t344 - t345;
        const V t347 = t344 + t345;
        // spectrum block of 3, multiplier 2
        const V t348 = t338 + t319;
        const V t349 = c[0] * t338;
        const V t350 = t319 - t349;
        const V t351 = c[7] * t335;
        const V t352 = c[6] * t334;
        const V t353 = t351 - t352;
        const V t354 = t350 - t353;
        const V t355 = t350 + t353;
        // spectrum block of 3, multiplier 2
        const V t356 = t318 - t341;
        const V t357 = c[0] * t341;
        const V t358 = t357 + t318;
        const V t359 = c[8] * t333;
        const V t360 = c[9] * t332;
        const V t361 = t359 - t360;
        const V t362 = t358 - t361;
        const V t363 = t358 + t361;
        // complex block of 3, multiplier 2
        const V t364 = t20 - t13;
        const V t365 = t12 + t19;
        const V t366 = t13 + t20;
        const V t367 = t12 - t19;
        const V t368 = t364 - t47;
        const V t369 = t365 + t46;
        const V t370 = c[0] * t364;
        const V t371 = t47 + t370;
        const V t372 = c[0] * t365;
        const V t373 = t46 - t372;
        const V t374 = c[1] * t366;
        const V t375 = c[1] * t367;
        const V t376 = t375 - t371;
        const V t377 = t373 + t374;
        const V t378 = t371 + t375;
        const V t379 = t373 - t374;
        // complex block of 3, multiplier 2
        const V t380 = t32 - t1;
        const V t381 = t0 + t31;
        const V t382 = t1 + t32;
        const V t383 = t0 - t31;
        const V t384 = t380 - t35;
        const V t385 = t381 + t34;
        const V t386 = c[0] * t380;
        const V t387 = t35 + t386;
        const V t388 = c[0] * t381;
        const V t389 = t34 - t388;
        const V t390 = c[1] * t382;
        const V t391 = c[1] * t383;
        const V t392 = t391 - t387;
        const V t393 = t389 + t390;
        const V t394 = t387 + t391;
        const V t395 = t389 - t390;
        // complex block of 3, multiplier 2
        const V t396 = t9 + t43;
        const V t397 = t8 + t42;
        const V t398 = t9 - t43;
        const V t399 = t8 - t42;
        const V t400 = t396 - t24;
        const V t401 = t397 + t23;
        const V t402 = c[0] * t396;
        const V t403 = t24 + t402;
        const V t404 = c[0] * t397;
        const V t405 = t23 - t404;
        const V t406 = c[1] * t398;
        const V t407 = c[1] * t399;
        const V t408 = t407 - t403;
        const V t409 = t405 - t406;
        const V t410 = t403 + t407;
        const V t411 = t405 + t406;
        // complex block of 3, multiplier 2
        const V t412 = t384 + t400;
        const V t413 = t385 + t401;
        const V t414 = t384 - t400;
        const V t415 = t385 - t401;
        const V t416 = t412 + t368;
        const V t417 = t413 + t369;
        const V t418 = c[0] * t412;
        const V t419 = t368 - t418;
        const V t420 = c[0] * t413;
        const V t421 = t369 - t420;
        const V t422 = c[1] * t414;
        const V t423 = c[1] * t415;
        const V t424 = t419 + t423;
        const V t425 = t421 - t422;
        const V t426 = t419 - t423;
        const V t427 = t421 + t422;
        // complex block of 9, multiplier 2
        const V t428 = c[4] * t395;
        const V t429 = c[5] * t394;
        const V t430 = t428 - t429;
        const V t431 = c[4] * t394;
        const V t432 = c[5] * t395;
        const V t433 = t432 + t431;
        const V t434 = c[2] * t411;
        const V t435 = c[3] * t410;
        const V t436 = t435 + t434;
        const V t437 = c[2] * t410;
        const V t438 = c[3] * t411;
        const V t439 = t437 - t438;
        // complex block of 3, multiplier 2
        const V t440 = t430 + t436;
        const V t441 = t433 + t439;
        const V t442 = t430 - t436;
        const V t443 = t433 - t439;
        const V t444 = t440 - t378;
        const V t445 = t441 + t379;
        const V t446 = c[0] * t440;
        const V t447 = t378 + t446;
        const V t448 = c[0] * t441;
        const V t449 = t379 - t448;
        const V t450 = c[1] * t442;
        const V t451 = c[1] * t443;
        const V t452 = t451 - t447;
        const V t453 = t449 - t450;
        const V t454 = t447 + t451;
        const V t455 = t449 + t450;
        // complex block of 9, multiplier 2
        const V t456 = c[2] * t393;
        const V t457 = c[3] * t392;
        const V t458 = t456 - t457;
        const V t459 = c[2] * t392;
        const V t460 = c[3] * t393;
        const V t461 = t460 + t459;
        const V t462 = c[10] * t409;
        const V t463 = c[11] * t408;
        const V t464 = t463 - t462;
        const V t465 = c[10] * t408;
        const V t466 = c[11] * t409;
        const V t467 = t466 + t465;
        // complex block of 3, multiplier 2
        const V t468 = t458 + t464;
        const V t469 = t467 - t461;
        const V t470 = t458 - t464;
        const V t471 = t461 + t467;
        const V t472 = t468 + t376;
        const V t473 = t469 + t377;
        const V t474 = c[0] * t468;
        const V t475 = t376 - t474;
        const V t476 = c[0] * t469;
        const V t477 = t377 - t476;
        const V t478 = c[1] * t470;
        const V t479 = c[1] * t471;
        const V t480 = t475 - t479;
        const V t481 = t477 - t478;
        const V t482 = t475 + t479;
        const V t483 = t477 + t478;
        // spectrum block of 27, multiplier 2
        const V t484 = c[13] * t444;
        const V t485 = c[14] * t445;
        const V t486 = t485 - t484;
        const V t487 = c[15] * t472;
        const V t488 = c[16] * t473;
        const V t489 = t488 - t487;
        const V t490 = c[4] * t426;
        const V t491 = c[5] * t427;
        const V t492 = t491 - t490;
        const V t493 = c[17] * t454;
        const V t494 = c[18] * t455;
        const V t495 = t493 - t494;
        const V t496 = c[19] * t482;
        const V t497 = c[20] * t483;
        const V t498 = t497 + t496;
        const V t499 = c[2] * t424;
        const V t500 = c[3] * t425;
        const V t501 = t500 + t499;
        const V t502 = c[21] * t452;
        const V t503 = c[22] * t453;
        const V t504 = t502 - t503;
        const V t505 = c[23] * t480;
        const V t506 = c[24] * t481;
        const V t507 = t505 - t506;
        // spectrum block of 3, multiplier 2
        const V t508 = t417 + t342;
        const V t509 = c[0] * t417;
        const V t510 = t342 - t509;
        const V t511 = c[1] * t416;
        const V t512 = t510 - t511;
        const V t513 = t510 + t511;
        // spectrum block of 3, multiplier 2
        const V t514 = t486 + t348;
        const V t515 = c[0] * t486;
        const V t516 = t348 - t515;
        const V t517 = c[25] * t444;
        const V t518 = c[26] * t445;
        const V t519 = t517 + t518;
        const V t520 = t516 - t519;
        const V t521 = t516 + t519;
        // spectrum block of 3, multiplier 2
        const V t522 = t489 + t356;
        const V t523 = c[0] * t489;
        const V t524 = t356 - t523;
        const V t525 = c[27] * t472;
        const V t526 = c[28] * t473;
        const V t527 = t525 + t526;
        const V t528 = t524 - t527;
        const V t529 = t524 + t527;
        // spectrum block of 3, multiplier 2
        const V t530 = t492 + t347;
        const V t531 = c[0] * t492;
        const V t532 = t347 - t531;
        const V t533 = c[6] * t426;
        const V t534 = c[7] * t427;
        const V t535 = t533 + t534;
        const V t536 = t532 - t535;
        const V t537 = t532 + t535;
        // spectrum block of 3, multiplier 2
        const V t538 = t495 + t355;
        const V t539 = c[0] * t495;
        const V t540 = t355 - t539;
        const V t541 = c[30] * t454;
        const V t542 = c[29] * t455;
        const V t543 = t541 + t542;
        const V t544 = t540 - t543;
        const V t545 = t540 + t543;
        // spectrum block of 3, multiplier 2
        const V t546 = t363 - t498;
        const V t547 = c[0] * t498;
        const V t548 = t547 + t363;
        const V t549 = c[31] * t483;
        const V t550 = c[32] * t482;
        const V t551 = t549 - t550;
        const V t552 = t548 - t551;
        const V t553 = t548 + t551;
        // spectrum block of 3, multiplier 2
        const V t554 = t346 - t501;
        const V t555 = c[0] * t501;
        const V t556 = t555 + t346;
        const V t557 = c[8] * t425;
        const V t558 = c[9] * t424;
        const V t559 = t557 - t558;
        const V t560 = t556 - t559;
        const V t561 = t556 + t559;
        // spectrum block of 3, multiplier 2
        const V t562 = t504 + t354;
        const V t563 = c[0] * t504;
        const V t564 = t354 - t563;
        const V t565 = c[33] * t452;
        const V t566 = c[34] * t453;
        const V t567 = t565 + t566;
        const V t568 = t564 + t567;
        const V t569 = t564 - t567;
        // spectrum block of 3, multiplier 2
        const V t570 = t507 + t362;
        const V t571 = c[0] * t507;
        const V t572 = t362 - t571;
        const V t573 = c[35] * t480;
        const V t574 = c[36] * t481;
        const V t575 = t573 + t574;
        const V t576 = t572 + t575;
        const V t577 = t572 - t575;
        // spectrum block of 2
        const V t578 = t244 + t508;
        io.out(0, t578);
        const V t579 = t244 - t508;
        io.out(27, t579);
        // spectrum block of 2
        const V t580 = t250 + t514;
        io.out(2, t580);
        const V t581 = t250 - t514;
        io.out(29, t581);
        // spectrum block of 2
        const V t582 = t258 + t522;
        io.out(4, t582);
        const V t583 = t258 - t522;
        io.out(31, t583);
        // spectrum block of 2
        const V t584 = t266 + t530;
        io.out(6, t584);
        const V t585 = t266 - t530;
        io.out(33, t585);
        // spectrum block of 2
        const V t586 = t274 + t538;
        io.out(8, t586);
        const V t587 = t274 - t538;
        io.out(35, t587);
        // spectrum block of 2
        const V t588 = t282 + t546;
        io.out(10, t588);
        const V t589 = t282 - t546;
        io.out(37, t589);
        // spectrum block of 2
        const V t590 = t290 + t554;
        io.out(12, t590);
        const V t591 = t290 - t554;
        io.out(39, t591);
        // spectrum block of 2
        const V t592 = t298 + t562;
        io.out(14, t592);
        const V t593 = t298 - t562;
        io.out(41, t593);
        // spectrum block of 2
        const V t594 = t306 + t570;
        io.out(16, t594);
        const V t595 = t306 - t570;
        io.out(43, t595);
        // spectrum block of 2
        const V t596 = t249 + t513;
        io.out(18, t596);
        const V t597 = t249 - t513;
        io.out(45, t597);
        // spectrum block of 2
        const V t598 = t257 + t521;
        io.out(20, t598);
        const V t599 = t257 - t521;
        io.out(47, t599);
        // spectrum block of 2
        const V t600 = t265 + t529;
        io.out(22, t600);
        const V t601 = t265 - t529;
        io.out(49, t601);
        // spectrum block of 2
        const V t602 = t273 + t537;
        io.out(24, t602);
        const V t603 = t273 - t537;
        io.out(51, t603);
        // spectrum block of 2
        const V t604 = t281 + t545;
        io.out(26, t604);
        const V t605 = t281 - t545;
        io.out(53, t605);
        // spectrum block of 2
        const V t606 = t289 + t553;
        io.out(28, t606);
        const V t607 = t289 - t553;
        io.out(1, t607);
        // spectrum block of 2
        const V t608 = t297 + t561;
        io.out(30, t608);
        const V t609 = t297 - t561;
        io.out(3, t609);
        // spectrum block of 2
        const V t610 = t305 + t569;
        io.out(32, t610);
        const V t611 = t305 - t569;
        io.out(5, t611);
        // spectrum block of 2
        const V t612 = t313 + t577;
        io.out(34, t612);
        const V t613 = t313 - t577;
        io.out(7, t613);
        // spectrum block of 2
        const V t614 = t248 + t512;
        io.out(36, t614);
        const V t615 = t248 - t512;
        io.out(9, t615);
        // spectrum block of 2
        const V t616 = t256 + t520;
        io.out(38, t616);
        const V t617 = t256 - t520;
        io.out(11, t617);
        // spectrum block of 2
        const V t618 = t264 + t528;
        io.out(40, t618);
        const V t619 = t264 - t528;
        io.out(13, t619);
        // spectrum block of 2
        const V t620 = t272 + t536;
        io.out(42, t620);
        const V t621 = t272 - t536;
        io.out(15, t621);
        // spectrum block of 2
        const V t622 = t280 + t544;
        io.out(44, t622);
        const V t623 = t280 - t544;
        io.out(17, t623);
        // spectrum block of 2
        const V t624 = t288 + t552;
        io.out(46, t624);
        const V t625 = t288 - t552;
        io.out(19, t625);
        // spectrum block of 2
        const V t626 = t296 + t560;
        io.out(48, t626);
        const V t627 = t296 - t560;
        io.out(21, t627);
        // spectrum block of 2
        const V t628 = t304 + t568;
        io.out(50, t628);
        const V t629 = t304 - t568;
        io.out(23, t629);
        // spectrum block of 2
        const V t630 = t312 + t576;
        io.out(52, t630);
        const V t631 = t312 - t576;
        io.out(25, t631);
    }
};

}  // namespace zulg
