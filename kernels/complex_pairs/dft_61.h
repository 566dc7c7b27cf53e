// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 61.
// Complex DFT of 61 points, Rader block; one complex number to a register.
// 451 sums, 357 differences, 390 products of registers, which do the 2518 steps of the graph, those with
// `scale` included; 32 shuffles, 32 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<61> {
    static constexpr int steps = 2518;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.20918808865965802,  // c[6]: P[1] of 61
        0.15497780918795065,  // c[7]: Q[1] of 61
        0.20457446421174474,  // c[8]: P[2] of 61
        0.16101883855703142,  // c[9]: Q[2] of 61
        0.10340917490170637,  // c[10]: -Q[3] of 61
        0.23892325195327072,  // c[11]: P[3] of 61
        0.2578608473569129,  // c[12]: Q[4] of 61
        0.035854723233524656,  // c[13]: -P[4] of 61
        0.2380667501964918,  // c[14]: P[5] of 61
        0.1053660297660444,  // c[15]: Q[5] of 61
        0.1602815043062281,  // c[16]: P[6] of 61
        0.20515266792101527,  // c[17]: Q[6] of 61
        0.09920884237904212,  // c[18]: -Q[7] of 61
        0.2406977012179139,  // c[19]: -P[7] of 61
        0.25061611613274265,  // c[20]: P[8] of 61
        0.07049354660050404,  // c[21]: Q[8] of 61
        0.09068761161102994,  // c[22]: -Q[9] of 61
        0.24403592948183833,  // c[23]: P[9] of 61
        0.12042596856560207,  // c[24]: P[10] of 61
        0.23081456598926853,  // c[25]: Q[10] of 61
        0.09855050326766758,  // c[26]: -Q[11] of 61
        0.24096799804842803,  // c[27]: P[11] of 61
        0.17085954303793666,  // c[28]: Q[12] of 61
        0.19643012582250524,  // c[29]: -P[12] of 61
        0.047810579406671994,  // c[30]: Q[13] of 61
        0.25591390402746017,  // c[31]: -P[13] of 61
        0.035146745480687275,  // c[32]: Q[14] of 61
        0.25795829907156226,  // c[33]: -P[14] of 61
        0.23576264945389142,  // c[34]: Q[15] of 61
        0.11042531820311542,  // c[35]: -P[15] of 61
        0.2503173720628796,  // c[36]: P[16] of 61
        0.07154712447968609,  // c[37]: Q[16] of 61
        0.15440539602027134,  // c[38]: -Q[17] of 61
        0.20961095261841867,  // c[39]: P[17] of 61
        0.12208153447883048,  // c[40]: P[18] of 61
        0.22994320324173947,  // c[41]: -Q[18] of 61
        0.22194087820108896,  // c[42]: Q[19] of 61
        0.13608829619444565,  // c[43]: -P[19] of 61
        0.005558934851007752,  // c[44]: -P[20] of 61
        0.2602823006297202,  // c[45]: Q[20] of 61
        0.04709103298244708,  // c[46]: -Q[21] of 61
        0.256047285458026,  // c[47]: P[21] of 61
        0.25902765669579647,  // c[48]: Q[22] of 61
        0.02612376015167778,  // c[49]: -P[22] of 61
        0.24362915936079071,  // c[50]: Q[23] of 61
        0.09177478132326014,  // c[51]: -P[23] of 61
        0.2514915834033143,  // c[52]: P[24] of 61
        0.0673035010610264,  // c[53]: -Q[24] of 61
        0.1154342549547329,  // c[54]: -Q[25] of 61
        0.23335104576758062,  // c[55]: -P[25] of 61
        0.1988310412655552,  // c[56]: Q[26] of 61
        0.1680594978185787,  // c[57]: -P[26] of 61
        0.0335460689418391,  // c[58]: Q[27] of 61
        0.25817133658934166,  // c[59]: -P[27] of 61
        0.21139251213699267,  // c[60]: P[28] of 61
        0.15195717683014903,  // c[61]: -Q[28] of 61
        0.2314253610640195,  // c[62]: -Q[29] of 61
        0.1192479770652986,  // c[63]: -P[29] of 61
        0.016666666666666666,  // c[64]: 1/60
        0.13017082793177756,  // c[65]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x47 = io.pair(47);
        const P x13 = io.pair(13);
        // real block of 3, multiplier 2
        const P t0 = x47 + x13;
        const P t1 = x47 - x13;
        const P x1 = io.pair(1);
        const P t2 = t0 + x1;
        const P t3 = c[4] * t0;
        const P t4 = x1 - t3;
        const P x57 = io.pair(57);
        const P x56 = io.pair(56);
        // real block of 3, multiplier 2
        const P t5 = x57 + x56;
        const P t6 = x57 - x56;
        const P x9 = io.pair(9);
        const P t7 = t5 + x9;
        const P t8 = c[4] * t5;
        const P t9 = x9 - t8;
        const P x25 = io.pair(25);
        const P x16 = io.pair(16);
        // real block of 3, multiplier 2
        const P t10 = x25 + x16;
        const P t11 = x25 - x16;
        const P x20 = io.pair(20);
        const P t12 = t10 + x20;
        const P t13 = c[4] * t10;
        const P t14 = x20 - t13;
        const P x42 = io.pair(42);
        const P x22 = io.pair(22);
        // real block of 3, multiplier 2
        const P t15 = x42 + x22;
        const P t16 = x42 - x22;
        const P x58 = io.pair(58);
        const P t17 = t15 + x58;
        const P t18 = c[4] * t15;
        const P t19 = x58 - t18;
        const P x12 = io.pair(12);
        const P x15 = io.pair(15);
        // real block of 3, multiplier 2
        const P t20 = x12 + x15;
        const P t21 = x12 - x15;
        const P x34 = io.pair(34);
        const P t22 = t20 + x34;
        const P t23 = c[4] * t20;
        const P t24 = x34 - t23;
        // real block of 5, multiplier 2
        const P t25 = t7 + t22;
        const P t26 = t7 - t22;
        const P t27 = t17 + t12;
        const P t28 = t17 - t12;
        const P t29 = t25 + t27;
        const P t30 = t29 + t2;
        const P t31 = c[0] * t25;
        const P t32 = t2 - t31;
        const P t33 = c[1] * t27;
        const P t34 = t32 + t33;
        const P t35 = c[2] * t26;
        const P t36 = c[3] * t28;
        const P t37 = t35 + t36;
        const P t38 = c[1] * t25;
        const P t39 = c[0] * t27;
        const P t40 = t38 - t39;
        const P t41 = t40 + t2;
        const P t42 = c[3] * t26;
        const P t43 = c[2] * t28;
        const P t44 = t42 - t43;
        // complex block of 5, multiplier 2
        const P t45 = t9 + t24;
        // real block of 3, multiplier 2
        const P t46 = c[5] * t6;
        // real block of 3, multiplier 2
        const P t47 = c[5] * t21;
        // complex block of 5, multiplier 2
        const P t48 = t46 + t47;
        const P t49 = t9 - t24;
        const P t50 = t46 - t47;
        const P t51 = t19 + t14;
        // real block of 3, multiplier 2
        const P t52 = c[5] * t16;
        // real block of 3, multiplier 2
        const P t53 = c[5] * t11;
        // complex block of 5, multiplier 2
        const P t54 = t52 + t53;
        const P t55 = t19 - t14;
        const P t56 = t52 - t53;
        const P t57 = t45 + t51;
        const P t58 = t48 + t54;
        const P t59 = t57 + t4;
        // real block of 3, multiplier 2
        const P t60 = c[5] * t1;
        // complex block of 5, multiplier 2
        const P t61 = t58 + t60;
        const P t62 = c[1] * t45;
        const P t63 = c[0] * t51;
        const P t64 = t62 - t63;
        const P t65 = t64 + t4;
        const P t66 = c[1] * t48;
        const P t67 = c[0] * t54;
        const P t68 = t66 - t67;
        const P t69 = t68 + t60;
        const P t70 = c[3] * t49;
        const P t71 = c[2] * t55;
        const P t72 = t70 - t71;
        const P t73 = c[3] * t50;
        const P t74 = c[2] * t56;
        const P t75 = t73 - t74;
        const P t76 = t65 + t75;
        const P t77 = t69 - t72;
        const P t78 = t65 - t75;
        const P t79 = t69 + t72;
        const P t80 = c[0] * t45;
        const P t81 = t4 - t80;
        const P t82 = c[1] * t51;
        const P t83 = t81 + t82;
        const P t84 = c[0] * t48;
        const P t85 = t60 - t84;
        const P t86 = c[1] * t54;
        const P t87 = t85 + t86;
        const P t88 = c[2] * t49;
        const P t89 = c[3] * t55;
        const P t90 = t88 + t89;
        const P t91 = c[2] * t50;
        const P t92 = c[3] * t56;
        const P t93 = t91 + t92;
        const P t94 = t83 + t93;
        const P t95 = t87 - t90;
        const P t96 = t83 - t93;
        const P t97 = t87 + t90;
        const P x29 = io.pair(29);
        const P x21 = io.pair(21);
        // real block of 3, multiplier 2
        const P t98 = x29 + x21;
        const P t99 = x29 - x21;
        const P x11 = io.pair(11);
        const P t100 = t98 + x11;
        const P t101 = c[4] * t98;
        const P t102 = x11 - t101;
        const P x17 = io.pair(17);
        const P x6 = io.pair(6);
        // real block of 3, multiplier 2
        const P t103 = x17 + x6;
        const P t104 = x17 - x6;
        const P x38 = io.pair(38);
        const P t105 = t103 + x38;
        const P t106 = c[4] * t103;
        const P t107 = x38 - t106;
        const P x31 = io.pair(31);
        const P x54 = io.pair(54);
        // real block of 3, multiplier 2
        const P t108 = x31 + x54;
        const P t109 = x31 - x54;
        const P x37 = io.pair(37);
        const P t110 = t108 + x37;
        const P t111 = c[4] * t108;
        const P t112 = x37 - t111;
        const P x35 = io.pair(35);
        const P x59 = io.pair(59);
        // real block of 3, multiplier 2
        const P t113 = x35 + x59;
        const P t114 = x35 - x59;
        const P x28 = io.pair(28);
        const P t115 = t113 + x28;
        const P t116 = c[4] * t113;
        const P t117 = x28 - t116;
        const P x10 = io.pair(10);
        const P x43 = io.pair(43);
        // real block of 3, multiplier 2
        const P t118 = x10 + x43;
        const P t119 = x10 - x43;
        const P x8 = io.pair(8);
        const P t120 = t118 + x8;
        const P t121 = c[4] * t118;
        const P t122 = x8 - t121;
        // real block of 5, multiplier 2
        const P t123 = t105 + t120;
        const P t124 = t105 - t120;
        const P t125 = t115 + t110;
        const P t126 = t115 - t110;
        const P t127 = t123 + t125;
        const P t128 = t127 + t100;
        const P t129 = c[0] * t123;
        const P t130 = t100 - t129;
        const P t131 = c[1] * t125;
        const P t132 = t130 + t131;
        const P t133 = c[2] * t124;
        const P t134 = c[3] * t126;
        const P t135 = t133 + t134;
        const P t136 = c[1] * t123;
        const P t137 = c[0] * t125;
        const P t138 = t136 - t137;
        const P t139 = t138 + t100;
        const P t140 = c[3] * t124;
        const P t141 = c[2] * t126;
        const P t142 = t140 - t141;
        // complex block of 5, multiplier 2
        const P t143 = t107 + t122;
        // real block of 3, multiplier 2
        const P t144 = c[5] * t104;
        // real block of 3, multiplier 2
        const P t145 = c[5] * t119;
        // complex block of 5, multiplier 2
        const P t146 = t144 + t145;
        const P t147 = t107 - t122;
        const P t148 = t144 - t145;
        const P t149 = t117 + t112;
        // real block of 3, multiplier 2
        const P t150 = c[5] * t114;
        // real block of 3, multiplier 2
        const P t151 = c[5] * t109;
        // complex block of 5, multiplier 2
        const P t152 = t150 + t151;
        const P t153 = t117 - t112;
        const P t154 = t150 - t151;
        const P t155 = t143 + t149;
        const P t156 = t146 + t152;
        const P t157 = t155 + t102;
        // real block of 3, multiplier 2
        const P t158 = c[5] * t99;
        // complex block of 5, multiplier 2
        const P t159 = t156 + t158;
        const P t160 = c[1] * t143;
        const P t161 = c[0] * t149;
        const P t162 = t160 - t161;
        const P t163 = t162 + t102;
        const P t164 = c[1] * t146;
        const P t165 = c[0] * t152;
        const P t166 = t164 - t165;
        const P t167 = t166 + t158;
        const P t168 = c[3] * t147;
        const P t169 = c[2] * t153;
        const P t170 = t168 - t169;
        const P t171 = c[3] * t148;
        const P t172 = c[2] * t154;
        const P t173 = t171 - t172;
        const P t174 = t163 + t173;
        const P t175 = t167 - t170;
        const P t176 = t163 - t173;
        const P t177 = t167 + t170;
        const P t178 = c[0] * t143;
        const P t179 = t102 - t178;
        const P t180 = c[1] * t149;
        const P t181 = t179 + t180;
        const P t182 = c[0] * t146;
        const P t183 = t158 - t182;
        const P t184 = c[1] * t152;
        const P t185 = t183 + t184;
        const P t186 = c[2] * t147;
        const P t187 = c[3] * t153;
        const P t188 = t186 + t187;
        const P t189 = c[2] * t148;
        const P t190 = c[3] * t154;
        const P t191 = t189 + t190;
        const P t192 = t181 + t191;
        const P t193 = t185 - t188;
        const P t194 = t181 - t191;
        const P t195 = t185 + t188;
        const P x14 = io.pair(14);
        const P x48 = io.pair(48);
        // real block of 3, multiplier 2
        const P t196 = x14 + x48;
        const P t197 = x14 - x48;
        const P x60 = io.pair(60);
        const P t198 = t196 + x60;
        const P t199 = c[4] * t196;
        const P t200 = x60 - t199;
        const P x4 = io.pair(4);
        const P x5 = io.pair(5);
        // real block of 3, multiplier 2
        const P t201 = x4 + x5;
        const P t202 = x4 - x5;
        const P x52 = io.pair(52);
        const P t203 = t201 + x52;
        const P t204 = c[4] * t201;
        const P t205 = x52 - t204;
        const P x36 = io.pair(36);
        const P x45 = io.pair(45);
        // real block of 3, multiplier 2
        const P t206 = x36 + x45;
        const P t207 = x36 - x45;
        const P x41 = io.pair(41);
        const P t208 = t206 + x41;
        const P t209 = c[4] * t206;
        const P t210 = x41 - t209;
        const P x19 = io.pair(19);
        const P x39 = io.pair(39);
        // real block of 3, multiplier 2
        const P t211 = x19 + x39;
        const P t212 = x19 - x39;
        const P x3 = io.pair(3);
        const P t213 = t211 + x3;
        const P t214 = c[4] * t211;
        const P t215 = x3 - t214;
        const P x49 = io.pair(49);
        const P x46 = io.pair(46);
        // real block of 3, multiplier 2
        const P t216 = x49 + x46;
        const P t217 = x49 - x46;
        const P x27 = io.pair(27);
        const P t218 = t216 + x27;
        const P t219 = c[4] * t216;
        const P t220 = x27 - t219;
        // real block of 5, multiplier 2
        const P t221 = t203 + t218;
        const P t222 = t203 - t218;
        const P t223 = t213 + t208;
        const P t224 = t213 - t208;
        const P t225 = t221 + t223;
        const P t226 = t225 + t198;
        const P t227 = c[0] * t221;
        const P t228 = t198 - t227;
        const P t229 = c[1] * t223;
        const P t230 = t228 + t229;
        const P t231 = c[2] * t222;
        const P t232 = c[3] * t224;
        const P t233 = t231 + t232;
        const P t234 = c[1] * t221;
        const P t235 = c[0] * t223;
        const P t236 = t234 - t235;
        const P t237 = t236 + t198;
        const P t238 = c[3] * t222;
        const P t239 = c[2] * t224;
        const P t240 = t238 - t239;
        // complex block of 5, multiplier 2
        const P t241 = t205 + t220;
        // real block of 3, multiplier 2
        const P t242 = c[5] * t202;
        // real block of 3, multiplier 2
        const P t243 = c[5] * t217;
        // complex block of 5, multiplier 2
        const P t244 = t242 + t243;
        const P t245 = t205 - t220;
        const P t246 = t242 - t243;
        const P t247 = t215 + t210;
        // real block of 3, multiplier 2
        const P t248 = c[5] * t212;
        // real block of 3, multiplier 2
        const P t249 = c[5] * t207;
        // complex block of 5, multiplier 2
        const P t250 = t248 + t249;
        const P t251 = t215 - t210;
        const P t252 = t248 - t249;
        const P t253 = t241 + t247;
        const P t254 = t244 + t250;
        const P t255 = t253 + t200;
        // real block of 3, multiplier 2
        const P t256 = c[5] * t197;
        // complex block of 5, multiplier 2
        const P t257 = t254 + t256;
        const P t258 = c[1] * t241;
        const P t259 = c[0] * t247;
        const P t260 = t258 - t259;
        const P t261 = t260 + t200;
        const P t262 = c[1] * t244;
        const P t263 = c[0] * t250;
        const P t264 = t262 - t263;
        const P t265 = t264 + t256;
        const P t266 = c[3] * t245;
        const P t267 = c[2] * t251;
        const P t268 = t266 - t267;
        const P t269 = c[3] * t246;
        const P t270 = c[2] * t252;
        const P t271 = t269 - t270;
        const P t272 = t261 + t271;
        const P t273 = t265 - t268;
        const P t274 = t261 - t271;
        const P t275 = t265 + t268;
        const P t276 = c[0] * t241;
        const P t277 = t200 - t276;
        const P t278 = c[1] * t247;
        const P t279 = t277 + t278;
        const P t280 = c[0] * t244;
        const P t281 = t256 - t280;
        const P t282 = c[1] * t250;
        const P t283 = t281 + t282;
        const P t284 = c[2] * t245;
        const P t285 = c[3] * t251;
        const P t286 = t284 + t285;
        const P t287 = c[2] * t246;
        const P t288 = c[3] * t252;
        const P t289 = t287 + t288;
        const P t290 = t279 + t289;
        const P t291 = t283 - t286;
        const P t292 = t279 - t289;
        const P t293 = t283 + t286;
        const P x32 = io.pair(32);
        const P x40 = io.pair(40);
        // real block of 3, multiplier 2
        const P t294 = x32 + x40;
        const P t295 = x32 - x40;
        const P x50 = io.pair(50);
        const P t296 = t294 + x50;
        const P t297 = c[4] * t294;
        const P t298 = x50 - t297;
        const P x44 = io.pair(44);
        const P x55 = io.pair(55);
        // real block of 3, multiplier 2
        const P t299 = x44 + x55;
        const P t300 = x44 - x55;
        const P x23 = io.pair(23);
        const P t301 = t299 + x23;
        const P t302 = c[4] * t299;
        const P t303 = x23 - t302;
        const P x30 = io.pair(30);
        const P x7 = io.pair(7);
        // real block of 3, multiplier 2
        const P t304 = x30 + x7;
        const P t305 = x30 - x7;
        const P x24 = io.pair(24);
        const P t306 = t304 + x24;
        const P t307 = c[4] * t304;
        const P t308 = x24 - t307;
        const P x26 = io.pair(26);
        const P x2 = io.pair(2);
        // real block of 3, multiplier 2
        const P t309 = x26 + x2;
        const P t310 = x26 - x2;
        const P x33 = io.pair(33);
        const P t311 = t309 + x33;
        const P t312 = c[4] * t309;
        const P t313 = x33 - t312;
        const P x51 = io.pair(51);
        const P x18 = io.pair(18);
        // real block of 3, multiplier 2
        const P t314 = x51 + x18;
        const P t315 = x51 - x18;
        const P x53 = io.pair(53);
        const P t316 = t314 + x53;
        const P t317 = c[4] * t314;
        const P t318 = x53 - t317;
        // real block of 5, multiplier 2
        const P t319 = t301 + t316;
        const P t320 = t301 - t316;
        const P t321 = t311 + t306;
        const P t322 = t311 - t306;
        const P t323 = t319 + t321;
        const P t324 = t323 + t296;
        const P t325 = c[0] * t319;
        const P t326 = t296 - t325;
        const P t327 = c[1] * t321;
        const P t328 = t326 + t327;
        const P t329 = c[2] * t320;
        const P t330 = c[3] * t322;
        const P t331 = t329 + t330;
        const P t332 = c[1] * t319;
        const P t333 = c[0] * t321;
        const P t334 = t332 - t333;
        const P t335 = t334 + t296;
        const P t336 = c[3] * t320;
        const P t337 = c[2] * t322;
        const P t338 = t336 - t337;
        // complex block of 5, multiplier 2
        const P t339 = t303 + t318;
        // real block of 3, multiplier 2
        const P t340 = c[5] * t300;
        // real block of 3, multiplier 2
        const P t341 = c[5] * t315;
        // complex block of 5, multiplier 2
        const P t342 = t340 + t341;
        const P t343 = t303 - t318;
        const P t344 = t340 - t341;
        const P t345 = t313 + t308;
        // real block of 3, multiplier 2
        const P t346 = c[5] * t310;
        // real block of 3, multiplier 2
        const P t347 = c[5] * t305;
        // complex block of 5, multiplier 2
        const P t348 = t346 + t347;
        const P t349 = t313 - t308;
        const P t350 = t346 - t347;
        const P t351 = t339 + t345;
        const P t352 = t342 + t348;
        const P t353 = t351 + t298;
        // real block of 3, multiplier 2
        const P t354 = c[5] * t295;
        // complex block of 5, multiplier 2
        const P t355 = t352 + t354;
        const P t356 = c[1] * t339;
        const P t357 = c[0] * t345;
        const P t358 = t356 - t357;
        const P t359 = t358 + t298;
        const P t360 = c[1] * t342;
        const P t361 = c[0] * t348;
        const P t362 = t360 - t361;
        const P t363 = t362 + t354;
        const P t364 = c[3] * t343;
        const P t365 = c[2] * t349;
        const P t366 = t364 - t365;
        const P t367 = c[3] * t344;
        const P t368 = c[2] * t350;
        const P t369 = t367 - t368;
        const P t370 = t359 + t369;
        const P t371 = t363 - t366;
        const P t372 = t359 - t369;
        const P t373 = t363 + t366;
        const P t374 = c[0] * t339;
        const P t375 = t298 - t374;
        const P t376 = c[1] * t345;
        const P t377 = t375 + t376;
        const P t378 = c[0] * t342;
        const P t379 = t354 - t378;
        const P t380 = c[1] * t348;
        const P t381 = t379 + t380;
        const P t382 = c[2] * t343;
        const P t383 = c[3] * t349;
        const P t384 = t382 + t383;
        const P t385 = c[2] * t344;
        const P t386 = c[3] * t350;
        const P t387 = t385 + t386;
        const P t388 = t377 + t387;
        const P t389 = t381 - t384;
        const P t390 = t377 - t387;
        const P t391 = t381 + t384;
        // real block of 2
        const P t392 = t30 + t226;
        const P t393 = t30 - t226;
        // real block of 2
        const P t394 = t128 + t324;
        const P t395 = t128 - t324;
        // real block of 2
        const P t396 = t392 + t394;
        const P t397 = t392 - t394;
        // complex block of 2
        const P t398 = t76 + t272;
        const P t399 = t77 + t273;
        const P t400 = t76 - t272;
        const P t401 = t273 - t77;
        // complex block of 2
        const P t402 = t174 + t370;
        const P t403 = t175 + t371;
        const P t404 = t174 - t370;
        const P t405 = t371 - t175;
        // complex block of 2
        const P t406 = t398 + t402;
        const P t407 = t399 + t403;
        const P t408 = t398 - t402;
        const P t409 = t403 - t399;
        // complex block of 2
        const P t410 = t400 - t405;
        const P t411 = t401 + t404;
        const P t412 = t400 + t405;
        const P t413 = t401 - t404;
        // complex block of 2
        const P t414 = t96 + t292;
        const P t415 = t97 + t293;
        const P t416 = t96 - t292;
        const P t417 = t97 - t293;
        // complex block of 2
        const P t418 = t194 + t390;
        const P t419 = t195 + t391;
        const P t420 = t194 - t390;
        const P t421 = t195 - t391;
        // complex block of 2
        const P t422 = t414 + t418;
        const P t423 = t415 + t419;
        const P t424 = t414 - t418;
        const P t425 = t415 - t419;
        // complex block of 2
        const P t426 = t416 - t421;
        const P t427 = t417 + t420;
        const P t428 = t416 + t421;
        const P t429 = t417 - t420;
        // complex block of 2
        const P t430 = t34 + t230;
        const P t431 = t37 + t233;
        const P t432 = t34 - t230;
        const P t433 = t233 - t37;
        // complex block of 2
        const P t434 = t132 + t328;
        const P t435 = t135 + t331;
        const P t436 = t132 - t328;
        const P t437 = t331 - t135;
        // complex block of 2
        const P t438 = t430 + t434;
        const P t439 = t431 + t435;
        const P t440 = t430 - t434;
        const P t441 = t435 - t431;
        // complex block of 2
        const P t442 = t432 - t437;
        const P t443 = t433 + t436;
        const P t444 = t432 + t437;
        const P t445 = t433 - t436;
        // complex block of 2
        const P t446 = t78 + t274;
        const P t447 = t79 + t275;
        const P t448 = t78 - t274;
        const P t449 = t275 - t79;
        // complex block of 2
        const P t450 = t176 + t372;
        const P t451 = t177 + t373;
        const P t452 = t176 - t372;
        const P t453 = t373 - t177;
        // complex block of 2
        const P t454 = t446 + t450;
        const P t455 = t447 + t451;
        const P t456 = t446 - t450;
        const P t457 = t451 - t447;
        // complex block of 2
        const P t458 = t448 - t453;
        const P t459 = t449 + t452;
        const P t460 = t448 + t453;
        const P t461 = t449 - t452;
        // complex block of 2
        const P t462 = t59 + t255;
        const P t463 = t61 + t257;
        const P t464 = t59 - t255;
        const P t465 = t61 - t257;
        // complex block of 2
        const P t466 = t157 + t353;
        const P t467 = t159 + t355;
        const P t468 = t157 - t353;
        const P t469 = t159 - t355;
        // complex block of 2
        const P t470 = t462 + t466;
        const P t471 = t463 + t467;
        const P t472 = t462 - t466;
        const P t473 = t463 - t467;
        // complex block of 2
        const P t474 = t464 - t469;
        const P t475 = t465 + t468;
        const P t476 = t464 + t469;
        const P t477 = t465 - t468;
        // complex block of 2
        const P t478 = t41 + t237;
        const P t479 = t44 + t240;
        const P t480 = t41 - t237;
        const P t481 = t44 - t240;
        // complex block of 2
        const P t482 = t139 + t335;
        const P t483 = t142 + t338;
        const P t484 = t139 - t335;
        const P t485 = t142 - t338;
        // complex block of 2
        const P t486 = t478 + t482;
        const P t487 = t479 + t483;
        const P t488 = t478 - t482;
        const P t489 = t479 - t483;
        // complex block of 2
        const P t490 = t480 - t485;
        const P t491 = t481 + t484;
        const P t492 = t480 + t485;
        const P t493 = t481 - t484;
        // complex block of 2
        const P t494 = t94 + t290;
        const P t495 = t95 + t291;
        const P t496 = t94 - t290;
        const P t497 = t291 - t95;
        // complex block of 2
        const P t498 = t192 + t388;
        const P t499 = t193 + t389;
        const P t500 = t192 - t388;
        const P t501 = t389 - t193;
        // complex block of 2
        const P t502 = t494 + t498;
        const P t503 = t495 + t499;
        const P t504 = t494 - t498;
        const P t505 = t499 - t495;
        // complex block of 2
        const P t506 = t496 - t501;
        const P t507 = t497 + t500;
        const P t508 = t496 + t501;
        const P t509 = t497 - t500;
        const P x0 = io.pair(0);
        // complex block of 61
        const P t510 = x0 + t396;
        io.pair(0, t510);
        const P t511 = c[64] * t396;
        const P t512 = x0 - t511;
        const P t513 = shuffled<1, 0>(t461);
        const P t514 = P(-c[6], c[6]) * t513;
        const P t515 = shuffled<1, 0>(t460);
        const P t516 = P(c[7], -c[7]) * t515;
        const P t517 = t514 + t516;
        const P t518 = c[7] * t513;
        const P t519 = c[6] * t515;
        const P t520 = t518 + t519;
        const P t521 = c[8] * t504;
        const P t522 = c[9] * t505;
        const P t523 = t521 + t522;
        const P t524 = c[9] * t504;
        const P t525 = c[8] * t505;
        const P t526 = t524 - t525;
        const P t527 = shuffled<1, 0>(t444);
        const P t528 = P(-c[10], c[10]) * t527;
        const P t529 = shuffled<1, 0>(t445);
        const P t530 = P(c[11], -c[11]) * t529;
        const P t531 = t528 + t530;
        const P t532 = c[10] * t529;
        const P t533 = c[11] * t527;
        const P t534 = t532 + t533;
        const P t535 = c[12] * t407;
        const P t536 = c[13] * t406;
        const P t537 = t535 - t536;
        const P t538 = c[13] * t407;
        const P t539 = c[12] * t406;
        const P t540 = t538 + t539;
        const P t541 = shuffled<1, 0>(t477);
        const P t542 = P(-c[14], c[14]) * t541;
        const P t543 = shuffled<1, 0>(t476);
        const P t544 = P(c[15], -c[15]) * t543;
        const P t545 = t542 + t544;
        const P t546 = c[15] * t541;
        const P t547 = c[14] * t543;
        const P t548 = t546 + t547;
        const P t549 = c[16] * t488;
        const P t550 = c[17] * t489;
        const P t551 = t549 + t550;
        const P t552 = c[17] * t488;
        const P t553 = c[16] * t489;
        const P t554 = t552 - t553;
        const P t555 = shuffled<1, 0>(t428);
        const P t556 = c[18] * t555;
        const P t557 = shuffled<1, 0>(t429);
        const P t558 = c[19] * t557;
        const P t559 = t556 + t558;
        const P t560 = P(-c[19], c[19]) * t555;
        const P t561 = P(c[18], -c[18]) * t557;
        const P t562 = t560 + t561;
        const P t563 = c[20] * t422;
        const P t564 = c[21] * t423;
        const P t565 = t563 - t564;
        const P t566 = c[20] * t423;
        const P t567 = c[21] * t422;
        const P t568 = t566 + t567;
        const P t569 = shuffled<1, 0>(t492);
        const P t570 = c[22] * t569;
        const P t571 = shuffled<1, 0>(t493);
        const P t572 = c[23] * t571;
        const P t573 = t570 + t572;
        const P t574 = P(-c[22], c[22]) * t571;
        const P t575 = P(c[23], -c[23]) * t569;
        const P t576 = t574 + t575;
        const P t577 = c[24] * t472;
        const P t578 = c[25] * t473;
        const P t579 = t577 + t578;
        const P t580 = c[25] * t472;
        const P t581 = c[24] * t473;
        const P t582 = t580 - t581;
        const P t583 = shuffled<1, 0>(t412);
        const P t584 = P(-c[26], c[26]) * t583;
        const P t585 = shuffled<1, 0>(t413);
        const P t586 = P(c[27], -c[27]) * t585;
        const P t587 = t584 + t586;
        const P t588 = c[26] * t585;
        const P t589 = c[27] * t583;
        const P t590 = t588 + t589;
        const P t591 = c[28] * t439;
        const P t592 = c[29] * t438;
        const P t593 = t591 - t592;
        const P t594 = c[29] * t439;
        const P t595 = c[28] * t438;
        const P t596 = t594 + t595;
        const P t597 = shuffled<1, 0>(t508);
        const P t598 = c[30] * t597;
        const P t599 = shuffled<1, 0>(t509);
        const P t600 = c[31] * t599;
        const P t601 = t598 + t600;
        const P t602 = P(-c[31], c[31]) * t597;
        const P t603 = P(c[30], -c[30]) * t599;
        const P t604 = t602 + t603;
        const P t605 = c[32] * t457;
        const P t606 = c[33] * t456;
        const P t607 = t605 - t606;
        const P t608 = c[33] * t457;
        const P t609 = c[32] * t456;
        const P t610 = t608 + t609;
        const P t611 = shuffled<1, 0>(t393);
        const P t612 = c[34] * t611;
        const P t613 = shuffled<1, 0>(t395);
        const P t614 = c[35] * t613;
        const P t615 = t612 + t614;
        const P t616 = P(-c[35], c[35]) * t611;
        const P t617 = P(c[34], -c[34]) * t613;
        const P t618 = t616 + t617;
        const P t619 = c[36] * t454;
        const P t620 = c[37] * t455;
        const P t621 = t619 + t620;
        const P t622 = c[37] * t454;
        const P t623 = c[36] * t455;
        const P t624 = t622 - t623;
        const P t625 = shuffled<1, 0>(t506);
        const P t626 = P(-c[38], c[38]) * t625;
        const P t627 = shuffled<1, 0>(t507);
        const P t628 = P(c[39], -c[39]) * t627;
        const P t629 = t626 + t628;
        const P t630 = c[38] * t627;
        const P t631 = c[39] * t625;
        const P t632 = t630 + t631;
        const P t633 = c[40] * t440;
        const P t634 = c[41] * t441;
        const P t635 = t633 - t634;
        const P t636 = c[40] * t441;
        const P t637 = c[41] * t440;
        const P t638 = t636 + t637;
        const P t639 = shuffled<1, 0>(t410);
        const P t640 = c[42] * t639;
        const P t641 = shuffled<1, 0>(t411);
        const P t642 = c[43] * t641;
        const P t643 = t640 + t642;
        const P t644 = P(-c[43], c[43]) * t639;
        const P t645 = P(c[42], -c[42]) * t641;
        const P t646 = t644 + t645;
        const P t647 = c[44] * t470;
        const P t648 = c[45] * t471;
        const P t649 = t647 + t648;
        const P t650 = c[45] * t470;
        const P t651 = c[44] * t471;
        const P t652 = t650 - t651;
        const P t653 = shuffled<1, 0>(t490);
        const P t654 = P(-c[46], c[46]) * t653;
        const P t655 = shuffled<1, 0>(t491);
        const P t656 = P(c[47], -c[47]) * t655;
        const P t657 = t654 + t656;
        const P t658 = c[46] * t655;
        const P t659 = c[47] * t653;
        const P t660 = t658 + t659;
        const P t661 = c[48] * t425;
        const P t662 = c[49] * t424;
        const P t663 = t661 - t662;
        const P t664 = c[49] * t425;
        const P t665 = c[48] * t424;
        const P t666 = t664 + t665;
        const P t667 = shuffled<1, 0>(t426);
        const P t668 = c[50] * t667;
        const P t669 = shuffled<1, 0>(t427);
        const P t670 = c[51] * t669;
        const P t671 = t668 + t670;
        const P t672 = P(-c[51], c[51]) * t667;
        const P t673 = P(c[50], -c[50]) * t669;
        const P t674 = t672 + t673;
        const P t675 = c[52] * t486;
        const P t676 = c[53] * t487;
        const P t677 = t675 + t676;
        const P t678 = c[52] * t487;
        const P t679 = c[53] * t486;
        const P t680 = t678 - t679;
        const P t681 = shuffled<1, 0>(t474);
        const P t682 = c[54] * t681;
        const P t683 = shuffled<1, 0>(t475);
        const P t684 = c[55] * t683;
        const P t685 = t682 + t684;
        const P t686 = P(-c[55], c[55]) * t681;
        const P t687 = P(c[54], -c[54]) * t683;
        const P t688 = t686 + t687;
        const P t689 = c[56] * t409;
        const P t690 = c[57] * t408;
        const P t691 = t689 - t690;
        const P t692 = c[57] * t409;
        const P t693 = c[56] * t408;
        const P t694 = t692 + t693;
        const P t695 = shuffled<1, 0>(t442);
        const P t696 = c[58] * t695;
        const P t697 = shuffled<1, 0>(t443);
        const P t698 = c[59] * t697;
        const P t699 = t696 + t698;
        const P t700 = P(-c[59], c[59]) * t695;
        const P t701 = P(c[58], -c[58]) * t697;
        const P t702 = t700 + t701;
        const P t703 = c[60] * t502;
        const P t704 = c[61] * t503;
        const P t705 = t703 - t704;
        const P t706 = c[60] * t503;
        const P t707 = c[61] * t502;
        const P t708 = t706 + t707;
        const P t709 = shuffled<1, 0>(t458);
        const P t710 = c[62] * t709;
        const P t711 = shuffled<1, 0>(t459);
        const P t712 = c[63] * t711;
        const P t713 = t710 + t712;
        const P t714 = P(-c[63], c[63]) * t709;
        const P t715 = P(c[62], -c[62]) * t711;
        const P t716 = t714 + t715;
        const P t717 = c[65] * t397;
        // spectrum block of 2
        const P t718 = t512 + t717;
        const P t719 = t512 - t717;
        const P t720 = flipped<0, 1>(t615);
        // spectrum block of 2
        const P t721 = t718 + t720;
        const P t722 = t718 - t720;
        // spectrum block of 2
        const P t723 = t719 + t618;
        const P t724 = t719 - t618;
        // complex block of 2
        const P t725 = t540 - t694;
        const P t726 = t537 + t691;
        const P t727 = t540 + t694;
        const P t728 = t537 - t691;
        const P t729 = flipped<1, 0>(t590);
        // complex block of 2
        const P t730 = t646 + t729;
        const P t731 = flipped<0, 1>(t643);
        const P t732 = t587 + t731;
        const P t733 = t646 - t729;
        const P t734 = flipped<1, 0>(t587);
        const P t735 = t643 + t734;
        // complex block of 2
        const P t736 = t725 + t730;
        const P t737 = t726 + t732;
        const P t738 = t725 - t730;
        const P t739 = t726 - t732;
        const P t740 = flipped<1, 0>(t735);
        // complex block of 2
        const P t741 = t727 + t740;
        const P t742 = t728 + t733;
        const P t743 = t727 - t740;
        const P t744 = t728 - t733;
        // complex block of 2
        const P t745 = t568 - t666;
        const P t746 = t565 + t663;
        const P t747 = t568 + t666;
        const P t748 = t565 - t663;
        // complex block of 2
        const P t749 = t674 - t562;
        const P t750 = shuffled<0, 3>(t671, t559);
        const P t751 = shuffled<0, 3>(t559, t671);
        const P t752 = t750 - t751;
        const P t753 = t674 + t562;
        const P t754 = t671 + t559;
        // complex block of 2
        const P t755 = t745 + t749;
        const P t756 = t746 + t752;
        const P t757 = t745 - t749;
        const P t758 = t746 - t752;
        const P t759 = flipped<1, 0>(t754);
        // complex block of 2
        const P t760 = t747 + t759;
        const P t761 = t748 + t753;
        const P t762 = t747 - t759;
        const P t763 = t748 - t753;
        // complex block of 2
        const P t764 = t596 + t638;
        const P t765 = t593 + t635;
        const P t766 = t596 - t638;
        const P t767 = t593 - t635;
        const P t768 = flipped<1, 0>(t534);
        // complex block of 2
        const P t769 = t702 + t768;
        const P t770 = flipped<0, 1>(t699);
        const P t771 = t531 + t770;
        const P t772 = t702 - t768;
        const P t773 = flipped<1, 0>(t531);
        const P t774 = t699 + t773;
        // complex block of 2
        const P t775 = t764 + t769;
        const P t776 = t765 + t771;
        const P t777 = t764 - t769;
        const P t778 = t765 - t771;
        const P t779 = flipped<1, 0>(t774);
        // complex block of 2
        const P t780 = t766 + t779;
        const P t781 = t767 + t772;
        const P t782 = t766 - t779;
        const P t783 = t767 - t772;
        // complex block of 2
        const P t784 = t624 - t610;
        const P t785 = t621 + t607;
        const P t786 = t624 + t610;
        const P t787 = t621 - t607;
        const P t788 = flipped<1, 0>(t716);
        // complex block of 2
        const P t789 = t788 + t520;
        const P t790 = flipped<1, 0>(t713);
        const P t791 = t790 + t517;
        const P t792 = t520 - t788;
        const P t793 = flipped<0, 1>(t517);
        const P t794 = t713 + t793;
        const P t795 = flipped<0, 1>(t789);
        // complex block of 2
        const P t796 = t784 + t795;
        const P t797 = t785 + t791;
        const P t798 = t784 - t795;
        const P t799 = t785 - t791;
        const P t800 = flipped<0, 1>(t794);
        // complex block of 2
        const P t801 = t786 + t800;
        const P t802 = flipped<1, 0>(t792);
        const P t803 = t787 + t802;
        const P t804 = t786 - t800;
        const P t805 = t787 - t802;
        // complex block of 2
        const P t806 = t652 - t582;
        const P t807 = t579 - t649;
        const P t808 = t652 + t582;
        const P t809 = t649 + t579;
        const P t810 = flipped<1, 0>(t688);
        // complex block of 2
        const P t811 = t810 + t548;
        const P t812 = flipped<1, 0>(t685);
        const P t813 = t812 + t545;
        const P t814 = t548 - t810;
        const P t815 = flipped<0, 1>(t545);
        const P t816 = t685 + t815;
        const P t817 = flipped<0, 1>(t811);
        // complex block of 2
        const P t818 = t806 + t817;
        const P t819 = t807 + t813;
        const P t820 = t806 - t817;
        const P t821 = t807 - t813;
        const P t822 = flipped<0, 1>(t816);
        // complex block of 2
        const P t823 = t808 + t822;
        const P t824 = flipped<0, 1>(t809);
        const P t825 = t814 + t824;
        const P t826 = t808 - t822;
        const P t827 = t814 - t824;
        // complex block of 2
        const P t828 = t680 - t554;
        const P t829 = t677 + t551;
        const P t830 = t680 + t554;
        const P t831 = t677 - t551;
        const P t832 = flipped<1, 0>(t660);
        // complex block of 2
        const P t833 = t832 + t576;
        const P t834 = flipped<1, 0>(t573);
        const P t835 = t657 + t834;
        const P t836 = flipped<0, 1>(t576);
        const P t837 = t660 + t836;
        const P t838 = t657 - t834;
        // complex block of 2
        const P t839 = t828 + t833;
        const P t840 = t829 + t835;
        const P t841 = t828 - t833;
        const P t842 = t829 - t835;
        // complex block of 2
        const P t843 = t830 - t838;
        const P t844 = flipped<1, 0>(t837);
        const P t845 = t831 + t844;
        const P t846 = t830 + t838;
        const P t847 = t831 - t844;
        // complex block of 2
        const P t848 = t708 + t526;
        const P t849 = t705 + t523;
        const P t850 = t526 - t708;
        const P t851 = t705 - t523;
        const P t852 = flipped<1, 0>(t632);
        // complex block of 2
        const P t853 = t852 + t604;
        const P t854 = flipped<0, 1>(t601);
        const P t855 = t629 + t854;
        const P t856 = flipped<0, 1>(t604);
        const P t857 = t632 + t856;
        const P t858 = t629 - t854;
        // complex block of 2
        const P t859 = t853 - t848;
        const P t860 = t849 + t855;
        const P t861 = t848 + t853;
        const P t862 = t849 - t855;
        // complex block of 2
        const P t863 = t850 - t858;
        const P t864 = flipped<1, 0>(t857);
        const P t865 = t851 + t864;
        const P t866 = t850 + t858;
        const P t867 = t851 - t864;
        // spectrum block of 3, multiplier 2
        const P t868 = t819 + t721;
        const P t869 = c[4] * t819;
        const P t870 = t721 - t869;
        const P t871 = c[5] * t818;
        const P t872 = t870 - t871;
        const P t873 = t870 + t871;
        // complex block of 3, multiplier 2
        const P t874 = t859 + t755;
        const P t875 = t860 + t756;
        const P t876 = t755 - t859;
        const P t877 = t860 - t756;
        const P t878 = t775 - t874;
        const P t879 = t875 + t776;
        const P t880 = c[4] * t874;
        const P t881 = t880 + t775;
        const P t882 = c[4] * t875;
        const P t883 = t776 - t882;
        const P t884 = c[5] * t877;
        const P t885 = t881 + t884;
        const P t886 = c[5] * t876;
        const P t887 = t883 - t886;
        const P t888 = t881 - t884;
        const P t889 = t883 + t886;
        // complex block of 3, multiplier 2
        const P t890 = t736 - t796;
        const P t891 = t797 + t737;
        const P t892 = t796 + t736;
        const P t893 = t797 - t737;
        const P t894 = t890 + t839;
        const P t895 = t891 + t840;
        const P t896 = c[4] * t890;
        const P t897 = t839 - t896;
        const P t898 = c[4] * t891;
        const P t899 = t840 - t898;
        const P t900 = c[5] * t893;
        const P t901 = t897 + t900;
        const P t902 = c[5] * t892;
        const P t903 = t899 + t902;
        const P t904 = t897 - t900;
        const P t905 = t899 - t902;
        // spectrum block of 5, multiplier 2
        const P t906 = t879 + t895;
        const P t907 = t906 + t868;
        io.pair(1, t907);
        const P t908 = c[1] * t879;
        const P t909 = c[0] * t895;
        const P t910 = t908 - t909;
        const P t911 = t910 + t868;
        const P t912 = c[3] * t878;
        const P t913 = c[2] * t894;
        const P t914 = t912 + t913;
        const P t915 = t911 - t914;
        io.pair(20, t915);
        const P t916 = t911 + t914;
        io.pair(58, t916);
        const P t917 = c[0] * t879;
        const P t918 = t868 - t917;
        const P t919 = c[1] * t895;
        const P t920 = t918 + t919;
        const P t921 = c[2] * t878;
        const P t922 = c[3] * t894;
        const P t923 = t921 - t922;
        const P t924 = t920 - t923;
        io.pair(34, t924);
        const P t925 = t920 + t923;
        io.pair(9, t925);
        // spectrum block of 5, multiplier 2
        const P t926 = t889 + t905;
        const P t927 = t926 + t873;
        io.pair(13, t927);
        const P t928 = c[1] * t889;
        const P t929 = c[0] * t905;
        const P t930 = t928 - t929;
        const P t931 = t930 + t873;
        const P t932 = c[3] * t888;
        const P t933 = c[2] * t904;
        const P t934 = t932 + t933;
        const P t935 = t931 - t934;
        io.pair(16, t935);
        const P t936 = t931 + t934;
        io.pair(22, t936);
        const P t937 = c[0] * t889;
        const P t938 = t873 - t937;
        const P t939 = c[1] * t905;
        const P t940 = t938 + t939;
        const P t941 = c[2] * t888;
        const P t942 = c[3] * t904;
        const P t943 = t941 - t942;
        const P t944 = t940 - t943;
        io.pair(15, t944);
        const P t945 = t940 + t943;
        io.pair(56, t945);
        // spectrum block of 5, multiplier 2
        const P t946 = t887 + t903;
        const P t947 = t946 + t872;
        io.pair(47, t947);
        const P t948 = c[1] * t887;
        const P t949 = c[0] * t903;
        const P t950 = t948 - t949;
        const P t951 = t950 + t872;
        const P t952 = c[3] * t885;
        const P t953 = c[2] * t901;
        const P t954 = t952 + t953;
        const P t955 = t951 - t954;
        io.pair(25, t955);
        const P t956 = t951 + t954;
        io.pair(42, t956);
        const P t957 = c[0] * t887;
        const P t958 = t872 - t957;
        const P t959 = c[1] * t903;
        const P t960 = t958 + t959;
        const P t961 = c[2] * t885;
        const P t962 = c[3] * t901;
        const P t963 = t961 - t962;
        const P t964 = t960 - t963;
        io.pair(12, t964);
        const P t965 = t960 + t963;
        io.pair(57, t965);
        const P t966 = flipped<1, 0>(t825);
        // spectrum block of 3, multiplier 2
        const P t967 = t966 + t723;
        const P t968 = P(c[4], -c[4]) * t825;
        const P t969 = t723 + t968;
        const P t970 = c[5] * t823;
        const P t971 = t969 - t970;
        const P t972 = t969 + t970;
        // complex block of 3, multiplier 2
        const P t973 = t863 + t760;
        const P t974 = t865 + t761;
        const P t975 = t760 - t863;
        const P t976 = t865 - t761;
        const P t977 = t780 - t973;
        const P t978 = t974 + t781;
        const P t979 = c[4] * t973;
        const P t980 = t979 + t780;
        const P t981 = c[4] * t974;
        const P t982 = t781 - t981;
        const P t983 = c[5] * t976;
        const P t984 = t980 + t983;
        const P t985 = c[5] * t975;
        const P t986 = t982 - t985;
        const P t987 = t980 - t983;
        const P t988 = t982 + t985;
        // complex block of 3, multiplier 2
        const P t989 = t741 - t801;
        const P t990 = t803 + t742;
        const P t991 = t801 + t741;
        const P t992 = t803 - t742;
        const P t993 = t989 + t843;
        const P t994 = t990 + t845;
        const P t995 = c[4] * t989;
        const P t996 = t843 - t995;
        const P t997 = c[4] * t990;
        const P t998 = t845 - t997;
        const P t999 = c[5] * t992;
        const P t1000 = t996 + t999;
        const P t1001 = c[5] * t991;
        const P t1002 = t998 + t1001;
        const P t1003 = t996 - t999;
        const P t1004 = t998 - t1001;
        // spectrum block of 5, multiplier 2
        const P t1005 = t978 + t994;
        const P t1006 = t1005 + t967;
        io.pair(50, t1006);
        const P t1007 = c[1] * t978;
        const P t1008 = c[0] * t994;
        const P t1009 = t1007 - t1008;
        const P t1010 = t1009 + t967;
        const P t1011 = c[3] * t977;
        const P t1012 = c[2] * t993;
        const P t1013 = t1011 + t1012;
        const P t1014 = t1010 - t1013;
        io.pair(24, t1014);
        const P t1015 = t1010 + t1013;
        io.pair(33, t1015);
        const P t1016 = c[0] * t978;
        const P t1017 = t967 - t1016;
        const P t1018 = c[1] * t994;
        const P t1019 = t1017 + t1018;
        const P t1020 = c[2] * t977;
        const P t1021 = c[3] * t993;
        const P t1022 = t1020 - t1021;
        const P t1023 = t1019 - t1022;
        io.pair(53, t1023);
        const P t1024 = t1019 + t1022;
        io.pair(23, t1024);
        // spectrum block of 5, multiplier 2
        const P t1025 = t988 + t1004;
        const P t1026 = t1025 + t972;
        io.pair(40, t1026);
        const P t1027 = c[1] * t988;
        const P t1028 = c[0] * t1004;
        const P t1029 = t1027 - t1028;
        const P t1030 = t1029 + t972;
        const P t1031 = c[3] * t987;
        const P t1032 = c[2] * t1003;
        const P t1033 = t1031 + t1032;
        const P t1034 = t1030 - t1033;
        io.pair(7, t1034);
        const P t1035 = t1030 + t1033;
        io.pair(2, t1035);
        const P t1036 = c[0] * t988;
        const P t1037 = t972 - t1036;
        const P t1038 = c[1] * t1004;
        const P t1039 = t1037 + t1038;
        const P t1040 = c[2] * t987;
        const P t1041 = c[3] * t1003;
        const P t1042 = t1040 - t1041;
        const P t1043 = t1039 - t1042;
        io.pair(18, t1043);
        const P t1044 = t1039 + t1042;
        io.pair(55, t1044);
        // spectrum block of 5, multiplier 2
        const P t1045 = t986 + t1002;
        const P t1046 = t1045 + t971;
        io.pair(32, t1046);
        const P t1047 = c[1] * t986;
        const P t1048 = c[0] * t1002;
        const P t1049 = t1047 - t1048;
        const P t1050 = t1049 + t971;
        const P t1051 = c[3] * t984;
        const P t1052 = c[2] * t1000;
        const P t1053 = t1051 + t1052;
        const P t1054 = t1050 - t1053;
        io.pair(30, t1054);
        const P t1055 = t1050 + t1053;
        io.pair(26, t1055);
        const P t1056 = c[0] * t986;
        const P t1057 = t971 - t1056;
        const P t1058 = c[1] * t1002;
        const P t1059 = t1057 + t1058;
        const P t1060 = c[2] * t984;
        const P t1061 = c[3] * t1000;
        const P t1062 = t1060 - t1061;
        const P t1063 = t1059 - t1062;
        io.pair(51, t1063);
        const P t1064 = t1059 + t1062;
        io.pair(44, t1064);
        // spectrum block of 3, multiplier 2
        const P t1065 = t821 + t722;
        const P t1066 = c[4] * t821;
        const P t1067 = t722 - t1066;
        const P t1068 = c[5] * t820;
        const P t1069 = t1067 - t1068;
        const P t1070 = t1067 + t1068;
        // complex block of 3, multiplier 2
        const P t1071 = t861 - t757;
        const P t1072 = t862 + t758;
        const P t1073 = t861 + t757;
        const P t1074 = t862 - t758;
        const P t1075 = t1071 + t777;
        const P t1076 = t1072 + t778;
        const P t1077 = c[4] * t1071;
        const P t1078 = t777 - t1077;
        const P t1079 = c[4] * t1072;
        const P t1080 = t778 - t1079;
        const P t1081 = c[5] * t1074;
        const P t1082 = t1078 + t1081;
        const P t1083 = c[5] * t1073;
        const P t1084 = t1080 - t1083;
        const P t1085 = t1078 - t1081;
        const P t1086 = t1080 + t1083;
        // complex block of 3, multiplier 2
        const P t1087 = t738 - t798;
        const P t1088 = t799 + t739;
        const P t1089 = t798 + t738;
        const P t1090 = t799 - t739;
        const P t1091 = t1087 + t841;
        const P t1092 = t1088 + t842;
        const P t1093 = c[4] * t1087;
        const P t1094 = t841 - t1093;
        const P t1095 = c[4] * t1088;
        const P t1096 = t842 - t1095;
        const P t1097 = c[5] * t1090;
        const P t1098 = t1094 + t1097;
        const P t1099 = c[5] * t1089;
        const P t1100 = t1096 + t1099;
        const P t1101 = t1094 - t1097;
        const P t1102 = t1096 - t1099;
        // spectrum block of 5, multiplier 2
        const P t1103 = t1076 + t1092;
        const P t1104 = t1103 + t1065;
        io.pair(60, t1104);
        const P t1105 = c[1] * t1076;
        const P t1106 = c[0] * t1092;
        const P t1107 = t1105 - t1106;
        const P t1108 = t1107 + t1065;
        const P t1109 = c[3] * t1075;
        const P t1110 = c[2] * t1091;
        const P t1111 = t1109 + t1110;
        const P t1112 = t1108 - t1111;
        io.pair(41, t1112);
        const P t1113 = t1108 + t1111;
        io.pair(3, t1113);
        const P t1114 = c[0] * t1076;
        const P t1115 = t1065 - t1114;
        const P t1116 = c[1] * t1092;
        const P t1117 = t1115 + t1116;
        const P t1118 = c[2] * t1075;
        const P t1119 = c[3] * t1091;
        const P t1120 = t1118 - t1119;
        const P t1121 = t1117 - t1120;
        io.pair(27, t1121);
        const P t1122 = t1117 + t1120;
        io.pair(52, t1122);
        // spectrum block of 5, multiplier 2
        const P t1123 = t1086 + t1102;
        const P t1124 = t1123 + t1070;
        io.pair(48, t1124);
        const P t1125 = c[1] * t1086;
        const P t1126 = c[0] * t1102;
        const P t1127 = t1125 - t1126;
        const P t1128 = t1127 + t1070;
        const P t1129 = c[3] * t1085;
        const P t1130 = c[2] * t1101;
        const P t1131 = t1129 + t1130;
        const P t1132 = t1128 - t1131;
        io.pair(45, t1132);
        const P t1133 = t1128 + t1131;
        io.pair(39, t1133);
        const P t1134 = c[0] * t1086;
        const P t1135 = t1070 - t1134;
        const P t1136 = c[1] * t1102;
        const P t1137 = t1135 + t1136;
        const P t1138 = c[2] * t1085;
        const P t1139 = c[3] * t1101;
        const P t1140 = t1138 - t1139;
        const P t1141 = t1137 - t1140;
        io.pair(46, t1141);
        const P t1142 = t1137 + t1140;
        io.pair(5, t1142);
        // spectrum block of 5, multiplier 2
        const P t1143 = t1084 + t1100;
        const P t1144 = t1143 + t1069;
        io.pair(14, t1144);
        const P t1145 = c[1] * t1084;
        const P t1146 = c[0] * t1100;
        const P t1147 = t1145 - t1146;
        const P t1148 = t1147 + t1069;
        const P t1149 = c[3] * t1082;
        const P t1150 = c[2] * t1098;
        const P t1151 = t1149 + t1150;
        const P t1152 = t1148 - t1151;
        io.pair(36, t1152);
        const P t1153 = t1148 + t1151;
        io.pair(19, t1153);
        const P t1154 = c[0] * t1084;
        const P t1155 = t1069 - t1154;
        const P t1156 = c[1] * t1100;
        const P t1157 = t1155 + t1156;
        const P t1158 = c[2] * t1082;
        const P t1159 = c[3] * t1098;
        const P t1160 = t1158 - t1159;
        const P t1161 = t1157 - t1160;
        io.pair(49, t1161);
        const P t1162 = t1157 + t1160;
        io.pair(4, t1162);
        const P t1163 = flipped<0, 1>(t827);
        // spectrum block of 3, multiplier 2
        const P t1164 = t724 + t1163;
        const P t1165 = P(-c[4], c[4]) * t827;
        const P t1166 = t1165 + t724;
        const P t1167 = c[5] * t826;
        const P t1168 = t1166 - t1167;
        const P t1169 = t1166 + t1167;
        // complex block of 3, multiplier 2
        const P t1170 = t866 + t762;
        const P t1171 = t867 + t763;
        const P t1172 = t762 - t866;
        const P t1173 = t867 - t763;
        const P t1174 = t782 - t1170;
        const P t1175 = t1171 + t783;
        const P t1176 = c[4] * t1170;
        const P t1177 = t1176 + t782;
        const P t1178 = c[4] * t1171;
        const P t1179 = t783 - t1178;
        const P t1180 = c[5] * t1173;
        const P t1181 = t1177 + t1180;
        const P t1182 = c[5] * t1172;
        const P t1183 = t1179 - t1182;
        const P t1184 = t1177 - t1180;
        const P t1185 = t1179 + t1182;
        // complex block of 3, multiplier 2
        const P t1186 = t743 - t804;
        const P t1187 = t805 + t744;
        const P t1188 = t804 + t743;
        const P t1189 = t805 - t744;
        const P t1190 = t1186 + t846;
        const P t1191 = t1187 + t847;
        const P t1192 = c[4] * t1186;
        const P t1193 = t846 - t1192;
        const P t1194 = c[4] * t1187;
        const P t1195 = t847 - t1194;
        const P t1196 = c[5] * t1189;
        const P t1197 = t1193 + t1196;
        const P t1198 = c[5] * t1188;
        const P t1199 = t1195 + t1198;
        const P t1200 = t1193 - t1196;
        const P t1201 = t1195 - t1198;
        // spectrum block of 5, multiplier 2
        const P t1202 = t1175 + t1191;
        const P t1203 = t1202 + t1164;
        io.pair(11, t1203);
        const P t1204 = c[1] * t1175;
        const P t1205 = c[0] * t1191;
        const P t1206 = t1204 - t1205;
        const P t1207 = t1206 + t1164;
        const P t1208 = c[3] * t1174;
        const P t1209 = c[2] * t1190;
        const P t1210 = t1208 + t1209;
        const P t1211 = t1207 - t1210;
        io.pair(37, t1211);
        const P t1212 = t1207 + t1210;
        io.pair(28, t1212);
        const P t1213 = c[0] * t1175;
        const P t1214 = t1164 - t1213;
        const P t1215 = c[1] * t1191;
        const P t1216 = t1214 + t1215;
        const P t1217 = c[2] * t1174;
        const P t1218 = c[3] * t1190;
        const P t1219 = t1217 - t1218;
        const P t1220 = t1216 - t1219;
        io.pair(8, t1220);
        const P t1221 = t1216 + t1219;
        io.pair(38, t1221);
        // spectrum block of 5, multiplier 2
        const P t1222 = t1185 + t1201;
        const P t1223 = t1222 + t1169;
        io.pair(21, t1223);
        const P t1224 = c[1] * t1185;
        const P t1225 = c[0] * t1201;
        const P t1226 = t1224 - t1225;
        const P t1227 = t1226 + t1169;
        const P t1228 = c[3] * t1184;
        const P t1229 = c[2] * t1200;
        const P t1230 = t1228 + t1229;
        const P t1231 = t1227 - t1230;
        io.pair(54, t1231);
        const P t1232 = t1227 + t1230;
        io.pair(59, t1232);
        const P t1233 = c[0] * t1185;
        const P t1234 = t1169 - t1233;
        const P t1235 = c[1] * t1201;
        const P t1236 = t1234 + t1235;
        const P t1237 = c[2] * t1184;
        const P t1238 = c[3] * t1200;
        const P t1239 = t1237 - t1238;
        const P t1240 = t1236 - t1239;
        io.pair(43, t1240);
        const P t1241 = t1236 + t1239;
        io.pair(6, t1241);
        // spectrum block of 5, multiplier 2
        const P t1242 = t1183 + t1199;
        const P t1243 = t1242 + t1168;
        io.pair(29, t1243);
        const P t1244 = c[1] * t1183;
        const P t1245 = c[0] * t1199;
        const P t1246 = t1244 - t1245;
        const P t1247 = t1246 + t1168;
        const P t1248 = c[3] * t1181;
        const P t1249 = c[2] * t1197;
        const P t1250 = t1248 + t1249;
        const P t1251 = t1247 - t1250;
        io.pair(31, t1251);
        const P t1252 = t1247 + t1250;
        io.pair(35, t1252);
        const P t1253 = c[0] * t1183;
        const P t1254 = t1168 - t1253;
        const P t1255 = c[1] * t1199;
        const P t1256 = t1254 + t1255;
        const P t1257 = c[2] * t1181;
        const P t1258 = c[3] * t1197;
        const P t1259 = t1257 - t1258;
        const P t1260 = t1256 - t1259;
        io.pair(10, t1260);
        const P t1261 = t1256 + t1259;
        io.pair(17, t1261);
    }
};

}  // namespace zulg
