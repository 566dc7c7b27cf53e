// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 23.
// Complex DFT of 23 points, Rader block.
// 336 additions, 308 subtractions, 484 multiplications (530 with `scale`); 46 constants; 57 values alive at most.
#include "kernel/kernel_body.h"

namespace zulg {

template <>
struct ComplexGraph<23> {
    static constexpr double inverseRoot = 0.20851441405707477;  // 1/sqrt(23), for `scale`
    static constexpr double c0 = 0.41541501300188644;  // cos 2 pi 2/11
    static constexpr double c1 = 0.6548607339452851;  // -cos 2 pi 18/11
    static constexpr double c2 = 0.9594929736144974;  // -cos 2 pi 6/11
    static constexpr double c3 = 0.14231483827328514;  // -cos 2 pi 8/11
    static constexpr double c4 = 0.8412535328311812;  // cos 2 pi 12/11
    static constexpr double c5 = 0.9096319953545183;  // sin 2 pi 2/11
    static constexpr double c6 = 0.7557495743542583;  // -sin 2 pi 18/11
    static constexpr double c7 = 0.28173255684142967;  // -sin 2 pi 6/11
    static constexpr double c8 = 0.9898214418809327;  // -sin 2 pi 8/11
    static constexpr double c9 = 0.5406408174555976;  // sin 2 pi 12/11
    static constexpr double c10 = 0.045454545454545456;  // 1/22
    static constexpr double c11 = 0.06955203016683642;  // P[1] of 23
    static constexpr double c12 = 0.4304011613922187;  // Q[1] of 23
    static constexpr double c13 = 0.43370463199482034;  // Q[2] of 23
    static constexpr double c14 = 0.04453017869194607;  // P[2] of 23
    static constexpr double c15 = 0.27718353274096963;  // P[3] of 23
    static constexpr double c16 = 0.33652924658242556;  // -Q[3] of 23
    static constexpr double c17 = 0.22644695169903334;  // Q[4] of 23
    static constexpr double c18 = 0.37256465572342584;  // P[4] of 23
    static constexpr double c19 = 0.43594373606982356;  // P[5] of 23
    static constexpr double c20 = 0.005975249750696167;  // -Q[5] of 23
    static constexpr double c21 = 0.4029766924691319;  // Q[6] of 23
    static constexpr double c22 = 0.16641042622004737;  // P[6] of 23
    static constexpr double c23 = 0.17583093692664623;  // P[7] of 23
    static constexpr double c24 = 0.3989562961623703;  // Q[7] of 23
    static constexpr double c25 = 0.43595445213547385;  // -Q[8] of 23
    static constexpr double c26 = 0.005134227435360646;  // -P[8] of 23
    static constexpr double c27 = 0.028555549440596593;  // -P[9] of 23
    static constexpr double c28 = 0.43504853203320293;  // -Q[9] of 23
    static constexpr double c29 = 0.07198581089002037;  // -Q[10] of 23
    static constexpr double c30 = 0.4300007996022861;  // P[10] of 23
    static constexpr double c31 = 0.21799234196875997;  // beta of 23
    static constexpr double c32 = 0.30901699437494745;  // cos 2 pi 1/5
    static constexpr double c33 = 0.8090169943749475;  // -cos 2 pi 3/5
    static constexpr double c34 = 0.9510565162951535;  // sin 2 pi 1/5
    static constexpr double c35 = 0.5877852522924731;  // -sin 2 pi 3/5
    static constexpr double c36 = 0.1;  // 1/10
    static constexpr double c37 = 0.21879791731559586;  // P[1] of 11
    static constexpr double c38 = 0.6262008235209833;  // -Q[1] of 11
    static constexpr double c39 = 0.3770255864361907;  // -Q[2] of 11
    static constexpr double c40 = 0.5457579199356125;  // P[2] of 11
    static constexpr double c41 = 0.24831391555962465;  // -P[3] of 11
    static constexpr double c42 = 0.6150936508690751;  // -Q[3] of 11
    static constexpr double c43 = 0.6626305969383026;  // -Q[4] of 11
    static constexpr double c44 = 0.030342906933726127;  // -P[4] of 11
    static constexpr double c45 = 0.33166247903553997;  // beta of 11

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // real block of 2
        const V x1r = io.re(1);
        const V x22r = io.re(22);
        const V t0 = x1r + x22r;
        const V t1 = x1r - x22r;
        // real block of 2
        const V x2r = io.re(2);
        const V x21r = io.re(21);
        const V t2 = x2r + x21r;
        const V t3 = x2r - x21r;
        // real block of 2
        const V x4r = io.re(4);
        const V x19r = io.re(19);
        const V t4 = x4r + x19r;
        const V t5 = x4r - x19r;
        // real block of 2
        const V x8r = io.re(8);
        const V x15r = io.re(15);
        const V t6 = x8r + x15r;
        const V t7 = x8r - x15r;
        // real block of 2
        const V x16r = io.re(16);
        const V x7r = io.re(7);
        const V t8 = x16r + x7r;
        const V t9 = x16r - x7r;
        // real block of 2
        const V x9r = io.re(9);
        const V x14r = io.re(14);
        const V t10 = x9r + x14r;
        const V t11 = x9r - x14r;
        // real block of 2
        const V x18r = io.re(18);
        const V x5r = io.re(5);
        const V t12 = x18r + x5r;
        const V t13 = x18r - x5r;
        // real block of 2
        const V x13r = io.re(13);
        const V x10r = io.re(10);
        const V t14 = x13r + x10r;
        const V t15 = x13r - x10r;
        // real block of 2
        const V x3r = io.re(3);
        const V x20r = io.re(20);
        const V t16 = x3r + x20r;
        const V t17 = x3r - x20r;
        // real block of 2
        const V x6r = io.re(6);
        const V x17r = io.re(17);
        const V t18 = x6r + x17r;
        const V t19 = x6r - x17r;
        // real block of 2
        const V x12r = io.re(12);
        const V x11r = io.re(11);
        const V t20 = x12r + x11r;
        const V t21 = x12r - x11r;
        // real block of 11, multiplier 2
        const V t22 = t2 + t20;
        const V t23 = t2 - t20;
        const V t24 = t18 + t4;
        const V t25 = t18 - t4;
        const V t26 = t6 + t16;
        const V t27 = t6 - t16;
        const V t28 = t8 + t14;
        const V t29 = t8 - t14;
        const V t30 = t12 + t10;
        const V t31 = t12 - t10;
        const V t32 = t22 + t24;
        const V t33 = t32 + t26;
        const V t34 = t33 + t28;
        const V t35 = t34 + t30;
        const V t36 = t35 + t0;
        const V t37 = c0 * t22;
        const V t38 = c1 * t24;
        const V t39 = t37 - t38;
        const V t40 = c2 * t26;
        const V t41 = t39 - t40;
        const V t42 = c3 * t28;
        const V t43 = t41 - t42;
        const V t44 = c4 * t30;
        const V t45 = t43 + t44;
        const V t46 = t45 + t0;
        const V t47 = c5 * t23;
        const V t48 = c6 * t25;
        const V t49 = c7 * t27;
        const V t50 = c8 * t29;
        const V t51 = c9 * t31;
        const V t52 = t48 + t49;
        const V t53 = t52 + t50;
        const V t54 = t53 - t47;
        const V t55 = t54 - t51;
        const V t56 = c1 * t22;
        const V t57 = t0 - t56;
        const V t58 = c3 * t24;
        const V t59 = t57 - t58;
        const V t60 = c4 * t26;
        const V t61 = t59 + t60;
        const V t62 = c2 * t28;
        const V t63 = t61 - t62;
        const V t64 = c0 * t30;
        const V t65 = t63 + t64;
        const V t66 = c6 * t23;
        const V t67 = c8 * t25;
        const V t68 = c9 * t27;
        const V t69 = c7 * t29;
        const V t70 = c5 * t31;
        const V t71 = t66 + t67;
        const V t72 = t71 + t68;
        const V t73 = t72 + t69;
        const V t74 = t73 + t70;
        const V t75 = c2 * t22;
        const V t76 = t0 - t75;
        const V t77 = c4 * t24;
        const V t78 = t76 + t77;
        const V t79 = c1 * t26;
        const V t80 = t78 - t79;
        const V t81 = c0 * t28;
        const V t82 = t80 + t81;
        const V t83 = c3 * t30;
        const V t84 = t82 - t83;
        const V t85 = c7 * t23;
        const V t86 = c9 * t25;
        const V t87 = c6 * t27;
        const V t88 = c5 * t29;
        const V t89 = c8 * t31;
        const V t90 = t85 + t86;
        const V t91 = t90 + t87;
        const V t92 = t91 - t88;
        const V t93 = t92 - t89;
        const V t94 = c3 * t22;
        const V t95 = t0 - t94;
        const V t96 = c2 * t24;
        const V t97 = t95 - t96;
        const V t98 = c0 * t26;
        const V t99 = t97 + t98;
        const V t100 = c4 * t28;
        const V t101 = t99 + t100;
        const V t102 = c1 * t30;
        const V t103 = t101 - t102;
        const V t104 = c8 * t23;
        const V t105 = c7 * t25;
        const V t106 = c5 * t27;
        const V t107 = c9 * t29;
        const V t108 = c6 * t31;
        const V t109 = t104 + t105;
        const V t110 = t109 + t107;
        const V t111 = t110 - t106;
        const V t112 = t111 - t108;
        const V t113 = c4 * t22;
        const V t114 = c0 * t24;
        const V t115 = t113 + t114;
        const V t116 = c3 * t26;
        const V t117 = t115 - t116;
        const V t118 = c1 * t28;
        const V t119 = t117 - t118;
        const V t120 = c2 * t30;
        const V t121 = t119 - t120;
        const V t122 = t121 + t0;
        const V t123 = c9 * t23;
        const V t124 = c5 * t25;
        const V t125 = c8 * t27;
        const V t126 = c6 * t29;
        const V t127 = c7 * t31;
        const V t128 = t123 + t125;
        const V t129 = t128 + t126;
        const V t130 = t129 - t124;
        const V t131 = t130 - t127;
        // real block of 11, multiplier 2
        const V t132 = t3 + t21;
        const V t133 = t3 - t21;
        const V t134 = t19 + t5;
        const V t135 = t19 - t5;
        const V t136 = t7 + t17;
        const V t137 = t7 - t17;
        const V t138 = t9 + t15;
        const V t139 = t9 - t15;
        const V t140 = t13 + t11;
        const V t141 = t13 - t11;
        const V t142 = t132 + t134;
        const V t143 = t142 + t136;
        const V t144 = t143 + t138;
        const V t145 = t144 + t140;
        const V t146 = t145 + t1;
        const V t147 = c0 * t132;
        const V t148 = c1 * t134;
        const V t149 = t147 - t148;
        const V t150 = c2 * t136;
        const V t151 = t149 - t150;
        const V t152 = c3 * t138;
        const V t153 = t151 - t152;
        const V t154 = c4 * t140;
        const V t155 = t153 + t154;
        const V t156 = t155 + t1;
        const V t157 = c5 * t133;
        const V t158 = c6 * t135;
        const V t159 = c7 * t137;
        const V t160 = c8 * t139;
        const V t161 = c9 * t141;
        const V t162 = t158 + t159;
        const V t163 = t162 + t160;
        const V t164 = t163 - t157;
        const V t165 = t164 - t161;
        const V t166 = c1 * t132;
        const V t167 = t1 - t166;
        const V t168 = c3 * t134;
        const V t169 = t167 - t168;
        const V t170 = c4 * t136;
        const V t171 = t169 + t170;
        const V t172 = c2 * t138;
        const V t173 = t171 - t172;
        const V t174 = c0 * t140;
        const V t175 = t173 + t174;
        const V t176 = c6 * t133;
        const V t177 = c8 * t135;
        const V t178 = c9 * t137;
        const V t179 = c7 * t139;
        const V t180 = c5 * t141;
        const V t181 = t176 + t177;
        const V t182 = t181 + t178;
        const V t183 = t182 + t179;
        const V t184 = t183 + t180;
        const V t185 = c2 * t132;
        const V t186 = t1 - t185;
        const V t187 = c4 * t134;
        const V t188 = t186 + t187;
        const V t189 = c1 * t136;
        const V t190 = t188 - t189;
        const V t191 = c0 * t138;
        const V t192 = t190 + t191;
        const V t193 = c3 * t140;
        const V t194 = t192 - t193;
        const V t195 = c7 * t133;
        const V t196 = c9 * t135;
        const V t197 = c6 * t137;
        const V t198 = c5 * t139;
        const V t199 = c8 * t141;
        const V t200 = t195 + t196;
        const V t201 = t200 + t197;
        const V t202 = t201 - t198;
        const V t203 = t202 - t199;
        const V t204 = c3 * t132;
        const V t205 = t1 - t204;
        const V t206 = c2 * t134;
        const V t207 = t205 - t206;
        const V t208 = c0 * t136;
        const V t209 = t207 + t208;
        const V t210 = c4 * t138;
        const V t211 = t209 + t210;
        const V t212 = c1 * t140;
        const V t213 = t211 - t212;
        const V t214 = c8 * t133;
        const V t215 = c7 * t135;
        const V t216 = c5 * t137;
        const V t217 = c9 * t139;
        const V t218 = c6 * t141;
        const V t219 = t214 + t215;
        const V t220 = t219 + t217;
        const V t221 = t220 - t216;
        const V t222 = t221 - t218;
        const V t223 = c4 * t132;
        const V t224 = c0 * t134;
        const V t225 = t223 + t224;
        const V t226 = c3 * t136;
        const V t227 = t225 - t226;
        const V t228 = c1 * t138;
        const V t229 = t227 - t228;
        const V t230 = c2 * t140;
        const V t231 = t229 - t230;
        const V t232 = t231 + t1;
        const V t233 = c9 * t133;
        const V t234 = c5 * t135;
        const V t235 = c8 * t137;
        const V t236 = c6 * t139;
        const V t237 = c7 * t141;
        const V t238 = t233 + t235;
        const V t239 = t238 + t236;
        const V t240 = t239 - t234;
        const V t241 = t240 - t237;
        // real block of 2
        const V x1i = io.im(1);
        const V x22i = io.im(22);
        const V t242 = x1i + x22i;
        const V t243 = x1i - x22i;
        // real block of 2
        const V x2i = io.im(2);
        const V x21i = io.im(21);
        const V t244 = x2i + x21i;
        const V t245 = x2i - x21i;
        // real block of 2
        const V x4i = io.im(4);
        const V x19i = io.im(19);
        const V t246 = x4i + x19i;
        const V t247 = x4i - x19i;
        // real block of 2
        const V x8i = io.im(8);
        const V x15i = io.im(15);
        const V t248 = x8i + x15i;
        const V t249 = x8i - x15i;
        // real block of 2
        const V x16i = io.im(16);
        const V x7i = io.im(7);
        const V t250 = x16i + x7i;
        const V t251 = x16i - x7i;
        // real block of 2
        const V x9i = io.im(9);
        const V x14i = io.im(14);
        const V t252 = x9i + x14i;
        const V t253 = x9i - x14i;
        // real block of 2
        const V x18i = io.im(18);
        const V x5i = io.im(5);
        const V t254 = x18i + x5i;
        const V t255 = x18i - x5i;
        // real block of 2
        const V x13i = io.im(13);
        const V x10i = io.im(10);
        const V t256 = x13i + x10i;
        const V t257 = x13i - x10i;
        // real block of 2
        const V x3i = io.im(3);
        const V x20i = io.im(20);
        const V t258 = x3i + x20i;
        const V t259 = x3i - x20i;
        // real block of 2
        const V x6i = io.im(6);
        const V x17i = io.im(17);
        const V t260 = x6i + x17i;
        const V t261 = x6i - x17i;
        // real block of 2
        const V x12i = io.im(12);
        const V x11i = io.im(11);
        const V t262 = x12i + x11i;
        const V t263 = x12i - x11i;
        // real block of 11, multiplier 2
        const V t264 = t244 + t262;
        const V t265 = t244 - t262;
        const V t266 = t260 + t246;
        const V t267 = t260 - t246;
        const V t268 = t248 + t258;
        const V t269 = t248 - t258;
        const V t270 = t250 + t256;
        const V t271 = t250 - t256;
        const V t272 = t254 + t252;
        const V t273 = t254 - t252;
        const V t274 = t264 + t266;
        const V t275 = t274 + t268;
        const V t276 = t275 + t270;
        const V t277 = t276 + t272;
        const V t278 = t277 + t242;
        const V t279 = c0 * t264;
        const V t280 = c1 * t266;
        const V t281 = t279 - t280;
        const V t282 = c2 * t268;
        const V t283 = t281 - t282;
        const V t284 = c3 * t270;
        const V t285 = t283 - t284;
        const V t286 = c4 * t272;
        const V t287 = t285 + t286;
        const V t288 = t287 + t242;
        const V t289 = c5 * t265;
        const V t290 = c6 * t267;
        const V t291 = c7 * t269;
        const V t292 = c8 * t271;
        const V t293 = c9 * t273;
        const V t294 = t290 + t291;
        const V t295 = t294 + t292;
        const V t296 = t295 - t289;
        const V t297 = t296 - t293;
        const V t298 = c1 * t264;
        const V t299 = t242 - t298;
        const V t300 = c3 * t266;
        const V t301 = t299 - t300;
        const V t302 = c4 * t268;
        const V t303 = t301 + t302;
        const V t304 = c2 * t270;
        const V t305 = t303 - t304;
        const V t306 = c0 * t272;
        const V t307 = t305 + t306;
        const V t308 = c6 * t265;
        const V t309 = c8 * t267;
        const V t310 = c9 * t269;
        const V t311 = c7 * t271;
        const V t312 = c5 * t273;
        const V t313 = t308 + t309;
        const V t314 = t313 + t310;
        const V t315 = t314 + t311;
        const V t316 = t315 + t312;
        const V t317 = c2 * t264;
        const V t318 = t242 - t317;
        const V t319 = c4 * t266;
        const V t320 = t318 + t319;
        const V t321 = c1 * t268;
        const V t322 = t320 - t321;
        const V t323 = c0 * t270;
        const V t324 = t322 + t323;
        const V t325 = c3 * t272;
        const V t326 = t324 - t325;
        const V t327 = c7 * t265;
        const V t328 = c9 * t267;
        const V t329 = c6 * t269;
        const V t330 = c5 * t271;
        const V t331 = c8 * t273;
        const V t332 = t327 + t328;
        const V t333 = t332 + t329;
        const V t334 = t333 - t330;
        const V t335 = t334 - t331;
        const V t336 = c3 * t264;
        const V t337 = t242 - t336;
        const V t338 = c2 * t266;
        const V t339 = t337 - t338;
        const V t340 = c0 * t268;
        const V t341 = t339 + t340;
        const V t342 = c4 * t270;
        const V t343 = t341 + t342;
        const V t344 = c1 * t272;
        const V t345 = t343 - t344;
        const V t346 = c8 * t265;
        const V t347 = c7 * t267;
        const V t348 = c5 * t269;
        const V t349 = c9 * t271;
        const V t350 = c6 * t273;
        const V t351 = t346 + t347;
        const V t352 = t351 + t349;
        const V t353 = t352 - t348;
        const V t354 = t353 - t350;
        const V t355 = c4 * t264;
        const V t356 = c0 * t266;
        const V t357 = t355 + t356;
        const V t358 = c3 * t268;
        const V t359 = t357 - t358;
        const V t360 = c1 * t270;
        const V t361 = t359 - t360;
        const V t362 = c2 * t272;
        const V t363 = t361 - t362;
        const V t364 = t363 + t242;
        const V t365 = c9 * t265;
        const V t366 = c5 * t267;
        const V t367 = c8 * t269;
        const V t368 = c6 * t271;
        const V t369 = c7 * t273;
        const V t370 = t365 + t367;
        const V t371 = t370 + t368;
        const V t372 = t371 - t366;
        const V t373 = t372 - t369;
        // real block of 11, multiplier 2
        const V t374 = t245 + t263;
        const V t375 = t245 - t263;
        const V t376 = t261 + t247;
        const V t377 = t261 - t247;
        const V t378 = t249 + t259;
        const V t379 = t249 - t259;
        const V t380 = t251 + t257;
        const V t381 = t251 - t257;
        const V t382 = t255 + t253;
        const V t383 = t255 - t253;
        const V t384 = t374 + t376;
        const V t385 = t384 + t378;
        const V t386 = t385 + t380;
        const V t387 = t386 + t382;
        const V t388 = t387 + t243;
        const V t389 = c0 * t374;
        const V t390 = c1 * t376;
        const V t391 = t389 - t390;
        const V t392 = c2 * t378;
        const V t393 = t391 - t392;
        const V t394 = c3 * t380;
        const V t395 = t393 - t394;
        const V t396 = c4 * t382;
        const V t397 = t395 + t396;
        const V t398 = t397 + t243;
        const V t399 = c5 * t375;
        const V t400 = c6 * t377;
        const V t401 = c7 * t379;
        const V t402 = c8 * t381;
        const V t403 = c9 * t383;
        const V t404 = t400 + t401;
        const V t405 = t404 + t402;
        const V t406 = t405 - t399;
        const V t407 = t406 - t403;
        const V t408 = c1 * t374;
        const V t409 = t243 - t408;
        const V t410 = c3 * t376;
        const V t411 = t409 - t410;
        const V t412 = c4 * t378;
        const V t413 = t411 + t412;
        const V t414 = c2 * t380;
        const V t415 = t413 - t414;
        const V t416 = c0 * t382;
        const V t417 = t415 + t416;
        const V t418 = c6 * t375;
        const V t419 = c8 * t377;
        const V t420 = c9 * t379;
        const V t421 = c7 * t381;
        const V t422 = c5 * t383;
        const V t423 = t418 + t419;
        const V t424 = t423 + t420;
        const V t425 = t424 + t421;
        const V t426 = t425 + t422;
        const V t427 = c2 * t374;
        const V t428 = t243 - t427;
        const V t429 = c4 * t376;
        const V t430 = t428 + t429;
        const V t431 = c1 * t378;
        const V t432 = t430 - t431;
        const V t433 = c0 * t380;
        const V t434 = t432 + t433;
        const V t435 = c3 * t382;
        const V t436 = t434 - t435;
        const V t437 = c7 * t375;
        const V t438 = c9 * t377;
        const V t439 = c6 * t379;
        const V t440 = c5 * t381;
        const V t441 = c8 * t383;
        const V t442 = t437 + t438;
        const V t443 = t442 + t439;
        const V t444 = t443 - t440;
        const V t445 = t444 - t441;
        const V t446 = c3 * t374;
        const V t447 = t243 - t446;
        const V t448 = c2 * t376;
        const V t449 = t447 - t448;
        const V t450 = c0 * t378;
        const V t451 = t449 + t450;
        const V t452 = c4 * t380;
        const V t453 = t451 + t452;
        const V t454 = c1 * t382;
        const V t455 = t453 - t454;
        const V t456 = c8 * t375;
        const V t457 = c7 * t377;
        const V t458 = c5 * t379;
        const V t459 = c9 * t381;
        const V t460 = c6 * t383;
        const V t461 = t456 + t457;
        const V t462 = t461 + t459;
        const V t463 = t462 - t458;
        const V t464 = t463 - t460;
        const V t465 = c4 * t374;
        const V t466 = c0 * t376;
        const V t467 = t465 + t466;
        const V t468 = c3 * t378;
        const V t469 = t467 - t468;
        const V t470 = c1 * t380;
        const V t471 = t469 - t470;
        const V t472 = c2 * t382;
        const V t473 = t471 - t472;
        const V t474 = t473 + t243;
        const V t475 = c9 * t375;
        const V t476 = c5 * t377;
        const V t477 = c8 * t379;
        const V t478 = c6 * t381;
        const V t479 = c7 * t383;
        const V t480 = t475 + t477;
        const V t481 = t480 + t478;
        const V t482 = t481 - t476;
        const V t483 = t482 - t479;
        // complex block of 23
        const V x0r = io.re(0);
        const V t484 = x0r + t36;
        const V x0i = io.im(0);
        io.re(0, t484);
        const V t485 = x0i + t278;
        io.im(0, t485);
        const V t486 = c10 * t36;
        const V t487 = x0r - t486;
        const V t488 = c10 * t278;
        const V t489 = x0i - t488;
        const V t490 = c11 * t483;
        const V t491 = c12 * t474;
        const V t492 = t491 + t490;
        const V t493 = c11 * t474;
        const V t494 = c12 * t483;
        const V t495 = t493 - t494;
        const V t496 = c11 * t241;
        const V t497 = c12 * t232;
        const V t498 = t497 + t496;
        const V t499 = c11 * t232;
        const V t500 = c12 * t241;
        const V t501 = t500 - t499;
        const V t502 = c13 * t55;
        const V t503 = c14 * t46;
        const V t504 = t503 - t502;
        const V t505 = c13 * t46;
        const V t506 = c14 * t55;
        const V t507 = t506 + t505;
        const V t508 = c13 * t297;
        const V t509 = c14 * t288;
        const V t510 = t509 - t508;
        const V t511 = c13 * t288;
        const V t512 = c14 * t297;
        const V t513 = t512 + t511;
        const V t514 = c15 * t464;
        const V t515 = c16 * t455;
        const V t516 = t514 - t515;
        const V t517 = c15 * t455;
        const V t518 = c16 * t464;
        const V t519 = t518 + t517;
        const V t520 = c15 * t222;
        const V t521 = c16 * t213;
        const V t522 = t521 - t520;
        const V t523 = c15 * t213;
        const V t524 = c16 * t222;
        const V t525 = t524 + t523;
        const V t526 = c17 * t74;
        const V t527 = c18 * t65;
        const V t528 = t527 + t526;
        const V t529 = c17 * t65;
        const V t530 = c18 * t74;
        const V t531 = t529 - t530;
        const V t532 = c17 * t316;
        const V t533 = c18 * t307;
        const V t534 = t533 + t532;
        const V t535 = c17 * t307;
        const V t536 = c18 * t316;
        const V t537 = t535 - t536;
        const V t538 = c19 * t445;
        const V t539 = c20 * t436;
        const V t540 = t538 - t539;
        const V t541 = c19 * t436;
        const V t542 = c20 * t445;
        const V t543 = t542 + t541;
        const V t544 = c19 * t203;
        const V t545 = c20 * t194;
        const V t546 = t545 - t544;
        const V t547 = c19 * t194;
        const V t548 = c20 * t203;
        const V t549 = t548 + t547;
        const V t550 = c21 * t93;
        const V t551 = c22 * t84;
        const V t552 = t551 - t550;
        const V t553 = c21 * t84;
        const V t554 = c22 * t93;
        const V t555 = t554 + t553;
        const V t556 = c21 * t335;
        const V t557 = c22 * t326;
        const V t558 = t557 - t556;
        const V t559 = c21 * t326;
        const V t560 = c22 * t335;
        const V t561 = t560 + t559;
        const V t562 = c23 * t426;
        const V t563 = c24 * t417;
        const V t564 = t563 - t562;
        const V t565 = c23 * t417;
        const V t566 = c24 * t426;
        const V t567 = t566 + t565;
        const V t568 = c23 * t184;
        const V t569 = c24 * t175;
        const V t570 = t568 - t569;
        const V t571 = c23 * t175;
        const V t572 = c24 * t184;
        const V t573 = t572 + t571;
        const V t574 = c25 * t112;
        const V t575 = c26 * t103;
        const V t576 = t574 - t575;
        const V t577 = c25 * t103;
        const V t578 = c26 * t112;
        const V t579 = t578 + t577;
        const V t580 = c25 * t354;
        const V t581 = c26 * t345;
        const V t582 = t580 - t581;
        const V t583 = c25 * t345;
        const V t584 = c26 * t354;
        const V t585 = t584 + t583;
        const V t586 = c27 * t407;
        const V t587 = c28 * t398;
        const V t588 = t587 + t586;
        const V t589 = c27 * t398;
        const V t590 = c28 * t407;
        const V t591 = t590 - t589;
        const V t592 = c27 * t165;
        const V t593 = c28 * t156;
        const V t594 = t593 + t592;
        const V t595 = c27 * t156;
        const V t596 = c28 * t165;
        const V t597 = t595 - t596;
        const V t598 = c29 * t131;
        const V t599 = c30 * t122;
        const V t600 = t599 + t598;
        const V t601 = c29 * t122;
        const V t602 = c30 * t131;
        const V t603 = t602 - t601;
        const V t604 = c29 * t373;
        const V t605 = c30 * t364;
        const V t606 = t605 + t604;
        const V t607 = c29 * t364;
        const V t608 = c30 * t373;
        const V t609 = t608 - t607;
        const V t610 = c31 * t388;
        const V t611 = c31 * t146;
        // real block of 5
        const V t612 = t528 + t600;
        const V t613 = t528 - t600;
        const V t614 = t552 + t576;
        const V t615 = t552 - t576;
        const V t616 = t612 + t614;
        const V t617 = t616 + t504;
        const V t618 = c32 * t612;
        const V t619 = c33 * t614;
        const V t620 = t618 - t619;
        const V t621 = t620 + t504;
        const V t622 = c34 * t613;
        const V t623 = c35 * t615;
        const V t624 = t623 - t622;
        const V t625 = c33 * t612;
        const V t626 = t504 - t625;
        const V t627 = c32 * t614;
        const V t628 = t626 + t627;
        const V t629 = c35 * t613;
        const V t630 = c34 * t615;
        const V t631 = t629 + t630;
        // real block of 5
        const V t632 = t603 - t531;
        const V t633 = t531 + t603;
        const V t634 = t555 - t579;
        const V t635 = t555 + t579;
        const V t636 = t632 + t634;
        const V t637 = t636 + t507;
        const V t638 = c32 * t632;
        const V t639 = c33 * t634;
        const V t640 = t638 - t639;
        const V t641 = t640 + t507;
        const V t642 = c34 * t633;
        const V t643 = c35 * t635;
        const V t644 = t642 + t643;
        const V t645 = c33 * t632;
        const V t646 = t507 - t645;
        const V t647 = c32 * t634;
        const V t648 = t646 + t647;
        const V t649 = c35 * t633;
        const V t650 = c34 * t635;
        const V t651 = t649 - t650;
        // spectrum block of 11, multiplier 2
        const V t652 = c36 * t617;
        const V t653 = t487 - t652;
        const V t654 = c37 * t651;
        const V t655 = c38 * t648;
        const V t656 = t654 - t655;
        const V t657 = c37 * t648;
        const V t658 = c38 * t651;
        const V t659 = t658 + t657;
        const V t660 = c39 * t624;
        const V t661 = c40 * t621;
        const V t662 = t661 + t660;
        const V t663 = c39 * t621;
        const V t664 = c40 * t624;
        const V t665 = t664 - t663;
        const V t666 = c41 * t644;
        const V t667 = c42 * t641;
        const V t668 = t667 + t666;
        const V t669 = c41 * t641;
        const V t670 = c42 * t644;
        const V t671 = t670 - t669;
        const V t672 = c43 * t631;
        const V t673 = c44 * t628;
        const V t674 = t673 + t672;
        const V t675 = c43 * t628;
        const V t676 = c44 * t631;
        const V t677 = t676 - t675;
        const V t678 = c45 * t637;
        // spectrum block of 2
        const V t679 = t653 + t678;
        const V t680 = t653 - t678;
        // complex block of 2
        const V t681 = t665 - t671;
        const V t682 = t662 - t668;
        const V t683 = t665 + t671;
        const V t684 = t662 + t668;
        // complex block of 2
        const V t685 = t677 - t659;
        const V t686 = t656 - t674;
        const V t687 = t677 + t659;
        const V t688 = t674 + t656;
        // spectrum block of 5, multiplier 2
        const V t689 = t682 + t686;
        const V t690 = t689 + t679;
        const V t691 = c32 * t682;
        const V t692 = c33 * t686;
        const V t693 = t691 - t692;
        const V t694 = t693 + t679;
        const V t695 = c34 * t681;
        const V t696 = c35 * t685;
        const V t697 = t695 + t696;
        const V t698 = t694 - t697;
        const V t699 = t694 + t697;
        const V t700 = c33 * t682;
        const V t701 = t679 - t700;
        const V t702 = c32 * t686;
        const V t703 = t701 + t702;
        const V t704 = c35 * t681;
        const V t705 = c34 * t685;
        const V t706 = t704 - t705;
        const V t707 = t703 - t706;
        const V t708 = t703 + t706;
        // spectrum block of 5, multiplier 2
        const V t709 = t684 - t688;
        const V t710 = t709 + t680;
        const V t711 = c32 * t684;
        const V t712 = c33 * t688;
        const V t713 = t711 + t712;
        const V t714 = t713 + t680;
        const V t715 = c34 * t683;
        const V t716 = c35 * t687;
        const V t717 = t715 + t716;
        const V t718 = t714 - t717;
        const V t719 = t714 + t717;
        const V t720 = c33 * t684;
        const V t721 = t680 - t720;
        const V t722 = c32 * t688;
        const V t723 = t721 - t722;
        const V t724 = c35 * t683;
        const V t725 = c34 * t687;
        const V t726 = t724 - t725;
        const V t727 = t723 - t726;
        const V t728 = t723 + t726;
        // spectrum block of 11, multiplier 2
        const V t729 = t487 + t617;
        // real block of 5
        const V t730 = t564 + t492;
        const V t731 = t564 - t492;
        const V t732 = t540 + t516;
        const V t733 = t540 - t516;
        const V t734 = t730 + t732;
        const V t735 = t734 - t588;
        const V t736 = c32 * t730;
        const V t737 = c33 * t732;
        const V t738 = t736 - t737;
        const V t739 = t738 - t588;
        const V t740 = c34 * t731;
        const V t741 = c35 * t733;
        const V t742 = t741 - t740;
        const V t743 = c33 * t730;
        const V t744 = t588 + t743;
        const V t745 = c32 * t732;
        const V t746 = t745 - t744;
        const V t747 = c35 * t731;
        const V t748 = c34 * t733;
        const V t749 = t747 + t748;
        // real block of 5
        const V t750 = t567 - t495;
        const V t751 = t567 + t495;
        const V t752 = t543 + t519;
        const V t753 = t519 - t543;
        const V t754 = t750 - t752;
        const V t755 = t754 - t591;
        const V t756 = c32 * t750;
        const V t757 = c33 * t752;
        const V t758 = t756 + t757;
        const V t759 = t758 - t591;
        const V t760 = c34 * t751;
        const V t761 = c35 * t753;
        const V t762 = t761 - t760;
        const V t763 = c33 * t750;
        const V t764 = t591 + t763;
        const V t765 = c32 * t752;
        const V t766 = t764 + t765;
        const V t767 = c35 * t751;
        const V t768 = c34 * t753;
        const V t769 = t767 + t768;
        // spectrum block of 11, multiplier 2
        const V t770 = c36 * t735;
        const V t771 = t610 - t770;
        const V t772 = c37 * t769;
        const V t773 = c38 * t766;
        const V t774 = t773 - t772;
        const V t775 = c37 * t766;
        const V t776 = c38 * t769;
        const V t777 = t776 + t775;
        const V t778 = c39 * t742;
        const V t779 = c40 * t739;
        const V t780 = t779 + t778;
        const V t781 = c39 * t739;
        const V t782 = c40 * t742;
        const V t783 = t782 - t781;
        const V t784 = c41 * t762;
        const V t785 = c42 * t759;
        const V t786 = t785 + t784;
        const V t787 = c41 * t759;
        const V t788 = c42 * t762;
        const V t789 = t788 - t787;
        const V t790 = c43 * t749;
        const V t791 = c44 * t746;
        const V t792 = t791 + t790;
        const V t793 = c43 * t746;
        const V t794 = c44 * t749;
        const V t795 = t794 - t793;
        const V t796 = c45 * t755;
        // spectrum block of 2
        const V t797 = t771 + t796;
        const V t798 = t771 - t796;
        // complex block of 2
        const V t799 = t783 - t789;
        const V t800 = t780 - t786;
        const V t801 = t783 + t789;
        const V t802 = t780 + t786;
        // complex block of 2
        const V t803 = t795 + t777;
        const V t804 = t774 - t792;
        const V t805 = t795 - t777;
        const V t806 = t792 + t774;
        // spectrum block of 5, multiplier 2
        const V t807 = t800 + t804;
        const V t808 = t807 + t797;
        const V t809 = c32 * t800;
        const V t810 = c33 * t804;
        const V t811 = t809 - t810;
        const V t812 = t811 + t797;
        const V t813 = c34 * t799;
        const V t814 = c35 * t803;
        const V t815 = t813 + t814;
        const V t816 = t812 - t815;
        const V t817 = t812 + t815;
        const V t818 = c33 * t800;
        const V t819 = t797 - t818;
        const V t820 = c32 * t804;
        const V t821 = t819 + t820;
        const V t822 = c35 * t799;
        const V t823 = c34 * t803;
        const V t824 = t822 - t823;
        const V t825 = t821 - t824;
        const V t826 = t821 + t824;
        // spectrum block of 5, multiplier 2
        const V t827 = t802 - t806;
        const V t828 = t827 + t798;
        const V t829 = c32 * t802;
        const V t830 = c33 * t806;
        const V t831 = t829 + t830;
        const V t832 = t831 + t798;
        const V t833 = c34 * t801;
        const V t834 = c35 * t805;
        const V t835 = t833 + t834;
        const V t836 = t832 - t835;
        const V t837 = t832 + t835;
        const V t838 = c33 * t802;
        const V t839 = t798 - t838;
        const V t840 = c32 * t806;
        const V t841 = t839 - t840;
        const V t842 = c35 * t801;
        const V t843 = c34 * t805;
        const V t844 = t842 - t843;
        const V t845 = t841 - t844;
        const V t846 = t841 + t844;
        // spectrum block of 11, multiplier 2
        const V t847 = t610 + t735;
        // spectrum block of 2
        const V t848 = t729 + t847;
        io.re(1, t848);
        const V t849 = t729 - t847;
        io.re(22, t849);
        // spectrum block of 2
        const V t850 = t690 + t808;
        io.re(12, t850);
        const V t851 = t690 - t808;
        io.re(11, t851);
        // spectrum block of 2
        const V t852 = t719 + t837;
        io.re(6, t852);
        const V t853 = t719 - t837;
        io.re(17, t853);
        // spectrum block of 2
        const V t854 = t707 + t825;
        io.re(3, t854);
        const V t855 = t707 - t825;
        io.re(20, t855);
        // spectrum block of 2
        const V t856 = t708 + t826;
        io.re(13, t856);
        const V t857 = t708 - t826;
        io.re(10, t857);
        // spectrum block of 2
        const V t858 = t698 + t816;
        io.re(18, t858);
        const V t859 = t698 - t816;
        io.re(5, t859);
        // spectrum block of 2
        const V t860 = t718 + t836;
        io.re(9, t860);
        const V t861 = t718 - t836;
        io.re(14, t861);
        // spectrum block of 2
        const V t862 = t728 + t846;
        io.re(16, t862);
        const V t863 = t728 - t846;
        io.re(7, t863);
        // spectrum block of 2
        const V t864 = t727 + t845;
        io.re(8, t864);
        const V t865 = t727 - t845;
        io.re(15, t865);
        // spectrum block of 2
        const V t866 = t699 + t817;
        io.re(4, t866);
        const V t867 = t699 - t817;
        io.re(19, t867);
        // spectrum block of 2
        const V t868 = t710 + t828;
        io.re(2, t868);
        const V t869 = t710 - t828;
        io.re(21, t869);
        // real block of 5
        const V t870 = t534 + t606;
        const V t871 = t534 - t606;
        const V t872 = t558 + t582;
        const V t873 = t558 - t582;
        const V t874 = t870 + t872;
        const V t875 = t874 + t510;
        const V t876 = c32 * t870;
        const V t877 = c33 * t872;
        const V t878 = t876 - t877;
        const V t879 = t878 + t510;
        const V t880 = c34 * t871;
        const V t881 = c35 * t873;
        const V t882 = t881 - t880;
        const V t883 = c33 * t870;
        const V t884 = t510 - t883;
        const V t885 = c32 * t872;
        const V t886 = t884 + t885;
        const V t887 = c35 * t871;
        const V t888 = c34 * t873;
        const V t889 = t887 + t888;
        // real block of 5
        const V t890 = t609 - t537;
        const V t891 = t537 + t609;
        const V t892 = t561 - t585;
        const V t893 = t561 + t585;
        const V t894 = t890 + t892;
        const V t895 = t894 + t513;
        const V t896 = c32 * t890;
        const V t897 = c33 * t892;
        const V t898 = t896 - t897;
        const V t899 = t898 + t513;
        const V t900 = c34 * t891;
        const V t901 = c35 * t893;
        const V t902 = t900 + t901;
        const V t903 = c33 * t890;
        const V t904 = t513 - t903;
        const V t905 = c32 * t892;
        const V t906 = t904 + t905;
        const V t907 = c35 * t891;
        const V t908 = c34 * t893;
        const V t909 = t907 - t908;
        // spectrum block of 11, multiplier 2
        const V t910 = c36 * t875;
        const V t911 = t489 - t910;
        const V t912 = c37 * t909;
        const V t913 = c38 * t906;
        const V t914 = t912 - t913;
        const V t915 = c37 * t906;
        const V t916 = c38 * t909;
        const V t917 = t916 + t915;
        const V t918 = c39 * t882;
        const V t919 = c40 * t879;
        const V t920 = t919 + t918;
        const V t921 = c39 * t879;
        const V t922 = c40 * t882;
        const V t923 = t922 - t921;
        const V t924 = c41 * t902;
        const V t925 = c42 * t899;
        const V t926 = t925 + t924;
        const V t927 = c41 * t899;
        const V t928 = c42 * t902;
        const V t929 = t928 - t927;
        const V t930 = c43 * t889;
        const V t931 = c44 * t886;
        const V t932 = t931 + t930;
        const V t933 = c43 * t886;
        const V t934 = c44 * t889;
        const V t935 = t934 - t933;
        const V t936 = c45 * t895;
        // spectrum block of 2
        const V t937 = t911 + t936;
        const V t938 = t911 - t936;
        // complex block of 2
        const V t939 = t923 - t929;
        const V t940 = t920 - t926;
        const V t941 = t923 + t929;
        const V t942 = t920 + t926;
        // complex block of 2
        const V t943 = t935 - t917;
        const V t944 = t914 - t932;
        const V t945 = t935 + t917;
        const V t946 = t932 + t914;
        // spectrum block of 5, multiplier 2
        const V t947 = t940 + t944;
        const V t948 = t947 + t937;
        const V t949 = c32 * t940;
        const V t950 = c33 * t944;
        const V t951 = t949 - t950;
        const V t952 = t951 + t937;
        const V t953 = c34 * t939;
        const V t954 = c35 * t943;
        const V t955 = t953 + t954;
        const V t956 = t952 - t955;
        const V t957 = t952 + t955;
        const V t958 = c33 * t940;
        const V t959 = t937 - t958;
        const V t960 = c32 * t944;
        const V t961 = t959 + t960;
        const V t962 = c35 * t939;
        const V t963 = c34 * t943;
        const V t964 = t962 - t963;
        const V t965 = t961 - t964;
        const V t966 = t961 + t964;
        // spectrum block of 5, multiplier 2
        const V t967 = t942 - t946;
        const V t968 = t967 + t938;
        const V t969 = c32 * t942;
        const V t970 = c33 * t946;
        const V t971 = t969 + t970;
        const V t972 = t971 + t938;
        const V t973 = c34 * t941;
        const V t974 = c35 * t945;
        const V t975 = t973 + t974;
        const V t976 = t972 - t975;
        const V t977 = t972 + t975;
        const V t978 = c33 * t942;
        const V t979 = t938 - t978;
        const V t980 = c32 * t946;
        const V t981 = t979 - t980;
        const V t982 = c35 * t941;
        const V t983 = c34 * t945;
        const V t984 = t982 - t983;
        const V t985 = t981 - t984;
        const V t986 = t981 + t984;
        // spectrum block of 11, multiplier 2
        const V t987 = t489 + t875;
        // real block of 5
        const V t988 = t570 - t498;
        const V t989 = t570 + t498;
        const V t990 = t546 + t522;
        const V t991 = t546 - t522;
        const V t992 = t988 + t990;
        const V t993 = t992 + t594;
        const V t994 = c32 * t988;
        const V t995 = c33 * t990;
        const V t996 = t994 - t995;
        const V t997 = t996 + t594;
        const V t998 = c34 * t989;
        const V t999 = c35 * t991;
        const V t1000 = t999 - t998;
        const V t1001 = c33 * t988;
        const V t1002 = t594 - t1001;
        const V t1003 = c32 * t990;
        const V t1004 = t1002 + t1003;
        const V t1005 = c35 * t989;
        const V t1006 = c34 * t991;
        const V t1007 = t1005 + t1006;
        // real block of 5
        const V t1008 = t573 + t501;
        const V t1009 = t501 - t573;
        const V t1010 = t549 + t525;
        const V t1011 = t549 - t525;
        const V t1012 = t1010 - t1008;
        const V t1013 = t1012 - t597;
        const V t1014 = c32 * t1008;
        const V t1015 = t597 + t1014;
        const V t1016 = c33 * t1010;
        const V t1017 = t1015 + t1016;
        const V t1018 = c34 * t1009;
        const V t1019 = c35 * t1011;
        const V t1020 = t1019 - t1018;
        const V t1021 = c33 * t1008;
        const V t1022 = c32 * t1010;
        const V t1023 = t1021 + t1022;
        const V t1024 = t1023 - t597;
        const V t1025 = c35 * t1009;
        const V t1026 = c34 * t1011;
        const V t1027 = t1025 + t1026;
        // spectrum block of 11, multiplier 2
        const V t1028 = c36 * t993;
        const V t1029 = t611 + t1028;
        const V t1030 = c37 * t1027;
        const V t1031 = c38 * t1024;
        const V t1032 = t1031 + t1030;
        const V t1033 = c37 * t1024;
        const V t1034 = c38 * t1027;
        const V t1035 = t1033 - t1034;
        const V t1036 = c39 * t1000;
        const V t1037 = c40 * t997;
        const V t1038 = t1037 + t1036;
        const V t1039 = c39 * t997;
        const V t1040 = c40 * t1000;
        const V t1041 = t1040 - t1039;
        const V t1042 = c41 * t1020;
        const V t1043 = c42 * t1017;
        const V t1044 = t1043 - t1042;
        const V t1045 = c41 * t1017;
        const V t1046 = c42 * t1020;
        const V t1047 = t1046 + t1045;
        const V t1048 = c43 * t1007;
        const V t1049 = c44 * t1004;
        const V t1050 = t1049 + t1048;
        const V t1051 = c43 * t1004;
        const V t1052 = c44 * t1007;
        const V t1053 = t1052 - t1051;
        const V t1054 = c45 * t1013;
        // spectrum block of 2
        const V t1055 = t1054 - t1029;
        const V t1056 = t1029 + t1054;
        // complex block of 2
        const V t1057 = t1041 - t1047;
        const V t1058 = t1038 + t1044;
        const V t1059 = t1041 + t1047;
        const V t1060 = t1038 - t1044;
        // complex block of 2
        const V t1061 = t1053 - t1035;
        const V t1062 = t1050 + t1032;
        const V t1063 = t1053 + t1035;
        const V t1064 = t1032 - t1050;
        // spectrum block of 5, multiplier 2
        const V t1065 = t1058 - t1062;
        const V t1066 = t1065 + t1055;
        const V t1067 = c32 * t1058;
        const V t1068 = c33 * t1062;
        const V t1069 = t1067 + t1068;
        const V t1070 = t1069 + t1055;
        const V t1071 = c34 * t1057;
        const V t1072 = c35 * t1061;
        const V t1073 = t1071 + t1072;
        const V t1074 = t1070 - t1073;
        const V t1075 = t1070 + t1073;
        const V t1076 = c33 * t1058;
        const V t1077 = t1055 - t1076;
        const V t1078 = c32 * t1062;
        const V t1079 = t1077 - t1078;
        const V t1080 = c35 * t1057;
        const V t1081 = c34 * t1061;
        const V t1082 = t1080 - t1081;
        const V t1083 = t1079 - t1082;
        const V t1084 = t1079 + t1082;
        // spectrum block of 5, multiplier 2
        const V t1085 = t1060 + t1064;
        const V t1086 = t1085 - t1056;
        const V t1087 = c32 * t1060;
        const V t1088 = c33 * t1064;
        const V t1089 = t1087 - t1088;
        const V t1090 = t1089 - t1056;
        const V t1091 = c34 * t1059;
        const V t1092 = c35 * t1063;
        const V t1093 = t1091 + t1092;
        const V t1094 = t1090 - t1093;
        const V t1095 = t1090 + t1093;
        const V t1096 = c33 * t1060;
        const V t1097 = t1056 + t1096;
        const V t1098 = c32 * t1064;
        const V t1099 = t1098 - t1097;
        const V t1100 = c35 * t1059;
        const V t1101 = c34 * t1063;
        const V t1102 = t1100 - t1101;
        const V t1103 = t1099 - t1102;
        const V t1104 = t1099 + t1102;
        // spectrum block of 11, multiplier 2
        const V t1105 = t993 - t611;
        // spectrum block of 2
        const V t1106 = t987 + t1105;
        io.im(1, t1106);
        const V t1107 = t987 - t1105;
        io.im(22, t1107);
        // spectrum block of 2
        const V t1108 = t948 + t1066;
        io.im(12, t1108);
        const V t1109 = t948 - t1066;
        io.im(11, t1109);
        // spectrum block of 2
        const V t1110 = t977 + t1095;
        io.im(6, t1110);
        const V t1111 = t977 - t1095;
        io.im(17, t1111);
        // spectrum block of 2
        const V t1112 = t965 + t1083;
        io.im(3, t1112);
        const V t1113 = t965 - t1083;
        io.im(20, t1113);
        // spectrum block of 2
        const V t1114 = t966 + t1084;
        io.im(13, t1114);
        const V t1115 = t966 - t1084;
        io.im(10, t1115);
        // spectrum block of 2
        const V t1116 = t956 + t1074;
        io.im(18, t1116);
        const V t1117 = t956 - t1074;
        io.im(5, t1117);
        // spectrum block of 2
        const V t1118 = t976 + t1094;
        io.im(9, t1118);
        const V t1119 = t976 - t1094;
        io.im(14, t1119);
        // spectrum block of 2
        const V t1120 = t986 + t1104;
        io.im(16, t1120);
        const V t1121 = t986 - t1104;
        io.im(7, t1121);
        // spectrum block of 2
        const V t1122 = t985 + t1103;
        io.im(8, t1122);
        const V t1123 = t985 - t1103;
        io.im(15, t1123);
        // spectrum block of 2
        const V t1124 = t957 + t1075;
        io.im(4, t1124);
        const V t1125 = t957 - t1075;
        io.im(19, t1125);
        // spectrum block of 2
        const V t1126 = t968 + t1086;
        io.im(2, t1126);
        const V t1127 = t968 - t1086;
        io.im(21, t1127);
    }
};

template Status ZULG_CALL kernel<Family::DFTFwd_CToC, 23, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTFwd_CToC, 23, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CToC, 23, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CToC, 23, double>(const double*, double*, std::int32_t);

}  // namespace zulg
