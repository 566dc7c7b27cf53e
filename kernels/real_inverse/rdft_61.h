// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 61.
// Inverse DFT to 61 real points, Rader 4, 3, 5.
// 404 additions, 358 subtractions, 478 multiplications (539 with `scale`); 75 constants; 111 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<61> {
    static constexpr int steps = 1301;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        0.005558934851007752,  // c[6]: -P[20] of 61
        0.12042596856560207,  // c[7]: P[10] of 61
        0.20457446421174474,  // c[8]: P[2] of 61
        0.21139251213699267,  // c[9]: P[28] of 61
        0.25061611613274265,  // c[10]: P[8] of 61
        0.02612376015167778,  // c[11]: -P[22] of 61
        0.19643012582250524,  // c[12]: -P[12] of 61
        0.12208153447883048,  // c[13]: P[18] of 61
        0.25795829907156226,  // c[14]: -P[14] of 61
        0.2503173720628796,  // c[15]: P[16] of 61
        0.035854723233524656,  // c[16]: -P[4] of 61
        0.1680594978185787,  // c[17]: -P[26] of 61
        0.2514915834033143,  // c[18]: P[24] of 61
        0.1602815043062281,  // c[19]: P[6] of 61
        0.2602823006297202,  // c[20]: Q[20] of 61
        0.23081456598926853,  // c[21]: Q[10] of 61
        0.15195717683014903,  // c[22]: -Q[28] of 61
        0.16101883855703142,  // c[23]: Q[2] of 61
        0.07049354660050404,  // c[24]: Q[8] of 61
        0.25902765669579647,  // c[25]: Q[22] of 61
        0.17085954303793666,  // c[26]: Q[12] of 61
        0.22994320324173947,  // c[27]: -Q[18] of 61
        0.07154712447968609,  // c[28]: Q[16] of 61
        0.035146745480687275,  // c[29]: Q[14] of 61
        0.2578608473569129,  // c[30]: Q[4] of 61
        0.1988310412655552,  // c[31]: Q[26] of 61
        0.20515266792101527,  // c[32]: Q[6] of 61
        0.0673035010610264,  // c[33]: -Q[24] of 61
        0.23576264945389142,  // c[34]: -Q[15] of 61
        0.11042531820311542,  // c[35]: P[15] of 61
        0.6691306063588582,  // c[36]: sin 2 pi 7/60
        0.7431448254773942,  // c[37]: cos 2 pi 7/60
        0.9781476007338057,  // c[38]: sin 2 pi 13/60
        0.20791169081775934,  // c[39]: cos 2 pi 13/60
        0.9135454576426009,  // c[40]: sin 2 pi 11/60
        0.4067366430758002,  // c[41]: cos 2 pi 11/60
        0.10452846326765347,  // c[42]: sin 2 pi 1/60
        0.9945218953682733,  // c[43]: cos 2 pi 1/60
        0.20918808865965802,  // c[44]: -P[1] of 61
        0.15497780918795065,  // c[45]: -Q[1] of 61
        0.1192479770652986,  // c[46]: P[29] of 61
        0.2314253610640195,  // c[47]: Q[29] of 61
        0.24096799804842803,  // c[48]: -P[11] of 61
        0.09855050326766758,  // c[49]: Q[11] of 61
        0.13608829619444565,  // c[50]: P[19] of 61
        0.22194087820108896,  // c[51]: -Q[19] of 61
        0.2406977012179139,  // c[52]: P[7] of 61
        0.09920884237904212,  // c[53]: Q[7] of 61
        0.09177478132326014,  // c[54]: P[23] of 61
        0.24362915936079071,  // c[55]: -Q[23] of 61
        0.25591390402746017,  // c[56]: P[13] of 61
        0.047810579406671994,  // c[57]: -Q[13] of 61
        0.20961095261841867,  // c[58]: -P[17] of 61
        0.15440539602027134,  // c[59]: Q[17] of 61
        0.23892325195327072,  // c[60]: -P[3] of 61
        0.10340917490170637,  // c[61]: Q[3] of 61
        0.25817133658934166,  // c[62]: P[27] of 61
        0.0335460689418391,  // c[63]: -Q[27] of 61
        0.2380667501964918,  // c[64]: -P[5] of 61
        0.1053660297660444,  // c[65]: -Q[5] of 61
        0.23335104576758062,  // c[66]: P[25] of 61
        0.1154342549547329,  // c[67]: Q[25] of 61
        0.24403592948183833,  // c[68]: -P[9] of 61
        0.09068761161102994,  // c[69]: Q[9] of 61
        0.256047285458026,  // c[70]: -P[21] of 61
        0.04709103298244708,  // c[71]: Q[21] of 61
        0.016666666666666666,  // c[72]: 1/60
        0.13017082793177756,  // c[73]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x3r = io.re(3);
        const V t1 = two * x3r;
        const V x20r = io.re(20);
        const V t2 = two * x20r;
        // real block of 5
        const V t3 = t1 + t2;
        const V t4 = t1 - t2;
        // doubled bins
        const V x9r = io.re(9);
        const V t5 = two * x9r;
        const V x27r = io.re(27);
        const V t6 = two * x27r;
        // real block of 5
        const V t7 = t6 + t5;
        const V t8 = t6 - t5;
        const V t9 = t3 + t7;
        const V t10 = c[0] * t3;
        const V t11 = c[1] * t7;
        const V t12 = t10 - t11;
        const V t13 = c[2] * t4;
        const V t14 = c[3] * t8;
        const V t15 = t14 - t13;
        const V t16 = c[1] * t3;
        const V t17 = t0 - t16;
        const V t18 = c[0] * t7;
        const V t19 = c[3] * t4;
        const V t20 = c[2] * t8;
        const V t21 = t19 + t20;
        // doubled bins
        const V x2r = io.re(2);
        const V t22 = two * x2r;
        const V x7r = io.re(7);
        const V t23 = two * x7r;
        // real block of 5
        const V t24 = t22 + t23;
        const V t25 = t22 - t23;
        // doubled bins
        const V x6r = io.re(6);
        const V t26 = two * x6r;
        const V x18r = io.re(18);
        const V t27 = two * x18r;
        // real block of 5
        const V t28 = t27 + t26;
        const V t29 = t27 - t26;
        // doubled bins
        const V x10r = io.re(10);
        const V t30 = two * x10r;
        const V x17r = io.re(17);
        const V t31 = two * x17r;
        // real block of 5
        const V t32 = t30 + t31;
        const V t33 = t30 - t31;
        // doubled bins
        const V x21r = io.re(21);
        const V t34 = two * x21r;
        const V x26r = io.re(26);
        const V t35 = two * x26r;
        const V x30r = io.re(30);
        const V t36 = two * x30r;
        // real block of 5
        const V t37 = t35 + t36;
        const V t38 = t35 - t36;
        // doubled bins
        const V x29r = io.re(29);
        const V t39 = two * x29r;
        // real block of 5
        const V t40 = t37 + t32;
        const V t41 = t40 + t39;
        const V t42 = c[0] * t37;
        const V t43 = c[1] * t32;
        const V t44 = t42 - t43;
        const V t45 = t44 + t39;
        const V t46 = c[2] * t38;
        const V t47 = c[3] * t33;
        const V t48 = t47 - t46;
        // real block of 5
        const V t49 = c[2] * t25;
        const V t50 = c[3] * t29;
        const V t51 = t50 - t49;
        // complex block of 3
        const V t52 = t51 + t48;
        // real block of 5
        const V t53 = c[1] * t37;
        const V t54 = t39 - t53;
        const V t55 = c[0] * t32;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t38;
        const V t58 = c[2] * t33;
        const V t59 = t57 + t58;
        // real block of 5
        const V t60 = c[3] * t25;
        const V t61 = c[2] * t29;
        const V t62 = t60 + t61;
        // complex block of 3
        const V t63 = t62 + t59;
        // real block of 5
        const V t64 = t24 + t28;
        const V t65 = t64 + t34;
        const V t66 = c[0] * t24;
        const V t67 = c[1] * t28;
        const V t68 = t66 - t67;
        const V t69 = t68 + t34;
        const V t70 = c[1] * t24;
        const V t71 = t34 - t70;
        const V t72 = c[0] * t28;
        const V t73 = t71 + t72;
        // doubled bins
        const V x4r = io.re(4);
        const V t74 = two * x4r;
        const V x12r = io.re(12);
        const V t75 = two * x12r;
        // real block of 5
        const V t76 = t75 + t74;
        const V t77 = t75 - t74;
        // doubled bins
        const V x5r = io.re(5);
        const V t78 = two * x5r;
        const V x15r = io.re(15);
        const V t79 = two * x15r;
        // real block of 5
        const V t80 = t79 + t78;
        const V t81 = t79 - t78;
        // doubled bins
        const V x13r = io.re(13);
        const V t82 = two * x13r;
        const V x14r = io.re(14);
        const V t83 = two * x14r;
        const V x16r = io.re(16);
        const V t84 = two * x16r;
        const V x22r = io.re(22);
        const V t85 = two * x22r;
        // real block of 5
        const V t86 = t85 + t84;
        const V t87 = t85 - t84;
        // doubled bins
        const V x19r = io.re(19);
        const V t88 = two * x19r;
        const V x25r = io.re(25);
        const V t89 = two * x25r;
        // real block of 5
        const V t90 = t88 + t89;
        const V t91 = t88 - t89;
        // real block of 5
        const V t92 = t86 + t80;
        const V t93 = t92 + t82;
        const V t94 = c[0] * t86;
        const V t95 = c[1] * t80;
        const V t96 = t94 - t95;
        const V t97 = t96 + t82;
        const V t98 = c[2] * t87;
        const V t99 = c[3] * t81;
        const V t100 = t99 - t98;
        // real block of 5
        const V t101 = c[2] * t91;
        const V t102 = c[3] * t77;
        const V t103 = t102 - t101;
        // complex block of 3
        const V t104 = t100 + t103;
        // real block of 5
        const V t105 = c[1] * t86;
        const V t106 = t82 - t105;
        const V t107 = c[0] * t80;
        const V t108 = t106 + t107;
        const V t109 = c[3] * t87;
        const V t110 = c[2] * t81;
        const V t111 = t109 + t110;
        // real block of 5
        const V t112 = c[3] * t91;
        const V t113 = c[2] * t77;
        const V t114 = t112 + t113;
        // complex block of 3
        const V t115 = t111 + t114;
        // real block of 5
        const V t116 = t90 + t76;
        const V t117 = t116 + t83;
        const V t118 = c[0] * t90;
        const V t119 = c[1] * t76;
        const V t120 = t118 - t119;
        const V t121 = t120 + t83;
        const V t122 = c[1] * t90;
        const V t123 = t83 - t122;
        const V t124 = c[0] * t76;
        const V t125 = t123 + t124;
        // doubled bins
        const V x8r = io.re(8);
        const V t126 = two * x8r;
        const V x23r = io.re(23);
        const V t127 = two * x23r;
        // real block of 5
        const V t128 = t126 + t127;
        const V t129 = t126 - t127;
        // doubled bins
        const V x11r = io.re(11);
        const V t130 = two * x11r;
        const V x24r = io.re(24);
        const V t131 = two * x24r;
        const V x28r = io.re(28);
        const V t132 = two * x28r;
        // real block of 5
        const V t133 = t132 + t131;
        const V t134 = t132 - t131;
        const V t135 = t133 + t128;
        const V t136 = c[0] * t133;
        const V t137 = c[1] * t128;
        const V t138 = t136 - t137;
        const V t139 = c[2] * t134;
        const V t140 = c[3] * t129;
        const V t141 = t140 - t139;
        const V t142 = c[1] * t133;
        const V t143 = t130 - t142;
        const V t144 = c[0] * t128;
        const V t145 = c[3] * t134;
        const V t146 = c[2] * t129;
        const V t147 = t145 + t146;
        // real block of 5
        const V t148 = t9 + t0;
        // real block of 3
        const V t149 = t93 + t117;
        const V t150 = c[4] * t149;
        const V t151 = t149 + t148;
        const V t152 = t148 - t150;
        // real block of 5
        const V t153 = t135 + t130;
        // real block of 3
        const V t154 = t65 + t41;
        const V t155 = c[4] * t154;
        const V t156 = t154 + t153;
        const V t157 = t153 - t155;
        // real block of 2
        const V t158 = t151 + t156;
        // spectrum block of 61
        const V t159 = c[72] * t158;
        // real block of 2
        const V t160 = t151 - t156;
        // complex block of 2
        const V t161 = t152 + t157;
        // spectrum block of 61
        const V t162 = c[6] * t161;
        // complex block of 2
        const V t163 = t152 - t157;
        // spectrum block of 61
        const V t164 = c[7] * t163;
        // real block of 5
        const V t165 = t12 + t0;
        // complex block of 3
        const V t166 = t97 + t121;
        const V t167 = c[4] * t166;
        const V t168 = t166 + t165;
        const V t169 = t165 - t167;
        // real block of 5
        const V t170 = t138 + t130;
        // complex block of 3
        const V t171 = t69 + t45;
        const V t172 = c[4] * t171;
        const V t173 = t171 + t170;
        const V t174 = t170 - t172;
        // complex block of 3
        const V t175 = t100 - t103;
        const V t176 = c[5] * t175;
        // complex block of 3
        const V t177 = t51 - t48;
        const V t178 = c[5] * t177;
        // complex block of 3
        const V t179 = t169 + t176;
        // complex block of 3
        const V t180 = t174 + t178;
        // complex block of 2
        const V t181 = t179 + t180;
        const V t182 = t179 - t180;
        // spectrum block of 61
        const V t183 = c[8] * t182;
        const V t184 = c[9] * t181;
        // complex block of 3
        const V t185 = t169 - t176;
        // complex block of 3
        const V t186 = t174 - t178;
        // complex block of 2
        const V t187 = t185 + t186;
        const V t188 = t185 - t186;
        // spectrum block of 61
        const V t189 = c[10] * t187;
        const V t190 = c[11] * t188;
        // complex block of 2
        const V t191 = t168 + t173;
        // spectrum block of 61
        const V t192 = c[12] * t191;
        // complex block of 2
        const V t193 = t168 - t173;
        // spectrum block of 61
        const V t194 = c[13] * t193;
        // real block of 5
        const V t195 = t17 + t18;
        // complex block of 3
        const V t196 = t108 + t125;
        const V t197 = c[4] * t196;
        const V t198 = t196 + t195;
        const V t199 = t195 - t197;
        // real block of 5
        const V t200 = t143 + t144;
        // complex block of 3
        const V t201 = t73 + t56;
        const V t202 = c[4] * t201;
        const V t203 = t201 + t200;
        const V t204 = t200 - t202;
        // complex block of 3
        const V t205 = t114 - t111;
        const V t206 = c[5] * t205;
        // complex block of 3
        const V t207 = t59 - t62;
        const V t208 = c[5] * t207;
        // complex block of 3
        const V t209 = t199 + t206;
        // complex block of 3
        const V t210 = t204 + t208;
        // complex block of 2
        const V t211 = t209 + t210;
        const V t212 = t209 - t210;
        // spectrum block of 61
        const V t213 = c[14] * t212;
        const V t214 = c[15] * t211;
        // complex block of 3
        const V t215 = t199 - t206;
        // complex block of 3
        const V t216 = t204 - t208;
        // complex block of 2
        const V t217 = t215 + t216;
        const V t218 = t215 - t216;
        // spectrum block of 61
        const V t219 = c[16] * t217;
        const V t220 = c[17] * t218;
        // complex block of 2
        const V t221 = t198 + t203;
        // spectrum block of 61
        const V t222 = c[18] * t221;
        // complex block of 2
        const V t223 = t198 - t203;
        // spectrum block of 61
        const V t224 = c[19] * t223;
        // real block of 3
        const V t225 = t93 - t117;
        const V t226 = c[5] * t225;
        // real block of 3
        const V t227 = t65 - t41;
        const V t228 = c[5] * t227;
        // complex block of 2
        const V t229 = t226 + t228;
        // spectrum block of 61
        const V t230 = c[20] * t229;
        const V t231 = c[6] * t229;
        // complex block of 2
        const V t232 = t228 - t226;
        // spectrum block of 61
        const V t233 = c[21] * t232;
        const V t234 = c[7] * t232;
        // complex block of 3
        const V t235 = t97 - t121;
        const V t236 = c[5] * t235;
        const V t237 = c[4] * t104;
        const V t238 = t15 - t237;
        const V t239 = t238 - t236;
        const V t240 = t238 + t236;
        // complex block of 3
        const V t241 = t69 - t45;
        const V t242 = c[5] * t241;
        const V t243 = c[4] * t52;
        const V t244 = t141 - t243;
        const V t245 = t244 - t242;
        const V t246 = t244 + t242;
        // complex block of 2
        const V t247 = t239 + t245;
        // spectrum block of 61
        const V t248 = c[22] * t247;
        const V t249 = c[9] * t247;
        // complex block of 2
        const V t250 = t239 - t245;
        // spectrum block of 61
        const V t251 = c[23] * t250;
        const V t252 = c[8] * t250;
        // complex block of 2
        const V t253 = t240 + t246;
        // spectrum block of 61
        const V t254 = c[24] * t253;
        const V t255 = c[10] * t253;
        // complex block of 2
        const V t256 = t240 - t246;
        // spectrum block of 61
        const V t257 = c[25] * t256;
        const V t258 = c[11] * t256;
        // complex block of 3
        const V t259 = t104 + t15;
        // complex block of 3
        const V t260 = t52 + t141;
        // complex block of 2
        const V t261 = t259 + t260;
        const V t262 = t259 - t260;
        // spectrum block of 61
        const V t263 = c[26] * t261;
        const V t264 = c[12] * t261;
        const V t265 = c[27] * t262;
        const V t266 = c[13] * t262;
        // complex block of 3
        const V t267 = t108 - t125;
        const V t268 = c[5] * t267;
        const V t269 = c[4] * t115;
        const V t270 = t269 - t21;
        const V t271 = t270 - t268;
        const V t272 = t270 + t268;
        // complex block of 3
        const V t273 = t73 - t56;
        const V t274 = c[5] * t273;
        const V t275 = c[4] * t63;
        const V t276 = t275 - t147;
        const V t277 = t276 - t274;
        const V t278 = t276 + t274;
        // complex block of 2
        const V t279 = t271 + t277;
        // spectrum block of 61
        const V t280 = c[28] * t279;
        const V t281 = c[15] * t279;
        // complex block of 2
        const V t282 = t271 - t277;
        // spectrum block of 61
        const V t283 = c[29] * t282;
        const V t284 = c[14] * t282;
        // complex block of 2
        const V t285 = t272 + t278;
        // spectrum block of 61
        const V t286 = c[30] * t285;
        const V t287 = c[16] * t285;
        // complex block of 2
        const V t288 = t272 - t278;
        // spectrum block of 61
        const V t289 = c[31] * t288;
        const V t290 = c[17] * t288;
        // complex block of 3
        const V t291 = t115 + t21;
        // complex block of 3
        const V t292 = t63 + t147;
        // complex block of 2
        const V t293 = t291 + t292;
        const V t294 = t292 - t291;
        // spectrum block of 61
        const V t295 = c[32] * t294;
        const V t296 = c[19] * t294;
        const V t297 = c[33] * t293;
        const V t298 = c[18] * t293;
        // doubled bins
        const V x1i = io.im(1);
        const V t299 = two * x1i;
        const V x13i = io.im(13);
        const V t300 = two * x13i;
        const V x14i = io.im(14);
        const V t301 = two * x14i;
        // real block of 3, multiplier 2
        const V t302 = t300 - t301;
        const V t303 = t300 + t301;
        const V t304 = c[5] * t303;
        const V t305 = t302 + t299;
        const V t306 = c[4] * t302;
        const V t307 = t299 - t306;
        // doubled bins
        const V x2i = io.im(2);
        const V t308 = two * x2i;
        const V x26i = io.im(26);
        const V t309 = two * x26i;
        const V x28i = io.im(28);
        const V t310 = two * x28i;
        // real block of 3, multiplier 2
        const V t311 = t309 - t310;
        const V t312 = t309 + t310;
        const V t313 = c[5] * t312;
        const V t314 = t311 + t308;
        const V t315 = c[4] * t311;
        const V t316 = t308 - t315;
        // doubled bins
        const V x3i = io.im(3);
        const V t317 = two * x3i;
        const V x16i = io.im(16);
        const V t318 = two * x16i;
        const V x25i = io.im(25);
        const V t319 = two * x25i;
        // real block of 3, multiplier 2
        const V t320 = t318 + t319;
        const V t321 = t318 - t319;
        // doubled bins
        const V x19i = io.im(19);
        const V t322 = two * x19i;
        const V x22i = io.im(22);
        const V t323 = two * x22i;
        // real block of 3, multiplier 2
        const V t324 = t323 - t322;
        const V t325 = t323 + t322;
        // doubled bins
        const V x20i = io.im(20);
        const V t326 = two * x20i;
        // real block of 3, multiplier 2
        const V t327 = t324 - t317;
        // real block of 3, multiplier 2
        const V t328 = t320 + t326;
        // real block of 5, multiplier 3
        const V t329 = t327 + t328;
        // real block of 3, multiplier 2
        const V t330 = c[4] * t324;
        const V t331 = t317 + t330;
        // real block of 3, multiplier 2
        const V t332 = c[4] * t320;
        const V t333 = t326 - t332;
        // complex block of 5, multiplier 3
        const V t334 = t333 - t331;
        // real block of 3, multiplier 2
        const V t335 = c[5] * t325;
        // real block of 3, multiplier 2
        const V t336 = c[5] * t321;
        // complex block of 5, multiplier 3
        const V t337 = t335 + t336;
        const V t338 = t335 - t336;
        // doubled bins
        const V x4i = io.im(4);
        const V t339 = two * x4i;
        const V x5i = io.im(5);
        const V t340 = two * x5i;
        // real block of 3, multiplier 2
        const V t341 = t340 + t339;
        const V t342 = t339 - t340;
        // doubled bins
        const V x9i = io.im(9);
        const V t343 = two * x9i;
        const V x12i = io.im(12);
        const V t344 = two * x12i;
        const V x15i = io.im(15);
        const V t345 = two * x15i;
        // real block of 3, multiplier 2
        const V t346 = t345 + t344;
        const V t347 = t345 - t344;
        // doubled bins
        const V x27i = io.im(27);
        const V t348 = two * x27i;
        // real block of 3, multiplier 2
        const V t349 = t343 - t341;
        // real block of 3, multiplier 2
        const V t350 = t346 - t348;
        // real block of 5, multiplier 3
        const V t351 = t350 + t349;
        // real block of 3, multiplier 2
        const V t352 = c[4] * t341;
        const V t353 = t352 + t343;
        // real block of 3, multiplier 2
        const V t354 = c[4] * t346;
        const V t355 = t348 + t354;
        // complex block of 5, multiplier 3
        const V t356 = t353 - t355;
        // real block of 3, multiplier 2
        const V t357 = c[5] * t342;
        // real block of 3, multiplier 2
        const V t358 = c[5] * t347;
        // complex block of 5, multiplier 3
        const V t359 = t358 + t357;
        const V t360 = t358 - t357;
        // doubled bins
        const V x6i = io.im(6);
        const V t361 = two * x6i;
        const V x11i = io.im(11);
        const V t362 = two * x11i;
        const V x29i = io.im(29);
        const V t363 = two * x29i;
        // real block of 3, multiplier 2
        const V t364 = t363 + t362;
        const V t365 = c[4] * t364;
        const V t366 = t362 - t363;
        // doubled bins
        const V x17i = io.im(17);
        const V t367 = two * x17i;
        const V x23i = io.im(23);
        const V t368 = two * x23i;
        // real block of 3, multiplier 2
        const V t369 = t368 - t367;
        const V t370 = c[4] * t369;
        const V t371 = t367 + t368;
        // doubled bins
        const V x21i = io.im(21);
        const V t372 = two * x21i;
        // real block of 3, multiplier 2
        const V t373 = t369 - t361;
        // real block of 3, multiplier 2
        const V t374 = t364 + t372;
        // real block of 5, multiplier 3
        const V t375 = t373 - t374;
        const V t376 = t373 + t374;
        const V t377 = c[1] * t375;
        const V t378 = c[0] * t375;
        // real block of 3, multiplier 2
        const V t379 = t361 + t370;
        // real block of 3, multiplier 2
        const V t380 = t365 - t372;
        // complex block of 5, multiplier 3
        const V t381 = t380 - t379;
        const V t382 = t379 + t380;
        const V t383 = c[0] * t381;
        const V t384 = c[1] * t381;
        // real block of 3, multiplier 2
        const V t385 = c[5] * t371;
        // real block of 3, multiplier 2
        const V t386 = c[5] * t366;
        // complex block of 5, multiplier 3
        const V t387 = t386 - t385;
        const V t388 = t385 + t386;
        const V t389 = c[0] * t387;
        const V t390 = c[2] * t388;
        const V t391 = c[1] * t387;
        const V t392 = c[3] * t388;
        // doubled bins
        const V x7i = io.im(7);
        const V t393 = two * x7i;
        const V x8i = io.im(8);
        const V t394 = two * x8i;
        const V x10i = io.im(10);
        const V t395 = two * x10i;
        // real block of 3, multiplier 2
        const V t396 = t395 + t394;
        const V t397 = c[4] * t396;
        const V t398 = t394 - t395;
        // doubled bins
        const V x18i = io.im(18);
        const V t399 = two * x18i;
        const V x24i = io.im(24);
        const V t400 = two * x24i;
        const V x30i = io.im(30);
        const V t401 = two * x30i;
        // real block of 3, multiplier 2
        const V t402 = t401 + t400;
        const V t403 = c[4] * t402;
        const V t404 = t401 - t400;
        // real block of 3, multiplier 2
        const V t405 = t399 - t396;
        // real block of 3, multiplier 2
        const V t406 = t402 + t393;
        // real block of 5, multiplier 3
        const V t407 = t406 + t405;
        const V t408 = t406 - t405;
        const V t409 = c[1] * t407;
        // real block of 3, multiplier 2
        const V t410 = t397 + t399;
        // real block of 3, multiplier 2
        const V t411 = t393 - t403;
        // complex block of 5, multiplier 3
        const V t412 = t411 + t410;
        const V t413 = t411 - t410;
        const V t414 = c[1] * t412;
        // real block of 3, multiplier 2
        const V t415 = c[5] * t398;
        // real block of 3, multiplier 2
        const V t416 = c[5] * t404;
        // complex block of 5, multiplier 3
        const V t417 = t416 + t415;
        const V t418 = t416 - t415;
        const V t419 = c[1] * t417;
        const V t420 = c[3] * t418;
        const V t421 = c[0] * t417;
        const V t422 = c[2] * t418;
        // real block of 5, multiplier 3
        const V t423 = t327 - t328;
        const V t424 = c[3] * t423;
        const V t425 = c[2] * t423;
        const V t426 = t350 - t349;
        const V t427 = c[2] * t426;
        const V t428 = c[3] * t426;
        const V t429 = c[1] * t329;
        const V t430 = t305 - t429;
        const V t431 = c[0] * t351;
        const V t432 = c[0] * t329;
        const V t433 = c[1] * t351;
        const V t434 = t432 - t433;
        // real block of 5, multiplier 3
        const V t435 = t314 - t377;
        const V t436 = c[0] * t407;
        const V t437 = t435 + t436;
        // skew block of 30
        const V t438 = c[3] * t437;
        const V t439 = c[1] * t437;
        // real block of 5, multiplier 3
        const V t440 = c[3] * t376;
        const V t441 = c[2] * t408;
        const V t442 = t440 + t441;
        // skew block of 30
        const V t443 = c[1] * t442;
        const V t444 = c[3] * t442;
        // real block of 5, multiplier 3
        const V t445 = t378 - t409;
        const V t446 = t445 + t314;
        // skew block of 30
        const V t447 = c[2] * t446;
        const V t448 = c[0] * t446;
        // real block of 5, multiplier 3
        const V t449 = c[2] * t376;
        const V t450 = c[3] * t408;
        const V t451 = t450 - t449;
        // skew block of 30
        const V t452 = c[0] * t451;
        const V t453 = c[2] * t451;
        // real block of 5, multiplier 3
        const V t454 = t430 + t431;
        // skew block of 30
        const V t455 = t438 - t443;
        // complex block of 2
        const V t456 = t454 + t455;
        const V t457 = t454 - t455;
        // real block of 5, multiplier 3
        const V t458 = t424 + t427;
        // skew block of 30
        const V t459 = t444 + t439;
        // complex block of 2
        const V t460 = t458 + t459;
        const V t461 = t459 - t458;
        // real block of 5, multiplier 3
        const V t462 = t434 + t305;
        // skew block of 30
        const V t463 = t447 - t452;
        // complex block of 2
        const V t464 = t462 + t463;
        const V t465 = t462 - t463;
        // real block of 5, multiplier 3
        const V t466 = t428 - t425;
        // skew block of 30
        const V t467 = t453 + t448;
        // complex block of 2
        const V t468 = t466 + t467;
        const V t469 = t467 - t466;
        // real block of 5, multiplier 3
        const V t470 = t329 + t351;
        const V t471 = t470 + t305;
        // spectrum block of 61
        const V t472 = c[34] * t471;
        const V t473 = c[35] * t471;
        // complex block of 5, multiplier 3
        const V t474 = t331 + t333;
        const V t475 = c[2] * t474;
        const V t476 = c[3] * t474;
        const V t477 = t355 + t353;
        const V t478 = c[3] * t477;
        const V t479 = c[2] * t477;
        const V t480 = t478 - t475;
        const V t481 = t476 + t479;
        const V t482 = c[0] * t334;
        const V t483 = c[1] * t356;
        const V t484 = t482 - t483;
        const V t485 = t484 + t307;
        const V t486 = c[0] * t337;
        const V t487 = c[1] * t359;
        const V t488 = t486 - t487;
        const V t489 = t488 + t304;
        const V t490 = c[2] * t338;
        const V t491 = c[3] * t360;
        const V t492 = t490 - t491;
        const V t493 = c[1] * t334;
        const V t494 = t307 - t493;
        const V t495 = c[0] * t356;
        const V t496 = t494 + t495;
        const V t497 = c[1] * t337;
        const V t498 = t304 - t497;
        const V t499 = c[0] * t359;
        const V t500 = t498 + t499;
        const V t501 = c[3] * t338;
        const V t502 = c[2] * t360;
        const V t503 = t501 + t502;
        // complex block of 5, multiplier 3
        const V t504 = t383 - t414;
        const V t505 = t504 + t316;
        const V t506 = t390 + t420;
        const V t507 = t505 - t506;
        const V t508 = t505 + t506;
        const V t509 = t389 - t419;
        const V t510 = t509 + t313;
        const V t511 = c[2] * t382;
        const V t512 = c[3] * t413;
        const V t513 = t511 + t512;
        const V t514 = t510 + t513;
        const V t515 = t510 - t513;
        const V t516 = t316 - t384;
        const V t517 = c[0] * t412;
        const V t518 = t516 + t517;
        const V t519 = t422 - t392;
        const V t520 = t518 + t519;
        const V t521 = t518 - t519;
        const V t522 = t313 - t391;
        const V t523 = t522 + t421;
        const V t524 = c[3] * t382;
        const V t525 = c[2] * t413;
        const V t526 = t525 - t524;
        const V t527 = t523 - t526;
        const V t528 = t523 + t526;
        // complex block of 5, multiplier 3
        const V t529 = t485 + t492;
        // skew block of 30
        const V t530 = c[36] * t514;
        const V t531 = c[37] * t507;
        const V t532 = t531 + t530;
        // complex block of 2
        const V t533 = t529 + t532;
        const V t534 = t529 - t532;
        // complex block of 5, multiplier 3
        const V t535 = t489 - t480;
        // skew block of 30
        const V t536 = c[36] * t507;
        const V t537 = c[37] * t514;
        const V t538 = t537 - t536;
        // complex block of 2
        const V t539 = t535 + t538;
        const V t540 = t535 - t538;
        // complex block of 5, multiplier 3
        const V t541 = t485 - t492;
        // skew block of 30
        const V t542 = c[38] * t515;
        const V t543 = c[39] * t508;
        const V t544 = t543 + t542;
        // complex block of 2
        const V t545 = t541 + t544;
        const V t546 = t541 - t544;
        // complex block of 5, multiplier 3
        const V t547 = t489 + t480;
        // skew block of 30
        const V t548 = c[38] * t508;
        const V t549 = c[39] * t515;
        const V t550 = t549 - t548;
        // complex block of 2
        const V t551 = t547 + t550;
        const V t552 = t547 - t550;
        // complex block of 5, multiplier 3
        const V t553 = t496 + t503;
        // skew block of 30
        const V t554 = c[40] * t527;
        const V t555 = c[41] * t520;
        const V t556 = t555 - t554;
        // complex block of 2
        const V t557 = t553 + t556;
        const V t558 = t553 - t556;
        // complex block of 5, multiplier 3
        const V t559 = t500 + t481;
        // skew block of 30
        const V t560 = c[40] * t520;
        const V t561 = c[41] * t527;
        const V t562 = t561 + t560;
        // complex block of 2
        const V t563 = t559 + t562;
        const V t564 = t562 - t559;
        // complex block of 5, multiplier 3
        const V t565 = t496 - t503;
        // skew block of 30
        const V t566 = c[42] * t528;
        const V t567 = c[43] * t521;
        const V t568 = t567 + t566;
        // complex block of 2
        const V t569 = t565 + t568;
        const V t570 = t565 - t568;
        // complex block of 5, multiplier 3
        const V t571 = t500 - t481;
        // skew block of 30
        const V t572 = c[42] * t521;
        const V t573 = c[43] * t528;
        const V t574 = t573 - t572;
        // complex block of 2
        const V t575 = t571 + t574;
        const V t576 = t571 - t574;
        // complex block of 5, multiplier 3
        const V t577 = t334 + t356;
        const V t578 = t577 + t307;
        const V t579 = t337 + t359;
        const V t580 = t579 + t304;
        // complex block of 5, multiplier 3
        const V t581 = t381 + t412;
        const V t582 = t581 + t316;
        // skew block of 30
        const V t583 = c[5] * t582;
        const V t584 = c[4] * t582;
        // complex block of 5, multiplier 3
        const V t585 = t387 + t417;
        const V t586 = t585 + t313;
        // skew block of 30
        const V t587 = c[4] * t586;
        const V t588 = c[5] * t586;
        const V t589 = t583 - t587;
        // complex block of 2
        const V t590 = t578 + t589;
        const V t591 = t578 - t589;
        // skew block of 30
        const V t592 = t588 + t584;
        // complex block of 2
        const V t593 = t580 + t592;
        const V t594 = t592 - t580;
        // real block of 5, multiplier 3
        const V t595 = t375 + t407;
        const V t596 = t595 + t314;
        // spectrum block of 61
        const V t597 = c[35] * t596;
        const V t598 = c[34] * t596;
        const V x0r = io.re(0);
        const V t599 = x0r - t159;
        const V t600 = c[73] * t160;
        // spectrum block of 2
        const V t601 = t599 + t600;
        const V t602 = t599 - t600;
        // spectrum block of 61
        const V t603 = t597 - t472;
        const V t604 = t598 + t473;
        // spectrum block of 2
        const V t605 = t601 + t603;
        const V t606 = t601 - t603;
        // spectrum block of 2
        const V t607 = t602 + t604;
        const V t608 = t602 - t604;
        // spectrum block of 61
        const V t609 = c[44] * t575;
        const V t610 = c[45] * t569;
        const V t611 = t609 - t610;
        const V t612 = c[46] * t576;
        const V t613 = c[47] * t570;
        const V t614 = t613 + t612;
        // complex block of 2
        const V t615 = t614 + t611;
        const V t616 = t614 - t611;
        // spectrum block of 61
        const V t617 = c[44] * t569;
        const V t618 = c[45] * t575;
        const V t619 = t618 + t617;
        const V t620 = c[46] * t570;
        const V t621 = c[47] * t576;
        const V t622 = t620 - t621;
        // complex block of 2
        const V t623 = t622 + t619;
        const V t624 = t619 - t622;
        // spectrum block of 61
        const V t625 = t219 + t286;
        const V t626 = t289 - t220;
        // complex block of 2
        const V t627 = t626 - t625;
        const V t628 = t625 + t626;
        // spectrum block of 61
        const V t629 = c[30] * t217;
        const V t630 = t629 - t287;
        const V t631 = c[31] * t218;
        const V t632 = t290 + t631;
        // complex block of 2
        const V t633 = t630 - t632;
        const V t634 = t630 + t632;
        // spectrum block of 61
        const V t635 = c[48] * t563;
        const V t636 = c[49] * t557;
        const V t637 = t636 - t635;
        const V t638 = c[50] * t564;
        const V t639 = c[51] * t558;
        const V t640 = t638 - t639;
        // complex block of 2
        const V t641 = t640 + t637;
        const V t642 = t640 - t637;
        // spectrum block of 61
        const V t643 = c[48] * t557;
        const V t644 = c[49] * t563;
        const V t645 = t644 + t643;
        const V t646 = c[50] * t558;
        const V t647 = c[51] * t564;
        const V t648 = t647 + t646;
        // complex block of 2
        const V t649 = t648 + t645;
        const V t650 = t648 - t645;
        // spectrum block of 61
        const V t651 = t213 + t283;
        const V t652 = t214 + t280;
        // complex block of 2
        const V t653 = t652 - t651;
        const V t654 = t652 + t651;
        // spectrum block of 61
        const V t655 = c[29] * t212;
        const V t656 = t655 - t284;
        const V t657 = c[28] * t211;
        const V t658 = t657 - t281;
        // complex block of 2
        const V t659 = t658 - t656;
        const V t660 = t658 + t656;
        // complex block of 2
        const V t661 = t633 + t649;
        // complex block of 2
        const V t662 = t659 - t623;
        // complex block of 3, multiplier 2
        const V t663 = t661 - t662;
        const V t664 = t662 + t661;
        const V t665 = c[4] * t663;
        const V t666 = c[5] * t664;
        // complex block of 2
        const V t667 = t627 + t641;
        // complex block of 2
        const V t668 = t653 + t615;
        // complex block of 3, multiplier 2
        const V t669 = t668 + t667;
        const V t670 = t668 - t667;
        const V t671 = c[4] * t669;
        // complex block of 2
        const V t672 = t633 - t649;
        // complex block of 2
        const V t673 = t659 + t623;
        // complex block of 3, multiplier 2
        const V t674 = t672 - t673;
        const V t675 = t673 + t672;
        const V t676 = c[4] * t674;
        const V t677 = c[5] * t675;
        // complex block of 2
        const V t678 = t627 - t641;
        // complex block of 2
        const V t679 = t653 - t615;
        // complex block of 3, multiplier 2
        const V t680 = t679 + t678;
        const V t681 = t679 - t678;
        const V t682 = c[4] * t680;
        // complex block of 2
        const V t683 = t634 - t642;
        // complex block of 2
        const V t684 = t660 - t616;
        // complex block of 3, multiplier 2
        const V t685 = t683 - t684;
        const V t686 = t684 + t683;
        const V t687 = c[4] * t685;
        const V t688 = c[5] * t686;
        // complex block of 2
        const V t689 = t650 - t628;
        // complex block of 2
        const V t690 = t654 + t624;
        // complex block of 3, multiplier 2
        const V t691 = t690 + t689;
        const V t692 = t690 - t689;
        const V t693 = c[4] * t691;
        // complex block of 2
        const V t694 = t634 + t642;
        // complex block of 2
        const V t695 = t660 + t616;
        // complex block of 3, multiplier 2
        const V t696 = t694 - t695;
        const V t697 = t695 + t694;
        const V t698 = c[4] * t696;
        const V t699 = c[5] * t697;
        // complex block of 2
        const V t700 = t628 + t650;
        // complex block of 2
        const V t701 = t654 - t624;
        // complex block of 3, multiplier 2
        const V t702 = t701 - t700;
        const V t703 = t701 + t700;
        const V t704 = c[4] * t702;
        // spectrum block of 61
        const V t705 = t183 - t251;
        const V t706 = t184 - t248;
        // complex block of 2
        const V t707 = t706 + t705;
        const V t708 = t706 - t705;
        // spectrum block of 61
        const V t709 = c[23] * t182;
        const V t710 = t252 + t709;
        const V t711 = c[22] * t181;
        const V t712 = t249 + t711;
        // complex block of 2
        const V t713 = t712 + t710;
        const V t714 = t710 - t712;
        // spectrum block of 61
        const V t715 = c[52] * t539;
        const V t716 = c[53] * t533;
        const V t717 = t716 - t715;
        const V t718 = c[54] * t540;
        const V t719 = c[55] * t534;
        const V t720 = t718 - t719;
        // complex block of 2
        const V t721 = t720 + t717;
        const V t722 = t720 - t717;
        // spectrum block of 61
        const V t723 = c[52] * t533;
        const V t724 = c[53] * t539;
        const V t725 = t724 + t723;
        const V t726 = c[54] * t534;
        const V t727 = c[55] * t540;
        const V t728 = t727 + t726;
        // complex block of 2
        const V t729 = t728 - t725;
        const V t730 = t728 + t725;
        // spectrum block of 61
        const V t731 = t189 + t254;
        const V t732 = t190 + t257;
        // complex block of 2
        const V t733 = t731 - t732;
        const V t734 = t731 + t732;
        // spectrum block of 61
        const V t735 = c[24] * t187;
        const V t736 = t735 - t255;
        const V t737 = c[25] * t188;
        const V t738 = t737 - t258;
        // complex block of 2
        const V t739 = t736 - t738;
        const V t740 = t736 + t738;
        // spectrum block of 61
        const V t741 = c[56] * t551;
        const V t742 = c[57] * t545;
        const V t743 = t742 + t741;
        const V t744 = c[58] * t552;
        const V t745 = c[59] * t546;
        const V t746 = t745 - t744;
        // complex block of 2
        const V t747 = t746 - t743;
        const V t748 = t746 + t743;
        // spectrum block of 61
        const V t749 = c[56] * t545;
        const V t750 = c[57] * t551;
        const V t751 = t749 - t750;
        const V t752 = c[58] * t546;
        const V t753 = c[59] * t552;
        const V t754 = t753 + t752;
        // complex block of 2
        const V t755 = t754 + t751;
        const V t756 = t754 - t751;
        // complex block of 2
        const V t757 = t739 + t729;
        // complex block of 2
        const V t758 = t755 - t713;
        // complex block of 3, multiplier 2
        const V t759 = t758 + t757;
        const V t760 = t757 - t758;
        const V t761 = c[4] * t759;
        const V t762 = c[5] * t760;
        // complex block of 2
        const V t763 = t733 + t721;
        // complex block of 2
        const V t764 = t707 + t747;
        // complex block of 3, multiplier 2
        const V t765 = t764 + t763;
        const V t766 = t764 - t763;
        const V t767 = c[4] * t765;
        // complex block of 2
        const V t768 = t739 - t729;
        // complex block of 2
        const V t769 = t713 + t755;
        // complex block of 3, multiplier 2
        const V t770 = t769 - t768;
        const V t771 = t769 + t768;
        const V t772 = c[4] * t770;
        const V t773 = c[5] * t771;
        // complex block of 2
        const V t774 = t733 - t721;
        // complex block of 2
        const V t775 = t707 - t747;
        // complex block of 3, multiplier 2
        const V t776 = t775 + t774;
        const V t777 = t775 - t774;
        const V t778 = c[4] * t776;
        // complex block of 2
        const V t779 = t740 - t722;
        // complex block of 2
        const V t780 = t714 - t748;
        // complex block of 3, multiplier 2
        const V t781 = t780 + t779;
        const V t782 = t779 - t780;
        const V t783 = c[4] * t781;
        const V t784 = c[5] * t782;
        // complex block of 2
        const V t785 = t734 + t730;
        // complex block of 2
        const V t786 = t708 + t756;
        // complex block of 3, multiplier 2
        const V t787 = t786 + t785;
        const V t788 = t786 - t785;
        const V t789 = c[4] * t787;
        // complex block of 2
        const V t790 = t740 + t722;
        // complex block of 2
        const V t791 = t714 + t748;
        // complex block of 3, multiplier 2
        const V t792 = t791 + t790;
        const V t793 = t790 - t791;
        const V t794 = c[4] * t792;
        const V t795 = c[5] * t793;
        // complex block of 2
        const V t796 = t734 - t730;
        // complex block of 2
        const V t797 = t708 - t756;
        // complex block of 3, multiplier 2
        const V t798 = t797 + t796;
        const V t799 = t797 - t796;
        const V t800 = c[4] * t798;
        // spectrum block of 61
        const V t801 = c[60] * t468;
        const V t802 = c[61] * t464;
        const V t803 = t802 - t801;
        const V t804 = c[60] * t464;
        const V t805 = c[61] * t468;
        const V t806 = t805 + t804;
        const V t807 = t192 + t263;
        const V t808 = t194 - t265;
        // complex block of 2
        const V t809 = t808 - t807;
        const V t810 = t807 + t808;
        // spectrum block of 61
        const V t811 = c[26] * t191;
        const V t812 = t811 - t264;
        const V t813 = c[27] * t193;
        const V t814 = t266 + t813;
        const V t815 = c[62] * t469;
        const V t816 = c[63] * t465;
        const V t817 = t815 - t816;
        const V t818 = c[62] * t465;
        const V t819 = c[63] * t469;
        const V t820 = t819 + t818;
        // complex block of 2
        const V t821 = t812 + t814;
        // complex block of 2
        const V t822 = t820 + t806;
        // complex block of 2
        const V t823 = t821 + t822;
        const V t824 = t821 - t822;
        // complex block of 2
        const V t825 = t812 - t814;
        // complex block of 2
        const V t826 = t817 - t803;
        // complex block of 2
        const V t827 = t825 - t826;
        const V t828 = t825 + t826;
        // complex block of 2
        const V t829 = t817 + t803;
        // complex block of 2
        const V t830 = t809 + t829;
        const V t831 = t809 - t829;
        // complex block of 2
        const V t832 = t820 - t806;
        // complex block of 2
        const V t833 = t832 - t810;
        const V t834 = t810 + t832;
        // spectrum block of 61
        const V t835 = c[64] * t593;
        const V t836 = c[65] * t590;
        const V t837 = t836 + t835;
        const V t838 = c[66] * t594;
        const V t839 = c[67] * t591;
        const V t840 = t839 + t838;
        // complex block of 2
        const V t841 = t840 - t837;
        const V t842 = t840 + t837;
        // spectrum block of 61
        const V t843 = c[64] * t590;
        const V t844 = c[65] * t593;
        const V t845 = t844 - t843;
        const V t846 = c[66] * t591;
        const V t847 = c[67] * t594;
        const V t848 = t846 - t847;
        // complex block of 2
        const V t849 = t845 - t848;
        const V t850 = t848 + t845;
        // spectrum block of 61
        const V t851 = t164 + t233;
        const V t852 = t230 - t162;
        // complex block of 2
        const V t853 = t852 + t851;
        const V t854 = t852 - t851;
        // spectrum block of 61
        const V t855 = c[21] * t163;
        const V t856 = t855 - t234;
        const V t857 = c[20] * t161;
        const V t858 = t231 + t857;
        // complex block of 2
        const V t859 = t858 - t856;
        const V t860 = t858 + t856;
        // complex block of 2
        const V t861 = t859 + t849;
        // spectrum block of 3, multiplier 2
        const V t862 = c[5] * t861;
        // complex block of 2
        const V t863 = t853 + t841;
        // spectrum block of 3, multiplier 2
        const V t864 = c[4] * t863;
        // complex block of 2
        const V t865 = t859 - t849;
        // spectrum block of 3, multiplier 2
        const V t866 = c[5] * t865;
        // complex block of 2
        const V t867 = t853 - t841;
        // spectrum block of 3, multiplier 2
        const V t868 = c[4] * t867;
        // complex block of 2
        const V t869 = t860 - t842;
        // spectrum block of 3, multiplier 2
        const V t870 = c[5] * t869;
        // complex block of 2
        const V t871 = t854 - t850;
        // spectrum block of 3, multiplier 2
        const V t872 = c[4] * t871;
        // complex block of 2
        const V t873 = t860 + t842;
        // spectrum block of 3, multiplier 2
        const V t874 = c[5] * t873;
        // complex block of 2
        const V t875 = t854 + t850;
        // spectrum block of 3, multiplier 2
        const V t876 = c[4] * t875;
        // spectrum block of 61
        const V t877 = t224 + t295;
        const V t878 = t222 - t297;
        // complex block of 2
        const V t879 = t878 + t877;
        const V t880 = t878 - t877;
        // spectrum block of 61
        const V t881 = c[32] * t223;
        const V t882 = t881 - t296;
        const V t883 = c[68] * t460;
        const V t884 = c[69] * t456;
        const V t885 = t884 - t883;
        const V t886 = c[68] * t456;
        const V t887 = c[69] * t460;
        const V t888 = t887 + t886;
        const V t889 = c[70] * t461;
        const V t890 = c[71] * t457;
        const V t891 = t890 - t889;
        const V t892 = c[70] * t457;
        const V t893 = c[71] * t461;
        const V t894 = t893 + t892;
        const V t895 = c[33] * t221;
        const V t896 = t298 + t895;
        // complex block of 2
        const V t897 = t896 + t882;
        // complex block of 2
        const V t898 = t894 - t888;
        // complex block of 2
        const V t899 = t898 - t897;
        const V t900 = t897 + t898;
        // complex block of 2
        const V t901 = t882 - t896;
        // complex block of 2
        const V t902 = t891 - t885;
        // complex block of 2
        const V t903 = t901 - t902;
        const V t904 = t901 + t902;
        // complex block of 2
        const V t905 = t891 + t885;
        // complex block of 2
        const V t906 = t879 + t905;
        const V t907 = t879 - t905;
        // complex block of 2
        const V t908 = t894 + t888;
        // complex block of 2
        const V t909 = t880 + t908;
        const V t910 = t880 - t908;
        // spectrum block of 3, multiplier 2
        const V t911 = t863 + t605;
        // complex block of 3, multiplier 2
        const V t912 = t765 + t830;
        // spectrum block of 5, multiplier 2
        const V t913 = c[0] * t912;
        const V t914 = c[1] * t912;
        // complex block of 3, multiplier 2
        const V t915 = t669 + t906;
        // spectrum block of 5, multiplier 2
        const V t916 = c[1] * t915;
        const V t917 = t912 + t915;
        const V t918 = t913 - t916;
        const V t919 = t911 - t914;
        const V t920 = c[0] * t915;
        // complex block of 3, multiplier 2
        const V t921 = t823 - t759;
        // spectrum block of 5, multiplier 2
        const V t922 = c[2] * t921;
        const V t923 = c[3] * t921;
        // complex block of 3, multiplier 2
        const V t924 = t663 + t899;
        // spectrum block of 5, multiplier 2
        const V t925 = c[3] * t924;
        const V t926 = c[2] * t924;
        const V t927 = t917 + t911;
        io.out(1, t927);
        const V t928 = t918 + t911;
        const V t929 = t922 + t925;
        const V t930 = t928 - t929;
        io.out(20, t930);
        const V t931 = t928 + t929;
        io.out(58, t931);
        const V t932 = t919 + t920;
        const V t933 = t923 - t926;
        const V t934 = t932 - t933;
        io.out(34, t934);
        const V t935 = t932 + t933;
        io.out(9, t935);
        // spectrum block of 3, multiplier 2
        const V t936 = t605 - t864;
        const V t937 = t936 - t862;
        const V t938 = t936 + t862;
        // complex block of 3, multiplier 2
        const V t939 = t761 + t823;
        const V t940 = c[5] * t766;
        const V t941 = t939 + t940;
        const V t942 = t939 - t940;
        // spectrum block of 5, multiplier 2
        const V t943 = c[2] * t942;
        const V t944 = c[3] * t942;
        // spectrum block of 5, multiplier 2
        const V t945 = c[2] * t941;
        const V t946 = c[3] * t941;
        // complex block of 3, multiplier 2
        const V t947 = t830 - t767;
        const V t948 = t947 - t762;
        const V t949 = t947 + t762;
        // spectrum block of 5, multiplier 2
        const V t950 = c[0] * t949;
        const V t951 = c[1] * t949;
        // spectrum block of 5, multiplier 2
        const V t952 = c[0] * t948;
        const V t953 = c[1] * t948;
        // complex block of 3, multiplier 2
        const V t954 = t899 - t665;
        const V t955 = c[5] * t670;
        const V t956 = t954 + t955;
        const V t957 = t954 - t955;
        // spectrum block of 5, multiplier 2
        const V t958 = c[3] * t957;
        const V t959 = c[2] * t957;
        // spectrum block of 5, multiplier 2
        const V t960 = c[3] * t956;
        const V t961 = c[2] * t956;
        // complex block of 3, multiplier 2
        const V t962 = t906 - t671;
        const V t963 = t962 + t666;
        const V t964 = t962 - t666;
        // spectrum block of 5, multiplier 2
        const V t965 = c[1] * t964;
        const V t966 = c[0] * t964;
        // spectrum block of 5, multiplier 2
        const V t967 = c[1] * t963;
        const V t968 = c[0] * t963;
        // spectrum block of 5, multiplier 2
        const V t969 = t949 + t964;
        const V t970 = t969 + t938;
        io.out(13, t970);
        const V t971 = t950 - t965;
        const V t972 = t971 + t938;
        const V t973 = t943 + t958;
        const V t974 = t972 - t973;
        io.out(16, t974);
        const V t975 = t972 + t973;
        io.out(22, t975);
        const V t976 = t938 - t951;
        const V t977 = t976 + t966;
        const V t978 = t944 - t959;
        const V t979 = t977 - t978;
        io.out(15, t979);
        const V t980 = t977 + t978;
        io.out(56, t980);
        // spectrum block of 5, multiplier 2
        const V t981 = t948 + t963;
        const V t982 = t981 + t937;
        io.out(47, t982);
        const V t983 = t952 - t967;
        const V t984 = t983 + t937;
        const V t985 = t945 + t960;
        const V t986 = t984 - t985;
        io.out(25, t986);
        const V t987 = t984 + t985;
        io.out(42, t987);
        const V t988 = t937 - t953;
        const V t989 = t988 + t968;
        const V t990 = t946 - t961;
        const V t991 = t989 - t990;
        io.out(12, t991);
        const V t992 = t989 + t990;
        io.out(57, t992);
        // spectrum block of 3, multiplier 2
        const V t993 = t871 + t607;
        // complex block of 3, multiplier 2
        const V t994 = t787 + t833;
        // spectrum block of 5, multiplier 2
        const V t995 = c[0] * t994;
        const V t996 = c[1] * t994;
        // complex block of 3, multiplier 2
        const V t997 = t691 + t909;
        // spectrum block of 5, multiplier 2
        const V t998 = c[1] * t997;
        const V t999 = t994 + t997;
        const V t1000 = t995 - t998;
        const V t1001 = t993 - t996;
        const V t1002 = c[0] * t997;
        // complex block of 3, multiplier 2
        const V t1003 = t827 - t781;
        // spectrum block of 5, multiplier 2
        const V t1004 = c[2] * t1003;
        const V t1005 = c[3] * t1003;
        // complex block of 3, multiplier 2
        const V t1006 = t685 + t903;
        // spectrum block of 5, multiplier 2
        const V t1007 = c[3] * t1006;
        const V t1008 = c[2] * t1006;
        const V t1009 = t999 + t993;
        io.out(50, t1009);
        const V t1010 = t1000 + t993;
        const V t1011 = t1004 + t1007;
        const V t1012 = t1010 - t1011;
        io.out(24, t1012);
        const V t1013 = t1010 + t1011;
        io.out(33, t1013);
        const V t1014 = t1001 + t1002;
        const V t1015 = t1005 - t1008;
        const V t1016 = t1014 - t1015;
        io.out(53, t1016);
        const V t1017 = t1014 + t1015;
        io.out(23, t1017);
        // spectrum block of 3, multiplier 2
        const V t1018 = t607 - t872;
        const V t1019 = t1018 - t870;
        const V t1020 = t1018 + t870;
        // complex block of 3, multiplier 2
        const V t1021 = t783 + t827;
        const V t1022 = c[5] * t788;
        const V t1023 = t1021 + t1022;
        const V t1024 = t1021 - t1022;
        // spectrum block of 5, multiplier 2
        const V t1025 = c[2] * t1024;
        const V t1026 = c[3] * t1024;
        // spectrum block of 5, multiplier 2
        const V t1027 = c[2] * t1023;
        const V t1028 = c[3] * t1023;
        // complex block of 3, multiplier 2
        const V t1029 = t833 - t789;
        const V t1030 = t1029 - t784;
        const V t1031 = t1029 + t784;
        // spectrum block of 5, multiplier 2
        const V t1032 = c[0] * t1031;
        const V t1033 = c[1] * t1031;
        // spectrum block of 5, multiplier 2
        const V t1034 = c[0] * t1030;
        const V t1035 = c[1] * t1030;
        // complex block of 3, multiplier 2
        const V t1036 = t903 - t687;
        const V t1037 = c[5] * t692;
        const V t1038 = t1036 + t1037;
        const V t1039 = t1036 - t1037;
        // spectrum block of 5, multiplier 2
        const V t1040 = c[3] * t1039;
        const V t1041 = c[2] * t1039;
        // spectrum block of 5, multiplier 2
        const V t1042 = c[3] * t1038;
        const V t1043 = c[2] * t1038;
        // complex block of 3, multiplier 2
        const V t1044 = t909 - t693;
        const V t1045 = t1044 + t688;
        const V t1046 = t1044 - t688;
        // spectrum block of 5, multiplier 2
        const V t1047 = c[1] * t1046;
        const V t1048 = c[0] * t1046;
        // spectrum block of 5, multiplier 2
        const V t1049 = c[1] * t1045;
        const V t1050 = c[0] * t1045;
        // spectrum block of 5, multiplier 2
        const V t1051 = t1031 + t1046;
        const V t1052 = t1051 + t1020;
        io.out(40, t1052);
        const V t1053 = t1032 - t1047;
        const V t1054 = t1053 + t1020;
        const V t1055 = t1025 + t1040;
        const V t1056 = t1054 - t1055;
        io.out(7, t1056);
        const V t1057 = t1054 + t1055;
        io.out(2, t1057);
        const V t1058 = t1020 - t1033;
        const V t1059 = t1058 + t1048;
        const V t1060 = t1026 - t1041;
        const V t1061 = t1059 - t1060;
        io.out(18, t1061);
        const V t1062 = t1059 + t1060;
        io.out(55, t1062);
        // spectrum block of 5, multiplier 2
        const V t1063 = t1030 + t1045;
        const V t1064 = t1063 + t1019;
        io.out(32, t1064);
        const V t1065 = t1034 - t1049;
        const V t1066 = t1065 + t1019;
        const V t1067 = t1027 + t1042;
        const V t1068 = t1066 - t1067;
        io.out(30, t1068);
        const V t1069 = t1066 + t1067;
        io.out(26, t1069);
        const V t1070 = t1019 - t1035;
        const V t1071 = t1070 + t1050;
        const V t1072 = t1028 - t1043;
        const V t1073 = t1071 - t1072;
        io.out(51, t1073);
        const V t1074 = t1071 + t1072;
        io.out(44, t1074);
        // spectrum block of 3, multiplier 2
        const V t1075 = t867 + t606;
        // complex block of 3, multiplier 2
        const V t1076 = t776 + t831;
        // spectrum block of 5, multiplier 2
        const V t1077 = c[0] * t1076;
        const V t1078 = c[1] * t1076;
        // complex block of 3, multiplier 2
        const V t1079 = t680 + t907;
        // spectrum block of 5, multiplier 2
        const V t1080 = c[1] * t1079;
        const V t1081 = t1076 + t1079;
        const V t1082 = t1077 - t1080;
        const V t1083 = t1075 - t1078;
        const V t1084 = c[0] * t1079;
        // complex block of 3, multiplier 2
        const V t1085 = t770 + t824;
        // spectrum block of 5, multiplier 2
        const V t1086 = c[2] * t1085;
        const V t1087 = c[3] * t1085;
        // complex block of 3, multiplier 2
        const V t1088 = t674 - t900;
        // spectrum block of 5, multiplier 2
        const V t1089 = c[3] * t1088;
        const V t1090 = c[2] * t1088;
        const V t1091 = t1081 + t1075;
        io.out(60, t1091);
        const V t1092 = t1082 + t1075;
        const V t1093 = t1086 + t1089;
        const V t1094 = t1092 - t1093;
        io.out(41, t1094);
        const V t1095 = t1092 + t1093;
        io.out(3, t1095);
        const V t1096 = t1083 + t1084;
        const V t1097 = t1087 - t1090;
        const V t1098 = t1096 - t1097;
        io.out(27, t1098);
        const V t1099 = t1096 + t1097;
        io.out(52, t1099);
        // spectrum block of 3, multiplier 2
        const V t1100 = t606 - t868;
        const V t1101 = t1100 - t866;
        const V t1102 = t1100 + t866;
        // complex block of 3, multiplier 2
        const V t1103 = t824 - t772;
        const V t1104 = c[5] * t777;
        const V t1105 = t1103 + t1104;
        const V t1106 = t1103 - t1104;
        // spectrum block of 5, multiplier 2
        const V t1107 = c[2] * t1106;
        const V t1108 = c[3] * t1106;
        // spectrum block of 5, multiplier 2
        const V t1109 = c[2] * t1105;
        const V t1110 = c[3] * t1105;
        // complex block of 3, multiplier 2
        const V t1111 = t831 - t778;
        const V t1112 = t1111 - t773;
        const V t1113 = t1111 + t773;
        // spectrum block of 5, multiplier 2
        const V t1114 = c[0] * t1113;
        const V t1115 = c[1] * t1113;
        // spectrum block of 5, multiplier 2
        const V t1116 = c[0] * t1112;
        const V t1117 = c[1] * t1112;
        // complex block of 3, multiplier 2
        const V t1118 = t900 + t676;
        const V t1119 = c[5] * t681;
        const V t1120 = t1119 - t1118;
        const V t1121 = t1118 + t1119;
        // spectrum block of 5, multiplier 2
        const V t1122 = c[3] * t1121;
        const V t1123 = c[2] * t1121;
        // spectrum block of 5, multiplier 2
        const V t1124 = c[3] * t1120;
        const V t1125 = c[2] * t1120;
        // complex block of 3, multiplier 2
        const V t1126 = t907 - t682;
        const V t1127 = t1126 + t677;
        const V t1128 = t1126 - t677;
        // spectrum block of 5, multiplier 2
        const V t1129 = c[1] * t1128;
        const V t1130 = c[0] * t1128;
        // spectrum block of 5, multiplier 2
        const V t1131 = c[1] * t1127;
        const V t1132 = c[0] * t1127;
        // spectrum block of 5, multiplier 2
        const V t1133 = t1113 + t1128;
        const V t1134 = t1133 + t1102;
        io.out(48, t1134);
        const V t1135 = t1114 - t1129;
        const V t1136 = t1135 + t1102;
        const V t1137 = t1107 - t1122;
        const V t1138 = t1136 - t1137;
        io.out(45, t1138);
        const V t1139 = t1136 + t1137;
        io.out(39, t1139);
        const V t1140 = t1102 - t1115;
        const V t1141 = t1140 + t1130;
        const V t1142 = t1108 + t1123;
        const V t1143 = t1141 - t1142;
        io.out(46, t1143);
        const V t1144 = t1141 + t1142;
        io.out(5, t1144);
        // spectrum block of 5, multiplier 2
        const V t1145 = t1112 + t1127;
        const V t1146 = t1145 + t1101;
        io.out(14, t1146);
        const V t1147 = t1116 - t1131;
        const V t1148 = t1147 + t1101;
        const V t1149 = t1109 + t1124;
        const V t1150 = t1148 - t1149;
        io.out(36, t1150);
        const V t1151 = t1148 + t1149;
        io.out(19, t1151);
        const V t1152 = t1101 - t1117;
        const V t1153 = t1152 + t1132;
        const V t1154 = t1110 - t1125;
        const V t1155 = t1153 - t1154;
        io.out(49, t1155);
        const V t1156 = t1153 + t1154;
        io.out(4, t1156);
        // spectrum block of 3, multiplier 2
        const V t1157 = t875 + t608;
        // complex block of 3, multiplier 2
        const V t1158 = t798 - t834;
        // spectrum block of 5, multiplier 2
        const V t1159 = c[0] * t1158;
        const V t1160 = c[1] * t1158;
        // complex block of 3, multiplier 2
        const V t1161 = t702 + t910;
        // spectrum block of 5, multiplier 2
        const V t1162 = c[1] * t1161;
        const V t1163 = t1158 + t1161;
        const V t1164 = t1159 - t1162;
        const V t1165 = t1157 - t1160;
        const V t1166 = c[0] * t1161;
        // complex block of 3, multiplier 2
        const V t1167 = t828 - t792;
        // spectrum block of 5, multiplier 2
        const V t1168 = c[2] * t1167;
        const V t1169 = c[3] * t1167;
        // complex block of 3, multiplier 2
        const V t1170 = t696 + t904;
        // spectrum block of 5, multiplier 2
        const V t1171 = c[3] * t1170;
        const V t1172 = c[2] * t1170;
        const V t1173 = t1163 + t1157;
        io.out(11, t1173);
        const V t1174 = t1164 + t1157;
        const V t1175 = t1168 + t1171;
        const V t1176 = t1174 - t1175;
        io.out(37, t1176);
        const V t1177 = t1174 + t1175;
        io.out(28, t1177);
        const V t1178 = t1165 + t1166;
        const V t1179 = t1169 - t1172;
        const V t1180 = t1178 - t1179;
        io.out(8, t1180);
        const V t1181 = t1178 + t1179;
        io.out(38, t1181);
        // spectrum block of 3, multiplier 2
        const V t1182 = t608 - t876;
        const V t1183 = t1182 - t874;
        const V t1184 = t1182 + t874;
        // complex block of 3, multiplier 2
        const V t1185 = t794 + t828;
        const V t1186 = c[5] * t799;
        const V t1187 = t1185 + t1186;
        const V t1188 = t1185 - t1186;
        // spectrum block of 5, multiplier 2
        const V t1189 = c[2] * t1188;
        const V t1190 = c[3] * t1188;
        // spectrum block of 5, multiplier 2
        const V t1191 = c[2] * t1187;
        const V t1192 = c[3] * t1187;
        // complex block of 3, multiplier 2
        const V t1193 = t834 + t800;
        const V t1194 = t1193 + t795;
        const V t1195 = t795 - t1193;
        // spectrum block of 5, multiplier 2
        const V t1196 = c[0] * t1195;
        const V t1197 = c[1] * t1195;
        // spectrum block of 5, multiplier 2
        const V t1198 = c[0] * t1194;
        const V t1199 = c[1] * t1194;
        // complex block of 3, multiplier 2
        const V t1200 = t904 - t698;
        const V t1201 = c[5] * t703;
        const V t1202 = t1200 + t1201;
        const V t1203 = t1200 - t1201;
        // spectrum block of 5, multiplier 2
        const V t1204 = c[3] * t1203;
        const V t1205 = c[2] * t1203;
        // spectrum block of 5, multiplier 2
        const V t1206 = c[3] * t1202;
        const V t1207 = c[2] * t1202;
        // complex block of 3, multiplier 2
        const V t1208 = t910 - t704;
        const V t1209 = t1208 + t699;
        const V t1210 = t1208 - t699;
        // spectrum block of 5, multiplier 2
        const V t1211 = c[1] * t1210;
        const V t1212 = c[0] * t1210;
        // spectrum block of 5, multiplier 2
        const V t1213 = c[1] * t1209;
        const V t1214 = c[0] * t1209;
        // spectrum block of 5, multiplier 2
        const V t1215 = t1195 + t1210;
        const V t1216 = t1215 + t1184;
        io.out(21, t1216);
        const V t1217 = t1196 - t1211;
        const V t1218 = t1217 + t1184;
        const V t1219 = t1189 + t1204;
        const V t1220 = t1218 - t1219;
        io.out(54, t1220);
        const V t1221 = t1218 + t1219;
        io.out(59, t1221);
        const V t1222 = t1184 - t1197;
        const V t1223 = t1222 + t1212;
        const V t1224 = t1190 - t1205;
        const V t1225 = t1223 - t1224;
        io.out(43, t1225);
        const V t1226 = t1223 + t1224;
        io.out(6, t1226);
        // spectrum block of 5, multiplier 2
        const V t1227 = t1209 - t1194;
        const V t1228 = t1227 + t1183;
        io.out(29, t1228);
        const V t1229 = t1183 - t1198;
        const V t1230 = t1229 - t1213;
        const V t1231 = t1191 + t1206;
        const V t1232 = t1230 - t1231;
        io.out(31, t1232);
        const V t1233 = t1230 + t1231;
        io.out(35, t1233);
        const V t1234 = t1199 + t1214;
        const V t1235 = t1234 + t1183;
        const V t1236 = t1192 - t1207;
        const V t1237 = t1235 - t1236;
        io.out(10, t1237);
        const V t1238 = t1235 + t1236;
        io.out(17, t1238);
        // spectrum block of 61
        const V t1239 = x0r + t158;
        io.out(0, t1239);
    }
};

}  // namespace zulg
