// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 56.
// Hartley transform of 56 points, form I.
// 211 additions, 211 subtractions, 158 multiplications (214 with `scale`); 7 constants; 77 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<56> {
    static constexpr int steps = 636;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x28 = io.in(28);
        const V t0 = x0 + x28;
        const V t1 = x0 - x28;
        // input stage
        const V x7 = io.in(7);
        const V x49 = io.in(49);
        const V t2 = x7 + x49;
        const V t3 = x7 - x49;
        const V x21 = io.in(21);
        const V x35 = io.in(35);
        const V t4 = x21 + x35;
        const V t5 = x21 - x35;
        // mirrored skew block of 4, multiplier 7
        const V t6 = t2 - t4;
        const V t7 = t3 + t5;
        // input stage
        const V x14 = io.in(14);
        const V x42 = io.in(42);
        const V t8 = x14 + x42;
        const V t9 = x14 - x42;
        // spectrum block of 2
        const V t10 = t0 + t8;
        // mirrored skew block of 4, multiplier 7
        const V t11 = t2 + t4;
        // spectrum block of 2
        const V t12 = t10 + t11;
        const V t13 = t10 - t11;
        // spectrum block of 2
        const V t14 = t0 - t8;
        // mirrored skew block of 4, multiplier 7
        const V t15 = t5 - t3;
        // spectrum block of 2
        const V t16 = t14 - t15;
        const V t17 = t14 + t15;
        // spectrum block of 2
        const V t18 = t1 + t9;
        const V t19 = t1 - t9;
        // mirrored skew block of 4, multiplier 7
        const V t20 = c[6] * t6;
        const V t21 = c[6] * t7;
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        // input stage
        const V x1 = io.in(1);
        const V x55 = io.in(55);
        const V t24 = x1 + x55;
        const V t25 = x1 - x55;
        const V x27 = io.in(27);
        const V x29 = io.in(29);
        const V t26 = x27 + x29;
        const V t27 = x27 - x29;
        // complex block of 2
        const V t28 = t25 - t27;
        const V t29 = t26 + t24;
        const V t30 = t27 + t25;
        const V t31 = t26 - t24;
        // input stage
        const V x6 = io.in(6);
        const V x50 = io.in(50);
        const V t32 = x6 + x50;
        const V t33 = x6 - x50;
        const V x22 = io.in(22);
        const V x34 = io.in(34);
        const V t34 = x22 + x34;
        const V t35 = x22 - x34;
        // complex block of 2
        const V t36 = t35 - t33;
        const V t37 = t34 + t32;
        // input stage
        const V x8 = io.in(8);
        const V x48 = io.in(48);
        const V t38 = x8 + x48;
        const V t39 = x8 - x48;
        const V x20 = io.in(20);
        const V x36 = io.in(36);
        const V t40 = x20 + x36;
        const V t41 = x20 - x36;
        // complex block of 2
        const V t42 = t39 - t41;
        const V t43 = t38 + t40;
        // input stage
        const V x13 = io.in(13);
        const V x43 = io.in(43);
        const V t44 = x13 + x43;
        const V t45 = x13 - x43;
        const V x15 = io.in(15);
        const V x41 = io.in(41);
        const V t46 = x15 + x41;
        const V t47 = x15 - x41;
        // complex block of 2
        const V t48 = t47 - t45;
        const V t49 = t46 + t44;
        const V t50 = t47 + t45;
        const V t51 = t46 - t44;
        // complex block of 2
        const V t52 = t39 + t41;
        // complex block of 2
        const V t53 = t34 - t32;
        // complex block of 2
        const V t54 = t52 - t53;
        const V t55 = t52 + t53;
        // complex block of 2
        const V t56 = t38 - t40;
        // complex block of 2
        const V t57 = t35 + t33;
        // complex block of 2
        const V t58 = t56 + t57;
        const V t59 = t56 - t57;
        // complex block of 2
        const V t60 = t42 + t36;
        // complex block of 2
        const V t61 = t48 + t28;
        // complex block of 2
        const V t62 = t60 + t61;
        const V t63 = t60 - t61;
        // complex block of 2
        const V t64 = t43 + t37;
        // complex block of 2
        const V t65 = t49 + t29;
        // complex block of 2
        const V t66 = t64 + t65;
        const V t67 = t64 - t65;
        // complex block of 2
        const V t68 = t42 - t36;
        // complex block of 2
        const V t69 = t49 - t29;
        // complex block of 2
        const V t70 = t68 - t69;
        const V t71 = t68 + t69;
        // complex block of 2
        const V t72 = t43 - t37;
        // complex block of 2
        const V t73 = t48 - t28;
        // complex block of 2
        const V t74 = t72 + t73;
        const V t75 = t72 - t73;
        // complex block of 8, multiplier 7
        const V t76 = c[6] * t50;
        const V t77 = c[6] * t51;
        const V t78 = t76 + t77;
        const V t79 = t77 - t76;
        const V t80 = c[6] * t30;
        const V t81 = c[6] * t31;
        const V t82 = t81 - t80;
        const V t83 = t81 + t80;
        // complex block of 2
        const V t84 = t79 + t82;
        const V t85 = t78 - t83;
        const V t86 = t82 - t79;
        const V t87 = t78 + t83;
        // input stage
        const V x2 = io.in(2);
        const V x54 = io.in(54);
        const V t88 = x2 + x54;
        const V t89 = x2 - x54;
        const V x26 = io.in(26);
        const V x30 = io.in(30);
        const V t90 = x26 + x30;
        const V t91 = x26 - x30;
        // complex block of 2
        const V t92 = t89 - t91;
        const V t93 = t90 + t88;
        // input stage
        const V x5 = io.in(5);
        const V x51 = io.in(51);
        const V t94 = x5 + x51;
        const V t95 = x5 - x51;
        const V x23 = io.in(23);
        const V x33 = io.in(33);
        const V t96 = x23 + x33;
        const V t97 = x23 - x33;
        // complex block of 2
        const V t98 = t97 - t95;
        const V t99 = t96 + t94;
        const V t100 = t97 + t95;
        const V t101 = t96 - t94;
        // input stage
        const V x9 = io.in(9);
        const V x47 = io.in(47);
        const V t102 = x9 + x47;
        const V t103 = x9 - x47;
        const V x19 = io.in(19);
        const V x37 = io.in(37);
        const V t104 = x19 + x37;
        const V t105 = x19 - x37;
        // complex block of 2
        const V t106 = t103 - t105;
        const V t107 = t104 + t102;
        const V t108 = t105 + t103;
        const V t109 = t104 - t102;
        // input stage
        const V x12 = io.in(12);
        const V x44 = io.in(44);
        const V t110 = x12 + x44;
        const V t111 = x12 - x44;
        const V x16 = io.in(16);
        const V x40 = io.in(40);
        const V t112 = x16 + x40;
        const V t113 = x16 - x40;
        // complex block of 2
        const V t114 = t113 - t111;
        const V t115 = t112 + t110;
        const V t116 = t113 + t111;
        // complex block of 2
        const V t117 = t90 - t88;
        // complex block of 2
        const V t118 = t116 - t117;
        const V t119 = t116 + t117;
        // complex block of 2
        const V t120 = t112 - t110;
        // complex block of 2
        const V t121 = t91 + t89;
        // complex block of 2
        const V t122 = t120 - t121;
        const V t123 = t120 + t121;
        // complex block of 2
        const V t124 = t114 + t92;
        // complex block of 2
        const V t125 = t98 + t106;
        // complex block of 2
        const V t126 = t124 + t125;
        const V t127 = t124 - t125;
        // complex block of 2
        const V t128 = t115 + t93;
        // complex block of 2
        const V t129 = t99 + t107;
        // complex block of 2
        const V t130 = t128 + t129;
        const V t131 = t128 - t129;
        // complex block of 2
        const V t132 = t114 - t92;
        // complex block of 2
        const V t133 = t99 - t107;
        // complex block of 2
        const V t134 = t132 - t133;
        const V t135 = t132 + t133;
        // complex block of 2
        const V t136 = t115 - t93;
        // complex block of 2
        const V t137 = t98 - t106;
        // complex block of 2
        const V t138 = t136 + t137;
        const V t139 = t136 - t137;
        // complex block of 8, multiplier 7
        const V t140 = c[6] * t100;
        const V t141 = c[6] * t101;
        const V t142 = t140 + t141;
        const V t143 = t141 - t140;
        const V t144 = c[6] * t108;
        const V t145 = c[6] * t109;
        const V t146 = t145 - t144;
        const V t147 = t145 + t144;
        // complex block of 2
        const V t148 = t143 + t146;
        const V t149 = t142 - t147;
        const V t150 = t146 - t143;
        const V t151 = t142 + t147;
        // input stage
        const V x3 = io.in(3);
        const V x53 = io.in(53);
        const V t152 = x3 + x53;
        const V t153 = x3 - x53;
        const V x25 = io.in(25);
        const V x31 = io.in(31);
        const V t154 = x25 + x31;
        const V t155 = x25 - x31;
        // complex block of 2
        const V t156 = t153 - t155;
        const V t157 = t154 + t152;
        const V t158 = t155 + t153;
        const V t159 = t154 - t152;
        // input stage
        const V x4 = io.in(4);
        const V x52 = io.in(52);
        const V t160 = x4 + x52;
        const V x24 = io.in(24);
        const V x32 = io.in(32);
        const V t161 = x24 + x32;
        const V t162 = x4 - x52;
        const V t163 = x24 - x32;
        // complex block of 2
        const V t164 = t161 + t160;
        // input stage
        const V x10 = io.in(10);
        const V x46 = io.in(46);
        const V t165 = x10 + x46;
        const V x18 = io.in(18);
        const V x38 = io.in(38);
        const V t166 = x18 + x38;
        const V t167 = x10 - x46;
        const V t168 = x18 - x38;
        // complex block of 2
        const V t169 = t166 + t165;
        // input stage
        const V x11 = io.in(11);
        const V x45 = io.in(45);
        const V t170 = x11 + x45;
        const V t171 = x11 - x45;
        const V x17 = io.in(17);
        const V x39 = io.in(39);
        const V t172 = x17 + x39;
        const V t173 = x17 - x39;
        // complex block of 2
        const V t174 = t173 - t171;
        const V t175 = t170 + t172;
        const V t176 = t171 + t173;
        const V t177 = t170 - t172;
        // complex block of 2
        const V t178 = t163 - t162;
        // complex block of 2
        const V t179 = t167 - t168;
        // complex block of 2
        const V t180 = t178 + t179;
        const V t181 = t178 - t179;
        // complex block of 2
        const V t182 = t163 + t162;
        // complex block of 2
        const V t183 = t166 - t165;
        // complex block of 2
        const V t184 = t182 - t183;
        const V t185 = t182 + t183;
        // complex block of 2
        const V t186 = t161 - t160;
        // complex block of 2
        const V t187 = t168 + t167;
        // complex block of 2
        const V t188 = t186 - t187;
        const V t189 = t186 + t187;
        // complex block of 2
        const V t190 = t164 + t169;
        // complex block of 2
        const V t191 = t157 + t175;
        // complex block of 2
        const V t192 = t190 + t191;
        const V t193 = t190 - t191;
        // complex block of 2
        const V t194 = t164 - t169;
        // complex block of 2
        const V t195 = t156 - t174;
        // complex block of 2
        const V t196 = t194 + t195;
        const V t197 = t194 - t195;
        // complex block of 2
        const V t198 = t156 + t174;
        const V t199 = t157 - t175;
        // complex block of 8, multiplier 7
        const V t200 = c[6] * t158;
        const V t201 = c[6] * t159;
        const V t202 = t201 - t200;
        const V t203 = t201 + t200;
        const V t204 = c[6] * t176;
        const V t205 = c[6] * t177;
        const V t206 = t205 - t204;
        const V t207 = t205 + t204;
        // complex block of 2
        const V t208 = t202 - t207;
        const V t209 = t206 - t203;
        // spectrum block of 2
        const V t210 = t18 + t22;
        // complex block of 2
        const V t211 = t58 + t85;
        // spectrum block of 7
        const V t212 = c[0] * t211;
        const V t213 = c[1] * t211;
        const V t214 = c[2] * t211;
        // complex block of 2
        const V t215 = t122 + t149;
        // spectrum block of 7
        const V t216 = c[1] * t215;
        const V t217 = t211 + t215;
        const V t218 = t212 - t216;
        const V t219 = t210 - t213;
        const V t220 = c[2] * t215;
        const V t221 = t210 - t214;
        const V t222 = c[0] * t215;
        // spectrum block of 2
        const V t223 = t18 - t22;
        // complex block of 2
        const V t224 = t58 - t85;
        // spectrum block of 7
        const V t225 = c[0] * t224;
        const V t226 = c[1] * t224;
        const V t227 = c[2] * t224;
        // complex block of 2
        const V t228 = t122 - t149;
        // spectrum block of 7
        const V t229 = c[1] * t228;
        const V t230 = t224 + t228;
        const V t231 = t225 - t229;
        const V t232 = t223 - t226;
        const V t233 = c[2] * t228;
        const V t234 = t223 - t227;
        const V t235 = c[0] * t228;
        // complex block of 2
        const V t236 = t54 - t84;
        // spectrum block of 7
        const V t237 = c[3] * t236;
        const V t238 = c[4] * t236;
        const V t239 = c[5] * t236;
        // complex block of 2
        const V t240 = t118 - t148;
        // spectrum block of 7
        const V t241 = c[4] * t240;
        const V t242 = c[5] * t240;
        const V t243 = c[3] * t240;
        const V t244 = t237 + t241;
        const V t245 = t238 - t242;
        const V t246 = t239 - t243;
        // complex block of 2
        const V t247 = t54 + t84;
        // spectrum block of 7
        const V t248 = c[3] * t247;
        const V t249 = c[4] * t247;
        const V t250 = c[5] * t247;
        // complex block of 2
        const V t251 = t118 + t148;
        // spectrum block of 7
        const V t252 = c[4] * t251;
        const V t253 = c[5] * t251;
        const V t254 = c[3] * t251;
        const V t255 = t248 + t252;
        const V t256 = t249 - t253;
        const V t257 = t250 - t254;
        // complex block of 2
        const V t258 = t203 + t206;
        // complex block of 2
        const V t259 = t184 - t258;
        const V t260 = t184 + t258;
        // spectrum block of 7
        const V t261 = c[5] * t259;
        const V t262 = c[3] * t259;
        const V t263 = c[4] * t259;
        // spectrum block of 7
        const V t264 = c[5] * t260;
        const V t265 = c[3] * t260;
        const V t266 = c[4] * t260;
        // complex block of 2
        const V t267 = t188 + t208;
        // spectrum block of 7
        const V t268 = c[2] * t267;
        const V t269 = c[0] * t267;
        const V t270 = c[1] * t267;
        // complex block of 2
        const V t271 = t188 - t208;
        // spectrum block of 7
        const V t272 = c[2] * t271;
        const V t273 = c[0] * t271;
        const V t274 = c[1] * t271;
        // spectrum block of 7
        const V t275 = t217 + t267;
        const V t276 = t275 + t210;
        io.out(49, t276);
        const V t277 = t218 - t268;
        const V t278 = t277 + t210;
        const V t279 = t244 + t261;
        const V t280 = t278 - t279;
        io.out(41, t280);
        const V t281 = t278 + t279;
        io.out(1, t281);
        const V t282 = t219 - t220;
        const V t283 = t282 + t269;
        const V t284 = t245 - t262;
        const V t285 = t283 - t284;
        io.out(33, t285);
        const V t286 = t283 + t284;
        io.out(9, t286);
        const V t287 = t221 + t222;
        const V t288 = t287 - t270;
        const V t289 = t246 + t263;
        const V t290 = t288 - t289;
        io.out(25, t290);
        const V t291 = t288 + t289;
        io.out(17, t291);
        // spectrum block of 7
        const V t292 = t230 + t271;
        const V t293 = t292 + t223;
        io.out(21, t293);
        const V t294 = t231 - t272;
        const V t295 = t294 + t223;
        const V t296 = t255 + t264;
        const V t297 = t295 - t296;
        io.out(13, t297);
        const V t298 = t295 + t296;
        io.out(29, t298);
        const V t299 = t232 - t233;
        const V t300 = t299 + t273;
        const V t301 = t256 - t265;
        const V t302 = t300 - t301;
        io.out(5, t302);
        const V t303 = t300 + t301;
        io.out(37, t303);
        const V t304 = t234 + t235;
        const V t305 = t304 - t274;
        const V t306 = t257 + t266;
        const V t307 = t305 - t306;
        io.out(53, t307);
        const V t308 = t305 + t306;
        io.out(45, t308);
        // spectrum block of 2
        const V t309 = t19 - t23;
        // complex block of 2
        const V t310 = t59 + t86;
        // spectrum block of 7
        const V t311 = c[0] * t310;
        const V t312 = c[1] * t310;
        const V t313 = c[2] * t310;
        // complex block of 2
        const V t314 = t123 + t150;
        // spectrum block of 7
        const V t315 = c[1] * t314;
        const V t316 = t310 + t314;
        const V t317 = t311 - t315;
        const V t318 = t309 - t312;
        const V t319 = c[2] * t314;
        const V t320 = t309 - t313;
        const V t321 = c[0] * t314;
        // spectrum block of 2
        const V t322 = t19 + t23;
        // complex block of 2
        const V t323 = t59 - t86;
        // spectrum block of 7
        const V t324 = c[0] * t323;
        const V t325 = c[1] * t323;
        const V t326 = c[2] * t323;
        // complex block of 2
        const V t327 = t123 - t150;
        // spectrum block of 7
        const V t328 = c[1] * t327;
        const V t329 = t323 + t327;
        const V t330 = t324 - t328;
        const V t331 = t322 - t325;
        const V t332 = c[2] * t327;
        const V t333 = t322 - t326;
        const V t334 = c[0] * t327;
        // complex block of 2
        const V t335 = t55 - t87;
        // spectrum block of 7
        const V t336 = c[3] * t335;
        const V t337 = c[4] * t335;
        const V t338 = c[5] * t335;
        // complex block of 2
        const V t339 = t119 - t151;
        // spectrum block of 7
        const V t340 = c[4] * t339;
        const V t341 = c[5] * t339;
        const V t342 = c[3] * t339;
        const V t343 = t336 + t340;
        const V t344 = t337 - t341;
        const V t345 = t338 - t342;
        // complex block of 2
        const V t346 = t55 + t87;
        // spectrum block of 7
        const V t347 = c[3] * t346;
        const V t348 = c[4] * t346;
        const V t349 = c[5] * t346;
        // complex block of 2
        const V t350 = t119 + t151;
        // spectrum block of 7
        const V t351 = c[4] * t350;
        const V t352 = c[5] * t350;
        const V t353 = c[3] * t350;
        const V t354 = t347 + t351;
        const V t355 = t348 - t352;
        const V t356 = t349 - t353;
        // complex block of 2
        const V t357 = t202 + t207;
        // complex block of 2
        const V t358 = t185 - t357;
        const V t359 = t185 + t357;
        // spectrum block of 7
        const V t360 = c[5] * t358;
        const V t361 = c[3] * t358;
        const V t362 = c[4] * t358;
        // spectrum block of 7
        const V t363 = c[5] * t359;
        const V t364 = c[3] * t359;
        const V t365 = c[4] * t359;
        // complex block of 2
        const V t366 = t189 + t209;
        // spectrum block of 7
        const V t367 = c[2] * t366;
        const V t368 = c[0] * t366;
        const V t369 = c[1] * t366;
        // complex block of 2
        const V t370 = t189 - t209;
        // spectrum block of 7
        const V t371 = c[2] * t370;
        const V t372 = c[0] * t370;
        const V t373 = c[1] * t370;
        // spectrum block of 7
        const V t374 = t316 + t366;
        const V t375 = t374 + t309;
        io.out(35, t375);
        const V t376 = t317 - t367;
        const V t377 = t376 + t309;
        const V t378 = t343 + t360;
        const V t379 = t377 - t378;
        io.out(27, t379);
        const V t380 = t377 + t378;
        io.out(43, t380);
        const V t381 = t318 - t319;
        const V t382 = t381 + t368;
        const V t383 = t344 - t361;
        const V t384 = t382 - t383;
        io.out(19, t384);
        const V t385 = t382 + t383;
        io.out(51, t385);
        const V t386 = t320 + t321;
        const V t387 = t386 - t369;
        const V t388 = t345 + t362;
        const V t389 = t387 - t388;
        io.out(11, t389);
        const V t390 = t387 + t388;
        io.out(3, t390);
        // spectrum block of 7
        const V t391 = t329 + t370;
        const V t392 = t391 + t322;
        io.out(7, t392);
        const V t393 = t330 - t371;
        const V t394 = t393 + t322;
        const V t395 = t354 + t363;
        const V t396 = t394 - t395;
        io.out(55, t396);
        const V t397 = t394 + t395;
        io.out(15, t397);
        const V t398 = t331 - t332;
        const V t399 = t398 + t372;
        const V t400 = t355 - t364;
        const V t401 = t399 - t400;
        io.out(47, t401);
        const V t402 = t399 + t400;
        io.out(23, t402);
        const V t403 = t333 + t334;
        const V t404 = t403 - t373;
        const V t405 = t356 + t365;
        const V t406 = t404 - t405;
        io.out(39, t406);
        const V t407 = t404 + t405;
        io.out(31, t407);
        // complex block of 2
        const V t408 = t180 + t198;
        // spectrum block of 7
        const V t409 = c[5] * t408;
        const V t410 = c[3] * t408;
        const V t411 = c[4] * t408;
        const V t412 = c[0] * t66;
        const V t413 = c[1] * t130;
        const V t414 = t412 - t413;
        const V t415 = c[2] * t192;
        const V t416 = t414 - t415;
        const V t417 = c[3] * t62;
        const V t418 = c[4] * t126;
        const V t419 = t417 + t418;
        const V t420 = c[1] * t66;
        const V t421 = t12 - t420;
        const V t422 = c[2] * t130;
        const V t423 = t421 - t422;
        const V t424 = c[0] * t192;
        const V t425 = c[4] * t62;
        const V t426 = c[5] * t126;
        const V t427 = t425 - t426;
        const V t428 = c[2] * t66;
        const V t429 = t12 - t428;
        const V t430 = c[0] * t130;
        const V t431 = t429 + t430;
        const V t432 = c[1] * t192;
        const V t433 = c[5] * t62;
        const V t434 = c[3] * t126;
        const V t435 = t433 - t434;
        const V t436 = t416 + t12;
        const V t437 = t419 + t409;
        const V t438 = t436 - t437;
        io.out(48, t438);
        const V t439 = t436 + t437;
        io.out(8, t439);
        const V t440 = t423 + t424;
        const V t441 = t427 - t410;
        const V t442 = t440 - t441;
        io.out(40, t442);
        const V t443 = t440 + t441;
        io.out(16, t443);
        const V t444 = t431 - t432;
        const V t445 = t435 + t411;
        const V t446 = t444 - t445;
        io.out(32, t446);
        const V t447 = t444 + t445;
        io.out(24, t447);
        // complex block of 2
        const V t448 = t180 - t198;
        // spectrum block of 7
        const V t449 = c[5] * t448;
        const V t450 = c[3] * t448;
        const V t451 = c[4] * t448;
        const V t452 = c[0] * t67;
        const V t453 = c[1] * t131;
        const V t454 = t452 - t453;
        const V t455 = c[2] * t193;
        const V t456 = t454 - t455;
        const V t457 = c[3] * t63;
        const V t458 = c[4] * t127;
        const V t459 = t457 + t458;
        const V t460 = c[1] * t67;
        const V t461 = t13 - t460;
        const V t462 = c[2] * t131;
        const V t463 = t461 - t462;
        const V t464 = c[0] * t193;
        const V t465 = c[4] * t63;
        const V t466 = c[5] * t127;
        const V t467 = t465 - t466;
        const V t468 = c[2] * t67;
        const V t469 = t13 - t468;
        const V t470 = c[0] * t131;
        const V t471 = t469 + t470;
        const V t472 = c[1] * t193;
        const V t473 = c[5] * t63;
        const V t474 = c[3] * t127;
        const V t475 = t473 - t474;
        const V t476 = t456 + t13;
        const V t477 = t459 + t449;
        const V t478 = t476 - t477;
        io.out(20, t478);
        const V t479 = t476 + t477;
        io.out(36, t479);
        const V t480 = t463 + t464;
        const V t481 = t467 - t450;
        const V t482 = t480 - t481;
        io.out(12, t482);
        const V t483 = t480 + t481;
        io.out(44, t483);
        const V t484 = t471 - t472;
        const V t485 = t475 + t451;
        const V t486 = t484 - t485;
        io.out(4, t486);
        const V t487 = t484 + t485;
        io.out(52, t487);
        // complex block of 2
        const V t488 = t181 - t199;
        // spectrum block of 7
        const V t489 = c[5] * t488;
        const V t490 = c[3] * t488;
        const V t491 = c[4] * t488;
        const V t492 = c[0] * t74;
        const V t493 = c[1] * t138;
        const V t494 = t492 - t493;
        const V t495 = c[2] * t196;
        const V t496 = t494 - t495;
        const V t497 = c[3] * t70;
        const V t498 = c[4] * t134;
        const V t499 = t497 + t498;
        const V t500 = c[1] * t74;
        const V t501 = t16 - t500;
        const V t502 = c[2] * t138;
        const V t503 = t501 - t502;
        const V t504 = c[0] * t196;
        const V t505 = c[4] * t70;
        const V t506 = c[5] * t134;
        const V t507 = t505 - t506;
        const V t508 = c[2] * t74;
        const V t509 = t16 - t508;
        const V t510 = c[0] * t138;
        const V t511 = t509 + t510;
        const V t512 = c[1] * t196;
        const V t513 = c[5] * t70;
        const V t514 = c[3] * t134;
        const V t515 = t513 - t514;
        const V t516 = t496 + t16;
        const V t517 = t499 + t489;
        const V t518 = t516 - t517;
        io.out(34, t518);
        const V t519 = t516 + t517;
        io.out(50, t519);
        const V t520 = t503 + t504;
        const V t521 = t507 - t490;
        const V t522 = t520 - t521;
        io.out(26, t522);
        const V t523 = t520 + t521;
        io.out(2, t523);
        const V t524 = t511 - t512;
        const V t525 = t515 + t491;
        const V t526 = t524 - t525;
        io.out(18, t526);
        const V t527 = t524 + t525;
        io.out(10, t527);
        // complex block of 2
        const V t528 = t181 + t199;
        // spectrum block of 7
        const V t529 = c[5] * t528;
        const V t530 = c[3] * t528;
        const V t531 = c[4] * t528;
        const V t532 = c[0] * t75;
        const V t533 = c[1] * t139;
        const V t534 = t532 - t533;
        const V t535 = c[2] * t197;
        const V t536 = t534 - t535;
        const V t537 = c[3] * t71;
        const V t538 = c[4] * t135;
        const V t539 = t537 + t538;
        const V t540 = c[1] * t75;
        const V t541 = t17 - t540;
        const V t542 = c[2] * t139;
        const V t543 = t541 - t542;
        const V t544 = c[0] * t197;
        const V t545 = c[4] * t71;
        const V t546 = c[5] * t135;
        const V t547 = t545 - t546;
        const V t548 = c[2] * t75;
        const V t549 = t17 - t548;
        const V t550 = c[0] * t139;
        const V t551 = t549 + t550;
        const V t552 = c[1] * t197;
        const V t553 = c[5] * t71;
        const V t554 = c[3] * t135;
        const V t555 = t553 - t554;
        const V t556 = t536 + t17;
        const V t557 = t539 + t529;
        const V t558 = t556 - t557;
        io.out(6, t558);
        const V t559 = t556 + t557;
        io.out(22, t559);
        const V t560 = t543 + t544;
        const V t561 = t547 - t530;
        const V t562 = t560 - t561;
        io.out(54, t562);
        const V t563 = t560 + t561;
        io.out(30, t563);
        const V t564 = t551 - t552;
        const V t565 = t555 + t531;
        const V t566 = t564 - t565;
        io.out(46, t566);
        const V t567 = t564 + t565;
        io.out(38, t567);
        // spectrum block of 7
        const V t568 = t66 + t130;
        const V t569 = t568 + t192;
        const V t570 = t569 + t12;
        io.out(0, t570);
        // spectrum block of 7
        const V t571 = t74 + t138;
        const V t572 = t571 + t196;
        const V t573 = t572 + t16;
        io.out(42, t573);
        // spectrum block of 7
        const V t574 = t67 + t131;
        const V t575 = t574 + t193;
        const V t576 = t575 + t13;
        io.out(28, t576);
        // spectrum block of 7
        const V t577 = t75 + t139;
        const V t578 = t577 + t197;
        const V t579 = t578 + t17;
        io.out(14, t579);
    }
};

}  // namespace zulg
