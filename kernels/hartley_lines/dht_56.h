// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 56.
// Hartley transform of 56 points, form I; up to four lanes to a register.
// 64 sums, 51 differences, 41 products of registers, which do the 636 steps of the graph, those with
// `scale` included; 86 shuffles, 31 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<56> {
    static constexpr int steps = 636;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.7818314824680298,  // c[2]: sin 2 pi 1/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 3/7
        0.9009688679024191,  // c[5]: -cos 2 pi 3/7
        0.7071067811865476,  // c[6]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const V x0 = io.in(0);
        const V x28 = io.in(28);
        // spectrum block of 2
        const V t0 = x0 + x28;
        const V t1 = x0 - x28;
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x55_54_53_52 = io.in(55, 54, 53, 52);
        // input stage
        const Q t2 = x1_2_3_4 + x55_54_53_52;
        const Q t3 = x1_2_3_4 - x55_54_53_52;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x51_50_49_48 = io.in(51, 50, 49, 48);
        const Q t4 = x5_6_7_8 + x51_50_49_48;
        const Q t5 = x5_6_7_8 - x51_50_49_48;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x47_46_45_44 = io.in(47, 46, 45, 44);
        const Q t6 = x9_10_11_12 + x47_46_45_44;
        const Q t7 = x9_10_11_12 - x47_46_45_44;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x43_42_41_40 = io.in(43, 42, 41, 40);
        const Q t8 = x13_14_15_16 + x43_42_41_40;
        const Q t9 = x13_14_15_16 - x43_42_41_40;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x39_38_37_36 = io.in(39, 38, 37, 36);
        const Q t10 = x17_18_19_20 + x39_38_37_36;
        const Q t11 = x17_18_19_20 - x39_38_37_36;
        const Q x21_22_23_24 = io.in(21, 22, 23, 24);
        const Q x35_34_33_32 = io.in(35, 34, 33, 32);
        const Q t12 = x21_22_23_24 + x35_34_33_32;
        const Q t13 = x21_22_23_24 - x35_34_33_32;
        const P x25_26 = io.in(25, 26);
        const P x31_30 = io.in(31, 30);
        const P t14 = x25_26 + x31_30;
        const P t15 = x25_26 - x31_30;
        const V x27 = io.in(27);
        const V x29 = io.in(29);
        const V t16 = x27 + x29;
        const V t17 = x27 - x29;
        const P t18 = part<1>(t4);
        const V t19 = part<0>(t18);
        const P t20 = part<0>(t12);
        const V t21 = part<0>(t20);
        // mirrored skew block of 4, multiplier 7
        const V t22 = t19 - t21;
        const P t23 = part<1>(t5);
        const V t24 = part<0>(t23);
        const P t25 = part<0>(t13);
        const V t26 = part<0>(t25);
        const V t27 = t24 + t26;
        const Q t28 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t29 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t30 = shuffled<2, 3, 6, 7>(t28, t29);
        const Q t31 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t32 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t33 = shuffled<2, 3, 6, 7>(t31, t32);
        const Q t34 = flipped<0, 1, 0, 1>(t33);
        // complex block of 2
        const Q t35 = t30 + t34;
        const Q t36 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t37 = shuffled<0, 4, 2, 6>(t12, t13);
        const Q t38 = shuffled<2, 3, 6, 7>(t36, t37);
        const Q t39 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t40 = shuffled<0, 1, 4, 5>(t36, t39);
        const Q t41 = flipped<0, 1, 0, 1>(t40);
        // complex block of 2
        const Q t42 = t38 + t41;
        const Q t43 = t38 - t41;
        const P t44 = shuffled<1, 3>(t20, t25);
        const P t45 = part<0>(t3);
        const P t46 = shuffled<1, 3>(t14, t45);
        const Q t47 = joined(t44, t46);
        const P t48 = part<0>(t28);
        const P t49 = flipped<0, 1>(t48);
        const P t50 = part<0>(t2);
        const P t51 = shuffled<1, 3>(t50, t15);
        const P t52 = flipped<0, 1>(t51);
        const Q t53 = joined(t49, t52);
        // complex block of 2
        const Q t54 = t47 + t53;
        const V t55 = flipped<1>(t17);
        const P t56 = joined(t16, t55);
        const P t57 = part<0>(t6);
        const P t58 = part<0>(t7);
        const P t59 = shuffled<0, 2>(t57, t58);
        const Q t60 = joined(t56, t59);
        const Q t61 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t62 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t63 = shuffled<0, 1, 6, 7>(t61, t62);
        const Q t64 = flipped<0, 0, 0, 1>(t63);
        // complex block of 2
        const Q t65 = t60 + t64;
        const Q t66 = flipped<1, 0, 0, 1>(t64);
        const Q t67 = flipped<0, 1, 1, 0>(t60);
        const Q t68 = t66 + t67;
        const P t69 = part<1>(t12);
        const P t70 = part<1>(t13);
        const P t71 = shuffled<1, 3>(t69, t70);
        const P t72 = shuffled<0, 2>(t14, t15);
        const Q t73 = joined(t71, t72);
        const Q t74 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t75 = shuffled<2, 3, 6, 7>(t74, t61);
        const Q t76 = flipped<1, 0, 1, 0>(t75);
        // complex block of 2
        const Q t77 = t73 + t76;
        const Q t78 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t79 = shuffled<0, 1, 6, 7>(t31, t78);
        const Q t80 = shuffled<0, 1, 4, 5>(t32, t62);
        const Q t81 = flipped<1, 0, 1, 0>(t80);
        // complex block of 2
        const Q t82 = t79 + t81;
        const P t83 = joined(t0, t1);
        const P t84 = part<0>(t29);
        // spectrum block of 2
        const P t85 = t83 + t84;
        const P t86 = t83 - t84;
        // mirrored skew block of 4, multiplier 7
        const V t87 = c[6] * t22;
        const V t88 = c[6] * t27;
        const V t89 = t87 + t88;
        const V t90 = t87 - t88;
        const V t91 = t19 + t21;
        const V t92 = t26 - t24;
        // complex block of 2
        const Q t93 = t30 - t34;
        // complex block of 2
        const Q t94 = t47 - t53;
        const Q t95 = shuffled<1, 0, 3, 2>(t94);
        const Q t96 = flipped<1, 0, 0, 0>(t95);
        // complex block of 2
        const Q t97 = t93 - t96;
        const Q t98 = t93 + t96;
        // complex block of 2
        const Q t99 = t35 + t54;
        // complex block of 2
        const Q t100 = t42 + t65;
        // complex block of 2
        const Q t101 = t99 + t100;
        const Q t102 = t99 - t100;
        // complex block of 2
        const Q t103 = t35 - t54;
        // complex block of 2
        const Q t104 = t42 - t65;
        const Q t105 = shuffled<1, 0, 3, 2>(t104);
        const Q t106 = flipped<0, 1, 0, 1>(t105);
        // complex block of 2
        const Q t107 = t103 + t106;
        const Q t108 = t103 - t106;
        // complex block of 8, multiplier 7
        const Q t109 = c[6] * t43;
        const Q t110 = shuffled<1, 0, 3, 2>(t109);
        const Q t111 = flipped<1, 0, 1, 0>(t110);
        const Q t112 = t109 + t111;
        const Q t113 = c[6] * t68;
        const Q t114 = shuffled<1, 0, 3, 2>(t113);
        const Q t115 = flipped<0, 1, 0, 1>(t113);
        const Q t116 = t114 + t115;
        const Q t117 = shuffled<1, 0, 3, 2>(t112);
        const Q t118 = flipped<1, 0, 1, 0>(t116);
        // complex block of 2
        const Q t119 = t117 + t118;
        const Q t120 = flipped<0, 1, 0, 1>(t117);
        const Q t121 = t116 + t120;
        const Q t122 = flipped<1, 1, 1, 0>(t76);
        const Q t123 = flipped<0, 0, 0, 1>(t73);
        // complex block of 2
        const Q t124 = t122 + t123;
        const Q t125 = flipped<0, 1, 0, 1>(t79);
        // complex block of 2
        const Q t126 = t80 + t125;
        const Q t127 = shuffled<2, 3, 6, 7>(t82, t77);
        // complex block of 8, multiplier 7
        const Q t128 = c[6] * t127;
        const Q t129 = shuffled<1, 0, 3, 2>(t128);
        const Q t130 = flipped<0, 1, 0, 1>(t128);
        const Q t131 = t129 + t130;
        const Q t132 = shuffled<0, 1, 4, 5>(t124, t77);
        const Q t133 = shuffled<1, 0, 3, 2>(t82);
        const Q t134 = shuffled<0, 1, 4, 5>(t126, t133);
        const Q t135 = flipped<0, 0, 1, 1>(t134);
        // complex block of 2
        const Q t136 = t132 + t135;
        const Q t137 = t132 - t135;
        const Q t138 = shuffled<1, 0, 3, 2>(t131);
        const Q t139 = shuffled<2, 3, 6, 7>(t124, t138);
        const Q t140 = shuffled<2, 3, 4, 5>(t126, t131);
        const Q t141 = flipped<0, 0, 1, 0>(t140);
        // complex block of 2
        const Q t142 = t139 + t141;
        const Q t143 = flipped<1, 1, 1, 0>(t141);
        const Q t144 = flipped<0, 0, 0, 1>(t139);
        const Q t145 = t143 + t144;
        const P t146 = joined(t91, t89);
        const Q t147 = joined(t146, t86);
        const P t148 = flipped<1, 1>(t85);
        const P t149 = joined(t92, t90);
        const Q t150 = joined(t148, t149);
        // spectrum block of 2
        const Q t151 = t147 - t150;
        const Q t152 = flipped<0, 1, 0, 1>(t119);
        // complex block of 2
        const Q t153 = t97 + t152;
        const Q t154 = shuffled<1, 0, 3, 2>(t121);
        const Q t155 = flipped<0, 1, 0, 1>(t154);
        // complex block of 2
        const Q t156 = t98 + t155;
        const Q t157 = shuffled<0, 4, 2, 6>(t101, t153);
        const Q t158 = shuffled<0, 4, 2, 6>(t107, t156);
        const Q t159 = shuffled<0, 1, 4, 5>(t157, t158);
        const Q t160 = shuffled<2, 3, 6, 7>(t157, t158);
        // spectrum block of 7
        const Q t161 = t159 + t160;
        const Q t162 = c[0] * t159;
        const Q t163 = c[1] * t160;
        const Q t164 = t162 - t163;
        const Q t165 = shuffled<1, 5, 3, 7>(t101, t153);
        const Q t166 = shuffled<1, 5, 3, 7>(t107, t156);
        const Q t167 = shuffled<0, 1, 4, 5>(t165, t166);
        const Q t168 = c[2] * t167;
        const Q t169 = shuffled<2, 3, 6, 7>(t165, t166);
        const Q t170 = c[3] * t169;
        const Q t171 = t168 + t170;
        const Q t172 = c[1] * t159;
        const Q t173 = t151 - t172;
        const Q t174 = c[3] * t167;
        const Q t175 = c[4] * t169;
        const Q t176 = t174 - t175;
        const Q t177 = c[5] * t159;
        const Q t178 = t151 - t177;
        const Q t179 = c[4] * t167;
        const Q t180 = c[2] * t169;
        const Q t181 = t179 - t180;
        const Q t182 = flipped<0, 0, 0, 1>(t142);
        // complex block of 2
        const Q t183 = t136 + t182;
        const Q t184 = shuffled<1, 0, 3, 2>(t145);
        const Q t185 = flipped<0, 1, 0, 1>(t184);
        // complex block of 2
        const Q t186 = t137 + t185;
        const P t187 = part<0>(t183);
        const P t188 = part<1>(t183);
        const P t189 = shuffled<0, 2>(t187, t188);
        const P t190 = part<0>(t186);
        const P t191 = part<1>(t186);
        const P t192 = shuffled<0, 2>(t190, t191);
        const Q t193 = joined(t189, t192);
        // spectrum block of 7
        const Q t194 = t161 + t193;
        const Q t195 = t194 + t151;
        io.out(0, 49, 42, 35, t195);
        const Q t196 = c[5] * t193;
        const Q t197 = t164 - t196;
        const Q t198 = t197 + t151;
        const P t199 = shuffled<1, 3>(t187, t188);
        const P t200 = shuffled<1, 3>(t190, t191);
        const Q t201 = joined(t199, t200);
        const Q t202 = c[4] * t201;
        const Q t203 = t171 + t202;
        const Q t204 = t198 - t203;
        io.out(48, 41, 34, 27, t204);
        const Q t205 = t198 + t203;
        io.out(8, 1, 50, 43, t205);
        const Q t206 = c[5] * t160;
        const Q t207 = t173 - t206;
        const Q t208 = c[0] * t193;
        const Q t209 = t207 + t208;
        const Q t210 = c[2] * t201;
        const Q t211 = t176 - t210;
        const Q t212 = t209 - t211;
        io.out(40, 33, 26, 19, t212);
        const Q t213 = t209 + t211;
        io.out(16, 9, 2, 51, t213);
        const Q t214 = c[0] * t160;
        const Q t215 = t178 + t214;
        const Q t216 = c[1] * t193;
        const Q t217 = t215 - t216;
        const Q t218 = c[3] * t201;
        const Q t219 = t181 + t218;
        const Q t220 = t217 - t219;
        io.out(32, 25, 18, 11, t220);
        const Q t221 = t217 + t219;
        io.out(24, 17, 10, 3, t221);
        const Q t222 = flipped<1, 1, 0, 0>(t147);
        const Q t223 = flipped<1, 1, 0, 0>(t150);
        // spectrum block of 2
        const Q t224 = t222 + t223;
        // complex block of 2
        const Q t225 = t97 - t152;
        // complex block of 2
        const Q t226 = t98 - t155;
        const Q t227 = shuffled<0, 4, 2, 6>(t102, t225);
        const Q t228 = shuffled<0, 4, 2, 6>(t108, t226);
        const Q t229 = shuffled<0, 1, 4, 5>(t227, t228);
        const Q t230 = shuffled<2, 3, 6, 7>(t227, t228);
        // spectrum block of 7
        const Q t231 = t229 + t230;
        const Q t232 = c[0] * t229;
        const Q t233 = c[1] * t230;
        const Q t234 = t232 - t233;
        const Q t235 = shuffled<1, 5, 3, 7>(t102, t225);
        const Q t236 = shuffled<1, 5, 3, 7>(t108, t226);
        const Q t237 = shuffled<0, 1, 4, 5>(t235, t236);
        const Q t238 = c[2] * t237;
        const Q t239 = shuffled<2, 3, 6, 7>(t235, t236);
        const Q t240 = c[3] * t239;
        const Q t241 = t238 + t240;
        const Q t242 = c[1] * t229;
        const Q t243 = t224 - t242;
        const Q t244 = c[3] * t237;
        const Q t245 = c[4] * t239;
        const Q t246 = t244 - t245;
        const Q t247 = c[5] * t229;
        const Q t248 = t224 - t247;
        const Q t249 = c[4] * t237;
        const Q t250 = c[2] * t239;
        const Q t251 = t249 - t250;
        // complex block of 2
        const Q t252 = t136 - t182;
        // complex block of 2
        const Q t253 = t137 - t185;
        const P t254 = part<0>(t252);
        const P t255 = part<1>(t252);
        const P t256 = shuffled<0, 2>(t254, t255);
        const P t257 = part<0>(t253);
        const P t258 = part<1>(t253);
        const P t259 = shuffled<0, 2>(t257, t258);
        const Q t260 = joined(t256, t259);
        // spectrum block of 7
        const Q t261 = t231 + t260;
        const Q t262 = t261 + t224;
        io.out(28, 21, 14, 7, t262);
        const Q t263 = c[5] * t260;
        const Q t264 = t234 - t263;
        const Q t265 = t264 + t224;
        const P t266 = shuffled<1, 3>(t254, t255);
        const P t267 = shuffled<1, 3>(t257, t258);
        const Q t268 = joined(t266, t267);
        const Q t269 = c[4] * t268;
        const Q t270 = t241 + t269;
        const Q t271 = t265 - t270;
        io.out(20, 13, 6, 55, t271);
        const Q t272 = t265 + t270;
        io.out(36, 29, 22, 15, t272);
        const Q t273 = c[5] * t230;
        const Q t274 = t243 - t273;
        const Q t275 = c[0] * t260;
        const Q t276 = t274 + t275;
        const Q t277 = c[2] * t268;
        const Q t278 = t246 - t277;
        const Q t279 = t276 - t278;
        io.out(12, 5, 54, 47, t279);
        const Q t280 = t276 + t278;
        io.out(44, 37, 30, 23, t280);
        const Q t281 = c[0] * t230;
        const Q t282 = t248 + t281;
        const Q t283 = c[1] * t260;
        const Q t284 = t282 - t283;
        const Q t285 = c[3] * t268;
        const Q t286 = t251 + t285;
        const Q t287 = t284 - t286;
        io.out(4, 53, 46, 39, t287);
        const Q t288 = t284 + t286;
        io.out(52, 45, 38, 31, t288);
    }
};

}  // namespace zulg
