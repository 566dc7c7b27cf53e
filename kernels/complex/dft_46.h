// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 46.
// Complex DFT of 46 points, prime-factor, order 23, 2.
// 726 additions, 654 subtractions, 968 multiplications (1060 with `scale`); 46 constants; 146 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<46> {
    static constexpr int steps = 2440;  // with `scale`
    static constexpr double inverseRoot = 0.14744195615489714;  // 1/sqrt(46), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.14231483827328514,  // c[4]: -cos 2 pi 8/11
        0.9594929736144974,  // c[5]: -cos 2 pi 6/11
        0.41541501300188644,  // c[6]: cos 2 pi 2/11
        0.8412535328311812,  // c[7]: cos 2 pi 12/11
        0.6548607339452851,  // c[8]: -cos 2 pi 18/11
        0.9096319953545183,  // c[9]: sin 2 pi 2/11
        0.7557495743542583,  // c[10]: -sin 2 pi 18/11
        0.28173255684142967,  // c[11]: -sin 2 pi 6/11
        0.9898214418809327,  // c[12]: -sin 2 pi 8/11
        0.5406408174555976,  // c[13]: sin 2 pi 12/11
        0.3770255864361907,  // c[14]: -Q[2] of 11
        0.5457579199356125,  // c[15]: P[2] of 11
        0.24831391555962465,  // c[16]: -P[3] of 11
        0.6150936508690751,  // c[17]: -Q[3] of 11
        0.6626305969383026,  // c[18]: -Q[4] of 11
        0.030342906933726127,  // c[19]: -P[4] of 11
        0.21879791731559586,  // c[20]: P[1] of 11
        0.6262008235209833,  // c[21]: -Q[1] of 11
        0.1396613400420585,  // c[22]: Q[2] of 23
        0.4130101145562366,  // c[23]: P[2] of 23
        0.42985679697172136,  // c[24]: -Q[4] of 23
        0.07284077652875139,  // c[25]: -P[4] of 23
        0.1719176660785936,  // c[26]: Q[10] of 23
        0.4006581594304406,  // c[27]: P[10] of 23
        0.3397700700904962,  // c[28]: -Q[6] of 23
        0.2732012886111602,  // c[29]: -P[6] of 23
        0.05696081894716527,  // c[30]: Q[8] of 23
        0.4322477411542684,  // c[31]: P[8] of 23
        0.4075964682115579,  // c[32]: -P[9] of 23
        0.15475065017493012,  // c[33]: -Q[9] of 23
        0.1863662746045921,  // c[34]: P[7] of 23
        0.3941449686576057,  // c[35]: -Q[7] of 23
        0.17418154463549565,  // c[36]: -P[1] of 23
        0.39967916400094217,  // c[37]: Q[1] of 23
        0.4166015292602189,  // c[38]: -P[5] of 23
        0.12855275355334153,  // c[39]: Q[5] of 23
        0.2936565344532715,  // c[40]: P[3] of 23
        0.3222553093449257,  // c[41]: Q[3] of 23
        0.1,  // c[42]: 1/10
        0.33166247903553997,  // c[43]: beta of 11
        0.045454545454545456,  // c[44]: 1/22
        0.21799234196875997,  // c[45]: beta of 23
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x45r = io.re(45);
        const V t0 = x1r + x45r;
        const V t1 = x1r - x45r;
        // real block of 2
        const V x27r = io.re(27);
        const V x19r = io.re(19);
        const V t2 = x27r + x19r;
        const V t3 = x27r - x19r;
        // real block of 11, multiplier 2
        const V t4 = t2 + t0;
        const V t5 = t2 - t0;
        // real block of 11, multiplier 2
        const V t6 = t3 + t1;
        const V t7 = t3 - t1;
        // real block of 2
        const V x3r = io.re(3);
        const V x43r = io.re(43);
        const V t8 = x3r + x43r;
        const V t9 = x3r - x43r;
        // real block of 2
        const V x9r = io.re(9);
        const V x37r = io.re(37);
        const V t10 = x9r + x37r;
        const V t11 = x9r - x37r;
        // real block of 11, multiplier 2
        const V t12 = t10 - t8;
        // real block of 11, multiplier 2
        const V t13 = t11 - t9;
        // real block of 2
        const V x39r = io.re(39);
        const V x7r = io.re(7);
        const V t14 = x39r + x7r;
        const V t15 = x39r - x7r;
        // real block of 2
        const V x29r = io.re(29);
        const V x17r = io.re(17);
        const V t16 = x29r + x17r;
        const V t17 = x29r - x17r;
        // real block of 11, multiplier 2
        const V t18 = t14 + t16;
        const V t19 = t14 - t16;
        // real block of 11, multiplier 2
        const V t20 = t15 + t17;
        const V t21 = t15 - t17;
        // real block of 2
        const V x35r = io.re(35);
        const V x11r = io.re(11);
        const V t22 = x35r + x11r;
        const V t23 = x35r - x11r;
        // real block of 2
        const V x31r = io.re(31);
        const V x15r = io.re(15);
        const V t24 = x31r + x15r;
        const V t25 = x31r - x15r;
        // real block of 11, multiplier 2
        const V t26 = t22 + t24;
        const V t27 = t22 - t24;
        // real block of 11, multiplier 2
        const V t28 = t23 + t25;
        const V t29 = t23 - t25;
        // real block of 2
        const V x25r = io.re(25);
        const V x21r = io.re(21);
        const V t30 = x25r + x21r;
        const V t31 = x25r - x21r;
        // real block of 11, multiplier 2
        const V t32 = t10 + t8;
        const V t33 = c[4] * t32;
        const V t34 = c[5] * t32;
        const V t35 = c[6] * t32;
        const V t36 = c[7] * t32;
        const V t37 = c[8] * t32;
        const V t38 = t4 + t26;
        const V t39 = t38 + t18;
        const V t40 = c[6] * t4;
        const V t41 = c[8] * t26;
        const V t42 = t40 - t41;
        const V t43 = c[5] * t18;
        const V t44 = t42 - t43;
        const V t45 = c[9] * t5;
        const V t46 = c[10] * t27;
        const V t47 = c[11] * t19;
        const V t48 = t46 + t47;
        const V t49 = c[12] * t12;
        const V t50 = c[8] * t4;
        const V t51 = t30 - t50;
        const V t52 = c[4] * t26;
        const V t53 = t51 - t52;
        const V t54 = c[7] * t18;
        const V t55 = c[10] * t5;
        const V t56 = c[12] * t27;
        const V t57 = t55 + t56;
        const V t58 = c[13] * t19;
        const V t59 = t57 + t58;
        const V t60 = c[11] * t12;
        const V t61 = c[5] * t4;
        const V t62 = t30 - t61;
        const V t63 = c[7] * t26;
        const V t64 = t62 + t63;
        const V t65 = c[8] * t18;
        const V t66 = c[11] * t5;
        const V t67 = c[13] * t27;
        const V t68 = t66 + t67;
        const V t69 = c[10] * t19;
        const V t70 = t68 + t69;
        const V t71 = c[9] * t12;
        const V t72 = c[4] * t4;
        const V t73 = t30 - t72;
        const V t74 = c[5] * t26;
        const V t75 = t73 - t74;
        const V t76 = c[6] * t18;
        const V t77 = c[12] * t5;
        const V t78 = c[11] * t27;
        const V t79 = t77 + t78;
        const V t80 = c[13] * t12;
        const V t81 = t79 + t80;
        const V t82 = c[9] * t19;
        const V t83 = c[7] * t4;
        const V t84 = c[6] * t26;
        const V t85 = t83 + t84;
        const V t86 = c[4] * t18;
        const V t87 = t85 - t86;
        const V t88 = c[13] * t5;
        const V t89 = c[12] * t19;
        const V t90 = t88 + t89;
        const V t91 = c[10] * t12;
        const V t92 = t90 + t91;
        const V t93 = c[9] * t27;
        // real block of 11, multiplier 2
        const V t94 = t11 + t9;
        const V t95 = c[4] * t94;
        const V t96 = c[5] * t94;
        const V t97 = c[6] * t94;
        const V t98 = c[7] * t94;
        const V t99 = c[8] * t94;
        const V t100 = t6 + t28;
        const V t101 = c[6] * t6;
        const V t102 = c[8] * t28;
        const V t103 = t101 - t102;
        const V t104 = c[5] * t20;
        const V t105 = t103 - t104;
        const V t106 = c[9] * t7;
        const V t107 = c[10] * t29;
        const V t108 = c[11] * t21;
        const V t109 = t107 + t108;
        const V t110 = c[12] * t13;
        const V t111 = c[8] * t6;
        const V t112 = t31 - t111;
        const V t113 = c[4] * t28;
        const V t114 = t112 - t113;
        const V t115 = c[7] * t20;
        const V t116 = c[10] * t7;
        const V t117 = c[12] * t29;
        const V t118 = t116 + t117;
        const V t119 = c[13] * t21;
        const V t120 = t118 + t119;
        const V t121 = c[11] * t13;
        const V t122 = c[5] * t6;
        const V t123 = t31 - t122;
        const V t124 = c[7] * t28;
        const V t125 = t123 + t124;
        const V t126 = c[8] * t20;
        const V t127 = c[11] * t7;
        const V t128 = c[13] * t29;
        const V t129 = t127 + t128;
        const V t130 = c[10] * t21;
        const V t131 = t129 + t130;
        const V t132 = c[9] * t13;
        const V t133 = c[4] * t6;
        const V t134 = t31 - t133;
        const V t135 = c[5] * t28;
        const V t136 = t134 - t135;
        const V t137 = c[6] * t20;
        const V t138 = c[12] * t7;
        const V t139 = c[11] * t29;
        const V t140 = t138 + t139;
        const V t141 = c[13] * t13;
        const V t142 = t140 + t141;
        const V t143 = c[9] * t21;
        const V t144 = c[7] * t6;
        const V t145 = c[6] * t28;
        const V t146 = t144 + t145;
        const V t147 = c[4] * t20;
        const V t148 = t146 - t147;
        const V t149 = c[13] * t7;
        const V t150 = c[12] * t21;
        const V t151 = t149 + t150;
        const V t152 = c[10] * t13;
        const V t153 = t151 + t152;
        const V t154 = c[9] * t29;
        // real block of 2
        const V x41r = io.re(41);
        const V x5r = io.re(5);
        const V t155 = x41r + x5r;
        const V t156 = x41r - x5r;
        // real block of 2
        const V x13r = io.re(13);
        const V x33r = io.re(33);
        const V t157 = x13r + x33r;
        const V t158 = x13r - x33r;
        // real block of 11, multiplier 2
        const V t159 = t157 + t155;
        const V t160 = c[7] * t159;
        const V t161 = c[6] * t159;
        const V t162 = c[4] * t159;
        const V t163 = c[8] * t159;
        const V t164 = c[5] * t159;
        const V t165 = t157 - t155;
        const V t166 = c[13] * t165;
        const V t167 = c[9] * t165;
        const V t168 = c[12] * t165;
        const V t169 = c[10] * t165;
        const V t170 = c[11] * t165;
        // real block of 11, multiplier 2
        const V t171 = t158 + t156;
        const V t172 = c[7] * t171;
        const V t173 = c[6] * t171;
        const V t174 = c[4] * t171;
        const V t175 = c[8] * t171;
        const V t176 = c[5] * t171;
        const V t177 = t158 - t156;
        const V t178 = c[13] * t177;
        const V t179 = c[9] * t177;
        const V t180 = c[12] * t177;
        const V t181 = c[10] * t177;
        const V t182 = c[11] * t177;
        // real block of 11, multiplier 2
        const V t183 = t39 + t32;
        const V t184 = t183 + t159;
        const V t185 = t184 + t30;
        // complex block of 23, multiplier 2
        const V t186 = c[44] * t185;
        // real block of 11, multiplier 2
        const V t187 = t44 - t33;
        const V t188 = t187 + t160;
        const V t189 = t188 + t30;
        const V t190 = t48 + t49;
        const V t191 = t190 - t45;
        const V t192 = t191 - t166;
        // complex block of 23, multiplier 2
        const V t193 = c[22] * t192;
        const V t194 = c[23] * t189;
        const V t195 = t194 - t193;
        const V t196 = c[22] * t189;
        const V t197 = c[23] * t192;
        const V t198 = t197 + t196;
        // real block of 11, multiplier 2
        const V t199 = t53 + t54;
        const V t200 = t199 - t34;
        const V t201 = t200 + t161;
        const V t202 = t59 + t60;
        const V t203 = t202 + t167;
        // complex block of 23, multiplier 2
        const V t204 = c[24] * t203;
        const V t205 = c[25] * t203;
        // real block of 11, multiplier 2
        const V t206 = t87 - t37;
        const V t207 = t206 - t164;
        const V t208 = t207 + t30;
        const V t209 = t92 - t93;
        const V t210 = t209 - t170;
        // complex block of 23, multiplier 2
        const V t211 = c[26] * t210;
        const V t212 = c[27] * t210;
        const V t213 = c[25] * t201;
        const V t214 = t213 + t204;
        const V t215 = c[27] * t208;
        const V t216 = t215 - t211;
        // real block of 5
        const V t217 = t216 - t214;
        const V t218 = t214 + t216;
        // complex block of 23, multiplier 2
        const V t219 = c[24] * t201;
        const V t220 = t205 - t219;
        const V t221 = c[26] * t208;
        const V t222 = t212 + t221;
        // real block of 5
        const V t223 = t222 - t220;
        const V t224 = t220 + t222;
        // real block of 11, multiplier 2
        const V t225 = t64 - t65;
        const V t226 = t225 + t35;
        const V t227 = t226 - t162;
        const V t228 = t70 - t71;
        const V t229 = t228 - t168;
        // complex block of 23, multiplier 2
        const V t230 = c[28] * t229;
        const V t231 = c[29] * t229;
        // real block of 11, multiplier 2
        const V t232 = t75 + t76;
        const V t233 = t232 + t36;
        const V t234 = t233 - t163;
        const V t235 = t81 - t82;
        const V t236 = t235 - t169;
        // complex block of 23, multiplier 2
        const V t237 = c[30] * t236;
        const V t238 = c[31] * t236;
        const V t239 = c[29] * t227;
        const V t240 = t230 - t239;
        const V t241 = c[31] * t234;
        const V t242 = t241 - t237;
        // real block of 5
        const V t243 = t240 + t242;
        const V t244 = t240 - t242;
        // complex block of 23, multiplier 2
        const V t245 = c[28] * t227;
        const V t246 = t231 + t245;
        const V t247 = c[30] * t234;
        const V t248 = t238 + t247;
        // real block of 5
        const V t249 = t248 - t246;
        const V t250 = t246 + t248;
        // real block of 11, multiplier 2
        const V t251 = t100 + t20;
        const V t252 = t251 + t94;
        const V t253 = t252 + t171;
        const V t254 = t253 + t31;
        const V t255 = t105 - t95;
        const V t256 = t255 + t172;
        const V t257 = t256 + t31;
        const V t258 = t109 + t110;
        const V t259 = t258 - t106;
        const V t260 = t259 - t178;
        // complex block of 23, multiplier 2
        const V t261 = c[32] * t260;
        const V t262 = c[33] * t257;
        const V t263 = t262 + t261;
        const V t264 = c[32] * t257;
        const V t265 = c[33] * t260;
        const V t266 = t264 - t265;
        // real block of 11, multiplier 2
        const V t267 = t114 + t115;
        const V t268 = t267 - t96;
        const V t269 = t268 + t173;
        const V t270 = t120 + t121;
        const V t271 = t270 + t179;
        // complex block of 23, multiplier 2
        const V t272 = c[34] * t271;
        const V t273 = c[35] * t271;
        // real block of 11, multiplier 2
        const V t274 = t148 - t99;
        const V t275 = t274 - t176;
        const V t276 = t275 + t31;
        const V t277 = t153 - t154;
        const V t278 = t277 - t182;
        // complex block of 23, multiplier 2
        const V t279 = c[36] * t278;
        const V t280 = c[37] * t278;
        const V t281 = c[37] * t276;
        const V t282 = t279 - t281;
        const V t283 = c[35] * t269;
        const V t284 = t283 + t272;
        // real block of 5
        const V t285 = t284 + t282;
        const V t286 = t284 - t282;
        // complex block of 23, multiplier 2
        const V t287 = c[36] * t276;
        const V t288 = t280 + t287;
        const V t289 = c[34] * t269;
        const V t290 = t273 - t289;
        // real block of 5
        const V t291 = t290 - t288;
        const V t292 = t290 + t288;
        // real block of 11, multiplier 2
        const V t293 = t125 - t126;
        const V t294 = t293 + t97;
        const V t295 = t294 - t174;
        const V t296 = t131 - t132;
        const V t297 = t296 - t180;
        // complex block of 23, multiplier 2
        const V t298 = c[38] * t297;
        const V t299 = c[39] * t297;
        // real block of 11, multiplier 2
        const V t300 = t136 + t137;
        const V t301 = t300 + t98;
        const V t302 = t301 - t175;
        const V t303 = t142 - t143;
        const V t304 = t303 - t181;
        // complex block of 23, multiplier 2
        const V t305 = c[40] * t304;
        const V t306 = c[41] * t304;
        const V t307 = c[41] * t302;
        const V t308 = t307 + t305;
        const V t309 = c[39] * t295;
        const V t310 = t298 - t309;
        // real block of 5
        const V t311 = t310 - t308;
        const V t312 = t310 + t308;
        // complex block of 23, multiplier 2
        const V t313 = c[40] * t302;
        const V t314 = t306 - t313;
        const V t315 = c[38] * t295;
        const V t316 = t299 + t315;
        // real block of 5
        const V t317 = t316 + t314;
        const V t318 = t314 - t316;
        // real block of 2
        const V x1i = io.im(1);
        const V x45i = io.im(45);
        const V t319 = x1i + x45i;
        const V t320 = x1i - x45i;
        // real block of 2
        const V x27i = io.im(27);
        const V x19i = io.im(19);
        const V t321 = x27i + x19i;
        const V t322 = x27i - x19i;
        // real block of 11, multiplier 2
        const V t323 = t321 + t319;
        const V t324 = t321 - t319;
        // real block of 11, multiplier 2
        const V t325 = t322 + t320;
        const V t326 = t322 - t320;
        // real block of 2
        const V x3i = io.im(3);
        const V x43i = io.im(43);
        const V t327 = x3i + x43i;
        const V t328 = x3i - x43i;
        // real block of 2
        const V x9i = io.im(9);
        const V x37i = io.im(37);
        const V t329 = x9i + x37i;
        const V t330 = x9i - x37i;
        // real block of 11, multiplier 2
        const V t331 = t329 - t327;
        // real block of 11, multiplier 2
        const V t332 = t330 - t328;
        // real block of 2
        const V x39i = io.im(39);
        const V x7i = io.im(7);
        const V t333 = x39i + x7i;
        const V t334 = x39i - x7i;
        // real block of 2
        const V x29i = io.im(29);
        const V x17i = io.im(17);
        const V t335 = x29i + x17i;
        const V t336 = x29i - x17i;
        // real block of 11, multiplier 2
        const V t337 = t333 + t335;
        const V t338 = t333 - t335;
        // real block of 11, multiplier 2
        const V t339 = t334 + t336;
        const V t340 = t334 - t336;
        // real block of 2
        const V x35i = io.im(35);
        const V x11i = io.im(11);
        const V t341 = x35i + x11i;
        const V t342 = x35i - x11i;
        // real block of 2
        const V x31i = io.im(31);
        const V x15i = io.im(15);
        const V t343 = x31i + x15i;
        const V t344 = x31i - x15i;
        // real block of 11, multiplier 2
        const V t345 = t341 + t343;
        const V t346 = t341 - t343;
        // real block of 11, multiplier 2
        const V t347 = t342 + t344;
        const V t348 = t342 - t344;
        // real block of 2
        const V x25i = io.im(25);
        const V x21i = io.im(21);
        const V t349 = x25i + x21i;
        const V t350 = x25i - x21i;
        // real block of 11, multiplier 2
        const V t351 = t329 + t327;
        const V t352 = c[4] * t351;
        const V t353 = c[5] * t351;
        const V t354 = c[6] * t351;
        const V t355 = c[7] * t351;
        const V t356 = c[8] * t351;
        const V t357 = t323 + t345;
        const V t358 = t357 + t337;
        const V t359 = c[6] * t323;
        const V t360 = c[8] * t345;
        const V t361 = t359 - t360;
        const V t362 = c[5] * t337;
        const V t363 = t361 - t362;
        const V t364 = c[9] * t324;
        const V t365 = c[10] * t346;
        const V t366 = c[11] * t338;
        const V t367 = t365 + t366;
        const V t368 = c[12] * t331;
        const V t369 = c[8] * t323;
        const V t370 = t349 - t369;
        const V t371 = c[4] * t345;
        const V t372 = t370 - t371;
        const V t373 = c[7] * t337;
        const V t374 = c[10] * t324;
        const V t375 = c[12] * t346;
        const V t376 = t374 + t375;
        const V t377 = c[13] * t338;
        const V t378 = t376 + t377;
        const V t379 = c[11] * t331;
        const V t380 = c[5] * t323;
        const V t381 = t349 - t380;
        const V t382 = c[7] * t345;
        const V t383 = t381 + t382;
        const V t384 = c[8] * t337;
        const V t385 = c[11] * t324;
        const V t386 = c[13] * t346;
        const V t387 = t385 + t386;
        const V t388 = c[10] * t338;
        const V t389 = t387 + t388;
        const V t390 = c[9] * t331;
        const V t391 = c[4] * t323;
        const V t392 = t349 - t391;
        const V t393 = c[5] * t345;
        const V t394 = t392 - t393;
        const V t395 = c[6] * t337;
        const V t396 = c[12] * t324;
        const V t397 = c[11] * t346;
        const V t398 = t396 + t397;
        const V t399 = c[13] * t331;
        const V t400 = t398 + t399;
        const V t401 = c[9] * t338;
        const V t402 = c[7] * t323;
        const V t403 = c[6] * t345;
        const V t404 = t402 + t403;
        const V t405 = c[4] * t337;
        const V t406 = t404 - t405;
        const V t407 = c[13] * t324;
        const V t408 = c[12] * t338;
        const V t409 = t407 + t408;
        const V t410 = c[10] * t331;
        const V t411 = t409 + t410;
        const V t412 = c[9] * t346;
        // real block of 11, multiplier 2
        const V t413 = t330 + t328;
        const V t414 = c[4] * t413;
        const V t415 = c[5] * t413;
        const V t416 = c[6] * t413;
        const V t417 = c[7] * t413;
        const V t418 = c[8] * t413;
        const V t419 = t325 + t347;
        const V t420 = c[6] * t325;
        const V t421 = c[8] * t347;
        const V t422 = t420 - t421;
        const V t423 = c[5] * t339;
        const V t424 = t422 - t423;
        const V t425 = c[9] * t326;
        const V t426 = c[10] * t348;
        const V t427 = c[11] * t340;
        const V t428 = t426 + t427;
        const V t429 = c[12] * t332;
        const V t430 = c[8] * t325;
        const V t431 = t350 - t430;
        const V t432 = c[4] * t347;
        const V t433 = t431 - t432;
        const V t434 = c[7] * t339;
        const V t435 = c[10] * t326;
        const V t436 = c[12] * t348;
        const V t437 = t435 + t436;
        const V t438 = c[13] * t340;
        const V t439 = t437 + t438;
        const V t440 = c[11] * t332;
        const V t441 = c[5] * t325;
        const V t442 = t350 - t441;
        const V t443 = c[7] * t347;
        const V t444 = t442 + t443;
        const V t445 = c[8] * t339;
        const V t446 = c[11] * t326;
        const V t447 = c[13] * t348;
        const V t448 = t446 + t447;
        const V t449 = c[10] * t340;
        const V t450 = t448 + t449;
        const V t451 = c[9] * t332;
        const V t452 = c[4] * t325;
        const V t453 = t350 - t452;
        const V t454 = c[5] * t347;
        const V t455 = t453 - t454;
        const V t456 = c[6] * t339;
        const V t457 = c[12] * t326;
        const V t458 = c[11] * t348;
        const V t459 = t457 + t458;
        const V t460 = c[13] * t332;
        const V t461 = t459 + t460;
        const V t462 = c[9] * t340;
        const V t463 = c[7] * t325;
        const V t464 = c[6] * t347;
        const V t465 = t463 + t464;
        const V t466 = c[4] * t339;
        const V t467 = t465 - t466;
        const V t468 = c[13] * t326;
        const V t469 = c[12] * t340;
        const V t470 = t468 + t469;
        const V t471 = c[10] * t332;
        const V t472 = t470 + t471;
        const V t473 = c[9] * t348;
        // real block of 2
        const V x41i = io.im(41);
        const V x5i = io.im(5);
        const V t474 = x41i + x5i;
        const V t475 = x41i - x5i;
        // real block of 2
        const V x13i = io.im(13);
        const V x33i = io.im(33);
        const V t476 = x13i + x33i;
        const V t477 = x13i - x33i;
        // real block of 11, multiplier 2
        const V t478 = t476 + t474;
        const V t479 = c[7] * t478;
        const V t480 = c[6] * t478;
        const V t481 = c[4] * t478;
        const V t482 = c[8] * t478;
        const V t483 = c[5] * t478;
        const V t484 = t476 - t474;
        const V t485 = c[13] * t484;
        const V t486 = c[9] * t484;
        const V t487 = c[12] * t484;
        const V t488 = c[10] * t484;
        const V t489 = c[11] * t484;
        // real block of 11, multiplier 2
        const V t490 = t477 + t475;
        const V t491 = c[7] * t490;
        const V t492 = c[6] * t490;
        const V t493 = c[4] * t490;
        const V t494 = c[8] * t490;
        const V t495 = c[5] * t490;
        const V t496 = t477 - t475;
        const V t497 = c[13] * t496;
        const V t498 = c[9] * t496;
        const V t499 = c[12] * t496;
        const V t500 = c[10] * t496;
        const V t501 = c[11] * t496;
        // real block of 11, multiplier 2
        const V t502 = t358 + t351;
        const V t503 = t502 + t478;
        const V t504 = t503 + t349;
        // complex block of 23, multiplier 2
        const V t505 = c[44] * t504;
        // real block of 11, multiplier 2
        const V t506 = t363 - t352;
        const V t507 = t506 + t479;
        const V t508 = t507 + t349;
        const V t509 = t367 + t368;
        const V t510 = t509 - t364;
        const V t511 = t510 - t485;
        // complex block of 23, multiplier 2
        const V t512 = c[22] * t511;
        const V t513 = c[23] * t508;
        const V t514 = t513 - t512;
        const V t515 = c[22] * t508;
        const V t516 = c[23] * t511;
        const V t517 = t516 + t515;
        // real block of 11, multiplier 2
        const V t518 = t372 + t373;
        const V t519 = t518 - t353;
        const V t520 = t519 + t480;
        const V t521 = t378 + t379;
        const V t522 = t521 + t486;
        // complex block of 23, multiplier 2
        const V t523 = c[24] * t522;
        const V t524 = c[25] * t522;
        // real block of 11, multiplier 2
        const V t525 = t406 - t356;
        const V t526 = t525 - t483;
        const V t527 = t526 + t349;
        const V t528 = t411 - t412;
        const V t529 = t528 - t489;
        // complex block of 23, multiplier 2
        const V t530 = c[26] * t529;
        const V t531 = c[27] * t529;
        const V t532 = c[25] * t520;
        const V t533 = t532 + t523;
        const V t534 = c[27] * t527;
        const V t535 = t534 - t530;
        // real block of 5
        const V t536 = t535 - t533;
        const V t537 = t533 + t535;
        // complex block of 23, multiplier 2
        const V t538 = c[24] * t520;
        const V t539 = t524 - t538;
        const V t540 = c[26] * t527;
        const V t541 = t531 + t540;
        // real block of 5
        const V t542 = t541 - t539;
        const V t543 = t539 + t541;
        // real block of 11, multiplier 2
        const V t544 = t383 - t384;
        const V t545 = t544 + t354;
        const V t546 = t545 - t481;
        const V t547 = t389 - t390;
        const V t548 = t547 - t487;
        // complex block of 23, multiplier 2
        const V t549 = c[28] * t548;
        const V t550 = c[29] * t548;
        // real block of 11, multiplier 2
        const V t551 = t394 + t395;
        const V t552 = t551 + t355;
        const V t553 = t552 - t482;
        const V t554 = t400 - t401;
        const V t555 = t554 - t488;
        // complex block of 23, multiplier 2
        const V t556 = c[30] * t555;
        const V t557 = c[31] * t555;
        const V t558 = c[29] * t546;
        const V t559 = t549 - t558;
        const V t560 = c[31] * t553;
        const V t561 = t560 - t556;
        // real block of 5
        const V t562 = t559 + t561;
        const V t563 = t559 - t561;
        // complex block of 23, multiplier 2
        const V t564 = c[28] * t546;
        const V t565 = t550 + t564;
        const V t566 = c[30] * t553;
        const V t567 = t557 + t566;
        // real block of 5
        const V t568 = t567 - t565;
        const V t569 = t565 + t567;
        // real block of 11, multiplier 2
        const V t570 = t419 + t339;
        const V t571 = t570 + t413;
        const V t572 = t571 + t490;
        const V t573 = t572 + t350;
        const V t574 = t424 - t414;
        const V t575 = t574 + t491;
        const V t576 = t575 + t350;
        const V t577 = t428 + t429;
        const V t578 = t577 - t425;
        const V t579 = t578 - t497;
        // complex block of 23, multiplier 2
        const V t580 = c[32] * t579;
        const V t581 = c[33] * t576;
        const V t582 = t581 + t580;
        const V t583 = c[32] * t576;
        const V t584 = c[33] * t579;
        const V t585 = t584 - t583;
        // real block of 11, multiplier 2
        const V t586 = t433 + t434;
        const V t587 = t586 - t415;
        const V t588 = t587 + t492;
        const V t589 = t439 + t440;
        const V t590 = t589 + t498;
        // complex block of 23, multiplier 2
        const V t591 = c[34] * t590;
        const V t592 = c[35] * t590;
        // real block of 11, multiplier 2
        const V t593 = t467 - t418;
        const V t594 = t593 - t495;
        const V t595 = t594 + t350;
        const V t596 = t472 - t473;
        const V t597 = t596 - t501;
        // complex block of 23, multiplier 2
        const V t598 = c[36] * t597;
        const V t599 = c[37] * t597;
        const V t600 = c[37] * t595;
        const V t601 = t600 - t598;
        const V t602 = c[35] * t588;
        const V t603 = t602 + t591;
        // real block of 5
        const V t604 = t601 - t603;
        const V t605 = t603 + t601;
        // complex block of 23, multiplier 2
        const V t606 = c[36] * t595;
        const V t607 = t599 + t606;
        const V t608 = c[34] * t588;
        const V t609 = t608 - t592;
        // real block of 5
        const V t610 = t609 + t607;
        const V t611 = t609 - t607;
        // real block of 11, multiplier 2
        const V t612 = t444 - t445;
        const V t613 = t612 + t416;
        const V t614 = t613 - t493;
        const V t615 = t450 - t451;
        const V t616 = t615 - t499;
        // complex block of 23, multiplier 2
        const V t617 = c[38] * t616;
        const V t618 = c[39] * t616;
        // real block of 11, multiplier 2
        const V t619 = t455 + t456;
        const V t620 = t619 + t417;
        const V t621 = t620 - t494;
        const V t622 = t461 - t462;
        const V t623 = t622 - t500;
        // complex block of 23, multiplier 2
        const V t624 = c[40] * t623;
        const V t625 = c[41] * t623;
        const V t626 = c[41] * t621;
        const V t627 = t626 + t624;
        const V t628 = c[39] * t614;
        const V t629 = t628 - t617;
        // real block of 5
        const V t630 = t629 + t627;
        const V t631 = t629 - t627;
        // complex block of 23, multiplier 2
        const V t632 = c[40] * t621;
        const V t633 = t632 - t625;
        const V t634 = c[38] * t614;
        const V t635 = t618 + t634;
        // real block of 5
        const V t636 = t635 - t633;
        const V t637 = t635 + t633;
        // real block of 2
        const V x2r = io.re(2);
        const V x44r = io.re(44);
        const V t638 = x2r + x44r;
        const V t639 = x2r - x44r;
        // real block of 2
        const V x4r = io.re(4);
        const V x42r = io.re(42);
        const V t640 = x4r + x42r;
        const V t641 = x4r - x42r;
        // real block of 2
        const V x24r = io.re(24);
        const V x22r = io.re(22);
        const V t642 = x24r + x22r;
        const V t643 = x24r - x22r;
        // real block of 11, multiplier 2
        const V t644 = t640 + t642;
        const V t645 = t640 - t642;
        // real block of 11, multiplier 2
        const V t646 = t641 + t643;
        const V t647 = t641 - t643;
        // real block of 2
        const V x6r = io.re(6);
        const V x40r = io.re(40);
        const V t648 = x6r + x40r;
        const V t649 = x6r - x40r;
        // real block of 2
        const V x16r = io.re(16);
        const V x30r = io.re(30);
        const V t650 = x16r + x30r;
        const V t651 = x16r - x30r;
        // real block of 11, multiplier 2
        const V t652 = t650 + t648;
        const V t653 = t650 - t648;
        // real block of 11, multiplier 2
        const V t654 = t651 + t649;
        const V t655 = t651 - t649;
        // real block of 2
        const V x8r = io.re(8);
        const V x38r = io.re(38);
        const V t656 = x8r + x38r;
        const V t657 = x8r - x38r;
        // real block of 2
        const V x12r = io.re(12);
        const V x34r = io.re(34);
        const V t658 = x12r + x34r;
        const V t659 = x12r - x34r;
        // real block of 11, multiplier 2
        const V t660 = t658 + t656;
        const V t661 = t658 - t656;
        // real block of 11, multiplier 2
        const V t662 = t659 + t657;
        const V t663 = t659 - t657;
        // real block of 2
        const V x32r = io.re(32);
        const V x14r = io.re(14);
        const V t664 = x32r + x14r;
        const V t665 = x32r - x14r;
        // real block of 2
        const V x26r = io.re(26);
        const V x20r = io.re(20);
        const V t666 = x26r + x20r;
        const V t667 = x26r - x20r;
        // real block of 11, multiplier 2
        const V t668 = t664 - t666;
        // real block of 11, multiplier 2
        const V t669 = t665 - t667;
        // real block of 11, multiplier 2
        const V t670 = t664 + t666;
        const V t671 = c[4] * t670;
        const V t672 = c[5] * t670;
        const V t673 = c[6] * t670;
        const V t674 = c[7] * t670;
        const V t675 = c[8] * t670;
        const V t676 = t644 + t660;
        const V t677 = t676 + t652;
        const V t678 = c[6] * t644;
        const V t679 = c[8] * t660;
        const V t680 = t678 - t679;
        const V t681 = c[5] * t652;
        const V t682 = t680 - t681;
        const V t683 = c[9] * t645;
        const V t684 = c[10] * t661;
        const V t685 = c[11] * t653;
        const V t686 = t684 + t685;
        const V t687 = c[12] * t668;
        const V t688 = c[8] * t644;
        const V t689 = t638 - t688;
        const V t690 = c[4] * t660;
        const V t691 = t689 - t690;
        const V t692 = c[7] * t652;
        const V t693 = c[10] * t645;
        const V t694 = c[12] * t661;
        const V t695 = t693 + t694;
        const V t696 = c[13] * t653;
        const V t697 = t695 + t696;
        const V t698 = c[11] * t668;
        const V t699 = c[5] * t644;
        const V t700 = t638 - t699;
        const V t701 = c[7] * t660;
        const V t702 = t700 + t701;
        const V t703 = c[8] * t652;
        const V t704 = c[11] * t645;
        const V t705 = c[13] * t661;
        const V t706 = t704 + t705;
        const V t707 = c[10] * t653;
        const V t708 = t706 + t707;
        const V t709 = c[9] * t668;
        const V t710 = c[4] * t644;
        const V t711 = t638 - t710;
        const V t712 = c[5] * t660;
        const V t713 = t711 - t712;
        const V t714 = c[6] * t652;
        const V t715 = c[12] * t645;
        const V t716 = c[11] * t661;
        const V t717 = t715 + t716;
        const V t718 = c[13] * t668;
        const V t719 = t717 + t718;
        const V t720 = c[9] * t653;
        const V t721 = c[7] * t644;
        const V t722 = c[6] * t660;
        const V t723 = t721 + t722;
        const V t724 = c[4] * t652;
        const V t725 = t723 - t724;
        const V t726 = c[13] * t645;
        const V t727 = c[12] * t653;
        const V t728 = t726 + t727;
        const V t729 = c[10] * t668;
        const V t730 = t728 + t729;
        const V t731 = c[9] * t661;
        // real block of 11, multiplier 2
        const V t732 = t665 + t667;
        const V t733 = c[4] * t732;
        const V t734 = c[5] * t732;
        const V t735 = c[6] * t732;
        const V t736 = c[7] * t732;
        const V t737 = c[8] * t732;
        const V t738 = t646 + t662;
        const V t739 = c[6] * t646;
        const V t740 = c[8] * t662;
        const V t741 = t739 - t740;
        const V t742 = c[5] * t654;
        const V t743 = t741 - t742;
        const V t744 = c[9] * t647;
        const V t745 = c[10] * t663;
        const V t746 = c[11] * t655;
        const V t747 = t745 + t746;
        const V t748 = c[12] * t669;
        const V t749 = c[8] * t646;
        const V t750 = t639 - t749;
        const V t751 = c[4] * t662;
        const V t752 = t750 - t751;
        const V t753 = c[7] * t654;
        const V t754 = c[10] * t647;
        const V t755 = c[12] * t663;
        const V t756 = t754 + t755;
        const V t757 = c[13] * t655;
        const V t758 = t756 + t757;
        const V t759 = c[11] * t669;
        const V t760 = c[5] * t646;
        const V t761 = t639 - t760;
        const V t762 = c[7] * t662;
        const V t763 = t761 + t762;
        const V t764 = c[8] * t654;
        const V t765 = c[11] * t647;
        const V t766 = c[13] * t663;
        const V t767 = t765 + t766;
        const V t768 = c[10] * t655;
        const V t769 = t767 + t768;
        const V t770 = c[9] * t669;
        const V t771 = c[4] * t646;
        const V t772 = t639 - t771;
        const V t773 = c[5] * t662;
        const V t774 = t772 - t773;
        const V t775 = c[6] * t654;
        const V t776 = c[12] * t647;
        const V t777 = c[11] * t663;
        const V t778 = t776 + t777;
        const V t779 = c[13] * t669;
        const V t780 = t778 + t779;
        const V t781 = c[9] * t655;
        const V t782 = c[7] * t646;
        const V t783 = c[6] * t662;
        const V t784 = t782 + t783;
        const V t785 = c[4] * t654;
        const V t786 = t784 - t785;
        const V t787 = c[13] * t647;
        const V t788 = c[12] * t655;
        const V t789 = t787 + t788;
        const V t790 = c[10] * t669;
        const V t791 = t789 + t790;
        const V t792 = c[9] * t663;
        // real block of 2
        const V x36r = io.re(36);
        const V x10r = io.re(10);
        const V t793 = x36r + x10r;
        const V t794 = x36r - x10r;
        // real block of 2
        const V x18r = io.re(18);
        const V x28r = io.re(28);
        const V t795 = x18r + x28r;
        const V t796 = x18r - x28r;
        // real block of 11, multiplier 2
        const V t797 = t793 + t795;
        const V t798 = c[7] * t797;
        const V t799 = c[6] * t797;
        const V t800 = c[4] * t797;
        const V t801 = c[8] * t797;
        const V t802 = c[5] * t797;
        const V t803 = t793 - t795;
        const V t804 = c[13] * t803;
        const V t805 = c[9] * t803;
        const V t806 = c[12] * t803;
        const V t807 = c[10] * t803;
        const V t808 = c[11] * t803;
        // real block of 11, multiplier 2
        const V t809 = t794 + t796;
        const V t810 = c[7] * t809;
        const V t811 = c[6] * t809;
        const V t812 = c[4] * t809;
        const V t813 = c[8] * t809;
        const V t814 = c[5] * t809;
        const V t815 = t794 - t796;
        const V t816 = c[13] * t815;
        const V t817 = c[9] * t815;
        const V t818 = c[12] * t815;
        const V t819 = c[10] * t815;
        const V t820 = c[11] * t815;
        // real block of 11, multiplier 2
        const V t821 = t677 + t670;
        const V t822 = t821 + t797;
        const V t823 = t822 + t638;
        // complex block of 23, multiplier 2
        const V t824 = c[44] * t823;
        // real block of 11, multiplier 2
        const V t825 = t682 - t671;
        const V t826 = t825 + t798;
        const V t827 = t826 + t638;
        const V t828 = t686 + t687;
        const V t829 = t828 - t683;
        const V t830 = t829 - t804;
        // complex block of 23, multiplier 2
        const V t831 = c[22] * t830;
        const V t832 = c[23] * t827;
        const V t833 = t832 - t831;
        const V t834 = c[22] * t827;
        const V t835 = c[23] * t830;
        const V t836 = t835 + t834;
        // real block of 11, multiplier 2
        const V t837 = t691 + t692;
        const V t838 = t837 - t672;
        const V t839 = t838 + t799;
        const V t840 = t697 + t698;
        const V t841 = t840 + t805;
        // complex block of 23, multiplier 2
        const V t842 = c[24] * t841;
        const V t843 = c[25] * t841;
        // real block of 11, multiplier 2
        const V t844 = t725 - t675;
        const V t845 = t844 - t802;
        const V t846 = t845 + t638;
        const V t847 = t730 - t731;
        const V t848 = t847 - t808;
        // complex block of 23, multiplier 2
        const V t849 = c[26] * t848;
        const V t850 = c[27] * t848;
        const V t851 = c[25] * t839;
        const V t852 = t851 + t842;
        const V t853 = c[27] * t846;
        const V t854 = t853 - t849;
        // real block of 5
        const V t855 = t854 - t852;
        const V t856 = t852 + t854;
        // complex block of 23, multiplier 2
        const V t857 = c[24] * t839;
        const V t858 = t843 - t857;
        const V t859 = c[26] * t846;
        const V t860 = t850 + t859;
        // real block of 5
        const V t861 = t860 - t858;
        const V t862 = t858 + t860;
        // real block of 11, multiplier 2
        const V t863 = t702 - t703;
        const V t864 = t863 + t673;
        const V t865 = t864 - t800;
        const V t866 = t708 - t709;
        const V t867 = t866 - t806;
        // complex block of 23, multiplier 2
        const V t868 = c[28] * t867;
        const V t869 = c[29] * t867;
        // real block of 11, multiplier 2
        const V t870 = t713 + t714;
        const V t871 = t870 + t674;
        const V t872 = t871 - t801;
        const V t873 = t719 - t720;
        const V t874 = t873 - t807;
        // complex block of 23, multiplier 2
        const V t875 = c[30] * t874;
        const V t876 = c[31] * t874;
        const V t877 = c[29] * t865;
        const V t878 = t868 - t877;
        const V t879 = c[31] * t872;
        const V t880 = t879 - t875;
        // real block of 5
        const V t881 = t878 + t880;
        const V t882 = t878 - t880;
        // complex block of 23, multiplier 2
        const V t883 = c[28] * t865;
        const V t884 = t869 + t883;
        const V t885 = c[30] * t872;
        const V t886 = t876 + t885;
        // real block of 5
        const V t887 = t886 - t884;
        const V t888 = t884 + t886;
        // real block of 11, multiplier 2
        const V t889 = t738 + t654;
        const V t890 = t889 + t732;
        const V t891 = t890 + t809;
        const V t892 = t891 + t639;
        const V t893 = t743 - t733;
        const V t894 = t893 + t810;
        const V t895 = t894 + t639;
        const V t896 = t747 + t748;
        const V t897 = t896 - t744;
        const V t898 = t897 - t816;
        // complex block of 23, multiplier 2
        const V t899 = c[32] * t898;
        const V t900 = c[33] * t895;
        const V t901 = t900 + t899;
        const V t902 = c[32] * t895;
        const V t903 = c[33] * t898;
        const V t904 = t902 - t903;
        // real block of 11, multiplier 2
        const V t905 = t752 + t753;
        const V t906 = t905 - t734;
        const V t907 = t906 + t811;
        const V t908 = t758 + t759;
        const V t909 = t908 + t817;
        // complex block of 23, multiplier 2
        const V t910 = c[34] * t909;
        const V t911 = c[35] * t909;
        // real block of 11, multiplier 2
        const V t912 = t786 - t737;
        const V t913 = t912 - t814;
        const V t914 = t913 + t639;
        const V t915 = t791 - t792;
        const V t916 = t915 - t820;
        // complex block of 23, multiplier 2
        const V t917 = c[36] * t916;
        const V t918 = c[37] * t916;
        const V t919 = c[37] * t914;
        const V t920 = t917 - t919;
        const V t921 = c[35] * t907;
        const V t922 = t921 + t910;
        // real block of 5
        const V t923 = t922 + t920;
        const V t924 = t922 - t920;
        // complex block of 23, multiplier 2
        const V t925 = c[36] * t914;
        const V t926 = t918 + t925;
        const V t927 = c[34] * t907;
        const V t928 = t911 - t927;
        // real block of 5
        const V t929 = t928 - t926;
        const V t930 = t928 + t926;
        // real block of 11, multiplier 2
        const V t931 = t763 - t764;
        const V t932 = t931 + t735;
        const V t933 = t932 - t812;
        const V t934 = t769 - t770;
        const V t935 = t934 - t818;
        // complex block of 23, multiplier 2
        const V t936 = c[38] * t935;
        const V t937 = c[39] * t935;
        // real block of 11, multiplier 2
        const V t938 = t774 + t775;
        const V t939 = t938 + t736;
        const V t940 = t939 - t813;
        const V t941 = t780 - t781;
        const V t942 = t941 - t819;
        // complex block of 23, multiplier 2
        const V t943 = c[40] * t942;
        const V t944 = c[41] * t942;
        const V t945 = c[41] * t940;
        const V t946 = t945 + t943;
        const V t947 = c[39] * t933;
        const V t948 = t936 - t947;
        // real block of 5
        const V t949 = t948 - t946;
        const V t950 = t948 + t946;
        // complex block of 23, multiplier 2
        const V t951 = c[40] * t940;
        const V t952 = t944 - t951;
        const V t953 = c[38] * t933;
        const V t954 = t937 + t953;
        // real block of 5
        const V t955 = t954 + t952;
        const V t956 = t952 - t954;
        // real block of 2
        const V x2i = io.im(2);
        const V x44i = io.im(44);
        const V t957 = x2i + x44i;
        const V t958 = x2i - x44i;
        // real block of 2
        const V x4i = io.im(4);
        const V x42i = io.im(42);
        const V t959 = x4i + x42i;
        const V t960 = x4i - x42i;
        // real block of 2
        const V x24i = io.im(24);
        const V x22i = io.im(22);
        const V t961 = x24i + x22i;
        const V t962 = x24i - x22i;
        // real block of 11, multiplier 2
        const V t963 = t959 + t961;
        const V t964 = t959 - t961;
        // real block of 11, multiplier 2
        const V t965 = t960 + t962;
        const V t966 = t960 - t962;
        // real block of 2
        const V x6i = io.im(6);
        const V x40i = io.im(40);
        const V t967 = x6i + x40i;
        const V t968 = x6i - x40i;
        // real block of 2
        const V x16i = io.im(16);
        const V x30i = io.im(30);
        const V t969 = x16i + x30i;
        const V t970 = x16i - x30i;
        // real block of 11, multiplier 2
        const V t971 = t969 + t967;
        const V t972 = t969 - t967;
        // real block of 11, multiplier 2
        const V t973 = t970 + t968;
        const V t974 = t970 - t968;
        // real block of 2
        const V x8i = io.im(8);
        const V x38i = io.im(38);
        const V t975 = x8i + x38i;
        const V t976 = x8i - x38i;
        // real block of 2
        const V x12i = io.im(12);
        const V x34i = io.im(34);
        const V t977 = x12i + x34i;
        const V t978 = x12i - x34i;
        // real block of 11, multiplier 2
        const V t979 = t977 + t975;
        const V t980 = t977 - t975;
        // real block of 11, multiplier 2
        const V t981 = t978 + t976;
        const V t982 = t978 - t976;
        // real block of 2
        const V x32i = io.im(32);
        const V x14i = io.im(14);
        const V t983 = x32i + x14i;
        const V t984 = x32i - x14i;
        // real block of 2
        const V x26i = io.im(26);
        const V x20i = io.im(20);
        const V t985 = x26i + x20i;
        const V t986 = x26i - x20i;
        // real block of 11, multiplier 2
        const V t987 = t983 - t985;
        // real block of 11, multiplier 2
        const V t988 = t984 - t986;
        // real block of 11, multiplier 2
        const V t989 = t983 + t985;
        const V t990 = c[4] * t989;
        const V t991 = c[5] * t989;
        const V t992 = c[6] * t989;
        const V t993 = c[7] * t989;
        const V t994 = c[8] * t989;
        const V t995 = t963 + t979;
        const V t996 = t995 + t971;
        const V t997 = c[6] * t963;
        const V t998 = c[8] * t979;
        const V t999 = t997 - t998;
        const V t1000 = c[5] * t971;
        const V t1001 = t999 - t1000;
        const V t1002 = c[9] * t964;
        const V t1003 = c[10] * t980;
        const V t1004 = c[11] * t972;
        const V t1005 = t1003 + t1004;
        const V t1006 = c[12] * t987;
        const V t1007 = c[8] * t963;
        const V t1008 = t957 - t1007;
        const V t1009 = c[4] * t979;
        const V t1010 = t1008 - t1009;
        const V t1011 = c[7] * t971;
        const V t1012 = c[10] * t964;
        const V t1013 = c[12] * t980;
        const V t1014 = t1012 + t1013;
        const V t1015 = c[13] * t972;
        const V t1016 = t1014 + t1015;
        const V t1017 = c[11] * t987;
        const V t1018 = c[5] * t963;
        const V t1019 = t957 - t1018;
        const V t1020 = c[7] * t979;
        const V t1021 = t1019 + t1020;
        const V t1022 = c[8] * t971;
        const V t1023 = c[11] * t964;
        const V t1024 = c[13] * t980;
        const V t1025 = t1023 + t1024;
        const V t1026 = c[10] * t972;
        const V t1027 = t1025 + t1026;
        const V t1028 = c[9] * t987;
        const V t1029 = c[4] * t963;
        const V t1030 = t957 - t1029;
        const V t1031 = c[5] * t979;
        const V t1032 = t1030 - t1031;
        const V t1033 = c[6] * t971;
        const V t1034 = c[12] * t964;
        const V t1035 = c[11] * t980;
        const V t1036 = t1034 + t1035;
        const V t1037 = c[13] * t987;
        const V t1038 = t1036 + t1037;
        const V t1039 = c[9] * t972;
        const V t1040 = c[7] * t963;
        const V t1041 = c[6] * t979;
        const V t1042 = t1040 + t1041;
        const V t1043 = c[4] * t971;
        const V t1044 = t1042 - t1043;
        const V t1045 = c[13] * t964;
        const V t1046 = c[12] * t972;
        const V t1047 = t1045 + t1046;
        const V t1048 = c[10] * t987;
        const V t1049 = t1047 + t1048;
        const V t1050 = c[9] * t980;
        // real block of 11, multiplier 2
        const V t1051 = t984 + t986;
        const V t1052 = c[4] * t1051;
        const V t1053 = c[5] * t1051;
        const V t1054 = c[6] * t1051;
        const V t1055 = c[7] * t1051;
        const V t1056 = c[8] * t1051;
        const V t1057 = t965 + t981;
        const V t1058 = c[6] * t965;
        const V t1059 = c[8] * t981;
        const V t1060 = t1058 - t1059;
        const V t1061 = c[5] * t973;
        const V t1062 = t1060 - t1061;
        const V t1063 = c[9] * t966;
        const V t1064 = c[10] * t982;
        const V t1065 = c[11] * t974;
        const V t1066 = t1064 + t1065;
        const V t1067 = c[12] * t988;
        const V t1068 = c[8] * t965;
        const V t1069 = t958 - t1068;
        const V t1070 = c[4] * t981;
        const V t1071 = t1069 - t1070;
        const V t1072 = c[7] * t973;
        const V t1073 = c[10] * t966;
        const V t1074 = c[12] * t982;
        const V t1075 = t1073 + t1074;
        const V t1076 = c[13] * t974;
        const V t1077 = t1075 + t1076;
        const V t1078 = c[11] * t988;
        const V t1079 = c[5] * t965;
        const V t1080 = t958 - t1079;
        const V t1081 = c[7] * t981;
        const V t1082 = t1080 + t1081;
        const V t1083 = c[8] * t973;
        const V t1084 = c[11] * t966;
        const V t1085 = c[13] * t982;
        const V t1086 = t1084 + t1085;
        const V t1087 = c[10] * t974;
        const V t1088 = t1086 + t1087;
        const V t1089 = c[9] * t988;
        const V t1090 = c[4] * t965;
        const V t1091 = t958 - t1090;
        const V t1092 = c[5] * t981;
        const V t1093 = t1091 - t1092;
        const V t1094 = c[6] * t973;
        const V t1095 = c[12] * t966;
        const V t1096 = c[11] * t982;
        const V t1097 = t1095 + t1096;
        const V t1098 = c[13] * t988;
        const V t1099 = t1097 + t1098;
        const V t1100 = c[9] * t974;
        const V t1101 = c[7] * t965;
        const V t1102 = c[6] * t981;
        const V t1103 = t1101 + t1102;
        const V t1104 = c[4] * t973;
        const V t1105 = t1103 - t1104;
        const V t1106 = c[13] * t966;
        const V t1107 = c[12] * t974;
        const V t1108 = t1106 + t1107;
        const V t1109 = c[10] * t988;
        const V t1110 = t1108 + t1109;
        const V t1111 = c[9] * t982;
        // real block of 2
        const V x36i = io.im(36);
        const V x10i = io.im(10);
        const V t1112 = x36i + x10i;
        const V t1113 = x36i - x10i;
        // real block of 2
        const V x18i = io.im(18);
        const V x28i = io.im(28);
        const V t1114 = x18i + x28i;
        const V t1115 = x18i - x28i;
        // real block of 11, multiplier 2
        const V t1116 = t1112 + t1114;
        const V t1117 = c[7] * t1116;
        const V t1118 = c[6] * t1116;
        const V t1119 = c[4] * t1116;
        const V t1120 = c[8] * t1116;
        const V t1121 = c[5] * t1116;
        const V t1122 = t1112 - t1114;
        const V t1123 = c[13] * t1122;
        const V t1124 = c[9] * t1122;
        const V t1125 = c[12] * t1122;
        const V t1126 = c[10] * t1122;
        const V t1127 = c[11] * t1122;
        // real block of 11, multiplier 2
        const V t1128 = t1113 + t1115;
        const V t1129 = c[7] * t1128;
        const V t1130 = c[6] * t1128;
        const V t1131 = c[4] * t1128;
        const V t1132 = c[8] * t1128;
        const V t1133 = c[5] * t1128;
        const V t1134 = t1113 - t1115;
        const V t1135 = c[13] * t1134;
        const V t1136 = c[9] * t1134;
        const V t1137 = c[12] * t1134;
        const V t1138 = c[10] * t1134;
        const V t1139 = c[11] * t1134;
        // real block of 11, multiplier 2
        const V t1140 = t996 + t989;
        const V t1141 = t1140 + t1116;
        const V t1142 = t1141 + t957;
        // complex block of 23, multiplier 2
        const V t1143 = c[44] * t1142;
        // real block of 11, multiplier 2
        const V t1144 = t1001 - t990;
        const V t1145 = t1144 + t1117;
        const V t1146 = t1145 + t957;
        const V t1147 = t1005 + t1006;
        const V t1148 = t1147 - t1002;
        const V t1149 = t1148 - t1123;
        // complex block of 23, multiplier 2
        const V t1150 = c[22] * t1149;
        const V t1151 = c[23] * t1146;
        const V t1152 = t1151 - t1150;
        const V t1153 = c[22] * t1146;
        const V t1154 = c[23] * t1149;
        const V t1155 = t1154 + t1153;
        // real block of 11, multiplier 2
        const V t1156 = t1010 + t1011;
        const V t1157 = t1156 - t991;
        const V t1158 = t1157 + t1118;
        const V t1159 = t1016 + t1017;
        const V t1160 = t1159 + t1124;
        // complex block of 23, multiplier 2
        const V t1161 = c[24] * t1160;
        const V t1162 = c[25] * t1160;
        // real block of 11, multiplier 2
        const V t1163 = t1044 - t994;
        const V t1164 = t1163 - t1121;
        const V t1165 = t1164 + t957;
        const V t1166 = t1049 - t1050;
        const V t1167 = t1166 - t1127;
        // complex block of 23, multiplier 2
        const V t1168 = c[26] * t1167;
        const V t1169 = c[27] * t1167;
        const V t1170 = c[25] * t1158;
        const V t1171 = t1170 + t1161;
        const V t1172 = c[27] * t1165;
        const V t1173 = t1172 - t1168;
        // real block of 5
        const V t1174 = t1173 - t1171;
        const V t1175 = t1171 + t1173;
        // complex block of 23, multiplier 2
        const V t1176 = c[24] * t1158;
        const V t1177 = t1162 - t1176;
        const V t1178 = c[26] * t1165;
        const V t1179 = t1169 + t1178;
        // real block of 5
        const V t1180 = t1179 - t1177;
        const V t1181 = t1177 + t1179;
        // real block of 11, multiplier 2
        const V t1182 = t1021 - t1022;
        const V t1183 = t1182 + t992;
        const V t1184 = t1183 - t1119;
        const V t1185 = t1027 - t1028;
        const V t1186 = t1185 - t1125;
        // complex block of 23, multiplier 2
        const V t1187 = c[28] * t1186;
        const V t1188 = c[29] * t1186;
        // real block of 11, multiplier 2
        const V t1189 = t1032 + t1033;
        const V t1190 = t1189 + t993;
        const V t1191 = t1190 - t1120;
        const V t1192 = t1038 - t1039;
        const V t1193 = t1192 - t1126;
        // complex block of 23, multiplier 2
        const V t1194 = c[30] * t1193;
        const V t1195 = c[31] * t1193;
        const V t1196 = c[29] * t1184;
        const V t1197 = t1187 - t1196;
        const V t1198 = c[31] * t1191;
        const V t1199 = t1198 - t1194;
        // real block of 5
        const V t1200 = t1197 + t1199;
        const V t1201 = t1197 - t1199;
        // complex block of 23, multiplier 2
        const V t1202 = c[28] * t1184;
        const V t1203 = t1188 + t1202;
        const V t1204 = c[30] * t1191;
        const V t1205 = t1195 + t1204;
        // real block of 5
        const V t1206 = t1205 - t1203;
        const V t1207 = t1203 + t1205;
        // real block of 11, multiplier 2
        const V t1208 = t1057 + t973;
        const V t1209 = t1208 + t1051;
        const V t1210 = t1209 + t1128;
        const V t1211 = t1210 + t958;
        const V t1212 = t1062 - t1052;
        const V t1213 = t1212 + t1129;
        const V t1214 = t1213 + t958;
        const V t1215 = t1066 + t1067;
        const V t1216 = t1215 - t1063;
        const V t1217 = t1216 - t1135;
        // complex block of 23, multiplier 2
        const V t1218 = c[32] * t1217;
        const V t1219 = c[33] * t1214;
        const V t1220 = t1219 + t1218;
        const V t1221 = c[32] * t1214;
        const V t1222 = c[33] * t1217;
        const V t1223 = t1222 - t1221;
        // real block of 11, multiplier 2
        const V t1224 = t1071 + t1072;
        const V t1225 = t1224 - t1053;
        const V t1226 = t1225 + t1130;
        const V t1227 = t1077 + t1078;
        const V t1228 = t1227 + t1136;
        // complex block of 23, multiplier 2
        const V t1229 = c[34] * t1228;
        const V t1230 = c[35] * t1228;
        // real block of 11, multiplier 2
        const V t1231 = t1105 - t1056;
        const V t1232 = t1231 - t1133;
        const V t1233 = t1232 + t958;
        const V t1234 = t1110 - t1111;
        const V t1235 = t1234 - t1139;
        // complex block of 23, multiplier 2
        const V t1236 = c[36] * t1235;
        const V t1237 = c[37] * t1235;
        const V t1238 = c[37] * t1233;
        const V t1239 = t1238 - t1236;
        const V t1240 = c[35] * t1226;
        const V t1241 = t1240 + t1229;
        // real block of 5
        const V t1242 = t1239 - t1241;
        const V t1243 = t1241 + t1239;
        // complex block of 23, multiplier 2
        const V t1244 = c[36] * t1233;
        const V t1245 = t1237 + t1244;
        const V t1246 = c[34] * t1226;
        const V t1247 = t1246 - t1230;
        // real block of 5
        const V t1248 = t1247 + t1245;
        const V t1249 = t1247 - t1245;
        // real block of 11, multiplier 2
        const V t1250 = t1082 - t1083;
        const V t1251 = t1250 + t1054;
        const V t1252 = t1251 - t1131;
        const V t1253 = t1088 - t1089;
        const V t1254 = t1253 - t1137;
        // complex block of 23, multiplier 2
        const V t1255 = c[38] * t1254;
        const V t1256 = c[39] * t1254;
        // real block of 11, multiplier 2
        const V t1257 = t1093 + t1094;
        const V t1258 = t1257 + t1055;
        const V t1259 = t1258 - t1132;
        const V t1260 = t1099 - t1100;
        const V t1261 = t1260 - t1138;
        // complex block of 23, multiplier 2
        const V t1262 = c[40] * t1261;
        const V t1263 = c[41] * t1261;
        const V t1264 = c[41] * t1259;
        const V t1265 = t1264 + t1262;
        const V t1266 = c[39] * t1252;
        const V t1267 = t1266 - t1255;
        // real block of 5
        const V t1268 = t1267 + t1265;
        const V t1269 = t1267 - t1265;
        // complex block of 23, multiplier 2
        const V t1270 = c[40] * t1259;
        const V t1271 = t1270 - t1263;
        const V t1272 = c[38] * t1252;
        const V t1273 = t1256 + t1272;
        // real block of 5
        const V t1274 = t1273 - t1271;
        const V t1275 = t1273 + t1271;
        // complex block of 23, multiplier 2
        const V x0r = io.re(0);
        const V t1276 = x0r + t823;
        // complex block of 23, multiplier 2
        const V x23r = io.re(23);
        const V t1277 = x23r + t185;
        // complex block of 2
        const V t1278 = t1276 + t1277;
        const V t1279 = t1276 - t1277;
        // complex block of 23, multiplier 2
        const V x0i = io.im(0);
        const V t1280 = x0i + t1142;
        const V x23i = io.im(23);
        io.re(0, t1278);
        io.re(23, t1279);
        // complex block of 23, multiplier 2
        const V t1281 = x23i + t504;
        // complex block of 2
        const V t1282 = t1280 + t1281;
        io.im(0, t1282);
        const V t1283 = t1280 - t1281;
        io.im(23, t1283);
        // complex block of 23, multiplier 2
        const V t1284 = x0r - t824;
        // real block of 5
        const V t1285 = t855 + t881;
        const V t1286 = t1285 + t833;
        // spectrum block of 11, multiplier 2
        const V t1287 = c[42] * t1286;
        // real block of 5
        const V t1288 = t861 + t887;
        const V t1289 = t1288 + t836;
        // spectrum block of 11, multiplier 2
        const V t1290 = t1284 - t1287;
        const V t1291 = c[43] * t1289;
        // spectrum block of 2
        const V t1292 = t1290 + t1291;
        const V t1293 = t1290 - t1291;
        // spectrum block of 11, multiplier 2
        const V t1294 = t1284 + t1286;
        // complex block of 23, multiplier 2
        const V t1295 = c[45] * t1211;
        // real block of 5
        const V t1296 = t1242 + t1268;
        const V t1297 = t1296 - t1220;
        // spectrum block of 11, multiplier 2
        const V t1298 = c[42] * t1297;
        // real block of 5
        const V t1299 = t1248 + t1274;
        const V t1300 = t1299 - t1223;
        // spectrum block of 11, multiplier 2
        const V t1301 = t1295 - t1298;
        const V t1302 = c[43] * t1300;
        // spectrum block of 2
        const V t1303 = t1301 + t1302;
        const V t1304 = t1301 - t1302;
        // spectrum block of 11, multiplier 2
        const V t1305 = t1295 + t1297;
        // real block of 5
        const V t1306 = c[0] * t855;
        const V t1307 = c[1] * t881;
        const V t1308 = t1306 - t1307;
        const V t1309 = t1308 + t833;
        const V t1310 = c[2] * t856;
        const V t1311 = c[3] * t882;
        const V t1312 = t1310 + t1311;
        // spectrum block of 11, multiplier 2
        const V t1313 = c[14] * t1312;
        const V t1314 = c[15] * t1312;
        // real block of 5
        const V t1315 = c[0] * t861;
        const V t1316 = c[1] * t887;
        const V t1317 = t1315 - t1316;
        const V t1318 = t1317 + t836;
        const V t1319 = c[2] * t862;
        const V t1320 = c[3] * t888;
        const V t1321 = t1319 - t1320;
        // spectrum block of 11, multiplier 2
        const V t1322 = c[16] * t1321;
        const V t1323 = c[17] * t1321;
        const V t1324 = c[15] * t1309;
        const V t1325 = t1324 + t1313;
        const V t1326 = c[17] * t1318;
        const V t1327 = t1326 + t1322;
        // complex block of 2
        const V t1328 = t1325 - t1327;
        const V t1329 = t1325 + t1327;
        // spectrum block of 11, multiplier 2
        const V t1330 = c[14] * t1309;
        const V t1331 = t1314 - t1330;
        const V t1332 = c[16] * t1318;
        const V t1333 = t1323 - t1332;
        // complex block of 2
        const V t1334 = t1331 - t1333;
        const V t1335 = t1331 + t1333;
        // real block of 5
        const V t1336 = c[1] * t855;
        const V t1337 = t833 - t1336;
        const V t1338 = c[0] * t881;
        const V t1339 = t1337 + t1338;
        const V t1340 = c[3] * t856;
        const V t1341 = c[2] * t882;
        const V t1342 = t1340 - t1341;
        // spectrum block of 11, multiplier 2
        const V t1343 = c[18] * t1342;
        const V t1344 = c[19] * t1342;
        // real block of 5
        const V t1345 = c[1] * t861;
        const V t1346 = t836 - t1345;
        const V t1347 = c[0] * t887;
        const V t1348 = t1346 + t1347;
        const V t1349 = c[3] * t862;
        const V t1350 = c[2] * t888;
        const V t1351 = t1349 + t1350;
        // spectrum block of 11, multiplier 2
        const V t1352 = c[20] * t1351;
        const V t1353 = c[21] * t1351;
        const V t1354 = c[21] * t1348;
        const V t1355 = t1352 - t1354;
        const V t1356 = c[19] * t1339;
        const V t1357 = t1343 - t1356;
        // complex block of 2
        const V t1358 = t1357 + t1355;
        const V t1359 = t1357 - t1355;
        // spectrum block of 11, multiplier 2
        const V t1360 = c[20] * t1348;
        const V t1361 = t1353 + t1360;
        const V t1362 = c[18] * t1339;
        const V t1363 = t1344 + t1362;
        // complex block of 2
        const V t1364 = t1363 + t1361;
        const V t1365 = t1361 - t1363;
        // real block of 5
        const V t1366 = c[0] * t1242;
        const V t1367 = c[1] * t1268;
        const V t1368 = t1366 - t1367;
        const V t1369 = t1368 - t1220;
        const V t1370 = c[2] * t1243;
        const V t1371 = c[3] * t1269;
        const V t1372 = t1370 + t1371;
        // spectrum block of 11, multiplier 2
        const V t1373 = c[14] * t1372;
        const V t1374 = c[15] * t1372;
        // real block of 5
        const V t1375 = c[0] * t1248;
        const V t1376 = c[1] * t1274;
        const V t1377 = t1375 - t1376;
        const V t1378 = t1377 - t1223;
        const V t1379 = c[2] * t1249;
        const V t1380 = c[3] * t1275;
        const V t1381 = t1380 - t1379;
        // spectrum block of 11, multiplier 2
        const V t1382 = c[16] * t1381;
        const V t1383 = c[17] * t1381;
        const V t1384 = c[15] * t1369;
        const V t1385 = t1384 + t1373;
        const V t1386 = c[17] * t1378;
        const V t1387 = t1386 + t1382;
        // complex block of 2
        const V t1388 = t1385 - t1387;
        const V t1389 = t1385 + t1387;
        // spectrum block of 11, multiplier 2
        const V t1390 = c[14] * t1369;
        const V t1391 = t1374 - t1390;
        const V t1392 = c[16] * t1378;
        const V t1393 = t1383 - t1392;
        // complex block of 2
        const V t1394 = t1391 - t1393;
        const V t1395 = t1391 + t1393;
        // real block of 5
        const V t1396 = c[1] * t1242;
        const V t1397 = t1220 + t1396;
        const V t1398 = c[0] * t1268;
        const V t1399 = t1398 - t1397;
        const V t1400 = c[3] * t1243;
        const V t1401 = c[2] * t1269;
        const V t1402 = t1400 - t1401;
        // spectrum block of 11, multiplier 2
        const V t1403 = c[18] * t1402;
        const V t1404 = c[19] * t1402;
        // real block of 5
        const V t1405 = c[1] * t1248;
        const V t1406 = t1223 + t1405;
        const V t1407 = c[0] * t1274;
        const V t1408 = t1407 - t1406;
        const V t1409 = c[3] * t1249;
        const V t1410 = c[2] * t1275;
        const V t1411 = t1409 + t1410;
        // spectrum block of 11, multiplier 2
        const V t1412 = c[20] * t1411;
        const V t1413 = c[21] * t1411;
        const V t1414 = c[21] * t1408;
        const V t1415 = t1414 + t1412;
        const V t1416 = c[19] * t1399;
        const V t1417 = t1403 - t1416;
        // complex block of 2
        const V t1418 = t1417 - t1415;
        const V t1419 = t1417 + t1415;
        // spectrum block of 11, multiplier 2
        const V t1420 = c[20] * t1408;
        const V t1421 = t1420 - t1413;
        const V t1422 = c[18] * t1399;
        const V t1423 = t1404 + t1422;
        // complex block of 2
        const V t1424 = t1423 + t1421;
        const V t1425 = t1421 - t1423;
        // complex block of 23, multiplier 2
        const V t1426 = x23r - t186;
        // real block of 5
        const V t1427 = t217 + t243;
        const V t1428 = t1427 + t195;
        // spectrum block of 11, multiplier 2
        const V t1429 = c[42] * t1428;
        // real block of 5
        const V t1430 = t223 + t249;
        const V t1431 = t1430 + t198;
        // spectrum block of 11, multiplier 2
        const V t1432 = t1426 - t1429;
        const V t1433 = c[43] * t1431;
        // spectrum block of 2
        const V t1434 = t1432 + t1433;
        const V t1435 = t1432 - t1433;
        // spectrum block of 11, multiplier 2
        const V t1436 = t1426 + t1428;
        // complex block of 23, multiplier 2
        const V t1437 = c[45] * t573;
        // real block of 5
        const V t1438 = t604 + t630;
        const V t1439 = t1438 - t582;
        // spectrum block of 11, multiplier 2
        const V t1440 = c[42] * t1439;
        // real block of 5
        const V t1441 = t610 + t636;
        const V t1442 = t1441 - t585;
        // spectrum block of 11, multiplier 2
        const V t1443 = t1437 - t1440;
        const V t1444 = c[43] * t1442;
        // spectrum block of 2
        const V t1445 = t1443 + t1444;
        const V t1446 = t1443 - t1444;
        // spectrum block of 11, multiplier 2
        const V t1447 = t1437 + t1439;
        // real block of 5
        const V t1448 = c[0] * t217;
        const V t1449 = c[1] * t243;
        const V t1450 = t1448 - t1449;
        const V t1451 = t1450 + t195;
        const V t1452 = c[2] * t218;
        const V t1453 = c[3] * t244;
        const V t1454 = t1452 + t1453;
        // spectrum block of 11, multiplier 2
        const V t1455 = c[14] * t1454;
        const V t1456 = c[15] * t1454;
        // real block of 5
        const V t1457 = c[0] * t223;
        const V t1458 = c[1] * t249;
        const V t1459 = t1457 - t1458;
        const V t1460 = t1459 + t198;
        const V t1461 = c[2] * t224;
        const V t1462 = c[3] * t250;
        const V t1463 = t1461 - t1462;
        // spectrum block of 11, multiplier 2
        const V t1464 = c[16] * t1463;
        const V t1465 = c[17] * t1463;
        const V t1466 = c[15] * t1451;
        const V t1467 = t1466 + t1455;
        const V t1468 = c[17] * t1460;
        const V t1469 = t1468 + t1464;
        // complex block of 2
        const V t1470 = t1467 - t1469;
        const V t1471 = t1467 + t1469;
        // spectrum block of 11, multiplier 2
        const V t1472 = c[14] * t1451;
        const V t1473 = t1456 - t1472;
        const V t1474 = c[16] * t1460;
        const V t1475 = t1465 - t1474;
        // complex block of 2
        const V t1476 = t1473 - t1475;
        const V t1477 = t1473 + t1475;
        // real block of 5
        const V t1478 = c[1] * t217;
        const V t1479 = t195 - t1478;
        const V t1480 = c[0] * t243;
        const V t1481 = t1479 + t1480;
        const V t1482 = c[3] * t218;
        const V t1483 = c[2] * t244;
        const V t1484 = t1482 - t1483;
        // spectrum block of 11, multiplier 2
        const V t1485 = c[18] * t1484;
        const V t1486 = c[19] * t1484;
        // real block of 5
        const V t1487 = c[1] * t223;
        const V t1488 = t198 - t1487;
        const V t1489 = c[0] * t249;
        const V t1490 = t1488 + t1489;
        const V t1491 = c[3] * t224;
        const V t1492 = c[2] * t250;
        const V t1493 = t1491 + t1492;
        // spectrum block of 11, multiplier 2
        const V t1494 = c[20] * t1493;
        const V t1495 = c[21] * t1493;
        const V t1496 = c[21] * t1490;
        const V t1497 = t1494 - t1496;
        const V t1498 = c[19] * t1481;
        const V t1499 = t1485 - t1498;
        // complex block of 2
        const V t1500 = t1499 + t1497;
        const V t1501 = t1499 - t1497;
        // spectrum block of 11, multiplier 2
        const V t1502 = c[20] * t1490;
        const V t1503 = t1495 + t1502;
        const V t1504 = c[18] * t1481;
        const V t1505 = t1486 + t1504;
        // complex block of 2
        const V t1506 = t1505 + t1503;
        const V t1507 = t1503 - t1505;
        // real block of 5
        const V t1508 = c[0] * t604;
        const V t1509 = c[1] * t630;
        const V t1510 = t1508 - t1509;
        const V t1511 = t1510 - t582;
        const V t1512 = c[2] * t605;
        const V t1513 = c[3] * t631;
        const V t1514 = t1512 + t1513;
        // spectrum block of 11, multiplier 2
        const V t1515 = c[14] * t1514;
        const V t1516 = c[15] * t1514;
        // real block of 5
        const V t1517 = c[0] * t610;
        const V t1518 = c[1] * t636;
        const V t1519 = t1517 - t1518;
        const V t1520 = t1519 - t585;
        const V t1521 = c[2] * t611;
        const V t1522 = c[3] * t637;
        const V t1523 = t1522 - t1521;
        // spectrum block of 11, multiplier 2
        const V t1524 = c[16] * t1523;
        const V t1525 = c[17] * t1523;
        const V t1526 = c[15] * t1511;
        const V t1527 = t1526 + t1515;
        const V t1528 = c[17] * t1520;
        const V t1529 = t1528 + t1524;
        // complex block of 2
        const V t1530 = t1527 - t1529;
        const V t1531 = t1527 + t1529;
        // spectrum block of 11, multiplier 2
        const V t1532 = c[14] * t1511;
        const V t1533 = t1516 - t1532;
        const V t1534 = c[16] * t1520;
        const V t1535 = t1525 - t1534;
        // complex block of 2
        const V t1536 = t1533 - t1535;
        const V t1537 = t1533 + t1535;
        // real block of 5
        const V t1538 = c[1] * t604;
        const V t1539 = t582 + t1538;
        const V t1540 = c[0] * t630;
        const V t1541 = t1540 - t1539;
        const V t1542 = c[3] * t605;
        const V t1543 = c[2] * t631;
        const V t1544 = t1542 - t1543;
        // spectrum block of 11, multiplier 2
        const V t1545 = c[18] * t1544;
        const V t1546 = c[19] * t1544;
        // real block of 5
        const V t1547 = c[1] * t610;
        const V t1548 = t585 + t1547;
        const V t1549 = c[0] * t636;
        const V t1550 = t1549 - t1548;
        const V t1551 = c[3] * t611;
        const V t1552 = c[2] * t637;
        const V t1553 = t1551 + t1552;
        // spectrum block of 11, multiplier 2
        const V t1554 = c[20] * t1553;
        const V t1555 = c[21] * t1553;
        const V t1556 = c[21] * t1550;
        const V t1557 = t1556 + t1554;
        const V t1558 = c[19] * t1541;
        const V t1559 = t1545 - t1558;
        // complex block of 2
        const V t1560 = t1559 - t1557;
        const V t1561 = t1559 + t1557;
        // spectrum block of 11, multiplier 2
        const V t1562 = c[20] * t1550;
        const V t1563 = t1562 - t1555;
        const V t1564 = c[18] * t1541;
        const V t1565 = t1546 + t1564;
        // complex block of 2
        const V t1566 = t1565 + t1563;
        const V t1567 = t1563 - t1565;
        // spectrum block of 5, multiplier 2
        const V t1568 = t1328 + t1358;
        const V t1569 = t1568 + t1292;
        // spectrum block of 5, multiplier 2
        const V t1570 = t1388 + t1418;
        const V t1571 = t1570 + t1303;
        // spectrum block of 5, multiplier 2
        const V t1572 = t1470 + t1500;
        const V t1573 = t1572 + t1434;
        // spectrum block of 5, multiplier 2
        const V t1574 = t1530 + t1560;
        const V t1575 = t1574 + t1445;
        // spectrum block of 2
        const V t1576 = t1569 + t1571;
        // spectrum block of 2
        const V t1577 = t1573 + t1575;
        // complex block of 2
        const V t1578 = t1576 + t1577;
        io.re(24, t1578);
        const V t1579 = t1576 - t1577;
        io.re(1, t1579);
        // spectrum block of 2
        const V t1580 = t1569 - t1571;
        // spectrum block of 2
        const V t1581 = t1573 - t1575;
        // complex block of 2
        const V t1582 = t1580 + t1581;
        io.re(22, t1582);
        const V t1583 = t1580 - t1581;
        io.re(45, t1583);
        // spectrum block of 5, multiplier 2
        const V t1584 = c[0] * t1328;
        const V t1585 = c[1] * t1358;
        const V t1586 = t1584 - t1585;
        const V t1587 = t1586 + t1292;
        const V t1588 = c[2] * t1334;
        const V t1589 = c[3] * t1364;
        const V t1590 = t1588 - t1589;
        // spectrum block of 5, multiplier 2
        const V t1591 = c[0] * t1388;
        const V t1592 = c[1] * t1418;
        const V t1593 = t1591 - t1592;
        const V t1594 = t1593 + t1303;
        const V t1595 = c[2] * t1394;
        const V t1596 = c[3] * t1424;
        const V t1597 = t1595 - t1596;
        // spectrum block of 5, multiplier 2
        const V t1598 = c[0] * t1470;
        const V t1599 = c[1] * t1500;
        const V t1600 = t1598 - t1599;
        const V t1601 = t1600 + t1434;
        const V t1602 = c[2] * t1476;
        const V t1603 = c[3] * t1506;
        const V t1604 = t1602 - t1603;
        // spectrum block of 5, multiplier 2
        const V t1605 = c[0] * t1530;
        const V t1606 = c[1] * t1560;
        const V t1607 = t1605 - t1606;
        const V t1608 = t1607 + t1445;
        const V t1609 = c[2] * t1536;
        const V t1610 = c[3] * t1566;
        const V t1611 = t1609 - t1610;
        // spectrum block of 5, multiplier 2
        const V t1612 = t1587 - t1590;
        // spectrum block of 5, multiplier 2
        const V t1613 = t1594 - t1597;
        // spectrum block of 2
        const V t1614 = t1612 + t1613;
        const V t1615 = t1612 - t1613;
        // spectrum block of 5, multiplier 2
        const V t1616 = t1601 - t1604;
        // spectrum block of 5, multiplier 2
        const V t1617 = t1608 - t1611;
        // spectrum block of 2
        const V t1618 = t1616 + t1617;
        const V t1619 = t1616 - t1617;
        // complex block of 2
        const V t1620 = t1615 + t1619;
        io.re(10, t1620);
        const V t1621 = t1615 - t1619;
        io.re(33, t1621);
        // complex block of 2
        const V t1622 = t1614 + t1618;
        io.re(36, t1622);
        const V t1623 = t1614 - t1618;
        io.re(13, t1623);
        // spectrum block of 5, multiplier 2
        const V t1624 = t1587 + t1590;
        // spectrum block of 5, multiplier 2
        const V t1625 = t1594 + t1597;
        // spectrum block of 2
        const V t1626 = t1624 + t1625;
        const V t1627 = t1624 - t1625;
        // spectrum block of 5, multiplier 2
        const V t1628 = t1601 + t1604;
        // spectrum block of 5, multiplier 2
        const V t1629 = t1608 + t1611;
        // spectrum block of 2
        const V t1630 = t1628 + t1629;
        const V t1631 = t1628 - t1629;
        // complex block of 2
        const V t1632 = t1626 + t1630;
        io.re(8, t1632);
        const V t1633 = t1626 - t1630;
        io.re(31, t1633);
        // complex block of 2
        const V t1634 = t1627 + t1631;
        io.re(38, t1634);
        const V t1635 = t1627 - t1631;
        io.re(15, t1635);
        // spectrum block of 5, multiplier 2
        const V t1636 = c[1] * t1328;
        const V t1637 = t1292 - t1636;
        const V t1638 = c[0] * t1358;
        const V t1639 = t1637 + t1638;
        const V t1640 = c[3] * t1334;
        const V t1641 = c[2] * t1364;
        const V t1642 = t1640 + t1641;
        // spectrum block of 5, multiplier 2
        const V t1643 = c[1] * t1388;
        const V t1644 = t1303 - t1643;
        const V t1645 = c[0] * t1418;
        const V t1646 = t1644 + t1645;
        const V t1647 = c[3] * t1394;
        const V t1648 = c[2] * t1424;
        const V t1649 = t1647 + t1648;
        // spectrum block of 5, multiplier 2
        const V t1650 = c[1] * t1470;
        const V t1651 = t1434 - t1650;
        const V t1652 = c[0] * t1500;
        const V t1653 = t1651 + t1652;
        const V t1654 = c[3] * t1476;
        const V t1655 = c[2] * t1506;
        const V t1656 = t1654 + t1655;
        // spectrum block of 5, multiplier 2
        const V t1657 = c[1] * t1530;
        const V t1658 = t1445 - t1657;
        const V t1659 = c[0] * t1560;
        const V t1660 = t1658 + t1659;
        const V t1661 = c[3] * t1536;
        const V t1662 = c[2] * t1566;
        const V t1663 = t1661 + t1662;
        // spectrum block of 5, multiplier 2
        const V t1664 = t1639 - t1642;
        // spectrum block of 5, multiplier 2
        const V t1665 = t1646 - t1649;
        // spectrum block of 2
        const V t1666 = t1664 + t1665;
        const V t1667 = t1664 - t1665;
        // spectrum block of 5, multiplier 2
        const V t1668 = t1653 - t1656;
        // spectrum block of 5, multiplier 2
        const V t1669 = t1660 - t1663;
        // spectrum block of 2
        const V t1670 = t1668 + t1669;
        const V t1671 = t1668 - t1669;
        // complex block of 2
        const V t1672 = t1666 + t1670;
        io.re(6, t1672);
        const V t1673 = t1666 - t1670;
        io.re(29, t1673);
        // complex block of 2
        const V t1674 = t1667 + t1671;
        io.re(40, t1674);
        const V t1675 = t1667 - t1671;
        io.re(17, t1675);
        // spectrum block of 5, multiplier 2
        const V t1676 = t1639 + t1642;
        // spectrum block of 5, multiplier 2
        const V t1677 = t1646 + t1649;
        // spectrum block of 2
        const V t1678 = t1676 + t1677;
        const V t1679 = t1676 - t1677;
        // spectrum block of 5, multiplier 2
        const V t1680 = t1653 + t1656;
        // spectrum block of 5, multiplier 2
        const V t1681 = t1660 + t1663;
        // spectrum block of 2
        const V t1682 = t1680 + t1681;
        const V t1683 = t1680 - t1681;
        // complex block of 2
        const V t1684 = t1679 + t1683;
        io.re(20, t1684);
        const V t1685 = t1679 - t1683;
        io.re(43, t1685);
        // complex block of 2
        const V t1686 = t1678 + t1682;
        io.re(26, t1686);
        const V t1687 = t1678 - t1682;
        io.re(3, t1687);
        // spectrum block of 5, multiplier 2
        const V t1688 = t1329 + t1359;
        const V t1689 = t1688 + t1293;
        // spectrum block of 5, multiplier 2
        const V t1690 = t1389 + t1419;
        const V t1691 = t1690 + t1304;
        // spectrum block of 5, multiplier 2
        const V t1692 = t1471 + t1501;
        const V t1693 = t1692 + t1435;
        // spectrum block of 5, multiplier 2
        const V t1694 = t1531 + t1561;
        const V t1695 = t1694 + t1446;
        // spectrum block of 2
        const V t1696 = t1689 + t1691;
        // spectrum block of 2
        const V t1697 = t1693 + t1695;
        // complex block of 2
        const V t1698 = t1696 + t1697;
        io.re(4, t1698);
        const V t1699 = t1696 - t1697;
        io.re(27, t1699);
        // spectrum block of 2
        const V t1700 = t1689 - t1691;
        // spectrum block of 2
        const V t1701 = t1693 - t1695;
        // complex block of 2
        const V t1702 = t1700 + t1701;
        io.re(42, t1702);
        const V t1703 = t1700 - t1701;
        io.re(19, t1703);
        // spectrum block of 5, multiplier 2
        const V t1704 = c[0] * t1329;
        const V t1705 = c[1] * t1359;
        const V t1706 = t1704 - t1705;
        const V t1707 = t1706 + t1293;
        const V t1708 = c[2] * t1335;
        const V t1709 = c[3] * t1365;
        const V t1710 = t1708 + t1709;
        // spectrum block of 5, multiplier 2
        const V t1711 = c[0] * t1389;
        const V t1712 = c[1] * t1419;
        const V t1713 = t1711 - t1712;
        const V t1714 = t1713 + t1304;
        const V t1715 = c[2] * t1395;
        const V t1716 = c[3] * t1425;
        const V t1717 = t1715 + t1716;
        // spectrum block of 5, multiplier 2
        const V t1718 = c[0] * t1471;
        const V t1719 = c[1] * t1501;
        const V t1720 = t1718 - t1719;
        const V t1721 = t1720 + t1435;
        const V t1722 = c[2] * t1477;
        const V t1723 = c[3] * t1507;
        const V t1724 = t1722 + t1723;
        // spectrum block of 5, multiplier 2
        const V t1725 = c[0] * t1531;
        const V t1726 = c[1] * t1561;
        const V t1727 = t1725 - t1726;
        const V t1728 = t1727 + t1446;
        const V t1729 = c[2] * t1537;
        const V t1730 = c[3] * t1567;
        const V t1731 = t1729 + t1730;
        // spectrum block of 5, multiplier 2
        const V t1732 = t1707 - t1710;
        // spectrum block of 5, multiplier 2
        const V t1733 = t1714 - t1717;
        // spectrum block of 2
        const V t1734 = t1732 + t1733;
        const V t1735 = t1732 - t1733;
        // spectrum block of 5, multiplier 2
        const V t1736 = t1721 - t1724;
        // spectrum block of 5, multiplier 2
        const V t1737 = t1728 - t1731;
        // spectrum block of 2
        const V t1738 = t1736 + t1737;
        const V t1739 = t1736 - t1737;
        // complex block of 2
        const V t1740 = t1734 + t1738;
        io.re(18, t1740);
        const V t1741 = t1734 - t1738;
        io.re(41, t1741);
        // complex block of 2
        const V t1742 = t1735 + t1739;
        io.re(28, t1742);
        const V t1743 = t1735 - t1739;
        io.re(5, t1743);
        // spectrum block of 5, multiplier 2
        const V t1744 = t1707 + t1710;
        // spectrum block of 5, multiplier 2
        const V t1745 = t1714 + t1717;
        // spectrum block of 2
        const V t1746 = t1744 + t1745;
        const V t1747 = t1744 - t1745;
        // spectrum block of 5, multiplier 2
        const V t1748 = t1721 + t1724;
        // spectrum block of 5, multiplier 2
        const V t1749 = t1728 + t1731;
        // spectrum block of 2
        const V t1750 = t1748 + t1749;
        const V t1751 = t1748 - t1749;
        // complex block of 2
        const V t1752 = t1746 + t1750;
        io.re(12, t1752);
        const V t1753 = t1746 - t1750;
        io.re(35, t1753);
        // complex block of 2
        const V t1754 = t1747 + t1751;
        io.re(34, t1754);
        const V t1755 = t1747 - t1751;
        io.re(11, t1755);
        // spectrum block of 5, multiplier 2
        const V t1756 = c[1] * t1329;
        const V t1757 = t1293 - t1756;
        const V t1758 = c[0] * t1359;
        const V t1759 = t1757 + t1758;
        const V t1760 = c[3] * t1335;
        const V t1761 = c[2] * t1365;
        const V t1762 = t1760 - t1761;
        // spectrum block of 5, multiplier 2
        const V t1763 = c[1] * t1389;
        const V t1764 = t1304 - t1763;
        const V t1765 = c[0] * t1419;
        const V t1766 = t1764 + t1765;
        const V t1767 = c[3] * t1395;
        const V t1768 = c[2] * t1425;
        const V t1769 = t1767 - t1768;
        // spectrum block of 5, multiplier 2
        const V t1770 = c[1] * t1471;
        const V t1771 = t1435 - t1770;
        const V t1772 = c[0] * t1501;
        const V t1773 = t1771 + t1772;
        const V t1774 = c[3] * t1477;
        const V t1775 = c[2] * t1507;
        const V t1776 = t1774 - t1775;
        // spectrum block of 5, multiplier 2
        const V t1777 = c[1] * t1531;
        const V t1778 = t1446 - t1777;
        const V t1779 = c[0] * t1561;
        const V t1780 = t1778 + t1779;
        const V t1781 = c[3] * t1537;
        const V t1782 = c[2] * t1567;
        const V t1783 = t1781 - t1782;
        // spectrum block of 5, multiplier 2
        const V t1784 = t1759 - t1762;
        // spectrum block of 5, multiplier 2
        const V t1785 = t1766 - t1769;
        // spectrum block of 2
        const V t1786 = t1784 + t1785;
        const V t1787 = t1784 - t1785;
        // spectrum block of 5, multiplier 2
        const V t1788 = t1773 - t1776;
        // spectrum block of 5, multiplier 2
        const V t1789 = t1780 - t1783;
        // spectrum block of 2
        const V t1790 = t1788 + t1789;
        const V t1791 = t1788 - t1789;
        // complex block of 2
        const V t1792 = t1786 + t1790;
        io.re(16, t1792);
        const V t1793 = t1786 - t1790;
        io.re(39, t1793);
        // complex block of 2
        const V t1794 = t1787 + t1791;
        io.re(30, t1794);
        const V t1795 = t1787 - t1791;
        io.re(7, t1795);
        // spectrum block of 5, multiplier 2
        const V t1796 = t1759 + t1762;
        // spectrum block of 5, multiplier 2
        const V t1797 = t1766 + t1769;
        // spectrum block of 2
        const V t1798 = t1796 + t1797;
        const V t1799 = t1796 - t1797;
        // spectrum block of 5, multiplier 2
        const V t1800 = t1773 + t1776;
        // spectrum block of 5, multiplier 2
        const V t1801 = t1780 + t1783;
        // spectrum block of 2
        const V t1802 = t1800 + t1801;
        const V t1803 = t1800 - t1801;
        // complex block of 2
        const V t1804 = t1799 + t1803;
        io.re(14, t1804);
        const V t1805 = t1799 - t1803;
        io.re(37, t1805);
        // complex block of 2
        const V t1806 = t1798 + t1802;
        io.re(32, t1806);
        const V t1807 = t1798 - t1802;
        io.re(9, t1807);
        // spectrum block of 2
        const V t1808 = t1294 + t1305;
        // spectrum block of 2
        const V t1809 = t1436 + t1447;
        // complex block of 2
        const V t1810 = t1808 + t1809;
        io.re(2, t1810);
        const V t1811 = t1808 - t1809;
        io.re(25, t1811);
        // spectrum block of 2
        const V t1812 = t1294 - t1305;
        // spectrum block of 2
        const V t1813 = t1436 - t1447;
        // complex block of 2
        const V t1814 = t1812 + t1813;
        io.re(44, t1814);
        const V t1815 = t1812 - t1813;
        io.re(21, t1815);
        // complex block of 23, multiplier 2
        const V t1816 = x0i - t1143;
        // real block of 5
        const V t1817 = t1174 + t1200;
        const V t1818 = t1817 + t1152;
        // spectrum block of 11, multiplier 2
        const V t1819 = c[42] * t1818;
        // real block of 5
        const V t1820 = t1180 + t1206;
        const V t1821 = t1820 + t1155;
        // spectrum block of 11, multiplier 2
        const V t1822 = t1816 - t1819;
        const V t1823 = c[43] * t1821;
        // spectrum block of 2
        const V t1824 = t1822 + t1823;
        const V t1825 = t1822 - t1823;
        // spectrum block of 11, multiplier 2
        const V t1826 = t1816 + t1818;
        // complex block of 23, multiplier 2
        const V t1827 = c[45] * t892;
        // real block of 5
        const V t1828 = t923 + t949;
        const V t1829 = t1828 + t901;
        // spectrum block of 11, multiplier 2
        const V t1830 = c[42] * t1829;
        // real block of 5
        const V t1831 = t929 - t955;
        const V t1832 = t1831 - t904;
        // spectrum block of 11, multiplier 2
        const V t1833 = t1827 + t1830;
        const V t1834 = c[43] * t1832;
        // spectrum block of 2
        const V t1835 = t1834 - t1833;
        const V t1836 = t1833 + t1834;
        // spectrum block of 11, multiplier 2
        const V t1837 = t1829 - t1827;
        // real block of 5
        const V t1838 = c[0] * t1174;
        const V t1839 = c[1] * t1200;
        const V t1840 = t1838 - t1839;
        const V t1841 = t1840 + t1152;
        const V t1842 = c[2] * t1175;
        const V t1843 = c[3] * t1201;
        const V t1844 = t1842 + t1843;
        // spectrum block of 11, multiplier 2
        const V t1845 = c[14] * t1844;
        const V t1846 = c[15] * t1844;
        // real block of 5
        const V t1847 = c[0] * t1180;
        const V t1848 = c[1] * t1206;
        const V t1849 = t1847 - t1848;
        const V t1850 = t1849 + t1155;
        const V t1851 = c[2] * t1181;
        const V t1852 = c[3] * t1207;
        const V t1853 = t1851 - t1852;
        // spectrum block of 11, multiplier 2
        const V t1854 = c[16] * t1853;
        const V t1855 = c[17] * t1853;
        const V t1856 = c[15] * t1841;
        const V t1857 = t1856 + t1845;
        const V t1858 = c[17] * t1850;
        const V t1859 = t1858 + t1854;
        // complex block of 2
        const V t1860 = t1857 - t1859;
        const V t1861 = t1857 + t1859;
        // spectrum block of 11, multiplier 2
        const V t1862 = c[14] * t1841;
        const V t1863 = t1846 - t1862;
        const V t1864 = c[16] * t1850;
        const V t1865 = t1855 - t1864;
        // complex block of 2
        const V t1866 = t1863 - t1865;
        const V t1867 = t1863 + t1865;
        // real block of 5
        const V t1868 = c[1] * t1174;
        const V t1869 = t1152 - t1868;
        const V t1870 = c[0] * t1200;
        const V t1871 = t1869 + t1870;
        const V t1872 = c[3] * t1175;
        const V t1873 = c[2] * t1201;
        const V t1874 = t1872 - t1873;
        // spectrum block of 11, multiplier 2
        const V t1875 = c[18] * t1874;
        const V t1876 = c[19] * t1874;
        // real block of 5
        const V t1877 = c[1] * t1180;
        const V t1878 = t1155 - t1877;
        const V t1879 = c[0] * t1206;
        const V t1880 = t1878 + t1879;
        const V t1881 = c[3] * t1181;
        const V t1882 = c[2] * t1207;
        const V t1883 = t1881 + t1882;
        // spectrum block of 11, multiplier 2
        const V t1884 = c[20] * t1883;
        const V t1885 = c[21] * t1883;
        const V t1886 = c[21] * t1880;
        const V t1887 = t1884 - t1886;
        const V t1888 = c[19] * t1871;
        const V t1889 = t1875 - t1888;
        // complex block of 2
        const V t1890 = t1889 + t1887;
        const V t1891 = t1889 - t1887;
        // spectrum block of 11, multiplier 2
        const V t1892 = c[20] * t1880;
        const V t1893 = t1885 + t1892;
        const V t1894 = c[18] * t1871;
        const V t1895 = t1876 + t1894;
        // complex block of 2
        const V t1896 = t1895 + t1893;
        const V t1897 = t1893 - t1895;
        // real block of 5
        const V t1898 = c[0] * t923;
        const V t1899 = c[1] * t949;
        const V t1900 = t1898 - t1899;
        const V t1901 = t1900 + t901;
        const V t1902 = c[2] * t924;
        const V t1903 = c[3] * t950;
        const V t1904 = t1903 - t1902;
        // spectrum block of 11, multiplier 2
        const V t1905 = c[14] * t1904;
        const V t1906 = c[15] * t1904;
        // real block of 5
        const V t1907 = c[0] * t929;
        const V t1908 = c[1] * t955;
        const V t1909 = t1907 + t1908;
        const V t1910 = t1909 - t904;
        const V t1911 = c[2] * t930;
        const V t1912 = c[3] * t956;
        const V t1913 = t1912 - t1911;
        // spectrum block of 11, multiplier 2
        const V t1914 = c[16] * t1913;
        const V t1915 = c[17] * t1913;
        const V t1916 = c[15] * t1901;
        const V t1917 = t1916 + t1905;
        const V t1918 = c[17] * t1910;
        const V t1919 = t1918 + t1914;
        // complex block of 2
        const V t1920 = t1917 - t1919;
        const V t1921 = t1917 + t1919;
        // spectrum block of 11, multiplier 2
        const V t1922 = c[14] * t1901;
        const V t1923 = t1906 - t1922;
        const V t1924 = c[16] * t1910;
        const V t1925 = t1915 - t1924;
        // complex block of 2
        const V t1926 = t1923 - t1925;
        const V t1927 = t1923 + t1925;
        // real block of 5
        const V t1928 = c[1] * t923;
        const V t1929 = t901 - t1928;
        const V t1930 = c[0] * t949;
        const V t1931 = t1929 + t1930;
        const V t1932 = c[3] * t924;
        const V t1933 = c[2] * t950;
        const V t1934 = t1932 + t1933;
        // spectrum block of 11, multiplier 2
        const V t1935 = c[18] * t1934;
        const V t1936 = c[19] * t1934;
        // real block of 5
        const V t1937 = c[1] * t929;
        const V t1938 = t904 + t1937;
        const V t1939 = c[0] * t955;
        const V t1940 = t1938 + t1939;
        const V t1941 = c[3] * t930;
        const V t1942 = c[2] * t956;
        const V t1943 = t1941 + t1942;
        // spectrum block of 11, multiplier 2
        const V t1944 = c[20] * t1943;
        const V t1945 = c[21] * t1943;
        const V t1946 = c[21] * t1940;
        const V t1947 = t1946 - t1944;
        const V t1948 = c[19] * t1931;
        const V t1949 = t1948 + t1935;
        // complex block of 2
        const V t1950 = t1947 - t1949;
        const V t1951 = t1949 + t1947;
        // spectrum block of 11, multiplier 2
        const V t1952 = c[20] * t1940;
        const V t1953 = t1945 + t1952;
        const V t1954 = c[18] * t1931;
        const V t1955 = t1936 - t1954;
        // complex block of 2
        const V t1956 = t1955 + t1953;
        const V t1957 = t1955 - t1953;
        // complex block of 23, multiplier 2
        const V t1958 = x23i - t505;
        // real block of 5
        const V t1959 = t536 + t562;
        const V t1960 = t1959 + t514;
        // spectrum block of 11, multiplier 2
        const V t1961 = c[42] * t1960;
        // real block of 5
        const V t1962 = t542 + t568;
        const V t1963 = t1962 + t517;
        // spectrum block of 11, multiplier 2
        const V t1964 = t1958 - t1961;
        const V t1965 = c[43] * t1963;
        // spectrum block of 2
        const V t1966 = t1964 + t1965;
        const V t1967 = t1964 - t1965;
        // spectrum block of 11, multiplier 2
        const V t1968 = t1958 + t1960;
        // complex block of 23, multiplier 2
        const V t1969 = c[45] * t254;
        // real block of 5
        const V t1970 = t285 + t311;
        const V t1971 = t1970 + t263;
        // spectrum block of 11, multiplier 2
        const V t1972 = c[42] * t1971;
        // real block of 5
        const V t1973 = t291 - t317;
        const V t1974 = t1973 - t266;
        // spectrum block of 11, multiplier 2
        const V t1975 = t1969 + t1972;
        const V t1976 = c[43] * t1974;
        // spectrum block of 2
        const V t1977 = t1976 - t1975;
        const V t1978 = t1975 + t1976;
        // spectrum block of 11, multiplier 2
        const V t1979 = t1971 - t1969;
        // real block of 5
        const V t1980 = c[0] * t536;
        const V t1981 = c[1] * t562;
        const V t1982 = t1980 - t1981;
        const V t1983 = t1982 + t514;
        const V t1984 = c[2] * t537;
        const V t1985 = c[3] * t563;
        const V t1986 = t1984 + t1985;
        // spectrum block of 11, multiplier 2
        const V t1987 = c[14] * t1986;
        const V t1988 = c[15] * t1986;
        // real block of 5
        const V t1989 = c[0] * t542;
        const V t1990 = c[1] * t568;
        const V t1991 = t1989 - t1990;
        const V t1992 = t1991 + t517;
        const V t1993 = c[2] * t543;
        const V t1994 = c[3] * t569;
        const V t1995 = t1993 - t1994;
        // spectrum block of 11, multiplier 2
        const V t1996 = c[16] * t1995;
        const V t1997 = c[17] * t1995;
        const V t1998 = c[15] * t1983;
        const V t1999 = t1998 + t1987;
        const V t2000 = c[17] * t1992;
        const V t2001 = t2000 + t1996;
        // complex block of 2
        const V t2002 = t1999 - t2001;
        const V t2003 = t1999 + t2001;
        // spectrum block of 11, multiplier 2
        const V t2004 = c[14] * t1983;
        const V t2005 = t1988 - t2004;
        const V t2006 = c[16] * t1992;
        const V t2007 = t1997 - t2006;
        // complex block of 2
        const V t2008 = t2005 - t2007;
        const V t2009 = t2005 + t2007;
        // real block of 5
        const V t2010 = c[1] * t536;
        const V t2011 = t514 - t2010;
        const V t2012 = c[0] * t562;
        const V t2013 = t2011 + t2012;
        const V t2014 = c[3] * t537;
        const V t2015 = c[2] * t563;
        const V t2016 = t2014 - t2015;
        // spectrum block of 11, multiplier 2
        const V t2017 = c[18] * t2016;
        const V t2018 = c[19] * t2016;
        // real block of 5
        const V t2019 = c[1] * t542;
        const V t2020 = t517 - t2019;
        const V t2021 = c[0] * t568;
        const V t2022 = t2020 + t2021;
        const V t2023 = c[3] * t543;
        const V t2024 = c[2] * t569;
        const V t2025 = t2023 + t2024;
        // spectrum block of 11, multiplier 2
        const V t2026 = c[20] * t2025;
        const V t2027 = c[21] * t2025;
        const V t2028 = c[21] * t2022;
        const V t2029 = t2026 - t2028;
        const V t2030 = c[19] * t2013;
        const V t2031 = t2017 - t2030;
        // complex block of 2
        const V t2032 = t2031 + t2029;
        const V t2033 = t2031 - t2029;
        // spectrum block of 11, multiplier 2
        const V t2034 = c[20] * t2022;
        const V t2035 = t2027 + t2034;
        const V t2036 = c[18] * t2013;
        const V t2037 = t2018 + t2036;
        // complex block of 2
        const V t2038 = t2037 + t2035;
        const V t2039 = t2035 - t2037;
        // real block of 5
        const V t2040 = c[0] * t285;
        const V t2041 = c[1] * t311;
        const V t2042 = t2040 - t2041;
        const V t2043 = t2042 + t263;
        const V t2044 = c[2] * t286;
        const V t2045 = c[3] * t312;
        const V t2046 = t2045 - t2044;
        // spectrum block of 11, multiplier 2
        const V t2047 = c[14] * t2046;
        const V t2048 = c[15] * t2046;
        // real block of 5
        const V t2049 = c[0] * t291;
        const V t2050 = c[1] * t317;
        const V t2051 = t2049 + t2050;
        const V t2052 = t2051 - t266;
        const V t2053 = c[2] * t292;
        const V t2054 = c[3] * t318;
        const V t2055 = t2054 - t2053;
        // spectrum block of 11, multiplier 2
        const V t2056 = c[16] * t2055;
        const V t2057 = c[17] * t2055;
        const V t2058 = c[15] * t2043;
        const V t2059 = t2058 + t2047;
        const V t2060 = c[17] * t2052;
        const V t2061 = t2060 + t2056;
        // complex block of 2
        const V t2062 = t2059 - t2061;
        const V t2063 = t2059 + t2061;
        // spectrum block of 11, multiplier 2
        const V t2064 = c[14] * t2043;
        const V t2065 = t2048 - t2064;
        const V t2066 = c[16] * t2052;
        const V t2067 = t2057 - t2066;
        // complex block of 2
        const V t2068 = t2065 - t2067;
        const V t2069 = t2065 + t2067;
        // real block of 5
        const V t2070 = c[1] * t285;
        const V t2071 = t263 - t2070;
        const V t2072 = c[0] * t311;
        const V t2073 = t2071 + t2072;
        const V t2074 = c[3] * t286;
        const V t2075 = c[2] * t312;
        const V t2076 = t2074 + t2075;
        // spectrum block of 11, multiplier 2
        const V t2077 = c[18] * t2076;
        const V t2078 = c[19] * t2076;
        // real block of 5
        const V t2079 = c[1] * t291;
        const V t2080 = t266 + t2079;
        const V t2081 = c[0] * t317;
        const V t2082 = t2080 + t2081;
        const V t2083 = c[3] * t292;
        const V t2084 = c[2] * t318;
        const V t2085 = t2083 + t2084;
        // spectrum block of 11, multiplier 2
        const V t2086 = c[20] * t2085;
        const V t2087 = c[21] * t2085;
        const V t2088 = c[21] * t2082;
        const V t2089 = t2088 - t2086;
        const V t2090 = c[19] * t2073;
        const V t2091 = t2090 + t2077;
        // complex block of 2
        const V t2092 = t2089 - t2091;
        const V t2093 = t2091 + t2089;
        // spectrum block of 11, multiplier 2
        const V t2094 = c[20] * t2082;
        const V t2095 = t2087 + t2094;
        const V t2096 = c[18] * t2073;
        const V t2097 = t2078 - t2096;
        // complex block of 2
        const V t2098 = t2097 + t2095;
        const V t2099 = t2097 - t2095;
        // spectrum block of 5, multiplier 2
        const V t2100 = t1860 + t1890;
        const V t2101 = t2100 + t1824;
        // spectrum block of 5, multiplier 2
        const V t2102 = t1920 + t1950;
        const V t2103 = t2102 + t1835;
        // spectrum block of 5, multiplier 2
        const V t2104 = t2002 + t2032;
        const V t2105 = t2104 + t1966;
        // spectrum block of 5, multiplier 2
        const V t2106 = t2062 + t2092;
        const V t2107 = t2106 + t1977;
        // spectrum block of 2
        const V t2108 = t2101 + t2103;
        // spectrum block of 2
        const V t2109 = t2105 + t2107;
        // complex block of 2
        const V t2110 = t2108 + t2109;
        io.im(24, t2110);
        const V t2111 = t2108 - t2109;
        io.im(1, t2111);
        // spectrum block of 2
        const V t2112 = t2101 - t2103;
        // spectrum block of 2
        const V t2113 = t2105 - t2107;
        // complex block of 2
        const V t2114 = t2112 + t2113;
        io.im(22, t2114);
        const V t2115 = t2112 - t2113;
        io.im(45, t2115);
        // spectrum block of 5, multiplier 2
        const V t2116 = c[0] * t1860;
        const V t2117 = c[1] * t1890;
        const V t2118 = t2116 - t2117;
        const V t2119 = t2118 + t1824;
        const V t2120 = c[2] * t1866;
        const V t2121 = c[3] * t1896;
        const V t2122 = t2120 - t2121;
        // spectrum block of 5, multiplier 2
        const V t2123 = c[0] * t1920;
        const V t2124 = c[1] * t1950;
        const V t2125 = t2123 - t2124;
        const V t2126 = t2125 + t1835;
        const V t2127 = c[2] * t1926;
        const V t2128 = c[3] * t1956;
        const V t2129 = t2127 + t2128;
        // spectrum block of 5, multiplier 2
        const V t2130 = c[0] * t2002;
        const V t2131 = c[1] * t2032;
        const V t2132 = t2130 - t2131;
        const V t2133 = t2132 + t1966;
        const V t2134 = c[2] * t2008;
        const V t2135 = c[3] * t2038;
        const V t2136 = t2134 - t2135;
        // spectrum block of 5, multiplier 2
        const V t2137 = c[0] * t2062;
        const V t2138 = c[1] * t2092;
        const V t2139 = t2137 - t2138;
        const V t2140 = t2139 + t1977;
        const V t2141 = c[2] * t2068;
        const V t2142 = c[3] * t2098;
        const V t2143 = t2141 + t2142;
        // spectrum block of 5, multiplier 2
        const V t2144 = t2119 - t2122;
        // spectrum block of 5, multiplier 2
        const V t2145 = t2126 - t2129;
        // spectrum block of 2
        const V t2146 = t2144 + t2145;
        const V t2147 = t2144 - t2145;
        // spectrum block of 5, multiplier 2
        const V t2148 = t2133 - t2136;
        // spectrum block of 5, multiplier 2
        const V t2149 = t2140 - t2143;
        // spectrum block of 2
        const V t2150 = t2148 + t2149;
        const V t2151 = t2148 - t2149;
        // complex block of 2
        const V t2152 = t2147 + t2151;
        io.im(10, t2152);
        const V t2153 = t2147 - t2151;
        io.im(33, t2153);
        // complex block of 2
        const V t2154 = t2146 + t2150;
        io.im(36, t2154);
        const V t2155 = t2146 - t2150;
        io.im(13, t2155);
        // spectrum block of 5, multiplier 2
        const V t2156 = t2119 + t2122;
        // spectrum block of 5, multiplier 2
        const V t2157 = t2126 + t2129;
        // spectrum block of 2
        const V t2158 = t2156 + t2157;
        const V t2159 = t2156 - t2157;
        // spectrum block of 5, multiplier 2
        const V t2160 = t2133 + t2136;
        // spectrum block of 5, multiplier 2
        const V t2161 = t2140 + t2143;
        // spectrum block of 2
        const V t2162 = t2160 + t2161;
        const V t2163 = t2160 - t2161;
        // complex block of 2
        const V t2164 = t2158 + t2162;
        io.im(8, t2164);
        const V t2165 = t2158 - t2162;
        io.im(31, t2165);
        // complex block of 2
        const V t2166 = t2159 + t2163;
        io.im(38, t2166);
        const V t2167 = t2159 - t2163;
        io.im(15, t2167);
        // spectrum block of 5, multiplier 2
        const V t2168 = c[1] * t1860;
        const V t2169 = t1824 - t2168;
        const V t2170 = c[0] * t1890;
        const V t2171 = t2169 + t2170;
        const V t2172 = c[3] * t1866;
        const V t2173 = c[2] * t1896;
        const V t2174 = t2172 + t2173;
        // spectrum block of 5, multiplier 2
        const V t2175 = c[1] * t1920;
        const V t2176 = t1835 - t2175;
        const V t2177 = c[0] * t1950;
        const V t2178 = t2176 + t2177;
        const V t2179 = c[3] * t1926;
        const V t2180 = c[2] * t1956;
        const V t2181 = t2179 - t2180;
        // spectrum block of 5, multiplier 2
        const V t2182 = c[1] * t2002;
        const V t2183 = t1966 - t2182;
        const V t2184 = c[0] * t2032;
        const V t2185 = t2183 + t2184;
        const V t2186 = c[3] * t2008;
        const V t2187 = c[2] * t2038;
        const V t2188 = t2186 + t2187;
        // spectrum block of 5, multiplier 2
        const V t2189 = c[1] * t2062;
        const V t2190 = t1977 - t2189;
        const V t2191 = c[0] * t2092;
        const V t2192 = t2190 + t2191;
        const V t2193 = c[3] * t2068;
        const V t2194 = c[2] * t2098;
        const V t2195 = t2193 - t2194;
        // spectrum block of 5, multiplier 2
        const V t2196 = t2171 - t2174;
        // spectrum block of 5, multiplier 2
        const V t2197 = t2178 - t2181;
        // spectrum block of 2
        const V t2198 = t2196 + t2197;
        const V t2199 = t2196 - t2197;
        // spectrum block of 5, multiplier 2
        const V t2200 = t2185 - t2188;
        // spectrum block of 5, multiplier 2
        const V t2201 = t2192 - t2195;
        // spectrum block of 2
        const V t2202 = t2200 + t2201;
        const V t2203 = t2200 - t2201;
        // complex block of 2
        const V t2204 = t2198 + t2202;
        io.im(6, t2204);
        const V t2205 = t2198 - t2202;
        io.im(29, t2205);
        // complex block of 2
        const V t2206 = t2199 + t2203;
        io.im(40, t2206);
        const V t2207 = t2199 - t2203;
        io.im(17, t2207);
        // spectrum block of 5, multiplier 2
        const V t2208 = t2171 + t2174;
        // spectrum block of 5, multiplier 2
        const V t2209 = t2178 + t2181;
        // spectrum block of 2
        const V t2210 = t2208 + t2209;
        const V t2211 = t2208 - t2209;
        // spectrum block of 5, multiplier 2
        const V t2212 = t2185 + t2188;
        // spectrum block of 5, multiplier 2
        const V t2213 = t2192 + t2195;
        // spectrum block of 2
        const V t2214 = t2212 + t2213;
        const V t2215 = t2212 - t2213;
        // complex block of 2
        const V t2216 = t2211 + t2215;
        io.im(20, t2216);
        const V t2217 = t2211 - t2215;
        io.im(43, t2217);
        // complex block of 2
        const V t2218 = t2210 + t2214;
        io.im(26, t2218);
        const V t2219 = t2210 - t2214;
        io.im(3, t2219);
        // spectrum block of 5, multiplier 2
        const V t2220 = t1861 + t1891;
        const V t2221 = t2220 + t1825;
        // spectrum block of 5, multiplier 2
        const V t2222 = t1921 - t1951;
        const V t2223 = t2222 - t1836;
        // spectrum block of 5, multiplier 2
        const V t2224 = t2003 + t2033;
        const V t2225 = t2224 + t1967;
        // spectrum block of 5, multiplier 2
        const V t2226 = t2063 - t2093;
        const V t2227 = t2226 - t1978;
        // spectrum block of 2
        const V t2228 = t2221 + t2223;
        // spectrum block of 2
        const V t2229 = t2225 + t2227;
        // complex block of 2
        const V t2230 = t2228 + t2229;
        io.im(4, t2230);
        const V t2231 = t2228 - t2229;
        io.im(27, t2231);
        // spectrum block of 2
        const V t2232 = t2221 - t2223;
        // spectrum block of 2
        const V t2233 = t2225 - t2227;
        // complex block of 2
        const V t2234 = t2232 + t2233;
        io.im(42, t2234);
        const V t2235 = t2232 - t2233;
        io.im(19, t2235);
        // spectrum block of 5, multiplier 2
        const V t2236 = c[0] * t1861;
        const V t2237 = c[1] * t1891;
        const V t2238 = t2236 - t2237;
        const V t2239 = t2238 + t1825;
        const V t2240 = c[2] * t1867;
        const V t2241 = c[3] * t1897;
        const V t2242 = t2240 + t2241;
        // spectrum block of 5, multiplier 2
        const V t2243 = c[0] * t1921;
        const V t2244 = c[1] * t1951;
        const V t2245 = t2243 + t2244;
        const V t2246 = t2245 - t1836;
        const V t2247 = c[2] * t1927;
        const V t2248 = c[3] * t1957;
        const V t2249 = t2247 + t2248;
        // spectrum block of 5, multiplier 2
        const V t2250 = c[0] * t2003;
        const V t2251 = c[1] * t2033;
        const V t2252 = t2250 - t2251;
        const V t2253 = t2252 + t1967;
        const V t2254 = c[2] * t2009;
        const V t2255 = c[3] * t2039;
        const V t2256 = t2254 + t2255;
        // spectrum block of 5, multiplier 2
        const V t2257 = c[0] * t2063;
        const V t2258 = c[1] * t2093;
        const V t2259 = t2257 + t2258;
        const V t2260 = t2259 - t1978;
        const V t2261 = c[2] * t2069;
        const V t2262 = c[3] * t2099;
        const V t2263 = t2261 + t2262;
        // spectrum block of 5, multiplier 2
        const V t2264 = t2239 - t2242;
        // spectrum block of 5, multiplier 2
        const V t2265 = t2246 - t2249;
        // spectrum block of 2
        const V t2266 = t2264 + t2265;
        const V t2267 = t2264 - t2265;
        // spectrum block of 5, multiplier 2
        const V t2268 = t2253 - t2256;
        // spectrum block of 5, multiplier 2
        const V t2269 = t2260 - t2263;
        // spectrum block of 2
        const V t2270 = t2268 + t2269;
        const V t2271 = t2268 - t2269;
        // complex block of 2
        const V t2272 = t2266 + t2270;
        io.im(18, t2272);
        const V t2273 = t2266 - t2270;
        io.im(41, t2273);
        // complex block of 2
        const V t2274 = t2267 + t2271;
        io.im(28, t2274);
        const V t2275 = t2267 - t2271;
        io.im(5, t2275);
        // spectrum block of 5, multiplier 2
        const V t2276 = t2239 + t2242;
        // spectrum block of 5, multiplier 2
        const V t2277 = t2246 + t2249;
        // spectrum block of 2
        const V t2278 = t2276 + t2277;
        const V t2279 = t2276 - t2277;
        // spectrum block of 5, multiplier 2
        const V t2280 = t2253 + t2256;
        // spectrum block of 5, multiplier 2
        const V t2281 = t2260 + t2263;
        // spectrum block of 2
        const V t2282 = t2280 + t2281;
        const V t2283 = t2280 - t2281;
        // complex block of 2
        const V t2284 = t2278 + t2282;
        io.im(12, t2284);
        const V t2285 = t2278 - t2282;
        io.im(35, t2285);
        // complex block of 2
        const V t2286 = t2279 + t2283;
        io.im(34, t2286);
        const V t2287 = t2279 - t2283;
        io.im(11, t2287);
        // spectrum block of 5, multiplier 2
        const V t2288 = c[1] * t1861;
        const V t2289 = t1825 - t2288;
        const V t2290 = c[0] * t1891;
        const V t2291 = t2289 + t2290;
        const V t2292 = c[3] * t1867;
        const V t2293 = c[2] * t1897;
        const V t2294 = t2292 - t2293;
        // spectrum block of 5, multiplier 2
        const V t2295 = c[1] * t1921;
        const V t2296 = t1836 + t2295;
        const V t2297 = c[0] * t1951;
        const V t2298 = t2296 + t2297;
        const V t2299 = c[3] * t1927;
        const V t2300 = c[2] * t1957;
        const V t2301 = t2299 - t2300;
        // spectrum block of 5, multiplier 2
        const V t2302 = c[1] * t2003;
        const V t2303 = t1967 - t2302;
        const V t2304 = c[0] * t2033;
        const V t2305 = t2303 + t2304;
        const V t2306 = c[3] * t2009;
        const V t2307 = c[2] * t2039;
        const V t2308 = t2306 - t2307;
        // spectrum block of 5, multiplier 2
        const V t2309 = c[1] * t2063;
        const V t2310 = t1978 + t2309;
        const V t2311 = c[0] * t2093;
        const V t2312 = t2310 + t2311;
        const V t2313 = c[3] * t2069;
        const V t2314 = c[2] * t2099;
        const V t2315 = t2313 - t2314;
        // spectrum block of 5, multiplier 2
        const V t2316 = t2291 - t2294;
        // spectrum block of 5, multiplier 2
        const V t2317 = t2298 + t2301;
        // spectrum block of 2
        const V t2318 = t2316 - t2317;
        const V t2319 = t2316 + t2317;
        // spectrum block of 5, multiplier 2
        const V t2320 = t2305 - t2308;
        // spectrum block of 5, multiplier 2
        const V t2321 = t2312 + t2315;
        // spectrum block of 2
        const V t2322 = t2320 - t2321;
        const V t2323 = t2320 + t2321;
        // complex block of 2
        const V t2324 = t2318 + t2322;
        io.im(16, t2324);
        const V t2325 = t2318 - t2322;
        io.im(39, t2325);
        // complex block of 2
        const V t2326 = t2319 + t2323;
        io.im(30, t2326);
        const V t2327 = t2319 - t2323;
        io.im(7, t2327);
        // spectrum block of 5, multiplier 2
        const V t2328 = t2291 + t2294;
        // spectrum block of 5, multiplier 2
        const V t2329 = t2301 - t2298;
        // spectrum block of 2
        const V t2330 = t2328 + t2329;
        const V t2331 = t2328 - t2329;
        // spectrum block of 5, multiplier 2
        const V t2332 = t2305 + t2308;
        // spectrum block of 5, multiplier 2
        const V t2333 = t2315 - t2312;
        // spectrum block of 2
        const V t2334 = t2332 + t2333;
        const V t2335 = t2332 - t2333;
        // complex block of 2
        const V t2336 = t2331 + t2335;
        io.im(14, t2336);
        const V t2337 = t2331 - t2335;
        io.im(37, t2337);
        // complex block of 2
        const V t2338 = t2330 + t2334;
        io.im(32, t2338);
        const V t2339 = t2330 - t2334;
        io.im(9, t2339);
        // spectrum block of 2
        const V t2340 = t1826 + t1837;
        // spectrum block of 2
        const V t2341 = t1968 + t1979;
        // complex block of 2
        const V t2342 = t2340 + t2341;
        io.im(2, t2342);
        const V t2343 = t2340 - t2341;
        io.im(25, t2343);
        // spectrum block of 2
        const V t2344 = t1826 - t1837;
        // spectrum block of 2
        const V t2345 = t1968 - t1979;
        // complex block of 2
        const V t2346 = t2344 + t2345;
        io.im(44, t2346);
        const V t2347 = t2344 - t2345;
        io.im(21, t2347);
    }
};

}  // namespace zulg
