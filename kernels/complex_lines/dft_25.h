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
        0.06279051952931337,  // c[9]: cos 2 pi 6/25
        0.6845471059286887,  // c[10]: sin 2 pi 3/25
        0.9980267284282716,  // c[11]: sin 2 pi 6/25
        0.42577929156507266,  // c[12]: -cos 2 pi 8/25
        0.9048270524660196,  // c[13]: sin 2 pi 8/25
        0.6374239897486897,  // c[14]: -cos 2 pi 9/25
        0.9921147013144779,  // c[15]: -cos 2 pi 12/25
        0.7705132427757893,  // c[16]: sin 2 pi 9/25
        0.12533323356430426,  // c[17]: sin 2 pi 12/25
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
        const Q t9 = t8 + x0_1;
        const Q t10 = c[2] * t1;
        const Q t11 = c[3] * t3;
        const Q t12 = t10 - t11;
        const Q t13 = shuffled<1, 0, 3, 2>(t12);
        const Q t14 = flipped<0, 1, 0, 1>(t13);
        const Q t15 = t9 + t14;
        const Q t16 = t9 - t14;
        const Q t17 = c[1] * t0;
        const Q t18 = x0_1 - t17;
        const Q t19 = c[0] * t2;
        const Q t20 = t18 + t19;
        const Q t21 = c[3] * t1;
        const Q t22 = c[2] * t3;
        const Q t23 = t21 + t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = flipped<0, 1, 0, 1>(t24);
        const Q t26 = t20 + t25;
        const Q t27 = t20 - t25;
        const Q x7_8 = io.pairs(7, 8);
        const Q x22_23 = io.pairs(22, 23);
        // complex block of 5
        const Q t28 = x7_8 + x22_23;
        const Q t29 = x7_8 - x22_23;
        const Q x17_18 = io.pairs(17, 18);
        const Q x12_13 = io.pairs(12, 13);
        const Q t30 = x17_18 + x12_13;
        const Q t31 = x17_18 - x12_13;
        const Q t32 = t28 + t30;
        const Q x2_3 = io.pairs(2, 3);
        const Q t33 = t32 + x2_3;
        const Q t34 = c[0] * t28;
        const Q t35 = c[1] * t30;
        const Q t36 = t34 - t35;
        const Q t37 = t36 + x2_3;
        const Q t38 = c[2] * t29;
        const Q t39 = c[3] * t31;
        const Q t40 = t38 - t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t37 + t42;
        const Q t44 = t37 - t42;
        const Q t45 = c[1] * t28;
        const Q t46 = x2_3 - t45;
        const Q t47 = c[0] * t30;
        const Q t48 = t46 + t47;
        const Q t49 = c[3] * t29;
        const Q t50 = c[2] * t31;
        const Q t51 = t49 + t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t48 + t53;
        const Q t55 = t48 - t53;
        const P x9 = io.pair(9);
        const P x24 = io.pair(24);
        // complex block of 5
        const P t56 = x9 + x24;
        const P x19 = io.pair(19);
        const P t57 = part<1>(t33);
        const Q t58 = joined(x19, t57);
        const P x14 = io.pair(14);
        const P t59 = part<0>(t33);
        const Q t60 = joined(x14, t59);
        const Q t61 = t58 + t60;
        const P t62 = part<0>(t61);
        const P t63 = t56 + t62;
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
        const Q t79 = t58 - t60;
        const P t80 = joined(t72, t74);
        const P t81 = part<1>(t61);
        // complex block of 5
        const P t82 = t80 + t81;
        const P t83 = part<0>(t5);
        const P t84 = t82 + t83;
        io.pair(0, t84);
        const Q t85 = joined(t56, t80);
        // complex block of 5
        const Q t86 = c[0] * t85;
        const Q t87 = c[1] * t61;
        const Q t88 = t86 - t87;
        const Q t89 = joined(x4, t83);
        const Q t90 = t88 + t89;
        const Q t91 = c[2] * t78;
        const Q t92 = c[3] * t79;
        const Q t93 = t91 - t92;
        const Q t94 = shuffled<1, 0, 3, 2>(t93);
        const Q t95 = flipped<0, 1, 0, 1>(t94);
        const Q t96 = t90 + t95;
        const P t97 = part<1>(t96);
        io.pair(5, t97);
        const Q t98 = t90 - t95;
        const P t99 = part<1>(t98);
        io.pair(20, t99);
        const Q t100 = c[1] * t85;
        const Q t101 = t89 - t100;
        const Q t102 = c[0] * t61;
        const Q t103 = t101 + t102;
        const Q t104 = c[3] * t78;
        const Q t105 = c[2] * t79;
        const Q t106 = t104 + t105;
        const Q t107 = shuffled<1, 0, 3, 2>(t106);
        const Q t108 = flipped<0, 1, 0, 1>(t107);
        const Q t109 = t103 + t108;
        const P t110 = part<1>(t109);
        io.pair(10, t110);
        const Q t111 = t103 - t108;
        const P t112 = part<1>(t111);
        io.pair(15, t112);
        const Q t113 = shuffled<2, 3, 6, 7>(t15, t26);
        // complex block of 25
        const Q t114 = Q(c[18], c[18], c[6], c[6]) * t113;
        const Q t115 = shuffled<1, 0, 3, 2>(t113);
        const Q t116 = Q(c[19], -c[19], c[7], -c[7]) * t115;
        const Q t117 = t114 + t116;
        const Q t118 = shuffled<0, 1, 4, 5>(t43, t54);
        const Q t119 = Q(c[6], c[6], c[4], c[4]) * t118;
        const Q t120 = shuffled<1, 0, 3, 2>(t118);
        const Q t121 = Q(c[7], -c[7], c[5], -c[5]) * t120;
        const Q t122 = t119 + t121;
        const Q t123 = shuffled<2, 3, 6, 7>(t43, t54);
        const Q t124 = Q(c[8], c[8], c[9], c[9]) * t123;
        const Q t125 = shuffled<1, 0, 3, 2>(t123);
        const Q t126 = Q(c[10], -c[10], c[11], -c[11]) * t125;
        const Q t127 = t124 + t126;
        const P t128 = part<0>(t96);
        const P t129 = shuffled<1, 0>(t128);
        const P t130 = part<0>(t109);
        const Q t131 = joined(t129, t130);
        const Q t132 = Q(c[5], -c[5], -c[12], c[12]) * t131;
        const Q t133 = shuffled<1, 0, 3, 2>(t131);
        const Q t134 = Q(c[4], c[4], c[13], c[13]) * t133;
        const Q t135 = t132 + t134;
        const Q t136 = flipped<0, 0, 0, 1>(t135);
        // complex block of 5
        const Q t137 = t117 + t136;
        const Q t138 = t117 - t136;
        const Q t139 = t127 + t122;
        const Q t140 = t127 - t122;
        const Q t141 = t137 + t139;
        const Q t142 = shuffled<0, 1, 4, 5>(t15, t26);
        const Q t143 = t141 + t142;
        io.pairs(1, 2, t143);
        const Q t144 = c[0] * t137;
        const Q t145 = c[1] * t139;
        const Q t146 = t144 - t145;
        const Q t147 = t146 + t142;
        const Q t148 = c[2] * t138;
        const Q t149 = c[3] * t140;
        const Q t150 = t148 - t149;
        const Q t151 = shuffled<1, 0, 3, 2>(t150);
        const Q t152 = flipped<0, 1, 0, 1>(t151);
        const Q t153 = t147 + t152;
        io.pairs(6, 7, t153);
        const Q t154 = t147 - t152;
        io.pairs(21, 22, t154);
        const Q t155 = c[1] * t137;
        const Q t156 = t142 - t155;
        const Q t157 = c[0] * t139;
        const Q t158 = t156 + t157;
        const Q t159 = c[3] * t138;
        const Q t160 = c[2] * t140;
        const Q t161 = t159 + t160;
        const Q t162 = shuffled<1, 0, 3, 2>(t161);
        const Q t163 = flipped<0, 1, 0, 1>(t162);
        const Q t164 = t158 + t163;
        io.pairs(11, 12, t164);
        const Q t165 = t158 - t163;
        io.pairs(16, 17, t165);
        const Q t166 = shuffled<2, 3, 6, 7>(t27, t16);
        // complex block of 25
        const Q t167 = Q(c[8], c[8], c[4], c[4]) * t166;
        const Q t168 = shuffled<1, 0, 3, 2>(t166);
        const Q t169 = Q(c[10], -c[10], c[5], -c[5]) * t168;
        const Q t170 = t167 + t169;
        const P t171 = part<0>(t55);
        const P t172 = shuffled<1, 0>(t171);
        const P t173 = part<0>(t44);
        const Q t174 = joined(t172, t173);
        const Q t175 = Q(c[11], -c[11], -c[12], c[12]) * t174;
        const Q t176 = shuffled<1, 0, 3, 2>(t174);
        const Q t177 = Q(c[9], c[9], c[13], c[13]) * t176;
        const Q t178 = t175 + t177;
        const Q t179 = shuffled<2, 3, 6, 7>(t55, t44);
        const Q t180 = Q(-c[14], c[14], -c[15], c[15]) * t179;
        const Q t181 = shuffled<1, 0, 3, 2>(t179);
        const Q t182 = Q(c[16], c[16], c[17], c[17]) * t181;
        const Q t183 = t180 + t182;
        const P t184 = part<0>(t111);
        const P t185 = part<0>(t98);
        const P t186 = shuffled<1, 0>(t185);
        const Q t187 = joined(t184, t186);
        const Q t188 = Q(-c[15], c[15], c[16], c[16]) * t187;
        const Q t189 = shuffled<1, 0, 3, 2>(t187);
        const Q t190 = Q(c[17], c[17], c[14], -c[14]) * t189;
        const Q t191 = t188 + t190;
        const Q t192 = flipped<0, 1, 1, 0>(t191);
        // complex block of 5
        const Q t193 = t170 + t192;
        const Q t194 = t170 - t192;
        const Q t195 = flipped<0, 1, 0, 0>(t183);
        const Q t196 = t195 + t178;
        const Q t197 = shuffled<0, 5, 2, 7>(t195, t178);
        const Q t198 = shuffled<0, 5, 2, 7>(t178, t195);
        const Q t199 = t197 - t198;
        const Q t200 = flipped<0, 0, 0, 1>(t196);
        const Q t201 = t193 + t200;
        const Q t202 = shuffled<0, 1, 4, 5>(t27, t16);
        const Q t203 = t201 + t202;
        io.pairs(3, 4, t203);
        const Q t204 = c[0] * t193;
        const Q t205 = Q(c[1], c[1], c[1], -c[1]) * t196;
        const Q t206 = t204 - t205;
        const Q t207 = t206 + t202;
        const Q t208 = c[2] * t194;
        const Q t209 = Q(c[3], -c[3], c[3], c[3]) * t199;
        const Q t210 = t208 - t209;
        const Q t211 = shuffled<1, 0, 3, 2>(t210);
        const Q t212 = flipped<0, 1, 0, 1>(t211);
        const Q t213 = t207 + t212;
        io.pairs(8, 9, t213);
        const Q t214 = t207 - t212;
        io.pairs(23, 24, t214);
        const Q t215 = c[1] * t193;
        const Q t216 = t202 - t215;
        const Q t217 = Q(c[0], c[0], c[0], -c[0]) * t196;
        const Q t218 = t216 + t217;
        const Q t219 = c[3] * t194;
        const Q t220 = Q(c[2], -c[2], c[2], c[2]) * t199;
        const Q t221 = t219 + t220;
        const Q t222 = shuffled<1, 0, 3, 2>(t221);
        const Q t223 = flipped<0, 1, 0, 1>(t222);
        const Q t224 = t218 + t223;
        io.pairs(13, 14, t224);
        const Q t225 = t218 - t223;
        io.pairs(18, 19, t225);
    }
};

}  // namespace zulg
