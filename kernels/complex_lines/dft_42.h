// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 42.
// Complex DFT of 42 points, prime-factor, order 7, 3, 2; two lines of a stage to a register.
// 77 sums, 77 differences, 68 products of registers, which do the 968 steps of the graph, those with
// `scale` included; 37 shuffles, 9 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexLines<42> {
    static constexpr int steps = 968;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
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
        using Q = typename Ports::Lines;
        const ConstantsOf<Ports, ComplexLines> c{};
        const Q x6_27 = io.pairs(6, 27);
        const Q x36_15 = io.pairs(36, 15);
        // complex block of 7, multiplier 6
        const Q t0 = x6_27 + x36_15;
        const Q t1 = x6_27 - x36_15;
        const Q x30_9 = io.pairs(30, 9);
        const Q x12_33 = io.pairs(12, 33);
        const Q t2 = x30_9 + x12_33;
        const Q t3 = x30_9 - x12_33;
        const Q x24_3 = io.pairs(24, 3);
        const Q x18_39 = io.pairs(18, 39);
        const Q t4 = x24_3 + x18_39;
        const Q t5 = x24_3 - x18_39;
        const Q t6 = t0 + t2;
        const Q t7 = t6 + t4;
        const Q x0_21 = io.pairs(0, 21);
        const Q t8 = t7 + x0_21;
        const Q t9 = c[0] * t0;
        const Q t10 = c[1] * t2;
        const Q t11 = t9 - t10;
        const Q t12 = c[2] * t4;
        const Q t13 = t11 - t12;
        const Q t14 = t13 + x0_21;
        const Q t15 = c[3] * t1;
        const Q t16 = c[4] * t3;
        const Q t17 = t15 - t16;
        const Q t18 = c[5] * t5;
        const Q t19 = t17 - t18;
        const Q t20 = shuffled<1, 0, 3, 2>(t19);
        const Q t21 = flipped<0, 1, 0, 1>(t20);
        const Q t22 = t14 + t21;
        const Q t23 = t14 - t21;
        const Q t24 = c[1] * t0;
        const Q t25 = x0_21 - t24;
        const Q t26 = c[2] * t2;
        const Q t27 = t25 - t26;
        const Q t28 = c[0] * t4;
        const Q t29 = t27 + t28;
        const Q t30 = c[4] * t1;
        const Q t31 = c[5] * t3;
        const Q t32 = t30 + t31;
        const Q t33 = c[3] * t5;
        const Q t34 = t32 + t33;
        const Q t35 = shuffled<1, 0, 3, 2>(t34);
        const Q t36 = flipped<0, 1, 0, 1>(t35);
        const Q t37 = t29 + t36;
        const Q t38 = t29 - t36;
        const Q t39 = c[2] * t0;
        const Q t40 = x0_21 - t39;
        const Q t41 = c[0] * t2;
        const Q t42 = t40 + t41;
        const Q t43 = c[1] * t4;
        const Q t44 = t42 - t43;
        const Q t45 = c[5] * t1;
        const Q t46 = c[3] * t3;
        const Q t47 = t45 + t46;
        const Q t48 = c[4] * t5;
        const Q t49 = t47 - t48;
        const Q t50 = shuffled<1, 0, 3, 2>(t49);
        const Q t51 = flipped<0, 1, 0, 1>(t50);
        const Q t52 = t44 + t51;
        const Q t53 = t44 - t51;
        const Q x20_41 = io.pairs(20, 41);
        const Q x8_29 = io.pairs(8, 29);
        // complex block of 7, multiplier 6
        const Q t54 = x20_41 + x8_29;
        const Q t55 = x20_41 - x8_29;
        const Q x2_23 = io.pairs(2, 23);
        const Q x26_5 = io.pairs(26, 5);
        const Q t56 = x2_23 + x26_5;
        const Q t57 = x2_23 - x26_5;
        const Q x38_17 = io.pairs(38, 17);
        const Q x32_11 = io.pairs(32, 11);
        const Q t58 = x38_17 + x32_11;
        const Q t59 = x38_17 - x32_11;
        const Q t60 = t54 + t56;
        const Q t61 = t60 + t58;
        const Q x14_35 = io.pairs(14, 35);
        const Q t62 = t61 + x14_35;
        const Q t63 = c[0] * t54;
        const Q t64 = c[1] * t56;
        const Q t65 = t63 - t64;
        const Q t66 = c[2] * t58;
        const Q t67 = t65 - t66;
        const Q t68 = t67 + x14_35;
        const Q t69 = c[3] * t55;
        const Q t70 = c[4] * t57;
        const Q t71 = t69 - t70;
        const Q t72 = c[5] * t59;
        const Q t73 = t71 - t72;
        const Q t74 = shuffled<1, 0, 3, 2>(t73);
        const Q t75 = flipped<0, 1, 0, 1>(t74);
        const Q t76 = t68 + t75;
        const Q t77 = t68 - t75;
        const Q t78 = c[1] * t54;
        const Q t79 = x14_35 - t78;
        const Q t80 = c[2] * t56;
        const Q t81 = t79 - t80;
        const Q t82 = c[0] * t58;
        const Q t83 = t81 + t82;
        const Q t84 = c[4] * t55;
        const Q t85 = c[5] * t57;
        const Q t86 = t84 + t85;
        const Q t87 = c[3] * t59;
        const Q t88 = t86 + t87;
        const Q t89 = shuffled<1, 0, 3, 2>(t88);
        const Q t90 = flipped<0, 1, 0, 1>(t89);
        const Q t91 = t83 + t90;
        const Q t92 = t83 - t90;
        const Q t93 = c[2] * t54;
        const Q t94 = x14_35 - t93;
        const Q t95 = c[0] * t56;
        const Q t96 = t94 + t95;
        const Q t97 = c[1] * t58;
        const Q t98 = t96 - t97;
        const Q t99 = c[5] * t55;
        const Q t100 = c[3] * t57;
        const Q t101 = t99 + t100;
        const Q t102 = c[4] * t59;
        const Q t103 = t101 - t102;
        const Q t104 = shuffled<1, 0, 3, 2>(t103);
        const Q t105 = flipped<0, 1, 0, 1>(t104);
        const Q t106 = t98 + t105;
        const Q t107 = t98 - t105;
        const Q x34_13 = io.pairs(34, 13);
        const Q x22_1 = io.pairs(22, 1);
        // complex block of 7, multiplier 6
        const Q t108 = x34_13 + x22_1;
        const Q t109 = x34_13 - x22_1;
        const Q x16_37 = io.pairs(16, 37);
        const Q x40_19 = io.pairs(40, 19);
        const Q t110 = x16_37 + x40_19;
        const Q t111 = x16_37 - x40_19;
        const Q x10_31 = io.pairs(10, 31);
        const Q x4_25 = io.pairs(4, 25);
        const Q t112 = x10_31 + x4_25;
        const Q t113 = x10_31 - x4_25;
        const Q t114 = t108 + t110;
        const Q t115 = t114 + t112;
        const Q x28_7 = io.pairs(28, 7);
        const Q t116 = t115 + x28_7;
        const Q t117 = c[0] * t108;
        const Q t118 = c[1] * t110;
        const Q t119 = t117 - t118;
        const Q t120 = c[2] * t112;
        const Q t121 = t119 - t120;
        const Q t122 = t121 + x28_7;
        const Q t123 = c[3] * t109;
        const Q t124 = c[4] * t111;
        const Q t125 = t123 - t124;
        const Q t126 = c[5] * t113;
        const Q t127 = t125 - t126;
        const Q t128 = shuffled<1, 0, 3, 2>(t127);
        const Q t129 = flipped<0, 1, 0, 1>(t128);
        const Q t130 = t122 + t129;
        const Q t131 = t122 - t129;
        const Q t132 = c[1] * t108;
        const Q t133 = x28_7 - t132;
        const Q t134 = c[2] * t110;
        const Q t135 = t133 - t134;
        const Q t136 = c[0] * t112;
        const Q t137 = t135 + t136;
        const Q t138 = c[4] * t109;
        const Q t139 = c[5] * t111;
        const Q t140 = t138 + t139;
        const Q t141 = c[3] * t113;
        const Q t142 = t140 + t141;
        const Q t143 = shuffled<1, 0, 3, 2>(t142);
        const Q t144 = flipped<0, 1, 0, 1>(t143);
        const Q t145 = t137 + t144;
        const Q t146 = t137 - t144;
        const Q t147 = c[2] * t108;
        const Q t148 = x28_7 - t147;
        const Q t149 = c[0] * t110;
        const Q t150 = t148 + t149;
        const Q t151 = c[1] * t112;
        const Q t152 = t150 - t151;
        const Q t153 = c[5] * t109;
        const Q t154 = c[3] * t111;
        const Q t155 = t153 + t154;
        const Q t156 = c[4] * t113;
        const Q t157 = t155 - t156;
        const Q t158 = shuffled<1, 0, 3, 2>(t157);
        const Q t159 = flipped<0, 1, 0, 1>(t158);
        const Q t160 = t152 + t159;
        const Q t161 = t152 - t159;
        // complex block of 3, multiplier 2
        const Q t162 = t62 + t116;
        const Q t163 = t62 - t116;
        const Q t164 = t162 + t8;
        const Q t165 = c[6] * t162;
        const Q t166 = t8 - t165;
        const Q t167 = Q(-c[7], c[7], -c[7], c[7]) * t163;
        const Q t168 = shuffled<1, 0, 3, 2>(t167);
        const Q t169 = t166 + t168;
        const Q t170 = t166 - t168;
        // complex block of 3, multiplier 2
        const Q t171 = t77 + t131;
        const Q t172 = t77 - t131;
        const Q t173 = t171 + t23;
        const Q t174 = c[6] * t171;
        const Q t175 = t23 - t174;
        const Q t176 = Q(-c[7], c[7], -c[7], c[7]) * t172;
        const Q t177 = shuffled<1, 0, 3, 2>(t176);
        const Q t178 = t175 + t177;
        const Q t179 = t175 - t177;
        // complex block of 3, multiplier 2
        const Q t180 = t92 + t146;
        const Q t181 = t92 - t146;
        const Q t182 = t180 + t38;
        const Q t183 = c[6] * t180;
        const Q t184 = t38 - t183;
        const Q t185 = Q(-c[7], c[7], -c[7], c[7]) * t181;
        const Q t186 = shuffled<1, 0, 3, 2>(t185);
        const Q t187 = t184 + t186;
        const Q t188 = t184 - t186;
        // complex block of 3, multiplier 2
        const Q t189 = t107 + t161;
        const Q t190 = t107 - t161;
        const Q t191 = t189 + t53;
        const Q t192 = c[6] * t189;
        const Q t193 = t53 - t192;
        const Q t194 = Q(-c[7], c[7], -c[7], c[7]) * t190;
        const Q t195 = shuffled<1, 0, 3, 2>(t194);
        const Q t196 = t193 + t195;
        const Q t197 = t193 - t195;
        // complex block of 3, multiplier 2
        const Q t198 = t106 + t160;
        const Q t199 = t106 - t160;
        const Q t200 = t198 + t52;
        const Q t201 = c[6] * t198;
        const Q t202 = t52 - t201;
        const Q t203 = Q(-c[7], c[7], -c[7], c[7]) * t199;
        const Q t204 = shuffled<1, 0, 3, 2>(t203);
        const Q t205 = t202 + t204;
        const Q t206 = t202 - t204;
        // complex block of 3, multiplier 2
        const Q t207 = t91 + t145;
        const Q t208 = t91 - t145;
        const Q t209 = t207 + t37;
        const Q t210 = c[6] * t207;
        const Q t211 = t37 - t210;
        const Q t212 = Q(-c[7], c[7], -c[7], c[7]) * t208;
        const Q t213 = shuffled<1, 0, 3, 2>(t212);
        const Q t214 = t211 + t213;
        const Q t215 = t211 - t213;
        // complex block of 3, multiplier 2
        const Q t216 = t76 + t130;
        const Q t217 = t76 - t130;
        const Q t218 = t216 + t22;
        const Q t219 = c[6] * t216;
        const Q t220 = t22 - t219;
        const Q t221 = Q(-c[7], c[7], -c[7], c[7]) * t217;
        const Q t222 = shuffled<1, 0, 3, 2>(t221);
        const Q t223 = t220 + t222;
        const Q t224 = t220 - t222;
        const Q t225 = shuffled<0, 1, 4, 5>(t164, t170);
        const Q t226 = shuffled<2, 3, 6, 7>(t164, t170);
        // complex block of 2
        const Q t227 = t225 + t226;
        io.pairs(0, 14, t227);
        const Q t228 = t225 - t226;
        io.pairs(21, 35, t228);
        const Q t229 = shuffled<0, 1, 4, 5>(t169, t173);
        const Q t230 = shuffled<2, 3, 6, 7>(t169, t173);
        // complex block of 2
        const Q t231 = t229 + t230;
        io.pairs(28, 6, t231);
        const Q t232 = t229 - t230;
        io.pairs(7, 27, t232);
        const Q t233 = shuffled<0, 1, 4, 5>(t179, t178);
        const Q t234 = shuffled<2, 3, 6, 7>(t179, t178);
        // complex block of 2
        const Q t235 = t233 + t234;
        io.pairs(20, 34, t235);
        const Q t236 = t233 - t234;
        io.pairs(41, 13, t236);
        const Q t237 = shuffled<0, 1, 4, 5>(t182, t188);
        const Q t238 = shuffled<2, 3, 6, 7>(t182, t188);
        // complex block of 2
        const Q t239 = t237 + t238;
        io.pairs(12, 26, t239);
        const Q t240 = t237 - t238;
        io.pairs(33, 5, t240);
        const Q t241 = shuffled<0, 1, 4, 5>(t187, t191);
        const Q t242 = shuffled<2, 3, 6, 7>(t187, t191);
        // complex block of 2
        const Q t243 = t241 + t242;
        io.pairs(40, 18, t243);
        const Q t244 = t241 - t242;
        io.pairs(19, 39, t244);
        const Q t245 = shuffled<0, 1, 4, 5>(t197, t196);
        const Q t246 = shuffled<2, 3, 6, 7>(t197, t196);
        // complex block of 2
        const Q t247 = t245 + t246;
        io.pairs(32, 4, t247);
        const Q t248 = t245 - t246;
        io.pairs(11, 25, t248);
        const Q t249 = shuffled<0, 1, 4, 5>(t200, t206);
        const Q t250 = shuffled<2, 3, 6, 7>(t200, t206);
        // complex block of 2
        const Q t251 = t249 + t250;
        io.pairs(24, 38, t251);
        const Q t252 = t249 - t250;
        io.pairs(3, 17, t252);
        const Q t253 = shuffled<0, 1, 4, 5>(t205, t209);
        const Q t254 = shuffled<2, 3, 6, 7>(t205, t209);
        // complex block of 2
        const Q t255 = t253 + t254;
        io.pairs(10, 30, t255);
        const Q t256 = t253 - t254;
        io.pairs(31, 9, t256);
        const Q t257 = shuffled<0, 1, 4, 5>(t215, t214);
        const Q t258 = shuffled<2, 3, 6, 7>(t215, t214);
        // complex block of 2
        const Q t259 = t257 + t258;
        io.pairs(2, 16, t259);
        const Q t260 = t257 - t258;
        io.pairs(23, 37, t260);
        const Q t261 = shuffled<0, 1, 4, 5>(t218, t224);
        const Q t262 = shuffled<2, 3, 6, 7>(t218, t224);
        // complex block of 2
        const Q t263 = t261 + t262;
        io.pairs(36, 8, t263);
        const Q t264 = t261 - t262;
        io.pairs(15, 29, t264);
        const P t265 = part<0>(t223);
        const P t266 = part<1>(t223);
        // complex block of 2
        const P t267 = t265 + t266;
        io.pair(22, t267);
        const P t268 = t265 - t266;
        io.pair(1, t268);
    }
};

}  // namespace zulg
