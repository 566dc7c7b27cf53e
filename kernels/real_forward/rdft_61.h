// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 61.
// Forward DFT of 61 real points, Rader 3, 5, 4.
// 403 additions, 359 subtractions, 415 multiplications (476 with `scale`); 14 outputs negated; 80 constants; 124 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<61> {
    static constexpr int steps = 1238;  // with `scale`
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 6/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 6/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.17085954303793666,  // c[6]: Q[12] of 61
        0.22994320324173947,  // c[7]: -Q[18] of 61
        0.25817133658934166,  // c[8]: -P[27] of 61
        0.0335460689418391,  // c[9]: -Q[27] of 61
        0.23892325195327072,  // c[10]: P[3] of 61
        0.10340917490170637,  // c[11]: Q[3] of 61
        0.0673035010610264,  // c[12]: -Q[24] of 61
        0.20515266792101527,  // c[13]: Q[6] of 61
        0.256047285458026,  // c[14]: P[21] of 61
        0.04709103298244708,  // c[15]: Q[21] of 61
        0.24403592948183833,  // c[16]: P[9] of 61
        0.09068761161102994,  // c[17]: Q[9] of 61
        0.23335104576758062,  // c[18]: -P[25] of 61
        0.1154342549547329,  // c[19]: Q[25] of 61
        0.2380667501964918,  // c[20]: P[5] of 61
        0.1053660297660444,  // c[21]: -Q[5] of 61
        0.24096799804842803,  // c[22]: P[11] of 61
        0.09855050326766758,  // c[23]: Q[11] of 61
        0.13608829619444565,  // c[24]: -P[19] of 61
        0.22194087820108896,  // c[25]: -Q[19] of 61
        0.2578608473569129,  // c[26]: Q[4] of 61
        0.1988310412655552,  // c[27]: Q[26] of 61
        0.20918808865965802,  // c[28]: P[1] of 61
        0.15497780918795065,  // c[29]: -Q[1] of 61
        0.1192479770652986,  // c[30]: -P[29] of 61
        0.2314253610640195,  // c[31]: Q[29] of 61
        0.07154712447968609,  // c[32]: Q[16] of 61
        0.035146745480687275,  // c[33]: Q[14] of 61
        0.2406977012179139,  // c[34]: -P[7] of 61
        0.09920884237904212,  // c[35]: Q[7] of 61
        0.09177478132326014,  // c[36]: -P[23] of 61
        0.24362915936079071,  // c[37]: -Q[23] of 61
        0.07049354660050404,  // c[38]: Q[8] of 61
        0.25902765669579647,  // c[39]: Q[22] of 61
        0.25591390402746017,  // c[40]: -P[13] of 61
        0.047810579406671994,  // c[41]: -Q[13] of 61
        0.20961095261841867,  // c[42]: P[17] of 61
        0.15440539602027134,  // c[43]: Q[17] of 61
        0.15195717683014903,  // c[44]: -Q[28] of 61
        0.16101883855703142,  // c[45]: Q[2] of 61
        0.20457446421174474,  // c[46]: P[2] of 61
        0.02612376015167778,  // c[47]: -P[22] of 61
        0.12208153447883048,  // c[48]: P[18] of 61
        0.035854723233524656,  // c[49]: -P[4] of 61
        0.2503173720628796,  // c[50]: P[16] of 61
        0.2514915834033143,  // c[51]: P[24] of 61
        0.1602815043062281,  // c[52]: P[6] of 61
        0.25795829907156226,  // c[53]: -P[14] of 61
        0.1680594978185787,  // c[54]: -P[26] of 61
        0.25061611613274265,  // c[55]: P[8] of 61
        0.21139251213699267,  // c[56]: P[28] of 61
        0.19643012582250524,  // c[57]: -P[12] of 61
        0.10452846326765347,  // c[58]: -sin 2 pi 59/60
        0.9945218953682733,  // c[59]: cos 2 pi 59/60
        0.9135454576426009,  // c[60]: -sin 2 pi 49/60
        0.4067366430758002,  // c[61]: cos 2 pi 49/60
        0.6691306063588582,  // c[62]: -sin 2 pi 53/60
        0.7431448254773942,  // c[63]: cos 2 pi 53/60
        0.9781476007338057,  // c[64]: -sin 2 pi 47/60
        0.20791169081775934,  // c[65]: cos 2 pi 47/60
        0.23576264945389142,  // c[66]: -Q[15] of 61
        0.11042531820311542,  // c[67]: -P[15] of 61
        0.2602823006297202,  // c[68]: Q[20] of 61
        0.23081456598926853,  // c[69]: Q[10] of 61
        0.016666666666666666,  // c[70]: 1/60
        0.005558934851007752,  // c[71]: -P[20] of 61
        0.22541108450079606,  // c[72]: -sin 2 pi 2/3 times Q[20] of 61
        0.004814178798955376,  // c[73]: -sin 2 pi 2/3 times -P[20] of 61
        0.12042596856560207,  // c[74]: P[10] of 61
        0.13017082793177756,  // c[75]: beta of 61
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
        const V x57 = io.in(57);
        const V x56 = io.in(56);
        const V t0 = x57 + x56;
        const V t1 = x57 - x56;
        const V x9 = io.in(9);
        const V t2 = t0 + x9;
        const V t3 = c[4] * t0;
        const V t4 = c[5] * t1;
        // real block of 3, multiplier 2
        const V x12 = io.in(12);
        const V x15 = io.in(15);
        const V t5 = x12 + x15;
        const V t6 = x12 - x15;
        const V x34 = io.in(34);
        const V t7 = t5 + x34;
        const V t8 = c[4] * t5;
        const V t9 = c[5] * t6;
        // real block of 3, multiplier 2
        const V x47 = io.in(47);
        const V x13 = io.in(13);
        const V t10 = x47 + x13;
        const V t11 = x47 - x13;
        // real block of 3, multiplier 2
        const V x25 = io.in(25);
        const V x16 = io.in(16);
        const V t12 = x25 + x16;
        const V t13 = x25 - x16;
        const V x20 = io.in(20);
        const V t14 = t12 + x20;
        const V t15 = c[4] * t12;
        const V t16 = c[5] * t13;
        // real block of 3, multiplier 2
        const V x42 = io.in(42);
        const V x22 = io.in(22);
        const V t17 = x42 + x22;
        const V t18 = x42 - x22;
        const V x58 = io.in(58);
        const V t19 = t17 + x58;
        const V t20 = c[4] * t17;
        const V t21 = c[5] * t18;
        // real block of 3, multiplier 2
        const V x1 = io.in(1);
        const V t22 = t10 + x1;
        const V t23 = c[4] * t10;
        const V t24 = x1 - t23;
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
        const V t35 = x9 - t3;
        // real block of 3, multiplier 2
        const V t36 = x34 - t8;
        // complex block of 5, multiplier 2
        const V t37 = t35 + t36;
        const V t38 = t35 - t36;
        const V t39 = c[0] * t37;
        const V t40 = c[2] * t38;
        const V t41 = c[1] * t37;
        const V t42 = c[3] * t38;
        // real block of 3, multiplier 2
        const V t43 = x20 - t15;
        // real block of 3, multiplier 2
        const V t44 = x58 - t20;
        // complex block of 5, multiplier 2
        const V t45 = t44 + t43;
        const V t46 = t44 - t43;
        const V t47 = c[1] * t45;
        const V t48 = c[3] * t46;
        const V t49 = c[0] * t45;
        const V t50 = c[2] * t46;
        // real block of 5, multiplier 2
        const V t51 = t2 + t7;
        const V t52 = c[1] * t51;
        const V t53 = c[0] * t51;
        const V t54 = t2 - t7;
        const V t55 = c[3] * t54;
        const V t56 = c[2] * t54;
        const V t57 = t19 + t14;
        const V t58 = c[0] * t57;
        const V t59 = c[1] * t57;
        const V t60 = t19 - t14;
        const V t61 = c[2] * t60;
        const V t62 = c[3] * t60;
        // complex block of 5, multiplier 2
        const V t63 = t4 - t9;
        const V t64 = c[2] * t63;
        const V t65 = c[3] * t63;
        const V t66 = t21 - t16;
        const V t67 = c[3] * t66;
        const V t68 = c[2] * t66;
        // real block of 3, multiplier 2
        const V x26 = io.in(26);
        const V x2 = io.in(2);
        const V t69 = x26 + x2;
        const V t70 = x26 - x2;
        const V x33 = io.in(33);
        const V t71 = t69 + x33;
        const V t72 = c[4] * t69;
        const V t73 = c[5] * t70;
        // real block of 3, multiplier 2
        const V x30 = io.in(30);
        const V x7 = io.in(7);
        const V t74 = x30 + x7;
        const V t75 = x30 - x7;
        const V x24 = io.in(24);
        const V t76 = t74 + x24;
        const V t77 = c[4] * t74;
        const V t78 = c[5] * t75;
        // real block of 3, multiplier 2
        const V x51 = io.in(51);
        const V x18 = io.in(18);
        const V t79 = x51 + x18;
        const V t80 = x51 - x18;
        const V x53 = io.in(53);
        const V t81 = t79 + x53;
        const V t82 = c[4] * t79;
        const V t83 = c[5] * t80;
        // real block of 3, multiplier 2
        const V x44 = io.in(44);
        const V x55 = io.in(55);
        const V t84 = x44 + x55;
        const V t85 = x44 - x55;
        const V x23 = io.in(23);
        const V t86 = t84 + x23;
        const V t87 = c[4] * t84;
        const V t88 = c[5] * t85;
        // real block of 3, multiplier 2
        const V x32 = io.in(32);
        const V x40 = io.in(40);
        const V t89 = x32 + x40;
        const V t90 = x32 - x40;
        const V x50 = io.in(50);
        const V t91 = t89 + x50;
        const V t92 = c[4] * t89;
        const V t93 = x50 - t92;
        const V t94 = c[5] * t90;
        // complex block of 5, multiplier 2
        const V t95 = t88 + t83;
        const V t96 = c[0] * t95;
        const V t97 = c[1] * t95;
        const V t98 = t73 + t78;
        const V t99 = c[1] * t98;
        const V t100 = t95 + t98;
        const V t101 = t96 - t99;
        const V t102 = t94 - t97;
        const V t103 = c[0] * t98;
        // real block of 3, multiplier 2
        const V t104 = x23 - t87;
        // real block of 3, multiplier 2
        const V t105 = x53 - t82;
        // complex block of 5, multiplier 2
        const V t106 = t104 + t105;
        const V t107 = t104 - t105;
        const V t108 = c[0] * t106;
        const V t109 = c[2] * t107;
        const V t110 = c[1] * t106;
        const V t111 = c[3] * t107;
        // real block of 3, multiplier 2
        const V t112 = x24 - t77;
        // real block of 3, multiplier 2
        const V t113 = x33 - t72;
        // complex block of 5, multiplier 2
        const V t114 = t113 + t112;
        const V t115 = t113 - t112;
        const V t116 = c[1] * t114;
        const V t117 = c[3] * t115;
        const V t118 = c[0] * t114;
        const V t119 = c[2] * t115;
        // real block of 5, multiplier 2
        const V t120 = t86 + t81;
        const V t121 = c[1] * t120;
        const V t122 = c[0] * t120;
        const V t123 = t86 - t81;
        const V t124 = c[3] * t123;
        const V t125 = c[2] * t123;
        const V t126 = t71 + t76;
        const V t127 = c[0] * t126;
        const V t128 = c[1] * t126;
        const V t129 = t71 - t76;
        const V t130 = c[2] * t129;
        const V t131 = c[3] * t129;
        // complex block of 5, multiplier 2
        const V t132 = t88 - t83;
        const V t133 = c[2] * t132;
        const V t134 = c[3] * t132;
        const V t135 = t73 - t78;
        const V t136 = c[3] * t135;
        const V t137 = c[2] * t135;
        // real block of 3, multiplier 2
        const V x19 = io.in(19);
        const V x39 = io.in(39);
        const V t138 = x19 + x39;
        const V t139 = x19 - x39;
        const V x3 = io.in(3);
        const V t140 = t138 + x3;
        const V t141 = c[4] * t138;
        const V t142 = c[5] * t139;
        // real block of 3, multiplier 2
        const V x4 = io.in(4);
        const V x5 = io.in(5);
        const V t143 = x4 + x5;
        const V t144 = x4 - x5;
        const V x52 = io.in(52);
        const V t145 = t143 + x52;
        const V t146 = c[4] * t143;
        const V t147 = c[5] * t144;
        // real block of 3, multiplier 2
        const V x14 = io.in(14);
        const V x48 = io.in(48);
        const V t148 = x14 + x48;
        const V t149 = x14 - x48;
        // real block of 3, multiplier 2
        const V x49 = io.in(49);
        const V x46 = io.in(46);
        const V t150 = x49 + x46;
        const V t151 = x49 - x46;
        const V x27 = io.in(27);
        const V t152 = t150 + x27;
        const V t153 = c[4] * t150;
        const V t154 = c[5] * t151;
        // real block of 3, multiplier 2
        const V x36 = io.in(36);
        const V x45 = io.in(45);
        const V t155 = x36 + x45;
        const V t156 = x36 - x45;
        const V x41 = io.in(41);
        const V t157 = t155 + x41;
        const V t158 = c[4] * t155;
        const V t159 = c[5] * t156;
        // real block of 3, multiplier 2
        const V x60 = io.in(60);
        const V t160 = t148 + x60;
        const V t161 = c[4] * t148;
        const V t162 = x60 - t161;
        const V t163 = c[5] * t149;
        // complex block of 5, multiplier 2
        const V t164 = t147 + t154;
        const V t165 = c[0] * t164;
        const V t166 = c[1] * t164;
        const V t167 = t142 + t159;
        const V t168 = c[1] * t167;
        const V t169 = t164 + t167;
        const V t170 = t165 - t168;
        const V t171 = t163 - t166;
        const V t172 = c[0] * t167;
        // real block of 3, multiplier 2
        const V t173 = x52 - t146;
        // real block of 3, multiplier 2
        const V t174 = x27 - t153;
        // complex block of 5, multiplier 2
        const V t175 = t173 + t174;
        const V t176 = t173 - t174;
        const V t177 = c[0] * t175;
        const V t178 = c[2] * t176;
        const V t179 = c[1] * t175;
        const V t180 = c[3] * t176;
        // real block of 3, multiplier 2
        const V t181 = x41 - t158;
        // real block of 3, multiplier 2
        const V t182 = x3 - t141;
        // complex block of 5, multiplier 2
        const V t183 = t182 + t181;
        const V t184 = t182 - t181;
        const V t185 = c[1] * t183;
        const V t186 = c[3] * t184;
        const V t187 = c[0] * t183;
        const V t188 = c[2] * t184;
        // real block of 5, multiplier 2
        const V t189 = t145 + t152;
        const V t190 = c[1] * t189;
        const V t191 = c[0] * t189;
        const V t192 = t145 - t152;
        const V t193 = c[3] * t192;
        const V t194 = c[2] * t192;
        const V t195 = t140 + t157;
        const V t196 = c[0] * t195;
        const V t197 = c[1] * t195;
        const V t198 = t140 - t157;
        const V t199 = c[2] * t198;
        const V t200 = c[3] * t198;
        // complex block of 5, multiplier 2
        const V t201 = t147 - t154;
        const V t202 = c[2] * t201;
        const V t203 = c[3] * t201;
        const V t204 = t142 - t159;
        const V t205 = c[3] * t204;
        const V t206 = c[2] * t204;
        // real block of 3, multiplier 2
        const V x17 = io.in(17);
        const V x6 = io.in(6);
        const V t207 = x17 + x6;
        const V t208 = x17 - x6;
        const V x38 = io.in(38);
        const V t209 = t207 + x38;
        const V t210 = c[4] * t207;
        const V t211 = c[5] * t208;
        // real block of 3, multiplier 2
        const V x10 = io.in(10);
        const V x43 = io.in(43);
        const V t212 = x10 + x43;
        const V t213 = x10 - x43;
        const V x8 = io.in(8);
        const V t214 = t212 + x8;
        const V t215 = c[4] * t212;
        const V t216 = c[5] * t213;
        // real block of 3, multiplier 2
        const V x29 = io.in(29);
        const V x21 = io.in(21);
        const V t217 = x29 + x21;
        const V t218 = x29 - x21;
        // real block of 3, multiplier 2
        const V x35 = io.in(35);
        const V x59 = io.in(59);
        const V t219 = x35 + x59;
        const V t220 = x35 - x59;
        const V x28 = io.in(28);
        const V t221 = t219 + x28;
        const V t222 = c[4] * t219;
        const V t223 = c[5] * t220;
        // real block of 3, multiplier 2
        const V x31 = io.in(31);
        const V x54 = io.in(54);
        const V t224 = x31 + x54;
        const V t225 = x31 - x54;
        const V x37 = io.in(37);
        const V t226 = t224 + x37;
        const V t227 = c[4] * t224;
        const V t228 = c[5] * t225;
        // real block of 3, multiplier 2
        const V x11 = io.in(11);
        const V t229 = t217 + x11;
        const V t230 = c[4] * t217;
        const V t231 = x11 - t230;
        const V t232 = c[5] * t218;
        // complex block of 5, multiplier 2
        const V t233 = t211 + t216;
        const V t234 = c[0] * t233;
        const V t235 = c[1] * t233;
        const V t236 = t223 + t228;
        const V t237 = c[1] * t236;
        const V t238 = t233 + t236;
        const V t239 = t234 - t237;
        const V t240 = t232 - t235;
        const V t241 = c[0] * t236;
        // real block of 3, multiplier 2
        const V t242 = x38 - t210;
        // real block of 3, multiplier 2
        const V t243 = x8 - t215;
        // complex block of 5, multiplier 2
        const V t244 = t242 + t243;
        const V t245 = t242 - t243;
        const V t246 = c[0] * t244;
        const V t247 = c[2] * t245;
        const V t248 = c[1] * t244;
        const V t249 = c[3] * t245;
        // real block of 3, multiplier 2
        const V t250 = x37 - t227;
        // real block of 3, multiplier 2
        const V t251 = x28 - t222;
        // complex block of 5, multiplier 2
        const V t252 = t251 + t250;
        const V t253 = t251 - t250;
        const V t254 = c[1] * t252;
        const V t255 = c[3] * t253;
        const V t256 = c[0] * t252;
        const V t257 = c[2] * t253;
        // real block of 5, multiplier 2
        const V t258 = t209 + t214;
        const V t259 = c[1] * t258;
        const V t260 = c[0] * t258;
        const V t261 = t209 - t214;
        const V t262 = c[3] * t261;
        const V t263 = c[2] * t261;
        const V t264 = t221 + t226;
        const V t265 = c[0] * t264;
        const V t266 = c[1] * t264;
        const V t267 = t221 - t226;
        const V t268 = c[2] * t267;
        const V t269 = c[3] * t267;
        // complex block of 5, multiplier 2
        const V t270 = t211 - t216;
        const V t271 = c[2] * t270;
        const V t272 = c[3] * t270;
        const V t273 = t223 - t228;
        const V t274 = c[3] * t273;
        const V t275 = c[2] * t273;
        // real block of 5, multiplier 2
        const V t276 = t51 + t57;
        const V t277 = t276 + t22;
        // real block of 5, multiplier 2
        const V t278 = t258 + t264;
        const V t279 = t278 + t229;
        // real block of 5, multiplier 2
        const V t280 = t189 + t195;
        const V t281 = t280 + t160;
        // real block of 5, multiplier 2
        const V t282 = t120 + t126;
        const V t283 = t282 + t91;
        // real block of 2
        const V t284 = t277 + t281;
        // real block of 2
        const V t285 = t279 + t283;
        // real block of 2
        const V t286 = t284 + t285;
        const V t287 = t284 - t285;
        // real block of 2
        const V t288 = t277 - t281;
        // real block of 2
        const V t289 = t279 - t283;
        // real block of 5, multiplier 2
        const V t290 = t22 - t52;
        const V t291 = t290 + t58;
        // real block of 5, multiplier 2
        const V t292 = t160 - t190;
        const V t293 = t292 + t196;
        // complex block of 2
        const V t294 = t291 - t293;
        // real block of 5, multiplier 2
        const V t295 = t55 + t61;
        // real block of 5, multiplier 2
        const V t296 = t193 + t199;
        // complex block of 2
        const V t297 = t295 + t296;
        const V t298 = t296 - t295;
        // real block of 5, multiplier 2
        const V t299 = t229 - t259;
        const V t300 = t299 + t265;
        // real block of 5, multiplier 2
        const V t301 = t91 - t121;
        const V t302 = t301 + t127;
        // complex block of 2
        const V t303 = t300 - t302;
        // real block of 5, multiplier 2
        const V t304 = t262 + t268;
        // real block of 5, multiplier 2
        const V t305 = t124 + t130;
        // complex block of 2
        const V t306 = t304 + t305;
        const V t307 = t305 - t304;
        // complex block of 2
        const V t308 = t291 + t293;
        // complex block of 2
        const V t309 = t300 + t302;
        // complex block of 2
        const V t310 = t308 + t309;
        const V t311 = t308 - t309;
        const V t312 = t297 + t306;
        // real block of 61
        const V t313 = c[6] * t312;
        // complex block of 2
        const V t314 = t306 - t297;
        // real block of 61
        const V t315 = c[7] * t314;
        // complex block of 2
        const V t316 = t294 - t307;
        // real block of 61
        const V t317 = c[8] * t316;
        const V t318 = c[9] * t316;
        // complex block of 2
        const V t319 = t298 + t303;
        // real block of 61
        const V t320 = c[9] * t319;
        const V t321 = c[8] * t319;
        // complex block of 2
        const V t322 = t294 + t307;
        // real block of 61
        const V t323 = c[10] * t322;
        const V t324 = c[11] * t322;
        // complex block of 2
        const V t325 = t298 - t303;
        // real block of 61
        const V t326 = c[11] * t325;
        const V t327 = c[10] * t325;
        // real block of 5, multiplier 2
        const V t328 = t53 - t59;
        const V t329 = t328 + t22;
        // real block of 5, multiplier 2
        const V t330 = t191 - t197;
        const V t331 = t330 + t160;
        // complex block of 2
        const V t332 = t329 - t331;
        // real block of 5, multiplier 2
        const V t333 = t56 - t62;
        // real block of 5, multiplier 2
        const V t334 = t194 - t200;
        // complex block of 2
        const V t335 = t333 + t334;
        const V t336 = t333 - t334;
        // real block of 5, multiplier 2
        const V t337 = t260 - t266;
        const V t338 = t337 + t229;
        // real block of 5, multiplier 2
        const V t339 = t122 - t128;
        const V t340 = t339 + t91;
        // complex block of 2
        const V t341 = t338 - t340;
        // real block of 5, multiplier 2
        const V t342 = t263 - t269;
        // real block of 5, multiplier 2
        const V t343 = t125 - t131;
        // complex block of 2
        const V t344 = t342 + t343;
        const V t345 = t342 - t343;
        // complex block of 2
        const V t346 = t329 + t331;
        // complex block of 2
        const V t347 = t338 + t340;
        // complex block of 2
        const V t348 = t346 + t347;
        const V t349 = t346 - t347;
        const V t350 = t335 + t344;
        // real block of 61
        const V t351 = c[12] * t350;
        // complex block of 2
        const V t352 = t335 - t344;
        // real block of 61
        const V t353 = c[13] * t352;
        // complex block of 2
        const V t354 = t332 - t345;
        // real block of 61
        const V t355 = c[14] * t354;
        const V t356 = c[15] * t354;
        // complex block of 2
        const V t357 = t336 + t341;
        // real block of 61
        const V t358 = c[15] * t357;
        const V t359 = c[14] * t357;
        // complex block of 2
        const V t360 = t332 + t345;
        // real block of 61
        const V t361 = c[16] * t360;
        const V t362 = c[17] * t360;
        // complex block of 2
        const V t363 = t336 - t341;
        // real block of 61
        const V t364 = c[17] * t363;
        const V t365 = c[16] * t363;
        // complex block of 5, multiplier 2
        const V t366 = t37 + t45;
        const V t367 = t366 + t24;
        // complex block of 5, multiplier 2
        const V t368 = t175 + t183;
        const V t369 = t368 + t162;
        // complex block of 2
        const V t370 = t367 - t369;
        // complex block of 5, multiplier 2
        const V t371 = t31 + t25;
        // complex block of 5, multiplier 2
        const V t372 = t169 + t163;
        // complex block of 2
        const V t373 = t371 + t372;
        const V t374 = t371 - t372;
        // complex block of 5, multiplier 2
        const V t375 = t244 + t252;
        const V t376 = t375 + t231;
        // complex block of 5, multiplier 2
        const V t377 = t106 + t114;
        const V t378 = t377 + t93;
        // complex block of 2
        const V t379 = t376 - t378;
        // complex block of 5, multiplier 2
        const V t380 = t238 + t232;
        // complex block of 5, multiplier 2
        const V t381 = t100 + t94;
        // complex block of 2
        const V t382 = t380 + t381;
        const V t383 = t380 - t381;
        // complex block of 2
        const V t384 = t367 + t369;
        // complex block of 2
        const V t385 = t376 + t378;
        // complex block of 2
        const V t386 = t384 + t385;
        const V t387 = t384 - t385;
        const V t388 = t373 + t382;
        // real block of 61
        const V t389 = c[68] * t388;
        // complex block of 2
        const V t390 = t373 - t382;
        // real block of 61
        const V t391 = c[69] * t390;
        // complex block of 2
        const V t392 = t370 - t383;
        // real block of 61
        const V t393 = c[18] * t392;
        const V t394 = c[19] * t392;
        // complex block of 2
        const V t395 = t374 + t379;
        // real block of 61
        const V t396 = c[19] * t395;
        const V t397 = c[18] * t395;
        // complex block of 2
        const V t398 = t370 + t383;
        // real block of 61
        const V t399 = c[20] * t398;
        const V t400 = c[21] * t398;
        // complex block of 2
        const V t401 = t374 - t379;
        // real block of 61
        const V t402 = c[21] * t401;
        const V t403 = c[20] * t401;
        // complex block of 5, multiplier 2
        const V t404 = t39 - t47;
        const V t405 = t404 + t24;
        const V t406 = t64 - t67;
        const V t407 = t405 + t406;
        const V t408 = t405 - t406;
        const V t409 = t32 + t25;
        const V t410 = t40 - t48;
        const V t411 = t409 - t410;
        const V t412 = t409 + t410;
        // complex block of 5, multiplier 2
        const V t413 = t170 + t163;
        const V t414 = t178 - t186;
        const V t415 = t413 - t414;
        const V t416 = t413 + t414;
        // complex block of 2
        const V t417 = t411 + t415;
        const V t418 = t415 - t411;
        // complex block of 2
        const V t419 = t412 + t416;
        const V t420 = t416 - t412;
        // complex block of 5, multiplier 2
        const V t421 = t246 - t254;
        const V t422 = t421 + t231;
        const V t423 = t271 - t274;
        const V t424 = t422 + t423;
        const V t425 = t422 - t423;
        const V t426 = t239 + t232;
        const V t427 = t247 - t255;
        const V t428 = t426 - t427;
        const V t429 = t426 + t427;
        // complex block of 5, multiplier 2
        const V t430 = t101 + t94;
        const V t431 = t109 - t117;
        const V t432 = t430 - t431;
        const V t433 = t430 + t431;
        // complex block of 2
        const V t434 = t428 + t432;
        const V t435 = t432 - t428;
        // complex block of 2
        const V t436 = t429 + t433;
        const V t437 = t433 - t429;
        // complex block of 5, multiplier 2
        const V t438 = t177 - t185;
        const V t439 = t438 + t162;
        const V t440 = t202 - t205;
        const V t441 = t439 + t440;
        const V t442 = t439 - t440;
        // complex block of 5, multiplier 2
        const V t443 = t108 - t116;
        const V t444 = t443 + t93;
        const V t445 = t133 - t136;
        const V t446 = t444 + t445;
        const V t447 = t444 - t445;
        // complex block of 2
        const V t448 = t407 + t441;
        // complex block of 2
        const V t449 = t424 + t446;
        // complex block of 2
        const V t450 = t448 + t449;
        const V t451 = t448 - t449;
        // complex block of 2
        const V t452 = t407 - t441;
        // complex block of 2
        const V t453 = t452 - t435;
        const V t454 = t452 + t435;
        // real block of 61
        const V t455 = c[22] * t454;
        const V t456 = c[23] * t454;
        const V t457 = c[24] * t453;
        const V t458 = c[25] * t453;
        // complex block of 2
        const V t459 = t424 - t446;
        // complex block of 2
        const V t460 = t418 + t459;
        const V t461 = t418 - t459;
        // real block of 61
        const V t462 = c[23] * t461;
        const V t463 = c[22] * t461;
        const V t464 = c[25] * t460;
        const V t465 = c[24] * t460;
        // complex block of 2
        const V t466 = t417 + t434;
        // real block of 61
        const V t467 = c[26] * t466;
        // complex block of 2
        const V t468 = t434 - t417;
        // real block of 61
        const V t469 = c[27] * t468;
        // complex block of 2
        const V t470 = t408 + t442;
        // complex block of 2
        const V t471 = t425 + t447;
        // complex block of 2
        const V t472 = t470 + t471;
        const V t473 = t470 - t471;
        // complex block of 2
        const V t474 = t408 - t442;
        // complex block of 2
        const V t475 = t474 - t437;
        const V t476 = t474 + t437;
        // real block of 61
        const V t477 = c[28] * t476;
        const V t478 = c[29] * t476;
        const V t479 = c[30] * t475;
        const V t480 = c[31] * t475;
        // complex block of 2
        const V t481 = t425 - t447;
        // complex block of 2
        const V t482 = t420 + t481;
        const V t483 = t420 - t481;
        // real block of 61
        const V t484 = c[29] * t483;
        const V t485 = c[28] * t483;
        const V t486 = c[31] * t482;
        const V t487 = c[30] * t482;
        // complex block of 2
        const V t488 = t419 + t436;
        // real block of 61
        const V t489 = c[32] * t488;
        // complex block of 2
        const V t490 = t436 - t419;
        // real block of 61
        const V t491 = c[33] * t490;
        // complex block of 5, multiplier 2
        const V t492 = t24 - t41;
        const V t493 = t492 + t49;
        const V t494 = t65 + t68;
        const V t495 = t493 + t494;
        const V t496 = t493 - t494;
        const V t497 = t33 + t34;
        const V t498 = t42 + t50;
        const V t499 = t497 - t498;
        const V t500 = t497 + t498;
        // complex block of 5, multiplier 2
        const V t501 = t171 + t172;
        const V t502 = t180 + t188;
        const V t503 = t501 - t502;
        const V t504 = t501 + t502;
        // complex block of 2
        const V t505 = t500 + t504;
        const V t506 = t500 - t504;
        // complex block of 2
        const V t507 = t499 + t503;
        const V t508 = t503 - t499;
        // complex block of 5, multiplier 2
        const V t509 = t231 - t248;
        const V t510 = t509 + t256;
        const V t511 = t272 + t275;
        const V t512 = t510 + t511;
        const V t513 = t510 - t511;
        const V t514 = t240 + t241;
        const V t515 = t249 + t257;
        const V t516 = t514 - t515;
        const V t517 = t514 + t515;
        // complex block of 5, multiplier 2
        const V t518 = t102 + t103;
        const V t519 = t111 + t119;
        const V t520 = t518 - t519;
        const V t521 = t518 + t519;
        // complex block of 2
        const V t522 = t517 + t521;
        const V t523 = t517 - t521;
        // complex block of 2
        const V t524 = t516 + t520;
        const V t525 = t520 - t516;
        // complex block of 5, multiplier 2
        const V t526 = t162 - t179;
        const V t527 = t526 + t187;
        const V t528 = t203 + t206;
        const V t529 = t527 + t528;
        const V t530 = t527 - t528;
        // complex block of 5, multiplier 2
        const V t531 = t93 - t110;
        const V t532 = t531 + t118;
        const V t533 = t134 + t137;
        const V t534 = t532 + t533;
        const V t535 = t532 - t533;
        // complex block of 2
        const V t536 = t496 + t530;
        // complex block of 2
        const V t537 = t513 + t535;
        // complex block of 2
        const V t538 = t536 + t537;
        const V t539 = t536 - t537;
        // complex block of 2
        const V t540 = t496 - t530;
        // complex block of 2
        const V t541 = t540 - t523;
        const V t542 = t540 + t523;
        // real block of 61
        const V t543 = c[34] * t542;
        const V t544 = c[35] * t542;
        const V t545 = c[36] * t541;
        const V t546 = c[37] * t541;
        // complex block of 2
        const V t547 = t513 - t535;
        // complex block of 2
        const V t548 = t506 + t547;
        const V t549 = t506 - t547;
        // real block of 61
        const V t550 = c[35] * t549;
        const V t551 = c[34] * t549;
        const V t552 = c[37] * t548;
        const V t553 = c[36] * t548;
        // complex block of 2
        const V t554 = t505 + t522;
        // real block of 61
        const V t555 = c[38] * t554;
        // complex block of 2
        const V t556 = t505 - t522;
        // real block of 61
        const V t557 = c[39] * t556;
        // complex block of 2
        const V t558 = t495 + t529;
        // complex block of 2
        const V t559 = t512 + t534;
        // complex block of 2
        const V t560 = t558 + t559;
        const V t561 = t558 - t559;
        // complex block of 2
        const V t562 = t495 - t529;
        // complex block of 2
        const V t563 = t562 - t525;
        const V t564 = t562 + t525;
        // real block of 61
        const V t565 = c[40] * t564;
        const V t566 = c[41] * t564;
        const V t567 = c[42] * t563;
        const V t568 = c[43] * t563;
        // complex block of 2
        const V t569 = t512 - t534;
        // complex block of 2
        const V t570 = t508 + t569;
        const V t571 = t508 - t569;
        // real block of 61
        const V t572 = c[41] * t571;
        const V t573 = c[40] * t571;
        const V t574 = c[43] * t570;
        const V t575 = c[42] * t570;
        // complex block of 2
        const V t576 = t507 + t524;
        // real block of 61
        const V t577 = c[44] * t576;
        // complex block of 2
        const V t578 = t524 - t507;
        // real block of 61
        const V t579 = c[45] * t578;
        const V x0 = io.in(0);
        const V t580 = x0 + t286;
        io.re(0, t580);
        const V t581 = c[70] * t286;
        const V t582 = x0 - t581;
        const V t583 = c[71] * t386;
        const V t584 = t583 + t389;
        // spectrum block of 3
        const V t585 = c[4] * t584;
        const V t586 = c[72] * t386;
        const V t587 = c[73] * t388;
        const V t588 = t586 - t587;
        const V t589 = t582 - t584;
        const V t590 = t585 + t582;
        const V t591 = t590 - t588;
        const V t592 = t590 + t588;
        // real block of 61
        const V t593 = c[46] * t561;
        const V t594 = t593 + t579;
        const V t595 = c[47] * t539;
        const V t596 = t557 - t595;
        // complex block of 3
        const V t597 = t596 + t594;
        // real block of 61
        const V t598 = c[45] * t561;
        const V t599 = c[46] * t578;
        const V t600 = t598 - t599;
        const V t601 = c[39] * t539;
        const V t602 = c[47] * t556;
        const V t603 = t602 + t601;
        // complex block of 3
        const V t604 = t603 + t600;
        const V t605 = t600 - t603;
        // real block of 61
        const V t606 = c[48] * t311;
        const V t607 = t606 - t315;
        const V t608 = c[7] * t311;
        const V t609 = c[48] * t314;
        const V t610 = t609 + t608;
        // complex block of 3
        const V t611 = t596 - t594;
        const V t612 = c[5] * t611;
        const V t613 = t604 + t610;
        const V t614 = t597 + t607;
        // spectrum block of 5
        const V t615 = c[0] * t614;
        const V t616 = c[1] * t614;
        // complex block of 3
        const V t617 = c[4] * t604;
        const V t618 = t617 - t610;
        const V t619 = c[4] * t597;
        const V t620 = t607 - t619;
        const V t621 = c[5] * t605;
        const V t622 = t620 - t621;
        const V t623 = t620 + t621;
        // real block of 61
        const V t624 = c[49] * t450;
        const V t625 = t467 - t624;
        const V t626 = c[50] * t472;
        const V t627 = t626 + t489;
        // complex block of 3
        const V t628 = t627 + t625;
        // real block of 61
        const V t629 = c[26] * t450;
        const V t630 = c[49] * t466;
        const V t631 = t630 + t629;
        const V t632 = c[32] * t472;
        const V t633 = c[50] * t488;
        const V t634 = t632 - t633;
        // complex block of 3
        const V t635 = t631 - t634;
        const V t636 = t634 + t631;
        // real block of 61
        const V t637 = c[51] * t348;
        const V t638 = t637 + t351;
        const V t639 = c[12] * t348;
        const V t640 = c[51] * t350;
        const V t641 = t640 - t639;
        // complex block of 3
        const V t642 = t627 - t625;
        const V t643 = c[5] * t642;
        const V t644 = t635 + t641;
        const V t645 = t628 + t638;
        // spectrum block of 5
        const V t646 = c[1] * t645;
        // complex block of 3
        const V t647 = c[4] * t635;
        const V t648 = t641 - t647;
        const V t649 = c[4] * t628;
        const V t650 = t638 - t649;
        const V t651 = c[5] * t636;
        const V t652 = t650 + t651;
        const V t653 = t650 - t651;
        // real block of 61
        const V t654 = c[52] * t349;
        const V t655 = t654 + t353;
        const V t656 = c[13] * t349;
        const V t657 = c[52] * t352;
        const V t658 = t656 - t657;
        const V t659 = c[53] * t473;
        const V t660 = t491 - t659;
        const V t661 = c[54] * t451;
        const V t662 = t469 - t661;
        // complex block of 3
        const V t663 = t662 + t660;
        // real block of 61
        const V t664 = c[33] * t473;
        const V t665 = c[53] * t490;
        const V t666 = t665 + t664;
        const V t667 = c[27] * t451;
        const V t668 = c[54] * t468;
        const V t669 = t668 + t667;
        // complex block of 3
        const V t670 = t669 - t666;
        const V t671 = t669 + t666;
        const V t672 = t662 - t660;
        const V t673 = c[5] * t672;
        const V t674 = t670 + t658;
        const V t675 = t663 + t655;
        // spectrum block of 5
        const V t676 = c[1] * t675;
        // complex block of 3
        const V t677 = c[4] * t670;
        const V t678 = t658 - t677;
        const V t679 = c[4] * t663;
        const V t680 = t655 - t679;
        const V t681 = c[5] * t671;
        const V t682 = t680 - t681;
        const V t683 = t680 + t681;
        // real block of 61
        const V t684 = c[55] * t538;
        const V t685 = t684 - t555;
        const V t686 = c[56] * t560;
        const V t687 = t686 - t577;
        // complex block of 3
        const V t688 = t687 + t685;
        // real block of 61
        const V t689 = c[38] * t538;
        const V t690 = c[55] * t554;
        const V t691 = t690 + t689;
        const V t692 = c[44] * t560;
        const V t693 = c[56] * t576;
        const V t694 = t693 + t692;
        // complex block of 3
        const V t695 = t694 - t691;
        const V t696 = t694 + t691;
        // real block of 61
        const V t697 = c[57] * t310;
        const V t698 = t313 - t697;
        const V t699 = c[6] * t310;
        const V t700 = c[57] * t312;
        const V t701 = t700 + t699;
        // complex block of 3
        const V t702 = t687 - t685;
        const V t703 = c[5] * t702;
        const V t704 = t695 + t701;
        const V t705 = t688 + t698;
        // spectrum block of 5
        const V t706 = c[0] * t705;
        const V t707 = c[1] * t705;
        // complex block of 3
        const V t708 = c[4] * t695;
        const V t709 = t701 - t708;
        const V t710 = c[4] * t688;
        const V t711 = t698 - t710;
        const V t712 = c[5] * t696;
        const V t713 = t711 - t712;
        const V t714 = t711 + t712;
        // real block of 61
        const V t715 = c[74] * t387;
        const V t716 = t715 + t391;
        // spectrum block of 3
        const V t717 = c[4] * t716;
        // real block of 61
        const V t718 = c[75] * t287;
        // spectrum block of 3
        const V t719 = c[76] * t387;
        const V t720 = c[77] * t390;
        const V t721 = t719 - t720;
        const V t722 = t716 + t718;
        const V t723 = t718 - t717;
        const V t724 = t723 + t721;
        const V t725 = t723 - t721;
        // complex block of 3
        const V t726 = t678 + t673;
        // spectrum block of 5
        const V t727 = c[3] * t726;
        const V t728 = c[2] * t726;
        // complex block of 3
        const V t729 = t618 + t612;
        // spectrum block of 5
        const V t730 = c[2] * t729;
        const V t731 = c[3] * t729;
        const V t732 = t730 + t727;
        const V t733 = t728 - t731;
        // complex block of 3
        const V t734 = t709 + t703;
        // spectrum block of 5
        const V t735 = c[2] * t734;
        const V t736 = c[3] * t734;
        // complex block of 3
        const V t737 = t648 + t643;
        // spectrum block of 5
        const V t738 = c[3] * t737;
        const V t739 = c[2] * t737;
        const V t740 = t735 + t738;
        const V t741 = t736 - t739;
        const V t742 = c[0] * t713;
        const V t743 = c[1] * t652;
        const V t744 = t742 - t743;
        const V t745 = t744 + t591;
        const V t746 = c[1] * t713;
        const V t747 = t591 - t746;
        const V t748 = c[0] * t652;
        const V t749 = t747 + t748;
        // spectrum block of 5
        const V t750 = c[0] * t622;
        const V t751 = c[1] * t682;
        const V t752 = t750 - t751;
        const V t753 = t752 + t724;
        const V t754 = c[1] * t622;
        const V t755 = t724 - t754;
        const V t756 = c[0] * t682;
        const V t757 = t755 + t756;
        // spectrum block of 5
        const V t758 = t745 - t740;
        // spectrum block of 5
        const V t759 = t753 + t732;
        // spectrum block of 2
        const V t760 = t758 + t759;
        io.re(25, t760);
        const V t761 = t758 - t759;
        io.re(30, t761);
        // spectrum block of 5
        const V t762 = t745 + t740;
        // spectrum block of 5
        const V t763 = t753 - t732;
        // spectrum block of 2
        const V t764 = t762 + t763;
        io.re(19, t764);
        const V t765 = t762 - t763;
        io.re(26, t765);
        // spectrum block of 5
        const V t766 = t749 - t741;
        // spectrum block of 5
        const V t767 = t757 - t733;
        // spectrum block of 2
        const V t768 = t766 + t767;
        io.re(12, t768);
        const V t769 = t766 - t767;
        io.re(10, t769);
        // spectrum block of 5
        const V t770 = t749 + t741;
        // spectrum block of 5
        const V t771 = t757 + t733;
        // spectrum block of 2
        const V t772 = t770 + t771;
        io.re(4, t772);
        const V t773 = t770 - t771;
        io.re(17, t773);
        // complex block of 3
        const V t774 = t678 - t673;
        // spectrum block of 5
        const V t775 = c[3] * t774;
        const V t776 = c[2] * t774;
        // complex block of 3
        const V t777 = t618 - t612;
        // spectrum block of 5
        const V t778 = c[2] * t777;
        const V t779 = c[3] * t777;
        const V t780 = t778 + t775;
        const V t781 = t776 - t779;
        // complex block of 3
        const V t782 = t709 - t703;
        // spectrum block of 5
        const V t783 = c[2] * t782;
        const V t784 = c[3] * t782;
        // complex block of 3
        const V t785 = t648 - t643;
        // spectrum block of 5
        const V t786 = c[3] * t785;
        const V t787 = c[2] * t785;
        const V t788 = t783 + t786;
        const V t789 = t784 - t787;
        const V t790 = c[0] * t714;
        const V t791 = c[1] * t653;
        const V t792 = t790 - t791;
        const V t793 = t792 + t592;
        const V t794 = c[1] * t714;
        const V t795 = t592 - t794;
        const V t796 = c[0] * t653;
        const V t797 = t795 + t796;
        // spectrum block of 5
        const V t798 = c[0] * t623;
        const V t799 = c[1] * t683;
        const V t800 = t798 - t799;
        const V t801 = t800 + t725;
        const V t802 = c[1] * t623;
        const V t803 = t725 - t802;
        const V t804 = c[0] * t683;
        const V t805 = t803 + t804;
        // spectrum block of 5
        const V t806 = t793 - t788;
        // spectrum block of 5
        const V t807 = t801 + t780;
        // spectrum block of 2
        const V t808 = t806 + t807;
        io.re(16, t808);
        const V t809 = t806 - t807;
        io.re(7, t809);
        // spectrum block of 5
        const V t810 = t793 + t788;
        // spectrum block of 5
        const V t811 = t801 - t780;
        // spectrum block of 2
        const V t812 = t810 + t811;
        io.re(22, t812);
        const V t813 = t810 - t811;
        io.re(2, t813);
        // spectrum block of 5
        const V t814 = t797 - t789;
        // spectrum block of 5
        const V t815 = t805 - t781;
        // spectrum block of 2
        const V t816 = t814 + t815;
        io.re(15, t816);
        const V t817 = t814 - t815;
        io.re(18, t817);
        // spectrum block of 5
        const V t818 = t797 + t789;
        // spectrum block of 5
        const V t819 = t805 + t781;
        // spectrum block of 2
        const V t820 = t818 + t819;
        io.re(5, t820);
        const V t821 = t818 - t819;
        io.re(6, t821);
        // spectrum block of 5
        const V t822 = t705 + t645;
        const V t823 = t822 + t589;
        // spectrum block of 5
        const V t824 = t614 + t675;
        const V t825 = t824 + t722;
        // spectrum block of 2
        const V t826 = t823 + t825;
        io.re(1, t826);
        const V t827 = t823 - t825;
        io.re(11, t827);
        // spectrum block of 5
        const V t828 = t706 - t646;
        const V t829 = t828 + t589;
        const V t830 = c[2] * t704;
        const V t831 = c[3] * t644;
        const V t832 = t830 + t831;
        // spectrum block of 5
        const V t833 = t615 - t676;
        const V t834 = t833 + t722;
        const V t835 = c[2] * t613;
        const V t836 = c[3] * t674;
        const V t837 = t835 - t836;
        // spectrum block of 5
        const V t838 = t832 - t829;
        // spectrum block of 5
        const V t839 = t834 - t837;
        // spectrum block of 2
        const V t840 = t839 - t838;
        io.re(20, t840);
        const V t841 = t838 + t839;
        io.minusRe(24, t841);
        // spectrum block of 5
        const V t842 = t829 + t832;
        // spectrum block of 5
        const V t843 = t834 + t837;
        // spectrum block of 2
        const V t844 = t842 + t843;
        io.re(3, t844);
        const V t845 = t842 - t843;
        io.re(28, t845);
        // spectrum block of 5
        const V t846 = t589 - t707;
        const V t847 = c[0] * t645;
        const V t848 = t846 + t847;
        const V t849 = c[3] * t704;
        const V t850 = c[2] * t644;
        const V t851 = t849 - t850;
        // spectrum block of 5
        const V t852 = t722 - t616;
        const V t853 = c[0] * t675;
        const V t854 = t852 + t853;
        const V t855 = c[3] * t613;
        const V t856 = c[2] * t674;
        const V t857 = t855 + t856;
        // spectrum block of 5
        const V t858 = t848 - t851;
        // spectrum block of 5
        const V t859 = t854 - t857;
        // spectrum block of 2
        const V t860 = t858 + t859;
        io.re(27, t860);
        const V t861 = t858 - t859;
        io.re(8, t861);
        // spectrum block of 5
        const V t862 = t848 + t851;
        // spectrum block of 5
        const V t863 = t854 + t857;
        // spectrum block of 2
        const V t864 = t862 + t863;
        io.re(9, t864);
        const V t865 = t862 - t863;
        io.re(23, t865);
        // spectrum block of 5
        const V t866 = t713 + t652;
        const V t867 = t866 + t591;
        // spectrum block of 5
        const V t868 = t622 + t682;
        const V t869 = t868 + t724;
        // spectrum block of 2
        const V t870 = t867 + t869;
        io.re(14, t870);
        const V t871 = t867 - t869;
        io.re(29, t871);
        // spectrum block of 5
        const V t872 = t714 + t653;
        const V t873 = t872 + t592;
        // spectrum block of 5
        const V t874 = t623 + t683;
        const V t875 = t874 + t725;
        // spectrum block of 2
        const V t876 = t873 + t875;
        io.re(13, t876);
        const V t877 = t873 - t875;
        io.re(21, t877);
        // real block of 61
        const V t878 = t477 + t484;
        const V t879 = t486 - t479;
        // complex block of 2
        const V t880 = t879 - t878;
        const V t881 = t878 + t879;
        // real block of 61
        const V t882 = t455 + t462;
        const V t883 = t464 - t457;
        // complex block of 2
        const V t884 = t883 - t882;
        const V t885 = t882 + t883;
        // mirrored skew block of 30
        const V t886 = c[58] * t881;
        const V t887 = c[59] * t881;
        const V t888 = c[60] * t885;
        const V t889 = c[61] * t885;
        // complex block of 3
        const V t890 = t880 + t884;
        // real block of 61
        const V t891 = t485 - t478;
        const V t892 = t487 + t480;
        // complex block of 2
        const V t893 = t891 + t892;
        const V t894 = t891 - t892;
        // real block of 61
        const V t895 = t456 - t463;
        const V t896 = t465 + t458;
        // complex block of 2
        const V t897 = t895 - t896;
        const V t898 = t895 + t896;
        // mirrored skew block of 30
        const V t899 = c[59] * t894;
        const V t900 = c[58] * t894;
        const V t901 = c[61] * t898;
        const V t902 = c[60] * t898;
        // complex block of 3
        const V t903 = t893 + t897;
        // real block of 61
        const V t904 = t361 - t364;
        const V t905 = t355 + t358;
        // complex block of 2
        const V t906 = t905 - t904;
        const V t907 = t904 + t905;
        // real block of 61
        const V t908 = t365 + t362;
        const V t909 = t356 - t359;
        // complex block of 2
        const V t910 = t908 + t909;
        const V t911 = t908 - t909;
        // mirrored skew block of 30
        const V t912 = t899 + t886;
        const V t913 = t901 + t888;
        // complex block of 3
        const V t914 = t912 + t913;
        const V t915 = t912 - t913;
        const V t916 = c[4] * t914;
        // mirrored skew block of 30
        const V t917 = t900 - t887;
        const V t918 = t902 - t889;
        // complex block of 3
        const V t919 = t917 + t918;
        const V t920 = t917 - t918;
        const V t921 = c[4] * t919;
        const V t922 = c[5] * t920;
        // mirrored skew block of 30
        const V t923 = c[1] * t907;
        const V t924 = c[3] * t911;
        const V t925 = t924 + t923;
        const V t926 = c[1] * t911;
        const V t927 = c[3] * t907;
        const V t928 = t926 - t927;
        // complex block of 3
        const V t929 = t880 - t884;
        const V t930 = c[5] * t929;
        const V t931 = t893 - t897;
        const V t932 = c[5] * t931;
        const V t933 = t890 - t906;
        const V t934 = t903 + t910;
        const V t935 = c[4] * t890;
        const V t936 = t906 + t935;
        const V t937 = c[4] * t903;
        const V t938 = t910 - t937;
        // real block of 61
        const V t939 = t323 + t326;
        const V t940 = t320 - t317;
        // complex block of 2
        const V t941 = t940 - t939;
        const V t942 = t939 + t940;
        // real block of 61
        const V t943 = t324 - t327;
        const V t944 = t321 + t318;
        // complex block of 2
        const V t945 = t943 - t944;
        const V t946 = t943 + t944;
        // real block of 61
        const V t947 = t550 - t543;
        const V t948 = t552 - t545;
        // complex block of 2
        const V t949 = t948 - t947;
        const V t950 = t947 + t948;
        // real block of 61
        const V t951 = t572 - t565;
        const V t952 = t567 + t574;
        // complex block of 2
        const V t953 = t952 - t951;
        const V t954 = t951 + t952;
        // mirrored skew block of 30
        const V t955 = c[62] * t950;
        const V t956 = c[63] * t950;
        const V t957 = c[64] * t954;
        const V t958 = c[65] * t954;
        // complex block of 3
        const V t959 = t949 - t953;
        // real block of 61
        const V t960 = t551 + t544;
        const V t961 = t553 + t546;
        // complex block of 2
        const V t962 = t960 - t961;
        const V t963 = t960 + t961;
        // real block of 61
        const V t964 = t573 + t566;
        const V t965 = t568 - t575;
        // complex block of 2
        const V t966 = t965 - t964;
        const V t967 = t964 + t965;
        // mirrored skew block of 30
        const V t968 = c[63] * t963;
        const V t969 = c[62] * t963;
        const V t970 = c[65] * t967;
        const V t971 = c[64] * t967;
        // complex block of 3
        const V t972 = t962 + t966;
        // mirrored skew block of 30
        const V t973 = c[0] * t942;
        const V t974 = c[2] * t946;
        const V t975 = t974 + t973;
        const V t976 = c[0] * t946;
        const V t977 = c[2] * t942;
        const V t978 = t976 - t977;
        const V t979 = t968 + t955;
        const V t980 = t957 - t970;
        // complex block of 3
        const V t981 = t979 + t980;
        const V t982 = t979 - t980;
        const V t983 = c[4] * t981;
        // mirrored skew block of 30
        const V t984 = t969 - t956;
        const V t985 = t958 + t971;
        // complex block of 3
        const V t986 = t984 + t985;
        const V t987 = t984 - t985;
        const V t988 = c[4] * t986;
        const V t989 = c[5] * t987;
        // complex block of 3
        const V t990 = t949 + t953;
        const V t991 = c[5] * t990;
        const V t992 = t962 - t966;
        const V t993 = c[5] * t992;
        const V t994 = t959 - t941;
        const V t995 = t972 + t945;
        const V t996 = c[4] * t959;
        const V t997 = t941 + t996;
        const V t998 = c[4] * t972;
        const V t999 = t945 - t998;
        // real block of 61
        const V t1000 = t399 + t402;
        const V t1001 = t396 - t393;
        // complex block of 2
        const V t1002 = t1000 + t1001;
        const V t1003 = t1001 - t1000;
        // mirrored skew block of 30
        const V t1004 = c[4] * t1002;
        // real block of 61
        const V t1005 = t403 - t400;
        const V t1006 = t397 + t394;
        // complex block of 2
        const V t1007 = t1005 - t1006;
        const V t1008 = t1005 + t1006;
        // mirrored skew block of 30
        const V t1009 = c[5] * t1007;
        // real block of 61
        const V t1010 = c[66] * t288;
        const V t1011 = c[67] * t289;
        const V t1012 = t1011 + t1010;
        // mirrored skew block of 30
        const V t1013 = t1009 + t1004;
        // spectrum block of 3
        const V t1014 = c[4] * t1013;
        // spectrum block of 3
        const V t1015 = t1008 - t1012;
        const V t1016 = c[4] * t1008;
        const V t1017 = t1012 + t1016;
        const V t1018 = c[5] * t1003;
        // spectrum block of 3
        const V t1019 = c[78] * t1007;
        const V t1020 = c[79] * t1002;
        const V t1021 = t1019 - t1020;
        // real block of 61
        const V t1022 = c[66] * t289;
        const V t1023 = c[67] * t288;
        const V t1024 = t1022 - t1023;
        // spectrum block of 3
        const V t1025 = t1018 - t1017;
        // complex block of 3
        const V t1026 = t938 - t930;
        // spectrum block of 5
        const V t1027 = c[0] * t1026;
        const V t1028 = c[1] * t1026;
        // complex block of 3
        const V t1029 = t999 - t991;
        // spectrum block of 5
        const V t1030 = c[1] * t1029;
        const V t1031 = t1026 + t1029;
        const V t1032 = t1027 - t1030;
        const V t1033 = t1025 - t1028;
        const V t1034 = c[0] * t1029;
        // complex block of 3
        const V t1035 = t932 - t936;
        // spectrum block of 5
        const V t1036 = c[2] * t1035;
        const V t1037 = c[3] * t1035;
        // complex block of 3
        const V t1038 = t993 - t997;
        // spectrum block of 5
        const V t1039 = c[3] * t1038;
        const V t1040 = c[2] * t1038;
        const V t1041 = t1031 + t1025;
        io.im(13, t1041);
        const V t1042 = t1032 + t1025;
        const V t1043 = t1036 + t1039;
        const V t1044 = t1042 - t1043;
        io.im(15, t1044);
        const V t1045 = t1042 + t1043;
        io.minusIm(5, t1045);
        const V t1046 = t1033 + t1034;
        const V t1047 = t1037 - t1040;
        const V t1048 = t1046 - t1047;
        io.im(22, t1048);
        const V t1049 = t1046 + t1047;
        io.im(16, t1049);
        // spectrum block of 3
        const V t1050 = t1017 + t1018;
        // complex block of 3
        const V t1051 = t938 + t930;
        // spectrum block of 5
        const V t1052 = c[0] * t1051;
        const V t1053 = c[1] * t1051;
        // complex block of 3
        const V t1054 = t999 + t991;
        // spectrum block of 5
        const V t1055 = c[1] * t1054;
        const V t1056 = t1051 + t1054;
        const V t1057 = t1052 - t1055;
        const V t1058 = t1050 + t1053;
        const V t1059 = c[0] * t1054;
        // complex block of 3
        const V t1060 = t936 + t932;
        // spectrum block of 5
        const V t1061 = c[2] * t1060;
        const V t1062 = c[3] * t1060;
        // complex block of 3
        const V t1063 = t997 + t993;
        // spectrum block of 5
        const V t1064 = c[3] * t1063;
        const V t1065 = c[2] * t1063;
        const V t1066 = t1056 - t1050;
        io.minusIm(14, t1066);
        const V t1067 = t1057 - t1050;
        const V t1068 = t1061 + t1064;
        const V t1069 = t1067 + t1068;
        io.im(12, t1069);
        const V t1070 = t1067 - t1068;
        io.minusIm(4, t1070);
        const V t1071 = t1059 - t1058;
        const V t1072 = t1065 - t1062;
        const V t1073 = t1071 - t1072;
        io.minusIm(19, t1073);
        const V t1074 = t1071 + t1072;
        io.im(25, t1074);
        // spectrum block of 5
        const V t1075 = t934 + t995;
        const V t1076 = t1075 + t1015;
        io.im(1, t1076);
        const V t1077 = c[0] * t934;
        const V t1078 = c[1] * t995;
        const V t1079 = t1077 - t1078;
        const V t1080 = c[2] * t933;
        const V t1081 = c[3] * t994;
        const V t1082 = t1080 + t1081;
        const V t1083 = t1079 + t1015;
        const V t1084 = t1083 - t1082;
        io.minusIm(27, t1084);
        const V t1085 = t1083 + t1082;
        io.im(9, t1085);
        const V t1086 = c[1] * t934;
        const V t1087 = t1015 - t1086;
        const V t1088 = c[0] * t995;
        const V t1089 = c[3] * t933;
        const V t1090 = c[2] * t994;
        const V t1091 = t1089 - t1090;
        const V t1092 = t1087 + t1088;
        const V t1093 = t1092 - t1091;
        io.minusIm(3, t1093);
        const V t1094 = t1092 + t1091;
        io.im(20, t1094);
        // spectrum block of 3
        const V t1095 = t1013 + t1024;
        // complex block of 3
        const V t1096 = t914 + t925;
        // spectrum block of 5
        const V t1097 = c[0] * t1096;
        const V t1098 = c[1] * t1096;
        // complex block of 3
        const V t1099 = t981 + t975;
        // spectrum block of 5
        const V t1100 = c[1] * t1099;
        const V t1101 = t1096 + t1099;
        const V t1102 = t1097 - t1100;
        const V t1103 = t1095 - t1098;
        const V t1104 = c[0] * t1099;
        // complex block of 3
        const V t1105 = t919 - t928;
        // spectrum block of 5
        const V t1106 = c[2] * t1105;
        const V t1107 = c[3] * t1105;
        // complex block of 3
        const V t1108 = t986 - t978;
        // spectrum block of 5
        const V t1109 = c[3] * t1108;
        const V t1110 = c[2] * t1108;
        const V t1111 = t1101 + t1095;
        io.minusIm(30, t1111);
        const V t1112 = t1102 + t1095;
        const V t1113 = t1106 + t1109;
        const V t1114 = t1112 - t1113;
        io.im(17, t1114);
        const V t1115 = t1112 + t1113;
        io.minusIm(26, t1115);
        const V t1116 = t1103 + t1104;
        const V t1117 = t1107 - t1110;
        const V t1118 = t1116 - t1117;
        io.im(29, t1118);
        const V t1119 = t1116 + t1117;
        io.im(10, t1119);
        // spectrum block of 3
        const V t1120 = t1024 - t1014;
        const V t1121 = t1120 + t1021;
        const V t1122 = t1120 - t1021;
        // complex block of 3
        const V t1123 = t928 + t921;
        const V t1124 = c[5] * t915;
        const V t1125 = t1124 - t1123;
        const V t1126 = t1123 + t1124;
        // spectrum block of 5
        const V t1127 = c[2] * t1125;
        const V t1128 = c[3] * t1125;
        // spectrum block of 5
        const V t1129 = c[2] * t1126;
        const V t1130 = c[3] * t1126;
        // complex block of 3
        const V t1131 = t925 - t916;
        const V t1132 = t1131 - t922;
        const V t1133 = t1131 + t922;
        // spectrum block of 5
        const V t1134 = c[0] * t1132;
        const V t1135 = c[1] * t1132;
        // spectrum block of 5
        const V t1136 = c[0] * t1133;
        const V t1137 = c[1] * t1133;
        // complex block of 3
        const V t1138 = t978 + t988;
        const V t1139 = c[5] * t982;
        const V t1140 = t1139 - t1138;
        const V t1141 = t1138 + t1139;
        // spectrum block of 5
        const V t1142 = c[3] * t1140;
        const V t1143 = c[2] * t1140;
        // spectrum block of 5
        const V t1144 = c[3] * t1141;
        const V t1145 = c[2] * t1141;
        // complex block of 3
        const V t1146 = t975 - t983;
        const V t1147 = t1146 - t989;
        const V t1148 = t1146 + t989;
        // spectrum block of 5
        const V t1149 = c[1] * t1147;
        const V t1150 = c[0] * t1147;
        // spectrum block of 5
        const V t1151 = c[1] * t1148;
        const V t1152 = c[0] * t1148;
        // spectrum block of 5
        const V t1153 = t1132 + t1147;
        const V t1154 = t1153 + t1121;
        io.minusIm(24, t1154);
        const V t1155 = t1134 - t1149;
        const V t1156 = t1155 + t1121;
        const V t1157 = t1127 + t1142;
        const V t1158 = t1156 - t1157;
        io.minusIm(23, t1158);
        const V t1159 = t1156 + t1157;
        io.im(28, t1159);
        const V t1160 = t1121 - t1135;
        const V t1161 = t1160 + t1150;
        const V t1162 = t1128 - t1143;
        const V t1163 = t1161 - t1162;
        io.im(11, t1163);
        const V t1164 = t1161 + t1162;
        io.im(8, t1164);
        // spectrum block of 5
        const V t1165 = t1133 + t1148;
        const V t1166 = t1165 + t1122;
        io.minusIm(7, t1166);
        const V t1167 = t1136 - t1151;
        const V t1168 = t1167 + t1122;
        const V t1169 = t1129 + t1144;
        const V t1170 = t1168 + t1169;
        io.im(6, t1170);
        const V t1171 = t1168 - t1169;
        io.minusIm(2, t1171);
        const V t1172 = t1122 - t1137;
        const V t1173 = t1172 + t1152;
        const V t1174 = t1145 - t1130;
        const V t1175 = t1173 - t1174;
        io.im(21, t1175);
        const V t1176 = t1173 + t1174;
        io.minusIm(18, t1176);
    }
};

}  // namespace zulg
