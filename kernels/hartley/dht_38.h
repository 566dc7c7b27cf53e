// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 38.
// Hartley transform of 38 points, form F.
// 201 additions, 201 subtractions, 216 multiplications (254 with `scale`); 36 constants; 73 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<38> {
    static constexpr int steps = 656;  // with `scale`
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
        0.2421610524189263,  // c[21]: beta of 19
        0.47339199623771827,  // c[22]: P[6] of 19
        0.3937592850674352,  // c[23]: -Q[3] of 19
        0.28199561460730244,  // c[24]: P[3] of 19
        0.10231284930367265,  // c[25]: -Q[6] of 19
        0.4099694946900914,  // c[26]: -sin 2 pi 2/3 times P[6] of 19
        0.3410055438443974,  // c[27]: -sin 2 pi 2/3 times -Q[3] of 19
        0.08860552663054953,  // c[28]: -sin 2 pi 2/3 times -Q[6] of 19
        0.6427876096865394,  // c[29]: -sin 2 pi 8/9
        0.766044443118978,  // c[30]: cos 2 pi 8/9
        0.24421536600573002,  // c[31]: -sin 2 pi 2/3 times P[3] of 19
        0.6634139481689384,  // c[32]: -sin 2 pi 2/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[33]: -sin 2 pi 2/3 times -sin 2 pi 8/9
        0.29619813272602386,  // c[34]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[35]: -sin 2 pi 2/3 times -cos 2 pi 4/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
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
        const V t69 = c[21] * t67;
        // real block of 3, multiplier 2
        const V t70 = c[0] * t48;
        const V t71 = t28 - t70;
        // real block of 3, multiplier 2
        const V t72 = c[0] * t10;
        const V t73 = t34 - t72;
        // complex block of 2
        const V t74 = t71 + t73;
        // real block of 19, multiplier 2
        const V t75 = c[22] * t74;
        // complex block of 2
        const V t76 = t71 - t73;
        // real block of 19, multiplier 2
        const V t77 = c[23] * t76;
        // real block of 3, multiplier 2
        const V t78 = c[1] * t49;
        // real block of 3, multiplier 2
        const V t79 = c[1] * t11;
        // complex block of 2
        const V t80 = t78 + t79;
        const V t81 = t78 - t79;
        // real block of 19, multiplier 2
        const V t82 = c[24] * t81;
        const V t83 = c[25] * t80;
        // spectrum block of 3
        const V t84 = c[26] * t80;
        // spectrum block of 3, multiplier 2
        const V t85 = c[27] * t81;
        // complex block of 3, multiplier 2
        const V t86 = t55 + t62;
        const V t87 = c[0] * t86;
        const V t88 = t86 + t30;
        const V t89 = t30 - t87;
        const V t90 = t56 + t63;
        const V t91 = c[1] * t90;
        // complex block of 3, multiplier 2
        const V t92 = t17 + t24;
        const V t93 = c[0] * t92;
        const V t94 = t92 + t36;
        const V t95 = t36 - t93;
        const V t96 = t18 + t25;
        const V t97 = c[1] * t96;
        // complex block of 3, multiplier 2
        const V t98 = t89 + t91;
        // complex block of 3, multiplier 2
        const V t99 = t95 + t97;
        // complex block of 2
        const V t100 = t98 + t99;
        const V t101 = t98 - t99;
        // real block of 19, multiplier 2
        const V t102 = c[6] * t100;
        const V t103 = c[7] * t100;
        const V t104 = c[8] * t101;
        const V t105 = c[9] * t101;
        // complex block of 3, multiplier 2
        const V t106 = t89 - t91;
        // complex block of 3, multiplier 2
        const V t107 = t95 - t97;
        // complex block of 2
        const V t108 = t106 + t107;
        const V t109 = t106 - t107;
        // real block of 19, multiplier 2
        const V t110 = c[10] * t109;
        const V t111 = c[11] * t109;
        const V t112 = c[12] * t108;
        const V t113 = c[13] * t108;
        // complex block of 2
        const V t114 = t88 + t94;
        // real block of 19, multiplier 2
        const V t115 = c[14] * t114;
        const V t116 = c[15] * t114;
        // complex block of 2
        const V t117 = t88 - t94;
        // real block of 19, multiplier 2
        const V t118 = c[16] * t117;
        const V t119 = c[17] * t117;
        // complex block of 3, multiplier 2
        const V t120 = t56 - t63;
        const V t121 = c[0] * t120;
        const V t122 = t120 + t31;
        const V t123 = t31 - t121;
        const V t124 = t55 - t62;
        const V t125 = c[1] * t124;
        // complex block of 3, multiplier 2
        const V t126 = t18 - t25;
        const V t127 = c[0] * t126;
        const V t128 = t126 + t37;
        const V t129 = t37 - t127;
        const V t130 = t17 - t24;
        const V t131 = c[1] * t130;
        // complex block of 3, multiplier 2
        const V t132 = t123 - t125;
        // complex block of 3, multiplier 2
        const V t133 = t129 - t131;
        // complex block of 2
        const V t134 = t132 + t133;
        const V t135 = t133 - t132;
        // real block of 19, multiplier 2
        const V t136 = c[7] * t134;
        const V t137 = c[6] * t134;
        const V t138 = c[9] * t135;
        const V t139 = c[8] * t135;
        // complex block of 3, multiplier 2
        const V t140 = t123 + t125;
        // complex block of 3, multiplier 2
        const V t141 = t129 + t131;
        // complex block of 2
        const V t142 = t140 + t141;
        const V t143 = t140 - t141;
        // real block of 19, multiplier 2
        const V t144 = c[11] * t143;
        const V t145 = c[10] * t143;
        const V t146 = c[13] * t142;
        const V t147 = c[12] * t142;
        // complex block of 2
        const V t148 = t122 + t128;
        // real block of 19, multiplier 2
        const V t149 = c[15] * t148;
        const V t150 = c[14] * t148;
        // complex block of 2
        const V t151 = t122 - t128;
        // real block of 19, multiplier 2
        const V t152 = c[17] * t151;
        const V t153 = c[16] * t151;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t154 = x14 + x22;
        const V t155 = x14 - x22;
        const V x2 = io.in(2);
        const V t156 = t154 + x2;
        const V t157 = c[0] * t154;
        const V t158 = x2 - t157;
        const V t159 = c[1] * t155;
        // real block of 3, multiplier 2
        const V x4 = io.in(4);
        const V x28 = io.in(28);
        const V t160 = x4 + x28;
        const V t161 = x4 - x28;
        const V t162 = c[0] * t160;
        const V t163 = c[1] * t161;
        // real block of 3, multiplier 2
        const V x20 = io.in(20);
        const V x26 = io.in(26);
        const V t164 = x20 + x26;
        const V t165 = x20 - x26;
        const V t166 = c[0] * t164;
        const V t167 = c[1] * t165;
        const V x30 = io.in(30);
        const V t168 = t164 + x30;
        // real block of 3, multiplier 2
        const V x6 = io.in(6);
        const V t169 = t160 + x6;
        // real block of 3, multiplier 2
        const V t170 = t168 + t169;
        const V t171 = t168 - t169;
        // real block of 3, multiplier 2
        const V t172 = x30 - t166;
        // real block of 9, multiplier 2
        const V t173 = c[2] * t172;
        const V t174 = c[3] * t172;
        const V t175 = c[3] * t167;
        const V t176 = c[2] * t167;
        const V t177 = t173 + t175;
        const V t178 = t176 - t174;
        // real block of 3, multiplier 2
        const V t179 = x6 - t162;
        // real block of 9, multiplier 2
        const V t180 = c[4] * t179;
        const V t181 = c[5] * t179;
        const V t182 = c[5] * t163;
        const V t183 = c[4] * t163;
        const V t184 = t182 - t180;
        const V t185 = t183 + t181;
        // real block of 3, multiplier 2
        const V x34 = io.in(34);
        const V x10 = io.in(10);
        const V t186 = x34 + x10;
        const V t187 = x34 - x10;
        const V t188 = c[0] * t186;
        const V t189 = c[1] * t187;
        // real block of 3, multiplier 2
        const V x18 = io.in(18);
        const V x12 = io.in(12);
        const V t190 = x18 + x12;
        const V t191 = x18 - x12;
        const V t192 = c[0] * t190;
        const V t193 = c[1] * t191;
        const V x8 = io.in(8);
        const V t194 = t190 + x8;
        // real block of 3, multiplier 2
        const V x32 = io.in(32);
        const V t195 = t186 + x32;
        // real block of 3, multiplier 2
        const V t196 = t194 + t195;
        const V t197 = t194 - t195;
        // real block of 3, multiplier 2
        const V t198 = x8 - t192;
        // real block of 9, multiplier 2
        const V t199 = c[2] * t198;
        const V t200 = c[3] * t198;
        const V t201 = c[3] * t193;
        const V t202 = c[2] * t193;
        const V t203 = t199 + t201;
        const V t204 = t202 - t200;
        // real block of 3, multiplier 2
        const V t205 = x32 - t188;
        // real block of 9, multiplier 2
        const V t206 = c[4] * t205;
        const V t207 = c[5] * t205;
        const V t208 = c[5] * t189;
        const V t209 = c[4] * t189;
        const V t210 = t208 - t206;
        const V t211 = t209 + t207;
        // real block of 3, multiplier 2
        const V x24 = io.in(24);
        const V x16 = io.in(16);
        const V t212 = x24 + x16;
        const V t213 = x24 - x16;
        const V x36 = io.in(36);
        const V t214 = t212 + x36;
        const V t215 = c[0] * t212;
        const V t216 = x36 - t215;
        const V t217 = c[1] * t213;
        // real block of 3, multiplier 2
        const V t218 = t196 + t156;
        // real block of 3, multiplier 2
        const V t219 = t170 + t214;
        // real block of 2
        const V t220 = t218 + t219;
        const V t221 = t218 - t219;
        // real block of 19, multiplier 2
        const V t222 = c[20] * t220;
        const V t223 = c[21] * t221;
        // real block of 3, multiplier 2
        const V t224 = c[0] * t196;
        const V t225 = t156 - t224;
        // real block of 3, multiplier 2
        const V t226 = c[0] * t170;
        const V t227 = t214 - t226;
        // complex block of 2
        const V t228 = t225 + t227;
        // real block of 19, multiplier 2
        const V t229 = c[22] * t228;
        // complex block of 2
        const V t230 = t225 - t227;
        // real block of 19, multiplier 2
        const V t231 = c[23] * t230;
        // real block of 3, multiplier 2
        const V t232 = c[1] * t197;
        // real block of 3, multiplier 2
        const V t233 = c[1] * t171;
        // complex block of 2
        const V t234 = t232 + t233;
        const V t235 = t232 - t233;
        // real block of 19, multiplier 2
        const V t236 = c[24] * t235;
        const V t237 = c[25] * t234;
        // spectrum block of 3
        const V t238 = c[26] * t234;
        // spectrum block of 3, multiplier 2
        const V t239 = c[27] * t235;
        // complex block of 3, multiplier 2
        const V t240 = t203 + t210;
        const V t241 = c[0] * t240;
        const V t242 = t240 + t158;
        const V t243 = t158 - t241;
        const V t244 = t204 + t211;
        const V t245 = c[1] * t244;
        // complex block of 3, multiplier 2
        const V t246 = t177 + t184;
        const V t247 = c[0] * t246;
        const V t248 = t246 + t216;
        const V t249 = t216 - t247;
        const V t250 = t178 + t185;
        const V t251 = c[1] * t250;
        // complex block of 3, multiplier 2
        const V t252 = t243 + t245;
        // complex block of 3, multiplier 2
        const V t253 = t249 + t251;
        // complex block of 2
        const V t254 = t252 + t253;
        const V t255 = t252 - t253;
        // real block of 19, multiplier 2
        const V t256 = c[6] * t254;
        const V t257 = c[7] * t254;
        const V t258 = c[8] * t255;
        const V t259 = c[9] * t255;
        // complex block of 3, multiplier 2
        const V t260 = t243 - t245;
        // complex block of 3, multiplier 2
        const V t261 = t249 - t251;
        // complex block of 2
        const V t262 = t260 + t261;
        const V t263 = t260 - t261;
        // real block of 19, multiplier 2
        const V t264 = c[10] * t263;
        const V t265 = c[11] * t263;
        const V t266 = c[12] * t262;
        const V t267 = c[13] * t262;
        // complex block of 2
        const V t268 = t242 + t248;
        // real block of 19, multiplier 2
        const V t269 = c[14] * t268;
        const V t270 = c[15] * t268;
        // complex block of 2
        const V t271 = t242 - t248;
        // real block of 19, multiplier 2
        const V t272 = c[16] * t271;
        const V t273 = c[17] * t271;
        // complex block of 3, multiplier 2
        const V t274 = t204 - t211;
        const V t275 = c[0] * t274;
        const V t276 = t274 + t159;
        const V t277 = t159 - t275;
        const V t278 = t203 - t210;
        const V t279 = c[1] * t278;
        // complex block of 3, multiplier 2
        const V t280 = t178 - t185;
        const V t281 = c[0] * t280;
        const V t282 = t280 + t217;
        const V t283 = t217 - t281;
        const V t284 = t177 - t184;
        const V t285 = c[1] * t284;
        // complex block of 3, multiplier 2
        const V t286 = t277 - t279;
        // complex block of 3, multiplier 2
        const V t287 = t283 - t285;
        // complex block of 2
        const V t288 = t286 + t287;
        const V t289 = t287 - t286;
        // real block of 19, multiplier 2
        const V t290 = c[7] * t288;
        const V t291 = c[6] * t288;
        const V t292 = c[9] * t289;
        const V t293 = c[8] * t289;
        // complex block of 3, multiplier 2
        const V t294 = t277 + t279;
        // complex block of 3, multiplier 2
        const V t295 = t283 + t285;
        // complex block of 2
        const V t296 = t294 + t295;
        const V t297 = t294 - t295;
        // real block of 19, multiplier 2
        const V t298 = c[11] * t297;
        const V t299 = c[10] * t297;
        const V t300 = c[13] * t296;
        const V t301 = c[12] * t296;
        // complex block of 2
        const V t302 = t276 + t282;
        // real block of 19, multiplier 2
        const V t303 = c[15] * t302;
        const V t304 = c[14] * t302;
        // complex block of 2
        const V t305 = t276 - t282;
        // real block of 19, multiplier 2
        const V t306 = c[17] * t305;
        const V t307 = c[16] * t305;
        const V x0 = io.in(0);
        const V t308 = x0 + t220;
        // real block of 19, multiplier 2
        const V x19 = io.in(19);
        const V t309 = x19 + t66;
        // real block of 2
        const V t310 = t308 + t309;
        io.out(0, t310);
        const V t311 = t308 - t309;
        io.out(19, t311);
        // real block of 19, multiplier 2
        const V t312 = x0 - t222;
        const V t313 = t229 + t237;
        // spectrum block of 3
        const V t314 = c[0] * t313;
        const V t315 = c[28] * t228;
        const V t316 = t238 - t315;
        const V t317 = t313 + t312;
        const V t318 = t312 - t314;
        const V t319 = t318 - t316;
        const V t320 = t318 + t316;
        // real block of 19, multiplier 2
        const V t321 = t264 + t298;
        const V t322 = t258 + t292;
        // complex block of 3, multiplier 2
        const V t323 = t321 + t322;
        const V t324 = t322 - t321;
        const V t325 = c[0] * t323;
        const V t326 = c[1] * t324;
        // real block of 19, multiplier 2
        const V t327 = t299 - t265;
        const V t328 = t259 - t293;
        // complex block of 3, multiplier 2
        const V t329 = t327 + t328;
        const V t330 = t327 - t328;
        const V t331 = c[0] * t329;
        const V t332 = c[1] * t330;
        // real block of 19, multiplier 2
        const V t333 = t272 + t306;
        const V t334 = t307 - t273;
        // complex block of 3, multiplier 2
        const V t335 = t323 + t333;
        // spectrum block of 3, multiplier 2
        const V t336 = c[1] * t335;
        // complex block of 3, multiplier 2
        const V t337 = t329 + t334;
        // spectrum block of 3, multiplier 2
        const V t338 = c[0] * t337;
        // complex block of 3, multiplier 2
        const V t339 = t325 - t333;
        const V t340 = t339 + t332;
        const V t341 = t339 - t332;
        // spectrum block of 9, multiplier 2
        const V t342 = c[3] * t341;
        const V t343 = c[5] * t340;
        // complex block of 3, multiplier 2
        const V t344 = t334 - t331;
        const V t345 = t344 - t326;
        const V t346 = t344 + t326;
        // spectrum block of 9, multiplier 2
        const V t347 = c[2] * t346;
        const V t348 = c[4] * t345;
        // real block of 19, multiplier 2
        const V t349 = t269 - t303;
        const V t350 = t304 + t270;
        const V t351 = t256 - t290;
        const V t352 = t300 - t266;
        // complex block of 3
        const V t353 = t352 + t351;
        const V t354 = t352 - t351;
        const V t355 = c[0] * t353;
        const V t356 = c[1] * t354;
        // real block of 19, multiplier 2
        const V t357 = t291 + t257;
        const V t358 = t301 + t267;
        // complex block of 3
        const V t359 = t357 - t358;
        const V t360 = t358 + t357;
        const V t361 = c[0] * t359;
        const V t362 = c[1] * t360;
        const V t363 = t359 + t350;
        // spectrum block of 3
        const V t364 = c[1] * t363;
        // complex block of 3
        const V t365 = t353 + t349;
        // spectrum block of 3
        const V t366 = c[0] * t365;
        // complex block of 3
        const V t367 = t350 - t361;
        const V t368 = t367 + t356;
        const V t369 = t367 - t356;
        // spectrum block of 9
        const V t370 = c[29] * t368;
        const V t371 = c[3] * t369;
        // complex block of 3
        const V t372 = t349 - t355;
        const V t373 = t372 + t362;
        const V t374 = t372 - t362;
        // spectrum block of 9
        const V t375 = c[30] * t373;
        const V t376 = c[2] * t374;
        // real block of 19, multiplier 2
        const V t377 = t236 + t231;
        // spectrum block of 3, multiplier 2
        const V t378 = c[0] * t377;
        const V t379 = c[31] * t230;
        const V t380 = t379 - t239;
        const V t381 = t223 - t377;
        const V t382 = t378 + t223;
        const V t383 = t382 - t380;
        const V t384 = t382 + t380;
        // real block of 19, multiplier 2
        const V t385 = x19 - t68;
        const V t386 = t75 + t83;
        // spectrum block of 3
        const V t387 = c[0] * t386;
        const V t388 = c[28] * t74;
        const V t389 = t84 - t388;
        const V t390 = t386 + t385;
        const V t391 = t385 - t387;
        const V t392 = t391 - t389;
        const V t393 = t391 + t389;
        // real block of 19, multiplier 2
        const V t394 = t110 + t144;
        const V t395 = t104 + t138;
        // complex block of 3, multiplier 2
        const V t396 = t394 + t395;
        const V t397 = t395 - t394;
        const V t398 = c[0] * t396;
        const V t399 = c[1] * t397;
        // real block of 19, multiplier 2
        const V t400 = t145 - t111;
        const V t401 = t105 - t139;
        // complex block of 3, multiplier 2
        const V t402 = t400 + t401;
        const V t403 = t400 - t401;
        const V t404 = c[0] * t402;
        const V t405 = c[1] * t403;
        // real block of 19, multiplier 2
        const V t406 = t118 + t152;
        const V t407 = t153 - t119;
        // complex block of 3, multiplier 2
        const V t408 = t396 + t406;
        // spectrum block of 3, multiplier 2
        const V t409 = c[1] * t408;
        // complex block of 3, multiplier 2
        const V t410 = t402 + t407;
        // spectrum block of 3, multiplier 2
        const V t411 = c[0] * t410;
        // complex block of 3, multiplier 2
        const V t412 = t398 - t406;
        const V t413 = t412 + t405;
        const V t414 = t412 - t405;
        // spectrum block of 9, multiplier 2
        const V t415 = c[3] * t414;
        const V t416 = c[5] * t413;
        // complex block of 3, multiplier 2
        const V t417 = t407 - t404;
        const V t418 = t417 - t399;
        const V t419 = t417 + t399;
        // spectrum block of 9, multiplier 2
        const V t420 = c[2] * t419;
        const V t421 = c[4] * t418;
        // real block of 19, multiplier 2
        const V t422 = t115 - t149;
        const V t423 = t150 + t116;
        const V t424 = t102 - t136;
        const V t425 = t146 - t112;
        // complex block of 3
        const V t426 = t425 + t424;
        const V t427 = t425 - t424;
        const V t428 = c[0] * t426;
        const V t429 = c[1] * t427;
        // real block of 19, multiplier 2
        const V t430 = t137 + t103;
        const V t431 = t147 + t113;
        // complex block of 3
        const V t432 = t430 - t431;
        const V t433 = t431 + t430;
        const V t434 = c[0] * t432;
        const V t435 = c[1] * t433;
        const V t436 = t432 + t423;
        // spectrum block of 3
        const V t437 = c[1] * t436;
        // complex block of 3
        const V t438 = t426 + t422;
        // spectrum block of 3
        const V t439 = c[0] * t438;
        // complex block of 3
        const V t440 = t423 - t434;
        const V t441 = t440 + t429;
        const V t442 = t440 - t429;
        // spectrum block of 9
        const V t443 = c[29] * t441;
        const V t444 = c[3] * t442;
        // complex block of 3
        const V t445 = t422 - t428;
        const V t446 = t445 + t435;
        const V t447 = t445 - t435;
        // spectrum block of 9
        const V t448 = c[30] * t446;
        const V t449 = c[2] * t447;
        // real block of 19, multiplier 2
        const V t450 = t82 + t77;
        // spectrum block of 3, multiplier 2
        const V t451 = c[0] * t450;
        const V t452 = c[31] * t76;
        const V t453 = t452 - t85;
        const V t454 = t69 - t450;
        const V t455 = t451 + t69;
        const V t456 = t455 - t453;
        const V t457 = t455 + t453;
        // spectrum block of 9
        const V t458 = t375 - t370;
        // spectrum block of 3
        const V t459 = c[0] * t458;
        const V t460 = t458 + t319;
        const V t461 = t319 - t459;
        const V t462 = c[32] * t368;
        const V t463 = c[33] * t373;
        const V t464 = t462 + t463;
        // spectrum block of 9, multiplier 2
        const V t465 = t348 + t343;
        // spectrum block of 3, multiplier 2
        const V t466 = c[0] * t465;
        const V t467 = t383 - t465;
        const V t468 = t466 + t383;
        const V t469 = c[34] * t345;
        const V t470 = c[35] * t340;
        const V t471 = t469 - t470;
        // spectrum block of 9
        const V t472 = t448 - t443;
        // spectrum block of 3
        const V t473 = c[0] * t472;
        const V t474 = t472 + t392;
        const V t475 = t392 - t473;
        const V t476 = c[32] * t441;
        const V t477 = c[33] * t446;
        const V t478 = t476 + t477;
        // spectrum block of 9, multiplier 2
        const V t479 = t421 + t416;
        // spectrum block of 3, multiplier 2
        const V t480 = c[0] * t479;
        const V t481 = t456 - t479;
        const V t482 = t480 + t456;
        const V t483 = c[34] * t418;
        const V t484 = c[35] * t413;
        const V t485 = t483 - t484;
        // spectrum block of 3
        const V t486 = t461 - t464;
        // spectrum block of 3
        const V t487 = t475 - t478;
        // complex block of 2
        const V t488 = t486 + t487;
        const V t489 = t486 - t487;
        const V t490 = t467 + t481;
        const V t491 = t467 - t481;
        // output stage
        const V t492 = t489 + t491;
        io.out(7, t492);
        const V t493 = t489 - t491;
        io.out(31, t493);
        const V t494 = t488 - t490;
        io.out(12, t494);
        const V t495 = t488 + t490;
        io.out(26, t495);
        // spectrum block of 3
        const V t496 = t461 + t464;
        // spectrum block of 3
        const V t497 = t475 + t478;
        // complex block of 2
        const V t498 = t496 + t497;
        const V t499 = t496 - t497;
        // spectrum block of 3, multiplier 2
        const V t500 = t468 - t471;
        // spectrum block of 3, multiplier 2
        const V t501 = t482 - t485;
        // complex block of 2
        const V t502 = t500 + t501;
        const V t503 = t500 - t501;
        // output stage
        const V t504 = t498 - t502;
        io.out(8, t504);
        const V t505 = t498 + t502;
        io.out(30, t505);
        const V t506 = t499 + t503;
        io.out(11, t506);
        const V t507 = t499 - t503;
        io.out(27, t507);
        // spectrum block of 3, multiplier 2
        const V t508 = t468 + t471;
        // spectrum block of 3, multiplier 2
        const V t509 = t482 + t485;
        // complex block of 2
        const V t510 = t508 + t509;
        const V t511 = t508 - t509;
        const V t512 = t460 + t474;
        const V t513 = t460 - t474;
        // output stage
        const V t514 = t513 + t511;
        io.out(1, t514);
        const V t515 = t513 - t511;
        io.out(37, t515);
        const V t516 = t512 - t510;
        io.out(18, t516);
        const V t517 = t512 + t510;
        io.out(20, t517);
        // spectrum block of 9
        const V t518 = t376 - t371;
        // spectrum block of 3
        const V t519 = c[0] * t518;
        const V t520 = t518 + t320;
        const V t521 = t320 - t519;
        const V t522 = c[18] * t369;
        const V t523 = c[19] * t374;
        const V t524 = t522 + t523;
        // spectrum block of 9, multiplier 2
        const V t525 = t347 - t342;
        // spectrum block of 3, multiplier 2
        const V t526 = c[0] * t525;
        const V t527 = t525 + t384;
        const V t528 = t384 - t526;
        const V t529 = c[18] * t341;
        const V t530 = c[19] * t346;
        const V t531 = t529 + t530;
        // spectrum block of 9
        const V t532 = t449 - t444;
        // spectrum block of 3
        const V t533 = c[0] * t532;
        const V t534 = t532 + t393;
        const V t535 = t393 - t533;
        const V t536 = c[18] * t442;
        const V t537 = c[19] * t447;
        const V t538 = t536 + t537;
        // spectrum block of 9, multiplier 2
        const V t539 = t420 - t415;
        // spectrum block of 3, multiplier 2
        const V t540 = c[0] * t539;
        const V t541 = t539 + t457;
        const V t542 = t457 - t540;
        const V t543 = c[18] * t414;
        const V t544 = c[19] * t419;
        const V t545 = t543 + t544;
        // spectrum block of 3
        const V t546 = t521 - t524;
        // spectrum block of 3
        const V t547 = t535 - t538;
        // complex block of 2
        const V t548 = t546 + t547;
        const V t549 = t546 - t547;
        // spectrum block of 3, multiplier 2
        const V t550 = t528 - t531;
        // spectrum block of 3, multiplier 2
        const V t551 = t542 - t545;
        // complex block of 2
        const V t552 = t550 + t551;
        const V t553 = t551 - t550;
        // output stage
        const V t554 = t548 + t552;
        io.out(6, t554);
        const V t555 = t548 - t552;
        io.out(32, t555);
        const V t556 = t549 + t553;
        io.out(13, t556);
        const V t557 = t549 - t553;
        io.out(25, t557);
        // spectrum block of 3
        const V t558 = t521 + t524;
        // spectrum block of 3
        const V t559 = t535 + t538;
        // complex block of 2
        const V t560 = t558 + t559;
        const V t561 = t558 - t559;
        // spectrum block of 3, multiplier 2
        const V t562 = t528 + t531;
        // spectrum block of 3, multiplier 2
        const V t563 = t542 + t545;
        // complex block of 2
        const V t564 = t562 + t563;
        const V t565 = t563 - t562;
        // output stage
        const V t566 = t560 + t564;
        io.out(4, t566);
        const V t567 = t560 - t564;
        io.out(34, t567);
        const V t568 = t561 + t565;
        io.out(15, t568);
        const V t569 = t561 - t565;
        io.out(23, t569);
        // complex block of 2
        const V t570 = t520 + t534;
        const V t571 = t527 + t541;
        // output stage
        const V t572 = t570 - t571;
        io.out(10, t572);
        const V t573 = t570 + t571;
        io.out(28, t573);
        // complex block of 2
        const V t574 = t520 - t534;
        const V t575 = t527 - t541;
        // output stage
        const V t576 = t574 + t575;
        io.out(9, t576);
        const V t577 = t574 - t575;
        io.out(29, t577);
        // spectrum block of 3
        const V t578 = t365 + t317;
        // spectrum block of 3
        const V t579 = t438 + t390;
        // complex block of 2
        const V t580 = t578 + t579;
        const V t581 = t578 - t579;
        // spectrum block of 3, multiplier 2
        const V t582 = t337 + t381;
        // spectrum block of 3, multiplier 2
        const V t583 = t410 + t454;
        // complex block of 2
        const V t584 = t582 + t583;
        const V t585 = t582 - t583;
        // output stage
        const V t586 = t580 - t584;
        io.out(2, t586);
        const V t587 = t580 + t584;
        io.out(36, t587);
        const V t588 = t581 + t585;
        io.out(17, t588);
        const V t589 = t581 - t585;
        io.out(21, t589);
        // spectrum block of 3
        const V t590 = t317 - t366;
        const V t591 = t590 - t364;
        const V t592 = t590 + t364;
        // spectrum block of 3, multiplier 2
        const V t593 = t381 - t338;
        const V t594 = t593 + t336;
        const V t595 = t593 - t336;
        // spectrum block of 3
        const V t596 = t390 - t439;
        const V t597 = t596 - t437;
        const V t598 = t596 + t437;
        // spectrum block of 3, multiplier 2
        const V t599 = t454 - t411;
        const V t600 = t599 + t409;
        const V t601 = t599 - t409;
        // complex block of 2
        const V t602 = t591 + t597;
        const V t603 = t594 + t600;
        // output stage
        const V t604 = t602 - t603;
        io.out(14, t604);
        const V t605 = t602 + t603;
        io.out(24, t605);
        // complex block of 2
        const V t606 = t591 - t597;
        const V t607 = t594 - t600;
        // output stage
        const V t608 = t606 + t607;
        io.out(5, t608);
        const V t609 = t606 - t607;
        io.out(33, t609);
        // complex block of 2
        const V t610 = t592 + t598;
        const V t611 = t595 + t601;
        // output stage
        const V t612 = t610 + t611;
        io.out(16, t612);
        const V t613 = t610 - t611;
        io.out(22, t613);
        // complex block of 2
        const V t614 = t592 - t598;
        const V t615 = t601 - t595;
        // output stage
        const V t616 = t614 + t615;
        io.out(3, t616);
        const V t617 = t614 - t615;
        io.out(35, t617);
    }
};

}  // namespace zulg
