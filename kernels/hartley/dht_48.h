// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 48.
// Hartley transform of 48 points, form I.
// 158 additions, 158 subtractions, 72 multiplications (120 with `scale`); 5 constants; 50 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<48> {
    static constexpr int steps = 436;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.9238795325112867,  // c[3]: -sin 2 pi 13/16
        0.3826834323650898,  // c[4]: cos 2 pi 13/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x47 = io.in(47);
        const V t0 = x1 + x47;
        const V t1 = x1 - x47;
        const V x2 = io.in(2);
        const V x46 = io.in(46);
        const V t2 = x2 + x46;
        const V t3 = x2 - x46;
        const V x3 = io.in(3);
        const V x45 = io.in(45);
        const V t4 = x3 + x45;
        const V t5 = x3 - x45;
        const V x4 = io.in(4);
        const V x44 = io.in(44);
        const V t6 = x4 + x44;
        const V t7 = x4 - x44;
        const V x5 = io.in(5);
        const V x43 = io.in(43);
        const V t8 = x5 + x43;
        const V t9 = x5 - x43;
        const V x6 = io.in(6);
        const V x42 = io.in(42);
        const V t10 = x6 + x42;
        const V t11 = x6 - x42;
        const V x7 = io.in(7);
        const V x41 = io.in(41);
        const V t12 = x7 + x41;
        const V t13 = x7 - x41;
        const V x8 = io.in(8);
        const V x40 = io.in(40);
        const V t14 = x8 + x40;
        const V t15 = x8 - x40;
        const V x9 = io.in(9);
        const V x39 = io.in(39);
        const V t16 = x9 + x39;
        const V t17 = x9 - x39;
        const V x10 = io.in(10);
        const V x38 = io.in(38);
        const V t18 = x10 + x38;
        const V t19 = x10 - x38;
        const V x11 = io.in(11);
        const V x37 = io.in(37);
        const V t20 = x11 + x37;
        const V t21 = x11 - x37;
        const V x12 = io.in(12);
        const V x36 = io.in(36);
        const V t22 = x12 + x36;
        const V t23 = x12 - x36;
        const V x13 = io.in(13);
        const V x35 = io.in(35);
        const V t24 = x13 + x35;
        const V t25 = x13 - x35;
        const V x14 = io.in(14);
        const V x34 = io.in(34);
        const V t26 = x14 + x34;
        const V t27 = x14 - x34;
        const V x15 = io.in(15);
        const V x33 = io.in(33);
        const V t28 = x15 + x33;
        const V t29 = x15 - x33;
        const V x16 = io.in(16);
        const V x32 = io.in(32);
        const V t30 = x16 + x32;
        const V t31 = x16 - x32;
        const V x17 = io.in(17);
        const V x31 = io.in(31);
        const V t32 = x17 + x31;
        const V t33 = x17 - x31;
        const V x18 = io.in(18);
        const V x30 = io.in(30);
        const V t34 = x18 + x30;
        const V t35 = x18 - x30;
        const V x19 = io.in(19);
        const V x29 = io.in(29);
        const V t36 = x19 + x29;
        const V t37 = x19 - x29;
        const V x20 = io.in(20);
        const V x28 = io.in(28);
        const V t38 = x20 + x28;
        const V t39 = x20 - x28;
        const V x21 = io.in(21);
        const V x27 = io.in(27);
        const V t40 = x21 + x27;
        const V t41 = x21 - x27;
        const V x22 = io.in(22);
        const V x26 = io.in(26);
        const V t42 = x22 + x26;
        const V t43 = x22 - x26;
        const V x23 = io.in(23);
        const V x25 = io.in(25);
        const V t44 = x23 + x25;
        const V t45 = x23 - x25;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x24 = io.in(24);
        const V t46 = x0 + x24;
        const V t47 = x0 - x24;
        // spectrum block of 2
        const V t48 = t46 + t22;
        const V t49 = t46 - t22;
        // spectrum block of 2
        const V t50 = t47 + t23;
        const V t51 = t47 - t23;
        // complex block of 2
        const V t52 = t5 - t41;
        const V t53 = t4 + t40;
        const V t54 = t5 + t41;
        const V t55 = t4 - t40;
        // complex block of 2
        const V t56 = t29 - t17;
        const V t57 = t28 + t16;
        const V t58 = t29 + t17;
        const V t59 = t28 - t16;
        // complex block of 2
        const V t60 = t52 + t56;
        const V t61 = t53 + t57;
        const V t62 = t52 - t56;
        const V t63 = t53 - t57;
        // complex block of 2
        const V t64 = t54 - t59;
        const V t65 = t55 + t58;
        const V t66 = t54 + t59;
        const V t67 = t55 - t58;
        // spectrum block of 16, multiplier 3
        const V t68 = c[3] * t64;
        const V t69 = c[4] * t65;
        const V t70 = t69 - t68;
        const V t71 = c[3] * t65;
        const V t72 = c[4] * t64;
        const V t73 = t72 + t71;
        const V t74 = t63 + t62;
        const V t75 = t62 - t63;
        const V t76 = c[0] * t74;
        const V t77 = c[0] * t75;
        const V t78 = c[4] * t66;
        const V t79 = c[3] * t67;
        const V t80 = t78 - t79;
        const V t81 = c[4] * t67;
        const V t82 = c[3] * t66;
        const V t83 = t82 + t81;
        // mirrored skew block of 4, multiplier 3
        const V t84 = t34 - t10;
        const V t85 = c[0] * t84;
        const V t86 = t35 + t11;
        const V t87 = c[0] * t86;
        const V t88 = t34 + t10;
        const V t89 = t85 - t87;
        const V t90 = t35 - t11;
        const V t91 = t85 + t87;
        // spectrum block of 2
        const V t92 = t48 + t88;
        const V t93 = t48 - t88;
        // spectrum block of 2
        const V t94 = t92 + t61;
        const V t95 = t92 - t61;
        // spectrum block of 2
        const V t96 = t93 + t60;
        const V t97 = t93 - t60;
        // spectrum block of 2
        const V t98 = t50 + t89;
        const V t99 = t50 - t89;
        // spectrum block of 2
        const V t100 = t98 + t70;
        const V t101 = t98 - t70;
        // spectrum block of 2
        const V t102 = t99 + t73;
        const V t103 = t99 - t73;
        // spectrum block of 2
        const V t104 = t49 - t90;
        const V t105 = t49 + t90;
        // spectrum block of 2
        const V t106 = t104 - t76;
        const V t107 = t104 + t76;
        // spectrum block of 2
        const V t108 = t105 - t77;
        const V t109 = t105 + t77;
        // spectrum block of 2
        const V t110 = t51 - t91;
        const V t111 = t51 + t91;
        // spectrum block of 2
        const V t112 = t110 + t80;
        const V t113 = t110 - t80;
        // spectrum block of 2
        const V t114 = t111 - t83;
        const V t115 = t111 + t83;
        // complex block of 2
        const V t116 = t31 - t15;
        const V t117 = t30 + t14;
        const V t118 = t31 + t15;
        const V t119 = t30 - t14;
        // complex block of 2
        const V t120 = t37 - t9;
        const V t121 = t36 + t8;
        const V t122 = t37 + t9;
        const V t123 = t36 - t8;
        // complex block of 2
        const V t124 = t43 - t3;
        const V t125 = t42 + t2;
        const V t126 = t43 + t3;
        const V t127 = t42 - t2;
        // complex block of 2
        const V t128 = t1 - t45;
        const V t129 = t44 + t0;
        const V t130 = t45 + t1;
        const V t131 = t44 - t0;
        // complex block of 2
        const V t132 = t7 - t39;
        const V t133 = t38 + t6;
        const V t134 = t39 + t7;
        const V t135 = t38 - t6;
        // complex block of 2
        const V t136 = t13 - t33;
        const V t137 = t32 + t12;
        const V t138 = t33 + t13;
        const V t139 = t32 - t12;
        // complex block of 2
        const V t140 = t19 - t27;
        const V t141 = t26 + t18;
        const V t142 = t27 + t19;
        const V t143 = t26 - t18;
        // complex block of 2
        const V t144 = t25 - t21;
        const V t145 = t20 + t24;
        const V t146 = t21 + t25;
        const V t147 = t20 - t24;
        // complex block of 2
        const V t148 = t116 + t132;
        const V t149 = t117 + t133;
        const V t150 = t116 - t132;
        const V t151 = t117 - t133;
        // complex block of 2
        const V t152 = t120 + t136;
        const V t153 = t121 + t137;
        const V t154 = t120 - t136;
        const V t155 = t121 - t137;
        // complex block of 2
        const V t156 = t124 + t140;
        const V t157 = t125 + t141;
        const V t158 = t124 - t140;
        const V t159 = t125 - t141;
        // complex block of 2
        const V t160 = t128 + t144;
        const V t161 = t129 + t145;
        const V t162 = t128 - t144;
        const V t163 = t129 - t145;
        // complex block of 2
        const V t164 = t148 + t156;
        const V t165 = t149 + t157;
        const V t166 = t148 - t156;
        const V t167 = t149 - t157;
        // complex block of 2
        const V t168 = t152 + t160;
        const V t169 = t153 + t161;
        const V t170 = t152 - t160;
        const V t171 = t153 - t161;
        // complex block of 2
        const V t172 = t164 + t168;
        const V t173 = t165 + t169;
        const V t174 = t164 - t168;
        const V t175 = t165 - t169;
        // complex block of 2
        const V t176 = t166 - t171;
        const V t177 = t167 + t170;
        const V t178 = t166 + t171;
        const V t179 = t167 - t170;
        // complex block of 8, multiplier 3
        const V t180 = c[0] * t154;
        const V t181 = c[0] * t155;
        const V t182 = t180 + t181;
        const V t183 = t181 - t180;
        const V t184 = c[0] * t162;
        const V t185 = c[0] * t163;
        const V t186 = t184 + t185;
        const V t187 = t185 - t184;
        // complex block of 2
        const V t188 = t150 - t159;
        const V t189 = t151 + t158;
        const V t190 = t150 + t159;
        const V t191 = t151 - t158;
        // complex block of 2
        const V t192 = t183 + t186;
        const V t193 = t187 - t182;
        const V t194 = t183 - t186;
        const V t195 = t182 + t187;
        // complex block of 2
        const V t196 = t188 + t192;
        const V t197 = t189 + t193;
        const V t198 = t188 - t192;
        const V t199 = t189 - t193;
        // complex block of 2
        const V t200 = t190 + t195;
        const V t201 = t191 + t194;
        const V t202 = t190 - t195;
        const V t203 = t191 - t194;
        // complex block of 16, multiplier 3
        const V t204 = c[3] * t123;
        const V t205 = c[4] * t122;
        const V t206 = t205 + t204;
        const V t207 = c[3] * t122;
        const V t208 = c[4] * t123;
        const V t209 = t208 - t207;
        const V t210 = c[0] * t126;
        const V t211 = c[0] * t127;
        const V t212 = t210 + t211;
        const V t213 = t211 - t210;
        const V t214 = c[4] * t131;
        const V t215 = c[3] * t130;
        const V t216 = t215 - t214;
        const V t217 = c[4] * t130;
        const V t218 = c[3] * t131;
        const V t219 = t218 + t217;
        const V t220 = c[4] * t139;
        const V t221 = c[3] * t138;
        const V t222 = t221 + t220;
        const V t223 = c[4] * t138;
        const V t224 = c[3] * t139;
        const V t225 = t224 - t223;
        const V t226 = c[0] * t142;
        const V t227 = c[0] * t143;
        const V t228 = t227 - t226;
        const V t229 = t227 + t226;
        const V t230 = c[3] * t147;
        const V t231 = c[4] * t146;
        const V t232 = t231 + t230;
        const V t233 = c[3] * t146;
        const V t234 = c[4] * t147;
        const V t235 = t233 - t234;
        // complex block of 2
        const V t236 = t118 - t135;
        const V t237 = t119 - t134;
        const V t238 = t118 + t135;
        const V t239 = t119 + t134;
        // complex block of 2
        const V t240 = t206 - t222;
        const V t241 = t209 + t225;
        const V t242 = t206 + t222;
        const V t243 = t209 - t225;
        // complex block of 2
        const V t244 = t213 + t228;
        const V t245 = t229 - t212;
        const V t246 = t213 - t228;
        const V t247 = t212 + t229;
        // complex block of 2
        const V t248 = t216 + t232;
        const V t249 = t235 - t219;
        const V t250 = t216 - t232;
        const V t251 = t219 + t235;
        // complex block of 2
        const V t252 = t236 + t244;
        const V t253 = t237 + t245;
        const V t254 = t236 - t244;
        const V t255 = t237 - t245;
        // complex block of 2
        const V t256 = t240 + t248;
        const V t257 = t241 + t249;
        const V t258 = t240 - t248;
        const V t259 = t241 - t249;
        // complex block of 2
        const V t260 = t252 + t256;
        const V t261 = t253 + t257;
        const V t262 = t252 - t256;
        const V t263 = t253 - t257;
        // complex block of 2
        const V t264 = t254 - t259;
        const V t265 = t255 + t258;
        const V t266 = t254 + t259;
        const V t267 = t255 - t258;
        // complex block of 8, multiplier 3
        const V t268 = c[0] * t242;
        const V t269 = c[0] * t243;
        const V t270 = t268 + t269;
        const V t271 = t269 - t268;
        const V t272 = c[0] * t250;
        const V t273 = c[0] * t251;
        const V t274 = t272 - t273;
        const V t275 = t273 + t272;
        // complex block of 2
        const V t276 = t238 + t247;
        const V t277 = t239 + t246;
        const V t278 = t238 - t247;
        const V t279 = t239 - t246;
        // complex block of 2
        const V t280 = t271 + t274;
        const V t281 = t270 + t275;
        const V t282 = t271 - t274;
        const V t283 = t275 - t270;
        // complex block of 2
        const V t284 = t276 + t280;
        const V t285 = t277 - t281;
        const V t286 = t276 - t280;
        const V t287 = t277 + t281;
        // complex block of 2
        const V t288 = t278 - t283;
        const V t289 = t279 + t282;
        const V t290 = t278 + t283;
        const V t291 = t279 - t282;
        // spectrum block of 3
        const V t292 = t173 + t94;
        io.out(0, t292);
        const V t293 = c[1] * t173;
        const V t294 = t94 - t293;
        const V t295 = c[2] * t172;
        const V t296 = t294 - t295;
        io.out(32, t296);
        const V t297 = t294 + t295;
        io.out(16, t297);
        // spectrum block of 3
        const V t298 = t261 + t100;
        io.out(45, t298);
        const V t299 = c[1] * t261;
        const V t300 = t100 - t299;
        const V t301 = c[2] * t260;
        const V t302 = t300 - t301;
        io.out(29, t302);
        const V t303 = t300 + t301;
        io.out(13, t303);
        // spectrum block of 3
        const V t304 = t197 + t106;
        io.out(42, t304);
        const V t305 = c[1] * t197;
        const V t306 = t106 - t305;
        const V t307 = c[2] * t196;
        const V t308 = t306 - t307;
        io.out(26, t308);
        const V t309 = t306 + t307;
        io.out(10, t309);
        // spectrum block of 3
        const V t310 = t285 + t112;
        io.out(39, t310);
        const V t311 = c[1] * t285;
        const V t312 = t112 - t311;
        const V t313 = c[2] * t284;
        const V t314 = t312 - t313;
        io.out(23, t314);
        const V t315 = t312 + t313;
        io.out(7, t315);
        // spectrum block of 3
        const V t316 = t177 + t96;
        io.out(36, t316);
        const V t317 = c[1] * t177;
        const V t318 = t96 - t317;
        const V t319 = c[2] * t176;
        const V t320 = t318 - t319;
        io.out(20, t320);
        const V t321 = t318 + t319;
        io.out(4, t321);
        // spectrum block of 3
        const V t322 = t265 + t102;
        io.out(33, t322);
        const V t323 = c[1] * t265;
        const V t324 = t102 - t323;
        const V t325 = c[2] * t264;
        const V t326 = t324 - t325;
        io.out(17, t326);
        const V t327 = t324 + t325;
        io.out(1, t327);
        // spectrum block of 3
        const V t328 = t201 + t108;
        io.out(30, t328);
        const V t329 = c[1] * t201;
        const V t330 = t108 - t329;
        const V t331 = c[2] * t200;
        const V t332 = t330 - t331;
        io.out(14, t332);
        const V t333 = t330 + t331;
        io.out(46, t333);
        // spectrum block of 3
        const V t334 = t289 + t114;
        io.out(27, t334);
        const V t335 = c[1] * t289;
        const V t336 = t114 - t335;
        const V t337 = c[2] * t288;
        const V t338 = t336 - t337;
        io.out(11, t338);
        const V t339 = t336 + t337;
        io.out(43, t339);
        // spectrum block of 3
        const V t340 = t175 + t95;
        io.out(24, t340);
        const V t341 = c[1] * t175;
        const V t342 = t95 - t341;
        const V t343 = c[2] * t174;
        const V t344 = t342 - t343;
        io.out(8, t344);
        const V t345 = t342 + t343;
        io.out(40, t345);
        // spectrum block of 3
        const V t346 = t263 + t101;
        io.out(21, t346);
        const V t347 = c[1] * t263;
        const V t348 = t101 - t347;
        const V t349 = c[2] * t262;
        const V t350 = t348 - t349;
        io.out(5, t350);
        const V t351 = t348 + t349;
        io.out(37, t351);
        // spectrum block of 3
        const V t352 = t199 + t107;
        io.out(18, t352);
        const V t353 = c[1] * t199;
        const V t354 = t107 - t353;
        const V t355 = c[2] * t198;
        const V t356 = t354 - t355;
        io.out(2, t356);
        const V t357 = t354 + t355;
        io.out(34, t357);
        // spectrum block of 3
        const V t358 = t287 + t113;
        io.out(15, t358);
        const V t359 = c[1] * t287;
        const V t360 = t113 - t359;
        const V t361 = c[2] * t286;
        const V t362 = t360 - t361;
        io.out(47, t362);
        const V t363 = t360 + t361;
        io.out(31, t363);
        // spectrum block of 3
        const V t364 = t179 + t97;
        io.out(12, t364);
        const V t365 = c[1] * t179;
        const V t366 = t97 - t365;
        const V t367 = c[2] * t178;
        const V t368 = t366 - t367;
        io.out(44, t368);
        const V t369 = t366 + t367;
        io.out(28, t369);
        // spectrum block of 3
        const V t370 = t267 + t103;
        io.out(9, t370);
        const V t371 = c[1] * t267;
        const V t372 = t103 - t371;
        const V t373 = c[2] * t266;
        const V t374 = t372 - t373;
        io.out(41, t374);
        const V t375 = t372 + t373;
        io.out(25, t375);
        // spectrum block of 3
        const V t376 = t203 + t109;
        io.out(6, t376);
        const V t377 = c[1] * t203;
        const V t378 = t109 - t377;
        const V t379 = c[2] * t202;
        const V t380 = t378 - t379;
        io.out(38, t380);
        const V t381 = t378 + t379;
        io.out(22, t381);
        // spectrum block of 3
        const V t382 = t291 + t115;
        io.out(3, t382);
        const V t383 = c[1] * t291;
        const V t384 = t115 - t383;
        const V t385 = c[2] * t290;
        const V t386 = t384 - t385;
        io.out(35, t386);
        const V t387 = t384 + t385;
        io.out(19, t387);
    }
};

}  // namespace zulg
