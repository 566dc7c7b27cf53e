// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 53.
// Complex DFT of 53 points, Rader block.
// 880 additions, 880 subtractions, 852 multiplications (958 with `scale`); 72 constants; 110 values alive at most.
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
        0.6007253775544544,  // c[2]: -Q[1] of 13
        0.015496188988565054,  // c[3]: -P[1] of 13
        0.1741386011521359,  // c[4]: Q[3] of 13
        0.5751407294740031,  // c[5]: -P[3] of 13
        0.5084294662830964,  // c[6]: -Q[5] of 13
        0.3203288761978803,  // c[7]: -P[5] of 13
        0.6008758031820526,  // c[8]: -Q[2] of 13
        0.007705858903092426,  // c[9]: P[2] of 13
        0.15924941320823024,  // c[10]: -Q[4] of 13
        0.5794400189009605,  // c[11]: -P[4] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.5018097763375671,  // c[16]: sin 2 pi 1/3 times -P[4] of 13
        0.1379140373760925,  // c[17]: sin 2 pi 1/3 times -Q[4] of 13
        0.00667346956805653,  // c[18]: sin 2 pi 1/3 times P[2] of 13
        0.520373710075036,  // c[19]: sin 2 pi 1/3 times -Q[2] of 13
        0.2535110589592131,  // c[20]: P[1] of 53
        0.11888864474491956,  // c[21]: Q[1] of 53
        0.13160258300584013,  // c[22]: -Q[2] of 53
        0.2471500091242084,  // c[23]: P[2] of 53
        0.01920483471835668,  // c[24]: P[3] of 53
        0.27934484277921784,  // c[25]: Q[3] of 53
        0.2755686148630738,  // c[26]: Q[4] of 53
        0.049641770378907886,  // c[27]: P[4] of 53
        0.08550180730497182,  // c[28]: P[5] of 53
        0.26663047052332334,  // c[29]: -Q[5] of 53
        0.21010412063116707,  // c[30]: Q[6] of 53
        0.18509085703434766,  // c[31]: P[6] of 53
        0.02729324277461261,  // c[32]: P[7] of 53
        0.2786708556034366,  // c[33]: -Q[7] of 53
        0.27887234952845297,  // c[34]: Q[8] of 53
        0.02515113381908794,  // c[35]: P[8] of 53
        0.27926923264549397,  // c[36]: P[9] of 53
        0.02027467783966699,  // c[37]: -Q[9] of 53
        0.2421434442697633,  // c[38]: Q[10] of 53
        0.14060198882334973,  // c[39]: -P[10] of 53
        0.23326162380743898,  // c[40]: P[11] of 53
        0.15489151598012768,  // c[41]: Q[11] of 53
        0.1903832491584887,  // c[42]: Q[12] of 53
        0.20532068893261132,  // c[43]: P[12] of 53
        0.27729778231647617,  // c[44]: -P[13] of 53
        0.038836925551200704,  // c[45]: -Q[13] of 53
        0.2645541253996386,  // c[46]: -Q[14] of 53
        0.09172503255893466,  // c[47]: P[14] of 53
        0.10309300873453617,  // c[48]: -P[15] of 53
        0.2603347814141748,  // c[49]: Q[15] of 53
        0.04985858822323415,  // c[50]: Q[16] of 53
        0.27552946855879373,  // c[51]: -P[16] of 53
        0.062487064695808406,  // c[52]: P[17] of 53
        0.27294272954157833,  // c[53]: Q[17] of 53
        0.12218648440059575,  // c[54]: Q[18] of 53
        0.2519381469601781,  // c[55]: P[18] of 53
        0.0855629575860694,  // c[56]: P[19] of 53
        0.26661085340441376,  // c[57]: -Q[19] of 53
        0.279948840618166,  // c[58]: Q[20] of 53
        0.005568976607062611,  // c[59]: P[20] of 53
        0.2608612063201607,  // c[60]: -P[21] of 53
        0.10175361370042776,  // c[61]: Q[21] of 53
        0.21551686731931244,  // c[62]: Q[22] of 53
        0.17875918651855408,  // c[63]: P[22] of 53
        0.015387675100292094,  // c[64]: P[23] of 53
        0.2795810907749542,  // c[65]: -Q[23] of 53
        0.2758601234844355,  // c[66]: -Q[24] of 53
        0.04799540743714245,  // c[67]: P[24] of 53
        0.26811627900458906,  // c[68]: -P[25] of 53
        0.08072191645791539,  // c[69]: Q[25] of 53
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
        const V x16r = io.re(16);
        const V t2 = t0 + x16r;
        const V t3 = c[0] * t0;
        const V t4 = x16r - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x47r = io.re(47);
        const V x49r = io.re(49);
        const V t6 = x47r + x49r;
        const V t7 = x47r - x49r;
        const V x42r = io.re(42);
        const V t8 = t6 + x42r;
        const V t9 = c[0] * t6;
        const V t10 = x42r - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x46r = io.re(46);
        const V x28r = io.re(28);
        const V t12 = x46r + x28r;
        const V t13 = x46r - x28r;
        const V x10r = io.re(10);
        const V t14 = t12 + x10r;
        const V t15 = c[0] * t12;
        const V t16 = x10r - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V x44r = io.re(44);
        const V x13r = io.re(13);
        const V t18 = x44r + x13r;
        const V t19 = x44r - x13r;
        const V x24r = io.re(24);
        const V t20 = t18 + x24r;
        const V t21 = c[0] * t18;
        const V t22 = x24r - t21;
        const V t23 = c[1] * t19;
        // real block of 2
        const V t24 = t2 + t14;
        const V t25 = t2 - t14;
        // real block of 2
        const V t26 = t8 + t20;
        const V t27 = t8 - t20;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // complex block of 2
        const V t30 = t4 + t16;
        const V t31 = t5 + t17;
        const V t32 = t4 - t16;
        const V t33 = t17 - t5;
        // complex block of 2
        const V t34 = t10 + t22;
        const V t35 = t11 + t23;
        const V t36 = t10 - t22;
        const V t37 = t23 - t11;
        // complex block of 2
        const V t38 = t30 + t34;
        const V t39 = t31 + t35;
        const V t40 = t30 - t34;
        const V t41 = t35 - t31;
        // complex block of 2
        const V t42 = t32 - t37;
        const V t43 = t33 + t36;
        const V t44 = t32 + t37;
        const V t45 = t33 - t36;
        // real block of 13, multiplier 4
        const V x1r = io.re(1);
        const V t46 = x1r + t28;
        const V t47 = c[12] * t28;
        const V t48 = x1r - t47;
        const V t49 = c[2] * t45;
        const V t50 = c[3] * t44;
        const V t51 = t49 - t50;
        const V t52 = c[2] * t44;
        const V t53 = c[3] * t45;
        const V t54 = t53 + t52;
        const V t55 = c[8] * t41;
        const V t56 = c[9] * t40;
        const V t57 = t56 - t55;
        const V t58 = c[8] * t40;
        const V t59 = c[9] * t41;
        const V t60 = t59 + t58;
        const V t61 = c[4] * t27;
        const V t62 = c[5] * t25;
        const V t63 = t62 + t61;
        const V t64 = c[4] * t25;
        const V t65 = c[5] * t27;
        const V t66 = t64 - t65;
        const V t67 = c[10] * t39;
        const V t68 = c[11] * t38;
        const V t69 = t68 + t67;
        const V t70 = c[10] * t38;
        const V t71 = c[11] * t39;
        const V t72 = t71 - t70;
        const V t73 = c[6] * t43;
        const V t74 = c[7] * t42;
        const V t75 = t74 + t73;
        const V t76 = c[6] * t42;
        const V t77 = c[7] * t43;
        const V t78 = t77 - t76;
        const V t79 = c[13] * t29;
        // spectrum block of 2
        const V t80 = t48 + t79;
        const V t81 = t48 - t79;
        // complex block of 2
        const V t82 = t72 + t60;
        const V t83 = t57 - t69;
        const V t84 = t72 - t60;
        const V t85 = t69 + t57;
        // spectrum block of 3, multiplier 2
        const V t86 = t83 + t80;
        const V t87 = c[0] * t83;
        const V t88 = t80 - t87;
        const V t89 = c[1] * t82;
        const V t90 = t88 - t89;
        const V t91 = t88 + t89;
        // spectrum block of 3, multiplier 2
        const V t92 = t81 - t85;
        const V t93 = c[0] * t85;
        const V t94 = t93 + t81;
        const V t95 = c[1] * t84;
        const V t96 = t94 - t95;
        const V t97 = t94 + t95;
        // complex block of 2
        const V t98 = t51 + t75;
        const V t99 = t78 - t54;
        const V t100 = t75 - t51;
        const V t101 = t54 + t78;
        // mirrored skew block of 6
        const V t102 = c[0] * t100;
        const V t103 = c[1] * t101;
        const V t104 = t103 + t102;
        // spectrum block of 3, multiplier 2
        const V t105 = t99 + t66;
        const V t106 = c[0] * t99;
        const V t107 = t66 - t106;
        const V t108 = c[1] * t98;
        const V t109 = t107 - t108;
        const V t110 = t107 + t108;
        // spectrum block of 3, multiplier 2
        const V t111 = t104 + t63;
        const V t112 = c[0] * t104;
        const V t113 = t112 - t63;
        const V t114 = c[14] * t100;
        const V t115 = c[15] * t101;
        const V t116 = t114 - t115;
        const V t117 = t113 + t116;
        const V t118 = t113 - t116;
        // real block of 3
        const V x26r = io.re(26);
        const V x20r = io.re(20);
        const V t119 = x26r + x20r;
        const V t120 = x26r - x20r;
        const V x3r = io.re(3);
        const V t121 = t119 + x3r;
        const V t122 = c[0] * t119;
        const V t123 = x3r - t122;
        const V t124 = c[1] * t120;
        // real block of 3
        const V x32r = io.re(32);
        const V x39r = io.re(39);
        const V t125 = x32r + x39r;
        const V t126 = x32r - x39r;
        const V x41r = io.re(41);
        const V t127 = t125 + x41r;
        const V t128 = c[0] * t125;
        const V t129 = x41r - t128;
        const V t130 = c[1] * t126;
        // real block of 3
        const V x2r = io.re(2);
        const V x45r = io.re(45);
        const V t131 = x2r + x45r;
        const V t132 = x2r - x45r;
        const V x35r = io.re(35);
        const V t133 = t131 + x35r;
        const V t134 = c[0] * t131;
        const V t135 = x35r - t134;
        const V t136 = c[1] * t132;
        // real block of 3
        const V x48r = io.re(48);
        const V x19r = io.re(19);
        const V t137 = x48r + x19r;
        const V t138 = x48r - x19r;
        const V x31r = io.re(31);
        const V t139 = t137 + x31r;
        const V t140 = c[0] * t137;
        const V t141 = x31r - t140;
        const V t142 = c[1] * t138;
        // real block of 2
        const V t143 = t121 + t133;
        const V t144 = t121 - t133;
        // real block of 2
        const V t145 = t127 + t139;
        const V t146 = t127 - t139;
        // real block of 2
        const V t147 = t143 + t145;
        const V t148 = t143 - t145;
        // complex block of 2
        const V t149 = t123 + t135;
        const V t150 = t124 + t136;
        const V t151 = t123 - t135;
        const V t152 = t136 - t124;
        // complex block of 2
        const V t153 = t129 + t141;
        const V t154 = t130 + t142;
        const V t155 = t129 - t141;
        const V t156 = t142 - t130;
        // complex block of 2
        const V t157 = t149 + t153;
        const V t158 = t150 + t154;
        const V t159 = t149 - t153;
        const V t160 = t154 - t150;
        // complex block of 2
        const V t161 = t151 - t156;
        const V t162 = t152 + t155;
        const V t163 = t151 + t156;
        const V t164 = t152 - t155;
        // real block of 13, multiplier 4
        const V x30r = io.re(30);
        const V t165 = x30r + t147;
        const V t166 = c[12] * t147;
        const V t167 = x30r - t166;
        const V t168 = c[2] * t164;
        const V t169 = c[3] * t163;
        const V t170 = t168 - t169;
        const V t171 = c[2] * t163;
        const V t172 = c[3] * t164;
        const V t173 = t172 + t171;
        const V t174 = c[8] * t160;
        const V t175 = c[9] * t159;
        const V t176 = t175 - t174;
        const V t177 = c[8] * t159;
        const V t178 = c[9] * t160;
        const V t179 = t178 + t177;
        const V t180 = c[4] * t146;
        const V t181 = c[5] * t144;
        const V t182 = t181 + t180;
        const V t183 = c[4] * t144;
        const V t184 = c[5] * t146;
        const V t185 = t183 - t184;
        const V t186 = c[10] * t158;
        const V t187 = c[11] * t157;
        const V t188 = t187 + t186;
        const V t189 = c[10] * t157;
        const V t190 = c[11] * t158;
        const V t191 = t190 - t189;
        const V t192 = c[6] * t162;
        const V t193 = c[7] * t161;
        const V t194 = t193 + t192;
        const V t195 = c[6] * t161;
        const V t196 = c[7] * t162;
        const V t197 = t196 - t195;
        const V t198 = c[13] * t148;
        // spectrum block of 2
        const V t199 = t167 + t198;
        const V t200 = t167 - t198;
        // complex block of 2
        const V t201 = t191 + t179;
        const V t202 = t176 - t188;
        const V t203 = t191 - t179;
        const V t204 = t188 + t176;
        // spectrum block of 3, multiplier 2
        const V t205 = t202 + t199;
        const V t206 = c[0] * t202;
        const V t207 = t199 - t206;
        const V t208 = c[1] * t201;
        const V t209 = t207 - t208;
        const V t210 = t207 + t208;
        // spectrum block of 3, multiplier 2
        const V t211 = t200 - t204;
        const V t212 = c[0] * t204;
        const V t213 = t212 + t200;
        const V t214 = c[1] * t203;
        const V t215 = t213 - t214;
        const V t216 = t213 + t214;
        // complex block of 2
        const V t217 = t170 + t194;
        const V t218 = t197 - t173;
        const V t219 = t194 - t170;
        const V t220 = t173 + t197;
        // mirrored skew block of 6
        const V t221 = c[0] * t219;
        const V t222 = c[1] * t220;
        const V t223 = t222 + t221;
        // spectrum block of 3, multiplier 2
        const V t224 = t218 + t185;
        const V t225 = c[0] * t218;
        const V t226 = t185 - t225;
        const V t227 = c[1] * t217;
        const V t228 = t226 - t227;
        const V t229 = t226 + t227;
        // spectrum block of 3, multiplier 2
        const V t230 = t223 + t182;
        const V t231 = c[0] * t223;
        const V t232 = t231 - t182;
        const V t233 = c[14] * t219;
        const V t234 = c[15] * t220;
        const V t235 = t233 - t234;
        const V t236 = t232 + t235;
        const V t237 = t232 - t235;
        // real block of 3
        const V x38r = io.re(38);
        const V x17r = io.re(17);
        const V t238 = x38r + x17r;
        const V t239 = x38r - x17r;
        const V x37r = io.re(37);
        const V t240 = t238 + x37r;
        const V t241 = c[0] * t238;
        const V t242 = x37r - t241;
        const V t243 = c[1] * t239;
        // real block of 3
        const V x6r = io.re(6);
        const V x4r = io.re(4);
        const V t244 = x6r + x4r;
        const V t245 = x6r - x4r;
        const V x11r = io.re(11);
        const V t246 = t244 + x11r;
        const V t247 = c[0] * t244;
        const V t248 = x11r - t247;
        const V t249 = c[1] * t245;
        // real block of 3
        const V x7r = io.re(7);
        const V x25r = io.re(25);
        const V t250 = x7r + x25r;
        const V t251 = x7r - x25r;
        const V x43r = io.re(43);
        const V t252 = t250 + x43r;
        const V t253 = c[0] * t250;
        const V t254 = x43r - t253;
        const V t255 = c[1] * t251;
        // real block of 3
        const V x9r = io.re(9);
        const V x40r = io.re(40);
        const V t256 = x9r + x40r;
        const V t257 = x9r - x40r;
        const V x29r = io.re(29);
        const V t258 = t256 + x29r;
        const V t259 = c[0] * t256;
        const V t260 = x29r - t259;
        const V t261 = c[1] * t257;
        // real block of 2
        const V t262 = t240 + t252;
        const V t263 = t240 - t252;
        // real block of 2
        const V t264 = t246 + t258;
        const V t265 = t246 - t258;
        // real block of 2
        const V t266 = t262 + t264;
        const V t267 = t262 - t264;
        // complex block of 2
        const V t268 = t242 + t254;
        const V t269 = t243 + t255;
        const V t270 = t242 - t254;
        const V t271 = t255 - t243;
        // complex block of 2
        const V t272 = t248 + t260;
        const V t273 = t249 + t261;
        const V t274 = t248 - t260;
        const V t275 = t261 - t249;
        // complex block of 2
        const V t276 = t268 + t272;
        const V t277 = t269 + t273;
        const V t278 = t268 - t272;
        const V t279 = t273 - t269;
        // complex block of 2
        const V t280 = t270 - t275;
        const V t281 = t271 + t274;
        const V t282 = t270 + t275;
        const V t283 = t271 - t274;
        // real block of 13, multiplier 4
        const V x52r = io.re(52);
        const V t284 = x52r + t266;
        const V t285 = c[12] * t266;
        const V t286 = x52r - t285;
        const V t287 = c[2] * t283;
        const V t288 = c[3] * t282;
        const V t289 = t287 - t288;
        const V t290 = c[2] * t282;
        const V t291 = c[3] * t283;
        const V t292 = t291 + t290;
        const V t293 = c[8] * t279;
        const V t294 = c[9] * t278;
        const V t295 = t294 - t293;
        const V t296 = c[8] * t278;
        const V t297 = c[9] * t279;
        const V t298 = t297 + t296;
        const V t299 = c[4] * t265;
        const V t300 = c[5] * t263;
        const V t301 = t300 + t299;
        const V t302 = c[4] * t263;
        const V t303 = c[5] * t265;
        const V t304 = t302 - t303;
        const V t305 = c[10] * t277;
        const V t306 = c[11] * t276;
        const V t307 = t306 + t305;
        const V t308 = c[10] * t276;
        const V t309 = c[11] * t277;
        const V t310 = t309 - t308;
        const V t311 = c[6] * t281;
        const V t312 = c[7] * t280;
        const V t313 = t312 + t311;
        const V t314 = c[6] * t280;
        const V t315 = c[7] * t281;
        const V t316 = t315 - t314;
        const V t317 = c[13] * t267;
        // spectrum block of 2
        const V t318 = t286 + t317;
        const V t319 = t286 - t317;
        // complex block of 2
        const V t320 = t310 + t298;
        const V t321 = t295 - t307;
        const V t322 = t310 - t298;
        const V t323 = t307 + t295;
        // spectrum block of 3, multiplier 2
        const V t324 = t321 + t318;
        const V t325 = c[0] * t321;
        const V t326 = t318 - t325;
        const V t327 = c[1] * t320;
        const V t328 = t326 - t327;
        const V t329 = t326 + t327;
        // spectrum block of 3, multiplier 2
        const V t330 = t319 - t323;
        const V t331 = c[0] * t323;
        const V t332 = t331 + t319;
        const V t333 = c[1] * t322;
        const V t334 = t332 - t333;
        const V t335 = t332 + t333;
        // complex block of 2
        const V t336 = t289 + t313;
        const V t337 = t316 - t292;
        const V t338 = t313 - t289;
        const V t339 = t292 + t316;
        // mirrored skew block of 6
        const V t340 = c[0] * t338;
        const V t341 = c[1] * t339;
        const V t342 = t341 + t340;
        // spectrum block of 3, multiplier 2
        const V t343 = t337 + t304;
        const V t344 = c[0] * t337;
        const V t345 = t304 - t344;
        const V t346 = c[1] * t336;
        const V t347 = t345 - t346;
        const V t348 = t345 + t346;
        // spectrum block of 3, multiplier 2
        const V t349 = t342 + t301;
        const V t350 = c[0] * t342;
        const V t351 = t350 - t301;
        const V t352 = c[14] * t338;
        const V t353 = c[15] * t339;
        const V t354 = t352 - t353;
        const V t355 = t351 + t354;
        const V t356 = t351 - t354;
        // real block of 3
        const V x27r = io.re(27);
        const V x33r = io.re(33);
        const V t357 = x27r + x33r;
        const V t358 = x27r - x33r;
        const V x50r = io.re(50);
        const V t359 = t357 + x50r;
        const V t360 = c[0] * t357;
        const V t361 = x50r - t360;
        const V t362 = c[1] * t358;
        // real block of 3
        const V x21r = io.re(21);
        const V x14r = io.re(14);
        const V t363 = x21r + x14r;
        const V t364 = x21r - x14r;
        const V x12r = io.re(12);
        const V t365 = t363 + x12r;
        const V t366 = c[0] * t363;
        const V t367 = x12r - t366;
        const V t368 = c[1] * t364;
        // real block of 3
        const V x51r = io.re(51);
        const V x8r = io.re(8);
        const V t369 = x51r + x8r;
        const V t370 = x51r - x8r;
        const V x18r = io.re(18);
        const V t371 = t369 + x18r;
        const V t372 = c[0] * t369;
        const V t373 = x18r - t372;
        const V t374 = c[1] * t370;
        // real block of 3
        const V x5r = io.re(5);
        const V x34r = io.re(34);
        const V t375 = x5r + x34r;
        const V t376 = x5r - x34r;
        const V x22r = io.re(22);
        const V t377 = t375 + x22r;
        const V t378 = c[0] * t375;
        const V t379 = x22r - t378;
        const V t380 = c[1] * t376;
        // real block of 2
        const V t381 = t359 + t371;
        const V t382 = t359 - t371;
        // real block of 2
        const V t383 = t365 + t377;
        const V t384 = t365 - t377;
        // real block of 2
        const V t385 = t381 + t383;
        const V t386 = t381 - t383;
        // complex block of 2
        const V t387 = t361 + t373;
        const V t388 = t362 + t374;
        const V t389 = t361 - t373;
        const V t390 = t374 - t362;
        // complex block of 2
        const V t391 = t367 + t379;
        const V t392 = t368 + t380;
        const V t393 = t367 - t379;
        const V t394 = t380 - t368;
        // complex block of 2
        const V t395 = t387 + t391;
        const V t396 = t388 + t392;
        const V t397 = t387 - t391;
        const V t398 = t392 - t388;
        // complex block of 2
        const V t399 = t389 - t394;
        const V t400 = t390 + t393;
        const V t401 = t389 + t394;
        const V t402 = t390 - t393;
        // real block of 13, multiplier 4
        const V x23r = io.re(23);
        const V t403 = x23r + t385;
        const V t404 = c[12] * t385;
        const V t405 = x23r - t404;
        const V t406 = c[2] * t402;
        const V t407 = c[3] * t401;
        const V t408 = t406 - t407;
        const V t409 = c[2] * t401;
        const V t410 = c[3] * t402;
        const V t411 = t410 + t409;
        const V t412 = c[8] * t398;
        const V t413 = c[9] * t397;
        const V t414 = t413 - t412;
        const V t415 = c[8] * t397;
        const V t416 = c[9] * t398;
        const V t417 = t416 + t415;
        const V t418 = c[4] * t384;
        const V t419 = c[5] * t382;
        const V t420 = t419 + t418;
        const V t421 = c[4] * t382;
        const V t422 = c[5] * t384;
        const V t423 = t421 - t422;
        const V t424 = c[10] * t396;
        const V t425 = c[11] * t395;
        const V t426 = t425 + t424;
        const V t427 = c[10] * t395;
        const V t428 = c[11] * t396;
        const V t429 = t428 - t427;
        const V t430 = c[6] * t400;
        const V t431 = c[7] * t399;
        const V t432 = t431 + t430;
        const V t433 = c[6] * t399;
        const V t434 = c[7] * t400;
        const V t435 = t434 - t433;
        const V t436 = c[13] * t386;
        // spectrum block of 2
        const V t437 = t405 + t436;
        const V t438 = t405 - t436;
        // complex block of 2
        const V t439 = t429 + t417;
        const V t440 = t414 - t426;
        const V t441 = t429 - t417;
        const V t442 = t426 + t414;
        // spectrum block of 3, multiplier 2
        const V t443 = t440 + t437;
        const V t444 = c[0] * t440;
        const V t445 = t437 - t444;
        const V t446 = c[1] * t439;
        const V t447 = t445 - t446;
        const V t448 = t445 + t446;
        // spectrum block of 3, multiplier 2
        const V t449 = t438 - t442;
        const V t450 = c[0] * t442;
        const V t451 = t450 + t438;
        const V t452 = c[1] * t441;
        const V t453 = t451 - t452;
        const V t454 = t451 + t452;
        // complex block of 2
        const V t455 = t408 + t432;
        const V t456 = t435 - t411;
        const V t457 = t432 - t408;
        const V t458 = t411 + t435;
        // mirrored skew block of 6
        const V t459 = c[0] * t457;
        const V t460 = c[1] * t458;
        const V t461 = t460 + t459;
        // spectrum block of 3, multiplier 2
        const V t462 = t456 + t423;
        const V t463 = c[0] * t456;
        const V t464 = t423 - t463;
        const V t465 = c[1] * t455;
        const V t466 = t464 - t465;
        const V t467 = t464 + t465;
        // spectrum block of 3, multiplier 2
        const V t468 = t461 + t420;
        const V t469 = c[0] * t461;
        const V t470 = t469 - t420;
        const V t471 = c[14] * t457;
        const V t472 = c[15] * t458;
        const V t473 = t471 - t472;
        const V t474 = t470 + t473;
        const V t475 = t470 - t473;
        // real block of 2
        const V t476 = t46 + t284;
        const V t477 = t46 - t284;
        // real block of 2
        const V t478 = t165 + t403;
        const V t479 = t165 - t403;
        // real block of 2
        const V t480 = t476 + t478;
        const V t481 = t476 - t478;
        // complex block of 2
        const V t482 = t86 + t324;
        const V t483 = t105 + t343;
        const V t484 = t86 - t324;
        const V t485 = t105 - t343;
        // complex block of 2
        const V t486 = t205 + t443;
        const V t487 = t224 + t462;
        const V t488 = t205 - t443;
        const V t489 = t224 - t462;
        // complex block of 2
        const V t490 = t482 + t486;
        const V t491 = t483 + t487;
        const V t492 = t482 - t486;
        const V t493 = t483 - t487;
        // complex block of 2
        const V t494 = t484 + t489;
        const V t495 = t485 - t488;
        const V t496 = t484 - t489;
        const V t497 = t485 + t488;
        // complex block of 2
        const V t498 = t97 + t335;
        const V t499 = t118 + t356;
        const V t500 = t97 - t335;
        const V t501 = t356 - t118;
        // complex block of 2
        const V t502 = t216 + t454;
        const V t503 = t237 + t475;
        const V t504 = t216 - t454;
        const V t505 = t475 - t237;
        // complex block of 2
        const V t506 = t498 + t502;
        const V t507 = t499 + t503;
        const V t508 = t498 - t502;
        const V t509 = t503 - t499;
        // complex block of 2
        const V t510 = t500 + t505;
        const V t511 = t501 - t504;
        const V t512 = t500 - t505;
        const V t513 = t501 + t504;
        // complex block of 2
        const V t514 = t91 + t329;
        const V t515 = t109 + t347;
        const V t516 = t91 - t329;
        const V t517 = t109 - t347;
        // complex block of 2
        const V t518 = t210 + t448;
        const V t519 = t228 + t466;
        const V t520 = t210 - t448;
        const V t521 = t228 - t466;
        // complex block of 2
        const V t522 = t514 + t518;
        const V t523 = t515 + t519;
        const V t524 = t514 - t518;
        const V t525 = t515 - t519;
        // complex block of 2
        const V t526 = t516 + t521;
        const V t527 = t517 - t520;
        const V t528 = t516 - t521;
        const V t529 = t517 + t520;
        // complex block of 2
        const V t530 = t90 + t328;
        const V t531 = t110 + t348;
        const V t532 = t90 - t328;
        const V t533 = t348 - t110;
        // complex block of 2
        const V t534 = t209 + t447;
        const V t535 = t229 + t467;
        const V t536 = t209 - t447;
        const V t537 = t467 - t229;
        // complex block of 2
        const V t538 = t530 + t534;
        const V t539 = t531 + t535;
        const V t540 = t530 - t534;
        const V t541 = t535 - t531;
        // complex block of 2
        const V t542 = t532 + t537;
        const V t543 = t533 - t536;
        const V t544 = t532 - t537;
        const V t545 = t533 + t536;
        // complex block of 2
        const V t546 = t92 + t330;
        const V t547 = t117 + t355;
        const V t548 = t92 - t330;
        const V t549 = t355 - t117;
        // complex block of 2
        const V t550 = t211 + t449;
        const V t551 = t236 + t474;
        const V t552 = t211 - t449;
        const V t553 = t474 - t236;
        // complex block of 2
        const V t554 = t546 + t550;
        const V t555 = t547 + t551;
        const V t556 = t546 - t550;
        const V t557 = t551 - t547;
        // complex block of 2
        const V t558 = t548 + t553;
        const V t559 = t549 - t552;
        const V t560 = t548 - t553;
        const V t561 = t549 + t552;
        // complex block of 2
        const V t562 = t96 + t334;
        const V t563 = t111 + t349;
        const V t564 = t96 - t334;
        const V t565 = t111 - t349;
        // complex block of 2
        const V t566 = t215 + t453;
        const V t567 = t230 + t468;
        const V t568 = t215 - t453;
        const V t569 = t230 - t468;
        // complex block of 2
        const V t570 = t562 + t566;
        const V t571 = t563 + t567;
        const V t572 = t562 - t566;
        const V t573 = t563 - t567;
        // complex block of 2
        const V t574 = t564 + t569;
        const V t575 = t565 - t568;
        const V t576 = t564 - t569;
        const V t577 = t565 + t568;
        // real block of 3
        const V x15i = io.im(15);
        const V x36i = io.im(36);
        const V t578 = x15i + x36i;
        const V t579 = x15i - x36i;
        const V x16i = io.im(16);
        const V t580 = t578 + x16i;
        const V t581 = c[0] * t578;
        const V t582 = x16i - t581;
        const V t583 = c[1] * t579;
        // real block of 3
        const V x47i = io.im(47);
        const V x49i = io.im(49);
        const V t584 = x47i + x49i;
        const V t585 = x47i - x49i;
        const V x42i = io.im(42);
        const V t586 = t584 + x42i;
        const V t587 = c[0] * t584;
        const V t588 = x42i - t587;
        const V t589 = c[1] * t585;
        // real block of 3
        const V x46i = io.im(46);
        const V x28i = io.im(28);
        const V t590 = x46i + x28i;
        const V t591 = x46i - x28i;
        const V x10i = io.im(10);
        const V t592 = t590 + x10i;
        const V t593 = c[0] * t590;
        const V t594 = x10i - t593;
        const V t595 = c[1] * t591;
        // real block of 3
        const V x44i = io.im(44);
        const V x13i = io.im(13);
        const V t596 = x44i + x13i;
        const V t597 = x44i - x13i;
        const V x24i = io.im(24);
        const V t598 = t596 + x24i;
        const V t599 = c[0] * t596;
        const V t600 = x24i - t599;
        const V t601 = c[1] * t597;
        // real block of 2
        const V t602 = t580 + t592;
        const V t603 = t580 - t592;
        // real block of 2
        const V t604 = t586 + t598;
        const V t605 = t586 - t598;
        // real block of 2
        const V t606 = t602 + t604;
        const V t607 = t602 - t604;
        // complex block of 2
        const V t608 = t582 + t594;
        const V t609 = t583 + t595;
        const V t610 = t582 - t594;
        const V t611 = t595 - t583;
        // complex block of 2
        const V t612 = t588 + t600;
        const V t613 = t589 + t601;
        const V t614 = t588 - t600;
        const V t615 = t601 - t589;
        // complex block of 2
        const V t616 = t608 + t612;
        const V t617 = t609 + t613;
        const V t618 = t608 - t612;
        const V t619 = t613 - t609;
        // complex block of 2
        const V t620 = t610 - t615;
        const V t621 = t611 + t614;
        const V t622 = t610 + t615;
        const V t623 = t611 - t614;
        // real block of 13, multiplier 4
        const V x1i = io.im(1);
        const V t624 = x1i + t606;
        const V t625 = c[12] * t606;
        const V t626 = x1i - t625;
        const V t627 = c[2] * t623;
        const V t628 = c[3] * t622;
        const V t629 = t627 - t628;
        const V t630 = c[2] * t622;
        const V t631 = c[3] * t623;
        const V t632 = t631 + t630;
        const V t633 = c[8] * t619;
        const V t634 = c[9] * t618;
        const V t635 = t634 - t633;
        const V t636 = c[8] * t618;
        const V t637 = c[9] * t619;
        const V t638 = t637 + t636;
        const V t639 = c[4] * t605;
        const V t640 = c[5] * t603;
        const V t641 = t640 + t639;
        const V t642 = c[4] * t603;
        const V t643 = c[5] * t605;
        const V t644 = t642 - t643;
        const V t645 = c[10] * t617;
        const V t646 = c[11] * t616;
        const V t647 = t646 + t645;
        const V t648 = c[10] * t616;
        const V t649 = c[11] * t617;
        const V t650 = t649 - t648;
        const V t651 = c[6] * t621;
        const V t652 = c[7] * t620;
        const V t653 = t652 + t651;
        const V t654 = c[6] * t620;
        const V t655 = c[7] * t621;
        const V t656 = t655 - t654;
        const V t657 = c[13] * t607;
        // spectrum block of 2
        const V t658 = t626 + t657;
        const V t659 = t626 - t657;
        // complex block of 2
        const V t660 = t650 + t638;
        const V t661 = t635 - t647;
        const V t662 = t650 - t638;
        const V t663 = t647 + t635;
        // spectrum block of 3, multiplier 2
        const V t664 = t661 + t658;
        const V t665 = c[0] * t661;
        const V t666 = t658 - t665;
        const V t667 = c[1] * t660;
        const V t668 = t666 - t667;
        const V t669 = t666 + t667;
        // spectrum block of 3, multiplier 2
        const V t670 = t659 - t663;
        const V t671 = c[0] * t663;
        const V t672 = t671 + t659;
        const V t673 = c[1] * t662;
        const V t674 = t672 - t673;
        const V t675 = t672 + t673;
        // complex block of 2
        const V t676 = t629 + t653;
        const V t677 = t656 - t632;
        const V t678 = t653 - t629;
        const V t679 = t632 + t656;
        // mirrored skew block of 6
        const V t680 = c[0] * t678;
        const V t681 = c[1] * t679;
        const V t682 = t681 + t680;
        // spectrum block of 3, multiplier 2
        const V t683 = t677 + t644;
        const V t684 = c[0] * t677;
        const V t685 = t644 - t684;
        const V t686 = c[1] * t676;
        const V t687 = t685 - t686;
        const V t688 = t685 + t686;
        // spectrum block of 3, multiplier 2
        const V t689 = t682 + t641;
        const V t690 = c[0] * t682;
        const V t691 = t690 - t641;
        const V t692 = c[14] * t678;
        const V t693 = c[15] * t679;
        const V t694 = t692 - t693;
        const V t695 = t691 + t694;
        const V t696 = t691 - t694;
        // real block of 3
        const V x26i = io.im(26);
        const V x20i = io.im(20);
        const V t697 = x26i + x20i;
        const V t698 = x26i - x20i;
        const V x3i = io.im(3);
        const V t699 = t697 + x3i;
        const V t700 = c[0] * t697;
        const V t701 = x3i - t700;
        const V t702 = c[1] * t698;
        // real block of 3
        const V x32i = io.im(32);
        const V x39i = io.im(39);
        const V t703 = x32i + x39i;
        const V t704 = x32i - x39i;
        const V x41i = io.im(41);
        const V t705 = t703 + x41i;
        const V t706 = c[0] * t703;
        const V t707 = x41i - t706;
        const V t708 = c[1] * t704;
        // real block of 3
        const V x2i = io.im(2);
        const V x45i = io.im(45);
        const V t709 = x2i + x45i;
        const V t710 = x2i - x45i;
        const V x35i = io.im(35);
        const V t711 = t709 + x35i;
        const V t712 = c[0] * t709;
        const V t713 = x35i - t712;
        const V t714 = c[1] * t710;
        // real block of 3
        const V x48i = io.im(48);
        const V x19i = io.im(19);
        const V t715 = x48i + x19i;
        const V t716 = x48i - x19i;
        const V x31i = io.im(31);
        const V t717 = t715 + x31i;
        const V t718 = c[0] * t715;
        const V t719 = x31i - t718;
        const V t720 = c[1] * t716;
        // real block of 2
        const V t721 = t699 + t711;
        const V t722 = t699 - t711;
        // real block of 2
        const V t723 = t705 + t717;
        const V t724 = t705 - t717;
        // real block of 2
        const V t725 = t721 + t723;
        const V t726 = t721 - t723;
        // complex block of 2
        const V t727 = t701 + t713;
        const V t728 = t702 + t714;
        const V t729 = t701 - t713;
        const V t730 = t714 - t702;
        // complex block of 2
        const V t731 = t707 + t719;
        const V t732 = t708 + t720;
        const V t733 = t707 - t719;
        const V t734 = t720 - t708;
        // complex block of 2
        const V t735 = t727 + t731;
        const V t736 = t728 + t732;
        const V t737 = t727 - t731;
        const V t738 = t732 - t728;
        // complex block of 2
        const V t739 = t729 - t734;
        const V t740 = t730 + t733;
        const V t741 = t729 + t734;
        const V t742 = t730 - t733;
        // real block of 13, multiplier 4
        const V x30i = io.im(30);
        const V t743 = x30i + t725;
        const V t744 = c[12] * t725;
        const V t745 = x30i - t744;
        const V t746 = c[2] * t742;
        const V t747 = c[3] * t741;
        const V t748 = t746 - t747;
        const V t749 = c[2] * t741;
        const V t750 = c[3] * t742;
        const V t751 = t750 + t749;
        const V t752 = c[8] * t738;
        const V t753 = c[9] * t737;
        const V t754 = t753 - t752;
        const V t755 = c[8] * t737;
        const V t756 = c[9] * t738;
        const V t757 = t756 + t755;
        const V t758 = c[4] * t724;
        const V t759 = c[5] * t722;
        const V t760 = t759 + t758;
        const V t761 = c[4] * t722;
        const V t762 = c[5] * t724;
        const V t763 = t761 - t762;
        const V t764 = c[10] * t736;
        const V t765 = c[11] * t735;
        const V t766 = t765 + t764;
        const V t767 = c[10] * t735;
        const V t768 = c[11] * t736;
        const V t769 = t768 - t767;
        const V t770 = c[6] * t740;
        const V t771 = c[7] * t739;
        const V t772 = t771 + t770;
        const V t773 = c[6] * t739;
        const V t774 = c[7] * t740;
        const V t775 = t774 - t773;
        const V t776 = c[13] * t726;
        // spectrum block of 2
        const V t777 = t745 + t776;
        const V t778 = t745 - t776;
        // complex block of 2
        const V t779 = t769 + t757;
        const V t780 = t754 - t766;
        const V t781 = t769 - t757;
        const V t782 = t766 + t754;
        // spectrum block of 3, multiplier 2
        const V t783 = t780 + t777;
        const V t784 = c[0] * t780;
        const V t785 = t777 - t784;
        const V t786 = c[1] * t779;
        const V t787 = t785 - t786;
        const V t788 = t785 + t786;
        // spectrum block of 3, multiplier 2
        const V t789 = t778 - t782;
        const V t790 = c[0] * t782;
        const V t791 = t790 + t778;
        const V t792 = c[1] * t781;
        const V t793 = t791 - t792;
        const V t794 = t791 + t792;
        // complex block of 2
        const V t795 = t748 + t772;
        const V t796 = t775 - t751;
        const V t797 = t772 - t748;
        const V t798 = t751 + t775;
        // mirrored skew block of 6
        const V t799 = c[0] * t797;
        const V t800 = c[1] * t798;
        const V t801 = t800 + t799;
        // spectrum block of 3, multiplier 2
        const V t802 = t796 + t763;
        const V t803 = c[0] * t796;
        const V t804 = t763 - t803;
        const V t805 = c[1] * t795;
        const V t806 = t804 - t805;
        const V t807 = t804 + t805;
        // spectrum block of 3, multiplier 2
        const V t808 = t801 + t760;
        const V t809 = c[0] * t801;
        const V t810 = t809 - t760;
        const V t811 = c[14] * t797;
        const V t812 = c[15] * t798;
        const V t813 = t811 - t812;
        const V t814 = t810 + t813;
        const V t815 = t810 - t813;
        // real block of 3
        const V x38i = io.im(38);
        const V x17i = io.im(17);
        const V t816 = x38i + x17i;
        const V t817 = x38i - x17i;
        const V x37i = io.im(37);
        const V t818 = t816 + x37i;
        const V t819 = c[0] * t816;
        const V t820 = x37i - t819;
        const V t821 = c[1] * t817;
        // real block of 3
        const V x6i = io.im(6);
        const V x4i = io.im(4);
        const V t822 = x6i + x4i;
        const V t823 = x6i - x4i;
        const V x11i = io.im(11);
        const V t824 = t822 + x11i;
        const V t825 = c[0] * t822;
        const V t826 = x11i - t825;
        const V t827 = c[1] * t823;
        // real block of 3
        const V x7i = io.im(7);
        const V x25i = io.im(25);
        const V t828 = x7i + x25i;
        const V t829 = x7i - x25i;
        const V x43i = io.im(43);
        const V t830 = t828 + x43i;
        const V t831 = c[0] * t828;
        const V t832 = x43i - t831;
        const V t833 = c[1] * t829;
        // real block of 3
        const V x9i = io.im(9);
        const V x40i = io.im(40);
        const V t834 = x9i + x40i;
        const V t835 = x9i - x40i;
        const V x29i = io.im(29);
        const V t836 = t834 + x29i;
        const V t837 = c[0] * t834;
        const V t838 = x29i - t837;
        const V t839 = c[1] * t835;
        // real block of 2
        const V t840 = t818 + t830;
        const V t841 = t818 - t830;
        // real block of 2
        const V t842 = t824 + t836;
        const V t843 = t824 - t836;
        // real block of 2
        const V t844 = t840 + t842;
        const V t845 = t840 - t842;
        // complex block of 2
        const V t846 = t820 + t832;
        const V t847 = t821 + t833;
        const V t848 = t820 - t832;
        const V t849 = t833 - t821;
        // complex block of 2
        const V t850 = t826 + t838;
        const V t851 = t827 + t839;
        const V t852 = t826 - t838;
        const V t853 = t839 - t827;
        // complex block of 2
        const V t854 = t846 + t850;
        const V t855 = t847 + t851;
        const V t856 = t846 - t850;
        const V t857 = t851 - t847;
        // complex block of 2
        const V t858 = t848 - t853;
        const V t859 = t849 + t852;
        const V t860 = t848 + t853;
        const V t861 = t849 - t852;
        // real block of 13, multiplier 4
        const V x52i = io.im(52);
        const V t862 = x52i + t844;
        const V t863 = c[12] * t844;
        const V t864 = x52i - t863;
        const V t865 = c[2] * t861;
        const V t866 = c[3] * t860;
        const V t867 = t865 - t866;
        const V t868 = c[2] * t860;
        const V t869 = c[3] * t861;
        const V t870 = t869 + t868;
        const V t871 = c[8] * t857;
        const V t872 = c[9] * t856;
        const V t873 = t872 - t871;
        const V t874 = c[8] * t856;
        const V t875 = c[9] * t857;
        const V t876 = t875 + t874;
        const V t877 = c[4] * t843;
        const V t878 = c[5] * t841;
        const V t879 = t878 + t877;
        const V t880 = c[4] * t841;
        const V t881 = c[5] * t843;
        const V t882 = t880 - t881;
        const V t883 = c[10] * t855;
        const V t884 = c[11] * t854;
        const V t885 = t884 + t883;
        const V t886 = c[10] * t854;
        const V t887 = c[11] * t855;
        const V t888 = t887 - t886;
        const V t889 = c[6] * t859;
        const V t890 = c[7] * t858;
        const V t891 = t890 + t889;
        const V t892 = c[6] * t858;
        const V t893 = c[7] * t859;
        const V t894 = t893 - t892;
        const V t895 = c[13] * t845;
        // spectrum block of 2
        const V t896 = t864 + t895;
        const V t897 = t864 - t895;
        // complex block of 2
        const V t898 = t888 + t876;
        const V t899 = t873 - t885;
        const V t900 = t888 - t876;
        const V t901 = t885 + t873;
        // spectrum block of 3, multiplier 2
        const V t902 = t899 + t896;
        const V t903 = c[0] * t899;
        const V t904 = t896 - t903;
        const V t905 = c[1] * t898;
        const V t906 = t904 - t905;
        const V t907 = t904 + t905;
        // spectrum block of 3, multiplier 2
        const V t908 = t897 - t901;
        const V t909 = c[0] * t901;
        const V t910 = t909 + t897;
        const V t911 = c[1] * t900;
        const V t912 = t910 - t911;
        const V t913 = t910 + t911;
        // complex block of 2
        const V t914 = t867 + t891;
        const V t915 = t894 - t870;
        const V t916 = t891 - t867;
        const V t917 = t870 + t894;
        // mirrored skew block of 6
        const V t918 = c[0] * t916;
        const V t919 = c[1] * t917;
        const V t920 = t919 + t918;
        // spectrum block of 3, multiplier 2
        const V t921 = t915 + t882;
        const V t922 = c[0] * t915;
        const V t923 = t882 - t922;
        const V t924 = c[1] * t914;
        const V t925 = t923 - t924;
        const V t926 = t923 + t924;
        // spectrum block of 3, multiplier 2
        const V t927 = t920 + t879;
        const V t928 = c[0] * t920;
        const V t929 = t928 - t879;
        const V t930 = c[14] * t916;
        const V t931 = c[15] * t917;
        const V t932 = t930 - t931;
        const V t933 = t929 + t932;
        const V t934 = t929 - t932;
        // real block of 3
        const V x27i = io.im(27);
        const V x33i = io.im(33);
        const V t935 = x27i + x33i;
        const V t936 = x27i - x33i;
        const V x50i = io.im(50);
        const V t937 = t935 + x50i;
        const V t938 = c[0] * t935;
        const V t939 = x50i - t938;
        const V t940 = c[1] * t936;
        // real block of 3
        const V x21i = io.im(21);
        const V x14i = io.im(14);
        const V t941 = x21i + x14i;
        const V t942 = x21i - x14i;
        const V x12i = io.im(12);
        const V t943 = t941 + x12i;
        const V t944 = c[0] * t941;
        const V t945 = x12i - t944;
        const V t946 = c[1] * t942;
        // real block of 3
        const V x51i = io.im(51);
        const V x8i = io.im(8);
        const V t947 = x51i + x8i;
        const V t948 = x51i - x8i;
        const V x18i = io.im(18);
        const V t949 = t947 + x18i;
        const V t950 = c[0] * t947;
        const V t951 = x18i - t950;
        const V t952 = c[1] * t948;
        // real block of 3
        const V x5i = io.im(5);
        const V x34i = io.im(34);
        const V t953 = x5i + x34i;
        const V t954 = x5i - x34i;
        const V x22i = io.im(22);
        const V t955 = t953 + x22i;
        const V t956 = c[0] * t953;
        const V t957 = x22i - t956;
        const V t958 = c[1] * t954;
        // real block of 2
        const V t959 = t937 + t949;
        const V t960 = t937 - t949;
        // real block of 2
        const V t961 = t943 + t955;
        const V t962 = t943 - t955;
        // real block of 2
        const V t963 = t959 + t961;
        const V t964 = t959 - t961;
        // complex block of 2
        const V t965 = t939 + t951;
        const V t966 = t940 + t952;
        const V t967 = t939 - t951;
        const V t968 = t952 - t940;
        // complex block of 2
        const V t969 = t945 + t957;
        const V t970 = t946 + t958;
        const V t971 = t945 - t957;
        const V t972 = t958 - t946;
        // complex block of 2
        const V t973 = t965 + t969;
        const V t974 = t966 + t970;
        const V t975 = t965 - t969;
        const V t976 = t970 - t966;
        // complex block of 2
        const V t977 = t967 - t972;
        const V t978 = t968 + t971;
        const V t979 = t967 + t972;
        const V t980 = t968 - t971;
        // real block of 13, multiplier 4
        const V x23i = io.im(23);
        const V t981 = x23i + t963;
        const V t982 = c[12] * t963;
        const V t983 = x23i - t982;
        const V t984 = c[2] * t980;
        const V t985 = c[3] * t979;
        const V t986 = t984 - t985;
        const V t987 = c[2] * t979;
        const V t988 = c[3] * t980;
        const V t989 = t988 + t987;
        const V t990 = c[8] * t976;
        const V t991 = c[9] * t975;
        const V t992 = t991 - t990;
        const V t993 = c[8] * t975;
        const V t994 = c[9] * t976;
        const V t995 = t994 + t993;
        const V t996 = c[4] * t962;
        const V t997 = c[5] * t960;
        const V t998 = t997 + t996;
        const V t999 = c[4] * t960;
        const V t1000 = c[5] * t962;
        const V t1001 = t999 - t1000;
        const V t1002 = c[10] * t974;
        const V t1003 = c[11] * t973;
        const V t1004 = t1003 + t1002;
        const V t1005 = c[10] * t973;
        const V t1006 = c[11] * t974;
        const V t1007 = t1006 - t1005;
        const V t1008 = c[6] * t978;
        const V t1009 = c[7] * t977;
        const V t1010 = t1009 + t1008;
        const V t1011 = c[6] * t977;
        const V t1012 = c[7] * t978;
        const V t1013 = t1012 - t1011;
        const V t1014 = c[13] * t964;
        // spectrum block of 2
        const V t1015 = t983 + t1014;
        const V t1016 = t983 - t1014;
        // complex block of 2
        const V t1017 = t1007 + t995;
        const V t1018 = t992 - t1004;
        const V t1019 = t1007 - t995;
        const V t1020 = t1004 + t992;
        // spectrum block of 3, multiplier 2
        const V t1021 = t1018 + t1015;
        const V t1022 = c[0] * t1018;
        const V t1023 = t1015 - t1022;
        const V t1024 = c[1] * t1017;
        const V t1025 = t1023 - t1024;
        const V t1026 = t1023 + t1024;
        // spectrum block of 3, multiplier 2
        const V t1027 = t1016 - t1020;
        const V t1028 = c[0] * t1020;
        const V t1029 = t1028 + t1016;
        const V t1030 = c[1] * t1019;
        const V t1031 = t1029 - t1030;
        const V t1032 = t1029 + t1030;
        // complex block of 2
        const V t1033 = t986 + t1010;
        const V t1034 = t1013 - t989;
        const V t1035 = t1010 - t986;
        const V t1036 = t989 + t1013;
        // mirrored skew block of 6
        const V t1037 = c[0] * t1035;
        const V t1038 = c[1] * t1036;
        const V t1039 = t1038 + t1037;
        // spectrum block of 3, multiplier 2
        const V t1040 = t1034 + t1001;
        const V t1041 = c[0] * t1034;
        const V t1042 = t1001 - t1041;
        const V t1043 = c[1] * t1033;
        const V t1044 = t1042 - t1043;
        const V t1045 = t1042 + t1043;
        // spectrum block of 3, multiplier 2
        const V t1046 = t1039 + t998;
        const V t1047 = c[0] * t1039;
        const V t1048 = t1047 - t998;
        const V t1049 = c[14] * t1035;
        const V t1050 = c[15] * t1036;
        const V t1051 = t1049 - t1050;
        const V t1052 = t1048 + t1051;
        const V t1053 = t1048 - t1051;
        // real block of 2
        const V t1054 = t624 + t862;
        const V t1055 = t624 - t862;
        // real block of 2
        const V t1056 = t743 + t981;
        const V t1057 = t743 - t981;
        // real block of 2
        const V t1058 = t1054 + t1056;
        const V t1059 = t1054 - t1056;
        // complex block of 2
        const V t1060 = t664 + t902;
        const V t1061 = t683 + t921;
        const V t1062 = t664 - t902;
        const V t1063 = t683 - t921;
        // complex block of 2
        const V t1064 = t783 + t1021;
        const V t1065 = t802 + t1040;
        const V t1066 = t783 - t1021;
        const V t1067 = t802 - t1040;
        // complex block of 2
        const V t1068 = t1060 + t1064;
        const V t1069 = t1061 + t1065;
        const V t1070 = t1060 - t1064;
        const V t1071 = t1061 - t1065;
        // complex block of 2
        const V t1072 = t1062 + t1067;
        const V t1073 = t1063 - t1066;
        const V t1074 = t1062 - t1067;
        const V t1075 = t1063 + t1066;
        // complex block of 2
        const V t1076 = t675 + t913;
        const V t1077 = t696 + t934;
        const V t1078 = t675 - t913;
        const V t1079 = t934 - t696;
        // complex block of 2
        const V t1080 = t794 + t1032;
        const V t1081 = t815 + t1053;
        const V t1082 = t794 - t1032;
        const V t1083 = t1053 - t815;
        // complex block of 2
        const V t1084 = t1076 + t1080;
        const V t1085 = t1077 + t1081;
        const V t1086 = t1076 - t1080;
        const V t1087 = t1081 - t1077;
        // complex block of 2
        const V t1088 = t1078 + t1083;
        const V t1089 = t1079 - t1082;
        const V t1090 = t1078 - t1083;
        const V t1091 = t1079 + t1082;
        // complex block of 2
        const V t1092 = t669 + t907;
        const V t1093 = t687 + t925;
        const V t1094 = t669 - t907;
        const V t1095 = t687 - t925;
        // complex block of 2
        const V t1096 = t788 + t1026;
        const V t1097 = t806 + t1044;
        const V t1098 = t788 - t1026;
        const V t1099 = t806 - t1044;
        // complex block of 2
        const V t1100 = t1092 + t1096;
        const V t1101 = t1093 + t1097;
        const V t1102 = t1092 - t1096;
        const V t1103 = t1093 - t1097;
        // complex block of 2
        const V t1104 = t1094 + t1099;
        const V t1105 = t1095 - t1098;
        const V t1106 = t1094 - t1099;
        const V t1107 = t1095 + t1098;
        // complex block of 2
        const V t1108 = t668 + t906;
        const V t1109 = t688 + t926;
        const V t1110 = t668 - t906;
        const V t1111 = t926 - t688;
        // complex block of 2
        const V t1112 = t787 + t1025;
        const V t1113 = t807 + t1045;
        const V t1114 = t787 - t1025;
        const V t1115 = t1045 - t807;
        // complex block of 2
        const V t1116 = t1108 + t1112;
        const V t1117 = t1109 + t1113;
        const V t1118 = t1108 - t1112;
        const V t1119 = t1113 - t1109;
        // complex block of 2
        const V t1120 = t1110 + t1115;
        const V t1121 = t1111 - t1114;
        const V t1122 = t1110 - t1115;
        const V t1123 = t1111 + t1114;
        // complex block of 2
        const V t1124 = t670 + t908;
        const V t1125 = t695 + t933;
        const V t1126 = t670 - t908;
        const V t1127 = t933 - t695;
        // complex block of 2
        const V t1128 = t789 + t1027;
        const V t1129 = t814 + t1052;
        const V t1130 = t789 - t1027;
        const V t1131 = t1052 - t814;
        // complex block of 2
        const V t1132 = t1124 + t1128;
        const V t1133 = t1125 + t1129;
        const V t1134 = t1124 - t1128;
        const V t1135 = t1129 - t1125;
        // complex block of 2
        const V t1136 = t1126 + t1131;
        const V t1137 = t1127 - t1130;
        const V t1138 = t1126 - t1131;
        const V t1139 = t1127 + t1130;
        // complex block of 2
        const V t1140 = t674 + t912;
        const V t1141 = t689 + t927;
        const V t1142 = t674 - t912;
        const V t1143 = t689 - t927;
        // complex block of 2
        const V t1144 = t793 + t1031;
        const V t1145 = t808 + t1046;
        const V t1146 = t793 - t1031;
        const V t1147 = t808 - t1046;
        // complex block of 2
        const V t1148 = t1140 + t1144;
        const V t1149 = t1141 + t1145;
        const V t1150 = t1140 - t1144;
        const V t1151 = t1141 - t1145;
        // complex block of 2
        const V t1152 = t1142 + t1147;
        const V t1153 = t1143 - t1146;
        const V t1154 = t1142 - t1147;
        const V t1155 = t1143 + t1146;
        // complex block of 53
        const V x0r = io.re(0);
        const V t1156 = x0r + t480;
        const V x0i = io.im(0);
        io.re(0, t1156);
        const V t1157 = x0i + t1058;
        io.im(0, t1157);
        const V t1158 = c[70] * t480;
        const V t1159 = x0r - t1158;
        const V t1160 = c[70] * t1058;
        const V t1161 = x0i - t1160;
        const V t1162 = c[20] * t1107;
        const V t1163 = c[21] * t1106;
        const V t1164 = t1163 + t1162;
        const V t1165 = c[20] * t1106;
        const V t1166 = c[21] * t1107;
        const V t1167 = t1165 - t1166;
        const V t1168 = c[20] * t529;
        const V t1169 = c[21] * t528;
        const V t1170 = t1169 + t1168;
        const V t1171 = c[20] * t528;
        const V t1172 = c[21] * t529;
        const V t1173 = t1172 - t1171;
        const V t1174 = c[22] * t573;
        const V t1175 = c[23] * t572;
        const V t1176 = t1175 - t1174;
        const V t1177 = c[22] * t572;
        const V t1178 = c[23] * t573;
        const V t1179 = t1178 + t1177;
        const V t1180 = c[22] * t1151;
        const V t1181 = c[23] * t1150;
        const V t1182 = t1181 - t1180;
        const V t1183 = c[22] * t1150;
        const V t1184 = c[23] * t1151;
        const V t1185 = t1184 + t1183;
        const V t1186 = c[24] * t1123;
        const V t1187 = c[25] * t1122;
        const V t1188 = t1187 - t1186;
        const V t1189 = c[24] * t1122;
        const V t1190 = c[25] * t1123;
        const V t1191 = t1190 + t1189;
        const V t1192 = c[24] * t545;
        const V t1193 = c[25] * t544;
        const V t1194 = t1192 - t1193;
        const V t1195 = c[24] * t544;
        const V t1196 = c[25] * t545;
        const V t1197 = t1196 + t1195;
        const V t1198 = c[26] * t491;
        const V t1199 = c[27] * t490;
        const V t1200 = t1199 - t1198;
        const V t1201 = c[26] * t490;
        const V t1202 = c[27] * t491;
        const V t1203 = t1202 + t1201;
        const V t1204 = c[26] * t1069;
        const V t1205 = c[27] * t1068;
        const V t1206 = t1205 - t1204;
        const V t1207 = c[26] * t1068;
        const V t1208 = c[27] * t1069;
        const V t1209 = t1208 + t1207;
        const V t1210 = c[28] * t1091;
        const V t1211 = c[29] * t1090;
        const V t1212 = t1210 - t1211;
        const V t1213 = c[28] * t1090;
        const V t1214 = c[29] * t1091;
        const V t1215 = t1214 + t1213;
        const V t1216 = c[28] * t513;
        const V t1217 = c[29] * t512;
        const V t1218 = t1217 - t1216;
        const V t1219 = c[28] * t512;
        const V t1220 = c[29] * t513;
        const V t1221 = t1220 + t1219;
        const V t1222 = c[30] * t557;
        const V t1223 = c[31] * t556;
        const V t1224 = t1223 + t1222;
        const V t1225 = c[30] * t556;
        const V t1226 = c[31] * t557;
        const V t1227 = t1225 - t1226;
        const V t1228 = c[30] * t1135;
        const V t1229 = c[31] * t1134;
        const V t1230 = t1229 + t1228;
        const V t1231 = c[30] * t1134;
        const V t1232 = c[31] * t1135;
        const V t1233 = t1231 - t1232;
        const V t1234 = c[32] * t1139;
        const V t1235 = c[33] * t1138;
        const V t1236 = t1235 + t1234;
        const V t1237 = c[32] * t1138;
        const V t1238 = c[33] * t1139;
        const V t1239 = t1237 - t1238;
        const V t1240 = c[32] * t561;
        const V t1241 = c[33] * t560;
        const V t1242 = t1241 + t1240;
        const V t1243 = c[32] * t560;
        const V t1244 = c[33] * t561;
        const V t1245 = t1244 - t1243;
        const V t1246 = c[34] * t507;
        const V t1247 = c[35] * t506;
        const V t1248 = t1247 + t1246;
        const V t1249 = c[34] * t506;
        const V t1250 = c[35] * t507;
        const V t1251 = t1249 - t1250;
        const V t1252 = c[34] * t1085;
        const V t1253 = c[35] * t1084;
        const V t1254 = t1253 + t1252;
        const V t1255 = c[34] * t1084;
        const V t1256 = c[35] * t1085;
        const V t1257 = t1255 - t1256;
        const V t1258 = c[36] * t1075;
        const V t1259 = c[37] * t1074;
        const V t1260 = t1258 - t1259;
        const V t1261 = c[36] * t1074;
        const V t1262 = c[37] * t1075;
        const V t1263 = t1262 + t1261;
        const V t1264 = c[36] * t497;
        const V t1265 = c[37] * t496;
        const V t1266 = t1265 - t1264;
        const V t1267 = c[36] * t496;
        const V t1268 = c[37] * t497;
        const V t1269 = t1268 + t1267;
        const V t1270 = c[38] * t541;
        const V t1271 = c[39] * t540;
        const V t1272 = t1270 - t1271;
        const V t1273 = c[38] * t540;
        const V t1274 = c[39] * t541;
        const V t1275 = t1274 + t1273;
        const V t1276 = c[38] * t1119;
        const V t1277 = c[39] * t1118;
        const V t1278 = t1276 - t1277;
        const V t1279 = c[38] * t1118;
        const V t1280 = c[39] * t1119;
        const V t1281 = t1280 + t1279;
        const V t1282 = c[40] * t1155;
        const V t1283 = c[41] * t1154;
        const V t1284 = t1283 - t1282;
        const V t1285 = c[40] * t1154;
        const V t1286 = c[41] * t1155;
        const V t1287 = t1286 + t1285;
        const V t1288 = c[40] * t577;
        const V t1289 = c[41] * t576;
        const V t1290 = t1288 - t1289;
        const V t1291 = c[40] * t576;
        const V t1292 = c[41] * t577;
        const V t1293 = t1292 + t1291;
        const V t1294 = c[42] * t523;
        const V t1295 = c[43] * t522;
        const V t1296 = t1295 - t1294;
        const V t1297 = c[42] * t522;
        const V t1298 = c[43] * t523;
        const V t1299 = t1298 + t1297;
        const V t1300 = c[42] * t1101;
        const V t1301 = c[43] * t1100;
        const V t1302 = t1301 - t1300;
        const V t1303 = c[42] * t1100;
        const V t1304 = c[43] * t1101;
        const V t1305 = t1304 + t1303;
        const V t1306 = c[44] * t1057;
        const V t1307 = c[45] * t1055;
        const V t1308 = t1307 + t1306;
        const V t1309 = c[44] * t1055;
        const V t1310 = c[45] * t1057;
        const V t1311 = t1310 - t1309;
        const V t1312 = c[44] * t479;
        const V t1313 = c[45] * t477;
        const V t1314 = t1313 + t1312;
        const V t1315 = c[44] * t477;
        const V t1316 = c[45] * t479;
        const V t1317 = t1315 - t1316;
        const V t1318 = c[46] * t525;
        const V t1319 = c[47] * t524;
        const V t1320 = t1319 - t1318;
        const V t1321 = c[46] * t524;
        const V t1322 = c[47] * t525;
        const V t1323 = t1322 + t1321;
        const V t1324 = c[46] * t1103;
        const V t1325 = c[47] * t1102;
        const V t1326 = t1325 - t1324;
        const V t1327 = c[46] * t1102;
        const V t1328 = c[47] * t1103;
        const V t1329 = t1328 + t1327;
        const V t1330 = c[48] * t1153;
        const V t1331 = c[49] * t1152;
        const V t1332 = t1331 - t1330;
        const V t1333 = c[48] * t1152;
        const V t1334 = c[49] * t1153;
        const V t1335 = t1334 + t1333;
        const V t1336 = c[48] * t575;
        const V t1337 = c[49] * t574;
        const V t1338 = t1336 - t1337;
        const V t1339 = c[48] * t574;
        const V t1340 = c[49] * t575;
        const V t1341 = t1340 + t1339;
        const V t1342 = c[50] * t539;
        const V t1343 = c[51] * t538;
        const V t1344 = t1342 - t1343;
        const V t1345 = c[50] * t538;
        const V t1346 = c[51] * t539;
        const V t1347 = t1346 + t1345;
        const V t1348 = c[50] * t1117;
        const V t1349 = c[51] * t1116;
        const V t1350 = t1348 - t1349;
        const V t1351 = c[50] * t1116;
        const V t1352 = c[51] * t1117;
        const V t1353 = t1352 + t1351;
        const V t1354 = c[52] * t1073;
        const V t1355 = c[53] * t1072;
        const V t1356 = t1355 - t1354;
        const V t1357 = c[52] * t1072;
        const V t1358 = c[53] * t1073;
        const V t1359 = t1358 + t1357;
        const V t1360 = c[52] * t495;
        const V t1361 = c[53] * t494;
        const V t1362 = t1360 - t1361;
        const V t1363 = c[52] * t494;
        const V t1364 = c[53] * t495;
        const V t1365 = t1364 + t1363;
        const V t1366 = c[54] * t509;
        const V t1367 = c[55] * t508;
        const V t1368 = t1367 + t1366;
        const V t1369 = c[54] * t508;
        const V t1370 = c[55] * t509;
        const V t1371 = t1369 - t1370;
        const V t1372 = c[54] * t1087;
        const V t1373 = c[55] * t1086;
        const V t1374 = t1373 + t1372;
        const V t1375 = c[54] * t1086;
        const V t1376 = c[55] * t1087;
        const V t1377 = t1375 - t1376;
        const V t1378 = c[56] * t1137;
        const V t1379 = c[57] * t1136;
        const V t1380 = t1378 - t1379;
        const V t1381 = c[56] * t1136;
        const V t1382 = c[57] * t1137;
        const V t1383 = t1382 + t1381;
        const V t1384 = c[56] * t559;
        const V t1385 = c[57] * t558;
        const V t1386 = t1385 - t1384;
        const V t1387 = c[56] * t558;
        const V t1388 = c[57] * t559;
        const V t1389 = t1388 + t1387;
        const V t1390 = c[58] * t555;
        const V t1391 = c[59] * t554;
        const V t1392 = t1391 + t1390;
        const V t1393 = c[58] * t554;
        const V t1394 = c[59] * t555;
        const V t1395 = t1393 - t1394;
        const V t1396 = c[58] * t1133;
        const V t1397 = c[59] * t1132;
        const V t1398 = t1397 + t1396;
        const V t1399 = c[58] * t1132;
        const V t1400 = c[59] * t1133;
        const V t1401 = t1399 - t1400;
        const V t1402 = c[60] * t1089;
        const V t1403 = c[61] * t1088;
        const V t1404 = t1403 + t1402;
        const V t1405 = c[60] * t1088;
        const V t1406 = c[61] * t1089;
        const V t1407 = t1406 - t1405;
        const V t1408 = c[60] * t511;
        const V t1409 = c[61] * t510;
        const V t1410 = t1409 + t1408;
        const V t1411 = c[60] * t510;
        const V t1412 = c[61] * t511;
        const V t1413 = t1411 - t1412;
        const V t1414 = c[62] * t493;
        const V t1415 = c[63] * t492;
        const V t1416 = t1415 + t1414;
        const V t1417 = c[62] * t492;
        const V t1418 = c[63] * t493;
        const V t1419 = t1417 - t1418;
        const V t1420 = c[62] * t1071;
        const V t1421 = c[63] * t1070;
        const V t1422 = t1421 + t1420;
        const V t1423 = c[62] * t1070;
        const V t1424 = c[63] * t1071;
        const V t1425 = t1423 - t1424;
        const V t1426 = c[64] * t1121;
        const V t1427 = c[65] * t1120;
        const V t1428 = t1426 - t1427;
        const V t1429 = c[64] * t1120;
        const V t1430 = c[65] * t1121;
        const V t1431 = t1430 + t1429;
        const V t1432 = c[64] * t543;
        const V t1433 = c[65] * t542;
        const V t1434 = t1433 - t1432;
        const V t1435 = c[64] * t542;
        const V t1436 = c[65] * t543;
        const V t1437 = t1436 + t1435;
        const V t1438 = c[66] * t571;
        const V t1439 = c[67] * t570;
        const V t1440 = t1439 + t1438;
        const V t1441 = c[66] * t570;
        const V t1442 = c[67] * t571;
        const V t1443 = t1442 - t1441;
        const V t1444 = c[66] * t1149;
        const V t1445 = c[67] * t1148;
        const V t1446 = t1445 + t1444;
        const V t1447 = c[66] * t1148;
        const V t1448 = c[67] * t1149;
        const V t1449 = t1448 - t1447;
        const V t1450 = c[68] * t1105;
        const V t1451 = c[69] * t1104;
        const V t1452 = t1451 + t1450;
        const V t1453 = c[68] * t1104;
        const V t1454 = c[69] * t1105;
        const V t1455 = t1454 - t1453;
        const V t1456 = c[68] * t527;
        const V t1457 = c[69] * t526;
        const V t1458 = t1457 + t1456;
        const V t1459 = c[68] * t526;
        const V t1460 = c[69] * t527;
        const V t1461 = t1459 - t1460;
        const V t1462 = c[71] * t481;
        const V t1463 = c[71] * t1059;
        // real block of 3, multiplier 2
        const V t1464 = t1344 + t1296;
        const V t1465 = t1344 - t1296;
        const V t1466 = t1464 + t1200;
        const V t1467 = c[0] * t1464;
        const V t1468 = t1200 - t1467;
        const V t1469 = c[1] * t1465;
        // real block of 3, multiplier 2
        const V t1470 = t1440 + t1248;
        const V t1471 = t1440 - t1248;
        const V t1472 = t1470 + t1392;
        const V t1473 = c[0] * t1470;
        const V t1474 = t1392 - t1473;
        const V t1475 = c[1] * t1471;
        // real block of 2
        const V t1476 = t1466 + t1472;
        const V t1477 = t1466 - t1472;
        // complex block of 2
        const V t1478 = t1468 + t1474;
        const V t1479 = t1469 + t1475;
        const V t1480 = t1468 - t1474;
        const V t1481 = t1469 - t1475;
        // skew block of 6
        const V t1482 = c[0] * t1299;
        const V t1483 = c[1] * t1251;
        const V t1484 = t1483 - t1482;
        const V t1485 = c[0] * t1251;
        const V t1486 = c[1] * t1299;
        const V t1487 = t1486 + t1485;
        const V t1488 = c[1] * t1443;
        const V t1489 = c[0] * t1347;
        const V t1490 = t1489 - t1488;
        const V t1491 = c[1] * t1347;
        const V t1492 = c[0] * t1443;
        const V t1493 = t1492 + t1491;
        // complex block of 3
        const V t1494 = t1484 + t1490;
        const V t1495 = t1487 + t1493;
        const V t1496 = t1484 - t1490;
        const V t1497 = t1493 - t1487;
        const V t1498 = t1494 + t1203;
        const V t1499 = t1395 - t1495;
        const V t1500 = c[0] * t1494;
        const V t1501 = t1203 - t1500;
        const V t1502 = c[0] * t1495;
        const V t1503 = t1502 + t1395;
        const V t1504 = c[1] * t1496;
        const V t1505 = c[1] * t1497;
        const V t1506 = t1501 + t1505;
        const V t1507 = t1503 - t1504;
        const V t1508 = t1501 - t1505;
        const V t1509 = t1503 + t1504;
        // spectrum block of 13, multiplier 4
        const V t1510 = c[12] * t1476;
        const V t1511 = t1159 - t1510;
        const V t1512 = c[3] * t1499;
        const V t1513 = c[2] * t1498;
        const V t1514 = t1513 + t1512;
        const V t1515 = c[3] * t1498;
        const V t1516 = c[2] * t1499;
        const V t1517 = t1515 - t1516;
        const V t1518 = c[8] * t1481;
        const V t1519 = c[9] * t1480;
        const V t1520 = t1519 - t1518;
        const V t1521 = c[5] * t1509;
        const V t1522 = c[4] * t1508;
        const V t1523 = t1522 + t1521;
        const V t1524 = c[5] * t1508;
        const V t1525 = c[4] * t1509;
        const V t1526 = t1524 - t1525;
        const V t1527 = c[10] * t1479;
        const V t1528 = c[11] * t1478;
        const V t1529 = t1527 - t1528;
        const V t1530 = c[7] * t1507;
        const V t1531 = c[6] * t1506;
        const V t1532 = t1531 + t1530;
        const V t1533 = c[7] * t1506;
        const V t1534 = c[6] * t1507;
        const V t1535 = t1533 - t1534;
        const V t1536 = c[13] * t1477;
        // spectrum block of 3
        const V t1537 = t1529 + t1511;
        const V t1538 = c[0] * t1529;
        const V t1539 = t1511 - t1538;
        const V t1540 = c[16] * t1479;
        const V t1541 = c[17] * t1478;
        const V t1542 = t1540 + t1541;
        const V t1543 = t1539 + t1542;
        const V t1544 = t1539 - t1542;
        // complex block of 3
        const V t1545 = t1535 + t1517;
        const V t1546 = t1532 + t1514;
        const V t1547 = t1517 - t1535;
        const V t1548 = t1514 - t1532;
        const V t1549 = t1526 - t1545;
        const V t1550 = t1523 - t1546;
        const V t1551 = c[0] * t1545;
        const V t1552 = t1551 + t1526;
        const V t1553 = c[0] * t1546;
        const V t1554 = t1553 + t1523;
        const V t1555 = c[1] * t1547;
        const V t1556 = c[1] * t1548;
        const V t1557 = t1552 + t1556;
        const V t1558 = t1554 - t1555;
        const V t1559 = t1552 - t1556;
        const V t1560 = t1554 + t1555;
        // spectrum block of 3
        const V t1561 = t1520 + t1536;
        const V t1562 = c[0] * t1520;
        const V t1563 = t1536 - t1562;
        const V t1564 = c[18] * t1481;
        const V t1565 = c[19] * t1480;
        const V t1566 = t1564 + t1565;
        const V t1567 = t1563 - t1566;
        const V t1568 = t1563 + t1566;
        // spectrum block of 2
        const V t1569 = t1537 + t1561;
        const V t1570 = t1537 - t1561;
        // spectrum block of 2
        const V t1571 = t1569 + t1550;
        const V t1572 = t1569 - t1550;
        // spectrum block of 2
        const V t1573 = t1570 + t1549;
        const V t1574 = t1570 - t1549;
        // spectrum block of 2
        const V t1575 = t1543 + t1567;
        const V t1576 = t1543 - t1567;
        // spectrum block of 2
        const V t1577 = t1575 + t1558;
        const V t1578 = t1575 - t1558;
        // spectrum block of 2
        const V t1579 = t1576 + t1557;
        const V t1580 = t1576 - t1557;
        // spectrum block of 2
        const V t1581 = t1544 + t1568;
        const V t1582 = t1544 - t1568;
        // spectrum block of 2
        const V t1583 = t1581 + t1560;
        const V t1584 = t1581 - t1560;
        // spectrum block of 2
        const V t1585 = t1582 + t1559;
        const V t1586 = t1582 - t1559;
        // spectrum block of 13, multiplier 4
        const V t1587 = t1159 + t1476;
        // real block of 2
        const V t1588 = t1359 + t1263;
        const V t1589 = t1359 - t1263;
        // real block of 2
        const V t1590 = t1239 + t1383;
        const V t1591 = t1383 - t1239;
        // real block of 2
        const V t1592 = t1588 - t1590;
        const V t1593 = t1588 + t1590;
        // real block of 2
        const V t1594 = t1455 + t1167;
        const V t1595 = t1455 - t1167;
        // real block of 2
        const V t1596 = t1215 + t1407;
        const V t1597 = t1215 - t1407;
        // real block of 2
        const V t1598 = t1594 + t1596;
        const V t1599 = t1594 - t1596;
        // real block of 2
        const V t1600 = t1191 + t1431;
        const V t1601 = t1431 - t1191;
        // real block of 2
        const V t1602 = t1335 - t1287;
        const V t1603 = t1287 + t1335;
        // real block of 2
        const V t1604 = t1602 - t1600;
        const V t1605 = t1600 + t1602;
        // real block of 3
        const V t1606 = t1598 + t1604;
        const V t1607 = t1598 - t1604;
        const V t1608 = t1606 + t1592;
        const V t1609 = c[0] * t1606;
        const V t1610 = t1592 - t1609;
        const V t1611 = c[1] * t1607;
        // complex block of 3
        const V t1612 = t1595 + t1601;
        const V t1613 = t1597 - t1603;
        const V t1614 = t1595 - t1601;
        const V t1615 = t1597 + t1603;
        const V t1616 = t1612 + t1589;
        const V t1617 = t1613 + t1591;
        const V t1618 = c[0] * t1612;
        const V t1619 = t1589 - t1618;
        const V t1620 = c[0] * t1613;
        const V t1621 = t1591 - t1620;
        const V t1622 = c[1] * t1614;
        const V t1623 = c[1] * t1615;
        const V t1624 = t1619 + t1623;
        const V t1625 = t1621 - t1622;
        const V t1626 = t1619 - t1623;
        const V t1627 = t1621 + t1622;
        // real block of 3
        const V t1628 = t1599 - t1605;
        const V t1629 = t1599 + t1605;
        const V t1630 = t1628 + t1593;
        const V t1631 = c[0] * t1628;
        const V t1632 = t1593 - t1631;
        const V t1633 = c[1] * t1629;
        // real block of 2
        const V t1634 = t1356 + t1260;
        const V t1635 = t1356 - t1260;
        // real block of 2
        const V t1636 = t1380 - t1236;
        const V t1637 = t1236 + t1380;
        // real block of 2
        const V t1638 = t1634 + t1636;
        const V t1639 = t1634 - t1636;
        // real block of 2
        const V t1640 = t1452 + t1164;
        const V t1641 = t1452 - t1164;
        // real block of 2
        const V t1642 = t1212 + t1404;
        const V t1643 = t1212 - t1404;
        // real block of 2
        const V t1644 = t1640 + t1642;
        const V t1645 = t1640 - t1642;
        // real block of 2
        const V t1646 = t1188 + t1428;
        const V t1647 = t1188 - t1428;
        // real block of 2
        const V t1648 = t1284 + t1332;
        const V t1649 = t1284 - t1332;
        // real block of 2
        const V t1650 = t1646 + t1648;
        const V t1651 = t1646 - t1648;
        // real block of 3
        const V t1652 = t1644 + t1650;
        const V t1653 = t1644 - t1650;
        const V t1654 = t1652 + t1638;
        const V t1655 = c[0] * t1652;
        const V t1656 = t1638 - t1655;
        const V t1657 = c[1] * t1653;
        // complex block of 3
        const V t1658 = t1641 + t1647;
        const V t1659 = t1643 + t1649;
        const V t1660 = t1641 - t1647;
        const V t1661 = t1643 - t1649;
        const V t1662 = t1658 + t1635;
        const V t1663 = t1659 - t1637;
        const V t1664 = c[0] * t1658;
        const V t1665 = t1635 - t1664;
        const V t1666 = c[0] * t1659;
        const V t1667 = t1637 + t1666;
        const V t1668 = c[1] * t1660;
        const V t1669 = c[1] * t1661;
        const V t1670 = t1665 + t1669;
        const V t1671 = t1667 + t1668;
        const V t1672 = t1665 - t1669;
        const V t1673 = t1668 - t1667;
        // real block of 3
        const V t1674 = t1645 + t1651;
        const V t1675 = t1645 - t1651;
        const V t1676 = t1674 + t1639;
        const V t1677 = c[0] * t1674;
        const V t1678 = t1639 - t1677;
        const V t1679 = c[1] * t1675;
        // complex block of 13, multiplier 4
        const V t1680 = t1311 + t1608;
        const V t1681 = t1654 - t1308;
        const V t1682 = c[12] * t1608;
        const V t1683 = t1311 - t1682;
        const V t1684 = c[12] * t1654;
        const V t1685 = t1308 + t1684;
        const V t1686 = c[3] * t1673;
        const V t1687 = c[2] * t1672;
        const V t1688 = t1687 - t1686;
        const V t1689 = c[3] * t1672;
        const V t1690 = c[2] * t1673;
        const V t1691 = t1690 + t1689;
        const V t1692 = c[3] * t1627;
        const V t1693 = c[2] * t1626;
        const V t1694 = t1692 - t1693;
        const V t1695 = c[3] * t1626;
        const V t1696 = c[2] * t1627;
        const V t1697 = t1696 + t1695;
        const V t1698 = c[8] * t1633;
        const V t1699 = c[9] * t1632;
        const V t1700 = t1699 + t1698;
        const V t1701 = c[8] * t1679;
        const V t1702 = c[9] * t1678;
        const V t1703 = t1702 + t1701;
        const V t1704 = c[5] * t1663;
        const V t1705 = c[4] * t1662;
        const V t1706 = t1704 - t1705;
        const V t1707 = c[5] * t1662;
        const V t1708 = c[4] * t1663;
        const V t1709 = t1708 + t1707;
        const V t1710 = c[5] * t1617;
        const V t1711 = c[4] * t1616;
        const V t1712 = t1711 - t1710;
        const V t1713 = c[5] * t1616;
        const V t1714 = c[4] * t1617;
        const V t1715 = t1714 + t1713;
        const V t1716 = c[10] * t1611;
        const V t1717 = c[11] * t1610;
        const V t1718 = t1717 + t1716;
        const V t1719 = c[10] * t1657;
        const V t1720 = c[11] * t1656;
        const V t1721 = t1720 + t1719;
        const V t1722 = c[7] * t1671;
        const V t1723 = c[6] * t1670;
        const V t1724 = t1723 + t1722;
        const V t1725 = c[7] * t1670;
        const V t1726 = c[6] * t1671;
        const V t1727 = t1726 - t1725;
        const V t1728 = c[7] * t1625;
        const V t1729 = c[6] * t1624;
        const V t1730 = t1728 - t1729;
        const V t1731 = c[7] * t1624;
        const V t1732 = c[6] * t1625;
        const V t1733 = t1732 + t1731;
        const V t1734 = c[13] * t1630;
        const V t1735 = c[13] * t1676;
        // spectrum block of 3
        const V t1736 = t1683 - t1718;
        const V t1737 = c[0] * t1718;
        const V t1738 = t1737 + t1683;
        const V t1739 = c[16] * t1611;
        const V t1740 = c[17] * t1610;
        const V t1741 = t1739 - t1740;
        const V t1742 = t1738 - t1741;
        const V t1743 = t1738 + t1741;
        // complex block of 3
        const V t1744 = t1691 - t1727;
        const V t1745 = t1724 + t1688;
        const V t1746 = t1727 + t1691;
        const V t1747 = t1724 - t1688;
        const V t1748 = t1744 - t1709;
        const V t1749 = t1745 + t1706;
        const V t1750 = c[0] * t1744;
        const V t1751 = t1709 + t1750;
        const V t1752 = c[0] * t1745;
        const V t1753 = t1706 - t1752;
        const V t1754 = c[1] * t1746;
        const V t1755 = c[1] * t1747;
        const V t1756 = t1755 - t1751;
        const V t1757 = t1753 + t1754;
        const V t1758 = t1751 + t1755;
        const V t1759 = t1753 - t1754;
        // spectrum block of 3
        const V t1760 = t1700 + t1734;
        const V t1761 = c[0] * t1700;
        const V t1762 = t1734 - t1761;
        const V t1763 = c[18] * t1633;
        const V t1764 = c[19] * t1632;
        const V t1765 = t1763 - t1764;
        const V t1766 = t1762 + t1765;
        const V t1767 = t1762 - t1765;
        // spectrum block of 2
        const V t1768 = t1736 + t1760;
        const V t1769 = t1736 - t1760;
        // spectrum block of 2
        const V t1770 = t1768 + t1749;
        const V t1771 = t1768 - t1749;
        // spectrum block of 2
        const V t1772 = t1769 + t1748;
        const V t1773 = t1769 - t1748;
        // spectrum block of 2
        const V t1774 = t1742 + t1766;
        const V t1775 = t1742 - t1766;
        // spectrum block of 2
        const V t1776 = t1774 + t1757;
        const V t1777 = t1774 - t1757;
        // spectrum block of 2
        const V t1778 = t1775 + t1756;
        const V t1779 = t1775 - t1756;
        // spectrum block of 2
        const V t1780 = t1743 + t1767;
        const V t1781 = t1743 - t1767;
        // spectrum block of 2
        const V t1782 = t1780 + t1759;
        const V t1783 = t1780 - t1759;
        // spectrum block of 2
        const V t1784 = t1781 - t1758;
        const V t1785 = t1781 + t1758;
        // spectrum block of 3
        const V t1786 = t1721 + t1685;
        const V t1787 = c[0] * t1721;
        const V t1788 = t1787 - t1685;
        const V t1789 = c[16] * t1657;
        const V t1790 = c[17] * t1656;
        const V t1791 = t1789 - t1790;
        const V t1792 = t1788 - t1791;
        const V t1793 = t1788 + t1791;
        // complex block of 3
        const V t1794 = t1733 + t1697;
        const V t1795 = t1730 + t1694;
        const V t1796 = t1697 - t1733;
        const V t1797 = t1730 - t1694;
        const V t1798 = t1715 - t1794;
        const V t1799 = t1795 + t1712;
        const V t1800 = c[0] * t1794;
        const V t1801 = t1800 + t1715;
        const V t1802 = c[0] * t1795;
        const V t1803 = t1712 - t1802;
        const V t1804 = c[1] * t1796;
        const V t1805 = c[1] * t1797;
        const V t1806 = t1801 + t1805;
        const V t1807 = t1803 - t1804;
        const V t1808 = t1801 - t1805;
        const V t1809 = t1803 + t1804;
        // spectrum block of 3
        const V t1810 = t1703 + t1735;
        const V t1811 = c[0] * t1703;
        const V t1812 = t1735 - t1811;
        const V t1813 = c[18] * t1679;
        const V t1814 = c[19] * t1678;
        const V t1815 = t1813 - t1814;
        const V t1816 = t1812 + t1815;
        const V t1817 = t1812 - t1815;
        // spectrum block of 2
        const V t1818 = t1810 - t1786;
        const V t1819 = t1786 + t1810;
        // spectrum block of 2
        const V t1820 = t1818 + t1799;
        const V t1821 = t1818 - t1799;
        // spectrum block of 2
        const V t1822 = t1798 - t1819;
        const V t1823 = t1819 + t1798;
        // spectrum block of 2
        const V t1824 = t1792 + t1816;
        const V t1825 = t1792 - t1816;
        // spectrum block of 2
        const V t1826 = t1824 + t1807;
        const V t1827 = t1824 - t1807;
        // spectrum block of 2
        const V t1828 = t1825 + t1806;
        const V t1829 = t1825 - t1806;
        // spectrum block of 2
        const V t1830 = t1793 + t1817;
        const V t1831 = t1793 - t1817;
        // spectrum block of 2
        const V t1832 = t1830 + t1809;
        const V t1833 = t1830 - t1809;
        // spectrum block of 2
        const V t1834 = t1831 + t1808;
        const V t1835 = t1831 - t1808;
        // real block of 3, multiplier 2
        const V t1836 = t1272 + t1320;
        const V t1837 = t1272 - t1320;
        const V t1838 = t1836 + t1416;
        const V t1839 = c[0] * t1836;
        const V t1840 = t1416 - t1839;
        const V t1841 = c[1] * t1837;
        // real block of 3, multiplier 2
        const V t1842 = t1176 + t1368;
        const V t1843 = t1176 - t1368;
        const V t1844 = t1842 + t1224;
        const V t1845 = c[0] * t1842;
        const V t1846 = t1224 - t1845;
        const V t1847 = c[1] * t1843;
        // real block of 2
        const V t1848 = t1838 + t1844;
        const V t1849 = t1838 - t1844;
        // complex block of 2
        const V t1850 = t1840 + t1846;
        const V t1851 = t1841 + t1847;
        const V t1852 = t1840 - t1846;
        const V t1853 = t1841 - t1847;
        // skew block of 6
        const V t1854 = c[0] * t1323;
        const V t1855 = c[1] * t1371;
        const V t1856 = t1855 + t1854;
        const V t1857 = c[0] * t1371;
        const V t1858 = c[1] * t1323;
        const V t1859 = t1857 - t1858;
        const V t1860 = c[1] * t1179;
        const V t1861 = c[0] * t1275;
        const V t1862 = t1861 + t1860;
        const V t1863 = c[1] * t1275;
        const V t1864 = c[0] * t1179;
        const V t1865 = t1863 - t1864;
        // complex block of 3
        const V t1866 = t1856 + t1862;
        const V t1867 = t1859 + t1865;
        const V t1868 = t1862 - t1856;
        const V t1869 = t1859 - t1865;
        const V t1870 = t1866 + t1419;
        const V t1871 = t1867 - t1227;
        const V t1872 = c[0] * t1866;
        const V t1873 = t1872 - t1419;
        const V t1874 = c[0] * t1867;
        const V t1875 = t1227 + t1874;
        const V t1876 = c[1] * t1868;
        const V t1877 = c[1] * t1869;
        const V t1878 = t1873 + t1877;
        const V t1879 = t1875 + t1876;
        const V t1880 = t1873 - t1877;
        const V t1881 = t1876 - t1875;
        // spectrum block of 13, multiplier 4
        const V t1882 = c[12] * t1848;
        const V t1883 = t1462 - t1882;
        const V t1884 = c[3] * t1871;
        const V t1885 = c[2] * t1870;
        const V t1886 = t1885 - t1884;
        const V t1887 = c[3] * t1870;
        const V t1888 = c[2] * t1871;
        const V t1889 = t1888 + t1887;
        const V t1890 = c[8] * t1853;
        const V t1891 = c[9] * t1852;
        const V t1892 = t1891 - t1890;
        const V t1893 = c[5] * t1881;
        const V t1894 = c[4] * t1880;
        const V t1895 = t1894 + t1893;
        const V t1896 = c[5] * t1880;
        const V t1897 = c[4] * t1881;
        const V t1898 = t1896 - t1897;
        const V t1899 = c[10] * t1851;
        const V t1900 = c[11] * t1850;
        const V t1901 = t1899 - t1900;
        const V t1902 = c[7] * t1879;
        const V t1903 = c[6] * t1878;
        const V t1904 = t1902 - t1903;
        const V t1905 = c[7] * t1878;
        const V t1906 = c[6] * t1879;
        const V t1907 = t1906 + t1905;
        const V t1908 = c[13] * t1849;
        // spectrum block of 3
        const V t1909 = t1901 + t1883;
        const V t1910 = c[0] * t1901;
        const V t1911 = t1883 - t1910;
        const V t1912 = c[16] * t1851;
        const V t1913 = c[17] * t1850;
        const V t1914 = t1912 + t1913;
        const V t1915 = t1911 + t1914;
        const V t1916 = t1911 - t1914;
        // complex block of 3
        const V t1917 = t1889 - t1907;
        const V t1918 = t1904 + t1886;
        const V t1919 = t1907 + t1889;
        const V t1920 = t1904 - t1886;
        const V t1921 = t1917 + t1898;
        const V t1922 = t1918 + t1895;
        const V t1923 = c[0] * t1917;
        const V t1924 = t1898 - t1923;
        const V t1925 = c[0] * t1918;
        const V t1926 = t1895 - t1925;
        const V t1927 = c[1] * t1919;
        const V t1928 = c[1] * t1920;
        const V t1929 = t1924 + t1928;
        const V t1930 = t1926 + t1927;
        const V t1931 = t1924 - t1928;
        const V t1932 = t1926 - t1927;
        // spectrum block of 3
        const V t1933 = t1892 + t1908;
        const V t1934 = c[0] * t1892;
        const V t1935 = t1908 - t1934;
        const V t1936 = c[18] * t1853;
        const V t1937 = c[19] * t1852;
        const V t1938 = t1936 + t1937;
        const V t1939 = t1935 - t1938;
        const V t1940 = t1935 + t1938;
        // spectrum block of 2
        const V t1941 = t1909 + t1933;
        const V t1942 = t1909 - t1933;
        // spectrum block of 2
        const V t1943 = t1941 + t1922;
        const V t1944 = t1941 - t1922;
        // spectrum block of 2
        const V t1945 = t1942 + t1921;
        const V t1946 = t1942 - t1921;
        // spectrum block of 2
        const V t1947 = t1915 + t1939;
        const V t1948 = t1915 - t1939;
        // spectrum block of 2
        const V t1949 = t1947 + t1930;
        const V t1950 = t1947 - t1930;
        // spectrum block of 2
        const V t1951 = t1948 + t1929;
        const V t1952 = t1948 - t1929;
        // spectrum block of 2
        const V t1953 = t1916 + t1940;
        const V t1954 = t1916 - t1940;
        // spectrum block of 2
        const V t1955 = t1953 + t1932;
        const V t1956 = t1953 - t1932;
        // spectrum block of 2
        const V t1957 = t1954 + t1931;
        const V t1958 = t1954 - t1931;
        // spectrum block of 13, multiplier 4
        const V t1959 = t1462 + t1848;
        // spectrum block of 2
        const V t1960 = t1587 + t1959;
        const V t1961 = t1587 - t1959;
        // spectrum block of 2
        const V t1962 = t1960 + t1681;
        io.re(1, t1962);
        const V t1963 = t1960 - t1681;
        io.re(52, t1963);
        // spectrum block of 2
        const V t1964 = t1961 - t1680;
        io.re(23, t1964);
        const V t1965 = t1961 + t1680;
        io.re(30, t1965);
        // spectrum block of 2
        const V t1966 = t1571 + t1943;
        const V t1967 = t1571 - t1943;
        // spectrum block of 2
        const V t1968 = t1966 + t1820;
        io.re(10, t1968);
        const V t1969 = t1966 - t1820;
        io.re(43, t1969);
        // spectrum block of 2
        const V t1970 = t1967 - t1770;
        io.re(18, t1970);
        const V t1971 = t1967 + t1770;
        io.re(35, t1971);
        // spectrum block of 2
        const V t1972 = t1585 + t1957;
        const V t1973 = t1585 - t1957;
        // spectrum block of 2
        const V t1974 = t1972 + t1834;
        io.re(47, t1974);
        const V t1975 = t1972 - t1834;
        io.re(6, t1975);
        // spectrum block of 2
        const V t1976 = t1973 - t1784;
        io.re(21, t1976);
        const V t1977 = t1973 + t1784;
        io.re(32, t1977);
        // spectrum block of 2
        const V t1978 = t1583 + t1955;
        const V t1979 = t1583 - t1955;
        // spectrum block of 2
        const V t1980 = t1978 + t1832;
        io.re(46, t1980);
        const V t1981 = t1978 - t1832;
        io.re(7, t1981);
        // spectrum block of 2
        const V t1982 = t1979 - t1782;
        io.re(51, t1982);
        const V t1983 = t1979 + t1782;
        io.re(2, t1983);
        // spectrum block of 2
        const V t1984 = t1578 + t1950;
        const V t1985 = t1578 - t1950;
        // spectrum block of 2
        const V t1986 = t1984 + t1827;
        io.re(36, t1986);
        const V t1987 = t1984 - t1827;
        io.re(17, t1987);
        // spectrum block of 2
        const V t1988 = t1985 - t1777;
        io.re(33, t1988);
        const V t1989 = t1985 + t1777;
        io.re(20, t1989);
        // spectrum block of 2
        const V t1990 = t1573 + t1945;
        const V t1991 = t1573 - t1945;
        // spectrum block of 2
        const V t1992 = t1990 + t1822;
        io.re(42, t1992);
        const V t1993 = t1990 - t1822;
        io.re(11, t1993);
        // spectrum block of 2
        const V t1994 = t1991 - t1772;
        io.re(12, t1994);
        const V t1995 = t1991 + t1772;
        io.re(41, t1995);
        // spectrum block of 2
        const V t1996 = t1579 + t1951;
        const V t1997 = t1579 - t1951;
        // spectrum block of 2
        const V t1998 = t1996 + t1828;
        io.re(49, t1998);
        const V t1999 = t1996 - t1828;
        io.re(4, t1999);
        // spectrum block of 2
        const V t2000 = t1997 - t1778;
        io.re(14, t2000);
        const V t2001 = t1997 + t1778;
        io.re(39, t2001);
        // spectrum block of 2
        const V t2002 = t1580 + t1952;
        const V t2003 = t1580 - t1952;
        // spectrum block of 2
        const V t2004 = t2002 + t1829;
        io.re(13, t2004);
        const V t2005 = t2002 - t1829;
        io.re(40, t2005);
        // spectrum block of 2
        const V t2006 = t2003 - t1779;
        io.re(34, t2006);
        const V t2007 = t2003 + t1779;
        io.re(19, t2007);
        // spectrum block of 2
        const V t2008 = t1574 + t1946;
        const V t2009 = t1574 - t1946;
        // spectrum block of 2
        const V t2010 = t2008 - t1823;
        io.re(24, t2010);
        const V t2011 = t2008 + t1823;
        io.re(29, t2011);
        // spectrum block of 2
        const V t2012 = t2009 - t1773;
        io.re(22, t2012);
        const V t2013 = t2009 + t1773;
        io.re(31, t2013);
        // spectrum block of 2
        const V t2014 = t1577 + t1949;
        const V t2015 = t1577 - t1949;
        // spectrum block of 2
        const V t2016 = t2014 + t1826;
        io.re(28, t2016);
        const V t2017 = t2014 - t1826;
        io.re(25, t2017);
        // spectrum block of 2
        const V t2018 = t2015 - t1776;
        io.re(8, t2018);
        const V t2019 = t2015 + t1776;
        io.re(45, t2019);
        // spectrum block of 2
        const V t2020 = t1584 + t1956;
        const V t2021 = t1584 - t1956;
        // spectrum block of 2
        const V t2022 = t2020 + t1833;
        io.re(15, t2022);
        const V t2023 = t2020 - t1833;
        io.re(38, t2023);
        // spectrum block of 2
        const V t2024 = t2021 - t1783;
        io.re(27, t2024);
        const V t2025 = t2021 + t1783;
        io.re(26, t2025);
        // spectrum block of 2
        const V t2026 = t1586 + t1958;
        const V t2027 = t1586 - t1958;
        // spectrum block of 2
        const V t2028 = t2026 + t1835;
        io.re(44, t2028);
        const V t2029 = t2026 - t1835;
        io.re(9, t2029);
        // spectrum block of 2
        const V t2030 = t2027 - t1785;
        io.re(5, t2030);
        const V t2031 = t2027 + t1785;
        io.re(48, t2031);
        // spectrum block of 2
        const V t2032 = t1572 + t1944;
        const V t2033 = t1572 - t1944;
        // spectrum block of 2
        const V t2034 = t2032 + t1821;
        io.re(16, t2034);
        const V t2035 = t2032 - t1821;
        io.re(37, t2035);
        // spectrum block of 2
        const V t2036 = t2033 - t1771;
        io.re(50, t2036);
        const V t2037 = t2033 + t1771;
        io.re(3, t2037);
        // real block of 3, multiplier 2
        const V t2038 = t1350 + t1302;
        const V t2039 = t1350 - t1302;
        const V t2040 = t2038 + t1206;
        const V t2041 = c[0] * t2038;
        const V t2042 = t1206 - t2041;
        const V t2043 = c[1] * t2039;
        // real block of 3, multiplier 2
        const V t2044 = t1446 + t1254;
        const V t2045 = t1446 - t1254;
        const V t2046 = t2044 + t1398;
        const V t2047 = c[0] * t2044;
        const V t2048 = t1398 - t2047;
        const V t2049 = c[1] * t2045;
        // real block of 2
        const V t2050 = t2040 + t2046;
        const V t2051 = t2040 - t2046;
        // complex block of 2
        const V t2052 = t2042 + t2048;
        const V t2053 = t2043 + t2049;
        const V t2054 = t2042 - t2048;
        const V t2055 = t2043 - t2049;
        // skew block of 6
        const V t2056 = c[0] * t1305;
        const V t2057 = c[1] * t1257;
        const V t2058 = t2057 - t2056;
        const V t2059 = c[0] * t1257;
        const V t2060 = c[1] * t1305;
        const V t2061 = t2060 + t2059;
        const V t2062 = c[1] * t1449;
        const V t2063 = c[0] * t1353;
        const V t2064 = t2063 - t2062;
        const V t2065 = c[1] * t1353;
        const V t2066 = c[0] * t1449;
        const V t2067 = t2066 + t2065;
        // complex block of 3
        const V t2068 = t2058 + t2064;
        const V t2069 = t2061 + t2067;
        const V t2070 = t2058 - t2064;
        const V t2071 = t2067 - t2061;
        const V t2072 = t2068 + t1209;
        const V t2073 = t1401 - t2069;
        const V t2074 = c[0] * t2068;
        const V t2075 = t1209 - t2074;
        const V t2076 = c[0] * t2069;
        const V t2077 = t2076 + t1401;
        const V t2078 = c[1] * t2070;
        const V t2079 = c[1] * t2071;
        const V t2080 = t2075 + t2079;
        const V t2081 = t2077 - t2078;
        const V t2082 = t2075 - t2079;
        const V t2083 = t2077 + t2078;
        // spectrum block of 13, multiplier 4
        const V t2084 = c[12] * t2050;
        const V t2085 = t1161 - t2084;
        const V t2086 = c[3] * t2073;
        const V t2087 = c[2] * t2072;
        const V t2088 = t2087 + t2086;
        const V t2089 = c[3] * t2072;
        const V t2090 = c[2] * t2073;
        const V t2091 = t2089 - t2090;
        const V t2092 = c[8] * t2055;
        const V t2093 = c[9] * t2054;
        const V t2094 = t2093 - t2092;
        const V t2095 = c[5] * t2083;
        const V t2096 = c[4] * t2082;
        const V t2097 = t2096 + t2095;
        const V t2098 = c[5] * t2082;
        const V t2099 = c[4] * t2083;
        const V t2100 = t2098 - t2099;
        const V t2101 = c[10] * t2053;
        const V t2102 = c[11] * t2052;
        const V t2103 = t2101 - t2102;
        const V t2104 = c[7] * t2081;
        const V t2105 = c[6] * t2080;
        const V t2106 = t2105 + t2104;
        const V t2107 = c[7] * t2080;
        const V t2108 = c[6] * t2081;
        const V t2109 = t2107 - t2108;
        const V t2110 = c[13] * t2051;
        // spectrum block of 3
        const V t2111 = t2103 + t2085;
        const V t2112 = c[0] * t2103;
        const V t2113 = t2085 - t2112;
        const V t2114 = c[16] * t2053;
        const V t2115 = c[17] * t2052;
        const V t2116 = t2114 + t2115;
        const V t2117 = t2113 + t2116;
        const V t2118 = t2113 - t2116;
        // complex block of 3
        const V t2119 = t2109 + t2091;
        const V t2120 = t2106 + t2088;
        const V t2121 = t2091 - t2109;
        const V t2122 = t2088 - t2106;
        const V t2123 = t2100 - t2119;
        const V t2124 = t2097 - t2120;
        const V t2125 = c[0] * t2119;
        const V t2126 = t2125 + t2100;
        const V t2127 = c[0] * t2120;
        const V t2128 = t2127 + t2097;
        const V t2129 = c[1] * t2121;
        const V t2130 = c[1] * t2122;
        const V t2131 = t2126 + t2130;
        const V t2132 = t2128 - t2129;
        const V t2133 = t2126 - t2130;
        const V t2134 = t2128 + t2129;
        // spectrum block of 3
        const V t2135 = t2094 + t2110;
        const V t2136 = c[0] * t2094;
        const V t2137 = t2110 - t2136;
        const V t2138 = c[18] * t2055;
        const V t2139 = c[19] * t2054;
        const V t2140 = t2138 + t2139;
        const V t2141 = t2137 - t2140;
        const V t2142 = t2137 + t2140;
        // spectrum block of 2
        const V t2143 = t2111 + t2135;
        const V t2144 = t2111 - t2135;
        // spectrum block of 2
        const V t2145 = t2143 + t2124;
        const V t2146 = t2143 - t2124;
        // spectrum block of 2
        const V t2147 = t2144 + t2123;
        const V t2148 = t2144 - t2123;
        // spectrum block of 2
        const V t2149 = t2117 + t2141;
        const V t2150 = t2117 - t2141;
        // spectrum block of 2
        const V t2151 = t2149 + t2132;
        const V t2152 = t2149 - t2132;
        // spectrum block of 2
        const V t2153 = t2150 + t2131;
        const V t2154 = t2150 - t2131;
        // spectrum block of 2
        const V t2155 = t2118 + t2142;
        const V t2156 = t2118 - t2142;
        // spectrum block of 2
        const V t2157 = t2155 + t2134;
        const V t2158 = t2155 - t2134;
        // spectrum block of 2
        const V t2159 = t2156 + t2133;
        const V t2160 = t2156 - t2133;
        // spectrum block of 13, multiplier 4
        const V t2161 = t1161 + t2050;
        // real block of 2
        const V t2162 = t1365 + t1269;
        const V t2163 = t1269 - t1365;
        // real block of 2
        const V t2164 = t1389 - t1245;
        const V t2165 = t1245 + t1389;
        // real block of 2
        const V t2166 = t2164 - t2162;
        const V t2167 = t2162 + t2164;
        // real block of 2
        const V t2168 = t1461 + t1173;
        const V t2169 = t1461 - t1173;
        // real block of 2
        const V t2170 = t1413 - t1221;
        const V t2171 = t1221 + t1413;
        // real block of 2
        const V t2172 = t2168 + t2170;
        const V t2173 = t2168 - t2170;
        // real block of 2
        const V t2174 = t1197 + t1437;
        const V t2175 = t1197 - t1437;
        // real block of 2
        const V t2176 = t1293 - t1341;
        const V t2177 = t1293 + t1341;
        // real block of 2
        const V t2178 = t2174 + t2176;
        const V t2179 = t2174 - t2176;
        // real block of 3
        const V t2180 = t2172 + t2178;
        const V t2181 = t2172 - t2178;
        const V t2182 = t2180 + t2166;
        const V t2183 = c[0] * t2180;
        const V t2184 = t2166 - t2183;
        const V t2185 = c[1] * t2181;
        // complex block of 3
        const V t2186 = t2169 + t2175;
        const V t2187 = t2177 - t2171;
        const V t2188 = t2169 - t2175;
        const V t2189 = t2171 + t2177;
        const V t2190 = t2186 + t2163;
        const V t2191 = t2187 - t2165;
        const V t2192 = c[0] * t2186;
        const V t2193 = t2163 - t2192;
        const V t2194 = c[0] * t2187;
        const V t2195 = t2165 + t2194;
        const V t2196 = c[1] * t2188;
        const V t2197 = c[1] * t2189;
        const V t2198 = t2193 - t2197;
        const V t2199 = t2195 + t2196;
        const V t2200 = t2193 + t2197;
        const V t2201 = t2196 - t2195;
        // real block of 3
        const V t2202 = t2173 + t2179;
        const V t2203 = t2173 - t2179;
        const V t2204 = t2202 - t2167;
        const V t2205 = c[0] * t2202;
        const V t2206 = t2167 + t2205;
        const V t2207 = c[1] * t2203;
        // real block of 2
        const V t2208 = t1362 + t1266;
        const V t2209 = t1362 - t1266;
        // real block of 2
        const V t2210 = t1242 + t1386;
        const V t2211 = t1242 - t1386;
        // real block of 2
        const V t2212 = t2208 + t2210;
        const V t2213 = t2208 - t2210;
        // real block of 2
        const V t2214 = t1458 + t1170;
        const V t2215 = t1170 - t1458;
        // real block of 2
        const V t2216 = t1218 - t1410;
        const V t2217 = t1218 + t1410;
        // real block of 2
        const V t2218 = t2216 - t2214;
        const V t2219 = t2214 + t2216;
        // real block of 2
        const V t2220 = t1194 + t1434;
        const V t2221 = t1194 - t1434;
        // real block of 2
        const V t2222 = t1290 + t1338;
        const V t2223 = t1290 - t1338;
        // real block of 2
        const V t2224 = t2220 + t2222;
        const V t2225 = t2220 - t2222;
        // real block of 3
        const V t2226 = t2218 + t2224;
        const V t2227 = t2218 - t2224;
        const V t2228 = t2226 + t2212;
        const V t2229 = c[0] * t2226;
        const V t2230 = t2212 - t2229;
        const V t2231 = c[1] * t2227;
        // complex block of 3
        const V t2232 = t2215 + t2221;
        const V t2233 = t2217 + t2223;
        const V t2234 = t2215 - t2221;
        const V t2235 = t2217 - t2223;
        const V t2236 = t2232 + t2209;
        const V t2237 = t2233 + t2211;
        const V t2238 = c[0] * t2232;
        const V t2239 = t2209 - t2238;
        const V t2240 = c[0] * t2233;
        const V t2241 = t2211 - t2240;
        const V t2242 = c[1] * t2234;
        const V t2243 = c[1] * t2235;
        const V t2244 = t2239 + t2243;
        const V t2245 = t2241 - t2242;
        const V t2246 = t2239 - t2243;
        const V t2247 = t2241 + t2242;
        // real block of 3
        const V t2248 = t2225 - t2219;
        const V t2249 = t2219 + t2225;
        const V t2250 = t2248 + t2213;
        const V t2251 = c[0] * t2248;
        const V t2252 = t2213 - t2251;
        const V t2253 = c[1] * t2249;
        // complex block of 13, multiplier 4
        const V t2254 = t1317 + t2182;
        const V t2255 = t1314 + t2228;
        const V t2256 = c[12] * t2182;
        const V t2257 = t1317 - t2256;
        const V t2258 = c[12] * t2228;
        const V t2259 = t1314 - t2258;
        const V t2260 = c[3] * t2247;
        const V t2261 = c[2] * t2246;
        const V t2262 = t2261 - t2260;
        const V t2263 = c[3] * t2246;
        const V t2264 = c[2] * t2247;
        const V t2265 = t2264 + t2263;
        const V t2266 = c[3] * t2201;
        const V t2267 = c[2] * t2200;
        const V t2268 = t2266 - t2267;
        const V t2269 = c[3] * t2200;
        const V t2270 = c[2] * t2201;
        const V t2271 = t2270 + t2269;
        const V t2272 = c[8] * t2207;
        const V t2273 = c[9] * t2206;
        const V t2274 = t2272 - t2273;
        const V t2275 = c[8] * t2253;
        const V t2276 = c[9] * t2252;
        const V t2277 = t2276 - t2275;
        const V t2278 = c[5] * t2237;
        const V t2279 = c[4] * t2236;
        const V t2280 = t2278 - t2279;
        const V t2281 = c[5] * t2236;
        const V t2282 = c[4] * t2237;
        const V t2283 = t2282 + t2281;
        const V t2284 = c[5] * t2191;
        const V t2285 = c[4] * t2190;
        const V t2286 = t2285 - t2284;
        const V t2287 = c[5] * t2190;
        const V t2288 = c[4] * t2191;
        const V t2289 = t2288 + t2287;
        const V t2290 = c[10] * t2185;
        const V t2291 = c[11] * t2184;
        const V t2292 = t2291 + t2290;
        const V t2293 = c[10] * t2231;
        const V t2294 = c[11] * t2230;
        const V t2295 = t2294 + t2293;
        const V t2296 = c[7] * t2245;
        const V t2297 = c[6] * t2244;
        const V t2298 = t2297 - t2296;
        const V t2299 = c[7] * t2244;
        const V t2300 = c[6] * t2245;
        const V t2301 = t2300 + t2299;
        const V t2302 = c[7] * t2199;
        const V t2303 = c[6] * t2198;
        const V t2304 = t2303 + t2302;
        const V t2305 = c[7] * t2198;
        const V t2306 = c[6] * t2199;
        const V t2307 = t2305 - t2306;
        const V t2308 = c[13] * t2204;
        const V t2309 = c[13] * t2250;
        // spectrum block of 3
        const V t2310 = t2257 - t2292;
        const V t2311 = c[0] * t2292;
        const V t2312 = t2311 + t2257;
        const V t2313 = c[16] * t2185;
        const V t2314 = c[17] * t2184;
        const V t2315 = t2313 - t2314;
        const V t2316 = t2312 - t2315;
        const V t2317 = t2312 + t2315;
        // complex block of 3
        const V t2318 = t2301 + t2265;
        const V t2319 = t2298 + t2262;
        const V t2320 = t2301 - t2265;
        const V t2321 = t2298 - t2262;
        const V t2322 = t2318 - t2283;
        const V t2323 = t2319 + t2280;
        const V t2324 = c[0] * t2318;
        const V t2325 = t2283 + t2324;
        const V t2326 = c[0] * t2319;
        const V t2327 = t2280 - t2326;
        const V t2328 = c[1] * t2320;
        const V t2329 = c[1] * t2321;
        const V t2330 = t2329 - t2325;
        const V t2331 = t2327 - t2328;
        const V t2332 = t2325 + t2329;
        const V t2333 = t2327 + t2328;
        // spectrum block of 3
        const V t2334 = t2274 + t2308;
        const V t2335 = c[0] * t2274;
        const V t2336 = t2308 - t2335;
        const V t2337 = c[18] * t2207;
        const V t2338 = c[19] * t2206;
        const V t2339 = t2337 + t2338;
        const V t2340 = t2336 + t2339;
        const V t2341 = t2336 - t2339;
        // spectrum block of 2
        const V t2342 = t2310 + t2334;
        const V t2343 = t2310 - t2334;
        // spectrum block of 2
        const V t2344 = t2342 + t2323;
        const V t2345 = t2342 - t2323;
        // spectrum block of 2
        const V t2346 = t2343 + t2322;
        const V t2347 = t2343 - t2322;
        // spectrum block of 2
        const V t2348 = t2316 + t2340;
        const V t2349 = t2316 - t2340;
        // spectrum block of 2
        const V t2350 = t2348 + t2331;
        const V t2351 = t2348 - t2331;
        // spectrum block of 2
        const V t2352 = t2349 + t2330;
        const V t2353 = t2349 - t2330;
        // spectrum block of 2
        const V t2354 = t2317 + t2341;
        const V t2355 = t2317 - t2341;
        // spectrum block of 2
        const V t2356 = t2354 + t2333;
        const V t2357 = t2354 - t2333;
        // spectrum block of 2
        const V t2358 = t2355 - t2332;
        const V t2359 = t2355 + t2332;
        // spectrum block of 3
        const V t2360 = t2259 - t2295;
        const V t2361 = c[0] * t2295;
        const V t2362 = t2361 + t2259;
        const V t2363 = c[16] * t2231;
        const V t2364 = c[17] * t2230;
        const V t2365 = t2363 - t2364;
        const V t2366 = t2362 - t2365;
        const V t2367 = t2362 + t2365;
        // complex block of 3
        const V t2368 = t2307 + t2271;
        const V t2369 = t2268 - t2304;
        const V t2370 = t2271 - t2307;
        const V t2371 = t2304 + t2268;
        const V t2372 = t2289 - t2368;
        const V t2373 = t2369 + t2286;
        const V t2374 = c[0] * t2368;
        const V t2375 = t2374 + t2289;
        const V t2376 = c[0] * t2369;
        const V t2377 = t2286 - t2376;
        const V t2378 = c[1] * t2370;
        const V t2379 = c[1] * t2371;
        const V t2380 = t2375 - t2379;
        const V t2381 = t2377 - t2378;
        const V t2382 = t2375 + t2379;
        const V t2383 = t2377 + t2378;
        // spectrum block of 3
        const V t2384 = t2277 + t2309;
        const V t2385 = c[0] * t2277;
        const V t2386 = t2309 - t2385;
        const V t2387 = c[18] * t2253;
        const V t2388 = c[19] * t2252;
        const V t2389 = t2387 + t2388;
        const V t2390 = t2386 - t2389;
        const V t2391 = t2386 + t2389;
        // spectrum block of 2
        const V t2392 = t2360 + t2384;
        const V t2393 = t2360 - t2384;
        // spectrum block of 2
        const V t2394 = t2392 + t2373;
        const V t2395 = t2392 - t2373;
        // spectrum block of 2
        const V t2396 = t2393 + t2372;
        const V t2397 = t2393 - t2372;
        // spectrum block of 2
        const V t2398 = t2366 + t2390;
        const V t2399 = t2366 - t2390;
        // spectrum block of 2
        const V t2400 = t2398 + t2381;
        const V t2401 = t2398 - t2381;
        // spectrum block of 2
        const V t2402 = t2399 + t2380;
        const V t2403 = t2399 - t2380;
        // spectrum block of 2
        const V t2404 = t2367 + t2391;
        const V t2405 = t2367 - t2391;
        // spectrum block of 2
        const V t2406 = t2404 + t2383;
        const V t2407 = t2404 - t2383;
        // spectrum block of 2
        const V t2408 = t2405 + t2382;
        const V t2409 = t2405 - t2382;
        // real block of 3, multiplier 2
        const V t2410 = t1278 + t1326;
        const V t2411 = t1278 - t1326;
        const V t2412 = t2410 + t1422;
        const V t2413 = c[0] * t2410;
        const V t2414 = t1422 - t2413;
        const V t2415 = c[1] * t2411;
        // real block of 3, multiplier 2
        const V t2416 = t1182 + t1374;
        const V t2417 = t1182 - t1374;
        const V t2418 = t2416 + t1230;
        const V t2419 = c[0] * t2416;
        const V t2420 = t1230 - t2419;
        const V t2421 = c[1] * t2417;
        // real block of 2
        const V t2422 = t2412 + t2418;
        const V t2423 = t2412 - t2418;
        // complex block of 2
        const V t2424 = t2414 + t2420;
        const V t2425 = t2415 + t2421;
        const V t2426 = t2414 - t2420;
        const V t2427 = t2415 - t2421;
        // skew block of 6
        const V t2428 = c[0] * t1329;
        const V t2429 = c[1] * t1377;
        const V t2430 = t2429 + t2428;
        const V t2431 = c[0] * t1377;
        const V t2432 = c[1] * t1329;
        const V t2433 = t2431 - t2432;
        const V t2434 = c[1] * t1185;
        const V t2435 = c[0] * t1281;
        const V t2436 = t2435 + t2434;
        const V t2437 = c[1] * t1281;
        const V t2438 = c[0] * t1185;
        const V t2439 = t2437 - t2438;
        // complex block of 3
        const V t2440 = t2430 + t2436;
        const V t2441 = t2433 + t2439;
        const V t2442 = t2436 - t2430;
        const V t2443 = t2433 - t2439;
        const V t2444 = t2440 + t1425;
        const V t2445 = t2441 - t1233;
        const V t2446 = c[0] * t2440;
        const V t2447 = t2446 - t1425;
        const V t2448 = c[0] * t2441;
        const V t2449 = t1233 + t2448;
        const V t2450 = c[1] * t2442;
        const V t2451 = c[1] * t2443;
        const V t2452 = t2447 + t2451;
        const V t2453 = t2449 + t2450;
        const V t2454 = t2447 - t2451;
        const V t2455 = t2450 - t2449;
        // spectrum block of 13, multiplier 4
        const V t2456 = c[12] * t2422;
        const V t2457 = t1463 - t2456;
        const V t2458 = c[3] * t2445;
        const V t2459 = c[2] * t2444;
        const V t2460 = t2459 - t2458;
        const V t2461 = c[3] * t2444;
        const V t2462 = c[2] * t2445;
        const V t2463 = t2462 + t2461;
        const V t2464 = c[8] * t2427;
        const V t2465 = c[9] * t2426;
        const V t2466 = t2465 - t2464;
        const V t2467 = c[5] * t2455;
        const V t2468 = c[4] * t2454;
        const V t2469 = t2468 + t2467;
        const V t2470 = c[5] * t2454;
        const V t2471 = c[4] * t2455;
        const V t2472 = t2470 - t2471;
        const V t2473 = c[10] * t2425;
        const V t2474 = c[11] * t2424;
        const V t2475 = t2473 - t2474;
        const V t2476 = c[7] * t2453;
        const V t2477 = c[6] * t2452;
        const V t2478 = t2476 - t2477;
        const V t2479 = c[7] * t2452;
        const V t2480 = c[6] * t2453;
        const V t2481 = t2480 + t2479;
        const V t2482 = c[13] * t2423;
        // spectrum block of 3
        const V t2483 = t2475 + t2457;
        const V t2484 = c[0] * t2475;
        const V t2485 = t2457 - t2484;
        const V t2486 = c[16] * t2425;
        const V t2487 = c[17] * t2424;
        const V t2488 = t2486 + t2487;
        const V t2489 = t2485 + t2488;
        const V t2490 = t2485 - t2488;
        // complex block of 3
        const V t2491 = t2463 - t2481;
        const V t2492 = t2478 + t2460;
        const V t2493 = t2481 + t2463;
        const V t2494 = t2478 - t2460;
        const V t2495 = t2491 + t2472;
        const V t2496 = t2492 + t2469;
        const V t2497 = c[0] * t2491;
        const V t2498 = t2472 - t2497;
        const V t2499 = c[0] * t2492;
        const V t2500 = t2469 - t2499;
        const V t2501 = c[1] * t2493;
        const V t2502 = c[1] * t2494;
        const V t2503 = t2498 + t2502;
        const V t2504 = t2500 + t2501;
        const V t2505 = t2498 - t2502;
        const V t2506 = t2500 - t2501;
        // spectrum block of 3
        const V t2507 = t2466 + t2482;
        const V t2508 = c[0] * t2466;
        const V t2509 = t2482 - t2508;
        const V t2510 = c[18] * t2427;
        const V t2511 = c[19] * t2426;
        const V t2512 = t2510 + t2511;
        const V t2513 = t2509 - t2512;
        const V t2514 = t2509 + t2512;
        // spectrum block of 2
        const V t2515 = t2483 + t2507;
        const V t2516 = t2483 - t2507;
        // spectrum block of 2
        const V t2517 = t2515 + t2496;
        const V t2518 = t2515 - t2496;
        // spectrum block of 2
        const V t2519 = t2516 + t2495;
        const V t2520 = t2516 - t2495;
        // spectrum block of 2
        const V t2521 = t2489 + t2513;
        const V t2522 = t2489 - t2513;
        // spectrum block of 2
        const V t2523 = t2521 + t2504;
        const V t2524 = t2521 - t2504;
        // spectrum block of 2
        const V t2525 = t2522 + t2503;
        const V t2526 = t2522 - t2503;
        // spectrum block of 2
        const V t2527 = t2490 + t2514;
        const V t2528 = t2490 - t2514;
        // spectrum block of 2
        const V t2529 = t2527 + t2506;
        const V t2530 = t2527 - t2506;
        // spectrum block of 2
        const V t2531 = t2528 + t2505;
        const V t2532 = t2528 - t2505;
        // spectrum block of 13, multiplier 4
        const V t2533 = t1463 + t2422;
        // spectrum block of 2
        const V t2534 = t2161 + t2533;
        const V t2535 = t2161 - t2533;
        // spectrum block of 2
        const V t2536 = t2534 + t2255;
        io.im(1, t2536);
        const V t2537 = t2534 - t2255;
        io.im(52, t2537);
        // spectrum block of 2
        const V t2538 = t2535 - t2254;
        io.im(23, t2538);
        const V t2539 = t2535 + t2254;
        io.im(30, t2539);
        // spectrum block of 2
        const V t2540 = t2145 + t2517;
        const V t2541 = t2145 - t2517;
        // spectrum block of 2
        const V t2542 = t2540 + t2394;
        io.im(10, t2542);
        const V t2543 = t2540 - t2394;
        io.im(43, t2543);
        // spectrum block of 2
        const V t2544 = t2541 - t2344;
        io.im(18, t2544);
        const V t2545 = t2541 + t2344;
        io.im(35, t2545);
        // spectrum block of 2
        const V t2546 = t2159 + t2531;
        const V t2547 = t2159 - t2531;
        // spectrum block of 2
        const V t2548 = t2546 + t2408;
        io.im(47, t2548);
        const V t2549 = t2546 - t2408;
        io.im(6, t2549);
        // spectrum block of 2
        const V t2550 = t2547 - t2358;
        io.im(21, t2550);
        const V t2551 = t2547 + t2358;
        io.im(32, t2551);
        // spectrum block of 2
        const V t2552 = t2157 + t2529;
        const V t2553 = t2157 - t2529;
        // spectrum block of 2
        const V t2554 = t2552 + t2406;
        io.im(46, t2554);
        const V t2555 = t2552 - t2406;
        io.im(7, t2555);
        // spectrum block of 2
        const V t2556 = t2553 - t2356;
        io.im(51, t2556);
        const V t2557 = t2553 + t2356;
        io.im(2, t2557);
        // spectrum block of 2
        const V t2558 = t2152 + t2524;
        const V t2559 = t2152 - t2524;
        // spectrum block of 2
        const V t2560 = t2558 + t2401;
        io.im(36, t2560);
        const V t2561 = t2558 - t2401;
        io.im(17, t2561);
        // spectrum block of 2
        const V t2562 = t2559 - t2351;
        io.im(33, t2562);
        const V t2563 = t2559 + t2351;
        io.im(20, t2563);
        // spectrum block of 2
        const V t2564 = t2147 + t2519;
        const V t2565 = t2147 - t2519;
        // spectrum block of 2
        const V t2566 = t2564 + t2396;
        io.im(42, t2566);
        const V t2567 = t2564 - t2396;
        io.im(11, t2567);
        // spectrum block of 2
        const V t2568 = t2565 - t2346;
        io.im(12, t2568);
        const V t2569 = t2565 + t2346;
        io.im(41, t2569);
        // spectrum block of 2
        const V t2570 = t2153 + t2525;
        const V t2571 = t2153 - t2525;
        // spectrum block of 2
        const V t2572 = t2570 + t2402;
        io.im(49, t2572);
        const V t2573 = t2570 - t2402;
        io.im(4, t2573);
        // spectrum block of 2
        const V t2574 = t2571 - t2352;
        io.im(14, t2574);
        const V t2575 = t2571 + t2352;
        io.im(39, t2575);
        // spectrum block of 2
        const V t2576 = t2154 + t2526;
        const V t2577 = t2154 - t2526;
        // spectrum block of 2
        const V t2578 = t2576 + t2403;
        io.im(13, t2578);
        const V t2579 = t2576 - t2403;
        io.im(40, t2579);
        // spectrum block of 2
        const V t2580 = t2577 - t2353;
        io.im(34, t2580);
        const V t2581 = t2577 + t2353;
        io.im(19, t2581);
        // spectrum block of 2
        const V t2582 = t2148 + t2520;
        const V t2583 = t2148 - t2520;
        // spectrum block of 2
        const V t2584 = t2582 + t2397;
        io.im(24, t2584);
        const V t2585 = t2582 - t2397;
        io.im(29, t2585);
        // spectrum block of 2
        const V t2586 = t2583 - t2347;
        io.im(22, t2586);
        const V t2587 = t2583 + t2347;
        io.im(31, t2587);
        // spectrum block of 2
        const V t2588 = t2151 + t2523;
        const V t2589 = t2151 - t2523;
        // spectrum block of 2
        const V t2590 = t2588 + t2400;
        io.im(28, t2590);
        const V t2591 = t2588 - t2400;
        io.im(25, t2591);
        // spectrum block of 2
        const V t2592 = t2589 - t2350;
        io.im(8, t2592);
        const V t2593 = t2589 + t2350;
        io.im(45, t2593);
        // spectrum block of 2
        const V t2594 = t2158 + t2530;
        const V t2595 = t2158 - t2530;
        // spectrum block of 2
        const V t2596 = t2594 + t2407;
        io.im(15, t2596);
        const V t2597 = t2594 - t2407;
        io.im(38, t2597);
        // spectrum block of 2
        const V t2598 = t2595 - t2357;
        io.im(27, t2598);
        const V t2599 = t2595 + t2357;
        io.im(26, t2599);
        // spectrum block of 2
        const V t2600 = t2160 + t2532;
        const V t2601 = t2160 - t2532;
        // spectrum block of 2
        const V t2602 = t2600 + t2409;
        io.im(44, t2602);
        const V t2603 = t2600 - t2409;
        io.im(9, t2603);
        // spectrum block of 2
        const V t2604 = t2601 - t2359;
        io.im(5, t2604);
        const V t2605 = t2601 + t2359;
        io.im(48, t2605);
        // spectrum block of 2
        const V t2606 = t2146 + t2518;
        const V t2607 = t2146 - t2518;
        // spectrum block of 2
        const V t2608 = t2606 + t2395;
        io.im(16, t2608);
        const V t2609 = t2606 - t2395;
        io.im(37, t2609);
        // spectrum block of 2
        const V t2610 = t2607 - t2345;
        io.im(50, t2610);
        const V t2611 = t2607 + t2345;
        io.im(3, t2611);
    }
};

}  // namespace zulg
