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
        const Q x46_1 = io.pairs(46, 1);
        const Q x14_17 = io.pairs(14, 17);
        // complex block of 3
        const Q t5 = x46_1 + x14_17;
        const Q t6 = x46_1 - x14_17;
        const Q x30_33 = io.pairs(30, 33);
        const Q t7 = t5 + x30_33;
        const Q t8 = c[1] * t5;
        const Q t9 = x30_33 - t8;
        const Q x22_25 = io.pairs(22, 25);
        const Q x38_41 = io.pairs(38, 41);
        // complex block of 3
        const Q t10 = x22_25 + x38_41;
        const Q t11 = x22_25 - x38_41;
        const Q x6_9 = io.pairs(6, 9);
        const Q t12 = t10 + x6_9;
        const Q t13 = c[1] * t10;
        const Q t14 = x6_9 - t13;
        const Q x40_43 = io.pairs(40, 43);
        const Q x8_11 = io.pairs(8, 11);
        // complex block of 3
        const Q t15 = x40_43 + x8_11;
        const Q t16 = x40_43 - x8_11;
        const Q x24_27 = io.pairs(24, 27);
        const Q t17 = t15 + x24_27;
        const Q t18 = c[1] * t15;
        const Q t19 = x24_27 - t18;
        // complex block of 3
        const Q t20 = Q(-c[2], c[2], -c[2], c[2]) * t1;
        const Q t21 = shuffled<1, 0, 3, 2>(t20);
        const Q t22 = t4 + t21;
        // complex block of 3
        const Q t23 = Q(-c[2], c[2], -c[2], c[2]) * t16;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = t19 + t24;
        const Q t26 = shuffled<2, 3, 6, 7>(t2, t22);
        const Q t27 = shuffled<2, 3, 6, 7>(t17, t25);
        // complex block of 2
        const Q t28 = t26 - t27;
        const Q t29 = t26 + t27;
        // complex block of 3
        const Q t30 = t4 - t21;
        // complex block of 3
        const Q t31 = t19 - t24;
        // complex block of 2
        const Q t32 = t30 - t31;
        // complex block of 3
        const Q t33 = Q(c[2], -c[2], c[2], -c[2]) * t11;
        const Q t34 = shuffled<1, 0, 3, 2>(t33);
        const Q t35 = t14 + t34;
        // complex block of 3
        const Q t36 = Q(c[2], -c[2], c[2], -c[2]) * t6;
        const Q t37 = shuffled<1, 0, 3, 2>(t36);
        const Q t38 = t9 + t37;
        // complex block of 2
        const Q t39 = t35 - t38;
        // complex block of 2
        const Q t40 = t30 + t31;
        // complex block of 2
        const Q t41 = t35 + t38;
        // complex block of 3
        const Q t42 = t14 - t34;
        // complex block of 3
        const Q t43 = t9 - t37;
        const Q t44 = shuffled<2, 3, 6, 7>(t12, t42);
        const Q t45 = shuffled<2, 3, 6, 7>(t7, t43);
        // complex block of 2
        const Q t46 = t44 - t45;
        const Q t47 = shuffled<0, 1, 4, 5>(t12, t42);
        const Q t48 = shuffled<0, 1, 4, 5>(t7, t43);
        // complex block of 2
        const Q t49 = t47 - t48;
        // complex block of 2
        const Q t50 = t44 + t45;
        const Q x34_37 = io.pairs(34, 37);
        const Q x2_5 = io.pairs(2, 5);
        // complex block of 3
        const Q t51 = x34_37 + x2_5;
        const Q t52 = x34_37 - x2_5;
        const Q x18_21 = io.pairs(18, 21);
        const Q t53 = t51 + x18_21;
        const Q t54 = c[1] * t51;
        const Q t55 = x18_21 - t54;
        const Q x4_7 = io.pairs(4, 7);
        const Q x20_23 = io.pairs(20, 23);
        // complex block of 3
        const Q t56 = x4_7 + x20_23;
        const Q t57 = x4_7 - x20_23;
        const Q x36_39 = io.pairs(36, 39);
        const Q t58 = t56 + x36_39;
        const Q t59 = c[1] * t56;
        const Q t60 = x36_39 - t59;
        const Q x10_13 = io.pairs(10, 13);
        const Q x26_29 = io.pairs(26, 29);
        // complex block of 3
        const Q t61 = x10_13 + x26_29;
        const Q t62 = x10_13 - x26_29;
        const Q x42_45 = io.pairs(42, 45);
        const Q t63 = t61 + x42_45;
        const Q t64 = c[1] * t61;
        const Q t65 = x42_45 - t64;
        const Q x28_31 = io.pairs(28, 31);
        const Q x44_47 = io.pairs(44, 47);
        // complex block of 3
        const Q t66 = x28_31 + x44_47;
        const Q t67 = x28_31 - x44_47;
        const Q x12_15 = io.pairs(12, 15);
        const Q t68 = t66 + x12_15;
        const Q t69 = c[1] * t66;
        const Q t70 = x12_15 - t69;
        const Q t71 = Q(-c[2], c[2], -c[2], c[2]) * t67;
        const Q t72 = shuffled<1, 0, 3, 2>(t71);
        const Q t73 = t70 + t72;
        // complex block of 3
        const Q t74 = Q(-c[2], c[2], -c[2], c[2]) * t57;
        const Q t75 = shuffled<1, 0, 3, 2>(t74);
        const Q t76 = t60 + t75;
        const Q t77 = shuffled<2, 3, 6, 7>(t68, t73);
        const Q t78 = shuffled<2, 3, 6, 7>(t58, t76);
        // complex block of 2
        const Q t79 = t77 - t78;
        const Q t80 = t77 + t78;
        // complex block of 3
        const Q t81 = t70 - t72;
        // complex block of 3
        const Q t82 = t60 - t75;
        // complex block of 2
        const Q t83 = t81 - t82;
        // complex block of 3
        const Q t84 = Q(c[2], -c[2], c[2], -c[2]) * t52;
        const Q t85 = shuffled<1, 0, 3, 2>(t84);
        const Q t86 = t55 + t85;
        // complex block of 3
        const Q t87 = Q(c[2], -c[2], c[2], -c[2]) * t62;
        const Q t88 = shuffled<1, 0, 3, 2>(t87);
        const Q t89 = t65 + t88;
        // complex block of 2
        const Q t90 = t86 - t89;
        // complex block of 2
        const Q t91 = t81 + t82;
        // complex block of 2
        const Q t92 = t86 + t89;
        // complex block of 3
        const Q t93 = t55 - t85;
        // complex block of 3
        const Q t94 = t65 - t88;
        const Q t95 = shuffled<2, 3, 6, 7>(t53, t93);
        const Q t96 = shuffled<2, 3, 6, 7>(t63, t94);
        // complex block of 2
        const Q t97 = t95 - t96;
        const Q t98 = shuffled<0, 1, 4, 5>(t53, t93);
        const Q t99 = shuffled<0, 1, 4, 5>(t63, t94);
        // complex block of 2
        const Q t100 = t98 - t99;
        // complex block of 2
        const Q t101 = t95 + t96;
        const Q t102 = shuffled<0, 1, 4, 5>(t2, t22);
        const Q t103 = shuffled<0, 1, 4, 5>(t17, t25);
        // complex block of 2
        const Q t104 = t102 + t103;
        const Q t105 = shuffled<0, 1, 4, 5>(t68, t73);
        const Q t106 = shuffled<0, 1, 4, 5>(t58, t76);
        // complex block of 2
        const Q t107 = t105 + t106;
        // complex block of 2
        const Q t108 = t104 + t107;
        const Q t109 = t104 - t107;
        // complex block of 2
        const Q t110 = t47 + t48;
        // complex block of 2
        const Q t111 = t98 + t99;
        // complex block of 2
        const Q t112 = t110 + t111;
        const Q t113 = t110 - t111;
        // complex block of 2
        const Q t114 = t29 + t80;
        // complex block of 2
        const Q t115 = t50 + t101;
        // complex block of 2
        const Q t116 = t114 + t115;
        const Q t117 = t114 - t115;
        // complex block of 2
        const Q t118 = t29 - t80;
        // complex block of 8, multiplier 3
        const Q t119 = c[0] * t118;
        const Q t120 = shuffled<1, 0, 3, 2>(t119);
        const Q t121 = flipped<0, 1, 0, 1>(t120);
        const Q t122 = t119 + t121;
        // complex block of 2
        const Q t123 = t50 - t101;
        // complex block of 8, multiplier 3
        const Q t124 = c[0] * t123;
        const Q t125 = shuffled<1, 0, 3, 2>(t124);
        const Q t126 = flipped<0, 1, 0, 1>(t125);
        const Q t127 = t124 + t126;
        // complex block of 2
        const Q t128 = t108 + t112;
        // complex block of 2
        const Q t129 = t128 + t116;
        io.pairs(0, 16, t129);
        const Q t130 = t128 - t116;
        io.pairs(24, 40, t130);
        // complex block of 2
        const Q t131 = t108 - t112;
        const Q t132 = shuffled<1, 0, 3, 2>(t117);
        const Q t133 = flipped<1, 0, 1, 0>(t132);
        // complex block of 2
        const Q t134 = t131 + t133;
        io.pairs(12, 28, t134);
        const Q t135 = t131 - t133;
        io.pairs(36, 4, t135);
        const Q t136 = shuffled<1, 0, 3, 2>(t113);
        const Q t137 = flipped<1, 0, 1, 0>(t136);
        // complex block of 2
        const Q t138 = t109 + t137;
        const Q t139 = shuffled<1, 0, 3, 2>(t122);
        const Q t140 = flipped<0, 1, 0, 1>(t139);
        // complex block of 2
        const Q t141 = t127 + t140;
        // complex block of 2
        const Q t142 = t138 + t141;
        io.pairs(6, 22, t142);
        const Q t143 = t138 - t141;
        io.pairs(30, 46, t143);
        // complex block of 2
        const Q t144 = t109 - t137;
        const Q t145 = flipped<1, 0, 1, 0>(t127);
        // complex block of 2
        const Q t146 = t139 + t145;
        const Q t147 = shuffled<1, 0, 3, 2>(t146);
        // complex block of 2
        const Q t148 = t144 + t147;
        io.pairs(18, 34, t148);
        const Q t149 = t144 - t147;
        io.pairs(42, 10, t149);
        // complex block of 2
        const Q t150 = t102 - t103;
        // complex block of 2
        const Q t151 = t105 - t106;
        const Q t152 = shuffled<1, 0, 3, 2>(t151);
        const Q t153 = flipped<1, 0, 1, 0>(t152);
        // complex block of 2
        const Q t154 = t150 + t153;
        const Q t155 = t150 - t153;
        // complex block of 16, multiplier 3
        const Q t156 = c[3] * t28;
        const Q t157 = shuffled<1, 0, 3, 2>(t28);
        const Q t158 = Q(c[4], -c[4], c[4], -c[4]) * t157;
        const Q t159 = t156 + t158;
        const Q t160 = c[4] * t79;
        const Q t161 = shuffled<1, 0, 3, 2>(t79);
        const Q t162 = Q(-c[3], c[3], -c[3], c[3]) * t161;
        const Q t163 = t160 + t162;
        // complex block of 2
        const Q t164 = t159 - t163;
        const Q t165 = t159 + t163;
        // complex block of 16, multiplier 3
        const Q t166 = c[0] * t49;
        const Q t167 = shuffled<1, 0, 3, 2>(t166);
        const Q t168 = flipped<0, 1, 0, 1>(t167);
        const Q t169 = t166 + t168;
        const Q t170 = c[0] * t100;
        const Q t171 = shuffled<1, 0, 3, 2>(t170);
        const Q t172 = flipped<0, 1, 0, 1>(t171);
        const Q t173 = t170 + t172;
        const Q t174 = shuffled<1, 0, 3, 2>(t169);
        const Q t175 = flipped<0, 1, 0, 1>(t174);
        // complex block of 2
        const Q t176 = t173 + t175;
        const Q t177 = flipped<1, 0, 1, 0>(t173);
        const Q t178 = t174 + t177;
        const Q t179 = shuffled<1, 0, 3, 2>(t46);
        // complex block of 16, multiplier 3
        const Q t180 = c[3] * t179;
        const Q t181 = Q(c[4], -c[4], c[4], -c[4]) * t46;
        const Q t182 = t180 + t181;
        const Q t183 = Q(-c[3], c[3], -c[3], c[3]) * t97;
        const Q t184 = shuffled<1, 0, 3, 2>(t97);
        const Q t185 = c[4] * t184;
        const Q t186 = t183 + t185;
        // complex block of 2
        const Q t187 = t182 + t186;
        const Q t188 = shuffled<0, 5, 2, 7>(t186, t182);
        const Q t189 = shuffled<0, 5, 2, 7>(t182, t186);
        const Q t190 = t188 - t189;
        // complex block of 2
        const Q t191 = t154 + t176;
        // complex block of 2
        const Q t192 = t165 + t190;
        // complex block of 2
        const Q t193 = t191 + t192;
        io.pairs(3, 19, t193);
        const Q t194 = t191 - t192;
        io.pairs(27, 43, t194);
        // complex block of 2
        const Q t195 = t154 - t176;
        // complex block of 2
        const Q t196 = t165 - t190;
        const Q t197 = shuffled<1, 0, 3, 2>(t196);
        const Q t198 = flipped<1, 0, 1, 0>(t197);
        // complex block of 2
        const Q t199 = t195 + t198;
        io.pairs(15, 31, t199);
        const Q t200 = t195 - t198;
        io.pairs(39, 7, t200);
        // complex block of 8, multiplier 3
        const Q t201 = c[0] * t164;
        const Q t202 = shuffled<1, 0, 3, 2>(t201);
        const Q t203 = flipped<0, 1, 0, 1>(t202);
        const Q t204 = t201 + t203;
        const Q t205 = Q(-c[0], c[0], -c[0], c[0]) * t187;
        const Q t206 = shuffled<1, 0, 3, 2>(t205);
        const Q t207 = flipped<0, 1, 0, 1>(t206);
        const Q t208 = t205 + t207;
        const Q t209 = shuffled<1, 0, 3, 2>(t204);
        const Q t210 = flipped<0, 1, 0, 1>(t209);
        // complex block of 2
        const Q t211 = t208 + t210;
        const Q t212 = flipped<1, 0, 1, 0>(t208);
        const Q t213 = t209 + t212;
        const Q t214 = shuffled<1, 0, 3, 2>(t178);
        // complex block of 2
        const Q t215 = t155 + t214;
        const Q t216 = t155 - t214;
        // complex block of 2
        const Q t217 = t215 + t211;
        io.pairs(9, 25, t217);
        const Q t218 = t215 - t211;
        io.pairs(33, 1, t218);
        const Q t219 = shuffled<1, 0, 3, 2>(t213);
        // complex block of 2
        const Q t220 = t216 + t219;
        io.pairs(21, 37, t220);
        const Q t221 = t216 - t219;
        io.pairs(45, 13, t221);
        const Q t222 = shuffled<2, 3, 6, 7>(t39, t32);
        // complex block of 16, multiplier 3
        const Q t223 = Q(c[4], -c[4], c[3], c[3]) * t222;
        const Q t224 = shuffled<1, 0, 3, 2>(t222);
        const Q t225 = Q(c[3], c[3], c[4], -c[4]) * t224;
        const Q t226 = t223 + t225;
        const Q t227 = shuffled<1, 0, 3, 2>(t90);
        const Q t228 = shuffled<2, 3, 6, 7>(t227, t83);
        const Q t229 = c[4] * t228;
        const Q t230 = shuffled<1, 0, 3, 2>(t228);
        const Q t231 = Q(-c[3], c[3], -c[3], c[3]) * t230;
        const Q t232 = t229 + t231;
        const Q t233 = shuffled<2, 3, 6, 7>(t40, t226);
        const Q t234 = shuffled<2, 3, 6, 7>(t91, t232);
        // complex block of 2
        const Q t235 = t233 - t234;
        const Q t236 = shuffled<2, 3, 4, 5>(t41, t226);
        const Q t237 = shuffled<2, 3, 4, 5>(t92, t232);
        const Q t238 = flipped<1, 1, 0, 0>(t237);
        // complex block of 2
        const Q t239 = t236 + t238;
        // complex block of 2
        const Q t240 = t233 + t234;
        const Q t241 = flipped<0, 0, 1, 0>(t236);
        const Q t242 = flipped<1, 1, 0, 1>(t238);
        // complex block of 2
        const Q t243 = t241 + t242;
        const Q t244 = shuffled<0, 1, 4, 5>(t90, t39);
        // complex block of 16, multiplier 3
        const Q t245 = c[0] * t244;
        const Q t246 = shuffled<1, 0, 3, 2>(t245);
        const Q t247 = flipped<0, 1, 0, 1>(t246);
        const Q t248 = t245 + t247;
        const Q t249 = shuffled<0, 1, 4, 5>(t41, t248);
        const Q t250 = shuffled<1, 0, 3, 2>(t248);
        const Q t251 = shuffled<0, 1, 6, 7>(t92, t250);
        const Q t252 = flipped<0, 0, 0, 1>(t251);
        // complex block of 2
        const Q t253 = t249 + t252;
        const Q t254 = flipped<1, 1, 0, 1>(t252);
        const Q t255 = flipped<0, 0, 1, 0>(t249);
        const Q t256 = t254 + t255;
        const Q t257 = shuffled<0, 1, 4, 5>(t40, t32);
        const Q t258 = shuffled<1, 0, 3, 2>(t83);
        const Q t259 = shuffled<0, 1, 4, 5>(t91, t258);
        const Q t260 = flipped<0, 0, 1, 0>(t259);
        // complex block of 2
        const Q t261 = t257 + t260;
        const Q t262 = t257 - t260;
        // complex block of 2
        const Q t263 = t261 + t253;
        // complex block of 2
        const Q t264 = t240 + t243;
        // complex block of 2
        const Q t265 = t263 + t264;
        io.pairs(32, 35, t265);
        const Q t266 = t263 - t264;
        io.pairs(8, 11, t266);
        // complex block of 2
        const Q t267 = t261 - t253;
        // complex block of 2
        const Q t268 = t240 - t243;
        const Q t269 = shuffled<1, 0, 3, 2>(t268);
        const Q t270 = flipped<1, 0, 1, 0>(t269);
        // complex block of 2
        const Q t271 = t267 + t270;
        io.pairs(44, 47, t271);
        const Q t272 = t267 - t270;
        io.pairs(20, 23, t272);
        // complex block of 8, multiplier 3
        const Q t273 = c[0] * t235;
        const Q t274 = shuffled<1, 0, 3, 2>(t273);
        const Q t275 = flipped<0, 1, 0, 1>(t274);
        const Q t276 = t273 + t275;
        const Q t277 = Q(c[0], c[0], -c[0], c[0]) * t239;
        const Q t278 = shuffled<1, 0, 3, 2>(t277);
        const Q t279 = flipped<0, 1, 0, 1>(t278);
        const Q t280 = t277 + t279;
        const Q t281 = shuffled<1, 0, 3, 2>(t276);
        const Q t282 = flipped<0, 1, 0, 1>(t281);
        // complex block of 2
        const Q t283 = t280 + t282;
        const Q t284 = flipped<1, 0, 1, 0>(t280);
        const Q t285 = t281 + t284;
        const Q t286 = shuffled<1, 0, 3, 2>(t256);
        const Q t287 = flipped<1, 0, 0, 0>(t286);
        // complex block of 2
        const Q t288 = t262 + t287;
        const Q t289 = t262 - t287;
        // complex block of 2
        const Q t290 = t288 + t283;
        io.pairs(38, 41, t290);
        const Q t291 = t288 - t283;
        io.pairs(14, 17, t291);
        const Q t292 = shuffled<1, 0, 3, 2>(t285);
        // complex block of 2
        const Q t293 = t289 + t292;
        io.pairs(2, 5, t293);
        const Q t294 = t289 - t292;
        io.pairs(26, 29, t294);
    }
};

}  // namespace zulg
