// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 26.
// Complex DFT of 26 points, prime-factor, order 13, 2.
// 202 additions, 202 subtractions, 144 multiplications (196 with `scale`); 18 constants; 96 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<26> {
    static constexpr int steps = 600;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5751407294740031,  // c[2]: Q[3] of 13
        0.1741386011521359,  // c[3]: -P[3] of 13
        0.5279915321544383,  // c[4]: Q[1] of 13
        0.2869425954512852,  // c[5]: P[1] of 13
        0.280148395734785,  // c[6]: -Q[5] of 13
        0.5316276774946329,  // c[7]: P[5] of 13
        0.42218506973345193,  // c[8]: -Q[4] of 13
        0.37034194807495624,  // c[9]: sin 2 pi 1/3 times P[4] of 13
        0.08333333333333333,  // c[10]: 1/12
        0.42763404682657274,  // c[11]: P[4] of 13
        0.29376443202296976,  // c[12]: -Q[2] of 13
        0.45399358717056765,  // c[13]: sin 2 pi 1/3 times P[2] of 13
        0.3004626062886658,  // c[14]: -beta of 13
        0.5242266395265821,  // c[15]: P[2] of 13
        0.36562299548767413,  // c[16]: sin 2 pi 1/3 times -Q[4] of 13
        0.25440746086019866,  // c[17]: sin 2 pi 1/3 times -Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x25r = io.re(25);
        const V t0 = x1r + x25r;
        const V t1 = x1r - x25r;
        // real block of 2
        const V x5r = io.re(5);
        const V x21r = io.re(21);
        const V t2 = x5r + x21r;
        const V t3 = x5r - x21r;
        // real block of 2
        const V x19r = io.re(19);
        const V x7r = io.re(7);
        const V t4 = x19r + x7r;
        const V t5 = x19r - x7r;
        // real block of 2
        const V x9r = io.re(9);
        const V x17r = io.re(17);
        const V t6 = x9r + x17r;
        const V t7 = x9r - x17r;
        // real block of 2
        const V t8 = t4 + t6;
        // real block of 2
        const V t9 = t2 + t0;
        // real block of 3
        const V t10 = t8 + t9;
        // real block of 2
        const V t11 = t4 - t6;
        // real block of 2
        const V t12 = t2 - t0;
        // real block of 3
        const V t13 = t11 + t12;
        // complex block of 3
        const V t14 = t5 + t3;
        const V t15 = c[0] * t14;
        const V t16 = t7 + t1;
        const V t17 = c[0] * t16;
        const V t18 = t5 - t3;
        const V t19 = t7 - t1;
        // real block of 2
        const V x3r = io.re(3);
        const V x23r = io.re(23);
        const V t20 = x3r + x23r;
        // real block of 2
        const V x15r = io.re(15);
        const V x11r = io.re(11);
        const V t21 = x15r + x11r;
        const V t22 = x15r - x11r;
        // real block of 2
        const V t23 = x3r - x23r;
        // real block of 2
        const V t24 = t21 + t20;
        const V t25 = t21 - t20;
        // real block of 3
        const V t26 = t8 - t9;
        const V t27 = c[1] * t26;
        // complex block of 13, multiplier 2
        const V t28 = c[8] * t27;
        // spectrum block of 3
        const V t29 = c[9] * t27;
        // real block of 3
        const V t30 = t10 + t24;
        // complex block of 13, multiplier 2
        const V t31 = c[10] * t30;
        // real block of 3
        const V t32 = c[0] * t10;
        const V t33 = t24 - t32;
        // complex block of 13, multiplier 2
        const V t34 = c[11] * t33;
        // complex block of 3
        const V t35 = t14 + t22;
        // complex block of 13, multiplier 2
        const V t36 = c[2] * t35;
        const V t37 = c[3] * t35;
        // complex block of 3
        const V t38 = t16 + t23;
        // complex block of 13, multiplier 2
        const V t39 = c[3] * t38;
        const V t40 = c[2] * t38;
        // complex block of 3
        const V t41 = t22 - t15;
        const V t42 = c[1] * t19;
        const V t43 = t41 + t42;
        const V t44 = t41 - t42;
        // complex block of 13, multiplier 2
        const V t45 = c[4] * t44;
        const V t46 = c[5] * t44;
        const V t47 = c[6] * t43;
        const V t48 = c[7] * t43;
        // complex block of 3
        const V t49 = t23 - t17;
        const V t50 = c[1] * t18;
        const V t51 = t49 - t50;
        const V t52 = t49 + t50;
        // complex block of 13, multiplier 2
        const V t53 = c[5] * t52;
        const V t54 = c[4] * t52;
        const V t55 = c[7] * t51;
        const V t56 = c[6] * t51;
        // real block of 3
        const V t57 = t11 - t12;
        const V t58 = c[1] * t57;
        // complex block of 13, multiplier 2
        const V t59 = c[12] * t58;
        // spectrum block of 3
        const V t60 = c[13] * t58;
        // real block of 3
        const V t61 = t13 + t25;
        // complex block of 13, multiplier 2
        const V t62 = c[14] * t61;
        // real block of 3
        const V t63 = c[0] * t13;
        const V t64 = t25 - t63;
        // complex block of 13, multiplier 2
        const V t65 = c[15] * t64;
        // real block of 2
        const V x1i = io.im(1);
        const V x25i = io.im(25);
        const V t66 = x1i + x25i;
        const V t67 = x1i - x25i;
        // real block of 2
        const V x5i = io.im(5);
        const V x21i = io.im(21);
        const V t68 = x5i + x21i;
        const V t69 = x5i - x21i;
        // real block of 2
        const V x19i = io.im(19);
        const V x7i = io.im(7);
        const V t70 = x19i + x7i;
        const V t71 = x19i - x7i;
        // real block of 2
        const V x9i = io.im(9);
        const V x17i = io.im(17);
        const V t72 = x9i + x17i;
        const V t73 = x9i - x17i;
        // real block of 2
        const V t74 = t70 + t72;
        // real block of 2
        const V t75 = t68 + t66;
        // real block of 3
        const V t76 = t74 + t75;
        // real block of 2
        const V t77 = t70 - t72;
        // real block of 2
        const V t78 = t68 - t66;
        // real block of 3
        const V t79 = t77 + t78;
        // complex block of 3
        const V t80 = t71 + t69;
        const V t81 = c[0] * t80;
        const V t82 = t73 + t67;
        const V t83 = c[0] * t82;
        const V t84 = t71 - t69;
        const V t85 = t73 - t67;
        // real block of 2
        const V x3i = io.im(3);
        const V x23i = io.im(23);
        const V t86 = x3i + x23i;
        // real block of 2
        const V x15i = io.im(15);
        const V x11i = io.im(11);
        const V t87 = x15i + x11i;
        const V t88 = x15i - x11i;
        // real block of 2
        const V t89 = x3i - x23i;
        // real block of 2
        const V t90 = t87 + t86;
        const V t91 = t87 - t86;
        // real block of 3
        const V t92 = t74 - t75;
        const V t93 = c[1] * t92;
        // complex block of 13, multiplier 2
        const V t94 = c[8] * t93;
        // spectrum block of 3
        const V t95 = c[9] * t93;
        // real block of 3
        const V t96 = t76 + t90;
        // complex block of 13, multiplier 2
        const V t97 = c[10] * t96;
        // real block of 3
        const V t98 = c[0] * t76;
        const V t99 = t90 - t98;
        // complex block of 13, multiplier 2
        const V t100 = c[11] * t99;
        // complex block of 3
        const V t101 = t80 + t88;
        // complex block of 13, multiplier 2
        const V t102 = c[2] * t101;
        const V t103 = c[3] * t101;
        // complex block of 3
        const V t104 = t82 + t89;
        // complex block of 13, multiplier 2
        const V t105 = c[3] * t104;
        const V t106 = c[2] * t104;
        // complex block of 3
        const V t107 = t88 - t81;
        const V t108 = c[1] * t85;
        const V t109 = t107 + t108;
        const V t110 = t107 - t108;
        // complex block of 13, multiplier 2
        const V t111 = c[4] * t110;
        const V t112 = c[5] * t110;
        const V t113 = c[6] * t109;
        const V t114 = c[7] * t109;
        // complex block of 3
        const V t115 = t89 - t83;
        const V t116 = c[1] * t84;
        const V t117 = t115 - t116;
        const V t118 = t115 + t116;
        // complex block of 13, multiplier 2
        const V t119 = c[5] * t118;
        const V t120 = c[4] * t118;
        const V t121 = c[7] * t117;
        const V t122 = c[6] * t117;
        // real block of 3
        const V t123 = t77 - t78;
        const V t124 = c[1] * t123;
        // complex block of 13, multiplier 2
        const V t125 = c[12] * t124;
        // spectrum block of 3
        const V t126 = c[13] * t124;
        // real block of 3
        const V t127 = t79 + t91;
        // complex block of 13, multiplier 2
        const V t128 = c[14] * t127;
        // real block of 3
        const V t129 = c[0] * t79;
        const V t130 = t91 - t129;
        // complex block of 13, multiplier 2
        const V t131 = c[15] * t130;
        // real block of 2
        const V x2r = io.re(2);
        const V x24r = io.re(24);
        const V t132 = x2r + x24r;
        // real block of 2
        const V x16r = io.re(16);
        const V x10r = io.re(10);
        const V t133 = x16r + x10r;
        // real block of 2
        const V t134 = x2r - x24r;
        // real block of 2
        const V t135 = x16r - x10r;
        // real block of 2
        const V t136 = t132 + t133;
        const V t137 = t132 - t133;
        // real block of 2
        const V x22r = io.re(22);
        const V x4r = io.re(4);
        const V t138 = x22r + x4r;
        const V t139 = x22r - x4r;
        // real block of 2
        const V x6r = io.re(6);
        const V x20r = io.re(20);
        const V t140 = x6r + x20r;
        const V t141 = x6r - x20r;
        // real block of 2
        const V x18r = io.re(18);
        const V x8r = io.re(8);
        const V t142 = x18r + x8r;
        const V t143 = x18r - x8r;
        // real block of 2
        const V x14r = io.re(14);
        const V x12r = io.re(12);
        const V t144 = x14r + x12r;
        const V t145 = x14r - x12r;
        // real block of 2
        const V t146 = t140 + t138;
        // real block of 2
        const V t147 = t142 + t144;
        // real block of 3
        const V t148 = t146 + t147;
        // real block of 2
        const V t149 = t140 - t138;
        // real block of 2
        const V t150 = t142 - t144;
        // real block of 3
        const V t151 = t149 + t150;
        // complex block of 3
        const V t152 = t141 + t143;
        const V t153 = c[0] * t152;
        const V t154 = t139 + t145;
        const V t155 = c[0] * t154;
        const V t156 = t141 - t143;
        const V t157 = t139 - t145;
        // real block of 3
        const V t158 = t146 - t147;
        const V t159 = c[1] * t158;
        // complex block of 13, multiplier 2
        const V t160 = c[8] * t159;
        // spectrum block of 3
        const V t161 = c[9] * t159;
        // real block of 3
        const V t162 = t148 + t136;
        // complex block of 13, multiplier 2
        const V t163 = c[10] * t162;
        // real block of 3
        const V t164 = c[0] * t148;
        const V t165 = t136 - t164;
        // complex block of 13, multiplier 2
        const V t166 = c[11] * t165;
        // complex block of 3
        const V t167 = t152 + t134;
        // complex block of 13, multiplier 2
        const V t168 = c[2] * t167;
        const V t169 = c[3] * t167;
        // complex block of 3
        const V t170 = t154 + t135;
        // complex block of 13, multiplier 2
        const V t171 = c[3] * t170;
        const V t172 = c[2] * t170;
        // complex block of 3
        const V t173 = t134 - t153;
        const V t174 = c[1] * t157;
        const V t175 = t173 + t174;
        const V t176 = t173 - t174;
        // complex block of 13, multiplier 2
        const V t177 = c[4] * t176;
        const V t178 = c[5] * t176;
        const V t179 = c[6] * t175;
        const V t180 = c[7] * t175;
        // complex block of 3
        const V t181 = t135 - t155;
        const V t182 = c[1] * t156;
        const V t183 = t181 - t182;
        const V t184 = t181 + t182;
        // complex block of 13, multiplier 2
        const V t185 = c[5] * t184;
        const V t186 = c[4] * t184;
        const V t187 = c[7] * t183;
        const V t188 = c[6] * t183;
        // real block of 3
        const V t189 = t149 - t150;
        const V t190 = c[1] * t189;
        // complex block of 13, multiplier 2
        const V t191 = c[12] * t190;
        // spectrum block of 3
        const V t192 = c[13] * t190;
        // real block of 3
        const V t193 = t151 + t137;
        // complex block of 13, multiplier 2
        const V t194 = c[14] * t193;
        // real block of 3
        const V t195 = c[0] * t151;
        const V t196 = t137 - t195;
        // complex block of 13, multiplier 2
        const V t197 = c[15] * t196;
        // real block of 2
        const V x2i = io.im(2);
        const V x24i = io.im(24);
        const V t198 = x2i + x24i;
        // real block of 2
        const V x16i = io.im(16);
        const V x10i = io.im(10);
        const V t199 = x16i + x10i;
        // real block of 2
        const V t200 = x2i - x24i;
        // real block of 2
        const V t201 = x16i - x10i;
        // real block of 2
        const V t202 = t198 + t199;
        const V t203 = t198 - t199;
        // real block of 2
        const V x22i = io.im(22);
        const V x4i = io.im(4);
        const V t204 = x22i + x4i;
        const V t205 = x22i - x4i;
        // real block of 2
        const V x6i = io.im(6);
        const V x20i = io.im(20);
        const V t206 = x6i + x20i;
        const V t207 = x6i - x20i;
        // real block of 2
        const V x18i = io.im(18);
        const V x8i = io.im(8);
        const V t208 = x18i + x8i;
        const V t209 = x18i - x8i;
        // real block of 2
        const V x14i = io.im(14);
        const V x12i = io.im(12);
        const V t210 = x14i + x12i;
        const V t211 = x14i - x12i;
        // real block of 2
        const V t212 = t206 + t204;
        // real block of 2
        const V t213 = t208 + t210;
        // real block of 3
        const V t214 = t212 + t213;
        // real block of 2
        const V t215 = t206 - t204;
        // real block of 2
        const V t216 = t208 - t210;
        // real block of 3
        const V t217 = t215 + t216;
        // complex block of 3
        const V t218 = t207 + t209;
        const V t219 = c[0] * t218;
        const V t220 = t205 + t211;
        const V t221 = c[0] * t220;
        const V t222 = t207 - t209;
        const V t223 = t205 - t211;
        // real block of 3
        const V t224 = t212 - t213;
        const V t225 = c[1] * t224;
        // complex block of 13, multiplier 2
        const V t226 = c[8] * t225;
        // spectrum block of 3
        const V t227 = c[9] * t225;
        // real block of 3
        const V t228 = t214 + t202;
        // complex block of 13, multiplier 2
        const V t229 = c[10] * t228;
        // real block of 3
        const V t230 = c[0] * t214;
        const V t231 = t202 - t230;
        // complex block of 13, multiplier 2
        const V t232 = c[11] * t231;
        // complex block of 3
        const V t233 = t218 + t200;
        // complex block of 13, multiplier 2
        const V t234 = c[2] * t233;
        const V t235 = c[3] * t233;
        // complex block of 3
        const V t236 = t220 + t201;
        // complex block of 13, multiplier 2
        const V t237 = c[3] * t236;
        const V t238 = c[2] * t236;
        // complex block of 3
        const V t239 = t200 - t219;
        const V t240 = c[1] * t223;
        const V t241 = t239 + t240;
        const V t242 = t239 - t240;
        // complex block of 13, multiplier 2
        const V t243 = c[4] * t242;
        const V t244 = c[5] * t242;
        const V t245 = c[6] * t241;
        const V t246 = c[7] * t241;
        // complex block of 3
        const V t247 = t201 - t221;
        const V t248 = c[1] * t222;
        const V t249 = t247 - t248;
        const V t250 = t247 + t248;
        // complex block of 13, multiplier 2
        const V t251 = c[5] * t250;
        const V t252 = c[4] * t250;
        const V t253 = c[7] * t249;
        const V t254 = c[6] * t249;
        // real block of 3
        const V t255 = t215 - t216;
        const V t256 = c[1] * t255;
        // complex block of 13, multiplier 2
        const V t257 = c[12] * t256;
        // spectrum block of 3
        const V t258 = c[13] * t256;
        // real block of 3
        const V t259 = t217 + t203;
        // complex block of 13, multiplier 2
        const V t260 = c[14] * t259;
        // real block of 3
        const V t261 = c[0] * t217;
        const V t262 = t203 - t261;
        // complex block of 13, multiplier 2
        const V t263 = c[15] * t262;
        const V x0r = io.re(0);
        const V t264 = x0r + t162;
        // complex block of 13, multiplier 2
        const V x13r = io.re(13);
        const V t265 = x13r + t30;
        // complex block of 2
        const V t266 = t264 + t265;
        const V t267 = t264 - t265;
        // complex block of 13, multiplier 2
        const V x0i = io.im(0);
        const V t268 = x0i + t228;
        const V x13i = io.im(13);
        io.re(0, t266);
        io.re(13, t267);
        // complex block of 13, multiplier 2
        const V t269 = x13i + t96;
        // complex block of 2
        const V t270 = t268 + t269;
        io.im(0, t270);
        const V t271 = t268 - t269;
        io.im(13, t271);
        // complex block of 13, multiplier 2
        const V t272 = x0r - t163;
        const V t273 = t166 - t160;
        // spectrum block of 3
        const V t274 = t273 + t272;
        const V t275 = c[0] * t273;
        // complex block of 13, multiplier 2
        const V t276 = t197 + t191;
        // spectrum block of 3
        const V t277 = t276 - t194;
        const V t278 = c[0] * t276;
        // spectrum block of 3
        const V t279 = c[16] * t165;
        const V t280 = t161 + t279;
        // spectrum block of 3
        const V t281 = c[17] * t196;
        const V t282 = t192 - t281;
        // spectrum block of 3
        const V t283 = t272 - t275;
        const V t284 = t283 + t280;
        const V t285 = t283 - t280;
        // spectrum block of 3
        const V t286 = t194 + t278;
        const V t287 = t282 - t286;
        const V t288 = t286 + t282;
        // spectrum block of 2
        const V t289 = t274 + t277;
        const V t290 = t274 - t277;
        // complex block of 13, multiplier 2
        const V t291 = t243 + t251;
        const V t292 = t253 - t245;
        // complex block of 3
        const V t293 = t292 + t291;
        const V t294 = t292 - t291;
        // complex block of 13, multiplier 2
        const V t295 = t234 + t237;
        // complex block of 3
        const V t296 = t293 + t295;
        const V t297 = c[0] * t293;
        const V t298 = t295 - t297;
        const V t299 = c[1] * t294;
        // complex block of 13, multiplier 2
        const V t300 = t244 - t252;
        const V t301 = t254 + t246;
        // complex block of 3
        const V t302 = t301 + t300;
        const V t303 = t300 - t301;
        // complex block of 13, multiplier 2
        const V t304 = t238 - t235;
        // complex block of 3
        const V t305 = t304 - t302;
        const V t306 = c[0] * t302;
        const V t307 = t306 + t304;
        const V t308 = c[1] * t303;
        // complex block of 13, multiplier 2
        const V t309 = x13r - t31;
        const V t310 = t34 - t28;
        // spectrum block of 3
        const V t311 = t310 + t309;
        const V t312 = c[0] * t310;
        // complex block of 13, multiplier 2
        const V t313 = t65 + t59;
        // spectrum block of 3
        const V t314 = t313 - t62;
        const V t315 = c[0] * t313;
        // spectrum block of 3
        const V t316 = c[16] * t33;
        const V t317 = t29 + t316;
        // spectrum block of 3
        const V t318 = c[17] * t64;
        const V t319 = t60 - t318;
        // spectrum block of 3
        const V t320 = t309 - t312;
        const V t321 = t320 + t317;
        const V t322 = t320 - t317;
        // spectrum block of 3
        const V t323 = t62 + t315;
        const V t324 = t319 - t323;
        const V t325 = t323 + t319;
        // spectrum block of 2
        const V t326 = t311 + t314;
        const V t327 = t311 - t314;
        // complex block of 13, multiplier 2
        const V t328 = t111 + t119;
        const V t329 = t121 - t113;
        // complex block of 3
        const V t330 = t329 + t328;
        const V t331 = t329 - t328;
        // complex block of 13, multiplier 2
        const V t332 = t102 + t105;
        // complex block of 3
        const V t333 = t330 + t332;
        const V t334 = c[0] * t330;
        const V t335 = t332 - t334;
        const V t336 = c[1] * t331;
        // complex block of 13, multiplier 2
        const V t337 = t112 - t120;
        const V t338 = t122 + t114;
        // complex block of 3
        const V t339 = t338 + t337;
        const V t340 = t337 - t338;
        // complex block of 13, multiplier 2
        const V t341 = t106 - t103;
        // complex block of 3
        const V t342 = t341 - t339;
        const V t343 = c[0] * t339;
        const V t344 = t343 + t341;
        const V t345 = c[1] * t340;
        // complex block of 3
        const V t346 = t307 + t299;
        // spectrum block of 2
        const V t347 = t284 - t287;
        // spectrum block of 2
        const V t348 = t347 + t346;
        const V t349 = t347 - t346;
        // complex block of 3
        const V t350 = t344 + t336;
        // spectrum block of 2
        const V t351 = t321 - t324;
        // spectrum block of 2
        const V t352 = t351 + t350;
        const V t353 = t351 - t350;
        // complex block of 2
        const V t354 = t348 + t352;
        io.re(12, t354);
        const V t355 = t348 - t352;
        io.re(25, t355);
        // complex block of 2
        const V t356 = t349 + t353;
        io.re(14, t356);
        const V t357 = t349 - t353;
        io.re(1, t357);
        // complex block of 3
        const V t358 = t298 - t308;
        // spectrum block of 2
        const V t359 = t284 + t287;
        // spectrum block of 2
        const V t360 = t359 + t358;
        const V t361 = t359 - t358;
        // complex block of 3
        const V t362 = t335 - t345;
        // spectrum block of 2
        const V t363 = t321 + t324;
        // spectrum block of 2
        const V t364 = t363 + t362;
        const V t365 = t363 - t362;
        // complex block of 2
        const V t366 = t361 + t365;
        io.re(8, t366);
        const V t367 = t361 - t365;
        io.re(21, t367);
        // complex block of 2
        const V t368 = t360 + t364;
        io.re(18, t368);
        const V t369 = t360 - t364;
        io.re(5, t369);
        // complex block of 3
        const V t370 = t307 - t299;
        // spectrum block of 2
        const V t371 = t285 + t288;
        // spectrum block of 2
        const V t372 = t371 + t370;
        const V t373 = t371 - t370;
        // complex block of 3
        const V t374 = t344 - t336;
        // spectrum block of 2
        const V t375 = t322 + t325;
        // spectrum block of 2
        const V t376 = t375 + t374;
        const V t377 = t375 - t374;
        // complex block of 2
        const V t378 = t372 + t376;
        io.re(4, t378);
        const V t379 = t372 - t376;
        io.re(17, t379);
        // complex block of 2
        const V t380 = t373 + t377;
        io.re(22, t380);
        const V t381 = t373 - t377;
        io.re(9, t381);
        // complex block of 3
        const V t382 = t298 + t308;
        // spectrum block of 2
        const V t383 = t285 - t288;
        // spectrum block of 2
        const V t384 = t383 + t382;
        const V t385 = t383 - t382;
        // complex block of 3
        const V t386 = t335 + t345;
        // spectrum block of 2
        const V t387 = t322 - t325;
        // spectrum block of 2
        const V t388 = t387 + t386;
        const V t389 = t387 - t386;
        // complex block of 2
        const V t390 = t384 + t388;
        io.re(6, t390);
        const V t391 = t384 - t388;
        io.re(19, t391);
        // complex block of 2
        const V t392 = t385 + t389;
        io.re(20, t392);
        const V t393 = t385 - t389;
        io.re(7, t393);
        // spectrum block of 2
        const V t394 = t289 + t296;
        // spectrum block of 2
        const V t395 = t326 + t333;
        // complex block of 2
        const V t396 = t394 + t395;
        io.re(2, t396);
        const V t397 = t394 - t395;
        io.re(15, t397);
        // spectrum block of 2
        const V t398 = t289 - t296;
        // spectrum block of 2
        const V t399 = t326 - t333;
        // complex block of 2
        const V t400 = t398 + t399;
        io.re(24, t400);
        const V t401 = t398 - t399;
        io.re(11, t401);
        // spectrum block of 2
        const V t402 = t290 + t305;
        // spectrum block of 2
        const V t403 = t327 + t342;
        // complex block of 2
        const V t404 = t402 + t403;
        io.re(10, t404);
        const V t405 = t402 - t403;
        io.re(23, t405);
        // spectrum block of 2
        const V t406 = t290 - t305;
        // spectrum block of 2
        const V t407 = t327 - t342;
        // complex block of 2
        const V t408 = t406 + t407;
        io.re(16, t408);
        const V t409 = t406 - t407;
        io.re(3, t409);
        // complex block of 13, multiplier 2
        const V t410 = x0i - t229;
        const V t411 = t232 - t226;
        // spectrum block of 3
        const V t412 = t411 + t410;
        const V t413 = c[0] * t411;
        // complex block of 13, multiplier 2
        const V t414 = t263 + t257;
        // spectrum block of 3
        const V t415 = t414 - t260;
        const V t416 = c[0] * t414;
        // spectrum block of 3
        const V t417 = c[16] * t231;
        const V t418 = t227 + t417;
        // spectrum block of 3
        const V t419 = c[17] * t262;
        const V t420 = t258 - t419;
        // spectrum block of 3
        const V t421 = t410 - t413;
        const V t422 = t421 + t418;
        const V t423 = t421 - t418;
        // spectrum block of 3
        const V t424 = t260 + t416;
        const V t425 = t420 - t424;
        const V t426 = t424 + t420;
        // spectrum block of 2
        const V t427 = t412 + t415;
        const V t428 = t412 - t415;
        // complex block of 13, multiplier 2
        const V t429 = t177 + t185;
        const V t430 = t179 - t187;
        // complex block of 3
        const V t431 = t430 - t429;
        const V t432 = t430 + t429;
        // complex block of 13, multiplier 2
        const V t433 = t168 + t171;
        // complex block of 3
        const V t434 = t431 - t433;
        const V t435 = c[0] * t431;
        const V t436 = t433 + t435;
        const V t437 = c[1] * t432;
        // complex block of 13, multiplier 2
        const V t438 = t186 - t178;
        const V t439 = t188 + t180;
        // complex block of 3
        const V t440 = t439 - t438;
        const V t441 = t439 + t438;
        // complex block of 13, multiplier 2
        const V t442 = t169 - t172;
        // complex block of 3
        const V t443 = t440 + t442;
        const V t444 = c[0] * t440;
        const V t445 = t442 - t444;
        const V t446 = c[1] * t441;
        // complex block of 13, multiplier 2
        const V t447 = x13i - t97;
        const V t448 = t100 - t94;
        // spectrum block of 3
        const V t449 = t448 + t447;
        const V t450 = c[0] * t448;
        // complex block of 13, multiplier 2
        const V t451 = t131 + t125;
        // spectrum block of 3
        const V t452 = t451 - t128;
        const V t453 = c[0] * t451;
        // spectrum block of 3
        const V t454 = c[16] * t99;
        const V t455 = t95 + t454;
        // spectrum block of 3
        const V t456 = c[17] * t130;
        const V t457 = t126 - t456;
        // spectrum block of 3
        const V t458 = t447 - t450;
        const V t459 = t458 + t455;
        const V t460 = t458 - t455;
        // spectrum block of 3
        const V t461 = t128 + t453;
        const V t462 = t457 - t461;
        const V t463 = t461 + t457;
        // spectrum block of 2
        const V t464 = t449 + t452;
        const V t465 = t449 - t452;
        // complex block of 13, multiplier 2
        const V t466 = t45 + t53;
        const V t467 = t47 - t55;
        // complex block of 3
        const V t468 = t467 - t466;
        const V t469 = t467 + t466;
        // complex block of 13, multiplier 2
        const V t470 = t36 + t39;
        // complex block of 3
        const V t471 = t468 - t470;
        const V t472 = c[0] * t468;
        const V t473 = t470 + t472;
        const V t474 = c[1] * t469;
        // complex block of 13, multiplier 2
        const V t475 = t54 - t46;
        const V t476 = t56 + t48;
        // complex block of 3
        const V t477 = t476 - t475;
        const V t478 = t476 + t475;
        // complex block of 13, multiplier 2
        const V t479 = t37 - t40;
        // complex block of 3
        const V t480 = t477 + t479;
        const V t481 = c[0] * t477;
        const V t482 = t479 - t481;
        const V t483 = c[1] * t478;
        // complex block of 3
        const V t484 = t445 + t437;
        // spectrum block of 2
        const V t485 = t422 - t425;
        // spectrum block of 2
        const V t486 = t485 + t484;
        const V t487 = t485 - t484;
        // complex block of 3
        const V t488 = t482 + t474;
        // spectrum block of 2
        const V t489 = t459 - t462;
        // spectrum block of 2
        const V t490 = t489 + t488;
        const V t491 = t489 - t488;
        // complex block of 2
        const V t492 = t486 + t490;
        io.im(12, t492);
        const V t493 = t486 - t490;
        io.im(25, t493);
        // complex block of 2
        const V t494 = t487 + t491;
        io.im(14, t494);
        const V t495 = t487 - t491;
        io.im(1, t495);
        // complex block of 3
        const V t496 = t436 + t446;
        // spectrum block of 2
        const V t497 = t422 + t425;
        // spectrum block of 2
        const V t498 = t497 - t496;
        const V t499 = t497 + t496;
        // complex block of 3
        const V t500 = t473 + t483;
        // spectrum block of 2
        const V t501 = t459 + t462;
        // spectrum block of 2
        const V t502 = t501 - t500;
        const V t503 = t501 + t500;
        // complex block of 2
        const V t504 = t499 + t503;
        io.im(8, t504);
        const V t505 = t499 - t503;
        io.im(21, t505);
        // complex block of 2
        const V t506 = t498 + t502;
        io.im(18, t506);
        const V t507 = t498 - t502;
        io.im(5, t507);
        // complex block of 3
        const V t508 = t445 - t437;
        // spectrum block of 2
        const V t509 = t423 + t426;
        // spectrum block of 2
        const V t510 = t509 + t508;
        const V t511 = t509 - t508;
        // complex block of 3
        const V t512 = t482 - t474;
        // spectrum block of 2
        const V t513 = t460 + t463;
        // spectrum block of 2
        const V t514 = t513 + t512;
        const V t515 = t513 - t512;
        // complex block of 2
        const V t516 = t510 + t514;
        io.im(4, t516);
        const V t517 = t510 - t514;
        io.im(17, t517);
        // complex block of 2
        const V t518 = t511 + t515;
        io.im(22, t518);
        const V t519 = t511 - t515;
        io.im(9, t519);
        // complex block of 3
        const V t520 = t446 - t436;
        // spectrum block of 2
        const V t521 = t423 - t426;
        // spectrum block of 2
        const V t522 = t521 + t520;
        const V t523 = t521 - t520;
        // complex block of 3
        const V t524 = t483 - t473;
        // spectrum block of 2
        const V t525 = t460 - t463;
        // spectrum block of 2
        const V t526 = t525 + t524;
        const V t527 = t525 - t524;
        // complex block of 2
        const V t528 = t522 + t526;
        io.im(6, t528);
        const V t529 = t522 - t526;
        io.im(19, t529);
        // complex block of 2
        const V t530 = t523 + t527;
        io.im(20, t530);
        const V t531 = t523 - t527;
        io.im(7, t531);
        // spectrum block of 2
        const V t532 = t427 + t434;
        // spectrum block of 2
        const V t533 = t464 + t471;
        // complex block of 2
        const V t534 = t532 + t533;
        io.im(2, t534);
        const V t535 = t532 - t533;
        io.im(15, t535);
        // spectrum block of 2
        const V t536 = t427 - t434;
        // spectrum block of 2
        const V t537 = t464 - t471;
        // complex block of 2
        const V t538 = t536 + t537;
        io.im(24, t538);
        const V t539 = t536 - t537;
        io.im(11, t539);
        // spectrum block of 2
        const V t540 = t428 + t443;
        // spectrum block of 2
        const V t541 = t465 + t480;
        // complex block of 2
        const V t542 = t540 + t541;
        io.im(10, t542);
        const V t543 = t540 - t541;
        io.im(23, t543);
        // spectrum block of 2
        const V t544 = t428 - t443;
        // spectrum block of 2
        const V t545 = t465 - t480;
        // complex block of 2
        const V t546 = t544 + t545;
        io.im(16, t546);
        const V t547 = t544 - t545;
        io.im(3, t547);
    }
};

}  // namespace zulg
