// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 61.
// Complex DFT of 61 points, Rader block.
// 856 additions, 760 subtractions, 780 multiplications (902 with `scale`); 66 constants; 128 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<61> {
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
        0.16101883855703142,  // c[8]: Q[2] of 61
        0.20457446421174474,  // c[9]: P[2] of 61
        0.23892325195327072,  // c[10]: P[3] of 61
        0.10340917490170637,  // c[11]: -Q[3] of 61
        0.2578608473569129,  // c[12]: Q[4] of 61
        0.035854723233524656,  // c[13]: -P[4] of 61
        0.2380667501964918,  // c[14]: P[5] of 61
        0.1053660297660444,  // c[15]: Q[5] of 61
        0.20515266792101527,  // c[16]: Q[6] of 61
        0.1602815043062281,  // c[17]: P[6] of 61
        0.2406977012179139,  // c[18]: -P[7] of 61
        0.09920884237904212,  // c[19]: -Q[7] of 61
        0.07049354660050404,  // c[20]: Q[8] of 61
        0.25061611613274265,  // c[21]: P[8] of 61
        0.24403592948183833,  // c[22]: P[9] of 61
        0.09068761161102994,  // c[23]: -Q[9] of 61
        0.23081456598926853,  // c[24]: Q[10] of 61
        0.12042596856560207,  // c[25]: P[10] of 61
        0.24096799804842803,  // c[26]: P[11] of 61
        0.09855050326766758,  // c[27]: -Q[11] of 61
        0.17085954303793666,  // c[28]: Q[12] of 61
        0.19643012582250524,  // c[29]: -P[12] of 61
        0.25591390402746017,  // c[30]: -P[13] of 61
        0.047810579406671994,  // c[31]: Q[13] of 61
        0.035146745480687275,  // c[32]: Q[14] of 61
        0.25795829907156226,  // c[33]: -P[14] of 61
        0.11042531820311542,  // c[34]: -P[15] of 61
        0.23576264945389142,  // c[35]: Q[15] of 61
        0.07154712447968609,  // c[36]: Q[16] of 61
        0.2503173720628796,  // c[37]: P[16] of 61
        0.20961095261841867,  // c[38]: P[17] of 61
        0.15440539602027134,  // c[39]: -Q[17] of 61
        0.22994320324173947,  // c[40]: -Q[18] of 61
        0.12208153447883048,  // c[41]: P[18] of 61
        0.13608829619444565,  // c[42]: -P[19] of 61
        0.22194087820108896,  // c[43]: Q[19] of 61
        0.2602823006297202,  // c[44]: Q[20] of 61
        0.005558934851007752,  // c[45]: -P[20] of 61
        0.256047285458026,  // c[46]: P[21] of 61
        0.04709103298244708,  // c[47]: -Q[21] of 61
        0.25902765669579647,  // c[48]: Q[22] of 61
        0.02612376015167778,  // c[49]: -P[22] of 61
        0.09177478132326014,  // c[50]: -P[23] of 61
        0.24362915936079071,  // c[51]: Q[23] of 61
        0.0673035010610264,  // c[52]: -Q[24] of 61
        0.2514915834033143,  // c[53]: P[24] of 61
        0.23335104576758062,  // c[54]: -P[25] of 61
        0.1154342549547329,  // c[55]: -Q[25] of 61
        0.1988310412655552,  // c[56]: Q[26] of 61
        0.1680594978185787,  // c[57]: -P[26] of 61
        0.25817133658934166,  // c[58]: -P[27] of 61
        0.0335460689418391,  // c[59]: Q[27] of 61
        0.15195717683014903,  // c[60]: -Q[28] of 61
        0.21139251213699267,  // c[61]: P[28] of 61
        0.1192479770652986,  // c[62]: -P[29] of 61
        0.2314253610640195,  // c[63]: -Q[29] of 61
        0.016666666666666666,  // c[64]: 1/60
        0.13017082793177756,  // c[65]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 3, multiplier 2
        const V x47r = io.re(47);
        const V x13r = io.re(13);
        const V t0 = x47r + x13r;
        const V t1 = x47r - x13r;
        const V x1r = io.re(1);
        const V t2 = t0 + x1r;
        const V t3 = c[4] * t0;
        const V t4 = x1r - t3;
        const V t5 = c[5] * t1;
        // real block of 3, multiplier 2
        const V x57r = io.re(57);
        const V x56r = io.re(56);
        const V t6 = x57r + x56r;
        const V t7 = x57r - x56r;
        const V x9r = io.re(9);
        const V t8 = t6 + x9r;
        const V t9 = c[4] * t6;
        const V t10 = x9r - t9;
        const V t11 = c[5] * t7;
        // real block of 3, multiplier 2
        const V x25r = io.re(25);
        const V x16r = io.re(16);
        const V t12 = x25r + x16r;
        const V t13 = x25r - x16r;
        const V x20r = io.re(20);
        const V t14 = t12 + x20r;
        const V t15 = c[4] * t12;
        const V t16 = x20r - t15;
        const V t17 = c[5] * t13;
        // real block of 3, multiplier 2
        const V x42r = io.re(42);
        const V x22r = io.re(22);
        const V t18 = x42r + x22r;
        const V t19 = x42r - x22r;
        const V x58r = io.re(58);
        const V t20 = t18 + x58r;
        const V t21 = c[4] * t18;
        const V t22 = x58r - t21;
        const V t23 = c[5] * t19;
        // real block of 3, multiplier 2
        const V x12r = io.re(12);
        const V x15r = io.re(15);
        const V t24 = x12r + x15r;
        const V t25 = x12r - x15r;
        const V x34r = io.re(34);
        const V t26 = t24 + x34r;
        const V t27 = c[4] * t24;
        const V t28 = x34r - t27;
        const V t29 = c[5] * t25;
        // real block of 5, multiplier 2
        const V t30 = t8 + t26;
        const V t31 = t8 - t26;
        const V t32 = t20 + t14;
        const V t33 = t20 - t14;
        const V t34 = t30 + t32;
        const V t35 = t34 + t2;
        const V t36 = c[0] * t30;
        const V t37 = t2 - t36;
        const V t38 = c[1] * t32;
        const V t39 = t37 + t38;
        const V t40 = c[2] * t31;
        const V t41 = c[3] * t33;
        const V t42 = t40 + t41;
        const V t43 = c[1] * t30;
        const V t44 = c[0] * t32;
        const V t45 = t43 - t44;
        const V t46 = t45 + t2;
        const V t47 = c[3] * t31;
        const V t48 = c[2] * t33;
        const V t49 = t47 - t48;
        // complex block of 5, multiplier 2
        const V t50 = t10 + t28;
        const V t51 = t11 + t29;
        const V t52 = t10 - t28;
        const V t53 = t11 - t29;
        const V t54 = t22 + t16;
        const V t55 = t23 + t17;
        const V t56 = t22 - t16;
        const V t57 = t23 - t17;
        const V t58 = t50 + t54;
        const V t59 = t51 + t55;
        const V t60 = t58 + t4;
        const V t61 = t59 + t5;
        const V t62 = c[1] * t50;
        const V t63 = c[0] * t54;
        const V t64 = t62 - t63;
        const V t65 = t64 + t4;
        const V t66 = c[1] * t51;
        const V t67 = c[0] * t55;
        const V t68 = t66 - t67;
        const V t69 = t68 + t5;
        const V t70 = c[3] * t52;
        const V t71 = c[2] * t56;
        const V t72 = t70 - t71;
        const V t73 = c[3] * t53;
        const V t74 = c[2] * t57;
        const V t75 = t73 - t74;
        const V t76 = t65 + t75;
        const V t77 = t69 - t72;
        const V t78 = t65 - t75;
        const V t79 = t69 + t72;
        const V t80 = c[0] * t50;
        const V t81 = t4 - t80;
        const V t82 = c[1] * t54;
        const V t83 = t81 + t82;
        const V t84 = c[0] * t51;
        const V t85 = t5 - t84;
        const V t86 = c[1] * t55;
        const V t87 = t85 + t86;
        const V t88 = c[2] * t52;
        const V t89 = c[3] * t56;
        const V t90 = t88 + t89;
        const V t91 = c[2] * t53;
        const V t92 = c[3] * t57;
        const V t93 = t91 + t92;
        const V t94 = t83 + t93;
        const V t95 = t87 - t90;
        const V t96 = t83 - t93;
        const V t97 = t87 + t90;
        // real block of 3, multiplier 2
        const V x29r = io.re(29);
        const V x21r = io.re(21);
        const V t98 = x29r + x21r;
        const V t99 = x29r - x21r;
        const V x11r = io.re(11);
        const V t100 = t98 + x11r;
        const V t101 = c[4] * t98;
        const V t102 = x11r - t101;
        const V t103 = c[5] * t99;
        // real block of 3, multiplier 2
        const V x17r = io.re(17);
        const V x6r = io.re(6);
        const V t104 = x17r + x6r;
        const V t105 = x17r - x6r;
        const V x38r = io.re(38);
        const V t106 = t104 + x38r;
        const V t107 = c[4] * t104;
        const V t108 = x38r - t107;
        const V t109 = c[5] * t105;
        // real block of 3, multiplier 2
        const V x31r = io.re(31);
        const V x54r = io.re(54);
        const V t110 = x31r + x54r;
        const V t111 = x31r - x54r;
        const V x37r = io.re(37);
        const V t112 = t110 + x37r;
        const V t113 = c[4] * t110;
        const V t114 = x37r - t113;
        const V t115 = c[5] * t111;
        // real block of 3, multiplier 2
        const V x35r = io.re(35);
        const V x59r = io.re(59);
        const V t116 = x35r + x59r;
        const V t117 = x35r - x59r;
        const V x28r = io.re(28);
        const V t118 = t116 + x28r;
        const V t119 = c[4] * t116;
        const V t120 = x28r - t119;
        const V t121 = c[5] * t117;
        // real block of 3, multiplier 2
        const V x10r = io.re(10);
        const V x43r = io.re(43);
        const V t122 = x10r + x43r;
        const V t123 = x10r - x43r;
        const V x8r = io.re(8);
        const V t124 = t122 + x8r;
        const V t125 = c[4] * t122;
        const V t126 = x8r - t125;
        const V t127 = c[5] * t123;
        // real block of 5, multiplier 2
        const V t128 = t106 + t124;
        const V t129 = t106 - t124;
        const V t130 = t118 + t112;
        const V t131 = t118 - t112;
        const V t132 = t128 + t130;
        const V t133 = t132 + t100;
        const V t134 = c[0] * t128;
        const V t135 = t100 - t134;
        const V t136 = c[1] * t130;
        const V t137 = t135 + t136;
        const V t138 = c[2] * t129;
        const V t139 = c[3] * t131;
        const V t140 = t138 + t139;
        const V t141 = c[1] * t128;
        const V t142 = c[0] * t130;
        const V t143 = t141 - t142;
        const V t144 = t143 + t100;
        const V t145 = c[3] * t129;
        const V t146 = c[2] * t131;
        const V t147 = t145 - t146;
        // complex block of 5, multiplier 2
        const V t148 = t108 + t126;
        const V t149 = t109 + t127;
        const V t150 = t108 - t126;
        const V t151 = t109 - t127;
        const V t152 = t120 + t114;
        const V t153 = t121 + t115;
        const V t154 = t120 - t114;
        const V t155 = t121 - t115;
        const V t156 = t148 + t152;
        const V t157 = t149 + t153;
        const V t158 = t156 + t102;
        const V t159 = t157 + t103;
        const V t160 = c[1] * t148;
        const V t161 = c[0] * t152;
        const V t162 = t160 - t161;
        const V t163 = t162 + t102;
        const V t164 = c[1] * t149;
        const V t165 = c[0] * t153;
        const V t166 = t164 - t165;
        const V t167 = t166 + t103;
        const V t168 = c[3] * t150;
        const V t169 = c[2] * t154;
        const V t170 = t168 - t169;
        const V t171 = c[3] * t151;
        const V t172 = c[2] * t155;
        const V t173 = t171 - t172;
        const V t174 = t163 + t173;
        const V t175 = t167 - t170;
        const V t176 = t163 - t173;
        const V t177 = t167 + t170;
        const V t178 = c[0] * t148;
        const V t179 = t102 - t178;
        const V t180 = c[1] * t152;
        const V t181 = t179 + t180;
        const V t182 = c[0] * t149;
        const V t183 = t103 - t182;
        const V t184 = c[1] * t153;
        const V t185 = t183 + t184;
        const V t186 = c[2] * t150;
        const V t187 = c[3] * t154;
        const V t188 = t186 + t187;
        const V t189 = c[2] * t151;
        const V t190 = c[3] * t155;
        const V t191 = t189 + t190;
        const V t192 = t181 + t191;
        const V t193 = t185 - t188;
        const V t194 = t181 - t191;
        const V t195 = t185 + t188;
        // real block of 3, multiplier 2
        const V x14r = io.re(14);
        const V x48r = io.re(48);
        const V t196 = x14r + x48r;
        const V t197 = x14r - x48r;
        const V x60r = io.re(60);
        const V t198 = t196 + x60r;
        const V t199 = c[4] * t196;
        const V t200 = x60r - t199;
        const V t201 = c[5] * t197;
        // real block of 3, multiplier 2
        const V x4r = io.re(4);
        const V x5r = io.re(5);
        const V t202 = x4r + x5r;
        const V t203 = x4r - x5r;
        const V x52r = io.re(52);
        const V t204 = t202 + x52r;
        const V t205 = c[4] * t202;
        const V t206 = x52r - t205;
        const V t207 = c[5] * t203;
        // real block of 3, multiplier 2
        const V x36r = io.re(36);
        const V x45r = io.re(45);
        const V t208 = x36r + x45r;
        const V t209 = x36r - x45r;
        const V x41r = io.re(41);
        const V t210 = t208 + x41r;
        const V t211 = c[4] * t208;
        const V t212 = x41r - t211;
        const V t213 = c[5] * t209;
        // real block of 3, multiplier 2
        const V x19r = io.re(19);
        const V x39r = io.re(39);
        const V t214 = x19r + x39r;
        const V t215 = x19r - x39r;
        const V x3r = io.re(3);
        const V t216 = t214 + x3r;
        const V t217 = c[4] * t214;
        const V t218 = x3r - t217;
        const V t219 = c[5] * t215;
        // real block of 3, multiplier 2
        const V x49r = io.re(49);
        const V x46r = io.re(46);
        const V t220 = x49r + x46r;
        const V t221 = x49r - x46r;
        const V x27r = io.re(27);
        const V t222 = t220 + x27r;
        const V t223 = c[4] * t220;
        const V t224 = x27r - t223;
        const V t225 = c[5] * t221;
        // real block of 5, multiplier 2
        const V t226 = t204 + t222;
        const V t227 = t204 - t222;
        const V t228 = t216 + t210;
        const V t229 = t216 - t210;
        const V t230 = t226 + t228;
        const V t231 = t230 + t198;
        const V t232 = c[0] * t226;
        const V t233 = t198 - t232;
        const V t234 = c[1] * t228;
        const V t235 = t233 + t234;
        const V t236 = c[2] * t227;
        const V t237 = c[3] * t229;
        const V t238 = t236 + t237;
        const V t239 = c[1] * t226;
        const V t240 = c[0] * t228;
        const V t241 = t239 - t240;
        const V t242 = t241 + t198;
        const V t243 = c[3] * t227;
        const V t244 = c[2] * t229;
        const V t245 = t243 - t244;
        // complex block of 5, multiplier 2
        const V t246 = t206 + t224;
        const V t247 = t207 + t225;
        const V t248 = t206 - t224;
        const V t249 = t207 - t225;
        const V t250 = t218 + t212;
        const V t251 = t219 + t213;
        const V t252 = t218 - t212;
        const V t253 = t219 - t213;
        const V t254 = t246 + t250;
        const V t255 = t247 + t251;
        const V t256 = t254 + t200;
        const V t257 = t255 + t201;
        const V t258 = c[1] * t246;
        const V t259 = c[0] * t250;
        const V t260 = t258 - t259;
        const V t261 = t260 + t200;
        const V t262 = c[1] * t247;
        const V t263 = c[0] * t251;
        const V t264 = t262 - t263;
        const V t265 = t264 + t201;
        const V t266 = c[3] * t248;
        const V t267 = c[2] * t252;
        const V t268 = t266 - t267;
        const V t269 = c[3] * t249;
        const V t270 = c[2] * t253;
        const V t271 = t269 - t270;
        const V t272 = t261 + t271;
        const V t273 = t265 - t268;
        const V t274 = t261 - t271;
        const V t275 = t265 + t268;
        const V t276 = c[0] * t246;
        const V t277 = t200 - t276;
        const V t278 = c[1] * t250;
        const V t279 = t277 + t278;
        const V t280 = c[0] * t247;
        const V t281 = t201 - t280;
        const V t282 = c[1] * t251;
        const V t283 = t281 + t282;
        const V t284 = c[2] * t248;
        const V t285 = c[3] * t252;
        const V t286 = t284 + t285;
        const V t287 = c[2] * t249;
        const V t288 = c[3] * t253;
        const V t289 = t287 + t288;
        const V t290 = t279 + t289;
        const V t291 = t283 - t286;
        const V t292 = t279 - t289;
        const V t293 = t283 + t286;
        // real block of 3, multiplier 2
        const V x32r = io.re(32);
        const V x40r = io.re(40);
        const V t294 = x32r + x40r;
        const V t295 = x32r - x40r;
        const V x50r = io.re(50);
        const V t296 = t294 + x50r;
        const V t297 = c[4] * t294;
        const V t298 = x50r - t297;
        const V t299 = c[5] * t295;
        // real block of 3, multiplier 2
        const V x44r = io.re(44);
        const V x55r = io.re(55);
        const V t300 = x44r + x55r;
        const V t301 = x44r - x55r;
        const V x23r = io.re(23);
        const V t302 = t300 + x23r;
        const V t303 = c[4] * t300;
        const V t304 = x23r - t303;
        const V t305 = c[5] * t301;
        // real block of 3, multiplier 2
        const V x30r = io.re(30);
        const V x7r = io.re(7);
        const V t306 = x30r + x7r;
        const V t307 = x30r - x7r;
        const V x24r = io.re(24);
        const V t308 = t306 + x24r;
        const V t309 = c[4] * t306;
        const V t310 = x24r - t309;
        const V t311 = c[5] * t307;
        // real block of 3, multiplier 2
        const V x26r = io.re(26);
        const V x2r = io.re(2);
        const V t312 = x26r + x2r;
        const V t313 = x26r - x2r;
        const V x33r = io.re(33);
        const V t314 = t312 + x33r;
        const V t315 = c[4] * t312;
        const V t316 = x33r - t315;
        const V t317 = c[5] * t313;
        // real block of 3, multiplier 2
        const V x51r = io.re(51);
        const V x18r = io.re(18);
        const V t318 = x51r + x18r;
        const V t319 = x51r - x18r;
        const V x53r = io.re(53);
        const V t320 = t318 + x53r;
        const V t321 = c[4] * t318;
        const V t322 = x53r - t321;
        const V t323 = c[5] * t319;
        // real block of 5, multiplier 2
        const V t324 = t302 + t320;
        const V t325 = t302 - t320;
        const V t326 = t314 + t308;
        const V t327 = t314 - t308;
        const V t328 = t324 + t326;
        const V t329 = t328 + t296;
        const V t330 = c[0] * t324;
        const V t331 = t296 - t330;
        const V t332 = c[1] * t326;
        const V t333 = t331 + t332;
        const V t334 = c[2] * t325;
        const V t335 = c[3] * t327;
        const V t336 = t334 + t335;
        const V t337 = c[1] * t324;
        const V t338 = c[0] * t326;
        const V t339 = t337 - t338;
        const V t340 = t339 + t296;
        const V t341 = c[3] * t325;
        const V t342 = c[2] * t327;
        const V t343 = t341 - t342;
        // complex block of 5, multiplier 2
        const V t344 = t304 + t322;
        const V t345 = t305 + t323;
        const V t346 = t304 - t322;
        const V t347 = t305 - t323;
        const V t348 = t316 + t310;
        const V t349 = t317 + t311;
        const V t350 = t316 - t310;
        const V t351 = t317 - t311;
        const V t352 = t344 + t348;
        const V t353 = t345 + t349;
        const V t354 = t352 + t298;
        const V t355 = t353 + t299;
        const V t356 = c[1] * t344;
        const V t357 = c[0] * t348;
        const V t358 = t356 - t357;
        const V t359 = t358 + t298;
        const V t360 = c[1] * t345;
        const V t361 = c[0] * t349;
        const V t362 = t360 - t361;
        const V t363 = t362 + t299;
        const V t364 = c[3] * t346;
        const V t365 = c[2] * t350;
        const V t366 = t364 - t365;
        const V t367 = c[3] * t347;
        const V t368 = c[2] * t351;
        const V t369 = t367 - t368;
        const V t370 = t359 + t369;
        const V t371 = t363 - t366;
        const V t372 = t359 - t369;
        const V t373 = t363 + t366;
        const V t374 = c[0] * t344;
        const V t375 = t298 - t374;
        const V t376 = c[1] * t348;
        const V t377 = t375 + t376;
        const V t378 = c[0] * t345;
        const V t379 = t299 - t378;
        const V t380 = c[1] * t349;
        const V t381 = t379 + t380;
        const V t382 = c[2] * t346;
        const V t383 = c[3] * t350;
        const V t384 = t382 + t383;
        const V t385 = c[2] * t347;
        const V t386 = c[3] * t351;
        const V t387 = t385 + t386;
        const V t388 = t377 + t387;
        const V t389 = t381 - t384;
        const V t390 = t377 - t387;
        const V t391 = t381 + t384;
        // real block of 2
        const V t392 = t35 + t231;
        const V t393 = t35 - t231;
        // real block of 2
        const V t394 = t133 + t329;
        const V t395 = t133 - t329;
        // real block of 2
        const V t396 = t392 + t394;
        const V t397 = t392 - t394;
        // complex block of 2
        const V t398 = t76 + t272;
        const V t399 = t77 + t273;
        const V t400 = t76 - t272;
        const V t401 = t273 - t77;
        // complex block of 2
        const V t402 = t174 + t370;
        const V t403 = t175 + t371;
        const V t404 = t174 - t370;
        const V t405 = t371 - t175;
        // complex block of 2
        const V t406 = t398 + t402;
        const V t407 = t399 + t403;
        const V t408 = t398 - t402;
        const V t409 = t403 - t399;
        // complex block of 2
        const V t410 = t400 - t405;
        const V t411 = t401 + t404;
        const V t412 = t400 + t405;
        const V t413 = t401 - t404;
        // complex block of 2
        const V t414 = t96 + t292;
        const V t415 = t97 + t293;
        const V t416 = t96 - t292;
        const V t417 = t97 - t293;
        // complex block of 2
        const V t418 = t194 + t390;
        const V t419 = t195 + t391;
        const V t420 = t194 - t390;
        const V t421 = t195 - t391;
        // complex block of 2
        const V t422 = t414 + t418;
        const V t423 = t415 + t419;
        const V t424 = t414 - t418;
        const V t425 = t415 - t419;
        // complex block of 2
        const V t426 = t416 - t421;
        const V t427 = t417 + t420;
        const V t428 = t416 + t421;
        const V t429 = t417 - t420;
        // complex block of 2
        const V t430 = t39 + t235;
        const V t431 = t42 + t238;
        const V t432 = t39 - t235;
        const V t433 = t238 - t42;
        // complex block of 2
        const V t434 = t137 + t333;
        const V t435 = t140 + t336;
        const V t436 = t137 - t333;
        const V t437 = t336 - t140;
        // complex block of 2
        const V t438 = t430 + t434;
        const V t439 = t431 + t435;
        const V t440 = t430 - t434;
        const V t441 = t435 - t431;
        // complex block of 2
        const V t442 = t432 - t437;
        const V t443 = t433 + t436;
        const V t444 = t432 + t437;
        const V t445 = t433 - t436;
        // complex block of 2
        const V t446 = t78 + t274;
        const V t447 = t79 + t275;
        const V t448 = t78 - t274;
        const V t449 = t275 - t79;
        // complex block of 2
        const V t450 = t176 + t372;
        const V t451 = t177 + t373;
        const V t452 = t176 - t372;
        const V t453 = t373 - t177;
        // complex block of 2
        const V t454 = t446 + t450;
        const V t455 = t447 + t451;
        const V t456 = t446 - t450;
        const V t457 = t451 - t447;
        // complex block of 2
        const V t458 = t448 - t453;
        const V t459 = t449 + t452;
        const V t460 = t448 + t453;
        const V t461 = t449 - t452;
        // complex block of 2
        const V t462 = t60 + t256;
        const V t463 = t61 + t257;
        const V t464 = t60 - t256;
        const V t465 = t61 - t257;
        // complex block of 2
        const V t466 = t158 + t354;
        const V t467 = t159 + t355;
        const V t468 = t158 - t354;
        const V t469 = t159 - t355;
        // complex block of 2
        const V t470 = t462 + t466;
        const V t471 = t463 + t467;
        const V t472 = t462 - t466;
        const V t473 = t463 - t467;
        // complex block of 2
        const V t474 = t464 - t469;
        const V t475 = t465 + t468;
        const V t476 = t464 + t469;
        const V t477 = t465 - t468;
        // complex block of 2
        const V t478 = t46 + t242;
        const V t479 = t49 + t245;
        const V t480 = t46 - t242;
        const V t481 = t49 - t245;
        // complex block of 2
        const V t482 = t144 + t340;
        const V t483 = t147 + t343;
        const V t484 = t144 - t340;
        const V t485 = t147 - t343;
        // complex block of 2
        const V t486 = t478 + t482;
        const V t487 = t479 + t483;
        const V t488 = t478 - t482;
        const V t489 = t479 - t483;
        // complex block of 2
        const V t490 = t480 - t485;
        const V t491 = t481 + t484;
        const V t492 = t480 + t485;
        const V t493 = t481 - t484;
        // complex block of 2
        const V t494 = t94 + t290;
        const V t495 = t95 + t291;
        const V t496 = t94 - t290;
        const V t497 = t291 - t95;
        // complex block of 2
        const V t498 = t192 + t388;
        const V t499 = t193 + t389;
        const V t500 = t192 - t388;
        const V t501 = t389 - t193;
        // complex block of 2
        const V t502 = t494 + t498;
        const V t503 = t495 + t499;
        const V t504 = t494 - t498;
        const V t505 = t499 - t495;
        // complex block of 2
        const V t506 = t496 - t501;
        const V t507 = t497 + t500;
        const V t508 = t496 + t501;
        const V t509 = t497 - t500;
        // real block of 3, multiplier 2
        const V x47i = io.im(47);
        const V x13i = io.im(13);
        const V t510 = x47i + x13i;
        const V t511 = x47i - x13i;
        const V x1i = io.im(1);
        const V t512 = t510 + x1i;
        const V t513 = c[4] * t510;
        const V t514 = x1i - t513;
        const V t515 = c[5] * t511;
        // real block of 3, multiplier 2
        const V x57i = io.im(57);
        const V x56i = io.im(56);
        const V t516 = x57i + x56i;
        const V t517 = x57i - x56i;
        const V x9i = io.im(9);
        const V t518 = t516 + x9i;
        const V t519 = c[4] * t516;
        const V t520 = x9i - t519;
        const V t521 = c[5] * t517;
        // real block of 3, multiplier 2
        const V x25i = io.im(25);
        const V x16i = io.im(16);
        const V t522 = x25i + x16i;
        const V t523 = x25i - x16i;
        const V x20i = io.im(20);
        const V t524 = t522 + x20i;
        const V t525 = c[4] * t522;
        const V t526 = x20i - t525;
        const V t527 = c[5] * t523;
        // real block of 3, multiplier 2
        const V x42i = io.im(42);
        const V x22i = io.im(22);
        const V t528 = x42i + x22i;
        const V t529 = x42i - x22i;
        const V x58i = io.im(58);
        const V t530 = t528 + x58i;
        const V t531 = c[4] * t528;
        const V t532 = x58i - t531;
        const V t533 = c[5] * t529;
        // real block of 3, multiplier 2
        const V x12i = io.im(12);
        const V x15i = io.im(15);
        const V t534 = x12i + x15i;
        const V t535 = x12i - x15i;
        const V x34i = io.im(34);
        const V t536 = t534 + x34i;
        const V t537 = c[4] * t534;
        const V t538 = x34i - t537;
        const V t539 = c[5] * t535;
        // real block of 5, multiplier 2
        const V t540 = t518 + t536;
        const V t541 = t518 - t536;
        const V t542 = t530 + t524;
        const V t543 = t530 - t524;
        const V t544 = t540 + t542;
        const V t545 = t544 + t512;
        const V t546 = c[0] * t540;
        const V t547 = t512 - t546;
        const V t548 = c[1] * t542;
        const V t549 = t547 + t548;
        const V t550 = c[2] * t541;
        const V t551 = c[3] * t543;
        const V t552 = t550 + t551;
        const V t553 = c[1] * t540;
        const V t554 = c[0] * t542;
        const V t555 = t553 - t554;
        const V t556 = t555 + t512;
        const V t557 = c[3] * t541;
        const V t558 = c[2] * t543;
        const V t559 = t557 - t558;
        // complex block of 5, multiplier 2
        const V t560 = t520 + t538;
        const V t561 = t521 + t539;
        const V t562 = t520 - t538;
        const V t563 = t521 - t539;
        const V t564 = t532 + t526;
        const V t565 = t533 + t527;
        const V t566 = t532 - t526;
        const V t567 = t533 - t527;
        const V t568 = t560 + t564;
        const V t569 = t561 + t565;
        const V t570 = t568 + t514;
        const V t571 = t569 + t515;
        const V t572 = c[1] * t560;
        const V t573 = c[0] * t564;
        const V t574 = t572 - t573;
        const V t575 = t574 + t514;
        const V t576 = c[1] * t561;
        const V t577 = c[0] * t565;
        const V t578 = t576 - t577;
        const V t579 = t578 + t515;
        const V t580 = c[3] * t562;
        const V t581 = c[2] * t566;
        const V t582 = t580 - t581;
        const V t583 = c[3] * t563;
        const V t584 = c[2] * t567;
        const V t585 = t583 - t584;
        const V t586 = t575 + t585;
        const V t587 = t579 - t582;
        const V t588 = t575 - t585;
        const V t589 = t579 + t582;
        const V t590 = c[0] * t560;
        const V t591 = t514 - t590;
        const V t592 = c[1] * t564;
        const V t593 = t591 + t592;
        const V t594 = c[0] * t561;
        const V t595 = t515 - t594;
        const V t596 = c[1] * t565;
        const V t597 = t595 + t596;
        const V t598 = c[2] * t562;
        const V t599 = c[3] * t566;
        const V t600 = t598 + t599;
        const V t601 = c[2] * t563;
        const V t602 = c[3] * t567;
        const V t603 = t601 + t602;
        const V t604 = t593 + t603;
        const V t605 = t597 - t600;
        const V t606 = t593 - t603;
        const V t607 = t597 + t600;
        // real block of 3, multiplier 2
        const V x29i = io.im(29);
        const V x21i = io.im(21);
        const V t608 = x29i + x21i;
        const V t609 = x29i - x21i;
        const V x11i = io.im(11);
        const V t610 = t608 + x11i;
        const V t611 = c[4] * t608;
        const V t612 = x11i - t611;
        const V t613 = c[5] * t609;
        // real block of 3, multiplier 2
        const V x17i = io.im(17);
        const V x6i = io.im(6);
        const V t614 = x17i + x6i;
        const V t615 = x17i - x6i;
        const V x38i = io.im(38);
        const V t616 = t614 + x38i;
        const V t617 = c[4] * t614;
        const V t618 = x38i - t617;
        const V t619 = c[5] * t615;
        // real block of 3, multiplier 2
        const V x31i = io.im(31);
        const V x54i = io.im(54);
        const V t620 = x31i + x54i;
        const V t621 = x31i - x54i;
        const V x37i = io.im(37);
        const V t622 = t620 + x37i;
        const V t623 = c[4] * t620;
        const V t624 = x37i - t623;
        const V t625 = c[5] * t621;
        // real block of 3, multiplier 2
        const V x35i = io.im(35);
        const V x59i = io.im(59);
        const V t626 = x35i + x59i;
        const V t627 = x35i - x59i;
        const V x28i = io.im(28);
        const V t628 = t626 + x28i;
        const V t629 = c[4] * t626;
        const V t630 = x28i - t629;
        const V t631 = c[5] * t627;
        // real block of 3, multiplier 2
        const V x10i = io.im(10);
        const V x43i = io.im(43);
        const V t632 = x10i + x43i;
        const V t633 = x10i - x43i;
        const V x8i = io.im(8);
        const V t634 = t632 + x8i;
        const V t635 = c[4] * t632;
        const V t636 = x8i - t635;
        const V t637 = c[5] * t633;
        // real block of 5, multiplier 2
        const V t638 = t616 + t634;
        const V t639 = t616 - t634;
        const V t640 = t628 + t622;
        const V t641 = t628 - t622;
        const V t642 = t638 + t640;
        const V t643 = t642 + t610;
        const V t644 = c[0] * t638;
        const V t645 = t610 - t644;
        const V t646 = c[1] * t640;
        const V t647 = t645 + t646;
        const V t648 = c[2] * t639;
        const V t649 = c[3] * t641;
        const V t650 = t648 + t649;
        const V t651 = c[1] * t638;
        const V t652 = c[0] * t640;
        const V t653 = t651 - t652;
        const V t654 = t653 + t610;
        const V t655 = c[3] * t639;
        const V t656 = c[2] * t641;
        const V t657 = t655 - t656;
        // complex block of 5, multiplier 2
        const V t658 = t618 + t636;
        const V t659 = t619 + t637;
        const V t660 = t618 - t636;
        const V t661 = t619 - t637;
        const V t662 = t630 + t624;
        const V t663 = t631 + t625;
        const V t664 = t630 - t624;
        const V t665 = t631 - t625;
        const V t666 = t658 + t662;
        const V t667 = t659 + t663;
        const V t668 = t666 + t612;
        const V t669 = t667 + t613;
        const V t670 = c[1] * t658;
        const V t671 = c[0] * t662;
        const V t672 = t670 - t671;
        const V t673 = t672 + t612;
        const V t674 = c[1] * t659;
        const V t675 = c[0] * t663;
        const V t676 = t674 - t675;
        const V t677 = t676 + t613;
        const V t678 = c[3] * t660;
        const V t679 = c[2] * t664;
        const V t680 = t678 - t679;
        const V t681 = c[3] * t661;
        const V t682 = c[2] * t665;
        const V t683 = t681 - t682;
        const V t684 = t673 + t683;
        const V t685 = t677 - t680;
        const V t686 = t673 - t683;
        const V t687 = t677 + t680;
        const V t688 = c[0] * t658;
        const V t689 = t612 - t688;
        const V t690 = c[1] * t662;
        const V t691 = t689 + t690;
        const V t692 = c[0] * t659;
        const V t693 = t613 - t692;
        const V t694 = c[1] * t663;
        const V t695 = t693 + t694;
        const V t696 = c[2] * t660;
        const V t697 = c[3] * t664;
        const V t698 = t696 + t697;
        const V t699 = c[2] * t661;
        const V t700 = c[3] * t665;
        const V t701 = t699 + t700;
        const V t702 = t691 + t701;
        const V t703 = t695 - t698;
        const V t704 = t691 - t701;
        const V t705 = t695 + t698;
        // real block of 3, multiplier 2
        const V x14i = io.im(14);
        const V x48i = io.im(48);
        const V t706 = x14i + x48i;
        const V t707 = x14i - x48i;
        const V x60i = io.im(60);
        const V t708 = t706 + x60i;
        const V t709 = c[4] * t706;
        const V t710 = x60i - t709;
        const V t711 = c[5] * t707;
        // real block of 3, multiplier 2
        const V x4i = io.im(4);
        const V x5i = io.im(5);
        const V t712 = x4i + x5i;
        const V t713 = x4i - x5i;
        const V x52i = io.im(52);
        const V t714 = t712 + x52i;
        const V t715 = c[4] * t712;
        const V t716 = x52i - t715;
        const V t717 = c[5] * t713;
        // real block of 3, multiplier 2
        const V x36i = io.im(36);
        const V x45i = io.im(45);
        const V t718 = x36i + x45i;
        const V t719 = x36i - x45i;
        const V x41i = io.im(41);
        const V t720 = t718 + x41i;
        const V t721 = c[4] * t718;
        const V t722 = x41i - t721;
        const V t723 = c[5] * t719;
        // real block of 3, multiplier 2
        const V x19i = io.im(19);
        const V x39i = io.im(39);
        const V t724 = x19i + x39i;
        const V t725 = x19i - x39i;
        const V x3i = io.im(3);
        const V t726 = t724 + x3i;
        const V t727 = c[4] * t724;
        const V t728 = x3i - t727;
        const V t729 = c[5] * t725;
        // real block of 3, multiplier 2
        const V x49i = io.im(49);
        const V x46i = io.im(46);
        const V t730 = x49i + x46i;
        const V t731 = x49i - x46i;
        const V x27i = io.im(27);
        const V t732 = t730 + x27i;
        const V t733 = c[4] * t730;
        const V t734 = x27i - t733;
        const V t735 = c[5] * t731;
        // real block of 5, multiplier 2
        const V t736 = t714 + t732;
        const V t737 = t714 - t732;
        const V t738 = t726 + t720;
        const V t739 = t726 - t720;
        const V t740 = t736 + t738;
        const V t741 = t740 + t708;
        const V t742 = c[0] * t736;
        const V t743 = t708 - t742;
        const V t744 = c[1] * t738;
        const V t745 = t743 + t744;
        const V t746 = c[2] * t737;
        const V t747 = c[3] * t739;
        const V t748 = t746 + t747;
        const V t749 = c[1] * t736;
        const V t750 = c[0] * t738;
        const V t751 = t749 - t750;
        const V t752 = t751 + t708;
        const V t753 = c[3] * t737;
        const V t754 = c[2] * t739;
        const V t755 = t753 - t754;
        // complex block of 5, multiplier 2
        const V t756 = t716 + t734;
        const V t757 = t717 + t735;
        const V t758 = t716 - t734;
        const V t759 = t717 - t735;
        const V t760 = t728 + t722;
        const V t761 = t729 + t723;
        const V t762 = t728 - t722;
        const V t763 = t729 - t723;
        const V t764 = t756 + t760;
        const V t765 = t757 + t761;
        const V t766 = t764 + t710;
        const V t767 = t765 + t711;
        const V t768 = c[1] * t756;
        const V t769 = c[0] * t760;
        const V t770 = t768 - t769;
        const V t771 = t770 + t710;
        const V t772 = c[1] * t757;
        const V t773 = c[0] * t761;
        const V t774 = t772 - t773;
        const V t775 = t774 + t711;
        const V t776 = c[3] * t758;
        const V t777 = c[2] * t762;
        const V t778 = t776 - t777;
        const V t779 = c[3] * t759;
        const V t780 = c[2] * t763;
        const V t781 = t779 - t780;
        const V t782 = t771 + t781;
        const V t783 = t775 - t778;
        const V t784 = t771 - t781;
        const V t785 = t775 + t778;
        const V t786 = c[0] * t756;
        const V t787 = t710 - t786;
        const V t788 = c[1] * t760;
        const V t789 = t787 + t788;
        const V t790 = c[0] * t757;
        const V t791 = t711 - t790;
        const V t792 = c[1] * t761;
        const V t793 = t791 + t792;
        const V t794 = c[2] * t758;
        const V t795 = c[3] * t762;
        const V t796 = t794 + t795;
        const V t797 = c[2] * t759;
        const V t798 = c[3] * t763;
        const V t799 = t797 + t798;
        const V t800 = t789 + t799;
        const V t801 = t793 - t796;
        const V t802 = t789 - t799;
        const V t803 = t793 + t796;
        // real block of 3, multiplier 2
        const V x32i = io.im(32);
        const V x40i = io.im(40);
        const V t804 = x32i + x40i;
        const V t805 = x32i - x40i;
        const V x50i = io.im(50);
        const V t806 = t804 + x50i;
        const V t807 = c[4] * t804;
        const V t808 = x50i - t807;
        const V t809 = c[5] * t805;
        // real block of 3, multiplier 2
        const V x44i = io.im(44);
        const V x55i = io.im(55);
        const V t810 = x44i + x55i;
        const V t811 = x44i - x55i;
        const V x23i = io.im(23);
        const V t812 = t810 + x23i;
        const V t813 = c[4] * t810;
        const V t814 = x23i - t813;
        const V t815 = c[5] * t811;
        // real block of 3, multiplier 2
        const V x30i = io.im(30);
        const V x7i = io.im(7);
        const V t816 = x30i + x7i;
        const V t817 = x30i - x7i;
        const V x24i = io.im(24);
        const V t818 = t816 + x24i;
        const V t819 = c[4] * t816;
        const V t820 = x24i - t819;
        const V t821 = c[5] * t817;
        // real block of 3, multiplier 2
        const V x26i = io.im(26);
        const V x2i = io.im(2);
        const V t822 = x26i + x2i;
        const V t823 = x26i - x2i;
        const V x33i = io.im(33);
        const V t824 = t822 + x33i;
        const V t825 = c[4] * t822;
        const V t826 = x33i - t825;
        const V t827 = c[5] * t823;
        // real block of 3, multiplier 2
        const V x51i = io.im(51);
        const V x18i = io.im(18);
        const V t828 = x51i + x18i;
        const V t829 = x51i - x18i;
        const V x53i = io.im(53);
        const V t830 = t828 + x53i;
        const V t831 = c[4] * t828;
        const V t832 = x53i - t831;
        const V t833 = c[5] * t829;
        // real block of 5, multiplier 2
        const V t834 = t812 + t830;
        const V t835 = t812 - t830;
        const V t836 = t824 + t818;
        const V t837 = t824 - t818;
        const V t838 = t834 + t836;
        const V t839 = t838 + t806;
        const V t840 = c[0] * t834;
        const V t841 = t806 - t840;
        const V t842 = c[1] * t836;
        const V t843 = t841 + t842;
        const V t844 = c[2] * t835;
        const V t845 = c[3] * t837;
        const V t846 = t844 + t845;
        const V t847 = c[1] * t834;
        const V t848 = c[0] * t836;
        const V t849 = t847 - t848;
        const V t850 = t849 + t806;
        const V t851 = c[3] * t835;
        const V t852 = c[2] * t837;
        const V t853 = t851 - t852;
        // complex block of 5, multiplier 2
        const V t854 = t814 + t832;
        const V t855 = t815 + t833;
        const V t856 = t814 - t832;
        const V t857 = t815 - t833;
        const V t858 = t826 + t820;
        const V t859 = t827 + t821;
        const V t860 = t826 - t820;
        const V t861 = t827 - t821;
        const V t862 = t854 + t858;
        const V t863 = t855 + t859;
        const V t864 = t862 + t808;
        const V t865 = t863 + t809;
        const V t866 = c[1] * t854;
        const V t867 = c[0] * t858;
        const V t868 = t866 - t867;
        const V t869 = t868 + t808;
        const V t870 = c[1] * t855;
        const V t871 = c[0] * t859;
        const V t872 = t870 - t871;
        const V t873 = t872 + t809;
        const V t874 = c[3] * t856;
        const V t875 = c[2] * t860;
        const V t876 = t874 - t875;
        const V t877 = c[3] * t857;
        const V t878 = c[2] * t861;
        const V t879 = t877 - t878;
        const V t880 = t869 + t879;
        const V t881 = t873 - t876;
        const V t882 = t869 - t879;
        const V t883 = t873 + t876;
        const V t884 = c[0] * t854;
        const V t885 = t808 - t884;
        const V t886 = c[1] * t858;
        const V t887 = t885 + t886;
        const V t888 = c[0] * t855;
        const V t889 = t809 - t888;
        const V t890 = c[1] * t859;
        const V t891 = t889 + t890;
        const V t892 = c[2] * t856;
        const V t893 = c[3] * t860;
        const V t894 = t892 + t893;
        const V t895 = c[2] * t857;
        const V t896 = c[3] * t861;
        const V t897 = t895 + t896;
        const V t898 = t887 + t897;
        const V t899 = t891 - t894;
        const V t900 = t887 - t897;
        const V t901 = t891 + t894;
        // real block of 2
        const V t902 = t545 + t741;
        const V t903 = t545 - t741;
        // real block of 2
        const V t904 = t643 + t839;
        const V t905 = t643 - t839;
        // real block of 2
        const V t906 = t902 + t904;
        const V t907 = t902 - t904;
        // complex block of 2
        const V t908 = t586 + t782;
        const V t909 = t587 + t783;
        const V t910 = t586 - t782;
        const V t911 = t783 - t587;
        // complex block of 2
        const V t912 = t684 + t880;
        const V t913 = t685 + t881;
        const V t914 = t684 - t880;
        const V t915 = t881 - t685;
        // complex block of 2
        const V t916 = t908 + t912;
        const V t917 = t909 + t913;
        const V t918 = t908 - t912;
        const V t919 = t913 - t909;
        // complex block of 2
        const V t920 = t910 - t915;
        const V t921 = t911 + t914;
        const V t922 = t910 + t915;
        const V t923 = t911 - t914;
        // complex block of 2
        const V t924 = t606 + t802;
        const V t925 = t607 + t803;
        const V t926 = t606 - t802;
        const V t927 = t607 - t803;
        // complex block of 2
        const V t928 = t704 + t900;
        const V t929 = t705 + t901;
        const V t930 = t704 - t900;
        const V t931 = t705 - t901;
        // complex block of 2
        const V t932 = t924 + t928;
        const V t933 = t925 + t929;
        const V t934 = t924 - t928;
        const V t935 = t925 - t929;
        // complex block of 2
        const V t936 = t926 - t931;
        const V t937 = t927 + t930;
        const V t938 = t926 + t931;
        const V t939 = t927 - t930;
        // complex block of 2
        const V t940 = t549 + t745;
        const V t941 = t552 + t748;
        const V t942 = t549 - t745;
        const V t943 = t748 - t552;
        // complex block of 2
        const V t944 = t647 + t843;
        const V t945 = t650 + t846;
        const V t946 = t647 - t843;
        const V t947 = t846 - t650;
        // complex block of 2
        const V t948 = t940 + t944;
        const V t949 = t941 + t945;
        const V t950 = t940 - t944;
        const V t951 = t945 - t941;
        // complex block of 2
        const V t952 = t942 - t947;
        const V t953 = t943 + t946;
        const V t954 = t942 + t947;
        const V t955 = t943 - t946;
        // complex block of 2
        const V t956 = t588 + t784;
        const V t957 = t589 + t785;
        const V t958 = t588 - t784;
        const V t959 = t785 - t589;
        // complex block of 2
        const V t960 = t686 + t882;
        const V t961 = t687 + t883;
        const V t962 = t686 - t882;
        const V t963 = t883 - t687;
        // complex block of 2
        const V t964 = t956 + t960;
        const V t965 = t957 + t961;
        const V t966 = t956 - t960;
        const V t967 = t961 - t957;
        // complex block of 2
        const V t968 = t958 - t963;
        const V t969 = t959 + t962;
        const V t970 = t958 + t963;
        const V t971 = t959 - t962;
        // complex block of 2
        const V t972 = t570 + t766;
        const V t973 = t571 + t767;
        const V t974 = t570 - t766;
        const V t975 = t571 - t767;
        // complex block of 2
        const V t976 = t668 + t864;
        const V t977 = t669 + t865;
        const V t978 = t668 - t864;
        const V t979 = t669 - t865;
        // complex block of 2
        const V t980 = t972 + t976;
        const V t981 = t973 + t977;
        const V t982 = t972 - t976;
        const V t983 = t973 - t977;
        // complex block of 2
        const V t984 = t974 - t979;
        const V t985 = t975 + t978;
        const V t986 = t974 + t979;
        const V t987 = t975 - t978;
        // complex block of 2
        const V t988 = t556 + t752;
        const V t989 = t559 + t755;
        const V t990 = t556 - t752;
        const V t991 = t559 - t755;
        // complex block of 2
        const V t992 = t654 + t850;
        const V t993 = t657 + t853;
        const V t994 = t654 - t850;
        const V t995 = t657 - t853;
        // complex block of 2
        const V t996 = t988 + t992;
        const V t997 = t989 + t993;
        const V t998 = t988 - t992;
        const V t999 = t989 - t993;
        // complex block of 2
        const V t1000 = t990 - t995;
        const V t1001 = t991 + t994;
        const V t1002 = t990 + t995;
        const V t1003 = t991 - t994;
        // complex block of 2
        const V t1004 = t604 + t800;
        const V t1005 = t605 + t801;
        const V t1006 = t604 - t800;
        const V t1007 = t801 - t605;
        // complex block of 2
        const V t1008 = t702 + t898;
        const V t1009 = t703 + t899;
        const V t1010 = t702 - t898;
        const V t1011 = t899 - t703;
        // complex block of 2
        const V t1012 = t1004 + t1008;
        const V t1013 = t1005 + t1009;
        const V t1014 = t1004 - t1008;
        const V t1015 = t1009 - t1005;
        // complex block of 2
        const V t1016 = t1006 - t1011;
        const V t1017 = t1007 + t1010;
        const V t1018 = t1006 + t1011;
        const V t1019 = t1007 - t1010;
        // complex block of 61
        const V x0r = io.re(0);
        const V t1020 = x0r + t396;
        const V x0i = io.im(0);
        io.re(0, t1020);
        const V t1021 = x0i + t906;
        io.im(0, t1021);
        const V t1022 = c[64] * t396;
        const V t1023 = x0r - t1022;
        const V t1024 = c[64] * t906;
        const V t1025 = x0i - t1024;
        const V t1026 = c[6] * t971;
        const V t1027 = c[7] * t970;
        const V t1028 = t1027 - t1026;
        const V t1029 = c[6] * t970;
        const V t1030 = c[7] * t971;
        const V t1031 = t1030 + t1029;
        const V t1032 = c[6] * t461;
        const V t1033 = c[7] * t460;
        const V t1034 = t1032 - t1033;
        const V t1035 = c[6] * t460;
        const V t1036 = c[7] * t461;
        const V t1037 = t1036 + t1035;
        const V t1038 = c[8] * t505;
        const V t1039 = c[9] * t504;
        const V t1040 = t1039 + t1038;
        const V t1041 = c[8] * t504;
        const V t1042 = c[9] * t505;
        const V t1043 = t1041 - t1042;
        const V t1044 = c[8] * t1015;
        const V t1045 = c[9] * t1014;
        const V t1046 = t1045 + t1044;
        const V t1047 = c[8] * t1014;
        const V t1048 = c[9] * t1015;
        const V t1049 = t1047 - t1048;
        const V t1050 = c[10] * t955;
        const V t1051 = c[11] * t954;
        const V t1052 = t1050 - t1051;
        const V t1053 = c[10] * t954;
        const V t1054 = c[11] * t955;
        const V t1055 = t1054 + t1053;
        const V t1056 = c[10] * t445;
        const V t1057 = c[11] * t444;
        const V t1058 = t1057 - t1056;
        const V t1059 = c[10] * t444;
        const V t1060 = c[11] * t445;
        const V t1061 = t1060 + t1059;
        const V t1062 = c[12] * t407;
        const V t1063 = c[13] * t406;
        const V t1064 = t1062 - t1063;
        const V t1065 = c[12] * t406;
        const V t1066 = c[13] * t407;
        const V t1067 = t1066 + t1065;
        const V t1068 = c[12] * t917;
        const V t1069 = c[13] * t916;
        const V t1070 = t1068 - t1069;
        const V t1071 = c[12] * t916;
        const V t1072 = c[13] * t917;
        const V t1073 = t1072 + t1071;
        const V t1074 = c[14] * t987;
        const V t1075 = c[15] * t986;
        const V t1076 = t1075 - t1074;
        const V t1077 = c[14] * t986;
        const V t1078 = c[15] * t987;
        const V t1079 = t1078 + t1077;
        const V t1080 = c[14] * t477;
        const V t1081 = c[15] * t476;
        const V t1082 = t1080 - t1081;
        const V t1083 = c[14] * t476;
        const V t1084 = c[15] * t477;
        const V t1085 = t1084 + t1083;
        const V t1086 = c[16] * t489;
        const V t1087 = c[17] * t488;
        const V t1088 = t1087 + t1086;
        const V t1089 = c[16] * t488;
        const V t1090 = c[17] * t489;
        const V t1091 = t1089 - t1090;
        const V t1092 = c[16] * t999;
        const V t1093 = c[17] * t998;
        const V t1094 = t1093 + t1092;
        const V t1095 = c[16] * t998;
        const V t1096 = c[17] * t999;
        const V t1097 = t1095 - t1096;
        const V t1098 = c[18] * t939;
        const V t1099 = c[19] * t938;
        const V t1100 = t1099 + t1098;
        const V t1101 = c[18] * t938;
        const V t1102 = c[19] * t939;
        const V t1103 = t1102 - t1101;
        const V t1104 = c[18] * t429;
        const V t1105 = c[19] * t428;
        const V t1106 = t1105 + t1104;
        const V t1107 = c[18] * t428;
        const V t1108 = c[19] * t429;
        const V t1109 = t1107 - t1108;
        const V t1110 = c[20] * t423;
        const V t1111 = c[21] * t422;
        const V t1112 = t1111 - t1110;
        const V t1113 = c[20] * t422;
        const V t1114 = c[21] * t423;
        const V t1115 = t1114 + t1113;
        const V t1116 = c[20] * t933;
        const V t1117 = c[21] * t932;
        const V t1118 = t1117 - t1116;
        const V t1119 = c[20] * t932;
        const V t1120 = c[21] * t933;
        const V t1121 = t1120 + t1119;
        const V t1122 = c[22] * t1003;
        const V t1123 = c[23] * t1002;
        const V t1124 = t1123 + t1122;
        const V t1125 = c[22] * t1002;
        const V t1126 = c[23] * t1003;
        const V t1127 = t1125 - t1126;
        const V t1128 = c[22] * t493;
        const V t1129 = c[23] * t492;
        const V t1130 = t1129 + t1128;
        const V t1131 = c[22] * t492;
        const V t1132 = c[23] * t493;
        const V t1133 = t1132 - t1131;
        const V t1134 = c[24] * t473;
        const V t1135 = c[25] * t472;
        const V t1136 = t1135 + t1134;
        const V t1137 = c[24] * t472;
        const V t1138 = c[25] * t473;
        const V t1139 = t1137 - t1138;
        const V t1140 = c[24] * t983;
        const V t1141 = c[25] * t982;
        const V t1142 = t1141 + t1140;
        const V t1143 = c[24] * t982;
        const V t1144 = c[25] * t983;
        const V t1145 = t1143 - t1144;
        const V t1146 = c[26] * t923;
        const V t1147 = c[27] * t922;
        const V t1148 = t1146 - t1147;
        const V t1149 = c[26] * t922;
        const V t1150 = c[27] * t923;
        const V t1151 = t1150 + t1149;
        const V t1152 = c[26] * t413;
        const V t1153 = c[27] * t412;
        const V t1154 = t1153 - t1152;
        const V t1155 = c[26] * t412;
        const V t1156 = c[27] * t413;
        const V t1157 = t1156 + t1155;
        const V t1158 = c[28] * t439;
        const V t1159 = c[29] * t438;
        const V t1160 = t1158 - t1159;
        const V t1161 = c[28] * t438;
        const V t1162 = c[29] * t439;
        const V t1163 = t1162 + t1161;
        const V t1164 = c[28] * t949;
        const V t1165 = c[29] * t948;
        const V t1166 = t1164 - t1165;
        const V t1167 = c[28] * t948;
        const V t1168 = c[29] * t949;
        const V t1169 = t1168 + t1167;
        const V t1170 = c[30] * t1019;
        const V t1171 = c[31] * t1018;
        const V t1172 = t1171 + t1170;
        const V t1173 = c[30] * t1018;
        const V t1174 = c[31] * t1019;
        const V t1175 = t1174 - t1173;
        const V t1176 = c[30] * t509;
        const V t1177 = c[31] * t508;
        const V t1178 = t1177 + t1176;
        const V t1179 = c[30] * t508;
        const V t1180 = c[31] * t509;
        const V t1181 = t1179 - t1180;
        const V t1182 = c[32] * t457;
        const V t1183 = c[33] * t456;
        const V t1184 = t1182 - t1183;
        const V t1185 = c[32] * t456;
        const V t1186 = c[33] * t457;
        const V t1187 = t1186 + t1185;
        const V t1188 = c[32] * t967;
        const V t1189 = c[33] * t966;
        const V t1190 = t1188 - t1189;
        const V t1191 = c[32] * t966;
        const V t1192 = c[33] * t967;
        const V t1193 = t1192 + t1191;
        const V t1194 = c[34] * t905;
        const V t1195 = c[35] * t903;
        const V t1196 = t1195 + t1194;
        const V t1197 = c[34] * t903;
        const V t1198 = c[35] * t905;
        const V t1199 = t1198 - t1197;
        const V t1200 = c[34] * t395;
        const V t1201 = c[35] * t393;
        const V t1202 = t1201 + t1200;
        const V t1203 = c[34] * t393;
        const V t1204 = c[35] * t395;
        const V t1205 = t1203 - t1204;
        const V t1206 = c[36] * t455;
        const V t1207 = c[37] * t454;
        const V t1208 = t1207 + t1206;
        const V t1209 = c[36] * t454;
        const V t1210 = c[37] * t455;
        const V t1211 = t1209 - t1210;
        const V t1212 = c[36] * t965;
        const V t1213 = c[37] * t964;
        const V t1214 = t1213 + t1212;
        const V t1215 = c[36] * t964;
        const V t1216 = c[37] * t965;
        const V t1217 = t1215 - t1216;
        const V t1218 = c[38] * t1017;
        const V t1219 = c[39] * t1016;
        const V t1220 = t1218 - t1219;
        const V t1221 = c[38] * t1016;
        const V t1222 = c[39] * t1017;
        const V t1223 = t1222 + t1221;
        const V t1224 = c[38] * t507;
        const V t1225 = c[39] * t506;
        const V t1226 = t1225 - t1224;
        const V t1227 = c[38] * t506;
        const V t1228 = c[39] * t507;
        const V t1229 = t1228 + t1227;
        const V t1230 = c[40] * t441;
        const V t1231 = c[41] * t440;
        const V t1232 = t1231 - t1230;
        const V t1233 = c[40] * t440;
        const V t1234 = c[41] * t441;
        const V t1235 = t1234 + t1233;
        const V t1236 = c[40] * t951;
        const V t1237 = c[41] * t950;
        const V t1238 = t1237 - t1236;
        const V t1239 = c[40] * t950;
        const V t1240 = c[41] * t951;
        const V t1241 = t1240 + t1239;
        const V t1242 = c[42] * t921;
        const V t1243 = c[43] * t920;
        const V t1244 = t1243 + t1242;
        const V t1245 = c[42] * t920;
        const V t1246 = c[43] * t921;
        const V t1247 = t1246 - t1245;
        const V t1248 = c[42] * t411;
        const V t1249 = c[43] * t410;
        const V t1250 = t1249 + t1248;
        const V t1251 = c[42] * t410;
        const V t1252 = c[43] * t411;
        const V t1253 = t1251 - t1252;
        const V t1254 = c[44] * t471;
        const V t1255 = c[45] * t470;
        const V t1256 = t1255 + t1254;
        const V t1257 = c[44] * t470;
        const V t1258 = c[45] * t471;
        const V t1259 = t1257 - t1258;
        const V t1260 = c[44] * t981;
        const V t1261 = c[45] * t980;
        const V t1262 = t1261 + t1260;
        const V t1263 = c[44] * t980;
        const V t1264 = c[45] * t981;
        const V t1265 = t1263 - t1264;
        const V t1266 = c[46] * t1001;
        const V t1267 = c[47] * t1000;
        const V t1268 = t1266 - t1267;
        const V t1269 = c[46] * t1000;
        const V t1270 = c[47] * t1001;
        const V t1271 = t1270 + t1269;
        const V t1272 = c[46] * t491;
        const V t1273 = c[47] * t490;
        const V t1274 = t1273 - t1272;
        const V t1275 = c[46] * t490;
        const V t1276 = c[47] * t491;
        const V t1277 = t1276 + t1275;
        const V t1278 = c[48] * t425;
        const V t1279 = c[49] * t424;
        const V t1280 = t1278 - t1279;
        const V t1281 = c[48] * t424;
        const V t1282 = c[49] * t425;
        const V t1283 = t1282 + t1281;
        const V t1284 = c[48] * t935;
        const V t1285 = c[49] * t934;
        const V t1286 = t1284 - t1285;
        const V t1287 = c[48] * t934;
        const V t1288 = c[49] * t935;
        const V t1289 = t1288 + t1287;
        const V t1290 = c[50] * t937;
        const V t1291 = c[51] * t936;
        const V t1292 = t1291 + t1290;
        const V t1293 = c[50] * t936;
        const V t1294 = c[51] * t937;
        const V t1295 = t1294 - t1293;
        const V t1296 = c[50] * t427;
        const V t1297 = c[51] * t426;
        const V t1298 = t1297 + t1296;
        const V t1299 = c[50] * t426;
        const V t1300 = c[51] * t427;
        const V t1301 = t1299 - t1300;
        const V t1302 = c[52] * t487;
        const V t1303 = c[53] * t486;
        const V t1304 = t1303 + t1302;
        const V t1305 = c[52] * t486;
        const V t1306 = c[53] * t487;
        const V t1307 = t1306 - t1305;
        const V t1308 = c[52] * t997;
        const V t1309 = c[53] * t996;
        const V t1310 = t1309 + t1308;
        const V t1311 = c[52] * t996;
        const V t1312 = c[53] * t997;
        const V t1313 = t1312 - t1311;
        const V t1314 = c[54] * t985;
        const V t1315 = c[55] * t984;
        const V t1316 = t1315 + t1314;
        const V t1317 = c[54] * t984;
        const V t1318 = c[55] * t985;
        const V t1319 = t1318 - t1317;
        const V t1320 = c[54] * t475;
        const V t1321 = c[55] * t474;
        const V t1322 = t1321 + t1320;
        const V t1323 = c[54] * t474;
        const V t1324 = c[55] * t475;
        const V t1325 = t1323 - t1324;
        const V t1326 = c[56] * t409;
        const V t1327 = c[57] * t408;
        const V t1328 = t1326 - t1327;
        const V t1329 = c[56] * t408;
        const V t1330 = c[57] * t409;
        const V t1331 = t1330 + t1329;
        const V t1332 = c[56] * t919;
        const V t1333 = c[57] * t918;
        const V t1334 = t1332 - t1333;
        const V t1335 = c[56] * t918;
        const V t1336 = c[57] * t919;
        const V t1337 = t1336 + t1335;
        const V t1338 = c[58] * t953;
        const V t1339 = c[59] * t952;
        const V t1340 = t1339 + t1338;
        const V t1341 = c[58] * t952;
        const V t1342 = c[59] * t953;
        const V t1343 = t1342 - t1341;
        const V t1344 = c[58] * t443;
        const V t1345 = c[59] * t442;
        const V t1346 = t1345 + t1344;
        const V t1347 = c[58] * t442;
        const V t1348 = c[59] * t443;
        const V t1349 = t1347 - t1348;
        const V t1350 = c[60] * t503;
        const V t1351 = c[61] * t502;
        const V t1352 = t1351 - t1350;
        const V t1353 = c[60] * t502;
        const V t1354 = c[61] * t503;
        const V t1355 = t1354 + t1353;
        const V t1356 = c[60] * t1013;
        const V t1357 = c[61] * t1012;
        const V t1358 = t1357 - t1356;
        const V t1359 = c[60] * t1012;
        const V t1360 = c[61] * t1013;
        const V t1361 = t1360 + t1359;
        const V t1362 = c[62] * t969;
        const V t1363 = c[63] * t968;
        const V t1364 = t1363 + t1362;
        const V t1365 = c[62] * t968;
        const V t1366 = c[63] * t969;
        const V t1367 = t1366 - t1365;
        const V t1368 = c[62] * t459;
        const V t1369 = c[63] * t458;
        const V t1370 = t1369 + t1368;
        const V t1371 = c[62] * t458;
        const V t1372 = c[63] * t459;
        const V t1373 = t1371 - t1372;
        const V t1374 = c[65] * t397;
        const V t1375 = c[65] * t907;
        // spectrum block of 2
        const V t1376 = t1023 + t1374;
        const V t1377 = t1023 - t1374;
        // spectrum block of 2
        const V t1378 = t1376 + t1196;
        const V t1379 = t1376 - t1196;
        // spectrum block of 2
        const V t1380 = t1377 + t1199;
        const V t1381 = t1377 - t1199;
        // complex block of 2
        const V t1382 = t1067 - t1331;
        const V t1383 = t1064 + t1328;
        const V t1384 = t1067 + t1331;
        const V t1385 = t1064 - t1328;
        // complex block of 2
        const V t1386 = t1247 - t1151;
        const V t1387 = t1244 + t1148;
        const V t1388 = t1247 + t1151;
        const V t1389 = t1244 - t1148;
        // complex block of 2
        const V t1390 = t1382 + t1386;
        const V t1391 = t1383 + t1387;
        const V t1392 = t1382 - t1386;
        const V t1393 = t1383 - t1387;
        // complex block of 2
        const V t1394 = t1384 - t1389;
        const V t1395 = t1385 + t1388;
        const V t1396 = t1384 + t1389;
        const V t1397 = t1385 - t1388;
        // complex block of 2
        const V t1398 = t1115 - t1283;
        const V t1399 = t1112 + t1280;
        const V t1400 = t1115 + t1283;
        const V t1401 = t1112 - t1280;
        // complex block of 2
        const V t1402 = t1295 - t1103;
        const V t1403 = t1292 - t1100;
        const V t1404 = t1295 + t1103;
        const V t1405 = t1292 + t1100;
        // complex block of 2
        const V t1406 = t1398 + t1402;
        const V t1407 = t1399 + t1403;
        const V t1408 = t1398 - t1402;
        const V t1409 = t1399 - t1403;
        // complex block of 2
        const V t1410 = t1400 - t1405;
        const V t1411 = t1401 + t1404;
        const V t1412 = t1400 + t1405;
        const V t1413 = t1401 - t1404;
        // complex block of 2
        const V t1414 = t1163 + t1235;
        const V t1415 = t1160 + t1232;
        const V t1416 = t1163 - t1235;
        const V t1417 = t1160 - t1232;
        // complex block of 2
        const V t1418 = t1343 - t1055;
        const V t1419 = t1340 + t1052;
        const V t1420 = t1343 + t1055;
        const V t1421 = t1340 - t1052;
        // complex block of 2
        const V t1422 = t1414 + t1418;
        const V t1423 = t1415 + t1419;
        const V t1424 = t1414 - t1418;
        const V t1425 = t1415 - t1419;
        // complex block of 2
        const V t1426 = t1416 - t1421;
        const V t1427 = t1417 + t1420;
        const V t1428 = t1416 + t1421;
        const V t1429 = t1417 - t1420;
        // complex block of 2
        const V t1430 = t1211 - t1187;
        const V t1431 = t1208 + t1184;
        const V t1432 = t1211 + t1187;
        const V t1433 = t1208 - t1184;
        // complex block of 2
        const V t1434 = t1031 - t1367;
        const V t1435 = t1028 - t1364;
        const V t1436 = t1367 + t1031;
        const V t1437 = t1364 + t1028;
        // complex block of 2
        const V t1438 = t1430 + t1434;
        const V t1439 = t1431 + t1435;
        const V t1440 = t1430 - t1434;
        const V t1441 = t1431 - t1435;
        // complex block of 2
        const V t1442 = t1432 + t1437;
        const V t1443 = t1433 - t1436;
        const V t1444 = t1432 - t1437;
        const V t1445 = t1433 + t1436;
        // complex block of 2
        const V t1446 = t1259 - t1139;
        const V t1447 = t1136 - t1256;
        const V t1448 = t1259 + t1139;
        const V t1449 = t1256 + t1136;
        // complex block of 2
        const V t1450 = t1079 - t1319;
        const V t1451 = t1076 - t1316;
        const V t1452 = t1319 + t1079;
        const V t1453 = t1316 + t1076;
        // complex block of 2
        const V t1454 = t1446 + t1450;
        const V t1455 = t1447 + t1451;
        const V t1456 = t1446 - t1450;
        const V t1457 = t1447 - t1451;
        // complex block of 2
        const V t1458 = t1448 + t1453;
        const V t1459 = t1449 + t1452;
        const V t1460 = t1448 - t1453;
        const V t1461 = t1452 - t1449;
        // complex block of 2
        const V t1462 = t1307 - t1091;
        const V t1463 = t1304 + t1088;
        const V t1464 = t1307 + t1091;
        const V t1465 = t1304 - t1088;
        // complex block of 2
        const V t1466 = t1127 - t1271;
        const V t1467 = t1268 - t1124;
        const V t1468 = t1271 + t1127;
        const V t1469 = t1268 + t1124;
        // complex block of 2
        const V t1470 = t1462 + t1466;
        const V t1471 = t1463 + t1467;
        const V t1472 = t1462 - t1466;
        const V t1473 = t1463 - t1467;
        // complex block of 2
        const V t1474 = t1464 - t1469;
        const V t1475 = t1465 - t1468;
        const V t1476 = t1464 + t1469;
        const V t1477 = t1465 + t1468;
        // complex block of 2
        const V t1478 = t1355 + t1043;
        const V t1479 = t1352 + t1040;
        const V t1480 = t1043 - t1355;
        const V t1481 = t1352 - t1040;
        // complex block of 2
        const V t1482 = t1175 - t1223;
        const V t1483 = t1220 + t1172;
        const V t1484 = t1223 + t1175;
        const V t1485 = t1220 - t1172;
        // complex block of 2
        const V t1486 = t1482 - t1478;
        const V t1487 = t1479 + t1483;
        const V t1488 = t1478 + t1482;
        const V t1489 = t1479 - t1483;
        // complex block of 2
        const V t1490 = t1480 - t1485;
        const V t1491 = t1481 - t1484;
        const V t1492 = t1480 + t1485;
        const V t1493 = t1481 + t1484;
        // spectrum block of 3, multiplier 2
        const V t1494 = t1455 + t1378;
        const V t1495 = c[4] * t1455;
        const V t1496 = t1378 - t1495;
        const V t1497 = c[5] * t1454;
        const V t1498 = t1496 - t1497;
        const V t1499 = t1496 + t1497;
        // complex block of 3, multiplier 2
        const V t1500 = t1486 + t1406;
        const V t1501 = t1487 + t1407;
        const V t1502 = t1406 - t1486;
        const V t1503 = t1487 - t1407;
        const V t1504 = t1422 - t1500;
        const V t1505 = t1501 + t1423;
        const V t1506 = c[4] * t1500;
        const V t1507 = t1506 + t1422;
        const V t1508 = c[4] * t1501;
        const V t1509 = t1423 - t1508;
        const V t1510 = c[5] * t1502;
        const V t1511 = c[5] * t1503;
        const V t1512 = t1507 + t1511;
        const V t1513 = t1509 - t1510;
        const V t1514 = t1507 - t1511;
        const V t1515 = t1509 + t1510;
        // complex block of 3, multiplier 2
        const V t1516 = t1390 - t1438;
        const V t1517 = t1439 + t1391;
        const V t1518 = t1438 + t1390;
        const V t1519 = t1439 - t1391;
        const V t1520 = t1516 + t1470;
        const V t1521 = t1517 + t1471;
        const V t1522 = c[4] * t1516;
        const V t1523 = t1470 - t1522;
        const V t1524 = c[4] * t1517;
        const V t1525 = t1471 - t1524;
        const V t1526 = c[5] * t1518;
        const V t1527 = c[5] * t1519;
        const V t1528 = t1523 + t1527;
        const V t1529 = t1525 + t1526;
        const V t1530 = t1523 - t1527;
        const V t1531 = t1525 - t1526;
        // spectrum block of 5, multiplier 2
        const V t1532 = t1505 + t1521;
        const V t1533 = t1532 + t1494;
        io.re(1, t1533);
        const V t1534 = c[1] * t1505;
        const V t1535 = c[0] * t1521;
        const V t1536 = t1534 - t1535;
        const V t1537 = t1536 + t1494;
        const V t1538 = c[3] * t1504;
        const V t1539 = c[2] * t1520;
        const V t1540 = t1538 + t1539;
        const V t1541 = t1537 - t1540;
        io.re(20, t1541);
        const V t1542 = t1537 + t1540;
        io.re(58, t1542);
        const V t1543 = c[0] * t1505;
        const V t1544 = t1494 - t1543;
        const V t1545 = c[1] * t1521;
        const V t1546 = t1544 + t1545;
        const V t1547 = c[2] * t1504;
        const V t1548 = c[3] * t1520;
        const V t1549 = t1547 - t1548;
        const V t1550 = t1546 - t1549;
        io.re(34, t1550);
        const V t1551 = t1546 + t1549;
        io.re(9, t1551);
        // spectrum block of 5, multiplier 2
        const V t1552 = t1515 + t1531;
        const V t1553 = t1552 + t1499;
        io.re(13, t1553);
        const V t1554 = c[1] * t1515;
        const V t1555 = c[0] * t1531;
        const V t1556 = t1554 - t1555;
        const V t1557 = t1556 + t1499;
        const V t1558 = c[3] * t1514;
        const V t1559 = c[2] * t1530;
        const V t1560 = t1558 + t1559;
        const V t1561 = t1557 - t1560;
        io.re(16, t1561);
        const V t1562 = t1557 + t1560;
        io.re(22, t1562);
        const V t1563 = c[0] * t1515;
        const V t1564 = t1499 - t1563;
        const V t1565 = c[1] * t1531;
        const V t1566 = t1564 + t1565;
        const V t1567 = c[2] * t1514;
        const V t1568 = c[3] * t1530;
        const V t1569 = t1567 - t1568;
        const V t1570 = t1566 - t1569;
        io.re(15, t1570);
        const V t1571 = t1566 + t1569;
        io.re(56, t1571);
        // spectrum block of 5, multiplier 2
        const V t1572 = t1513 + t1529;
        const V t1573 = t1572 + t1498;
        io.re(47, t1573);
        const V t1574 = c[1] * t1513;
        const V t1575 = c[0] * t1529;
        const V t1576 = t1574 - t1575;
        const V t1577 = t1576 + t1498;
        const V t1578 = c[3] * t1512;
        const V t1579 = c[2] * t1528;
        const V t1580 = t1578 + t1579;
        const V t1581 = t1577 - t1580;
        io.re(25, t1581);
        const V t1582 = t1577 + t1580;
        io.re(42, t1582);
        const V t1583 = c[0] * t1513;
        const V t1584 = t1498 - t1583;
        const V t1585 = c[1] * t1529;
        const V t1586 = t1584 + t1585;
        const V t1587 = c[2] * t1512;
        const V t1588 = c[3] * t1528;
        const V t1589 = t1587 - t1588;
        const V t1590 = t1586 - t1589;
        io.re(12, t1590);
        const V t1591 = t1586 + t1589;
        io.re(57, t1591);
        // spectrum block of 3, multiplier 2
        const V t1592 = t1380 - t1459;
        const V t1593 = c[4] * t1459;
        const V t1594 = t1593 + t1380;
        const V t1595 = c[5] * t1458;
        const V t1596 = t1594 - t1595;
        const V t1597 = t1594 + t1595;
        // complex block of 3, multiplier 2
        const V t1598 = t1490 + t1410;
        const V t1599 = t1491 + t1411;
        const V t1600 = t1410 - t1490;
        const V t1601 = t1491 - t1411;
        const V t1602 = t1426 - t1598;
        const V t1603 = t1599 + t1427;
        const V t1604 = c[4] * t1598;
        const V t1605 = t1604 + t1426;
        const V t1606 = c[4] * t1599;
        const V t1607 = t1427 - t1606;
        const V t1608 = c[5] * t1600;
        const V t1609 = c[5] * t1601;
        const V t1610 = t1605 + t1609;
        const V t1611 = t1607 - t1608;
        const V t1612 = t1605 - t1609;
        const V t1613 = t1607 + t1608;
        // complex block of 3, multiplier 2
        const V t1614 = t1394 - t1442;
        const V t1615 = t1443 + t1395;
        const V t1616 = t1442 + t1394;
        const V t1617 = t1443 - t1395;
        const V t1618 = t1614 + t1474;
        const V t1619 = t1615 + t1475;
        const V t1620 = c[4] * t1614;
        const V t1621 = t1474 - t1620;
        const V t1622 = c[4] * t1615;
        const V t1623 = t1475 - t1622;
        const V t1624 = c[5] * t1616;
        const V t1625 = c[5] * t1617;
        const V t1626 = t1621 + t1625;
        const V t1627 = t1623 + t1624;
        const V t1628 = t1621 - t1625;
        const V t1629 = t1623 - t1624;
        // spectrum block of 5, multiplier 2
        const V t1630 = t1603 + t1619;
        const V t1631 = t1630 + t1592;
        io.re(50, t1631);
        const V t1632 = c[1] * t1603;
        const V t1633 = c[0] * t1619;
        const V t1634 = t1632 - t1633;
        const V t1635 = t1634 + t1592;
        const V t1636 = c[3] * t1602;
        const V t1637 = c[2] * t1618;
        const V t1638 = t1636 + t1637;
        const V t1639 = t1635 - t1638;
        io.re(24, t1639);
        const V t1640 = t1635 + t1638;
        io.re(33, t1640);
        const V t1641 = c[0] * t1603;
        const V t1642 = t1592 - t1641;
        const V t1643 = c[1] * t1619;
        const V t1644 = t1642 + t1643;
        const V t1645 = c[2] * t1602;
        const V t1646 = c[3] * t1618;
        const V t1647 = t1645 - t1646;
        const V t1648 = t1644 - t1647;
        io.re(53, t1648);
        const V t1649 = t1644 + t1647;
        io.re(23, t1649);
        // spectrum block of 5, multiplier 2
        const V t1650 = t1613 + t1629;
        const V t1651 = t1650 + t1597;
        io.re(40, t1651);
        const V t1652 = c[1] * t1613;
        const V t1653 = c[0] * t1629;
        const V t1654 = t1652 - t1653;
        const V t1655 = t1654 + t1597;
        const V t1656 = c[3] * t1612;
        const V t1657 = c[2] * t1628;
        const V t1658 = t1656 + t1657;
        const V t1659 = t1655 - t1658;
        io.re(7, t1659);
        const V t1660 = t1655 + t1658;
        io.re(2, t1660);
        const V t1661 = c[0] * t1613;
        const V t1662 = t1597 - t1661;
        const V t1663 = c[1] * t1629;
        const V t1664 = t1662 + t1663;
        const V t1665 = c[2] * t1612;
        const V t1666 = c[3] * t1628;
        const V t1667 = t1665 - t1666;
        const V t1668 = t1664 - t1667;
        io.re(18, t1668);
        const V t1669 = t1664 + t1667;
        io.re(55, t1669);
        // spectrum block of 5, multiplier 2
        const V t1670 = t1611 + t1627;
        const V t1671 = t1670 + t1596;
        io.re(32, t1671);
        const V t1672 = c[1] * t1611;
        const V t1673 = c[0] * t1627;
        const V t1674 = t1672 - t1673;
        const V t1675 = t1674 + t1596;
        const V t1676 = c[3] * t1610;
        const V t1677 = c[2] * t1626;
        const V t1678 = t1676 + t1677;
        const V t1679 = t1675 - t1678;
        io.re(30, t1679);
        const V t1680 = t1675 + t1678;
        io.re(26, t1680);
        const V t1681 = c[0] * t1611;
        const V t1682 = t1596 - t1681;
        const V t1683 = c[1] * t1627;
        const V t1684 = t1682 + t1683;
        const V t1685 = c[2] * t1610;
        const V t1686 = c[3] * t1626;
        const V t1687 = t1685 - t1686;
        const V t1688 = t1684 - t1687;
        io.re(51, t1688);
        const V t1689 = t1684 + t1687;
        io.re(44, t1689);
        // spectrum block of 3, multiplier 2
        const V t1690 = t1457 + t1379;
        const V t1691 = c[4] * t1457;
        const V t1692 = t1379 - t1691;
        const V t1693 = c[5] * t1456;
        const V t1694 = t1692 - t1693;
        const V t1695 = t1692 + t1693;
        // complex block of 3, multiplier 2
        const V t1696 = t1488 - t1408;
        const V t1697 = t1489 + t1409;
        const V t1698 = t1488 + t1408;
        const V t1699 = t1489 - t1409;
        const V t1700 = t1696 + t1424;
        const V t1701 = t1697 + t1425;
        const V t1702 = c[4] * t1696;
        const V t1703 = t1424 - t1702;
        const V t1704 = c[4] * t1697;
        const V t1705 = t1425 - t1704;
        const V t1706 = c[5] * t1698;
        const V t1707 = c[5] * t1699;
        const V t1708 = t1703 + t1707;
        const V t1709 = t1705 - t1706;
        const V t1710 = t1703 - t1707;
        const V t1711 = t1705 + t1706;
        // complex block of 3, multiplier 2
        const V t1712 = t1392 - t1440;
        const V t1713 = t1441 + t1393;
        const V t1714 = t1440 + t1392;
        const V t1715 = t1441 - t1393;
        const V t1716 = t1712 + t1472;
        const V t1717 = t1713 + t1473;
        const V t1718 = c[4] * t1712;
        const V t1719 = t1472 - t1718;
        const V t1720 = c[4] * t1713;
        const V t1721 = t1473 - t1720;
        const V t1722 = c[5] * t1714;
        const V t1723 = c[5] * t1715;
        const V t1724 = t1719 + t1723;
        const V t1725 = t1721 + t1722;
        const V t1726 = t1719 - t1723;
        const V t1727 = t1721 - t1722;
        // spectrum block of 5, multiplier 2
        const V t1728 = t1701 + t1717;
        const V t1729 = t1728 + t1690;
        io.re(60, t1729);
        const V t1730 = c[1] * t1701;
        const V t1731 = c[0] * t1717;
        const V t1732 = t1730 - t1731;
        const V t1733 = t1732 + t1690;
        const V t1734 = c[3] * t1700;
        const V t1735 = c[2] * t1716;
        const V t1736 = t1734 + t1735;
        const V t1737 = t1733 - t1736;
        io.re(41, t1737);
        const V t1738 = t1733 + t1736;
        io.re(3, t1738);
        const V t1739 = c[0] * t1701;
        const V t1740 = t1690 - t1739;
        const V t1741 = c[1] * t1717;
        const V t1742 = t1740 + t1741;
        const V t1743 = c[2] * t1700;
        const V t1744 = c[3] * t1716;
        const V t1745 = t1743 - t1744;
        const V t1746 = t1742 - t1745;
        io.re(27, t1746);
        const V t1747 = t1742 + t1745;
        io.re(52, t1747);
        // spectrum block of 5, multiplier 2
        const V t1748 = t1711 + t1727;
        const V t1749 = t1748 + t1695;
        io.re(48, t1749);
        const V t1750 = c[1] * t1711;
        const V t1751 = c[0] * t1727;
        const V t1752 = t1750 - t1751;
        const V t1753 = t1752 + t1695;
        const V t1754 = c[3] * t1710;
        const V t1755 = c[2] * t1726;
        const V t1756 = t1754 + t1755;
        const V t1757 = t1753 - t1756;
        io.re(45, t1757);
        const V t1758 = t1753 + t1756;
        io.re(39, t1758);
        const V t1759 = c[0] * t1711;
        const V t1760 = t1695 - t1759;
        const V t1761 = c[1] * t1727;
        const V t1762 = t1760 + t1761;
        const V t1763 = c[2] * t1710;
        const V t1764 = c[3] * t1726;
        const V t1765 = t1763 - t1764;
        const V t1766 = t1762 - t1765;
        io.re(46, t1766);
        const V t1767 = t1762 + t1765;
        io.re(5, t1767);
        // spectrum block of 5, multiplier 2
        const V t1768 = t1709 + t1725;
        const V t1769 = t1768 + t1694;
        io.re(14, t1769);
        const V t1770 = c[1] * t1709;
        const V t1771 = c[0] * t1725;
        const V t1772 = t1770 - t1771;
        const V t1773 = t1772 + t1694;
        const V t1774 = c[3] * t1708;
        const V t1775 = c[2] * t1724;
        const V t1776 = t1774 + t1775;
        const V t1777 = t1773 - t1776;
        io.re(36, t1777);
        const V t1778 = t1773 + t1776;
        io.re(19, t1778);
        const V t1779 = c[0] * t1709;
        const V t1780 = t1694 - t1779;
        const V t1781 = c[1] * t1725;
        const V t1782 = t1780 + t1781;
        const V t1783 = c[2] * t1708;
        const V t1784 = c[3] * t1724;
        const V t1785 = t1783 - t1784;
        const V t1786 = t1782 - t1785;
        io.re(49, t1786);
        const V t1787 = t1782 + t1785;
        io.re(4, t1787);
        // spectrum block of 3, multiplier 2
        const V t1788 = t1461 + t1381;
        const V t1789 = c[4] * t1461;
        const V t1790 = t1381 - t1789;
        const V t1791 = c[5] * t1460;
        const V t1792 = t1790 - t1791;
        const V t1793 = t1790 + t1791;
        // complex block of 3, multiplier 2
        const V t1794 = t1492 + t1412;
        const V t1795 = t1493 + t1413;
        const V t1796 = t1412 - t1492;
        const V t1797 = t1493 - t1413;
        const V t1798 = t1428 - t1794;
        const V t1799 = t1795 + t1429;
        const V t1800 = c[4] * t1794;
        const V t1801 = t1800 + t1428;
        const V t1802 = c[4] * t1795;
        const V t1803 = t1429 - t1802;
        const V t1804 = c[5] * t1796;
        const V t1805 = c[5] * t1797;
        const V t1806 = t1801 + t1805;
        const V t1807 = t1803 - t1804;
        const V t1808 = t1801 - t1805;
        const V t1809 = t1803 + t1804;
        // complex block of 3, multiplier 2
        const V t1810 = t1396 - t1444;
        const V t1811 = t1445 + t1397;
        const V t1812 = t1444 + t1396;
        const V t1813 = t1445 - t1397;
        const V t1814 = t1810 + t1476;
        const V t1815 = t1811 + t1477;
        const V t1816 = c[4] * t1810;
        const V t1817 = t1476 - t1816;
        const V t1818 = c[4] * t1811;
        const V t1819 = t1477 - t1818;
        const V t1820 = c[5] * t1812;
        const V t1821 = c[5] * t1813;
        const V t1822 = t1817 + t1821;
        const V t1823 = t1819 + t1820;
        const V t1824 = t1817 - t1821;
        const V t1825 = t1819 - t1820;
        // spectrum block of 5, multiplier 2
        const V t1826 = t1799 + t1815;
        const V t1827 = t1826 + t1788;
        io.re(11, t1827);
        const V t1828 = c[1] * t1799;
        const V t1829 = c[0] * t1815;
        const V t1830 = t1828 - t1829;
        const V t1831 = t1830 + t1788;
        const V t1832 = c[3] * t1798;
        const V t1833 = c[2] * t1814;
        const V t1834 = t1832 + t1833;
        const V t1835 = t1831 - t1834;
        io.re(37, t1835);
        const V t1836 = t1831 + t1834;
        io.re(28, t1836);
        const V t1837 = c[0] * t1799;
        const V t1838 = t1788 - t1837;
        const V t1839 = c[1] * t1815;
        const V t1840 = t1838 + t1839;
        const V t1841 = c[2] * t1798;
        const V t1842 = c[3] * t1814;
        const V t1843 = t1841 - t1842;
        const V t1844 = t1840 - t1843;
        io.re(8, t1844);
        const V t1845 = t1840 + t1843;
        io.re(38, t1845);
        // spectrum block of 5, multiplier 2
        const V t1846 = t1809 + t1825;
        const V t1847 = t1846 + t1793;
        io.re(21, t1847);
        const V t1848 = c[1] * t1809;
        const V t1849 = c[0] * t1825;
        const V t1850 = t1848 - t1849;
        const V t1851 = t1850 + t1793;
        const V t1852 = c[3] * t1808;
        const V t1853 = c[2] * t1824;
        const V t1854 = t1852 + t1853;
        const V t1855 = t1851 - t1854;
        io.re(54, t1855);
        const V t1856 = t1851 + t1854;
        io.re(59, t1856);
        const V t1857 = c[0] * t1809;
        const V t1858 = t1793 - t1857;
        const V t1859 = c[1] * t1825;
        const V t1860 = t1858 + t1859;
        const V t1861 = c[2] * t1808;
        const V t1862 = c[3] * t1824;
        const V t1863 = t1861 - t1862;
        const V t1864 = t1860 - t1863;
        io.re(43, t1864);
        const V t1865 = t1860 + t1863;
        io.re(6, t1865);
        // spectrum block of 5, multiplier 2
        const V t1866 = t1807 + t1823;
        const V t1867 = t1866 + t1792;
        io.re(29, t1867);
        const V t1868 = c[1] * t1807;
        const V t1869 = c[0] * t1823;
        const V t1870 = t1868 - t1869;
        const V t1871 = t1870 + t1792;
        const V t1872 = c[3] * t1806;
        const V t1873 = c[2] * t1822;
        const V t1874 = t1872 + t1873;
        const V t1875 = t1871 - t1874;
        io.re(31, t1875);
        const V t1876 = t1871 + t1874;
        io.re(35, t1876);
        const V t1877 = c[0] * t1807;
        const V t1878 = t1792 - t1877;
        const V t1879 = c[1] * t1823;
        const V t1880 = t1878 + t1879;
        const V t1881 = c[2] * t1806;
        const V t1882 = c[3] * t1822;
        const V t1883 = t1881 - t1882;
        const V t1884 = t1880 - t1883;
        io.re(10, t1884);
        const V t1885 = t1880 + t1883;
        io.re(17, t1885);
        // spectrum block of 2
        const V t1886 = t1025 + t1375;
        const V t1887 = t1025 - t1375;
        // spectrum block of 2
        const V t1888 = t1886 - t1202;
        const V t1889 = t1886 + t1202;
        // spectrum block of 2
        const V t1890 = t1887 + t1205;
        const V t1891 = t1887 - t1205;
        // complex block of 2
        const V t1892 = t1073 - t1337;
        const V t1893 = t1070 + t1334;
        const V t1894 = t1073 + t1337;
        const V t1895 = t1070 - t1334;
        // complex block of 2
        const V t1896 = t1253 + t1157;
        const V t1897 = t1154 - t1250;
        const V t1898 = t1253 - t1157;
        const V t1899 = t1250 + t1154;
        // complex block of 2
        const V t1900 = t1892 + t1896;
        const V t1901 = t1893 + t1897;
        const V t1902 = t1892 - t1896;
        const V t1903 = t1893 - t1897;
        // complex block of 2
        const V t1904 = t1894 + t1899;
        const V t1905 = t1895 + t1898;
        const V t1906 = t1894 - t1899;
        const V t1907 = t1895 - t1898;
        // complex block of 2
        const V t1908 = t1121 - t1289;
        const V t1909 = t1118 + t1286;
        const V t1910 = t1121 + t1289;
        const V t1911 = t1118 - t1286;
        // complex block of 2
        const V t1912 = t1301 - t1109;
        const V t1913 = t1106 - t1298;
        const V t1914 = t1301 + t1109;
        const V t1915 = t1298 + t1106;
        // complex block of 2
        const V t1916 = t1908 + t1912;
        const V t1917 = t1909 + t1913;
        const V t1918 = t1908 - t1912;
        const V t1919 = t1909 - t1913;
        // complex block of 2
        const V t1920 = t1910 + t1915;
        const V t1921 = t1911 + t1914;
        const V t1922 = t1910 - t1915;
        const V t1923 = t1911 - t1914;
        // complex block of 2
        const V t1924 = t1169 + t1241;
        const V t1925 = t1166 + t1238;
        const V t1926 = t1169 - t1241;
        const V t1927 = t1166 - t1238;
        // complex block of 2
        const V t1928 = t1349 + t1061;
        const V t1929 = t1058 - t1346;
        const V t1930 = t1349 - t1061;
        const V t1931 = t1346 + t1058;
        // complex block of 2
        const V t1932 = t1924 + t1928;
        const V t1933 = t1925 + t1929;
        const V t1934 = t1924 - t1928;
        const V t1935 = t1925 - t1929;
        // complex block of 2
        const V t1936 = t1926 + t1931;
        const V t1937 = t1927 + t1930;
        const V t1938 = t1926 - t1931;
        const V t1939 = t1927 - t1930;
        // complex block of 2
        const V t1940 = t1217 - t1193;
        const V t1941 = t1214 + t1190;
        const V t1942 = t1217 + t1193;
        const V t1943 = t1214 - t1190;
        // complex block of 2
        const V t1944 = t1373 + t1037;
        const V t1945 = t1370 + t1034;
        const V t1946 = t1037 - t1373;
        const V t1947 = t1370 - t1034;
        // complex block of 2
        const V t1948 = t1940 - t1944;
        const V t1949 = t1941 + t1945;
        const V t1950 = t1940 + t1944;
        const V t1951 = t1941 - t1945;
        // complex block of 2
        const V t1952 = t1942 - t1947;
        const V t1953 = t1943 + t1946;
        const V t1954 = t1942 + t1947;
        const V t1955 = t1943 - t1946;
        // complex block of 2
        const V t1956 = t1265 - t1145;
        const V t1957 = t1142 - t1262;
        const V t1958 = t1265 + t1145;
        const V t1959 = t1262 + t1142;
        // complex block of 2
        const V t1960 = t1325 + t1085;
        const V t1961 = t1322 + t1082;
        const V t1962 = t1085 - t1325;
        const V t1963 = t1322 - t1082;
        // complex block of 2
        const V t1964 = t1956 - t1960;
        const V t1965 = t1957 + t1961;
        const V t1966 = t1956 + t1960;
        const V t1967 = t1957 - t1961;
        // complex block of 2
        const V t1968 = t1958 - t1963;
        const V t1969 = t1962 - t1959;
        const V t1970 = t1958 + t1963;
        const V t1971 = t1959 + t1962;
        // complex block of 2
        const V t1972 = t1313 - t1097;
        const V t1973 = t1310 + t1094;
        const V t1974 = t1313 + t1097;
        const V t1975 = t1310 - t1094;
        // complex block of 2
        const V t1976 = t1277 + t1133;
        const V t1977 = t1274 + t1130;
        const V t1978 = t1277 - t1133;
        const V t1979 = t1274 - t1130;
        // complex block of 2
        const V t1980 = t1972 + t1976;
        const V t1981 = t1973 + t1977;
        const V t1982 = t1972 - t1976;
        const V t1983 = t1973 - t1977;
        // complex block of 2
        const V t1984 = t1974 - t1979;
        const V t1985 = t1975 + t1978;
        const V t1986 = t1974 + t1979;
        const V t1987 = t1975 - t1978;
        // complex block of 2
        const V t1988 = t1361 + t1049;
        const V t1989 = t1358 + t1046;
        const V t1990 = t1049 - t1361;
        const V t1991 = t1358 - t1046;
        // complex block of 2
        const V t1992 = t1229 + t1181;
        const V t1993 = t1226 - t1178;
        const V t1994 = t1229 - t1181;
        const V t1995 = t1226 + t1178;
        // complex block of 2
        const V t1996 = t1992 - t1988;
        const V t1997 = t1989 + t1993;
        const V t1998 = t1988 + t1992;
        const V t1999 = t1989 - t1993;
        // complex block of 2
        const V t2000 = t1990 - t1995;
        const V t2001 = t1991 + t1994;
        const V t2002 = t1990 + t1995;
        const V t2003 = t1991 - t1994;
        // spectrum block of 3, multiplier 2
        const V t2004 = t1965 + t1888;
        const V t2005 = c[4] * t1965;
        const V t2006 = t1888 - t2005;
        const V t2007 = c[5] * t1964;
        const V t2008 = t2006 - t2007;
        const V t2009 = t2006 + t2007;
        // complex block of 3, multiplier 2
        const V t2010 = t1996 + t1916;
        const V t2011 = t1997 + t1917;
        const V t2012 = t1916 - t1996;
        const V t2013 = t1997 - t1917;
        const V t2014 = t1932 - t2010;
        const V t2015 = t2011 + t1933;
        const V t2016 = c[4] * t2010;
        const V t2017 = t2016 + t1932;
        const V t2018 = c[4] * t2011;
        const V t2019 = t1933 - t2018;
        const V t2020 = c[5] * t2012;
        const V t2021 = c[5] * t2013;
        const V t2022 = t2017 + t2021;
        const V t2023 = t2019 - t2020;
        const V t2024 = t2017 - t2021;
        const V t2025 = t2019 + t2020;
        // complex block of 3, multiplier 2
        const V t2026 = t1900 - t1948;
        const V t2027 = t1949 + t1901;
        const V t2028 = t1948 + t1900;
        const V t2029 = t1949 - t1901;
        const V t2030 = t2026 + t1980;
        const V t2031 = t2027 + t1981;
        const V t2032 = c[4] * t2026;
        const V t2033 = t1980 - t2032;
        const V t2034 = c[4] * t2027;
        const V t2035 = t1981 - t2034;
        const V t2036 = c[5] * t2028;
        const V t2037 = c[5] * t2029;
        const V t2038 = t2033 + t2037;
        const V t2039 = t2035 + t2036;
        const V t2040 = t2033 - t2037;
        const V t2041 = t2035 - t2036;
        // spectrum block of 5, multiplier 2
        const V t2042 = t2015 + t2031;
        const V t2043 = t2042 + t2004;
        io.im(1, t2043);
        const V t2044 = c[1] * t2015;
        const V t2045 = c[0] * t2031;
        const V t2046 = t2044 - t2045;
        const V t2047 = t2046 + t2004;
        const V t2048 = c[3] * t2014;
        const V t2049 = c[2] * t2030;
        const V t2050 = t2048 + t2049;
        const V t2051 = t2047 - t2050;
        io.im(20, t2051);
        const V t2052 = t2047 + t2050;
        io.im(58, t2052);
        const V t2053 = c[0] * t2015;
        const V t2054 = t2004 - t2053;
        const V t2055 = c[1] * t2031;
        const V t2056 = t2054 + t2055;
        const V t2057 = c[2] * t2014;
        const V t2058 = c[3] * t2030;
        const V t2059 = t2057 - t2058;
        const V t2060 = t2056 - t2059;
        io.im(34, t2060);
        const V t2061 = t2056 + t2059;
        io.im(9, t2061);
        // spectrum block of 5, multiplier 2
        const V t2062 = t2025 + t2041;
        const V t2063 = t2062 + t2009;
        io.im(13, t2063);
        const V t2064 = c[1] * t2025;
        const V t2065 = c[0] * t2041;
        const V t2066 = t2064 - t2065;
        const V t2067 = t2066 + t2009;
        const V t2068 = c[3] * t2024;
        const V t2069 = c[2] * t2040;
        const V t2070 = t2068 + t2069;
        const V t2071 = t2067 - t2070;
        io.im(16, t2071);
        const V t2072 = t2067 + t2070;
        io.im(22, t2072);
        const V t2073 = c[0] * t2025;
        const V t2074 = t2009 - t2073;
        const V t2075 = c[1] * t2041;
        const V t2076 = t2074 + t2075;
        const V t2077 = c[2] * t2024;
        const V t2078 = c[3] * t2040;
        const V t2079 = t2077 - t2078;
        const V t2080 = t2076 - t2079;
        io.im(15, t2080);
        const V t2081 = t2076 + t2079;
        io.im(56, t2081);
        // spectrum block of 5, multiplier 2
        const V t2082 = t2023 + t2039;
        const V t2083 = t2082 + t2008;
        io.im(47, t2083);
        const V t2084 = c[1] * t2023;
        const V t2085 = c[0] * t2039;
        const V t2086 = t2084 - t2085;
        const V t2087 = t2086 + t2008;
        const V t2088 = c[3] * t2022;
        const V t2089 = c[2] * t2038;
        const V t2090 = t2088 + t2089;
        const V t2091 = t2087 - t2090;
        io.im(25, t2091);
        const V t2092 = t2087 + t2090;
        io.im(42, t2092);
        const V t2093 = c[0] * t2023;
        const V t2094 = t2008 - t2093;
        const V t2095 = c[1] * t2039;
        const V t2096 = t2094 + t2095;
        const V t2097 = c[2] * t2022;
        const V t2098 = c[3] * t2038;
        const V t2099 = t2097 - t2098;
        const V t2100 = t2096 - t2099;
        io.im(12, t2100);
        const V t2101 = t2096 + t2099;
        io.im(57, t2101);
        // spectrum block of 3, multiplier 2
        const V t2102 = t1969 + t1890;
        const V t2103 = c[4] * t1969;
        const V t2104 = t1890 - t2103;
        const V t2105 = c[5] * t1968;
        const V t2106 = t2104 - t2105;
        const V t2107 = t2104 + t2105;
        // complex block of 3, multiplier 2
        const V t2108 = t2000 + t1920;
        const V t2109 = t2001 + t1921;
        const V t2110 = t1920 - t2000;
        const V t2111 = t2001 - t1921;
        const V t2112 = t1936 - t2108;
        const V t2113 = t2109 + t1937;
        const V t2114 = c[4] * t2108;
        const V t2115 = t2114 + t1936;
        const V t2116 = c[4] * t2109;
        const V t2117 = t1937 - t2116;
        const V t2118 = c[5] * t2110;
        const V t2119 = c[5] * t2111;
        const V t2120 = t2115 + t2119;
        const V t2121 = t2117 - t2118;
        const V t2122 = t2115 - t2119;
        const V t2123 = t2117 + t2118;
        // complex block of 3, multiplier 2
        const V t2124 = t1904 - t1952;
        const V t2125 = t1953 + t1905;
        const V t2126 = t1952 + t1904;
        const V t2127 = t1953 - t1905;
        const V t2128 = t2124 + t1984;
        const V t2129 = t2125 + t1985;
        const V t2130 = c[4] * t2124;
        const V t2131 = t1984 - t2130;
        const V t2132 = c[4] * t2125;
        const V t2133 = t1985 - t2132;
        const V t2134 = c[5] * t2126;
        const V t2135 = c[5] * t2127;
        const V t2136 = t2131 + t2135;
        const V t2137 = t2133 + t2134;
        const V t2138 = t2131 - t2135;
        const V t2139 = t2133 - t2134;
        // spectrum block of 5, multiplier 2
        const V t2140 = t2113 + t2129;
        const V t2141 = t2140 + t2102;
        io.im(50, t2141);
        const V t2142 = c[1] * t2113;
        const V t2143 = c[0] * t2129;
        const V t2144 = t2142 - t2143;
        const V t2145 = t2144 + t2102;
        const V t2146 = c[3] * t2112;
        const V t2147 = c[2] * t2128;
        const V t2148 = t2146 + t2147;
        const V t2149 = t2145 - t2148;
        io.im(24, t2149);
        const V t2150 = t2145 + t2148;
        io.im(33, t2150);
        const V t2151 = c[0] * t2113;
        const V t2152 = t2102 - t2151;
        const V t2153 = c[1] * t2129;
        const V t2154 = t2152 + t2153;
        const V t2155 = c[2] * t2112;
        const V t2156 = c[3] * t2128;
        const V t2157 = t2155 - t2156;
        const V t2158 = t2154 - t2157;
        io.im(53, t2158);
        const V t2159 = t2154 + t2157;
        io.im(23, t2159);
        // spectrum block of 5, multiplier 2
        const V t2160 = t2123 + t2139;
        const V t2161 = t2160 + t2107;
        io.im(40, t2161);
        const V t2162 = c[1] * t2123;
        const V t2163 = c[0] * t2139;
        const V t2164 = t2162 - t2163;
        const V t2165 = t2164 + t2107;
        const V t2166 = c[3] * t2122;
        const V t2167 = c[2] * t2138;
        const V t2168 = t2166 + t2167;
        const V t2169 = t2165 - t2168;
        io.im(7, t2169);
        const V t2170 = t2165 + t2168;
        io.im(2, t2170);
        const V t2171 = c[0] * t2123;
        const V t2172 = t2107 - t2171;
        const V t2173 = c[1] * t2139;
        const V t2174 = t2172 + t2173;
        const V t2175 = c[2] * t2122;
        const V t2176 = c[3] * t2138;
        const V t2177 = t2175 - t2176;
        const V t2178 = t2174 - t2177;
        io.im(18, t2178);
        const V t2179 = t2174 + t2177;
        io.im(55, t2179);
        // spectrum block of 5, multiplier 2
        const V t2180 = t2121 + t2137;
        const V t2181 = t2180 + t2106;
        io.im(32, t2181);
        const V t2182 = c[1] * t2121;
        const V t2183 = c[0] * t2137;
        const V t2184 = t2182 - t2183;
        const V t2185 = t2184 + t2106;
        const V t2186 = c[3] * t2120;
        const V t2187 = c[2] * t2136;
        const V t2188 = t2186 + t2187;
        const V t2189 = t2185 - t2188;
        io.im(30, t2189);
        const V t2190 = t2185 + t2188;
        io.im(26, t2190);
        const V t2191 = c[0] * t2121;
        const V t2192 = t2106 - t2191;
        const V t2193 = c[1] * t2137;
        const V t2194 = t2192 + t2193;
        const V t2195 = c[2] * t2120;
        const V t2196 = c[3] * t2136;
        const V t2197 = t2195 - t2196;
        const V t2198 = t2194 - t2197;
        io.im(51, t2198);
        const V t2199 = t2194 + t2197;
        io.im(44, t2199);
        // spectrum block of 3, multiplier 2
        const V t2200 = t1967 + t1889;
        const V t2201 = c[4] * t1967;
        const V t2202 = t1889 - t2201;
        const V t2203 = c[5] * t1966;
        const V t2204 = t2202 - t2203;
        const V t2205 = t2202 + t2203;
        // complex block of 3, multiplier 2
        const V t2206 = t1998 - t1918;
        const V t2207 = t1999 + t1919;
        const V t2208 = t1998 + t1918;
        const V t2209 = t1999 - t1919;
        const V t2210 = t2206 + t1934;
        const V t2211 = t2207 + t1935;
        const V t2212 = c[4] * t2206;
        const V t2213 = t1934 - t2212;
        const V t2214 = c[4] * t2207;
        const V t2215 = t1935 - t2214;
        const V t2216 = c[5] * t2208;
        const V t2217 = c[5] * t2209;
        const V t2218 = t2213 + t2217;
        const V t2219 = t2215 - t2216;
        const V t2220 = t2213 - t2217;
        const V t2221 = t2215 + t2216;
        // complex block of 3, multiplier 2
        const V t2222 = t1902 - t1950;
        const V t2223 = t1951 + t1903;
        const V t2224 = t1950 + t1902;
        const V t2225 = t1951 - t1903;
        const V t2226 = t2222 + t1982;
        const V t2227 = t2223 + t1983;
        const V t2228 = c[4] * t2222;
        const V t2229 = t1982 - t2228;
        const V t2230 = c[4] * t2223;
        const V t2231 = t1983 - t2230;
        const V t2232 = c[5] * t2224;
        const V t2233 = c[5] * t2225;
        const V t2234 = t2229 + t2233;
        const V t2235 = t2231 + t2232;
        const V t2236 = t2229 - t2233;
        const V t2237 = t2231 - t2232;
        // spectrum block of 5, multiplier 2
        const V t2238 = t2211 + t2227;
        const V t2239 = t2238 + t2200;
        io.im(60, t2239);
        const V t2240 = c[1] * t2211;
        const V t2241 = c[0] * t2227;
        const V t2242 = t2240 - t2241;
        const V t2243 = t2242 + t2200;
        const V t2244 = c[3] * t2210;
        const V t2245 = c[2] * t2226;
        const V t2246 = t2244 + t2245;
        const V t2247 = t2243 - t2246;
        io.im(41, t2247);
        const V t2248 = t2243 + t2246;
        io.im(3, t2248);
        const V t2249 = c[0] * t2211;
        const V t2250 = t2200 - t2249;
        const V t2251 = c[1] * t2227;
        const V t2252 = t2250 + t2251;
        const V t2253 = c[2] * t2210;
        const V t2254 = c[3] * t2226;
        const V t2255 = t2253 - t2254;
        const V t2256 = t2252 - t2255;
        io.im(27, t2256);
        const V t2257 = t2252 + t2255;
        io.im(52, t2257);
        // spectrum block of 5, multiplier 2
        const V t2258 = t2221 + t2237;
        const V t2259 = t2258 + t2205;
        io.im(48, t2259);
        const V t2260 = c[1] * t2221;
        const V t2261 = c[0] * t2237;
        const V t2262 = t2260 - t2261;
        const V t2263 = t2262 + t2205;
        const V t2264 = c[3] * t2220;
        const V t2265 = c[2] * t2236;
        const V t2266 = t2264 + t2265;
        const V t2267 = t2263 - t2266;
        io.im(45, t2267);
        const V t2268 = t2263 + t2266;
        io.im(39, t2268);
        const V t2269 = c[0] * t2221;
        const V t2270 = t2205 - t2269;
        const V t2271 = c[1] * t2237;
        const V t2272 = t2270 + t2271;
        const V t2273 = c[2] * t2220;
        const V t2274 = c[3] * t2236;
        const V t2275 = t2273 - t2274;
        const V t2276 = t2272 - t2275;
        io.im(46, t2276);
        const V t2277 = t2272 + t2275;
        io.im(5, t2277);
        // spectrum block of 5, multiplier 2
        const V t2278 = t2219 + t2235;
        const V t2279 = t2278 + t2204;
        io.im(14, t2279);
        const V t2280 = c[1] * t2219;
        const V t2281 = c[0] * t2235;
        const V t2282 = t2280 - t2281;
        const V t2283 = t2282 + t2204;
        const V t2284 = c[3] * t2218;
        const V t2285 = c[2] * t2234;
        const V t2286 = t2284 + t2285;
        const V t2287 = t2283 - t2286;
        io.im(36, t2287);
        const V t2288 = t2283 + t2286;
        io.im(19, t2288);
        const V t2289 = c[0] * t2219;
        const V t2290 = t2204 - t2289;
        const V t2291 = c[1] * t2235;
        const V t2292 = t2290 + t2291;
        const V t2293 = c[2] * t2218;
        const V t2294 = c[3] * t2234;
        const V t2295 = t2293 - t2294;
        const V t2296 = t2292 - t2295;
        io.im(49, t2296);
        const V t2297 = t2292 + t2295;
        io.im(4, t2297);
        // spectrum block of 3, multiplier 2
        const V t2298 = t1891 - t1971;
        const V t2299 = c[4] * t1971;
        const V t2300 = t2299 + t1891;
        const V t2301 = c[5] * t1970;
        const V t2302 = t2300 - t2301;
        const V t2303 = t2300 + t2301;
        // complex block of 3, multiplier 2
        const V t2304 = t2002 + t1922;
        const V t2305 = t2003 + t1923;
        const V t2306 = t1922 - t2002;
        const V t2307 = t2003 - t1923;
        const V t2308 = t1938 - t2304;
        const V t2309 = t2305 + t1939;
        const V t2310 = c[4] * t2304;
        const V t2311 = t2310 + t1938;
        const V t2312 = c[4] * t2305;
        const V t2313 = t1939 - t2312;
        const V t2314 = c[5] * t2306;
        const V t2315 = c[5] * t2307;
        const V t2316 = t2311 + t2315;
        const V t2317 = t2313 - t2314;
        const V t2318 = t2311 - t2315;
        const V t2319 = t2313 + t2314;
        // complex block of 3, multiplier 2
        const V t2320 = t1906 - t1954;
        const V t2321 = t1955 + t1907;
        const V t2322 = t1954 + t1906;
        const V t2323 = t1955 - t1907;
        const V t2324 = t2320 + t1986;
        const V t2325 = t2321 + t1987;
        const V t2326 = c[4] * t2320;
        const V t2327 = t1986 - t2326;
        const V t2328 = c[4] * t2321;
        const V t2329 = t1987 - t2328;
        const V t2330 = c[5] * t2322;
        const V t2331 = c[5] * t2323;
        const V t2332 = t2327 + t2331;
        const V t2333 = t2329 + t2330;
        const V t2334 = t2327 - t2331;
        const V t2335 = t2329 - t2330;
        // spectrum block of 5, multiplier 2
        const V t2336 = t2309 + t2325;
        const V t2337 = t2336 + t2298;
        io.im(11, t2337);
        const V t2338 = c[1] * t2309;
        const V t2339 = c[0] * t2325;
        const V t2340 = t2338 - t2339;
        const V t2341 = t2340 + t2298;
        const V t2342 = c[3] * t2308;
        const V t2343 = c[2] * t2324;
        const V t2344 = t2342 + t2343;
        const V t2345 = t2341 - t2344;
        io.im(37, t2345);
        const V t2346 = t2341 + t2344;
        io.im(28, t2346);
        const V t2347 = c[0] * t2309;
        const V t2348 = t2298 - t2347;
        const V t2349 = c[1] * t2325;
        const V t2350 = t2348 + t2349;
        const V t2351 = c[2] * t2308;
        const V t2352 = c[3] * t2324;
        const V t2353 = t2351 - t2352;
        const V t2354 = t2350 - t2353;
        io.im(8, t2354);
        const V t2355 = t2350 + t2353;
        io.im(38, t2355);
        // spectrum block of 5, multiplier 2
        const V t2356 = t2319 + t2335;
        const V t2357 = t2356 + t2303;
        io.im(21, t2357);
        const V t2358 = c[1] * t2319;
        const V t2359 = c[0] * t2335;
        const V t2360 = t2358 - t2359;
        const V t2361 = t2360 + t2303;
        const V t2362 = c[3] * t2318;
        const V t2363 = c[2] * t2334;
        const V t2364 = t2362 + t2363;
        const V t2365 = t2361 - t2364;
        io.im(54, t2365);
        const V t2366 = t2361 + t2364;
        io.im(59, t2366);
        const V t2367 = c[0] * t2319;
        const V t2368 = t2303 - t2367;
        const V t2369 = c[1] * t2335;
        const V t2370 = t2368 + t2369;
        const V t2371 = c[2] * t2318;
        const V t2372 = c[3] * t2334;
        const V t2373 = t2371 - t2372;
        const V t2374 = t2370 - t2373;
        io.im(43, t2374);
        const V t2375 = t2370 + t2373;
        io.im(6, t2375);
        // spectrum block of 5, multiplier 2
        const V t2376 = t2317 + t2333;
        const V t2377 = t2376 + t2302;
        io.im(29, t2377);
        const V t2378 = c[1] * t2317;
        const V t2379 = c[0] * t2333;
        const V t2380 = t2378 - t2379;
        const V t2381 = t2380 + t2302;
        const V t2382 = c[3] * t2316;
        const V t2383 = c[2] * t2332;
        const V t2384 = t2382 + t2383;
        const V t2385 = t2381 - t2384;
        io.im(31, t2385);
        const V t2386 = t2381 + t2384;
        io.im(35, t2386);
        const V t2387 = c[0] * t2317;
        const V t2388 = t2302 - t2387;
        const V t2389 = c[1] * t2333;
        const V t2390 = t2388 + t2389;
        const V t2391 = c[2] * t2316;
        const V t2392 = c[3] * t2332;
        const V t2393 = t2391 - t2392;
        const V t2394 = t2390 - t2393;
        io.im(10, t2394);
        const V t2395 = t2390 + t2393;
        io.im(17, t2395);
    }
};

}  // namespace zulg
