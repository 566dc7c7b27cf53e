// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 60.
// Hartley transform of 60 points, form I; two lanes to a register.
// 115 sums, 103 differences, 68 products of registers, which do the 628 steps of the graph, those with
// `scale` included; 65 shuffles, 17 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyPairs<60> {
    static constexpr int steps = 628;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, HartleyPairs> c{};
        const P x1_2 = io.in(1, 2);
        const P x59_58 = io.in(59, 58);
        // input stage
        const P t0 = x1_2 + x59_58;
        const P t1 = x1_2 - x59_58;
        const P x3_4 = io.in(3, 4);
        const P x57_56 = io.in(57, 56);
        const P t2 = x3_4 + x57_56;
        const P t3 = x3_4 - x57_56;
        const P x5_6 = io.in(5, 6);
        const P x55_54 = io.in(55, 54);
        const P t4 = x5_6 + x55_54;
        const P t5 = x5_6 - x55_54;
        const P x7_8 = io.in(7, 8);
        const P x53_52 = io.in(53, 52);
        const P t6 = x7_8 + x53_52;
        const P t7 = x7_8 - x53_52;
        const P x9_10 = io.in(9, 10);
        const P x51_50 = io.in(51, 50);
        const P t8 = x9_10 + x51_50;
        const P t9 = x9_10 - x51_50;
        const P x11_12 = io.in(11, 12);
        const P x49_48 = io.in(49, 48);
        const P t10 = x11_12 + x49_48;
        const P t11 = x11_12 - x49_48;
        const P x13_14 = io.in(13, 14);
        const P x47_46 = io.in(47, 46);
        const P t12 = x13_14 + x47_46;
        const P t13 = x13_14 - x47_46;
        const P x15_16 = io.in(15, 16);
        const P x45_44 = io.in(45, 44);
        const P t14 = x15_16 + x45_44;
        const P t15 = x15_16 - x45_44;
        const P x17_18 = io.in(17, 18);
        const P x43_42 = io.in(43, 42);
        const P t16 = x17_18 + x43_42;
        const P t17 = x17_18 - x43_42;
        const P x19_20 = io.in(19, 20);
        const P x41_40 = io.in(41, 40);
        const P t18 = x19_20 + x41_40;
        const P t19 = x19_20 - x41_40;
        const P x21_22 = io.in(21, 22);
        const P x39_38 = io.in(39, 38);
        const P t20 = x21_22 + x39_38;
        const P t21 = x21_22 - x39_38;
        const P x23_24 = io.in(23, 24);
        const P x37_36 = io.in(37, 36);
        const P t22 = x23_24 + x37_36;
        const P t23 = x23_24 - x37_36;
        const P x25_26 = io.in(25, 26);
        const P x35_34 = io.in(35, 34);
        const P t24 = x25_26 + x35_34;
        const P t25 = x25_26 - x35_34;
        const P x27_28 = io.in(27, 28);
        const P x33_32 = io.in(33, 32);
        const P t26 = x27_28 + x33_32;
        const P t27 = x27_28 - x33_32;
        const V x29 = io.in(29);
        const V x31 = io.in(31);
        const V t28 = x29 + x31;
        const V t29 = x29 - x31;
        const V x0 = io.in(0);
        const V x30 = io.in(30);
        // spectrum block of 2
        const V t30 = x0 + x30;
        const V t31 = x0 - x30;
        const P t32 = joined(t30, t31);
        const P t33 = shuffled<0, 2>(t14, t15);
        // spectrum block of 2
        const P t34 = t32 + t33;
        const P t35 = t32 - t33;
        const P t36 = shuffled<1, 3>(t2, t3);
        const P t37 = shuffled<1, 3>(t24, t25);
        const P t38 = flipped<0, 1>(t37);
        // complex block of 2
        const P t39 = t36 + t38;
        const P t40 = t36 - t38;
        const P t41 = shuffled<0, 2>(t18, t19);
        const P t42 = shuffled<0, 2>(t10, t11);
        const P t43 = flipped<0, 1>(t42);
        // complex block of 2
        const P t44 = t41 + t43;
        const P t45 = t41 - t43;
        // complex block of 2
        const P t46 = t39 + t44;
        const P t47 = t39 - t44;
        const P t48 = shuffled<1, 0>(t45);
        const P t49 = flipped<0, 1>(t48);
        // complex block of 2
        const P t50 = t40 + t49;
        const P t51 = t40 - t49;
        const P t52 = shuffled<1, 3>(t6, t7);
        const P t53 = shuffled<1, 3>(t20, t21);
        const P t54 = flipped<0, 1>(t53);
        // complex block of 2
        const P t55 = t52 + t54;
        const P t56 = t52 - t54;
        const P t57 = shuffled<0, 2>(t22, t23);
        const P t58 = shuffled<0, 2>(t6, t7);
        const P t59 = flipped<0, 1>(t58);
        // complex block of 2
        const P t60 = t57 + t59;
        const P t61 = t57 - t59;
        // complex block of 2
        const P t62 = t55 + t60;
        const P t63 = t55 - t60;
        const P t64 = shuffled<1, 0>(t61);
        const P t65 = flipped<0, 1>(t64);
        // complex block of 2
        const P t66 = t56 + t65;
        const P t67 = t56 - t65;
        const P t68 = shuffled<1, 3>(t10, t11);
        const P t69 = shuffled<1, 3>(t16, t17);
        const P t70 = flipped<0, 1>(t69);
        // complex block of 2
        const P t71 = t68 + t70;
        const P t72 = t68 - t70;
        const P t73 = shuffled<0, 2>(t26, t27);
        const P t74 = shuffled<0, 2>(t2, t3);
        const P t75 = flipped<0, 1>(t74);
        // complex block of 2
        const P t76 = t73 + t75;
        const P t77 = t73 - t75;
        // complex block of 2
        const P t78 = t71 + t76;
        const P t79 = t71 - t76;
        const P t80 = shuffled<1, 0>(t77);
        const P t81 = flipped<0, 1>(t80);
        // complex block of 2
        const P t82 = t72 + t81;
        const P t83 = t72 - t81;
        const P t84 = shuffled<1, 3>(t14, t15);
        const P t85 = shuffled<1, 3>(t12, t13);
        const P t86 = flipped<0, 1>(t85);
        // complex block of 2
        const P t87 = t84 + t86;
        const P t88 = t84 - t86;
        const V t89 = part<0>(t1);
        const P t90 = joined(t28, t89);
        const V t91 = part<0>(t0);
        const V t92 = flipped<1>(t29);
        const P t93 = joined(t91, t92);
        // complex block of 2
        const P t94 = t90 + t93;
        const P t95 = t90 - t93;
        // complex block of 2
        const P t96 = t87 + t94;
        const P t97 = t87 - t94;
        const P t98 = shuffled<1, 0>(t95);
        // complex block of 2
        const P t99 = t88 - t98;
        const P t100 = t88 + t98;
        const P t101 = shuffled<1, 3>(t18, t19);
        const P t102 = shuffled<1, 3>(t8, t9);
        const P t103 = flipped<0, 1>(t102);
        // complex block of 2
        const P t104 = t101 + t103;
        const P t105 = t101 - t103;
        const P t106 = shuffled<0, 2>(t24, t5);
        const P t107 = shuffled<0, 2>(t4, t25);
        const P t108 = flipped<0, 1>(t107);
        // complex block of 2
        const P t109 = t106 + t108;
        const P t110 = t106 - t108;
        // complex block of 2
        const P t111 = t104 + t109;
        const P t112 = t104 - t109;
        const P t113 = shuffled<1, 0>(t110);
        // complex block of 2
        const P t114 = t105 - t113;
        const P t115 = t105 + t113;
        const P t116 = shuffled<1, 3>(t22, t23);
        const P t117 = shuffled<1, 3>(t4, t5);
        const P t118 = flipped<0, 1>(t117);
        // complex block of 2
        const P t119 = t116 + t118;
        const P t120 = t116 - t118;
        const P t121 = shuffled<0, 2>(t20, t9);
        const P t122 = shuffled<0, 2>(t8, t21);
        const P t123 = flipped<0, 1>(t122);
        // complex block of 2
        const P t124 = t121 + t123;
        const P t125 = t121 - t123;
        // complex block of 2
        const P t126 = t119 + t124;
        const P t127 = t119 - t124;
        const P t128 = shuffled<1, 0>(t125);
        // complex block of 2
        const P t129 = t120 - t128;
        const P t130 = t120 + t128;
        const P t131 = shuffled<1, 3>(t26, t27);
        const P t132 = shuffled<1, 3>(t0, t1);
        const P t133 = flipped<0, 1>(t132);
        // complex block of 2
        const P t134 = t131 + t133;
        const P t135 = t131 - t133;
        const P t136 = shuffled<0, 2>(t16, t13);
        const P t137 = shuffled<0, 2>(t12, t17);
        const P t138 = flipped<0, 1>(t137);
        // complex block of 2
        const P t139 = t136 + t138;
        const P t140 = t136 - t138;
        // complex block of 2
        const P t141 = t134 + t139;
        const P t142 = t134 - t139;
        const P t143 = shuffled<1, 0>(t140);
        // complex block of 2
        const P t144 = t135 - t143;
        const P t145 = t135 + t143;
        const P t146 = shuffled<0, 2>(t111, t114);
        // spectrum block of 3, multiplier 2
        const P t147 = t146 + t34;
        const P t148 = c[4] * t146;
        const P t149 = t34 - t148;
        const P t150 = shuffled<1, 3>(t111, t114);
        const P t151 = c[5] * t150;
        const P t152 = t149 - t151;
        const P t153 = t149 + t151;
        const P t154 = shuffled<1, 3>(t141, t144);
        const P t155 = shuffled<1, 3>(t62, t66);
        // complex block of 3, multiplier 2
        const P t156 = t154 + t155;
        const P t157 = shuffled<0, 2>(t141, t144);
        const P t158 = shuffled<0, 2>(t62, t66);
        const P t159 = t157 + t158;
        const P t160 = t155 - t154;
        const P t161 = t157 - t158;
        const P t162 = shuffled<1, 3>(t78, t82);
        const P t163 = t162 - t156;
        const P t164 = shuffled<0, 2>(t78, t82);
        const P t165 = t159 + t164;
        const P t166 = c[4] * t156;
        const P t167 = t166 + t162;
        const P t168 = c[4] * t159;
        const P t169 = t164 - t168;
        const P t170 = c[5] * t161;
        const P t171 = t167 + t170;
        const P t172 = c[5] * t160;
        const P t173 = t169 - t172;
        const P t174 = t167 - t170;
        const P t175 = t169 + t172;
        const P t176 = shuffled<1, 3>(t46, t50);
        const P t177 = shuffled<1, 3>(t96, t99);
        // complex block of 3, multiplier 2
        const P t178 = t176 - t177;
        const P t179 = shuffled<0, 2>(t96, t99);
        const P t180 = shuffled<0, 2>(t46, t50);
        const P t181 = t179 + t180;
        const P t182 = t177 + t176;
        const P t183 = t179 - t180;
        const P t184 = shuffled<1, 3>(t126, t129);
        const P t185 = t178 + t184;
        const P t186 = shuffled<0, 2>(t126, t129);
        const P t187 = t181 + t186;
        const P t188 = c[4] * t178;
        const P t189 = t184 - t188;
        const P t190 = c[4] * t181;
        const P t191 = t186 - t190;
        const P t192 = c[5] * t183;
        const P t193 = t189 + t192;
        const P t194 = c[5] * t182;
        const P t195 = t191 + t194;
        const P t196 = t189 - t192;
        const P t197 = t191 - t194;
        // spectrum block of 5, multiplier 2
        const P t198 = t165 + t187;
        const P t199 = t198 + t147;
        io.out(0, 45, t199);
        const P t200 = c[0] * t165;
        const P t201 = c[1] * t187;
        const P t202 = t200 - t201;
        const P t203 = t202 + t147;
        const P t204 = c[2] * t163;
        const P t205 = c[3] * t185;
        const P t206 = t204 + t205;
        const P t207 = t203 - t206;
        io.out(24, 9, t207);
        const P t208 = t203 + t206;
        io.out(36, 21, t208);
        const P t209 = c[1] * t165;
        const P t210 = t147 - t209;
        const P t211 = c[0] * t187;
        const P t212 = t210 + t211;
        const P t213 = c[3] * t163;
        const P t214 = c[2] * t185;
        const P t215 = t213 - t214;
        const P t216 = t212 - t215;
        io.out(48, 33, t216);
        const P t217 = t212 + t215;
        io.out(12, 57, t217);
        // spectrum block of 5, multiplier 2
        const P t218 = t175 + t197;
        const P t219 = t218 + t153;
        io.out(40, 25, t219);
        const P t220 = c[0] * t175;
        const P t221 = c[1] * t197;
        const P t222 = t220 - t221;
        const P t223 = t222 + t153;
        const P t224 = c[2] * t174;
        const P t225 = c[3] * t196;
        const P t226 = t224 + t225;
        const P t227 = t223 - t226;
        io.out(4, 49, t227);
        const P t228 = t223 + t226;
        io.out(16, 1, t228);
        const P t229 = c[1] * t175;
        const P t230 = t153 - t229;
        const P t231 = c[0] * t197;
        const P t232 = t230 + t231;
        const P t233 = c[3] * t174;
        const P t234 = c[2] * t196;
        const P t235 = t233 - t234;
        const P t236 = t232 - t235;
        io.out(28, 13, t236);
        const P t237 = t232 + t235;
        io.out(52, 37, t237);
        // spectrum block of 5, multiplier 2
        const P t238 = t173 + t195;
        const P t239 = t238 + t152;
        io.out(20, 5, t239);
        const P t240 = c[0] * t173;
        const P t241 = c[1] * t195;
        const P t242 = t240 - t241;
        const P t243 = t242 + t152;
        const P t244 = c[2] * t171;
        const P t245 = c[3] * t193;
        const P t246 = t244 + t245;
        const P t247 = t243 - t246;
        io.out(44, 29, t247);
        const P t248 = t243 + t246;
        io.out(56, 41, t248);
        const P t249 = c[1] * t173;
        const P t250 = t152 - t249;
        const P t251 = c[0] * t195;
        const P t252 = t250 + t251;
        const P t253 = c[3] * t171;
        const P t254 = c[2] * t193;
        const P t255 = t253 - t254;
        const P t256 = t252 - t255;
        io.out(8, 53, t256);
        const P t257 = t252 + t255;
        io.out(32, 17, t257);
        const P t258 = shuffled<0, 2>(t112, t115);
        // spectrum block of 3, multiplier 2
        const P t259 = t258 + t35;
        const P t260 = c[4] * t258;
        const P t261 = t35 - t260;
        const P t262 = shuffled<1, 3>(t112, t115);
        const P t263 = c[5] * t262;
        const P t264 = t261 - t263;
        const P t265 = t261 + t263;
        const P t266 = shuffled<1, 3>(t142, t145);
        const P t267 = shuffled<1, 3>(t63, t67);
        // complex block of 3, multiplier 2
        const P t268 = t266 + t267;
        const P t269 = shuffled<0, 2>(t142, t145);
        const P t270 = shuffled<0, 2>(t63, t67);
        const P t271 = t269 + t270;
        const P t272 = t267 - t266;
        const P t273 = t269 - t270;
        const P t274 = shuffled<1, 3>(t79, t83);
        const P t275 = t274 - t268;
        const P t276 = shuffled<0, 2>(t79, t83);
        const P t277 = t271 + t276;
        const P t278 = c[4] * t268;
        const P t279 = t278 + t274;
        const P t280 = c[4] * t271;
        const P t281 = t276 - t280;
        const P t282 = c[5] * t273;
        const P t283 = t279 + t282;
        const P t284 = c[5] * t272;
        const P t285 = t281 - t284;
        const P t286 = t279 - t282;
        const P t287 = t281 + t284;
        const P t288 = shuffled<1, 3>(t47, t51);
        const P t289 = shuffled<1, 3>(t97, t100);
        // complex block of 3, multiplier 2
        const P t290 = t288 - t289;
        const P t291 = shuffled<0, 2>(t97, t100);
        const P t292 = shuffled<0, 2>(t47, t51);
        const P t293 = t291 + t292;
        const P t294 = t289 + t288;
        const P t295 = t291 - t292;
        const P t296 = shuffled<1, 3>(t127, t130);
        const P t297 = t290 + t296;
        const P t298 = shuffled<0, 2>(t127, t130);
        const P t299 = t293 + t298;
        const P t300 = c[4] * t290;
        const P t301 = t296 - t300;
        const P t302 = c[4] * t293;
        const P t303 = t298 - t302;
        const P t304 = c[5] * t295;
        const P t305 = t301 + t304;
        const P t306 = c[5] * t294;
        const P t307 = t303 + t306;
        const P t308 = t301 - t304;
        const P t309 = t303 - t306;
        // spectrum block of 5, multiplier 2
        const P t310 = t277 + t299;
        const P t311 = t310 + t259;
        io.out(30, 15, t311);
        const P t312 = c[0] * t277;
        const P t313 = c[1] * t299;
        const P t314 = t312 - t313;
        const P t315 = t314 + t259;
        const P t316 = c[2] * t275;
        const P t317 = c[3] * t297;
        const P t318 = t316 + t317;
        const P t319 = t315 - t318;
        io.out(54, 39, t319);
        const P t320 = t315 + t318;
        io.out(6, 51, t320);
        const P t321 = c[1] * t277;
        const P t322 = t259 - t321;
        const P t323 = c[0] * t299;
        const P t324 = t322 + t323;
        const P t325 = c[3] * t275;
        const P t326 = c[2] * t297;
        const P t327 = t325 - t326;
        const P t328 = t324 - t327;
        io.out(18, 3, t328);
        const P t329 = t324 + t327;
        io.out(42, 27, t329);
        // spectrum block of 5, multiplier 2
        const P t330 = t287 + t309;
        const P t331 = t330 + t265;
        io.out(10, 55, t331);
        const P t332 = c[0] * t287;
        const P t333 = c[1] * t309;
        const P t334 = t332 - t333;
        const P t335 = t334 + t265;
        const P t336 = c[2] * t286;
        const P t337 = c[3] * t308;
        const P t338 = t336 + t337;
        const P t339 = t335 - t338;
        io.out(34, 19, t339);
        const P t340 = t335 + t338;
        io.out(46, 31, t340);
        const P t341 = c[1] * t287;
        const P t342 = t265 - t341;
        const P t343 = c[0] * t309;
        const P t344 = t342 + t343;
        const P t345 = c[3] * t286;
        const P t346 = c[2] * t308;
        const P t347 = t345 - t346;
        const P t348 = t344 - t347;
        io.out(58, 43, t348);
        const P t349 = t344 + t347;
        io.out(22, 7, t349);
        // spectrum block of 5, multiplier 2
        const P t350 = t285 + t307;
        const P t351 = t350 + t264;
        io.out(50, 35, t351);
        const P t352 = c[0] * t285;
        const P t353 = c[1] * t307;
        const P t354 = t352 - t353;
        const P t355 = t354 + t264;
        const P t356 = c[2] * t283;
        const P t357 = c[3] * t305;
        const P t358 = t356 + t357;
        const P t359 = t355 - t358;
        io.out(14, 59, t359);
        const P t360 = t355 + t358;
        io.out(26, 11, t360);
        const P t361 = c[1] * t285;
        const P t362 = t264 - t361;
        const P t363 = c[0] * t307;
        const P t364 = t362 + t363;
        const P t365 = c[3] * t283;
        const P t366 = c[2] * t305;
        const P t367 = t365 - t366;
        const P t368 = t364 - t367;
        io.out(38, 23, t368);
        const P t369 = t364 + t367;
        io.out(2, 47, t369);
    }
};

}  // namespace zulg
