// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 64.
// Hartley transform of 64 points, form I; up to four lanes to a register.
// 73 sums, 53 differences, 36 products of registers, which do the 660 steps of the graph, those with
// `scale` included; 173 shuffles, 34 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<64> {
    static constexpr int steps = 660;  // with `scale`
    static constexpr double inverseRoot = 0.125;  // 1/sqrt(64), for `scale`
    static constexpr double constants[] = {
        0.3826834323650898,  // c[0]: -sin 2 pi 15/16
        0.9238795325112867,  // c[1]: cos 2 pi 15/16
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
        0.8314696123025452,  // c[3]: cos 2 pi 58/64
        0.9807852804032304,  // c[4]: cos 2 pi 62/64
        0.5555702330196022,  // c[5]: -sin 2 pi 58/64
        0.19509032201612828,  // c[6]: -sin 2 pi 62/64
        0.9951847266721969,  // c[7]: cos 2 pi 63/64
        0.0980171403295606,  // c[8]: -sin 2 pi 63/64
        0.9569403357322088,  // c[9]: cos 2 pi 61/64
        0.2902846772544624,  // c[10]: -sin 2 pi 61/64
        0.881921264348355,  // c[11]: cos 2 pi 59/64
        0.47139673682599764,  // c[12]: -sin 2 pi 59/64
        0.773010453362737,  // c[13]: cos 2 pi 57/64
        0.6343932841636455,  // c[14]: -sin 2 pi 57/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const V x0 = io.in(0);
        const V x32 = io.in(32);
        // spectrum block of 2
        const V t0 = x0 + x32;
        const V t1 = x0 - x32;
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x63_62_61_60 = io.in(63, 62, 61, 60);
        // input stage
        const Q t2 = x1_2_3_4 + x63_62_61_60;
        const Q t3 = x1_2_3_4 - x63_62_61_60;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x59_58_57_56 = io.in(59, 58, 57, 56);
        const Q t4 = x5_6_7_8 + x59_58_57_56;
        const Q t5 = x5_6_7_8 - x59_58_57_56;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x55_54_53_52 = io.in(55, 54, 53, 52);
        const Q t6 = x9_10_11_12 + x55_54_53_52;
        const Q t7 = x9_10_11_12 - x55_54_53_52;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x51_50_49_48 = io.in(51, 50, 49, 48);
        const Q t8 = x13_14_15_16 + x51_50_49_48;
        const Q t9 = x13_14_15_16 - x51_50_49_48;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x47_46_45_44 = io.in(47, 46, 45, 44);
        const Q t10 = x17_18_19_20 + x47_46_45_44;
        const Q t11 = x17_18_19_20 - x47_46_45_44;
        const Q x21_22_23_24 = io.in(21, 22, 23, 24);
        const Q x43_42_41_40 = io.in(43, 42, 41, 40);
        const Q t12 = x21_22_23_24 + x43_42_41_40;
        const Q t13 = x21_22_23_24 - x43_42_41_40;
        const Q x25_26_27_28 = io.in(25, 26, 27, 28);
        const Q x39_38_37_36 = io.in(39, 38, 37, 36);
        const Q t14 = x25_26_27_28 + x39_38_37_36;
        const Q t15 = x25_26_27_28 - x39_38_37_36;
        const P x29_30 = io.in(29, 30);
        const P x35_34 = io.in(35, 34);
        const P t16 = x29_30 + x35_34;
        const P t17 = x29_30 - x35_34;
        const V x31 = io.in(31);
        const V x33 = io.in(33);
        const V t18 = x31 + x33;
        const V t19 = x31 - x33;
        const Q t20 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t21 = shuffled<1, 5, 3, 7>(t10, t11);
        const Q t22 = shuffled<2, 3, 6, 7>(t20, t21);
        const Q t23 = shuffled<1, 5, 3, 7>(t14, t15);
        const Q t24 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t25 = shuffled<2, 3, 6, 7>(t23, t24);
        const Q t26 = flipped<0, 1, 0, 1>(t25);
        // complex block of 2
        const Q t27 = t22 + t26;
        const Q t28 = t22 - t26;
        const P t29 = part<1>(t4);
        const V t30 = part<1>(t29);
        const P t31 = part<1>(t12);
        const V t32 = part<1>(t31);
        // mirrored skew block of 4
        const V t33 = t30 - t32;
        const P t34 = part<1>(t5);
        const V t35 = part<1>(t34);
        const P t36 = part<1>(t13);
        const V t37 = part<1>(t36);
        const V t38 = t35 + t37;
        const V t39 = flipped<1>(t19);
        const P t40 = joined(t18, t39);
        const P t41 = part<0>(t4);
        const P t42 = part<0>(t5);
        const P t43 = shuffled<0, 2>(t41, t42);
        const Q t44 = joined(t40, t43);
        const Q t45 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t46 = shuffled<0, 4, 2, 6>(t14, t15);
        const Q t47 = shuffled<0, 1, 6, 7>(t45, t46);
        const Q t48 = flipped<0, 0, 0, 1>(t47);
        // complex block of 2
        const Q t49 = t44 + t48;
        const Q t50 = shuffled<0, 1, 6, 7>(t48, t44);
        const Q t51 = shuffled<0, 1, 6, 7>(t44, t48);
        const Q t52 = t50 - t51;
        const Q t53 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t54 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t55 = shuffled<0, 1, 4, 5>(t53, t54);
        const Q t56 = shuffled<0, 4, 2, 6>(t12, t13);
        const Q t57 = shuffled<0, 4, 2, 6>(t10, t11);
        const Q t58 = shuffled<2, 3, 6, 7>(t56, t57);
        const Q t59 = flipped<1, 0, 1, 0>(t58);
        // complex block of 2
        const Q t60 = t55 + t59;
        const Q t61 = t55 - t59;
        const Q t62 = shuffled<0, 1, 4, 5>(t57, t56);
        const Q t63 = shuffled<2, 3, 6, 7>(t54, t53);
        const Q t64 = flipped<0, 1, 0, 1>(t63);
        // complex block of 2
        const Q t65 = t62 + t64;
        const Q t66 = t62 - t64;
        const P t67 = part<0>(t46);
        const P t68 = shuffled<0, 2>(t16, t17);
        const Q t69 = joined(t67, t68);
        const Q t70 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t71 = shuffled<2, 3, 6, 7>(t70, t45);
        const Q t72 = flipped<1, 0, 1, 0>(t71);
        // complex block of 2
        const Q t73 = t69 + t72;
        const Q t74 = t69 - t72;
        const Q t75 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t76 = shuffled<0, 1, 4, 5>(t20, t75);
        const P t77 = shuffled<1, 3>(t16, t17);
        const P t78 = flipped<1, 0>(t77);
        const P t79 = part<0>(t23);
        const P t80 = flipped<1, 0>(t79);
        const Q t81 = joined(t78, t80);
        // complex block of 2
        const Q t82 = t76 + t81;
        const Q t83 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t84 = shuffled<0, 1, 4, 5>(t24, t83);
        const Q t85 = shuffled<1, 5, 3, 7>(t12, t13);
        const Q t86 = shuffled<0, 1, 4, 5>(t85, t21);
        const Q t87 = flipped<1, 0, 1, 0>(t86);
        // complex block of 2
        const Q t88 = t84 + t87;
        const P t89 = joined(t0, t1);
        const P t90 = part<1>(t83);
        const P t91 = flipped<0, 1>(t90);
        // spectrum block of 2
        const P t92 = t89 + t91;
        const P t93 = t89 - t91;
        const Q t94 = shuffled<0, 1, 4, 5>(t27, t28);
        const Q t95 = shuffled<1, 0, 3, 2>(t28);
        const Q t96 = shuffled<2, 3, 6, 7>(t27, t95);
        const Q t97 = flipped<0, 0, 1, 0>(t96);
        // complex block of 2
        const Q t98 = t94 + t97;
        const Q t99 = t94 - t97;
        const P t100 = part<0>(t99);
        const P t101 = shuffled<1, 0>(t100);
        const P t102 = flipped<0, 1>(t101);
        // spectrum block of 16
        const P t103 = t100 + t102;
        // mirrored skew block of 4
        const V t104 = c[2] * t33;
        const V t105 = c[2] * t38;
        const V t106 = t104 - t105;
        const V t107 = t104 + t105;
        const V t108 = t30 + t32;
        const V t109 = t35 - t37;
        const Q t110 = shuffled<2, 3, 6, 7>(t60, t52);
        // complex block of 16
        const Q t111 = Q(c[0], c[0], c[1], c[1]) * t110;
        const Q t112 = shuffled<1, 0, 3, 2>(t110);
        const Q t113 = Q(-c[1], c[1], -c[0], c[0]) * t112;
        const Q t114 = t111 + t113;
        const Q t115 = shuffled<2, 3, 6, 7>(t73, t66);
        const Q t116 = shuffled<1, 0, 3, 2>(t115);
        const Q t117 = Q(c[0], c[0], c[1], c[1]) * t116;
        const Q t118 = Q(c[1], -c[1], c[0], -c[0]) * t115;
        const Q t119 = t117 + t118;
        const Q t120 = shuffled<2, 3, 6, 7>(t49, t114);
        const Q t121 = shuffled<2, 3, 6, 7>(t65, t119);
        const Q t122 = flipped<0, 0, 1, 0>(t121);
        // complex block of 2
        const Q t123 = t120 - t122;
        const Q t124 = shuffled<2, 3, 4, 5>(t61, t114);
        const Q t125 = shuffled<2, 3, 4, 5>(t74, t119);
        const Q t126 = flipped<0, 0, 1, 0>(t125);
        // complex block of 2
        const Q t127 = t124 - t126;
        // complex block of 2
        const Q t128 = t120 + t122;
        // complex block of 2
        const Q t129 = t124 + t126;
        const Q t130 = shuffled<0, 1, 4, 5>(t73, t60);
        // complex block of 16
        const Q t131 = c[2] * t130;
        const Q t132 = shuffled<1, 0, 3, 2>(t131);
        const Q t133 = flipped<1, 0, 1, 0>(t132);
        const Q t134 = t131 + t133;
        const Q t135 = shuffled<0, 1, 6, 7>(t61, t134);
        const Q t136 = shuffled<1, 0, 3, 2>(t134);
        const Q t137 = shuffled<0, 1, 4, 5>(t74, t136);
        const Q t138 = flipped<0, 0, 1, 0>(t137);
        // complex block of 2
        const Q t139 = t135 + t138;
        const Q t140 = t135 - t138;
        const Q t141 = shuffled<0, 1, 4, 5>(t49, t52);
        const Q t142 = shuffled<1, 0, 3, 2>(t66);
        const Q t143 = shuffled<0, 1, 4, 5>(t65, t142);
        const Q t144 = flipped<0, 0, 1, 0>(t143);
        // complex block of 2
        const Q t145 = t141 + t144;
        const Q t146 = t141 - t144;
        // complex block of 2
        const Q t147 = t76 - t81;
        const Q t148 = shuffled<2, 3, 0, 1>(t82);
        // mirrored skew block of 16
        const Q t149 = Q(c[3], c[3], c[4], c[4]) * t148;
        const Q t150 = shuffled<1, 0, 3, 2>(t148);
        const Q t151 = Q(-c[5], c[5], -c[6], c[6]) * t150;
        const Q t152 = t149 + t151;
        // complex block of 2
        const Q t153 = t84 - t87;
        const Q t154 = shuffled<2, 3, 0, 1>(t88);
        // mirrored skew block of 16
        const Q t155 = Q(c[6], c[6], c[5], c[5]) * t154;
        const Q t156 = shuffled<1, 0, 3, 2>(t154);
        const Q t157 = Q(-c[4], c[4], -c[3], c[3]) * t156;
        const Q t158 = t155 + t157;
        const Q t159 = shuffled<0, 1, 6, 7>(t147, t152);
        const Q t160 = shuffled<2, 3, 4, 5>(t153, t158);
        const Q t161 = flipped<0, 1, 0, 1>(t160);
        // complex block of 2
        const Q t162 = t159 + t161;
        const Q t163 = t159 - t161;
        const Q t164 = shuffled<0, 1, 6, 7>(t153, t158);
        const Q t165 = shuffled<2, 3, 4, 5>(t147, t152);
        const Q t166 = flipped<0, 1, 0, 1>(t165);
        // complex block of 2
        const Q t167 = t164 + t166;
        const Q t168 = t164 - t166;
        const Q t169 = shuffled<2, 3, 6, 7>(t98, t99);
        // spectrum block of 16
        const Q t170 = Q(c[1], c[1], c[0], c[0]) * t169;
        const Q t171 = shuffled<1, 0, 3, 2>(t169);
        const Q t172 = Q(-c[0], c[0], -c[1], c[1]) * t171;
        const Q t173 = t170 + t172;
        const P t174 = shuffled<0, 2>(t92, t93);
        const P t175 = shuffled<1, 3>(t92, t93);
        const Q t176 = joined(t174, t175);
        const V t177 = flipped<1>(t109);
        const P t178 = joined(t108, t177);
        const V t179 = flipped<1>(t107);
        const P t180 = joined(t106, t179);
        const Q t181 = joined(t178, t180);
        // spectrum block of 2
        const Q t182 = t176 + t181;
        const Q t183 = t176 - t181;
        const P t184 = part<0>(t98);
        // spectrum block of 16
        const P t185 = P(c[2], -c[2]) * t103;
        const P t186 = shuffled<0, 3>(t184, t185);
        const P t187 = part<0>(t173);
        const P t188 = part<1>(t173);
        const P t189 = shuffled<0, 2>(t187, t188);
        const Q t190 = joined(t186, t189);
        // spectrum block of 2
        const Q t191 = t182 + t190;
        const Q t192 = t182 - t190;
        const P t193 = shuffled<1, 2>(t184, t185);
        const P t194 = shuffled<1, 3>(t187, t188);
        const Q t195 = joined(t193, t194);
        // spectrum block of 2
        const Q t196 = t183 - t195;
        const Q t197 = t183 + t195;
        // complex block of 2
        const Q t198 = t145 + t139;
        // complex block of 2
        const Q t199 = t128 + t129;
        // complex block of 2
        const Q t200 = t198 - t199;
        const Q t201 = t198 + t199;
        const P t202 = part<0>(t200);
        const P t203 = shuffled<1, 0>(t202);
        const P t204 = flipped<0, 1>(t203);
        // spectrum block of 64
        const P t205 = t202 + t204;
        // complex block of 2
        const Q t206 = t145 - t139;
        // complex block of 2
        const Q t207 = t128 - t129;
        const Q t208 = shuffled<1, 0, 3, 2>(t207);
        const Q t209 = flipped<0, 1, 0, 1>(t208);
        // complex block of 2
        const Q t210 = t206 + t209;
        const Q t211 = t206 - t209;
        // complex block of 8
        const Q t212 = c[2] * t123;
        const Q t213 = shuffled<1, 0, 3, 2>(t212);
        const Q t214 = flipped<1, 0, 1, 0>(t213);
        const Q t215 = t212 + t214;
        const Q t216 = c[2] * t127;
        const Q t217 = shuffled<1, 0, 3, 2>(t216);
        const Q t218 = flipped<1, 0, 1, 0>(t217);
        const Q t219 = t216 + t218;
        const Q t220 = shuffled<1, 0, 3, 2>(t219);
        const Q t221 = flipped<1, 0, 1, 0>(t220);
        // complex block of 2
        const Q t222 = t215 + t221;
        const Q t223 = t215 - t221;
        const Q t224 = shuffled<1, 0, 3, 2>(t140);
        const Q t225 = flipped<1, 0, 1, 0>(t224);
        // complex block of 2
        const Q t226 = t146 + t225;
        const Q t227 = t146 - t225;
        // complex block of 2
        const Q t228 = t226 + t222;
        const Q t229 = t226 - t222;
        const Q t230 = shuffled<1, 0, 3, 2>(t223);
        const Q t231 = flipped<1, 0, 1, 0>(t230);
        // complex block of 2
        const Q t232 = t227 + t231;
        const Q t233 = t227 - t231;
        // complex block of 2
        const Q t234 = t162 + t167;
        const Q t235 = t162 - t167;
        // mirrored skew block of 8
        const Q t236 = c[2] * t235;
        const Q t237 = shuffled<1, 0, 3, 2>(t236);
        const Q t238 = flipped<0, 1, 0, 1>(t237);
        const Q t239 = t236 + t238;
        const Q t240 = shuffled<1, 0, 3, 2>(t168);
        const Q t241 = flipped<1, 0, 1, 0>(t240);
        // complex block of 2
        const Q t242 = t163 + t241;
        // mirrored skew block of 8
        const Q t243 = c[1] * t242;
        const Q t244 = shuffled<1, 0, 3, 2>(t242);
        const Q t245 = Q(-c[0], c[0], -c[0], c[0]) * t244;
        const Q t246 = t243 + t245;
        // complex block of 2
        const Q t247 = t163 - t241;
        // mirrored skew block of 8
        const Q t248 = c[0] * t247;
        const Q t249 = shuffled<1, 0, 3, 2>(t247);
        const Q t250 = Q(-c[1], c[1], -c[1], c[1]) * t249;
        const Q t251 = t248 + t250;
        const Q t252 = shuffled<2, 3, 4, 5>(t201, t228);
        // spectrum block of 64
        const Q t253 = Q(c[7], c[7], c[4], c[4]) * t252;
        const Q t254 = shuffled<1, 0, 3, 2>(t252);
        const Q t255 = Q(-c[8], c[8], -c[6], c[6]) * t254;
        const Q t256 = t253 + t255;
        const P t257 = part<0>(t191);
        const P t258 = part<0>(t192);
        const P t259 = shuffled<0, 2>(t257, t258);
        const P t260 = part<1>(t191);
        const P t261 = part<0>(t191);
        const P t262 = shuffled<0, 3>(t260, t261);
        const Q t263 = joined(t259, t262);
        const P t264 = part<0>(t234);
        const P t265 = flipped<0, 1>(t264);
        const P t266 = part<1>(t234);
        const P t267 = part<0>(t246);
        const P t268 = shuffled<0, 2>(t266, t267);
        const Q t269 = joined(t265, t268);
        // spectrum block of 2
        const Q t270 = t263 + t269;
        const Q t271 = t263 - t269;
        const P t272 = part<0>(t201);
        // spectrum block of 64
        const P t273 = P(c[2], -c[2]) * t205;
        const P t274 = shuffled<0, 3>(t272, t273);
        const P t275 = part<0>(t256);
        const P t276 = part<1>(t256);
        const P t277 = shuffled<0, 2>(t275, t276);
        const Q t278 = joined(t274, t277);
        // spectrum block of 2
        const Q t279 = t270 + t278;
        io.out(0, 56, 63, 62, t279);
        const Q t280 = t270 - t278;
        io.out(32, 24, 31, 30, t280);
        const P t281 = shuffled<1, 2>(t272, t273);
        const P t282 = shuffled<1, 3>(t275, t276);
        const Q t283 = joined(t281, t282);
        // spectrum block of 2
        const Q t284 = t271 - t283;
        io.out(48, 40, 47, 46, t284);
        const Q t285 = t271 + t283;
        io.out(16, 8, 15, 14, t285);
        const Q t286 = shuffled<2, 3, 4, 5>(t228, t211);
        // spectrum block of 64
        const Q t287 = Q(c[9], c[9], c[1], c[1]) * t286;
        const Q t288 = shuffled<1, 0, 3, 2>(t286);
        const Q t289 = Q(-c[10], c[10], -c[0], c[0]) * t288;
        const Q t290 = t287 + t289;
        const Q t291 = shuffled<2, 3, 4, 5>(t211, t232);
        const Q t292 = Q(c[11], c[11], c[3], c[3]) * t291;
        const Q t293 = shuffled<1, 0, 3, 2>(t291);
        const Q t294 = Q(-c[12], c[12], -c[5], c[5]) * t293;
        const Q t295 = t292 + t294;
        const P t296 = part<0>(t196);
        const P t297 = shuffled<1, 2>(t260, t296);
        const P t298 = part<1>(t196);
        const P t299 = part<0>(t196);
        const P t300 = shuffled<0, 3>(t298, t299);
        const Q t301 = joined(t297, t300);
        const P t302 = part<1>(t246);
        const P t303 = part<0>(t239);
        const P t304 = shuffled<0, 3>(t302, t303);
        const P t305 = flipped<0, 1>(t304);
        const P t306 = part<1>(t239);
        const P t307 = part<0>(t251);
        const P t308 = shuffled<1, 2>(t306, t307);
        const P t309 = flipped<1, 0>(t308);
        const Q t310 = joined(t305, t309);
        // spectrum block of 2
        const Q t311 = t301 + t310;
        const Q t312 = t301 - t310;
        const P t313 = part<0>(t290);
        const P t314 = part<1>(t290);
        const P t315 = shuffled<0, 2>(t313, t314);
        const P t316 = part<0>(t295);
        const P t317 = part<1>(t295);
        const P t318 = shuffled<0, 2>(t316, t317);
        const Q t319 = joined(t315, t318);
        // spectrum block of 2
        const Q t320 = t311 + t319;
        io.out(61, 60, 59, 58, t320);
        const Q t321 = t311 - t319;
        io.out(29, 28, 27, 26, t321);
        const P t322 = shuffled<1, 3>(t313, t314);
        const P t323 = shuffled<1, 3>(t316, t317);
        const Q t324 = joined(t322, t323);
        // spectrum block of 2
        const Q t325 = t312 - t324;
        io.out(45, 44, 43, 42, t325);
        const Q t326 = t312 + t324;
        io.out(13, 12, 11, 10, t326);
        const Q t327 = shuffled<2, 3, 6, 7>(t232, t200);
        // spectrum block of 64
        const Q t328 = Q(c[13], c[13], c[14], c[14]) * t327;
        const Q t329 = shuffled<1, 0, 3, 2>(t327);
        const Q t330 = Q(-c[14], c[14], -c[13], c[13]) * t329;
        const Q t331 = t328 + t330;
        const Q t332 = Q(c[5], c[5], c[12], c[12]) * t229;
        const Q t333 = shuffled<1, 0, 3, 2>(t229);
        const Q t334 = Q(-c[3], c[3], -c[11], c[11]) * t333;
        const Q t335 = t332 + t334;
        const P t336 = part<1>(t192);
        const P t337 = shuffled<1, 2>(t298, t336);
        const P t338 = part<1>(t192);
        const P t339 = shuffled<1, 3>(t258, t338);
        const Q t340 = joined(t337, t339);
        const P t341 = part<1>(t251);
        const P t342 = shuffled<0, 3>(t341, t266);
        const P t343 = flipped<1, 0>(t342);
        const P t344 = shuffled<1, 3>(t267, t302);
        const Q t345 = joined(t343, t344);
        // spectrum block of 2
        const Q t346 = t340 - t345;
        const Q t347 = t340 + t345;
        const P t348 = part<0>(t331);
        const P t349 = part<1>(t331);
        const P t350 = shuffled<0, 2>(t348, t349);
        const P t351 = part<0>(t335);
        const P t352 = part<1>(t335);
        const P t353 = shuffled<0, 2>(t351, t352);
        const Q t354 = joined(t350, t353);
        // spectrum block of 2
        const Q t355 = t346 + t354;
        io.out(57, 55, 54, 53, t355);
        const Q t356 = t346 - t354;
        io.out(25, 23, 22, 21, t356);
        const P t357 = shuffled<1, 3>(t348, t349);
        const P t358 = shuffled<1, 3>(t351, t352);
        const Q t359 = joined(t357, t358);
        // spectrum block of 2
        const Q t360 = t347 - t359;
        io.out(41, 39, 38, 37, t360);
        const Q t361 = t347 + t359;
        io.out(9, 7, 6, 5, t361);
        // spectrum block of 64
        const Q t362 = Q(c[0], c[0], c[10], c[10]) * t210;
        const Q t363 = shuffled<1, 0, 3, 2>(t210);
        const Q t364 = Q(-c[1], c[1], -c[9], c[9]) * t363;
        const Q t365 = t362 + t364;
        const Q t366 = Q(c[6], c[6], c[8], c[8]) * t233;
        const Q t367 = shuffled<1, 0, 3, 2>(t233);
        const Q t368 = Q(-c[4], c[4], -c[7], c[7]) * t367;
        const Q t369 = t366 + t368;
        const P t370 = part<0>(t197);
        const P t371 = part<1>(t197);
        const P t372 = shuffled<0, 2>(t370, t371);
        const P t373 = part<0>(t197);
        const P t374 = part<1>(t197);
        const P t375 = shuffled<1, 3>(t373, t374);
        const Q t376 = joined(t372, t375);
        const P t377 = shuffled<0, 2>(t303, t306);
        const P t378 = shuffled<1, 3>(t307, t341);
        const Q t379 = joined(t377, t378);
        // spectrum block of 2
        const Q t380 = t376 - t379;
        const Q t381 = t376 + t379;
        const P t382 = part<0>(t365);
        const P t383 = part<1>(t365);
        const P t384 = shuffled<0, 2>(t382, t383);
        const P t385 = part<0>(t369);
        const P t386 = part<1>(t369);
        const P t387 = shuffled<0, 2>(t385, t386);
        const Q t388 = joined(t384, t387);
        // spectrum block of 2
        const Q t389 = t380 + t388;
        io.out(52, 51, 50, 49, t389);
        const Q t390 = t380 - t388;
        io.out(20, 19, 18, 17, t390);
        const P t391 = shuffled<1, 3>(t382, t383);
        const P t392 = shuffled<1, 3>(t385, t386);
        const Q t393 = joined(t391, t392);
        // spectrum block of 2
        const Q t394 = t381 - t393;
        io.out(36, 35, 34, 33, t394);
        const Q t395 = t381 + t393;
        io.out(4, 3, 2, 1, t395);
    }
};

}  // namespace zulg
