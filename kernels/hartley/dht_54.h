// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 54.
// Hartley transform of 54 points, form I.
// 217 additions, 217 subtractions, 200 multiplications (254 with `scale`); 36 constants; 63 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<54> {
    static constexpr int steps = 688;  // with `scale`
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
        0.44879918020046217,  // c[12]: -sin 2 pi 25/27
        0.8936326403234123,  // c[13]: cos 2 pi 25/27
        0.8021231927550437,  // c[14]: -sin 2 pi 23/27
        0.5971585917027862,  // c[15]: cos 2 pi 23/27
        0.9579895123154889,  // c[16]: -sin 2 pi 19/27
        0.28680323271109026,  // c[17]: -cos 2 pi 19/27
        0.7273736415730487,  // c[18]: -sin 2 pi 17/27
        0.6862416378687336,  // c[19]: -cos 2 pi 17/27
        0.11609291412523023,  // c[20]: sin 2 pi 13/27
        0.993238357741943,  // c[21]: -cos 2 pi 13/27
        0.549508978070806,  // c[22]: sin 2 pi 11/27
        0.8354878114129364,  // c[23]: -cos 2 pi 11/27
        0.7739085681710371,  // c[24]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.3886714912512303,  // c[25]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.5171545105027521,  // c[26]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.6946590618905499,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.8296432542242788,  // c[28]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.24837888541530426,  // c[29]: sin 2 pi 1/3 times -cos 2 pi 19/27
        0.6299240516454571,  // c[30]: sin 2 pi 1/3 times -sin 2 pi 17/27
        0.5943026915289645,  // c[31]: sin 2 pi 1/3 times -cos 2 pi 17/27
        0.8601696498176589,  // c[32]: sin 2 pi 1/3 times -cos 2 pi 13/27
        0.10053941283181467,  // c[33]: sin 2 pi 1/3 times sin 2 pi 13/27
        0.7235536692358652,  // c[34]: sin 2 pi 1/3 times -cos 2 pi 11/27
        0.47588873461694403,  // c[35]: sin 2 pi 1/3 times sin 2 pi 11/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x53 = io.in(53);
        const V t0 = x1 + x53;
        const V t1 = x1 - x53;
        const V x2 = io.in(2);
        const V x52 = io.in(52);
        const V t2 = x2 + x52;
        const V t3 = x2 - x52;
        const V x3 = io.in(3);
        const V x51 = io.in(51);
        const V t4 = x3 + x51;
        const V t5 = x3 - x51;
        const V x4 = io.in(4);
        const V x50 = io.in(50);
        const V t6 = x4 + x50;
        const V t7 = x4 - x50;
        const V x5 = io.in(5);
        const V x49 = io.in(49);
        const V t8 = x5 + x49;
        const V t9 = x5 - x49;
        const V x6 = io.in(6);
        const V x48 = io.in(48);
        const V t10 = x6 + x48;
        const V t11 = x6 - x48;
        const V x7 = io.in(7);
        const V x47 = io.in(47);
        const V t12 = x7 + x47;
        const V t13 = x7 - x47;
        const V x8 = io.in(8);
        const V x46 = io.in(46);
        const V t14 = x8 + x46;
        const V t15 = x8 - x46;
        const V x9 = io.in(9);
        const V x45 = io.in(45);
        const V t16 = x9 + x45;
        const V t17 = x9 - x45;
        const V x10 = io.in(10);
        const V x44 = io.in(44);
        const V t18 = x10 + x44;
        const V t19 = x10 - x44;
        const V x11 = io.in(11);
        const V x43 = io.in(43);
        const V t20 = x11 + x43;
        const V t21 = x11 - x43;
        const V x12 = io.in(12);
        const V x42 = io.in(42);
        const V t22 = x12 + x42;
        const V t23 = x12 - x42;
        const V x13 = io.in(13);
        const V x41 = io.in(41);
        const V t24 = x13 + x41;
        const V t25 = x13 - x41;
        const V x14 = io.in(14);
        const V x40 = io.in(40);
        const V t26 = x14 + x40;
        const V t27 = x14 - x40;
        const V x15 = io.in(15);
        const V x39 = io.in(39);
        const V t28 = x15 + x39;
        const V t29 = x15 - x39;
        const V x16 = io.in(16);
        const V x38 = io.in(38);
        const V t30 = x16 + x38;
        const V t31 = x16 - x38;
        const V x17 = io.in(17);
        const V x37 = io.in(37);
        const V t32 = x17 + x37;
        const V t33 = x17 - x37;
        const V x18 = io.in(18);
        const V x36 = io.in(36);
        const V t34 = x18 + x36;
        const V t35 = x18 - x36;
        const V x19 = io.in(19);
        const V x35 = io.in(35);
        const V t36 = x19 + x35;
        const V t37 = x19 - x35;
        const V x20 = io.in(20);
        const V x34 = io.in(34);
        const V t38 = x20 + x34;
        const V t39 = x20 - x34;
        const V x21 = io.in(21);
        const V x33 = io.in(33);
        const V t40 = x21 + x33;
        const V t41 = x21 - x33;
        const V x22 = io.in(22);
        const V x32 = io.in(32);
        const V t42 = x22 + x32;
        const V t43 = x22 - x32;
        const V x23 = io.in(23);
        const V x31 = io.in(31);
        const V t44 = x23 + x31;
        const V t45 = x23 - x31;
        const V x24 = io.in(24);
        const V x30 = io.in(30);
        const V t46 = x24 + x30;
        const V t47 = x24 - x30;
        const V x25 = io.in(25);
        const V x29 = io.in(29);
        const V t48 = x25 + x29;
        const V t49 = x25 - x29;
        const V x26 = io.in(26);
        const V x28 = io.in(28);
        const V t50 = x26 + x28;
        const V t51 = x26 - x28;
        // spectrum block of 3, multiplier 2
        const V x0 = io.in(0);
        const V t52 = t34 + x0;
        const V t53 = c[0] * t34;
        const V t54 = x0 - t53;
        const V t55 = c[1] * t35;
        const V t56 = t54 - t55;
        const V t57 = t54 + t55;
        // complex block of 3, multiplier 2
        const V t58 = t47 - t23;
        const V t59 = t46 + t22;
        const V t60 = t47 + t23;
        const V t61 = t46 - t22;
        const V t62 = t58 + t11;
        const V t63 = t59 + t10;
        const V t64 = c[0] * t58;
        const V t65 = t11 - t64;
        const V t66 = c[0] * t59;
        const V t67 = t10 - t66;
        const V t68 = c[1] * t60;
        const V t69 = c[1] * t61;
        const V t70 = t65 + t69;
        const V t71 = t67 - t68;
        const V t72 = t65 - t69;
        const V t73 = t67 + t68;
        // spectrum block of 9, multiplier 2
        const V t74 = c[4] * t72;
        const V t75 = c[5] * t73;
        const V t76 = t75 - t74;
        const V t77 = c[2] * t70;
        const V t78 = c[3] * t71;
        const V t79 = t78 + t77;
        // spectrum block of 3, multiplier 2
        const V t80 = t63 + t52;
        const V t81 = c[0] * t63;
        const V t82 = t52 - t81;
        const V t83 = c[1] * t62;
        const V t84 = t82 - t83;
        const V t85 = t82 + t83;
        // spectrum block of 3, multiplier 2
        const V t86 = t76 + t57;
        const V t87 = c[0] * t76;
        const V t88 = t57 - t87;
        const V t89 = c[6] * t72;
        const V t90 = c[7] * t73;
        const V t91 = t89 + t90;
        const V t92 = t88 - t91;
        const V t93 = t88 + t91;
        // spectrum block of 3, multiplier 2
        const V t94 = t56 - t79;
        const V t95 = c[0] * t79;
        const V t96 = t95 + t56;
        const V t97 = c[8] * t71;
        const V t98 = c[9] * t70;
        const V t99 = t97 - t98;
        const V t100 = t96 - t99;
        const V t101 = t96 + t99;
        // complex block of 3, multiplier 2
        const V t102 = t39 - t31;
        const V t103 = t38 + t30;
        const V t104 = t39 + t31;
        const V t105 = t38 - t30;
        const V t106 = t102 + t3;
        const V t107 = t103 + t2;
        const V t108 = c[0] * t102;
        const V t109 = t3 - t108;
        const V t110 = c[0] * t103;
        const V t111 = t2 - t110;
        const V t112 = c[1] * t104;
        const V t113 = c[1] * t105;
        const V t114 = t109 + t113;
        const V t115 = t111 - t112;
        const V t116 = t109 - t113;
        const V t117 = t111 + t112;
        // complex block of 3, multiplier 2
        const V t118 = t51 - t19;
        const V t119 = t50 + t18;
        const V t120 = t51 + t19;
        const V t121 = t50 - t18;
        const V t122 = t118 + t15;
        const V t123 = t119 + t14;
        const V t124 = c[0] * t118;
        const V t125 = t15 - t124;
        const V t126 = c[0] * t119;
        const V t127 = t14 - t126;
        const V t128 = c[1] * t120;
        const V t129 = c[1] * t121;
        const V t130 = t125 + t129;
        const V t131 = t127 - t128;
        const V t132 = t125 - t129;
        const V t133 = t127 + t128;
        // complex block of 3, multiplier 2
        const V t134 = t43 + t7;
        const V t135 = t42 + t6;
        const V t136 = t7 - t43;
        const V t137 = t42 - t6;
        const V t138 = t27 - t134;
        const V t139 = t135 + t26;
        const V t140 = c[0] * t134;
        const V t141 = t140 + t27;
        const V t142 = c[0] * t135;
        const V t143 = t26 - t142;
        const V t144 = c[1] * t136;
        const V t145 = c[1] * t137;
        const V t146 = t141 + t145;
        const V t147 = t143 - t144;
        const V t148 = t141 - t145;
        const V t149 = t143 + t144;
        // complex block of 3, multiplier 2
        const V t150 = t122 + t138;
        const V t151 = t123 + t139;
        const V t152 = t122 - t138;
        const V t153 = t123 - t139;
        const V t154 = t150 + t106;
        const V t155 = t151 + t107;
        const V t156 = c[0] * t150;
        const V t157 = t106 - t156;
        const V t158 = c[0] * t151;
        const V t159 = t107 - t158;
        const V t160 = c[1] * t152;
        const V t161 = c[1] * t153;
        const V t162 = t157 + t161;
        const V t163 = t159 - t160;
        const V t164 = t157 - t161;
        const V t165 = t159 + t160;
        // complex block of 9, multiplier 2
        const V t166 = c[4] * t133;
        const V t167 = c[5] * t132;
        const V t168 = t167 + t166;
        const V t169 = c[4] * t132;
        const V t170 = c[5] * t133;
        const V t171 = t170 - t169;
        const V t172 = c[2] * t149;
        const V t173 = c[3] * t148;
        const V t174 = t172 - t173;
        const V t175 = c[2] * t148;
        const V t176 = c[3] * t149;
        const V t177 = t176 + t175;
        // complex block of 3, multiplier 2
        const V t178 = t168 + t174;
        const V t179 = t171 - t177;
        const V t180 = t168 - t174;
        const V t181 = t171 + t177;
        const V t182 = t178 + t116;
        const V t183 = t179 + t117;
        const V t184 = c[0] * t178;
        const V t185 = t116 - t184;
        const V t186 = c[0] * t179;
        const V t187 = t117 - t186;
        const V t188 = c[1] * t180;
        const V t189 = c[1] * t181;
        const V t190 = t185 + t189;
        const V t191 = t187 - t188;
        const V t192 = t185 - t189;
        const V t193 = t187 + t188;
        // complex block of 9, multiplier 2
        const V t194 = c[2] * t131;
        const V t195 = c[3] * t130;
        const V t196 = t194 - t195;
        const V t197 = c[2] * t130;
        const V t198 = c[3] * t131;
        const V t199 = t198 + t197;
        const V t200 = c[10] * t147;
        const V t201 = c[11] * t146;
        const V t202 = t201 - t200;
        const V t203 = c[10] * t146;
        const V t204 = c[11] * t147;
        const V t205 = t204 + t203;
        // complex block of 3, multiplier 2
        const V t206 = t196 + t202;
        const V t207 = t205 - t199;
        const V t208 = t196 - t202;
        const V t209 = t199 + t205;
        const V t210 = t206 + t114;
        const V t211 = t207 + t115;
        const V t212 = c[0] * t206;
        const V t213 = t114 - t212;
        const V t214 = c[0] * t207;
        const V t215 = t115 - t214;
        const V t216 = c[1] * t208;
        const V t217 = c[1] * t209;
        const V t218 = t213 - t217;
        const V t219 = t215 - t216;
        const V t220 = t213 + t217;
        const V t221 = t215 + t216;
        // spectrum block of 27, multiplier 2
        const V t222 = c[12] * t182;
        const V t223 = c[13] * t183;
        const V t224 = t223 - t222;
        const V t225 = c[14] * t210;
        const V t226 = c[15] * t211;
        const V t227 = t226 - t225;
        const V t228 = c[4] * t164;
        const V t229 = c[5] * t165;
        const V t230 = t229 - t228;
        const V t231 = c[16] * t192;
        const V t232 = c[17] * t193;
        const V t233 = t232 + t231;
        const V t234 = c[18] * t220;
        const V t235 = c[19] * t221;
        const V t236 = t235 + t234;
        const V t237 = c[2] * t162;
        const V t238 = c[3] * t163;
        const V t239 = t238 + t237;
        const V t240 = c[20] * t190;
        const V t241 = c[21] * t191;
        const V t242 = t240 - t241;
        const V t243 = c[22] * t218;
        const V t244 = c[23] * t219;
        const V t245 = t243 - t244;
        // spectrum block of 3, multiplier 2
        const V t246 = t155 + t80;
        const V t247 = c[0] * t155;
        const V t248 = t80 - t247;
        const V t249 = c[1] * t154;
        const V t250 = t248 - t249;
        const V t251 = t248 + t249;
        // spectrum block of 3, multiplier 2
        const V t252 = t224 + t86;
        const V t253 = c[0] * t224;
        const V t254 = t86 - t253;
        const V t255 = c[24] * t182;
        const V t256 = c[25] * t183;
        const V t257 = t255 + t256;
        const V t258 = t254 - t257;
        const V t259 = t254 + t257;
        // spectrum block of 3, multiplier 2
        const V t260 = t227 + t94;
        const V t261 = c[0] * t227;
        const V t262 = t94 - t261;
        const V t263 = c[26] * t210;
        const V t264 = c[27] * t211;
        const V t265 = t263 + t264;
        const V t266 = t262 - t265;
        const V t267 = t262 + t265;
        // spectrum block of 3, multiplier 2
        const V t268 = t230 + t85;
        const V t269 = c[0] * t230;
        const V t270 = t85 - t269;
        const V t271 = c[6] * t164;
        const V t272 = c[7] * t165;
        const V t273 = t271 + t272;
        const V t274 = t270 - t273;
        const V t275 = t270 + t273;
        // spectrum block of 3, multiplier 2
        const V t276 = t93 - t233;
        const V t277 = c[0] * t233;
        const V t278 = t277 + t93;
        const V t279 = c[28] * t193;
        const V t280 = c[29] * t192;
        const V t281 = t279 - t280;
        const V t282 = t278 - t281;
        const V t283 = t278 + t281;
        // spectrum block of 3, multiplier 2
        const V t284 = t101 - t236;
        const V t285 = c[0] * t236;
        const V t286 = t285 + t101;
        const V t287 = c[30] * t221;
        const V t288 = c[31] * t220;
        const V t289 = t287 - t288;
        const V t290 = t286 - t289;
        const V t291 = t286 + t289;
        // spectrum block of 3, multiplier 2
        const V t292 = t84 - t239;
        const V t293 = c[0] * t239;
        const V t294 = t293 + t84;
        const V t295 = c[8] * t163;
        const V t296 = c[9] * t162;
        const V t297 = t295 - t296;
        const V t298 = t294 - t297;
        const V t299 = t294 + t297;
        // spectrum block of 3, multiplier 2
        const V t300 = t242 + t92;
        const V t301 = c[0] * t242;
        const V t302 = t92 - t301;
        const V t303 = c[32] * t190;
        const V t304 = c[33] * t191;
        const V t305 = t303 + t304;
        const V t306 = t302 + t305;
        const V t307 = t302 - t305;
        // spectrum block of 3, multiplier 2
        const V t308 = t245 + t100;
        const V t309 = c[0] * t245;
        const V t310 = t100 - t309;
        const V t311 = c[34] * t218;
        const V t312 = c[35] * t219;
        const V t313 = t311 + t312;
        const V t314 = t310 + t313;
        const V t315 = t310 - t313;
        // spectrum block of 3, multiplier 2
        const V x27 = io.in(27);
        const V t316 = t16 + x27;
        const V t317 = c[0] * t16;
        const V t318 = x27 - t317;
        const V t319 = c[1] * t17;
        const V t320 = t318 + t319;
        const V t321 = t318 - t319;
        // complex block of 3, multiplier 2
        const V t322 = t29 - t5;
        const V t323 = t4 + t28;
        const V t324 = t5 + t29;
        const V t325 = t4 - t28;
        const V t326 = t322 - t41;
        const V t327 = t323 + t40;
        const V t328 = c[0] * t322;
        const V t329 = t41 + t328;
        const V t330 = c[0] * t323;
        const V t331 = t40 - t330;
        const V t332 = c[1] * t324;
        const V t333 = c[1] * t325;
        const V t334 = t333 - t329;
        const V t335 = t331 + t332;
        const V t336 = t329 + t333;
        const V t337 = t331 - t332;
        // spectrum block of 9, multiplier 2
        const V t338 = c[4] * t336;
        const V t339 = c[5] * t337;
        const V t340 = t339 + t338;
        const V t341 = c[2] * t334;
        const V t342 = c[3] * t335;
        const V t343 = t342 + t341;
        // spectrum block of 3, multiplier 2
        const V t344 = t327 + t316;
        const V t345 = c[0] * t327;
        const V t346 = t316 - t345;
        const V t347 = c[1] * t326;
        const V t348 = t346 - t347;
        const V t349 = t346 + t347;
        // spectrum block of 3, multiplier 2
        const V t350 = t340 + t321;
        const V t351 = c[0] * t340;
        const V t352 = t321 - t351;
        const V t353 = c[7] * t337;
        const V t354 = c[6] * t336;
        const V t355 = t353 - t354;
        const V t356 = t352 - t355;
        const V t357 = t352 + t355;
        // spectrum block of 3, multiplier 2
        const V t358 = t320 - t343;
        const V t359 = c[0] * t343;
        const V t360 = t359 + t320;
        const V t361 = c[8] * t335;
        const V t362 = c[9] * t334;
        const V t363 = t361 - t362;
        const V t364 = t360 - t363;
        const V t365 = t360 + t363;
        // complex block of 3, multiplier 2
        const V t366 = t21 - t13;
        const V t367 = t12 + t20;
        const V t368 = t13 + t21;
        const V t369 = t12 - t20;
        const V t370 = t366 - t49;
        const V t371 = t367 + t48;
        const V t372 = c[0] * t366;
        const V t373 = t49 + t372;
        const V t374 = c[0] * t367;
        const V t375 = t48 - t374;
        const V t376 = c[1] * t368;
        const V t377 = c[1] * t369;
        const V t378 = t377 - t373;
        const V t379 = t375 + t376;
        const V t380 = t373 + t377;
        const V t381 = t375 - t376;
        // complex block of 3, multiplier 2
        const V t382 = t33 - t1;
        const V t383 = t0 + t32;
        const V t384 = t1 + t33;
        const V t385 = t0 - t32;
        const V t386 = t382 - t37;
        const V t387 = t383 + t36;
        const V t388 = c[0] * t382;
        const V t389 = t37 + t388;
        const V t390 = c[0] * t383;
        const V t391 = t36 - t390;
        const V t392 = c[1] * t384;
        const V t393 = c[1] * t385;
        const V t394 = t393 - t389;
        const V t395 = t391 + t392;
        const V t396 = t389 + t393;
        const V t397 = t391 - t392;
        // complex block of 3, multiplier 2
        const V t398 = t9 + t45;
        const V t399 = t8 + t44;
        const V t400 = t9 - t45;
        const V t401 = t8 - t44;
        const V t402 = t398 - t25;
        const V t403 = t399 + t24;
        const V t404 = c[0] * t398;
        const V t405 = t25 + t404;
        const V t406 = c[0] * t399;
        const V t407 = t24 - t406;
        const V t408 = c[1] * t400;
        const V t409 = c[1] * t401;
        const V t410 = t409 - t405;
        const V t411 = t407 - t408;
        const V t412 = t405 + t409;
        const V t413 = t407 + t408;
        // complex block of 3, multiplier 2
        const V t414 = t386 + t402;
        const V t415 = t387 + t403;
        const V t416 = t386 - t402;
        const V t417 = t387 - t403;
        const V t418 = t414 + t370;
        const V t419 = t415 + t371;
        const V t420 = c[0] * t414;
        const V t421 = t370 - t420;
        const V t422 = c[0] * t415;
        const V t423 = t371 - t422;
        const V t424 = c[1] * t416;
        const V t425 = c[1] * t417;
        const V t426 = t421 + t425;
        const V t427 = t423 - t424;
        const V t428 = t421 - t425;
        const V t429 = t423 + t424;
        // complex block of 9, multiplier 2
        const V t430 = c[4] * t397;
        const V t431 = c[5] * t396;
        const V t432 = t430 - t431;
        const V t433 = c[4] * t396;
        const V t434 = c[5] * t397;
        const V t435 = t434 + t433;
        const V t436 = c[2] * t413;
        const V t437 = c[3] * t412;
        const V t438 = t437 + t436;
        const V t439 = c[2] * t412;
        const V t440 = c[3] * t413;
        const V t441 = t439 - t440;
        // complex block of 3, multiplier 2
        const V t442 = t432 + t438;
        const V t443 = t435 + t441;
        const V t444 = t432 - t438;
        const V t445 = t435 - t441;
        const V t446 = t442 - t380;
        const V t447 = t443 + t381;
        const V t448 = c[0] * t442;
        const V t449 = t380 + t448;
        const V t450 = c[0] * t443;
        const V t451 = t381 - t450;
        const V t452 = c[1] * t444;
        const V t453 = c[1] * t445;
        const V t454 = t453 - t449;
        const V t455 = t451 - t452;
        const V t456 = t449 + t453;
        const V t457 = t451 + t452;
        // complex block of 9, multiplier 2
        const V t458 = c[2] * t395;
        const V t459 = c[3] * t394;
        const V t460 = t458 - t459;
        const V t461 = c[2] * t394;
        const V t462 = c[3] * t395;
        const V t463 = t462 + t461;
        const V t464 = c[10] * t411;
        const V t465 = c[11] * t410;
        const V t466 = t465 - t464;
        const V t467 = c[10] * t410;
        const V t468 = c[11] * t411;
        const V t469 = t468 + t467;
        // complex block of 3, multiplier 2
        const V t470 = t460 + t466;
        const V t471 = t469 - t463;
        const V t472 = t460 - t466;
        const V t473 = t463 + t469;
        const V t474 = t470 + t378;
        const V t475 = t471 + t379;
        const V t476 = c[0] * t470;
        const V t477 = t378 - t476;
        const V t478 = c[0] * t471;
        const V t479 = t379 - t478;
        const V t480 = c[1] * t472;
        const V t481 = c[1] * t473;
        const V t482 = t477 - t481;
        const V t483 = t479 - t480;
        const V t484 = t477 + t481;
        const V t485 = t479 + t480;
        // spectrum block of 27, multiplier 2
        const V t486 = c[12] * t446;
        const V t487 = c[13] * t447;
        const V t488 = t487 - t486;
        const V t489 = c[14] * t474;
        const V t490 = c[15] * t475;
        const V t491 = t490 - t489;
        const V t492 = c[4] * t428;
        const V t493 = c[5] * t429;
        const V t494 = t493 - t492;
        const V t495 = c[16] * t456;
        const V t496 = c[17] * t457;
        const V t497 = t495 - t496;
        const V t498 = c[18] * t484;
        const V t499 = c[19] * t485;
        const V t500 = t499 + t498;
        const V t501 = c[2] * t426;
        const V t502 = c[3] * t427;
        const V t503 = t502 + t501;
        const V t504 = c[20] * t454;
        const V t505 = c[21] * t455;
        const V t506 = t504 - t505;
        const V t507 = c[22] * t482;
        const V t508 = c[23] * t483;
        const V t509 = t507 - t508;
        // spectrum block of 3, multiplier 2
        const V t510 = t419 + t344;
        const V t511 = c[0] * t419;
        const V t512 = t344 - t511;
        const V t513 = c[1] * t418;
        const V t514 = t512 - t513;
        const V t515 = t512 + t513;
        // spectrum block of 3, multiplier 2
        const V t516 = t488 + t350;
        const V t517 = c[0] * t488;
        const V t518 = t350 - t517;
        const V t519 = c[24] * t446;
        const V t520 = c[25] * t447;
        const V t521 = t519 + t520;
        const V t522 = t518 - t521;
        const V t523 = t518 + t521;
        // spectrum block of 3, multiplier 2
        const V t524 = t491 + t358;
        const V t525 = c[0] * t491;
        const V t526 = t358 - t525;
        const V t527 = c[26] * t474;
        const V t528 = c[27] * t475;
        const V t529 = t527 + t528;
        const V t530 = t526 - t529;
        const V t531 = t526 + t529;
        // spectrum block of 3, multiplier 2
        const V t532 = t494 + t349;
        const V t533 = c[0] * t494;
        const V t534 = t349 - t533;
        const V t535 = c[6] * t428;
        const V t536 = c[7] * t429;
        const V t537 = t535 + t536;
        const V t538 = t534 - t537;
        const V t539 = t534 + t537;
        // spectrum block of 3, multiplier 2
        const V t540 = t497 + t357;
        const V t541 = c[0] * t497;
        const V t542 = t357 - t541;
        const V t543 = c[29] * t456;
        const V t544 = c[28] * t457;
        const V t545 = t543 + t544;
        const V t546 = t542 - t545;
        const V t547 = t542 + t545;
        // spectrum block of 3, multiplier 2
        const V t548 = t365 - t500;
        const V t549 = c[0] * t500;
        const V t550 = t549 + t365;
        const V t551 = c[30] * t485;
        const V t552 = c[31] * t484;
        const V t553 = t551 - t552;
        const V t554 = t550 - t553;
        const V t555 = t550 + t553;
        // spectrum block of 3, multiplier 2
        const V t556 = t348 - t503;
        const V t557 = c[0] * t503;
        const V t558 = t557 + t348;
        const V t559 = c[8] * t427;
        const V t560 = c[9] * t426;
        const V t561 = t559 - t560;
        const V t562 = t558 - t561;
        const V t563 = t558 + t561;
        // spectrum block of 3, multiplier 2
        const V t564 = t506 + t356;
        const V t565 = c[0] * t506;
        const V t566 = t356 - t565;
        const V t567 = c[32] * t454;
        const V t568 = c[33] * t455;
        const V t569 = t567 + t568;
        const V t570 = t566 + t569;
        const V t571 = t566 - t569;
        // spectrum block of 3, multiplier 2
        const V t572 = t509 + t364;
        const V t573 = c[0] * t509;
        const V t574 = t364 - t573;
        const V t575 = c[34] * t482;
        const V t576 = c[35] * t483;
        const V t577 = t575 + t576;
        const V t578 = t574 + t577;
        const V t579 = t574 - t577;
        // spectrum block of 2
        const V t580 = t246 + t510;
        io.out(0, t580);
        const V t581 = t246 - t510;
        io.out(27, t581);
        // spectrum block of 2
        const V t582 = t252 + t516;
        io.out(52, t582);
        const V t583 = t252 - t516;
        io.out(25, t583);
        // spectrum block of 2
        const V t584 = t260 + t524;
        io.out(50, t584);
        const V t585 = t260 - t524;
        io.out(23, t585);
        // spectrum block of 2
        const V t586 = t268 + t532;
        io.out(48, t586);
        const V t587 = t268 - t532;
        io.out(21, t587);
        // spectrum block of 2
        const V t588 = t276 + t540;
        io.out(46, t588);
        const V t589 = t276 - t540;
        io.out(19, t589);
        // spectrum block of 2
        const V t590 = t284 + t548;
        io.out(44, t590);
        const V t591 = t284 - t548;
        io.out(17, t591);
        // spectrum block of 2
        const V t592 = t292 + t556;
        io.out(42, t592);
        const V t593 = t292 - t556;
        io.out(15, t593);
        // spectrum block of 2
        const V t594 = t300 + t564;
        io.out(40, t594);
        const V t595 = t300 - t564;
        io.out(13, t595);
        // spectrum block of 2
        const V t596 = t308 + t572;
        io.out(38, t596);
        const V t597 = t308 - t572;
        io.out(11, t597);
        // spectrum block of 2
        const V t598 = t251 + t515;
        io.out(36, t598);
        const V t599 = t251 - t515;
        io.out(9, t599);
        // spectrum block of 2
        const V t600 = t259 + t523;
        io.out(34, t600);
        const V t601 = t259 - t523;
        io.out(7, t601);
        // spectrum block of 2
        const V t602 = t267 + t531;
        io.out(32, t602);
        const V t603 = t267 - t531;
        io.out(5, t603);
        // spectrum block of 2
        const V t604 = t275 + t539;
        io.out(30, t604);
        const V t605 = t275 - t539;
        io.out(3, t605);
        // spectrum block of 2
        const V t606 = t283 + t547;
        io.out(28, t606);
        const V t607 = t283 - t547;
        io.out(1, t607);
        // spectrum block of 2
        const V t608 = t291 + t555;
        io.out(26, t608);
        const V t609 = t291 - t555;
        io.out(53, t609);
        // spectrum block of 2
        const V t610 = t299 + t563;
        io.out(24, t610);
        const V t611 = t299 - t563;
        io.out(51, t611);
        // spectrum block of 2
        const V t612 = t307 + t571;
        io.out(22, t612);
        const V t613 = t307 - t571;
        io.out(49, t613);
        // spectrum block of 2
        const V t614 = t315 + t579;
        io.out(20, t614);
        const V t615 = t315 - t579;
        io.out(47, t615);
        // spectrum block of 2
        const V t616 = t250 + t514;
        io.out(18, t616);
        const V t617 = t250 - t514;
        io.out(45, t617);
        // spectrum block of 2
        const V t618 = t258 + t522;
        io.out(16, t618);
        const V t619 = t258 - t522;
        io.out(43, t619);
        // spectrum block of 2
        const V t620 = t266 + t530;
        io.out(14, t620);
        const V t621 = t266 - t530;
        io.out(41, t621);
        // spectrum block of 2
        const V t622 = t274 + t538;
        io.out(12, t622);
        const V t623 = t274 - t538;
        io.out(39, t623);
        // spectrum block of 2
        const V t624 = t282 + t546;
        io.out(10, t624);
        const V t625 = t282 - t546;
        io.out(37, t625);
        // spectrum block of 2
        const V t626 = t290 + t554;
        io.out(8, t626);
        const V t627 = t290 - t554;
        io.out(35, t627);
        // spectrum block of 2
        const V t628 = t298 + t562;
        io.out(6, t628);
        const V t629 = t298 - t562;
        io.out(33, t629);
        // spectrum block of 2
        const V t630 = t306 + t570;
        io.out(4, t630);
        const V t631 = t306 - t570;
        io.out(31, t631);
        // spectrum block of 2
        const V t632 = t314 + t578;
        io.out(2, t632);
        const V t633 = t314 - t578;
        io.out(29, t633);
    }
};

}  // namespace zulg
