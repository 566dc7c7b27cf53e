// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 21.
// Complex DFT of 21 points, prime-factor, order 3, 7; one complex number to a register.
// 66 sums, 66 differences, 68 products of registers, which do the 442 steps of the graph, those with
// `scale` included; 16 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<21> {
    static constexpr int steps = 442;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x7 = io.pair(7);
        const P x14 = io.pair(14);
        // complex block of 3
        const P t0 = x7 + x14;
        const P t1 = x7 - x14;
        const P x0 = io.pair(0);
        const P t2 = t0 + x0;
        const P t3 = c[6] * t0;
        const P t4 = x0 - t3;
        const P t5 = P(-c[7], c[7]) * t1;
        const P t6 = shuffled<1, 0>(t5);
        const P t7 = t4 + t6;
        const P t8 = t4 - t6;
        const P x10 = io.pair(10);
        const P x17 = io.pair(17);
        // complex block of 3
        const P t9 = x10 + x17;
        const P t10 = x10 - x17;
        const P x3 = io.pair(3);
        const P t11 = t9 + x3;
        const P t12 = c[6] * t9;
        const P t13 = x3 - t12;
        const P t14 = P(-c[7], c[7]) * t10;
        const P t15 = shuffled<1, 0>(t14);
        const P t16 = t13 + t15;
        const P t17 = t13 - t15;
        const P x13 = io.pair(13);
        const P x20 = io.pair(20);
        // complex block of 3
        const P t18 = x13 + x20;
        const P t19 = x13 - x20;
        const P x6 = io.pair(6);
        const P t20 = t18 + x6;
        const P t21 = c[6] * t18;
        const P t22 = x6 - t21;
        const P t23 = P(-c[7], c[7]) * t19;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P x16 = io.pair(16);
        const P x2 = io.pair(2);
        // complex block of 3
        const P t27 = x16 + x2;
        const P t28 = x16 - x2;
        const P x9 = io.pair(9);
        const P t29 = t27 + x9;
        const P t30 = c[6] * t27;
        const P t31 = x9 - t30;
        const P t32 = P(-c[7], c[7]) * t28;
        const P t33 = shuffled<1, 0>(t32);
        const P t34 = t31 + t33;
        const P t35 = t31 - t33;
        const P x19 = io.pair(19);
        const P x5 = io.pair(5);
        // complex block of 3
        const P t36 = x19 + x5;
        const P t37 = x19 - x5;
        const P x12 = io.pair(12);
        const P t38 = t36 + x12;
        const P t39 = c[6] * t36;
        const P t40 = x12 - t39;
        const P t41 = P(-c[7], c[7]) * t37;
        const P t42 = shuffled<1, 0>(t41);
        const P t43 = t40 + t42;
        const P t44 = t40 - t42;
        const P x1 = io.pair(1);
        const P x8 = io.pair(8);
        // complex block of 3
        const P t45 = x1 + x8;
        const P t46 = x1 - x8;
        const P x15 = io.pair(15);
        const P t47 = t45 + x15;
        const P t48 = c[6] * t45;
        const P t49 = x15 - t48;
        const P t50 = P(-c[7], c[7]) * t46;
        const P t51 = shuffled<1, 0>(t50);
        const P t52 = t49 + t51;
        const P t53 = t49 - t51;
        const P x4 = io.pair(4);
        const P x11 = io.pair(11);
        // complex block of 3
        const P t54 = x4 + x11;
        const P t55 = x4 - x11;
        const P x18 = io.pair(18);
        const P t56 = t54 + x18;
        const P t57 = c[6] * t54;
        const P t58 = x18 - t57;
        const P t59 = P(-c[7], c[7]) * t55;
        const P t60 = shuffled<1, 0>(t59);
        const P t61 = t58 + t60;
        const P t62 = t58 - t60;
        // complex block of 7, multiplier 3
        const P t63 = t11 + t56;
        const P t64 = t11 - t56;
        const P t65 = t47 + t20;
        const P t66 = t47 - t20;
        const P t67 = t38 + t29;
        const P t68 = t38 - t29;
        const P t69 = t63 + t65;
        const P t70 = t69 + t67;
        const P t71 = t70 + t2;
        io.pair(0, t71);
        const P t72 = c[0] * t63;
        const P t73 = c[1] * t65;
        const P t74 = t72 - t73;
        const P t75 = c[2] * t67;
        const P t76 = t74 - t75;
        const P t77 = t76 + t2;
        const P t78 = c[3] * t64;
        const P t79 = c[4] * t66;
        const P t80 = t78 - t79;
        const P t81 = c[5] * t68;
        const P t82 = t80 - t81;
        const P t83 = shuffled<1, 0>(t82);
        const P t84 = flipped<0, 1>(t83);
        const P t85 = t77 + t84;
        io.pair(15, t85);
        const P t86 = t77 - t84;
        io.pair(6, t86);
        const P t87 = c[1] * t63;
        const P t88 = t2 - t87;
        const P t89 = c[2] * t65;
        const P t90 = t88 - t89;
        const P t91 = c[0] * t67;
        const P t92 = t90 + t91;
        const P t93 = c[4] * t64;
        const P t94 = c[5] * t66;
        const P t95 = t93 + t94;
        const P t96 = c[3] * t68;
        const P t97 = t95 + t96;
        const P t98 = shuffled<1, 0>(t97);
        const P t99 = flipped<0, 1>(t98);
        const P t100 = t92 + t99;
        io.pair(9, t100);
        const P t101 = t92 - t99;
        io.pair(12, t101);
        const P t102 = c[2] * t63;
        const P t103 = t2 - t102;
        const P t104 = c[0] * t65;
        const P t105 = t103 + t104;
        const P t106 = c[1] * t67;
        const P t107 = t105 - t106;
        const P t108 = c[5] * t64;
        const P t109 = c[3] * t66;
        const P t110 = t108 + t109;
        const P t111 = c[4] * t68;
        const P t112 = t110 - t111;
        const P t113 = shuffled<1, 0>(t112);
        const P t114 = flipped<0, 1>(t113);
        const P t115 = t107 + t114;
        io.pair(3, t115);
        const P t116 = t107 - t114;
        io.pair(18, t116);
        // complex block of 7, multiplier 3
        const P t117 = t16 + t61;
        const P t118 = t16 - t61;
        const P t119 = t52 + t25;
        const P t120 = t52 - t25;
        const P t121 = t43 + t34;
        const P t122 = t43 - t34;
        const P t123 = t117 + t119;
        const P t124 = t123 + t121;
        const P t125 = t124 + t7;
        io.pair(7, t125);
        const P t126 = c[0] * t117;
        const P t127 = c[1] * t119;
        const P t128 = t126 - t127;
        const P t129 = c[2] * t121;
        const P t130 = t128 - t129;
        const P t131 = t130 + t7;
        const P t132 = c[3] * t118;
        const P t133 = c[4] * t120;
        const P t134 = t132 - t133;
        const P t135 = c[5] * t122;
        const P t136 = t134 - t135;
        const P t137 = shuffled<1, 0>(t136);
        const P t138 = flipped<0, 1>(t137);
        const P t139 = t131 + t138;
        io.pair(1, t139);
        const P t140 = t131 - t138;
        io.pair(13, t140);
        const P t141 = c[1] * t117;
        const P t142 = t7 - t141;
        const P t143 = c[2] * t119;
        const P t144 = t142 - t143;
        const P t145 = c[0] * t121;
        const P t146 = t144 + t145;
        const P t147 = c[4] * t118;
        const P t148 = c[5] * t120;
        const P t149 = t147 + t148;
        const P t150 = c[3] * t122;
        const P t151 = t149 + t150;
        const P t152 = shuffled<1, 0>(t151);
        const P t153 = flipped<0, 1>(t152);
        const P t154 = t146 + t153;
        io.pair(16, t154);
        const P t155 = t146 - t153;
        io.pair(19, t155);
        const P t156 = c[2] * t117;
        const P t157 = t7 - t156;
        const P t158 = c[0] * t119;
        const P t159 = t157 + t158;
        const P t160 = c[1] * t121;
        const P t161 = t159 - t160;
        const P t162 = c[5] * t118;
        const P t163 = c[3] * t120;
        const P t164 = t162 + t163;
        const P t165 = c[4] * t122;
        const P t166 = t164 - t165;
        const P t167 = shuffled<1, 0>(t166);
        const P t168 = flipped<0, 1>(t167);
        const P t169 = t161 + t168;
        io.pair(10, t169);
        const P t170 = t161 - t168;
        io.pair(4, t170);
        // complex block of 7, multiplier 3
        const P t171 = t17 + t62;
        const P t172 = t17 - t62;
        const P t173 = t53 + t26;
        const P t174 = t53 - t26;
        const P t175 = t44 + t35;
        const P t176 = t44 - t35;
        const P t177 = t171 + t173;
        const P t178 = t177 + t175;
        const P t179 = t178 + t8;
        io.pair(14, t179);
        const P t180 = c[0] * t171;
        const P t181 = c[1] * t173;
        const P t182 = t180 - t181;
        const P t183 = c[2] * t175;
        const P t184 = t182 - t183;
        const P t185 = t184 + t8;
        const P t186 = c[3] * t172;
        const P t187 = c[4] * t174;
        const P t188 = t186 - t187;
        const P t189 = c[5] * t176;
        const P t190 = t188 - t189;
        const P t191 = shuffled<1, 0>(t190);
        const P t192 = flipped<0, 1>(t191);
        const P t193 = t185 + t192;
        io.pair(8, t193);
        const P t194 = t185 - t192;
        io.pair(20, t194);
        const P t195 = c[1] * t171;
        const P t196 = t8 - t195;
        const P t197 = c[2] * t173;
        const P t198 = t196 - t197;
        const P t199 = c[0] * t175;
        const P t200 = t198 + t199;
        const P t201 = c[4] * t172;
        const P t202 = c[5] * t174;
        const P t203 = t201 + t202;
        const P t204 = c[3] * t176;
        const P t205 = t203 + t204;
        const P t206 = shuffled<1, 0>(t205);
        const P t207 = flipped<0, 1>(t206);
        const P t208 = t200 + t207;
        io.pair(2, t208);
        const P t209 = t200 - t207;
        io.pair(5, t209);
        const P t210 = c[2] * t171;
        const P t211 = t8 - t210;
        const P t212 = c[0] * t173;
        const P t213 = t211 + t212;
        const P t214 = c[1] * t175;
        const P t215 = t213 - t214;
        const P t216 = c[5] * t172;
        const P t217 = c[3] * t174;
        const P t218 = t216 + t217;
        const P t219 = c[4] * t176;
        const P t220 = t218 - t219;
        const P t221 = shuffled<1, 0>(t220);
        const P t222 = flipped<0, 1>(t221);
        const P t223 = t215 + t222;
        io.pair(17, t223);
        const P t224 = t215 - t222;
        io.pair(11, t224);
    }
};

}  // namespace zulg
