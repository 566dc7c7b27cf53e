// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 19.
// Complex DFT of 19 points, Rader block; one complex number to a register.
// 95 sums, 87 differences, 110 products of registers, which do the 622 steps of the graph, those with
// `scale` included; 9 shuffles, 4 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<19> {
    static constexpr int steps = 622;  // with `scale`
    static constexpr double inverseRoot = 0.22941573387056174;  // 1/sqrt(19), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.09512810652215012,  // c[6]: -P[1] of 19
        0.4748879284463634,  // c[7]: Q[1] of 19
        0.32553565392043055,  // c[8]: P[2] of 19
        0.35860066823859316,  // c[9]: Q[2] of 19
        0.04733572347201245,  // c[10]: -Q[3] of 19
        0.48200335114804865,  // c[11]: P[3] of 19
        0.3662524937233519,  // c[12]: P[4] of 19
        0.3169022121664568,  // c[13]: Q[4] of 19
        0.3712153751939134,  // c[14]: -Q[5] of 19
        0.31107402086032515,  // c[15]: -P[5] of 19
        0.1480904714883096,  // c[16]: -P[6] of 19
        0.46112591934192776,  // c[17]: Q[6] of 19
        0.026201587005319653,  // c[18]: Q[7] of 19
        0.48361283902825675,  // c[19]: P[7] of 19
        0.4576751211007174,  // c[20]: P[8] of 19
        0.1584341653811184,  // c[21]: -Q[8] of 19
        0.1503837331804353,  // c[22]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[23]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[24]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[25]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x1 = io.pair(1);
        const P x18 = io.pair(18);
        // real block of 2
        const P t0 = x1 + x18;
        const P t1 = x1 - x18;
        const P x4 = io.pair(4);
        const P x15 = io.pair(15);
        // real block of 2
        const P t2 = x4 + x15;
        const P t3 = x4 - x15;
        const P x16 = io.pair(16);
        const P x3 = io.pair(3);
        // real block of 2
        const P t4 = x16 + x3;
        const P t5 = x16 - x3;
        const P x7 = io.pair(7);
        const P x12 = io.pair(12);
        // real block of 2
        const P t6 = x7 + x12;
        const P t7 = x7 - x12;
        const P x9 = io.pair(9);
        const P x10 = io.pair(10);
        // real block of 2
        const P t8 = x9 + x10;
        const P t9 = x9 - x10;
        const P x17 = io.pair(17);
        const P x2 = io.pair(2);
        // real block of 2
        const P t10 = x17 + x2;
        const P t11 = x17 - x2;
        const P x11 = io.pair(11);
        const P x8 = io.pair(8);
        // real block of 2
        const P t12 = x11 + x8;
        const P t13 = x11 - x8;
        const P x6 = io.pair(6);
        const P x13 = io.pair(13);
        // real block of 2
        const P t14 = x6 + x13;
        const P t15 = x6 - x13;
        const P x5 = io.pair(5);
        const P x14 = io.pair(14);
        // real block of 2
        const P t16 = x5 + x14;
        const P t17 = x5 - x14;
        // real block of 3, multiplier 2
        const P t18 = t6 + t12;
        const P t19 = t6 - t12;
        const P t20 = t18 + t0;
        const P t21 = c[0] * t18;
        const P t22 = t0 - t21;
        // real block of 3, multiplier 2
        const P t23 = t8 + t14;
        const P t24 = t8 - t14;
        const P t25 = t23 + t2;
        const P t26 = c[0] * t23;
        const P t27 = t2 - t26;
        // real block of 3, multiplier 2
        const P t28 = t10 + t16;
        const P t29 = t10 - t16;
        const P t30 = t28 + t4;
        const P t31 = c[0] * t28;
        const P t32 = t4 - t31;
        // real block of 3, multiplier 2
        const P t33 = t25 + t30;
        const P t34 = t25 - t30;
        const P t35 = t33 + t20;
        const P t36 = c[0] * t33;
        const P t37 = t20 - t36;
        // real block of 9, multiplier 2
        const P t38 = c[2] * t27;
        // real block of 3, multiplier 2
        const P t39 = c[1] * t24;
        // real block of 9, multiplier 2
        const P t40 = c[3] * t39;
        const P t41 = t38 + t40;
        const P t42 = c[2] * t39;
        const P t43 = c[3] * t27;
        const P t44 = t42 - t43;
        // real block of 3, multiplier 2
        const P t45 = c[1] * t29;
        // real block of 9, multiplier 2
        const P t46 = c[4] * t45;
        const P t47 = c[5] * t32;
        const P t48 = t46 - t47;
        const P t49 = c[5] * t45;
        const P t50 = c[4] * t32;
        const P t51 = t49 + t50;
        // complex block of 3, multiplier 2
        const P t52 = t41 + t48;
        const P t53 = t44 - t51;
        const P t54 = t41 - t48;
        const P t55 = t44 + t51;
        const P t56 = t52 + t22;
        // real block of 3, multiplier 2
        const P t57 = c[1] * t19;
        // complex block of 3, multiplier 2
        const P t58 = t53 + t57;
        const P t59 = c[0] * t52;
        const P t60 = t22 - t59;
        const P t61 = c[0] * t53;
        const P t62 = t57 - t61;
        const P t63 = c[1] * t55;
        const P t64 = t60 + t63;
        const P t65 = c[1] * t54;
        const P t66 = t62 - t65;
        const P t67 = t60 - t63;
        const P t68 = t62 + t65;
        // real block of 3, multiplier 2
        const P t69 = t7 + t13;
        const P t70 = t7 - t13;
        const P t71 = t69 + t1;
        const P t72 = c[0] * t69;
        const P t73 = t1 - t72;
        // real block of 3, multiplier 2
        const P t74 = t9 + t15;
        const P t75 = t9 - t15;
        const P t76 = t74 + t3;
        const P t77 = c[0] * t74;
        const P t78 = t3 - t77;
        // real block of 3, multiplier 2
        const P t79 = t11 + t17;
        const P t80 = t11 - t17;
        const P t81 = t79 + t5;
        const P t82 = c[0] * t79;
        const P t83 = t5 - t82;
        // real block of 3, multiplier 2
        const P t84 = t76 + t81;
        const P t85 = t76 - t81;
        const P t86 = t84 + t71;
        const P t87 = c[0] * t84;
        const P t88 = t71 - t87;
        // real block of 9, multiplier 2
        const P t89 = c[2] * t78;
        // real block of 3, multiplier 2
        const P t90 = c[1] * t75;
        // real block of 9, multiplier 2
        const P t91 = c[3] * t90;
        const P t92 = t89 + t91;
        const P t93 = c[2] * t90;
        const P t94 = c[3] * t78;
        const P t95 = t93 - t94;
        // real block of 3, multiplier 2
        const P t96 = c[1] * t80;
        // real block of 9, multiplier 2
        const P t97 = c[4] * t96;
        const P t98 = c[5] * t83;
        const P t99 = t97 - t98;
        const P t100 = c[5] * t96;
        const P t101 = c[4] * t83;
        const P t102 = t100 + t101;
        // complex block of 3, multiplier 2
        const P t103 = t92 + t99;
        const P t104 = t95 - t102;
        const P t105 = t92 - t99;
        const P t106 = t95 + t102;
        const P t107 = t103 + t73;
        // real block of 3, multiplier 2
        const P t108 = c[1] * t70;
        // complex block of 3, multiplier 2
        const P t109 = t104 + t108;
        const P t110 = c[0] * t103;
        const P t111 = t73 - t110;
        const P t112 = c[0] * t104;
        const P t113 = t108 - t112;
        const P t114 = c[1] * t106;
        const P t115 = t111 + t114;
        const P t116 = c[1] * t105;
        const P t117 = t113 - t116;
        const P t118 = t111 - t114;
        const P t119 = t113 + t116;
        const P x0 = io.pair(0);
        // complex block of 19
        const P t120 = x0 + t35;
        io.pair(0, t120);
        const P t121 = c[26] * t35;
        const P t122 = x0 - t121;
        const P t123 = shuffled<1, 0>(t119);
        const P t124 = P(-c[6], c[6]) * t123;
        const P t125 = shuffled<1, 0>(t118);
        const P t126 = P(c[7], -c[7]) * t125;
        const P t127 = t124 + t126;
        const P t128 = c[7] * t123;
        const P t129 = c[6] * t125;
        const P t130 = t128 + t129;
        const P t131 = c[8] * t56;
        const P t132 = c[9] * t58;
        const P t133 = t131 - t132;
        const P t134 = c[8] * t58;
        const P t135 = c[9] * t56;
        const P t136 = t134 + t135;
        const P t137 = shuffled<1, 0>(t88);
        const P t138 = P(-c[10], c[10]) * t137;
        // real block of 3, multiplier 2
        const P t139 = c[1] * t85;
        const P t140 = shuffled<1, 0>(t139);
        // complex block of 19
        const P t141 = P(c[11], -c[11]) * t140;
        const P t142 = t138 + t141;
        const P t143 = c[10] * t140;
        const P t144 = c[11] * t137;
        const P t145 = t143 + t144;
        const P t146 = c[12] * t64;
        const P t147 = c[13] * t66;
        const P t148 = t146 + t147;
        const P t149 = c[13] * t64;
        const P t150 = c[12] * t66;
        const P t151 = t149 - t150;
        const P t152 = shuffled<1, 0>(t115);
        const P t153 = P(-c[14], c[14]) * t152;
        const P t154 = shuffled<1, 0>(t117);
        const P t155 = P(c[15], -c[15]) * t154;
        const P t156 = t153 + t155;
        const P t157 = c[14] * t154;
        const P t158 = c[15] * t152;
        const P t159 = t157 + t158;
        const P t160 = c[16] * t37;
        // real block of 3, multiplier 2
        const P t161 = c[1] * t34;
        // complex block of 19
        const P t162 = c[17] * t161;
        const P t163 = t160 + t162;
        const P t164 = c[17] * t37;
        const P t165 = c[16] * t161;
        const P t166 = t164 - t165;
        const P t167 = shuffled<1, 0>(t107);
        const P t168 = c[18] * t167;
        const P t169 = shuffled<1, 0>(t109);
        const P t170 = c[19] * t169;
        const P t171 = t168 + t170;
        const P t172 = P(-c[18], c[18]) * t169;
        const P t173 = P(c[19], -c[19]) * t167;
        const P t174 = t172 + t173;
        const P t175 = c[20] * t67;
        const P t176 = c[21] * t68;
        const P t177 = t175 + t176;
        const P t178 = c[20] * t68;
        const P t179 = c[21] * t67;
        const P t180 = t178 - t179;
        const P t181 = shuffled<1, 0>(t86);
        const P t182 = P(c[27], -c[27]) * t181;
        // spectrum block of 2
        const P t183 = t122 + t182;
        const P t184 = t122 - t182;
        // complex block of 2
        const P t185 = t136 - t174;
        const P t186 = flipped<0, 1>(t171);
        const P t187 = t133 + t186;
        const P t188 = t136 + t174;
        const P t189 = t133 - t186;
        const P t190 = flipped<0, 1>(t159);
        // complex block of 2
        const P t191 = t151 + t190;
        const P t192 = t148 + t156;
        const P t193 = t151 - t190;
        const P t194 = t148 - t156;
        const P t195 = flipped<1, 0>(t145);
        // complex block of 2
        const P t196 = t166 + t195;
        const P t197 = t142 - t163;
        const P t198 = t166 - t195;
        const P t199 = t163 + t142;
        const P t200 = flipped<0, 1>(t130);
        // complex block of 2
        const P t201 = t180 + t200;
        const P t202 = t177 + t127;
        const P t203 = t180 - t200;
        const P t204 = t177 - t127;
        // spectrum block of 3, multiplier 2
        const P t205 = t197 + t183;
        const P t206 = c[0] * t197;
        const P t207 = t183 - t206;
        const P t208 = c[1] * t196;
        const P t209 = t207 - t208;
        const P t210 = t207 + t208;
        // complex block of 3, multiplier 2
        const P t211 = t201 - t191;
        const P t212 = t202 + t192;
        const P t213 = t201 + t191;
        const P t214 = t202 - t192;
        const P t215 = t211 + t185;
        const P t216 = t212 + t187;
        const P t217 = c[0] * t211;
        const P t218 = t185 - t217;
        const P t219 = c[0] * t212;
        const P t220 = t187 - t219;
        const P t221 = c[1] * t214;
        const P t222 = t218 + t221;
        const P t223 = c[1] * t213;
        const P t224 = t220 - t223;
        const P t225 = t218 - t221;
        const P t226 = t220 + t223;
        // spectrum block of 9, multiplier 2
        const P t227 = c[2] * t226;
        const P t228 = c[3] * t225;
        const P t229 = t227 - t228;
        const P t230 = c[5] * t224;
        const P t231 = c[4] * t222;
        const P t232 = t230 + t231;
        // spectrum block of 3, multiplier 2
        const P t233 = t216 + t205;
        io.pair(1, t233);
        const P t234 = c[0] * t216;
        const P t235 = t205 - t234;
        const P t236 = c[1] * t215;
        const P t237 = t235 - t236;
        io.pair(7, t237);
        const P t238 = t235 + t236;
        io.pair(11, t238);
        // spectrum block of 3, multiplier 2
        const P t239 = t229 + t210;
        io.pair(5, t239);
        const P t240 = c[0] * t229;
        const P t241 = t210 - t240;
        const P t242 = c[22] * t225;
        const P t243 = c[23] * t226;
        const P t244 = t242 + t243;
        const P t245 = t241 - t244;
        io.pair(16, t245);
        const P t246 = t241 + t244;
        io.pair(17, t246);
        // spectrum block of 3, multiplier 2
        const P t247 = t209 - t232;
        io.pair(6, t247);
        const P t248 = c[0] * t232;
        const P t249 = t248 + t209;
        const P t250 = c[24] * t224;
        const P t251 = c[25] * t222;
        const P t252 = t250 - t251;
        const P t253 = t249 - t252;
        io.pair(4, t253);
        const P t254 = t249 + t252;
        io.pair(9, t254);
        // spectrum block of 3, multiplier 2
        const P t255 = t184 - t199;
        const P t256 = c[0] * t199;
        const P t257 = t256 + t184;
        const P t258 = c[1] * t198;
        const P t259 = t257 - t258;
        const P t260 = t257 + t258;
        // complex block of 3, multiplier 2
        const P t261 = t203 - t193;
        const P t262 = t204 + t194;
        const P t263 = t203 + t193;
        const P t264 = t204 - t194;
        const P t265 = t261 + t188;
        const P t266 = t262 + t189;
        const P t267 = c[0] * t261;
        const P t268 = t188 - t267;
        const P t269 = c[0] * t262;
        const P t270 = t189 - t269;
        const P t271 = c[1] * t264;
        const P t272 = t268 + t271;
        const P t273 = c[1] * t263;
        const P t274 = t270 - t273;
        const P t275 = t268 - t271;
        const P t276 = t270 + t273;
        // spectrum block of 9, multiplier 2
        const P t277 = c[2] * t276;
        const P t278 = c[3] * t275;
        const P t279 = t277 - t278;
        const P t280 = c[5] * t274;
        const P t281 = c[4] * t272;
        const P t282 = t280 + t281;
        // spectrum block of 3, multiplier 2
        const P t283 = t266 + t255;
        io.pair(18, t283);
        const P t284 = c[0] * t266;
        const P t285 = t255 - t284;
        const P t286 = c[1] * t265;
        const P t287 = t285 - t286;
        io.pair(12, t287);
        const P t288 = t285 + t286;
        io.pair(8, t288);
        // spectrum block of 3, multiplier 2
        const P t289 = t279 + t260;
        io.pair(14, t289);
        const P t290 = c[0] * t279;
        const P t291 = t260 - t290;
        const P t292 = c[22] * t275;
        const P t293 = c[23] * t276;
        const P t294 = t292 + t293;
        const P t295 = t291 - t294;
        io.pair(3, t295);
        const P t296 = t291 + t294;
        io.pair(2, t296);
        // spectrum block of 3, multiplier 2
        const P t297 = t259 - t282;
        io.pair(13, t297);
        const P t298 = c[0] * t282;
        const P t299 = t298 + t259;
        const P t300 = c[24] * t274;
        const P t301 = c[25] * t272;
        const P t302 = t300 - t301;
        const P t303 = t299 - t302;
        io.pair(15, t303);
        const P t304 = t299 + t302;
        io.pair(10, t304);
    }
};

}  // namespace zulg
