// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 38.
// Complex DFT of 38 points, prime-factor, order 19, 2.
// 402 additions, 402 subtractions, 440 multiplications (516 with `scale`); 28 constants; 144 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<38> {
    static constexpr int steps = 1320;  // with `scale`
    static constexpr double inverseRoot = 0.16222142113076254;  // 1/sqrt(38), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 2/3
        0.8660254037844386,  // c[1]: -sin 2 pi 2/3
        0.17364817766693036,  // c[2]: cos 2 pi 2/9
        0.984807753012208,  // c[3]: sin 2 pi 2/9
        0.9396926207859084,  // c[4]: -cos 2 pi 4/9
        0.3420201433256687,  // c[5]: sin 2 pi 4/9
        0.47339199623771827,  // c[6]: P[6] of 19
        0.10231284930367265,  // c[7]: -Q[6] of 19
        0.4798788450919296,  // c[8]: P[2] of 19
        0.06545376435166843,  // c[9]: Q[2] of 19
        0.37568683358927524,  // c[10]: P[4] of 19
        0.3056588037374879,  // c[11]: -Q[4] of 19
        0.4842616099669739,  // c[12]: -P[8] of 19
        0.007654694426448971,  // c[13]: -Q[8] of 19
        0.3937592850674352,  // c[14]: Q[3] of 19
        0.28199561460730244,  // c[15]: P[3] of 19
        0.2907887606863707,  // c[16]: Q[7] of 19
        0.3873109834397322,  // c[17]: -P[7] of 19
        0.4137129534343489,  // c[18]: Q[1] of 19
        0.25181241707905544,  // c[19]: -P[1] of 19
        0.24188723407956064,  // c[20]: -Q[5] of 19
        0.4195932163702218,  // c[21]: P[5] of 19
        0.29619813272602386,  // c[22]: -sin 2 pi 2/3 times sin 2 pi 4/9
        0.8137976813493737,  // c[23]: -sin 2 pi 2/3 times -cos 2 pi 4/9
        0.1503837331804353,  // c[24]: -sin 2 pi 2/3 times cos 2 pi 2/9
        0.8528685319524432,  // c[25]: -sin 2 pi 2/3 times sin 2 pi 2/9
        0.05555555555555555,  // c[26]: 1/18
        0.2421610524189263,  // c[27]: -beta of 19
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x37r = io.re(37);
        const V x1r = io.re(1);
        const V t0 = x37r + x1r;
        const V t1 = x37r - x1r;
        // real block of 2
        const V x31r = io.re(31);
        const V x7r = io.re(7);
        const V t2 = x31r + x7r;
        const V t3 = x31r - x7r;
        // real block of 3, multiplier 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 3, multiplier 2
        const V t6 = t1 + t3;
        const V t7 = t1 - t3;
        // real block of 2
        const V x27r = io.re(27);
        const V x11r = io.re(11);
        const V t8 = x27r + x11r;
        const V t9 = x27r - x11r;
        // real block of 3, multiplier 2
        const V t10 = t4 + t8;
        const V t11 = c[0] * t4;
        const V t12 = t8 - t11;
        // real block of 9, multiplier 2
        const V t13 = c[2] * t12;
        const V t14 = c[3] * t12;
        // real block of 3, multiplier 2
        const V t15 = c[1] * t5;
        // real block of 9, multiplier 2
        const V t16 = c[3] * t15;
        const V t17 = c[2] * t15;
        // real block of 3, multiplier 2
        const V t18 = t6 + t9;
        const V t19 = c[0] * t6;
        const V t20 = t9 - t19;
        // real block of 9, multiplier 2
        const V t21 = c[2] * t20;
        const V t22 = c[3] * t20;
        // real block of 3, multiplier 2
        const V t23 = c[1] * t7;
        // real block of 9, multiplier 2
        const V t24 = c[3] * t23;
        const V t25 = c[2] * t23;
        // real block of 2
        const V x3r = io.re(3);
        const V x35r = io.re(35);
        const V t26 = x3r + x35r;
        const V t27 = x3r - x35r;
        // real block of 2
        const V x33r = io.re(33);
        const V x5r = io.re(5);
        const V t28 = x33r + x5r;
        const V t29 = x33r - x5r;
        // real block of 3, multiplier 2
        const V t30 = t28 + t26;
        const V t31 = c[0] * t30;
        const V t32 = t28 - t26;
        const V t33 = c[1] * t32;
        // real block of 3, multiplier 2
        const V t34 = t29 + t27;
        const V t35 = c[0] * t34;
        const V t36 = t29 - t27;
        const V t37 = c[1] * t36;
        // real block of 2
        const V x29r = io.re(29);
        const V x9r = io.re(9);
        const V t38 = x29r + x9r;
        const V t39 = x29r - x9r;
        // real block of 2
        const V x15r = io.re(15);
        const V x23r = io.re(23);
        const V t40 = x15r + x23r;
        const V t41 = x15r - x23r;
        // real block of 3, multiplier 2
        const V t42 = t40 + t38;
        const V t43 = t40 - t38;
        // real block of 3, multiplier 2
        const V t44 = t41 + t39;
        const V t45 = t41 - t39;
        // real block of 2
        const V x13r = io.re(13);
        const V x25r = io.re(25);
        const V t46 = x13r + x25r;
        const V t47 = x13r - x25r;
        // real block of 3, multiplier 2
        const V t48 = t42 + t46;
        const V t49 = c[0] * t42;
        const V t50 = t46 - t49;
        // real block of 9, multiplier 2
        const V t51 = c[4] * t50;
        const V t52 = c[5] * t50;
        // real block of 3, multiplier 2
        const V t53 = c[1] * t43;
        // real block of 9, multiplier 2
        const V t54 = c[5] * t53;
        const V t55 = c[4] * t53;
        // real block of 3, multiplier 2
        const V t56 = t44 + t47;
        const V t57 = c[0] * t44;
        const V t58 = t47 - t57;
        // real block of 9, multiplier 2
        const V t59 = c[4] * t58;
        const V t60 = c[5] * t58;
        // real block of 3, multiplier 2
        const V t61 = c[1] * t45;
        // real block of 9, multiplier 2
        const V t62 = c[5] * t61;
        const V t63 = c[4] * t61;
        // real block of 2
        const V x21r = io.re(21);
        const V x17r = io.re(17);
        const V t64 = x21r + x17r;
        const V t65 = x21r - x17r;
        // real block of 3, multiplier 2
        const V t66 = t30 + t64;
        // real block of 3, multiplier 2
        const V t67 = t10 + t48;
        const V t68 = t67 + t66;
        const V t69 = c[0] * t67;
        const V t70 = t66 - t69;
        // complex block of 19, multiplier 2
        const V t71 = c[6] * t70;
        const V t72 = c[7] * t70;
        const V t73 = c[26] * t68;
        // real block of 3, multiplier 2
        const V t74 = t64 - t31;
        // real block of 9, multiplier 2
        const V t75 = t13 + t16;
        const V t76 = t54 - t51;
        // complex block of 3, multiplier 2
        const V t77 = t75 + t76;
        const V t78 = t75 - t76;
        const V t79 = c[0] * t77;
        const V t80 = c[1] * t78;
        // real block of 9, multiplier 2
        const V t81 = t17 - t14;
        const V t82 = t55 + t52;
        // complex block of 3, multiplier 2
        const V t83 = t81 - t82;
        const V t84 = t81 + t82;
        const V t85 = c[0] * t83;
        const V t86 = c[1] * t84;
        const V t87 = t77 + t74;
        // complex block of 19, multiplier 2
        const V t88 = c[8] * t87;
        const V t89 = c[9] * t87;
        // complex block of 3, multiplier 2
        const V t90 = t83 + t33;
        // complex block of 19, multiplier 2
        const V t91 = c[9] * t90;
        const V t92 = c[8] * t90;
        // complex block of 3, multiplier 2
        const V t93 = t74 - t79;
        const V t94 = t93 + t86;
        const V t95 = t93 - t86;
        // complex block of 19, multiplier 2
        const V t96 = c[10] * t94;
        const V t97 = c[11] * t94;
        const V t98 = c[12] * t95;
        const V t99 = c[13] * t95;
        // complex block of 3, multiplier 2
        const V t100 = t33 - t85;
        const V t101 = t100 - t80;
        const V t102 = t100 + t80;
        // complex block of 19, multiplier 2
        const V t103 = c[11] * t101;
        const V t104 = c[10] * t101;
        const V t105 = c[13] * t102;
        const V t106 = c[12] * t102;
        // real block of 3, multiplier 2
        const V t107 = t10 - t48;
        const V t108 = c[1] * t107;
        // complex block of 19, multiplier 2
        const V t109 = c[7] * t108;
        const V t110 = c[6] * t108;
        // real block of 3, multiplier 2
        const V t111 = t34 + t65;
        // real block of 3, multiplier 2
        const V t112 = t18 + t56;
        const V t113 = t112 + t111;
        const V t114 = c[0] * t112;
        const V t115 = t111 - t114;
        // complex block of 19, multiplier 2
        const V t116 = c[14] * t115;
        const V t117 = c[15] * t115;
        const V t118 = c[27] * t113;
        // real block of 3, multiplier 2
        const V t119 = t65 - t35;
        // real block of 9, multiplier 2
        const V t120 = t21 + t24;
        const V t121 = t62 - t59;
        // complex block of 3, multiplier 2
        const V t122 = t120 + t121;
        const V t123 = t120 - t121;
        const V t124 = c[0] * t122;
        const V t125 = c[1] * t123;
        // real block of 9, multiplier 2
        const V t126 = t25 - t22;
        const V t127 = t63 + t60;
        // complex block of 3, multiplier 2
        const V t128 = t126 - t127;
        const V t129 = t126 + t127;
        const V t130 = c[0] * t128;
        const V t131 = c[1] * t129;
        const V t132 = t122 + t119;
        // complex block of 19, multiplier 2
        const V t133 = c[16] * t132;
        const V t134 = c[17] * t132;
        // complex block of 3, multiplier 2
        const V t135 = t128 + t37;
        // complex block of 19, multiplier 2
        const V t136 = c[17] * t135;
        const V t137 = c[16] * t135;
        // complex block of 3, multiplier 2
        const V t138 = t119 - t124;
        const V t139 = t138 + t131;
        const V t140 = t138 - t131;
        // complex block of 19, multiplier 2
        const V t141 = c[18] * t140;
        const V t142 = c[19] * t140;
        const V t143 = c[20] * t139;
        const V t144 = c[21] * t139;
        // complex block of 3, multiplier 2
        const V t145 = t37 - t130;
        const V t146 = t145 - t125;
        const V t147 = t145 + t125;
        // complex block of 19, multiplier 2
        const V t148 = c[19] * t147;
        const V t149 = c[18] * t147;
        const V t150 = c[21] * t146;
        const V t151 = c[20] * t146;
        // real block of 3, multiplier 2
        const V t152 = t18 - t56;
        const V t153 = c[1] * t152;
        // complex block of 19, multiplier 2
        const V t154 = c[15] * t153;
        const V t155 = c[14] * t153;
        // real block of 2
        const V x37i = io.im(37);
        const V x1i = io.im(1);
        const V t156 = x37i + x1i;
        const V t157 = x37i - x1i;
        // real block of 2
        const V x31i = io.im(31);
        const V x7i = io.im(7);
        const V t158 = x31i + x7i;
        const V t159 = x31i - x7i;
        // real block of 3, multiplier 2
        const V t160 = t156 + t158;
        const V t161 = t156 - t158;
        // real block of 3, multiplier 2
        const V t162 = t157 + t159;
        const V t163 = t157 - t159;
        // real block of 2
        const V x27i = io.im(27);
        const V x11i = io.im(11);
        const V t164 = x27i + x11i;
        const V t165 = x27i - x11i;
        // real block of 3, multiplier 2
        const V t166 = t160 + t164;
        const V t167 = c[0] * t160;
        const V t168 = t164 - t167;
        // real block of 9, multiplier 2
        const V t169 = c[2] * t168;
        const V t170 = c[3] * t168;
        // real block of 3, multiplier 2
        const V t171 = c[1] * t161;
        // real block of 9, multiplier 2
        const V t172 = c[3] * t171;
        const V t173 = c[2] * t171;
        // real block of 3, multiplier 2
        const V t174 = t162 + t165;
        const V t175 = c[0] * t162;
        const V t176 = t165 - t175;
        // real block of 9, multiplier 2
        const V t177 = c[2] * t176;
        const V t178 = c[3] * t176;
        // real block of 3, multiplier 2
        const V t179 = c[1] * t163;
        // real block of 9, multiplier 2
        const V t180 = c[3] * t179;
        const V t181 = c[2] * t179;
        // real block of 2
        const V x3i = io.im(3);
        const V x35i = io.im(35);
        const V t182 = x3i + x35i;
        const V t183 = x3i - x35i;
        // real block of 2
        const V x33i = io.im(33);
        const V x5i = io.im(5);
        const V t184 = x33i + x5i;
        const V t185 = x33i - x5i;
        // real block of 3, multiplier 2
        const V t186 = t184 + t182;
        const V t187 = c[0] * t186;
        const V t188 = t184 - t182;
        const V t189 = c[1] * t188;
        // real block of 3, multiplier 2
        const V t190 = t185 + t183;
        const V t191 = c[0] * t190;
        const V t192 = t185 - t183;
        const V t193 = c[1] * t192;
        // real block of 2
        const V x29i = io.im(29);
        const V x9i = io.im(9);
        const V t194 = x29i + x9i;
        const V t195 = x29i - x9i;
        // real block of 2
        const V x15i = io.im(15);
        const V x23i = io.im(23);
        const V t196 = x15i + x23i;
        const V t197 = x15i - x23i;
        // real block of 3, multiplier 2
        const V t198 = t196 + t194;
        const V t199 = t196 - t194;
        // real block of 3, multiplier 2
        const V t200 = t197 + t195;
        const V t201 = t197 - t195;
        // real block of 2
        const V x13i = io.im(13);
        const V x25i = io.im(25);
        const V t202 = x13i + x25i;
        const V t203 = x13i - x25i;
        // real block of 3, multiplier 2
        const V t204 = t198 + t202;
        const V t205 = c[0] * t198;
        const V t206 = t202 - t205;
        // real block of 9, multiplier 2
        const V t207 = c[4] * t206;
        const V t208 = c[5] * t206;
        // real block of 3, multiplier 2
        const V t209 = c[1] * t199;
        // real block of 9, multiplier 2
        const V t210 = c[5] * t209;
        const V t211 = c[4] * t209;
        // real block of 3, multiplier 2
        const V t212 = t200 + t203;
        const V t213 = c[0] * t200;
        const V t214 = t203 - t213;
        // real block of 9, multiplier 2
        const V t215 = c[4] * t214;
        const V t216 = c[5] * t214;
        // real block of 3, multiplier 2
        const V t217 = c[1] * t201;
        // real block of 9, multiplier 2
        const V t218 = c[5] * t217;
        const V t219 = c[4] * t217;
        // real block of 2
        const V x21i = io.im(21);
        const V x17i = io.im(17);
        const V t220 = x21i + x17i;
        const V t221 = x21i - x17i;
        // real block of 3, multiplier 2
        const V t222 = t186 + t220;
        // real block of 3, multiplier 2
        const V t223 = t166 + t204;
        const V t224 = t223 + t222;
        const V t225 = c[0] * t223;
        const V t226 = t222 - t225;
        // complex block of 19, multiplier 2
        const V t227 = c[6] * t226;
        const V t228 = c[7] * t226;
        const V t229 = c[26] * t224;
        // real block of 3, multiplier 2
        const V t230 = t220 - t187;
        // real block of 9, multiplier 2
        const V t231 = t169 + t172;
        const V t232 = t210 - t207;
        // complex block of 3, multiplier 2
        const V t233 = t231 + t232;
        const V t234 = t231 - t232;
        const V t235 = c[0] * t233;
        const V t236 = c[1] * t234;
        // real block of 9, multiplier 2
        const V t237 = t173 - t170;
        const V t238 = t211 + t208;
        // complex block of 3, multiplier 2
        const V t239 = t237 - t238;
        const V t240 = t237 + t238;
        const V t241 = c[0] * t239;
        const V t242 = c[1] * t240;
        const V t243 = t233 + t230;
        // complex block of 19, multiplier 2
        const V t244 = c[8] * t243;
        const V t245 = c[9] * t243;
        // complex block of 3, multiplier 2
        const V t246 = t239 + t189;
        // complex block of 19, multiplier 2
        const V t247 = c[9] * t246;
        const V t248 = c[8] * t246;
        // complex block of 3, multiplier 2
        const V t249 = t230 - t235;
        const V t250 = t249 + t242;
        const V t251 = t249 - t242;
        // complex block of 19, multiplier 2
        const V t252 = c[10] * t250;
        const V t253 = c[11] * t250;
        const V t254 = c[12] * t251;
        const V t255 = c[13] * t251;
        // complex block of 3, multiplier 2
        const V t256 = t189 - t241;
        const V t257 = t256 - t236;
        const V t258 = t256 + t236;
        // complex block of 19, multiplier 2
        const V t259 = c[11] * t257;
        const V t260 = c[10] * t257;
        const V t261 = c[13] * t258;
        const V t262 = c[12] * t258;
        // real block of 3, multiplier 2
        const V t263 = t166 - t204;
        const V t264 = c[1] * t263;
        // complex block of 19, multiplier 2
        const V t265 = c[7] * t264;
        const V t266 = c[6] * t264;
        // real block of 3, multiplier 2
        const V t267 = t190 + t221;
        // real block of 3, multiplier 2
        const V t268 = t174 + t212;
        const V t269 = t268 + t267;
        const V t270 = c[0] * t268;
        const V t271 = t267 - t270;
        // complex block of 19, multiplier 2
        const V t272 = c[14] * t271;
        const V t273 = c[15] * t271;
        const V t274 = c[27] * t269;
        // real block of 3, multiplier 2
        const V t275 = t221 - t191;
        // real block of 9, multiplier 2
        const V t276 = t177 + t180;
        const V t277 = t218 - t215;
        // complex block of 3, multiplier 2
        const V t278 = t276 + t277;
        const V t279 = t276 - t277;
        const V t280 = c[0] * t278;
        const V t281 = c[1] * t279;
        // real block of 9, multiplier 2
        const V t282 = t181 - t178;
        const V t283 = t219 + t216;
        // complex block of 3, multiplier 2
        const V t284 = t282 - t283;
        const V t285 = t282 + t283;
        const V t286 = c[0] * t284;
        const V t287 = c[1] * t285;
        const V t288 = t278 + t275;
        // complex block of 19, multiplier 2
        const V t289 = c[16] * t288;
        const V t290 = c[17] * t288;
        // complex block of 3, multiplier 2
        const V t291 = t284 + t193;
        // complex block of 19, multiplier 2
        const V t292 = c[17] * t291;
        const V t293 = c[16] * t291;
        // complex block of 3, multiplier 2
        const V t294 = t275 - t280;
        const V t295 = t294 + t287;
        const V t296 = t294 - t287;
        // complex block of 19, multiplier 2
        const V t297 = c[18] * t296;
        const V t298 = c[19] * t296;
        const V t299 = c[20] * t295;
        const V t300 = c[21] * t295;
        // complex block of 3, multiplier 2
        const V t301 = t193 - t286;
        const V t302 = t301 - t281;
        const V t303 = t301 + t281;
        // complex block of 19, multiplier 2
        const V t304 = c[19] * t303;
        const V t305 = c[18] * t303;
        const V t306 = c[21] * t302;
        const V t307 = c[20] * t302;
        // real block of 3, multiplier 2
        const V t308 = t174 - t212;
        const V t309 = c[1] * t308;
        // complex block of 19, multiplier 2
        const V t310 = c[15] * t309;
        const V t311 = c[14] * t309;
        // real block of 2
        const V x2r = io.re(2);
        const V x36r = io.re(36);
        const V t312 = x2r + x36r;
        const V t313 = x2r - x36r;
        // real block of 2
        const V x34r = io.re(34);
        const V x4r = io.re(4);
        const V t314 = x34r + x4r;
        const V t315 = x34r - x4r;
        // real block of 2
        const V x10r = io.re(10);
        const V x28r = io.re(28);
        const V t316 = x10r + x28r;
        const V t317 = x10r - x28r;
        // real block of 3, multiplier 2
        const V t318 = t314 + t316;
        const V t319 = t314 - t316;
        // real block of 3, multiplier 2
        const V t320 = t315 + t317;
        const V t321 = t315 - t317;
        // real block of 2
        const V x32r = io.re(32);
        const V x6r = io.re(6);
        const V t322 = x32r + x6r;
        const V t323 = x32r - x6r;
        // real block of 3, multiplier 2
        const V t324 = t318 + t322;
        const V t325 = c[0] * t318;
        const V t326 = t322 - t325;
        // real block of 9, multiplier 2
        const V t327 = c[4] * t326;
        const V t328 = c[5] * t326;
        // real block of 3, multiplier 2
        const V t329 = c[1] * t319;
        // real block of 9, multiplier 2
        const V t330 = c[5] * t329;
        const V t331 = c[4] * t329;
        // real block of 3, multiplier 2
        const V t332 = t320 + t323;
        const V t333 = c[0] * t320;
        const V t334 = t323 - t333;
        // real block of 9, multiplier 2
        const V t335 = c[4] * t334;
        const V t336 = c[5] * t334;
        // real block of 3, multiplier 2
        const V t337 = c[1] * t321;
        // real block of 9, multiplier 2
        const V t338 = c[5] * t337;
        const V t339 = c[4] * t337;
        // real block of 2
        const V x8r = io.re(8);
        const V x30r = io.re(30);
        const V t340 = x8r + x30r;
        const V t341 = x8r - x30r;
        // real block of 2
        const V x12r = io.re(12);
        const V x26r = io.re(26);
        const V t342 = x12r + x26r;
        const V t343 = x12r - x26r;
        // real block of 2
        const V x18r = io.re(18);
        const V x20r = io.re(20);
        const V t344 = x18r + x20r;
        const V t345 = x18r - x20r;
        // real block of 3, multiplier 2
        const V t346 = t344 + t342;
        const V t347 = t344 - t342;
        // real block of 3, multiplier 2
        const V t348 = t345 + t343;
        const V t349 = t345 - t343;
        // real block of 3, multiplier 2
        const V t350 = t346 + t340;
        const V t351 = c[0] * t346;
        const V t352 = t340 - t351;
        // real block of 9, multiplier 2
        const V t353 = c[2] * t352;
        const V t354 = c[3] * t352;
        // real block of 3, multiplier 2
        const V t355 = c[1] * t347;
        // real block of 9, multiplier 2
        const V t356 = c[3] * t355;
        const V t357 = c[2] * t355;
        // real block of 3, multiplier 2
        const V t358 = t348 + t341;
        const V t359 = c[0] * t348;
        const V t360 = t341 - t359;
        // real block of 9, multiplier 2
        const V t361 = c[2] * t360;
        const V t362 = c[3] * t360;
        // real block of 3, multiplier 2
        const V t363 = c[1] * t349;
        // real block of 9, multiplier 2
        const V t364 = c[3] * t363;
        const V t365 = c[2] * t363;
        // real block of 2
        const V x14r = io.re(14);
        const V x24r = io.re(24);
        const V t366 = x14r + x24r;
        const V t367 = x14r - x24r;
        // real block of 2
        const V x22r = io.re(22);
        const V x16r = io.re(16);
        const V t368 = x22r + x16r;
        const V t369 = x22r - x16r;
        // real block of 3, multiplier 2
        const V t370 = t366 + t368;
        const V t371 = c[0] * t370;
        const V t372 = t366 - t368;
        const V t373 = c[1] * t372;
        // real block of 3, multiplier 2
        const V t374 = t367 + t369;
        const V t375 = c[0] * t374;
        const V t376 = t367 - t369;
        const V t377 = c[1] * t376;
        // real block of 3, multiplier 2
        const V t378 = t370 + t312;
        // real block of 3, multiplier 2
        const V t379 = t350 + t324;
        const V t380 = t379 + t378;
        const V t381 = c[0] * t379;
        const V t382 = t378 - t381;
        // complex block of 19, multiplier 2
        const V t383 = c[6] * t382;
        const V t384 = c[7] * t382;
        const V t385 = c[26] * t380;
        // real block of 3, multiplier 2
        const V t386 = t312 - t371;
        // real block of 9, multiplier 2
        const V t387 = t353 + t356;
        const V t388 = t330 - t327;
        // complex block of 3, multiplier 2
        const V t389 = t387 + t388;
        const V t390 = t387 - t388;
        const V t391 = c[0] * t389;
        const V t392 = c[1] * t390;
        // real block of 9, multiplier 2
        const V t393 = t357 - t354;
        const V t394 = t331 + t328;
        // complex block of 3, multiplier 2
        const V t395 = t393 - t394;
        const V t396 = t393 + t394;
        const V t397 = c[0] * t395;
        const V t398 = c[1] * t396;
        const V t399 = t389 + t386;
        // complex block of 19, multiplier 2
        const V t400 = c[8] * t399;
        const V t401 = c[9] * t399;
        // complex block of 3, multiplier 2
        const V t402 = t395 + t373;
        // complex block of 19, multiplier 2
        const V t403 = c[9] * t402;
        const V t404 = c[8] * t402;
        // complex block of 3, multiplier 2
        const V t405 = t386 - t391;
        const V t406 = t405 + t398;
        const V t407 = t405 - t398;
        // complex block of 19, multiplier 2
        const V t408 = c[10] * t406;
        const V t409 = c[11] * t406;
        const V t410 = c[12] * t407;
        const V t411 = c[13] * t407;
        // complex block of 3, multiplier 2
        const V t412 = t373 - t397;
        const V t413 = t412 - t392;
        const V t414 = t412 + t392;
        // complex block of 19, multiplier 2
        const V t415 = c[11] * t413;
        const V t416 = c[10] * t413;
        const V t417 = c[13] * t414;
        const V t418 = c[12] * t414;
        // real block of 3, multiplier 2
        const V t419 = t350 - t324;
        const V t420 = c[1] * t419;
        // complex block of 19, multiplier 2
        const V t421 = c[7] * t420;
        const V t422 = c[6] * t420;
        // real block of 3, multiplier 2
        const V t423 = t374 + t313;
        // real block of 3, multiplier 2
        const V t424 = t358 + t332;
        const V t425 = t424 + t423;
        const V t426 = c[0] * t424;
        const V t427 = t423 - t426;
        // complex block of 19, multiplier 2
        const V t428 = c[14] * t427;
        const V t429 = c[15] * t427;
        const V t430 = c[27] * t425;
        // real block of 3, multiplier 2
        const V t431 = t313 - t375;
        // real block of 9, multiplier 2
        const V t432 = t361 + t364;
        const V t433 = t338 - t335;
        // complex block of 3, multiplier 2
        const V t434 = t432 + t433;
        const V t435 = t432 - t433;
        const V t436 = c[0] * t434;
        const V t437 = c[1] * t435;
        // real block of 9, multiplier 2
        const V t438 = t365 - t362;
        const V t439 = t339 + t336;
        // complex block of 3, multiplier 2
        const V t440 = t438 - t439;
        const V t441 = t438 + t439;
        const V t442 = c[0] * t440;
        const V t443 = c[1] * t441;
        const V t444 = t434 + t431;
        // complex block of 19, multiplier 2
        const V t445 = c[16] * t444;
        const V t446 = c[17] * t444;
        // complex block of 3, multiplier 2
        const V t447 = t440 + t377;
        // complex block of 19, multiplier 2
        const V t448 = c[17] * t447;
        const V t449 = c[16] * t447;
        // complex block of 3, multiplier 2
        const V t450 = t431 - t436;
        const V t451 = t450 + t443;
        const V t452 = t450 - t443;
        // complex block of 19, multiplier 2
        const V t453 = c[18] * t452;
        const V t454 = c[19] * t452;
        const V t455 = c[20] * t451;
        const V t456 = c[21] * t451;
        // complex block of 3, multiplier 2
        const V t457 = t377 - t442;
        const V t458 = t457 - t437;
        const V t459 = t457 + t437;
        // complex block of 19, multiplier 2
        const V t460 = c[19] * t459;
        const V t461 = c[18] * t459;
        const V t462 = c[21] * t458;
        const V t463 = c[20] * t458;
        // real block of 3, multiplier 2
        const V t464 = t358 - t332;
        const V t465 = c[1] * t464;
        // complex block of 19, multiplier 2
        const V t466 = c[15] * t465;
        const V t467 = c[14] * t465;
        // real block of 2
        const V x2i = io.im(2);
        const V x36i = io.im(36);
        const V t468 = x2i + x36i;
        const V t469 = x2i - x36i;
        // real block of 2
        const V x34i = io.im(34);
        const V x4i = io.im(4);
        const V t470 = x34i + x4i;
        const V t471 = x34i - x4i;
        // real block of 2
        const V x10i = io.im(10);
        const V x28i = io.im(28);
        const V t472 = x10i + x28i;
        const V t473 = x10i - x28i;
        // real block of 3, multiplier 2
        const V t474 = t470 + t472;
        const V t475 = t470 - t472;
        // real block of 3, multiplier 2
        const V t476 = t471 + t473;
        const V t477 = t471 - t473;
        // real block of 2
        const V x32i = io.im(32);
        const V x6i = io.im(6);
        const V t478 = x32i + x6i;
        const V t479 = x32i - x6i;
        // real block of 3, multiplier 2
        const V t480 = t474 + t478;
        const V t481 = c[0] * t474;
        const V t482 = t478 - t481;
        // real block of 9, multiplier 2
        const V t483 = c[4] * t482;
        const V t484 = c[5] * t482;
        // real block of 3, multiplier 2
        const V t485 = c[1] * t475;
        // real block of 9, multiplier 2
        const V t486 = c[5] * t485;
        const V t487 = c[4] * t485;
        // real block of 3, multiplier 2
        const V t488 = t476 + t479;
        const V t489 = c[0] * t476;
        const V t490 = t479 - t489;
        // real block of 9, multiplier 2
        const V t491 = c[4] * t490;
        const V t492 = c[5] * t490;
        // real block of 3, multiplier 2
        const V t493 = c[1] * t477;
        // real block of 9, multiplier 2
        const V t494 = c[5] * t493;
        const V t495 = c[4] * t493;
        // real block of 2
        const V x8i = io.im(8);
        const V x30i = io.im(30);
        const V t496 = x8i + x30i;
        const V t497 = x8i - x30i;
        // real block of 2
        const V x12i = io.im(12);
        const V x26i = io.im(26);
        const V t498 = x12i + x26i;
        const V t499 = x12i - x26i;
        // real block of 2
        const V x18i = io.im(18);
        const V x20i = io.im(20);
        const V t500 = x18i + x20i;
        const V t501 = x18i - x20i;
        // real block of 3, multiplier 2
        const V t502 = t500 + t498;
        const V t503 = t500 - t498;
        // real block of 3, multiplier 2
        const V t504 = t501 + t499;
        const V t505 = t501 - t499;
        // real block of 3, multiplier 2
        const V t506 = t502 + t496;
        const V t507 = c[0] * t502;
        const V t508 = t496 - t507;
        // real block of 9, multiplier 2
        const V t509 = c[2] * t508;
        const V t510 = c[3] * t508;
        // real block of 3, multiplier 2
        const V t511 = c[1] * t503;
        // real block of 9, multiplier 2
        const V t512 = c[3] * t511;
        const V t513 = c[2] * t511;
        // real block of 3, multiplier 2
        const V t514 = t504 + t497;
        const V t515 = c[0] * t504;
        const V t516 = t497 - t515;
        // real block of 9, multiplier 2
        const V t517 = c[2] * t516;
        const V t518 = c[3] * t516;
        // real block of 3, multiplier 2
        const V t519 = c[1] * t505;
        // real block of 9, multiplier 2
        const V t520 = c[3] * t519;
        const V t521 = c[2] * t519;
        // real block of 2
        const V x14i = io.im(14);
        const V x24i = io.im(24);
        const V t522 = x14i + x24i;
        const V t523 = x14i - x24i;
        // real block of 2
        const V x22i = io.im(22);
        const V x16i = io.im(16);
        const V t524 = x22i + x16i;
        const V t525 = x22i - x16i;
        // real block of 3, multiplier 2
        const V t526 = t522 + t524;
        const V t527 = c[0] * t526;
        const V t528 = t522 - t524;
        const V t529 = c[1] * t528;
        // real block of 3, multiplier 2
        const V t530 = t523 + t525;
        const V t531 = c[0] * t530;
        const V t532 = t523 - t525;
        const V t533 = c[1] * t532;
        // real block of 3, multiplier 2
        const V t534 = t526 + t468;
        // real block of 3, multiplier 2
        const V t535 = t506 + t480;
        const V t536 = t535 + t534;
        const V t537 = c[0] * t535;
        const V t538 = t534 - t537;
        // complex block of 19, multiplier 2
        const V t539 = c[6] * t538;
        const V t540 = c[7] * t538;
        const V t541 = c[26] * t536;
        // real block of 3, multiplier 2
        const V t542 = t468 - t527;
        // real block of 9, multiplier 2
        const V t543 = t509 + t512;
        const V t544 = t486 - t483;
        // complex block of 3, multiplier 2
        const V t545 = t543 + t544;
        const V t546 = t543 - t544;
        const V t547 = c[0] * t545;
        const V t548 = c[1] * t546;
        // real block of 9, multiplier 2
        const V t549 = t513 - t510;
        const V t550 = t487 + t484;
        // complex block of 3, multiplier 2
        const V t551 = t549 - t550;
        const V t552 = t549 + t550;
        const V t553 = c[0] * t551;
        const V t554 = c[1] * t552;
        const V t555 = t545 + t542;
        // complex block of 19, multiplier 2
        const V t556 = c[8] * t555;
        const V t557 = c[9] * t555;
        // complex block of 3, multiplier 2
        const V t558 = t551 + t529;
        // complex block of 19, multiplier 2
        const V t559 = c[9] * t558;
        const V t560 = c[8] * t558;
        // complex block of 3, multiplier 2
        const V t561 = t542 - t547;
        const V t562 = t561 + t554;
        const V t563 = t561 - t554;
        // complex block of 19, multiplier 2
        const V t564 = c[10] * t562;
        const V t565 = c[11] * t562;
        const V t566 = c[12] * t563;
        const V t567 = c[13] * t563;
        // complex block of 3, multiplier 2
        const V t568 = t529 - t553;
        const V t569 = t568 - t548;
        const V t570 = t568 + t548;
        // complex block of 19, multiplier 2
        const V t571 = c[11] * t569;
        const V t572 = c[10] * t569;
        const V t573 = c[13] * t570;
        const V t574 = c[12] * t570;
        // real block of 3, multiplier 2
        const V t575 = t506 - t480;
        const V t576 = c[1] * t575;
        // complex block of 19, multiplier 2
        const V t577 = c[7] * t576;
        const V t578 = c[6] * t576;
        // real block of 3, multiplier 2
        const V t579 = t530 + t469;
        // real block of 3, multiplier 2
        const V t580 = t514 + t488;
        const V t581 = t580 + t579;
        const V t582 = c[0] * t580;
        const V t583 = t579 - t582;
        // complex block of 19, multiplier 2
        const V t584 = c[14] * t583;
        const V t585 = c[15] * t583;
        const V t586 = c[27] * t581;
        // real block of 3, multiplier 2
        const V t587 = t469 - t531;
        // real block of 9, multiplier 2
        const V t588 = t517 + t520;
        const V t589 = t494 - t491;
        // complex block of 3, multiplier 2
        const V t590 = t588 + t589;
        const V t591 = t588 - t589;
        const V t592 = c[0] * t590;
        const V t593 = c[1] * t591;
        // real block of 9, multiplier 2
        const V t594 = t521 - t518;
        const V t595 = t495 + t492;
        // complex block of 3, multiplier 2
        const V t596 = t594 - t595;
        const V t597 = t594 + t595;
        const V t598 = c[0] * t596;
        const V t599 = c[1] * t597;
        const V t600 = t590 + t587;
        // complex block of 19, multiplier 2
        const V t601 = c[16] * t600;
        const V t602 = c[17] * t600;
        // complex block of 3, multiplier 2
        const V t603 = t596 + t533;
        // complex block of 19, multiplier 2
        const V t604 = c[17] * t603;
        const V t605 = c[16] * t603;
        // complex block of 3, multiplier 2
        const V t606 = t587 - t592;
        const V t607 = t606 + t599;
        const V t608 = t606 - t599;
        // complex block of 19, multiplier 2
        const V t609 = c[18] * t608;
        const V t610 = c[19] * t608;
        const V t611 = c[20] * t607;
        const V t612 = c[21] * t607;
        // complex block of 3, multiplier 2
        const V t613 = t533 - t598;
        const V t614 = t613 - t593;
        const V t615 = t613 + t593;
        // complex block of 19, multiplier 2
        const V t616 = c[19] * t615;
        const V t617 = c[18] * t615;
        const V t618 = c[21] * t614;
        const V t619 = c[20] * t614;
        // real block of 3, multiplier 2
        const V t620 = t514 - t488;
        const V t621 = c[1] * t620;
        // complex block of 19, multiplier 2
        const V t622 = c[15] * t621;
        const V t623 = c[14] * t621;
        const V x0r = io.re(0);
        const V t624 = x0r + t380;
        // complex block of 19, multiplier 2
        const V x19r = io.re(19);
        const V t625 = x19r + t68;
        // complex block of 2
        const V t626 = t624 + t625;
        const V t627 = t624 - t625;
        // complex block of 19, multiplier 2
        const V x0i = io.im(0);
        const V t628 = x0i + t536;
        const V x19i = io.im(19);
        io.re(0, t626);
        io.re(19, t627);
        // complex block of 19, multiplier 2
        const V t629 = x19i + t224;
        // complex block of 2
        const V t630 = t628 + t629;
        io.im(0, t630);
        const V t631 = t628 - t629;
        io.im(19, t631);
        // complex block of 19, multiplier 2
        const V t632 = x0r - t385;
        // spectrum block of 2
        const V t633 = t632 - t586;
        const V t634 = t632 + t586;
        // complex block of 19, multiplier 2
        const V t635 = t584 + t622;
        const V t636 = t383 + t421;
        // complex block of 2
        const V t637 = t636 + t635;
        const V t638 = t636 - t635;
        // spectrum block of 3, multiplier 2
        const V t639 = t637 + t633;
        const V t640 = c[0] * t637;
        const V t641 = t633 - t640;
        // spectrum block of 3, multiplier 2
        const V t642 = t638 + t634;
        const V t643 = c[0] * t638;
        const V t644 = t634 - t643;
        // complex block of 19, multiplier 2
        const V t645 = t609 - t616;
        const V t646 = t417 - t410;
        // complex block of 2
        const V t647 = t646 + t645;
        const V t648 = t646 - t645;
        // complex block of 19, multiplier 2
        const V t649 = t408 - t415;
        const V t650 = t611 + t618;
        // complex block of 2
        const V t651 = t649 - t650;
        const V t652 = t649 + t650;
        // complex block of 3, multiplier 2
        const V t653 = t647 + t651;
        const V t654 = t647 - t651;
        // complex block of 3, multiplier 2
        const V t655 = t648 + t652;
        const V t656 = t648 - t652;
        // complex block of 19, multiplier 2
        const V t657 = t617 + t610;
        const V t658 = t418 + t411;
        // complex block of 2
        const V t659 = t657 - t658;
        const V t660 = t658 + t657;
        // complex block of 19, multiplier 2
        const V t661 = t416 + t409;
        const V t662 = t612 - t619;
        // complex block of 2
        const V t663 = t661 + t662;
        const V t664 = t662 - t661;
        // complex block of 3, multiplier 2
        const V t665 = t659 + t663;
        const V t666 = t659 - t663;
        // complex block of 3, multiplier 2
        const V t667 = t660 + t664;
        const V t668 = t664 - t660;
        // complex block of 19, multiplier 2
        const V t669 = t400 - t403;
        const V t670 = t601 - t604;
        // complex block of 2
        const V t671 = t669 + t670;
        const V t672 = t669 - t670;
        // complex block of 19, multiplier 2
        const V t673 = t404 + t401;
        const V t674 = t605 + t602;
        // complex block of 2
        const V t675 = t673 + t674;
        const V t676 = t673 - t674;
        // complex block of 3, multiplier 2
        const V t677 = t665 + t675;
        const V t678 = t653 + t671;
        const V t679 = c[0] * t665;
        const V t680 = t675 - t679;
        const V t681 = c[1] * t654;
        const V t682 = t680 + t681;
        const V t683 = t680 - t681;
        const V t684 = c[0] * t653;
        const V t685 = t671 - t684;
        const V t686 = c[1] * t666;
        const V t687 = t685 - t686;
        const V t688 = t685 + t686;
        // complex block of 3, multiplier 2
        const V t689 = t676 - t667;
        const V t690 = t655 + t672;
        const V t691 = c[0] * t667;
        const V t692 = t691 + t676;
        const V t693 = c[1] * t656;
        const V t694 = t692 + t693;
        const V t695 = t692 - t693;
        const V t696 = c[0] * t655;
        const V t697 = t672 - t696;
        const V t698 = c[1] * t668;
        const V t699 = t697 - t698;
        const V t700 = t697 + t698;
        // complex block of 19, multiplier 2
        const V t701 = t585 - t623;
        const V t702 = t422 - t384;
        // complex block of 2
        const V t703 = t702 - t701;
        const V t704 = t702 + t701;
        // spectrum block of 3, multiplier 2
        const V t705 = c[1] * t703;
        // spectrum block of 3, multiplier 2
        const V t706 = c[1] * t704;
        // complex block of 19, multiplier 2
        const V t707 = x19r - t73;
        // spectrum block of 2
        const V t708 = t707 - t274;
        const V t709 = t707 + t274;
        // complex block of 19, multiplier 2
        const V t710 = t272 + t310;
        const V t711 = t71 + t109;
        // complex block of 2
        const V t712 = t711 + t710;
        const V t713 = t711 - t710;
        // spectrum block of 3, multiplier 2
        const V t714 = t712 + t708;
        const V t715 = c[0] * t712;
        const V t716 = t708 - t715;
        // spectrum block of 3, multiplier 2
        const V t717 = t713 + t709;
        const V t718 = c[0] * t713;
        const V t719 = t709 - t718;
        // complex block of 19, multiplier 2
        const V t720 = t297 - t304;
        const V t721 = t105 - t98;
        // complex block of 2
        const V t722 = t721 + t720;
        const V t723 = t721 - t720;
        // complex block of 19, multiplier 2
        const V t724 = t96 - t103;
        const V t725 = t299 + t306;
        // complex block of 2
        const V t726 = t724 - t725;
        const V t727 = t724 + t725;
        // complex block of 3, multiplier 2
        const V t728 = t722 + t726;
        const V t729 = t722 - t726;
        // complex block of 3, multiplier 2
        const V t730 = t723 + t727;
        const V t731 = t723 - t727;
        // complex block of 19, multiplier 2
        const V t732 = t305 + t298;
        const V t733 = t106 + t99;
        // complex block of 2
        const V t734 = t732 - t733;
        const V t735 = t733 + t732;
        // complex block of 19, multiplier 2
        const V t736 = t104 + t97;
        const V t737 = t300 - t307;
        // complex block of 2
        const V t738 = t736 + t737;
        const V t739 = t737 - t736;
        // complex block of 3, multiplier 2
        const V t740 = t734 + t738;
        const V t741 = t734 - t738;
        // complex block of 3, multiplier 2
        const V t742 = t735 + t739;
        const V t743 = t739 - t735;
        // complex block of 19, multiplier 2
        const V t744 = t88 - t91;
        const V t745 = t289 - t292;
        // complex block of 2
        const V t746 = t744 + t745;
        const V t747 = t744 - t745;
        // complex block of 19, multiplier 2
        const V t748 = t92 + t89;
        const V t749 = t293 + t290;
        // complex block of 2
        const V t750 = t748 + t749;
        const V t751 = t748 - t749;
        // complex block of 3, multiplier 2
        const V t752 = t740 + t750;
        const V t753 = t728 + t746;
        const V t754 = c[0] * t740;
        const V t755 = t750 - t754;
        const V t756 = c[1] * t729;
        const V t757 = t755 + t756;
        const V t758 = t755 - t756;
        const V t759 = c[0] * t728;
        const V t760 = t746 - t759;
        const V t761 = c[1] * t741;
        const V t762 = t760 - t761;
        const V t763 = t760 + t761;
        // complex block of 3, multiplier 2
        const V t764 = t751 - t742;
        const V t765 = t730 + t747;
        const V t766 = c[0] * t742;
        const V t767 = t766 + t751;
        const V t768 = c[1] * t731;
        const V t769 = t767 + t768;
        const V t770 = t767 - t768;
        const V t771 = c[0] * t730;
        const V t772 = t747 - t771;
        const V t773 = c[1] * t743;
        const V t774 = t772 - t773;
        const V t775 = t772 + t773;
        // complex block of 19, multiplier 2
        const V t776 = t273 - t311;
        const V t777 = t110 - t72;
        // complex block of 2
        const V t778 = t777 - t776;
        const V t779 = t777 + t776;
        // spectrum block of 3, multiplier 2
        const V t780 = c[1] * t778;
        // spectrum block of 3, multiplier 2
        const V t781 = c[1] * t779;
        // spectrum block of 3, multiplier 2
        const V t782 = t641 - t705;
        // spectrum block of 9, multiplier 2
        const V t783 = c[5] * t682;
        const V t784 = c[4] * t687;
        const V t785 = t784 + t783;
        // spectrum block of 3, multiplier 2
        const V t786 = c[0] * t785;
        const V t787 = c[22] * t687;
        const V t788 = c[23] * t682;
        const V t789 = t787 - t788;
        // spectrum block of 3, multiplier 2
        const V t790 = t716 - t780;
        // spectrum block of 9, multiplier 2
        const V t791 = c[5] * t757;
        const V t792 = c[4] * t762;
        const V t793 = t792 + t791;
        // spectrum block of 3, multiplier 2
        const V t794 = c[0] * t793;
        const V t795 = c[22] * t762;
        const V t796 = c[23] * t757;
        const V t797 = t795 - t796;
        // spectrum block of 3, multiplier 2
        const V t798 = t782 - t785;
        // spectrum block of 3, multiplier 2
        const V t799 = t790 - t793;
        // complex block of 2
        const V t800 = t798 + t799;
        io.re(12, t800);
        const V t801 = t798 - t799;
        io.re(31, t801);
        // spectrum block of 3, multiplier 2
        const V t802 = t786 + t782;
        const V t803 = t802 - t789;
        const V t804 = t802 + t789;
        // spectrum block of 3, multiplier 2
        const V t805 = t794 + t790;
        const V t806 = t805 - t797;
        const V t807 = t805 + t797;
        // complex block of 2
        const V t808 = t803 + t806;
        io.re(8, t808);
        const V t809 = t803 - t806;
        io.re(27, t809);
        // complex block of 2
        const V t810 = t804 + t807;
        io.re(18, t810);
        const V t811 = t804 - t807;
        io.re(37, t811);
        // spectrum block of 3, multiplier 2
        const V t812 = t641 + t705;
        // spectrum block of 9, multiplier 2
        const V t813 = c[3] * t683;
        const V t814 = c[2] * t688;
        const V t815 = t814 - t813;
        // spectrum block of 3, multiplier 2
        const V t816 = c[0] * t815;
        const V t817 = c[24] * t683;
        const V t818 = c[25] * t688;
        const V t819 = t817 + t818;
        // spectrum block of 3, multiplier 2
        const V t820 = t716 + t780;
        // spectrum block of 9, multiplier 2
        const V t821 = c[3] * t758;
        const V t822 = c[2] * t763;
        const V t823 = t822 - t821;
        // spectrum block of 3, multiplier 2
        const V t824 = c[0] * t823;
        const V t825 = c[24] * t758;
        const V t826 = c[25] * t763;
        const V t827 = t825 + t826;
        // spectrum block of 3, multiplier 2
        const V t828 = t815 + t812;
        // spectrum block of 3, multiplier 2
        const V t829 = t823 + t820;
        // complex block of 2
        const V t830 = t828 + t829;
        io.re(10, t830);
        const V t831 = t828 - t829;
        io.re(29, t831);
        // spectrum block of 3, multiplier 2
        const V t832 = t812 - t816;
        const V t833 = t832 - t819;
        const V t834 = t832 + t819;
        // spectrum block of 3, multiplier 2
        const V t835 = t820 - t824;
        const V t836 = t835 - t827;
        const V t837 = t835 + t827;
        // complex block of 2
        const V t838 = t833 + t836;
        io.re(32, t838);
        const V t839 = t833 - t836;
        io.re(13, t839);
        // complex block of 2
        const V t840 = t834 + t837;
        io.re(34, t840);
        const V t841 = t834 - t837;
        io.re(15, t841);
        // spectrum block of 3, multiplier 2
        const V t842 = t678 + t639;
        // spectrum block of 3, multiplier 2
        const V t843 = t753 + t714;
        // complex block of 2
        const V t844 = t842 + t843;
        io.re(2, t844);
        const V t845 = t842 - t843;
        io.re(21, t845);
        // spectrum block of 3, multiplier 2
        const V t846 = c[0] * t678;
        const V t847 = t639 - t846;
        const V t848 = c[1] * t677;
        // spectrum block of 3, multiplier 2
        const V t849 = c[0] * t753;
        const V t850 = t714 - t849;
        const V t851 = c[1] * t752;
        // spectrum block of 3, multiplier 2
        const V t852 = t847 - t848;
        // spectrum block of 3, multiplier 2
        const V t853 = t850 - t851;
        // complex block of 2
        const V t854 = t852 + t853;
        io.re(14, t854);
        const V t855 = t852 - t853;
        io.re(33, t855);
        // spectrum block of 3, multiplier 2
        const V t856 = t847 + t848;
        // spectrum block of 3, multiplier 2
        const V t857 = t850 + t851;
        // complex block of 2
        const V t858 = t856 + t857;
        io.re(22, t858);
        const V t859 = t856 - t857;
        io.re(3, t859);
        // spectrum block of 3, multiplier 2
        const V t860 = t644 - t706;
        // spectrum block of 9, multiplier 2
        const V t861 = c[5] * t694;
        const V t862 = c[4] * t699;
        const V t863 = t862 + t861;
        // spectrum block of 3, multiplier 2
        const V t864 = c[0] * t863;
        const V t865 = c[22] * t699;
        const V t866 = c[23] * t694;
        const V t867 = t865 - t866;
        // spectrum block of 3, multiplier 2
        const V t868 = t719 - t781;
        // spectrum block of 9, multiplier 2
        const V t869 = c[5] * t769;
        const V t870 = c[4] * t774;
        const V t871 = t870 + t869;
        // spectrum block of 3, multiplier 2
        const V t872 = c[0] * t871;
        const V t873 = c[22] * t774;
        const V t874 = c[23] * t769;
        const V t875 = t873 - t874;
        // spectrum block of 3, multiplier 2
        const V t876 = t860 - t863;
        // spectrum block of 3, multiplier 2
        const V t877 = t868 - t871;
        // complex block of 2
        const V t878 = t876 + t877;
        io.re(26, t878);
        const V t879 = t876 - t877;
        io.re(7, t879);
        // spectrum block of 3, multiplier 2
        const V t880 = t864 + t860;
        const V t881 = t880 - t867;
        const V t882 = t880 + t867;
        // spectrum block of 3, multiplier 2
        const V t883 = t872 + t868;
        const V t884 = t883 - t875;
        const V t885 = t883 + t875;
        // complex block of 2
        const V t886 = t882 + t885;
        io.re(20, t886);
        const V t887 = t882 - t885;
        io.re(1, t887);
        // complex block of 2
        const V t888 = t881 + t884;
        io.re(30, t888);
        const V t889 = t881 - t884;
        io.re(11, t889);
        // spectrum block of 3, multiplier 2
        const V t890 = t644 + t706;
        // spectrum block of 9, multiplier 2
        const V t891 = c[3] * t695;
        const V t892 = c[2] * t700;
        const V t893 = t892 - t891;
        // spectrum block of 3, multiplier 2
        const V t894 = c[0] * t893;
        const V t895 = c[24] * t695;
        const V t896 = c[25] * t700;
        const V t897 = t895 + t896;
        // spectrum block of 3, multiplier 2
        const V t898 = t719 + t781;
        // spectrum block of 9, multiplier 2
        const V t899 = c[3] * t770;
        const V t900 = c[2] * t775;
        const V t901 = t900 - t899;
        // spectrum block of 3, multiplier 2
        const V t902 = c[0] * t901;
        const V t903 = c[24] * t770;
        const V t904 = c[25] * t775;
        const V t905 = t903 + t904;
        // spectrum block of 3, multiplier 2
        const V t906 = t893 + t890;
        // spectrum block of 3, multiplier 2
        const V t907 = t901 + t898;
        // complex block of 2
        const V t908 = t906 + t907;
        io.re(28, t908);
        const V t909 = t906 - t907;
        io.re(9, t909);
        // spectrum block of 3, multiplier 2
        const V t910 = t890 - t894;
        const V t911 = t910 - t897;
        const V t912 = t910 + t897;
        // spectrum block of 3, multiplier 2
        const V t913 = t898 - t902;
        const V t914 = t913 - t905;
        const V t915 = t913 + t905;
        // complex block of 2
        const V t916 = t912 + t915;
        io.re(4, t916);
        const V t917 = t912 - t915;
        io.re(23, t917);
        // complex block of 2
        const V t918 = t911 + t914;
        io.re(6, t918);
        const V t919 = t911 - t914;
        io.re(25, t919);
        // spectrum block of 3, multiplier 2
        const V t920 = t690 + t642;
        // spectrum block of 3, multiplier 2
        const V t921 = t765 + t717;
        // complex block of 2
        const V t922 = t920 + t921;
        io.re(36, t922);
        const V t923 = t920 - t921;
        io.re(17, t923);
        // spectrum block of 3, multiplier 2
        const V t924 = c[0] * t690;
        const V t925 = t642 - t924;
        const V t926 = c[1] * t689;
        // spectrum block of 3, multiplier 2
        const V t927 = c[0] * t765;
        const V t928 = t717 - t927;
        const V t929 = c[1] * t764;
        // spectrum block of 3, multiplier 2
        const V t930 = t925 - t926;
        // spectrum block of 3, multiplier 2
        const V t931 = t928 - t929;
        // complex block of 2
        const V t932 = t930 + t931;
        io.re(24, t932);
        const V t933 = t930 - t931;
        io.re(5, t933);
        // spectrum block of 3, multiplier 2
        const V t934 = t925 + t926;
        // spectrum block of 3, multiplier 2
        const V t935 = t928 + t929;
        // complex block of 2
        const V t936 = t934 + t935;
        io.re(16, t936);
        const V t937 = t934 - t935;
        io.re(35, t937);
        // complex block of 19, multiplier 2
        const V t938 = x0i - t541;
        // spectrum block of 2
        const V t939 = t938 + t430;
        const V t940 = t938 - t430;
        // complex block of 19, multiplier 2
        const V t941 = t428 + t466;
        const V t942 = t539 + t577;
        // complex block of 2
        const V t943 = t942 - t941;
        const V t944 = t942 + t941;
        // spectrum block of 3, multiplier 2
        const V t945 = t943 + t939;
        const V t946 = c[0] * t943;
        const V t947 = t939 - t946;
        // spectrum block of 3, multiplier 2
        const V t948 = t944 + t940;
        const V t949 = c[0] * t944;
        const V t950 = t940 - t949;
        // complex block of 19, multiplier 2
        const V t951 = t460 - t453;
        const V t952 = t573 - t566;
        // complex block of 2
        const V t953 = t952 + t951;
        const V t954 = t952 - t951;
        // complex block of 19, multiplier 2
        const V t955 = t564 - t571;
        const V t956 = t455 + t462;
        // complex block of 2
        const V t957 = t955 + t956;
        const V t958 = t955 - t956;
        // complex block of 3, multiplier 2
        const V t959 = t953 + t957;
        const V t960 = t953 - t957;
        // complex block of 3, multiplier 2
        const V t961 = t954 + t958;
        const V t962 = t954 - t958;
        // complex block of 19, multiplier 2
        const V t963 = t461 + t454;
        const V t964 = t574 + t567;
        // complex block of 2
        const V t965 = t964 + t963;
        const V t966 = t963 - t964;
        // complex block of 19, multiplier 2
        const V t967 = t572 + t565;
        const V t968 = t463 - t456;
        // complex block of 2
        const V t969 = t967 + t968;
        const V t970 = t968 - t967;
        // complex block of 3, multiplier 2
        const V t971 = t969 - t965;
        const V t972 = t965 + t969;
        // complex block of 3, multiplier 2
        const V t973 = t966 - t970;
        const V t974 = t966 + t970;
        // complex block of 19, multiplier 2
        const V t975 = t556 - t559;
        const V t976 = t448 - t445;
        // complex block of 2
        const V t977 = t975 + t976;
        const V t978 = t975 - t976;
        // complex block of 19, multiplier 2
        const V t979 = t560 + t557;
        const V t980 = t449 + t446;
        // complex block of 2
        const V t981 = t979 - t980;
        const V t982 = t979 + t980;
        // complex block of 3, multiplier 2
        const V t983 = t971 + t981;
        const V t984 = t959 + t977;
        const V t985 = c[0] * t971;
        const V t986 = t981 - t985;
        const V t987 = c[1] * t960;
        const V t988 = t986 + t987;
        const V t989 = t986 - t987;
        const V t990 = c[0] * t959;
        const V t991 = t977 - t990;
        const V t992 = c[1] * t972;
        const V t993 = t991 + t992;
        const V t994 = t991 - t992;
        // complex block of 3, multiplier 2
        const V t995 = t973 + t982;
        const V t996 = t961 + t978;
        const V t997 = c[0] * t973;
        const V t998 = t982 - t997;
        const V t999 = c[1] * t962;
        const V t1000 = t998 + t999;
        const V t1001 = t998 - t999;
        const V t1002 = c[0] * t961;
        const V t1003 = t978 - t1002;
        const V t1004 = c[1] * t974;
        const V t1005 = t1003 - t1004;
        const V t1006 = t1003 + t1004;
        // complex block of 19, multiplier 2
        const V t1007 = t467 - t429;
        const V t1008 = t578 - t540;
        // complex block of 2
        const V t1009 = t1008 - t1007;
        const V t1010 = t1008 + t1007;
        // spectrum block of 3, multiplier 2
        const V t1011 = c[1] * t1009;
        // spectrum block of 3, multiplier 2
        const V t1012 = c[1] * t1010;
        // complex block of 19, multiplier 2
        const V t1013 = x19i - t229;
        // spectrum block of 2
        const V t1014 = t1013 + t118;
        const V t1015 = t1013 - t118;
        // complex block of 19, multiplier 2
        const V t1016 = t116 + t154;
        const V t1017 = t227 + t265;
        // complex block of 2
        const V t1018 = t1017 - t1016;
        const V t1019 = t1017 + t1016;
        // spectrum block of 3, multiplier 2
        const V t1020 = t1018 + t1014;
        const V t1021 = c[0] * t1018;
        const V t1022 = t1014 - t1021;
        // spectrum block of 3, multiplier 2
        const V t1023 = t1019 + t1015;
        const V t1024 = c[0] * t1019;
        const V t1025 = t1015 - t1024;
        // complex block of 19, multiplier 2
        const V t1026 = t148 - t141;
        const V t1027 = t261 - t254;
        // complex block of 2
        const V t1028 = t1027 + t1026;
        const V t1029 = t1027 - t1026;
        // complex block of 19, multiplier 2
        const V t1030 = t252 - t259;
        const V t1031 = t143 + t150;
        // complex block of 2
        const V t1032 = t1030 + t1031;
        const V t1033 = t1030 - t1031;
        // complex block of 3, multiplier 2
        const V t1034 = t1028 + t1032;
        const V t1035 = t1028 - t1032;
        // complex block of 3, multiplier 2
        const V t1036 = t1029 + t1033;
        const V t1037 = t1029 - t1033;
        // complex block of 19, multiplier 2
        const V t1038 = t149 + t142;
        const V t1039 = t262 + t255;
        // complex block of 2
        const V t1040 = t1039 + t1038;
        const V t1041 = t1038 - t1039;
        // complex block of 19, multiplier 2
        const V t1042 = t260 + t253;
        const V t1043 = t151 - t144;
        // complex block of 2
        const V t1044 = t1042 + t1043;
        const V t1045 = t1043 - t1042;
        // complex block of 3, multiplier 2
        const V t1046 = t1044 - t1040;
        const V t1047 = t1040 + t1044;
        // complex block of 3, multiplier 2
        const V t1048 = t1041 - t1045;
        const V t1049 = t1041 + t1045;
        // complex block of 19, multiplier 2
        const V t1050 = t244 - t247;
        const V t1051 = t136 - t133;
        // complex block of 2
        const V t1052 = t1050 + t1051;
        const V t1053 = t1050 - t1051;
        // complex block of 19, multiplier 2
        const V t1054 = t248 + t245;
        const V t1055 = t137 + t134;
        // complex block of 2
        const V t1056 = t1054 - t1055;
        const V t1057 = t1054 + t1055;
        // complex block of 3, multiplier 2
        const V t1058 = t1046 + t1056;
        const V t1059 = t1034 + t1052;
        const V t1060 = c[0] * t1046;
        const V t1061 = t1056 - t1060;
        const V t1062 = c[1] * t1035;
        const V t1063 = t1061 + t1062;
        const V t1064 = t1061 - t1062;
        const V t1065 = c[0] * t1034;
        const V t1066 = t1052 - t1065;
        const V t1067 = c[1] * t1047;
        const V t1068 = t1066 + t1067;
        const V t1069 = t1066 - t1067;
        // complex block of 3, multiplier 2
        const V t1070 = t1048 + t1057;
        const V t1071 = t1036 + t1053;
        const V t1072 = c[0] * t1048;
        const V t1073 = t1057 - t1072;
        const V t1074 = c[1] * t1037;
        const V t1075 = t1073 + t1074;
        const V t1076 = t1073 - t1074;
        const V t1077 = c[0] * t1036;
        const V t1078 = t1053 - t1077;
        const V t1079 = c[1] * t1049;
        const V t1080 = t1078 - t1079;
        const V t1081 = t1078 + t1079;
        // complex block of 19, multiplier 2
        const V t1082 = t155 - t117;
        const V t1083 = t266 - t228;
        // complex block of 2
        const V t1084 = t1083 - t1082;
        const V t1085 = t1083 + t1082;
        // spectrum block of 3, multiplier 2
        const V t1086 = c[1] * t1084;
        // spectrum block of 3, multiplier 2
        const V t1087 = c[1] * t1085;
        // spectrum block of 3, multiplier 2
        const V t1088 = t947 - t1011;
        // spectrum block of 9, multiplier 2
        const V t1089 = c[5] * t988;
        const V t1090 = c[4] * t993;
        const V t1091 = t1090 + t1089;
        // spectrum block of 3, multiplier 2
        const V t1092 = c[0] * t1091;
        const V t1093 = c[22] * t993;
        const V t1094 = c[23] * t988;
        const V t1095 = t1093 - t1094;
        // spectrum block of 3, multiplier 2
        const V t1096 = t1022 - t1086;
        // spectrum block of 9, multiplier 2
        const V t1097 = c[5] * t1063;
        const V t1098 = c[4] * t1068;
        const V t1099 = t1098 + t1097;
        // spectrum block of 3, multiplier 2
        const V t1100 = c[0] * t1099;
        const V t1101 = c[22] * t1068;
        const V t1102 = c[23] * t1063;
        const V t1103 = t1101 - t1102;
        // spectrum block of 3, multiplier 2
        const V t1104 = t1088 - t1091;
        // spectrum block of 3, multiplier 2
        const V t1105 = t1096 - t1099;
        // complex block of 2
        const V t1106 = t1104 + t1105;
        io.im(12, t1106);
        const V t1107 = t1104 - t1105;
        io.im(31, t1107);
        // spectrum block of 3, multiplier 2
        const V t1108 = t1092 + t1088;
        const V t1109 = t1108 - t1095;
        const V t1110 = t1108 + t1095;
        // spectrum block of 3, multiplier 2
        const V t1111 = t1100 + t1096;
        const V t1112 = t1111 - t1103;
        const V t1113 = t1111 + t1103;
        // complex block of 2
        const V t1114 = t1109 + t1112;
        io.im(8, t1114);
        const V t1115 = t1109 - t1112;
        io.im(27, t1115);
        // complex block of 2
        const V t1116 = t1110 + t1113;
        io.im(18, t1116);
        const V t1117 = t1110 - t1113;
        io.im(37, t1117);
        // spectrum block of 3, multiplier 2
        const V t1118 = t947 + t1011;
        // spectrum block of 9, multiplier 2
        const V t1119 = c[3] * t989;
        const V t1120 = c[2] * t994;
        const V t1121 = t1120 - t1119;
        // spectrum block of 3, multiplier 2
        const V t1122 = c[0] * t1121;
        const V t1123 = c[24] * t989;
        const V t1124 = c[25] * t994;
        const V t1125 = t1123 + t1124;
        // spectrum block of 3, multiplier 2
        const V t1126 = t1022 + t1086;
        // spectrum block of 9, multiplier 2
        const V t1127 = c[3] * t1064;
        const V t1128 = c[2] * t1069;
        const V t1129 = t1128 - t1127;
        // spectrum block of 3, multiplier 2
        const V t1130 = c[0] * t1129;
        const V t1131 = c[24] * t1064;
        const V t1132 = c[25] * t1069;
        const V t1133 = t1131 + t1132;
        // spectrum block of 3, multiplier 2
        const V t1134 = t1121 + t1118;
        // spectrum block of 3, multiplier 2
        const V t1135 = t1129 + t1126;
        // complex block of 2
        const V t1136 = t1134 + t1135;
        io.im(10, t1136);
        const V t1137 = t1134 - t1135;
        io.im(29, t1137);
        // spectrum block of 3, multiplier 2
        const V t1138 = t1118 - t1122;
        const V t1139 = t1138 - t1125;
        const V t1140 = t1138 + t1125;
        // spectrum block of 3, multiplier 2
        const V t1141 = t1126 - t1130;
        const V t1142 = t1141 - t1133;
        const V t1143 = t1141 + t1133;
        // complex block of 2
        const V t1144 = t1139 + t1142;
        io.im(32, t1144);
        const V t1145 = t1139 - t1142;
        io.im(13, t1145);
        // complex block of 2
        const V t1146 = t1140 + t1143;
        io.im(34, t1146);
        const V t1147 = t1140 - t1143;
        io.im(15, t1147);
        // spectrum block of 3, multiplier 2
        const V t1148 = t984 + t945;
        // spectrum block of 3, multiplier 2
        const V t1149 = t1059 + t1020;
        // complex block of 2
        const V t1150 = t1148 + t1149;
        io.im(2, t1150);
        const V t1151 = t1148 - t1149;
        io.im(21, t1151);
        // spectrum block of 3, multiplier 2
        const V t1152 = c[0] * t984;
        const V t1153 = t945 - t1152;
        const V t1154 = c[1] * t983;
        // spectrum block of 3, multiplier 2
        const V t1155 = c[0] * t1059;
        const V t1156 = t1020 - t1155;
        const V t1157 = c[1] * t1058;
        // spectrum block of 3, multiplier 2
        const V t1158 = t1153 - t1154;
        // spectrum block of 3, multiplier 2
        const V t1159 = t1156 - t1157;
        // complex block of 2
        const V t1160 = t1158 + t1159;
        io.im(14, t1160);
        const V t1161 = t1158 - t1159;
        io.im(33, t1161);
        // spectrum block of 3, multiplier 2
        const V t1162 = t1153 + t1154;
        // spectrum block of 3, multiplier 2
        const V t1163 = t1156 + t1157;
        // complex block of 2
        const V t1164 = t1162 + t1163;
        io.im(22, t1164);
        const V t1165 = t1162 - t1163;
        io.im(3, t1165);
        // spectrum block of 3, multiplier 2
        const V t1166 = t950 - t1012;
        // spectrum block of 9, multiplier 2
        const V t1167 = c[5] * t1000;
        const V t1168 = c[4] * t1005;
        const V t1169 = t1168 + t1167;
        // spectrum block of 3, multiplier 2
        const V t1170 = c[0] * t1169;
        const V t1171 = c[22] * t1005;
        const V t1172 = c[23] * t1000;
        const V t1173 = t1171 - t1172;
        // spectrum block of 3, multiplier 2
        const V t1174 = t1025 - t1087;
        // spectrum block of 9, multiplier 2
        const V t1175 = c[5] * t1075;
        const V t1176 = c[4] * t1080;
        const V t1177 = t1176 + t1175;
        // spectrum block of 3, multiplier 2
        const V t1178 = c[0] * t1177;
        const V t1179 = c[22] * t1080;
        const V t1180 = c[23] * t1075;
        const V t1181 = t1179 - t1180;
        // spectrum block of 3, multiplier 2
        const V t1182 = t1166 - t1169;
        // spectrum block of 3, multiplier 2
        const V t1183 = t1174 - t1177;
        // complex block of 2
        const V t1184 = t1182 + t1183;
        io.im(26, t1184);
        const V t1185 = t1182 - t1183;
        io.im(7, t1185);
        // spectrum block of 3, multiplier 2
        const V t1186 = t1170 + t1166;
        const V t1187 = t1186 - t1173;
        const V t1188 = t1186 + t1173;
        // spectrum block of 3, multiplier 2
        const V t1189 = t1178 + t1174;
        const V t1190 = t1189 - t1181;
        const V t1191 = t1189 + t1181;
        // complex block of 2
        const V t1192 = t1188 + t1191;
        io.im(20, t1192);
        const V t1193 = t1188 - t1191;
        io.im(1, t1193);
        // complex block of 2
        const V t1194 = t1187 + t1190;
        io.im(30, t1194);
        const V t1195 = t1187 - t1190;
        io.im(11, t1195);
        // spectrum block of 3, multiplier 2
        const V t1196 = t950 + t1012;
        // spectrum block of 9, multiplier 2
        const V t1197 = c[3] * t1001;
        const V t1198 = c[2] * t1006;
        const V t1199 = t1198 - t1197;
        // spectrum block of 3, multiplier 2
        const V t1200 = c[0] * t1199;
        const V t1201 = c[24] * t1001;
        const V t1202 = c[25] * t1006;
        const V t1203 = t1201 + t1202;
        // spectrum block of 3, multiplier 2
        const V t1204 = t1025 + t1087;
        // spectrum block of 9, multiplier 2
        const V t1205 = c[3] * t1076;
        const V t1206 = c[2] * t1081;
        const V t1207 = t1206 - t1205;
        // spectrum block of 3, multiplier 2
        const V t1208 = c[0] * t1207;
        const V t1209 = c[24] * t1076;
        const V t1210 = c[25] * t1081;
        const V t1211 = t1209 + t1210;
        // spectrum block of 3, multiplier 2
        const V t1212 = t1199 + t1196;
        // spectrum block of 3, multiplier 2
        const V t1213 = t1207 + t1204;
        // complex block of 2
        const V t1214 = t1212 + t1213;
        io.im(28, t1214);
        const V t1215 = t1212 - t1213;
        io.im(9, t1215);
        // spectrum block of 3, multiplier 2
        const V t1216 = t1196 - t1200;
        const V t1217 = t1216 - t1203;
        const V t1218 = t1216 + t1203;
        // spectrum block of 3, multiplier 2
        const V t1219 = t1204 - t1208;
        const V t1220 = t1219 - t1211;
        const V t1221 = t1219 + t1211;
        // complex block of 2
        const V t1222 = t1218 + t1221;
        io.im(4, t1222);
        const V t1223 = t1218 - t1221;
        io.im(23, t1223);
        // complex block of 2
        const V t1224 = t1217 + t1220;
        io.im(6, t1224);
        const V t1225 = t1217 - t1220;
        io.im(25, t1225);
        // spectrum block of 3, multiplier 2
        const V t1226 = t996 + t948;
        // spectrum block of 3, multiplier 2
        const V t1227 = t1071 + t1023;
        // complex block of 2
        const V t1228 = t1226 + t1227;
        io.im(36, t1228);
        const V t1229 = t1226 - t1227;
        io.im(17, t1229);
        // spectrum block of 3, multiplier 2
        const V t1230 = c[0] * t996;
        const V t1231 = t948 - t1230;
        const V t1232 = c[1] * t995;
        // spectrum block of 3, multiplier 2
        const V t1233 = c[0] * t1071;
        const V t1234 = t1023 - t1233;
        const V t1235 = c[1] * t1070;
        // spectrum block of 3, multiplier 2
        const V t1236 = t1231 - t1232;
        // spectrum block of 3, multiplier 2
        const V t1237 = t1234 - t1235;
        // complex block of 2
        const V t1238 = t1236 + t1237;
        io.im(24, t1238);
        const V t1239 = t1236 - t1237;
        io.im(5, t1239);
        // spectrum block of 3, multiplier 2
        const V t1240 = t1231 + t1232;
        // spectrum block of 3, multiplier 2
        const V t1241 = t1234 + t1235;
        // complex block of 2
        const V t1242 = t1240 + t1241;
        io.im(16, t1242);
        const V t1243 = t1240 - t1241;
        io.im(35, t1243);
    }
};

}  // namespace zulg
