// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 54.
// Hartley transform of 54 points, form I.
// 217 additions, 217 subtractions, 200 multiplications (254 with `scale`); 36 constants; 71 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<54> {
    static constexpr int steps = 688;  // with `scale`
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
        0.44879918020046217,  // c[12]: -sin 2 pi 25/27
        0.7739085681710371,  // c[13]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.8936326403234123,  // c[14]: cos 2 pi 25/27
        0.3886714912512303,  // c[15]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.9579895123154889,  // c[16]: -sin 2 pi 19/27
        0.28680323271109026,  // c[17]: -cos 2 pi 19/27
        0.11609291412523023,  // c[18]: sin 2 pi 13/27
        0.993238357741943,  // c[19]: -cos 2 pi 13/27
        0.8296432542242788,  // c[20]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.24837888541530426,  // c[21]: sin 2 pi 1/3 times -cos 2 pi 19/27
        0.8601696498176589,  // c[22]: sin 2 pi 1/3 times -cos 2 pi 13/27
        0.10053941283181467,  // c[23]: sin 2 pi 1/3 times sin 2 pi 13/27
        0.8021231927550437,  // c[24]: -sin 2 pi 23/27
        0.5171545105027521,  // c[25]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.5971585917027862,  // c[26]: cos 2 pi 23/27
        0.6946590618905499,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.7273736415730487,  // c[28]: -sin 2 pi 17/27
        0.6862416378687336,  // c[29]: -cos 2 pi 17/27
        0.549508978070806,  // c[30]: sin 2 pi 11/27
        0.8354878114129364,  // c[31]: -cos 2 pi 11/27
        0.6299240516454571,  // c[32]: sin 2 pi 1/3 times -sin 2 pi 17/27
        0.5943026915289645,  // c[33]: sin 2 pi 1/3 times -cos 2 pi 17/27
        0.7235536692358652,  // c[34]: sin 2 pi 1/3 times -cos 2 pi 11/27
        0.47588873461694403,  // c[35]: sin 2 pi 1/3 times sin 2 pi 11/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x18 = io.in(18);
        const V x36 = io.in(36);
        const V t0 = x18 + x36;
        const V t1 = x18 - x36;
        // spectrum block of 3, multiplier 2
        const V t2 = c[0] * t0;
        const V x0 = io.in(0);
        const V t3 = t0 + x0;
        const V t4 = x0 - t2;
        const V t5 = c[1] * t1;
        const V t6 = t4 - t5;
        const V t7 = t4 + t5;
        // input stage
        const V x1 = io.in(1);
        const V x53 = io.in(53);
        const V t8 = x1 + x53;
        const V t9 = x1 - x53;
        const V x17 = io.in(17);
        const V x37 = io.in(37);
        const V t10 = x17 + x37;
        const V t11 = x17 - x37;
        // complex block of 3, multiplier 2
        const V t12 = t11 - t9;
        const V t13 = t8 + t10;
        // input stage
        const V x19 = io.in(19);
        const V x35 = io.in(35);
        const V t14 = x19 + x35;
        const V t15 = x19 - x35;
        // complex block of 3, multiplier 2
        const V t16 = t9 + t11;
        const V t17 = c[1] * t16;
        const V t18 = t8 - t10;
        const V t19 = c[1] * t18;
        const V t20 = t12 - t15;
        const V t21 = t13 + t14;
        const V t22 = c[0] * t12;
        const V t23 = t15 + t22;
        const V t24 = c[0] * t13;
        const V t25 = t14 - t24;
        // input stage
        const V x5 = io.in(5);
        const V x49 = io.in(49);
        const V t26 = x5 + x49;
        const V t27 = x5 - x49;
        const V x23 = io.in(23);
        const V x31 = io.in(31);
        const V t28 = x23 + x31;
        const V t29 = x23 - x31;
        // complex block of 3, multiplier 2
        const V t30 = t27 + t29;
        const V t31 = t26 + t28;
        // input stage
        const V x13 = io.in(13);
        const V x41 = io.in(41);
        const V t32 = x13 + x41;
        const V t33 = x13 - x41;
        // complex block of 3, multiplier 2
        const V t34 = t27 - t29;
        const V t35 = c[1] * t34;
        const V t36 = t26 - t28;
        const V t37 = c[1] * t36;
        const V t38 = t30 - t33;
        const V t39 = t31 + t32;
        const V t40 = c[0] * t30;
        const V t41 = t33 + t40;
        const V t42 = c[0] * t31;
        const V t43 = t32 - t42;
        // input stage
        const V x7 = io.in(7);
        const V x47 = io.in(47);
        const V t44 = x7 + x47;
        const V t45 = x7 - x47;
        const V x11 = io.in(11);
        const V x43 = io.in(43);
        const V t46 = x11 + x43;
        const V t47 = x11 - x43;
        // complex block of 3, multiplier 2
        const V t48 = t47 - t45;
        const V t49 = t44 + t46;
        const V t50 = t45 + t47;
        const V t51 = t44 - t46;
        // input stage
        const V x25 = io.in(25);
        const V x29 = io.in(29);
        const V t52 = x25 + x29;
        const V t53 = x25 - x29;
        // complex block of 3, multiplier 2
        const V t54 = t48 - t53;
        // complex block of 3, multiplier 2
        const V t55 = t20 + t38;
        const V t56 = c[0] * t55;
        const V t57 = t54 - t56;
        // complex block of 3, multiplier 2
        const V t58 = t49 + t52;
        // complex block of 3, multiplier 2
        const V t59 = t21 + t39;
        const V t60 = c[0] * t59;
        const V t61 = t58 - t60;
        // complex block of 3, multiplier 2
        const V t62 = c[0] * t48;
        const V t63 = t53 + t62;
        const V t64 = c[1] * t51;
        const V t65 = t64 - t63;
        const V t66 = t63 + t64;
        const V t67 = c[0] * t49;
        const V t68 = t52 - t67;
        const V t69 = c[1] * t50;
        const V t70 = t68 + t69;
        const V t71 = t68 - t69;
        // complex block of 3, multiplier 2
        const V t72 = t19 - t23;
        // complex block of 9, multiplier 2
        const V t73 = c[2] * t72;
        const V t74 = c[3] * t72;
        // complex block of 3, multiplier 2
        const V t75 = t25 + t17;
        // complex block of 9, multiplier 2
        const V t76 = c[3] * t75;
        const V t77 = c[2] * t75;
        // complex block of 3, multiplier 2
        const V t78 = t37 - t41;
        // complex block of 9, multiplier 2
        const V t79 = c[6] * t78;
        const V t80 = c[7] * t78;
        // complex block of 3, multiplier 2
        const V t81 = t43 - t35;
        // complex block of 9, multiplier 2
        const V t82 = c[7] * t81;
        const V t83 = c[6] * t81;
        const V t84 = t76 - t73;
        const V t85 = t79 - t82;
        // complex block of 3, multiplier 2
        const V t86 = t84 + t85;
        const V t87 = t84 - t85;
        // complex block of 9, multiplier 2
        const V t88 = t77 + t74;
        const V t89 = t83 + t80;
        // complex block of 3, multiplier 2
        const V t90 = t89 - t88;
        const V t91 = t88 + t89;
        // complex block of 3, multiplier 2
        const V t92 = t23 + t19;
        // complex block of 9, multiplier 2
        const V t93 = c[4] * t92;
        const V t94 = c[5] * t92;
        // complex block of 3, multiplier 2
        const V t95 = t25 - t17;
        // complex block of 9, multiplier 2
        const V t96 = c[5] * t95;
        const V t97 = c[4] * t95;
        // complex block of 3, multiplier 2
        const V t98 = t41 + t37;
        // complex block of 9, multiplier 2
        const V t99 = c[2] * t98;
        const V t100 = c[3] * t98;
        // complex block of 3, multiplier 2
        const V t101 = t43 + t35;
        // complex block of 9, multiplier 2
        const V t102 = c[3] * t101;
        const V t103 = c[2] * t101;
        const V t104 = t96 - t93;
        const V t105 = t99 + t102;
        // complex block of 3, multiplier 2
        const V t106 = t104 + t105;
        const V t107 = t104 - t105;
        // complex block of 9, multiplier 2
        const V t108 = t97 + t94;
        const V t109 = t100 - t103;
        // complex block of 3, multiplier 2
        const V t110 = t108 + t109;
        const V t111 = t108 - t109;
        // complex block of 3, multiplier 2
        const V t112 = t20 - t38;
        const V t113 = c[1] * t112;
        const V t114 = t21 - t39;
        const V t115 = c[1] * t114;
        // input stage
        const V x2 = io.in(2);
        const V x52 = io.in(52);
        const V t116 = x2 + x52;
        const V t117 = x2 - x52;
        const V x4 = io.in(4);
        const V x50 = io.in(50);
        const V t118 = x4 + x50;
        const V t119 = x4 - x50;
        const V x22 = io.in(22);
        const V x32 = io.in(32);
        const V t120 = x22 + x32;
        const V t121 = x22 - x32;
        // complex block of 3, multiplier 2
        const V t122 = t121 + t119;
        const V t123 = t120 + t118;
        // input stage
        const V x14 = io.in(14);
        const V x40 = io.in(40);
        const V t124 = x14 + x40;
        const V t125 = x14 - x40;
        // complex block of 3, multiplier 2
        const V t126 = t119 - t121;
        const V t127 = c[1] * t126;
        const V t128 = t120 - t118;
        const V t129 = c[1] * t128;
        const V t130 = t125 - t122;
        const V t131 = t123 + t124;
        const V t132 = c[0] * t122;
        const V t133 = t132 + t125;
        const V t134 = c[0] * t123;
        const V t135 = t124 - t134;
        // input stage
        const V x8 = io.in(8);
        const V x46 = io.in(46);
        const V t136 = x8 + x46;
        const V t137 = x8 - x46;
        const V x10 = io.in(10);
        const V x44 = io.in(44);
        const V t138 = x10 + x44;
        const V t139 = x10 - x44;
        const V x26 = io.in(26);
        const V x28 = io.in(28);
        const V t140 = x26 + x28;
        const V t141 = x26 - x28;
        // complex block of 3, multiplier 2
        const V t142 = t141 - t139;
        const V t143 = t140 + t138;
        const V t144 = t141 + t139;
        const V t145 = c[1] * t144;
        const V t146 = t140 - t138;
        const V t147 = c[1] * t146;
        const V t148 = t142 + t137;
        const V t149 = t143 + t136;
        const V t150 = c[0] * t142;
        const V t151 = t137 - t150;
        const V t152 = c[0] * t143;
        const V t153 = t136 - t152;
        // input stage
        const V x16 = io.in(16);
        const V x38 = io.in(38);
        const V t154 = x16 + x38;
        const V t155 = x16 - x38;
        const V x20 = io.in(20);
        const V x34 = io.in(34);
        const V t156 = x20 + x34;
        const V t157 = x20 - x34;
        // complex block of 3, multiplier 2
        const V t158 = t157 - t155;
        const V t159 = t156 + t154;
        const V t160 = t157 + t155;
        const V t161 = t156 - t154;
        const V t162 = t158 + t117;
        // complex block of 3, multiplier 2
        const V t163 = t148 + t130;
        const V t164 = c[0] * t163;
        const V t165 = t162 - t164;
        // complex block of 3, multiplier 2
        const V t166 = t159 + t116;
        // complex block of 3, multiplier 2
        const V t167 = t149 + t131;
        const V t168 = c[0] * t167;
        const V t169 = t166 - t168;
        // complex block of 3, multiplier 2
        const V t170 = c[0] * t158;
        const V t171 = t117 - t170;
        const V t172 = c[1] * t161;
        const V t173 = t171 + t172;
        const V t174 = t171 - t172;
        const V t175 = c[0] * t159;
        const V t176 = t116 - t175;
        const V t177 = c[1] * t160;
        const V t178 = t176 - t177;
        const V t179 = t176 + t177;
        // complex block of 3, multiplier 2
        const V t180 = t151 + t147;
        // complex block of 9, multiplier 2
        const V t181 = c[2] * t180;
        const V t182 = c[3] * t180;
        // complex block of 3, multiplier 2
        const V t183 = t153 - t145;
        // complex block of 9, multiplier 2
        const V t184 = c[3] * t183;
        const V t185 = c[2] * t183;
        // complex block of 3, multiplier 2
        const V t186 = t133 + t129;
        // complex block of 9, multiplier 2
        const V t187 = c[6] * t186;
        const V t188 = c[7] * t186;
        // complex block of 3, multiplier 2
        const V t189 = t135 - t127;
        // complex block of 9, multiplier 2
        const V t190 = c[7] * t189;
        const V t191 = c[6] * t189;
        const V t192 = t184 - t181;
        const V t193 = t187 - t190;
        // complex block of 3, multiplier 2
        const V t194 = t192 + t193;
        const V t195 = t192 - t193;
        // complex block of 9, multiplier 2
        const V t196 = t185 + t182;
        const V t197 = t191 + t188;
        // complex block of 3, multiplier 2
        const V t198 = t197 - t196;
        const V t199 = t196 + t197;
        // complex block of 3, multiplier 2
        const V t200 = t151 - t147;
        // complex block of 9, multiplier 2
        const V t201 = c[4] * t200;
        const V t202 = c[5] * t200;
        // complex block of 3, multiplier 2
        const V t203 = t153 + t145;
        // complex block of 9, multiplier 2
        const V t204 = c[5] * t203;
        const V t205 = c[4] * t203;
        // complex block of 3, multiplier 2
        const V t206 = t133 - t129;
        // complex block of 9, multiplier 2
        const V t207 = c[2] * t206;
        const V t208 = c[3] * t206;
        // complex block of 3, multiplier 2
        const V t209 = t135 + t127;
        // complex block of 9, multiplier 2
        const V t210 = c[3] * t209;
        const V t211 = c[2] * t209;
        const V t212 = t201 + t204;
        const V t213 = t210 - t207;
        // complex block of 3, multiplier 2
        const V t214 = t212 + t213;
        const V t215 = t212 - t213;
        // complex block of 9, multiplier 2
        const V t216 = t205 - t202;
        const V t217 = t211 + t208;
        // complex block of 3, multiplier 2
        const V t218 = t216 - t217;
        const V t219 = t216 + t217;
        // complex block of 3, multiplier 2
        const V t220 = t148 - t130;
        const V t221 = c[1] * t220;
        const V t222 = t149 - t131;
        const V t223 = c[1] * t222;
        // input stage
        const V x3 = io.in(3);
        const V x51 = io.in(51);
        const V t224 = x3 + x51;
        const V t225 = x3 - x51;
        const V x15 = io.in(15);
        const V x39 = io.in(39);
        const V t226 = x15 + x39;
        const V t227 = x15 - x39;
        // complex block of 3, multiplier 2
        const V t228 = t227 - t225;
        const V t229 = c[0] * t228;
        const V t230 = t224 + t226;
        const V t231 = c[0] * t230;
        const V t232 = t225 + t227;
        const V t233 = t224 - t226;
        // input stage
        const V x21 = io.in(21);
        const V x33 = io.in(33);
        const V t234 = x21 + x33;
        const V t235 = x21 - x33;
        // complex block of 3, multiplier 2
        const V t236 = t228 - t235;
        // spectrum block of 3, multiplier 2
        const V t237 = c[1] * t236;
        // complex block of 3, multiplier 2
        const V t238 = t230 + t234;
        // spectrum block of 3, multiplier 2
        const V t239 = c[0] * t238;
        // complex block of 3, multiplier 2
        const V t240 = t235 + t229;
        const V t241 = c[1] * t233;
        const V t242 = t241 - t240;
        const V t243 = t240 + t241;
        // spectrum block of 9, multiplier 2
        const V t244 = c[5] * t243;
        const V t245 = c[3] * t242;
        // complex block of 3, multiplier 2
        const V t246 = t234 - t231;
        const V t247 = c[1] * t232;
        const V t248 = t246 + t247;
        const V t249 = t246 - t247;
        // spectrum block of 9, multiplier 2
        const V t250 = c[4] * t249;
        const V t251 = c[2] * t248;
        // input stage
        const V x6 = io.in(6);
        const V x48 = io.in(48);
        const V t252 = x6 + x48;
        const V t253 = x6 - x48;
        const V x12 = io.in(12);
        const V x42 = io.in(42);
        const V t254 = x12 + x42;
        const V t255 = x12 - x42;
        const V x24 = io.in(24);
        const V x30 = io.in(30);
        const V t256 = x24 + x30;
        const V t257 = x24 - x30;
        // complex block of 3, multiplier 2
        const V t258 = t257 - t255;
        const V t259 = c[0] * t258;
        const V t260 = t256 + t254;
        const V t261 = c[0] * t260;
        const V t262 = t257 + t255;
        const V t263 = t256 - t254;
        const V t264 = t258 + t253;
        // spectrum block of 3, multiplier 2
        const V t265 = c[1] * t264;
        // complex block of 3, multiplier 2
        const V t266 = t260 + t252;
        // spectrum block of 3, multiplier 2
        const V t267 = c[0] * t266;
        // complex block of 3, multiplier 2
        const V t268 = t253 - t259;
        const V t269 = c[1] * t263;
        const V t270 = t268 + t269;
        const V t271 = t268 - t269;
        // spectrum block of 9, multiplier 2
        const V t272 = c[5] * t271;
        const V t273 = c[3] * t270;
        // complex block of 3, multiplier 2
        const V t274 = t252 - t261;
        const V t275 = c[1] * t262;
        const V t276 = t274 - t275;
        const V t277 = t274 + t275;
        // spectrum block of 9, multiplier 2
        const V t278 = c[4] * t277;
        const V t279 = c[2] * t276;
        // input stage
        const V x9 = io.in(9);
        const V x45 = io.in(45);
        const V t280 = x9 + x45;
        const V t281 = x9 - x45;
        // spectrum block of 3, multiplier 2
        const V t282 = c[0] * t280;
        const V x27 = io.in(27);
        const V t283 = t280 + x27;
        const V t284 = x27 - t282;
        const V t285 = c[1] * t281;
        const V t286 = t284 + t285;
        const V t287 = t284 - t285;
        // spectrum block of 9, multiplier 2
        const V t288 = t278 - t272;
        // spectrum block of 3, multiplier 2
        const V t289 = c[0] * t288;
        const V t290 = c[8] * t271;
        const V t291 = c[9] * t277;
        const V t292 = t290 + t291;
        const V t293 = t288 + t7;
        const V t294 = t7 - t289;
        const V t295 = t294 - t292;
        const V t296 = t294 + t292;
        // complex block of 3, multiplier 2
        const V t297 = t214 + t174;
        // spectrum block of 27, multiplier 2
        const V t298 = c[12] * t297;
        // spectrum block of 3, multiplier 2
        const V t299 = c[13] * t297;
        // complex block of 3, multiplier 2
        const V t300 = t218 + t179;
        // spectrum block of 27, multiplier 2
        const V t301 = c[14] * t300;
        // spectrum block of 3, multiplier 2
        const V t302 = c[15] * t300;
        // spectrum block of 27, multiplier 2
        const V t303 = t301 - t298;
        // spectrum block of 3, multiplier 2
        const V t304 = c[0] * t303;
        const V t305 = t299 + t302;
        // complex block of 3, multiplier 2
        const V t306 = c[0] * t214;
        const V t307 = t174 - t306;
        const V t308 = c[1] * t219;
        const V t309 = t307 + t308;
        const V t310 = t307 - t308;
        const V t311 = c[0] * t218;
        const V t312 = t179 - t311;
        const V t313 = c[1] * t215;
        const V t314 = t312 - t313;
        const V t315 = t312 + t313;
        // spectrum block of 27, multiplier 2
        const V t316 = c[16] * t310;
        const V t317 = c[17] * t315;
        const V t318 = t317 + t316;
        const V t319 = c[18] * t309;
        const V t320 = c[19] * t314;
        const V t321 = t319 - t320;
        // spectrum block of 3, multiplier 2
        const V t322 = c[20] * t315;
        const V t323 = c[21] * t310;
        // spectrum block of 3, multiplier 2
        const V t324 = c[22] * t309;
        const V t325 = c[23] * t314;
        // spectrum block of 9, multiplier 2
        const V t326 = t250 + t244;
        // spectrum block of 3, multiplier 2
        const V t327 = c[0] * t326;
        const V t328 = c[9] * t249;
        const V t329 = c[8] * t243;
        const V t330 = t328 - t329;
        const V t331 = t326 + t287;
        const V t332 = t287 - t327;
        const V t333 = t332 - t330;
        const V t334 = t332 + t330;
        // complex block of 3, multiplier 2
        const V t335 = t106 - t66;
        // spectrum block of 27, multiplier 2
        const V t336 = c[12] * t335;
        // spectrum block of 3, multiplier 2
        const V t337 = c[13] * t335;
        // complex block of 3, multiplier 2
        const V t338 = t110 + t71;
        // spectrum block of 27, multiplier 2
        const V t339 = c[14] * t338;
        // spectrum block of 3, multiplier 2
        const V t340 = c[15] * t338;
        // spectrum block of 27, multiplier 2
        const V t341 = t339 - t336;
        // spectrum block of 3, multiplier 2
        const V t342 = c[0] * t341;
        const V t343 = t337 + t340;
        // complex block of 3, multiplier 2
        const V t344 = c[0] * t106;
        const V t345 = t66 + t344;
        const V t346 = c[1] * t111;
        const V t347 = t346 - t345;
        const V t348 = t345 + t346;
        const V t349 = c[0] * t110;
        const V t350 = t71 - t349;
        const V t351 = c[1] * t107;
        const V t352 = t350 - t351;
        const V t353 = t350 + t351;
        // spectrum block of 27, multiplier 2
        const V t354 = c[16] * t348;
        const V t355 = c[17] * t353;
        const V t356 = t354 - t355;
        const V t357 = c[18] * t347;
        const V t358 = c[19] * t352;
        const V t359 = t357 - t358;
        // spectrum block of 3, multiplier 2
        const V t360 = c[21] * t348;
        const V t361 = c[20] * t353;
        // spectrum block of 3, multiplier 2
        const V t362 = c[22] * t347;
        const V t363 = c[23] * t352;
        // spectrum block of 3, multiplier 2
        const V t364 = t303 + t293;
        // spectrum block of 3, multiplier 2
        const V t365 = t341 + t331;
        // spectrum block of 2
        const V t366 = t364 + t365;
        io.out(52, t366);
        const V t367 = t364 - t365;
        io.out(25, t367);
        // spectrum block of 3, multiplier 2
        const V t368 = t293 - t304;
        const V t369 = t368 - t305;
        const V t370 = t368 + t305;
        // spectrum block of 3, multiplier 2
        const V t371 = t331 - t342;
        const V t372 = t371 - t343;
        const V t373 = t371 + t343;
        // spectrum block of 2
        const V t374 = t370 + t373;
        io.out(34, t374);
        const V t375 = t370 - t373;
        io.out(7, t375);
        // spectrum block of 2
        const V t376 = t369 + t372;
        io.out(16, t376);
        const V t377 = t369 - t372;
        io.out(43, t377);
        // spectrum block of 3, multiplier 2
        const V t378 = t296 - t318;
        // spectrum block of 3, multiplier 2
        const V t379 = t356 + t334;
        // spectrum block of 2
        const V t380 = t378 + t379;
        io.out(46, t380);
        const V t381 = t378 - t379;
        io.out(19, t381);
        // spectrum block of 3, multiplier 2
        const V t382 = c[0] * t318;
        const V t383 = t382 + t296;
        const V t384 = t322 - t323;
        // spectrum block of 3, multiplier 2
        const V t385 = c[0] * t356;
        const V t386 = t334 - t385;
        const V t387 = t360 + t361;
        // spectrum block of 3, multiplier 2
        const V t388 = t383 - t384;
        // spectrum block of 3, multiplier 2
        const V t389 = t386 - t387;
        // spectrum block of 2
        const V t390 = t388 + t389;
        io.out(10, t390);
        const V t391 = t388 - t389;
        io.out(37, t391);
        // spectrum block of 3, multiplier 2
        const V t392 = t383 + t384;
        // spectrum block of 3, multiplier 2
        const V t393 = t386 + t387;
        // spectrum block of 2
        const V t394 = t392 + t393;
        io.out(28, t394);
        const V t395 = t392 - t393;
        io.out(1, t395);
        // spectrum block of 3, multiplier 2
        const V t396 = t321 + t295;
        // spectrum block of 3, multiplier 2
        const V t397 = t359 + t333;
        // spectrum block of 2
        const V t398 = t396 + t397;
        io.out(40, t398);
        const V t399 = t396 - t397;
        io.out(13, t399);
        // spectrum block of 3, multiplier 2
        const V t400 = c[0] * t321;
        const V t401 = t295 - t400;
        const V t402 = t324 + t325;
        // spectrum block of 3, multiplier 2
        const V t403 = c[0] * t359;
        const V t404 = t333 - t403;
        const V t405 = t362 + t363;
        // spectrum block of 3, multiplier 2
        const V t406 = t401 + t402;
        // spectrum block of 3, multiplier 2
        const V t407 = t404 + t405;
        // spectrum block of 2
        const V t408 = t406 + t407;
        io.out(4, t408);
        const V t409 = t406 - t407;
        io.out(31, t409);
        // spectrum block of 3, multiplier 2
        const V t410 = t401 - t402;
        // spectrum block of 3, multiplier 2
        const V t411 = t404 - t405;
        // spectrum block of 2
        const V t412 = t410 + t411;
        io.out(22, t412);
        const V t413 = t410 - t411;
        io.out(49, t413);
        // spectrum block of 9, multiplier 2
        const V t414 = t279 + t273;
        // spectrum block of 3, multiplier 2
        const V t415 = c[0] * t414;
        const V t416 = c[10] * t276;
        const V t417 = c[11] * t270;
        const V t418 = t416 - t417;
        const V t419 = t6 - t414;
        const V t420 = t415 + t6;
        const V t421 = t420 - t418;
        const V t422 = t420 + t418;
        // complex block of 3, multiplier 2
        const V t423 = t194 + t173;
        // spectrum block of 27, multiplier 2
        const V t424 = c[24] * t423;
        // spectrum block of 3, multiplier 2
        const V t425 = c[25] * t423;
        // complex block of 3, multiplier 2
        const V t426 = t198 + t178;
        // spectrum block of 27, multiplier 2
        const V t427 = c[26] * t426;
        // spectrum block of 3, multiplier 2
        const V t428 = c[27] * t426;
        // spectrum block of 27, multiplier 2
        const V t429 = t427 - t424;
        // spectrum block of 3, multiplier 2
        const V t430 = c[0] * t429;
        const V t431 = t425 + t428;
        // complex block of 3, multiplier 2
        const V t432 = c[0] * t194;
        const V t433 = t173 - t432;
        const V t434 = c[1] * t199;
        const V t435 = t433 - t434;
        const V t436 = t433 + t434;
        const V t437 = c[0] * t198;
        const V t438 = t178 - t437;
        const V t439 = c[1] * t195;
        const V t440 = t438 - t439;
        const V t441 = t438 + t439;
        // spectrum block of 27, multiplier 2
        const V t442 = c[28] * t436;
        const V t443 = c[29] * t441;
        const V t444 = t443 + t442;
        const V t445 = c[30] * t435;
        const V t446 = c[31] * t440;
        const V t447 = t445 - t446;
        // spectrum block of 3, multiplier 2
        const V t448 = c[32] * t441;
        const V t449 = c[33] * t436;
        // spectrum block of 3, multiplier 2
        const V t450 = c[34] * t435;
        const V t451 = c[35] * t440;
        // spectrum block of 9, multiplier 2
        const V t452 = t251 + t245;
        // spectrum block of 3, multiplier 2
        const V t453 = c[0] * t452;
        const V t454 = c[10] * t248;
        const V t455 = c[11] * t242;
        const V t456 = t454 - t455;
        const V t457 = t286 - t452;
        const V t458 = t453 + t286;
        const V t459 = t458 - t456;
        const V t460 = t458 + t456;
        // complex block of 3, multiplier 2
        const V t461 = t86 + t65;
        // spectrum block of 27, multiplier 2
        const V t462 = c[24] * t461;
        // spectrum block of 3, multiplier 2
        const V t463 = c[25] * t461;
        // complex block of 3, multiplier 2
        const V t464 = t90 + t70;
        // spectrum block of 27, multiplier 2
        const V t465 = c[26] * t464;
        // spectrum block of 3, multiplier 2
        const V t466 = c[27] * t464;
        // spectrum block of 27, multiplier 2
        const V t467 = t465 - t462;
        // spectrum block of 3, multiplier 2
        const V t468 = c[0] * t467;
        const V t469 = t463 + t466;
        // complex block of 3, multiplier 2
        const V t470 = c[0] * t86;
        const V t471 = t65 - t470;
        const V t472 = c[1] * t91;
        const V t473 = t471 - t472;
        const V t474 = t471 + t472;
        const V t475 = c[0] * t90;
        const V t476 = t70 - t475;
        const V t477 = c[1] * t87;
        const V t478 = t476 - t477;
        const V t479 = t476 + t477;
        // spectrum block of 27, multiplier 2
        const V t480 = c[28] * t474;
        const V t481 = c[29] * t479;
        const V t482 = t481 + t480;
        const V t483 = c[30] * t473;
        const V t484 = c[31] * t478;
        const V t485 = t483 - t484;
        // spectrum block of 3, multiplier 2
        const V t486 = c[32] * t479;
        const V t487 = c[33] * t474;
        // spectrum block of 3, multiplier 2
        const V t488 = c[34] * t473;
        const V t489 = c[35] * t478;
        // spectrum block of 3, multiplier 2
        const V t490 = t429 + t419;
        // spectrum block of 3, multiplier 2
        const V t491 = t467 + t457;
        // spectrum block of 2
        const V t492 = t490 + t491;
        io.out(50, t492);
        const V t493 = t490 - t491;
        io.out(23, t493);
        // spectrum block of 3, multiplier 2
        const V t494 = t419 - t430;
        const V t495 = t494 - t431;
        const V t496 = t494 + t431;
        // spectrum block of 3, multiplier 2
        const V t497 = t457 - t468;
        const V t498 = t497 - t469;
        const V t499 = t497 + t469;
        // spectrum block of 2
        const V t500 = t496 + t499;
        io.out(32, t500);
        const V t501 = t496 - t499;
        io.out(5, t501);
        // spectrum block of 2
        const V t502 = t495 + t498;
        io.out(14, t502);
        const V t503 = t495 - t498;
        io.out(41, t503);
        // spectrum block of 3, multiplier 2
        const V t504 = t422 - t444;
        // spectrum block of 3, multiplier 2
        const V t505 = t460 - t482;
        // spectrum block of 2
        const V t506 = t504 + t505;
        io.out(44, t506);
        const V t507 = t504 - t505;
        io.out(17, t507);
        // spectrum block of 3, multiplier 2
        const V t508 = c[0] * t444;
        const V t509 = t508 + t422;
        const V t510 = t448 - t449;
        // spectrum block of 3, multiplier 2
        const V t511 = c[0] * t482;
        const V t512 = t511 + t460;
        const V t513 = t486 - t487;
        // spectrum block of 3, multiplier 2
        const V t514 = t509 - t510;
        // spectrum block of 3, multiplier 2
        const V t515 = t512 - t513;
        // spectrum block of 2
        const V t516 = t514 + t515;
        io.out(8, t516);
        const V t517 = t514 - t515;
        io.out(35, t517);
        // spectrum block of 3, multiplier 2
        const V t518 = t509 + t510;
        // spectrum block of 3, multiplier 2
        const V t519 = t512 + t513;
        // spectrum block of 2
        const V t520 = t518 + t519;
        io.out(26, t520);
        const V t521 = t518 - t519;
        io.out(53, t521);
        // spectrum block of 3, multiplier 2
        const V t522 = t447 + t421;
        // spectrum block of 3, multiplier 2
        const V t523 = t485 + t459;
        // spectrum block of 2
        const V t524 = t522 + t523;
        io.out(38, t524);
        const V t525 = t522 - t523;
        io.out(11, t525);
        // spectrum block of 3, multiplier 2
        const V t526 = c[0] * t447;
        const V t527 = t421 - t526;
        const V t528 = t450 + t451;
        // spectrum block of 3, multiplier 2
        const V t529 = c[0] * t485;
        const V t530 = t459 - t529;
        const V t531 = t488 + t489;
        // spectrum block of 3, multiplier 2
        const V t532 = t527 + t528;
        // spectrum block of 3, multiplier 2
        const V t533 = t530 + t531;
        // spectrum block of 2
        const V t534 = t532 + t533;
        io.out(2, t534);
        const V t535 = t532 - t533;
        io.out(29, t535);
        // spectrum block of 3, multiplier 2
        const V t536 = t527 - t528;
        // spectrum block of 3, multiplier 2
        const V t537 = t530 - t531;
        // spectrum block of 2
        const V t538 = t536 + t537;
        io.out(20, t538);
        const V t539 = t536 - t537;
        io.out(47, t539);
        // spectrum block of 3, multiplier 2
        const V t540 = t266 + t3;
        // complex block of 3, multiplier 2
        const V t541 = t167 + t166;
        // spectrum block of 3, multiplier 2
        const V t542 = c[0] * t541;
        const V t543 = t541 + t540;
        const V t544 = t540 - t542;
        // complex block of 3, multiplier 2
        const V t545 = t163 + t162;
        // spectrum block of 3, multiplier 2
        const V t546 = c[1] * t545;
        // spectrum block of 3, multiplier 2
        const V t547 = t238 + t283;
        // complex block of 3, multiplier 2
        const V t548 = t59 + t58;
        // spectrum block of 3, multiplier 2
        const V t549 = c[0] * t548;
        const V t550 = t548 + t547;
        const V t551 = t547 - t549;
        // complex block of 3, multiplier 2
        const V t552 = t55 + t54;
        // spectrum block of 3, multiplier 2
        const V t553 = c[1] * t552;
        // spectrum block of 3, multiplier 2
        const V t554 = t544 - t546;
        // spectrum block of 3, multiplier 2
        const V t555 = t551 - t553;
        // spectrum block of 2
        const V t556 = t554 + t555;
        io.out(18, t556);
        const V t557 = t554 - t555;
        io.out(45, t557);
        // spectrum block of 3, multiplier 2
        const V t558 = t544 + t546;
        // spectrum block of 3, multiplier 2
        const V t559 = t551 + t553;
        // spectrum block of 2
        const V t560 = t558 + t559;
        io.out(36, t560);
        const V t561 = t558 - t559;
        io.out(9, t561);
        // spectrum block of 2
        const V t562 = t543 + t550;
        io.out(0, t562);
        const V t563 = t543 - t550;
        io.out(27, t563);
        // spectrum block of 3, multiplier 2
        const V t564 = t3 - t267;
        const V t565 = t564 - t265;
        const V t566 = t564 + t265;
        // complex block of 3, multiplier 2
        const V t567 = t165 + t223;
        // spectrum block of 27, multiplier 2
        const V t568 = c[3] * t567;
        // spectrum block of 3, multiplier 2
        const V t569 = c[11] * t567;
        // complex block of 3, multiplier 2
        const V t570 = t169 - t221;
        // spectrum block of 27, multiplier 2
        const V t571 = c[2] * t570;
        // spectrum block of 3, multiplier 2
        const V t572 = c[10] * t570;
        // spectrum block of 27, multiplier 2
        const V t573 = t571 + t568;
        // spectrum block of 3, multiplier 2
        const V t574 = c[0] * t573;
        const V t575 = t572 - t569;
        // complex block of 3, multiplier 2
        const V t576 = t165 - t223;
        // spectrum block of 27, multiplier 2
        const V t577 = c[5] * t576;
        // spectrum block of 3, multiplier 2
        const V t578 = c[8] * t576;
        // complex block of 3, multiplier 2
        const V t579 = t169 + t221;
        // spectrum block of 27, multiplier 2
        const V t580 = c[4] * t579;
        // spectrum block of 3, multiplier 2
        const V t581 = c[9] * t579;
        // spectrum block of 27, multiplier 2
        const V t582 = t580 - t577;
        // spectrum block of 3, multiplier 2
        const V t583 = c[0] * t582;
        const V t584 = t578 + t581;
        // spectrum block of 3, multiplier 2
        const V t585 = t283 - t239;
        const V t586 = t585 - t237;
        const V t587 = t585 + t237;
        // complex block of 3, multiplier 2
        const V t588 = t57 + t115;
        // spectrum block of 27, multiplier 2
        const V t589 = c[3] * t588;
        // spectrum block of 3, multiplier 2
        const V t590 = c[11] * t588;
        // complex block of 3, multiplier 2
        const V t591 = t61 - t113;
        // spectrum block of 27, multiplier 2
        const V t592 = c[2] * t591;
        // spectrum block of 3, multiplier 2
        const V t593 = c[10] * t591;
        // spectrum block of 27, multiplier 2
        const V t594 = t592 + t589;
        // spectrum block of 3, multiplier 2
        const V t595 = c[0] * t594;
        const V t596 = t593 - t590;
        // complex block of 3, multiplier 2
        const V t597 = t57 - t115;
        // spectrum block of 27, multiplier 2
        const V t598 = c[5] * t597;
        // spectrum block of 3, multiplier 2
        const V t599 = c[8] * t597;
        // complex block of 3, multiplier 2
        const V t600 = t61 + t113;
        // spectrum block of 27, multiplier 2
        const V t601 = c[4] * t600;
        // spectrum block of 3, multiplier 2
        const V t602 = c[9] * t600;
        // spectrum block of 27, multiplier 2
        const V t603 = t601 - t598;
        // spectrum block of 3, multiplier 2
        const V t604 = c[0] * t603;
        const V t605 = t599 + t602;
        // spectrum block of 3, multiplier 2
        const V t606 = t582 + t566;
        // spectrum block of 3, multiplier 2
        const V t607 = t603 + t587;
        // spectrum block of 2
        const V t608 = t606 + t607;
        io.out(48, t608);
        const V t609 = t606 - t607;
        io.out(21, t609);
        // spectrum block of 3, multiplier 2
        const V t610 = t566 - t583;
        const V t611 = t610 - t584;
        const V t612 = t610 + t584;
        // spectrum block of 3, multiplier 2
        const V t613 = t587 - t604;
        const V t614 = t613 - t605;
        const V t615 = t613 + t605;
        // spectrum block of 2
        const V t616 = t612 + t615;
        io.out(30, t616);
        const V t617 = t612 - t615;
        io.out(3, t617);
        // spectrum block of 2
        const V t618 = t611 + t614;
        io.out(12, t618);
        const V t619 = t611 - t614;
        io.out(39, t619);
        // spectrum block of 3, multiplier 2
        const V t620 = t565 - t573;
        // spectrum block of 3, multiplier 2
        const V t621 = t586 - t594;
        // spectrum block of 2
        const V t622 = t620 + t621;
        io.out(42, t622);
        const V t623 = t620 - t621;
        io.out(15, t623);
        // spectrum block of 3, multiplier 2
        const V t624 = t574 + t565;
        const V t625 = t624 - t575;
        const V t626 = t624 + t575;
        // spectrum block of 3, multiplier 2
        const V t627 = t595 + t586;
        const V t628 = t627 - t596;
        const V t629 = t627 + t596;
        // spectrum block of 2
        const V t630 = t626 + t629;
        io.out(24, t630);
        const V t631 = t626 - t629;
        io.out(51, t631);
        // spectrum block of 2
        const V t632 = t625 + t628;
        io.out(6, t632);
        const V t633 = t625 - t628;
        io.out(33, t633);
    }
};

}  // namespace zulg
