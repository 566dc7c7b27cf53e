// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 57.
// Inverse DFT to 57 real points, prime-factor 3, 19.
// 302 additions, 302 subtractions, 423 multiplications (480 with `scale`); 32 constants; 61 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<57> {
    static constexpr int steps = 1084;  // with `scale`
    static constexpr double inverseRoot = 0.13245323570650439;  // 1/sqrt(57), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.6427876096865394,  // c[4]: sin 2 pi 1/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.48419213608836237,  // c[6]: -P[1] of 19
        0.011219473461650014,  // c[7]: -Q[1] of 19
        0.4483141527641826,  // c[8]: -Q[2] of 19
        0.18325479984409965,  // c[9]: -P[2] of 19
        0.28199561460730244,  // c[10]: -P[3] of 19
        0.3937592850674352,  // c[11]: -Q[3] of 19
        0.4781837436243932,  // c[12]: Q[4] of 19
        0.0768648721323888,  // c[13]: P[4] of 19
        0.0003161186210583505,  // c[14]: P[5] of 19
        0.48432200167201295,  // c[15]: -Q[5] of 19
        0.10231284930367265,  // c[16]: -Q[6] of 19
        0.47339199623771827,  // c[17]: P[6] of 19
        0.4454859456092568,  // c[18]: -P[7] of 19
        0.19002677048035677,  // c[19]: -Q[7] of 19
        0.4232102035221754,  // c[20]: Q[8] of 19
        0.235501645151975,  // c[21]: P[8] of 19
        0.3420201433256687,  // c[22]: -sin 2 pi 5/9
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.1503837331804353,  // c[24]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[25]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.8137976813493737,  // c[26]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.29619813272602386,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.05555555555555555,  // c[28]: 1/18
        0.2421610524189263,  // c[29]: beta of 19
        1.7320508075688772,  // c[30]: sin 2 pi 1/3 times 2
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
        const V x9i = io.im(9);
        const V t17 = two * x9i;
        const V x10r = io.re(10);
        const V t18 = two * x10r;
        const V x10i = io.im(10);
        const V t19 = two * x10i;
        const V x11r = io.re(11);
        const V t20 = two * x11r;
        const V x11i = io.im(11);
        const V t21 = two * x11i;
        const V x12r = io.re(12);
        const V t22 = two * x12r;
        const V x12i = io.im(12);
        const V t23 = two * x12i;
        const V x13r = io.re(13);
        const V t24 = two * x13r;
        const V x13i = io.im(13);
        const V t25 = two * x13i;
        const V x14r = io.re(14);
        const V t26 = two * x14r;
        const V x14i = io.im(14);
        const V t27 = two * x14i;
        const V x15r = io.re(15);
        const V t28 = two * x15r;
        const V x15i = io.im(15);
        const V t29 = two * x15i;
        const V x16r = io.re(16);
        const V t30 = two * x16r;
        const V x16i = io.im(16);
        const V t31 = two * x16i;
        const V x17r = io.re(17);
        const V t32 = two * x17r;
        const V x17i = io.im(17);
        const V t33 = two * x17i;
        const V x18r = io.re(18);
        const V t34 = two * x18r;
        const V x18i = io.im(18);
        const V t35 = two * x18i;
        const V x19r = io.re(19);
        const V t36 = two * x19r;
        const V x20r = io.re(20);
        const V t37 = two * x20r;
        const V x20i = io.im(20);
        const V t38 = two * x20i;
        const V x21r = io.re(21);
        const V t39 = two * x21r;
        const V x21i = io.im(21);
        const V t40 = two * x21i;
        const V x22r = io.re(22);
        const V t41 = two * x22r;
        const V x22i = io.im(22);
        const V t42 = two * x22i;
        const V x23r = io.re(23);
        const V t43 = two * x23r;
        const V x23i = io.im(23);
        const V t44 = two * x23i;
        const V x24r = io.re(24);
        const V t45 = two * x24r;
        const V x24i = io.im(24);
        const V t46 = two * x24i;
        const V x25r = io.re(25);
        const V t47 = two * x25r;
        const V x25i = io.im(25);
        const V t48 = two * x25i;
        const V x26r = io.re(26);
        const V t49 = two * x26r;
        const V x26i = io.im(26);
        const V t50 = two * x26i;
        const V x27r = io.re(27);
        const V t51 = two * x27r;
        const V x27i = io.im(27);
        const V t52 = two * x27i;
        const V x28r = io.re(28);
        const V t53 = two * x28r;
        const V x28i = io.im(28);
        const V t54 = two * x28i;
        // spectrum block of 3
        const V x0r = io.re(0);
        const V t55 = t36 + x0r;
        const V t56 = c[0] * t36;
        const V t57 = x0r - t56;
        const V x19i = io.im(19);
        const V t58 = c[30] * x19i;
        const V t59 = t57 - t58;
        const V t60 = t57 + t58;
        // complex block of 3
        const V t61 = t42 - t31;
        const V t62 = t41 + t30;
        const V t63 = t42 + t31;
        const V t64 = t41 - t30;
        const V t65 = t61 + t5;
        const V t66 = t62 + t4;
        const V t67 = c[0] * t61;
        const V t68 = t5 - t67;
        const V t69 = c[0] * t62;
        const V t70 = t4 - t69;
        const V t71 = c[1] * t63;
        const V t72 = c[1] * t64;
        const V t73 = t68 + t72;
        const V t74 = t70 - t71;
        const V t75 = t68 - t72;
        const V t76 = t70 + t71;
        // complex block of 3
        const V t77 = t48 - t25;
        const V t78 = t47 + t24;
        const V t79 = t48 + t25;
        const V t80 = t47 - t24;
        const V t81 = t77 + t11;
        const V t82 = t78 + t10;
        const V t83 = c[0] * t77;
        const V t84 = t11 - t83;
        const V t85 = c[0] * t78;
        const V t86 = t10 - t85;
        const V t87 = c[1] * t79;
        const V t88 = c[1] * t80;
        const V t89 = t84 + t88;
        const V t90 = t86 - t87;
        const V t91 = t84 - t88;
        const V t92 = t86 + t87;
        // complex block of 3
        const V t93 = t54 - t19;
        const V t94 = t53 + t18;
        const V t95 = t54 + t19;
        const V t96 = t53 - t18;
        const V t97 = t93 + t17;
        const V t98 = t94 + t16;
        const V t99 = c[0] * t93;
        const V t100 = t17 - t99;
        const V t101 = c[0] * t94;
        const V t102 = t16 - t101;
        const V t103 = c[1] * t95;
        const V t104 = c[1] * t96;
        const V t105 = t100 + t104;
        const V t106 = t102 - t103;
        const V t107 = t100 - t104;
        const V t108 = t102 + t103;
        // complex block of 3
        const V t109 = t50 + t13;
        const V t110 = t49 + t12;
        const V t111 = t13 - t50;
        const V t112 = t49 - t12;
        const V t113 = t23 - t109;
        const V t114 = t110 + t22;
        const V t115 = c[0] * t109;
        const V t116 = t115 + t23;
        const V t117 = c[0] * t110;
        const V t118 = t22 - t117;
        const V t119 = c[1] * t111;
        const V t120 = c[1] * t112;
        const V t121 = t116 + t120;
        const V t122 = t118 - t119;
        const V t123 = t116 - t120;
        const V t124 = t118 + t119;
        // complex block of 3
        const V t125 = t44 + t7;
        const V t126 = t43 + t6;
        const V t127 = t7 - t44;
        const V t128 = t43 - t6;
        const V t129 = t29 - t125;
        const V t130 = t126 + t28;
        const V t131 = c[0] * t125;
        const V t132 = t131 + t29;
        const V t133 = c[0] * t126;
        const V t134 = t28 - t133;
        const V t135 = c[1] * t127;
        const V t136 = c[1] * t128;
        const V t137 = t132 + t136;
        const V t138 = t134 - t135;
        const V t139 = t132 - t136;
        const V t140 = t134 + t135;
        // complex block of 3
        const V t141 = t38 + t1;
        const V t142 = t37 + t0;
        const V t143 = t1 - t38;
        const V t144 = t37 - t0;
        const V t145 = t35 - t141;
        const V t146 = t142 + t34;
        const V t147 = c[0] * t141;
        const V t148 = t147 + t35;
        const V t149 = c[0] * t142;
        const V t150 = t34 - t149;
        const V t151 = c[1] * t143;
        const V t152 = c[1] * t144;
        const V t153 = t148 + t152;
        const V t154 = t150 - t151;
        const V t155 = t148 - t152;
        const V t156 = t150 + t151;
        // complex block of 3
        const V t157 = t3 - t33;
        const V t158 = t32 + t2;
        const V t159 = t33 + t3;
        const V t160 = t32 - t2;
        const V t161 = t157 + t40;
        const V t162 = t158 + t39;
        const V t163 = c[0] * t157;
        const V t164 = t40 - t163;
        const V t165 = c[0] * t158;
        const V t166 = t39 - t165;
        const V t167 = c[1] * t159;
        const V t168 = c[1] * t160;
        const V t169 = t164 + t168;
        const V t170 = t166 + t167;
        const V t171 = t164 - t168;
        const V t172 = t166 - t167;
        // complex block of 3
        const V t173 = t9 - t27;
        const V t174 = t26 + t8;
        const V t175 = t27 + t9;
        const V t176 = t26 - t8;
        const V t177 = t173 + t46;
        const V t178 = t174 + t45;
        const V t179 = c[0] * t173;
        const V t180 = t46 - t179;
        const V t181 = c[0] * t174;
        const V t182 = t45 - t181;
        const V t183 = c[1] * t175;
        const V t184 = c[1] * t176;
        const V t185 = t180 + t184;
        const V t186 = t182 + t183;
        const V t187 = t180 - t184;
        const V t188 = t182 - t183;
        // complex block of 3
        const V t189 = t15 - t21;
        const V t190 = t20 + t14;
        const V t191 = t21 + t15;
        const V t192 = t20 - t14;
        const V t193 = t189 + t52;
        const V t194 = t190 + t51;
        const V t195 = c[0] * t189;
        const V t196 = t52 - t195;
        const V t197 = c[0] * t190;
        const V t198 = t51 - t197;
        const V t199 = c[1] * t191;
        const V t200 = c[1] * t192;
        const V t201 = t196 + t200;
        const V t202 = t198 + t199;
        const V t203 = t196 - t200;
        const V t204 = t198 - t199;
        // real block of 3
        const V t205 = t178 + t162;
        const V t206 = t178 - t162;
        const V t207 = t205 + t66;
        const V t208 = c[0] * t205;
        const V t209 = t66 - t208;
        const V t210 = c[1] * t206;
        // real block of 3
        const V t211 = t98 + t130;
        const V t212 = t98 - t130;
        const V t213 = t211 + t82;
        const V t214 = c[0] * t211;
        const V t215 = t82 - t214;
        const V t216 = c[1] * t212;
        // real block of 3
        const V t217 = t146 + t194;
        const V t218 = t146 - t194;
        const V t219 = t217 + t114;
        const V t220 = c[0] * t217;
        const V t221 = t114 - t220;
        const V t222 = c[1] * t218;
        // real block of 3
        const V t223 = t213 + t219;
        const V t224 = t213 - t219;
        const V t225 = t223 + t207;
        const V t226 = c[0] * t223;
        const V t227 = t207 - t226;
        const V t228 = c[1] * t224;
        // real block of 9
        const V t229 = c[4] * t216;
        const V t230 = c[5] * t215;
        const V t231 = t230 - t229;
        const V t232 = c[4] * t215;
        const V t233 = c[5] * t216;
        const V t234 = t233 + t232;
        const V t235 = c[2] * t222;
        const V t236 = c[3] * t221;
        const V t237 = t236 - t235;
        const V t238 = c[2] * t221;
        const V t239 = c[3] * t222;
        const V t240 = t239 + t238;
        // complex block of 3
        const V t241 = t231 + t237;
        const V t242 = t234 + t240;
        const V t243 = t231 - t237;
        const V t244 = t240 - t234;
        const V t245 = t241 + t209;
        const V t246 = t242 + t210;
        const V t247 = c[0] * t241;
        const V t248 = t209 - t247;
        const V t249 = c[0] * t242;
        const V t250 = t249 - t210;
        const V t251 = c[1] * t243;
        const V t252 = c[1] * t244;
        const V t253 = t248 + t252;
        const V t254 = t250 - t251;
        const V t255 = t248 - t252;
        const V t256 = t250 + t251;
        // real block of 3
        const V t257 = t161 - t177;
        const V t258 = t177 + t161;
        const V t259 = t257 + t65;
        const V t260 = c[0] * t257;
        const V t261 = t65 - t260;
        const V t262 = c[1] * t258;
        // real block of 3
        const V t263 = t129 - t97;
        const V t264 = t97 + t129;
        const V t265 = t263 - t81;
        const V t266 = c[0] * t263;
        const V t267 = t81 + t266;
        const V t268 = c[1] * t264;
        // real block of 3
        const V t269 = t145 + t193;
        const V t270 = t145 - t193;
        const V t271 = t269 + t113;
        const V t272 = c[0] * t269;
        const V t273 = t113 - t272;
        const V t274 = c[1] * t270;
        // real block of 3
        const V t275 = t265 + t271;
        const V t276 = t265 - t271;
        const V t277 = t275 + t259;
        const V t278 = c[0] * t275;
        const V t279 = t259 - t278;
        const V t280 = c[1] * t276;
        // real block of 9
        const V t281 = c[4] * t268;
        const V t282 = c[5] * t267;
        const V t283 = t281 - t282;
        const V t284 = c[4] * t267;
        const V t285 = c[5] * t268;
        const V t286 = t285 + t284;
        const V t287 = c[2] * t274;
        const V t288 = c[3] * t273;
        const V t289 = t288 - t287;
        const V t290 = c[2] * t273;
        const V t291 = c[3] * t274;
        const V t292 = t291 + t290;
        // complex block of 3
        const V t293 = t283 + t289;
        const V t294 = t286 - t292;
        const V t295 = t283 - t289;
        const V t296 = t286 + t292;
        const V t297 = t293 + t261;
        const V t298 = t294 + t262;
        const V t299 = c[0] * t293;
        const V t300 = t261 - t299;
        const V t301 = c[0] * t294;
        const V t302 = t262 - t301;
        const V t303 = c[1] * t295;
        const V t304 = c[1] * t296;
        const V t305 = t300 + t304;
        const V t306 = t302 - t303;
        const V t307 = t300 - t304;
        const V t308 = t302 + t303;
        // spectrum block of 19, multiplier 3
        const V t309 = c[28] * t225;
        const V t310 = t55 - t309;
        const V t311 = c[6] * t306;
        const V t312 = c[7] * t305;
        const V t313 = t312 + t311;
        const V t314 = c[6] * t305;
        const V t315 = c[7] * t306;
        const V t316 = t315 - t314;
        const V t317 = c[8] * t246;
        const V t318 = c[9] * t245;
        const V t319 = t318 + t317;
        const V t320 = c[8] * t245;
        const V t321 = c[9] * t246;
        const V t322 = t321 - t320;
        const V t323 = c[10] * t280;
        const V t324 = c[11] * t279;
        const V t325 = t323 - t324;
        const V t326 = c[10] * t279;
        const V t327 = c[11] * t280;
        const V t328 = t327 + t326;
        const V t329 = c[12] * t256;
        const V t330 = c[13] * t255;
        const V t331 = t330 + t329;
        const V t332 = c[12] * t255;
        const V t333 = c[13] * t256;
        const V t334 = t332 - t333;
        const V t335 = c[14] * t308;
        const V t336 = c[15] * t307;
        const V t337 = t336 + t335;
        const V t338 = c[14] * t307;
        const V t339 = c[15] * t308;
        const V t340 = t338 - t339;
        const V t341 = c[16] * t228;
        const V t342 = c[17] * t227;
        const V t343 = t342 - t341;
        const V t344 = c[16] * t227;
        const V t345 = c[17] * t228;
        const V t346 = t345 + t344;
        const V t347 = c[18] * t298;
        const V t348 = c[19] * t297;
        const V t349 = t348 + t347;
        const V t350 = c[18] * t297;
        const V t351 = c[19] * t298;
        const V t352 = t351 - t350;
        const V t353 = c[20] * t254;
        const V t354 = c[21] * t253;
        const V t355 = t354 - t353;
        const V t356 = c[20] * t253;
        const V t357 = c[21] * t254;
        const V t358 = t357 + t356;
        const V t359 = c[29] * t277;
        // spectrum block of 2
        const V t360 = t310 + t359;
        const V t361 = t310 - t359;
        // complex block of 2
        const V t362 = t322 - t352;
        const V t363 = t319 + t349;
        const V t364 = t322 + t352;
        const V t365 = t349 - t319;
        // complex block of 2
        const V t366 = t334 - t340;
        const V t367 = t331 - t337;
        const V t368 = t334 + t340;
        const V t369 = t331 + t337;
        // complex block of 2
        const V t370 = t328 - t346;
        const V t371 = t343 + t325;
        const V t372 = t346 + t328;
        const V t373 = t343 - t325;
        // complex block of 2
        const V t374 = t358 - t316;
        const V t375 = t355 - t313;
        const V t376 = t358 + t316;
        const V t377 = t355 + t313;
        // spectrum block of 3, multiplier 2
        const V t378 = t371 + t360;
        const V t379 = c[0] * t371;
        const V t380 = t360 - t379;
        const V t381 = c[1] * t370;
        const V t382 = t380 - t381;
        const V t383 = t380 + t381;
        // complex block of 3, multiplier 2
        const V t384 = t374 - t366;
        const V t385 = t375 + t367;
        const V t386 = t374 + t366;
        const V t387 = t375 - t367;
        const V t388 = t384 + t362;
        const V t389 = t385 - t363;
        const V t390 = c[0] * t384;
        const V t391 = t362 - t390;
        const V t392 = c[0] * t385;
        const V t393 = t363 + t392;
        const V t394 = c[1] * t386;
        const V t395 = c[1] * t387;
        const V t396 = t391 + t395;
        const V t397 = t393 + t394;
        const V t398 = t391 - t395;
        const V t399 = t394 - t393;
        // spectrum block of 9, multiplier 2
        const V t400 = c[2] * t398;
        const V t401 = c[3] * t399;
        const V t402 = t401 - t400;
        const V t403 = c[22] * t396;
        const V t404 = c[23] * t397;
        const V t405 = t404 - t403;
        // spectrum block of 3, multiplier 2
        const V t406 = t389 + t378;
        io.out(3, t406);
        const V t407 = c[0] * t389;
        const V t408 = t378 - t407;
        const V t409 = c[1] * t388;
        const V t410 = t408 - t409;
        io.out(21, t410);
        const V t411 = t408 + t409;
        io.out(33, t411);
        // spectrum block of 3, multiplier 2
        const V t412 = t402 + t383;
        io.out(15, t412);
        const V t413 = c[0] * t402;
        const V t414 = t383 - t413;
        const V t415 = c[24] * t398;
        const V t416 = c[25] * t399;
        const V t417 = t415 + t416;
        const V t418 = t414 - t417;
        io.out(48, t418);
        const V t419 = t414 + t417;
        io.out(51, t419);
        // spectrum block of 3, multiplier 2
        const V t420 = t405 + t382;
        io.out(18, t420);
        const V t421 = c[0] * t405;
        const V t422 = t382 - t421;
        const V t423 = c[26] * t396;
        const V t424 = c[27] * t397;
        const V t425 = t423 + t424;
        const V t426 = t422 + t425;
        io.out(12, t426);
        const V t427 = t422 - t425;
        io.out(27, t427);
        // spectrum block of 3, multiplier 2
        const V t428 = t373 + t361;
        const V t429 = c[0] * t373;
        const V t430 = t361 - t429;
        const V t431 = c[1] * t372;
        const V t432 = t430 + t431;
        const V t433 = t430 - t431;
        // complex block of 3, multiplier 2
        const V t434 = t376 - t368;
        const V t435 = t377 + t369;
        const V t436 = t376 + t368;
        const V t437 = t377 - t369;
        const V t438 = t434 + t364;
        const V t439 = t435 + t365;
        const V t440 = c[0] * t434;
        const V t441 = t364 - t440;
        const V t442 = c[0] * t435;
        const V t443 = t365 - t442;
        const V t444 = c[1] * t436;
        const V t445 = c[1] * t437;
        const V t446 = t441 + t445;
        const V t447 = t443 - t444;
        const V t448 = t441 - t445;
        const V t449 = t443 + t444;
        // spectrum block of 9, multiplier 2
        const V t450 = c[2] * t448;
        const V t451 = c[3] * t449;
        const V t452 = t451 - t450;
        const V t453 = c[22] * t446;
        const V t454 = c[23] * t447;
        const V t455 = t454 + t453;
        // spectrum block of 3, multiplier 2
        const V t456 = t439 + t428;
        io.out(54, t456);
        const V t457 = c[0] * t439;
        const V t458 = t428 - t457;
        const V t459 = c[1] * t438;
        const V t460 = t458 - t459;
        io.out(36, t460);
        const V t461 = t458 + t459;
        io.out(24, t461);
        // spectrum block of 3, multiplier 2
        const V t462 = t452 + t433;
        io.out(42, t462);
        const V t463 = c[0] * t452;
        const V t464 = t433 - t463;
        const V t465 = c[24] * t448;
        const V t466 = c[25] * t449;
        const V t467 = t465 + t466;
        const V t468 = t464 - t467;
        io.out(9, t468);
        const V t469 = t464 + t467;
        io.out(6, t469);
        // spectrum block of 3, multiplier 2
        const V t470 = t432 - t455;
        io.out(39, t470);
        const V t471 = c[0] * t455;
        const V t472 = t471 + t432;
        const V t473 = c[27] * t447;
        const V t474 = c[26] * t446;
        const V t475 = t473 - t474;
        const V t476 = t472 - t475;
        io.out(45, t476);
        const V t477 = t472 + t475;
        io.out(30, t477);
        // spectrum block of 19, multiplier 3
        const V t478 = t55 + t225;
        io.out(0, t478);
        // real block of 3
        const V t479 = t186 + t170;
        const V t480 = t186 - t170;
        const V t481 = t479 + t74;
        const V t482 = c[0] * t479;
        const V t483 = t74 - t482;
        const V t484 = c[1] * t480;
        // real block of 3
        const V t485 = t106 + t138;
        const V t486 = t106 - t138;
        const V t487 = t485 + t90;
        const V t488 = c[0] * t485;
        const V t489 = t90 - t488;
        const V t490 = c[1] * t486;
        // real block of 3
        const V t491 = t154 + t202;
        const V t492 = t154 - t202;
        const V t493 = t491 + t122;
        const V t494 = c[0] * t491;
        const V t495 = t122 - t494;
        const V t496 = c[1] * t492;
        // real block of 3
        const V t497 = t487 + t493;
        const V t498 = t487 - t493;
        const V t499 = t497 + t481;
        const V t500 = c[0] * t497;
        const V t501 = t481 - t500;
        const V t502 = c[1] * t498;
        // real block of 9
        const V t503 = c[4] * t490;
        const V t504 = c[5] * t489;
        const V t505 = t504 - t503;
        const V t506 = c[4] * t489;
        const V t507 = c[5] * t490;
        const V t508 = t507 + t506;
        const V t509 = c[2] * t496;
        const V t510 = c[3] * t495;
        const V t511 = t510 - t509;
        const V t512 = c[2] * t495;
        const V t513 = c[3] * t496;
        const V t514 = t513 + t512;
        // complex block of 3
        const V t515 = t505 + t511;
        const V t516 = t508 + t514;
        const V t517 = t505 - t511;
        const V t518 = t514 - t508;
        const V t519 = t515 + t483;
        const V t520 = t516 + t484;
        const V t521 = c[0] * t515;
        const V t522 = t483 - t521;
        const V t523 = c[0] * t516;
        const V t524 = t523 - t484;
        const V t525 = c[1] * t517;
        const V t526 = c[1] * t518;
        const V t527 = t522 + t526;
        const V t528 = t524 - t525;
        const V t529 = t522 - t526;
        const V t530 = t524 + t525;
        // real block of 3
        const V t531 = t169 - t185;
        const V t532 = t185 + t169;
        const V t533 = t531 + t73;
        const V t534 = c[0] * t531;
        const V t535 = t73 - t534;
        const V t536 = c[1] * t532;
        // real block of 3
        const V t537 = t137 - t105;
        const V t538 = t105 + t137;
        const V t539 = t537 - t89;
        const V t540 = c[0] * t537;
        const V t541 = t89 + t540;
        const V t542 = c[1] * t538;
        // real block of 3
        const V t543 = t153 + t201;
        const V t544 = t153 - t201;
        const V t545 = t543 + t121;
        const V t546 = c[0] * t543;
        const V t547 = t121 - t546;
        const V t548 = c[1] * t544;
        // real block of 3
        const V t549 = t539 + t545;
        const V t550 = t539 - t545;
        const V t551 = t549 + t533;
        const V t552 = c[0] * t549;
        const V t553 = t533 - t552;
        const V t554 = c[1] * t550;
        // real block of 9
        const V t555 = c[4] * t542;
        const V t556 = c[5] * t541;
        const V t557 = t555 - t556;
        const V t558 = c[4] * t541;
        const V t559 = c[5] * t542;
        const V t560 = t559 + t558;
        const V t561 = c[2] * t548;
        const V t562 = c[3] * t547;
        const V t563 = t562 - t561;
        const V t564 = c[2] * t547;
        const V t565 = c[3] * t548;
        const V t566 = t565 + t564;
        // complex block of 3
        const V t567 = t557 + t563;
        const V t568 = t560 - t566;
        const V t569 = t557 - t563;
        const V t570 = t560 + t566;
        const V t571 = t567 + t535;
        const V t572 = t568 + t536;
        const V t573 = c[0] * t567;
        const V t574 = t535 - t573;
        const V t575 = c[0] * t568;
        const V t576 = t536 - t575;
        const V t577 = c[1] * t569;
        const V t578 = c[1] * t570;
        const V t579 = t574 + t578;
        const V t580 = t576 - t577;
        const V t581 = t574 - t578;
        const V t582 = t576 + t577;
        // spectrum block of 19, multiplier 3
        const V t583 = c[28] * t499;
        const V t584 = t59 - t583;
        const V t585 = c[6] * t580;
        const V t586 = c[7] * t579;
        const V t587 = t586 + t585;
        const V t588 = c[6] * t579;
        const V t589 = c[7] * t580;
        const V t590 = t589 - t588;
        const V t591 = c[8] * t520;
        const V t592 = c[9] * t519;
        const V t593 = t592 + t591;
        const V t594 = c[8] * t519;
        const V t595 = c[9] * t520;
        const V t596 = t595 - t594;
        const V t597 = c[10] * t554;
        const V t598 = c[11] * t553;
        const V t599 = t597 - t598;
        const V t600 = c[10] * t553;
        const V t601 = c[11] * t554;
        const V t602 = t601 + t600;
        const V t603 = c[12] * t530;
        const V t604 = c[13] * t529;
        const V t605 = t604 + t603;
        const V t606 = c[12] * t529;
        const V t607 = c[13] * t530;
        const V t608 = t606 - t607;
        const V t609 = c[14] * t582;
        const V t610 = c[15] * t581;
        const V t611 = t610 + t609;
        const V t612 = c[14] * t581;
        const V t613 = c[15] * t582;
        const V t614 = t612 - t613;
        const V t615 = c[16] * t502;
        const V t616 = c[17] * t501;
        const V t617 = t616 - t615;
        const V t618 = c[16] * t501;
        const V t619 = c[17] * t502;
        const V t620 = t619 + t618;
        const V t621 = c[18] * t572;
        const V t622 = c[19] * t571;
        const V t623 = t622 + t621;
        const V t624 = c[18] * t571;
        const V t625 = c[19] * t572;
        const V t626 = t625 - t624;
        const V t627 = c[20] * t528;
        const V t628 = c[21] * t527;
        const V t629 = t628 - t627;
        const V t630 = c[20] * t527;
        const V t631 = c[21] * t528;
        const V t632 = t631 + t630;
        const V t633 = c[29] * t551;
        // spectrum block of 2
        const V t634 = t584 + t633;
        const V t635 = t584 - t633;
        // complex block of 2
        const V t636 = t596 - t626;
        const V t637 = t593 + t623;
        const V t638 = t596 + t626;
        const V t639 = t623 - t593;
        // complex block of 2
        const V t640 = t608 - t614;
        const V t641 = t605 - t611;
        const V t642 = t608 + t614;
        const V t643 = t605 + t611;
        // complex block of 2
        const V t644 = t602 - t620;
        const V t645 = t617 + t599;
        const V t646 = t620 + t602;
        const V t647 = t617 - t599;
        // complex block of 2
        const V t648 = t632 - t590;
        const V t649 = t629 - t587;
        const V t650 = t632 + t590;
        const V t651 = t629 + t587;
        // spectrum block of 3, multiplier 2
        const V t652 = t645 + t634;
        const V t653 = c[0] * t645;
        const V t654 = t634 - t653;
        const V t655 = c[1] * t644;
        const V t656 = t654 - t655;
        const V t657 = t654 + t655;
        // complex block of 3, multiplier 2
        const V t658 = t648 - t640;
        const V t659 = t649 + t641;
        const V t660 = t648 + t640;
        const V t661 = t649 - t641;
        const V t662 = t658 + t636;
        const V t663 = t659 - t637;
        const V t664 = c[0] * t658;
        const V t665 = t636 - t664;
        const V t666 = c[0] * t659;
        const V t667 = t637 + t666;
        const V t668 = c[1] * t660;
        const V t669 = c[1] * t661;
        const V t670 = t665 + t669;
        const V t671 = t667 + t668;
        const V t672 = t665 - t669;
        const V t673 = t668 - t667;
        // spectrum block of 9, multiplier 2
        const V t674 = c[2] * t672;
        const V t675 = c[3] * t673;
        const V t676 = t675 - t674;
        const V t677 = c[22] * t670;
        const V t678 = c[23] * t671;
        const V t679 = t678 - t677;
        // spectrum block of 3, multiplier 2
        const V t680 = t663 + t652;
        io.out(22, t680);
        const V t681 = c[0] * t663;
        const V t682 = t652 - t681;
        const V t683 = c[1] * t662;
        const V t684 = t682 - t683;
        io.out(40, t684);
        const V t685 = t682 + t683;
        io.out(52, t685);
        // spectrum block of 3, multiplier 2
        const V t686 = t676 + t657;
        io.out(34, t686);
        const V t687 = c[0] * t676;
        const V t688 = t657 - t687;
        const V t689 = c[24] * t672;
        const V t690 = c[25] * t673;
        const V t691 = t689 + t690;
        const V t692 = t688 - t691;
        io.out(10, t692);
        const V t693 = t688 + t691;
        io.out(13, t693);
        // spectrum block of 3, multiplier 2
        const V t694 = t679 + t656;
        io.out(37, t694);
        const V t695 = c[0] * t679;
        const V t696 = t656 - t695;
        const V t697 = c[26] * t670;
        const V t698 = c[27] * t671;
        const V t699 = t697 + t698;
        const V t700 = t696 + t699;
        io.out(31, t700);
        const V t701 = t696 - t699;
        io.out(46, t701);
        // spectrum block of 3, multiplier 2
        const V t702 = t647 + t635;
        const V t703 = c[0] * t647;
        const V t704 = t635 - t703;
        const V t705 = c[1] * t646;
        const V t706 = t704 + t705;
        const V t707 = t704 - t705;
        // complex block of 3, multiplier 2
        const V t708 = t650 - t642;
        const V t709 = t651 + t643;
        const V t710 = t650 + t642;
        const V t711 = t651 - t643;
        const V t712 = t708 + t638;
        const V t713 = t709 + t639;
        const V t714 = c[0] * t708;
        const V t715 = t638 - t714;
        const V t716 = c[0] * t709;
        const V t717 = t639 - t716;
        const V t718 = c[1] * t710;
        const V t719 = c[1] * t711;
        const V t720 = t715 + t719;
        const V t721 = t717 - t718;
        const V t722 = t715 - t719;
        const V t723 = t717 + t718;
        // spectrum block of 9, multiplier 2
        const V t724 = c[2] * t722;
        const V t725 = c[3] * t723;
        const V t726 = t725 - t724;
        const V t727 = c[22] * t720;
        const V t728 = c[23] * t721;
        const V t729 = t728 + t727;
        // spectrum block of 3, multiplier 2
        const V t730 = t713 + t702;
        io.out(16, t730);
        const V t731 = c[0] * t713;
        const V t732 = t702 - t731;
        const V t733 = c[1] * t712;
        const V t734 = t732 - t733;
        io.out(55, t734);
        const V t735 = t732 + t733;
        io.out(43, t735);
        // spectrum block of 3, multiplier 2
        const V t736 = t726 + t707;
        io.out(4, t736);
        const V t737 = c[0] * t726;
        const V t738 = t707 - t737;
        const V t739 = c[24] * t722;
        const V t740 = c[25] * t723;
        const V t741 = t739 + t740;
        const V t742 = t738 - t741;
        io.out(28, t742);
        const V t743 = t738 + t741;
        io.out(25, t743);
        // spectrum block of 3, multiplier 2
        const V t744 = t706 - t729;
        io.out(1, t744);
        const V t745 = c[0] * t729;
        const V t746 = t745 + t706;
        const V t747 = c[27] * t721;
        const V t748 = c[26] * t720;
        const V t749 = t747 - t748;
        const V t750 = t746 - t749;
        io.out(7, t750);
        const V t751 = t746 + t749;
        io.out(49, t751);
        // spectrum block of 19, multiplier 3
        const V t752 = t59 + t499;
        io.out(19, t752);
        // real block of 3
        const V t753 = t188 + t172;
        const V t754 = t188 - t172;
        const V t755 = t753 + t76;
        const V t756 = c[0] * t753;
        const V t757 = t76 - t756;
        const V t758 = c[1] * t754;
        // real block of 3
        const V t759 = t108 + t140;
        const V t760 = t108 - t140;
        const V t761 = t759 + t92;
        const V t762 = c[0] * t759;
        const V t763 = t92 - t762;
        const V t764 = c[1] * t760;
        // real block of 3
        const V t765 = t156 + t204;
        const V t766 = t156 - t204;
        const V t767 = t765 + t124;
        const V t768 = c[0] * t765;
        const V t769 = t124 - t768;
        const V t770 = c[1] * t766;
        // real block of 3
        const V t771 = t761 + t767;
        const V t772 = t761 - t767;
        const V t773 = t771 + t755;
        const V t774 = c[0] * t771;
        const V t775 = t755 - t774;
        const V t776 = c[1] * t772;
        // real block of 9
        const V t777 = c[4] * t764;
        const V t778 = c[5] * t763;
        const V t779 = t778 - t777;
        const V t780 = c[4] * t763;
        const V t781 = c[5] * t764;
        const V t782 = t781 + t780;
        const V t783 = c[2] * t770;
        const V t784 = c[3] * t769;
        const V t785 = t784 - t783;
        const V t786 = c[2] * t769;
        const V t787 = c[3] * t770;
        const V t788 = t787 + t786;
        // complex block of 3
        const V t789 = t779 + t785;
        const V t790 = t782 + t788;
        const V t791 = t779 - t785;
        const V t792 = t788 - t782;
        const V t793 = t789 + t757;
        const V t794 = t790 + t758;
        const V t795 = c[0] * t789;
        const V t796 = t757 - t795;
        const V t797 = c[0] * t790;
        const V t798 = t797 - t758;
        const V t799 = c[1] * t791;
        const V t800 = c[1] * t792;
        const V t801 = t796 + t800;
        const V t802 = t798 - t799;
        const V t803 = t796 - t800;
        const V t804 = t798 + t799;
        // real block of 3
        const V t805 = t171 - t187;
        const V t806 = t187 + t171;
        const V t807 = t805 + t75;
        const V t808 = c[0] * t805;
        const V t809 = t75 - t808;
        const V t810 = c[1] * t806;
        // real block of 3
        const V t811 = t139 - t107;
        const V t812 = t107 + t139;
        const V t813 = t811 - t91;
        const V t814 = c[0] * t811;
        const V t815 = t91 + t814;
        const V t816 = c[1] * t812;
        // real block of 3
        const V t817 = t155 + t203;
        const V t818 = t155 - t203;
        const V t819 = t817 + t123;
        const V t820 = c[0] * t817;
        const V t821 = t123 - t820;
        const V t822 = c[1] * t818;
        // real block of 3
        const V t823 = t813 + t819;
        const V t824 = t813 - t819;
        const V t825 = t823 + t807;
        const V t826 = c[0] * t823;
        const V t827 = t807 - t826;
        const V t828 = c[1] * t824;
        // real block of 9
        const V t829 = c[4] * t816;
        const V t830 = c[5] * t815;
        const V t831 = t829 - t830;
        const V t832 = c[4] * t815;
        const V t833 = c[5] * t816;
        const V t834 = t833 + t832;
        const V t835 = c[2] * t822;
        const V t836 = c[3] * t821;
        const V t837 = t836 - t835;
        const V t838 = c[2] * t821;
        const V t839 = c[3] * t822;
        const V t840 = t839 + t838;
        // complex block of 3
        const V t841 = t831 + t837;
        const V t842 = t834 - t840;
        const V t843 = t831 - t837;
        const V t844 = t834 + t840;
        const V t845 = t841 + t809;
        const V t846 = t842 + t810;
        const V t847 = c[0] * t841;
        const V t848 = t809 - t847;
        const V t849 = c[0] * t842;
        const V t850 = t810 - t849;
        const V t851 = c[1] * t843;
        const V t852 = c[1] * t844;
        const V t853 = t848 + t852;
        const V t854 = t850 - t851;
        const V t855 = t848 - t852;
        const V t856 = t850 + t851;
        // spectrum block of 19, multiplier 3
        const V t857 = c[28] * t773;
        const V t858 = t60 - t857;
        const V t859 = c[6] * t854;
        const V t860 = c[7] * t853;
        const V t861 = t860 + t859;
        const V t862 = c[6] * t853;
        const V t863 = c[7] * t854;
        const V t864 = t863 - t862;
        const V t865 = c[8] * t794;
        const V t866 = c[9] * t793;
        const V t867 = t866 + t865;
        const V t868 = c[8] * t793;
        const V t869 = c[9] * t794;
        const V t870 = t869 - t868;
        const V t871 = c[10] * t828;
        const V t872 = c[11] * t827;
        const V t873 = t871 - t872;
        const V t874 = c[10] * t827;
        const V t875 = c[11] * t828;
        const V t876 = t875 + t874;
        const V t877 = c[12] * t804;
        const V t878 = c[13] * t803;
        const V t879 = t878 + t877;
        const V t880 = c[12] * t803;
        const V t881 = c[13] * t804;
        const V t882 = t880 - t881;
        const V t883 = c[14] * t856;
        const V t884 = c[15] * t855;
        const V t885 = t884 + t883;
        const V t886 = c[14] * t855;
        const V t887 = c[15] * t856;
        const V t888 = t886 - t887;
        const V t889 = c[16] * t776;
        const V t890 = c[17] * t775;
        const V t891 = t890 - t889;
        const V t892 = c[16] * t775;
        const V t893 = c[17] * t776;
        const V t894 = t893 + t892;
        const V t895 = c[18] * t846;
        const V t896 = c[19] * t845;
        const V t897 = t896 + t895;
        const V t898 = c[18] * t845;
        const V t899 = c[19] * t846;
        const V t900 = t899 - t898;
        const V t901 = c[20] * t802;
        const V t902 = c[21] * t801;
        const V t903 = t902 - t901;
        const V t904 = c[20] * t801;
        const V t905 = c[21] * t802;
        const V t906 = t905 + t904;
        const V t907 = c[29] * t825;
        // spectrum block of 2
        const V t908 = t858 + t907;
        const V t909 = t858 - t907;
        // complex block of 2
        const V t910 = t870 - t900;
        const V t911 = t867 + t897;
        const V t912 = t870 + t900;
        const V t913 = t897 - t867;
        // complex block of 2
        const V t914 = t882 - t888;
        const V t915 = t879 - t885;
        const V t916 = t882 + t888;
        const V t917 = t879 + t885;
        // complex block of 2
        const V t918 = t876 - t894;
        const V t919 = t891 + t873;
        const V t920 = t894 + t876;
        const V t921 = t891 - t873;
        // complex block of 2
        const V t922 = t906 - t864;
        const V t923 = t903 - t861;
        const V t924 = t906 + t864;
        const V t925 = t903 + t861;
        // spectrum block of 3, multiplier 2
        const V t926 = t919 + t908;
        const V t927 = c[0] * t919;
        const V t928 = t908 - t927;
        const V t929 = c[1] * t918;
        const V t930 = t928 - t929;
        const V t931 = t928 + t929;
        // complex block of 3, multiplier 2
        const V t932 = t922 - t914;
        const V t933 = t923 + t915;
        const V t934 = t922 + t914;
        const V t935 = t923 - t915;
        const V t936 = t932 + t910;
        const V t937 = t933 - t911;
        const V t938 = c[0] * t932;
        const V t939 = t910 - t938;
        const V t940 = c[0] * t933;
        const V t941 = t911 + t940;
        const V t942 = c[1] * t934;
        const V t943 = c[1] * t935;
        const V t944 = t939 + t943;
        const V t945 = t941 + t942;
        const V t946 = t939 - t943;
        const V t947 = t942 - t941;
        // spectrum block of 9, multiplier 2
        const V t948 = c[2] * t946;
        const V t949 = c[3] * t947;
        const V t950 = t949 - t948;
        const V t951 = c[22] * t944;
        const V t952 = c[23] * t945;
        const V t953 = t952 - t951;
        // spectrum block of 3, multiplier 2
        const V t954 = t937 + t926;
        io.out(41, t954);
        const V t955 = c[0] * t937;
        const V t956 = t926 - t955;
        const V t957 = c[1] * t936;
        const V t958 = t956 - t957;
        io.out(2, t958);
        const V t959 = t956 + t957;
        io.out(14, t959);
        // spectrum block of 3, multiplier 2
        const V t960 = t950 + t931;
        io.out(53, t960);
        const V t961 = c[0] * t950;
        const V t962 = t931 - t961;
        const V t963 = c[24] * t946;
        const V t964 = c[25] * t947;
        const V t965 = t963 + t964;
        const V t966 = t962 - t965;
        io.out(29, t966);
        const V t967 = t962 + t965;
        io.out(32, t967);
        // spectrum block of 3, multiplier 2
        const V t968 = t953 + t930;
        io.out(56, t968);
        const V t969 = c[0] * t953;
        const V t970 = t930 - t969;
        const V t971 = c[26] * t944;
        const V t972 = c[27] * t945;
        const V t973 = t971 + t972;
        const V t974 = t970 + t973;
        io.out(50, t974);
        const V t975 = t970 - t973;
        io.out(8, t975);
        // spectrum block of 3, multiplier 2
        const V t976 = t921 + t909;
        const V t977 = c[0] * t921;
        const V t978 = t909 - t977;
        const V t979 = c[1] * t920;
        const V t980 = t978 + t979;
        const V t981 = t978 - t979;
        // complex block of 3, multiplier 2
        const V t982 = t924 - t916;
        const V t983 = t925 + t917;
        const V t984 = t924 + t916;
        const V t985 = t925 - t917;
        const V t986 = t982 + t912;
        const V t987 = t983 + t913;
        const V t988 = c[0] * t982;
        const V t989 = t912 - t988;
        const V t990 = c[0] * t983;
        const V t991 = t913 - t990;
        const V t992 = c[1] * t984;
        const V t993 = c[1] * t985;
        const V t994 = t989 + t993;
        const V t995 = t991 - t992;
        const V t996 = t989 - t993;
        const V t997 = t991 + t992;
        // spectrum block of 9, multiplier 2
        const V t998 = c[2] * t996;
        const V t999 = c[3] * t997;
        const V t1000 = t999 - t998;
        const V t1001 = c[22] * t994;
        const V t1002 = c[23] * t995;
        const V t1003 = t1002 + t1001;
        // spectrum block of 3, multiplier 2
        const V t1004 = t987 + t976;
        io.out(35, t1004);
        const V t1005 = c[0] * t987;
        const V t1006 = t976 - t1005;
        const V t1007 = c[1] * t986;
        const V t1008 = t1006 - t1007;
        io.out(17, t1008);
        const V t1009 = t1006 + t1007;
        io.out(5, t1009);
        // spectrum block of 3, multiplier 2
        const V t1010 = t1000 + t981;
        io.out(23, t1010);
        const V t1011 = c[0] * t1000;
        const V t1012 = t981 - t1011;
        const V t1013 = c[24] * t996;
        const V t1014 = c[25] * t997;
        const V t1015 = t1013 + t1014;
        const V t1016 = t1012 - t1015;
        io.out(47, t1016);
        const V t1017 = t1012 + t1015;
        io.out(44, t1017);
        // spectrum block of 3, multiplier 2
        const V t1018 = t980 - t1003;
        io.out(20, t1018);
        const V t1019 = c[0] * t1003;
        const V t1020 = t1019 + t980;
        const V t1021 = c[27] * t995;
        const V t1022 = c[26] * t994;
        const V t1023 = t1021 - t1022;
        const V t1024 = t1020 - t1023;
        io.out(26, t1024);
        const V t1025 = t1020 + t1023;
        io.out(11, t1025);
        // spectrum block of 19, multiplier 3
        const V t1026 = t60 + t773;
        io.out(38, t1026);
    }
};

}  // namespace zulg
