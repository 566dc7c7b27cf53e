// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 52.
// Hartley transform of 52 points, form F; up to four lanes to a register.
// 59 sums, 59 differences, 41 products of registers, which do the 680 steps of the graph, those with
// `scale` included; 78 shuffles, 21 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<52> {
    static constexpr int steps = 680;  // with `scale`
    static constexpr double inverseRoot = 0.1386750490563073;  // 1/sqrt(52), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5751407294740031,  // c[2]: -P[3] of 13
        0.1741386011521359,  // c[3]: Q[3] of 13
        0.007705858903092426,  // c[4]: P[2] of 13
        0.6008758031820526,  // c[5]: -Q[2] of 13
        0.5794400189009605,  // c[6]: -P[4] of 13
        0.15924941320823024,  // c[7]: -Q[4] of 13
        0.6007253775544544,  // c[8]: -Q[1] of 13
        0.015496188988565054,  // c[9]: -P[1] of 13
        0.3203288761978803,  // c[10]: -P[5] of 13
        0.5084294662830964,  // c[11]: -Q[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x40_1_14_27 = io.in(40, 1, 14, 27);
        const Q x16_29_42_3 = io.in(16, 29, 42, 3);
        // real block of 3
        const Q t0 = x40_1_14_27 + x16_29_42_3;
        const Q t1 = x40_1_14_27 - x16_29_42_3;
        const Q x12_25_38_51 = io.in(12, 25, 38, 51);
        const Q x36_49_10_23 = io.in(36, 49, 10, 23);
        // real block of 3
        const Q t2 = x12_25_38_51 + x36_49_10_23;
        const Q t3 = x12_25_38_51 - x36_49_10_23;
        const Q x4_17_30_43 = io.in(4, 17, 30, 43);
        const Q t4 = t2 + x4_17_30_43;
        const Q x48_9_22_35 = io.in(48, 9, 22, 35);
        // real block of 3
        const Q t5 = t0 + x48_9_22_35;
        // real block of 2
        const Q t6 = t4 + t5;
        // real block of 3
        const Q t7 = c[0] * t2;
        const Q t8 = x4_17_30_43 - t7;
        // real block of 3
        const Q t9 = c[0] * t0;
        const Q t10 = x48_9_22_35 - t9;
        // complex block of 2
        const Q t11 = t8 - t10;
        // real block of 3
        const Q t12 = c[1] * t3;
        // real block of 3
        const Q t13 = c[1] * t1;
        // complex block of 2
        const Q t14 = t12 + t13;
        const Q t15 = t13 - t12;
        const Q x44_5_18_31 = io.in(44, 5, 18, 31);
        const Q x28_41_2_15 = io.in(28, 41, 2, 15);
        // real block of 3
        const Q t16 = x44_5_18_31 + x28_41_2_15;
        const Q t17 = x44_5_18_31 - x28_41_2_15;
        const Q x8_21_34_47 = io.in(8, 21, 34, 47);
        const Q x24_37_50_11 = io.in(24, 37, 50, 11);
        // real block of 3
        const Q t18 = x8_21_34_47 + x24_37_50_11;
        const Q t19 = x8_21_34_47 - x24_37_50_11;
        const Q x32_45_6_19 = io.in(32, 45, 6, 19);
        // real block of 3
        const Q t20 = t16 + x32_45_6_19;
        const Q x20_33_46_7 = io.in(20, 33, 46, 7);
        // real block of 3
        const Q t21 = t18 + x20_33_46_7;
        // real block of 2
        const Q t22 = t20 + t21;
        // real block of 3
        const Q t23 = c[0] * t16;
        const Q t24 = x32_45_6_19 - t23;
        // real block of 3
        const Q t25 = c[0] * t18;
        const Q t26 = x20_33_46_7 - t25;
        // complex block of 2
        const Q t27 = t24 - t26;
        // real block of 3
        const Q t28 = c[1] * t17;
        // real block of 3
        const Q t29 = c[1] * t19;
        // complex block of 2
        const Q t30 = t28 + t29;
        const Q t31 = t29 - t28;
        // real block of 2
        const Q t32 = t4 - t5;
        // real block of 2
        const Q t33 = t20 - t21;
        // real block of 13, multiplier 4
        const Q t34 = c[2] * t32;
        const Q t35 = c[3] * t33;
        const Q t36 = t34 + t35;
        const Q t37 = c[3] * t32;
        const Q t38 = c[2] * t33;
        const Q t39 = t37 - t38;
        // real block of 2
        const Q t40 = t6 + t22;
        const Q x0_13_26_39 = io.in(0, 13, 26, 39);
        // real block of 13, multiplier 4
        const Q t41 = c[12] * t40;
        const Q t42 = x0_13_26_39 - t41;
        // real block of 2
        const Q t43 = t6 - t22;
        // complex block of 2
        const Q t44 = t8 + t10;
        // complex block of 2
        const Q t45 = t24 + t26;
        // complex block of 2
        const Q t46 = t44 + t45;
        const Q t47 = t44 - t45;
        const Q t48 = t14 + t30;
        const Q t49 = t30 - t14;
        // real block of 13, multiplier 4
        const Q t50 = c[4] * t47;
        const Q t51 = c[5] * t49;
        const Q t52 = t50 - t51;
        const Q t53 = c[6] * t46;
        const Q t54 = c[7] * t48;
        const Q t55 = t53 + t54;
        // complex block of 2
        const Q t56 = t11 - t31;
        const Q t57 = t15 + t27;
        const Q t58 = t11 + t31;
        const Q t59 = t15 - t27;
        // real block of 13, multiplier 4
        const Q t60 = c[8] * t59;
        const Q t61 = c[9] * t58;
        const Q t62 = t60 - t61;
        const Q t63 = c[10] * t56;
        const Q t64 = c[11] * t57;
        const Q t65 = t63 + t64;
        // complex block of 2
        const Q t66 = t65 - t62;
        // real block of 13, multiplier 4
        const Q t67 = c[9] * t59;
        const Q t68 = c[8] * t58;
        const Q t69 = t67 + t68;
        const Q t70 = c[10] * t57;
        const Q t71 = c[11] * t56;
        const Q t72 = t70 - t71;
        // complex block of 2
        const Q t73 = t69 + t72;
        // real block of 13, multiplier 4
        const Q t74 = x0_13_26_39 + t40;
        const P t75 = part<0>(t74);
        const P t76 = part<1>(t74);
        // real block of 2
        const P t77 = t75 + t76;
        const P t78 = t75 - t76;
        const P t79 = shuffled<0, 2>(t77, t78);
        const P t80 = shuffled<1, 3>(t77, t78);
        // real block of 2
        const P t81 = t79 + t80;
        io.out(0, 13, t81);
        const P t82 = t79 - t80;
        io.out(26, 39, t82);
        // real block of 13, multiplier 4
        const Q t83 = c[4] * t49;
        const Q t84 = c[5] * t47;
        const Q t85 = t83 + t84;
        const Q t86 = c[6] * t48;
        const Q t87 = c[7] * t46;
        const Q t88 = t86 - t87;
        // complex block of 2
        const Q t89 = t88 + t85;
        const Q t90 = t88 - t85;
        // real block of 13, multiplier 4
        const Q t91 = c[13] * t43;
        // spectrum block of 2
        const Q t92 = t42 + t91;
        const Q t93 = t42 - t91;
        // complex block of 2
        const Q t94 = t52 - t55;
        const Q t95 = t55 + t52;
        // spectrum block of 3, multiplier 2
        const Q t96 = t94 + t92;
        const Q t97 = c[0] * t94;
        const Q t98 = t92 - t97;
        const Q t99 = c[1] * t89;
        const Q t100 = t98 - t99;
        const Q t101 = t98 + t99;
        // spectrum block of 3, multiplier 2
        const Q t102 = t93 - t95;
        const Q t103 = c[0] * t95;
        const Q t104 = t103 + t93;
        const Q t105 = c[1] * t90;
        const Q t106 = t104 - t105;
        const Q t107 = t104 + t105;
        // complex block of 2
        const Q t108 = t62 + t65;
        const Q t109 = t72 - t69;
        // spectrum block of 3, multiplier 2
        const Q t110 = t109 + t39;
        const Q t111 = c[0] * t109;
        const Q t112 = t39 - t111;
        const Q t113 = c[1] * t108;
        const Q t114 = t112 - t113;
        const Q t115 = t112 + t113;
        // mirrored skew block of 6
        const Q t116 = c[1] * t73;
        const Q t117 = c[0] * t66;
        const Q t118 = t116 + t117;
        // spectrum block of 3, multiplier 2
        const Q t119 = t118 + t36;
        const Q t120 = c[0] * t118;
        const Q t121 = t120 - t36;
        const Q t122 = c[14] * t66;
        const Q t123 = c[15] * t73;
        const Q t124 = t122 - t123;
        const Q t125 = t121 + t124;
        const Q t126 = shuffled<0, 4, 2, 6>(t102, t125);
        const Q t127 = shuffled<0, 4, 2, 6>(t106, t119);
        const Q t128 = shuffled<0, 1, 4, 5>(t126, t127);
        const Q t129 = shuffled<2, 3, 6, 7>(t126, t127);
        // complex block of 2
        const Q t130 = t128 + t129;
        const Q t131 = flipped<0, 1, 0, 0>(t128);
        const Q t132 = flipped<0, 1, 0, 0>(t129);
        const Q t133 = t131 - t132;
        const Q t134 = shuffled<1, 5, 3, 7>(t102, t125);
        const Q t135 = shuffled<1, 5, 3, 7>(t106, t119);
        const Q t136 = shuffled<0, 1, 4, 5>(t134, t135);
        const Q t137 = shuffled<2, 3, 6, 7>(t134, t135);
        // complex block of 2
        const Q t138 = t136 + t137;
        const Q t139 = flipped<0, 1, 0, 0>(t136);
        const Q t140 = flipped<0, 1, 0, 0>(t137);
        const Q t141 = t139 - t140;
        // complex block of 2
        const Q t142 = t130 + t138;
        const Q t143 = flipped<0, 1, 0, 0>(t130);
        const Q t144 = flipped<0, 1, 0, 0>(t138);
        const Q t145 = t143 - t144;
        const P t146 = part<0>(t142);
        const P t147 = part<1>(t145);
        const P t148 = shuffled<0, 2>(t146, t147);
        const P t149 = part<1>(t142);
        const P t150 = part<0>(t145);
        const P t151 = shuffled<0, 2>(t149, t150);
        const Q t152 = joined(t148, t151);
        const P t153 = shuffled<1, 3>(t146, t147);
        const P t154 = shuffled<1, 3>(t149, t150);
        const Q t155 = joined(t153, t154);
        // output stage
        const Q t156 = t152 - t155;
        io.out(32, 50, 24, 46, t156);
        const Q t157 = t152 + t155;
        io.out(20, 2, 28, 6, t157);
        const Q t158 = shuffled<1, 0, 3, 2>(t141);
        const Q t159 = flipped<0, 1, 0, 1>(t158);
        // complex block of 2
        const Q t160 = t133 + t159;
        const Q t161 = t133 - t159;
        const P t162 = part<1>(t160);
        const P t163 = part<0>(t161);
        const P t164 = shuffled<0, 2>(t162, t163);
        const P t165 = part<0>(t160);
        const P t166 = part<1>(t161);
        const P t167 = shuffled<0, 2>(t165, t166);
        const Q t168 = joined(t164, t167);
        const P t169 = shuffled<1, 3>(t162, t163);
        const P t170 = shuffled<1, 3>(t165, t166);
        const Q t171 = joined(t169, t170);
        // output stage
        const Q t172 = t168 + t171;
        io.out(15, 45, 19, 41, t172);
        const Q t173 = t168 - t171;
        io.out(37, 7, 33, 11, t173);
        // spectrum block of 3, multiplier 2
        const Q t174 = t121 - t124;
        const Q t175 = shuffled<0, 4, 2, 6>(t96, t110);
        const Q t176 = shuffled<0, 4, 2, 6>(t107, t174);
        const Q t177 = shuffled<0, 1, 4, 5>(t175, t176);
        const Q t178 = shuffled<2, 3, 6, 7>(t175, t176);
        // complex block of 2
        const Q t179 = t177 + t178;
        const Q t180 = flipped<0, 0, 0, 1>(t177);
        const Q t181 = flipped<0, 0, 0, 1>(t178);
        const Q t182 = t180 - t181;
        const Q t183 = shuffled<1, 5, 3, 7>(t96, t110);
        const Q t184 = shuffled<1, 5, 3, 7>(t107, t174);
        const Q t185 = shuffled<0, 1, 4, 5>(t183, t184);
        const Q t186 = shuffled<2, 3, 6, 7>(t183, t184);
        // complex block of 2
        const Q t187 = t185 + t186;
        const Q t188 = flipped<0, 0, 0, 1>(t185);
        const Q t189 = flipped<0, 0, 0, 1>(t186);
        const Q t190 = t188 - t189;
        // complex block of 2
        const Q t191 = t179 + t187;
        const Q t192 = flipped<0, 0, 0, 1>(t179);
        const Q t193 = flipped<0, 0, 0, 1>(t187);
        const Q t194 = t192 - t193;
        const P t195 = part<0>(t191);
        const P t196 = part<1>(t194);
        const P t197 = shuffled<0, 2>(t195, t196);
        const P t198 = part<1>(t191);
        const P t199 = part<0>(t194);
        const P t200 = shuffled<0, 2>(t198, t199);
        const Q t201 = joined(t197, t200);
        const P t202 = shuffled<1, 3>(t195, t196);
        const P t203 = shuffled<1, 3>(t198, t199);
        const Q t204 = joined(t202, t203);
        // output stage
        const Q t205 = t201 + t204;
        io.out(48, 18, 8, 22, t205);
        const Q t206 = t201 - t204;
        io.out(4, 34, 44, 30, t206);
        const Q t207 = shuffled<1, 0, 3, 2>(t190);
        const Q t208 = flipped<0, 1, 0, 1>(t207);
        // complex block of 2
        const Q t209 = t182 + t208;
        const Q t210 = t182 - t208;
        const P t211 = part<0>(t209);
        const P t212 = part<1>(t210);
        const P t213 = shuffled<0, 2>(t211, t212);
        const P t214 = part<1>(t209);
        const P t215 = part<0>(t210);
        const P t216 = shuffled<0, 2>(t214, t215);
        const Q t217 = joined(t213, t216);
        const P t218 = shuffled<1, 3>(t211, t212);
        const P t219 = shuffled<1, 3>(t214, t215);
        const Q t220 = joined(t218, t219);
        // output stage
        const Q t221 = t217 - t220;
        io.out(17, 47, 21, 43, t221);
        const Q t222 = t217 + t220;
        io.out(35, 5, 31, 9, t222);
        const Q t223 = shuffled<0, 4, 2, 6>(t101, t114);
        const Q t224 = shuffled<0, 4, 2, 6>(t100, t115);
        const Q t225 = shuffled<0, 1, 4, 5>(t223, t224);
        const Q t226 = shuffled<2, 3, 6, 7>(t223, t224);
        // complex block of 2
        const Q t227 = t225 + t226;
        const Q t228 = shuffled<1, 5, 3, 7>(t101, t114);
        const Q t229 = shuffled<1, 5, 3, 7>(t100, t115);
        const Q t230 = shuffled<0, 1, 4, 5>(t228, t229);
        const Q t231 = shuffled<2, 3, 6, 7>(t228, t229);
        // complex block of 2
        const Q t232 = t230 + t231;
        // complex block of 2
        const Q t233 = t227 + t232;
        const Q t234 = flipped<0, 0, 0, 1>(t227);
        const Q t235 = flipped<0, 0, 0, 1>(t232);
        const Q t236 = t234 - t235;
        const P t237 = part<0>(t233);
        const P t238 = part<1>(t236);
        const P t239 = shuffled<0, 2>(t237, t238);
        const P t240 = part<1>(t233);
        const P t241 = part<0>(t236);
        const P t242 = shuffled<0, 2>(t240, t241);
        const Q t243 = joined(t239, t242);
        const P t244 = shuffled<1, 3>(t237, t238);
        const P t245 = shuffled<1, 3>(t240, t241);
        const Q t246 = joined(t244, t245);
        // output stage
        const Q t247 = t243 + t246;
        io.out(40, 10, 16, 14, t247);
        const Q t248 = t243 - t246;
        io.out(12, 42, 36, 38, t248);
        const Q t249 = flipped<0, 0, 0, 1>(t225);
        const Q t250 = flipped<0, 0, 0, 1>(t226);
        // complex block of 2
        const Q t251 = t249 - t250;
        const Q t252 = flipped<0, 0, 0, 1>(t230);
        const Q t253 = flipped<0, 0, 0, 1>(t231);
        // complex block of 2
        const Q t254 = t252 - t253;
        const Q t255 = shuffled<1, 0, 3, 2>(t254);
        const Q t256 = flipped<0, 1, 0, 1>(t255);
        // complex block of 2
        const Q t257 = t251 + t256;
        const Q t258 = t251 - t256;
        const P t259 = part<1>(t257);
        const P t260 = part<0>(t258);
        const P t261 = shuffled<0, 2>(t259, t260);
        const P t262 = part<0>(t257);
        const P t263 = part<1>(t258);
        const P t264 = shuffled<0, 2>(t262, t263);
        const Q t265 = joined(t261, t264);
        const P t266 = shuffled<1, 3>(t259, t260);
        const P t267 = shuffled<1, 3>(t262, t263);
        const Q t268 = joined(t266, t267);
        // output stage
        const Q t269 = t265 - t268;
        io.out(29, 51, 25, 3, t269);
        const Q t270 = t265 + t268;
        io.out(23, 1, 27, 49, t270);
    }
};

}  // namespace zulg
