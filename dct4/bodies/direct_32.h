// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_direct, 32.
// DCT-IV of 32 points, two passes.
// 108 additions, 108 subtractions, 144 multiplications; 33 constants; 34 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Direct<32> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.19509032201612828,  // c[1]: -sin 2 pi 31/32
        0.9807852804032304,  // c[2]: cos 2 pi 31/32
        0.3826834323650898,  // c[3]: -sin 2 pi 30/32
        0.9238795325112867,  // c[4]: cos 2 pi 30/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
        0.07356456359966743,  // c[7]: -sin 2 pi 253/256
        0.9972904566786902,  // c[8]: cos 2 pi 253/256
        0.2191012401568698,  // c[9]: -sin 2 pi 247/256
        0.9757021300385286,  // c[10]: cos 2 pi 247/256
        0.35989503653498817,  // c[11]: -sin 2 pi 241/256
        0.9329927988347388,  // c[12]: cos 2 pi 241/256
        0.024541228522912288,  // c[13]: -sin 2 pi 255/256
        0.9996988186962042,  // c[14]: cos 2 pi 255/256
        0.1224106751992162,  // c[15]: -sin 2 pi 251/256
        0.99247953459871,  // c[16]: cos 2 pi 251/256
        0.17096188876030122,  // c[17]: -sin 2 pi 249/256
        0.9852776423889412,  // c[18]: cos 2 pi 249/256
        0.49289819222978404,  // c[19]: -sin 2 pi 235/256
        0.8700869911087115,  // c[20]: cos 2 pi 235/256
        0.6152315905806268,  // c[21]: -sin 2 pi 229/256
        0.7883464276266062,  // c[22]: cos 2 pi 229/256
        0.26671275747489837,  // c[23]: -sin 2 pi 245/256
        0.9637760657954398,  // c[24]: cos 2 pi 245/256
        0.7242470829514669,  // c[25]: -sin 2 pi 223/256
        0.6895405447370669,  // c[26]: cos 2 pi 223/256
        0.31368174039889146,  // c[27]: -sin 2 pi 243/256
        0.9495281805930367,  // c[28]: cos 2 pi 243/256
        0.8175848131515837,  // c[29]: -sin 2 pi 217/256
        0.5758081914178453,  // c[30]: cos 2 pi 217/256
        0.8932243011955153,  // c[31]: -sin 2 pi 211/256
        0.4496113296546066,  // c[32]: cos 2 pi 211/256
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Direct> c{};
        // part 0 of 16
        const V x16 = io.in(16);
        const V x15 = io.in(15);
        const V t0 = x16 + x15;
        const V t1 = c[0] * t0;
        const V t2 = x16 - x15;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x31 = io.in(31);
        const V t5 = t3 - x31;
        const V t6 = x0 - t1;
        const V t7 = t3 + x31;
        // part 1 of 16
        const V x20 = io.in(20);
        const V x11 = io.in(11);
        const V t8 = x20 + x11;
        const V t9 = c[0] * t8;
        const V t10 = x20 - x11;
        const V t11 = c[0] * t10;
        const V x4 = io.in(4);
        const V t12 = x4 + t9;
        const V x27 = io.in(27);
        const V t13 = t11 - x27;
        const V t14 = x4 - t9;
        const V t15 = t11 + x27;
        // part 2 of 16
        const V x24 = io.in(24);
        const V x7 = io.in(7);
        const V t16 = x24 + x7;
        const V t17 = c[0] * t16;
        const V t18 = x24 - x7;
        const V t19 = c[0] * t18;
        const V x8 = io.in(8);
        const V t20 = x8 + t17;
        const V x23 = io.in(23);
        const V t21 = t19 - x23;
        const V t22 = x8 - t17;
        const V t23 = t19 + x23;
        // part 3 of 16
        const V x28 = io.in(28);
        const V x3 = io.in(3);
        const V t24 = x28 + x3;
        const V t25 = c[0] * t24;
        const V t26 = x28 - x3;
        const V t27 = c[0] * t26;
        const V x12 = io.in(12);
        const V t28 = x12 + t25;
        const V x19 = io.in(19);
        const V t29 = t27 - x19;
        const V t30 = x12 - t25;
        const V t31 = t27 + x19;
        // row 0 of 16
        const V t32 = c[1] * t13;
        const V t33 = c[2] * t12;
        const V t34 = t33 - t32;
        const V t35 = c[1] * t12;
        const V t36 = c[2] * t13;
        const V t37 = t36 + t35;
        const V t38 = c[3] * t21;
        const V t39 = c[4] * t20;
        const V t40 = t39 - t38;
        const V t41 = c[3] * t20;
        const V t42 = c[4] * t21;
        const V t43 = t42 + t41;
        const V t44 = c[5] * t29;
        const V t45 = c[6] * t28;
        const V t46 = t45 - t44;
        const V t47 = c[5] * t28;
        const V t48 = c[6] * t29;
        const V t49 = t48 + t47;
        // complex block of 2
        const V t50 = t5 + t43;
        const V t51 = t4 + t40;
        const V t52 = t5 - t43;
        const V t53 = t4 - t40;
        // complex block of 2
        const V t54 = t37 + t49;
        const V t55 = t34 + t46;
        const V t56 = t37 - t49;
        const V t57 = t34 - t46;
        // complex block of 2
        const V t58 = t50 + t54;
        const V t59 = t51 + t55;
        const V t60 = t50 - t54;
        const V t61 = t51 - t55;
        // complex block of 2
        const V t62 = t52 + t57;
        const V t63 = t53 - t56;
        const V t64 = t52 - t57;
        const V t65 = t53 + t56;
        // row 1 of 16
        const V t66 = c[5] * t15;
        const V t67 = c[6] * t14;
        const V t68 = t67 - t66;
        const V t69 = c[5] * t14;
        const V t70 = c[6] * t15;
        const V t71 = t70 + t69;
        const V t72 = c[4] * t23;
        const V t73 = c[3] * t22;
        const V t74 = t73 - t72;
        const V t75 = c[4] * t22;
        const V t76 = c[3] * t23;
        const V t77 = t76 + t75;
        const V t78 = c[2] * t31;
        const V t79 = c[1] * t30;
        const V t80 = t79 + t78;
        const V t81 = c[2] * t30;
        const V t82 = c[1] * t31;
        const V t83 = t81 - t82;
        // complex block of 2
        const V t84 = t7 + t77;
        const V t85 = t6 + t74;
        const V t86 = t7 - t77;
        const V t87 = t6 - t74;
        // complex block of 2
        const V t88 = t71 + t83;
        const V t89 = t68 - t80;
        const V t90 = t71 - t83;
        const V t91 = t68 + t80;
        // complex block of 2
        const V t92 = t84 + t88;
        const V t93 = t85 + t89;
        const V t94 = t84 - t88;
        const V t95 = t85 - t89;
        // complex block of 2
        const V t96 = t86 + t91;
        const V t97 = t87 - t90;
        const V t98 = t86 - t91;
        const V t99 = t87 + t90;
        // part 0 of 16
        const V x17 = io.in(17);
        const V x14 = io.in(14);
        const V t100 = x17 + x14;
        const V t101 = c[0] * t100;
        const V t102 = x17 - x14;
        const V t103 = c[0] * t102;
        const V x1 = io.in(1);
        const V t104 = x1 + t101;
        const V x30 = io.in(30);
        const V t105 = t103 - x30;
        const V t106 = x1 - t101;
        const V t107 = t103 + x30;
        // part 1 of 16
        const V x21 = io.in(21);
        const V x10 = io.in(10);
        const V t108 = x21 + x10;
        const V t109 = c[0] * t108;
        const V t110 = x21 - x10;
        const V t111 = c[0] * t110;
        const V x5 = io.in(5);
        const V t112 = x5 + t109;
        const V x26 = io.in(26);
        const V t113 = t111 - x26;
        const V t114 = x5 - t109;
        const V t115 = t111 + x26;
        // part 2 of 16
        const V x25 = io.in(25);
        const V x6 = io.in(6);
        const V t116 = x25 + x6;
        const V t117 = c[0] * t116;
        const V t118 = x25 - x6;
        const V t119 = c[0] * t118;
        const V x9 = io.in(9);
        const V t120 = x9 + t117;
        const V x22 = io.in(22);
        const V t121 = t119 - x22;
        const V t122 = x9 - t117;
        const V t123 = t119 + x22;
        // part 3 of 16
        const V x29 = io.in(29);
        const V x2 = io.in(2);
        const V t124 = x29 + x2;
        const V t125 = c[0] * t124;
        const V t126 = x29 - x2;
        const V t127 = c[0] * t126;
        const V x13 = io.in(13);
        const V t128 = x13 + t125;
        const V x18 = io.in(18);
        const V t129 = t127 - x18;
        const V t130 = x13 - t125;
        const V t131 = t127 + x18;
        // row 0 of 16
        const V t132 = c[1] * t113;
        const V t133 = c[2] * t112;
        const V t134 = t133 - t132;
        const V t135 = c[1] * t112;
        const V t136 = c[2] * t113;
        const V t137 = t136 + t135;
        const V t138 = c[3] * t121;
        const V t139 = c[4] * t120;
        const V t140 = t139 - t138;
        const V t141 = c[3] * t120;
        const V t142 = c[4] * t121;
        const V t143 = t142 + t141;
        const V t144 = c[5] * t129;
        const V t145 = c[6] * t128;
        const V t146 = t145 - t144;
        const V t147 = c[5] * t128;
        const V t148 = c[6] * t129;
        const V t149 = t148 + t147;
        // complex block of 2
        const V t150 = t105 + t143;
        const V t151 = t104 + t140;
        const V t152 = t105 - t143;
        const V t153 = t104 - t140;
        // complex block of 2
        const V t154 = t137 + t149;
        const V t155 = t134 + t146;
        const V t156 = t137 - t149;
        const V t157 = t134 - t146;
        // complex block of 2
        const V t158 = t150 + t154;
        const V t159 = t151 + t155;
        const V t160 = t150 - t154;
        const V t161 = t151 - t155;
        // complex block of 2
        const V t162 = t152 + t157;
        const V t163 = t153 - t156;
        const V t164 = t152 - t157;
        const V t165 = t153 + t156;
        // row 1 of 16
        const V t166 = c[5] * t115;
        const V t167 = c[6] * t114;
        const V t168 = t167 - t166;
        const V t169 = c[5] * t114;
        const V t170 = c[6] * t115;
        const V t171 = t170 + t169;
        const V t172 = c[4] * t123;
        const V t173 = c[3] * t122;
        const V t174 = t173 - t172;
        const V t175 = c[4] * t122;
        const V t176 = c[3] * t123;
        const V t177 = t176 + t175;
        const V t178 = c[2] * t131;
        const V t179 = c[1] * t130;
        const V t180 = t179 + t178;
        const V t181 = c[2] * t130;
        const V t182 = c[1] * t131;
        const V t183 = t181 - t182;
        // complex block of 2
        const V t184 = t107 + t177;
        const V t185 = t106 + t174;
        const V t186 = t107 - t177;
        const V t187 = t106 - t174;
        // complex block of 2
        const V t188 = t171 + t183;
        const V t189 = t168 - t180;
        const V t190 = t171 - t183;
        const V t191 = t168 + t180;
        // complex block of 2
        const V t192 = t184 + t188;
        const V t193 = t185 + t189;
        const V t194 = t184 - t188;
        const V t195 = t185 - t189;
        // complex block of 2
        const V t196 = t186 + t191;
        const V t197 = t187 - t190;
        const V t198 = t186 - t191;
        const V t199 = t187 + t190;
        // row 0
        const V t200 = c[13] * t58;
        const V t201 = c[14] * t59;
        const V t202 = t201 - t200;
        const V t203 = c[13] * t59;
        const V t204 = c[14] * t58;
        const V t205 = t204 + t203;
        const V t206 = c[7] * t158;
        const V t207 = c[8] * t159;
        const V t208 = t207 - t206;
        const V t209 = c[7] * t159;
        const V t210 = c[8] * t158;
        const V t211 = t210 + t209;
        // mirrored skew block of 4
        const V t212 = t202 - t208;
        const V t213 = c[0] * t212;
        const V t214 = t205 + t211;
        const V t215 = c[0] * t214;
        const V t216 = t202 + t208;
        io.out(0, t216);
        const V t217 = t213 - t215;
        io.out(16, t217);
        const V t218 = t205 - t211;
        io.out(31, t218);
        const V t219 = t213 + t215;
        io.out(15, t219);
        // row 1
        const V t220 = c[7] * t92;
        const V t221 = c[8] * t93;
        const V t222 = t221 - t220;
        const V t223 = c[7] * t93;
        const V t224 = c[8] * t92;
        const V t225 = t224 + t223;
        const V t226 = c[9] * t192;
        const V t227 = c[10] * t193;
        const V t228 = t227 - t226;
        const V t229 = c[9] * t193;
        const V t230 = c[10] * t192;
        const V t231 = t230 + t229;
        // mirrored skew block of 4
        const V t232 = t222 - t228;
        const V t233 = c[0] * t232;
        const V t234 = t225 + t231;
        const V t235 = c[0] * t234;
        const V t236 = t222 + t228;
        io.out(1, t236);
        const V t237 = t233 - t235;
        io.out(17, t237);
        const V t238 = t225 - t231;
        io.out(30, t238);
        const V t239 = t233 + t235;
        io.out(14, t239);
        // row 2
        const V t240 = c[15] * t98;
        const V t241 = c[16] * t99;
        const V t242 = t241 + t240;
        const V t243 = c[15] * t99;
        const V t244 = c[16] * t98;
        const V t245 = t243 - t244;
        const V t246 = c[11] * t198;
        const V t247 = c[12] * t199;
        const V t248 = t247 + t246;
        const V t249 = c[11] * t199;
        const V t250 = c[12] * t198;
        const V t251 = t249 - t250;
        // mirrored skew block of 4
        const V t252 = t242 - t248;
        const V t253 = c[0] * t252;
        const V t254 = t245 + t251;
        const V t255 = c[0] * t254;
        const V t256 = t242 + t248;
        io.out(2, t256);
        const V t257 = t253 - t255;
        io.out(18, t257);
        const V t258 = t245 - t251;
        io.out(29, t258);
        const V t259 = t253 + t255;
        io.out(13, t259);
        // row 3
        const V t260 = c[17] * t64;
        const V t261 = c[18] * t65;
        const V t262 = t261 + t260;
        const V t263 = c[17] * t65;
        const V t264 = c[18] * t64;
        const V t265 = t263 - t264;
        const V t266 = c[19] * t164;
        const V t267 = c[20] * t165;
        const V t268 = t267 + t266;
        const V t269 = c[19] * t165;
        const V t270 = c[20] * t164;
        const V t271 = t269 - t270;
        // mirrored skew block of 4
        const V t272 = t262 - t268;
        const V t273 = c[0] * t272;
        const V t274 = t265 + t271;
        const V t275 = c[0] * t274;
        const V t276 = t262 + t268;
        io.out(3, t276);
        const V t277 = t273 - t275;
        io.out(19, t277);
        const V t278 = t265 - t271;
        io.out(28, t278);
        const V t279 = t273 + t275;
        io.out(12, t279);
        // row 4
        const V t280 = c[9] * t62;
        const V t281 = c[10] * t63;
        const V t282 = t281 - t280;
        const V t283 = c[9] * t63;
        const V t284 = c[10] * t62;
        const V t285 = t284 + t283;
        const V t286 = c[21] * t162;
        const V t287 = c[22] * t163;
        const V t288 = t287 - t286;
        const V t289 = c[21] * t163;
        const V t290 = c[22] * t162;
        const V t291 = t290 + t289;
        // mirrored skew block of 4
        const V t292 = t282 - t288;
        const V t293 = c[0] * t292;
        const V t294 = t285 + t291;
        const V t295 = c[0] * t294;
        const V t296 = t282 + t288;
        io.out(4, t296);
        const V t297 = t293 - t295;
        io.out(20, t297);
        const V t298 = t285 - t291;
        io.out(27, t298);
        const V t299 = t293 + t295;
        io.out(11, t299);
        // row 5
        const V t300 = c[23] * t96;
        const V t301 = c[24] * t97;
        const V t302 = t301 - t300;
        const V t303 = c[23] * t97;
        const V t304 = c[24] * t96;
        const V t305 = t304 + t303;
        const V t306 = c[25] * t196;
        const V t307 = c[26] * t197;
        const V t308 = t307 - t306;
        const V t309 = c[25] * t197;
        const V t310 = c[26] * t196;
        const V t311 = t310 + t309;
        // mirrored skew block of 4
        const V t312 = t302 - t308;
        const V t313 = c[0] * t312;
        const V t314 = t305 + t311;
        const V t315 = c[0] * t314;
        const V t316 = t302 + t308;
        io.out(5, t316);
        const V t317 = t313 - t315;
        io.out(21, t317);
        const V t318 = t305 - t311;
        io.out(26, t318);
        const V t319 = t313 + t315;
        io.out(10, t319);
        // row 6
        const V t320 = c[27] * t94;
        const V t321 = c[28] * t95;
        const V t322 = t321 + t320;
        const V t323 = c[27] * t95;
        const V t324 = c[28] * t94;
        const V t325 = t323 - t324;
        const V t326 = c[29] * t194;
        const V t327 = c[30] * t195;
        const V t328 = t327 + t326;
        const V t329 = c[29] * t195;
        const V t330 = c[30] * t194;
        const V t331 = t329 - t330;
        // mirrored skew block of 4
        const V t332 = t322 - t328;
        const V t333 = c[0] * t332;
        const V t334 = t325 + t331;
        const V t335 = c[0] * t334;
        const V t336 = t322 + t328;
        io.out(6, t336);
        const V t337 = t333 - t335;
        io.out(22, t337);
        const V t338 = t325 - t331;
        io.out(25, t338);
        const V t339 = t333 + t335;
        io.out(9, t339);
        // row 7
        const V t340 = c[11] * t60;
        const V t341 = c[12] * t61;
        const V t342 = t341 + t340;
        const V t343 = c[11] * t61;
        const V t344 = c[12] * t60;
        const V t345 = t343 - t344;
        const V t346 = c[31] * t160;
        const V t347 = c[32] * t161;
        const V t348 = t347 + t346;
        const V t349 = c[31] * t161;
        const V t350 = c[32] * t160;
        const V t351 = t349 - t350;
        // mirrored skew block of 4
        const V t352 = t342 - t348;
        const V t353 = c[0] * t352;
        const V t354 = t345 + t351;
        const V t355 = c[0] * t354;
        const V t356 = t342 + t348;
        io.out(7, t356);
        const V t357 = t353 - t355;
        io.out(23, t357);
        const V t358 = t345 - t351;
        io.out(24, t358);
        const V t359 = t353 + t355;
        io.out(8, t359);
    }
};

}  // namespace zulg
