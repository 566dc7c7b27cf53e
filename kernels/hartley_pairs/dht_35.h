// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 35.
// Hartley transform of 35 points, form I; two lanes to a register.
// 82 sums, 68 differences, 86 products of registers, which do the 443 steps of the graph, those with
// `scale` included; 44 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<35> {
    static constexpr int steps = 443;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.30901699437494745,  // c[6]: cos 2 pi 1/5
        0.8090169943749475,  // c[7]: -cos 2 pi 2/5
        0.9510565162951535,  // c[8]: sin 2 pi 1/5
        0.5877852522924731,  // c[9]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x34_33 = io.in(34, 33);
        // input stage
        const P t0 = x1_2 + x34_33;
        const P t1 = x1_2 - x34_33;
        const P x3_4 = io.in(3, 4);
        const P x32_31 = io.in(32, 31);
        const P t2 = x3_4 + x32_31;
        const P t3 = x3_4 - x32_31;
        const P x5_6 = io.in(5, 6);
        const P x30_29 = io.in(30, 29);
        const P t4 = x5_6 + x30_29;
        const P t5 = x5_6 - x30_29;
        const P x7_8 = io.in(7, 8);
        const P x28_27 = io.in(28, 27);
        const P t6 = x7_8 + x28_27;
        const P t7 = x7_8 - x28_27;
        const P x9_10 = io.in(9, 10);
        const P x26_25 = io.in(26, 25);
        const P t8 = x9_10 + x26_25;
        const P t9 = x9_10 - x26_25;
        const P x11_12 = io.in(11, 12);
        const P x24_23 = io.in(24, 23);
        const P t10 = x11_12 + x24_23;
        const P t11 = x11_12 - x24_23;
        const P x13_14 = io.in(13, 14);
        const P x22_21 = io.in(22, 21);
        const P t12 = x13_14 + x22_21;
        const P t13 = x13_14 - x22_21;
        const P x15_16 = io.in(15, 16);
        const P x20_19 = io.in(20, 19);
        const P t14 = x15_16 + x20_19;
        const P t15 = x15_16 - x20_19;
        const V x17 = io.in(17);
        const V x18 = io.in(18);
        const V t16 = x17 + x18;
        const V t17 = x17 - x18;
        const V t18 = part<0>(t6);
        const V t19 = part<1>(t12);
        // spectrum block of 5, multiplier 2
        const V t20 = t18 + t19;
        const V x0 = io.in(0);
        const V t21 = t20 + x0;
        const V t22 = c[6] * t18;
        const V t23 = c[7] * t19;
        const V t24 = t22 - t23;
        const V t25 = t24 + x0;
        const V t26 = part<0>(t7);
        const V t27 = c[8] * t26;
        const V t28 = part<1>(t13);
        const V t29 = c[9] * t28;
        const V t30 = t27 + t29;
        const V t31 = t25 - t30;
        const V t32 = t25 + t30;
        const V t33 = c[7] * t18;
        const V t34 = x0 - t33;
        const V t35 = c[6] * t19;
        const V t36 = t34 + t35;
        const V t37 = c[9] * t26;
        const V t38 = c[8] * t28;
        const V t39 = t37 - t38;
        const V t40 = t36 - t39;
        const V t41 = t36 + t39;
        const P t42 = shuffled<1, 3>(t10, t11);
        const P t43 = shuffled<1, 3>(t0, t1);
        const P t44 = flipped<0, 1>(t43);
        // complex block of 5, multiplier 2
        const P t45 = t42 + t44;
        const P t46 = t42 - t44;
        const P t47 = shuffled<0, 2>(t8, t9);
        const P t48 = shuffled<1, 3>(t14, t15);
        const P t49 = t47 + t48;
        const P t50 = shuffled<0, 3>(t47, t48);
        const P t51 = shuffled<0, 3>(t48, t47);
        const P t52 = t50 - t51;
        const P t53 = flipped<0, 1>(t49);
        const P t54 = t45 + t53;
        const P t55 = shuffled<0, 2>(t4, t5);
        const P t56 = t54 + t55;
        const P t57 = c[6] * t45;
        const P t58 = P(-c[7], c[7]) * t49;
        const P t59 = t57 + t58;
        const P t60 = t59 + t55;
        const P t61 = c[8] * t46;
        const P t62 = c[9] * t52;
        const P t63 = t61 - t62;
        const P t64 = shuffled<1, 0>(t63);
        const P t65 = flipped<1, 0>(t64);
        const P t66 = t60 + t65;
        const P t67 = t60 - t65;
        const P t68 = c[7] * t45;
        const P t69 = t55 - t68;
        const P t70 = P(c[6], -c[6]) * t49;
        const P t71 = t69 + t70;
        const P t72 = c[9] * t46;
        const P t73 = c[8] * t52;
        const P t74 = t72 + t73;
        const P t75 = shuffled<1, 0>(t74);
        const P t76 = flipped<1, 0>(t75);
        const P t77 = t71 + t76;
        const P t78 = t71 - t76;
        const P t79 = joined(t16, t17);
        const P t80 = shuffled<0, 2>(t2, t3);
        // complex block of 5, multiplier 2
        const P t81 = t79 + t80;
        const P t82 = t79 - t80;
        const P t83 = shuffled<1, 3>(t2, t3);
        const P t84 = shuffled<0, 2>(t10, t11);
        const P t85 = t83 + t84;
        const P t86 = shuffled<0, 3>(t83, t84);
        const P t87 = shuffled<0, 3>(t84, t83);
        const P t88 = t86 - t87;
        const P t89 = flipped<0, 1>(t85);
        const P t90 = t81 + t89;
        const P t91 = shuffled<1, 3>(t8, t9);
        const P t92 = t90 + t91;
        const P t93 = c[6] * t81;
        const P t94 = P(-c[7], c[7]) * t85;
        const P t95 = t93 + t94;
        const P t96 = t95 + t91;
        const P t97 = c[8] * t82;
        const P t98 = c[9] * t88;
        const P t99 = t97 - t98;
        const P t100 = shuffled<1, 0>(t99);
        const P t101 = flipped<1, 0>(t100);
        const P t102 = t96 + t101;
        const P t103 = t96 - t101;
        const P t104 = c[7] * t81;
        const P t105 = t91 - t104;
        const P t106 = P(c[6], -c[6]) * t85;
        const P t107 = t105 + t106;
        const P t108 = c[9] * t82;
        const P t109 = c[8] * t88;
        const P t110 = t108 + t109;
        const P t111 = shuffled<1, 0>(t110);
        const P t112 = flipped<1, 0>(t111);
        const P t113 = t107 + t112;
        const P t114 = t107 - t112;
        const P t115 = shuffled<0, 3>(t12, t7);
        const P t116 = shuffled<1, 2>(t6, t13);
        const P t117 = flipped<0, 1>(t116);
        // complex block of 5, multiplier 2
        const P t118 = t115 + t117;
        const P t119 = t115 - t117;
        const P t120 = shuffled<0, 2>(t0, t1);
        const P t121 = shuffled<1, 3>(t4, t5);
        const P t122 = flipped<0, 1>(t121);
        const P t123 = t120 + t122;
        const P t124 = t120 - t122;
        const P t125 = t118 + t123;
        const P t126 = shuffled<0, 2>(t14, t15);
        const P t127 = t125 + t126;
        const P t128 = c[6] * t118;
        const P t129 = c[7] * t123;
        const P t130 = t128 - t129;
        const P t131 = t130 + t126;
        const P t132 = c[8] * t119;
        const P t133 = P(-c[9], c[9]) * t124;
        const P t134 = t132 + t133;
        const P t135 = shuffled<1, 0>(t134);
        const P t136 = t131 + t135;
        const P t137 = t131 - t135;
        const P t138 = c[7] * t118;
        const P t139 = t126 - t138;
        const P t140 = c[6] * t123;
        const P t141 = t139 + t140;
        const P t142 = c[8] * t124;
        const P t143 = P(c[9], -c[9]) * t119;
        const P t144 = t142 + t143;
        const P t145 = shuffled<1, 0>(t144);
        const P t146 = flipped<1, 0>(t145);
        const P t147 = t141 + t146;
        const P t148 = t141 - t146;
        const P t149 = shuffled<0, 2>(t56, t77);
        const P t150 = shuffled<0, 2>(t92, t113);
        // spectrum block of 7, multiplier 5
        const P t151 = t149 + t150;
        const P t152 = shuffled<0, 2>(t127, t147);
        const P t153 = t151 + t152;
        const P t154 = joined(t21, t40);
        const P t155 = t153 + t154;
        io.out(0, 28, t155);
        const P t156 = c[0] * t149;
        const P t157 = c[1] * t150;
        const P t158 = t156 - t157;
        const P t159 = c[2] * t152;
        const P t160 = t158 - t159;
        const P t161 = t160 + t154;
        const P t162 = shuffled<1, 3>(t56, t77);
        const P t163 = c[3] * t162;
        const P t164 = shuffled<1, 3>(t92, t113);
        const P t165 = c[4] * t164;
        const P t166 = t163 + t165;
        const P t167 = shuffled<1, 3>(t127, t147);
        const P t168 = c[5] * t167;
        const P t169 = t166 + t168;
        const P t170 = t161 - t169;
        io.out(20, 13, t170);
        const P t171 = t161 + t169;
        io.out(15, 8, t171);
        const P t172 = c[1] * t149;
        const P t173 = t154 - t172;
        const P t174 = c[2] * t150;
        const P t175 = t173 - t174;
        const P t176 = c[0] * t152;
        const P t177 = t175 + t176;
        const P t178 = c[4] * t162;
        const P t179 = c[5] * t164;
        const P t180 = t178 - t179;
        const P t181 = c[3] * t167;
        const P t182 = t180 - t181;
        const P t183 = t177 - t182;
        io.out(5, 33, t183);
        const P t184 = t177 + t182;
        io.out(30, 23, t184);
        const P t185 = c[2] * t149;
        const P t186 = t154 - t185;
        const P t187 = c[0] * t150;
        const P t188 = t186 + t187;
        const P t189 = c[1] * t152;
        const P t190 = t188 - t189;
        const P t191 = c[5] * t162;
        const P t192 = c[3] * t164;
        const P t193 = t191 - t192;
        const P t194 = c[4] * t167;
        const P t195 = t193 + t194;
        const P t196 = t190 - t195;
        io.out(25, 18, t196);
        const P t197 = t190 + t195;
        io.out(10, 3, t197);
        const P t198 = shuffled<0, 2>(t67, t66);
        const P t199 = shuffled<0, 2>(t103, t102);
        // spectrum block of 7, multiplier 5
        const P t200 = t198 + t199;
        const P t201 = shuffled<0, 2>(t137, t136);
        const P t202 = t200 + t201;
        const P t203 = joined(t32, t31);
        const P t204 = t202 + t203;
        io.out(21, 14, t204);
        const P t205 = c[0] * t198;
        const P t206 = c[1] * t199;
        const P t207 = t205 - t206;
        const P t208 = c[2] * t201;
        const P t209 = t207 - t208;
        const P t210 = t209 + t203;
        const P t211 = shuffled<1, 3>(t67, t66);
        const P t212 = c[3] * t211;
        const P t213 = shuffled<1, 3>(t103, t102);
        const P t214 = c[4] * t213;
        const P t215 = t212 + t214;
        const P t216 = shuffled<1, 3>(t137, t136);
        const P t217 = c[5] * t216;
        const P t218 = t215 + t217;
        const P t219 = t210 - t218;
        io.out(6, 34, t219);
        const P t220 = t210 + t218;
        io.out(1, 29, t220);
        const P t221 = c[1] * t198;
        const P t222 = t203 - t221;
        const P t223 = c[2] * t199;
        const P t224 = t222 - t223;
        const P t225 = c[0] * t201;
        const P t226 = t224 + t225;
        const P t227 = c[4] * t211;
        const P t228 = c[5] * t213;
        const P t229 = t227 - t228;
        const P t230 = c[3] * t216;
        const P t231 = t229 - t230;
        const P t232 = t226 - t231;
        io.out(26, 19, t232);
        const P t233 = t226 + t231;
        io.out(16, 9, t233);
        const P t234 = c[2] * t198;
        const P t235 = t203 - t234;
        const P t236 = c[0] * t199;
        const P t237 = t235 + t236;
        const P t238 = c[1] * t201;
        const P t239 = t237 - t238;
        const P t240 = c[5] * t211;
        const P t241 = c[3] * t213;
        const P t242 = t240 - t241;
        const P t243 = c[4] * t216;
        const P t244 = t242 + t243;
        const P t245 = t239 - t244;
        io.out(11, 4, t245);
        const P t246 = t239 + t244;
        io.out(31, 24, t246);
        const V t247 = part<0>(t78);
        const V t248 = part<0>(t114);
        // spectrum block of 7, multiplier 5
        const V t249 = t247 + t248;
        const V t250 = part<0>(t148);
        const V t251 = t249 + t250;
        const V t252 = t251 + t41;
        io.out(7, t252);
        const V t253 = c[0] * t247;
        const V t254 = c[1] * t248;
        const V t255 = t253 - t254;
        const V t256 = c[2] * t250;
        const V t257 = t255 - t256;
        const V t258 = t257 + t41;
        const V t259 = part<1>(t78);
        const V t260 = c[3] * t259;
        const V t261 = part<1>(t114);
        const V t262 = c[4] * t261;
        const V t263 = t260 + t262;
        const V t264 = part<1>(t148);
        const V t265 = c[5] * t264;
        const V t266 = t263 + t265;
        const V t267 = t258 - t266;
        io.out(27, t267);
        const V t268 = t258 + t266;
        io.out(22, t268);
        const V t269 = c[1] * t247;
        const V t270 = t41 - t269;
        const V t271 = c[2] * t248;
        const V t272 = t270 - t271;
        const V t273 = c[0] * t250;
        const V t274 = t272 + t273;
        const V t275 = c[4] * t259;
        const V t276 = c[5] * t261;
        const V t277 = t275 - t276;
        const V t278 = c[3] * t264;
        const V t279 = t277 - t278;
        const V t280 = t274 - t279;
        io.out(12, t280);
        const V t281 = t274 + t279;
        io.out(2, t281);
        const V t282 = c[2] * t247;
        const V t283 = t41 - t282;
        const V t284 = c[0] * t248;
        const V t285 = t283 + t284;
        const V t286 = c[1] * t250;
        const V t287 = t285 - t286;
        const V t288 = c[5] * t259;
        const V t289 = c[3] * t261;
        const V t290 = t288 - t289;
        const V t291 = c[4] * t264;
        const V t292 = t290 + t291;
        const V t293 = t287 - t292;
        io.out(32, t293);
        const V t294 = t287 + t292;
        io.out(17, t294);
    }
};

}  // namespace zulg
