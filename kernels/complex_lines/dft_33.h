// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 33.
// Complex DFT of 33 points, prime-factor, order 3, 11; two lines of a stage to a register.
// 87 sums, 71 differences, 90 products of registers, which do the 1010 steps of the graph, those with
// `scale` included; 57 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<33> {
    static constexpr int steps = 1010;  // with `scale`
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.6631375114867465,  // c[6]: -P[2] of 11
        0.01576834991891041,  // c[7]: -Q[2] of 11
        0.16065279913205563,  // c[8]: -P[3] of 11
        0.6435764741901582,  // c[9]: Q[3] of 11
        0.014582488655234533,  // c[10]: Q[1] of 11
        0.6631646485033863,  // c[11]: P[1] of 11
        0.6208226732134613,  // c[12]: P[4] of 11
        0.23362193480940913,  // c[13]: -Q[4] of 11
        0.1,  // c[14]: 1/10
        0.33166247903553997,  // c[15]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x11_14 = io.pairs(11, 14);
        const Q x22_25 = io.pairs(22, 25);
        // complex block of 3, multiplier 2
        const Q t0 = x11_14 + x22_25;
        const Q t1 = x11_14 - x22_25;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[4] * t0;
        const Q t4 = x0_3 - t3;
        const Q x23_26 = io.pairs(23, 26);
        const Q x1_4 = io.pairs(1, 4);
        // complex block of 3, multiplier 2
        const Q t5 = x23_26 + x1_4;
        const Q t6 = x23_26 - x1_4;
        const Q x12_15 = io.pairs(12, 15);
        const Q t7 = t5 + x12_15;
        const Q t8 = c[4] * t5;
        const Q t9 = x12_15 - t8;
        const Q t10 = Q(-c[5], c[5], -c[5], c[5]) * t6;
        const Q t11 = shuffled<1, 0, 3, 2>(t10);
        const Q t12 = t9 + t11;
        const Q t13 = t9 - t11;
        const Q x2_5 = io.pairs(2, 5);
        const Q x13_16 = io.pairs(13, 16);
        // complex block of 3, multiplier 2
        const Q t14 = x2_5 + x13_16;
        const Q t15 = x2_5 - x13_16;
        const Q x24_27 = io.pairs(24, 27);
        const Q t16 = t14 + x24_27;
        const Q t17 = c[4] * t14;
        const Q t18 = x24_27 - t17;
        const Q t19 = Q(-c[5], c[5], -c[5], c[5]) * t15;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = t18 + t20;
        const Q t22 = t18 - t20;
        const Q x17_20 = io.pairs(17, 20);
        const Q x28_31 = io.pairs(28, 31);
        // complex block of 3, multiplier 2
        const Q t23 = x17_20 + x28_31;
        const Q t24 = x17_20 - x28_31;
        const Q x6_9 = io.pairs(6, 9);
        const Q t25 = t23 + x6_9;
        const Q t26 = c[4] * t23;
        const Q t27 = x6_9 - t26;
        const Q t28 = Q(-c[5], c[5], -c[5], c[5]) * t24;
        const Q t29 = shuffled<1, 0, 3, 2>(t28);
        const Q t30 = t27 + t29;
        const Q t31 = t27 - t29;
        const Q x29_32 = io.pairs(29, 32);
        const Q x7_10 = io.pairs(7, 10);
        // complex block of 3, multiplier 2
        const Q t32 = x29_32 + x7_10;
        const Q t33 = x29_32 - x7_10;
        const Q x18_21 = io.pairs(18, 21);
        const Q t34 = t32 + x18_21;
        const Q t35 = c[4] * t32;
        const Q t36 = x18_21 - t35;
        const Q t37 = Q(-c[5], c[5], -c[5], c[5]) * t33;
        const Q t38 = shuffled<1, 0, 3, 2>(t37);
        const Q t39 = t36 + t38;
        const Q t40 = t36 - t38;
        const P x8 = io.pair(8);
        const P x19 = io.pair(19);
        // complex block of 3, multiplier 2
        const P t41 = x8 + x19;
        const P t42 = x8 - x19;
        const P x30 = io.pair(30);
        const P t43 = t41 + x30;
        const P t44 = c[4] * t41;
        const P t45 = x30 - t44;
        // complex block of 3, multiplier 2
        const Q t46 = Q(-c[5], c[5], -c[5], c[5]) * t1;
        const Q t47 = shuffled<1, 0, 3, 2>(t46);
        const Q t48 = t4 + t47;
        // complex block of 3, multiplier 2
        const P t49 = P(-c[5], c[5]) * t42;
        const P t50 = shuffled<1, 0>(t49);
        const P t51 = t45 + t50;
        const Q t52 = shuffled<0, 1, 6, 7>(t12, t39);
        const Q t53 = shuffled<2, 3, 4, 5>(t30, t21);
        // real block of 5, multiplier 2
        const Q t54 = t52 + t53;
        const Q t55 = shuffled<2, 3, 4, 5>(t21, t30);
        const Q t56 = shuffled<2, 3, 4, 5>(t12, t39);
        const Q t57 = t55 + t56;
        const Q t58 = t54 + t57;
        const P t59 = part<1>(t48);
        const Q t60 = joined(t59, t51);
        const Q t61 = t58 + t60;
        const Q t62 = c[0] * t54;
        const Q t63 = t60 - t62;
        const Q t64 = c[1] * t57;
        const Q t65 = t63 + t64;
        const Q t66 = c[1] * t54;
        const Q t67 = c[0] * t57;
        const Q t68 = t66 - t67;
        const Q t69 = t68 + t60;
        // complex block of 3, multiplier 2
        const Q t70 = t4 - t47;
        const Q t71 = shuffled<0, 1, 4, 5>(t7, t13);
        const Q t72 = shuffled<2, 3, 6, 7>(t25, t31);
        // real block of 5, multiplier 2
        const Q t73 = t71 + t72;
        const Q t74 = shuffled<2, 3, 6, 7>(t16, t22);
        const Q t75 = shuffled<2, 3, 6, 7>(t7, t13);
        const Q t76 = t74 + t75;
        const Q t77 = t73 + t76;
        const Q t78 = shuffled<2, 3, 6, 7>(t2, t70);
        const Q t79 = t77 + t78;
        const Q t80 = c[0] * t73;
        const Q t81 = t78 - t80;
        const Q t82 = c[1] * t76;
        const Q t83 = t81 + t82;
        const Q t84 = c[1] * t73;
        const Q t85 = c[0] * t76;
        const Q t86 = t84 - t85;
        const Q t87 = t86 + t78;
        // complex block of 3, multiplier 2
        const P t88 = t45 - t50;
        const Q t89 = shuffled<2, 3, 6, 7>(t34, t40);
        const Q t90 = shuffled<0, 1, 4, 5>(t16, t22);
        // real block of 5, multiplier 2
        const Q t91 = t89 + t90;
        const Q t92 = shuffled<0, 1, 4, 5>(t25, t31);
        const Q t93 = shuffled<0, 1, 4, 5>(t34, t40);
        const Q t94 = t92 + t93;
        const Q t95 = t91 + t94;
        const Q t96 = joined(t43, t88);
        const Q t97 = t95 + t96;
        const Q t98 = c[0] * t91;
        const Q t99 = t96 - t98;
        const Q t100 = c[1] * t94;
        const Q t101 = t99 + t100;
        const Q t102 = c[1] * t91;
        const Q t103 = c[0] * t94;
        const Q t104 = t102 - t103;
        const Q t105 = t104 + t96;
        // real block of 5, multiplier 2
        const Q t106 = t71 - t72;
        const Q t107 = t74 - t75;
        const Q t108 = c[2] * t106;
        const Q t109 = c[3] * t107;
        const Q t110 = t108 + t109;
        const Q t111 = c[3] * t106;
        const Q t112 = c[2] * t107;
        const Q t113 = t111 - t112;
        // real block of 5, multiplier 2
        const Q t114 = t89 - t90;
        const Q t115 = t92 - t93;
        const Q t116 = c[2] * t114;
        const Q t117 = c[3] * t115;
        const Q t118 = t116 + t117;
        const Q t119 = c[3] * t114;
        const Q t120 = c[2] * t115;
        const Q t121 = t119 - t120;
        // real block of 5, multiplier 2
        const Q t122 = t52 - t53;
        const Q t123 = t55 - t56;
        const Q t124 = c[2] * t122;
        const Q t125 = c[3] * t123;
        const Q t126 = t124 + t125;
        const Q t127 = c[3] * t122;
        const Q t128 = c[2] * t123;
        const Q t129 = t127 - t128;
        // real block of 2
        const Q t130 = t79 + t97;
        const Q t131 = t79 - t97;
        const Q t132 = shuffled<0, 1, 4, 5>(t2, t70);
        // complex block of 11, multiplier 3
        const Q t133 = c[14] * t130;
        const Q t134 = t132 - t133;
        const Q t135 = shuffled<1, 0, 3, 2>(t131);
        const Q t136 = Q(c[15], -c[15], c[15], -c[15]) * t135;
        // spectrum block of 2
        const Q t137 = t134 + t136;
        const Q t138 = t134 - t136;
        // complex block of 2
        const Q t139 = t83 + t101;
        const Q t140 = t110 + t118;
        const Q t141 = t83 - t101;
        const Q t142 = t118 - t110;
        // complex block of 11, multiplier 3
        const Q t143 = c[6] * t139;
        const Q t144 = c[7] * t140;
        const Q t145 = t143 + t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t142);
        const Q t147 = Q(-c[8], c[8], -c[8], c[8]) * t146;
        const Q t148 = shuffled<1, 0, 3, 2>(t141);
        const Q t149 = Q(c[9], -c[9], c[9], -c[9]) * t148;
        const Q t150 = t147 + t149;
        // complex block of 2
        const Q t151 = t150 - t145;
        const Q t152 = t145 + t150;
        // complex block of 11, multiplier 3
        const Q t153 = c[6] * t140;
        const Q t154 = c[7] * t139;
        const Q t155 = t153 - t154;
        const Q t156 = c[9] * t146;
        const Q t157 = c[8] * t148;
        const Q t158 = t156 + t157;
        const Q t159 = flipped<0, 1, 0, 1>(t158);
        // complex block of 2
        const Q t160 = t155 + t159;
        const Q t161 = t155 - t159;
        // complex block of 2
        const Q t162 = t87 + t105;
        const Q t163 = t113 + t121;
        const Q t164 = t87 - t105;
        const Q t165 = t113 - t121;
        const Q t166 = shuffled<1, 0, 3, 2>(t164);
        // complex block of 11, multiplier 3
        const Q t167 = c[10] * t166;
        const Q t168 = shuffled<1, 0, 3, 2>(t165);
        const Q t169 = c[11] * t168;
        const Q t170 = t167 + t169;
        const Q t171 = c[12] * t162;
        const Q t172 = c[13] * t163;
        const Q t173 = t171 + t172;
        const Q t174 = flipped<0, 1, 0, 1>(t170);
        // complex block of 2
        const Q t175 = t173 + t174;
        const Q t176 = t173 - t174;
        // complex block of 11, multiplier 3
        const Q t177 = Q(-c[10], c[10], -c[10], c[10]) * t168;
        const Q t178 = Q(c[11], -c[11], c[11], -c[11]) * t166;
        const Q t179 = t177 + t178;
        const Q t180 = c[12] * t163;
        const Q t181 = c[13] * t162;
        const Q t182 = t180 - t181;
        // complex block of 2
        const Q t183 = t182 - t179;
        const Q t184 = t182 + t179;
        // complex block of 11, multiplier 3
        const Q t185 = t132 + t130;
        io.pairs(0, 11, t185);
        // spectrum block of 5, multiplier 2
        const Q t186 = t151 + t175;
        const Q t187 = t186 + t137;
        io.pairs(3, 14, t187);
        const Q t188 = c[1] * t151;
        const Q t189 = c[0] * t175;
        const Q t190 = t188 - t189;
        const Q t191 = c[3] * t160;
        const Q t192 = c[2] * t183;
        const Q t193 = t191 + t192;
        const Q t194 = t190 + t137;
        const Q t195 = t194 - t193;
        io.pairs(15, 26, t195);
        const Q t196 = t194 + t193;
        io.pairs(27, 5, t196);
        const Q t197 = c[0] * t151;
        const Q t198 = t137 - t197;
        const Q t199 = c[2] * t160;
        const Q t200 = c[3] * t183;
        const Q t201 = t199 - t200;
        const Q t202 = c[1] * t175;
        const Q t203 = t198 + t202;
        const Q t204 = t203 - t201;
        io.pairs(9, 20, t204);
        const Q t205 = t203 + t201;
        io.pairs(12, 23, t205);
        // spectrum block of 5, multiplier 2
        const Q t206 = t176 - t152;
        const Q t207 = t206 + t138;
        io.pairs(30, 8, t207);
        const Q t208 = c[1] * t152;
        const Q t209 = t138 - t208;
        const Q t210 = c[3] * t161;
        const Q t211 = c[2] * t184;
        const Q t212 = t210 + t211;
        const Q t213 = c[0] * t176;
        const Q t214 = t209 - t213;
        const Q t215 = t214 - t212;
        io.pairs(18, 29, t215);
        const Q t216 = t214 + t212;
        io.pairs(6, 17, t216);
        const Q t217 = c[0] * t152;
        const Q t218 = c[1] * t176;
        const Q t219 = t217 + t218;
        const Q t220 = c[2] * t161;
        const Q t221 = c[3] * t184;
        const Q t222 = t220 - t221;
        const Q t223 = t219 + t138;
        const Q t224 = t223 - t222;
        io.pairs(24, 2, t224);
        const Q t225 = t223 + t222;
        io.pairs(21, 32, t225);
        const P t226 = part<0>(t61);
        const P t227 = part<1>(t61);
        // real block of 2
        const P t228 = t226 + t227;
        const P t229 = t226 - t227;
        const P t230 = part<0>(t48);
        // complex block of 11, multiplier 3
        const P t231 = c[14] * t228;
        const P t232 = t230 - t231;
        const P t233 = shuffled<1, 0>(t229);
        const P t234 = P(c[15], -c[15]) * t233;
        // spectrum block of 2
        const P t235 = t232 + t234;
        const P t236 = t232 - t234;
        const Q t237 = shuffled<0, 1, 4, 5>(t65, t69);
        const Q t238 = shuffled<2, 3, 6, 7>(t65, t69);
        // complex block of 2
        const Q t239 = t237 + t238;
        const Q t240 = shuffled<0, 1, 4, 5>(t126, t129);
        const Q t241 = shuffled<2, 3, 6, 7>(t126, t129);
        const Q t242 = t240 + t241;
        const Q t243 = t237 - t238;
        const Q t244 = shuffled<0, 1, 6, 7>(t241, t240);
        const Q t245 = shuffled<0, 1, 6, 7>(t240, t241);
        const Q t246 = t244 - t245;
        const Q t247 = shuffled<1, 0, 3, 2>(t243);
        const Q t248 = shuffled<0, 1, 6, 7>(t239, t247);
        // complex block of 11, multiplier 3
        const Q t249 = Q(c[6], c[6], c[10], c[10]) * t248;
        const Q t250 = shuffled<1, 0, 3, 2>(t246);
        const Q t251 = shuffled<0, 1, 6, 7>(t242, t250);
        const Q t252 = Q(c[7], c[7], c[11], c[11]) * t251;
        const Q t253 = t249 + t252;
        const Q t254 = shuffled<0, 1, 6, 7>(t247, t239);
        const Q t255 = Q(c[9], -c[9], c[12], c[12]) * t254;
        const Q t256 = shuffled<0, 1, 6, 7>(t250, t242);
        const Q t257 = Q(-c[8], c[8], c[13], c[13]) * t256;
        const Q t258 = t255 + t257;
        const Q t259 = flipped<0, 0, 1, 0>(t253);
        // complex block of 2
        const Q t260 = t258 - t259;
        const Q t261 = t258 + t259;
        const Q t262 = shuffled<0, 1, 6, 7>(t254, t251);
        // complex block of 11, multiplier 3
        const Q t263 = Q(c[8], c[8], -c[10], c[10]) * t262;
        const Q t264 = shuffled<0, 1, 6, 7>(t256, t248);
        const Q t265 = Q(c[9], c[9], c[11], -c[11]) * t264;
        const Q t266 = t263 + t265;
        const Q t267 = Q(c[6], c[6], c[12], c[12]) * t242;
        const Q t268 = Q(c[7], c[7], c[13], c[13]) * t239;
        const Q t269 = t267 - t268;
        const Q t270 = flipped<1, 0, 0, 0>(t266);
        // complex block of 2
        const Q t271 = t269 - t270;
        const Q t272 = t269 + t270;
        // complex block of 11, multiplier 3
        const P t273 = t230 + t228;
        io.pair(22, t273);
        const Q t274 = shuffled<0, 1, 4, 5>(t260, t261);
        // spectrum block of 5, multiplier 2
        const Q t275 = c[1] * t274;
        const P t276 = part<0>(t275);
        const P t277 = part<1>(t260);
        const P t278 = c[0] * t277;
        const P t279 = t276 - t278;
        const P t280 = part<1>(t275);
        // spectrum block of 5, multiplier 2
        const P t281 = t236 - t280;
        const Q t282 = shuffled<0, 1, 4, 5>(t271, t272);
        // spectrum block of 5, multiplier 2
        const Q t283 = c[3] * t282;
        const Q t284 = shuffled<2, 3, 6, 7>(t271, t272);
        const Q t285 = c[2] * t284;
        const Q t286 = t283 + t285;
        const Q t287 = joined(t279, t281);
        const P t288 = part<1>(t261);
        // spectrum block of 5, multiplier 2
        const P t289 = -c[0] * t288;
        const Q t290 = joined(t235, t289);
        // spectrum block of 5, multiplier 2
        const Q t291 = t287 + t290;
        const Q t292 = t291 - t286;
        io.pairs(4, 7, t292);
        const Q t293 = t291 + t286;
        io.pairs(16, 28, t293);
        const Q t294 = c[0] * t274;
        const P t295 = part<0>(t294);
        const P t296 = t235 - t295;
        const P t297 = part<1>(t294);
        // spectrum block of 5, multiplier 2
        const P t298 = c[1] * t288;
        const P t299 = t297 + t298;
        // spectrum block of 5, multiplier 2
        const Q t300 = c[2] * t282;
        const Q t301 = c[3] * t284;
        const Q t302 = t300 - t301;
        const Q t303 = joined(t296, t299);
        const P t304 = c[1] * t277;
        const Q t305 = joined(t304, t236);
        const Q t306 = t303 + t305;
        const Q t307 = t306 - t302;
        io.pairs(31, 13, t307);
        const Q t308 = t306 + t302;
        io.pairs(1, 10, t308);
        const Q t309 = shuffled<2, 3, 6, 7>(t260, t261);
        const Q t310 = flipped<0, 0, 1, 1>(t274);
        const Q t311 = t309 + t310;
        const Q t312 = shuffled<0, 1, 6, 7>(t290, t305);
        const Q t313 = t311 + t312;
        io.pairs(25, 19, t313);
    }
};

}  // namespace zulg
