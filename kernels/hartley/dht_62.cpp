// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 62.
// Hartley transform of 62 points, form I.
// 395 additions, 359 subtractions, 388 multiplications (450 with `scale`); 36 constants; 69 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct HartleyGraph<62> {
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double c0 = 0.5;  // -cos 2 pi 2/3
    static constexpr double c1 = 0.8660254037844386;  // -sin 2 pi 2/3
    static constexpr double c2 = 0.8090169943749475;  // -cos 2 pi 3/5
    static constexpr double c3 = 0.30901699437494745;  // cos 2 pi 9/5
    static constexpr double c4 = 0.5877852522924731;  // -sin 2 pi 3/5
    static constexpr double c5 = 0.9510565162951535;  // -sin 2 pi 9/5
    static constexpr double c6 = 0.03333333333333333;  // 1/30
    static constexpr double c7 = 0.15196895108646355;  // P[1] of 31
    static constexpr double c8 = 0.3386491040641593;  // -Q[1] of 31
    static constexpr double c9 = 0.21884316352804659;  // Q[2] of 31
    static constexpr double c10 = 0.29980901846811486;  // -P[2] of 31
    static constexpr double c11 = 0.37067181273221134;  // P[3] of 31
    static constexpr double c12 = 0.019498333867134416;  // -Q[3] of 31
    static constexpr double c13 = 0.05839901633481273;  // Q[4] of 31
    static constexpr double c14 = 0.3665614991633792;  // P[4] of 31
    static constexpr double c15 = 0.26685240283098827;  // -P[5] of 31
    static constexpr double c16 = 0.2580069240952765;  // -Q[5] of 31
    static constexpr double c17 = 0.2226025627892778;  // Q[6] of 31
    static constexpr double c18 = 0.2970284107916672;  // P[6] of 31
    static constexpr double c19 = 0.24280988331200667;  // P[7] of 31
    static constexpr double c20 = 0.28075102554360776;  // -Q[7] of 31
    static constexpr double c21 = 0.1073724670043011;  // -Q[8] of 31
    static constexpr double c22 = 0.35531525594489755;  // P[8] of 31
    static constexpr double c23 = 0.37108682864596165;  // -P[9] of 31
    static constexpr double c24 = 0.008505491359144196;  // -Q[9] of 31
    static constexpr double c25 = 0.1449304326594425;  // Q[10] of 31
    static constexpr double c26 = 0.3417205692768941;  // P[10] of 31
    static constexpr double c27 = 0.06530829340975558;  // -P[11] of 31
    static constexpr double c28 = 0.36539376648991023;  // Q[11] of 31
    static constexpr double c29 = 0.10130252550848418;  // Q[12] of 31
    static constexpr double c30 = 0.35709323166839874;  // -P[12] of 31
    static constexpr double c31 = 0.1674782402040115;  // P[13] of 31
    static constexpr double c32 = 0.3312534027537607;  // Q[13] of 31
    static constexpr double c33 = 0.27566627690567064;  // Q[14] of 31
    static constexpr double c34 = 0.2485676599132395;  // P[14] of 31
    static constexpr double c35 = 0.1855921454276674;  // -beta of 31

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // input stage
        const V x1 = io.in(1);
        const V x61 = io.in(61);
        const V t0 = x1 + x61;
        const V t1 = x1 - x61;
        const V x2 = io.in(2);
        const V x60 = io.in(60);
        const V t2 = x2 + x60;
        const V t3 = x2 - x60;
        const V x3 = io.in(3);
        const V x59 = io.in(59);
        const V t4 = x3 + x59;
        const V t5 = x3 - x59;
        const V x4 = io.in(4);
        const V x58 = io.in(58);
        const V t6 = x4 + x58;
        const V t7 = x4 - x58;
        const V x5 = io.in(5);
        const V x57 = io.in(57);
        const V t8 = x5 + x57;
        const V t9 = x5 - x57;
        const V x6 = io.in(6);
        const V x56 = io.in(56);
        const V t10 = x6 + x56;
        const V t11 = x6 - x56;
        const V x7 = io.in(7);
        const V x55 = io.in(55);
        const V t12 = x7 + x55;
        const V t13 = x7 - x55;
        const V x8 = io.in(8);
        const V x54 = io.in(54);
        const V t14 = x8 + x54;
        const V t15 = x8 - x54;
        const V x9 = io.in(9);
        const V x53 = io.in(53);
        const V t16 = x9 + x53;
        const V t17 = x9 - x53;
        const V x10 = io.in(10);
        const V x52 = io.in(52);
        const V t18 = x10 + x52;
        const V t19 = x10 - x52;
        const V x11 = io.in(11);
        const V x51 = io.in(51);
        const V t20 = x11 + x51;
        const V t21 = x11 - x51;
        const V x12 = io.in(12);
        const V x50 = io.in(50);
        const V t22 = x12 + x50;
        const V t23 = x12 - x50;
        const V x13 = io.in(13);
        const V x49 = io.in(49);
        const V t24 = x13 + x49;
        const V t25 = x13 - x49;
        const V x14 = io.in(14);
        const V x48 = io.in(48);
        const V t26 = x14 + x48;
        const V t27 = x14 - x48;
        const V x15 = io.in(15);
        const V x47 = io.in(47);
        const V t28 = x15 + x47;
        const V t29 = x15 - x47;
        const V x16 = io.in(16);
        const V x46 = io.in(46);
        const V t30 = x16 + x46;
        const V t31 = x16 - x46;
        const V x17 = io.in(17);
        const V x45 = io.in(45);
        const V t32 = x17 + x45;
        const V t33 = x17 - x45;
        const V x18 = io.in(18);
        const V x44 = io.in(44);
        const V t34 = x18 + x44;
        const V t35 = x18 - x44;
        const V x19 = io.in(19);
        const V x43 = io.in(43);
        const V t36 = x19 + x43;
        const V t37 = x19 - x43;
        const V x20 = io.in(20);
        const V x42 = io.in(42);
        const V t38 = x20 + x42;
        const V t39 = x20 - x42;
        const V x21 = io.in(21);
        const V x41 = io.in(41);
        const V t40 = x21 + x41;
        const V t41 = x21 - x41;
        const V x22 = io.in(22);
        const V x40 = io.in(40);
        const V t42 = x22 + x40;
        const V t43 = x22 - x40;
        const V x23 = io.in(23);
        const V x39 = io.in(39);
        const V t44 = x23 + x39;
        const V t45 = x23 - x39;
        const V x24 = io.in(24);
        const V x38 = io.in(38);
        const V t46 = x24 + x38;
        const V t47 = x24 - x38;
        const V x25 = io.in(25);
        const V x37 = io.in(37);
        const V t48 = x25 + x37;
        const V t49 = x25 - x37;
        const V x26 = io.in(26);
        const V x36 = io.in(36);
        const V t50 = x26 + x36;
        const V t51 = x26 - x36;
        const V x27 = io.in(27);
        const V x35 = io.in(35);
        const V t52 = x27 + x35;
        const V t53 = x27 - x35;
        const V x28 = io.in(28);
        const V x34 = io.in(34);
        const V t54 = x28 + x34;
        const V t55 = x28 - x34;
        const V x29 = io.in(29);
        const V x33 = io.in(33);
        const V t56 = x29 + x33;
        const V t57 = x29 - x33;
        const V x30 = io.in(30);
        const V x32 = io.in(32);
        const V t58 = x30 + x32;
        const V t59 = x30 - x32;
        // real block of 3, multiplier 2
        const V t60 = t18 + t22;
        const V t61 = t18 - t22;
        const V t62 = t60 + t2;
        const V t63 = c0 * t60;
        const V t64 = t2 - t63;
        const V t65 = c1 * t61;
        // real block of 3, multiplier 2
        const V t66 = t42 + t26;
        const V t67 = t42 - t26;
        const V t68 = t66 + t14;
        const V t69 = c0 * t66;
        const V t70 = t14 - t69;
        const V t71 = c1 * t67;
        // real block of 3, multiplier 2
        const V t72 = t50 + t10;
        const V t73 = t50 - t10;
        const V t74 = t72 + t58;
        const V t75 = c0 * t72;
        const V t76 = t58 - t75;
        const V t77 = c1 * t73;
        // real block of 3, multiplier 2
        const V t78 = t38 + t46;
        const V t79 = t38 - t46;
        const V t80 = t78 + t6;
        const V t81 = c0 * t78;
        const V t82 = t6 - t81;
        const V t83 = c1 * t79;
        // real block of 3, multiplier 2
        const V t84 = t34 + t54;
        const V t85 = t34 - t54;
        const V t86 = t84 + t30;
        const V t87 = c0 * t84;
        const V t88 = t30 - t87;
        const V t89 = c1 * t85;
        // real block of 5, multiplier 3
        const V t90 = t68 + t86;
        const V t91 = t68 - t86;
        const V t92 = t80 + t74;
        const V t93 = t80 - t74;
        const V t94 = t90 + t92;
        const V t95 = t94 + t62;
        const V t96 = c2 * t90;
        const V t97 = t62 - t96;
        const V t98 = c3 * t92;
        const V t99 = t97 + t98;
        const V t100 = c4 * t91;
        const V t101 = c5 * t93;
        const V t102 = t100 + t101;
        const V t103 = c3 * t90;
        const V t104 = c2 * t92;
        const V t105 = t103 - t104;
        const V t106 = t105 + t62;
        const V t107 = c5 * t91;
        const V t108 = c4 * t93;
        const V t109 = t108 - t107;
        // complex block of 5, multiplier 3
        const V t110 = t70 + t88;
        const V t111 = t71 + t89;
        const V t112 = t70 - t88;
        const V t113 = t71 - t89;
        const V t114 = t82 + t76;
        const V t115 = t83 + t77;
        const V t116 = t82 - t76;
        const V t117 = t83 - t77;
        const V t118 = t110 + t114;
        const V t119 = t111 + t115;
        const V t120 = t118 + t64;
        const V t121 = t119 + t65;
        const V t122 = c3 * t110;
        const V t123 = c2 * t114;
        const V t124 = t122 - t123;
        const V t125 = t124 + t64;
        const V t126 = c3 * t111;
        const V t127 = c2 * t115;
        const V t128 = t126 - t127;
        const V t129 = t128 + t65;
        const V t130 = c5 * t112;
        const V t131 = c4 * t116;
        const V t132 = t130 - t131;
        const V t133 = c5 * t113;
        const V t134 = c4 * t117;
        const V t135 = t133 - t134;
        const V t136 = t125 + t135;
        const V t137 = t129 - t132;
        const V t138 = t125 - t135;
        const V t139 = t129 + t132;
        const V t140 = c2 * t110;
        const V t141 = t64 - t140;
        const V t142 = c3 * t114;
        const V t143 = t141 + t142;
        const V t144 = c2 * t111;
        const V t145 = t65 - t144;
        const V t146 = c3 * t115;
        const V t147 = t145 + t146;
        const V t148 = c4 * t112;
        const V t149 = c5 * t116;
        const V t150 = t148 + t149;
        const V t151 = c4 * t113;
        const V t152 = c5 * t117;
        const V t153 = t151 + t152;
        const V t154 = t143 + t153;
        const V t155 = t147 - t150;
        const V t156 = t143 - t153;
        const V t157 = t147 + t150;
        // real block of 3, multiplier 2
        const V t158 = t19 - t23;
        const V t159 = t19 + t23;
        const V t160 = t158 + t3;
        const V t161 = c0 * t158;
        const V t162 = t3 - t161;
        const V t163 = c1 * t159;
        // real block of 3, multiplier 2
        const V t164 = t27 - t43;
        const V t165 = t43 + t27;
        const V t166 = t164 + t15;
        const V t167 = c0 * t164;
        const V t168 = t15 - t167;
        const V t169 = c1 * t165;
        // real block of 3, multiplier 2
        const V t170 = t51 + t11;
        const V t171 = t11 - t51;
        const V t172 = t170 + t59;
        const V t173 = c0 * t170;
        const V t174 = t173 - t59;
        const V t175 = c1 * t171;
        // real block of 3, multiplier 2
        const V t176 = t39 - t47;
        const V t177 = t39 + t47;
        const V t178 = t176 + t7;
        const V t179 = c0 * t176;
        const V t180 = t7 - t179;
        const V t181 = c1 * t177;
        // real block of 3, multiplier 2
        const V t182 = t35 + t55;
        const V t183 = t35 - t55;
        const V t184 = t182 + t31;
        const V t185 = c0 * t182;
        const V t186 = t31 - t185;
        const V t187 = c1 * t183;
        // real block of 5, multiplier 3
        const V t188 = t166 + t184;
        const V t189 = t166 - t184;
        const V t190 = t178 - t172;
        const V t191 = t178 + t172;
        const V t192 = t188 + t190;
        const V t193 = t192 + t160;
        const V t194 = c2 * t188;
        const V t195 = t160 - t194;
        const V t196 = c3 * t190;
        const V t197 = t195 + t196;
        const V t198 = c4 * t189;
        const V t199 = c5 * t191;
        const V t200 = t198 + t199;
        const V t201 = c3 * t188;
        const V t202 = c2 * t190;
        const V t203 = t201 - t202;
        const V t204 = t203 + t160;
        const V t205 = c5 * t189;
        const V t206 = c4 * t191;
        const V t207 = t206 - t205;
        // complex block of 5, multiplier 3
        const V t208 = t168 + t186;
        const V t209 = t187 - t169;
        const V t210 = t168 - t186;
        const V t211 = t169 + t187;
        const V t212 = t180 + t174;
        const V t213 = t181 + t175;
        const V t214 = t180 - t174;
        const V t215 = t181 - t175;
        const V t216 = t208 + t212;
        const V t217 = t209 + t213;
        const V t218 = t216 + t162;
        const V t219 = t217 + t163;
        const V t220 = c3 * t208;
        const V t221 = c2 * t212;
        const V t222 = t220 - t221;
        const V t223 = t222 + t162;
        const V t224 = c3 * t209;
        const V t225 = c2 * t213;
        const V t226 = t224 - t225;
        const V t227 = t226 + t163;
        const V t228 = c5 * t210;
        const V t229 = c4 * t214;
        const V t230 = t228 - t229;
        const V t231 = c5 * t211;
        const V t232 = c4 * t215;
        const V t233 = t231 + t232;
        const V t234 = t223 - t233;
        const V t235 = t227 - t230;
        const V t236 = t223 + t233;
        const V t237 = t227 + t230;
        const V t238 = c2 * t208;
        const V t239 = t162 - t238;
        const V t240 = c3 * t212;
        const V t241 = t239 + t240;
        const V t242 = c2 * t209;
        const V t243 = t163 - t242;
        const V t244 = c3 * t213;
        const V t245 = t243 + t244;
        const V t246 = c4 * t210;
        const V t247 = c5 * t214;
        const V t248 = t246 + t247;
        const V t249 = c4 * t211;
        const V t250 = c5 * t215;
        const V t251 = t250 - t249;
        const V t252 = t241 + t251;
        const V t253 = t245 - t248;
        const V t254 = t241 - t251;
        const V t255 = t245 + t248;
        // spectrum block of 31, multiplier 2
        const V t256 = c6 * t95;
        const V x0 = io.in(0);
        const V t257 = x0 - t256;
        const V t258 = c7 * t255;
        const V t259 = c8 * t254;
        const V t260 = t259 + t258;
        const V t261 = c7 * t254;
        const V t262 = c8 * t255;
        const V t263 = t261 - t262;
        const V t264 = c9 * t139;
        const V t265 = c10 * t138;
        const V t266 = t264 - t265;
        const V t267 = c9 * t138;
        const V t268 = c10 * t139;
        const V t269 = t268 + t267;
        const V t270 = c11 * t207;
        const V t271 = c12 * t204;
        const V t272 = t270 - t271;
        const V t273 = c11 * t204;
        const V t274 = c12 * t207;
        const V t275 = t274 + t273;
        const V t276 = c13 * t155;
        const V t277 = c14 * t154;
        const V t278 = t277 - t276;
        const V t279 = c13 * t154;
        const V t280 = c14 * t155;
        const V t281 = t280 + t279;
        const V t282 = c15 * t219;
        const V t283 = c16 * t218;
        const V t284 = t283 + t282;
        const V t285 = c15 * t218;
        const V t286 = c16 * t219;
        const V t287 = t286 - t285;
        const V t288 = c17 * t102;
        const V t289 = c18 * t99;
        const V t290 = t289 - t288;
        const V t291 = c17 * t99;
        const V t292 = c18 * t102;
        const V t293 = t292 + t291;
        const V t294 = c19 * t235;
        const V t295 = c20 * t234;
        const V t296 = t295 + t294;
        const V t297 = c19 * t234;
        const V t298 = c20 * t235;
        const V t299 = t297 - t298;
        const V t300 = c21 * t137;
        const V t301 = c22 * t136;
        const V t302 = t301 - t300;
        const V t303 = c21 * t136;
        const V t304 = c22 * t137;
        const V t305 = t304 + t303;
        const V t306 = c23 * t200;
        const V t307 = c24 * t197;
        const V t308 = t307 + t306;
        const V t309 = c23 * t197;
        const V t310 = c24 * t200;
        const V t311 = t310 - t309;
        const V t312 = c25 * t121;
        const V t313 = c26 * t120;
        const V t314 = t313 - t312;
        const V t315 = c25 * t120;
        const V t316 = c26 * t121;
        const V t317 = t316 + t315;
        const V t318 = c27 * t253;
        const V t319 = c28 * t252;
        const V t320 = t319 - t318;
        const V t321 = c27 * t252;
        const V t322 = c28 * t253;
        const V t323 = t322 + t321;
        const V t324 = c29 * t109;
        const V t325 = c30 * t106;
        const V t326 = t325 + t324;
        const V t327 = c29 * t106;
        const V t328 = c30 * t109;
        const V t329 = t327 - t328;
        const V t330 = c31 * t237;
        const V t331 = c32 * t236;
        const V t332 = t331 - t330;
        const V t333 = c31 * t236;
        const V t334 = c32 * t237;
        const V t335 = t334 + t333;
        const V t336 = c33 * t157;
        const V t337 = c34 * t156;
        const V t338 = t337 + t336;
        const V t339 = c33 * t156;
        const V t340 = c34 * t157;
        const V t341 = t339 - t340;
        const V t342 = c35 * t193;
        // spectrum block of 2
        const V t343 = t257 - t342;
        const V t344 = t257 + t342;
        // complex block of 2
        const V t345 = t269 - t335;
        const V t346 = t266 + t332;
        const V t347 = t269 + t335;
        const V t348 = t266 - t332;
        // complex block of 2
        const V t349 = t281 + t323;
        const V t350 = t278 + t320;
        const V t351 = t281 - t323;
        const V t352 = t278 - t320;
        // complex block of 2
        const V t353 = t293 - t311;
        const V t354 = t290 - t308;
        const V t355 = t293 + t311;
        const V t356 = t290 + t308;
        // complex block of 2
        const V t357 = t305 + t299;
        const V t358 = t302 - t296;
        const V t359 = t299 - t305;
        const V t360 = t302 + t296;
        // complex block of 2
        const V t361 = t317 - t287;
        const V t362 = t314 - t284;
        const V t363 = t317 + t287;
        const V t364 = t314 + t284;
        // complex block of 2
        const V t365 = t329 - t275;
        const V t366 = t272 - t326;
        const V t367 = t329 + t275;
        const V t368 = t326 + t272;
        // complex block of 2
        const V t369 = t341 - t263;
        const V t370 = t338 - t260;
        const V t371 = t341 + t263;
        const V t372 = t338 + t260;
        // spectrum block of 3
        const V t373 = t362 + t343;
        const V t374 = c0 * t362;
        const V t375 = t343 - t374;
        const V t376 = c1 * t361;
        const V t377 = t375 - t376;
        const V t378 = t375 + t376;
        // complex block of 3
        const V t379 = t369 + t349;
        const V t380 = t370 + t350;
        const V t381 = t349 - t369;
        const V t382 = t370 - t350;
        const V t383 = t353 - t379;
        const V t384 = t380 + t354;
        const V t385 = c0 * t379;
        const V t386 = t385 + t353;
        const V t387 = c0 * t380;
        const V t388 = t354 - t387;
        const V t389 = c1 * t381;
        const V t390 = c1 * t382;
        const V t391 = t386 + t390;
        const V t392 = t388 - t389;
        const V t393 = t386 - t390;
        const V t394 = t388 + t389;
        // complex block of 3
        const V t395 = t357 + t345;
        const V t396 = t358 + t346;
        const V t397 = t357 - t345;
        const V t398 = t358 - t346;
        const V t399 = t395 + t365;
        const V t400 = t396 + t366;
        const V t401 = c0 * t395;
        const V t402 = t365 - t401;
        const V t403 = c0 * t396;
        const V t404 = t366 - t403;
        const V t405 = c1 * t397;
        const V t406 = c1 * t398;
        const V t407 = t402 + t406;
        const V t408 = t404 - t405;
        const V t409 = t402 - t406;
        const V t410 = t404 + t405;
        // spectrum block of 5
        const V t411 = t384 + t400;
        const V t412 = t411 + t373;
        const V t413 = c3 * t384;
        const V t414 = c2 * t400;
        const V t415 = t413 - t414;
        const V t416 = t415 + t373;
        const V t417 = c5 * t383;
        const V t418 = c4 * t399;
        const V t419 = t417 + t418;
        const V t420 = t416 - t419;
        const V t421 = t416 + t419;
        const V t422 = c2 * t384;
        const V t423 = t373 - t422;
        const V t424 = c3 * t400;
        const V t425 = t423 + t424;
        const V t426 = c4 * t383;
        const V t427 = c5 * t399;
        const V t428 = t426 - t427;
        const V t429 = t425 - t428;
        const V t430 = t425 + t428;
        // spectrum block of 5
        const V t431 = t392 + t408;
        const V t432 = t431 + t377;
        const V t433 = c3 * t392;
        const V t434 = c2 * t408;
        const V t435 = t433 - t434;
        const V t436 = t435 + t377;
        const V t437 = c5 * t391;
        const V t438 = c4 * t407;
        const V t439 = t437 + t438;
        const V t440 = t436 - t439;
        const V t441 = t436 + t439;
        const V t442 = c2 * t392;
        const V t443 = t377 - t442;
        const V t444 = c3 * t408;
        const V t445 = t443 + t444;
        const V t446 = c4 * t391;
        const V t447 = c5 * t407;
        const V t448 = t446 - t447;
        const V t449 = t445 - t448;
        const V t450 = t445 + t448;
        // spectrum block of 5
        const V t451 = t394 + t410;
        const V t452 = t451 + t378;
        const V t453 = c3 * t394;
        const V t454 = c2 * t410;
        const V t455 = t453 - t454;
        const V t456 = t455 + t378;
        const V t457 = c5 * t393;
        const V t458 = c4 * t409;
        const V t459 = t457 + t458;
        const V t460 = t456 - t459;
        const V t461 = t456 + t459;
        const V t462 = c2 * t394;
        const V t463 = t378 - t462;
        const V t464 = c3 * t410;
        const V t465 = t463 + t464;
        const V t466 = c4 * t393;
        const V t467 = c5 * t409;
        const V t468 = t466 - t467;
        const V t469 = t465 - t468;
        const V t470 = t465 + t468;
        // spectrum block of 3
        const V t471 = t364 + t344;
        const V t472 = c0 * t364;
        const V t473 = t344 - t472;
        const V t474 = c1 * t363;
        const V t475 = t473 - t474;
        const V t476 = t473 + t474;
        // complex block of 3
        const V t477 = t371 + t351;
        const V t478 = t372 + t352;
        const V t479 = t351 - t371;
        const V t480 = t372 - t352;
        const V t481 = t355 - t477;
        const V t482 = t478 + t356;
        const V t483 = c0 * t477;
        const V t484 = t483 + t355;
        const V t485 = c0 * t478;
        const V t486 = t356 - t485;
        const V t487 = c1 * t479;
        const V t488 = c1 * t480;
        const V t489 = t484 + t488;
        const V t490 = t486 - t487;
        const V t491 = t484 - t488;
        const V t492 = t486 + t487;
        // complex block of 3
        const V t493 = t347 - t359;
        const V t494 = t360 + t348;
        const V t495 = t359 + t347;
        const V t496 = t360 - t348;
        const V t497 = t493 + t367;
        const V t498 = t494 - t368;
        const V t499 = c0 * t493;
        const V t500 = t367 - t499;
        const V t501 = c0 * t494;
        const V t502 = t368 + t501;
        const V t503 = c1 * t495;
        const V t504 = c1 * t496;
        const V t505 = t500 + t504;
        const V t506 = t503 - t502;
        const V t507 = t500 - t504;
        const V t508 = t502 + t503;
        // spectrum block of 5
        const V t509 = t482 + t498;
        const V t510 = t509 + t471;
        const V t511 = c3 * t482;
        const V t512 = c2 * t498;
        const V t513 = t511 - t512;
        const V t514 = t513 + t471;
        const V t515 = c5 * t481;
        const V t516 = c4 * t497;
        const V t517 = t515 + t516;
        const V t518 = t514 - t517;
        const V t519 = t514 + t517;
        const V t520 = c2 * t482;
        const V t521 = t471 - t520;
        const V t522 = c3 * t498;
        const V t523 = t521 + t522;
        const V t524 = c4 * t481;
        const V t525 = c5 * t497;
        const V t526 = t524 - t525;
        const V t527 = t523 - t526;
        const V t528 = t523 + t526;
        // spectrum block of 5
        const V t529 = t490 + t506;
        const V t530 = t529 + t475;
        const V t531 = c3 * t490;
        const V t532 = c2 * t506;
        const V t533 = t531 - t532;
        const V t534 = t533 + t475;
        const V t535 = c5 * t489;
        const V t536 = c4 * t505;
        const V t537 = t535 + t536;
        const V t538 = t534 - t537;
        const V t539 = t534 + t537;
        const V t540 = c2 * t490;
        const V t541 = t475 - t540;
        const V t542 = c3 * t506;
        const V t543 = t541 + t542;
        const V t544 = c4 * t489;
        const V t545 = c5 * t505;
        const V t546 = t544 - t545;
        const V t547 = t543 - t546;
        const V t548 = t543 + t546;
        // spectrum block of 5
        const V t549 = t492 - t508;
        const V t550 = t549 + t476;
        const V t551 = c3 * t492;
        const V t552 = c2 * t508;
        const V t553 = t551 + t552;
        const V t554 = t553 + t476;
        const V t555 = c5 * t491;
        const V t556 = c4 * t507;
        const V t557 = t555 + t556;
        const V t558 = t554 - t557;
        const V t559 = t554 + t557;
        const V t560 = c2 * t492;
        const V t561 = t476 - t560;
        const V t562 = c3 * t508;
        const V t563 = t561 - t562;
        const V t564 = c4 * t491;
        const V t565 = c5 * t507;
        const V t566 = t564 - t565;
        const V t567 = t563 - t566;
        const V t568 = t563 + t566;
        // spectrum block of 31, multiplier 2
        const V t569 = x0 + t95;
        // real block of 3, multiplier 2
        const V t570 = t40 + t36;
        const V t571 = t40 - t36;
        const V t572 = t570 + t56;
        const V t573 = c0 * t570;
        const V t574 = t56 - t573;
        const V t575 = c1 * t571;
        // real block of 3, multiplier 2
        const V t576 = t16 + t32;
        const V t577 = t16 - t32;
        const V t578 = t576 + t44;
        const V t579 = c0 * t576;
        const V t580 = t44 - t579;
        const V t581 = c1 * t577;
        // real block of 3, multiplier 2
        const V t582 = t8 + t48;
        const V t583 = t8 - t48;
        const V t584 = t582 + t0;
        const V t585 = c0 * t582;
        const V t586 = t0 - t585;
        const V t587 = c1 * t583;
        // real block of 3, multiplier 2
        const V t588 = t20 + t12;
        const V t589 = t20 - t12;
        const V t590 = t588 + t52;
        const V t591 = c0 * t588;
        const V t592 = t52 - t591;
        const V t593 = c1 * t589;
        // real block of 3, multiplier 2
        const V t594 = t24 + t4;
        const V t595 = t24 - t4;
        const V t596 = t594 + t28;
        const V t597 = c0 * t594;
        const V t598 = t28 - t597;
        const V t599 = c1 * t595;
        // real block of 5, multiplier 3
        const V t600 = t578 + t596;
        const V t601 = t578 - t596;
        const V t602 = t590 + t584;
        const V t603 = t590 - t584;
        const V t604 = t600 + t602;
        const V t605 = t604 + t572;
        const V t606 = c2 * t600;
        const V t607 = t572 - t606;
        const V t608 = c3 * t602;
        const V t609 = t607 + t608;
        const V t610 = c4 * t601;
        const V t611 = c5 * t603;
        const V t612 = t610 + t611;
        const V t613 = c3 * t600;
        const V t614 = c2 * t602;
        const V t615 = t613 - t614;
        const V t616 = t615 + t572;
        const V t617 = c5 * t601;
        const V t618 = c4 * t603;
        const V t619 = t618 - t617;
        // complex block of 5, multiplier 3
        const V t620 = t580 + t598;
        const V t621 = t581 + t599;
        const V t622 = t580 - t598;
        const V t623 = t581 - t599;
        const V t624 = t592 + t586;
        const V t625 = t593 + t587;
        const V t626 = t592 - t586;
        const V t627 = t593 - t587;
        const V t628 = t620 + t624;
        const V t629 = t621 + t625;
        const V t630 = t628 + t574;
        const V t631 = t629 + t575;
        const V t632 = c3 * t620;
        const V t633 = c2 * t624;
        const V t634 = t632 - t633;
        const V t635 = t634 + t574;
        const V t636 = c3 * t621;
        const V t637 = c2 * t625;
        const V t638 = t636 - t637;
        const V t639 = t638 + t575;
        const V t640 = c5 * t622;
        const V t641 = c4 * t626;
        const V t642 = t640 - t641;
        const V t643 = c5 * t623;
        const V t644 = c4 * t627;
        const V t645 = t643 - t644;
        const V t646 = t635 + t645;
        const V t647 = t639 - t642;
        const V t648 = t635 - t645;
        const V t649 = t639 + t642;
        const V t650 = c2 * t620;
        const V t651 = t574 - t650;
        const V t652 = c3 * t624;
        const V t653 = t651 + t652;
        const V t654 = c2 * t621;
        const V t655 = t575 - t654;
        const V t656 = c3 * t625;
        const V t657 = t655 + t656;
        const V t658 = c4 * t622;
        const V t659 = c5 * t626;
        const V t660 = t658 + t659;
        const V t661 = c4 * t623;
        const V t662 = c5 * t627;
        const V t663 = t661 + t662;
        const V t664 = t653 + t663;
        const V t665 = t657 - t660;
        const V t666 = t653 - t663;
        const V t667 = t657 + t660;
        // real block of 3, multiplier 2
        const V t668 = t37 - t41;
        const V t669 = t41 + t37;
        const V t670 = t668 - t57;
        const V t671 = c0 * t668;
        const V t672 = t57 + t671;
        const V t673 = c1 * t669;
        // real block of 3, multiplier 2
        const V t674 = t17 - t33;
        const V t675 = t17 + t33;
        const V t676 = t674 - t45;
        const V t677 = c0 * t674;
        const V t678 = t45 + t677;
        const V t679 = c1 * t675;
        // real block of 3, multiplier 2
        const V t680 = t9 + t49;
        const V t681 = t9 - t49;
        const V t682 = t680 + t1;
        const V t683 = c0 * t680;
        const V t684 = t1 - t683;
        const V t685 = c1 * t681;
        // real block of 3, multiplier 2
        const V t686 = t13 - t21;
        const V t687 = t21 + t13;
        const V t688 = t686 - t53;
        const V t689 = c0 * t686;
        const V t690 = t53 + t689;
        const V t691 = c1 * t687;
        // real block of 3, multiplier 2
        const V t692 = t25 + t5;
        const V t693 = t5 - t25;
        const V t694 = t692 + t29;
        const V t695 = c0 * t692;
        const V t696 = t695 - t29;
        const V t697 = c1 * t693;
        // real block of 5, multiplier 3
        const V t698 = t676 - t694;
        const V t699 = t676 + t694;
        const V t700 = t688 + t682;
        const V t701 = t688 - t682;
        const V t702 = t698 + t700;
        const V t703 = t702 + t670;
        const V t704 = c2 * t698;
        const V t705 = t670 - t704;
        const V t706 = c3 * t700;
        const V t707 = t705 + t706;
        const V t708 = c4 * t699;
        const V t709 = c5 * t701;
        const V t710 = t708 + t709;
        const V t711 = c3 * t698;
        const V t712 = c2 * t700;
        const V t713 = t711 - t712;
        const V t714 = t713 + t670;
        const V t715 = c5 * t699;
        const V t716 = c4 * t701;
        const V t717 = t716 - t715;
        // complex block of 5, multiplier 3
        const V t718 = t696 - t678;
        const V t719 = t679 + t697;
        const V t720 = t678 + t696;
        const V t721 = t679 - t697;
        const V t722 = t684 - t690;
        const V t723 = t685 - t691;
        const V t724 = t690 + t684;
        const V t725 = t691 + t685;
        const V t726 = t718 + t722;
        const V t727 = t719 + t723;
        const V t728 = t726 - t672;
        const V t729 = t727 - t673;
        const V t730 = c3 * t718;
        const V t731 = c2 * t722;
        const V t732 = t730 - t731;
        const V t733 = t732 - t672;
        const V t734 = c3 * t719;
        const V t735 = c2 * t723;
        const V t736 = t734 - t735;
        const V t737 = t736 - t673;
        const V t738 = c5 * t720;
        const V t739 = c4 * t724;
        const V t740 = t739 - t738;
        const V t741 = c5 * t721;
        const V t742 = c4 * t725;
        const V t743 = t741 + t742;
        const V t744 = t733 + t743;
        const V t745 = t737 - t740;
        const V t746 = t733 - t743;
        const V t747 = t737 + t740;
        const V t748 = c2 * t718;
        const V t749 = t672 + t748;
        const V t750 = c3 * t722;
        const V t751 = t750 - t749;
        const V t752 = c2 * t719;
        const V t753 = t673 + t752;
        const V t754 = c3 * t723;
        const V t755 = t754 - t753;
        const V t756 = c4 * t720;
        const V t757 = c5 * t724;
        const V t758 = t756 + t757;
        const V t759 = c4 * t721;
        const V t760 = c5 * t725;
        const V t761 = t759 - t760;
        const V t762 = t751 + t761;
        const V t763 = t755 + t758;
        const V t764 = t751 - t761;
        const V t765 = t755 - t758;
        // spectrum block of 31, multiplier 2
        const V t766 = c6 * t605;
        const V x31 = io.in(31);
        const V t767 = x31 - t766;
        const V t768 = c7 * t765;
        const V t769 = c8 * t764;
        const V t770 = t769 + t768;
        const V t771 = c7 * t764;
        const V t772 = c8 * t765;
        const V t773 = t771 - t772;
        const V t774 = c9 * t649;
        const V t775 = c10 * t648;
        const V t776 = t774 - t775;
        const V t777 = c9 * t648;
        const V t778 = c10 * t649;
        const V t779 = t778 + t777;
        const V t780 = c11 * t717;
        const V t781 = c12 * t714;
        const V t782 = t780 - t781;
        const V t783 = c11 * t714;
        const V t784 = c12 * t717;
        const V t785 = t784 + t783;
        const V t786 = c13 * t665;
        const V t787 = c14 * t664;
        const V t788 = t787 - t786;
        const V t789 = c13 * t664;
        const V t790 = c14 * t665;
        const V t791 = t790 + t789;
        const V t792 = c15 * t729;
        const V t793 = c16 * t728;
        const V t794 = t793 + t792;
        const V t795 = c15 * t728;
        const V t796 = c16 * t729;
        const V t797 = t796 - t795;
        const V t798 = c17 * t612;
        const V t799 = c18 * t609;
        const V t800 = t799 - t798;
        const V t801 = c17 * t609;
        const V t802 = c18 * t612;
        const V t803 = t802 + t801;
        const V t804 = c19 * t745;
        const V t805 = c20 * t744;
        const V t806 = t805 + t804;
        const V t807 = c19 * t744;
        const V t808 = c20 * t745;
        const V t809 = t807 - t808;
        const V t810 = c21 * t647;
        const V t811 = c22 * t646;
        const V t812 = t811 - t810;
        const V t813 = c21 * t646;
        const V t814 = c22 * t647;
        const V t815 = t814 + t813;
        const V t816 = c23 * t710;
        const V t817 = c24 * t707;
        const V t818 = t817 + t816;
        const V t819 = c23 * t707;
        const V t820 = c24 * t710;
        const V t821 = t820 - t819;
        const V t822 = c25 * t631;
        const V t823 = c26 * t630;
        const V t824 = t823 - t822;
        const V t825 = c25 * t630;
        const V t826 = c26 * t631;
        const V t827 = t826 + t825;
        const V t828 = c27 * t763;
        const V t829 = c28 * t762;
        const V t830 = t829 - t828;
        const V t831 = c27 * t762;
        const V t832 = c28 * t763;
        const V t833 = t832 + t831;
        const V t834 = c29 * t619;
        const V t835 = c30 * t616;
        const V t836 = t835 + t834;
        const V t837 = c29 * t616;
        const V t838 = c30 * t619;
        const V t839 = t837 - t838;
        const V t840 = c31 * t747;
        const V t841 = c32 * t746;
        const V t842 = t841 - t840;
        const V t843 = c31 * t746;
        const V t844 = c32 * t747;
        const V t845 = t844 + t843;
        const V t846 = c33 * t667;
        const V t847 = c34 * t666;
        const V t848 = t847 + t846;
        const V t849 = c33 * t666;
        const V t850 = c34 * t667;
        const V t851 = t849 - t850;
        const V t852 = c35 * t703;
        // spectrum block of 2
        const V t853 = t767 - t852;
        const V t854 = t767 + t852;
        // complex block of 2
        const V t855 = t779 - t845;
        const V t856 = t776 + t842;
        const V t857 = t779 + t845;
        const V t858 = t776 - t842;
        // complex block of 2
        const V t859 = t791 + t833;
        const V t860 = t788 + t830;
        const V t861 = t791 - t833;
        const V t862 = t788 - t830;
        // complex block of 2
        const V t863 = t803 - t821;
        const V t864 = t800 - t818;
        const V t865 = t803 + t821;
        const V t866 = t800 + t818;
        // complex block of 2
        const V t867 = t815 + t809;
        const V t868 = t812 - t806;
        const V t869 = t809 - t815;
        const V t870 = t812 + t806;
        // complex block of 2
        const V t871 = t827 - t797;
        const V t872 = t824 - t794;
        const V t873 = t827 + t797;
        const V t874 = t824 + t794;
        // complex block of 2
        const V t875 = t839 - t785;
        const V t876 = t782 - t836;
        const V t877 = t839 + t785;
        const V t878 = t836 + t782;
        // complex block of 2
        const V t879 = t851 - t773;
        const V t880 = t848 - t770;
        const V t881 = t851 + t773;
        const V t882 = t848 + t770;
        // spectrum block of 3
        const V t883 = t872 + t853;
        const V t884 = c0 * t872;
        const V t885 = t853 - t884;
        const V t886 = c1 * t871;
        const V t887 = t885 - t886;
        const V t888 = t885 + t886;
        // complex block of 3
        const V t889 = t879 + t859;
        const V t890 = t880 + t860;
        const V t891 = t859 - t879;
        const V t892 = t880 - t860;
        const V t893 = t863 - t889;
        const V t894 = t890 + t864;
        const V t895 = c0 * t889;
        const V t896 = t895 + t863;
        const V t897 = c0 * t890;
        const V t898 = t864 - t897;
        const V t899 = c1 * t891;
        const V t900 = c1 * t892;
        const V t901 = t896 + t900;
        const V t902 = t898 - t899;
        const V t903 = t896 - t900;
        const V t904 = t898 + t899;
        // complex block of 3
        const V t905 = t867 + t855;
        const V t906 = t868 + t856;
        const V t907 = t867 - t855;
        const V t908 = t868 - t856;
        const V t909 = t905 + t875;
        const V t910 = t906 + t876;
        const V t911 = c0 * t905;
        const V t912 = t875 - t911;
        const V t913 = c0 * t906;
        const V t914 = t876 - t913;
        const V t915 = c1 * t907;
        const V t916 = c1 * t908;
        const V t917 = t912 + t916;
        const V t918 = t914 - t915;
        const V t919 = t912 - t916;
        const V t920 = t914 + t915;
        // spectrum block of 5
        const V t921 = t894 + t910;
        const V t922 = t921 + t883;
        const V t923 = c3 * t894;
        const V t924 = c2 * t910;
        const V t925 = t923 - t924;
        const V t926 = t925 + t883;
        const V t927 = c5 * t893;
        const V t928 = c4 * t909;
        const V t929 = t927 + t928;
        const V t930 = t926 - t929;
        const V t931 = t926 + t929;
        const V t932 = c2 * t894;
        const V t933 = t883 - t932;
        const V t934 = c3 * t910;
        const V t935 = t933 + t934;
        const V t936 = c4 * t893;
        const V t937 = c5 * t909;
        const V t938 = t936 - t937;
        const V t939 = t935 - t938;
        const V t940 = t935 + t938;
        // spectrum block of 5
        const V t941 = t902 + t918;
        const V t942 = t941 + t887;
        const V t943 = c3 * t902;
        const V t944 = c2 * t918;
        const V t945 = t943 - t944;
        const V t946 = t945 + t887;
        const V t947 = c5 * t901;
        const V t948 = c4 * t917;
        const V t949 = t947 + t948;
        const V t950 = t946 - t949;
        const V t951 = t946 + t949;
        const V t952 = c2 * t902;
        const V t953 = t887 - t952;
        const V t954 = c3 * t918;
        const V t955 = t953 + t954;
        const V t956 = c4 * t901;
        const V t957 = c5 * t917;
        const V t958 = t956 - t957;
        const V t959 = t955 - t958;
        const V t960 = t955 + t958;
        // spectrum block of 5
        const V t961 = t904 + t920;
        const V t962 = t961 + t888;
        const V t963 = c3 * t904;
        const V t964 = c2 * t920;
        const V t965 = t963 - t964;
        const V t966 = t965 + t888;
        const V t967 = c5 * t903;
        const V t968 = c4 * t919;
        const V t969 = t967 + t968;
        const V t970 = t966 - t969;
        const V t971 = t966 + t969;
        const V t972 = c2 * t904;
        const V t973 = t888 - t972;
        const V t974 = c3 * t920;
        const V t975 = t973 + t974;
        const V t976 = c4 * t903;
        const V t977 = c5 * t919;
        const V t978 = t976 - t977;
        const V t979 = t975 - t978;
        const V t980 = t975 + t978;
        // spectrum block of 3
        const V t981 = t874 + t854;
        const V t982 = c0 * t874;
        const V t983 = t854 - t982;
        const V t984 = c1 * t873;
        const V t985 = t983 - t984;
        const V t986 = t983 + t984;
        // complex block of 3
        const V t987 = t881 + t861;
        const V t988 = t882 + t862;
        const V t989 = t861 - t881;
        const V t990 = t882 - t862;
        const V t991 = t865 - t987;
        const V t992 = t988 + t866;
        const V t993 = c0 * t987;
        const V t994 = t993 + t865;
        const V t995 = c0 * t988;
        const V t996 = t866 - t995;
        const V t997 = c1 * t989;
        const V t998 = c1 * t990;
        const V t999 = t994 + t998;
        const V t1000 = t996 - t997;
        const V t1001 = t994 - t998;
        const V t1002 = t996 + t997;
        // complex block of 3
        const V t1003 = t857 - t869;
        const V t1004 = t870 + t858;
        const V t1005 = t869 + t857;
        const V t1006 = t870 - t858;
        const V t1007 = t1003 + t877;
        const V t1008 = t1004 - t878;
        const V t1009 = c0 * t1003;
        const V t1010 = t877 - t1009;
        const V t1011 = c0 * t1004;
        const V t1012 = t878 + t1011;
        const V t1013 = c1 * t1005;
        const V t1014 = c1 * t1006;
        const V t1015 = t1010 + t1014;
        const V t1016 = t1013 - t1012;
        const V t1017 = t1010 - t1014;
        const V t1018 = t1012 + t1013;
        // spectrum block of 5
        const V t1019 = t992 + t1008;
        const V t1020 = t1019 + t981;
        const V t1021 = c3 * t992;
        const V t1022 = c2 * t1008;
        const V t1023 = t1021 - t1022;
        const V t1024 = t1023 + t981;
        const V t1025 = c5 * t991;
        const V t1026 = c4 * t1007;
        const V t1027 = t1025 + t1026;
        const V t1028 = t1024 - t1027;
        const V t1029 = t1024 + t1027;
        const V t1030 = c2 * t992;
        const V t1031 = t981 - t1030;
        const V t1032 = c3 * t1008;
        const V t1033 = t1031 + t1032;
        const V t1034 = c4 * t991;
        const V t1035 = c5 * t1007;
        const V t1036 = t1034 - t1035;
        const V t1037 = t1033 - t1036;
        const V t1038 = t1033 + t1036;
        // spectrum block of 5
        const V t1039 = t1000 + t1016;
        const V t1040 = t1039 + t985;
        const V t1041 = c3 * t1000;
        const V t1042 = c2 * t1016;
        const V t1043 = t1041 - t1042;
        const V t1044 = t1043 + t985;
        const V t1045 = c5 * t999;
        const V t1046 = c4 * t1015;
        const V t1047 = t1045 + t1046;
        const V t1048 = t1044 - t1047;
        const V t1049 = t1044 + t1047;
        const V t1050 = c2 * t1000;
        const V t1051 = t985 - t1050;
        const V t1052 = c3 * t1016;
        const V t1053 = t1051 + t1052;
        const V t1054 = c4 * t999;
        const V t1055 = c5 * t1015;
        const V t1056 = t1054 - t1055;
        const V t1057 = t1053 - t1056;
        const V t1058 = t1053 + t1056;
        // spectrum block of 5
        const V t1059 = t1002 - t1018;
        const V t1060 = t1059 + t986;
        const V t1061 = c3 * t1002;
        const V t1062 = c2 * t1018;
        const V t1063 = t1061 + t1062;
        const V t1064 = t1063 + t986;
        const V t1065 = c5 * t1001;
        const V t1066 = c4 * t1017;
        const V t1067 = t1065 + t1066;
        const V t1068 = t1064 - t1067;
        const V t1069 = t1064 + t1067;
        const V t1070 = c2 * t1002;
        const V t1071 = t986 - t1070;
        const V t1072 = c3 * t1018;
        const V t1073 = t1071 - t1072;
        const V t1074 = c4 * t1001;
        const V t1075 = c5 * t1017;
        const V t1076 = t1074 - t1075;
        const V t1077 = t1073 - t1076;
        const V t1078 = t1073 + t1076;
        // spectrum block of 31, multiplier 2
        const V t1079 = x31 + t605;
        // spectrum block of 2
        const V t1080 = t569 + t1079;
        io.out(0, t1080);
        const V t1081 = t569 - t1079;
        io.out(31, t1081);
        // spectrum block of 2
        const V t1082 = t412 + t922;
        io.out(60, t1082);
        const V t1083 = t412 - t922;
        io.out(29, t1083);
        // spectrum block of 2
        const V t1084 = t420 + t930;
        io.out(58, t1084);
        const V t1085 = t420 - t930;
        io.out(27, t1085);
        // spectrum block of 2
        const V t1086 = t559 + t1069;
        io.out(56, t1086);
        const V t1087 = t559 - t1069;
        io.out(25, t1087);
        // spectrum block of 2
        const V t1088 = t429 + t939;
        io.out(54, t1088);
        const V t1089 = t429 - t939;
        io.out(23, t1089);
        // spectrum block of 2
        const V t1090 = t432 + t942;
        io.out(52, t1090);
        const V t1091 = t432 - t942;
        io.out(21, t1091);
        // spectrum block of 2
        const V t1092 = t550 + t1060;
        io.out(50, t1092);
        const V t1093 = t550 - t1060;
        io.out(19, t1093);
        // spectrum block of 2
        const V t1094 = t469 + t979;
        io.out(48, t1094);
        const V t1095 = t469 - t979;
        io.out(17, t1095);
        // spectrum block of 2
        const V t1096 = t430 + t940;
        io.out(46, t1096);
        const V t1097 = t430 - t940;
        io.out(15, t1097);
        // spectrum block of 2
        const V t1098 = t450 + t960;
        io.out(44, t1098);
        const V t1099 = t450 - t960;
        io.out(13, t1099);
        // spectrum block of 2
        const V t1100 = t440 + t950;
        io.out(42, t1100);
        const V t1101 = t440 - t950;
        io.out(11, t1101);
        // spectrum block of 2
        const V t1102 = t547 + t1057;
        io.out(40, t1102);
        const V t1103 = t547 - t1057;
        io.out(9, t1103);
        // spectrum block of 2
        const V t1104 = t558 + t1068;
        io.out(38, t1104);
        const V t1105 = t558 - t1068;
        io.out(7, t1105);
        // spectrum block of 2
        const V t1106 = t539 + t1049;
        io.out(36, t1106);
        const V t1107 = t539 - t1049;
        io.out(5, t1107);
        // spectrum block of 2
        const V t1108 = t470 + t980;
        io.out(34, t1108);
        const V t1109 = t470 - t980;
        io.out(3, t1109);
        // spectrum block of 2
        const V t1110 = t519 + t1029;
        io.out(32, t1110);
        const V t1111 = t519 - t1029;
        io.out(1, t1111);
        // spectrum block of 2
        const V t1112 = t421 + t931;
        io.out(30, t1112);
        const V t1113 = t421 - t931;
        io.out(61, t1113);
        // spectrum block of 2
        const V t1114 = t568 + t1078;
        io.out(28, t1114);
        const V t1115 = t568 - t1078;
        io.out(59, t1115);
        // spectrum block of 2
        const V t1116 = t441 + t951;
        io.out(26, t1116);
        const V t1117 = t441 - t951;
        io.out(57, t1117);
        // spectrum block of 2
        const V t1118 = t460 + t970;
        io.out(24, t1118);
        const V t1119 = t460 - t970;
        io.out(55, t1119);
        // spectrum block of 2
        const V t1120 = t449 + t959;
        io.out(22, t1120);
        const V t1121 = t449 - t959;
        io.out(53, t1121);
        // spectrum block of 2
        const V t1122 = t538 + t1048;
        io.out(20, t1122);
        const V t1123 = t538 - t1048;
        io.out(51, t1123);
        // spectrum block of 2
        const V t1124 = t548 + t1058;
        io.out(18, t1124);
        const V t1125 = t548 - t1058;
        io.out(49, t1125);
        // spectrum block of 2
        const V t1126 = t528 + t1038;
        io.out(16, t1126);
        const V t1127 = t528 - t1038;
        io.out(47, t1127);
        // spectrum block of 2
        const V t1128 = t567 + t1077;
        io.out(14, t1128);
        const V t1129 = t567 - t1077;
        io.out(45, t1129);
        // spectrum block of 2
        const V t1130 = t452 + t962;
        io.out(12, t1130);
        const V t1131 = t452 - t962;
        io.out(43, t1131);
        // spectrum block of 2
        const V t1132 = t530 + t1040;
        io.out(10, t1132);
        const V t1133 = t530 - t1040;
        io.out(41, t1133);
        // spectrum block of 2
        const V t1134 = t527 + t1037;
        io.out(8, t1134);
        const V t1135 = t527 - t1037;
        io.out(39, t1135);
        // spectrum block of 2
        const V t1136 = t461 + t971;
        io.out(6, t1136);
        const V t1137 = t461 - t971;
        io.out(37, t1137);
        // spectrum block of 2
        const V t1138 = t518 + t1028;
        io.out(4, t1138);
        const V t1139 = t518 - t1028;
        io.out(35, t1139);
        // spectrum block of 2
        const V t1140 = t510 + t1020;
        io.out(2, t1140);
        const V t1141 = t510 - t1020;
        io.out(33, t1141);
    }
};

template Status ZULG_CALL kernel<Family::Hartley, 62, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::Hartley, 62, double>(const double*, double*, std::int32_t);

}  // namespace zulg
