// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 26.
// Complex DFT of 26 points, prime-factor, order 13, 2; one complex number to a register.
// 113 sums, 89 differences, 72 products of registers, which do the 600 steps of the graph, those with
// `scale` included; 16 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<26> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5279915321544383,  // c[2]: Q[1] of 13
        0.2869425954512852,  // c[3]: P[1] of 13
        0.5751407294740031,  // c[4]: Q[3] of 13
        0.1741386011521359,  // c[5]: -P[3] of 13
        0.280148395734785,  // c[6]: -Q[5] of 13
        0.5316276774946329,  // c[7]: P[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.5242266395265821,  // c[9]: P[2] of 13
        0.29376443202296976,  // c[10]: -Q[2] of 13
        0.42763404682657274,  // c[11]: P[4] of 13
        0.42218506973345193,  // c[12]: -Q[4] of 13
        0.37034194807495624,  // c[13]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[14]: sin 2 pi 1/3 times -Q[4] of 13
        0.3004626062886658,  // c[15]: -beta of 13
        0.45399358717056765,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.25440746086019866,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x2 = io.pair(2);
        const P x24 = io.pair(24);
        // real block of 2
        const P t0 = x2 + x24;
        const P t1 = x2 - x24;
        const P x16 = io.pair(16);
        const P x10 = io.pair(10);
        // real block of 2
        const P t2 = x16 + x10;
        const P t3 = x16 - x10;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x6 = io.pair(6);
        const P x20 = io.pair(20);
        // real block of 2
        const P t6 = x6 + x20;
        const P t7 = x6 - x20;
        const P x22 = io.pair(22);
        const P x4 = io.pair(4);
        // real block of 2
        const P t8 = x22 + x4;
        const P t9 = x22 - x4;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x18 = io.pair(18);
        const P x8 = io.pair(8);
        // real block of 2
        const P t12 = x18 + x8;
        const P t13 = x18 - x8;
        const P x14 = io.pair(14);
        const P x12 = io.pair(12);
        // real block of 2
        const P t14 = x14 + x12;
        const P t15 = x14 - x12;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        // real block of 3
        const P t18 = t10 + t16;
        const P t19 = t10 - t16;
        const P t20 = t18 + t4;
        const P t21 = c[0] * t18;
        const P t22 = t4 - t21;
        // complex block of 3
        const P t23 = t7 + t13;
        const P t24 = t9 + t15;
        const P t25 = t7 - t13;
        const P t26 = t9 - t15;
        const P t27 = t23 + t1;
        const P t28 = t24 + t3;
        const P t29 = c[0] * t23;
        const P t30 = t1 - t29;
        const P t31 = c[0] * t24;
        const P t32 = t3 - t31;
        const P t33 = c[1] * t26;
        const P t34 = t30 + t33;
        const P t35 = c[1] * t25;
        const P t36 = t32 - t35;
        const P t37 = t30 - t33;
        const P t38 = t32 + t35;
        // real block of 3
        const P t39 = t11 + t17;
        const P t40 = t11 - t17;
        const P t41 = t39 + t5;
        const P t42 = c[0] * t39;
        const P t43 = t5 - t42;
        const P x0 = io.pair(0);
        // complex block of 13, multiplier 2
        const P t44 = x0 + t20;
        const P t45 = c[8] * t20;
        const P t46 = x0 - t45;
        const P t47 = shuffled<1, 0>(t37);
        const P t48 = c[2] * t47;
        const P t49 = shuffled<1, 0>(t38);
        const P t50 = c[3] * t49;
        const P t51 = t48 + t50;
        const P t52 = P(-c[2], c[2]) * t49;
        const P t53 = P(c[3], -c[3]) * t47;
        const P t54 = t52 + t53;
        const P t55 = c[9] * t43;
        // real block of 3
        const P t56 = c[1] * t40;
        // complex block of 13, multiplier 2
        const P t57 = c[10] * t56;
        const P t58 = t55 + t57;
        const P t59 = shuffled<1, 0>(t27);
        const P t60 = c[4] * t59;
        const P t61 = shuffled<1, 0>(t28);
        const P t62 = c[5] * t61;
        const P t63 = t60 + t62;
        const P t64 = P(-c[5], c[5]) * t59;
        const P t65 = P(c[4], -c[4]) * t61;
        const P t66 = t64 + t65;
        const P t67 = c[11] * t22;
        // real block of 3
        const P t68 = c[1] * t19;
        // complex block of 13, multiplier 2
        const P t69 = c[12] * t68;
        const P t70 = t67 - t69;
        const P t71 = shuffled<1, 0>(t34);
        const P t72 = P(-c[6], c[6]) * t71;
        const P t73 = shuffled<1, 0>(t36);
        const P t74 = P(c[7], -c[7]) * t73;
        const P t75 = t72 + t74;
        const P t76 = c[6] * t73;
        const P t77 = c[7] * t71;
        const P t78 = t76 + t77;
        // spectrum block of 3
        const P t79 = t70 + t46;
        const P t80 = c[0] * t70;
        const P t81 = t46 - t80;
        const P t82 = c[13] * t68;
        const P t83 = c[14] * t22;
        const P t84 = t82 + t83;
        const P t85 = t81 + t84;
        const P t86 = t81 - t84;
        const P t87 = flipped<0, 1>(t54);
        // complex block of 3
        const P t88 = t78 + t87;
        const P t89 = flipped<0, 1>(t51);
        const P t90 = t75 + t89;
        const P t91 = flipped<1, 0>(t78);
        const P t92 = t91 + t54;
        const P t93 = t75 - t89;
        const P t94 = flipped<1, 0>(t88);
        const P t95 = t94 + t66;
        const P t96 = flipped<0, 1>(t63);
        const P t97 = t90 + t96;
        const P t98 = P(c[0], -c[0]) * t88;
        const P t99 = t66 + t98;
        const P t100 = P(-c[0], c[0]) * t90;
        const P t101 = t63 + t100;
        const P t102 = c[1] * t93;
        const P t103 = t99 + t102;
        const P t104 = P(-c[1], c[1]) * t92;
        const P t105 = t101 + t104;
        const P t106 = t99 - t102;
        const P t107 = shuffled<0, 3>(t101, t104);
        const P t108 = shuffled<0, 3>(t104, t101);
        const P t109 = t107 - t108;
        // complex block of 13, multiplier 2
        const P t110 = c[15] * t41;
        // spectrum block of 3
        const P t111 = t58 - t110;
        const P t112 = c[0] * t58;
        const P t113 = t110 + t112;
        const P t114 = c[16] * t56;
        const P t115 = c[17] * t43;
        const P t116 = t114 - t115;
        const P t117 = t116 - t113;
        const P t118 = t113 + t116;
        // spectrum block of 2
        const P t119 = t79 + t111;
        const P t120 = t79 - t111;
        // spectrum block of 2
        const P t121 = t119 + t97;
        const P t122 = t119 - t97;
        // spectrum block of 2
        const P t123 = t120 + t95;
        const P t124 = t120 - t95;
        // spectrum block of 2
        const P t125 = t85 + t117;
        const P t126 = t85 - t117;
        const P t127 = flipped<0, 1>(t105);
        // spectrum block of 2
        const P t128 = t125 + t127;
        const P t129 = t125 - t127;
        // spectrum block of 2
        const P t130 = t126 + t103;
        const P t131 = t126 - t103;
        // spectrum block of 2
        const P t132 = t86 - t118;
        const P t133 = t86 + t118;
        // spectrum block of 2
        const P t134 = t132 + t109;
        const P t135 = t132 - t109;
        // spectrum block of 2
        const P t136 = t133 + t106;
        const P t137 = t133 - t106;
        const P x15 = io.pair(15);
        const P x11 = io.pair(11);
        // real block of 2
        const P t138 = x15 + x11;
        const P t139 = x15 - x11;
        const P x3 = io.pair(3);
        const P x23 = io.pair(23);
        // real block of 2
        const P t140 = x3 + x23;
        const P t141 = x3 - x23;
        // real block of 2
        const P t142 = t138 + t140;
        const P t143 = t138 - t140;
        const P x19 = io.pair(19);
        const P x7 = io.pair(7);
        // real block of 2
        const P t144 = x19 + x7;
        const P t145 = x19 - x7;
        const P x9 = io.pair(9);
        const P x17 = io.pair(17);
        // real block of 2
        const P t146 = x9 + x17;
        const P t147 = x9 - x17;
        // real block of 2
        const P t148 = t144 + t146;
        const P t149 = t144 - t146;
        const P x5 = io.pair(5);
        const P x21 = io.pair(21);
        // real block of 2
        const P t150 = x5 + x21;
        const P t151 = x5 - x21;
        const P x1 = io.pair(1);
        const P x25 = io.pair(25);
        // real block of 2
        const P t152 = x1 + x25;
        const P t153 = x1 - x25;
        // real block of 2
        const P t154 = t150 + t152;
        const P t155 = t150 - t152;
        // real block of 3
        const P t156 = t148 + t154;
        const P t157 = t148 - t154;
        const P t158 = t156 + t142;
        const P t159 = c[0] * t156;
        const P t160 = t142 - t159;
        // complex block of 3
        const P t161 = t145 + t151;
        const P t162 = t147 + t153;
        const P t163 = t145 - t151;
        const P t164 = t147 - t153;
        const P t165 = t161 + t139;
        const P t166 = t162 + t141;
        const P t167 = c[0] * t161;
        const P t168 = t139 - t167;
        const P t169 = c[0] * t162;
        const P t170 = t141 - t169;
        const P t171 = c[1] * t164;
        const P t172 = t168 + t171;
        const P t173 = c[1] * t163;
        const P t174 = t170 - t173;
        const P t175 = t168 - t171;
        const P t176 = t170 + t173;
        // real block of 3
        const P t177 = t149 + t155;
        const P t178 = t149 - t155;
        const P t179 = t177 + t143;
        const P t180 = c[0] * t177;
        const P t181 = t143 - t180;
        const P x13 = io.pair(13);
        // complex block of 13, multiplier 2
        const P t182 = x13 + t158;
        const P t183 = c[8] * t158;
        const P t184 = x13 - t183;
        const P t185 = shuffled<1, 0>(t175);
        const P t186 = c[2] * t185;
        const P t187 = shuffled<1, 0>(t176);
        const P t188 = c[3] * t187;
        const P t189 = t186 + t188;
        const P t190 = P(-c[2], c[2]) * t187;
        const P t191 = P(c[3], -c[3]) * t185;
        const P t192 = t190 + t191;
        const P t193 = c[9] * t181;
        // real block of 3
        const P t194 = c[1] * t178;
        // complex block of 13, multiplier 2
        const P t195 = c[10] * t194;
        const P t196 = t193 + t195;
        const P t197 = shuffled<1, 0>(t165);
        const P t198 = c[4] * t197;
        const P t199 = shuffled<1, 0>(t166);
        const P t200 = c[5] * t199;
        const P t201 = t198 + t200;
        const P t202 = P(-c[5], c[5]) * t197;
        const P t203 = P(c[4], -c[4]) * t199;
        const P t204 = t202 + t203;
        const P t205 = c[11] * t160;
        // real block of 3
        const P t206 = c[1] * t157;
        // complex block of 13, multiplier 2
        const P t207 = c[12] * t206;
        const P t208 = t205 - t207;
        const P t209 = shuffled<1, 0>(t172);
        const P t210 = P(-c[6], c[6]) * t209;
        const P t211 = shuffled<1, 0>(t174);
        const P t212 = P(c[7], -c[7]) * t211;
        const P t213 = t210 + t212;
        const P t214 = c[6] * t211;
        const P t215 = c[7] * t209;
        const P t216 = t214 + t215;
        // spectrum block of 3
        const P t217 = t208 + t184;
        const P t218 = c[0] * t208;
        const P t219 = t184 - t218;
        const P t220 = c[13] * t206;
        const P t221 = c[14] * t160;
        const P t222 = t220 + t221;
        const P t223 = t219 + t222;
        const P t224 = t219 - t222;
        const P t225 = flipped<0, 1>(t192);
        // complex block of 3
        const P t226 = t216 + t225;
        const P t227 = flipped<0, 1>(t189);
        const P t228 = t213 + t227;
        const P t229 = flipped<1, 0>(t216);
        const P t230 = t229 + t192;
        const P t231 = t213 - t227;
        const P t232 = flipped<1, 0>(t226);
        const P t233 = t232 + t204;
        const P t234 = flipped<0, 1>(t201);
        const P t235 = t228 + t234;
        const P t236 = P(c[0], -c[0]) * t226;
        const P t237 = t204 + t236;
        const P t238 = P(-c[0], c[0]) * t228;
        const P t239 = t201 + t238;
        const P t240 = c[1] * t231;
        const P t241 = t237 + t240;
        const P t242 = P(-c[1], c[1]) * t230;
        const P t243 = t239 + t242;
        const P t244 = t237 - t240;
        const P t245 = shuffled<0, 3>(t239, t242);
        const P t246 = shuffled<0, 3>(t242, t239);
        const P t247 = t245 - t246;
        // complex block of 13, multiplier 2
        const P t248 = c[15] * t179;
        // spectrum block of 3
        const P t249 = t196 - t248;
        const P t250 = c[0] * t196;
        const P t251 = t248 + t250;
        const P t252 = c[16] * t194;
        const P t253 = c[17] * t181;
        const P t254 = t252 - t253;
        const P t255 = t254 - t251;
        const P t256 = t251 + t254;
        // spectrum block of 2
        const P t257 = t217 + t249;
        const P t258 = t217 - t249;
        // spectrum block of 2
        const P t259 = t257 + t235;
        const P t260 = t257 - t235;
        // spectrum block of 2
        const P t261 = t258 + t233;
        const P t262 = t258 - t233;
        // spectrum block of 2
        const P t263 = t223 + t255;
        const P t264 = t223 - t255;
        const P t265 = flipped<0, 1>(t243);
        // spectrum block of 2
        const P t266 = t263 + t265;
        const P t267 = t263 - t265;
        // spectrum block of 2
        const P t268 = t264 + t241;
        const P t269 = t264 - t241;
        // spectrum block of 2
        const P t270 = t224 - t256;
        const P t271 = t224 + t256;
        // spectrum block of 2
        const P t272 = t270 + t247;
        const P t273 = t270 - t247;
        // spectrum block of 2
        const P t274 = t271 + t244;
        const P t275 = t271 - t244;
        // complex block of 2
        const P t276 = t44 + t182;
        io.pair(0, t276);
        const P t277 = t44 - t182;
        io.pair(13, t277);
        // complex block of 2
        const P t278 = t121 + t259;
        io.pair(2, t278);
        const P t279 = t121 - t259;
        io.pair(15, t279);
        // complex block of 2
        const P t280 = t136 + t274;
        io.pair(4, t280);
        const P t281 = t136 - t274;
        io.pair(17, t281);
        // complex block of 2
        const P t282 = t134 + t272;
        io.pair(6, t282);
        const P t283 = t134 - t272;
        io.pair(19, t283);
        // complex block of 2
        const P t284 = t129 + t267;
        io.pair(8, t284);
        const P t285 = t129 - t267;
        io.pair(21, t285);
        // complex block of 2
        const P t286 = t123 + t261;
        io.pair(10, t286);
        const P t287 = t123 - t261;
        io.pair(23, t287);
        // complex block of 2
        const P t288 = t130 + t268;
        io.pair(12, t288);
        const P t289 = t130 - t268;
        io.pair(25, t289);
        // complex block of 2
        const P t290 = t131 + t269;
        io.pair(14, t290);
        const P t291 = t131 - t269;
        io.pair(1, t291);
        // complex block of 2
        const P t292 = t124 + t262;
        io.pair(16, t292);
        const P t293 = t124 - t262;
        io.pair(3, t293);
        // complex block of 2
        const P t294 = t128 + t266;
        io.pair(18, t294);
        const P t295 = t128 - t266;
        io.pair(5, t295);
        // complex block of 2
        const P t296 = t135 + t273;
        io.pair(20, t296);
        const P t297 = t135 - t273;
        io.pair(7, t297);
        // complex block of 2
        const P t298 = t137 + t275;
        io.pair(22, t298);
        const P t299 = t137 - t275;
        io.pair(9, t299);
        // complex block of 2
        const P t300 = t122 + t260;
        io.pair(24, t300);
        const P t301 = t122 - t260;
        io.pair(11, t301);
    }
};

}  // namespace zulg
