// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 50.
// Hartley transform of 50 points, form F; up to four lanes to a register.
// 66 sums, 41 differences, 56 products of registers, which do the 676 steps of the graph, those with
// `scale` included; 115 shuffles, 11 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<50> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5358267949789967,  // c[4]: cos 2 pi 21/25
        0.8443279255020151,  // c[5]: -sin 2 pi 21/25
        0.9048270524660196,  // c[6]: -sin 2 pi 17/25
        0.42577929156507266,  // c[7]: -cos 2 pi 17/25
        0.8763066800438636,  // c[8]: cos 2 pi 23/25
        0.48175367410171527,  // c[9]: -sin 2 pi 23/25
        0.06279051952931337,  // c[10]: cos 2 pi 19/25
        0.9980267284282716,  // c[11]: -sin 2 pi 19/25
        0.12533323356430426,  // c[12]: -sin 2 pi 13/25
        0.9921147013144779,  // c[13]: -cos 2 pi 13/25
        0.6374239897486897,  // c[14]: -cos 2 pi 9/25
        0.7705132427757893,  // c[15]: sin 2 pi 9/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const P x18_43 = io.in(18, 43);
        const P x48_23 = io.in(48, 23);
        // real block of 5, multiplier 3
        const P t0 = x18_43 + x48_23;
        const Q x14_39_16_41 = io.in(14, 39, 16, 41);
        const Q x44_19_46_21 = io.in(44, 19, 46, 21);
        // real block of 5, multiplier 3
        const Q t1 = x14_39_16_41 + x44_19_46_21;
        const Q x34_9_36_11 = io.in(34, 9, 36, 11);
        const Q x24_49_26_1 = io.in(24, 49, 26, 1);
        const Q t2 = x34_9_36_11 + x24_49_26_1;
        const Q t3 = t1 + t2;
        const Q x4_29_6_31 = io.in(4, 29, 6, 31);
        const Q t4 = t3 + x4_29_6_31;
        const P x38_13 = io.in(38, 13);
        const P t5 = part<1>(t4);
        const Q t6 = joined(x38_13, t5);
        const P x28_3 = io.in(28, 3);
        const P t7 = part<0>(t4);
        const Q t8 = joined(x28_3, t7);
        // real block of 5, multiplier 3
        const Q t9 = t6 + t8;
        const P t10 = part<0>(t9);
        const P t11 = t0 + t10;
        const V t12 = part<0>(t11);
        const V x8 = io.in(8);
        const V t13 = t12 + x8;
        const Q x10_35_12_37 = io.in(10, 35, 12, 37);
        const Q x40_15_42_17 = io.in(40, 15, 42, 17);
        // real block of 5, multiplier 3
        const Q t14 = x10_35_12_37 + x40_15_42_17;
        const Q x30_5_32_7 = io.in(30, 5, 32, 7);
        const Q x20_45_22_47 = io.in(20, 45, 22, 47);
        const Q t15 = x30_5_32_7 + x20_45_22_47;
        const Q t16 = t14 + t15;
        const Q x0_25_2_27 = io.in(0, 25, 2, 27);
        const Q t17 = t16 + x0_25_2_27;
        const P t18 = part<1>(t17);
        const V t19 = part<0>(t18);
        // real block of 5, multiplier 3
        const V t20 = t19 + t13;
        // real block of 5, multiplier 3
        const Q t21 = x10_35_12_37 - x40_15_42_17;
        const Q t22 = x30_5_32_7 - x20_45_22_47;
        const Q t23 = c[0] * t14;
        const Q t24 = x0_25_2_27 - t23;
        const Q t25 = c[1] * t15;
        const Q t26 = t24 + t25;
        const Q t27 = c[2] * t21;
        const Q t28 = c[3] * t22;
        const Q t29 = t27 + t28;
        const Q t30 = c[1] * t14;
        const Q t31 = c[0] * t15;
        const Q t32 = t30 - t31;
        const Q t33 = t32 + x0_25_2_27;
        const Q t34 = c[2] * t22;
        const Q t35 = c[3] * t21;
        const Q t36 = t34 - t35;
        // real block of 5, multiplier 3
        const Q t37 = x14_39_16_41 - x44_19_46_21;
        const Q t38 = x34_9_36_11 - x24_49_26_1;
        const Q t39 = c[0] * t1;
        const Q t40 = x4_29_6_31 - t39;
        const Q t41 = c[1] * t2;
        const Q t42 = t40 + t41;
        const Q t43 = c[2] * t37;
        const Q t44 = c[3] * t38;
        const Q t45 = t43 + t44;
        const Q t46 = c[1] * t1;
        const Q t47 = c[0] * t2;
        const Q t48 = t46 - t47;
        const Q t49 = t48 + x4_29_6_31;
        const Q t50 = c[2] * t38;
        const Q t51 = c[3] * t37;
        const Q t52 = t50 - t51;
        const V t53 = part<1>(t11);
        const V x33 = io.in(33);
        // real block of 5, multiplier 3
        const V t54 = t53 + x33;
        const V t55 = part<1>(t18);
        // real block of 5, multiplier 3
        const V t56 = t55 + t54;
        const Q t57 = joined(x18_43, t18);
        const P t58 = joined(t13, t54);
        const Q t59 = joined(x48_23, t58);
        // real block of 5, multiplier 3
        const Q t60 = t57 - t59;
        const Q t61 = t6 - t8;
        const P t62 = joined(t20, t56);
        const P t63 = part<1>(t9);
        // real block of 5, multiplier 3
        const P t64 = t62 + t63;
        const P t65 = part<0>(t17);
        const P t66 = t64 + t65;
        const P t67 = joined(x8, x33);
        const Q t68 = joined(t67, t65);
        const Q t69 = joined(t0, t62);
        // real block of 5, multiplier 3
        const Q t70 = c[0] * t69;
        const Q t71 = t68 - t70;
        const Q t72 = c[1] * t9;
        const Q t73 = t71 + t72;
        const Q t74 = c[2] * t60;
        const Q t75 = c[3] * t61;
        const Q t76 = t74 + t75;
        const Q t77 = c[1] * t69;
        const Q t78 = c[0] * t9;
        const Q t79 = t77 - t78;
        const Q t80 = t79 + t68;
        const Q t81 = c[2] * t61;
        const Q t82 = c[3] * t60;
        const Q t83 = t81 - t82;
        const Q t84 = shuffled<0, 4, 2, 6>(t26, t29);
        const Q t85 = shuffled<1, 5, 3, 7>(t26, t29);
        const Q t86 = shuffled<2, 3, 6, 7>(t84, t85);
        // real block of 25, multiplier 23
        const Q t87 = c[8] * t86;
        const Q t88 = shuffled<1, 0, 3, 2>(t86);
        const Q t89 = Q(-c[9], c[9], -c[9], c[9]) * t88;
        const Q t90 = t87 + t89;
        const Q t91 = shuffled<0, 4, 2, 6>(t42, t45);
        const Q t92 = shuffled<1, 5, 3, 7>(t42, t45);
        const Q t93 = shuffled<0, 1, 4, 5>(t91, t92);
        const Q t94 = c[4] * t93;
        const Q t95 = shuffled<1, 0, 3, 2>(t93);
        const Q t96 = Q(-c[5], c[5], -c[5], c[5]) * t95;
        const Q t97 = t94 + t96;
        const Q t98 = shuffled<2, 3, 6, 7>(t91, t92);
        const Q t99 = c[10] * t98;
        const Q t100 = shuffled<1, 0, 3, 2>(t98);
        const Q t101 = Q(-c[11], c[11], -c[11], c[11]) * t100;
        const Q t102 = t99 + t101;
        const Q t103 = shuffled<0, 4, 2, 6>(t76, t73);
        const Q t104 = shuffled<1, 5, 3, 7>(t76, t73);
        const Q t105 = shuffled<0, 1, 4, 5>(t103, t104);
        const Q t106 = c[6] * t105;
        const Q t107 = shuffled<1, 0, 3, 2>(t105);
        const Q t108 = Q(c[7], -c[7], c[7], -c[7]) * t107;
        const Q t109 = t106 + t108;
        const Q t110 = flipped<1, 0, 1, 0>(t109);
        // complex block of 5, multiplier 3
        const Q t111 = t90 + t110;
        const Q t112 = t90 - t110;
        const Q t113 = t102 + t97;
        const Q t114 = t102 - t97;
        const Q t115 = t111 + t113;
        const Q t116 = shuffled<0, 1, 4, 5>(t84, t85);
        const Q t117 = t115 + t116;
        const Q t118 = c[1] * t111;
        const Q t119 = c[0] * t113;
        const Q t120 = t118 - t119;
        const Q t121 = t120 + t116;
        const Q t122 = c[3] * t112;
        const Q t123 = c[2] * t114;
        const Q t124 = t122 - t123;
        const Q t125 = shuffled<1, 0, 3, 2>(t124);
        const Q t126 = flipped<0, 1, 0, 1>(t125);
        const Q t127 = t121 + t126;
        const Q t128 = t121 - t126;
        const Q t129 = c[0] * t111;
        const Q t130 = t116 - t129;
        const Q t131 = c[1] * t113;
        const Q t132 = t130 + t131;
        const Q t133 = c[2] * t112;
        const Q t134 = c[3] * t114;
        const Q t135 = t133 + t134;
        const Q t136 = shuffled<1, 0, 3, 2>(t135);
        const Q t137 = flipped<0, 1, 0, 1>(t136);
        const Q t138 = t132 + t137;
        const Q t139 = t132 - t137;
        const Q t140 = shuffled<0, 4, 2, 6>(t33, t36);
        const Q t141 = shuffled<1, 5, 3, 7>(t33, t36);
        const Q t142 = shuffled<2, 3, 6, 7>(t140, t141);
        // real block of 25, multiplier 23
        const Q t143 = c[4] * t142;
        const Q t144 = shuffled<1, 0, 3, 2>(t142);
        const Q t145 = Q(-c[5], c[5], -c[5], c[5]) * t144;
        const Q t146 = t143 + t145;
        const Q t147 = shuffled<0, 4, 2, 6>(t52, t49);
        const Q t148 = shuffled<1, 5, 3, 7>(t52, t49);
        const Q t149 = shuffled<0, 1, 4, 5>(t147, t148);
        const Q t150 = c[6] * t149;
        const Q t151 = shuffled<1, 0, 3, 2>(t149);
        const Q t152 = Q(c[7], -c[7], c[7], -c[7]) * t151;
        const Q t153 = t150 + t152;
        const Q t154 = shuffled<2, 3, 6, 7>(t147, t148);
        const Q t155 = c[12] * t154;
        const Q t156 = shuffled<1, 0, 3, 2>(t154);
        const Q t157 = Q(c[13], -c[13], c[13], -c[13]) * t156;
        const Q t158 = t155 + t157;
        const Q t159 = shuffled<0, 4, 2, 6>(t80, t83);
        const Q t160 = shuffled<1, 5, 3, 7>(t80, t83);
        const Q t161 = shuffled<0, 1, 4, 5>(t159, t160);
        const Q t162 = Q(-c[14], c[14], -c[14], c[14]) * t161;
        const Q t163 = shuffled<1, 0, 3, 2>(t161);
        const Q t164 = c[15] * t163;
        const Q t165 = t162 + t164;
        const Q t166 = flipped<0, 1, 0, 1>(t165);
        // complex block of 5, multiplier 3
        const Q t167 = t146 + t166;
        const Q t168 = t146 - t166;
        const Q t169 = t158 + t153;
        const Q t170 = shuffled<0, 5, 2, 7>(t153, t158);
        const Q t171 = shuffled<0, 5, 2, 7>(t158, t153);
        const Q t172 = t170 - t171;
        const Q t173 = flipped<1, 0, 1, 0>(t169);
        const Q t174 = t167 + t173;
        const Q t175 = shuffled<0, 1, 4, 5>(t140, t141);
        const Q t176 = t174 + t175;
        const Q t177 = c[1] * t167;
        const Q t178 = Q(c[0], -c[0], c[0], -c[0]) * t169;
        const Q t179 = t177 + t178;
        const Q t180 = t179 + t175;
        const Q t181 = c[3] * t168;
        const Q t182 = c[2] * t172;
        const Q t183 = t181 - t182;
        const Q t184 = shuffled<1, 0, 3, 2>(t183);
        const Q t185 = flipped<0, 1, 0, 1>(t184);
        const Q t186 = t180 + t185;
        const Q t187 = t180 - t185;
        const Q t188 = c[0] * t167;
        const Q t189 = t175 - t188;
        const Q t190 = Q(-c[1], c[1], -c[1], c[1]) * t169;
        const Q t191 = t189 + t190;
        const Q t192 = c[2] * t168;
        const Q t193 = c[3] * t172;
        const Q t194 = t192 + t193;
        const Q t195 = shuffled<1, 0, 3, 2>(t194);
        const Q t196 = flipped<0, 1, 0, 1>(t195);
        const Q t197 = t191 + t196;
        const Q t198 = t191 - t196;
        const V t199 = part<0>(t66);
        const V t200 = part<1>(t66);
        // real block of 2
        const V t201 = t199 + t200;
        io.out(0, t201);
        const V t202 = t199 - t200;
        io.out(25, t202);
        const Q t203 = shuffled<0, 1, 4, 5>(t117, t176);
        const Q t204 = shuffled<2, 3, 6, 7>(t117, t176);
        // complex block of 2
        const Q t205 = t203 + t204;
        const Q t206 = t203 - t204;
        const Q t207 = shuffled<0, 1, 4, 5>(t197, t138);
        const Q t208 = shuffled<2, 3, 6, 7>(t197, t138);
        // complex block of 2
        const Q t209 = t207 + t208;
        const Q t210 = shuffled<0, 5, 2, 7>(t207, t208);
        const Q t211 = shuffled<0, 5, 2, 7>(t208, t207);
        const Q t212 = t210 - t211;
        const Q t213 = shuffled<1, 0, 3, 2>(t103);
        const Q t214 = shuffled<2, 3, 4, 5>(t213, t139);
        const Q t215 = shuffled<1, 0, 3, 2>(t104);
        const Q t216 = shuffled<2, 3, 6, 7>(t215, t139);
        // complex block of 2
        const Q t217 = t214 + t216;
        const Q t218 = t214 - t216;
        const Q t219 = shuffled<0, 1, 4, 5>(t198, t187);
        const Q t220 = shuffled<2, 3, 6, 7>(t198, t187);
        // complex block of 2
        const Q t221 = t219 + t220;
        const Q t222 = flipped<0, 0, 0, 1>(t219);
        const Q t223 = flipped<0, 0, 0, 1>(t220);
        const Q t224 = t222 - t223;
        const Q t225 = shuffled<0, 1, 6, 7>(t128, t159);
        const Q t226 = shuffled<2, 3, 6, 7>(t128, t160);
        // complex block of 2
        const Q t227 = t225 + t226;
        const Q t228 = flipped<0, 1, 0, 0>(t225);
        const Q t229 = flipped<0, 1, 0, 0>(t226);
        const Q t230 = t228 - t229;
        const Q t231 = shuffled<0, 1, 4, 5>(t127, t186);
        const Q t232 = shuffled<2, 3, 6, 7>(t127, t186);
        // complex block of 2
        const Q t233 = t231 + t232;
        const Q t234 = t231 - t232;
        const P t235 = part<0>(t217);
        const P t236 = part<1>(t218);
        const P t237 = shuffled<0, 2>(t235, t236);
        const P t238 = part<1>(t217);
        const P t239 = part<0>(t218);
        const P t240 = shuffled<0, 2>(t238, t239);
        const Q t241 = joined(t237, t240);
        const P t242 = shuffled<1, 3>(t235, t236);
        const P t243 = shuffled<1, 3>(t238, t239);
        const Q t244 = joined(t242, t243);
        // output stage
        const Q t245 = t241 - t244;
        io.out(40, 13, 38, 15, t245);
        const Q t246 = t241 + t244;
        io.out(10, 37, 12, 35, t246);
        const P t247 = part<0>(t221);
        const P t248 = part<1>(t224);
        const P t249 = shuffled<0, 2>(t247, t248);
        const P t250 = part<1>(t221);
        const P t251 = part<0>(t224);
        const P t252 = shuffled<0, 2>(t250, t251);
        const Q t253 = joined(t249, t252);
        const P t254 = shuffled<1, 3>(t247, t248);
        const P t255 = shuffled<1, 3>(t250, t251);
        const Q t256 = joined(t254, t255);
        const Q t257 = t253 - t256;
        io.out(36, 9, 16, 11, t257);
        const Q t258 = t253 + t256;
        io.out(14, 41, 34, 39, t258);
        const P t259 = part<0>(t209);
        const P t260 = part<1>(t212);
        const P t261 = shuffled<0, 2>(t259, t260);
        const P t262 = part<1>(t209);
        const P t263 = part<0>(t212);
        const P t264 = shuffled<0, 2>(t262, t263);
        const Q t265 = joined(t261, t264);
        const P t266 = shuffled<1, 3>(t259, t260);
        const P t267 = shuffled<1, 3>(t262, t263);
        const Q t268 = joined(t266, t267);
        const Q t269 = t265 - t268;
        io.out(6, 17, 8, 19, t269);
        const Q t270 = t265 + t268;
        io.out(44, 33, 42, 31, t270);
        const P t271 = part<0>(t227);
        const P t272 = part<1>(t230);
        const P t273 = shuffled<0, 2>(t271, t272);
        const P t274 = part<1>(t227);
        const P t275 = part<0>(t230);
        const P t276 = shuffled<0, 2>(t274, t275);
        const Q t277 = joined(t273, t276);
        const P t278 = shuffled<1, 3>(t271, t272);
        const P t279 = shuffled<1, 3>(t274, t275);
        const Q t280 = joined(t278, t279);
        const Q t281 = t277 + t280;
        io.out(32, 45, 20, 43, t281);
        const Q t282 = t277 - t280;
        io.out(18, 5, 30, 7, t282);
        const P t283 = part<0>(t205);
        const P t284 = part<1>(t206);
        const P t285 = shuffled<0, 2>(t283, t284);
        const P t286 = part<1>(t205);
        const P t287 = part<0>(t206);
        const P t288 = shuffled<0, 2>(t286, t287);
        const Q t289 = joined(t285, t288);
        const P t290 = shuffled<1, 3>(t283, t284);
        const P t291 = shuffled<1, 3>(t286, t287);
        const Q t292 = joined(t290, t291);
        const Q t293 = t289 - t292;
        io.out(48, 21, 46, 23, t293);
        const Q t294 = t289 + t292;
        io.out(2, 29, 4, 27, t294);
        const P t295 = part<0>(t233);
        const P t296 = part<1>(t234);
        const P t297 = shuffled<0, 2>(t295, t296);
        const P t298 = part<1>(t233);
        const P t299 = part<0>(t234);
        const P t300 = shuffled<0, 2>(t298, t299);
        const Q t301 = joined(t297, t300);
        const P t302 = shuffled<1, 3>(t295, t296);
        const P t303 = shuffled<1, 3>(t298, t299);
        const Q t304 = joined(t302, t303);
        const Q t305 = t301 + t304;
        io.out(22, 49, 24, 47, t305);
        const Q t306 = t301 - t304;
        io.out(28, 1, 26, 3, t306);
    }
};

}  // namespace zulg
