// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 53.
// Complex DFT of 53 points, Rader block; one complex number to a register.
// 471 sums, 409 differences, 426 products of registers, which do the 2718 steps of the graph, those with
// `scale` included; 42 shuffles, 29 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexPairs<53> {
    static constexpr int steps = 2718;  // with `scale`
    static constexpr double inverseRoot = 0.13736056394868904;  // 1/sqrt(53), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6007253775544544,  // c[2]: -Q[1] of 13
        0.015496188988565054,  // c[3]: -P[1] of 13
        0.5751407294740031,  // c[4]: -P[3] of 13
        0.1741386011521359,  // c[5]: Q[3] of 13
        0.3203288761978803,  // c[6]: -P[5] of 13
        0.5084294662830964,  // c[7]: -Q[5] of 13
        0.007705858903092426,  // c[8]: P[2] of 13
        0.6008758031820526,  // c[9]: -Q[2] of 13
        0.5794400189009605,  // c[10]: -P[4] of 13
        0.15924941320823024,  // c[11]: -Q[4] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.5018097763375671,  // c[16]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[17]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[18]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[19]: sin 2 pi 1/3 times -Q[2] of 13
        0.11888864474491956,  // c[20]: Q[1] of 53
        0.2535110589592131,  // c[21]: P[1] of 53
        0.2471500091242084,  // c[22]: P[2] of 53
        0.13160258300584013,  // c[23]: -Q[2] of 53
        0.01920483471835668,  // c[24]: P[3] of 53
        0.27934484277921784,  // c[25]: Q[3] of 53
        0.049641770378907886,  // c[26]: P[4] of 53
        0.2755686148630738,  // c[27]: Q[4] of 53
        0.26663047052332334,  // c[28]: -Q[5] of 53
        0.08550180730497182,  // c[29]: P[5] of 53
        0.18509085703434766,  // c[30]: P[6] of 53
        0.21010412063116707,  // c[31]: Q[6] of 53
        0.2786708556034366,  // c[32]: -Q[7] of 53
        0.02729324277461261,  // c[33]: P[7] of 53
        0.02515113381908794,  // c[34]: P[8] of 53
        0.27887234952845297,  // c[35]: Q[8] of 53
        0.02027467783966699,  // c[36]: -Q[9] of 53
        0.27926923264549397,  // c[37]: P[9] of 53
        0.2421434442697633,  // c[38]: Q[10] of 53
        0.14060198882334973,  // c[39]: -P[10] of 53
        0.23326162380743898,  // c[40]: P[11] of 53
        0.15489151598012768,  // c[41]: Q[11] of 53
        0.20532068893261132,  // c[42]: P[12] of 53
        0.1903832491584887,  // c[43]: Q[12] of 53
        0.038836925551200704,  // c[44]: -Q[13] of 53
        0.27729778231647617,  // c[45]: -P[13] of 53
        0.09172503255893466,  // c[46]: P[14] of 53
        0.2645541253996386,  // c[47]: -Q[14] of 53
        0.10309300873453617,  // c[48]: -P[15] of 53
        0.2603347814141748,  // c[49]: Q[15] of 53
        0.04985858822323415,  // c[50]: Q[16] of 53
        0.27552946855879373,  // c[51]: -P[16] of 53
        0.062487064695808406,  // c[52]: P[17] of 53
        0.27294272954157833,  // c[53]: Q[17] of 53
        0.2519381469601781,  // c[54]: P[18] of 53
        0.12218648440059575,  // c[55]: Q[18] of 53
        0.26661085340441376,  // c[56]: -Q[19] of 53
        0.0855629575860694,  // c[57]: P[19] of 53
        0.005568976607062611,  // c[58]: P[20] of 53
        0.279948840618166,  // c[59]: Q[20] of 53
        0.10175361370042776,  // c[60]: Q[21] of 53
        0.2608612063201607,  // c[61]: -P[21] of 53
        0.17875918651855408,  // c[62]: P[22] of 53
        0.21551686731931244,  // c[63]: Q[22] of 53
        0.2795810907749542,  // c[64]: -Q[23] of 53
        0.015387675100292094,  // c[65]: P[23] of 53
        0.04799540743714245,  // c[66]: P[24] of 53
        0.2758601234844355,  // c[67]: -Q[24] of 53
        0.08072191645791539,  // c[68]: Q[25] of 53
        0.26811627900458906,  // c[69]: -P[25] of 53
        0.019230769230769232,  // c[70]: 1/52
        0.14000211325539458,  // c[71]: beta of 53
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, ComplexPairs> c{};
        const P x15 = io.pair(15);
        const P x36 = io.pair(36);
        // real block of 3
        const P t0 = x15 + x36;
        const P t1 = x15 - x36;
        const P x16 = io.pair(16);
        const P t2 = t0 + x16;
        const P t3 = c[0] * t0;
        const P t4 = x16 - t3;
        const P x47 = io.pair(47);
        const P x49 = io.pair(49);
        // real block of 3
        const P t5 = x47 + x49;
        const P t6 = x47 - x49;
        const P x42 = io.pair(42);
        const P t7 = t5 + x42;
        const P t8 = c[0] * t5;
        const P t9 = x42 - t8;
        const P x46 = io.pair(46);
        const P x28 = io.pair(28);
        // real block of 3
        const P t10 = x46 + x28;
        const P t11 = x46 - x28;
        const P x10 = io.pair(10);
        const P t12 = t10 + x10;
        const P t13 = c[0] * t10;
        const P t14 = x10 - t13;
        const P x44 = io.pair(44);
        const P x13 = io.pair(13);
        // real block of 3
        const P t15 = x44 + x13;
        const P t16 = x44 - x13;
        const P x24 = io.pair(24);
        const P t17 = t15 + x24;
        const P t18 = c[0] * t15;
        const P t19 = x24 - t18;
        // real block of 2
        const P t20 = t2 + t12;
        const P t21 = t2 - t12;
        // real block of 2
        const P t22 = t7 + t17;
        const P t23 = t7 - t17;
        // real block of 2
        const P t24 = t20 + t22;
        const P t25 = t20 - t22;
        // complex block of 2
        const P t26 = t4 + t14;
        // real block of 3
        const P t27 = c[1] * t1;
        // real block of 3
        const P t28 = c[1] * t11;
        // complex block of 2
        const P t29 = t27 + t28;
        const P t30 = t4 - t14;
        const P t31 = t28 - t27;
        // complex block of 2
        const P t32 = t9 + t19;
        // real block of 3
        const P t33 = c[1] * t6;
        // real block of 3
        const P t34 = c[1] * t16;
        // complex block of 2
        const P t35 = t33 + t34;
        const P t36 = t9 - t19;
        const P t37 = t34 - t33;
        // complex block of 2
        const P t38 = t26 + t32;
        const P t39 = t29 + t35;
        const P t40 = t26 - t32;
        const P t41 = t35 - t29;
        // complex block of 2
        const P t42 = t30 - t37;
        const P t43 = t31 + t36;
        const P t44 = t30 + t37;
        const P t45 = t31 - t36;
        const P x1 = io.pair(1);
        // real block of 13, multiplier 4
        const P t46 = x1 + t24;
        const P t47 = c[12] * t24;
        const P t48 = x1 - t47;
        const P t49 = c[2] * t45;
        const P t50 = c[3] * t44;
        const P t51 = t49 - t50;
        const P t52 = c[3] * t45;
        const P t53 = c[2] * t44;
        const P t54 = t52 + t53;
        const P t55 = c[8] * t40;
        const P t56 = c[9] * t41;
        const P t57 = t55 - t56;
        const P t58 = c[8] * t41;
        const P t59 = c[9] * t40;
        const P t60 = t58 + t59;
        const P t61 = c[4] * t21;
        const P t62 = c[5] * t23;
        const P t63 = t61 + t62;
        const P t64 = c[5] * t21;
        const P t65 = c[4] * t23;
        const P t66 = t64 - t65;
        const P t67 = c[10] * t38;
        const P t68 = c[11] * t39;
        const P t69 = t67 + t68;
        const P t70 = c[10] * t39;
        const P t71 = c[11] * t38;
        const P t72 = t70 - t71;
        const P t73 = c[6] * t42;
        const P t74 = c[7] * t43;
        const P t75 = t73 + t74;
        const P t76 = c[6] * t43;
        const P t77 = c[7] * t42;
        const P t78 = t76 - t77;
        const P t79 = c[13] * t25;
        // spectrum block of 2
        const P t80 = t48 + t79;
        const P t81 = t48 - t79;
        // complex block of 2
        const P t82 = t72 + t60;
        const P t83 = t57 - t69;
        const P t84 = t72 - t60;
        const P t85 = t69 + t57;
        // spectrum block of 3, multiplier 2
        const P t86 = t83 + t80;
        const P t87 = c[0] * t83;
        const P t88 = t80 - t87;
        const P t89 = c[1] * t82;
        const P t90 = t88 - t89;
        const P t91 = t88 + t89;
        // spectrum block of 3, multiplier 2
        const P t92 = t81 - t85;
        const P t93 = c[0] * t85;
        const P t94 = t93 + t81;
        const P t95 = c[1] * t84;
        const P t96 = t94 - t95;
        const P t97 = t94 + t95;
        // complex block of 2
        const P t98 = t51 + t75;
        const P t99 = t78 - t54;
        const P t100 = t75 - t51;
        const P t101 = t54 + t78;
        // mirrored skew block of 6
        const P t102 = c[1] * t101;
        const P t103 = c[0] * t100;
        const P t104 = t102 + t103;
        // spectrum block of 3, multiplier 2
        const P t105 = t99 + t66;
        const P t106 = c[0] * t99;
        const P t107 = t66 - t106;
        const P t108 = c[1] * t98;
        const P t109 = t107 - t108;
        const P t110 = t107 + t108;
        // spectrum block of 3, multiplier 2
        const P t111 = t104 + t63;
        const P t112 = c[0] * t104;
        const P t113 = t112 - t63;
        const P t114 = c[14] * t100;
        const P t115 = c[15] * t101;
        const P t116 = t114 - t115;
        const P t117 = t113 + t116;
        const P t118 = t113 - t116;
        const P x26 = io.pair(26);
        const P x20 = io.pair(20);
        // real block of 3
        const P t119 = x26 + x20;
        const P t120 = x26 - x20;
        const P x3 = io.pair(3);
        const P t121 = t119 + x3;
        const P t122 = c[0] * t119;
        const P t123 = x3 - t122;
        const P x32 = io.pair(32);
        const P x39 = io.pair(39);
        // real block of 3
        const P t124 = x32 + x39;
        const P t125 = x32 - x39;
        const P x41 = io.pair(41);
        const P t126 = t124 + x41;
        const P t127 = c[0] * t124;
        const P t128 = x41 - t127;
        const P x2 = io.pair(2);
        const P x45 = io.pair(45);
        // real block of 3
        const P t129 = x2 + x45;
        const P t130 = x2 - x45;
        const P x35 = io.pair(35);
        const P t131 = t129 + x35;
        const P t132 = c[0] * t129;
        const P t133 = x35 - t132;
        const P x48 = io.pair(48);
        const P x19 = io.pair(19);
        // real block of 3
        const P t134 = x48 + x19;
        const P t135 = x48 - x19;
        const P x31 = io.pair(31);
        const P t136 = t134 + x31;
        const P t137 = c[0] * t134;
        const P t138 = x31 - t137;
        // real block of 2
        const P t139 = t121 + t131;
        const P t140 = t121 - t131;
        // real block of 2
        const P t141 = t126 + t136;
        const P t142 = t126 - t136;
        // real block of 2
        const P t143 = t139 + t141;
        const P t144 = t139 - t141;
        // complex block of 2
        const P t145 = t123 + t133;
        // real block of 3
        const P t146 = c[1] * t120;
        // real block of 3
        const P t147 = c[1] * t130;
        // complex block of 2
        const P t148 = t146 + t147;
        const P t149 = t123 - t133;
        const P t150 = t147 - t146;
        // complex block of 2
        const P t151 = t128 + t138;
        // real block of 3
        const P t152 = c[1] * t125;
        // real block of 3
        const P t153 = c[1] * t135;
        // complex block of 2
        const P t154 = t152 + t153;
        const P t155 = t128 - t138;
        const P t156 = t153 - t152;
        // complex block of 2
        const P t157 = t145 + t151;
        const P t158 = t148 + t154;
        const P t159 = t145 - t151;
        const P t160 = t154 - t148;
        // complex block of 2
        const P t161 = t149 - t156;
        const P t162 = t150 + t155;
        const P t163 = t149 + t156;
        const P t164 = t150 - t155;
        const P x30 = io.pair(30);
        // real block of 13, multiplier 4
        const P t165 = x30 + t143;
        const P t166 = c[12] * t143;
        const P t167 = x30 - t166;
        const P t168 = c[2] * t164;
        const P t169 = c[3] * t163;
        const P t170 = t168 - t169;
        const P t171 = c[3] * t164;
        const P t172 = c[2] * t163;
        const P t173 = t171 + t172;
        const P t174 = c[8] * t159;
        const P t175 = c[9] * t160;
        const P t176 = t174 - t175;
        const P t177 = c[8] * t160;
        const P t178 = c[9] * t159;
        const P t179 = t177 + t178;
        const P t180 = c[4] * t140;
        const P t181 = c[5] * t142;
        const P t182 = t180 + t181;
        const P t183 = c[5] * t140;
        const P t184 = c[4] * t142;
        const P t185 = t183 - t184;
        const P t186 = c[10] * t157;
        const P t187 = c[11] * t158;
        const P t188 = t186 + t187;
        const P t189 = c[10] * t158;
        const P t190 = c[11] * t157;
        const P t191 = t189 - t190;
        const P t192 = c[6] * t161;
        const P t193 = c[7] * t162;
        const P t194 = t192 + t193;
        const P t195 = c[6] * t162;
        const P t196 = c[7] * t161;
        const P t197 = t195 - t196;
        const P t198 = c[13] * t144;
        // spectrum block of 2
        const P t199 = t167 + t198;
        const P t200 = t167 - t198;
        // complex block of 2
        const P t201 = t191 + t179;
        const P t202 = t176 - t188;
        const P t203 = t191 - t179;
        const P t204 = t188 + t176;
        // spectrum block of 3, multiplier 2
        const P t205 = t202 + t199;
        const P t206 = c[0] * t202;
        const P t207 = t199 - t206;
        const P t208 = c[1] * t201;
        const P t209 = t207 - t208;
        const P t210 = t207 + t208;
        // spectrum block of 3, multiplier 2
        const P t211 = t200 - t204;
        const P t212 = c[0] * t204;
        const P t213 = t212 + t200;
        const P t214 = c[1] * t203;
        const P t215 = t213 - t214;
        const P t216 = t213 + t214;
        // complex block of 2
        const P t217 = t170 + t194;
        const P t218 = t197 - t173;
        const P t219 = t194 - t170;
        const P t220 = t173 + t197;
        // mirrored skew block of 6
        const P t221 = c[1] * t220;
        const P t222 = c[0] * t219;
        const P t223 = t221 + t222;
        // spectrum block of 3, multiplier 2
        const P t224 = t218 + t185;
        const P t225 = c[0] * t218;
        const P t226 = t185 - t225;
        const P t227 = c[1] * t217;
        const P t228 = t226 - t227;
        const P t229 = t226 + t227;
        // spectrum block of 3, multiplier 2
        const P t230 = t223 + t182;
        const P t231 = c[0] * t223;
        const P t232 = t231 - t182;
        const P t233 = c[14] * t219;
        const P t234 = c[15] * t220;
        const P t235 = t233 - t234;
        const P t236 = t232 + t235;
        const P t237 = t232 - t235;
        const P x38 = io.pair(38);
        const P x17 = io.pair(17);
        // real block of 3
        const P t238 = x38 + x17;
        const P t239 = x38 - x17;
        const P x37 = io.pair(37);
        const P t240 = t238 + x37;
        const P t241 = c[0] * t238;
        const P t242 = x37 - t241;
        const P x6 = io.pair(6);
        const P x4 = io.pair(4);
        // real block of 3
        const P t243 = x6 + x4;
        const P t244 = x6 - x4;
        const P x11 = io.pair(11);
        const P t245 = t243 + x11;
        const P t246 = c[0] * t243;
        const P t247 = x11 - t246;
        const P x7 = io.pair(7);
        const P x25 = io.pair(25);
        // real block of 3
        const P t248 = x7 + x25;
        const P t249 = x7 - x25;
        const P x43 = io.pair(43);
        const P t250 = t248 + x43;
        const P t251 = c[0] * t248;
        const P t252 = x43 - t251;
        const P x9 = io.pair(9);
        const P x40 = io.pair(40);
        // real block of 3
        const P t253 = x9 + x40;
        const P t254 = x9 - x40;
        const P x29 = io.pair(29);
        const P t255 = t253 + x29;
        const P t256 = c[0] * t253;
        const P t257 = x29 - t256;
        // real block of 2
        const P t258 = t240 + t250;
        const P t259 = t240 - t250;
        // real block of 2
        const P t260 = t245 + t255;
        const P t261 = t245 - t255;
        // real block of 2
        const P t262 = t258 + t260;
        const P t263 = t258 - t260;
        // complex block of 2
        const P t264 = t242 + t252;
        // real block of 3
        const P t265 = c[1] * t239;
        // real block of 3
        const P t266 = c[1] * t249;
        // complex block of 2
        const P t267 = t265 + t266;
        const P t268 = t242 - t252;
        const P t269 = t266 - t265;
        // complex block of 2
        const P t270 = t247 + t257;
        // real block of 3
        const P t271 = c[1] * t244;
        // real block of 3
        const P t272 = c[1] * t254;
        // complex block of 2
        const P t273 = t271 + t272;
        const P t274 = t247 - t257;
        const P t275 = t272 - t271;
        // complex block of 2
        const P t276 = t264 + t270;
        const P t277 = t267 + t273;
        const P t278 = t264 - t270;
        const P t279 = t273 - t267;
        // complex block of 2
        const P t280 = t268 - t275;
        const P t281 = t269 + t274;
        const P t282 = t268 + t275;
        const P t283 = t269 - t274;
        const P x52 = io.pair(52);
        // real block of 13, multiplier 4
        const P t284 = x52 + t262;
        const P t285 = c[12] * t262;
        const P t286 = x52 - t285;
        const P t287 = c[2] * t283;
        const P t288 = c[3] * t282;
        const P t289 = t287 - t288;
        const P t290 = c[3] * t283;
        const P t291 = c[2] * t282;
        const P t292 = t290 + t291;
        const P t293 = c[8] * t278;
        const P t294 = c[9] * t279;
        const P t295 = t293 - t294;
        const P t296 = c[8] * t279;
        const P t297 = c[9] * t278;
        const P t298 = t296 + t297;
        const P t299 = c[4] * t259;
        const P t300 = c[5] * t261;
        const P t301 = t299 + t300;
        const P t302 = c[5] * t259;
        const P t303 = c[4] * t261;
        const P t304 = t302 - t303;
        const P t305 = c[10] * t276;
        const P t306 = c[11] * t277;
        const P t307 = t305 + t306;
        const P t308 = c[10] * t277;
        const P t309 = c[11] * t276;
        const P t310 = t308 - t309;
        const P t311 = c[6] * t280;
        const P t312 = c[7] * t281;
        const P t313 = t311 + t312;
        const P t314 = c[6] * t281;
        const P t315 = c[7] * t280;
        const P t316 = t314 - t315;
        const P t317 = c[13] * t263;
        // spectrum block of 2
        const P t318 = t286 + t317;
        const P t319 = t286 - t317;
        // complex block of 2
        const P t320 = t310 + t298;
        const P t321 = t295 - t307;
        const P t322 = t310 - t298;
        const P t323 = t307 + t295;
        // spectrum block of 3, multiplier 2
        const P t324 = t321 + t318;
        const P t325 = c[0] * t321;
        const P t326 = t318 - t325;
        const P t327 = c[1] * t320;
        const P t328 = t326 - t327;
        const P t329 = t326 + t327;
        // spectrum block of 3, multiplier 2
        const P t330 = t319 - t323;
        const P t331 = c[0] * t323;
        const P t332 = t331 + t319;
        const P t333 = c[1] * t322;
        const P t334 = t332 - t333;
        const P t335 = t332 + t333;
        // complex block of 2
        const P t336 = t289 + t313;
        const P t337 = t316 - t292;
        const P t338 = t313 - t289;
        const P t339 = t292 + t316;
        // mirrored skew block of 6
        const P t340 = c[1] * t339;
        const P t341 = c[0] * t338;
        const P t342 = t340 + t341;
        // spectrum block of 3, multiplier 2
        const P t343 = t337 + t304;
        const P t344 = c[0] * t337;
        const P t345 = t304 - t344;
        const P t346 = c[1] * t336;
        const P t347 = t345 - t346;
        const P t348 = t345 + t346;
        // spectrum block of 3, multiplier 2
        const P t349 = t342 + t301;
        const P t350 = c[0] * t342;
        const P t351 = t350 - t301;
        const P t352 = c[14] * t338;
        const P t353 = c[15] * t339;
        const P t354 = t352 - t353;
        const P t355 = t351 + t354;
        const P t356 = t351 - t354;
        const P x27 = io.pair(27);
        const P x33 = io.pair(33);
        // real block of 3
        const P t357 = x27 + x33;
        const P t358 = x27 - x33;
        const P x50 = io.pair(50);
        const P t359 = t357 + x50;
        const P t360 = c[0] * t357;
        const P t361 = x50 - t360;
        const P x21 = io.pair(21);
        const P x14 = io.pair(14);
        // real block of 3
        const P t362 = x21 + x14;
        const P t363 = x21 - x14;
        const P x12 = io.pair(12);
        const P t364 = t362 + x12;
        const P t365 = c[0] * t362;
        const P t366 = x12 - t365;
        const P x51 = io.pair(51);
        const P x8 = io.pair(8);
        // real block of 3
        const P t367 = x51 + x8;
        const P t368 = x51 - x8;
        const P x18 = io.pair(18);
        const P t369 = t367 + x18;
        const P t370 = c[0] * t367;
        const P t371 = x18 - t370;
        const P x5 = io.pair(5);
        const P x34 = io.pair(34);
        // real block of 3
        const P t372 = x5 + x34;
        const P t373 = x5 - x34;
        const P x22 = io.pair(22);
        const P t374 = t372 + x22;
        const P t375 = c[0] * t372;
        const P t376 = x22 - t375;
        // real block of 2
        const P t377 = t359 + t369;
        const P t378 = t359 - t369;
        // real block of 2
        const P t379 = t364 + t374;
        const P t380 = t364 - t374;
        // real block of 2
        const P t381 = t377 + t379;
        const P t382 = t377 - t379;
        // complex block of 2
        const P t383 = t361 + t371;
        // real block of 3
        const P t384 = c[1] * t358;
        // real block of 3
        const P t385 = c[1] * t368;
        // complex block of 2
        const P t386 = t384 + t385;
        const P t387 = t361 - t371;
        const P t388 = t385 - t384;
        // complex block of 2
        const P t389 = t366 + t376;
        // real block of 3
        const P t390 = c[1] * t363;
        // real block of 3
        const P t391 = c[1] * t373;
        // complex block of 2
        const P t392 = t390 + t391;
        const P t393 = t366 - t376;
        const P t394 = t391 - t390;
        // complex block of 2
        const P t395 = t383 + t389;
        const P t396 = t386 + t392;
        const P t397 = t383 - t389;
        const P t398 = t392 - t386;
        // complex block of 2
        const P t399 = t387 - t394;
        const P t400 = t388 + t393;
        const P t401 = t387 + t394;
        const P t402 = t388 - t393;
        const P x23 = io.pair(23);
        // real block of 13, multiplier 4
        const P t403 = x23 + t381;
        const P t404 = c[12] * t381;
        const P t405 = x23 - t404;
        const P t406 = c[2] * t402;
        const P t407 = c[3] * t401;
        const P t408 = t406 - t407;
        const P t409 = c[3] * t402;
        const P t410 = c[2] * t401;
        const P t411 = t409 + t410;
        const P t412 = c[8] * t397;
        const P t413 = c[9] * t398;
        const P t414 = t412 - t413;
        const P t415 = c[8] * t398;
        const P t416 = c[9] * t397;
        const P t417 = t415 + t416;
        const P t418 = c[4] * t378;
        const P t419 = c[5] * t380;
        const P t420 = t418 + t419;
        const P t421 = c[5] * t378;
        const P t422 = c[4] * t380;
        const P t423 = t421 - t422;
        const P t424 = c[10] * t395;
        const P t425 = c[11] * t396;
        const P t426 = t424 + t425;
        const P t427 = c[10] * t396;
        const P t428 = c[11] * t395;
        const P t429 = t427 - t428;
        const P t430 = c[6] * t399;
        const P t431 = c[7] * t400;
        const P t432 = t430 + t431;
        const P t433 = c[6] * t400;
        const P t434 = c[7] * t399;
        const P t435 = t433 - t434;
        const P t436 = c[13] * t382;
        // spectrum block of 2
        const P t437 = t405 + t436;
        const P t438 = t405 - t436;
        // complex block of 2
        const P t439 = t429 + t417;
        const P t440 = t414 - t426;
        const P t441 = t429 - t417;
        const P t442 = t426 + t414;
        // spectrum block of 3, multiplier 2
        const P t443 = t440 + t437;
        const P t444 = c[0] * t440;
        const P t445 = t437 - t444;
        const P t446 = c[1] * t439;
        const P t447 = t445 - t446;
        const P t448 = t445 + t446;
        // spectrum block of 3, multiplier 2
        const P t449 = t438 - t442;
        const P t450 = c[0] * t442;
        const P t451 = t450 + t438;
        const P t452 = c[1] * t441;
        const P t453 = t451 - t452;
        const P t454 = t451 + t452;
        // complex block of 2
        const P t455 = t408 + t432;
        const P t456 = t435 - t411;
        const P t457 = t432 - t408;
        const P t458 = t411 + t435;
        // mirrored skew block of 6
        const P t459 = c[1] * t458;
        const P t460 = c[0] * t457;
        const P t461 = t459 + t460;
        // spectrum block of 3, multiplier 2
        const P t462 = t456 + t423;
        const P t463 = c[0] * t456;
        const P t464 = t423 - t463;
        const P t465 = c[1] * t455;
        const P t466 = t464 - t465;
        const P t467 = t464 + t465;
        // spectrum block of 3, multiplier 2
        const P t468 = t461 + t420;
        const P t469 = c[0] * t461;
        const P t470 = t469 - t420;
        const P t471 = c[14] * t457;
        const P t472 = c[15] * t458;
        const P t473 = t471 - t472;
        const P t474 = t470 + t473;
        const P t475 = t470 - t473;
        // real block of 2
        const P t476 = t46 + t284;
        const P t477 = t46 - t284;
        // real block of 2
        const P t478 = t165 + t403;
        const P t479 = t165 - t403;
        // real block of 2
        const P t480 = t476 + t478;
        const P t481 = t476 - t478;
        // complex block of 2
        const P t482 = t86 + t324;
        const P t483 = t105 + t343;
        const P t484 = t86 - t324;
        const P t485 = t105 - t343;
        // complex block of 2
        const P t486 = t205 + t443;
        const P t487 = t224 + t462;
        const P t488 = t205 - t443;
        const P t489 = t224 - t462;
        // complex block of 2
        const P t490 = t482 + t486;
        const P t491 = t483 + t487;
        const P t492 = t482 - t486;
        const P t493 = t483 - t487;
        // complex block of 2
        const P t494 = t484 + t489;
        const P t495 = t485 - t488;
        const P t496 = t484 - t489;
        const P t497 = t485 + t488;
        // complex block of 2
        const P t498 = t97 + t335;
        const P t499 = t118 + t356;
        const P t500 = t97 - t335;
        const P t501 = t356 - t118;
        // complex block of 2
        const P t502 = t216 + t454;
        const P t503 = t237 + t475;
        const P t504 = t216 - t454;
        const P t505 = t475 - t237;
        // complex block of 2
        const P t506 = t498 + t502;
        const P t507 = t499 + t503;
        const P t508 = t498 - t502;
        const P t509 = t503 - t499;
        // complex block of 2
        const P t510 = t500 + t505;
        const P t511 = t501 - t504;
        const P t512 = t500 - t505;
        const P t513 = t501 + t504;
        // complex block of 2
        const P t514 = t91 + t329;
        const P t515 = t109 + t347;
        const P t516 = t91 - t329;
        const P t517 = t109 - t347;
        // complex block of 2
        const P t518 = t210 + t448;
        const P t519 = t228 + t466;
        const P t520 = t210 - t448;
        const P t521 = t228 - t466;
        // complex block of 2
        const P t522 = t514 + t518;
        const P t523 = t515 + t519;
        const P t524 = t514 - t518;
        const P t525 = t515 - t519;
        // complex block of 2
        const P t526 = t516 + t521;
        const P t527 = t517 - t520;
        const P t528 = t516 - t521;
        const P t529 = t517 + t520;
        // complex block of 2
        const P t530 = t90 + t328;
        const P t531 = t110 + t348;
        const P t532 = t90 - t328;
        const P t533 = t348 - t110;
        // complex block of 2
        const P t534 = t209 + t447;
        const P t535 = t229 + t467;
        const P t536 = t209 - t447;
        const P t537 = t467 - t229;
        // complex block of 2
        const P t538 = t530 + t534;
        const P t539 = t531 + t535;
        const P t540 = t530 - t534;
        const P t541 = t535 - t531;
        // complex block of 2
        const P t542 = t532 + t537;
        const P t543 = t533 - t536;
        const P t544 = t532 - t537;
        const P t545 = t533 + t536;
        // complex block of 2
        const P t546 = t92 + t330;
        const P t547 = t117 + t355;
        const P t548 = t92 - t330;
        const P t549 = t355 - t117;
        // complex block of 2
        const P t550 = t211 + t449;
        const P t551 = t236 + t474;
        const P t552 = t211 - t449;
        const P t553 = t474 - t236;
        // complex block of 2
        const P t554 = t546 + t550;
        const P t555 = t547 + t551;
        const P t556 = t546 - t550;
        const P t557 = t551 - t547;
        // complex block of 2
        const P t558 = t548 + t553;
        const P t559 = t549 - t552;
        const P t560 = t548 - t553;
        const P t561 = t549 + t552;
        // complex block of 2
        const P t562 = t96 + t334;
        const P t563 = t111 + t349;
        const P t564 = t96 - t334;
        const P t565 = t111 - t349;
        // complex block of 2
        const P t566 = t215 + t453;
        const P t567 = t230 + t468;
        const P t568 = t215 - t453;
        const P t569 = t230 - t468;
        // complex block of 2
        const P t570 = t562 + t566;
        const P t571 = t563 + t567;
        const P t572 = t562 - t566;
        const P t573 = t563 - t567;
        // complex block of 2
        const P t574 = t564 + t569;
        const P t575 = t565 - t568;
        const P t576 = t564 - t569;
        const P t577 = t565 + t568;
        const P x0 = io.pair(0);
        // complex block of 53
        const P t578 = x0 + t480;
        io.pair(0, t578);
        const P t579 = c[70] * t480;
        const P t580 = x0 - t579;
        const P t581 = shuffled<1, 0>(t528);
        const P t582 = c[20] * t581;
        const P t583 = shuffled<1, 0>(t529);
        const P t584 = c[21] * t583;
        const P t585 = t582 + t584;
        const P t586 = P(-c[20], c[20]) * t583;
        const P t587 = P(c[21], -c[21]) * t581;
        const P t588 = t586 + t587;
        const P t589 = c[22] * t572;
        const P t590 = c[23] * t573;
        const P t591 = t589 - t590;
        const P t592 = c[22] * t573;
        const P t593 = c[23] * t572;
        const P t594 = t592 + t593;
        const P t595 = shuffled<1, 0>(t545);
        const P t596 = P(-c[24], c[24]) * t595;
        const P t597 = shuffled<1, 0>(t544);
        const P t598 = P(c[25], -c[25]) * t597;
        const P t599 = t596 + t598;
        const P t600 = c[25] * t595;
        const P t601 = c[24] * t597;
        const P t602 = t600 + t601;
        const P t603 = c[26] * t490;
        const P t604 = c[27] * t491;
        const P t605 = t603 - t604;
        const P t606 = c[26] * t491;
        const P t607 = c[27] * t490;
        const P t608 = t606 + t607;
        const P t609 = shuffled<1, 0>(t512);
        const P t610 = P(-c[28], c[28]) * t609;
        const P t611 = shuffled<1, 0>(t513);
        const P t612 = P(c[29], -c[29]) * t611;
        const P t613 = t610 + t612;
        const P t614 = c[28] * t611;
        const P t615 = c[29] * t609;
        const P t616 = t614 + t615;
        const P t617 = c[30] * t556;
        const P t618 = c[31] * t557;
        const P t619 = t617 + t618;
        const P t620 = c[31] * t556;
        const P t621 = c[30] * t557;
        const P t622 = t620 - t621;
        const P t623 = shuffled<1, 0>(t560);
        const P t624 = c[32] * t623;
        const P t625 = shuffled<1, 0>(t561);
        const P t626 = c[33] * t625;
        const P t627 = t624 + t626;
        const P t628 = P(-c[32], c[32]) * t625;
        const P t629 = P(c[33], -c[33]) * t623;
        const P t630 = t628 + t629;
        const P t631 = c[34] * t506;
        const P t632 = c[35] * t507;
        const P t633 = t631 + t632;
        const P t634 = c[35] * t506;
        const P t635 = c[34] * t507;
        const P t636 = t634 - t635;
        const P t637 = shuffled<1, 0>(t496);
        const P t638 = P(-c[36], c[36]) * t637;
        const P t639 = shuffled<1, 0>(t497);
        const P t640 = P(c[37], -c[37]) * t639;
        const P t641 = t638 + t640;
        const P t642 = c[36] * t639;
        const P t643 = c[37] * t637;
        const P t644 = t642 + t643;
        const P t645 = c[38] * t541;
        const P t646 = c[39] * t540;
        const P t647 = t645 - t646;
        const P t648 = c[39] * t541;
        const P t649 = c[38] * t540;
        const P t650 = t648 + t649;
        const P t651 = shuffled<1, 0>(t577);
        const P t652 = P(-c[40], c[40]) * t651;
        const P t653 = shuffled<1, 0>(t576);
        const P t654 = P(c[41], -c[41]) * t653;
        const P t655 = t652 + t654;
        const P t656 = c[41] * t651;
        const P t657 = c[40] * t653;
        const P t658 = t656 + t657;
        const P t659 = c[42] * t522;
        const P t660 = c[43] * t523;
        const P t661 = t659 - t660;
        const P t662 = c[42] * t523;
        const P t663 = c[43] * t522;
        const P t664 = t662 + t663;
        const P t665 = shuffled<1, 0>(t477);
        const P t666 = c[44] * t665;
        const P t667 = shuffled<1, 0>(t479);
        const P t668 = c[45] * t667;
        const P t669 = t666 + t668;
        const P t670 = P(-c[45], c[45]) * t665;
        const P t671 = P(c[44], -c[44]) * t667;
        const P t672 = t670 + t671;
        const P t673 = c[46] * t524;
        const P t674 = c[47] * t525;
        const P t675 = t673 - t674;
        const P t676 = c[46] * t525;
        const P t677 = c[47] * t524;
        const P t678 = t676 + t677;
        const P t679 = shuffled<1, 0>(t575);
        const P t680 = P(-c[48], c[48]) * t679;
        const P t681 = shuffled<1, 0>(t574);
        const P t682 = P(c[49], -c[49]) * t681;
        const P t683 = t680 + t682;
        const P t684 = c[49] * t679;
        const P t685 = c[48] * t681;
        const P t686 = t684 + t685;
        const P t687 = c[50] * t539;
        const P t688 = c[51] * t538;
        const P t689 = t687 - t688;
        const P t690 = c[51] * t539;
        const P t691 = c[50] * t538;
        const P t692 = t690 + t691;
        const P t693 = shuffled<1, 0>(t495);
        const P t694 = P(-c[52], c[52]) * t693;
        const P t695 = shuffled<1, 0>(t494);
        const P t696 = P(c[53], -c[53]) * t695;
        const P t697 = t694 + t696;
        const P t698 = c[53] * t693;
        const P t699 = c[52] * t695;
        const P t700 = t698 + t699;
        const P t701 = c[54] * t508;
        const P t702 = c[55] * t509;
        const P t703 = t701 + t702;
        const P t704 = c[55] * t508;
        const P t705 = c[54] * t509;
        const P t706 = t704 - t705;
        const P t707 = shuffled<1, 0>(t558);
        const P t708 = P(-c[56], c[56]) * t707;
        const P t709 = shuffled<1, 0>(t559);
        const P t710 = P(c[57], -c[57]) * t709;
        const P t711 = t708 + t710;
        const P t712 = c[56] * t709;
        const P t713 = c[57] * t707;
        const P t714 = t712 + t713;
        const P t715 = c[58] * t554;
        const P t716 = c[59] * t555;
        const P t717 = t715 + t716;
        const P t718 = c[59] * t554;
        const P t719 = c[58] * t555;
        const P t720 = t718 - t719;
        const P t721 = shuffled<1, 0>(t510);
        const P t722 = c[60] * t721;
        const P t723 = shuffled<1, 0>(t511);
        const P t724 = c[61] * t723;
        const P t725 = t722 + t724;
        const P t726 = P(-c[61], c[61]) * t721;
        const P t727 = P(c[60], -c[60]) * t723;
        const P t728 = t726 + t727;
        const P t729 = c[62] * t492;
        const P t730 = c[63] * t493;
        const P t731 = t729 + t730;
        const P t732 = c[63] * t492;
        const P t733 = c[62] * t493;
        const P t734 = t732 - t733;
        const P t735 = shuffled<1, 0>(t542);
        const P t736 = P(-c[64], c[64]) * t735;
        const P t737 = shuffled<1, 0>(t543);
        const P t738 = P(c[65], -c[65]) * t737;
        const P t739 = t736 + t738;
        const P t740 = c[64] * t737;
        const P t741 = c[65] * t735;
        const P t742 = t740 + t741;
        const P t743 = c[66] * t570;
        const P t744 = c[67] * t571;
        const P t745 = t743 + t744;
        const P t746 = c[66] * t571;
        const P t747 = c[67] * t570;
        const P t748 = t746 - t747;
        const P t749 = shuffled<1, 0>(t526);
        const P t750 = c[68] * t749;
        const P t751 = shuffled<1, 0>(t527);
        const P t752 = c[69] * t751;
        const P t753 = t750 + t752;
        const P t754 = P(-c[69], c[69]) * t749;
        const P t755 = P(c[68], -c[68]) * t751;
        const P t756 = t754 + t755;
        // real block of 3, multiplier 2
        const P t757 = t689 + t661;
        const P t758 = t689 - t661;
        const P t759 = t757 + t605;
        const P t760 = c[0] * t757;
        const P t761 = t605 - t760;
        // real block of 3, multiplier 2
        const P t762 = t745 + t633;
        const P t763 = t745 - t633;
        const P t764 = t762 + t717;
        const P t765 = c[0] * t762;
        const P t766 = t717 - t765;
        // real block of 2
        const P t767 = t759 + t764;
        const P t768 = t759 - t764;
        // complex block of 2
        const P t769 = t761 + t766;
        // real block of 3, multiplier 2
        const P t770 = c[1] * t758;
        // real block of 3, multiplier 2
        const P t771 = c[1] * t763;
        // complex block of 2
        const P t772 = t770 + t771;
        const P t773 = t761 - t766;
        const P t774 = t770 - t771;
        // skew block of 6
        const P t775 = c[1] * t636;
        const P t776 = c[0] * t664;
        const P t777 = t775 - t776;
        const P t778 = c[1] * t664;
        const P t779 = c[0] * t636;
        const P t780 = t778 + t779;
        const P t781 = c[0] * t692;
        const P t782 = c[1] * t748;
        const P t783 = t781 - t782;
        const P t784 = c[0] * t748;
        const P t785 = c[1] * t692;
        const P t786 = t784 + t785;
        // complex block of 3
        const P t787 = t777 + t783;
        const P t788 = t780 + t786;
        const P t789 = t777 - t783;
        const P t790 = t786 - t780;
        const P t791 = t787 + t608;
        const P t792 = t720 - t788;
        const P t793 = c[0] * t787;
        const P t794 = t608 - t793;
        const P t795 = c[0] * t788;
        const P t796 = t795 + t720;
        const P t797 = c[1] * t790;
        const P t798 = t794 + t797;
        const P t799 = c[1] * t789;
        const P t800 = t796 - t799;
        const P t801 = t794 - t797;
        const P t802 = t796 + t799;
        // spectrum block of 13, multiplier 4
        const P t803 = c[12] * t767;
        const P t804 = t580 - t803;
        const P t805 = c[2] * t791;
        const P t806 = c[3] * t792;
        const P t807 = t805 + t806;
        const P t808 = c[3] * t791;
        const P t809 = c[2] * t792;
        const P t810 = t808 - t809;
        const P t811 = c[8] * t773;
        const P t812 = c[9] * t774;
        const P t813 = t811 - t812;
        const P t814 = c[5] * t801;
        const P t815 = c[4] * t802;
        const P t816 = t814 + t815;
        const P t817 = c[4] * t801;
        const P t818 = c[5] * t802;
        const P t819 = t817 - t818;
        const P t820 = c[11] * t772;
        const P t821 = c[10] * t769;
        const P t822 = t820 - t821;
        const P t823 = c[7] * t798;
        const P t824 = c[6] * t800;
        const P t825 = t823 + t824;
        const P t826 = c[6] * t798;
        const P t827 = c[7] * t800;
        const P t828 = t826 - t827;
        // spectrum block of 3
        const P t829 = t822 + t804;
        const P t830 = c[0] * t822;
        const P t831 = t804 - t830;
        const P t832 = c[16] * t772;
        const P t833 = c[17] * t769;
        const P t834 = t832 + t833;
        const P t835 = t831 + t834;
        const P t836 = t831 - t834;
        // complex block of 3
        const P t837 = t828 + t810;
        const P t838 = t825 + t807;
        const P t839 = t810 - t828;
        const P t840 = t807 - t825;
        const P t841 = t819 - t837;
        const P t842 = t816 - t838;
        const P t843 = c[0] * t837;
        const P t844 = t843 + t819;
        const P t845 = c[0] * t838;
        const P t846 = t845 + t816;
        const P t847 = c[1] * t840;
        const P t848 = t844 + t847;
        const P t849 = c[1] * t839;
        const P t850 = t846 - t849;
        const P t851 = t844 - t847;
        const P t852 = t846 + t849;
        // spectrum block of 13, multiplier 4
        const P t853 = c[13] * t768;
        // spectrum block of 3
        const P t854 = t813 + t853;
        const P t855 = c[0] * t813;
        const P t856 = t853 - t855;
        const P t857 = c[18] * t774;
        const P t858 = c[19] * t773;
        const P t859 = t857 + t858;
        const P t860 = t856 - t859;
        const P t861 = t856 + t859;
        // spectrum block of 2
        const P t862 = t829 + t854;
        const P t863 = t829 - t854;
        // spectrum block of 2
        const P t864 = t862 + t842;
        const P t865 = t862 - t842;
        // spectrum block of 2
        const P t866 = t863 + t841;
        const P t867 = t863 - t841;
        // spectrum block of 2
        const P t868 = t835 + t860;
        const P t869 = t835 - t860;
        // spectrum block of 2
        const P t870 = t868 + t850;
        const P t871 = t868 - t850;
        // spectrum block of 2
        const P t872 = t869 + t848;
        const P t873 = t869 - t848;
        // spectrum block of 2
        const P t874 = t836 + t861;
        const P t875 = t836 - t861;
        // spectrum block of 2
        const P t876 = t874 + t852;
        const P t877 = t874 - t852;
        // spectrum block of 2
        const P t878 = t875 + t851;
        const P t879 = t875 - t851;
        // spectrum block of 13, multiplier 4
        const P t880 = t580 + t767;
        // real block of 2
        const P t881 = t700 + t644;
        const P t882 = shuffled<0, 3>(t700, t644);
        const P t883 = shuffled<0, 3>(t644, t700);
        const P t884 = t882 - t883;
        const P t885 = flipped<0, 1>(t630);
        // real block of 2
        const P t886 = t714 + t885;
        const P t887 = t714 - t885;
        const P t888 = shuffled<0, 3>(t881, t886);
        const P t889 = shuffled<0, 3>(t886, t881);
        // real block of 2
        const P t890 = t888 - t889;
        const P t891 = t881 + t886;
        // real block of 2
        const P t892 = t756 + t588;
        const P t893 = t756 - t588;
        const P t894 = flipped<0, 1>(t616);
        // real block of 2
        const P t895 = t728 + t894;
        const P t896 = flipped<1, 0>(t728);
        const P t897 = t616 + t896;
        // real block of 2
        const P t898 = t892 + t895;
        const P t899 = t892 - t895;
        // real block of 2
        const P t900 = t602 + t742;
        const P t901 = shuffled<0, 3>(t742, t602);
        const P t902 = shuffled<0, 3>(t602, t742);
        const P t903 = t901 - t902;
        const P t904 = shuffled<0, 3>(t686, t658);
        const P t905 = shuffled<0, 3>(t658, t686);
        // real block of 2
        const P t906 = t904 - t905;
        const P t907 = t658 + t686;
        const P t908 = flipped<1, 0>(t900);
        // real block of 2
        const P t909 = t908 + t906;
        const P t910 = flipped<0, 1>(t906);
        const P t911 = t900 + t910;
        // real block of 3
        const P t912 = t898 + t909;
        const P t913 = t898 - t909;
        const P t914 = t912 + t890;
        const P t915 = c[0] * t912;
        const P t916 = t890 - t915;
        // complex block of 3
        const P t917 = t893 + t903;
        const P t918 = shuffled<0, 3>(t897, t907);
        const P t919 = shuffled<0, 3>(t907, t897);
        const P t920 = t918 - t919;
        const P t921 = t893 - t903;
        const P t922 = t897 + t907;
        const P t923 = t917 + t884;
        const P t924 = flipped<0, 1>(t887);
        const P t925 = t920 + t924;
        const P t926 = c[0] * t917;
        const P t927 = t884 - t926;
        const P t928 = P(-c[0], c[0]) * t920;
        const P t929 = t887 + t928;
        const P t930 = P(c[1], -c[1]) * t922;
        const P t931 = t927 + t930;
        const P t932 = P(-c[1], c[1]) * t921;
        const P t933 = t929 + t932;
        const P t934 = t927 - t930;
        const P t935 = shuffled<0, 3>(t929, t932);
        const P t936 = shuffled<0, 3>(t932, t929);
        const P t937 = t935 - t936;
        const P t938 = flipped<1, 0>(t911);
        // real block of 3
        const P t939 = t899 + t938;
        const P t940 = t899 - t938;
        const P t941 = flipped<0, 1>(t891);
        const P t942 = t939 + t941;
        const P t943 = P(-c[0], c[0]) * t939;
        const P t944 = t891 + t943;
        // real block of 2
        const P t945 = t697 + t641;
        const P t946 = t697 - t641;
        const P t947 = flipped<1, 0>(t627);
        // real block of 2
        const P t948 = t947 + t711;
        const P t949 = flipped<0, 1>(t711);
        const P t950 = t627 + t949;
        // real block of 2
        const P t951 = t945 + t948;
        const P t952 = t945 - t948;
        // real block of 2
        const P t953 = t753 + t585;
        const P t954 = shuffled<0, 3>(t753, t585);
        const P t955 = shuffled<0, 3>(t585, t753);
        const P t956 = t954 - t955;
        const P t957 = flipped<0, 1>(t725);
        // real block of 2
        const P t958 = t613 + t957;
        const P t959 = t613 - t957;
        const P t960 = flipped<0, 1>(t953);
        // real block of 2
        const P t961 = t958 + t960;
        const P t962 = flipped<1, 0>(t958);
        const P t963 = t953 + t962;
        // real block of 2
        const P t964 = t599 + t739;
        const P t965 = t599 - t739;
        // real block of 2
        const P t966 = t655 + t683;
        const P t967 = t655 - t683;
        // real block of 2
        const P t968 = t964 + t966;
        const P t969 = t964 - t966;
        // real block of 3
        const P t970 = t961 + t968;
        const P t971 = t961 - t968;
        const P t972 = t970 + t951;
        const P t973 = c[0] * t970;
        const P t974 = t951 - t973;
        // complex block of 3
        const P t975 = t956 + t965;
        const P t976 = t959 + t967;
        const P t977 = t956 - t965;
        const P t978 = t959 - t967;
        const P t979 = t975 + t946;
        const P t980 = flipped<1, 0>(t950);
        const P t981 = t976 + t980;
        const P t982 = c[0] * t975;
        const P t983 = t946 - t982;
        const P t984 = P(c[0], -c[0]) * t976;
        const P t985 = t950 + t984;
        const P t986 = c[1] * t978;
        const P t987 = t983 + t986;
        const P t988 = P(c[1], -c[1]) * t977;
        const P t989 = t985 + t988;
        const P t990 = t983 - t986;
        const P t991 = shuffled<0, 3>(t988, t985);
        const P t992 = shuffled<0, 3>(t985, t988);
        const P t993 = t991 - t992;
        const P t994 = flipped<0, 1>(t963);
        // real block of 3
        const P t995 = t969 + t994;
        const P t996 = flipped<1, 0>(t969);
        const P t997 = t963 + t996;
        const P t998 = t995 + t952;
        const P t999 = c[0] * t995;
        const P t1000 = t952 - t999;
        // complex block of 13, multiplier 4
        const P t1001 = t672 + t914;
        const P t1002 = flipped<1, 0>(t669);
        const P t1003 = t1002 + t972;
        const P t1004 = c[12] * t914;
        const P t1005 = t672 - t1004;
        const P t1006 = P(c[12], -c[12]) * t972;
        const P t1007 = t669 + t1006;
        const P t1008 = c[2] * t990;
        const P t1009 = c[3] * t993;
        const P t1010 = t1008 - t1009;
        const P t1011 = c[2] * t993;
        const P t1012 = c[3] * t990;
        const P t1013 = t1011 + t1012;
        const P t1014 = c[3] * t937;
        const P t1015 = c[2] * t934;
        const P t1016 = t1014 - t1015;
        const P t1017 = c[2] * t937;
        const P t1018 = c[3] * t934;
        const P t1019 = t1017 + t1018;
        // real block of 3
        const P t1020 = c[1] * t940;
        // complex block of 13, multiplier 4
        const P t1021 = c[9] * t1020;
        const P t1022 = P(c[8], -c[8]) * t944;
        const P t1023 = t1021 + t1022;
        const P t1024 = c[8] * t1000;
        // real block of 3
        const P t1025 = c[1] * t997;
        // complex block of 13, multiplier 4
        const P t1026 = P(c[9], -c[9]) * t1025;
        const P t1027 = t1024 + t1026;
        const P t1028 = c[4] * t981;
        const P t1029 = c[5] * t979;
        const P t1030 = t1028 - t1029;
        const P t1031 = c[5] * t981;
        const P t1032 = c[4] * t979;
        const P t1033 = t1031 + t1032;
        const P t1034 = c[5] * t923;
        const P t1035 = c[4] * t925;
        const P t1036 = t1034 - t1035;
        const P t1037 = c[5] * t925;
        const P t1038 = c[4] * t923;
        const P t1039 = t1037 + t1038;
        const P t1040 = c[10] * t916;
        // real block of 3
        const P t1041 = c[1] * t913;
        // complex block of 13, multiplier 4
        const P t1042 = c[11] * t1041;
        const P t1043 = t1040 + t1042;
        const P t1044 = c[10] * t974;
        // real block of 3
        const P t1045 = c[1] * t971;
        // complex block of 13, multiplier 4
        const P t1046 = c[11] * t1045;
        const P t1047 = t1044 + t1046;
        const P t1048 = c[7] * t987;
        const P t1049 = P(c[6], -c[6]) * t989;
        const P t1050 = t1048 + t1049;
        const P t1051 = c[7] * t989;
        const P t1052 = P(-c[6], c[6]) * t987;
        const P t1053 = t1051 + t1052;
        const P t1054 = P(-c[7], c[7]) * t931;
        const P t1055 = c[6] * t933;
        const P t1056 = t1054 + t1055;
        const P t1057 = c[6] * t931;
        const P t1058 = P(c[7], -c[7]) * t933;
        const P t1059 = t1057 + t1058;
        // spectrum block of 3
        const P t1060 = t1005 - t1043;
        const P t1061 = c[0] * t1043;
        const P t1062 = t1061 + t1005;
        const P t1063 = c[16] * t1041;
        const P t1064 = c[17] * t916;
        const P t1065 = t1063 - t1064;
        const P t1066 = t1062 - t1065;
        const P t1067 = t1062 + t1065;
        const P t1068 = flipped<1, 0>(t1053);
        // complex block of 3
        const P t1069 = t1068 + t1013;
        const P t1070 = t1050 + t1010;
        const P t1071 = flipped<0, 1>(t1013);
        const P t1072 = t1053 + t1071;
        const P t1073 = t1050 - t1010;
        const P t1074 = t1069 - t1033;
        const P t1075 = t1070 + t1030;
        const P t1076 = c[0] * t1069;
        const P t1077 = t1033 + t1076;
        const P t1078 = c[0] * t1070;
        const P t1079 = t1030 - t1078;
        const P t1080 = c[1] * t1073;
        const P t1081 = t1080 - t1077;
        const P t1082 = P(c[1], -c[1]) * t1072;
        const P t1083 = t1079 + t1082;
        const P t1084 = t1077 + t1080;
        const P t1085 = t1079 - t1082;
        // complex block of 13, multiplier 4
        const P t1086 = c[13] * t942;
        // spectrum block of 3
        const P t1087 = t1023 + t1086;
        const P t1088 = c[0] * t1023;
        const P t1089 = t1086 - t1088;
        const P t1090 = c[18] * t1020;
        const P t1091 = P(-c[19], c[19]) * t944;
        const P t1092 = t1090 + t1091;
        const P t1093 = t1089 + t1092;
        const P t1094 = t1089 - t1092;
        // spectrum block of 2
        const P t1095 = t1060 + t1087;
        const P t1096 = t1060 - t1087;
        // spectrum block of 2
        const P t1097 = t1095 + t1075;
        const P t1098 = t1095 - t1075;
        // spectrum block of 2
        const P t1099 = t1096 + t1074;
        const P t1100 = t1096 - t1074;
        // spectrum block of 2
        const P t1101 = t1066 + t1093;
        const P t1102 = t1066 - t1093;
        // spectrum block of 2
        const P t1103 = t1101 + t1083;
        const P t1104 = t1101 - t1083;
        // spectrum block of 2
        const P t1105 = t1102 + t1081;
        const P t1106 = t1102 - t1081;
        // spectrum block of 2
        const P t1107 = t1067 + t1094;
        const P t1108 = t1067 - t1094;
        // spectrum block of 2
        const P t1109 = t1107 + t1085;
        const P t1110 = t1107 - t1085;
        // spectrum block of 2
        const P t1111 = t1108 - t1084;
        const P t1112 = t1108 + t1084;
        const P t1113 = flipped<0, 1>(t1047);
        // spectrum block of 3
        const P t1114 = t1007 + t1113;
        const P t1115 = c[0] * t1047;
        const P t1116 = flipped<1, 0>(t1007);
        const P t1117 = t1115 + t1116;
        const P t1118 = c[16] * t1045;
        const P t1119 = c[17] * t974;
        const P t1120 = t1118 - t1119;
        const P t1121 = t1117 - t1120;
        const P t1122 = t1117 + t1120;
        // complex block of 3
        const P t1123 = t1059 + t1019;
        const P t1124 = flipped<0, 1>(t1056);
        const P t1125 = t1016 + t1124;
        const P t1126 = t1019 - t1059;
        const P t1127 = flipped<1, 0>(t1016);
        const P t1128 = t1056 + t1127;
        const P t1129 = t1039 - t1123;
        const P t1130 = t1125 + t1036;
        const P t1131 = c[0] * t1123;
        const P t1132 = t1131 + t1039;
        const P t1133 = c[0] * t1125;
        const P t1134 = t1036 - t1133;
        const P t1135 = P(c[1], -c[1]) * t1128;
        const P t1136 = t1132 + t1135;
        const P t1137 = c[1] * t1126;
        const P t1138 = t1134 - t1137;
        const P t1139 = t1132 - t1135;
        const P t1140 = t1134 + t1137;
        // complex block of 13, multiplier 4
        const P t1141 = c[13] * t998;
        // spectrum block of 3
        const P t1142 = t1027 + t1141;
        const P t1143 = c[0] * t1027;
        const P t1144 = t1141 - t1143;
        const P t1145 = c[18] * t1025;
        const P t1146 = P(-c[19], c[19]) * t1000;
        const P t1147 = t1145 + t1146;
        const P t1148 = flipped<0, 1>(t1147);
        const P t1149 = t1144 + t1148;
        const P t1150 = t1144 - t1148;
        const P t1151 = flipped<1, 0>(t1114);
        // spectrum block of 2
        const P t1152 = t1151 + t1142;
        const P t1153 = flipped<0, 1>(t1142);
        const P t1154 = t1114 + t1153;
        // spectrum block of 2
        const P t1155 = t1152 + t1130;
        const P t1156 = t1152 - t1130;
        const P t1157 = flipped<1, 0>(t1154);
        // spectrum block of 2
        const P t1158 = t1157 + t1129;
        const P t1159 = flipped<0, 1>(t1129);
        const P t1160 = t1154 + t1159;
        // spectrum block of 2
        const P t1161 = t1121 + t1149;
        const P t1162 = t1121 - t1149;
        // spectrum block of 2
        const P t1163 = t1161 + t1138;
        const P t1164 = t1161 - t1138;
        // spectrum block of 2
        const P t1165 = t1162 + t1136;
        const P t1166 = t1162 - t1136;
        // spectrum block of 2
        const P t1167 = t1122 + t1150;
        const P t1168 = t1122 - t1150;
        // spectrum block of 2
        const P t1169 = t1167 + t1140;
        const P t1170 = t1167 - t1140;
        // spectrum block of 2
        const P t1171 = t1168 + t1139;
        const P t1172 = t1168 - t1139;
        // real block of 3, multiplier 2
        const P t1173 = t647 + t675;
        const P t1174 = t647 - t675;
        const P t1175 = t1173 + t731;
        const P t1176 = c[0] * t1173;
        const P t1177 = t731 - t1176;
        // real block of 3, multiplier 2
        const P t1178 = t591 + t703;
        const P t1179 = t591 - t703;
        const P t1180 = t1178 + t619;
        const P t1181 = c[0] * t1178;
        const P t1182 = t619 - t1181;
        // real block of 2
        const P t1183 = t1175 + t1180;
        const P t1184 = t1175 - t1180;
        // complex block of 2
        const P t1185 = t1177 + t1182;
        // real block of 3, multiplier 2
        const P t1186 = c[1] * t1174;
        // real block of 3, multiplier 2
        const P t1187 = c[1] * t1179;
        // complex block of 2
        const P t1188 = t1186 + t1187;
        const P t1189 = t1177 - t1182;
        const P t1190 = t1186 - t1187;
        // skew block of 6
        const P t1191 = c[1] * t706;
        const P t1192 = c[0] * t678;
        const P t1193 = t1191 + t1192;
        const P t1194 = c[0] * t706;
        const P t1195 = c[1] * t678;
        const P t1196 = t1194 - t1195;
        const P t1197 = c[0] * t650;
        const P t1198 = c[1] * t594;
        const P t1199 = t1197 + t1198;
        const P t1200 = c[1] * t650;
        const P t1201 = c[0] * t594;
        const P t1202 = t1200 - t1201;
        // complex block of 3
        const P t1203 = t1193 + t1199;
        const P t1204 = t1196 + t1202;
        const P t1205 = t1199 - t1193;
        const P t1206 = t1196 - t1202;
        const P t1207 = t1203 + t734;
        const P t1208 = t1204 - t622;
        const P t1209 = c[0] * t1203;
        const P t1210 = t1209 - t734;
        const P t1211 = c[0] * t1204;
        const P t1212 = t622 + t1211;
        const P t1213 = c[1] * t1206;
        const P t1214 = t1210 + t1213;
        const P t1215 = c[1] * t1205;
        const P t1216 = t1212 + t1215;
        const P t1217 = t1210 - t1213;
        const P t1218 = t1215 - t1212;
        // complex block of 53
        const P t1219 = c[71] * t481;
        // spectrum block of 13, multiplier 4
        const P t1220 = c[12] * t1183;
        const P t1221 = t1219 - t1220;
        const P t1222 = c[2] * t1207;
        const P t1223 = c[3] * t1208;
        const P t1224 = t1222 - t1223;
        const P t1225 = c[2] * t1208;
        const P t1226 = c[3] * t1207;
        const P t1227 = t1225 + t1226;
        const P t1228 = c[8] * t1189;
        const P t1229 = c[9] * t1190;
        const P t1230 = t1228 - t1229;
        const P t1231 = c[5] * t1217;
        const P t1232 = c[4] * t1218;
        const P t1233 = t1231 + t1232;
        const P t1234 = c[4] * t1217;
        const P t1235 = c[5] * t1218;
        const P t1236 = t1234 - t1235;
        const P t1237 = c[11] * t1188;
        const P t1238 = c[10] * t1185;
        const P t1239 = t1237 - t1238;
        const P t1240 = c[6] * t1216;
        const P t1241 = c[7] * t1214;
        const P t1242 = t1240 - t1241;
        const P t1243 = c[7] * t1216;
        const P t1244 = c[6] * t1214;
        const P t1245 = t1243 + t1244;
        // spectrum block of 3
        const P t1246 = t1239 + t1221;
        const P t1247 = c[0] * t1239;
        const P t1248 = t1221 - t1247;
        const P t1249 = c[16] * t1188;
        const P t1250 = c[17] * t1185;
        const P t1251 = t1249 + t1250;
        const P t1252 = t1248 + t1251;
        const P t1253 = t1248 - t1251;
        // complex block of 3
        const P t1254 = t1227 - t1245;
        const P t1255 = t1242 + t1224;
        const P t1256 = t1245 + t1227;
        const P t1257 = t1242 - t1224;
        const P t1258 = t1254 + t1236;
        const P t1259 = t1255 + t1233;
        const P t1260 = c[0] * t1254;
        const P t1261 = t1236 - t1260;
        const P t1262 = c[0] * t1255;
        const P t1263 = t1233 - t1262;
        const P t1264 = c[1] * t1257;
        const P t1265 = t1261 + t1264;
        const P t1266 = c[1] * t1256;
        const P t1267 = t1263 + t1266;
        const P t1268 = t1261 - t1264;
        const P t1269 = t1263 - t1266;
        // spectrum block of 13, multiplier 4
        const P t1270 = c[13] * t1184;
        // spectrum block of 3
        const P t1271 = t1230 + t1270;
        const P t1272 = c[0] * t1230;
        const P t1273 = t1270 - t1272;
        const P t1274 = c[18] * t1190;
        const P t1275 = c[19] * t1189;
        const P t1276 = t1274 + t1275;
        const P t1277 = t1273 - t1276;
        const P t1278 = t1273 + t1276;
        // spectrum block of 2
        const P t1279 = t1246 + t1271;
        const P t1280 = t1246 - t1271;
        // spectrum block of 2
        const P t1281 = t1279 + t1259;
        const P t1282 = t1279 - t1259;
        // spectrum block of 2
        const P t1283 = t1280 + t1258;
        const P t1284 = t1280 - t1258;
        // spectrum block of 2
        const P t1285 = t1252 + t1277;
        const P t1286 = t1252 - t1277;
        // spectrum block of 2
        const P t1287 = t1285 + t1267;
        const P t1288 = t1285 - t1267;
        // spectrum block of 2
        const P t1289 = t1286 + t1265;
        const P t1290 = t1286 - t1265;
        // spectrum block of 2
        const P t1291 = t1253 + t1278;
        const P t1292 = t1253 - t1278;
        // spectrum block of 2
        const P t1293 = t1291 + t1269;
        const P t1294 = t1291 - t1269;
        // spectrum block of 2
        const P t1295 = t1292 + t1268;
        const P t1296 = t1292 - t1268;
        // spectrum block of 13, multiplier 4
        const P t1297 = t1219 + t1183;
        // spectrum block of 2
        const P t1298 = t880 + t1297;
        const P t1299 = t880 - t1297;
        // spectrum block of 2
        const P t1300 = t1298 + t1003;
        io.pair(1, t1300);
        const P t1301 = t1298 - t1003;
        io.pair(52, t1301);
        // spectrum block of 2
        const P t1302 = t1299 - t1001;
        io.pair(23, t1302);
        const P t1303 = t1299 + t1001;
        io.pair(30, t1303);
        // spectrum block of 2
        const P t1304 = t864 + t1281;
        const P t1305 = t864 - t1281;
        // spectrum block of 2
        const P t1306 = t1304 + t1155;
        io.pair(10, t1306);
        const P t1307 = t1304 - t1155;
        io.pair(43, t1307);
        // spectrum block of 2
        const P t1308 = t1305 - t1097;
        io.pair(18, t1308);
        const P t1309 = t1305 + t1097;
        io.pair(35, t1309);
        // spectrum block of 2
        const P t1310 = t878 + t1295;
        const P t1311 = t878 - t1295;
        // spectrum block of 2
        const P t1312 = t1310 + t1171;
        io.pair(47, t1312);
        const P t1313 = t1310 - t1171;
        io.pair(6, t1313);
        // spectrum block of 2
        const P t1314 = t1311 - t1111;
        io.pair(21, t1314);
        const P t1315 = t1311 + t1111;
        io.pair(32, t1315);
        // spectrum block of 2
        const P t1316 = t876 + t1293;
        const P t1317 = t876 - t1293;
        // spectrum block of 2
        const P t1318 = t1316 + t1169;
        io.pair(46, t1318);
        const P t1319 = t1316 - t1169;
        io.pair(7, t1319);
        // spectrum block of 2
        const P t1320 = t1317 - t1109;
        io.pair(51, t1320);
        const P t1321 = t1317 + t1109;
        io.pair(2, t1321);
        // spectrum block of 2
        const P t1322 = t871 + t1288;
        const P t1323 = t871 - t1288;
        // spectrum block of 2
        const P t1324 = t1322 + t1164;
        io.pair(36, t1324);
        const P t1325 = t1322 - t1164;
        io.pair(17, t1325);
        // spectrum block of 2
        const P t1326 = t1323 - t1104;
        io.pair(33, t1326);
        const P t1327 = t1323 + t1104;
        io.pair(20, t1327);
        // spectrum block of 2
        const P t1328 = t866 + t1283;
        const P t1329 = t866 - t1283;
        // spectrum block of 2
        const P t1330 = t1328 + t1158;
        io.pair(42, t1330);
        const P t1331 = t1328 - t1158;
        io.pair(11, t1331);
        // spectrum block of 2
        const P t1332 = t1329 - t1099;
        io.pair(12, t1332);
        const P t1333 = t1329 + t1099;
        io.pair(41, t1333);
        // spectrum block of 2
        const P t1334 = t872 + t1289;
        const P t1335 = t872 - t1289;
        // spectrum block of 2
        const P t1336 = t1334 + t1165;
        io.pair(49, t1336);
        const P t1337 = t1334 - t1165;
        io.pair(4, t1337);
        // spectrum block of 2
        const P t1338 = t1335 - t1105;
        io.pair(14, t1338);
        const P t1339 = t1335 + t1105;
        io.pair(39, t1339);
        // spectrum block of 2
        const P t1340 = t873 + t1290;
        const P t1341 = t873 - t1290;
        // spectrum block of 2
        const P t1342 = t1340 + t1166;
        io.pair(13, t1342);
        const P t1343 = t1340 - t1166;
        io.pair(40, t1343);
        // spectrum block of 2
        const P t1344 = t1341 - t1106;
        io.pair(34, t1344);
        const P t1345 = t1341 + t1106;
        io.pair(19, t1345);
        // spectrum block of 2
        const P t1346 = t867 + t1284;
        const P t1347 = t867 - t1284;
        const P t1348 = flipped<1, 0>(t1160);
        // spectrum block of 2
        const P t1349 = t1346 + t1348;
        io.pair(24, t1349);
        const P t1350 = t1346 - t1348;
        io.pair(29, t1350);
        // spectrum block of 2
        const P t1351 = t1347 - t1100;
        io.pair(22, t1351);
        const P t1352 = t1347 + t1100;
        io.pair(31, t1352);
        // spectrum block of 2
        const P t1353 = t870 + t1287;
        const P t1354 = t870 - t1287;
        // spectrum block of 2
        const P t1355 = t1353 + t1163;
        io.pair(28, t1355);
        const P t1356 = t1353 - t1163;
        io.pair(25, t1356);
        // spectrum block of 2
        const P t1357 = t1354 - t1103;
        io.pair(8, t1357);
        const P t1358 = t1354 + t1103;
        io.pair(45, t1358);
        // spectrum block of 2
        const P t1359 = t877 + t1294;
        const P t1360 = t877 - t1294;
        // spectrum block of 2
        const P t1361 = t1359 + t1170;
        io.pair(15, t1361);
        const P t1362 = t1359 - t1170;
        io.pair(38, t1362);
        // spectrum block of 2
        const P t1363 = t1360 - t1110;
        io.pair(27, t1363);
        const P t1364 = t1360 + t1110;
        io.pair(26, t1364);
        // spectrum block of 2
        const P t1365 = t879 + t1296;
        const P t1366 = t879 - t1296;
        // spectrum block of 2
        const P t1367 = t1365 + t1172;
        io.pair(44, t1367);
        const P t1368 = t1365 - t1172;
        io.pair(9, t1368);
        // spectrum block of 2
        const P t1369 = t1366 - t1112;
        io.pair(5, t1369);
        const P t1370 = t1366 + t1112;
        io.pair(48, t1370);
        // spectrum block of 2
        const P t1371 = t865 + t1282;
        const P t1372 = t865 - t1282;
        // spectrum block of 2
        const P t1373 = t1371 + t1156;
        io.pair(16, t1373);
        const P t1374 = t1371 - t1156;
        io.pair(37, t1374);
        // spectrum block of 2
        const P t1375 = t1372 - t1098;
        io.pair(50, t1375);
        const P t1376 = t1372 + t1098;
        io.pair(3, t1376);
    }
};

}  // namespace zulg
