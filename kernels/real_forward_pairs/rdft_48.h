// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 48.
// Forward DFT of 48 real points, prime-factor 16, 3; two lanes to a register.
// 73 sums, 64 differences, 35 products of registers, which do the 382 steps of the graph, those with
// `scale` included; 47 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<48> {
    static constexpr int steps = 382;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3826834323650898,  // c[2]: cos 2 pi 3/16
        0.9238795325112867,  // c[3]: sin 2 pi 3/16
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_16 = io.in(0, 16);
        const P x24_40 = io.in(24, 40);
        // real block of 2
        const P t0 = x0_16 + x24_40;
        const P t1 = x0_16 - x24_40;
        const P x12_28 = io.in(12, 28);
        const P x36_4 = io.in(36, 4);
        // real block of 2
        const P t2 = x12_28 + x36_4;
        const P t3 = x12_28 - x36_4;
        // real block of 2
        const P t4 = t0 + t2;
        const P t5 = t0 - t2;
        const P x3_19 = io.in(3, 19);
        const P x27_43 = io.in(27, 43);
        // real block of 2
        const P t6 = x3_19 + x27_43;
        const P t7 = x3_19 - x27_43;
        const P x15_31 = io.in(15, 31);
        const P x39_7 = io.in(39, 7);
        // real block of 2
        const P t8 = x15_31 + x39_7;
        const P t9 = x15_31 - x39_7;
        // real block of 2
        const P t10 = t6 + t8;
        const P t11 = t6 - t8;
        const P x6_22 = io.in(6, 22);
        const P x30_46 = io.in(30, 46);
        // real block of 2
        const P t12 = x6_22 + x30_46;
        const P t13 = x6_22 - x30_46;
        const P x18_34 = io.in(18, 34);
        const P x42_10 = io.in(42, 10);
        // real block of 2
        const P t14 = x18_34 + x42_10;
        const P t15 = x18_34 - x42_10;
        // real block of 2
        const P t16 = t12 + t14;
        const P t17 = t12 - t14;
        const P x9_25 = io.in(9, 25);
        const P x33_1 = io.in(33, 1);
        // real block of 2
        const P t18 = x9_25 + x33_1;
        const P t19 = x9_25 - x33_1;
        const P x21_37 = io.in(21, 37);
        const P x45_13 = io.in(45, 13);
        // real block of 2
        const P t20 = x21_37 + x45_13;
        const P t21 = x21_37 - x45_13;
        // real block of 2
        const P t22 = t18 + t20;
        const P t23 = t18 - t20;
        // real block of 2
        const P t24 = t4 + t16;
        const P t25 = t4 - t16;
        // real block of 2
        const P t26 = t10 + t22;
        const P t27 = t10 - t22;
        // real block of 2
        const P t28 = t24 + t26;
        const P t29 = t24 - t26;
        // real block of 16, multiplier 3
        const P t30 = c[2] * t7;
        const P t31 = c[3] * t9;
        const P t32 = t30 + t31;
        const P t33 = c[2] * t9;
        const P t34 = c[3] * t7;
        const P t35 = t33 - t34;
        const P t36 = t13 + t15;
        const P t37 = t15 - t13;
        const P t38 = c[3] * t19;
        const P t39 = c[2] * t21;
        const P t40 = t38 + t39;
        const P t41 = c[2] * t19;
        const P t42 = c[3] * t21;
        const P t43 = t41 - t42;
        const P t44 = c[4] * t37;
        // complex block of 2
        const P t45 = t1 + t44;
        // real block of 16, multiplier 3
        const P t46 = c[4] * t36;
        // complex block of 2
        const P t47 = t3 - t46;
        const P t48 = t1 - t44;
        const P t49 = t3 + t46;
        // complex block of 2
        const P t50 = t32 - t40;
        const P t51 = t35 + t43;
        const P t52 = t32 + t40;
        const P t53 = t35 - t43;
        // complex block of 2
        const P t54 = t45 + t50;
        const P t55 = t47 + t51;
        const P t56 = t45 - t50;
        const P t57 = t47 - t51;
        // complex block of 2
        const P t58 = t48 - t53;
        const P t59 = t49 + t52;
        const P t60 = t48 + t53;
        const P t61 = t49 - t52;
        // skew block of 4, multiplier 3
        const P t62 = t11 - t23;
        const P t63 = t11 + t23;
        const P t64 = c[4] * t63;
        const P t65 = t17 - t64;
        const P t66 = c[4] * t62;
        const P t67 = t5 + t66;
        const P t68 = t17 + t64;
        const P t69 = t5 - t66;
        const P x32_35 = io.in(32, 35);
        const P x8_11 = io.in(8, 11);
        // real block of 2
        const P t70 = x32_35 + x8_11;
        const P t71 = x32_35 - x8_11;
        const P x44_47 = io.in(44, 47);
        const P x20_23 = io.in(20, 23);
        // real block of 2
        const P t72 = x44_47 + x20_23;
        const P t73 = x44_47 - x20_23;
        // real block of 2
        const P t74 = t70 + t72;
        const P t75 = t70 - t72;
        const P x38_41 = io.in(38, 41);
        const P x14_17 = io.in(14, 17);
        // real block of 2
        const P t76 = x38_41 + x14_17;
        const P t77 = x38_41 - x14_17;
        const P x2_5 = io.in(2, 5);
        const P x26_29 = io.in(26, 29);
        // real block of 2
        const P t78 = x2_5 + x26_29;
        const P t79 = x2_5 - x26_29;
        // real block of 2
        const P t80 = t76 + t78;
        const P t81 = t76 - t78;
        // real block of 2
        const P t82 = t74 + t80;
        const P t83 = t74 - t80;
        const V t84 = part<0>(t82);
        const V t85 = part<1>(t82);
        // real block of 2
        const V t86 = t84 + t85;
        const V t87 = t84 - t85;
        const P t88 = shuffled<1, 3>(t71, t73);
        // real block of 16, multiplier 3
        const P t89 = c[2] * t88;
        const P t90 = shuffled<1, 0>(t88);
        const P t91 = P(c[3], -c[3]) * t90;
        const P t92 = t89 + t91;
        const P t93 = shuffled<0, 2>(t77, t79);
        const P t94 = shuffled<1, 0>(t93);
        const P t95 = flipped<0, 1>(t94);
        const P t96 = t93 + t95;
        const P t97 = shuffled<1, 3>(t79, t77);
        const P t98 = c[2] * t97;
        const P t99 = shuffled<1, 0>(t97);
        const P t100 = P(c[3], -c[3]) * t99;
        const P t101 = t98 + t100;
        const P t102 = shuffled<0, 2>(t71, t73);
        const P t103 = P(-c[4], c[4]) * t96;
        const P t104 = shuffled<1, 0>(t103);
        // complex block of 2
        const P t105 = t102 + t104;
        const P t106 = t102 - t104;
        const P t107 = flipped<1, 0>(t101);
        // complex block of 2
        const P t108 = t92 + t107;
        const P t109 = t92 - t107;
        // complex block of 2
        const P t110 = t105 + t108;
        const P t111 = t105 - t108;
        const P t112 = shuffled<1, 0>(t109);
        const P t113 = flipped<1, 0>(t112);
        // complex block of 2
        const P t114 = t106 + t113;
        const P t115 = t106 - t113;
        const V t116 = part<1>(t75);
        const V t117 = part<1>(t81);
        // skew block of 4, multiplier 3
        const V t118 = t116 - t117;
        const V t119 = t116 + t117;
        const V t120 = part<0>(t81);
        const V t121 = c[4] * t119;
        const V t122 = t120 - t121;
        const V t123 = part<0>(t75);
        const V t124 = c[4] * t118;
        const V t125 = t123 + t124;
        const V t126 = t120 + t121;
        const V t127 = t123 - t124;
        const P t128 = shuffled<1, 3>(t54, t55);
        // complex block of 3
        const P t129 = t128 + t110;
        const P t130 = t128 - t110;
        const P t131 = shuffled<0, 2>(t54, t55);
        const P t132 = t129 + t131;
        io.pair(3, t132);
        const P t133 = c[0] * t129;
        const P t134 = t131 - t133;
        const P t135 = P(-c[1], c[1]) * t130;
        const P t136 = shuffled<1, 0>(t135);
        const P t137 = t134 + t136;
        io.pair(19, t137);
        const P t138 = t134 - t136;
        io.pair(13, negated<0, 1>(t138));
        const P t139 = shuffled<1, 3>(t69, t65);
        const P t140 = joined(t127, t122);
        // complex block of 3
        const P t141 = t139 + t140;
        const P t142 = t139 - t140;
        const P t143 = shuffled<0, 2>(t69, t65);
        const P t144 = t141 + t143;
        io.pair(6, t144);
        const P t145 = c[0] * t141;
        const P t146 = t143 - t145;
        const P t147 = P(-c[1], c[1]) * t142;
        const P t148 = shuffled<1, 0>(t147);
        const P t149 = t146 + t148;
        io.pair(22, t149);
        const P t150 = t146 - t148;
        io.pair(10, negated<0, 1>(t150));
        const P t151 = shuffled<1, 3>(t60, t61);
        // complex block of 3
        const P t152 = t151 + t115;
        const P t153 = shuffled<0, 3>(t151, t115);
        const P t154 = shuffled<0, 3>(t115, t151);
        const P t155 = t153 - t154;
        const P t156 = shuffled<0, 2>(t60, t61);
        const P t157 = t152 + t156;
        io.pair(9, negated<0, 1>(t157));
        const P t158 = P(-c[0], c[0]) * t152;
        const P t159 = flipped<0, 1>(t156);
        const P t160 = t158 + t159;
        const P t161 = P(-c[1], c[1]) * t155;
        const P t162 = shuffled<1, 0>(t161);
        const P t163 = t160 + t162;
        io.pair(23, negated<0, 1>(t163));
        const P t164 = t160 - t162;
        io.pair(7, negated<0, 1>(t164));
        const P t165 = shuffled<1, 3>(t25, t27);
        // complex block of 3
        const P t166 = t165 + t83;
        const P t167 = t165 - t83;
        const P t168 = shuffled<0, 2>(t25, t27);
        const P t169 = t166 + t168;
        io.pair(12, t169);
        const P t170 = c[0] * t166;
        const P t171 = t168 - t170;
        const P t172 = P(-c[1], c[1]) * t167;
        const P t173 = shuffled<1, 0>(t172);
        const P t174 = t171 + t173;
        io.pair(20, negated<0, 1>(t174));
        const P t175 = t171 - t173;
        io.pair(4, negated<0, 1>(t175));
        const P t176 = shuffled<1, 3>(t58, t59);
        // complex block of 3
        const P t177 = t176 + t114;
        const P t178 = t176 - t114;
        const P t179 = shuffled<0, 2>(t58, t59);
        const P t180 = t177 + t179;
        io.pair(15, t180);
        const P t181 = c[0] * t177;
        const P t182 = t179 - t181;
        const P t183 = P(-c[1], c[1]) * t178;
        const P t184 = shuffled<1, 0>(t183);
        const P t185 = t182 + t184;
        io.pair(17, negated<0, 1>(t185));
        const P t186 = t182 - t184;
        io.pair(1, negated<0, 1>(t186));
        const P t187 = shuffled<1, 3>(t67, t68);
        const P t188 = joined(t125, t126);
        // complex block of 3
        const P t189 = t187 + t188;
        const P t190 = shuffled<0, 3>(t187, t188);
        const P t191 = shuffled<0, 3>(t188, t187);
        const P t192 = t190 - t191;
        const P t193 = shuffled<0, 2>(t67, t68);
        const P t194 = t189 + t193;
        io.pair(18, negated<0, 1>(t194));
        const P t195 = P(-c[0], c[0]) * t189;
        const P t196 = flipped<0, 1>(t193);
        const P t197 = t195 + t196;
        const P t198 = P(-c[1], c[1]) * t192;
        const P t199 = shuffled<1, 0>(t198);
        const P t200 = t197 + t199;
        io.pair(14, negated<0, 1>(t200));
        const P t201 = t197 - t199;
        io.pair(2, t201);
        const P t202 = shuffled<1, 3>(t56, t57);
        // complex block of 3
        const P t203 = t202 + t111;
        const P t204 = shuffled<0, 3>(t202, t111);
        const P t205 = shuffled<0, 3>(t111, t202);
        const P t206 = t204 - t205;
        const P t207 = shuffled<0, 2>(t56, t57);
        const P t208 = t203 + t207;
        io.pair(21, negated<0, 1>(t208));
        const P t209 = P(-c[0], c[0]) * t203;
        const P t210 = flipped<0, 1>(t207);
        const P t211 = t209 + t210;
        const P t212 = P(-c[1], c[1]) * t206;
        const P t213 = shuffled<1, 0>(t212);
        const P t214 = t211 + t213;
        io.pair(11, negated<0, 1>(t214));
        const P t215 = t211 - t213;
        io.pair(5, t215);
        const P t216 = shuffled<1, 3>(t28, t29);
        const P t217 = joined(t86, t87);
        // real block of 3
        const P t218 = t216 + t217;
        const P t219 = t216 - t217;
        const P t220 = shuffled<0, 2>(t28, t29);
        const P t221 = t218 + t220;
        const V t222 = part<0>(t221);
        io.re(0, t222);
        const V t223 = part<1>(t221);
        io.re(24, t223);
        const P t224 = c[0] * t218;
        const P t225 = t220 - t224;
        const P t226 = c[1] * t219;
        const P t227 = shuffled<1, 3>(t225, t226);
        io.pair(8, t227);
        const P t228 = shuffled<0, 2>(t225, t226);
        io.pair(16, negated<0, 1>(t228));
    }
};

}  // namespace zulg
