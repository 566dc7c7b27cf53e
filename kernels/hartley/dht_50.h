// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 50.
// Hartley transform of 50 points, form F.
// 219 additions, 183 subtractions, 224 multiplications (274 with `scale`); 16 constants; 57 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<50> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5358267949789967,  // c[4]: cos 2 pi 21/25
        0.8443279255020151,  // c[5]: -sin 2 pi 21/25
        0.42577929156507266,  // c[6]: -cos 2 pi 17/25
        0.9048270524660196,  // c[7]: -sin 2 pi 17/25
        0.06279051952931337,  // c[8]: cos 2 pi 19/25
        0.9980267284282716,  // c[9]: -sin 2 pi 19/25
        0.9921147013144779,  // c[10]: -cos 2 pi 13/25
        0.12533323356430426,  // c[11]: -sin 2 pi 13/25
        0.8763066800438636,  // c[12]: cos 2 pi 23/25
        0.48175367410171527,  // c[13]: -sin 2 pi 23/25
        0.6374239897486897,  // c[14]: -cos 2 pi 9/25
        0.7705132427757893,  // c[15]: sin 2 pi 9/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 5, multiplier 3
        const V x10 = io.in(10);
        const V x40 = io.in(40);
        const V t0 = x10 + x40;
        const V t1 = x10 - x40;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t0;
        const V x30 = io.in(30);
        const V x20 = io.in(20);
        const V t4 = x30 + x20;
        const V t5 = x30 - x20;
        const V t6 = c[0] * t4;
        const V t7 = t0 + t4;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        const V t9 = x0 - t2;
        const V t10 = c[1] * t4;
        const V t11 = t9 + t10;
        const V t12 = c[2] * t1;
        const V t13 = c[3] * t5;
        const V t14 = t12 + t13;
        const V t15 = t3 - t6;
        const V t16 = t15 + x0;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t5;
        const V t19 = t18 - t17;
        // real block of 5, multiplier 3
        const V x11 = io.in(11);
        const V x1 = io.in(1);
        const V t20 = x11 + x1;
        const V t21 = x11 - x1;
        const V x41 = io.in(41);
        const V x21 = io.in(21);
        const V t22 = x41 + x21;
        const V t23 = x41 - x21;
        const V t24 = t22 + t20;
        const V t25 = c[0] * t22;
        const V x31 = io.in(31);
        const V t26 = x31 - t25;
        const V t27 = c[1] * t20;
        const V t28 = c[2] * t23;
        const V t29 = c[3] * t21;
        const V t30 = c[1] * t22;
        const V t31 = c[0] * t20;
        const V t32 = t30 - t31;
        const V t33 = c[3] * t23;
        const V t34 = c[2] * t21;
        // real block of 5, multiplier 3
        const V x9 = io.in(9);
        const V x49 = io.in(49);
        const V t35 = x9 + x49;
        const V t36 = x9 - x49;
        const V x39 = io.in(39);
        const V x19 = io.in(19);
        const V t37 = x39 + x19;
        const V t38 = x39 - x19;
        const V t39 = t37 + t35;
        const V t40 = c[0] * t37;
        const V x29 = io.in(29);
        const V t41 = x29 - t40;
        const V t42 = c[1] * t35;
        const V t43 = c[2] * t38;
        const V t44 = c[3] * t36;
        const V t45 = c[1] * t37;
        const V t46 = c[0] * t35;
        const V t47 = t45 - t46;
        const V t48 = c[3] * t38;
        const V t49 = c[2] * t36;
        const V t50 = t39 + x29;
        // real block of 5, multiplier 3
        const V t51 = t24 + x31;
        // real block of 5, multiplier 3
        const V t52 = t51 + t50;
        const V t53 = t51 - t50;
        // real block of 5, multiplier 3
        const V t54 = t41 + t42;
        // real block of 25, multiplier 23
        const V t55 = c[4] * t54;
        const V t56 = c[5] * t54;
        // real block of 5, multiplier 3
        const V t57 = t43 + t44;
        // real block of 25, multiplier 23
        const V t58 = c[5] * t57;
        const V t59 = c[4] * t57;
        const V t60 = t55 - t58;
        const V t61 = t59 + t56;
        // real block of 5, multiplier 3
        const V t62 = t47 + x29;
        // real block of 25, multiplier 23
        const V t63 = c[6] * t62;
        const V t64 = c[7] * t62;
        // real block of 5, multiplier 3
        const V t65 = t49 - t48;
        // real block of 25, multiplier 23
        const V t66 = c[7] * t65;
        const V t67 = c[6] * t65;
        const V t68 = t63 + t66;
        const V t69 = t64 - t67;
        // real block of 5, multiplier 3
        const V t70 = t26 + t27;
        // real block of 25, multiplier 23
        const V t71 = c[8] * t70;
        const V t72 = c[9] * t70;
        // real block of 5, multiplier 3
        const V t73 = t28 + t29;
        // real block of 25, multiplier 23
        const V t74 = c[9] * t73;
        const V t75 = c[8] * t73;
        const V t76 = t71 - t74;
        const V t77 = t75 + t72;
        // real block of 5, multiplier 3
        const V t78 = t32 + x31;
        // real block of 25, multiplier 23
        const V t79 = c[10] * t78;
        const V t80 = c[11] * t78;
        // real block of 5, multiplier 3
        const V t81 = t34 - t33;
        // real block of 25, multiplier 23
        const V t82 = c[11] * t81;
        const V t83 = c[10] * t81;
        const V t84 = t79 + t82;
        const V t85 = t80 - t83;
        // real block of 5, multiplier 3
        const V x12 = io.in(12);
        const V x42 = io.in(42);
        const V t86 = x12 + x42;
        const V t87 = x12 - x42;
        const V x32 = io.in(32);
        const V x22 = io.in(22);
        const V t88 = x32 + x22;
        const V t89 = x32 - x22;
        const V t90 = t86 + t88;
        const V t91 = c[0] * t86;
        const V x2 = io.in(2);
        const V t92 = x2 - t91;
        const V t93 = c[1] * t88;
        const V t94 = c[2] * t87;
        const V t95 = c[3] * t89;
        const V t96 = c[1] * t86;
        const V t97 = c[0] * t88;
        const V t98 = t96 - t97;
        const V t99 = c[3] * t87;
        const V t100 = c[2] * t89;
        // real block of 5, multiplier 3
        const V x18 = io.in(18);
        const V x48 = io.in(48);
        const V t101 = x18 + x48;
        const V t102 = x18 - x48;
        const V x38 = io.in(38);
        const V x28 = io.in(28);
        const V t103 = x38 + x28;
        const V t104 = x38 - x28;
        const V t105 = t101 + t103;
        const V t106 = c[0] * t101;
        const V x8 = io.in(8);
        const V t107 = x8 - t106;
        const V t108 = c[1] * t103;
        const V t109 = c[2] * t102;
        const V t110 = c[3] * t104;
        const V t111 = c[1] * t101;
        const V t112 = c[0] * t103;
        const V t113 = t111 - t112;
        const V t114 = c[3] * t102;
        const V t115 = c[2] * t104;
        // real block of 5, multiplier 3
        const V t116 = t90 + x2;
        // real block of 5, multiplier 3
        const V t117 = t105 + x8;
        // real block of 5, multiplier 3
        const V t118 = t116 + t117;
        const V t119 = t116 - t117;
        // real block of 5, multiplier 3
        const V t120 = t92 + t93;
        // real block of 25, multiplier 23
        const V t121 = c[12] * t120;
        const V t122 = c[13] * t120;
        // real block of 5, multiplier 3
        const V t123 = t94 + t95;
        // real block of 25, multiplier 23
        const V t124 = c[13] * t123;
        const V t125 = c[12] * t123;
        const V t126 = t121 - t124;
        const V t127 = t125 + t122;
        // real block of 5, multiplier 3
        const V t128 = t98 + x2;
        // real block of 25, multiplier 23
        const V t129 = c[4] * t128;
        const V t130 = c[5] * t128;
        // real block of 5, multiplier 3
        const V t131 = t100 - t99;
        // real block of 25, multiplier 23
        const V t132 = c[5] * t131;
        const V t133 = c[4] * t131;
        const V t134 = t129 - t132;
        const V t135 = t133 + t130;
        // real block of 5, multiplier 3
        const V t136 = t107 + t108;
        // real block of 25, multiplier 23
        const V t137 = c[6] * t136;
        const V t138 = c[7] * t136;
        // real block of 5, multiplier 3
        const V t139 = t109 + t110;
        // real block of 25, multiplier 23
        const V t140 = c[7] * t139;
        const V t141 = c[6] * t139;
        const V t142 = t137 + t140;
        const V t143 = t138 - t141;
        // real block of 5, multiplier 3
        const V t144 = t113 + x8;
        // real block of 25, multiplier 23
        const V t145 = c[14] * t144;
        const V t146 = c[15] * t144;
        // real block of 5, multiplier 3
        const V t147 = t115 - t114;
        // real block of 25, multiplier 23
        const V t148 = c[15] * t147;
        const V t149 = c[14] * t147;
        const V t150 = t148 - t145;
        const V t151 = t149 + t146;
        // real block of 5, multiplier 3
        const V x13 = io.in(13);
        const V x3 = io.in(3);
        const V t152 = x13 + x3;
        const V t153 = x13 - x3;
        const V x43 = io.in(43);
        const V x23 = io.in(23);
        const V t154 = x43 + x23;
        const V t155 = x43 - x23;
        const V t156 = t154 + t152;
        const V t157 = c[0] * t154;
        const V x33 = io.in(33);
        const V t158 = x33 - t157;
        const V t159 = c[1] * t152;
        const V t160 = c[2] * t155;
        const V t161 = c[3] * t153;
        const V t162 = c[1] * t154;
        const V t163 = c[0] * t152;
        const V t164 = t162 - t163;
        const V t165 = c[3] * t155;
        const V t166 = c[2] * t153;
        // real block of 5, multiplier 3
        const V x7 = io.in(7);
        const V x47 = io.in(47);
        const V t167 = x7 + x47;
        const V t168 = x7 - x47;
        const V x37 = io.in(37);
        const V x17 = io.in(17);
        const V t169 = x37 + x17;
        const V t170 = x37 - x17;
        const V t171 = t169 + t167;
        const V t172 = c[0] * t169;
        const V x27 = io.in(27);
        const V t173 = x27 - t172;
        const V t174 = c[1] * t167;
        const V t175 = c[2] * t170;
        const V t176 = c[3] * t168;
        const V t177 = c[1] * t169;
        const V t178 = c[0] * t167;
        const V t179 = t177 - t178;
        const V t180 = c[3] * t170;
        const V t181 = c[2] * t168;
        const V t182 = t171 + x27;
        // real block of 5, multiplier 3
        const V t183 = t156 + x33;
        // real block of 5, multiplier 3
        const V t184 = t182 + t183;
        const V t185 = t182 - t183;
        // real block of 5, multiplier 3
        const V t186 = t173 + t174;
        // real block of 25, multiplier 23
        const V t187 = c[12] * t186;
        const V t188 = c[13] * t186;
        // real block of 5, multiplier 3
        const V t189 = t175 + t176;
        // real block of 25, multiplier 23
        const V t190 = c[13] * t189;
        const V t191 = c[12] * t189;
        const V t192 = t187 - t190;
        const V t193 = t191 + t188;
        // real block of 5, multiplier 3
        const V t194 = t179 + x27;
        // real block of 25, multiplier 23
        const V t195 = c[4] * t194;
        const V t196 = c[5] * t194;
        // real block of 5, multiplier 3
        const V t197 = t181 - t180;
        // real block of 25, multiplier 23
        const V t198 = c[5] * t197;
        const V t199 = c[4] * t197;
        const V t200 = t195 - t198;
        const V t201 = t199 + t196;
        // real block of 5, multiplier 3
        const V t202 = t158 + t159;
        // real block of 25, multiplier 23
        const V t203 = c[6] * t202;
        const V t204 = c[7] * t202;
        // real block of 5, multiplier 3
        const V t205 = t160 + t161;
        // real block of 25, multiplier 23
        const V t206 = c[7] * t205;
        const V t207 = c[6] * t205;
        const V t208 = t203 + t206;
        const V t209 = t204 - t207;
        // real block of 5, multiplier 3
        const V t210 = t164 + x33;
        // real block of 25, multiplier 23
        const V t211 = c[14] * t210;
        const V t212 = c[15] * t210;
        // real block of 5, multiplier 3
        const V t213 = t166 - t165;
        // real block of 25, multiplier 23
        const V t214 = c[15] * t213;
        const V t215 = c[14] * t213;
        const V t216 = t214 - t211;
        const V t217 = t215 + t212;
        // real block of 5, multiplier 3
        const V x14 = io.in(14);
        const V x44 = io.in(44);
        const V t218 = x14 + x44;
        const V t219 = x14 - x44;
        const V x34 = io.in(34);
        const V x24 = io.in(24);
        const V t220 = x34 + x24;
        const V t221 = x34 - x24;
        const V t222 = t218 + t220;
        const V t223 = c[0] * t218;
        const V x4 = io.in(4);
        const V t224 = x4 - t223;
        const V t225 = c[1] * t220;
        const V t226 = c[2] * t219;
        const V t227 = c[3] * t221;
        const V t228 = c[1] * t218;
        const V t229 = c[0] * t220;
        const V t230 = t228 - t229;
        const V t231 = c[3] * t219;
        const V t232 = c[2] * t221;
        // real block of 5, multiplier 3
        const V x16 = io.in(16);
        const V x46 = io.in(46);
        const V t233 = x16 + x46;
        const V t234 = x16 - x46;
        const V x36 = io.in(36);
        const V x26 = io.in(26);
        const V t235 = x36 + x26;
        const V t236 = x36 - x26;
        const V t237 = t233 + t235;
        const V t238 = c[0] * t233;
        const V x6 = io.in(6);
        const V t239 = x6 - t238;
        const V t240 = c[1] * t235;
        const V t241 = c[2] * t234;
        const V t242 = c[3] * t236;
        const V t243 = c[1] * t233;
        const V t244 = c[0] * t235;
        const V t245 = t243 - t244;
        const V t246 = c[3] * t234;
        const V t247 = c[2] * t236;
        // real block of 5, multiplier 3
        const V t248 = t222 + x4;
        // real block of 5, multiplier 3
        const V t249 = t237 + x6;
        // real block of 5, multiplier 3
        const V t250 = t249 + t248;
        const V t251 = t249 - t248;
        // real block of 5, multiplier 3
        const V t252 = t224 + t225;
        // real block of 25, multiplier 23
        const V t253 = c[4] * t252;
        const V t254 = c[5] * t252;
        // real block of 5, multiplier 3
        const V t255 = t226 + t227;
        // real block of 25, multiplier 23
        const V t256 = c[5] * t255;
        const V t257 = c[4] * t255;
        const V t258 = t253 - t256;
        const V t259 = t257 + t254;
        // real block of 5, multiplier 3
        const V t260 = t230 + x4;
        // real block of 25, multiplier 23
        const V t261 = c[6] * t260;
        const V t262 = c[7] * t260;
        // real block of 5, multiplier 3
        const V t263 = t232 - t231;
        // real block of 25, multiplier 23
        const V t264 = c[7] * t263;
        const V t265 = c[6] * t263;
        const V t266 = t261 + t264;
        const V t267 = t262 - t265;
        // real block of 5, multiplier 3
        const V t268 = t239 + t240;
        // real block of 25, multiplier 23
        const V t269 = c[8] * t268;
        const V t270 = c[9] * t268;
        // real block of 5, multiplier 3
        const V t271 = t241 + t242;
        // real block of 25, multiplier 23
        const V t272 = c[9] * t271;
        const V t273 = c[8] * t271;
        const V t274 = t269 - t272;
        const V t275 = t273 + t270;
        // real block of 5, multiplier 3
        const V t276 = t245 + x6;
        // real block of 25, multiplier 23
        const V t277 = c[10] * t276;
        const V t278 = c[11] * t276;
        // real block of 5, multiplier 3
        const V t279 = t247 - t246;
        // real block of 25, multiplier 23
        const V t280 = c[11] * t279;
        const V t281 = c[10] * t279;
        const V t282 = t277 + t280;
        const V t283 = t278 - t281;
        // real block of 5, multiplier 3
        const V x5 = io.in(5);
        const V x45 = io.in(45);
        const V t284 = x5 + x45;
        const V t285 = x5 - x45;
        const V t286 = c[0] * t284;
        const V x35 = io.in(35);
        const V x15 = io.in(15);
        const V t287 = x35 + x15;
        const V t288 = x35 - x15;
        const V t289 = c[0] * t287;
        const V t290 = c[1] * t287;
        const V t291 = t287 + t284;
        const V x25 = io.in(25);
        const V t292 = t291 + x25;
        const V t293 = x25 - t289;
        const V t294 = c[1] * t284;
        const V t295 = t293 + t294;
        const V t296 = c[2] * t288;
        const V t297 = c[3] * t285;
        const V t298 = t296 + t297;
        const V t299 = t290 - t286;
        const V t300 = t299 + x25;
        const V t301 = c[3] * t288;
        const V t302 = c[2] * t285;
        const V t303 = t302 - t301;
        // real block of 5, multiplier 3
        const V t304 = t118 + t250;
        const V t305 = t304 + t8;
        // real block of 5, multiplier 3
        const V t306 = t184 + t52;
        const V t307 = t306 + t292;
        // real block of 2
        const V t308 = t305 + t307;
        io.out(0, t308);
        const V t309 = t305 - t307;
        io.out(25, t309);
        // real block of 5, multiplier 3
        const V t310 = c[0] * t118;
        const V t311 = t8 - t310;
        const V t312 = c[1] * t250;
        const V t313 = t311 + t312;
        const V t314 = c[2] * t119;
        const V t315 = c[3] * t251;
        const V t316 = t314 + t315;
        // real block of 5, multiplier 3
        const V t317 = c[0] * t184;
        const V t318 = t292 - t317;
        const V t319 = c[1] * t52;
        const V t320 = t318 + t319;
        const V t321 = c[2] * t185;
        const V t322 = c[3] * t53;
        const V t323 = t321 + t322;
        // complex block of 2
        const V t324 = t313 + t320;
        const V t325 = t316 + t323;
        // output stage
        const V t326 = t324 + t325;
        io.out(10, t326);
        const V t327 = t324 - t325;
        io.out(40, t327);
        // complex block of 2
        const V t328 = t313 - t320;
        const V t329 = t316 - t323;
        // output stage
        const V t330 = t328 - t329;
        io.out(15, t330);
        const V t331 = t328 + t329;
        io.out(35, t331);
        // real block of 5, multiplier 3
        const V t332 = c[1] * t118;
        const V t333 = c[0] * t250;
        const V t334 = t332 - t333;
        const V t335 = t334 + t8;
        const V t336 = c[3] * t119;
        const V t337 = c[2] * t251;
        const V t338 = t337 - t336;
        // real block of 5, multiplier 3
        const V t339 = c[1] * t184;
        const V t340 = c[0] * t52;
        const V t341 = t339 - t340;
        const V t342 = t341 + t292;
        const V t343 = c[3] * t185;
        const V t344 = c[2] * t53;
        const V t345 = t344 - t343;
        // complex block of 2
        const V t346 = t335 + t342;
        const V t347 = t338 + t345;
        // output stage
        const V t348 = t346 + t347;
        io.out(20, t348);
        const V t349 = t346 - t347;
        io.out(30, t349);
        // complex block of 2
        const V t350 = t335 - t342;
        const V t351 = t338 - t345;
        // output stage
        const V t352 = t350 - t351;
        io.out(5, t352);
        const V t353 = t350 + t351;
        io.out(45, t353);
        // complex block of 5, multiplier 3
        const V t354 = t126 - t142;
        const V t355 = t274 + t258;
        const V t356 = t354 + t355;
        const V t357 = c[1] * t354;
        const V t358 = c[0] * t355;
        const V t359 = c[0] * t354;
        const V t360 = c[1] * t355;
        const V t361 = t356 + t11;
        const V t362 = t357 - t358;
        const V t363 = t362 + t11;
        const V t364 = t11 - t359;
        const V t365 = t364 + t360;
        const V t366 = t127 + t143;
        const V t367 = t275 + t259;
        const V t368 = t366 + t367;
        const V t369 = c[1] * t366;
        const V t370 = c[0] * t367;
        const V t371 = c[0] * t366;
        const V t372 = c[1] * t367;
        const V t373 = t368 + t14;
        const V t374 = t369 - t370;
        const V t375 = t374 + t14;
        const V t376 = t14 - t371;
        const V t377 = t376 + t372;
        const V t378 = t126 + t142;
        const V t379 = c[3] * t378;
        const V t380 = c[2] * t378;
        const V t381 = t274 - t258;
        const V t382 = c[2] * t381;
        const V t383 = c[3] * t381;
        const V t384 = t379 - t382;
        const V t385 = t380 + t383;
        const V t386 = t127 - t143;
        const V t387 = c[3] * t386;
        const V t388 = c[2] * t386;
        const V t389 = t275 - t259;
        const V t390 = c[2] * t389;
        const V t391 = c[3] * t389;
        const V t392 = t387 - t390;
        const V t393 = t388 + t391;
        // complex block of 5, multiplier 3
        const V t394 = t192 - t208;
        const V t395 = t76 + t60;
        const V t396 = t394 + t395;
        const V t397 = c[1] * t394;
        const V t398 = c[0] * t395;
        const V t399 = c[0] * t394;
        const V t400 = c[1] * t395;
        const V t401 = t396 + t295;
        const V t402 = t397 - t398;
        const V t403 = t402 + t295;
        const V t404 = t295 - t399;
        const V t405 = t404 + t400;
        const V t406 = t193 + t209;
        const V t407 = t77 + t61;
        const V t408 = t406 + t407;
        const V t409 = c[1] * t406;
        const V t410 = c[0] * t407;
        const V t411 = c[0] * t406;
        const V t412 = c[1] * t407;
        const V t413 = t408 + t298;
        const V t414 = t409 - t410;
        const V t415 = t414 + t298;
        const V t416 = t298 - t411;
        const V t417 = t416 + t412;
        const V t418 = t192 + t208;
        const V t419 = c[3] * t418;
        const V t420 = c[2] * t418;
        const V t421 = t76 - t60;
        const V t422 = c[2] * t421;
        const V t423 = c[3] * t421;
        const V t424 = t419 - t422;
        const V t425 = t420 + t423;
        const V t426 = t193 - t209;
        const V t427 = c[3] * t426;
        const V t428 = c[2] * t426;
        const V t429 = t77 - t61;
        const V t430 = c[2] * t429;
        const V t431 = c[3] * t429;
        const V t432 = t427 - t430;
        const V t433 = t428 + t431;
        // complex block of 5, multiplier 3
        const V t434 = t363 + t392;
        // complex block of 5, multiplier 3
        const V t435 = t403 + t432;
        // complex block of 2
        const V t436 = t434 + t435;
        const V t437 = t434 - t435;
        // complex block of 5, multiplier 3
        const V t438 = t375 - t384;
        // complex block of 5, multiplier 3
        const V t439 = t415 - t424;
        // complex block of 2
        const V t440 = t438 + t439;
        const V t441 = t438 - t439;
        // output stage
        const V t442 = t437 - t441;
        io.out(3, t442);
        const V t443 = t437 + t441;
        io.out(47, t443);
        const V t444 = t436 + t440;
        io.out(22, t444);
        const V t445 = t436 - t440;
        io.out(28, t445);
        // complex block of 5, multiplier 3
        const V t446 = t363 - t392;
        // complex block of 5, multiplier 3
        const V t447 = t403 - t432;
        // complex block of 2
        const V t448 = t446 + t447;
        const V t449 = t446 - t447;
        // complex block of 5, multiplier 3
        const V t450 = t375 + t384;
        // complex block of 5, multiplier 3
        const V t451 = t415 + t424;
        // complex block of 2
        const V t452 = t450 + t451;
        const V t453 = t451 - t450;
        // output stage
        const V t454 = t449 - t453;
        io.out(7, t454);
        const V t455 = t449 + t453;
        io.out(43, t455);
        const V t456 = t448 - t452;
        io.out(18, t456);
        const V t457 = t448 + t452;
        io.out(32, t457);
        // complex block of 5, multiplier 3
        const V t458 = t365 + t393;
        // complex block of 5, multiplier 3
        const V t459 = t405 + t433;
        // complex block of 2
        const V t460 = t458 + t459;
        const V t461 = t458 - t459;
        // complex block of 5, multiplier 3
        const V t462 = t377 - t385;
        // complex block of 5, multiplier 3
        const V t463 = t417 - t425;
        // complex block of 2
        const V t464 = t462 + t463;
        const V t465 = t463 - t462;
        // output stage
        const V t466 = t460 - t464;
        io.out(8, t466);
        const V t467 = t460 + t464;
        io.out(42, t467);
        const V t468 = t461 - t465;
        io.out(17, t468);
        const V t469 = t461 + t465;
        io.out(33, t469);
        // complex block of 5, multiplier 3
        const V t470 = t365 - t393;
        // complex block of 5, multiplier 3
        const V t471 = t405 - t433;
        // complex block of 2
        const V t472 = t470 + t471;
        const V t473 = t470 - t471;
        // complex block of 5, multiplier 3
        const V t474 = t377 + t385;
        // complex block of 5, multiplier 3
        const V t475 = t417 + t425;
        // complex block of 2
        const V t476 = t474 + t475;
        const V t477 = t474 - t475;
        // output stage
        const V t478 = t472 + t476;
        io.out(12, t478);
        const V t479 = t472 - t476;
        io.out(38, t479);
        const V t480 = t473 - t477;
        io.out(13, t480);
        const V t481 = t473 + t477;
        io.out(37, t481);
        // complex block of 2
        const V t482 = t361 + t401;
        const V t483 = t373 + t413;
        // output stage
        const V t484 = t482 + t483;
        io.out(2, t484);
        const V t485 = t482 - t483;
        io.out(48, t485);
        // complex block of 2
        const V t486 = t361 - t401;
        const V t487 = t373 - t413;
        // output stage
        const V t488 = t486 - t487;
        io.out(23, t488);
        const V t489 = t486 + t487;
        io.out(27, t489);
        // complex block of 5, multiplier 3
        const V t490 = t134 + t150;
        const V t491 = t282 + t266;
        const V t492 = t490 - t491;
        const V t493 = c[1] * t490;
        const V t494 = c[0] * t491;
        const V t495 = c[0] * t490;
        const V t496 = c[1] * t491;
        const V t497 = t492 + t16;
        const V t498 = t493 + t494;
        const V t499 = t498 + t16;
        const V t500 = t16 - t495;
        const V t501 = t500 - t496;
        const V t502 = t135 - t151;
        const V t503 = t283 + t267;
        const V t504 = t502 + t503;
        const V t505 = c[1] * t502;
        const V t506 = c[0] * t503;
        const V t507 = c[0] * t502;
        const V t508 = c[1] * t503;
        const V t509 = t504 + t19;
        const V t510 = t505 - t506;
        const V t511 = t510 + t19;
        const V t512 = t19 - t507;
        const V t513 = t512 + t508;
        const V t514 = t134 - t150;
        const V t515 = c[3] * t514;
        const V t516 = c[2] * t514;
        const V t517 = t266 - t282;
        const V t518 = c[2] * t517;
        const V t519 = c[3] * t517;
        const V t520 = t515 - t518;
        const V t521 = t516 + t519;
        const V t522 = t135 + t151;
        const V t523 = c[3] * t522;
        const V t524 = c[2] * t522;
        const V t525 = t283 - t267;
        const V t526 = c[2] * t525;
        const V t527 = c[3] * t525;
        const V t528 = t523 - t526;
        const V t529 = t524 + t527;
        // complex block of 5, multiplier 3
        const V t530 = t200 + t216;
        const V t531 = t84 + t68;
        const V t532 = t530 - t531;
        const V t533 = c[1] * t530;
        const V t534 = c[0] * t531;
        const V t535 = c[0] * t530;
        const V t536 = c[1] * t531;
        const V t537 = t532 + t300;
        const V t538 = t533 + t534;
        const V t539 = t538 + t300;
        const V t540 = t300 - t535;
        const V t541 = t540 - t536;
        const V t542 = t201 - t217;
        const V t543 = t85 + t69;
        const V t544 = t542 + t543;
        const V t545 = c[1] * t542;
        const V t546 = c[0] * t543;
        const V t547 = c[0] * t542;
        const V t548 = c[1] * t543;
        const V t549 = t544 + t303;
        const V t550 = t545 - t546;
        const V t551 = t550 + t303;
        const V t552 = t303 - t547;
        const V t553 = t552 + t548;
        const V t554 = t200 - t216;
        const V t555 = c[3] * t554;
        const V t556 = c[2] * t554;
        const V t557 = t68 - t84;
        const V t558 = c[2] * t557;
        const V t559 = c[3] * t557;
        const V t560 = t555 - t558;
        const V t561 = t556 + t559;
        const V t562 = t201 + t217;
        const V t563 = c[3] * t562;
        const V t564 = c[2] * t562;
        const V t565 = t85 - t69;
        const V t566 = c[2] * t565;
        const V t567 = c[3] * t565;
        const V t568 = t563 - t566;
        const V t569 = t564 + t567;
        // complex block of 5, multiplier 3
        const V t570 = t499 + t528;
        // complex block of 5, multiplier 3
        const V t571 = t539 + t568;
        // complex block of 2
        const V t572 = t570 + t571;
        const V t573 = t570 - t571;
        // complex block of 5, multiplier 3
        const V t574 = t511 - t520;
        // complex block of 5, multiplier 3
        const V t575 = t551 - t560;
        // complex block of 2
        const V t576 = t574 + t575;
        const V t577 = t574 - t575;
        // output stage
        const V t578 = t573 - t577;
        io.out(1, t578);
        const V t579 = t573 + t577;
        io.out(49, t579);
        const V t580 = t572 + t576;
        io.out(24, t580);
        const V t581 = t572 - t576;
        io.out(26, t581);
        // complex block of 5, multiplier 3
        const V t582 = t499 - t528;
        // complex block of 5, multiplier 3
        const V t583 = t539 - t568;
        // complex block of 2
        const V t584 = t582 + t583;
        const V t585 = t582 - t583;
        // complex block of 5, multiplier 3
        const V t586 = t511 + t520;
        // complex block of 5, multiplier 3
        const V t587 = t551 + t560;
        // complex block of 2
        const V t588 = t586 + t587;
        const V t589 = t587 - t586;
        // output stage
        const V t590 = t585 - t589;
        io.out(9, t590);
        const V t591 = t585 + t589;
        io.out(41, t591);
        const V t592 = t584 - t588;
        io.out(16, t592);
        const V t593 = t584 + t588;
        io.out(34, t593);
        // complex block of 5, multiplier 3
        const V t594 = t501 + t529;
        // complex block of 5, multiplier 3
        const V t595 = t541 + t569;
        // complex block of 2
        const V t596 = t594 + t595;
        const V t597 = t594 - t595;
        // complex block of 5, multiplier 3
        const V t598 = t513 - t521;
        // complex block of 5, multiplier 3
        const V t599 = t553 - t561;
        // complex block of 2
        const V t600 = t598 + t599;
        const V t601 = t599 - t598;
        // output stage
        const V t602 = t596 - t600;
        io.out(6, t602);
        const V t603 = t596 + t600;
        io.out(44, t603);
        const V t604 = t597 - t601;
        io.out(19, t604);
        const V t605 = t597 + t601;
        io.out(31, t605);
        // complex block of 5, multiplier 3
        const V t606 = t501 - t529;
        // complex block of 5, multiplier 3
        const V t607 = t541 - t569;
        // complex block of 2
        const V t608 = t606 + t607;
        const V t609 = t606 - t607;
        // complex block of 5, multiplier 3
        const V t610 = t513 + t521;
        // complex block of 5, multiplier 3
        const V t611 = t553 + t561;
        // complex block of 2
        const V t612 = t610 + t611;
        const V t613 = t610 - t611;
        // output stage
        const V t614 = t609 - t613;
        io.out(11, t614);
        const V t615 = t609 + t613;
        io.out(39, t615);
        const V t616 = t608 + t612;
        io.out(14, t616);
        const V t617 = t608 - t612;
        io.out(36, t617);
        // complex block of 2
        const V t618 = t497 + t537;
        const V t619 = t509 + t549;
        // output stage
        const V t620 = t618 + t619;
        io.out(4, t620);
        const V t621 = t618 - t619;
        io.out(46, t621);
        // complex block of 2
        const V t622 = t497 - t537;
        const V t623 = t509 - t549;
        // output stage
        const V t624 = t622 - t623;
        io.out(21, t624);
        const V t625 = t622 + t623;
        io.out(29, t625);
    }
};

}  // namespace zulg
