// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 53.
// Hartley transform of 53 points, form I.
// 446 additions, 446 subtractions, 450 multiplications (503 with `scale`); 100 constants; 60 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<53> {
    static constexpr int steps = 1395;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5751407294740031,  // c[2]: -Q[3] of 13
        0.1741386011521359,  // c[3]: -P[3] of 13
        0.08333333333333333,  // c[4]: 1/12
        0.3004626062886658,  // c[5]: -beta of 13
        0.015496188988565054,  // c[6]: P[1] of 13
        0.6007253775544544,  // c[7]: -Q[1] of 13
        0.3203288761978803,  // c[8]: P[5] of 13
        0.5084294662830964,  // c[9]: -Q[5] of 13
        0.5279915321544383,  // c[10]: -Q[1] of 13
        0.2869425954512852,  // c[11]: P[1] of 13
        0.29376443202296976,  // c[12]: -Q[2] of 13
        0.5242266395265821,  // c[13]: P[2] of 13
        0.42218506973345193,  // c[14]: -Q[4] of 13
        0.42763404682657274,  // c[15]: P[4] of 13
        0.280148395734785,  // c[16]: Q[5] of 13
        0.5316276774946329,  // c[17]: P[5] of 13
        0.4330127018922193,  // c[18]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[19]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.31378278210316923,  // c[20]: -Q[1] of 13
        0.5124953431658732,  // c[21]: P[1] of 13
        0.3071113711590828,  // c[22]: Q[2] of 13
        0.5165207806234897,  // c[23]: P[2] of 13
        0.5814344829416822,  // c[24]: Q[4] of 13
        0.15180597207438773,  // c[25]: P[4] of 13
        0.02319821121153658,  // c[26]: Q[5] of 13
        0.6004772719326653,  // c[27]: -P[5] of 13
        0.6008758031820526,  // c[28]: -Q[2] of 13
        0.007705858903092426,  // c[29]: P[2] of 13
        0.15924941320823024,  // c[30]: -Q[4] of 13
        0.5794400189009605,  // c[31]: -P[4] of 13
        0.5018097763375671,  // c[32]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[33]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[34]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[35]: sin 2 pi 1/3 times -Q[2] of 13
        0.12053668025532305,  // c[36]: sin 2 pi 1/52
        0.992708874098054,  // c[37]: cos 2 pi 1/52
        0.3546048870425356,  // c[38]: sin 2 pi 3/52
        0.9350162426854148,  // c[39]: cos 2 pi 3/52
        0.5680647467311558,  // c[40]: sin 2 pi 5/52
        0.8229838658936564,  // c[41]: cos 2 pi 5/52
        0.7485107481711011,  // c[42]: sin 2 pi 7/52
        0.6631226582407952,  // c[43]: cos 2 pi 7/52
        0.8854560256532099,  // c[44]: sin 2 pi 9/52
        0.46472317204376856,  // c[45]: cos 2 pi 9/52
        0.970941817426052,  // c[46]: sin 2 pi 11/52
        0.23931566428755777,  // c[47]: cos 2 pi 11/52
        0.2535110589592131,  // c[48]: -P[1] of 53
        0.11888864474491956,  // c[49]: -Q[1] of 53
        0.13160258300584013,  // c[50]: -Q[2] of 53
        0.2471500091242084,  // c[51]: P[2] of 53
        0.01920483471835668,  // c[52]: -P[3] of 53
        0.27934484277921784,  // c[53]: -Q[3] of 53
        0.2755686148630738,  // c[54]: Q[4] of 53
        0.049641770378907886,  // c[55]: P[4] of 53
        0.08550180730497182,  // c[56]: -P[5] of 53
        0.26663047052332334,  // c[57]: Q[5] of 53
        0.21010412063116707,  // c[58]: Q[6] of 53
        0.18509085703434766,  // c[59]: P[6] of 53
        0.02729324277461261,  // c[60]: -P[7] of 53
        0.2786708556034366,  // c[61]: Q[7] of 53
        0.27887234952845297,  // c[62]: Q[8] of 53
        0.02515113381908794,  // c[63]: P[8] of 53
        0.27926923264549397,  // c[64]: -P[9] of 53
        0.02027467783966699,  // c[65]: Q[9] of 53
        0.2421434442697633,  // c[66]: Q[10] of 53
        0.14060198882334973,  // c[67]: -P[10] of 53
        0.23326162380743898,  // c[68]: -P[11] of 53
        0.15489151598012768,  // c[69]: -Q[11] of 53
        0.1903832491584887,  // c[70]: Q[12] of 53
        0.20532068893261132,  // c[71]: P[12] of 53
        0.27729778231647617,  // c[72]: P[13] of 53
        0.038836925551200704,  // c[73]: Q[13] of 53
        0.2645541253996386,  // c[74]: -Q[14] of 53
        0.09172503255893466,  // c[75]: P[14] of 53
        0.10309300873453617,  // c[76]: P[15] of 53
        0.2603347814141748,  // c[77]: -Q[15] of 53
        0.04985858822323415,  // c[78]: Q[16] of 53
        0.27552946855879373,  // c[79]: -P[16] of 53
        0.062487064695808406,  // c[80]: -P[17] of 53
        0.27294272954157833,  // c[81]: -Q[17] of 53
        0.12218648440059575,  // c[82]: Q[18] of 53
        0.2519381469601781,  // c[83]: P[18] of 53
        0.0855629575860694,  // c[84]: -P[19] of 53
        0.26661085340441376,  // c[85]: Q[19] of 53
        0.279948840618166,  // c[86]: Q[20] of 53
        0.005568976607062611,  // c[87]: P[20] of 53
        0.2608612063201607,  // c[88]: P[21] of 53
        0.10175361370042776,  // c[89]: -Q[21] of 53
        0.21551686731931244,  // c[90]: Q[22] of 53
        0.17875918651855408,  // c[91]: P[22] of 53
        0.015387675100292094,  // c[92]: -P[23] of 53
        0.2795810907749542,  // c[93]: Q[23] of 53
        0.2758601234844355,  // c[94]: -Q[24] of 53
        0.04799540743714245,  // c[95]: P[24] of 53
        0.26811627900458906,  // c[96]: P[25] of 53
        0.08072191645791539,  // c[97]: -Q[25] of 53
        0.019230769230769232,  // c[98]: 1/52
        0.14000211325539458,  // c[99]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x52 = io.in(52);
        const V t0 = x1 + x52;
        const V t1 = x1 - x52;
        const V x2 = io.in(2);
        const V x51 = io.in(51);
        const V t2 = x2 + x51;
        const V t3 = x2 - x51;
        const V x3 = io.in(3);
        const V x50 = io.in(50);
        const V t4 = x3 + x50;
        const V t5 = x3 - x50;
        const V x4 = io.in(4);
        const V x49 = io.in(49);
        const V t6 = x4 + x49;
        const V t7 = x4 - x49;
        const V x5 = io.in(5);
        const V x48 = io.in(48);
        const V t8 = x5 + x48;
        const V t9 = x5 - x48;
        const V x6 = io.in(6);
        const V x47 = io.in(47);
        const V t10 = x6 + x47;
        const V t11 = x6 - x47;
        const V x7 = io.in(7);
        const V x46 = io.in(46);
        const V t12 = x7 + x46;
        const V t13 = x7 - x46;
        const V x8 = io.in(8);
        const V x45 = io.in(45);
        const V t14 = x8 + x45;
        const V t15 = x8 - x45;
        const V x9 = io.in(9);
        const V x44 = io.in(44);
        const V t16 = x9 + x44;
        const V t17 = x9 - x44;
        const V x10 = io.in(10);
        const V x43 = io.in(43);
        const V t18 = x10 + x43;
        const V t19 = x10 - x43;
        const V x11 = io.in(11);
        const V x42 = io.in(42);
        const V t20 = x11 + x42;
        const V t21 = x11 - x42;
        const V x12 = io.in(12);
        const V x41 = io.in(41);
        const V t22 = x12 + x41;
        const V t23 = x12 - x41;
        const V x13 = io.in(13);
        const V x40 = io.in(40);
        const V t24 = x13 + x40;
        const V t25 = x13 - x40;
        const V x14 = io.in(14);
        const V x39 = io.in(39);
        const V t26 = x14 + x39;
        const V t27 = x14 - x39;
        const V x15 = io.in(15);
        const V x38 = io.in(38);
        const V t28 = x15 + x38;
        const V t29 = x15 - x38;
        const V x16 = io.in(16);
        const V x37 = io.in(37);
        const V t30 = x16 + x37;
        const V t31 = x16 - x37;
        const V x17 = io.in(17);
        const V x36 = io.in(36);
        const V t32 = x17 + x36;
        const V t33 = x17 - x36;
        const V x18 = io.in(18);
        const V x35 = io.in(35);
        const V t34 = x18 + x35;
        const V t35 = x18 - x35;
        const V x19 = io.in(19);
        const V x34 = io.in(34);
        const V t36 = x19 + x34;
        const V t37 = x19 - x34;
        const V x20 = io.in(20);
        const V x33 = io.in(33);
        const V t38 = x20 + x33;
        const V t39 = x20 - x33;
        const V x21 = io.in(21);
        const V x32 = io.in(32);
        const V t40 = x21 + x32;
        const V t41 = x21 - x32;
        const V x22 = io.in(22);
        const V x31 = io.in(31);
        const V t42 = x22 + x31;
        const V t43 = x22 - x31;
        const V x23 = io.in(23);
        const V x30 = io.in(30);
        const V t44 = x23 + x30;
        const V t45 = x23 - x30;
        const V x24 = io.in(24);
        const V x29 = io.in(29);
        const V t46 = x24 + x29;
        const V t47 = x24 - x29;
        const V x25 = io.in(25);
        const V x28 = io.in(28);
        const V t48 = x25 + x28;
        const V t49 = x25 - x28;
        const V x26 = io.in(26);
        const V x27 = io.in(27);
        const V t50 = x26 + x27;
        const V t51 = x26 - x27;
        // real block of 3
        const V t52 = t20 + t10;
        const V t53 = t20 - t10;
        const V t54 = t52 + t6;
        const V t55 = c[0] * t52;
        const V t56 = t6 - t55;
        const V t57 = c[1] * t53;
        // real block of 3
        const V t58 = t18 + t12;
        const V t59 = t18 - t12;
        const V t60 = t58 + t48;
        const V t61 = c[0] * t58;
        const V t62 = t48 - t61;
        const V t63 = c[1] * t59;
        // real block of 3
        const V t64 = t46 + t16;
        const V t65 = t46 - t16;
        const V t66 = t64 + t24;
        const V t67 = c[0] * t64;
        const V t68 = t24 - t67;
        const V t69 = c[1] * t65;
        // real block of 3
        const V t70 = t30 + t28;
        const V t71 = t30 - t28;
        const V t72 = t70 + t32;
        const V t73 = c[0] * t70;
        const V t74 = t32 - t73;
        const V t75 = c[1] * t71;
        // real block of 2
        const V t76 = t54 + t66;
        const V t77 = t54 - t66;
        // real block of 2
        const V t78 = t60 + t72;
        const V t79 = t60 - t72;
        // real block of 2
        const V t80 = t76 + t78;
        const V t81 = t76 - t78;
        // complex block of 2
        const V t82 = t56 + t68;
        const V t83 = t57 + t69;
        const V t84 = t56 - t68;
        const V t85 = t69 - t57;
        // complex block of 2
        const V t86 = t62 + t74;
        const V t87 = t63 + t75;
        const V t88 = t62 - t74;
        const V t89 = t75 - t63;
        // complex block of 2
        const V t90 = t82 + t86;
        const V t91 = t83 + t87;
        const V t92 = t82 - t86;
        const V t93 = t87 - t83;
        // complex block of 2
        const V t94 = t84 - t89;
        const V t95 = t85 + t88;
        const V t96 = t84 + t89;
        const V t97 = t85 - t88;
        // real block of 13, multiplier 2
        const V t98 = t0 + t80;
        const V t99 = c[4] * t80;
        const V t100 = t0 - t99;
        const V t101 = c[10] * t97;
        const V t102 = c[11] * t96;
        const V t103 = t102 + t101;
        const V t104 = c[10] * t96;
        const V t105 = c[11] * t97;
        const V t106 = t105 - t104;
        const V t107 = c[12] * t93;
        const V t108 = c[13] * t92;
        const V t109 = t108 - t107;
        const V t110 = c[12] * t92;
        const V t111 = c[13] * t93;
        const V t112 = t111 + t110;
        const V t113 = c[2] * t79;
        const V t114 = c[3] * t77;
        const V t115 = t113 - t114;
        const V t116 = c[2] * t77;
        const V t117 = c[3] * t79;
        const V t118 = t117 + t116;
        const V t119 = c[14] * t91;
        const V t120 = c[15] * t90;
        const V t121 = t120 - t119;
        const V t122 = c[14] * t90;
        const V t123 = c[15] * t91;
        const V t124 = t123 + t122;
        const V t125 = c[16] * t95;
        const V t126 = c[17] * t94;
        const V t127 = t126 + t125;
        const V t128 = c[16] * t94;
        const V t129 = c[17] * t95;
        const V t130 = t128 - t129;
        const V t131 = c[5] * t81;
        // spectrum block of 2
        const V t132 = t100 - t131;
        const V t133 = t100 + t131;
        // complex block of 2
        const V t134 = t112 - t124;
        const V t135 = t121 + t109;
        const V t136 = t124 + t112;
        const V t137 = t121 - t109;
        // spectrum block of 3, multiplier 2
        const V t138 = t135 + t132;
        const V t139 = c[0] * t135;
        const V t140 = t132 - t139;
        const V t141 = c[1] * t134;
        const V t142 = t140 - t141;
        const V t143 = t140 + t141;
        // spectrum block of 3, multiplier 2
        const V t144 = t137 + t133;
        const V t145 = c[0] * t137;
        const V t146 = t133 - t145;
        const V t147 = c[1] * t136;
        const V t148 = t146 + t147;
        const V t149 = t146 - t147;
        // complex block of 2
        const V t150 = t127 - t103;
        const V t151 = t106 + t130;
        const V t152 = t103 + t127;
        const V t153 = t106 - t130;
        // mirrored skew block of 6
        const V t154 = c[0] * t152;
        const V t155 = c[1] * t153;
        const V t156 = t155 + t154;
        // spectrum block of 3, multiplier 2
        const V t157 = t151 - t118;
        const V t158 = c[0] * t151;
        const V t159 = t118 + t158;
        const V t160 = c[1] * t150;
        const V t161 = t160 - t159;
        const V t162 = t159 + t160;
        // spectrum block of 3, multiplier 2
        const V t163 = t156 + t115;
        const V t164 = c[0] * t156;
        const V t165 = t115 - t164;
        const V t166 = c[18] * t153;
        const V t167 = c[19] * t152;
        const V t168 = t166 - t167;
        const V t169 = t165 + t168;
        const V t170 = t165 - t168;
        // real block of 3
        const V t171 = t22 + t40;
        const V t172 = t22 - t40;
        const V t173 = t171 + t26;
        const V t174 = c[0] * t171;
        const V t175 = t26 - t174;
        const V t176 = c[1] * t172;
        // real block of 3
        const V t177 = t34 + t2;
        const V t178 = t34 - t2;
        const V t179 = t177 + t14;
        const V t180 = c[0] * t177;
        const V t181 = t14 - t180;
        const V t182 = c[1] * t178;
        // real block of 3
        const V t183 = t42 + t8;
        const V t184 = t42 - t8;
        const V t185 = t183 + t36;
        const V t186 = c[0] * t183;
        const V t187 = t36 - t186;
        const V t188 = c[1] * t184;
        // real block of 3
        const V t189 = t4 + t50;
        const V t190 = t4 - t50;
        const V t191 = t189 + t38;
        const V t192 = c[0] * t189;
        const V t193 = t38 - t192;
        const V t194 = c[1] * t190;
        // real block of 2
        const V t195 = t173 + t185;
        const V t196 = t173 - t185;
        // real block of 2
        const V t197 = t179 + t191;
        const V t198 = t179 - t191;
        // real block of 2
        const V t199 = t195 + t197;
        const V t200 = t195 - t197;
        // complex block of 2
        const V t201 = t175 + t187;
        const V t202 = t176 + t188;
        const V t203 = t175 - t187;
        const V t204 = t188 - t176;
        // complex block of 2
        const V t205 = t181 + t193;
        const V t206 = t182 + t194;
        const V t207 = t181 - t193;
        const V t208 = t194 - t182;
        // complex block of 2
        const V t209 = t201 + t205;
        const V t210 = t202 + t206;
        const V t211 = t201 - t205;
        const V t212 = t206 - t202;
        // complex block of 2
        const V t213 = t203 - t208;
        const V t214 = t204 + t207;
        const V t215 = t203 + t208;
        const V t216 = t204 - t207;
        // real block of 13, multiplier 2
        const V t217 = t44 + t199;
        const V t218 = c[4] * t199;
        const V t219 = t44 - t218;
        const V t220 = c[10] * t216;
        const V t221 = c[11] * t215;
        const V t222 = t221 + t220;
        const V t223 = c[10] * t215;
        const V t224 = c[11] * t216;
        const V t225 = t224 - t223;
        const V t226 = c[12] * t212;
        const V t227 = c[13] * t211;
        const V t228 = t227 - t226;
        const V t229 = c[12] * t211;
        const V t230 = c[13] * t212;
        const V t231 = t230 + t229;
        const V t232 = c[2] * t198;
        const V t233 = c[3] * t196;
        const V t234 = t232 - t233;
        const V t235 = c[2] * t196;
        const V t236 = c[3] * t198;
        const V t237 = t236 + t235;
        const V t238 = c[14] * t210;
        const V t239 = c[15] * t209;
        const V t240 = t239 - t238;
        const V t241 = c[14] * t209;
        const V t242 = c[15] * t210;
        const V t243 = t242 + t241;
        const V t244 = c[16] * t214;
        const V t245 = c[17] * t213;
        const V t246 = t245 + t244;
        const V t247 = c[16] * t213;
        const V t248 = c[17] * t214;
        const V t249 = t247 - t248;
        const V t250 = c[5] * t200;
        // spectrum block of 2
        const V t251 = t219 - t250;
        const V t252 = t219 + t250;
        // complex block of 2
        const V t253 = t231 - t243;
        const V t254 = t240 + t228;
        const V t255 = t243 + t231;
        const V t256 = t240 - t228;
        // spectrum block of 3, multiplier 2
        const V t257 = t254 + t251;
        const V t258 = c[0] * t254;
        const V t259 = t251 - t258;
        const V t260 = c[1] * t253;
        const V t261 = t259 - t260;
        const V t262 = t259 + t260;
        // spectrum block of 3, multiplier 2
        const V t263 = t256 + t252;
        const V t264 = c[0] * t256;
        const V t265 = t252 - t264;
        const V t266 = c[1] * t255;
        const V t267 = t265 + t266;
        const V t268 = t265 - t266;
        // complex block of 2
        const V t269 = t246 - t222;
        const V t270 = t225 + t249;
        const V t271 = t222 + t246;
        const V t272 = t225 - t249;
        // mirrored skew block of 6
        const V t273 = c[0] * t271;
        const V t274 = c[1] * t272;
        const V t275 = t274 + t273;
        // spectrum block of 3, multiplier 2
        const V t276 = t270 - t237;
        const V t277 = c[0] * t270;
        const V t278 = t237 + t277;
        const V t279 = c[1] * t269;
        const V t280 = t279 - t278;
        const V t281 = t278 + t279;
        // spectrum block of 3, multiplier 2
        const V t282 = t275 + t234;
        const V t283 = c[0] * t275;
        const V t284 = t234 - t283;
        const V t285 = c[18] * t272;
        const V t286 = c[19] * t271;
        const V t287 = t285 - t286;
        const V t288 = t284 + t287;
        const V t289 = t284 - t287;
        // real block of 2
        const V t290 = t98 + t217;
        const V t291 = t98 - t217;
        // complex block of 2
        const V t292 = t138 + t257;
        const V t293 = t157 + t276;
        const V t294 = t138 - t257;
        const V t295 = t157 - t276;
        // complex block of 2
        const V t296 = t149 + t268;
        const V t297 = t170 + t289;
        const V t298 = t149 - t268;
        const V t299 = t289 - t170;
        // complex block of 2
        const V t300 = t143 + t262;
        const V t301 = t161 + t280;
        const V t302 = t143 - t262;
        const V t303 = t161 - t280;
        // complex block of 2
        const V t304 = t142 + t261;
        const V t305 = t162 + t281;
        const V t306 = t142 - t261;
        const V t307 = t162 - t281;
        // complex block of 2
        const V t308 = t144 + t263;
        const V t309 = t169 + t288;
        const V t310 = t144 - t263;
        const V t311 = t288 - t169;
        // complex block of 2
        const V t312 = t148 + t267;
        const V t313 = t163 + t282;
        const V t314 = t148 - t267;
        const V t315 = t282 - t163;
        // real block of 3
        const V t316 = t21 + t11;
        const V t317 = t11 - t21;
        const V t318 = t316 + t7;
        const V t319 = c[0] * t316;
        const V t320 = t319 - t7;
        const V t321 = c[1] * t317;
        // real block of 3
        const V t322 = t19 - t13;
        const V t323 = t19 + t13;
        const V t324 = t322 - t49;
        const V t325 = c[0] * t322;
        const V t326 = t49 + t325;
        const V t327 = c[1] * t323;
        // real block of 3
        const V t328 = t47 - t17;
        const V t329 = t47 + t17;
        const V t330 = t328 + t25;
        const V t331 = c[0] * t328;
        const V t332 = t25 - t331;
        const V t333 = c[1] * t329;
        // real block of 3
        const V t334 = t31 + t29;
        const V t335 = t31 - t29;
        const V t336 = t334 - t33;
        const V t337 = c[0] * t334;
        const V t338 = t33 + t337;
        const V t339 = c[1] * t335;
        // real block of 2
        const V t340 = t330 - t318;
        const V t341 = t318 + t330;
        // real block of 2
        const V t342 = t324 + t336;
        const V t343 = t324 - t336;
        // real block of 2
        const V t344 = t340 + t342;
        const V t345 = t340 - t342;
        // complex block of 2
        const V t346 = t320 + t332;
        const V t347 = t321 + t333;
        const V t348 = t320 - t332;
        const V t349 = t333 - t321;
        // complex block of 2
        const V t350 = t326 + t338;
        const V t351 = t327 + t339;
        const V t352 = t338 - t326;
        const V t353 = t339 - t327;
        // complex block of 2
        const V t354 = t346 - t350;
        const V t355 = t347 + t351;
        const V t356 = t346 + t350;
        const V t357 = t351 - t347;
        // complex block of 2
        const V t358 = t348 - t353;
        const V t359 = t349 + t352;
        const V t360 = t348 + t353;
        const V t361 = t349 - t352;
        // real block of 13
        const V t362 = t1 + t344;
        const V t363 = c[4] * t344;
        const V t364 = t1 - t363;
        const V t365 = c[20] * t361;
        const V t366 = c[21] * t360;
        const V t367 = t366 + t365;
        const V t368 = c[20] * t360;
        const V t369 = c[21] * t361;
        const V t370 = t369 - t368;
        const V t371 = c[22] * t357;
        const V t372 = c[23] * t356;
        const V t373 = t372 + t371;
        const V t374 = c[22] * t356;
        const V t375 = c[23] * t357;
        const V t376 = t374 - t375;
        const V t377 = c[3] * t343;
        const V t378 = c[2] * t341;
        const V t379 = t377 - t378;
        const V t380 = c[3] * t341;
        const V t381 = c[2] * t343;
        const V t382 = t381 + t380;
        const V t383 = c[24] * t355;
        const V t384 = c[25] * t354;
        const V t385 = t384 + t383;
        const V t386 = c[24] * t354;
        const V t387 = c[25] * t355;
        const V t388 = t386 - t387;
        const V t389 = c[26] * t359;
        const V t390 = c[27] * t358;
        const V t391 = t389 - t390;
        const V t392 = c[26] * t358;
        const V t393 = c[27] * t359;
        const V t394 = t393 + t392;
        const V t395 = c[5] * t345;
        // spectrum block of 2
        const V t396 = t364 + t395;
        const V t397 = t364 - t395;
        // complex block of 2
        const V t398 = t388 - t376;
        const V t399 = t385 + t373;
        const V t400 = t388 + t376;
        const V t401 = t385 - t373;
        // spectrum block of 3, multiplier 2
        const V t402 = t399 + t396;
        const V t403 = c[0] * t399;
        const V t404 = t396 - t403;
        const V t405 = c[1] * t398;
        const V t406 = t404 - t405;
        const V t407 = t404 + t405;
        // spectrum block of 3, multiplier 2
        const V t408 = t401 + t397;
        const V t409 = c[0] * t401;
        const V t410 = t397 - t409;
        const V t411 = c[1] * t400;
        const V t412 = t410 - t411;
        const V t413 = t410 + t411;
        // complex block of 2
        const V t414 = t391 - t367;
        const V t415 = t370 + t394;
        const V t416 = t367 + t391;
        const V t417 = t370 - t394;
        // mirrored skew block of 6
        const V t418 = c[0] * t416;
        const V t419 = c[1] * t417;
        const V t420 = t419 + t418;
        // spectrum block of 3, multiplier 2
        const V t421 = t415 + t382;
        const V t422 = c[0] * t415;
        const V t423 = t382 - t422;
        const V t424 = c[1] * t414;
        const V t425 = t423 + t424;
        const V t426 = t423 - t424;
        // spectrum block of 3, multiplier 2
        const V t427 = t420 + t379;
        const V t428 = c[0] * t420;
        const V t429 = t379 - t428;
        const V t430 = c[18] * t417;
        const V t431 = c[19] * t416;
        const V t432 = t430 - t431;
        const V t433 = t429 + t432;
        const V t434 = t429 - t432;
        // real block of 3
        const V t435 = t43 + t23;
        const V t436 = t23 - t43;
        const V t437 = t435 + t15;
        const V t438 = c[0] * t435;
        const V t439 = t438 - t15;
        const V t440 = c[1] * t436;
        // real block of 3
        const V t441 = t39 - t27;
        const V t442 = t39 + t27;
        const V t443 = t441 + t5;
        const V t444 = c[0] * t441;
        const V t445 = t5 - t444;
        const V t446 = c[1] * t442;
        // real block of 3
        const V t447 = t9 + t35;
        const V t448 = t35 - t9;
        const V t449 = t51 - t447;
        const V t450 = c[0] * t447;
        const V t451 = t450 + t51;
        const V t452 = c[1] * t448;
        // real block of 3
        const V t453 = t41 + t45;
        const V t454 = t45 - t41;
        const V t455 = t37 - t453;
        const V t456 = c[0] * t453;
        const V t457 = t456 + t37;
        const V t458 = c[1] * t454;
        // real block of 2
        const V t459 = t449 - t437;
        const V t460 = t437 + t449;
        // real block of 2
        const V t461 = t443 + t455;
        const V t462 = t443 - t455;
        // real block of 2
        const V t463 = t459 + t461;
        const V t464 = t459 - t461;
        // complex block of 2
        const V t465 = t439 + t451;
        const V t466 = t440 + t452;
        const V t467 = t439 - t451;
        const V t468 = t452 - t440;
        // complex block of 2
        const V t469 = t445 + t457;
        const V t470 = t446 + t458;
        const V t471 = t445 - t457;
        const V t472 = t458 - t446;
        // complex block of 2
        const V t473 = t465 + t469;
        const V t474 = t466 + t470;
        const V t475 = t465 - t469;
        const V t476 = t470 - t466;
        // complex block of 2
        const V t477 = t467 - t472;
        const V t478 = t468 + t471;
        const V t479 = t467 + t472;
        const V t480 = t468 - t471;
        // real block of 13
        const V t481 = t3 + t463;
        const V t482 = c[4] * t463;
        const V t483 = t3 - t482;
        const V t484 = c[20] * t480;
        const V t485 = c[21] * t479;
        const V t486 = t485 + t484;
        const V t487 = c[20] * t479;
        const V t488 = c[21] * t480;
        const V t489 = t488 - t487;
        const V t490 = c[22] * t476;
        const V t491 = c[23] * t475;
        const V t492 = t491 + t490;
        const V t493 = c[22] * t475;
        const V t494 = c[23] * t476;
        const V t495 = t493 - t494;
        const V t496 = c[3] * t462;
        const V t497 = c[2] * t460;
        const V t498 = t496 - t497;
        const V t499 = c[3] * t460;
        const V t500 = c[2] * t462;
        const V t501 = t500 + t499;
        const V t502 = c[24] * t474;
        const V t503 = c[25] * t473;
        const V t504 = t503 + t502;
        const V t505 = c[24] * t473;
        const V t506 = c[25] * t474;
        const V t507 = t505 - t506;
        const V t508 = c[26] * t478;
        const V t509 = c[27] * t477;
        const V t510 = t508 - t509;
        const V t511 = c[26] * t477;
        const V t512 = c[27] * t478;
        const V t513 = t512 + t511;
        const V t514 = c[5] * t464;
        // spectrum block of 2
        const V t515 = t483 + t514;
        const V t516 = t483 - t514;
        // complex block of 2
        const V t517 = t507 - t495;
        const V t518 = t504 + t492;
        const V t519 = t507 + t495;
        const V t520 = t504 - t492;
        // spectrum block of 3, multiplier 2
        const V t521 = t518 + t515;
        const V t522 = c[0] * t518;
        const V t523 = t515 - t522;
        const V t524 = c[1] * t517;
        const V t525 = t523 - t524;
        const V t526 = t523 + t524;
        // spectrum block of 3, multiplier 2
        const V t527 = t520 + t516;
        const V t528 = c[0] * t520;
        const V t529 = t516 - t528;
        const V t530 = c[1] * t519;
        const V t531 = t529 - t530;
        const V t532 = t529 + t530;
        // complex block of 2
        const V t533 = t510 - t486;
        const V t534 = t489 + t513;
        const V t535 = t486 + t510;
        const V t536 = t489 - t513;
        // mirrored skew block of 6
        const V t537 = c[0] * t535;
        const V t538 = c[1] * t536;
        const V t539 = t538 + t537;
        // spectrum block of 3, multiplier 2
        const V t540 = t534 + t501;
        const V t541 = c[0] * t534;
        const V t542 = t501 - t541;
        const V t543 = c[1] * t533;
        const V t544 = t542 + t543;
        const V t545 = t542 - t543;
        // spectrum block of 3, multiplier 2
        const V t546 = t539 + t498;
        const V t547 = c[0] * t539;
        const V t548 = t498 - t547;
        const V t549 = c[18] * t536;
        const V t550 = c[19] * t535;
        const V t551 = t549 - t550;
        const V t552 = t548 + t551;
        const V t553 = t548 - t551;
        // skew block of 26
        const V t554 = c[36] * t546;
        const V t555 = c[37] * t531;
        const V t556 = t555 + t554;
        const V t557 = c[36] * t531;
        const V t558 = c[37] * t546;
        const V t559 = t558 - t557;
        // complex block of 2
        const V t560 = t412 + t556;
        const V t561 = t427 + t559;
        const V t562 = t412 - t556;
        const V t563 = t427 - t559;
        // skew block of 26
        const V t564 = c[38] * t552;
        const V t565 = c[39] * t527;
        const V t566 = t565 + t564;
        const V t567 = c[38] * t527;
        const V t568 = c[39] * t552;
        const V t569 = t568 - t567;
        // complex block of 2
        const V t570 = t408 + t566;
        const V t571 = t433 + t569;
        const V t572 = t408 - t566;
        const V t573 = t433 - t569;
        // skew block of 26
        const V t574 = c[40] * t545;
        const V t575 = c[41] * t525;
        const V t576 = t575 + t574;
        const V t577 = c[40] * t525;
        const V t578 = c[41] * t545;
        const V t579 = t578 - t577;
        // complex block of 2
        const V t580 = t406 + t576;
        const V t581 = t426 + t579;
        const V t582 = t406 - t576;
        const V t583 = t426 - t579;
        // skew block of 26
        const V t584 = c[42] * t544;
        const V t585 = c[43] * t526;
        const V t586 = t585 - t584;
        const V t587 = c[42] * t526;
        const V t588 = c[43] * t544;
        const V t589 = t588 + t587;
        // complex block of 2
        const V t590 = t407 + t586;
        const V t591 = t425 + t589;
        const V t592 = t407 - t586;
        const V t593 = t589 - t425;
        // skew block of 26
        const V t594 = c[44] * t553;
        const V t595 = c[45] * t532;
        const V t596 = t595 + t594;
        const V t597 = c[44] * t532;
        const V t598 = c[45] * t553;
        const V t599 = t598 - t597;
        // complex block of 2
        const V t600 = t413 + t596;
        const V t601 = t434 + t599;
        const V t602 = t413 - t596;
        const V t603 = t434 - t599;
        // skew block of 26
        const V t604 = c[46] * t540;
        const V t605 = c[47] * t521;
        const V t606 = t605 - t604;
        const V t607 = c[46] * t521;
        const V t608 = c[47] * t540;
        const V t609 = t608 + t607;
        // complex block of 2
        const V t610 = t402 + t606;
        const V t611 = t421 + t609;
        const V t612 = t402 - t606;
        const V t613 = t609 - t421;
        // spectrum block of 53
        const V t614 = c[98] * t290;
        const V x0 = io.in(0);
        const V t615 = x0 - t614;
        const V t616 = c[48] * t561;
        const V t617 = c[49] * t560;
        const V t618 = t616 - t617;
        const V t619 = c[48] * t560;
        const V t620 = c[49] * t561;
        const V t621 = t620 + t619;
        const V t622 = c[50] * t315;
        const V t623 = c[51] * t314;
        const V t624 = t623 - t622;
        const V t625 = c[50] * t314;
        const V t626 = c[51] * t315;
        const V t627 = t626 + t625;
        const V t628 = c[52] * t571;
        const V t629 = c[53] * t570;
        const V t630 = t628 - t629;
        const V t631 = c[52] * t570;
        const V t632 = c[53] * t571;
        const V t633 = t632 + t631;
        const V t634 = c[54] * t293;
        const V t635 = c[55] * t292;
        const V t636 = t635 - t634;
        const V t637 = c[54] * t292;
        const V t638 = c[55] * t293;
        const V t639 = t638 + t637;
        const V t640 = c[56] * t581;
        const V t641 = c[57] * t580;
        const V t642 = t641 + t640;
        const V t643 = c[56] * t580;
        const V t644 = c[57] * t581;
        const V t645 = t644 - t643;
        const V t646 = c[58] * t311;
        const V t647 = c[59] * t310;
        const V t648 = t647 + t646;
        const V t649 = c[58] * t310;
        const V t650 = c[59] * t311;
        const V t651 = t649 - t650;
        const V t652 = c[60] * t591;
        const V t653 = c[61] * t590;
        const V t654 = t653 - t652;
        const V t655 = c[60] * t590;
        const V t656 = c[61] * t591;
        const V t657 = t656 + t655;
        const V t658 = c[62] * t297;
        const V t659 = c[63] * t296;
        const V t660 = t659 + t658;
        const V t661 = c[62] * t296;
        const V t662 = c[63] * t297;
        const V t663 = t661 - t662;
        const V t664 = c[64] * t601;
        const V t665 = c[65] * t600;
        const V t666 = t665 + t664;
        const V t667 = c[64] * t600;
        const V t668 = c[65] * t601;
        const V t669 = t668 - t667;
        const V t670 = c[66] * t307;
        const V t671 = c[67] * t306;
        const V t672 = t670 - t671;
        const V t673 = c[66] * t306;
        const V t674 = c[67] * t307;
        const V t675 = t674 + t673;
        const V t676 = c[68] * t611;
        const V t677 = c[69] * t610;
        const V t678 = t677 + t676;
        const V t679 = c[68] * t610;
        const V t680 = c[69] * t611;
        const V t681 = t680 - t679;
        const V t682 = c[70] * t301;
        const V t683 = c[71] * t300;
        const V t684 = t683 - t682;
        const V t685 = c[70] * t300;
        const V t686 = c[71] * t301;
        const V t687 = t686 + t685;
        const V t688 = c[72] * t481;
        const V t689 = c[73] * t362;
        const V t690 = t689 + t688;
        const V t691 = c[72] * t362;
        const V t692 = c[73] * t481;
        const V t693 = t691 - t692;
        const V t694 = c[74] * t303;
        const V t695 = c[75] * t302;
        const V t696 = t695 - t694;
        const V t697 = c[74] * t302;
        const V t698 = c[75] * t303;
        const V t699 = t698 + t697;
        const V t700 = c[76] * t613;
        const V t701 = c[77] * t612;
        const V t702 = t700 - t701;
        const V t703 = c[76] * t612;
        const V t704 = c[77] * t613;
        const V t705 = t704 + t703;
        const V t706 = c[78] * t305;
        const V t707 = c[79] * t304;
        const V t708 = t707 + t706;
        const V t709 = c[78] * t304;
        const V t710 = c[79] * t305;
        const V t711 = t709 - t710;
        const V t712 = c[80] * t603;
        const V t713 = c[81] * t602;
        const V t714 = t713 + t712;
        const V t715 = c[80] * t602;
        const V t716 = c[81] * t603;
        const V t717 = t716 - t715;
        const V t718 = c[82] * t299;
        const V t719 = c[83] * t298;
        const V t720 = t719 + t718;
        const V t721 = c[82] * t298;
        const V t722 = c[83] * t299;
        const V t723 = t721 - t722;
        const V t724 = c[84] * t593;
        const V t725 = c[85] * t592;
        const V t726 = t725 - t724;
        const V t727 = c[84] * t592;
        const V t728 = c[85] * t593;
        const V t729 = t728 + t727;
        const V t730 = c[86] * t309;
        const V t731 = c[87] * t308;
        const V t732 = t731 + t730;
        const V t733 = c[86] * t308;
        const V t734 = c[87] * t309;
        const V t735 = t733 - t734;
        const V t736 = c[88] * t583;
        const V t737 = c[89] * t582;
        const V t738 = t736 - t737;
        const V t739 = c[88] * t582;
        const V t740 = c[89] * t583;
        const V t741 = t740 + t739;
        const V t742 = c[90] * t295;
        const V t743 = c[91] * t294;
        const V t744 = t743 + t742;
        const V t745 = c[90] * t294;
        const V t746 = c[91] * t295;
        const V t747 = t745 - t746;
        const V t748 = c[92] * t573;
        const V t749 = c[93] * t572;
        const V t750 = t749 - t748;
        const V t751 = c[92] * t572;
        const V t752 = c[93] * t573;
        const V t753 = t752 + t751;
        const V t754 = c[94] * t313;
        const V t755 = c[95] * t312;
        const V t756 = t755 - t754;
        const V t757 = c[94] * t312;
        const V t758 = c[95] * t313;
        const V t759 = t758 + t757;
        const V t760 = c[96] * t563;
        const V t761 = c[97] * t562;
        const V t762 = t760 - t761;
        const V t763 = c[96] * t562;
        const V t764 = c[97] * t563;
        const V t765 = t764 + t763;
        const V t766 = c[99] * t291;
        // real block of 3, multiplier 2
        const V t767 = t684 - t708;
        const V t768 = t708 + t684;
        const V t769 = t767 + t636;
        const V t770 = c[0] * t767;
        const V t771 = t636 - t770;
        const V t772 = c[1] * t768;
        // real block of 3, multiplier 2
        const V t773 = t756 + t660;
        const V t774 = t756 - t660;
        const V t775 = t773 + t732;
        const V t776 = c[0] * t773;
        const V t777 = t732 - t776;
        const V t778 = c[1] * t774;
        // real block of 2
        const V t779 = t769 + t775;
        const V t780 = t769 - t775;
        // complex block of 2
        const V t781 = t771 + t777;
        const V t782 = t778 - t772;
        const V t783 = t771 - t777;
        const V t784 = t772 + t778;
        // skew block of 6
        const V t785 = c[0] * t687;
        const V t786 = c[1] * t663;
        const V t787 = t786 - t785;
        const V t788 = c[0] * t663;
        const V t789 = c[1] * t687;
        const V t790 = t789 + t788;
        const V t791 = c[1] * t759;
        const V t792 = c[0] * t711;
        const V t793 = t792 + t791;
        const V t794 = c[1] * t711;
        const V t795 = c[0] * t759;
        const V t796 = t795 - t794;
        // complex block of 3
        const V t797 = t787 + t793;
        const V t798 = t796 - t790;
        const V t799 = t787 - t793;
        const V t800 = t790 + t796;
        const V t801 = t797 + t639;
        const V t802 = t798 + t735;
        const V t803 = c[0] * t797;
        const V t804 = t639 - t803;
        const V t805 = c[0] * t798;
        const V t806 = t735 - t805;
        const V t807 = c[1] * t799;
        const V t808 = c[1] * t800;
        const V t809 = t804 - t808;
        const V t810 = t806 - t807;
        const V t811 = t804 + t808;
        const V t812 = t806 + t807;
        // spectrum block of 13, multiplier 4
        const V t813 = c[4] * t779;
        const V t814 = t615 - t813;
        const V t815 = c[6] * t802;
        const V t816 = c[7] * t801;
        const V t817 = t816 + t815;
        const V t818 = c[6] * t801;
        const V t819 = c[7] * t802;
        const V t820 = t818 - t819;
        const V t821 = c[28] * t784;
        const V t822 = c[29] * t783;
        const V t823 = t822 + t821;
        const V t824 = c[2] * t812;
        const V t825 = c[3] * t811;
        const V t826 = t825 + t824;
        const V t827 = c[2] * t811;
        const V t828 = c[3] * t812;
        const V t829 = t827 - t828;
        const V t830 = c[30] * t782;
        const V t831 = c[31] * t781;
        const V t832 = t830 - t831;
        const V t833 = c[8] * t810;
        const V t834 = c[9] * t809;
        const V t835 = t834 + t833;
        const V t836 = c[8] * t809;
        const V t837 = c[9] * t810;
        const V t838 = t836 - t837;
        const V t839 = c[5] * t780;
        // spectrum block of 3
        const V t840 = t832 + t814;
        const V t841 = c[0] * t832;
        const V t842 = t814 - t841;
        const V t843 = c[32] * t782;
        const V t844 = c[33] * t781;
        const V t845 = t843 + t844;
        const V t846 = t842 + t845;
        const V t847 = t842 - t845;
        // complex block of 3
        const V t848 = t838 + t820;
        const V t849 = t835 + t817;
        const V t850 = t820 - t838;
        const V t851 = t817 - t835;
        const V t852 = t829 - t848;
        const V t853 = t826 - t849;
        const V t854 = c[0] * t848;
        const V t855 = t854 + t829;
        const V t856 = c[0] * t849;
        const V t857 = t856 + t826;
        const V t858 = c[1] * t850;
        const V t859 = c[1] * t851;
        const V t860 = t855 + t859;
        const V t861 = t857 - t858;
        const V t862 = t855 - t859;
        const V t863 = t857 + t858;
        // spectrum block of 3
        const V t864 = t823 + t839;
        const V t865 = c[0] * t823;
        const V t866 = t839 - t865;
        const V t867 = c[34] * t784;
        const V t868 = c[35] * t783;
        const V t869 = t867 - t868;
        const V t870 = t866 + t869;
        const V t871 = t866 - t869;
        // spectrum block of 2
        const V t872 = t840 + t864;
        const V t873 = t840 - t864;
        // spectrum block of 2
        const V t874 = t872 + t853;
        const V t875 = t872 - t853;
        // spectrum block of 2
        const V t876 = t873 + t852;
        const V t877 = t873 - t852;
        // spectrum block of 2
        const V t878 = t846 + t870;
        const V t879 = t846 - t870;
        // spectrum block of 2
        const V t880 = t878 + t861;
        const V t881 = t878 - t861;
        // spectrum block of 2
        const V t882 = t879 + t860;
        const V t883 = t879 - t860;
        // spectrum block of 2
        const V t884 = t847 + t871;
        const V t885 = t847 - t871;
        // spectrum block of 2
        const V t886 = t884 + t863;
        const V t887 = t884 - t863;
        // spectrum block of 2
        const V t888 = t885 + t862;
        const V t889 = t885 - t862;
        // spectrum block of 13, multiplier 4
        const V t890 = t615 + t779;
        // real block of 2
        const V t891 = t717 + t669;
        const V t892 = t717 - t669;
        // real block of 2
        const V t893 = t657 + t729;
        const V t894 = t657 - t729;
        // real block of 2
        const V t895 = t891 + t893;
        const V t896 = t891 - t893;
        // real block of 2
        const V t897 = t765 - t621;
        const V t898 = t765 + t621;
        // real block of 2
        const V t899 = t645 + t741;
        const V t900 = t645 - t741;
        // real block of 2
        const V t901 = t897 + t899;
        const V t902 = t897 - t899;
        // real block of 2
        const V t903 = t633 + t753;
        const V t904 = t633 - t753;
        // real block of 2
        const V t905 = t681 + t705;
        const V t906 = t705 - t681;
        // real block of 2
        const V t907 = t903 - t905;
        const V t908 = t903 + t905;
        // real block of 3
        const V t909 = t901 + t907;
        const V t910 = t901 - t907;
        const V t911 = t909 + t895;
        const V t912 = c[0] * t909;
        const V t913 = t895 - t912;
        const V t914 = c[1] * t910;
        // complex block of 3
        const V t915 = t898 + t904;
        const V t916 = t900 + t906;
        const V t917 = t898 - t904;
        const V t918 = t900 - t906;
        const V t919 = t915 + t892;
        const V t920 = t916 + t894;
        const V t921 = c[0] * t915;
        const V t922 = t892 - t921;
        const V t923 = c[0] * t916;
        const V t924 = t894 - t923;
        const V t925 = c[1] * t917;
        const V t926 = c[1] * t918;
        const V t927 = t922 + t926;
        const V t928 = t924 - t925;
        const V t929 = t922 - t926;
        const V t930 = t924 + t925;
        // real block of 3
        const V t931 = t902 + t908;
        const V t932 = t902 - t908;
        const V t933 = t931 + t896;
        const V t934 = c[0] * t931;
        const V t935 = t896 - t934;
        const V t936 = c[1] * t932;
        // real block of 2
        const V t937 = t666 - t714;
        const V t938 = t714 + t666;
        // real block of 2
        const V t939 = t654 + t726;
        const V t940 = t654 - t726;
        // real block of 2
        const V t941 = t937 + t939;
        const V t942 = t937 - t939;
        // real block of 2
        const V t943 = t762 + t618;
        const V t944 = t762 - t618;
        // real block of 2
        const V t945 = t642 + t738;
        const V t946 = t642 - t738;
        // real block of 2
        const V t947 = t943 + t945;
        const V t948 = t943 - t945;
        // real block of 2
        const V t949 = t630 + t750;
        const V t950 = t630 - t750;
        // real block of 2
        const V t951 = t702 - t678;
        const V t952 = t678 + t702;
        // real block of 2
        const V t953 = t949 + t951;
        const V t954 = t949 - t951;
        // real block of 3
        const V t955 = t947 + t953;
        const V t956 = t947 - t953;
        const V t957 = t955 + t941;
        const V t958 = c[0] * t955;
        const V t959 = t941 - t958;
        const V t960 = c[1] * t956;
        // complex block of 3
        const V t961 = t944 + t950;
        const V t962 = t946 - t952;
        const V t963 = t944 - t950;
        const V t964 = t946 + t952;
        const V t965 = t961 - t938;
        const V t966 = t962 + t940;
        const V t967 = c[0] * t961;
        const V t968 = t938 + t967;
        const V t969 = c[0] * t962;
        const V t970 = t940 - t969;
        const V t971 = c[1] * t963;
        const V t972 = c[1] * t964;
        const V t973 = t972 - t968;
        const V t974 = t970 - t971;
        const V t975 = t968 + t972;
        const V t976 = t970 + t971;
        // real block of 3
        const V t977 = t948 + t954;
        const V t978 = t948 - t954;
        const V t979 = t977 + t942;
        const V t980 = c[0] * t977;
        const V t981 = t942 - t980;
        const V t982 = c[1] * t978;
        // complex block of 13, multiplier 4
        const V t983 = t693 + t911;
        const V t984 = t690 + t957;
        const V t985 = c[4] * t911;
        const V t986 = t693 - t985;
        const V t987 = c[4] * t957;
        const V t988 = t690 - t987;
        const V t989 = c[6] * t976;
        const V t990 = c[7] * t975;
        const V t991 = t990 + t989;
        const V t992 = c[6] * t975;
        const V t993 = c[7] * t976;
        const V t994 = t992 - t993;
        const V t995 = c[6] * t930;
        const V t996 = c[7] * t929;
        const V t997 = t995 - t996;
        const V t998 = c[6] * t929;
        const V t999 = c[7] * t930;
        const V t1000 = t999 + t998;
        const V t1001 = c[28] * t936;
        const V t1002 = c[29] * t935;
        const V t1003 = t1002 + t1001;
        const V t1004 = c[28] * t982;
        const V t1005 = c[29] * t981;
        const V t1006 = t1005 + t1004;
        const V t1007 = c[2] * t966;
        const V t1008 = c[3] * t965;
        const V t1009 = t1007 - t1008;
        const V t1010 = c[2] * t965;
        const V t1011 = c[3] * t966;
        const V t1012 = t1011 + t1010;
        const V t1013 = c[2] * t920;
        const V t1014 = c[3] * t919;
        const V t1015 = t1014 - t1013;
        const V t1016 = c[2] * t919;
        const V t1017 = c[3] * t920;
        const V t1018 = t1017 + t1016;
        const V t1019 = c[30] * t914;
        const V t1020 = c[31] * t913;
        const V t1021 = t1020 + t1019;
        const V t1022 = c[30] * t960;
        const V t1023 = c[31] * t959;
        const V t1024 = t1023 + t1022;
        const V t1025 = c[8] * t974;
        const V t1026 = c[9] * t973;
        const V t1027 = t1026 - t1025;
        const V t1028 = c[8] * t973;
        const V t1029 = c[9] * t974;
        const V t1030 = t1029 + t1028;
        const V t1031 = c[8] * t928;
        const V t1032 = c[9] * t927;
        const V t1033 = t1031 - t1032;
        const V t1034 = c[8] * t927;
        const V t1035 = c[9] * t928;
        const V t1036 = t1035 + t1034;
        const V t1037 = c[5] * t933;
        const V t1038 = c[5] * t979;
        // spectrum block of 3
        const V t1039 = t986 - t1021;
        const V t1040 = c[0] * t1021;
        const V t1041 = t1040 + t986;
        const V t1042 = c[32] * t914;
        const V t1043 = c[33] * t913;
        const V t1044 = t1042 - t1043;
        const V t1045 = t1041 - t1044;
        const V t1046 = t1041 + t1044;
        // complex block of 3
        const V t1047 = t1030 - t994;
        const V t1048 = t1027 - t991;
        const V t1049 = t1030 + t994;
        const V t1050 = t1027 + t991;
        const V t1051 = t1047 - t1012;
        const V t1052 = t1048 + t1009;
        const V t1053 = c[0] * t1047;
        const V t1054 = t1012 + t1053;
        const V t1055 = c[0] * t1048;
        const V t1056 = t1009 - t1055;
        const V t1057 = c[1] * t1049;
        const V t1058 = c[1] * t1050;
        const V t1059 = t1058 - t1054;
        const V t1060 = t1056 - t1057;
        const V t1061 = t1054 + t1058;
        const V t1062 = t1056 + t1057;
        // spectrum block of 3
        const V t1063 = t1003 + t1037;
        const V t1064 = c[0] * t1003;
        const V t1065 = t1037 - t1064;
        const V t1066 = c[34] * t936;
        const V t1067 = c[35] * t935;
        const V t1068 = t1066 - t1067;
        const V t1069 = t1065 + t1068;
        const V t1070 = t1065 - t1068;
        // spectrum block of 2
        const V t1071 = t1039 + t1063;
        const V t1072 = t1039 - t1063;
        // spectrum block of 2
        const V t1073 = t1071 + t1052;
        const V t1074 = t1071 - t1052;
        // spectrum block of 2
        const V t1075 = t1072 + t1051;
        const V t1076 = t1072 - t1051;
        // spectrum block of 2
        const V t1077 = t1045 + t1069;
        const V t1078 = t1045 - t1069;
        // spectrum block of 2
        const V t1079 = t1077 + t1060;
        const V t1080 = t1077 - t1060;
        // spectrum block of 2
        const V t1081 = t1078 + t1059;
        const V t1082 = t1078 - t1059;
        // spectrum block of 2
        const V t1083 = t1046 + t1070;
        const V t1084 = t1046 - t1070;
        // spectrum block of 2
        const V t1085 = t1083 + t1062;
        const V t1086 = t1083 - t1062;
        // spectrum block of 2
        const V t1087 = t1084 - t1061;
        const V t1088 = t1084 + t1061;
        // spectrum block of 3
        const V t1089 = t988 - t1024;
        const V t1090 = c[0] * t1024;
        const V t1091 = t1090 + t988;
        const V t1092 = c[32] * t960;
        const V t1093 = c[33] * t959;
        const V t1094 = t1092 - t1093;
        const V t1095 = t1091 - t1094;
        const V t1096 = t1091 + t1094;
        // complex block of 3
        const V t1097 = t1036 + t1000;
        const V t1098 = t1033 + t997;
        const V t1099 = t1000 - t1036;
        const V t1100 = t1033 - t997;
        const V t1101 = t1018 - t1097;
        const V t1102 = t1098 + t1015;
        const V t1103 = c[0] * t1097;
        const V t1104 = t1103 + t1018;
        const V t1105 = c[0] * t1098;
        const V t1106 = t1015 - t1105;
        const V t1107 = c[1] * t1099;
        const V t1108 = c[1] * t1100;
        const V t1109 = t1104 + t1108;
        const V t1110 = t1106 - t1107;
        const V t1111 = t1104 - t1108;
        const V t1112 = t1106 + t1107;
        // spectrum block of 3
        const V t1113 = t1006 + t1038;
        const V t1114 = c[0] * t1006;
        const V t1115 = t1038 - t1114;
        const V t1116 = c[34] * t982;
        const V t1117 = c[35] * t981;
        const V t1118 = t1116 - t1117;
        const V t1119 = t1115 + t1118;
        const V t1120 = t1115 - t1118;
        // spectrum block of 2
        const V t1121 = t1089 + t1113;
        const V t1122 = t1089 - t1113;
        // spectrum block of 2
        const V t1123 = t1121 + t1102;
        const V t1124 = t1121 - t1102;
        // spectrum block of 2
        const V t1125 = t1122 + t1101;
        const V t1126 = t1122 - t1101;
        // spectrum block of 2
        const V t1127 = t1095 + t1119;
        const V t1128 = t1095 - t1119;
        // spectrum block of 2
        const V t1129 = t1127 + t1110;
        const V t1130 = t1127 - t1110;
        // spectrum block of 2
        const V t1131 = t1128 + t1109;
        const V t1132 = t1128 - t1109;
        // spectrum block of 2
        const V t1133 = t1096 + t1120;
        const V t1134 = t1096 - t1120;
        // spectrum block of 2
        const V t1135 = t1133 + t1112;
        const V t1136 = t1133 - t1112;
        // spectrum block of 2
        const V t1137 = t1134 + t1111;
        const V t1138 = t1134 - t1111;
        // real block of 3, multiplier 2
        const V t1139 = t672 + t696;
        const V t1140 = t672 - t696;
        const V t1141 = t1139 + t744;
        const V t1142 = c[0] * t1139;
        const V t1143 = t744 - t1142;
        const V t1144 = c[1] * t1140;
        // real block of 3, multiplier 2
        const V t1145 = t624 + t720;
        const V t1146 = t624 - t720;
        const V t1147 = t1145 + t648;
        const V t1148 = c[0] * t1145;
        const V t1149 = t648 - t1148;
        const V t1150 = c[1] * t1146;
        // real block of 2
        const V t1151 = t1141 + t1147;
        const V t1152 = t1141 - t1147;
        // complex block of 2
        const V t1153 = t1143 + t1149;
        const V t1154 = t1144 + t1150;
        const V t1155 = t1143 - t1149;
        const V t1156 = t1144 - t1150;
        // skew block of 6
        const V t1157 = c[0] * t699;
        const V t1158 = c[1] * t723;
        const V t1159 = t1158 + t1157;
        const V t1160 = c[0] * t723;
        const V t1161 = c[1] * t699;
        const V t1162 = t1160 - t1161;
        const V t1163 = c[1] * t627;
        const V t1164 = c[0] * t675;
        const V t1165 = t1164 + t1163;
        const V t1166 = c[1] * t675;
        const V t1167 = c[0] * t627;
        const V t1168 = t1166 - t1167;
        // complex block of 3
        const V t1169 = t1159 + t1165;
        const V t1170 = t1162 + t1168;
        const V t1171 = t1165 - t1159;
        const V t1172 = t1162 - t1168;
        const V t1173 = t1169 + t747;
        const V t1174 = t1170 - t651;
        const V t1175 = c[0] * t1169;
        const V t1176 = t1175 - t747;
        const V t1177 = c[0] * t1170;
        const V t1178 = t651 + t1177;
        const V t1179 = c[1] * t1171;
        const V t1180 = c[1] * t1172;
        const V t1181 = t1176 + t1180;
        const V t1182 = t1178 + t1179;
        const V t1183 = t1176 - t1180;
        const V t1184 = t1179 - t1178;
        // spectrum block of 13, multiplier 4
        const V t1185 = c[4] * t1151;
        const V t1186 = t766 - t1185;
        const V t1187 = c[6] * t1174;
        const V t1188 = c[7] * t1173;
        const V t1189 = t1188 - t1187;
        const V t1190 = c[6] * t1173;
        const V t1191 = c[7] * t1174;
        const V t1192 = t1191 + t1190;
        const V t1193 = c[28] * t1156;
        const V t1194 = c[29] * t1155;
        const V t1195 = t1194 - t1193;
        const V t1196 = c[2] * t1184;
        const V t1197 = c[3] * t1183;
        const V t1198 = t1197 + t1196;
        const V t1199 = c[2] * t1183;
        const V t1200 = c[3] * t1184;
        const V t1201 = t1199 - t1200;
        const V t1202 = c[30] * t1154;
        const V t1203 = c[31] * t1153;
        const V t1204 = t1202 - t1203;
        const V t1205 = c[8] * t1182;
        const V t1206 = c[9] * t1181;
        const V t1207 = t1205 - t1206;
        const V t1208 = c[8] * t1181;
        const V t1209 = c[9] * t1182;
        const V t1210 = t1209 + t1208;
        const V t1211 = c[5] * t1152;
        // spectrum block of 3
        const V t1212 = t1204 + t1186;
        const V t1213 = c[0] * t1204;
        const V t1214 = t1186 - t1213;
        const V t1215 = c[32] * t1154;
        const V t1216 = c[33] * t1153;
        const V t1217 = t1215 + t1216;
        const V t1218 = t1214 + t1217;
        const V t1219 = t1214 - t1217;
        // complex block of 3
        const V t1220 = t1192 - t1210;
        const V t1221 = t1207 + t1189;
        const V t1222 = t1210 + t1192;
        const V t1223 = t1207 - t1189;
        const V t1224 = t1220 + t1201;
        const V t1225 = t1221 + t1198;
        const V t1226 = c[0] * t1220;
        const V t1227 = t1201 - t1226;
        const V t1228 = c[0] * t1221;
        const V t1229 = t1198 - t1228;
        const V t1230 = c[1] * t1222;
        const V t1231 = c[1] * t1223;
        const V t1232 = t1227 + t1231;
        const V t1233 = t1229 + t1230;
        const V t1234 = t1227 - t1231;
        const V t1235 = t1229 - t1230;
        // spectrum block of 3
        const V t1236 = t1195 + t1211;
        const V t1237 = c[0] * t1195;
        const V t1238 = t1211 - t1237;
        const V t1239 = c[34] * t1156;
        const V t1240 = c[35] * t1155;
        const V t1241 = t1239 + t1240;
        const V t1242 = t1238 - t1241;
        const V t1243 = t1238 + t1241;
        // spectrum block of 2
        const V t1244 = t1212 + t1236;
        const V t1245 = t1212 - t1236;
        // spectrum block of 2
        const V t1246 = t1244 + t1225;
        const V t1247 = t1244 - t1225;
        // spectrum block of 2
        const V t1248 = t1245 + t1224;
        const V t1249 = t1245 - t1224;
        // spectrum block of 2
        const V t1250 = t1218 + t1242;
        const V t1251 = t1218 - t1242;
        // spectrum block of 2
        const V t1252 = t1250 + t1233;
        const V t1253 = t1250 - t1233;
        // spectrum block of 2
        const V t1254 = t1251 + t1232;
        const V t1255 = t1251 - t1232;
        // spectrum block of 2
        const V t1256 = t1219 + t1243;
        const V t1257 = t1219 - t1243;
        // spectrum block of 2
        const V t1258 = t1256 + t1235;
        const V t1259 = t1256 - t1235;
        // spectrum block of 2
        const V t1260 = t1257 + t1234;
        const V t1261 = t1257 - t1234;
        // spectrum block of 13, multiplier 4
        const V t1262 = t766 + t1151;
        // spectrum block of 2
        const V t1263 = t890 + t1262;
        const V t1264 = t890 - t1262;
        // spectrum block of 2
        const V t1265 = t1263 + t984;
        io.out(52, t1265);
        const V t1266 = t1263 - t984;
        io.out(1, t1266);
        // spectrum block of 2
        const V t1267 = t1264 - t983;
        io.out(30, t1267);
        const V t1268 = t1264 + t983;
        io.out(23, t1268);
        // spectrum block of 2
        const V t1269 = t874 + t1246;
        const V t1270 = t874 - t1246;
        // spectrum block of 2
        const V t1271 = t1269 + t1123;
        io.out(43, t1271);
        const V t1272 = t1269 - t1123;
        io.out(10, t1272);
        // spectrum block of 2
        const V t1273 = t1270 - t1073;
        io.out(35, t1273);
        const V t1274 = t1270 + t1073;
        io.out(18, t1274);
        // spectrum block of 2
        const V t1275 = t888 + t1260;
        const V t1276 = t888 - t1260;
        // spectrum block of 2
        const V t1277 = t1275 + t1137;
        io.out(6, t1277);
        const V t1278 = t1275 - t1137;
        io.out(47, t1278);
        // spectrum block of 2
        const V t1279 = t1276 - t1087;
        io.out(32, t1279);
        const V t1280 = t1276 + t1087;
        io.out(21, t1280);
        // spectrum block of 2
        const V t1281 = t886 + t1258;
        const V t1282 = t886 - t1258;
        // spectrum block of 2
        const V t1283 = t1281 + t1135;
        io.out(7, t1283);
        const V t1284 = t1281 - t1135;
        io.out(46, t1284);
        // spectrum block of 2
        const V t1285 = t1282 - t1085;
        io.out(2, t1285);
        const V t1286 = t1282 + t1085;
        io.out(51, t1286);
        // spectrum block of 2
        const V t1287 = t881 + t1253;
        const V t1288 = t881 - t1253;
        // spectrum block of 2
        const V t1289 = t1287 + t1130;
        io.out(17, t1289);
        const V t1290 = t1287 - t1130;
        io.out(36, t1290);
        // spectrum block of 2
        const V t1291 = t1288 - t1080;
        io.out(20, t1291);
        const V t1292 = t1288 + t1080;
        io.out(33, t1292);
        // spectrum block of 2
        const V t1293 = t876 + t1248;
        const V t1294 = t876 - t1248;
        // spectrum block of 2
        const V t1295 = t1293 + t1125;
        io.out(11, t1295);
        const V t1296 = t1293 - t1125;
        io.out(42, t1296);
        // spectrum block of 2
        const V t1297 = t1294 - t1075;
        io.out(41, t1297);
        const V t1298 = t1294 + t1075;
        io.out(12, t1298);
        // spectrum block of 2
        const V t1299 = t882 + t1254;
        const V t1300 = t882 - t1254;
        // spectrum block of 2
        const V t1301 = t1299 + t1131;
        io.out(4, t1301);
        const V t1302 = t1299 - t1131;
        io.out(49, t1302);
        // spectrum block of 2
        const V t1303 = t1300 - t1081;
        io.out(39, t1303);
        const V t1304 = t1300 + t1081;
        io.out(14, t1304);
        // spectrum block of 2
        const V t1305 = t883 + t1255;
        const V t1306 = t883 - t1255;
        // spectrum block of 2
        const V t1307 = t1305 + t1132;
        io.out(40, t1307);
        const V t1308 = t1305 - t1132;
        io.out(13, t1308);
        // spectrum block of 2
        const V t1309 = t1306 - t1082;
        io.out(19, t1309);
        const V t1310 = t1306 + t1082;
        io.out(34, t1310);
        // spectrum block of 2
        const V t1311 = t877 + t1249;
        const V t1312 = t877 - t1249;
        // spectrum block of 2
        const V t1313 = t1311 + t1126;
        io.out(29, t1313);
        const V t1314 = t1311 - t1126;
        io.out(24, t1314);
        // spectrum block of 2
        const V t1315 = t1312 - t1076;
        io.out(31, t1315);
        const V t1316 = t1312 + t1076;
        io.out(22, t1316);
        // spectrum block of 2
        const V t1317 = t880 + t1252;
        const V t1318 = t880 - t1252;
        // spectrum block of 2
        const V t1319 = t1317 + t1129;
        io.out(25, t1319);
        const V t1320 = t1317 - t1129;
        io.out(28, t1320);
        // spectrum block of 2
        const V t1321 = t1318 - t1079;
        io.out(45, t1321);
        const V t1322 = t1318 + t1079;
        io.out(8, t1322);
        // spectrum block of 2
        const V t1323 = t887 + t1259;
        const V t1324 = t887 - t1259;
        // spectrum block of 2
        const V t1325 = t1323 + t1136;
        io.out(38, t1325);
        const V t1326 = t1323 - t1136;
        io.out(15, t1326);
        // spectrum block of 2
        const V t1327 = t1324 - t1086;
        io.out(26, t1327);
        const V t1328 = t1324 + t1086;
        io.out(27, t1328);
        // spectrum block of 2
        const V t1329 = t889 + t1261;
        const V t1330 = t889 - t1261;
        // spectrum block of 2
        const V t1331 = t1329 + t1138;
        io.out(9, t1331);
        const V t1332 = t1329 - t1138;
        io.out(44, t1332);
        // spectrum block of 2
        const V t1333 = t1330 - t1088;
        io.out(48, t1333);
        const V t1334 = t1330 + t1088;
        io.out(5, t1334);
        // spectrum block of 2
        const V t1335 = t875 + t1247;
        const V t1336 = t875 - t1247;
        // spectrum block of 2
        const V t1337 = t1335 + t1124;
        io.out(37, t1337);
        const V t1338 = t1335 - t1124;
        io.out(16, t1338);
        // spectrum block of 2
        const V t1339 = t1336 - t1074;
        io.out(3, t1339);
        const V t1340 = t1336 + t1074;
        io.out(50, t1340);
        // spectrum block of 53
        const V t1341 = x0 + t290;
        io.out(0, t1341);
    }
};

}  // namespace zulg
