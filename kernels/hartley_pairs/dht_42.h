// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 42.
// Hartley transform of 42 points, form I; two lanes to a register.
// 77 sums, 77 differences, 68 products of registers, which do the 484 steps of the graph, those with
// `scale` included; 41 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<42> {
    static constexpr int steps = 484;  // with `scale`
    static constexpr double inverseRoot = 0.1543033499620919;  // 1/sqrt(42), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
        0.5,  // c[6]: -cos 2 pi 1/3
        0.8660254037844386,  // c[7]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x41_40 = io.in(41, 40);
        // input stage
        const P t0 = x1_2 + x41_40;
        const P t1 = x1_2 - x41_40;
        const P x3_4 = io.in(3, 4);
        const P x39_38 = io.in(39, 38);
        const P t2 = x3_4 + x39_38;
        const P t3 = x3_4 - x39_38;
        const P x5_6 = io.in(5, 6);
        const P x37_36 = io.in(37, 36);
        const P t4 = x5_6 + x37_36;
        const P t5 = x5_6 - x37_36;
        const P x7_8 = io.in(7, 8);
        const P x35_34 = io.in(35, 34);
        const P t6 = x7_8 + x35_34;
        const P t7 = x7_8 - x35_34;
        const P x9_10 = io.in(9, 10);
        const P x33_32 = io.in(33, 32);
        const P t8 = x9_10 + x33_32;
        const P t9 = x9_10 - x33_32;
        const P x11_12 = io.in(11, 12);
        const P x31_30 = io.in(31, 30);
        const P t10 = x11_12 + x31_30;
        const P t11 = x11_12 - x31_30;
        const P x13_14 = io.in(13, 14);
        const P x29_28 = io.in(29, 28);
        const P t12 = x13_14 + x29_28;
        const P t13 = x13_14 - x29_28;
        const P x15_16 = io.in(15, 16);
        const P x27_26 = io.in(27, 26);
        const P t14 = x15_16 + x27_26;
        const P t15 = x15_16 - x27_26;
        const P x17_18 = io.in(17, 18);
        const P x25_24 = io.in(25, 24);
        const P t16 = x17_18 + x25_24;
        const P t17 = x17_18 - x25_24;
        const P x19_20 = io.in(19, 20);
        const P x23_22 = io.in(23, 22);
        const P t18 = x19_20 + x23_22;
        const P t19 = x19_20 - x23_22;
        const V x0 = io.in(0);
        const V x21 = io.in(21);
        // spectrum block of 2
        const V t20 = x0 + x21;
        const V t21 = x0 - x21;
        const P t22 = shuffled<1, 3>(t0, t1);
        const P t23 = shuffled<0, 2>(t18, t19);
        const P t24 = flipped<0, 1>(t23);
        // complex block of 2
        const P t25 = t22 + t24;
        const P t26 = t22 - t24;
        const P t27 = shuffled<1, 3>(t2, t3);
        const P t28 = shuffled<0, 2>(t16, t17);
        const P t29 = flipped<0, 1>(t28);
        // complex block of 2
        const P t30 = t27 + t29;
        const P t31 = t27 - t29;
        const P t32 = shuffled<1, 3>(t4, t5);
        const P t33 = shuffled<0, 2>(t14, t15);
        const P t34 = flipped<0, 1>(t33);
        // complex block of 2
        const P t35 = t32 + t34;
        const P t36 = t32 - t34;
        const P t37 = shuffled<1, 3>(t6, t7);
        const P t38 = shuffled<0, 2>(t12, t13);
        const P t39 = flipped<0, 1>(t38);
        // complex block of 2
        const P t40 = t37 + t39;
        const P t41 = t37 - t39;
        const P t42 = shuffled<1, 3>(t8, t9);
        const P t43 = shuffled<0, 2>(t10, t11);
        const P t44 = flipped<0, 1>(t43);
        // complex block of 2
        const P t45 = t42 + t44;
        const P t46 = t42 - t44;
        const P t47 = shuffled<1, 3>(t10, t11);
        const P t48 = shuffled<0, 2>(t8, t9);
        const P t49 = flipped<0, 1>(t48);
        // complex block of 2
        const P t50 = t47 + t49;
        const P t51 = t47 - t49;
        const P t52 = shuffled<1, 3>(t12, t13);
        const P t53 = shuffled<0, 2>(t6, t7);
        const P t54 = flipped<0, 1>(t53);
        // complex block of 2
        const P t55 = t52 + t54;
        const P t56 = t52 - t54;
        const P t57 = shuffled<1, 3>(t14, t15);
        const P t58 = shuffled<0, 2>(t4, t5);
        const P t59 = flipped<0, 1>(t58);
        // complex block of 2
        const P t60 = t57 + t59;
        const P t61 = t57 - t59;
        const P t62 = shuffled<1, 3>(t16, t17);
        const P t63 = shuffled<0, 2>(t2, t3);
        const P t64 = flipped<0, 1>(t63);
        // complex block of 2
        const P t65 = t62 + t64;
        const P t66 = t62 - t64;
        const P t67 = shuffled<1, 3>(t18, t19);
        const P t68 = shuffled<0, 2>(t0, t1);
        const P t69 = flipped<0, 1>(t68);
        // complex block of 2
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P t72 = shuffled<0, 2>(t55, t56);
        const P t73 = joined(t20, t21);
        // spectrum block of 3, multiplier 2
        const P t74 = t72 + t73;
        const P t75 = c[6] * t72;
        const P t76 = t73 - t75;
        const P t77 = shuffled<1, 3>(t55, t56);
        const P t78 = c[7] * t77;
        const P t79 = t76 - t78;
        const P t80 = t76 + t78;
        const P t81 = shuffled<1, 3>(t70, t71);
        const P t82 = shuffled<1, 3>(t40, t41);
        // complex block of 3, multiplier 2
        const P t83 = t81 - t82;
        const P t84 = shuffled<0, 2>(t70, t71);
        const P t85 = shuffled<0, 2>(t40, t41);
        const P t86 = t84 + t85;
        const P t87 = t81 + t82;
        const P t88 = t84 - t85;
        const P t89 = shuffled<1, 3>(t35, t36);
        const P t90 = t83 + t89;
        const P t91 = shuffled<0, 2>(t35, t36);
        const P t92 = t86 + t91;
        const P t93 = c[6] * t83;
        const P t94 = t89 - t93;
        const P t95 = c[6] * t86;
        const P t96 = t91 - t95;
        const P t97 = c[7] * t88;
        const P t98 = t94 + t97;
        const P t99 = c[7] * t87;
        const P t100 = t96 - t99;
        const P t101 = t94 - t97;
        const P t102 = t96 + t99;
        const P t103 = shuffled<1, 3>(t60, t61);
        const P t104 = shuffled<1, 3>(t25, t26);
        // complex block of 3, multiplier 2
        const P t105 = t103 + t104;
        const P t106 = shuffled<0, 2>(t60, t61);
        const P t107 = shuffled<0, 2>(t25, t26);
        const P t108 = t106 + t107;
        const P t109 = t104 - t103;
        const P t110 = t106 - t107;
        const P t111 = shuffled<1, 3>(t50, t51);
        const P t112 = t111 - t105;
        const P t113 = shuffled<0, 2>(t50, t51);
        const P t114 = t108 + t113;
        const P t115 = c[6] * t105;
        const P t116 = t115 + t111;
        const P t117 = c[6] * t108;
        const P t118 = t113 - t117;
        const P t119 = c[7] * t110;
        const P t120 = t116 + t119;
        const P t121 = c[7] * t109;
        const P t122 = t118 - t121;
        const P t123 = t116 - t119;
        const P t124 = t118 + t121;
        const P t125 = shuffled<1, 3>(t30, t31);
        const P t126 = shuffled<1, 3>(t45, t46);
        // complex block of 3, multiplier 2
        const P t127 = t125 - t126;
        const P t128 = shuffled<0, 2>(t45, t46);
        const P t129 = shuffled<0, 2>(t30, t31);
        const P t130 = t128 + t129;
        const P t131 = t126 + t125;
        const P t132 = t128 - t129;
        const P t133 = shuffled<1, 3>(t65, t66);
        const P t134 = t127 + t133;
        const P t135 = shuffled<0, 2>(t65, t66);
        const P t136 = t130 + t135;
        const P t137 = c[6] * t127;
        const P t138 = t133 - t137;
        const P t139 = c[6] * t130;
        const P t140 = t135 - t139;
        const P t141 = c[7] * t132;
        const P t142 = t138 + t141;
        const P t143 = c[7] * t131;
        const P t144 = t140 + t143;
        const P t145 = t138 - t141;
        const P t146 = t140 - t143;
        // spectrum block of 7, multiplier 6
        const P t147 = t92 + t114;
        const P t148 = t147 + t136;
        const P t149 = t148 + t74;
        io.out(0, 21, t149);
        const P t150 = c[0] * t92;
        const P t151 = c[1] * t114;
        const P t152 = t150 - t151;
        const P t153 = c[2] * t136;
        const P t154 = t152 - t153;
        const P t155 = t154 + t74;
        const P t156 = c[3] * t90;
        const P t157 = c[4] * t112;
        const P t158 = t156 + t157;
        const P t159 = c[5] * t134;
        const P t160 = t158 + t159;
        const P t161 = t155 - t160;
        io.out(6, 27, t161);
        const P t162 = t155 + t160;
        io.out(36, 15, t162);
        const P t163 = c[1] * t92;
        const P t164 = t74 - t163;
        const P t165 = c[2] * t114;
        const P t166 = t164 - t165;
        const P t167 = c[0] * t136;
        const P t168 = t166 + t167;
        const P t169 = c[4] * t90;
        const P t170 = c[5] * t112;
        const P t171 = t169 - t170;
        const P t172 = c[3] * t134;
        const P t173 = t171 - t172;
        const P t174 = t168 - t173;
        io.out(12, 33, t174);
        const P t175 = t168 + t173;
        io.out(30, 9, t175);
        const P t176 = c[2] * t92;
        const P t177 = t74 - t176;
        const P t178 = c[0] * t114;
        const P t179 = t177 + t178;
        const P t180 = c[1] * t136;
        const P t181 = t179 - t180;
        const P t182 = c[5] * t90;
        const P t183 = c[3] * t112;
        const P t184 = t182 - t183;
        const P t185 = c[4] * t134;
        const P t186 = t184 + t185;
        const P t187 = t181 - t186;
        io.out(18, 39, t187);
        const P t188 = t181 + t186;
        io.out(24, 3, t188);
        // spectrum block of 7, multiplier 6
        const P t189 = t102 + t124;
        const P t190 = t189 + t146;
        const P t191 = t190 + t80;
        io.out(28, 7, t191);
        const P t192 = c[0] * t102;
        const P t193 = c[1] * t124;
        const P t194 = t192 - t193;
        const P t195 = c[2] * t146;
        const P t196 = t194 - t195;
        const P t197 = t196 + t80;
        const P t198 = c[3] * t101;
        const P t199 = c[4] * t123;
        const P t200 = t198 + t199;
        const P t201 = c[5] * t145;
        const P t202 = t200 + t201;
        const P t203 = t197 - t202;
        io.out(34, 13, t203);
        const P t204 = t197 + t202;
        io.out(22, 1, t204);
        const P t205 = c[1] * t102;
        const P t206 = t80 - t205;
        const P t207 = c[2] * t124;
        const P t208 = t206 - t207;
        const P t209 = c[0] * t146;
        const P t210 = t208 + t209;
        const P t211 = c[4] * t101;
        const P t212 = c[5] * t123;
        const P t213 = t211 - t212;
        const P t214 = c[3] * t145;
        const P t215 = t213 - t214;
        const P t216 = t210 - t215;
        io.out(40, 19, t216);
        const P t217 = t210 + t215;
        io.out(16, 37, t217);
        const P t218 = c[2] * t102;
        const P t219 = t80 - t218;
        const P t220 = c[0] * t124;
        const P t221 = t219 + t220;
        const P t222 = c[1] * t146;
        const P t223 = t221 - t222;
        const P t224 = c[5] * t101;
        const P t225 = c[3] * t123;
        const P t226 = t224 - t225;
        const P t227 = c[4] * t145;
        const P t228 = t226 + t227;
        const P t229 = t223 - t228;
        io.out(4, 25, t229);
        const P t230 = t223 + t228;
        io.out(10, 31, t230);
        // spectrum block of 7, multiplier 6
        const P t231 = t100 + t122;
        const P t232 = t231 + t144;
        const P t233 = t232 + t79;
        io.out(14, 35, t233);
        const P t234 = c[0] * t100;
        const P t235 = c[1] * t122;
        const P t236 = t234 - t235;
        const P t237 = c[2] * t144;
        const P t238 = t236 - t237;
        const P t239 = t238 + t79;
        const P t240 = c[3] * t98;
        const P t241 = c[4] * t120;
        const P t242 = t240 + t241;
        const P t243 = c[5] * t142;
        const P t244 = t242 + t243;
        const P t245 = t239 - t244;
        io.out(20, 41, t245);
        const P t246 = t239 + t244;
        io.out(8, 29, t246);
        const P t247 = c[1] * t100;
        const P t248 = t79 - t247;
        const P t249 = c[2] * t122;
        const P t250 = t248 - t249;
        const P t251 = c[0] * t144;
        const P t252 = t250 + t251;
        const P t253 = c[4] * t98;
        const P t254 = c[5] * t120;
        const P t255 = t253 - t254;
        const P t256 = c[3] * t142;
        const P t257 = t255 - t256;
        const P t258 = t252 - t257;
        io.out(26, 5, t258);
        const P t259 = t252 + t257;
        io.out(2, 23, t259);
        const P t260 = c[2] * t100;
        const P t261 = t79 - t260;
        const P t262 = c[0] * t122;
        const P t263 = t261 + t262;
        const P t264 = c[1] * t144;
        const P t265 = t263 - t264;
        const P t266 = c[5] * t98;
        const P t267 = c[3] * t120;
        const P t268 = t266 - t267;
        const P t269 = c[4] * t142;
        const P t270 = t268 + t269;
        const P t271 = t265 - t270;
        io.out(32, 11, t271);
        const P t272 = t265 + t270;
        io.out(38, 17, t272);
    }
};

}  // namespace zulg
