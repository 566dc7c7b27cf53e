// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 63.
// Inverse DFT to 63 real points, prime-factor 9, 7.
// 244 additions, 244 subtractions, 361 multiplications (424 with `scale`); 20 constants; 99 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<63> {
    static constexpr int steps = 912;  // with `scale`
    static constexpr double inverseRoot = 0.1259881576697424;  // 1/sqrt(63), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6234898018587335,  // c[2]: cos 2 pi 1/7
        0.2225209339563144,  // c[3]: -cos 2 pi 2/7
        0.9009688679024191,  // c[4]: -cos 2 pi 3/7
        0.7818314824680298,  // c[5]: sin 2 pi 1/7
        0.9749279121818236,  // c[6]: sin 2 pi 2/7
        0.4338837391175581,  // c[7]: sin 2 pi 3/7
        0.3420201433256687,  // c[8]: sin 2 pi 4/9
        0.9396926207859084,  // c[9]: -cos 2 pi 4/9
        0.984807753012208,  // c[10]: sin 2 pi 2/9
        0.17364817766693036,  // c[11]: cos 2 pi 2/9
        0.6427876096865394,  // c[12]: sin 2 pi 1/9
        0.766044443118978,  // c[13]: cos 2 pi 1/9
        1.7320508075688772,  // c[14]: sin 2 pi 1/3 times 2
        0.1503837331804353,  // c[15]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[16]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.8137976813493737,  // c[17]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[18]: sin 2 pi 1/3 times sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x7r = io.re(7);
        const V t0 = two * x7r;
        const V x7i = io.im(7);
        const V t1 = two * x7i;
        const V x14r = io.re(14);
        const V t2 = two * x14r;
        const V x28r = io.re(28);
        const V t3 = two * x28r;
        // complex block of 3
        const V t4 = t3 + t2;
        const V t5 = c[0] * t4;
        const V t6 = t3 - t2;
        const V t7 = c[1] * t6;
        // doubled bins
        const V x14i = io.im(14);
        const V t8 = two * x14i;
        const V x28i = io.im(28);
        const V t9 = two * x28i;
        // complex block of 3
        const V t10 = t9 - t8;
        const V t11 = c[0] * t10;
        const V t12 = t9 + t8;
        const V t13 = c[1] * t12;
        // doubled bins
        const V x21r = io.re(21);
        const V t14 = two * x21r;
        // spectrum block of 3
        const V t15 = c[0] * t14;
        const V x21i = io.im(21);
        const V t16 = c[14] * x21i;
        const V x0r = io.re(0);
        const V t17 = t14 + x0r;
        // complex block of 3
        const V t18 = t4 + t0;
        // spectrum block of 3
        const V t19 = c[0] * t18;
        const V t20 = t18 + t17;
        const V t21 = t17 - t19;
        // spectrum block of 3
        const V t22 = x0r - t15;
        const V t23 = t22 - t16;
        const V t24 = t22 + t16;
        // complex block of 3
        const V t25 = t10 + t1;
        // spectrum block of 3
        const V t26 = c[1] * t25;
        // complex block of 3
        const V t27 = t1 - t11;
        const V t28 = t27 + t7;
        const V t29 = t27 - t7;
        const V t30 = t0 - t5;
        const V t31 = t30 - t13;
        const V t32 = t30 + t13;
        // spectrum block of 9, multiplier 7
        const V t33 = c[10] * t28;
        const V t34 = c[11] * t31;
        const V t35 = t34 + t33;
        const V t36 = c[8] * t29;
        const V t37 = c[9] * t32;
        const V t38 = t36 - t37;
        // spectrum block of 3
        const V t39 = c[15] * t28;
        const V t40 = c[16] * t31;
        // spectrum block of 3
        const V t41 = c[17] * t29;
        const V t42 = c[18] * t32;
        // doubled bins
        const V x1r = io.re(1);
        const V t43 = two * x1r;
        const V x20r = io.re(20);
        const V t44 = two * x20r;
        // complex block of 3
        const V t45 = t43 + t44;
        const V t46 = c[0] * t45;
        const V t47 = t43 - t44;
        const V t48 = c[1] * t47;
        // doubled bins
        const V x1i = io.im(1);
        const V t49 = two * x1i;
        const V x20i = io.im(20);
        const V t50 = two * x20i;
        // complex block of 3
        const V t51 = t50 - t49;
        const V t52 = c[0] * t51;
        const V t53 = t49 + t50;
        const V t54 = c[1] * t53;
        // doubled bins
        const V x8r = io.re(8);
        const V t55 = two * x8r;
        const V x13r = io.re(13);
        const V t56 = two * x13r;
        // complex block of 3
        const V t57 = t55 + t56;
        const V t58 = c[0] * t57;
        const V t59 = t55 - t56;
        const V t60 = c[1] * t59;
        // doubled bins
        const V x8i = io.im(8);
        const V t61 = two * x8i;
        const V x13i = io.im(13);
        const V t62 = two * x13i;
        // complex block of 3
        const V t63 = t62 - t61;
        const V t64 = c[0] * t63;
        const V t65 = t61 + t62;
        const V t66 = c[1] * t65;
        // doubled bins
        const V x22r = io.re(22);
        const V t67 = two * x22r;
        const V x22i = io.im(22);
        const V t68 = two * x22i;
        const V x29r = io.re(29);
        const V t69 = two * x29r;
        const V x29i = io.im(29);
        const V t70 = two * x29i;
        // complex block of 3
        const V t71 = t63 - t70;
        // complex block of 3
        const V t72 = t51 - t68;
        // complex block of 3
        const V t73 = t71 + t72;
        const V t74 = t71 - t72;
        const V t75 = c[0] * t73;
        const V t76 = c[1] * t74;
        // complex block of 3
        const V t77 = t57 + t69;
        // complex block of 3
        const V t78 = t45 + t67;
        // complex block of 3
        const V t79 = t77 + t78;
        const V t80 = t77 - t78;
        const V t81 = c[0] * t79;
        // complex block of 3
        const V t82 = t70 + t64;
        const V t83 = t60 - t82;
        const V t84 = t82 + t60;
        const V t85 = t69 - t58;
        const V t86 = t85 + t66;
        const V t87 = t85 - t66;
        // complex block of 9, multiplier 7
        const V t88 = c[10] * t86;
        const V t89 = c[11] * t83;
        const V t90 = t89 - t88;
        const V t91 = c[10] * t83;
        const V t92 = c[11] * t86;
        const V t93 = t92 + t91;
        const V t94 = c[8] * t87;
        const V t95 = c[9] * t84;
        const V t96 = t95 - t94;
        const V t97 = c[8] * t84;
        const V t98 = c[9] * t87;
        const V t99 = t98 + t97;
        // complex block of 3
        const V t100 = t68 + t52;
        const V t101 = t48 - t100;
        const V t102 = t100 + t48;
        const V t103 = t67 - t46;
        const V t104 = t103 + t54;
        const V t105 = t103 - t54;
        // complex block of 9, multiplier 7
        const V t106 = c[8] * t104;
        const V t107 = c[9] * t101;
        const V t108 = t107 + t106;
        const V t109 = c[8] * t101;
        const V t110 = c[9] * t104;
        const V t111 = t109 - t110;
        const V t112 = c[12] * t105;
        const V t113 = c[13] * t102;
        const V t114 = t112 - t113;
        const V t115 = c[12] * t102;
        const V t116 = c[13] * t105;
        const V t117 = t116 + t115;
        // doubled bins
        const V x2r = io.re(2);
        const V t118 = two * x2r;
        const V x19r = io.re(19);
        const V t119 = two * x19r;
        // complex block of 3
        const V t120 = t119 + t118;
        // doubled bins
        const V x23r = io.re(23);
        const V t121 = two * x23r;
        // complex block of 3
        const V t122 = t119 - t118;
        const V t123 = c[1] * t122;
        const V t124 = t120 + t121;
        const V t125 = c[0] * t120;
        const V t126 = t121 - t125;
        // doubled bins
        const V x2i = io.im(2);
        const V t127 = two * x2i;
        const V x19i = io.im(19);
        const V t128 = two * x19i;
        // complex block of 3
        const V t129 = t127 - t128;
        // doubled bins
        const V x23i = io.im(23);
        const V t130 = two * x23i;
        // complex block of 3
        const V t131 = t128 + t127;
        const V t132 = c[1] * t131;
        const V t133 = c[0] * t129;
        const V t134 = t130 - t133;
        // doubled bins
        const V x5r = io.re(5);
        const V t135 = two * x5r;
        const V x26r = io.re(26);
        const V t136 = two * x26r;
        // complex block of 3
        const V t137 = t136 + t135;
        // doubled bins
        const V x16r = io.re(16);
        const V t138 = two * x16r;
        // complex block of 3
        const V t139 = t136 - t135;
        const V t140 = c[1] * t139;
        const V t141 = t137 + t138;
        const V t142 = c[0] * t137;
        const V t143 = t138 - t142;
        // doubled bins
        const V x5i = io.im(5);
        const V t144 = two * x5i;
        const V x26i = io.im(26);
        const V t145 = two * x26i;
        // complex block of 3
        const V t146 = t145 + t144;
        // doubled bins
        const V x16i = io.im(16);
        const V t147 = two * x16i;
        // complex block of 3
        const V t148 = t144 - t145;
        const V t149 = c[1] * t148;
        const V t150 = c[0] * t146;
        const V t151 = t150 + t147;
        // doubled bins
        const V x9r = io.re(9);
        const V t152 = two * x9r;
        const V x9i = io.im(9);
        const V t153 = two * x9i;
        const V x12r = io.re(12);
        const V t154 = two * x12r;
        const V x30r = io.re(30);
        const V t155 = two * x30r;
        // complex block of 3
        const V t156 = t155 + t154;
        const V t157 = t155 - t154;
        // doubled bins
        const V x12i = io.im(12);
        const V t158 = two * x12i;
        const V x30i = io.im(30);
        const V t159 = two * x30i;
        // complex block of 3
        const V t160 = t159 - t158;
        const V t161 = t159 + t158;
        const V t162 = t160 + t153;
        const V t163 = t156 + t152;
        // complex block of 3
        const V t164 = t141 + t124;
        const V t165 = c[0] * t164;
        const V t166 = t164 + t163;
        const V t167 = t163 - t165;
        // complex block of 3
        const V t168 = c[0] * t160;
        const V t169 = t153 - t168;
        const V t170 = c[1] * t157;
        const V t171 = t169 + t170;
        const V t172 = t169 - t170;
        const V t173 = c[0] * t156;
        const V t174 = t152 - t173;
        const V t175 = c[1] * t161;
        const V t176 = t174 - t175;
        const V t177 = t174 + t175;
        // complex block of 3
        const V t178 = t147 - t146;
        // complex block of 3
        const V t179 = t129 + t130;
        // complex block of 3
        const V t180 = t178 + t179;
        const V t181 = t178 - t179;
        const V t182 = c[0] * t180;
        const V t183 = c[1] * t181;
        // complex block of 3
        const V t184 = t151 + t140;
        // complex block of 9, multiplier 7
        const V t185 = c[11] * t184;
        const V t186 = c[10] * t184;
        // complex block of 3
        const V t187 = t143 - t149;
        // complex block of 9, multiplier 7
        const V t188 = c[10] * t187;
        const V t189 = c[11] * t187;
        // complex block of 3
        const V t190 = t134 + t123;
        // complex block of 9, multiplier 7
        const V t191 = c[9] * t190;
        const V t192 = c[8] * t190;
        // complex block of 3
        const V t193 = t126 + t132;
        // complex block of 9, multiplier 7
        const V t194 = c[8] * t193;
        const V t195 = c[9] * t193;
        const V t196 = t185 - t188;
        const V t197 = t189 + t186;
        const V t198 = t192 - t195;
        // complex block of 3
        const V t199 = t197 + t198;
        // complex block of 9, multiplier 7
        const V t200 = t191 + t194;
        // complex block of 3
        const V t201 = t151 - t140;
        // complex block of 9, multiplier 7
        const V t202 = c[9] * t201;
        const V t203 = c[8] * t201;
        // complex block of 3
        const V t204 = t143 + t149;
        // complex block of 9, multiplier 7
        const V t205 = c[8] * t204;
        const V t206 = c[9] * t204;
        // complex block of 3
        const V t207 = t134 - t123;
        // complex block of 9, multiplier 7
        const V t208 = c[13] * t207;
        const V t209 = c[12] * t207;
        // complex block of 3
        const V t210 = t126 - t132;
        // complex block of 9, multiplier 7
        const V t211 = c[12] * t210;
        const V t212 = c[13] * t210;
        const V t213 = t202 + t205;
        const V t214 = t203 - t206;
        const V t215 = t212 - t209;
        // complex block of 3
        const V t216 = t214 + t215;
        // complex block of 9, multiplier 7
        const V t217 = t208 + t211;
        // complex block of 3
        const V t218 = t141 - t124;
        const V t219 = c[1] * t218;
        // doubled bins
        const V x3r = io.re(3);
        const V t220 = two * x3r;
        const V x24r = io.re(24);
        const V t221 = two * x24r;
        // complex block of 3
        const V t222 = t221 + t220;
        const V t223 = t221 - t220;
        // doubled bins
        const V x3i = io.im(3);
        const V t224 = two * x3i;
        const V x24i = io.im(24);
        const V t225 = two * x24i;
        // complex block of 3
        const V t226 = t225 + t224;
        const V t227 = t224 - t225;
        // doubled bins
        const V x4r = io.re(4);
        const V t228 = two * x4r;
        const V x17r = io.re(17);
        const V t229 = two * x17r;
        // complex block of 3
        const V t230 = t229 + t228;
        // doubled bins
        const V x25r = io.re(25);
        const V t231 = two * x25r;
        // complex block of 3
        const V t232 = t229 - t228;
        const V t233 = c[1] * t232;
        const V t234 = t230 + t231;
        const V t235 = c[0] * t230;
        const V t236 = t231 - t235;
        // doubled bins
        const V x4i = io.im(4);
        const V t237 = two * x4i;
        const V x17i = io.im(17);
        const V t238 = two * x17i;
        // complex block of 3
        const V t239 = t237 - t238;
        // doubled bins
        const V x25i = io.im(25);
        const V t240 = two * x25i;
        // complex block of 3
        const V t241 = t238 + t237;
        const V t242 = c[1] * t241;
        const V t243 = c[0] * t239;
        const V t244 = t240 - t243;
        // doubled bins
        const V x10r = io.re(10);
        const V t245 = two * x10r;
        const V x11r = io.re(11);
        const V t246 = two * x11r;
        // complex block of 3
        const V t247 = t245 + t246;
        // doubled bins
        const V x31r = io.re(31);
        const V t248 = two * x31r;
        // complex block of 3
        const V t249 = t245 - t246;
        const V t250 = c[1] * t249;
        const V t251 = t247 + t248;
        const V t252 = c[0] * t247;
        const V t253 = t248 - t252;
        // doubled bins
        const V x10i = io.im(10);
        const V t254 = two * x10i;
        const V x11i = io.im(11);
        const V t255 = two * x11i;
        // complex block of 3
        const V t256 = t255 - t254;
        // doubled bins
        const V x31i = io.im(31);
        const V t257 = two * x31i;
        // complex block of 3
        const V t258 = t254 + t255;
        const V t259 = c[1] * t258;
        const V t260 = c[0] * t256;
        const V t261 = t257 + t260;
        // doubled bins
        const V x18r = io.re(18);
        const V t262 = two * x18r;
        const V x18i = io.im(18);
        const V t263 = two * x18i;
        // complex block of 3
        const V t264 = t263 - t226;
        const V t265 = t222 + t262;
        // complex block of 3
        const V t266 = t234 + t251;
        const V t267 = c[0] * t266;
        const V t268 = t266 + t265;
        const V t269 = t265 - t267;
        // complex block of 3
        const V t270 = c[0] * t226;
        const V t271 = t270 + t263;
        const V t272 = c[1] * t223;
        const V t273 = t271 + t272;
        const V t274 = t271 - t272;
        const V t275 = c[0] * t222;
        const V t276 = t262 - t275;
        const V t277 = c[1] * t227;
        const V t278 = t276 - t277;
        const V t279 = t276 + t277;
        // complex block of 3
        const V t280 = t239 + t240;
        // complex block of 3
        const V t281 = t256 - t257;
        // complex block of 3
        const V t282 = t280 + t281;
        const V t283 = t280 - t281;
        const V t284 = c[0] * t282;
        const V t285 = c[1] * t283;
        // complex block of 3
        const V t286 = t244 + t233;
        // complex block of 9, multiplier 7
        const V t287 = c[11] * t286;
        const V t288 = c[10] * t286;
        // complex block of 3
        const V t289 = t236 + t242;
        // complex block of 9, multiplier 7
        const V t290 = c[10] * t289;
        const V t291 = c[11] * t289;
        // complex block of 3
        const V t292 = t250 - t261;
        // complex block of 9, multiplier 7
        const V t293 = c[9] * t292;
        const V t294 = c[8] * t292;
        // complex block of 3
        const V t295 = t253 + t259;
        // complex block of 9, multiplier 7
        const V t296 = c[8] * t295;
        const V t297 = c[9] * t295;
        const V t298 = t287 - t290;
        const V t299 = t291 + t288;
        const V t300 = t294 - t297;
        // complex block of 3
        const V t301 = t299 + t300;
        // complex block of 9, multiplier 7
        const V t302 = t293 + t296;
        // complex block of 3
        const V t303 = t244 - t233;
        // complex block of 9, multiplier 7
        const V t304 = c[9] * t303;
        const V t305 = c[8] * t303;
        // complex block of 3
        const V t306 = t236 - t242;
        // complex block of 9, multiplier 7
        const V t307 = c[8] * t306;
        const V t308 = c[9] * t306;
        // complex block of 3
        const V t309 = t261 + t250;
        // complex block of 9, multiplier 7
        const V t310 = c[13] * t309;
        const V t311 = c[12] * t309;
        // complex block of 3
        const V t312 = t253 - t259;
        // complex block of 9, multiplier 7
        const V t313 = c[12] * t312;
        const V t314 = c[13] * t312;
        const V t315 = t304 + t307;
        const V t316 = t305 - t308;
        const V t317 = t314 + t311;
        // complex block of 3
        const V t318 = t316 + t317;
        // complex block of 9, multiplier 7
        const V t319 = t313 - t310;
        // complex block of 3
        const V t320 = t234 - t251;
        const V t321 = c[1] * t320;
        // doubled bins
        const V x6r = io.re(6);
        const V t322 = two * x6r;
        const V x15r = io.re(15);
        const V t323 = two * x15r;
        // complex block of 3
        const V t324 = t323 + t322;
        const V t325 = t323 - t322;
        // doubled bins
        const V x6i = io.im(6);
        const V t326 = two * x6i;
        const V x15i = io.im(15);
        const V t327 = two * x15i;
        // complex block of 3
        const V t328 = t326 - t327;
        const V t329 = t327 + t326;
        // doubled bins
        const V x27r = io.re(27);
        const V t330 = two * x27r;
        const V x27i = io.im(27);
        const V t331 = two * x27i;
        // complex block of 3
        const V t332 = t328 + t331;
        const V t333 = t324 + t330;
        const V t334 = c[0] * t328;
        const V t335 = t331 - t334;
        const V t336 = c[1] * t325;
        const V t337 = t335 + t336;
        const V t338 = t335 - t336;
        const V t339 = c[0] * t324;
        const V t340 = t330 - t339;
        const V t341 = c[1] * t329;
        const V t342 = t340 + t341;
        const V t343 = t340 - t341;
        // spectrum block of 3
        const V t344 = t21 - t26;
        // complex block of 3
        const V t345 = t167 - t183;
        // spectrum block of 7, multiplier 2
        const V t346 = c[2] * t345;
        const V t347 = c[3] * t345;
        const V t348 = c[4] * t345;
        // complex block of 3
        const V t349 = t269 - t285;
        // spectrum block of 7, multiplier 2
        const V t350 = c[3] * t349;
        const V t351 = t345 + t349;
        const V t352 = t346 - t350;
        const V t353 = t344 - t347;
        const V t354 = c[4] * t349;
        const V t355 = t344 - t348;
        const V t356 = c[2] * t349;
        // spectrum block of 3
        const V t357 = t21 + t26;
        // complex block of 3
        const V t358 = t167 + t183;
        // spectrum block of 7, multiplier 2
        const V t359 = c[2] * t358;
        const V t360 = c[3] * t358;
        const V t361 = c[4] * t358;
        // complex block of 3
        const V t362 = t269 + t285;
        // spectrum block of 7, multiplier 2
        const V t363 = c[3] * t362;
        const V t364 = t358 + t362;
        const V t365 = t359 - t363;
        const V t366 = t357 - t360;
        const V t367 = c[4] * t362;
        const V t368 = t357 - t361;
        const V t369 = c[2] * t362;
        // complex block of 3
        const V t370 = t162 - t182;
        const V t371 = t370 + t219;
        const V t372 = t370 - t219;
        // spectrum block of 7, multiplier 2
        const V t373 = c[5] * t371;
        const V t374 = c[6] * t371;
        const V t375 = c[7] * t371;
        // spectrum block of 7, multiplier 2
        const V t376 = c[5] * t372;
        const V t377 = c[6] * t372;
        const V t378 = c[7] * t372;
        // complex block of 3
        const V t379 = t264 - t284;
        const V t380 = t379 + t321;
        const V t381 = t379 - t321;
        // spectrum block of 7, multiplier 2
        const V t382 = c[6] * t380;
        const V t383 = c[7] * t380;
        const V t384 = c[5] * t380;
        // spectrum block of 7, multiplier 2
        const V t385 = c[6] * t381;
        const V t386 = c[7] * t381;
        const V t387 = c[5] * t381;
        // complex block of 3
        const V t388 = t332 - t75;
        const V t389 = c[1] * t80;
        const V t390 = t388 + t389;
        const V t391 = t388 - t389;
        // spectrum block of 7, multiplier 2
        const V t392 = c[7] * t390;
        const V t393 = c[5] * t390;
        const V t394 = c[6] * t390;
        // spectrum block of 7, multiplier 2
        const V t395 = c[7] * t391;
        const V t396 = c[5] * t391;
        const V t397 = c[6] * t391;
        // complex block of 3
        const V t398 = t333 - t81;
        const V t399 = t398 - t76;
        const V t400 = t398 + t76;
        // spectrum block of 7, multiplier 2
        const V t401 = c[4] * t399;
        const V t402 = c[2] * t399;
        const V t403 = c[3] * t399;
        // spectrum block of 7, multiplier 2
        const V t404 = c[4] * t400;
        const V t405 = c[2] * t400;
        const V t406 = c[3] * t400;
        // spectrum block of 7, multiplier 2
        const V t407 = t351 + t399;
        const V t408 = t407 + t344;
        io.out(21, t408);
        const V t409 = t352 - t401;
        const V t410 = t409 + t344;
        const V t411 = t373 + t382;
        const V t412 = t411 + t392;
        const V t413 = t410 - t412;
        io.out(57, t413);
        const V t414 = t410 + t412;
        io.out(48, t414);
        const V t415 = t353 - t354;
        const V t416 = t415 + t402;
        const V t417 = t374 - t383;
        const V t418 = t417 - t393;
        const V t419 = t416 - t418;
        io.out(30, t419);
        const V t420 = t416 + t418;
        io.out(12, t420);
        const V t421 = t355 + t356;
        const V t422 = t421 - t403;
        const V t423 = t375 - t384;
        const V t424 = t423 + t394;
        const V t425 = t422 - t424;
        io.out(3, t425);
        const V t426 = t422 + t424;
        io.out(39, t426);
        // spectrum block of 7, multiplier 2
        const V t427 = t364 + t400;
        const V t428 = t427 + t357;
        io.out(42, t428);
        const V t429 = t365 - t404;
        const V t430 = t429 + t357;
        const V t431 = t376 + t385;
        const V t432 = t431 + t395;
        const V t433 = t430 - t432;
        io.out(15, t433);
        const V t434 = t430 + t432;
        io.out(6, t434);
        const V t435 = t366 - t367;
        const V t436 = t435 + t405;
        const V t437 = t377 - t386;
        const V t438 = t437 - t396;
        const V t439 = t436 - t438;
        io.out(51, t439);
        const V t440 = t436 + t438;
        io.out(33, t440);
        const V t441 = t368 + t369;
        const V t442 = t441 - t406;
        const V t443 = t378 - t387;
        const V t444 = t443 + t397;
        const V t445 = t442 - t444;
        io.out(24, t445);
        const V t446 = t442 + t444;
        io.out(60, t446);
        // spectrum block of 3
        const V t447 = t35 + t23;
        // complex block of 3
        const V t448 = t199 + t176;
        // spectrum block of 7, multiplier 2
        const V t449 = c[2] * t448;
        const V t450 = c[3] * t448;
        const V t451 = c[4] * t448;
        // complex block of 3
        const V t452 = t301 + t278;
        // spectrum block of 7, multiplier 2
        const V t453 = c[3] * t452;
        const V t454 = t448 + t452;
        const V t455 = t449 - t453;
        const V t456 = t447 - t450;
        const V t457 = c[4] * t452;
        const V t458 = t447 - t451;
        const V t459 = c[2] * t452;
        // spectrum block of 3
        const V t460 = c[0] * t35;
        const V t461 = t23 - t460;
        const V t462 = t39 - t40;
        const V t463 = t461 - t462;
        const V t464 = t461 + t462;
        // complex block of 3
        const V t465 = t196 - t200;
        const V t466 = t465 + t171;
        const V t467 = c[0] * t465;
        const V t468 = t197 - t198;
        const V t469 = c[1] * t468;
        const V t470 = t171 - t467;
        const V t471 = t470 + t469;
        const V t472 = t470 - t469;
        // spectrum block of 7, multiplier 2
        const V t473 = c[5] * t466;
        const V t474 = c[6] * t466;
        const V t475 = c[7] * t466;
        // complex block of 3
        const V t476 = t196 + t200;
        const V t477 = c[1] * t476;
        const V t478 = c[0] * t199;
        const V t479 = t176 - t478;
        const V t480 = t479 - t477;
        // spectrum block of 7, multiplier 2
        const V t481 = c[2] * t480;
        const V t482 = c[3] * t480;
        const V t483 = c[4] * t480;
        // complex block of 3
        const V t484 = t479 + t477;
        // spectrum block of 7, multiplier 2
        const V t485 = c[2] * t484;
        const V t486 = c[3] * t484;
        const V t487 = c[4] * t484;
        // complex block of 3
        const V t488 = t298 - t302;
        const V t489 = t488 + t273;
        const V t490 = c[0] * t488;
        const V t491 = t299 - t300;
        const V t492 = c[1] * t491;
        const V t493 = t273 - t490;
        const V t494 = t493 + t492;
        const V t495 = t493 - t492;
        // spectrum block of 7, multiplier 2
        const V t496 = c[6] * t489;
        const V t497 = c[7] * t489;
        const V t498 = c[5] * t489;
        // complex block of 3
        const V t499 = t298 + t302;
        const V t500 = c[1] * t499;
        const V t501 = c[0] * t301;
        const V t502 = t278 - t501;
        const V t503 = t502 - t500;
        // spectrum block of 7, multiplier 2
        const V t504 = c[3] * t503;
        const V t505 = c[4] * t503;
        const V t506 = c[2] * t503;
        // complex block of 3
        const V t507 = t502 + t500;
        // spectrum block of 7, multiplier 2
        const V t508 = c[3] * t507;
        const V t509 = c[4] * t507;
        const V t510 = c[2] * t507;
        // complex block of 3
        const V t511 = t90 - t108;
        const V t512 = t511 + t337;
        const V t513 = c[0] * t511;
        const V t514 = t93 - t111;
        const V t515 = c[1] * t514;
        const V t516 = t337 - t513;
        const V t517 = t516 + t515;
        const V t518 = t516 - t515;
        // spectrum block of 7, multiplier 2
        const V t519 = c[7] * t512;
        const V t520 = c[5] * t512;
        const V t521 = c[6] * t512;
        // complex block of 3
        const V t522 = t93 + t111;
        const V t523 = t522 + t342;
        const V t524 = c[0] * t522;
        const V t525 = t90 + t108;
        const V t526 = c[1] * t525;
        const V t527 = t342 - t524;
        const V t528 = t527 - t526;
        const V t529 = t527 + t526;
        // spectrum block of 7, multiplier 2
        const V t530 = c[4] * t523;
        const V t531 = c[2] * t523;
        const V t532 = c[3] * t523;
        const V t533 = t454 + t523;
        const V t534 = t533 + t447;
        io.out(7, t534);
        const V t535 = t455 - t530;
        const V t536 = t535 + t447;
        const V t537 = t473 + t496;
        const V t538 = t537 + t519;
        const V t539 = t536 - t538;
        io.out(43, t539);
        const V t540 = t536 + t538;
        io.out(34, t540);
        const V t541 = t456 - t457;
        const V t542 = t541 + t531;
        const V t543 = t474 - t497;
        const V t544 = t543 - t520;
        const V t545 = t542 - t544;
        io.out(16, t545);
        const V t546 = t542 + t544;
        io.out(61, t546);
        const V t547 = t458 + t459;
        const V t548 = t547 - t532;
        const V t549 = t475 - t498;
        const V t550 = t549 + t521;
        const V t551 = t548 - t550;
        io.out(52, t551);
        const V t552 = t548 + t550;
        io.out(25, t552);
        // spectrum block of 7, multiplier 2
        const V t553 = t480 + t503;
        const V t554 = t553 + t528;
        const V t555 = t554 + t463;
        io.out(28, t555);
        const V t556 = t481 - t504;
        const V t557 = c[4] * t528;
        const V t558 = t556 - t557;
        const V t559 = c[5] * t471;
        const V t560 = c[6] * t494;
        const V t561 = t559 + t560;
        const V t562 = c[7] * t517;
        const V t563 = t558 + t463;
        const V t564 = t561 + t562;
        const V t565 = t563 - t564;
        io.out(1, t565);
        const V t566 = t563 + t564;
        io.out(55, t566);
        const V t567 = t463 - t482;
        const V t568 = t567 - t505;
        const V t569 = c[2] * t528;
        const V t570 = c[6] * t471;
        const V t571 = c[7] * t494;
        const V t572 = t570 - t571;
        const V t573 = c[5] * t517;
        const V t574 = t568 + t569;
        const V t575 = t572 - t573;
        const V t576 = t574 - t575;
        io.out(37, t576);
        const V t577 = t574 + t575;
        io.out(19, t577);
        const V t578 = t463 - t483;
        const V t579 = t578 + t506;
        const V t580 = c[3] * t528;
        const V t581 = c[7] * t471;
        const V t582 = c[5] * t494;
        const V t583 = t581 - t582;
        const V t584 = c[6] * t517;
        const V t585 = t579 - t580;
        const V t586 = t583 + t584;
        const V t587 = t585 - t586;
        io.out(10, t587);
        const V t588 = t585 + t586;
        io.out(46, t588);
        // spectrum block of 7, multiplier 2
        const V t589 = t484 + t507;
        const V t590 = t589 + t529;
        const V t591 = t590 + t464;
        io.out(49, t591);
        const V t592 = t485 - t508;
        const V t593 = c[4] * t529;
        const V t594 = t592 - t593;
        const V t595 = c[5] * t472;
        const V t596 = c[6] * t495;
        const V t597 = t595 + t596;
        const V t598 = c[7] * t518;
        const V t599 = t594 + t464;
        const V t600 = t597 + t598;
        const V t601 = t599 - t600;
        io.out(22, t601);
        const V t602 = t599 + t600;
        io.out(13, t602);
        const V t603 = t464 - t486;
        const V t604 = t603 - t509;
        const V t605 = c[2] * t529;
        const V t606 = c[6] * t472;
        const V t607 = c[7] * t495;
        const V t608 = t606 - t607;
        const V t609 = c[5] * t518;
        const V t610 = t604 + t605;
        const V t611 = t608 - t609;
        const V t612 = t610 - t611;
        io.out(58, t612);
        const V t613 = t610 + t611;
        io.out(40, t613);
        const V t614 = t464 - t487;
        const V t615 = t614 + t510;
        const V t616 = c[3] * t529;
        const V t617 = c[7] * t472;
        const V t618 = c[5] * t495;
        const V t619 = t617 - t618;
        const V t620 = c[6] * t518;
        const V t621 = t615 - t616;
        const V t622 = t619 + t620;
        const V t623 = t621 - t622;
        io.out(31, t623);
        const V t624 = t621 + t622;
        io.out(4, t624);
        // spectrum block of 3
        const V t625 = t38 + t24;
        // complex block of 3
        const V t626 = t216 + t177;
        // spectrum block of 7, multiplier 2
        const V t627 = c[2] * t626;
        const V t628 = c[3] * t626;
        const V t629 = c[4] * t626;
        // complex block of 3
        const V t630 = t318 + t279;
        // spectrum block of 7, multiplier 2
        const V t631 = c[3] * t630;
        const V t632 = t626 + t630;
        const V t633 = t627 - t631;
        const V t634 = t625 - t628;
        const V t635 = c[4] * t630;
        const V t636 = t625 - t629;
        const V t637 = c[2] * t630;
        // spectrum block of 3
        const V t638 = c[0] * t38;
        const V t639 = t24 - t638;
        const V t640 = t41 + t42;
        const V t641 = t639 + t640;
        const V t642 = t639 - t640;
        // complex block of 3
        const V t643 = t217 - t213;
        const V t644 = t643 + t172;
        const V t645 = c[0] * t643;
        const V t646 = t214 - t215;
        const V t647 = c[1] * t646;
        const V t648 = t172 - t645;
        const V t649 = t648 + t647;
        const V t650 = t648 - t647;
        // spectrum block of 7, multiplier 2
        const V t651 = c[5] * t644;
        const V t652 = c[6] * t644;
        const V t653 = c[7] * t644;
        // complex block of 3
        const V t654 = t213 + t217;
        const V t655 = c[1] * t654;
        const V t656 = c[0] * t216;
        const V t657 = t177 - t656;
        const V t658 = t657 + t655;
        // spectrum block of 7, multiplier 2
        const V t659 = c[2] * t658;
        const V t660 = c[3] * t658;
        const V t661 = c[4] * t658;
        // complex block of 3
        const V t662 = t657 - t655;
        // spectrum block of 7, multiplier 2
        const V t663 = c[2] * t662;
        const V t664 = c[3] * t662;
        const V t665 = c[4] * t662;
        // complex block of 3
        const V t666 = t319 - t315;
        const V t667 = t666 + t274;
        const V t668 = c[0] * t666;
        const V t669 = t316 - t317;
        const V t670 = c[1] * t669;
        const V t671 = t274 - t668;
        const V t672 = t671 + t670;
        const V t673 = t671 - t670;
        // spectrum block of 7, multiplier 2
        const V t674 = c[6] * t667;
        const V t675 = c[7] * t667;
        const V t676 = c[5] * t667;
        // complex block of 3
        const V t677 = t315 + t319;
        const V t678 = c[1] * t677;
        const V t679 = c[0] * t318;
        const V t680 = t279 - t679;
        const V t681 = t680 + t678;
        // spectrum block of 7, multiplier 2
        const V t682 = c[3] * t681;
        const V t683 = c[4] * t681;
        const V t684 = c[2] * t681;
        // complex block of 3
        const V t685 = t680 - t678;
        // spectrum block of 7, multiplier 2
        const V t686 = c[3] * t685;
        const V t687 = c[4] * t685;
        const V t688 = c[2] * t685;
        // complex block of 3
        const V t689 = t96 + t114;
        const V t690 = t689 + t338;
        const V t691 = c[0] * t689;
        const V t692 = t99 + t117;
        const V t693 = c[1] * t692;
        const V t694 = t338 - t691;
        const V t695 = t694 - t693;
        const V t696 = t694 + t693;
        // spectrum block of 7, multiplier 2
        const V t697 = c[7] * t690;
        const V t698 = c[5] * t690;
        const V t699 = c[6] * t690;
        // complex block of 3
        const V t700 = t117 - t99;
        const V t701 = t700 + t343;
        const V t702 = c[0] * t700;
        const V t703 = t96 - t114;
        const V t704 = c[1] * t703;
        const V t705 = t343 - t702;
        const V t706 = t705 - t704;
        const V t707 = t705 + t704;
        // spectrum block of 7, multiplier 2
        const V t708 = c[4] * t701;
        const V t709 = c[2] * t701;
        const V t710 = c[3] * t701;
        const V t711 = t632 + t701;
        const V t712 = t711 + t625;
        io.out(14, t712);
        const V t713 = t633 - t708;
        const V t714 = t713 + t625;
        const V t715 = t651 + t674;
        const V t716 = t715 + t697;
        const V t717 = t714 - t716;
        io.out(50, t717);
        const V t718 = t714 + t716;
        io.out(41, t718);
        const V t719 = t634 - t635;
        const V t720 = t719 + t709;
        const V t721 = t652 - t675;
        const V t722 = t721 - t698;
        const V t723 = t720 - t722;
        io.out(23, t723);
        const V t724 = t720 + t722;
        io.out(5, t724);
        const V t725 = t636 + t637;
        const V t726 = t725 - t710;
        const V t727 = t653 - t676;
        const V t728 = t727 + t699;
        const V t729 = t726 - t728;
        io.out(59, t729);
        const V t730 = t726 + t728;
        io.out(32, t730);
        // spectrum block of 7, multiplier 2
        const V t731 = t658 + t681;
        const V t732 = t731 + t706;
        const V t733 = t732 + t641;
        io.out(35, t733);
        const V t734 = t659 - t682;
        const V t735 = c[4] * t706;
        const V t736 = t734 - t735;
        const V t737 = c[5] * t649;
        const V t738 = c[6] * t672;
        const V t739 = t737 + t738;
        const V t740 = c[7] * t695;
        const V t741 = t736 + t641;
        const V t742 = t739 + t740;
        const V t743 = t741 - t742;
        io.out(8, t743);
        const V t744 = t741 + t742;
        io.out(62, t744);
        const V t745 = t641 - t660;
        const V t746 = t745 - t683;
        const V t747 = c[2] * t706;
        const V t748 = c[6] * t649;
        const V t749 = c[7] * t672;
        const V t750 = t748 - t749;
        const V t751 = c[5] * t695;
        const V t752 = t746 + t747;
        const V t753 = t750 - t751;
        const V t754 = t752 - t753;
        io.out(44, t754);
        const V t755 = t752 + t753;
        io.out(26, t755);
        const V t756 = t641 - t661;
        const V t757 = t756 + t684;
        const V t758 = c[3] * t706;
        const V t759 = c[7] * t649;
        const V t760 = c[5] * t672;
        const V t761 = t759 - t760;
        const V t762 = c[6] * t695;
        const V t763 = t757 - t758;
        const V t764 = t761 + t762;
        const V t765 = t763 - t764;
        io.out(17, t765);
        const V t766 = t763 + t764;
        io.out(53, t766);
        // spectrum block of 7, multiplier 2
        const V t767 = t662 + t685;
        const V t768 = t767 + t707;
        const V t769 = t768 + t642;
        io.out(56, t769);
        const V t770 = t663 - t686;
        const V t771 = c[4] * t707;
        const V t772 = t770 - t771;
        const V t773 = c[5] * t650;
        const V t774 = c[6] * t673;
        const V t775 = t773 + t774;
        const V t776 = c[7] * t696;
        const V t777 = t772 + t642;
        const V t778 = t775 + t776;
        const V t779 = t777 - t778;
        io.out(29, t779);
        const V t780 = t777 + t778;
        io.out(20, t780);
        const V t781 = t642 - t664;
        const V t782 = t781 - t687;
        const V t783 = c[2] * t707;
        const V t784 = c[6] * t650;
        const V t785 = c[7] * t673;
        const V t786 = t784 - t785;
        const V t787 = c[5] * t696;
        const V t788 = t782 + t783;
        const V t789 = t786 - t787;
        const V t790 = t788 - t789;
        io.out(2, t790);
        const V t791 = t788 + t789;
        io.out(47, t791);
        const V t792 = t642 - t665;
        const V t793 = t792 + t688;
        const V t794 = c[3] * t707;
        const V t795 = c[7] * t650;
        const V t796 = c[5] * t673;
        const V t797 = t795 - t796;
        const V t798 = c[6] * t696;
        const V t799 = t793 - t794;
        const V t800 = t797 + t798;
        const V t801 = t799 - t800;
        io.out(38, t801);
        const V t802 = t799 + t800;
        io.out(11, t802);
        // complex block of 3
        const V t803 = t180 + t162;
        // spectrum block of 7, multiplier 2
        const V t804 = c[5] * t803;
        const V t805 = c[6] * t803;
        const V t806 = c[7] * t803;
        // complex block of 3
        const V t807 = t282 + t264;
        // spectrum block of 7, multiplier 2
        const V t808 = c[6] * t807;
        const V t809 = c[7] * t807;
        const V t810 = c[5] * t807;
        const V t811 = t804 + t808;
        const V t812 = t805 - t809;
        const V t813 = t806 - t810;
        // complex block of 3
        const V t814 = t73 + t332;
        // spectrum block of 7, multiplier 2
        const V t815 = c[7] * t814;
        const V t816 = c[5] * t814;
        const V t817 = c[6] * t814;
        // complex block of 3
        const V t818 = t79 + t333;
        // spectrum block of 7, multiplier 2
        const V t819 = c[4] * t818;
        const V t820 = t166 + t268;
        const V t821 = c[2] * t166;
        const V t822 = c[3] * t268;
        const V t823 = t821 - t822;
        const V t824 = t820 + t818;
        const V t825 = t823 - t819;
        const V t826 = c[2] * t818;
        const V t827 = c[3] * t818;
        const V t828 = c[3] * t166;
        const V t829 = t20 - t828;
        const V t830 = c[4] * t268;
        const V t831 = t829 - t830;
        const V t832 = c[4] * t166;
        const V t833 = t20 - t832;
        const V t834 = c[2] * t268;
        const V t835 = t833 + t834;
        const V t836 = t824 + t20;
        io.out(0, t836);
        const V t837 = t825 + t20;
        const V t838 = t811 + t815;
        const V t839 = t837 - t838;
        io.out(36, t839);
        const V t840 = t837 + t838;
        io.out(27, t840);
        const V t841 = t831 + t826;
        const V t842 = t812 - t816;
        const V t843 = t841 - t842;
        io.out(9, t843);
        const V t844 = t841 + t842;
        io.out(54, t844);
        const V t845 = t835 - t827;
        const V t846 = t813 + t817;
        const V t847 = t845 - t846;
        io.out(45, t847);
        const V t848 = t845 + t846;
        io.out(18, t848);
    }
};

}  // namespace zulg
