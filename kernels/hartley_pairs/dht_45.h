// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 45.
// Hartley transform of 45 points, form I; two lanes to a register.
// 100 sums, 79 differences, 85 products of registers, which do the 551 steps of the graph, those with
// `scale` included; 65 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<45> {
    static constexpr int steps = 551;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.30901699437494745,  // c[2]: cos 2 pi 1/5
        0.8090169943749475,  // c[3]: -cos 2 pi 2/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5877852522924731,  // c[5]: sin 2 pi 2/5
        0.3420201433256687,  // c[6]: sin 2 pi 4/9
        0.9396926207859084,  // c[7]: -cos 2 pi 4/9
        0.766044443118978,  // c[8]: cos 2 pi 8/9
        0.6427876096865394,  // c[9]: -sin 2 pi 8/9
        0.8137976813493737,  // c[10]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[11]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.6634139481689384,  // c[12]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[13]: sin 2 pi 1/3 times -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x44_43 = io.in(44, 43);
        // input stage
        const P t0 = x1_2 + x44_43;
        const P t1 = x1_2 - x44_43;
        const P x3_4 = io.in(3, 4);
        const P x42_41 = io.in(42, 41);
        const P t2 = x3_4 + x42_41;
        const P t3 = x3_4 - x42_41;
        const P x5_6 = io.in(5, 6);
        const P x40_39 = io.in(40, 39);
        const P t4 = x5_6 + x40_39;
        const P t5 = x5_6 - x40_39;
        const P x7_8 = io.in(7, 8);
        const P x38_37 = io.in(38, 37);
        const P t6 = x7_8 + x38_37;
        const P t7 = x7_8 - x38_37;
        const P x9_10 = io.in(9, 10);
        const P x36_35 = io.in(36, 35);
        const P t8 = x9_10 + x36_35;
        const P t9 = x9_10 - x36_35;
        const P x11_12 = io.in(11, 12);
        const P x34_33 = io.in(34, 33);
        const P t10 = x11_12 + x34_33;
        const P t11 = x11_12 - x34_33;
        const P x13_14 = io.in(13, 14);
        const P x32_31 = io.in(32, 31);
        const P t12 = x13_14 + x32_31;
        const P t13 = x13_14 - x32_31;
        const P x15_16 = io.in(15, 16);
        const P x30_29 = io.in(30, 29);
        const P t14 = x15_16 + x30_29;
        const P t15 = x15_16 - x30_29;
        const P x17_18 = io.in(17, 18);
        const P x28_27 = io.in(28, 27);
        const P t16 = x17_18 + x28_27;
        const P t17 = x17_18 - x28_27;
        const P x19_20 = io.in(19, 20);
        const P x26_25 = io.in(26, 25);
        const P t18 = x19_20 + x26_25;
        const P t19 = x19_20 - x26_25;
        const P x21_22 = io.in(21, 22);
        const P x24_23 = io.in(24, 23);
        const P t20 = x21_22 + x24_23;
        const P t21 = x21_22 - x24_23;
        const V t22 = part<0>(t8);
        const V t23 = part<1>(t16);
        // spectrum block of 5, multiplier 4
        const V t24 = t22 + t23;
        const V x0 = io.in(0);
        const V t25 = t24 + x0;
        const V t26 = c[2] * t22;
        const V t27 = c[3] * t23;
        const V t28 = t26 - t27;
        const V t29 = t28 + x0;
        const V t30 = part<0>(t9);
        const V t31 = c[4] * t30;
        const V t32 = part<1>(t17);
        const V t33 = c[5] * t32;
        const V t34 = t31 + t33;
        const V t35 = t29 - t34;
        const V t36 = t29 + t34;
        const V t37 = c[3] * t22;
        const V t38 = x0 - t37;
        const V t39 = c[2] * t23;
        const V t40 = t38 + t39;
        const V t41 = c[5] * t30;
        const V t42 = c[4] * t32;
        const V t43 = t41 - t42;
        const V t44 = t40 - t43;
        const V t45 = t40 + t43;
        const P t46 = shuffled<1, 3>(t12, t13);
        const P t47 = shuffled<1, 3>(t2, t3);
        const P t48 = flipped<0, 1>(t47);
        // complex block of 5, multiplier 4
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        const P t51 = shuffled<0, 2>(t12, t13);
        const P t52 = shuffled<1, 3>(t20, t21);
        const P t53 = t51 + t52;
        const P t54 = shuffled<0, 3>(t51, t52);
        const P t55 = shuffled<0, 3>(t52, t51);
        const P t56 = t54 - t55;
        const P t57 = flipped<0, 1>(t53);
        const P t58 = t49 + t57;
        const P t59 = shuffled<0, 2>(t4, t5);
        const P t60 = t58 + t59;
        const P t61 = c[2] * t49;
        const P t62 = P(-c[3], c[3]) * t53;
        const P t63 = t61 + t62;
        const P t64 = t63 + t59;
        const P t65 = c[4] * t50;
        const P t66 = c[5] * t56;
        const P t67 = t65 - t66;
        const P t68 = shuffled<1, 0>(t67);
        const P t69 = flipped<1, 0>(t68);
        const P t70 = t64 + t69;
        const P t71 = t64 - t69;
        const P t72 = c[3] * t49;
        const P t73 = t59 - t72;
        const P t74 = P(c[2], -c[2]) * t53;
        const P t75 = t73 + t74;
        const P t76 = c[5] * t50;
        const P t77 = c[4] * t56;
        const P t78 = t76 + t77;
        const P t79 = shuffled<1, 0>(t78);
        const P t80 = flipped<1, 0>(t79);
        const P t81 = t75 + t80;
        const P t82 = t75 - t80;
        const P t83 = shuffled<0, 2>(t18, t19);
        const P t84 = shuffled<0, 2>(t0, t1);
        // complex block of 5, multiplier 4
        const P t85 = t83 + t84;
        const P t86 = t83 - t84;
        const P t87 = shuffled<1, 3>(t6, t7);
        const P t88 = shuffled<0, 2>(t16, t17);
        const P t89 = t87 + t88;
        const P t90 = shuffled<0, 3>(t87, t88);
        const P t91 = shuffled<0, 3>(t88, t87);
        const P t92 = t90 - t91;
        const P t93 = flipped<0, 1>(t89);
        const P t94 = t85 + t93;
        const P t95 = shuffled<1, 3>(t8, t9);
        const P t96 = t94 + t95;
        const P t97 = c[2] * t85;
        const P t98 = P(-c[3], c[3]) * t89;
        const P t99 = t97 + t98;
        const P t100 = t99 + t95;
        const P t101 = c[4] * t86;
        const P t102 = c[5] * t92;
        const P t103 = t101 - t102;
        const P t104 = shuffled<1, 0>(t103);
        const P t105 = flipped<1, 0>(t104);
        const P t106 = t100 + t105;
        const P t107 = t100 - t105;
        const P t108 = c[3] * t85;
        const P t109 = t95 - t108;
        const P t110 = P(c[2], -c[2]) * t89;
        const P t111 = t109 + t110;
        const P t112 = c[5] * t86;
        const P t113 = c[4] * t92;
        const P t114 = t112 + t113;
        const P t115 = shuffled<1, 0>(t114);
        const P t116 = flipped<1, 0>(t115);
        const P t117 = t111 + t116;
        const P t118 = t111 - t116;
        const P t119 = shuffled<0, 3>(t20, t5);
        const P t120 = shuffled<1, 2>(t4, t21);
        const P t121 = flipped<0, 1>(t120);
        // complex block of 5, multiplier 4
        const P t122 = t119 + t121;
        const P t123 = t119 - t121;
        const P t124 = shuffled<0, 2>(t2, t3);
        const P t125 = shuffled<1, 3>(t10, t11);
        const P t126 = t124 + t125;
        const P t127 = shuffled<0, 3>(t124, t125);
        const P t128 = shuffled<0, 3>(t125, t124);
        const P t129 = t127 - t128;
        const P t130 = flipped<0, 1>(t126);
        const P t131 = t122 + t130;
        const P t132 = shuffled<0, 2>(t14, t15);
        const P t133 = t131 + t132;
        const P t134 = c[2] * t122;
        const P t135 = P(-c[3], c[3]) * t126;
        const P t136 = t134 + t135;
        const P t137 = t136 + t132;
        const P t138 = c[4] * t123;
        const P t139 = P(-c[5], c[5]) * t129;
        const P t140 = t138 + t139;
        const P t141 = shuffled<1, 0>(t140);
        const P t142 = t137 + t141;
        const P t143 = t137 - t141;
        const P t144 = c[3] * t122;
        const P t145 = t132 - t144;
        const P t146 = P(c[2], -c[2]) * t126;
        const P t147 = t145 + t146;
        const P t148 = c[4] * t129;
        const P t149 = P(c[5], -c[5]) * t123;
        const P t150 = t148 + t149;
        const P t151 = shuffled<1, 0>(t150);
        const P t152 = flipped<1, 0>(t151);
        const P t153 = t147 + t152;
        const P t154 = t147 - t152;
        const P t155 = shuffled<1, 2>(t14, t11);
        const P t156 = shuffled<0, 3>(t10, t15);
        const P t157 = flipped<0, 1>(t156);
        // complex block of 5, multiplier 4
        const P t158 = t155 + t157;
        const P t159 = t155 - t157;
        const P t160 = shuffled<1, 3>(t0, t1);
        const P t161 = shuffled<0, 2>(t6, t7);
        const P t162 = flipped<0, 1>(t161);
        const P t163 = t160 + t162;
        const P t164 = t160 - t162;
        const P t165 = t158 + t163;
        const P t166 = shuffled<1, 3>(t18, t19);
        const P t167 = t165 + t166;
        const P t168 = c[2] * t158;
        const P t169 = c[3] * t163;
        const P t170 = t168 - t169;
        const P t171 = t170 + t166;
        const P t172 = c[4] * t159;
        const P t173 = P(-c[5], c[5]) * t164;
        const P t174 = t172 + t173;
        const P t175 = shuffled<1, 0>(t174);
        const P t176 = t171 + t175;
        const P t177 = t171 - t175;
        const P t178 = c[3] * t158;
        const P t179 = t166 - t178;
        const P t180 = c[2] * t163;
        const P t181 = t179 + t180;
        const P t182 = c[4] * t164;
        const P t183 = P(c[5], -c[5]) * t159;
        const P t184 = t182 + t183;
        const P t185 = shuffled<1, 0>(t184);
        const P t186 = flipped<1, 0>(t185);
        const P t187 = t181 + t186;
        const P t188 = t181 - t186;
        const P t189 = shuffled<0, 2>(t133, t143);
        const P t190 = joined(t25, t36);
        // spectrum block of 3, multiplier 2
        const P t191 = t189 + t190;
        const P t192 = c[0] * t189;
        const P t193 = t190 - t192;
        const P t194 = shuffled<1, 3>(t133, t143);
        const P t195 = c[1] * t194;
        const P t196 = t193 - t195;
        const P t197 = t193 + t195;
        const P t198 = shuffled<1, 3>(t167, t177);
        const P t199 = shuffled<1, 3>(t96, t107);
        // complex block of 3, multiplier 2
        const P t200 = t198 - t199;
        const P t201 = shuffled<0, 2>(t167, t177);
        const P t202 = shuffled<0, 2>(t96, t107);
        const P t203 = t201 + t202;
        const P t204 = t198 + t199;
        const P t205 = t201 - t202;
        const P t206 = shuffled<1, 3>(t60, t71);
        const P t207 = t200 + t206;
        const P t208 = shuffled<0, 2>(t60, t71);
        const P t209 = t203 + t208;
        const P t210 = c[0] * t200;
        const P t211 = t206 - t210;
        const P t212 = c[0] * t203;
        const P t213 = t208 - t212;
        const P t214 = c[1] * t205;
        const P t215 = t211 + t214;
        const P t216 = c[1] * t204;
        const P t217 = t213 - t216;
        const P t218 = t211 - t214;
        const P t219 = t213 + t216;
        // spectrum block of 9, multiplier 5
        const P t220 = c[6] * t218;
        const P t221 = c[7] * t219;
        const P t222 = t220 - t221;
        const P t223 = c[8] * t217;
        const P t224 = c[9] * t215;
        const P t225 = t223 - t224;
        // spectrum block of 3, multiplier 2
        const P t226 = t209 + t191;
        io.out(0, 36, t226);
        const P t227 = c[0] * t209;
        const P t228 = t191 - t227;
        const P t229 = c[1] * t207;
        const P t230 = t228 - t229;
        io.out(15, 6, t230);
        const P t231 = t228 + t229;
        io.out(30, 21, t231);
        // spectrum block of 3, multiplier 2
        const P t232 = t222 + t197;
        io.out(40, 31, t232);
        const P t233 = c[0] * t222;
        const P t234 = t197 - t233;
        const P t235 = c[10] * t218;
        const P t236 = c[11] * t219;
        const P t237 = t235 + t236;
        const P t238 = t234 + t237;
        io.out(10, 1, t238);
        const P t239 = t234 - t237;
        io.out(25, 16, t239);
        // spectrum block of 3, multiplier 2
        const P t240 = t225 + t196;
        io.out(35, 26, t240);
        const P t241 = c[0] * t225;
        const P t242 = t196 - t241;
        const P t243 = c[12] * t215;
        const P t244 = c[13] * t217;
        const P t245 = t243 + t244;
        const P t246 = t242 - t245;
        io.out(5, 41, t246);
        const P t247 = t242 + t245;
        io.out(20, 11, t247);
        const P t248 = shuffled<0, 2>(t154, t153);
        const P t249 = joined(t45, t44);
        // spectrum block of 3, multiplier 2
        const P t250 = t248 + t249;
        const P t251 = c[0] * t248;
        const P t252 = t249 - t251;
        const P t253 = shuffled<1, 3>(t154, t153);
        const P t254 = c[1] * t253;
        const P t255 = t252 - t254;
        const P t256 = t252 + t254;
        const P t257 = shuffled<1, 3>(t188, t187);
        const P t258 = shuffled<1, 3>(t118, t117);
        // complex block of 3, multiplier 2
        const P t259 = t257 - t258;
        const P t260 = shuffled<0, 2>(t188, t187);
        const P t261 = shuffled<0, 2>(t118, t117);
        const P t262 = t260 + t261;
        const P t263 = t257 + t258;
        const P t264 = t260 - t261;
        const P t265 = shuffled<1, 3>(t82, t81);
        const P t266 = t259 + t265;
        const P t267 = shuffled<0, 2>(t82, t81);
        const P t268 = t262 + t267;
        const P t269 = c[0] * t259;
        const P t270 = t265 - t269;
        const P t271 = c[0] * t262;
        const P t272 = t267 - t271;
        const P t273 = c[1] * t264;
        const P t274 = t270 + t273;
        const P t275 = c[1] * t263;
        const P t276 = t272 - t275;
        const P t277 = t270 - t273;
        const P t278 = t272 + t275;
        // spectrum block of 9, multiplier 5
        const P t279 = c[6] * t277;
        const P t280 = c[7] * t278;
        const P t281 = t279 - t280;
        const P t282 = c[8] * t276;
        const P t283 = c[9] * t274;
        const P t284 = t282 - t283;
        // spectrum block of 3, multiplier 2
        const P t285 = t268 + t250;
        io.out(27, 18, t285);
        const P t286 = c[0] * t268;
        const P t287 = t250 - t286;
        const P t288 = c[1] * t266;
        const P t289 = t287 - t288;
        io.out(42, 33, t289);
        const P t290 = t287 + t288;
        io.out(12, 3, t290);
        // spectrum block of 3, multiplier 2
        const P t291 = t281 + t256;
        io.out(22, 13, t291);
        const P t292 = c[0] * t281;
        const P t293 = t256 - t292;
        const P t294 = c[10] * t277;
        const P t295 = c[11] * t278;
        const P t296 = t294 + t295;
        const P t297 = t293 + t296;
        io.out(37, 28, t297);
        const P t298 = t293 - t296;
        io.out(7, 43, t298);
        // spectrum block of 3, multiplier 2
        const P t299 = t284 + t255;
        io.out(17, 8, t299);
        const P t300 = c[0] * t284;
        const P t301 = t255 - t300;
        const P t302 = c[12] * t274;
        const P t303 = c[13] * t276;
        const P t304 = t302 + t303;
        const P t305 = t301 - t304;
        io.out(32, 23, t305);
        const P t306 = t301 + t304;
        io.out(2, 38, t306);
        const V t307 = part<0>(t142);
        // spectrum block of 3, multiplier 2
        const V t308 = t307 + t35;
        const P t309 = flipped<0, 1>(t106);
        // complex block of 3, multiplier 2
        const P t310 = t176 + t309;
        const P t311 = t176 - t309;
        const P t312 = t310 + t70;
        const P t313 = c[0] * t310;
        const P t314 = t70 - t313;
        const P t315 = P(c[1], -c[1]) * t311;
        const P t316 = shuffled<1, 0>(t315);
        const P t317 = t314 + t316;
        const P t318 = t314 - t316;
        const P t319 = shuffled<1, 2>(t318, t317);
        // spectrum block of 9, multiplier 5
        const P t320 = P(c[6], c[8]) * t319;
        const P t321 = shuffled<0, 3>(t318, t317);
        const P t322 = P(c[7], c[9]) * t321;
        const P t323 = t320 - t322;
        const V t324 = part<0>(t312);
        // spectrum block of 3, multiplier 2
        const V t325 = t324 + t308;
        io.out(9, t325);
        const P t326 = joined(t35, t308);
        const P t327 = shuffled<0, 2>(t142, t312);
        // spectrum block of 3, multiplier 2
        const P t328 = c[0] * t327;
        const P t329 = t326 - t328;
        const P t330 = shuffled<1, 3>(t142, t312);
        const P t331 = c[1] * t330;
        const P t332 = t329 - t331;
        const V t333 = part<1>(t332);
        io.out(24, t333);
        const P t334 = t329 + t331;
        const V t335 = part<1>(t334);
        io.out(39, t335);
        const P t336 = shuffled<0, 2>(t334, t332);
        // spectrum block of 3, multiplier 2
        const P t337 = t323 + t336;
        io.out(4, 44, t337);
        const P t338 = c[0] * t323;
        const P t339 = t336 - t338;
        const P t340 = shuffled<0, 3>(t319, t321);
        const P t341 = P(c[10], c[12]) * t340;
        const P t342 = shuffled<0, 3>(t321, t319);
        const P t343 = P(c[11], c[13]) * t342;
        const P t344 = t341 + t343;
        const P t345 = flipped<0, 1>(t344);
        const P t346 = t339 + t345;
        io.out(19, 14, t346);
        const P t347 = t339 - t345;
        io.out(34, 29, t347);
    }
};

}  // namespace zulg
