// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 54.
// Complex DFT of 54 points, prime-factor, order 27, 2.
// 434 additions, 434 subtractions, 440 multiplications (548 with `scale`); 26 constants; 135 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<54> {
    static constexpr int steps = 1416;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.17364817766693036,  // c[5]: cos 2 pi 2/9
        0.6427876096865394,  // c[6]: -sin 2 pi 8/9
        0.766044443118978,  // c[7]: cos 2 pi 8/9
        0.5971585917027862,  // c[8]: cos 2 pi 4/27
        0.8021231927550437,  // c[9]: sin 2 pi 4/27
        0.28680323271109026,  // c[10]: -cos 2 pi 8/27
        0.9579895123154889,  // c[11]: sin 2 pi 8/27
        0.8354878114129364,  // c[12]: -cos 2 pi 16/27
        0.549508978070806,  // c[13]: -sin 2 pi 16/27
        0.8936326403234123,  // c[14]: cos 2 pi 2/27
        0.44879918020046217,  // c[15]: sin 2 pi 2/27
        0.993238357741943,  // c[16]: -cos 2 pi 14/27
        0.11609291412523023,  // c[17]: -sin 2 pi 14/27
        0.9730448705798238,  // c[18]: cos 2 pi 1/27
        0.23061587074244017,  // c[19]: sin 2 pi 1/27
        0.6862416378687336,  // c[20]: -cos 2 pi 10/27
        0.7273736415730487,  // c[21]: sin 2 pi 10/27
        0.05814482891047583,  // c[22]: -cos 2 pi 20/27
        0.9983081582712682,  // c[23]: -sin 2 pi 20/27
        0.39607976603915684,  // c[24]: cos 2 pi 5/27
        0.918216106880274,  // c[25]: sin 2 pi 5/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3, multiplier 2
        const V x18r = io.re(18);
        const V x36r = io.re(36);
        const V t0 = x18r + x36r;
        const V t1 = x18r - x36r;
        const V t2 = c[0] * t0;
        const V x18i = io.im(18);
        const V x36i = io.im(36);
        const V t3 = x18i + x36i;
        const V t4 = x18i - x36i;
        const V t5 = c[0] * t3;
        const V x0r = io.re(0);
        const V t6 = t0 + x0r;
        const V x0i = io.im(0);
        const V t7 = t3 + x0i;
        const V t8 = x0r - t2;
        const V t9 = c[1] * t4;
        const V t10 = t8 + t9;
        const V t11 = t8 - t9;
        const V t12 = x0i - t5;
        const V t13 = c[1] * t1;
        const V t14 = t12 - t13;
        const V t15 = t12 + t13;
        // complex block of 3, multiplier 2
        const V x1r = io.re(1);
        const V x19r = io.re(19);
        const V t16 = x1r + x19r;
        const V t17 = x1r - x19r;
        const V t18 = c[0] * t16;
        const V x1i = io.im(1);
        const V x19i = io.im(19);
        const V t19 = x1i + x19i;
        const V t20 = x1i - x19i;
        const V t21 = c[0] * t19;
        // complex block of 3, multiplier 2
        const V x7r = io.re(7);
        const V x25r = io.re(25);
        const V t22 = x7r + x25r;
        const V t23 = x7r - x25r;
        const V t24 = c[0] * t22;
        const V x7i = io.im(7);
        const V x25i = io.im(25);
        const V t25 = x7i + x25i;
        const V t26 = x7i - x25i;
        const V t27 = c[0] * t25;
        // complex block of 3, multiplier 2
        const V x37r = io.re(37);
        const V t28 = t16 + x37r;
        // complex block of 3, multiplier 2
        const V x43r = io.re(43);
        const V t29 = t22 + x43r;
        // complex block of 3, multiplier 2
        const V t30 = t28 + t29;
        // complex block of 3, multiplier 2
        const V x37i = io.im(37);
        const V t31 = t19 + x37i;
        // complex block of 3, multiplier 2
        const V x43i = io.im(43);
        const V t32 = t25 + x43i;
        // complex block of 3, multiplier 2
        const V t33 = t31 + t32;
        // complex block of 3, multiplier 2
        const V t34 = x37r - t18;
        const V t35 = c[1] * t20;
        const V t36 = t34 + t35;
        const V t37 = t34 - t35;
        const V t38 = x37i - t21;
        const V t39 = c[1] * t17;
        const V t40 = t38 - t39;
        const V t41 = t38 + t39;
        // complex block of 3, multiplier 2
        const V t42 = x43r - t24;
        const V t43 = c[1] * t26;
        const V t44 = t42 + t43;
        const V t45 = t42 - t43;
        const V t46 = x43i - t27;
        const V t47 = c[1] * t23;
        const V t48 = t46 - t47;
        const V t49 = t46 + t47;
        // complex block of 3, multiplier 2
        const V x49r = io.re(49);
        const V x13r = io.re(13);
        const V t50 = x49r + x13r;
        const V t51 = x49r - x13r;
        const V x31r = io.re(31);
        const V t52 = t50 + x31r;
        const V t53 = c[0] * t50;
        const V x49i = io.im(49);
        const V x13i = io.im(13);
        const V t54 = x49i + x13i;
        const V t55 = x49i - x13i;
        const V x31i = io.im(31);
        const V t56 = t54 + x31i;
        const V t57 = c[0] * t54;
        const V t58 = x31r - t53;
        const V t59 = c[1] * t55;
        const V t60 = t58 + t59;
        const V t61 = t58 - t59;
        const V t62 = x31i - t57;
        const V t63 = c[1] * t51;
        const V t64 = t62 - t63;
        const V t65 = t62 + t63;
        // complex block of 3, multiplier 2
        const V t66 = t28 - t29;
        const V t67 = c[1] * t66;
        const V t68 = c[0] * t33;
        const V t69 = t56 - t68;
        const V t70 = t69 - t67;
        const V t71 = t69 + t67;
        const V t72 = t31 - t32;
        const V t73 = c[1] * t72;
        const V t74 = c[0] * t30;
        const V t75 = t52 - t74;
        const V t76 = t75 + t73;
        const V t77 = t75 - t73;
        const V t78 = t30 + t52;
        const V t79 = t33 + t56;
        // complex block of 9, multiplier 2
        const V t80 = c[4] * t41;
        const V t81 = c[5] * t37;
        const V t82 = t81 + t80;
        const V t83 = c[2] * t49;
        const V t84 = c[3] * t45;
        const V t85 = t83 - t84;
        // complex block of 3, multiplier 2
        const V t86 = t82 + t85;
        const V t87 = c[0] * t86;
        const V t88 = t82 - t85;
        const V t89 = c[1] * t88;
        // complex block of 9, multiplier 2
        const V t90 = c[4] * t37;
        const V t91 = c[5] * t41;
        const V t92 = t91 - t90;
        const V t93 = c[2] * t45;
        const V t94 = c[3] * t49;
        const V t95 = t94 + t93;
        // complex block of 3, multiplier 2
        const V t96 = t92 - t95;
        const V t97 = c[0] * t96;
        const V t98 = t92 + t95;
        const V t99 = c[1] * t98;
        // complex block of 9, multiplier 2
        const V t100 = c[2] * t40;
        const V t101 = c[3] * t36;
        const V t102 = t100 - t101;
        const V t103 = c[6] * t48;
        const V t104 = c[7] * t44;
        const V t105 = t104 - t103;
        // complex block of 3, multiplier 2
        const V t106 = t102 + t105;
        const V t107 = c[0] * t106;
        const V t108 = t102 - t105;
        const V t109 = c[1] * t108;
        // complex block of 9, multiplier 2
        const V t110 = c[2] * t36;
        const V t111 = c[3] * t40;
        const V t112 = t111 + t110;
        const V t113 = c[6] * t44;
        const V t114 = c[7] * t48;
        const V t115 = t114 + t113;
        // complex block of 3, multiplier 2
        const V t116 = t115 - t112;
        const V t117 = c[0] * t116;
        const V t118 = t112 + t115;
        const V t119 = c[1] * t118;
        // complex block of 3, multiplier 2
        const V x20r = io.re(20);
        const V x38r = io.re(38);
        const V t120 = x20r + x38r;
        const V t121 = x20r - x38r;
        const V x2r = io.re(2);
        const V t122 = t120 + x2r;
        const V t123 = c[0] * t120;
        const V x20i = io.im(20);
        const V x38i = io.im(38);
        const V t124 = x20i + x38i;
        const V t125 = x20i - x38i;
        const V x2i = io.im(2);
        const V t126 = t124 + x2i;
        const V t127 = c[0] * t124;
        // complex block of 3, multiplier 2
        const V x26r = io.re(26);
        const V x44r = io.re(44);
        const V t128 = x26r + x44r;
        const V t129 = x26r - x44r;
        const V t130 = c[0] * t128;
        const V x26i = io.im(26);
        const V x44i = io.im(44);
        const V t131 = x26i + x44i;
        const V t132 = x26i - x44i;
        const V t133 = c[0] * t131;
        // complex block of 3, multiplier 2
        const V x32r = io.re(32);
        const V x50r = io.re(50);
        const V t134 = x32r + x50r;
        const V t135 = x32r - x50r;
        const V t136 = c[0] * t134;
        const V x32i = io.im(32);
        const V x50i = io.im(50);
        const V t137 = x32i + x50i;
        const V t138 = x32i - x50i;
        const V t139 = c[0] * t137;
        // complex block of 3, multiplier 2
        const V x8r = io.re(8);
        const V t140 = t128 + x8r;
        // complex block of 3, multiplier 2
        const V x14r = io.re(14);
        const V t141 = t134 + x14r;
        // complex block of 3, multiplier 2
        const V t142 = t140 + t141;
        // complex block of 3, multiplier 2
        const V x8i = io.im(8);
        const V t143 = t131 + x8i;
        // complex block of 3, multiplier 2
        const V x14i = io.im(14);
        const V t144 = t137 + x14i;
        // complex block of 3, multiplier 2
        const V t145 = t143 + t144;
        // complex block of 3, multiplier 2
        const V t146 = x8r - t130;
        const V t147 = c[1] * t132;
        const V t148 = t146 + t147;
        const V t149 = t146 - t147;
        const V t150 = x8i - t133;
        const V t151 = c[1] * t129;
        const V t152 = t150 - t151;
        const V t153 = t150 + t151;
        // complex block of 3, multiplier 2
        const V t154 = x14r - t136;
        const V t155 = c[1] * t138;
        const V t156 = t154 + t155;
        const V t157 = t154 - t155;
        const V t158 = x14i - t139;
        const V t159 = c[1] * t135;
        const V t160 = t158 - t159;
        const V t161 = t158 + t159;
        // complex block of 3, multiplier 2
        const V t162 = x2r - t123;
        const V t163 = c[1] * t125;
        const V t164 = t162 + t163;
        const V t165 = t162 - t163;
        const V t166 = x2i - t127;
        const V t167 = c[1] * t121;
        const V t168 = t166 - t167;
        const V t169 = t166 + t167;
        // complex block of 3, multiplier 2
        const V t170 = t140 - t141;
        const V t171 = c[1] * t170;
        const V t172 = c[0] * t145;
        const V t173 = t126 - t172;
        const V t174 = t173 - t171;
        const V t175 = t173 + t171;
        const V t176 = t143 - t144;
        const V t177 = c[1] * t176;
        const V t178 = c[0] * t142;
        const V t179 = t122 - t178;
        const V t180 = t179 + t177;
        const V t181 = t179 - t177;
        const V t182 = t142 + t122;
        const V t183 = t145 + t126;
        // complex block of 9, multiplier 2
        const V t184 = c[4] * t153;
        const V t185 = c[5] * t149;
        const V t186 = t185 + t184;
        const V t187 = c[2] * t161;
        const V t188 = c[3] * t157;
        const V t189 = t187 - t188;
        // complex block of 3, multiplier 2
        const V t190 = t186 + t189;
        const V t191 = c[0] * t190;
        const V t192 = t186 - t189;
        const V t193 = c[1] * t192;
        // complex block of 9, multiplier 2
        const V t194 = c[4] * t149;
        const V t195 = c[5] * t153;
        const V t196 = t195 - t194;
        const V t197 = c[2] * t157;
        const V t198 = c[3] * t161;
        const V t199 = t198 + t197;
        // complex block of 3, multiplier 2
        const V t200 = t196 - t199;
        const V t201 = c[0] * t200;
        const V t202 = t196 + t199;
        const V t203 = c[1] * t202;
        // complex block of 9, multiplier 2
        const V t204 = c[2] * t152;
        const V t205 = c[3] * t148;
        const V t206 = t204 - t205;
        const V t207 = c[6] * t160;
        const V t208 = c[7] * t156;
        const V t209 = t208 - t207;
        // complex block of 3, multiplier 2
        const V t210 = t206 + t209;
        const V t211 = c[0] * t210;
        const V t212 = t206 - t209;
        const V t213 = c[1] * t212;
        // complex block of 9, multiplier 2
        const V t214 = c[2] * t148;
        const V t215 = c[3] * t152;
        const V t216 = t215 + t214;
        const V t217 = c[6] * t156;
        const V t218 = c[7] * t160;
        const V t219 = t218 + t217;
        // complex block of 3, multiplier 2
        const V t220 = t219 - t216;
        const V t221 = c[0] * t220;
        const V t222 = t216 + t219;
        const V t223 = c[1] * t222;
        // complex block of 3, multiplier 2
        const V x3r = io.re(3);
        const V x21r = io.re(21);
        const V t224 = x3r + x21r;
        const V t225 = x3r - x21r;
        const V x39r = io.re(39);
        const V t226 = t224 + x39r;
        const V t227 = c[0] * t224;
        const V t228 = x39r - t227;
        const V t229 = c[1] * t225;
        const V x3i = io.im(3);
        const V x21i = io.im(21);
        const V t230 = x3i + x21i;
        const V t231 = x3i - x21i;
        const V x39i = io.im(39);
        const V t232 = t230 + x39i;
        const V t233 = c[0] * t230;
        const V t234 = x39i - t233;
        const V t235 = c[1] * t231;
        // complex block of 3, multiplier 2
        const V x51r = io.re(51);
        const V x15r = io.re(15);
        const V t236 = x51r + x15r;
        const V t237 = x51r - x15r;
        const V x33r = io.re(33);
        const V t238 = t236 + x33r;
        const V t239 = c[0] * t236;
        const V t240 = x33r - t239;
        const V t241 = c[1] * t237;
        const V x51i = io.im(51);
        const V x15i = io.im(15);
        const V t242 = x51i + x15i;
        const V t243 = x51i - x15i;
        const V x33i = io.im(33);
        const V t244 = t242 + x33i;
        const V t245 = c[0] * t242;
        const V t246 = x33i - t245;
        const V t247 = c[1] * t243;
        const V t248 = t240 + t247;
        // complex block of 9, multiplier 2
        const V t249 = c[3] * t248;
        const V t250 = c[2] * t248;
        // complex block of 3, multiplier 2
        const V t251 = t246 - t241;
        // complex block of 9, multiplier 2
        const V t252 = c[2] * t251;
        const V t253 = c[3] * t251;
        const V t254 = t252 - t249;
        const V t255 = t253 + t250;
        // complex block of 3, multiplier 2
        const V t256 = t240 - t247;
        // complex block of 9, multiplier 2
        const V t257 = c[5] * t256;
        const V t258 = c[4] * t256;
        // complex block of 3, multiplier 2
        const V t259 = t246 + t241;
        // complex block of 9, multiplier 2
        const V t260 = c[4] * t259;
        const V t261 = c[5] * t259;
        const V t262 = t257 + t260;
        const V t263 = t261 - t258;
        // complex block of 3, multiplier 2
        const V t264 = t228 + t235;
        // complex block of 9, multiplier 2
        const V t265 = c[7] * t264;
        const V t266 = c[6] * t264;
        // complex block of 3, multiplier 2
        const V t267 = t234 - t229;
        // complex block of 9, multiplier 2
        const V t268 = c[6] * t267;
        const V t269 = c[7] * t267;
        const V t270 = t265 - t268;
        const V t271 = t269 + t266;
        // complex block of 3, multiplier 2
        const V t272 = t228 - t235;
        // complex block of 9, multiplier 2
        const V t273 = c[3] * t272;
        const V t274 = c[2] * t272;
        // complex block of 3, multiplier 2
        const V t275 = t234 + t229;
        // complex block of 9, multiplier 2
        const V t276 = c[2] * t275;
        const V t277 = c[3] * t275;
        const V t278 = t276 - t273;
        const V t279 = t277 + t274;
        // complex block of 3, multiplier 2
        const V t280 = t238 + t226;
        const V t281 = c[0] * t280;
        const V t282 = t244 + t232;
        const V t283 = c[0] * t282;
        const V t284 = t238 - t226;
        const V t285 = c[1] * t284;
        const V t286 = t244 - t232;
        const V t287 = c[1] * t286;
        // complex block of 3, multiplier 2
        const V x22r = io.re(22);
        const V x40r = io.re(40);
        const V t288 = x22r + x40r;
        const V t289 = x22r - x40r;
        const V x4r = io.re(4);
        const V t290 = t288 + x4r;
        const V t291 = c[0] * t288;
        const V x22i = io.im(22);
        const V x40i = io.im(40);
        const V t292 = x22i + x40i;
        const V t293 = x22i - x40i;
        const V x4i = io.im(4);
        const V t294 = t292 + x4i;
        const V t295 = c[0] * t292;
        // complex block of 3, multiplier 2
        const V x28r = io.re(28);
        const V x46r = io.re(46);
        const V t296 = x28r + x46r;
        const V t297 = x28r - x46r;
        const V t298 = c[0] * t296;
        const V x28i = io.im(28);
        const V x46i = io.im(46);
        const V t299 = x28i + x46i;
        const V t300 = x28i - x46i;
        const V t301 = c[0] * t299;
        // complex block of 3, multiplier 2
        const V x34r = io.re(34);
        const V x52r = io.re(52);
        const V t302 = x34r + x52r;
        const V t303 = x34r - x52r;
        const V t304 = c[0] * t302;
        const V x34i = io.im(34);
        const V x52i = io.im(52);
        const V t305 = x34i + x52i;
        const V t306 = x34i - x52i;
        const V t307 = c[0] * t305;
        // complex block of 3, multiplier 2
        const V x10r = io.re(10);
        const V t308 = t296 + x10r;
        // complex block of 3, multiplier 2
        const V x16r = io.re(16);
        const V t309 = t302 + x16r;
        // complex block of 3, multiplier 2
        const V t310 = t308 + t309;
        // complex block of 3, multiplier 2
        const V x10i = io.im(10);
        const V t311 = t299 + x10i;
        // complex block of 3, multiplier 2
        const V x16i = io.im(16);
        const V t312 = t305 + x16i;
        // complex block of 3, multiplier 2
        const V t313 = t311 + t312;
        // complex block of 3, multiplier 2
        const V t314 = x10r - t298;
        const V t315 = c[1] * t300;
        const V t316 = t314 + t315;
        const V t317 = t314 - t315;
        const V t318 = x10i - t301;
        const V t319 = c[1] * t297;
        const V t320 = t318 - t319;
        const V t321 = t318 + t319;
        // complex block of 3, multiplier 2
        const V t322 = x16r - t304;
        const V t323 = c[1] * t306;
        const V t324 = t322 + t323;
        const V t325 = t322 - t323;
        const V t326 = x16i - t307;
        const V t327 = c[1] * t303;
        const V t328 = t326 - t327;
        const V t329 = t326 + t327;
        // complex block of 3, multiplier 2
        const V t330 = x4r - t291;
        const V t331 = c[1] * t293;
        const V t332 = t330 + t331;
        const V t333 = t330 - t331;
        const V t334 = x4i - t295;
        const V t335 = c[1] * t289;
        const V t336 = t334 - t335;
        const V t337 = t334 + t335;
        // complex block of 3, multiplier 2
        const V t338 = t308 - t309;
        const V t339 = c[1] * t338;
        const V t340 = c[0] * t313;
        const V t341 = t294 - t340;
        const V t342 = t341 - t339;
        const V t343 = t341 + t339;
        const V t344 = t311 - t312;
        const V t345 = c[1] * t344;
        const V t346 = c[0] * t310;
        const V t347 = t290 - t346;
        const V t348 = t347 + t345;
        const V t349 = t347 - t345;
        const V t350 = t310 + t290;
        const V t351 = t313 + t294;
        // complex block of 9, multiplier 2
        const V t352 = c[4] * t321;
        const V t353 = c[5] * t317;
        const V t354 = t353 + t352;
        const V t355 = c[2] * t329;
        const V t356 = c[3] * t325;
        const V t357 = t355 - t356;
        // complex block of 3, multiplier 2
        const V t358 = t354 + t357;
        const V t359 = c[0] * t358;
        const V t360 = t354 - t357;
        const V t361 = c[1] * t360;
        // complex block of 9, multiplier 2
        const V t362 = c[4] * t317;
        const V t363 = c[5] * t321;
        const V t364 = t363 - t362;
        const V t365 = c[2] * t325;
        const V t366 = c[3] * t329;
        const V t367 = t366 + t365;
        // complex block of 3, multiplier 2
        const V t368 = t364 - t367;
        const V t369 = c[0] * t368;
        const V t370 = t364 + t367;
        const V t371 = c[1] * t370;
        // complex block of 9, multiplier 2
        const V t372 = c[2] * t320;
        const V t373 = c[3] * t316;
        const V t374 = t372 - t373;
        const V t375 = c[6] * t328;
        const V t376 = c[7] * t324;
        const V t377 = t376 - t375;
        // complex block of 3, multiplier 2
        const V t378 = t374 + t377;
        const V t379 = c[0] * t378;
        const V t380 = t374 - t377;
        const V t381 = c[1] * t380;
        // complex block of 9, multiplier 2
        const V t382 = c[2] * t316;
        const V t383 = c[3] * t320;
        const V t384 = t383 + t382;
        const V t385 = c[6] * t324;
        const V t386 = c[7] * t328;
        const V t387 = t386 + t385;
        // complex block of 3, multiplier 2
        const V t388 = t387 - t384;
        const V t389 = c[0] * t388;
        const V t390 = t384 + t387;
        const V t391 = c[1] * t390;
        // complex block of 3, multiplier 2
        const V x5r = io.re(5);
        const V x23r = io.re(23);
        const V t392 = x5r + x23r;
        const V t393 = x5r - x23r;
        const V t394 = c[0] * t392;
        const V x5i = io.im(5);
        const V x23i = io.im(23);
        const V t395 = x5i + x23i;
        const V t396 = x5i - x23i;
        const V t397 = c[0] * t395;
        // complex block of 3, multiplier 2
        const V x53r = io.re(53);
        const V x17r = io.re(17);
        const V t398 = x53r + x17r;
        const V t399 = x53r - x17r;
        const V t400 = c[0] * t398;
        const V x53i = io.im(53);
        const V x17i = io.im(17);
        const V t401 = x53i + x17i;
        const V t402 = x53i - x17i;
        const V t403 = c[0] * t401;
        const V x35r = io.re(35);
        const V t404 = t398 + x35r;
        // complex block of 3, multiplier 2
        const V x41r = io.re(41);
        const V t405 = t392 + x41r;
        // complex block of 3, multiplier 2
        const V t406 = t404 + t405;
        // complex block of 3, multiplier 2
        const V x35i = io.im(35);
        const V t407 = t401 + x35i;
        // complex block of 3, multiplier 2
        const V x41i = io.im(41);
        const V t408 = t395 + x41i;
        // complex block of 3, multiplier 2
        const V t409 = t407 + t408;
        // complex block of 3, multiplier 2
        const V t410 = x35r - t400;
        const V t411 = c[1] * t402;
        const V t412 = t410 + t411;
        const V t413 = t410 - t411;
        const V t414 = x35i - t403;
        const V t415 = c[1] * t399;
        const V t416 = t414 - t415;
        const V t417 = t414 + t415;
        // complex block of 3, multiplier 2
        const V t418 = x41r - t394;
        const V t419 = c[1] * t396;
        const V t420 = t418 + t419;
        const V t421 = t418 - t419;
        const V t422 = x41i - t397;
        const V t423 = c[1] * t393;
        const V t424 = t422 - t423;
        const V t425 = t422 + t423;
        // complex block of 3, multiplier 2
        const V x47r = io.re(47);
        const V x11r = io.re(11);
        const V t426 = x47r + x11r;
        const V t427 = x47r - x11r;
        const V x29r = io.re(29);
        const V t428 = t426 + x29r;
        const V t429 = c[0] * t426;
        const V x47i = io.im(47);
        const V x11i = io.im(11);
        const V t430 = x47i + x11i;
        const V t431 = x47i - x11i;
        const V x29i = io.im(29);
        const V t432 = t430 + x29i;
        const V t433 = c[0] * t430;
        const V t434 = x29r - t429;
        const V t435 = c[1] * t431;
        const V t436 = t434 + t435;
        const V t437 = t434 - t435;
        const V t438 = x29i - t433;
        const V t439 = c[1] * t427;
        const V t440 = t438 - t439;
        const V t441 = t438 + t439;
        // complex block of 3, multiplier 2
        const V t442 = t404 - t405;
        const V t443 = c[1] * t442;
        const V t444 = c[0] * t409;
        const V t445 = t432 - t444;
        const V t446 = t445 - t443;
        const V t447 = t445 + t443;
        const V t448 = t407 - t408;
        const V t449 = c[1] * t448;
        const V t450 = c[0] * t406;
        const V t451 = t428 - t450;
        const V t452 = t451 + t449;
        const V t453 = t451 - t449;
        const V t454 = t406 + t428;
        const V t455 = t409 + t432;
        // complex block of 9, multiplier 2
        const V t456 = c[4] * t417;
        const V t457 = c[5] * t413;
        const V t458 = t457 + t456;
        const V t459 = c[2] * t425;
        const V t460 = c[3] * t421;
        const V t461 = t459 - t460;
        // complex block of 3, multiplier 2
        const V t462 = t458 + t461;
        const V t463 = c[0] * t462;
        const V t464 = t458 - t461;
        const V t465 = c[1] * t464;
        // complex block of 9, multiplier 2
        const V t466 = c[4] * t413;
        const V t467 = c[5] * t417;
        const V t468 = t467 - t466;
        const V t469 = c[2] * t421;
        const V t470 = c[3] * t425;
        const V t471 = t470 + t469;
        // complex block of 3, multiplier 2
        const V t472 = t468 - t471;
        const V t473 = c[0] * t472;
        const V t474 = t468 + t471;
        const V t475 = c[1] * t474;
        // complex block of 9, multiplier 2
        const V t476 = c[2] * t416;
        const V t477 = c[3] * t412;
        const V t478 = t476 - t477;
        const V t479 = c[6] * t424;
        const V t480 = c[7] * t420;
        const V t481 = t480 - t479;
        // complex block of 3, multiplier 2
        const V t482 = t478 + t481;
        const V t483 = c[0] * t482;
        const V t484 = t478 - t481;
        const V t485 = c[1] * t484;
        // complex block of 9, multiplier 2
        const V t486 = c[2] * t412;
        const V t487 = c[3] * t416;
        const V t488 = t487 + t486;
        const V t489 = c[6] * t420;
        const V t490 = c[7] * t424;
        const V t491 = t490 + t489;
        // complex block of 3, multiplier 2
        const V t492 = t491 - t488;
        const V t493 = c[0] * t492;
        const V t494 = t488 + t491;
        const V t495 = c[1] * t494;
        // complex block of 3, multiplier 2
        const V x24r = io.re(24);
        const V x42r = io.re(42);
        const V t496 = x24r + x42r;
        const V t497 = x24r - x42r;
        const V x6r = io.re(6);
        const V t498 = t496 + x6r;
        const V t499 = c[0] * t496;
        const V t500 = x6r - t499;
        const V t501 = c[1] * t497;
        const V x24i = io.im(24);
        const V x42i = io.im(42);
        const V t502 = x24i + x42i;
        const V t503 = x24i - x42i;
        const V x6i = io.im(6);
        const V t504 = t502 + x6i;
        const V t505 = c[0] * t502;
        const V t506 = x6i - t505;
        const V t507 = c[1] * t503;
        // complex block of 3, multiplier 2
        const V x30r = io.re(30);
        const V x48r = io.re(48);
        const V t508 = x30r + x48r;
        const V t509 = x30r - x48r;
        const V x12r = io.re(12);
        const V t510 = t508 + x12r;
        const V t511 = c[0] * t508;
        const V t512 = x12r - t511;
        const V t513 = c[1] * t509;
        const V x30i = io.im(30);
        const V x48i = io.im(48);
        const V t514 = x30i + x48i;
        const V t515 = x30i - x48i;
        const V x12i = io.im(12);
        const V t516 = t514 + x12i;
        const V t517 = c[0] * t514;
        const V t518 = x12i - t517;
        const V t519 = c[1] * t515;
        // complex block of 3, multiplier 2
        const V t520 = t500 + t507;
        // complex block of 9, multiplier 2
        const V t521 = c[3] * t520;
        const V t522 = c[2] * t520;
        // complex block of 3, multiplier 2
        const V t523 = t506 - t501;
        // complex block of 9, multiplier 2
        const V t524 = c[2] * t523;
        const V t525 = c[3] * t523;
        const V t526 = t524 - t521;
        const V t527 = t525 + t522;
        // complex block of 3, multiplier 2
        const V t528 = t500 - t507;
        // complex block of 9, multiplier 2
        const V t529 = c[5] * t528;
        const V t530 = c[4] * t528;
        // complex block of 3, multiplier 2
        const V t531 = t506 + t501;
        // complex block of 9, multiplier 2
        const V t532 = c[4] * t531;
        const V t533 = c[5] * t531;
        const V t534 = t529 + t532;
        const V t535 = t533 - t530;
        // complex block of 3, multiplier 2
        const V t536 = t512 + t519;
        // complex block of 9, multiplier 2
        const V t537 = c[7] * t536;
        const V t538 = c[6] * t536;
        // complex block of 3, multiplier 2
        const V t539 = t518 - t513;
        // complex block of 9, multiplier 2
        const V t540 = c[6] * t539;
        const V t541 = c[7] * t539;
        const V t542 = t537 - t540;
        const V t543 = t541 + t538;
        // complex block of 3, multiplier 2
        const V t544 = t512 - t519;
        // complex block of 9, multiplier 2
        const V t545 = c[3] * t544;
        const V t546 = c[2] * t544;
        // complex block of 3, multiplier 2
        const V t547 = t518 + t513;
        // complex block of 9, multiplier 2
        const V t548 = c[2] * t547;
        const V t549 = c[3] * t547;
        const V t550 = t548 - t545;
        const V t551 = t549 + t546;
        // complex block of 3, multiplier 2
        const V t552 = t498 + t510;
        const V t553 = c[0] * t552;
        const V t554 = t504 + t516;
        const V t555 = c[0] * t554;
        const V t556 = t498 - t510;
        const V t557 = c[1] * t556;
        const V t558 = t504 - t516;
        const V t559 = c[1] * t558;
        // complex block of 3, multiplier 2
        const V x45r = io.re(45);
        const V x9r = io.re(9);
        const V t560 = x45r + x9r;
        const V t561 = x45r - x9r;
        const V t562 = c[0] * t560;
        const V x45i = io.im(45);
        const V x9i = io.im(9);
        const V t563 = x45i + x9i;
        const V t564 = x45i - x9i;
        const V t565 = c[0] * t563;
        const V x27r = io.re(27);
        const V t566 = t560 + x27r;
        const V x27i = io.im(27);
        const V t567 = t563 + x27i;
        const V t568 = x27r - t562;
        const V t569 = c[1] * t564;
        const V t570 = t568 + t569;
        const V t571 = t568 - t569;
        const V t572 = x27i - t565;
        const V t573 = c[1] * t561;
        const V t574 = t572 - t573;
        const V t575 = t572 + t573;
        // complex block of 3, multiplier 2
        const V t576 = t552 + t6;
        // complex block of 3, multiplier 2
        const V t577 = t182 + t350;
        const V t578 = c[0] * t577;
        const V t579 = t577 + t576;
        const V t580 = t576 - t578;
        const V t581 = t183 - t351;
        const V t582 = c[1] * t581;
        // complex block of 3, multiplier 2
        const V t583 = t280 + t566;
        // complex block of 3, multiplier 2
        const V t584 = t454 + t78;
        const V t585 = c[0] * t584;
        const V t586 = t584 + t583;
        const V t587 = t583 - t585;
        const V t588 = t455 - t79;
        const V t589 = c[1] * t588;
        // complex block of 3, multiplier 2
        const V t590 = t580 + t582;
        // complex block of 3, multiplier 2
        const V t591 = t587 + t589;
        // complex block of 2
        const V t592 = t590 + t591;
        io.re(36, t592);
        const V t593 = t590 - t591;
        io.re(9, t593);
        // complex block of 3, multiplier 2
        const V t594 = t580 - t582;
        // complex block of 3, multiplier 2
        const V t595 = t587 - t589;
        // complex block of 2
        const V t596 = t594 + t595;
        io.re(18, t596);
        const V t597 = t594 - t595;
        io.re(45, t597);
        // complex block of 2
        const V t598 = t579 + t586;
        io.re(0, t598);
        const V t599 = t579 - t586;
        io.re(27, t599);
        // complex block of 3, multiplier 2
        const V t600 = t554 + t7;
        // complex block of 3, multiplier 2
        const V t601 = t183 + t351;
        const V t602 = c[0] * t601;
        const V t603 = t601 + t600;
        const V t604 = t600 - t602;
        const V t605 = t182 - t350;
        const V t606 = c[1] * t605;
        // complex block of 3, multiplier 2
        const V t607 = t282 + t567;
        // complex block of 3, multiplier 2
        const V t608 = t455 + t79;
        const V t609 = c[0] * t608;
        const V t610 = t608 + t607;
        const V t611 = t607 - t609;
        const V t612 = t454 - t78;
        const V t613 = c[1] * t612;
        // complex block of 3, multiplier 2
        const V t614 = t604 - t606;
        // complex block of 3, multiplier 2
        const V t615 = t611 - t613;
        // complex block of 2
        const V t616 = t614 + t615;
        io.im(36, t616);
        const V t617 = t614 - t615;
        io.im(9, t617);
        // complex block of 3, multiplier 2
        const V t618 = t604 + t606;
        // complex block of 3, multiplier 2
        const V t619 = t611 + t613;
        // complex block of 2
        const V t620 = t618 + t619;
        io.im(18, t620);
        const V t621 = t618 - t619;
        io.im(45, t621);
        // complex block of 2
        const V t622 = t603 + t610;
        io.im(0, t622);
        const V t623 = t603 - t610;
        io.im(27, t623);
        // complex block of 3, multiplier 2
        const V t624 = t6 - t553;
        const V t625 = t624 + t559;
        const V t626 = t624 - t559;
        const V t627 = t7 - t555;
        const V t628 = t627 - t557;
        const V t629 = t627 + t557;
        // complex block of 27, multiplier 2
        const V t630 = c[4] * t175;
        const V t631 = c[5] * t181;
        const V t632 = t631 + t630;
        const V t633 = c[2] * t343;
        const V t634 = c[3] * t349;
        const V t635 = t633 - t634;
        // complex block of 3, multiplier 2
        const V t636 = t632 + t635;
        const V t637 = c[0] * t636;
        const V t638 = t632 - t635;
        // complex block of 27, multiplier 2
        const V t639 = c[4] * t181;
        const V t640 = c[5] * t175;
        const V t641 = t640 - t639;
        const V t642 = c[2] * t349;
        const V t643 = c[3] * t343;
        const V t644 = t643 + t642;
        // complex block of 3, multiplier 2
        const V t645 = t641 - t644;
        const V t646 = c[0] * t645;
        const V t647 = t641 + t644;
        // complex block of 27, multiplier 2
        const V t648 = c[2] * t174;
        const V t649 = c[3] * t180;
        const V t650 = t648 - t649;
        const V t651 = c[6] * t342;
        const V t652 = c[7] * t348;
        const V t653 = t652 - t651;
        // complex block of 3, multiplier 2
        const V t654 = t650 + t653;
        const V t655 = c[0] * t654;
        const V t656 = t650 - t653;
        // complex block of 27, multiplier 2
        const V t657 = c[2] * t180;
        const V t658 = c[3] * t174;
        const V t659 = t658 + t657;
        const V t660 = c[6] * t348;
        const V t661 = c[7] * t342;
        const V t662 = t661 + t660;
        // complex block of 3, multiplier 2
        const V t663 = t662 - t659;
        const V t664 = c[0] * t663;
        const V t665 = t659 + t662;
        // complex block of 3, multiplier 2
        const V t666 = t566 - t281;
        const V t667 = t666 + t287;
        const V t668 = t666 - t287;
        const V t669 = t567 - t283;
        const V t670 = t669 - t285;
        const V t671 = t669 + t285;
        // complex block of 27, multiplier 2
        const V t672 = c[4] * t447;
        const V t673 = c[5] * t453;
        const V t674 = t673 + t672;
        const V t675 = c[2] * t71;
        const V t676 = c[3] * t77;
        const V t677 = t675 - t676;
        // complex block of 3, multiplier 2
        const V t678 = t674 + t677;
        const V t679 = c[0] * t678;
        const V t680 = t674 - t677;
        // complex block of 27, multiplier 2
        const V t681 = c[4] * t453;
        const V t682 = c[5] * t447;
        const V t683 = t682 - t681;
        const V t684 = c[2] * t77;
        const V t685 = c[3] * t71;
        const V t686 = t685 + t684;
        // complex block of 3, multiplier 2
        const V t687 = t683 - t686;
        const V t688 = c[0] * t687;
        const V t689 = t683 + t686;
        // complex block of 27, multiplier 2
        const V t690 = c[2] * t446;
        const V t691 = c[3] * t452;
        const V t692 = t690 - t691;
        const V t693 = c[6] * t70;
        const V t694 = c[7] * t76;
        const V t695 = t694 - t693;
        // complex block of 3, multiplier 2
        const V t696 = t692 + t695;
        const V t697 = c[0] * t696;
        const V t698 = t692 - t695;
        // complex block of 27, multiplier 2
        const V t699 = c[2] * t452;
        const V t700 = c[3] * t446;
        const V t701 = t700 + t699;
        const V t702 = c[6] * t76;
        const V t703 = c[7] * t70;
        const V t704 = t703 + t702;
        // complex block of 3, multiplier 2
        const V t705 = t704 - t701;
        const V t706 = c[0] * t705;
        const V t707 = t701 + t704;
        // complex block of 3, multiplier 2
        const V t708 = t636 + t626;
        // complex block of 3, multiplier 2
        const V t709 = t678 + t668;
        // complex block of 2
        const V t710 = t708 + t709;
        io.re(6, t710);
        const V t711 = t708 - t709;
        io.re(33, t711);
        // complex block of 3, multiplier 2
        const V t712 = t645 + t629;
        // complex block of 3, multiplier 2
        const V t713 = t687 + t671;
        // complex block of 2
        const V t714 = t712 + t713;
        io.im(6, t714);
        const V t715 = t712 - t713;
        io.im(33, t715);
        // complex block of 3, multiplier 2
        const V t716 = t626 - t637;
        const V t717 = c[1] * t647;
        const V t718 = t716 + t717;
        const V t719 = t716 - t717;
        // complex block of 3, multiplier 2
        const V t720 = t668 - t679;
        const V t721 = c[1] * t689;
        const V t722 = t720 + t721;
        const V t723 = t720 - t721;
        // complex block of 2
        const V t724 = t719 + t723;
        io.re(24, t724);
        const V t725 = t719 - t723;
        io.re(51, t725);
        // complex block of 2
        const V t726 = t718 + t722;
        io.re(42, t726);
        const V t727 = t718 - t722;
        io.re(15, t727);
        // complex block of 3, multiplier 2
        const V t728 = t629 - t646;
        const V t729 = c[1] * t638;
        const V t730 = t728 - t729;
        const V t731 = t728 + t729;
        // complex block of 3, multiplier 2
        const V t732 = t671 - t688;
        const V t733 = c[1] * t680;
        const V t734 = t732 - t733;
        const V t735 = t732 + t733;
        // complex block of 2
        const V t736 = t731 + t735;
        io.im(24, t736);
        const V t737 = t731 - t735;
        io.im(51, t737);
        // complex block of 2
        const V t738 = t730 + t734;
        io.im(42, t738);
        const V t739 = t730 - t734;
        io.im(15, t739);
        // complex block of 3, multiplier 2
        const V t740 = t654 + t625;
        // complex block of 3, multiplier 2
        const V t741 = t696 + t667;
        // complex block of 2
        const V t742 = t740 + t741;
        io.re(12, t742);
        const V t743 = t740 - t741;
        io.re(39, t743);
        // complex block of 3, multiplier 2
        const V t744 = t663 + t628;
        // complex block of 3, multiplier 2
        const V t745 = t705 + t670;
        // complex block of 2
        const V t746 = t744 + t745;
        io.im(12, t746);
        const V t747 = t744 - t745;
        io.im(39, t747);
        // complex block of 3, multiplier 2
        const V t748 = t625 - t655;
        const V t749 = c[1] * t665;
        const V t750 = t748 - t749;
        const V t751 = t748 + t749;
        // complex block of 3, multiplier 2
        const V t752 = t667 - t697;
        const V t753 = c[1] * t707;
        const V t754 = t752 - t753;
        const V t755 = t752 + t753;
        // complex block of 2
        const V t756 = t751 + t755;
        io.re(30, t756);
        const V t757 = t751 - t755;
        io.re(3, t757);
        // complex block of 2
        const V t758 = t750 + t754;
        io.re(48, t758);
        const V t759 = t750 - t754;
        io.re(21, t759);
        // complex block of 3, multiplier 2
        const V t760 = t628 - t664;
        const V t761 = c[1] * t656;
        const V t762 = t760 - t761;
        const V t763 = t760 + t761;
        // complex block of 3, multiplier 2
        const V t764 = t670 - t706;
        const V t765 = c[1] * t698;
        const V t766 = t764 - t765;
        const V t767 = t764 + t765;
        // complex block of 2
        const V t768 = t763 + t767;
        io.im(30, t768);
        const V t769 = t763 - t767;
        io.im(3, t769);
        // complex block of 2
        const V t770 = t762 + t766;
        io.im(48, t770);
        const V t771 = t762 - t766;
        io.im(21, t771);
        // complex block of 3, multiplier 2
        const V t772 = t534 + t550;
        const V t773 = c[0] * t772;
        const V t774 = t535 + t551;
        const V t775 = c[1] * t774;
        const V t776 = t772 + t11;
        const V t777 = t11 - t773;
        const V t778 = t777 + t775;
        const V t779 = t777 - t775;
        const V t780 = t535 - t551;
        const V t781 = c[0] * t780;
        const V t782 = t534 - t550;
        const V t783 = c[1] * t782;
        const V t784 = t780 + t15;
        const V t785 = t15 - t781;
        const V t786 = t785 - t783;
        const V t787 = t785 + t783;
        // complex block of 3, multiplier 2
        const V t788 = t190 + t165;
        // complex block of 27, multiplier 2
        const V t789 = c[14] * t788;
        const V t790 = c[15] * t788;
        // complex block of 3, multiplier 2
        const V t791 = t200 + t169;
        // complex block of 27, multiplier 2
        const V t792 = c[15] * t791;
        const V t793 = c[14] * t791;
        // complex block of 3, multiplier 2
        const V t794 = t358 + t333;
        // complex block of 27, multiplier 2
        const V t795 = c[8] * t794;
        const V t796 = c[9] * t794;
        // complex block of 3, multiplier 2
        const V t797 = t368 + t337;
        // complex block of 27, multiplier 2
        const V t798 = c[9] * t797;
        const V t799 = c[8] * t797;
        const V t800 = t789 + t792;
        const V t801 = t795 + t798;
        // complex block of 3, multiplier 2
        const V t802 = t800 + t801;
        const V t803 = t800 - t801;
        // complex block of 27, multiplier 2
        const V t804 = t793 - t790;
        const V t805 = t799 - t796;
        // complex block of 3, multiplier 2
        const V t806 = t804 + t805;
        const V t807 = t804 - t805;
        // complex block of 3, multiplier 2
        const V t808 = t165 - t191;
        const V t809 = t808 + t203;
        const V t810 = t808 - t203;
        // complex block of 27, multiplier 2
        const V t811 = c[10] * t810;
        const V t812 = c[11] * t810;
        const V t813 = c[16] * t809;
        const V t814 = c[17] * t809;
        // complex block of 3, multiplier 2
        const V t815 = t169 - t201;
        const V t816 = t815 - t193;
        const V t817 = t815 + t193;
        // complex block of 27, multiplier 2
        const V t818 = c[11] * t817;
        const V t819 = c[10] * t817;
        const V t820 = c[17] * t816;
        const V t821 = c[16] * t816;
        // complex block of 3, multiplier 2
        const V t822 = t333 - t359;
        const V t823 = t822 + t371;
        const V t824 = t822 - t371;
        // complex block of 27, multiplier 2
        const V t825 = c[12] * t824;
        const V t826 = c[13] * t824;
        const V t827 = c[18] * t823;
        const V t828 = c[19] * t823;
        // complex block of 3, multiplier 2
        const V t829 = t337 - t369;
        const V t830 = t829 - t361;
        const V t831 = t829 + t361;
        // complex block of 27, multiplier 2
        const V t832 = c[13] * t831;
        const V t833 = c[12] * t831;
        const V t834 = c[19] * t830;
        const V t835 = c[18] * t830;
        const V t836 = t818 - t811;
        const V t837 = t825 + t832;
        // complex block of 3, multiplier 2
        const V t838 = t836 - t837;
        // complex block of 27, multiplier 2
        const V t839 = t819 + t812;
        const V t840 = t826 - t833;
        // complex block of 3, multiplier 2
        const V t841 = t840 - t839;
        // complex block of 27, multiplier 2
        const V t842 = t813 + t820;
        const V t843 = t827 + t834;
        // complex block of 3, multiplier 2
        const V t844 = t843 - t842;
        // complex block of 27, multiplier 2
        const V t845 = t814 - t821;
        const V t846 = t835 - t828;
        // complex block of 3, multiplier 2
        const V t847 = t845 + t846;
        // complex block of 3, multiplier 2
        const V t848 = t262 + t278;
        const V t849 = c[0] * t848;
        const V t850 = t263 + t279;
        const V t851 = c[1] * t850;
        const V t852 = t848 + t571;
        const V t853 = t571 - t849;
        const V t854 = t853 + t851;
        const V t855 = t853 - t851;
        const V t856 = t263 - t279;
        const V t857 = c[0] * t856;
        const V t858 = t262 - t278;
        const V t859 = c[1] * t858;
        const V t860 = t856 + t575;
        const V t861 = t575 - t857;
        const V t862 = t861 - t859;
        const V t863 = t861 + t859;
        // complex block of 3, multiplier 2
        const V t864 = t462 + t437;
        // complex block of 27, multiplier 2
        const V t865 = c[14] * t864;
        const V t866 = c[15] * t864;
        // complex block of 3, multiplier 2
        const V t867 = t472 + t441;
        // complex block of 27, multiplier 2
        const V t868 = c[15] * t867;
        const V t869 = c[14] * t867;
        // complex block of 3, multiplier 2
        const V t870 = t86 + t61;
        // complex block of 27, multiplier 2
        const V t871 = c[8] * t870;
        const V t872 = c[9] * t870;
        // complex block of 3, multiplier 2
        const V t873 = t96 + t65;
        // complex block of 27, multiplier 2
        const V t874 = c[9] * t873;
        const V t875 = c[8] * t873;
        const V t876 = t865 + t868;
        const V t877 = t871 + t874;
        // complex block of 3, multiplier 2
        const V t878 = t876 + t877;
        const V t879 = t876 - t877;
        // complex block of 27, multiplier 2
        const V t880 = t869 - t866;
        const V t881 = t875 - t872;
        // complex block of 3, multiplier 2
        const V t882 = t880 + t881;
        const V t883 = t880 - t881;
        // complex block of 3, multiplier 2
        const V t884 = t437 - t463;
        const V t885 = t884 + t475;
        const V t886 = t884 - t475;
        // complex block of 27, multiplier 2
        const V t887 = c[10] * t886;
        const V t888 = c[11] * t886;
        const V t889 = c[16] * t885;
        const V t890 = c[17] * t885;
        // complex block of 3, multiplier 2
        const V t891 = t441 - t473;
        const V t892 = t891 - t465;
        const V t893 = t891 + t465;
        // complex block of 27, multiplier 2
        const V t894 = c[11] * t893;
        const V t895 = c[10] * t893;
        const V t896 = c[17] * t892;
        const V t897 = c[16] * t892;
        // complex block of 3, multiplier 2
        const V t898 = t61 - t87;
        const V t899 = t898 + t99;
        const V t900 = t898 - t99;
        // complex block of 27, multiplier 2
        const V t901 = c[12] * t900;
        const V t902 = c[13] * t900;
        const V t903 = c[18] * t899;
        const V t904 = c[19] * t899;
        // complex block of 3, multiplier 2
        const V t905 = t65 - t97;
        const V t906 = t905 - t89;
        const V t907 = t905 + t89;
        // complex block of 27, multiplier 2
        const V t908 = c[13] * t907;
        const V t909 = c[12] * t907;
        const V t910 = c[19] * t906;
        const V t911 = c[18] * t906;
        const V t912 = t894 - t887;
        const V t913 = t901 + t908;
        // complex block of 3, multiplier 2
        const V t914 = t912 - t913;
        // complex block of 27, multiplier 2
        const V t915 = t895 + t888;
        const V t916 = t902 - t909;
        // complex block of 3, multiplier 2
        const V t917 = t916 - t915;
        // complex block of 27, multiplier 2
        const V t918 = t889 + t896;
        const V t919 = t903 + t910;
        // complex block of 3, multiplier 2
        const V t920 = t919 - t918;
        // complex block of 27, multiplier 2
        const V t921 = t890 - t897;
        const V t922 = t911 - t904;
        // complex block of 3, multiplier 2
        const V t923 = t921 + t922;
        // complex block of 3, multiplier 2
        const V t924 = t802 + t776;
        // complex block of 3, multiplier 2
        const V t925 = t878 + t852;
        // complex block of 2
        const V t926 = t924 + t925;
        io.re(2, t926);
        const V t927 = t924 - t925;
        io.re(29, t927);
        // complex block of 3, multiplier 2
        const V t928 = t806 + t784;
        // complex block of 3, multiplier 2
        const V t929 = t882 + t860;
        // complex block of 2
        const V t930 = t928 + t929;
        io.im(2, t930);
        const V t931 = t928 - t929;
        io.im(29, t931);
        // complex block of 3, multiplier 2
        const V t932 = c[0] * t802;
        const V t933 = t776 - t932;
        const V t934 = c[1] * t807;
        // complex block of 3, multiplier 2
        const V t935 = c[0] * t878;
        const V t936 = t852 - t935;
        const V t937 = c[1] * t883;
        // complex block of 3, multiplier 2
        const V t938 = t933 + t934;
        // complex block of 3, multiplier 2
        const V t939 = t936 + t937;
        // complex block of 2
        const V t940 = t938 + t939;
        io.re(38, t940);
        const V t941 = t938 - t939;
        io.re(11, t941);
        // complex block of 3, multiplier 2
        const V t942 = t933 - t934;
        // complex block of 3, multiplier 2
        const V t943 = t936 - t937;
        // complex block of 2
        const V t944 = t942 + t943;
        io.re(20, t944);
        const V t945 = t942 - t943;
        io.re(47, t945);
        // complex block of 3, multiplier 2
        const V t946 = c[0] * t806;
        const V t947 = t784 - t946;
        const V t948 = c[1] * t803;
        // complex block of 3, multiplier 2
        const V t949 = c[0] * t882;
        const V t950 = t860 - t949;
        const V t951 = c[1] * t879;
        // complex block of 3, multiplier 2
        const V t952 = t947 - t948;
        // complex block of 3, multiplier 2
        const V t953 = t950 - t951;
        // complex block of 2
        const V t954 = t952 + t953;
        io.im(38, t954);
        const V t955 = t952 - t953;
        io.im(11, t955);
        // complex block of 3, multiplier 2
        const V t956 = t947 + t948;
        // complex block of 3, multiplier 2
        const V t957 = t950 + t951;
        // complex block of 2
        const V t958 = t956 + t957;
        io.im(20, t958);
        const V t959 = t956 - t957;
        io.im(47, t959);
        // complex block of 3, multiplier 2
        const V t960 = t836 + t837;
        const V t961 = c[1] * t960;
        const V t962 = c[0] * t841;
        const V t963 = t787 - t962;
        // complex block of 3, multiplier 2
        const V t964 = t912 + t913;
        const V t965 = c[1] * t964;
        const V t966 = c[0] * t917;
        const V t967 = t863 - t966;
        // complex block of 3, multiplier 2
        const V t968 = t963 - t961;
        // complex block of 3, multiplier 2
        const V t969 = t967 - t965;
        // complex block of 2
        const V t970 = t968 + t969;
        io.im(44, t970);
        const V t971 = t968 - t969;
        io.im(17, t971);
        // complex block of 3, multiplier 2
        const V t972 = t963 + t961;
        // complex block of 3, multiplier 2
        const V t973 = t967 + t965;
        // complex block of 2
        const V t974 = t972 + t973;
        io.im(26, t974);
        const V t975 = t972 - t973;
        io.im(53, t975);
        // complex block of 3, multiplier 2
        const V t976 = t839 + t840;
        const V t977 = c[1] * t976;
        const V t978 = c[0] * t838;
        const V t979 = t779 - t978;
        // complex block of 3, multiplier 2
        const V t980 = t915 + t916;
        const V t981 = c[1] * t980;
        const V t982 = c[0] * t914;
        const V t983 = t855 - t982;
        // complex block of 3, multiplier 2
        const V t984 = t979 - t977;
        // complex block of 3, multiplier 2
        const V t985 = t983 - t981;
        // complex block of 2
        const V t986 = t984 + t985;
        io.re(44, t986);
        const V t987 = t984 - t985;
        io.re(17, t987);
        // complex block of 3, multiplier 2
        const V t988 = t979 + t977;
        // complex block of 3, multiplier 2
        const V t989 = t983 + t981;
        // complex block of 2
        const V t990 = t988 + t989;
        io.re(26, t990);
        const V t991 = t988 - t989;
        io.re(53, t991);
        // complex block of 3, multiplier 2
        const V t992 = t838 + t779;
        // complex block of 3, multiplier 2
        const V t993 = t914 + t855;
        // complex block of 2
        const V t994 = t992 + t993;
        io.re(8, t994);
        const V t995 = t992 - t993;
        io.re(35, t995);
        // complex block of 3, multiplier 2
        const V t996 = t841 + t787;
        // complex block of 3, multiplier 2
        const V t997 = t917 + t863;
        // complex block of 2
        const V t998 = t996 + t997;
        io.im(8, t998);
        const V t999 = t996 - t997;
        io.im(35, t999);
        // complex block of 3, multiplier 2
        const V t1000 = t842 + t843;
        const V t1001 = c[1] * t1000;
        const V t1002 = c[0] * t847;
        const V t1003 = t786 - t1002;
        // complex block of 3, multiplier 2
        const V t1004 = t918 + t919;
        const V t1005 = c[1] * t1004;
        const V t1006 = c[0] * t923;
        const V t1007 = t862 - t1006;
        // complex block of 3, multiplier 2
        const V t1008 = t1003 + t1001;
        // complex block of 3, multiplier 2
        const V t1009 = t1007 + t1005;
        // complex block of 2
        const V t1010 = t1008 + t1009;
        io.im(50, t1010);
        const V t1011 = t1008 - t1009;
        io.im(23, t1011);
        // complex block of 3, multiplier 2
        const V t1012 = t1003 - t1001;
        // complex block of 3, multiplier 2
        const V t1013 = t1007 - t1005;
        // complex block of 2
        const V t1014 = t1012 + t1013;
        io.im(32, t1014);
        const V t1015 = t1012 - t1013;
        io.im(5, t1015);
        // complex block of 3, multiplier 2
        const V t1016 = t845 - t846;
        const V t1017 = c[1] * t1016;
        const V t1018 = c[0] * t844;
        const V t1019 = t778 - t1018;
        // complex block of 3, multiplier 2
        const V t1020 = t921 - t922;
        const V t1021 = c[1] * t1020;
        const V t1022 = c[0] * t920;
        const V t1023 = t854 - t1022;
        // complex block of 3, multiplier 2
        const V t1024 = t1019 + t1017;
        // complex block of 3, multiplier 2
        const V t1025 = t1023 + t1021;
        // complex block of 2
        const V t1026 = t1024 + t1025;
        io.re(50, t1026);
        const V t1027 = t1024 - t1025;
        io.re(23, t1027);
        // complex block of 3, multiplier 2
        const V t1028 = t1019 - t1017;
        // complex block of 3, multiplier 2
        const V t1029 = t1023 - t1021;
        // complex block of 2
        const V t1030 = t1028 + t1029;
        io.re(32, t1030);
        const V t1031 = t1028 - t1029;
        io.re(5, t1031);
        // complex block of 3, multiplier 2
        const V t1032 = t844 + t778;
        // complex block of 3, multiplier 2
        const V t1033 = t920 + t854;
        // complex block of 2
        const V t1034 = t1032 + t1033;
        io.re(14, t1034);
        const V t1035 = t1032 - t1033;
        io.re(41, t1035);
        // complex block of 3, multiplier 2
        const V t1036 = t847 + t786;
        // complex block of 3, multiplier 2
        const V t1037 = t923 + t862;
        // complex block of 2
        const V t1038 = t1036 + t1037;
        io.im(14, t1038);
        const V t1039 = t1036 - t1037;
        io.im(41, t1039);
        // complex block of 3, multiplier 2
        const V t1040 = t526 + t542;
        const V t1041 = c[0] * t1040;
        const V t1042 = t527 + t543;
        const V t1043 = c[1] * t1042;
        const V t1044 = t1040 + t10;
        const V t1045 = t10 - t1041;
        const V t1046 = t1045 - t1043;
        const V t1047 = t1045 + t1043;
        const V t1048 = t543 - t527;
        const V t1049 = c[0] * t1048;
        const V t1050 = t526 - t542;
        const V t1051 = c[1] * t1050;
        const V t1052 = t1048 + t14;
        const V t1053 = t14 - t1049;
        const V t1054 = t1053 - t1051;
        const V t1055 = t1053 + t1051;
        // complex block of 3, multiplier 2
        const V t1056 = t210 + t164;
        // complex block of 27, multiplier 2
        const V t1057 = c[8] * t1056;
        const V t1058 = c[9] * t1056;
        // complex block of 3, multiplier 2
        const V t1059 = t220 + t168;
        // complex block of 27, multiplier 2
        const V t1060 = c[9] * t1059;
        const V t1061 = c[8] * t1059;
        // complex block of 3, multiplier 2
        const V t1062 = t378 + t332;
        // complex block of 27, multiplier 2
        const V t1063 = c[10] * t1062;
        const V t1064 = c[11] * t1062;
        // complex block of 3, multiplier 2
        const V t1065 = t388 + t336;
        // complex block of 27, multiplier 2
        const V t1066 = c[11] * t1065;
        const V t1067 = c[10] * t1065;
        const V t1068 = t1057 + t1060;
        const V t1069 = t1066 - t1063;
        // complex block of 3, multiplier 2
        const V t1070 = t1068 + t1069;
        const V t1071 = t1068 - t1069;
        // complex block of 27, multiplier 2
        const V t1072 = t1061 - t1058;
        const V t1073 = t1067 + t1064;
        // complex block of 3, multiplier 2
        const V t1074 = t1072 - t1073;
        const V t1075 = t1072 + t1073;
        // complex block of 3, multiplier 2
        const V t1076 = t164 - t211;
        const V t1077 = t1076 - t223;
        const V t1078 = t1076 + t223;
        // complex block of 27, multiplier 2
        const V t1079 = c[20] * t1078;
        const V t1080 = c[21] * t1078;
        const V t1081 = c[12] * t1077;
        const V t1082 = c[13] * t1077;
        // complex block of 3, multiplier 2
        const V t1083 = t168 - t221;
        const V t1084 = t1083 - t213;
        const V t1085 = t1083 + t213;
        // complex block of 27, multiplier 2
        const V t1086 = c[21] * t1085;
        const V t1087 = c[20] * t1085;
        const V t1088 = c[13] * t1084;
        const V t1089 = c[12] * t1084;
        // complex block of 3, multiplier 2
        const V t1090 = t332 - t379;
        const V t1091 = t1090 - t391;
        const V t1092 = t1090 + t391;
        // complex block of 27, multiplier 2
        const V t1093 = c[22] * t1092;
        const V t1094 = c[23] * t1092;
        const V t1095 = c[24] * t1091;
        const V t1096 = c[25] * t1091;
        // complex block of 3, multiplier 2
        const V t1097 = t336 - t389;
        const V t1098 = t1097 - t381;
        const V t1099 = t1097 + t381;
        // complex block of 27, multiplier 2
        const V t1100 = c[23] * t1099;
        const V t1101 = c[22] * t1099;
        const V t1102 = c[25] * t1098;
        const V t1103 = c[24] * t1098;
        const V t1104 = t1086 - t1079;
        const V t1105 = t1093 + t1100;
        // complex block of 3, multiplier 2
        const V t1106 = t1104 - t1105;
        // complex block of 27, multiplier 2
        const V t1107 = t1087 + t1080;
        const V t1108 = t1094 - t1101;
        // complex block of 3, multiplier 2
        const V t1109 = t1108 - t1107;
        // complex block of 27, multiplier 2
        const V t1110 = t1081 + t1088;
        const V t1111 = t1095 + t1102;
        // complex block of 3, multiplier 2
        const V t1112 = t1111 - t1110;
        // complex block of 27, multiplier 2
        const V t1113 = t1082 - t1089;
        const V t1114 = t1103 - t1096;
        // complex block of 3, multiplier 2
        const V t1115 = t1113 + t1114;
        // complex block of 3, multiplier 2
        const V t1116 = t254 + t270;
        const V t1117 = c[0] * t1116;
        const V t1118 = t255 + t271;
        const V t1119 = c[1] * t1118;
        const V t1120 = t1116 + t570;
        const V t1121 = t570 - t1117;
        const V t1122 = t1121 - t1119;
        const V t1123 = t1121 + t1119;
        const V t1124 = t271 - t255;
        const V t1125 = c[0] * t1124;
        const V t1126 = t254 - t270;
        const V t1127 = c[1] * t1126;
        const V t1128 = t1124 + t574;
        const V t1129 = t574 - t1125;
        const V t1130 = t1129 - t1127;
        const V t1131 = t1129 + t1127;
        // complex block of 3, multiplier 2
        const V t1132 = t482 + t436;
        // complex block of 27, multiplier 2
        const V t1133 = c[8] * t1132;
        const V t1134 = c[9] * t1132;
        // complex block of 3, multiplier 2
        const V t1135 = t492 + t440;
        // complex block of 27, multiplier 2
        const V t1136 = c[9] * t1135;
        const V t1137 = c[8] * t1135;
        // complex block of 3, multiplier 2
        const V t1138 = t106 + t60;
        // complex block of 27, multiplier 2
        const V t1139 = c[10] * t1138;
        const V t1140 = c[11] * t1138;
        // complex block of 3, multiplier 2
        const V t1141 = t116 + t64;
        // complex block of 27, multiplier 2
        const V t1142 = c[11] * t1141;
        const V t1143 = c[10] * t1141;
        const V t1144 = t1133 + t1136;
        const V t1145 = t1142 - t1139;
        // complex block of 3, multiplier 2
        const V t1146 = t1144 + t1145;
        const V t1147 = t1144 - t1145;
        // complex block of 27, multiplier 2
        const V t1148 = t1137 - t1134;
        const V t1149 = t1143 + t1140;
        // complex block of 3, multiplier 2
        const V t1150 = t1148 - t1149;
        const V t1151 = t1148 + t1149;
        // complex block of 3, multiplier 2
        const V t1152 = t436 - t483;
        const V t1153 = t1152 - t495;
        const V t1154 = t1152 + t495;
        // complex block of 27, multiplier 2
        const V t1155 = c[20] * t1154;
        const V t1156 = c[21] * t1154;
        const V t1157 = c[12] * t1153;
        const V t1158 = c[13] * t1153;
        // complex block of 3, multiplier 2
        const V t1159 = t440 - t493;
        const V t1160 = t1159 - t485;
        const V t1161 = t1159 + t485;
        // complex block of 27, multiplier 2
        const V t1162 = c[21] * t1161;
        const V t1163 = c[20] * t1161;
        const V t1164 = c[13] * t1160;
        const V t1165 = c[12] * t1160;
        // complex block of 3, multiplier 2
        const V t1166 = t60 - t107;
        const V t1167 = t1166 - t119;
        const V t1168 = t1166 + t119;
        // complex block of 27, multiplier 2
        const V t1169 = c[22] * t1168;
        const V t1170 = c[23] * t1168;
        const V t1171 = c[24] * t1167;
        const V t1172 = c[25] * t1167;
        // complex block of 3, multiplier 2
        const V t1173 = t64 - t117;
        const V t1174 = t1173 - t109;
        const V t1175 = t1173 + t109;
        // complex block of 27, multiplier 2
        const V t1176 = c[23] * t1175;
        const V t1177 = c[22] * t1175;
        const V t1178 = c[25] * t1174;
        const V t1179 = c[24] * t1174;
        const V t1180 = t1162 - t1155;
        const V t1181 = t1169 + t1176;
        // complex block of 3, multiplier 2
        const V t1182 = t1180 - t1181;
        // complex block of 27, multiplier 2
        const V t1183 = t1163 + t1156;
        const V t1184 = t1170 - t1177;
        // complex block of 3, multiplier 2
        const V t1185 = t1184 - t1183;
        // complex block of 27, multiplier 2
        const V t1186 = t1157 + t1164;
        const V t1187 = t1171 + t1178;
        // complex block of 3, multiplier 2
        const V t1188 = t1187 - t1186;
        // complex block of 27, multiplier 2
        const V t1189 = t1158 - t1165;
        const V t1190 = t1179 - t1172;
        // complex block of 3, multiplier 2
        const V t1191 = t1189 + t1190;
        // complex block of 3, multiplier 2
        const V t1192 = t1070 + t1044;
        // complex block of 3, multiplier 2
        const V t1193 = t1146 + t1120;
        // complex block of 2
        const V t1194 = t1192 + t1193;
        io.re(4, t1194);
        const V t1195 = t1192 - t1193;
        io.re(31, t1195);
        // complex block of 3, multiplier 2
        const V t1196 = t1074 + t1052;
        // complex block of 3, multiplier 2
        const V t1197 = t1150 + t1128;
        // complex block of 2
        const V t1198 = t1196 + t1197;
        io.im(4, t1198);
        const V t1199 = t1196 - t1197;
        io.im(31, t1199);
        // complex block of 3, multiplier 2
        const V t1200 = c[0] * t1070;
        const V t1201 = t1044 - t1200;
        const V t1202 = c[1] * t1075;
        // complex block of 3, multiplier 2
        const V t1203 = c[0] * t1146;
        const V t1204 = t1120 - t1203;
        const V t1205 = c[1] * t1151;
        // complex block of 3, multiplier 2
        const V t1206 = t1201 + t1202;
        // complex block of 3, multiplier 2
        const V t1207 = t1204 + t1205;
        // complex block of 2
        const V t1208 = t1206 + t1207;
        io.re(40, t1208);
        const V t1209 = t1206 - t1207;
        io.re(13, t1209);
        // complex block of 3, multiplier 2
        const V t1210 = t1201 - t1202;
        // complex block of 3, multiplier 2
        const V t1211 = t1204 - t1205;
        // complex block of 2
        const V t1212 = t1210 + t1211;
        io.re(22, t1212);
        const V t1213 = t1210 - t1211;
        io.re(49, t1213);
        // complex block of 3, multiplier 2
        const V t1214 = c[0] * t1074;
        const V t1215 = t1052 - t1214;
        const V t1216 = c[1] * t1071;
        // complex block of 3, multiplier 2
        const V t1217 = c[0] * t1150;
        const V t1218 = t1128 - t1217;
        const V t1219 = c[1] * t1147;
        // complex block of 3, multiplier 2
        const V t1220 = t1215 - t1216;
        // complex block of 3, multiplier 2
        const V t1221 = t1218 - t1219;
        // complex block of 2
        const V t1222 = t1220 + t1221;
        io.im(40, t1222);
        const V t1223 = t1220 - t1221;
        io.im(13, t1223);
        // complex block of 3, multiplier 2
        const V t1224 = t1215 + t1216;
        // complex block of 3, multiplier 2
        const V t1225 = t1218 + t1219;
        // complex block of 2
        const V t1226 = t1224 + t1225;
        io.im(22, t1226);
        const V t1227 = t1224 - t1225;
        io.im(49, t1227);
        // complex block of 3, multiplier 2
        const V t1228 = t1104 + t1105;
        const V t1229 = c[1] * t1228;
        const V t1230 = c[0] * t1109;
        const V t1231 = t1055 - t1230;
        // complex block of 3, multiplier 2
        const V t1232 = t1180 + t1181;
        const V t1233 = c[1] * t1232;
        const V t1234 = c[0] * t1185;
        const V t1235 = t1131 - t1234;
        // complex block of 3, multiplier 2
        const V t1236 = t1231 - t1229;
        // complex block of 3, multiplier 2
        const V t1237 = t1235 - t1233;
        // complex block of 2
        const V t1238 = t1236 + t1237;
        io.im(46, t1238);
        const V t1239 = t1236 - t1237;
        io.im(19, t1239);
        // complex block of 3, multiplier 2
        const V t1240 = t1231 + t1229;
        // complex block of 3, multiplier 2
        const V t1241 = t1235 + t1233;
        // complex block of 2
        const V t1242 = t1240 + t1241;
        io.im(28, t1242);
        const V t1243 = t1240 - t1241;
        io.im(1, t1243);
        // complex block of 3, multiplier 2
        const V t1244 = t1107 + t1108;
        const V t1245 = c[1] * t1244;
        const V t1246 = c[0] * t1106;
        const V t1247 = t1047 - t1246;
        // complex block of 3, multiplier 2
        const V t1248 = t1183 + t1184;
        const V t1249 = c[1] * t1248;
        const V t1250 = c[0] * t1182;
        const V t1251 = t1123 - t1250;
        // complex block of 3, multiplier 2
        const V t1252 = t1247 - t1245;
        // complex block of 3, multiplier 2
        const V t1253 = t1251 - t1249;
        // complex block of 2
        const V t1254 = t1252 + t1253;
        io.re(46, t1254);
        const V t1255 = t1252 - t1253;
        io.re(19, t1255);
        // complex block of 3, multiplier 2
        const V t1256 = t1247 + t1245;
        // complex block of 3, multiplier 2
        const V t1257 = t1251 + t1249;
        // complex block of 2
        const V t1258 = t1256 + t1257;
        io.re(28, t1258);
        const V t1259 = t1256 - t1257;
        io.re(1, t1259);
        // complex block of 3, multiplier 2
        const V t1260 = t1106 + t1047;
        // complex block of 3, multiplier 2
        const V t1261 = t1182 + t1123;
        // complex block of 2
        const V t1262 = t1260 + t1261;
        io.re(10, t1262);
        const V t1263 = t1260 - t1261;
        io.re(37, t1263);
        // complex block of 3, multiplier 2
        const V t1264 = t1109 + t1055;
        // complex block of 3, multiplier 2
        const V t1265 = t1185 + t1131;
        // complex block of 2
        const V t1266 = t1264 + t1265;
        io.im(10, t1266);
        const V t1267 = t1264 - t1265;
        io.im(37, t1267);
        // complex block of 3, multiplier 2
        const V t1268 = t1110 + t1111;
        const V t1269 = c[1] * t1268;
        const V t1270 = c[0] * t1115;
        const V t1271 = t1054 - t1270;
        // complex block of 3, multiplier 2
        const V t1272 = t1186 + t1187;
        const V t1273 = c[1] * t1272;
        const V t1274 = c[0] * t1191;
        const V t1275 = t1130 - t1274;
        // complex block of 3, multiplier 2
        const V t1276 = t1271 + t1269;
        // complex block of 3, multiplier 2
        const V t1277 = t1275 + t1273;
        // complex block of 2
        const V t1278 = t1276 + t1277;
        io.im(52, t1278);
        const V t1279 = t1276 - t1277;
        io.im(25, t1279);
        // complex block of 3, multiplier 2
        const V t1280 = t1271 - t1269;
        // complex block of 3, multiplier 2
        const V t1281 = t1275 - t1273;
        // complex block of 2
        const V t1282 = t1280 + t1281;
        io.im(34, t1282);
        const V t1283 = t1280 - t1281;
        io.im(7, t1283);
        // complex block of 3, multiplier 2
        const V t1284 = t1113 - t1114;
        const V t1285 = c[1] * t1284;
        const V t1286 = c[0] * t1112;
        const V t1287 = t1046 - t1286;
        // complex block of 3, multiplier 2
        const V t1288 = t1189 - t1190;
        const V t1289 = c[1] * t1288;
        const V t1290 = c[0] * t1188;
        const V t1291 = t1122 - t1290;
        // complex block of 3, multiplier 2
        const V t1292 = t1287 + t1285;
        // complex block of 3, multiplier 2
        const V t1293 = t1291 + t1289;
        // complex block of 2
        const V t1294 = t1292 + t1293;
        io.re(52, t1294);
        const V t1295 = t1292 - t1293;
        io.re(25, t1295);
        // complex block of 3, multiplier 2
        const V t1296 = t1287 - t1285;
        // complex block of 3, multiplier 2
        const V t1297 = t1291 - t1289;
        // complex block of 2
        const V t1298 = t1296 + t1297;
        io.re(34, t1298);
        const V t1299 = t1296 - t1297;
        io.re(7, t1299);
        // complex block of 3, multiplier 2
        const V t1300 = t1112 + t1046;
        // complex block of 3, multiplier 2
        const V t1301 = t1188 + t1122;
        // complex block of 2
        const V t1302 = t1300 + t1301;
        io.re(16, t1302);
        const V t1303 = t1300 - t1301;
        io.re(43, t1303);
        // complex block of 3, multiplier 2
        const V t1304 = t1115 + t1054;
        // complex block of 3, multiplier 2
        const V t1305 = t1191 + t1130;
        // complex block of 2
        const V t1306 = t1304 + t1305;
        io.im(16, t1306);
        const V t1307 = t1304 - t1305;
        io.im(43, t1307);
    }
};

}  // namespace zulg
