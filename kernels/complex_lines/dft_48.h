// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 48.
// Complex DFT of 48 points, prime-factor, order 3, 16; two lines of a stage to a register.
// 93 sums, 66 differences, 37 products of registers, which do the 880 steps of the graph, those with
// `scale` included; 69 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<48> {
    static constexpr int steps = 880;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.5,  // c[1]: -cos 2 pi 1/3
        0.8660254037844386,  // c[2]: sin 2 pi 1/3
        0.3826834323650898,  // c[3]: cos 2 pi 3/16
        0.9238795325112867,  // c[4]: sin 2 pi 3/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x16_19 = io.pairs(16, 19);
        const Q x32_35 = io.pairs(32, 35);
        // complex block of 3
        const Q t0 = x16_19 + x32_35;
        const Q t1 = x16_19 - x32_35;
        const Q x0_3 = io.pairs(0, 3);
        const Q t2 = t0 + x0_3;
        const Q t3 = c[1] * t0;
        const Q t4 = x0_3 - t3;
        const Q t5 = Q(-c[2], c[2], -c[2], c[2]) * t1;
        const Q t6 = shuffled<1, 0, 3, 2>(t5);
        const Q t7 = t4 + t6;
        const Q t8 = t4 - t6;
        const Q x22_25 = io.pairs(22, 25);
        const Q x38_41 = io.pairs(38, 41);
        // complex block of 3
        const Q t9 = x22_25 + x38_41;
        const Q t10 = x22_25 - x38_41;
        const Q x6_9 = io.pairs(6, 9);
        const Q t11 = t9 + x6_9;
        const Q t12 = c[1] * t9;
        const Q t13 = x6_9 - t12;
        const Q t14 = Q(-c[2], c[2], -c[2], c[2]) * t10;
        const Q t15 = shuffled<1, 0, 3, 2>(t14);
        const Q t16 = t13 + t15;
        const Q t17 = t13 - t15;
        const Q x28_31 = io.pairs(28, 31);
        const Q x44_47 = io.pairs(44, 47);
        // complex block of 3
        const Q t18 = x28_31 + x44_47;
        const Q t19 = x28_31 - x44_47;
        const Q x12_15 = io.pairs(12, 15);
        const Q t20 = t18 + x12_15;
        const Q t21 = c[1] * t18;
        const Q t22 = x12_15 - t21;
        const Q t23 = Q(-c[2], c[2], -c[2], c[2]) * t19;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t22 + t24;
        const Q t26 = t22 - t24;
        const Q x34_37 = io.pairs(34, 37);
        const Q x2_5 = io.pairs(2, 5);
        // complex block of 3
        const Q t27 = x34_37 + x2_5;
        const Q t28 = x34_37 - x2_5;
        const Q x18_21 = io.pairs(18, 21);
        const Q t29 = t27 + x18_21;
        const Q t30 = c[1] * t27;
        const Q t31 = x18_21 - t30;
        const Q t32 = Q(-c[2], c[2], -c[2], c[2]) * t28;
        const Q t33 = shuffled<1, 0, 3, 2>(t32);
        const Q t34 = t31 + t33;
        const Q t35 = t31 - t33;
        const Q x40_43 = io.pairs(40, 43);
        const Q x8_11 = io.pairs(8, 11);
        // complex block of 3
        const Q t36 = x40_43 + x8_11;
        const Q t37 = x40_43 - x8_11;
        const Q x24_27 = io.pairs(24, 27);
        const Q t38 = t36 + x24_27;
        const Q t39 = c[1] * t36;
        const Q t40 = x24_27 - t39;
        const Q t41 = Q(-c[2], c[2], -c[2], c[2]) * t37;
        const Q t42 = shuffled<1, 0, 3, 2>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = t40 - t42;
        const Q x46_1 = io.pairs(46, 1);
        const Q x14_17 = io.pairs(14, 17);
        // complex block of 3
        const Q t45 = x46_1 + x14_17;
        const Q t46 = x46_1 - x14_17;
        const Q x30_33 = io.pairs(30, 33);
        const Q t47 = t45 + x30_33;
        const Q t48 = c[1] * t45;
        const Q t49 = x30_33 - t48;
        const Q t50 = Q(-c[2], c[2], -c[2], c[2]) * t46;
        const Q t51 = shuffled<1, 0, 3, 2>(t50);
        const Q t52 = t49 + t51;
        const Q t53 = t49 - t51;
        const Q x4_7 = io.pairs(4, 7);
        const Q x20_23 = io.pairs(20, 23);
        // complex block of 3
        const Q t54 = x4_7 + x20_23;
        const Q t55 = x4_7 - x20_23;
        const Q x36_39 = io.pairs(36, 39);
        const Q t56 = t54 + x36_39;
        const Q t57 = c[1] * t54;
        const Q t58 = x36_39 - t57;
        const Q t59 = Q(-c[2], c[2], -c[2], c[2]) * t55;
        const Q t60 = shuffled<1, 0, 3, 2>(t59);
        const Q t61 = t58 + t60;
        const Q t62 = t58 - t60;
        const Q x10_13 = io.pairs(10, 13);
        const Q x26_29 = io.pairs(26, 29);
        // complex block of 3
        const Q t63 = x10_13 + x26_29;
        const Q t64 = x10_13 - x26_29;
        const Q x42_45 = io.pairs(42, 45);
        const Q t65 = t63 + x42_45;
        const Q t66 = c[1] * t63;
        const Q t67 = x42_45 - t66;
        const Q t68 = Q(-c[2], c[2], -c[2], c[2]) * t64;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = t67 + t69;
        const Q t71 = t67 - t69;
        const Q t72 = shuffled<0, 1, 4, 5>(t2, t7);
        const Q t73 = shuffled<0, 1, 4, 5>(t38, t43);
        // complex block of 2
        const Q t74 = t72 + t73;
        const Q t75 = t72 - t73;
        const Q t76 = shuffled<2, 3, 6, 7>(t2, t7);
        const Q t77 = shuffled<2, 3, 6, 7>(t38, t43);
        // complex block of 2
        const Q t78 = t76 + t77;
        const Q t79 = t76 - t77;
        const Q t80 = shuffled<0, 1, 4, 5>(t11, t16);
        const Q t81 = shuffled<0, 1, 4, 5>(t47, t52);
        // complex block of 2
        const Q t82 = t80 + t81;
        const Q t83 = t80 - t81;
        const Q t84 = shuffled<2, 3, 6, 7>(t11, t16);
        const Q t85 = shuffled<2, 3, 6, 7>(t47, t52);
        // complex block of 2
        const Q t86 = t84 + t85;
        const Q t87 = t84 - t85;
        const Q t88 = shuffled<0, 1, 4, 5>(t20, t25);
        const Q t89 = shuffled<0, 1, 4, 5>(t56, t61);
        // complex block of 2
        const Q t90 = t88 + t89;
        const Q t91 = t88 - t89;
        const Q t92 = shuffled<2, 3, 6, 7>(t20, t25);
        const Q t93 = shuffled<2, 3, 6, 7>(t56, t61);
        // complex block of 2
        const Q t94 = t92 + t93;
        const Q t95 = t92 - t93;
        const Q t96 = shuffled<0, 1, 4, 5>(t29, t34);
        const Q t97 = shuffled<0, 1, 4, 5>(t65, t70);
        // complex block of 2
        const Q t98 = t96 + t97;
        const Q t99 = t96 - t97;
        const Q t100 = shuffled<2, 3, 6, 7>(t29, t34);
        const Q t101 = shuffled<2, 3, 6, 7>(t65, t70);
        // complex block of 2
        const Q t102 = t100 + t101;
        const Q t103 = t100 - t101;
        // complex block of 2
        const Q t104 = t74 + t90;
        const Q t105 = t74 - t90;
        // complex block of 2
        const Q t106 = t78 + t94;
        const Q t107 = t78 - t94;
        // complex block of 2
        const Q t108 = t82 + t98;
        const Q t109 = t82 - t98;
        // complex block of 2
        const Q t110 = t86 + t102;
        const Q t111 = t86 - t102;
        // complex block of 2
        const Q t112 = t104 + t108;
        const Q t113 = t104 - t108;
        // complex block of 2
        const Q t114 = t106 + t110;
        const Q t115 = t106 - t110;
        // complex block of 2
        const Q t116 = t112 + t114;
        io.pairs(0, 16, t116);
        const Q t117 = t112 - t114;
        io.pairs(24, 40, t117);
        const Q t118 = shuffled<1, 0, 3, 2>(t115);
        const Q t119 = flipped<1, 0, 1, 0>(t118);
        // complex block of 2
        const Q t120 = t113 + t119;
        io.pairs(12, 28, t120);
        const Q t121 = t113 - t119;
        io.pairs(36, 4, t121);
        // complex block of 8, multiplier 3
        const Q t122 = c[0] * t107;
        const Q t123 = shuffled<1, 0, 3, 2>(t122);
        const Q t124 = flipped<0, 1, 0, 1>(t123);
        const Q t125 = t122 + t124;
        const Q t126 = c[0] * t111;
        const Q t127 = shuffled<1, 0, 3, 2>(t126);
        const Q t128 = flipped<0, 1, 0, 1>(t127);
        const Q t129 = t126 + t128;
        const Q t130 = shuffled<1, 0, 3, 2>(t109);
        const Q t131 = flipped<1, 0, 1, 0>(t130);
        // complex block of 2
        const Q t132 = t105 + t131;
        const Q t133 = t105 - t131;
        const Q t134 = shuffled<1, 0, 3, 2>(t125);
        const Q t135 = flipped<0, 1, 0, 1>(t134);
        // complex block of 2
        const Q t136 = t129 + t135;
        const Q t137 = flipped<1, 0, 1, 0>(t129);
        const Q t138 = t134 + t137;
        // complex block of 2
        const Q t139 = t132 + t136;
        io.pairs(6, 22, t139);
        const Q t140 = t132 - t136;
        io.pairs(30, 46, t140);
        const Q t141 = shuffled<1, 0, 3, 2>(t138);
        // complex block of 2
        const Q t142 = t133 + t141;
        io.pairs(18, 34, t142);
        const Q t143 = t133 - t141;
        io.pairs(42, 10, t143);
        // complex block of 16, multiplier 3
        const Q t144 = c[3] * t79;
        const Q t145 = shuffled<1, 0, 3, 2>(t79);
        const Q t146 = Q(c[4], -c[4], c[4], -c[4]) * t145;
        const Q t147 = t144 + t146;
        const Q t148 = c[0] * t83;
        const Q t149 = shuffled<1, 0, 3, 2>(t148);
        const Q t150 = flipped<0, 1, 0, 1>(t149);
        const Q t151 = t148 + t150;
        const Q t152 = shuffled<1, 0, 3, 2>(t87);
        const Q t153 = c[3] * t152;
        const Q t154 = Q(c[4], -c[4], c[4], -c[4]) * t87;
        const Q t155 = t153 + t154;
        const Q t156 = c[4] * t95;
        const Q t157 = shuffled<1, 0, 3, 2>(t95);
        const Q t158 = Q(-c[3], c[3], -c[3], c[3]) * t157;
        const Q t159 = t156 + t158;
        const Q t160 = c[0] * t99;
        const Q t161 = shuffled<1, 0, 3, 2>(t160);
        const Q t162 = flipped<0, 1, 0, 1>(t161);
        const Q t163 = t160 + t162;
        const Q t164 = Q(-c[3], c[3], -c[3], c[3]) * t103;
        const Q t165 = shuffled<1, 0, 3, 2>(t103);
        const Q t166 = c[4] * t165;
        const Q t167 = t164 + t166;
        const Q t168 = shuffled<1, 0, 3, 2>(t91);
        const Q t169 = flipped<1, 0, 1, 0>(t168);
        // complex block of 2
        const Q t170 = t75 + t169;
        const Q t171 = t75 - t169;
        // complex block of 2
        const Q t172 = t147 + t159;
        const Q t173 = t147 - t159;
        const Q t174 = shuffled<1, 0, 3, 2>(t151);
        const Q t175 = flipped<0, 1, 0, 1>(t174);
        // complex block of 2
        const Q t176 = t163 + t175;
        const Q t177 = flipped<1, 0, 1, 0>(t163);
        const Q t178 = t174 + t177;
        const Q t179 = shuffled<0, 5, 2, 7>(t167, t155);
        const Q t180 = shuffled<0, 5, 2, 7>(t155, t167);
        // complex block of 2
        const Q t181 = t179 - t180;
        const Q t182 = t155 + t167;
        // complex block of 2
        const Q t183 = t170 + t176;
        const Q t184 = t170 - t176;
        // complex block of 2
        const Q t185 = t172 + t181;
        const Q t186 = t172 - t181;
        // complex block of 2
        const Q t187 = t183 + t185;
        io.pairs(3, 19, t187);
        const Q t188 = t183 - t185;
        io.pairs(27, 43, t188);
        const Q t189 = shuffled<1, 0, 3, 2>(t186);
        const Q t190 = flipped<1, 0, 1, 0>(t189);
        // complex block of 2
        const Q t191 = t184 + t190;
        io.pairs(15, 31, t191);
        const Q t192 = t184 - t190;
        io.pairs(39, 7, t192);
        // complex block of 8, multiplier 3
        const Q t193 = c[0] * t173;
        const Q t194 = shuffled<1, 0, 3, 2>(t193);
        const Q t195 = flipped<0, 1, 0, 1>(t194);
        const Q t196 = t193 + t195;
        const Q t197 = Q(-c[0], c[0], -c[0], c[0]) * t182;
        const Q t198 = shuffled<1, 0, 3, 2>(t197);
        const Q t199 = flipped<0, 1, 0, 1>(t198);
        const Q t200 = t197 + t199;
        const Q t201 = shuffled<1, 0, 3, 2>(t178);
        // complex block of 2
        const Q t202 = t171 + t201;
        const Q t203 = t171 - t201;
        const Q t204 = shuffled<1, 0, 3, 2>(t196);
        const Q t205 = flipped<0, 1, 0, 1>(t204);
        // complex block of 2
        const Q t206 = t200 + t205;
        const Q t207 = flipped<1, 0, 1, 0>(t200);
        const Q t208 = t204 + t207;
        // complex block of 2
        const Q t209 = t202 + t206;
        io.pairs(9, 25, t209);
        const Q t210 = t202 - t206;
        io.pairs(33, 1, t210);
        const Q t211 = shuffled<1, 0, 3, 2>(t208);
        // complex block of 2
        const Q t212 = t203 + t211;
        io.pairs(21, 37, t212);
        const Q t213 = t203 - t211;
        io.pairs(45, 13, t213);
        // complex block of 2
        const Q t214 = t8 + t44;
        const Q t215 = t8 - t44;
        // complex block of 2
        const Q t216 = t17 + t53;
        const Q t217 = t17 - t53;
        // complex block of 2
        const Q t218 = t26 + t62;
        const Q t219 = t26 - t62;
        // complex block of 2
        const Q t220 = t35 + t71;
        const Q t221 = t35 - t71;
        const Q t222 = shuffled<2, 3, 6, 7>(t215, t217);
        const Q t223 = shuffled<1, 0, 3, 2>(t222);
        // complex block of 16, multiplier 3
        const Q t224 = Q(c[4], -c[4], c[3], c[3]) * t223;
        const Q t225 = Q(c[3], c[3], c[4], -c[4]) * t222;
        const Q t226 = t224 + t225;
        const Q t227 = shuffled<0, 1, 4, 5>(t217, t221);
        const Q t228 = c[0] * t227;
        const Q t229 = shuffled<1, 0, 3, 2>(t228);
        const Q t230 = flipped<0, 1, 0, 1>(t229);
        const Q t231 = t228 + t230;
        const Q t232 = shuffled<2, 3, 6, 7>(t219, t221);
        const Q t233 = shuffled<1, 0, 2, 3>(t232);
        const Q t234 = Q(-c[3], c[3], -c[3], c[3]) * t233;
        const Q t235 = shuffled<1, 0, 3, 2>(t233);
        const Q t236 = c[4] * t235;
        const Q t237 = t234 + t236;
        const Q t238 = shuffled<0, 1, 4, 5>(t214, t215);
        const P t239 = part<0>(t218);
        const P t240 = part<0>(t219);
        const P t241 = shuffled<1, 0>(t240);
        const P t242 = flipped<1, 0>(t241);
        const Q t243 = joined(t239, t242);
        // complex block of 2
        const Q t244 = t238 + t243;
        const Q t245 = t238 - t243;
        const Q t246 = shuffled<2, 3, 4, 5>(t214, t226);
        const Q t247 = shuffled<2, 3, 4, 5>(t218, t237);
        // complex block of 2
        const Q t248 = t246 + t247;
        const Q t249 = t246 - t247;
        const Q t250 = shuffled<0, 1, 6, 7>(t216, t231);
        const P t251 = part<0>(t220);
        const P t252 = part<0>(t231);
        const P t253 = shuffled<1, 0>(t252);
        const P t254 = flipped<0, 1>(t253);
        const Q t255 = joined(t251, t254);
        // complex block of 2
        const Q t256 = t250 + t255;
        const Q t257 = flipped<1, 1, 0, 1>(t255);
        const Q t258 = flipped<0, 0, 1, 0>(t250);
        const Q t259 = t257 + t258;
        const Q t260 = shuffled<2, 3, 6, 7>(t216, t226);
        const Q t261 = flipped<0, 0, 1, 0>(t260);
        const Q t262 = shuffled<2, 3, 6, 7>(t220, t237);
        const Q t263 = flipped<0, 0, 0, 1>(t262);
        // complex block of 2
        const Q t264 = t261 + t263;
        const Q t265 = flipped<1, 1, 0, 1>(t263);
        const Q t266 = t260 + t265;
        // complex block of 2
        const Q t267 = t244 + t256;
        const Q t268 = t244 - t256;
        // complex block of 2
        const Q t269 = t248 + t264;
        const Q t270 = t248 - t264;
        // complex block of 2
        const Q t271 = t267 + t269;
        io.pairs(32, 35, t271);
        const Q t272 = t267 - t269;
        io.pairs(8, 11, t272);
        const Q t273 = shuffled<1, 0, 3, 2>(t270);
        const Q t274 = flipped<1, 0, 1, 0>(t273);
        // complex block of 2
        const Q t275 = t268 + t274;
        io.pairs(44, 47, t275);
        const Q t276 = t268 - t274;
        io.pairs(20, 23, t276);
        // complex block of 8, multiplier 3
        const Q t277 = c[0] * t249;
        const Q t278 = shuffled<1, 0, 3, 2>(t277);
        const Q t279 = flipped<0, 1, 0, 1>(t278);
        const Q t280 = t277 + t279;
        const Q t281 = Q(c[0], c[0], -c[0], c[0]) * t266;
        const Q t282 = shuffled<1, 0, 3, 2>(t281);
        const Q t283 = flipped<0, 1, 0, 1>(t282);
        const Q t284 = t281 + t283;
        const Q t285 = shuffled<1, 0, 3, 2>(t259);
        const Q t286 = flipped<1, 0, 0, 0>(t285);
        // complex block of 2
        const Q t287 = t245 + t286;
        const Q t288 = t245 - t286;
        const Q t289 = shuffled<1, 0, 3, 2>(t280);
        const Q t290 = flipped<0, 1, 0, 1>(t289);
        // complex block of 2
        const Q t291 = t284 + t290;
        const Q t292 = flipped<1, 0, 1, 0>(t284);
        const Q t293 = t289 + t292;
        // complex block of 2
        const Q t294 = t287 + t291;
        io.pairs(38, 41, t294);
        const Q t295 = t287 - t291;
        io.pairs(14, 17, t295);
        const Q t296 = shuffled<1, 0, 3, 2>(t293);
        // complex block of 2
        const Q t297 = t288 + t296;
        io.pairs(2, 5, t297);
        const Q t298 = t288 - t296;
        io.pairs(26, 29, t298);
    }
};

}  // namespace zulg
