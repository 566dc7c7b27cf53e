// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 48.
// Inverse DFT to 48 real points, prime-factor 16, 3; two lanes to a register.
// 84 sums, 55 differences, 60 products of registers, which do the 436 steps of the graph, those with
// `scale` included; 51 shuffles, 30 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInversePairs<48> {
    static constexpr int steps = 436;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        2.0,  // c[0]: 2
        0.7071067811865476,  // c[1]: cos 2 pi 1/8
        0.5,  // c[2]: -cos 2 pi 1/3
        0.8660254037844386,  // c[3]: sin 2 pi 1/3
        0.3826834323650898,  // c[4]: cos 2 pi 13/16
        0.9238795325112867,  // c[5]: -sin 2 pi 13/16
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealInversePairs> c{};
        const V x0r = io.re(0);
        const V x24r = io.re(24);
        // spectrum block of 2
        const V t0 = x0r + x24r;
        const V t1 = x0r - x24r;
        const P t2 = joined(t0, t1);
        const P x12 = io.pair(12);
        // doubled bins
        const P t3 = c[0] * x12;
        // spectrum block of 2
        const P t4 = t2 + t3;
        const P t5 = t2 - t3;
        const P x3 = io.pair(3);
        // doubled bins
        const P t6 = c[0] * x3;
        const P x21 = io.pair(21);
        const P t7 = P(c[0], -c[0]) * x21;
        // complex block of 2
        const P t8 = t6 + t7;
        const P t9 = t6 - t7;
        const P x15 = io.pair(15);
        // doubled bins
        const P t10 = c[0] * x15;
        const P x9 = io.pair(9);
        const P t11 = P(c[0], -c[0]) * x9;
        // complex block of 2
        const P t12 = t10 + t11;
        const P t13 = t10 - t11;
        // complex block of 2
        const P t14 = t8 + t12;
        const P t15 = t8 - t12;
        const P t16 = shuffled<1, 0>(t13);
        const P t17 = flipped<0, 1>(t16);
        // complex block of 2
        const P t18 = t9 + t17;
        const P t19 = t9 - t17;
        // spectrum block of 16, multiplier 3
        const P t20 = c[4] * t18;
        const P t21 = shuffled<1, 0>(t18);
        const P t22 = P(-c[5], c[5]) * t21;
        const P t23 = t20 + t22;
        const P t24 = shuffled<1, 0>(t15);
        const P t25 = flipped<0, 1>(t24);
        const P t26 = t15 + t25;
        const P t27 = P(-c[5], c[5]) * t19;
        const P t28 = shuffled<1, 0>(t19);
        const P t29 = c[4] * t28;
        const P t30 = t27 + t29;
        const P x18 = io.pair(18);
        // doubled bins
        const P t31 = c[0] * x18;
        const V t32 = part<0>(t31);
        const P x6 = io.pair(6);
        const P t33 = c[0] * x6;
        const V t34 = part<0>(t33);
        // mirrored skew block of 4, multiplier 3
        const V t35 = t32 - t34;
        const V t36 = part<1>(t31);
        const V t37 = part<1>(t33);
        const V t38 = t36 + t37;
        const V t39 = t32 + t34;
        const V t40 = c[1] * t35;
        const V t41 = c[1] * t38;
        const V t42 = t40 - t41;
        const V t43 = t36 - t37;
        const V t44 = t40 + t41;
        const P t45 = joined(t39, t42);
        // spectrum block of 2
        const P t46 = t4 + t45;
        const P t47 = t4 - t45;
        const P t48 = shuffled<0, 2>(t14, t23);
        // spectrum block of 2
        const P t49 = t46 + t48;
        const P t50 = t46 - t48;
        const P t51 = shuffled<1, 3>(t14, t23);
        // spectrum block of 2
        const P t52 = t47 + t51;
        const P t53 = t47 - t51;
        const P t54 = joined(t43, t44);
        // spectrum block of 2
        const P t55 = t5 - t54;
        const P t56 = t5 + t54;
        // spectrum block of 16, multiplier 3
        const P t57 = P(-c[1], c[1]) * t26;
        const P t58 = shuffled<0, 2>(t57, t30);
        // spectrum block of 2
        const P t59 = t55 + t58;
        const P t60 = t55 - t58;
        const P t61 = shuffled<1, 3>(t57, t30);
        // spectrum block of 2
        const P t62 = t56 - t61;
        const P t63 = t56 + t61;
        const P x16 = io.pair(16);
        // doubled bins
        const P t64 = c[0] * x16;
        const P x8 = io.pair(8);
        const P t65 = P(c[0], -c[0]) * x8;
        // complex block of 2
        const P t66 = t64 + t65;
        const P t67 = t64 - t65;
        const P x19 = io.pair(19);
        // doubled bins
        const P t68 = c[0] * x19;
        const P x5 = io.pair(5);
        const P t69 = P(c[0], -c[0]) * x5;
        // complex block of 2
        const P t70 = t68 + t69;
        const P t71 = t68 - t69;
        const P x22 = io.pair(22);
        // doubled bins
        const P t72 = c[0] * x22;
        const P x2 = io.pair(2);
        const P t73 = P(c[0], -c[0]) * x2;
        // complex block of 2
        const P t74 = t72 + t73;
        const P t75 = t72 - t73;
        const P x1 = io.pair(1);
        // doubled bins
        const P t76 = c[0] * x1;
        const P x23 = io.pair(23);
        const P t77 = P(c[0], -c[0]) * x23;
        // complex block of 2
        const P t78 = t76 + t77;
        const P t79 = flipped<0, 1>(t77);
        const P t80 = flipped<1, 0>(t76);
        const P t81 = t79 + t80;
        const P x4 = io.pair(4);
        // doubled bins
        const P t82 = c[0] * x4;
        const P x20 = io.pair(20);
        const P t83 = P(c[0], -c[0]) * x20;
        // complex block of 2
        const P t84 = t82 + t83;
        const P t85 = flipped<0, 1>(t83);
        const P t86 = flipped<1, 0>(t82);
        const P t87 = t85 + t86;
        const P x7 = io.pair(7);
        // doubled bins
        const P t88 = c[0] * x7;
        const P x17 = io.pair(17);
        const P t89 = P(c[0], -c[0]) * x17;
        // complex block of 2
        const P t90 = t88 + t89;
        const P t91 = flipped<0, 1>(t89);
        const P t92 = flipped<1, 0>(t88);
        const P t93 = t91 + t92;
        const P x10 = io.pair(10);
        // doubled bins
        const P t94 = c[0] * x10;
        const P x14 = io.pair(14);
        const P t95 = P(c[0], -c[0]) * x14;
        // complex block of 2
        const P t96 = t94 + t95;
        const P t97 = flipped<0, 1>(t95);
        const P t98 = flipped<1, 0>(t94);
        const P t99 = t97 + t98;
        const P x13 = io.pair(13);
        // doubled bins
        const P t100 = c[0] * x13;
        const P x11 = io.pair(11);
        const P t101 = P(c[0], -c[0]) * x11;
        // complex block of 2
        const P t102 = t100 + t101;
        const P t103 = flipped<0, 1>(t101);
        const P t104 = flipped<1, 0>(t100);
        const P t105 = t103 + t104;
        // complex block of 2
        const P t106 = t66 + t84;
        const P t107 = t66 - t84;
        // complex block of 2
        const P t108 = t70 + t90;
        const P t109 = t70 - t90;
        // complex block of 2
        const P t110 = t74 + t96;
        const P t111 = t74 - t96;
        // complex block of 2
        const P t112 = t78 + t102;
        const P t113 = t78 - t102;
        // complex block of 2
        const P t114 = t106 + t110;
        const P t115 = t106 - t110;
        // complex block of 2
        const P t116 = t108 + t112;
        const P t117 = t108 - t112;
        // complex block of 2
        const P t118 = t114 + t116;
        const P t119 = t114 - t116;
        const P t120 = shuffled<1, 0>(t117);
        const P t121 = flipped<0, 1>(t120);
        // complex block of 2
        const P t122 = t115 + t121;
        const P t123 = t115 - t121;
        // complex block of 8, multiplier 3
        const P t124 = c[1] * t109;
        const P t125 = shuffled<1, 0>(t124);
        const P t126 = flipped<1, 0>(t125);
        const P t127 = t124 + t126;
        const P t128 = c[1] * t113;
        const P t129 = shuffled<1, 0>(t128);
        const P t130 = flipped<1, 0>(t129);
        const P t131 = t128 + t130;
        const P t132 = shuffled<1, 0>(t111);
        const P t133 = flipped<0, 1>(t132);
        // complex block of 2
        const P t134 = t107 + t133;
        const P t135 = t107 - t133;
        const P t136 = shuffled<1, 0>(t127);
        const P t137 = flipped<1, 0>(t136);
        // complex block of 2
        const P t138 = t137 + t131;
        const P t139 = flipped<0, 1>(t131);
        const P t140 = t136 + t139;
        // complex block of 2
        const P t141 = t134 + t138;
        const P t142 = t134 - t138;
        const P t143 = shuffled<1, 0>(t140);
        // complex block of 2
        const P t144 = t135 + t143;
        const P t145 = t135 - t143;
        // complex block of 16, multiplier 3
        const P t146 = c[4] * t71;
        const P t147 = shuffled<1, 0>(t71);
        const P t148 = P(-c[5], c[5]) * t147;
        const P t149 = t146 + t148;
        const P t150 = c[1] * t75;
        const P t151 = shuffled<1, 0>(t150);
        const P t152 = flipped<1, 0>(t151);
        const P t153 = t150 + t152;
        const P t154 = c[5] * t81;
        const P t155 = shuffled<1, 0>(t81);
        const P t156 = P(c[4], -c[4]) * t155;
        const P t157 = t154 + t156;
        const P t158 = c[5] * t93;
        const P t159 = shuffled<1, 0>(t93);
        const P t160 = P(-c[4], c[4]) * t159;
        const P t161 = t158 + t160;
        const P t162 = c[1] * t99;
        const P t163 = shuffled<1, 0>(t162);
        const P t164 = flipped<0, 1>(t162);
        const P t165 = t163 + t164;
        const P t166 = P(-c[4], c[4]) * t105;
        const P t167 = shuffled<1, 0>(t105);
        const P t168 = c[5] * t167;
        const P t169 = t166 + t168;
        const P t170 = shuffled<1, 0>(t87);
        // complex block of 2
        const P t171 = t67 - t170;
        const P t172 = t67 + t170;
        const P t173 = flipped<0, 1>(t161);
        // complex block of 2
        const P t174 = t149 + t173;
        const P t175 = t149 - t173;
        const P t176 = shuffled<1, 0>(t153);
        const P t177 = flipped<1, 0>(t176);
        // complex block of 2
        const P t178 = t177 + t165;
        const P t179 = flipped<0, 1>(t165);
        const P t180 = t176 + t179;
        const P t181 = flipped<1, 0>(t157);
        // complex block of 2
        const P t182 = t181 + t169;
        const P t183 = flipped<0, 1>(t169);
        const P t184 = t157 + t183;
        // complex block of 2
        const P t185 = t171 + t178;
        const P t186 = t171 - t178;
        // complex block of 2
        const P t187 = t174 + t182;
        const P t188 = t174 - t182;
        // complex block of 2
        const P t189 = t185 + t187;
        const P t190 = t185 - t187;
        const P t191 = shuffled<1, 0>(t188);
        const P t192 = flipped<0, 1>(t191);
        // complex block of 2
        const P t193 = t186 + t192;
        const P t194 = t186 - t192;
        // complex block of 8, multiplier 3
        const P t195 = c[1] * t175;
        const P t196 = shuffled<1, 0>(t195);
        const P t197 = flipped<1, 0>(t196);
        const P t198 = t195 + t197;
        const P t199 = c[1] * t184;
        const P t200 = shuffled<1, 0>(t199);
        const P t201 = flipped<0, 1>(t200);
        const P t202 = t199 + t201;
        const P t203 = shuffled<1, 0>(t180);
        // complex block of 2
        const P t204 = t172 + t203;
        const P t205 = t172 - t203;
        const P t206 = shuffled<1, 0>(t198);
        // complex block of 2
        const P t207 = t206 + t202;
        const P t208 = shuffled<0, 3>(t202, t206);
        const P t209 = shuffled<0, 3>(t206, t202);
        const P t210 = t208 - t209;
        const P t211 = flipped<1, 0>(t207);
        // complex block of 2
        const P t212 = t204 + t211;
        const P t213 = t204 - t211;
        const P t214 = shuffled<1, 0>(t210);
        const P t215 = flipped<0, 1>(t214);
        // complex block of 2
        const P t216 = t205 + t215;
        const P t217 = t205 - t215;
        const P t218 = shuffled<0, 2>(t118, t189);
        // spectrum block of 3
        const P t219 = t218 + t49;
        io.out(0, 3, t219);
        const P t220 = c[2] * t218;
        const P t221 = t49 - t220;
        const P t222 = shuffled<1, 3>(t118, t189);
        const P t223 = c[3] * t222;
        const P t224 = t221 - t223;
        io.out(16, 19, t224);
        const P t225 = t221 + t223;
        io.out(32, 35, t225);
        const P t226 = shuffled<0, 2>(t141, t212);
        // spectrum block of 3
        const P t227 = t226 + t59;
        io.out(6, 9, t227);
        const P t228 = c[2] * t226;
        const P t229 = t59 - t228;
        const P t230 = shuffled<1, 3>(t141, t212);
        const P t231 = c[3] * t230;
        const P t232 = t229 - t231;
        io.out(22, 25, t232);
        const P t233 = t229 + t231;
        io.out(38, 41, t233);
        const P t234 = shuffled<0, 2>(t122, t193);
        // spectrum block of 3
        const P t235 = t234 + t52;
        io.out(12, 15, t235);
        const P t236 = c[2] * t234;
        const P t237 = t52 - t236;
        const P t238 = shuffled<1, 3>(t122, t193);
        const P t239 = c[3] * t238;
        const P t240 = t237 - t239;
        io.out(28, 31, t240);
        const P t241 = t237 + t239;
        io.out(44, 47, t241);
        const P t242 = shuffled<0, 2>(t144, t216);
        // spectrum block of 3
        const P t243 = t242 + t62;
        io.out(18, 21, t243);
        const P t244 = c[2] * t242;
        const P t245 = t62 - t244;
        const P t246 = shuffled<1, 3>(t144, t216);
        const P t247 = c[3] * t246;
        const P t248 = t245 - t247;
        io.out(34, 37, t248);
        const P t249 = t245 + t247;
        io.out(2, 5, t249);
        const P t250 = shuffled<0, 2>(t119, t190);
        // spectrum block of 3
        const P t251 = t250 + t50;
        io.out(24, 27, t251);
        const P t252 = c[2] * t250;
        const P t253 = t50 - t252;
        const P t254 = shuffled<1, 3>(t119, t190);
        const P t255 = c[3] * t254;
        const P t256 = t253 - t255;
        io.out(40, 43, t256);
        const P t257 = t253 + t255;
        io.out(8, 11, t257);
        const P t258 = shuffled<0, 2>(t142, t213);
        // spectrum block of 3
        const P t259 = t258 + t60;
        io.out(30, 33, t259);
        const P t260 = c[2] * t258;
        const P t261 = t60 - t260;
        const P t262 = shuffled<1, 3>(t142, t213);
        const P t263 = c[3] * t262;
        const P t264 = t261 - t263;
        io.out(46, 1, t264);
        const P t265 = t261 + t263;
        io.out(14, 17, t265);
        const P t266 = shuffled<0, 2>(t123, t194);
        // spectrum block of 3
        const P t267 = t266 + t53;
        io.out(36, 39, t267);
        const P t268 = c[2] * t266;
        const P t269 = t53 - t268;
        const P t270 = shuffled<1, 3>(t123, t194);
        const P t271 = c[3] * t270;
        const P t272 = t269 - t271;
        io.out(4, 7, t272);
        const P t273 = t269 + t271;
        io.out(20, 23, t273);
        const P t274 = shuffled<0, 2>(t145, t217);
        // spectrum block of 3
        const P t275 = t274 + t63;
        io.out(42, 45, t275);
        const P t276 = c[2] * t274;
        const P t277 = t63 - t276;
        const P t278 = shuffled<1, 3>(t145, t217);
        const P t279 = c[3] * t278;
        const P t280 = t277 - t279;
        io.out(10, 13, t280);
        const P t281 = t277 + t279;
        io.out(26, 29, t281);
    }
};

}  // namespace zulg
