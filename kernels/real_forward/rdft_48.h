// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 48.
// Forward DFT of 48 real points, prime-factor 16, 3.
// 133 additions, 133 subtractions, 68 multiplications (116 with `scale`); 14 outputs negated; 5 constants; 50 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<48> {
    static constexpr int steps = 382;  // with `scale`
    static constexpr double inverseRoot = 0.14433756729740646;  // 1/sqrt(48), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.9238795325112867,  // c[2]: sin 2 pi 3/16
        0.3826834323650898,  // c[3]: cos 2 pi 3/16
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x24 = io.in(24);
        const V t0 = x0 + x24;
        const V t1 = x0 - x24;
        // real block of 2
        const V x12 = io.in(12);
        const V x36 = io.in(36);
        const V t2 = x12 + x36;
        const V t3 = x12 - x36;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x3 = io.in(3);
        const V x27 = io.in(27);
        const V t6 = x3 + x27;
        const V t7 = x3 - x27;
        // real block of 2
        const V x15 = io.in(15);
        const V x39 = io.in(39);
        const V t8 = x15 + x39;
        const V t9 = x15 - x39;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x6 = io.in(6);
        const V x30 = io.in(30);
        const V t12 = x6 + x30;
        const V t13 = x6 - x30;
        // real block of 2
        const V x18 = io.in(18);
        const V x42 = io.in(42);
        const V t14 = x18 + x42;
        const V t15 = x18 - x42;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x9 = io.in(9);
        const V x33 = io.in(33);
        const V t18 = x9 + x33;
        const V t19 = x9 - x33;
        // real block of 2
        const V x21 = io.in(21);
        const V x45 = io.in(45);
        const V t20 = x21 + x45;
        const V t21 = x21 - x45;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V t24 = t4 + t16;
        const V t25 = t4 - t16;
        // real block of 2
        const V t26 = t10 + t22;
        const V t27 = t10 - t22;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 16, multiplier 3
        const V t30 = c[2] * t9;
        const V t31 = c[3] * t7;
        const V t32 = t31 + t30;
        const V t33 = c[2] * t7;
        const V t34 = c[3] * t9;
        const V t35 = t34 - t33;
        const V t36 = t13 + t15;
        const V t37 = t15 - t13;
        const V t38 = c[4] * t36;
        const V t39 = c[4] * t37;
        const V t40 = c[3] * t21;
        const V t41 = c[2] * t19;
        const V t42 = t41 + t40;
        const V t43 = c[3] * t19;
        const V t44 = c[2] * t21;
        const V t45 = t43 - t44;
        // complex block of 2
        const V t46 = t1 + t39;
        const V t47 = t3 - t38;
        const V t48 = t1 - t39;
        const V t49 = t3 + t38;
        // complex block of 2
        const V t50 = t32 - t42;
        const V t51 = t35 + t45;
        const V t52 = t32 + t42;
        const V t53 = t35 - t45;
        // complex block of 2
        const V t54 = t46 + t50;
        const V t55 = t47 + t51;
        const V t56 = t46 - t50;
        const V t57 = t47 - t51;
        // complex block of 2
        const V t58 = t48 - t53;
        const V t59 = t49 + t52;
        const V t60 = t48 + t53;
        const V t61 = t49 - t52;
        // skew block of 4, multiplier 3
        const V t62 = t11 - t23;
        const V t63 = c[4] * t62;
        const V t64 = t11 + t23;
        const V t65 = c[4] * t64;
        const V t66 = t17 - t65;
        const V t67 = t5 + t63;
        const V t68 = t17 + t65;
        const V t69 = t5 - t63;
        // real block of 2
        const V x16 = io.in(16);
        const V x40 = io.in(40);
        const V t70 = x16 + x40;
        const V t71 = x16 - x40;
        // real block of 2
        const V x28 = io.in(28);
        const V x4 = io.in(4);
        const V t72 = x28 + x4;
        const V t73 = x28 - x4;
        // real block of 2
        const V t74 = t70 + t72;
        const V t75 = t70 - t72;
        // real block of 2
        const V x19 = io.in(19);
        const V x43 = io.in(43);
        const V t76 = x19 + x43;
        const V t77 = x19 - x43;
        // real block of 2
        const V x31 = io.in(31);
        const V x7 = io.in(7);
        const V t78 = x31 + x7;
        const V t79 = x31 - x7;
        // real block of 2
        const V t80 = t76 + t78;
        const V t81 = t76 - t78;
        // real block of 2
        const V x22 = io.in(22);
        const V x46 = io.in(46);
        const V t82 = x22 + x46;
        const V t83 = x22 - x46;
        // real block of 2
        const V x34 = io.in(34);
        const V x10 = io.in(10);
        const V t84 = x34 + x10;
        const V t85 = x34 - x10;
        // real block of 2
        const V t86 = t82 + t84;
        const V t87 = t82 - t84;
        // real block of 2
        const V x25 = io.in(25);
        const V x1 = io.in(1);
        const V t88 = x25 + x1;
        const V t89 = x25 - x1;
        // real block of 2
        const V x37 = io.in(37);
        const V x13 = io.in(13);
        const V t90 = x37 + x13;
        const V t91 = x37 - x13;
        // real block of 2
        const V t92 = t88 + t90;
        const V t93 = t88 - t90;
        // real block of 2
        const V t94 = t74 + t86;
        const V t95 = t74 - t86;
        // real block of 2
        const V t96 = t80 + t92;
        const V t97 = t80 - t92;
        // real block of 2
        const V t98 = t94 + t96;
        const V t99 = t94 - t96;
        // real block of 16, multiplier 3
        const V t100 = c[2] * t79;
        const V t101 = c[3] * t77;
        const V t102 = t101 + t100;
        const V t103 = c[2] * t77;
        const V t104 = c[3] * t79;
        const V t105 = t104 - t103;
        const V t106 = t83 + t85;
        const V t107 = t85 - t83;
        const V t108 = c[4] * t106;
        const V t109 = c[4] * t107;
        const V t110 = c[3] * t91;
        const V t111 = c[2] * t89;
        const V t112 = t111 + t110;
        const V t113 = c[3] * t89;
        const V t114 = c[2] * t91;
        const V t115 = t113 - t114;
        // complex block of 2
        const V t116 = t71 + t109;
        const V t117 = t73 - t108;
        const V t118 = t71 - t109;
        const V t119 = t73 + t108;
        // complex block of 2
        const V t120 = t102 - t112;
        const V t121 = t105 + t115;
        const V t122 = t102 + t112;
        const V t123 = t105 - t115;
        // complex block of 2
        const V t124 = t116 + t120;
        const V t125 = t117 + t121;
        const V t126 = t116 - t120;
        const V t127 = t117 - t121;
        // complex block of 2
        const V t128 = t118 - t123;
        const V t129 = t119 + t122;
        const V t130 = t118 + t123;
        const V t131 = t119 - t122;
        // skew block of 4, multiplier 3
        const V t132 = t81 - t93;
        const V t133 = c[4] * t132;
        const V t134 = t81 + t93;
        const V t135 = c[4] * t134;
        const V t136 = t87 - t135;
        const V t137 = t75 + t133;
        const V t138 = t87 + t135;
        const V t139 = t75 - t133;
        // real block of 2
        const V x32 = io.in(32);
        const V x8 = io.in(8);
        const V t140 = x32 + x8;
        const V t141 = x32 - x8;
        // real block of 2
        const V x44 = io.in(44);
        const V x20 = io.in(20);
        const V t142 = x44 + x20;
        const V t143 = x44 - x20;
        // real block of 2
        const V t144 = t140 + t142;
        const V t145 = t140 - t142;
        // real block of 2
        const V x35 = io.in(35);
        const V x11 = io.in(11);
        const V t146 = x35 + x11;
        const V t147 = x35 - x11;
        // real block of 2
        const V x47 = io.in(47);
        const V x23 = io.in(23);
        const V t148 = x47 + x23;
        const V t149 = x47 - x23;
        // real block of 2
        const V t150 = t146 + t148;
        const V t151 = t146 - t148;
        // real block of 2
        const V x38 = io.in(38);
        const V x14 = io.in(14);
        const V t152 = x38 + x14;
        const V t153 = x38 - x14;
        // real block of 2
        const V x2 = io.in(2);
        const V x26 = io.in(26);
        const V t154 = x2 + x26;
        const V t155 = x2 - x26;
        // real block of 2
        const V t156 = t152 + t154;
        const V t157 = t152 - t154;
        // real block of 2
        const V x41 = io.in(41);
        const V x17 = io.in(17);
        const V t158 = x41 + x17;
        const V t159 = x41 - x17;
        // real block of 2
        const V x5 = io.in(5);
        const V x29 = io.in(29);
        const V t160 = x5 + x29;
        const V t161 = x5 - x29;
        // real block of 2
        const V t162 = t158 + t160;
        const V t163 = t158 - t160;
        // real block of 2
        const V t164 = t144 + t156;
        const V t165 = t144 - t156;
        // real block of 2
        const V t166 = t150 + t162;
        const V t167 = t150 - t162;
        // real block of 2
        const V t168 = t164 + t166;
        const V t169 = t164 - t166;
        // real block of 16, multiplier 3
        const V t170 = c[2] * t149;
        const V t171 = c[3] * t147;
        const V t172 = t171 + t170;
        const V t173 = c[2] * t147;
        const V t174 = c[3] * t149;
        const V t175 = t174 - t173;
        const V t176 = t153 + t155;
        const V t177 = t155 - t153;
        const V t178 = c[4] * t176;
        const V t179 = c[4] * t177;
        const V t180 = c[3] * t161;
        const V t181 = c[2] * t159;
        const V t182 = t181 + t180;
        const V t183 = c[3] * t159;
        const V t184 = c[2] * t161;
        const V t185 = t183 - t184;
        // complex block of 2
        const V t186 = t141 + t179;
        const V t187 = t143 - t178;
        const V t188 = t141 - t179;
        const V t189 = t143 + t178;
        // complex block of 2
        const V t190 = t172 - t182;
        const V t191 = t175 + t185;
        const V t192 = t172 + t182;
        const V t193 = t175 - t185;
        // complex block of 2
        const V t194 = t186 + t190;
        const V t195 = t187 + t191;
        const V t196 = t186 - t190;
        const V t197 = t187 - t191;
        // complex block of 2
        const V t198 = t188 - t193;
        const V t199 = t189 + t192;
        const V t200 = t188 + t193;
        const V t201 = t189 - t192;
        // skew block of 4, multiplier 3
        const V t202 = t151 - t163;
        const V t203 = c[4] * t202;
        const V t204 = t151 + t163;
        const V t205 = c[4] * t204;
        const V t206 = t157 - t205;
        const V t207 = t145 + t203;
        const V t208 = t157 + t205;
        const V t209 = t145 - t203;
        // real block of 3
        const V t210 = t98 + t168;
        const V t211 = t98 - t168;
        const V t212 = t210 + t28;
        io.re(0, t212);
        const V t213 = c[0] * t210;
        const V t214 = t28 - t213;
        io.re(16, t214);
        const V t215 = c[1] * t211;
        io.minusIm(16, t215);
        // complex block of 3
        const V t216 = t124 + t194;
        const V t217 = t125 + t195;
        const V t218 = t124 - t194;
        const V t219 = t125 - t195;
        const V t220 = t216 + t54;
        io.re(3, t220);
        const V t221 = t217 + t55;
        io.im(3, t221);
        const V t222 = c[0] * t216;
        const V t223 = t54 - t222;
        const V t224 = c[0] * t217;
        const V t225 = t55 - t224;
        const V t226 = c[1] * t218;
        const V t227 = c[1] * t219;
        const V t228 = t223 + t227;
        io.re(19, t228);
        const V t229 = t225 - t226;
        io.im(19, t229);
        const V t230 = t223 - t227;
        io.re(13, t230);
        const V t231 = t225 + t226;
        io.minusIm(13, t231);
        // complex block of 3
        const V t232 = t139 + t209;
        const V t233 = t136 + t206;
        const V t234 = t139 - t209;
        const V t235 = t136 - t206;
        const V t236 = t232 + t69;
        io.re(6, t236);
        const V t237 = t233 + t66;
        io.im(6, t237);
        const V t238 = c[0] * t232;
        const V t239 = t69 - t238;
        const V t240 = c[0] * t233;
        const V t241 = t66 - t240;
        const V t242 = c[1] * t234;
        const V t243 = c[1] * t235;
        const V t244 = t239 + t243;
        io.re(22, t244);
        const V t245 = t241 - t242;
        io.im(22, t245);
        const V t246 = t239 - t243;
        io.re(10, t246);
        const V t247 = t241 + t242;
        io.minusIm(10, t247);
        // complex block of 3
        const V t248 = t130 + t200;
        const V t249 = t131 + t201;
        const V t250 = t130 - t200;
        const V t251 = t201 - t131;
        const V t252 = t248 + t60;
        io.re(9, t252);
        const V t253 = t249 + t61;
        io.minusIm(9, t253);
        const V t254 = c[0] * t248;
        const V t255 = t60 - t254;
        const V t256 = c[0] * t249;
        const V t257 = t256 - t61;
        const V t258 = c[1] * t250;
        const V t259 = c[1] * t251;
        const V t260 = t255 + t259;
        io.re(23, t260);
        const V t261 = t257 - t258;
        io.minusIm(23, t261);
        const V t262 = t255 - t259;
        io.re(7, t262);
        const V t263 = t257 + t258;
        io.minusIm(7, t263);
        // complex block of 3
        const V t264 = t95 + t165;
        const V t265 = t97 + t167;
        const V t266 = t95 - t165;
        const V t267 = t97 - t167;
        const V t268 = t264 + t25;
        io.re(12, t268);
        const V t269 = t265 + t27;
        io.im(12, t269);
        const V t270 = c[0] * t264;
        const V t271 = t25 - t270;
        const V t272 = c[0] * t265;
        const V t273 = t27 - t272;
        const V t274 = c[1] * t266;
        const V t275 = c[1] * t267;
        const V t276 = t271 + t275;
        io.re(20, t276);
        const V t277 = t273 - t274;
        io.minusIm(20, t277);
        const V t278 = t271 - t275;
        io.re(4, t278);
        const V t279 = t273 + t274;
        io.minusIm(4, t279);
        // complex block of 3
        const V t280 = t128 + t198;
        const V t281 = t129 + t199;
        const V t282 = t128 - t198;
        const V t283 = t129 - t199;
        const V t284 = t280 + t58;
        io.re(15, t284);
        const V t285 = t281 + t59;
        io.im(15, t285);
        const V t286 = c[0] * t280;
        const V t287 = t58 - t286;
        const V t288 = c[0] * t281;
        const V t289 = t59 - t288;
        const V t290 = c[1] * t282;
        const V t291 = c[1] * t283;
        const V t292 = t287 + t291;
        io.re(17, t292);
        const V t293 = t289 - t290;
        io.minusIm(17, t293);
        const V t294 = t287 - t291;
        io.re(1, t294);
        const V t295 = t289 + t290;
        io.minusIm(1, t295);
        // complex block of 3
        const V t296 = t137 + t207;
        const V t297 = t138 + t208;
        const V t298 = t137 - t207;
        const V t299 = t208 - t138;
        const V t300 = t296 + t67;
        io.re(18, t300);
        const V t301 = t297 + t68;
        io.minusIm(18, t301);
        const V t302 = c[0] * t296;
        const V t303 = t67 - t302;
        const V t304 = c[0] * t297;
        const V t305 = t304 - t68;
        const V t306 = c[1] * t298;
        const V t307 = c[1] * t299;
        const V t308 = t303 + t307;
        io.re(14, t308);
        const V t309 = t305 - t306;
        io.minusIm(14, t309);
        const V t310 = t303 - t307;
        io.re(2, t310);
        const V t311 = t305 + t306;
        io.im(2, t311);
        // complex block of 3
        const V t312 = t126 + t196;
        const V t313 = t127 + t197;
        const V t314 = t126 - t196;
        const V t315 = t197 - t127;
        const V t316 = t312 + t56;
        io.re(21, t316);
        const V t317 = t313 + t57;
        io.minusIm(21, t317);
        const V t318 = c[0] * t312;
        const V t319 = t56 - t318;
        const V t320 = c[0] * t313;
        const V t321 = t320 - t57;
        const V t322 = c[1] * t314;
        const V t323 = c[1] * t315;
        const V t324 = t319 + t323;
        io.re(11, t324);
        const V t325 = t321 - t322;
        io.minusIm(11, t325);
        const V t326 = t319 - t323;
        io.re(5, t326);
        const V t327 = t321 + t322;
        io.im(5, t327);
        // real block of 3
        const V t328 = t99 + t169;
        const V t329 = t99 - t169;
        const V t330 = t328 + t29;
        io.re(24, t330);
        const V t331 = c[0] * t328;
        const V t332 = t29 - t331;
        io.re(8, t332);
        const V t333 = c[1] * t329;
        io.im(8, t333);
    }
};

}  // namespace zulg
