// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 40.
// Hartley transform of 40 points, form I.
// 134 additions, 124 subtractions, 74 multiplications (114 with `scale`); 5 constants; 47 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<40> {
    static constexpr int steps = 372;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x39 = io.in(39);
        const V t0 = x1 + x39;
        const V t1 = x1 - x39;
        const V x2 = io.in(2);
        const V x38 = io.in(38);
        const V t2 = x2 + x38;
        const V t3 = x2 - x38;
        const V x3 = io.in(3);
        const V x37 = io.in(37);
        const V t4 = x3 + x37;
        const V t5 = x3 - x37;
        const V x4 = io.in(4);
        const V x36 = io.in(36);
        const V t6 = x4 + x36;
        const V t7 = x4 - x36;
        const V x5 = io.in(5);
        const V x35 = io.in(35);
        const V t8 = x5 + x35;
        const V t9 = x5 - x35;
        const V x6 = io.in(6);
        const V x34 = io.in(34);
        const V t10 = x6 + x34;
        const V t11 = x6 - x34;
        const V x7 = io.in(7);
        const V x33 = io.in(33);
        const V t12 = x7 + x33;
        const V t13 = x7 - x33;
        const V x8 = io.in(8);
        const V x32 = io.in(32);
        const V t14 = x8 + x32;
        const V t15 = x8 - x32;
        const V x9 = io.in(9);
        const V x31 = io.in(31);
        const V t16 = x9 + x31;
        const V t17 = x9 - x31;
        const V x10 = io.in(10);
        const V x30 = io.in(30);
        const V t18 = x10 + x30;
        const V t19 = x10 - x30;
        const V x11 = io.in(11);
        const V x29 = io.in(29);
        const V t20 = x11 + x29;
        const V t21 = x11 - x29;
        const V x12 = io.in(12);
        const V x28 = io.in(28);
        const V t22 = x12 + x28;
        const V t23 = x12 - x28;
        const V x13 = io.in(13);
        const V x27 = io.in(27);
        const V t24 = x13 + x27;
        const V t25 = x13 - x27;
        const V x14 = io.in(14);
        const V x26 = io.in(26);
        const V t26 = x14 + x26;
        const V t27 = x14 - x26;
        const V x15 = io.in(15);
        const V x25 = io.in(25);
        const V t28 = x15 + x25;
        const V t29 = x15 - x25;
        const V x16 = io.in(16);
        const V x24 = io.in(24);
        const V t30 = x16 + x24;
        const V t31 = x16 - x24;
        const V x17 = io.in(17);
        const V x23 = io.in(23);
        const V t32 = x17 + x23;
        const V t33 = x17 - x23;
        const V x18 = io.in(18);
        const V x22 = io.in(22);
        const V t34 = x18 + x22;
        const V t35 = x18 - x22;
        const V x19 = io.in(19);
        const V x21 = io.in(21);
        const V t36 = x19 + x21;
        const V t37 = x19 - x21;
        // spectrum block of 5, multiplier 3
        const V t38 = t14 + t30;
        const V x0 = io.in(0);
        const V t39 = t38 + x0;
        const V t40 = c[0] * t14;
        const V t41 = c[1] * t30;
        const V t42 = t40 - t41;
        const V t43 = t42 + x0;
        const V t44 = c[2] * t15;
        const V t45 = c[3] * t31;
        const V t46 = t44 + t45;
        const V t47 = t43 - t46;
        const V t48 = t43 + t46;
        const V t49 = c[1] * t14;
        const V t50 = x0 - t49;
        const V t51 = c[0] * t30;
        const V t52 = t50 + t51;
        const V t53 = c[3] * t15;
        const V t54 = c[2] * t31;
        const V t55 = t53 - t54;
        const V t56 = t52 - t55;
        const V t57 = t52 + t55;
        // complex block of 5, multiplier 3
        const V t58 = t25 - t5;
        const V t59 = t24 + t4;
        const V t60 = t25 + t5;
        const V t61 = t24 - t4;
        const V t62 = t21 + t37;
        const V t63 = t20 + t36;
        const V t64 = t37 - t21;
        const V t65 = t20 - t36;
        const V t66 = t58 - t62;
        const V t67 = t59 + t63;
        const V t68 = t66 + t9;
        const V t69 = t67 + t8;
        const V t70 = c[0] * t58;
        const V t71 = c[1] * t62;
        const V t72 = t70 + t71;
        const V t73 = t72 + t9;
        const V t74 = c[0] * t59;
        const V t75 = c[1] * t63;
        const V t76 = t74 - t75;
        const V t77 = t76 + t8;
        const V t78 = c[2] * t60;
        const V t79 = c[3] * t64;
        const V t80 = t78 - t79;
        const V t81 = c[2] * t61;
        const V t82 = c[3] * t65;
        const V t83 = t81 - t82;
        const V t84 = t73 + t83;
        const V t85 = t77 - t80;
        const V t86 = t73 - t83;
        const V t87 = t77 + t80;
        const V t88 = c[1] * t58;
        const V t89 = t9 - t88;
        const V t90 = c[0] * t62;
        const V t91 = t89 - t90;
        const V t92 = c[1] * t59;
        const V t93 = t8 - t92;
        const V t94 = c[0] * t63;
        const V t95 = t93 + t94;
        const V t96 = c[3] * t60;
        const V t97 = c[2] * t64;
        const V t98 = t96 + t97;
        const V t99 = c[3] * t61;
        const V t100 = c[2] * t65;
        const V t101 = t99 + t100;
        const V t102 = t91 + t101;
        const V t103 = t95 - t98;
        const V t104 = t91 - t101;
        const V t105 = t95 + t98;
        // complex block of 5, multiplier 3
        const V t106 = t35 + t3;
        const V t107 = t34 + t2;
        const V t108 = t35 - t3;
        const V t109 = t34 - t2;
        const V t110 = t11 + t27;
        const V t111 = t10 + t26;
        const V t112 = t27 - t11;
        const V t113 = t10 - t26;
        const V t114 = t106 - t110;
        const V t115 = t107 + t111;
        const V t116 = t114 + t19;
        const V t117 = t115 + t18;
        const V t118 = c[0] * t106;
        const V t119 = c[1] * t110;
        const V t120 = t118 + t119;
        const V t121 = t120 + t19;
        const V t122 = c[0] * t107;
        const V t123 = c[1] * t111;
        const V t124 = t122 - t123;
        const V t125 = t124 + t18;
        const V t126 = c[2] * t108;
        const V t127 = c[3] * t112;
        const V t128 = t126 - t127;
        const V t129 = c[2] * t109;
        const V t130 = c[3] * t113;
        const V t131 = t129 - t130;
        const V t132 = t121 + t131;
        const V t133 = t125 - t128;
        const V t134 = t121 - t131;
        const V t135 = t125 + t128;
        const V t136 = c[1] * t106;
        const V t137 = t19 - t136;
        const V t138 = c[0] * t110;
        const V t139 = t137 - t138;
        const V t140 = c[1] * t107;
        const V t141 = t18 - t140;
        const V t142 = c[0] * t111;
        const V t143 = t141 + t142;
        const V t144 = c[3] * t108;
        const V t145 = c[2] * t112;
        const V t146 = t144 + t145;
        const V t147 = c[3] * t109;
        const V t148 = c[2] * t113;
        const V t149 = t147 + t148;
        const V t150 = t139 + t149;
        const V t151 = t143 - t146;
        const V t152 = t139 - t149;
        const V t153 = t143 + t146;
        // complex block of 5, multiplier 3
        const V t154 = t13 - t33;
        const V t155 = t32 + t12;
        const V t156 = t33 + t13;
        const V t157 = t32 - t12;
        const V t158 = t1 + t17;
        const V t159 = t0 + t16;
        const V t160 = t17 - t1;
        const V t161 = t0 - t16;
        const V t162 = t154 - t158;
        const V t163 = t155 + t159;
        const V t164 = t162 + t29;
        const V t165 = t163 + t28;
        const V t166 = c[0] * t154;
        const V t167 = c[1] * t158;
        const V t168 = t166 + t167;
        const V t169 = t168 + t29;
        const V t170 = c[0] * t155;
        const V t171 = c[1] * t159;
        const V t172 = t170 - t171;
        const V t173 = t172 + t28;
        const V t174 = c[2] * t156;
        const V t175 = c[3] * t160;
        const V t176 = t174 + t175;
        const V t177 = c[2] * t157;
        const V t178 = c[3] * t161;
        const V t179 = t177 - t178;
        const V t180 = t169 + t179;
        const V t181 = t173 + t176;
        const V t182 = t169 - t179;
        const V t183 = t173 - t176;
        const V t184 = c[1] * t154;
        const V t185 = t29 - t184;
        const V t186 = c[0] * t158;
        const V t187 = t185 - t186;
        const V t188 = c[1] * t155;
        const V t189 = t28 - t188;
        const V t190 = c[0] * t159;
        const V t191 = t189 + t190;
        const V t192 = c[3] * t156;
        const V t193 = c[2] * t160;
        const V t194 = t193 - t192;
        const V t195 = c[3] * t157;
        const V t196 = c[2] * t161;
        const V t197 = t195 + t196;
        const V t198 = t187 + t197;
        const V t199 = t191 - t194;
        const V t200 = t187 - t197;
        const V t201 = t191 + t194;
        // spectrum block of 5, multiplier 3
        const V t202 = t22 + t6;
        const V x20 = io.in(20);
        const V t203 = t202 + x20;
        const V t204 = c[0] * t22;
        const V t205 = c[1] * t6;
        const V t206 = t204 - t205;
        const V t207 = t206 + x20;
        const V t208 = c[2] * t23;
        const V t209 = c[3] * t7;
        const V t210 = t208 + t209;
        const V t211 = t207 + t210;
        const V t212 = t207 - t210;
        const V t213 = c[1] * t22;
        const V t214 = x20 - t213;
        const V t215 = c[0] * t6;
        const V t216 = t214 + t215;
        const V t217 = c[3] * t23;
        const V t218 = c[2] * t7;
        const V t219 = t218 - t217;
        const V t220 = t216 - t219;
        const V t221 = t216 + t219;
        // spectrum block of 2
        const V t222 = t39 + t203;
        const V t223 = t39 - t203;
        // spectrum block of 2
        const V t224 = t222 + t117;
        const V t225 = t222 - t117;
        // spectrum block of 2
        const V t226 = t223 - t116;
        const V t227 = t223 + t116;
        // mirrored skew block of 4, multiplier 5
        const V t228 = t165 - t69;
        const V t229 = c[4] * t228;
        const V t230 = t164 + t68;
        const V t231 = c[4] * t230;
        const V t232 = t165 + t69;
        const V t233 = t229 + t231;
        const V t234 = t68 - t164;
        const V t235 = t229 - t231;
        // spectrum block of 2
        const V t236 = t224 + t232;
        io.out(0, t236);
        const V t237 = t224 - t232;
        io.out(20, t237);
        // spectrum block of 2
        const V t238 = t226 + t233;
        io.out(35, t238);
        const V t239 = t226 - t233;
        io.out(15, t239);
        // spectrum block of 2
        const V t240 = t225 - t234;
        io.out(30, t240);
        const V t241 = t225 + t234;
        io.out(10, t241);
        // spectrum block of 2
        const V t242 = t227 - t235;
        io.out(25, t242);
        const V t243 = t227 + t235;
        io.out(5, t243);
        // spectrum block of 2
        const V t244 = t57 + t221;
        const V t245 = t57 - t221;
        // spectrum block of 2
        const V t246 = t244 + t153;
        const V t247 = t244 - t153;
        // spectrum block of 2
        const V t248 = t245 - t152;
        const V t249 = t245 + t152;
        // mirrored skew block of 4, multiplier 5
        const V t250 = t201 - t105;
        const V t251 = c[4] * t250;
        const V t252 = t200 + t104;
        const V t253 = c[4] * t252;
        const V t254 = t201 + t105;
        const V t255 = t251 + t253;
        const V t256 = t104 - t200;
        const V t257 = t251 - t253;
        // spectrum block of 2
        const V t258 = t246 + t254;
        io.out(32, t258);
        const V t259 = t246 - t254;
        io.out(12, t259);
        // spectrum block of 2
        const V t260 = t248 + t255;
        io.out(27, t260);
        const V t261 = t248 - t255;
        io.out(7, t261);
        // spectrum block of 2
        const V t262 = t247 - t256;
        io.out(22, t262);
        const V t263 = t247 + t256;
        io.out(2, t263);
        // spectrum block of 2
        const V t264 = t249 - t257;
        io.out(17, t264);
        const V t265 = t249 + t257;
        io.out(37, t265);
        // spectrum block of 2
        const V t266 = t47 + t211;
        const V t267 = t47 - t211;
        // spectrum block of 2
        const V t268 = t266 + t133;
        const V t269 = t266 - t133;
        // spectrum block of 2
        const V t270 = t267 - t132;
        const V t271 = t267 + t132;
        // mirrored skew block of 4, multiplier 5
        const V t272 = t181 - t85;
        const V t273 = c[4] * t272;
        const V t274 = t180 + t84;
        const V t275 = c[4] * t274;
        const V t276 = t181 + t85;
        const V t277 = t273 + t275;
        const V t278 = t84 - t180;
        const V t279 = t273 - t275;
        // spectrum block of 2
        const V t280 = t268 + t276;
        io.out(24, t280);
        const V t281 = t268 - t276;
        io.out(4, t281);
        // spectrum block of 2
        const V t282 = t270 + t277;
        io.out(19, t282);
        const V t283 = t270 - t277;
        io.out(39, t283);
        // spectrum block of 2
        const V t284 = t269 - t278;
        io.out(14, t284);
        const V t285 = t269 + t278;
        io.out(34, t285);
        // spectrum block of 2
        const V t286 = t271 - t279;
        io.out(9, t286);
        const V t287 = t271 + t279;
        io.out(29, t287);
        // spectrum block of 2
        const V t288 = t48 + t212;
        const V t289 = t48 - t212;
        // spectrum block of 2
        const V t290 = t288 + t135;
        const V t291 = t288 - t135;
        // spectrum block of 2
        const V t292 = t289 - t134;
        const V t293 = t289 + t134;
        // mirrored skew block of 4, multiplier 5
        const V t294 = t183 - t87;
        const V t295 = c[4] * t294;
        const V t296 = t182 + t86;
        const V t297 = c[4] * t296;
        const V t298 = t183 + t87;
        const V t299 = t295 + t297;
        const V t300 = t86 - t182;
        const V t301 = t295 - t297;
        // spectrum block of 2
        const V t302 = t290 + t298;
        io.out(16, t302);
        const V t303 = t290 - t298;
        io.out(36, t303);
        // spectrum block of 2
        const V t304 = t292 + t299;
        io.out(11, t304);
        const V t305 = t292 - t299;
        io.out(31, t305);
        // spectrum block of 2
        const V t306 = t291 - t300;
        io.out(6, t306);
        const V t307 = t291 + t300;
        io.out(26, t307);
        // spectrum block of 2
        const V t308 = t293 - t301;
        io.out(1, t308);
        const V t309 = t293 + t301;
        io.out(21, t309);
        // spectrum block of 2
        const V t310 = t56 + t220;
        const V t311 = t56 - t220;
        // spectrum block of 2
        const V t312 = t310 + t151;
        const V t313 = t310 - t151;
        // spectrum block of 2
        const V t314 = t311 - t150;
        const V t315 = t311 + t150;
        // mirrored skew block of 4, multiplier 5
        const V t316 = t199 - t103;
        const V t317 = c[4] * t316;
        const V t318 = t198 + t102;
        const V t319 = c[4] * t318;
        const V t320 = t199 + t103;
        const V t321 = t317 + t319;
        const V t322 = t102 - t198;
        const V t323 = t317 - t319;
        // spectrum block of 2
        const V t324 = t312 + t320;
        io.out(8, t324);
        const V t325 = t312 - t320;
        io.out(28, t325);
        // spectrum block of 2
        const V t326 = t314 + t321;
        io.out(3, t326);
        const V t327 = t314 - t321;
        io.out(23, t327);
        // spectrum block of 2
        const V t328 = t313 - t322;
        io.out(38, t328);
        const V t329 = t313 + t322;
        io.out(18, t329);
        // spectrum block of 2
        const V t330 = t315 - t323;
        io.out(33, t330);
        const V t331 = t315 + t323;
        io.out(13, t331);
    }
};

}  // namespace zulg
