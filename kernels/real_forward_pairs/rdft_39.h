// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 39.
// Forward DFT of 39 real points, prime-factor 13, 3; two lanes to a register.
// 91 sums, 74 differences, 80 products of registers, which do the 498 steps of the graph, those with
// `scale` included; 70 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<39> {
    static constexpr int steps = 498;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.2869425954512852,  // c[2]: -Q[1] of 13
        0.5279915321544383,  // c[3]: -P[1] of 13
        0.29376443202296976,  // c[4]: Q[2] of 13
        0.5242266395265821,  // c[5]: -P[2] of 13
        0.5751407294740031,  // c[6]: P[3] of 13
        0.1741386011521359,  // c[7]: -Q[3] of 13
        0.42763404682657274,  // c[8]: P[4] of 13
        0.42218506973345193,  // c[9]: -Q[4] of 13
        0.280148395734785,  // c[10]: P[5] of 13
        0.5316276774946329,  // c[11]: -Q[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.4330127018922193,  // c[14]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[15]: sin 2 pi 1/3 times sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x9_22 = io.in(9, 22);
        const P x27_1 = io.in(27, 1);
        // real block of 3
        const P t0 = x9_22 + x27_1;
        const P t1 = x9_22 - x27_1;
        const P x3_16 = io.in(3, 16);
        const P t2 = t0 + x3_16;
        const P t3 = c[0] * t0;
        const P t4 = x3_16 - t3;
        const P x21_7 = io.in(21, 7);
        const P x33_34 = io.in(33, 34);
        // real block of 3
        const P t5 = x21_7 + x33_34;
        const P t6 = shuffled<0, 3>(x33_34, x21_7);
        const P t7 = shuffled<0, 3>(x21_7, x33_34);
        const P t8 = t6 - t7;
        const P x24_37 = io.in(24, 37);
        const P t9 = t5 + x24_37;
        const P t10 = c[0] * t5;
        const P t11 = x24_37 - t10;
        const P x30_4 = io.in(30, 4);
        const P x12_25 = io.in(12, 25);
        // real block of 3
        const P t12 = x30_4 + x12_25;
        const P t13 = x30_4 - x12_25;
        const P x36_10 = io.in(36, 10);
        const P t14 = t12 + x36_10;
        const P t15 = c[0] * t12;
        const P t16 = x36_10 - t15;
        const P x18_19 = io.in(18, 19);
        const P x6_31 = io.in(6, 31);
        // real block of 3
        const P t17 = x18_19 + x6_31;
        const P t18 = shuffled<0, 3>(x6_31, x18_19);
        const P t19 = shuffled<0, 3>(x18_19, x6_31);
        const P t20 = t18 - t19;
        const P x15_28 = io.in(15, 28);
        const P t21 = t17 + x15_28;
        const P t22 = c[0] * t17;
        const P t23 = x15_28 - t22;
        // real block of 2
        const P t24 = t2 + t14;
        const P t25 = t2 - t14;
        // real block of 2
        const P t26 = t9 + t21;
        const P t27 = t9 - t21;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        // complex block of 2
        const P t30 = t4 + t16;
        // real block of 3
        const P t31 = c[1] * t1;
        // real block of 3
        const P t32 = c[1] * t13;
        // complex block of 2
        const P t33 = t31 + t32;
        const P t34 = t4 - t16;
        const P t35 = t32 - t31;
        // complex block of 2
        const P t36 = t11 + t23;
        // real block of 3
        const P t37 = c[1] * t8;
        // real block of 3
        const P t38 = c[1] * t20;
        // complex block of 2
        const P t39 = t37 + t38;
        const P t40 = t11 - t23;
        const P t41 = t38 - t37;
        // complex block of 2
        const P t42 = t30 + t36;
        const P t43 = t33 + t39;
        const P t44 = t30 - t36;
        const P t45 = t39 - t33;
        // complex block of 2
        const P t46 = t34 - t41;
        const P t47 = t35 + t40;
        const P t48 = t34 + t41;
        const P t49 = t35 - t40;
        const P x0_13 = io.in(0, 13);
        // real block of 13, multiplier 3
        const P t50 = x0_13 + t28;
        const P t51 = c[12] * t28;
        const P t52 = x0_13 - t51;
        const P t53 = c[2] * t49;
        const P t54 = c[3] * t48;
        const P t55 = t53 - t54;
        const P t56 = c[3] * t49;
        const P t57 = c[2] * t48;
        const P t58 = t56 + t57;
        const P t59 = c[4] * t45;
        const P t60 = c[5] * t44;
        const P t61 = t59 - t60;
        const P t62 = c[5] * t45;
        const P t63 = c[4] * t44;
        const P t64 = t62 + t63;
        const P t65 = c[6] * t25;
        const P t66 = c[7] * t27;
        const P t67 = t65 + t66;
        const P t68 = c[6] * t27;
        const P t69 = c[7] * t25;
        const P t70 = t68 - t69;
        const P t71 = c[8] * t42;
        const P t72 = c[9] * t43;
        const P t73 = t71 - t72;
        const P t74 = c[8] * t43;
        const P t75 = c[9] * t42;
        const P t76 = t74 + t75;
        const P t77 = c[10] * t46;
        const P t78 = c[11] * t47;
        const P t79 = t77 - t78;
        const P t80 = c[10] * t47;
        const P t81 = c[11] * t46;
        const P t82 = t80 + t81;
        const P t83 = c[13] * t29;
        // spectrum block of 2
        const P t84 = t52 + t83;
        const P t85 = t52 - t83;
        // complex block of 2
        const P t86 = t76 + t64;
        const P t87 = t73 + t61;
        const P t88 = t64 - t76;
        const P t89 = t73 - t61;
        // spectrum block of 3, multiplier 2
        const P t90 = t87 + t84;
        const P t91 = c[0] * t87;
        const P t92 = t84 - t91;
        const P t93 = c[1] * t86;
        const P t94 = t92 + t93;
        const P t95 = t92 - t93;
        // spectrum block of 3, multiplier 2
        const P t96 = t89 + t85;
        const P t97 = c[0] * t89;
        const P t98 = t85 - t97;
        const P t99 = c[1] * t88;
        const P t100 = t98 - t99;
        const P t101 = t98 + t99;
        // complex block of 2
        const P t102 = t79 - t55;
        const P t103 = t58 + t82;
        const P t104 = t55 + t79;
        const P t105 = t82 - t58;
        // mirrored skew block of 6
        const P t106 = c[1] * t105;
        const P t107 = c[0] * t104;
        const P t108 = t106 + t107;
        // spectrum block of 3, multiplier 2
        const P t109 = t70 - t103;
        const P t110 = c[0] * t103;
        const P t111 = t110 + t70;
        const P t112 = c[1] * t102;
        const P t113 = t111 + t112;
        const P t114 = t111 - t112;
        // spectrum block of 3, multiplier 2
        const P t115 = t108 + t67;
        const P t116 = c[0] * t108;
        const P t117 = t67 - t116;
        const P t118 = c[14] * t105;
        const P t119 = c[15] * t104;
        const P t120 = t118 - t119;
        const P t121 = t117 + t120;
        const P t122 = t117 - t120;
        const P x35_20 = io.in(35, 20);
        const P x14_8 = io.in(14, 8);
        // real block of 3
        const P t123 = x35_20 + x14_8;
        const P t124 = x35_20 - x14_8;
        const P x29_11 = io.in(29, 11);
        const P t125 = t123 + x29_11;
        const P t126 = c[0] * t123;
        const P t127 = x29_11 - t126;
        const P x17_32 = io.in(17, 32);
        const P x38_5 = io.in(38, 5);
        // real block of 3
        const P t128 = x17_32 + x38_5;
        const P t129 = x17_32 - x38_5;
        const P x23_2 = io.in(23, 2);
        const P t130 = t128 + x23_2;
        const P t131 = c[0] * t128;
        const P t132 = x23_2 - t131;
        // real block of 2
        const P t133 = t125 + t130;
        const P t134 = t125 - t130;
        const V t135 = part<0>(t133);
        const V t136 = part<1>(t133);
        // real block of 2
        const V t137 = t135 + t136;
        const V t138 = t135 - t136;
        // real block of 3
        const P t139 = c[1] * t124;
        const P t140 = shuffled<0, 2>(t127, t139);
        // real block of 3
        const P t141 = c[1] * t129;
        const P t142 = shuffled<0, 2>(t132, t141);
        // complex block of 2
        const P t143 = t140 + t142;
        const P t144 = shuffled<0, 3>(t140, t142);
        const P t145 = shuffled<0, 3>(t142, t140);
        const P t146 = t144 - t145;
        const P t147 = shuffled<1, 3>(t127, t139);
        const P t148 = shuffled<1, 3>(t132, t141);
        // complex block of 2
        const P t149 = t147 + t148;
        const P t150 = shuffled<0, 3>(t147, t148);
        const P t151 = shuffled<0, 3>(t148, t147);
        const P t152 = t150 - t151;
        // complex block of 2
        const P t153 = t143 + t149;
        const P t154 = shuffled<0, 3>(t143, t149);
        const P t155 = shuffled<0, 3>(t149, t143);
        const P t156 = t154 - t155;
        const P t157 = shuffled<1, 0>(t152);
        const P t158 = flipped<1, 0>(t157);
        // complex block of 2
        const P t159 = t146 + t158;
        const P t160 = t146 - t158;
        const V x26 = io.in(26);
        // real block of 13, multiplier 3
        const V t161 = x26 + t137;
        const V t162 = c[12] * t137;
        const V t163 = x26 - t162;
        const P t164 = P(-c[3], c[3]) * t160;
        const P t165 = shuffled<1, 0>(t160);
        const P t166 = c[2] * t165;
        const P t167 = t164 + t166;
        const P t168 = P(-c[5], c[5]) * t156;
        const P t169 = shuffled<1, 0>(t156);
        const P t170 = c[4] * t169;
        const P t171 = t168 + t170;
        const P t172 = c[6] * t134;
        const P t173 = shuffled<1, 0>(t134);
        const P t174 = P(c[7], -c[7]) * t173;
        const P t175 = t172 + t174;
        const P t176 = c[8] * t153;
        const P t177 = shuffled<1, 0>(t153);
        const P t178 = P(-c[9], c[9]) * t177;
        const P t179 = t176 + t178;
        const P t180 = c[10] * t159;
        const P t181 = shuffled<1, 0>(t159);
        const P t182 = P(-c[11], c[11]) * t181;
        const P t183 = t180 + t182;
        const V t184 = c[13] * t138;
        // spectrum block of 2
        const V t185 = t163 + t184;
        const V t186 = t163 - t184;
        // complex block of 2
        const P t187 = t179 + t171;
        const P t188 = shuffled<0, 3>(t179, t171);
        const P t189 = shuffled<0, 3>(t171, t179);
        const P t190 = t188 - t189;
        const P t191 = shuffled<0, 2>(t187, t190);
        const P t192 = joined(t185, t186);
        // spectrum block of 3, multiplier 2
        const P t193 = t191 + t192;
        const P t194 = c[0] * t191;
        const P t195 = t192 - t194;
        const P t196 = shuffled<1, 3>(t187, t190);
        const P t197 = P(c[1], -c[1]) * t196;
        const P t198 = t195 + t197;
        const P t199 = t195 - t197;
        const P t200 = shuffled<1, 2>(t167, t183);
        const P t201 = shuffled<1, 2>(t183, t167);
        const P t202 = flipped<0, 1>(t201);
        // complex block of 2
        const P t203 = t200 + t202;
        const P t204 = flipped<1, 0>(t200);
        const P t205 = t201 + t204;
        const V t206 = part<0>(t205);
        // mirrored skew block of 6
        const V t207 = c[1] * t206;
        const V t208 = part<1>(t205);
        const V t209 = c[0] * t208;
        const V t210 = t207 + t209;
        const V t211 = part<1>(t175);
        const V t212 = part<0>(t203);
        // spectrum block of 3, multiplier 2
        const V t213 = t211 - t212;
        const V t214 = c[0] * t212;
        const V t215 = t214 + t211;
        const V t216 = part<1>(t203);
        const V t217 = c[1] * t216;
        const V t218 = t215 + t217;
        const V t219 = t215 - t217;
        const V t220 = part<0>(t175);
        // spectrum block of 3, multiplier 2
        const V t221 = t210 + t220;
        const V t222 = c[0] * t210;
        const V t223 = t220 - t222;
        const V t224 = c[14] * t206;
        const V t225 = c[15] * t208;
        const V t226 = t224 - t225;
        const V t227 = t223 + t226;
        const V t228 = t223 - t226;
        const V t229 = part<1>(t50);
        // real block of 3
        const V t230 = t229 + t161;
        const V t231 = t161 - t229;
        const V t232 = part<0>(t50);
        const V t233 = t230 + t232;
        io.re(0, t233);
        const V t234 = c[0] * t230;
        const V t235 = t232 - t234;
        const V t236 = c[1] * t231;
        const P t237 = joined(t235, t236);
        io.pair(13, t237);
        const P t238 = shuffled<1, 3>(t90, t109);
        const V t239 = part<0>(t193);
        const P t240 = joined(t239, t213);
        // complex block of 3
        const P t241 = t238 + t240;
        const P t242 = t238 - t240;
        const P t243 = shuffled<0, 2>(t90, t109);
        const P t244 = t241 + t243;
        io.pair(3, t244);
        const P t245 = c[0] * t241;
        const P t246 = t243 - t245;
        const P t247 = P(-c[1], c[1]) * t242;
        const P t248 = shuffled<1, 0>(t247);
        const P t249 = t246 + t248;
        io.pair(16, t249);
        const P t250 = t246 - t248;
        io.pair(10, negated<0, 1>(t250));
        const P t251 = shuffled<1, 3>(t101, t122);
        const V t252 = part<1>(t199);
        const P t253 = joined(t252, t228);
        // complex block of 3
        const P t254 = t251 + t253;
        const P t255 = shuffled<0, 3>(t251, t253);
        const P t256 = shuffled<0, 3>(t253, t251);
        const P t257 = t255 - t256;
        const P t258 = shuffled<0, 2>(t101, t122);
        const P t259 = t254 + t258;
        io.pair(6, negated<0, 1>(t259));
        const P t260 = P(-c[0], c[0]) * t254;
        const P t261 = flipped<0, 1>(t258);
        const P t262 = t260 + t261;
        const P t263 = P(-c[1], c[1]) * t257;
        const P t264 = shuffled<1, 0>(t263);
        const P t265 = t262 + t264;
        io.pair(19, t265);
        const P t266 = t262 - t264;
        io.pair(7, negated<0, 1>(t266));
        const P t267 = shuffled<1, 3>(t95, t113);
        const V t268 = part<0>(t199);
        const P t269 = joined(t268, t218);
        // complex block of 3
        const P t270 = t267 + t269;
        const P t271 = t267 - t269;
        const P t272 = shuffled<0, 2>(t95, t113);
        const P t273 = t270 + t272;
        io.pair(9, t273);
        const P t274 = P(-c[0], c[0]) * t270;
        const P t275 = flipped<0, 1>(t272);
        const P t276 = t274 + t275;
        const P t277 = c[1] * t271;
        const P t278 = shuffled<1, 0>(t277);
        const P t279 = t276 + t278;
        io.pair(17, t279);
        const P t280 = shuffled<0, 3>(t276, t278);
        const P t281 = shuffled<0, 3>(t278, t276);
        const P t282 = t280 - t281;
        io.pair(4, negated<0, 1>(t282));
        const P t283 = shuffled<1, 3>(t94, t114);
        const V t284 = part<0>(t198);
        const P t285 = joined(t284, t219);
        // complex block of 3
        const P t286 = t283 + t285;
        const P t287 = shuffled<0, 3>(t283, t285);
        const P t288 = shuffled<0, 3>(t285, t283);
        const P t289 = t287 - t288;
        const P t290 = shuffled<0, 2>(t94, t114);
        const P t291 = t286 + t290;
        io.pair(12, negated<0, 1>(t291));
        const P t292 = P(-c[0], c[0]) * t286;
        const P t293 = flipped<0, 1>(t290);
        const P t294 = t292 + t293;
        const P t295 = P(-c[1], c[1]) * t289;
        const P t296 = shuffled<1, 0>(t295);
        const P t297 = t294 + t296;
        io.pair(14, negated<0, 1>(t297));
        const P t298 = t294 - t296;
        io.pair(1, negated<0, 1>(t298));
        const P t299 = shuffled<1, 3>(t96, t121);
        const V t300 = part<1>(t193);
        const P t301 = joined(t300, t227);
        // complex block of 3
        const P t302 = t299 + t301;
        const P t303 = shuffled<0, 3>(t299, t301);
        const P t304 = shuffled<0, 3>(t301, t299);
        const P t305 = t303 - t304;
        const P t306 = shuffled<0, 2>(t96, t121);
        const P t307 = t302 + t306;
        io.pair(15, negated<0, 1>(t307));
        const P t308 = P(-c[0], c[0]) * t302;
        const P t309 = flipped<0, 1>(t306);
        const P t310 = t308 + t309;
        const P t311 = P(-c[1], c[1]) * t305;
        const P t312 = shuffled<1, 0>(t311);
        const P t313 = t310 + t312;
        io.pair(11, negated<0, 1>(t313));
        const P t314 = t310 - t312;
        io.pair(2, t314);
        const P t315 = shuffled<1, 3>(t100, t115);
        const V t316 = part<1>(t198);
        const P t317 = joined(t316, t221);
        // complex block of 3
        const P t318 = t315 + t317;
        const P t319 = shuffled<0, 3>(t315, t317);
        const P t320 = shuffled<0, 3>(t317, t315);
        const P t321 = t319 - t320;
        const P t322 = shuffled<0, 2>(t100, t115);
        const P t323 = t318 + t322;
        io.pair(18, negated<0, 1>(t323));
        const P t324 = P(-c[0], c[0]) * t318;
        const P t325 = flipped<0, 1>(t322);
        const P t326 = t324 + t325;
        const P t327 = P(-c[1], c[1]) * t321;
        const P t328 = shuffled<1, 0>(t327);
        const P t329 = t326 + t328;
        io.pair(8, negated<0, 1>(t329));
        const P t330 = t326 - t328;
        io.pair(5, t330);
    }
};

}  // namespace zulg
