// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 64.
// Hartley transform of 64 points, form I.
// 231 additions, 231 subtractions, 134 multiplications (198 with `scale`); 15 constants; 81 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<64> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.9238795325112867,  // c[0]: cos 2 pi 15/16
        0.3826834323650898,  // c[1]: -sin 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.19509032201612828,  // c[3]: -sin 2 pi 62/64
        0.9807852804032304,  // c[4]: cos 2 pi 62/64
        0.5555702330196022,  // c[5]: -sin 2 pi 58/64
        0.8314696123025452,  // c[6]: cos 2 pi 58/64
        0.0980171403295606,  // c[7]: -sin 2 pi 63/64
        0.9951847266721969,  // c[8]: cos 2 pi 63/64
        0.773010453362737,  // c[9]: cos 2 pi 57/64
        0.6343932841636455,  // c[10]: -sin 2 pi 57/64
        0.47139673682599764,  // c[11]: -sin 2 pi 59/64
        0.881921264348355,  // c[12]: cos 2 pi 59/64
        0.9569403357322088,  // c[13]: cos 2 pi 61/64
        0.2902846772544624,  // c[14]: -sin 2 pi 61/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x32 = io.in(32);
        const V t0 = x0 + x32;
        const V t1 = x0 - x32;
        // input stage
        const V x8 = io.in(8);
        const V x56 = io.in(56);
        const V t2 = x8 + x56;
        const V t3 = x8 - x56;
        const V x24 = io.in(24);
        const V x40 = io.in(40);
        const V t4 = x24 + x40;
        const V t5 = x24 - x40;
        // mirrored skew block of 4
        const V t6 = t2 - t4;
        const V t7 = t3 + t5;
        // input stage
        const V x16 = io.in(16);
        const V x48 = io.in(48);
        const V t8 = x16 + x48;
        const V t9 = x16 - x48;
        // spectrum block of 2
        const V t10 = t0 + t8;
        // mirrored skew block of 4
        const V t11 = t2 + t4;
        // spectrum block of 2
        const V t12 = t10 + t11;
        const V t13 = t10 - t11;
        // spectrum block of 2
        const V t14 = t0 - t8;
        // mirrored skew block of 4
        const V t15 = t3 - t5;
        // spectrum block of 2
        const V t16 = t14 - t15;
        const V t17 = t14 + t15;
        // spectrum block of 2
        const V t18 = t1 - t9;
        const V t19 = t1 + t9;
        // mirrored skew block of 4
        const V t20 = c[2] * t6;
        const V t21 = c[2] * t7;
        const V t22 = t20 - t21;
        const V t23 = t20 + t21;
        // input stage
        const V x1 = io.in(1);
        const V x63 = io.in(63);
        const V t24 = x1 + x63;
        const V t25 = x1 - x63;
        const V x31 = io.in(31);
        const V x33 = io.in(33);
        const V t26 = x31 + x33;
        const V t27 = x31 - x33;
        // complex block of 2
        const V t28 = t25 - t27;
        const V t29 = t24 + t26;
        // input stage
        const V x7 = io.in(7);
        const V x57 = io.in(57);
        const V t30 = x7 + x57;
        const V t31 = x7 - x57;
        const V x25 = io.in(25);
        const V x39 = io.in(39);
        const V t32 = x25 + x39;
        const V t33 = x25 - x39;
        // complex block of 2
        const V t34 = t33 - t31;
        const V t35 = t32 + t30;
        const V t36 = t33 + t31;
        const V t37 = t32 - t30;
        // input stage
        const V x9 = io.in(9);
        const V x55 = io.in(55);
        const V t38 = x9 + x55;
        const V t39 = x9 - x55;
        const V x23 = io.in(23);
        const V x41 = io.in(41);
        const V t40 = x23 + x41;
        const V t41 = x23 - x41;
        // complex block of 2
        const V t42 = t39 - t41;
        const V t43 = t38 + t40;
        const V t44 = t39 + t41;
        const V t45 = t38 - t40;
        // input stage
        const V x15 = io.in(15);
        const V x49 = io.in(49);
        const V t46 = x15 + x49;
        const V t47 = x15 - x49;
        const V x17 = io.in(17);
        const V x47 = io.in(47);
        const V t48 = x17 + x47;
        const V t49 = x17 - x47;
        // complex block of 2
        const V t50 = t49 - t47;
        const V t51 = t48 + t46;
        // complex block of 2
        const V t52 = t25 + t27;
        // complex block of 2
        const V t53 = t48 - t46;
        // complex block of 2
        const V t54 = t52 + t53;
        const V t55 = t52 - t53;
        // complex block of 2
        const V t56 = t24 - t26;
        // complex block of 2
        const V t57 = t49 + t47;
        // complex block of 2
        const V t58 = t56 - t57;
        const V t59 = t56 + t57;
        // complex block of 2
        const V t60 = t28 + t50;
        // complex block of 2
        const V t61 = t42 + t34;
        // complex block of 2
        const V t62 = t60 + t61;
        const V t63 = t60 - t61;
        // complex block of 2
        const V t64 = t29 + t51;
        // complex block of 2
        const V t65 = t43 + t35;
        // complex block of 2
        const V t66 = t64 + t65;
        const V t67 = t64 - t65;
        // complex block of 2
        const V t68 = t28 - t50;
        // complex block of 2
        const V t69 = t43 - t35;
        // complex block of 2
        const V t70 = t68 + t69;
        const V t71 = t68 - t69;
        // complex block of 2
        const V t72 = t29 - t51;
        // complex block of 2
        const V t73 = t42 - t34;
        // complex block of 2
        const V t74 = t72 - t73;
        const V t75 = t72 + t73;
        // complex block of 16
        const V t76 = c[2] * t44;
        const V t77 = c[2] * t45;
        const V t78 = t76 + t77;
        const V t79 = t77 - t76;
        const V t80 = c[2] * t36;
        const V t81 = c[2] * t37;
        const V t82 = t80 + t81;
        const V t83 = t81 - t80;
        // complex block of 2
        const V t84 = t78 + t83;
        const V t85 = t79 - t82;
        const V t86 = t78 - t83;
        const V t87 = t79 + t82;
        // input stage
        const V x2 = io.in(2);
        const V x62 = io.in(62);
        const V t88 = x2 + x62;
        const V t89 = x2 - x62;
        const V x30 = io.in(30);
        const V x34 = io.in(34);
        const V t90 = x30 + x34;
        const V t91 = x30 - x34;
        // complex block of 2
        const V t92 = t89 - t91;
        const V t93 = t88 + t90;
        const V t94 = t89 + t91;
        const V t95 = t88 - t90;
        // input stage
        const V x6 = io.in(6);
        const V x58 = io.in(58);
        const V t96 = x6 + x58;
        const V t97 = x6 - x58;
        const V x26 = io.in(26);
        const V x38 = io.in(38);
        const V t98 = x26 + x38;
        const V t99 = x26 - x38;
        // complex block of 2
        const V t100 = t97 - t99;
        const V t101 = t96 + t98;
        const V t102 = t97 + t99;
        const V t103 = t96 - t98;
        // input stage
        const V x10 = io.in(10);
        const V x54 = io.in(54);
        const V t104 = x10 + x54;
        const V t105 = x10 - x54;
        const V x22 = io.in(22);
        const V x42 = io.in(42);
        const V t106 = x22 + x42;
        const V t107 = x22 - x42;
        // complex block of 2
        const V t108 = t105 - t107;
        const V t109 = t104 + t106;
        const V t110 = t105 + t107;
        const V t111 = t104 - t106;
        // input stage
        const V x14 = io.in(14);
        const V x50 = io.in(50);
        const V t112 = x14 + x50;
        const V t113 = x14 - x50;
        const V x18 = io.in(18);
        const V x46 = io.in(46);
        const V t114 = x18 + x46;
        const V t115 = x18 - x46;
        // complex block of 2
        const V t116 = t113 - t115;
        const V t117 = t112 + t114;
        const V t118 = t113 + t115;
        const V t119 = t112 - t114;
        // mirrored skew block of 16
        const V t120 = c[3] * t94;
        const V t121 = c[4] * t95;
        const V t122 = t121 - t120;
        const V t123 = c[4] * t118;
        const V t124 = c[3] * t119;
        const V t125 = t124 - t123;
        // complex block of 2
        const V t126 = t122 + t125;
        const V t127 = t122 - t125;
        // mirrored skew block of 16
        const V t128 = c[3] * t95;
        const V t129 = c[4] * t94;
        const V t130 = t129 + t128;
        const V t131 = c[4] * t119;
        const V t132 = c[3] * t118;
        const V t133 = t132 + t131;
        // complex block of 2
        const V t134 = t130 - t133;
        const V t135 = t130 + t133;
        // mirrored skew block of 16
        const V t136 = c[5] * t102;
        const V t137 = c[6] * t103;
        const V t138 = t137 - t136;
        const V t139 = c[6] * t110;
        const V t140 = c[5] * t111;
        const V t141 = t140 - t139;
        // complex block of 2
        const V t142 = t141 + t138;
        const V t143 = t141 - t138;
        // mirrored skew block of 16
        const V t144 = c[5] * t103;
        const V t145 = c[6] * t102;
        const V t146 = t145 + t144;
        const V t147 = c[6] * t111;
        const V t148 = c[5] * t110;
        const V t149 = t148 + t147;
        // complex block of 2
        const V t150 = t149 - t146;
        const V t151 = t149 + t146;
        // complex block of 2
        const V t152 = t92 - t116;
        // complex block of 2
        const V t153 = t108 - t100;
        // complex block of 2
        const V t154 = t152 - t153;
        // complex block of 2
        const V t155 = t93 + t117;
        // complex block of 2
        const V t156 = t109 + t101;
        // complex block of 2
        const V t157 = t155 - t156;
        // complex block of 2
        const V t158 = t92 + t116;
        // complex block of 2
        const V t159 = t109 - t101;
        // complex block of 2
        const V t160 = t158 + t159;
        const V t161 = t158 - t159;
        // complex block of 2
        const V t162 = t93 - t117;
        // complex block of 2
        const V t163 = t108 + t100;
        // complex block of 2
        const V t164 = t162 - t163;
        const V t165 = t162 + t163;
        // input stage
        const V x3 = io.in(3);
        const V x61 = io.in(61);
        const V t166 = x3 + x61;
        const V t167 = x3 - x61;
        const V x29 = io.in(29);
        const V x35 = io.in(35);
        const V t168 = x29 + x35;
        const V t169 = x29 - x35;
        // complex block of 2
        const V t170 = t169 - t167;
        const V t171 = t168 + t166;
        const V t172 = t169 + t167;
        // complex block of 16
        const V t173 = c[0] * t172;
        const V t174 = c[1] * t172;
        // complex block of 2
        const V t175 = t168 - t166;
        // complex block of 16
        const V t176 = c[1] * t175;
        const V t177 = c[0] * t175;
        // input stage
        const V x5 = io.in(5);
        const V x59 = io.in(59);
        const V t178 = x5 + x59;
        const V t179 = x5 - x59;
        const V x27 = io.in(27);
        const V x37 = io.in(37);
        const V t180 = x27 + x37;
        const V t181 = x27 - x37;
        // complex block of 2
        const V t182 = t179 - t181;
        const V t183 = t178 + t180;
        const V t184 = t179 + t181;
        // complex block of 16
        const V t185 = c[0] * t184;
        const V t186 = c[1] * t184;
        // complex block of 2
        const V t187 = t178 - t180;
        // complex block of 16
        const V t188 = c[1] * t187;
        const V t189 = c[0] * t187;
        // input stage
        const V x11 = io.in(11);
        const V x53 = io.in(53);
        const V t190 = x11 + x53;
        const V t191 = x11 - x53;
        const V x21 = io.in(21);
        const V x43 = io.in(43);
        const V t192 = x21 + x43;
        const V t193 = x21 - x43;
        // complex block of 2
        const V t194 = t193 - t191;
        const V t195 = t192 + t190;
        const V t196 = t193 + t191;
        // complex block of 16
        const V t197 = c[1] * t196;
        const V t198 = c[0] * t196;
        // complex block of 2
        const V t199 = t192 - t190;
        // complex block of 16
        const V t200 = c[0] * t199;
        const V t201 = c[1] * t199;
        // input stage
        const V x13 = io.in(13);
        const V x51 = io.in(51);
        const V t202 = x13 + x51;
        const V t203 = x13 - x51;
        const V x19 = io.in(19);
        const V x45 = io.in(45);
        const V t204 = x19 + x45;
        const V t205 = x19 - x45;
        // complex block of 2
        const V t206 = t203 - t205;
        const V t207 = t202 + t204;
        const V t208 = t203 + t205;
        // complex block of 16
        const V t209 = c[1] * t208;
        const V t210 = c[0] * t208;
        // complex block of 2
        const V t211 = t202 - t204;
        // complex block of 16
        const V t212 = c[0] * t211;
        const V t213 = c[1] * t211;
        // complex block of 2
        const V t214 = t182 + t194;
        // complex block of 2
        const V t215 = t206 + t170;
        // complex block of 2
        const V t216 = t214 + t215;
        const V t217 = t214 - t215;
        // complex block of 2
        const V t218 = t183 + t195;
        // complex block of 2
        const V t219 = t207 + t171;
        // complex block of 2
        const V t220 = t218 + t219;
        const V t221 = t218 - t219;
        // complex block of 2
        const V t222 = t182 - t194;
        // complex block of 8
        const V t223 = c[2] * t222;
        // complex block of 2
        const V t224 = t183 - t195;
        // complex block of 8
        const V t225 = c[2] * t224;
        const V t226 = t223 + t225;
        const V t227 = t225 - t223;
        // complex block of 2
        const V t228 = t206 - t170;
        // complex block of 8
        const V t229 = c[2] * t228;
        // complex block of 2
        const V t230 = t207 - t171;
        // complex block of 8
        const V t231 = c[2] * t230;
        const V t232 = t229 + t231;
        const V t233 = t231 - t229;
        // complex block of 16
        const V t234 = t185 + t188;
        const V t235 = t200 - t197;
        // complex block of 2
        const V t236 = t234 - t235;
        const V t237 = t234 + t235;
        // complex block of 8
        const V t238 = c[2] * t236;
        // complex block of 16
        const V t239 = t189 - t186;
        const V t240 = t201 + t198;
        // complex block of 2
        const V t241 = t239 + t240;
        const V t242 = t239 - t240;
        // complex block of 8
        const V t243 = c[2] * t241;
        // complex block of 16
        const V t244 = t209 + t212;
        const V t245 = t176 - t173;
        // complex block of 2
        const V t246 = t244 - t245;
        const V t247 = t244 + t245;
        // complex block of 8
        const V t248 = c[2] * t246;
        // complex block of 16
        const V t249 = t213 - t210;
        const V t250 = t177 + t174;
        // complex block of 2
        const V t251 = t249 + t250;
        const V t252 = t249 - t250;
        // complex block of 8
        const V t253 = c[2] * t251;
        // input stage
        const V x4 = io.in(4);
        const V x60 = io.in(60);
        const V t254 = x4 + x60;
        const V t255 = x4 - x60;
        const V x28 = io.in(28);
        const V x36 = io.in(36);
        const V t256 = x28 + x36;
        const V t257 = x28 - x36;
        // complex block of 2
        const V t258 = t255 - t257;
        const V t259 = t254 + t256;
        const V t260 = t255 + t257;
        const V t261 = t254 - t256;
        // input stage
        const V x12 = io.in(12);
        const V x52 = io.in(52);
        const V t262 = x12 + x52;
        const V t263 = x12 - x52;
        const V x20 = io.in(20);
        const V x44 = io.in(44);
        const V t264 = x20 + x44;
        const V t265 = x20 - x44;
        // complex block of 2
        const V t266 = t265 - t263;
        const V t267 = t264 + t262;
        const V t268 = t265 + t263;
        const V t269 = t264 - t262;
        // complex block of 2
        const V t270 = t258 + t266;
        const V t271 = t259 + t267;
        const V t272 = t258 - t266;
        const V t273 = t259 - t267;
        // spectrum block of 16
        const V t274 = t273 + t272;
        const V t275 = t272 - t273;
        // complex block of 2
        const V t276 = t260 + t269;
        // spectrum block of 16
        const V t277 = c[1] * t276;
        const V t278 = c[0] * t276;
        // complex block of 2
        const V t279 = t261 - t268;
        // spectrum block of 16
        const V t280 = c[0] * t279;
        const V t281 = c[1] * t279;
        // complex block of 2
        const V t282 = t260 - t269;
        // spectrum block of 16
        const V t283 = c[0] * t282;
        const V t284 = c[1] * t282;
        // complex block of 2
        const V t285 = t261 + t268;
        // spectrum block of 16
        const V t286 = c[1] * t285;
        const V t287 = c[0] * t285;
        const V t288 = t280 - t277;
        // spectrum block of 2
        const V t289 = t18 + t22;
        // spectrum block of 2
        const V t290 = t289 + t288;
        const V t291 = t289 - t288;
        // complex block of 2
        const V t292 = t54 + t84;
        // complex block of 2
        const V t293 = t237 + t247;
        // complex block of 2
        const V t294 = t292 + t293;
        const V t295 = t292 - t293;
        // spectrum block of 64
        const V t296 = c[7] * t294;
        const V t297 = c[8] * t294;
        const V t298 = c[9] * t295;
        const V t299 = c[10] * t295;
        // complex block of 2
        const V t300 = t58 + t85;
        // complex block of 2
        const V t301 = t242 + t252;
        // complex block of 2
        const V t302 = t300 + t301;
        const V t303 = t300 - t301;
        // spectrum block of 64
        const V t304 = c[8] * t302;
        const V t305 = c[7] * t302;
        const V t306 = c[10] * t303;
        const V t307 = c[9] * t303;
        // complex block of 2
        const V t308 = t134 + t150;
        const V t309 = t126 + t142;
        // spectrum block of 64
        const V t310 = t304 - t296;
        // spectrum block of 2
        const V t311 = t290 + t309;
        // spectrum block of 2
        const V t312 = t311 + t310;
        io.out(63, t312);
        const V t313 = t311 - t310;
        io.out(31, t313);
        // spectrum block of 64
        const V t314 = t297 + t305;
        // spectrum block of 2
        const V t315 = t290 - t309;
        // spectrum block of 2
        const V t316 = t315 - t314;
        io.out(47, t316);
        const V t317 = t315 + t314;
        io.out(15, t317);
        // spectrum block of 64
        const V t318 = t306 - t298;
        // spectrum block of 2
        const V t319 = t291 - t308;
        // spectrum block of 2
        const V t320 = t319 + t318;
        io.out(55, t320);
        const V t321 = t319 - t318;
        io.out(23, t321);
        // spectrum block of 64
        const V t322 = t299 + t307;
        // spectrum block of 2
        const V t323 = t291 + t308;
        // spectrum block of 2
        const V t324 = t323 - t322;
        io.out(39, t324);
        const V t325 = t323 + t322;
        io.out(7, t325);
        // spectrum block of 16
        const V t326 = t278 + t281;
        // spectrum block of 2
        const V t327 = t18 - t22;
        // spectrum block of 2
        const V t328 = t327 - t326;
        const V t329 = t327 + t326;
        // complex block of 2
        const V t330 = t54 - t84;
        // complex block of 2
        const V t331 = t242 - t252;
        // complex block of 2
        const V t332 = t330 + t331;
        const V t333 = t330 - t331;
        // spectrum block of 64
        const V t334 = c[11] * t332;
        const V t335 = c[12] * t332;
        const V t336 = c[13] * t333;
        const V t337 = c[14] * t333;
        // complex block of 2
        const V t338 = t58 - t85;
        // complex block of 2
        const V t339 = t237 - t247;
        // complex block of 2
        const V t340 = t338 - t339;
        const V t341 = t338 + t339;
        // spectrum block of 64
        const V t342 = c[12] * t340;
        const V t343 = c[11] * t340;
        const V t344 = c[14] * t341;
        const V t345 = c[13] * t341;
        // complex block of 2
        const V t346 = t134 - t150;
        // mirrored skew block of 8
        const V t347 = c[2] * t346;
        // complex block of 2
        const V t348 = t126 - t142;
        // mirrored skew block of 8
        const V t349 = c[2] * t348;
        const V t350 = t349 + t347;
        const V t351 = t347 - t349;
        // spectrum block of 64
        const V t352 = t342 - t334;
        // spectrum block of 2
        const V t353 = t328 - t351;
        // spectrum block of 2
        const V t354 = t353 + t352;
        io.out(59, t354);
        const V t355 = t353 - t352;
        io.out(27, t355);
        // spectrum block of 64
        const V t356 = t335 + t343;
        // spectrum block of 2
        const V t357 = t328 + t351;
        // spectrum block of 2
        const V t358 = t357 - t356;
        io.out(43, t358);
        const V t359 = t357 + t356;
        io.out(11, t359);
        // spectrum block of 64
        const V t360 = t344 - t336;
        // spectrum block of 2
        const V t361 = t329 - t350;
        // spectrum block of 2
        const V t362 = t361 + t360;
        io.out(51, t362);
        const V t363 = t361 - t360;
        io.out(19, t363);
        // spectrum block of 64
        const V t364 = t337 + t345;
        // spectrum block of 2
        const V t365 = t329 + t350;
        // spectrum block of 2
        const V t366 = t365 - t364;
        io.out(35, t366);
        const V t367 = t365 + t364;
        io.out(3, t367);
        // spectrum block of 16
        const V t368 = c[2] * t274;
        // spectrum block of 2
        const V t369 = t17 - t368;
        const V t370 = t17 + t368;
        // complex block of 2
        const V t371 = t226 - t233;
        // complex block of 2
        const V t372 = t75 - t371;
        const V t373 = t75 + t371;
        // spectrum block of 64
        const V t374 = c[6] * t372;
        const V t375 = c[5] * t372;
        const V t376 = c[3] * t373;
        const V t377 = c[4] * t373;
        // complex block of 2
        const V t378 = t227 + t232;
        // complex block of 2
        const V t379 = t71 + t378;
        const V t380 = t71 - t378;
        // spectrum block of 64
        const V t381 = c[5] * t379;
        const V t382 = c[6] * t379;
        const V t383 = c[4] * t380;
        const V t384 = c[3] * t380;
        // mirrored skew block of 8
        const V t385 = c[0] * t161;
        const V t386 = c[1] * t165;
        const V t387 = t386 - t385;
        const V t388 = c[0] * t165;
        const V t389 = c[1] * t161;
        const V t390 = t389 + t388;
        // spectrum block of 64
        const V t391 = t374 - t381;
        // spectrum block of 2
        const V t392 = t369 + t387;
        // spectrum block of 2
        const V t393 = t392 + t391;
        io.out(58, t393);
        const V t394 = t392 - t391;
        io.out(26, t394);
        // spectrum block of 64
        const V t395 = t382 + t375;
        // spectrum block of 2
        const V t396 = t369 - t387;
        // spectrum block of 2
        const V t397 = t396 - t395;
        io.out(42, t397);
        const V t398 = t396 + t395;
        io.out(10, t398);
        // spectrum block of 64
        const V t399 = t376 - t383;
        // spectrum block of 2
        const V t400 = t370 - t390;
        // spectrum block of 2
        const V t401 = t400 + t399;
        io.out(50, t401);
        const V t402 = t400 - t399;
        io.out(18, t402);
        // spectrum block of 64
        const V t403 = t384 + t377;
        // spectrum block of 2
        const V t404 = t370 + t390;
        // spectrum block of 2
        const V t405 = t404 - t403;
        io.out(34, t405);
        const V t406 = t404 + t403;
        io.out(2, t406);
        // spectrum block of 16
        const V t407 = c[2] * t275;
        // spectrum block of 2
        const V t408 = t16 - t407;
        const V t409 = t16 + t407;
        // complex block of 2
        const V t410 = t226 + t233;
        // complex block of 2
        const V t411 = t70 + t410;
        const V t412 = t70 - t410;
        // spectrum block of 64
        const V t413 = c[3] * t411;
        const V t414 = c[4] * t411;
        const V t415 = c[6] * t412;
        const V t416 = c[5] * t412;
        // complex block of 2
        const V t417 = t227 - t232;
        // complex block of 2
        const V t418 = t74 + t417;
        const V t419 = t74 - t417;
        // spectrum block of 64
        const V t420 = c[4] * t418;
        const V t421 = c[3] * t418;
        const V t422 = c[5] * t419;
        const V t423 = c[6] * t419;
        // mirrored skew block of 8
        const V t424 = c[1] * t160;
        const V t425 = c[0] * t164;
        const V t426 = t425 - t424;
        const V t427 = c[1] * t164;
        const V t428 = c[0] * t160;
        const V t429 = t428 + t427;
        // spectrum block of 64
        const V t430 = t420 - t413;
        // spectrum block of 2
        const V t431 = t408 + t426;
        // spectrum block of 2
        const V t432 = t431 + t430;
        io.out(62, t432);
        const V t433 = t431 - t430;
        io.out(30, t433);
        // spectrum block of 64
        const V t434 = t414 + t421;
        // spectrum block of 2
        const V t435 = t408 - t426;
        // spectrum block of 2
        const V t436 = t435 - t434;
        io.out(46, t436);
        const V t437 = t435 + t434;
        io.out(14, t437);
        // spectrum block of 64
        const V t438 = t422 - t415;
        // spectrum block of 2
        const V t439 = t409 - t429;
        // spectrum block of 2
        const V t440 = t439 + t438;
        io.out(54, t440);
        const V t441 = t439 - t438;
        io.out(22, t441);
        // spectrum block of 64
        const V t442 = t416 + t423;
        // spectrum block of 2
        const V t443 = t409 + t429;
        // spectrum block of 2
        const V t444 = t443 - t442;
        io.out(38, t444);
        const V t445 = t443 + t442;
        io.out(6, t445);
        // spectrum block of 16
        const V t446 = t286 - t283;
        // spectrum block of 2
        const V t447 = t19 - t23;
        // spectrum block of 2
        const V t448 = t447 + t446;
        const V t449 = t447 - t446;
        // spectrum block of 16
        const V t450 = t284 + t287;
        // spectrum block of 2
        const V t451 = t19 + t23;
        // spectrum block of 2
        const V t452 = t451 - t450;
        const V t453 = t451 + t450;
        // complex block of 8
        const V t454 = t238 + t243;
        const V t455 = t253 - t248;
        // complex block of 2
        const V t456 = t454 + t455;
        const V t457 = t454 - t455;
        // complex block of 2
        const V t458 = t55 + t87;
        const V t459 = t59 + t86;
        // complex block of 2
        const V t460 = t458 + t456;
        const V t461 = t458 - t456;
        // complex block of 2
        const V t462 = t459 - t457;
        const V t463 = t459 + t457;
        // complex block of 8
        const V t464 = t243 - t238;
        const V t465 = t248 + t253;
        // complex block of 2
        const V t466 = t464 - t465;
        const V t467 = t464 + t465;
        // complex block of 2
        const V t468 = t59 - t86;
        const V t469 = t55 - t87;
        // complex block of 2
        const V t470 = t468 + t466;
        const V t471 = t468 - t466;
        // complex block of 2
        const V t472 = t469 + t467;
        const V t473 = t469 - t467;
        // complex block of 2
        const V t474 = t135 + t143;
        // mirrored skew block of 8
        const V t475 = c[1] * t474;
        const V t476 = c[0] * t474;
        // complex block of 2
        const V t477 = t127 - t151;
        // mirrored skew block of 8
        const V t478 = c[0] * t477;
        const V t479 = c[1] * t477;
        const V t480 = t478 - t475;
        const V t481 = t476 + t479;
        // complex block of 2
        const V t482 = t135 - t143;
        // mirrored skew block of 8
        const V t483 = c[0] * t482;
        const V t484 = c[1] * t482;
        // complex block of 2
        const V t485 = t127 + t151;
        // mirrored skew block of 8
        const V t486 = c[1] * t485;
        const V t487 = c[0] * t485;
        const V t488 = t486 - t483;
        const V t489 = t484 + t487;
        // spectrum block of 64
        const V t490 = c[14] * t460;
        const V t491 = c[13] * t470;
        const V t492 = t491 - t490;
        // spectrum block of 2
        const V t493 = t448 + t480;
        // spectrum block of 2
        const V t494 = t493 + t492;
        io.out(61, t494);
        const V t495 = t493 - t492;
        io.out(29, t495);
        // spectrum block of 64
        const V t496 = c[14] * t470;
        const V t497 = c[13] * t460;
        const V t498 = t497 + t496;
        // spectrum block of 2
        const V t499 = t448 - t480;
        // spectrum block of 2
        const V t500 = t499 - t498;
        io.out(45, t500);
        const V t501 = t499 + t498;
        io.out(13, t501);
        // spectrum block of 64
        const V t502 = c[10] * t472;
        const V t503 = c[9] * t462;
        const V t504 = t503 - t502;
        // spectrum block of 2
        const V t505 = t452 + t488;
        // spectrum block of 2
        const V t506 = t505 + t504;
        io.out(57, t506);
        const V t507 = t505 - t504;
        io.out(25, t507);
        // spectrum block of 64
        const V t508 = c[10] * t462;
        const V t509 = c[9] * t472;
        const V t510 = t509 + t508;
        // spectrum block of 2
        const V t511 = t452 - t488;
        // spectrum block of 2
        const V t512 = t511 - t510;
        io.out(41, t512);
        const V t513 = t511 + t510;
        io.out(9, t513);
        // spectrum block of 64
        const V t514 = c[12] * t461;
        const V t515 = c[11] * t471;
        const V t516 = t515 - t514;
        // spectrum block of 2
        const V t517 = t449 - t481;
        // spectrum block of 2
        const V t518 = t517 + t516;
        io.out(53, t518);
        const V t519 = t517 - t516;
        io.out(21, t519);
        // spectrum block of 64
        const V t520 = c[12] * t471;
        const V t521 = c[11] * t461;
        const V t522 = t521 + t520;
        // spectrum block of 2
        const V t523 = t449 + t481;
        // spectrum block of 2
        const V t524 = t523 - t522;
        io.out(37, t524);
        const V t525 = t523 + t522;
        io.out(5, t525);
        // spectrum block of 64
        const V t526 = c[8] * t473;
        const V t527 = c[7] * t463;
        const V t528 = t527 - t526;
        // spectrum block of 2
        const V t529 = t453 - t489;
        // spectrum block of 2
        const V t530 = t529 + t528;
        io.out(49, t530);
        const V t531 = t529 - t528;
        io.out(17, t531);
        // spectrum block of 64
        const V t532 = c[8] * t463;
        const V t533 = c[7] * t473;
        const V t534 = t533 + t532;
        // spectrum block of 2
        const V t535 = t453 + t489;
        // spectrum block of 2
        const V t536 = t535 - t534;
        io.out(33, t536);
        const V t537 = t535 + t534;
        io.out(1, t537);
        // spectrum block of 2
        const V t538 = t12 + t271;
        // complex block of 2
        const V t539 = t155 + t156;
        // spectrum block of 2
        const V t540 = t538 + t539;
        const V t541 = t538 - t539;
        // complex block of 2
        const V t542 = t62 + t216;
        const V t543 = t66 + t220;
        // spectrum block of 2
        const V t544 = t540 + t543;
        io.out(0, t544);
        const V t545 = t540 - t543;
        io.out(32, t545);
        // spectrum block of 2
        const V t546 = t541 - t542;
        io.out(48, t546);
        const V t547 = t541 + t542;
        io.out(16, t547);
        // spectrum block of 2
        const V t548 = t12 - t271;
        // complex block of 2
        const V t549 = t152 + t153;
        // spectrum block of 2
        const V t550 = t548 - t549;
        const V t551 = t548 + t549;
        // complex block of 2
        const V t552 = t62 - t216;
        const V t553 = t66 - t220;
        // spectrum block of 64
        const V t554 = t553 + t552;
        const V t555 = t552 - t553;
        const V t556 = c[2] * t554;
        // spectrum block of 2
        const V t557 = t551 - t556;
        io.out(40, t557);
        const V t558 = t551 + t556;
        io.out(8, t558);
        // spectrum block of 64
        const V t559 = c[2] * t555;
        // spectrum block of 2
        const V t560 = t550 - t559;
        io.out(56, t560);
        const V t561 = t550 + t559;
        io.out(24, t561);
        // spectrum block of 2
        const V t562 = t13 - t270;
        const V t563 = t13 + t270;
        // complex block of 2
        const V t564 = t63 + t221;
        // spectrum block of 64
        const V t565 = c[1] * t564;
        const V t566 = c[0] * t564;
        // complex block of 2
        const V t567 = t67 - t217;
        // spectrum block of 64
        const V t568 = c[0] * t567;
        const V t569 = c[1] * t567;
        // complex block of 2
        const V t570 = t63 - t221;
        // spectrum block of 64
        const V t571 = c[0] * t570;
        const V t572 = c[1] * t570;
        // complex block of 2
        const V t573 = t67 + t217;
        // spectrum block of 64
        const V t574 = c[1] * t573;
        const V t575 = c[0] * t573;
        // mirrored skew block of 8
        const V t576 = c[2] * t157;
        const V t577 = c[2] * t154;
        const V t578 = t576 + t577;
        const V t579 = t577 - t576;
        // spectrum block of 64
        const V t580 = t568 - t565;
        // spectrum block of 2
        const V t581 = t562 - t579;
        // spectrum block of 2
        const V t582 = t581 + t580;
        io.out(60, t582);
        const V t583 = t581 - t580;
        io.out(28, t583);
        // spectrum block of 64
        const V t584 = t566 + t569;
        // spectrum block of 2
        const V t585 = t562 + t579;
        // spectrum block of 2
        const V t586 = t585 - t584;
        io.out(44, t586);
        const V t587 = t585 + t584;
        io.out(12, t587);
        // spectrum block of 64
        const V t588 = t574 - t571;
        // spectrum block of 2
        const V t589 = t563 - t578;
        // spectrum block of 2
        const V t590 = t589 + t588;
        io.out(52, t590);
        const V t591 = t589 - t588;
        io.out(20, t591);
        // spectrum block of 64
        const V t592 = t572 + t575;
        // spectrum block of 2
        const V t593 = t563 + t578;
        // spectrum block of 2
        const V t594 = t593 - t592;
        io.out(36, t594);
        const V t595 = t593 + t592;
        io.out(4, t595);
    }
};

}  // namespace zulg
