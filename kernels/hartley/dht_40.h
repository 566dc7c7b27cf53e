// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 40.
// Hartley transform of 40 points, form I.
// 134 additions, 124 subtractions, 74 multiplications (114 with `scale`); 5 constants; 53 values alive at most.
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
        const V x8 = io.in(8);
        const V x32 = io.in(32);
        const V t0 = x8 + x32;
        const V t1 = x8 - x32;
        // spectrum block of 5, multiplier 3
        const V t2 = c[0] * t0;
        const V t3 = c[1] * t0;
        // input stage
        const V x16 = io.in(16);
        const V x24 = io.in(24);
        const V t4 = x16 + x24;
        const V t5 = x16 - x24;
        // spectrum block of 5, multiplier 3
        const V t6 = c[1] * t4;
        const V t7 = t0 + t4;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        const V t9 = t2 - t6;
        const V t10 = t9 + x0;
        const V t11 = c[2] * t1;
        const V t12 = c[3] * t5;
        const V t13 = t11 + t12;
        const V t14 = x0 - t3;
        const V t15 = c[0] * t4;
        const V t16 = t14 + t15;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t5;
        const V t19 = t17 - t18;
        // input stage
        const V x1 = io.in(1);
        const V x39 = io.in(39);
        const V t20 = x1 + x39;
        const V t21 = x1 - x39;
        const V x9 = io.in(9);
        const V x31 = io.in(31);
        const V t22 = x9 + x31;
        const V t23 = x9 - x31;
        // complex block of 5, multiplier 3
        const V t24 = t21 + t23;
        const V t25 = t20 + t22;
        const V t26 = t23 - t21;
        const V t27 = t20 - t22;
        // input stage
        const V x7 = io.in(7);
        const V x33 = io.in(33);
        const V t28 = x7 + x33;
        const V t29 = x7 - x33;
        const V x17 = io.in(17);
        const V x23 = io.in(23);
        const V t30 = x17 + x23;
        const V t31 = x17 - x23;
        // complex block of 5, multiplier 3
        const V t32 = t29 - t31;
        const V t33 = t30 + t28;
        const V t34 = t31 + t29;
        const V t35 = t30 - t28;
        // input stage
        const V x15 = io.in(15);
        const V x25 = io.in(25);
        const V t36 = x15 + x25;
        const V t37 = x15 - x25;
        // complex block of 5, multiplier 3
        const V t38 = t32 - t24;
        const V t39 = t38 + t37;
        const V t40 = t33 + t25;
        const V t41 = t40 + t36;
        const V t42 = c[0] * t32;
        const V t43 = c[1] * t24;
        const V t44 = t42 + t43;
        const V t45 = t44 + t37;
        const V t46 = c[0] * t33;
        const V t47 = c[1] * t25;
        const V t48 = t46 - t47;
        const V t49 = t48 + t36;
        const V t50 = c[2] * t34;
        const V t51 = c[3] * t26;
        const V t52 = t50 + t51;
        const V t53 = c[2] * t35;
        const V t54 = c[3] * t27;
        const V t55 = t53 - t54;
        const V t56 = c[1] * t32;
        const V t57 = t37 - t56;
        const V t58 = c[0] * t24;
        const V t59 = t57 - t58;
        const V t60 = c[1] * t33;
        const V t61 = t36 - t60;
        const V t62 = c[0] * t25;
        const V t63 = t61 + t62;
        const V t64 = c[3] * t34;
        const V t65 = c[2] * t26;
        const V t66 = t65 - t64;
        const V t67 = c[3] * t35;
        const V t68 = c[2] * t27;
        const V t69 = t67 + t68;
        // input stage
        const V x2 = io.in(2);
        const V x38 = io.in(38);
        const V t70 = x2 + x38;
        const V t71 = x2 - x38;
        const V x18 = io.in(18);
        const V x22 = io.in(22);
        const V t72 = x18 + x22;
        const V t73 = x18 - x22;
        // complex block of 5, multiplier 3
        const V t74 = t73 + t71;
        const V t75 = t72 + t70;
        // input stage
        const V x6 = io.in(6);
        const V x34 = io.in(34);
        const V t76 = x6 + x34;
        const V t77 = x6 - x34;
        const V x14 = io.in(14);
        const V x26 = io.in(26);
        const V t78 = x14 + x26;
        const V t79 = x14 - x26;
        // complex block of 5, multiplier 3
        const V t80 = t77 + t79;
        const V t81 = t76 + t78;
        // input stage
        const V x10 = io.in(10);
        const V x30 = io.in(30);
        const V t82 = x10 + x30;
        const V t83 = x10 - x30;
        // complex block of 5, multiplier 3
        const V t84 = t73 - t71;
        const V t85 = c[2] * t84;
        const V t86 = c[3] * t84;
        const V t87 = t72 - t70;
        const V t88 = c[2] * t87;
        const V t89 = c[3] * t87;
        const V t90 = t79 - t77;
        const V t91 = c[3] * t90;
        const V t92 = c[2] * t90;
        const V t93 = t76 - t78;
        const V t94 = c[3] * t93;
        const V t95 = c[2] * t93;
        const V t96 = t74 - t80;
        const V t97 = t75 + t81;
        const V t98 = c[0] * t74;
        const V t99 = c[1] * t80;
        const V t100 = t98 + t99;
        const V t101 = c[0] * t75;
        const V t102 = c[1] * t81;
        const V t103 = t101 - t102;
        const V t104 = c[1] * t74;
        const V t105 = t83 - t104;
        const V t106 = c[0] * t80;
        const V t107 = c[1] * t75;
        const V t108 = t82 - t107;
        const V t109 = c[0] * t81;
        // input stage
        const V x3 = io.in(3);
        const V x37 = io.in(37);
        const V t110 = x3 + x37;
        const V t111 = x3 - x37;
        const V x13 = io.in(13);
        const V x27 = io.in(27);
        const V t112 = x13 + x27;
        const V t113 = x13 - x27;
        // complex block of 5, multiplier 3
        const V t114 = t113 - t111;
        const V t115 = t112 + t110;
        const V t116 = t113 + t111;
        const V t117 = t112 - t110;
        // input stage
        const V x5 = io.in(5);
        const V x35 = io.in(35);
        const V t118 = x5 + x35;
        const V t119 = x5 - x35;
        const V x11 = io.in(11);
        const V x29 = io.in(29);
        const V t120 = x11 + x29;
        const V t121 = x11 - x29;
        const V x19 = io.in(19);
        const V x21 = io.in(21);
        const V t122 = x19 + x21;
        const V t123 = x19 - x21;
        // complex block of 5, multiplier 3
        const V t124 = t121 + t123;
        const V t125 = t120 + t122;
        const V t126 = t123 - t121;
        const V t127 = t120 - t122;
        const V t128 = t114 - t124;
        const V t129 = t128 + t119;
        const V t130 = t115 + t125;
        const V t131 = t130 + t118;
        const V t132 = c[0] * t114;
        const V t133 = c[1] * t124;
        const V t134 = t132 + t133;
        const V t135 = t134 + t119;
        const V t136 = c[0] * t115;
        const V t137 = c[1] * t125;
        const V t138 = t136 - t137;
        const V t139 = t138 + t118;
        const V t140 = c[2] * t116;
        const V t141 = c[3] * t126;
        const V t142 = t140 - t141;
        const V t143 = c[2] * t117;
        const V t144 = c[3] * t127;
        const V t145 = t143 - t144;
        const V t146 = c[1] * t114;
        const V t147 = t119 - t146;
        const V t148 = c[0] * t124;
        const V t149 = t147 - t148;
        const V t150 = c[1] * t115;
        const V t151 = t118 - t150;
        const V t152 = c[0] * t125;
        const V t153 = t151 + t152;
        const V t154 = c[3] * t116;
        const V t155 = c[2] * t126;
        const V t156 = t154 + t155;
        const V t157 = c[3] * t117;
        const V t158 = c[2] * t127;
        const V t159 = t157 + t158;
        // input stage
        const V x4 = io.in(4);
        const V x36 = io.in(36);
        const V t160 = x4 + x36;
        const V t161 = x4 - x36;
        // spectrum block of 5, multiplier 3
        const V t162 = c[1] * t160;
        // input stage
        const V x12 = io.in(12);
        const V x28 = io.in(28);
        const V t163 = x12 + x28;
        const V t164 = x12 - x28;
        // spectrum block of 5, multiplier 3
        const V t165 = c[0] * t163;
        const V t166 = c[1] * t163;
        const V t167 = t163 + t160;
        const V x20 = io.in(20);
        const V t168 = t167 + x20;
        const V t169 = t165 - t162;
        const V t170 = t169 + x20;
        const V t171 = c[2] * t164;
        const V t172 = c[3] * t161;
        const V t173 = t171 + t172;
        const V t174 = x20 - t166;
        const V t175 = c[0] * t160;
        const V t176 = t174 + t175;
        const V t177 = c[3] * t164;
        const V t178 = c[2] * t161;
        const V t179 = t178 - t177;
        // spectrum block of 5, multiplier 3
        const V t180 = t10 - t13;
        // spectrum block of 5, multiplier 3
        const V t181 = t170 + t173;
        // spectrum block of 2
        const V t182 = t180 + t181;
        const V t183 = t180 - t181;
        // spectrum block of 5, multiplier 3
        const V t184 = t10 + t13;
        // spectrum block of 5, multiplier 3
        const V t185 = t170 - t173;
        // spectrum block of 2
        const V t186 = t184 + t185;
        const V t187 = t184 - t185;
        // complex block of 5, multiplier 3
        const V t188 = t135 + t145;
        // complex block of 5, multiplier 3
        const V t189 = t45 + t55;
        // mirrored skew block of 4, multiplier 5
        const V t190 = t189 + t188;
        const V t191 = c[4] * t190;
        const V t192 = t188 - t189;
        // complex block of 5, multiplier 3
        const V t193 = t139 - t142;
        // complex block of 5, multiplier 3
        const V t194 = t49 + t52;
        // mirrored skew block of 4, multiplier 5
        const V t195 = t194 - t193;
        const V t196 = c[4] * t195;
        const V t197 = t194 + t193;
        // complex block of 5, multiplier 3
        const V t198 = t135 - t145;
        // complex block of 5, multiplier 3
        const V t199 = t45 - t55;
        // mirrored skew block of 4, multiplier 5
        const V t200 = t199 + t198;
        const V t201 = c[4] * t200;
        const V t202 = t198 - t199;
        // complex block of 5, multiplier 3
        const V t203 = t139 + t142;
        // complex block of 5, multiplier 3
        const V t204 = t49 - t52;
        // mirrored skew block of 4, multiplier 5
        const V t205 = t204 - t203;
        const V t206 = c[4] * t205;
        const V t207 = t204 + t203;
        // complex block of 5, multiplier 3
        const V t208 = t100 + t83;
        const V t209 = t88 - t94;
        const V t210 = t208 + t209;
        const V t211 = t208 - t209;
        const V t212 = t103 + t82;
        const V t213 = t85 - t91;
        const V t214 = t212 - t213;
        const V t215 = t212 + t213;
        // spectrum block of 2
        const V t216 = t182 + t214;
        // spectrum block of 2
        const V t217 = t216 + t197;
        io.out(24, t217);
        const V t218 = t216 - t197;
        io.out(4, t218);
        // spectrum block of 2
        const V t219 = t182 - t214;
        // spectrum block of 2
        const V t220 = t219 - t192;
        io.out(14, t220);
        const V t221 = t219 + t192;
        io.out(34, t221);
        // spectrum block of 2
        const V t222 = t183 - t210;
        // mirrored skew block of 4, multiplier 5
        const V t223 = t196 + t191;
        // spectrum block of 2
        const V t224 = t222 + t223;
        io.out(19, t224);
        const V t225 = t222 - t223;
        io.out(39, t225);
        // spectrum block of 2
        const V t226 = t183 + t210;
        // mirrored skew block of 4, multiplier 5
        const V t227 = t196 - t191;
        // spectrum block of 2
        const V t228 = t226 - t227;
        io.out(9, t228);
        const V t229 = t226 + t227;
        io.out(29, t229);
        // spectrum block of 2
        const V t230 = t186 + t215;
        // spectrum block of 2
        const V t231 = t230 + t207;
        io.out(16, t231);
        const V t232 = t230 - t207;
        io.out(36, t232);
        // spectrum block of 2
        const V t233 = t186 - t215;
        // spectrum block of 2
        const V t234 = t233 - t202;
        io.out(6, t234);
        const V t235 = t233 + t202;
        io.out(26, t235);
        // spectrum block of 2
        const V t236 = t187 - t211;
        // mirrored skew block of 4, multiplier 5
        const V t237 = t206 + t201;
        // spectrum block of 2
        const V t238 = t236 + t237;
        io.out(11, t238);
        const V t239 = t236 - t237;
        io.out(31, t239);
        // spectrum block of 2
        const V t240 = t187 + t211;
        // mirrored skew block of 4, multiplier 5
        const V t241 = t206 - t201;
        // spectrum block of 2
        const V t242 = t240 - t241;
        io.out(1, t242);
        const V t243 = t240 + t241;
        io.out(21, t243);
        // spectrum block of 5, multiplier 3
        const V t244 = t16 - t19;
        // spectrum block of 5, multiplier 3
        const V t245 = t176 - t179;
        // spectrum block of 2
        const V t246 = t244 + t245;
        const V t247 = t244 - t245;
        // spectrum block of 5, multiplier 3
        const V t248 = t16 + t19;
        // spectrum block of 5, multiplier 3
        const V t249 = t176 + t179;
        // spectrum block of 2
        const V t250 = t248 + t249;
        const V t251 = t248 - t249;
        // complex block of 5, multiplier 3
        const V t252 = t149 + t159;
        // complex block of 5, multiplier 3
        const V t253 = t59 + t69;
        // mirrored skew block of 4, multiplier 5
        const V t254 = t253 + t252;
        const V t255 = c[4] * t254;
        const V t256 = t252 - t253;
        // complex block of 5, multiplier 3
        const V t257 = t153 - t156;
        // complex block of 5, multiplier 3
        const V t258 = t63 - t66;
        // mirrored skew block of 4, multiplier 5
        const V t259 = t258 - t257;
        const V t260 = c[4] * t259;
        const V t261 = t258 + t257;
        // complex block of 5, multiplier 3
        const V t262 = t149 - t159;
        // complex block of 5, multiplier 3
        const V t263 = t59 - t69;
        // mirrored skew block of 4, multiplier 5
        const V t264 = t263 + t262;
        const V t265 = c[4] * t264;
        const V t266 = t262 - t263;
        // complex block of 5, multiplier 3
        const V t267 = t153 + t156;
        // complex block of 5, multiplier 3
        const V t268 = t63 + t66;
        // mirrored skew block of 4, multiplier 5
        const V t269 = t268 - t267;
        const V t270 = c[4] * t269;
        const V t271 = t268 + t267;
        // complex block of 5, multiplier 3
        const V t272 = t105 - t106;
        const V t273 = t89 + t95;
        const V t274 = t272 + t273;
        const V t275 = t272 - t273;
        const V t276 = t108 + t109;
        const V t277 = t86 + t92;
        const V t278 = t276 - t277;
        const V t279 = t276 + t277;
        // spectrum block of 2
        const V t280 = t250 + t279;
        // spectrum block of 2
        const V t281 = t280 + t271;
        io.out(32, t281);
        const V t282 = t280 - t271;
        io.out(12, t282);
        // spectrum block of 2
        const V t283 = t250 - t279;
        // spectrum block of 2
        const V t284 = t283 - t266;
        io.out(22, t284);
        const V t285 = t283 + t266;
        io.out(2, t285);
        // spectrum block of 2
        const V t286 = t251 - t275;
        // mirrored skew block of 4, multiplier 5
        const V t287 = t270 + t265;
        // spectrum block of 2
        const V t288 = t286 + t287;
        io.out(27, t288);
        const V t289 = t286 - t287;
        io.out(7, t289);
        // spectrum block of 2
        const V t290 = t251 + t275;
        // mirrored skew block of 4, multiplier 5
        const V t291 = t270 - t265;
        // spectrum block of 2
        const V t292 = t290 - t291;
        io.out(17, t292);
        const V t293 = t290 + t291;
        io.out(37, t293);
        // spectrum block of 2
        const V t294 = t246 + t278;
        // spectrum block of 2
        const V t295 = t294 + t261;
        io.out(8, t295);
        const V t296 = t294 - t261;
        io.out(28, t296);
        // spectrum block of 2
        const V t297 = t246 - t278;
        // spectrum block of 2
        const V t298 = t297 - t256;
        io.out(38, t298);
        const V t299 = t297 + t256;
        io.out(18, t299);
        // spectrum block of 2
        const V t300 = t247 - t274;
        // mirrored skew block of 4, multiplier 5
        const V t301 = t260 + t255;
        // spectrum block of 2
        const V t302 = t300 + t301;
        io.out(3, t302);
        const V t303 = t300 - t301;
        io.out(23, t303);
        // spectrum block of 2
        const V t304 = t247 + t274;
        // mirrored skew block of 4, multiplier 5
        const V t305 = t260 - t255;
        // spectrum block of 2
        const V t306 = t304 - t305;
        io.out(33, t306);
        const V t307 = t304 + t305;
        io.out(13, t307);
        // complex block of 5, multiplier 3
        const V t308 = t96 + t83;
        // spectrum block of 2
        const V t309 = t8 - t168;
        // spectrum block of 2
        const V t310 = t309 - t308;
        const V t311 = t309 + t308;
        // mirrored skew block of 4, multiplier 5
        const V t312 = t41 - t131;
        const V t313 = c[4] * t312;
        const V t314 = t39 + t129;
        const V t315 = c[4] * t314;
        const V t316 = t313 + t315;
        // spectrum block of 2
        const V t317 = t310 + t316;
        io.out(35, t317);
        const V t318 = t310 - t316;
        io.out(15, t318);
        // mirrored skew block of 4, multiplier 5
        const V t319 = t313 - t315;
        // spectrum block of 2
        const V t320 = t311 - t319;
        io.out(25, t320);
        const V t321 = t311 + t319;
        io.out(5, t321);
        // complex block of 5, multiplier 3
        const V t322 = t97 + t82;
        // spectrum block of 2
        const V t323 = t8 + t168;
        // spectrum block of 2
        const V t324 = t323 + t322;
        const V t325 = t323 - t322;
        // mirrored skew block of 4, multiplier 5
        const V t326 = t41 + t131;
        const V t327 = t129 - t39;
        // spectrum block of 2
        const V t328 = t324 + t326;
        io.out(0, t328);
        const V t329 = t324 - t326;
        io.out(20, t329);
        // spectrum block of 2
        const V t330 = t325 - t327;
        io.out(30, t330);
        const V t331 = t325 + t327;
        io.out(10, t331);
    }
};

}  // namespace zulg
