// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 51.
// Complex DFT of 51 points, prime-factor, order 3, 17; two lines of a stage to a register.
// 144 sums, 119 differences, 104 products of registers, which do the 1490 steps of the graph, those with
// `scale` included; 99 shuffles, 13 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<51> {
    static constexpr int steps = 1490;  // with `scale`
    static constexpr double inverseRoot = 0.14002800840280097;  // 1/sqrt(51), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 1/16
        0.3826834323650898,  // c[2]: sin 2 pi 1/16
        0.5,  // c[3]: -cos 2 pi 1/3
        0.8660254037844386,  // c[4]: sin 2 pi 1/3
        0.40623178445333147,  // c[5]: P[4] of 17
        0.31717619283272513,  // c[6]: -Q[4] of 17
        0.4314031601143256,  // c[7]: -P[1] of 17
        0.281986371024157,  // c[8]: Q[1] of 17
        0.4440524091413236,  // c[9]: -P[7] of 17
        0.2616150950075063,  // c[10]: Q[7] of 17
        0.4407489637509731,  // c[11]: -P[3] of 17
        0.26714294104925057,  // c[12]: Q[3] of 17
        0.508427430394848,  // c[13]: P[5] of 17
        0.08441888427414843,  // c[14]: Q[5] of 17
        0.023972509657154296,  // c[15]: P[2] of 17
        0.51483037864984,  // c[16]: -Q[2] of 17
        0.33572816326715627,  // c[17]: P[6] of 17
        0.39103912897466114,  // c[18]: -Q[6] of 17
        0.0625,  // c[19]: 1/16
        0.2576941016011038,  // c[20]: -beta of 17
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x17_20 = io.pairs(17, 20);
        const Q x34_37 = io.pairs(34, 37);
        // complex block of 3, multiplier 2
        const Q t0 = x17_20 + x34_37;
        const Q t1 = x17_20 - x34_37;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[3] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[4], c[4], -c[4], c[4]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q x35_38 = io.pairs(35, 38);
        const Q x1_4 = io.pairs(1, 4);
        // complex block of 3, multiplier 2
        const Q t8 = x35_38 + x1_4;
        const Q t9 = x35_38 - x1_4;
        const Q x18_21 = io.pairs(18, 21);
        const Q t10 = t8 + x18_21;
        const Q t11 = c[3] * t8;
        const Q t12 = x18_21 - t11;
        const Q t13 = Q(-c[4], c[4], -c[4], c[4]) * t9;
        const Q t14 = shuffled<1, 0, 3, 2>(t13);
        const Q t15 = t12 + t14;
        const Q t16 = t12 - t14;
        const Q x2_5 = io.pairs(2, 5);
        const Q x19_22 = io.pairs(19, 22);
        // complex block of 3, multiplier 2
        const Q t17 = x2_5 + x19_22;
        const Q t18 = x2_5 - x19_22;
        const Q x36_39 = io.pairs(36, 39);
        const Q t19 = t17 + x36_39;
        const Q t20 = c[3] * t17;
        const Q t21 = x36_39 - t20;
        const Q t22 = Q(-c[4], c[4], -c[4], c[4]) * t18;
        const Q t23 = shuffled<1, 0, 3, 2>(t22);
        const Q t24 = t21 + t23;
        const Q t25 = t21 - t23;
        const Q x23_26 = io.pairs(23, 26);
        const Q x40_43 = io.pairs(40, 43);
        // complex block of 3, multiplier 2
        const Q t26 = x23_26 + x40_43;
        const Q t27 = x23_26 - x40_43;
        const Q x6_9 = io.pairs(6, 9);
        const Q t28 = t26 + x6_9;
        const Q t29 = c[3] * t26;
        const Q t30 = x6_9 - t29;
        const Q t31 = Q(-c[4], c[4], -c[4], c[4]) * t27;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = t30 + t32;
        const Q t34 = t30 - t32;
        const Q x41_44 = io.pairs(41, 44);
        const Q x7_10 = io.pairs(7, 10);
        // complex block of 3, multiplier 2
        const Q t35 = x41_44 + x7_10;
        const Q t36 = x41_44 - x7_10;
        const Q x24_27 = io.pairs(24, 27);
        const Q t37 = t35 + x24_27;
        const Q t38 = c[3] * t35;
        const Q t39 = x24_27 - t38;
        const Q t40 = Q(-c[4], c[4], -c[4], c[4]) * t36;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = t39 + t41;
        const Q t43 = t39 - t41;
        const Q x8_11 = io.pairs(8, 11);
        const Q x25_28 = io.pairs(25, 28);
        // complex block of 3, multiplier 2
        const Q t44 = x8_11 + x25_28;
        const Q t45 = x8_11 - x25_28;
        const Q x42_45 = io.pairs(42, 45);
        const Q t46 = t44 + x42_45;
        const Q t47 = c[3] * t44;
        const Q t48 = x42_45 - t47;
        const Q t49 = Q(-c[4], c[4], -c[4], c[4]) * t45;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = t48 + t50;
        const Q t52 = t48 - t50;
        const Q x29_32 = io.pairs(29, 32);
        const Q x46_49 = io.pairs(46, 49);
        // complex block of 3, multiplier 2
        const Q t53 = x29_32 + x46_49;
        const Q t54 = x29_32 - x46_49;
        const Q x12_15 = io.pairs(12, 15);
        const Q t55 = t53 + x12_15;
        const Q t56 = c[3] * t53;
        const Q t57 = x12_15 - t56;
        const Q t58 = Q(-c[4], c[4], -c[4], c[4]) * t54;
        const Q t59 = shuffled<1, 0, 3, 2>(t58);
        const Q t60 = t57 + t59;
        const Q t61 = t57 - t59;
        const Q x47_50 = io.pairs(47, 50);
        const Q x13_16 = io.pairs(13, 16);
        // complex block of 3, multiplier 2
        const Q t62 = x47_50 + x13_16;
        const Q t63 = x47_50 - x13_16;
        const Q x30_33 = io.pairs(30, 33);
        const Q t64 = t62 + x30_33;
        const Q t65 = c[3] * t62;
        const Q t66 = x30_33 - t65;
        const Q t67 = Q(-c[4], c[4], -c[4], c[4]) * t63;
        const Q t68 = shuffled<1, 0, 3, 2>(t67);
        const Q t69 = t66 + t68;
        const Q t70 = t66 - t68;
        const P x14 = io.pair(14);
        const P x31 = io.pair(31);
        // complex block of 3, multiplier 2
        const P t71 = x14 + x31;
        const P t72 = x14 - x31;
        const P x48 = io.pair(48);
        const P t73 = t71 + x48;
        const P t74 = c[3] * t71;
        const P t75 = x48 - t74;
        const P t76 = P(-c[4], c[4]) * t72;
        const P t77 = shuffled<1, 0>(t76);
        const P t78 = t75 + t77;
        // complex block of 3, multiplier 2
        const Q t79 = t4 - t6;
        // complex block of 3, multiplier 2
        const P t80 = t75 - t77;
        const Q t81 = shuffled<2, 3, 6, 7>(t2, t79);
        const Q t82 = joined(t73, t80);
        // real block of 2
        const Q t83 = t81 + t82;
        const Q t84 = t81 - t82;
        const Q t85 = shuffled<2, 3, 6, 7>(t19, t25);
        const Q t86 = shuffled<0, 1, 4, 5>(t55, t61);
        // real block of 2
        const Q t87 = t85 + t86;
        const Q t88 = t85 - t86;
        const Q t89 = shuffled<2, 3, 6, 7>(t37, t43);
        const Q t90 = shuffled<0, 1, 4, 5>(t37, t43);
        // real block of 2
        const Q t91 = t89 + t90;
        const Q t92 = shuffled<2, 3, 6, 7>(t46, t52);
        const Q t93 = shuffled<0, 1, 4, 5>(t28, t34);
        // real block of 2
        const Q t94 = t92 + t93;
        // real block of 2
        const Q t95 = t91 + t94;
        // real block of 2
        const Q t96 = t89 - t90;
        // real block of 2
        const Q t97 = t92 - t93;
        // real block of 16
        const Q t98 = t96 - t97;
        const Q t99 = t97 + t96;
        // real block of 2
        const Q t100 = t83 + t87;
        // real block of 2
        const Q t101 = t100 + t95;
        // real block of 2
        const Q t102 = t83 - t87;
        // real block of 2
        const Q t103 = t91 - t94;
        // real block of 16
        const Q t104 = c[0] * t98;
        // complex block of 2
        const Q t105 = t84 + t104;
        const Q t106 = t84 - t104;
        // real block of 16
        const Q t107 = c[0] * t99;
        // complex block of 2
        const Q t108 = t88 + t107;
        const Q t109 = t107 - t88;
        const Q t110 = shuffled<2, 3, 6, 7>(t28, t34);
        const Q t111 = shuffled<0, 1, 4, 5>(t46, t52);
        // real block of 2
        const Q t112 = t110 + t111;
        const Q t113 = shuffled<2, 3, 6, 7>(t55, t61);
        const Q t114 = shuffled<0, 1, 4, 5>(t19, t25);
        // real block of 2
        const Q t115 = t113 + t114;
        // real block of 2
        const Q t116 = t112 + t115;
        const Q t117 = t112 - t115;
        const Q t118 = shuffled<0, 1, 4, 5>(t64, t70);
        const Q t119 = shuffled<2, 3, 6, 7>(t10, t16);
        // real block of 2
        const Q t120 = t118 + t119;
        const Q t121 = shuffled<2, 3, 6, 7>(t64, t70);
        const Q t122 = shuffled<0, 1, 4, 5>(t10, t16);
        // real block of 2
        const Q t123 = t121 + t122;
        // real block of 2
        const Q t124 = t120 + t123;
        const Q t125 = t120 - t123;
        // real block of 2
        const Q t126 = t116 + t124;
        // skew block of 4
        const Q t127 = t117 - t125;
        const Q t128 = t117 + t125;
        // real block of 2
        const Q t129 = t110 - t111;
        // real block of 2
        const Q t130 = t113 - t114;
        // real block of 2
        const Q t131 = t118 - t119;
        // real block of 2
        const Q t132 = t121 - t122;
        // real block of 16
        const Q t133 = c[1] * t129;
        const Q t134 = c[2] * t130;
        const Q t135 = t133 - t134;
        const Q t136 = c[2] * t131;
        const Q t137 = c[1] * t132;
        const Q t138 = t136 - t137;
        // complex block of 2
        const Q t139 = t135 + t138;
        const Q t140 = t135 - t138;
        // real block of 16
        const Q t141 = c[1] * t130;
        const Q t142 = c[2] * t129;
        const Q t143 = t141 + t142;
        const Q t144 = c[2] * t132;
        const Q t145 = c[1] * t131;
        const Q t146 = t144 + t145;
        // complex block of 2
        const Q t147 = t143 + t146;
        const Q t148 = t146 - t143;
        const Q t149 = shuffled<2, 3, 6, 7>(t7, t33);
        const P t150 = part<0>(t51);
        const Q t151 = joined(t78, t150);
        // real block of 2
        const Q t152 = t149 + t151;
        const Q t153 = shuffled<2, 3, 0, 1>(t24);
        // real block of 2
        const Q t154 = t60 + t153;
        // real block of 2
        const Q t155 = t152 + t154;
        const Q t156 = t152 - t154;
        const Q t157 = shuffled<2, 3, 4, 5>(t42, t69);
        const Q t158 = shuffled<0, 1, 6, 7>(t42, t15);
        // real block of 2
        const Q t159 = t157 + t158;
        const Q t160 = shuffled<2, 3, 6, 7>(t51, t69);
        const Q t161 = shuffled<0, 1, 4, 5>(t33, t15);
        // real block of 2
        const Q t162 = t160 + t161;
        // real block of 2
        const Q t163 = t159 + t162;
        const Q t164 = t159 - t162;
        // real block of 2
        const Q t165 = t155 + t163;
        const P t166 = part<1>(t156);
        const P t167 = part<1>(t164);
        // skew block of 4
        const P t168 = t166 - t167;
        const P t169 = t166 + t167;
        // real block of 2
        const Q t170 = t149 - t151;
        const Q t171 = shuffled<0, 1, 6, 7>(t153, t60);
        const Q t172 = shuffled<0, 1, 6, 7>(t60, t153);
        // real block of 2
        const Q t173 = t171 - t172;
        // real block of 2
        const Q t174 = t157 - t158;
        // real block of 2
        const Q t175 = t160 - t161;
        const P t176 = part<0>(t174);
        const P t177 = part<0>(t175);
        // real block of 16
        const P t178 = t176 - t177;
        const P t179 = t177 + t176;
        const Q t180 = shuffled<2, 3, 6, 7>(t173, t170);
        const Q t181 = c[1] * t180;
        const Q t182 = shuffled<2, 3, 0, 1>(t180);
        const Q t183 = Q(c[2], c[2], -c[2], -c[2]) * t182;
        const Q t184 = t181 + t183;
        const Q t185 = shuffled<2, 3, 6, 7>(t175, t174);
        const Q t186 = c[2] * t185;
        const Q t187 = shuffled<2, 3, 0, 1>(t185);
        const Q t188 = Q(c[1], c[1], -c[1], -c[1]) * t187;
        const Q t189 = t186 + t188;
        const Q t190 = shuffled<0, 1, 6, 7>(t170, t184);
        const P t191 = c[0] * t178;
        const P t192 = part<1>(t189);
        const Q t193 = joined(t191, t192);
        // complex block of 2
        const Q t194 = t190 + t193;
        const Q t195 = shuffled<0, 1, 4, 5>(t173, t184);
        // real block of 16
        const P t196 = c[0] * t179;
        const P t197 = part<0>(t189);
        const Q t198 = joined(t196, t197);
        // complex block of 2
        const Q t199 = t195 + t198;
        const Q t200 = t190 - t193;
        const Q t201 = t198 - t195;
        // real block of 2
        const Q t202 = t100 - t95;
        // real block of 2
        const Q t203 = t116 - t124;
        // complex block of 17, multiplier 3
        const Q t204 = c[5] * t202;
        const Q t205 = c[6] * t203;
        const Q t206 = t204 - t205;
        const Q t207 = c[5] * t203;
        const Q t208 = c[6] * t202;
        const Q t209 = t207 + t208;
        // real block of 2
        const Q t210 = t101 + t126;
        const Q t211 = t101 - t126;
        const Q t212 = shuffled<0, 1, 4, 5>(t2, t79);
        // complex block of 17, multiplier 3
        const Q t213 = c[19] * t210;
        const Q t214 = t212 - t213;
        const Q t215 = c[20] * t211;
        // spectrum block of 2
        const Q t216 = t214 - t215;
        const Q t217 = t214 + t215;
        // complex block of 2
        const Q t218 = t105 + t139;
        const Q t219 = t108 + t147;
        const Q t220 = t105 - t139;
        const Q t221 = t147 - t108;
        const Q t222 = shuffled<1, 0, 3, 2>(t219);
        // complex block of 17, multiplier 3
        const Q t223 = Q(-c[7], c[7], -c[7], c[7]) * t222;
        const Q t224 = shuffled<1, 0, 3, 2>(t218);
        const Q t225 = Q(c[8], -c[8], c[8], -c[8]) * t224;
        const Q t226 = t223 + t225;
        const Q t227 = shuffled<1, 0, 3, 2>(t221);
        const Q t228 = Q(-c[9], c[9], -c[9], c[9]) * t227;
        const Q t229 = shuffled<1, 0, 3, 2>(t220);
        const Q t230 = Q(c[10], -c[10], c[10], -c[10]) * t229;
        const Q t231 = t228 + t230;
        // complex block of 2
        const Q t232 = t226 + t231;
        const Q t233 = t226 - t231;
        // complex block of 17, multiplier 3
        const Q t234 = c[8] * t222;
        const Q t235 = c[7] * t224;
        const Q t236 = t234 + t235;
        const Q t237 = c[10] * t227;
        const Q t238 = c[9] * t229;
        const Q t239 = t237 + t238;
        const Q t240 = shuffled<0, 5, 2, 7>(t239, t236);
        const Q t241 = shuffled<0, 5, 2, 7>(t236, t239);
        // complex block of 2
        const Q t242 = t240 - t241;
        const Q t243 = t236 + t239;
        // complex block of 2
        const Q t244 = t106 + t148;
        const Q t245 = t109 - t140;
        const Q t246 = t106 - t148;
        const Q t247 = t109 + t140;
        const Q t248 = shuffled<1, 0, 3, 2>(t247);
        // complex block of 17, multiplier 3
        const Q t249 = Q(-c[11], c[11], -c[11], c[11]) * t248;
        const Q t250 = shuffled<1, 0, 3, 2>(t246);
        const Q t251 = Q(c[12], -c[12], c[12], -c[12]) * t250;
        const Q t252 = t249 + t251;
        const Q t253 = shuffled<1, 0, 3, 2>(t245);
        const Q t254 = Q(-c[13], c[13], -c[13], c[13]) * t253;
        const Q t255 = shuffled<1, 0, 3, 2>(t244);
        const Q t256 = Q(c[14], -c[14], c[14], -c[14]) * t255;
        const Q t257 = t254 + t256;
        // complex block of 2
        const Q t258 = t257 + t252;
        const Q t259 = t257 - t252;
        // complex block of 17, multiplier 3
        const Q t260 = c[12] * t248;
        const Q t261 = c[11] * t250;
        const Q t262 = t260 + t261;
        const Q t263 = c[14] * t253;
        const Q t264 = c[13] * t255;
        const Q t265 = t263 + t264;
        // complex block of 2
        const Q t266 = t265 + t262;
        const Q t267 = shuffled<0, 5, 2, 7>(t265, t262);
        const Q t268 = shuffled<0, 5, 2, 7>(t262, t265);
        const Q t269 = t267 - t268;
        // skew block of 4
        const Q t270 = c[0] * t128;
        const Q t271 = t270 - t103;
        const Q t272 = c[0] * t127;
        const Q t273 = t102 + t272;
        const Q t274 = t103 + t270;
        const Q t275 = t102 - t272;
        // complex block of 17, multiplier 3
        const Q t276 = c[15] * t273;
        const Q t277 = c[16] * t274;
        const Q t278 = t276 - t277;
        const Q t279 = c[17] * t275;
        const Q t280 = c[18] * t271;
        const Q t281 = t279 - t280;
        // mirrored skew block of 4
        const Q t282 = t278 - t281;
        // complex block of 17, multiplier 3
        const Q t283 = c[15] * t274;
        const Q t284 = c[16] * t273;
        const Q t285 = t283 + t284;
        const Q t286 = c[17] * t271;
        const Q t287 = c[18] * t275;
        const Q t288 = t286 + t287;
        // mirrored skew block of 4
        const Q t289 = t285 + t288;
        // complex block of 17, multiplier 3
        const Q t290 = t212 + t210;
        io.pairs(0, 17, t290);
        // spectrum block of 2
        const Q t291 = t216 + t206;
        // mirrored skew block of 4
        const Q t292 = t278 + t281;
        // spectrum block of 2
        const Q t293 = t291 + t292;
        const Q t294 = t291 - t292;
        const Q t295 = flipped<0, 1, 0, 1>(t266);
        // complex block of 2
        const Q t296 = t242 + t295;
        const Q t297 = t232 + t258;
        // spectrum block of 2
        const Q t298 = t293 + t297;
        io.pairs(3, 20, t298);
        const Q t299 = t293 - t297;
        io.pairs(48, 14, t299);
        // spectrum block of 2
        const Q t300 = t294 - t296;
        io.pairs(12, 29, t300);
        const Q t301 = t294 + t296;
        io.pairs(39, 5, t301);
        // spectrum block of 2
        const Q t302 = t216 - t206;
        // mirrored skew block of 4
        const Q t303 = t288 - t285;
        // spectrum block of 2
        const Q t304 = t302 - t303;
        const Q t305 = t302 + t303;
        // complex block of 2
        const Q t306 = t242 - t295;
        const Q t307 = t232 - t258;
        // spectrum block of 16
        const Q t308 = t307 + t306;
        const Q t309 = t306 - t307;
        const Q t310 = c[0] * t308;
        // spectrum block of 2
        const Q t311 = t305 - t310;
        io.pairs(24, 41, t311);
        const Q t312 = t305 + t310;
        io.pairs(27, 44, t312);
        // spectrum block of 16
        const Q t313 = c[0] * t309;
        // spectrum block of 2
        const Q t314 = t304 - t313;
        io.pairs(6, 23, t314);
        const Q t315 = t304 + t313;
        io.pairs(45, 11, t315);
        // spectrum block of 2
        const Q t316 = t217 + t209;
        const Q t317 = t217 - t209;
        const Q t318 = flipped<1, 0, 1, 0>(t243);
        // complex block of 2
        const Q t319 = t318 + t259;
        const Q t320 = t233 - t269;
        const Q t321 = flipped<0, 1, 0, 1>(t259);
        const Q t322 = t243 + t321;
        const Q t323 = t233 + t269;
        // mirrored skew block of 4
        const Q t324 = c[0] * t282;
        const Q t325 = c[0] * t289;
        const Q t326 = t324 + t325;
        const Q t327 = t324 - t325;
        // spectrum block of 16
        const Q t328 = c[1] * t320;
        const Q t329 = c[2] * t319;
        const Q t330 = t328 - t329;
        // spectrum block of 2
        const Q t331 = t316 + t326;
        // spectrum block of 2
        const Q t332 = t331 + t330;
        io.pairs(18, 35, t332);
        const Q t333 = t331 - t330;
        io.pairs(33, 50, t333);
        // spectrum block of 16
        const Q t334 = c[1] * t319;
        const Q t335 = c[2] * t320;
        const Q t336 = t334 + t335;
        // spectrum block of 2
        const Q t337 = t316 - t326;
        // spectrum block of 2
        const Q t338 = t337 - t336;
        io.pairs(21, 38, t338);
        const Q t339 = t337 + t336;
        io.pairs(30, 47, t339);
        // spectrum block of 16
        const Q t340 = c[2] * t323;
        const Q t341 = Q(c[1], -c[1], c[1], -c[1]) * t322;
        const Q t342 = t340 + t341;
        // spectrum block of 2
        const Q t343 = t317 - t327;
        // spectrum block of 2
        const Q t344 = t343 + t342;
        io.pairs(36, 2, t344);
        const Q t345 = t343 - t342;
        io.pairs(15, 32, t345);
        // spectrum block of 16
        const Q t346 = Q(-c[2], c[2], -c[2], c[2]) * t322;
        const Q t347 = c[1] * t323;
        const Q t348 = t346 + t347;
        // spectrum block of 2
        const Q t349 = t317 + t327;
        // spectrum block of 2
        const Q t350 = t349 - t348;
        io.pairs(42, 8, t350);
        const Q t351 = t349 + t348;
        io.pairs(9, 26, t351);
        // real block of 2
        const Q t352 = t155 - t163;
        // complex block of 17, multiplier 3
        const Q t353 = c[5] * t352;
        const Q t354 = shuffled<2, 3, 0, 1>(t352);
        const Q t355 = Q(-c[6], -c[6], c[6], c[6]) * t354;
        const Q t356 = t353 + t355;
        const P t357 = part<0>(t165);
        const P t358 = part<1>(t165);
        // real block of 2
        const P t359 = t357 + t358;
        const P t360 = t357 - t358;
        const P t361 = part<0>(t7);
        // complex block of 17, multiplier 3
        const P t362 = c[19] * t359;
        const P t363 = t361 - t362;
        const P t364 = c[20] * t360;
        // spectrum block of 2
        const P t365 = t363 - t364;
        const P t366 = t363 + t364;
        const Q t367 = shuffled<0, 1, 4, 5>(t194, t200);
        const Q t368 = shuffled<2, 3, 6, 7>(t194, t201);
        // complex block of 2
        const Q t369 = t367 + t368;
        const Q t370 = t367 - t368;
        const Q t371 = shuffled<0, 1, 4, 5>(t199, t201);
        const Q t372 = shuffled<2, 3, 6, 7>(t199, t200);
        const Q t373 = flipped<0, 0, 1, 1>(t372);
        const Q t374 = t371 + t373;
        const Q t375 = flipped<1, 1, 0, 0>(t371);
        const Q t376 = t375 + t372;
        const Q t377 = shuffled<0, 1, 6, 7>(t374, t376);
        const Q t378 = shuffled<1, 0, 3, 2>(t377);
        // complex block of 17, multiplier 3
        const Q t379 = Q(c[8], c[8], c[12], c[12]) * t378;
        const Q t380 = shuffled<0, 1, 6, 7>(t369, t370);
        const Q t381 = shuffled<1, 0, 3, 2>(t380);
        const Q t382 = Q(c[7], c[7], c[11], c[11]) * t381;
        const Q t383 = t379 + t382;
        const Q t384 = shuffled<0, 1, 6, 7>(t376, t374);
        const Q t385 = shuffled<1, 0, 3, 2>(t384);
        const Q t386 = Q(c[10], c[10], c[14], c[14]) * t385;
        const Q t387 = shuffled<0, 1, 6, 7>(t370, t369);
        const Q t388 = shuffled<1, 0, 3, 2>(t387);
        const Q t389 = Q(c[9], c[9], c[13], c[13]) * t388;
        const Q t390 = t386 + t389;
        const Q t391 = flipped<0, 1, 0, 0>(t390);
        const Q t392 = flipped<1, 0, 0, 0>(t383);
        // complex block of 2
        const Q t393 = t391 + t392;
        const Q t394 = shuffled<0, 5, 2, 7>(t391, t392);
        const Q t395 = shuffled<0, 5, 2, 7>(t392, t391);
        const Q t396 = t394 - t395;
        const Q t397 = shuffled<1, 0, 3, 2>(t374);
        // complex block of 17, multiplier 3
        const Q t398 = Q(-c[7], c[7], -c[13], c[13]) * t397;
        const Q t399 = shuffled<1, 0, 3, 2>(t369);
        const Q t400 = Q(c[8], -c[8], c[14], -c[14]) * t399;
        const Q t401 = t398 + t400;
        const Q t402 = shuffled<1, 0, 3, 2>(t376);
        const Q t403 = Q(-c[9], c[9], -c[11], c[11]) * t402;
        const Q t404 = shuffled<1, 0, 3, 2>(t370);
        const Q t405 = Q(c[10], -c[10], c[12], -c[12]) * t404;
        const Q t406 = t403 + t405;
        // complex block of 2
        const Q t407 = t401 + t406;
        const Q t408 = t401 - t406;
        // skew block of 4
        const P t409 = c[0] * t169;
        const P t410 = part<0>(t164);
        const P t411 = t409 - t410;
        const P t412 = part<0>(t156);
        const P t413 = c[0] * t168;
        const P t414 = t412 - t413;
        const P t415 = t412 + t413;
        const P t416 = t410 + t409;
        const Q t417 = joined(t416, t415);
        // complex block of 17, multiplier 3
        const Q t418 = c[15] * t417;
        const Q t419 = shuffled<2, 3, 0, 1>(t417);
        const Q t420 = Q(c[16], c[16], -c[16], -c[16]) * t419;
        const Q t421 = t418 + t420;
        const Q t422 = joined(t411, t414);
        const Q t423 = c[17] * t422;
        const Q t424 = shuffled<2, 3, 0, 1>(t422);
        const Q t425 = Q(c[18], c[18], -c[18], -c[18]) * t424;
        const Q t426 = t423 + t425;
        const P t427 = part<1>(t421);
        const P t428 = part<1>(t426);
        // mirrored skew block of 4
        const P t429 = t427 - t428;
        const P t430 = part<0>(t421);
        const P t431 = part<0>(t426);
        const P t432 = t430 + t431;
        // complex block of 17, multiplier 3
        const P t433 = t361 + t359;
        io.pair(34, t433);
        const Q t434 = joined(t365, t366);
        // spectrum block of 2
        const Q t435 = t434 + t356;
        const Q t436 = t434 - t356;
        // mirrored skew block of 4
        const P t437 = t427 + t428;
        const P t438 = t431 - t430;
        const Q t439 = shuffled<0, 1, 4, 5>(t435, t436);
        const P t440 = flipped<1, 1>(t438);
        const Q t441 = joined(t437, t440);
        // spectrum block of 2
        const Q t442 = t439 + t441;
        const Q t443 = t439 - t441;
        const Q t444 = shuffled<2, 3, 4, 5>(t393, t396);
        const Q t445 = flipped<0, 1, 1, 0>(t444);
        const Q t446 = shuffled<0, 1, 6, 7>(t393, t408);
        // complex block of 2
        const Q t447 = t445 + t446;
        const Q t448 = shuffled<0, 1, 4, 5>(t407, t408);
        const Q t449 = shuffled<2, 3, 6, 7>(t407, t396);
        const Q t450 = flipped<0, 0, 1, 1>(t449);
        const Q t451 = t448 + t450;
        const Q t452 = flipped<1, 1, 1, 0>(t445);
        const Q t453 = flipped<0, 0, 0, 1>(t446);
        const Q t454 = t452 + t453;
        const Q t455 = t448 - t450;
        const P t456 = part<0>(t455);
        const P t457 = part<0>(t454);
        // spectrum block of 16
        const P t458 = t456 + t457;
        const P t459 = t457 - t456;
        // mirrored skew block of 4
        const P t460 = c[0] * t429;
        const P t461 = c[0] * t432;
        const P t462 = t460 + t461;
        const P t463 = t460 - t461;
        const P t464 = part<0>(t447);
        // spectrum block of 16
        const P t465 = c[0] * t458;
        const Q t466 = joined(t464, t465);
        // spectrum block of 2
        const Q t467 = t443 - t466;
        io.pairs(46, 7, t467);
        const Q t468 = t443 + t466;
        io.pairs(22, 10, t468);
        const P t469 = part<0>(t451);
        // spectrum block of 16
        const P t470 = -c[0] * t459;
        const Q t471 = joined(t469, t470);
        // spectrum block of 2
        const Q t472 = t442 + t471;
        io.pairs(37, 40, t472);
        const Q t473 = t442 - t471;
        io.pairs(31, 28, t473);
        const Q t474 = shuffled<2, 3, 6, 7>(t451, t455);
        // spectrum block of 16
        const Q t475 = Q(c[1], c[1], c[2], c[2]) * t474;
        const Q t476 = shuffled<2, 3, 6, 7>(t447, t454);
        const Q t477 = Q(c[2], c[2], -c[1], c[1]) * t476;
        const Q t478 = t475 - t477;
        const Q t479 = shuffled<2, 3, 6, 7>(t435, t436);
        const P t480 = flipped<1, 1>(t463);
        const Q t481 = joined(t462, t480);
        // spectrum block of 2
        const Q t482 = t479 + t481;
        // spectrum block of 2
        const Q t483 = t482 + t478;
        io.pairs(1, 19, t483);
        const Q t484 = t482 - t478;
        io.pairs(16, 49, t484);
        const Q t485 = shuffled<0, 1, 6, 7>(t474, t476);
        // spectrum block of 16
        const Q t486 = Q(c[2], c[2], -c[2], c[2]) * t485;
        const Q t487 = shuffled<0, 1, 6, 7>(t476, t474);
        const Q t488 = c[1] * t487;
        const Q t489 = t486 + t488;
        // spectrum block of 2
        const Q t490 = t479 - t481;
        // spectrum block of 2
        const Q t491 = t490 - t489;
        io.pairs(4, 25, t491);
        const Q t492 = t490 + t489;
        io.pairs(13, 43, t492);
    }
};

}  // namespace zulg
