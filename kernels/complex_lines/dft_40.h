// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 40.
// Complex DFT of 40 points, prime-factor, order 5, 8; two lines of a stage to a register.
// 71 sums, 58 differences, 37 products of registers, which do the 744 steps of the graph, those with
// `scale` included; 65 shuffles, 25 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<40> {
    static constexpr int steps = 744;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x24_9 = io.pairs(24, 9);
        const Q x16_1 = io.pairs(16, 1);
        // complex block of 5, multiplier 3
        const Q t0 = x24_9 + x16_1;
        const Q t1 = x24_9 - x16_1;
        const Q x8_33 = io.pairs(8, 33);
        const Q x32_17 = io.pairs(32, 17);
        const Q t2 = x8_33 + x32_17;
        const Q t3 = x8_33 - x32_17;
        const Q t4 = t2 + t0;
        const Q x0_25 = io.pairs(0, 25);
        const Q t5 = t4 + x0_25;
        const Q t6 = c[0] * t2;
        const Q t7 = c[1] * t0;
        const Q t8 = t6 - t7;
        const Q t9 = t8 + x0_25;
        const Q t10 = c[2] * t3;
        const Q t11 = c[3] * t1;
        const Q t12 = t10 - t11;
        const Q t13 = shuffled<1, 0, 3, 2>(t12);
        const Q t14 = flipped<0, 1, 0, 1>(t13);
        const Q t15 = t9 + t14;
        const Q t16 = t9 - t14;
        const Q t17 = c[1] * t2;
        const Q t18 = x0_25 - t17;
        const Q t19 = c[0] * t0;
        const Q t20 = t18 + t19;
        const Q t21 = c[3] * t3;
        const Q t22 = c[2] * t1;
        const Q t23 = t21 + t22;
        const Q t24 = shuffled<1, 0, 3, 2>(t23);
        const Q t25 = flipped<0, 1, 0, 1>(t24);
        const Q t26 = t20 + t25;
        const Q t27 = t20 - t25;
        const Q x18_3 = io.pairs(18, 3);
        const Q x2_27 = io.pairs(2, 27);
        // complex block of 5, multiplier 3
        const Q t28 = x18_3 + x2_27;
        const Q t29 = x18_3 - x2_27;
        const Q x34_19 = io.pairs(34, 19);
        const Q x26_11 = io.pairs(26, 11);
        const Q t30 = x34_19 + x26_11;
        const Q t31 = x34_19 - x26_11;
        const Q t32 = t28 + t30;
        const Q x10_35 = io.pairs(10, 35);
        const Q t33 = t32 + x10_35;
        const Q t34 = c[0] * t28;
        const Q t35 = c[1] * t30;
        const Q t36 = t34 - t35;
        const Q t37 = t36 + x10_35;
        const Q t38 = c[2] * t29;
        const Q t39 = c[3] * t31;
        const Q t40 = t38 - t39;
        const Q t41 = shuffled<1, 0, 3, 2>(t40);
        const Q t42 = flipped<0, 1, 0, 1>(t41);
        const Q t43 = t37 + t42;
        const Q t44 = t37 - t42;
        const Q t45 = c[1] * t28;
        const Q t46 = x10_35 - t45;
        const Q t47 = c[0] * t30;
        const Q t48 = t46 + t47;
        const Q t49 = c[3] * t29;
        const Q t50 = c[2] * t31;
        const Q t51 = t49 + t50;
        const Q t52 = shuffled<1, 0, 3, 2>(t51);
        const Q t53 = flipped<0, 1, 0, 1>(t52);
        const Q t54 = t48 + t53;
        const Q t55 = t48 - t53;
        const Q x4_29 = io.pairs(4, 29);
        const Q x36_21 = io.pairs(36, 21);
        // complex block of 5, multiplier 3
        const Q t56 = x4_29 + x36_21;
        const Q t57 = x4_29 - x36_21;
        const Q x28_13 = io.pairs(28, 13);
        const Q x12_37 = io.pairs(12, 37);
        const Q t58 = x28_13 + x12_37;
        const Q t59 = x28_13 - x12_37;
        const Q t60 = t58 + t56;
        const Q x20_5 = io.pairs(20, 5);
        const Q t61 = t60 + x20_5;
        const Q t62 = c[0] * t58;
        const Q t63 = c[1] * t56;
        const Q t64 = t62 - t63;
        const Q t65 = t64 + x20_5;
        const Q t66 = c[2] * t59;
        const Q t67 = c[3] * t57;
        const Q t68 = t66 - t67;
        const Q t69 = shuffled<1, 0, 3, 2>(t68);
        const Q t70 = flipped<0, 1, 0, 1>(t69);
        const Q t71 = t65 + t70;
        const Q t72 = t65 - t70;
        const Q t73 = c[1] * t58;
        const Q t74 = x20_5 - t73;
        const Q t75 = c[0] * t56;
        const Q t76 = t74 + t75;
        const Q t77 = c[3] * t59;
        const Q t78 = c[2] * t57;
        const Q t79 = t77 + t78;
        const Q t80 = shuffled<1, 0, 3, 2>(t79);
        const Q t81 = flipped<0, 1, 0, 1>(t80);
        const Q t82 = t76 + t81;
        const Q t83 = t76 - t81;
        const Q x14_39 = io.pairs(14, 39);
        const Q x6_31 = io.pairs(6, 31);
        // complex block of 5, multiplier 3
        const Q t84 = x14_39 + x6_31;
        const Q t85 = x14_39 - x6_31;
        const Q x38_23 = io.pairs(38, 23);
        const Q x22_7 = io.pairs(22, 7);
        const Q t86 = x38_23 + x22_7;
        const Q t87 = x38_23 - x22_7;
        const Q t88 = t86 + t84;
        const Q x30_15 = io.pairs(30, 15);
        const Q t89 = t88 + x30_15;
        const Q t90 = c[0] * t86;
        const Q t91 = c[1] * t84;
        const Q t92 = t90 - t91;
        const Q t93 = t92 + x30_15;
        const Q t94 = c[2] * t87;
        const Q t95 = c[3] * t85;
        const Q t96 = t94 - t95;
        const Q t97 = shuffled<1, 0, 3, 2>(t96);
        const Q t98 = flipped<0, 1, 0, 1>(t97);
        const Q t99 = t93 + t98;
        const Q t100 = t93 - t98;
        const Q t101 = c[1] * t86;
        const Q t102 = x30_15 - t101;
        const Q t103 = c[0] * t84;
        const Q t104 = t102 + t103;
        const Q t105 = c[3] * t87;
        const Q t106 = c[2] * t85;
        const Q t107 = t105 + t106;
        const Q t108 = shuffled<1, 0, 3, 2>(t107);
        const Q t109 = flipped<0, 1, 0, 1>(t108);
        const Q t110 = t104 + t109;
        const Q t111 = t104 - t109;
        const Q t112 = shuffled<0, 1, 4, 5>(t5, t15);
        const Q t113 = shuffled<0, 1, 4, 5>(t61, t71);
        // complex block of 2
        const Q t114 = t112 + t113;
        const Q t115 = shuffled<0, 1, 4, 5>(t33, t43);
        const Q t116 = shuffled<0, 1, 4, 5>(t89, t99);
        // complex block of 2
        const Q t117 = t115 + t116;
        // complex block of 2
        const Q t118 = t114 + t117;
        const Q t119 = t114 - t117;
        const Q t120 = shuffled<2, 3, 6, 7>(t61, t71);
        const Q t121 = shuffled<2, 3, 6, 7>(t5, t15);
        // complex block of 2
        const Q t122 = t120 + t121;
        const Q t123 = shuffled<2, 3, 6, 7>(t89, t99);
        const Q t124 = shuffled<2, 3, 6, 7>(t33, t43);
        // complex block of 2
        const Q t125 = t123 + t124;
        // complex block of 2
        const Q t126 = t122 + t125;
        const Q t127 = t122 - t125;
        // complex block of 2
        const Q t128 = t118 + t126;
        const Q t129 = t118 - t126;
        const Q t130 = shuffled<1, 0, 3, 2>(t127);
        const Q t131 = flipped<0, 1, 0, 1>(t130);
        // complex block of 2
        const Q t132 = t119 + t131;
        const Q t133 = t119 - t131;
        // complex block of 2
        const Q t134 = t112 - t113;
        // complex block of 2
        const Q t135 = t115 - t116;
        const Q t136 = shuffled<1, 0, 3, 2>(t135);
        const Q t137 = flipped<0, 1, 0, 1>(t136);
        // complex block of 2
        const Q t138 = t134 + t137;
        const Q t139 = t134 - t137;
        // complex block of 2
        const Q t140 = t120 - t121;
        // complex block of 8, multiplier 5
        const Q t141 = c[4] * t140;
        const Q t142 = shuffled<1, 0, 3, 2>(t141);
        const Q t143 = flipped<0, 1, 0, 1>(t142);
        const Q t144 = t141 + t143;
        // complex block of 2
        const Q t145 = t123 - t124;
        // complex block of 8, multiplier 5
        const Q t146 = c[4] * t145;
        const Q t147 = shuffled<1, 0, 3, 2>(t146);
        const Q t148 = flipped<0, 1, 0, 1>(t147);
        const Q t149 = t146 + t148;
        const Q t150 = shuffled<1, 0, 3, 2>(t149);
        const Q t151 = flipped<0, 1, 0, 1>(t144);
        // complex block of 2
        const Q t152 = t150 + t151;
        const Q t153 = flipped<1, 0, 1, 0>(t152);
        // complex block of 2
        const Q t154 = t138 + t153;
        const Q t155 = shuffled<0, 1, 6, 7>(t154, t133);
        io.pairs(5, 6, t155);
        const Q t156 = shuffled<0, 1, 6, 7>(t129, t154);
        io.pairs(20, 21, t156);
        const Q t157 = t138 - t153;
        const Q t158 = shuffled<0, 1, 6, 7>(t128, t157);
        io.pairs(0, 1, t158);
        const Q t159 = shuffled<0, 1, 6, 7>(t157, t132);
        io.pairs(25, 26, t159);
        // complex block of 2
        const Q t160 = t150 - t151;
        const Q t161 = shuffled<1, 0, 3, 2>(t160);
        // complex block of 2
        const Q t162 = t139 - t161;
        const Q t163 = shuffled<0, 1, 6, 7>(t162, t128);
        io.pairs(15, 16, t163);
        const Q t164 = shuffled<0, 1, 6, 7>(t133, t162);
        io.pairs(30, 31, t164);
        const Q t165 = t139 + t161;
        const Q t166 = shuffled<0, 1, 6, 7>(t132, t165);
        io.pairs(10, 11, t166);
        const Q t167 = shuffled<0, 1, 6, 7>(t165, t129);
        io.pairs(35, 36, t167);
        const Q t168 = shuffled<0, 1, 4, 5>(t27, t16);
        const Q t169 = shuffled<0, 1, 4, 5>(t83, t72);
        // complex block of 2
        const Q t170 = t168 + t169;
        const Q t171 = shuffled<0, 1, 4, 5>(t55, t44);
        const Q t172 = shuffled<0, 1, 4, 5>(t111, t100);
        // complex block of 2
        const Q t173 = t171 + t172;
        // complex block of 2
        const Q t174 = t170 + t173;
        const Q t175 = t170 - t173;
        const Q t176 = shuffled<2, 3, 6, 7>(t83, t72);
        const Q t177 = shuffled<2, 3, 6, 7>(t27, t16);
        // complex block of 2
        const Q t178 = t176 + t177;
        const Q t179 = shuffled<2, 3, 6, 7>(t111, t100);
        const Q t180 = shuffled<2, 3, 6, 7>(t55, t44);
        // complex block of 2
        const Q t181 = t179 + t180;
        // complex block of 2
        const Q t182 = t178 + t181;
        const Q t183 = t178 - t181;
        // complex block of 2
        const Q t184 = t174 + t182;
        const Q t185 = t174 - t182;
        const Q t186 = shuffled<1, 0, 3, 2>(t183);
        const Q t187 = flipped<0, 1, 0, 1>(t186);
        // complex block of 2
        const Q t188 = t175 + t187;
        const Q t189 = t175 - t187;
        // complex block of 2
        const Q t190 = t168 - t169;
        // complex block of 2
        const Q t191 = t171 - t172;
        const Q t192 = shuffled<1, 0, 3, 2>(t191);
        const Q t193 = flipped<0, 1, 0, 1>(t192);
        // complex block of 2
        const Q t194 = t190 + t193;
        const Q t195 = t190 - t193;
        // complex block of 2
        const Q t196 = t176 - t177;
        // complex block of 8, multiplier 5
        const Q t197 = c[4] * t196;
        const Q t198 = shuffled<1, 0, 3, 2>(t197);
        const Q t199 = flipped<0, 1, 0, 1>(t198);
        const Q t200 = t197 + t199;
        // complex block of 2
        const Q t201 = t179 - t180;
        // complex block of 8, multiplier 5
        const Q t202 = c[4] * t201;
        const Q t203 = shuffled<1, 0, 3, 2>(t202);
        const Q t204 = flipped<0, 1, 0, 1>(t203);
        const Q t205 = t202 + t204;
        const Q t206 = shuffled<1, 0, 3, 2>(t205);
        const Q t207 = flipped<0, 1, 0, 1>(t200);
        // complex block of 2
        const Q t208 = t206 + t207;
        const Q t209 = flipped<1, 0, 1, 0>(t208);
        // complex block of 2
        const Q t210 = t194 + t209;
        const Q t211 = shuffled<0, 1, 6, 7>(t210, t189);
        io.pairs(13, 14, t211);
        const Q t212 = shuffled<0, 1, 6, 7>(t185, t210);
        io.pairs(28, 29, t212);
        const Q t213 = t194 - t209;
        const Q t214 = shuffled<0, 1, 6, 7>(t184, t213);
        io.pairs(8, 9, t214);
        const Q t215 = shuffled<0, 1, 6, 7>(t213, t188);
        io.pairs(33, 34, t215);
        // complex block of 2
        const Q t216 = t206 - t207;
        const Q t217 = shuffled<1, 0, 3, 2>(t216);
        // complex block of 2
        const Q t218 = t195 - t217;
        const Q t219 = shuffled<0, 1, 6, 7>(t218, t184);
        io.pairs(23, 24, t219);
        const Q t220 = shuffled<0, 1, 6, 7>(t189, t218);
        io.pairs(38, 39, t220);
        const Q t221 = t195 + t217;
        const Q t222 = shuffled<0, 1, 6, 7>(t221, t185);
        io.pairs(3, 4, t222);
        const Q t223 = shuffled<0, 1, 6, 7>(t188, t221);
        io.pairs(18, 19, t223);
        // complex block of 2
        const Q t224 = t82 + t26;
        const Q t225 = shuffled<0, 1, 6, 7>(t26, t82);
        const Q t226 = shuffled<0, 1, 6, 7>(t82, t26);
        const Q t227 = t225 - t226;
        const Q t228 = shuffled<0, 1, 6, 7>(t54, t110);
        const Q t229 = shuffled<0, 1, 6, 7>(t110, t54);
        // complex block of 2
        const Q t230 = t228 - t229;
        const Q t231 = t228 + t229;
        const Q t232 = shuffled<2, 3, 6, 7>(t230, t227);
        // complex block of 8, multiplier 5
        const Q t233 = c[4] * t232;
        const Q t234 = shuffled<1, 0, 3, 2>(t233);
        const Q t235 = flipped<0, 1, 0, 1>(t234);
        const Q t236 = t233 + t235;
        const Q t237 = shuffled<0, 1, 4, 5>(t224, t227);
        const Q t238 = shuffled<1, 0, 3, 2>(t230);
        const Q t239 = shuffled<0, 1, 4, 5>(t231, t238);
        const Q t240 = flipped<0, 0, 0, 1>(t239);
        // complex block of 2
        const Q t241 = t237 + t240;
        const Q t242 = t237 - t240;
        const Q t243 = shuffled<1, 0, 3, 2>(t236);
        const Q t244 = shuffled<2, 3, 4, 5>(t224, t243);
        const Q t245 = shuffled<2, 3, 6, 7>(t231, t236);
        const Q t246 = flipped<0, 0, 0, 1>(t245);
        // complex block of 2
        const Q t247 = t244 + t246;
        const Q t248 = flipped<0, 0, 1, 0>(t247);
        // complex block of 2
        const Q t249 = t241 + t248;
        io.pairs(32, 37, t249);
        const Q t250 = t241 - t248;
        io.pairs(12, 17, t250);
        // complex block of 2
        const Q t251 = t244 - t246;
        const Q t252 = shuffled<1, 0, 3, 2>(t251);
        const Q t253 = flipped<1, 0, 0, 0>(t252);
        // complex block of 2
        const Q t254 = t242 - t253;
        io.pairs(2, 7, t254);
        const Q t255 = t242 + t253;
        io.pairs(22, 27, t255);
    }
};

}  // namespace zulg
