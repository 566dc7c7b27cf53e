// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 38.
// Forward DFT of 38 real points, prime-factor 19, 2.
// 183 additions, 183 subtractions, 216 multiplications (254 with `scale`); 12 outputs negated; 36 constants; 73 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<38> {
    static constexpr int steps = 620;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.9396926207859084,  // c[4]: -cos 2 pi 4/9
        0.3420201433256687,  // c[5]: sin 2 pi 4/9
        0.37568683358927524,  // c[6]: P[4] of 19
        0.3056588037374879,  // c[7]: -Q[4] of 19
        0.4195932163702218,  // c[8]: P[5] of 19
        0.24188723407956064,  // c[9]: Q[5] of 19
        0.25181241707905544,  // c[10]: -P[1] of 19
        0.4137129534343489,  // c[11]: -Q[1] of 19
        0.4842616099669739,  // c[12]: -P[8] of 19
        0.007654694426448971,  // c[13]: -Q[8] of 19
        0.4798788450919296,  // c[14]: P[2] of 19
        0.06545376435166843,  // c[15]: Q[2] of 19
        0.3873109834397322,  // c[16]: -P[7] of 19
        0.2907887606863707,  // c[17]: -Q[7] of 19
        0.1503837331804353,  // c[18]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[19]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.05555555555555555,  // c[20]: 1/18
        0.47339199623771827,  // c[21]: P[6] of 19
        0.3937592850674352,  // c[22]: -Q[3] of 19
        0.28199561460730244,  // c[23]: P[3] of 19
        0.10231284930367265,  // c[24]: -Q[6] of 19
        0.4099694946900914,  // c[25]: -sin 2 pi 2/3 times P[6] of 19
        0.08860552663054953,  // c[26]: -sin 2 pi 2/3 times -Q[6] of 19
        0.6427876096865394,  // c[27]: -sin 2 pi 8/9
        0.766044443118978,  // c[28]: cos 2 pi 8/9
        0.6634139481689384,  // c[29]: -sin 2 pi 2/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[30]: -sin 2 pi 2/3 times -sin 2 pi 8/9
        0.2421610524189263,  // c[31]: beta of 19
        0.24421536600573002,  // c[32]: -sin 2 pi 2/3 times P[3] of 19
        0.3410055438443974,  // c[33]: -sin 2 pi 2/3 times -Q[3] of 19
        0.29619813272602386,  // c[34]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[35]: -sin 2 pi 2/3 times -cos 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3, multiplier 2
        const V x1 = io.in(1);
        const V x7 = io.in(7);
        const V t0 = x1 + x7;
        const V t1 = x1 - x7;
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t1;
        // real block of 3, multiplier 2
        const V x23 = io.in(23);
        const V x9 = io.in(9);
        const V t4 = x23 + x9;
        const V t5 = x23 - x9;
        const V t6 = c[0] * t4;
        const V t7 = c[1] * t5;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V t8 = t0 + x11;
        // real block of 3, multiplier 2
        const V x25 = io.in(25);
        const V t9 = t4 + x25;
        // real block of 3, multiplier 2
        const V t10 = t8 + t9;
        const V t11 = t8 - t9;
        // real block of 3, multiplier 2
        const V t12 = x11 - t2;
        // real block of 9, multiplier 2
        const V t13 = c[2] * t12;
        const V t14 = c[3] * t12;
        const V t15 = c[3] * t3;
        const V t16 = c[2] * t3;
        const V t17 = t13 + t15;
        const V t18 = t16 - t14;
        // real block of 3, multiplier 2
        const V t19 = x25 - t6;
        // real block of 9, multiplier 2
        const V t20 = c[4] * t19;
        const V t21 = c[5] * t19;
        const V t22 = c[5] * t7;
        const V t23 = c[4] * t7;
        const V t24 = t22 - t20;
        const V t25 = t23 + t21;
        // real block of 3, multiplier 2
        const V x33 = io.in(33);
        const V x3 = io.in(3);
        const V t26 = x33 + x3;
        const V t27 = x33 - x3;
        const V x21 = io.in(21);
        const V t28 = t26 + x21;
        const V t29 = c[0] * t26;
        const V t30 = x21 - t29;
        const V t31 = c[1] * t27;
        // real block of 3, multiplier 2
        const V x5 = io.in(5);
        const V x35 = io.in(35);
        const V t32 = x5 + x35;
        const V t33 = x5 - x35;
        const V x17 = io.in(17);
        const V t34 = t32 + x17;
        const V t35 = c[0] * t32;
        const V t36 = x17 - t35;
        const V t37 = c[1] * t33;
        // real block of 3, multiplier 2
        const V x15 = io.in(15);
        const V x29 = io.in(29);
        const V t38 = x15 + x29;
        const V t39 = x15 - x29;
        const V t40 = c[0] * t38;
        const V t41 = c[1] * t39;
        // real block of 3, multiplier 2
        const V x37 = io.in(37);
        const V x31 = io.in(31);
        const V t42 = x37 + x31;
        const V t43 = x37 - x31;
        const V t44 = c[0] * t42;
        const V t45 = c[1] * t43;
        const V x27 = io.in(27);
        const V t46 = t42 + x27;
        // real block of 3, multiplier 2
        const V x13 = io.in(13);
        const V t47 = t38 + x13;
        // real block of 3, multiplier 2
        const V t48 = t46 + t47;
        const V t49 = t46 - t47;
        // real block of 3, multiplier 2
        const V t50 = x27 - t44;
        // real block of 9, multiplier 2
        const V t51 = c[2] * t50;
        const V t52 = c[3] * t50;
        const V t53 = c[3] * t45;
        const V t54 = c[2] * t45;
        const V t55 = t51 + t53;
        const V t56 = t54 - t52;
        // real block of 3, multiplier 2
        const V t57 = x13 - t40;
        // real block of 9, multiplier 2
        const V t58 = c[4] * t57;
        const V t59 = c[5] * t57;
        const V t60 = c[5] * t41;
        const V t61 = c[4] * t41;
        const V t62 = t60 - t58;
        const V t63 = t61 + t59;
        // real block of 3, multiplier 2
        const V t64 = t48 + t28;
        // real block of 3, multiplier 2
        const V t65 = t10 + t34;
        // real block of 2
        const V t66 = t64 + t65;
        const V t67 = t64 - t65;
        // real block of 19, multiplier 2
        const V t68 = c[20] * t66;
        // real block of 3, multiplier 2
        const V t69 = c[0] * t48;
        const V t70 = t28 - t69;
        // real block of 3, multiplier 2
        const V t71 = c[0] * t10;
        const V t72 = t34 - t71;
        // complex block of 2
        const V t73 = t70 + t72;
        // real block of 19, multiplier 2
        const V t74 = c[21] * t73;
        // complex block of 2
        const V t75 = t70 - t72;
        // real block of 19, multiplier 2
        const V t76 = c[22] * t75;
        // real block of 3, multiplier 2
        const V t77 = c[1] * t49;
        // real block of 3, multiplier 2
        const V t78 = c[1] * t11;
        // complex block of 2
        const V t79 = t77 + t78;
        const V t80 = t77 - t78;
        // real block of 19, multiplier 2
        const V t81 = c[23] * t80;
        const V t82 = c[24] * t79;
        // complex block of 3, multiplier 2
        const V t83 = t55 + t62;
        const V t84 = c[0] * t83;
        const V t85 = t83 + t30;
        const V t86 = t30 - t84;
        const V t87 = t56 + t63;
        const V t88 = c[1] * t87;
        // complex block of 3, multiplier 2
        const V t89 = t17 + t24;
        const V t90 = c[0] * t89;
        const V t91 = t89 + t36;
        const V t92 = t36 - t90;
        const V t93 = t18 + t25;
        const V t94 = c[1] * t93;
        // complex block of 3, multiplier 2
        const V t95 = t86 + t88;
        // complex block of 3, multiplier 2
        const V t96 = t92 + t94;
        // complex block of 2
        const V t97 = t95 + t96;
        const V t98 = t95 - t96;
        // real block of 19, multiplier 2
        const V t99 = c[6] * t97;
        const V t100 = c[7] * t97;
        const V t101 = c[8] * t98;
        const V t102 = c[9] * t98;
        // complex block of 3, multiplier 2
        const V t103 = t86 - t88;
        // complex block of 3, multiplier 2
        const V t104 = t92 - t94;
        // complex block of 2
        const V t105 = t103 + t104;
        const V t106 = t103 - t104;
        // real block of 19, multiplier 2
        const V t107 = c[10] * t106;
        const V t108 = c[11] * t106;
        const V t109 = c[12] * t105;
        const V t110 = c[13] * t105;
        // complex block of 2
        const V t111 = t85 + t91;
        // real block of 19, multiplier 2
        const V t112 = c[14] * t111;
        const V t113 = c[15] * t111;
        // complex block of 2
        const V t114 = t85 - t91;
        // real block of 19, multiplier 2
        const V t115 = c[16] * t114;
        const V t116 = c[17] * t114;
        // complex block of 3, multiplier 2
        const V t117 = t56 - t63;
        const V t118 = c[0] * t117;
        const V t119 = t117 + t31;
        const V t120 = t31 - t118;
        const V t121 = t55 - t62;
        const V t122 = c[1] * t121;
        // complex block of 3, multiplier 2
        const V t123 = t18 - t25;
        const V t124 = c[0] * t123;
        const V t125 = t123 + t37;
        const V t126 = t37 - t124;
        const V t127 = t17 - t24;
        const V t128 = c[1] * t127;
        // complex block of 3, multiplier 2
        const V t129 = t120 - t122;
        // complex block of 3, multiplier 2
        const V t130 = t126 - t128;
        // complex block of 2
        const V t131 = t129 + t130;
        const V t132 = t130 - t129;
        // real block of 19, multiplier 2
        const V t133 = c[7] * t131;
        const V t134 = c[6] * t131;
        const V t135 = c[9] * t132;
        const V t136 = c[8] * t132;
        // complex block of 3, multiplier 2
        const V t137 = t120 + t122;
        // complex block of 3, multiplier 2
        const V t138 = t126 + t128;
        // complex block of 2
        const V t139 = t137 + t138;
        const V t140 = t137 - t138;
        // real block of 19, multiplier 2
        const V t141 = c[11] * t140;
        const V t142 = c[10] * t140;
        const V t143 = c[13] * t139;
        const V t144 = c[12] * t139;
        // complex block of 2
        const V t145 = t119 + t125;
        // real block of 19, multiplier 2
        const V t146 = c[15] * t145;
        const V t147 = c[14] * t145;
        // complex block of 2
        const V t148 = t119 - t125;
        // real block of 19, multiplier 2
        const V t149 = c[17] * t148;
        const V t150 = c[16] * t148;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t151 = x14 + x22;
        const V t152 = x14 - x22;
        const V x2 = io.in(2);
        const V t153 = t151 + x2;
        const V t154 = c[0] * t151;
        const V t155 = x2 - t154;
        const V t156 = c[1] * t152;
        // real block of 3, multiplier 2
        const V x4 = io.in(4);
        const V x28 = io.in(28);
        const V t157 = x4 + x28;
        const V t158 = x4 - x28;
        const V t159 = c[0] * t157;
        const V t160 = c[1] * t158;
        // real block of 3, multiplier 2
        const V x20 = io.in(20);
        const V x26 = io.in(26);
        const V t161 = x20 + x26;
        const V t162 = x20 - x26;
        const V t163 = c[0] * t161;
        const V t164 = c[1] * t162;
        const V x30 = io.in(30);
        const V t165 = t161 + x30;
        // real block of 3, multiplier 2
        const V x6 = io.in(6);
        const V t166 = t157 + x6;
        // real block of 3, multiplier 2
        const V t167 = t165 + t166;
        const V t168 = t165 - t166;
        // real block of 3, multiplier 2
        const V t169 = x30 - t163;
        // real block of 9, multiplier 2
        const V t170 = c[2] * t169;
        const V t171 = c[3] * t169;
        const V t172 = c[3] * t164;
        const V t173 = c[2] * t164;
        const V t174 = t170 + t172;
        const V t175 = t173 - t171;
        // real block of 3, multiplier 2
        const V t176 = x6 - t159;
        // real block of 9, multiplier 2
        const V t177 = c[4] * t176;
        const V t178 = c[5] * t176;
        const V t179 = c[5] * t160;
        const V t180 = c[4] * t160;
        const V t181 = t179 - t177;
        const V t182 = t180 + t178;
        // real block of 3, multiplier 2
        const V x34 = io.in(34);
        const V x10 = io.in(10);
        const V t183 = x34 + x10;
        const V t184 = x34 - x10;
        const V t185 = c[0] * t183;
        const V t186 = c[1] * t184;
        // real block of 3, multiplier 2
        const V x18 = io.in(18);
        const V x12 = io.in(12);
        const V t187 = x18 + x12;
        const V t188 = x18 - x12;
        const V t189 = c[0] * t187;
        const V t190 = c[1] * t188;
        const V x8 = io.in(8);
        const V t191 = t187 + x8;
        // real block of 3, multiplier 2
        const V x32 = io.in(32);
        const V t192 = t183 + x32;
        // real block of 3, multiplier 2
        const V t193 = t191 + t192;
        const V t194 = t191 - t192;
        // real block of 3, multiplier 2
        const V t195 = x8 - t189;
        // real block of 9, multiplier 2
        const V t196 = c[2] * t195;
        const V t197 = c[3] * t195;
        const V t198 = c[3] * t190;
        const V t199 = c[2] * t190;
        const V t200 = t196 + t198;
        const V t201 = t199 - t197;
        // real block of 3, multiplier 2
        const V t202 = x32 - t185;
        // real block of 9, multiplier 2
        const V t203 = c[4] * t202;
        const V t204 = c[5] * t202;
        const V t205 = c[5] * t186;
        const V t206 = c[4] * t186;
        const V t207 = t205 - t203;
        const V t208 = t206 + t204;
        // real block of 3, multiplier 2
        const V x24 = io.in(24);
        const V x16 = io.in(16);
        const V t209 = x24 + x16;
        const V t210 = x24 - x16;
        const V x36 = io.in(36);
        const V t211 = t209 + x36;
        const V t212 = c[0] * t209;
        const V t213 = x36 - t212;
        const V t214 = c[1] * t210;
        // real block of 3, multiplier 2
        const V t215 = t193 + t153;
        // real block of 3, multiplier 2
        const V t216 = t167 + t211;
        // real block of 2
        const V t217 = t215 + t216;
        const V t218 = t215 - t216;
        // real block of 19, multiplier 2
        const V t219 = c[20] * t217;
        // real block of 3, multiplier 2
        const V t220 = c[0] * t193;
        const V t221 = t153 - t220;
        // real block of 3, multiplier 2
        const V t222 = c[0] * t167;
        const V t223 = t211 - t222;
        // complex block of 2
        const V t224 = t221 + t223;
        // real block of 19, multiplier 2
        const V t225 = c[21] * t224;
        // complex block of 2
        const V t226 = t221 - t223;
        // real block of 19, multiplier 2
        const V t227 = c[22] * t226;
        // real block of 3, multiplier 2
        const V t228 = c[1] * t194;
        // real block of 3, multiplier 2
        const V t229 = c[1] * t168;
        // complex block of 2
        const V t230 = t228 + t229;
        const V t231 = t228 - t229;
        // real block of 19, multiplier 2
        const V t232 = c[23] * t231;
        const V t233 = c[24] * t230;
        // complex block of 3, multiplier 2
        const V t234 = t200 + t207;
        const V t235 = c[0] * t234;
        const V t236 = t234 + t155;
        const V t237 = t155 - t235;
        const V t238 = t201 + t208;
        const V t239 = c[1] * t238;
        // complex block of 3, multiplier 2
        const V t240 = t174 + t181;
        const V t241 = c[0] * t240;
        const V t242 = t240 + t213;
        const V t243 = t213 - t241;
        const V t244 = t175 + t182;
        const V t245 = c[1] * t244;
        // complex block of 3, multiplier 2
        const V t246 = t237 + t239;
        // complex block of 3, multiplier 2
        const V t247 = t243 + t245;
        // complex block of 2
        const V t248 = t246 + t247;
        const V t249 = t246 - t247;
        // real block of 19, multiplier 2
        const V t250 = c[6] * t248;
        const V t251 = c[7] * t248;
        const V t252 = c[8] * t249;
        const V t253 = c[9] * t249;
        // complex block of 3, multiplier 2
        const V t254 = t237 - t239;
        // complex block of 3, multiplier 2
        const V t255 = t243 - t245;
        // complex block of 2
        const V t256 = t254 + t255;
        const V t257 = t254 - t255;
        // real block of 19, multiplier 2
        const V t258 = c[10] * t257;
        const V t259 = c[11] * t257;
        const V t260 = c[12] * t256;
        const V t261 = c[13] * t256;
        // complex block of 2
        const V t262 = t236 + t242;
        // real block of 19, multiplier 2
        const V t263 = c[14] * t262;
        const V t264 = c[15] * t262;
        // complex block of 2
        const V t265 = t236 - t242;
        // real block of 19, multiplier 2
        const V t266 = c[16] * t265;
        const V t267 = c[17] * t265;
        // complex block of 3, multiplier 2
        const V t268 = t201 - t208;
        const V t269 = c[0] * t268;
        const V t270 = t268 + t156;
        const V t271 = t156 - t269;
        const V t272 = t200 - t207;
        const V t273 = c[1] * t272;
        // complex block of 3, multiplier 2
        const V t274 = t175 - t182;
        const V t275 = c[0] * t274;
        const V t276 = t274 + t214;
        const V t277 = t214 - t275;
        const V t278 = t174 - t181;
        const V t279 = c[1] * t278;
        // complex block of 3, multiplier 2
        const V t280 = t271 - t273;
        // complex block of 3, multiplier 2
        const V t281 = t277 - t279;
        // complex block of 2
        const V t282 = t280 + t281;
        const V t283 = t281 - t280;
        // real block of 19, multiplier 2
        const V t284 = c[7] * t282;
        const V t285 = c[6] * t282;
        const V t286 = c[9] * t283;
        const V t287 = c[8] * t283;
        // complex block of 3, multiplier 2
        const V t288 = t271 + t273;
        // complex block of 3, multiplier 2
        const V t289 = t277 + t279;
        // complex block of 2
        const V t290 = t288 + t289;
        const V t291 = t288 - t289;
        // real block of 19, multiplier 2
        const V t292 = c[11] * t291;
        const V t293 = c[10] * t291;
        const V t294 = c[13] * t290;
        const V t295 = c[12] * t290;
        // complex block of 2
        const V t296 = t270 + t276;
        // real block of 19, multiplier 2
        const V t297 = c[15] * t296;
        const V t298 = c[14] * t296;
        // complex block of 2
        const V t299 = t270 - t276;
        // real block of 19, multiplier 2
        const V t300 = c[17] * t299;
        const V t301 = c[16] * t299;
        const V x0 = io.in(0);
        const V t302 = x0 + t217;
        // real block of 19, multiplier 2
        const V x19 = io.in(19);
        const V t303 = x19 + t66;
        // real block of 2
        const V t304 = t302 + t303;
        io.re(0, t304);
        const V t305 = t302 - t303;
        io.re(19, t305);
        // real block of 19, multiplier 2
        const V t306 = x0 - t219;
        const V t307 = t225 + t233;
        // spectrum block of 3
        const V t308 = c[0] * t307;
        const V t309 = c[25] * t230;
        const V t310 = c[26] * t224;
        const V t311 = t309 - t310;
        const V t312 = t307 + t306;
        const V t313 = t306 - t308;
        const V t314 = t313 - t311;
        const V t315 = t313 + t311;
        // real block of 19, multiplier 2
        const V t316 = t263 - t297;
        const V t317 = t298 + t264;
        const V t318 = t250 - t284;
        const V t319 = t294 - t260;
        // complex block of 3
        const V t320 = t319 + t318;
        const V t321 = t319 - t318;
        const V t322 = c[0] * t320;
        const V t323 = c[1] * t321;
        // real block of 19, multiplier 2
        const V t324 = t285 + t251;
        const V t325 = t295 + t261;
        // complex block of 3
        const V t326 = t324 - t325;
        const V t327 = t325 + t324;
        const V t328 = c[0] * t326;
        const V t329 = c[1] * t327;
        const V t330 = t326 + t317;
        const V t331 = t320 + t316;
        // spectrum block of 3
        const V t332 = c[0] * t331;
        // complex block of 3
        const V t333 = t317 - t328;
        const V t334 = t333 + t323;
        const V t335 = t333 - t323;
        // spectrum block of 9
        const V t336 = c[27] * t334;
        const V t337 = c[3] * t335;
        // complex block of 3
        const V t338 = t316 - t322;
        const V t339 = t338 + t329;
        const V t340 = t338 - t329;
        // spectrum block of 9
        const V t341 = c[28] * t339;
        const V t342 = c[2] * t340;
        // real block of 19, multiplier 2
        const V t343 = x19 - t68;
        const V t344 = t74 + t82;
        // spectrum block of 3
        const V t345 = c[0] * t344;
        const V t346 = c[25] * t79;
        const V t347 = c[26] * t73;
        const V t348 = t346 - t347;
        const V t349 = t344 + t343;
        const V t350 = t343 - t345;
        const V t351 = t350 - t348;
        const V t352 = t350 + t348;
        // real block of 19, multiplier 2
        const V t353 = t112 - t146;
        const V t354 = t147 + t113;
        const V t355 = t99 - t133;
        const V t356 = t143 - t109;
        // complex block of 3
        const V t357 = t356 + t355;
        const V t358 = t356 - t355;
        const V t359 = c[0] * t357;
        const V t360 = c[1] * t358;
        // real block of 19, multiplier 2
        const V t361 = t134 + t100;
        const V t362 = t144 + t110;
        // complex block of 3
        const V t363 = t361 - t362;
        const V t364 = t362 + t361;
        const V t365 = c[0] * t363;
        const V t366 = c[1] * t364;
        const V t367 = t363 + t354;
        const V t368 = t357 + t353;
        // spectrum block of 3
        const V t369 = c[0] * t368;
        // complex block of 3
        const V t370 = t354 - t365;
        const V t371 = t370 + t360;
        const V t372 = t370 - t360;
        // spectrum block of 9
        const V t373 = c[27] * t371;
        const V t374 = c[3] * t372;
        // complex block of 3
        const V t375 = t353 - t359;
        const V t376 = t375 + t366;
        const V t377 = t375 - t366;
        // spectrum block of 9
        const V t378 = c[28] * t376;
        const V t379 = c[2] * t377;
        // spectrum block of 9
        const V t380 = t341 - t336;
        // spectrum block of 3
        const V t381 = c[0] * t380;
        const V t382 = t380 + t314;
        const V t383 = t314 - t381;
        const V t384 = c[29] * t334;
        const V t385 = c[30] * t339;
        const V t386 = t384 + t385;
        // spectrum block of 9
        const V t387 = t378 - t373;
        // spectrum block of 3
        const V t388 = c[0] * t387;
        const V t389 = t387 + t351;
        const V t390 = t351 - t388;
        const V t391 = c[29] * t371;
        const V t392 = c[30] * t376;
        const V t393 = t391 + t392;
        // spectrum block of 3
        const V t394 = t383 - t386;
        // spectrum block of 3
        const V t395 = t390 - t393;
        // complex block of 2
        const V t396 = t394 + t395;
        io.re(12, t396);
        const V t397 = t394 - t395;
        io.re(7, t397);
        // spectrum block of 3
        const V t398 = t383 + t386;
        // spectrum block of 3
        const V t399 = t390 + t393;
        // complex block of 2
        const V t400 = t398 + t399;
        io.re(8, t400);
        const V t401 = t398 - t399;
        io.re(11, t401);
        // complex block of 2
        const V t402 = t382 + t389;
        io.re(18, t402);
        const V t403 = t382 - t389;
        io.re(1, t403);
        // spectrum block of 9
        const V t404 = t342 - t337;
        // spectrum block of 3
        const V t405 = c[0] * t404;
        const V t406 = t404 + t315;
        const V t407 = t315 - t405;
        const V t408 = c[18] * t335;
        const V t409 = c[19] * t340;
        const V t410 = t408 + t409;
        // spectrum block of 9
        const V t411 = t379 - t374;
        // spectrum block of 3
        const V t412 = c[0] * t411;
        const V t413 = t411 + t352;
        const V t414 = t352 - t412;
        const V t415 = c[18] * t372;
        const V t416 = c[19] * t377;
        const V t417 = t415 + t416;
        // spectrum block of 3
        const V t418 = t407 - t410;
        // spectrum block of 3
        const V t419 = t414 - t417;
        // complex block of 2
        const V t420 = t418 + t419;
        io.re(6, t420);
        const V t421 = t418 - t419;
        io.re(13, t421);
        // spectrum block of 3
        const V t422 = t407 + t410;
        // spectrum block of 3
        const V t423 = t414 + t417;
        // complex block of 2
        const V t424 = t422 + t423;
        io.re(4, t424);
        const V t425 = t422 - t423;
        io.re(15, t425);
        // complex block of 2
        const V t426 = t406 + t413;
        io.re(10, t426);
        const V t427 = t406 - t413;
        io.re(9, t427);
        // spectrum block of 3
        const V t428 = t331 + t312;
        // spectrum block of 3
        const V t429 = t368 + t349;
        // complex block of 2
        const V t430 = t428 + t429;
        io.re(2, t430);
        const V t431 = t428 - t429;
        io.re(17, t431);
        // spectrum block of 3
        const V t432 = t312 - t332;
        const V t433 = c[1] * t330;
        const V t434 = t432 - t433;
        const V t435 = t432 + t433;
        // spectrum block of 3
        const V t436 = t349 - t369;
        const V t437 = c[1] * t367;
        const V t438 = t436 - t437;
        const V t439 = t436 + t437;
        // complex block of 2
        const V t440 = t434 + t438;
        io.re(14, t440);
        const V t441 = t434 - t438;
        io.re(5, t441);
        // complex block of 2
        const V t442 = t435 + t439;
        io.re(16, t442);
        const V t443 = t435 - t439;
        io.re(3, t443);
        // real block of 19, multiplier 2
        const V t444 = t258 + t292;
        const V t445 = t252 + t286;
        // complex block of 3, multiplier 2
        const V t446 = t444 + t445;
        const V t447 = t445 - t444;
        const V t448 = c[0] * t446;
        const V t449 = c[1] * t447;
        // real block of 19, multiplier 2
        const V t450 = t293 - t259;
        const V t451 = t253 - t287;
        // complex block of 3, multiplier 2
        const V t452 = t450 + t451;
        const V t453 = t450 - t451;
        const V t454 = c[0] * t452;
        const V t455 = c[1] * t453;
        // real block of 19, multiplier 2
        const V t456 = t266 + t300;
        const V t457 = t301 - t267;
        // complex block of 3, multiplier 2
        const V t458 = t446 + t456;
        const V t459 = t452 + t457;
        // spectrum block of 3, multiplier 2
        const V t460 = c[0] * t459;
        // complex block of 3, multiplier 2
        const V t461 = t448 - t456;
        const V t462 = t461 + t455;
        const V t463 = t461 - t455;
        // spectrum block of 9, multiplier 2
        const V t464 = c[3] * t463;
        const V t465 = c[5] * t462;
        // complex block of 3, multiplier 2
        const V t466 = t457 - t454;
        const V t467 = t466 - t449;
        const V t468 = t466 + t449;
        // spectrum block of 9, multiplier 2
        const V t469 = c[2] * t468;
        const V t470 = c[4] * t467;
        // real block of 19, multiplier 2
        const V t471 = t232 + t227;
        // spectrum block of 3, multiplier 2
        const V t472 = c[0] * t471;
        // real block of 19, multiplier 2
        const V t473 = c[31] * t218;
        // spectrum block of 3, multiplier 2
        const V t474 = c[32] * t226;
        const V t475 = c[33] * t231;
        const V t476 = t474 - t475;
        const V t477 = t473 - t471;
        const V t478 = t472 + t473;
        const V t479 = t478 - t476;
        const V t480 = t478 + t476;
        // real block of 19, multiplier 2
        const V t481 = t107 + t141;
        const V t482 = t101 + t135;
        // complex block of 3, multiplier 2
        const V t483 = t481 + t482;
        const V t484 = t482 - t481;
        const V t485 = c[0] * t483;
        const V t486 = c[1] * t484;
        // real block of 19, multiplier 2
        const V t487 = t142 - t108;
        const V t488 = t102 - t136;
        // complex block of 3, multiplier 2
        const V t489 = t487 + t488;
        const V t490 = t487 - t488;
        const V t491 = c[0] * t489;
        const V t492 = c[1] * t490;
        // real block of 19, multiplier 2
        const V t493 = t115 + t149;
        const V t494 = t150 - t116;
        // complex block of 3, multiplier 2
        const V t495 = t483 + t493;
        const V t496 = t489 + t494;
        // spectrum block of 3, multiplier 2
        const V t497 = c[0] * t496;
        // complex block of 3, multiplier 2
        const V t498 = t485 - t493;
        const V t499 = t498 + t492;
        const V t500 = t498 - t492;
        // spectrum block of 9, multiplier 2
        const V t501 = c[3] * t500;
        const V t502 = c[5] * t499;
        // complex block of 3, multiplier 2
        const V t503 = t494 - t491;
        const V t504 = t503 - t486;
        const V t505 = t503 + t486;
        // spectrum block of 9, multiplier 2
        const V t506 = c[2] * t505;
        const V t507 = c[4] * t504;
        // real block of 19, multiplier 2
        const V t508 = t81 + t76;
        // spectrum block of 3, multiplier 2
        const V t509 = c[0] * t508;
        // real block of 19, multiplier 2
        const V t510 = c[31] * t67;
        // spectrum block of 3, multiplier 2
        const V t511 = c[32] * t75;
        const V t512 = c[33] * t80;
        const V t513 = t511 - t512;
        const V t514 = t510 - t508;
        const V t515 = t509 + t510;
        const V t516 = t515 - t513;
        const V t517 = t515 + t513;
        // spectrum block of 9, multiplier 2
        const V t518 = t469 - t464;
        // spectrum block of 3, multiplier 2
        const V t519 = c[0] * t518;
        const V t520 = t518 + t480;
        const V t521 = t480 - t519;
        const V t522 = c[18] * t463;
        const V t523 = c[19] * t468;
        const V t524 = t522 + t523;
        // spectrum block of 9, multiplier 2
        const V t525 = t506 - t501;
        // spectrum block of 3, multiplier 2
        const V t526 = c[0] * t525;
        const V t527 = t525 + t517;
        const V t528 = t517 - t526;
        const V t529 = c[18] * t500;
        const V t530 = c[19] * t505;
        const V t531 = t529 + t530;
        // spectrum block of 3, multiplier 2
        const V t532 = t521 - t524;
        // spectrum block of 3, multiplier 2
        const V t533 = t528 - t531;
        // complex block of 2
        const V t534 = t532 + t533;
        io.minusIm(6, t534);
        const V t535 = t533 - t532;
        io.minusIm(13, t535);
        // spectrum block of 3, multiplier 2
        const V t536 = t521 + t524;
        // spectrum block of 3, multiplier 2
        const V t537 = t528 + t531;
        // complex block of 2
        const V t538 = t536 + t537;
        io.minusIm(4, t538);
        const V t539 = t537 - t536;
        io.minusIm(15, t539);
        // complex block of 2
        const V t540 = t520 + t527;
        io.im(10, t540);
        const V t541 = t520 - t527;
        io.minusIm(9, t541);
        // spectrum block of 9, multiplier 2
        const V t542 = t470 + t465;
        // spectrum block of 3, multiplier 2
        const V t543 = c[0] * t542;
        const V t544 = t479 - t542;
        const V t545 = t543 + t479;
        const V t546 = c[34] * t467;
        const V t547 = c[35] * t462;
        const V t548 = t546 - t547;
        // spectrum block of 9, multiplier 2
        const V t549 = t507 + t502;
        // spectrum block of 3, multiplier 2
        const V t550 = c[0] * t549;
        const V t551 = t516 - t549;
        const V t552 = t550 + t516;
        const V t553 = c[34] * t504;
        const V t554 = c[35] * t499;
        const V t555 = t553 - t554;
        // spectrum block of 3, multiplier 2
        const V t556 = t545 - t548;
        // spectrum block of 3, multiplier 2
        const V t557 = t552 - t555;
        // complex block of 2
        const V t558 = t556 + t557;
        io.im(8, t558);
        const V t559 = t556 - t557;
        io.minusIm(11, t559);
        // spectrum block of 3, multiplier 2
        const V t560 = t545 + t548;
        // spectrum block of 3, multiplier 2
        const V t561 = t552 + t555;
        // complex block of 2
        const V t562 = t560 + t561;
        io.im(18, t562);
        const V t563 = t560 - t561;
        io.minusIm(1, t563);
        // complex block of 2
        const V t564 = t544 + t551;
        io.im(12, t564);
        const V t565 = t544 - t551;
        io.minusIm(7, t565);
        // spectrum block of 3, multiplier 2
        const V t566 = t459 + t477;
        // spectrum block of 3, multiplier 2
        const V t567 = t496 + t514;
        // complex block of 2
        const V t568 = t566 + t567;
        io.im(2, t568);
        const V t569 = t566 - t567;
        io.minusIm(17, t569);
        // spectrum block of 3, multiplier 2
        const V t570 = t477 - t460;
        const V t571 = c[1] * t458;
        const V t572 = t570 + t571;
        const V t573 = t570 - t571;
        // spectrum block of 3, multiplier 2
        const V t574 = t514 - t497;
        const V t575 = c[1] * t495;
        const V t576 = t574 + t575;
        const V t577 = t574 - t575;
        // complex block of 2
        const V t578 = t572 + t576;
        io.im(14, t578);
        const V t579 = t572 - t576;
        io.minusIm(5, t579);
        // complex block of 2
        const V t580 = t573 + t577;
        io.minusIm(16, t580);
        const V t581 = t577 - t573;
        io.minusIm(3, t581);
    }
};

}  // namespace zulg
