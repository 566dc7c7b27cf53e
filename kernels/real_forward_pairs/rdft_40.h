// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 40.
// Forward DFT of 40 real points, prime-factor 8, 5; two lanes to a register.
// 62 sums, 54 differences, 38 products of registers, which do the 334 steps of the graph, those with
// `scale` included; 44 shuffles, 8 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<40> {
    static constexpr int steps = 334;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 9/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: -sin 2 pi 9/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x0_8 = io.in(0, 8);
        const P x20_28 = io.in(20, 28);
        // real block of 2
        const P t0 = x0_8 + x20_28;
        const P t1 = x0_8 - x20_28;
        const P x5_13 = io.in(5, 13);
        const P x25_33 = io.in(25, 33);
        // real block of 2
        const P t2 = x5_13 + x25_33;
        const P t3 = x5_13 - x25_33;
        const P x10_18 = io.in(10, 18);
        const P x30_38 = io.in(30, 38);
        // real block of 2
        const P t4 = x10_18 + x30_38;
        const P t5 = x10_18 - x30_38;
        const P x15_23 = io.in(15, 23);
        const P x35_3 = io.in(35, 3);
        // real block of 2
        const P t6 = x15_23 + x35_3;
        const P t7 = x15_23 - x35_3;
        // real block of 2
        const P t8 = t0 + t4;
        const P t9 = t0 - t4;
        // real block of 2
        const P t10 = t2 + t6;
        const P t11 = t2 - t6;
        // real block of 2
        const P t12 = t8 + t10;
        const P t13 = t8 - t10;
        // skew block of 4, multiplier 5
        const P t14 = t3 - t7;
        const P t15 = t3 + t7;
        const P t16 = c[4] * t15;
        const P t17 = t16 - t5;
        const P t18 = c[4] * t14;
        const P t19 = t1 + t18;
        const P t20 = t5 + t16;
        const P t21 = t1 - t18;
        const P x16_24 = io.in(16, 24);
        const P x36_4 = io.in(36, 4);
        // real block of 2
        const P t22 = x16_24 + x36_4;
        const P t23 = x16_24 - x36_4;
        const P x21_29 = io.in(21, 29);
        const P x1_9 = io.in(1, 9);
        // real block of 2
        const P t24 = x21_29 + x1_9;
        const P t25 = x21_29 - x1_9;
        const P x26_34 = io.in(26, 34);
        const P x6_14 = io.in(6, 14);
        // real block of 2
        const P t26 = x26_34 + x6_14;
        const P t27 = x26_34 - x6_14;
        const P x31_39 = io.in(31, 39);
        const P x11_19 = io.in(11, 19);
        // real block of 2
        const P t28 = x31_39 + x11_19;
        const P t29 = x31_39 - x11_19;
        // real block of 2
        const P t30 = t22 + t26;
        const P t31 = t22 - t26;
        // real block of 2
        const P t32 = t24 + t28;
        const P t33 = t24 - t28;
        // real block of 2
        const P t34 = t30 + t32;
        const P t35 = t30 - t32;
        // skew block of 4, multiplier 5
        const P t36 = t25 - t29;
        const P t37 = t25 + t29;
        const P t38 = c[4] * t37;
        const P t39 = t38 - t27;
        const P t40 = c[4] * t36;
        const P t41 = t23 + t40;
        const P t42 = t27 + t38;
        const P t43 = t23 - t40;
        const P x32_37 = io.in(32, 37);
        const P x12_17 = io.in(12, 17);
        // real block of 2
        const P t44 = x32_37 + x12_17;
        const P t45 = x32_37 - x12_17;
        const P x2_7 = io.in(2, 7);
        const P x22_27 = io.in(22, 27);
        // real block of 2
        const P t46 = x2_7 + x22_27;
        const P t47 = x2_7 - x22_27;
        // real block of 2
        const P t48 = t44 + t46;
        const P t49 = t44 - t46;
        const V t50 = part<0>(t48);
        const V t51 = part<1>(t48);
        // real block of 2
        const V t52 = t50 + t51;
        const V t53 = t50 - t51;
        const V t54 = part<1>(t45);
        const V t55 = part<1>(t47);
        // skew block of 4, multiplier 5
        const V t56 = t54 - t55;
        const V t57 = t54 + t55;
        const V t58 = c[4] * t57;
        const V t59 = part<0>(t47);
        const V t60 = t58 - t59;
        const V t61 = part<0>(t45);
        const V t62 = c[4] * t56;
        const V t63 = t61 + t62;
        const V t64 = t59 + t58;
        const V t65 = t61 - t62;
        const P t66 = shuffled<1, 3>(t21, t17);
        const P t67 = joined(t65, t60);
        // complex block of 5, multiplier 3
        const P t68 = t66 + t67;
        const P t69 = t66 - t67;
        const P t70 = shuffled<1, 3>(t43, t39);
        const P t71 = shuffled<0, 2>(t43, t39);
        const P t72 = t70 + t71;
        const P t73 = t70 - t71;
        const P t74 = t68 + t72;
        const P t75 = shuffled<0, 2>(t21, t17);
        const P t76 = t74 + t75;
        io.pair(5, t76);
        const P t77 = c[0] * t68;
        const P t78 = c[1] * t72;
        const P t79 = t77 - t78;
        const P t80 = t79 + t75;
        const P t81 = c[2] * t69;
        const P t82 = c[3] * t73;
        const P t83 = t81 - t82;
        const P t84 = shuffled<1, 0>(t83);
        const P t85 = flipped<0, 1>(t84);
        const P t86 = t80 + t85;
        io.pair(19, negated<0, 1>(t86));
        const P t87 = t80 - t85;
        io.pair(11, negated<0, 1>(t87));
        const P t88 = c[1] * t68;
        const P t89 = t75 - t88;
        const P t90 = c[0] * t72;
        const P t91 = t89 + t90;
        const P t92 = c[3] * t69;
        const P t93 = c[2] * t73;
        const P t94 = t92 + t93;
        const P t95 = shuffled<1, 0>(t94);
        const P t96 = flipped<0, 1>(t95);
        const P t97 = t91 + t96;
        io.pair(3, negated<0, 1>(t97));
        const P t98 = t91 - t96;
        io.pair(13, t98);
        const P t99 = shuffled<1, 3>(t9, t11);
        // complex block of 5, multiplier 3
        const P t100 = t99 + t49;
        const P t101 = shuffled<0, 3>(t99, t49);
        const P t102 = shuffled<0, 3>(t49, t99);
        const P t103 = t101 - t102;
        const P t104 = shuffled<1, 3>(t31, t33);
        const P t105 = shuffled<0, 2>(t31, t33);
        const P t106 = t104 + t105;
        const P t107 = shuffled<0, 3>(t104, t105);
        const P t108 = shuffled<0, 3>(t105, t104);
        const P t109 = t107 - t108;
        const P t110 = t100 + t106;
        const P t111 = shuffled<0, 2>(t9, t11);
        const P t112 = t110 + t111;
        io.pair(10, negated<0, 1>(t112));
        const P t113 = c[0] * t100;
        const V t114 = part<0>(t113);
        const P t115 = c[1] * t106;
        const V t116 = part<0>(t115);
        const V t117 = t114 - t116;
        const V t118 = part<0>(t11);
        const V t119 = part<1>(t113);
        const V t120 = t118 + t119;
        const P t121 = shuffled<0, 3>(t111, t115);
        const V t122 = flipped<1>(t120);
        const P t123 = joined(t117, t122);
        const P t124 = t121 + t123;
        const P t125 = c[2] * t103;
        const P t126 = c[3] * t109;
        const P t127 = t125 - t126;
        const P t128 = shuffled<1, 0>(t127);
        const P t129 = flipped<0, 1>(t128);
        const P t130 = t124 + t129;
        io.pair(14, negated<0, 1>(t130));
        const P t131 = t124 - t129;
        io.pair(6, negated<0, 1>(t131));
        const V t132 = part<0>(t121);
        const P t133 = c[1] * t100;
        const V t134 = part<0>(t133);
        const V t135 = t132 - t134;
        const V t136 = part<1>(t133);
        const P t137 = c[0] * t106;
        const V t138 = part<1>(t137);
        const V t139 = t136 - t138;
        const P t140 = joined(t135, t139);
        const P t141 = shuffled<0, 3>(t137, t111);
        const P t142 = flipped<0, 1>(t141);
        const P t143 = t140 + t142;
        const P t144 = c[3] * t103;
        const P t145 = c[2] * t109;
        const P t146 = t144 + t145;
        const P t147 = shuffled<1, 0>(t146);
        const P t148 = flipped<0, 1>(t147);
        const P t149 = t143 + t148;
        io.pair(2, t149);
        const P t150 = t143 - t148;
        io.pair(18, t150);
        const P t151 = shuffled<1, 3>(t19, t20);
        const P t152 = joined(t63, t64);
        // complex block of 5, multiplier 3
        const P t153 = t151 + t152;
        const P t154 = t151 - t152;
        const P t155 = shuffled<1, 3>(t41, t42);
        const P t156 = shuffled<0, 2>(t41, t42);
        const P t157 = t155 + t156;
        const P t158 = t155 - t156;
        const P t159 = t153 + t157;
        const P t160 = shuffled<0, 2>(t19, t20);
        const P t161 = t159 + t160;
        io.pair(15, t161);
        const P t162 = c[0] * t153;
        const P t163 = c[1] * t157;
        const P t164 = t162 - t163;
        const P t165 = t164 + t160;
        const P t166 = c[2] * t154;
        const P t167 = c[3] * t158;
        const P t168 = t166 - t167;
        const P t169 = shuffled<1, 0>(t168);
        const P t170 = flipped<0, 1>(t169);
        const P t171 = t165 + t170;
        io.pair(9, negated<0, 1>(t171));
        const P t172 = t165 - t170;
        io.pair(1, negated<0, 1>(t172));
        const P t173 = c[1] * t153;
        const P t174 = t160 - t173;
        const P t175 = c[0] * t157;
        const P t176 = t174 + t175;
        const P t177 = c[3] * t154;
        const P t178 = c[2] * t158;
        const P t179 = t177 + t178;
        const P t180 = shuffled<1, 0>(t179);
        const P t181 = flipped<0, 1>(t180);
        const P t182 = t176 + t181;
        io.pair(7, t182);
        const P t183 = t176 - t181;
        io.pair(17, negated<0, 1>(t183));
        const P t184 = shuffled<1, 3>(t12, t13);
        const P t185 = joined(t52, t53);
        // real block of 5, multiplier 3
        const P t186 = t184 + t185;
        const P t187 = t184 - t185;
        const P t188 = shuffled<1, 3>(t34, t35);
        const P t189 = shuffled<0, 2>(t34, t35);
        const P t190 = t188 + t189;
        const P t191 = t188 - t189;
        const P t192 = t186 + t190;
        const P t193 = shuffled<0, 2>(t12, t13);
        const P t194 = t192 + t193;
        const V t195 = part<0>(t194);
        io.re(0, t195);
        const V t196 = part<1>(t194);
        io.re(20, t196);
        const P t197 = c[1] * t186;
        const P t198 = t193 - t197;
        const P t199 = c[0] * t190;
        const P t200 = t198 + t199;
        const P t201 = c[3] * t187;
        const P t202 = c[2] * t191;
        const P t203 = t201 + t202;
        const P t204 = shuffled<0, 2>(t200, t203);
        io.pair(8, t204);
        const P t205 = shuffled<1, 3>(t200, t203);
        io.pair(12, negated<0, 1>(t205));
        const P t206 = c[0] * t186;
        const P t207 = c[1] * t190;
        const P t208 = t206 - t207;
        const P t209 = t208 + t193;
        const P t210 = c[3] * t191;
        const P t211 = c[2] * t187;
        const P t212 = t210 - t211;
        const P t213 = shuffled<1, 3>(t209, t212);
        io.pair(4, negated<0, 1>(t213));
        const P t214 = shuffled<0, 2>(t209, t212);
        io.pair(16, t214);
    }
};

}  // namespace zulg
