// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 61.
// Complex DFT of 61 points, Rader block.
// 856 additions, 760 subtractions, 780 multiplications (902 with `scale`); 66 constants; 242 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<61> {
    static constexpr int steps = 2518;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 6/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 6/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.11042531820311542,  // c[6]: -P[15] of 61
        0.23576264945389142,  // c[7]: Q[15] of 61
        0.19643012582250524,  // c[8]: -P[12] of 61
        0.17085954303793666,  // c[9]: Q[12] of 61
        0.12208153447883048,  // c[10]: P[18] of 61
        0.22994320324173947,  // c[11]: -Q[18] of 61
        0.0335460689418391,  // c[12]: Q[27] of 61
        0.25817133658934166,  // c[13]: -P[27] of 61
        0.10340917490170637,  // c[14]: -Q[3] of 61
        0.23892325195327072,  // c[15]: P[3] of 61
        0.2514915834033143,  // c[16]: P[24] of 61
        0.0673035010610264,  // c[17]: -Q[24] of 61
        0.1602815043062281,  // c[18]: P[6] of 61
        0.20515266792101527,  // c[19]: Q[6] of 61
        0.04709103298244708,  // c[20]: -Q[21] of 61
        0.256047285458026,  // c[21]: P[21] of 61
        0.09068761161102994,  // c[22]: -Q[9] of 61
        0.24403592948183833,  // c[23]: P[9] of 61
        0.005558934851007752,  // c[24]: -P[20] of 61
        0.2602823006297202,  // c[25]: Q[20] of 61
        0.12042596856560207,  // c[26]: P[10] of 61
        0.23081456598926853,  // c[27]: Q[10] of 61
        0.1154342549547329,  // c[28]: -Q[25] of 61
        0.23335104576758062,  // c[29]: -P[25] of 61
        0.1053660297660444,  // c[30]: Q[5] of 61
        0.2380667501964918,  // c[31]: P[5] of 61
        0.035854723233524656,  // c[32]: -P[4] of 61
        0.1680594978185787,  // c[33]: -P[26] of 61
        0.09855050326766758,  // c[34]: -Q[11] of 61
        0.24096799804842803,  // c[35]: P[11] of 61
        0.22194087820108896,  // c[36]: Q[19] of 61
        0.13608829619444565,  // c[37]: -P[19] of 61
        0.2578608473569129,  // c[38]: Q[4] of 61
        0.1988310412655552,  // c[39]: Q[26] of 61
        0.25795829907156226,  // c[40]: -P[14] of 61
        0.2503173720628796,  // c[41]: P[16] of 61
        0.15497780918795065,  // c[42]: Q[1] of 61
        0.20918808865965802,  // c[43]: P[1] of 61
        0.2314253610640195,  // c[44]: -Q[29] of 61
        0.1192479770652986,  // c[45]: -P[29] of 61
        0.07154712447968609,  // c[46]: Q[16] of 61
        0.035146745480687275,  // c[47]: Q[14] of 61
        0.25061611613274265,  // c[48]: P[8] of 61
        0.02612376015167778,  // c[49]: -P[22] of 61
        0.09920884237904212,  // c[50]: -Q[7] of 61
        0.2406977012179139,  // c[51]: -P[7] of 61
        0.24362915936079071,  // c[52]: Q[23] of 61
        0.09177478132326014,  // c[53]: -P[23] of 61
        0.07049354660050404,  // c[54]: Q[8] of 61
        0.25902765669579647,  // c[55]: Q[22] of 61
        0.20457446421174474,  // c[56]: P[2] of 61
        0.21139251213699267,  // c[57]: P[28] of 61
        0.047810579406671994,  // c[58]: Q[13] of 61
        0.25591390402746017,  // c[59]: -P[13] of 61
        0.15440539602027134,  // c[60]: -Q[17] of 61
        0.20961095261841867,  // c[61]: P[17] of 61
        0.15195717683014903,  // c[62]: -Q[28] of 61
        0.16101883855703142,  // c[63]: Q[2] of 61
        0.016666666666666666,  // c[64]: 1/60
        0.13017082793177756,  // c[65]: beta of 61
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 3, multiplier 2
        const V x57r = io.re(57);
        const V x56r = io.re(56);
        const V t0 = x57r + x56r;
        const V t1 = x57r - x56r;
        const V x9r = io.re(9);
        const V t2 = t0 + x9r;
        const V t3 = c[4] * t0;
        const V t4 = c[5] * t1;
        // real block of 3, multiplier 2
        const V x12r = io.re(12);
        const V x15r = io.re(15);
        const V t5 = x12r + x15r;
        const V t6 = x12r - x15r;
        const V x34r = io.re(34);
        const V t7 = t5 + x34r;
        const V t8 = c[4] * t5;
        const V t9 = c[5] * t6;
        // real block of 3, multiplier 2
        const V x47r = io.re(47);
        const V x13r = io.re(13);
        const V t10 = x47r + x13r;
        const V t11 = x47r - x13r;
        // real block of 3, multiplier 2
        const V x25r = io.re(25);
        const V x16r = io.re(16);
        const V t12 = x25r + x16r;
        const V t13 = x25r - x16r;
        const V x20r = io.re(20);
        const V t14 = t12 + x20r;
        const V t15 = c[4] * t12;
        const V t16 = c[5] * t13;
        // real block of 3, multiplier 2
        const V x42r = io.re(42);
        const V x22r = io.re(22);
        const V t17 = x42r + x22r;
        const V t18 = x42r - x22r;
        const V x58r = io.re(58);
        const V t19 = t17 + x58r;
        const V t20 = c[4] * t17;
        const V t21 = c[5] * t18;
        // real block of 3, multiplier 2
        const V x1r = io.re(1);
        const V t22 = t10 + x1r;
        const V t23 = c[4] * t10;
        const V t24 = x1r - t23;
        const V t25 = c[5] * t11;
        // complex block of 5, multiplier 2
        const V t26 = t4 + t9;
        const V t27 = c[0] * t26;
        const V t28 = c[1] * t26;
        const V t29 = t21 + t16;
        const V t30 = c[1] * t29;
        const V t31 = t26 + t29;
        const V t32 = t27 - t30;
        const V t33 = t25 - t28;
        const V t34 = c[0] * t29;
        // real block of 3, multiplier 2
        const V t35 = x9r - t3;
        // real block of 3, multiplier 2
        const V t36 = x34r - t8;
        // complex block of 5, multiplier 2
        const V t37 = t35 + t36;
        const V t38 = t35 - t36;
        const V t39 = c[0] * t37;
        const V t40 = c[2] * t38;
        const V t41 = c[1] * t37;
        const V t42 = c[3] * t38;
        // real block of 3, multiplier 2
        const V t43 = x20r - t15;
        // real block of 3, multiplier 2
        const V t44 = x58r - t20;
        // complex block of 5, multiplier 2
        const V t45 = t44 + t43;
        const V t46 = t44 - t43;
        const V t47 = c[1] * t45;
        const V t48 = c[3] * t46;
        const V t49 = c[0] * t45;
        const V t50 = c[2] * t46;
        // real block of 5, multiplier 2
        const V t51 = t2 + t7;
        const V t52 = t19 + t14;
        const V t53 = t51 + t52;
        const V t54 = c[1] * t51;
        const V t55 = c[0] * t52;
        const V t56 = c[0] * t51;
        const V t57 = c[1] * t52;
        const V t58 = t2 - t7;
        const V t59 = c[3] * t58;
        const V t60 = c[2] * t58;
        const V t61 = t19 - t14;
        const V t62 = c[2] * t61;
        const V t63 = c[3] * t61;
        // complex block of 5, multiplier 2
        const V t64 = t4 - t9;
        const V t65 = c[2] * t64;
        const V t66 = c[3] * t64;
        const V t67 = t21 - t16;
        const V t68 = c[3] * t67;
        const V t69 = c[2] * t67;
        // real block of 3, multiplier 2
        const V x26r = io.re(26);
        const V x2r = io.re(2);
        const V t70 = x26r + x2r;
        const V t71 = x26r - x2r;
        const V x33r = io.re(33);
        const V t72 = t70 + x33r;
        const V t73 = c[4] * t70;
        const V t74 = c[5] * t71;
        // real block of 3, multiplier 2
        const V x30r = io.re(30);
        const V x7r = io.re(7);
        const V t75 = x30r + x7r;
        const V t76 = x30r - x7r;
        const V x24r = io.re(24);
        const V t77 = t75 + x24r;
        const V t78 = c[4] * t75;
        const V t79 = c[5] * t76;
        // real block of 3, multiplier 2
        const V x51r = io.re(51);
        const V x18r = io.re(18);
        const V t80 = x51r + x18r;
        const V t81 = x51r - x18r;
        const V x53r = io.re(53);
        const V t82 = t80 + x53r;
        const V t83 = c[4] * t80;
        const V t84 = c[5] * t81;
        // real block of 3, multiplier 2
        const V x44r = io.re(44);
        const V x55r = io.re(55);
        const V t85 = x44r + x55r;
        const V t86 = x44r - x55r;
        const V x23r = io.re(23);
        const V t87 = t85 + x23r;
        const V t88 = c[4] * t85;
        const V t89 = c[5] * t86;
        // real block of 3, multiplier 2
        const V x32r = io.re(32);
        const V x40r = io.re(40);
        const V t90 = x32r + x40r;
        const V t91 = x32r - x40r;
        const V x50r = io.re(50);
        const V t92 = t90 + x50r;
        const V t93 = c[4] * t90;
        const V t94 = x50r - t93;
        const V t95 = c[5] * t91;
        // complex block of 5, multiplier 2
        const V t96 = t89 + t84;
        const V t97 = c[0] * t96;
        const V t98 = c[1] * t96;
        const V t99 = t74 + t79;
        const V t100 = c[1] * t99;
        const V t101 = t96 + t99;
        const V t102 = t97 - t100;
        const V t103 = t95 - t98;
        const V t104 = c[0] * t99;
        // real block of 3, multiplier 2
        const V t105 = x23r - t88;
        // real block of 3, multiplier 2
        const V t106 = x53r - t83;
        // complex block of 5, multiplier 2
        const V t107 = t105 + t106;
        const V t108 = t105 - t106;
        const V t109 = c[0] * t107;
        const V t110 = c[2] * t108;
        const V t111 = c[1] * t107;
        const V t112 = c[3] * t108;
        // real block of 3, multiplier 2
        const V t113 = x24r - t78;
        // real block of 3, multiplier 2
        const V t114 = x33r - t73;
        // complex block of 5, multiplier 2
        const V t115 = t114 + t113;
        const V t116 = t114 - t113;
        const V t117 = c[1] * t115;
        const V t118 = c[3] * t116;
        const V t119 = c[0] * t115;
        const V t120 = c[2] * t116;
        // real block of 5, multiplier 2
        const V t121 = t87 + t82;
        const V t122 = t72 + t77;
        const V t123 = t121 + t122;
        const V t124 = c[1] * t121;
        const V t125 = c[0] * t122;
        const V t126 = c[0] * t121;
        const V t127 = c[1] * t122;
        const V t128 = t87 - t82;
        const V t129 = c[3] * t128;
        const V t130 = c[2] * t128;
        const V t131 = t72 - t77;
        const V t132 = c[2] * t131;
        const V t133 = c[3] * t131;
        // complex block of 5, multiplier 2
        const V t134 = t89 - t84;
        const V t135 = c[2] * t134;
        const V t136 = c[3] * t134;
        const V t137 = t74 - t79;
        const V t138 = c[3] * t137;
        const V t139 = c[2] * t137;
        // real block of 3, multiplier 2
        const V x19r = io.re(19);
        const V x39r = io.re(39);
        const V t140 = x19r + x39r;
        const V t141 = x19r - x39r;
        const V x3r = io.re(3);
        const V t142 = t140 + x3r;
        const V t143 = c[4] * t140;
        const V t144 = c[5] * t141;
        // real block of 3, multiplier 2
        const V x4r = io.re(4);
        const V x5r = io.re(5);
        const V t145 = x4r + x5r;
        const V t146 = x4r - x5r;
        const V x52r = io.re(52);
        const V t147 = t145 + x52r;
        const V t148 = c[4] * t145;
        const V t149 = c[5] * t146;
        // real block of 3, multiplier 2
        const V x14r = io.re(14);
        const V x48r = io.re(48);
        const V t150 = x14r + x48r;
        const V t151 = x14r - x48r;
        // real block of 3, multiplier 2
        const V x49r = io.re(49);
        const V x46r = io.re(46);
        const V t152 = x49r + x46r;
        const V t153 = x49r - x46r;
        const V x27r = io.re(27);
        const V t154 = t152 + x27r;
        const V t155 = c[4] * t152;
        const V t156 = c[5] * t153;
        // real block of 3, multiplier 2
        const V x36r = io.re(36);
        const V x45r = io.re(45);
        const V t157 = x36r + x45r;
        const V t158 = x36r - x45r;
        const V x41r = io.re(41);
        const V t159 = t157 + x41r;
        const V t160 = c[4] * t157;
        const V t161 = c[5] * t158;
        // real block of 3, multiplier 2
        const V x60r = io.re(60);
        const V t162 = t150 + x60r;
        const V t163 = c[4] * t150;
        const V t164 = x60r - t163;
        const V t165 = c[5] * t151;
        // complex block of 5, multiplier 2
        const V t166 = t149 + t156;
        const V t167 = c[0] * t166;
        const V t168 = c[1] * t166;
        const V t169 = t144 + t161;
        const V t170 = c[1] * t169;
        const V t171 = t166 + t169;
        const V t172 = t167 - t170;
        const V t173 = t165 - t168;
        const V t174 = c[0] * t169;
        // real block of 3, multiplier 2
        const V t175 = x52r - t148;
        // real block of 3, multiplier 2
        const V t176 = x27r - t155;
        // complex block of 5, multiplier 2
        const V t177 = t175 + t176;
        const V t178 = t175 - t176;
        const V t179 = c[0] * t177;
        const V t180 = c[2] * t178;
        const V t181 = c[1] * t177;
        const V t182 = c[3] * t178;
        // real block of 3, multiplier 2
        const V t183 = x41r - t160;
        // real block of 3, multiplier 2
        const V t184 = x3r - t143;
        // complex block of 5, multiplier 2
        const V t185 = t184 + t183;
        const V t186 = t184 - t183;
        const V t187 = c[1] * t185;
        const V t188 = c[3] * t186;
        const V t189 = c[0] * t185;
        const V t190 = c[2] * t186;
        // real block of 5, multiplier 2
        const V t191 = t147 + t154;
        const V t192 = t142 + t159;
        const V t193 = t191 + t192;
        const V t194 = c[1] * t191;
        const V t195 = c[0] * t192;
        const V t196 = c[0] * t191;
        const V t197 = c[1] * t192;
        const V t198 = t147 - t154;
        const V t199 = c[3] * t198;
        const V t200 = c[2] * t198;
        const V t201 = t142 - t159;
        const V t202 = c[2] * t201;
        const V t203 = c[3] * t201;
        // complex block of 5, multiplier 2
        const V t204 = t149 - t156;
        const V t205 = c[2] * t204;
        const V t206 = c[3] * t204;
        const V t207 = t144 - t161;
        const V t208 = c[3] * t207;
        const V t209 = c[2] * t207;
        // real block of 3, multiplier 2
        const V x17r = io.re(17);
        const V x6r = io.re(6);
        const V t210 = x17r + x6r;
        const V t211 = x17r - x6r;
        const V x38r = io.re(38);
        const V t212 = t210 + x38r;
        const V t213 = c[4] * t210;
        const V t214 = c[5] * t211;
        // real block of 3, multiplier 2
        const V x10r = io.re(10);
        const V x43r = io.re(43);
        const V t215 = x10r + x43r;
        const V t216 = x10r - x43r;
        const V x8r = io.re(8);
        const V t217 = t215 + x8r;
        const V t218 = c[4] * t215;
        const V t219 = c[5] * t216;
        // real block of 3, multiplier 2
        const V x29r = io.re(29);
        const V x21r = io.re(21);
        const V t220 = x29r + x21r;
        const V t221 = x29r - x21r;
        // real block of 3, multiplier 2
        const V x35r = io.re(35);
        const V x59r = io.re(59);
        const V t222 = x35r + x59r;
        const V t223 = x35r - x59r;
        const V x28r = io.re(28);
        const V t224 = t222 + x28r;
        const V t225 = c[4] * t222;
        const V t226 = c[5] * t223;
        // real block of 3, multiplier 2
        const V x31r = io.re(31);
        const V x54r = io.re(54);
        const V t227 = x31r + x54r;
        const V t228 = x31r - x54r;
        const V x37r = io.re(37);
        const V t229 = t227 + x37r;
        const V t230 = c[4] * t227;
        const V t231 = c[5] * t228;
        // real block of 3, multiplier 2
        const V x11r = io.re(11);
        const V t232 = t220 + x11r;
        const V t233 = c[4] * t220;
        const V t234 = x11r - t233;
        const V t235 = c[5] * t221;
        // complex block of 5, multiplier 2
        const V t236 = t214 + t219;
        const V t237 = c[0] * t236;
        const V t238 = c[1] * t236;
        const V t239 = t226 + t231;
        const V t240 = c[1] * t239;
        const V t241 = t236 + t239;
        const V t242 = t237 - t240;
        const V t243 = t235 - t238;
        const V t244 = c[0] * t239;
        // real block of 3, multiplier 2
        const V t245 = x38r - t213;
        // real block of 3, multiplier 2
        const V t246 = x8r - t218;
        // complex block of 5, multiplier 2
        const V t247 = t245 + t246;
        const V t248 = t245 - t246;
        const V t249 = c[0] * t247;
        const V t250 = c[2] * t248;
        const V t251 = c[1] * t247;
        const V t252 = c[3] * t248;
        // real block of 3, multiplier 2
        const V t253 = x37r - t230;
        // real block of 3, multiplier 2
        const V t254 = x28r - t225;
        // complex block of 5, multiplier 2
        const V t255 = t254 + t253;
        const V t256 = t254 - t253;
        const V t257 = c[1] * t255;
        const V t258 = c[3] * t256;
        const V t259 = c[0] * t255;
        const V t260 = c[2] * t256;
        // real block of 5, multiplier 2
        const V t261 = t212 + t217;
        const V t262 = t224 + t229;
        const V t263 = t261 + t262;
        const V t264 = c[1] * t261;
        const V t265 = c[0] * t262;
        const V t266 = c[0] * t261;
        const V t267 = c[1] * t262;
        const V t268 = t212 - t217;
        const V t269 = c[3] * t268;
        const V t270 = c[2] * t268;
        const V t271 = t224 - t229;
        const V t272 = c[2] * t271;
        const V t273 = c[3] * t271;
        // complex block of 5, multiplier 2
        const V t274 = t214 - t219;
        const V t275 = c[2] * t274;
        const V t276 = c[3] * t274;
        const V t277 = t226 - t231;
        const V t278 = c[3] * t277;
        const V t279 = c[2] * t277;
        // real block of 5, multiplier 2
        const V t280 = t53 + t22;
        // real block of 5, multiplier 2
        const V t281 = t193 + t162;
        // real block of 2
        const V t282 = t280 + t281;
        const V t283 = t280 - t281;
        // real block of 5, multiplier 2
        const V t284 = t263 + t232;
        // real block of 5, multiplier 2
        const V t285 = t123 + t92;
        // real block of 2
        const V t286 = t284 + t285;
        const V t287 = t284 - t285;
        // real block of 2
        const V t288 = t282 + t286;
        // complex block of 61
        const V t289 = c[64] * t288;
        // real block of 2
        const V t290 = t282 - t286;
        // complex block of 61
        const V t291 = c[6] * t287;
        const V t292 = c[7] * t283;
        const V t293 = c[6] * t283;
        const V t294 = c[7] * t287;
        // real block of 5, multiplier 2
        const V t295 = t22 - t54;
        const V t296 = t295 + t55;
        // real block of 5, multiplier 2
        const V t297 = t162 - t194;
        const V t298 = t297 + t195;
        // complex block of 2
        const V t299 = t296 + t298;
        const V t300 = t296 - t298;
        // real block of 5, multiplier 2
        const V t301 = t59 + t62;
        // real block of 5, multiplier 2
        const V t302 = t199 + t202;
        // complex block of 2
        const V t303 = t301 + t302;
        const V t304 = t302 - t301;
        // real block of 5, multiplier 2
        const V t305 = t232 - t264;
        const V t306 = t305 + t265;
        // real block of 5, multiplier 2
        const V t307 = t92 - t124;
        const V t308 = t307 + t125;
        // complex block of 2
        const V t309 = t306 + t308;
        const V t310 = t306 - t308;
        // real block of 5, multiplier 2
        const V t311 = t269 + t272;
        // real block of 5, multiplier 2
        const V t312 = t129 + t132;
        // complex block of 2
        const V t313 = t311 + t312;
        const V t314 = t312 - t311;
        // complex block of 2
        const V t315 = t299 + t309;
        // complex block of 61
        const V t316 = c[8] * t315;
        // complex block of 2
        const V t317 = t303 + t313;
        // complex block of 61
        const V t318 = c[9] * t317;
        const V t319 = c[8] * t317;
        // complex block of 2
        const V t320 = t299 - t309;
        // complex block of 61
        const V t321 = c[10] * t320;
        // complex block of 2
        const V t322 = t313 - t303;
        // complex block of 61
        const V t323 = c[11] * t322;
        const V t324 = c[10] * t322;
        // complex block of 2
        const V t325 = t300 - t314;
        // complex block of 61
        const V t326 = c[12] * t325;
        const V t327 = c[13] * t325;
        // complex block of 2
        const V t328 = t304 + t310;
        // complex block of 61
        const V t329 = c[13] * t328;
        const V t330 = c[12] * t328;
        // complex block of 2
        const V t331 = t300 + t314;
        // complex block of 61
        const V t332 = c[14] * t331;
        const V t333 = c[15] * t331;
        // complex block of 2
        const V t334 = t304 - t310;
        // complex block of 61
        const V t335 = c[15] * t334;
        const V t336 = c[14] * t334;
        // real block of 5, multiplier 2
        const V t337 = t56 - t57;
        const V t338 = t337 + t22;
        // real block of 5, multiplier 2
        const V t339 = t196 - t197;
        const V t340 = t339 + t162;
        // complex block of 2
        const V t341 = t338 + t340;
        const V t342 = t338 - t340;
        // real block of 5, multiplier 2
        const V t343 = t60 - t63;
        // real block of 5, multiplier 2
        const V t344 = t200 - t203;
        // complex block of 2
        const V t345 = t343 + t344;
        const V t346 = t343 - t344;
        // real block of 5, multiplier 2
        const V t347 = t266 - t267;
        const V t348 = t347 + t232;
        // real block of 5, multiplier 2
        const V t349 = t126 - t127;
        const V t350 = t349 + t92;
        // complex block of 2
        const V t351 = t348 + t350;
        const V t352 = t348 - t350;
        // real block of 5, multiplier 2
        const V t353 = t270 - t273;
        // real block of 5, multiplier 2
        const V t354 = t130 - t133;
        // complex block of 2
        const V t355 = t353 + t354;
        const V t356 = t353 - t354;
        // complex block of 2
        const V t357 = t341 + t351;
        // complex block of 61
        const V t358 = c[16] * t357;
        // complex block of 2
        const V t359 = t345 + t355;
        // complex block of 61
        const V t360 = c[17] * t359;
        const V t361 = c[16] * t359;
        // complex block of 2
        const V t362 = t341 - t351;
        // complex block of 61
        const V t363 = c[18] * t362;
        // complex block of 2
        const V t364 = t345 - t355;
        // complex block of 61
        const V t365 = c[19] * t364;
        const V t366 = c[18] * t364;
        // complex block of 2
        const V t367 = t342 - t356;
        // complex block of 61
        const V t368 = c[20] * t367;
        const V t369 = c[21] * t367;
        // complex block of 2
        const V t370 = t346 + t352;
        // complex block of 61
        const V t371 = c[21] * t370;
        const V t372 = c[20] * t370;
        // complex block of 2
        const V t373 = t342 + t356;
        // complex block of 61
        const V t374 = c[22] * t373;
        const V t375 = c[23] * t373;
        // complex block of 2
        const V t376 = t346 - t352;
        // complex block of 61
        const V t377 = c[23] * t376;
        const V t378 = c[22] * t376;
        // complex block of 5, multiplier 2
        const V t379 = t37 + t45;
        const V t380 = t379 + t24;
        // complex block of 5, multiplier 2
        const V t381 = t177 + t185;
        const V t382 = t381 + t164;
        // complex block of 2
        const V t383 = t380 + t382;
        const V t384 = t380 - t382;
        // complex block of 5, multiplier 2
        const V t385 = t31 + t25;
        // complex block of 5, multiplier 2
        const V t386 = t171 + t165;
        // complex block of 2
        const V t387 = t385 + t386;
        const V t388 = t385 - t386;
        // complex block of 5, multiplier 2
        const V t389 = t247 + t255;
        const V t390 = t389 + t234;
        // complex block of 5, multiplier 2
        const V t391 = t107 + t115;
        const V t392 = t391 + t94;
        // complex block of 2
        const V t393 = t390 + t392;
        const V t394 = t390 - t392;
        // complex block of 5, multiplier 2
        const V t395 = t241 + t235;
        // complex block of 5, multiplier 2
        const V t396 = t101 + t95;
        // complex block of 2
        const V t397 = t395 + t396;
        const V t398 = t395 - t396;
        // complex block of 2
        const V t399 = t383 + t393;
        // complex block of 61
        const V t400 = c[24] * t399;
        // complex block of 2
        const V t401 = t387 + t397;
        // complex block of 61
        const V t402 = c[25] * t401;
        const V t403 = c[24] * t401;
        // complex block of 2
        const V t404 = t383 - t393;
        // complex block of 61
        const V t405 = c[26] * t404;
        // complex block of 2
        const V t406 = t387 - t397;
        // complex block of 61
        const V t407 = c[27] * t406;
        const V t408 = c[26] * t406;
        // complex block of 2
        const V t409 = t384 - t398;
        // complex block of 61
        const V t410 = c[28] * t409;
        const V t411 = c[29] * t409;
        // complex block of 2
        const V t412 = t388 + t394;
        // complex block of 61
        const V t413 = c[29] * t412;
        const V t414 = c[28] * t412;
        // complex block of 2
        const V t415 = t384 + t398;
        // complex block of 61
        const V t416 = c[30] * t415;
        const V t417 = c[31] * t415;
        // complex block of 2
        const V t418 = t388 - t394;
        // complex block of 61
        const V t419 = c[31] * t418;
        const V t420 = c[30] * t418;
        // complex block of 5, multiplier 2
        const V t421 = t39 - t47;
        const V t422 = t421 + t24;
        const V t423 = t65 - t68;
        const V t424 = t422 + t423;
        const V t425 = t422 - t423;
        const V t426 = t32 + t25;
        const V t427 = t40 - t48;
        const V t428 = t426 - t427;
        const V t429 = t426 + t427;
        // complex block of 5, multiplier 2
        const V t430 = t172 + t165;
        const V t431 = t180 - t188;
        const V t432 = t430 - t431;
        const V t433 = t430 + t431;
        // complex block of 2
        const V t434 = t428 + t432;
        const V t435 = t432 - t428;
        // complex block of 2
        const V t436 = t429 + t433;
        const V t437 = t433 - t429;
        // complex block of 5, multiplier 2
        const V t438 = t249 - t257;
        const V t439 = t438 + t234;
        const V t440 = t275 - t278;
        const V t441 = t439 + t440;
        const V t442 = t439 - t440;
        const V t443 = t242 + t235;
        const V t444 = t250 - t258;
        const V t445 = t443 - t444;
        const V t446 = t443 + t444;
        // complex block of 5, multiplier 2
        const V t447 = t102 + t95;
        const V t448 = t110 - t118;
        const V t449 = t447 - t448;
        const V t450 = t447 + t448;
        // complex block of 2
        const V t451 = t445 + t449;
        const V t452 = t449 - t445;
        // complex block of 2
        const V t453 = t446 + t450;
        const V t454 = t450 - t446;
        // complex block of 5, multiplier 2
        const V t455 = t179 - t187;
        const V t456 = t455 + t164;
        const V t457 = t205 - t208;
        const V t458 = t456 + t457;
        const V t459 = t456 - t457;
        // complex block of 5, multiplier 2
        const V t460 = t109 - t117;
        const V t461 = t460 + t94;
        const V t462 = t135 - t138;
        const V t463 = t461 + t462;
        const V t464 = t461 - t462;
        // complex block of 2
        const V t465 = t424 + t458;
        // complex block of 2
        const V t466 = t441 + t463;
        // complex block of 2
        const V t467 = t465 + t466;
        const V t468 = t465 - t466;
        // complex block of 61
        const V t469 = c[32] * t467;
        const V t470 = c[33] * t468;
        // complex block of 2
        const V t471 = t424 - t458;
        // complex block of 2
        const V t472 = t471 - t452;
        const V t473 = t471 + t452;
        // complex block of 61
        const V t474 = c[34] * t473;
        const V t475 = c[35] * t473;
        const V t476 = c[36] * t472;
        const V t477 = c[37] * t472;
        // complex block of 2
        const V t478 = t441 - t463;
        // complex block of 2
        const V t479 = t435 + t478;
        const V t480 = t435 - t478;
        // complex block of 61
        const V t481 = c[35] * t480;
        const V t482 = c[34] * t480;
        const V t483 = c[37] * t479;
        const V t484 = c[36] * t479;
        // complex block of 2
        const V t485 = t434 + t451;
        // complex block of 61
        const V t486 = c[38] * t485;
        const V t487 = c[32] * t485;
        // complex block of 2
        const V t488 = t451 - t434;
        // complex block of 61
        const V t489 = c[39] * t488;
        const V t490 = c[33] * t488;
        // complex block of 2
        const V t491 = t425 + t459;
        // complex block of 2
        const V t492 = t442 + t464;
        // complex block of 2
        const V t493 = t491 + t492;
        const V t494 = t491 - t492;
        // complex block of 61
        const V t495 = c[40] * t494;
        const V t496 = c[41] * t493;
        // complex block of 2
        const V t497 = t425 - t459;
        // complex block of 2
        const V t498 = t497 - t454;
        const V t499 = t497 + t454;
        // complex block of 61
        const V t500 = c[42] * t499;
        const V t501 = c[43] * t499;
        const V t502 = c[44] * t498;
        const V t503 = c[45] * t498;
        // complex block of 2
        const V t504 = t442 - t464;
        // complex block of 2
        const V t505 = t437 + t504;
        const V t506 = t437 - t504;
        // complex block of 61
        const V t507 = c[43] * t506;
        const V t508 = c[42] * t506;
        const V t509 = c[45] * t505;
        const V t510 = c[44] * t505;
        // complex block of 2
        const V t511 = t436 + t453;
        // complex block of 61
        const V t512 = c[46] * t511;
        const V t513 = c[41] * t511;
        // complex block of 2
        const V t514 = t453 - t436;
        // complex block of 61
        const V t515 = c[47] * t514;
        const V t516 = c[40] * t514;
        // complex block of 5, multiplier 2
        const V t517 = t24 - t41;
        const V t518 = t517 + t49;
        const V t519 = t66 + t69;
        const V t520 = t518 + t519;
        const V t521 = t518 - t519;
        const V t522 = t33 + t34;
        const V t523 = t42 + t50;
        const V t524 = t522 - t523;
        const V t525 = t522 + t523;
        // complex block of 5, multiplier 2
        const V t526 = t173 + t174;
        const V t527 = t182 + t190;
        const V t528 = t526 - t527;
        const V t529 = t526 + t527;
        // complex block of 2
        const V t530 = t525 + t529;
        const V t531 = t525 - t529;
        // complex block of 2
        const V t532 = t524 + t528;
        const V t533 = t528 - t524;
        // complex block of 5, multiplier 2
        const V t534 = t234 - t251;
        const V t535 = t534 + t259;
        const V t536 = t276 + t279;
        const V t537 = t535 + t536;
        const V t538 = t535 - t536;
        const V t539 = t243 + t244;
        const V t540 = t252 + t260;
        const V t541 = t539 - t540;
        const V t542 = t539 + t540;
        // complex block of 5, multiplier 2
        const V t543 = t103 + t104;
        const V t544 = t112 + t120;
        const V t545 = t543 - t544;
        const V t546 = t543 + t544;
        // complex block of 2
        const V t547 = t542 + t546;
        const V t548 = t542 - t546;
        // complex block of 2
        const V t549 = t541 + t545;
        const V t550 = t545 - t541;
        // complex block of 5, multiplier 2
        const V t551 = t164 - t181;
        const V t552 = t551 + t189;
        const V t553 = t206 + t209;
        const V t554 = t552 + t553;
        const V t555 = t552 - t553;
        // complex block of 5, multiplier 2
        const V t556 = t94 - t111;
        const V t557 = t556 + t119;
        const V t558 = t136 + t139;
        const V t559 = t557 + t558;
        const V t560 = t557 - t558;
        // complex block of 2
        const V t561 = t521 + t555;
        // complex block of 2
        const V t562 = t538 + t560;
        // complex block of 2
        const V t563 = t561 + t562;
        const V t564 = t561 - t562;
        // complex block of 61
        const V t565 = c[48] * t563;
        const V t566 = c[49] * t564;
        // complex block of 2
        const V t567 = t521 - t555;
        // complex block of 2
        const V t568 = t567 - t548;
        const V t569 = t567 + t548;
        // complex block of 61
        const V t570 = c[50] * t569;
        const V t571 = c[51] * t569;
        const V t572 = c[52] * t568;
        const V t573 = c[53] * t568;
        // complex block of 2
        const V t574 = t538 - t560;
        // complex block of 2
        const V t575 = t531 + t574;
        const V t576 = t531 - t574;
        // complex block of 61
        const V t577 = c[51] * t576;
        const V t578 = c[50] * t576;
        const V t579 = c[53] * t575;
        const V t580 = c[52] * t575;
        // complex block of 2
        const V t581 = t530 + t547;
        // complex block of 61
        const V t582 = c[54] * t581;
        const V t583 = c[48] * t581;
        // complex block of 2
        const V t584 = t530 - t547;
        // complex block of 61
        const V t585 = c[55] * t584;
        const V t586 = c[49] * t584;
        // complex block of 2
        const V t587 = t520 + t554;
        // complex block of 2
        const V t588 = t537 + t559;
        // complex block of 2
        const V t589 = t587 + t588;
        const V t590 = t587 - t588;
        // complex block of 61
        const V t591 = c[56] * t590;
        const V t592 = c[57] * t589;
        // complex block of 2
        const V t593 = t520 - t554;
        // complex block of 2
        const V t594 = t593 - t550;
        const V t595 = t593 + t550;
        // complex block of 61
        const V t596 = c[58] * t595;
        const V t597 = c[59] * t595;
        const V t598 = c[60] * t594;
        const V t599 = c[61] * t594;
        // complex block of 2
        const V t600 = t537 - t559;
        // complex block of 2
        const V t601 = t533 + t600;
        const V t602 = t533 - t600;
        // complex block of 61
        const V t603 = c[59] * t602;
        const V t604 = c[58] * t602;
        const V t605 = c[61] * t601;
        const V t606 = c[60] * t601;
        // complex block of 2
        const V t607 = t532 + t549;
        // complex block of 61
        const V t608 = c[62] * t607;
        const V t609 = c[57] * t607;
        // complex block of 2
        const V t610 = t549 - t532;
        // complex block of 61
        const V t611 = c[63] * t610;
        const V t612 = c[56] * t610;
        // real block of 3, multiplier 2
        const V x57i = io.im(57);
        const V x56i = io.im(56);
        const V t613 = x57i + x56i;
        const V t614 = x57i - x56i;
        const V x9i = io.im(9);
        const V t615 = t613 + x9i;
        const V t616 = c[4] * t613;
        const V t617 = c[5] * t614;
        // real block of 3, multiplier 2
        const V x12i = io.im(12);
        const V x15i = io.im(15);
        const V t618 = x12i + x15i;
        const V t619 = x12i - x15i;
        const V x34i = io.im(34);
        const V t620 = t618 + x34i;
        const V t621 = c[4] * t618;
        const V t622 = c[5] * t619;
        // real block of 3, multiplier 2
        const V x47i = io.im(47);
        const V x13i = io.im(13);
        const V t623 = x47i + x13i;
        const V t624 = x47i - x13i;
        // real block of 3, multiplier 2
        const V x25i = io.im(25);
        const V x16i = io.im(16);
        const V t625 = x25i + x16i;
        const V t626 = x25i - x16i;
        const V x20i = io.im(20);
        const V t627 = t625 + x20i;
        const V t628 = c[4] * t625;
        const V t629 = c[5] * t626;
        // real block of 3, multiplier 2
        const V x42i = io.im(42);
        const V x22i = io.im(22);
        const V t630 = x42i + x22i;
        const V t631 = x42i - x22i;
        const V x58i = io.im(58);
        const V t632 = t630 + x58i;
        const V t633 = c[4] * t630;
        const V t634 = c[5] * t631;
        // real block of 3, multiplier 2
        const V x1i = io.im(1);
        const V t635 = t623 + x1i;
        const V t636 = c[4] * t623;
        const V t637 = x1i - t636;
        const V t638 = c[5] * t624;
        // complex block of 5, multiplier 2
        const V t639 = t617 + t622;
        const V t640 = c[0] * t639;
        const V t641 = c[1] * t639;
        const V t642 = t634 + t629;
        const V t643 = c[1] * t642;
        const V t644 = t639 + t642;
        const V t645 = t640 - t643;
        const V t646 = t638 - t641;
        const V t647 = c[0] * t642;
        // real block of 3, multiplier 2
        const V t648 = x9i - t616;
        // real block of 3, multiplier 2
        const V t649 = x34i - t621;
        // complex block of 5, multiplier 2
        const V t650 = t648 + t649;
        const V t651 = t648 - t649;
        const V t652 = c[0] * t650;
        const V t653 = c[2] * t651;
        const V t654 = c[1] * t650;
        const V t655 = c[3] * t651;
        // real block of 3, multiplier 2
        const V t656 = x20i - t628;
        // real block of 3, multiplier 2
        const V t657 = x58i - t633;
        // complex block of 5, multiplier 2
        const V t658 = t657 + t656;
        const V t659 = t657 - t656;
        const V t660 = c[1] * t658;
        const V t661 = c[3] * t659;
        const V t662 = c[0] * t658;
        const V t663 = c[2] * t659;
        // real block of 5, multiplier 2
        const V t664 = t615 + t620;
        const V t665 = t632 + t627;
        const V t666 = t664 + t665;
        const V t667 = c[1] * t664;
        const V t668 = c[0] * t665;
        const V t669 = c[0] * t664;
        const V t670 = c[1] * t665;
        const V t671 = t615 - t620;
        const V t672 = c[3] * t671;
        const V t673 = c[2] * t671;
        const V t674 = t632 - t627;
        const V t675 = c[2] * t674;
        const V t676 = c[3] * t674;
        // complex block of 5, multiplier 2
        const V t677 = t617 - t622;
        const V t678 = c[2] * t677;
        const V t679 = c[3] * t677;
        const V t680 = t634 - t629;
        const V t681 = c[3] * t680;
        const V t682 = c[2] * t680;
        // real block of 3, multiplier 2
        const V x26i = io.im(26);
        const V x2i = io.im(2);
        const V t683 = x26i + x2i;
        const V t684 = x26i - x2i;
        const V x33i = io.im(33);
        const V t685 = t683 + x33i;
        const V t686 = c[4] * t683;
        const V t687 = c[5] * t684;
        // real block of 3, multiplier 2
        const V x30i = io.im(30);
        const V x7i = io.im(7);
        const V t688 = x30i + x7i;
        const V t689 = x30i - x7i;
        const V x24i = io.im(24);
        const V t690 = t688 + x24i;
        const V t691 = c[4] * t688;
        const V t692 = c[5] * t689;
        // real block of 3, multiplier 2
        const V x51i = io.im(51);
        const V x18i = io.im(18);
        const V t693 = x51i + x18i;
        const V t694 = x51i - x18i;
        const V x53i = io.im(53);
        const V t695 = t693 + x53i;
        const V t696 = c[4] * t693;
        const V t697 = c[5] * t694;
        // real block of 3, multiplier 2
        const V x44i = io.im(44);
        const V x55i = io.im(55);
        const V t698 = x44i + x55i;
        const V t699 = x44i - x55i;
        const V x23i = io.im(23);
        const V t700 = t698 + x23i;
        const V t701 = c[4] * t698;
        const V t702 = c[5] * t699;
        // real block of 3, multiplier 2
        const V x32i = io.im(32);
        const V x40i = io.im(40);
        const V t703 = x32i + x40i;
        const V t704 = x32i - x40i;
        const V x50i = io.im(50);
        const V t705 = t703 + x50i;
        const V t706 = c[4] * t703;
        const V t707 = x50i - t706;
        const V t708 = c[5] * t704;
        // complex block of 5, multiplier 2
        const V t709 = t702 + t697;
        const V t710 = c[0] * t709;
        const V t711 = c[1] * t709;
        const V t712 = t687 + t692;
        const V t713 = c[1] * t712;
        const V t714 = t709 + t712;
        const V t715 = t710 - t713;
        const V t716 = t708 - t711;
        const V t717 = c[0] * t712;
        // real block of 3, multiplier 2
        const V t718 = x23i - t701;
        // real block of 3, multiplier 2
        const V t719 = x53i - t696;
        // complex block of 5, multiplier 2
        const V t720 = t718 + t719;
        const V t721 = t718 - t719;
        const V t722 = c[0] * t720;
        const V t723 = c[2] * t721;
        const V t724 = c[1] * t720;
        const V t725 = c[3] * t721;
        // real block of 3, multiplier 2
        const V t726 = x24i - t691;
        // real block of 3, multiplier 2
        const V t727 = x33i - t686;
        // complex block of 5, multiplier 2
        const V t728 = t727 + t726;
        const V t729 = t727 - t726;
        const V t730 = c[1] * t728;
        const V t731 = c[3] * t729;
        const V t732 = c[0] * t728;
        const V t733 = c[2] * t729;
        // real block of 5, multiplier 2
        const V t734 = t700 + t695;
        const V t735 = t685 + t690;
        const V t736 = t734 + t735;
        const V t737 = c[1] * t734;
        const V t738 = c[0] * t735;
        const V t739 = c[0] * t734;
        const V t740 = c[1] * t735;
        const V t741 = t700 - t695;
        const V t742 = c[3] * t741;
        const V t743 = c[2] * t741;
        const V t744 = t685 - t690;
        const V t745 = c[2] * t744;
        const V t746 = c[3] * t744;
        // complex block of 5, multiplier 2
        const V t747 = t702 - t697;
        const V t748 = c[2] * t747;
        const V t749 = c[3] * t747;
        const V t750 = t687 - t692;
        const V t751 = c[3] * t750;
        const V t752 = c[2] * t750;
        // real block of 3, multiplier 2
        const V x19i = io.im(19);
        const V x39i = io.im(39);
        const V t753 = x19i + x39i;
        const V t754 = x19i - x39i;
        const V x3i = io.im(3);
        const V t755 = t753 + x3i;
        const V t756 = c[4] * t753;
        const V t757 = c[5] * t754;
        // real block of 3, multiplier 2
        const V x4i = io.im(4);
        const V x5i = io.im(5);
        const V t758 = x4i + x5i;
        const V t759 = x4i - x5i;
        const V x52i = io.im(52);
        const V t760 = t758 + x52i;
        const V t761 = c[4] * t758;
        const V t762 = c[5] * t759;
        // real block of 3, multiplier 2
        const V x14i = io.im(14);
        const V x48i = io.im(48);
        const V t763 = x14i + x48i;
        const V t764 = x14i - x48i;
        // real block of 3, multiplier 2
        const V x49i = io.im(49);
        const V x46i = io.im(46);
        const V t765 = x49i + x46i;
        const V t766 = x49i - x46i;
        const V x27i = io.im(27);
        const V t767 = t765 + x27i;
        const V t768 = c[4] * t765;
        const V t769 = c[5] * t766;
        // real block of 3, multiplier 2
        const V x36i = io.im(36);
        const V x45i = io.im(45);
        const V t770 = x36i + x45i;
        const V t771 = x36i - x45i;
        const V x41i = io.im(41);
        const V t772 = t770 + x41i;
        const V t773 = c[4] * t770;
        const V t774 = c[5] * t771;
        // real block of 3, multiplier 2
        const V x60i = io.im(60);
        const V t775 = t763 + x60i;
        const V t776 = c[4] * t763;
        const V t777 = x60i - t776;
        const V t778 = c[5] * t764;
        // complex block of 5, multiplier 2
        const V t779 = t762 + t769;
        const V t780 = c[0] * t779;
        const V t781 = c[1] * t779;
        const V t782 = t757 + t774;
        const V t783 = c[1] * t782;
        const V t784 = t779 + t782;
        const V t785 = t780 - t783;
        const V t786 = t778 - t781;
        const V t787 = c[0] * t782;
        // real block of 3, multiplier 2
        const V t788 = x52i - t761;
        // real block of 3, multiplier 2
        const V t789 = x27i - t768;
        // complex block of 5, multiplier 2
        const V t790 = t788 + t789;
        const V t791 = t788 - t789;
        const V t792 = c[0] * t790;
        const V t793 = c[2] * t791;
        const V t794 = c[1] * t790;
        const V t795 = c[3] * t791;
        // real block of 3, multiplier 2
        const V t796 = x41i - t773;
        // real block of 3, multiplier 2
        const V t797 = x3i - t756;
        // complex block of 5, multiplier 2
        const V t798 = t797 + t796;
        const V t799 = t797 - t796;
        const V t800 = c[1] * t798;
        const V t801 = c[3] * t799;
        const V t802 = c[0] * t798;
        const V t803 = c[2] * t799;
        // real block of 5, multiplier 2
        const V t804 = t760 + t767;
        const V t805 = t755 + t772;
        const V t806 = t804 + t805;
        const V t807 = c[1] * t804;
        const V t808 = c[0] * t805;
        const V t809 = c[0] * t804;
        const V t810 = c[1] * t805;
        const V t811 = t760 - t767;
        const V t812 = c[3] * t811;
        const V t813 = c[2] * t811;
        const V t814 = t755 - t772;
        const V t815 = c[2] * t814;
        const V t816 = c[3] * t814;
        // complex block of 5, multiplier 2
        const V t817 = t762 - t769;
        const V t818 = c[2] * t817;
        const V t819 = c[3] * t817;
        const V t820 = t757 - t774;
        const V t821 = c[3] * t820;
        const V t822 = c[2] * t820;
        // real block of 3, multiplier 2
        const V x17i = io.im(17);
        const V x6i = io.im(6);
        const V t823 = x17i + x6i;
        const V t824 = x17i - x6i;
        const V x38i = io.im(38);
        const V t825 = t823 + x38i;
        const V t826 = c[4] * t823;
        const V t827 = c[5] * t824;
        // real block of 3, multiplier 2
        const V x10i = io.im(10);
        const V x43i = io.im(43);
        const V t828 = x10i + x43i;
        const V t829 = x10i - x43i;
        const V x8i = io.im(8);
        const V t830 = t828 + x8i;
        const V t831 = c[4] * t828;
        const V t832 = c[5] * t829;
        // real block of 3, multiplier 2
        const V x29i = io.im(29);
        const V x21i = io.im(21);
        const V t833 = x29i + x21i;
        const V t834 = x29i - x21i;
        // real block of 3, multiplier 2
        const V x35i = io.im(35);
        const V x59i = io.im(59);
        const V t835 = x35i + x59i;
        const V t836 = x35i - x59i;
        const V x28i = io.im(28);
        const V t837 = t835 + x28i;
        const V t838 = c[4] * t835;
        const V t839 = c[5] * t836;
        // real block of 3, multiplier 2
        const V x31i = io.im(31);
        const V x54i = io.im(54);
        const V t840 = x31i + x54i;
        const V t841 = x31i - x54i;
        const V x37i = io.im(37);
        const V t842 = t840 + x37i;
        const V t843 = c[4] * t840;
        const V t844 = c[5] * t841;
        // real block of 3, multiplier 2
        const V x11i = io.im(11);
        const V t845 = t833 + x11i;
        const V t846 = c[4] * t833;
        const V t847 = x11i - t846;
        const V t848 = c[5] * t834;
        // complex block of 5, multiplier 2
        const V t849 = t827 + t832;
        const V t850 = c[0] * t849;
        const V t851 = c[1] * t849;
        const V t852 = t839 + t844;
        const V t853 = c[1] * t852;
        const V t854 = t849 + t852;
        const V t855 = t850 - t853;
        const V t856 = t848 - t851;
        const V t857 = c[0] * t852;
        // real block of 3, multiplier 2
        const V t858 = x38i - t826;
        // real block of 3, multiplier 2
        const V t859 = x8i - t831;
        // complex block of 5, multiplier 2
        const V t860 = t858 + t859;
        const V t861 = t858 - t859;
        const V t862 = c[0] * t860;
        const V t863 = c[2] * t861;
        const V t864 = c[1] * t860;
        const V t865 = c[3] * t861;
        // real block of 3, multiplier 2
        const V t866 = x37i - t843;
        // real block of 3, multiplier 2
        const V t867 = x28i - t838;
        // complex block of 5, multiplier 2
        const V t868 = t867 + t866;
        const V t869 = t867 - t866;
        const V t870 = c[1] * t868;
        const V t871 = c[3] * t869;
        const V t872 = c[0] * t868;
        const V t873 = c[2] * t869;
        // real block of 5, multiplier 2
        const V t874 = t825 + t830;
        const V t875 = t837 + t842;
        const V t876 = t874 + t875;
        const V t877 = c[1] * t874;
        const V t878 = c[0] * t875;
        const V t879 = c[0] * t874;
        const V t880 = c[1] * t875;
        const V t881 = t825 - t830;
        const V t882 = c[3] * t881;
        const V t883 = c[2] * t881;
        const V t884 = t837 - t842;
        const V t885 = c[2] * t884;
        const V t886 = c[3] * t884;
        // complex block of 5, multiplier 2
        const V t887 = t827 - t832;
        const V t888 = c[2] * t887;
        const V t889 = c[3] * t887;
        const V t890 = t839 - t844;
        const V t891 = c[3] * t890;
        const V t892 = c[2] * t890;
        // real block of 5, multiplier 2
        const V t893 = t666 + t635;
        // real block of 5, multiplier 2
        const V t894 = t806 + t775;
        // real block of 2
        const V t895 = t893 + t894;
        const V t896 = t893 - t894;
        // real block of 5, multiplier 2
        const V t897 = t876 + t845;
        // real block of 5, multiplier 2
        const V t898 = t736 + t705;
        // real block of 2
        const V t899 = t897 + t898;
        const V t900 = t897 - t898;
        // real block of 2
        const V t901 = t895 + t899;
        // complex block of 61
        const V t902 = c[64] * t901;
        // real block of 2
        const V t903 = t895 - t899;
        // complex block of 61
        const V t904 = c[6] * t900;
        const V t905 = c[7] * t896;
        const V t906 = c[6] * t896;
        const V t907 = c[7] * t900;
        // real block of 5, multiplier 2
        const V t908 = t635 - t667;
        const V t909 = t908 + t668;
        // real block of 5, multiplier 2
        const V t910 = t775 - t807;
        const V t911 = t910 + t808;
        // complex block of 2
        const V t912 = t909 + t911;
        const V t913 = t909 - t911;
        // real block of 5, multiplier 2
        const V t914 = t672 + t675;
        // real block of 5, multiplier 2
        const V t915 = t812 + t815;
        // complex block of 2
        const V t916 = t914 + t915;
        const V t917 = t915 - t914;
        // real block of 5, multiplier 2
        const V t918 = t845 - t877;
        const V t919 = t918 + t878;
        // real block of 5, multiplier 2
        const V t920 = t705 - t737;
        const V t921 = t920 + t738;
        // complex block of 2
        const V t922 = t919 + t921;
        const V t923 = t919 - t921;
        // real block of 5, multiplier 2
        const V t924 = t882 + t885;
        // real block of 5, multiplier 2
        const V t925 = t742 + t745;
        // complex block of 2
        const V t926 = t924 + t925;
        const V t927 = t925 - t924;
        // complex block of 2
        const V t928 = t912 + t922;
        // complex block of 61
        const V t929 = c[8] * t928;
        // complex block of 2
        const V t930 = t916 + t926;
        // complex block of 61
        const V t931 = c[9] * t930;
        const V t932 = c[8] * t930;
        // complex block of 2
        const V t933 = t912 - t922;
        // complex block of 61
        const V t934 = c[10] * t933;
        // complex block of 2
        const V t935 = t926 - t916;
        // complex block of 61
        const V t936 = c[11] * t935;
        const V t937 = c[10] * t935;
        // complex block of 2
        const V t938 = t913 - t927;
        // complex block of 61
        const V t939 = c[12] * t938;
        const V t940 = c[13] * t938;
        // complex block of 2
        const V t941 = t917 + t923;
        // complex block of 61
        const V t942 = c[13] * t941;
        const V t943 = c[12] * t941;
        // complex block of 2
        const V t944 = t913 + t927;
        // complex block of 61
        const V t945 = c[14] * t944;
        const V t946 = c[15] * t944;
        // complex block of 2
        const V t947 = t917 - t923;
        // complex block of 61
        const V t948 = c[15] * t947;
        const V t949 = c[14] * t947;
        // real block of 5, multiplier 2
        const V t950 = t669 - t670;
        const V t951 = t950 + t635;
        // real block of 5, multiplier 2
        const V t952 = t809 - t810;
        const V t953 = t952 + t775;
        // complex block of 2
        const V t954 = t951 + t953;
        const V t955 = t951 - t953;
        // real block of 5, multiplier 2
        const V t956 = t673 - t676;
        // real block of 5, multiplier 2
        const V t957 = t813 - t816;
        // complex block of 2
        const V t958 = t956 + t957;
        const V t959 = t956 - t957;
        // real block of 5, multiplier 2
        const V t960 = t879 - t880;
        const V t961 = t960 + t845;
        // real block of 5, multiplier 2
        const V t962 = t739 - t740;
        const V t963 = t962 + t705;
        // complex block of 2
        const V t964 = t961 + t963;
        const V t965 = t961 - t963;
        // real block of 5, multiplier 2
        const V t966 = t883 - t886;
        // real block of 5, multiplier 2
        const V t967 = t743 - t746;
        // complex block of 2
        const V t968 = t966 + t967;
        const V t969 = t966 - t967;
        // complex block of 2
        const V t970 = t954 + t964;
        // complex block of 61
        const V t971 = c[16] * t970;
        // complex block of 2
        const V t972 = t958 + t968;
        // complex block of 61
        const V t973 = c[17] * t972;
        const V t974 = c[16] * t972;
        // complex block of 2
        const V t975 = t954 - t964;
        // complex block of 61
        const V t976 = c[18] * t975;
        // complex block of 2
        const V t977 = t958 - t968;
        // complex block of 61
        const V t978 = c[19] * t977;
        const V t979 = c[18] * t977;
        // complex block of 2
        const V t980 = t955 - t969;
        // complex block of 61
        const V t981 = c[20] * t980;
        const V t982 = c[21] * t980;
        // complex block of 2
        const V t983 = t959 + t965;
        // complex block of 61
        const V t984 = c[21] * t983;
        const V t985 = c[20] * t983;
        // complex block of 2
        const V t986 = t955 + t969;
        // complex block of 61
        const V t987 = c[22] * t986;
        const V t988 = c[23] * t986;
        // complex block of 2
        const V t989 = t959 - t965;
        // complex block of 61
        const V t990 = c[23] * t989;
        const V t991 = c[22] * t989;
        // complex block of 5, multiplier 2
        const V t992 = t650 + t658;
        const V t993 = t992 + t637;
        // complex block of 5, multiplier 2
        const V t994 = t790 + t798;
        const V t995 = t994 + t777;
        // complex block of 2
        const V t996 = t993 + t995;
        const V t997 = t993 - t995;
        // complex block of 5, multiplier 2
        const V t998 = t644 + t638;
        // complex block of 5, multiplier 2
        const V t999 = t784 + t778;
        // complex block of 2
        const V t1000 = t998 + t999;
        const V t1001 = t998 - t999;
        // complex block of 5, multiplier 2
        const V t1002 = t860 + t868;
        const V t1003 = t1002 + t847;
        // complex block of 5, multiplier 2
        const V t1004 = t720 + t728;
        const V t1005 = t1004 + t707;
        // complex block of 2
        const V t1006 = t1003 + t1005;
        const V t1007 = t1003 - t1005;
        // complex block of 5, multiplier 2
        const V t1008 = t854 + t848;
        // complex block of 5, multiplier 2
        const V t1009 = t714 + t708;
        // complex block of 2
        const V t1010 = t1008 + t1009;
        const V t1011 = t1008 - t1009;
        // complex block of 2
        const V t1012 = t996 + t1006;
        // complex block of 61
        const V t1013 = c[24] * t1012;
        // complex block of 2
        const V t1014 = t1000 + t1010;
        // complex block of 61
        const V t1015 = c[25] * t1014;
        const V t1016 = c[24] * t1014;
        // complex block of 2
        const V t1017 = t996 - t1006;
        // complex block of 61
        const V t1018 = c[26] * t1017;
        // complex block of 2
        const V t1019 = t1000 - t1010;
        // complex block of 61
        const V t1020 = c[27] * t1019;
        const V t1021 = c[26] * t1019;
        // complex block of 2
        const V t1022 = t997 - t1011;
        // complex block of 61
        const V t1023 = c[28] * t1022;
        const V t1024 = c[29] * t1022;
        // complex block of 2
        const V t1025 = t1001 + t1007;
        // complex block of 61
        const V t1026 = c[29] * t1025;
        const V t1027 = c[28] * t1025;
        // complex block of 2
        const V t1028 = t997 + t1011;
        // complex block of 61
        const V t1029 = c[30] * t1028;
        const V t1030 = c[31] * t1028;
        // complex block of 2
        const V t1031 = t1001 - t1007;
        // complex block of 61
        const V t1032 = c[31] * t1031;
        const V t1033 = c[30] * t1031;
        // complex block of 5, multiplier 2
        const V t1034 = t652 - t660;
        const V t1035 = t1034 + t637;
        const V t1036 = t678 - t681;
        const V t1037 = t1035 + t1036;
        const V t1038 = t1035 - t1036;
        const V t1039 = t645 + t638;
        const V t1040 = t653 - t661;
        const V t1041 = t1039 - t1040;
        const V t1042 = t1039 + t1040;
        // complex block of 5, multiplier 2
        const V t1043 = t785 + t778;
        const V t1044 = t793 - t801;
        const V t1045 = t1043 - t1044;
        const V t1046 = t1043 + t1044;
        // complex block of 2
        const V t1047 = t1041 + t1045;
        const V t1048 = t1045 - t1041;
        // complex block of 2
        const V t1049 = t1042 + t1046;
        const V t1050 = t1046 - t1042;
        // complex block of 5, multiplier 2
        const V t1051 = t862 - t870;
        const V t1052 = t1051 + t847;
        const V t1053 = t888 - t891;
        const V t1054 = t1052 + t1053;
        const V t1055 = t1052 - t1053;
        const V t1056 = t855 + t848;
        const V t1057 = t863 - t871;
        const V t1058 = t1056 - t1057;
        const V t1059 = t1056 + t1057;
        // complex block of 5, multiplier 2
        const V t1060 = t715 + t708;
        const V t1061 = t723 - t731;
        const V t1062 = t1060 - t1061;
        const V t1063 = t1060 + t1061;
        // complex block of 2
        const V t1064 = t1058 + t1062;
        const V t1065 = t1062 - t1058;
        // complex block of 2
        const V t1066 = t1059 + t1063;
        const V t1067 = t1063 - t1059;
        // complex block of 5, multiplier 2
        const V t1068 = t792 - t800;
        const V t1069 = t1068 + t777;
        const V t1070 = t818 - t821;
        const V t1071 = t1069 + t1070;
        const V t1072 = t1069 - t1070;
        // complex block of 5, multiplier 2
        const V t1073 = t722 - t730;
        const V t1074 = t1073 + t707;
        const V t1075 = t748 - t751;
        const V t1076 = t1074 + t1075;
        const V t1077 = t1074 - t1075;
        // complex block of 2
        const V t1078 = t1037 + t1071;
        // complex block of 2
        const V t1079 = t1054 + t1076;
        // complex block of 2
        const V t1080 = t1078 + t1079;
        const V t1081 = t1078 - t1079;
        // complex block of 61
        const V t1082 = c[32] * t1080;
        const V t1083 = c[33] * t1081;
        // complex block of 2
        const V t1084 = t1037 - t1071;
        // complex block of 2
        const V t1085 = t1084 - t1065;
        const V t1086 = t1084 + t1065;
        // complex block of 61
        const V t1087 = c[34] * t1086;
        const V t1088 = c[35] * t1086;
        const V t1089 = c[36] * t1085;
        const V t1090 = c[37] * t1085;
        // complex block of 2
        const V t1091 = t1054 - t1076;
        // complex block of 2
        const V t1092 = t1048 + t1091;
        const V t1093 = t1048 - t1091;
        // complex block of 61
        const V t1094 = c[35] * t1093;
        const V t1095 = c[34] * t1093;
        const V t1096 = c[37] * t1092;
        const V t1097 = c[36] * t1092;
        // complex block of 2
        const V t1098 = t1047 + t1064;
        // complex block of 61
        const V t1099 = c[38] * t1098;
        const V t1100 = c[32] * t1098;
        // complex block of 2
        const V t1101 = t1064 - t1047;
        // complex block of 61
        const V t1102 = c[39] * t1101;
        const V t1103 = c[33] * t1101;
        // complex block of 2
        const V t1104 = t1038 + t1072;
        // complex block of 2
        const V t1105 = t1055 + t1077;
        // complex block of 2
        const V t1106 = t1104 + t1105;
        const V t1107 = t1104 - t1105;
        // complex block of 61
        const V t1108 = c[40] * t1107;
        const V t1109 = c[41] * t1106;
        // complex block of 2
        const V t1110 = t1038 - t1072;
        // complex block of 2
        const V t1111 = t1110 - t1067;
        const V t1112 = t1110 + t1067;
        // complex block of 61
        const V t1113 = c[42] * t1112;
        const V t1114 = c[43] * t1112;
        const V t1115 = c[44] * t1111;
        const V t1116 = c[45] * t1111;
        // complex block of 2
        const V t1117 = t1055 - t1077;
        // complex block of 2
        const V t1118 = t1050 + t1117;
        const V t1119 = t1050 - t1117;
        // complex block of 61
        const V t1120 = c[43] * t1119;
        const V t1121 = c[42] * t1119;
        const V t1122 = c[45] * t1118;
        const V t1123 = c[44] * t1118;
        // complex block of 2
        const V t1124 = t1049 + t1066;
        // complex block of 61
        const V t1125 = c[46] * t1124;
        const V t1126 = c[41] * t1124;
        // complex block of 2
        const V t1127 = t1066 - t1049;
        // complex block of 61
        const V t1128 = c[47] * t1127;
        const V t1129 = c[40] * t1127;
        // complex block of 5, multiplier 2
        const V t1130 = t637 - t654;
        const V t1131 = t1130 + t662;
        const V t1132 = t679 + t682;
        const V t1133 = t1131 + t1132;
        const V t1134 = t1131 - t1132;
        const V t1135 = t646 + t647;
        const V t1136 = t655 + t663;
        const V t1137 = t1135 - t1136;
        const V t1138 = t1135 + t1136;
        // complex block of 5, multiplier 2
        const V t1139 = t786 + t787;
        const V t1140 = t795 + t803;
        const V t1141 = t1139 - t1140;
        const V t1142 = t1139 + t1140;
        // complex block of 2
        const V t1143 = t1138 + t1142;
        const V t1144 = t1138 - t1142;
        // complex block of 2
        const V t1145 = t1137 + t1141;
        const V t1146 = t1141 - t1137;
        // complex block of 5, multiplier 2
        const V t1147 = t847 - t864;
        const V t1148 = t1147 + t872;
        const V t1149 = t889 + t892;
        const V t1150 = t1148 + t1149;
        const V t1151 = t1148 - t1149;
        const V t1152 = t856 + t857;
        const V t1153 = t865 + t873;
        const V t1154 = t1152 - t1153;
        const V t1155 = t1152 + t1153;
        // complex block of 5, multiplier 2
        const V t1156 = t716 + t717;
        const V t1157 = t725 + t733;
        const V t1158 = t1156 - t1157;
        const V t1159 = t1156 + t1157;
        // complex block of 2
        const V t1160 = t1155 + t1159;
        const V t1161 = t1155 - t1159;
        // complex block of 2
        const V t1162 = t1154 + t1158;
        const V t1163 = t1158 - t1154;
        // complex block of 5, multiplier 2
        const V t1164 = t777 - t794;
        const V t1165 = t1164 + t802;
        const V t1166 = t819 + t822;
        const V t1167 = t1165 + t1166;
        const V t1168 = t1165 - t1166;
        // complex block of 5, multiplier 2
        const V t1169 = t707 - t724;
        const V t1170 = t1169 + t732;
        const V t1171 = t749 + t752;
        const V t1172 = t1170 + t1171;
        const V t1173 = t1170 - t1171;
        // complex block of 2
        const V t1174 = t1134 + t1168;
        // complex block of 2
        const V t1175 = t1151 + t1173;
        // complex block of 2
        const V t1176 = t1174 + t1175;
        const V t1177 = t1174 - t1175;
        // complex block of 61
        const V t1178 = c[48] * t1176;
        const V t1179 = c[49] * t1177;
        // complex block of 2
        const V t1180 = t1134 - t1168;
        // complex block of 2
        const V t1181 = t1180 - t1161;
        const V t1182 = t1180 + t1161;
        // complex block of 61
        const V t1183 = c[50] * t1182;
        const V t1184 = c[51] * t1182;
        const V t1185 = c[52] * t1181;
        const V t1186 = c[53] * t1181;
        // complex block of 2
        const V t1187 = t1151 - t1173;
        // complex block of 2
        const V t1188 = t1144 + t1187;
        const V t1189 = t1144 - t1187;
        // complex block of 61
        const V t1190 = c[51] * t1189;
        const V t1191 = c[50] * t1189;
        const V t1192 = c[53] * t1188;
        const V t1193 = c[52] * t1188;
        // complex block of 2
        const V t1194 = t1143 + t1160;
        // complex block of 61
        const V t1195 = c[54] * t1194;
        const V t1196 = c[48] * t1194;
        // complex block of 2
        const V t1197 = t1143 - t1160;
        // complex block of 61
        const V t1198 = c[55] * t1197;
        const V t1199 = c[49] * t1197;
        // complex block of 2
        const V t1200 = t1133 + t1167;
        // complex block of 2
        const V t1201 = t1150 + t1172;
        // complex block of 2
        const V t1202 = t1200 + t1201;
        const V t1203 = t1200 - t1201;
        // complex block of 61
        const V t1204 = c[56] * t1203;
        const V t1205 = c[57] * t1202;
        // complex block of 2
        const V t1206 = t1133 - t1167;
        // complex block of 2
        const V t1207 = t1206 - t1163;
        const V t1208 = t1206 + t1163;
        // complex block of 61
        const V t1209 = c[58] * t1208;
        const V t1210 = c[59] * t1208;
        const V t1211 = c[60] * t1207;
        const V t1212 = c[61] * t1207;
        // complex block of 2
        const V t1213 = t1150 - t1172;
        // complex block of 2
        const V t1214 = t1146 + t1213;
        const V t1215 = t1146 - t1213;
        // complex block of 61
        const V t1216 = c[59] * t1215;
        const V t1217 = c[58] * t1215;
        const V t1218 = c[61] * t1214;
        const V t1219 = c[60] * t1214;
        // complex block of 2
        const V t1220 = t1145 + t1162;
        // complex block of 61
        const V t1221 = c[62] * t1220;
        const V t1222 = c[57] * t1220;
        // complex block of 2
        const V t1223 = t1162 - t1145;
        // complex block of 61
        const V t1224 = c[63] * t1223;
        const V t1225 = c[56] * t1223;
        const V x0r = io.re(0);
        const V t1226 = x0r + t288;
        const V x0i = io.im(0);
        io.re(0, t1226);
        const V t1227 = x0i + t901;
        io.im(0, t1227);
        const V t1228 = x0r - t289;
        const V t1229 = c[65] * t290;
        // spectrum block of 2
        const V t1230 = t1228 + t1229;
        const V t1231 = t1228 - t1229;
        // complex block of 61
        const V t1232 = t1029 - t1032;
        const V t1233 = t1023 + t1026;
        // complex block of 2
        const V t1234 = t1232 - t1233;
        // complex block of 61
        const V t1235 = t1033 + t1030;
        const V t1236 = t1027 - t1024;
        // complex block of 2
        const V t1237 = t1236 + t1235;
        // complex block of 61
        const V t1238 = t405 + t407;
        const V t1239 = t400 + t402;
        // complex block of 2
        const V t1240 = t1238 - t1239;
        const V t1241 = t1239 + t1238;
        // complex block of 2
        const V t1242 = t1235 - t1236;
        const V t1243 = t1233 + t1232;
        // complex block of 2
        const V t1244 = t1240 + t1234;
        const V t1245 = t1240 - t1234;
        // complex block of 2
        const V t1246 = t1241 + t1237;
        const V t1247 = t1237 - t1241;
        // complex block of 61
        const V t1248 = c[27] * t404;
        const V t1249 = t1248 - t408;
        const V t1250 = c[25] * t399;
        const V t1251 = t1250 - t403;
        // complex block of 2
        const V t1252 = t1251 - t1249;
        const V t1253 = t1251 + t1249;
        // complex block of 61
        const V t1254 = t905 + t904;
        const V t1255 = t907 - t906;
        // spectrum block of 2
        const V t1256 = t1230 + t1254;
        // spectrum block of 3, multiplier 2
        const V t1257 = c[4] * t1244;
        const V t1258 = t1244 + t1256;
        const V t1259 = t1256 - t1257;
        // spectrum block of 2
        const V t1260 = t1230 - t1254;
        // spectrum block of 3, multiplier 2
        const V t1261 = c[4] * t1245;
        const V t1262 = t1245 + t1260;
        const V t1263 = t1260 - t1261;
        // spectrum block of 2
        const V t1264 = t1231 + t1255;
        // spectrum block of 3, multiplier 2
        const V t1265 = c[4] * t1246;
        const V t1266 = t1264 - t1246;
        const V t1267 = t1265 + t1264;
        // spectrum block of 2
        const V t1268 = t1231 - t1255;
        // spectrum block of 3, multiplier 2
        const V t1269 = c[4] * t1247;
        const V t1270 = t1247 + t1268;
        const V t1271 = t1268 - t1269;
        // complex block of 2
        const V t1272 = t1252 + t1242;
        // spectrum block of 3, multiplier 2
        const V t1273 = c[5] * t1272;
        // complex block of 2
        const V t1274 = t1252 - t1242;
        // spectrum block of 3, multiplier 2
        const V t1275 = c[5] * t1274;
        // complex block of 2
        const V t1276 = t1253 + t1243;
        // spectrum block of 3, multiplier 2
        const V t1277 = c[5] * t1276;
        // complex block of 2
        const V t1278 = t1253 - t1243;
        // spectrum block of 3, multiplier 2
        const V t1279 = c[5] * t1278;
        // complex block of 61
        const V t1280 = t1113 - t1120;
        const V t1281 = t1115 + t1122;
        // complex block of 2
        const V t1282 = t1280 - t1281;
        // complex block of 61
        const V t1283 = t1121 + t1114;
        const V t1284 = t1123 - t1116;
        // complex block of 2
        const V t1285 = t1284 + t1283;
        // complex block of 61
        const V t1286 = t515 - t495;
        const V t1287 = t496 + t512;
        // complex block of 2
        const V t1288 = t1287 + t1286;
        const V t1289 = t1287 - t1286;
        // complex block of 2
        const V t1290 = t1283 - t1284;
        const V t1291 = t1281 + t1280;
        // complex block of 2
        const V t1292 = t1288 + t1282;
        const V t1293 = t1288 - t1282;
        // complex block of 2
        const V t1294 = t1289 - t1285;
        const V t1295 = t1289 + t1285;
        // complex block of 61
        const V t1296 = t486 - t469;
        const V t1297 = t489 - t470;
        // complex block of 2
        const V t1298 = t1296 + t1297;
        const V t1299 = t1296 - t1297;
        // complex block of 61
        const V t1300 = t1094 - t1087;
        const V t1301 = t1089 + t1096;
        // complex block of 2
        const V t1302 = t1301 + t1300;
        // complex block of 61
        const V t1303 = t1095 + t1088;
        const V t1304 = t1097 - t1090;
        // complex block of 2
        const V t1305 = t1304 + t1303;
        const V t1306 = t1304 - t1303;
        const V t1307 = t1301 - t1300;
        // complex block of 2
        const V t1308 = t1298 + t1302;
        const V t1309 = t1298 - t1302;
        // complex block of 2
        const V t1310 = t1299 + t1305;
        const V t1311 = t1299 - t1305;
        // complex block of 61
        const V t1312 = c[38] * t467;
        const V t1313 = t487 + t1312;
        const V t1314 = c[39] * t468;
        const V t1315 = t490 + t1314;
        // complex block of 2
        const V t1316 = t1313 - t1315;
        const V t1317 = t1313 + t1315;
        // complex block of 61
        const V t1318 = t363 + t365;
        const V t1319 = t358 + t360;
        // complex block of 2
        const V t1320 = t1319 + t1318;
        const V t1321 = t1319 - t1318;
        // complex block of 61
        const V t1322 = c[19] * t362;
        const V t1323 = t1322 - t366;
        const V t1324 = t987 + t990;
        const V t1325 = t984 - t981;
        // complex block of 2
        const V t1326 = t1325 - t1324;
        const V t1327 = t1325 + t1324;
        // complex block of 61
        const V t1328 = t988 - t991;
        const V t1329 = t985 + t982;
        // complex block of 2
        const V t1330 = t1328 - t1329;
        const V t1331 = t1329 + t1328;
        // complex block of 61
        const V t1332 = c[47] * t494;
        const V t1333 = t516 + t1332;
        const V t1334 = c[46] * t493;
        const V t1335 = t1334 - t513;
        // complex block of 2
        const V t1336 = t1335 - t1333;
        const V t1337 = t1335 + t1333;
        // complex block of 61
        const V t1338 = c[17] * t357;
        const V t1339 = t361 - t1338;
        // complex block of 2
        const V t1340 = t1316 + t1306;
        // complex block of 2
        const V t1341 = t1336 + t1290;
        // complex block of 3, multiplier 2
        const V t1342 = t1340 - t1341;
        const V t1343 = t1341 + t1340;
        const V t1344 = c[4] * t1342;
        const V t1345 = c[5] * t1343;
        // complex block of 2
        const V t1346 = t1316 - t1306;
        // complex block of 2
        const V t1347 = t1336 - t1290;
        // complex block of 3, multiplier 2
        const V t1348 = t1346 - t1347;
        const V t1349 = t1347 + t1346;
        const V t1350 = c[4] * t1348;
        const V t1351 = c[5] * t1349;
        // complex block of 2
        const V t1352 = t1317 - t1307;
        // complex block of 2
        const V t1353 = t1337 + t1291;
        // complex block of 3, multiplier 2
        const V t1354 = t1352 - t1353;
        const V t1355 = t1353 + t1352;
        const V t1356 = c[4] * t1354;
        const V t1357 = c[5] * t1355;
        // complex block of 2
        const V t1358 = t1317 + t1307;
        // complex block of 2
        const V t1359 = t1337 - t1291;
        // complex block of 3, multiplier 2
        const V t1360 = t1358 - t1359;
        const V t1361 = t1359 + t1358;
        const V t1362 = c[4] * t1360;
        const V t1363 = c[5] * t1361;
        // complex block of 2
        const V t1364 = t1339 - t1323;
        // complex block of 2
        const V t1365 = t1364 + t1330;
        const V t1366 = t1364 - t1330;
        // complex block of 2
        const V t1367 = t1339 + t1323;
        // complex block of 2
        const V t1368 = t1367 - t1327;
        const V t1369 = t1367 + t1327;
        // complex block of 2
        const V t1370 = t1320 + t1326;
        // complex block of 3, multiplier 2
        const V t1371 = t1292 + t1308;
        const V t1372 = c[4] * t1371;
        const V t1373 = t1371 + t1370;
        const V t1374 = t1370 - t1372;
        // complex block of 2
        const V t1375 = t1320 - t1326;
        // complex block of 3, multiplier 2
        const V t1376 = t1293 + t1309;
        const V t1377 = c[4] * t1376;
        const V t1378 = t1376 + t1375;
        const V t1379 = t1375 - t1377;
        // complex block of 2
        const V t1380 = t1321 - t1331;
        // complex block of 3, multiplier 2
        const V t1381 = t1294 + t1310;
        const V t1382 = c[4] * t1381;
        const V t1383 = t1381 + t1380;
        const V t1384 = t1380 - t1382;
        // complex block of 2
        const V t1385 = t1321 + t1331;
        // complex block of 3, multiplier 2
        const V t1386 = t1295 + t1311;
        const V t1387 = c[4] * t1386;
        const V t1388 = t1386 + t1385;
        const V t1389 = t1385 - t1387;
        // complex block of 3, multiplier 2
        const V t1390 = t1292 - t1308;
        const V t1391 = c[5] * t1390;
        // complex block of 3, multiplier 2
        const V t1392 = t1294 - t1310;
        const V t1393 = c[5] * t1392;
        // complex block of 3, multiplier 2
        const V t1394 = t1293 - t1309;
        const V t1395 = c[5] * t1394;
        // complex block of 3, multiplier 2
        const V t1396 = t1295 - t1311;
        const V t1397 = c[5] * t1396;
        // complex block of 61
        const V t1398 = t591 + t611;
        const V t1399 = t592 - t608;
        // complex block of 2
        const V t1400 = t1399 + t1398;
        const V t1401 = t1399 - t1398;
        // complex block of 61
        const V t1402 = t1209 + t1216;
        const V t1403 = t1218 - t1211;
        // complex block of 2
        const V t1404 = t1403 + t1402;
        // complex block of 61
        const V t1405 = t1217 - t1210;
        const V t1406 = t1219 + t1212;
        // complex block of 2
        const V t1407 = t1406 + t1405;
        const V t1408 = t1405 - t1406;
        const V t1409 = t1403 - t1402;
        // complex block of 2
        const V t1410 = t1400 + t1404;
        const V t1411 = t1400 - t1404;
        // complex block of 2
        const V t1412 = t1401 - t1407;
        const V t1413 = t1401 + t1407;
        // complex block of 61
        const V t1414 = c[63] * t590;
        const V t1415 = t1414 - t612;
        const V t1416 = c[62] * t589;
        const V t1417 = t609 + t1416;
        // complex block of 2
        const V t1418 = t1417 + t1415;
        const V t1419 = t1415 - t1417;
        // complex block of 61
        const V t1420 = t948 - t945;
        const V t1421 = t939 + t942;
        // complex block of 2
        const V t1422 = t1421 + t1420;
        const V t1423 = t1421 - t1420;
        // complex block of 61
        const V t1424 = t949 + t946;
        const V t1425 = t943 - t940;
        // complex block of 2
        const V t1426 = t1425 - t1424;
        const V t1427 = t1425 + t1424;
        // complex block of 61
        const V t1428 = t1183 + t1190;
        const V t1429 = t1185 + t1192;
        // complex block of 2
        const V t1430 = t1429 - t1428;
        // complex block of 61
        const V t1431 = t1191 - t1184;
        const V t1432 = t1193 - t1186;
        // complex block of 2
        const V t1433 = t1432 + t1431;
        // complex block of 61
        const V t1434 = t565 - t582;
        const V t1435 = t585 - t566;
        // complex block of 2
        const V t1436 = t1434 + t1435;
        const V t1437 = t1434 - t1435;
        // complex block of 2
        const V t1438 = t1432 - t1431;
        const V t1439 = t1429 + t1428;
        // complex block of 2
        const V t1440 = t1436 + t1430;
        const V t1441 = t1436 - t1430;
        // complex block of 2
        const V t1442 = t1437 + t1433;
        const V t1443 = t1437 - t1433;
        // complex block of 61
        const V t1444 = c[54] * t563;
        const V t1445 = t583 + t1444;
        const V t1446 = c[55] * t564;
        const V t1447 = t586 + t1446;
        // complex block of 2
        const V t1448 = t1445 - t1447;
        const V t1449 = t1445 + t1447;
        // complex block of 61
        const V t1450 = t318 - t316;
        const V t1451 = t321 - t323;
        // complex block of 2
        const V t1452 = t1450 + t1451;
        const V t1453 = t1450 - t1451;
        // complex block of 61
        const V t1454 = c[9] * t315;
        const V t1455 = t319 + t1454;
        const V t1456 = c[11] * t320;
        const V t1457 = t324 + t1456;
        // complex block of 2
        const V t1458 = t1448 + t1438;
        // complex block of 2
        const V t1459 = t1408 - t1418;
        // complex block of 3, multiplier 2
        const V t1460 = t1459 + t1458;
        const V t1461 = t1458 - t1459;
        const V t1462 = c[4] * t1460;
        const V t1463 = c[5] * t1461;
        // complex block of 2
        const V t1464 = t1448 - t1438;
        // complex block of 2
        const V t1465 = t1418 + t1408;
        // complex block of 3, multiplier 2
        const V t1466 = t1465 - t1464;
        const V t1467 = t1465 + t1464;
        const V t1468 = c[4] * t1466;
        const V t1469 = c[5] * t1467;
        // complex block of 2
        const V t1470 = t1449 - t1439;
        // complex block of 2
        const V t1471 = t1419 - t1409;
        // complex block of 3, multiplier 2
        const V t1472 = t1471 + t1470;
        const V t1473 = t1470 - t1471;
        const V t1474 = c[4] * t1472;
        const V t1475 = c[5] * t1473;
        // complex block of 2
        const V t1476 = t1449 + t1439;
        // complex block of 2
        const V t1477 = t1419 + t1409;
        // complex block of 3, multiplier 2
        const V t1478 = t1477 + t1476;
        const V t1479 = t1476 - t1477;
        const V t1480 = c[4] * t1478;
        const V t1481 = c[5] * t1479;
        // complex block of 2
        const V t1482 = t1455 + t1457;
        // complex block of 2
        const V t1483 = t1482 + t1426;
        const V t1484 = t1482 - t1426;
        // complex block of 2
        const V t1485 = t1455 - t1457;
        // complex block of 2
        const V t1486 = t1485 - t1423;
        const V t1487 = t1485 + t1423;
        // complex block of 2
        const V t1488 = t1452 + t1422;
        // complex block of 3, multiplier 2
        const V t1489 = t1410 + t1440;
        const V t1490 = c[4] * t1489;
        const V t1491 = t1489 + t1488;
        const V t1492 = t1488 - t1490;
        // complex block of 2
        const V t1493 = t1452 - t1422;
        // complex block of 3, multiplier 2
        const V t1494 = t1411 + t1441;
        const V t1495 = c[4] * t1494;
        const V t1496 = t1494 + t1493;
        const V t1497 = t1493 - t1495;
        // complex block of 2
        const V t1498 = t1453 + t1427;
        // complex block of 3, multiplier 2
        const V t1499 = t1412 + t1442;
        const V t1500 = c[4] * t1499;
        const V t1501 = t1499 + t1498;
        const V t1502 = t1498 - t1500;
        // complex block of 2
        const V t1503 = t1453 - t1427;
        // complex block of 3, multiplier 2
        const V t1504 = t1413 + t1443;
        const V t1505 = c[4] * t1504;
        const V t1506 = t1504 + t1503;
        const V t1507 = t1503 - t1505;
        // complex block of 3, multiplier 2
        const V t1508 = t1410 - t1440;
        const V t1509 = c[5] * t1508;
        // complex block of 3, multiplier 2
        const V t1510 = t1412 - t1442;
        const V t1511 = c[5] * t1510;
        // complex block of 3, multiplier 2
        const V t1512 = t1411 - t1441;
        const V t1513 = c[5] * t1512;
        // complex block of 3, multiplier 2
        const V t1514 = t1413 - t1443;
        const V t1515 = c[5] * t1514;
        // spectrum block of 3, multiplier 2
        const V t1516 = t1259 - t1273;
        // complex block of 3, multiplier 2
        const V t1517 = t1492 - t1463;
        // spectrum block of 5, multiplier 2
        const V t1518 = c[0] * t1517;
        const V t1519 = c[1] * t1517;
        // complex block of 3, multiplier 2
        const V t1520 = t1374 + t1345;
        // spectrum block of 5, multiplier 2
        const V t1521 = c[1] * t1520;
        const V t1522 = t1517 + t1520;
        const V t1523 = t1518 - t1521;
        const V t1524 = t1516 - t1519;
        const V t1525 = c[0] * t1520;
        // spectrum block of 3, multiplier 2
        const V t1526 = t1259 + t1273;
        // complex block of 3, multiplier 2
        const V t1527 = t1492 + t1463;
        // spectrum block of 5, multiplier 2
        const V t1528 = c[0] * t1527;
        const V t1529 = c[1] * t1527;
        // complex block of 3, multiplier 2
        const V t1530 = t1374 - t1345;
        // spectrum block of 5, multiplier 2
        const V t1531 = c[1] * t1530;
        const V t1532 = t1527 + t1530;
        const V t1533 = t1528 - t1531;
        const V t1534 = t1526 - t1529;
        const V t1535 = c[0] * t1530;
        // complex block of 3, multiplier 2
        const V t1536 = t1462 + t1483;
        const V t1537 = t1536 + t1509;
        const V t1538 = t1536 - t1509;
        // spectrum block of 5, multiplier 2
        const V t1539 = c[2] * t1538;
        const V t1540 = c[3] * t1538;
        // spectrum block of 5, multiplier 2
        const V t1541 = c[2] * t1537;
        const V t1542 = c[3] * t1537;
        // complex block of 3, multiplier 2
        const V t1543 = t1365 - t1344;
        const V t1544 = t1543 + t1391;
        const V t1545 = t1543 - t1391;
        // spectrum block of 5, multiplier 2
        const V t1546 = c[3] * t1545;
        const V t1547 = c[2] * t1545;
        // spectrum block of 5, multiplier 2
        const V t1548 = c[3] * t1544;
        const V t1549 = c[2] * t1544;
        // spectrum block of 5, multiplier 2
        const V t1550 = t1532 + t1526;
        io.re(13, t1550);
        const V t1551 = t1533 + t1526;
        const V t1552 = t1539 + t1546;
        const V t1553 = t1551 - t1552;
        io.re(16, t1553);
        const V t1554 = t1551 + t1552;
        io.re(22, t1554);
        const V t1555 = t1534 + t1535;
        const V t1556 = t1540 - t1547;
        const V t1557 = t1555 - t1556;
        io.re(15, t1557);
        const V t1558 = t1555 + t1556;
        io.re(56, t1558);
        // spectrum block of 5, multiplier 2
        const V t1559 = t1522 + t1516;
        io.re(47, t1559);
        const V t1560 = t1523 + t1516;
        const V t1561 = t1541 + t1548;
        const V t1562 = t1560 - t1561;
        io.re(25, t1562);
        const V t1563 = t1560 + t1561;
        io.re(42, t1563);
        const V t1564 = t1524 + t1525;
        const V t1565 = t1542 - t1549;
        const V t1566 = t1564 - t1565;
        io.re(12, t1566);
        const V t1567 = t1564 + t1565;
        io.re(57, t1567);
        // complex block of 3, multiplier 2
        const V t1568 = t1483 - t1460;
        // spectrum block of 5, multiplier 2
        const V t1569 = c[2] * t1568;
        const V t1570 = c[3] * t1568;
        // complex block of 3, multiplier 2
        const V t1571 = t1342 + t1365;
        // spectrum block of 5, multiplier 2
        const V t1572 = c[3] * t1571;
        const V t1573 = c[2] * t1571;
        const V t1574 = c[0] * t1491;
        const V t1575 = c[1] * t1373;
        const V t1576 = t1574 - t1575;
        const V t1577 = c[1] * t1491;
        const V t1578 = t1258 - t1577;
        const V t1579 = c[0] * t1373;
        const V t1580 = t1576 + t1258;
        const V t1581 = t1569 + t1572;
        const V t1582 = t1580 - t1581;
        io.re(20, t1582);
        const V t1583 = t1580 + t1581;
        io.re(58, t1583);
        const V t1584 = t1578 + t1579;
        const V t1585 = t1570 - t1573;
        const V t1586 = t1584 - t1585;
        io.re(34, t1586);
        const V t1587 = t1584 + t1585;
        io.re(9, t1587);
        const V t1588 = t1491 + t1373;
        const V t1589 = t1588 + t1258;
        io.re(1, t1589);
        // spectrum block of 3, multiplier 2
        const V t1590 = t1267 - t1277;
        // complex block of 3, multiplier 2
        const V t1591 = t1502 - t1475;
        // spectrum block of 5, multiplier 2
        const V t1592 = c[0] * t1591;
        const V t1593 = c[1] * t1591;
        // complex block of 3, multiplier 2
        const V t1594 = t1384 + t1357;
        // spectrum block of 5, multiplier 2
        const V t1595 = c[1] * t1594;
        const V t1596 = t1591 + t1594;
        const V t1597 = t1592 - t1595;
        const V t1598 = t1590 - t1593;
        const V t1599 = c[0] * t1594;
        // spectrum block of 3, multiplier 2
        const V t1600 = t1267 + t1277;
        // complex block of 3, multiplier 2
        const V t1601 = t1502 + t1475;
        // spectrum block of 5, multiplier 2
        const V t1602 = c[0] * t1601;
        const V t1603 = c[1] * t1601;
        // complex block of 3, multiplier 2
        const V t1604 = t1384 - t1357;
        // spectrum block of 5, multiplier 2
        const V t1605 = c[1] * t1604;
        const V t1606 = t1601 + t1604;
        const V t1607 = t1602 - t1605;
        const V t1608 = t1600 - t1603;
        const V t1609 = c[0] * t1604;
        // complex block of 3, multiplier 2
        const V t1610 = t1474 + t1486;
        const V t1611 = t1610 + t1511;
        const V t1612 = t1610 - t1511;
        // spectrum block of 5, multiplier 2
        const V t1613 = c[2] * t1612;
        const V t1614 = c[3] * t1612;
        // spectrum block of 5, multiplier 2
        const V t1615 = c[2] * t1611;
        const V t1616 = c[3] * t1611;
        // complex block of 3, multiplier 2
        const V t1617 = t1368 - t1356;
        const V t1618 = t1617 + t1393;
        const V t1619 = t1617 - t1393;
        // spectrum block of 5, multiplier 2
        const V t1620 = c[3] * t1619;
        const V t1621 = c[2] * t1619;
        // spectrum block of 5, multiplier 2
        const V t1622 = c[3] * t1618;
        const V t1623 = c[2] * t1618;
        // spectrum block of 5, multiplier 2
        const V t1624 = t1606 + t1600;
        io.re(40, t1624);
        const V t1625 = t1607 + t1600;
        const V t1626 = t1613 + t1620;
        const V t1627 = t1625 - t1626;
        io.re(7, t1627);
        const V t1628 = t1625 + t1626;
        io.re(2, t1628);
        const V t1629 = t1608 + t1609;
        const V t1630 = t1614 - t1621;
        const V t1631 = t1629 - t1630;
        io.re(18, t1631);
        const V t1632 = t1629 + t1630;
        io.re(55, t1632);
        // spectrum block of 5, multiplier 2
        const V t1633 = t1596 + t1590;
        io.re(32, t1633);
        const V t1634 = t1597 + t1590;
        const V t1635 = t1615 + t1622;
        const V t1636 = t1634 - t1635;
        io.re(30, t1636);
        const V t1637 = t1634 + t1635;
        io.re(26, t1637);
        const V t1638 = t1598 + t1599;
        const V t1639 = t1616 - t1623;
        const V t1640 = t1638 - t1639;
        io.re(51, t1640);
        const V t1641 = t1638 + t1639;
        io.re(44, t1641);
        // complex block of 3, multiplier 2
        const V t1642 = t1486 - t1472;
        // spectrum block of 5, multiplier 2
        const V t1643 = c[2] * t1642;
        const V t1644 = c[3] * t1642;
        // complex block of 3, multiplier 2
        const V t1645 = t1354 + t1368;
        // spectrum block of 5, multiplier 2
        const V t1646 = c[3] * t1645;
        const V t1647 = c[2] * t1645;
        const V t1648 = c[0] * t1501;
        const V t1649 = c[1] * t1383;
        const V t1650 = t1648 - t1649;
        const V t1651 = c[1] * t1501;
        const V t1652 = t1266 - t1651;
        const V t1653 = c[0] * t1383;
        const V t1654 = t1650 + t1266;
        const V t1655 = t1643 + t1646;
        const V t1656 = t1654 - t1655;
        io.re(24, t1656);
        const V t1657 = t1654 + t1655;
        io.re(33, t1657);
        const V t1658 = t1652 + t1653;
        const V t1659 = t1644 - t1647;
        const V t1660 = t1658 - t1659;
        io.re(53, t1660);
        const V t1661 = t1658 + t1659;
        io.re(23, t1661);
        const V t1662 = t1501 + t1383;
        const V t1663 = t1662 + t1266;
        io.re(50, t1663);
        // spectrum block of 3, multiplier 2
        const V t1664 = t1263 - t1275;
        // complex block of 3, multiplier 2
        const V t1665 = t1497 - t1469;
        // spectrum block of 5, multiplier 2
        const V t1666 = c[0] * t1665;
        const V t1667 = c[1] * t1665;
        // complex block of 3, multiplier 2
        const V t1668 = t1379 + t1351;
        // spectrum block of 5, multiplier 2
        const V t1669 = c[1] * t1668;
        const V t1670 = t1665 + t1668;
        const V t1671 = t1666 - t1669;
        const V t1672 = t1664 - t1667;
        const V t1673 = c[0] * t1668;
        // spectrum block of 3, multiplier 2
        const V t1674 = t1263 + t1275;
        // complex block of 3, multiplier 2
        const V t1675 = t1497 + t1469;
        // spectrum block of 5, multiplier 2
        const V t1676 = c[0] * t1675;
        const V t1677 = c[1] * t1675;
        // complex block of 3, multiplier 2
        const V t1678 = t1379 - t1351;
        // spectrum block of 5, multiplier 2
        const V t1679 = c[1] * t1678;
        const V t1680 = t1675 + t1678;
        const V t1681 = t1676 - t1679;
        const V t1682 = t1674 - t1677;
        const V t1683 = c[0] * t1678;
        // complex block of 3, multiplier 2
        const V t1684 = t1484 - t1468;
        const V t1685 = t1684 + t1513;
        const V t1686 = t1684 - t1513;
        // spectrum block of 5, multiplier 2
        const V t1687 = c[2] * t1686;
        const V t1688 = c[3] * t1686;
        // spectrum block of 5, multiplier 2
        const V t1689 = c[2] * t1685;
        const V t1690 = c[3] * t1685;
        // complex block of 3, multiplier 2
        const V t1691 = t1366 - t1350;
        const V t1692 = t1691 + t1395;
        const V t1693 = t1691 - t1395;
        // spectrum block of 5, multiplier 2
        const V t1694 = c[3] * t1693;
        const V t1695 = c[2] * t1693;
        // spectrum block of 5, multiplier 2
        const V t1696 = c[3] * t1692;
        const V t1697 = c[2] * t1692;
        // spectrum block of 5, multiplier 2
        const V t1698 = t1680 + t1674;
        io.re(48, t1698);
        const V t1699 = t1681 + t1674;
        const V t1700 = t1687 + t1694;
        const V t1701 = t1699 - t1700;
        io.re(45, t1701);
        const V t1702 = t1699 + t1700;
        io.re(39, t1702);
        const V t1703 = t1682 + t1683;
        const V t1704 = t1688 - t1695;
        const V t1705 = t1703 - t1704;
        io.re(46, t1705);
        const V t1706 = t1703 + t1704;
        io.re(5, t1706);
        // spectrum block of 5, multiplier 2
        const V t1707 = t1670 + t1664;
        io.re(14, t1707);
        const V t1708 = t1671 + t1664;
        const V t1709 = t1689 + t1696;
        const V t1710 = t1708 - t1709;
        io.re(36, t1710);
        const V t1711 = t1708 + t1709;
        io.re(19, t1711);
        const V t1712 = t1672 + t1673;
        const V t1713 = t1690 - t1697;
        const V t1714 = t1712 - t1713;
        io.re(49, t1714);
        const V t1715 = t1712 + t1713;
        io.re(4, t1715);
        // complex block of 3, multiplier 2
        const V t1716 = t1466 + t1484;
        // spectrum block of 5, multiplier 2
        const V t1717 = c[2] * t1716;
        const V t1718 = c[3] * t1716;
        // complex block of 3, multiplier 2
        const V t1719 = t1348 + t1366;
        // spectrum block of 5, multiplier 2
        const V t1720 = c[3] * t1719;
        const V t1721 = c[2] * t1719;
        const V t1722 = c[0] * t1496;
        const V t1723 = c[1] * t1378;
        const V t1724 = t1722 - t1723;
        const V t1725 = c[1] * t1496;
        const V t1726 = t1262 - t1725;
        const V t1727 = c[0] * t1378;
        const V t1728 = t1724 + t1262;
        const V t1729 = t1717 + t1720;
        const V t1730 = t1728 - t1729;
        io.re(41, t1730);
        const V t1731 = t1728 + t1729;
        io.re(3, t1731);
        const V t1732 = t1726 + t1727;
        const V t1733 = t1718 - t1721;
        const V t1734 = t1732 - t1733;
        io.re(27, t1734);
        const V t1735 = t1732 + t1733;
        io.re(52, t1735);
        const V t1736 = t1496 + t1378;
        const V t1737 = t1736 + t1262;
        io.re(60, t1737);
        // spectrum block of 3, multiplier 2
        const V t1738 = t1271 - t1279;
        // complex block of 3, multiplier 2
        const V t1739 = t1507 - t1481;
        // spectrum block of 5, multiplier 2
        const V t1740 = c[0] * t1739;
        const V t1741 = c[1] * t1739;
        // complex block of 3, multiplier 2
        const V t1742 = t1389 + t1363;
        // spectrum block of 5, multiplier 2
        const V t1743 = c[1] * t1742;
        const V t1744 = t1739 + t1742;
        const V t1745 = t1740 - t1743;
        const V t1746 = t1738 - t1741;
        const V t1747 = c[0] * t1742;
        // spectrum block of 3, multiplier 2
        const V t1748 = t1271 + t1279;
        // complex block of 3, multiplier 2
        const V t1749 = t1507 + t1481;
        // spectrum block of 5, multiplier 2
        const V t1750 = c[0] * t1749;
        const V t1751 = c[1] * t1749;
        // complex block of 3, multiplier 2
        const V t1752 = t1389 - t1363;
        // spectrum block of 5, multiplier 2
        const V t1753 = c[1] * t1752;
        const V t1754 = t1749 + t1752;
        const V t1755 = t1750 - t1753;
        const V t1756 = t1748 - t1751;
        const V t1757 = c[0] * t1752;
        // complex block of 3, multiplier 2
        const V t1758 = t1480 + t1487;
        const V t1759 = t1758 + t1515;
        const V t1760 = t1758 - t1515;
        // spectrum block of 5, multiplier 2
        const V t1761 = c[2] * t1760;
        const V t1762 = c[3] * t1760;
        // spectrum block of 5, multiplier 2
        const V t1763 = c[2] * t1759;
        const V t1764 = c[3] * t1759;
        // complex block of 3, multiplier 2
        const V t1765 = t1369 - t1362;
        const V t1766 = t1765 + t1397;
        const V t1767 = t1765 - t1397;
        // spectrum block of 5, multiplier 2
        const V t1768 = c[3] * t1767;
        const V t1769 = c[2] * t1767;
        // spectrum block of 5, multiplier 2
        const V t1770 = c[3] * t1766;
        const V t1771 = c[2] * t1766;
        // spectrum block of 5, multiplier 2
        const V t1772 = t1754 + t1748;
        io.re(21, t1772);
        const V t1773 = t1755 + t1748;
        const V t1774 = t1761 + t1768;
        const V t1775 = t1773 - t1774;
        io.re(54, t1775);
        const V t1776 = t1773 + t1774;
        io.re(59, t1776);
        const V t1777 = t1756 + t1757;
        const V t1778 = t1762 - t1769;
        const V t1779 = t1777 - t1778;
        io.re(43, t1779);
        const V t1780 = t1777 + t1778;
        io.re(6, t1780);
        // spectrum block of 5, multiplier 2
        const V t1781 = t1744 + t1738;
        io.re(29, t1781);
        const V t1782 = t1745 + t1738;
        const V t1783 = t1763 + t1770;
        const V t1784 = t1782 - t1783;
        io.re(31, t1784);
        const V t1785 = t1782 + t1783;
        io.re(35, t1785);
        const V t1786 = t1746 + t1747;
        const V t1787 = t1764 - t1771;
        const V t1788 = t1786 - t1787;
        io.re(10, t1788);
        const V t1789 = t1786 + t1787;
        io.re(17, t1789);
        // complex block of 3, multiplier 2
        const V t1790 = t1487 - t1478;
        // spectrum block of 5, multiplier 2
        const V t1791 = c[2] * t1790;
        const V t1792 = c[3] * t1790;
        // complex block of 3, multiplier 2
        const V t1793 = t1360 + t1369;
        // spectrum block of 5, multiplier 2
        const V t1794 = c[3] * t1793;
        const V t1795 = c[2] * t1793;
        const V t1796 = c[0] * t1506;
        const V t1797 = c[1] * t1388;
        const V t1798 = t1796 - t1797;
        const V t1799 = c[1] * t1506;
        const V t1800 = t1270 - t1799;
        const V t1801 = c[0] * t1388;
        const V t1802 = t1798 + t1270;
        const V t1803 = t1791 + t1794;
        const V t1804 = t1802 - t1803;
        io.re(37, t1804);
        const V t1805 = t1802 + t1803;
        io.re(28, t1805);
        const V t1806 = t1800 + t1801;
        const V t1807 = t1792 - t1795;
        const V t1808 = t1806 - t1807;
        io.re(8, t1808);
        const V t1809 = t1806 + t1807;
        io.re(38, t1809);
        const V t1810 = t1506 + t1388;
        const V t1811 = t1810 + t1270;
        io.re(11, t1811);
        // complex block of 61
        const V t1812 = x0i - t902;
        const V t1813 = c[65] * t903;
        // spectrum block of 2
        const V t1814 = t1812 + t1813;
        const V t1815 = t1812 - t1813;
        // complex block of 61
        const V t1816 = t419 - t416;
        const V t1817 = t410 + t413;
        // complex block of 2
        const V t1818 = t1817 + t1816;
        // complex block of 61
        const V t1819 = t420 + t417;
        const V t1820 = t411 - t414;
        // complex block of 2
        const V t1821 = t1819 - t1820;
        // complex block of 61
        const V t1822 = t1018 + t1020;
        const V t1823 = t1013 + t1015;
        // complex block of 2
        const V t1824 = t1822 - t1823;
        const V t1825 = t1823 + t1822;
        // complex block of 2
        const V t1826 = t1820 + t1819;
        const V t1827 = t1817 - t1816;
        // complex block of 2
        const V t1828 = t1824 + t1818;
        const V t1829 = t1824 - t1818;
        // complex block of 2
        const V t1830 = t1821 - t1825;
        const V t1831 = t1825 + t1821;
        // complex block of 61
        const V t1832 = c[27] * t1017;
        const V t1833 = t1832 - t1021;
        const V t1834 = c[25] * t1012;
        const V t1835 = t1834 - t1016;
        // complex block of 2
        const V t1836 = t1835 - t1833;
        const V t1837 = t1835 + t1833;
        // complex block of 61
        const V t1838 = t292 + t291;
        const V t1839 = t293 - t294;
        // spectrum block of 2
        const V t1840 = t1814 - t1838;
        // spectrum block of 3, multiplier 2
        const V t1841 = c[4] * t1828;
        const V t1842 = t1828 + t1840;
        const V t1843 = t1840 - t1841;
        // spectrum block of 2
        const V t1844 = t1814 + t1838;
        // spectrum block of 3, multiplier 2
        const V t1845 = c[4] * t1829;
        const V t1846 = t1829 + t1844;
        const V t1847 = t1844 - t1845;
        // spectrum block of 2
        const V t1848 = t1815 + t1839;
        // spectrum block of 3, multiplier 2
        const V t1849 = c[4] * t1830;
        const V t1850 = t1830 + t1848;
        const V t1851 = t1848 - t1849;
        // spectrum block of 2
        const V t1852 = t1815 - t1839;
        // spectrum block of 3, multiplier 2
        const V t1853 = c[4] * t1831;
        const V t1854 = t1852 - t1831;
        const V t1855 = t1853 + t1852;
        // complex block of 2
        const V t1856 = t1836 - t1826;
        // spectrum block of 3, multiplier 2
        const V t1857 = c[5] * t1856;
        // complex block of 2
        const V t1858 = t1836 + t1826;
        // spectrum block of 3, multiplier 2
        const V t1859 = c[5] * t1858;
        // complex block of 2
        const V t1860 = t1837 - t1827;
        // spectrum block of 3, multiplier 2
        const V t1861 = c[5] * t1860;
        // complex block of 2
        const V t1862 = t1837 + t1827;
        // spectrum block of 3, multiplier 2
        const V t1863 = c[5] * t1862;
        // complex block of 61
        const V t1864 = t507 - t500;
        const V t1865 = t502 + t509;
        // complex block of 2
        const V t1866 = t1865 + t1864;
        // complex block of 61
        const V t1867 = t508 + t501;
        const V t1868 = t503 - t510;
        // complex block of 2
        const V t1869 = t1867 - t1868;
        // complex block of 61
        const V t1870 = t1128 - t1108;
        const V t1871 = t1109 + t1125;
        // complex block of 2
        const V t1872 = t1871 + t1870;
        const V t1873 = t1871 - t1870;
        // complex block of 2
        const V t1874 = t1868 + t1867;
        const V t1875 = t1865 - t1864;
        // complex block of 2
        const V t1876 = t1872 + t1866;
        const V t1877 = t1872 - t1866;
        // complex block of 2
        const V t1878 = t1873 + t1869;
        const V t1879 = t1873 - t1869;
        // complex block of 61
        const V t1880 = t1099 - t1082;
        const V t1881 = t1102 - t1083;
        // complex block of 2
        const V t1882 = t1880 + t1881;
        const V t1883 = t1880 - t1881;
        // complex block of 61
        const V t1884 = t474 - t481;
        const V t1885 = t476 + t483;
        // complex block of 2
        const V t1886 = t1884 - t1885;
        // complex block of 61
        const V t1887 = t482 + t475;
        const V t1888 = t477 - t484;
        // complex block of 2
        const V t1889 = t1888 - t1887;
        const V t1890 = t1888 + t1887;
        const V t1891 = t1885 + t1884;
        // complex block of 2
        const V t1892 = t1882 + t1886;
        const V t1893 = t1882 - t1886;
        // complex block of 2
        const V t1894 = t1883 + t1889;
        const V t1895 = t1883 - t1889;
        // complex block of 61
        const V t1896 = c[38] * t1080;
        const V t1897 = t1100 + t1896;
        const V t1898 = c[39] * t1081;
        const V t1899 = t1103 + t1898;
        // complex block of 2
        const V t1900 = t1897 - t1899;
        const V t1901 = t1897 + t1899;
        // complex block of 61
        const V t1902 = t976 + t978;
        const V t1903 = t971 + t973;
        // complex block of 2
        const V t1904 = t1903 + t1902;
        const V t1905 = t1903 - t1902;
        // complex block of 61
        const V t1906 = c[19] * t975;
        const V t1907 = t1906 - t979;
        const V t1908 = t374 + t377;
        const V t1909 = t368 - t371;
        // complex block of 2
        const V t1910 = t1909 + t1908;
        const V t1911 = t1909 - t1908;
        // complex block of 61
        const V t1912 = t378 - t375;
        const V t1913 = t372 + t369;
        // complex block of 2
        const V t1914 = t1913 + t1912;
        const V t1915 = t1913 - t1912;
        // complex block of 61
        const V t1916 = c[47] * t1107;
        const V t1917 = t1129 + t1916;
        const V t1918 = c[46] * t1106;
        const V t1919 = t1918 - t1126;
        // complex block of 2
        const V t1920 = t1919 - t1917;
        const V t1921 = t1919 + t1917;
        // complex block of 61
        const V t1922 = c[17] * t970;
        const V t1923 = t974 - t1922;
        // complex block of 2
        const V t1924 = t1900 + t1890;
        // complex block of 2
        const V t1925 = t1920 - t1874;
        // complex block of 3, multiplier 2
        const V t1926 = t1924 - t1925;
        const V t1927 = t1925 + t1924;
        const V t1928 = c[4] * t1926;
        const V t1929 = c[5] * t1927;
        // complex block of 2
        const V t1930 = t1900 - t1890;
        // complex block of 2
        const V t1931 = t1920 + t1874;
        // complex block of 3, multiplier 2
        const V t1932 = t1930 - t1931;
        const V t1933 = t1931 + t1930;
        const V t1934 = c[4] * t1932;
        const V t1935 = c[5] * t1933;
        // complex block of 2
        const V t1936 = t1901 + t1891;
        // complex block of 2
        const V t1937 = t1921 - t1875;
        // complex block of 3, multiplier 2
        const V t1938 = t1936 - t1937;
        const V t1939 = t1937 + t1936;
        const V t1940 = c[4] * t1938;
        const V t1941 = c[5] * t1939;
        // complex block of 2
        const V t1942 = t1901 - t1891;
        // complex block of 2
        const V t1943 = t1921 + t1875;
        // complex block of 3, multiplier 2
        const V t1944 = t1942 - t1943;
        const V t1945 = t1943 + t1942;
        const V t1946 = c[4] * t1944;
        const V t1947 = c[5] * t1945;
        // complex block of 2
        const V t1948 = t1923 - t1907;
        // complex block of 2
        const V t1949 = t1948 + t1914;
        const V t1950 = t1948 - t1914;
        // complex block of 2
        const V t1951 = t1923 + t1907;
        // complex block of 2
        const V t1952 = t1951 - t1911;
        const V t1953 = t1951 + t1911;
        // complex block of 2
        const V t1954 = t1904 + t1910;
        // complex block of 3, multiplier 2
        const V t1955 = t1876 + t1892;
        const V t1956 = c[4] * t1955;
        const V t1957 = t1955 + t1954;
        const V t1958 = t1954 - t1956;
        // complex block of 2
        const V t1959 = t1904 - t1910;
        // complex block of 3, multiplier 2
        const V t1960 = t1877 + t1893;
        const V t1961 = c[4] * t1960;
        const V t1962 = t1960 + t1959;
        const V t1963 = t1959 - t1961;
        // complex block of 2
        const V t1964 = t1905 + t1915;
        // complex block of 3, multiplier 2
        const V t1965 = t1878 + t1894;
        const V t1966 = c[4] * t1965;
        const V t1967 = t1965 + t1964;
        const V t1968 = t1964 - t1966;
        // complex block of 2
        const V t1969 = t1905 - t1915;
        // complex block of 3, multiplier 2
        const V t1970 = t1879 + t1895;
        const V t1971 = c[4] * t1970;
        const V t1972 = t1970 + t1969;
        const V t1973 = t1969 - t1971;
        // complex block of 3, multiplier 2
        const V t1974 = t1876 - t1892;
        const V t1975 = c[5] * t1974;
        // complex block of 3, multiplier 2
        const V t1976 = t1878 - t1894;
        const V t1977 = c[5] * t1976;
        // complex block of 3, multiplier 2
        const V t1978 = t1877 - t1893;
        const V t1979 = c[5] * t1978;
        // complex block of 3, multiplier 2
        const V t1980 = t1879 - t1895;
        const V t1981 = c[5] * t1980;
        // complex block of 61
        const V t1982 = t1204 + t1224;
        const V t1983 = t1205 - t1221;
        // complex block of 2
        const V t1984 = t1983 + t1982;
        const V t1985 = t1983 - t1982;
        // complex block of 61
        const V t1986 = t596 + t603;
        const V t1987 = t598 - t605;
        // complex block of 2
        const V t1988 = t1987 - t1986;
        // complex block of 61
        const V t1989 = t597 - t604;
        const V t1990 = t606 + t599;
        // complex block of 2
        const V t1991 = t1990 - t1989;
        const V t1992 = t1990 + t1989;
        const V t1993 = t1987 + t1986;
        // complex block of 2
        const V t1994 = t1984 + t1988;
        const V t1995 = t1984 - t1988;
        // complex block of 2
        const V t1996 = t1985 + t1991;
        const V t1997 = t1985 - t1991;
        // complex block of 61
        const V t1998 = c[63] * t1203;
        const V t1999 = t1998 - t1225;
        const V t2000 = c[62] * t1202;
        const V t2001 = t1222 + t2000;
        // complex block of 2
        const V t2002 = t2001 + t1999;
        const V t2003 = t1999 - t2001;
        // complex block of 61
        const V t2004 = t332 - t335;
        const V t2005 = t326 + t329;
        // complex block of 2
        const V t2006 = t2004 - t2005;
        const V t2007 = t2005 + t2004;
        // complex block of 61
        const V t2008 = t336 + t333;
        const V t2009 = t327 - t330;
        // complex block of 2
        const V t2010 = t2009 + t2008;
        const V t2011 = t2009 - t2008;
        // complex block of 61
        const V t2012 = t570 + t577;
        const V t2013 = t572 + t579;
        // complex block of 2
        const V t2014 = t2012 - t2013;
        // complex block of 61
        const V t2015 = t571 - t578;
        const V t2016 = t573 - t580;
        // complex block of 2
        const V t2017 = t2016 + t2015;
        // complex block of 61
        const V t2018 = t1178 - t1195;
        const V t2019 = t1198 - t1179;
        // complex block of 2
        const V t2020 = t2018 + t2019;
        const V t2021 = t2018 - t2019;
        // complex block of 2
        const V t2022 = t2016 - t2015;
        const V t2023 = t2013 + t2012;
        // complex block of 2
        const V t2024 = t2020 + t2014;
        const V t2025 = t2020 - t2014;
        // complex block of 2
        const V t2026 = t2021 + t2017;
        const V t2027 = t2021 - t2017;
        // complex block of 61
        const V t2028 = c[54] * t1176;
        const V t2029 = t1196 + t2028;
        const V t2030 = c[55] * t1177;
        const V t2031 = t1199 + t2030;
        // complex block of 2
        const V t2032 = t2029 - t2031;
        const V t2033 = t2029 + t2031;
        // complex block of 61
        const V t2034 = t931 - t929;
        const V t2035 = t934 - t936;
        // complex block of 2
        const V t2036 = t2034 + t2035;
        const V t2037 = t2034 - t2035;
        // complex block of 61
        const V t2038 = c[9] * t928;
        const V t2039 = t932 + t2038;
        const V t2040 = c[11] * t933;
        const V t2041 = t937 + t2040;
        // complex block of 2
        const V t2042 = t2032 + t2022;
        // complex block of 2
        const V t2043 = t1992 - t2002;
        // complex block of 3, multiplier 2
        const V t2044 = t2043 + t2042;
        const V t2045 = t2042 - t2043;
        const V t2046 = c[4] * t2044;
        const V t2047 = c[5] * t2045;
        // complex block of 2
        const V t2048 = t2032 - t2022;
        // complex block of 2
        const V t2049 = t2002 + t1992;
        // complex block of 3, multiplier 2
        const V t2050 = t2049 - t2048;
        const V t2051 = t2049 + t2048;
        const V t2052 = c[4] * t2050;
        const V t2053 = c[5] * t2051;
        // complex block of 2
        const V t2054 = t2033 + t2023;
        // complex block of 2
        const V t2055 = t2003 - t1993;
        // complex block of 3, multiplier 2
        const V t2056 = t2055 + t2054;
        const V t2057 = t2054 - t2055;
        const V t2058 = c[4] * t2056;
        const V t2059 = c[5] * t2057;
        // complex block of 2
        const V t2060 = t2033 - t2023;
        // complex block of 2
        const V t2061 = t2003 + t1993;
        // complex block of 3, multiplier 2
        const V t2062 = t2061 + t2060;
        const V t2063 = t2060 - t2061;
        const V t2064 = c[4] * t2062;
        const V t2065 = c[5] * t2063;
        // complex block of 2
        const V t2066 = t2039 + t2041;
        // complex block of 2
        const V t2067 = t2066 + t2010;
        const V t2068 = t2066 - t2010;
        // complex block of 2
        const V t2069 = t2039 - t2041;
        // complex block of 2
        const V t2070 = t2069 + t2007;
        const V t2071 = t2069 - t2007;
        // complex block of 2
        const V t2072 = t2036 + t2006;
        // complex block of 3, multiplier 2
        const V t2073 = t1994 + t2024;
        const V t2074 = c[4] * t2073;
        const V t2075 = t2073 + t2072;
        const V t2076 = t2072 - t2074;
        // complex block of 2
        const V t2077 = t2036 - t2006;
        // complex block of 3, multiplier 2
        const V t2078 = t1995 + t2025;
        const V t2079 = c[4] * t2078;
        const V t2080 = t2078 + t2077;
        const V t2081 = t2077 - t2079;
        // complex block of 2
        const V t2082 = t2037 + t2011;
        // complex block of 3, multiplier 2
        const V t2083 = t1996 + t2026;
        const V t2084 = c[4] * t2083;
        const V t2085 = t2083 + t2082;
        const V t2086 = t2082 - t2084;
        // complex block of 2
        const V t2087 = t2037 - t2011;
        // complex block of 3, multiplier 2
        const V t2088 = t1997 + t2027;
        const V t2089 = c[4] * t2088;
        const V t2090 = t2088 + t2087;
        const V t2091 = t2087 - t2089;
        // complex block of 3, multiplier 2
        const V t2092 = t1994 - t2024;
        const V t2093 = c[5] * t2092;
        // complex block of 3, multiplier 2
        const V t2094 = t1996 - t2026;
        const V t2095 = c[5] * t2094;
        // complex block of 3, multiplier 2
        const V t2096 = t1995 - t2025;
        const V t2097 = c[5] * t2096;
        // complex block of 3, multiplier 2
        const V t2098 = t1997 - t2027;
        const V t2099 = c[5] * t2098;
        // spectrum block of 3, multiplier 2
        const V t2100 = t1843 - t1857;
        // complex block of 3, multiplier 2
        const V t2101 = t2076 - t2047;
        // spectrum block of 5, multiplier 2
        const V t2102 = c[0] * t2101;
        const V t2103 = c[1] * t2101;
        // complex block of 3, multiplier 2
        const V t2104 = t1958 + t1929;
        // spectrum block of 5, multiplier 2
        const V t2105 = c[1] * t2104;
        const V t2106 = t2101 + t2104;
        const V t2107 = t2102 - t2105;
        const V t2108 = t2100 - t2103;
        const V t2109 = c[0] * t2104;
        // spectrum block of 3, multiplier 2
        const V t2110 = t1843 + t1857;
        // complex block of 3, multiplier 2
        const V t2111 = t2076 + t2047;
        // spectrum block of 5, multiplier 2
        const V t2112 = c[0] * t2111;
        const V t2113 = c[1] * t2111;
        // complex block of 3, multiplier 2
        const V t2114 = t1958 - t1929;
        // spectrum block of 5, multiplier 2
        const V t2115 = c[1] * t2114;
        const V t2116 = t2111 + t2114;
        const V t2117 = t2112 - t2115;
        const V t2118 = t2110 - t2113;
        const V t2119 = c[0] * t2114;
        // complex block of 3, multiplier 2
        const V t2120 = t2046 + t2067;
        const V t2121 = t2120 + t2093;
        const V t2122 = t2120 - t2093;
        // spectrum block of 5, multiplier 2
        const V t2123 = c[2] * t2122;
        const V t2124 = c[3] * t2122;
        // spectrum block of 5, multiplier 2
        const V t2125 = c[2] * t2121;
        const V t2126 = c[3] * t2121;
        // complex block of 3, multiplier 2
        const V t2127 = t1949 - t1928;
        const V t2128 = t2127 + t1975;
        const V t2129 = t2127 - t1975;
        // spectrum block of 5, multiplier 2
        const V t2130 = c[3] * t2129;
        const V t2131 = c[2] * t2129;
        // spectrum block of 5, multiplier 2
        const V t2132 = c[3] * t2128;
        const V t2133 = c[2] * t2128;
        // spectrum block of 5, multiplier 2
        const V t2134 = t2116 + t2110;
        io.im(13, t2134);
        const V t2135 = t2117 + t2110;
        const V t2136 = t2123 + t2130;
        const V t2137 = t2135 - t2136;
        io.im(16, t2137);
        const V t2138 = t2135 + t2136;
        io.im(22, t2138);
        const V t2139 = t2118 + t2119;
        const V t2140 = t2124 - t2131;
        const V t2141 = t2139 - t2140;
        io.im(15, t2141);
        const V t2142 = t2139 + t2140;
        io.im(56, t2142);
        // spectrum block of 5, multiplier 2
        const V t2143 = t2106 + t2100;
        io.im(47, t2143);
        const V t2144 = t2107 + t2100;
        const V t2145 = t2125 + t2132;
        const V t2146 = t2144 - t2145;
        io.im(25, t2146);
        const V t2147 = t2144 + t2145;
        io.im(42, t2147);
        const V t2148 = t2108 + t2109;
        const V t2149 = t2126 - t2133;
        const V t2150 = t2148 - t2149;
        io.im(12, t2150);
        const V t2151 = t2148 + t2149;
        io.im(57, t2151);
        // complex block of 3, multiplier 2
        const V t2152 = t2067 - t2044;
        // spectrum block of 5, multiplier 2
        const V t2153 = c[2] * t2152;
        const V t2154 = c[3] * t2152;
        // complex block of 3, multiplier 2
        const V t2155 = t1926 + t1949;
        // spectrum block of 5, multiplier 2
        const V t2156 = c[3] * t2155;
        const V t2157 = c[2] * t2155;
        const V t2158 = c[0] * t2075;
        const V t2159 = c[1] * t1957;
        const V t2160 = t2158 - t2159;
        const V t2161 = c[1] * t2075;
        const V t2162 = t1842 - t2161;
        const V t2163 = c[0] * t1957;
        const V t2164 = t2160 + t1842;
        const V t2165 = t2153 + t2156;
        const V t2166 = t2164 - t2165;
        io.im(20, t2166);
        const V t2167 = t2164 + t2165;
        io.im(58, t2167);
        const V t2168 = t2162 + t2163;
        const V t2169 = t2154 - t2157;
        const V t2170 = t2168 - t2169;
        io.im(34, t2170);
        const V t2171 = t2168 + t2169;
        io.im(9, t2171);
        const V t2172 = t2075 + t1957;
        const V t2173 = t2172 + t1842;
        io.im(1, t2173);
        // spectrum block of 3, multiplier 2
        const V t2174 = t1851 - t1861;
        // complex block of 3, multiplier 2
        const V t2175 = t2086 - t2059;
        // spectrum block of 5, multiplier 2
        const V t2176 = c[0] * t2175;
        const V t2177 = c[1] * t2175;
        // complex block of 3, multiplier 2
        const V t2178 = t1968 + t1941;
        // spectrum block of 5, multiplier 2
        const V t2179 = c[1] * t2178;
        const V t2180 = t2175 + t2178;
        const V t2181 = t2176 - t2179;
        const V t2182 = t2174 - t2177;
        const V t2183 = c[0] * t2178;
        // spectrum block of 3, multiplier 2
        const V t2184 = t1851 + t1861;
        // complex block of 3, multiplier 2
        const V t2185 = t2086 + t2059;
        // spectrum block of 5, multiplier 2
        const V t2186 = c[0] * t2185;
        const V t2187 = c[1] * t2185;
        // complex block of 3, multiplier 2
        const V t2188 = t1968 - t1941;
        // spectrum block of 5, multiplier 2
        const V t2189 = c[1] * t2188;
        const V t2190 = t2185 + t2188;
        const V t2191 = t2186 - t2189;
        const V t2192 = t2184 - t2187;
        const V t2193 = c[0] * t2188;
        // complex block of 3, multiplier 2
        const V t2194 = t2058 + t2070;
        const V t2195 = t2194 + t2095;
        const V t2196 = t2194 - t2095;
        // spectrum block of 5, multiplier 2
        const V t2197 = c[2] * t2196;
        const V t2198 = c[3] * t2196;
        // spectrum block of 5, multiplier 2
        const V t2199 = c[2] * t2195;
        const V t2200 = c[3] * t2195;
        // complex block of 3, multiplier 2
        const V t2201 = t1952 - t1940;
        const V t2202 = t2201 + t1977;
        const V t2203 = t2201 - t1977;
        // spectrum block of 5, multiplier 2
        const V t2204 = c[3] * t2203;
        const V t2205 = c[2] * t2203;
        // spectrum block of 5, multiplier 2
        const V t2206 = c[3] * t2202;
        const V t2207 = c[2] * t2202;
        // spectrum block of 5, multiplier 2
        const V t2208 = t2190 + t2184;
        io.im(40, t2208);
        const V t2209 = t2191 + t2184;
        const V t2210 = t2197 + t2204;
        const V t2211 = t2209 - t2210;
        io.im(7, t2211);
        const V t2212 = t2209 + t2210;
        io.im(2, t2212);
        const V t2213 = t2192 + t2193;
        const V t2214 = t2198 - t2205;
        const V t2215 = t2213 - t2214;
        io.im(18, t2215);
        const V t2216 = t2213 + t2214;
        io.im(55, t2216);
        // spectrum block of 5, multiplier 2
        const V t2217 = t2180 + t2174;
        io.im(32, t2217);
        const V t2218 = t2181 + t2174;
        const V t2219 = t2199 + t2206;
        const V t2220 = t2218 - t2219;
        io.im(30, t2220);
        const V t2221 = t2218 + t2219;
        io.im(26, t2221);
        const V t2222 = t2182 + t2183;
        const V t2223 = t2200 - t2207;
        const V t2224 = t2222 - t2223;
        io.im(51, t2224);
        const V t2225 = t2222 + t2223;
        io.im(44, t2225);
        // complex block of 3, multiplier 2
        const V t2226 = t2070 - t2056;
        // spectrum block of 5, multiplier 2
        const V t2227 = c[2] * t2226;
        const V t2228 = c[3] * t2226;
        // complex block of 3, multiplier 2
        const V t2229 = t1938 + t1952;
        // spectrum block of 5, multiplier 2
        const V t2230 = c[3] * t2229;
        const V t2231 = c[2] * t2229;
        const V t2232 = c[0] * t2085;
        const V t2233 = c[1] * t1967;
        const V t2234 = t2232 - t2233;
        const V t2235 = c[1] * t2085;
        const V t2236 = t1850 - t2235;
        const V t2237 = c[0] * t1967;
        const V t2238 = t2234 + t1850;
        const V t2239 = t2227 + t2230;
        const V t2240 = t2238 - t2239;
        io.im(24, t2240);
        const V t2241 = t2238 + t2239;
        io.im(33, t2241);
        const V t2242 = t2236 + t2237;
        const V t2243 = t2228 - t2231;
        const V t2244 = t2242 - t2243;
        io.im(53, t2244);
        const V t2245 = t2242 + t2243;
        io.im(23, t2245);
        const V t2246 = t2085 + t1967;
        const V t2247 = t2246 + t1850;
        io.im(50, t2247);
        // spectrum block of 3, multiplier 2
        const V t2248 = t1847 - t1859;
        // complex block of 3, multiplier 2
        const V t2249 = t2081 - t2053;
        // spectrum block of 5, multiplier 2
        const V t2250 = c[0] * t2249;
        const V t2251 = c[1] * t2249;
        // complex block of 3, multiplier 2
        const V t2252 = t1963 + t1935;
        // spectrum block of 5, multiplier 2
        const V t2253 = c[1] * t2252;
        const V t2254 = t2249 + t2252;
        const V t2255 = t2250 - t2253;
        const V t2256 = t2248 - t2251;
        const V t2257 = c[0] * t2252;
        // spectrum block of 3, multiplier 2
        const V t2258 = t1847 + t1859;
        // complex block of 3, multiplier 2
        const V t2259 = t2081 + t2053;
        // spectrum block of 5, multiplier 2
        const V t2260 = c[0] * t2259;
        const V t2261 = c[1] * t2259;
        // complex block of 3, multiplier 2
        const V t2262 = t1963 - t1935;
        // spectrum block of 5, multiplier 2
        const V t2263 = c[1] * t2262;
        const V t2264 = t2259 + t2262;
        const V t2265 = t2260 - t2263;
        const V t2266 = t2258 - t2261;
        const V t2267 = c[0] * t2262;
        // complex block of 3, multiplier 2
        const V t2268 = t2068 - t2052;
        const V t2269 = t2268 + t2097;
        const V t2270 = t2268 - t2097;
        // spectrum block of 5, multiplier 2
        const V t2271 = c[2] * t2270;
        const V t2272 = c[3] * t2270;
        // spectrum block of 5, multiplier 2
        const V t2273 = c[2] * t2269;
        const V t2274 = c[3] * t2269;
        // complex block of 3, multiplier 2
        const V t2275 = t1950 - t1934;
        const V t2276 = t2275 + t1979;
        const V t2277 = t2275 - t1979;
        // spectrum block of 5, multiplier 2
        const V t2278 = c[3] * t2277;
        const V t2279 = c[2] * t2277;
        // spectrum block of 5, multiplier 2
        const V t2280 = c[3] * t2276;
        const V t2281 = c[2] * t2276;
        // spectrum block of 5, multiplier 2
        const V t2282 = t2264 + t2258;
        io.im(48, t2282);
        const V t2283 = t2265 + t2258;
        const V t2284 = t2271 + t2278;
        const V t2285 = t2283 - t2284;
        io.im(45, t2285);
        const V t2286 = t2283 + t2284;
        io.im(39, t2286);
        const V t2287 = t2266 + t2267;
        const V t2288 = t2272 - t2279;
        const V t2289 = t2287 - t2288;
        io.im(46, t2289);
        const V t2290 = t2287 + t2288;
        io.im(5, t2290);
        // spectrum block of 5, multiplier 2
        const V t2291 = t2254 + t2248;
        io.im(14, t2291);
        const V t2292 = t2255 + t2248;
        const V t2293 = t2273 + t2280;
        const V t2294 = t2292 - t2293;
        io.im(36, t2294);
        const V t2295 = t2292 + t2293;
        io.im(19, t2295);
        const V t2296 = t2256 + t2257;
        const V t2297 = t2274 - t2281;
        const V t2298 = t2296 - t2297;
        io.im(49, t2298);
        const V t2299 = t2296 + t2297;
        io.im(4, t2299);
        // complex block of 3, multiplier 2
        const V t2300 = t2050 + t2068;
        // spectrum block of 5, multiplier 2
        const V t2301 = c[2] * t2300;
        const V t2302 = c[3] * t2300;
        // complex block of 3, multiplier 2
        const V t2303 = t1932 + t1950;
        // spectrum block of 5, multiplier 2
        const V t2304 = c[3] * t2303;
        const V t2305 = c[2] * t2303;
        const V t2306 = c[0] * t2080;
        const V t2307 = c[1] * t1962;
        const V t2308 = t2306 - t2307;
        const V t2309 = c[1] * t2080;
        const V t2310 = t1846 - t2309;
        const V t2311 = c[0] * t1962;
        const V t2312 = t2308 + t1846;
        const V t2313 = t2301 + t2304;
        const V t2314 = t2312 - t2313;
        io.im(41, t2314);
        const V t2315 = t2312 + t2313;
        io.im(3, t2315);
        const V t2316 = t2310 + t2311;
        const V t2317 = t2302 - t2305;
        const V t2318 = t2316 - t2317;
        io.im(27, t2318);
        const V t2319 = t2316 + t2317;
        io.im(52, t2319);
        const V t2320 = t2080 + t1962;
        const V t2321 = t2320 + t1846;
        io.im(60, t2321);
        // spectrum block of 3, multiplier 2
        const V t2322 = t1855 - t1863;
        // complex block of 3, multiplier 2
        const V t2323 = t2091 - t2065;
        // spectrum block of 5, multiplier 2
        const V t2324 = c[0] * t2323;
        const V t2325 = c[1] * t2323;
        // complex block of 3, multiplier 2
        const V t2326 = t1973 + t1947;
        // spectrum block of 5, multiplier 2
        const V t2327 = c[1] * t2326;
        const V t2328 = t2323 + t2326;
        const V t2329 = t2324 - t2327;
        const V t2330 = t2322 - t2325;
        const V t2331 = c[0] * t2326;
        // spectrum block of 3, multiplier 2
        const V t2332 = t1855 + t1863;
        // complex block of 3, multiplier 2
        const V t2333 = t2091 + t2065;
        // spectrum block of 5, multiplier 2
        const V t2334 = c[0] * t2333;
        const V t2335 = c[1] * t2333;
        // complex block of 3, multiplier 2
        const V t2336 = t1973 - t1947;
        // spectrum block of 5, multiplier 2
        const V t2337 = c[1] * t2336;
        const V t2338 = t2333 + t2336;
        const V t2339 = t2334 - t2337;
        const V t2340 = t2332 - t2335;
        const V t2341 = c[0] * t2336;
        // complex block of 3, multiplier 2
        const V t2342 = t2064 + t2071;
        const V t2343 = t2342 + t2099;
        const V t2344 = t2342 - t2099;
        // spectrum block of 5, multiplier 2
        const V t2345 = c[2] * t2344;
        const V t2346 = c[3] * t2344;
        // spectrum block of 5, multiplier 2
        const V t2347 = c[2] * t2343;
        const V t2348 = c[3] * t2343;
        // complex block of 3, multiplier 2
        const V t2349 = t1953 - t1946;
        const V t2350 = t2349 + t1981;
        const V t2351 = t2349 - t1981;
        // spectrum block of 5, multiplier 2
        const V t2352 = c[3] * t2351;
        const V t2353 = c[2] * t2351;
        // spectrum block of 5, multiplier 2
        const V t2354 = c[3] * t2350;
        const V t2355 = c[2] * t2350;
        // spectrum block of 5, multiplier 2
        const V t2356 = t2338 + t2332;
        io.im(21, t2356);
        const V t2357 = t2339 + t2332;
        const V t2358 = t2345 + t2352;
        const V t2359 = t2357 - t2358;
        io.im(54, t2359);
        const V t2360 = t2357 + t2358;
        io.im(59, t2360);
        const V t2361 = t2340 + t2341;
        const V t2362 = t2346 - t2353;
        const V t2363 = t2361 - t2362;
        io.im(43, t2363);
        const V t2364 = t2361 + t2362;
        io.im(6, t2364);
        // spectrum block of 5, multiplier 2
        const V t2365 = t2328 + t2322;
        io.im(29, t2365);
        const V t2366 = t2329 + t2322;
        const V t2367 = t2347 + t2354;
        const V t2368 = t2366 - t2367;
        io.im(31, t2368);
        const V t2369 = t2366 + t2367;
        io.im(35, t2369);
        const V t2370 = t2330 + t2331;
        const V t2371 = t2348 - t2355;
        const V t2372 = t2370 - t2371;
        io.im(10, t2372);
        const V t2373 = t2370 + t2371;
        io.im(17, t2373);
        // complex block of 3, multiplier 2
        const V t2374 = t2071 - t2062;
        // spectrum block of 5, multiplier 2
        const V t2375 = c[2] * t2374;
        const V t2376 = c[3] * t2374;
        // complex block of 3, multiplier 2
        const V t2377 = t1944 + t1953;
        // spectrum block of 5, multiplier 2
        const V t2378 = c[3] * t2377;
        const V t2379 = c[2] * t2377;
        const V t2380 = c[0] * t2090;
        const V t2381 = c[1] * t1972;
        const V t2382 = t2380 - t2381;
        const V t2383 = c[1] * t2090;
        const V t2384 = t1854 - t2383;
        const V t2385 = c[0] * t1972;
        const V t2386 = t2382 + t1854;
        const V t2387 = t2375 + t2378;
        const V t2388 = t2386 - t2387;
        io.im(37, t2388);
        const V t2389 = t2386 + t2387;
        io.im(28, t2389);
        const V t2390 = t2384 + t2385;
        const V t2391 = t2376 - t2379;
        const V t2392 = t2390 - t2391;
        io.im(8, t2392);
        const V t2393 = t2390 + t2391;
        io.im(38, t2393);
        const V t2394 = t2090 + t1972;
        const V t2395 = t2394 + t1854;
        io.im(11, t2395);
    }
};

}  // namespace zulg
