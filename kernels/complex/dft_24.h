// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 24.
// Complex DFT of 24 points, prime-factor, order 8, 3.
// 126 additions, 126 subtractions, 44 multiplications (92 with `scale`); 3 constants; 50 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<24> {
    static constexpr int steps = 344;  // with `scale`
    static constexpr double inverseRoot = 0.20412414523193154;  // 1/sqrt(24), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.7071067811865476,  // c[2]: cos 2 pi 1/8
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x12r = io.re(12);
        const V t0 = x0r + x12r;
        const V x0i = io.im(0);
        const V x12i = io.im(12);
        const V t1 = x0i + x12i;
        const V t2 = x0r - x12r;
        const V t3 = x0i - x12i;
        // complex block of 2
        const V x3r = io.re(3);
        const V x15r = io.re(15);
        const V t4 = x3r + x15r;
        const V x3i = io.im(3);
        const V x15i = io.im(15);
        const V t5 = x3i + x15i;
        const V t6 = x3r - x15r;
        const V t7 = x3i - x15i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x18r = io.re(18);
        const V t8 = x6r + x18r;
        const V x6i = io.im(6);
        const V x18i = io.im(18);
        const V t9 = x6i + x18i;
        const V t10 = x6r - x18r;
        const V t11 = x6i - x18i;
        // complex block of 2
        const V x9r = io.re(9);
        const V x21r = io.re(21);
        const V t12 = x9r + x21r;
        const V x9i = io.im(9);
        const V x21i = io.im(21);
        const V t13 = x9i + x21i;
        const V t14 = x9r - x21r;
        const V t15 = x9i - x21i;
        // complex block of 2
        const V t16 = t0 + t8;
        const V t17 = t1 + t9;
        const V t18 = t0 - t8;
        const V t19 = t1 - t9;
        // complex block of 2
        const V t20 = t4 + t12;
        const V t21 = t5 + t13;
        const V t22 = t4 - t12;
        const V t23 = t5 - t13;
        // complex block of 2
        const V t24 = t16 + t20;
        const V t25 = t17 + t21;
        const V t26 = t16 - t20;
        const V t27 = t17 - t21;
        // complex block of 2
        const V t28 = t18 - t23;
        const V t29 = t19 + t22;
        const V t30 = t18 + t23;
        const V t31 = t19 - t22;
        // complex block of 8, multiplier 3
        const V t32 = c[2] * t6;
        const V t33 = c[2] * t7;
        const V t34 = t32 + t33;
        const V t35 = t33 - t32;
        const V t36 = c[2] * t14;
        const V t37 = c[2] * t15;
        const V t38 = t36 + t37;
        const V t39 = t37 - t36;
        // complex block of 2
        const V t40 = t2 - t11;
        const V t41 = t3 + t10;
        const V t42 = t2 + t11;
        const V t43 = t3 - t10;
        // complex block of 2
        const V t44 = t35 + t38;
        const V t45 = t39 - t34;
        const V t46 = t35 - t38;
        const V t47 = t34 + t39;
        // complex block of 2
        const V t48 = t40 + t44;
        const V t49 = t41 + t45;
        const V t50 = t40 - t44;
        const V t51 = t41 - t45;
        // complex block of 2
        const V t52 = t42 + t47;
        const V t53 = t43 + t46;
        const V t54 = t42 - t47;
        const V t55 = t43 - t46;
        // complex block of 2
        const V x8r = io.re(8);
        const V x20r = io.re(20);
        const V t56 = x8r + x20r;
        const V x8i = io.im(8);
        const V x20i = io.im(20);
        const V t57 = x8i + x20i;
        const V t58 = x8r - x20r;
        const V t59 = x8i - x20i;
        // complex block of 2
        const V x11r = io.re(11);
        const V x23r = io.re(23);
        const V t60 = x11r + x23r;
        const V x11i = io.im(11);
        const V x23i = io.im(23);
        const V t61 = x11i + x23i;
        const V t62 = x11r - x23r;
        const V t63 = x11i - x23i;
        // complex block of 2
        const V x14r = io.re(14);
        const V x2r = io.re(2);
        const V t64 = x14r + x2r;
        const V x14i = io.im(14);
        const V x2i = io.im(2);
        const V t65 = x14i + x2i;
        const V t66 = x14r - x2r;
        const V t67 = x14i - x2i;
        // complex block of 2
        const V x17r = io.re(17);
        const V x5r = io.re(5);
        const V t68 = x17r + x5r;
        const V x17i = io.im(17);
        const V x5i = io.im(5);
        const V t69 = x17i + x5i;
        const V t70 = x17r - x5r;
        const V t71 = x17i - x5i;
        // complex block of 2
        const V t72 = t56 + t64;
        const V t73 = t57 + t65;
        const V t74 = t56 - t64;
        const V t75 = t57 - t65;
        // complex block of 2
        const V t76 = t60 + t68;
        const V t77 = t61 + t69;
        const V t78 = t60 - t68;
        const V t79 = t61 - t69;
        // complex block of 2
        const V t80 = t72 + t76;
        const V t81 = t73 + t77;
        const V t82 = t72 - t76;
        const V t83 = t73 - t77;
        // complex block of 2
        const V t84 = t74 - t79;
        const V t85 = t75 + t78;
        const V t86 = t74 + t79;
        const V t87 = t75 - t78;
        // complex block of 8, multiplier 3
        const V t88 = c[2] * t62;
        const V t89 = c[2] * t63;
        const V t90 = t88 + t89;
        const V t91 = t89 - t88;
        const V t92 = c[2] * t70;
        const V t93 = c[2] * t71;
        const V t94 = t92 + t93;
        const V t95 = t93 - t92;
        // complex block of 2
        const V t96 = t58 - t67;
        const V t97 = t59 + t66;
        const V t98 = t58 + t67;
        const V t99 = t59 - t66;
        // complex block of 2
        const V t100 = t91 + t94;
        const V t101 = t95 - t90;
        const V t102 = t91 - t94;
        const V t103 = t90 + t95;
        // complex block of 2
        const V t104 = t96 + t100;
        const V t105 = t97 + t101;
        const V t106 = t96 - t100;
        const V t107 = t97 - t101;
        // complex block of 2
        const V t108 = t98 + t103;
        const V t109 = t99 + t102;
        const V t110 = t98 - t103;
        const V t111 = t99 - t102;
        // complex block of 2
        const V x16r = io.re(16);
        const V x4r = io.re(4);
        const V t112 = x16r + x4r;
        const V x16i = io.im(16);
        const V x4i = io.im(4);
        const V t113 = x16i + x4i;
        const V t114 = x16r - x4r;
        const V t115 = x16i - x4i;
        // complex block of 2
        const V x19r = io.re(19);
        const V x7r = io.re(7);
        const V t116 = x19r + x7r;
        const V x19i = io.im(19);
        const V x7i = io.im(7);
        const V t117 = x19i + x7i;
        const V t118 = x19r - x7r;
        const V t119 = x19i - x7i;
        // complex block of 2
        const V x22r = io.re(22);
        const V x10r = io.re(10);
        const V t120 = x22r + x10r;
        const V x22i = io.im(22);
        const V x10i = io.im(10);
        const V t121 = x22i + x10i;
        const V t122 = x22r - x10r;
        const V t123 = x22i - x10i;
        // complex block of 2
        const V x1r = io.re(1);
        const V x13r = io.re(13);
        const V t124 = x1r + x13r;
        const V x1i = io.im(1);
        const V x13i = io.im(13);
        const V t125 = x1i + x13i;
        const V t126 = x1r - x13r;
        const V t127 = x1i - x13i;
        // complex block of 2
        const V t128 = t112 + t120;
        const V t129 = t113 + t121;
        const V t130 = t112 - t120;
        const V t131 = t113 - t121;
        // complex block of 2
        const V t132 = t116 + t124;
        const V t133 = t117 + t125;
        const V t134 = t116 - t124;
        const V t135 = t117 - t125;
        // complex block of 2
        const V t136 = t128 + t132;
        const V t137 = t129 + t133;
        const V t138 = t128 - t132;
        const V t139 = t129 - t133;
        // complex block of 2
        const V t140 = t130 - t135;
        const V t141 = t131 + t134;
        const V t142 = t130 + t135;
        const V t143 = t131 - t134;
        // complex block of 8, multiplier 3
        const V t144 = c[2] * t118;
        const V t145 = c[2] * t119;
        const V t146 = t144 + t145;
        const V t147 = t145 - t144;
        const V t148 = c[2] * t126;
        const V t149 = c[2] * t127;
        const V t150 = t148 + t149;
        const V t151 = t149 - t148;
        // complex block of 2
        const V t152 = t114 - t123;
        const V t153 = t115 + t122;
        const V t154 = t114 + t123;
        const V t155 = t115 - t122;
        // complex block of 2
        const V t156 = t147 + t150;
        const V t157 = t151 - t146;
        const V t158 = t147 - t150;
        const V t159 = t146 + t151;
        // complex block of 2
        const V t160 = t152 + t156;
        const V t161 = t153 + t157;
        const V t162 = t152 - t156;
        const V t163 = t153 - t157;
        // complex block of 2
        const V t164 = t154 + t159;
        const V t165 = t155 + t158;
        const V t166 = t154 - t159;
        const V t167 = t155 - t158;
        // complex block of 3, multiplier 2
        const V t168 = t80 + t136;
        const V t169 = t81 + t137;
        const V t170 = t80 - t136;
        const V t171 = t81 - t137;
        const V t172 = t168 + t24;
        io.re(0, t172);
        const V t173 = t169 + t25;
        io.im(0, t173);
        const V t174 = c[0] * t168;
        const V t175 = t24 - t174;
        const V t176 = c[0] * t169;
        const V t177 = t25 - t176;
        const V t178 = c[1] * t170;
        const V t179 = c[1] * t171;
        const V t180 = t175 + t179;
        io.re(16, t180);
        const V t181 = t177 - t178;
        io.im(16, t181);
        const V t182 = t175 - t179;
        io.re(8, t182);
        const V t183 = t177 + t178;
        io.im(8, t183);
        // complex block of 3, multiplier 2
        const V t184 = t104 + t160;
        const V t185 = t105 + t161;
        const V t186 = t104 - t160;
        const V t187 = t105 - t161;
        const V t188 = t184 + t48;
        io.re(3, t188);
        const V t189 = t185 + t49;
        io.im(3, t189);
        const V t190 = c[0] * t184;
        const V t191 = t48 - t190;
        const V t192 = c[0] * t185;
        const V t193 = t49 - t192;
        const V t194 = c[1] * t186;
        const V t195 = c[1] * t187;
        const V t196 = t191 + t195;
        io.re(19, t196);
        const V t197 = t193 - t194;
        io.im(19, t197);
        const V t198 = t191 - t195;
        io.re(11, t198);
        const V t199 = t193 + t194;
        io.im(11, t199);
        // complex block of 3, multiplier 2
        const V t200 = t84 + t140;
        const V t201 = t85 + t141;
        const V t202 = t84 - t140;
        const V t203 = t85 - t141;
        const V t204 = t200 + t28;
        io.re(6, t204);
        const V t205 = t201 + t29;
        io.im(6, t205);
        const V t206 = c[0] * t200;
        const V t207 = t28 - t206;
        const V t208 = c[0] * t201;
        const V t209 = t29 - t208;
        const V t210 = c[1] * t202;
        const V t211 = c[1] * t203;
        const V t212 = t207 + t211;
        io.re(22, t212);
        const V t213 = t209 - t210;
        io.im(22, t213);
        const V t214 = t207 - t211;
        io.re(14, t214);
        const V t215 = t209 + t210;
        io.im(14, t215);
        // complex block of 3, multiplier 2
        const V t216 = t108 + t164;
        const V t217 = t109 + t165;
        const V t218 = t108 - t164;
        const V t219 = t109 - t165;
        const V t220 = t216 + t52;
        io.re(9, t220);
        const V t221 = t217 + t53;
        io.im(9, t221);
        const V t222 = c[0] * t216;
        const V t223 = t52 - t222;
        const V t224 = c[0] * t217;
        const V t225 = t53 - t224;
        const V t226 = c[1] * t218;
        const V t227 = c[1] * t219;
        const V t228 = t223 + t227;
        io.re(1, t228);
        const V t229 = t225 - t226;
        io.im(1, t229);
        const V t230 = t223 - t227;
        io.re(17, t230);
        const V t231 = t225 + t226;
        io.im(17, t231);
        // complex block of 3, multiplier 2
        const V t232 = t82 + t138;
        const V t233 = t83 + t139;
        const V t234 = t82 - t138;
        const V t235 = t83 - t139;
        const V t236 = t232 + t26;
        io.re(12, t236);
        const V t237 = t233 + t27;
        io.im(12, t237);
        const V t238 = c[0] * t232;
        const V t239 = t26 - t238;
        const V t240 = c[0] * t233;
        const V t241 = t27 - t240;
        const V t242 = c[1] * t234;
        const V t243 = c[1] * t235;
        const V t244 = t239 + t243;
        io.re(4, t244);
        const V t245 = t241 - t242;
        io.im(4, t245);
        const V t246 = t239 - t243;
        io.re(20, t246);
        const V t247 = t241 + t242;
        io.im(20, t247);
        // complex block of 3, multiplier 2
        const V t248 = t106 + t162;
        const V t249 = t107 + t163;
        const V t250 = t106 - t162;
        const V t251 = t107 - t163;
        const V t252 = t248 + t50;
        io.re(15, t252);
        const V t253 = t249 + t51;
        io.im(15, t253);
        const V t254 = c[0] * t248;
        const V t255 = t50 - t254;
        const V t256 = c[0] * t249;
        const V t257 = t51 - t256;
        const V t258 = c[1] * t250;
        const V t259 = c[1] * t251;
        const V t260 = t255 + t259;
        io.re(7, t260);
        const V t261 = t257 - t258;
        io.im(7, t261);
        const V t262 = t255 - t259;
        io.re(23, t262);
        const V t263 = t257 + t258;
        io.im(23, t263);
        // complex block of 3, multiplier 2
        const V t264 = t86 + t142;
        const V t265 = t87 + t143;
        const V t266 = t86 - t142;
        const V t267 = t87 - t143;
        const V t268 = t264 + t30;
        io.re(18, t268);
        const V t269 = t265 + t31;
        io.im(18, t269);
        const V t270 = c[0] * t264;
        const V t271 = t30 - t270;
        const V t272 = c[0] * t265;
        const V t273 = t31 - t272;
        const V t274 = c[1] * t266;
        const V t275 = c[1] * t267;
        const V t276 = t271 + t275;
        io.re(10, t276);
        const V t277 = t273 - t274;
        io.im(10, t277);
        const V t278 = t271 - t275;
        io.re(2, t278);
        const V t279 = t273 + t274;
        io.im(2, t279);
        // complex block of 3, multiplier 2
        const V t280 = t110 + t166;
        const V t281 = t111 + t167;
        const V t282 = t110 - t166;
        const V t283 = t111 - t167;
        const V t284 = t280 + t54;
        io.re(21, t284);
        const V t285 = t281 + t55;
        io.im(21, t285);
        const V t286 = c[0] * t280;
        const V t287 = t54 - t286;
        const V t288 = c[0] * t281;
        const V t289 = t55 - t288;
        const V t290 = c[1] * t282;
        const V t291 = c[1] * t283;
        const V t292 = t287 + t291;
        io.re(13, t292);
        const V t293 = t289 - t290;
        io.im(13, t293);
        const V t294 = t287 - t291;
        io.re(5, t294);
        const V t295 = t289 + t290;
        io.im(5, t295);
    }
};

}  // namespace zulg
