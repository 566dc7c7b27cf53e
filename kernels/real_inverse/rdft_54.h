// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 54.
// Inverse DFT to 54 real points, prime-factor 27, 2.
// 191 additions, 191 subtractions, 250 multiplications (304 with `scale`); 38 constants; 71 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<54> {
    static constexpr int steps = 686;  // with `scale`
    static constexpr double inverseRoot = 0.13608276348795434;  // 1/sqrt(54), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9396926207859084,  // c[2]: -cos 2 pi 5/9
        0.3420201433256687,  // c[3]: -sin 2 pi 5/9
        0.17364817766693036,  // c[4]: cos 2 pi 7/9
        0.984807753012208,  // c[5]: -sin 2 pi 7/9
        0.766044443118978,  // c[6]: cos 2 pi 8/9
        0.6427876096865394,  // c[7]: -sin 2 pi 8/9
        0.1503837331804353,  // c[8]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.29619813272602386,  // c[10]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[11]: sin 2 pi 1/3 times -cos 2 pi 5/9
        1.7320508075688772,  // c[12]: sin 2 pi 1/3 times 2
        0.44879918020046217,  // c[13]: -sin 2 pi 25/27
        0.7739085681710371,  // c[14]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.8936326403234123,  // c[15]: cos 2 pi 25/27
        0.3886714912512303,  // c[16]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.9579895123154889,  // c[17]: -sin 2 pi 19/27
        0.28680323271109026,  // c[18]: -cos 2 pi 19/27
        0.11609291412523023,  // c[19]: sin 2 pi 13/27
        0.993238357741943,  // c[20]: -cos 2 pi 13/27
        0.8296432542242788,  // c[21]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.24837888541530426,  // c[22]: sin 2 pi 1/3 times -cos 2 pi 19/27
        0.8601696498176589,  // c[23]: sin 2 pi 1/3 times -cos 2 pi 13/27
        0.10053941283181467,  // c[24]: sin 2 pi 1/3 times sin 2 pi 13/27
        0.8021231927550437,  // c[25]: -sin 2 pi 23/27
        0.5171545105027521,  // c[26]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.5971585917027862,  // c[27]: cos 2 pi 23/27
        0.6946590618905499,  // c[28]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.7273736415730487,  // c[29]: -sin 2 pi 17/27
        0.6862416378687336,  // c[30]: -cos 2 pi 17/27
        0.549508978070806,  // c[31]: sin 2 pi 11/27
        0.8354878114129364,  // c[32]: -cos 2 pi 11/27
        0.6299240516454571,  // c[33]: sin 2 pi 1/3 times -sin 2 pi 17/27
        0.5943026915289645,  // c[34]: sin 2 pi 1/3 times -cos 2 pi 17/27
        0.7235536692358652,  // c[35]: sin 2 pi 1/3 times -cos 2 pi 11/27
        0.47588873461694403,  // c[36]: sin 2 pi 1/3 times sin 2 pi 11/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x18r = io.re(18);
        const V t0 = two * x18r;
        // spectrum block of 3, multiplier 2
        const V t1 = c[0] * t0;
        const V x18i = io.im(18);
        const V t2 = c[12] * x18i;
        const V x0r = io.re(0);
        const V t3 = t0 + x0r;
        const V t4 = x0r - t1;
        const V t5 = t4 - t2;
        const V t6 = t4 + t2;
        // doubled bins
        const V x1r = io.re(1);
        const V t7 = two * x1r;
        const V x17r = io.re(17);
        const V t8 = two * x17r;
        // complex block of 3, multiplier 2
        const V t9 = t7 + t8;
        // doubled bins
        const V x19r = io.re(19);
        const V t10 = two * x19r;
        // complex block of 3, multiplier 2
        const V t11 = t7 - t8;
        const V t12 = c[1] * t11;
        const V t13 = t9 + t10;
        const V t14 = c[0] * t9;
        const V t15 = t10 - t14;
        // doubled bins
        const V x1i = io.im(1);
        const V t16 = two * x1i;
        const V x17i = io.im(17);
        const V t17 = two * x17i;
        // complex block of 3, multiplier 2
        const V t18 = t17 - t16;
        // doubled bins
        const V x19i = io.im(19);
        const V t19 = two * x19i;
        // complex block of 3, multiplier 2
        const V t20 = t16 + t17;
        const V t21 = c[1] * t20;
        const V t22 = t18 - t19;
        const V t23 = c[0] * t18;
        const V t24 = t19 + t23;
        // doubled bins
        const V x5r = io.re(5);
        const V t25 = two * x5r;
        const V x23r = io.re(23);
        const V t26 = two * x23r;
        // complex block of 3, multiplier 2
        const V t27 = t25 + t26;
        // doubled bins
        const V x13r = io.re(13);
        const V t28 = two * x13r;
        // complex block of 3, multiplier 2
        const V t29 = t25 - t26;
        const V t30 = c[1] * t29;
        const V t31 = t27 + t28;
        const V t32 = c[0] * t27;
        const V t33 = t28 - t32;
        // doubled bins
        const V x5i = io.im(5);
        const V t34 = two * x5i;
        const V x23i = io.im(23);
        const V t35 = two * x23i;
        // complex block of 3, multiplier 2
        const V t36 = t34 + t35;
        // doubled bins
        const V x13i = io.im(13);
        const V t37 = two * x13i;
        // complex block of 3, multiplier 2
        const V t38 = t34 - t35;
        const V t39 = c[1] * t38;
        const V t40 = t36 - t37;
        const V t41 = c[0] * t36;
        const V t42 = t37 + t41;
        // doubled bins
        const V x7r = io.re(7);
        const V t43 = two * x7r;
        const V x11r = io.re(11);
        const V t44 = two * x11r;
        // complex block of 3, multiplier 2
        const V t45 = t43 + t44;
        const V t46 = t43 - t44;
        // doubled bins
        const V x7i = io.im(7);
        const V t47 = two * x7i;
        const V x11i = io.im(11);
        const V t48 = two * x11i;
        // complex block of 3, multiplier 2
        const V t49 = t48 - t47;
        const V t50 = t47 + t48;
        // doubled bins
        const V x25r = io.re(25);
        const V t51 = two * x25r;
        const V x25i = io.im(25);
        const V t52 = two * x25i;
        // complex block of 3, multiplier 2
        const V t53 = t49 - t52;
        // complex block of 3, multiplier 2
        const V t54 = t22 + t40;
        const V t55 = c[0] * t54;
        const V t56 = t53 - t55;
        // complex block of 3, multiplier 2
        const V t57 = t45 + t51;
        // complex block of 3, multiplier 2
        const V t58 = t13 + t31;
        const V t59 = c[0] * t58;
        const V t60 = t57 - t59;
        // complex block of 3, multiplier 2
        const V t61 = c[0] * t49;
        const V t62 = t52 + t61;
        const V t63 = c[1] * t46;
        const V t64 = t63 - t62;
        const V t65 = t62 + t63;
        const V t66 = c[0] * t45;
        const V t67 = t51 - t66;
        const V t68 = c[1] * t50;
        const V t69 = t67 + t68;
        const V t70 = t67 - t68;
        // complex block of 3, multiplier 2
        const V t71 = t12 - t24;
        // complex block of 9, multiplier 2
        const V t72 = c[2] * t71;
        const V t73 = c[3] * t71;
        // complex block of 3, multiplier 2
        const V t74 = t15 + t21;
        // complex block of 9, multiplier 2
        const V t75 = c[3] * t74;
        const V t76 = c[2] * t74;
        // complex block of 3, multiplier 2
        const V t77 = t30 - t42;
        // complex block of 9, multiplier 2
        const V t78 = c[6] * t77;
        const V t79 = c[7] * t77;
        // complex block of 3, multiplier 2
        const V t80 = t33 - t39;
        // complex block of 9, multiplier 2
        const V t81 = c[7] * t80;
        const V t82 = c[6] * t80;
        const V t83 = t75 - t72;
        const V t84 = t78 - t81;
        // complex block of 3, multiplier 2
        const V t85 = t83 + t84;
        const V t86 = t83 - t84;
        // complex block of 9, multiplier 2
        const V t87 = t76 + t73;
        const V t88 = t82 + t79;
        // complex block of 3, multiplier 2
        const V t89 = t88 - t87;
        const V t90 = t87 + t88;
        // complex block of 3, multiplier 2
        const V t91 = t24 + t12;
        // complex block of 9, multiplier 2
        const V t92 = c[4] * t91;
        const V t93 = c[5] * t91;
        // complex block of 3, multiplier 2
        const V t94 = t15 - t21;
        // complex block of 9, multiplier 2
        const V t95 = c[5] * t94;
        const V t96 = c[4] * t94;
        // complex block of 3, multiplier 2
        const V t97 = t42 + t30;
        // complex block of 9, multiplier 2
        const V t98 = c[2] * t97;
        const V t99 = c[3] * t97;
        // complex block of 3, multiplier 2
        const V t100 = t33 + t39;
        // complex block of 9, multiplier 2
        const V t101 = c[3] * t100;
        const V t102 = c[2] * t100;
        const V t103 = t95 - t92;
        const V t104 = t98 + t101;
        // complex block of 3, multiplier 2
        const V t105 = t103 + t104;
        const V t106 = t103 - t104;
        // complex block of 9, multiplier 2
        const V t107 = t96 + t93;
        const V t108 = t99 - t102;
        // complex block of 3, multiplier 2
        const V t109 = t107 + t108;
        const V t110 = t107 - t108;
        // complex block of 3, multiplier 2
        const V t111 = t22 - t40;
        const V t112 = c[1] * t111;
        const V t113 = t13 - t31;
        const V t114 = c[1] * t113;
        // doubled bins
        const V x2r = io.re(2);
        const V t115 = two * x2r;
        const V x2i = io.im(2);
        const V t116 = two * x2i;
        const V x4r = io.re(4);
        const V t117 = two * x4r;
        const V x22r = io.re(22);
        const V t118 = two * x22r;
        // complex block of 3, multiplier 2
        const V t119 = t118 + t117;
        // doubled bins
        const V x14r = io.re(14);
        const V t120 = two * x14r;
        // complex block of 3, multiplier 2
        const V t121 = t118 - t117;
        const V t122 = c[1] * t121;
        const V t123 = t119 + t120;
        const V t124 = c[0] * t119;
        const V t125 = t120 - t124;
        // doubled bins
        const V x4i = io.im(4);
        const V t126 = two * x4i;
        const V x22i = io.im(22);
        const V t127 = two * x22i;
        // complex block of 3, multiplier 2
        const V t128 = t127 + t126;
        // doubled bins
        const V x14i = io.im(14);
        const V t129 = two * x14i;
        // complex block of 3, multiplier 2
        const V t130 = t126 - t127;
        const V t131 = c[1] * t130;
        const V t132 = t129 - t128;
        const V t133 = c[0] * t128;
        const V t134 = t133 + t129;
        // doubled bins
        const V x8r = io.re(8);
        const V t135 = two * x8r;
        const V x10r = io.re(10);
        const V t136 = two * x10r;
        const V x26r = io.re(26);
        const V t137 = two * x26r;
        // complex block of 3, multiplier 2
        const V t138 = t137 + t136;
        const V t139 = t137 - t136;
        const V t140 = c[1] * t139;
        const V t141 = t138 + t135;
        const V t142 = c[0] * t138;
        const V t143 = t135 - t142;
        // doubled bins
        const V x8i = io.im(8);
        const V t144 = two * x8i;
        const V x10i = io.im(10);
        const V t145 = two * x10i;
        const V x26i = io.im(26);
        const V t146 = two * x26i;
        // complex block of 3, multiplier 2
        const V t147 = t146 - t145;
        const V t148 = t146 + t145;
        const V t149 = c[1] * t148;
        const V t150 = t147 + t144;
        const V t151 = c[0] * t147;
        const V t152 = t144 - t151;
        // doubled bins
        const V x16r = io.re(16);
        const V t153 = two * x16r;
        const V x20r = io.re(20);
        const V t154 = two * x20r;
        // complex block of 3, multiplier 2
        const V t155 = t154 + t153;
        const V t156 = t154 - t153;
        // doubled bins
        const V x16i = io.im(16);
        const V t157 = two * x16i;
        const V x20i = io.im(20);
        const V t158 = two * x20i;
        // complex block of 3, multiplier 2
        const V t159 = t158 - t157;
        const V t160 = t158 + t157;
        const V t161 = t159 + t116;
        // complex block of 3, multiplier 2
        const V t162 = t150 + t132;
        const V t163 = c[0] * t162;
        const V t164 = t161 - t163;
        // complex block of 3, multiplier 2
        const V t165 = t155 + t115;
        // complex block of 3, multiplier 2
        const V t166 = t141 + t123;
        const V t167 = c[0] * t166;
        const V t168 = t165 - t167;
        // complex block of 3, multiplier 2
        const V t169 = c[0] * t159;
        const V t170 = t116 - t169;
        const V t171 = c[1] * t156;
        const V t172 = t170 + t171;
        const V t173 = t170 - t171;
        const V t174 = c[0] * t155;
        const V t175 = t115 - t174;
        const V t176 = c[1] * t160;
        const V t177 = t175 - t176;
        const V t178 = t175 + t176;
        // complex block of 3, multiplier 2
        const V t179 = t152 + t140;
        // complex block of 9, multiplier 2
        const V t180 = c[2] * t179;
        const V t181 = c[3] * t179;
        // complex block of 3, multiplier 2
        const V t182 = t143 - t149;
        // complex block of 9, multiplier 2
        const V t183 = c[3] * t182;
        const V t184 = c[2] * t182;
        // complex block of 3, multiplier 2
        const V t185 = t134 + t122;
        // complex block of 9, multiplier 2
        const V t186 = c[6] * t185;
        const V t187 = c[7] * t185;
        // complex block of 3, multiplier 2
        const V t188 = t125 - t131;
        // complex block of 9, multiplier 2
        const V t189 = c[7] * t188;
        const V t190 = c[6] * t188;
        const V t191 = t183 - t180;
        const V t192 = t186 - t189;
        // complex block of 3, multiplier 2
        const V t193 = t191 + t192;
        const V t194 = t191 - t192;
        // complex block of 9, multiplier 2
        const V t195 = t184 + t181;
        const V t196 = t190 + t187;
        // complex block of 3, multiplier 2
        const V t197 = t196 - t195;
        const V t198 = t195 + t196;
        // complex block of 3, multiplier 2
        const V t199 = t152 - t140;
        // complex block of 9, multiplier 2
        const V t200 = c[4] * t199;
        const V t201 = c[5] * t199;
        // complex block of 3, multiplier 2
        const V t202 = t143 + t149;
        // complex block of 9, multiplier 2
        const V t203 = c[5] * t202;
        const V t204 = c[4] * t202;
        // complex block of 3, multiplier 2
        const V t205 = t134 - t122;
        // complex block of 9, multiplier 2
        const V t206 = c[2] * t205;
        const V t207 = c[3] * t205;
        // complex block of 3, multiplier 2
        const V t208 = t125 + t131;
        // complex block of 9, multiplier 2
        const V t209 = c[3] * t208;
        const V t210 = c[2] * t208;
        const V t211 = t200 + t203;
        const V t212 = t209 - t206;
        // complex block of 3, multiplier 2
        const V t213 = t211 + t212;
        const V t214 = t211 - t212;
        // complex block of 9, multiplier 2
        const V t215 = t204 - t201;
        const V t216 = t210 + t207;
        // complex block of 3, multiplier 2
        const V t217 = t215 - t216;
        const V t218 = t215 + t216;
        // complex block of 3, multiplier 2
        const V t219 = t150 - t132;
        const V t220 = c[1] * t219;
        const V t221 = t141 - t123;
        const V t222 = c[1] * t221;
        // doubled bins
        const V x3r = io.re(3);
        const V t223 = two * x3r;
        const V x15r = io.re(15);
        const V t224 = two * x15r;
        // complex block of 3, multiplier 2
        const V t225 = t223 + t224;
        const V t226 = c[0] * t225;
        const V t227 = t223 - t224;
        // doubled bins
        const V x3i = io.im(3);
        const V t228 = two * x3i;
        const V x15i = io.im(15);
        const V t229 = two * x15i;
        // complex block of 3, multiplier 2
        const V t230 = t229 - t228;
        const V t231 = c[0] * t230;
        const V t232 = t228 + t229;
        // doubled bins
        const V x21r = io.re(21);
        const V t233 = two * x21r;
        const V x21i = io.im(21);
        const V t234 = two * x21i;
        // complex block of 3, multiplier 2
        const V t235 = t230 - t234;
        // spectrum block of 3, multiplier 2
        const V t236 = c[1] * t235;
        // complex block of 3, multiplier 2
        const V t237 = t225 + t233;
        // spectrum block of 3, multiplier 2
        const V t238 = c[0] * t237;
        // complex block of 3, multiplier 2
        const V t239 = t234 + t231;
        const V t240 = c[1] * t227;
        const V t241 = t240 - t239;
        const V t242 = t239 + t240;
        // spectrum block of 9, multiplier 2
        const V t243 = c[5] * t242;
        const V t244 = c[3] * t241;
        // complex block of 3, multiplier 2
        const V t245 = t233 - t226;
        const V t246 = c[1] * t232;
        const V t247 = t245 + t246;
        const V t248 = t245 - t246;
        // spectrum block of 9, multiplier 2
        const V t249 = c[4] * t248;
        const V t250 = c[2] * t247;
        // doubled bins
        const V x6r = io.re(6);
        const V t251 = two * x6r;
        const V x6i = io.im(6);
        const V t252 = two * x6i;
        const V x12r = io.re(12);
        const V t253 = two * x12r;
        const V x24r = io.re(24);
        const V t254 = two * x24r;
        // complex block of 3, multiplier 2
        const V t255 = t254 + t253;
        const V t256 = c[0] * t255;
        const V t257 = t254 - t253;
        // doubled bins
        const V x12i = io.im(12);
        const V t258 = two * x12i;
        const V x24i = io.im(24);
        const V t259 = two * x24i;
        // complex block of 3, multiplier 2
        const V t260 = t259 - t258;
        const V t261 = c[0] * t260;
        const V t262 = t259 + t258;
        const V t263 = t260 + t252;
        // spectrum block of 3, multiplier 2
        const V t264 = c[1] * t263;
        // complex block of 3, multiplier 2
        const V t265 = t255 + t251;
        // spectrum block of 3, multiplier 2
        const V t266 = c[0] * t265;
        // complex block of 3, multiplier 2
        const V t267 = t252 - t261;
        const V t268 = c[1] * t257;
        const V t269 = t267 + t268;
        const V t270 = t267 - t268;
        // spectrum block of 9, multiplier 2
        const V t271 = c[5] * t270;
        const V t272 = c[3] * t269;
        // complex block of 3, multiplier 2
        const V t273 = t251 - t256;
        const V t274 = c[1] * t262;
        const V t275 = t273 - t274;
        const V t276 = t273 + t274;
        // spectrum block of 9, multiplier 2
        const V t277 = c[4] * t276;
        const V t278 = c[2] * t275;
        // doubled bins
        const V x9r = io.re(9);
        const V t279 = two * x9r;
        // spectrum block of 3, multiplier 2
        const V t280 = c[0] * t279;
        const V x9i = io.im(9);
        const V t281 = c[12] * x9i;
        const V x27r = io.re(27);
        const V t282 = t279 + x27r;
        const V t283 = x27r - t280;
        const V t284 = t283 + t281;
        const V t285 = t283 - t281;
        // spectrum block of 9, multiplier 2
        const V t286 = t277 - t271;
        // spectrum block of 3, multiplier 2
        const V t287 = c[0] * t286;
        const V t288 = c[8] * t270;
        const V t289 = c[9] * t276;
        const V t290 = t288 + t289;
        const V t291 = t286 + t6;
        const V t292 = t6 - t287;
        const V t293 = t292 - t290;
        const V t294 = t292 + t290;
        // complex block of 3, multiplier 2
        const V t295 = t213 + t173;
        // spectrum block of 27, multiplier 2
        const V t296 = c[13] * t295;
        // spectrum block of 3, multiplier 2
        const V t297 = c[14] * t295;
        // complex block of 3, multiplier 2
        const V t298 = t217 + t178;
        // spectrum block of 27, multiplier 2
        const V t299 = c[15] * t298;
        // spectrum block of 3, multiplier 2
        const V t300 = c[16] * t298;
        // spectrum block of 27, multiplier 2
        const V t301 = t299 - t296;
        // spectrum block of 3, multiplier 2
        const V t302 = c[0] * t301;
        const V t303 = t297 + t300;
        // complex block of 3, multiplier 2
        const V t304 = c[0] * t213;
        const V t305 = t173 - t304;
        const V t306 = c[1] * t218;
        const V t307 = t305 + t306;
        const V t308 = t305 - t306;
        const V t309 = c[0] * t217;
        const V t310 = t178 - t309;
        const V t311 = c[1] * t214;
        const V t312 = t310 - t311;
        const V t313 = t310 + t311;
        // spectrum block of 27, multiplier 2
        const V t314 = c[17] * t308;
        const V t315 = c[18] * t313;
        const V t316 = t315 + t314;
        const V t317 = c[19] * t307;
        const V t318 = c[20] * t312;
        const V t319 = t317 - t318;
        // spectrum block of 3, multiplier 2
        const V t320 = c[21] * t313;
        const V t321 = c[22] * t308;
        // spectrum block of 3, multiplier 2
        const V t322 = c[23] * t307;
        const V t323 = c[24] * t312;
        // spectrum block of 9, multiplier 2
        const V t324 = t249 + t243;
        // spectrum block of 3, multiplier 2
        const V t325 = c[0] * t324;
        const V t326 = c[9] * t248;
        const V t327 = c[8] * t242;
        const V t328 = t326 - t327;
        const V t329 = t324 + t285;
        const V t330 = t285 - t325;
        const V t331 = t330 - t328;
        const V t332 = t330 + t328;
        // complex block of 3, multiplier 2
        const V t333 = t105 - t65;
        // spectrum block of 27, multiplier 2
        const V t334 = c[13] * t333;
        // spectrum block of 3, multiplier 2
        const V t335 = c[14] * t333;
        // complex block of 3, multiplier 2
        const V t336 = t109 + t70;
        // spectrum block of 27, multiplier 2
        const V t337 = c[15] * t336;
        // spectrum block of 3, multiplier 2
        const V t338 = c[16] * t336;
        // spectrum block of 27, multiplier 2
        const V t339 = t337 - t334;
        // spectrum block of 3, multiplier 2
        const V t340 = c[0] * t339;
        const V t341 = t335 + t338;
        // complex block of 3, multiplier 2
        const V t342 = c[0] * t105;
        const V t343 = t65 + t342;
        const V t344 = c[1] * t110;
        const V t345 = t344 - t343;
        const V t346 = t343 + t344;
        const V t347 = c[0] * t109;
        const V t348 = t70 - t347;
        const V t349 = c[1] * t106;
        const V t350 = t348 - t349;
        const V t351 = t348 + t349;
        // spectrum block of 27, multiplier 2
        const V t352 = c[17] * t346;
        const V t353 = c[18] * t351;
        const V t354 = t352 - t353;
        const V t355 = c[19] * t345;
        const V t356 = c[20] * t350;
        const V t357 = t355 - t356;
        // spectrum block of 3, multiplier 2
        const V t358 = c[22] * t346;
        const V t359 = c[21] * t351;
        // spectrum block of 3, multiplier 2
        const V t360 = c[23] * t345;
        const V t361 = c[24] * t350;
        // spectrum block of 3, multiplier 2
        const V t362 = t301 + t291;
        // spectrum block of 3, multiplier 2
        const V t363 = t339 + t329;
        // spectrum block of 2
        const V t364 = t362 + t363;
        io.out(2, t364);
        const V t365 = t362 - t363;
        io.out(29, t365);
        // spectrum block of 3, multiplier 2
        const V t366 = t291 - t302;
        const V t367 = t366 - t303;
        const V t368 = t366 + t303;
        // spectrum block of 3, multiplier 2
        const V t369 = t329 - t340;
        const V t370 = t369 - t341;
        const V t371 = t369 + t341;
        // spectrum block of 2
        const V t372 = t368 + t371;
        io.out(20, t372);
        const V t373 = t368 - t371;
        io.out(47, t373);
        // spectrum block of 2
        const V t374 = t367 + t370;
        io.out(38, t374);
        const V t375 = t367 - t370;
        io.out(11, t375);
        // spectrum block of 3, multiplier 2
        const V t376 = t294 - t316;
        // spectrum block of 3, multiplier 2
        const V t377 = t354 + t332;
        // spectrum block of 2
        const V t378 = t376 + t377;
        io.out(8, t378);
        const V t379 = t376 - t377;
        io.out(35, t379);
        // spectrum block of 3, multiplier 2
        const V t380 = c[0] * t316;
        const V t381 = t380 + t294;
        const V t382 = t320 - t321;
        // spectrum block of 3, multiplier 2
        const V t383 = c[0] * t354;
        const V t384 = t332 - t383;
        const V t385 = t358 + t359;
        // spectrum block of 3, multiplier 2
        const V t386 = t381 - t382;
        // spectrum block of 3, multiplier 2
        const V t387 = t384 - t385;
        // spectrum block of 2
        const V t388 = t386 + t387;
        io.out(44, t388);
        const V t389 = t386 - t387;
        io.out(17, t389);
        // spectrum block of 3, multiplier 2
        const V t390 = t381 + t382;
        // spectrum block of 3, multiplier 2
        const V t391 = t384 + t385;
        // spectrum block of 2
        const V t392 = t390 + t391;
        io.out(26, t392);
        const V t393 = t390 - t391;
        io.out(53, t393);
        // spectrum block of 3, multiplier 2
        const V t394 = t319 + t293;
        // spectrum block of 3, multiplier 2
        const V t395 = t357 + t331;
        // spectrum block of 2
        const V t396 = t394 + t395;
        io.out(14, t396);
        const V t397 = t394 - t395;
        io.out(41, t397);
        // spectrum block of 3, multiplier 2
        const V t398 = c[0] * t319;
        const V t399 = t293 - t398;
        const V t400 = t322 + t323;
        // spectrum block of 3, multiplier 2
        const V t401 = c[0] * t357;
        const V t402 = t331 - t401;
        const V t403 = t360 + t361;
        // spectrum block of 3, multiplier 2
        const V t404 = t399 + t400;
        // spectrum block of 3, multiplier 2
        const V t405 = t402 + t403;
        // spectrum block of 2
        const V t406 = t404 + t405;
        io.out(50, t406);
        const V t407 = t404 - t405;
        io.out(23, t407);
        // spectrum block of 3, multiplier 2
        const V t408 = t399 - t400;
        // spectrum block of 3, multiplier 2
        const V t409 = t402 - t403;
        // spectrum block of 2
        const V t410 = t408 + t409;
        io.out(32, t410);
        const V t411 = t408 - t409;
        io.out(5, t411);
        // spectrum block of 9, multiplier 2
        const V t412 = t278 + t272;
        // spectrum block of 3, multiplier 2
        const V t413 = c[0] * t412;
        const V t414 = c[10] * t275;
        const V t415 = c[11] * t269;
        const V t416 = t414 - t415;
        const V t417 = t5 - t412;
        const V t418 = t413 + t5;
        const V t419 = t418 - t416;
        const V t420 = t418 + t416;
        // complex block of 3, multiplier 2
        const V t421 = t193 + t172;
        // spectrum block of 27, multiplier 2
        const V t422 = c[25] * t421;
        // spectrum block of 3, multiplier 2
        const V t423 = c[26] * t421;
        // complex block of 3, multiplier 2
        const V t424 = t197 + t177;
        // spectrum block of 27, multiplier 2
        const V t425 = c[27] * t424;
        // spectrum block of 3, multiplier 2
        const V t426 = c[28] * t424;
        // spectrum block of 27, multiplier 2
        const V t427 = t425 - t422;
        // spectrum block of 3, multiplier 2
        const V t428 = c[0] * t427;
        const V t429 = t423 + t426;
        // complex block of 3, multiplier 2
        const V t430 = c[0] * t193;
        const V t431 = t172 - t430;
        const V t432 = c[1] * t198;
        const V t433 = t431 - t432;
        const V t434 = t431 + t432;
        const V t435 = c[0] * t197;
        const V t436 = t177 - t435;
        const V t437 = c[1] * t194;
        const V t438 = t436 - t437;
        const V t439 = t436 + t437;
        // spectrum block of 27, multiplier 2
        const V t440 = c[29] * t434;
        const V t441 = c[30] * t439;
        const V t442 = t441 + t440;
        const V t443 = c[31] * t433;
        const V t444 = c[32] * t438;
        const V t445 = t443 - t444;
        // spectrum block of 3, multiplier 2
        const V t446 = c[33] * t439;
        const V t447 = c[34] * t434;
        // spectrum block of 3, multiplier 2
        const V t448 = c[35] * t433;
        const V t449 = c[36] * t438;
        // spectrum block of 9, multiplier 2
        const V t450 = t250 + t244;
        // spectrum block of 3, multiplier 2
        const V t451 = c[0] * t450;
        const V t452 = c[10] * t247;
        const V t453 = c[11] * t241;
        const V t454 = t452 - t453;
        const V t455 = t284 - t450;
        const V t456 = t451 + t284;
        const V t457 = t456 - t454;
        const V t458 = t456 + t454;
        // complex block of 3, multiplier 2
        const V t459 = t85 + t64;
        // spectrum block of 27, multiplier 2
        const V t460 = c[25] * t459;
        // spectrum block of 3, multiplier 2
        const V t461 = c[26] * t459;
        // complex block of 3, multiplier 2
        const V t462 = t89 + t69;
        // spectrum block of 27, multiplier 2
        const V t463 = c[27] * t462;
        // spectrum block of 3, multiplier 2
        const V t464 = c[28] * t462;
        // spectrum block of 27, multiplier 2
        const V t465 = t463 - t460;
        // spectrum block of 3, multiplier 2
        const V t466 = c[0] * t465;
        const V t467 = t461 + t464;
        // complex block of 3, multiplier 2
        const V t468 = c[0] * t85;
        const V t469 = t64 - t468;
        const V t470 = c[1] * t90;
        const V t471 = t469 - t470;
        const V t472 = t469 + t470;
        const V t473 = c[0] * t89;
        const V t474 = t69 - t473;
        const V t475 = c[1] * t86;
        const V t476 = t474 - t475;
        const V t477 = t474 + t475;
        // spectrum block of 27, multiplier 2
        const V t478 = c[29] * t472;
        const V t479 = c[30] * t477;
        const V t480 = t479 + t478;
        const V t481 = c[31] * t471;
        const V t482 = c[32] * t476;
        const V t483 = t481 - t482;
        // spectrum block of 3, multiplier 2
        const V t484 = c[33] * t477;
        const V t485 = c[34] * t472;
        // spectrum block of 3, multiplier 2
        const V t486 = c[35] * t471;
        const V t487 = c[36] * t476;
        // spectrum block of 3, multiplier 2
        const V t488 = t427 + t417;
        // spectrum block of 3, multiplier 2
        const V t489 = t465 + t455;
        // spectrum block of 2
        const V t490 = t488 + t489;
        io.out(4, t490);
        const V t491 = t488 - t489;
        io.out(31, t491);
        // spectrum block of 3, multiplier 2
        const V t492 = t417 - t428;
        const V t493 = t492 - t429;
        const V t494 = t492 + t429;
        // spectrum block of 3, multiplier 2
        const V t495 = t455 - t466;
        const V t496 = t495 - t467;
        const V t497 = t495 + t467;
        // spectrum block of 2
        const V t498 = t494 + t497;
        io.out(22, t498);
        const V t499 = t494 - t497;
        io.out(49, t499);
        // spectrum block of 2
        const V t500 = t493 + t496;
        io.out(40, t500);
        const V t501 = t493 - t496;
        io.out(13, t501);
        // spectrum block of 3, multiplier 2
        const V t502 = t420 - t442;
        // spectrum block of 3, multiplier 2
        const V t503 = t458 - t480;
        // spectrum block of 2
        const V t504 = t502 + t503;
        io.out(10, t504);
        const V t505 = t502 - t503;
        io.out(37, t505);
        // spectrum block of 3, multiplier 2
        const V t506 = c[0] * t442;
        const V t507 = t506 + t420;
        const V t508 = t446 - t447;
        // spectrum block of 3, multiplier 2
        const V t509 = c[0] * t480;
        const V t510 = t509 + t458;
        const V t511 = t484 - t485;
        // spectrum block of 3, multiplier 2
        const V t512 = t507 - t508;
        // spectrum block of 3, multiplier 2
        const V t513 = t510 - t511;
        // spectrum block of 2
        const V t514 = t512 + t513;
        io.out(46, t514);
        const V t515 = t512 - t513;
        io.out(19, t515);
        // spectrum block of 3, multiplier 2
        const V t516 = t507 + t508;
        // spectrum block of 3, multiplier 2
        const V t517 = t510 + t511;
        // spectrum block of 2
        const V t518 = t516 + t517;
        io.out(28, t518);
        const V t519 = t516 - t517;
        io.out(1, t519);
        // spectrum block of 3, multiplier 2
        const V t520 = t445 + t419;
        // spectrum block of 3, multiplier 2
        const V t521 = t483 + t457;
        // spectrum block of 2
        const V t522 = t520 + t521;
        io.out(16, t522);
        const V t523 = t520 - t521;
        io.out(43, t523);
        // spectrum block of 3, multiplier 2
        const V t524 = c[0] * t445;
        const V t525 = t419 - t524;
        const V t526 = t448 + t449;
        // spectrum block of 3, multiplier 2
        const V t527 = c[0] * t483;
        const V t528 = t457 - t527;
        const V t529 = t486 + t487;
        // spectrum block of 3, multiplier 2
        const V t530 = t525 + t526;
        // spectrum block of 3, multiplier 2
        const V t531 = t528 + t529;
        // spectrum block of 2
        const V t532 = t530 + t531;
        io.out(52, t532);
        const V t533 = t530 - t531;
        io.out(25, t533);
        // spectrum block of 3, multiplier 2
        const V t534 = t525 - t526;
        // spectrum block of 3, multiplier 2
        const V t535 = t528 - t529;
        // spectrum block of 2
        const V t536 = t534 + t535;
        io.out(34, t536);
        const V t537 = t534 - t535;
        io.out(7, t537);
        // spectrum block of 3, multiplier 2
        const V t538 = t265 + t3;
        // complex block of 3, multiplier 2
        const V t539 = t166 + t165;
        // spectrum block of 3, multiplier 2
        const V t540 = c[0] * t539;
        const V t541 = t539 + t538;
        const V t542 = t538 - t540;
        // complex block of 3, multiplier 2
        const V t543 = t162 + t161;
        // spectrum block of 3, multiplier 2
        const V t544 = c[1] * t543;
        // spectrum block of 3, multiplier 2
        const V t545 = t237 + t282;
        // complex block of 3, multiplier 2
        const V t546 = t58 + t57;
        // spectrum block of 3, multiplier 2
        const V t547 = c[0] * t546;
        const V t548 = t546 + t545;
        const V t549 = t545 - t547;
        // complex block of 3, multiplier 2
        const V t550 = t54 + t53;
        // spectrum block of 3, multiplier 2
        const V t551 = c[1] * t550;
        // spectrum block of 3, multiplier 2
        const V t552 = t542 - t544;
        // spectrum block of 3, multiplier 2
        const V t553 = t549 - t551;
        // spectrum block of 2
        const V t554 = t552 + t553;
        io.out(36, t554);
        const V t555 = t552 - t553;
        io.out(9, t555);
        // spectrum block of 3, multiplier 2
        const V t556 = t542 + t544;
        // spectrum block of 3, multiplier 2
        const V t557 = t549 + t551;
        // spectrum block of 2
        const V t558 = t556 + t557;
        io.out(18, t558);
        const V t559 = t556 - t557;
        io.out(45, t559);
        // spectrum block of 2
        const V t560 = t541 + t548;
        io.out(0, t560);
        const V t561 = t541 - t548;
        io.out(27, t561);
        // spectrum block of 3, multiplier 2
        const V t562 = t3 - t266;
        const V t563 = t562 - t264;
        const V t564 = t562 + t264;
        // complex block of 3, multiplier 2
        const V t565 = t164 + t222;
        // spectrum block of 27, multiplier 2
        const V t566 = c[3] * t565;
        // spectrum block of 3, multiplier 2
        const V t567 = c[11] * t565;
        // complex block of 3, multiplier 2
        const V t568 = t168 - t220;
        // spectrum block of 27, multiplier 2
        const V t569 = c[2] * t568;
        // spectrum block of 3, multiplier 2
        const V t570 = c[10] * t568;
        // spectrum block of 27, multiplier 2
        const V t571 = t569 + t566;
        // spectrum block of 3, multiplier 2
        const V t572 = c[0] * t571;
        const V t573 = t570 - t567;
        // complex block of 3, multiplier 2
        const V t574 = t164 - t222;
        // spectrum block of 27, multiplier 2
        const V t575 = c[5] * t574;
        // spectrum block of 3, multiplier 2
        const V t576 = c[8] * t574;
        // complex block of 3, multiplier 2
        const V t577 = t168 + t220;
        // spectrum block of 27, multiplier 2
        const V t578 = c[4] * t577;
        // spectrum block of 3, multiplier 2
        const V t579 = c[9] * t577;
        // spectrum block of 27, multiplier 2
        const V t580 = t578 - t575;
        // spectrum block of 3, multiplier 2
        const V t581 = c[0] * t580;
        const V t582 = t576 + t579;
        // spectrum block of 3, multiplier 2
        const V t583 = t282 - t238;
        const V t584 = t583 - t236;
        const V t585 = t583 + t236;
        // complex block of 3, multiplier 2
        const V t586 = t56 + t114;
        // spectrum block of 27, multiplier 2
        const V t587 = c[3] * t586;
        // spectrum block of 3, multiplier 2
        const V t588 = c[11] * t586;
        // complex block of 3, multiplier 2
        const V t589 = t60 - t112;
        // spectrum block of 27, multiplier 2
        const V t590 = c[2] * t589;
        // spectrum block of 3, multiplier 2
        const V t591 = c[10] * t589;
        // spectrum block of 27, multiplier 2
        const V t592 = t590 + t587;
        // spectrum block of 3, multiplier 2
        const V t593 = c[0] * t592;
        const V t594 = t591 - t588;
        // complex block of 3, multiplier 2
        const V t595 = t56 - t114;
        // spectrum block of 27, multiplier 2
        const V t596 = c[5] * t595;
        // spectrum block of 3, multiplier 2
        const V t597 = c[8] * t595;
        // complex block of 3, multiplier 2
        const V t598 = t60 + t112;
        // spectrum block of 27, multiplier 2
        const V t599 = c[4] * t598;
        // spectrum block of 3, multiplier 2
        const V t600 = c[9] * t598;
        // spectrum block of 27, multiplier 2
        const V t601 = t599 - t596;
        // spectrum block of 3, multiplier 2
        const V t602 = c[0] * t601;
        const V t603 = t597 + t600;
        // spectrum block of 3, multiplier 2
        const V t604 = t580 + t564;
        // spectrum block of 3, multiplier 2
        const V t605 = t601 + t585;
        // spectrum block of 2
        const V t606 = t604 + t605;
        io.out(6, t606);
        const V t607 = t604 - t605;
        io.out(33, t607);
        // spectrum block of 3, multiplier 2
        const V t608 = t564 - t581;
        const V t609 = t608 - t582;
        const V t610 = t608 + t582;
        // spectrum block of 3, multiplier 2
        const V t611 = t585 - t602;
        const V t612 = t611 - t603;
        const V t613 = t611 + t603;
        // spectrum block of 2
        const V t614 = t610 + t613;
        io.out(24, t614);
        const V t615 = t610 - t613;
        io.out(51, t615);
        // spectrum block of 2
        const V t616 = t609 + t612;
        io.out(42, t616);
        const V t617 = t609 - t612;
        io.out(15, t617);
        // spectrum block of 3, multiplier 2
        const V t618 = t563 - t571;
        // spectrum block of 3, multiplier 2
        const V t619 = t584 - t592;
        // spectrum block of 2
        const V t620 = t618 + t619;
        io.out(12, t620);
        const V t621 = t618 - t619;
        io.out(39, t621);
        // spectrum block of 3, multiplier 2
        const V t622 = t572 + t563;
        const V t623 = t622 - t573;
        const V t624 = t622 + t573;
        // spectrum block of 3, multiplier 2
        const V t625 = t593 + t584;
        const V t626 = t625 - t594;
        const V t627 = t625 + t594;
        // spectrum block of 2
        const V t628 = t624 + t627;
        io.out(30, t628);
        const V t629 = t624 - t627;
        io.out(3, t629);
        // spectrum block of 2
        const V t630 = t623 + t626;
        io.out(48, t630);
        const V t631 = t623 - t626;
        io.out(21, t631);
    }
};

}  // namespace zulg
