// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 60.
// Inverse DFT to 60 real points, prime-factor 4, 3, 5; two lanes to a register.
// 104 sums, 84 differences, 97 products of registers, which do the 628 steps of the graph, those with
// `scale` included; 36 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<60> {
    static constexpr int steps = 628;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.5,  // c[5]: -cos 2 pi 1/3
        0.8660254037844386,  // c[6]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x30r = io.re(30);
        // spectrum block of 2
        const V t0 = x0r + x30r;
        const V t1 = x0r - x30r;
        const P t2 = joined(t0, t1);
        const P x15 = io.pair(15);
        // doubled bins
        const P t3 = c[0] * x15;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x4 = io.pair(4);
        // doubled bins
        const P t6 = c[0] * x4;
        const P x26 = io.pair(26);
        const P t7 = P(c[0], -c[0]) * x26;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x19 = io.pair(19);
        // doubled bins
        const P t10 = c[0] * x19;
        const P x11 = io.pair(11);
        const P t11 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        // complex block of 2
        const P t14 = t8 + t12;
        const P t15 = t8 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<0, 1>(t16);
        // complex block of 2
        const P t18 = t9 + t17;
        const P t19 = t9 - t17;
        const P x8 = io.pair(8);
        // doubled bins
        const P t20 = c[0] * x8;
        const P x22 = io.pair(22);
        const P t21 = P(c[0], -c[0]) * x22;
        // complex block of 2
        const P t22 = t20 + t21;
        const P t23 = t20 - t21;
        const P x23 = io.pair(23);
        // doubled bins
        const P t24 = c[0] * x23;
        const P x7 = io.pair(7);
        const P t25 = P(c[0], -c[0]) * x7;
        // complex block of 2
        const P t26 = t24 + t25;
        const P t27 = t24 - t25;
        // complex block of 2
        const P t28 = t22 + t26;
        const P t29 = t22 - t26;
        const P t30 = shuffled<1, 0>(t27);
        const P t31 = flipped<0, 1>(t30);
        // complex block of 2
        const P t32 = t23 + t31;
        const P t33 = t23 - t31;
        const P x12 = io.pair(12);
        // doubled bins
        const P t34 = c[0] * x12;
        const P x18 = io.pair(18);
        const P t35 = P(c[0], -c[0]) * x18;
        // complex block of 2
        const P t36 = t34 + t35;
        const P t37 = t34 - t35;
        const P x27 = io.pair(27);
        // doubled bins
        const P t38 = c[0] * x27;
        const P x3 = io.pair(3);
        const P t39 = P(c[0], -c[0]) * x3;
        // complex block of 2
        const P t40 = t38 + t39;
        const P t41 = t38 - t39;
        // complex block of 2
        const P t42 = t36 + t40;
        const P t43 = t36 - t40;
        const P t44 = shuffled<1, 0>(t41);
        const P t45 = flipped<0, 1>(t44);
        // complex block of 2
        const P t46 = t37 + t45;
        const P t47 = t37 - t45;
        const P x16 = io.pair(16);
        // doubled bins
        const P t48 = c[0] * x16;
        const P x14 = io.pair(14);
        const P t49 = P(c[0], -c[0]) * x14;
        // complex block of 2
        const P t50 = t48 + t49;
        const P t51 = t48 - t49;
        const P x1 = io.pair(1);
        // doubled bins
        const P t52 = c[0] * x1;
        const P x29 = io.pair(29);
        const P t53 = P(c[0], -c[0]) * x29;
        // complex block of 2
        const P t54 = t52 + t53;
        const P t55 = flipped<0, 1>(t53);
        const P t56 = flipped<1, 0>(t52);
        const P t57 = t55 + t56;
        // complex block of 2
        const P t58 = t50 + t54;
        const P t59 = t50 - t54;
        const P t60 = shuffled<1, 0>(t57);
        // complex block of 2
        const P t61 = t51 - t60;
        const P t62 = t51 + t60;
        const P x20 = io.pair(20);
        // doubled bins
        const P t63 = c[0] * x20;
        const P x10 = io.pair(10);
        const P t64 = P(c[0], -c[0]) * x10;
        // complex block of 2
        const P t65 = t63 + t64;
        const P t66 = t63 - t64;
        const P x5 = io.pair(5);
        // doubled bins
        const P t67 = c[0] * x5;
        const P x25 = io.pair(25);
        const P t68 = P(c[0], -c[0]) * x25;
        // complex block of 2
        const P t69 = t67 + t68;
        const P t70 = flipped<0, 1>(t68);
        const P t71 = flipped<1, 0>(t67);
        const P t72 = t70 + t71;
        // complex block of 2
        const P t73 = t65 + t69;
        const P t74 = t65 - t69;
        const P t75 = shuffled<1, 0>(t72);
        // complex block of 2
        const P t76 = t66 - t75;
        const P t77 = t66 + t75;
        const P x24 = io.pair(24);
        // doubled bins
        const P t78 = c[0] * x24;
        const P x6 = io.pair(6);
        const P t79 = P(c[0], -c[0]) * x6;
        // complex block of 2
        const P t80 = t78 + t79;
        const P t81 = t78 - t79;
        const P x9 = io.pair(9);
        // doubled bins
        const P t82 = c[0] * x9;
        const P x21 = io.pair(21);
        const P t83 = P(c[0], -c[0]) * x21;
        // complex block of 2
        const P t84 = t82 + t83;
        const P t85 = flipped<0, 1>(t83);
        const P t86 = flipped<1, 0>(t82);
        const P t87 = t85 + t86;
        // complex block of 2
        const P t88 = t80 + t84;
        const P t89 = t80 - t84;
        const P t90 = shuffled<1, 0>(t87);
        // complex block of 2
        const P t91 = t81 - t90;
        const P t92 = t81 + t90;
        const P x28 = io.pair(28);
        // doubled bins
        const P t93 = c[0] * x28;
        const P x2 = io.pair(2);
        const P t94 = P(c[0], -c[0]) * x2;
        // complex block of 2
        const P t95 = t93 + t94;
        const P t96 = t93 - t94;
        const P x13 = io.pair(13);
        // doubled bins
        const P t97 = c[0] * x13;
        const P x17 = io.pair(17);
        const P t98 = P(c[0], -c[0]) * x17;
        // complex block of 2
        const P t99 = t97 + t98;
        const P t100 = flipped<0, 1>(t98);
        const P t101 = flipped<1, 0>(t97);
        const P t102 = t100 + t101;
        // complex block of 2
        const P t103 = t95 + t99;
        const P t104 = t95 - t99;
        const P t105 = shuffled<1, 0>(t102);
        // complex block of 2
        const P t106 = t96 - t105;
        const P t107 = t96 + t105;
        const P t108 = shuffled<0, 2>(t73, t76);
        // spectrum block of 3, multiplier 2
        const P t109 = t108 + t4;
        const P t110 = c[5] * t108;
        const P t111 = t4 - t110;
        const P t112 = shuffled<1, 3>(t73, t76);
        const P t113 = c[6] * t112;
        const P t114 = t111 - t113;
        const P t115 = t111 + t113;
        const P t116 = shuffled<1, 3>(t103, t106);
        const P t117 = shuffled<1, 3>(t28, t32);
        // complex block of 3, multiplier 2
        const P t118 = t116 + t117;
        const P t119 = shuffled<0, 2>(t103, t106);
        const P t120 = shuffled<0, 2>(t28, t32);
        const P t121 = t119 + t120;
        const P t122 = t117 - t116;
        const P t123 = t119 - t120;
        const P t124 = shuffled<1, 3>(t42, t46);
        const P t125 = t124 - t118;
        const P t126 = shuffled<0, 2>(t42, t46);
        const P t127 = t121 + t126;
        const P t128 = c[5] * t118;
        const P t129 = t128 + t124;
        const P t130 = c[5] * t121;
        const P t131 = t126 - t130;
        const P t132 = c[6] * t123;
        const P t133 = t129 + t132;
        const P t134 = c[6] * t122;
        const P t135 = t131 - t134;
        const P t136 = t129 - t132;
        const P t137 = t131 + t134;
        const P t138 = shuffled<1, 3>(t14, t18);
        const P t139 = shuffled<1, 3>(t58, t61);
        // complex block of 3, multiplier 2
        const P t140 = t138 - t139;
        const P t141 = shuffled<0, 2>(t58, t61);
        const P t142 = shuffled<0, 2>(t14, t18);
        const P t143 = t141 + t142;
        const P t144 = t139 + t138;
        const P t145 = t141 - t142;
        const P t146 = shuffled<1, 3>(t88, t91);
        const P t147 = t140 + t146;
        const P t148 = shuffled<0, 2>(t88, t91);
        const P t149 = t143 + t148;
        const P t150 = c[5] * t140;
        const P t151 = t146 - t150;
        const P t152 = c[5] * t143;
        const P t153 = t148 - t152;
        const P t154 = c[6] * t145;
        const P t155 = t151 + t154;
        const P t156 = c[6] * t144;
        const P t157 = t153 + t156;
        const P t158 = t151 - t154;
        const P t159 = t153 - t156;
        // spectrum block of 5, multiplier 2
        const P t160 = t127 + t149;
        const P t161 = t160 + t109;
        io.out(0, 15, t161);
        const P t162 = c[1] * t127;
        const P t163 = c[2] * t149;
        const P t164 = t162 - t163;
        const P t165 = t164 + t109;
        const P t166 = c[3] * t125;
        const P t167 = c[4] * t147;
        const P t168 = t166 + t167;
        const P t169 = t165 - t168;
        io.out(36, 51, t169);
        const P t170 = t165 + t168;
        io.out(24, 39, t170);
        const P t171 = c[2] * t127;
        const P t172 = t109 - t171;
        const P t173 = c[1] * t149;
        const P t174 = t172 + t173;
        const P t175 = c[4] * t125;
        const P t176 = c[3] * t147;
        const P t177 = t175 - t176;
        const P t178 = t174 - t177;
        io.out(12, 27, t178);
        const P t179 = t174 + t177;
        io.out(48, 3, t179);
        // spectrum block of 5, multiplier 2
        const P t180 = t137 + t159;
        const P t181 = t180 + t115;
        io.out(20, 35, t181);
        const P t182 = c[1] * t137;
        const P t183 = c[2] * t159;
        const P t184 = t182 - t183;
        const P t185 = t184 + t115;
        const P t186 = c[3] * t136;
        const P t187 = c[4] * t158;
        const P t188 = t186 + t187;
        const P t189 = t185 - t188;
        io.out(56, 11, t189);
        const P t190 = t185 + t188;
        io.out(44, 59, t190);
        const P t191 = c[2] * t137;
        const P t192 = t115 - t191;
        const P t193 = c[1] * t159;
        const P t194 = t192 + t193;
        const P t195 = c[4] * t136;
        const P t196 = c[3] * t158;
        const P t197 = t195 - t196;
        const P t198 = t194 - t197;
        io.out(32, 47, t198);
        const P t199 = t194 + t197;
        io.out(8, 23, t199);
        // spectrum block of 5, multiplier 2
        const P t200 = t135 + t157;
        const P t201 = t200 + t114;
        io.out(40, 55, t201);
        const P t202 = c[1] * t135;
        const P t203 = c[2] * t157;
        const P t204 = t202 - t203;
        const P t205 = t204 + t114;
        const P t206 = c[3] * t133;
        const P t207 = c[4] * t155;
        const P t208 = t206 + t207;
        const P t209 = t205 - t208;
        io.out(16, 31, t209);
        const P t210 = t205 + t208;
        io.out(4, 19, t210);
        const P t211 = c[2] * t135;
        const P t212 = t114 - t211;
        const P t213 = c[1] * t157;
        const P t214 = t212 + t213;
        const P t215 = c[4] * t133;
        const P t216 = c[3] * t155;
        const P t217 = t215 - t216;
        const P t218 = t214 - t217;
        io.out(52, 7, t218);
        const P t219 = t214 + t217;
        io.out(28, 43, t219);
        const P t220 = shuffled<0, 2>(t74, t77);
        // spectrum block of 3, multiplier 2
        const P t221 = t220 + t5;
        const P t222 = c[5] * t220;
        const P t223 = t5 - t222;
        const P t224 = shuffled<1, 3>(t74, t77);
        const P t225 = c[6] * t224;
        const P t226 = t223 - t225;
        const P t227 = t223 + t225;
        const P t228 = shuffled<1, 3>(t104, t107);
        const P t229 = shuffled<1, 3>(t29, t33);
        // complex block of 3, multiplier 2
        const P t230 = t228 + t229;
        const P t231 = shuffled<0, 2>(t104, t107);
        const P t232 = shuffled<0, 2>(t29, t33);
        const P t233 = t231 + t232;
        const P t234 = t229 - t228;
        const P t235 = t231 - t232;
        const P t236 = shuffled<1, 3>(t43, t47);
        const P t237 = t236 - t230;
        const P t238 = shuffled<0, 2>(t43, t47);
        const P t239 = t233 + t238;
        const P t240 = c[5] * t230;
        const P t241 = t240 + t236;
        const P t242 = c[5] * t233;
        const P t243 = t238 - t242;
        const P t244 = c[6] * t235;
        const P t245 = t241 + t244;
        const P t246 = c[6] * t234;
        const P t247 = t243 - t246;
        const P t248 = t241 - t244;
        const P t249 = t243 + t246;
        const P t250 = shuffled<1, 3>(t15, t19);
        const P t251 = shuffled<1, 3>(t59, t62);
        // complex block of 3, multiplier 2
        const P t252 = t250 - t251;
        const P t253 = shuffled<0, 2>(t59, t62);
        const P t254 = shuffled<0, 2>(t15, t19);
        const P t255 = t253 + t254;
        const P t256 = t251 + t250;
        const P t257 = t253 - t254;
        const P t258 = shuffled<1, 3>(t89, t92);
        const P t259 = t252 + t258;
        const P t260 = shuffled<0, 2>(t89, t92);
        const P t261 = t255 + t260;
        const P t262 = c[5] * t252;
        const P t263 = t258 - t262;
        const P t264 = c[5] * t255;
        const P t265 = t260 - t264;
        const P t266 = c[6] * t257;
        const P t267 = t263 + t266;
        const P t268 = c[6] * t256;
        const P t269 = t265 + t268;
        const P t270 = t263 - t266;
        const P t271 = t265 - t268;
        // spectrum block of 5, multiplier 2
        const P t272 = t239 + t261;
        const P t273 = t272 + t221;
        io.out(30, 45, t273);
        const P t274 = c[1] * t239;
        const P t275 = c[2] * t261;
        const P t276 = t274 - t275;
        const P t277 = t276 + t221;
        const P t278 = c[3] * t237;
        const P t279 = c[4] * t259;
        const P t280 = t278 + t279;
        const P t281 = t277 - t280;
        io.out(6, 21, t281);
        const P t282 = t277 + t280;
        io.out(54, 9, t282);
        const P t283 = c[2] * t239;
        const P t284 = t221 - t283;
        const P t285 = c[1] * t261;
        const P t286 = t284 + t285;
        const P t287 = c[4] * t237;
        const P t288 = c[3] * t259;
        const P t289 = t287 - t288;
        const P t290 = t286 - t289;
        io.out(42, 57, t290);
        const P t291 = t286 + t289;
        io.out(18, 33, t291);
        // spectrum block of 5, multiplier 2
        const P t292 = t249 + t271;
        const P t293 = t292 + t227;
        io.out(50, 5, t293);
        const P t294 = c[1] * t249;
        const P t295 = c[2] * t271;
        const P t296 = t294 - t295;
        const P t297 = t296 + t227;
        const P t298 = c[3] * t248;
        const P t299 = c[4] * t270;
        const P t300 = t298 + t299;
        const P t301 = t297 - t300;
        io.out(26, 41, t301);
        const P t302 = t297 + t300;
        io.out(14, 29, t302);
        const P t303 = c[2] * t249;
        const P t304 = t227 - t303;
        const P t305 = c[1] * t271;
        const P t306 = t304 + t305;
        const P t307 = c[4] * t248;
        const P t308 = c[3] * t270;
        const P t309 = t307 - t308;
        const P t310 = t306 - t309;
        io.out(2, 17, t310);
        const P t311 = t306 + t309;
        io.out(38, 53, t311);
        // spectrum block of 5, multiplier 2
        const P t312 = t247 + t269;
        const P t313 = t312 + t226;
        io.out(10, 25, t313);
        const P t314 = c[1] * t247;
        const P t315 = c[2] * t269;
        const P t316 = t314 - t315;
        const P t317 = t316 + t226;
        const P t318 = c[3] * t245;
        const P t319 = c[4] * t267;
        const P t320 = t318 + t319;
        const P t321 = t317 - t320;
        io.out(46, 1, t321);
        const P t322 = t317 + t320;
        io.out(34, 49, t322);
        const P t323 = c[2] * t247;
        const P t324 = t226 - t323;
        const P t325 = c[1] * t269;
        const P t326 = t324 + t325;
        const P t327 = c[4] * t245;
        const P t328 = c[3] * t267;
        const P t329 = t327 - t328;
        const P t330 = t326 - t329;
        io.out(22, 37, t330);
        const P t331 = t326 + t329;
        io.out(58, 13, t331);
    }
};

}  // namespace zulg
