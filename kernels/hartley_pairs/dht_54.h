// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 54.
// Hartley transform of 54 points, form I; two lanes to a register.
// 123 sums, 95 differences, 100 products of registers, which do the 688 steps of the graph, those with
// `scale` included; 61 shuffles, 16 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<54> {
    static constexpr int steps = 688;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 5/9
        0.3420201433256687,  // c[3]: -sin 2 pi 5/9
        0.17364817766693036,  // c[4]: cos 2 pi 7/9
        0.984807753012208,  // c[5]: -sin 2 pi 7/9
        0.1503837331804353,  // c[6]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[7]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[8]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[9]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.766044443118978,  // c[10]: cos 2 pi 8/9
        0.6427876096865394,  // c[11]: -sin 2 pi 8/9
        0.8936326403234123,  // c[12]: cos 2 pi 25/27
        0.44879918020046217,  // c[13]: -sin 2 pi 25/27
        0.5971585917027862,  // c[14]: cos 2 pi 23/27
        0.8021231927550437,  // c[15]: -sin 2 pi 23/27
        0.9579895123154889,  // c[16]: -sin 2 pi 19/27
        0.28680323271109026,  // c[17]: -cos 2 pi 19/27
        0.6862416378687336,  // c[18]: -cos 2 pi 17/27
        0.7273736415730487,  // c[19]: -sin 2 pi 17/27
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
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x53_52 = io.in(53, 52);
        // input stage
        const P t0 = x1_2 + x53_52;
        const P t1 = x1_2 - x53_52;
        const P x3_4 = io.in(3, 4);
        const P x51_50 = io.in(51, 50);
        const P t2 = x3_4 + x51_50;
        const P t3 = x3_4 - x51_50;
        const P x5_6 = io.in(5, 6);
        const P x49_48 = io.in(49, 48);
        const P t4 = x5_6 + x49_48;
        const P t5 = x5_6 - x49_48;
        const P x7_8 = io.in(7, 8);
        const P x47_46 = io.in(47, 46);
        const P t6 = x7_8 + x47_46;
        const P t7 = x7_8 - x47_46;
        const P x9_10 = io.in(9, 10);
        const P x45_44 = io.in(45, 44);
        const P t8 = x9_10 + x45_44;
        const P t9 = x9_10 - x45_44;
        const P x11_12 = io.in(11, 12);
        const P x43_42 = io.in(43, 42);
        const P t10 = x11_12 + x43_42;
        const P t11 = x11_12 - x43_42;
        const P x13_14 = io.in(13, 14);
        const P x41_40 = io.in(41, 40);
        const P t12 = x13_14 + x41_40;
        const P t13 = x13_14 - x41_40;
        const P x15_16 = io.in(15, 16);
        const P x39_38 = io.in(39, 38);
        const P t14 = x15_16 + x39_38;
        const P t15 = x15_16 - x39_38;
        const P x17_18 = io.in(17, 18);
        const P x37_36 = io.in(37, 36);
        const P t16 = x17_18 + x37_36;
        const P t17 = x17_18 - x37_36;
        const P x19_20 = io.in(19, 20);
        const P x35_34 = io.in(35, 34);
        const P t18 = x19_20 + x35_34;
        const P t19 = x19_20 - x35_34;
        const P x21_22 = io.in(21, 22);
        const P x33_32 = io.in(33, 32);
        const P t20 = x21_22 + x33_32;
        const P t21 = x21_22 - x33_32;
        const P x23_24 = io.in(23, 24);
        const P x31_30 = io.in(31, 30);
        const P t22 = x23_24 + x31_30;
        const P t23 = x23_24 - x31_30;
        const P x25_26 = io.in(25, 26);
        const P x29_28 = io.in(29, 28);
        const P t24 = x25_26 + x29_28;
        const P t25 = x25_26 - x29_28;
        const P t26 = shuffled<1, 2>(t16, t8);
        const P x0_27 = io.in(0, 27);
        // spectrum block of 3, multiplier 2
        const P t27 = t26 + x0_27;
        const P t28 = c[0] * t26;
        const P t29 = x0_27 - t28;
        const P t30 = shuffled<1, 2>(t17, t9);
        const P t31 = P(-c[1], c[1]) * t30;
        const P t32 = t29 + t31;
        const P t33 = t29 - t31;
        const P t34 = shuffled<1, 2>(t23, t15);
        const P t35 = shuffled<1, 2>(t11, t3);
        // complex block of 3, multiplier 2
        const P t36 = t34 - t35;
        const P t37 = shuffled<1, 2>(t22, t2);
        const P t38 = shuffled<1, 2>(t10, t14);
        const P t39 = t37 + t38;
        const P t40 = t35 + t34;
        const P t41 = t37 - t38;
        const P t42 = shuffled<1, 2>(t5, t21);
        const P t43 = flipped<0, 1>(t42);
        const P t44 = t36 + t43;
        const P t45 = shuffled<1, 2>(t4, t20);
        const P t46 = t39 + t45;
        const P t47 = P(-c[0], c[0]) * t36;
        const P t48 = t42 + t47;
        const P t49 = c[0] * t39;
        const P t50 = t45 - t49;
        const P t51 = c[1] * t41;
        const P t52 = flipped<0, 1>(t48);
        const P t53 = t51 + t52;
        const P t54 = P(-c[1], c[1]) * t40;
        const P t55 = t50 + t54;
        const P t56 = flipped<1, 0>(t51);
        const P t57 = t48 + t56;
        const P t58 = t50 - t54;
        // spectrum block of 9, multiplier 2
        const P t59 = c[4] * t58;
        const P t60 = P(-c[5], c[5]) * t57;
        const P t61 = t59 + t60;
        const P t62 = c[2] * t55;
        const P t63 = c[3] * t53;
        const P t64 = t62 + t63;
        // spectrum block of 3, multiplier 2
        const P t65 = t46 + t27;
        const P t66 = c[0] * t46;
        const P t67 = t27 - t66;
        const P t68 = c[1] * t44;
        const P t69 = t67 - t68;
        const P t70 = t67 + t68;
        // spectrum block of 3, multiplier 2
        const P t71 = t61 + t33;
        const P t72 = c[0] * t61;
        const P t73 = t33 - t72;
        const P t74 = shuffled<0, 3>(t57, t58);
        const P t75 = P(c[6], c[7]) * t74;
        const P t76 = shuffled<0, 3>(t58, t57);
        const P t77 = P(c[7], -c[6]) * t76;
        const P t78 = t75 + t77;
        const P t79 = t73 - t78;
        const P t80 = t73 + t78;
        // spectrum block of 3, multiplier 2
        const P t81 = t32 - t64;
        const P t82 = c[0] * t64;
        const P t83 = t82 + t32;
        const P t84 = c[8] * t55;
        const P t85 = c[9] * t53;
        const P t86 = t84 - t85;
        const P t87 = t83 - t86;
        const P t88 = t83 + t86;
        const P t89 = shuffled<1, 2>(t19, t11);
        const P t90 = shuffled<1, 2>(t15, t7);
        // complex block of 3, multiplier 2
        const P t91 = t89 - t90;
        const P t92 = shuffled<1, 2>(t18, t6);
        const P t93 = shuffled<1, 2>(t14, t10);
        const P t94 = t92 + t93;
        const P t95 = t90 + t89;
        const P t96 = t92 - t93;
        const P t97 = shuffled<1, 2>(t1, t25);
        const P t98 = flipped<0, 1>(t97);
        const P t99 = t91 + t98;
        const P t100 = shuffled<1, 2>(t0, t24);
        const P t101 = t94 + t100;
        const P t102 = P(-c[0], c[0]) * t91;
        const P t103 = t97 + t102;
        const P t104 = c[0] * t94;
        const P t105 = t100 - t104;
        const P t106 = c[1] * t96;
        const P t107 = flipped<0, 1>(t103);
        const P t108 = t106 + t107;
        const P t109 = P(-c[1], c[1]) * t95;
        const P t110 = t105 + t109;
        const P t111 = flipped<1, 0>(t106);
        const P t112 = t103 + t111;
        const P t113 = t105 - t109;
        const P t114 = shuffled<1, 2>(t25, t17);
        const P t115 = shuffled<1, 2>(t9, t1);
        // complex block of 3, multiplier 2
        const P t116 = t114 - t115;
        const P t117 = shuffled<1, 2>(t24, t0);
        const P t118 = shuffled<1, 2>(t8, t16);
        const P t119 = t117 + t118;
        const P t120 = t115 + t114;
        const P t121 = t117 - t118;
        const P t122 = shuffled<1, 2>(t7, t19);
        const P t123 = flipped<0, 1>(t122);
        const P t124 = t116 + t123;
        const P t125 = shuffled<1, 2>(t6, t18);
        const P t126 = t119 + t125;
        const P t127 = P(-c[0], c[0]) * t116;
        const P t128 = t122 + t127;
        const P t129 = c[0] * t119;
        const P t130 = t125 - t129;
        const P t131 = c[1] * t121;
        const P t132 = flipped<0, 1>(t128);
        const P t133 = t131 + t132;
        const P t134 = P(-c[1], c[1]) * t120;
        const P t135 = t130 + t134;
        const P t136 = flipped<1, 0>(t131);
        const P t137 = t128 + t136;
        const P t138 = t130 - t134;
        const P t139 = shuffled<1, 2>(t21, t5);
        const P t140 = shuffled<1, 2>(t3, t23);
        // complex block of 3, multiplier 2
        const P t141 = t139 + t140;
        const P t142 = shuffled<1, 2>(t20, t4);
        const P t143 = shuffled<1, 2>(t2, t22);
        const P t144 = t142 + t143;
        const P t145 = shuffled<0, 3>(t140, t139);
        const P t146 = shuffled<0, 3>(t139, t140);
        const P t147 = t145 - t146;
        const P t148 = t142 - t143;
        const P t149 = shuffled<1, 3>(t13, t141);
        const P t150 = shuffled<0, 2>(t141, t13);
        const P t151 = t149 - t150;
        const P t152 = shuffled<1, 0>(t12);
        const P t153 = t144 + t152;
        const P t154 = shuffled<0, 3>(t149, t150);
        const P t155 = c[0] * t141;
        const P t156 = t154 + t155;
        const P t157 = c[0] * t144;
        const P t158 = t152 - t157;
        const P t159 = c[1] * t148;
        const P t160 = flipped<0, 1>(t156);
        const P t161 = t159 + t160;
        const P t162 = c[1] * t147;
        const P t163 = t158 - t162;
        const P t164 = flipped<1, 0>(t159);
        const P t165 = t156 + t164;
        const P t166 = t158 + t162;
        // complex block of 3, multiplier 2
        const P t167 = t124 + t151;
        const P t168 = t126 + t153;
        const P t169 = t124 - t151;
        const P t170 = t126 - t153;
        const P t171 = t167 + t99;
        const P t172 = t168 + t101;
        const P t173 = c[0] * t167;
        const P t174 = t99 - t173;
        const P t175 = c[0] * t168;
        const P t176 = t101 - t175;
        const P t177 = c[1] * t170;
        const P t178 = t174 + t177;
        const P t179 = c[1] * t169;
        const P t180 = t176 - t179;
        const P t181 = t174 - t177;
        const P t182 = t176 + t179;
        // complex block of 9, multiplier 2
        const P t183 = c[5] * t138;
        const P t184 = P(c[4], -c[4]) * t137;
        const P t185 = t183 + t184;
        const P t186 = c[4] * t138;
        const P t187 = P(-c[5], c[5]) * t137;
        const P t188 = t186 + t187;
        const P t189 = P(-c[2], c[2]) * t165;
        const P t190 = c[3] * t166;
        const P t191 = t189 + t190;
        const P t192 = c[3] * t165;
        const P t193 = P(c[2], -c[2]) * t166;
        const P t194 = t192 + t193;
        // complex block of 3, multiplier 2
        const P t195 = t185 + t191;
        const P t196 = flipped<1, 0>(t194);
        const P t197 = t188 + t196;
        const P t198 = t185 - t191;
        const P t199 = t188 - t196;
        const P t200 = flipped<0, 1>(t112);
        const P t201 = t195 + t200;
        const P t202 = t197 + t113;
        const P t203 = P(-c[0], c[0]) * t195;
        const P t204 = t112 + t203;
        const P t205 = c[0] * t197;
        const P t206 = t113 - t205;
        const P t207 = c[1] * t199;
        const P t208 = flipped<0, 1>(t204);
        const P t209 = t207 + t208;
        const P t210 = c[1] * t198;
        const P t211 = t206 - t210;
        const P t212 = flipped<1, 0>(t207);
        const P t213 = t204 + t212;
        const P t214 = t206 + t210;
        // complex block of 9, multiplier 2
        const P t215 = c[3] * t135;
        const P t216 = c[2] * t133;
        const P t217 = t215 - t216;
        const P t218 = c[2] * t135;
        const P t219 = c[3] * t133;
        const P t220 = t218 + t219;
        const P t221 = c[10] * t161;
        const P t222 = c[11] * t163;
        const P t223 = t221 - t222;
        const P t224 = c[10] * t163;
        const P t225 = c[11] * t161;
        const P t226 = t224 + t225;
        // complex block of 3, multiplier 2
        const P t227 = t217 + t223;
        const P t228 = t226 - t220;
        const P t229 = t217 - t223;
        const P t230 = t220 + t226;
        const P t231 = t227 + t108;
        const P t232 = t228 + t110;
        const P t233 = c[0] * t227;
        const P t234 = t108 - t233;
        const P t235 = c[0] * t228;
        const P t236 = t110 - t235;
        const P t237 = c[1] * t230;
        const P t238 = t234 - t237;
        const P t239 = c[1] * t229;
        const P t240 = t236 - t239;
        const P t241 = t234 + t237;
        const P t242 = t236 + t239;
        // spectrum block of 27, multiplier 2
        const P t243 = c[12] * t202;
        const P t244 = c[13] * t201;
        const P t245 = t243 - t244;
        const P t246 = c[14] * t232;
        const P t247 = c[15] * t231;
        const P t248 = t246 - t247;
        const P t249 = c[4] * t182;
        const P t250 = c[5] * t181;
        const P t251 = t249 - t250;
        const P t252 = c[16] * t213;
        const P t253 = P(c[17], -c[17]) * t214;
        const P t254 = t252 + t253;
        const P t255 = c[18] * t242;
        const P t256 = c[19] * t241;
        const P t257 = t255 + t256;
        const P t258 = c[2] * t180;
        const P t259 = c[3] * t178;
        const P t260 = t258 + t259;
        const P t261 = c[20] * t209;
        const P t262 = c[21] * t211;
        const P t263 = t261 - t262;
        const P t264 = c[22] * t238;
        const P t265 = c[23] * t240;
        const P t266 = t264 - t265;
        // spectrum block of 3, multiplier 2
        const P t267 = t172 + t65;
        const P t268 = c[0] * t172;
        const P t269 = t65 - t268;
        const P t270 = c[1] * t171;
        const P t271 = t269 - t270;
        const P t272 = t269 + t270;
        // spectrum block of 3, multiplier 2
        const P t273 = t245 + t71;
        const P t274 = c[0] * t245;
        const P t275 = t71 - t274;
        const P t276 = c[24] * t201;
        const P t277 = c[25] * t202;
        const P t278 = t276 + t277;
        const P t279 = t275 - t278;
        const P t280 = t275 + t278;
        // spectrum block of 3, multiplier 2
        const P t281 = t248 + t81;
        const P t282 = c[0] * t248;
        const P t283 = t81 - t282;
        const P t284 = c[26] * t231;
        const P t285 = c[27] * t232;
        const P t286 = t284 + t285;
        const P t287 = t283 - t286;
        const P t288 = t283 + t286;
        // spectrum block of 3, multiplier 2
        const P t289 = t251 + t70;
        const P t290 = c[0] * t251;
        const P t291 = t70 - t290;
        const P t292 = c[6] * t181;
        const P t293 = c[7] * t182;
        const P t294 = t292 + t293;
        const P t295 = t291 - t294;
        const P t296 = t291 + t294;
        const P t297 = flipped<1, 0>(t254);
        // spectrum block of 3, multiplier 2
        const P t298 = t297 + t80;
        const P t299 = P(c[0], -c[0]) * t254;
        const P t300 = t80 + t299;
        const P t301 = shuffled<0, 3>(t214, t213);
        const P t302 = P(c[28], c[29]) * t301;
        const P t303 = shuffled<0, 3>(t213, t214);
        const P t304 = P(-c[29], c[28]) * t303;
        const P t305 = t302 + t304;
        const P t306 = t300 - t305;
        const P t307 = t300 + t305;
        // spectrum block of 3, multiplier 2
        const P t308 = t88 - t257;
        const P t309 = c[0] * t257;
        const P t310 = t309 + t88;
        const P t311 = c[30] * t242;
        const P t312 = c[31] * t241;
        const P t313 = t311 - t312;
        const P t314 = t310 - t313;
        const P t315 = t310 + t313;
        // spectrum block of 3, multiplier 2
        const P t316 = t69 - t260;
        const P t317 = c[0] * t260;
        const P t318 = t317 + t69;
        const P t319 = c[8] * t180;
        const P t320 = c[9] * t178;
        const P t321 = t319 - t320;
        const P t322 = t318 - t321;
        const P t323 = t318 + t321;
        // spectrum block of 3, multiplier 2
        const P t324 = t263 + t79;
        const P t325 = c[0] * t263;
        const P t326 = t79 - t325;
        const P t327 = c[32] * t209;
        const P t328 = c[33] * t211;
        const P t329 = t327 + t328;
        const P t330 = t326 + t329;
        const P t331 = t326 - t329;
        // spectrum block of 3, multiplier 2
        const P t332 = t266 + t87;
        const P t333 = c[0] * t266;
        const P t334 = t87 - t333;
        const P t335 = c[34] * t238;
        const P t336 = c[35] * t240;
        const P t337 = t335 + t336;
        const P t338 = t334 + t337;
        const P t339 = t334 - t337;
        const P t340 = shuffled<0, 2>(t267, t273);
        const P t341 = shuffled<1, 3>(t267, t273);
        // spectrum block of 2
        const P t342 = t340 + t341;
        io.out(0, 52, t342);
        const P t343 = t340 - t341;
        io.out(27, 25, t343);
        const P t344 = shuffled<0, 2>(t281, t289);
        const P t345 = shuffled<1, 3>(t281, t289);
        // spectrum block of 2
        const P t346 = t344 + t345;
        io.out(50, 48, t346);
        const P t347 = t344 - t345;
        io.out(23, 21, t347);
        const P t348 = shuffled<0, 2>(t298, t308);
        const P t349 = shuffled<1, 3>(t298, t308);
        // spectrum block of 2
        const P t350 = t348 + t349;
        io.out(46, 44, t350);
        const P t351 = t348 - t349;
        io.out(19, 17, t351);
        const P t352 = shuffled<0, 2>(t316, t324);
        const P t353 = shuffled<1, 3>(t316, t324);
        // spectrum block of 2
        const P t354 = t352 + t353;
        io.out(42, 40, t354);
        const P t355 = t352 - t353;
        io.out(15, 13, t355);
        const P t356 = shuffled<0, 2>(t332, t272);
        const P t357 = shuffled<1, 3>(t332, t272);
        // spectrum block of 2
        const P t358 = t356 + t357;
        io.out(38, 36, t358);
        const P t359 = t356 - t357;
        io.out(11, 9, t359);
        const P t360 = shuffled<0, 2>(t280, t288);
        const P t361 = shuffled<1, 3>(t280, t288);
        // spectrum block of 2
        const P t362 = t360 + t361;
        io.out(34, 32, t362);
        const P t363 = t360 - t361;
        io.out(7, 5, t363);
        const P t364 = shuffled<0, 2>(t296, t307);
        const P t365 = shuffled<1, 3>(t296, t307);
        // spectrum block of 2
        const P t366 = t364 + t365;
        io.out(30, 28, t366);
        const P t367 = t364 - t365;
        io.out(3, 1, t367);
        const P t368 = shuffled<0, 2>(t315, t323);
        const P t369 = shuffled<1, 3>(t315, t323);
        // spectrum block of 2
        const P t370 = t368 + t369;
        io.out(26, 24, t370);
        const P t371 = t368 - t369;
        io.out(53, 51, t371);
        const P t372 = shuffled<0, 2>(t331, t339);
        const P t373 = shuffled<1, 3>(t331, t339);
        // spectrum block of 2
        const P t374 = t372 + t373;
        io.out(22, 20, t374);
        const P t375 = t372 - t373;
        io.out(49, 47, t375);
        const P t376 = shuffled<0, 2>(t271, t279);
        const P t377 = shuffled<1, 3>(t271, t279);
        // spectrum block of 2
        const P t378 = t376 + t377;
        io.out(18, 16, t378);
        const P t379 = t376 - t377;
        io.out(45, 43, t379);
        const P t380 = shuffled<0, 2>(t287, t295);
        const P t381 = shuffled<1, 3>(t287, t295);
        // spectrum block of 2
        const P t382 = t380 + t381;
        io.out(14, 12, t382);
        const P t383 = t380 - t381;
        io.out(41, 39, t383);
        const P t384 = shuffled<0, 2>(t306, t314);
        const P t385 = shuffled<1, 3>(t306, t314);
        // spectrum block of 2
        const P t386 = t384 + t385;
        io.out(10, 8, t386);
        const P t387 = t384 - t385;
        io.out(37, 35, t387);
        const P t388 = shuffled<0, 2>(t322, t330);
        const P t389 = shuffled<1, 3>(t322, t330);
        // spectrum block of 2
        const P t390 = t388 + t389;
        io.out(6, 4, t390);
        const P t391 = t388 - t389;
        io.out(33, 31, t391);
        const V t392 = part<0>(t338);
        const V t393 = part<1>(t338);
        // spectrum block of 2
        const V t394 = t392 + t393;
        io.out(2, t394);
        const V t395 = t392 - t393;
        io.out(29, t395);
    }
};

}  // namespace zulg
