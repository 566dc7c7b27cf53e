// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 30.
// Complex DFT of 30 points, prime-factor, order 5, 3, 2; one complex number to a register.
// 99 sums, 87 differences, 68 products of registers, which do the 568 steps of the graph, those with
// `scale` included; 22 shuffles, 12 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<30> {
    static constexpr int steps = 568;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x6 = io.pair(6);
        const P x24 = io.pair(24);
        // complex block of 5
        const P t0 = x6 + x24;
        const P t1 = x6 - x24;
        const P x18 = io.pair(18);
        const P x12 = io.pair(12);
        const P t2 = x18 + x12;
        const P t3 = x18 - x12;
        const P t4 = t0 + t2;
        const P x0 = io.pair(0);
        const P t5 = t4 + x0;
        const P t6 = c[0] * t0;
        const P t7 = c[1] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x0;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 - t11;
        const P t13 = shuffled<1, 0>(t12);
        const P t14 = flipped<0, 1>(t13);
        const P t15 = t9 + t14;
        const P t16 = t9 - t14;
        const P t17 = c[1] * t0;
        const P t18 = x0 - t17;
        const P t19 = c[0] * t2;
        const P t20 = t18 + t19;
        const P t21 = c[3] * t1;
        const P t22 = c[2] * t3;
        const P t23 = t21 + t22;
        const P t24 = shuffled<1, 0>(t23);
        const P t25 = flipped<0, 1>(t24);
        const P t26 = t20 + t25;
        const P t27 = t20 - t25;
        const P x21 = io.pair(21);
        const P x9 = io.pair(9);
        // complex block of 5
        const P t28 = x21 + x9;
        const P t29 = x21 - x9;
        const P x3 = io.pair(3);
        const P x27 = io.pair(27);
        const P t30 = x3 + x27;
        const P t31 = x3 - x27;
        const P t32 = t28 + t30;
        const P x15 = io.pair(15);
        const P t33 = t32 + x15;
        const P t34 = c[0] * t28;
        const P t35 = c[1] * t30;
        const P t36 = t34 - t35;
        const P t37 = t36 + x15;
        const P t38 = c[2] * t29;
        const P t39 = c[3] * t31;
        const P t40 = t38 - t39;
        const P t41 = shuffled<1, 0>(t40);
        const P t42 = flipped<0, 1>(t41);
        const P t43 = t37 + t42;
        const P t44 = t37 - t42;
        const P t45 = c[1] * t28;
        const P t46 = x15 - t45;
        const P t47 = c[0] * t30;
        const P t48 = t46 + t47;
        const P t49 = c[3] * t29;
        const P t50 = c[2] * t31;
        const P t51 = t49 + t50;
        const P t52 = shuffled<1, 0>(t51);
        const P t53 = flipped<0, 1>(t52);
        const P t54 = t48 + t53;
        const P t55 = t48 - t53;
        const P x16 = io.pair(16);
        const P x4 = io.pair(4);
        // complex block of 5
        const P t56 = x16 + x4;
        const P t57 = x16 - x4;
        const P x28 = io.pair(28);
        const P x22 = io.pair(22);
        const P t58 = x28 + x22;
        const P t59 = x28 - x22;
        const P t60 = t56 + t58;
        const P x10 = io.pair(10);
        const P t61 = t60 + x10;
        const P t62 = c[0] * t56;
        const P t63 = c[1] * t58;
        const P t64 = t62 - t63;
        const P t65 = t64 + x10;
        const P t66 = c[2] * t57;
        const P t67 = c[3] * t59;
        const P t68 = t66 - t67;
        const P t69 = shuffled<1, 0>(t68);
        const P t70 = flipped<0, 1>(t69);
        const P t71 = t65 + t70;
        const P t72 = t65 - t70;
        const P t73 = c[1] * t56;
        const P t74 = x10 - t73;
        const P t75 = c[0] * t58;
        const P t76 = t74 + t75;
        const P t77 = c[3] * t57;
        const P t78 = c[2] * t59;
        const P t79 = t77 + t78;
        const P t80 = shuffled<1, 0>(t79);
        const P t81 = flipped<0, 1>(t80);
        const P t82 = t76 + t81;
        const P t83 = t76 - t81;
        const P x1 = io.pair(1);
        const P x19 = io.pair(19);
        // complex block of 5
        const P t84 = x1 + x19;
        const P t85 = x1 - x19;
        const P x13 = io.pair(13);
        const P x7 = io.pair(7);
        const P t86 = x13 + x7;
        const P t87 = x13 - x7;
        const P t88 = t84 + t86;
        const P x25 = io.pair(25);
        const P t89 = t88 + x25;
        const P t90 = c[0] * t84;
        const P t91 = c[1] * t86;
        const P t92 = t90 - t91;
        const P t93 = t92 + x25;
        const P t94 = c[2] * t85;
        const P t95 = c[3] * t87;
        const P t96 = t94 - t95;
        const P t97 = shuffled<1, 0>(t96);
        const P t98 = flipped<0, 1>(t97);
        const P t99 = t93 + t98;
        const P t100 = t93 - t98;
        const P t101 = c[1] * t84;
        const P t102 = x25 - t101;
        const P t103 = c[0] * t86;
        const P t104 = t102 + t103;
        const P t105 = c[3] * t85;
        const P t106 = c[2] * t87;
        const P t107 = t105 + t106;
        const P t108 = shuffled<1, 0>(t107);
        const P t109 = flipped<0, 1>(t108);
        const P t110 = t104 + t109;
        const P t111 = t104 - t109;
        const P x26 = io.pair(26);
        const P x14 = io.pair(14);
        // complex block of 5
        const P t112 = x26 + x14;
        const P t113 = x26 - x14;
        const P x8 = io.pair(8);
        const P x2 = io.pair(2);
        const P t114 = x8 + x2;
        const P t115 = x8 - x2;
        const P t116 = t112 + t114;
        const P x20 = io.pair(20);
        const P t117 = t116 + x20;
        const P t118 = c[0] * t112;
        const P t119 = c[1] * t114;
        const P t120 = t118 - t119;
        const P t121 = t120 + x20;
        const P t122 = c[2] * t113;
        const P t123 = c[3] * t115;
        const P t124 = t122 - t123;
        const P t125 = shuffled<1, 0>(t124);
        const P t126 = flipped<0, 1>(t125);
        const P t127 = t121 + t126;
        const P t128 = t121 - t126;
        const P t129 = c[1] * t112;
        const P t130 = x20 - t129;
        const P t131 = c[0] * t114;
        const P t132 = t130 + t131;
        const P t133 = c[3] * t113;
        const P t134 = c[2] * t115;
        const P t135 = t133 + t134;
        const P t136 = shuffled<1, 0>(t135);
        const P t137 = flipped<0, 1>(t136);
        const P t138 = t132 + t137;
        const P t139 = t132 - t137;
        const P x11 = io.pair(11);
        const P x29 = io.pair(29);
        // complex block of 5
        const P t140 = x11 + x29;
        const P t141 = x11 - x29;
        const P x23 = io.pair(23);
        const P x17 = io.pair(17);
        const P t142 = x23 + x17;
        const P t143 = x23 - x17;
        const P t144 = t140 + t142;
        const P x5 = io.pair(5);
        const P t145 = t144 + x5;
        const P t146 = c[0] * t140;
        const P t147 = c[1] * t142;
        const P t148 = t146 - t147;
        const P t149 = t148 + x5;
        const P t150 = c[2] * t141;
        const P t151 = c[3] * t143;
        const P t152 = t150 - t151;
        const P t153 = shuffled<1, 0>(t152);
        const P t154 = flipped<0, 1>(t153);
        const P t155 = t149 + t154;
        const P t156 = t149 - t154;
        const P t157 = c[1] * t140;
        const P t158 = x5 - t157;
        const P t159 = c[0] * t142;
        const P t160 = t158 + t159;
        const P t161 = c[3] * t141;
        const P t162 = c[2] * t143;
        const P t163 = t161 + t162;
        const P t164 = shuffled<1, 0>(t163);
        const P t165 = flipped<0, 1>(t164);
        const P t166 = t160 + t165;
        const P t167 = t160 - t165;
        // complex block of 3
        const P t168 = t61 + t117;
        const P t169 = t61 - t117;
        const P t170 = t168 + t5;
        const P t171 = c[4] * t168;
        const P t172 = t5 - t171;
        const P t173 = P(-c[5], c[5]) * t169;
        const P t174 = shuffled<1, 0>(t173);
        const P t175 = t172 + t174;
        const P t176 = t172 - t174;
        // complex block of 3
        const P t177 = t89 + t145;
        const P t178 = t89 - t145;
        const P t179 = t177 + t33;
        const P t180 = c[4] * t177;
        const P t181 = t33 - t180;
        const P t182 = P(-c[5], c[5]) * t178;
        const P t183 = shuffled<1, 0>(t182);
        const P t184 = t181 + t183;
        const P t185 = t181 - t183;
        // complex block of 3
        const P t186 = t71 + t127;
        const P t187 = t71 - t127;
        const P t188 = t186 + t15;
        const P t189 = c[4] * t186;
        const P t190 = t15 - t189;
        const P t191 = P(-c[5], c[5]) * t187;
        const P t192 = shuffled<1, 0>(t191);
        const P t193 = t190 + t192;
        const P t194 = t190 - t192;
        // complex block of 3
        const P t195 = t99 + t155;
        const P t196 = t99 - t155;
        const P t197 = t195 + t43;
        const P t198 = c[4] * t195;
        const P t199 = t43 - t198;
        const P t200 = P(-c[5], c[5]) * t196;
        const P t201 = shuffled<1, 0>(t200);
        const P t202 = t199 + t201;
        const P t203 = t199 - t201;
        // complex block of 3
        const P t204 = t82 + t138;
        const P t205 = t82 - t138;
        const P t206 = t204 + t26;
        const P t207 = c[4] * t204;
        const P t208 = t26 - t207;
        const P t209 = P(-c[5], c[5]) * t205;
        const P t210 = shuffled<1, 0>(t209);
        const P t211 = t208 + t210;
        const P t212 = t208 - t210;
        // complex block of 3
        const P t213 = t110 + t166;
        const P t214 = t110 - t166;
        const P t215 = t213 + t54;
        const P t216 = c[4] * t213;
        const P t217 = t54 - t216;
        const P t218 = P(-c[5], c[5]) * t214;
        const P t219 = shuffled<1, 0>(t218);
        const P t220 = t217 + t219;
        const P t221 = t217 - t219;
        // complex block of 3
        const P t222 = t83 + t139;
        const P t223 = t83 - t139;
        const P t224 = t222 + t27;
        const P t225 = c[4] * t222;
        const P t226 = t27 - t225;
        const P t227 = P(-c[5], c[5]) * t223;
        const P t228 = shuffled<1, 0>(t227);
        const P t229 = t226 + t228;
        const P t230 = t226 - t228;
        // complex block of 3
        const P t231 = t111 + t167;
        const P t232 = t111 - t167;
        const P t233 = t231 + t55;
        const P t234 = c[4] * t231;
        const P t235 = t55 - t234;
        const P t236 = P(-c[5], c[5]) * t232;
        const P t237 = shuffled<1, 0>(t236);
        const P t238 = t235 + t237;
        const P t239 = t235 - t237;
        // complex block of 3
        const P t240 = t72 + t128;
        const P t241 = t72 - t128;
        const P t242 = t240 + t16;
        const P t243 = c[4] * t240;
        const P t244 = t16 - t243;
        const P t245 = P(-c[5], c[5]) * t241;
        const P t246 = shuffled<1, 0>(t245);
        const P t247 = t244 + t246;
        const P t248 = t244 - t246;
        // complex block of 3
        const P t249 = t100 + t156;
        const P t250 = t100 - t156;
        const P t251 = t249 + t44;
        const P t252 = c[4] * t249;
        const P t253 = t44 - t252;
        const P t254 = P(-c[5], c[5]) * t250;
        const P t255 = shuffled<1, 0>(t254);
        const P t256 = t253 + t255;
        const P t257 = t253 - t255;
        // complex block of 2
        const P t258 = t170 + t179;
        io.pair(0, t258);
        const P t259 = t170 - t179;
        io.pair(15, t259);
        // complex block of 2
        const P t260 = t175 + t184;
        io.pair(10, t260);
        const P t261 = t175 - t184;
        io.pair(25, t261);
        // complex block of 2
        const P t262 = t176 + t185;
        io.pair(20, t262);
        const P t263 = t176 - t185;
        io.pair(5, t263);
        // complex block of 2
        const P t264 = t188 + t197;
        io.pair(6, t264);
        const P t265 = t188 - t197;
        io.pair(21, t265);
        // complex block of 2
        const P t266 = t193 + t202;
        io.pair(16, t266);
        const P t267 = t193 - t202;
        io.pair(1, t267);
        // complex block of 2
        const P t268 = t194 + t203;
        io.pair(26, t268);
        const P t269 = t194 - t203;
        io.pair(11, t269);
        // complex block of 2
        const P t270 = t206 + t215;
        io.pair(12, t270);
        const P t271 = t206 - t215;
        io.pair(27, t271);
        // complex block of 2
        const P t272 = t211 + t220;
        io.pair(22, t272);
        const P t273 = t211 - t220;
        io.pair(7, t273);
        // complex block of 2
        const P t274 = t212 + t221;
        io.pair(2, t274);
        const P t275 = t212 - t221;
        io.pair(17, t275);
        // complex block of 2
        const P t276 = t224 + t233;
        io.pair(18, t276);
        const P t277 = t224 - t233;
        io.pair(3, t277);
        // complex block of 2
        const P t278 = t229 + t238;
        io.pair(28, t278);
        const P t279 = t229 - t238;
        io.pair(13, t279);
        // complex block of 2
        const P t280 = t230 + t239;
        io.pair(8, t280);
        const P t281 = t230 - t239;
        io.pair(23, t281);
        // complex block of 2
        const P t282 = t242 + t251;
        io.pair(24, t282);
        const P t283 = t242 - t251;
        io.pair(9, t283);
        // complex block of 2
        const P t284 = t247 + t256;
        io.pair(4, t284);
        const P t285 = t247 - t256;
        io.pair(19, t285);
        // complex block of 2
        const P t286 = t248 + t257;
        io.pair(14, t286);
        const P t287 = t248 - t257;
        io.pair(29, t287);
    }
};

}  // namespace zulg
