// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 62.
// Hartley transform of 62 points, form I.
// 395 additions, 359 subtractions, 388 multiplications (450 with `scale`); 36 constants; 120 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<62> {
    static constexpr int steps = 1204;  // with `scale`
    static constexpr double inverseRoot = 0.1270001270001905;  // 1/sqrt(62), for `scale`
    static constexpr double constants[] = {
        0.5877852522924731,  // c[0]: -sin 2 pi 3/5
        0.9510565162951535,  // c[1]: -sin 2 pi 9/5
        0.8090169943749475,  // c[2]: -cos 2 pi 3/5
        0.30901699437494745,  // c[3]: cos 2 pi 9/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
        0.2226025627892778,  // c[6]: Q[6] of 31
        0.2970284107916672,  // c[7]: P[6] of 31
        0.10130252550848418,  // c[8]: Q[12] of 31
        0.35709323166839874,  // c[9]: -P[12] of 31
        0.1073724670043011,  // c[10]: -Q[8] of 31
        0.35531525594489755,  // c[11]: P[8] of 31
        0.21884316352804659,  // c[12]: Q[2] of 31
        0.29980901846811486,  // c[13]: -P[2] of 31
        0.05839901633481273,  // c[14]: Q[4] of 31
        0.3665614991633792,  // c[15]: P[4] of 31
        0.27566627690567064,  // c[16]: Q[14] of 31
        0.2485676599132395,  // c[17]: P[14] of 31
        0.3417205692768941,  // c[18]: P[10] of 31
        0.1449304326594425,  // c[19]: Q[10] of 31
        0.37108682864596165,  // c[20]: -P[9] of 31
        0.008505491359144196,  // c[21]: -Q[9] of 31
        0.37067181273221134,  // c[22]: P[3] of 31
        0.019498333867134416,  // c[23]: -Q[3] of 31
        0.24280988331200667,  // c[24]: P[7] of 31
        0.28075102554360776,  // c[25]: -Q[7] of 31
        0.1674782402040115,  // c[26]: P[13] of 31
        0.3312534027537607,  // c[27]: Q[13] of 31
        0.06530829340975558,  // c[28]: -P[11] of 31
        0.36539376648991023,  // c[29]: Q[11] of 31
        0.15196895108646355,  // c[30]: P[1] of 31
        0.3386491040641593,  // c[31]: -Q[1] of 31
        0.2580069240952765,  // c[32]: -Q[5] of 31
        0.26685240283098827,  // c[33]: -P[5] of 31
        0.03333333333333333,  // c[34]: 1/30
        0.1855921454276674,  // c[35]: -beta of 31
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x61 = io.in(61);
        const V t0 = x1 + x61;
        const V t1 = x1 - x61;
        const V x5 = io.in(5);
        const V x57 = io.in(57);
        const V t2 = x5 + x57;
        const V t3 = x5 - x57;
        const V x25 = io.in(25);
        const V x37 = io.in(37);
        const V t4 = x25 + x37;
        const V t5 = x25 - x37;
        // real block of 3, multiplier 2
        const V t6 = t2 + t4;
        const V t7 = t2 - t4;
        // real block of 3, multiplier 2
        const V t8 = t3 + t5;
        const V t9 = t3 - t5;
        // input stage
        const V x7 = io.in(7);
        const V x55 = io.in(55);
        const V t10 = x7 + x55;
        const V t11 = x7 - x55;
        const V x11 = io.in(11);
        const V x51 = io.in(51);
        const V t12 = x11 + x51;
        const V t13 = x11 - x51;
        // real block of 3, multiplier 2
        const V t14 = t12 + t10;
        const V t15 = t12 - t10;
        // real block of 3, multiplier 2
        const V t16 = t11 - t13;
        const V t17 = t13 + t11;
        // input stage
        const V x27 = io.in(27);
        const V x35 = io.in(35);
        const V t18 = x27 + x35;
        const V t19 = x27 - x35;
        // real block of 3, multiplier 2
        const V t20 = t6 + t0;
        // real block of 3, multiplier 2
        const V t21 = t14 + t18;
        // real block of 5, multiplier 3
        const V t22 = t21 + t20;
        // real block of 3, multiplier 2
        const V t23 = c[4] * t6;
        const V t24 = t0 - t23;
        // real block of 3, multiplier 2
        const V t25 = c[4] * t14;
        const V t26 = t18 - t25;
        // complex block of 5, multiplier 3
        const V t27 = t26 + t24;
        // real block of 3, multiplier 2
        const V t28 = c[5] * t7;
        // real block of 3, multiplier 2
        const V t29 = c[5] * t15;
        // complex block of 5, multiplier 3
        const V t30 = t29 + t28;
        const V t31 = t29 - t28;
        // real block of 3, multiplier 2
        const V t32 = t8 + t1;
        // real block of 3, multiplier 2
        const V t33 = t16 - t19;
        // real block of 5, multiplier 3
        const V t34 = t33 + t32;
        // real block of 3, multiplier 2
        const V t35 = c[4] * t8;
        const V t36 = t1 - t35;
        // real block of 3, multiplier 2
        const V t37 = c[4] * t16;
        const V t38 = t19 + t37;
        // complex block of 5, multiplier 3
        const V t39 = t36 - t38;
        // real block of 3, multiplier 2
        const V t40 = c[5] * t9;
        // real block of 3, multiplier 2
        const V t41 = c[5] * t17;
        // complex block of 5, multiplier 3
        const V t42 = t40 - t41;
        const V t43 = t41 + t40;
        // input stage
        const V x3 = io.in(3);
        const V x59 = io.in(59);
        const V t44 = x3 + x59;
        const V t45 = x3 - x59;
        const V x13 = io.in(13);
        const V x49 = io.in(49);
        const V t46 = x13 + x49;
        const V t47 = x13 - x49;
        // real block of 3, multiplier 2
        const V t48 = t46 + t44;
        const V t49 = t46 - t44;
        // real block of 3, multiplier 2
        const V t50 = t47 + t45;
        const V t51 = t45 - t47;
        // input stage
        const V x9 = io.in(9);
        const V x53 = io.in(53);
        const V t52 = x9 + x53;
        const V t53 = x9 - x53;
        const V x17 = io.in(17);
        const V x45 = io.in(45);
        const V t54 = x17 + x45;
        const V t55 = x17 - x45;
        // real block of 3, multiplier 2
        const V t56 = t52 + t54;
        const V t57 = t52 - t54;
        // real block of 3, multiplier 2
        const V t58 = t53 - t55;
        const V t59 = t53 + t55;
        // input stage
        const V x15 = io.in(15);
        const V x47 = io.in(47);
        const V t60 = x15 + x47;
        const V t61 = x15 - x47;
        const V x23 = io.in(23);
        const V x39 = io.in(39);
        const V t62 = x23 + x39;
        const V t63 = x23 - x39;
        // real block of 3, multiplier 2
        const V t64 = t56 + t62;
        // real block of 3, multiplier 2
        const V t65 = t48 + t60;
        // real block of 5, multiplier 3
        const V t66 = t64 + t65;
        // real block of 3, multiplier 2
        const V t67 = c[4] * t56;
        const V t68 = t62 - t67;
        // real block of 3, multiplier 2
        const V t69 = c[4] * t48;
        const V t70 = t60 - t69;
        // complex block of 5, multiplier 3
        const V t71 = t68 + t70;
        // real block of 3, multiplier 2
        const V t72 = c[5] * t57;
        // real block of 3, multiplier 2
        const V t73 = c[5] * t49;
        // complex block of 5, multiplier 3
        const V t74 = t72 + t73;
        const V t75 = t72 - t73;
        // real block of 3, multiplier 2
        const V t76 = t58 - t63;
        // real block of 3, multiplier 2
        const V t77 = t50 + t61;
        // real block of 5, multiplier 3
        const V t78 = t76 - t77;
        // real block of 3, multiplier 2
        const V t79 = c[4] * t58;
        const V t80 = t63 + t79;
        // real block of 3, multiplier 2
        const V t81 = c[4] * t50;
        const V t82 = t81 - t61;
        // complex block of 5, multiplier 3
        const V t83 = t82 - t80;
        // real block of 3, multiplier 2
        const V t84 = c[5] * t59;
        // real block of 3, multiplier 2
        const V t85 = c[5] * t51;
        // complex block of 5, multiplier 3
        const V t86 = t84 + t85;
        const V t87 = t84 - t85;
        // input stage
        const V x19 = io.in(19);
        const V x43 = io.in(43);
        const V t88 = x19 + x43;
        const V t89 = x19 - x43;
        const V x21 = io.in(21);
        const V x41 = io.in(41);
        const V t90 = x21 + x41;
        const V t91 = x21 - x41;
        // real block of 3, multiplier 2
        const V t92 = t90 + t88;
        // real block of 3, multiplier 2
        const V t93 = t89 - t91;
        // input stage
        const V x29 = io.in(29);
        const V x33 = io.in(33);
        const V t94 = x29 + x33;
        const V t95 = x29 - x33;
        // real block of 3, multiplier 2
        const V t96 = t90 - t88;
        const V t97 = c[5] * t96;
        const V t98 = t92 + t94;
        const V t99 = c[4] * t92;
        const V t100 = t94 - t99;
        // real block of 3, multiplier 2
        const V t101 = t91 + t89;
        const V t102 = c[5] * t101;
        const V t103 = t93 - t95;
        const V t104 = c[4] * t93;
        const V t105 = t95 + t104;
        // real block of 5, multiplier 3
        const V t106 = t64 - t65;
        const V t107 = c[0] * t106;
        const V t108 = c[1] * t106;
        const V t109 = t21 - t20;
        const V t110 = c[1] * t109;
        const V t111 = c[0] * t109;
        const V t112 = t107 + t110;
        // spectrum block of 31, multiplier 2
        const V t113 = c[6] * t112;
        const V t114 = c[7] * t112;
        // real block of 5, multiplier 3
        const V t115 = t111 - t108;
        // spectrum block of 31, multiplier 2
        const V t116 = c[8] * t115;
        const V t117 = c[9] * t115;
        // real block of 5, multiplier 3
        const V t118 = t66 + t22;
        const V t119 = t118 + t98;
        // spectrum block of 31, multiplier 2
        const V t120 = c[34] * t119;
        // real block of 5, multiplier 3
        const V t121 = c[2] * t66;
        const V t122 = t98 - t121;
        const V t123 = c[3] * t22;
        const V t124 = t122 + t123;
        // spectrum block of 31, multiplier 2
        const V t125 = c[7] * t124;
        const V t126 = c[6] * t124;
        // real block of 5, multiplier 3
        const V t127 = c[3] * t66;
        const V t128 = c[2] * t22;
        const V t129 = t127 - t128;
        const V t130 = t129 + t98;
        // spectrum block of 31, multiplier 2
        const V t131 = c[9] * t130;
        const V t132 = c[8] * t130;
        // complex block of 5, multiplier 3
        const V t133 = t68 - t70;
        const V t134 = c[1] * t133;
        const V t135 = c[0] * t133;
        const V t136 = t26 - t24;
        const V t137 = c[0] * t136;
        const V t138 = c[1] * t136;
        const V t139 = t134 - t137;
        const V t140 = t135 + t138;
        const V t141 = c[3] * t74;
        const V t142 = c[2] * t30;
        const V t143 = t141 - t142;
        const V t144 = t143 + t97;
        const V t145 = c[2] * t74;
        const V t146 = t97 - t145;
        const V t147 = c[3] * t30;
        const V t148 = t146 + t147;
        const V t149 = t144 - t139;
        // spectrum block of 31, multiplier 2
        const V t150 = c[10] * t149;
        const V t151 = c[11] * t149;
        // complex block of 5, multiplier 3
        const V t152 = t144 + t139;
        // spectrum block of 31, multiplier 2
        const V t153 = c[12] * t152;
        const V t154 = c[13] * t152;
        // complex block of 5, multiplier 3
        const V t155 = t148 - t140;
        // spectrum block of 31, multiplier 2
        const V t156 = c[14] * t155;
        const V t157 = c[15] * t155;
        // complex block of 5, multiplier 3
        const V t158 = t148 + t140;
        // spectrum block of 31, multiplier 2
        const V t159 = c[16] * t158;
        const V t160 = c[17] * t158;
        // complex block of 5, multiplier 3
        const V t161 = t71 + t27;
        const V t162 = t161 + t100;
        // spectrum block of 31, multiplier 2
        const V t163 = c[18] * t162;
        const V t164 = c[19] * t162;
        // complex block of 5, multiplier 3
        const V t165 = t74 + t30;
        const V t166 = t165 + t97;
        // spectrum block of 31, multiplier 2
        const V t167 = c[19] * t166;
        const V t168 = c[18] * t166;
        // complex block of 5, multiplier 3
        const V t169 = c[3] * t71;
        const V t170 = c[2] * t27;
        const V t171 = t169 - t170;
        const V t172 = t171 + t100;
        const V t173 = c[1] * t75;
        const V t174 = c[0] * t31;
        const V t175 = t173 - t174;
        const V t176 = t172 + t175;
        // spectrum block of 31, multiplier 2
        const V t177 = c[11] * t176;
        const V t178 = c[10] * t176;
        // complex block of 5, multiplier 3
        const V t179 = t172 - t175;
        // spectrum block of 31, multiplier 2
        const V t180 = c[13] * t179;
        const V t181 = c[12] * t179;
        // complex block of 5, multiplier 3
        const V t182 = c[2] * t71;
        const V t183 = t100 - t182;
        const V t184 = c[3] * t27;
        const V t185 = t183 + t184;
        const V t186 = c[0] * t75;
        const V t187 = c[1] * t31;
        const V t188 = t186 + t187;
        const V t189 = t185 + t188;
        // spectrum block of 31, multiplier 2
        const V t190 = c[15] * t189;
        const V t191 = c[14] * t189;
        // complex block of 5, multiplier 3
        const V t192 = t185 - t188;
        // spectrum block of 31, multiplier 2
        const V t193 = c[17] * t192;
        const V t194 = c[16] * t192;
        // real block of 5, multiplier 3
        const V t195 = t76 + t77;
        const V t196 = c[0] * t195;
        const V t197 = c[1] * t195;
        const V t198 = t33 - t32;
        const V t199 = c[1] * t198;
        const V t200 = c[0] * t198;
        const V t201 = t196 + t199;
        // spectrum block of 31, multiplier 2
        const V t202 = c[20] * t201;
        const V t203 = c[21] * t201;
        // real block of 5, multiplier 3
        const V t204 = t200 - t197;
        // spectrum block of 31, multiplier 2
        const V t205 = c[22] * t204;
        const V t206 = c[23] * t204;
        // real block of 5, multiplier 3
        const V t207 = t78 + t34;
        const V t208 = t207 + t103;
        // spectrum block of 31, multiplier 2
        const V t209 = c[35] * t208;
        // real block of 5, multiplier 3
        const V t210 = c[2] * t78;
        const V t211 = t103 - t210;
        const V t212 = c[3] * t34;
        const V t213 = t211 + t212;
        // spectrum block of 31, multiplier 2
        const V t214 = c[21] * t213;
        const V t215 = c[20] * t213;
        // real block of 5, multiplier 3
        const V t216 = c[3] * t78;
        const V t217 = c[2] * t34;
        const V t218 = t216 - t217;
        const V t219 = t218 + t103;
        // spectrum block of 31, multiplier 2
        const V t220 = c[23] * t219;
        const V t221 = c[22] * t219;
        // complex block of 5, multiplier 3
        const V t222 = t80 + t82;
        const V t223 = c[1] * t222;
        const V t224 = c[0] * t222;
        const V t225 = t38 + t36;
        const V t226 = c[0] * t225;
        const V t227 = c[1] * t225;
        const V t228 = t226 - t223;
        const V t229 = t224 + t227;
        const V t230 = c[3] * t86;
        const V t231 = c[2] * t42;
        const V t232 = t230 - t231;
        const V t233 = t232 - t102;
        const V t234 = c[2] * t86;
        const V t235 = t102 + t234;
        const V t236 = c[3] * t42;
        const V t237 = t236 - t235;
        const V t238 = t233 - t228;
        // spectrum block of 31, multiplier 2
        const V t239 = c[24] * t238;
        const V t240 = c[25] * t238;
        // complex block of 5, multiplier 3
        const V t241 = t233 + t228;
        // spectrum block of 31, multiplier 2
        const V t242 = c[26] * t241;
        const V t243 = c[27] * t241;
        // complex block of 5, multiplier 3
        const V t244 = t237 + t229;
        // spectrum block of 31, multiplier 2
        const V t245 = c[28] * t244;
        const V t246 = c[29] * t244;
        // complex block of 5, multiplier 3
        const V t247 = t237 - t229;
        // spectrum block of 31, multiplier 2
        const V t248 = c[30] * t247;
        const V t249 = c[31] * t247;
        // complex block of 5, multiplier 3
        const V t250 = t83 + t39;
        const V t251 = t250 - t105;
        // spectrum block of 31, multiplier 2
        const V t252 = c[32] * t251;
        const V t253 = c[33] * t251;
        // complex block of 5, multiplier 3
        const V t254 = t86 + t42;
        const V t255 = t254 - t102;
        // spectrum block of 31, multiplier 2
        const V t256 = c[33] * t255;
        const V t257 = c[32] * t255;
        // complex block of 5, multiplier 3
        const V t258 = c[3] * t83;
        const V t259 = c[2] * t39;
        const V t260 = t258 - t259;
        const V t261 = t260 - t105;
        const V t262 = c[1] * t87;
        const V t263 = c[0] * t43;
        const V t264 = t262 + t263;
        const V t265 = t261 + t264;
        // spectrum block of 31, multiplier 2
        const V t266 = c[25] * t265;
        const V t267 = c[24] * t265;
        // complex block of 5, multiplier 3
        const V t268 = t261 - t264;
        // spectrum block of 31, multiplier 2
        const V t269 = c[27] * t268;
        const V t270 = c[26] * t268;
        // complex block of 5, multiplier 3
        const V t271 = c[2] * t83;
        const V t272 = t105 + t271;
        const V t273 = c[3] * t39;
        const V t274 = t273 - t272;
        const V t275 = c[0] * t87;
        const V t276 = c[1] * t43;
        const V t277 = t275 - t276;
        const V t278 = t274 + t277;
        // spectrum block of 31, multiplier 2
        const V t279 = c[29] * t278;
        const V t280 = c[28] * t278;
        // complex block of 5, multiplier 3
        const V t281 = t274 - t277;
        // spectrum block of 31, multiplier 2
        const V t282 = c[31] * t281;
        const V t283 = c[30] * t281;
        // input stage
        const V x2 = io.in(2);
        const V x60 = io.in(60);
        const V t284 = x2 + x60;
        const V t285 = x2 - x60;
        const V x10 = io.in(10);
        const V x52 = io.in(52);
        const V t286 = x10 + x52;
        const V t287 = x10 - x52;
        const V x12 = io.in(12);
        const V x50 = io.in(50);
        const V t288 = x12 + x50;
        const V t289 = x12 - x50;
        // real block of 3, multiplier 2
        const V t290 = t286 + t288;
        // real block of 3, multiplier 2
        const V t291 = t287 - t289;
        // real block of 3, multiplier 2
        const V t292 = t286 - t288;
        const V t293 = c[5] * t292;
        const V t294 = t290 + t284;
        const V t295 = c[4] * t290;
        const V t296 = t284 - t295;
        // real block of 3, multiplier 2
        const V t297 = t287 + t289;
        const V t298 = c[5] * t297;
        const V t299 = t291 + t285;
        const V t300 = c[4] * t291;
        const V t301 = t285 - t300;
        // input stage
        const V x4 = io.in(4);
        const V x58 = io.in(58);
        const V t302 = x4 + x58;
        const V t303 = x4 - x58;
        const V x6 = io.in(6);
        const V x56 = io.in(56);
        const V t304 = x6 + x56;
        const V t305 = x6 - x56;
        const V x26 = io.in(26);
        const V x36 = io.in(36);
        const V t306 = x26 + x36;
        const V t307 = x26 - x36;
        // real block of 3, multiplier 2
        const V t308 = t306 + t304;
        const V t309 = t306 - t304;
        // real block of 3, multiplier 2
        const V t310 = t307 + t305;
        const V t311 = t305 - t307;
        // input stage
        const V x20 = io.in(20);
        const V x42 = io.in(42);
        const V t312 = x20 + x42;
        const V t313 = x20 - x42;
        const V x24 = io.in(24);
        const V x38 = io.in(38);
        const V t314 = x24 + x38;
        const V t315 = x24 - x38;
        // real block of 3, multiplier 2
        const V t316 = t312 + t314;
        const V t317 = t312 - t314;
        // real block of 3, multiplier 2
        const V t318 = t313 - t315;
        const V t319 = t313 + t315;
        // input stage
        const V x30 = io.in(30);
        const V x32 = io.in(32);
        const V t320 = x30 + x32;
        const V t321 = x30 - x32;
        // real block of 3, multiplier 2
        const V t322 = t308 + t320;
        // real block of 3, multiplier 2
        const V t323 = t316 + t302;
        // real block of 5, multiplier 3
        const V t324 = t323 + t322;
        // real block of 3, multiplier 2
        const V t325 = c[4] * t308;
        const V t326 = t320 - t325;
        // real block of 3, multiplier 2
        const V t327 = c[4] * t316;
        const V t328 = t302 - t327;
        // complex block of 5, multiplier 3
        const V t329 = t328 + t326;
        // real block of 3, multiplier 2
        const V t330 = c[5] * t309;
        // real block of 3, multiplier 2
        const V t331 = c[5] * t317;
        // complex block of 5, multiplier 3
        const V t332 = t331 + t330;
        const V t333 = t331 - t330;
        // real block of 3, multiplier 2
        const V t334 = t310 + t321;
        // real block of 3, multiplier 2
        const V t335 = t318 + t303;
        // real block of 5, multiplier 3
        const V t336 = t335 - t334;
        // real block of 3, multiplier 2
        const V t337 = c[4] * t310;
        const V t338 = t337 - t321;
        // real block of 3, multiplier 2
        const V t339 = c[4] * t318;
        const V t340 = t303 - t339;
        // complex block of 5, multiplier 3
        const V t341 = t340 + t338;
        // real block of 3, multiplier 2
        const V t342 = c[5] * t311;
        // real block of 3, multiplier 2
        const V t343 = c[5] * t319;
        // complex block of 5, multiplier 3
        const V t344 = t343 + t342;
        const V t345 = t343 - t342;
        // input stage
        const V x8 = io.in(8);
        const V x54 = io.in(54);
        const V t346 = x8 + x54;
        const V t347 = x8 - x54;
        const V x14 = io.in(14);
        const V x48 = io.in(48);
        const V t348 = x14 + x48;
        const V t349 = x14 - x48;
        const V x22 = io.in(22);
        const V x40 = io.in(40);
        const V t350 = x22 + x40;
        const V t351 = x22 - x40;
        // real block of 3, multiplier 2
        const V t352 = t350 + t348;
        const V t353 = t350 - t348;
        // real block of 3, multiplier 2
        const V t354 = t349 - t351;
        const V t355 = t351 + t349;
        // input stage
        const V x16 = io.in(16);
        const V x46 = io.in(46);
        const V t356 = x16 + x46;
        const V t357 = x16 - x46;
        const V x18 = io.in(18);
        const V x44 = io.in(44);
        const V t358 = x18 + x44;
        const V t359 = x18 - x44;
        const V x28 = io.in(28);
        const V x34 = io.in(34);
        const V t360 = x28 + x34;
        const V t361 = x28 - x34;
        // real block of 3, multiplier 2
        const V t362 = t358 + t360;
        const V t363 = t358 - t360;
        // real block of 3, multiplier 2
        const V t364 = t359 + t361;
        const V t365 = t359 - t361;
        // real block of 3, multiplier 2
        const V t366 = t352 + t346;
        // real block of 3, multiplier 2
        const V t367 = t362 + t356;
        // real block of 5, multiplier 3
        const V t368 = t366 + t367;
        // real block of 3, multiplier 2
        const V t369 = c[4] * t352;
        const V t370 = t346 - t369;
        // real block of 3, multiplier 2
        const V t371 = c[4] * t362;
        const V t372 = t356 - t371;
        // complex block of 5, multiplier 3
        const V t373 = t370 + t372;
        // real block of 3, multiplier 2
        const V t374 = c[5] * t353;
        // real block of 3, multiplier 2
        const V t375 = c[5] * t363;
        // complex block of 5, multiplier 3
        const V t376 = t374 + t375;
        const V t377 = t374 - t375;
        // real block of 3, multiplier 2
        const V t378 = t354 + t347;
        // real block of 3, multiplier 2
        const V t379 = t364 + t357;
        // real block of 5, multiplier 3
        const V t380 = t378 + t379;
        // real block of 3, multiplier 2
        const V t381 = c[4] * t354;
        const V t382 = t347 - t381;
        // real block of 3, multiplier 2
        const V t383 = c[4] * t364;
        const V t384 = t357 - t383;
        // complex block of 5, multiplier 3
        const V t385 = t382 + t384;
        // real block of 3, multiplier 2
        const V t386 = c[5] * t355;
        // real block of 3, multiplier 2
        const V t387 = c[5] * t365;
        // complex block of 5, multiplier 3
        const V t388 = t387 - t386;
        const V t389 = t386 + t387;
        // real block of 5, multiplier 3
        const V t390 = t366 - t367;
        const V t391 = c[0] * t390;
        const V t392 = c[1] * t390;
        const V t393 = t323 - t322;
        const V t394 = c[1] * t393;
        const V t395 = c[0] * t393;
        const V t396 = t391 + t394;
        // spectrum block of 31, multiplier 2
        const V t397 = c[6] * t396;
        const V t398 = c[7] * t396;
        // real block of 5, multiplier 3
        const V t399 = t395 - t392;
        // spectrum block of 31, multiplier 2
        const V t400 = c[8] * t399;
        const V t401 = c[9] * t399;
        // real block of 5, multiplier 3
        const V t402 = t368 + t324;
        const V t403 = t402 + t294;
        // spectrum block of 31, multiplier 2
        const V t404 = c[34] * t403;
        // real block of 5, multiplier 3
        const V t405 = c[2] * t368;
        const V t406 = t294 - t405;
        const V t407 = c[3] * t324;
        const V t408 = t406 + t407;
        // spectrum block of 31, multiplier 2
        const V t409 = c[7] * t408;
        const V t410 = c[6] * t408;
        // real block of 5, multiplier 3
        const V t411 = c[3] * t368;
        const V t412 = c[2] * t324;
        const V t413 = t411 - t412;
        const V t414 = t413 + t294;
        // spectrum block of 31, multiplier 2
        const V t415 = c[9] * t414;
        const V t416 = c[8] * t414;
        // complex block of 5, multiplier 3
        const V t417 = t370 - t372;
        const V t418 = c[1] * t417;
        const V t419 = c[0] * t417;
        const V t420 = t328 - t326;
        const V t421 = c[0] * t420;
        const V t422 = c[1] * t420;
        const V t423 = t418 - t421;
        const V t424 = t419 + t422;
        const V t425 = c[3] * t376;
        const V t426 = c[2] * t332;
        const V t427 = t425 - t426;
        const V t428 = t427 + t293;
        const V t429 = c[2] * t376;
        const V t430 = t293 - t429;
        const V t431 = c[3] * t332;
        const V t432 = t430 + t431;
        const V t433 = t428 - t423;
        // spectrum block of 31, multiplier 2
        const V t434 = c[10] * t433;
        const V t435 = c[11] * t433;
        // complex block of 5, multiplier 3
        const V t436 = t428 + t423;
        // spectrum block of 31, multiplier 2
        const V t437 = c[12] * t436;
        const V t438 = c[13] * t436;
        // complex block of 5, multiplier 3
        const V t439 = t432 - t424;
        // spectrum block of 31, multiplier 2
        const V t440 = c[14] * t439;
        const V t441 = c[15] * t439;
        // complex block of 5, multiplier 3
        const V t442 = t432 + t424;
        // spectrum block of 31, multiplier 2
        const V t443 = c[16] * t442;
        const V t444 = c[17] * t442;
        // complex block of 5, multiplier 3
        const V t445 = t373 + t329;
        const V t446 = t445 + t296;
        // spectrum block of 31, multiplier 2
        const V t447 = c[18] * t446;
        const V t448 = c[19] * t446;
        // complex block of 5, multiplier 3
        const V t449 = t376 + t332;
        const V t450 = t449 + t293;
        // spectrum block of 31, multiplier 2
        const V t451 = c[19] * t450;
        const V t452 = c[18] * t450;
        // complex block of 5, multiplier 3
        const V t453 = c[3] * t373;
        const V t454 = c[2] * t329;
        const V t455 = t453 - t454;
        const V t456 = t455 + t296;
        const V t457 = c[1] * t377;
        const V t458 = c[0] * t333;
        const V t459 = t457 - t458;
        const V t460 = t456 + t459;
        // spectrum block of 31, multiplier 2
        const V t461 = c[11] * t460;
        const V t462 = c[10] * t460;
        // complex block of 5, multiplier 3
        const V t463 = t456 - t459;
        // spectrum block of 31, multiplier 2
        const V t464 = c[13] * t463;
        const V t465 = c[12] * t463;
        // complex block of 5, multiplier 3
        const V t466 = c[2] * t373;
        const V t467 = t296 - t466;
        const V t468 = c[3] * t329;
        const V t469 = t467 + t468;
        const V t470 = c[0] * t377;
        const V t471 = c[1] * t333;
        const V t472 = t470 + t471;
        const V t473 = t469 + t472;
        // spectrum block of 31, multiplier 2
        const V t474 = c[15] * t473;
        const V t475 = c[14] * t473;
        // complex block of 5, multiplier 3
        const V t476 = t469 - t472;
        // spectrum block of 31, multiplier 2
        const V t477 = c[17] * t476;
        const V t478 = c[16] * t476;
        // real block of 5, multiplier 3
        const V t479 = t378 - t379;
        const V t480 = c[0] * t479;
        const V t481 = c[1] * t479;
        const V t482 = t335 + t334;
        const V t483 = c[1] * t482;
        const V t484 = c[0] * t482;
        const V t485 = t480 + t483;
        // spectrum block of 31, multiplier 2
        const V t486 = c[20] * t485;
        const V t487 = c[21] * t485;
        // real block of 5, multiplier 3
        const V t488 = t484 - t481;
        // spectrum block of 31, multiplier 2
        const V t489 = c[22] * t488;
        const V t490 = c[23] * t488;
        // real block of 5, multiplier 3
        const V t491 = t380 + t336;
        const V t492 = t491 + t299;
        // spectrum block of 31, multiplier 2
        const V t493 = c[35] * t492;
        // real block of 5, multiplier 3
        const V t494 = c[2] * t380;
        const V t495 = t299 - t494;
        const V t496 = c[3] * t336;
        const V t497 = t495 + t496;
        // spectrum block of 31, multiplier 2
        const V t498 = c[21] * t497;
        const V t499 = c[20] * t497;
        // real block of 5, multiplier 3
        const V t500 = c[3] * t380;
        const V t501 = c[2] * t336;
        const V t502 = t500 - t501;
        const V t503 = t502 + t299;
        // spectrum block of 31, multiplier 2
        const V t504 = c[23] * t503;
        const V t505 = c[22] * t503;
        // complex block of 5, multiplier 3
        const V t506 = t382 - t384;
        const V t507 = c[1] * t506;
        const V t508 = c[0] * t506;
        const V t509 = t340 - t338;
        const V t510 = c[0] * t509;
        const V t511 = c[1] * t509;
        const V t512 = t507 - t510;
        const V t513 = t508 + t511;
        const V t514 = c[3] * t388;
        const V t515 = c[2] * t344;
        const V t516 = t514 - t515;
        const V t517 = t516 + t298;
        const V t518 = c[2] * t388;
        const V t519 = t298 - t518;
        const V t520 = c[3] * t344;
        const V t521 = t519 + t520;
        const V t522 = t517 - t512;
        // spectrum block of 31, multiplier 2
        const V t523 = c[24] * t522;
        const V t524 = c[25] * t522;
        // complex block of 5, multiplier 3
        const V t525 = t517 + t512;
        // spectrum block of 31, multiplier 2
        const V t526 = c[26] * t525;
        const V t527 = c[27] * t525;
        // complex block of 5, multiplier 3
        const V t528 = t521 - t513;
        // spectrum block of 31, multiplier 2
        const V t529 = c[28] * t528;
        const V t530 = c[29] * t528;
        // complex block of 5, multiplier 3
        const V t531 = t521 + t513;
        // spectrum block of 31, multiplier 2
        const V t532 = c[30] * t531;
        const V t533 = c[31] * t531;
        // complex block of 5, multiplier 3
        const V t534 = t385 + t341;
        const V t535 = t534 + t301;
        // spectrum block of 31, multiplier 2
        const V t536 = c[32] * t535;
        const V t537 = c[33] * t535;
        // complex block of 5, multiplier 3
        const V t538 = t388 + t344;
        const V t539 = t538 + t298;
        // spectrum block of 31, multiplier 2
        const V t540 = c[33] * t539;
        const V t541 = c[32] * t539;
        // complex block of 5, multiplier 3
        const V t542 = c[3] * t385;
        const V t543 = c[2] * t341;
        const V t544 = t542 - t543;
        const V t545 = t544 + t301;
        const V t546 = c[1] * t389;
        const V t547 = c[0] * t345;
        const V t548 = t546 + t547;
        const V t549 = t545 - t548;
        // spectrum block of 31, multiplier 2
        const V t550 = c[25] * t549;
        const V t551 = c[24] * t549;
        // complex block of 5, multiplier 3
        const V t552 = t545 + t548;
        // spectrum block of 31, multiplier 2
        const V t553 = c[27] * t552;
        const V t554 = c[26] * t552;
        // complex block of 5, multiplier 3
        const V t555 = c[2] * t385;
        const V t556 = t301 - t555;
        const V t557 = c[3] * t341;
        const V t558 = t556 + t557;
        const V t559 = c[0] * t389;
        const V t560 = c[1] * t345;
        const V t561 = t560 - t559;
        const V t562 = t558 + t561;
        // spectrum block of 31, multiplier 2
        const V t563 = c[29] * t562;
        const V t564 = c[28] * t562;
        // complex block of 5, multiplier 3
        const V t565 = t558 - t561;
        // spectrum block of 31, multiplier 2
        const V t566 = c[31] * t565;
        const V t567 = c[30] * t565;
        const V x0 = io.in(0);
        const V t568 = x0 - t404;
        // spectrum block of 2
        const V t569 = t568 - t493;
        const V t570 = t568 + t493;
        // spectrum block of 31, multiplier 2
        const V t571 = t536 + t540;
        const V t572 = t447 - t451;
        // complex block of 2
        const V t573 = t572 - t571;
        const V t574 = t572 + t571;
        // spectrum block of 3
        const V t575 = c[4] * t573;
        // spectrum block of 3
        const V t576 = c[4] * t574;
        // spectrum block of 31, multiplier 2
        const V t577 = t541 - t537;
        const V t578 = t452 + t448;
        // complex block of 2
        const V t579 = t578 - t577;
        const V t580 = t578 + t577;
        // spectrum block of 3
        const V t581 = t573 + t569;
        const V t582 = t569 - t575;
        const V t583 = c[5] * t579;
        const V t584 = t582 - t583;
        const V t585 = t582 + t583;
        // spectrum block of 3
        const V t586 = t574 + t570;
        const V t587 = t570 - t576;
        const V t588 = c[5] * t580;
        const V t589 = t587 - t588;
        const V t590 = t587 + t588;
        // spectrum block of 31, multiplier 2
        const V t591 = t566 + t532;
        const V t592 = t477 + t443;
        // complex block of 2
        const V t593 = t592 - t591;
        const V t594 = t592 + t591;
        // spectrum block of 31, multiplier 2
        const V t595 = t474 - t440;
        const V t596 = t563 - t529;
        // complex block of 2
        const V t597 = t595 + t596;
        const V t598 = t595 - t596;
        // complex block of 3
        const V t599 = t593 + t597;
        // complex block of 3
        const V t600 = t594 + t598;
        // spectrum block of 31, multiplier 2
        const V t601 = t567 - t533;
        const V t602 = t478 - t444;
        // complex block of 2
        const V t603 = t602 - t601;
        const V t604 = t602 + t601;
        // spectrum block of 31, multiplier 2
        const V t605 = t441 + t475;
        const V t606 = t530 + t564;
        // complex block of 2
        const V t607 = t605 + t606;
        const V t608 = t605 - t606;
        // complex block of 3
        const V t609 = t603 + t607;
        const V t610 = t607 - t603;
        // complex block of 3
        const V t611 = t604 + t608;
        const V t612 = t608 - t604;
        // spectrum block of 31, multiplier 2
        const V t613 = t409 - t397;
        const V t614 = t498 + t486;
        // complex block of 2
        const V t615 = t613 - t614;
        const V t616 = t613 + t614;
        // spectrum block of 31, multiplier 2
        const V t617 = t398 + t410;
        const V t618 = t487 - t499;
        // complex block of 2
        const V t619 = t617 - t618;
        const V t620 = t617 + t618;
        // complex block of 3
        const V t621 = t593 - t597;
        const V t622 = c[5] * t621;
        const V t623 = t619 - t609;
        const V t624 = t599 + t615;
        // spectrum block of 5
        const V t625 = c[3] * t624;
        const V t626 = c[2] * t624;
        // complex block of 3
        const V t627 = c[4] * t609;
        const V t628 = t627 + t619;
        const V t629 = c[4] * t599;
        const V t630 = t615 - t629;
        const V t631 = c[5] * t610;
        const V t632 = t630 - t631;
        const V t633 = t630 + t631;
        // complex block of 3
        const V t634 = t594 - t598;
        const V t635 = c[5] * t634;
        const V t636 = t620 - t611;
        const V t637 = t600 + t616;
        // spectrum block of 5
        const V t638 = c[3] * t637;
        const V t639 = c[2] * t637;
        // complex block of 3
        const V t640 = c[4] * t611;
        const V t641 = t640 + t620;
        const V t642 = c[4] * t600;
        const V t643 = t616 - t642;
        const V t644 = c[5] * t612;
        const V t645 = t643 - t644;
        const V t646 = t643 + t644;
        // spectrum block of 31, multiplier 2
        const V t647 = t437 - t464;
        const V t648 = t553 - t526;
        // complex block of 2
        const V t649 = t647 + t648;
        const V t650 = t647 - t648;
        // spectrum block of 31, multiplier 2
        const V t651 = t550 + t523;
        const V t652 = t461 - t434;
        // complex block of 2
        const V t653 = t652 - t651;
        const V t654 = t652 + t651;
        // complex block of 3
        const V t655 = t653 + t649;
        // complex block of 3
        const V t656 = t654 + t650;
        // spectrum block of 31, multiplier 2
        const V t657 = t438 + t465;
        const V t658 = t527 + t554;
        // complex block of 2
        const V t659 = t657 - t658;
        const V t660 = t657 + t658;
        // spectrum block of 31, multiplier 2
        const V t661 = t551 - t524;
        const V t662 = t435 + t462;
        // complex block of 2
        const V t663 = t662 + t661;
        const V t664 = t661 - t662;
        // complex block of 3
        const V t665 = t663 + t659;
        const V t666 = t663 - t659;
        // complex block of 3
        const V t667 = t660 - t664;
        const V t668 = t664 + t660;
        // spectrum block of 31, multiplier 2
        const V t669 = t489 - t504;
        const V t670 = t415 + t400;
        // complex block of 2
        const V t671 = t669 - t670;
        const V t672 = t670 + t669;
        // spectrum block of 31, multiplier 2
        const V t673 = t490 + t505;
        const V t674 = t416 - t401;
        // complex block of 2
        const V t675 = t674 - t673;
        const V t676 = t674 + t673;
        // complex block of 3
        const V t677 = t653 - t649;
        const V t678 = c[5] * t677;
        const V t679 = t665 + t675;
        const V t680 = t655 + t671;
        // spectrum block of 5
        const V t681 = c[2] * t680;
        // complex block of 3
        const V t682 = c[4] * t665;
        const V t683 = t675 - t682;
        const V t684 = c[4] * t655;
        const V t685 = t671 - t684;
        const V t686 = c[5] * t666;
        const V t687 = t685 - t686;
        const V t688 = t685 + t686;
        // complex block of 3
        const V t689 = t654 - t650;
        const V t690 = c[5] * t689;
        const V t691 = t667 + t676;
        const V t692 = t656 - t672;
        // spectrum block of 5
        const V t693 = c[2] * t692;
        // complex block of 3
        const V t694 = c[4] * t667;
        const V t695 = t676 - t694;
        const V t696 = c[4] * t656;
        const V t697 = t672 + t696;
        const V t698 = c[5] * t668;
        const V t699 = t698 - t697;
        const V t700 = t697 + t698;
        // spectrum block of 31, multiplier 2
        const V x31 = io.in(31);
        const V t701 = x31 - t120;
        // spectrum block of 2
        const V t702 = t701 - t209;
        const V t703 = t701 + t209;
        // spectrum block of 31, multiplier 2
        const V t704 = t252 + t256;
        const V t705 = t163 - t167;
        // complex block of 2
        const V t706 = t705 - t704;
        const V t707 = t705 + t704;
        // spectrum block of 3
        const V t708 = c[4] * t706;
        // spectrum block of 3
        const V t709 = c[4] * t707;
        // spectrum block of 31, multiplier 2
        const V t710 = t257 - t253;
        const V t711 = t168 + t164;
        // complex block of 2
        const V t712 = t711 - t710;
        const V t713 = t711 + t710;
        // spectrum block of 3
        const V t714 = t706 + t702;
        const V t715 = t702 - t708;
        const V t716 = c[5] * t712;
        const V t717 = t715 - t716;
        const V t718 = t715 + t716;
        // spectrum block of 3
        const V t719 = t707 + t703;
        const V t720 = t703 - t709;
        const V t721 = c[5] * t713;
        const V t722 = t720 - t721;
        const V t723 = t720 + t721;
        // spectrum block of 31, multiplier 2
        const V t724 = t282 + t248;
        const V t725 = t193 + t159;
        // complex block of 2
        const V t726 = t725 - t724;
        const V t727 = t725 + t724;
        // spectrum block of 31, multiplier 2
        const V t728 = t190 - t156;
        const V t729 = t279 - t245;
        // complex block of 2
        const V t730 = t728 + t729;
        const V t731 = t728 - t729;
        // complex block of 3
        const V t732 = t726 + t730;
        // complex block of 3
        const V t733 = t727 + t731;
        // spectrum block of 31, multiplier 2
        const V t734 = t283 - t249;
        const V t735 = t194 - t160;
        // complex block of 2
        const V t736 = t735 - t734;
        const V t737 = t735 + t734;
        // spectrum block of 31, multiplier 2
        const V t738 = t157 + t191;
        const V t739 = t246 + t280;
        // complex block of 2
        const V t740 = t738 + t739;
        const V t741 = t738 - t739;
        // complex block of 3
        const V t742 = t736 + t740;
        const V t743 = t740 - t736;
        // complex block of 3
        const V t744 = t737 + t741;
        const V t745 = t741 - t737;
        // spectrum block of 31, multiplier 2
        const V t746 = t125 - t113;
        const V t747 = t214 + t202;
        // complex block of 2
        const V t748 = t746 - t747;
        const V t749 = t746 + t747;
        // spectrum block of 31, multiplier 2
        const V t750 = t114 + t126;
        const V t751 = t203 - t215;
        // complex block of 2
        const V t752 = t750 - t751;
        const V t753 = t750 + t751;
        // complex block of 3
        const V t754 = t726 - t730;
        const V t755 = c[5] * t754;
        const V t756 = t752 - t742;
        const V t757 = t732 + t748;
        // spectrum block of 5
        const V t758 = c[3] * t757;
        const V t759 = c[2] * t757;
        // complex block of 3
        const V t760 = c[4] * t742;
        const V t761 = t760 + t752;
        const V t762 = c[4] * t732;
        const V t763 = t748 - t762;
        const V t764 = c[5] * t743;
        const V t765 = t763 - t764;
        const V t766 = t763 + t764;
        // complex block of 3
        const V t767 = t727 - t731;
        const V t768 = c[5] * t767;
        const V t769 = t753 - t744;
        const V t770 = t733 + t749;
        // spectrum block of 5
        const V t771 = c[3] * t770;
        const V t772 = c[2] * t770;
        // complex block of 3
        const V t773 = c[4] * t744;
        const V t774 = t773 + t753;
        const V t775 = c[4] * t733;
        const V t776 = t749 - t775;
        const V t777 = c[5] * t745;
        const V t778 = t776 - t777;
        const V t779 = t776 + t777;
        // spectrum block of 31, multiplier 2
        const V t780 = t153 - t180;
        const V t781 = t269 - t242;
        // complex block of 2
        const V t782 = t780 + t781;
        const V t783 = t780 - t781;
        // spectrum block of 31, multiplier 2
        const V t784 = t266 + t239;
        const V t785 = t177 - t150;
        // complex block of 2
        const V t786 = t785 - t784;
        const V t787 = t785 + t784;
        // complex block of 3
        const V t788 = t786 + t782;
        // complex block of 3
        const V t789 = t787 + t783;
        // spectrum block of 31, multiplier 2
        const V t790 = t154 + t181;
        const V t791 = t243 + t270;
        // complex block of 2
        const V t792 = t790 - t791;
        const V t793 = t790 + t791;
        // spectrum block of 31, multiplier 2
        const V t794 = t267 - t240;
        const V t795 = t151 + t178;
        // complex block of 2
        const V t796 = t795 + t794;
        const V t797 = t794 - t795;
        // complex block of 3
        const V t798 = t796 + t792;
        const V t799 = t796 - t792;
        // complex block of 3
        const V t800 = t793 - t797;
        const V t801 = t797 + t793;
        // spectrum block of 31, multiplier 2
        const V t802 = t205 - t220;
        const V t803 = t131 + t116;
        // complex block of 2
        const V t804 = t802 - t803;
        const V t805 = t803 + t802;
        // spectrum block of 31, multiplier 2
        const V t806 = t206 + t221;
        const V t807 = t132 - t117;
        // complex block of 2
        const V t808 = t807 - t806;
        const V t809 = t807 + t806;
        // complex block of 3
        const V t810 = t786 - t782;
        const V t811 = c[5] * t810;
        const V t812 = t798 + t808;
        const V t813 = t788 + t804;
        // spectrum block of 5
        const V t814 = c[2] * t813;
        // complex block of 3
        const V t815 = c[4] * t798;
        const V t816 = t808 - t815;
        const V t817 = c[4] * t788;
        const V t818 = t804 - t817;
        const V t819 = c[5] * t799;
        const V t820 = t818 - t819;
        const V t821 = t818 + t819;
        // complex block of 3
        const V t822 = t787 - t783;
        const V t823 = c[5] * t822;
        const V t824 = t800 + t809;
        const V t825 = t789 - t805;
        // spectrum block of 5
        const V t826 = c[2] * t825;
        // complex block of 3
        const V t827 = c[4] * t800;
        const V t828 = t809 - t827;
        const V t829 = c[4] * t789;
        const V t830 = t805 + t829;
        const V t831 = c[5] * t801;
        const V t832 = t831 - t830;
        const V t833 = t830 + t831;
        // complex block of 3
        const V t834 = t628 + t622;
        // spectrum block of 5
        const V t835 = c[1] * t834;
        const V t836 = c[0] * t834;
        // complex block of 3
        const V t837 = t683 + t678;
        // spectrum block of 5
        const V t838 = c[0] * t837;
        const V t839 = c[1] * t837;
        const V t840 = t835 + t838;
        const V t841 = t836 - t839;
        const V t842 = c[3] * t632;
        const V t843 = c[2] * t687;
        const V t844 = t842 - t843;
        const V t845 = t844 + t584;
        const V t846 = c[2] * t632;
        const V t847 = t584 - t846;
        const V t848 = c[3] * t687;
        const V t849 = t847 + t848;
        // complex block of 3
        const V t850 = t761 + t755;
        // spectrum block of 5
        const V t851 = c[1] * t850;
        const V t852 = c[0] * t850;
        // complex block of 3
        const V t853 = t816 + t811;
        // spectrum block of 5
        const V t854 = c[0] * t853;
        const V t855 = c[1] * t853;
        const V t856 = t851 + t854;
        const V t857 = t852 - t855;
        const V t858 = c[3] * t765;
        const V t859 = c[2] * t820;
        const V t860 = t858 - t859;
        const V t861 = t860 + t717;
        const V t862 = c[2] * t765;
        const V t863 = t717 - t862;
        const V t864 = c[3] * t820;
        const V t865 = t863 + t864;
        // spectrum block of 5
        const V t866 = t845 - t840;
        // spectrum block of 5
        const V t867 = t861 - t856;
        // spectrum block of 2
        const V t868 = t866 + t867;
        io.out(42, t868);
        const V t869 = t866 - t867;
        io.out(11, t869);
        // spectrum block of 5
        const V t870 = t845 + t840;
        // spectrum block of 5
        const V t871 = t861 + t856;
        // spectrum block of 2
        const V t872 = t870 + t871;
        io.out(26, t872);
        const V t873 = t870 - t871;
        io.out(57, t873);
        // spectrum block of 5
        const V t874 = t849 - t841;
        // spectrum block of 5
        const V t875 = t865 - t857;
        // spectrum block of 2
        const V t876 = t874 + t875;
        io.out(22, t876);
        const V t877 = t874 - t875;
        io.out(53, t877);
        // spectrum block of 5
        const V t878 = t849 + t841;
        // spectrum block of 5
        const V t879 = t865 + t857;
        // spectrum block of 2
        const V t880 = t878 + t879;
        io.out(44, t880);
        const V t881 = t878 - t879;
        io.out(13, t881);
        // complex block of 3
        const V t882 = t628 - t622;
        // spectrum block of 5
        const V t883 = c[1] * t882;
        const V t884 = c[0] * t882;
        // complex block of 3
        const V t885 = t683 - t678;
        // spectrum block of 5
        const V t886 = c[0] * t885;
        const V t887 = c[1] * t885;
        const V t888 = t883 + t886;
        const V t889 = t884 - t887;
        const V t890 = c[3] * t633;
        const V t891 = c[2] * t688;
        const V t892 = t890 - t891;
        const V t893 = t892 + t585;
        const V t894 = c[2] * t633;
        const V t895 = t585 - t894;
        const V t896 = c[3] * t688;
        const V t897 = t895 + t896;
        // complex block of 3
        const V t898 = t761 - t755;
        // spectrum block of 5
        const V t899 = c[1] * t898;
        const V t900 = c[0] * t898;
        // complex block of 3
        const V t901 = t816 - t811;
        // spectrum block of 5
        const V t902 = c[0] * t901;
        const V t903 = c[1] * t901;
        const V t904 = t899 + t902;
        const V t905 = t900 - t903;
        const V t906 = c[3] * t766;
        const V t907 = c[2] * t821;
        const V t908 = t906 - t907;
        const V t909 = t908 + t718;
        const V t910 = c[2] * t766;
        const V t911 = t718 - t910;
        const V t912 = c[3] * t821;
        const V t913 = t911 + t912;
        // spectrum block of 5
        const V t914 = t893 - t888;
        // spectrum block of 5
        const V t915 = t909 - t904;
        // spectrum block of 2
        const V t916 = t914 + t915;
        io.out(24, t916);
        const V t917 = t914 - t915;
        io.out(55, t917);
        // spectrum block of 5
        const V t918 = t893 + t888;
        // spectrum block of 5
        const V t919 = t909 + t904;
        // spectrum block of 2
        const V t920 = t918 + t919;
        io.out(6, t920);
        const V t921 = t918 - t919;
        io.out(37, t921);
        // spectrum block of 5
        const V t922 = t897 - t889;
        // spectrum block of 5
        const V t923 = t913 - t905;
        // spectrum block of 2
        const V t924 = t922 + t923;
        io.out(48, t924);
        const V t925 = t922 - t923;
        io.out(17, t925);
        // spectrum block of 5
        const V t926 = t897 + t889;
        // spectrum block of 5
        const V t927 = t913 + t905;
        // spectrum block of 2
        const V t928 = t926 + t927;
        io.out(34, t928);
        const V t929 = t926 - t927;
        io.out(3, t929);
        // spectrum block of 5
        const V t930 = t624 + t680;
        const V t931 = t930 + t581;
        // spectrum block of 5
        const V t932 = t757 + t813;
        const V t933 = t932 + t714;
        // spectrum block of 2
        const V t934 = t931 + t933;
        io.out(60, t934);
        const V t935 = t931 - t933;
        io.out(29, t935);
        // spectrum block of 5
        const V t936 = t625 - t681;
        const V t937 = t936 + t581;
        const V t938 = c[1] * t623;
        const V t939 = c[0] * t679;
        const V t940 = t938 + t939;
        // spectrum block of 5
        const V t941 = t758 - t814;
        const V t942 = t941 + t714;
        const V t943 = c[1] * t756;
        const V t944 = c[0] * t812;
        const V t945 = t943 + t944;
        // spectrum block of 5
        const V t946 = t937 - t940;
        // spectrum block of 5
        const V t947 = t942 - t945;
        // spectrum block of 2
        const V t948 = t946 + t947;
        io.out(58, t948);
        const V t949 = t946 - t947;
        io.out(27, t949);
        // spectrum block of 5
        const V t950 = t937 + t940;
        // spectrum block of 5
        const V t951 = t942 + t945;
        // spectrum block of 2
        const V t952 = t950 + t951;
        io.out(30, t952);
        const V t953 = t950 - t951;
        io.out(61, t953);
        // spectrum block of 5
        const V t954 = t581 - t626;
        const V t955 = c[3] * t680;
        const V t956 = t954 + t955;
        const V t957 = c[0] * t623;
        const V t958 = c[1] * t679;
        const V t959 = t957 - t958;
        // spectrum block of 5
        const V t960 = t714 - t759;
        const V t961 = c[3] * t813;
        const V t962 = t960 + t961;
        const V t963 = c[0] * t756;
        const V t964 = c[1] * t812;
        const V t965 = t963 - t964;
        // spectrum block of 5
        const V t966 = t956 - t959;
        // spectrum block of 5
        const V t967 = t962 - t965;
        // spectrum block of 2
        const V t968 = t966 + t967;
        io.out(54, t968);
        const V t969 = t966 - t967;
        io.out(23, t969);
        // spectrum block of 5
        const V t970 = t956 + t959;
        // spectrum block of 5
        const V t971 = t962 + t965;
        // spectrum block of 2
        const V t972 = t970 + t971;
        io.out(46, t972);
        const V t973 = t970 - t971;
        io.out(15, t973);
        // spectrum block of 5
        const V t974 = t632 + t687;
        const V t975 = t974 + t584;
        // spectrum block of 5
        const V t976 = t765 + t820;
        const V t977 = t976 + t717;
        // spectrum block of 2
        const V t978 = t975 + t977;
        io.out(52, t978);
        const V t979 = t975 - t977;
        io.out(21, t979);
        // spectrum block of 5
        const V t980 = t633 + t688;
        const V t981 = t980 + t585;
        // spectrum block of 5
        const V t982 = t766 + t821;
        const V t983 = t982 + t718;
        // spectrum block of 2
        const V t984 = t981 + t983;
        io.out(12, t984);
        const V t985 = t981 - t983;
        io.out(43, t985);
        // complex block of 3
        const V t986 = t641 + t635;
        // spectrum block of 5
        const V t987 = c[1] * t986;
        const V t988 = c[0] * t986;
        // complex block of 3
        const V t989 = t695 + t690;
        // spectrum block of 5
        const V t990 = c[0] * t989;
        const V t991 = c[1] * t989;
        const V t992 = t987 + t990;
        const V t993 = t988 - t991;
        const V t994 = c[3] * t645;
        const V t995 = c[2] * t699;
        const V t996 = t994 - t995;
        const V t997 = t996 + t589;
        const V t998 = c[2] * t645;
        const V t999 = t589 - t998;
        const V t1000 = c[3] * t699;
        const V t1001 = t999 + t1000;
        // complex block of 3
        const V t1002 = t774 + t768;
        // spectrum block of 5
        const V t1003 = c[1] * t1002;
        const V t1004 = c[0] * t1002;
        // complex block of 3
        const V t1005 = t828 + t823;
        // spectrum block of 5
        const V t1006 = c[0] * t1005;
        const V t1007 = c[1] * t1005;
        const V t1008 = t1003 + t1006;
        const V t1009 = t1004 - t1007;
        const V t1010 = c[3] * t778;
        const V t1011 = c[2] * t832;
        const V t1012 = t1010 - t1011;
        const V t1013 = t1012 + t722;
        const V t1014 = c[2] * t778;
        const V t1015 = t722 - t1014;
        const V t1016 = c[3] * t832;
        const V t1017 = t1015 + t1016;
        // spectrum block of 5
        const V t1018 = t997 - t992;
        // spectrum block of 5
        const V t1019 = t1013 - t1008;
        // spectrum block of 2
        const V t1020 = t1018 + t1019;
        io.out(20, t1020);
        const V t1021 = t1018 - t1019;
        io.out(51, t1021);
        // spectrum block of 5
        const V t1022 = t997 + t992;
        // spectrum block of 5
        const V t1023 = t1013 + t1008;
        // spectrum block of 2
        const V t1024 = t1022 + t1023;
        io.out(36, t1024);
        const V t1025 = t1022 - t1023;
        io.out(5, t1025);
        // spectrum block of 5
        const V t1026 = t1001 - t993;
        // spectrum block of 5
        const V t1027 = t1017 - t1009;
        // spectrum block of 2
        const V t1028 = t1026 + t1027;
        io.out(40, t1028);
        const V t1029 = t1026 - t1027;
        io.out(9, t1029);
        // spectrum block of 5
        const V t1030 = t1001 + t993;
        // spectrum block of 5
        const V t1031 = t1017 + t1009;
        // spectrum block of 2
        const V t1032 = t1030 + t1031;
        io.out(18, t1032);
        const V t1033 = t1030 - t1031;
        io.out(49, t1033);
        // complex block of 3
        const V t1034 = t641 - t635;
        // spectrum block of 5
        const V t1035 = c[1] * t1034;
        const V t1036 = c[0] * t1034;
        // complex block of 3
        const V t1037 = t695 - t690;
        // spectrum block of 5
        const V t1038 = c[0] * t1037;
        const V t1039 = c[1] * t1037;
        const V t1040 = t1035 + t1038;
        const V t1041 = t1036 - t1039;
        const V t1042 = c[3] * t646;
        const V t1043 = c[2] * t700;
        const V t1044 = t1042 + t1043;
        const V t1045 = t1044 + t590;
        const V t1046 = c[2] * t646;
        const V t1047 = t590 - t1046;
        const V t1048 = c[3] * t700;
        const V t1049 = t1047 - t1048;
        // complex block of 3
        const V t1050 = t774 - t768;
        // spectrum block of 5
        const V t1051 = c[1] * t1050;
        const V t1052 = c[0] * t1050;
        // complex block of 3
        const V t1053 = t828 - t823;
        // spectrum block of 5
        const V t1054 = c[0] * t1053;
        const V t1055 = c[1] * t1053;
        const V t1056 = t1051 + t1054;
        const V t1057 = t1052 - t1055;
        const V t1058 = c[3] * t779;
        const V t1059 = c[2] * t833;
        const V t1060 = t1058 + t1059;
        const V t1061 = t1060 + t723;
        const V t1062 = c[2] * t779;
        const V t1063 = t723 - t1062;
        const V t1064 = c[3] * t833;
        const V t1065 = t1063 - t1064;
        // spectrum block of 5
        const V t1066 = t1045 - t1040;
        // spectrum block of 5
        const V t1067 = t1061 - t1056;
        // spectrum block of 2
        const V t1068 = t1066 + t1067;
        io.out(38, t1068);
        const V t1069 = t1066 - t1067;
        io.out(7, t1069);
        // spectrum block of 5
        const V t1070 = t1045 + t1040;
        // spectrum block of 5
        const V t1071 = t1061 + t1056;
        // spectrum block of 2
        const V t1072 = t1070 + t1071;
        io.out(56, t1072);
        const V t1073 = t1070 - t1071;
        io.out(25, t1073);
        // spectrum block of 5
        const V t1074 = t1049 - t1041;
        // spectrum block of 5
        const V t1075 = t1065 - t1057;
        // spectrum block of 2
        const V t1076 = t1074 + t1075;
        io.out(14, t1076);
        const V t1077 = t1074 - t1075;
        io.out(45, t1077);
        // spectrum block of 5
        const V t1078 = t1049 + t1041;
        // spectrum block of 5
        const V t1079 = t1065 + t1057;
        // spectrum block of 2
        const V t1080 = t1078 + t1079;
        io.out(28, t1080);
        const V t1081 = t1078 - t1079;
        io.out(59, t1081);
        // spectrum block of 5
        const V t1082 = t637 + t692;
        const V t1083 = t1082 + t586;
        // spectrum block of 5
        const V t1084 = t770 + t825;
        const V t1085 = t1084 + t719;
        // spectrum block of 2
        const V t1086 = t1083 + t1085;
        io.out(2, t1086);
        const V t1087 = t1083 - t1085;
        io.out(33, t1087);
        // spectrum block of 5
        const V t1088 = t638 - t693;
        const V t1089 = t1088 + t586;
        const V t1090 = c[1] * t636;
        const V t1091 = c[0] * t691;
        const V t1092 = t1090 + t1091;
        // spectrum block of 5
        const V t1093 = t771 - t826;
        const V t1094 = t1093 + t719;
        const V t1095 = c[1] * t769;
        const V t1096 = c[0] * t824;
        const V t1097 = t1095 + t1096;
        // spectrum block of 5
        const V t1098 = t1089 - t1092;
        // spectrum block of 5
        const V t1099 = t1094 - t1097;
        // spectrum block of 2
        const V t1100 = t1098 + t1099;
        io.out(4, t1100);
        const V t1101 = t1098 - t1099;
        io.out(35, t1101);
        // spectrum block of 5
        const V t1102 = t1089 + t1092;
        // spectrum block of 5
        const V t1103 = t1094 + t1097;
        // spectrum block of 2
        const V t1104 = t1102 + t1103;
        io.out(32, t1104);
        const V t1105 = t1102 - t1103;
        io.out(1, t1105);
        // spectrum block of 5
        const V t1106 = t586 - t639;
        const V t1107 = c[3] * t692;
        const V t1108 = t1106 + t1107;
        const V t1109 = c[0] * t636;
        const V t1110 = c[1] * t691;
        const V t1111 = t1109 - t1110;
        // spectrum block of 5
        const V t1112 = t719 - t772;
        const V t1113 = c[3] * t825;
        const V t1114 = t1112 + t1113;
        const V t1115 = c[0] * t769;
        const V t1116 = c[1] * t824;
        const V t1117 = t1115 - t1116;
        // spectrum block of 5
        const V t1118 = t1108 - t1111;
        // spectrum block of 5
        const V t1119 = t1114 - t1117;
        // spectrum block of 2
        const V t1120 = t1118 + t1119;
        io.out(8, t1120);
        const V t1121 = t1118 - t1119;
        io.out(39, t1121);
        // spectrum block of 5
        const V t1122 = t1108 + t1111;
        // spectrum block of 5
        const V t1123 = t1114 + t1117;
        // spectrum block of 2
        const V t1124 = t1122 + t1123;
        io.out(16, t1124);
        const V t1125 = t1122 - t1123;
        io.out(47, t1125);
        // spectrum block of 5
        const V t1126 = t645 + t699;
        const V t1127 = t1126 + t589;
        // spectrum block of 5
        const V t1128 = t778 + t832;
        const V t1129 = t1128 + t722;
        // spectrum block of 2
        const V t1130 = t1127 + t1129;
        io.out(10, t1130);
        const V t1131 = t1127 - t1129;
        io.out(41, t1131);
        // spectrum block of 5
        const V t1132 = t646 - t700;
        const V t1133 = t1132 + t590;
        // spectrum block of 5
        const V t1134 = t779 - t833;
        const V t1135 = t1134 + t723;
        // spectrum block of 2
        const V t1136 = t1133 + t1135;
        io.out(50, t1136);
        const V t1137 = t1133 - t1135;
        io.out(19, t1137);
        // spectrum block of 31, multiplier 2
        const V t1138 = x0 + t403;
        // spectrum block of 31, multiplier 2
        const V t1139 = x31 + t119;
        // spectrum block of 2
        const V t1140 = t1138 + t1139;
        io.out(0, t1140);
        const V t1141 = t1138 - t1139;
        io.out(31, t1141);
    }
};

}  // namespace zulg
