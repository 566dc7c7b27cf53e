// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 40.
// Inverse DFT to 40 real points, prime-factor 5, 8.
// 115 additions, 105 subtractions, 112 multiplications (152 with `scale`); 6 constants; 53 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<40> {
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
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x8r = io.re(8);
        const V t0 = two * x8r;
        // spectrum block of 5, multiplier 3
        const V t1 = c[0] * t0;
        const V t2 = c[1] * t0;
        // doubled bins
        const V x16r = io.re(16);
        const V t3 = two * x16r;
        // spectrum block of 5, multiplier 3
        const V t4 = c[1] * t3;
        const V t5 = t0 + t3;
        const V x0r = io.re(0);
        const V t6 = t5 + x0r;
        const V t7 = t1 - t4;
        const V t8 = t7 + x0r;
        const V t9 = x0r - t2;
        const V t10 = c[0] * t3;
        const V t11 = t9 + t10;
        // doubled bins
        const V x1r = io.re(1);
        const V t12 = two * x1r;
        const V x9r = io.re(9);
        const V t13 = two * x9r;
        // complex block of 5, multiplier 3
        const V t14 = t12 + t13;
        const V t15 = t12 - t13;
        // doubled bins
        const V x7r = io.re(7);
        const V t16 = two * x7r;
        const V x17r = io.re(17);
        const V t17 = two * x17r;
        // complex block of 5, multiplier 3
        const V t18 = t17 + t16;
        const V t19 = t17 - t16;
        // doubled bins
        const V x15r = io.re(15);
        const V t20 = two * x15r;
        // complex block of 5, multiplier 3
        const V t21 = t18 + t14;
        const V t22 = t21 + t20;
        const V t23 = c[0] * t18;
        const V t24 = c[1] * t14;
        const V t25 = t23 - t24;
        const V t26 = t25 + t20;
        const V t27 = c[2] * t19;
        const V t28 = c[3] * t15;
        const V t29 = t27 - t28;
        const V t30 = c[1] * t18;
        const V t31 = t20 - t30;
        const V t32 = c[0] * t14;
        const V t33 = t31 + t32;
        const V t34 = c[3] * t19;
        const V t35 = c[2] * t15;
        const V t36 = t34 + t35;
        // doubled bins
        const V x1i = io.im(1);
        const V t37 = two * x1i;
        const V x9i = io.im(9);
        const V t38 = two * x9i;
        // complex block of 5, multiplier 3
        const V t39 = t37 + t38;
        const V t40 = t38 - t37;
        // doubled bins
        const V x7i = io.im(7);
        const V t41 = two * x7i;
        const V x17i = io.im(17);
        const V t42 = two * x17i;
        // complex block of 5, multiplier 3
        const V t43 = t41 - t42;
        const V t44 = t42 + t41;
        // doubled bins
        const V x15i = io.im(15);
        const V t45 = two * x15i;
        // complex block of 5, multiplier 3
        const V t46 = t43 - t39;
        const V t47 = t46 + t45;
        const V t48 = c[0] * t43;
        const V t49 = c[1] * t39;
        const V t50 = t48 + t49;
        const V t51 = t50 + t45;
        const V t52 = c[2] * t44;
        const V t53 = c[3] * t40;
        const V t54 = t52 + t53;
        const V t55 = c[1] * t43;
        const V t56 = t45 - t55;
        const V t57 = c[0] * t39;
        const V t58 = t56 - t57;
        const V t59 = c[3] * t44;
        const V t60 = c[2] * t40;
        const V t61 = t60 - t59;
        // doubled bins
        const V x2r = io.re(2);
        const V t62 = two * x2r;
        const V x18r = io.re(18);
        const V t63 = two * x18r;
        // complex block of 5, multiplier 3
        const V t64 = t63 + t62;
        // doubled bins
        const V x6r = io.re(6);
        const V t65 = two * x6r;
        const V x14r = io.re(14);
        const V t66 = two * x14r;
        // complex block of 5, multiplier 3
        const V t67 = t65 + t66;
        // doubled bins
        const V x10r = io.re(10);
        const V t68 = two * x10r;
        // complex block of 5, multiplier 3
        const V t69 = t63 - t62;
        const V t70 = c[2] * t69;
        const V t71 = c[3] * t69;
        const V t72 = t65 - t66;
        const V t73 = c[3] * t72;
        const V t74 = c[2] * t72;
        const V t75 = t64 + t67;
        const V t76 = c[0] * t64;
        const V t77 = c[1] * t67;
        const V t78 = t76 - t77;
        const V t79 = c[1] * t64;
        const V t80 = t68 - t79;
        const V t81 = c[0] * t67;
        // doubled bins
        const V x2i = io.im(2);
        const V t82 = two * x2i;
        const V x18i = io.im(18);
        const V t83 = two * x18i;
        // complex block of 5, multiplier 3
        const V t84 = t83 + t82;
        // doubled bins
        const V x6i = io.im(6);
        const V t85 = two * x6i;
        const V x14i = io.im(14);
        const V t86 = two * x14i;
        // complex block of 5, multiplier 3
        const V t87 = t85 + t86;
        // doubled bins
        const V x10i = io.im(10);
        const V t88 = two * x10i;
        // complex block of 5, multiplier 3
        const V t89 = t83 - t82;
        const V t90 = c[2] * t89;
        const V t91 = c[3] * t89;
        const V t92 = t86 - t85;
        const V t93 = c[3] * t92;
        const V t94 = c[2] * t92;
        const V t95 = t84 - t87;
        const V t96 = c[0] * t84;
        const V t97 = c[1] * t87;
        const V t98 = t96 + t97;
        const V t99 = c[1] * t84;
        const V t100 = t88 - t99;
        const V t101 = c[0] * t87;
        // doubled bins
        const V x3r = io.re(3);
        const V t102 = two * x3r;
        const V x13r = io.re(13);
        const V t103 = two * x13r;
        // complex block of 5, multiplier 3
        const V t104 = t103 + t102;
        const V t105 = t103 - t102;
        // doubled bins
        const V x5r = io.re(5);
        const V t106 = two * x5r;
        const V x11r = io.re(11);
        const V t107 = two * x11r;
        const V x19r = io.re(19);
        const V t108 = two * x19r;
        // complex block of 5, multiplier 3
        const V t109 = t107 + t108;
        const V t110 = t107 - t108;
        const V t111 = t104 + t109;
        const V t112 = t111 + t106;
        const V t113 = c[0] * t104;
        const V t114 = c[1] * t109;
        const V t115 = t113 - t114;
        const V t116 = t115 + t106;
        const V t117 = c[2] * t105;
        const V t118 = c[3] * t110;
        const V t119 = t117 - t118;
        const V t120 = c[1] * t104;
        const V t121 = t106 - t120;
        const V t122 = c[0] * t109;
        const V t123 = t121 + t122;
        const V t124 = c[3] * t105;
        const V t125 = c[2] * t110;
        const V t126 = t124 + t125;
        // doubled bins
        const V x3i = io.im(3);
        const V t127 = two * x3i;
        const V x13i = io.im(13);
        const V t128 = two * x13i;
        // complex block of 5, multiplier 3
        const V t129 = t128 - t127;
        const V t130 = t128 + t127;
        // doubled bins
        const V x5i = io.im(5);
        const V t131 = two * x5i;
        const V x11i = io.im(11);
        const V t132 = two * x11i;
        const V x19i = io.im(19);
        const V t133 = two * x19i;
        // complex block of 5, multiplier 3
        const V t134 = t132 + t133;
        const V t135 = t133 - t132;
        const V t136 = t129 - t134;
        const V t137 = t136 + t131;
        const V t138 = c[0] * t129;
        const V t139 = c[1] * t134;
        const V t140 = t138 + t139;
        const V t141 = t140 + t131;
        const V t142 = c[2] * t130;
        const V t143 = c[3] * t135;
        const V t144 = t142 - t143;
        const V t145 = c[1] * t129;
        const V t146 = t131 - t145;
        const V t147 = c[0] * t134;
        const V t148 = t146 - t147;
        const V t149 = c[3] * t130;
        const V t150 = c[2] * t135;
        const V t151 = t149 + t150;
        // doubled bins
        const V x4r = io.re(4);
        const V t152 = two * x4r;
        // spectrum block of 5, multiplier 3
        const V t153 = c[1] * t152;
        // doubled bins
        const V x12r = io.re(12);
        const V t154 = two * x12r;
        // spectrum block of 5, multiplier 3
        const V t155 = c[0] * t154;
        const V t156 = c[1] * t154;
        const V t157 = t154 + t152;
        const V x20r = io.re(20);
        const V t158 = t157 + x20r;
        const V t159 = t155 - t153;
        const V t160 = t159 + x20r;
        const V t161 = x20r - t156;
        const V t162 = c[0] * t152;
        const V t163 = t161 + t162;
        // doubled bins
        const V x4i = io.im(4);
        const V t164 = two * x4i;
        const V x12i = io.im(12);
        const V t165 = two * x12i;
        // spectrum block of 5, multiplier 3
        const V t166 = c[2] * t165;
        const V t167 = c[3] * t164;
        const V t168 = t166 + t167;
        const V t169 = c[3] * t165;
        const V t170 = c[2] * t164;
        const V t171 = t170 - t169;
        // doubled bins
        const V x8i = io.im(8);
        const V t172 = two * x8i;
        const V x16i = io.im(16);
        const V t173 = two * x16i;
        // spectrum block of 5, multiplier 3
        const V t174 = c[2] * t172;
        const V t175 = c[3] * t173;
        const V t176 = t174 + t175;
        const V t177 = c[3] * t172;
        const V t178 = c[2] * t173;
        const V t179 = t177 - t178;
        const V t180 = t8 - t176;
        // spectrum block of 5, multiplier 3
        const V t181 = t160 + t168;
        // spectrum block of 2
        const V t182 = t180 + t181;
        const V t183 = t180 - t181;
        // spectrum block of 5, multiplier 3
        const V t184 = t8 + t176;
        // spectrum block of 5, multiplier 3
        const V t185 = t160 - t168;
        // spectrum block of 2
        const V t186 = t184 + t185;
        const V t187 = t184 - t185;
        // complex block of 5, multiplier 3
        const V t188 = t141 + t119;
        // complex block of 5, multiplier 3
        const V t189 = t51 + t29;
        // mirrored skew block of 4, multiplier 5
        const V t190 = t189 + t188;
        const V t191 = c[4] * t190;
        const V t192 = t188 - t189;
        // complex block of 5, multiplier 3
        const V t193 = t116 - t144;
        // complex block of 5, multiplier 3
        const V t194 = t26 + t54;
        // mirrored skew block of 4, multiplier 5
        const V t195 = t194 - t193;
        const V t196 = c[4] * t195;
        const V t197 = t194 + t193;
        // complex block of 5, multiplier 3
        const V t198 = t141 - t119;
        // complex block of 5, multiplier 3
        const V t199 = t51 - t29;
        // mirrored skew block of 4, multiplier 5
        const V t200 = t199 + t198;
        const V t201 = c[4] * t200;
        const V t202 = t198 - t199;
        // complex block of 5, multiplier 3
        const V t203 = t116 + t144;
        // complex block of 5, multiplier 3
        const V t204 = t26 - t54;
        // mirrored skew block of 4, multiplier 5
        const V t205 = t204 - t203;
        const V t206 = c[4] * t205;
        const V t207 = t204 + t203;
        // complex block of 5, multiplier 3
        const V t208 = t98 + t88;
        const V t209 = t70 - t73;
        const V t210 = t208 + t209;
        const V t211 = t208 - t209;
        const V t212 = t78 + t68;
        const V t213 = t90 - t93;
        const V t214 = t212 - t213;
        const V t215 = t212 + t213;
        // spectrum block of 2
        const V t216 = t182 + t214;
        // spectrum block of 2
        const V t217 = t216 + t197;
        io.out(16, t217);
        const V t218 = t216 - t197;
        io.out(36, t218);
        // spectrum block of 2
        const V t219 = t182 - t214;
        // spectrum block of 2
        const V t220 = t219 - t192;
        io.out(26, t220);
        const V t221 = t219 + t192;
        io.out(6, t221);
        // spectrum block of 2
        const V t222 = t183 - t210;
        // mirrored skew block of 4, multiplier 5
        const V t223 = t196 + t191;
        // spectrum block of 2
        const V t224 = t222 + t223;
        io.out(21, t224);
        const V t225 = t222 - t223;
        io.out(1, t225);
        // spectrum block of 2
        const V t226 = t183 + t210;
        // mirrored skew block of 4, multiplier 5
        const V t227 = t196 - t191;
        // spectrum block of 2
        const V t228 = t226 - t227;
        io.out(31, t228);
        const V t229 = t226 + t227;
        io.out(11, t229);
        // spectrum block of 2
        const V t230 = t186 + t215;
        // spectrum block of 2
        const V t231 = t230 + t207;
        io.out(24, t231);
        const V t232 = t230 - t207;
        io.out(4, t232);
        // spectrum block of 2
        const V t233 = t186 - t215;
        // spectrum block of 2
        const V t234 = t233 - t202;
        io.out(34, t234);
        const V t235 = t233 + t202;
        io.out(14, t235);
        // spectrum block of 2
        const V t236 = t187 - t211;
        // mirrored skew block of 4, multiplier 5
        const V t237 = t206 + t201;
        // spectrum block of 2
        const V t238 = t236 + t237;
        io.out(29, t238);
        const V t239 = t236 - t237;
        io.out(9, t239);
        // spectrum block of 2
        const V t240 = t187 + t211;
        // mirrored skew block of 4, multiplier 5
        const V t241 = t206 - t201;
        // spectrum block of 2
        const V t242 = t240 - t241;
        io.out(39, t242);
        const V t243 = t240 + t241;
        io.out(19, t243);
        // spectrum block of 5, multiplier 3
        const V t244 = t11 - t179;
        // spectrum block of 5, multiplier 3
        const V t245 = t163 - t171;
        // spectrum block of 2
        const V t246 = t244 + t245;
        const V t247 = t244 - t245;
        // spectrum block of 5, multiplier 3
        const V t248 = t11 + t179;
        // spectrum block of 5, multiplier 3
        const V t249 = t163 + t171;
        // spectrum block of 2
        const V t250 = t248 + t249;
        const V t251 = t248 - t249;
        // complex block of 5, multiplier 3
        const V t252 = t148 + t126;
        // complex block of 5, multiplier 3
        const V t253 = t58 + t36;
        // mirrored skew block of 4, multiplier 5
        const V t254 = t253 + t252;
        const V t255 = c[4] * t254;
        const V t256 = t252 - t253;
        // complex block of 5, multiplier 3
        const V t257 = t123 - t151;
        // complex block of 5, multiplier 3
        const V t258 = t33 - t61;
        // mirrored skew block of 4, multiplier 5
        const V t259 = t258 - t257;
        const V t260 = c[4] * t259;
        const V t261 = t258 + t257;
        // complex block of 5, multiplier 3
        const V t262 = t148 - t126;
        // complex block of 5, multiplier 3
        const V t263 = t58 - t36;
        // mirrored skew block of 4, multiplier 5
        const V t264 = t263 + t262;
        const V t265 = c[4] * t264;
        const V t266 = t262 - t263;
        // complex block of 5, multiplier 3
        const V t267 = t123 + t151;
        // complex block of 5, multiplier 3
        const V t268 = t33 + t61;
        // mirrored skew block of 4, multiplier 5
        const V t269 = t268 - t267;
        const V t270 = c[4] * t269;
        const V t271 = t268 + t267;
        // complex block of 5, multiplier 3
        const V t272 = t100 - t101;
        const V t273 = t71 + t74;
        const V t274 = t272 + t273;
        const V t275 = t272 - t273;
        const V t276 = t80 + t81;
        const V t277 = t91 + t94;
        const V t278 = t276 - t277;
        const V t279 = t276 + t277;
        // spectrum block of 2
        const V t280 = t250 + t279;
        // spectrum block of 2
        const V t281 = t280 + t271;
        io.out(8, t281);
        const V t282 = t280 - t271;
        io.out(28, t282);
        // spectrum block of 2
        const V t283 = t250 - t279;
        // spectrum block of 2
        const V t284 = t283 - t266;
        io.out(18, t284);
        const V t285 = t283 + t266;
        io.out(38, t285);
        // spectrum block of 2
        const V t286 = t251 - t275;
        // mirrored skew block of 4, multiplier 5
        const V t287 = t270 + t265;
        // spectrum block of 2
        const V t288 = t286 + t287;
        io.out(13, t288);
        const V t289 = t286 - t287;
        io.out(33, t289);
        // spectrum block of 2
        const V t290 = t251 + t275;
        // mirrored skew block of 4, multiplier 5
        const V t291 = t270 - t265;
        // spectrum block of 2
        const V t292 = t290 - t291;
        io.out(23, t292);
        const V t293 = t290 + t291;
        io.out(3, t293);
        // spectrum block of 2
        const V t294 = t246 + t278;
        // spectrum block of 2
        const V t295 = t294 + t261;
        io.out(32, t295);
        const V t296 = t294 - t261;
        io.out(12, t296);
        // spectrum block of 2
        const V t297 = t246 - t278;
        // spectrum block of 2
        const V t298 = t297 - t256;
        io.out(2, t298);
        const V t299 = t297 + t256;
        io.out(22, t299);
        // spectrum block of 2
        const V t300 = t247 - t274;
        // mirrored skew block of 4, multiplier 5
        const V t301 = t260 + t255;
        // spectrum block of 2
        const V t302 = t300 + t301;
        io.out(37, t302);
        const V t303 = t300 - t301;
        io.out(17, t303);
        // spectrum block of 2
        const V t304 = t247 + t274;
        // mirrored skew block of 4, multiplier 5
        const V t305 = t260 - t255;
        // spectrum block of 2
        const V t306 = t304 - t305;
        io.out(7, t306);
        const V t307 = t304 + t305;
        io.out(27, t307);
        // complex block of 5, multiplier 3
        const V t308 = t95 + t88;
        // spectrum block of 2
        const V t309 = t6 - t158;
        // spectrum block of 2
        const V t310 = t309 - t308;
        const V t311 = t309 + t308;
        // mirrored skew block of 4, multiplier 5
        const V t312 = t22 - t112;
        const V t313 = c[4] * t312;
        const V t314 = t47 + t137;
        const V t315 = c[4] * t314;
        const V t316 = t313 + t315;
        // spectrum block of 2
        const V t317 = t310 + t316;
        io.out(5, t317);
        const V t318 = t310 - t316;
        io.out(25, t318);
        // mirrored skew block of 4, multiplier 5
        const V t319 = t313 - t315;
        // spectrum block of 2
        const V t320 = t311 - t319;
        io.out(15, t320);
        const V t321 = t311 + t319;
        io.out(35, t321);
        // complex block of 5, multiplier 3
        const V t322 = t75 + t68;
        // spectrum block of 2
        const V t323 = t6 + t158;
        // spectrum block of 2
        const V t324 = t323 + t322;
        const V t325 = t323 - t322;
        // mirrored skew block of 4, multiplier 5
        const V t326 = t22 + t112;
        const V t327 = t137 - t47;
        // spectrum block of 2
        const V t328 = t324 + t326;
        io.out(0, t328);
        const V t329 = t324 - t326;
        io.out(20, t329);
        // spectrum block of 2
        const V t330 = t325 - t327;
        io.out(10, t330);
        const V t331 = t325 + t327;
        io.out(30, t331);
    }
};

}  // namespace zulg
