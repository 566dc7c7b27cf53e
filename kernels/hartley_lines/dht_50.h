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
        const Q x30_5_32_7 = io.in(30, 5, 32, 7);
        const Q x20_45_22_47 = io.in(20, 45, 22, 47);
        // real block of 5, multiplier 3
        const Q t0 = x30_5_32_7 + x20_45_22_47;
        const Q t1 = x30_5_32_7 - x20_45_22_47;
        const Q x10_35_12_37 = io.in(10, 35, 12, 37);
        const Q x40_15_42_17 = io.in(40, 15, 42, 17);
        const Q t2 = x10_35_12_37 + x40_15_42_17;
        const Q t3 = x10_35_12_37 - x40_15_42_17;
        const Q t4 = t2 + t0;
        const Q x0_25_2_27 = io.in(0, 25, 2, 27);
        const Q t5 = t4 + x0_25_2_27;
        const Q t6 = c[0] * t2;
        const Q t7 = x0_25_2_27 - t6;
        const Q t8 = c[1] * t2;
        const Q t9 = c[0] * t0;
        const Q t10 = t8 - t9;
        const Q x34_9_36_11 = io.in(34, 9, 36, 11);
        const Q x24_49_26_1 = io.in(24, 49, 26, 1);
        // real block of 5, multiplier 3
        const Q t11 = x34_9_36_11 + x24_49_26_1;
        const Q x14_39_16_41 = io.in(14, 39, 16, 41);
        const Q x44_19_46_21 = io.in(44, 19, 46, 21);
        const Q t12 = x14_39_16_41 + x44_19_46_21;
        const Q t13 = t12 + t11;
        const Q t14 = x14_39_16_41 - x44_19_46_21;
        const Q t15 = x34_9_36_11 - x24_49_26_1;
        const Q x4_29_6_31 = io.in(4, 29, 6, 31);
        const Q t16 = t13 + x4_29_6_31;
        const P x38_13 = io.in(38, 13);
        const P t17 = part<1>(t16);
        const Q t18 = joined(x38_13, t17);
        const P x28_3 = io.in(28, 3);
        const P t19 = part<0>(t16);
        const Q t20 = joined(x28_3, t19);
        // real block of 5, multiplier 3
        const Q t21 = t18 + t20;
        // real block of 5, multiplier 3
        const Q t22 = c[0] * t12;
        const Q t23 = x4_29_6_31 - t22;
        const Q t24 = c[1] * t12;
        const Q t25 = c[0] * t11;
        const Q t26 = t24 - t25;
        const P x18_43 = io.in(18, 43);
        const P x48_23 = io.in(48, 23);
        // real block of 5, multiplier 3
        const P t27 = x18_43 + x48_23;
        const P t28 = part<0>(t21);
        const P t29 = t27 + t28;
        const V t30 = part<0>(t29);
        const V x8 = io.in(8);
        const V t31 = t30 + x8;
        const V t32 = part<1>(t29);
        const V x33 = io.in(33);
        // real block of 5, multiplier 3
        const V t33 = t32 + x33;
        const P t34 = part<1>(t5);
        const V t35 = part<0>(t34);
        // real block of 5, multiplier 3
        const V t36 = t35 + t31;
        const V t37 = part<1>(t34);
        // real block of 5, multiplier 3
        const V t38 = t37 + t33;
        const Q t39 = joined(x18_43, t34);
        const P t40 = joined(t31, t33);
        const Q t41 = joined(x48_23, t40);
        // real block of 5, multiplier 3
        const Q t42 = t39 - t41;
        const Q t43 = t18 - t20;
        const P t44 = joined(x8, x33);
        const P t45 = part<0>(t5);
        const Q t46 = joined(t44, t45);
        const P t47 = joined(t36, t38);
        const Q t48 = joined(t27, t47);
        const Q t49 = c[0] * t48;
        const Q t50 = t46 - t49;
        const Q t51 = c[2] * t42;
        const Q t52 = c[3] * t43;
        const Q t53 = t51 + t52;
        const Q t54 = c[1] * t48;
        const Q t55 = c[0] * t21;
        const Q t56 = t54 - t55;
        const Q t57 = c[2] * t43;
        const Q t58 = c[3] * t42;
        const Q t59 = t57 - t58;
        // real block of 5, multiplier 3
        const Q t60 = c[1] * t0;
        const Q t61 = t7 + t60;
        const Q t62 = c[2] * t3;
        const Q t63 = c[3] * t1;
        const Q t64 = t62 + t63;
        const Q t65 = shuffled<0, 4, 2, 6>(t61, t64);
        const Q t66 = shuffled<1, 5, 3, 7>(t61, t64);
        const Q t67 = shuffled<2, 3, 6, 7>(t65, t66);
        // real block of 25, multiplier 23
        const Q t68 = c[8] * t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t67);
        const Q t70 = Q(-c[9], c[9], -c[9], c[9]) * t69;
        const Q t71 = t68 + t70;
        // real block of 5, multiplier 3
        const Q t72 = t10 + x0_25_2_27;
        const Q t73 = c[2] * t1;
        const Q t74 = c[3] * t3;
        const Q t75 = t73 - t74;
        const Q t76 = shuffled<0, 4, 2, 6>(t72, t75);
        const Q t77 = shuffled<1, 5, 3, 7>(t72, t75);
        const Q t78 = shuffled<2, 3, 6, 7>(t76, t77);
        // real block of 25, multiplier 23
        const Q t79 = c[4] * t78;
        const Q t80 = shuffled<1, 0, 3, 2>(t78);
        const Q t81 = Q(-c[5], c[5], -c[5], c[5]) * t80;
        const Q t82 = t79 + t81;
        // real block of 5, multiplier 3
        const Q t83 = c[1] * t11;
        const Q t84 = t23 + t83;
        const Q t85 = c[2] * t14;
        const Q t86 = c[3] * t15;
        const Q t87 = t85 + t86;
        const Q t88 = shuffled<0, 4, 2, 6>(t84, t87);
        const Q t89 = shuffled<1, 5, 3, 7>(t84, t87);
        const Q t90 = shuffled<0, 1, 4, 5>(t88, t89);
        // real block of 25, multiplier 23
        const Q t91 = c[4] * t90;
        const Q t92 = shuffled<1, 0, 3, 2>(t90);
        const Q t93 = Q(-c[5], c[5], -c[5], c[5]) * t92;
        const Q t94 = t91 + t93;
        const Q t95 = shuffled<2, 3, 6, 7>(t88, t89);
        const Q t96 = c[10] * t95;
        const Q t97 = shuffled<1, 0, 3, 2>(t95);
        const Q t98 = Q(-c[11], c[11], -c[11], c[11]) * t97;
        const Q t99 = t96 + t98;
        // real block of 5, multiplier 3
        const Q t100 = t26 + x4_29_6_31;
        const Q t101 = c[2] * t15;
        const Q t102 = c[3] * t14;
        const Q t103 = t101 - t102;
        const Q t104 = shuffled<0, 4, 2, 6>(t103, t100);
        const Q t105 = shuffled<1, 5, 3, 7>(t103, t100);
        const Q t106 = shuffled<0, 1, 4, 5>(t104, t105);
        // real block of 25, multiplier 23
        const Q t107 = c[6] * t106;
        const Q t108 = shuffled<1, 0, 3, 2>(t106);
        const Q t109 = Q(c[7], -c[7], c[7], -c[7]) * t108;
        const Q t110 = t107 + t109;
        const Q t111 = shuffled<2, 3, 6, 7>(t104, t105);
        const Q t112 = c[12] * t111;
        const Q t113 = shuffled<1, 0, 3, 2>(t111);
        const Q t114 = Q(c[13], -c[13], c[13], -c[13]) * t113;
        const Q t115 = t112 + t114;
        const P t116 = part<1>(t21);
        // real block of 5, multiplier 3
        const P t117 = t47 + t116;
        const P t118 = t117 + t45;
        const V t119 = part<0>(t118);
        const V t120 = part<1>(t118);
        // real block of 2
        const V t121 = t119 + t120;
        io.out(0, t121);
        const V t122 = t119 - t120;
        io.out(25, t122);
        // real block of 5, multiplier 3
        const Q t123 = c[1] * t21;
        const Q t124 = t50 + t123;
        const Q t125 = shuffled<0, 4, 2, 6>(t53, t124);
        const Q t126 = shuffled<1, 5, 3, 7>(t53, t124);
        const Q t127 = shuffled<0, 1, 4, 5>(t125, t126);
        // real block of 25, multiplier 23
        const Q t128 = c[6] * t127;
        const Q t129 = shuffled<1, 0, 3, 2>(t127);
        const Q t130 = Q(c[7], -c[7], c[7], -c[7]) * t129;
        const Q t131 = t128 + t130;
        const Q t132 = flipped<1, 0, 1, 0>(t131);
        // complex block of 5, multiplier 3
        const Q t133 = t71 + t132;
        const Q t134 = t71 - t132;
        // real block of 5, multiplier 3
        const Q t135 = t56 + t46;
        const Q t136 = shuffled<0, 4, 2, 6>(t135, t59);
        const Q t137 = shuffled<1, 5, 3, 7>(t135, t59);
        const Q t138 = shuffled<0, 1, 4, 5>(t136, t137);
        // real block of 25, multiplier 23
        const Q t139 = Q(-c[14], c[14], -c[14], c[14]) * t138;
        const Q t140 = shuffled<1, 0, 3, 2>(t138);
        const Q t141 = c[15] * t140;
        const Q t142 = t139 + t141;
        const Q t143 = flipped<0, 1, 0, 1>(t142);
        // complex block of 5, multiplier 3
        const Q t144 = t82 + t143;
        const Q t145 = t82 - t143;
        // complex block of 5, multiplier 3
        const Q t146 = t99 + t94;
        const Q t147 = t99 - t94;
        // complex block of 5, multiplier 3
        const Q t148 = t115 + t110;
        const Q t149 = shuffled<0, 5, 2, 7>(t110, t115);
        const Q t150 = shuffled<0, 5, 2, 7>(t115, t110);
        const Q t151 = t149 - t150;
        // complex block of 5, multiplier 3
        const Q t152 = t133 + t146;
        const Q t153 = shuffled<0, 1, 4, 5>(t65, t66);
        const Q t154 = t152 + t153;
        const Q t155 = flipped<1, 0, 1, 0>(t148);
        // complex block of 5, multiplier 3
        const Q t156 = t144 + t155;
        const Q t157 = shuffled<0, 1, 4, 5>(t76, t77);
        const Q t158 = t156 + t157;
        const Q t159 = shuffled<0, 1, 4, 5>(t154, t158);
        const Q t160 = shuffled<2, 3, 6, 7>(t154, t158);
        // complex block of 2
        const Q t161 = t159 + t160;
        const Q t162 = t159 - t160;
        const P t163 = part<0>(t161);
        const P t164 = part<1>(t162);
        const P t165 = shuffled<0, 2>(t163, t164);
        const P t166 = part<1>(t161);
        const P t167 = part<0>(t162);
        const P t168 = shuffled<0, 2>(t166, t167);
        const Q t169 = joined(t165, t168);
        const P t170 = shuffled<1, 3>(t163, t164);
        const P t171 = shuffled<1, 3>(t166, t167);
        const Q t172 = joined(t170, t171);
        // output stage
        const Q t173 = t169 - t172;
        io.out(48, 21, 46, 23, t173);
        const Q t174 = t169 + t172;
        io.out(2, 29, 4, 27, t174);
        // complex block of 5, multiplier 3
        const Q t175 = c[1] * t133;
        const Q t176 = c[0] * t146;
        const Q t177 = t175 - t176;
        const Q t178 = t177 + t153;
        const Q t179 = c[3] * t134;
        const Q t180 = c[2] * t147;
        const Q t181 = t179 - t180;
        const Q t182 = shuffled<1, 0, 3, 2>(t181);
        const Q t183 = flipped<0, 1, 0, 1>(t182);
        const Q t184 = t178 + t183;
        const Q t185 = t178 - t183;
        const Q t186 = c[0] * t133;
        const Q t187 = t153 - t186;
        const Q t188 = c[1] * t146;
        const Q t189 = t187 + t188;
        const Q t190 = c[2] * t134;
        const Q t191 = c[3] * t147;
        const Q t192 = t190 + t191;
        const Q t193 = shuffled<1, 0, 3, 2>(t192);
        const Q t194 = flipped<0, 1, 0, 1>(t193);
        const Q t195 = t189 + t194;
        const Q t196 = t189 - t194;
        // complex block of 5, multiplier 3
        const Q t197 = c[1] * t144;
        const Q t198 = Q(c[0], -c[0], c[0], -c[0]) * t148;
        const Q t199 = t197 + t198;
        const Q t200 = t199 + t157;
        const Q t201 = c[3] * t145;
        const Q t202 = c[2] * t151;
        const Q t203 = t201 - t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = flipped<0, 1, 0, 1>(t204);
        const Q t206 = t200 + t205;
        const Q t207 = t200 - t205;
        const Q t208 = c[0] * t144;
        const Q t209 = t157 - t208;
        const Q t210 = Q(-c[1], c[1], -c[1], c[1]) * t148;
        const Q t211 = t209 + t210;
        const Q t212 = c[2] * t145;
        const Q t213 = c[3] * t151;
        const Q t214 = t212 + t213;
        const Q t215 = shuffled<1, 0, 3, 2>(t214);
        const Q t216 = flipped<0, 1, 0, 1>(t215);
        const Q t217 = t211 + t216;
        const Q t218 = t211 - t216;
        const Q t219 = shuffled<0, 1, 4, 5>(t217, t195);
        const Q t220 = shuffled<2, 3, 6, 7>(t217, t195);
        // complex block of 2
        const Q t221 = t219 + t220;
        const Q t222 = shuffled<0, 5, 2, 7>(t219, t220);
        const Q t223 = shuffled<0, 5, 2, 7>(t220, t219);
        const Q t224 = t222 - t223;
        const P t225 = part<0>(t221);
        const P t226 = part<1>(t224);
        const P t227 = shuffled<0, 2>(t225, t226);
        const P t228 = part<1>(t221);
        const P t229 = part<0>(t224);
        const P t230 = shuffled<0, 2>(t228, t229);
        const Q t231 = joined(t227, t230);
        const P t232 = shuffled<1, 3>(t225, t226);
        const P t233 = shuffled<1, 3>(t228, t229);
        const Q t234 = joined(t232, t233);
        // output stage
        const Q t235 = t231 - t234;
        io.out(6, 17, 8, 19, t235);
        const Q t236 = t231 + t234;
        io.out(44, 33, 42, 31, t236);
        const Q t237 = shuffled<1, 0, 3, 2>(t125);
        const Q t238 = shuffled<2, 3, 4, 5>(t237, t196);
        const Q t239 = shuffled<1, 0, 3, 2>(t126);
        const Q t240 = shuffled<2, 3, 6, 7>(t239, t196);
        // complex block of 2
        const Q t241 = t238 + t240;
        const Q t242 = t238 - t240;
        const P t243 = part<0>(t241);
        const P t244 = part<1>(t242);
        const P t245 = shuffled<0, 2>(t243, t244);
        const P t246 = part<1>(t241);
        const P t247 = part<0>(t242);
        const P t248 = shuffled<0, 2>(t246, t247);
        const Q t249 = joined(t245, t248);
        const P t250 = shuffled<1, 3>(t243, t244);
        const P t251 = shuffled<1, 3>(t246, t247);
        const Q t252 = joined(t250, t251);
        // output stage
        const Q t253 = t249 - t252;
        io.out(40, 13, 38, 15, t253);
        const Q t254 = t249 + t252;
        io.out(10, 37, 12, 35, t254);
        const Q t255 = shuffled<0, 1, 4, 5>(t218, t207);
        const Q t256 = shuffled<2, 3, 6, 7>(t218, t207);
        // complex block of 2
        const Q t257 = t255 + t256;
        const Q t258 = flipped<0, 0, 0, 1>(t255);
        const Q t259 = flipped<0, 0, 0, 1>(t256);
        const Q t260 = t258 - t259;
        const P t261 = part<0>(t257);
        const P t262 = part<1>(t260);
        const P t263 = shuffled<0, 2>(t261, t262);
        const P t264 = part<1>(t257);
        const P t265 = part<0>(t260);
        const P t266 = shuffled<0, 2>(t264, t265);
        const Q t267 = joined(t263, t266);
        const P t268 = shuffled<1, 3>(t261, t262);
        const P t269 = shuffled<1, 3>(t264, t265);
        const Q t270 = joined(t268, t269);
        // output stage
        const Q t271 = t267 - t270;
        io.out(36, 9, 16, 11, t271);
        const Q t272 = t267 + t270;
        io.out(14, 41, 34, 39, t272);
        const Q t273 = shuffled<0, 1, 6, 7>(t185, t136);
        const Q t274 = shuffled<2, 3, 6, 7>(t185, t137);
        // complex block of 2
        const Q t275 = t273 + t274;
        const Q t276 = flipped<0, 1, 0, 0>(t273);
        const Q t277 = flipped<0, 1, 0, 0>(t274);
        const Q t278 = t276 - t277;
        const P t279 = part<0>(t275);
        const P t280 = part<1>(t278);
        const P t281 = shuffled<0, 2>(t279, t280);
        const P t282 = part<1>(t275);
        const P t283 = part<0>(t278);
        const P t284 = shuffled<0, 2>(t282, t283);
        const Q t285 = joined(t281, t284);
        const P t286 = shuffled<1, 3>(t279, t280);
        const P t287 = shuffled<1, 3>(t282, t283);
        const Q t288 = joined(t286, t287);
        // output stage
        const Q t289 = t285 + t288;
        io.out(32, 45, 20, 43, t289);
        const Q t290 = t285 - t288;
        io.out(18, 5, 30, 7, t290);
        const Q t291 = shuffled<0, 1, 4, 5>(t184, t206);
        const Q t292 = shuffled<2, 3, 6, 7>(t184, t206);
        // complex block of 2
        const Q t293 = t291 + t292;
        const Q t294 = t291 - t292;
        const P t295 = part<0>(t293);
        const P t296 = part<1>(t294);
        const P t297 = shuffled<0, 2>(t295, t296);
        const P t298 = part<1>(t293);
        const P t299 = part<0>(t294);
        const P t300 = shuffled<0, 2>(t298, t299);
        const Q t301 = joined(t297, t300);
        const P t302 = shuffled<1, 3>(t295, t296);
        const P t303 = shuffled<1, 3>(t298, t299);
        const Q t304 = joined(t302, t303);
        // output stage
        const Q t305 = t301 + t304;
        io.out(22, 49, 24, 47, t305);
        const Q t306 = t301 - t304;
        io.out(28, 1, 26, 3, t306);
    }
};

}  // namespace zulg
