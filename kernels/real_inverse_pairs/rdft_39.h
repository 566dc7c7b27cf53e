// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 39.
// Inverse DFT to 39 real points, prime-factor 13, 3; two lanes to a register.
// 92 sums, 67 differences, 92 products of registers, which do the 527 steps of the graph, those with
// `scale` included; 59 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<39> {
    static constexpr int steps = 527;  // with `scale`
    static constexpr double inverseRoot = 0.16012815380508713;  // 1/sqrt(39), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        2.0,  // c[1]: 2
        0.8660254037844386,  // c[2]: -sin 2 pi 2/3
        0.5279915321544383,  // c[3]: P[1] of 13
        0.2869425954512852,  // c[4]: -Q[1] of 13
        0.1741386011521359,  // c[5]: -Q[3] of 13
        0.5751407294740031,  // c[6]: -P[3] of 13
        0.5316276774946329,  // c[7]: -Q[5] of 13
        0.280148395734785,  // c[8]: -P[5] of 13
        0.08333333333333333,  // c[9]: 1/12
        0.42763404682657274,  // c[10]: P[4] of 13
        0.29376443202296976,  // c[11]: Q[2] of 13
        0.42218506973345193,  // c[12]: -Q[4] of 13
        0.5242266395265821,  // c[13]: -P[2] of 13
        0.3004626062886658,  // c[14]: beta of 13
        0.37034194807495624,  // c[15]: -sin 2 pi 2/3 times P[4] of 13
        0.45399358717056765,  // c[16]: -sin 2 pi 2/3 times -P[2] of 13
        0.36562299548767413,  // c[17]: -sin 2 pi 2/3 times -Q[4] of 13
        0.25440746086019866,  // c[18]: -sin 2 pi 2/3 times Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x12 = io.pair(12);
        // doubled bins
        const P t0 = c[1] * x12;
        const P x18 = io.pair(18);
        const P t1 = c[1] * x18;
        const P t2 = shuffled<0, 2>(t0, t1);
        const P x9 = io.pair(9);
        const P t3 = c[1] * x9;
        const P x6 = io.pair(6);
        const P t4 = c[1] * x6;
        const P t5 = shuffled<0, 2>(t3, t4);
        // real block of 3, multiplier 2
        const P t6 = t2 + t5;
        const P t7 = t2 - t5;
        const P x3 = io.pair(3);
        // doubled bins
        const P t8 = c[1] * x3;
        const P x15 = io.pair(15);
        const P t9 = c[1] * x15;
        const P t10 = shuffled<0, 2>(t8, t9);
        // real block of 3, multiplier 2
        const P t11 = t6 + t10;
        const P t12 = c[0] * t6;
        const P t13 = t10 - t12;
        const V t14 = part<0>(t11);
        const V t15 = part<1>(t11);
        // real block of 2
        const V t16 = t14 + t15;
        const V t17 = t14 - t15;
        // real block of 3, multiplier 2
        const P t18 = c[2] * t7;
        const P t19 = shuffled<0, 2>(t13, t18);
        const P t20 = shuffled<1, 3>(t13, t18);
        // complex block of 2
        const P t21 = t19 + t20;
        const P t22 = t19 - t20;
        const P t23 = shuffled<1, 3>(t4, t3);
        // skew block of 6
        const P t24 = c[2] * t23;
        const P t25 = shuffled<1, 0>(t23);
        const P t26 = P(-c[0], c[0]) * t25;
        const P t27 = t24 + t26;
        const P t28 = shuffled<1, 3>(t0, t1);
        const P t29 = c[0] * t28;
        const P t30 = shuffled<1, 0>(t28);
        const P t31 = P(-c[2], c[2]) * t30;
        const P t32 = t29 + t31;
        // complex block of 3
        const P t33 = t27 + t32;
        const P t34 = shuffled<0, 3>(t27, t32);
        const P t35 = shuffled<0, 3>(t32, t27);
        const P t36 = t34 - t35;
        const P t37 = shuffled<1, 3>(t8, t9);
        const P t38 = flipped<0, 1>(t33);
        const P t39 = t37 + t38;
        const P t40 = P(-c[0], c[0]) * t33;
        const P t41 = t40 + t37;
        const P t42 = P(-c[2], c[2]) * t36;
        const P t43 = shuffled<1, 0>(t42);
        const P t44 = t41 + t43;
        const P t45 = t41 - t43;
        const V x0r = io.re(0);
        // spectrum block of 13, multiplier 3
        const V t46 = c[9] * t16;
        const V t47 = x0r - t46;
        const P t48 = shuffled<1, 0>(t39);
        const P t49 = c[3] * t48;
        const P t50 = P(c[4], -c[4]) * t39;
        const P t51 = t49 + t50;
        const P t52 = c[5] * t45;
        const P t53 = shuffled<1, 0>(t45);
        const P t54 = P(c[6], -c[6]) * t53;
        const P t55 = t52 + t54;
        const P t56 = shuffled<0, 3>(t21, t22);
        const P t57 = P(c[10], c[11]) * t56;
        const P t58 = shuffled<1, 2>(t21, t22);
        const P t59 = P(c[12], -c[13]) * t58;
        const P t60 = t57 + t59;
        const P t61 = P(-c[7], c[7]) * t44;
        const P t62 = shuffled<1, 0>(t44);
        const P t63 = c[8] * t62;
        const P t64 = t61 + t63;
        // complex block of 3
        const P t65 = t64 - t51;
        const P t66 = t64 + t51;
        const P t67 = flipped<1, 0>(t55);
        const P t68 = t65 + t67;
        const P t69 = P(c[0], -c[0]) * t65;
        const P t70 = t55 + t69;
        const P t71 = c[2] * t66;
        const P t72 = shuffled<1, 0>(t71);
        const P t73 = t70 + t72;
        const P t74 = shuffled<0, 3>(t72, t70);
        const P t75 = shuffled<0, 3>(t70, t72);
        const P t76 = t74 - t75;
        // spectrum block of 13, multiplier 3
        const V t77 = c[14] * t17;
        const P t78 = joined(t47, t77);
        // spectrum block of 3
        const P t79 = t60 + t78;
        const P t80 = c[0] * t60;
        const P t81 = t78 - t80;
        const P t82 = shuffled<0, 3>(t58, t56);
        const P t83 = P(c[15], c[16]) * t82;
        const P t84 = shuffled<0, 3>(t56, t58);
        const P t85 = P(-c[17], c[18]) * t84;
        const P t86 = t83 + t85;
        const P t87 = flipped<1, 0>(t86);
        const P t88 = t81 + t87;
        const P t89 = t81 - t87;
        const P t90 = shuffled<0, 2>(t79, t88);
        const P t91 = shuffled<1, 3>(t79, t88);
        // spectrum block of 2
        const P t92 = t90 + t91;
        const P t93 = t90 - t91;
        const P t94 = shuffled<0, 2>(t68, t73);
        const P t95 = flipped<0, 1>(t94);
        // spectrum block of 2
        const P t96 = t92 + t95;
        const P t97 = t92 - t95;
        const P t98 = shuffled<1, 3>(t68, t73);
        // spectrum block of 2
        const P t99 = t93 + t98;
        const P t100 = t93 - t98;
        const V t101 = part<0>(t89);
        const V t102 = part<1>(t89);
        // spectrum block of 2
        const V t103 = t101 + t102;
        const V t104 = t101 - t102;
        const P t105 = joined(t103, t104);
        // spectrum block of 2
        const P t106 = t105 + t76;
        const P t107 = t105 - t76;
        // spectrum block of 13, multiplier 3
        const V t108 = x0r + t16;
        const P x16 = io.pair(16);
        // doubled bins
        const P t109 = c[1] * x16;
        const P x10 = io.pair(10);
        const P t110 = c[1] * x10;
        // real block of 2
        const P t111 = t109 + t110;
        const P t112 = t109 - t110;
        const P x2 = io.pair(2);
        // doubled bins
        const P t113 = c[1] * x2;
        const P x11 = io.pair(11);
        const P t114 = c[1] * x11;
        // real block of 2
        const P t115 = t113 + t114;
        const P t116 = shuffled<0, 3>(t113, t114);
        const P t117 = shuffled<0, 3>(t114, t113);
        const P t118 = t116 - t117;
        const P t119 = flipped<0, 1>(t115);
        // real block of 2
        const P t120 = t111 + t119;
        const P t121 = t111 - t119;
        const P x4 = io.pair(4);
        // doubled bins
        const P t122 = c[1] * x4;
        const P x17 = io.pair(17);
        const P t123 = P(c[1], -c[1]) * x17;
        // real block of 2
        const P t124 = t122 + t123;
        const P t125 = flipped<0, 1>(t123);
        const P t126 = flipped<1, 0>(t122);
        const P t127 = t125 + t126;
        const P x7 = io.pair(7);
        // doubled bins
        const P t128 = c[1] * x7;
        const P x19 = io.pair(19);
        const P t129 = c[1] * x19;
        // real block of 2
        const P t130 = t128 + t129;
        const P t131 = t128 - t129;
        // real block of 2
        const P t132 = t124 + t130;
        const P t133 = t124 - t130;
        const P x1 = io.pair(1);
        // doubled bins
        const P t134 = c[1] * x1;
        const P x14 = io.pair(14);
        const P t135 = P(c[1], -c[1]) * x14;
        // real block of 2
        const P t136 = t134 + t135;
        const P t137 = t134 - t135;
        const P x5 = io.pair(5);
        // doubled bins
        const P t138 = c[1] * x5;
        const P x8 = io.pair(8);
        const P t139 = c[1] * x8;
        // real block of 2
        const P t140 = t138 + t139;
        const P t141 = shuffled<0, 3>(t138, t139);
        const P t142 = shuffled<0, 3>(t139, t138);
        const P t143 = t141 - t142;
        const P t144 = flipped<0, 1>(t140);
        // real block of 2
        const P t145 = t136 + t144;
        const P t146 = t136 - t144;
        // real block of 3
        const P t147 = t132 + t145;
        const P t148 = t132 - t145;
        const P t149 = t147 + t120;
        const P t150 = c[0] * t147;
        const P t151 = t120 - t150;
        const P t152 = flipped<0, 1>(t127);
        // complex block of 3
        const P t153 = t137 + t152;
        const P t154 = t131 + t143;
        const P t155 = flipped<1, 0>(t137);
        const P t156 = t127 + t155;
        const P t157 = t131 - t143;
        const P t158 = t153 + t112;
        const P t159 = t154 + t118;
        const P t160 = c[0] * t153;
        const P t161 = t112 - t160;
        const P t162 = c[0] * t154;
        const P t163 = t118 - t162;
        const P t164 = c[2] * t157;
        const P t165 = t161 + t164;
        const P t166 = P(-c[2], c[2]) * t156;
        const P t167 = t163 + t166;
        const P t168 = t161 - t164;
        const P t169 = t163 - t166;
        // real block of 3
        const P t170 = t133 + t146;
        const P t171 = t133 - t146;
        const P t172 = t170 + t121;
        const P t173 = c[0] * t170;
        const P t174 = t121 - t173;
        const P x13 = io.pair(13);
        // doubled bins
        const P t175 = c[1] * x13;
        // complex block of 13, multiplier 3
        const P t176 = t175 + t149;
        const P t177 = c[9] * t149;
        const P t178 = t175 - t177;
        const P t179 = shuffled<1, 0>(t168);
        const P t180 = P(-c[4], c[4]) * t179;
        const P t181 = shuffled<1, 0>(t169);
        const P t182 = P(c[3], -c[3]) * t181;
        const P t183 = t180 + t182;
        const P t184 = c[4] * t181;
        const P t185 = c[3] * t179;
        const P t186 = t184 + t185;
        const P t187 = c[13] * t174;
        // real block of 3
        const P t188 = c[2] * t171;
        // complex block of 13, multiplier 3
        const P t189 = c[11] * t188;
        const P t190 = t187 + t189;
        const P t191 = shuffled<1, 0>(t158);
        const P t192 = P(-c[5], c[5]) * t191;
        const P t193 = shuffled<1, 0>(t159);
        const P t194 = P(c[6], -c[6]) * t193;
        const P t195 = t192 + t194;
        const P t196 = c[5] * t193;
        const P t197 = c[6] * t191;
        const P t198 = t196 + t197;
        const P t199 = c[10] * t151;
        // real block of 3
        const P t200 = c[2] * t148;
        // complex block of 13, multiplier 3
        const P t201 = c[12] * t200;
        const P t202 = t199 - t201;
        const P t203 = shuffled<1, 0>(t165);
        const P t204 = c[7] * t203;
        const P t205 = shuffled<1, 0>(t167);
        const P t206 = c[8] * t205;
        const P t207 = t204 + t206;
        const P t208 = P(-c[8], c[8]) * t203;
        const P t209 = P(c[7], -c[7]) * t205;
        const P t210 = t208 + t209;
        // spectrum block of 3
        const P t211 = t202 + t178;
        const P t212 = c[0] * t202;
        const P t213 = t178 - t212;
        const P t214 = c[15] * t200;
        const P t215 = c[17] * t151;
        const P t216 = t214 + t215;
        const P t217 = t213 + t216;
        const P t218 = t213 - t216;
        const P t219 = flipped<0, 1>(t210);
        // complex block of 3
        const P t220 = t186 + t219;
        const P t221 = flipped<1, 0>(t207);
        const P t222 = t221 + t183;
        const P t223 = t186 - t219;
        const P t224 = flipped<0, 1>(t183);
        const P t225 = t207 + t224;
        const P t226 = t220 + t198;
        const P t227 = t222 + t195;
        const P t228 = flipped<1, 0>(t198);
        const P t229 = P(c[0], -c[0]) * t220;
        const P t230 = t228 + t229;
        const P t231 = c[0] * t222;
        const P t232 = t195 - t231;
        const P t233 = P(-c[2], c[2]) * t225;
        const P t234 = t230 + t233;
        const P t235 = P(-c[2], c[2]) * t223;
        const P t236 = t232 + t235;
        const P t237 = t230 - t233;
        const P t238 = t232 - t235;
        // complex block of 13, multiplier 3
        const P t239 = c[14] * t172;
        // spectrum block of 3
        const P t240 = t239 - t190;
        const P t241 = c[0] * t190;
        const P t242 = t241 + t239;
        const P t243 = c[18] * t174;
        const P t244 = c[16] * t188;
        const P t245 = t243 - t244;
        const P t246 = t242 + t245;
        const P t247 = t242 - t245;
        // spectrum block of 2
        const P t248 = t211 + t240;
        const P t249 = t211 - t240;
        // spectrum block of 2
        const P t250 = t248 + t227;
        const P t251 = t248 - t227;
        const P t252 = flipped<1, 0>(t226);
        // spectrum block of 2
        const P t253 = t249 + t252;
        const P t254 = t249 - t252;
        // spectrum block of 2
        const P t255 = t217 + t246;
        const P t256 = t217 - t246;
        // spectrum block of 2
        const P t257 = t255 + t236;
        const P t258 = t255 - t236;
        // spectrum block of 2
        const P t259 = t256 + t234;
        const P t260 = t256 - t234;
        // spectrum block of 2
        const P t261 = t218 + t247;
        const P t262 = t218 - t247;
        // spectrum block of 2
        const P t263 = t261 + t238;
        const P t264 = t261 - t238;
        // spectrum block of 2
        const P t265 = t262 + t237;
        const P t266 = t262 - t237;
        const P t267 = shuffled<0, 2>(t176, t250);
        const V t268 = part<0>(t96);
        const P t269 = joined(t108, t268);
        // spectrum block of 3
        const P t270 = t267 + t269;
        io.out(0, 3, t270);
        const P t271 = c[0] * t267;
        const P t272 = t269 - t271;
        const P t273 = shuffled<1, 3>(t176, t250);
        const P t274 = c[2] * t273;
        const P t275 = t272 - t274;
        io.out(13, 16, t275);
        const P t276 = t272 + t274;
        io.out(26, 29, t276);
        const P t277 = shuffled<0, 2>(t265, t263);
        const P t278 = shuffled<1, 0>(t106);
        // spectrum block of 3
        const P t279 = t277 + t278;
        io.out(6, 9, t279);
        const P t280 = c[0] * t277;
        const P t281 = t278 - t280;
        const P t282 = shuffled<1, 3>(t265, t263);
        const P t283 = c[2] * t282;
        const P t284 = t281 - t283;
        io.out(19, 22, t284);
        const P t285 = t281 + t283;
        io.out(32, 35, t285);
        const P t286 = shuffled<0, 2>(t258, t253);
        const P t287 = shuffled<1, 2>(t97, t99);
        // spectrum block of 3
        const P t288 = t286 + t287;
        io.out(12, 15, t288);
        const P t289 = c[0] * t286;
        const P t290 = t287 - t289;
        const P t291 = shuffled<1, 3>(t258, t253);
        const P t292 = c[2] * t291;
        const P t293 = t290 - t292;
        io.out(25, 28, t293);
        const P t294 = t290 + t292;
        io.out(38, 2, t294);
        const P t295 = shuffled<0, 2>(t259, t260);
        const P t296 = shuffled<1, 3>(t99, t100);
        // spectrum block of 3
        const P t297 = t295 + t296;
        io.out(18, 21, t297);
        const P t298 = c[0] * t295;
        const P t299 = t296 - t298;
        const P t300 = shuffled<1, 3>(t259, t260);
        const P t301 = c[2] * t300;
        const P t302 = t299 - t301;
        io.out(31, 34, t302);
        const P t303 = t299 + t301;
        io.out(5, 8, t303);
        const P t304 = shuffled<0, 2>(t254, t257);
        const P t305 = shuffled<0, 3>(t100, t96);
        // spectrum block of 3
        const P t306 = t304 + t305;
        io.out(24, 27, t306);
        const P t307 = c[0] * t304;
        const P t308 = t305 - t307;
        const P t309 = shuffled<1, 3>(t254, t257);
        const P t310 = c[2] * t309;
        const P t311 = t308 - t310;
        io.out(37, 1, t311);
        const P t312 = t308 + t310;
        io.out(11, 14, t312);
        const P t313 = shuffled<0, 2>(t264, t266);
        // spectrum block of 3
        const P t314 = t313 + t107;
        io.out(30, 33, t314);
        const P t315 = c[0] * t313;
        const P t316 = t107 - t315;
        const P t317 = shuffled<1, 3>(t264, t266);
        const P t318 = c[2] * t317;
        const P t319 = t316 - t318;
        io.out(4, 7, t319);
        const P t320 = t316 + t318;
        io.out(17, 20, t320);
        const V t321 = part<0>(t251);
        const V t322 = part<0>(t97);
        // spectrum block of 3
        const V t323 = t321 + t322;
        io.out(36, t323);
        const V t324 = c[0] * t321;
        const V t325 = t322 - t324;
        const V t326 = part<1>(t251);
        const V t327 = c[2] * t326;
        const V t328 = t325 - t327;
        io.out(10, t328);
        const V t329 = t325 + t327;
        io.out(23, t329);
    }
};

}  // namespace zulg
