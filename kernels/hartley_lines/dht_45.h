// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 45.
// Hartley transform of 45 points, form I; up to four lanes to a register.
// 60 sums, 45 differences, 51 products of registers, which do the 551 steps of the graph, those with
// `scale` included; 64 shuffles, 15 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyLines<45> {
    static constexpr int steps = 551;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.30901699437494745,  // c[2]: cos 2 pi 1/5
        0.8090169943749475,  // c[3]: -cos 2 pi 2/5
        0.9510565162951535,  // c[4]: sin 2 pi 1/5
        0.5877852522924731,  // c[5]: sin 2 pi 2/5
        0.3420201433256687,  // c[6]: sin 2 pi 4/9
        0.9396926207859084,  // c[7]: -cos 2 pi 4/9
        0.8137976813493737,  // c[8]: sin 2 pi 1/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[9]: sin 2 pi 1/3 times sin 2 pi 4/9
        0.766044443118978,  // c[10]: cos 2 pi 8/9
        0.6427876096865394,  // c[11]: -sin 2 pi 8/9
        0.6634139481689384,  // c[12]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[13]: sin 2 pi 1/3 times -sin 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, HartleyLines> c{};
        const Q x1_2_3_4 = io.in(1, 2, 3, 4);
        const Q x44_43_42_41 = io.in(44, 43, 42, 41);
        // input stage
        const Q t0 = x1_2_3_4 + x44_43_42_41;
        const Q t1 = x1_2_3_4 - x44_43_42_41;
        const Q x5_6_7_8 = io.in(5, 6, 7, 8);
        const Q x40_39_38_37 = io.in(40, 39, 38, 37);
        const Q t2 = x5_6_7_8 + x40_39_38_37;
        const Q t3 = x5_6_7_8 - x40_39_38_37;
        const Q x9_10_11_12 = io.in(9, 10, 11, 12);
        const Q x36_35_34_33 = io.in(36, 35, 34, 33);
        const Q t4 = x9_10_11_12 + x36_35_34_33;
        const Q t5 = x9_10_11_12 - x36_35_34_33;
        const Q x13_14_15_16 = io.in(13, 14, 15, 16);
        const Q x32_31_30_29 = io.in(32, 31, 30, 29);
        const Q t6 = x13_14_15_16 + x32_31_30_29;
        const Q t7 = x13_14_15_16 - x32_31_30_29;
        const Q x17_18_19_20 = io.in(17, 18, 19, 20);
        const Q x28_27_26_25 = io.in(28, 27, 26, 25);
        const Q t8 = x17_18_19_20 + x28_27_26_25;
        const Q t9 = x17_18_19_20 - x28_27_26_25;
        const P x21_22 = io.in(21, 22);
        const P x24_23 = io.in(24, 23);
        const P t10 = x21_22 + x24_23;
        const P t11 = x21_22 - x24_23;
        const Q t12 = shuffled<1, 5, 3, 7>(t6, t7);
        const Q t13 = shuffled<0, 4, 2, 6>(t8, t9);
        const Q t14 = shuffled<0, 1, 6, 7>(t12, t13);
        const Q t15 = shuffled<1, 5, 3, 7>(t0, t1);
        const Q t16 = shuffled<0, 4, 2, 6>(t0, t1);
        const Q t17 = shuffled<2, 3, 4, 5>(t15, t16);
        const Q t18 = flipped<0, 1, 0, 0>(t17);
        // complex block of 5, multiplier 4
        const Q t19 = t14 + t18;
        const Q t20 = t14 - t18;
        const Q t21 = shuffled<0, 4, 2, 6>(t6, t7);
        const Q t22 = shuffled<1, 5, 3, 7>(t2, t3);
        const Q t23 = shuffled<0, 1, 6, 7>(t21, t22);
        const P t24 = shuffled<1, 3>(t10, t11);
        const P t25 = part<0>(t13);
        const Q t26 = joined(t24, t25);
        const Q t27 = t23 + t26;
        const Q t28 = shuffled<0, 5, 2, 7>(t23, t26);
        const Q t29 = shuffled<0, 5, 2, 7>(t26, t23);
        const Q t30 = t28 - t29;
        const Q t31 = shuffled<0, 4, 2, 6>(t4, t5);
        const Q t32 = shuffled<0, 1, 6, 7>(t22, t31);
        const P t33 = shuffled<0, 2>(t10, t11);
        const P t34 = flipped<0, 1>(t33);
        const P t35 = part<1>(t12);
        const P t36 = flipped<0, 1>(t35);
        const Q t37 = joined(t34, t36);
        // complex block of 5, multiplier 4
        const Q t38 = t32 + t37;
        const Q t39 = flipped<0, 1, 0, 1>(t37);
        const Q t40 = flipped<1, 0, 1, 0>(t32);
        const Q t41 = t39 + t40;
        const Q t42 = shuffled<2, 3, 4, 5>(t16, t15);
        const Q t43 = shuffled<1, 5, 3, 7>(t4, t5);
        const Q t44 = shuffled<0, 4, 2, 6>(t2, t3);
        const Q t45 = shuffled<2, 3, 6, 7>(t43, t44);
        const Q t46 = flipped<0, 0, 0, 1>(t45);
        const Q t47 = t42 + t46;
        const Q t48 = flipped<0, 1, 0, 0>(t42);
        const Q t49 = flipped<1, 0, 1, 1>(t46);
        const Q t50 = t48 + t49;
        const P t51 = part<0>(t31);
        const V t52 = part<0>(t51);
        const P t53 = part<0>(t8);
        const V t54 = part<1>(t53);
        // spectrum block of 5, multiplier 4
        const V t55 = t52 + t54;
        const V x0 = io.in(0);
        const V t56 = t55 + x0;
        const V t57 = c[2] * t52;
        const V t58 = c[3] * t54;
        const V t59 = t57 - t58;
        const V t60 = t59 + x0;
        const V t61 = part<1>(t51);
        const V t62 = c[4] * t61;
        const P t63 = part<0>(t9);
        const V t64 = part<1>(t63);
        const V t65 = c[5] * t64;
        const V t66 = t62 + t65;
        const V t67 = t60 - t66;
        const V t68 = c[3] * t52;
        const V t69 = x0 - t68;
        const V t70 = c[2] * t54;
        const V t71 = t69 + t70;
        const V t72 = c[5] * t61;
        const V t73 = c[4] * t64;
        const V t74 = t72 - t73;
        const Q t75 = flipped<0, 1, 0, 1>(t27);
        // complex block of 5, multiplier 4
        const Q t76 = t19 + t75;
        const Q t77 = shuffled<0, 1, 4, 5>(t44, t43);
        const Q t78 = t76 + t77;
        const Q t79 = c[2] * t19;
        const Q t80 = Q(-c[3], c[3], -c[3], c[3]) * t27;
        const Q t81 = t79 + t80;
        const Q t82 = t81 + t77;
        const Q t83 = c[4] * t20;
        const Q t84 = c[5] * t30;
        const Q t85 = t83 - t84;
        const Q t86 = c[3] * t19;
        const Q t87 = t77 - t86;
        const Q t88 = Q(c[2], -c[2], c[2], -c[2]) * t27;
        const Q t89 = t87 + t88;
        const Q t90 = c[5] * t20;
        const Q t91 = c[4] * t30;
        const Q t92 = t90 + t91;
        const Q t93 = flipped<0, 1, 0, 0>(t47);
        // complex block of 5, multiplier 4
        const Q t94 = t38 + t93;
        const Q t95 = shuffled<1, 5, 3, 7>(t8, t9);
        const Q t96 = shuffled<2, 3, 6, 7>(t21, t95);
        const Q t97 = t94 + t96;
        const Q t98 = c[2] * t38;
        const Q t99 = Q(c[3], -c[3], c[3], c[3]) * t47;
        const Q t100 = t98 - t99;
        const Q t101 = t100 + t96;
        const Q t102 = c[4] * t41;
        const Q t103 = Q(-c[5], c[5], -c[5], c[5]) * t50;
        const Q t104 = t102 + t103;
        const Q t105 = c[3] * t38;
        const Q t106 = t96 - t105;
        const Q t107 = Q(c[2], -c[2], c[2], c[2]) * t47;
        const Q t108 = t106 + t107;
        const Q t109 = c[4] * t50;
        const Q t110 = Q(c[5], -c[5], c[5], -c[5]) * t41;
        const Q t111 = t109 + t110;
        const Q t112 = shuffled<1, 0, 3, 2>(t85);
        const Q t113 = flipped<1, 0, 1, 0>(t112);
        // complex block of 5, multiplier 4
        const Q t114 = t82 + t113;
        const Q t115 = shuffled<1, 0, 3, 2>(t104);
        // complex block of 5, multiplier 4
        const Q t116 = t101 + t115;
        const P t117 = part<1>(t116);
        const P t118 = part<1>(t114);
        const P t119 = flipped<0, 1>(t118);
        // complex block of 3, multiplier 2
        const P t120 = t117 + t119;
        const P t121 = t117 - t119;
        // complex block of 5, multiplier 4
        const Q t122 = t82 - t113;
        const Q t123 = shuffled<1, 0, 3, 2>(t92);
        const Q t124 = flipped<1, 0, 1, 0>(t123);
        const Q t125 = t89 + t124;
        const Q t126 = t89 - t124;
        // complex block of 5, multiplier 4
        const Q t127 = t101 - t115;
        const Q t128 = shuffled<1, 0, 3, 2>(t111);
        const Q t129 = flipped<1, 0, 1, 0>(t128);
        const Q t130 = t108 + t129;
        const Q t131 = t108 - t129;
        const Q t132 = shuffled<1, 5, 3, 7>(t97, t127);
        const Q t133 = shuffled<1, 5, 3, 7>(t131, t130);
        const Q t134 = shuffled<2, 3, 6, 7>(t132, t133);
        const Q t135 = shuffled<1, 5, 3, 7>(t78, t122);
        const Q t136 = shuffled<1, 5, 3, 7>(t126, t125);
        const Q t137 = shuffled<2, 3, 6, 7>(t135, t136);
        // complex block of 3, multiplier 2
        const Q t138 = t134 - t137;
        const Q t139 = shuffled<0, 4, 2, 6>(t97, t127);
        const Q t140 = shuffled<0, 4, 2, 6>(t131, t130);
        const Q t141 = shuffled<2, 3, 6, 7>(t139, t140);
        const Q t142 = shuffled<0, 4, 2, 6>(t78, t122);
        const Q t143 = shuffled<0, 4, 2, 6>(t126, t125);
        const Q t144 = shuffled<2, 3, 6, 7>(t142, t143);
        const Q t145 = t141 + t144;
        const Q t146 = t134 + t137;
        const Q t147 = t141 - t144;
        // spectrum block of 5, multiplier 4
        const V t148 = t60 + t66;
        const V t149 = t71 - t74;
        const V t150 = t71 + t74;
        const P t151 = joined(t56, t148);
        const P t152 = joined(t150, t149);
        const Q t153 = joined(t151, t152);
        const Q t154 = shuffled<0, 1, 4, 5>(t139, t140);
        // spectrum block of 3, multiplier 2
        const Q t155 = c[0] * t154;
        const Q t156 = t153 - t155;
        const Q t157 = t154 + t153;
        const Q t158 = shuffled<0, 1, 4, 5>(t132, t133);
        const Q t159 = c[1] * t158;
        const Q t160 = t156 - t159;
        const Q t161 = t156 + t159;
        const Q t162 = shuffled<0, 1, 4, 5>(t135, t136);
        // complex block of 3, multiplier 2
        const Q t163 = t138 + t162;
        const Q t164 = shuffled<0, 1, 4, 5>(t142, t143);
        const Q t165 = t145 + t164;
        const Q t166 = c[0] * t138;
        const Q t167 = t162 - t166;
        const Q t168 = c[1] * t147;
        const Q t169 = t167 + t168;
        const Q t170 = t167 - t168;
        const Q t171 = c[0] * t145;
        const Q t172 = t164 - t171;
        const Q t173 = c[1] * t146;
        const Q t174 = t172 - t173;
        const Q t175 = t172 + t173;
        // spectrum block of 9, multiplier 5
        const Q t176 = c[6] * t170;
        const Q t177 = c[7] * t175;
        const Q t178 = t176 - t177;
        // spectrum block of 3, multiplier 2
        const Q t179 = c[8] * t170;
        const Q t180 = c[9] * t175;
        const Q t181 = t179 + t180;
        const Q t182 = t178 + t161;
        io.out(40, 31, 22, 13, t182);
        const Q t183 = c[0] * t178;
        const Q t184 = t161 - t183;
        const Q t185 = t184 + t181;
        io.out(10, 1, 37, 28, t185);
        const Q t186 = t184 - t181;
        io.out(25, 16, 7, 43, t186);
        // spectrum block of 9, multiplier 5
        const Q t187 = c[10] * t174;
        const Q t188 = c[11] * t169;
        const Q t189 = t187 - t188;
        // spectrum block of 3, multiplier 2
        const Q t190 = c[12] * t169;
        const Q t191 = c[13] * t174;
        const Q t192 = t190 + t191;
        const Q t193 = t189 + t160;
        io.out(35, 26, 17, 8, t193);
        const Q t194 = c[0] * t189;
        const Q t195 = t160 - t194;
        const Q t196 = t195 - t192;
        io.out(5, 41, 32, 23, t196);
        const Q t197 = t195 + t192;
        io.out(20, 11, 2, 38, t197);
        // spectrum block of 3, multiplier 2
        const Q t198 = t165 + t157;
        io.out(0, 36, 27, 18, t198);
        const Q t199 = c[0] * t165;
        const Q t200 = t157 - t199;
        const Q t201 = c[1] * t163;
        const Q t202 = t200 - t201;
        io.out(15, 6, 42, 33, t202);
        const Q t203 = t200 + t201;
        io.out(30, 21, 12, 3, t203);
        const P t204 = part<0>(t116);
        const V t205 = part<0>(t204);
        // spectrum block of 3, multiplier 2
        const V t206 = t205 + t67;
        const P t207 = part<0>(t114);
        // complex block of 3, multiplier 2
        const P t208 = t120 + t207;
        const P t209 = joined(t67, t206);
        const P t210 = shuffled<0, 2>(t204, t208);
        // spectrum block of 3, multiplier 2
        const P t211 = c[0] * t210;
        const P t212 = t209 - t211;
        // complex block of 3, multiplier 2
        const P t213 = c[0] * t120;
        const P t214 = t207 - t213;
        const P t215 = P(c[1], -c[1]) * t121;
        const P t216 = shuffled<1, 0>(t215);
        const P t217 = t214 + t216;
        const P t218 = t214 - t216;
        const P t219 = shuffled<1, 2>(t218, t217);
        // spectrum block of 9, multiplier 5
        const P t220 = P(c[6], c[10]) * t219;
        const P t221 = shuffled<0, 3>(t218, t217);
        const P t222 = P(c[7], c[11]) * t221;
        const P t223 = t220 - t222;
        const P t224 = shuffled<1, 3>(t204, t208);
        // spectrum block of 3, multiplier 2
        const P t225 = c[1] * t224;
        const P t226 = t212 - t225;
        const V t227 = part<1>(t226);
        io.out(24, t227);
        const P t228 = t212 + t225;
        const V t229 = part<1>(t228);
        io.out(39, t229);
        const P t230 = shuffled<0, 3>(t219, t221);
        // spectrum block of 3, multiplier 2
        const P t231 = P(c[8], c[12]) * t230;
        const P t232 = shuffled<0, 3>(t221, t219);
        const P t233 = P(c[9], c[13]) * t232;
        const P t234 = t231 + t233;
        const P t235 = shuffled<0, 2>(t228, t226);
        const P t236 = t223 + t235;
        io.out(4, 44, t236);
        const P t237 = c[0] * t223;
        const P t238 = t235 - t237;
        const P t239 = flipped<0, 1>(t234);
        const P t240 = t238 + t239;
        io.out(19, 14, t240);
        const P t241 = t238 - t239;
        io.out(34, 29, t241);
        const V t242 = part<0>(t208);
        // spectrum block of 3, multiplier 2
        const V t243 = t242 + t206;
        io.out(9, t243);
    }
};

}  // namespace zulg
