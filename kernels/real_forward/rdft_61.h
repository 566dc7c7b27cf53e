// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 61.
// Forward DFT of 61 real points, Rader 3, 5, 4.
// 403 additions, 359 subtractions, 415 multiplications (476 with `scale`); 14 outputs negated; 80 constants; 68 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<61> {
    static constexpr int steps = 1238;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.15497780918795065,  // c[6]: -Q[1] of 61
        0.20918808865965802,  // c[7]: P[1] of 61
        0.16101883855703142,  // c[8]: Q[2] of 61
        0.20457446421174474,  // c[9]: P[2] of 61
        0.10340917490170637,  // c[10]: Q[3] of 61
        0.23892325195327072,  // c[11]: P[3] of 61
        0.2578608473569129,  // c[12]: Q[4] of 61
        0.035854723233524656,  // c[13]: -P[4] of 61
        0.1053660297660444,  // c[14]: -Q[5] of 61
        0.2380667501964918,  // c[15]: P[5] of 61
        0.20515266792101527,  // c[16]: Q[6] of 61
        0.1602815043062281,  // c[17]: P[6] of 61
        0.09920884237904212,  // c[18]: Q[7] of 61
        0.2406977012179139,  // c[19]: -P[7] of 61
        0.07049354660050404,  // c[20]: Q[8] of 61
        0.25061611613274265,  // c[21]: P[8] of 61
        0.09068761161102994,  // c[22]: Q[9] of 61
        0.24403592948183833,  // c[23]: P[9] of 61
        0.09855050326766758,  // c[24]: Q[11] of 61
        0.24096799804842803,  // c[25]: P[11] of 61
        0.17085954303793666,  // c[26]: Q[12] of 61
        0.19643012582250524,  // c[27]: -P[12] of 61
        0.047810579406671994,  // c[28]: -Q[13] of 61
        0.25591390402746017,  // c[29]: -P[13] of 61
        0.035146745480687275,  // c[30]: Q[14] of 61
        0.25795829907156226,  // c[31]: -P[14] of 61
        0.23576264945389142,  // c[32]: -Q[15] of 61
        0.11042531820311542,  // c[33]: -P[15] of 61
        0.07154712447968609,  // c[34]: Q[16] of 61
        0.2503173720628796,  // c[35]: P[16] of 61
        0.15440539602027134,  // c[36]: Q[17] of 61
        0.20961095261841867,  // c[37]: P[17] of 61
        0.22994320324173947,  // c[38]: -Q[18] of 61
        0.12208153447883048,  // c[39]: P[18] of 61
        0.22194087820108896,  // c[40]: -Q[19] of 61
        0.13608829619444565,  // c[41]: -P[19] of 61
        0.04709103298244708,  // c[42]: Q[21] of 61
        0.256047285458026,  // c[43]: P[21] of 61
        0.25902765669579647,  // c[44]: Q[22] of 61
        0.02612376015167778,  // c[45]: -P[22] of 61
        0.24362915936079071,  // c[46]: -Q[23] of 61
        0.09177478132326014,  // c[47]: -P[23] of 61
        0.0673035010610264,  // c[48]: -Q[24] of 61
        0.2514915834033143,  // c[49]: P[24] of 61
        0.1154342549547329,  // c[50]: Q[25] of 61
        0.23335104576758062,  // c[51]: -P[25] of 61
        0.1988310412655552,  // c[52]: Q[26] of 61
        0.1680594978185787,  // c[53]: -P[26] of 61
        0.0335460689418391,  // c[54]: -Q[27] of 61
        0.25817133658934166,  // c[55]: -P[27] of 61
        0.15195717683014903,  // c[56]: -Q[28] of 61
        0.21139251213699267,  // c[57]: P[28] of 61
        0.2314253610640195,  // c[58]: Q[29] of 61
        0.1192479770652986,  // c[59]: -P[29] of 61
        0.10452846326765347,  // c[60]: -sin 2 pi 59/60
        0.9945218953682733,  // c[61]: cos 2 pi 59/60
        0.6691306063588582,  // c[62]: -sin 2 pi 53/60
        0.7431448254773942,  // c[63]: cos 2 pi 53/60
        0.9135454576426009,  // c[64]: -sin 2 pi 49/60
        0.4067366430758002,  // c[65]: cos 2 pi 49/60
        0.9781476007338057,  // c[66]: -sin 2 pi 47/60
        0.20791169081775934,  // c[67]: cos 2 pi 47/60
        0.016666666666666666,  // c[68]: 1/60
        0.23081456598926853,  // c[69]: Q[10] of 61
        0.12042596856560207,  // c[70]: P[10] of 61
        0.2602823006297202,  // c[71]: Q[20] of 61
        0.005558934851007752,  // c[72]: -P[20] of 61
        0.13017082793177756,  // c[73]: beta of 61
        0.22541108450079606,  // c[74]: -sin 2 pi 2/3 times Q[20] of 61
        0.004814178798955376,  // c[75]: -sin 2 pi 2/3 times -P[20] of 61
        0.19989127771018625,  // c[76]: -sin 2 pi 2/3 times Q[10] of 61
        0.10429194805315764,  // c[77]: -sin 2 pi 2/3 times P[10] of 61
        0.4330127018922193,  // c[78]: -sin 2 pi 2/3 times -cos 2 pi 2/3
        0.75,  // c[79]: -sin 2 pi 2/3 times -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3, multiplier 2
        const V x47 = io.in(47);
        const V x13 = io.in(13);
        const V t0 = x47 + x13;
        const V t1 = x47 - x13;
        const V x1 = io.in(1);
        const V t2 = t0 + x1;
        const V t3 = c[4] * t0;
        const V t4 = x1 - t3;
        const V t5 = c[5] * t1;
        // real block of 3, multiplier 2
        const V x57 = io.in(57);
        const V x56 = io.in(56);
        const V t6 = x57 + x56;
        const V t7 = x57 - x56;
        const V x9 = io.in(9);
        const V t8 = t6 + x9;
        const V t9 = c[4] * t6;
        const V t10 = x9 - t9;
        const V t11 = c[5] * t7;
        // real block of 3, multiplier 2
        const V x25 = io.in(25);
        const V x16 = io.in(16);
        const V t12 = x25 + x16;
        const V t13 = x25 - x16;
        const V x20 = io.in(20);
        const V t14 = t12 + x20;
        const V t15 = c[4] * t12;
        const V t16 = x20 - t15;
        const V t17 = c[5] * t13;
        // real block of 3, multiplier 2
        const V x42 = io.in(42);
        const V x22 = io.in(22);
        const V t18 = x42 + x22;
        const V t19 = x42 - x22;
        const V x58 = io.in(58);
        const V t20 = t18 + x58;
        const V t21 = c[4] * t18;
        const V t22 = x58 - t21;
        const V t23 = c[5] * t19;
        // real block of 3, multiplier 2
        const V x12 = io.in(12);
        const V x15 = io.in(15);
        const V t24 = x12 + x15;
        const V t25 = x12 - x15;
        const V x34 = io.in(34);
        const V t26 = t24 + x34;
        const V t27 = c[4] * t24;
        const V t28 = x34 - t27;
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
        const V x29 = io.in(29);
        const V x21 = io.in(21);
        const V t98 = x29 + x21;
        const V t99 = x29 - x21;
        const V x11 = io.in(11);
        const V t100 = t98 + x11;
        const V t101 = c[4] * t98;
        const V t102 = x11 - t101;
        const V t103 = c[5] * t99;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x6 = io.in(6);
        const V t104 = x17 + x6;
        const V t105 = x17 - x6;
        const V x38 = io.in(38);
        const V t106 = t104 + x38;
        const V t107 = c[4] * t104;
        const V t108 = x38 - t107;
        const V t109 = c[5] * t105;
        // real block of 3, multiplier 2
        const V x31 = io.in(31);
        const V x54 = io.in(54);
        const V t110 = x31 + x54;
        const V t111 = x31 - x54;
        const V x37 = io.in(37);
        const V t112 = t110 + x37;
        const V t113 = c[4] * t110;
        const V t114 = x37 - t113;
        const V t115 = c[5] * t111;
        // real block of 3, multiplier 2
        const V x35 = io.in(35);
        const V x59 = io.in(59);
        const V t116 = x35 + x59;
        const V t117 = x35 - x59;
        const V x28 = io.in(28);
        const V t118 = t116 + x28;
        const V t119 = c[4] * t116;
        const V t120 = x28 - t119;
        const V t121 = c[5] * t117;
        // real block of 3, multiplier 2
        const V x10 = io.in(10);
        const V x43 = io.in(43);
        const V t122 = x10 + x43;
        const V t123 = x10 - x43;
        const V x8 = io.in(8);
        const V t124 = t122 + x8;
        const V t125 = c[4] * t122;
        const V t126 = x8 - t125;
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
        const V x14 = io.in(14);
        const V x48 = io.in(48);
        const V t196 = x14 + x48;
        const V t197 = x14 - x48;
        const V x60 = io.in(60);
        const V t198 = t196 + x60;
        const V t199 = c[4] * t196;
        const V t200 = x60 - t199;
        const V t201 = c[5] * t197;
        // real block of 3, multiplier 2
        const V x4 = io.in(4);
        const V x5 = io.in(5);
        const V t202 = x4 + x5;
        const V t203 = x4 - x5;
        const V x52 = io.in(52);
        const V t204 = t202 + x52;
        const V t205 = c[4] * t202;
        const V t206 = x52 - t205;
        const V t207 = c[5] * t203;
        // real block of 3, multiplier 2
        const V x36 = io.in(36);
        const V x45 = io.in(45);
        const V t208 = x36 + x45;
        const V t209 = x36 - x45;
        const V x41 = io.in(41);
        const V t210 = t208 + x41;
        const V t211 = c[4] * t208;
        const V t212 = x41 - t211;
        const V t213 = c[5] * t209;
        // real block of 3, multiplier 2
        const V x19 = io.in(19);
        const V x39 = io.in(39);
        const V t214 = x19 + x39;
        const V t215 = x19 - x39;
        const V x3 = io.in(3);
        const V t216 = t214 + x3;
        const V t217 = c[4] * t214;
        const V t218 = x3 - t217;
        const V t219 = c[5] * t215;
        // real block of 3, multiplier 2
        const V x49 = io.in(49);
        const V x46 = io.in(46);
        const V t220 = x49 + x46;
        const V t221 = x49 - x46;
        const V x27 = io.in(27);
        const V t222 = t220 + x27;
        const V t223 = c[4] * t220;
        const V t224 = x27 - t223;
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
        const V x32 = io.in(32);
        const V x40 = io.in(40);
        const V t294 = x32 + x40;
        const V t295 = x32 - x40;
        const V x50 = io.in(50);
        const V t296 = t294 + x50;
        const V t297 = c[4] * t294;
        const V t298 = x50 - t297;
        const V t299 = c[5] * t295;
        // real block of 3, multiplier 2
        const V x44 = io.in(44);
        const V x55 = io.in(55);
        const V t300 = x44 + x55;
        const V t301 = x44 - x55;
        const V x23 = io.in(23);
        const V t302 = t300 + x23;
        const V t303 = c[4] * t300;
        const V t304 = x23 - t303;
        const V t305 = c[5] * t301;
        // real block of 3, multiplier 2
        const V x30 = io.in(30);
        const V x7 = io.in(7);
        const V t306 = x30 + x7;
        const V t307 = x30 - x7;
        const V x24 = io.in(24);
        const V t308 = t306 + x24;
        const V t309 = c[4] * t306;
        const V t310 = x24 - t309;
        const V t311 = c[5] * t307;
        // real block of 3, multiplier 2
        const V x26 = io.in(26);
        const V x2 = io.in(2);
        const V t312 = x26 + x2;
        const V t313 = x26 - x2;
        const V x33 = io.in(33);
        const V t314 = t312 + x33;
        const V t315 = c[4] * t312;
        const V t316 = x33 - t315;
        const V t317 = c[5] * t313;
        // real block of 3, multiplier 2
        const V x51 = io.in(51);
        const V x18 = io.in(18);
        const V t318 = x51 + x18;
        const V t319 = x51 - x18;
        const V x53 = io.in(53);
        const V t320 = t318 + x53;
        const V t321 = c[4] * t318;
        const V t322 = x53 - t321;
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
        // real block of 61
        const V x0 = io.in(0);
        const V t510 = x0 + t396;
        io.re(0, t510);
        const V t511 = c[68] * t396;
        const V t512 = x0 - t511;
        const V t513 = c[6] * t461;
        const V t514 = c[7] * t460;
        const V t515 = t514 + t513;
        const V t516 = c[6] * t460;
        const V t517 = c[7] * t461;
        const V t518 = t517 - t516;
        const V t519 = c[8] * t505;
        const V t520 = c[9] * t504;
        const V t521 = t520 + t519;
        const V t522 = c[8] * t504;
        const V t523 = c[9] * t505;
        const V t524 = t522 - t523;
        const V t525 = c[10] * t445;
        const V t526 = c[11] * t444;
        const V t527 = t526 + t525;
        const V t528 = c[10] * t444;
        const V t529 = c[11] * t445;
        const V t530 = t528 - t529;
        const V t531 = c[12] * t407;
        const V t532 = c[13] * t406;
        const V t533 = t531 - t532;
        const V t534 = c[12] * t406;
        const V t535 = c[13] * t407;
        const V t536 = t535 + t534;
        const V t537 = c[14] * t477;
        const V t538 = c[15] * t476;
        const V t539 = t538 + t537;
        const V t540 = c[14] * t476;
        const V t541 = c[15] * t477;
        const V t542 = t541 - t540;
        const V t543 = c[16] * t489;
        const V t544 = c[17] * t488;
        const V t545 = t544 + t543;
        const V t546 = c[16] * t488;
        const V t547 = c[17] * t489;
        const V t548 = t546 - t547;
        const V t549 = c[18] * t429;
        const V t550 = c[19] * t428;
        const V t551 = t549 - t550;
        const V t552 = c[18] * t428;
        const V t553 = c[19] * t429;
        const V t554 = t553 + t552;
        const V t555 = c[20] * t423;
        const V t556 = c[21] * t422;
        const V t557 = t556 - t555;
        const V t558 = c[20] * t422;
        const V t559 = c[21] * t423;
        const V t560 = t559 + t558;
        const V t561 = c[22] * t493;
        const V t562 = c[23] * t492;
        const V t563 = t562 - t561;
        const V t564 = c[22] * t492;
        const V t565 = c[23] * t493;
        const V t566 = t565 + t564;
        const V t567 = c[69] * t473;
        const V t568 = c[70] * t472;
        const V t569 = t568 + t567;
        const V t570 = c[24] * t413;
        const V t571 = c[25] * t412;
        const V t572 = t571 + t570;
        const V t573 = c[24] * t412;
        const V t574 = c[25] * t413;
        const V t575 = t573 - t574;
        const V t576 = c[26] * t439;
        const V t577 = c[27] * t438;
        const V t578 = t576 - t577;
        const V t579 = c[26] * t438;
        const V t580 = c[27] * t439;
        const V t581 = t580 + t579;
        const V t582 = c[28] * t509;
        const V t583 = c[29] * t508;
        const V t584 = t582 - t583;
        const V t585 = c[28] * t508;
        const V t586 = c[29] * t509;
        const V t587 = t586 + t585;
        const V t588 = c[30] * t457;
        const V t589 = c[31] * t456;
        const V t590 = t588 - t589;
        const V t591 = c[30] * t456;
        const V t592 = c[31] * t457;
        const V t593 = t592 + t591;
        const V t594 = c[32] * t395;
        const V t595 = c[33] * t393;
        const V t596 = t594 - t595;
        const V t597 = c[32] * t393;
        const V t598 = c[33] * t395;
        const V t599 = t598 + t597;
        const V t600 = c[34] * t455;
        const V t601 = c[35] * t454;
        const V t602 = t601 + t600;
        const V t603 = c[34] * t454;
        const V t604 = c[35] * t455;
        const V t605 = t603 - t604;
        const V t606 = c[36] * t507;
        const V t607 = c[37] * t506;
        const V t608 = t607 + t606;
        const V t609 = c[36] * t506;
        const V t610 = c[37] * t507;
        const V t611 = t609 - t610;
        const V t612 = c[38] * t441;
        const V t613 = c[39] * t440;
        const V t614 = t613 - t612;
        const V t615 = c[38] * t440;
        const V t616 = c[39] * t441;
        const V t617 = t616 + t615;
        const V t618 = c[40] * t411;
        const V t619 = c[41] * t410;
        const V t620 = t618 - t619;
        const V t621 = c[40] * t410;
        const V t622 = c[41] * t411;
        const V t623 = t622 + t621;
        const V t624 = c[71] * t471;
        const V t625 = c[72] * t470;
        const V t626 = t625 + t624;
        const V t627 = c[42] * t491;
        const V t628 = c[43] * t490;
        const V t629 = t628 + t627;
        const V t630 = c[42] * t490;
        const V t631 = c[43] * t491;
        const V t632 = t630 - t631;
        const V t633 = c[44] * t425;
        const V t634 = c[45] * t424;
        const V t635 = t633 - t634;
        const V t636 = c[44] * t424;
        const V t637 = c[45] * t425;
        const V t638 = t637 + t636;
        const V t639 = c[46] * t427;
        const V t640 = c[47] * t426;
        const V t641 = t639 - t640;
        const V t642 = c[46] * t426;
        const V t643 = c[47] * t427;
        const V t644 = t643 + t642;
        const V t645 = c[48] * t487;
        const V t646 = c[49] * t486;
        const V t647 = t646 + t645;
        const V t648 = c[48] * t486;
        const V t649 = c[49] * t487;
        const V t650 = t649 - t648;
        const V t651 = c[50] * t475;
        const V t652 = c[51] * t474;
        const V t653 = t651 - t652;
        const V t654 = c[50] * t474;
        const V t655 = c[51] * t475;
        const V t656 = t655 + t654;
        const V t657 = c[52] * t409;
        const V t658 = c[53] * t408;
        const V t659 = t657 - t658;
        const V t660 = c[52] * t408;
        const V t661 = c[53] * t409;
        const V t662 = t661 + t660;
        const V t663 = c[54] * t443;
        const V t664 = c[55] * t442;
        const V t665 = t663 - t664;
        const V t666 = c[54] * t442;
        const V t667 = c[55] * t443;
        const V t668 = t667 + t666;
        const V t669 = c[56] * t503;
        const V t670 = c[57] * t502;
        const V t671 = t670 - t669;
        const V t672 = c[56] * t502;
        const V t673 = c[57] * t503;
        const V t674 = t673 + t672;
        const V t675 = c[58] * t459;
        const V t676 = c[59] * t458;
        const V t677 = t675 - t676;
        const V t678 = c[58] * t458;
        const V t679 = c[59] * t459;
        const V t680 = t679 + t678;
        const V t681 = c[73] * t397;
        // spectrum block of 3
        const V t682 = t512 - t626;
        const V t683 = c[4] * t626;
        const V t684 = t683 + t512;
        const V t685 = c[74] * t470;
        const V t686 = c[75] * t471;
        const V t687 = t685 - t686;
        const V t688 = t684 - t687;
        const V t689 = t684 + t687;
        // complex block of 3
        const V t690 = t662 - t593;
        const V t691 = t659 + t590;
        const V t692 = t662 + t593;
        const V t693 = t659 - t590;
        const V t694 = t690 + t548;
        const V t695 = t691 + t545;
        const V t696 = c[4] * t690;
        const V t697 = t548 - t696;
        const V t698 = c[4] * t691;
        const V t699 = t545 - t698;
        const V t700 = c[5] * t692;
        const V t701 = c[5] * t693;
        const V t702 = t697 + t701;
        const V t703 = t699 - t700;
        const V t704 = t697 - t701;
        const V t705 = t699 + t700;
        // complex block of 3
        const V t706 = t674 - t560;
        const V t707 = t671 + t557;
        const V t708 = t674 + t560;
        const V t709 = t671 - t557;
        const V t710 = t706 + t581;
        const V t711 = t707 + t578;
        const V t712 = c[4] * t706;
        const V t713 = t581 - t712;
        const V t714 = c[4] * t707;
        const V t715 = t578 - t714;
        const V t716 = c[5] * t708;
        const V t717 = c[5] * t709;
        const V t718 = t713 + t717;
        const V t719 = t715 - t716;
        const V t720 = t713 - t717;
        const V t721 = t715 + t716;
        // complex block of 3
        const V t722 = t638 + t524;
        const V t723 = t635 + t521;
        const V t724 = t524 - t638;
        const V t725 = t635 - t521;
        const V t726 = t722 + t617;
        const V t727 = t723 + t614;
        const V t728 = c[4] * t722;
        const V t729 = t728 - t617;
        const V t730 = c[4] * t723;
        const V t731 = t614 - t730;
        const V t732 = c[5] * t724;
        const V t733 = c[5] * t725;
        const V t734 = t729 + t733;
        const V t735 = t731 - t732;
        const V t736 = t729 - t733;
        const V t737 = t731 + t732;
        // complex block of 3
        const V t738 = t536 - t605;
        const V t739 = t602 + t533;
        const V t740 = t605 + t536;
        const V t741 = t602 - t533;
        const V t742 = t738 + t650;
        const V t743 = t739 + t647;
        const V t744 = c[4] * t738;
        const V t745 = t650 - t744;
        const V t746 = c[4] * t739;
        const V t747 = t647 - t746;
        const V t748 = c[5] * t740;
        const V t749 = c[5] * t741;
        const V t750 = t745 + t749;
        const V t751 = t747 + t748;
        const V t752 = t745 - t749;
        const V t753 = t747 - t748;
        // spectrum block of 3
        const V t754 = t569 + t681;
        const V t755 = c[4] * t569;
        const V t756 = t681 - t755;
        const V t757 = c[76] * t472;
        const V t758 = c[77] * t473;
        const V t759 = t757 - t758;
        const V t760 = t756 + t759;
        const V t761 = t756 - t759;
        // spectrum block of 5
        const V t762 = t711 + t743;
        const V t763 = t762 + t682;
        const V t764 = c[1] * t711;
        const V t765 = c[0] * t743;
        const V t766 = t764 - t765;
        const V t767 = t766 + t682;
        const V t768 = c[3] * t710;
        const V t769 = c[2] * t742;
        const V t770 = t768 + t769;
        const V t771 = t770 - t767;
        const V t772 = t767 + t770;
        const V t773 = c[0] * t711;
        const V t774 = t682 - t773;
        const V t775 = c[1] * t743;
        const V t776 = t774 + t775;
        const V t777 = c[2] * t710;
        const V t778 = c[3] * t742;
        const V t779 = t777 - t778;
        const V t780 = t776 - t779;
        const V t781 = t776 + t779;
        // spectrum block of 5
        const V t782 = t727 + t695;
        const V t783 = t782 + t754;
        const V t784 = c[1] * t727;
        const V t785 = c[0] * t695;
        const V t786 = t784 - t785;
        const V t787 = t786 + t754;
        const V t788 = c[3] * t726;
        const V t789 = c[2] * t694;
        const V t790 = t788 - t789;
        const V t791 = t787 - t790;
        const V t792 = t787 + t790;
        const V t793 = c[0] * t727;
        const V t794 = t754 - t793;
        const V t795 = c[1] * t695;
        const V t796 = t794 + t795;
        const V t797 = c[2] * t726;
        const V t798 = c[3] * t694;
        const V t799 = t797 + t798;
        const V t800 = t796 - t799;
        const V t801 = t796 + t799;
        // spectrum block of 2
        const V t802 = t763 + t783;
        io.re(1, t802);
        const V t803 = t763 - t783;
        io.re(11, t803);
        // spectrum block of 2
        const V t804 = t791 - t771;
        io.re(20, t804);
        const V t805 = t771 + t791;
        io.minusRe(24, t805);
        // spectrum block of 2
        const V t806 = t780 + t800;
        io.re(27, t806);
        const V t807 = t780 - t800;
        io.re(8, t807);
        // spectrum block of 2
        const V t808 = t781 + t801;
        io.re(9, t808);
        const V t809 = t781 - t801;
        io.re(23, t809);
        // spectrum block of 2
        const V t810 = t772 + t792;
        io.re(3, t810);
        const V t811 = t772 - t792;
        io.re(28, t811);
        // spectrum block of 5
        const V t812 = t719 + t751;
        const V t813 = t812 + t688;
        const V t814 = c[1] * t719;
        const V t815 = c[0] * t751;
        const V t816 = t814 - t815;
        const V t817 = t816 + t688;
        const V t818 = c[3] * t718;
        const V t819 = c[2] * t750;
        const V t820 = t818 + t819;
        const V t821 = t817 - t820;
        const V t822 = t817 + t820;
        const V t823 = c[0] * t719;
        const V t824 = t688 - t823;
        const V t825 = c[1] * t751;
        const V t826 = t824 + t825;
        const V t827 = c[2] * t718;
        const V t828 = c[3] * t750;
        const V t829 = t827 - t828;
        const V t830 = t826 - t829;
        const V t831 = t826 + t829;
        // spectrum block of 5
        const V t832 = t735 + t703;
        const V t833 = t832 + t760;
        const V t834 = c[1] * t735;
        const V t835 = c[0] * t703;
        const V t836 = t834 - t835;
        const V t837 = t836 + t760;
        const V t838 = c[3] * t734;
        const V t839 = c[2] * t702;
        const V t840 = t838 + t839;
        const V t841 = t837 + t840;
        const V t842 = t837 - t840;
        const V t843 = c[0] * t735;
        const V t844 = t760 - t843;
        const V t845 = c[1] * t703;
        const V t846 = t844 + t845;
        const V t847 = c[2] * t734;
        const V t848 = c[3] * t702;
        const V t849 = t848 - t847;
        const V t850 = t846 - t849;
        const V t851 = t846 + t849;
        // spectrum block of 2
        const V t852 = t813 + t833;
        io.re(14, t852);
        const V t853 = t813 - t833;
        io.re(29, t853);
        // spectrum block of 2
        const V t854 = t821 + t841;
        io.re(25, t854);
        const V t855 = t821 - t841;
        io.re(30, t855);
        // spectrum block of 2
        const V t856 = t830 + t850;
        io.re(12, t856);
        const V t857 = t830 - t850;
        io.re(10, t857);
        // spectrum block of 2
        const V t858 = t831 + t851;
        io.re(4, t858);
        const V t859 = t831 - t851;
        io.re(17, t859);
        // spectrum block of 2
        const V t860 = t822 + t842;
        io.re(19, t860);
        const V t861 = t822 - t842;
        io.re(26, t861);
        // spectrum block of 5
        const V t862 = t721 + t753;
        const V t863 = t862 + t689;
        const V t864 = c[1] * t721;
        const V t865 = c[0] * t753;
        const V t866 = t864 - t865;
        const V t867 = t866 + t689;
        const V t868 = c[3] * t720;
        const V t869 = c[2] * t752;
        const V t870 = t868 + t869;
        const V t871 = t867 - t870;
        const V t872 = t867 + t870;
        const V t873 = c[0] * t721;
        const V t874 = t689 - t873;
        const V t875 = c[1] * t753;
        const V t876 = t874 + t875;
        const V t877 = c[2] * t720;
        const V t878 = c[3] * t752;
        const V t879 = t877 - t878;
        const V t880 = t876 - t879;
        const V t881 = t876 + t879;
        // spectrum block of 5
        const V t882 = t737 + t705;
        const V t883 = t882 + t761;
        const V t884 = c[1] * t737;
        const V t885 = c[0] * t705;
        const V t886 = t884 - t885;
        const V t887 = t886 + t761;
        const V t888 = c[3] * t736;
        const V t889 = c[2] * t704;
        const V t890 = t888 + t889;
        const V t891 = t887 + t890;
        const V t892 = t887 - t890;
        const V t893 = c[0] * t737;
        const V t894 = t761 - t893;
        const V t895 = c[1] * t705;
        const V t896 = t894 + t895;
        const V t897 = c[2] * t736;
        const V t898 = c[3] * t704;
        const V t899 = t898 - t897;
        const V t900 = t896 - t899;
        const V t901 = t896 + t899;
        // spectrum block of 2
        const V t902 = t863 + t883;
        io.re(13, t902);
        const V t903 = t863 - t883;
        io.re(21, t903);
        // spectrum block of 2
        const V t904 = t871 + t891;
        io.re(16, t904);
        const V t905 = t871 - t891;
        io.re(7, t905);
        // spectrum block of 2
        const V t906 = t880 + t900;
        io.re(15, t906);
        const V t907 = t880 - t900;
        io.re(18, t907);
        // spectrum block of 2
        const V t908 = t881 + t901;
        io.re(5, t908);
        const V t909 = t881 - t901;
        io.re(6, t909);
        // spectrum block of 2
        const V t910 = t872 + t892;
        io.re(22, t910);
        const V t911 = t872 - t892;
        io.re(2, t911);
        // complex block of 2
        const V t912 = t677 - t515;
        const V t913 = t518 + t680;
        const V t914 = t515 + t677;
        const V t915 = t518 - t680;
        // mirrored skew block of 30
        const V t916 = c[60] * t914;
        const V t917 = c[61] * t915;
        const V t918 = t917 + t916;
        const V t919 = c[60] * t915;
        const V t920 = c[61] * t914;
        const V t921 = t919 - t920;
        // complex block of 2
        const V t922 = t665 - t527;
        const V t923 = t530 - t668;
        const V t924 = t527 + t665;
        const V t925 = t530 + t668;
        // mirrored skew block of 30
        const V t926 = c[1] * t924;
        const V t927 = c[3] * t925;
        const V t928 = t927 + t926;
        const V t929 = c[1] * t925;
        const V t930 = c[3] * t924;
        const V t931 = t929 - t930;
        // complex block of 2
        const V t932 = t653 - t539;
        const V t933 = t542 + t656;
        const V t934 = t539 + t653;
        const V t935 = t542 - t656;
        // mirrored skew block of 30
        const V t936 = c[4] * t934;
        const V t937 = c[5] * t935;
        const V t938 = t937 + t936;
        // complex block of 2
        const V t939 = t641 - t551;
        const V t940 = t554 - t644;
        const V t941 = t551 + t641;
        const V t942 = t554 + t644;
        // mirrored skew block of 30
        const V t943 = c[62] * t941;
        const V t944 = c[63] * t942;
        const V t945 = t944 + t943;
        const V t946 = c[62] * t942;
        const V t947 = c[63] * t941;
        const V t948 = t946 - t947;
        // complex block of 2
        const V t949 = t629 - t563;
        const V t950 = t566 + t632;
        const V t951 = t563 + t629;
        const V t952 = t566 - t632;
        // mirrored skew block of 30
        const V t953 = c[0] * t951;
        const V t954 = c[2] * t952;
        const V t955 = t954 + t953;
        const V t956 = c[0] * t952;
        const V t957 = c[2] * t951;
        const V t958 = t956 - t957;
        // complex block of 2
        const V t959 = t620 - t572;
        const V t960 = t575 - t623;
        const V t961 = t572 + t620;
        const V t962 = t575 + t623;
        // mirrored skew block of 30
        const V t963 = c[64] * t961;
        const V t964 = c[65] * t962;
        const V t965 = t964 + t963;
        const V t966 = c[64] * t962;
        const V t967 = c[65] * t961;
        const V t968 = t966 - t967;
        // complex block of 2
        const V t969 = t608 - t584;
        const V t970 = t611 - t587;
        const V t971 = t584 + t608;
        const V t972 = t587 + t611;
        // mirrored skew block of 30
        const V t973 = c[66] * t971;
        const V t974 = c[67] * t972;
        const V t975 = t973 - t974;
        const V t976 = c[66] * t972;
        const V t977 = c[67] * t971;
        const V t978 = t977 + t976;
        // spectrum block of 3
        const V t979 = t933 - t599;
        const V t980 = c[4] * t933;
        const V t981 = t599 + t980;
        const V t982 = c[5] * t932;
        const V t983 = t982 - t981;
        const V t984 = t981 + t982;
        // complex block of 3
        const V t985 = t912 + t959;
        const V t986 = t913 + t960;
        const V t987 = t912 - t959;
        const V t988 = t913 - t960;
        const V t989 = t985 - t949;
        const V t990 = t986 + t950;
        const V t991 = c[4] * t985;
        const V t992 = t949 + t991;
        const V t993 = c[4] * t986;
        const V t994 = t950 - t993;
        const V t995 = c[5] * t987;
        const V t996 = c[5] * t988;
        const V t997 = t996 - t992;
        const V t998 = t994 - t995;
        const V t999 = t992 + t996;
        const V t1000 = t994 + t995;
        // complex block of 3
        const V t1001 = t939 - t969;
        const V t1002 = t940 + t970;
        const V t1003 = t939 + t969;
        const V t1004 = t940 - t970;
        const V t1005 = t1001 - t922;
        const V t1006 = t1002 + t923;
        const V t1007 = c[4] * t1001;
        const V t1008 = t922 + t1007;
        const V t1009 = c[4] * t1002;
        const V t1010 = t923 - t1009;
        const V t1011 = c[5] * t1003;
        const V t1012 = c[5] * t1004;
        const V t1013 = t1012 - t1008;
        const V t1014 = t1010 - t1011;
        const V t1015 = t1008 + t1012;
        const V t1016 = t1010 + t1011;
        // spectrum block of 5
        const V t1017 = t990 + t1006;
        const V t1018 = t1017 + t979;
        io.im(1, t1018);
        const V t1019 = c[1] * t990;
        const V t1020 = c[0] * t1006;
        const V t1021 = t1019 - t1020;
        const V t1022 = t1021 + t979;
        const V t1023 = c[3] * t989;
        const V t1024 = c[2] * t1005;
        const V t1025 = t1023 + t1024;
        const V t1026 = t1022 - t1025;
        io.minusIm(27, t1026);
        const V t1027 = t1022 + t1025;
        io.im(9, t1027);
        const V t1028 = c[0] * t990;
        const V t1029 = t979 - t1028;
        const V t1030 = c[1] * t1006;
        const V t1031 = t1029 + t1030;
        const V t1032 = c[2] * t989;
        const V t1033 = c[3] * t1005;
        const V t1034 = t1032 - t1033;
        const V t1035 = t1031 - t1034;
        io.minusIm(3, t1035);
        const V t1036 = t1031 + t1034;
        io.im(20, t1036);
        // spectrum block of 5
        const V t1037 = t998 + t1014;
        const V t1038 = t1037 + t983;
        io.im(13, t1038);
        const V t1039 = c[1] * t998;
        const V t1040 = c[0] * t1014;
        const V t1041 = t1039 - t1040;
        const V t1042 = t1041 + t983;
        const V t1043 = c[3] * t997;
        const V t1044 = c[2] * t1013;
        const V t1045 = t1043 + t1044;
        const V t1046 = t1042 - t1045;
        io.im(15, t1046);
        const V t1047 = t1042 + t1045;
        io.minusIm(5, t1047);
        const V t1048 = c[0] * t998;
        const V t1049 = t983 - t1048;
        const V t1050 = c[1] * t1014;
        const V t1051 = t1049 + t1050;
        const V t1052 = c[2] * t997;
        const V t1053 = c[3] * t1013;
        const V t1054 = t1052 - t1053;
        const V t1055 = t1051 - t1054;
        io.im(22, t1055);
        const V t1056 = t1051 + t1054;
        io.im(16, t1056);
        // spectrum block of 5
        const V t1057 = t1000 + t1016;
        const V t1058 = t1057 - t984;
        io.minusIm(14, t1058);
        const V t1059 = c[1] * t1000;
        const V t1060 = c[0] * t1016;
        const V t1061 = t1059 - t1060;
        const V t1062 = t1061 - t984;
        const V t1063 = c[3] * t999;
        const V t1064 = c[2] * t1015;
        const V t1065 = t1063 + t1064;
        const V t1066 = t1062 + t1065;
        io.im(12, t1066);
        const V t1067 = t1062 - t1065;
        io.minusIm(4, t1067);
        const V t1068 = c[0] * t1000;
        const V t1069 = t984 + t1068;
        const V t1070 = c[1] * t1016;
        const V t1071 = t1070 - t1069;
        const V t1072 = c[2] * t999;
        const V t1073 = c[3] * t1015;
        const V t1074 = t1073 - t1072;
        const V t1075 = t1071 - t1074;
        io.minusIm(19, t1075);
        const V t1076 = t1071 + t1074;
        io.im(25, t1076);
        // spectrum block of 3
        const V t1077 = t938 + t596;
        const V t1078 = c[4] * t938;
        const V t1079 = t596 - t1078;
        const V t1080 = c[78] * t935;
        const V t1081 = c[79] * t934;
        const V t1082 = t1080 - t1081;
        const V t1083 = t1079 + t1082;
        const V t1084 = t1079 - t1082;
        // complex block of 3
        const V t1085 = t921 + t968;
        const V t1086 = t918 + t965;
        const V t1087 = t921 - t968;
        const V t1088 = t918 - t965;
        const V t1089 = t1085 - t958;
        const V t1090 = t1086 + t955;
        const V t1091 = c[4] * t1085;
        const V t1092 = t958 + t1091;
        const V t1093 = c[4] * t1086;
        const V t1094 = t955 - t1093;
        const V t1095 = c[5] * t1087;
        const V t1096 = c[5] * t1088;
        const V t1097 = t1096 - t1092;
        const V t1098 = t1094 - t1095;
        const V t1099 = t1092 + t1096;
        const V t1100 = t1094 + t1095;
        // complex block of 3
        const V t1101 = t948 + t978;
        const V t1102 = t945 + t975;
        const V t1103 = t948 - t978;
        const V t1104 = t945 - t975;
        const V t1105 = t1101 - t931;
        const V t1106 = t1102 + t928;
        const V t1107 = c[4] * t1101;
        const V t1108 = t931 + t1107;
        const V t1109 = c[4] * t1102;
        const V t1110 = t928 - t1109;
        const V t1111 = c[5] * t1103;
        const V t1112 = c[5] * t1104;
        const V t1113 = t1112 - t1108;
        const V t1114 = t1110 - t1111;
        const V t1115 = t1108 + t1112;
        const V t1116 = t1110 + t1111;
        // spectrum block of 5
        const V t1117 = t1090 + t1106;
        const V t1118 = t1117 + t1077;
        io.minusIm(30, t1118);
        const V t1119 = c[1] * t1090;
        const V t1120 = c[0] * t1106;
        const V t1121 = t1119 - t1120;
        const V t1122 = t1121 + t1077;
        const V t1123 = c[3] * t1089;
        const V t1124 = c[2] * t1105;
        const V t1125 = t1123 + t1124;
        const V t1126 = t1122 - t1125;
        io.im(17, t1126);
        const V t1127 = t1122 + t1125;
        io.minusIm(26, t1127);
        const V t1128 = c[0] * t1090;
        const V t1129 = t1077 - t1128;
        const V t1130 = c[1] * t1106;
        const V t1131 = t1129 + t1130;
        const V t1132 = c[2] * t1089;
        const V t1133 = c[3] * t1105;
        const V t1134 = t1132 - t1133;
        const V t1135 = t1131 - t1134;
        io.im(29, t1135);
        const V t1136 = t1131 + t1134;
        io.im(10, t1136);
        // spectrum block of 5
        const V t1137 = t1098 + t1114;
        const V t1138 = t1137 + t1083;
        io.minusIm(24, t1138);
        const V t1139 = c[1] * t1098;
        const V t1140 = c[0] * t1114;
        const V t1141 = t1139 - t1140;
        const V t1142 = t1141 + t1083;
        const V t1143 = c[3] * t1097;
        const V t1144 = c[2] * t1113;
        const V t1145 = t1143 + t1144;
        const V t1146 = t1142 - t1145;
        io.minusIm(23, t1146);
        const V t1147 = t1142 + t1145;
        io.im(28, t1147);
        const V t1148 = c[0] * t1098;
        const V t1149 = t1083 - t1148;
        const V t1150 = c[1] * t1114;
        const V t1151 = t1149 + t1150;
        const V t1152 = c[2] * t1097;
        const V t1153 = c[3] * t1113;
        const V t1154 = t1152 - t1153;
        const V t1155 = t1151 - t1154;
        io.im(11, t1155);
        const V t1156 = t1151 + t1154;
        io.im(8, t1156);
        // spectrum block of 5
        const V t1157 = t1100 + t1116;
        const V t1158 = t1157 + t1084;
        io.minusIm(7, t1158);
        const V t1159 = c[1] * t1100;
        const V t1160 = c[0] * t1116;
        const V t1161 = t1159 - t1160;
        const V t1162 = t1161 + t1084;
        const V t1163 = c[3] * t1099;
        const V t1164 = c[2] * t1115;
        const V t1165 = t1163 + t1164;
        const V t1166 = t1162 + t1165;
        io.im(6, t1166);
        const V t1167 = t1162 - t1165;
        io.minusIm(2, t1167);
        const V t1168 = c[0] * t1100;
        const V t1169 = t1084 - t1168;
        const V t1170 = c[1] * t1116;
        const V t1171 = t1169 + t1170;
        const V t1172 = c[2] * t1099;
        const V t1173 = c[3] * t1115;
        const V t1174 = t1173 - t1172;
        const V t1175 = t1171 - t1174;
        io.im(21, t1175);
        const V t1176 = t1171 + t1174;
        io.minusIm(18, t1176);
    }
};

}  // namespace zulg
