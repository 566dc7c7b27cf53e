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
        0.6007253775544544,  // c[2]: -Q[1] of 13
        0.015496188988565054,  // c[3]: -P[1] of 13
        0.007705858903092426,  // c[4]: P[2] of 13
        0.6008758031820526,  // c[5]: -Q[2] of 13
        0.5751407294740031,  // c[6]: -P[3] of 13
        0.1741386011521359,  // c[7]: Q[3] of 13
        0.5794400189009605,  // c[8]: -P[4] of 13
        0.15924941320823024,  // c[9]: -Q[4] of 13
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
        const Q x12_25_38_51 = io.in(12, 25, 38, 51);
        const Q x36_49_10_23 = io.in(36, 49, 10, 23);
        // real block of 3
        const Q t0 = x12_25_38_51 + x36_49_10_23;
        const Q t1 = x12_25_38_51 - x36_49_10_23;
        const Q x4_17_30_43 = io.in(4, 17, 30, 43);
        const Q t2 = t0 + x4_17_30_43;
        const Q t3 = c[0] * t0;
        const Q t4 = x4_17_30_43 - t3;
        const Q x44_5_18_31 = io.in(44, 5, 18, 31);
        const Q x28_41_2_15 = io.in(28, 41, 2, 15);
        // real block of 3
        const Q t5 = x44_5_18_31 + x28_41_2_15;
        const Q t6 = x44_5_18_31 - x28_41_2_15;
        const Q x32_45_6_19 = io.in(32, 45, 6, 19);
        const Q t7 = t5 + x32_45_6_19;
        const Q t8 = c[0] * t5;
        const Q t9 = x32_45_6_19 - t8;
        const Q x40_1_14_27 = io.in(40, 1, 14, 27);
        const Q x16_29_42_3 = io.in(16, 29, 42, 3);
        // real block of 3
        const Q t10 = x40_1_14_27 + x16_29_42_3;
        const Q t11 = x40_1_14_27 - x16_29_42_3;
        const Q x48_9_22_35 = io.in(48, 9, 22, 35);
        const Q t12 = t10 + x48_9_22_35;
        const Q t13 = c[0] * t10;
        const Q t14 = x48_9_22_35 - t13;
        const Q x8_21_34_47 = io.in(8, 21, 34, 47);
        const Q x24_37_50_11 = io.in(24, 37, 50, 11);
        // real block of 3
        const Q t15 = x8_21_34_47 + x24_37_50_11;
        const Q t16 = x8_21_34_47 - x24_37_50_11;
        const Q x20_33_46_7 = io.in(20, 33, 46, 7);
        const Q t17 = t15 + x20_33_46_7;
        const Q t18 = c[0] * t15;
        const Q t19 = x20_33_46_7 - t18;
        // real block of 2
        const Q t20 = t2 + t12;
        const Q t21 = t2 - t12;
        // real block of 2
        const Q t22 = t7 + t17;
        const Q t23 = t7 - t17;
        // real block of 2
        const Q t24 = t20 + t22;
        const Q t25 = t20 - t22;
        // complex block of 2
        const Q t26 = t4 + t14;
        // real block of 3
        const Q t27 = c[1] * t1;
        // real block of 3
        const Q t28 = c[1] * t11;
        // complex block of 2
        const Q t29 = t27 + t28;
        const Q t30 = t4 - t14;
        const Q t31 = t28 - t27;
        // complex block of 2
        const Q t32 = t9 + t19;
        // real block of 3
        const Q t33 = c[1] * t6;
        // real block of 3
        const Q t34 = c[1] * t16;
        // complex block of 2
        const Q t35 = t33 + t34;
        const Q t36 = t9 - t19;
        const Q t37 = t34 - t33;
        // complex block of 2
        const Q t38 = t26 + t32;
        const Q t39 = t29 + t35;
        const Q t40 = t26 - t32;
        const Q t41 = t35 - t29;
        // complex block of 2
        const Q t42 = t30 - t37;
        const Q t43 = t31 + t36;
        const Q t44 = t30 + t37;
        const Q t45 = t31 - t36;
        const Q x0_13_26_39 = io.in(0, 13, 26, 39);
        // real block of 13, multiplier 4
        const Q t46 = x0_13_26_39 + t24;
        const Q t47 = c[12] * t24;
        const Q t48 = x0_13_26_39 - t47;
        const Q t49 = c[2] * t45;
        const Q t50 = c[3] * t44;
        const Q t51 = t49 - t50;
        const Q t52 = c[3] * t45;
        const Q t53 = c[2] * t44;
        const Q t54 = t52 + t53;
        const Q t55 = c[4] * t40;
        const Q t56 = c[5] * t41;
        const Q t57 = t55 - t56;
        const Q t58 = c[4] * t41;
        const Q t59 = c[5] * t40;
        const Q t60 = t58 + t59;
        const Q t61 = c[6] * t21;
        const Q t62 = c[7] * t23;
        const Q t63 = t61 + t62;
        const Q t64 = c[7] * t21;
        const Q t65 = c[6] * t23;
        const Q t66 = t64 - t65;
        const Q t67 = c[8] * t38;
        const Q t68 = c[9] * t39;
        const Q t69 = t67 + t68;
        const Q t70 = c[8] * t39;
        const Q t71 = c[9] * t38;
        const Q t72 = t70 - t71;
        const Q t73 = c[10] * t42;
        const Q t74 = c[11] * t43;
        const Q t75 = t73 + t74;
        const Q t76 = c[10] * t43;
        const Q t77 = c[11] * t42;
        const Q t78 = t76 - t77;
        const Q t79 = c[13] * t25;
        // spectrum block of 2
        const Q t80 = t48 + t79;
        const Q t81 = t48 - t79;
        // complex block of 2
        const Q t82 = t72 + t60;
        const Q t83 = t57 - t69;
        const Q t84 = t72 - t60;
        const Q t85 = t69 + t57;
        // spectrum block of 3, multiplier 2
        const Q t86 = t83 + t80;
        const Q t87 = c[0] * t83;
        const Q t88 = t80 - t87;
        const Q t89 = c[1] * t82;
        const Q t90 = t88 - t89;
        const Q t91 = t88 + t89;
        // spectrum block of 3, multiplier 2
        const Q t92 = t81 - t85;
        const Q t93 = c[0] * t85;
        const Q t94 = t93 + t81;
        const Q t95 = c[1] * t84;
        const Q t96 = t94 - t95;
        const Q t97 = t94 + t95;
        // complex block of 2
        const Q t98 = t51 + t75;
        const Q t99 = t78 - t54;
        const Q t100 = t75 - t51;
        const Q t101 = t54 + t78;
        // mirrored skew block of 6
        const Q t102 = c[1] * t101;
        const Q t103 = c[0] * t100;
        const Q t104 = t102 + t103;
        // spectrum block of 3, multiplier 2
        const Q t105 = t99 + t66;
        const Q t106 = c[0] * t99;
        const Q t107 = t66 - t106;
        const Q t108 = c[1] * t98;
        const Q t109 = t107 - t108;
        const Q t110 = t107 + t108;
        // spectrum block of 3, multiplier 2
        const Q t111 = t104 + t63;
        const Q t112 = c[0] * t104;
        const Q t113 = t112 - t63;
        const Q t114 = c[14] * t100;
        const Q t115 = c[15] * t101;
        const Q t116 = t114 - t115;
        const Q t117 = t113 + t116;
        const Q t118 = t113 - t116;
        const P t119 = part<0>(t46);
        const P t120 = part<1>(t46);
        // real block of 2
        const P t121 = t119 + t120;
        const P t122 = t119 - t120;
        const Q t123 = shuffled<0, 4, 2, 6>(t86, t105);
        const Q t124 = shuffled<0, 4, 2, 6>(t97, t118);
        const Q t125 = shuffled<0, 1, 4, 5>(t123, t124);
        const Q t126 = shuffled<2, 3, 6, 7>(t123, t124);
        // complex block of 2
        const Q t127 = t125 + t126;
        const Q t128 = flipped<0, 0, 0, 1>(t125);
        const Q t129 = flipped<0, 0, 0, 1>(t126);
        const Q t130 = t128 - t129;
        const Q t131 = shuffled<1, 5, 3, 7>(t86, t105);
        const Q t132 = shuffled<1, 5, 3, 7>(t97, t118);
        const Q t133 = shuffled<0, 1, 4, 5>(t131, t132);
        const Q t134 = shuffled<2, 3, 6, 7>(t131, t132);
        // complex block of 2
        const Q t135 = t133 + t134;
        const Q t136 = flipped<0, 0, 0, 1>(t133);
        const Q t137 = flipped<0, 0, 0, 1>(t134);
        const Q t138 = t136 - t137;
        // complex block of 2
        const Q t139 = t127 + t135;
        const Q t140 = flipped<0, 0, 0, 1>(t127);
        const Q t141 = flipped<0, 0, 0, 1>(t135);
        const Q t142 = t140 - t141;
        const Q t143 = shuffled<1, 0, 3, 2>(t138);
        const Q t144 = flipped<0, 1, 0, 1>(t143);
        // complex block of 2
        const Q t145 = t130 + t144;
        const Q t146 = t130 - t144;
        const Q t147 = shuffled<0, 4, 2, 6>(t91, t109);
        const Q t148 = shuffled<0, 4, 2, 6>(t90, t110);
        const Q t149 = shuffled<0, 1, 4, 5>(t147, t148);
        const Q t150 = shuffled<2, 3, 6, 7>(t147, t148);
        // complex block of 2
        const Q t151 = t149 + t150;
        const Q t152 = flipped<0, 0, 0, 1>(t149);
        const Q t153 = flipped<0, 0, 0, 1>(t150);
        const Q t154 = t152 - t153;
        const Q t155 = shuffled<1, 5, 3, 7>(t91, t109);
        const Q t156 = shuffled<1, 5, 3, 7>(t90, t110);
        const Q t157 = shuffled<0, 1, 4, 5>(t155, t156);
        const Q t158 = shuffled<2, 3, 6, 7>(t155, t156);
        // complex block of 2
        const Q t159 = t157 + t158;
        const Q t160 = flipped<0, 0, 0, 1>(t157);
        const Q t161 = flipped<0, 0, 0, 1>(t158);
        const Q t162 = t160 - t161;
        // complex block of 2
        const Q t163 = t151 + t159;
        const Q t164 = flipped<0, 0, 0, 1>(t151);
        const Q t165 = flipped<0, 0, 0, 1>(t159);
        const Q t166 = t164 - t165;
        const Q t167 = shuffled<1, 0, 3, 2>(t162);
        const Q t168 = flipped<0, 1, 0, 1>(t167);
        // complex block of 2
        const Q t169 = t154 + t168;
        const Q t170 = t154 - t168;
        const Q t171 = shuffled<0, 4, 2, 6>(t92, t117);
        const Q t172 = shuffled<0, 4, 2, 6>(t96, t111);
        const Q t173 = shuffled<0, 1, 4, 5>(t171, t172);
        const Q t174 = shuffled<2, 3, 6, 7>(t171, t172);
        // complex block of 2
        const Q t175 = t173 + t174;
        const Q t176 = flipped<0, 1, 0, 0>(t173);
        const Q t177 = flipped<0, 1, 0, 0>(t174);
        const Q t178 = t176 - t177;
        const Q t179 = shuffled<1, 5, 3, 7>(t92, t117);
        const Q t180 = shuffled<1, 5, 3, 7>(t96, t111);
        const Q t181 = shuffled<0, 1, 4, 5>(t179, t180);
        const Q t182 = shuffled<2, 3, 6, 7>(t179, t180);
        // complex block of 2
        const Q t183 = t181 + t182;
        const Q t184 = flipped<0, 1, 0, 0>(t181);
        const Q t185 = flipped<0, 1, 0, 0>(t182);
        const Q t186 = t184 - t185;
        // complex block of 2
        const Q t187 = t175 + t183;
        const Q t188 = flipped<0, 1, 0, 0>(t175);
        const Q t189 = flipped<0, 1, 0, 0>(t183);
        const Q t190 = t188 - t189;
        const Q t191 = shuffled<1, 0, 3, 2>(t186);
        const Q t192 = flipped<0, 1, 0, 1>(t191);
        // complex block of 2
        const Q t193 = t178 + t192;
        const Q t194 = t178 - t192;
        const P t195 = shuffled<0, 2>(t121, t122);
        const P t196 = shuffled<1, 3>(t121, t122);
        // real block of 2
        const P t197 = t195 + t196;
        io.out(0, 13, t197);
        const P t198 = t195 - t196;
        io.out(26, 39, t198);
        const P t199 = part<0>(t163);
        const P t200 = part<1>(t166);
        const P t201 = shuffled<0, 2>(t199, t200);
        const P t202 = part<1>(t163);
        const P t203 = part<0>(t166);
        const P t204 = shuffled<0, 2>(t202, t203);
        const Q t205 = joined(t201, t204);
        const P t206 = shuffled<1, 3>(t199, t200);
        const P t207 = shuffled<1, 3>(t202, t203);
        const Q t208 = joined(t206, t207);
        // output stage
        const Q t209 = t205 + t208;
        io.out(40, 10, 16, 14, t209);
        const Q t210 = t205 - t208;
        io.out(12, 42, 36, 38, t210);
        const P t211 = part<1>(t193);
        const P t212 = part<0>(t194);
        const P t213 = shuffled<0, 2>(t211, t212);
        const P t214 = part<0>(t193);
        const P t215 = part<1>(t194);
        const P t216 = shuffled<0, 2>(t214, t215);
        const Q t217 = joined(t213, t216);
        const P t218 = shuffled<1, 3>(t211, t212);
        const P t219 = shuffled<1, 3>(t214, t215);
        const Q t220 = joined(t218, t219);
        const Q t221 = t217 + t220;
        io.out(15, 45, 19, 41, t221);
        const Q t222 = t217 - t220;
        io.out(37, 7, 33, 11, t222);
        const P t223 = part<0>(t145);
        const P t224 = part<1>(t146);
        const P t225 = shuffled<0, 2>(t223, t224);
        const P t226 = part<1>(t145);
        const P t227 = part<0>(t146);
        const P t228 = shuffled<0, 2>(t226, t227);
        const Q t229 = joined(t225, t228);
        const P t230 = shuffled<1, 3>(t223, t224);
        const P t231 = shuffled<1, 3>(t226, t227);
        const Q t232 = joined(t230, t231);
        const Q t233 = t229 - t232;
        io.out(17, 47, 21, 43, t233);
        const Q t234 = t229 + t232;
        io.out(35, 5, 31, 9, t234);
        const P t235 = part<0>(t139);
        const P t236 = part<1>(t142);
        const P t237 = shuffled<0, 2>(t235, t236);
        const P t238 = part<1>(t139);
        const P t239 = part<0>(t142);
        const P t240 = shuffled<0, 2>(t238, t239);
        const Q t241 = joined(t237, t240);
        const P t242 = shuffled<1, 3>(t235, t236);
        const P t243 = shuffled<1, 3>(t238, t239);
        const Q t244 = joined(t242, t243);
        const Q t245 = t241 + t244;
        io.out(48, 18, 8, 22, t245);
        const Q t246 = t241 - t244;
        io.out(4, 34, 44, 30, t246);
        const P t247 = part<0>(t187);
        const P t248 = part<1>(t190);
        const P t249 = shuffled<0, 2>(t247, t248);
        const P t250 = part<1>(t187);
        const P t251 = part<0>(t190);
        const P t252 = shuffled<0, 2>(t250, t251);
        const Q t253 = joined(t249, t252);
        const P t254 = shuffled<1, 3>(t247, t248);
        const P t255 = shuffled<1, 3>(t250, t251);
        const Q t256 = joined(t254, t255);
        const Q t257 = t253 - t256;
        io.out(32, 50, 24, 46, t257);
        const Q t258 = t253 + t256;
        io.out(20, 2, 28, 6, t258);
        const P t259 = part<1>(t169);
        const P t260 = part<0>(t170);
        const P t261 = shuffled<0, 2>(t259, t260);
        const P t262 = part<0>(t169);
        const P t263 = part<1>(t170);
        const P t264 = shuffled<0, 2>(t262, t263);
        const Q t265 = joined(t261, t264);
        const P t266 = shuffled<1, 3>(t259, t260);
        const P t267 = shuffled<1, 3>(t262, t263);
        const Q t268 = joined(t266, t267);
        const Q t269 = t265 - t268;
        io.out(29, 51, 25, 3, t269);
        const Q t270 = t265 + t268;
        io.out(23, 1, 27, 49, t270);
    }
};

}  // namespace zulg
