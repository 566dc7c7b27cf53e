// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 56.
// Inverse DFT to 56 real points, prime-factor 8, 7; up to four lanes to a register.
// 56 sums, 43 differences, 56 products of registers, which do the 636 steps of the graph, those with
// `scale` included; 56 shuffles, 24 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseLines<56> {
    static constexpr int steps = 636;  // with `scale`
    static constexpr double inverseRoot = 0.1336306209562122;  // 1/sqrt(56), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.6234898018587335,  // c[1]: cos 2 pi 1/7
        0.2225209339563144,  // c[2]: -cos 2 pi 2/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.9009688679024191,  // c[6]: -cos 2 pi 3/7
        0.7071067811865476,  // c[7]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, RealInverseLines> c{};
        const V x0r = io.re(0);
        const V x28r = io.re(28);
        // spectrum block of 2
        const V t0 = x0r + x28r;
        const V t1 = x0r - x28r;
        const P t2 = joined(t0, t1);
        const P x14 = io.pair(14);
        // doubled bins
        const P t3 = c[0] * x14;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const Q x1_9 = io.pairs(1, 9);
        // doubled bins
        const Q t6 = c[0] * x1_9;
        const Q x27_19 = io.pairs(27, 19);
        const Q t7 = Q(c[0], -c[0], c[0], -c[0]) * x27_19;
        // complex block of 2
        const Q t8 = t6 + t7;
        const Q t9 = flipped<0, 1, 0, 1>(t7);
        const Q t10 = flipped<1, 0, 1, 0>(t6);
        const Q t11 = t9 + t10;
        const Q x6_2 = io.pairs(6, 2);
        // doubled bins
        const Q t12 = Q(c[0], -c[0], c[0], c[0]) * x6_2;
        const Q x22_26 = io.pairs(22, 26);
        const Q t13 = Q(c[0], c[0], c[0], -c[0]) * x22_26;
        // complex block of 2
        const Q t14 = t12 + t13;
        const Q x15_23 = io.pairs(15, 23);
        // doubled bins
        const Q t15 = c[0] * x15_23;
        const Q x13_5 = io.pairs(13, 5);
        const Q t16 = Q(c[0], -c[0], c[0], -c[0]) * x13_5;
        // complex block of 2
        const Q t17 = t15 + t16;
        const Q t18 = t15 - t16;
        const Q x8_16 = io.pairs(8, 16);
        // doubled bins
        const Q t19 = c[0] * x8_16;
        const Q x20_12 = io.pairs(20, 12);
        const Q t20 = Q(c[0], -c[0], c[0], -c[0]) * x20_12;
        // complex block of 2
        const Q t21 = t19 + t20;
        const Q t22 = t19 - t20;
        const Q t23 = flipped<0, 0, 0, 1>(t13);
        const Q t24 = flipped<1, 1, 1, 0>(t12);
        // complex block of 2
        const Q t25 = t23 + t24;
        const Q t26 = shuffled<1, 0, 3, 2>(t25);
        const Q t27 = flipped<1, 0, 0, 0>(t26);
        // complex block of 2
        const Q t28 = t22 - t27;
        const Q t29 = t22 + t27;
        // complex block of 2
        const Q t30 = t21 + t14;
        // complex block of 2
        const Q t31 = t17 + t8;
        // complex block of 2
        const Q t32 = t30 + t31;
        const Q t33 = t30 - t31;
        // complex block of 2
        const Q t34 = t21 - t14;
        // complex block of 2
        const Q t35 = t17 - t8;
        const Q t36 = shuffled<1, 0, 3, 2>(t35);
        const Q t37 = flipped<0, 1, 0, 1>(t36);
        // complex block of 2
        const Q t38 = t34 + t37;
        const Q t39 = t34 - t37;
        // complex block of 8, multiplier 7
        const Q t40 = c[7] * t18;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<1, 0, 1, 0>(t41);
        const Q t43 = t40 + t42;
        const Q t44 = c[7] * t11;
        const Q t45 = shuffled<1, 0, 3, 2>(t44);
        const Q t46 = flipped<0, 1, 0, 1>(t44);
        const Q t47 = t45 + t46;
        const Q t48 = shuffled<1, 0, 3, 2>(t43);
        const Q t49 = flipped<1, 0, 1, 0>(t47);
        // complex block of 2
        const Q t50 = t48 + t49;
        const Q t51 = flipped<0, 1, 0, 1>(t48);
        const Q t52 = t47 + t51;
        const Q x24_25 = io.pairs(24, 25);
        // doubled bins
        const Q t53 = c[0] * x24_25;
        const Q x4_3 = io.pairs(4, 3);
        const Q t54 = Q(-c[0], c[0], -c[0], c[0]) * x4_3;
        // complex block of 2
        const Q t55 = t53 + t54;
        const Q x18_11 = io.pairs(18, 11);
        // doubled bins
        const Q t56 = c[0] * x18_11;
        const Q x10_17 = io.pairs(10, 17);
        const Q t57 = Q(-c[0], c[0], -c[0], c[0]) * x10_17;
        // complex block of 2
        const Q t58 = t56 + t57;
        const Q t59 = flipped<1, 1, 1, 0>(t54);
        const Q t60 = flipped<0, 0, 0, 1>(t53);
        // complex block of 2
        const Q t61 = t59 + t60;
        const Q t62 = shuffled<0, 5, 2, 7>(t56, t57);
        const Q t63 = shuffled<0, 5, 2, 7>(t57, t56);
        // complex block of 2
        const Q t64 = t62 - t63;
        const Q t65 = shuffled<2, 3, 6, 7>(t58, t55);
        // complex block of 8, multiplier 7
        const Q t66 = c[7] * t65;
        const Q t67 = shuffled<1, 0, 3, 2>(t66);
        const Q t68 = flipped<0, 1, 0, 1>(t66);
        const Q t69 = t67 + t68;
        const Q t70 = shuffled<0, 1, 4, 5>(t61, t55);
        const Q t71 = shuffled<1, 0, 3, 2>(t58);
        const Q t72 = shuffled<0, 1, 4, 5>(t64, t71);
        const Q t73 = flipped<0, 0, 1, 1>(t72);
        // complex block of 2
        const Q t74 = t70 + t73;
        const Q t75 = t70 - t73;
        const Q t76 = shuffled<1, 0, 3, 2>(t69);
        const Q t77 = shuffled<2, 3, 6, 7>(t61, t76);
        const Q t78 = shuffled<2, 3, 4, 5>(t64, t69);
        const Q t79 = flipped<0, 0, 1, 0>(t78);
        // complex block of 2
        const Q t80 = t77 + t79;
        const Q t81 = flipped<1, 1, 1, 0>(t79);
        const Q t82 = flipped<0, 0, 0, 1>(t77);
        const Q t83 = t81 + t82;
        const P x7 = io.pair(7);
        // doubled bins
        const P t84 = c[0] * x7;
        const V t85 = part<0>(t84);
        const P x21 = io.pair(21);
        const P t86 = c[0] * x21;
        const V t87 = part<0>(t86);
        // mirrored skew block of 4, multiplier 7
        const V t88 = t85 - t87;
        const V t89 = part<1>(t84);
        const V t90 = part<1>(t86);
        const V t91 = t89 + t90;
        const V t92 = c[7] * t88;
        const V t93 = c[7] * t91;
        const V t94 = t92 + t93;
        const V t95 = t92 - t93;
        const V t96 = t85 + t87;
        const V t97 = t90 - t89;
        const P t98 = joined(t96, t94);
        const Q t99 = joined(t98, t5);
        const P t100 = flipped<1, 1>(t4);
        const P t101 = joined(t97, t95);
        const Q t102 = joined(t100, t101);
        // spectrum block of 2
        const Q t103 = t99 - t102;
        const Q t104 = flipped<0, 1, 0, 1>(t50);
        // complex block of 2
        const Q t105 = t28 + t104;
        const Q t106 = shuffled<1, 0, 3, 2>(t52);
        const Q t107 = flipped<0, 1, 0, 1>(t106);
        // complex block of 2
        const Q t108 = t29 + t107;
        const Q t109 = shuffled<0, 4, 2, 6>(t32, t105);
        const Q t110 = shuffled<0, 4, 2, 6>(t38, t108);
        const Q t111 = shuffled<0, 1, 4, 5>(t109, t110);
        const Q t112 = shuffled<2, 3, 6, 7>(t109, t110);
        // spectrum block of 7
        const Q t113 = t111 + t112;
        const Q t114 = c[1] * t111;
        const Q t115 = c[2] * t112;
        const Q t116 = t114 - t115;
        const Q t117 = shuffled<1, 5, 3, 7>(t32, t105);
        const Q t118 = shuffled<1, 5, 3, 7>(t38, t108);
        const Q t119 = shuffled<0, 1, 4, 5>(t117, t118);
        const Q t120 = c[3] * t119;
        const Q t121 = shuffled<2, 3, 6, 7>(t117, t118);
        const Q t122 = c[4] * t121;
        const Q t123 = t120 + t122;
        const Q t124 = c[2] * t111;
        const Q t125 = t103 - t124;
        const Q t126 = c[4] * t119;
        const Q t127 = c[5] * t121;
        const Q t128 = t126 - t127;
        const Q t129 = c[6] * t111;
        const Q t130 = t103 - t129;
        const Q t131 = c[5] * t119;
        const Q t132 = c[3] * t121;
        const Q t133 = t131 - t132;
        const Q t134 = flipped<0, 0, 0, 1>(t80);
        // complex block of 2
        const Q t135 = t74 + t134;
        const Q t136 = shuffled<1, 0, 3, 2>(t83);
        const Q t137 = flipped<0, 1, 0, 1>(t136);
        // complex block of 2
        const Q t138 = t75 + t137;
        const P t139 = part<0>(t135);
        const P t140 = part<1>(t135);
        const P t141 = shuffled<0, 2>(t139, t140);
        const P t142 = part<0>(t138);
        const P t143 = part<1>(t138);
        const P t144 = shuffled<0, 2>(t142, t143);
        const Q t145 = joined(t141, t144);
        // spectrum block of 7
        const Q t146 = t113 + t145;
        const Q t147 = t146 + t103;
        io.out(0, 7, 14, 21, t147);
        const Q t148 = c[6] * t145;
        const Q t149 = t116 - t148;
        const Q t150 = t149 + t103;
        const P t151 = shuffled<1, 3>(t139, t140);
        const P t152 = shuffled<1, 3>(t142, t143);
        const Q t153 = joined(t151, t152);
        const Q t154 = c[5] * t153;
        const Q t155 = t123 + t154;
        const Q t156 = t150 - t155;
        io.out(8, 15, 22, 29, t156);
        const Q t157 = t150 + t155;
        io.out(48, 55, 6, 13, t157);
        const Q t158 = c[6] * t112;
        const Q t159 = t125 - t158;
        const Q t160 = c[1] * t145;
        const Q t161 = t159 + t160;
        const Q t162 = c[3] * t153;
        const Q t163 = t128 - t162;
        const Q t164 = t161 - t163;
        io.out(16, 23, 30, 37, t164);
        const Q t165 = t161 + t163;
        io.out(40, 47, 54, 5, t165);
        const Q t166 = c[1] * t112;
        const Q t167 = t130 + t166;
        const Q t168 = c[2] * t145;
        const Q t169 = t167 - t168;
        const Q t170 = c[4] * t153;
        const Q t171 = t133 + t170;
        const Q t172 = t169 - t171;
        io.out(24, 31, 38, 45, t172);
        const Q t173 = t169 + t171;
        io.out(32, 39, 46, 53, t173);
        const Q t174 = flipped<1, 1, 0, 0>(t99);
        const Q t175 = flipped<1, 1, 0, 0>(t102);
        // spectrum block of 2
        const Q t176 = t174 + t175;
        // complex block of 2
        const Q t177 = t28 - t104;
        // complex block of 2
        const Q t178 = t29 - t107;
        const Q t179 = shuffled<0, 4, 2, 6>(t33, t177);
        const Q t180 = shuffled<0, 4, 2, 6>(t39, t178);
        const Q t181 = shuffled<0, 1, 4, 5>(t179, t180);
        const Q t182 = shuffled<2, 3, 6, 7>(t179, t180);
        // spectrum block of 7
        const Q t183 = t181 + t182;
        const Q t184 = c[1] * t181;
        const Q t185 = c[2] * t182;
        const Q t186 = t184 - t185;
        const Q t187 = shuffled<1, 5, 3, 7>(t33, t177);
        const Q t188 = shuffled<1, 5, 3, 7>(t39, t178);
        const Q t189 = shuffled<0, 1, 4, 5>(t187, t188);
        const Q t190 = c[3] * t189;
        const Q t191 = shuffled<2, 3, 6, 7>(t187, t188);
        const Q t192 = c[4] * t191;
        const Q t193 = t190 + t192;
        const Q t194 = c[2] * t181;
        const Q t195 = t176 - t194;
        const Q t196 = c[4] * t189;
        const Q t197 = c[5] * t191;
        const Q t198 = t196 - t197;
        const Q t199 = c[6] * t181;
        const Q t200 = t176 - t199;
        const Q t201 = c[5] * t189;
        const Q t202 = c[3] * t191;
        const Q t203 = t201 - t202;
        // complex block of 2
        const Q t204 = t74 - t134;
        // complex block of 2
        const Q t205 = t75 - t137;
        const P t206 = part<0>(t204);
        const P t207 = part<1>(t204);
        const P t208 = shuffled<0, 2>(t206, t207);
        const P t209 = part<0>(t205);
        const P t210 = part<1>(t205);
        const P t211 = shuffled<0, 2>(t209, t210);
        const Q t212 = joined(t208, t211);
        // spectrum block of 7
        const Q t213 = t183 + t212;
        const Q t214 = t213 + t176;
        io.out(28, 35, 42, 49, t214);
        const Q t215 = c[6] * t212;
        const Q t216 = t186 - t215;
        const Q t217 = t216 + t176;
        const P t218 = shuffled<1, 3>(t206, t207);
        const P t219 = shuffled<1, 3>(t209, t210);
        const Q t220 = joined(t218, t219);
        const Q t221 = c[5] * t220;
        const Q t222 = t193 + t221;
        const Q t223 = t217 - t222;
        io.out(36, 43, 50, 1, t223);
        const Q t224 = t217 + t222;
        io.out(20, 27, 34, 41, t224);
        const Q t225 = c[6] * t182;
        const Q t226 = t195 - t225;
        const Q t227 = c[1] * t212;
        const Q t228 = t226 + t227;
        const Q t229 = c[3] * t220;
        const Q t230 = t198 - t229;
        const Q t231 = t228 - t230;
        io.out(44, 51, 2, 9, t231);
        const Q t232 = t228 + t230;
        io.out(12, 19, 26, 33, t232);
        const Q t233 = c[1] * t182;
        const Q t234 = t200 + t233;
        const Q t235 = c[2] * t212;
        const Q t236 = t234 - t235;
        const Q t237 = c[4] * t220;
        const Q t238 = t203 + t237;
        const Q t239 = t236 - t238;
        io.out(52, 3, 10, 17, t239);
        const Q t240 = t236 + t238;
        io.out(4, 11, 18, 25, t240);
    }
};

}  // namespace zulg
