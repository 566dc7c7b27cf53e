// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 33.
// Hartley transform of 33 points, form I; two lanes to a register.
// 91 sums, 63 differences, 88 products of registers, which do the 505 steps of the graph, those with
// `scale` included; 51 shuffles, 10 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<33> {
    static constexpr int steps = 505;  // with `scale`
    static constexpr double inverseRoot = 0.17407765595569785;  // 1/sqrt(33), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.014582488655234533,  // c[6]: -Q[1] of 11
        0.6631646485033863,  // c[7]: -P[1] of 11
        0.01576834991891041,  // c[8]: -Q[2] of 11
        0.6631375114867465,  // c[9]: -P[2] of 11
        0.16065279913205563,  // c[10]: P[3] of 11
        0.6435764741901582,  // c[11]: -Q[3] of 11
        0.6208226732134613,  // c[12]: P[4] of 11
        0.23362193480940913,  // c[13]: -Q[4] of 11
        0.1,  // c[14]: 1/10
        0.33166247903553997,  // c[15]: -beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x32_31 = io.in(32, 31);
        // input stage
        const P t0 = x1_2 + x32_31;
        const P t1 = x1_2 - x32_31;
        const P x3_4 = io.in(3, 4);
        const P x30_29 = io.in(30, 29);
        const P t2 = x3_4 + x30_29;
        const P t3 = x3_4 - x30_29;
        const P x5_6 = io.in(5, 6);
        const P x28_27 = io.in(28, 27);
        const P t4 = x5_6 + x28_27;
        const P t5 = x5_6 - x28_27;
        const P x7_8 = io.in(7, 8);
        const P x26_25 = io.in(26, 25);
        const P t6 = x7_8 + x26_25;
        const P t7 = x7_8 - x26_25;
        const P x9_10 = io.in(9, 10);
        const P x24_23 = io.in(24, 23);
        const P t8 = x9_10 + x24_23;
        const P t9 = x9_10 - x24_23;
        const P x11_12 = io.in(11, 12);
        const P x22_21 = io.in(22, 21);
        const P t10 = x11_12 + x22_21;
        const P t11 = x11_12 - x22_21;
        const P x13_14 = io.in(13, 14);
        const P x20_19 = io.in(20, 19);
        const P t12 = x13_14 + x20_19;
        const P t13 = x13_14 - x20_19;
        const P x15_16 = io.in(15, 16);
        const P x18_17 = io.in(18, 17);
        const P t14 = x15_16 + x18_17;
        const P t15 = x15_16 - x18_17;
        const V t16 = part<0>(t10);
        const V x0 = io.in(0);
        // spectrum block of 3, multiplier 2
        const V t17 = t16 + x0;
        const V t18 = c[4] * t16;
        const V t19 = x0 - t18;
        const V t20 = part<0>(t11);
        const V t21 = c[5] * t20;
        const V t22 = t19 - t21;
        const V t23 = t19 + t21;
        const P t24 = shuffled<1, 3>(t12, t13);
        const P t25 = shuffled<1, 3>(t6, t7);
        const P t26 = flipped<0, 1>(t25);
        // complex block of 3, multiplier 2
        const P t27 = t24 + t26;
        const P t28 = t24 - t26;
        const P t29 = shuffled<0, 2>(t2, t3);
        const P t30 = t27 + t29;
        const P t31 = c[4] * t27;
        const P t32 = t29 - t31;
        const P t33 = P(c[5], -c[5]) * t28;
        const P t34 = shuffled<1, 0>(t33);
        const P t35 = t32 + t34;
        const P t36 = t32 - t34;
        const P t37 = shuffled<1, 3>(t14, t15);
        const P t38 = shuffled<0, 2>(t4, t5);
        // complex block of 3, multiplier 2
        const P t39 = t37 + t38;
        const P t40 = shuffled<0, 3>(t37, t38);
        const P t41 = shuffled<0, 3>(t38, t37);
        const P t42 = t40 - t41;
        const P t43 = shuffled<1, 3>(t4, t5);
        const P t44 = flipped<0, 1>(t39);
        const P t45 = t43 + t44;
        const P t46 = P(-c[4], c[4]) * t39;
        const P t47 = t46 + t43;
        const P t48 = P(c[5], -c[5]) * t42;
        const P t49 = shuffled<1, 0>(t48);
        const P t50 = t47 + t49;
        const P t51 = t47 - t49;
        const P t52 = shuffled<0, 2>(t12, t13);
        const P t53 = shuffled<1, 3>(t0, t1);
        // complex block of 3, multiplier 2
        const P t54 = t52 + t53;
        const P t55 = shuffled<0, 3>(t52, t53);
        const P t56 = shuffled<0, 3>(t53, t52);
        const P t57 = t55 - t56;
        const P t58 = shuffled<0, 2>(t8, t9);
        const P t59 = flipped<0, 1>(t54);
        const P t60 = t58 + t59;
        const P t61 = P(-c[4], c[4]) * t54;
        const P t62 = t61 + t58;
        const P t63 = P(c[5], -c[5]) * t57;
        const P t64 = shuffled<1, 0>(t63);
        const P t65 = t62 + t64;
        const P t66 = t62 - t64;
        const P t67 = shuffled<1, 2>(t8, t1);
        const P t68 = shuffled<0, 3>(t0, t9);
        const P t69 = flipped<0, 1>(t68);
        // complex block of 3, multiplier 2
        const P t70 = t67 + t69;
        const P t71 = t67 - t69;
        const P t72 = shuffled<1, 3>(t10, t11);
        const P t73 = t70 + t72;
        const P t74 = c[4] * t70;
        const P t75 = t72 - t74;
        const P t76 = c[5] * t71;
        const P t77 = shuffled<1, 0>(t76);
        const P t78 = t75 + t77;
        const P t79 = t75 - t77;
        const P t80 = shuffled<0, 3>(t6, t3);
        const P t81 = shuffled<1, 2>(t2, t7);
        const P t82 = flipped<0, 1>(t81);
        // complex block of 3, multiplier 2
        const P t83 = t80 + t82;
        const P t84 = t80 - t82;
        const P t85 = shuffled<0, 2>(t14, t15);
        const P t86 = t83 + t85;
        const P t87 = c[4] * t83;
        const P t88 = t85 - t87;
        const P t89 = c[5] * t84;
        const P t90 = shuffled<1, 0>(t89);
        const P t91 = t88 + t90;
        const P t92 = t88 - t90;
        const P t93 = shuffled<0, 2>(t45, t51);
        const P t94 = shuffled<0, 2>(t86, t92);
        // real block of 5
        const P t95 = t93 + t94;
        const P t96 = t93 - t94;
        const P t97 = shuffled<0, 2>(t60, t66);
        const P t98 = shuffled<0, 2>(t73, t79);
        const P t99 = t97 + t98;
        const P t100 = t97 - t98;
        const P t101 = t95 + t99;
        const P t102 = shuffled<0, 2>(t30, t36);
        const P t103 = t101 + t102;
        const P t104 = c[0] * t95;
        const P t105 = c[1] * t99;
        const P t106 = t104 - t105;
        const P t107 = t106 + t102;
        const P t108 = c[2] * t100;
        const P t109 = c[3] * t96;
        const P t110 = t108 - t109;
        const P t111 = c[1] * t95;
        const P t112 = t102 - t111;
        const P t113 = c[0] * t99;
        const P t114 = t112 + t113;
        const P t115 = c[2] * t96;
        const P t116 = c[3] * t100;
        const P t117 = t115 + t116;
        const P t118 = shuffled<1, 3>(t86, t92);
        const P t119 = shuffled<1, 3>(t45, t51);
        // real block of 5
        const P t120 = t118 - t119;
        const P t121 = t119 + t118;
        const P t122 = shuffled<1, 3>(t60, t66);
        const P t123 = shuffled<1, 3>(t73, t79);
        const P t124 = t122 + t123;
        const P t125 = t122 - t123;
        const P t126 = t120 + t124;
        const P t127 = shuffled<1, 3>(t30, t36);
        const P t128 = t126 + t127;
        const P t129 = c[0] * t120;
        const P t130 = c[1] * t124;
        const P t131 = t129 - t130;
        const P t132 = t131 + t127;
        const P t133 = c[3] * t121;
        const P t134 = c[2] * t125;
        const P t135 = t133 + t134;
        const P t136 = c[1] * t120;
        const P t137 = t127 - t136;
        const P t138 = c[0] * t124;
        const P t139 = t137 + t138;
        const P t140 = c[2] * t121;
        const P t141 = c[3] * t125;
        const P t142 = t140 - t141;
        const P t143 = joined(t17, t23);
        // spectrum block of 11, multiplier 3
        const P t144 = c[14] * t103;
        const P t145 = t143 - t144;
        const P t146 = c[6] * t139;
        const P t147 = c[7] * t142;
        const P t148 = t146 + t147;
        const P t149 = c[6] * t142;
        const P t150 = c[7] * t139;
        const P t151 = t149 - t150;
        const P t152 = c[8] * t110;
        const P t153 = c[9] * t107;
        const P t154 = t152 - t153;
        const P t155 = c[9] * t110;
        const P t156 = c[8] * t107;
        const P t157 = t155 + t156;
        const P t158 = c[10] * t135;
        const P t159 = c[11] * t132;
        const P t160 = t158 - t159;
        const P t161 = c[11] * t135;
        const P t162 = c[10] * t132;
        const P t163 = t161 + t162;
        const P t164 = c[12] * t114;
        const P t165 = c[13] * t117;
        const P t166 = t164 - t165;
        const P t167 = c[12] * t117;
        const P t168 = c[13] * t114;
        const P t169 = t167 + t168;
        const P t170 = c[15] * t128;
        // spectrum block of 2
        const P t171 = t145 - t170;
        const P t172 = t145 + t170;
        // complex block of 2
        const P t173 = t157 + t163;
        const P t174 = t154 + t160;
        const P t175 = t163 - t157;
        const P t176 = t154 - t160;
        // complex block of 2
        const P t177 = t169 + t151;
        const P t178 = t166 - t148;
        const P t179 = t151 - t169;
        const P t180 = t166 + t148;
        // spectrum block of 5, multiplier 2
        const P t181 = t174 + t178;
        const P t182 = t181 + t171;
        io.out(30, 19, t182);
        const P t183 = c[0] * t174;
        const P t184 = c[1] * t178;
        const P t185 = t183 - t184;
        const P t186 = t185 + t171;
        const P t187 = c[3] * t173;
        const P t188 = c[2] * t177;
        const P t189 = t187 + t188;
        const P t190 = t186 + t189;
        io.out(18, 7, t190);
        const P t191 = t186 - t189;
        io.out(6, 28, t191);
        const P t192 = c[1] * t174;
        const P t193 = t171 - t192;
        const P t194 = c[0] * t178;
        const P t195 = t193 + t194;
        const P t196 = c[3] * t177;
        const P t197 = c[2] * t173;
        const P t198 = t196 - t197;
        const P t199 = t195 - t198;
        io.out(24, 13, t199);
        const P t200 = t195 + t198;
        io.out(21, 10, t200);
        // spectrum block of 5, multiplier 2
        const P t201 = t176 + t180;
        const P t202 = t201 + t172;
        io.out(3, 25, t202);
        const P t203 = c[0] * t176;
        const P t204 = c[1] * t180;
        const P t205 = t203 - t204;
        const P t206 = t205 + t172;
        const P t207 = c[3] * t175;
        const P t208 = c[2] * t179;
        const P t209 = t207 + t208;
        const P t210 = t206 - t209;
        io.out(15, 4, t210);
        const P t211 = t206 + t209;
        io.out(27, 16, t211);
        const P t212 = c[1] * t176;
        const P t213 = t172 - t212;
        const P t214 = c[0] * t180;
        const P t215 = t213 + t214;
        const P t216 = c[2] * t175;
        const P t217 = c[3] * t179;
        const P t218 = t216 - t217;
        const P t219 = t215 - t218;
        io.out(9, 31, t219);
        const P t220 = t215 + t218;
        io.out(12, 1, t220);
        // spectrum block of 11, multiplier 3
        const P t221 = t143 + t103;
        io.out(0, 22, t221);
        const P t222 = flipped<0, 1>(t50);
        // real block of 5
        const P t223 = t91 + t222;
        const P t224 = flipped<1, 0>(t91);
        const P t225 = t50 + t224;
        const P t226 = t65 + t78;
        const P t227 = t65 - t78;
        const P t228 = t223 + t226;
        const P t229 = t228 + t35;
        const P t230 = c[0] * t223;
        const P t231 = c[1] * t226;
        const P t232 = t230 - t231;
        const P t233 = t232 + t35;
        const P t234 = P(-c[3], c[3]) * t225;
        const P t235 = c[2] * t227;
        const P t236 = t234 + t235;
        const P t237 = c[1] * t223;
        const P t238 = t35 - t237;
        const P t239 = c[0] * t226;
        const P t240 = t238 + t239;
        const P t241 = c[2] * t225;
        const P t242 = P(c[3], -c[3]) * t227;
        const P t243 = t241 + t242;
        const V t244 = part<0>(t229);
        // spectrum block of 11, multiplier 3
        const V t245 = c[14] * t244;
        const V t246 = t22 - t245;
        const P t247 = shuffled<1, 3>(t240, t243);
        const P t248 = c[6] * t247;
        const P t249 = shuffled<1, 0>(t247);
        const P t250 = P(c[7], -c[7]) * t249;
        const P t251 = t248 + t250;
        const P t252 = shuffled<0, 2>(t233, t236);
        const P t253 = P(-c[9], c[9]) * t252;
        const P t254 = shuffled<1, 0>(t252);
        const P t255 = c[8] * t254;
        const P t256 = t253 + t255;
        const P t257 = shuffled<1, 3>(t233, t236);
        const P t258 = P(-c[11], c[11]) * t257;
        const P t259 = shuffled<1, 0>(t257);
        const P t260 = c[10] * t259;
        const P t261 = t258 + t260;
        const P t262 = shuffled<0, 2>(t240, t243);
        const P t263 = c[12] * t262;
        const P t264 = shuffled<1, 0>(t262);
        const P t265 = P(-c[13], c[13]) * t264;
        const P t266 = t263 + t265;
        const V t267 = part<1>(t229);
        const V t268 = c[15] * t267;
        // spectrum block of 2
        const V t269 = t246 - t268;
        const V t270 = t246 + t268;
        // complex block of 2
        const P t271 = t256 + t261;
        const P t272 = shuffled<0, 3>(t256, t261);
        const P t273 = shuffled<0, 3>(t261, t256);
        const P t274 = t272 - t273;
        const P t275 = flipped<1, 0>(t251);
        // complex block of 2
        const P t276 = t266 + t275;
        const P t277 = flipped<0, 1>(t266);
        const P t278 = t251 + t277;
        const P t279 = shuffled<0, 2>(t271, t274);
        const P t280 = shuffled<0, 2>(t276, t278);
        // spectrum block of 5, multiplier 2
        const P t281 = t279 + t280;
        const P t282 = joined(t269, t270);
        const P t283 = t281 + t282;
        io.out(8, 14, t283);
        const P t284 = c[0] * t279;
        const P t285 = c[1] * t280;
        const P t286 = t284 - t285;
        const P t287 = t286 + t282;
        const P t288 = shuffled<1, 3>(t271, t274);
        const P t289 = c[3] * t288;
        const P t290 = shuffled<1, 3>(t276, t278);
        const P t291 = c[2] * t290;
        const P t292 = t289 + t291;
        const P t293 = flipped<0, 1>(t292);
        const P t294 = t287 + t293;
        io.out(29, 26, t294);
        const P t295 = t287 - t293;
        io.out(17, 5, t295);
        const P t296 = c[1] * t279;
        const P t297 = t282 - t296;
        const P t298 = c[0] * t280;
        const P t299 = t297 + t298;
        const P t300 = P(-c[2], c[2]) * t288;
        const P t301 = P(c[3], -c[3]) * t290;
        const P t302 = t300 + t301;
        const P t303 = t299 - t302;
        io.out(2, 20, t303);
        const P t304 = t299 + t302;
        io.out(32, 23, t304);
        // spectrum block of 11, multiplier 3
        const V t305 = t22 + t244;
        io.out(11, t305);
    }
};

}  // namespace zulg
