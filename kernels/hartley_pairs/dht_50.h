// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 50.
// Hartley transform of 50 points, form F; two lanes to a register.
// 110 sums, 92 differences, 112 products of registers, which do the 676 steps of the graph, those with
// `scale` included; 57 shuffles, 0 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<50> {
    static constexpr int steps = 676;  // with `scale`
    static constexpr double inverseRoot = 0.1414213562373095;  // 1/sqrt(50), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.5358267949789967,  // c[4]: cos 2 pi 21/25
        0.8443279255020151,  // c[5]: -sin 2 pi 21/25
        0.42577929156507266,  // c[6]: -cos 2 pi 17/25
        0.9048270524660196,  // c[7]: -sin 2 pi 17/25
        0.8763066800438636,  // c[8]: cos 2 pi 23/25
        0.48175367410171527,  // c[9]: -sin 2 pi 23/25
        0.06279051952931337,  // c[10]: cos 2 pi 19/25
        0.9980267284282716,  // c[11]: -sin 2 pi 19/25
        0.9921147013144779,  // c[12]: -cos 2 pi 13/25
        0.12533323356430426,  // c[13]: -sin 2 pi 13/25
        0.7705132427757893,  // c[14]: sin 2 pi 9/25
        0.6374239897486897,  // c[15]: -cos 2 pi 9/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x10_35 = io.in(10, 35);
        const P x40_15 = io.in(40, 15);
        // real block of 5, multiplier 3
        const P t0 = x10_35 + x40_15;
        const P t1 = x10_35 - x40_15;
        const P x30_5 = io.in(30, 5);
        const P x20_45 = io.in(20, 45);
        const P t2 = x30_5 + x20_45;
        const P t3 = x30_5 - x20_45;
        const P t4 = t0 + t2;
        const P x0_25 = io.in(0, 25);
        const P t5 = t4 + x0_25;
        const P t6 = c[0] * t0;
        const P t7 = x0_25 - t6;
        const P t8 = c[1] * t2;
        const P t9 = t7 + t8;
        const P t10 = c[2] * t1;
        const P t11 = c[3] * t3;
        const P t12 = t10 + t11;
        const P t13 = c[1] * t0;
        const P t14 = c[0] * t2;
        const P t15 = t13 - t14;
        const P t16 = t15 + x0_25;
        const P t17 = c[2] * t3;
        const P t18 = c[3] * t1;
        const P t19 = t17 - t18;
        const P x12_37 = io.in(12, 37);
        const P x42_17 = io.in(42, 17);
        // real block of 5, multiplier 3
        const P t20 = x12_37 + x42_17;
        const P t21 = x12_37 - x42_17;
        const P x32_7 = io.in(32, 7);
        const P x22_47 = io.in(22, 47);
        const P t22 = x32_7 + x22_47;
        const P t23 = x32_7 - x22_47;
        const P t24 = t20 + t22;
        const P x2_27 = io.in(2, 27);
        const P t25 = t24 + x2_27;
        const P t26 = c[0] * t20;
        const P t27 = x2_27 - t26;
        const P t28 = c[1] * t22;
        const P t29 = t27 + t28;
        const P t30 = c[2] * t21;
        const P t31 = c[3] * t23;
        const P t32 = t30 + t31;
        const P t33 = c[1] * t20;
        const P t34 = c[0] * t22;
        const P t35 = t33 - t34;
        const P t36 = t35 + x2_27;
        const P t37 = c[2] * t23;
        const P t38 = c[3] * t21;
        const P t39 = t37 - t38;
        const P x14_39 = io.in(14, 39);
        const P x44_19 = io.in(44, 19);
        // real block of 5, multiplier 3
        const P t40 = x14_39 + x44_19;
        const P t41 = x14_39 - x44_19;
        const P x34_9 = io.in(34, 9);
        const P x24_49 = io.in(24, 49);
        const P t42 = x34_9 + x24_49;
        const P t43 = x34_9 - x24_49;
        const P t44 = t40 + t42;
        const P x4_29 = io.in(4, 29);
        const P t45 = t44 + x4_29;
        const P t46 = c[0] * t40;
        const P t47 = x4_29 - t46;
        const P t48 = c[1] * t42;
        const P t49 = t47 + t48;
        const P t50 = c[2] * t41;
        const P t51 = c[3] * t43;
        const P t52 = t50 + t51;
        const P t53 = c[1] * t40;
        const P t54 = c[0] * t42;
        const P t55 = t53 - t54;
        const P t56 = t55 + x4_29;
        const P t57 = c[2] * t43;
        const P t58 = c[3] * t41;
        const P t59 = t57 - t58;
        const P x16_41 = io.in(16, 41);
        const P x46_21 = io.in(46, 21);
        // real block of 5, multiplier 3
        const P t60 = x16_41 + x46_21;
        const P t61 = x16_41 - x46_21;
        const P x36_11 = io.in(36, 11);
        const P x26_1 = io.in(26, 1);
        const P t62 = x36_11 + x26_1;
        const P t63 = x36_11 - x26_1;
        const P t64 = t60 + t62;
        const P x6_31 = io.in(6, 31);
        const P t65 = t64 + x6_31;
        const P t66 = c[0] * t60;
        const P t67 = x6_31 - t66;
        const P t68 = c[1] * t62;
        const P t69 = t67 + t68;
        const P t70 = c[2] * t61;
        const P t71 = c[3] * t63;
        const P t72 = t70 + t71;
        const P t73 = c[1] * t60;
        const P t74 = c[0] * t62;
        const P t75 = t73 - t74;
        const P t76 = t75 + x6_31;
        const P t77 = c[2] * t63;
        const P t78 = c[3] * t61;
        const P t79 = t77 - t78;
        const P x18_43 = io.in(18, 43);
        const P x48_23 = io.in(48, 23);
        // real block of 5, multiplier 3
        const P t80 = x18_43 + x48_23;
        const P t81 = x18_43 - x48_23;
        const P x38_13 = io.in(38, 13);
        const P x28_3 = io.in(28, 3);
        const P t82 = x38_13 + x28_3;
        const P t83 = x38_13 - x28_3;
        const P t84 = t80 + t82;
        const P x8_33 = io.in(8, 33);
        const P t85 = t84 + x8_33;
        const P t86 = c[0] * t80;
        const P t87 = x8_33 - t86;
        const P t88 = c[1] * t82;
        const P t89 = t87 + t88;
        const P t90 = c[2] * t81;
        const P t91 = c[3] * t83;
        const P t92 = t90 + t91;
        const P t93 = c[1] * t80;
        const P t94 = c[0] * t82;
        const P t95 = t93 - t94;
        const P t96 = t95 + x8_33;
        const P t97 = c[2] * t83;
        const P t98 = c[3] * t81;
        const P t99 = t97 - t98;
        // real block of 5, multiplier 3
        const P t100 = t25 + t85;
        const P t101 = t25 - t85;
        const P t102 = t65 + t45;
        const P t103 = t65 - t45;
        const P t104 = t100 + t102;
        const P t105 = t104 + t5;
        const P t106 = c[0] * t100;
        const P t107 = t5 - t106;
        const P t108 = c[1] * t102;
        const P t109 = t107 + t108;
        const P t110 = c[2] * t101;
        const P t111 = c[3] * t103;
        const P t112 = t110 + t111;
        const P t113 = c[1] * t100;
        const P t114 = c[0] * t102;
        const P t115 = t113 - t114;
        const P t116 = t115 + t5;
        const P t117 = c[2] * t103;
        const P t118 = c[3] * t101;
        const P t119 = t117 - t118;
        // real block of 25, multiplier 23
        const P t120 = c[8] * t29;
        const P t121 = c[9] * t32;
        const P t122 = t120 - t121;
        const P t123 = c[8] * t32;
        const P t124 = c[9] * t29;
        const P t125 = t123 + t124;
        const P t126 = c[4] * t49;
        const P t127 = c[5] * t52;
        const P t128 = t126 - t127;
        const P t129 = c[4] * t52;
        const P t130 = c[5] * t49;
        const P t131 = t129 + t130;
        const P t132 = c[10] * t69;
        const P t133 = c[11] * t72;
        const P t134 = t132 - t133;
        const P t135 = c[10] * t72;
        const P t136 = c[11] * t69;
        const P t137 = t135 + t136;
        const P t138 = c[6] * t89;
        const P t139 = c[7] * t92;
        const P t140 = t138 + t139;
        const P t141 = c[7] * t89;
        const P t142 = c[6] * t92;
        const P t143 = t141 - t142;
        // complex block of 5, multiplier 3
        const P t144 = t122 - t140;
        const P t145 = t125 + t143;
        const P t146 = t122 + t140;
        const P t147 = t125 - t143;
        const P t148 = t134 + t128;
        const P t149 = t137 + t131;
        const P t150 = t134 - t128;
        const P t151 = t137 - t131;
        const P t152 = t144 + t148;
        const P t153 = t145 + t149;
        const P t154 = t152 + t9;
        const P t155 = t153 + t12;
        const P t156 = c[1] * t144;
        const P t157 = c[0] * t148;
        const P t158 = t156 - t157;
        const P t159 = t158 + t9;
        const P t160 = c[1] * t145;
        const P t161 = c[0] * t149;
        const P t162 = t160 - t161;
        const P t163 = t162 + t12;
        const P t164 = c[3] * t146;
        const P t165 = c[2] * t150;
        const P t166 = t164 - t165;
        const P t167 = c[3] * t147;
        const P t168 = c[2] * t151;
        const P t169 = t167 - t168;
        const P t170 = t159 + t169;
        const P t171 = t163 - t166;
        const P t172 = t159 - t169;
        const P t173 = t163 + t166;
        const P t174 = c[0] * t144;
        const P t175 = t9 - t174;
        const P t176 = c[1] * t148;
        const P t177 = t175 + t176;
        const P t178 = c[0] * t145;
        const P t179 = t12 - t178;
        const P t180 = c[1] * t149;
        const P t181 = t179 + t180;
        const P t182 = c[2] * t146;
        const P t183 = c[3] * t150;
        const P t184 = t182 + t183;
        const P t185 = c[2] * t147;
        const P t186 = c[3] * t151;
        const P t187 = t185 + t186;
        const P t188 = t177 + t187;
        const P t189 = t181 - t184;
        const P t190 = t177 - t187;
        const P t191 = t181 + t184;
        // real block of 25, multiplier 23
        const P t192 = c[4] * t36;
        const P t193 = c[5] * t39;
        const P t194 = t192 - t193;
        const P t195 = c[4] * t39;
        const P t196 = c[5] * t36;
        const P t197 = t195 + t196;
        const P t198 = c[6] * t56;
        const P t199 = c[7] * t59;
        const P t200 = t198 + t199;
        const P t201 = c[7] * t56;
        const P t202 = c[6] * t59;
        const P t203 = t201 - t202;
        const P t204 = c[12] * t76;
        const P t205 = c[13] * t79;
        const P t206 = t204 + t205;
        const P t207 = c[13] * t76;
        const P t208 = c[12] * t79;
        const P t209 = t207 - t208;
        const P t210 = c[14] * t99;
        const P t211 = c[15] * t96;
        const P t212 = t210 - t211;
        const P t213 = c[15] * t99;
        const P t214 = c[14] * t96;
        const P t215 = t213 + t214;
        // complex block of 5, multiplier 3
        const P t216 = t194 + t212;
        const P t217 = t197 - t215;
        const P t218 = t194 - t212;
        const P t219 = t197 + t215;
        const P t220 = t206 + t200;
        const P t221 = t209 + t203;
        const P t222 = t200 - t206;
        const P t223 = t209 - t203;
        const P t224 = t216 - t220;
        const P t225 = t217 + t221;
        const P t226 = t224 + t16;
        const P t227 = t225 + t19;
        const P t228 = c[1] * t216;
        const P t229 = c[0] * t220;
        const P t230 = t228 + t229;
        const P t231 = t230 + t16;
        const P t232 = c[1] * t217;
        const P t233 = c[0] * t221;
        const P t234 = t232 - t233;
        const P t235 = t234 + t19;
        const P t236 = c[3] * t218;
        const P t237 = c[2] * t222;
        const P t238 = t236 - t237;
        const P t239 = c[3] * t219;
        const P t240 = c[2] * t223;
        const P t241 = t239 - t240;
        const P t242 = t231 + t241;
        const P t243 = t235 - t238;
        const P t244 = t231 - t241;
        const P t245 = t235 + t238;
        const P t246 = c[0] * t216;
        const P t247 = t16 - t246;
        const P t248 = c[1] * t220;
        const P t249 = t247 - t248;
        const P t250 = c[0] * t217;
        const P t251 = t19 - t250;
        const P t252 = c[1] * t221;
        const P t253 = t251 + t252;
        const P t254 = c[2] * t218;
        const P t255 = c[3] * t222;
        const P t256 = t254 + t255;
        const P t257 = c[2] * t219;
        const P t258 = c[3] * t223;
        const P t259 = t257 + t258;
        const P t260 = t249 + t259;
        const P t261 = t253 - t256;
        const P t262 = t249 - t259;
        const P t263 = t253 + t256;
        const P t264 = shuffled<0, 2>(t154, t155);
        const P t265 = shuffled<1, 3>(t154, t155);
        // complex block of 2
        const P t266 = t264 + t265;
        const P t267 = t264 - t265;
        const P t268 = shuffled<0, 2>(t226, t227);
        const P t269 = shuffled<1, 3>(t226, t227);
        // complex block of 2
        const P t270 = t268 + t269;
        const P t271 = t268 - t269;
        const P t272 = shuffled<0, 2>(t260, t261);
        const P t273 = shuffled<1, 3>(t260, t261);
        // complex block of 2
        const P t274 = t272 + t273;
        const P t275 = shuffled<0, 3>(t272, t273);
        const P t276 = shuffled<0, 3>(t273, t272);
        const P t277 = t275 - t276;
        const P t278 = shuffled<0, 2>(t188, t189);
        const P t279 = shuffled<1, 3>(t188, t189);
        // complex block of 2
        const P t280 = t278 + t279;
        const P t281 = shuffled<0, 3>(t278, t279);
        const P t282 = shuffled<0, 3>(t279, t278);
        const P t283 = t281 - t282;
        const P t284 = shuffled<0, 2>(t109, t112);
        const P t285 = shuffled<1, 3>(t109, t112);
        // complex block of 2
        const P t286 = t284 + t285;
        const P t287 = t284 - t285;
        const P t288 = shuffled<0, 2>(t190, t191);
        const P t289 = shuffled<1, 3>(t190, t191);
        // complex block of 2
        const P t290 = t288 + t289;
        const P t291 = t288 - t289;
        const P t292 = shuffled<0, 2>(t262, t263);
        const P t293 = shuffled<1, 3>(t262, t263);
        // complex block of 2
        const P t294 = t292 + t293;
        const P t295 = t292 - t293;
        const P t296 = shuffled<0, 2>(t244, t245);
        const P t297 = shuffled<1, 3>(t244, t245);
        // complex block of 2
        const P t298 = t296 + t297;
        const P t299 = shuffled<0, 3>(t296, t297);
        const P t300 = shuffled<0, 3>(t297, t296);
        const P t301 = t299 - t300;
        const P t302 = shuffled<0, 2>(t172, t173);
        const P t303 = shuffled<1, 3>(t172, t173);
        // complex block of 2
        const P t304 = t302 + t303;
        const P t305 = shuffled<0, 3>(t302, t303);
        const P t306 = shuffled<0, 3>(t303, t302);
        const P t307 = t305 - t306;
        const P t308 = shuffled<0, 2>(t116, t119);
        const P t309 = shuffled<1, 3>(t116, t119);
        // complex block of 2
        const P t310 = t308 + t309;
        const P t311 = t308 - t309;
        const P t312 = shuffled<0, 2>(t170, t171);
        const P t313 = shuffled<1, 3>(t170, t171);
        // complex block of 2
        const P t314 = t312 + t313;
        const P t315 = t312 - t313;
        const P t316 = shuffled<0, 2>(t242, t243);
        const P t317 = shuffled<1, 3>(t242, t243);
        // complex block of 2
        const P t318 = t316 + t317;
        const P t319 = t316 - t317;
        const V t320 = part<0>(t319);
        const V t321 = part<1>(t319);
        // output stage
        const V t322 = t320 - t321;
        io.out(1, t322);
        const V t323 = t320 + t321;
        io.out(49, t323);
        const P t324 = shuffled<0, 2>(t105, t266);
        const P t325 = shuffled<1, 3>(t105, t266);
        // real block of 2
        const P t326 = t324 + t325;
        io.out(0, 2, t326);
        const P t327 = t324 - t325;
        io.out(25, 48, t327);
        const P t328 = shuffled<0, 2>(t291, t294);
        const P t329 = shuffled<1, 3>(t291, t294);
        // output stage
        const P t330 = t328 + t329;
        io.out(37, 14, t330);
        const P t331 = t328 - t329;
        io.out(13, 36, t331);
        const P t332 = shuffled<0, 2>(t287, t290);
        const P t333 = shuffled<1, 3>(t287, t290);
        const P t334 = t332 - t333;
        io.out(15, 38, t334);
        const P t335 = t332 + t333;
        io.out(35, 12, t335);
        const P t336 = shuffled<0, 2>(t295, t298);
        const P t337 = shuffled<1, 3>(t295, t298);
        const P t338 = t336 - t337;
        io.out(11, 16, t338);
        const P t339 = t336 + t337;
        io.out(39, 34, t339);
        const P t340 = shuffled<0, 2>(t283, t286);
        const P t341 = shuffled<1, 3>(t283, t286);
        const P t342 = t340 - t341;
        io.out(17, 40, t342);
        const P t343 = t340 + t341;
        io.out(33, 10, t343);
        const P t344 = shuffled<0, 2>(t301, t304);
        const P t345 = shuffled<1, 3>(t301, t304);
        const P t346 = t344 - t345;
        io.out(9, 18, t346);
        const P t347 = t344 + t345;
        io.out(41, 32, t347);
        const P t348 = shuffled<0, 2>(t277, t280);
        const P t349 = shuffled<1, 3>(t277, t280);
        const P t350 = t348 - t349;
        io.out(19, 8, t350);
        const P t351 = t348 + t349;
        io.out(31, 42, t351);
        const P t352 = shuffled<0, 2>(t307, t310);
        const P t353 = shuffled<1, 3>(t307, t310);
        const P t354 = t352 + t353;
        io.out(43, 20, t354);
        const P t355 = t352 - t353;
        io.out(7, 30, t355);
        const P t356 = shuffled<0, 2>(t271, t274);
        const P t357 = shuffled<1, 3>(t271, t274);
        const P t358 = t356 - t357;
        io.out(21, 6, t358);
        const P t359 = t356 + t357;
        io.out(29, 44, t359);
        const P t360 = shuffled<0, 2>(t311, t314);
        const P t361 = shuffled<1, 3>(t311, t314);
        const P t362 = t360 + t361;
        io.out(45, 22, t362);
        const P t363 = t360 - t361;
        io.out(5, 28, t363);
        const P t364 = shuffled<0, 2>(t267, t270);
        const P t365 = shuffled<1, 3>(t267, t270);
        const P t366 = t364 - t365;
        io.out(23, 46, t366);
        const P t367 = t364 + t365;
        io.out(27, 4, t367);
        const P t368 = shuffled<0, 2>(t315, t318);
        const P t369 = shuffled<1, 3>(t315, t318);
        const P t370 = t368 + t369;
        io.out(47, 24, t370);
        const P t371 = t368 - t369;
        io.out(3, 26, t371);
    }
};

}  // namespace zulg
