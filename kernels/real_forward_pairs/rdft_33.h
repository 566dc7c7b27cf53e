// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 33.
// Forward DFT of 33 real points, prime-factor 11, 3; two lanes to a register.
// 76 sums, 78 differences, 112 products of registers, which do the 449 steps of the graph, those with
// `scale` included; 24 shuffles, 1 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<33> {
    static constexpr int steps = 449;  // with `scale`
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double constants[] = {
        0.14231483827328514,  // c[0]: -cos 2 pi 3/11
        0.9594929736144974,  // c[1]: -cos 2 pi 27/11
        0.41541501300188644,  // c[2]: cos 2 pi 9/11
        0.8412535328311812,  // c[3]: cos 2 pi 12/11
        0.6548607339452851,  // c[4]: -cos 2 pi 18/11
        0.9096319953545183,  // c[5]: -sin 2 pi 9/11
        0.7557495743542583,  // c[6]: -sin 2 pi 18/11
        0.9898214418809327,  // c[7]: sin 2 pi 3/11
        0.28173255684142967,  // c[8]: sin 2 pi 27/11
        0.5406408174555976,  // c[9]: sin 2 pi 12/11
        0.5,  // c[10]: -cos 2 pi 2/3
        0.8660254037844386,  // c[11]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x3_14 = io.in(3, 14);
        const P x30_8 = io.in(30, 8);
        // real block of 11, multiplier 3
        const P t0 = x3_14 + x30_8;
        const P t1 = x3_14 - x30_8;
        const P x27_5 = io.in(27, 5);
        const P x6_17 = io.in(6, 17);
        const P t2 = x27_5 + x6_17;
        const P t3 = x27_5 - x6_17;
        const P x9_20 = io.in(9, 20);
        const P x24_2 = io.in(24, 2);
        const P t4 = x9_20 + x24_2;
        const P t5 = x9_20 - x24_2;
        const P x12_23 = io.in(12, 23);
        const P x21_32 = io.in(21, 32);
        const P t6 = x12_23 + x21_32;
        const P t7 = x12_23 - x21_32;
        const P x18_29 = io.in(18, 29);
        const P x15_26 = io.in(15, 26);
        const P t8 = x18_29 + x15_26;
        const P t9 = x18_29 - x15_26;
        const P t10 = t0 + t2;
        const P t11 = t10 + t4;
        const P t12 = t11 + t6;
        const P t13 = t12 + t8;
        const P x0_11 = io.in(0, 11);
        const P t14 = t13 + x0_11;
        const P t15 = c[0] * t0;
        const P t16 = x0_11 - t15;
        const P t17 = c[1] * t2;
        const P t18 = t16 - t17;
        const P t19 = c[2] * t4;
        const P t20 = t18 + t19;
        const P t21 = c[3] * t6;
        const P t22 = t20 + t21;
        const P t23 = c[4] * t8;
        const P t24 = t22 - t23;
        const P t25 = c[5] * t5;
        const P t26 = c[6] * t9;
        const P t27 = t25 + t26;
        const P t28 = c[7] * t1;
        const P t29 = t27 - t28;
        const P t30 = c[8] * t3;
        const P t31 = t29 - t30;
        const P t32 = c[9] * t7;
        const P t33 = t31 - t32;
        const P t34 = c[1] * t0;
        const P t35 = x0_11 - t34;
        const P t36 = c[3] * t2;
        const P t37 = t35 + t36;
        const P t38 = c[4] * t4;
        const P t39 = t37 - t38;
        const P t40 = c[2] * t6;
        const P t41 = t39 + t40;
        const P t42 = c[0] * t8;
        const P t43 = t41 - t42;
        const P t44 = c[8] * t1;
        const P t45 = c[9] * t3;
        const P t46 = t44 + t45;
        const P t47 = c[6] * t5;
        const P t48 = t46 + t47;
        const P t49 = c[5] * t7;
        const P t50 = t48 - t49;
        const P t51 = c[7] * t9;
        const P t52 = t50 - t51;
        const P t53 = c[2] * t0;
        const P t54 = c[4] * t2;
        const P t55 = t53 - t54;
        const P t56 = c[1] * t4;
        const P t57 = t55 - t56;
        const P t58 = c[0] * t6;
        const P t59 = t57 - t58;
        const P t60 = c[3] * t8;
        const P t61 = t59 + t60;
        const P t62 = t61 + x0_11;
        const P t63 = c[5] * t1;
        const P t64 = c[9] * t9;
        const P t65 = t63 + t64;
        const P t66 = c[6] * t3;
        const P t67 = t65 - t66;
        const P t68 = c[8] * t5;
        const P t69 = t67 - t68;
        const P t70 = c[7] * t7;
        const P t71 = t69 - t70;
        const P t72 = c[3] * t0;
        const P t73 = c[2] * t2;
        const P t74 = t72 + t73;
        const P t75 = c[0] * t4;
        const P t76 = t74 - t75;
        const P t77 = c[4] * t6;
        const P t78 = t76 - t77;
        const P t79 = c[1] * t8;
        const P t80 = t78 - t79;
        const P t81 = t80 + x0_11;
        const P t82 = c[5] * t3;
        const P t83 = c[8] * t9;
        const P t84 = t82 + t83;
        const P t85 = c[9] * t1;
        const P t86 = t84 - t85;
        const P t87 = c[7] * t5;
        const P t88 = t86 - t87;
        const P t89 = c[6] * t7;
        const P t90 = t88 - t89;
        const P t91 = c[4] * t0;
        const P t92 = x0_11 - t91;
        const P t93 = c[0] * t2;
        const P t94 = t92 - t93;
        const P t95 = c[3] * t4;
        const P t96 = t94 + t95;
        const P t97 = c[1] * t6;
        const P t98 = t96 - t97;
        const P t99 = c[2] * t8;
        const P t100 = t98 + t99;
        const P t101 = c[6] * t1;
        const P t102 = c[7] * t3;
        const P t103 = t101 + t102;
        const P t104 = c[9] * t5;
        const P t105 = t103 + t104;
        const P t106 = c[8] * t7;
        const P t107 = t105 + t106;
        const P t108 = c[5] * t9;
        const P t109 = t107 + t108;
        const V x25 = io.in(25);
        const V x19 = io.in(19);
        // real block of 11, multiplier 3
        const V t110 = x25 + x19;
        const V t111 = x25 - x19;
        const V x16 = io.in(16);
        const V x28 = io.in(28);
        const V t112 = x16 + x28;
        const V t113 = x16 - x28;
        const V x31 = io.in(31);
        const V x13 = io.in(13);
        const V t114 = x31 + x13;
        const V t115 = x31 - x13;
        const V x1 = io.in(1);
        const V x10 = io.in(10);
        const V t116 = x1 + x10;
        const V t117 = x1 - x10;
        const V x7 = io.in(7);
        const V x4 = io.in(4);
        const V t118 = x7 + x4;
        const V t119 = x7 - x4;
        const V t120 = t110 + t112;
        const V t121 = t120 + t114;
        const V t122 = t121 + t116;
        const V t123 = t122 + t118;
        const V x22 = io.in(22);
        const V t124 = t123 + x22;
        const V t125 = c[0] * t110;
        const V t126 = x22 - t125;
        const V t127 = c[1] * t112;
        const V t128 = t126 - t127;
        const V t129 = c[2] * t114;
        const V t130 = t128 + t129;
        const V t131 = c[3] * t116;
        const V t132 = t130 + t131;
        const V t133 = c[4] * t118;
        const V t134 = t132 - t133;
        const V t135 = c[5] * t115;
        const V t136 = c[6] * t119;
        const V t137 = t135 + t136;
        const V t138 = c[7] * t111;
        const V t139 = t137 - t138;
        const V t140 = c[8] * t113;
        const V t141 = t139 - t140;
        const V t142 = c[9] * t117;
        const V t143 = t141 - t142;
        const V t144 = c[1] * t110;
        const V t145 = x22 - t144;
        const V t146 = c[3] * t112;
        const V t147 = t145 + t146;
        const V t148 = c[4] * t114;
        const V t149 = t147 - t148;
        const V t150 = c[2] * t116;
        const V t151 = t149 + t150;
        const V t152 = c[0] * t118;
        const V t153 = t151 - t152;
        const V t154 = c[8] * t111;
        const V t155 = c[9] * t113;
        const V t156 = t154 + t155;
        const V t157 = c[6] * t115;
        const V t158 = t156 + t157;
        const V t159 = c[5] * t117;
        const V t160 = t158 - t159;
        const V t161 = c[7] * t119;
        const V t162 = t160 - t161;
        const V t163 = c[2] * t110;
        const V t164 = c[4] * t112;
        const V t165 = t163 - t164;
        const V t166 = c[1] * t114;
        const V t167 = t165 - t166;
        const V t168 = c[0] * t116;
        const V t169 = t167 - t168;
        const V t170 = c[3] * t118;
        const V t171 = t169 + t170;
        const V t172 = t171 + x22;
        const V t173 = c[5] * t111;
        const V t174 = c[9] * t119;
        const V t175 = t173 + t174;
        const V t176 = c[6] * t113;
        const V t177 = t175 - t176;
        const V t178 = c[8] * t115;
        const V t179 = t177 - t178;
        const V t180 = c[7] * t117;
        const V t181 = t179 - t180;
        const V t182 = c[3] * t110;
        const V t183 = c[2] * t112;
        const V t184 = t182 + t183;
        const V t185 = c[0] * t114;
        const V t186 = t184 - t185;
        const V t187 = c[4] * t116;
        const V t188 = t186 - t187;
        const V t189 = c[1] * t118;
        const V t190 = t188 - t189;
        const V t191 = t190 + x22;
        const V t192 = c[5] * t113;
        const V t193 = c[8] * t119;
        const V t194 = t192 + t193;
        const V t195 = c[9] * t111;
        const V t196 = t194 - t195;
        const V t197 = c[7] * t115;
        const V t198 = t196 - t197;
        const V t199 = c[6] * t117;
        const V t200 = t198 - t199;
        const V t201 = c[4] * t110;
        const V t202 = x22 - t201;
        const V t203 = c[0] * t112;
        const V t204 = t202 - t203;
        const V t205 = c[3] * t114;
        const V t206 = t204 + t205;
        const V t207 = c[1] * t116;
        const V t208 = t206 - t207;
        const V t209 = c[2] * t118;
        const V t210 = t208 + t209;
        const V t211 = c[6] * t111;
        const V t212 = c[7] * t113;
        const V t213 = t211 + t212;
        const V t214 = c[9] * t115;
        const V t215 = t213 + t214;
        const V t216 = c[8] * t117;
        const V t217 = t215 + t216;
        const V t218 = c[5] * t119;
        const V t219 = t217 + t218;
        const V t220 = part<1>(t14);
        // real block of 3, multiplier 2
        const V t221 = t220 + t124;
        const V t222 = t220 - t124;
        const V t223 = part<0>(t14);
        const V t224 = t221 + t223;
        io.re(0, t224);
        const V t225 = c[10] * t221;
        const V t226 = t223 - t225;
        const V t227 = c[11] * t222;
        const P t228 = joined(t226, t227);
        io.pair(11, t228);
        const P t229 = shuffled<1, 3>(t24, t33);
        const P t230 = joined(t134, t143);
        // complex block of 3, multiplier 2
        const P t231 = t229 + t230;
        const P t232 = t229 - t230;
        const P t233 = shuffled<0, 2>(t24, t33);
        const P t234 = t231 + t233;
        io.pair(3, t234);
        const P t235 = c[10] * t231;
        const P t236 = t233 - t235;
        const P t237 = P(-c[11], c[11]) * t232;
        const P t238 = shuffled<1, 0>(t237);
        const P t239 = t236 + t238;
        io.pair(8, negated<0, 1>(t239));
        const P t240 = t236 - t238;
        io.pair(14, t240);
        const P t241 = shuffled<1, 3>(t43, t52);
        const P t242 = joined(t153, t162);
        // complex block of 3, multiplier 2
        const P t243 = t241 + t242;
        const P t244 = t241 - t242;
        const P t245 = shuffled<0, 2>(t43, t52);
        const P t246 = t243 + t245;
        io.pair(6, t246);
        const P t247 = c[10] * t243;
        const P t248 = t245 - t247;
        const P t249 = P(-c[11], c[11]) * t244;
        const P t250 = shuffled<1, 0>(t249);
        const P t251 = t248 + t250;
        io.pair(5, negated<0, 1>(t251));
        const P t252 = t248 - t250;
        io.pair(16, negated<0, 1>(t252));
        const P t253 = shuffled<1, 3>(t62, t71);
        const P t254 = joined(t172, t181);
        // complex block of 3, multiplier 2
        const P t255 = t253 + t254;
        const P t256 = t253 - t254;
        const P t257 = shuffled<0, 2>(t62, t71);
        const P t258 = t255 + t257;
        io.pair(9, t258);
        const P t259 = c[10] * t255;
        const P t260 = t257 - t259;
        const P t261 = P(-c[11], c[11]) * t256;
        const P t262 = shuffled<1, 0>(t261);
        const P t263 = t260 + t262;
        io.pair(2, negated<0, 1>(t263));
        const P t264 = t260 - t262;
        io.pair(13, negated<0, 1>(t264));
        const P t265 = shuffled<1, 3>(t81, t90);
        const P t266 = joined(t191, t200);
        // complex block of 3, multiplier 2
        const P t267 = t265 + t266;
        const P t268 = t265 - t266;
        const P t269 = shuffled<0, 2>(t81, t90);
        const P t270 = t267 + t269;
        io.pair(12, t270);
        const P t271 = c[10] * t267;
        const P t272 = t269 - t271;
        const P t273 = P(-c[11], c[11]) * t268;
        const P t274 = shuffled<1, 0>(t273);
        const P t275 = t272 + t274;
        io.pair(1, t275);
        const P t276 = t272 - t274;
        io.pair(10, negated<0, 1>(t276));
        const P t277 = shuffled<1, 3>(t100, t109);
        const P t278 = joined(t210, t219);
        // complex block of 3, multiplier 2
        const P t279 = t277 + t278;
        const P t280 = shuffled<0, 3>(t277, t278);
        const P t281 = shuffled<0, 3>(t278, t277);
        const P t282 = t280 - t281;
        const P t283 = shuffled<0, 2>(t100, t109);
        const P t284 = t279 + t283;
        io.pair(15, negated<0, 1>(t284));
        const P t285 = P(-c[10], c[10]) * t279;
        const P t286 = flipped<0, 1>(t283);
        const P t287 = t285 + t286;
        const P t288 = P(-c[11], c[11]) * t282;
        const P t289 = shuffled<1, 0>(t288);
        const P t290 = t287 + t289;
        io.pair(4, t290);
        const P t291 = t287 - t289;
        io.pair(7, negated<0, 1>(t291));
    }
};

}  // namespace zulg
