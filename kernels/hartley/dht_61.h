// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 61.
// Hartley transform of 61 points, form F.
// 433 additions, 389 subtractions, 415 multiplications (476 with `scale`); 80 constants; 103 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<61> {
    static constexpr int steps = 1298;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.23576264945389142,  // c[6]: -Q[15] of 61
        0.11042531820311542,  // c[7]: -P[15] of 61
        0.19643012582250524,  // c[8]: -P[12] of 61
        0.17085954303793666,  // c[9]: Q[12] of 61
        0.12208153447883048,  // c[10]: P[18] of 61
        0.22994320324173947,  // c[11]: -Q[18] of 61
        0.10340917490170637,  // c[12]: Q[3] of 61
        0.23892325195327072,  // c[13]: P[3] of 61
        0.0335460689418391,  // c[14]: -Q[27] of 61
        0.25817133658934166,  // c[15]: -P[27] of 61
        0.2514915834033143,  // c[16]: P[24] of 61
        0.0673035010610264,  // c[17]: -Q[24] of 61
        0.1602815043062281,  // c[18]: P[6] of 61
        0.20515266792101527,  // c[19]: Q[6] of 61
        0.09068761161102994,  // c[20]: Q[9] of 61
        0.24403592948183833,  // c[21]: P[9] of 61
        0.04709103298244708,  // c[22]: Q[21] of 61
        0.256047285458026,  // c[23]: P[21] of 61
        0.1053660297660444,  // c[24]: -Q[5] of 61
        0.2380667501964918,  // c[25]: P[5] of 61
        0.1154342549547329,  // c[26]: Q[25] of 61
        0.23335104576758062,  // c[27]: -P[25] of 61
        0.035854723233524656,  // c[28]: -P[4] of 61
        0.2578608473569129,  // c[29]: Q[4] of 61
        0.1680594978185787,  // c[30]: -P[26] of 61
        0.1988310412655552,  // c[31]: Q[26] of 61
        0.13608829619444565,  // c[32]: -P[19] of 61
        0.22194087820108896,  // c[33]: -Q[19] of 61
        0.24096799804842803,  // c[34]: P[11] of 61
        0.09855050326766758,  // c[35]: Q[11] of 61
        0.2503173720628796,  // c[36]: P[16] of 61
        0.07154712447968609,  // c[37]: Q[16] of 61
        0.25795829907156226,  // c[38]: -P[14] of 61
        0.035146745480687275,  // c[39]: Q[14] of 61
        0.1192479770652986,  // c[40]: -P[29] of 61
        0.2314253610640195,  // c[41]: Q[29] of 61
        0.20918808865965802,  // c[42]: P[1] of 61
        0.15497780918795065,  // c[43]: -Q[1] of 61
        0.25061611613274265,  // c[44]: P[8] of 61
        0.07049354660050404,  // c[45]: Q[8] of 61
        0.02612376015167778,  // c[46]: -P[22] of 61
        0.25902765669579647,  // c[47]: Q[22] of 61
        0.09177478132326014,  // c[48]: -P[23] of 61
        0.24362915936079071,  // c[49]: -Q[23] of 61
        0.2406977012179139,  // c[50]: -P[7] of 61
        0.09920884237904212,  // c[51]: Q[7] of 61
        0.21139251213699267,  // c[52]: P[28] of 61
        0.15195717683014903,  // c[53]: -Q[28] of 61
        0.20457446421174474,  // c[54]: P[2] of 61
        0.16101883855703142,  // c[55]: Q[2] of 61
        0.20961095261841867,  // c[56]: P[17] of 61
        0.15440539602027134,  // c[57]: Q[17] of 61
        0.25591390402746017,  // c[58]: -P[13] of 61
        0.047810579406671994,  // c[59]: -Q[13] of 61
        0.10452846326765347,  // c[60]: -sin 2 pi 59/60
        0.9945218953682733,  // c[61]: cos 2 pi 59/60
        0.9135454576426009,  // c[62]: -sin 2 pi 49/60
        0.4067366430758002,  // c[63]: cos 2 pi 49/60
        0.6691306063588582,  // c[64]: -sin 2 pi 53/60
        0.7431448254773942,  // c[65]: cos 2 pi 53/60
        0.9781476007338057,  // c[66]: -sin 2 pi 47/60
        0.20791169081775934,  // c[67]: cos 2 pi 47/60
        0.016666666666666666,  // c[68]: 1/60
        0.005558934851007752,  // c[69]: -P[20] of 61
        0.2602823006297202,  // c[70]: Q[20] of 61
        0.12042596856560207,  // c[71]: P[10] of 61
        0.23081456598926853,  // c[72]: Q[10] of 61
        0.22541108450079606,  // c[73]: -sin 2 pi 2/3 times Q[20] of 61
        0.004814178798955376,  // c[74]: -sin 2 pi 2/3 times -P[20] of 61
        0.13017082793177756,  // c[75]: beta of 61
        0.19989127771018625,  // c[76]: -sin 2 pi 2/3 times Q[10] of 61
        0.10429194805315764,  // c[77]: -sin 2 pi 2/3 times P[10] of 61
        0.4330127018922193,  // c[78]: -sin 2 pi 2/3 times -cos 2 pi 2/3
        0.75,  // c[79]: -sin 2 pi 2/3 times -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 3, multiplier 2
        const V x57 = io.in(57);
        const V x56 = io.in(56);
        const V t0 = x57 + x56;
        const V t1 = x57 - x56;
        const V x9 = io.in(9);
        const V t2 = t0 + x9;
        const V t3 = c[4] * t0;
        const V t4 = x9 - t3;
        const V t5 = c[5] * t1;
        // real block of 3, multiplier 2
        const V x12 = io.in(12);
        const V x15 = io.in(15);
        const V t6 = x12 + x15;
        const V t7 = x12 - x15;
        const V x34 = io.in(34);
        const V t8 = t6 + x34;
        const V t9 = c[4] * t6;
        const V t10 = x34 - t9;
        const V t11 = c[5] * t7;
        // real block of 3, multiplier 2
        const V x47 = io.in(47);
        const V x13 = io.in(13);
        const V t12 = x47 + x13;
        const V t13 = x47 - x13;
        const V t14 = c[4] * t12;
        // real block of 3, multiplier 2
        const V x25 = io.in(25);
        const V x16 = io.in(16);
        const V t15 = x25 + x16;
        const V t16 = x25 - x16;
        const V x20 = io.in(20);
        const V t17 = t15 + x20;
        const V t18 = c[4] * t15;
        const V t19 = x20 - t18;
        const V t20 = c[5] * t16;
        // real block of 3, multiplier 2
        const V x42 = io.in(42);
        const V x22 = io.in(22);
        const V t21 = x42 + x22;
        const V t22 = x42 - x22;
        const V x58 = io.in(58);
        const V t23 = t21 + x58;
        const V t24 = c[4] * t21;
        const V t25 = x58 - t24;
        const V t26 = c[5] * t22;
        // real block of 3, multiplier 2
        const V x1 = io.in(1);
        const V t27 = t12 + x1;
        // real block of 5, multiplier 2
        const V t28 = t2 + t8;
        const V t29 = c[0] * t28;
        const V t30 = c[1] * t28;
        const V t31 = t23 + t17;
        const V t32 = c[0] * t31;
        const V t33 = t28 + t31;
        const V t34 = t27 - t29;
        const V t35 = c[1] * t31;
        const V t36 = t30 - t32;
        // real block of 3, multiplier 2
        const V t37 = x1 - t14;
        // complex block of 5, multiplier 2
        const V t38 = t4 + t10;
        const V t39 = c[1] * t38;
        const V t40 = c[0] * t38;
        const V t41 = t25 + t19;
        const V t42 = c[0] * t41;
        const V t43 = t38 + t41;
        const V t44 = t39 - t42;
        const V t45 = t37 - t40;
        const V t46 = c[1] * t41;
        // real block of 3, multiplier 2
        const V t47 = c[5] * t13;
        // complex block of 5, multiplier 2
        const V t48 = t5 + t11;
        const V t49 = c[1] * t48;
        const V t50 = c[0] * t48;
        const V t51 = t26 + t20;
        const V t52 = c[0] * t51;
        const V t53 = t48 + t51;
        const V t54 = t49 - t52;
        const V t55 = t47 - t50;
        const V t56 = c[1] * t51;
        // real block of 5, multiplier 2
        const V t57 = t2 - t8;
        const V t58 = c[2] * t57;
        const V t59 = c[3] * t57;
        const V t60 = t23 - t17;
        const V t61 = c[3] * t60;
        const V t62 = c[2] * t60;
        // complex block of 5, multiplier 2
        const V t63 = t4 - t10;
        const V t64 = c[3] * t63;
        const V t65 = c[2] * t63;
        const V t66 = t5 - t11;
        const V t67 = c[3] * t66;
        const V t68 = c[2] * t66;
        const V t69 = t26 - t20;
        const V t70 = c[2] * t69;
        const V t71 = c[3] * t69;
        const V t72 = t67 - t70;
        const V t73 = t68 + t71;
        const V t74 = t25 - t19;
        const V t75 = c[2] * t74;
        const V t76 = c[3] * t74;
        // real block of 3, multiplier 2
        const V x26 = io.in(26);
        const V x2 = io.in(2);
        const V t77 = x26 + x2;
        const V t78 = x26 - x2;
        const V x33 = io.in(33);
        const V t79 = t77 + x33;
        const V t80 = c[4] * t77;
        const V t81 = x33 - t80;
        const V t82 = c[5] * t78;
        // real block of 3, multiplier 2
        const V x30 = io.in(30);
        const V x7 = io.in(7);
        const V t83 = x30 + x7;
        const V t84 = x30 - x7;
        const V x24 = io.in(24);
        const V t85 = t83 + x24;
        const V t86 = c[4] * t83;
        const V t87 = x24 - t86;
        const V t88 = c[5] * t84;
        // real block of 3, multiplier 2
        const V x51 = io.in(51);
        const V x18 = io.in(18);
        const V t89 = x51 + x18;
        const V t90 = x51 - x18;
        const V x53 = io.in(53);
        const V t91 = t89 + x53;
        const V t92 = c[4] * t89;
        const V t93 = x53 - t92;
        const V t94 = c[5] * t90;
        // real block of 3, multiplier 2
        const V x44 = io.in(44);
        const V x55 = io.in(55);
        const V t95 = x44 + x55;
        const V t96 = x44 - x55;
        const V x23 = io.in(23);
        const V t97 = t95 + x23;
        const V t98 = c[4] * t95;
        const V t99 = x23 - t98;
        const V t100 = c[5] * t96;
        // real block of 3, multiplier 2
        const V x32 = io.in(32);
        const V x40 = io.in(40);
        const V t101 = x32 + x40;
        const V t102 = x32 - x40;
        const V t103 = c[4] * t101;
        const V x50 = io.in(50);
        const V t104 = t101 + x50;
        // real block of 5, multiplier 2
        const V t105 = t97 + t91;
        const V t106 = c[0] * t105;
        const V t107 = c[1] * t105;
        const V t108 = t79 + t85;
        const V t109 = c[0] * t108;
        const V t110 = t105 + t108;
        const V t111 = t104 - t106;
        const V t112 = c[1] * t108;
        const V t113 = t107 - t109;
        // real block of 3, multiplier 2
        const V t114 = x50 - t103;
        // complex block of 5, multiplier 2
        const V t115 = t99 + t93;
        const V t116 = c[1] * t115;
        const V t117 = c[0] * t115;
        const V t118 = t81 + t87;
        const V t119 = c[0] * t118;
        const V t120 = t115 + t118;
        const V t121 = t116 - t119;
        const V t122 = t114 - t117;
        const V t123 = c[1] * t118;
        // real block of 3, multiplier 2
        const V t124 = c[5] * t102;
        // complex block of 5, multiplier 2
        const V t125 = t100 + t94;
        const V t126 = c[1] * t125;
        const V t127 = c[0] * t125;
        const V t128 = t82 + t88;
        const V t129 = c[0] * t128;
        const V t130 = t125 + t128;
        const V t131 = t126 - t129;
        const V t132 = t124 - t127;
        const V t133 = c[1] * t128;
        // real block of 5, multiplier 2
        const V t134 = t97 - t91;
        const V t135 = c[2] * t134;
        const V t136 = c[3] * t134;
        const V t137 = t79 - t85;
        const V t138 = c[3] * t137;
        const V t139 = c[2] * t137;
        // complex block of 5, multiplier 2
        const V t140 = t99 - t93;
        const V t141 = c[3] * t140;
        const V t142 = c[2] * t140;
        const V t143 = t100 - t94;
        const V t144 = c[3] * t143;
        const V t145 = c[2] * t143;
        const V t146 = t82 - t88;
        const V t147 = c[2] * t146;
        const V t148 = c[3] * t146;
        const V t149 = t144 - t147;
        const V t150 = t145 + t148;
        const V t151 = t81 - t87;
        const V t152 = c[2] * t151;
        const V t153 = c[3] * t151;
        // real block of 3, multiplier 2
        const V x19 = io.in(19);
        const V x39 = io.in(39);
        const V t154 = x19 + x39;
        const V t155 = x19 - x39;
        const V x3 = io.in(3);
        const V t156 = t154 + x3;
        const V t157 = c[4] * t154;
        const V t158 = x3 - t157;
        const V t159 = c[5] * t155;
        // real block of 3, multiplier 2
        const V x4 = io.in(4);
        const V x5 = io.in(5);
        const V t160 = x4 + x5;
        const V t161 = x4 - x5;
        const V x52 = io.in(52);
        const V t162 = t160 + x52;
        const V t163 = c[4] * t160;
        const V t164 = x52 - t163;
        const V t165 = c[5] * t161;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x48 = io.in(48);
        const V t166 = x14 + x48;
        const V t167 = x14 - x48;
        const V t168 = c[4] * t166;
        // real block of 3, multiplier 2
        const V x49 = io.in(49);
        const V x46 = io.in(46);
        const V t169 = x49 + x46;
        const V t170 = x49 - x46;
        const V x27 = io.in(27);
        const V t171 = t169 + x27;
        const V t172 = c[4] * t169;
        const V t173 = x27 - t172;
        const V t174 = c[5] * t170;
        // real block of 3, multiplier 2
        const V x36 = io.in(36);
        const V x45 = io.in(45);
        const V t175 = x36 + x45;
        const V t176 = x36 - x45;
        const V x41 = io.in(41);
        const V t177 = t175 + x41;
        const V t178 = c[4] * t175;
        const V t179 = x41 - t178;
        const V t180 = c[5] * t176;
        // real block of 3, multiplier 2
        const V x60 = io.in(60);
        const V t181 = t166 + x60;
        // real block of 5, multiplier 2
        const V t182 = t162 + t171;
        const V t183 = c[0] * t182;
        const V t184 = c[1] * t182;
        const V t185 = t156 + t177;
        const V t186 = c[0] * t185;
        const V t187 = t182 + t185;
        const V t188 = t181 - t183;
        const V t189 = c[1] * t185;
        const V t190 = t184 - t186;
        // real block of 3, multiplier 2
        const V t191 = x60 - t168;
        // complex block of 5, multiplier 2
        const V t192 = t164 + t173;
        const V t193 = c[1] * t192;
        const V t194 = c[0] * t192;
        const V t195 = t158 + t179;
        const V t196 = c[0] * t195;
        const V t197 = t192 + t195;
        const V t198 = t193 - t196;
        const V t199 = t191 - t194;
        const V t200 = c[1] * t195;
        // real block of 3, multiplier 2
        const V t201 = c[5] * t167;
        // complex block of 5, multiplier 2
        const V t202 = t165 + t174;
        const V t203 = c[1] * t202;
        const V t204 = c[0] * t202;
        const V t205 = t159 + t180;
        const V t206 = c[0] * t205;
        const V t207 = t202 + t205;
        const V t208 = t203 - t206;
        const V t209 = t201 - t204;
        const V t210 = c[1] * t205;
        // real block of 5, multiplier 2
        const V t211 = t162 - t171;
        const V t212 = c[2] * t211;
        const V t213 = c[3] * t211;
        const V t214 = t156 - t177;
        const V t215 = c[3] * t214;
        const V t216 = c[2] * t214;
        // complex block of 5, multiplier 2
        const V t217 = t164 - t173;
        const V t218 = c[3] * t217;
        const V t219 = c[2] * t217;
        const V t220 = t165 - t174;
        const V t221 = c[3] * t220;
        const V t222 = c[2] * t220;
        const V t223 = t159 - t180;
        const V t224 = c[2] * t223;
        const V t225 = c[3] * t223;
        const V t226 = t221 - t224;
        const V t227 = t222 + t225;
        const V t228 = t158 - t179;
        const V t229 = c[2] * t228;
        const V t230 = c[3] * t228;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x6 = io.in(6);
        const V t231 = x17 + x6;
        const V t232 = x17 - x6;
        const V x38 = io.in(38);
        const V t233 = t231 + x38;
        const V t234 = c[4] * t231;
        const V t235 = x38 - t234;
        const V t236 = c[5] * t232;
        // real block of 3, multiplier 2
        const V x10 = io.in(10);
        const V x43 = io.in(43);
        const V t237 = x10 + x43;
        const V t238 = x10 - x43;
        const V x8 = io.in(8);
        const V t239 = t237 + x8;
        const V t240 = c[4] * t237;
        const V t241 = x8 - t240;
        const V t242 = c[5] * t238;
        // real block of 3, multiplier 2
        const V x29 = io.in(29);
        const V x21 = io.in(21);
        const V t243 = x29 + x21;
        const V t244 = x29 - x21;
        const V t245 = c[4] * t243;
        // real block of 3, multiplier 2
        const V x35 = io.in(35);
        const V x59 = io.in(59);
        const V t246 = x35 + x59;
        const V t247 = x35 - x59;
        const V x28 = io.in(28);
        const V t248 = t246 + x28;
        const V t249 = c[4] * t246;
        const V t250 = x28 - t249;
        const V t251 = c[5] * t247;
        // real block of 3, multiplier 2
        const V x31 = io.in(31);
        const V x54 = io.in(54);
        const V t252 = x31 + x54;
        const V t253 = x31 - x54;
        const V x37 = io.in(37);
        const V t254 = t252 + x37;
        const V t255 = c[4] * t252;
        const V t256 = x37 - t255;
        const V t257 = c[5] * t253;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V t258 = t243 + x11;
        // real block of 5, multiplier 2
        const V t259 = t233 + t239;
        const V t260 = c[0] * t259;
        const V t261 = c[1] * t259;
        const V t262 = t248 + t254;
        const V t263 = c[0] * t262;
        const V t264 = t259 + t262;
        const V t265 = t258 - t260;
        const V t266 = c[1] * t262;
        const V t267 = t261 - t263;
        // real block of 3, multiplier 2
        const V t268 = x11 - t245;
        // complex block of 5, multiplier 2
        const V t269 = t235 + t241;
        const V t270 = c[1] * t269;
        const V t271 = c[0] * t269;
        const V t272 = t250 + t256;
        const V t273 = c[0] * t272;
        const V t274 = t269 + t272;
        const V t275 = t270 - t273;
        const V t276 = t268 - t271;
        const V t277 = c[1] * t272;
        // real block of 3, multiplier 2
        const V t278 = c[5] * t244;
        // complex block of 5, multiplier 2
        const V t279 = t236 + t242;
        const V t280 = c[1] * t279;
        const V t281 = c[0] * t279;
        const V t282 = t251 + t257;
        const V t283 = c[0] * t282;
        const V t284 = t279 + t282;
        const V t285 = t280 - t283;
        const V t286 = t278 - t281;
        const V t287 = c[1] * t282;
        // real block of 5, multiplier 2
        const V t288 = t233 - t239;
        const V t289 = c[2] * t288;
        const V t290 = c[3] * t288;
        const V t291 = t248 - t254;
        const V t292 = c[3] * t291;
        const V t293 = c[2] * t291;
        // complex block of 5, multiplier 2
        const V t294 = t235 - t241;
        const V t295 = c[3] * t294;
        const V t296 = c[2] * t294;
        const V t297 = t236 - t242;
        const V t298 = c[3] * t297;
        const V t299 = c[2] * t297;
        const V t300 = t251 - t257;
        const V t301 = c[2] * t300;
        const V t302 = c[3] * t300;
        const V t303 = t298 - t301;
        const V t304 = t299 + t302;
        const V t305 = t250 - t256;
        const V t306 = c[2] * t305;
        const V t307 = c[3] * t305;
        // real block of 5, multiplier 2
        const V t308 = t33 + t27;
        // real block of 5, multiplier 2
        const V t309 = t187 + t181;
        // real block of 2
        const V t310 = t308 + t309;
        const V t311 = t308 - t309;
        // real block of 5, multiplier 2
        const V t312 = t264 + t258;
        // real block of 5, multiplier 2
        const V t313 = t110 + t104;
        // real block of 2
        const V t314 = t312 + t313;
        const V t315 = t312 - t313;
        // real block of 2
        const V t316 = t310 + t314;
        // real block of 61
        const V t317 = c[68] * t316;
        // real block of 2
        const V t318 = t310 - t314;
        // real block of 61
        const V t319 = c[6] * t315;
        const V t320 = c[7] * t311;
        const V t321 = c[6] * t311;
        const V t322 = c[7] * t315;
        // real block of 5, multiplier 2
        const V t323 = t34 + t35;
        // real block of 5, multiplier 2
        const V t324 = t188 + t189;
        // complex block of 2
        const V t325 = t323 - t324;
        // real block of 5, multiplier 2
        const V t326 = t289 + t292;
        // real block of 5, multiplier 2
        const V t327 = t135 + t138;
        // complex block of 2
        const V t328 = t327 - t326;
        // complex block of 2
        const V t329 = t323 + t324;
        // complex block of 2
        const V t330 = t326 + t327;
        // complex block of 2
        const V t331 = t325 - t328;
        const V t332 = t325 + t328;
        // real block of 5, multiplier 2
        const V t333 = t58 + t61;
        // real block of 5, multiplier 2
        const V t334 = t212 + t215;
        // complex block of 2
        const V t335 = t334 - t333;
        // real block of 5, multiplier 2
        const V t336 = t265 + t266;
        // real block of 5, multiplier 2
        const V t337 = t111 + t112;
        // complex block of 2
        const V t338 = t336 - t337;
        // complex block of 2
        const V t339 = t333 + t334;
        // complex block of 2
        const V t340 = t336 + t337;
        // complex block of 2
        const V t341 = t335 + t338;
        const V t342 = t335 - t338;
        // complex block of 2
        const V t343 = t329 + t340;
        // real block of 61
        const V t344 = c[8] * t343;
        // complex block of 2
        const V t345 = t339 + t330;
        // real block of 61
        const V t346 = c[9] * t345;
        const V t347 = c[8] * t345;
        // complex block of 2
        const V t348 = t329 - t340;
        // real block of 61
        const V t349 = c[10] * t348;
        // complex block of 2
        const V t350 = t330 - t339;
        // real block of 61
        const V t351 = c[11] * t350;
        const V t352 = c[10] * t350;
        const V t353 = c[12] * t342;
        const V t354 = c[13] * t332;
        const V t355 = t354 + t353;
        const V t356 = c[12] * t332;
        const V t357 = c[13] * t342;
        const V t358 = t356 - t357;
        const V t359 = c[14] * t341;
        const V t360 = c[15] * t331;
        const V t361 = t359 - t360;
        const V t362 = c[14] * t331;
        const V t363 = c[15] * t341;
        const V t364 = t363 + t362;
        // real block of 5, multiplier 2
        const V t365 = t36 + t27;
        // real block of 5, multiplier 2
        const V t366 = t190 + t181;
        // complex block of 2
        const V t367 = t365 - t366;
        // real block of 5, multiplier 2
        const V t368 = t290 - t293;
        // real block of 5, multiplier 2
        const V t369 = t136 - t139;
        // complex block of 2
        const V t370 = t368 - t369;
        // complex block of 2
        const V t371 = t365 + t366;
        // complex block of 2
        const V t372 = t368 + t369;
        // complex block of 2
        const V t373 = t367 - t370;
        const V t374 = t367 + t370;
        // real block of 5, multiplier 2
        const V t375 = t59 - t62;
        // real block of 5, multiplier 2
        const V t376 = t213 - t216;
        // complex block of 2
        const V t377 = t375 - t376;
        // real block of 5, multiplier 2
        const V t378 = t267 + t258;
        // real block of 5, multiplier 2
        const V t379 = t113 + t104;
        // complex block of 2
        const V t380 = t378 - t379;
        // complex block of 2
        const V t381 = t375 + t376;
        // complex block of 2
        const V t382 = t378 + t379;
        // complex block of 2
        const V t383 = t377 + t380;
        const V t384 = t377 - t380;
        // complex block of 2
        const V t385 = t371 + t382;
        // real block of 61
        const V t386 = c[16] * t385;
        // complex block of 2
        const V t387 = t381 + t372;
        // real block of 61
        const V t388 = c[17] * t387;
        const V t389 = c[16] * t387;
        // complex block of 2
        const V t390 = t371 - t382;
        // real block of 61
        const V t391 = c[18] * t390;
        // complex block of 2
        const V t392 = t381 - t372;
        // real block of 61
        const V t393 = c[19] * t392;
        const V t394 = c[18] * t392;
        const V t395 = c[20] * t384;
        const V t396 = c[21] * t374;
        const V t397 = t396 - t395;
        const V t398 = c[20] * t374;
        const V t399 = c[21] * t384;
        const V t400 = t399 + t398;
        const V t401 = c[22] * t383;
        const V t402 = c[23] * t373;
        const V t403 = t402 + t401;
        const V t404 = c[22] * t373;
        const V t405 = c[23] * t383;
        const V t406 = t404 - t405;
        // complex block of 5, multiplier 2
        const V t407 = t43 + t37;
        // complex block of 5, multiplier 2
        const V t408 = t197 + t191;
        // complex block of 2
        const V t409 = t407 - t408;
        // complex block of 5, multiplier 2
        const V t410 = t284 + t278;
        // complex block of 5, multiplier 2
        const V t411 = t130 + t124;
        // complex block of 2
        const V t412 = t410 - t411;
        // complex block of 2
        const V t413 = t407 + t408;
        // complex block of 2
        const V t414 = t410 + t411;
        // complex block of 2
        const V t415 = t409 - t412;
        const V t416 = t409 + t412;
        // complex block of 5, multiplier 2
        const V t417 = t53 + t47;
        // complex block of 5, multiplier 2
        const V t418 = t207 + t201;
        // complex block of 2
        const V t419 = t417 - t418;
        // complex block of 5, multiplier 2
        const V t420 = t274 + t268;
        // complex block of 5, multiplier 2
        const V t421 = t120 + t114;
        // complex block of 2
        const V t422 = t420 - t421;
        // complex block of 2
        const V t423 = t417 + t418;
        // complex block of 2
        const V t424 = t420 + t421;
        // complex block of 2
        const V t425 = t419 + t422;
        const V t426 = t419 - t422;
        // complex block of 2
        const V t427 = t413 + t424;
        // real block of 61
        const V t428 = c[69] * t427;
        // complex block of 2
        const V t429 = t423 + t414;
        // real block of 61
        const V t430 = c[70] * t429;
        // complex block of 2
        const V t431 = t413 - t424;
        // real block of 61
        const V t432 = c[71] * t431;
        // complex block of 2
        const V t433 = t423 - t414;
        // real block of 61
        const V t434 = c[72] * t433;
        const V t435 = c[24] * t426;
        const V t436 = c[25] * t416;
        const V t437 = t436 + t435;
        const V t438 = c[24] * t416;
        const V t439 = c[25] * t426;
        const V t440 = t439 - t438;
        const V t441 = c[26] * t425;
        const V t442 = c[27] * t415;
        const V t443 = t441 - t442;
        const V t444 = c[26] * t415;
        const V t445 = c[27] * t425;
        const V t446 = t445 + t444;
        // complex block of 5, multiplier 2
        const V t447 = t44 + t37;
        const V t448 = t447 + t72;
        const V t449 = t447 - t72;
        // complex block of 5, multiplier 2
        const V t450 = t198 + t191;
        const V t451 = t450 + t226;
        const V t452 = t450 - t226;
        // complex block of 2
        const V t453 = t448 + t451;
        const V t454 = t448 - t451;
        // complex block of 2
        const V t455 = t449 + t452;
        const V t456 = t449 - t452;
        // complex block of 5, multiplier 2
        const V t457 = t54 + t47;
        const V t458 = t64 - t75;
        const V t459 = t457 - t458;
        const V t460 = t457 + t458;
        // complex block of 5, multiplier 2
        const V t461 = t208 + t201;
        const V t462 = t218 - t229;
        const V t463 = t461 - t462;
        const V t464 = t461 + t462;
        // complex block of 2
        const V t465 = t459 + t463;
        const V t466 = t463 - t459;
        // complex block of 2
        const V t467 = t460 + t464;
        const V t468 = t464 - t460;
        // complex block of 5, multiplier 2
        const V t469 = t275 + t268;
        const V t470 = t469 + t303;
        const V t471 = t469 - t303;
        // complex block of 5, multiplier 2
        const V t472 = t121 + t114;
        const V t473 = t472 + t149;
        const V t474 = t472 - t149;
        // complex block of 2
        const V t475 = t470 + t473;
        const V t476 = t470 - t473;
        // complex block of 2
        const V t477 = t471 + t474;
        const V t478 = t471 - t474;
        // complex block of 5, multiplier 2
        const V t479 = t285 + t278;
        const V t480 = t295 - t306;
        const V t481 = t479 - t480;
        const V t482 = t479 + t480;
        // complex block of 5, multiplier 2
        const V t483 = t131 + t124;
        const V t484 = t141 - t152;
        const V t485 = t483 - t484;
        const V t486 = t483 + t484;
        // complex block of 2
        const V t487 = t481 + t485;
        const V t488 = t485 - t481;
        // complex block of 2
        const V t489 = t482 + t486;
        const V t490 = t486 - t482;
        // complex block of 2
        const V t491 = t453 + t475;
        // real block of 61
        const V t492 = c[28] * t491;
        // complex block of 2
        const V t493 = t465 + t487;
        // real block of 61
        const V t494 = c[29] * t493;
        const V t495 = c[28] * t493;
        // complex block of 2
        const V t496 = t453 - t475;
        // real block of 61
        const V t497 = c[30] * t496;
        // complex block of 2
        const V t498 = t487 - t465;
        // real block of 61
        const V t499 = c[31] * t498;
        const V t500 = c[30] * t498;
        // complex block of 2
        const V t501 = t454 - t488;
        // real block of 61
        const V t502 = c[32] * t501;
        const V t503 = c[33] * t501;
        // complex block of 2
        const V t504 = t466 + t476;
        // real block of 61
        const V t505 = c[33] * t504;
        const V t506 = c[32] * t504;
        const V t507 = t505 - t502;
        const V t508 = t506 + t503;
        // complex block of 2
        const V t509 = t454 + t488;
        // real block of 61
        const V t510 = c[34] * t509;
        const V t511 = c[35] * t509;
        // complex block of 2
        const V t512 = t466 - t476;
        // real block of 61
        const V t513 = c[35] * t512;
        const V t514 = c[34] * t512;
        const V t515 = t510 + t513;
        const V t516 = t511 - t514;
        // complex block of 2
        const V t517 = t455 + t477;
        // real block of 61
        const V t518 = c[36] * t517;
        // complex block of 2
        const V t519 = t467 + t489;
        // real block of 61
        const V t520 = c[37] * t519;
        const V t521 = c[36] * t519;
        // complex block of 2
        const V t522 = t455 - t477;
        // real block of 61
        const V t523 = c[38] * t522;
        // complex block of 2
        const V t524 = t489 - t467;
        // real block of 61
        const V t525 = c[39] * t524;
        const V t526 = c[38] * t524;
        // complex block of 2
        const V t527 = t456 - t490;
        // real block of 61
        const V t528 = c[40] * t527;
        const V t529 = c[41] * t527;
        // complex block of 2
        const V t530 = t468 + t478;
        // real block of 61
        const V t531 = c[41] * t530;
        const V t532 = c[40] * t530;
        const V t533 = t531 - t528;
        const V t534 = t532 + t529;
        // complex block of 2
        const V t535 = t456 + t490;
        // real block of 61
        const V t536 = c[42] * t535;
        const V t537 = c[43] * t535;
        // complex block of 2
        const V t538 = t468 - t478;
        // real block of 61
        const V t539 = c[43] * t538;
        const V t540 = c[42] * t538;
        const V t541 = t536 + t539;
        const V t542 = t540 - t537;
        // complex block of 5, multiplier 2
        const V t543 = t45 + t46;
        const V t544 = t543 + t73;
        const V t545 = t543 - t73;
        // complex block of 5, multiplier 2
        const V t546 = t199 + t200;
        const V t547 = t546 + t227;
        const V t548 = t546 - t227;
        // complex block of 2
        const V t549 = t545 + t548;
        const V t550 = t545 - t548;
        // complex block of 2
        const V t551 = t544 + t547;
        const V t552 = t544 - t547;
        // complex block of 5, multiplier 2
        const V t553 = t55 + t56;
        const V t554 = t65 + t76;
        const V t555 = t553 - t554;
        const V t556 = t553 + t554;
        // complex block of 5, multiplier 2
        const V t557 = t209 + t210;
        const V t558 = t219 + t230;
        const V t559 = t557 - t558;
        const V t560 = t557 + t558;
        // complex block of 2
        const V t561 = t556 + t560;
        const V t562 = t556 - t560;
        // complex block of 2
        const V t563 = t555 + t559;
        const V t564 = t559 - t555;
        // complex block of 5, multiplier 2
        const V t565 = t276 + t277;
        const V t566 = t565 + t304;
        const V t567 = t565 - t304;
        // complex block of 5, multiplier 2
        const V t568 = t122 + t123;
        const V t569 = t568 + t150;
        const V t570 = t568 - t150;
        // complex block of 2
        const V t571 = t567 + t570;
        const V t572 = t567 - t570;
        // complex block of 2
        const V t573 = t566 + t569;
        const V t574 = t566 - t569;
        // complex block of 5, multiplier 2
        const V t575 = t286 + t287;
        const V t576 = t296 + t307;
        const V t577 = t575 - t576;
        const V t578 = t575 + t576;
        // complex block of 5, multiplier 2
        const V t579 = t132 + t133;
        const V t580 = t142 + t153;
        const V t581 = t579 - t580;
        const V t582 = t579 + t580;
        // complex block of 2
        const V t583 = t578 + t582;
        const V t584 = t578 - t582;
        // complex block of 2
        const V t585 = t577 + t581;
        const V t586 = t581 - t577;
        // complex block of 2
        const V t587 = t549 + t571;
        // real block of 61
        const V t588 = c[44] * t587;
        // complex block of 2
        const V t589 = t561 + t583;
        // real block of 61
        const V t590 = c[45] * t589;
        const V t591 = c[44] * t589;
        // complex block of 2
        const V t592 = t549 - t571;
        // real block of 61
        const V t593 = c[46] * t592;
        // complex block of 2
        const V t594 = t561 - t583;
        // real block of 61
        const V t595 = c[47] * t594;
        const V t596 = c[46] * t594;
        // complex block of 2
        const V t597 = t550 - t584;
        // real block of 61
        const V t598 = c[48] * t597;
        const V t599 = c[49] * t597;
        // complex block of 2
        const V t600 = t562 + t572;
        // real block of 61
        const V t601 = c[49] * t600;
        const V t602 = c[48] * t600;
        const V t603 = t601 - t598;
        const V t604 = t602 + t599;
        // complex block of 2
        const V t605 = t550 + t584;
        // real block of 61
        const V t606 = c[50] * t605;
        const V t607 = c[51] * t605;
        // complex block of 2
        const V t608 = t562 - t572;
        // real block of 61
        const V t609 = c[51] * t608;
        const V t610 = c[50] * t608;
        const V t611 = t609 - t606;
        const V t612 = t610 + t607;
        // complex block of 2
        const V t613 = t551 + t573;
        // real block of 61
        const V t614 = c[52] * t613;
        // complex block of 2
        const V t615 = t563 + t585;
        // real block of 61
        const V t616 = c[53] * t615;
        const V t617 = c[52] * t615;
        // complex block of 2
        const V t618 = t551 - t573;
        // real block of 61
        const V t619 = c[54] * t618;
        // complex block of 2
        const V t620 = t585 - t563;
        // real block of 61
        const V t621 = c[55] * t620;
        const V t622 = c[54] * t620;
        // complex block of 2
        const V t623 = t552 - t586;
        // real block of 61
        const V t624 = c[56] * t623;
        const V t625 = c[57] * t623;
        // complex block of 2
        const V t626 = t564 + t574;
        // real block of 61
        const V t627 = c[57] * t626;
        const V t628 = c[56] * t626;
        const V t629 = t624 + t627;
        const V t630 = t625 - t628;
        // complex block of 2
        const V t631 = t552 + t586;
        // real block of 61
        const V t632 = c[58] * t631;
        const V t633 = c[59] * t631;
        // complex block of 2
        const V t634 = t564 - t574;
        // real block of 61
        const V t635 = c[59] * t634;
        const V t636 = c[58] * t634;
        const V t637 = t635 - t632;
        const V t638 = t636 + t633;
        const V x0 = io.in(0);
        const V t639 = x0 + t316;
        io.out(0, t639);
        const V t640 = x0 - t317;
        const V t641 = t428 + t430;
        // spectrum block of 3
        const V t642 = t640 - t641;
        const V t643 = c[4] * t641;
        // real block of 61
        const V t644 = t494 - t492;
        const V t645 = t518 + t520;
        // complex block of 3
        const V t646 = t645 + t644;
        // real block of 61
        const V t647 = t386 + t388;
        // complex block of 3
        const V t648 = t645 - t644;
        const V t649 = t646 + t647;
        const V t650 = c[4] * t646;
        // real block of 61
        const V t651 = c[29] * t491;
        const V t652 = t495 + t651;
        const V t653 = c[37] * t517;
        const V t654 = t653 - t521;
        // complex block of 3
        const V t655 = t652 - t654;
        const V t656 = t654 + t652;
        // real block of 61
        const V t657 = t588 - t590;
        const V t658 = t614 - t616;
        // complex block of 3
        const V t659 = t658 + t657;
        // real block of 61
        const V t660 = t346 - t344;
        // complex block of 3
        const V t661 = t658 - t657;
        const V t662 = t659 + t660;
        const V t663 = c[4] * t659;
        // real block of 61
        const V t664 = c[45] * t587;
        const V t665 = t591 + t664;
        const V t666 = c[53] * t613;
        const V t667 = t617 + t666;
        // complex block of 3
        const V t668 = t667 - t665;
        const V t669 = t667 + t665;
        // real block of 61
        const V t670 = c[9] * t343;
        const V t671 = t347 + t670;
        const V t672 = c[17] * t385;
        const V t673 = t389 - t672;
        // spectrum block of 3
        const V t674 = c[73] * t427;
        const V t675 = c[74] * t429;
        const V t676 = t674 - t675;
        const V t677 = t643 + t640;
        const V t678 = t677 - t676;
        const V t679 = t677 + t676;
        // complex block of 3
        const V t680 = t668 + t671;
        // spectrum block of 5
        const V t681 = c[3] * t680;
        const V t682 = c[2] * t680;
        // complex block of 3
        const V t683 = c[4] * t668;
        const V t684 = t671 - t683;
        const V t685 = c[5] * t661;
        const V t686 = t684 + t685;
        const V t687 = t684 - t685;
        const V t688 = t660 - t663;
        const V t689 = c[5] * t669;
        const V t690 = t688 - t689;
        const V t691 = t688 + t689;
        // spectrum block of 5
        const V t692 = c[1] * t690;
        const V t693 = c[0] * t690;
        // spectrum block of 5
        const V t694 = c[1] * t691;
        const V t695 = c[0] * t691;
        // complex block of 3
        const V t696 = t655 + t673;
        // spectrum block of 5
        const V t697 = c[2] * t696;
        const V t698 = c[3] * t696;
        // complex block of 3
        const V t699 = c[4] * t655;
        const V t700 = t673 - t699;
        const V t701 = c[5] * t648;
        const V t702 = t700 + t701;
        const V t703 = t700 - t701;
        const V t704 = t647 - t650;
        const V t705 = c[5] * t656;
        const V t706 = t704 + t705;
        const V t707 = t704 - t705;
        // spectrum block of 5
        const V t708 = c[0] * t706;
        // spectrum block of 5
        const V t709 = c[0] * t707;
        // spectrum block of 5
        const V t710 = t662 + t649;
        const V t711 = c[1] * t662;
        const V t712 = c[0] * t649;
        const V t713 = t711 - t712;
        const V t714 = c[0] * t662;
        const V t715 = t642 - t714;
        const V t716 = c[1] * t649;
        // real block of 61
        const V t717 = t619 + t621;
        const V t718 = t595 - t593;
        // complex block of 3
        const V t719 = t718 + t717;
        // real block of 61
        const V t720 = t349 - t351;
        // complex block of 3
        const V t721 = t718 - t717;
        const V t722 = t719 + t720;
        const V t723 = c[4] * t719;
        // real block of 61
        const V t724 = c[55] * t618;
        const V t725 = t724 - t622;
        const V t726 = c[47] * t592;
        const V t727 = t596 + t726;
        // complex block of 3
        const V t728 = t727 + t725;
        const V t729 = t725 - t727;
        // real block of 61
        const V t730 = t391 + t393;
        const V t731 = t525 - t523;
        const V t732 = t499 - t497;
        // complex block of 3
        const V t733 = t732 + t731;
        const V t734 = t732 - t731;
        const V t735 = t733 + t730;
        const V t736 = c[4] * t733;
        // real block of 61
        const V t737 = c[19] * t390;
        const V t738 = t737 - t394;
        const V t739 = t432 + t434;
        const V t740 = c[75] * t318;
        // spectrum block of 3
        const V t741 = t739 + t740;
        const V t742 = c[4] * t739;
        // real block of 61
        const V t743 = c[39] * t522;
        const V t744 = t526 + t743;
        const V t745 = c[31] * t496;
        const V t746 = t500 + t745;
        // complex block of 3
        const V t747 = t746 - t744;
        const V t748 = t746 + t744;
        // real block of 61
        const V t749 = c[11] * t348;
        const V t750 = t352 + t749;
        // spectrum block of 3
        const V t751 = c[76] * t431;
        const V t752 = c[77] * t433;
        const V t753 = t751 - t752;
        // complex block of 3
        const V t754 = t747 + t738;
        // spectrum block of 5
        const V t755 = c[2] * t754;
        const V t756 = c[3] * t754;
        // complex block of 3
        const V t757 = c[4] * t747;
        const V t758 = t738 - t757;
        const V t759 = c[5] * t734;
        const V t760 = t758 + t759;
        const V t761 = t758 - t759;
        const V t762 = t730 - t736;
        const V t763 = c[5] * t748;
        const V t764 = t762 - t763;
        const V t765 = t762 + t763;
        // spectrum block of 5
        const V t766 = c[0] * t764;
        // spectrum block of 5
        const V t767 = c[0] * t765;
        // complex block of 3
        const V t768 = t728 + t750;
        // spectrum block of 5
        const V t769 = c[3] * t768;
        const V t770 = c[2] * t768;
        // complex block of 3
        const V t771 = c[4] * t728;
        const V t772 = t771 - t750;
        const V t773 = c[5] * t721;
        const V t774 = t772 + t773;
        const V t775 = t772 - t773;
        const V t776 = t720 - t723;
        const V t777 = c[5] * t729;
        const V t778 = t776 - t777;
        const V t779 = t776 + t777;
        // spectrum block of 5
        const V t780 = c[1] * t778;
        const V t781 = c[0] * t778;
        // spectrum block of 5
        const V t782 = c[1] * t779;
        const V t783 = c[0] * t779;
        // spectrum block of 3
        const V t784 = t740 - t742;
        const V t785 = t784 + t753;
        const V t786 = t784 - t753;
        // spectrum block of 5
        const V t787 = t722 + t735;
        const V t788 = c[1] * t722;
        const V t789 = c[0] * t735;
        const V t790 = t788 - t789;
        const V t791 = c[0] * t722;
        const V t792 = t741 - t791;
        const V t793 = c[1] * t735;
        // real block of 61
        const V t794 = t319 - t320;
        // complex block of 2
        const V t795 = t437 + t443;
        // mirrored skew block of 30
        const V t796 = c[4] * t795;
        // complex block of 2
        const V t797 = t440 - t446;
        // mirrored skew block of 30
        const V t798 = c[5] * t797;
        const V t799 = t798 + t796;
        // spectrum block of 3
        const V t800 = c[78] * t797;
        const V t801 = c[79] * t795;
        const V t802 = t799 + t794;
        const V t803 = c[4] * t799;
        const V t804 = t794 - t803;
        const V t805 = t800 - t801;
        // real block of 61
        const V t806 = t322 + t321;
        // complex block of 2
        const V t807 = t443 - t437;
        // spectrum block of 3
        const V t808 = c[5] * t807;
        // complex block of 2
        const V t809 = t440 + t446;
        // spectrum block of 3
        const V t810 = c[4] * t809;
        const V t811 = t809 - t806;
        const V t812 = t806 + t810;
        const V t813 = t808 - t812;
        const V t814 = t812 + t808;
        // complex block of 2
        const V t815 = t533 - t541;
        // complex block of 2
        const V t816 = t507 - t515;
        // complex block of 3
        const V t817 = t815 + t816;
        const V t818 = t815 - t816;
        const V t819 = c[4] * t817;
        // complex block of 2
        const V t820 = t542 + t534;
        // complex block of 2
        const V t821 = t516 - t508;
        // complex block of 3
        const V t822 = t820 + t821;
        const V t823 = t820 - t821;
        const V t824 = c[4] * t822;
        // complex block of 2
        const V t825 = t403 - t397;
        const V t826 = t400 + t406;
        // complex block of 3
        const V t827 = t817 - t825;
        // spectrum block of 5
        const V t828 = c[3] * t827;
        const V t829 = c[2] * t827;
        // complex block of 3
        const V t830 = t822 + t826;
        // spectrum block of 5
        const V t831 = c[1] * t830;
        const V t832 = c[0] * t830;
        // complex block of 3
        const V t833 = t825 + t819;
        const V t834 = c[5] * t823;
        const V t835 = t834 - t833;
        const V t836 = t833 + t834;
        const V t837 = t826 - t824;
        const V t838 = c[5] * t818;
        const V t839 = t837 - t838;
        const V t840 = t837 + t838;
        // complex block of 2
        const V t841 = t541 + t533;
        // mirrored skew block of 30
        const V t842 = c[60] * t841;
        const V t843 = c[61] * t841;
        // complex block of 2
        const V t844 = t542 - t534;
        // mirrored skew block of 30
        const V t845 = c[61] * t844;
        const V t846 = c[60] * t844;
        const V t847 = t845 + t842;
        const V t848 = t846 - t843;
        // complex block of 2
        const V t849 = t397 + t403;
        // mirrored skew block of 30
        const V t850 = c[0] * t849;
        const V t851 = c[2] * t849;
        // complex block of 2
        const V t852 = t400 - t406;
        // mirrored skew block of 30
        const V t853 = c[2] * t852;
        const V t854 = c[0] * t852;
        // complex block of 2
        const V t855 = t515 + t507;
        // mirrored skew block of 30
        const V t856 = c[62] * t855;
        const V t857 = c[63] * t855;
        // complex block of 2
        const V t858 = t516 + t508;
        // mirrored skew block of 30
        const V t859 = c[63] * t858;
        const V t860 = c[62] * t858;
        const V t861 = t859 + t856;
        const V t862 = t860 - t857;
        const V t863 = t853 + t850;
        // complex block of 3
        const V t864 = t847 + t861;
        const V t865 = c[4] * t864;
        const V t866 = t864 + t863;
        const V t867 = t863 - t865;
        // mirrored skew block of 30
        const V t868 = t854 - t851;
        // complex block of 3
        const V t869 = t848 + t862;
        const V t870 = c[4] * t869;
        const V t871 = t869 - t868;
        const V t872 = t868 + t870;
        const V t873 = t848 - t862;
        const V t874 = c[5] * t873;
        const V t875 = t847 - t861;
        const V t876 = c[5] * t875;
        // complex block of 2
        const V t877 = t361 - t355;
        const V t878 = t358 - t364;
        // complex block of 2
        const V t879 = t603 - t611;
        // complex block of 2
        const V t880 = t629 - t637;
        // complex block of 3
        const V t881 = t879 - t880;
        const V t882 = t879 + t880;
        const V t883 = c[4] * t881;
        // complex block of 2
        const V t884 = t612 - t604;
        // complex block of 2
        const V t885 = t630 - t638;
        // complex block of 3
        const V t886 = t884 + t885;
        const V t887 = t884 - t885;
        const V t888 = c[4] * t886;
        const V t889 = t881 - t877;
        // spectrum block of 5
        const V t890 = c[2] * t889;
        const V t891 = c[3] * t889;
        // complex block of 3
        const V t892 = t886 + t878;
        // spectrum block of 5
        const V t893 = c[0] * t892;
        const V t894 = c[1] * t892;
        // complex block of 3
        const V t895 = t877 + t883;
        const V t896 = c[5] * t887;
        const V t897 = t896 - t895;
        const V t898 = t895 + t896;
        const V t899 = t878 - t888;
        const V t900 = c[5] * t882;
        const V t901 = t899 - t900;
        const V t902 = t899 + t900;
        // complex block of 2
        const V t903 = t355 + t361;
        // mirrored skew block of 30
        const V t904 = c[1] * t903;
        const V t905 = c[3] * t903;
        // complex block of 2
        const V t906 = t358 + t364;
        // mirrored skew block of 30
        const V t907 = c[3] * t906;
        const V t908 = c[1] * t906;
        // complex block of 2
        const V t909 = t611 + t603;
        // mirrored skew block of 30
        const V t910 = c[64] * t909;
        const V t911 = c[65] * t909;
        // complex block of 2
        const V t912 = t612 + t604;
        // mirrored skew block of 30
        const V t913 = c[65] * t912;
        const V t914 = c[64] * t912;
        const V t915 = t913 + t910;
        const V t916 = t914 - t911;
        // complex block of 2
        const V t917 = t637 + t629;
        // mirrored skew block of 30
        const V t918 = c[66] * t917;
        const V t919 = c[67] * t917;
        // complex block of 2
        const V t920 = t638 + t630;
        // mirrored skew block of 30
        const V t921 = c[67] * t920;
        const V t922 = c[66] * t920;
        const V t923 = t918 - t921;
        const V t924 = t919 + t922;
        const V t925 = t907 + t904;
        // complex block of 3
        const V t926 = t915 + t923;
        const V t927 = c[4] * t926;
        const V t928 = t926 + t925;
        const V t929 = t925 - t927;
        // mirrored skew block of 30
        const V t930 = t908 - t905;
        // complex block of 3
        const V t931 = t916 + t924;
        const V t932 = c[4] * t931;
        const V t933 = t931 - t930;
        const V t934 = t930 + t932;
        const V t935 = t916 - t924;
        const V t936 = c[5] * t935;
        const V t937 = t915 - t923;
        const V t938 = c[5] * t937;
        // spectrum block of 5
        const V t939 = t710 + t642;
        // spectrum block of 5
        const V t940 = t787 + t741;
        // spectrum block of 2
        const V t941 = t939 + t940;
        const V t942 = t939 - t940;
        // spectrum block of 5
        const V t943 = t713 + t642;
        const V t944 = t681 + t697;
        const V t945 = t943 - t944;
        const V t946 = t943 + t944;
        const V t947 = t715 + t716;
        const V t948 = t682 - t698;
        const V t949 = t947 - t948;
        const V t950 = t947 + t948;
        // spectrum block of 5
        const V t951 = t790 + t741;
        const V t952 = t769 - t755;
        const V t953 = t951 - t952;
        const V t954 = t951 + t952;
        const V t955 = t792 + t793;
        const V t956 = t770 + t756;
        const V t957 = t955 - t956;
        const V t958 = t955 + t956;
        // spectrum block of 5
        const V t959 = t830 + t892;
        const V t960 = t959 + t811;
        const V t961 = t831 - t893;
        const V t962 = t961 + t811;
        const V t963 = t828 + t890;
        const V t964 = t811 - t832;
        const V t965 = t964 + t894;
        const V t966 = t829 - t891;
        // spectrum block of 3
        const V t967 = t804 + t805;
        // complex block of 3
        const V t968 = t867 - t874;
        // spectrum block of 5
        const V t969 = c[1] * t968;
        const V t970 = c[0] * t968;
        // complex block of 3
        const V t971 = t929 - t936;
        // spectrum block of 5
        const V t972 = c[0] * t971;
        const V t973 = t968 + t971;
        const V t974 = t969 - t972;
        const V t975 = t967 - t970;
        const V t976 = c[1] * t971;
        // complex block of 3
        const V t977 = t876 - t872;
        // spectrum block of 5
        const V t978 = c[3] * t977;
        const V t979 = c[2] * t977;
        // complex block of 3
        const V t980 = t938 - t934;
        // spectrum block of 5
        const V t981 = c[2] * t980;
        const V t982 = c[3] * t980;
        const V t983 = t978 + t981;
        const V t984 = t979 - t982;
        // spectrum block of 2
        const V t985 = t945 + t953;
        // spectrum block of 5
        const V t986 = t965 + t966;
        // output stage
        const V t987 = t985 - t986;
        io.out(20, t987);
        const V t988 = t985 + t986;
        io.out(41, t988);
        // spectrum block of 2
        const V t989 = t945 - t953;
        // spectrum block of 5
        const V t990 = t973 + t967;
        // output stage
        const V t991 = t989 + t990;
        io.out(24, t991);
        const V t992 = t989 - t990;
        io.out(37, t992);
        // spectrum block of 2
        const V t993 = t949 + t957;
        // spectrum block of 5
        const V t994 = t962 - t963;
        // output stage
        const V t995 = t993 + t994;
        io.out(27, t995);
        const V t996 = t993 - t994;
        io.out(34, t996);
        // spectrum block of 2
        const V t997 = t949 - t957;
        // spectrum block of 5
        const V t998 = t975 + t976;
        const V t999 = t998 - t984;
        const V t1000 = t998 + t984;
        // output stage
        const V t1001 = t997 - t1000;
        io.out(8, t1001);
        const V t1002 = t997 + t1000;
        io.out(53, t1002);
        const V t1003 = t942 - t999;
        io.out(11, t1003);
        const V t1004 = t942 + t999;
        io.out(50, t1004);
        // spectrum block of 2
        const V t1005 = t950 + t958;
        // spectrum block of 5
        const V t1006 = t962 + t963;
        // output stage
        const V t1007 = t1005 - t1006;
        io.out(9, t1007);
        const V t1008 = t1005 + t1006;
        io.out(52, t1008);
        // spectrum block of 2
        const V t1009 = t950 - t958;
        // spectrum block of 2
        const V t1010 = t946 - t954;
        // spectrum block of 5
        const V t1011 = t974 + t967;
        const V t1012 = t1011 - t983;
        const V t1013 = t1011 + t983;
        // output stage
        const V t1014 = t1009 + t1012;
        io.out(23, t1014);
        const V t1015 = t1009 - t1012;
        io.out(38, t1015);
        const V t1016 = t1010 - t1013;
        io.out(28, t1016);
        const V t1017 = t1010 + t1013;
        io.out(33, t1017);
        // spectrum block of 2
        const V t1018 = t946 + t954;
        // spectrum block of 5
        const V t1019 = t965 - t966;
        // output stage
        const V t1020 = t1018 + t1019;
        io.out(3, t1020);
        const V t1021 = t1018 - t1019;
        io.out(58, t1021);
        const V t1022 = t941 - t960;
        io.out(1, t1022);
        const V t1023 = t941 + t960;
        io.out(60, t1023);
        // spectrum block of 5
        const V t1024 = t690 + t706;
        const V t1025 = t1024 + t678;
        const V t1026 = t692 - t708;
        const V t1027 = t1026 + t678;
        const V t1028 = c[3] * t686;
        const V t1029 = c[2] * t702;
        const V t1030 = t1028 + t1029;
        const V t1031 = t1027 - t1030;
        const V t1032 = t1027 + t1030;
        const V t1033 = t678 - t693;
        const V t1034 = c[1] * t706;
        const V t1035 = t1033 + t1034;
        const V t1036 = c[2] * t686;
        const V t1037 = c[3] * t702;
        const V t1038 = t1036 - t1037;
        const V t1039 = t1035 - t1038;
        const V t1040 = t1035 + t1038;
        // spectrum block of 5
        const V t1041 = t778 + t764;
        const V t1042 = t1041 + t785;
        const V t1043 = t780 - t766;
        const V t1044 = t1043 + t785;
        const V t1045 = c[3] * t774;
        const V t1046 = c[2] * t760;
        const V t1047 = t1045 + t1046;
        const V t1048 = t1044 + t1047;
        const V t1049 = t1044 - t1047;
        const V t1050 = t785 - t781;
        const V t1051 = c[1] * t764;
        const V t1052 = t1050 + t1051;
        const V t1053 = c[2] * t774;
        const V t1054 = c[3] * t760;
        const V t1055 = t1054 - t1053;
        const V t1056 = t1052 - t1055;
        const V t1057 = t1052 + t1055;
        // spectrum block of 5
        const V t1058 = t840 + t902;
        const V t1059 = t1058 - t814;
        const V t1060 = c[1] * t840;
        const V t1061 = c[0] * t902;
        const V t1062 = t1060 - t1061;
        const V t1063 = t1062 - t814;
        const V t1064 = c[3] * t836;
        const V t1065 = c[2] * t898;
        const V t1066 = t1064 + t1065;
        const V t1067 = c[0] * t840;
        const V t1068 = t814 + t1067;
        const V t1069 = c[1] * t902;
        const V t1070 = t1069 - t1068;
        const V t1071 = c[2] * t836;
        const V t1072 = c[3] * t898;
        const V t1073 = t1072 - t1071;
        // spectrum block of 5
        const V t1074 = t866 + t928;
        const V t1075 = t1074 + t802;
        const V t1076 = c[1] * t866;
        const V t1077 = c[0] * t928;
        const V t1078 = t1076 - t1077;
        const V t1079 = t1078 + t802;
        const V t1080 = c[3] * t871;
        const V t1081 = c[2] * t933;
        const V t1082 = t1080 + t1081;
        const V t1083 = c[0] * t866;
        const V t1084 = t802 - t1083;
        const V t1085 = c[1] * t928;
        const V t1086 = t1084 + t1085;
        const V t1087 = c[2] * t871;
        const V t1088 = c[3] * t933;
        const V t1089 = t1087 - t1088;
        // spectrum block of 2
        const V t1090 = t1025 + t1042;
        // output stage
        const V t1091 = t1090 + t1059;
        io.out(14, t1091);
        const V t1092 = t1090 - t1059;
        io.out(47, t1092);
        // spectrum block of 2
        const V t1093 = t1025 - t1042;
        // spectrum block of 5
        const V t1094 = t1086 - t1089;
        // output stage
        const V t1095 = t1093 - t1094;
        io.out(29, t1095);
        const V t1096 = t1093 + t1094;
        io.out(32, t1096);
        // spectrum block of 2
        const V t1097 = t1031 + t1048;
        // spectrum block of 5
        const V t1098 = t1070 + t1073;
        // output stage
        const V t1099 = t1097 - t1098;
        io.out(25, t1099);
        const V t1100 = t1097 + t1098;
        io.out(36, t1100);
        // spectrum block of 2
        const V t1101 = t1031 - t1048;
        // output stage
        const V t1102 = t1101 + t1075;
        io.out(30, t1102);
        const V t1103 = t1101 - t1075;
        io.out(31, t1103);
        // spectrum block of 2
        const V t1104 = t1039 + t1056;
        // spectrum block of 5
        const V t1105 = t1063 + t1066;
        // output stage
        const V t1106 = t1104 - t1105;
        io.out(12, t1106);
        const V t1107 = t1104 + t1105;
        io.out(49, t1107);
        // spectrum block of 2
        const V t1108 = t1039 - t1056;
        // spectrum block of 5
        const V t1109 = t1086 + t1089;
        // output stage
        const V t1110 = t1108 - t1109;
        io.out(10, t1110);
        const V t1111 = t1108 + t1109;
        io.out(51, t1111);
        // spectrum block of 2
        const V t1112 = t1040 + t1057;
        // spectrum block of 5
        const V t1113 = t1063 - t1066;
        // output stage
        const V t1114 = t1112 + t1113;
        io.out(4, t1114);
        const V t1115 = t1112 - t1113;
        io.out(57, t1115);
        // spectrum block of 2
        const V t1116 = t1040 - t1057;
        // spectrum block of 5
        const V t1117 = t1079 - t1082;
        // output stage
        const V t1118 = t1116 - t1117;
        io.out(17, t1118);
        const V t1119 = t1116 + t1117;
        io.out(44, t1119);
        // spectrum block of 2
        const V t1120 = t1032 + t1049;
        // spectrum block of 5
        const V t1121 = t1070 - t1073;
        // output stage
        const V t1122 = t1120 + t1121;
        io.out(19, t1122);
        const V t1123 = t1120 - t1121;
        io.out(42, t1123);
        // spectrum block of 2
        const V t1124 = t1032 - t1049;
        // spectrum block of 5
        const V t1125 = t1079 + t1082;
        // output stage
        const V t1126 = t1124 + t1125;
        io.out(26, t1126);
        const V t1127 = t1124 - t1125;
        io.out(35, t1127);
        // spectrum block of 5
        const V t1128 = t691 + t707;
        const V t1129 = t1128 + t679;
        const V t1130 = t694 - t709;
        const V t1131 = t1130 + t679;
        const V t1132 = c[3] * t687;
        const V t1133 = c[2] * t703;
        const V t1134 = t1132 + t1133;
        const V t1135 = t1131 - t1134;
        const V t1136 = t1131 + t1134;
        const V t1137 = t679 - t695;
        const V t1138 = c[1] * t707;
        const V t1139 = t1137 + t1138;
        const V t1140 = c[2] * t687;
        const V t1141 = c[3] * t703;
        const V t1142 = t1140 - t1141;
        const V t1143 = t1139 - t1142;
        const V t1144 = t1139 + t1142;
        // spectrum block of 5
        const V t1145 = t779 + t765;
        const V t1146 = t1145 + t786;
        const V t1147 = t782 - t767;
        const V t1148 = t1147 + t786;
        const V t1149 = c[3] * t775;
        const V t1150 = c[2] * t761;
        const V t1151 = t1149 + t1150;
        const V t1152 = t1148 + t1151;
        const V t1153 = t1148 - t1151;
        const V t1154 = t786 - t783;
        const V t1155 = c[1] * t765;
        const V t1156 = t1154 + t1155;
        const V t1157 = c[2] * t775;
        const V t1158 = c[3] * t761;
        const V t1159 = t1158 - t1157;
        const V t1160 = t1156 - t1159;
        const V t1161 = t1156 + t1159;
        // spectrum block of 5
        const V t1162 = t839 + t901;
        const V t1163 = t1162 + t813;
        const V t1164 = c[1] * t839;
        const V t1165 = c[0] * t901;
        const V t1166 = t1164 - t1165;
        const V t1167 = t1166 + t813;
        const V t1168 = c[3] * t835;
        const V t1169 = c[2] * t897;
        const V t1170 = t1168 + t1169;
        const V t1171 = c[0] * t839;
        const V t1172 = t813 - t1171;
        const V t1173 = c[1] * t901;
        const V t1174 = t1172 + t1173;
        const V t1175 = c[2] * t835;
        const V t1176 = c[3] * t897;
        const V t1177 = t1175 - t1176;
        // spectrum block of 3
        const V t1178 = t804 - t805;
        // complex block of 3
        const V t1179 = t867 + t874;
        // spectrum block of 5
        const V t1180 = c[1] * t1179;
        const V t1181 = c[0] * t1179;
        // complex block of 3
        const V t1182 = t929 + t936;
        // spectrum block of 5
        const V t1183 = c[0] * t1182;
        const V t1184 = t1179 + t1182;
        const V t1185 = t1180 - t1183;
        const V t1186 = t1178 - t1181;
        const V t1187 = c[1] * t1182;
        // complex block of 3
        const V t1188 = t872 + t876;
        // spectrum block of 5
        const V t1189 = c[3] * t1188;
        const V t1190 = c[2] * t1188;
        // complex block of 3
        const V t1191 = t934 + t938;
        // spectrum block of 5
        const V t1192 = c[2] * t1191;
        const V t1193 = c[3] * t1191;
        const V t1194 = t1189 + t1192;
        const V t1195 = t1193 - t1190;
        // spectrum block of 2
        const V t1196 = t1129 + t1146;
        // output stage
        const V t1197 = t1196 - t1163;
        io.out(13, t1197);
        const V t1198 = t1196 + t1163;
        io.out(48, t1198);
        // spectrum block of 2
        const V t1199 = t1129 - t1146;
        // spectrum block of 2
        const V t1200 = t1143 - t1160;
        // spectrum block of 5
        const V t1201 = t1186 + t1187;
        const V t1202 = t1201 - t1195;
        const V t1203 = t1201 + t1195;
        // output stage
        const V t1204 = t1200 + t1203;
        io.out(18, t1204);
        const V t1205 = t1200 - t1203;
        io.out(43, t1205);
        const V t1206 = t1199 - t1202;
        io.out(21, t1206);
        const V t1207 = t1199 + t1202;
        io.out(40, t1207);
        // spectrum block of 2
        const V t1208 = t1135 + t1152;
        // spectrum block of 5
        const V t1209 = t1174 + t1177;
        // output stage
        const V t1210 = t1208 - t1209;
        io.out(16, t1210);
        const V t1211 = t1208 + t1209;
        io.out(45, t1211);
        // spectrum block of 2
        const V t1212 = t1135 - t1152;
        // spectrum block of 5
        const V t1213 = t1184 + t1178;
        // output stage
        const V t1214 = t1212 + t1213;
        io.out(7, t1214);
        const V t1215 = t1212 - t1213;
        io.out(54, t1215);
        // spectrum block of 2
        const V t1216 = t1143 + t1160;
        // spectrum block of 5
        const V t1217 = t1167 - t1170;
        // output stage
        const V t1218 = t1216 - t1217;
        io.out(15, t1218);
        const V t1219 = t1216 + t1217;
        io.out(46, t1219);
        // spectrum block of 2
        const V t1220 = t1144 + t1161;
        // spectrum block of 5
        const V t1221 = t1167 + t1170;
        // output stage
        const V t1222 = t1220 + t1221;
        io.out(5, t1222);
        const V t1223 = t1220 - t1221;
        io.out(56, t1223);
        // spectrum block of 2
        const V t1224 = t1144 - t1161;
        // spectrum block of 2
        const V t1225 = t1136 - t1153;
        // spectrum block of 5
        const V t1226 = t1185 + t1178;
        const V t1227 = t1226 + t1194;
        const V t1228 = t1226 - t1194;
        // output stage
        const V t1229 = t1225 + t1228;
        io.out(2, t1229);
        const V t1230 = t1225 - t1228;
        io.out(59, t1230);
        const V t1231 = t1224 - t1227;
        io.out(6, t1231);
        const V t1232 = t1224 + t1227;
        io.out(55, t1232);
        // spectrum block of 2
        const V t1233 = t1136 + t1153;
        // spectrum block of 5
        const V t1234 = t1174 - t1177;
        // output stage
        const V t1235 = t1233 - t1234;
        io.out(22, t1235);
        const V t1236 = t1233 + t1234;
        io.out(39, t1236);
    }
};

}  // namespace zulg
