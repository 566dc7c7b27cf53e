// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 42.
// Hartley transform of 42 points, form I.
// 153 additions, 153 subtractions, 136 multiplications (178 with `scale`); 8 constants; 64 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<42> {
    static constexpr int steps = 484;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
        0.5,  // c[7]: -cos 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x21 = io.in(21);
        const V t0 = x0 + x21;
        const V t1 = x0 - x21;
        // input stage
        const V x7 = io.in(7);
        const V x35 = io.in(35);
        const V t2 = x7 + x35;
        const V x14 = io.in(14);
        const V x28 = io.in(28);
        const V t3 = x14 + x28;
        const V t4 = x7 - x35;
        const V t5 = x14 - x28;
        // complex block of 2
        const V t6 = t3 + t2;
        const V t7 = t3 - t2;
        const V t8 = t5 - t4;
        // spectrum block of 3, multiplier 2
        const V t9 = c[6] * t8;
        // complex block of 2
        const V t10 = t5 + t4;
        // spectrum block of 3, multiplier 2
        const V t11 = c[6] * t10;
        // spectrum block of 3, multiplier 2
        const V t12 = t6 + t0;
        const V t13 = c[7] * t6;
        const V t14 = t0 - t13;
        // spectrum block of 3, multiplier 2
        const V t15 = t7 + t1;
        const V t16 = c[7] * t7;
        const V t17 = t1 - t16;
        // input stage
        const V x1 = io.in(1);
        const V x41 = io.in(41);
        const V t18 = x1 + x41;
        const V t19 = x1 - x41;
        const V x20 = io.in(20);
        const V x22 = io.in(22);
        const V t20 = x20 + x22;
        const V t21 = x20 - x22;
        // complex block of 2
        const V t22 = t21 - t19;
        const V t23 = t20 + t18;
        const V t24 = t21 + t19;
        const V t25 = t20 - t18;
        // input stage
        const V x6 = io.in(6);
        const V x36 = io.in(36);
        const V t26 = x6 + x36;
        const V t27 = x6 - x36;
        const V x8 = io.in(8);
        const V x34 = io.in(34);
        const V t28 = x8 + x34;
        const V t29 = x8 - x34;
        const V x13 = io.in(13);
        const V x29 = io.in(29);
        const V t30 = x13 + x29;
        const V t31 = x13 - x29;
        // complex block of 2
        const V t32 = t29 - t31;
        const V t33 = t28 + t30;
        const V t34 = t29 + t31;
        const V t35 = t28 - t30;
        // input stage
        const V x15 = io.in(15);
        const V x27 = io.in(27);
        const V t36 = x15 + x27;
        const V t37 = x15 - x27;
        // complex block of 2
        const V t38 = t27 - t37;
        // complex block of 3, multiplier 2
        const V t39 = t22 - t32;
        const V t40 = c[7] * t39;
        const V t41 = t39 + t38;
        const V t42 = t38 - t40;
        // complex block of 2
        const V t43 = t26 + t36;
        // complex block of 3, multiplier 2
        const V t44 = t23 + t33;
        const V t45 = c[7] * t44;
        const V t46 = t44 + t43;
        const V t47 = t43 - t45;
        // complex block of 2
        const V t48 = t27 + t37;
        // complex block of 3, multiplier 2
        const V t49 = t24 - t34;
        const V t50 = c[7] * t49;
        const V t51 = t49 + t48;
        const V t52 = t48 - t50;
        // complex block of 2
        const V t53 = t26 - t36;
        // complex block of 3, multiplier 2
        const V t54 = t25 + t35;
        const V t55 = c[7] * t54;
        const V t56 = t54 + t53;
        const V t57 = t53 - t55;
        // complex block of 3, multiplier 2
        const V t58 = t22 + t32;
        const V t59 = c[6] * t58;
        const V t60 = t23 - t33;
        const V t61 = c[6] * t60;
        // complex block of 3, multiplier 2
        const V t62 = t24 + t34;
        const V t63 = c[6] * t62;
        const V t64 = t25 - t35;
        const V t65 = c[6] * t64;
        // input stage
        const V x2 = io.in(2);
        const V x40 = io.in(40);
        const V t66 = x2 + x40;
        const V t67 = x2 - x40;
        const V x19 = io.in(19);
        const V x23 = io.in(23);
        const V t68 = x19 + x23;
        const V t69 = x19 - x23;
        // complex block of 2
        const V t70 = t67 - t69;
        const V t71 = t66 + t68;
        const V t72 = t67 + t69;
        const V t73 = t66 - t68;
        // input stage
        const V x5 = io.in(5);
        const V x37 = io.in(37);
        const V t74 = x5 + x37;
        const V t75 = x5 - x37;
        const V x16 = io.in(16);
        const V x26 = io.in(26);
        const V t76 = x16 + x26;
        const V t77 = x16 - x26;
        // complex block of 2
        const V t78 = t77 - t75;
        const V t79 = t76 + t74;
        const V t80 = t77 + t75;
        const V t81 = t76 - t74;
        // input stage
        const V x9 = io.in(9);
        const V x33 = io.in(33);
        const V t82 = x9 + x33;
        const V t83 = x9 - x33;
        const V x12 = io.in(12);
        const V x30 = io.in(30);
        const V t84 = x12 + x30;
        const V t85 = x12 - x30;
        // complex block of 2
        const V t86 = t85 - t83;
        // complex block of 3, multiplier 2
        const V t87 = t78 + t70;
        const V t88 = c[7] * t87;
        const V t89 = t86 - t87;
        const V t90 = t88 + t86;
        // complex block of 2
        const V t91 = t84 + t82;
        // complex block of 3, multiplier 2
        const V t92 = t79 + t71;
        const V t93 = c[7] * t92;
        const V t94 = t92 + t91;
        const V t95 = t91 - t93;
        // complex block of 2
        const V t96 = t85 + t83;
        // complex block of 3, multiplier 2
        const V t97 = t80 + t72;
        const V t98 = c[7] * t97;
        const V t99 = t96 - t97;
        const V t100 = t98 + t96;
        // complex block of 2
        const V t101 = t84 - t82;
        // complex block of 3, multiplier 2
        const V t102 = t81 + t73;
        const V t103 = c[7] * t102;
        const V t104 = t102 + t101;
        const V t105 = t101 - t103;
        // complex block of 3, multiplier 2
        const V t106 = t70 - t78;
        const V t107 = c[6] * t106;
        const V t108 = t79 - t71;
        const V t109 = c[6] * t108;
        // complex block of 3, multiplier 2
        const V t110 = t72 - t80;
        const V t111 = c[6] * t110;
        const V t112 = t81 - t73;
        const V t113 = c[6] * t112;
        // input stage
        const V x3 = io.in(3);
        const V x39 = io.in(39);
        const V t114 = x3 + x39;
        const V t115 = x3 - x39;
        const V x4 = io.in(4);
        const V x38 = io.in(38);
        const V t116 = x4 + x38;
        const V t117 = x4 - x38;
        const V x17 = io.in(17);
        const V x25 = io.in(25);
        const V t118 = x17 + x25;
        const V t119 = x17 - x25;
        // complex block of 2
        const V t120 = t117 - t119;
        const V t121 = t116 + t118;
        const V t122 = t117 + t119;
        const V t123 = t116 - t118;
        // input stage
        const V x10 = io.in(10);
        const V x32 = io.in(32);
        const V t124 = x10 + x32;
        const V t125 = x10 - x32;
        const V x11 = io.in(11);
        const V x31 = io.in(31);
        const V t126 = x11 + x31;
        const V t127 = x11 - x31;
        // complex block of 2
        const V t128 = t125 - t127;
        const V t129 = t124 + t126;
        const V t130 = t125 + t127;
        const V t131 = t124 - t126;
        // input stage
        const V x18 = io.in(18);
        const V x24 = io.in(24);
        const V t132 = x18 + x24;
        const V t133 = x18 - x24;
        // complex block of 2
        const V t134 = t133 - t115;
        const V t135 = t132 + t114;
        // complex block of 3, multiplier 2
        const V t136 = t129 + t121;
        const V t137 = c[7] * t136;
        const V t138 = t136 + t135;
        const V t139 = t135 - t137;
        // complex block of 2
        const V t140 = t133 + t115;
        const V t141 = t132 - t114;
        // complex block of 3, multiplier 2
        const V t142 = t131 + t123;
        const V t143 = c[7] * t142;
        const V t144 = t142 + t141;
        const V t145 = t141 - t143;
        // complex block of 3, multiplier 2
        const V t146 = t120 - t128;
        const V t147 = c[7] * t146;
        const V t148 = t128 + t120;
        const V t149 = c[6] * t148;
        const V t150 = t129 - t121;
        const V t151 = c[6] * t150;
        // complex block of 3, multiplier 2
        const V t152 = t122 - t130;
        const V t153 = c[7] * t152;
        const V t154 = t130 + t122;
        const V t155 = c[6] * t154;
        const V t156 = t131 - t123;
        const V t157 = c[6] * t156;
        // spectrum block of 3, multiplier 2
        const V t158 = t14 - t9;
        // complex block of 3, multiplier 2
        const V t159 = t47 - t59;
        // spectrum block of 7, multiplier 6
        const V t160 = c[0] * t159;
        const V t161 = c[1] * t159;
        const V t162 = c[2] * t159;
        // complex block of 3, multiplier 2
        const V t163 = t95 - t107;
        // spectrum block of 7, multiplier 6
        const V t164 = c[1] * t163;
        const V t165 = t159 + t163;
        const V t166 = t160 - t164;
        const V t167 = t158 - t161;
        const V t168 = c[2] * t163;
        const V t169 = t158 - t162;
        const V t170 = c[0] * t163;
        // spectrum block of 3, multiplier 2
        const V t171 = t14 + t9;
        // complex block of 3, multiplier 2
        const V t172 = t47 + t59;
        // spectrum block of 7, multiplier 6
        const V t173 = c[0] * t172;
        const V t174 = c[1] * t172;
        const V t175 = c[2] * t172;
        // complex block of 3, multiplier 2
        const V t176 = t95 + t107;
        // spectrum block of 7, multiplier 6
        const V t177 = c[1] * t176;
        const V t178 = t172 + t176;
        const V t179 = t173 - t177;
        const V t180 = t171 - t174;
        const V t181 = c[2] * t176;
        const V t182 = t171 - t175;
        const V t183 = c[0] * t176;
        // complex block of 3, multiplier 2
        const V t184 = t42 + t61;
        // spectrum block of 7, multiplier 6
        const V t185 = c[3] * t184;
        const V t186 = c[4] * t184;
        const V t187 = c[5] * t184;
        // complex block of 3, multiplier 2
        const V t188 = t90 + t109;
        // spectrum block of 7, multiplier 6
        const V t189 = c[4] * t188;
        const V t190 = c[5] * t188;
        const V t191 = c[3] * t188;
        const V t192 = t185 + t189;
        const V t193 = t186 - t190;
        const V t194 = t187 - t191;
        // complex block of 3, multiplier 2
        const V t195 = t42 - t61;
        // spectrum block of 7, multiplier 6
        const V t196 = c[3] * t195;
        const V t197 = c[4] * t195;
        const V t198 = c[5] * t195;
        // complex block of 3, multiplier 2
        const V t199 = t90 - t109;
        // spectrum block of 7, multiplier 6
        const V t200 = c[4] * t199;
        const V t201 = c[5] * t199;
        const V t202 = c[3] * t199;
        const V t203 = t196 + t200;
        const V t204 = t197 - t201;
        const V t205 = t198 - t202;
        // complex block of 3, multiplier 2
        const V t206 = t134 - t147;
        const V t207 = t206 + t151;
        const V t208 = t206 - t151;
        // spectrum block of 7, multiplier 6
        const V t209 = c[5] * t208;
        const V t210 = c[3] * t208;
        const V t211 = c[4] * t208;
        // spectrum block of 7, multiplier 6
        const V t212 = c[5] * t207;
        const V t213 = c[3] * t207;
        const V t214 = c[4] * t207;
        // complex block of 3, multiplier 2
        const V t215 = t139 + t149;
        // spectrum block of 7, multiplier 6
        const V t216 = c[2] * t215;
        const V t217 = c[0] * t215;
        const V t218 = c[1] * t215;
        // complex block of 3, multiplier 2
        const V t219 = t139 - t149;
        // spectrum block of 7, multiplier 6
        const V t220 = c[2] * t219;
        const V t221 = c[0] * t219;
        const V t222 = c[1] * t219;
        const V t223 = t178 + t219;
        const V t224 = t223 + t171;
        io.out(28, t224);
        const V t225 = t179 - t220;
        const V t226 = t225 + t171;
        const V t227 = t203 + t209;
        const V t228 = t226 - t227;
        io.out(34, t228);
        const V t229 = t226 + t227;
        io.out(22, t229);
        const V t230 = t180 - t181;
        const V t231 = t230 + t221;
        const V t232 = t204 - t210;
        const V t233 = t231 - t232;
        io.out(40, t233);
        const V t234 = t231 + t232;
        io.out(16, t234);
        const V t235 = t182 + t183;
        const V t236 = t235 - t222;
        const V t237 = t205 + t211;
        const V t238 = t236 - t237;
        io.out(4, t238);
        const V t239 = t236 + t237;
        io.out(10, t239);
        // spectrum block of 7, multiplier 6
        const V t240 = t165 + t215;
        const V t241 = t240 + t158;
        io.out(14, t241);
        const V t242 = t166 - t216;
        const V t243 = t242 + t158;
        const V t244 = t192 + t212;
        const V t245 = t243 - t244;
        io.out(20, t245);
        const V t246 = t243 + t244;
        io.out(8, t246);
        const V t247 = t167 - t168;
        const V t248 = t247 + t217;
        const V t249 = t193 - t213;
        const V t250 = t248 - t249;
        io.out(26, t250);
        const V t251 = t248 + t249;
        io.out(2, t251);
        const V t252 = t169 + t170;
        const V t253 = t252 - t218;
        const V t254 = t194 + t214;
        const V t255 = t253 - t254;
        io.out(32, t255);
        const V t256 = t253 + t254;
        io.out(38, t256);
        // complex block of 3, multiplier 2
        const V t257 = t146 + t134;
        // spectrum block of 7, multiplier 6
        const V t258 = c[5] * t257;
        const V t259 = c[3] * t257;
        const V t260 = c[4] * t257;
        const V t261 = c[0] * t46;
        const V t262 = c[1] * t94;
        const V t263 = t261 - t262;
        const V t264 = c[2] * t138;
        const V t265 = t263 - t264;
        const V t266 = c[3] * t41;
        const V t267 = c[4] * t89;
        const V t268 = t266 + t267;
        const V t269 = c[1] * t46;
        const V t270 = t12 - t269;
        const V t271 = c[2] * t94;
        const V t272 = t270 - t271;
        const V t273 = c[0] * t138;
        const V t274 = c[4] * t41;
        const V t275 = c[5] * t89;
        const V t276 = t274 - t275;
        const V t277 = c[2] * t46;
        const V t278 = t12 - t277;
        const V t279 = c[0] * t94;
        const V t280 = t278 + t279;
        const V t281 = c[1] * t138;
        const V t282 = c[5] * t41;
        const V t283 = c[3] * t89;
        const V t284 = t282 - t283;
        const V t285 = t265 + t12;
        const V t286 = t268 + t258;
        const V t287 = t285 - t286;
        io.out(6, t287);
        const V t288 = t285 + t286;
        io.out(36, t288);
        const V t289 = t272 + t273;
        const V t290 = t276 - t259;
        const V t291 = t289 - t290;
        io.out(12, t291);
        const V t292 = t289 + t290;
        io.out(30, t292);
        const V t293 = t280 - t281;
        const V t294 = t284 + t260;
        const V t295 = t293 - t294;
        io.out(18, t295);
        const V t296 = t293 + t294;
        io.out(24, t296);
        const V t297 = t46 + t94;
        const V t298 = t297 + t138;
        const V t299 = t298 + t12;
        io.out(0, t299);
        // spectrum block of 3, multiplier 2
        const V t300 = t17 - t11;
        // complex block of 3, multiplier 2
        const V t301 = t57 - t63;
        // spectrum block of 7, multiplier 6
        const V t302 = c[0] * t301;
        const V t303 = c[1] * t301;
        const V t304 = c[2] * t301;
        // complex block of 3, multiplier 2
        const V t305 = t105 - t111;
        // spectrum block of 7, multiplier 6
        const V t306 = c[1] * t305;
        const V t307 = t301 + t305;
        const V t308 = t302 - t306;
        const V t309 = t300 - t303;
        const V t310 = c[2] * t305;
        const V t311 = t300 - t304;
        const V t312 = c[0] * t305;
        // spectrum block of 3, multiplier 2
        const V t313 = t17 + t11;
        // complex block of 3, multiplier 2
        const V t314 = t57 + t63;
        // spectrum block of 7, multiplier 6
        const V t315 = c[0] * t314;
        const V t316 = c[1] * t314;
        const V t317 = c[2] * t314;
        // complex block of 3, multiplier 2
        const V t318 = t105 + t111;
        // spectrum block of 7, multiplier 6
        const V t319 = c[1] * t318;
        const V t320 = t314 + t318;
        const V t321 = t315 - t319;
        const V t322 = t313 - t316;
        const V t323 = c[2] * t318;
        const V t324 = t313 - t317;
        const V t325 = c[0] * t318;
        // complex block of 3, multiplier 2
        const V t326 = t52 + t65;
        // spectrum block of 7, multiplier 6
        const V t327 = c[3] * t326;
        const V t328 = c[4] * t326;
        const V t329 = c[5] * t326;
        // complex block of 3, multiplier 2
        const V t330 = t100 + t113;
        // spectrum block of 7, multiplier 6
        const V t331 = c[4] * t330;
        const V t332 = c[5] * t330;
        const V t333 = c[3] * t330;
        const V t334 = t327 + t331;
        const V t335 = t328 - t332;
        const V t336 = t329 - t333;
        // complex block of 3, multiplier 2
        const V t337 = t52 - t65;
        // spectrum block of 7, multiplier 6
        const V t338 = c[3] * t337;
        const V t339 = c[4] * t337;
        const V t340 = c[5] * t337;
        // complex block of 3, multiplier 2
        const V t341 = t100 - t113;
        // spectrum block of 7, multiplier 6
        const V t342 = c[4] * t341;
        const V t343 = c[5] * t341;
        const V t344 = c[3] * t341;
        const V t345 = t338 + t342;
        const V t346 = t339 - t343;
        const V t347 = t340 - t344;
        // complex block of 3, multiplier 2
        const V t348 = t140 - t153;
        const V t349 = t348 + t157;
        const V t350 = t348 - t157;
        // spectrum block of 7, multiplier 6
        const V t351 = c[5] * t350;
        const V t352 = c[3] * t350;
        const V t353 = c[4] * t350;
        // spectrum block of 7, multiplier 6
        const V t354 = c[5] * t349;
        const V t355 = c[3] * t349;
        const V t356 = c[4] * t349;
        // complex block of 3, multiplier 2
        const V t357 = t145 + t155;
        // spectrum block of 7, multiplier 6
        const V t358 = c[2] * t357;
        const V t359 = c[0] * t357;
        const V t360 = c[1] * t357;
        // complex block of 3, multiplier 2
        const V t361 = t145 - t155;
        // spectrum block of 7, multiplier 6
        const V t362 = c[2] * t361;
        const V t363 = c[0] * t361;
        const V t364 = c[1] * t361;
        const V t365 = t320 + t361;
        const V t366 = t365 + t313;
        io.out(7, t366);
        const V t367 = t321 - t362;
        const V t368 = t367 + t313;
        const V t369 = t345 + t351;
        const V t370 = t368 - t369;
        io.out(13, t370);
        const V t371 = t368 + t369;
        io.out(1, t371);
        const V t372 = t322 - t323;
        const V t373 = t372 + t363;
        const V t374 = t346 - t352;
        const V t375 = t373 - t374;
        io.out(19, t375);
        const V t376 = t373 + t374;
        io.out(37, t376);
        const V t377 = t324 + t325;
        const V t378 = t377 - t364;
        const V t379 = t347 + t353;
        const V t380 = t378 - t379;
        io.out(25, t380);
        const V t381 = t378 + t379;
        io.out(31, t381);
        // spectrum block of 7, multiplier 6
        const V t382 = t307 + t357;
        const V t383 = t382 + t300;
        io.out(35, t383);
        const V t384 = t308 - t358;
        const V t385 = t384 + t300;
        const V t386 = t334 + t354;
        const V t387 = t385 - t386;
        io.out(41, t387);
        const V t388 = t385 + t386;
        io.out(29, t388);
        const V t389 = t309 - t310;
        const V t390 = t389 + t359;
        const V t391 = t335 - t355;
        const V t392 = t390 - t391;
        io.out(5, t392);
        const V t393 = t390 + t391;
        io.out(23, t393);
        const V t394 = t311 + t312;
        const V t395 = t394 - t360;
        const V t396 = t336 + t356;
        const V t397 = t395 - t396;
        io.out(11, t397);
        const V t398 = t395 + t396;
        io.out(17, t398);
        // complex block of 3, multiplier 2
        const V t399 = t152 + t140;
        // spectrum block of 7, multiplier 6
        const V t400 = c[5] * t399;
        const V t401 = c[3] * t399;
        const V t402 = c[4] * t399;
        const V t403 = c[0] * t56;
        const V t404 = c[1] * t104;
        const V t405 = t403 - t404;
        const V t406 = c[2] * t144;
        const V t407 = t405 - t406;
        const V t408 = c[3] * t51;
        const V t409 = c[4] * t99;
        const V t410 = t408 + t409;
        const V t411 = c[1] * t56;
        const V t412 = t15 - t411;
        const V t413 = c[2] * t104;
        const V t414 = t412 - t413;
        const V t415 = c[0] * t144;
        const V t416 = c[4] * t51;
        const V t417 = c[5] * t99;
        const V t418 = t416 - t417;
        const V t419 = c[2] * t56;
        const V t420 = t15 - t419;
        const V t421 = c[0] * t104;
        const V t422 = t420 + t421;
        const V t423 = c[1] * t144;
        const V t424 = c[5] * t51;
        const V t425 = c[3] * t99;
        const V t426 = t424 - t425;
        const V t427 = t407 + t15;
        const V t428 = t410 + t400;
        const V t429 = t427 - t428;
        io.out(27, t429);
        const V t430 = t427 + t428;
        io.out(15, t430);
        const V t431 = t414 + t415;
        const V t432 = t418 - t401;
        const V t433 = t431 - t432;
        io.out(33, t433);
        const V t434 = t431 + t432;
        io.out(9, t434);
        const V t435 = t422 - t423;
        const V t436 = t426 + t402;
        const V t437 = t435 - t436;
        io.out(39, t437);
        const V t438 = t435 + t436;
        io.out(3, t438);
        const V t439 = t56 + t104;
        const V t440 = t439 + t144;
        const V t441 = t440 + t15;
        io.out(21, t441);
    }
};

}  // namespace zulg
