// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 45.
// Forward DFT of 45 real points, prime-factor 5, 9; two lanes to a register.
// 93 sums, 65 differences, 90 products of registers, which do the 517 steps of the graph, those with
// `scale` included; 52 shuffles, 6 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<45> {
    static constexpr int steps = 517;  // with `scale`
    static constexpr double inverseRoot = 0.14907119849998599;  // 1/sqrt(45), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.30901699437494745,  // c[2]: cos 2 pi 4/5
        0.8090169943749475,  // c[3]: -cos 2 pi 12/5
        0.9510565162951535,  // c[4]: -sin 2 pi 4/5
        0.5877852522924731,  // c[5]: sin 2 pi 12/5
        0.766044443118978,  // c[6]: cos 2 pi 1/9
        0.6427876096865394,  // c[7]: sin 2 pi 1/9
        0.3420201433256687,  // c[8]: -sin 2 pi 5/9
        0.9396926207859084,  // c[9]: -cos 2 pi 5/9
        0.17364817766693036,  // c[10]: cos 2 pi 2/9
        0.984807753012208,  // c[11]: sin 2 pi 2/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x9_14 = io.in(9, 14);
        const P x36_41 = io.in(36, 41);
        // real block of 5, multiplier 4
        const P t0 = x9_14 + x36_41;
        const P t1 = x9_14 - x36_41;
        const P x27_32 = io.in(27, 32);
        const P x18_23 = io.in(18, 23);
        const P t2 = x27_32 + x18_23;
        const P t3 = x27_32 - x18_23;
        const P t4 = t0 + t2;
        const P x0_5 = io.in(0, 5);
        const P t5 = t4 + x0_5;
        const P t6 = c[2] * t0;
        const P t7 = c[3] * t2;
        const P t8 = t6 - t7;
        const P t9 = t8 + x0_5;
        const P t10 = c[4] * t1;
        const P t11 = c[5] * t3;
        const P t12 = t10 - t11;
        const P t13 = c[3] * t0;
        const P t14 = x0_5 - t13;
        const P t15 = c[2] * t2;
        const P t16 = t14 + t15;
        const P t17 = c[5] * t1;
        const P t18 = c[4] * t3;
        const P t19 = t17 + t18;
        const P x19_24 = io.in(19, 24);
        const P x1_6 = io.in(1, 6);
        // real block of 5, multiplier 4
        const P t20 = x19_24 + x1_6;
        const P t21 = x19_24 - x1_6;
        const P x37_42 = io.in(37, 42);
        const P x28_33 = io.in(28, 33);
        const P t22 = x37_42 + x28_33;
        const P t23 = x37_42 - x28_33;
        const P t24 = t20 + t22;
        const P x10_15 = io.in(10, 15);
        const P t25 = t24 + x10_15;
        const P t26 = c[2] * t20;
        const P t27 = c[3] * t22;
        const P t28 = t26 - t27;
        const P t29 = t28 + x10_15;
        const P t30 = c[4] * t21;
        const P t31 = c[5] * t23;
        const P t32 = t30 - t31;
        const P t33 = c[3] * t20;
        const P t34 = x10_15 - t33;
        const P t35 = c[2] * t22;
        const P t36 = t34 + t35;
        const P t37 = c[5] * t21;
        const P t38 = c[4] * t23;
        const P t39 = t37 + t38;
        const P x29_34 = io.in(29, 34);
        const P x11_16 = io.in(11, 16);
        // real block of 5, multiplier 4
        const P t40 = x29_34 + x11_16;
        const P t41 = x29_34 - x11_16;
        const P x2_7 = io.in(2, 7);
        const P x38_43 = io.in(38, 43);
        const P t42 = x2_7 + x38_43;
        const P t43 = x2_7 - x38_43;
        const P t44 = t40 + t42;
        const P x20_25 = io.in(20, 25);
        const P t45 = t44 + x20_25;
        const P t46 = c[2] * t40;
        const P t47 = c[3] * t42;
        const P t48 = t46 - t47;
        const P t49 = t48 + x20_25;
        const P t50 = c[4] * t41;
        const P t51 = c[5] * t43;
        const P t52 = t50 - t51;
        const P t53 = c[3] * t40;
        const P t54 = x20_25 - t53;
        const P t55 = c[2] * t42;
        const P t56 = t54 + t55;
        const P t57 = c[5] * t41;
        const P t58 = c[4] * t43;
        const P t59 = t57 + t58;
        const P x39_44 = io.in(39, 44);
        const P x21_26 = io.in(21, 26);
        // real block of 5, multiplier 4
        const P t60 = x39_44 + x21_26;
        const P t61 = x39_44 - x21_26;
        const P x12_17 = io.in(12, 17);
        const P x3_8 = io.in(3, 8);
        const P t62 = x12_17 + x3_8;
        const P t63 = x12_17 - x3_8;
        const P t64 = t60 + t62;
        const P x30_35 = io.in(30, 35);
        const P t65 = t64 + x30_35;
        const P t66 = c[2] * t60;
        const P t67 = c[3] * t62;
        const P t68 = t66 - t67;
        const P t69 = t68 + x30_35;
        const P t70 = c[4] * t61;
        const P t71 = c[5] * t63;
        const P t72 = t70 - t71;
        const P t73 = c[3] * t60;
        const P t74 = x30_35 - t73;
        const P t75 = c[2] * t62;
        const P t76 = t74 + t75;
        const P t77 = c[5] * t61;
        const P t78 = c[4] * t63;
        const P t79 = t77 + t78;
        const V x4 = io.in(4);
        const V x31 = io.in(31);
        // real block of 5, multiplier 4
        const V t80 = x4 + x31;
        const V t81 = x4 - x31;
        const V x22 = io.in(22);
        const V x13 = io.in(13);
        const V t82 = x22 + x13;
        const V t83 = x22 - x13;
        const V t84 = t80 + t82;
        const V x40 = io.in(40);
        const V t85 = t84 + x40;
        const V t86 = c[2] * t80;
        const V t87 = c[3] * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + x40;
        const V t90 = c[4] * t81;
        const V t91 = c[5] * t83;
        const V t92 = t90 - t91;
        const V t93 = c[3] * t80;
        const V t94 = x40 - t93;
        const V t95 = c[2] * t82;
        const V t96 = t94 + t95;
        const V t97 = c[5] * t81;
        const V t98 = c[4] * t83;
        const V t99 = t97 + t98;
        const P t100 = shuffled<1, 2>(t25, t45);
        // real block of 3, multiplier 2
        const P t101 = t100 + t65;
        const P t102 = t100 - t65;
        const P t103 = t101 + t5;
        const P t104 = c[0] * t101;
        const P t105 = t5 - t104;
        const V t106 = part<1>(t45);
        // real block of 3, multiplier 2
        const V t107 = t106 + t85;
        const V t108 = part<0>(t25);
        const V t109 = t107 + t108;
        const V t110 = part<1>(t103);
        // real block of 3, multiplier 2
        const V t111 = t110 + t109;
        const P t112 = shuffled<1, 3>(t45, t103);
        const P t113 = joined(t85, t109);
        // real block of 3, multiplier 2
        const P t114 = t112 - t113;
        const V t115 = part<0>(t103);
        // real block of 3, multiplier 2
        const V t116 = t111 + t115;
        io.re(0, t116);
        const P t117 = shuffled<0, 2>(t25, t103);
        const P t118 = joined(t107, t111);
        // real block of 3, multiplier 2
        const P t119 = c[0] * t118;
        const P t120 = t117 - t119;
        const P t121 = c[1] * t114;
        const P t122 = shuffled<1, 3>(t120, t121);
        io.pair(15, t122);
        // real block of 3, multiplier 2
        const P t123 = c[1] * t102;
        const P t124 = shuffled<1, 3>(t123, t105);
        // real block of 9, multiplier 5
        const P t125 = c[8] * t124;
        const P t126 = shuffled<1, 0>(t124);
        const P t127 = P(c[9], -c[9]) * t126;
        const P t128 = t125 + t127;
        const P t129 = shuffled<0, 2>(t120, t121);
        const P t130 = c[6] * t129;
        const P t131 = shuffled<1, 0>(t129);
        const P t132 = P(c[7], -c[7]) * t131;
        const P t133 = t130 + t132;
        const P t134 = flipped<1, 0>(t128);
        // complex block of 3, multiplier 2
        const P t135 = t134 + t133;
        const P t136 = flipped<0, 1>(t133);
        const P t137 = t128 + t136;
        const P t138 = shuffled<0, 2>(t105, t123);
        const P t139 = t135 + t138;
        io.pair(5, t139);
        const P t140 = c[0] * t135;
        const P t141 = t138 - t140;
        const P t142 = c[1] * t137;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = t141 + t143;
        io.pair(10, negated<0, 1>(t144));
        const P t145 = t141 - t143;
        io.pair(20, t145);
        const P t146 = shuffled<1, 3>(t29, t32);
        const P t147 = shuffled<0, 2>(t69, t72);
        // complex block of 3, multiplier 2
        const P t148 = t146 + t147;
        const P t149 = t146 - t147;
        const P t150 = shuffled<0, 2>(t9, t12);
        const P t151 = t148 + t150;
        const P t152 = c[0] * t148;
        const P t153 = t150 - t152;
        const P t154 = P(-c[1], c[1]) * t149;
        const P t155 = shuffled<1, 0>(t154);
        const P t156 = t153 + t155;
        const P t157 = t153 - t155;
        const P t158 = shuffled<0, 2>(t49, t52);
        const P t159 = shuffled<1, 3>(t69, t72);
        // complex block of 3, multiplier 2
        const P t160 = t158 + t159;
        const P t161 = t158 - t159;
        const P t162 = shuffled<1, 3>(t9, t12);
        const P t163 = t160 + t162;
        const P t164 = c[0] * t160;
        const P t165 = t162 - t164;
        const P t166 = P(-c[1], c[1]) * t161;
        const P t167 = shuffled<1, 0>(t166);
        const P t168 = t165 + t167;
        const P t169 = t165 - t167;
        const P t170 = shuffled<1, 3>(t49, t52);
        const P t171 = joined(t89, t92);
        // complex block of 3, multiplier 2
        const P t172 = t170 + t171;
        const P t173 = t170 - t171;
        const P t174 = shuffled<0, 2>(t29, t32);
        const P t175 = t172 + t174;
        const P t176 = c[0] * t172;
        const P t177 = t174 - t176;
        const P t178 = P(-c[1], c[1]) * t173;
        const P t179 = shuffled<1, 0>(t178);
        const P t180 = t177 + t179;
        const P t181 = t177 - t179;
        // complex block of 3, multiplier 2
        const P t182 = t163 + t175;
        const P t183 = t163 - t175;
        const P t184 = t182 + t151;
        io.pair(9, t184);
        const P t185 = c[0] * t182;
        const P t186 = t151 - t185;
        const P t187 = P(-c[1], c[1]) * t183;
        const P t188 = shuffled<1, 0>(t187);
        const P t189 = t186 + t188;
        io.pair(6, negated<0, 1>(t189));
        const P t190 = t186 - t188;
        io.pair(21, negated<0, 1>(t190));
        const P t191 = shuffled<1, 0>(t169);
        // complex block of 9, multiplier 5
        const P t192 = c[8] * t191;
        const P t193 = P(c[9], -c[9]) * t169;
        const P t194 = t192 + t193;
        const P t195 = c[6] * t181;
        const P t196 = shuffled<1, 0>(t181);
        const P t197 = P(c[7], -c[7]) * t196;
        const P t198 = t195 + t197;
        const P t199 = flipped<1, 0>(t194);
        // complex block of 3, multiplier 2
        const P t200 = t199 + t198;
        const P t201 = flipped<0, 1>(t198);
        const P t202 = t194 + t201;
        const P t203 = t200 + t157;
        io.pair(14, t203);
        const P t204 = c[0] * t200;
        const P t205 = t157 - t204;
        const P t206 = c[1] * t202;
        const P t207 = shuffled<1, 0>(t206);
        const P t208 = t205 + t207;
        io.pair(1, negated<0, 1>(t208));
        const P t209 = t205 - t207;
        io.pair(16, negated<0, 1>(t209));
        // complex block of 9, multiplier 5
        const P t210 = c[6] * t168;
        const P t211 = shuffled<1, 0>(t168);
        const P t212 = P(c[7], -c[7]) * t211;
        const P t213 = t210 + t212;
        const P t214 = c[10] * t180;
        const P t215 = shuffled<1, 0>(t180);
        const P t216 = P(c[11], -c[11]) * t215;
        const P t217 = t214 + t216;
        // complex block of 3, multiplier 2
        const P t218 = t213 + t217;
        const P t219 = t213 - t217;
        const P t220 = t218 + t156;
        io.pair(19, t220);
        const P t221 = c[0] * t218;
        const P t222 = t156 - t221;
        const P t223 = P(-c[1], c[1]) * t219;
        const P t224 = shuffled<1, 0>(t223);
        const P t225 = t222 + t224;
        io.pair(4, t225);
        const P t226 = t222 - t224;
        io.pair(11, negated<0, 1>(t226));
        const P t227 = shuffled<1, 3>(t36, t39);
        const P t228 = shuffled<0, 2>(t76, t79);
        // complex block of 3, multiplier 2
        const P t229 = t227 + t228;
        const P t230 = t227 - t228;
        const P t231 = shuffled<0, 2>(t16, t19);
        const P t232 = t229 + t231;
        const P t233 = c[0] * t229;
        const P t234 = t231 - t233;
        const P t235 = P(-c[1], c[1]) * t230;
        const P t236 = shuffled<1, 0>(t235);
        const P t237 = t234 + t236;
        const P t238 = t234 - t236;
        const P t239 = shuffled<0, 2>(t56, t59);
        const P t240 = shuffled<1, 3>(t76, t79);
        // complex block of 3, multiplier 2
        const P t241 = t239 + t240;
        const P t242 = t239 - t240;
        const P t243 = shuffled<1, 3>(t16, t19);
        const P t244 = t241 + t243;
        const P t245 = c[0] * t241;
        const P t246 = t243 - t245;
        const P t247 = P(-c[1], c[1]) * t242;
        const P t248 = shuffled<1, 0>(t247);
        const P t249 = t246 + t248;
        const P t250 = t246 - t248;
        const P t251 = shuffled<1, 3>(t56, t59);
        const P t252 = joined(t96, t99);
        // complex block of 3, multiplier 2
        const P t253 = t251 + t252;
        const P t254 = t251 - t252;
        const P t255 = shuffled<0, 2>(t36, t39);
        const P t256 = t253 + t255;
        const P t257 = c[0] * t253;
        const P t258 = t255 - t257;
        const P t259 = P(-c[1], c[1]) * t254;
        const P t260 = shuffled<1, 0>(t259);
        const P t261 = t258 + t260;
        const P t262 = t258 - t260;
        // complex block of 3, multiplier 2
        const P t263 = t244 + t256;
        const P t264 = t244 - t256;
        const P t265 = t263 + t232;
        io.pair(18, t265);
        const P t266 = c[0] * t263;
        const P t267 = t232 - t266;
        const P t268 = P(-c[1], c[1]) * t264;
        const P t269 = shuffled<1, 0>(t268);
        const P t270 = t267 + t269;
        io.pair(3, t270);
        const P t271 = t267 - t269;
        io.pair(12, negated<0, 1>(t271));
        const P t272 = shuffled<1, 0>(t250);
        // complex block of 9, multiplier 5
        const P t273 = c[8] * t272;
        const P t274 = P(c[9], -c[9]) * t250;
        const P t275 = t273 + t274;
        const P t276 = c[6] * t262;
        const P t277 = shuffled<1, 0>(t262);
        const P t278 = P(c[7], -c[7]) * t277;
        const P t279 = t276 + t278;
        const P t280 = flipped<1, 0>(t275);
        // complex block of 3, multiplier 2
        const P t281 = t280 + t279;
        const P t282 = flipped<0, 1>(t279);
        const P t283 = t275 + t282;
        const P t284 = t281 + t238;
        io.pair(22, negated<0, 1>(t284));
        const P t285 = c[0] * t281;
        const P t286 = t238 - t285;
        const P t287 = c[1] * t283;
        const P t288 = shuffled<1, 0>(t287);
        const P t289 = t286 + t288;
        io.pair(8, t289);
        const P t290 = t286 - t288;
        io.pair(7, negated<0, 1>(t290));
        // complex block of 9, multiplier 5
        const P t291 = c[6] * t249;
        const P t292 = shuffled<1, 0>(t249);
        const P t293 = P(c[7], -c[7]) * t292;
        const P t294 = t291 + t293;
        const P t295 = c[10] * t261;
        const P t296 = shuffled<1, 0>(t261);
        const P t297 = P(c[11], -c[11]) * t296;
        const P t298 = t295 + t297;
        // complex block of 3, multiplier 2
        const P t299 = t294 + t298;
        const P t300 = t294 - t298;
        const P t301 = t299 + t237;
        io.pair(17, negated<0, 1>(t301));
        const P t302 = c[0] * t299;
        const P t303 = t237 - t302;
        const P t304 = P(-c[1], c[1]) * t300;
        const P t305 = shuffled<1, 0>(t304);
        const P t306 = t303 + t305;
        io.pair(13, t306);
        const P t307 = t303 - t305;
        io.pair(2, negated<0, 1>(t307));
    }
};

}  // namespace zulg
