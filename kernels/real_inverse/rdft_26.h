// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 26.
// Inverse DFT to 26 real points, prime-factor 2, 13.
// 93 additions, 93 subtractions, 112 multiplications (138 with `scale`); 19 constants; 31 values alive at most.
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
        0.2869425954512852,  // c[2]: -P[1] of 13
        0.5279915321544383,  // c[3]: -Q[1] of 13
        0.1741386011521359,  // c[4]: P[3] of 13
        0.5751407294740031,  // c[5]: -Q[3] of 13
        0.5316276774946329,  // c[6]: -P[5] of 13
        0.280148395734785,  // c[7]: Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.29376443202296976,  // c[9]: -Q[2] of 13
        0.5242266395265821,  // c[10]: P[2] of 13
        0.42218506973345193,  // c[11]: -Q[4] of 13
        0.42763404682657274,  // c[12]: P[4] of 13
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
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        const V x7r = io.re(7);
        const V t12 = two * x7r;
        const V x7i = io.im(7);
        const V t13 = two * x7i;
        const V x8r = io.re(8);
        const V t14 = two * x8r;
        const V x8i = io.im(8);
        const V t15 = two * x8i;
        const V x9r = io.re(9);
        const V t16 = two * x9r;
        const V x9i = io.im(9);
        const V t17 = two * x9i;
        const V x10r = io.re(10);
        const V t18 = two * x10r;
        const V x10i = io.im(10);
        const V t19 = two * x10i;
        const V x11r = io.re(11);
        const V t20 = two * x11r;
        const V x11i = io.im(11);
        const V t21 = two * x11i;
        const V x12r = io.re(12);
        const V t22 = two * x12r;
        const V x12i = io.im(12);
        const V t23 = two * x12i;
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x13r = io.re(13);
        const V t24 = x0r + x13r;
        const V t25 = x0r - x13r;
        // complex block of 2
        const V t26 = t3 - t21;
        const V t27 = t2 + t20;
        const V t28 = t3 + t21;
        const V t29 = t2 - t20;
        // complex block of 2
        const V t30 = t7 - t17;
        const V t31 = t6 + t16;
        const V t32 = t7 + t17;
        const V t33 = t6 - t16;
        // complex block of 2
        const V t34 = t11 - t13;
        const V t35 = t10 + t12;
        const V t36 = t11 + t13;
        const V t37 = t10 - t12;
        // complex block of 2
        const V t38 = t15 - t9;
        const V t39 = t14 + t8;
        const V t40 = t15 + t9;
        const V t41 = t14 - t8;
        // complex block of 2
        const V t42 = t19 - t5;
        const V t43 = t18 + t4;
        const V t44 = t19 + t5;
        const V t45 = t18 - t4;
        // complex block of 2
        const V t46 = t23 - t1;
        const V t47 = t22 + t0;
        const V t48 = t23 + t1;
        const V t49 = t22 - t0;
        // real block of 3, multiplier 2
        const V t50 = t39 + t35;
        const V t51 = t39 - t35;
        const V t52 = t50 + t27;
        const V t53 = c[0] * t50;
        const V t54 = t27 - t53;
        const V t55 = c[1] * t51;
        // real block of 3, multiplier 2
        const V t56 = t47 + t31;
        const V t57 = t47 - t31;
        const V t58 = t56 + t43;
        const V t59 = c[0] * t56;
        const V t60 = t43 - t59;
        const V t61 = c[1] * t57;
        // real block of 2
        const V t62 = t52 + t58;
        const V t63 = t52 - t58;
        // complex block of 2
        const V t64 = t54 + t60;
        const V t65 = t55 + t61;
        const V t66 = t54 - t60;
        const V t67 = t55 - t61;
        // skew block of 6
        const V t68 = c[0] * t34;
        const V t69 = c[1] * t30;
        const V t70 = t69 - t68;
        const V t71 = c[0] * t30;
        const V t72 = c[1] * t34;
        const V t73 = t72 + t71;
        const V t74 = c[1] * t46;
        const V t75 = c[0] * t38;
        const V t76 = t75 - t74;
        const V t77 = c[1] * t38;
        const V t78 = c[0] * t46;
        const V t79 = t78 + t77;
        // complex block of 3
        const V t80 = t70 + t76;
        const V t81 = t73 + t79;
        const V t82 = t70 - t76;
        const V t83 = t79 - t73;
        const V t84 = t80 + t26;
        const V t85 = t42 - t81;
        const V t86 = c[0] * t80;
        const V t87 = t26 - t86;
        const V t88 = c[0] * t81;
        const V t89 = t88 + t42;
        const V t90 = c[1] * t82;
        const V t91 = c[1] * t83;
        const V t92 = t87 + t91;
        const V t93 = t89 - t90;
        const V t94 = t87 - t91;
        const V t95 = t89 + t90;
        // spectrum block of 13, multiplier 2
        const V t96 = c[8] * t62;
        const V t97 = t24 - t96;
        const V t98 = c[2] * t85;
        const V t99 = c[3] * t84;
        const V t100 = t98 - t99;
        const V t101 = c[2] * t84;
        const V t102 = c[3] * t85;
        const V t103 = t102 + t101;
        const V t104 = c[9] * t67;
        const V t105 = c[10] * t66;
        const V t106 = t105 - t104;
        const V t107 = c[4] * t95;
        const V t108 = c[5] * t94;
        const V t109 = t107 - t108;
        const V t110 = c[4] * t94;
        const V t111 = c[5] * t95;
        const V t112 = t111 + t110;
        const V t113 = c[11] * t65;
        const V t114 = c[12] * t64;
        const V t115 = t114 + t113;
        const V t116 = c[6] * t93;
        const V t117 = c[7] * t92;
        const V t118 = t117 + t116;
        const V t119 = c[6] * t92;
        const V t120 = c[7] * t93;
        const V t121 = t120 - t119;
        const V t122 = c[13] * t63;
        // spectrum block of 3
        const V t123 = t115 + t97;
        const V t124 = c[0] * t115;
        const V t125 = t97 - t124;
        const V t126 = c[14] * t65;
        const V t127 = c[15] * t64;
        const V t128 = t126 - t127;
        const V t129 = t125 - t128;
        const V t130 = t125 + t128;
        // complex block of 3
        const V t131 = t103 - t121;
        const V t132 = t118 + t100;
        const V t133 = t121 + t103;
        const V t134 = t118 - t100;
        const V t135 = t131 + t112;
        const V t136 = t132 + t109;
        const V t137 = c[0] * t131;
        const V t138 = t112 - t137;
        const V t139 = c[0] * t132;
        const V t140 = t109 - t139;
        const V t141 = c[1] * t133;
        const V t142 = c[1] * t134;
        const V t143 = t138 + t142;
        const V t144 = t140 + t141;
        const V t145 = t138 - t142;
        const V t146 = t140 - t141;
        // spectrum block of 3
        const V t147 = t106 - t122;
        const V t148 = c[0] * t106;
        const V t149 = t122 + t148;
        const V t150 = c[16] * t67;
        const V t151 = c[17] * t66;
        const V t152 = t150 + t151;
        const V t153 = t149 + t152;
        const V t154 = t152 - t149;
        // spectrum block of 2
        const V t155 = t123 + t147;
        const V t156 = t123 - t147;
        // spectrum block of 2
        const V t157 = t155 + t136;
        io.out(2, t157);
        const V t158 = t155 - t136;
        io.out(24, t158);
        // spectrum block of 2
        const V t159 = t156 + t135;
        io.out(10, t159);
        const V t160 = t156 - t135;
        io.out(16, t160);
        // spectrum block of 2
        const V t161 = t129 - t153;
        const V t162 = t129 + t153;
        // spectrum block of 2
        const V t163 = t161 + t144;
        io.out(18, t163);
        const V t164 = t161 - t144;
        io.out(8, t164);
        // spectrum block of 2
        const V t165 = t162 + t143;
        io.out(12, t165);
        const V t166 = t162 - t143;
        io.out(14, t166);
        // spectrum block of 2
        const V t167 = t130 + t154;
        const V t168 = t130 - t154;
        // spectrum block of 2
        const V t169 = t167 + t146;
        io.out(6, t169);
        const V t170 = t167 - t146;
        io.out(20, t170);
        // spectrum block of 2
        const V t171 = t168 + t145;
        io.out(4, t171);
        const V t172 = t168 - t145;
        io.out(22, t172);
        // spectrum block of 13, multiplier 2
        const V t173 = t24 + t62;
        io.out(0, t173);
        // real block of 3, multiplier 2
        const V t174 = t41 + t37;
        const V t175 = t41 - t37;
        const V t176 = t174 + t29;
        const V t177 = c[0] * t174;
        const V t178 = t29 - t177;
        const V t179 = c[1] * t175;
        // real block of 3, multiplier 2
        const V t180 = t49 + t33;
        const V t181 = t49 - t33;
        const V t182 = t180 + t45;
        const V t183 = c[0] * t180;
        const V t184 = t45 - t183;
        const V t185 = c[1] * t181;
        // real block of 2
        const V t186 = t176 + t182;
        const V t187 = t176 - t182;
        // complex block of 2
        const V t188 = t178 + t184;
        const V t189 = t179 + t185;
        const V t190 = t178 - t184;
        const V t191 = t179 - t185;
        // skew block of 6
        const V t192 = c[0] * t36;
        const V t193 = c[1] * t32;
        const V t194 = t193 - t192;
        const V t195 = c[0] * t32;
        const V t196 = c[1] * t36;
        const V t197 = t196 + t195;
        const V t198 = c[1] * t48;
        const V t199 = c[0] * t40;
        const V t200 = t199 - t198;
        const V t201 = c[1] * t40;
        const V t202 = c[0] * t48;
        const V t203 = t202 + t201;
        // complex block of 3
        const V t204 = t194 + t200;
        const V t205 = t197 + t203;
        const V t206 = t194 - t200;
        const V t207 = t203 - t197;
        const V t208 = t204 + t28;
        const V t209 = t44 - t205;
        const V t210 = c[0] * t204;
        const V t211 = t28 - t210;
        const V t212 = c[0] * t205;
        const V t213 = t212 + t44;
        const V t214 = c[1] * t206;
        const V t215 = c[1] * t207;
        const V t216 = t211 + t215;
        const V t217 = t213 - t214;
        const V t218 = t211 - t215;
        const V t219 = t213 + t214;
        // spectrum block of 13, multiplier 2
        const V t220 = c[8] * t186;
        const V t221 = t25 - t220;
        const V t222 = c[2] * t209;
        const V t223 = c[3] * t208;
        const V t224 = t222 - t223;
        const V t225 = c[2] * t208;
        const V t226 = c[3] * t209;
        const V t227 = t226 + t225;
        const V t228 = c[9] * t191;
        const V t229 = c[10] * t190;
        const V t230 = t229 - t228;
        const V t231 = c[4] * t219;
        const V t232 = c[5] * t218;
        const V t233 = t231 - t232;
        const V t234 = c[4] * t218;
        const V t235 = c[5] * t219;
        const V t236 = t235 + t234;
        const V t237 = c[11] * t189;
        const V t238 = c[12] * t188;
        const V t239 = t238 + t237;
        const V t240 = c[6] * t217;
        const V t241 = c[7] * t216;
        const V t242 = t241 + t240;
        const V t243 = c[6] * t216;
        const V t244 = c[7] * t217;
        const V t245 = t244 - t243;
        const V t246 = c[13] * t187;
        // spectrum block of 3
        const V t247 = t239 + t221;
        const V t248 = c[0] * t239;
        const V t249 = t221 - t248;
        const V t250 = c[14] * t189;
        const V t251 = c[15] * t188;
        const V t252 = t250 - t251;
        const V t253 = t249 - t252;
        const V t254 = t249 + t252;
        // complex block of 3
        const V t255 = t227 - t245;
        const V t256 = t242 + t224;
        const V t257 = t245 + t227;
        const V t258 = t242 - t224;
        const V t259 = t255 + t236;
        const V t260 = t256 + t233;
        const V t261 = c[0] * t255;
        const V t262 = t236 - t261;
        const V t263 = c[0] * t256;
        const V t264 = t233 - t263;
        const V t265 = c[1] * t257;
        const V t266 = c[1] * t258;
        const V t267 = t262 + t266;
        const V t268 = t264 + t265;
        const V t269 = t262 - t266;
        const V t270 = t264 - t265;
        // spectrum block of 3
        const V t271 = t230 - t246;
        const V t272 = c[0] * t230;
        const V t273 = t246 + t272;
        const V t274 = c[16] * t191;
        const V t275 = c[17] * t190;
        const V t276 = t274 + t275;
        const V t277 = t273 + t276;
        const V t278 = t276 - t273;
        // spectrum block of 2
        const V t279 = t247 + t271;
        const V t280 = t247 - t271;
        // spectrum block of 2
        const V t281 = t279 + t260;
        io.out(15, t281);
        const V t282 = t279 - t260;
        io.out(11, t282);
        // spectrum block of 2
        const V t283 = t280 + t259;
        io.out(23, t283);
        const V t284 = t280 - t259;
        io.out(3, t284);
        // spectrum block of 2
        const V t285 = t253 - t277;
        const V t286 = t253 + t277;
        // spectrum block of 2
        const V t287 = t285 + t268;
        io.out(5, t287);
        const V t288 = t285 - t268;
        io.out(21, t288);
        // spectrum block of 2
        const V t289 = t286 + t267;
        io.out(25, t289);
        const V t290 = t286 - t267;
        io.out(1, t290);
        // spectrum block of 2
        const V t291 = t254 + t278;
        const V t292 = t254 - t278;
        // spectrum block of 2
        const V t293 = t291 + t270;
        io.out(19, t293);
        const V t294 = t291 - t270;
        io.out(7, t294);
        // spectrum block of 2
        const V t295 = t292 + t269;
        io.out(17, t295);
        const V t296 = t292 - t269;
        io.out(9, t296);
        // spectrum block of 13, multiplier 2
        const V t297 = t25 + t186;
        io.out(13, t297);
    }
};

}  // namespace zulg
