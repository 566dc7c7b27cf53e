// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_fold, 64.
// Skew transform of 64 folded points, decimation in time.
// 224 additions, 224 subtractions, 224 multiplications; 31 constants; 66 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Fold<64> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.19509032201612828,  // c[1]: -sin 2 pi 31/32
        0.9807852804032304,  // c[2]: cos 2 pi 31/32
        0.3826834323650898,  // c[3]: -sin 2 pi 30/32
        0.9238795325112867,  // c[4]: cos 2 pi 30/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
        0.049067674327418015,  // c[7]: -sin 2 pi 127/128
        0.9987954562051724,  // c[8]: cos 2 pi 127/128
        0.0980171403295606,  // c[9]: -sin 2 pi 126/128
        0.9951847266721969,  // c[10]: cos 2 pi 126/128
        0.14673047445536175,  // c[11]: -sin 2 pi 125/128
        0.989176509964781,  // c[12]: cos 2 pi 125/128
        0.2902846772544624,  // c[13]: -sin 2 pi 122/128
        0.9569403357322088,  // c[14]: cos 2 pi 122/128
        0.4275550934302821,  // c[15]: -sin 2 pi 119/128
        0.9039892931234433,  // c[16]: cos 2 pi 119/128
        0.2429801799032639,  // c[17]: -sin 2 pi 123/128
        0.970031253194544,  // c[18]: cos 2 pi 123/128
        0.47139673682599764,  // c[19]: -sin 2 pi 118/128
        0.881921264348355,  // c[20]: cos 2 pi 118/128
        0.6715589548470184,  // c[21]: -sin 2 pi 113/128
        0.7409511253549591,  // c[22]: cos 2 pi 113/128
        0.33688985339222005,  // c[23]: -sin 2 pi 121/128
        0.9415440651830208,  // c[24]: cos 2 pi 121/128
        0.6343932841636455,  // c[25]: -sin 2 pi 114/128
        0.773010453362737,  // c[26]: cos 2 pi 114/128
        0.8577286100002721,  // c[27]: -sin 2 pi 107/128
        0.5141027441932218,  // c[28]: cos 2 pi 107/128
        0.5956993044924334,  // c[29]: -sin 2 pi 115/128
        0.8032075314806449,  // c[30]: cos 2 pi 115/128
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Fold> c{};
        // part 0 of 16
        const V x16 = io.in(16);
        const V x48 = io.in(48);
        const V t0 = x16 + x48;
        const V t1 = c[0] * t0;
        const V t2 = x16 - x48;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x32 = io.in(32);
        const V t5 = t3 - x32;
        const V t6 = x0 - t1;
        const V t7 = t3 + x32;
        // part 1 of 16
        const V x20 = io.in(20);
        const V x52 = io.in(52);
        const V t8 = x20 + x52;
        const V t9 = c[0] * t8;
        const V t10 = x20 - x52;
        const V t11 = c[0] * t10;
        const V x4 = io.in(4);
        const V t12 = x4 + t9;
        const V x36 = io.in(36);
        const V t13 = t11 - x36;
        const V t14 = x4 - t9;
        const V t15 = t11 + x36;
        // part 2 of 16
        const V x24 = io.in(24);
        const V x56 = io.in(56);
        const V t16 = x24 + x56;
        const V t17 = c[0] * t16;
        const V t18 = x24 - x56;
        const V t19 = c[0] * t18;
        const V x8 = io.in(8);
        const V t20 = x8 + t17;
        const V x40 = io.in(40);
        const V t21 = t19 - x40;
        const V t22 = x8 - t17;
        const V t23 = t19 + x40;
        // part 3 of 16
        const V x28 = io.in(28);
        const V x60 = io.in(60);
        const V t24 = x28 + x60;
        const V t25 = c[0] * t24;
        const V t26 = x28 - x60;
        const V t27 = c[0] * t26;
        const V x12 = io.in(12);
        const V t28 = x12 + t25;
        const V x44 = io.in(44);
        const V t29 = t27 - x44;
        const V t30 = x12 - t25;
        const V t31 = t27 + x44;
        // row 0 of 16
        const V t32 = c[1] * t13;
        const V t33 = c[2] * t12;
        const V t34 = t33 - t32;
        const V t35 = c[1] * t12;
        const V t36 = c[2] * t13;
        const V t37 = t36 + t35;
        const V t38 = c[3] * t21;
        const V t39 = c[4] * t20;
        const V t40 = t39 - t38;
        const V t41 = c[3] * t20;
        const V t42 = c[4] * t21;
        const V t43 = t42 + t41;
        const V t44 = c[5] * t29;
        const V t45 = c[6] * t28;
        const V t46 = t45 - t44;
        const V t47 = c[5] * t28;
        const V t48 = c[6] * t29;
        const V t49 = t48 + t47;
        // complex block of 2
        const V t50 = t5 + t43;
        const V t51 = t4 + t40;
        const V t52 = t5 - t43;
        const V t53 = t4 - t40;
        // complex block of 2
        const V t54 = t37 + t49;
        const V t55 = t34 + t46;
        const V t56 = t37 - t49;
        const V t57 = t34 - t46;
        // complex block of 2
        const V t58 = t50 + t54;
        const V t59 = t51 + t55;
        const V t60 = t50 - t54;
        const V t61 = t51 - t55;
        // complex block of 2
        const V t62 = t52 + t57;
        const V t63 = t53 - t56;
        const V t64 = t52 - t57;
        const V t65 = t53 + t56;
        // row 1 of 16
        const V t66 = c[5] * t15;
        const V t67 = c[6] * t14;
        const V t68 = t67 - t66;
        const V t69 = c[5] * t14;
        const V t70 = c[6] * t15;
        const V t71 = t70 + t69;
        const V t72 = c[4] * t23;
        const V t73 = c[3] * t22;
        const V t74 = t73 - t72;
        const V t75 = c[4] * t22;
        const V t76 = c[3] * t23;
        const V t77 = t76 + t75;
        const V t78 = c[2] * t31;
        const V t79 = c[1] * t30;
        const V t80 = t79 + t78;
        const V t81 = c[2] * t30;
        const V t82 = c[1] * t31;
        const V t83 = t81 - t82;
        // complex block of 2
        const V t84 = t7 + t77;
        const V t85 = t6 + t74;
        const V t86 = t7 - t77;
        const V t87 = t6 - t74;
        // complex block of 2
        const V t88 = t71 + t83;
        const V t89 = t68 - t80;
        const V t90 = t71 - t83;
        const V t91 = t68 + t80;
        // complex block of 2
        const V t92 = t84 + t88;
        const V t93 = t85 + t89;
        const V t94 = t84 - t88;
        const V t95 = t85 - t89;
        // complex block of 2
        const V t96 = t86 + t91;
        const V t97 = t87 - t90;
        const V t98 = t86 - t91;
        const V t99 = t87 + t90;
        // part 0 of 16
        const V x17 = io.in(17);
        const V x49 = io.in(49);
        const V t100 = x17 + x49;
        const V t101 = c[0] * t100;
        const V t102 = x17 - x49;
        const V t103 = c[0] * t102;
        const V x1 = io.in(1);
        const V t104 = x1 + t101;
        const V x33 = io.in(33);
        const V t105 = t103 - x33;
        const V t106 = x1 - t101;
        const V t107 = t103 + x33;
        // part 1 of 16
        const V x21 = io.in(21);
        const V x53 = io.in(53);
        const V t108 = x21 + x53;
        const V t109 = c[0] * t108;
        const V t110 = x21 - x53;
        const V t111 = c[0] * t110;
        const V x5 = io.in(5);
        const V t112 = x5 + t109;
        const V x37 = io.in(37);
        const V t113 = t111 - x37;
        const V t114 = x5 - t109;
        const V t115 = t111 + x37;
        // part 2 of 16
        const V x25 = io.in(25);
        const V x57 = io.in(57);
        const V t116 = x25 + x57;
        const V t117 = c[0] * t116;
        const V t118 = x25 - x57;
        const V t119 = c[0] * t118;
        const V x9 = io.in(9);
        const V t120 = x9 + t117;
        const V x41 = io.in(41);
        const V t121 = t119 - x41;
        const V t122 = x9 - t117;
        const V t123 = t119 + x41;
        // part 3 of 16
        const V x29 = io.in(29);
        const V x61 = io.in(61);
        const V t124 = x29 + x61;
        const V t125 = c[0] * t124;
        const V t126 = x29 - x61;
        const V t127 = c[0] * t126;
        const V x13 = io.in(13);
        const V t128 = x13 + t125;
        const V x45 = io.in(45);
        const V t129 = t127 - x45;
        const V t130 = x13 - t125;
        const V t131 = t127 + x45;
        // row 0 of 16
        const V t132 = c[1] * t113;
        const V t133 = c[2] * t112;
        const V t134 = t133 - t132;
        const V t135 = c[1] * t112;
        const V t136 = c[2] * t113;
        const V t137 = t136 + t135;
        const V t138 = c[3] * t121;
        const V t139 = c[4] * t120;
        const V t140 = t139 - t138;
        const V t141 = c[3] * t120;
        const V t142 = c[4] * t121;
        const V t143 = t142 + t141;
        const V t144 = c[5] * t129;
        const V t145 = c[6] * t128;
        const V t146 = t145 - t144;
        const V t147 = c[5] * t128;
        const V t148 = c[6] * t129;
        const V t149 = t148 + t147;
        // complex block of 2
        const V t150 = t105 + t143;
        const V t151 = t104 + t140;
        const V t152 = t105 - t143;
        const V t153 = t104 - t140;
        // complex block of 2
        const V t154 = t137 + t149;
        const V t155 = t134 + t146;
        const V t156 = t137 - t149;
        const V t157 = t134 - t146;
        // complex block of 2
        const V t158 = t150 + t154;
        const V t159 = t151 + t155;
        const V t160 = t150 - t154;
        const V t161 = t151 - t155;
        // complex block of 2
        const V t162 = t152 + t157;
        const V t163 = t153 - t156;
        const V t164 = t152 - t157;
        const V t165 = t153 + t156;
        // row 1 of 16
        const V t166 = c[5] * t115;
        const V t167 = c[6] * t114;
        const V t168 = t167 - t166;
        const V t169 = c[5] * t114;
        const V t170 = c[6] * t115;
        const V t171 = t170 + t169;
        const V t172 = c[4] * t123;
        const V t173 = c[3] * t122;
        const V t174 = t173 - t172;
        const V t175 = c[4] * t122;
        const V t176 = c[3] * t123;
        const V t177 = t176 + t175;
        const V t178 = c[2] * t131;
        const V t179 = c[1] * t130;
        const V t180 = t179 + t178;
        const V t181 = c[2] * t130;
        const V t182 = c[1] * t131;
        const V t183 = t181 - t182;
        // complex block of 2
        const V t184 = t107 + t177;
        const V t185 = t106 + t174;
        const V t186 = t107 - t177;
        const V t187 = t106 - t174;
        // complex block of 2
        const V t188 = t171 + t183;
        const V t189 = t168 - t180;
        const V t190 = t171 - t183;
        const V t191 = t168 + t180;
        // complex block of 2
        const V t192 = t184 + t188;
        const V t193 = t185 + t189;
        const V t194 = t184 - t188;
        const V t195 = t185 - t189;
        // complex block of 2
        const V t196 = t186 + t191;
        const V t197 = t187 - t190;
        const V t198 = t186 - t191;
        const V t199 = t187 + t190;
        // part 0 of 16
        const V x18 = io.in(18);
        const V x50 = io.in(50);
        const V t200 = x18 + x50;
        const V t201 = c[0] * t200;
        const V t202 = x18 - x50;
        const V t203 = c[0] * t202;
        const V x2 = io.in(2);
        const V t204 = x2 + t201;
        const V x34 = io.in(34);
        const V t205 = t203 - x34;
        const V t206 = x2 - t201;
        const V t207 = t203 + x34;
        // part 1 of 16
        const V x22 = io.in(22);
        const V x54 = io.in(54);
        const V t208 = x22 + x54;
        const V t209 = c[0] * t208;
        const V t210 = x22 - x54;
        const V t211 = c[0] * t210;
        const V x6 = io.in(6);
        const V t212 = x6 + t209;
        const V x38 = io.in(38);
        const V t213 = t211 - x38;
        const V t214 = x6 - t209;
        const V t215 = t211 + x38;
        // part 2 of 16
        const V x26 = io.in(26);
        const V x58 = io.in(58);
        const V t216 = x26 + x58;
        const V t217 = c[0] * t216;
        const V t218 = x26 - x58;
        const V t219 = c[0] * t218;
        const V x10 = io.in(10);
        const V t220 = x10 + t217;
        const V x42 = io.in(42);
        const V t221 = t219 - x42;
        const V t222 = x10 - t217;
        const V t223 = t219 + x42;
        // part 3 of 16
        const V x30 = io.in(30);
        const V x62 = io.in(62);
        const V t224 = x30 + x62;
        const V t225 = c[0] * t224;
        const V t226 = x30 - x62;
        const V t227 = c[0] * t226;
        const V x14 = io.in(14);
        const V t228 = x14 + t225;
        const V x46 = io.in(46);
        const V t229 = t227 - x46;
        const V t230 = x14 - t225;
        const V t231 = t227 + x46;
        // row 0 of 16
        const V t232 = c[1] * t213;
        const V t233 = c[2] * t212;
        const V t234 = t233 - t232;
        const V t235 = c[1] * t212;
        const V t236 = c[2] * t213;
        const V t237 = t236 + t235;
        const V t238 = c[3] * t221;
        const V t239 = c[4] * t220;
        const V t240 = t239 - t238;
        const V t241 = c[3] * t220;
        const V t242 = c[4] * t221;
        const V t243 = t242 + t241;
        const V t244 = c[5] * t229;
        const V t245 = c[6] * t228;
        const V t246 = t245 - t244;
        const V t247 = c[5] * t228;
        const V t248 = c[6] * t229;
        const V t249 = t248 + t247;
        // complex block of 2
        const V t250 = t205 + t243;
        const V t251 = t204 + t240;
        const V t252 = t205 - t243;
        const V t253 = t204 - t240;
        // complex block of 2
        const V t254 = t237 + t249;
        const V t255 = t234 + t246;
        const V t256 = t237 - t249;
        const V t257 = t234 - t246;
        // complex block of 2
        const V t258 = t250 + t254;
        const V t259 = t251 + t255;
        const V t260 = t250 - t254;
        const V t261 = t251 - t255;
        // complex block of 2
        const V t262 = t252 + t257;
        const V t263 = t253 - t256;
        const V t264 = t252 - t257;
        const V t265 = t253 + t256;
        // row 1 of 16
        const V t266 = c[5] * t215;
        const V t267 = c[6] * t214;
        const V t268 = t267 - t266;
        const V t269 = c[5] * t214;
        const V t270 = c[6] * t215;
        const V t271 = t270 + t269;
        const V t272 = c[4] * t223;
        const V t273 = c[3] * t222;
        const V t274 = t273 - t272;
        const V t275 = c[4] * t222;
        const V t276 = c[3] * t223;
        const V t277 = t276 + t275;
        const V t278 = c[2] * t231;
        const V t279 = c[1] * t230;
        const V t280 = t279 + t278;
        const V t281 = c[2] * t230;
        const V t282 = c[1] * t231;
        const V t283 = t281 - t282;
        // complex block of 2
        const V t284 = t207 + t277;
        const V t285 = t206 + t274;
        const V t286 = t207 - t277;
        const V t287 = t206 - t274;
        // complex block of 2
        const V t288 = t271 + t283;
        const V t289 = t268 - t280;
        const V t290 = t271 - t283;
        const V t291 = t268 + t280;
        // complex block of 2
        const V t292 = t284 + t288;
        const V t293 = t285 + t289;
        const V t294 = t284 - t288;
        const V t295 = t285 - t289;
        // complex block of 2
        const V t296 = t286 + t291;
        const V t297 = t287 - t290;
        const V t298 = t286 - t291;
        const V t299 = t287 + t290;
        // part 0 of 16
        const V x19 = io.in(19);
        const V x51 = io.in(51);
        const V t300 = x19 + x51;
        const V t301 = c[0] * t300;
        const V t302 = x19 - x51;
        const V t303 = c[0] * t302;
        const V x3 = io.in(3);
        const V t304 = x3 + t301;
        const V x35 = io.in(35);
        const V t305 = t303 - x35;
        const V t306 = x3 - t301;
        const V t307 = t303 + x35;
        // part 1 of 16
        const V x23 = io.in(23);
        const V x55 = io.in(55);
        const V t308 = x23 + x55;
        const V t309 = c[0] * t308;
        const V t310 = x23 - x55;
        const V t311 = c[0] * t310;
        const V x7 = io.in(7);
        const V t312 = x7 + t309;
        const V x39 = io.in(39);
        const V t313 = t311 - x39;
        const V t314 = x7 - t309;
        const V t315 = t311 + x39;
        // part 2 of 16
        const V x27 = io.in(27);
        const V x59 = io.in(59);
        const V t316 = x27 + x59;
        const V t317 = c[0] * t316;
        const V t318 = x27 - x59;
        const V t319 = c[0] * t318;
        const V x11 = io.in(11);
        const V t320 = x11 + t317;
        const V x43 = io.in(43);
        const V t321 = t319 - x43;
        const V t322 = x11 - t317;
        const V t323 = t319 + x43;
        // part 3 of 16
        const V x31 = io.in(31);
        const V x63 = io.in(63);
        const V t324 = x31 + x63;
        const V t325 = c[0] * t324;
        const V t326 = x31 - x63;
        const V t327 = c[0] * t326;
        const V x15 = io.in(15);
        const V t328 = x15 + t325;
        const V x47 = io.in(47);
        const V t329 = t327 - x47;
        const V t330 = x15 - t325;
        const V t331 = t327 + x47;
        // row 0 of 16
        const V t332 = c[1] * t313;
        const V t333 = c[2] * t312;
        const V t334 = t333 - t332;
        const V t335 = c[1] * t312;
        const V t336 = c[2] * t313;
        const V t337 = t336 + t335;
        const V t338 = c[3] * t321;
        const V t339 = c[4] * t320;
        const V t340 = t339 - t338;
        const V t341 = c[3] * t320;
        const V t342 = c[4] * t321;
        const V t343 = t342 + t341;
        const V t344 = c[5] * t329;
        const V t345 = c[6] * t328;
        const V t346 = t345 - t344;
        const V t347 = c[5] * t328;
        const V t348 = c[6] * t329;
        const V t349 = t348 + t347;
        // complex block of 2
        const V t350 = t305 + t343;
        const V t351 = t304 + t340;
        const V t352 = t305 - t343;
        const V t353 = t304 - t340;
        // complex block of 2
        const V t354 = t337 + t349;
        const V t355 = t334 + t346;
        const V t356 = t337 - t349;
        const V t357 = t334 - t346;
        // complex block of 2
        const V t358 = t350 + t354;
        const V t359 = t351 + t355;
        const V t360 = t350 - t354;
        const V t361 = t351 - t355;
        // complex block of 2
        const V t362 = t352 + t357;
        const V t363 = t353 - t356;
        const V t364 = t352 - t357;
        const V t365 = t353 + t356;
        // row 1 of 16
        const V t366 = c[5] * t315;
        const V t367 = c[6] * t314;
        const V t368 = t367 - t366;
        const V t369 = c[5] * t314;
        const V t370 = c[6] * t315;
        const V t371 = t370 + t369;
        const V t372 = c[4] * t323;
        const V t373 = c[3] * t322;
        const V t374 = t373 - t372;
        const V t375 = c[4] * t322;
        const V t376 = c[3] * t323;
        const V t377 = t376 + t375;
        const V t378 = c[2] * t331;
        const V t379 = c[1] * t330;
        const V t380 = t379 + t378;
        const V t381 = c[2] * t330;
        const V t382 = c[1] * t331;
        const V t383 = t381 - t382;
        // complex block of 2
        const V t384 = t307 + t377;
        const V t385 = t306 + t374;
        const V t386 = t307 - t377;
        const V t387 = t306 - t374;
        // complex block of 2
        const V t388 = t371 + t383;
        const V t389 = t368 - t380;
        const V t390 = t371 - t383;
        const V t391 = t368 + t380;
        // complex block of 2
        const V t392 = t384 + t388;
        const V t393 = t385 + t389;
        const V t394 = t384 - t388;
        const V t395 = t385 - t389;
        // complex block of 2
        const V t396 = t386 + t391;
        const V t397 = t387 - t390;
        const V t398 = t386 - t391;
        const V t399 = t387 + t390;
        // row 0 of 64
        const V t400 = c[7] * t158;
        const V t401 = c[8] * t159;
        const V t402 = t401 - t400;
        const V t403 = c[7] * t159;
        const V t404 = c[8] * t158;
        const V t405 = t404 + t403;
        const V t406 = c[9] * t258;
        const V t407 = c[10] * t259;
        const V t408 = t407 - t406;
        const V t409 = c[9] * t259;
        const V t410 = c[10] * t258;
        const V t411 = t410 + t409;
        const V t412 = c[11] * t358;
        const V t413 = c[12] * t359;
        const V t414 = t413 - t412;
        const V t415 = c[11] * t359;
        const V t416 = c[12] * t358;
        const V t417 = t416 + t415;
        // complex block of 2
        const V t418 = t58 + t411;
        const V t419 = t59 + t408;
        const V t420 = t58 - t411;
        const V t421 = t59 - t408;
        // complex block of 2
        const V t422 = t405 + t417;
        const V t423 = t402 + t414;
        const V t424 = t405 - t417;
        const V t425 = t402 - t414;
        // complex block of 2
        const V t426 = t418 + t422;
        io.im(0, t426);
        const V t427 = t419 + t423;
        io.re(0, t427);
        const V t428 = t419 - t423;
        io.re(31, t428);
        // complex block of 2
        const V t429 = t420 + t425;
        io.im(16, t429);
        const V t430 = t421 - t424;
        io.re(16, t430);
        const V t431 = t421 + t424;
        io.re(15, t431);
        // row 1 of 64
        const V t432 = c[11] * t192;
        const V t433 = c[12] * t193;
        const V t434 = t433 - t432;
        const V t435 = c[11] * t193;
        const V t436 = c[12] * t192;
        const V t437 = t436 + t435;
        const V t438 = c[13] * t292;
        const V t439 = c[14] * t293;
        const V t440 = t439 - t438;
        const V t441 = c[13] * t293;
        const V t442 = c[14] * t292;
        const V t443 = t442 + t441;
        const V t444 = c[15] * t392;
        const V t445 = c[16] * t393;
        const V t446 = t445 - t444;
        const V t447 = c[15] * t393;
        const V t448 = c[16] * t392;
        const V t449 = t448 + t447;
        // complex block of 2
        const V t450 = t92 + t443;
        const V t451 = t93 + t440;
        const V t452 = t92 - t443;
        const V t453 = t93 - t440;
        // complex block of 2
        const V t454 = t437 + t449;
        const V t455 = t434 + t446;
        const V t456 = t437 - t449;
        const V t457 = t434 - t446;
        // complex block of 2
        const V t458 = t450 + t454;
        io.im(1, t458);
        const V t459 = t451 + t455;
        io.re(1, t459);
        const V t460 = t451 - t455;
        io.re(30, t460);
        // complex block of 2
        const V t461 = t452 + t457;
        io.im(17, t461);
        const V t462 = t453 - t456;
        io.re(17, t462);
        const V t463 = t453 + t456;
        io.re(14, t463);
        // row 2 of 64
        const V t464 = c[17] * t198;
        const V t465 = c[18] * t199;
        const V t466 = t465 + t464;
        const V t467 = c[17] * t199;
        const V t468 = c[18] * t198;
        const V t469 = t467 - t468;
        const V t470 = c[19] * t298;
        const V t471 = c[20] * t299;
        const V t472 = t471 + t470;
        const V t473 = c[19] * t299;
        const V t474 = c[20] * t298;
        const V t475 = t473 - t474;
        const V t476 = c[21] * t398;
        const V t477 = c[22] * t399;
        const V t478 = t477 + t476;
        const V t479 = c[21] * t399;
        const V t480 = c[22] * t398;
        const V t481 = t479 - t480;
        // complex block of 2
        const V t482 = t475 - t98;
        const V t483 = t99 + t472;
        const V t484 = t98 + t475;
        const V t485 = t99 - t472;
        // complex block of 2
        const V t486 = t469 + t481;
        const V t487 = t466 + t478;
        const V t488 = t469 - t481;
        const V t489 = t466 - t478;
        // complex block of 2
        const V t490 = t482 + t486;
        io.im(2, t490);
        const V t491 = t483 + t487;
        io.re(2, t491);
        const V t492 = t483 - t487;
        io.re(29, t492);
        // complex block of 2
        const V t493 = t489 - t484;
        io.im(18, t493);
        const V t494 = t485 - t488;
        io.re(18, t494);
        const V t495 = t484 + t489;
        io.im(13, t495);
        const V t496 = t485 + t488;
        io.re(13, t496);
        // row 3 of 64
        const V t497 = c[23] * t164;
        const V t498 = c[24] * t165;
        const V t499 = t498 + t497;
        const V t500 = c[23] * t165;
        const V t501 = c[24] * t164;
        const V t502 = t500 - t501;
        const V t503 = c[25] * t264;
        const V t504 = c[26] * t265;
        const V t505 = t504 + t503;
        const V t506 = c[25] * t265;
        const V t507 = c[26] * t264;
        const V t508 = t506 - t507;
        const V t509 = c[27] * t364;
        const V t510 = c[28] * t365;
        const V t511 = t510 + t509;
        const V t512 = c[27] * t365;
        const V t513 = c[28] * t364;
        const V t514 = t512 - t513;
        // complex block of 2
        const V t515 = t508 - t64;
        const V t516 = t65 + t505;
        const V t517 = t64 + t508;
        const V t518 = t65 - t505;
        // complex block of 2
        const V t519 = t502 + t514;
        const V t520 = t499 + t511;
        const V t521 = t502 - t514;
        const V t522 = t499 - t511;
        // complex block of 2
        const V t523 = t515 + t519;
        io.im(3, t523);
        const V t524 = t516 + t520;
        io.re(3, t524);
        const V t525 = t516 - t520;
        io.re(28, t525);
        // complex block of 2
        const V t526 = t522 - t517;
        io.im(19, t526);
        const V t527 = t518 - t521;
        io.re(19, t527);
        const V t528 = t517 + t522;
        io.im(12, t528);
        const V t529 = t518 + t521;
        io.re(12, t529);
        // row 4 of 64
        const V t530 = c[15] * t162;
        const V t531 = c[16] * t163;
        const V t532 = t531 - t530;
        const V t533 = c[15] * t163;
        const V t534 = c[16] * t162;
        const V t535 = t534 + t533;
        const V t536 = c[26] * t262;
        const V t537 = c[25] * t263;
        const V t538 = t537 - t536;
        const V t539 = c[26] * t263;
        const V t540 = c[25] * t262;
        const V t541 = t540 + t539;
        const V t542 = c[18] * t362;
        const V t543 = c[17] * t363;
        const V t544 = t543 - t542;
        const V t545 = c[18] * t363;
        const V t546 = c[17] * t362;
        const V t547 = t546 + t545;
        // complex block of 2
        const V t548 = t62 + t541;
        const V t549 = t63 + t538;
        const V t550 = t62 - t541;
        const V t551 = t63 - t538;
        // complex block of 2
        const V t552 = t535 + t547;
        const V t553 = t532 + t544;
        const V t554 = t535 - t547;
        const V t555 = t532 - t544;
        // complex block of 2
        const V t556 = t548 + t552;
        io.im(4, t556);
        const V t557 = t549 + t553;
        io.re(4, t557);
        const V t558 = t549 - t553;
        io.re(27, t558);
        // complex block of 2
        const V t559 = t550 + t555;
        io.im(20, t559);
        const V t560 = t551 - t554;
        io.re(20, t560);
        const V t561 = t551 + t554;
        io.re(11, t561);
        // row 5 of 64
        const V t562 = c[28] * t196;
        const V t563 = c[27] * t197;
        const V t564 = t563 - t562;
        const V t565 = c[28] * t197;
        const V t566 = c[27] * t196;
        const V t567 = t566 + t565;
        const V t568 = c[20] * t296;
        const V t569 = c[19] * t297;
        const V t570 = t569 - t568;
        const V t571 = c[20] * t297;
        const V t572 = c[19] * t296;
        const V t573 = t572 + t571;
        const V t574 = c[8] * t396;
        const V t575 = c[7] * t397;
        const V t576 = t575 + t574;
        const V t577 = c[8] * t397;
        const V t578 = c[7] * t396;
        const V t579 = t577 - t578;
        // complex block of 2
        const V t580 = t96 + t573;
        const V t581 = t97 + t570;
        const V t582 = t96 - t573;
        const V t583 = t97 - t570;
        // complex block of 2
        const V t584 = t567 + t579;
        const V t585 = t564 - t576;
        const V t586 = t567 - t579;
        const V t587 = t564 + t576;
        // complex block of 2
        const V t588 = t580 + t584;
        io.im(5, t588);
        const V t589 = t581 + t585;
        io.re(5, t589);
        const V t590 = t581 - t585;
        io.re(26, t590);
        // complex block of 2
        const V t591 = t582 + t587;
        io.im(21, t591);
        const V t592 = t583 - t586;
        io.re(21, t592);
        const V t593 = t583 + t586;
        io.re(10, t593);
        // row 6 of 64
        const V t594 = c[29] * t194;
        const V t595 = c[30] * t195;
        const V t596 = t595 + t594;
        const V t597 = c[29] * t195;
        const V t598 = c[30] * t194;
        const V t599 = t597 - t598;
        const V t600 = c[14] * t294;
        const V t601 = c[13] * t295;
        const V t602 = t601 + t600;
        const V t603 = c[14] * t295;
        const V t604 = c[13] * t294;
        const V t605 = t603 - t604;
        const V t606 = c[24] * t394;
        const V t607 = c[23] * t395;
        const V t608 = t606 - t607;
        const V t609 = c[24] * t395;
        const V t610 = c[23] * t394;
        const V t611 = t610 + t609;
        // complex block of 2
        const V t612 = t605 - t94;
        const V t613 = t95 + t602;
        const V t614 = t94 + t605;
        const V t615 = t95 - t602;
        // complex block of 2
        const V t616 = t599 + t611;
        const V t617 = t596 + t608;
        const V t618 = t599 - t611;
        const V t619 = t596 - t608;
        // complex block of 2
        const V t620 = t612 + t616;
        io.im(6, t620);
        const V t621 = t613 + t617;
        io.re(6, t621);
        const V t622 = t613 - t617;
        io.re(25, t622);
        // complex block of 2
        const V t623 = t619 - t614;
        io.im(22, t623);
        const V t624 = t615 - t618;
        io.re(22, t624);
        const V t625 = t614 + t619;
        io.im(9, t625);
        const V t626 = t615 + t618;
        io.re(9, t626);
        // row 7 of 64
        const V t627 = c[21] * t160;
        const V t628 = c[22] * t161;
        const V t629 = t628 + t627;
        const V t630 = c[21] * t161;
        const V t631 = c[22] * t160;
        const V t632 = t630 - t631;
        const V t633 = c[10] * t260;
        const V t634 = c[9] * t261;
        const V t635 = t634 + t633;
        const V t636 = c[10] * t261;
        const V t637 = c[9] * t260;
        const V t638 = t636 - t637;
        const V t639 = c[30] * t360;
        const V t640 = c[29] * t361;
        const V t641 = t639 - t640;
        const V t642 = c[30] * t361;
        const V t643 = c[29] * t360;
        const V t644 = t643 + t642;
        // complex block of 2
        const V t645 = t638 - t60;
        const V t646 = t61 + t635;
        const V t647 = t60 + t638;
        const V t648 = t61 - t635;
        // complex block of 2
        const V t649 = t632 + t644;
        const V t650 = t629 + t641;
        const V t651 = t632 - t644;
        const V t652 = t629 - t641;
        // complex block of 2
        const V t653 = t645 + t649;
        io.im(7, t653);
        const V t654 = t646 + t650;
        io.re(7, t654);
        const V t655 = t646 - t650;
        io.re(24, t655);
        // complex block of 2
        const V t656 = t652 - t647;
        io.im(23, t656);
        const V t657 = t648 - t651;
        io.re(23, t657);
        const V t658 = t647 + t652;
        io.im(8, t658);
        const V t659 = t648 + t651;
        io.re(8, t659);
        const V t660 = t587 - t582;
        io.im(10, t660);
        const V t661 = t555 - t550;
        io.im(11, t661);
        const V t662 = t457 - t452;
        io.im(14, t662);
        const V t663 = t425 - t420;
        io.im(15, t663);
        const V t664 = t649 - t645;
        io.im(24, t664);
        const V t665 = t616 - t612;
        io.im(25, t665);
        const V t666 = t584 - t580;
        io.im(26, t666);
        const V t667 = t552 - t548;
        io.im(27, t667);
        const V t668 = t519 - t515;
        io.im(28, t668);
        const V t669 = t486 - t482;
        io.im(29, t669);
        const V t670 = t454 - t450;
        io.im(30, t670);
        const V t671 = t422 - t418;
        io.im(31, t671);
    }
};

}  // namespace zulg
