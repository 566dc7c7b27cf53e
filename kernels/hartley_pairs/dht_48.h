// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 48.
// Hartley transform of 48 points, form I; two lanes to a register.
// 91 sums, 72 differences, 37 products of registers, which do the 436 steps of the graph, those with
// `scale` included; 74 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<48> {
    static constexpr int steps = 436;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.3826834323650898,  // c[3]: cos 2 pi 13/16
        0.9238795325112867,  // c[4]: -sin 2 pi 13/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x47_46 = io.in(47, 46);
        // input stage
        const P t0 = x1_2 + x47_46;
        const P t1 = x1_2 - x47_46;
        const P x3_4 = io.in(3, 4);
        const P x45_44 = io.in(45, 44);
        const P t2 = x3_4 + x45_44;
        const P t3 = x3_4 - x45_44;
        const P x5_6 = io.in(5, 6);
        const P x43_42 = io.in(43, 42);
        const P t4 = x5_6 + x43_42;
        const P t5 = x5_6 - x43_42;
        const P x7_8 = io.in(7, 8);
        const P x41_40 = io.in(41, 40);
        const P t6 = x7_8 + x41_40;
        const P t7 = x7_8 - x41_40;
        const P x9_10 = io.in(9, 10);
        const P x39_38 = io.in(39, 38);
        const P t8 = x9_10 + x39_38;
        const P t9 = x9_10 - x39_38;
        const P x11_12 = io.in(11, 12);
        const P x37_36 = io.in(37, 36);
        const P t10 = x11_12 + x37_36;
        const P t11 = x11_12 - x37_36;
        const P x13_14 = io.in(13, 14);
        const P x35_34 = io.in(35, 34);
        const P t12 = x13_14 + x35_34;
        const P t13 = x13_14 - x35_34;
        const P x15_16 = io.in(15, 16);
        const P x33_32 = io.in(33, 32);
        const P t14 = x15_16 + x33_32;
        const P t15 = x15_16 - x33_32;
        const P x17_18 = io.in(17, 18);
        const P x31_30 = io.in(31, 30);
        const P t16 = x17_18 + x31_30;
        const P t17 = x17_18 - x31_30;
        const P x19_20 = io.in(19, 20);
        const P x29_28 = io.in(29, 28);
        const P t18 = x19_20 + x29_28;
        const P t19 = x19_20 - x29_28;
        const P x21_22 = io.in(21, 22);
        const P x27_26 = io.in(27, 26);
        const P t20 = x21_22 + x27_26;
        const P t21 = x21_22 - x27_26;
        const V x23 = io.in(23);
        const V x25 = io.in(25);
        const V t22 = x23 + x25;
        const V t23 = x23 - x25;
        const V x0 = io.in(0);
        const V x24 = io.in(24);
        // spectrum block of 2
        const V t24 = x0 + x24;
        const V t25 = x0 - x24;
        const P t26 = joined(t24, t25);
        const P t27 = shuffled<1, 3>(t10, t11);
        // spectrum block of 2
        const P t28 = t26 + t27;
        const P t29 = t26 - t27;
        const P t30 = shuffled<0, 2>(t2, t3);
        const P t31 = shuffled<0, 2>(t20, t21);
        const P t32 = flipped<0, 1>(t31);
        // complex block of 2
        const P t33 = t30 + t32;
        const P t34 = t30 - t32;
        const P t35 = shuffled<0, 2>(t14, t15);
        const P t36 = shuffled<0, 2>(t8, t9);
        const P t37 = flipped<0, 1>(t36);
        // complex block of 2
        const P t38 = t35 + t37;
        const P t39 = t35 - t37;
        // complex block of 2
        const P t40 = t33 + t38;
        const P t41 = t33 - t38;
        const P t42 = shuffled<1, 0>(t39);
        const P t43 = flipped<0, 1>(t42);
        // complex block of 2
        const P t44 = t34 + t43;
        const P t45 = t34 - t43;
        // spectrum block of 16, multiplier 3
        const P t46 = c[3] * t44;
        const P t47 = shuffled<1, 0>(t44);
        const P t48 = P(-c[4], c[4]) * t47;
        const P t49 = t46 + t48;
        const P t50 = shuffled<1, 0>(t41);
        const P t51 = flipped<0, 1>(t50);
        const P t52 = t41 + t51;
        const P t53 = P(-c[4], c[4]) * t45;
        const P t54 = shuffled<1, 0>(t45);
        const P t55 = c[3] * t54;
        const P t56 = t53 + t55;
        const V t57 = part<1>(t16);
        const V t58 = part<1>(t4);
        // mirrored skew block of 4, multiplier 3
        const V t59 = t57 - t58;
        const V t60 = part<1>(t17);
        const V t61 = part<1>(t5);
        const V t62 = t60 + t61;
        const V t63 = t57 + t58;
        const V t64 = c[0] * t59;
        const V t65 = c[0] * t62;
        const V t66 = t64 - t65;
        const V t67 = t60 - t61;
        const V t68 = t64 + t65;
        const P t69 = joined(t63, t66);
        // spectrum block of 2
        const P t70 = t28 + t69;
        const P t71 = t28 - t69;
        const P t72 = shuffled<0, 2>(t40, t49);
        // spectrum block of 2
        const P t73 = t70 + t72;
        const P t74 = t70 - t72;
        const P t75 = shuffled<1, 3>(t40, t49);
        // spectrum block of 2
        const P t76 = t71 + t75;
        const P t77 = t71 - t75;
        const P t78 = joined(t67, t68);
        // spectrum block of 2
        const P t79 = t29 - t78;
        const P t80 = t29 + t78;
        // spectrum block of 16, multiplier 3
        const P t81 = P(-c[0], c[0]) * t52;
        const P t82 = shuffled<0, 2>(t81, t56);
        // spectrum block of 2
        const P t83 = t79 + t82;
        const P t84 = t79 - t82;
        const P t85 = shuffled<1, 3>(t81, t56);
        // spectrum block of 2
        const P t86 = t80 - t85;
        const P t87 = t80 + t85;
        const P t88 = shuffled<1, 3>(t14, t15);
        const P t89 = shuffled<1, 3>(t6, t7);
        const P t90 = flipped<0, 1>(t89);
        // complex block of 2
        const P t91 = t88 + t90;
        const P t92 = t88 - t90;
        const P t93 = shuffled<0, 2>(t18, t19);
        const P t94 = shuffled<0, 2>(t4, t5);
        const P t95 = flipped<0, 1>(t94);
        // complex block of 2
        const P t96 = t93 + t95;
        const P t97 = t93 - t95;
        const P t98 = shuffled<1, 3>(t20, t21);
        const P t99 = shuffled<1, 3>(t0, t1);
        const P t100 = flipped<0, 1>(t99);
        // complex block of 2
        const P t101 = t98 + t100;
        const P t102 = t98 - t100;
        const V t103 = part<0>(t1);
        const P t104 = joined(t22, t103);
        const V t105 = part<0>(t0);
        const V t106 = flipped<1>(t23);
        const P t107 = joined(t105, t106);
        // complex block of 2
        const P t108 = t104 + t107;
        const P t109 = t104 - t107;
        const P t110 = shuffled<1, 3>(t18, t3);
        const P t111 = shuffled<1, 3>(t2, t19);
        const P t112 = flipped<0, 1>(t111);
        // complex block of 2
        const P t113 = t110 + t112;
        const P t114 = t110 - t112;
        const P t115 = shuffled<0, 2>(t16, t7);
        const P t116 = shuffled<0, 2>(t6, t17);
        const P t117 = flipped<0, 1>(t116);
        // complex block of 2
        const P t118 = t115 + t117;
        const P t119 = t115 - t117;
        const P t120 = shuffled<1, 3>(t12, t9);
        const P t121 = shuffled<1, 3>(t8, t13);
        const P t122 = flipped<0, 1>(t121);
        // complex block of 2
        const P t123 = t120 + t122;
        const P t124 = t120 - t122;
        const P t125 = shuffled<0, 2>(t10, t13);
        const P t126 = shuffled<0, 2>(t12, t11);
        const P t127 = flipped<0, 1>(t126);
        // complex block of 2
        const P t128 = t125 + t127;
        const P t129 = t125 - t127;
        // complex block of 2
        const P t130 = t91 + t113;
        const P t131 = t91 - t113;
        // complex block of 2
        const P t132 = t96 + t118;
        const P t133 = t96 - t118;
        // complex block of 2
        const P t134 = t101 + t123;
        const P t135 = t101 - t123;
        // complex block of 2
        const P t136 = t108 + t128;
        const P t137 = t108 - t128;
        // complex block of 2
        const P t138 = t130 + t134;
        const P t139 = t130 - t134;
        // complex block of 2
        const P t140 = t132 + t136;
        const P t141 = t132 - t136;
        // complex block of 2
        const P t142 = t138 + t140;
        const P t143 = t138 - t140;
        const P t144 = shuffled<1, 0>(t141);
        const P t145 = flipped<0, 1>(t144);
        // complex block of 2
        const P t146 = t139 + t145;
        const P t147 = t139 - t145;
        // complex block of 8, multiplier 3
        const P t148 = c[0] * t133;
        const P t149 = shuffled<1, 0>(t148);
        const P t150 = flipped<1, 0>(t149);
        const P t151 = t148 + t150;
        const P t152 = c[0] * t137;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = flipped<1, 0>(t153);
        const P t155 = t152 + t154;
        const P t156 = shuffled<1, 0>(t135);
        const P t157 = flipped<0, 1>(t156);
        // complex block of 2
        const P t158 = t131 + t157;
        const P t159 = t131 - t157;
        const P t160 = shuffled<1, 0>(t151);
        const P t161 = flipped<1, 0>(t160);
        // complex block of 2
        const P t162 = t161 + t155;
        const P t163 = flipped<0, 1>(t155);
        const P t164 = t160 + t163;
        // complex block of 2
        const P t165 = t158 + t162;
        const P t166 = t158 - t162;
        const P t167 = shuffled<1, 0>(t164);
        // complex block of 2
        const P t168 = t159 + t167;
        const P t169 = t159 - t167;
        // complex block of 16, multiplier 3
        const P t170 = c[3] * t97;
        const P t171 = shuffled<1, 0>(t97);
        const P t172 = P(-c[4], c[4]) * t171;
        const P t173 = t170 + t172;
        const P t174 = c[0] * t102;
        const P t175 = shuffled<1, 0>(t174);
        const P t176 = flipped<1, 0>(t175);
        const P t177 = t174 + t176;
        const P t178 = c[4] * t109;
        const P t179 = shuffled<1, 0>(t109);
        const P t180 = P(c[3], -c[3]) * t179;
        const P t181 = t178 + t180;
        const P t182 = c[4] * t119;
        const P t183 = shuffled<1, 0>(t119);
        const P t184 = P(-c[3], c[3]) * t183;
        const P t185 = t182 + t184;
        const P t186 = c[0] * t124;
        const P t187 = shuffled<1, 0>(t186);
        const P t188 = flipped<0, 1>(t186);
        const P t189 = t187 + t188;
        const P t190 = P(-c[3], c[3]) * t129;
        const P t191 = shuffled<1, 0>(t129);
        const P t192 = c[4] * t191;
        const P t193 = t190 + t192;
        const P t194 = shuffled<1, 0>(t114);
        // complex block of 2
        const P t195 = t92 - t194;
        const P t196 = t92 + t194;
        const P t197 = flipped<0, 1>(t185);
        // complex block of 2
        const P t198 = t173 + t197;
        const P t199 = t173 - t197;
        const P t200 = shuffled<1, 0>(t177);
        const P t201 = flipped<1, 0>(t200);
        // complex block of 2
        const P t202 = t201 + t189;
        const P t203 = flipped<0, 1>(t189);
        const P t204 = t200 + t203;
        const P t205 = flipped<1, 0>(t181);
        // complex block of 2
        const P t206 = t205 + t193;
        const P t207 = flipped<0, 1>(t193);
        const P t208 = t181 + t207;
        // complex block of 2
        const P t209 = t195 + t202;
        const P t210 = t195 - t202;
        // complex block of 2
        const P t211 = t198 + t206;
        const P t212 = t198 - t206;
        // complex block of 2
        const P t213 = t209 + t211;
        const P t214 = t209 - t211;
        const P t215 = shuffled<1, 0>(t212);
        const P t216 = flipped<0, 1>(t215);
        // complex block of 2
        const P t217 = t210 + t216;
        const P t218 = t210 - t216;
        // complex block of 8, multiplier 3
        const P t219 = c[0] * t199;
        const P t220 = shuffled<1, 0>(t219);
        const P t221 = flipped<1, 0>(t220);
        const P t222 = t219 + t221;
        const P t223 = c[0] * t208;
        const P t224 = shuffled<1, 0>(t223);
        const P t225 = flipped<0, 1>(t224);
        const P t226 = t223 + t225;
        const P t227 = shuffled<1, 0>(t204);
        // complex block of 2
        const P t228 = t196 + t227;
        const P t229 = t196 - t227;
        const P t230 = shuffled<1, 0>(t222);
        // complex block of 2
        const P t231 = t230 + t226;
        const P t232 = shuffled<0, 3>(t226, t230);
        const P t233 = shuffled<0, 3>(t230, t226);
        const P t234 = t232 - t233;
        const P t235 = flipped<1, 0>(t231);
        // complex block of 2
        const P t236 = t228 + t235;
        const P t237 = t228 - t235;
        const P t238 = shuffled<1, 0>(t234);
        const P t239 = flipped<0, 1>(t238);
        // complex block of 2
        const P t240 = t229 + t239;
        const P t241 = t229 - t239;
        const P t242 = shuffled<0, 2>(t142, t213);
        // spectrum block of 3
        const P t243 = t242 + t73;
        io.out(0, 45, t243);
        const P t244 = c[1] * t242;
        const P t245 = t73 - t244;
        const P t246 = shuffled<1, 3>(t142, t213);
        const P t247 = c[2] * t246;
        const P t248 = t245 - t247;
        io.out(32, 29, t248);
        const P t249 = t245 + t247;
        io.out(16, 13, t249);
        const P t250 = shuffled<0, 2>(t165, t236);
        // spectrum block of 3
        const P t251 = t250 + t83;
        io.out(42, 39, t251);
        const P t252 = c[1] * t250;
        const P t253 = t83 - t252;
        const P t254 = shuffled<1, 3>(t165, t236);
        const P t255 = c[2] * t254;
        const P t256 = t253 - t255;
        io.out(26, 23, t256);
        const P t257 = t253 + t255;
        io.out(10, 7, t257);
        const P t258 = shuffled<0, 2>(t146, t217);
        // spectrum block of 3
        const P t259 = t258 + t76;
        io.out(36, 33, t259);
        const P t260 = c[1] * t258;
        const P t261 = t76 - t260;
        const P t262 = shuffled<1, 3>(t146, t217);
        const P t263 = c[2] * t262;
        const P t264 = t261 - t263;
        io.out(20, 17, t264);
        const P t265 = t261 + t263;
        io.out(4, 1, t265);
        const P t266 = shuffled<0, 2>(t168, t240);
        // spectrum block of 3
        const P t267 = t266 + t86;
        io.out(30, 27, t267);
        const P t268 = c[1] * t266;
        const P t269 = t86 - t268;
        const P t270 = shuffled<1, 3>(t168, t240);
        const P t271 = c[2] * t270;
        const P t272 = t269 - t271;
        io.out(14, 11, t272);
        const P t273 = t269 + t271;
        io.out(46, 43, t273);
        const P t274 = shuffled<0, 2>(t143, t214);
        // spectrum block of 3
        const P t275 = t274 + t74;
        io.out(24, 21, t275);
        const P t276 = c[1] * t274;
        const P t277 = t74 - t276;
        const P t278 = shuffled<1, 3>(t143, t214);
        const P t279 = c[2] * t278;
        const P t280 = t277 - t279;
        io.out(8, 5, t280);
        const P t281 = t277 + t279;
        io.out(40, 37, t281);
        const P t282 = shuffled<0, 2>(t166, t237);
        // spectrum block of 3
        const P t283 = t282 + t84;
        io.out(18, 15, t283);
        const P t284 = c[1] * t282;
        const P t285 = t84 - t284;
        const P t286 = shuffled<1, 3>(t166, t237);
        const P t287 = c[2] * t286;
        const P t288 = t285 - t287;
        io.out(2, 47, t288);
        const P t289 = t285 + t287;
        io.out(34, 31, t289);
        const P t290 = shuffled<0, 2>(t147, t218);
        // spectrum block of 3
        const P t291 = t290 + t77;
        io.out(12, 9, t291);
        const P t292 = c[1] * t290;
        const P t293 = t77 - t292;
        const P t294 = shuffled<1, 3>(t147, t218);
        const P t295 = c[2] * t294;
        const P t296 = t293 - t295;
        io.out(44, 41, t296);
        const P t297 = t293 + t295;
        io.out(28, 25, t297);
        const P t298 = shuffled<0, 2>(t169, t241);
        // spectrum block of 3
        const P t299 = t298 + t87;
        io.out(6, 3, t299);
        const P t300 = c[1] * t298;
        const P t301 = t87 - t300;
        const P t302 = shuffled<1, 3>(t169, t241);
        const P t303 = c[2] * t302;
        const P t304 = t301 - t303;
        io.out(38, 35, t304);
        const P t305 = t301 + t303;
        io.out(22, 19, t305);
    }
};

}  // namespace zulg
