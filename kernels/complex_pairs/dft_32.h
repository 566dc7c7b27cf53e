// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 32.
// Complex DFT of 32 points, twiddled, inner 8, outer 4; one complex number to a register.
// 108 sums, 80 differences, 44 products of registers, which do the 528 steps of the graph, those with
// `scale` included; 55 shuffles, 45 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<32> {
    static constexpr int steps = 528;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.9238795325112867,  // c[1]: cos 2 pi 2/32
        0.3826834323650898,  // c[2]: sin 2 pi 2/32
        0.9807852804032304,  // c[3]: cos 2 pi 1/32
        0.19509032201612828,  // c[4]: sin 2 pi 1/32
        0.8314696123025452,  // c[5]: cos 2 pi 3/32
        0.5555702330196022,  // c[6]: sin 2 pi 3/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x0 = io.pair(0);
        const P x16 = io.pair(16);
        // complex block of 2
        const P t0 = x0 + x16;
        const P t1 = x0 - x16;
        const P x4 = io.pair(4);
        const P x20 = io.pair(20);
        // complex block of 2
        const P t2 = x4 + x20;
        const P t3 = x4 - x20;
        const P x8 = io.pair(8);
        const P x24 = io.pair(24);
        // complex block of 2
        const P t4 = x8 + x24;
        const P t5 = x8 - x24;
        const P x12 = io.pair(12);
        const P x28 = io.pair(28);
        // complex block of 2
        const P t6 = x12 + x28;
        const P t7 = x12 - x28;
        // complex block of 2
        const P t8 = t0 + t4;
        const P t9 = t0 - t4;
        // complex block of 2
        const P t10 = t2 + t6;
        const P t11 = t2 - t6;
        // complex block of 2
        const P t12 = t8 + t10;
        const P t13 = t8 - t10;
        const P t14 = shuffled<1, 0>(t11);
        const P t15 = flipped<0, 1>(t14);
        // complex block of 2
        const P t16 = t9 + t15;
        const P t17 = t9 - t15;
        // complex block of 8
        const P t18 = c[0] * t3;
        const P t19 = shuffled<1, 0>(t18);
        const P t20 = flipped<0, 1>(t19);
        const P t21 = t18 + t20;
        const P t22 = c[0] * t7;
        const P t23 = shuffled<1, 0>(t22);
        const P t24 = flipped<0, 1>(t23);
        const P t25 = t22 + t24;
        const P t26 = shuffled<1, 0>(t5);
        const P t27 = flipped<0, 1>(t26);
        // complex block of 2
        const P t28 = t1 + t27;
        const P t29 = t1 - t27;
        const P t30 = shuffled<1, 0>(t25);
        const P t31 = flipped<0, 1>(t30);
        // complex block of 2
        const P t32 = t21 + t31;
        const P t33 = t21 - t31;
        // complex block of 2
        const P t34 = t28 + t32;
        const P t35 = t28 - t32;
        const P t36 = shuffled<1, 0>(t33);
        const P t37 = flipped<0, 1>(t36);
        // complex block of 2
        const P t38 = t29 + t37;
        const P t39 = t29 - t37;
        const P x1 = io.pair(1);
        const P x17 = io.pair(17);
        // complex block of 2
        const P t40 = x1 + x17;
        const P t41 = x1 - x17;
        const P x5 = io.pair(5);
        const P x21 = io.pair(21);
        // complex block of 2
        const P t42 = x5 + x21;
        const P t43 = x5 - x21;
        const P x9 = io.pair(9);
        const P x25 = io.pair(25);
        // complex block of 2
        const P t44 = x9 + x25;
        const P t45 = x9 - x25;
        const P x13 = io.pair(13);
        const P x29 = io.pair(29);
        // complex block of 2
        const P t46 = x13 + x29;
        const P t47 = x13 - x29;
        // complex block of 2
        const P t48 = t40 + t44;
        const P t49 = t40 - t44;
        // complex block of 2
        const P t50 = t42 + t46;
        const P t51 = t42 - t46;
        // complex block of 2
        const P t52 = t48 + t50;
        const P t53 = t48 - t50;
        const P t54 = shuffled<1, 0>(t51);
        const P t55 = flipped<0, 1>(t54);
        // complex block of 2
        const P t56 = t49 + t55;
        const P t57 = t49 - t55;
        // complex block of 8
        const P t58 = c[0] * t43;
        const P t59 = shuffled<1, 0>(t58);
        const P t60 = flipped<0, 1>(t59);
        const P t61 = t58 + t60;
        const P t62 = c[0] * t47;
        const P t63 = shuffled<1, 0>(t62);
        const P t64 = flipped<0, 1>(t63);
        const P t65 = t62 + t64;
        const P t66 = shuffled<1, 0>(t45);
        const P t67 = flipped<0, 1>(t66);
        // complex block of 2
        const P t68 = t41 + t67;
        const P t69 = t41 - t67;
        const P t70 = shuffled<1, 0>(t65);
        const P t71 = flipped<0, 1>(t70);
        // complex block of 2
        const P t72 = t61 + t71;
        const P t73 = t61 - t71;
        // complex block of 2
        const P t74 = t68 + t72;
        const P t75 = t68 - t72;
        const P t76 = shuffled<1, 0>(t73);
        const P t77 = flipped<0, 1>(t76);
        // complex block of 2
        const P t78 = t69 + t77;
        const P t79 = t69 - t77;
        const P x2 = io.pair(2);
        const P x18 = io.pair(18);
        // complex block of 2
        const P t80 = x2 + x18;
        const P t81 = x2 - x18;
        const P x6 = io.pair(6);
        const P x22 = io.pair(22);
        // complex block of 2
        const P t82 = x6 + x22;
        const P t83 = x6 - x22;
        const P x10 = io.pair(10);
        const P x26 = io.pair(26);
        // complex block of 2
        const P t84 = x10 + x26;
        const P t85 = x10 - x26;
        const P x14 = io.pair(14);
        const P x30 = io.pair(30);
        // complex block of 2
        const P t86 = x14 + x30;
        const P t87 = x14 - x30;
        // complex block of 2
        const P t88 = t80 + t84;
        const P t89 = t80 - t84;
        // complex block of 2
        const P t90 = t82 + t86;
        const P t91 = t82 - t86;
        // complex block of 2
        const P t92 = t88 + t90;
        const P t93 = t88 - t90;
        const P t94 = shuffled<1, 0>(t91);
        const P t95 = flipped<0, 1>(t94);
        // complex block of 2
        const P t96 = t89 + t95;
        const P t97 = t89 - t95;
        // complex block of 8
        const P t98 = c[0] * t83;
        const P t99 = shuffled<1, 0>(t98);
        const P t100 = flipped<0, 1>(t99);
        const P t101 = t98 + t100;
        const P t102 = c[0] * t87;
        const P t103 = shuffled<1, 0>(t102);
        const P t104 = flipped<0, 1>(t103);
        const P t105 = t102 + t104;
        const P t106 = shuffled<1, 0>(t85);
        const P t107 = flipped<0, 1>(t106);
        // complex block of 2
        const P t108 = t81 + t107;
        const P t109 = t81 - t107;
        const P t110 = shuffled<1, 0>(t105);
        const P t111 = flipped<0, 1>(t110);
        // complex block of 2
        const P t112 = t101 + t111;
        const P t113 = t101 - t111;
        // complex block of 2
        const P t114 = t108 + t112;
        const P t115 = t108 - t112;
        const P t116 = shuffled<1, 0>(t113);
        const P t117 = flipped<0, 1>(t116);
        // complex block of 2
        const P t118 = t109 + t117;
        const P t119 = t109 - t117;
        const P x3 = io.pair(3);
        const P x19 = io.pair(19);
        // complex block of 2
        const P t120 = x3 + x19;
        const P t121 = x3 - x19;
        const P x7 = io.pair(7);
        const P x23 = io.pair(23);
        // complex block of 2
        const P t122 = x7 + x23;
        const P t123 = x7 - x23;
        const P x11 = io.pair(11);
        const P x27 = io.pair(27);
        // complex block of 2
        const P t124 = x11 + x27;
        const P t125 = x11 - x27;
        const P x15 = io.pair(15);
        const P x31 = io.pair(31);
        // complex block of 2
        const P t126 = x15 + x31;
        const P t127 = x15 - x31;
        // complex block of 2
        const P t128 = t120 + t124;
        const P t129 = t120 - t124;
        // complex block of 2
        const P t130 = t122 + t126;
        const P t131 = t122 - t126;
        // complex block of 2
        const P t132 = t128 + t130;
        const P t133 = t128 - t130;
        const P t134 = shuffled<1, 0>(t131);
        const P t135 = flipped<0, 1>(t134);
        // complex block of 2
        const P t136 = t129 + t135;
        const P t137 = t129 - t135;
        // complex block of 8
        const P t138 = c[0] * t123;
        const P t139 = shuffled<1, 0>(t138);
        const P t140 = flipped<0, 1>(t139);
        const P t141 = t138 + t140;
        const P t142 = c[0] * t127;
        const P t143 = shuffled<1, 0>(t142);
        const P t144 = flipped<0, 1>(t143);
        const P t145 = t142 + t144;
        const P t146 = shuffled<1, 0>(t125);
        const P t147 = flipped<0, 1>(t146);
        // complex block of 2
        const P t148 = t121 + t147;
        const P t149 = t121 - t147;
        const P t150 = shuffled<1, 0>(t145);
        const P t151 = flipped<0, 1>(t150);
        // complex block of 2
        const P t152 = t141 + t151;
        const P t153 = t141 - t151;
        // complex block of 2
        const P t154 = t148 + t152;
        const P t155 = t148 - t152;
        const P t156 = shuffled<1, 0>(t153);
        const P t157 = flipped<0, 1>(t156);
        // complex block of 2
        const P t158 = t149 + t157;
        const P t159 = t149 - t157;
        // complex block of 2
        const P t160 = t12 + t92;
        const P t161 = t12 - t92;
        // complex block of 2
        const P t162 = t52 + t132;
        const P t163 = t52 - t132;
        // complex block of 2
        const P t164 = t160 + t162;
        io.pair(0, t164);
        const P t165 = t160 - t162;
        io.pair(16, t165);
        const P t166 = shuffled<1, 0>(t163);
        const P t167 = flipped<0, 1>(t166);
        // complex block of 2
        const P t168 = t161 + t167;
        io.pair(8, t168);
        const P t169 = t161 - t167;
        io.pair(24, t169);
        // complex block of 32
        const P t170 = c[3] * t74;
        const P t171 = shuffled<1, 0>(t74);
        const P t172 = P(c[4], -c[4]) * t171;
        const P t173 = t170 + t172;
        const P t174 = c[1] * t114;
        const P t175 = shuffled<1, 0>(t114);
        const P t176 = P(c[2], -c[2]) * t175;
        const P t177 = t174 + t176;
        const P t178 = c[5] * t154;
        const P t179 = shuffled<1, 0>(t154);
        const P t180 = P(c[6], -c[6]) * t179;
        const P t181 = t178 + t180;
        // complex block of 2
        const P t182 = t34 + t177;
        const P t183 = t34 - t177;
        // complex block of 2
        const P t184 = t173 + t181;
        const P t185 = t173 - t181;
        // complex block of 2
        const P t186 = t182 + t184;
        io.pair(1, t186);
        const P t187 = t182 - t184;
        io.pair(17, t187);
        const P t188 = shuffled<1, 0>(t185);
        const P t189 = flipped<0, 1>(t188);
        // complex block of 2
        const P t190 = t183 + t189;
        io.pair(9, t190);
        const P t191 = t183 - t189;
        io.pair(25, t191);
        // complex block of 32
        const P t192 = c[1] * t56;
        const P t193 = shuffled<1, 0>(t56);
        const P t194 = P(c[2], -c[2]) * t193;
        const P t195 = t192 + t194;
        const P t196 = c[0] * t96;
        const P t197 = shuffled<1, 0>(t196);
        const P t198 = flipped<0, 1>(t197);
        const P t199 = t196 + t198;
        const P t200 = c[2] * t136;
        const P t201 = shuffled<1, 0>(t136);
        const P t202 = P(c[1], -c[1]) * t201;
        const P t203 = t200 + t202;
        // complex block of 2
        const P t204 = t16 + t199;
        const P t205 = t16 - t199;
        // complex block of 2
        const P t206 = t195 + t203;
        const P t207 = t195 - t203;
        // complex block of 2
        const P t208 = t204 + t206;
        io.pair(2, t208);
        const P t209 = t204 - t206;
        io.pair(18, t209);
        const P t210 = shuffled<1, 0>(t207);
        const P t211 = flipped<0, 1>(t210);
        // complex block of 2
        const P t212 = t205 + t211;
        io.pair(10, t212);
        const P t213 = t205 - t211;
        io.pair(26, t213);
        // complex block of 32
        const P t214 = c[5] * t78;
        const P t215 = shuffled<1, 0>(t78);
        const P t216 = P(c[6], -c[6]) * t215;
        const P t217 = t214 + t216;
        const P t218 = c[2] * t118;
        const P t219 = shuffled<1, 0>(t118);
        const P t220 = P(c[1], -c[1]) * t219;
        const P t221 = t218 + t220;
        const P t222 = P(-c[4], c[4]) * t158;
        const P t223 = shuffled<1, 0>(t158);
        const P t224 = c[3] * t223;
        const P t225 = t222 + t224;
        // complex block of 2
        const P t226 = t38 + t221;
        const P t227 = t38 - t221;
        const P t228 = flipped<0, 1>(t225);
        // complex block of 2
        const P t229 = t217 + t228;
        const P t230 = t217 - t228;
        // complex block of 2
        const P t231 = t226 + t229;
        io.pair(3, t231);
        const P t232 = t226 - t229;
        io.pair(19, t232);
        const P t233 = shuffled<1, 0>(t230);
        const P t234 = flipped<0, 1>(t233);
        // complex block of 2
        const P t235 = t227 + t234;
        io.pair(11, t235);
        const P t236 = t227 - t234;
        io.pair(27, t236);
        // complex block of 32
        const P t237 = c[0] * t53;
        const P t238 = shuffled<1, 0>(t237);
        const P t239 = flipped<0, 1>(t238);
        const P t240 = t237 + t239;
        const P t241 = c[0] * t133;
        const P t242 = shuffled<1, 0>(t241);
        const P t243 = flipped<0, 1>(t242);
        const P t244 = t241 + t243;
        const P t245 = shuffled<1, 0>(t93);
        const P t246 = flipped<0, 1>(t245);
        // complex block of 2
        const P t247 = t13 + t246;
        const P t248 = t13 - t246;
        const P t249 = shuffled<1, 0>(t244);
        const P t250 = flipped<0, 1>(t249);
        // complex block of 2
        const P t251 = t240 + t250;
        const P t252 = t240 - t250;
        // complex block of 2
        const P t253 = t247 + t251;
        io.pair(4, t253);
        const P t254 = t247 - t251;
        io.pair(20, t254);
        const P t255 = shuffled<1, 0>(t252);
        const P t256 = flipped<0, 1>(t255);
        // complex block of 2
        const P t257 = t248 + t256;
        io.pair(12, t257);
        const P t258 = t248 - t256;
        io.pair(28, t258);
        // complex block of 32
        const P t259 = c[6] * t75;
        const P t260 = shuffled<1, 0>(t75);
        const P t261 = P(c[5], -c[5]) * t260;
        const P t262 = t259 + t261;
        const P t263 = P(-c[2], c[2]) * t115;
        const P t264 = shuffled<1, 0>(t115);
        const P t265 = c[1] * t264;
        const P t266 = t263 + t265;
        const P t267 = P(-c[3], c[3]) * t155;
        const P t268 = shuffled<1, 0>(t155);
        const P t269 = c[4] * t268;
        const P t270 = t267 + t269;
        const P t271 = flipped<0, 1>(t266);
        // complex block of 2
        const P t272 = t35 + t271;
        const P t273 = t35 - t271;
        const P t274 = flipped<0, 1>(t270);
        // complex block of 2
        const P t275 = t262 + t274;
        const P t276 = t262 - t274;
        // complex block of 2
        const P t277 = t272 + t275;
        io.pair(5, t277);
        const P t278 = t272 - t275;
        io.pair(21, t278);
        const P t279 = shuffled<1, 0>(t276);
        const P t280 = flipped<0, 1>(t279);
        // complex block of 2
        const P t281 = t273 + t280;
        io.pair(13, t281);
        const P t282 = t273 - t280;
        io.pair(29, t282);
        // complex block of 32
        const P t283 = c[2] * t57;
        const P t284 = shuffled<1, 0>(t57);
        const P t285 = P(c[1], -c[1]) * t284;
        const P t286 = t283 + t285;
        const P t287 = c[0] * t97;
        const P t288 = shuffled<1, 0>(t287);
        const P t289 = flipped<0, 1>(t288);
        const P t290 = t287 + t289;
        const P t291 = shuffled<1, 0>(t137);
        const P t292 = c[2] * t291;
        const P t293 = P(c[1], -c[1]) * t137;
        const P t294 = t292 + t293;
        const P t295 = shuffled<1, 0>(t290);
        const P t296 = flipped<0, 1>(t295);
        // complex block of 2
        const P t297 = t17 + t296;
        const P t298 = t17 - t296;
        const P t299 = flipped<1, 0>(t294);
        // complex block of 2
        const P t300 = t286 + t299;
        const P t301 = t286 - t299;
        // complex block of 2
        const P t302 = t297 + t300;
        io.pair(6, t302);
        const P t303 = t297 - t300;
        io.pair(22, t303);
        const P t304 = shuffled<1, 0>(t301);
        const P t305 = flipped<0, 1>(t304);
        // complex block of 2
        const P t306 = t298 + t305;
        io.pair(14, t306);
        const P t307 = t298 - t305;
        io.pair(30, t307);
        // complex block of 32
        const P t308 = c[4] * t79;
        const P t309 = shuffled<1, 0>(t79);
        const P t310 = P(c[3], -c[3]) * t309;
        const P t311 = t308 + t310;
        const P t312 = P(-c[1], c[1]) * t119;
        const P t313 = shuffled<1, 0>(t119);
        const P t314 = c[2] * t313;
        const P t315 = t312 + t314;
        const P t316 = shuffled<1, 0>(t159);
        const P t317 = c[5] * t316;
        const P t318 = P(c[6], -c[6]) * t159;
        const P t319 = t317 + t318;
        const P t320 = flipped<0, 1>(t315);
        // complex block of 2
        const P t321 = t39 + t320;
        const P t322 = t39 - t320;
        const P t323 = flipped<1, 0>(t319);
        // complex block of 2
        const P t324 = t311 + t323;
        const P t325 = t311 - t323;
        // complex block of 2
        const P t326 = t321 + t324;
        io.pair(7, t326);
        const P t327 = t321 - t324;
        io.pair(23, t327);
        const P t328 = shuffled<1, 0>(t325);
        const P t329 = flipped<0, 1>(t328);
        // complex block of 2
        const P t330 = t322 + t329;
        io.pair(15, t330);
        const P t331 = t322 - t329;
        io.pair(31, t331);
    }
};

}  // namespace zulg
