// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 44.
// Forward DFT of 44 real points, prime-factor 11, 4; two lanes to a register.
// 80 sums, 84 differences, 100 products of registers, which do the 570 steps of the graph, those with
// `scale` included; 32 shuffles, 5 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<44> {
    static constexpr int steps = 570;  // with `scale`
    static constexpr double inverseRoot = 0.15075567228888181;  // 1/sqrt(44), for `scale`
    static constexpr double constants[] = {
        0.6548607339452851,  // c[0]: -cos 2 pi 4/11
        0.14231483827328514,  // c[1]: -cos 2 pi 36/11
        0.8412535328311812,  // c[2]: cos 2 pi 12/11
        0.9594929736144974,  // c[3]: -cos 2 pi 16/11
        0.41541501300188644,  // c[4]: cos 2 pi 24/11
        0.7557495743542583,  // c[5]: sin 2 pi 4/11
        0.9898214418809327,  // c[6]: sin 2 pi 36/11
        0.5406408174555976,  // c[7]: sin 2 pi 12/11
        0.28173255684142967,  // c[8]: sin 2 pi 16/11
        0.9096319953545183,  // c[9]: sin 2 pi 24/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x4_15 = io.in(4, 15);
        const P x40_7 = io.in(40, 7);
        // real block of 11, multiplier 4
        const P t0 = x4_15 + x40_7;
        const P t1 = x4_15 - x40_7;
        const P x36_3 = io.in(36, 3);
        const P x8_19 = io.in(8, 19);
        const P t2 = x36_3 + x8_19;
        const P t3 = x36_3 - x8_19;
        const P x12_23 = io.in(12, 23);
        const P x32_43 = io.in(32, 43);
        const P t4 = x12_23 + x32_43;
        const P t5 = x12_23 - x32_43;
        const P x16_27 = io.in(16, 27);
        const P x28_39 = io.in(28, 39);
        const P t6 = x16_27 + x28_39;
        const P t7 = x16_27 - x28_39;
        const P x24_35 = io.in(24, 35);
        const P x20_31 = io.in(20, 31);
        const P t8 = x24_35 + x20_31;
        const P t9 = x24_35 - x20_31;
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
        const P t22 = t20 - t21;
        const P t23 = c[4] * t8;
        const P t24 = t22 + t23;
        const P t25 = c[5] * t1;
        const P t26 = c[6] * t3;
        const P t27 = t25 + t26;
        const P t28 = c[7] * t5;
        const P t29 = t27 + t28;
        const P t30 = c[8] * t7;
        const P t31 = t29 + t30;
        const P t32 = c[9] * t9;
        const P t33 = t31 + t32;
        const P t34 = c[1] * t0;
        const P t35 = x0_11 - t34;
        const P t36 = c[3] * t2;
        const P t37 = t35 - t36;
        const P t38 = c[4] * t4;
        const P t39 = t37 + t38;
        const P t40 = c[2] * t6;
        const P t41 = t39 + t40;
        const P t42 = c[0] * t8;
        const P t43 = t41 - t42;
        const P t44 = c[6] * t1;
        const P t45 = c[8] * t3;
        const P t46 = t44 + t45;
        const P t47 = c[7] * t7;
        const P t48 = t46 + t47;
        const P t49 = c[9] * t5;
        const P t50 = t48 - t49;
        const P t51 = c[5] * t9;
        const P t52 = t50 - t51;
        const P t53 = c[2] * t0;
        const P t54 = c[4] * t2;
        const P t55 = t53 + t54;
        const P t56 = c[1] * t4;
        const P t57 = t55 - t56;
        const P t58 = c[0] * t6;
        const P t59 = t57 - t58;
        const P t60 = c[3] * t8;
        const P t61 = t59 - t60;
        const P t62 = t61 + x0_11;
        const P t63 = c[9] * t3;
        const P t64 = c[8] * t9;
        const P t65 = t63 + t64;
        const P t66 = c[7] * t1;
        const P t67 = t65 - t66;
        const P t68 = c[6] * t5;
        const P t69 = t67 - t68;
        const P t70 = c[5] * t7;
        const P t71 = t69 - t70;
        const P t72 = c[3] * t0;
        const P t73 = x0_11 - t72;
        const P t74 = c[2] * t2;
        const P t75 = t73 + t74;
        const P t76 = c[0] * t4;
        const P t77 = t75 - t76;
        const P t78 = c[4] * t6;
        const P t79 = t77 + t78;
        const P t80 = c[1] * t8;
        const P t81 = t79 - t80;
        const P t82 = c[9] * t7;
        const P t83 = c[6] * t9;
        const P t84 = t82 + t83;
        const P t85 = c[8] * t1;
        const P t86 = t84 - t85;
        const P t87 = c[7] * t3;
        const P t88 = t86 - t87;
        const P t89 = c[5] * t5;
        const P t90 = t88 - t89;
        const P t91 = c[4] * t0;
        const P t92 = c[0] * t2;
        const P t93 = t91 - t92;
        const P t94 = c[3] * t4;
        const P t95 = t93 - t94;
        const P t96 = c[1] * t6;
        const P t97 = t95 - t96;
        const P t98 = c[2] * t8;
        const P t99 = t97 + t98;
        const P t100 = t99 + x0_11;
        const P t101 = c[9] * t1;
        const P t102 = c[7] * t9;
        const P t103 = t101 + t102;
        const P t104 = c[5] * t3;
        const P t105 = t103 - t104;
        const P t106 = c[8] * t5;
        const P t107 = t105 - t106;
        const P t108 = c[6] * t7;
        const P t109 = t107 - t108;
        const P x26_37 = io.in(26, 37);
        const P x18_29 = io.in(18, 29);
        // real block of 11, multiplier 4
        const P t110 = x26_37 + x18_29;
        const P t111 = x26_37 - x18_29;
        const P x14_25 = io.in(14, 25);
        const P x30_41 = io.in(30, 41);
        const P t112 = x14_25 + x30_41;
        const P t113 = x14_25 - x30_41;
        const P x34_1 = io.in(34, 1);
        const P x10_21 = io.in(10, 21);
        const P t114 = x34_1 + x10_21;
        const P t115 = x34_1 - x10_21;
        const P x38_5 = io.in(38, 5);
        const P x6_17 = io.in(6, 17);
        const P t116 = x38_5 + x6_17;
        const P t117 = x38_5 - x6_17;
        const P x2_13 = io.in(2, 13);
        const P x42_9 = io.in(42, 9);
        const P t118 = x2_13 + x42_9;
        const P t119 = x2_13 - x42_9;
        const P t120 = t110 + t112;
        const P t121 = t120 + t114;
        const P t122 = t121 + t116;
        const P t123 = t122 + t118;
        const P x22_33 = io.in(22, 33);
        const P t124 = t123 + x22_33;
        const P t125 = c[0] * t110;
        const P t126 = x22_33 - t125;
        const P t127 = c[1] * t112;
        const P t128 = t126 - t127;
        const P t129 = c[2] * t114;
        const P t130 = t128 + t129;
        const P t131 = c[3] * t116;
        const P t132 = t130 - t131;
        const P t133 = c[4] * t118;
        const P t134 = t132 + t133;
        const P t135 = c[5] * t111;
        const P t136 = c[6] * t113;
        const P t137 = t135 + t136;
        const P t138 = c[7] * t115;
        const P t139 = t137 + t138;
        const P t140 = c[8] * t117;
        const P t141 = t139 + t140;
        const P t142 = c[9] * t119;
        const P t143 = t141 + t142;
        const P t144 = c[1] * t110;
        const P t145 = x22_33 - t144;
        const P t146 = c[3] * t112;
        const P t147 = t145 - t146;
        const P t148 = c[4] * t114;
        const P t149 = t147 + t148;
        const P t150 = c[2] * t116;
        const P t151 = t149 + t150;
        const P t152 = c[0] * t118;
        const P t153 = t151 - t152;
        const P t154 = c[6] * t111;
        const P t155 = c[8] * t113;
        const P t156 = t154 + t155;
        const P t157 = c[7] * t117;
        const P t158 = t156 + t157;
        const P t159 = c[9] * t115;
        const P t160 = t158 - t159;
        const P t161 = c[5] * t119;
        const P t162 = t160 - t161;
        const P t163 = c[2] * t110;
        const P t164 = c[4] * t112;
        const P t165 = t163 + t164;
        const P t166 = c[1] * t114;
        const P t167 = t165 - t166;
        const P t168 = c[0] * t116;
        const P t169 = t167 - t168;
        const P t170 = c[3] * t118;
        const P t171 = t169 - t170;
        const P t172 = t171 + x22_33;
        const P t173 = c[9] * t113;
        const P t174 = c[8] * t119;
        const P t175 = t173 + t174;
        const P t176 = c[7] * t111;
        const P t177 = t175 - t176;
        const P t178 = c[6] * t115;
        const P t179 = t177 - t178;
        const P t180 = c[5] * t117;
        const P t181 = t179 - t180;
        const P t182 = c[3] * t110;
        const P t183 = x22_33 - t182;
        const P t184 = c[2] * t112;
        const P t185 = t183 + t184;
        const P t186 = c[0] * t114;
        const P t187 = t185 - t186;
        const P t188 = c[4] * t116;
        const P t189 = t187 + t188;
        const P t190 = c[1] * t118;
        const P t191 = t189 - t190;
        const P t192 = c[9] * t117;
        const P t193 = c[6] * t119;
        const P t194 = t192 + t193;
        const P t195 = c[8] * t111;
        const P t196 = t194 - t195;
        const P t197 = c[7] * t113;
        const P t198 = t196 - t197;
        const P t199 = c[5] * t115;
        const P t200 = t198 - t199;
        const P t201 = c[4] * t110;
        const P t202 = c[0] * t112;
        const P t203 = t201 - t202;
        const P t204 = c[3] * t114;
        const P t205 = t203 - t204;
        const P t206 = c[1] * t116;
        const P t207 = t205 - t206;
        const P t208 = c[2] * t118;
        const P t209 = t207 + t208;
        const P t210 = t209 + x22_33;
        const P t211 = c[9] * t111;
        const P t212 = c[7] * t119;
        const P t213 = t211 + t212;
        const P t214 = c[5] * t113;
        const P t215 = t213 - t214;
        const P t216 = c[8] * t115;
        const P t217 = t215 - t216;
        const P t218 = c[6] * t117;
        const P t219 = t217 - t218;
        // real block of 2
        const P t220 = t14 + t124;
        const P t221 = t14 - t124;
        io.pair(11, t221);
        const V t222 = part<0>(t220);
        const V t223 = part<1>(t220);
        // real block of 2
        const V t224 = t222 + t223;
        io.re(0, t224);
        const V t225 = t222 - t223;
        io.re(22, t225);
        const P t226 = shuffled<0, 2>(t24, t33);
        const P t227 = shuffled<0, 2>(t134, t143);
        // complex block of 2
        const P t228 = t226 + t227;
        const P t229 = shuffled<0, 3>(t226, t227);
        const P t230 = shuffled<0, 3>(t227, t226);
        const P t231 = t229 - t230;
        const P t232 = shuffled<1, 3>(t24, t33);
        const P t233 = shuffled<1, 3>(t134, t143);
        // complex block of 2
        const P t234 = t232 + t233;
        const P t235 = shuffled<0, 3>(t232, t233);
        const P t236 = shuffled<0, 3>(t233, t232);
        const P t237 = t235 - t236;
        // complex block of 2
        const P t238 = t228 + t234;
        io.pair(4, negated<0, 1>(t238));
        const P t239 = shuffled<0, 3>(t228, t234);
        const P t240 = shuffled<0, 3>(t234, t228);
        const P t241 = t239 - t240;
        io.pair(18, negated<0, 1>(t241));
        const P t242 = shuffled<1, 0>(t237);
        const P t243 = flipped<1, 0>(t242);
        // complex block of 2
        const P t244 = t231 + t243;
        io.pair(15, t244);
        const P t245 = t231 - t243;
        io.pair(7, negated<0, 1>(t245));
        const P t246 = shuffled<0, 2>(t43, t52);
        const P t247 = shuffled<0, 2>(t153, t162);
        // complex block of 2
        const P t248 = t246 + t247;
        const P t249 = t246 - t247;
        const P t250 = shuffled<1, 3>(t43, t52);
        const P t251 = shuffled<1, 3>(t153, t162);
        // complex block of 2
        const P t252 = t250 + t251;
        const P t253 = t250 - t251;
        // complex block of 2
        const P t254 = t248 + t252;
        io.pair(8, t254);
        const P t255 = t248 - t252;
        io.pair(14, negated<0, 1>(t255));
        const P t256 = shuffled<1, 0>(t253);
        const P t257 = flipped<1, 0>(t256);
        // complex block of 2
        const P t258 = t249 + t257;
        io.pair(19, t258);
        const P t259 = t249 - t257;
        io.pair(3, negated<0, 1>(t259));
        const P t260 = shuffled<0, 2>(t62, t71);
        const P t261 = shuffled<0, 2>(t172, t181);
        // complex block of 2
        const P t262 = t260 + t261;
        const P t263 = t260 - t261;
        const P t264 = shuffled<1, 3>(t62, t71);
        const P t265 = shuffled<1, 3>(t172, t181);
        // complex block of 2
        const P t266 = t264 + t265;
        const P t267 = t264 - t265;
        // complex block of 2
        const P t268 = t262 + t266;
        io.pair(12, t268);
        const P t269 = t262 - t266;
        io.pair(10, negated<0, 1>(t269));
        const P t270 = shuffled<1, 0>(t267);
        const P t271 = flipped<1, 0>(t270);
        // complex block of 2
        const P t272 = t263 + t271;
        io.pair(21, negated<0, 1>(t272));
        const P t273 = t263 - t271;
        io.pair(1, t273);
        const P t274 = shuffled<0, 2>(t81, t90);
        const P t275 = shuffled<0, 2>(t191, t200);
        // complex block of 2
        const P t276 = t274 + t275;
        const P t277 = t274 - t275;
        const P t278 = shuffled<1, 3>(t81, t90);
        const P t279 = shuffled<1, 3>(t191, t200);
        // complex block of 2
        const P t280 = t278 + t279;
        const P t281 = t278 - t279;
        // complex block of 2
        const P t282 = t276 + t280;
        io.pair(16, t282);
        const P t283 = t276 - t280;
        io.pair(6, negated<0, 1>(t283));
        const P t284 = shuffled<1, 0>(t281);
        const P t285 = flipped<1, 0>(t284);
        // complex block of 2
        const P t286 = t277 + t285;
        io.pair(17, negated<0, 1>(t286));
        const P t287 = t277 - t285;
        io.pair(5, t287);
        const P t288 = shuffled<0, 2>(t100, t109);
        const P t289 = shuffled<0, 2>(t210, t219);
        // complex block of 2
        const P t290 = t288 + t289;
        const P t291 = t288 - t289;
        const P t292 = shuffled<1, 3>(t100, t109);
        const P t293 = shuffled<1, 3>(t210, t219);
        // complex block of 2
        const P t294 = t292 + t293;
        const P t295 = t292 - t293;
        // complex block of 2
        const P t296 = t290 + t294;
        io.pair(20, t296);
        const P t297 = t290 - t294;
        io.pair(2, negated<0, 1>(t297));
        const P t298 = shuffled<1, 0>(t295);
        const P t299 = flipped<1, 0>(t298);
        // complex block of 2
        const P t300 = t291 + t299;
        io.pair(13, negated<0, 1>(t300));
        const P t301 = t291 - t299;
        io.pair(9, t301);
    }
};

}  // namespace zulg
