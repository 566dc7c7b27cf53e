// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 40.
// Inverse DFT to 40 real points, prime-factor 5, 8; two lanes to a register.
// 67 sums, 47 differences, 57 products of registers, which do the 372 steps of the graph, those with
// `scale` included; 39 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<40> {
    static constexpr int steps = 372;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.30901699437494745,  // c[1]: cos 2 pi 1/5
        0.8090169943749475,  // c[2]: -cos 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5877852522924731,  // c[4]: sin 2 pi 2/5
        0.7071067811865476,  // c[5]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const P x13 = io.pair(13);
        // doubled bins
        const P t0 = c[0] * x13;
        const P x3 = io.pair(3);
        const P t1 = P(c[0], -c[0]) * x3;
        // complex block of 5, multiplier 3
        const P t2 = t0 + t1;
        const P t3 = t0 - t1;
        const P x11 = io.pair(11);
        // doubled bins
        const P t4 = c[0] * x11;
        const P x19 = io.pair(19);
        const P t5 = c[0] * x19;
        // complex block of 5, multiplier 3
        const P t6 = t4 + t5;
        const P t7 = shuffled<0, 3>(t4, t5);
        const P t8 = shuffled<0, 3>(t5, t4);
        const P t9 = t7 - t8;
        const P t10 = flipped<0, 1>(t6);
        const P t11 = t2 + t10;
        const P x5 = io.pair(5);
        // doubled bins
        const P t12 = c[0] * x5;
        // complex block of 5, multiplier 3
        const P t13 = t11 + t12;
        const P t14 = c[1] * t2;
        const P t15 = P(-c[2], c[2]) * t6;
        const P t16 = t14 + t15;
        const P t17 = t16 + t12;
        const P t18 = c[3] * t3;
        const P t19 = c[4] * t9;
        const P t20 = t18 - t19;
        const P t21 = shuffled<1, 0>(t20);
        const P t22 = flipped<1, 0>(t21);
        const P t23 = t17 + t22;
        const P t24 = t17 - t22;
        const P t25 = c[2] * t2;
        const P t26 = t12 - t25;
        const P t27 = P(c[1], -c[1]) * t6;
        const P t28 = t26 + t27;
        const P t29 = c[4] * t3;
        const P t30 = c[3] * t9;
        const P t31 = t29 + t30;
        const P t32 = shuffled<1, 0>(t31);
        const P t33 = flipped<1, 0>(t32);
        const P t34 = t28 + t33;
        const P t35 = t28 - t33;
        const P x18 = io.pair(18);
        // doubled bins
        const P t36 = c[0] * x18;
        const P x2 = io.pair(2);
        const P t37 = c[0] * x2;
        // complex block of 5, multiplier 3
        const P t38 = t36 + t37;
        const P t39 = t36 - t37;
        const P x6 = io.pair(6);
        // doubled bins
        const P t40 = c[0] * x6;
        const P x14 = io.pair(14);
        const P t41 = c[0] * x14;
        // complex block of 5, multiplier 3
        const P t42 = t40 + t41;
        const P t43 = shuffled<0, 3>(t40, t41);
        const P t44 = shuffled<0, 3>(t41, t40);
        const P t45 = t43 - t44;
        const P t46 = flipped<0, 1>(t42);
        const P t47 = t38 + t46;
        const P x10 = io.pair(10);
        // doubled bins
        const P t48 = c[0] * x10;
        // complex block of 5, multiplier 3
        const P t49 = t47 + t48;
        const P t50 = c[1] * t38;
        const P t51 = P(-c[2], c[2]) * t42;
        const P t52 = t50 + t51;
        const P t53 = t52 + t48;
        const P t54 = c[3] * t39;
        const P t55 = c[4] * t45;
        const P t56 = t54 - t55;
        const P t57 = shuffled<1, 0>(t56);
        const P t58 = flipped<1, 0>(t57);
        const P t59 = t53 + t58;
        const P t60 = t53 - t58;
        const P t61 = c[2] * t38;
        const P t62 = t48 - t61;
        const P t63 = P(c[1], -c[1]) * t42;
        const P t64 = t62 + t63;
        const P t65 = c[4] * t39;
        const P t66 = c[3] * t45;
        const P t67 = t65 + t66;
        const P t68 = shuffled<1, 0>(t67);
        const P t69 = flipped<1, 0>(t68);
        const P t70 = t64 + t69;
        const P t71 = t64 - t69;
        const P x7 = io.pair(7);
        // doubled bins
        const P t72 = c[0] * x7;
        const P x17 = io.pair(17);
        const P t73 = P(c[0], -c[0]) * x17;
        // complex block of 5, multiplier 3
        const P t74 = t72 + t73;
        const P t75 = flipped<0, 1>(t73);
        const P t76 = flipped<1, 0>(t72);
        const P t77 = t75 + t76;
        const P x1 = io.pair(1);
        // doubled bins
        const P t78 = c[0] * x1;
        const P x9 = io.pair(9);
        const P t79 = c[0] * x9;
        // complex block of 5, multiplier 3
        const P t80 = t78 + t79;
        const P t81 = shuffled<0, 3>(t78, t79);
        const P t82 = shuffled<0, 3>(t79, t78);
        const P t83 = t81 - t82;
        const P t84 = flipped<0, 1>(t80);
        const P t85 = t74 + t84;
        const P x15 = io.pair(15);
        // doubled bins
        const P t86 = c[0] * x15;
        // complex block of 5, multiplier 3
        const P t87 = t85 + t86;
        const P t88 = c[1] * t74;
        const P t89 = P(-c[2], c[2]) * t80;
        const P t90 = t88 + t89;
        const P t91 = t90 + t86;
        const P t92 = c[3] * t77;
        const P t93 = P(-c[4], c[4]) * t83;
        const P t94 = t92 + t93;
        const P t95 = shuffled<1, 0>(t94);
        const P t96 = t91 + t95;
        const P t97 = t91 - t95;
        const P t98 = c[2] * t74;
        const P t99 = t86 - t98;
        const P t100 = P(c[1], -c[1]) * t80;
        const P t101 = t99 + t100;
        const P t102 = c[3] * t83;
        const P t103 = P(c[4], -c[4]) * t77;
        const P t104 = t102 + t103;
        const P t105 = shuffled<1, 0>(t104);
        const P t106 = flipped<1, 0>(t105);
        const P t107 = t101 + t106;
        const P t108 = t101 - t106;
        const P x8 = io.pair(8);
        // doubled bins
        const P t109 = c[0] * x8;
        const P x12 = io.pair(12);
        const P t110 = c[0] * x12;
        const P t111 = shuffled<0, 2>(t109, t110);
        const P x16 = io.pair(16);
        const P t112 = c[0] * x16;
        const P x4 = io.pair(4);
        const P t113 = c[0] * x4;
        const P t114 = shuffled<0, 2>(t112, t113);
        // spectrum block of 5, multiplier 3
        const P t115 = t111 + t114;
        const V x0r = io.re(0);
        const V x20r = io.re(20);
        const P t116 = joined(x0r, x20r);
        const P t117 = t115 + t116;
        const P t118 = c[1] * t111;
        const P t119 = c[2] * t114;
        const P t120 = t118 - t119;
        const P t121 = t120 + t116;
        const P t122 = shuffled<1, 3>(t109, t110);
        const P t123 = c[3] * t122;
        const P t124 = shuffled<1, 3>(t112, t113);
        const P t125 = c[4] * t124;
        const P t126 = t123 + t125;
        const P t127 = flipped<1, 0>(t126);
        const P t128 = t121 + t127;
        const P t129 = t121 - t127;
        const P t130 = c[2] * t111;
        const P t131 = t116 - t130;
        const P t132 = c[1] * t114;
        const P t133 = t131 + t132;
        const P t134 = P(-c[3], c[3]) * t124;
        const P t135 = P(c[4], -c[4]) * t122;
        const P t136 = t134 + t135;
        const P t137 = t133 - t136;
        const P t138 = t133 + t136;
        const P t139 = shuffled<0, 2>(t117, t138);
        const P t140 = shuffled<1, 3>(t117, t138);
        // spectrum block of 2
        const P t141 = t139 + t140;
        const P t142 = t139 - t140;
        const P t143 = shuffled<0, 2>(t49, t71);
        // spectrum block of 2
        const P t144 = t141 + t143;
        const P t145 = t141 - t143;
        const P t146 = shuffled<1, 3>(t49, t71);
        // spectrum block of 2
        const P t147 = t142 - t146;
        const P t148 = t142 + t146;
        const P t149 = shuffled<0, 2>(t87, t108);
        const P t150 = shuffled<0, 2>(t13, t35);
        // mirrored skew block of 4, multiplier 5
        const P t151 = t149 - t150;
        const P t152 = shuffled<1, 3>(t87, t108);
        const P t153 = shuffled<1, 3>(t13, t35);
        const P t154 = t152 + t153;
        const P t155 = t149 + t150;
        const P t156 = c[5] * t151;
        const P t157 = c[5] * t154;
        const P t158 = t156 + t157;
        const P t159 = t153 - t152;
        const P t160 = t156 - t157;
        // spectrum block of 2
        const P t161 = t144 + t155;
        io.out(0, 8, t161);
        const P t162 = t144 - t155;
        io.out(20, 28, t162);
        // spectrum block of 2
        const P t163 = t147 + t158;
        io.out(5, 13, t163);
        const P t164 = t147 - t158;
        io.out(25, 33, t164);
        // spectrum block of 2
        const P t165 = t145 - t159;
        io.out(10, 18, t165);
        const P t166 = t145 + t159;
        io.out(30, 38, t166);
        // spectrum block of 2
        const P t167 = t148 - t160;
        io.out(15, 23, t167);
        const P t168 = t148 + t160;
        io.out(35, 3, t168);
        const P t169 = shuffled<0, 2>(t128, t129);
        const P t170 = shuffled<1, 3>(t128, t129);
        // spectrum block of 2
        const P t171 = t169 + t170;
        const P t172 = t169 - t170;
        const P t173 = shuffled<0, 2>(t59, t60);
        // spectrum block of 2
        const P t174 = t171 + t173;
        const P t175 = t171 - t173;
        const P t176 = shuffled<1, 3>(t59, t60);
        // spectrum block of 2
        const P t177 = t172 - t176;
        const P t178 = t172 + t176;
        const P t179 = shuffled<0, 2>(t96, t97);
        const P t180 = shuffled<0, 2>(t23, t24);
        // mirrored skew block of 4, multiplier 5
        const P t181 = t179 - t180;
        const P t182 = shuffled<1, 3>(t96, t97);
        const P t183 = shuffled<1, 3>(t23, t24);
        const P t184 = t182 + t183;
        const P t185 = t179 + t180;
        const P t186 = c[5] * t181;
        const P t187 = c[5] * t184;
        const P t188 = t186 + t187;
        const P t189 = t183 - t182;
        const P t190 = t186 - t187;
        // spectrum block of 2
        const P t191 = t174 + t185;
        io.out(16, 24, t191);
        const P t192 = t174 - t185;
        io.out(36, 4, t192);
        // spectrum block of 2
        const P t193 = t177 + t188;
        io.out(21, 29, t193);
        const P t194 = t177 - t188;
        io.out(1, 9, t194);
        // spectrum block of 2
        const P t195 = t175 - t189;
        io.out(26, 34, t195);
        const P t196 = t175 + t189;
        io.out(6, 14, t196);
        // spectrum block of 2
        const P t197 = t178 - t190;
        io.out(31, 39, t197);
        const P t198 = t178 + t190;
        io.out(11, 19, t198);
        const V t199 = part<0>(t137);
        const V t200 = part<1>(t137);
        // spectrum block of 2
        const V t201 = t199 + t200;
        const V t202 = t199 - t200;
        const P t203 = joined(t201, t202);
        const P t204 = flipped<0, 1>(t70);
        // spectrum block of 2
        const P t205 = t203 + t204;
        const P t206 = t203 - t204;
        const V t207 = part<0>(t107);
        const V t208 = part<0>(t34);
        // mirrored skew block of 4, multiplier 5
        const V t209 = t207 - t208;
        const V t210 = part<1>(t107);
        const V t211 = part<1>(t34);
        const V t212 = t210 + t211;
        const V t213 = t207 + t208;
        const V t214 = c[5] * t209;
        const V t215 = c[5] * t212;
        const V t216 = t214 + t215;
        const V t217 = t211 - t210;
        const V t218 = t214 - t215;
        const P t219 = joined(t213, t216);
        // spectrum block of 2
        const P t220 = t205 + t219;
        io.out(32, 37, t220);
        const P t221 = t205 - t219;
        io.out(12, 17, t221);
        const P t222 = joined(t217, t218);
        // spectrum block of 2
        const P t223 = t206 - t222;
        io.out(2, 7, t223);
        const P t224 = t206 + t222;
        io.out(22, 27, t224);
    }
};

}  // namespace zulg
