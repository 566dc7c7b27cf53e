// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 53.
// Complex DFT of 53 points, Rader block.
// 880 additions, 880 subtractions, 852 multiplications (958 with `scale`); 72 constants; 176 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<53> {
    static constexpr int steps = 2718;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5751407294740031,  // c[2]: -P[3] of 13
        0.1741386011521359,  // c[3]: Q[3] of 13
        0.3203288761978803,  // c[4]: -P[5] of 13
        0.5084294662830964,  // c[5]: -Q[5] of 13
        0.015496188988565054,  // c[6]: -P[1] of 13
        0.6007253775544544,  // c[7]: -Q[1] of 13
        0.15924941320823024,  // c[8]: -Q[4] of 13
        0.5794400189009605,  // c[9]: -P[4] of 13
        0.6008758031820526,  // c[10]: -Q[2] of 13
        0.007705858903092426,  // c[11]: P[2] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.5018097763375671,  // c[16]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[17]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[18]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[19]: sin 2 pi 1/3 times -Q[2] of 13
        0.27729778231647617,  // c[20]: -P[13] of 53
        0.038836925551200704,  // c[21]: -Q[13] of 53
        0.049641770378907886,  // c[22]: P[4] of 53
        0.2755686148630738,  // c[23]: Q[4] of 53
        0.17875918651855408,  // c[24]: P[22] of 53
        0.21551686731931244,  // c[25]: Q[22] of 53
        0.27294272954157833,  // c[26]: Q[17] of 53
        0.062487064695808406,  // c[27]: P[17] of 53
        0.02027467783966699,  // c[28]: -Q[9] of 53
        0.27926923264549397,  // c[29]: P[9] of 53
        0.1903832491584887,  // c[30]: Q[12] of 53
        0.20532068893261132,  // c[31]: P[12] of 53
        0.2645541253996386,  // c[32]: -Q[14] of 53
        0.09172503255893466,  // c[33]: P[14] of 53
        0.11888864474491956,  // c[34]: Q[1] of 53
        0.2535110589592131,  // c[35]: P[1] of 53
        0.08072191645791539,  // c[36]: Q[25] of 53
        0.26811627900458906,  // c[37]: -P[25] of 53
        0.2421434442697633,  // c[38]: Q[10] of 53
        0.14060198882334973,  // c[39]: -P[10] of 53
        0.04985858822323415,  // c[40]: Q[16] of 53
        0.27552946855879373,  // c[41]: -P[16] of 53
        0.27934484277921784,  // c[42]: Q[3] of 53
        0.01920483471835668,  // c[43]: P[3] of 53
        0.2795810907749542,  // c[44]: -Q[23] of 53
        0.015387675100292094,  // c[45]: P[23] of 53
        0.02515113381908794,  // c[46]: P[8] of 53
        0.2519381469601781,  // c[47]: P[18] of 53
        0.27887234952845297,  // c[48]: Q[8] of 53
        0.12218648440059575,  // c[49]: Q[18] of 53
        0.005568976607062611,  // c[50]: P[20] of 53
        0.279948840618166,  // c[51]: Q[20] of 53
        0.18509085703434766,  // c[52]: P[6] of 53
        0.21010412063116707,  // c[53]: Q[6] of 53
        0.04799540743714245,  // c[54]: P[24] of 53
        0.2471500091242084,  // c[55]: P[2] of 53
        0.13160258300584013,  // c[56]: -Q[2] of 53
        0.2758601234844355,  // c[57]: -Q[24] of 53
        0.15489151598012768,  // c[58]: Q[11] of 53
        0.23326162380743898,  // c[59]: P[11] of 53
        0.2603347814141748,  // c[60]: Q[15] of 53
        0.10309300873453617,  // c[61]: -P[15] of 53
        0.26661085340441376,  // c[62]: -Q[19] of 53
        0.0855629575860694,  // c[63]: P[19] of 53
        0.2786708556034366,  // c[64]: -Q[7] of 53
        0.02729324277461261,  // c[65]: P[7] of 53
        0.08550180730497182,  // c[66]: P[5] of 53
        0.26663047052332334,  // c[67]: -Q[5] of 53
        0.2608612063201607,  // c[68]: -P[21] of 53
        0.10175361370042776,  // c[69]: Q[21] of 53
        0.019230769230769232,  // c[70]: 1/52
        0.14000211325539458,  // c[71]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 3
        const V x15r = io.re(15);
        const V x36r = io.re(36);
        const V t0 = x15r + x36r;
        const V t1 = x15r - x36r;
        const V t2 = c[0] * t0;
        // real block of 3
        const V x46r = io.re(46);
        const V x28r = io.re(28);
        const V t3 = x46r + x28r;
        const V t4 = x46r - x28r;
        const V t5 = c[0] * t3;
        // real block of 3
        const V x16r = io.re(16);
        const V t6 = t0 + x16r;
        // real block of 3
        const V x10r = io.re(10);
        const V t7 = t3 + x10r;
        // real block of 2
        const V t8 = t6 + t7;
        // real block of 3
        const V t9 = x16r - t2;
        // real block of 3
        const V t10 = x10r - t5;
        // complex block of 2
        const V t11 = t9 - t10;
        // real block of 3
        const V t12 = c[1] * t1;
        // real block of 3
        const V t13 = c[1] * t4;
        // complex block of 2
        const V t14 = t12 + t13;
        const V t15 = t13 - t12;
        // real block of 3
        const V x44r = io.re(44);
        const V x13r = io.re(13);
        const V t16 = x44r + x13r;
        const V t17 = x44r - x13r;
        const V t18 = c[0] * t16;
        // real block of 3
        const V x47r = io.re(47);
        const V x49r = io.re(49);
        const V t19 = x47r + x49r;
        const V t20 = x47r - x49r;
        const V t21 = c[0] * t19;
        const V x42r = io.re(42);
        const V t22 = t19 + x42r;
        // real block of 3
        const V x24r = io.re(24);
        const V t23 = t16 + x24r;
        // real block of 2
        const V t24 = t22 + t23;
        // real block of 3
        const V t25 = x42r - t21;
        // real block of 3
        const V t26 = x24r - t18;
        // complex block of 2
        const V t27 = t25 - t26;
        // real block of 3
        const V t28 = c[1] * t20;
        // real block of 3
        const V t29 = c[1] * t17;
        // complex block of 2
        const V t30 = t28 + t29;
        const V t31 = t29 - t28;
        // real block of 2
        const V t32 = t6 - t7;
        // real block of 13, multiplier 4
        const V t33 = c[2] * t32;
        const V t34 = c[3] * t32;
        // real block of 2
        const V t35 = t22 - t23;
        // real block of 13, multiplier 4
        const V t36 = c[3] * t35;
        const V t37 = c[2] * t35;
        const V t38 = t33 + t36;
        const V t39 = t34 - t37;
        // real block of 2
        const V t40 = t8 + t24;
        // real block of 13, multiplier 4
        const V t41 = c[12] * t40;
        const V x1r = io.re(1);
        const V t42 = x1r - t41;
        // real block of 2
        const V t43 = t8 - t24;
        // real block of 13, multiplier 4
        const V t44 = c[13] * t43;
        // complex block of 2
        const V t45 = t9 + t10;
        // complex block of 2
        const V t46 = t25 + t26;
        // complex block of 2
        const V t47 = t45 + t46;
        const V t48 = t45 - t46;
        const V t49 = t14 + t30;
        // real block of 13, multiplier 4
        const V t50 = c[8] * t49;
        const V t51 = c[9] * t49;
        // complex block of 2
        const V t52 = t30 - t14;
        // real block of 13, multiplier 4
        const V t53 = c[10] * t52;
        const V t54 = c[11] * t52;
        const V t55 = c[11] * t48;
        const V t56 = t55 - t53;
        const V t57 = c[10] * t48;
        const V t58 = t54 + t57;
        const V t59 = c[9] * t47;
        const V t60 = t59 + t50;
        const V t61 = c[8] * t47;
        const V t62 = t51 - t61;
        // complex block of 2
        const V t63 = t11 - t31;
        // real block of 13, multiplier 4
        const V t64 = c[4] * t63;
        const V t65 = c[5] * t63;
        // complex block of 2
        const V t66 = t15 + t27;
        // real block of 13, multiplier 4
        const V t67 = c[5] * t66;
        const V t68 = c[4] * t66;
        // complex block of 2
        const V t69 = t11 + t31;
        // real block of 13, multiplier 4
        const V t70 = c[6] * t69;
        const V t71 = c[7] * t69;
        // complex block of 2
        const V t72 = t15 - t27;
        // real block of 13, multiplier 4
        const V t73 = c[7] * t72;
        const V t74 = c[6] * t72;
        const V t75 = t73 - t70;
        const V t76 = t64 + t67;
        // complex block of 2
        const V t77 = t76 - t75;
        // real block of 13, multiplier 4
        const V t78 = t74 + t71;
        const V t79 = t68 - t65;
        // complex block of 2
        const V t80 = t78 + t79;
        // real block of 3
        const V x2r = io.re(2);
        const V x45r = io.re(45);
        const V t81 = x2r + x45r;
        const V t82 = x2r - x45r;
        const V t83 = c[0] * t81;
        // real block of 3
        const V x26r = io.re(26);
        const V x20r = io.re(20);
        const V t84 = x26r + x20r;
        const V t85 = x26r - x20r;
        const V t86 = c[0] * t84;
        const V x3r = io.re(3);
        const V t87 = t84 + x3r;
        // real block of 3
        const V x35r = io.re(35);
        const V t88 = t81 + x35r;
        // real block of 2
        const V t89 = t87 + t88;
        // real block of 3
        const V t90 = x3r - t86;
        // real block of 3
        const V t91 = x35r - t83;
        // complex block of 2
        const V t92 = t90 - t91;
        // real block of 3
        const V t93 = c[1] * t85;
        // real block of 3
        const V t94 = c[1] * t82;
        // complex block of 2
        const V t95 = t93 + t94;
        const V t96 = t94 - t93;
        // real block of 3
        const V x48r = io.re(48);
        const V x19r = io.re(19);
        const V t97 = x48r + x19r;
        const V t98 = x48r - x19r;
        const V t99 = c[0] * t97;
        // real block of 3
        const V x32r = io.re(32);
        const V x39r = io.re(39);
        const V t100 = x32r + x39r;
        const V t101 = x32r - x39r;
        const V t102 = c[0] * t100;
        const V x41r = io.re(41);
        const V t103 = t100 + x41r;
        // real block of 3
        const V x31r = io.re(31);
        const V t104 = t97 + x31r;
        // real block of 2
        const V t105 = t103 + t104;
        // real block of 3
        const V t106 = x41r - t102;
        // real block of 3
        const V t107 = x31r - t99;
        // complex block of 2
        const V t108 = t106 - t107;
        // real block of 3
        const V t109 = c[1] * t101;
        // real block of 3
        const V t110 = c[1] * t98;
        // complex block of 2
        const V t111 = t109 + t110;
        const V t112 = t110 - t109;
        // real block of 2
        const V t113 = t87 - t88;
        // real block of 13, multiplier 4
        const V t114 = c[2] * t113;
        const V t115 = c[3] * t113;
        // real block of 2
        const V t116 = t103 - t104;
        // real block of 13, multiplier 4
        const V t117 = c[3] * t116;
        const V t118 = c[2] * t116;
        const V t119 = t114 + t117;
        const V t120 = t115 - t118;
        // real block of 2
        const V t121 = t89 + t105;
        // real block of 13, multiplier 4
        const V t122 = c[12] * t121;
        const V x30r = io.re(30);
        const V t123 = x30r - t122;
        // real block of 2
        const V t124 = t89 - t105;
        // real block of 13, multiplier 4
        const V t125 = c[13] * t124;
        // complex block of 2
        const V t126 = t90 + t91;
        // complex block of 2
        const V t127 = t106 + t107;
        // complex block of 2
        const V t128 = t126 + t127;
        const V t129 = t126 - t127;
        const V t130 = t95 + t111;
        // real block of 13, multiplier 4
        const V t131 = c[8] * t130;
        const V t132 = c[9] * t130;
        // complex block of 2
        const V t133 = t111 - t95;
        // real block of 13, multiplier 4
        const V t134 = c[10] * t133;
        const V t135 = c[11] * t133;
        const V t136 = c[11] * t129;
        const V t137 = t136 - t134;
        const V t138 = c[10] * t129;
        const V t139 = t135 + t138;
        const V t140 = c[9] * t128;
        const V t141 = t140 + t131;
        const V t142 = c[8] * t128;
        const V t143 = t132 - t142;
        // complex block of 2
        const V t144 = t92 - t112;
        // real block of 13, multiplier 4
        const V t145 = c[4] * t144;
        const V t146 = c[5] * t144;
        // complex block of 2
        const V t147 = t96 + t108;
        // real block of 13, multiplier 4
        const V t148 = c[5] * t147;
        const V t149 = c[4] * t147;
        // complex block of 2
        const V t150 = t92 + t112;
        // real block of 13, multiplier 4
        const V t151 = c[6] * t150;
        const V t152 = c[7] * t150;
        // complex block of 2
        const V t153 = t96 - t108;
        // real block of 13, multiplier 4
        const V t154 = c[7] * t153;
        const V t155 = c[6] * t153;
        const V t156 = t154 - t151;
        const V t157 = t145 + t148;
        // complex block of 2
        const V t158 = t157 - t156;
        // real block of 13, multiplier 4
        const V t159 = t155 + t152;
        const V t160 = t149 - t146;
        // complex block of 2
        const V t161 = t159 + t160;
        // real block of 3
        const V x6r = io.re(6);
        const V x4r = io.re(4);
        const V t162 = x6r + x4r;
        const V t163 = x6r - x4r;
        const V t164 = c[0] * t162;
        // real block of 3
        const V x9r = io.re(9);
        const V x40r = io.re(40);
        const V t165 = x9r + x40r;
        const V t166 = x9r - x40r;
        const V t167 = c[0] * t165;
        // real block of 3
        const V x11r = io.re(11);
        const V t168 = t162 + x11r;
        // real block of 3
        const V x29r = io.re(29);
        const V t169 = t165 + x29r;
        // real block of 2
        const V t170 = t168 + t169;
        // real block of 3
        const V t171 = x11r - t164;
        // real block of 3
        const V t172 = x29r - t167;
        // complex block of 2
        const V t173 = t171 - t172;
        // real block of 3
        const V t174 = c[1] * t163;
        // real block of 3
        const V t175 = c[1] * t166;
        // complex block of 2
        const V t176 = t174 + t175;
        const V t177 = t175 - t174;
        // real block of 3
        const V x7r = io.re(7);
        const V x25r = io.re(25);
        const V t178 = x7r + x25r;
        const V t179 = x7r - x25r;
        const V t180 = c[0] * t178;
        // real block of 3
        const V x38r = io.re(38);
        const V x17r = io.re(17);
        const V t181 = x38r + x17r;
        const V t182 = x38r - x17r;
        const V t183 = c[0] * t181;
        const V x37r = io.re(37);
        const V t184 = t181 + x37r;
        // real block of 3
        const V x43r = io.re(43);
        const V t185 = t178 + x43r;
        // real block of 2
        const V t186 = t184 + t185;
        // real block of 3
        const V t187 = x37r - t183;
        // real block of 3
        const V t188 = x43r - t180;
        // complex block of 2
        const V t189 = t187 - t188;
        // real block of 3
        const V t190 = c[1] * t182;
        // real block of 3
        const V t191 = c[1] * t179;
        // complex block of 2
        const V t192 = t190 + t191;
        const V t193 = t191 - t190;
        // real block of 2
        const V t194 = t184 - t185;
        // real block of 13, multiplier 4
        const V t195 = c[2] * t194;
        const V t196 = c[3] * t194;
        // real block of 2
        const V t197 = t168 - t169;
        // real block of 13, multiplier 4
        const V t198 = c[3] * t197;
        const V t199 = c[2] * t197;
        const V t200 = t195 + t198;
        const V t201 = t196 - t199;
        // real block of 2
        const V t202 = t186 + t170;
        // real block of 13, multiplier 4
        const V t203 = c[12] * t202;
        const V x52r = io.re(52);
        const V t204 = x52r - t203;
        // real block of 2
        const V t205 = t186 - t170;
        // real block of 13, multiplier 4
        const V t206 = c[13] * t205;
        // complex block of 2
        const V t207 = t187 + t188;
        // complex block of 2
        const V t208 = t171 + t172;
        // complex block of 2
        const V t209 = t207 + t208;
        const V t210 = t207 - t208;
        const V t211 = t192 + t176;
        // real block of 13, multiplier 4
        const V t212 = c[8] * t211;
        const V t213 = c[9] * t211;
        // complex block of 2
        const V t214 = t176 - t192;
        // real block of 13, multiplier 4
        const V t215 = c[10] * t214;
        const V t216 = c[11] * t214;
        const V t217 = c[11] * t210;
        const V t218 = t217 - t215;
        const V t219 = c[10] * t210;
        const V t220 = t216 + t219;
        const V t221 = c[9] * t209;
        const V t222 = t221 + t212;
        const V t223 = c[8] * t209;
        const V t224 = t213 - t223;
        // complex block of 2
        const V t225 = t189 - t177;
        // real block of 13, multiplier 4
        const V t226 = c[4] * t225;
        const V t227 = c[5] * t225;
        // complex block of 2
        const V t228 = t193 + t173;
        // real block of 13, multiplier 4
        const V t229 = c[5] * t228;
        const V t230 = c[4] * t228;
        // complex block of 2
        const V t231 = t189 + t177;
        // real block of 13, multiplier 4
        const V t232 = c[6] * t231;
        const V t233 = c[7] * t231;
        // complex block of 2
        const V t234 = t193 - t173;
        // real block of 13, multiplier 4
        const V t235 = c[7] * t234;
        const V t236 = c[6] * t234;
        const V t237 = t235 - t232;
        const V t238 = t226 + t229;
        // complex block of 2
        const V t239 = t238 - t237;
        // real block of 13, multiplier 4
        const V t240 = t236 + t233;
        const V t241 = t230 - t227;
        // complex block of 2
        const V t242 = t240 + t241;
        // real block of 3
        const V x5r = io.re(5);
        const V x34r = io.re(34);
        const V t243 = x5r + x34r;
        const V t244 = x5r - x34r;
        const V t245 = c[0] * t243;
        // real block of 3
        const V x21r = io.re(21);
        const V x14r = io.re(14);
        const V t246 = x21r + x14r;
        const V t247 = x21r - x14r;
        const V t248 = c[0] * t246;
        const V x12r = io.re(12);
        const V t249 = t246 + x12r;
        // real block of 3
        const V x22r = io.re(22);
        const V t250 = t243 + x22r;
        // real block of 2
        const V t251 = t249 + t250;
        // real block of 3
        const V t252 = x12r - t248;
        // real block of 3
        const V t253 = x22r - t245;
        // complex block of 2
        const V t254 = t252 - t253;
        // real block of 3
        const V t255 = c[1] * t247;
        // real block of 3
        const V t256 = c[1] * t244;
        // complex block of 2
        const V t257 = t255 + t256;
        const V t258 = t256 - t255;
        // real block of 3
        const V x51r = io.re(51);
        const V x8r = io.re(8);
        const V t259 = x51r + x8r;
        const V t260 = x51r - x8r;
        const V t261 = c[0] * t259;
        // real block of 3
        const V x27r = io.re(27);
        const V x33r = io.re(33);
        const V t262 = x27r + x33r;
        const V t263 = x27r - x33r;
        const V t264 = c[0] * t262;
        const V x50r = io.re(50);
        const V t265 = t262 + x50r;
        // real block of 3
        const V x18r = io.re(18);
        const V t266 = t259 + x18r;
        // real block of 2
        const V t267 = t265 + t266;
        // real block of 3
        const V t268 = x50r - t264;
        // real block of 3
        const V t269 = x18r - t261;
        // complex block of 2
        const V t270 = t268 - t269;
        // real block of 3
        const V t271 = c[1] * t263;
        // real block of 3
        const V t272 = c[1] * t260;
        // complex block of 2
        const V t273 = t271 + t272;
        const V t274 = t272 - t271;
        // real block of 2
        const V t275 = t265 - t266;
        // real block of 13, multiplier 4
        const V t276 = c[2] * t275;
        const V t277 = c[3] * t275;
        // real block of 2
        const V t278 = t249 - t250;
        // real block of 13, multiplier 4
        const V t279 = c[3] * t278;
        const V t280 = c[2] * t278;
        const V t281 = t276 + t279;
        const V t282 = t277 - t280;
        // real block of 2
        const V t283 = t267 + t251;
        // real block of 13, multiplier 4
        const V t284 = c[12] * t283;
        const V x23r = io.re(23);
        const V t285 = x23r - t284;
        // real block of 2
        const V t286 = t267 - t251;
        // real block of 13, multiplier 4
        const V t287 = c[13] * t286;
        // complex block of 2
        const V t288 = t268 + t269;
        // complex block of 2
        const V t289 = t252 + t253;
        // complex block of 2
        const V t290 = t288 + t289;
        const V t291 = t288 - t289;
        const V t292 = t273 + t257;
        // real block of 13, multiplier 4
        const V t293 = c[8] * t292;
        const V t294 = c[9] * t292;
        // complex block of 2
        const V t295 = t257 - t273;
        // real block of 13, multiplier 4
        const V t296 = c[10] * t295;
        const V t297 = c[11] * t295;
        const V t298 = c[11] * t291;
        const V t299 = t298 - t296;
        const V t300 = c[10] * t291;
        const V t301 = t297 + t300;
        const V t302 = c[9] * t290;
        const V t303 = t302 + t293;
        const V t304 = c[8] * t290;
        const V t305 = t294 - t304;
        // complex block of 2
        const V t306 = t270 - t258;
        // real block of 13, multiplier 4
        const V t307 = c[4] * t306;
        const V t308 = c[5] * t306;
        // complex block of 2
        const V t309 = t274 + t254;
        // real block of 13, multiplier 4
        const V t310 = c[5] * t309;
        const V t311 = c[4] * t309;
        // complex block of 2
        const V t312 = t270 + t258;
        // real block of 13, multiplier 4
        const V t313 = c[6] * t312;
        const V t314 = c[7] * t312;
        // complex block of 2
        const V t315 = t274 - t254;
        // real block of 13, multiplier 4
        const V t316 = c[7] * t315;
        const V t317 = c[6] * t315;
        const V t318 = t316 - t313;
        const V t319 = t307 + t310;
        // complex block of 2
        const V t320 = t319 - t318;
        // real block of 13, multiplier 4
        const V t321 = t317 + t314;
        const V t322 = t311 - t308;
        // complex block of 2
        const V t323 = t321 + t322;
        // real block of 13, multiplier 4
        const V t324 = x1r + t40;
        // real block of 13, multiplier 4
        const V t325 = x52r + t202;
        // real block of 2
        const V t326 = t324 + t325;
        const V t327 = t324 - t325;
        // real block of 13, multiplier 4
        const V t328 = x30r + t121;
        // real block of 13, multiplier 4
        const V t329 = x23r + t283;
        // real block of 2
        const V t330 = t328 + t329;
        const V t331 = t328 - t329;
        // real block of 2
        const V t332 = t326 + t330;
        // complex block of 53
        const V t333 = c[70] * t332;
        // real block of 2
        const V t334 = t326 - t330;
        // complex block of 53
        const V t335 = c[20] * t331;
        const V t336 = c[21] * t327;
        const V t337 = c[20] * t327;
        const V t338 = c[21] * t331;
        // spectrum block of 2
        const V t339 = t42 + t44;
        // complex block of 2
        const V t340 = t56 - t60;
        // spectrum block of 3, multiplier 2
        const V t341 = t340 + t339;
        const V t342 = c[0] * t340;
        // complex block of 2
        const V t343 = t62 + t58;
        // spectrum block of 3, multiplier 2
        const V t344 = c[1] * t343;
        // spectrum block of 2
        const V t345 = t204 + t206;
        // complex block of 2
        const V t346 = t218 - t222;
        // spectrum block of 3, multiplier 2
        const V t347 = t346 + t345;
        const V t348 = c[0] * t346;
        // complex block of 2
        const V t349 = t224 + t220;
        // spectrum block of 3, multiplier 2
        const V t350 = c[1] * t349;
        // spectrum block of 3, multiplier 2
        const V t351 = t339 - t342;
        const V t352 = t351 - t344;
        const V t353 = t351 + t344;
        // spectrum block of 3, multiplier 2
        const V t354 = t345 - t348;
        const V t355 = t354 - t350;
        const V t356 = t354 + t350;
        // complex block of 2
        const V t357 = t341 + t347;
        const V t358 = t341 - t347;
        // complex block of 2
        const V t359 = t75 + t76;
        // spectrum block of 3, multiplier 2
        const V t360 = c[1] * t359;
        // complex block of 2
        const V t361 = t79 - t78;
        // spectrum block of 3, multiplier 2
        const V t362 = t361 + t39;
        const V t363 = c[0] * t361;
        // complex block of 2
        const V t364 = t237 + t238;
        // spectrum block of 3, multiplier 2
        const V t365 = c[1] * t364;
        // complex block of 2
        const V t366 = t241 - t240;
        // spectrum block of 3, multiplier 2
        const V t367 = t366 + t201;
        const V t368 = c[0] * t366;
        // spectrum block of 3, multiplier 2
        const V t369 = t39 - t363;
        const V t370 = t369 - t360;
        const V t371 = t369 + t360;
        // spectrum block of 3, multiplier 2
        const V t372 = t201 - t368;
        const V t373 = t372 - t365;
        const V t374 = t372 + t365;
        // complex block of 2
        const V t375 = t362 + t367;
        const V t376 = t362 - t367;
        // spectrum block of 2
        const V t377 = t123 + t125;
        // complex block of 2
        const V t378 = t137 - t141;
        // spectrum block of 3, multiplier 2
        const V t379 = t378 + t377;
        const V t380 = c[0] * t378;
        // complex block of 2
        const V t381 = t143 + t139;
        // spectrum block of 3, multiplier 2
        const V t382 = c[1] * t381;
        // spectrum block of 2
        const V t383 = t285 + t287;
        // complex block of 2
        const V t384 = t299 - t303;
        // spectrum block of 3, multiplier 2
        const V t385 = t384 + t383;
        const V t386 = c[0] * t384;
        // complex block of 2
        const V t387 = t305 + t301;
        // spectrum block of 3, multiplier 2
        const V t388 = c[1] * t387;
        // spectrum block of 3, multiplier 2
        const V t389 = t377 - t380;
        const V t390 = t389 - t382;
        const V t391 = t389 + t382;
        // spectrum block of 3, multiplier 2
        const V t392 = t383 - t386;
        const V t393 = t392 - t388;
        const V t394 = t392 + t388;
        // complex block of 2
        const V t395 = t379 + t385;
        const V t396 = t379 - t385;
        // complex block of 2
        const V t397 = t156 + t157;
        // spectrum block of 3, multiplier 2
        const V t398 = c[1] * t397;
        // complex block of 2
        const V t399 = t160 - t159;
        // spectrum block of 3, multiplier 2
        const V t400 = t399 + t120;
        const V t401 = c[0] * t399;
        // complex block of 2
        const V t402 = t318 + t319;
        // spectrum block of 3, multiplier 2
        const V t403 = c[1] * t402;
        // complex block of 2
        const V t404 = t322 - t321;
        // spectrum block of 3, multiplier 2
        const V t405 = t404 + t282;
        const V t406 = c[0] * t404;
        // spectrum block of 3, multiplier 2
        const V t407 = t120 - t401;
        const V t408 = t407 - t398;
        const V t409 = t407 + t398;
        // spectrum block of 3, multiplier 2
        const V t410 = t282 - t406;
        const V t411 = t410 - t403;
        const V t412 = t410 + t403;
        // complex block of 2
        const V t413 = t400 + t405;
        const V t414 = t400 - t405;
        // complex block of 2
        const V t415 = t357 + t395;
        // complex block of 53
        const V t416 = c[22] * t415;
        const V t417 = c[23] * t415;
        // complex block of 2
        const V t418 = t375 + t413;
        // complex block of 53
        const V t419 = c[23] * t418;
        const V t420 = c[22] * t418;
        // complex block of 2
        const V t421 = t357 - t395;
        // complex block of 53
        const V t422 = c[24] * t421;
        const V t423 = c[25] * t421;
        // complex block of 2
        const V t424 = t375 - t413;
        // complex block of 53
        const V t425 = c[25] * t424;
        const V t426 = c[24] * t424;
        // complex block of 2
        const V t427 = t358 + t414;
        // complex block of 53
        const V t428 = c[26] * t427;
        const V t429 = c[27] * t427;
        // complex block of 2
        const V t430 = t376 - t396;
        // complex block of 53
        const V t431 = c[27] * t430;
        const V t432 = c[26] * t430;
        // complex block of 2
        const V t433 = t358 - t414;
        // complex block of 53
        const V t434 = c[28] * t433;
        const V t435 = c[29] * t433;
        // complex block of 2
        const V t436 = t376 + t396;
        // complex block of 53
        const V t437 = c[29] * t436;
        const V t438 = c[28] * t436;
        // complex block of 2
        const V t439 = t353 + t356;
        // complex block of 2
        const V t440 = t391 + t394;
        // complex block of 2
        const V t441 = t439 + t440;
        const V t442 = t439 - t440;
        // complex block of 2
        const V t443 = t370 + t373;
        // complex block of 2
        const V t444 = t408 + t411;
        // complex block of 2
        const V t445 = t443 + t444;
        const V t446 = t443 - t444;
        // complex block of 53
        const V t447 = c[30] * t445;
        const V t448 = c[31] * t441;
        const V t449 = c[30] * t441;
        const V t450 = c[31] * t445;
        const V t451 = t450 + t449;
        const V t452 = c[32] * t446;
        const V t453 = c[33] * t442;
        const V t454 = c[32] * t442;
        const V t455 = c[33] * t446;
        const V t456 = t455 + t454;
        // complex block of 2
        const V t457 = t353 - t356;
        // complex block of 2
        const V t458 = t408 - t411;
        // complex block of 2
        const V t459 = t457 + t458;
        const V t460 = t457 - t458;
        // complex block of 53
        const V t461 = c[34] * t460;
        const V t462 = c[35] * t460;
        const V t463 = c[36] * t459;
        const V t464 = c[37] * t459;
        // complex block of 2
        const V t465 = t370 - t373;
        // complex block of 2
        const V t466 = t391 - t394;
        // complex block of 2
        const V t467 = t465 - t466;
        const V t468 = t465 + t466;
        // complex block of 53
        const V t469 = c[35] * t468;
        const V t470 = c[34] * t468;
        const V t471 = c[37] * t467;
        const V t472 = c[36] * t467;
        // complex block of 2
        const V t473 = t352 + t355;
        // complex block of 2
        const V t474 = t390 + t393;
        // complex block of 2
        const V t475 = t473 + t474;
        const V t476 = t473 - t474;
        // complex block of 2
        const V t477 = t371 + t374;
        // complex block of 2
        const V t478 = t409 + t412;
        // complex block of 2
        const V t479 = t477 + t478;
        const V t480 = t478 - t477;
        // complex block of 53
        const V t481 = c[38] * t480;
        const V t482 = c[39] * t476;
        const V t483 = c[38] * t476;
        const V t484 = c[39] * t480;
        const V t485 = t484 + t483;
        const V t486 = c[40] * t479;
        const V t487 = c[41] * t475;
        const V t488 = c[40] * t475;
        const V t489 = c[41] * t479;
        const V t490 = t489 + t488;
        // complex block of 2
        const V t491 = t352 - t355;
        // complex block of 2
        const V t492 = t412 - t409;
        // complex block of 2
        const V t493 = t491 + t492;
        const V t494 = t491 - t492;
        // complex block of 53
        const V t495 = c[42] * t494;
        const V t496 = c[43] * t494;
        const V t497 = c[44] * t493;
        const V t498 = c[45] * t493;
        // complex block of 2
        const V t499 = t374 - t371;
        // complex block of 2
        const V t500 = t390 - t393;
        // complex block of 2
        const V t501 = t499 - t500;
        const V t502 = t499 + t500;
        // complex block of 53
        const V t503 = c[43] * t502;
        const V t504 = c[42] * t502;
        const V t505 = c[45] * t501;
        const V t506 = c[44] * t501;
        // spectrum block of 2
        const V t507 = t42 - t44;
        // complex block of 2
        const V t508 = t60 + t56;
        // spectrum block of 3, multiplier 2
        const V t509 = t507 - t508;
        const V t510 = c[0] * t508;
        // complex block of 2
        const V t511 = t62 - t58;
        // spectrum block of 3, multiplier 2
        const V t512 = c[1] * t511;
        // spectrum block of 2
        const V t513 = t204 - t206;
        // complex block of 2
        const V t514 = t222 + t218;
        // spectrum block of 3, multiplier 2
        const V t515 = t513 - t514;
        const V t516 = c[0] * t514;
        // complex block of 2
        const V t517 = t224 - t220;
        // spectrum block of 3, multiplier 2
        const V t518 = c[1] * t517;
        // spectrum block of 3, multiplier 2
        const V t519 = t510 + t507;
        const V t520 = t519 - t512;
        const V t521 = t519 + t512;
        // spectrum block of 3, multiplier 2
        const V t522 = t516 + t513;
        const V t523 = t522 - t518;
        const V t524 = t522 + t518;
        // complex block of 2
        const V t525 = t509 + t515;
        // mirrored skew block of 6
        const V t526 = c[0] * t77;
        const V t527 = c[1] * t80;
        const V t528 = t527 + t526;
        // mirrored skew block of 6
        const V t529 = c[0] * t239;
        const V t530 = c[1] * t242;
        const V t531 = t530 + t529;
        // spectrum block of 3, multiplier 2
        const V t532 = t528 + t38;
        // spectrum block of 3, multiplier 2
        const V t533 = t531 + t200;
        // complex block of 2
        const V t534 = t532 + t533;
        // spectrum block of 3, multiplier 2
        const V t535 = c[0] * t528;
        const V t536 = t535 - t38;
        // spectrum block of 3, multiplier 2
        const V t537 = c[0] * t531;
        const V t538 = t537 - t200;
        // spectrum block of 3, multiplier 2
        const V t539 = c[14] * t77;
        const V t540 = c[15] * t80;
        const V t541 = t539 - t540;
        // spectrum block of 2
        const V t542 = t123 - t125;
        // complex block of 2
        const V t543 = t141 + t137;
        // spectrum block of 3, multiplier 2
        const V t544 = t542 - t543;
        const V t545 = c[0] * t543;
        // complex block of 2
        const V t546 = t143 - t139;
        // spectrum block of 3, multiplier 2
        const V t547 = c[1] * t546;
        // spectrum block of 2
        const V t548 = t285 - t287;
        // complex block of 2
        const V t549 = t303 + t299;
        // spectrum block of 3, multiplier 2
        const V t550 = t548 - t549;
        const V t551 = c[0] * t549;
        // complex block of 2
        const V t552 = t305 - t301;
        // spectrum block of 3, multiplier 2
        const V t553 = c[1] * t552;
        // spectrum block of 3, multiplier 2
        const V t554 = t545 + t542;
        const V t555 = t554 - t547;
        const V t556 = t554 + t547;
        // spectrum block of 3, multiplier 2
        const V t557 = t551 + t548;
        const V t558 = t557 - t553;
        const V t559 = t557 + t553;
        // complex block of 2
        const V t560 = t544 + t550;
        // mirrored skew block of 6
        const V t561 = c[0] * t158;
        const V t562 = c[1] * t161;
        const V t563 = t562 + t561;
        // mirrored skew block of 6
        const V t564 = c[0] * t320;
        const V t565 = c[1] * t323;
        const V t566 = t565 + t564;
        // spectrum block of 3, multiplier 2
        const V t567 = t563 + t119;
        // spectrum block of 3, multiplier 2
        const V t568 = t566 + t281;
        // complex block of 2
        const V t569 = t567 + t568;
        // spectrum block of 3, multiplier 2
        const V t570 = c[0] * t563;
        const V t571 = t570 - t119;
        // spectrum block of 3, multiplier 2
        const V t572 = c[0] * t566;
        const V t573 = t572 - t281;
        // spectrum block of 3, multiplier 2
        const V t574 = c[14] * t158;
        const V t575 = c[15] * t161;
        const V t576 = t574 - t575;
        // spectrum block of 3, multiplier 2
        const V t577 = c[14] * t239;
        const V t578 = c[15] * t242;
        const V t579 = t577 - t578;
        // spectrum block of 3, multiplier 2
        const V t580 = c[14] * t320;
        const V t581 = c[15] * t323;
        const V t582 = t580 - t581;
        // spectrum block of 3, multiplier 2
        const V t583 = t536 + t541;
        // spectrum block of 3, multiplier 2
        const V t584 = t538 + t579;
        // complex block of 2
        const V t585 = t583 + t584;
        const V t586 = t584 - t583;
        // spectrum block of 3, multiplier 2
        const V t587 = t536 - t541;
        // spectrum block of 3, multiplier 2
        const V t588 = t538 - t579;
        // complex block of 2
        const V t589 = t587 + t588;
        const V t590 = t588 - t587;
        // spectrum block of 3, multiplier 2
        const V t591 = t571 - t576;
        // spectrum block of 3, multiplier 2
        const V t592 = t573 - t582;
        // complex block of 2
        const V t593 = t591 + t592;
        const V t594 = t592 - t591;
        // complex block of 2
        const V t595 = t521 - t524;
        // complex block of 2
        const V t596 = t556 - t559;
        // complex block of 2
        const V t597 = t589 + t593;
        // complex block of 53
        const V t598 = c[46] * t597;
        // complex block of 2
        const V t599 = t593 - t589;
        // complex block of 53
        const V t600 = c[47] * t599;
        // complex block of 2
        const V t601 = t595 + t594;
        const V t602 = t590 - t596;
        const V t603 = t595 - t594;
        const V t604 = t590 + t596;
        // spectrum block of 3, multiplier 2
        const V t605 = t571 + t576;
        // spectrum block of 3, multiplier 2
        const V t606 = t573 + t582;
        // complex block of 2
        const V t607 = t605 + t606;
        const V t608 = t606 - t605;
        // complex block of 2
        const V t609 = t521 + t524;
        // complex block of 2
        const V t610 = t556 + t559;
        // complex block of 2
        const V t611 = t609 + t610;
        const V t612 = t609 - t610;
        // complex block of 53
        const V t613 = c[46] * t611;
        const V t614 = c[48] * t611;
        const V t615 = c[47] * t612;
        const V t616 = c[49] * t612;
        // complex block of 2
        const V t617 = t509 - t515;
        // complex block of 2
        const V t618 = t544 - t550;
        // complex block of 2
        const V t619 = t525 + t560;
        // complex block of 53
        const V t620 = c[50] * t619;
        const V t621 = c[51] * t619;
        // complex block of 2
        const V t622 = t525 - t560;
        // complex block of 53
        const V t623 = c[52] * t622;
        const V t624 = c[53] * t622;
        // complex block of 2
        const V t625 = t520 + t523;
        // complex block of 2
        const V t626 = t555 + t558;
        // complex block of 2
        const V t627 = t625 + t626;
        const V t628 = t625 - t626;
        const V t629 = t534 + t569;
        // complex block of 53
        const V t630 = c[54] * t629;
        // complex block of 2
        const V t631 = t534 - t569;
        // complex block of 53
        const V t632 = c[55] * t631;
        const V t633 = c[56] * t631;
        const V t634 = c[55] * t628;
        const V t635 = c[56] * t628;
        const V t636 = t632 + t635;
        const V t637 = c[57] * t629;
        const V t638 = c[54] * t627;
        const V t639 = c[57] * t627;
        const V t640 = t630 - t639;
        // complex block of 2
        const V t641 = t520 - t523;
        // complex block of 2
        const V t642 = t567 - t568;
        // complex block of 2
        const V t643 = t641 + t642;
        const V t644 = t641 - t642;
        // complex block of 53
        const V t645 = c[58] * t644;
        const V t646 = c[59] * t644;
        const V t647 = c[60] * t643;
        const V t648 = c[61] * t643;
        // complex block of 2
        const V t649 = t532 - t533;
        // complex block of 2
        const V t650 = t555 - t558;
        // complex block of 2
        const V t651 = t649 - t650;
        const V t652 = t649 + t650;
        // complex block of 53
        const V t653 = c[59] * t652;
        const V t654 = c[58] * t652;
        const V t655 = c[61] * t651;
        const V t656 = c[60] * t651;
        // real block of 3
        const V x15i = io.im(15);
        const V x36i = io.im(36);
        const V t657 = x15i + x36i;
        const V t658 = x15i - x36i;
        const V t659 = c[0] * t657;
        // real block of 3
        const V x46i = io.im(46);
        const V x28i = io.im(28);
        const V t660 = x46i + x28i;
        const V t661 = x46i - x28i;
        const V t662 = c[0] * t660;
        // real block of 3
        const V x16i = io.im(16);
        const V t663 = t657 + x16i;
        // real block of 3
        const V x10i = io.im(10);
        const V t664 = t660 + x10i;
        // real block of 2
        const V t665 = t663 + t664;
        // real block of 3
        const V t666 = x16i - t659;
        // real block of 3
        const V t667 = x10i - t662;
        // complex block of 2
        const V t668 = t666 - t667;
        // real block of 3
        const V t669 = c[1] * t658;
        // real block of 3
        const V t670 = c[1] * t661;
        // complex block of 2
        const V t671 = t669 + t670;
        const V t672 = t670 - t669;
        // real block of 3
        const V x44i = io.im(44);
        const V x13i = io.im(13);
        const V t673 = x44i + x13i;
        const V t674 = x44i - x13i;
        const V t675 = c[0] * t673;
        // real block of 3
        const V x47i = io.im(47);
        const V x49i = io.im(49);
        const V t676 = x47i + x49i;
        const V t677 = x47i - x49i;
        const V t678 = c[0] * t676;
        const V x42i = io.im(42);
        const V t679 = t676 + x42i;
        // real block of 3
        const V x24i = io.im(24);
        const V t680 = t673 + x24i;
        // real block of 2
        const V t681 = t679 + t680;
        // real block of 3
        const V t682 = x42i - t678;
        // real block of 3
        const V t683 = x24i - t675;
        // complex block of 2
        const V t684 = t682 - t683;
        // real block of 3
        const V t685 = c[1] * t677;
        // real block of 3
        const V t686 = c[1] * t674;
        // complex block of 2
        const V t687 = t685 + t686;
        const V t688 = t686 - t685;
        // real block of 2
        const V t689 = t663 - t664;
        // real block of 13, multiplier 4
        const V t690 = c[2] * t689;
        const V t691 = c[3] * t689;
        // real block of 2
        const V t692 = t679 - t680;
        // real block of 13, multiplier 4
        const V t693 = c[3] * t692;
        const V t694 = c[2] * t692;
        const V t695 = t690 + t693;
        const V t696 = t691 - t694;
        // real block of 2
        const V t697 = t665 + t681;
        // real block of 13, multiplier 4
        const V t698 = c[12] * t697;
        const V x1i = io.im(1);
        const V t699 = x1i - t698;
        // real block of 2
        const V t700 = t665 - t681;
        // real block of 13, multiplier 4
        const V t701 = c[13] * t700;
        // complex block of 2
        const V t702 = t666 + t667;
        // complex block of 2
        const V t703 = t682 + t683;
        // complex block of 2
        const V t704 = t702 + t703;
        const V t705 = t702 - t703;
        const V t706 = t671 + t687;
        // real block of 13, multiplier 4
        const V t707 = c[8] * t706;
        const V t708 = c[9] * t706;
        // complex block of 2
        const V t709 = t687 - t671;
        // real block of 13, multiplier 4
        const V t710 = c[10] * t709;
        const V t711 = c[11] * t709;
        const V t712 = c[11] * t705;
        const V t713 = t712 - t710;
        const V t714 = c[10] * t705;
        const V t715 = t711 + t714;
        const V t716 = c[9] * t704;
        const V t717 = t716 + t707;
        const V t718 = c[8] * t704;
        const V t719 = t708 - t718;
        // complex block of 2
        const V t720 = t668 - t688;
        // real block of 13, multiplier 4
        const V t721 = c[4] * t720;
        const V t722 = c[5] * t720;
        // complex block of 2
        const V t723 = t672 + t684;
        // real block of 13, multiplier 4
        const V t724 = c[5] * t723;
        const V t725 = c[4] * t723;
        // complex block of 2
        const V t726 = t668 + t688;
        // real block of 13, multiplier 4
        const V t727 = c[6] * t726;
        const V t728 = c[7] * t726;
        // complex block of 2
        const V t729 = t672 - t684;
        // real block of 13, multiplier 4
        const V t730 = c[7] * t729;
        const V t731 = c[6] * t729;
        const V t732 = t730 - t727;
        const V t733 = t721 + t724;
        // complex block of 2
        const V t734 = t733 - t732;
        // real block of 13, multiplier 4
        const V t735 = t731 + t728;
        const V t736 = t725 - t722;
        // complex block of 2
        const V t737 = t735 + t736;
        // real block of 3
        const V x2i = io.im(2);
        const V x45i = io.im(45);
        const V t738 = x2i + x45i;
        const V t739 = x2i - x45i;
        const V t740 = c[0] * t738;
        // real block of 3
        const V x26i = io.im(26);
        const V x20i = io.im(20);
        const V t741 = x26i + x20i;
        const V t742 = x26i - x20i;
        const V t743 = c[0] * t741;
        const V x3i = io.im(3);
        const V t744 = t741 + x3i;
        // real block of 3
        const V x35i = io.im(35);
        const V t745 = t738 + x35i;
        // real block of 2
        const V t746 = t744 + t745;
        // real block of 3
        const V t747 = x3i - t743;
        // real block of 3
        const V t748 = x35i - t740;
        // complex block of 2
        const V t749 = t747 - t748;
        // real block of 3
        const V t750 = c[1] * t742;
        // real block of 3
        const V t751 = c[1] * t739;
        // complex block of 2
        const V t752 = t750 + t751;
        const V t753 = t751 - t750;
        // real block of 3
        const V x48i = io.im(48);
        const V x19i = io.im(19);
        const V t754 = x48i + x19i;
        const V t755 = x48i - x19i;
        const V t756 = c[0] * t754;
        // real block of 3
        const V x32i = io.im(32);
        const V x39i = io.im(39);
        const V t757 = x32i + x39i;
        const V t758 = x32i - x39i;
        const V t759 = c[0] * t757;
        const V x41i = io.im(41);
        const V t760 = t757 + x41i;
        // real block of 3
        const V x31i = io.im(31);
        const V t761 = t754 + x31i;
        // real block of 2
        const V t762 = t760 + t761;
        // real block of 3
        const V t763 = x41i - t759;
        // real block of 3
        const V t764 = x31i - t756;
        // complex block of 2
        const V t765 = t763 - t764;
        // real block of 3
        const V t766 = c[1] * t758;
        // real block of 3
        const V t767 = c[1] * t755;
        // complex block of 2
        const V t768 = t766 + t767;
        const V t769 = t767 - t766;
        // real block of 2
        const V t770 = t744 - t745;
        // real block of 13, multiplier 4
        const V t771 = c[2] * t770;
        const V t772 = c[3] * t770;
        // real block of 2
        const V t773 = t760 - t761;
        // real block of 13, multiplier 4
        const V t774 = c[3] * t773;
        const V t775 = c[2] * t773;
        const V t776 = t771 + t774;
        const V t777 = t772 - t775;
        // real block of 2
        const V t778 = t746 + t762;
        // real block of 13, multiplier 4
        const V t779 = c[12] * t778;
        const V x30i = io.im(30);
        const V t780 = x30i - t779;
        // real block of 2
        const V t781 = t746 - t762;
        // real block of 13, multiplier 4
        const V t782 = c[13] * t781;
        // complex block of 2
        const V t783 = t747 + t748;
        // complex block of 2
        const V t784 = t763 + t764;
        // complex block of 2
        const V t785 = t783 + t784;
        const V t786 = t783 - t784;
        const V t787 = t752 + t768;
        // real block of 13, multiplier 4
        const V t788 = c[8] * t787;
        const V t789 = c[9] * t787;
        // complex block of 2
        const V t790 = t768 - t752;
        // real block of 13, multiplier 4
        const V t791 = c[10] * t790;
        const V t792 = c[11] * t790;
        const V t793 = c[11] * t786;
        const V t794 = t793 - t791;
        const V t795 = c[10] * t786;
        const V t796 = t792 + t795;
        const V t797 = c[9] * t785;
        const V t798 = t797 + t788;
        const V t799 = c[8] * t785;
        const V t800 = t789 - t799;
        // complex block of 2
        const V t801 = t749 - t769;
        // real block of 13, multiplier 4
        const V t802 = c[4] * t801;
        const V t803 = c[5] * t801;
        // complex block of 2
        const V t804 = t753 + t765;
        // real block of 13, multiplier 4
        const V t805 = c[5] * t804;
        const V t806 = c[4] * t804;
        // complex block of 2
        const V t807 = t749 + t769;
        // real block of 13, multiplier 4
        const V t808 = c[6] * t807;
        const V t809 = c[7] * t807;
        // complex block of 2
        const V t810 = t753 - t765;
        // real block of 13, multiplier 4
        const V t811 = c[7] * t810;
        const V t812 = c[6] * t810;
        const V t813 = t811 - t808;
        const V t814 = t802 + t805;
        // complex block of 2
        const V t815 = t814 - t813;
        // real block of 13, multiplier 4
        const V t816 = t812 + t809;
        const V t817 = t806 - t803;
        // complex block of 2
        const V t818 = t816 + t817;
        // real block of 3
        const V x6i = io.im(6);
        const V x4i = io.im(4);
        const V t819 = x6i + x4i;
        const V t820 = x6i - x4i;
        const V t821 = c[0] * t819;
        // real block of 3
        const V x9i = io.im(9);
        const V x40i = io.im(40);
        const V t822 = x9i + x40i;
        const V t823 = x9i - x40i;
        const V t824 = c[0] * t822;
        // real block of 3
        const V x11i = io.im(11);
        const V t825 = t819 + x11i;
        // real block of 3
        const V x29i = io.im(29);
        const V t826 = t822 + x29i;
        // real block of 2
        const V t827 = t825 + t826;
        // real block of 3
        const V t828 = x11i - t821;
        // real block of 3
        const V t829 = x29i - t824;
        // complex block of 2
        const V t830 = t828 - t829;
        // real block of 3
        const V t831 = c[1] * t820;
        // real block of 3
        const V t832 = c[1] * t823;
        // complex block of 2
        const V t833 = t831 + t832;
        const V t834 = t832 - t831;
        // real block of 3
        const V x7i = io.im(7);
        const V x25i = io.im(25);
        const V t835 = x7i + x25i;
        const V t836 = x7i - x25i;
        const V t837 = c[0] * t835;
        // real block of 3
        const V x38i = io.im(38);
        const V x17i = io.im(17);
        const V t838 = x38i + x17i;
        const V t839 = x38i - x17i;
        const V t840 = c[0] * t838;
        const V x37i = io.im(37);
        const V t841 = t838 + x37i;
        // real block of 3
        const V x43i = io.im(43);
        const V t842 = t835 + x43i;
        // real block of 2
        const V t843 = t841 + t842;
        // real block of 3
        const V t844 = x37i - t840;
        // real block of 3
        const V t845 = x43i - t837;
        // complex block of 2
        const V t846 = t844 - t845;
        // real block of 3
        const V t847 = c[1] * t839;
        // real block of 3
        const V t848 = c[1] * t836;
        // complex block of 2
        const V t849 = t847 + t848;
        const V t850 = t848 - t847;
        // real block of 2
        const V t851 = t841 - t842;
        // real block of 13, multiplier 4
        const V t852 = c[2] * t851;
        const V t853 = c[3] * t851;
        // real block of 2
        const V t854 = t825 - t826;
        // real block of 13, multiplier 4
        const V t855 = c[3] * t854;
        const V t856 = c[2] * t854;
        const V t857 = t852 + t855;
        const V t858 = t853 - t856;
        // real block of 2
        const V t859 = t843 + t827;
        // real block of 13, multiplier 4
        const V t860 = c[12] * t859;
        const V x52i = io.im(52);
        const V t861 = x52i - t860;
        // real block of 2
        const V t862 = t843 - t827;
        // real block of 13, multiplier 4
        const V t863 = c[13] * t862;
        // complex block of 2
        const V t864 = t844 + t845;
        // complex block of 2
        const V t865 = t828 + t829;
        // complex block of 2
        const V t866 = t864 + t865;
        const V t867 = t864 - t865;
        const V t868 = t849 + t833;
        // real block of 13, multiplier 4
        const V t869 = c[8] * t868;
        const V t870 = c[9] * t868;
        // complex block of 2
        const V t871 = t833 - t849;
        // real block of 13, multiplier 4
        const V t872 = c[10] * t871;
        const V t873 = c[11] * t871;
        const V t874 = c[11] * t867;
        const V t875 = t874 - t872;
        const V t876 = c[10] * t867;
        const V t877 = t873 + t876;
        const V t878 = c[9] * t866;
        const V t879 = t878 + t869;
        const V t880 = c[8] * t866;
        const V t881 = t870 - t880;
        // complex block of 2
        const V t882 = t846 - t834;
        // real block of 13, multiplier 4
        const V t883 = c[4] * t882;
        const V t884 = c[5] * t882;
        // complex block of 2
        const V t885 = t850 + t830;
        // real block of 13, multiplier 4
        const V t886 = c[5] * t885;
        const V t887 = c[4] * t885;
        // complex block of 2
        const V t888 = t846 + t834;
        // real block of 13, multiplier 4
        const V t889 = c[6] * t888;
        const V t890 = c[7] * t888;
        // complex block of 2
        const V t891 = t850 - t830;
        // real block of 13, multiplier 4
        const V t892 = c[7] * t891;
        const V t893 = c[6] * t891;
        const V t894 = t892 - t889;
        const V t895 = t883 + t886;
        // complex block of 2
        const V t896 = t895 - t894;
        // real block of 13, multiplier 4
        const V t897 = t893 + t890;
        const V t898 = t887 - t884;
        // complex block of 2
        const V t899 = t897 + t898;
        // real block of 3
        const V x5i = io.im(5);
        const V x34i = io.im(34);
        const V t900 = x5i + x34i;
        const V t901 = x5i - x34i;
        const V t902 = c[0] * t900;
        // real block of 3
        const V x21i = io.im(21);
        const V x14i = io.im(14);
        const V t903 = x21i + x14i;
        const V t904 = x21i - x14i;
        const V t905 = c[0] * t903;
        const V x12i = io.im(12);
        const V t906 = t903 + x12i;
        // real block of 3
        const V x22i = io.im(22);
        const V t907 = t900 + x22i;
        // real block of 2
        const V t908 = t906 + t907;
        // real block of 3
        const V t909 = x12i - t905;
        // real block of 3
        const V t910 = x22i - t902;
        // complex block of 2
        const V t911 = t909 - t910;
        // real block of 3
        const V t912 = c[1] * t904;
        // real block of 3
        const V t913 = c[1] * t901;
        // complex block of 2
        const V t914 = t912 + t913;
        const V t915 = t913 - t912;
        // real block of 3
        const V x51i = io.im(51);
        const V x8i = io.im(8);
        const V t916 = x51i + x8i;
        const V t917 = x51i - x8i;
        const V t918 = c[0] * t916;
        // real block of 3
        const V x27i = io.im(27);
        const V x33i = io.im(33);
        const V t919 = x27i + x33i;
        const V t920 = x27i - x33i;
        const V t921 = c[0] * t919;
        const V x50i = io.im(50);
        const V t922 = t919 + x50i;
        // real block of 3
        const V x18i = io.im(18);
        const V t923 = t916 + x18i;
        // real block of 2
        const V t924 = t922 + t923;
        // real block of 3
        const V t925 = x50i - t921;
        // real block of 3
        const V t926 = x18i - t918;
        // complex block of 2
        const V t927 = t925 - t926;
        // real block of 3
        const V t928 = c[1] * t920;
        // real block of 3
        const V t929 = c[1] * t917;
        // complex block of 2
        const V t930 = t928 + t929;
        const V t931 = t929 - t928;
        // real block of 2
        const V t932 = t922 - t923;
        // real block of 13, multiplier 4
        const V t933 = c[2] * t932;
        const V t934 = c[3] * t932;
        // real block of 2
        const V t935 = t906 - t907;
        // real block of 13, multiplier 4
        const V t936 = c[3] * t935;
        const V t937 = c[2] * t935;
        const V t938 = t933 + t936;
        const V t939 = t934 - t937;
        // real block of 2
        const V t940 = t924 + t908;
        // real block of 13, multiplier 4
        const V t941 = c[12] * t940;
        const V x23i = io.im(23);
        const V t942 = x23i - t941;
        // real block of 2
        const V t943 = t924 - t908;
        // real block of 13, multiplier 4
        const V t944 = c[13] * t943;
        // complex block of 2
        const V t945 = t925 + t926;
        // complex block of 2
        const V t946 = t909 + t910;
        // complex block of 2
        const V t947 = t945 + t946;
        const V t948 = t945 - t946;
        const V t949 = t930 + t914;
        // real block of 13, multiplier 4
        const V t950 = c[8] * t949;
        const V t951 = c[9] * t949;
        // complex block of 2
        const V t952 = t914 - t930;
        // real block of 13, multiplier 4
        const V t953 = c[10] * t952;
        const V t954 = c[11] * t952;
        const V t955 = c[11] * t948;
        const V t956 = t955 - t953;
        const V t957 = c[10] * t948;
        const V t958 = t954 + t957;
        const V t959 = c[9] * t947;
        const V t960 = t959 + t950;
        const V t961 = c[8] * t947;
        const V t962 = t951 - t961;
        // complex block of 2
        const V t963 = t927 - t915;
        // real block of 13, multiplier 4
        const V t964 = c[4] * t963;
        const V t965 = c[5] * t963;
        // complex block of 2
        const V t966 = t931 + t911;
        // real block of 13, multiplier 4
        const V t967 = c[5] * t966;
        const V t968 = c[4] * t966;
        // complex block of 2
        const V t969 = t927 + t915;
        // real block of 13, multiplier 4
        const V t970 = c[6] * t969;
        const V t971 = c[7] * t969;
        // complex block of 2
        const V t972 = t931 - t911;
        // real block of 13, multiplier 4
        const V t973 = c[7] * t972;
        const V t974 = c[6] * t972;
        const V t975 = t973 - t970;
        const V t976 = t964 + t967;
        // complex block of 2
        const V t977 = t976 - t975;
        // real block of 13, multiplier 4
        const V t978 = t974 + t971;
        const V t979 = t968 - t965;
        // complex block of 2
        const V t980 = t978 + t979;
        // real block of 13, multiplier 4
        const V t981 = x1i + t697;
        // real block of 13, multiplier 4
        const V t982 = x52i + t859;
        // real block of 2
        const V t983 = t981 + t982;
        const V t984 = t981 - t982;
        // real block of 13, multiplier 4
        const V t985 = x30i + t778;
        // real block of 13, multiplier 4
        const V t986 = x23i + t940;
        // real block of 2
        const V t987 = t985 + t986;
        const V t988 = t985 - t986;
        // real block of 2
        const V t989 = t983 + t987;
        // complex block of 53
        const V t990 = c[70] * t989;
        // real block of 2
        const V t991 = t983 - t987;
        // complex block of 53
        const V t992 = c[20] * t988;
        const V t993 = c[21] * t984;
        const V t994 = c[20] * t984;
        const V t995 = c[21] * t988;
        // spectrum block of 2
        const V t996 = t699 + t701;
        // complex block of 2
        const V t997 = t713 - t717;
        // spectrum block of 3, multiplier 2
        const V t998 = t997 + t996;
        const V t999 = c[0] * t997;
        // complex block of 2
        const V t1000 = t719 + t715;
        // spectrum block of 3, multiplier 2
        const V t1001 = c[1] * t1000;
        // spectrum block of 2
        const V t1002 = t861 + t863;
        // complex block of 2
        const V t1003 = t875 - t879;
        // spectrum block of 3, multiplier 2
        const V t1004 = t1003 + t1002;
        const V t1005 = c[0] * t1003;
        // complex block of 2
        const V t1006 = t881 + t877;
        // spectrum block of 3, multiplier 2
        const V t1007 = c[1] * t1006;
        // spectrum block of 3, multiplier 2
        const V t1008 = t996 - t999;
        const V t1009 = t1008 - t1001;
        const V t1010 = t1008 + t1001;
        // spectrum block of 3, multiplier 2
        const V t1011 = t1002 - t1005;
        const V t1012 = t1011 - t1007;
        const V t1013 = t1011 + t1007;
        // complex block of 2
        const V t1014 = t998 + t1004;
        const V t1015 = t998 - t1004;
        // complex block of 2
        const V t1016 = t732 + t733;
        // spectrum block of 3, multiplier 2
        const V t1017 = c[1] * t1016;
        // complex block of 2
        const V t1018 = t736 - t735;
        // spectrum block of 3, multiplier 2
        const V t1019 = t1018 + t696;
        const V t1020 = c[0] * t1018;
        // complex block of 2
        const V t1021 = t894 + t895;
        // spectrum block of 3, multiplier 2
        const V t1022 = c[1] * t1021;
        // complex block of 2
        const V t1023 = t898 - t897;
        // spectrum block of 3, multiplier 2
        const V t1024 = t1023 + t858;
        const V t1025 = c[0] * t1023;
        // spectrum block of 3, multiplier 2
        const V t1026 = t696 - t1020;
        const V t1027 = t1026 - t1017;
        const V t1028 = t1026 + t1017;
        // spectrum block of 3, multiplier 2
        const V t1029 = t858 - t1025;
        const V t1030 = t1029 - t1022;
        const V t1031 = t1029 + t1022;
        // complex block of 2
        const V t1032 = t1019 + t1024;
        const V t1033 = t1019 - t1024;
        // spectrum block of 2
        const V t1034 = t780 + t782;
        // complex block of 2
        const V t1035 = t794 - t798;
        // spectrum block of 3, multiplier 2
        const V t1036 = t1035 + t1034;
        const V t1037 = c[0] * t1035;
        // complex block of 2
        const V t1038 = t800 + t796;
        // spectrum block of 3, multiplier 2
        const V t1039 = c[1] * t1038;
        // spectrum block of 2
        const V t1040 = t942 + t944;
        // complex block of 2
        const V t1041 = t956 - t960;
        // spectrum block of 3, multiplier 2
        const V t1042 = t1041 + t1040;
        const V t1043 = c[0] * t1041;
        // complex block of 2
        const V t1044 = t962 + t958;
        // spectrum block of 3, multiplier 2
        const V t1045 = c[1] * t1044;
        // spectrum block of 3, multiplier 2
        const V t1046 = t1034 - t1037;
        const V t1047 = t1046 - t1039;
        const V t1048 = t1046 + t1039;
        // spectrum block of 3, multiplier 2
        const V t1049 = t1040 - t1043;
        const V t1050 = t1049 - t1045;
        const V t1051 = t1049 + t1045;
        // complex block of 2
        const V t1052 = t1036 + t1042;
        const V t1053 = t1036 - t1042;
        // complex block of 2
        const V t1054 = t813 + t814;
        // spectrum block of 3, multiplier 2
        const V t1055 = c[1] * t1054;
        // complex block of 2
        const V t1056 = t817 - t816;
        // spectrum block of 3, multiplier 2
        const V t1057 = t1056 + t777;
        const V t1058 = c[0] * t1056;
        // complex block of 2
        const V t1059 = t975 + t976;
        // spectrum block of 3, multiplier 2
        const V t1060 = c[1] * t1059;
        // complex block of 2
        const V t1061 = t979 - t978;
        // spectrum block of 3, multiplier 2
        const V t1062 = t1061 + t939;
        const V t1063 = c[0] * t1061;
        // spectrum block of 3, multiplier 2
        const V t1064 = t777 - t1058;
        const V t1065 = t1064 - t1055;
        const V t1066 = t1064 + t1055;
        // spectrum block of 3, multiplier 2
        const V t1067 = t939 - t1063;
        const V t1068 = t1067 - t1060;
        const V t1069 = t1067 + t1060;
        // complex block of 2
        const V t1070 = t1057 + t1062;
        const V t1071 = t1057 - t1062;
        // complex block of 2
        const V t1072 = t1014 + t1052;
        // complex block of 53
        const V t1073 = c[22] * t1072;
        const V t1074 = c[23] * t1072;
        // complex block of 2
        const V t1075 = t1032 + t1070;
        // complex block of 53
        const V t1076 = c[23] * t1075;
        const V t1077 = c[22] * t1075;
        // complex block of 2
        const V t1078 = t1014 - t1052;
        // complex block of 53
        const V t1079 = c[24] * t1078;
        const V t1080 = c[25] * t1078;
        // complex block of 2
        const V t1081 = t1032 - t1070;
        // complex block of 53
        const V t1082 = c[25] * t1081;
        const V t1083 = c[24] * t1081;
        // complex block of 2
        const V t1084 = t1015 + t1071;
        // complex block of 53
        const V t1085 = c[26] * t1084;
        const V t1086 = c[27] * t1084;
        // complex block of 2
        const V t1087 = t1033 - t1053;
        // complex block of 53
        const V t1088 = c[27] * t1087;
        const V t1089 = c[26] * t1087;
        // complex block of 2
        const V t1090 = t1015 - t1071;
        // complex block of 53
        const V t1091 = c[28] * t1090;
        const V t1092 = c[29] * t1090;
        // complex block of 2
        const V t1093 = t1033 + t1053;
        // complex block of 53
        const V t1094 = c[29] * t1093;
        const V t1095 = c[28] * t1093;
        // complex block of 2
        const V t1096 = t1010 + t1013;
        // complex block of 2
        const V t1097 = t1048 + t1051;
        // complex block of 2
        const V t1098 = t1096 + t1097;
        const V t1099 = t1096 - t1097;
        // complex block of 2
        const V t1100 = t1027 + t1030;
        // complex block of 2
        const V t1101 = t1065 + t1068;
        // complex block of 2
        const V t1102 = t1100 + t1101;
        const V t1103 = t1100 - t1101;
        // complex block of 53
        const V t1104 = c[30] * t1102;
        const V t1105 = c[31] * t1098;
        const V t1106 = c[30] * t1098;
        const V t1107 = c[31] * t1102;
        const V t1108 = t1107 + t1106;
        const V t1109 = c[32] * t1103;
        const V t1110 = c[33] * t1099;
        const V t1111 = c[32] * t1099;
        const V t1112 = c[33] * t1103;
        const V t1113 = t1112 + t1111;
        // complex block of 2
        const V t1114 = t1010 - t1013;
        // complex block of 2
        const V t1115 = t1065 - t1068;
        // complex block of 2
        const V t1116 = t1114 + t1115;
        const V t1117 = t1114 - t1115;
        // complex block of 53
        const V t1118 = c[34] * t1117;
        const V t1119 = c[35] * t1117;
        const V t1120 = c[36] * t1116;
        const V t1121 = c[37] * t1116;
        // complex block of 2
        const V t1122 = t1027 - t1030;
        // complex block of 2
        const V t1123 = t1048 - t1051;
        // complex block of 2
        const V t1124 = t1122 - t1123;
        const V t1125 = t1122 + t1123;
        // complex block of 53
        const V t1126 = c[35] * t1125;
        const V t1127 = c[34] * t1125;
        const V t1128 = c[37] * t1124;
        const V t1129 = c[36] * t1124;
        // complex block of 2
        const V t1130 = t1009 + t1012;
        // complex block of 2
        const V t1131 = t1047 + t1050;
        // complex block of 2
        const V t1132 = t1130 + t1131;
        const V t1133 = t1130 - t1131;
        // complex block of 2
        const V t1134 = t1028 + t1031;
        // complex block of 2
        const V t1135 = t1066 + t1069;
        // complex block of 2
        const V t1136 = t1134 + t1135;
        const V t1137 = t1135 - t1134;
        // complex block of 53
        const V t1138 = c[38] * t1137;
        const V t1139 = c[39] * t1133;
        const V t1140 = c[38] * t1133;
        const V t1141 = c[39] * t1137;
        const V t1142 = t1141 + t1140;
        const V t1143 = c[40] * t1136;
        const V t1144 = c[41] * t1132;
        const V t1145 = c[40] * t1132;
        const V t1146 = c[41] * t1136;
        const V t1147 = t1146 + t1145;
        // complex block of 2
        const V t1148 = t1009 - t1012;
        // complex block of 2
        const V t1149 = t1069 - t1066;
        // complex block of 2
        const V t1150 = t1148 + t1149;
        const V t1151 = t1148 - t1149;
        // complex block of 53
        const V t1152 = c[42] * t1151;
        const V t1153 = c[43] * t1151;
        const V t1154 = c[44] * t1150;
        const V t1155 = c[45] * t1150;
        // complex block of 2
        const V t1156 = t1031 - t1028;
        // complex block of 2
        const V t1157 = t1047 - t1050;
        // complex block of 2
        const V t1158 = t1156 - t1157;
        const V t1159 = t1156 + t1157;
        // complex block of 53
        const V t1160 = c[43] * t1159;
        const V t1161 = c[42] * t1159;
        const V t1162 = c[45] * t1158;
        const V t1163 = c[44] * t1158;
        // spectrum block of 2
        const V t1164 = t699 - t701;
        // complex block of 2
        const V t1165 = t717 + t713;
        // spectrum block of 3, multiplier 2
        const V t1166 = t1164 - t1165;
        const V t1167 = c[0] * t1165;
        // complex block of 2
        const V t1168 = t719 - t715;
        // spectrum block of 3, multiplier 2
        const V t1169 = c[1] * t1168;
        // spectrum block of 2
        const V t1170 = t861 - t863;
        // complex block of 2
        const V t1171 = t879 + t875;
        // spectrum block of 3, multiplier 2
        const V t1172 = t1170 - t1171;
        const V t1173 = c[0] * t1171;
        // complex block of 2
        const V t1174 = t881 - t877;
        // spectrum block of 3, multiplier 2
        const V t1175 = c[1] * t1174;
        // spectrum block of 3, multiplier 2
        const V t1176 = t1167 + t1164;
        const V t1177 = t1176 - t1169;
        const V t1178 = t1176 + t1169;
        // spectrum block of 3, multiplier 2
        const V t1179 = t1173 + t1170;
        const V t1180 = t1179 - t1175;
        const V t1181 = t1179 + t1175;
        // complex block of 2
        const V t1182 = t1166 + t1172;
        // mirrored skew block of 6
        const V t1183 = c[0] * t734;
        const V t1184 = c[1] * t737;
        const V t1185 = t1184 + t1183;
        // mirrored skew block of 6
        const V t1186 = c[0] * t896;
        const V t1187 = c[1] * t899;
        const V t1188 = t1187 + t1186;
        // spectrum block of 3, multiplier 2
        const V t1189 = t1185 + t695;
        // spectrum block of 3, multiplier 2
        const V t1190 = t1188 + t857;
        // complex block of 2
        const V t1191 = t1189 + t1190;
        // spectrum block of 3, multiplier 2
        const V t1192 = c[0] * t1185;
        const V t1193 = t1192 - t695;
        // spectrum block of 3, multiplier 2
        const V t1194 = c[0] * t1188;
        const V t1195 = t1194 - t857;
        // spectrum block of 3, multiplier 2
        const V t1196 = c[14] * t734;
        const V t1197 = c[15] * t737;
        const V t1198 = t1196 - t1197;
        // spectrum block of 2
        const V t1199 = t780 - t782;
        // complex block of 2
        const V t1200 = t798 + t794;
        // spectrum block of 3, multiplier 2
        const V t1201 = t1199 - t1200;
        const V t1202 = c[0] * t1200;
        // complex block of 2
        const V t1203 = t800 - t796;
        // spectrum block of 3, multiplier 2
        const V t1204 = c[1] * t1203;
        // spectrum block of 2
        const V t1205 = t942 - t944;
        // complex block of 2
        const V t1206 = t960 + t956;
        // spectrum block of 3, multiplier 2
        const V t1207 = t1205 - t1206;
        const V t1208 = c[0] * t1206;
        // complex block of 2
        const V t1209 = t962 - t958;
        // spectrum block of 3, multiplier 2
        const V t1210 = c[1] * t1209;
        // spectrum block of 3, multiplier 2
        const V t1211 = t1202 + t1199;
        const V t1212 = t1211 - t1204;
        const V t1213 = t1211 + t1204;
        // spectrum block of 3, multiplier 2
        const V t1214 = t1208 + t1205;
        const V t1215 = t1214 - t1210;
        const V t1216 = t1214 + t1210;
        // complex block of 2
        const V t1217 = t1201 + t1207;
        // mirrored skew block of 6
        const V t1218 = c[0] * t815;
        const V t1219 = c[1] * t818;
        const V t1220 = t1219 + t1218;
        // mirrored skew block of 6
        const V t1221 = c[0] * t977;
        const V t1222 = c[1] * t980;
        const V t1223 = t1222 + t1221;
        // spectrum block of 3, multiplier 2
        const V t1224 = t1220 + t776;
        // spectrum block of 3, multiplier 2
        const V t1225 = t1223 + t938;
        // complex block of 2
        const V t1226 = t1224 + t1225;
        // spectrum block of 3, multiplier 2
        const V t1227 = c[0] * t1220;
        const V t1228 = t1227 - t776;
        // spectrum block of 3, multiplier 2
        const V t1229 = c[0] * t1223;
        const V t1230 = t1229 - t938;
        // spectrum block of 3, multiplier 2
        const V t1231 = c[14] * t815;
        const V t1232 = c[15] * t818;
        const V t1233 = t1231 - t1232;
        // spectrum block of 3, multiplier 2
        const V t1234 = c[14] * t896;
        const V t1235 = c[15] * t899;
        const V t1236 = t1234 - t1235;
        // spectrum block of 3, multiplier 2
        const V t1237 = c[14] * t977;
        const V t1238 = c[15] * t980;
        const V t1239 = t1237 - t1238;
        // spectrum block of 3, multiplier 2
        const V t1240 = t1193 + t1198;
        // spectrum block of 3, multiplier 2
        const V t1241 = t1195 + t1236;
        // complex block of 2
        const V t1242 = t1240 + t1241;
        const V t1243 = t1241 - t1240;
        // spectrum block of 3, multiplier 2
        const V t1244 = t1193 - t1198;
        // spectrum block of 3, multiplier 2
        const V t1245 = t1195 - t1236;
        // complex block of 2
        const V t1246 = t1244 + t1245;
        const V t1247 = t1245 - t1244;
        // spectrum block of 3, multiplier 2
        const V t1248 = t1228 - t1233;
        // spectrum block of 3, multiplier 2
        const V t1249 = t1230 - t1239;
        // complex block of 2
        const V t1250 = t1248 + t1249;
        const V t1251 = t1249 - t1248;
        // complex block of 2
        const V t1252 = t1178 - t1181;
        // complex block of 2
        const V t1253 = t1213 - t1216;
        // complex block of 2
        const V t1254 = t1246 + t1250;
        // complex block of 53
        const V t1255 = c[46] * t1254;
        // complex block of 2
        const V t1256 = t1250 - t1246;
        // complex block of 53
        const V t1257 = c[47] * t1256;
        // complex block of 2
        const V t1258 = t1252 + t1251;
        const V t1259 = t1247 - t1253;
        const V t1260 = t1252 - t1251;
        const V t1261 = t1247 + t1253;
        // spectrum block of 3, multiplier 2
        const V t1262 = t1228 + t1233;
        // spectrum block of 3, multiplier 2
        const V t1263 = t1230 + t1239;
        // complex block of 2
        const V t1264 = t1262 + t1263;
        const V t1265 = t1263 - t1262;
        // complex block of 2
        const V t1266 = t1178 + t1181;
        // complex block of 2
        const V t1267 = t1213 + t1216;
        // complex block of 2
        const V t1268 = t1266 + t1267;
        const V t1269 = t1266 - t1267;
        // complex block of 53
        const V t1270 = c[46] * t1268;
        const V t1271 = c[48] * t1268;
        const V t1272 = c[47] * t1269;
        const V t1273 = c[49] * t1269;
        // complex block of 2
        const V t1274 = t1166 - t1172;
        // complex block of 2
        const V t1275 = t1201 - t1207;
        // complex block of 2
        const V t1276 = t1182 + t1217;
        // complex block of 53
        const V t1277 = c[50] * t1276;
        const V t1278 = c[51] * t1276;
        // complex block of 2
        const V t1279 = t1182 - t1217;
        // complex block of 53
        const V t1280 = c[52] * t1279;
        const V t1281 = c[53] * t1279;
        // complex block of 2
        const V t1282 = t1177 + t1180;
        // complex block of 2
        const V t1283 = t1212 + t1215;
        // complex block of 2
        const V t1284 = t1282 + t1283;
        const V t1285 = t1282 - t1283;
        const V t1286 = t1191 + t1226;
        // complex block of 53
        const V t1287 = c[54] * t1286;
        // complex block of 2
        const V t1288 = t1191 - t1226;
        // complex block of 53
        const V t1289 = c[55] * t1288;
        const V t1290 = c[56] * t1288;
        const V t1291 = c[55] * t1285;
        const V t1292 = c[56] * t1285;
        const V t1293 = t1289 + t1292;
        const V t1294 = c[57] * t1286;
        const V t1295 = c[54] * t1284;
        const V t1296 = c[57] * t1284;
        const V t1297 = t1287 - t1296;
        // complex block of 2
        const V t1298 = t1177 - t1180;
        // complex block of 2
        const V t1299 = t1224 - t1225;
        // complex block of 2
        const V t1300 = t1298 + t1299;
        const V t1301 = t1298 - t1299;
        // complex block of 53
        const V t1302 = c[58] * t1301;
        const V t1303 = c[59] * t1301;
        const V t1304 = c[60] * t1300;
        const V t1305 = c[61] * t1300;
        // complex block of 2
        const V t1306 = t1189 - t1190;
        // complex block of 2
        const V t1307 = t1212 - t1215;
        // complex block of 2
        const V t1308 = t1306 - t1307;
        const V t1309 = t1306 + t1307;
        // complex block of 53
        const V t1310 = c[59] * t1309;
        const V t1311 = c[58] * t1309;
        const V t1312 = c[61] * t1308;
        const V t1313 = c[60] * t1308;
        // complex block of 2
        const V t1314 = t585 + t607;
        // complex block of 53
        const V t1315 = c[51] * t1314;
        const V t1316 = c[50] * t1314;
        const V t1317 = c[48] * t597;
        const V t1318 = t613 + t1317;
        const V t1319 = t638 + t637;
        const V t1320 = t620 + t1315;
        // real block of 3, multiplier 2
        const V t1321 = t1319 + t1318;
        const V t1322 = t1321 + t1320;
        const V t1323 = c[0] * t1321;
        // complex block of 53
        const V t1324 = t621 - t1316;
        // real block of 3, multiplier 2
        const V t1325 = t1319 - t1318;
        const V t1326 = c[1] * t1325;
        // complex block of 53
        const V x0r = io.re(0);
        const V t1327 = x0r - t333;
        const V t1328 = t416 - t419;
        const V t1329 = t448 - t447;
        const V t1330 = t486 - t487;
        // real block of 3, multiplier 2
        const V t1331 = t1330 + t1329;
        const V t1332 = t1330 - t1329;
        const V t1333 = t1331 + t1328;
        const V t1334 = c[0] * t1331;
        const V t1335 = t1328 - t1334;
        const V t1336 = c[1] * t1332;
        // complex block of 53
        const V t1337 = t420 + t417;
        const V t1338 = t614 - t598;
        // skew block of 6
        const V t1339 = c[1] * t1338;
        const V t1340 = c[0] * t1338;
        const V t1341 = c[0] * t451;
        const V t1342 = c[1] * t451;
        const V t1343 = c[1] * t640;
        const V t1344 = c[0] * t490;
        const V t1345 = t1344 - t1343;
        const V t1346 = c[1] * t490;
        const V t1347 = c[0] * t640;
        const V t1348 = t1347 + t1346;
        const V t1349 = t1339 - t1341;
        // complex block of 3
        const V t1350 = t1349 + t1345;
        const V t1351 = t1349 - t1345;
        // skew block of 6
        const V t1352 = t1342 + t1340;
        // complex block of 3
        const V t1353 = t1352 + t1348;
        const V t1354 = t1348 - t1352;
        // real block of 3, multiplier 2
        const V t1355 = t1320 - t1323;
        // complex block of 2
        const V t1356 = t1335 + t1355;
        const V t1357 = t1335 - t1355;
        const V t1358 = t1336 + t1326;
        // spectrum block of 13, multiplier 4
        const V t1359 = c[8] * t1358;
        // complex block of 2
        const V t1360 = t1336 - t1326;
        // spectrum block of 13, multiplier 4
        const V t1361 = c[10] * t1360;
        const V t1362 = c[11] * t1357;
        const V t1363 = t1362 - t1361;
        const V t1364 = c[9] * t1356;
        const V t1365 = t1359 - t1364;
        // spectrum block of 3
        const V t1366 = c[16] * t1358;
        const V t1367 = c[17] * t1356;
        // spectrum block of 3
        const V t1368 = c[18] * t1360;
        const V t1369 = c[19] * t1357;
        // real block of 2
        const V t1370 = t1333 + t1322;
        // spectrum block of 13, multiplier 4
        const V t1371 = c[12] * t1370;
        const V t1372 = t1327 - t1371;
        // real block of 2
        const V t1373 = t1333 - t1322;
        // spectrum block of 13, multiplier 4
        const V t1374 = c[13] * t1373;
        // complex block of 3
        const V t1375 = t1350 + t1337;
        // spectrum block of 13, multiplier 4
        const V t1376 = c[7] * t1375;
        const V t1377 = c[6] * t1375;
        // complex block of 3
        const V t1378 = t1324 - t1353;
        // spectrum block of 13, multiplier 4
        const V t1379 = c[6] * t1378;
        const V t1380 = c[7] * t1378;
        const V t1381 = t1376 + t1379;
        const V t1382 = t1377 - t1380;
        // complex block of 3
        const V t1383 = c[0] * t1350;
        const V t1384 = t1337 - t1383;
        const V t1385 = c[1] * t1354;
        const V t1386 = t1384 + t1385;
        // spectrum block of 13, multiplier 4
        const V t1387 = c[5] * t1386;
        const V t1388 = c[4] * t1386;
        // complex block of 3
        const V t1389 = t1384 - t1385;
        const V t1390 = c[0] * t1353;
        const V t1391 = t1390 + t1324;
        const V t1392 = c[1] * t1351;
        const V t1393 = t1391 - t1392;
        // spectrum block of 13, multiplier 4
        const V t1394 = c[4] * t1393;
        const V t1395 = c[5] * t1393;
        // complex block of 3
        const V t1396 = t1391 + t1392;
        // complex block of 2
        const V t1397 = t607 - t585;
        // complex block of 53
        const V t1398 = c[53] * t1397;
        const V t1399 = c[52] * t1397;
        const V t1400 = t634 - t633;
        const V t1401 = c[49] * t599;
        const V t1402 = t615 + t1401;
        const V t1403 = t623 + t1398;
        // real block of 3, multiplier 2
        const V t1404 = t1400 + t1402;
        const V t1405 = t1404 + t1403;
        const V t1406 = c[0] * t1404;
        // complex block of 53
        const V t1407 = t624 - t1399;
        // real block of 3, multiplier 2
        const V t1408 = t1400 - t1402;
        const V t1409 = c[1] * t1408;
        // complex block of 53
        const V t1410 = t481 - t482;
        const V t1411 = t453 - t452;
        // real block of 3, multiplier 2
        const V t1412 = t1410 + t1411;
        const V t1413 = t1410 - t1411;
        // complex block of 53
        const V t1414 = t422 + t425;
        // real block of 3, multiplier 2
        const V t1415 = t1412 + t1414;
        const V t1416 = c[0] * t1412;
        const V t1417 = t1414 - t1416;
        const V t1418 = c[1] * t1413;
        // complex block of 53
        const V t1419 = t616 - t600;
        // skew block of 6
        const V t1420 = c[1] * t1419;
        const V t1421 = c[0] * t1419;
        const V t1422 = c[0] * t456;
        const V t1423 = c[1] * t456;
        const V t1424 = c[1] * t636;
        const V t1425 = c[0] * t485;
        const V t1426 = t1425 + t1424;
        const V t1427 = c[1] * t485;
        const V t1428 = c[0] * t636;
        const V t1429 = t1427 - t1428;
        const V t1430 = t1420 + t1422;
        // complex block of 3
        const V t1431 = t1430 + t1426;
        const V t1432 = t1426 - t1430;
        // skew block of 6
        const V t1433 = t1421 - t1423;
        // complex block of 3
        const V t1434 = t1433 + t1429;
        const V t1435 = t1433 - t1429;
        // complex block of 53
        const V t1436 = t423 - t426;
        const V t1437 = c[71] * t334;
        // real block of 3, multiplier 2
        const V t1438 = t1403 - t1406;
        // complex block of 2
        const V t1439 = t1417 + t1438;
        const V t1440 = t1417 - t1438;
        const V t1441 = t1418 + t1409;
        // spectrum block of 13, multiplier 4
        const V t1442 = c[8] * t1441;
        // complex block of 2
        const V t1443 = t1418 - t1409;
        // spectrum block of 13, multiplier 4
        const V t1444 = c[10] * t1443;
        const V t1445 = c[11] * t1440;
        const V t1446 = t1445 - t1444;
        const V t1447 = c[9] * t1439;
        const V t1448 = t1442 - t1447;
        // spectrum block of 3
        const V t1449 = c[16] * t1441;
        const V t1450 = c[17] * t1439;
        // spectrum block of 3
        const V t1451 = c[18] * t1443;
        const V t1452 = c[19] * t1440;
        // real block of 2
        const V t1453 = t1415 + t1405;
        // spectrum block of 13, multiplier 4
        const V t1454 = c[12] * t1453;
        const V t1455 = t1437 - t1454;
        // real block of 2
        const V t1456 = t1415 - t1405;
        // spectrum block of 13, multiplier 4
        const V t1457 = c[13] * t1456;
        // complex block of 3
        const V t1458 = t1431 + t1436;
        // spectrum block of 13, multiplier 4
        const V t1459 = c[7] * t1458;
        const V t1460 = c[6] * t1458;
        // complex block of 3
        const V t1461 = t1434 - t1407;
        // spectrum block of 13, multiplier 4
        const V t1462 = c[6] * t1461;
        const V t1463 = c[7] * t1461;
        const V t1464 = t1459 - t1462;
        const V t1465 = t1463 + t1460;
        // complex block of 3
        const V t1466 = c[0] * t1431;
        const V t1467 = t1466 - t1436;
        const V t1468 = c[1] * t1435;
        const V t1469 = t1467 + t1468;
        // spectrum block of 13, multiplier 4
        const V t1470 = c[5] * t1469;
        const V t1471 = c[4] * t1469;
        // complex block of 3
        const V t1472 = t1467 - t1468;
        const V t1473 = c[0] * t1434;
        const V t1474 = t1407 + t1473;
        const V t1475 = c[1] * t1432;
        const V t1476 = t1474 + t1475;
        // spectrum block of 13, multiplier 4
        const V t1477 = c[4] * t1476;
        const V t1478 = c[5] * t1476;
        // complex block of 3
        const V t1479 = t1475 - t1474;
        // complex block of 2
        const V t1480 = t1274 + t1265;
        // complex block of 53
        const V t1481 = c[62] * t1480;
        const V t1482 = c[63] * t1480;
        // complex block of 2
        const V t1483 = t1243 - t1275;
        // complex block of 53
        const V t1484 = c[63] * t1483;
        const V t1485 = c[62] * t1483;
        // complex block of 2
        const V t1486 = t1274 - t1265;
        // complex block of 53
        const V t1487 = c[64] * t1486;
        const V t1488 = c[65] * t1486;
        // complex block of 2
        const V t1489 = t1243 + t1275;
        // complex block of 53
        const V t1490 = c[65] * t1489;
        const V t1491 = c[64] * t1489;
        const V t1492 = t1487 + t1490;
        const V t1493 = t1484 - t1481;
        // real block of 2
        const V t1494 = t1493 - t1492;
        const V t1495 = t1492 + t1493;
        // complex block of 53
        const V t1496 = t1488 - t1491;
        const V t1497 = t1485 + t1482;
        // real block of 2
        const V t1498 = t1496 + t1497;
        const V t1499 = t1497 - t1496;
        // complex block of 53
        const V t1500 = t1118 + t1126;
        const V t1501 = t1120 + t1128;
        // real block of 2
        const V t1502 = t1501 + t1500;
        const V t1503 = t1501 - t1500;
        // complex block of 53
        const V t1504 = t1152 - t1160;
        const V t1505 = t1162 - t1154;
        // real block of 2
        const V t1506 = t1504 + t1505;
        const V t1507 = t1504 - t1505;
        // complex block of 53
        const V t1508 = c[66] * t1261;
        const V t1509 = c[67] * t1260;
        const V t1510 = t1508 - t1509;
        const V t1511 = t1302 - t1310;
        const V t1512 = t1304 - t1312;
        // real block of 2
        const V t1513 = t1511 + t1512;
        const V t1514 = t1511 - t1512;
        // complex block of 53
        const V t1515 = c[68] * t1259;
        const V t1516 = c[69] * t1258;
        const V t1517 = t1516 + t1515;
        // real block of 2
        const V t1518 = t1510 + t1517;
        // real block of 2
        const V t1519 = t1502 + t1518;
        const V t1520 = t1502 - t1518;
        // real block of 2
        const V t1521 = t1510 - t1517;
        // complex block of 3
        const V t1522 = t1521 + t1514;
        const V t1523 = t1521 - t1514;
        // real block of 2
        const V t1524 = t1506 + t1513;
        const V t1525 = t1506 - t1513;
        // complex block of 3
        const V t1526 = t1503 + t1507;
        const V t1527 = c[0] * t1526;
        const V t1528 = t1503 - t1507;
        // complex block of 53
        const V t1529 = t1119 - t1127;
        const V t1530 = t1129 - t1121;
        // real block of 2
        const V t1531 = t1530 + t1529;
        const V t1532 = t1530 - t1529;
        // complex block of 53
        const V t1533 = t1161 + t1153;
        const V t1534 = t1163 + t1155;
        // real block of 2
        const V t1535 = t1533 + t1534;
        const V t1536 = t1534 - t1533;
        // complex block of 53
        const V t1537 = c[66] * t1260;
        const V t1538 = c[67] * t1261;
        const V t1539 = t1538 + t1537;
        const V t1540 = t1311 + t1303;
        const V t1541 = t1313 + t1305;
        // real block of 2
        const V t1542 = t1541 - t1540;
        const V t1543 = t1540 + t1541;
        // complex block of 53
        const V t1544 = c[68] * t1258;
        const V t1545 = c[69] * t1259;
        const V t1546 = t1545 - t1544;
        // real block of 2
        const V t1547 = t1539 + t1546;
        // real block of 2
        const V t1548 = t1531 + t1547;
        const V t1549 = t1531 - t1547;
        // real block of 2
        const V t1550 = t1539 - t1546;
        // complex block of 3
        const V t1551 = t1550 - t1543;
        const V t1552 = t1550 + t1543;
        // real block of 2
        const V t1553 = t1542 - t1535;
        const V t1554 = t1535 + t1542;
        // complex block of 3
        const V t1555 = t1532 + t1536;
        const V t1556 = c[0] * t1555;
        const V t1557 = t1532 - t1536;
        // complex block of 53
        const V t1558 = t1094 - t1091;
        const V t1559 = t1085 - t1088;
        // real block of 2
        const V t1560 = t1559 + t1558;
        const V t1561 = t1559 - t1558;
        // complex block of 53
        const V t1562 = t1095 + t1092;
        const V t1563 = t1089 + t1086;
        // real block of 2
        const V t1564 = t1563 + t1562;
        const V t1565 = t1563 - t1562;
        // real block of 2
        const V t1566 = t1564 - t1498;
        // real block of 3
        const V t1567 = t1548 + t1553;
        const V t1568 = t1567 + t1566;
        const V t1569 = c[0] * t1567;
        const V t1570 = t1566 - t1569;
        // complex block of 13, multiplier 4
        const V t1571 = c[9] * t1570;
        const V t1572 = c[12] * t1568;
        // real block of 2
        const V t1573 = t1564 + t1498;
        // real block of 3
        const V t1574 = t1549 - t1554;
        const V t1575 = c[0] * t1574;
        const V t1576 = t1574 + t1573;
        const V t1577 = t1573 - t1575;
        // complex block of 13, multiplier 4
        const V t1578 = c[11] * t1577;
        // real block of 3
        const V t1579 = t1548 - t1553;
        const V t1580 = c[1] * t1579;
        // complex block of 13, multiplier 4
        const V t1581 = c[8] * t1580;
        // complex block of 3
        const V t1582 = t1555 + t1565;
        // complex block of 13, multiplier 4
        const V t1583 = c[3] * t1582;
        const V t1584 = c[2] * t1582;
        // complex block of 3
        const V t1585 = t1551 + t1499;
        // complex block of 13, multiplier 4
        const V t1586 = c[2] * t1585;
        const V t1587 = c[3] * t1585;
        // complex block of 3
        const V t1588 = t1565 - t1556;
        const V t1589 = c[1] * t1552;
        const V t1590 = t1588 + t1589;
        const V t1591 = t1588 - t1589;
        // complex block of 13, multiplier 4
        const V t1592 = c[7] * t1591;
        const V t1593 = c[6] * t1591;
        const V t1594 = c[5] * t1590;
        const V t1595 = c[4] * t1590;
        // complex block of 3
        const V t1596 = c[0] * t1551;
        const V t1597 = t1499 - t1596;
        const V t1598 = c[1] * t1557;
        const V t1599 = t1597 - t1598;
        // complex block of 13, multiplier 4
        const V t1600 = c[4] * t1599;
        const V t1601 = c[5] * t1599;
        // complex block of 3
        const V t1602 = t1597 + t1598;
        // complex block of 13, multiplier 4
        const V t1603 = c[6] * t1602;
        const V t1604 = c[7] * t1602;
        // real block of 3
        const V t1605 = t1549 + t1554;
        const V t1606 = c[1] * t1605;
        // complex block of 13, multiplier 4
        const V t1607 = c[10] * t1606;
        // real block of 2
        const V t1608 = t1560 + t1494;
        // real block of 3
        const V t1609 = t1519 + t1524;
        const V t1610 = t1609 + t1608;
        const V t1611 = c[0] * t1609;
        const V t1612 = t1608 - t1611;
        // complex block of 13, multiplier 4
        const V t1613 = c[9] * t1612;
        const V t1614 = c[12] * t1610;
        // real block of 2
        const V t1615 = t1560 - t1494;
        // real block of 3
        const V t1616 = t1520 + t1525;
        const V t1617 = c[0] * t1616;
        const V t1618 = t1616 + t1615;
        const V t1619 = t1615 - t1617;
        // complex block of 13, multiplier 4
        const V t1620 = c[11] * t1619;
        // real block of 3
        const V t1621 = t1519 - t1524;
        const V t1622 = c[1] * t1621;
        // complex block of 13, multiplier 4
        const V t1623 = c[8] * t1622;
        // complex block of 3
        const V t1624 = t1526 + t1561;
        // complex block of 13, multiplier 4
        const V t1625 = c[3] * t1624;
        const V t1626 = c[2] * t1624;
        // complex block of 3
        const V t1627 = t1522 - t1495;
        // complex block of 13, multiplier 4
        const V t1628 = c[2] * t1627;
        const V t1629 = c[3] * t1627;
        // complex block of 3
        const V t1630 = t1561 - t1527;
        const V t1631 = c[1] * t1523;
        const V t1632 = t1630 + t1631;
        const V t1633 = t1630 - t1631;
        // complex block of 13, multiplier 4
        const V t1634 = c[7] * t1633;
        const V t1635 = c[6] * t1633;
        const V t1636 = c[5] * t1632;
        const V t1637 = c[4] * t1632;
        // complex block of 3
        const V t1638 = c[0] * t1522;
        const V t1639 = t1495 + t1638;
        const V t1640 = c[1] * t1528;
        const V t1641 = t1639 + t1640;
        // complex block of 13, multiplier 4
        const V t1642 = c[4] * t1641;
        const V t1643 = c[5] * t1641;
        // complex block of 3
        const V t1644 = t1640 - t1639;
        // complex block of 13, multiplier 4
        const V t1645 = c[6] * t1644;
        const V t1646 = c[7] * t1644;
        // real block of 3
        const V t1647 = t1520 - t1525;
        const V t1648 = c[1] * t1647;
        // complex block of 13, multiplier 4
        const V t1649 = c[10] * t1648;
        // complex block of 53
        const V t1650 = t993 + t992;
        const V t1651 = t995 - t994;
        // spectrum block of 13, multiplier 4
        const V t1652 = c[2] * t1396;
        const V t1653 = c[3] * t1389;
        const V t1654 = t1653 + t1652;
        const V t1655 = t1387 + t1394;
        // complex block of 3
        const V t1656 = t1655 + t1381;
        const V t1657 = t1381 - t1655;
        const V t1658 = t1654 - t1656;
        const V t1659 = c[0] * t1656;
        const V t1660 = t1659 + t1654;
        const V t1661 = c[1] * t1657;
        // spectrum block of 13, multiplier 4
        const V t1662 = c[2] * t1389;
        const V t1663 = c[3] * t1396;
        const V t1664 = t1662 - t1663;
        const V t1665 = t1388 - t1395;
        // complex block of 3
        const V t1666 = t1665 + t1382;
        const V t1667 = t1382 - t1665;
        const V t1668 = t1664 - t1666;
        const V t1669 = c[0] * t1666;
        const V t1670 = t1669 + t1664;
        const V t1671 = c[1] * t1667;
        // spectrum block of 3
        const V t1672 = t1365 + t1372;
        // spectrum block of 3
        const V t1673 = t1363 + t1374;
        // spectrum block of 2
        const V t1674 = t1672 + t1673;
        const V t1675 = t1672 - t1673;
        // spectrum block of 3
        const V t1676 = c[0] * t1365;
        const V t1677 = t1372 - t1676;
        const V t1678 = t1366 + t1367;
        // spectrum block of 3
        const V t1679 = c[0] * t1363;
        const V t1680 = t1374 - t1679;
        const V t1681 = t1368 + t1369;
        // spectrum block of 3
        const V t1682 = t1677 + t1678;
        // spectrum block of 3
        const V t1683 = t1680 - t1681;
        // spectrum block of 2
        const V t1684 = t1682 + t1683;
        const V t1685 = t1682 - t1683;
        // spectrum block of 3
        const V t1686 = t1677 - t1678;
        // spectrum block of 3
        const V t1687 = t1680 + t1681;
        // spectrum block of 2
        const V t1688 = t1686 + t1687;
        const V t1689 = t1686 - t1687;
        // complex block of 13, multiplier 4
        const V t1690 = t1651 - t1572;
        const V t1691 = t1571 + t1581;
        // spectrum block of 3
        const V t1692 = t1690 - t1691;
        const V t1693 = c[0] * t1691;
        // complex block of 13, multiplier 4
        const V t1694 = t1578 + t1607;
        const V t1695 = c[13] * t1576;
        // spectrum block of 3
        const V t1696 = t1694 + t1695;
        const V t1697 = c[0] * t1694;
        // spectrum block of 3
        const V t1698 = c[16] * t1580;
        const V t1699 = c[17] * t1570;
        const V t1700 = t1698 - t1699;
        // spectrum block of 3
        const V t1701 = c[18] * t1606;
        const V t1702 = c[19] * t1577;
        const V t1703 = t1701 - t1702;
        // spectrum block of 3
        const V t1704 = t1693 + t1690;
        const V t1705 = t1704 - t1700;
        const V t1706 = t1704 + t1700;
        // spectrum block of 3
        const V t1707 = t1695 - t1697;
        const V t1708 = t1707 + t1703;
        const V t1709 = t1707 - t1703;
        // spectrum block of 2
        const V t1710 = t1692 + t1696;
        const V t1711 = t1692 - t1696;
        // complex block of 13, multiplier 4
        const V t1712 = t1650 + t1614;
        const V t1713 = t1613 + t1623;
        // spectrum block of 3
        const V t1714 = t1713 + t1712;
        const V t1715 = c[0] * t1713;
        // complex block of 13, multiplier 4
        const V t1716 = t1620 + t1649;
        const V t1717 = c[13] * t1618;
        // spectrum block of 3
        const V t1718 = t1716 + t1717;
        const V t1719 = c[0] * t1716;
        // spectrum block of 3
        const V t1720 = c[16] * t1622;
        const V t1721 = c[17] * t1612;
        const V t1722 = t1720 - t1721;
        // spectrum block of 3
        const V t1723 = c[18] * t1648;
        const V t1724 = c[19] * t1619;
        const V t1725 = t1723 - t1724;
        // spectrum block of 3
        const V t1726 = t1715 - t1712;
        const V t1727 = t1726 - t1722;
        const V t1728 = t1726 + t1722;
        // spectrum block of 3
        const V t1729 = t1717 - t1719;
        const V t1730 = t1729 + t1725;
        const V t1731 = t1729 - t1725;
        // spectrum block of 2
        const V t1732 = t1718 - t1714;
        const V t1733 = t1714 + t1718;
        // complex block of 13, multiplier 4
        const V t1734 = t1634 - t1645;
        const V t1735 = t1636 + t1642;
        // complex block of 3
        const V t1736 = t1735 + t1734;
        const V t1737 = t1735 - t1734;
        // complex block of 13, multiplier 4
        const V t1738 = t1628 - t1625;
        // complex block of 3
        const V t1739 = t1736 + t1738;
        const V t1740 = c[0] * t1736;
        const V t1741 = t1738 - t1740;
        const V t1742 = c[1] * t1737;
        // complex block of 13, multiplier 4
        const V t1743 = t1646 + t1635;
        const V t1744 = t1643 - t1637;
        // complex block of 3
        const V t1745 = t1743 - t1744;
        const V t1746 = t1744 + t1743;
        // complex block of 13, multiplier 4
        const V t1747 = t1629 + t1626;
        // complex block of 3
        const V t1748 = t1745 - t1747;
        const V t1749 = c[0] * t1745;
        const V t1750 = t1747 + t1749;
        const V t1751 = c[1] * t1746;
        // complex block of 13, multiplier 4
        const V t1752 = t1603 - t1592;
        const V t1753 = t1600 - t1594;
        // complex block of 3
        const V t1754 = t1753 + t1752;
        const V t1755 = t1753 - t1752;
        // complex block of 13, multiplier 4
        const V t1756 = t1583 - t1586;
        // complex block of 3
        const V t1757 = t1754 + t1756;
        const V t1758 = c[0] * t1754;
        const V t1759 = t1756 - t1758;
        const V t1760 = c[1] * t1755;
        // complex block of 13, multiplier 4
        const V t1761 = t1604 + t1593;
        const V t1762 = t1601 + t1595;
        // complex block of 3
        const V t1763 = t1762 + t1761;
        const V t1764 = t1761 - t1762;
        // complex block of 13, multiplier 4
        const V t1765 = t1587 + t1584;
        // complex block of 3
        const V t1766 = t1765 - t1763;
        const V t1767 = c[0] * t1763;
        const V t1768 = t1767 + t1765;
        const V t1769 = c[1] * t1764;
        // spectrum block of 13, multiplier 4
        const V t1770 = c[2] * t1479;
        const V t1771 = c[3] * t1472;
        const V t1772 = t1771 + t1770;
        const V t1773 = t1477 - t1470;
        // complex block of 3
        const V t1774 = t1773 + t1464;
        const V t1775 = t1773 - t1464;
        const V t1776 = t1774 + t1772;
        const V t1777 = c[0] * t1774;
        const V t1778 = t1772 - t1777;
        const V t1779 = c[1] * t1775;
        // spectrum block of 13, multiplier 4
        const V t1780 = c[2] * t1472;
        const V t1781 = c[3] * t1479;
        const V t1782 = t1780 - t1781;
        const V t1783 = t1478 + t1471;
        // complex block of 3
        const V t1784 = t1465 - t1783;
        const V t1785 = t1783 + t1465;
        const V t1786 = t1784 + t1782;
        const V t1787 = c[0] * t1784;
        const V t1788 = t1782 - t1787;
        const V t1789 = c[1] * t1785;
        // spectrum block of 3
        const V t1790 = t1448 + t1455;
        // spectrum block of 3
        const V t1791 = t1446 + t1457;
        // spectrum block of 2
        const V t1792 = t1790 + t1791;
        const V t1793 = t1790 - t1791;
        // spectrum block of 3
        const V t1794 = c[0] * t1448;
        const V t1795 = t1455 - t1794;
        const V t1796 = t1449 + t1450;
        // spectrum block of 3
        const V t1797 = c[0] * t1446;
        const V t1798 = t1457 - t1797;
        const V t1799 = t1451 + t1452;
        // spectrum block of 3
        const V t1800 = t1795 + t1796;
        // spectrum block of 3
        const V t1801 = t1798 - t1799;
        // spectrum block of 2
        const V t1802 = t1800 + t1801;
        const V t1803 = t1800 - t1801;
        // spectrum block of 3
        const V t1804 = t1795 - t1796;
        // spectrum block of 3
        const V t1805 = t1798 + t1799;
        // spectrum block of 2
        const V t1806 = t1804 + t1805;
        const V t1807 = t1804 - t1805;
        // complex block of 3
        const V t1808 = t1670 + t1661;
        // spectrum block of 2
        const V t1809 = t1685 + t1808;
        const V t1810 = t1685 - t1808;
        // complex block of 3
        const V t1811 = t1742 - t1750;
        // spectrum block of 2
        const V t1812 = t1705 - t1708;
        // spectrum block of 2
        const V t1813 = t1812 + t1811;
        const V t1814 = t1812 - t1811;
        // complex block of 3
        const V t1815 = t1768 + t1760;
        // spectrum block of 2
        const V t1816 = t1727 - t1730;
        // spectrum block of 2
        const V t1817 = t1816 + t1815;
        const V t1818 = t1816 - t1815;
        // complex block of 3
        const V t1819 = t1788 + t1779;
        // spectrum block of 2
        const V t1820 = t1803 + t1819;
        const V t1821 = t1803 - t1819;
        // spectrum block of 2
        const V t1822 = t1809 + t1820;
        // spectrum block of 2
        const V t1823 = t1822 + t1817;
        const V t1824 = t1822 - t1817;
        // spectrum block of 2
        const V t1825 = t1809 - t1820;
        // spectrum block of 2
        const V t1826 = t1825 - t1813;
        const V t1827 = t1825 + t1813;
        // spectrum block of 2
        const V t1828 = t1810 + t1821;
        // spectrum block of 2
        const V t1829 = t1828 + t1818;
        const V t1830 = t1828 - t1818;
        // spectrum block of 2
        const V t1831 = t1810 - t1821;
        // spectrum block of 2
        const V t1832 = t1831 - t1814;
        const V t1833 = t1831 + t1814;
        // complex block of 3
        const V t1834 = t1660 - t1671;
        // spectrum block of 2
        const V t1835 = t1684 + t1834;
        const V t1836 = t1684 - t1834;
        // complex block of 3
        const V t1837 = t1741 + t1751;
        // spectrum block of 2
        const V t1838 = t1705 + t1708;
        // spectrum block of 2
        const V t1839 = t1838 + t1837;
        const V t1840 = t1838 - t1837;
        // complex block of 3
        const V t1841 = t1759 - t1769;
        // spectrum block of 2
        const V t1842 = t1727 + t1730;
        // spectrum block of 2
        const V t1843 = t1842 + t1841;
        const V t1844 = t1842 - t1841;
        // complex block of 3
        const V t1845 = t1778 + t1789;
        // spectrum block of 2
        const V t1846 = t1802 + t1845;
        const V t1847 = t1802 - t1845;
        // spectrum block of 2
        const V t1848 = t1836 + t1847;
        // spectrum block of 2
        const V t1849 = t1848 + t1844;
        const V t1850 = t1848 - t1844;
        // spectrum block of 2
        const V t1851 = t1836 - t1847;
        // spectrum block of 2
        const V t1852 = t1851 - t1840;
        const V t1853 = t1851 + t1840;
        // spectrum block of 2
        const V t1854 = t1835 + t1846;
        // spectrum block of 2
        const V t1855 = t1854 + t1843;
        const V t1856 = t1854 - t1843;
        // spectrum block of 2
        const V t1857 = t1835 - t1846;
        // spectrum block of 2
        const V t1858 = t1857 - t1839;
        const V t1859 = t1857 + t1839;
        // complex block of 3
        const V t1860 = t1670 - t1661;
        // spectrum block of 2
        const V t1861 = t1689 + t1860;
        const V t1862 = t1689 - t1860;
        // complex block of 3
        const V t1863 = t1750 + t1742;
        // spectrum block of 2
        const V t1864 = t1706 - t1709;
        // spectrum block of 2
        const V t1865 = t1864 - t1863;
        const V t1866 = t1864 + t1863;
        // complex block of 3
        const V t1867 = t1768 - t1760;
        // spectrum block of 2
        const V t1868 = t1728 - t1731;
        // spectrum block of 2
        const V t1869 = t1868 + t1867;
        const V t1870 = t1868 - t1867;
        // complex block of 3
        const V t1871 = t1788 - t1779;
        // spectrum block of 2
        const V t1872 = t1807 + t1871;
        const V t1873 = t1807 - t1871;
        // spectrum block of 2
        const V t1874 = t1861 + t1872;
        // spectrum block of 2
        const V t1875 = t1874 + t1869;
        const V t1876 = t1874 - t1869;
        // spectrum block of 2
        const V t1877 = t1861 - t1872;
        // spectrum block of 2
        const V t1878 = t1877 - t1865;
        const V t1879 = t1877 + t1865;
        // spectrum block of 2
        const V t1880 = t1862 + t1873;
        // spectrum block of 2
        const V t1881 = t1880 + t1870;
        const V t1882 = t1880 - t1870;
        // spectrum block of 2
        const V t1883 = t1862 - t1873;
        // spectrum block of 2
        const V t1884 = t1883 - t1866;
        const V t1885 = t1883 + t1866;
        // complex block of 3
        const V t1886 = t1660 + t1671;
        // spectrum block of 2
        const V t1887 = t1688 + t1886;
        const V t1888 = t1688 - t1886;
        // complex block of 3
        const V t1889 = t1741 - t1751;
        // spectrum block of 2
        const V t1890 = t1706 + t1709;
        // spectrum block of 2
        const V t1891 = t1890 + t1889;
        const V t1892 = t1890 - t1889;
        // complex block of 3
        const V t1893 = t1759 + t1769;
        // spectrum block of 2
        const V t1894 = t1728 + t1731;
        // spectrum block of 2
        const V t1895 = t1894 + t1893;
        const V t1896 = t1894 - t1893;
        // complex block of 3
        const V t1897 = t1778 - t1789;
        // spectrum block of 2
        const V t1898 = t1806 + t1897;
        const V t1899 = t1806 - t1897;
        // spectrum block of 2
        const V t1900 = t1887 + t1898;
        // spectrum block of 2
        const V t1901 = t1900 + t1895;
        const V t1902 = t1900 - t1895;
        // spectrum block of 2
        const V t1903 = t1887 - t1898;
        // spectrum block of 2
        const V t1904 = t1903 - t1891;
        const V t1905 = t1903 + t1891;
        // spectrum block of 2
        const V t1906 = t1888 + t1899;
        // spectrum block of 2
        const V t1907 = t1906 + t1896;
        const V t1908 = t1906 - t1896;
        // spectrum block of 2
        const V t1909 = t1888 - t1899;
        // spectrum block of 2
        const V t1910 = t1909 - t1892;
        const V t1911 = t1909 + t1892;
        // spectrum block of 2
        const V t1912 = t1674 + t1658;
        // spectrum block of 2
        const V t1913 = t1792 + t1776;
        // spectrum block of 2
        const V t1914 = t1912 + t1913;
        const V t1915 = t1912 - t1913;
        // spectrum block of 2
        const V t1916 = t1710 + t1739;
        // spectrum block of 2
        const V t1917 = t1732 + t1757;
        // spectrum block of 2
        const V t1918 = t1914 + t1917;
        const V t1919 = t1914 - t1917;
        // spectrum block of 2
        const V t1920 = t1915 - t1916;
        const V t1921 = t1915 + t1916;
        // spectrum block of 2
        const V t1922 = t1674 - t1658;
        // spectrum block of 2
        const V t1923 = t1792 - t1776;
        // spectrum block of 2
        const V t1924 = t1922 + t1923;
        const V t1925 = t1922 - t1923;
        // spectrum block of 2
        const V t1926 = t1710 - t1739;
        // spectrum block of 2
        const V t1927 = t1732 - t1757;
        // spectrum block of 2
        const V t1928 = t1924 + t1927;
        const V t1929 = t1924 - t1927;
        // spectrum block of 2
        const V t1930 = t1925 - t1926;
        const V t1931 = t1925 + t1926;
        // spectrum block of 2
        const V t1932 = t1675 + t1668;
        // spectrum block of 2
        const V t1933 = t1793 + t1786;
        // spectrum block of 2
        const V t1934 = t1932 + t1933;
        const V t1935 = t1932 - t1933;
        // spectrum block of 2
        const V t1936 = t1711 + t1748;
        // spectrum block of 2
        const V t1937 = t1766 - t1733;
        // spectrum block of 2
        const V t1938 = t1934 + t1937;
        const V t1939 = t1934 - t1937;
        // spectrum block of 2
        const V t1940 = t1935 - t1936;
        const V t1941 = t1935 + t1936;
        // spectrum block of 2
        const V t1942 = t1675 - t1668;
        // spectrum block of 2
        const V t1943 = t1793 - t1786;
        // spectrum block of 2
        const V t1944 = t1942 + t1943;
        const V t1945 = t1942 - t1943;
        // spectrum block of 2
        const V t1946 = t1711 - t1748;
        // spectrum block of 2
        const V t1947 = t1733 + t1766;
        // spectrum block of 2
        const V t1948 = t1944 - t1947;
        const V t1949 = t1944 + t1947;
        // spectrum block of 2
        const V t1950 = t1945 - t1946;
        const V t1951 = t1945 + t1946;
        // spectrum block of 13, multiplier 4
        const V t1952 = t1327 + t1370;
        // spectrum block of 13, multiplier 4
        const V t1953 = t1437 + t1453;
        // spectrum block of 2
        const V t1954 = t1952 + t1953;
        const V t1955 = t1952 - t1953;
        // complex block of 13, multiplier 4
        const V t1956 = t1651 + t1568;
        const V t1957 = t1610 - t1650;
        // spectrum block of 2
        const V t1958 = t1954 + t1957;
        const V t1959 = t1954 - t1957;
        // spectrum block of 2
        const V t1960 = t1955 - t1956;
        const V t1961 = t1955 + t1956;
        // complex block of 2
        const V t1962 = t617 + t608;
        // complex block of 53
        const V t1963 = c[62] * t1962;
        const V t1964 = c[63] * t1962;
        // complex block of 2
        const V t1965 = t586 - t618;
        // complex block of 53
        const V t1966 = c[63] * t1965;
        const V t1967 = c[62] * t1965;
        // complex block of 2
        const V t1968 = t617 - t608;
        // complex block of 53
        const V t1969 = c[64] * t1968;
        const V t1970 = c[65] * t1968;
        // complex block of 2
        const V t1971 = t586 + t618;
        // complex block of 53
        const V t1972 = c[65] * t1971;
        const V t1973 = c[64] * t1971;
        const V t1974 = t1969 + t1972;
        const V t1975 = t1963 - t1966;
        // real block of 2
        const V t1976 = t1974 + t1975;
        const V t1977 = t1974 - t1975;
        // complex block of 53
        const V t1978 = t1973 - t1970;
        const V t1979 = t1967 + t1964;
        // real block of 2
        const V t1980 = t1979 - t1978;
        const V t1981 = t1978 + t1979;
        // complex block of 53
        const V t1982 = t461 + t469;
        const V t1983 = t463 + t471;
        // real block of 2
        const V t1984 = t1983 + t1982;
        const V t1985 = t1982 - t1983;
        // complex block of 53
        const V t1986 = t503 - t495;
        const V t1987 = t497 - t505;
        // real block of 2
        const V t1988 = t1986 + t1987;
        const V t1989 = t1986 - t1987;
        // complex block of 53
        const V t1990 = c[66] * t604;
        const V t1991 = c[67] * t603;
        const V t1992 = t1991 - t1990;
        const V t1993 = t653 - t645;
        const V t1994 = t655 - t647;
        // real block of 2
        const V t1995 = t1993 + t1994;
        const V t1996 = t1993 - t1994;
        // complex block of 53
        const V t1997 = c[68] * t602;
        const V t1998 = c[69] * t601;
        const V t1999 = t1998 + t1997;
        // real block of 2
        const V t2000 = t1992 - t1999;
        // real block of 2
        const V t2001 = t2000 - t1984;
        const V t2002 = t1984 + t2000;
        // real block of 2
        const V t2003 = t1992 + t1999;
        // complex block of 3
        const V t2004 = t2003 + t1996;
        const V t2005 = t2003 - t1996;
        // real block of 2
        const V t2006 = t1988 + t1995;
        const V t2007 = t1988 - t1995;
        // complex block of 3
        const V t2008 = t1985 + t1989;
        const V t2009 = c[0] * t2008;
        const V t2010 = t1985 - t1989;
        // complex block of 53
        const V t2011 = t470 - t462;
        const V t2012 = t464 - t472;
        // real block of 2
        const V t2013 = t2012 + t2011;
        const V t2014 = t2012 - t2011;
        // complex block of 53
        const V t2015 = t504 + t496;
        const V t2016 = t506 + t498;
        // real block of 2
        const V t2017 = t2015 + t2016;
        const V t2018 = t2015 - t2016;
        // complex block of 53
        const V t2019 = c[66] * t603;
        const V t2020 = c[67] * t604;
        const V t2021 = t2020 + t2019;
        const V t2022 = t654 + t646;
        const V t2023 = t656 + t648;
        // real block of 2
        const V t2024 = t2022 - t2023;
        const V t2025 = t2022 + t2023;
        // complex block of 53
        const V t2026 = c[68] * t601;
        const V t2027 = c[69] * t602;
        const V t2028 = t2026 - t2027;
        // real block of 2
        const V t2029 = t2028 - t2021;
        // real block of 2
        const V t2030 = t2013 + t2029;
        const V t2031 = t2013 - t2029;
        // real block of 2
        const V t2032 = t2021 + t2028;
        // complex block of 3
        const V t2033 = t2025 - t2032;
        const V t2034 = t2032 + t2025;
        // real block of 2
        const V t2035 = t2017 + t2024;
        const V t2036 = t2017 - t2024;
        // complex block of 3
        const V t2037 = t2014 + t2018;
        const V t2038 = c[0] * t2037;
        const V t2039 = t2014 - t2018;
        // complex block of 53
        const V t2040 = t434 - t437;
        const V t2041 = t431 - t428;
        // real block of 2
        const V t2042 = t2041 + t2040;
        const V t2043 = t2041 - t2040;
        // complex block of 53
        const V t2044 = t438 + t435;
        const V t2045 = t432 + t429;
        // real block of 2
        const V t2046 = t2045 + t2044;
        const V t2047 = t2044 - t2045;
        // real block of 2
        const V t2048 = t1980 - t2046;
        // real block of 3
        const V t2049 = t2030 + t2035;
        const V t2050 = t2049 + t2048;
        const V t2051 = c[0] * t2049;
        const V t2052 = t2048 - t2051;
        // complex block of 13, multiplier 4
        const V t2053 = c[9] * t2052;
        const V t2054 = c[12] * t2050;
        // real block of 2
        const V t2055 = t2046 + t1980;
        // real block of 3
        const V t2056 = t2031 + t2036;
        const V t2057 = c[0] * t2056;
        const V t2058 = t2056 - t2055;
        const V t2059 = t2055 + t2057;
        // complex block of 13, multiplier 4
        const V t2060 = c[11] * t2059;
        // real block of 3
        const V t2061 = t2030 - t2035;
        const V t2062 = c[1] * t2061;
        // complex block of 13, multiplier 4
        const V t2063 = c[8] * t2062;
        // complex block of 3
        const V t2064 = t2037 + t2047;
        // complex block of 13, multiplier 4
        const V t2065 = c[3] * t2064;
        const V t2066 = c[2] * t2064;
        // complex block of 3
        const V t2067 = t2033 - t1981;
        // complex block of 13, multiplier 4
        const V t2068 = c[2] * t2067;
        const V t2069 = c[3] * t2067;
        // complex block of 3
        const V t2070 = t2047 - t2038;
        const V t2071 = c[1] * t2034;
        const V t2072 = t2070 - t2071;
        const V t2073 = t2070 + t2071;
        // complex block of 13, multiplier 4
        const V t2074 = c[7] * t2073;
        const V t2075 = c[6] * t2073;
        const V t2076 = c[5] * t2072;
        const V t2077 = c[4] * t2072;
        // complex block of 3
        const V t2078 = c[0] * t2033;
        const V t2079 = t1981 + t2078;
        const V t2080 = c[1] * t2039;
        const V t2081 = t2079 + t2080;
        // complex block of 13, multiplier 4
        const V t2082 = c[4] * t2081;
        const V t2083 = c[5] * t2081;
        // complex block of 3
        const V t2084 = t2080 - t2079;
        // complex block of 13, multiplier 4
        const V t2085 = c[6] * t2084;
        const V t2086 = c[7] * t2084;
        // real block of 3
        const V t2087 = t2031 - t2036;
        const V t2088 = c[1] * t2087;
        // complex block of 13, multiplier 4
        const V t2089 = c[10] * t2088;
        // real block of 2
        const V t2090 = t2042 + t1976;
        // real block of 3
        const V t2091 = t2001 + t2006;
        const V t2092 = t2091 + t2090;
        const V t2093 = c[0] * t2091;
        const V t2094 = t2090 - t2093;
        // complex block of 13, multiplier 4
        const V t2095 = c[9] * t2094;
        const V t2096 = c[12] * t2092;
        // real block of 2
        const V t2097 = t2042 - t1976;
        // real block of 3
        const V t2098 = t2007 - t2002;
        const V t2099 = c[0] * t2098;
        const V t2100 = t2098 + t2097;
        const V t2101 = t2097 - t2099;
        // complex block of 13, multiplier 4
        const V t2102 = c[11] * t2101;
        // real block of 3
        const V t2103 = t2001 - t2006;
        const V t2104 = c[1] * t2103;
        // complex block of 13, multiplier 4
        const V t2105 = c[8] * t2104;
        // complex block of 3
        const V t2106 = t2008 + t2043;
        // complex block of 13, multiplier 4
        const V t2107 = c[3] * t2106;
        const V t2108 = c[2] * t2106;
        // complex block of 3
        const V t2109 = t2004 + t1977;
        // complex block of 13, multiplier 4
        const V t2110 = c[2] * t2109;
        const V t2111 = c[3] * t2109;
        // complex block of 3
        const V t2112 = t2043 - t2009;
        const V t2113 = c[1] * t2005;
        const V t2114 = t2112 + t2113;
        const V t2115 = t2112 - t2113;
        // complex block of 13, multiplier 4
        const V t2116 = c[7] * t2115;
        const V t2117 = c[6] * t2115;
        const V t2118 = c[5] * t2114;
        const V t2119 = c[4] * t2114;
        // complex block of 3
        const V t2120 = c[0] * t2004;
        const V t2121 = t1977 - t2120;
        const V t2122 = c[1] * t2010;
        const V t2123 = t2121 - t2122;
        // complex block of 13, multiplier 4
        const V t2124 = c[4] * t2123;
        const V t2125 = c[5] * t2123;
        // complex block of 3
        const V t2126 = t2121 + t2122;
        // complex block of 13, multiplier 4
        const V t2127 = c[6] * t2126;
        const V t2128 = c[7] * t2126;
        // real block of 3
        const V t2129 = t2002 + t2007;
        const V t2130 = c[1] * t2129;
        // complex block of 13, multiplier 4
        const V t2131 = c[10] * t2130;
        // complex block of 2
        const V t2132 = t1242 + t1264;
        // complex block of 53
        const V t2133 = c[51] * t2132;
        const V t2134 = c[50] * t2132;
        const V t2135 = c[48] * t1254;
        const V t2136 = t1270 + t2135;
        const V t2137 = t1295 + t1294;
        const V t2138 = t1277 + t2133;
        // real block of 3, multiplier 2
        const V t2139 = t2137 + t2136;
        const V t2140 = t2139 + t2138;
        const V t2141 = c[0] * t2139;
        // complex block of 53
        const V t2142 = t1278 - t2134;
        // real block of 3, multiplier 2
        const V t2143 = t2137 - t2136;
        const V t2144 = c[1] * t2143;
        const V x0i = io.im(0);
        io.re(49, t1823);
        io.re(4, t1824);
        io.re(14, t1826);
        io.re(39, t1827);
        io.re(13, t1829);
        io.re(40, t1830);
        io.re(34, t1832);
        io.re(19, t1833);
        io.re(36, t1849);
        io.re(17, t1850);
        io.re(33, t1852);
        io.re(20, t1853);
        io.re(28, t1855);
        io.re(25, t1856);
        io.re(8, t1858);
        io.re(45, t1859);
        io.re(47, t1875);
        io.re(6, t1876);
        io.re(21, t1878);
        io.re(32, t1879);
        io.re(44, t1881);
        io.re(9, t1882);
        io.re(5, t1884);
        io.re(48, t1885);
        io.re(46, t1901);
        io.re(7, t1902);
        io.re(51, t1904);
        io.re(2, t1905);
        io.re(15, t1907);
        io.re(38, t1908);
        io.re(27, t1910);
        io.re(26, t1911);
        io.re(10, t1918);
        io.re(43, t1919);
        io.re(18, t1920);
        io.re(35, t1921);
        io.re(16, t1928);
        io.re(37, t1929);
        io.re(50, t1930);
        io.re(3, t1931);
        io.re(42, t1938);
        io.re(11, t1939);
        io.re(12, t1940);
        io.re(41, t1941);
        io.re(24, t1948);
        io.re(29, t1949);
        io.re(22, t1950);
        io.re(31, t1951);
        io.re(1, t1958);
        io.re(52, t1959);
        io.re(23, t1960);
        io.re(30, t1961);
        // complex block of 53
        const V t2145 = x0i - t990;
        const V t2146 = t1073 - t1076;
        const V t2147 = t1105 - t1104;
        const V t2148 = t1143 - t1144;
        // real block of 3, multiplier 2
        const V t2149 = t2148 + t2147;
        const V t2150 = t2148 - t2147;
        const V t2151 = t2149 + t2146;
        const V t2152 = c[0] * t2149;
        const V t2153 = t2146 - t2152;
        const V t2154 = c[1] * t2150;
        // complex block of 53
        const V t2155 = t1077 + t1074;
        const V t2156 = t1271 - t1255;
        // skew block of 6
        const V t2157 = c[1] * t2156;
        const V t2158 = c[0] * t2156;
        const V t2159 = c[0] * t1108;
        const V t2160 = c[1] * t1108;
        const V t2161 = c[1] * t1297;
        const V t2162 = c[0] * t1147;
        const V t2163 = t2162 - t2161;
        const V t2164 = c[1] * t1147;
        const V t2165 = c[0] * t1297;
        const V t2166 = t2165 + t2164;
        const V t2167 = t2157 - t2159;
        // complex block of 3
        const V t2168 = t2167 + t2163;
        const V t2169 = t2167 - t2163;
        // skew block of 6
        const V t2170 = t2160 + t2158;
        // complex block of 3
        const V t2171 = t2170 + t2166;
        const V t2172 = t2166 - t2170;
        // real block of 3, multiplier 2
        const V t2173 = t2138 - t2141;
        // complex block of 2
        const V t2174 = t2153 + t2173;
        const V t2175 = t2153 - t2173;
        const V t2176 = t2154 + t2144;
        // spectrum block of 13, multiplier 4
        const V t2177 = c[8] * t2176;
        // complex block of 2
        const V t2178 = t2154 - t2144;
        // spectrum block of 13, multiplier 4
        const V t2179 = c[10] * t2178;
        const V t2180 = c[11] * t2175;
        const V t2181 = t2180 - t2179;
        const V t2182 = c[9] * t2174;
        const V t2183 = t2177 - t2182;
        // spectrum block of 3
        const V t2184 = c[16] * t2176;
        const V t2185 = c[17] * t2174;
        // spectrum block of 3
        const V t2186 = c[18] * t2178;
        const V t2187 = c[19] * t2175;
        // real block of 2
        const V t2188 = t2151 + t2140;
        // spectrum block of 13, multiplier 4
        const V t2189 = c[12] * t2188;
        const V t2190 = t2145 - t2189;
        // real block of 2
        const V t2191 = t2151 - t2140;
        // spectrum block of 13, multiplier 4
        const V t2192 = c[13] * t2191;
        // complex block of 3
        const V t2193 = t2168 + t2155;
        // spectrum block of 13, multiplier 4
        const V t2194 = c[7] * t2193;
        const V t2195 = c[6] * t2193;
        // complex block of 3
        const V t2196 = t2142 - t2171;
        // spectrum block of 13, multiplier 4
        const V t2197 = c[6] * t2196;
        const V t2198 = c[7] * t2196;
        const V t2199 = t2194 + t2197;
        const V t2200 = t2195 - t2198;
        // complex block of 3
        const V t2201 = c[0] * t2168;
        const V t2202 = t2155 - t2201;
        const V t2203 = c[1] * t2172;
        const V t2204 = t2202 + t2203;
        // spectrum block of 13, multiplier 4
        const V t2205 = c[5] * t2204;
        const V t2206 = c[4] * t2204;
        // complex block of 3
        const V t2207 = t2202 - t2203;
        const V t2208 = c[0] * t2171;
        const V t2209 = t2208 + t2142;
        const V t2210 = c[1] * t2169;
        const V t2211 = t2209 - t2210;
        // spectrum block of 13, multiplier 4
        const V t2212 = c[4] * t2211;
        const V t2213 = c[5] * t2211;
        // complex block of 3
        const V t2214 = t2209 + t2210;
        // complex block of 2
        const V t2215 = t1264 - t1242;
        // complex block of 53
        const V t2216 = c[53] * t2215;
        const V t2217 = c[52] * t2215;
        const V t2218 = t1291 - t1290;
        const V t2219 = c[49] * t1256;
        const V t2220 = t1272 + t2219;
        const V t2221 = t1280 + t2216;
        // real block of 3, multiplier 2
        const V t2222 = t2218 + t2220;
        const V t2223 = t2222 + t2221;
        const V t2224 = c[0] * t2222;
        // complex block of 53
        const V t2225 = t1281 - t2217;
        // real block of 3, multiplier 2
        const V t2226 = t2218 - t2220;
        const V t2227 = c[1] * t2226;
        // complex block of 53
        const V t2228 = t1138 - t1139;
        const V t2229 = t1110 - t1109;
        // real block of 3, multiplier 2
        const V t2230 = t2228 + t2229;
        const V t2231 = t2228 - t2229;
        // complex block of 53
        const V t2232 = t1079 + t1082;
        // real block of 3, multiplier 2
        const V t2233 = t2230 + t2232;
        const V t2234 = c[0] * t2230;
        const V t2235 = t2232 - t2234;
        const V t2236 = c[1] * t2231;
        // complex block of 53
        const V t2237 = t1273 - t1257;
        // skew block of 6
        const V t2238 = c[1] * t2237;
        const V t2239 = c[0] * t2237;
        const V t2240 = c[0] * t1113;
        const V t2241 = c[1] * t1113;
        const V t2242 = c[1] * t1293;
        const V t2243 = c[0] * t1142;
        const V t2244 = t2243 + t2242;
        const V t2245 = c[1] * t1142;
        const V t2246 = c[0] * t1293;
        const V t2247 = t2245 - t2246;
        const V t2248 = t2238 + t2240;
        // complex block of 3
        const V t2249 = t2248 + t2244;
        const V t2250 = t2244 - t2248;
        // skew block of 6
        const V t2251 = t2239 - t2241;
        // complex block of 3
        const V t2252 = t2251 + t2247;
        const V t2253 = t2251 - t2247;
        // complex block of 53
        const V t2254 = t1080 - t1083;
        const V t2255 = c[71] * t991;
        // real block of 3, multiplier 2
        const V t2256 = t2221 - t2224;
        // complex block of 2
        const V t2257 = t2235 + t2256;
        const V t2258 = t2235 - t2256;
        const V t2259 = t2236 + t2227;
        // spectrum block of 13, multiplier 4
        const V t2260 = c[8] * t2259;
        // complex block of 2
        const V t2261 = t2236 - t2227;
        // spectrum block of 13, multiplier 4
        const V t2262 = c[10] * t2261;
        const V t2263 = c[11] * t2258;
        const V t2264 = t2263 - t2262;
        const V t2265 = c[9] * t2257;
        const V t2266 = t2260 - t2265;
        // spectrum block of 3
        const V t2267 = c[16] * t2259;
        const V t2268 = c[17] * t2257;
        // spectrum block of 3
        const V t2269 = c[18] * t2261;
        const V t2270 = c[19] * t2258;
        // real block of 2
        const V t2271 = t2233 + t2223;
        // spectrum block of 13, multiplier 4
        const V t2272 = c[12] * t2271;
        const V t2273 = t2255 - t2272;
        // real block of 2
        const V t2274 = t2233 - t2223;
        // spectrum block of 13, multiplier 4
        const V t2275 = c[13] * t2274;
        // complex block of 3
        const V t2276 = t2249 + t2254;
        // spectrum block of 13, multiplier 4
        const V t2277 = c[7] * t2276;
        const V t2278 = c[6] * t2276;
        // complex block of 3
        const V t2279 = t2252 - t2225;
        // spectrum block of 13, multiplier 4
        const V t2280 = c[6] * t2279;
        const V t2281 = c[7] * t2279;
        const V t2282 = t2277 - t2280;
        const V t2283 = t2281 + t2278;
        // complex block of 3
        const V t2284 = c[0] * t2249;
        const V t2285 = t2284 - t2254;
        const V t2286 = c[1] * t2253;
        const V t2287 = t2285 + t2286;
        // spectrum block of 13, multiplier 4
        const V t2288 = c[5] * t2287;
        const V t2289 = c[4] * t2287;
        // complex block of 3
        const V t2290 = t2285 - t2286;
        const V t2291 = c[0] * t2252;
        const V t2292 = t2225 + t2291;
        const V t2293 = c[1] * t2250;
        const V t2294 = t2292 + t2293;
        // spectrum block of 13, multiplier 4
        const V t2295 = c[4] * t2294;
        const V t2296 = c[5] * t2294;
        // complex block of 3
        const V t2297 = t2293 - t2292;
        // complex block of 53
        const V t2298 = t336 + t335;
        const V t2299 = t337 - t338;
        // spectrum block of 13, multiplier 4
        const V t2300 = c[2] * t2214;
        const V t2301 = c[3] * t2207;
        const V t2302 = t2301 + t2300;
        const V t2303 = t2205 + t2212;
        // complex block of 3
        const V t2304 = t2303 + t2199;
        const V t2305 = t2199 - t2303;
        const V t2306 = t2302 - t2304;
        const V t2307 = c[0] * t2304;
        const V t2308 = t2307 + t2302;
        const V t2309 = c[1] * t2305;
        // spectrum block of 13, multiplier 4
        const V t2310 = c[2] * t2207;
        const V t2311 = c[3] * t2214;
        const V t2312 = t2310 - t2311;
        const V t2313 = t2206 - t2213;
        // complex block of 3
        const V t2314 = t2313 + t2200;
        const V t2315 = t2200 - t2313;
        const V t2316 = t2312 - t2314;
        const V t2317 = c[0] * t2314;
        const V t2318 = t2317 + t2312;
        const V t2319 = c[1] * t2315;
        // spectrum block of 3
        const V t2320 = t2183 + t2190;
        // spectrum block of 3
        const V t2321 = t2181 + t2192;
        // spectrum block of 2
        const V t2322 = t2320 + t2321;
        const V t2323 = t2320 - t2321;
        // spectrum block of 3
        const V t2324 = c[0] * t2183;
        const V t2325 = t2190 - t2324;
        const V t2326 = t2184 + t2185;
        // spectrum block of 3
        const V t2327 = c[0] * t2181;
        const V t2328 = t2192 - t2327;
        const V t2329 = t2186 + t2187;
        // spectrum block of 3
        const V t2330 = t2325 + t2326;
        // spectrum block of 3
        const V t2331 = t2328 - t2329;
        // spectrum block of 2
        const V t2332 = t2330 + t2331;
        const V t2333 = t2330 - t2331;
        // spectrum block of 3
        const V t2334 = t2325 - t2326;
        // spectrum block of 3
        const V t2335 = t2328 + t2329;
        // spectrum block of 2
        const V t2336 = t2334 + t2335;
        const V t2337 = t2334 - t2335;
        // complex block of 13, multiplier 4
        const V t2338 = t2299 - t2054;
        const V t2339 = t2053 + t2063;
        // spectrum block of 3
        const V t2340 = t2338 - t2339;
        const V t2341 = c[0] * t2339;
        // complex block of 13, multiplier 4
        const V t2342 = t2089 - t2060;
        const V t2343 = c[13] * t2058;
        // spectrum block of 3
        const V t2344 = t2342 + t2343;
        const V t2345 = c[0] * t2342;
        // spectrum block of 3
        const V t2346 = c[16] * t2062;
        const V t2347 = c[17] * t2052;
        const V t2348 = t2346 - t2347;
        // spectrum block of 3
        const V t2349 = c[18] * t2088;
        const V t2350 = c[19] * t2059;
        const V t2351 = t2349 + t2350;
        // spectrum block of 3
        const V t2352 = t2341 + t2338;
        const V t2353 = t2352 - t2348;
        const V t2354 = t2352 + t2348;
        // spectrum block of 3
        const V t2355 = t2343 - t2345;
        const V t2356 = t2355 + t2351;
        const V t2357 = t2355 - t2351;
        // spectrum block of 2
        const V t2358 = t2340 + t2344;
        const V t2359 = t2340 - t2344;
        // complex block of 13, multiplier 4
        const V t2360 = t2298 - t2096;
        const V t2361 = t2095 + t2105;
        // spectrum block of 3
        const V t2362 = t2360 - t2361;
        const V t2363 = c[0] * t2361;
        // complex block of 13, multiplier 4
        const V t2364 = t2102 - t2131;
        const V t2365 = c[13] * t2100;
        // spectrum block of 3
        const V t2366 = t2364 + t2365;
        const V t2367 = c[0] * t2364;
        // spectrum block of 3
        const V t2368 = c[16] * t2104;
        const V t2369 = c[17] * t2094;
        const V t2370 = t2368 - t2369;
        // spectrum block of 3
        const V t2371 = c[18] * t2130;
        const V t2372 = c[19] * t2101;
        const V t2373 = t2371 + t2372;
        // spectrum block of 3
        const V t2374 = t2363 + t2360;
        const V t2375 = t2374 - t2370;
        const V t2376 = t2374 + t2370;
        // spectrum block of 3
        const V t2377 = t2365 - t2367;
        const V t2378 = t2377 - t2373;
        const V t2379 = t2377 + t2373;
        // spectrum block of 2
        const V t2380 = t2362 + t2366;
        const V t2381 = t2362 - t2366;
        // complex block of 13, multiplier 4
        const V t2382 = t2116 - t2127;
        const V t2383 = t2118 - t2124;
        // complex block of 3
        const V t2384 = t2383 + t2382;
        const V t2385 = t2383 - t2382;
        // complex block of 13, multiplier 4
        const V t2386 = t2110 - t2107;
        // complex block of 3
        const V t2387 = t2384 + t2386;
        const V t2388 = c[0] * t2384;
        const V t2389 = t2386 - t2388;
        const V t2390 = c[1] * t2385;
        // complex block of 13, multiplier 4
        const V t2391 = t2128 + t2117;
        const V t2392 = t2125 + t2119;
        // complex block of 3
        const V t2393 = t2392 + t2391;
        const V t2394 = t2392 - t2391;
        // complex block of 13, multiplier 4
        const V t2395 = t2111 + t2108;
        // complex block of 3
        const V t2396 = t2393 - t2395;
        const V t2397 = c[0] * t2393;
        const V t2398 = t2395 + t2397;
        const V t2399 = c[1] * t2394;
        // complex block of 13, multiplier 4
        const V t2400 = t2085 - t2074;
        const V t2401 = t2076 + t2082;
        // complex block of 3
        const V t2402 = t2400 - t2401;
        const V t2403 = t2401 + t2400;
        // complex block of 13, multiplier 4
        const V t2404 = t2065 - t2068;
        // complex block of 3
        const V t2405 = t2402 + t2404;
        const V t2406 = c[0] * t2402;
        const V t2407 = t2404 - t2406;
        const V t2408 = c[1] * t2403;
        // complex block of 13, multiplier 4
        const V t2409 = t2086 + t2075;
        const V t2410 = t2077 - t2083;
        // complex block of 3
        const V t2411 = t2410 + t2409;
        const V t2412 = t2409 - t2410;
        // complex block of 13, multiplier 4
        const V t2413 = t2069 + t2066;
        // complex block of 3
        const V t2414 = t2413 - t2411;
        const V t2415 = c[0] * t2411;
        const V t2416 = t2415 + t2413;
        const V t2417 = c[1] * t2412;
        // spectrum block of 13, multiplier 4
        const V t2418 = c[2] * t2297;
        const V t2419 = c[3] * t2290;
        const V t2420 = t2419 + t2418;
        const V t2421 = t2295 - t2288;
        // complex block of 3
        const V t2422 = t2421 + t2282;
        const V t2423 = t2421 - t2282;
        const V t2424 = t2422 + t2420;
        const V t2425 = c[0] * t2422;
        const V t2426 = t2420 - t2425;
        const V t2427 = c[1] * t2423;
        // spectrum block of 13, multiplier 4
        const V t2428 = c[2] * t2290;
        const V t2429 = c[3] * t2297;
        const V t2430 = t2428 - t2429;
        const V t2431 = t2296 + t2289;
        // complex block of 3
        const V t2432 = t2283 - t2431;
        const V t2433 = t2431 + t2283;
        const V t2434 = t2432 + t2430;
        const V t2435 = c[0] * t2432;
        const V t2436 = t2430 - t2435;
        const V t2437 = c[1] * t2433;
        // spectrum block of 3
        const V t2438 = t2266 + t2273;
        // spectrum block of 3
        const V t2439 = t2264 + t2275;
        // spectrum block of 2
        const V t2440 = t2438 + t2439;
        const V t2441 = t2438 - t2439;
        // spectrum block of 3
        const V t2442 = c[0] * t2266;
        const V t2443 = t2273 - t2442;
        const V t2444 = t2267 + t2268;
        // spectrum block of 3
        const V t2445 = c[0] * t2264;
        const V t2446 = t2275 - t2445;
        const V t2447 = t2269 + t2270;
        // spectrum block of 3
        const V t2448 = t2443 + t2444;
        // spectrum block of 3
        const V t2449 = t2446 - t2447;
        // spectrum block of 2
        const V t2450 = t2448 + t2449;
        const V t2451 = t2448 - t2449;
        // spectrum block of 3
        const V t2452 = t2443 - t2444;
        // spectrum block of 3
        const V t2453 = t2446 + t2447;
        // spectrum block of 2
        const V t2454 = t2452 + t2453;
        const V t2455 = t2452 - t2453;
        // complex block of 3
        const V t2456 = t2318 + t2309;
        // spectrum block of 2
        const V t2457 = t2333 + t2456;
        const V t2458 = t2333 - t2456;
        // complex block of 3
        const V t2459 = t2390 - t2398;
        // spectrum block of 2
        const V t2460 = t2353 - t2356;
        // spectrum block of 2
        const V t2461 = t2460 + t2459;
        const V t2462 = t2460 - t2459;
        // complex block of 3
        const V t2463 = t2416 - t2408;
        // spectrum block of 2
        const V t2464 = t2375 - t2378;
        // spectrum block of 2
        const V t2465 = t2464 + t2463;
        const V t2466 = t2464 - t2463;
        // complex block of 3
        const V t2467 = t2436 + t2427;
        // spectrum block of 2
        const V t2468 = t2451 + t2467;
        const V t2469 = t2451 - t2467;
        // spectrum block of 2
        const V t2470 = t2457 + t2468;
        // spectrum block of 2
        const V t2471 = t2470 + t2465;
        io.im(49, t2471);
        const V t2472 = t2470 - t2465;
        io.im(4, t2472);
        // spectrum block of 2
        const V t2473 = t2457 - t2468;
        // spectrum block of 2
        const V t2474 = t2473 - t2461;
        io.im(14, t2474);
        const V t2475 = t2473 + t2461;
        io.im(39, t2475);
        // spectrum block of 2
        const V t2476 = t2458 + t2469;
        // spectrum block of 2
        const V t2477 = t2476 + t2466;
        io.im(13, t2477);
        const V t2478 = t2476 - t2466;
        io.im(40, t2478);
        // spectrum block of 2
        const V t2479 = t2458 - t2469;
        // spectrum block of 2
        const V t2480 = t2479 - t2462;
        io.im(34, t2480);
        const V t2481 = t2479 + t2462;
        io.im(19, t2481);
        // complex block of 3
        const V t2482 = t2308 - t2319;
        // spectrum block of 2
        const V t2483 = t2332 + t2482;
        const V t2484 = t2332 - t2482;
        // complex block of 3
        const V t2485 = t2389 - t2399;
        // spectrum block of 2
        const V t2486 = t2353 + t2356;
        // spectrum block of 2
        const V t2487 = t2486 + t2485;
        const V t2488 = t2486 - t2485;
        // complex block of 3
        const V t2489 = t2407 - t2417;
        // spectrum block of 2
        const V t2490 = t2375 + t2378;
        // spectrum block of 2
        const V t2491 = t2490 + t2489;
        const V t2492 = t2490 - t2489;
        // complex block of 3
        const V t2493 = t2426 + t2437;
        // spectrum block of 2
        const V t2494 = t2450 + t2493;
        const V t2495 = t2450 - t2493;
        // spectrum block of 2
        const V t2496 = t2484 + t2495;
        // spectrum block of 2
        const V t2497 = t2496 + t2492;
        io.im(36, t2497);
        const V t2498 = t2496 - t2492;
        io.im(17, t2498);
        // spectrum block of 2
        const V t2499 = t2484 - t2495;
        // spectrum block of 2
        const V t2500 = t2499 - t2488;
        io.im(33, t2500);
        const V t2501 = t2499 + t2488;
        io.im(20, t2501);
        // spectrum block of 2
        const V t2502 = t2483 + t2494;
        // spectrum block of 2
        const V t2503 = t2502 + t2491;
        io.im(28, t2503);
        const V t2504 = t2502 - t2491;
        io.im(25, t2504);
        // spectrum block of 2
        const V t2505 = t2483 - t2494;
        // spectrum block of 2
        const V t2506 = t2505 - t2487;
        io.im(8, t2506);
        const V t2507 = t2505 + t2487;
        io.im(45, t2507);
        // complex block of 3
        const V t2508 = t2318 - t2309;
        // spectrum block of 2
        const V t2509 = t2337 + t2508;
        const V t2510 = t2337 - t2508;
        // complex block of 3
        const V t2511 = t2398 + t2390;
        // spectrum block of 2
        const V t2512 = t2354 - t2357;
        // spectrum block of 2
        const V t2513 = t2512 - t2511;
        const V t2514 = t2512 + t2511;
        // complex block of 3
        const V t2515 = t2416 + t2408;
        // spectrum block of 2
        const V t2516 = t2376 - t2379;
        // spectrum block of 2
        const V t2517 = t2516 + t2515;
        const V t2518 = t2516 - t2515;
        // complex block of 3
        const V t2519 = t2436 - t2427;
        // spectrum block of 2
        const V t2520 = t2455 + t2519;
        const V t2521 = t2455 - t2519;
        // spectrum block of 2
        const V t2522 = t2509 + t2520;
        // spectrum block of 2
        const V t2523 = t2522 + t2517;
        io.im(47, t2523);
        const V t2524 = t2522 - t2517;
        io.im(6, t2524);
        // spectrum block of 2
        const V t2525 = t2509 - t2520;
        // spectrum block of 2
        const V t2526 = t2525 - t2513;
        io.im(21, t2526);
        const V t2527 = t2525 + t2513;
        io.im(32, t2527);
        // spectrum block of 2
        const V t2528 = t2510 + t2521;
        // spectrum block of 2
        const V t2529 = t2528 + t2518;
        io.im(44, t2529);
        const V t2530 = t2528 - t2518;
        io.im(9, t2530);
        // spectrum block of 2
        const V t2531 = t2510 - t2521;
        // spectrum block of 2
        const V t2532 = t2531 - t2514;
        io.im(5, t2532);
        const V t2533 = t2531 + t2514;
        io.im(48, t2533);
        // complex block of 3
        const V t2534 = t2308 + t2319;
        // spectrum block of 2
        const V t2535 = t2336 + t2534;
        const V t2536 = t2336 - t2534;
        // complex block of 3
        const V t2537 = t2389 + t2399;
        // spectrum block of 2
        const V t2538 = t2354 + t2357;
        // spectrum block of 2
        const V t2539 = t2538 + t2537;
        const V t2540 = t2538 - t2537;
        // complex block of 3
        const V t2541 = t2407 + t2417;
        // spectrum block of 2
        const V t2542 = t2376 + t2379;
        // spectrum block of 2
        const V t2543 = t2542 + t2541;
        const V t2544 = t2542 - t2541;
        // complex block of 3
        const V t2545 = t2426 - t2437;
        // spectrum block of 2
        const V t2546 = t2454 + t2545;
        const V t2547 = t2454 - t2545;
        // spectrum block of 2
        const V t2548 = t2535 + t2546;
        // spectrum block of 2
        const V t2549 = t2548 + t2543;
        io.im(46, t2549);
        const V t2550 = t2548 - t2543;
        io.im(7, t2550);
        // spectrum block of 2
        const V t2551 = t2535 - t2546;
        // spectrum block of 2
        const V t2552 = t2551 - t2539;
        io.im(51, t2552);
        const V t2553 = t2551 + t2539;
        io.im(2, t2553);
        // spectrum block of 2
        const V t2554 = t2536 + t2547;
        // spectrum block of 2
        const V t2555 = t2554 + t2544;
        io.im(15, t2555);
        const V t2556 = t2554 - t2544;
        io.im(38, t2556);
        // spectrum block of 2
        const V t2557 = t2536 - t2547;
        // spectrum block of 2
        const V t2558 = t2557 - t2540;
        io.im(27, t2558);
        const V t2559 = t2557 + t2540;
        io.im(26, t2559);
        // spectrum block of 2
        const V t2560 = t2322 + t2306;
        // spectrum block of 2
        const V t2561 = t2440 + t2424;
        // spectrum block of 2
        const V t2562 = t2560 + t2561;
        const V t2563 = t2560 - t2561;
        // spectrum block of 2
        const V t2564 = t2358 + t2387;
        // spectrum block of 2
        const V t2565 = t2380 + t2405;
        // spectrum block of 2
        const V t2566 = t2562 + t2565;
        io.im(10, t2566);
        const V t2567 = t2562 - t2565;
        io.im(43, t2567);
        // spectrum block of 2
        const V t2568 = t2563 - t2564;
        io.im(18, t2568);
        const V t2569 = t2563 + t2564;
        io.im(35, t2569);
        // spectrum block of 2
        const V t2570 = t2322 - t2306;
        // spectrum block of 2
        const V t2571 = t2440 - t2424;
        // spectrum block of 2
        const V t2572 = t2570 + t2571;
        const V t2573 = t2570 - t2571;
        // spectrum block of 2
        const V t2574 = t2358 - t2387;
        // spectrum block of 2
        const V t2575 = t2380 - t2405;
        // spectrum block of 2
        const V t2576 = t2572 + t2575;
        io.im(16, t2576);
        const V t2577 = t2572 - t2575;
        io.im(37, t2577);
        // spectrum block of 2
        const V t2578 = t2573 - t2574;
        io.im(50, t2578);
        const V t2579 = t2573 + t2574;
        io.im(3, t2579);
        // spectrum block of 2
        const V t2580 = t2323 + t2316;
        // spectrum block of 2
        const V t2581 = t2441 + t2434;
        // spectrum block of 2
        const V t2582 = t2580 + t2581;
        const V t2583 = t2580 - t2581;
        // spectrum block of 2
        const V t2584 = t2359 + t2396;
        // spectrum block of 2
        const V t2585 = t2381 + t2414;
        // spectrum block of 2
        const V t2586 = t2582 + t2585;
        io.im(42, t2586);
        const V t2587 = t2582 - t2585;
        io.im(11, t2587);
        // spectrum block of 2
        const V t2588 = t2583 - t2584;
        io.im(12, t2588);
        const V t2589 = t2583 + t2584;
        io.im(41, t2589);
        // spectrum block of 2
        const V t2590 = t2323 - t2316;
        // spectrum block of 2
        const V t2591 = t2441 - t2434;
        // spectrum block of 2
        const V t2592 = t2590 + t2591;
        const V t2593 = t2590 - t2591;
        // spectrum block of 2
        const V t2594 = t2359 - t2396;
        // spectrum block of 2
        const V t2595 = t2381 - t2414;
        // spectrum block of 2
        const V t2596 = t2592 + t2595;
        io.im(24, t2596);
        const V t2597 = t2592 - t2595;
        io.im(29, t2597);
        // spectrum block of 2
        const V t2598 = t2593 - t2594;
        io.im(22, t2598);
        const V t2599 = t2593 + t2594;
        io.im(31, t2599);
        // spectrum block of 13, multiplier 4
        const V t2600 = t2145 + t2188;
        // spectrum block of 13, multiplier 4
        const V t2601 = t2255 + t2271;
        // spectrum block of 2
        const V t2602 = t2600 + t2601;
        const V t2603 = t2600 - t2601;
        // complex block of 13, multiplier 4
        const V t2604 = t2299 + t2050;
        const V t2605 = t2298 + t2092;
        // spectrum block of 2
        const V t2606 = t2602 + t2605;
        io.im(1, t2606);
        const V t2607 = t2602 - t2605;
        io.im(52, t2607);
        // spectrum block of 2
        const V t2608 = t2603 - t2604;
        io.im(23, t2608);
        const V t2609 = t2603 + t2604;
        io.im(30, t2609);
        // complex block of 53
        const V t2610 = x0r + t332;
        io.re(0, t2610);
        const V t2611 = x0i + t989;
        io.im(0, t2611);
    }
};

}  // namespace zulg
