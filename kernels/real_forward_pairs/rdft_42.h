// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 42.
// Forward DFT of 42 real points, prime-factor 7, 3, 2; two lanes to a register.
// 67 sums, 67 differences, 68 products of registers, which do the 444 steps of the graph, those with
// `scale` included; 37 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<42> {
    static constexpr int steps = 444;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 6/7
        0.2225209339563144,  // c[1]: -cos 2 pi 30/7
        0.9009688679024191,  // c[2]: -cos 2 pi 24/7
        0.7818314824680298,  // c[3]: -sin 2 pi 6/7
        0.9749279121818236,  // c[4]: sin 2 pi 30/7
        0.4338837391175581,  // c[5]: sin 2 pi 24/7
        0.5,  // c[6]: -cos 2 pi 2/3
        0.8660254037844386,  // c[7]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x6_13 = io.in(6, 13);
        const P x36_1 = io.in(36, 1);
        // real block of 7, multiplier 6
        const P t0 = x6_13 + x36_1;
        const P t1 = x6_13 - x36_1;
        const P x30_37 = io.in(30, 37);
        const P x12_19 = io.in(12, 19);
        const P t2 = x30_37 + x12_19;
        const P t3 = x30_37 - x12_19;
        const P x18_31 = io.in(18, 31);
        const P x24_25 = io.in(24, 25);
        const P t4 = x18_31 + x24_25;
        const P t5 = shuffled<0, 3>(x24_25, x18_31);
        const P t6 = shuffled<0, 3>(x18_31, x24_25);
        const P t7 = t5 - t6;
        const P t8 = t0 + t2;
        const P t9 = t8 + t4;
        const P x0_7 = io.in(0, 7);
        const P t10 = t9 + x0_7;
        const P t11 = c[0] * t0;
        const P t12 = c[1] * t2;
        const P t13 = t11 - t12;
        const P t14 = c[2] * t4;
        const P t15 = t13 - t14;
        const P t16 = t15 + x0_7;
        const P t17 = c[3] * t1;
        const P t18 = c[4] * t3;
        const P t19 = t17 - t18;
        const P t20 = c[5] * t7;
        const P t21 = t19 - t20;
        const P t22 = c[1] * t0;
        const P t23 = x0_7 - t22;
        const P t24 = c[2] * t2;
        const P t25 = t23 - t24;
        const P t26 = c[0] * t4;
        const P t27 = t25 + t26;
        const P t28 = c[4] * t1;
        const P t29 = c[5] * t3;
        const P t30 = t28 + t29;
        const P t31 = c[3] * t7;
        const P t32 = t30 + t31;
        const P t33 = c[2] * t0;
        const P t34 = x0_7 - t33;
        const P t35 = c[0] * t2;
        const P t36 = t34 + t35;
        const P t37 = c[1] * t4;
        const P t38 = t36 - t37;
        const P t39 = c[5] * t1;
        const P t40 = c[3] * t3;
        const P t41 = t39 + t40;
        const P t42 = c[4] * t7;
        const P t43 = t41 - t42;
        const P x20_27 = io.in(20, 27);
        const P x8_15 = io.in(8, 15);
        // real block of 7, multiplier 6
        const P t44 = x20_27 + x8_15;
        const P t45 = x20_27 - x8_15;
        const P x2_9 = io.in(2, 9);
        const P x26_33 = io.in(26, 33);
        const P t46 = x2_9 + x26_33;
        const P t47 = x2_9 - x26_33;
        const P x32_3 = io.in(32, 3);
        const P x38_39 = io.in(38, 39);
        const P t48 = x32_3 + x38_39;
        const P t49 = shuffled<0, 3>(x38_39, x32_3);
        const P t50 = shuffled<0, 3>(x32_3, x38_39);
        const P t51 = t49 - t50;
        const P t52 = t44 + t46;
        const P t53 = t52 + t48;
        const P x14_21 = io.in(14, 21);
        const P t54 = t53 + x14_21;
        const P t55 = c[0] * t44;
        const P t56 = c[1] * t46;
        const P t57 = t55 - t56;
        const P t58 = c[2] * t48;
        const P t59 = t57 - t58;
        const P t60 = t59 + x14_21;
        const P t61 = c[3] * t45;
        const P t62 = c[4] * t47;
        const P t63 = t61 - t62;
        const P t64 = c[5] * t51;
        const P t65 = t63 - t64;
        const P t66 = c[1] * t44;
        const P t67 = x14_21 - t66;
        const P t68 = c[2] * t46;
        const P t69 = t67 - t68;
        const P t70 = c[0] * t48;
        const P t71 = t69 + t70;
        const P t72 = c[4] * t45;
        const P t73 = c[5] * t47;
        const P t74 = t72 + t73;
        const P t75 = c[3] * t51;
        const P t76 = t74 + t75;
        const P t77 = c[2] * t44;
        const P t78 = x14_21 - t77;
        const P t79 = c[0] * t46;
        const P t80 = t78 + t79;
        const P t81 = c[1] * t48;
        const P t82 = t80 - t81;
        const P t83 = c[5] * t45;
        const P t84 = c[3] * t47;
        const P t85 = t83 + t84;
        const P t86 = c[4] * t51;
        const P t87 = t85 - t86;
        const P x34_41 = io.in(34, 41);
        const P x22_29 = io.in(22, 29);
        // real block of 7, multiplier 6
        const P t88 = x34_41 + x22_29;
        const P t89 = x34_41 - x22_29;
        const P x16_23 = io.in(16, 23);
        const P x40_5 = io.in(40, 5);
        const P t90 = x16_23 + x40_5;
        const P t91 = x16_23 - x40_5;
        const P x4_17 = io.in(4, 17);
        const P x10_11 = io.in(10, 11);
        const P t92 = x4_17 + x10_11;
        const P t93 = shuffled<0, 3>(x10_11, x4_17);
        const P t94 = shuffled<0, 3>(x4_17, x10_11);
        const P t95 = t93 - t94;
        const P t96 = t88 + t90;
        const P t97 = t96 + t92;
        const P x28_35 = io.in(28, 35);
        const P t98 = t97 + x28_35;
        const P t99 = c[0] * t88;
        const P t100 = c[1] * t90;
        const P t101 = t99 - t100;
        const P t102 = c[2] * t92;
        const P t103 = t101 - t102;
        const P t104 = t103 + x28_35;
        const P t105 = c[3] * t89;
        const P t106 = c[4] * t91;
        const P t107 = t105 - t106;
        const P t108 = c[5] * t95;
        const P t109 = t107 - t108;
        const P t110 = c[1] * t88;
        const P t111 = x28_35 - t110;
        const P t112 = c[2] * t90;
        const P t113 = t111 - t112;
        const P t114 = c[0] * t92;
        const P t115 = t113 + t114;
        const P t116 = c[4] * t89;
        const P t117 = c[5] * t91;
        const P t118 = t116 + t117;
        const P t119 = c[3] * t95;
        const P t120 = t118 + t119;
        const P t121 = c[2] * t88;
        const P t122 = x28_35 - t121;
        const P t123 = c[0] * t90;
        const P t124 = t122 + t123;
        const P t125 = c[1] * t92;
        const P t126 = t124 - t125;
        const P t127 = c[5] * t89;
        const P t128 = c[3] * t91;
        const P t129 = t127 + t128;
        const P t130 = c[4] * t95;
        const P t131 = t129 - t130;
        const P t132 = shuffled<0, 3>(t54, t10);
        // real block of 3, multiplier 2
        const P t133 = t98 + t132;
        const P t134 = shuffled<0, 3>(t132, t98);
        const P t135 = shuffled<0, 3>(t98, t132);
        const P t136 = t134 - t135;
        const P t137 = shuffled<0, 3>(t10, t54);
        const P t138 = t133 + t137;
        const P t139 = c[6] * t133;
        const P t140 = t137 - t139;
        const V t141 = part<0>(t138);
        const V t142 = part<1>(t138);
        // real block of 2
        const V t143 = t141 + t142;
        io.re(0, t143);
        const V t144 = t141 - t142;
        io.re(21, t144);
        // real block of 3, multiplier 2
        const P t145 = c[7] * t136;
        const P t146 = shuffled<0, 2>(t140, t145);
        const P t147 = shuffled<1, 3>(t140, t145);
        // complex block of 2
        const P t148 = t146 + t147;
        io.pair(14, t148);
        const P t149 = t146 - t147;
        io.pair(7, negated<0, 1>(t149));
        const P t150 = shuffled<0, 2>(t60, t65);
        const P t151 = shuffled<0, 2>(t104, t109);
        // complex block of 3, multiplier 2
        const P t152 = t150 + t151;
        const P t153 = t150 - t151;
        const P t154 = shuffled<0, 2>(t16, t21);
        const P t155 = t152 + t154;
        const P t156 = c[6] * t152;
        const P t157 = t154 - t156;
        const P t158 = P(-c[7], c[7]) * t153;
        const P t159 = shuffled<1, 0>(t158);
        const P t160 = t157 + t159;
        const P t161 = t157 - t159;
        const P t162 = shuffled<1, 3>(t104, t109);
        const P t163 = shuffled<1, 3>(t16, t21);
        // complex block of 3, multiplier 2
        const P t164 = t162 + t163;
        const P t165 = t162 - t163;
        const P t166 = shuffled<1, 3>(t60, t65);
        const P t167 = t164 + t166;
        const P t168 = c[6] * t164;
        const P t169 = t166 - t168;
        const P t170 = P(-c[7], c[7]) * t165;
        const P t171 = shuffled<1, 0>(t170);
        const P t172 = t169 + t171;
        const P t173 = t169 - t171;
        // complex block of 2
        const P t174 = t155 + t167;
        io.pair(6, t174);
        const P t175 = t155 - t167;
        io.pair(15, negated<0, 1>(t175));
        // complex block of 2
        const P t176 = t161 + t173;
        io.pair(20, t176);
        const P t177 = t161 - t173;
        io.pair(1, negated<0, 1>(t177));
        // complex block of 2
        const P t178 = t160 + t172;
        io.pair(8, negated<0, 1>(t178));
        const P t179 = t160 - t172;
        io.pair(13, t179);
        const P t180 = shuffled<0, 2>(t71, t76);
        const P t181 = shuffled<0, 2>(t115, t120);
        // complex block of 3, multiplier 2
        const P t182 = t180 + t181;
        const P t183 = t180 - t181;
        const P t184 = shuffled<0, 2>(t27, t32);
        const P t185 = t182 + t184;
        const P t186 = c[6] * t182;
        const P t187 = t184 - t186;
        const P t188 = P(-c[7], c[7]) * t183;
        const P t189 = shuffled<1, 0>(t188);
        const P t190 = t187 + t189;
        const P t191 = t187 - t189;
        const P t192 = shuffled<1, 3>(t115, t120);
        const P t193 = shuffled<1, 3>(t27, t32);
        // complex block of 3, multiplier 2
        const P t194 = t192 + t193;
        const P t195 = t192 - t193;
        const P t196 = shuffled<1, 3>(t71, t76);
        const P t197 = t194 + t196;
        const P t198 = c[6] * t194;
        const P t199 = t196 - t198;
        const P t200 = P(-c[7], c[7]) * t195;
        const P t201 = shuffled<1, 0>(t200);
        const P t202 = t199 + t201;
        const P t203 = t199 - t201;
        // complex block of 2
        const P t204 = t185 + t197;
        io.pair(12, t204);
        const P t205 = t185 - t197;
        io.pair(9, negated<0, 1>(t205));
        // complex block of 2
        const P t206 = t191 + t203;
        io.pair(16, negated<0, 1>(t206));
        const P t207 = t191 - t203;
        io.pair(5, t207);
        // complex block of 2
        const P t208 = t190 + t202;
        io.pair(2, negated<0, 1>(t208));
        const P t209 = t190 - t202;
        io.pair(19, t209);
        const P t210 = shuffled<0, 2>(t82, t87);
        const P t211 = shuffled<0, 2>(t126, t131);
        // complex block of 3, multiplier 2
        const P t212 = t210 + t211;
        const P t213 = t210 - t211;
        const P t214 = shuffled<0, 2>(t38, t43);
        const P t215 = t212 + t214;
        const P t216 = c[6] * t212;
        const P t217 = t214 - t216;
        const P t218 = P(-c[7], c[7]) * t213;
        const P t219 = shuffled<1, 0>(t218);
        const P t220 = t217 + t219;
        const P t221 = t217 - t219;
        const P t222 = shuffled<1, 3>(t126, t131);
        const P t223 = shuffled<1, 3>(t38, t43);
        // complex block of 3, multiplier 2
        const P t224 = t222 + t223;
        const P t225 = t222 - t223;
        const P t226 = shuffled<1, 3>(t82, t87);
        const P t227 = t224 + t226;
        const P t228 = c[6] * t224;
        const P t229 = t226 - t228;
        const P t230 = P(-c[7], c[7]) * t225;
        const P t231 = shuffled<1, 0>(t230);
        const P t232 = t229 + t231;
        const P t233 = t229 - t231;
        // complex block of 2
        const P t234 = t215 + t227;
        io.pair(18, t234);
        const P t235 = t215 - t227;
        io.pair(3, negated<0, 1>(t235));
        // complex block of 2
        const P t236 = t221 + t233;
        io.pair(10, negated<0, 1>(t236));
        const P t237 = t221 - t233;
        io.pair(11, t237);
        // complex block of 2
        const P t238 = t220 + t232;
        io.pair(4, t238);
        const P t239 = t220 - t232;
        io.pair(17, negated<0, 1>(t239));
    }
};

}  // namespace zulg
