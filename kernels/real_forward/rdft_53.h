// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 53.
// Forward DFT of 53 real points, Rader 4, 13.
// 422 additions, 422 subtractions, 456 multiplications (509 with `scale`); 14 outputs negated; 96 constants; 58 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<53> {
    static constexpr int steps = 1353;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.1741386011521359,  // c[2]: Q[3] of 13
        0.5751407294740031,  // c[3]: -P[3] of 13
        0.08333333333333333,  // c[4]: 1/12
        0.6007253775544544,  // c[5]: -Q[1] of 13
        0.015496188988565054,  // c[6]: -P[1] of 13
        0.5084294662830964,  // c[7]: -Q[5] of 13
        0.3203288761978803,  // c[8]: -P[5] of 13
        0.3004626062886658,  // c[9]: beta of 13
        0.2869425954512852,  // c[10]: -P[1] of 13
        0.5279915321544383,  // c[11]: -Q[1] of 13
        0.5316276774946329,  // c[12]: -P[5] of 13
        0.280148395734785,  // c[13]: Q[5] of 13
        0.6008758031820526,  // c[14]: -Q[2] of 13
        0.007705858903092426,  // c[15]: P[2] of 13
        0.15924941320823024,  // c[16]: -Q[4] of 13
        0.5794400189009605,  // c[17]: -P[4] of 13
        0.29376443202296976,  // c[18]: -Q[2] of 13
        0.5242266395265821,  // c[19]: P[2] of 13
        0.42218506973345193,  // c[20]: -Q[4] of 13
        0.42763404682657274,  // c[21]: P[4] of 13
        0.37034194807495624,  // c[22]: sin 2 pi 1/3 times P[4] of 13
        0.36562299548767413,  // c[23]: sin 2 pi 1/3 times -Q[4] of 13
        0.45399358717056765,  // c[24]: sin 2 pi 1/3 times P[2] of 13
        0.25440746086019866,  // c[25]: sin 2 pi 1/3 times -Q[2] of 13
        0.75,  // c[26]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[27]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.5018097763375671,  // c[28]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[29]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[30]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[31]: sin 2 pi 1/3 times -Q[2] of 13
        0.11888864474491956,  // c[32]: -Q[1] of 53
        0.2535110589592131,  // c[33]: P[1] of 53
        0.13160258300584013,  // c[34]: -Q[2] of 53
        0.2471500091242084,  // c[35]: P[2] of 53
        0.27934484277921784,  // c[36]: -Q[3] of 53
        0.01920483471835668,  // c[37]: P[3] of 53
        0.2755686148630738,  // c[38]: Q[4] of 53
        0.049641770378907886,  // c[39]: P[4] of 53
        0.26663047052332334,  // c[40]: Q[5] of 53
        0.08550180730497182,  // c[41]: P[5] of 53
        0.21010412063116707,  // c[42]: Q[6] of 53
        0.18509085703434766,  // c[43]: P[6] of 53
        0.2786708556034366,  // c[44]: Q[7] of 53
        0.02729324277461261,  // c[45]: P[7] of 53
        0.27887234952845297,  // c[46]: Q[8] of 53
        0.02515113381908794,  // c[47]: P[8] of 53
        0.02027467783966699,  // c[48]: Q[9] of 53
        0.27926923264549397,  // c[49]: P[9] of 53
        0.2421434442697633,  // c[50]: Q[10] of 53
        0.14060198882334973,  // c[51]: -P[10] of 53
        0.15489151598012768,  // c[52]: -Q[11] of 53
        0.23326162380743898,  // c[53]: P[11] of 53
        0.1903832491584887,  // c[54]: Q[12] of 53
        0.20532068893261132,  // c[55]: P[12] of 53
        0.038836925551200704,  // c[56]: Q[13] of 53
        0.27729778231647617,  // c[57]: -P[13] of 53
        0.2645541253996386,  // c[58]: -Q[14] of 53
        0.09172503255893466,  // c[59]: P[14] of 53
        0.2603347814141748,  // c[60]: -Q[15] of 53
        0.10309300873453617,  // c[61]: -P[15] of 53
        0.04985858822323415,  // c[62]: Q[16] of 53
        0.27552946855879373,  // c[63]: -P[16] of 53
        0.27294272954157833,  // c[64]: -Q[17] of 53
        0.062487064695808406,  // c[65]: P[17] of 53
        0.12218648440059575,  // c[66]: Q[18] of 53
        0.2519381469601781,  // c[67]: P[18] of 53
        0.26661085340441376,  // c[68]: Q[19] of 53
        0.0855629575860694,  // c[69]: P[19] of 53
        0.279948840618166,  // c[70]: Q[20] of 53
        0.005568976607062611,  // c[71]: P[20] of 53
        0.10175361370042776,  // c[72]: -Q[21] of 53
        0.2608612063201607,  // c[73]: -P[21] of 53
        0.21551686731931244,  // c[74]: Q[22] of 53
        0.17875918651855408,  // c[75]: P[22] of 53
        0.2795810907749542,  // c[76]: Q[23] of 53
        0.015387675100292094,  // c[77]: P[23] of 53
        0.2758601234844355,  // c[78]: -Q[24] of 53
        0.04799540743714245,  // c[79]: P[24] of 53
        0.08072191645791539,  // c[80]: -Q[25] of 53
        0.26811627900458906,  // c[81]: -P[25] of 53
        0.12053668025532305,  // c[82]: -sin 2 pi 51/52
        0.992708874098054,  // c[83]: cos 2 pi 51/52
        0.3546048870425356,  // c[84]: -sin 2 pi 49/52
        0.9350162426854148,  // c[85]: cos 2 pi 49/52
        0.5680647467311558,  // c[86]: -sin 2 pi 47/52
        0.8229838658936564,  // c[87]: cos 2 pi 47/52
        0.7485107481711011,  // c[88]: -sin 2 pi 45/52
        0.6631226582407952,  // c[89]: cos 2 pi 45/52
        0.8854560256532099,  // c[90]: -sin 2 pi 43/52
        0.46472317204376856,  // c[91]: cos 2 pi 43/52
        0.970941817426052,  // c[92]: -sin 2 pi 41/52
        0.23931566428755777,  // c[93]: cos 2 pi 41/52
        0.019230769230769232,  // c[94]: 1/52
        0.14000211325539458,  // c[95]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x1 = io.in(1);
        const V x52 = io.in(52);
        const V t0 = x1 + x52;
        const V t1 = x1 - x52;
        // real block of 2
        const V x30 = io.in(30);
        const V x23 = io.in(23);
        const V t2 = x30 + x23;
        const V t3 = x30 - x23;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x16 = io.in(16);
        const V x37 = io.in(37);
        const V t6 = x16 + x37;
        const V t7 = x16 - x37;
        // real block of 2
        const V x3 = io.in(3);
        const V x50 = io.in(50);
        const V t8 = x3 + x50;
        const V t9 = x3 - x50;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x44 = io.in(44);
        const V x9 = io.in(9);
        const V t12 = x44 + x9;
        const V t13 = x44 - x9;
        // real block of 2
        const V x48 = io.in(48);
        const V x5 = io.in(5);
        const V t14 = x48 + x5;
        const V t15 = x48 - x5;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x15 = io.in(15);
        const V x38 = io.in(38);
        const V t18 = x15 + x38;
        const V t19 = x15 - x38;
        // real block of 2
        const V x26 = io.in(26);
        const V x27 = io.in(27);
        const V t20 = x26 + x27;
        const V t21 = x26 - x27;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V x28 = io.in(28);
        const V x25 = io.in(25);
        const V t24 = x28 + x25;
        const V t25 = x28 - x25;
        // real block of 2
        const V x45 = io.in(45);
        const V x8 = io.in(8);
        const V t26 = x45 + x8;
        const V t27 = x45 - x8;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 2
        const V x24 = io.in(24);
        const V x29 = io.in(29);
        const V t30 = x24 + x29;
        const V t31 = x24 - x29;
        // real block of 2
        const V x31 = io.in(31);
        const V x22 = io.in(22);
        const V t32 = x31 + x22;
        const V t33 = x31 - x22;
        // real block of 2
        const V t34 = t30 + t32;
        const V t35 = t30 - t32;
        // real block of 2
        const V x13 = io.in(13);
        const V x40 = io.in(40);
        const V t36 = x13 + x40;
        const V t37 = x13 - x40;
        // real block of 2
        const V x19 = io.in(19);
        const V x34 = io.in(34);
        const V t38 = x19 + x34;
        const V t39 = x19 - x34;
        // real block of 2
        const V t40 = t36 + t38;
        const V t41 = t36 - t38;
        // real block of 2
        const V x49 = io.in(49);
        const V x4 = io.in(4);
        const V t42 = x49 + x4;
        const V t43 = x49 - x4;
        // real block of 2
        const V x39 = io.in(39);
        const V x14 = io.in(14);
        const V t44 = x39 + x14;
        const V t45 = x39 - x14;
        // real block of 2
        const V t46 = t42 + t44;
        const V t47 = t42 - t44;
        // real block of 2
        const V x42 = io.in(42);
        const V x11 = io.in(11);
        const V t48 = x42 + x11;
        const V t49 = x42 - x11;
        // real block of 2
        const V x41 = io.in(41);
        const V x12 = io.in(12);
        const V t50 = x41 + x12;
        const V t51 = x41 - x12;
        // real block of 2
        const V t52 = t48 + t50;
        const V t53 = t48 - t50;
        // real block of 2
        const V x36 = io.in(36);
        const V x17 = io.in(17);
        const V t54 = x36 + x17;
        const V t55 = x36 - x17;
        // real block of 2
        const V x20 = io.in(20);
        const V x33 = io.in(33);
        const V t56 = x20 + x33;
        const V t57 = x20 - x33;
        // real block of 2
        const V t58 = t54 + t56;
        const V t59 = t54 - t56;
        // real block of 2
        const V x46 = io.in(46);
        const V x7 = io.in(7);
        const V t60 = x46 + x7;
        const V t61 = x46 - x7;
        // real block of 2
        const V x2 = io.in(2);
        const V x51 = io.in(51);
        const V t62 = x2 + x51;
        const V t63 = x2 - x51;
        // real block of 2
        const V t64 = t60 + t62;
        const V t65 = t60 - t62;
        // real block of 2
        const V x47 = io.in(47);
        const V x6 = io.in(6);
        const V t66 = x47 + x6;
        const V t67 = x47 - x6;
        // real block of 2
        const V x32 = io.in(32);
        const V x21 = io.in(21);
        const V t68 = x32 + x21;
        const V t69 = x32 - x21;
        // real block of 2
        const V t70 = t66 + t68;
        const V t71 = t66 - t68;
        // real block of 2
        const V x10 = io.in(10);
        const V x43 = io.in(43);
        const V t72 = x10 + x43;
        const V t73 = x10 - x43;
        // real block of 2
        const V x35 = io.in(35);
        const V x18 = io.in(18);
        const V t74 = x35 + x18;
        const V t75 = x35 - x18;
        // real block of 2
        const V t76 = t72 + t74;
        const V t77 = t72 - t74;
        // real block of 3
        const V t78 = t22 + t58;
        const V t79 = t22 - t58;
        const V t80 = t78 + t10;
        const V t81 = c[0] * t78;
        const V t82 = t10 - t81;
        const V t83 = c[1] * t79;
        // real block of 3
        const V t84 = t70 + t46;
        const V t85 = t70 - t46;
        const V t86 = t84 + t52;
        const V t87 = c[0] * t84;
        const V t88 = t52 - t87;
        const V t89 = c[1] * t85;
        // real block of 3
        const V t90 = t64 + t28;
        const V t91 = t64 - t28;
        const V t92 = t90 + t76;
        const V t93 = c[0] * t90;
        const V t94 = t76 - t93;
        const V t95 = c[1] * t91;
        // real block of 3
        const V t96 = t16 + t40;
        const V t97 = t16 - t40;
        const V t98 = t96 + t34;
        const V t99 = c[0] * t96;
        const V t100 = t34 - t99;
        const V t101 = c[1] * t97;
        // real block of 2
        const V t102 = t80 + t92;
        const V t103 = t80 - t92;
        // real block of 2
        const V t104 = t86 + t98;
        const V t105 = t86 - t98;
        // real block of 2
        const V t106 = t102 + t104;
        const V t107 = t102 - t104;
        // complex block of 2
        const V t108 = t82 + t94;
        const V t109 = t83 + t95;
        const V t110 = t82 - t94;
        const V t111 = t95 - t83;
        // complex block of 2
        const V t112 = t88 + t100;
        const V t113 = t89 + t101;
        const V t114 = t88 - t100;
        const V t115 = t101 - t89;
        // complex block of 2
        const V t116 = t108 + t112;
        const V t117 = t109 + t113;
        const V t118 = t108 - t112;
        const V t119 = t113 - t109;
        // complex block of 2
        const V t120 = t110 - t115;
        const V t121 = t111 + t114;
        const V t122 = t110 + t115;
        const V t123 = t111 - t114;
        // real block of 13, multiplier 4
        const V t124 = t4 + t106;
        const V t125 = c[4] * t106;
        const V t126 = t4 - t125;
        const V t127 = c[5] * t123;
        const V t128 = c[6] * t122;
        const V t129 = t127 - t128;
        const V t130 = c[5] * t122;
        const V t131 = c[6] * t123;
        const V t132 = t131 + t130;
        const V t133 = c[14] * t119;
        const V t134 = c[15] * t118;
        const V t135 = t134 - t133;
        const V t136 = c[14] * t118;
        const V t137 = c[15] * t119;
        const V t138 = t137 + t136;
        const V t139 = c[2] * t105;
        const V t140 = c[3] * t103;
        const V t141 = t140 + t139;
        const V t142 = c[2] * t103;
        const V t143 = c[3] * t105;
        const V t144 = t142 - t143;
        const V t145 = c[16] * t117;
        const V t146 = c[17] * t116;
        const V t147 = t146 + t145;
        const V t148 = c[16] * t116;
        const V t149 = c[17] * t117;
        const V t150 = t149 - t148;
        const V t151 = c[7] * t121;
        const V t152 = c[8] * t120;
        const V t153 = t152 + t151;
        const V t154 = c[7] * t120;
        const V t155 = c[8] * t121;
        const V t156 = t155 - t154;
        const V t157 = c[9] * t107;
        // spectrum block of 2
        const V t158 = t126 + t157;
        const V t159 = t126 - t157;
        // complex block of 2
        const V t160 = t150 + t138;
        const V t161 = t135 - t147;
        const V t162 = t150 - t138;
        const V t163 = t147 + t135;
        // spectrum block of 3, multiplier 2
        const V t164 = t161 + t158;
        const V t165 = c[0] * t161;
        const V t166 = t158 - t165;
        const V t167 = c[1] * t160;
        const V t168 = t166 - t167;
        const V t169 = t166 + t167;
        // spectrum block of 3, multiplier 2
        const V t170 = t159 - t163;
        const V t171 = c[0] * t163;
        const V t172 = t171 + t159;
        const V t173 = c[1] * t162;
        const V t174 = t172 - t173;
        const V t175 = t172 + t173;
        // complex block of 2
        const V t176 = t129 + t153;
        const V t177 = t156 - t132;
        const V t178 = t153 - t129;
        const V t179 = t132 + t156;
        // mirrored skew block of 6
        const V t180 = c[0] * t178;
        const V t181 = c[1] * t179;
        const V t182 = t181 + t180;
        // spectrum block of 3, multiplier 2
        const V t183 = t177 + t144;
        const V t184 = c[0] * t177;
        const V t185 = t144 - t184;
        const V t186 = c[1] * t176;
        const V t187 = t185 - t186;
        const V t188 = t185 + t186;
        // spectrum block of 3, multiplier 2
        const V t189 = t182 + t141;
        const V t190 = c[0] * t182;
        const V t191 = t190 - t141;
        const V t192 = c[26] * t178;
        const V t193 = c[27] * t179;
        const V t194 = t192 - t193;
        const V t195 = t191 + t194;
        const V t196 = t191 - t194;
        // real block of 2
        const V t197 = t7 + t73;
        const V t198 = t7 - t73;
        // real block of 2
        const V t199 = t49 + t31;
        const V t200 = t49 - t31;
        // real block of 2
        const V t201 = t197 + t199;
        const V t202 = t197 - t199;
        // real block of 2
        const V t203 = t19 + t61;
        const V t204 = t19 - t61;
        // real block of 2
        const V t205 = t67 + t13;
        const V t206 = t67 - t13;
        // real block of 2
        const V t207 = t203 + t205;
        const V t208 = t203 - t205;
        // real block of 2
        const V t209 = t55 + t25;
        const V t210 = t55 - t25;
        // real block of 2
        const V t211 = t43 + t37;
        const V t212 = t43 - t37;
        // real block of 2
        const V t213 = t209 + t211;
        const V t214 = t209 - t211;
        // real block of 3
        const V t215 = t207 + t213;
        const V t216 = t207 - t213;
        const V t217 = t215 + t201;
        const V t218 = c[0] * t215;
        const V t219 = t201 - t218;
        const V t220 = c[1] * t216;
        // complex block of 3
        const V t221 = t204 + t210;
        const V t222 = t206 + t212;
        const V t223 = t204 - t210;
        const V t224 = t206 - t212;
        const V t225 = t221 + t198;
        const V t226 = t222 + t200;
        const V t227 = c[0] * t221;
        const V t228 = t198 - t227;
        const V t229 = c[0] * t222;
        const V t230 = t200 - t229;
        const V t231 = c[1] * t223;
        const V t232 = c[1] * t224;
        const V t233 = t228 + t232;
        const V t234 = t230 - t231;
        const V t235 = t228 - t232;
        const V t236 = t230 + t231;
        // real block of 3
        const V t237 = t208 + t214;
        const V t238 = t208 - t214;
        const V t239 = t237 + t202;
        const V t240 = c[0] * t237;
        const V t241 = t202 - t240;
        const V t242 = c[1] * t238;
        // real block of 2
        const V t243 = t9 + t75;
        const V t244 = t75 - t9;
        // real block of 2
        const V t245 = t51 + t33;
        const V t246 = t33 - t51;
        // real block of 2
        const V t247 = t243 + t245;
        const V t248 = t245 - t243;
        // real block of 2
        const V t249 = t21 + t63;
        const V t250 = t63 - t21;
        // real block of 2
        const V t251 = t69 + t15;
        const V t252 = t15 - t69;
        // real block of 2
        const V t253 = t249 + t251;
        const V t254 = t251 - t249;
        // real block of 2
        const V t255 = t57 + t27;
        const V t256 = t27 - t57;
        // real block of 2
        const V t257 = t45 + t39;
        const V t258 = t39 - t45;
        // real block of 2
        const V t259 = t255 + t257;
        const V t260 = t257 - t255;
        // real block of 3
        const V t261 = t253 + t259;
        const V t262 = t259 - t253;
        const V t263 = t261 + t247;
        const V t264 = c[0] * t261;
        const V t265 = t264 - t247;
        const V t266 = c[1] * t262;
        // complex block of 3
        const V t267 = t250 + t256;
        const V t268 = t252 + t258;
        const V t269 = t250 - t256;
        const V t270 = t252 - t258;
        const V t271 = t267 + t244;
        const V t272 = t268 + t246;
        const V t273 = c[0] * t267;
        const V t274 = t244 - t273;
        const V t275 = c[0] * t268;
        const V t276 = t246 - t275;
        const V t277 = c[1] * t269;
        const V t278 = c[1] * t270;
        const V t279 = t274 + t278;
        const V t280 = t276 - t277;
        const V t281 = t274 - t278;
        const V t282 = t276 + t277;
        // real block of 3
        const V t283 = t254 + t260;
        const V t284 = t254 - t260;
        const V t285 = t283 + t248;
        const V t286 = c[0] * t283;
        const V t287 = t248 - t286;
        const V t288 = c[1] * t284;
        // complex block of 13, multiplier 4
        const V t289 = t1 + t217;
        const V t290 = t3 + t263;
        const V t291 = c[4] * t217;
        const V t292 = t1 - t291;
        const V t293 = c[4] * t263;
        const V t294 = t293 - t3;
        const V t295 = c[6] * t282;
        const V t296 = c[5] * t281;
        const V t297 = t296 - t295;
        const V t298 = c[6] * t281;
        const V t299 = c[5] * t282;
        const V t300 = t299 + t298;
        const V t301 = c[6] * t236;
        const V t302 = c[5] * t235;
        const V t303 = t301 - t302;
        const V t304 = c[6] * t235;
        const V t305 = c[5] * t236;
        const V t306 = t305 + t304;
        const V t307 = c[14] * t242;
        const V t308 = c[15] * t241;
        const V t309 = t308 + t307;
        const V t310 = c[14] * t288;
        const V t311 = c[15] * t287;
        const V t312 = t311 + t310;
        const V t313 = c[3] * t272;
        const V t314 = c[2] * t271;
        const V t315 = t313 - t314;
        const V t316 = c[3] * t271;
        const V t317 = c[2] * t272;
        const V t318 = t317 + t316;
        const V t319 = c[3] * t226;
        const V t320 = c[2] * t225;
        const V t321 = t320 - t319;
        const V t322 = c[3] * t225;
        const V t323 = c[2] * t226;
        const V t324 = t323 + t322;
        const V t325 = c[16] * t220;
        const V t326 = c[17] * t219;
        const V t327 = t326 + t325;
        const V t328 = c[16] * t266;
        const V t329 = c[17] * t265;
        const V t330 = t329 + t328;
        const V t331 = c[8] * t280;
        const V t332 = c[7] * t279;
        const V t333 = t332 - t331;
        const V t334 = c[8] * t279;
        const V t335 = c[7] * t280;
        const V t336 = t335 + t334;
        const V t337 = c[8] * t234;
        const V t338 = c[7] * t233;
        const V t339 = t337 - t338;
        const V t340 = c[8] * t233;
        const V t341 = c[7] * t234;
        const V t342 = t341 + t340;
        const V t343 = c[9] * t239;
        const V t344 = c[9] * t285;
        // spectrum block of 3
        const V t345 = t292 - t327;
        const V t346 = c[0] * t327;
        const V t347 = t346 + t292;
        const V t348 = c[28] * t220;
        const V t349 = c[29] * t219;
        const V t350 = t348 - t349;
        const V t351 = t347 - t350;
        const V t352 = t347 + t350;
        // complex block of 3
        const V t353 = t336 + t300;
        const V t354 = t333 + t297;
        const V t355 = t336 - t300;
        const V t356 = t333 - t297;
        const V t357 = t353 - t318;
        const V t358 = t354 + t315;
        const V t359 = c[0] * t353;
        const V t360 = t318 + t359;
        const V t361 = c[0] * t354;
        const V t362 = t315 - t361;
        const V t363 = c[1] * t355;
        const V t364 = c[1] * t356;
        const V t365 = t364 - t360;
        const V t366 = t362 - t363;
        const V t367 = t360 + t364;
        const V t368 = t362 + t363;
        // spectrum block of 3
        const V t369 = t309 + t343;
        const V t370 = c[0] * t309;
        const V t371 = t343 - t370;
        const V t372 = c[30] * t242;
        const V t373 = c[31] * t241;
        const V t374 = t372 - t373;
        const V t375 = t371 + t374;
        const V t376 = t371 - t374;
        // spectrum block of 2
        const V t377 = t345 + t369;
        const V t378 = t345 - t369;
        // spectrum block of 2
        const V t379 = t377 + t358;
        const V t380 = t377 - t358;
        // spectrum block of 2
        const V t381 = t378 + t357;
        const V t382 = t378 - t357;
        // spectrum block of 2
        const V t383 = t351 + t375;
        const V t384 = t351 - t375;
        // spectrum block of 2
        const V t385 = t383 + t366;
        const V t386 = t383 - t366;
        // spectrum block of 2
        const V t387 = t384 + t365;
        const V t388 = t384 - t365;
        // spectrum block of 2
        const V t389 = t352 + t376;
        const V t390 = t352 - t376;
        // spectrum block of 2
        const V t391 = t389 + t368;
        const V t392 = t389 - t368;
        // spectrum block of 2
        const V t393 = t390 - t367;
        const V t394 = t390 + t367;
        // spectrum block of 3
        const V t395 = t294 - t330;
        const V t396 = c[0] * t330;
        const V t397 = t396 + t294;
        const V t398 = c[28] * t266;
        const V t399 = c[29] * t265;
        const V t400 = t398 - t399;
        const V t401 = t397 - t400;
        const V t402 = t397 + t400;
        // complex block of 3
        const V t403 = t342 + t306;
        const V t404 = t339 + t303;
        const V t405 = t306 - t342;
        const V t406 = t339 - t303;
        const V t407 = t324 - t403;
        const V t408 = t404 + t321;
        const V t409 = c[0] * t403;
        const V t410 = t409 + t324;
        const V t411 = c[0] * t404;
        const V t412 = t321 - t411;
        const V t413 = c[1] * t405;
        const V t414 = c[1] * t406;
        const V t415 = t410 + t414;
        const V t416 = t412 - t413;
        const V t417 = t410 - t414;
        const V t418 = t412 + t413;
        // spectrum block of 3
        const V t419 = t312 + t344;
        const V t420 = c[0] * t312;
        const V t421 = t344 - t420;
        const V t422 = c[30] * t288;
        const V t423 = c[31] * t287;
        const V t424 = t422 - t423;
        const V t425 = t421 + t424;
        const V t426 = t421 - t424;
        // spectrum block of 2
        const V t427 = t395 + t419;
        const V t428 = t395 - t419;
        // spectrum block of 2
        const V t429 = t427 + t408;
        const V t430 = t427 - t408;
        // spectrum block of 2
        const V t431 = t428 + t407;
        const V t432 = t428 - t407;
        // spectrum block of 2
        const V t433 = t401 + t425;
        const V t434 = t401 - t425;
        // spectrum block of 2
        const V t435 = t433 + t416;
        const V t436 = t433 - t416;
        // spectrum block of 2
        const V t437 = t434 + t415;
        const V t438 = t434 - t415;
        // spectrum block of 2
        const V t439 = t402 + t426;
        const V t440 = t402 - t426;
        // spectrum block of 2
        const V t441 = t439 + t418;
        const V t442 = t439 - t418;
        // spectrum block of 2
        const V t443 = t440 + t417;
        const V t444 = t440 - t417;
        // real block of 3
        const V t445 = t23 + t59;
        const V t446 = t23 - t59;
        const V t447 = t445 + t11;
        const V t448 = c[0] * t445;
        const V t449 = t11 - t448;
        const V t450 = c[1] * t446;
        // real block of 3
        const V t451 = t71 + t47;
        const V t452 = t71 - t47;
        const V t453 = t451 + t53;
        const V t454 = c[0] * t451;
        const V t455 = t53 - t454;
        const V t456 = c[1] * t452;
        // real block of 3
        const V t457 = t65 + t29;
        const V t458 = t65 - t29;
        const V t459 = t457 + t77;
        const V t460 = c[0] * t457;
        const V t461 = t77 - t460;
        const V t462 = c[1] * t458;
        // real block of 3
        const V t463 = t17 + t41;
        const V t464 = t17 - t41;
        const V t465 = t463 + t35;
        const V t466 = c[0] * t463;
        const V t467 = t35 - t466;
        const V t468 = c[1] * t464;
        // real block of 2
        const V t469 = t447 + t459;
        const V t470 = t447 - t459;
        // real block of 2
        const V t471 = t453 + t465;
        const V t472 = t453 - t465;
        // real block of 2
        const V t473 = t469 + t471;
        const V t474 = t469 - t471;
        // complex block of 2
        const V t475 = t449 + t461;
        const V t476 = t450 + t462;
        const V t477 = t449 - t461;
        const V t478 = t462 - t450;
        // complex block of 2
        const V t479 = t455 + t467;
        const V t480 = t456 + t468;
        const V t481 = t455 - t467;
        const V t482 = t468 - t456;
        // complex block of 2
        const V t483 = t475 + t479;
        const V t484 = t476 + t480;
        const V t485 = t475 - t479;
        const V t486 = t480 - t476;
        // complex block of 2
        const V t487 = t477 - t482;
        const V t488 = t478 + t481;
        const V t489 = t477 + t482;
        const V t490 = t478 - t481;
        // real block of 13, multiplier 4
        const V t491 = t5 + t473;
        const V t492 = c[4] * t473;
        const V t493 = t5 - t492;
        const V t494 = c[5] * t490;
        const V t495 = c[6] * t489;
        const V t496 = t494 - t495;
        const V t497 = c[5] * t489;
        const V t498 = c[6] * t490;
        const V t499 = t498 + t497;
        const V t500 = c[14] * t486;
        const V t501 = c[15] * t485;
        const V t502 = t501 - t500;
        const V t503 = c[14] * t485;
        const V t504 = c[15] * t486;
        const V t505 = t504 + t503;
        const V t506 = c[2] * t472;
        const V t507 = c[3] * t470;
        const V t508 = t507 + t506;
        const V t509 = c[2] * t470;
        const V t510 = c[3] * t472;
        const V t511 = t509 - t510;
        const V t512 = c[16] * t484;
        const V t513 = c[17] * t483;
        const V t514 = t513 + t512;
        const V t515 = c[16] * t483;
        const V t516 = c[17] * t484;
        const V t517 = t516 - t515;
        const V t518 = c[7] * t488;
        const V t519 = c[8] * t487;
        const V t520 = t519 + t518;
        const V t521 = c[7] * t487;
        const V t522 = c[8] * t488;
        const V t523 = t522 - t521;
        const V t524 = c[9] * t474;
        // spectrum block of 2
        const V t525 = t493 + t524;
        const V t526 = t493 - t524;
        // complex block of 2
        const V t527 = t517 + t505;
        const V t528 = t502 - t514;
        const V t529 = t517 - t505;
        const V t530 = t514 + t502;
        // spectrum block of 3, multiplier 2
        const V t531 = t528 + t525;
        const V t532 = c[0] * t528;
        const V t533 = t525 - t532;
        const V t534 = c[1] * t527;
        const V t535 = t533 - t534;
        const V t536 = t533 + t534;
        // spectrum block of 3, multiplier 2
        const V t537 = t526 - t530;
        const V t538 = c[0] * t530;
        const V t539 = t538 + t526;
        const V t540 = c[1] * t529;
        const V t541 = t539 - t540;
        const V t542 = t539 + t540;
        // complex block of 2
        const V t543 = t496 + t520;
        const V t544 = t523 - t499;
        const V t545 = t520 - t496;
        const V t546 = t499 + t523;
        // mirrored skew block of 6
        const V t547 = c[0] * t545;
        const V t548 = c[1] * t546;
        const V t549 = t548 + t547;
        // spectrum block of 3, multiplier 2
        const V t550 = t544 + t511;
        const V t551 = c[0] * t544;
        const V t552 = t511 - t551;
        const V t553 = c[1] * t543;
        const V t554 = t552 - t553;
        const V t555 = t552 + t553;
        // spectrum block of 3, multiplier 2
        const V t556 = t549 + t508;
        const V t557 = c[0] * t549;
        const V t558 = t557 - t508;
        const V t559 = c[26] * t545;
        const V t560 = c[27] * t546;
        const V t561 = t559 - t560;
        const V t562 = t558 + t561;
        const V t563 = t558 - t561;
        // real block of 53
        const V x0 = io.in(0);
        const V t564 = x0 + t124;
        io.re(0, t564);
        const V t565 = c[94] * t124;
        const V t566 = t565 - x0;
        const V t567 = c[32] * t442;
        const V t568 = c[33] * t392;
        const V t569 = t568 + t567;
        const V t570 = c[32] * t392;
        const V t571 = c[33] * t442;
        const V t572 = t571 - t570;
        const V t573 = c[34] * t556;
        const V t574 = c[35] * t541;
        const V t575 = t574 - t573;
        const V t576 = c[34] * t541;
        const V t577 = c[35] * t556;
        const V t578 = t577 + t576;
        const V t579 = c[36] * t435;
        const V t580 = c[37] * t385;
        const V t581 = t580 - t579;
        const V t582 = c[36] * t385;
        const V t583 = c[37] * t435;
        const V t584 = t583 + t582;
        const V t585 = c[38] * t183;
        const V t586 = c[39] * t164;
        const V t587 = t586 - t585;
        const V t588 = c[38] * t164;
        const V t589 = c[39] * t183;
        const V t590 = t589 + t588;
        const V t591 = c[40] * t444;
        const V t592 = c[41] * t394;
        const V t593 = t592 - t591;
        const V t594 = c[40] * t394;
        const V t595 = c[41] * t444;
        const V t596 = t595 + t594;
        const V t597 = c[42] * t562;
        const V t598 = c[43] * t537;
        const V t599 = t598 - t597;
        const V t600 = c[42] * t537;
        const V t601 = c[43] * t562;
        const V t602 = t601 + t600;
        const V t603 = c[44] * t432;
        const V t604 = c[45] * t382;
        const V t605 = t604 + t603;
        const V t606 = c[44] * t382;
        const V t607 = c[45] * t432;
        const V t608 = t606 - t607;
        const V t609 = c[46] * t196;
        const V t610 = c[47] * t175;
        const V t611 = t610 + t609;
        const V t612 = c[46] * t175;
        const V t613 = c[47] * t196;
        const V t614 = t612 - t613;
        const V t615 = c[48] * t430;
        const V t616 = c[49] * t380;
        const V t617 = t616 - t615;
        const V t618 = c[48] * t380;
        const V t619 = c[49] * t430;
        const V t620 = t619 + t618;
        const V t621 = c[50] * t555;
        const V t622 = c[51] * t535;
        const V t623 = t622 + t621;
        const V t624 = c[50] * t535;
        const V t625 = c[51] * t555;
        const V t626 = t624 - t625;
        const V t627 = c[52] * t438;
        const V t628 = c[53] * t388;
        const V t629 = t628 - t627;
        const V t630 = c[52] * t388;
        const V t631 = c[53] * t438;
        const V t632 = t631 + t630;
        const V t633 = c[54] * t187;
        const V t634 = c[55] * t169;
        const V t635 = t634 - t633;
        const V t636 = c[54] * t169;
        const V t637 = c[55] * t187;
        const V t638 = t637 + t636;
        const V t639 = c[56] * t290;
        const V t640 = c[57] * t289;
        const V t641 = t639 - t640;
        const V t642 = c[56] * t289;
        const V t643 = c[57] * t290;
        const V t644 = t643 + t642;
        const V t645 = c[58] * t554;
        const V t646 = c[59] * t536;
        const V t647 = t646 - t645;
        const V t648 = c[58] * t536;
        const V t649 = c[59] * t554;
        const V t650 = t649 + t648;
        const V t651 = c[60] * t437;
        const V t652 = c[61] * t387;
        const V t653 = t652 + t651;
        const V t654 = c[60] * t387;
        const V t655 = c[61] * t437;
        const V t656 = t655 - t654;
        const V t657 = c[62] * t188;
        const V t658 = c[63] * t168;
        const V t659 = t657 - t658;
        const V t660 = c[62] * t168;
        const V t661 = c[63] * t188;
        const V t662 = t661 + t660;
        const V t663 = c[64] * t429;
        const V t664 = c[65] * t379;
        const V t665 = t664 + t663;
        const V t666 = c[64] * t379;
        const V t667 = c[65] * t429;
        const V t668 = t667 - t666;
        const V t669 = c[66] * t563;
        const V t670 = c[67] * t542;
        const V t671 = t670 - t669;
        const V t672 = c[66] * t542;
        const V t673 = c[67] * t563;
        const V t674 = t673 + t672;
        const V t675 = c[68] * t431;
        const V t676 = c[69] * t381;
        const V t677 = t676 + t675;
        const V t678 = c[68] * t381;
        const V t679 = c[69] * t431;
        const V t680 = t678 - t679;
        const V t681 = c[70] * t195;
        const V t682 = c[71] * t170;
        const V t683 = t682 + t681;
        const V t684 = c[70] * t170;
        const V t685 = c[71] * t195;
        const V t686 = t684 - t685;
        const V t687 = c[72] * t443;
        const V t688 = c[73] * t393;
        const V t689 = t687 - t688;
        const V t690 = c[72] * t393;
        const V t691 = c[73] * t443;
        const V t692 = t691 + t690;
        const V t693 = c[74] * t550;
        const V t694 = c[75] * t531;
        const V t695 = t694 + t693;
        const V t696 = c[74] * t531;
        const V t697 = c[75] * t550;
        const V t698 = t696 - t697;
        const V t699 = c[76] * t436;
        const V t700 = c[77] * t386;
        const V t701 = t700 + t699;
        const V t702 = c[76] * t386;
        const V t703 = c[77] * t436;
        const V t704 = t702 - t703;
        const V t705 = c[78] * t189;
        const V t706 = c[79] * t174;
        const V t707 = t706 + t705;
        const V t708 = c[78] * t174;
        const V t709 = c[79] * t189;
        const V t710 = t709 - t708;
        const V t711 = c[80] * t441;
        const V t712 = c[81] * t391;
        const V t713 = t711 - t712;
        const V t714 = c[80] * t391;
        const V t715 = c[81] * t441;
        const V t716 = t715 + t714;
        const V t717 = c[95] * t491;
        // spectrum block of 2
        const V t718 = t717 - t566;
        const V t719 = t566 + t717;
        // complex block of 2
        const V t720 = t590 - t698;
        const V t721 = t587 + t695;
        const V t722 = t590 + t698;
        const V t723 = t587 - t695;
        // complex block of 2
        const V t724 = t614 - t674;
        const V t725 = t611 + t671;
        const V t726 = t614 + t674;
        const V t727 = t611 - t671;
        // complex block of 2
        const V t728 = t638 + t650;
        const V t729 = t635 + t647;
        const V t730 = t638 - t650;
        const V t731 = t635 - t647;
        // complex block of 2
        const V t732 = t662 - t626;
        const V t733 = t659 - t623;
        const V t734 = t662 + t626;
        const V t735 = t659 + t623;
        // complex block of 2
        const V t736 = t686 - t602;
        const V t737 = t683 + t599;
        const V t738 = t686 + t602;
        const V t739 = t683 - t599;
        // complex block of 2
        const V t740 = t710 + t578;
        const V t741 = t707 + t575;
        const V t742 = t710 - t578;
        const V t743 = t707 - t575;
        // real block of 3, multiplier 2
        const V t744 = t733 + t729;
        const V t745 = t733 - t729;
        const V t746 = t744 + t721;
        const V t747 = c[0] * t744;
        const V t748 = t721 - t747;
        const V t749 = c[1] * t745;
        // real block of 3, multiplier 2
        const V t750 = t741 + t725;
        const V t751 = t741 - t725;
        const V t752 = t750 + t737;
        const V t753 = c[0] * t750;
        const V t754 = t737 - t753;
        const V t755 = c[1] * t751;
        // real block of 2
        const V t756 = t746 + t752;
        const V t757 = t746 - t752;
        // complex block of 2
        const V t758 = t748 + t754;
        const V t759 = t749 + t755;
        const V t760 = t748 - t754;
        const V t761 = t749 - t755;
        // skew block of 6
        const V t762 = c[0] * t728;
        const V t763 = c[1] * t724;
        const V t764 = t763 - t762;
        const V t765 = c[0] * t724;
        const V t766 = c[1] * t728;
        const V t767 = t766 + t765;
        const V t768 = c[1] * t740;
        const V t769 = c[0] * t732;
        const V t770 = t769 - t768;
        const V t771 = c[1] * t732;
        const V t772 = c[0] * t740;
        const V t773 = t772 + t771;
        // complex block of 3
        const V t774 = t764 + t770;
        const V t775 = t767 + t773;
        const V t776 = t764 - t770;
        const V t777 = t773 - t767;
        const V t778 = t774 + t720;
        const V t779 = t736 - t775;
        const V t780 = c[0] * t774;
        const V t781 = t720 - t780;
        const V t782 = c[0] * t775;
        const V t783 = t782 + t736;
        const V t784 = c[1] * t776;
        const V t785 = c[1] * t777;
        const V t786 = t781 + t785;
        const V t787 = t783 - t784;
        const V t788 = t781 - t785;
        const V t789 = t783 + t784;
        // spectrum block of 13, multiplier 2
        const V t790 = c[4] * t756;
        const V t791 = t790 - t718;
        const V t792 = c[10] * t779;
        const V t793 = c[11] * t778;
        const V t794 = t792 - t793;
        const V t795 = c[10] * t778;
        const V t796 = c[11] * t779;
        const V t797 = t796 + t795;
        const V t798 = c[18] * t761;
        const V t799 = c[19] * t760;
        const V t800 = t799 - t798;
        const V t801 = c[2] * t789;
        const V t802 = c[3] * t788;
        const V t803 = t801 - t802;
        const V t804 = c[2] * t788;
        const V t805 = c[3] * t789;
        const V t806 = t805 + t804;
        const V t807 = c[20] * t759;
        const V t808 = c[21] * t758;
        const V t809 = t808 + t807;
        const V t810 = c[12] * t787;
        const V t811 = c[13] * t786;
        const V t812 = t811 + t810;
        const V t813 = c[12] * t786;
        const V t814 = c[13] * t787;
        const V t815 = t814 - t813;
        const V t816 = c[9] * t757;
        // spectrum block of 3
        const V t817 = t809 - t791;
        const V t818 = c[0] * t809;
        const V t819 = t791 + t818;
        const V t820 = c[22] * t759;
        const V t821 = c[23] * t758;
        const V t822 = t820 - t821;
        const V t823 = t819 + t822;
        const V t824 = t822 - t819;
        // complex block of 3
        const V t825 = t797 - t815;
        const V t826 = t812 + t794;
        const V t827 = t815 + t797;
        const V t828 = t812 - t794;
        const V t829 = t825 + t806;
        const V t830 = t826 + t803;
        const V t831 = c[0] * t825;
        const V t832 = t806 - t831;
        const V t833 = c[0] * t826;
        const V t834 = t803 - t833;
        const V t835 = c[1] * t827;
        const V t836 = c[1] * t828;
        const V t837 = t832 + t836;
        const V t838 = t834 + t835;
        const V t839 = t832 - t836;
        const V t840 = t834 - t835;
        // spectrum block of 3
        const V t841 = t800 - t816;
        const V t842 = c[0] * t800;
        const V t843 = t816 + t842;
        const V t844 = c[24] * t761;
        const V t845 = c[25] * t760;
        const V t846 = t844 + t845;
        const V t847 = t843 + t846;
        const V t848 = t846 - t843;
        // spectrum block of 2
        const V t849 = t817 + t841;
        const V t850 = t817 - t841;
        // spectrum block of 2
        const V t851 = t849 + t830;
        io.re(13, t851);
        const V t852 = t849 - t830;
        io.re(4, t852);
        // spectrum block of 2
        const V t853 = t850 + t829;
        io.re(25, t853);
        const V t854 = t850 - t829;
        io.re(17, t854);
        // spectrum block of 2
        const V t855 = t823 + t847;
        const V t856 = t847 - t823;
        // spectrum block of 2
        const V t857 = t838 - t855;
        io.re(9, t857);
        const V t858 = t855 + t838;
        io.minusRe(6, t858);
        // spectrum block of 2
        const V t859 = t856 + t837;
        io.re(7, t859);
        const V t860 = t856 - t837;
        io.re(15, t860);
        // spectrum block of 2
        const V t861 = t824 + t848;
        const V t862 = t824 - t848;
        // spectrum block of 2
        const V t863 = t861 + t840;
        io.re(24, t863);
        const V t864 = t861 - t840;
        io.re(11, t864);
        // spectrum block of 2
        const V t865 = t862 + t839;
        io.re(10, t865);
        const V t866 = t862 - t839;
        io.re(16, t866);
        // spectrum block of 13, multiplier 2
        const V t867 = t718 + t756;
        io.re(1, t867);
        // real block of 3, multiplier 2
        const V t868 = t735 + t731;
        const V t869 = t735 - t731;
        const V t870 = t868 + t723;
        const V t871 = c[0] * t868;
        const V t872 = t723 - t871;
        const V t873 = c[1] * t869;
        // real block of 3, multiplier 2
        const V t874 = t743 + t727;
        const V t875 = t743 - t727;
        const V t876 = t874 + t739;
        const V t877 = c[0] * t874;
        const V t878 = t739 - t877;
        const V t879 = c[1] * t875;
        // real block of 2
        const V t880 = t870 + t876;
        const V t881 = t870 - t876;
        // complex block of 2
        const V t882 = t872 + t878;
        const V t883 = t873 + t879;
        const V t884 = t872 - t878;
        const V t885 = t873 - t879;
        // skew block of 6
        const V t886 = c[0] * t730;
        const V t887 = c[1] * t726;
        const V t888 = t887 - t886;
        const V t889 = c[0] * t726;
        const V t890 = c[1] * t730;
        const V t891 = t890 + t889;
        const V t892 = c[1] * t742;
        const V t893 = c[0] * t734;
        const V t894 = t893 - t892;
        const V t895 = c[1] * t734;
        const V t896 = c[0] * t742;
        const V t897 = t896 + t895;
        // complex block of 3
        const V t898 = t888 + t894;
        const V t899 = t891 + t897;
        const V t900 = t888 - t894;
        const V t901 = t897 - t891;
        const V t902 = t898 + t722;
        const V t903 = t738 - t899;
        const V t904 = c[0] * t898;
        const V t905 = t722 - t904;
        const V t906 = c[0] * t899;
        const V t907 = t906 + t738;
        const V t908 = c[1] * t900;
        const V t909 = c[1] * t901;
        const V t910 = t905 + t909;
        const V t911 = t907 - t908;
        const V t912 = t905 - t909;
        const V t913 = t907 + t908;
        // spectrum block of 13, multiplier 2
        const V t914 = c[4] * t880;
        const V t915 = t719 + t914;
        const V t916 = c[10] * t903;
        const V t917 = c[11] * t902;
        const V t918 = t916 - t917;
        const V t919 = c[10] * t902;
        const V t920 = c[11] * t903;
        const V t921 = t920 + t919;
        const V t922 = c[18] * t885;
        const V t923 = c[19] * t884;
        const V t924 = t923 - t922;
        const V t925 = c[2] * t913;
        const V t926 = c[3] * t912;
        const V t927 = t925 - t926;
        const V t928 = c[2] * t912;
        const V t929 = c[3] * t913;
        const V t930 = t929 + t928;
        const V t931 = c[20] * t883;
        const V t932 = c[21] * t882;
        const V t933 = t932 + t931;
        const V t934 = c[12] * t911;
        const V t935 = c[13] * t910;
        const V t936 = t935 + t934;
        const V t937 = c[12] * t910;
        const V t938 = c[13] * t911;
        const V t939 = t938 - t937;
        const V t940 = c[9] * t881;
        // spectrum block of 3
        const V t941 = t933 - t915;
        const V t942 = c[0] * t933;
        const V t943 = t915 + t942;
        const V t944 = c[22] * t883;
        const V t945 = c[23] * t882;
        const V t946 = t944 - t945;
        const V t947 = t943 + t946;
        const V t948 = t946 - t943;
        // complex block of 3
        const V t949 = t921 - t939;
        const V t950 = t936 + t918;
        const V t951 = t939 + t921;
        const V t952 = t936 - t918;
        const V t953 = t949 + t930;
        const V t954 = t950 + t927;
        const V t955 = c[0] * t949;
        const V t956 = t930 - t955;
        const V t957 = c[0] * t950;
        const V t958 = t927 - t957;
        const V t959 = c[1] * t951;
        const V t960 = c[1] * t952;
        const V t961 = t956 + t960;
        const V t962 = t958 + t959;
        const V t963 = t956 - t960;
        const V t964 = t958 - t959;
        // spectrum block of 3
        const V t965 = t924 - t940;
        const V t966 = c[0] * t924;
        const V t967 = t940 + t966;
        const V t968 = c[24] * t885;
        const V t969 = c[25] * t884;
        const V t970 = t968 + t969;
        const V t971 = t967 + t970;
        const V t972 = t970 - t967;
        // spectrum block of 2
        const V t973 = t941 + t965;
        const V t974 = t941 - t965;
        // spectrum block of 2
        const V t975 = t973 + t954;
        io.re(19, t975);
        const V t976 = t973 - t954;
        io.re(14, t976);
        // spectrum block of 2
        const V t977 = t974 + t953;
        io.re(8, t977);
        const V t978 = t974 - t953;
        io.re(20, t978);
        // spectrum block of 2
        const V t979 = t947 + t971;
        const V t980 = t971 - t947;
        // spectrum block of 2
        const V t981 = t962 - t979;
        io.re(5, t981);
        const V t982 = t979 + t962;
        io.minusRe(21, t982);
        // spectrum block of 2
        const V t983 = t980 + t961;
        io.re(2, t983);
        const V t984 = t980 - t961;
        io.re(26, t984);
        // spectrum block of 2
        const V t985 = t948 + t972;
        const V t986 = t948 - t972;
        // spectrum block of 2
        const V t987 = t985 + t964;
        io.re(22, t987);
        const V t988 = t985 - t964;
        io.re(12, t988);
        // spectrum block of 2
        const V t989 = t986 + t963;
        io.re(18, t989);
        const V t990 = t986 - t963;
        io.re(3, t990);
        // spectrum block of 13, multiplier 2
        const V t991 = t880 - t719;
        io.re(23, t991);
        // complex block of 2
        const V t992 = t713 - t569;
        const V t993 = t572 - t716;
        const V t994 = t569 + t713;
        const V t995 = t572 + t716;
        // mirrored skew block of 26
        const V t996 = c[82] * t994;
        const V t997 = c[83] * t995;
        const V t998 = t997 + t996;
        const V t999 = c[82] * t995;
        const V t1000 = c[83] * t994;
        const V t1001 = t999 - t1000;
        // complex block of 2
        const V t1002 = t701 - t581;
        const V t1003 = t704 - t584;
        const V t1004 = t581 + t701;
        const V t1005 = t584 + t704;
        // mirrored skew block of 26
        const V t1006 = c[84] * t1004;
        const V t1007 = c[85] * t1005;
        const V t1008 = t1006 - t1007;
        const V t1009 = c[84] * t1005;
        const V t1010 = c[85] * t1004;
        const V t1011 = t1010 + t1009;
        // complex block of 2
        const V t1012 = t689 - t593;
        const V t1013 = t596 - t692;
        const V t1014 = t593 + t689;
        const V t1015 = t596 + t692;
        // mirrored skew block of 26
        const V t1016 = c[86] * t1014;
        const V t1017 = c[87] * t1015;
        const V t1018 = t1017 + t1016;
        const V t1019 = c[86] * t1015;
        const V t1020 = c[87] * t1014;
        const V t1021 = t1019 - t1020;
        // complex block of 2
        const V t1022 = t677 - t605;
        const V t1023 = t608 + t680;
        const V t1024 = t605 + t677;
        const V t1025 = t608 - t680;
        // mirrored skew block of 26
        const V t1026 = c[88] * t1024;
        const V t1027 = c[89] * t1025;
        const V t1028 = t1027 + t1026;
        const V t1029 = c[88] * t1025;
        const V t1030 = c[89] * t1024;
        const V t1031 = t1029 - t1030;
        // complex block of 2
        const V t1032 = t665 - t617;
        const V t1033 = t620 + t668;
        const V t1034 = t617 + t665;
        const V t1035 = t620 - t668;
        // mirrored skew block of 26
        const V t1036 = c[90] * t1034;
        const V t1037 = c[91] * t1035;
        const V t1038 = t1037 + t1036;
        const V t1039 = c[90] * t1035;
        const V t1040 = c[91] * t1034;
        const V t1041 = t1039 - t1040;
        // complex block of 2
        const V t1042 = t629 + t653;
        const V t1043 = t656 - t632;
        const V t1044 = t653 - t629;
        const V t1045 = t632 + t656;
        // mirrored skew block of 26
        const V t1046 = c[92] * t1044;
        const V t1047 = c[93] * t1045;
        const V t1048 = t1047 + t1046;
        const V t1049 = c[92] * t1045;
        const V t1050 = c[93] * t1044;
        const V t1051 = t1050 - t1049;
        // real block of 3, multiplier 2
        const V t1052 = t1013 + t1023;
        const V t1053 = t1013 - t1023;
        const V t1054 = t1052 + t1043;
        const V t1055 = c[0] * t1052;
        const V t1056 = t1043 - t1055;
        const V t1057 = c[1] * t1053;
        // real block of 3, multiplier 2
        const V t1058 = t993 + t1033;
        const V t1059 = t993 - t1033;
        const V t1060 = t1058 + t1003;
        const V t1061 = c[0] * t1058;
        const V t1062 = t1003 - t1061;
        const V t1063 = c[1] * t1059;
        // real block of 2
        const V t1064 = t1054 + t1060;
        const V t1065 = t1054 - t1060;
        // complex block of 2
        const V t1066 = t1056 + t1062;
        const V t1067 = t1057 + t1063;
        const V t1068 = t1056 - t1062;
        const V t1069 = t1057 - t1063;
        // skew block of 6
        const V t1070 = c[0] * t1022;
        const V t1071 = c[1] * t1032;
        const V t1072 = t1070 - t1071;
        const V t1073 = c[0] * t1032;
        const V t1074 = c[1] * t1022;
        const V t1075 = t1074 + t1073;
        const V t1076 = c[1] * t992;
        const V t1077 = c[0] * t1012;
        const V t1078 = t1076 - t1077;
        const V t1079 = c[1] * t1012;
        const V t1080 = c[0] * t992;
        const V t1081 = t1080 + t1079;
        // complex block of 3
        const V t1082 = t1072 + t1078;
        const V t1083 = t1075 + t1081;
        const V t1084 = t1072 - t1078;
        const V t1085 = t1075 - t1081;
        const V t1086 = t1082 + t1042;
        const V t1087 = t1083 - t1002;
        const V t1088 = c[0] * t1082;
        const V t1089 = t1042 - t1088;
        const V t1090 = c[0] * t1083;
        const V t1091 = t1002 + t1090;
        const V t1092 = c[1] * t1084;
        const V t1093 = c[1] * t1085;
        const V t1094 = t1089 + t1093;
        const V t1095 = t1091 + t1092;
        const V t1096 = t1089 - t1093;
        const V t1097 = t1092 - t1091;
        // spectrum block of 13, multiplier 2
        const V t1098 = c[4] * t1064;
        const V t1099 = t644 - t1098;
        const V t1100 = c[10] * t1087;
        const V t1101 = c[11] * t1086;
        const V t1102 = t1100 - t1101;
        const V t1103 = c[10] * t1086;
        const V t1104 = c[11] * t1087;
        const V t1105 = t1104 + t1103;
        const V t1106 = c[18] * t1069;
        const V t1107 = c[19] * t1068;
        const V t1108 = t1107 - t1106;
        const V t1109 = c[2] * t1097;
        const V t1110 = c[3] * t1096;
        const V t1111 = t1109 - t1110;
        const V t1112 = c[2] * t1096;
        const V t1113 = c[3] * t1097;
        const V t1114 = t1113 + t1112;
        const V t1115 = c[20] * t1067;
        const V t1116 = c[21] * t1066;
        const V t1117 = t1116 + t1115;
        const V t1118 = c[12] * t1095;
        const V t1119 = c[13] * t1094;
        const V t1120 = t1119 - t1118;
        const V t1121 = c[12] * t1094;
        const V t1122 = c[13] * t1095;
        const V t1123 = t1122 + t1121;
        const V t1124 = c[9] * t1065;
        // spectrum block of 3
        const V t1125 = t1117 + t1099;
        const V t1126 = c[0] * t1117;
        const V t1127 = t1099 - t1126;
        const V t1128 = c[22] * t1067;
        const V t1129 = c[23] * t1066;
        const V t1130 = t1128 - t1129;
        const V t1131 = t1127 - t1130;
        const V t1132 = t1127 + t1130;
        // complex block of 3
        const V t1133 = t1123 + t1105;
        const V t1134 = t1120 + t1102;
        const V t1135 = t1123 - t1105;
        const V t1136 = t1120 - t1102;
        const V t1137 = t1133 + t1114;
        const V t1138 = t1134 + t1111;
        const V t1139 = c[0] * t1133;
        const V t1140 = t1114 - t1139;
        const V t1141 = c[0] * t1134;
        const V t1142 = t1111 - t1141;
        const V t1143 = c[1] * t1135;
        const V t1144 = c[1] * t1136;
        const V t1145 = t1140 + t1144;
        const V t1146 = t1142 - t1143;
        const V t1147 = t1140 - t1144;
        const V t1148 = t1142 + t1143;
        // spectrum block of 3
        const V t1149 = t1108 - t1124;
        const V t1150 = c[0] * t1108;
        const V t1151 = t1124 + t1150;
        const V t1152 = c[24] * t1069;
        const V t1153 = c[25] * t1068;
        const V t1154 = t1152 + t1153;
        const V t1155 = t1151 + t1154;
        const V t1156 = t1154 - t1151;
        // spectrum block of 2
        const V t1157 = t1125 + t1149;
        const V t1158 = t1125 - t1149;
        // spectrum block of 2
        const V t1159 = t1157 + t1138;
        io.im(10, t1159);
        const V t1160 = t1157 - t1138;
        io.im(16, t1160);
        // spectrum block of 2
        const V t1161 = t1158 + t1137;
        io.minusIm(11, t1161);
        const V t1162 = t1158 - t1137;
        io.im(24, t1162);
        // spectrum block of 2
        const V t1163 = t1131 - t1155;
        const V t1164 = t1131 + t1155;
        // spectrum block of 2
        const V t1165 = t1163 + t1146;
        io.minusIm(25, t1165);
        const V t1166 = t1163 - t1146;
        io.minusIm(17, t1166);
        // spectrum block of 2
        const V t1167 = t1164 + t1145;
        io.minusIm(4, t1167);
        const V t1168 = t1164 - t1145;
        io.im(13, t1168);
        // spectrum block of 2
        const V t1169 = t1132 + t1156;
        const V t1170 = t1132 - t1156;
        // spectrum block of 2
        const V t1171 = t1169 + t1148;
        io.minusIm(7, t1171);
        const V t1172 = t1169 - t1148;
        io.im(15, t1172);
        // spectrum block of 2
        const V t1173 = t1170 + t1147;
        io.minusIm(6, t1173);
        const V t1174 = t1170 - t1147;
        io.minusIm(9, t1174);
        // spectrum block of 13, multiplier 2
        const V t1175 = t644 + t1064;
        io.im(1, t1175);
        // real block of 3, multiplier 2
        const V t1176 = t1018 + t1028;
        const V t1177 = t1018 - t1028;
        const V t1178 = t1176 - t1048;
        const V t1179 = c[0] * t1176;
        const V t1180 = t1048 + t1179;
        const V t1181 = c[1] * t1177;
        // real block of 3, multiplier 2
        const V t1182 = t998 + t1038;
        const V t1183 = t998 - t1038;
        const V t1184 = t1182 + t1008;
        const V t1185 = c[0] * t1182;
        const V t1186 = t1008 - t1185;
        const V t1187 = c[1] * t1183;
        // real block of 2
        const V t1188 = t1178 + t1184;
        const V t1189 = t1178 - t1184;
        // complex block of 2
        const V t1190 = t1186 - t1180;
        const V t1191 = t1181 + t1187;
        const V t1192 = t1180 + t1186;
        const V t1193 = t1181 - t1187;
        // skew block of 6
        const V t1194 = c[0] * t1031;
        const V t1195 = c[1] * t1041;
        const V t1196 = t1194 - t1195;
        const V t1197 = c[0] * t1041;
        const V t1198 = c[1] * t1031;
        const V t1199 = t1198 + t1197;
        const V t1200 = c[1] * t1001;
        const V t1201 = c[0] * t1021;
        const V t1202 = t1200 - t1201;
        const V t1203 = c[1] * t1021;
        const V t1204 = c[0] * t1001;
        const V t1205 = t1204 + t1203;
        // complex block of 3
        const V t1206 = t1196 + t1202;
        const V t1207 = t1199 + t1205;
        const V t1208 = t1196 - t1202;
        const V t1209 = t1199 - t1205;
        const V t1210 = t1206 - t1051;
        const V t1211 = t1207 + t1011;
        const V t1212 = c[0] * t1206;
        const V t1213 = t1051 + t1212;
        const V t1214 = c[0] * t1207;
        const V t1215 = t1011 - t1214;
        const V t1216 = c[1] * t1208;
        const V t1217 = c[1] * t1209;
        const V t1218 = t1217 - t1213;
        const V t1219 = t1215 - t1216;
        const V t1220 = t1213 + t1217;
        const V t1221 = t1215 + t1216;
        // spectrum block of 13, multiplier 2
        const V t1222 = c[4] * t1188;
        const V t1223 = t641 - t1222;
        const V t1224 = c[10] * t1211;
        const V t1225 = c[11] * t1210;
        const V t1226 = t1224 - t1225;
        const V t1227 = c[10] * t1210;
        const V t1228 = c[11] * t1211;
        const V t1229 = t1228 + t1227;
        const V t1230 = c[18] * t1193;
        const V t1231 = c[19] * t1192;
        const V t1232 = t1231 + t1230;
        const V t1233 = c[2] * t1221;
        const V t1234 = c[3] * t1220;
        const V t1235 = t1234 + t1233;
        const V t1236 = c[2] * t1220;
        const V t1237 = c[3] * t1221;
        const V t1238 = t1237 - t1236;
        const V t1239 = c[20] * t1191;
        const V t1240 = c[21] * t1190;
        const V t1241 = t1240 + t1239;
        const V t1242 = c[12] * t1219;
        const V t1243 = c[13] * t1218;
        const V t1244 = t1243 + t1242;
        const V t1245 = c[12] * t1218;
        const V t1246 = c[13] * t1219;
        const V t1247 = t1246 - t1245;
        const V t1248 = c[9] * t1189;
        // spectrum block of 3
        const V t1249 = t1241 + t1223;
        const V t1250 = c[0] * t1241;
        const V t1251 = t1223 - t1250;
        const V t1252 = c[22] * t1191;
        const V t1253 = c[23] * t1190;
        const V t1254 = t1252 - t1253;
        const V t1255 = t1251 - t1254;
        const V t1256 = t1251 + t1254;
        // complex block of 3
        const V t1257 = t1229 - t1247;
        const V t1258 = t1244 + t1226;
        const V t1259 = t1247 + t1229;
        const V t1260 = t1244 - t1226;
        const V t1261 = t1257 + t1238;
        const V t1262 = t1258 + t1235;
        const V t1263 = c[0] * t1257;
        const V t1264 = t1238 - t1263;
        const V t1265 = c[0] * t1258;
        const V t1266 = t1235 - t1265;
        const V t1267 = c[1] * t1259;
        const V t1268 = c[1] * t1260;
        const V t1269 = t1264 + t1268;
        const V t1270 = t1266 + t1267;
        const V t1271 = t1264 - t1268;
        const V t1272 = t1266 - t1267;
        // spectrum block of 3
        const V t1273 = t1232 + t1248;
        const V t1274 = c[0] * t1232;
        const V t1275 = t1274 - t1248;
        const V t1276 = c[25] * t1192;
        const V t1277 = c[24] * t1193;
        const V t1278 = t1276 - t1277;
        const V t1279 = t1275 + t1278;
        const V t1280 = t1275 - t1278;
        // spectrum block of 2
        const V t1281 = t1249 - t1273;
        const V t1282 = t1249 + t1273;
        // spectrum block of 2
        const V t1283 = t1281 + t1262;
        io.im(5, t1283);
        const V t1284 = t1281 - t1262;
        io.im(8, t1284);
        // spectrum block of 2
        const V t1285 = t1282 + t1261;
        io.im(21, t1285);
        const V t1286 = t1282 - t1261;
        io.im(12, t1286);
        // spectrum block of 2
        const V t1287 = t1255 + t1279;
        const V t1288 = t1255 - t1279;
        // spectrum block of 2
        const V t1289 = t1287 + t1270;
        io.im(14, t1289);
        const V t1290 = t1287 - t1270;
        io.im(18, t1290);
        // spectrum block of 2
        const V t1291 = t1288 + t1269;
        io.minusIm(2, t1291);
        const V t1292 = t1288 - t1269;
        io.minusIm(20, t1292);
        // spectrum block of 2
        const V t1293 = t1256 + t1280;
        const V t1294 = t1256 - t1280;
        // spectrum block of 2
        const V t1295 = t1293 + t1272;
        io.im(23, t1295);
        const V t1296 = t1293 - t1272;
        io.minusIm(19, t1296);
        // spectrum block of 2
        const V t1297 = t1294 + t1271;
        io.minusIm(3, t1297);
        const V t1298 = t1294 - t1271;
        io.im(22, t1298);
        // spectrum block of 13, multiplier 2
        const V t1299 = t641 + t1188;
        io.minusIm(26, t1299);
    }
};

}  // namespace zulg
