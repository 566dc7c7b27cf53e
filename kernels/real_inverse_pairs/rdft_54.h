// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 54.
// Inverse DFT to 54 real points, prime-factor 27, 2; two lanes to a register.
// 110 sums, 82 differences, 125 products of registers, which do the 686 steps of the graph, those with
// `scale` included; 62 shuffles, 16 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<54> {
    static constexpr int steps = 686;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        2.0,  // c[1]: 2
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.9396926207859084,  // c[3]: -cos 2 pi 5/9
        0.3420201433256687,  // c[4]: -sin 2 pi 5/9
        0.17364817766693036,  // c[5]: cos 2 pi 7/9
        0.984807753012208,  // c[6]: -sin 2 pi 7/9
        0.1503837331804353,  // c[7]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[10]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.766044443118978,  // c[11]: cos 2 pi 8/9
        0.6427876096865394,  // c[12]: -sin 2 pi 8/9
        1.7320508075688772,  // c[13]: sin 2 pi 1/3 times 2
        0.8936326403234123,  // c[14]: cos 2 pi 25/27
        0.44879918020046217,  // c[15]: -sin 2 pi 25/27
        0.5971585917027862,  // c[16]: cos 2 pi 23/27
        0.8021231927550437,  // c[17]: -sin 2 pi 23/27
        0.9579895123154889,  // c[18]: -sin 2 pi 19/27
        0.28680323271109026,  // c[19]: -cos 2 pi 19/27
        0.6862416378687336,  // c[20]: -cos 2 pi 17/27
        0.7273736415730487,  // c[21]: -sin 2 pi 17/27
        0.11609291412523023,  // c[22]: sin 2 pi 13/27
        0.993238357741943,  // c[23]: -cos 2 pi 13/27
        0.549508978070806,  // c[24]: sin 2 pi 11/27
        0.8354878114129364,  // c[25]: -cos 2 pi 11/27
        0.7739085681710371,  // c[26]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.3886714912512303,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.5171545105027521,  // c[28]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.6946590618905499,  // c[29]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.8296432542242788,  // c[30]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.24837888541530426,  // c[31]: sin 2 pi 1/3 times -cos 2 pi 19/27
        0.6299240516454571,  // c[32]: sin 2 pi 1/3 times -sin 2 pi 17/27
        0.5943026915289645,  // c[33]: sin 2 pi 1/3 times -cos 2 pi 17/27
        0.8601696498176589,  // c[34]: sin 2 pi 1/3 times -cos 2 pi 13/27
        0.10053941283181467,  // c[35]: sin 2 pi 1/3 times sin 2 pi 13/27
        0.7235536692358652,  // c[36]: sin 2 pi 1/3 times -cos 2 pi 11/27
        0.47588873461694403,  // c[37]: sin 2 pi 1/3 times sin 2 pi 11/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x18 = io.pair(18);
        const P x9 = io.pair(9);
        const P t0 = shuffled<0, 2>(x18, x9);
        // doubled bins
        const P t1 = c[1] * t0;
        const V x0r = io.re(0);
        const V x27r = io.re(27);
        const P t2 = joined(x0r, x27r);
        // spectrum block of 3, multiplier 2
        const P t3 = t1 + t2;
        const P t4 = c[0] * t1;
        const P t5 = t2 - t4;
        const P t6 = shuffled<1, 3>(x18, x9);
        const P t7 = P(-c[13], c[13]) * t6;
        const P t8 = t5 + t7;
        const P t9 = t5 - t7;
        const P x24 = io.pair(24);
        // doubled bins
        const P t10 = c[1] * x24;
        const P x15 = io.pair(15);
        const P t11 = c[1] * x15;
        const P t12 = shuffled<1, 3>(t10, t11);
        const P x12 = io.pair(12);
        const P t13 = c[1] * x12;
        const P x3 = io.pair(3);
        const P t14 = c[1] * x3;
        const P t15 = shuffled<1, 3>(t13, t14);
        // complex block of 3, multiplier 2
        const P t16 = t12 - t15;
        const P t17 = shuffled<0, 2>(t10, t14);
        const P t18 = shuffled<0, 2>(t13, t11);
        const P t19 = t17 + t18;
        const P t20 = t15 + t12;
        const P t21 = t17 - t18;
        const P x6 = io.pair(6);
        // doubled bins
        const P t22 = c[1] * x6;
        const P x21 = io.pair(21);
        const P t23 = P(c[1], -c[1]) * x21;
        const P t24 = shuffled<1, 3>(t22, t23);
        // complex block of 3, multiplier 2
        const P t25 = t16 + t24;
        const P t26 = shuffled<0, 2>(t22, t23);
        const P t27 = t19 + t26;
        const P t28 = flipped<0, 1>(t24);
        const P t29 = P(-c[0], c[0]) * t16;
        const P t30 = t28 + t29;
        const P t31 = c[0] * t19;
        const P t32 = t26 - t31;
        const P t33 = c[2] * t21;
        const P t34 = flipped<0, 1>(t30);
        const P t35 = t33 + t34;
        const P t36 = P(-c[2], c[2]) * t20;
        const P t37 = t32 + t36;
        const P t38 = flipped<1, 0>(t33);
        const P t39 = t30 + t38;
        const P t40 = t32 - t36;
        // spectrum block of 9, multiplier 2
        const P t41 = c[5] * t40;
        const P t42 = P(-c[6], c[6]) * t39;
        const P t43 = t41 + t42;
        const P t44 = c[3] * t37;
        const P t45 = c[4] * t35;
        const P t46 = t44 + t45;
        // spectrum block of 3, multiplier 2
        const P t47 = t27 + t3;
        const P t48 = c[0] * t27;
        const P t49 = t3 - t48;
        const P t50 = c[2] * t25;
        const P t51 = t49 - t50;
        const P t52 = t49 + t50;
        // spectrum block of 3, multiplier 2
        const P t53 = t43 + t9;
        const P t54 = c[0] * t43;
        const P t55 = t9 - t54;
        const P t56 = shuffled<0, 3>(t39, t40);
        const P t57 = P(c[7], c[8]) * t56;
        const P t58 = shuffled<0, 3>(t40, t39);
        const P t59 = P(c[8], -c[7]) * t58;
        const P t60 = t57 + t59;
        const P t61 = t55 - t60;
        const P t62 = t55 + t60;
        // spectrum block of 3, multiplier 2
        const P t63 = t8 - t46;
        const P t64 = c[0] * t46;
        const P t65 = t64 + t8;
        const P t66 = c[9] * t37;
        const P t67 = c[10] * t35;
        const P t68 = t66 - t67;
        const P t69 = t65 - t68;
        const P t70 = t65 + t68;
        const P x20 = io.pair(20);
        // doubled bins
        const P t71 = c[1] * x20;
        const P x11 = io.pair(11);
        const P t72 = c[1] * x11;
        const P t73 = shuffled<1, 3>(t71, t72);
        const P x16 = io.pair(16);
        const P t74 = c[1] * x16;
        const P x7 = io.pair(7);
        const P t75 = c[1] * x7;
        const P t76 = shuffled<1, 3>(t74, t75);
        // complex block of 3, multiplier 2
        const P t77 = t73 - t76;
        const P t78 = shuffled<0, 2>(t71, t75);
        const P t79 = shuffled<0, 2>(t74, t72);
        const P t80 = t78 + t79;
        const P t81 = t76 + t73;
        const P t82 = t78 - t79;
        const P x2 = io.pair(2);
        // doubled bins
        const P t83 = c[1] * x2;
        const P x25 = io.pair(25);
        const P t84 = P(c[1], -c[1]) * x25;
        const P t85 = shuffled<1, 3>(t83, t84);
        // complex block of 3, multiplier 2
        const P t86 = t77 + t85;
        const P t87 = shuffled<0, 2>(t83, t84);
        const P t88 = t80 + t87;
        const P t89 = flipped<0, 1>(t85);
        const P t90 = P(-c[0], c[0]) * t77;
        const P t91 = t89 + t90;
        const P t92 = c[0] * t80;
        const P t93 = t87 - t92;
        const P t94 = c[2] * t82;
        const P t95 = flipped<0, 1>(t91);
        const P t96 = t94 + t95;
        const P t97 = P(-c[2], c[2]) * t81;
        const P t98 = t93 + t97;
        const P t99 = flipped<1, 0>(t94);
        const P t100 = t91 + t99;
        const P t101 = t93 - t97;
        const P x26 = io.pair(26);
        // doubled bins
        const P t102 = c[1] * x26;
        const P x17 = io.pair(17);
        const P t103 = c[1] * x17;
        const P t104 = shuffled<1, 3>(t102, t103);
        const P x10 = io.pair(10);
        const P t105 = c[1] * x10;
        const P x1 = io.pair(1);
        const P t106 = c[1] * x1;
        const P t107 = shuffled<1, 3>(t105, t106);
        // complex block of 3, multiplier 2
        const P t108 = t104 - t107;
        const P t109 = shuffled<0, 2>(t102, t106);
        const P t110 = shuffled<0, 2>(t105, t103);
        const P t111 = t109 + t110;
        const P t112 = t107 + t104;
        const P t113 = t109 - t110;
        const P x8 = io.pair(8);
        // doubled bins
        const P t114 = c[1] * x8;
        const P x19 = io.pair(19);
        const P t115 = P(c[1], -c[1]) * x19;
        const P t116 = shuffled<1, 3>(t114, t115);
        // complex block of 3, multiplier 2
        const P t117 = t108 + t116;
        const P t118 = shuffled<0, 2>(t114, t115);
        const P t119 = t111 + t118;
        const P t120 = flipped<0, 1>(t116);
        const P t121 = P(-c[0], c[0]) * t108;
        const P t122 = t120 + t121;
        const P t123 = c[0] * t111;
        const P t124 = t118 - t123;
        const P t125 = c[2] * t113;
        const P t126 = flipped<0, 1>(t122);
        const P t127 = t125 + t126;
        const P t128 = P(-c[2], c[2]) * t112;
        const P t129 = t124 + t128;
        const P t130 = flipped<1, 0>(t125);
        const P t131 = t122 + t130;
        const P t132 = t124 - t128;
        const P x22 = io.pair(22);
        // doubled bins
        const P t133 = c[1] * x22;
        const P x5 = io.pair(5);
        const P t134 = c[1] * x5;
        const P t135 = shuffled<1, 3>(t133, t134);
        const P x4 = io.pair(4);
        const P t136 = c[1] * x4;
        const P x23 = io.pair(23);
        const P t137 = c[1] * x23;
        const P t138 = shuffled<1, 3>(t136, t137);
        // complex block of 3, multiplier 2
        const P t139 = t135 + t138;
        const P t140 = shuffled<0, 2>(t133, t134);
        const P t141 = shuffled<0, 2>(t136, t137);
        const P t142 = t140 + t141;
        const P t143 = shuffled<0, 3>(t138, t135);
        const P t144 = shuffled<0, 3>(t135, t138);
        const P t145 = t143 - t144;
        const P t146 = t140 - t141;
        const P x14 = io.pair(14);
        // doubled bins
        const P t147 = c[1] * x14;
        const P t148 = shuffled<1, 3>(t147, t139);
        const P x13 = io.pair(13);
        const P t149 = c[1] * x13;
        const P t150 = shuffled<0, 3>(t139, t149);
        // complex block of 3, multiplier 2
        const P t151 = t148 - t150;
        const P t152 = shuffled<0, 2>(t147, t149);
        const P t153 = t142 + t152;
        const P t154 = shuffled<0, 3>(t148, t150);
        const P t155 = c[0] * t139;
        const P t156 = t154 + t155;
        const P t157 = c[0] * t142;
        const P t158 = t152 - t157;
        const P t159 = c[2] * t146;
        const P t160 = flipped<0, 1>(t156);
        const P t161 = t159 + t160;
        const P t162 = c[2] * t145;
        const P t163 = t158 - t162;
        const P t164 = flipped<1, 0>(t159);
        const P t165 = t156 + t164;
        const P t166 = t158 + t162;
        // complex block of 3, multiplier 2
        const P t167 = t117 + t151;
        const P t168 = t119 + t153;
        const P t169 = t117 - t151;
        const P t170 = t119 - t153;
        const P t171 = t167 + t86;
        const P t172 = t168 + t88;
        const P t173 = c[0] * t167;
        const P t174 = t86 - t173;
        const P t175 = c[0] * t168;
        const P t176 = t88 - t175;
        const P t177 = c[2] * t170;
        const P t178 = t174 + t177;
        const P t179 = c[2] * t169;
        const P t180 = t176 - t179;
        const P t181 = t174 - t177;
        const P t182 = t176 + t179;
        // complex block of 9, multiplier 2
        const P t183 = c[6] * t132;
        const P t184 = P(c[5], -c[5]) * t131;
        const P t185 = t183 + t184;
        const P t186 = c[5] * t132;
        const P t187 = P(-c[6], c[6]) * t131;
        const P t188 = t186 + t187;
        const P t189 = P(-c[3], c[3]) * t165;
        const P t190 = c[4] * t166;
        const P t191 = t189 + t190;
        const P t192 = c[4] * t165;
        const P t193 = P(c[3], -c[3]) * t166;
        const P t194 = t192 + t193;
        // complex block of 3, multiplier 2
        const P t195 = t185 + t191;
        const P t196 = flipped<1, 0>(t194);
        const P t197 = t188 + t196;
        const P t198 = t185 - t191;
        const P t199 = t188 - t196;
        const P t200 = flipped<0, 1>(t100);
        const P t201 = t195 + t200;
        const P t202 = t197 + t101;
        const P t203 = P(-c[0], c[0]) * t195;
        const P t204 = t100 + t203;
        const P t205 = c[0] * t197;
        const P t206 = t101 - t205;
        const P t207 = c[2] * t199;
        const P t208 = flipped<0, 1>(t204);
        const P t209 = t207 + t208;
        const P t210 = c[2] * t198;
        const P t211 = t206 - t210;
        const P t212 = flipped<1, 0>(t207);
        const P t213 = t204 + t212;
        const P t214 = t206 + t210;
        // complex block of 9, multiplier 2
        const P t215 = c[4] * t129;
        const P t216 = c[3] * t127;
        const P t217 = t215 - t216;
        const P t218 = c[3] * t129;
        const P t219 = c[4] * t127;
        const P t220 = t218 + t219;
        const P t221 = c[11] * t161;
        const P t222 = c[12] * t163;
        const P t223 = t221 - t222;
        const P t224 = c[11] * t163;
        const P t225 = c[12] * t161;
        const P t226 = t224 + t225;
        // complex block of 3, multiplier 2
        const P t227 = t217 + t223;
        const P t228 = t226 - t220;
        const P t229 = t217 - t223;
        const P t230 = t220 + t226;
        const P t231 = t227 + t96;
        const P t232 = t228 + t98;
        const P t233 = c[0] * t227;
        const P t234 = t96 - t233;
        const P t235 = c[0] * t228;
        const P t236 = t98 - t235;
        const P t237 = c[2] * t230;
        const P t238 = t234 - t237;
        const P t239 = c[2] * t229;
        const P t240 = t236 - t239;
        const P t241 = t234 + t237;
        const P t242 = t236 + t239;
        // spectrum block of 27, multiplier 2
        const P t243 = c[14] * t202;
        const P t244 = c[15] * t201;
        const P t245 = t243 - t244;
        const P t246 = c[16] * t232;
        const P t247 = c[17] * t231;
        const P t248 = t246 - t247;
        const P t249 = c[5] * t182;
        const P t250 = c[6] * t181;
        const P t251 = t249 - t250;
        const P t252 = c[18] * t213;
        const P t253 = P(c[19], -c[19]) * t214;
        const P t254 = t252 + t253;
        const P t255 = c[20] * t242;
        const P t256 = c[21] * t241;
        const P t257 = t255 + t256;
        const P t258 = c[3] * t180;
        const P t259 = c[4] * t178;
        const P t260 = t258 + t259;
        const P t261 = c[22] * t209;
        const P t262 = c[23] * t211;
        const P t263 = t261 - t262;
        const P t264 = c[24] * t238;
        const P t265 = c[25] * t240;
        const P t266 = t264 - t265;
        // spectrum block of 3, multiplier 2
        const P t267 = t172 + t47;
        const P t268 = c[0] * t172;
        const P t269 = t47 - t268;
        const P t270 = c[2] * t171;
        const P t271 = t269 - t270;
        const P t272 = t269 + t270;
        // spectrum block of 3, multiplier 2
        const P t273 = t245 + t53;
        const P t274 = c[0] * t245;
        const P t275 = t53 - t274;
        const P t276 = c[26] * t201;
        const P t277 = c[27] * t202;
        const P t278 = t276 + t277;
        const P t279 = t275 - t278;
        const P t280 = t275 + t278;
        // spectrum block of 3, multiplier 2
        const P t281 = t248 + t63;
        const P t282 = c[0] * t248;
        const P t283 = t63 - t282;
        const P t284 = c[28] * t231;
        const P t285 = c[29] * t232;
        const P t286 = t284 + t285;
        const P t287 = t283 - t286;
        const P t288 = t283 + t286;
        // spectrum block of 3, multiplier 2
        const P t289 = t251 + t52;
        const P t290 = c[0] * t251;
        const P t291 = t52 - t290;
        const P t292 = c[7] * t181;
        const P t293 = c[8] * t182;
        const P t294 = t292 + t293;
        const P t295 = t291 - t294;
        const P t296 = t291 + t294;
        const P t297 = flipped<1, 0>(t254);
        // spectrum block of 3, multiplier 2
        const P t298 = t297 + t62;
        const P t299 = P(c[0], -c[0]) * t254;
        const P t300 = t62 + t299;
        const P t301 = shuffled<0, 3>(t214, t213);
        const P t302 = P(c[30], c[31]) * t301;
        const P t303 = shuffled<0, 3>(t213, t214);
        const P t304 = P(-c[31], c[30]) * t303;
        const P t305 = t302 + t304;
        const P t306 = t300 - t305;
        const P t307 = t300 + t305;
        // spectrum block of 3, multiplier 2
        const P t308 = t70 - t257;
        const P t309 = c[0] * t257;
        const P t310 = t309 + t70;
        const P t311 = c[32] * t242;
        const P t312 = c[33] * t241;
        const P t313 = t311 - t312;
        const P t314 = t310 - t313;
        const P t315 = t310 + t313;
        // spectrum block of 3, multiplier 2
        const P t316 = t51 - t260;
        const P t317 = c[0] * t260;
        const P t318 = t317 + t51;
        const P t319 = c[9] * t180;
        const P t320 = c[10] * t178;
        const P t321 = t319 - t320;
        const P t322 = t318 - t321;
        const P t323 = t318 + t321;
        // spectrum block of 3, multiplier 2
        const P t324 = t263 + t61;
        const P t325 = c[0] * t263;
        const P t326 = t61 - t325;
        const P t327 = c[34] * t209;
        const P t328 = c[35] * t211;
        const P t329 = t327 + t328;
        const P t330 = t326 + t329;
        const P t331 = t326 - t329;
        // spectrum block of 3, multiplier 2
        const P t332 = t266 + t69;
        const P t333 = c[0] * t266;
        const P t334 = t69 - t333;
        const P t335 = c[36] * t238;
        const P t336 = c[37] * t240;
        const P t337 = t335 + t336;
        const P t338 = t334 + t337;
        const P t339 = t334 - t337;
        const P t340 = shuffled<0, 2>(t267, t273);
        const P t341 = shuffled<1, 3>(t267, t273);
        // spectrum block of 2
        const P t342 = t340 + t341;
        io.out(0, 2, t342);
        const P t343 = t340 - t341;
        io.out(27, 29, t343);
        const P t344 = shuffled<0, 2>(t281, t289);
        const P t345 = shuffled<1, 3>(t281, t289);
        // spectrum block of 2
        const P t346 = t344 + t345;
        io.out(4, 6, t346);
        const P t347 = t344 - t345;
        io.out(31, 33, t347);
        const P t348 = shuffled<0, 2>(t298, t308);
        const P t349 = shuffled<1, 3>(t298, t308);
        // spectrum block of 2
        const P t350 = t348 + t349;
        io.out(8, 10, t350);
        const P t351 = t348 - t349;
        io.out(35, 37, t351);
        const P t352 = shuffled<0, 2>(t316, t324);
        const P t353 = shuffled<1, 3>(t316, t324);
        // spectrum block of 2
        const P t354 = t352 + t353;
        io.out(12, 14, t354);
        const P t355 = t352 - t353;
        io.out(39, 41, t355);
        const P t356 = shuffled<0, 2>(t332, t272);
        const P t357 = shuffled<1, 3>(t332, t272);
        // spectrum block of 2
        const P t358 = t356 + t357;
        io.out(16, 18, t358);
        const P t359 = t356 - t357;
        io.out(43, 45, t359);
        const P t360 = shuffled<0, 2>(t280, t288);
        const P t361 = shuffled<1, 3>(t280, t288);
        // spectrum block of 2
        const P t362 = t360 + t361;
        io.out(20, 22, t362);
        const P t363 = t360 - t361;
        io.out(47, 49, t363);
        const P t364 = shuffled<0, 2>(t296, t307);
        const P t365 = shuffled<1, 3>(t296, t307);
        // spectrum block of 2
        const P t366 = t364 + t365;
        io.out(24, 26, t366);
        const P t367 = t364 - t365;
        io.out(51, 53, t367);
        const P t368 = shuffled<0, 2>(t315, t323);
        const P t369 = shuffled<1, 3>(t315, t323);
        // spectrum block of 2
        const P t370 = t368 + t369;
        io.out(28, 30, t370);
        const P t371 = t368 - t369;
        io.out(1, 3, t371);
        const P t372 = shuffled<0, 2>(t331, t339);
        const P t373 = shuffled<1, 3>(t331, t339);
        // spectrum block of 2
        const P t374 = t372 + t373;
        io.out(32, 34, t374);
        const P t375 = t372 - t373;
        io.out(5, 7, t375);
        const P t376 = shuffled<0, 2>(t271, t279);
        const P t377 = shuffled<1, 3>(t271, t279);
        // spectrum block of 2
        const P t378 = t376 + t377;
        io.out(36, 38, t378);
        const P t379 = t376 - t377;
        io.out(9, 11, t379);
        const P t380 = shuffled<0, 2>(t287, t295);
        const P t381 = shuffled<1, 3>(t287, t295);
        // spectrum block of 2
        const P t382 = t380 + t381;
        io.out(40, 42, t382);
        const P t383 = t380 - t381;
        io.out(13, 15, t383);
        const P t384 = shuffled<0, 2>(t306, t314);
        const P t385 = shuffled<1, 3>(t306, t314);
        // spectrum block of 2
        const P t386 = t384 + t385;
        io.out(44, 46, t386);
        const P t387 = t384 - t385;
        io.out(17, 19, t387);
        const P t388 = shuffled<0, 2>(t322, t330);
        const P t389 = shuffled<1, 3>(t322, t330);
        // spectrum block of 2
        const P t390 = t388 + t389;
        io.out(48, 50, t390);
        const P t391 = t388 - t389;
        io.out(21, 23, t391);
        const V t392 = part<0>(t338);
        const V t393 = part<1>(t338);
        // spectrum block of 2
        const V t394 = t392 + t393;
        io.out(52, t394);
        const V t395 = t392 - t393;
        io.out(25, t395);
    }
};

}  // namespace zulg
