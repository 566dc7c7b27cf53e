// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 19.
// Inverse DFT to 19 real points, Rader 2, 9.
// 82 additions, 82 subtractions, 128 multiplications (147 with `scale`); 31 constants; 23 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<19> {
    static constexpr int steps = 311;  // with `scale`
    static constexpr double inverseRoot = 0.22941573387056174;  // 1/sqrt(19), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.6427876096865394,  // c[4]: sin 2 pi 1/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.09512810652215012,  // c[6]: P[1] of 19
        0.4748879284463634,  // c[7]: -Q[1] of 19
        0.35860066823859316,  // c[8]: Q[2] of 19
        0.32553565392043055,  // c[9]: P[2] of 19
        0.48200335114804865,  // c[10]: -P[3] of 19
        0.04733572347201245,  // c[11]: Q[3] of 19
        0.3169022121664568,  // c[12]: Q[4] of 19
        0.3662524937233519,  // c[13]: P[4] of 19
        0.31107402086032515,  // c[14]: P[5] of 19
        0.3712153751939134,  // c[15]: Q[5] of 19
        0.46112591934192776,  // c[16]: Q[6] of 19
        0.1480904714883096,  // c[17]: -P[6] of 19
        0.48361283902825675,  // c[18]: -P[7] of 19
        0.026201587005319653,  // c[19]: -Q[7] of 19
        0.1584341653811184,  // c[20]: -Q[8] of 19
        0.4576751211007174,  // c[21]: P[8] of 19
        0.3420201433256687,  // c[22]: -sin 2 pi 5/9
        0.9396926207859084,  // c[23]: -cos 2 pi 5/9
        0.1503837331804353,  // c[24]: sin 2 pi 1/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[25]: sin 2 pi 1/3 times sin 2 pi 2/9
        0.29619813272602386,  // c[26]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[27]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.05555555555555555,  // c[28]: 1/18
        0.2421610524189263,  // c[29]: -beta of 19
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
        // real block of 3
        const V t18 = t14 + t12;
        const V t19 = t14 - t12;
        const V t20 = t18 + t0;
        const V t21 = c[0] * t18;
        const V t22 = t0 - t21;
        const V t23 = c[1] * t19;
        // real block of 3
        const V t24 = t4 + t8;
        const V t25 = t4 - t8;
        const V t26 = t24 + t2;
        const V t27 = c[0] * t24;
        const V t28 = t2 - t27;
        const V t29 = c[1] * t25;
        // real block of 3
        const V t30 = t10 + t16;
        const V t31 = t10 - t16;
        const V t32 = t30 + t6;
        const V t33 = c[0] * t30;
        const V t34 = t6 - t33;
        const V t35 = c[1] * t31;
        // real block of 3
        const V t36 = t26 + t32;
        const V t37 = t26 - t32;
        const V t38 = t36 + t20;
        const V t39 = c[0] * t36;
        const V t40 = t20 - t39;
        const V t41 = c[1] * t37;
        // real block of 9
        const V t42 = c[4] * t29;
        const V t43 = c[5] * t28;
        const V t44 = t43 - t42;
        const V t45 = c[4] * t28;
        const V t46 = c[5] * t29;
        const V t47 = t46 + t45;
        const V t48 = c[2] * t35;
        const V t49 = c[3] * t34;
        const V t50 = t49 - t48;
        const V t51 = c[2] * t34;
        const V t52 = c[3] * t35;
        const V t53 = t52 + t51;
        // complex block of 3
        const V t54 = t44 + t50;
        const V t55 = t47 + t53;
        const V t56 = t44 - t50;
        const V t57 = t53 - t47;
        const V t58 = t54 + t22;
        const V t59 = t55 + t23;
        const V t60 = c[0] * t54;
        const V t61 = t22 - t60;
        const V t62 = c[0] * t55;
        const V t63 = t62 - t23;
        const V t64 = c[1] * t56;
        const V t65 = c[1] * t57;
        const V t66 = t61 + t65;
        const V t67 = t63 - t64;
        const V t68 = t61 - t65;
        const V t69 = t63 + t64;
        // real block of 3
        const V t70 = t13 - t15;
        const V t71 = t15 + t13;
        const V t72 = t70 + t1;
        const V t73 = c[0] * t70;
        const V t74 = t1 - t73;
        const V t75 = c[1] * t71;
        // real block of 3
        const V t76 = t9 - t5;
        const V t77 = t5 + t9;
        const V t78 = t76 - t3;
        const V t79 = c[0] * t76;
        const V t80 = t3 + t79;
        const V t81 = c[1] * t77;
        // real block of 3
        const V t82 = t11 + t17;
        const V t83 = t11 - t17;
        const V t84 = t82 + t7;
        const V t85 = c[0] * t82;
        const V t86 = t7 - t85;
        const V t87 = c[1] * t83;
        // real block of 3
        const V t88 = t78 + t84;
        const V t89 = t78 - t84;
        const V t90 = t88 + t72;
        const V t91 = c[0] * t88;
        const V t92 = t72 - t91;
        const V t93 = c[1] * t89;
        // real block of 9
        const V t94 = c[4] * t81;
        const V t95 = c[5] * t80;
        const V t96 = t94 - t95;
        const V t97 = c[4] * t80;
        const V t98 = c[5] * t81;
        const V t99 = t98 + t97;
        const V t100 = c[2] * t87;
        const V t101 = c[3] * t86;
        const V t102 = t101 - t100;
        const V t103 = c[2] * t86;
        const V t104 = c[3] * t87;
        const V t105 = t104 + t103;
        // complex block of 3
        const V t106 = t96 + t102;
        const V t107 = t99 - t105;
        const V t108 = t96 - t102;
        const V t109 = t99 + t105;
        const V t110 = t106 + t74;
        const V t111 = t107 + t75;
        const V t112 = c[0] * t106;
        const V t113 = t74 - t112;
        const V t114 = c[0] * t107;
        const V t115 = t75 - t114;
        const V t116 = c[1] * t108;
        const V t117 = c[1] * t109;
        const V t118 = t113 + t117;
        const V t119 = t115 - t116;
        const V t120 = t113 - t117;
        const V t121 = t115 + t116;
        // spectrum block of 19
        const V t122 = c[28] * t38;
        const V x0r = io.re(0);
        const V t123 = x0r - t122;
        const V t124 = c[6] * t119;
        const V t125 = c[7] * t118;
        const V t126 = t124 - t125;
        const V t127 = c[6] * t118;
        const V t128 = c[7] * t119;
        const V t129 = t128 + t127;
        const V t130 = c[8] * t59;
        const V t131 = c[9] * t58;
        const V t132 = t131 + t130;
        const V t133 = c[8] * t58;
        const V t134 = c[9] * t59;
        const V t135 = t133 - t134;
        const V t136 = c[10] * t93;
        const V t137 = c[11] * t92;
        const V t138 = t137 + t136;
        const V t139 = c[10] * t92;
        const V t140 = c[11] * t93;
        const V t141 = t140 - t139;
        const V t142 = c[12] * t69;
        const V t143 = c[13] * t68;
        const V t144 = t143 + t142;
        const V t145 = c[12] * t68;
        const V t146 = c[13] * t69;
        const V t147 = t145 - t146;
        const V t148 = c[14] * t121;
        const V t149 = c[15] * t120;
        const V t150 = t149 - t148;
        const V t151 = c[14] * t120;
        const V t152 = c[15] * t121;
        const V t153 = t152 + t151;
        const V t154 = c[16] * t41;
        const V t155 = c[17] * t40;
        const V t156 = t154 - t155;
        const V t157 = c[16] * t40;
        const V t158 = c[17] * t41;
        const V t159 = t158 + t157;
        const V t160 = c[18] * t111;
        const V t161 = c[19] * t110;
        const V t162 = t161 + t160;
        const V t163 = c[18] * t110;
        const V t164 = c[19] * t111;
        const V t165 = t164 - t163;
        const V t166 = c[20] * t67;
        const V t167 = c[21] * t66;
        const V t168 = t167 + t166;
        const V t169 = c[20] * t66;
        const V t170 = c[21] * t67;
        const V t171 = t170 - t169;
        const V t172 = c[29] * t90;
        // spectrum block of 2
        const V t173 = t123 - t172;
        const V t174 = t123 + t172;
        // complex block of 2
        const V t175 = t135 - t165;
        const V t176 = t132 - t162;
        const V t177 = t135 + t165;
        const V t178 = t132 + t162;
        // complex block of 2
        const V t179 = t147 - t153;
        const V t180 = t144 + t150;
        const V t181 = t147 + t153;
        const V t182 = t144 - t150;
        // complex block of 2
        const V t183 = t159 - t141;
        const V t184 = t156 + t138;
        const V t185 = t159 + t141;
        const V t186 = t156 - t138;
        // complex block of 2
        const V t187 = t171 - t129;
        const V t188 = t168 + t126;
        const V t189 = t171 + t129;
        const V t190 = t168 - t126;
        // spectrum block of 3, multiplier 2
        const V t191 = t184 + t173;
        const V t192 = c[0] * t184;
        const V t193 = t173 - t192;
        const V t194 = c[1] * t183;
        const V t195 = t193 - t194;
        const V t196 = t193 + t194;
        // complex block of 3, multiplier 2
        const V t197 = t187 - t179;
        const V t198 = t188 + t180;
        const V t199 = t187 + t179;
        const V t200 = t188 - t180;
        const V t201 = t197 + t175;
        const V t202 = t198 + t176;
        const V t203 = c[0] * t197;
        const V t204 = t175 - t203;
        const V t205 = c[0] * t198;
        const V t206 = t176 - t205;
        const V t207 = c[1] * t199;
        const V t208 = c[1] * t200;
        const V t209 = t204 + t208;
        const V t210 = t206 - t207;
        const V t211 = t204 - t208;
        const V t212 = t206 + t207;
        // spectrum block of 9, multiplier 2
        const V t213 = c[2] * t211;
        const V t214 = c[3] * t212;
        const V t215 = t214 - t213;
        const V t216 = c[22] * t209;
        const V t217 = c[23] * t210;
        const V t218 = t217 + t216;
        // spectrum block of 3, multiplier 2
        const V t219 = t202 + t191;
        io.out(1, t219);
        const V t220 = c[0] * t202;
        const V t221 = t191 - t220;
        const V t222 = c[1] * t201;
        const V t223 = t221 - t222;
        io.out(7, t223);
        const V t224 = t221 + t222;
        io.out(11, t224);
        // spectrum block of 3, multiplier 2
        const V t225 = t215 + t196;
        io.out(5, t225);
        const V t226 = c[0] * t215;
        const V t227 = t196 - t226;
        const V t228 = c[24] * t211;
        const V t229 = c[25] * t212;
        const V t230 = t228 + t229;
        const V t231 = t227 - t230;
        io.out(16, t231);
        const V t232 = t227 + t230;
        io.out(17, t232);
        // spectrum block of 3, multiplier 2
        const V t233 = t195 - t218;
        io.out(6, t233);
        const V t234 = c[0] * t218;
        const V t235 = t234 + t195;
        const V t236 = c[26] * t210;
        const V t237 = c[27] * t209;
        const V t238 = t236 - t237;
        const V t239 = t235 - t238;
        io.out(4, t239);
        const V t240 = t235 + t238;
        io.out(9, t240);
        // spectrum block of 3, multiplier 2
        const V t241 = t186 + t174;
        const V t242 = c[0] * t186;
        const V t243 = t174 - t242;
        const V t244 = c[1] * t185;
        const V t245 = t243 - t244;
        const V t246 = t243 + t244;
        // complex block of 3, multiplier 2
        const V t247 = t189 - t181;
        const V t248 = t190 + t182;
        const V t249 = t189 + t181;
        const V t250 = t190 - t182;
        const V t251 = t247 + t177;
        const V t252 = t248 + t178;
        const V t253 = c[0] * t247;
        const V t254 = t177 - t253;
        const V t255 = c[0] * t248;
        const V t256 = t178 - t255;
        const V t257 = c[1] * t249;
        const V t258 = c[1] * t250;
        const V t259 = t254 + t258;
        const V t260 = t256 - t257;
        const V t261 = t254 - t258;
        const V t262 = t256 + t257;
        // spectrum block of 9, multiplier 2
        const V t263 = c[2] * t261;
        const V t264 = c[3] * t262;
        const V t265 = t264 - t263;
        const V t266 = c[22] * t259;
        const V t267 = c[23] * t260;
        const V t268 = t267 + t266;
        // spectrum block of 3, multiplier 2
        const V t269 = t252 + t241;
        io.out(18, t269);
        const V t270 = c[0] * t252;
        const V t271 = t241 - t270;
        const V t272 = c[1] * t251;
        const V t273 = t271 - t272;
        io.out(12, t273);
        const V t274 = t271 + t272;
        io.out(8, t274);
        // spectrum block of 3, multiplier 2
        const V t275 = t265 + t246;
        io.out(14, t275);
        const V t276 = c[0] * t265;
        const V t277 = t246 - t276;
        const V t278 = c[24] * t261;
        const V t279 = c[25] * t262;
        const V t280 = t278 + t279;
        const V t281 = t277 - t280;
        io.out(3, t281);
        const V t282 = t277 + t280;
        io.out(2, t282);
        // spectrum block of 3, multiplier 2
        const V t283 = t245 - t268;
        io.out(13, t283);
        const V t284 = c[0] * t268;
        const V t285 = t284 + t245;
        const V t286 = c[26] * t260;
        const V t287 = c[27] * t259;
        const V t288 = t286 - t287;
        const V t289 = t285 - t288;
        io.out(15, t289);
        const V t290 = t285 + t288;
        io.out(10, t290);
        // spectrum block of 19
        const V t291 = x0r + t38;
        io.out(0, t291);
    }
};

}  // namespace zulg
