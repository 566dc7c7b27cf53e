// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 35.
// Forward DFT of 35 real points, prime-factor 7, 5; two lanes to a register.
// 70 sums, 62 differences, 86 products of registers, which do the 409 steps of the graph, those with
// `scale` included; 25 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<35> {
    static constexpr int steps = 409;  // with `scale`
    static constexpr double inverseRoot = 0.1690308509457033;  // 1/sqrt(35), for `scale`
    static constexpr double constants[] = {
        0.2225209339563144,  // c[0]: -cos 2 pi 5/7
        0.9009688679024191,  // c[1]: -cos 2 pi 25/7
        0.6234898018587335,  // c[2]: cos 2 pi 20/7
        0.9749279121818236,  // c[3]: -sin 2 pi 5/7
        0.4338837391175581,  // c[4]: -sin 2 pi 25/7
        0.7818314824680298,  // c[5]: -sin 2 pi 20/7
        0.8090169943749475,  // c[6]: -cos 2 pi 2/5
        0.30901699437494745,  // c[7]: cos 2 pi 6/5
        0.5877852522924731,  // c[8]: sin 2 pi 2/5
        0.9510565162951535,  // c[9]: sin 2 pi 6/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x5_12 = io.in(5, 12);
        const P x30_2 = io.in(30, 2);
        // real block of 7, multiplier 5
        const P t0 = x5_12 + x30_2;
        const P t1 = x5_12 - x30_2;
        const P x25_32 = io.in(25, 32);
        const P x10_17 = io.in(10, 17);
        const P t2 = x25_32 + x10_17;
        const P t3 = x25_32 - x10_17;
        const P x20_27 = io.in(20, 27);
        const P x15_22 = io.in(15, 22);
        const P t4 = x20_27 + x15_22;
        const P t5 = x20_27 - x15_22;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0_7 = io.in(0, 7);
        const P t8 = t7 + x0_7;
        const P t9 = c[0] * t0;
        const P t10 = x0_7 - t9;
        const P t11 = c[1] * t2;
        const P t12 = t10 - t11;
        const P t13 = c[2] * t4;
        const P t14 = t12 + t13;
        const P t15 = c[3] * t1;
        const P t16 = c[4] * t3;
        const P t17 = t15 + t16;
        const P t18 = c[5] * t5;
        const P t19 = t17 + t18;
        const P t20 = c[1] * t0;
        const P t21 = x0_7 - t20;
        const P t22 = c[2] * t2;
        const P t23 = t21 + t22;
        const P t24 = c[0] * t4;
        const P t25 = t23 - t24;
        const P t26 = c[3] * t5;
        const P t27 = c[4] * t1;
        const P t28 = t26 - t27;
        const P t29 = c[5] * t3;
        const P t30 = t28 - t29;
        const P t31 = c[2] * t0;
        const P t32 = c[0] * t2;
        const P t33 = t31 - t32;
        const P t34 = c[1] * t4;
        const P t35 = t33 - t34;
        const P t36 = t35 + x0_7;
        const P t37 = c[3] * t3;
        const P t38 = c[4] * t5;
        const P t39 = t37 + t38;
        const P t40 = c[5] * t1;
        const P t41 = t39 - t40;
        const P x19_26 = io.in(19, 26);
        const P x9_16 = io.in(9, 16);
        // real block of 7, multiplier 5
        const P t42 = x19_26 + x9_16;
        const P t43 = x19_26 - x9_16;
        const P x4_11 = io.in(4, 11);
        const P x24_31 = io.in(24, 31);
        const P t44 = x4_11 + x24_31;
        const P t45 = x4_11 - x24_31;
        const P x34_6 = io.in(34, 6);
        const P x29_1 = io.in(29, 1);
        const P t46 = x34_6 + x29_1;
        const P t47 = x34_6 - x29_1;
        const P t48 = t42 + t44;
        const P t49 = t48 + t46;
        const P x14_21 = io.in(14, 21);
        const P t50 = t49 + x14_21;
        const P t51 = c[0] * t42;
        const P t52 = x14_21 - t51;
        const P t53 = c[1] * t44;
        const P t54 = t52 - t53;
        const P t55 = c[2] * t46;
        const P t56 = t54 + t55;
        const P t57 = c[3] * t43;
        const P t58 = c[4] * t45;
        const P t59 = t57 + t58;
        const P t60 = c[5] * t47;
        const P t61 = t59 + t60;
        const P t62 = c[1] * t42;
        const P t63 = x14_21 - t62;
        const P t64 = c[2] * t44;
        const P t65 = t63 + t64;
        const P t66 = c[0] * t46;
        const P t67 = t65 - t66;
        const P t68 = c[3] * t47;
        const P t69 = c[4] * t43;
        const P t70 = t68 - t69;
        const P t71 = c[5] * t45;
        const P t72 = t70 - t71;
        const P t73 = c[2] * t42;
        const P t74 = c[0] * t44;
        const P t75 = t73 - t74;
        const P t76 = c[1] * t46;
        const P t77 = t75 - t76;
        const P t78 = t77 + x14_21;
        const P t79 = c[3] * t45;
        const P t80 = c[4] * t47;
        const P t81 = t79 + t80;
        const P t82 = c[5] * t43;
        const P t83 = t81 - t82;
        const V x33 = io.in(33);
        const V x23 = io.in(23);
        // real block of 7, multiplier 5
        const V t84 = x33 + x23;
        const V t85 = x33 - x23;
        const V x18 = io.in(18);
        const V x3 = io.in(3);
        const V t86 = x18 + x3;
        const V t87 = x18 - x3;
        const V x13 = io.in(13);
        const V x8 = io.in(8);
        const V t88 = x13 + x8;
        const V t89 = x13 - x8;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V x28 = io.in(28);
        const V t92 = t91 + x28;
        const V t93 = c[0] * t84;
        const V t94 = x28 - t93;
        const V t95 = c[1] * t86;
        const V t96 = t94 - t95;
        const V t97 = c[2] * t88;
        const V t98 = t96 + t97;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = t99 + t100;
        const V t102 = c[5] * t89;
        const V t103 = t101 + t102;
        const V t104 = c[1] * t84;
        const V t105 = x28 - t104;
        const V t106 = c[2] * t86;
        const V t107 = t105 + t106;
        const V t108 = c[0] * t88;
        const V t109 = t107 - t108;
        const V t110 = c[3] * t89;
        const V t111 = c[4] * t85;
        const V t112 = t110 - t111;
        const V t113 = c[5] * t87;
        const V t114 = t112 - t113;
        const V t115 = c[2] * t84;
        const V t116 = c[0] * t86;
        const V t117 = t115 - t116;
        const V t118 = c[1] * t88;
        const V t119 = t117 - t118;
        const V t120 = t119 + x28;
        const V t121 = c[3] * t87;
        const V t122 = c[4] * t89;
        const V t123 = t121 + t122;
        const V t124 = c[5] * t85;
        const V t125 = t123 - t124;
        const V t126 = part<1>(t8);
        // real block of 5, multiplier 2
        const V t127 = t126 + t92;
        const V t128 = t126 - t92;
        const V t129 = part<1>(t50);
        const V t130 = part<0>(t50);
        const V t131 = t129 + t130;
        const V t132 = t129 - t130;
        const V t133 = t127 + t131;
        const V t134 = part<0>(t8);
        const V t135 = t133 + t134;
        io.re(0, t135);
        const V t136 = c[6] * t127;
        const V t137 = t134 - t136;
        const V t138 = c[7] * t131;
        const V t139 = t137 + t138;
        const V t140 = c[8] * t128;
        const V t141 = c[9] * t132;
        const V t142 = t140 + t141;
        const V t143 = flipped<1>(t142);
        const P t144 = joined(t139, t143);
        io.pair(7, t144);
        const V t145 = c[7] * t127;
        const V t146 = c[6] * t131;
        const V t147 = t145 - t146;
        const V t148 = t147 + t134;
        const V t149 = c[9] * t128;
        const V t150 = c[8] * t132;
        const V t151 = t149 - t150;
        const P t152 = joined(t148, t151);
        io.pair(14, t152);
        const P t153 = shuffled<1, 3>(t14, t19);
        const P t154 = joined(t98, t103);
        // complex block of 5, multiplier 2
        const P t155 = t153 + t154;
        const P t156 = t153 - t154;
        const P t157 = shuffled<1, 3>(t56, t61);
        const P t158 = shuffled<0, 2>(t56, t61);
        const P t159 = t157 + t158;
        const P t160 = t157 - t158;
        const P t161 = t155 + t159;
        const P t162 = shuffled<0, 2>(t14, t19);
        const P t163 = t161 + t162;
        io.pair(5, t163);
        const P t164 = c[7] * t155;
        const P t165 = c[6] * t159;
        const P t166 = t164 - t165;
        const P t167 = t166 + t162;
        const P t168 = c[9] * t156;
        const P t169 = c[8] * t160;
        const P t170 = t168 - t169;
        const P t171 = shuffled<1, 0>(t170);
        const P t172 = flipped<0, 1>(t171);
        const P t173 = t167 + t172;
        io.pair(9, negated<0, 1>(t173));
        const P t174 = t167 - t172;
        io.pair(16, negated<0, 1>(t174));
        const P t175 = c[6] * t155;
        const P t176 = t162 - t175;
        const P t177 = c[7] * t159;
        const P t178 = t176 + t177;
        const P t179 = c[8] * t156;
        const P t180 = c[9] * t160;
        const P t181 = t179 + t180;
        const P t182 = shuffled<1, 0>(t181);
        const P t183 = flipped<0, 1>(t182);
        const P t184 = t178 + t183;
        io.pair(12, t184);
        const P t185 = t178 - t183;
        io.pair(2, negated<0, 1>(t185));
        const P t186 = shuffled<1, 3>(t25, t30);
        const P t187 = joined(t109, t114);
        // complex block of 5, multiplier 2
        const P t188 = t186 + t187;
        const P t189 = t186 - t187;
        const P t190 = shuffled<1, 3>(t67, t72);
        const P t191 = shuffled<0, 2>(t67, t72);
        const P t192 = t190 + t191;
        const P t193 = t190 - t191;
        const P t194 = t188 + t192;
        const P t195 = shuffled<0, 2>(t25, t30);
        const P t196 = t194 + t195;
        io.pair(10, t196);
        const P t197 = c[7] * t188;
        const P t198 = c[6] * t192;
        const P t199 = t197 - t198;
        const P t200 = t199 + t195;
        const P t201 = c[9] * t189;
        const P t202 = c[8] * t193;
        const P t203 = t201 - t202;
        const P t204 = shuffled<1, 0>(t203);
        const P t205 = flipped<0, 1>(t204);
        const P t206 = t200 + t205;
        io.pair(4, negated<0, 1>(t206));
        const P t207 = t200 - t205;
        io.pair(11, negated<0, 1>(t207));
        const P t208 = c[6] * t188;
        const P t209 = t195 - t208;
        const P t210 = c[7] * t192;
        const P t211 = t209 + t210;
        const P t212 = c[8] * t189;
        const P t213 = c[9] * t193;
        const P t214 = t212 + t213;
        const P t215 = shuffled<1, 0>(t214);
        const P t216 = flipped<0, 1>(t215);
        const P t217 = t211 + t216;
        io.pair(17, t217);
        const P t218 = t211 - t216;
        io.pair(3, t218);
        const P t219 = shuffled<1, 3>(t36, t41);
        const P t220 = joined(t120, t125);
        // complex block of 5, multiplier 2
        const P t221 = t219 + t220;
        const P t222 = t219 - t220;
        const P t223 = shuffled<1, 3>(t78, t83);
        const P t224 = shuffled<0, 2>(t78, t83);
        const P t225 = t223 + t224;
        const P t226 = t223 - t224;
        const P t227 = t221 + t225;
        const P t228 = shuffled<0, 2>(t36, t41);
        const P t229 = t227 + t228;
        io.pair(15, t229);
        const P t230 = c[7] * t221;
        const P t231 = c[6] * t225;
        const P t232 = t230 - t231;
        const P t233 = t232 + t228;
        const P t234 = c[9] * t222;
        const P t235 = c[8] * t226;
        const P t236 = t234 - t235;
        const P t237 = shuffled<1, 0>(t236);
        const P t238 = flipped<0, 1>(t237);
        const P t239 = t233 + t238;
        io.pair(1, t239);
        const P t240 = t233 - t238;
        io.pair(6, negated<0, 1>(t240));
        const P t241 = c[6] * t221;
        const P t242 = t228 - t241;
        const P t243 = c[7] * t225;
        const P t244 = t242 + t243;
        const P t245 = c[8] * t222;
        const P t246 = c[9] * t226;
        const P t247 = t245 + t246;
        const P t248 = shuffled<1, 0>(t247);
        const P t249 = flipped<0, 1>(t248);
        const P t250 = t244 + t249;
        io.pair(13, negated<0, 1>(t250));
        const P t251 = t244 - t249;
        io.pair(8, t251);
    }
};

}  // namespace zulg
