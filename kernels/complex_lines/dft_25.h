// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 25.
// Complex DFT of 25 points, twiddled, inner 5, outer 5; two lines of a stage to a register.
// 58 sums, 35 differences, 56 products of registers, which do the 626 steps of the graph, those with
// `scale` included; 51 shuffles, 14 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<25> {
    static constexpr int steps = 626;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5358267949789967,  // c[4]: cos 2 pi 4/25
        0.8443279255020151,  // c[5]: sin 2 pi 4/25
        0.8763066800438636,  // c[6]: cos 2 pi 2/25
        0.48175367410171527,  // c[7]: sin 2 pi 2/25
        0.7289686274214116,  // c[8]: cos 2 pi 3/25
        0.6845471059286887,  // c[9]: sin 2 pi 3/25
        0.42577929156507266,  // c[10]: -cos 2 pi 8/25
        0.9048270524660196,  // c[11]: sin 2 pi 8/25
        0.9921147013144779,  // c[12]: -cos 2 pi 12/25
        0.7705132427757893,  // c[13]: sin 2 pi 9/25
        0.12533323356430426,  // c[14]: sin 2 pi 12/25
        0.6374239897486897,  // c[15]: -cos 2 pi 9/25
        0.06279051952931337,  // c[16]: cos 2 pi 6/25
        0.9980267284282716,  // c[17]: sin 2 pi 6/25
        0.9685831611286311,  // c[18]: cos 2 pi 1/25
        0.2486898871648548,  // c[19]: sin 2 pi 1/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x5_6 = io.pairs(5, 6);
        const Q x20_21 = io.pairs(20, 21);
        // complex block of 5
        const Q t0 = x5_6 + x20_21;
        const Q t1 = x5_6 - x20_21;
        const Q x15_16 = io.pairs(15, 16);
        const Q x10_11 = io.pairs(10, 11);
        const Q t2 = x15_16 + x10_11;
        const Q t3 = x15_16 - x10_11;
        const Q t4 = t0 + t2;
        const Q x0_1 = io.pairs(0, 1);
        const Q t5 = t4 + x0_1;
        const Q t6 = c[0] * t0;
        const Q t7 = c[1] * t2;
        const Q t8 = t6 - t7;
        const Q t9 = c[1] * t0;
        const Q t10 = x0_1 - t9;
        const Q x7_8 = io.pairs(7, 8);
        const Q x22_23 = io.pairs(22, 23);
        // complex block of 5
        const Q t11 = x7_8 + x22_23;
        const Q x17_18 = io.pairs(17, 18);
        const Q x12_13 = io.pairs(12, 13);
        const Q t12 = x17_18 + x12_13;
        const Q t13 = x7_8 - x22_23;
        const Q t14 = x17_18 - x12_13;
        const Q t15 = t11 + t12;
        const Q x2_3 = io.pairs(2, 3);
        const Q t16 = t15 + x2_3;
        const P x19 = io.pair(19);
        const P t17 = part<1>(t16);
        const Q t18 = joined(x19, t17);
        const P x14 = io.pair(14);
        const P t19 = part<0>(t16);
        const Q t20 = joined(x14, t19);
        // complex block of 5
        const Q t21 = t18 + t20;
        // complex block of 5
        const Q t22 = c[0] * t11;
        const Q t23 = c[1] * t12;
        const Q t24 = t22 - t23;
        const Q t25 = c[1] * t11;
        const Q t26 = x2_3 - t25;
        const P x9 = io.pair(9);
        const P x24 = io.pair(24);
        // complex block of 5
        const P t27 = x9 + x24;
        // complex block of 5
        const Q t28 = t8 + x0_1;
        const Q t29 = c[2] * t1;
        const Q t30 = c[3] * t3;
        const Q t31 = t29 - t30;
        const Q t32 = shuffled<1, 0, 3, 2>(t31);
        const Q t33 = flipped<0, 1, 0, 1>(t32);
        const Q t34 = t28 + t33;
        const Q t35 = t28 - t33;
        const Q t36 = c[0] * t2;
        const Q t37 = t10 + t36;
        const Q t38 = c[3] * t1;
        const Q t39 = c[2] * t3;
        const Q t40 = t38 + t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t37 + t42;
        const Q t44 = t37 - t42;
        // complex block of 5
        const Q t45 = t24 + x2_3;
        const Q t46 = c[2] * t13;
        const Q t47 = c[3] * t14;
        const Q t48 = t46 - t47;
        const Q t49 = shuffled<1, 0, 3, 2>(t48);
        const Q t50 = flipped<0, 1, 0, 1>(t49);
        const Q t51 = t45 + t50;
        const Q t52 = t45 - t50;
        const Q t53 = c[0] * t12;
        const Q t54 = t26 + t53;
        const Q t55 = c[3] * t13;
        const Q t56 = c[2] * t14;
        const Q t57 = t55 + t56;
        const Q t58 = shuffled<1, 0, 3, 2>(t57);
        const Q t59 = flipped<0, 1, 0, 1>(t58);
        const Q t60 = t54 + t59;
        const Q t61 = t54 - t59;
        const P t62 = part<0>(t21);
        // complex block of 5
        const P t63 = t27 + t62;
        const V t64 = part<0>(t63);
        const P x4 = io.pair(4);
        const V t65 = part<0>(x4);
        const V t66 = t64 + t65;
        const V t67 = part<1>(t63);
        const V t68 = part<1>(x4);
        const V t69 = t67 + t68;
        const P t70 = part<1>(t5);
        const V t71 = part<0>(t70);
        // complex block of 5
        const V t72 = t71 + t66;
        const V t73 = part<1>(t70);
        const V t74 = t73 + t69;
        const Q t75 = joined(x9, t70);
        const P t76 = joined(t66, t69);
        const Q t77 = joined(x24, t76);
        // complex block of 5
        const Q t78 = t75 - t77;
        const P t79 = joined(t72, t74);
        const Q t80 = joined(t27, t79);
        const Q t81 = c[0] * t80;
        const Q t82 = c[1] * t21;
        const Q t83 = t81 - t82;
        const P t84 = part<0>(t5);
        const Q t85 = joined(x4, t84);
        const Q t86 = c[1] * t80;
        const Q t87 = t85 - t86;
        const Q t88 = t18 - t20;
        const P t89 = part<1>(t21);
        // complex block of 5
        const P t90 = t79 + t89;
        const P t91 = t90 + t84;
        io.pair(0, t91);
        // complex block of 5
        const Q t92 = t83 + t85;
        const Q t93 = c[2] * t78;
        const Q t94 = c[3] * t88;
        const Q t95 = t93 - t94;
        const Q t96 = shuffled<1, 0, 3, 2>(t95);
        const Q t97 = flipped<0, 1, 0, 1>(t96);
        const Q t98 = t92 + t97;
        const P t99 = part<1>(t98);
        io.pair(5, t99);
        const Q t100 = t92 - t97;
        const P t101 = part<1>(t100);
        io.pair(20, t101);
        const Q t102 = c[0] * t21;
        const Q t103 = t87 + t102;
        const Q t104 = c[3] * t78;
        const Q t105 = c[2] * t88;
        const Q t106 = t104 + t105;
        const Q t107 = shuffled<1, 0, 3, 2>(t106);
        const Q t108 = flipped<0, 1, 0, 1>(t107);
        const Q t109 = t103 + t108;
        const P t110 = part<1>(t109);
        io.pair(10, t110);
        const Q t111 = t103 - t108;
        const P t112 = part<1>(t111);
        io.pair(15, t112);
        const Q t113 = shuffled<2, 3, 6, 7>(t34, t43);
        // complex block of 25
        const Q t114 = Q(c[18], c[18], c[6], c[6]) * t113;
        const Q t115 = shuffled<1, 0, 3, 2>(t113);
        const Q t116 = Q(c[19], -c[19], c[7], -c[7]) * t115;
        const Q t117 = t114 + t116;
        const Q t118 = shuffled<2, 3, 6, 7>(t44, t35);
        const Q t119 = Q(c[8], c[8], c[4], c[4]) * t118;
        const Q t120 = shuffled<1, 0, 3, 2>(t118);
        const Q t121 = Q(c[9], -c[9], c[5], -c[5]) * t120;
        const Q t122 = t119 + t121;
        const Q t123 = shuffled<1, 0, 3, 2>(t98);
        const Q t124 = shuffled<0, 1, 4, 5>(t123, t109);
        const Q t125 = Q(c[5], -c[5], -c[10], c[10]) * t124;
        const Q t126 = shuffled<1, 0, 3, 2>(t124);
        const Q t127 = Q(c[4], c[4], c[11], c[11]) * t126;
        const Q t128 = t125 + t127;
        const Q t129 = flipped<0, 0, 0, 1>(t128);
        // complex block of 5
        const Q t130 = t117 + t129;
        const Q t131 = shuffled<1, 0, 3, 2>(t100);
        const Q t132 = shuffled<0, 1, 4, 5>(t111, t131);
        // complex block of 25
        const Q t133 = Q(-c[12], c[12], c[13], c[13]) * t132;
        const Q t134 = shuffled<1, 0, 3, 2>(t132);
        const Q t135 = Q(c[14], c[14], c[15], -c[15]) * t134;
        const Q t136 = t133 + t135;
        const Q t137 = flipped<0, 1, 1, 0>(t136);
        // complex block of 5
        const Q t138 = t122 + t137;
        const Q t139 = shuffled<0, 1, 4, 5>(t51, t60);
        // complex block of 25
        const Q t140 = Q(c[6], c[6], c[4], c[4]) * t139;
        const Q t141 = shuffled<1, 0, 3, 2>(t139);
        const Q t142 = Q(c[7], -c[7], c[5], -c[5]) * t141;
        const Q t143 = t140 + t142;
        const Q t144 = shuffled<2, 3, 6, 7>(t51, t60);
        const Q t145 = Q(c[8], c[8], c[16], c[16]) * t144;
        const Q t146 = shuffled<1, 0, 3, 2>(t144);
        const Q t147 = Q(c[9], -c[9], c[17], -c[17]) * t146;
        const Q t148 = t145 + t147;
        // complex block of 5
        const Q t149 = t148 + t143;
        const Q t150 = t148 - t143;
        const Q t151 = shuffled<1, 0, 3, 2>(t61);
        const Q t152 = shuffled<0, 1, 4, 5>(t151, t52);
        // complex block of 25
        const Q t153 = Q(c[17], -c[17], -c[10], c[10]) * t152;
        const Q t154 = shuffled<1, 0, 3, 2>(t152);
        const Q t155 = Q(c[16], c[16], c[11], c[11]) * t154;
        const Q t156 = t153 + t155;
        const Q t157 = shuffled<2, 3, 6, 7>(t61, t52);
        const Q t158 = Q(-c[15], c[15], -c[12], c[12]) * t157;
        const Q t159 = shuffled<1, 0, 3, 2>(t157);
        const Q t160 = Q(c[13], c[13], c[14], c[14]) * t159;
        const Q t161 = t158 + t160;
        const Q t162 = flipped<0, 1, 0, 0>(t161);
        // complex block of 5
        const Q t163 = t162 + t156;
        const Q t164 = shuffled<0, 5, 2, 7>(t162, t156);
        const Q t165 = shuffled<0, 5, 2, 7>(t156, t162);
        const Q t166 = t164 - t165;
        // complex block of 5
        const Q t167 = t117 - t129;
        const Q t168 = c[0] * t130;
        const Q t169 = c[1] * t149;
        const Q t170 = t168 - t169;
        const Q t171 = shuffled<0, 1, 4, 5>(t34, t43);
        const Q t172 = c[1] * t130;
        const Q t173 = t171 - t172;
        const Q t174 = t170 + t171;
        const Q t175 = c[2] * t167;
        const Q t176 = c[3] * t150;
        const Q t177 = t175 - t176;
        const Q t178 = shuffled<1, 0, 3, 2>(t177);
        const Q t179 = flipped<0, 1, 0, 1>(t178);
        const Q t180 = t174 + t179;
        io.pairs(6, 7, t180);
        const Q t181 = t174 - t179;
        io.pairs(21, 22, t181);
        const Q t182 = c[0] * t149;
        const Q t183 = t173 + t182;
        const Q t184 = c[3] * t167;
        const Q t185 = c[2] * t150;
        const Q t186 = t184 + t185;
        const Q t187 = shuffled<1, 0, 3, 2>(t186);
        const Q t188 = flipped<0, 1, 0, 1>(t187);
        const Q t189 = t183 + t188;
        io.pairs(11, 12, t189);
        const Q t190 = t183 - t188;
        io.pairs(16, 17, t190);
        const Q t191 = t130 + t149;
        const Q t192 = t191 + t171;
        io.pairs(1, 2, t192);
        // complex block of 5
        const Q t193 = t122 - t137;
        const Q t194 = c[0] * t138;
        const Q t195 = Q(c[1], c[1], c[1], -c[1]) * t163;
        const Q t196 = t194 - t195;
        const Q t197 = shuffled<0, 1, 4, 5>(t44, t35);
        const Q t198 = c[1] * t138;
        const Q t199 = t197 - t198;
        const Q t200 = t196 + t197;
        const Q t201 = c[2] * t193;
        const Q t202 = Q(c[3], -c[3], c[3], c[3]) * t166;
        const Q t203 = t201 - t202;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = flipped<0, 1, 0, 1>(t204);
        const Q t206 = t200 + t205;
        io.pairs(8, 9, t206);
        const Q t207 = t200 - t205;
        io.pairs(23, 24, t207);
        const Q t208 = Q(c[0], c[0], c[0], -c[0]) * t163;
        const Q t209 = t199 + t208;
        const Q t210 = c[3] * t193;
        const Q t211 = Q(c[2], -c[2], c[2], c[2]) * t166;
        const Q t212 = t210 + t211;
        const Q t213 = shuffled<1, 0, 3, 2>(t212);
        const Q t214 = flipped<0, 1, 0, 1>(t213);
        const Q t215 = t209 + t214;
        io.pairs(13, 14, t215);
        const Q t216 = t209 - t214;
        io.pairs(18, 19, t216);
        const Q t217 = flipped<0, 0, 0, 1>(t163);
        const Q t218 = t138 + t217;
        const Q t219 = t218 + t197;
        io.pairs(3, 4, t219);
    }
};

}  // namespace zulg
