// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 40.
// Hartley transform of 40 points, form I; two lanes to a register.
// 76 sums, 58 differences, 38 products of registers, which do the 372 steps of the graph, those with
// `scale` included; 53 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<40> {
    static constexpr int steps = 372;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x39_38 = io.in(39, 38);
        // input stage
        const P t0 = x1_2 + x39_38;
        const P t1 = x1_2 - x39_38;
        const P x3_4 = io.in(3, 4);
        const P x37_36 = io.in(37, 36);
        const P t2 = x3_4 + x37_36;
        const P t3 = x3_4 - x37_36;
        const P x5_6 = io.in(5, 6);
        const P x35_34 = io.in(35, 34);
        const P t4 = x5_6 + x35_34;
        const P t5 = x5_6 - x35_34;
        const P x7_8 = io.in(7, 8);
        const P x33_32 = io.in(33, 32);
        const P t6 = x7_8 + x33_32;
        const P t7 = x7_8 - x33_32;
        const P x9_10 = io.in(9, 10);
        const P x31_30 = io.in(31, 30);
        const P t8 = x9_10 + x31_30;
        const P t9 = x9_10 - x31_30;
        const P x11_12 = io.in(11, 12);
        const P x29_28 = io.in(29, 28);
        const P t10 = x11_12 + x29_28;
        const P t11 = x11_12 - x29_28;
        const P x13_14 = io.in(13, 14);
        const P x27_26 = io.in(27, 26);
        const P t12 = x13_14 + x27_26;
        const P t13 = x13_14 - x27_26;
        const P x15_16 = io.in(15, 16);
        const P x25_24 = io.in(25, 24);
        const P t14 = x15_16 + x25_24;
        const P t15 = x15_16 - x25_24;
        const P x17_18 = io.in(17, 18);
        const P x23_22 = io.in(23, 22);
        const P t16 = x17_18 + x23_22;
        const P t17 = x17_18 - x23_22;
        const V x19 = io.in(19);
        const V x21 = io.in(21);
        const V t18 = x19 + x21;
        const V t19 = x19 - x21;
        const P t20 = shuffled<0, 2>(t12, t13);
        const P t21 = shuffled<0, 2>(t2, t3);
        const P t22 = flipped<0, 1>(t21);
        // complex block of 5, multiplier 3
        const P t23 = t20 + t22;
        const P t24 = t20 - t22;
        const P t25 = shuffled<0, 2>(t10, t11);
        const P t26 = joined(t18, t19);
        const P t27 = t25 + t26;
        const P t28 = shuffled<0, 3>(t25, t26);
        const P t29 = shuffled<0, 3>(t26, t25);
        const P t30 = t28 - t29;
        const P t31 = flipped<0, 1>(t27);
        const P t32 = t23 + t31;
        const P t33 = shuffled<0, 2>(t4, t5);
        const P t34 = t32 + t33;
        const P t35 = c[0] * t23;
        const P t36 = P(-c[1], c[1]) * t27;
        const P t37 = t35 + t36;
        const P t38 = t37 + t33;
        const P t39 = c[2] * t24;
        const P t40 = c[3] * t30;
        const P t41 = t39 - t40;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = flipped<1, 0>(t42);
        const P t44 = t38 + t43;
        const P t45 = t38 - t43;
        const P t46 = c[1] * t23;
        const P t47 = t33 - t46;
        const P t48 = P(c[0], -c[0]) * t27;
        const P t49 = t47 + t48;
        const P t50 = c[3] * t24;
        const P t51 = c[2] * t30;
        const P t52 = t50 + t51;
        const P t53 = shuffled<1, 0>(t52);
        const P t54 = flipped<1, 0>(t53);
        const P t55 = t49 + t54;
        const P t56 = t49 - t54;
        const P t57 = shuffled<1, 3>(t16, t17);
        const P t58 = shuffled<1, 3>(t0, t1);
        // complex block of 5, multiplier 3
        const P t59 = t57 + t58;
        const P t60 = t57 - t58;
        const P t61 = shuffled<1, 3>(t4, t5);
        const P t62 = shuffled<1, 3>(t12, t13);
        const P t63 = t61 + t62;
        const P t64 = shuffled<0, 3>(t61, t62);
        const P t65 = shuffled<0, 3>(t62, t61);
        const P t66 = t64 - t65;
        const P t67 = flipped<0, 1>(t63);
        const P t68 = t59 + t67;
        const P t69 = shuffled<1, 3>(t8, t9);
        const P t70 = t68 + t69;
        const P t71 = c[0] * t59;
        const P t72 = P(-c[1], c[1]) * t63;
        const P t73 = t71 + t72;
        const P t74 = t73 + t69;
        const P t75 = c[2] * t60;
        const P t76 = c[3] * t66;
        const P t77 = t75 - t76;
        const P t78 = shuffled<1, 0>(t77);
        const P t79 = flipped<1, 0>(t78);
        const P t80 = t74 + t79;
        const P t81 = t74 - t79;
        const P t82 = c[1] * t59;
        const P t83 = t69 - t82;
        const P t84 = P(c[0], -c[0]) * t63;
        const P t85 = t83 + t84;
        const P t86 = c[3] * t60;
        const P t87 = c[2] * t66;
        const P t88 = t86 + t87;
        const P t89 = shuffled<1, 0>(t88);
        const P t90 = flipped<1, 0>(t89);
        const P t91 = t85 + t90;
        const P t92 = t85 - t90;
        const P t93 = shuffled<0, 2>(t16, t7);
        const P t94 = shuffled<0, 2>(t6, t17);
        const P t95 = flipped<0, 1>(t94);
        // complex block of 5, multiplier 3
        const P t96 = t93 + t95;
        const P t97 = t93 - t95;
        const P t98 = shuffled<0, 2>(t0, t1);
        const P t99 = shuffled<0, 2>(t8, t9);
        const P t100 = t98 + t99;
        const P t101 = shuffled<0, 3>(t98, t99);
        const P t102 = shuffled<0, 3>(t99, t98);
        const P t103 = t101 - t102;
        const P t104 = flipped<0, 1>(t100);
        const P t105 = t96 + t104;
        const P t106 = shuffled<0, 2>(t14, t15);
        const P t107 = t105 + t106;
        const P t108 = c[0] * t96;
        const P t109 = P(-c[1], c[1]) * t100;
        const P t110 = t108 + t109;
        const P t111 = t110 + t106;
        const P t112 = c[2] * t97;
        const P t113 = P(-c[3], c[3]) * t103;
        const P t114 = t112 + t113;
        const P t115 = shuffled<1, 0>(t114);
        const P t116 = t111 + t115;
        const P t117 = t111 - t115;
        const P t118 = c[1] * t96;
        const P t119 = t106 - t118;
        const P t120 = P(c[0], -c[0]) * t100;
        const P t121 = t119 + t120;
        const P t122 = c[2] * t103;
        const P t123 = P(c[3], -c[3]) * t97;
        const P t124 = t122 + t123;
        const P t125 = shuffled<1, 0>(t124);
        const P t126 = flipped<1, 0>(t125);
        const P t127 = t121 + t126;
        const P t128 = t121 - t126;
        const P t129 = shuffled<1, 3>(t6, t10);
        const P t130 = shuffled<1, 3>(t14, t2);
        // spectrum block of 5, multiplier 3
        const P t131 = t129 + t130;
        const P x0_20 = io.in(0, 20);
        const P t132 = t131 + x0_20;
        const P t133 = c[0] * t129;
        const P t134 = c[1] * t130;
        const P t135 = t133 - t134;
        const P t136 = t135 + x0_20;
        const P t137 = shuffled<1, 3>(t7, t11);
        const P t138 = c[2] * t137;
        const P t139 = shuffled<1, 3>(t15, t3);
        const P t140 = c[3] * t139;
        const P t141 = t138 + t140;
        const P t142 = flipped<1, 0>(t141);
        const P t143 = t136 + t142;
        const P t144 = t136 - t142;
        const P t145 = c[1] * t129;
        const P t146 = x0_20 - t145;
        const P t147 = c[0] * t130;
        const P t148 = t146 + t147;
        const P t149 = P(-c[2], c[2]) * t139;
        const P t150 = P(c[3], -c[3]) * t137;
        const P t151 = t149 + t150;
        const P t152 = t148 - t151;
        const P t153 = t148 + t151;
        const P t154 = shuffled<0, 2>(t132, t153);
        const P t155 = shuffled<1, 3>(t132, t153);
        // spectrum block of 2
        const P t156 = t154 + t155;
        const P t157 = t154 - t155;
        const P t158 = shuffled<0, 2>(t70, t92);
        // spectrum block of 2
        const P t159 = t156 + t158;
        const P t160 = t156 - t158;
        const P t161 = shuffled<1, 3>(t70, t92);
        // spectrum block of 2
        const P t162 = t157 - t161;
        const P t163 = t157 + t161;
        const P t164 = shuffled<0, 2>(t107, t128);
        const P t165 = shuffled<0, 2>(t34, t56);
        // mirrored skew block of 4, multiplier 5
        const P t166 = t164 - t165;
        const P t167 = shuffled<1, 3>(t107, t128);
        const P t168 = shuffled<1, 3>(t34, t56);
        const P t169 = t167 + t168;
        const P t170 = t164 + t165;
        const P t171 = c[4] * t166;
        const P t172 = c[4] * t169;
        const P t173 = t171 + t172;
        const P t174 = t168 - t167;
        const P t175 = t171 - t172;
        // spectrum block of 2
        const P t176 = t159 + t170;
        io.out(0, 32, t176);
        const P t177 = t159 - t170;
        io.out(20, 12, t177);
        // spectrum block of 2
        const P t178 = t162 + t173;
        io.out(35, 27, t178);
        const P t179 = t162 - t173;
        io.out(15, 7, t179);
        // spectrum block of 2
        const P t180 = t160 - t174;
        io.out(30, 22, t180);
        const P t181 = t160 + t174;
        io.out(10, 2, t181);
        // spectrum block of 2
        const P t182 = t163 - t175;
        io.out(25, 17, t182);
        const P t183 = t163 + t175;
        io.out(5, 37, t183);
        const P t184 = shuffled<0, 2>(t143, t144);
        const P t185 = shuffled<1, 3>(t143, t144);
        // spectrum block of 2
        const P t186 = t184 + t185;
        const P t187 = t184 - t185;
        const P t188 = shuffled<0, 2>(t80, t81);
        // spectrum block of 2
        const P t189 = t186 + t188;
        const P t190 = t186 - t188;
        const P t191 = shuffled<1, 3>(t80, t81);
        // spectrum block of 2
        const P t192 = t187 - t191;
        const P t193 = t187 + t191;
        const P t194 = shuffled<0, 2>(t116, t117);
        const P t195 = shuffled<0, 2>(t44, t45);
        // mirrored skew block of 4, multiplier 5
        const P t196 = t194 - t195;
        const P t197 = shuffled<1, 3>(t116, t117);
        const P t198 = shuffled<1, 3>(t44, t45);
        const P t199 = t197 + t198;
        const P t200 = t194 + t195;
        const P t201 = c[4] * t196;
        const P t202 = c[4] * t199;
        const P t203 = t201 + t202;
        const P t204 = t198 - t197;
        const P t205 = t201 - t202;
        // spectrum block of 2
        const P t206 = t189 + t200;
        io.out(24, 16, t206);
        const P t207 = t189 - t200;
        io.out(4, 36, t207);
        // spectrum block of 2
        const P t208 = t192 + t203;
        io.out(19, 11, t208);
        const P t209 = t192 - t203;
        io.out(39, 31, t209);
        // spectrum block of 2
        const P t210 = t190 - t204;
        io.out(14, 6, t210);
        const P t211 = t190 + t204;
        io.out(34, 26, t211);
        // spectrum block of 2
        const P t212 = t193 - t205;
        io.out(9, 1, t212);
        const P t213 = t193 + t205;
        io.out(29, 21, t213);
        const V t214 = part<0>(t152);
        const V t215 = part<1>(t152);
        // spectrum block of 2
        const V t216 = t214 + t215;
        const V t217 = t214 - t215;
        const P t218 = joined(t216, t217);
        const P t219 = flipped<0, 1>(t91);
        // spectrum block of 2
        const P t220 = t218 + t219;
        const P t221 = t218 - t219;
        const V t222 = part<0>(t127);
        const V t223 = part<0>(t55);
        // mirrored skew block of 4, multiplier 5
        const V t224 = t222 - t223;
        const V t225 = part<1>(t127);
        const V t226 = part<1>(t55);
        const V t227 = t225 + t226;
        const V t228 = t222 + t223;
        const V t229 = c[4] * t224;
        const V t230 = c[4] * t227;
        const V t231 = t229 + t230;
        const V t232 = t226 - t225;
        const V t233 = t229 - t230;
        const P t234 = joined(t228, t231);
        // spectrum block of 2
        const P t235 = t220 + t234;
        io.out(8, 3, t235);
        const P t236 = t220 - t234;
        io.out(28, 23, t236);
        const P t237 = joined(t232, t233);
        // spectrum block of 2
        const P t238 = t221 - t237;
        io.out(38, 33, t238);
        const P t239 = t221 + t237;
        io.out(18, 13, t239);
    }
};

}  // namespace zulg
