// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 28.
// Complex DFT of 28 points, prime-factor, order 7, 4; one complex number to a register.
// 88 sums, 88 differences, 72 products of registers, which do the 552 steps of the graph, those with
// `scale` included; 19 shuffles, 19 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<28> {
    static constexpr int steps = 552;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x4 = io.pair(4);
        const P x24 = io.pair(24);
        // complex block of 7, multiplier 4
        const P t0 = x4 + x24;
        const P t1 = x4 - x24;
        const P x20 = io.pair(20);
        const P x8 = io.pair(8);
        const P t2 = x20 + x8;
        const P t3 = x20 - x8;
        const P x16 = io.pair(16);
        const P x12 = io.pair(12);
        const P t4 = x16 + x12;
        const P t5 = x16 - x12;
        const P t6 = t0 + t2;
        const P t7 = t6 + t4;
        const P x0 = io.pair(0);
        const P t8 = t7 + x0;
        const P t9 = c[0] * t0;
        const P t10 = c[1] * t2;
        const P t11 = t9 - t10;
        const P t12 = c[2] * t4;
        const P t13 = t11 - t12;
        const P t14 = t13 + x0;
        const P t15 = c[3] * t1;
        const P t16 = c[4] * t3;
        const P t17 = t15 - t16;
        const P t18 = c[5] * t5;
        const P t19 = t17 - t18;
        const P t20 = shuffled<1, 0>(t19);
        const P t21 = flipped<0, 1>(t20);
        const P t22 = t14 + t21;
        const P t23 = t14 - t21;
        const P t24 = c[1] * t0;
        const P t25 = x0 - t24;
        const P t26 = c[2] * t2;
        const P t27 = t25 - t26;
        const P t28 = c[0] * t4;
        const P t29 = t27 + t28;
        const P t30 = c[4] * t1;
        const P t31 = c[5] * t3;
        const P t32 = t30 + t31;
        const P t33 = c[3] * t5;
        const P t34 = t32 + t33;
        const P t35 = shuffled<1, 0>(t34);
        const P t36 = flipped<0, 1>(t35);
        const P t37 = t29 + t36;
        const P t38 = t29 - t36;
        const P t39 = c[2] * t0;
        const P t40 = x0 - t39;
        const P t41 = c[0] * t2;
        const P t42 = t40 + t41;
        const P t43 = c[1] * t4;
        const P t44 = t42 - t43;
        const P t45 = c[5] * t1;
        const P t46 = c[3] * t3;
        const P t47 = t45 + t46;
        const P t48 = c[4] * t5;
        const P t49 = t47 - t48;
        const P t50 = shuffled<1, 0>(t49);
        const P t51 = flipped<0, 1>(t50);
        const P t52 = t44 + t51;
        const P t53 = t44 - t51;
        const P x11 = io.pair(11);
        const P x3 = io.pair(3);
        // complex block of 7, multiplier 4
        const P t54 = x11 + x3;
        const P t55 = x11 - x3;
        const P x27 = io.pair(27);
        const P x15 = io.pair(15);
        const P t56 = x27 + x15;
        const P t57 = x27 - x15;
        const P x23 = io.pair(23);
        const P x19 = io.pair(19);
        const P t58 = x23 + x19;
        const P t59 = x23 - x19;
        const P t60 = t54 + t56;
        const P t61 = t60 + t58;
        const P x7 = io.pair(7);
        const P t62 = t61 + x7;
        const P t63 = c[0] * t54;
        const P t64 = c[1] * t56;
        const P t65 = t63 - t64;
        const P t66 = c[2] * t58;
        const P t67 = t65 - t66;
        const P t68 = t67 + x7;
        const P t69 = c[3] * t55;
        const P t70 = c[4] * t57;
        const P t71 = t69 - t70;
        const P t72 = c[5] * t59;
        const P t73 = t71 - t72;
        const P t74 = shuffled<1, 0>(t73);
        const P t75 = flipped<0, 1>(t74);
        const P t76 = t68 + t75;
        const P t77 = t68 - t75;
        const P t78 = c[1] * t54;
        const P t79 = x7 - t78;
        const P t80 = c[2] * t56;
        const P t81 = t79 - t80;
        const P t82 = c[0] * t58;
        const P t83 = t81 + t82;
        const P t84 = c[4] * t55;
        const P t85 = c[5] * t57;
        const P t86 = t84 + t85;
        const P t87 = c[3] * t59;
        const P t88 = t86 + t87;
        const P t89 = shuffled<1, 0>(t88);
        const P t90 = flipped<0, 1>(t89);
        const P t91 = t83 + t90;
        const P t92 = t83 - t90;
        const P t93 = c[2] * t54;
        const P t94 = x7 - t93;
        const P t95 = c[0] * t56;
        const P t96 = t94 + t95;
        const P t97 = c[1] * t58;
        const P t98 = t96 - t97;
        const P t99 = c[5] * t55;
        const P t100 = c[3] * t57;
        const P t101 = t99 + t100;
        const P t102 = c[4] * t59;
        const P t103 = t101 - t102;
        const P t104 = shuffled<1, 0>(t103);
        const P t105 = flipped<0, 1>(t104);
        const P t106 = t98 + t105;
        const P t107 = t98 - t105;
        const P x18 = io.pair(18);
        const P x10 = io.pair(10);
        // complex block of 7, multiplier 4
        const P t108 = x18 + x10;
        const P t109 = x18 - x10;
        const P x6 = io.pair(6);
        const P x22 = io.pair(22);
        const P t110 = x6 + x22;
        const P t111 = x6 - x22;
        const P x2 = io.pair(2);
        const P x26 = io.pair(26);
        const P t112 = x2 + x26;
        const P t113 = x2 - x26;
        const P t114 = t108 + t110;
        const P t115 = t114 + t112;
        const P x14 = io.pair(14);
        const P t116 = t115 + x14;
        const P t117 = c[0] * t108;
        const P t118 = c[1] * t110;
        const P t119 = t117 - t118;
        const P t120 = c[2] * t112;
        const P t121 = t119 - t120;
        const P t122 = t121 + x14;
        const P t123 = c[3] * t109;
        const P t124 = c[4] * t111;
        const P t125 = t123 - t124;
        const P t126 = c[5] * t113;
        const P t127 = t125 - t126;
        const P t128 = shuffled<1, 0>(t127);
        const P t129 = flipped<0, 1>(t128);
        const P t130 = t122 + t129;
        const P t131 = t122 - t129;
        const P t132 = c[1] * t108;
        const P t133 = x14 - t132;
        const P t134 = c[2] * t110;
        const P t135 = t133 - t134;
        const P t136 = c[0] * t112;
        const P t137 = t135 + t136;
        const P t138 = c[4] * t109;
        const P t139 = c[5] * t111;
        const P t140 = t138 + t139;
        const P t141 = c[3] * t113;
        const P t142 = t140 + t141;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = flipped<0, 1>(t143);
        const P t145 = t137 + t144;
        const P t146 = t137 - t144;
        const P t147 = c[2] * t108;
        const P t148 = x14 - t147;
        const P t149 = c[0] * t110;
        const P t150 = t148 + t149;
        const P t151 = c[1] * t112;
        const P t152 = t150 - t151;
        const P t153 = c[5] * t109;
        const P t154 = c[3] * t111;
        const P t155 = t153 + t154;
        const P t156 = c[4] * t113;
        const P t157 = t155 - t156;
        const P t158 = shuffled<1, 0>(t157);
        const P t159 = flipped<0, 1>(t158);
        const P t160 = t152 + t159;
        const P t161 = t152 - t159;
        const P x25 = io.pair(25);
        const P x17 = io.pair(17);
        // complex block of 7, multiplier 4
        const P t162 = x25 + x17;
        const P t163 = x25 - x17;
        const P x13 = io.pair(13);
        const P x1 = io.pair(1);
        const P t164 = x13 + x1;
        const P t165 = x13 - x1;
        const P x9 = io.pair(9);
        const P x5 = io.pair(5);
        const P t166 = x9 + x5;
        const P t167 = x9 - x5;
        const P t168 = t162 + t164;
        const P t169 = t168 + t166;
        const P x21 = io.pair(21);
        const P t170 = t169 + x21;
        const P t171 = c[0] * t162;
        const P t172 = c[1] * t164;
        const P t173 = t171 - t172;
        const P t174 = c[2] * t166;
        const P t175 = t173 - t174;
        const P t176 = t175 + x21;
        const P t177 = c[3] * t163;
        const P t178 = c[4] * t165;
        const P t179 = t177 - t178;
        const P t180 = c[5] * t167;
        const P t181 = t179 - t180;
        const P t182 = shuffled<1, 0>(t181);
        const P t183 = flipped<0, 1>(t182);
        const P t184 = t176 + t183;
        const P t185 = t176 - t183;
        const P t186 = c[1] * t162;
        const P t187 = x21 - t186;
        const P t188 = c[2] * t164;
        const P t189 = t187 - t188;
        const P t190 = c[0] * t166;
        const P t191 = t189 + t190;
        const P t192 = c[4] * t163;
        const P t193 = c[5] * t165;
        const P t194 = t192 + t193;
        const P t195 = c[3] * t167;
        const P t196 = t194 + t195;
        const P t197 = shuffled<1, 0>(t196);
        const P t198 = flipped<0, 1>(t197);
        const P t199 = t191 + t198;
        const P t200 = t191 - t198;
        const P t201 = c[2] * t162;
        const P t202 = x21 - t201;
        const P t203 = c[0] * t164;
        const P t204 = t202 + t203;
        const P t205 = c[1] * t166;
        const P t206 = t204 - t205;
        const P t207 = c[5] * t163;
        const P t208 = c[3] * t165;
        const P t209 = t207 + t208;
        const P t210 = c[4] * t167;
        const P t211 = t209 - t210;
        const P t212 = shuffled<1, 0>(t211);
        const P t213 = flipped<0, 1>(t212);
        const P t214 = t206 + t213;
        const P t215 = t206 - t213;
        // complex block of 2
        const P t216 = t8 + t116;
        const P t217 = t8 - t116;
        // complex block of 2
        const P t218 = t62 + t170;
        const P t219 = t62 - t170;
        // complex block of 2
        const P t220 = t216 + t218;
        io.pair(0, t220);
        const P t221 = t216 - t218;
        io.pair(14, t221);
        const P t222 = shuffled<1, 0>(t219);
        const P t223 = flipped<1, 0>(t222);
        // complex block of 2
        const P t224 = t217 + t223;
        io.pair(7, t224);
        const P t225 = t217 - t223;
        io.pair(21, t225);
        // complex block of 2
        const P t226 = t53 + t161;
        const P t227 = t53 - t161;
        // complex block of 2
        const P t228 = t107 + t215;
        const P t229 = t107 - t215;
        // complex block of 2
        const P t230 = t226 + t228;
        io.pair(4, t230);
        const P t231 = t226 - t228;
        io.pair(18, t231);
        const P t232 = shuffled<1, 0>(t229);
        const P t233 = flipped<1, 0>(t232);
        // complex block of 2
        const P t234 = t227 + t233;
        io.pair(11, t234);
        const P t235 = t227 - t233;
        io.pair(25, t235);
        // complex block of 2
        const P t236 = t22 + t130;
        const P t237 = t22 - t130;
        // complex block of 2
        const P t238 = t76 + t184;
        const P t239 = t76 - t184;
        // complex block of 2
        const P t240 = t236 + t238;
        io.pair(8, t240);
        const P t241 = t236 - t238;
        io.pair(22, t241);
        const P t242 = shuffled<1, 0>(t239);
        const P t243 = flipped<1, 0>(t242);
        // complex block of 2
        const P t244 = t237 + t243;
        io.pair(15, t244);
        const P t245 = t237 - t243;
        io.pair(1, t245);
        // complex block of 2
        const P t246 = t38 + t146;
        const P t247 = t38 - t146;
        // complex block of 2
        const P t248 = t92 + t200;
        const P t249 = t92 - t200;
        // complex block of 2
        const P t250 = t246 + t248;
        io.pair(12, t250);
        const P t251 = t246 - t248;
        io.pair(26, t251);
        const P t252 = shuffled<1, 0>(t249);
        const P t253 = flipped<1, 0>(t252);
        // complex block of 2
        const P t254 = t247 + t253;
        io.pair(19, t254);
        const P t255 = t247 - t253;
        io.pair(5, t255);
        // complex block of 2
        const P t256 = t37 + t145;
        const P t257 = t37 - t145;
        // complex block of 2
        const P t258 = t91 + t199;
        const P t259 = t91 - t199;
        // complex block of 2
        const P t260 = t256 + t258;
        io.pair(16, t260);
        const P t261 = t256 - t258;
        io.pair(2, t261);
        const P t262 = shuffled<1, 0>(t259);
        const P t263 = flipped<1, 0>(t262);
        // complex block of 2
        const P t264 = t257 + t263;
        io.pair(23, t264);
        const P t265 = t257 - t263;
        io.pair(9, t265);
        // complex block of 2
        const P t266 = t23 + t131;
        const P t267 = t23 - t131;
        // complex block of 2
        const P t268 = t77 + t185;
        const P t269 = t77 - t185;
        // complex block of 2
        const P t270 = t266 + t268;
        io.pair(20, t270);
        const P t271 = t266 - t268;
        io.pair(6, t271);
        const P t272 = shuffled<1, 0>(t269);
        const P t273 = flipped<1, 0>(t272);
        // complex block of 2
        const P t274 = t267 + t273;
        io.pair(27, t274);
        const P t275 = t267 - t273;
        io.pair(13, t275);
        // complex block of 2
        const P t276 = t52 + t160;
        const P t277 = t52 - t160;
        // complex block of 2
        const P t278 = t106 + t214;
        const P t279 = t106 - t214;
        // complex block of 2
        const P t280 = t276 + t278;
        io.pair(24, t280);
        const P t281 = t276 - t278;
        io.pair(10, t281);
        const P t282 = shuffled<1, 0>(t279);
        const P t283 = flipped<1, 0>(t282);
        // complex block of 2
        const P t284 = t277 + t283;
        io.pair(3, t284);
        const P t285 = t277 - t283;
        io.pair(17, t285);
    }
};

}  // namespace zulg
