// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 19.
// Hartley transform of 19 points, form F.
// 91 additions, 91 subtractions, 108 multiplications (127 with `scale`); 36 constants; 22 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<19> {
    static constexpr int steps = 309;  // with `scale`
    static constexpr double inverseRoot = 0.22941573387056174;  // 1/sqrt(19), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.984807753012208,  // c[2]: sin 2 pi 2/9
        0.17364817766693036,  // c[3]: cos 2 pi 2/9
        0.3420201433256687,  // c[4]: sin 2 pi 4/9
        0.9396926207859084,  // c[5]: -cos 2 pi 4/9
        0.4748879284463634,  // c[6]: -Q[1] of 19
        0.09512810652215012,  // c[7]: -P[1] of 19
        0.35860066823859316,  // c[8]: Q[2] of 19
        0.32553565392043055,  // c[9]: P[2] of 19
        0.3169022121664568,  // c[10]: Q[4] of 19
        0.3662524937233519,  // c[11]: P[4] of 19
        0.3712153751939134,  // c[12]: Q[5] of 19
        0.31107402086032515,  // c[13]: -P[5] of 19
        0.026201587005319653,  // c[14]: -Q[7] of 19
        0.48361283902825675,  // c[15]: P[7] of 19
        0.1584341653811184,  // c[16]: -Q[8] of 19
        0.4576751211007174,  // c[17]: P[8] of 19
        0.1503837331804353,  // c[18]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[19]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.05555555555555555,  // c[20]: 1/18
        0.04733572347201245,  // c[21]: Q[3] of 19
        0.48200335114804865,  // c[22]: P[3] of 19
        0.46112591934192776,  // c[23]: Q[6] of 19
        0.1480904714883096,  // c[24]: -P[6] of 19
        0.2421610524189263,  // c[25]: -beta of 19
        0.3993467604935635,  // c[26]: -sin 2 pi 2/3 times Q[6] of 19
        0.12825011036729123,  // c[27]: -sin 2 pi 2/3 times -P[6] of 19
        0.6427876096865394,  // c[28]: -sin 2 pi 8/9
        0.766044443118978,  // c[29]: cos 2 pi 8/9
        0.6634139481689384,  // c[30]: -sin 2 pi 2/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[31]: -sin 2 pi 2/3 times -sin 2 pi 8/9
        0.4174271468034414,  // c[32]: -sin 2 pi 2/3 times P[3] of 19
        0.040993939033278116,  // c[33]: -sin 2 pi 2/3 times Q[3] of 19
        0.8137976813493737,  // c[34]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.29619813272602386,  // c[35]: -sin 2 pi 2/3 times sin 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 3, multiplier 2
        const V x7 = io.in(7);
        const V x11 = io.in(11);
        const V t0 = x7 + x11;
        const V t1 = x7 - x11;
        const V x1 = io.in(1);
        const V t2 = t0 + x1;
        const V t3 = c[0] * t0;
        const V t4 = x1 - t3;
        const V t5 = c[1] * t1;
        // real block of 3, multiplier 2
        const V x9 = io.in(9);
        const V x6 = io.in(6);
        const V t6 = x9 + x6;
        const V t7 = x9 - x6;
        const V x4 = io.in(4);
        const V t8 = t6 + x4;
        const V t9 = c[0] * t6;
        const V t10 = x4 - t9;
        const V t11 = c[1] * t7;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x5 = io.in(5);
        const V t12 = x17 + x5;
        const V t13 = x17 - x5;
        const V x16 = io.in(16);
        const V t14 = t12 + x16;
        const V t15 = c[0] * t12;
        const V t16 = x16 - t15;
        const V t17 = c[1] * t13;
        // real block of 3, multiplier 2
        const V t18 = t8 + t14;
        const V t19 = t8 - t14;
        const V t20 = t18 + t2;
        const V t21 = c[0] * t18;
        const V t22 = t2 - t21;
        const V t23 = c[1] * t19;
        // real block of 9, multiplier 2
        const V t24 = c[2] * t11;
        const V t25 = c[3] * t10;
        const V t26 = t25 + t24;
        const V t27 = c[2] * t10;
        const V t28 = c[3] * t11;
        const V t29 = t28 - t27;
        const V t30 = c[4] * t17;
        const V t31 = c[5] * t16;
        const V t32 = t30 - t31;
        const V t33 = c[4] * t16;
        const V t34 = c[5] * t17;
        const V t35 = t34 + t33;
        // complex block of 3, multiplier 2
        const V t36 = t26 + t32;
        const V t37 = t29 - t35;
        const V t38 = t26 - t32;
        const V t39 = t29 + t35;
        const V t40 = t36 + t4;
        const V t41 = t37 + t5;
        const V t42 = c[0] * t36;
        const V t43 = t4 - t42;
        const V t44 = c[0] * t37;
        const V t45 = t5 - t44;
        const V t46 = c[1] * t38;
        const V t47 = c[1] * t39;
        const V t48 = t43 + t47;
        const V t49 = t45 - t46;
        const V t50 = t43 - t47;
        const V t51 = t45 + t46;
        // real block of 3, multiplier 2
        const V x12 = io.in(12);
        const V x8 = io.in(8);
        const V t52 = x12 + x8;
        const V t53 = x12 - x8;
        const V x18 = io.in(18);
        const V t54 = t52 + x18;
        const V t55 = c[0] * t52;
        const V t56 = x18 - t55;
        const V t57 = c[1] * t53;
        // real block of 3, multiplier 2
        const V x10 = io.in(10);
        const V x13 = io.in(13);
        const V t58 = x10 + x13;
        const V t59 = x10 - x13;
        const V x15 = io.in(15);
        const V t60 = t58 + x15;
        const V t61 = c[0] * t58;
        const V t62 = x15 - t61;
        const V t63 = c[1] * t59;
        // real block of 3, multiplier 2
        const V x2 = io.in(2);
        const V x14 = io.in(14);
        const V t64 = x2 + x14;
        const V t65 = x2 - x14;
        const V x3 = io.in(3);
        const V t66 = t64 + x3;
        const V t67 = c[0] * t64;
        const V t68 = x3 - t67;
        const V t69 = c[1] * t65;
        // real block of 3, multiplier 2
        const V t70 = t60 + t66;
        const V t71 = t60 - t66;
        const V t72 = t70 + t54;
        const V t73 = c[0] * t70;
        const V t74 = t54 - t73;
        const V t75 = c[1] * t71;
        // real block of 9, multiplier 2
        const V t76 = c[2] * t63;
        const V t77 = c[3] * t62;
        const V t78 = t77 + t76;
        const V t79 = c[2] * t62;
        const V t80 = c[3] * t63;
        const V t81 = t80 - t79;
        const V t82 = c[4] * t69;
        const V t83 = c[5] * t68;
        const V t84 = t82 - t83;
        const V t85 = c[4] * t68;
        const V t86 = c[5] * t69;
        const V t87 = t86 + t85;
        // complex block of 3, multiplier 2
        const V t88 = t78 + t84;
        const V t89 = t81 - t87;
        const V t90 = t78 - t84;
        const V t91 = t81 + t87;
        const V t92 = t88 + t56;
        const V t93 = t89 + t57;
        const V t94 = c[0] * t88;
        const V t95 = t56 - t94;
        const V t96 = c[0] * t89;
        const V t97 = t57 - t96;
        const V t98 = c[1] * t90;
        const V t99 = c[1] * t91;
        const V t100 = t95 + t99;
        const V t101 = t97 - t98;
        const V t102 = t95 - t99;
        const V t103 = t97 + t98;
        // real block of 2
        const V t104 = t20 + t72;
        const V t105 = t20 - t72;
        // complex block of 2
        const V t106 = t40 + t92;
        const V t107 = t41 + t93;
        const V t108 = t40 - t92;
        const V t109 = t41 - t93;
        // complex block of 2
        const V t110 = t48 + t100;
        const V t111 = t49 + t101;
        const V t112 = t48 - t100;
        const V t113 = t101 - t49;
        // complex block of 2
        const V t114 = t22 + t74;
        const V t115 = t23 + t75;
        const V t116 = t22 - t74;
        const V t117 = t23 - t75;
        // complex block of 2
        const V t118 = t50 + t102;
        const V t119 = t51 + t103;
        const V t120 = t50 - t102;
        const V t121 = t51 - t103;
        // real block of 19
        const V x0 = io.in(0);
        const V t122 = x0 + t104;
        io.out(0, t122);
        const V t123 = c[20] * t104;
        const V t124 = x0 - t123;
        const V t125 = c[6] * t121;
        const V t126 = c[7] * t120;
        const V t127 = t126 + t125;
        const V t128 = c[6] * t120;
        const V t129 = c[7] * t121;
        const V t130 = t129 - t128;
        const V t131 = c[8] * t107;
        const V t132 = c[9] * t106;
        const V t133 = t132 - t131;
        const V t134 = c[8] * t106;
        const V t135 = c[9] * t107;
        const V t136 = t135 + t134;
        const V t137 = c[21] * t116;
        const V t138 = c[22] * t117;
        const V t139 = t137 - t138;
        const V t140 = c[10] * t111;
        const V t141 = c[11] * t110;
        const V t142 = t141 + t140;
        const V t143 = c[10] * t110;
        const V t144 = c[11] * t111;
        const V t145 = t143 - t144;
        const V t146 = c[12] * t113;
        const V t147 = c[13] * t112;
        const V t148 = t146 - t147;
        const V t149 = c[12] * t112;
        const V t150 = c[13] * t113;
        const V t151 = t150 + t149;
        const V t152 = c[23] * t115;
        const V t153 = c[24] * t114;
        const V t154 = t153 + t152;
        const V t155 = c[14] * t109;
        const V t156 = c[15] * t108;
        const V t157 = t156 - t155;
        const V t158 = c[14] * t108;
        const V t159 = c[15] * t109;
        const V t160 = t159 + t158;
        const V t161 = c[16] * t119;
        const V t162 = c[17] * t118;
        const V t163 = t162 + t161;
        const V t164 = c[16] * t118;
        const V t165 = c[17] * t119;
        const V t166 = t165 - t164;
        const V t167 = c[25] * t105;
        // spectrum block of 3
        const V t168 = t124 - t154;
        const V t169 = c[0] * t154;
        const V t170 = t169 + t124;
        const V t171 = c[26] * t114;
        const V t172 = c[27] * t115;
        const V t173 = t171 - t172;
        const V t174 = t170 - t173;
        const V t175 = t170 + t173;
        // complex block of 3
        const V t176 = t166 - t145;
        const V t177 = t163 + t142;
        const V t178 = t166 + t145;
        const V t179 = t163 - t142;
        const V t180 = t176 + t136;
        const V t181 = t177 + t133;
        const V t182 = c[0] * t176;
        const V t183 = t136 - t182;
        const V t184 = c[0] * t177;
        const V t185 = t133 - t184;
        const V t186 = c[1] * t178;
        const V t187 = c[1] * t179;
        const V t188 = t183 + t187;
        const V t189 = t185 - t186;
        const V t190 = t183 - t187;
        const V t191 = t185 + t186;
        // spectrum block of 9
        const V t192 = c[28] * t188;
        const V t193 = c[29] * t189;
        const V t194 = t193 - t192;
        const V t195 = c[2] * t190;
        const V t196 = c[3] * t191;
        const V t197 = t196 - t195;
        // spectrum block of 3
        const V t198 = t181 + t168;
        const V t199 = c[0] * t181;
        const V t200 = t168 - t199;
        const V t201 = c[1] * t180;
        const V t202 = t200 - t201;
        const V t203 = t200 + t201;
        // spectrum block of 3
        const V t204 = t194 + t174;
        const V t205 = c[0] * t194;
        const V t206 = t174 - t205;
        const V t207 = c[30] * t188;
        const V t208 = c[31] * t189;
        const V t209 = t207 + t208;
        const V t210 = t206 - t209;
        const V t211 = t206 + t209;
        // spectrum block of 3
        const V t212 = t197 + t175;
        const V t213 = c[0] * t197;
        const V t214 = t175 - t213;
        const V t215 = c[18] * t190;
        const V t216 = c[19] * t191;
        const V t217 = t215 + t216;
        const V t218 = t214 - t217;
        const V t219 = t214 + t217;
        // spectrum block of 3, multiplier 2
        const V t220 = t139 - t167;
        const V t221 = c[0] * t139;
        const V t222 = t167 + t221;
        const V t223 = c[32] * t116;
        const V t224 = c[33] * t117;
        const V t225 = t223 + t224;
        const V t226 = t222 + t225;
        const V t227 = t225 - t222;
        // complex block of 3, multiplier 2
        const V t228 = t127 + t148;
        const V t229 = t130 + t151;
        const V t230 = t148 - t127;
        const V t231 = t130 - t151;
        const V t232 = t157 - t228;
        const V t233 = t229 - t160;
        const V t234 = c[0] * t228;
        const V t235 = t234 + t157;
        const V t236 = c[0] * t229;
        const V t237 = t160 + t236;
        const V t238 = c[1] * t230;
        const V t239 = c[1] * t231;
        const V t240 = t235 + t239;
        const V t241 = t237 + t238;
        const V t242 = t235 - t239;
        const V t243 = t238 - t237;
        // spectrum block of 9, multiplier 2
        const V t244 = c[2] * t242;
        const V t245 = c[3] * t243;
        const V t246 = t245 - t244;
        const V t247 = c[4] * t240;
        const V t248 = c[5] * t241;
        const V t249 = t248 - t247;
        // spectrum block of 3, multiplier 2
        const V t250 = t233 + t220;
        const V t251 = c[0] * t233;
        const V t252 = t220 - t251;
        const V t253 = c[1] * t232;
        const V t254 = t252 - t253;
        const V t255 = t252 + t253;
        // spectrum block of 3, multiplier 2
        const V t256 = t246 + t227;
        const V t257 = c[0] * t246;
        const V t258 = t227 - t257;
        const V t259 = c[18] * t242;
        const V t260 = c[19] * t243;
        const V t261 = t259 + t260;
        const V t262 = t258 - t261;
        const V t263 = t258 + t261;
        // spectrum block of 3, multiplier 2
        const V t264 = t249 - t226;
        const V t265 = c[0] * t249;
        const V t266 = t226 + t265;
        const V t267 = c[34] * t240;
        const V t268 = c[35] * t241;
        const V t269 = t267 + t268;
        const V t270 = t269 - t266;
        const V t271 = t266 + t269;
        // output stage
        const V t272 = t198 - t250;
        io.out(1, t272);
        const V t273 = t198 + t250;
        io.out(18, t273);
        const V t274 = t219 + t263;
        io.out(2, t274);
        const V t275 = t219 - t263;
        io.out(17, t275);
        const V t276 = t218 + t262;
        io.out(3, t276);
        const V t277 = t218 - t262;
        io.out(16, t277);
        const V t278 = t211 - t270;
        io.out(4, t278);
        const V t279 = t211 + t270;
        io.out(15, t279);
        const V t280 = t212 - t256;
        io.out(5, t280);
        const V t281 = t212 + t256;
        io.out(14, t281);
        const V t282 = t210 - t264;
        io.out(6, t282);
        const V t283 = t210 + t264;
        io.out(13, t283);
        const V t284 = t202 - t254;
        io.out(7, t284);
        const V t285 = t202 + t254;
        io.out(12, t285);
        const V t286 = t203 + t255;
        io.out(8, t286);
        const V t287 = t203 - t255;
        io.out(11, t287);
        const V t288 = t204 + t271;
        io.out(9, t288);
        const V t289 = t204 - t271;
        io.out(10, t289);
    }
};

}  // namespace zulg
