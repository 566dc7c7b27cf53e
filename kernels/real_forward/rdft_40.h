// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 40.
// Forward DFT of 40 real points, prime-factor 8, 5.
// 117 additions, 103 subtractions, 74 multiplications (114 with `scale`); 11 outputs negated; 5 constants; 42 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<40> {
    static constexpr int steps = 334;  // with `scale`
    static constexpr double inverseRoot = 0.15811388300841897;  // 1/sqrt(40), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 3/5
        0.30901699437494745,  // c[1]: cos 2 pi 9/5
        0.5877852522924731,  // c[2]: -sin 2 pi 3/5
        0.9510565162951535,  // c[3]: -sin 2 pi 9/5
        0.7071067811865476,  // c[4]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x20 = io.in(20);
        const V t0 = x0 + x20;
        const V t1 = x0 - x20;
        // real block of 2
        const V x5 = io.in(5);
        const V x25 = io.in(25);
        const V t2 = x5 + x25;
        const V t3 = x5 - x25;
        // real block of 2
        const V x10 = io.in(10);
        const V x30 = io.in(30);
        const V t4 = x10 + x30;
        const V t5 = x10 - x30;
        // real block of 2
        const V x15 = io.in(15);
        const V x35 = io.in(35);
        const V t6 = x15 + x35;
        const V t7 = x15 - x35;
        // real block of 2
        const V t8 = t0 + t4;
        const V t9 = t0 - t4;
        // real block of 2
        const V t10 = t2 + t6;
        const V t11 = t2 - t6;
        // real block of 2
        const V t12 = t8 + t10;
        const V t13 = t8 - t10;
        // skew block of 4, multiplier 5
        const V t14 = t3 - t7;
        const V t15 = c[4] * t14;
        const V t16 = t3 + t7;
        const V t17 = c[4] * t16;
        const V t18 = t17 - t5;
        const V t19 = t1 + t15;
        const V t20 = t5 + t17;
        const V t21 = t1 - t15;
        // real block of 2
        const V x8 = io.in(8);
        const V x28 = io.in(28);
        const V t22 = x8 + x28;
        const V t23 = x8 - x28;
        // real block of 2
        const V x13 = io.in(13);
        const V x33 = io.in(33);
        const V t24 = x13 + x33;
        const V t25 = x13 - x33;
        // real block of 2
        const V x18 = io.in(18);
        const V x38 = io.in(38);
        const V t26 = x18 + x38;
        const V t27 = x18 - x38;
        // real block of 2
        const V x23 = io.in(23);
        const V x3 = io.in(3);
        const V t28 = x23 + x3;
        const V t29 = x23 - x3;
        // real block of 2
        const V t30 = t22 + t26;
        const V t31 = t22 - t26;
        // real block of 2
        const V t32 = t24 + t28;
        const V t33 = t24 - t28;
        // real block of 2
        const V t34 = t30 + t32;
        const V t35 = t30 - t32;
        // skew block of 4, multiplier 5
        const V t36 = t25 - t29;
        const V t37 = c[4] * t36;
        const V t38 = t25 + t29;
        const V t39 = c[4] * t38;
        const V t40 = t39 - t27;
        const V t41 = t23 + t37;
        const V t42 = t27 + t39;
        const V t43 = t23 - t37;
        // real block of 2
        const V x16 = io.in(16);
        const V x36 = io.in(36);
        const V t44 = x16 + x36;
        const V t45 = x16 - x36;
        // real block of 2
        const V x21 = io.in(21);
        const V x1 = io.in(1);
        const V t46 = x21 + x1;
        const V t47 = x21 - x1;
        // real block of 2
        const V x26 = io.in(26);
        const V x6 = io.in(6);
        const V t48 = x26 + x6;
        const V t49 = x26 - x6;
        // real block of 2
        const V x31 = io.in(31);
        const V x11 = io.in(11);
        const V t50 = x31 + x11;
        const V t51 = x31 - x11;
        // real block of 2
        const V t52 = t44 + t48;
        const V t53 = t44 - t48;
        // real block of 2
        const V t54 = t46 + t50;
        const V t55 = t46 - t50;
        // real block of 2
        const V t56 = t52 + t54;
        const V t57 = t52 - t54;
        // skew block of 4, multiplier 5
        const V t58 = t47 - t51;
        const V t59 = c[4] * t58;
        const V t60 = t47 + t51;
        const V t61 = c[4] * t60;
        const V t62 = t61 - t49;
        const V t63 = t45 + t59;
        const V t64 = t49 + t61;
        const V t65 = t45 - t59;
        // real block of 2
        const V x24 = io.in(24);
        const V x4 = io.in(4);
        const V t66 = x24 + x4;
        const V t67 = x24 - x4;
        // real block of 2
        const V x29 = io.in(29);
        const V x9 = io.in(9);
        const V t68 = x29 + x9;
        const V t69 = x29 - x9;
        // real block of 2
        const V x34 = io.in(34);
        const V x14 = io.in(14);
        const V t70 = x34 + x14;
        const V t71 = x34 - x14;
        // real block of 2
        const V x39 = io.in(39);
        const V x19 = io.in(19);
        const V t72 = x39 + x19;
        const V t73 = x39 - x19;
        // real block of 2
        const V t74 = t66 + t70;
        const V t75 = t66 - t70;
        // real block of 2
        const V t76 = t68 + t72;
        const V t77 = t68 - t72;
        // real block of 2
        const V t78 = t74 + t76;
        const V t79 = t74 - t76;
        // skew block of 4, multiplier 5
        const V t80 = t69 - t73;
        const V t81 = c[4] * t80;
        const V t82 = t69 + t73;
        const V t83 = c[4] * t82;
        const V t84 = t83 - t71;
        const V t85 = t67 + t81;
        const V t86 = t71 + t83;
        const V t87 = t67 - t81;
        // real block of 2
        const V x32 = io.in(32);
        const V x12 = io.in(12);
        const V t88 = x32 + x12;
        const V t89 = x32 - x12;
        // real block of 2
        const V x37 = io.in(37);
        const V x17 = io.in(17);
        const V t90 = x37 + x17;
        const V t91 = x37 - x17;
        // real block of 2
        const V x2 = io.in(2);
        const V x22 = io.in(22);
        const V t92 = x2 + x22;
        const V t93 = x2 - x22;
        // real block of 2
        const V x7 = io.in(7);
        const V x27 = io.in(27);
        const V t94 = x7 + x27;
        const V t95 = x7 - x27;
        // real block of 2
        const V t96 = t88 + t92;
        const V t97 = t88 - t92;
        // real block of 2
        const V t98 = t90 + t94;
        const V t99 = t90 - t94;
        // real block of 2
        const V t100 = t96 + t98;
        const V t101 = t96 - t98;
        // skew block of 4, multiplier 5
        const V t102 = t91 - t95;
        const V t103 = c[4] * t102;
        const V t104 = t91 + t95;
        const V t105 = c[4] * t104;
        const V t106 = t105 - t93;
        const V t107 = t89 + t103;
        const V t108 = t93 + t105;
        const V t109 = t89 - t103;
        // real block of 5, multiplier 3
        const V t110 = t34 + t100;
        const V t111 = t34 - t100;
        const V t112 = t78 + t56;
        const V t113 = t78 - t56;
        const V t114 = t110 + t112;
        const V t115 = t114 + t12;
        io.re(0, t115);
        const V t116 = c[0] * t110;
        const V t117 = t12 - t116;
        const V t118 = c[1] * t112;
        const V t119 = t117 + t118;
        io.re(8, t119);
        const V t120 = c[2] * t111;
        const V t121 = c[3] * t113;
        const V t122 = t120 + t121;
        io.im(8, t122);
        const V t123 = c[1] * t110;
        const V t124 = c[0] * t112;
        const V t125 = t123 - t124;
        const V t126 = t125 + t12;
        io.re(16, t126);
        const V t127 = c[3] * t111;
        const V t128 = c[2] * t113;
        const V t129 = t128 - t127;
        io.im(16, t129);
        // complex block of 5, multiplier 3
        const V t130 = t43 + t109;
        const V t131 = t40 + t106;
        const V t132 = t43 - t109;
        const V t133 = t40 - t106;
        const V t134 = t87 + t65;
        const V t135 = t84 + t62;
        const V t136 = t87 - t65;
        const V t137 = t84 - t62;
        const V t138 = t130 + t134;
        const V t139 = t131 + t135;
        const V t140 = t138 + t21;
        io.re(5, t140);
        const V t141 = t139 + t18;
        io.im(5, t141);
        const V t142 = c[1] * t130;
        const V t143 = c[0] * t134;
        const V t144 = t142 - t143;
        const V t145 = t144 + t21;
        const V t146 = c[1] * t131;
        const V t147 = c[0] * t135;
        const V t148 = t146 - t147;
        const V t149 = t148 + t18;
        const V t150 = c[3] * t132;
        const V t151 = c[2] * t136;
        const V t152 = t150 - t151;
        const V t153 = c[3] * t133;
        const V t154 = c[2] * t137;
        const V t155 = t153 - t154;
        const V t156 = t145 + t155;
        io.re(19, t156);
        const V t157 = t149 - t152;
        io.minusIm(19, t157);
        const V t158 = t145 - t155;
        io.re(11, t158);
        const V t159 = t149 + t152;
        io.minusIm(11, t159);
        const V t160 = c[0] * t130;
        const V t161 = t21 - t160;
        const V t162 = c[1] * t134;
        const V t163 = t161 + t162;
        const V t164 = c[0] * t131;
        const V t165 = t18 - t164;
        const V t166 = c[1] * t135;
        const V t167 = t165 + t166;
        const V t168 = c[2] * t132;
        const V t169 = c[3] * t136;
        const V t170 = t168 + t169;
        const V t171 = c[2] * t133;
        const V t172 = c[3] * t137;
        const V t173 = t171 + t172;
        const V t174 = t163 + t173;
        io.re(3, t174);
        const V t175 = t167 - t170;
        io.minusIm(3, t175);
        const V t176 = t163 - t173;
        io.re(13, t176);
        const V t177 = t167 + t170;
        io.im(13, t177);
        // complex block of 5, multiplier 3
        const V t178 = t31 + t97;
        const V t179 = t33 + t99;
        const V t180 = t31 - t97;
        const V t181 = t99 - t33;
        const V t182 = t75 + t53;
        const V t183 = t77 + t55;
        const V t184 = t75 - t53;
        const V t185 = t55 - t77;
        const V t186 = t178 + t182;
        const V t187 = t179 + t183;
        const V t188 = t186 + t9;
        io.re(10, t188);
        const V t189 = t187 + t11;
        io.minusIm(10, t189);
        const V t190 = c[1] * t178;
        const V t191 = c[0] * t182;
        const V t192 = t190 - t191;
        const V t193 = t192 + t9;
        const V t194 = c[1] * t179;
        const V t195 = t11 + t194;
        const V t196 = c[0] * t183;
        const V t197 = t196 - t195;
        const V t198 = c[3] * t180;
        const V t199 = c[2] * t184;
        const V t200 = t198 - t199;
        const V t201 = c[3] * t181;
        const V t202 = c[2] * t185;
        const V t203 = t201 - t202;
        const V t204 = t193 + t203;
        io.re(14, t204);
        const V t205 = t197 - t200;
        io.minusIm(14, t205);
        const V t206 = t193 - t203;
        io.re(6, t206);
        const V t207 = t197 + t200;
        io.minusIm(6, t207);
        const V t208 = c[0] * t178;
        const V t209 = t9 - t208;
        const V t210 = c[1] * t182;
        const V t211 = t209 + t210;
        const V t212 = c[0] * t179;
        const V t213 = c[1] * t183;
        const V t214 = t212 - t213;
        const V t215 = t214 - t11;
        const V t216 = c[2] * t180;
        const V t217 = c[3] * t184;
        const V t218 = t216 + t217;
        const V t219 = c[2] * t181;
        const V t220 = c[3] * t185;
        const V t221 = t219 + t220;
        const V t222 = t211 + t221;
        io.re(2, t222);
        const V t223 = t215 - t218;
        io.im(2, t223);
        const V t224 = t211 - t221;
        io.re(18, t224);
        const V t225 = t215 + t218;
        io.im(18, t225);
        // complex block of 5, multiplier 3
        const V t226 = t41 + t107;
        const V t227 = t42 + t108;
        const V t228 = t41 - t107;
        const V t229 = t42 - t108;
        const V t230 = t85 + t63;
        const V t231 = t86 + t64;
        const V t232 = t85 - t63;
        const V t233 = t86 - t64;
        const V t234 = t226 + t230;
        const V t235 = t227 + t231;
        const V t236 = t234 + t19;
        io.re(15, t236);
        const V t237 = t235 + t20;
        io.im(15, t237);
        const V t238 = c[1] * t226;
        const V t239 = c[0] * t230;
        const V t240 = t238 - t239;
        const V t241 = t240 + t19;
        const V t242 = c[1] * t227;
        const V t243 = c[0] * t231;
        const V t244 = t242 - t243;
        const V t245 = t244 + t20;
        const V t246 = c[3] * t228;
        const V t247 = c[2] * t232;
        const V t248 = t246 - t247;
        const V t249 = c[3] * t229;
        const V t250 = c[2] * t233;
        const V t251 = t249 - t250;
        const V t252 = t241 + t251;
        io.re(9, t252);
        const V t253 = t245 - t248;
        io.minusIm(9, t253);
        const V t254 = t241 - t251;
        io.re(1, t254);
        const V t255 = t245 + t248;
        io.minusIm(1, t255);
        const V t256 = c[0] * t226;
        const V t257 = t19 - t256;
        const V t258 = c[1] * t230;
        const V t259 = t257 + t258;
        const V t260 = c[0] * t227;
        const V t261 = t20 - t260;
        const V t262 = c[1] * t231;
        const V t263 = t261 + t262;
        const V t264 = c[2] * t228;
        const V t265 = c[3] * t232;
        const V t266 = t264 + t265;
        const V t267 = c[2] * t229;
        const V t268 = c[3] * t233;
        const V t269 = t267 + t268;
        const V t270 = t259 + t269;
        io.re(7, t270);
        const V t271 = t263 - t266;
        io.im(7, t271);
        const V t272 = t259 - t269;
        io.re(17, t272);
        const V t273 = t263 + t266;
        io.minusIm(17, t273);
        // real block of 5, multiplier 3
        const V t274 = t35 + t101;
        const V t275 = t35 - t101;
        const V t276 = t79 + t57;
        const V t277 = t79 - t57;
        const V t278 = t274 + t276;
        const V t279 = t278 + t13;
        io.re(20, t279);
        const V t280 = c[0] * t274;
        const V t281 = t13 - t280;
        const V t282 = c[1] * t276;
        const V t283 = t281 + t282;
        io.re(12, t283);
        const V t284 = c[2] * t275;
        const V t285 = c[3] * t277;
        const V t286 = t284 + t285;
        io.minusIm(12, t286);
        const V t287 = c[1] * t274;
        const V t288 = c[0] * t276;
        const V t289 = t287 - t288;
        const V t290 = t289 + t13;
        io.re(4, t290);
        const V t291 = c[3] * t275;
        const V t292 = c[2] * t277;
        const V t293 = t292 - t291;
        io.minusIm(4, t293);
    }
};

}  // namespace zulg
