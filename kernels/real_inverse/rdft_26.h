// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 26.
// Inverse DFT to 26 real points, prime-factor 2, 13.
// 93 additions, 93 subtractions, 112 multiplications (138 with `scale`); 19 constants; 39 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<26> {
    static constexpr int steps = 324;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.280148395734785,  // c[2]: Q[5] of 13
        0.5316276774946329,  // c[3]: -P[5] of 13
        0.2869425954512852,  // c[4]: -P[1] of 13
        0.5279915321544383,  // c[5]: -Q[1] of 13
        0.5751407294740031,  // c[6]: -Q[3] of 13
        0.1741386011521359,  // c[7]: P[3] of 13
        0.29376443202296976,  // c[8]: -Q[2] of 13
        0.42218506973345193,  // c[9]: -Q[4] of 13
        0.08333333333333333,  // c[10]: 1/12
        0.42763404682657274,  // c[11]: P[4] of 13
        0.5242266395265821,  // c[12]: P[2] of 13
        0.3004626062886658,  // c[13]: -beta of 13
        0.37034194807495624,  // c[14]: -sin 2 pi 2/3 times P[4] of 13
        0.36562299548767413,  // c[15]: -sin 2 pi 2/3 times -Q[4] of 13
        0.45399358717056765,  // c[16]: -sin 2 pi 2/3 times P[2] of 13
        0.25440746086019866,  // c[17]: -sin 2 pi 2/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x13r = io.re(13);
        const V t0 = x0r + x13r;
        const V t1 = x0r - x13r;
        // doubled bins
        const V x1r = io.re(1);
        const V t2 = two * x1r;
        const V x4r = io.re(4);
        const V t3 = two * x4r;
        const V x9r = io.re(9);
        const V t4 = two * x9r;
        const V x12r = io.re(12);
        const V t5 = two * x12r;
        // complex block of 2
        const V t6 = t3 + t4;
        // complex block of 2
        const V t7 = t5 + t2;
        // real block of 3, multiplier 2
        const V t8 = t7 + t6;
        const V t9 = t7 - t6;
        // complex block of 2
        const V t10 = t3 - t4;
        // complex block of 2
        const V t11 = t5 - t2;
        // real block of 3, multiplier 2
        const V t12 = t11 + t10;
        const V t13 = t11 - t10;
        // doubled bins
        const V x2r = io.re(2);
        const V t14 = two * x2r;
        const V x11r = io.re(11);
        const V t15 = two * x11r;
        // complex block of 2
        const V t16 = t14 + t15;
        const V t17 = t14 - t15;
        // doubled bins
        const V x3r = io.re(3);
        const V t18 = two * x3r;
        const V x10r = io.re(10);
        const V t19 = two * x10r;
        // complex block of 2
        const V t20 = t19 + t18;
        const V t21 = t19 - t18;
        // doubled bins
        const V x5r = io.re(5);
        const V t22 = two * x5r;
        const V x6r = io.re(6);
        const V t23 = two * x6r;
        const V x7r = io.re(7);
        const V t24 = two * x7r;
        const V x8r = io.re(8);
        const V t25 = two * x8r;
        // complex block of 2
        const V t26 = t23 + t24;
        // complex block of 2
        const V t27 = t25 + t22;
        // real block of 3, multiplier 2
        const V t28 = t27 + t26;
        const V t29 = t27 - t26;
        // complex block of 2
        const V t30 = t23 - t24;
        // complex block of 2
        const V t31 = t25 - t22;
        // real block of 3, multiplier 2
        const V t32 = t31 + t30;
        const V t33 = t31 - t30;
        // real block of 3, multiplier 2
        const V t34 = t28 + t16;
        // real block of 3, multiplier 2
        const V t35 = t8 + t20;
        // real block of 2
        const V t36 = t34 + t35;
        const V t37 = t34 - t35;
        // real block of 3, multiplier 2
        const V t38 = c[0] * t28;
        const V t39 = t16 - t38;
        // real block of 3, multiplier 2
        const V t40 = c[0] * t8;
        const V t41 = t20 - t40;
        // complex block of 2
        const V t42 = t39 + t41;
        const V t43 = t39 - t41;
        // real block of 3, multiplier 2
        const V t44 = c[1] * t29;
        // real block of 3, multiplier 2
        const V t45 = c[1] * t9;
        // complex block of 2
        const V t46 = t44 + t45;
        const V t47 = t44 - t45;
        // spectrum block of 13, multiplier 2
        const V t48 = c[8] * t47;
        const V t49 = c[9] * t46;
        // real block of 3, multiplier 2
        const V t50 = t32 + t17;
        // real block of 3, multiplier 2
        const V t51 = t12 + t21;
        // real block of 2
        const V t52 = t50 + t51;
        const V t53 = t50 - t51;
        // real block of 3, multiplier 2
        const V t54 = c[0] * t32;
        const V t55 = t17 - t54;
        // real block of 3, multiplier 2
        const V t56 = c[0] * t12;
        const V t57 = t21 - t56;
        // complex block of 2
        const V t58 = t55 + t57;
        const V t59 = t55 - t57;
        // real block of 3, multiplier 2
        const V t60 = c[1] * t33;
        // real block of 3, multiplier 2
        const V t61 = c[1] * t13;
        // complex block of 2
        const V t62 = t60 + t61;
        const V t63 = t60 - t61;
        // spectrum block of 13, multiplier 2
        const V t64 = c[8] * t63;
        const V t65 = c[9] * t62;
        // doubled bins
        const V x1i = io.im(1);
        const V t66 = two * x1i;
        const V x12i = io.im(12);
        const V t67 = two * x12i;
        // complex block of 2
        const V t68 = t67 - t66;
        // skew block of 6
        const V t69 = c[1] * t68;
        const V t70 = c[0] * t68;
        // complex block of 2
        const V t71 = t67 + t66;
        // skew block of 6
        const V t72 = c[1] * t71;
        const V t73 = c[0] * t71;
        // doubled bins
        const V x2i = io.im(2);
        const V t74 = two * x2i;
        const V x3i = io.im(3);
        const V t75 = two * x3i;
        const V x4i = io.im(4);
        const V t76 = two * x4i;
        const V x9i = io.im(9);
        const V t77 = two * x9i;
        // complex block of 2
        const V t78 = t76 - t77;
        // skew block of 6
        const V t79 = c[1] * t78;
        const V t80 = c[0] * t78;
        // complex block of 2
        const V t81 = t76 + t77;
        // skew block of 6
        const V t82 = c[1] * t81;
        const V t83 = c[0] * t81;
        // doubled bins
        const V x5i = io.im(5);
        const V t84 = two * x5i;
        const V x8i = io.im(8);
        const V t85 = two * x8i;
        // complex block of 2
        const V t86 = t85 - t84;
        // skew block of 6
        const V t87 = c[0] * t86;
        const V t88 = c[1] * t86;
        // complex block of 2
        const V t89 = t85 + t84;
        // skew block of 6
        const V t90 = c[0] * t89;
        const V t91 = c[1] * t89;
        // doubled bins
        const V x6i = io.im(6);
        const V t92 = two * x6i;
        const V x7i = io.im(7);
        const V t93 = two * x7i;
        // complex block of 2
        const V t94 = t92 - t93;
        // skew block of 6
        const V t95 = c[0] * t94;
        const V t96 = c[1] * t94;
        // complex block of 2
        const V t97 = t92 + t93;
        // skew block of 6
        const V t98 = c[0] * t97;
        const V t99 = c[1] * t97;
        // doubled bins
        const V x10i = io.im(10);
        const V t100 = two * x10i;
        const V x11i = io.im(11);
        const V t101 = two * x11i;
        // complex block of 2
        const V t102 = t74 - t101;
        // skew block of 6
        const V t103 = t79 - t95;
        const V t104 = t87 - t69;
        // complex block of 3
        const V t105 = t103 + t104;
        const V t106 = t103 - t104;
        const V t107 = t105 + t102;
        const V t108 = c[0] * t105;
        const V t109 = t102 - t108;
        const V t110 = c[1] * t106;
        // complex block of 2
        const V t111 = t74 + t101;
        // skew block of 6
        const V t112 = t82 - t98;
        const V t113 = t90 - t72;
        // complex block of 3
        const V t114 = t112 + t113;
        const V t115 = t112 - t113;
        const V t116 = t114 + t111;
        const V t117 = c[0] * t114;
        const V t118 = t111 - t117;
        const V t119 = c[1] * t115;
        // complex block of 2
        const V t120 = t100 - t75;
        // skew block of 6
        const V t121 = t96 + t80;
        const V t122 = t70 + t88;
        // complex block of 3
        const V t123 = t121 + t122;
        const V t124 = t122 - t121;
        const V t125 = t120 - t123;
        const V t126 = c[0] * t123;
        const V t127 = t126 + t120;
        const V t128 = c[1] * t124;
        // complex block of 2
        const V t129 = t100 + t75;
        // skew block of 6
        const V t130 = t99 + t83;
        const V t131 = t73 + t91;
        // complex block of 3
        const V t132 = t130 + t131;
        const V t133 = t131 - t130;
        const V t134 = t129 - t132;
        const V t135 = c[0] * t132;
        const V t136 = t135 + t129;
        const V t137 = c[1] * t133;
        // complex block of 3
        const V t138 = t109 + t128;
        // spectrum block of 13, multiplier 2
        const V t139 = c[2] * t138;
        const V t140 = c[3] * t138;
        // complex block of 3
        const V t141 = t127 - t110;
        // spectrum block of 13, multiplier 2
        const V t142 = c[3] * t141;
        const V t143 = c[2] * t141;
        const V t144 = c[4] * t125;
        const V t145 = c[5] * t107;
        const V t146 = t144 - t145;
        const V t147 = c[4] * t107;
        const V t148 = c[5] * t125;
        const V t149 = t148 + t147;
        const V t150 = t139 + t142;
        // complex block of 3
        const V t151 = t150 + t146;
        const V t152 = t150 - t146;
        // spectrum block of 13, multiplier 2
        const V t153 = t143 - t140;
        // complex block of 3
        const V t154 = t149 - t153;
        const V t155 = t153 + t149;
        // complex block of 3
        const V t156 = t109 - t128;
        // spectrum block of 13, multiplier 2
        const V t157 = c[6] * t156;
        const V t158 = c[7] * t156;
        // complex block of 3
        const V t159 = t127 + t110;
        // spectrum block of 13, multiplier 2
        const V t160 = c[7] * t159;
        const V t161 = c[6] * t159;
        const V t162 = t160 - t157;
        const V t163 = t161 + t158;
        const V t164 = c[10] * t36;
        const V t165 = t0 - t164;
        const V t166 = c[11] * t42;
        const V t167 = t166 + t49;
        // spectrum block of 3
        const V t168 = t167 + t165;
        const V t169 = c[0] * t167;
        const V t170 = t165 - t169;
        // spectrum block of 13, multiplier 2
        const V t171 = c[12] * t43;
        const V t172 = t171 - t48;
        const V t173 = c[13] * t37;
        // spectrum block of 3
        const V t174 = t172 - t173;
        const V t175 = c[0] * t172;
        const V t176 = t173 + t175;
        // spectrum block of 3
        const V t177 = c[14] * t46;
        const V t178 = c[15] * t42;
        const V t179 = t177 - t178;
        // spectrum block of 3
        const V t180 = c[16] * t47;
        const V t181 = c[17] * t43;
        const V t182 = t180 + t181;
        // spectrum block of 3
        const V t183 = t170 - t179;
        // spectrum block of 3
        const V t184 = t176 + t182;
        // spectrum block of 2
        const V t185 = t183 - t184;
        const V t186 = t183 + t184;
        // spectrum block of 3
        const V t187 = t170 + t179;
        // spectrum block of 3
        const V t188 = t182 - t176;
        // spectrum block of 2
        const V t189 = t187 + t188;
        const V t190 = t187 - t188;
        // complex block of 3
        const V t191 = c[0] * t154;
        const V t192 = t163 - t191;
        const V t193 = c[0] * t151;
        const V t194 = t162 - t193;
        const V t195 = c[1] * t155;
        const V t196 = c[1] * t152;
        const V t197 = t192 + t196;
        // spectrum block of 2
        const V t198 = t186 + t197;
        io.out(12, t198);
        const V t199 = t186 - t197;
        io.out(14, t199);
        // complex block of 3
        const V t200 = t194 + t195;
        // spectrum block of 2
        const V t201 = t185 + t200;
        io.out(18, t201);
        const V t202 = t185 - t200;
        io.out(8, t202);
        // complex block of 3
        const V t203 = t192 - t196;
        // spectrum block of 2
        const V t204 = t190 + t203;
        io.out(4, t204);
        const V t205 = t190 - t203;
        io.out(22, t205);
        // complex block of 3
        const V t206 = t194 - t195;
        // spectrum block of 2
        const V t207 = t189 + t206;
        io.out(6, t207);
        const V t208 = t189 - t206;
        io.out(20, t208);
        // complex block of 3
        const V t209 = t154 + t163;
        // spectrum block of 2
        const V t210 = t168 - t174;
        // spectrum block of 2
        const V t211 = t210 + t209;
        io.out(10, t211);
        const V t212 = t210 - t209;
        io.out(16, t212);
        // complex block of 3
        const V t213 = t151 + t162;
        // spectrum block of 2
        const V t214 = t168 + t174;
        // spectrum block of 2
        const V t215 = t214 + t213;
        io.out(2, t215);
        const V t216 = t214 - t213;
        io.out(24, t216);
        // spectrum block of 13, multiplier 2
        const V t217 = t0 + t36;
        io.out(0, t217);
        // complex block of 3
        const V t218 = t118 + t137;
        // spectrum block of 13, multiplier 2
        const V t219 = c[2] * t218;
        const V t220 = c[3] * t218;
        // complex block of 3
        const V t221 = t136 - t119;
        // spectrum block of 13, multiplier 2
        const V t222 = c[3] * t221;
        const V t223 = c[2] * t221;
        const V t224 = c[4] * t134;
        const V t225 = c[5] * t116;
        const V t226 = t224 - t225;
        const V t227 = c[4] * t116;
        const V t228 = c[5] * t134;
        const V t229 = t228 + t227;
        const V t230 = t219 + t222;
        // complex block of 3
        const V t231 = t230 + t226;
        const V t232 = t230 - t226;
        // spectrum block of 13, multiplier 2
        const V t233 = t223 - t220;
        // complex block of 3
        const V t234 = t229 - t233;
        const V t235 = t233 + t229;
        // complex block of 3
        const V t236 = t118 - t137;
        // spectrum block of 13, multiplier 2
        const V t237 = c[6] * t236;
        const V t238 = c[7] * t236;
        // complex block of 3
        const V t239 = t136 + t119;
        // spectrum block of 13, multiplier 2
        const V t240 = c[7] * t239;
        const V t241 = c[6] * t239;
        const V t242 = t240 - t237;
        const V t243 = t241 + t238;
        const V t244 = c[10] * t52;
        const V t245 = t1 - t244;
        const V t246 = c[11] * t58;
        const V t247 = t246 + t65;
        // spectrum block of 3
        const V t248 = t247 + t245;
        const V t249 = c[0] * t247;
        const V t250 = t245 - t249;
        // spectrum block of 13, multiplier 2
        const V t251 = c[12] * t59;
        const V t252 = t251 - t64;
        const V t253 = c[13] * t53;
        // spectrum block of 3
        const V t254 = t252 - t253;
        const V t255 = c[0] * t252;
        const V t256 = t253 + t255;
        // spectrum block of 3
        const V t257 = c[14] * t62;
        const V t258 = c[15] * t58;
        const V t259 = t257 - t258;
        // spectrum block of 3
        const V t260 = c[16] * t63;
        const V t261 = c[17] * t59;
        const V t262 = t260 + t261;
        // spectrum block of 3
        const V t263 = t250 - t259;
        // spectrum block of 3
        const V t264 = t256 + t262;
        // spectrum block of 2
        const V t265 = t263 - t264;
        const V t266 = t263 + t264;
        // spectrum block of 3
        const V t267 = t250 + t259;
        // spectrum block of 3
        const V t268 = t262 - t256;
        // spectrum block of 2
        const V t269 = t267 + t268;
        const V t270 = t267 - t268;
        // complex block of 3
        const V t271 = c[0] * t234;
        const V t272 = t243 - t271;
        const V t273 = c[0] * t231;
        const V t274 = t242 - t273;
        const V t275 = c[1] * t235;
        const V t276 = c[1] * t232;
        const V t277 = t272 + t276;
        // spectrum block of 2
        const V t278 = t266 + t277;
        io.out(25, t278);
        const V t279 = t266 - t277;
        io.out(1, t279);
        // complex block of 3
        const V t280 = t274 + t275;
        // spectrum block of 2
        const V t281 = t265 + t280;
        io.out(5, t281);
        const V t282 = t265 - t280;
        io.out(21, t282);
        // complex block of 3
        const V t283 = t272 - t276;
        // spectrum block of 2
        const V t284 = t270 + t283;
        io.out(17, t284);
        const V t285 = t270 - t283;
        io.out(9, t285);
        // complex block of 3
        const V t286 = t274 - t275;
        // spectrum block of 2
        const V t287 = t269 + t286;
        io.out(19, t287);
        const V t288 = t269 - t286;
        io.out(7, t288);
        // complex block of 3
        const V t289 = t234 + t243;
        // spectrum block of 2
        const V t290 = t248 - t254;
        // spectrum block of 2
        const V t291 = t290 + t289;
        io.out(23, t291);
        const V t292 = t290 - t289;
        io.out(3, t292);
        // complex block of 3
        const V t293 = t231 + t242;
        // spectrum block of 2
        const V t294 = t248 + t254;
        // spectrum block of 2
        const V t295 = t294 + t293;
        io.out(15, t295);
        const V t296 = t294 - t293;
        io.out(11, t296);
        // spectrum block of 13, multiplier 2
        const V t297 = t1 + t52;
        io.out(13, t297);
    }
};

}  // namespace zulg
