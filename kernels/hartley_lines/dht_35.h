// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 35.
// Hartley transform of 35 points, form I; up to four lanes to a register.
// 57 sums, 45 differences, 60 products of registers, which do the 443 steps of the graph, those with
// `scale` included; 49 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<35> {
    static constexpr int steps = 443;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.7818314824680298,  // c[2]: sin 2 pi 1/7
        0.9749279121818236,  // c[3]: sin 2 pi 2/7
        0.4338837391175581,  // c[4]: sin 2 pi 3/7
        0.9009688679024191,  // c[5]: -cos 2 pi 3/7
        0.30901699437494745,  // c[6]: cos 2 pi 1/5
        0.8090169943749475,  // c[7]: -cos 2 pi 2/5
        0.9510565162951535,  // c[8]: sin 2 pi 1/5
        0.5877852522924731,  // c[9]: sin 2 pi 2/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x34_33_32_31 = io.in(34, 33, 32, 31);
        // input stage
        const Q t0 = x1_2_3_4 + x34_33_32_31;
        const Q t1 = x1_2_3_4 - x34_33_32_31;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x30_29_28_27 = io.in(30, 29, 28, 27);
        const Q t2 = x5_6_7_8 + x30_29_28_27;
        const Q t3 = x5_6_7_8 - x30_29_28_27;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x26_25_24_23 = io.in(26, 25, 24, 23);
        const Q t4 = x9_10_11_12 + x26_25_24_23;
        const Q t5 = x9_10_11_12 - x26_25_24_23;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x22_21_20_19 = io.in(22, 21, 20, 19);
        const Q t6 = x13_14_15_16 + x22_21_20_19;
        const Q t7 = x13_14_15_16 - x22_21_20_19;
        const V x17 = io.in(17);
        const V x18 = io.in(18);
        const V t8 = x17 + x18;
        const V t9 = x17 - x18;
        const P t10 = part<1>(t4);
        const P t11 = part<1>(t5);
        const P t12 = shuffled<1, 3>(t10, t11);
        const P t13 = joined(t8, t9);
        const Q t14 = joined(t12, t13);
        const Q t15 = shuffled<1, 5, 2, 6>(t0, t1);
        const Q t16 = flipped<0, 1, 0, 0>(t15);
        // complex block of 5, multiplier 2
        const Q t17 = t14 + t16;
        const Q t18 = t14 - t16;
        const Q t19 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t20 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t21 = shuffled<2, 3, 6, 7>(t19, t20);
        const Q t22 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t23 = t21 + t22;
        const Q t24 = flipped<0, 1, 1, 0>(t22);
        const Q t25 = flipped<1, 0, 0, 1>(t21);
        const Q t26 = t24 + t25;
        const P t27 = part<0>(t6);
        const P t28 = part<1>(t3);
        const P t29 = shuffled<0, 3>(t27, t28);
        const P t30 = part<1>(t2);
        const P t31 = part<0>(t7);
        const P t32 = shuffled<1, 2>(t30, t31);
        const P t33 = flipped<0, 1>(t32);
        // complex block of 5, multiplier 2
        const P t34 = t29 + t33;
        const P t35 = t29 - t33;
        const P t36 = part<0>(t0);
        const P t37 = part<0>(t1);
        const P t38 = shuffled<0, 2>(t36, t37);
        const P t39 = part<0>(t2);
        const P t40 = part<0>(t3);
        const P t41 = shuffled<1, 3>(t39, t40);
        const P t42 = flipped<0, 1>(t41);
        const P t43 = t38 + t42;
        const P t44 = t38 - t42;
        const V t45 = part<0>(t30);
        const V t46 = part<1>(t27);
        // spectrum block of 5, multiplier 2
        const V t47 = t45 + t46;
        const V x0 = io.in(0);
        const V t48 = t47 + x0;
        const V t49 = c[6] * t45;
        const V t50 = c[7] * t46;
        const V t51 = t49 - t50;
        const V t52 = t51 + x0;
        const V t53 = part<0>(t28);
        const V t54 = c[8] * t53;
        const V t55 = part<1>(t31);
        const V t56 = c[9] * t55;
        const V t57 = t54 + t56;
        const V t58 = c[7] * t45;
        const V t59 = x0 - t58;
        const V t60 = c[6] * t46;
        const V t61 = t59 + t60;
        const V t62 = c[9] * t53;
        const V t63 = c[8] * t55;
        const V t64 = t62 - t63;
        const Q t65 = flipped<0, 1, 0, 1>(t23);
        // complex block of 5, multiplier 2
        const Q t66 = t17 + t65;
        const Q t67 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t68 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t69 = shuffled<0, 1, 4, 5>(t67, t68);
        const Q t70 = t66 + t69;
        const Q t71 = c[6] * t17;
        const Q t72 = Q(-c[7], c[7], -c[7], c[7]) * t23;
        const Q t73 = t71 + t72;
        const Q t74 = t73 + t69;
        const Q t75 = c[8] * t18;
        const Q t76 = c[9] * t26;
        const Q t77 = t75 - t76;
        const Q t78 = c[7] * t17;
        const Q t79 = t69 - t78;
        const Q t80 = Q(c[6], -c[6], c[6], -c[6]) * t23;
        const Q t81 = t79 + t80;
        const Q t82 = c[9] * t18;
        const Q t83 = c[8] * t26;
        const Q t84 = t82 + t83;
        // complex block of 5, multiplier 2
        const P t85 = t34 + t43;
        const P t86 = part<1>(t6);
        const P t87 = part<1>(t7);
        const P t88 = shuffled<0, 2>(t86, t87);
        const P t89 = t85 + t88;
        const P t90 = c[6] * t34;
        const P t91 = c[7] * t43;
        const P t92 = t90 - t91;
        const P t93 = t92 + t88;
        const P t94 = c[8] * t35;
        const P t95 = P(-c[9], c[9]) * t44;
        const P t96 = t94 + t95;
        const P t97 = c[7] * t34;
        const P t98 = t88 - t97;
        const P t99 = c[6] * t43;
        const P t100 = t98 + t99;
        const P t101 = c[8] * t44;
        const P t102 = P(c[9], -c[9]) * t35;
        const P t103 = t101 + t102;
        // spectrum block of 5, multiplier 2
        const V t104 = t52 - t57;
        const V t105 = t52 + t57;
        const V t106 = t61 - t64;
        const Q t107 = shuffled<1, 0, 3, 2>(t77);
        const Q t108 = flipped<1, 0, 1, 0>(t107);
        // complex block of 5, multiplier 2
        const Q t109 = t74 + t108;
        const Q t110 = t74 - t108;
        const Q t111 = shuffled<1, 0, 3, 2>(t84);
        const Q t112 = flipped<1, 0, 1, 0>(t111);
        const Q t113 = t81 + t112;
        const Q t114 = shuffled<0, 4, 2, 6>(t70, t113);
        const Q t115 = shuffled<0, 4, 2, 6>(t110, t109);
        const Q t116 = shuffled<0, 1, 4, 5>(t114, t115);
        const Q t117 = shuffled<2, 3, 6, 7>(t114, t115);
        // spectrum block of 7, multiplier 5
        const Q t118 = t116 + t117;
        const Q t119 = c[0] * t116;
        const Q t120 = c[1] * t117;
        const Q t121 = t119 - t120;
        const Q t122 = shuffled<1, 5, 3, 7>(t70, t113);
        const Q t123 = shuffled<1, 5, 3, 7>(t110, t109);
        const Q t124 = shuffled<0, 1, 4, 5>(t122, t123);
        const Q t125 = c[2] * t124;
        const Q t126 = shuffled<2, 3, 6, 7>(t122, t123);
        const Q t127 = c[3] * t126;
        const Q t128 = t125 + t127;
        const P t129 = joined(t48, t106);
        const P t130 = joined(t105, t104);
        const Q t131 = joined(t129, t130);
        const Q t132 = c[1] * t116;
        const Q t133 = t131 - t132;
        const Q t134 = c[3] * t124;
        const Q t135 = c[4] * t126;
        const Q t136 = t134 - t135;
        const Q t137 = c[5] * t116;
        const Q t138 = t131 - t137;
        const Q t139 = c[4] * t124;
        const Q t140 = c[2] * t126;
        const Q t141 = t139 - t140;
        const P t142 = shuffled<1, 0>(t96);
        // complex block of 5, multiplier 2
        const P t143 = t93 + t142;
        const P t144 = t93 - t142;
        const P t145 = shuffled<1, 0>(t103);
        const P t146 = flipped<1, 0>(t145);
        const P t147 = t100 + t146;
        const P t148 = shuffled<0, 2>(t89, t147);
        const P t149 = shuffled<0, 2>(t144, t143);
        const Q t150 = joined(t148, t149);
        // spectrum block of 7, multiplier 5
        const Q t151 = t118 + t150;
        const Q t152 = t151 + t131;
        io.out(0, 28, 21, 14, t152);
        const Q t153 = c[5] * t150;
        const Q t154 = t121 - t153;
        const Q t155 = t154 + t131;
        const P t156 = shuffled<1, 3>(t89, t147);
        const P t157 = shuffled<1, 3>(t144, t143);
        const Q t158 = joined(t156, t157);
        const Q t159 = c[4] * t158;
        const Q t160 = t128 + t159;
        const Q t161 = t155 - t160;
        io.out(20, 13, 6, 34, t161);
        const Q t162 = t155 + t160;
        io.out(15, 8, 1, 29, t162);
        const Q t163 = c[5] * t117;
        const Q t164 = t133 - t163;
        const Q t165 = c[0] * t150;
        const Q t166 = t164 + t165;
        const Q t167 = c[2] * t158;
        const Q t168 = t136 - t167;
        const Q t169 = t166 - t168;
        io.out(5, 33, 26, 19, t169);
        const Q t170 = t166 + t168;
        io.out(30, 23, 16, 9, t170);
        const Q t171 = c[0] * t117;
        const Q t172 = t138 + t171;
        const Q t173 = c[1] * t150;
        const Q t174 = t172 - t173;
        const Q t175 = c[3] * t158;
        const Q t176 = t141 + t175;
        const Q t177 = t174 - t176;
        io.out(25, 18, 11, 4, t177);
        const Q t178 = t174 + t176;
        io.out(10, 3, 31, 24, t178);
        // spectrum block of 5, multiplier 2
        const V t179 = t61 + t64;
        // complex block of 5, multiplier 2
        const Q t180 = t81 - t112;
        const P t181 = part<0>(t180);
        const V t182 = part<0>(t181);
        const P t183 = part<1>(t180);
        const V t184 = part<0>(t183);
        // spectrum block of 7, multiplier 5
        const V t185 = t182 + t184;
        const V t186 = c[0] * t182;
        const V t187 = c[1] * t184;
        const V t188 = t186 - t187;
        const V t189 = part<1>(t181);
        const V t190 = c[2] * t189;
        const V t191 = part<1>(t183);
        const V t192 = c[3] * t191;
        const V t193 = t190 + t192;
        const V t194 = c[1] * t182;
        const V t195 = t179 - t194;
        const V t196 = c[3] * t189;
        const V t197 = c[4] * t191;
        const V t198 = t196 - t197;
        const V t199 = c[5] * t182;
        const V t200 = t179 - t199;
        const V t201 = c[4] * t189;
        const V t202 = c[2] * t191;
        const V t203 = t201 - t202;
        // complex block of 5, multiplier 2
        const P t204 = t100 - t146;
        const V t205 = part<0>(t204);
        // spectrum block of 7, multiplier 5
        const V t206 = t185 + t205;
        const V t207 = t206 + t179;
        io.out(7, t207);
        const V t208 = c[5] * t205;
        const V t209 = t188 - t208;
        const V t210 = t209 + t179;
        const V t211 = part<1>(t204);
        const V t212 = c[4] * t211;
        const V t213 = t193 + t212;
        const V t214 = t210 - t213;
        io.out(27, t214);
        const V t215 = t210 + t213;
        io.out(22, t215);
        const V t216 = c[5] * t184;
        const V t217 = t195 - t216;
        const V t218 = c[0] * t205;
        const V t219 = t217 + t218;
        const V t220 = c[2] * t211;
        const V t221 = t198 - t220;
        const V t222 = t219 - t221;
        io.out(12, t222);
        const V t223 = t219 + t221;
        io.out(2, t223);
        const V t224 = c[0] * t184;
        const V t225 = t200 + t224;
        const V t226 = c[1] * t205;
        const V t227 = t225 - t226;
        const V t228 = c[3] * t211;
        const V t229 = t203 + t228;
        const V t230 = t227 - t229;
        io.out(32, t230);
        const V t231 = t227 + t229;
        io.out(17, t231);
    }
};

}  // namespace zulg
