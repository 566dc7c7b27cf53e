// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 22.
// Complex DFT of 22 points, prime-factor, order 2, 11; one complex number to a register.
// 105 sums, 73 differences, 100 products of registers, which do the 600 steps of the graph, those with
// `scale` included; 10 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<22> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.21879791731559586,  // c[4]: -P[1] of 11
        0.6262008235209833,  // c[5]: Q[1] of 11
        0.5457579199356125,  // c[6]: P[2] of 11
        0.3770255864361907,  // c[7]: -Q[2] of 11
        0.6150936508690751,  // c[8]: Q[3] of 11
        0.24831391555962465,  // c[9]: P[3] of 11
        0.6626305969383026,  // c[10]: -Q[4] of 11
        0.030342906933726127,  // c[11]: -P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x11 = io.pair(11);
        // complex block of 2
        const P t0 = x0 + x11;
        const P t1 = x0 - x11;
        const P x2 = io.pair(2);
        const P x13 = io.pair(13);
        // complex block of 2
        const P t2 = x2 + x13;
        const P t3 = x2 - x13;
        const P x4 = io.pair(4);
        const P x15 = io.pair(15);
        // complex block of 2
        const P t4 = x4 + x15;
        const P t5 = x4 - x15;
        const P x6 = io.pair(6);
        const P x17 = io.pair(17);
        // complex block of 2
        const P t6 = x6 + x17;
        const P t7 = x6 - x17;
        const P x8 = io.pair(8);
        const P x19 = io.pair(19);
        // complex block of 2
        const P t8 = x8 + x19;
        const P t9 = x8 - x19;
        const P x10 = io.pair(10);
        const P x21 = io.pair(21);
        // complex block of 2
        const P t10 = x10 + x21;
        const P t11 = x10 - x21;
        const P x12 = io.pair(12);
        const P x1 = io.pair(1);
        // complex block of 2
        const P t12 = x12 + x1;
        const P t13 = x12 - x1;
        const P x14 = io.pair(14);
        const P x3 = io.pair(3);
        // complex block of 2
        const P t14 = x14 + x3;
        const P t15 = x14 - x3;
        const P x16 = io.pair(16);
        const P x5 = io.pair(5);
        // complex block of 2
        const P t16 = x16 + x5;
        const P t17 = x16 - x5;
        const P x18 = io.pair(18);
        const P x7 = io.pair(7);
        // complex block of 2
        const P t18 = x18 + x7;
        const P t19 = x18 - x7;
        const P x20 = io.pair(20);
        const P x9 = io.pair(9);
        // complex block of 2
        const P t20 = x20 + x9;
        const P t21 = x20 - x9;
        // real block of 5, multiplier 2
        const P t22 = t8 + t6;
        const P t23 = t8 - t6;
        const P t24 = t18 + t10;
        const P t25 = t18 - t10;
        const P t26 = t22 + t24;
        const P t27 = t26 + t2;
        const P t28 = c[0] * t22;
        const P t29 = t2 - t28;
        const P t30 = c[1] * t24;
        const P t31 = t29 + t30;
        const P t32 = c[2] * t23;
        const P t33 = c[3] * t25;
        const P t34 = t32 + t33;
        const P t35 = c[1] * t22;
        const P t36 = c[0] * t24;
        const P t37 = t35 - t36;
        const P t38 = t37 + t2;
        const P t39 = c[3] * t23;
        const P t40 = c[2] * t25;
        const P t41 = t39 - t40;
        // real block of 5, multiplier 2
        const P t42 = t14 + t16;
        const P t43 = t14 - t16;
        const P t44 = t4 + t12;
        const P t45 = t4 - t12;
        const P t46 = t42 + t44;
        const P t47 = t46 + t20;
        const P t48 = c[0] * t42;
        const P t49 = t20 - t48;
        const P t50 = c[1] * t44;
        const P t51 = t49 + t50;
        const P t52 = c[2] * t43;
        const P t53 = c[3] * t45;
        const P t54 = t52 + t53;
        const P t55 = c[1] * t42;
        const P t56 = c[0] * t44;
        const P t57 = t55 - t56;
        const P t58 = t57 + t20;
        const P t59 = c[3] * t43;
        const P t60 = c[2] * t45;
        const P t61 = t59 - t60;
        // real block of 2
        const P t62 = t27 + t47;
        const P t63 = t27 - t47;
        // complex block of 2
        const P t64 = t31 + t51;
        const P t65 = t34 + t54;
        const P t66 = t31 - t51;
        const P t67 = t54 - t34;
        // complex block of 2
        const P t68 = t38 + t58;
        const P t69 = t41 + t61;
        const P t70 = t38 - t58;
        const P t71 = t41 - t61;
        // complex block of 11, multiplier 2
        const P t72 = t0 + t62;
        io.pair(0, t72);
        const P t73 = c[12] * t62;
        const P t74 = t0 - t73;
        const P t75 = shuffled<1, 0>(t71);
        const P t76 = P(-c[4], c[4]) * t75;
        const P t77 = shuffled<1, 0>(t70);
        const P t78 = P(c[5], -c[5]) * t77;
        const P t79 = t76 + t78;
        const P t80 = c[5] * t75;
        const P t81 = c[4] * t77;
        const P t82 = t80 + t81;
        const P t83 = c[6] * t64;
        const P t84 = c[7] * t65;
        const P t85 = t83 - t84;
        const P t86 = c[6] * t65;
        const P t87 = c[7] * t64;
        const P t88 = t86 + t87;
        const P t89 = shuffled<1, 0>(t66);
        const P t90 = c[8] * t89;
        const P t91 = shuffled<1, 0>(t67);
        const P t92 = c[9] * t91;
        const P t93 = t90 + t92;
        const P t94 = P(-c[8], c[8]) * t91;
        const P t95 = P(c[9], -c[9]) * t89;
        const P t96 = t94 + t95;
        const P t97 = c[10] * t69;
        const P t98 = c[11] * t68;
        const P t99 = t97 - t98;
        const P t100 = c[11] * t69;
        const P t101 = c[10] * t68;
        const P t102 = t100 + t101;
        const P t103 = shuffled<1, 0>(t63);
        const P t104 = P(-c[13], c[13]) * t103;
        // spectrum block of 2
        const P t105 = t74 + t104;
        const P t106 = t74 - t104;
        // complex block of 2
        const P t107 = t88 + t96;
        const P t108 = flipped<0, 1>(t93);
        const P t109 = t85 + t108;
        const P t110 = t96 - t88;
        const P t111 = t85 - t108;
        const P t112 = flipped<1, 0>(t102);
        // complex block of 2
        const P t113 = t112 + t82;
        const P t114 = t99 + t79;
        const P t115 = t82 - t112;
        const P t116 = t99 - t79;
        // spectrum block of 5, multiplier 2
        const P t117 = t109 + t114;
        const P t118 = t117 + t105;
        io.pair(2, t118);
        const P t119 = c[1] * t109;
        const P t120 = c[0] * t114;
        const P t121 = t119 - t120;
        const P t122 = t121 + t105;
        const P t123 = P(-c[3], c[3]) * t107;
        const P t124 = c[2] * t113;
        const P t125 = t123 + t124;
        const P t126 = flipped<1, 0>(t125);
        const P t127 = t122 + t126;
        io.pair(10, t127);
        const P t128 = t122 - t126;
        io.pair(18, t128);
        const P t129 = c[0] * t109;
        const P t130 = t105 - t129;
        const P t131 = c[1] * t114;
        const P t132 = t130 + t131;
        const P t133 = c[3] * t113;
        const P t134 = P(c[2], -c[2]) * t107;
        const P t135 = t133 + t134;
        const P t136 = flipped<0, 1>(t135);
        const P t137 = t132 + t136;
        io.pair(6, t137);
        const P t138 = t132 - t136;
        io.pair(8, t138);
        // spectrum block of 5, multiplier 2
        const P t139 = t111 + t116;
        const P t140 = t139 + t106;
        io.pair(20, t140);
        const P t141 = c[1] * t111;
        const P t142 = c[0] * t116;
        const P t143 = t141 - t142;
        const P t144 = t143 + t106;
        const P t145 = c[3] * t110;
        const P t146 = P(-c[2], c[2]) * t115;
        const P t147 = t145 + t146;
        const P t148 = t144 - t147;
        io.pair(12, t148);
        const P t149 = t144 + t147;
        io.pair(4, t149);
        const P t150 = c[0] * t111;
        const P t151 = t106 - t150;
        const P t152 = c[1] * t116;
        const P t153 = t151 + t152;
        const P t154 = c[2] * t110;
        const P t155 = P(c[3], -c[3]) * t115;
        const P t156 = t154 + t155;
        const P t157 = t153 - t156;
        io.pair(16, t157);
        const P t158 = t153 + t156;
        io.pair(14, t158);
        // real block of 5, multiplier 2
        const P t159 = t9 + t7;
        const P t160 = t9 - t7;
        const P t161 = t19 + t11;
        const P t162 = t19 - t11;
        const P t163 = t159 + t161;
        const P t164 = t163 + t3;
        const P t165 = c[0] * t159;
        const P t166 = t3 - t165;
        const P t167 = c[1] * t161;
        const P t168 = t166 + t167;
        const P t169 = c[2] * t160;
        const P t170 = c[3] * t162;
        const P t171 = t169 + t170;
        const P t172 = c[1] * t159;
        const P t173 = c[0] * t161;
        const P t174 = t172 - t173;
        const P t175 = t174 + t3;
        const P t176 = c[3] * t160;
        const P t177 = c[2] * t162;
        const P t178 = t176 - t177;
        // real block of 5, multiplier 2
        const P t179 = t15 + t17;
        const P t180 = t15 - t17;
        const P t181 = t5 + t13;
        const P t182 = t5 - t13;
        const P t183 = t179 + t181;
        const P t184 = t183 + t21;
        const P t185 = c[0] * t179;
        const P t186 = t21 - t185;
        const P t187 = c[1] * t181;
        const P t188 = t186 + t187;
        const P t189 = c[2] * t180;
        const P t190 = c[3] * t182;
        const P t191 = t189 + t190;
        const P t192 = c[1] * t179;
        const P t193 = c[0] * t181;
        const P t194 = t192 - t193;
        const P t195 = t194 + t21;
        const P t196 = c[3] * t180;
        const P t197 = c[2] * t182;
        const P t198 = t196 - t197;
        // real block of 2
        const P t199 = t164 + t184;
        const P t200 = t164 - t184;
        // complex block of 2
        const P t201 = t168 + t188;
        const P t202 = t171 + t191;
        const P t203 = t168 - t188;
        const P t204 = t191 - t171;
        // complex block of 2
        const P t205 = t175 + t195;
        const P t206 = t178 + t198;
        const P t207 = t175 - t195;
        const P t208 = t178 - t198;
        // complex block of 11, multiplier 2
        const P t209 = t1 + t199;
        io.pair(11, t209);
        const P t210 = c[12] * t199;
        const P t211 = t1 - t210;
        const P t212 = shuffled<1, 0>(t208);
        const P t213 = P(-c[4], c[4]) * t212;
        const P t214 = shuffled<1, 0>(t207);
        const P t215 = P(c[5], -c[5]) * t214;
        const P t216 = t213 + t215;
        const P t217 = c[5] * t212;
        const P t218 = c[4] * t214;
        const P t219 = t217 + t218;
        const P t220 = c[6] * t201;
        const P t221 = c[7] * t202;
        const P t222 = t220 - t221;
        const P t223 = c[6] * t202;
        const P t224 = c[7] * t201;
        const P t225 = t223 + t224;
        const P t226 = shuffled<1, 0>(t203);
        const P t227 = c[8] * t226;
        const P t228 = shuffled<1, 0>(t204);
        const P t229 = c[9] * t228;
        const P t230 = t227 + t229;
        const P t231 = P(-c[8], c[8]) * t228;
        const P t232 = P(c[9], -c[9]) * t226;
        const P t233 = t231 + t232;
        const P t234 = c[10] * t206;
        const P t235 = c[11] * t205;
        const P t236 = t234 - t235;
        const P t237 = c[11] * t206;
        const P t238 = c[10] * t205;
        const P t239 = t237 + t238;
        const P t240 = shuffled<1, 0>(t200);
        const P t241 = P(-c[13], c[13]) * t240;
        // spectrum block of 2
        const P t242 = t211 + t241;
        const P t243 = t211 - t241;
        // complex block of 2
        const P t244 = t225 + t233;
        const P t245 = flipped<0, 1>(t230);
        const P t246 = t222 + t245;
        const P t247 = t233 - t225;
        const P t248 = t222 - t245;
        const P t249 = flipped<1, 0>(t239);
        // complex block of 2
        const P t250 = t249 + t219;
        const P t251 = t236 + t216;
        const P t252 = t219 - t249;
        const P t253 = t236 - t216;
        // spectrum block of 5, multiplier 2
        const P t254 = t246 + t251;
        const P t255 = t254 + t242;
        io.pair(13, t255);
        const P t256 = c[1] * t246;
        const P t257 = c[0] * t251;
        const P t258 = t256 - t257;
        const P t259 = t258 + t242;
        const P t260 = P(-c[3], c[3]) * t244;
        const P t261 = c[2] * t250;
        const P t262 = t260 + t261;
        const P t263 = flipped<1, 0>(t262);
        const P t264 = t259 + t263;
        io.pair(21, t264);
        const P t265 = t259 - t263;
        io.pair(7, t265);
        const P t266 = c[0] * t246;
        const P t267 = t242 - t266;
        const P t268 = c[1] * t251;
        const P t269 = t267 + t268;
        const P t270 = c[3] * t250;
        const P t271 = P(c[2], -c[2]) * t244;
        const P t272 = t270 + t271;
        const P t273 = flipped<0, 1>(t272);
        const P t274 = t269 + t273;
        io.pair(17, t274);
        const P t275 = t269 - t273;
        io.pair(19, t275);
        // spectrum block of 5, multiplier 2
        const P t276 = t248 + t253;
        const P t277 = t276 + t243;
        io.pair(9, t277);
        const P t278 = c[1] * t248;
        const P t279 = c[0] * t253;
        const P t280 = t278 - t279;
        const P t281 = t280 + t243;
        const P t282 = c[3] * t247;
        const P t283 = P(-c[2], c[2]) * t252;
        const P t284 = t282 + t283;
        const P t285 = t281 - t284;
        io.pair(1, t285);
        const P t286 = t281 + t284;
        io.pair(15, t286);
        const P t287 = c[0] * t248;
        const P t288 = t243 - t287;
        const P t289 = c[1] * t253;
        const P t290 = t288 + t289;
        const P t291 = c[2] * t247;
        const P t292 = P(c[3], -c[3]) * t252;
        const P t293 = t291 + t292;
        const P t294 = t290 - t293;
        io.pair(5, t294);
        const P t295 = t290 + t293;
        io.pair(3, t295);
    }
};

}  // namespace zulg
