// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 24.
// Complex DFT of 24 points, prime-factor, order 8, 3.
// 126 additions, 126 subtractions, 44 multiplications (92 with `scale`); 3 constants; 52 values alive at most.
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
        const V t1 = x0r - x12r;
        const V x0i = io.im(0);
        const V x12i = io.im(12);
        const V t2 = x0i + x12i;
        const V t3 = x0i - x12i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x18r = io.re(18);
        const V t4 = x6r + x18r;
        const V t5 = x6r - x18r;
        const V x6i = io.im(6);
        const V x18i = io.im(18);
        const V t6 = x6i + x18i;
        const V t7 = x6i - x18i;
        // complex block of 2
        const V t8 = t0 + t4;
        const V t9 = t2 + t6;
        const V t10 = t0 - t4;
        const V t11 = t2 - t6;
        // complex block of 2
        const V t12 = t1 - t7;
        const V t13 = t3 + t5;
        const V t14 = t1 + t7;
        const V t15 = t3 - t5;
        // complex block of 2
        const V x1r = io.re(1);
        const V x13r = io.re(13);
        const V t16 = x1r - x13r;
        const V t17 = x1r + x13r;
        // complex block of 8, multiplier 3
        const V t18 = c[2] * t16;
        // complex block of 2
        const V x1i = io.im(1);
        const V x13i = io.im(13);
        const V t19 = x1i - x13i;
        const V t20 = x1i + x13i;
        // complex block of 8, multiplier 3
        const V t21 = c[2] * t19;
        // complex block of 2
        const V x16r = io.re(16);
        const V x4r = io.re(4);
        const V t22 = x16r + x4r;
        const V t23 = x16r - x4r;
        const V x16i = io.im(16);
        const V x4i = io.im(4);
        const V t24 = x16i + x4i;
        const V t25 = x16i - x4i;
        // complex block of 2
        const V x19r = io.re(19);
        const V x7r = io.re(7);
        const V t26 = x19r - x7r;
        const V t27 = x19r + x7r;
        // complex block of 8, multiplier 3
        const V t28 = c[2] * t26;
        // complex block of 2
        const V x19i = io.im(19);
        const V x7i = io.im(7);
        const V t29 = x19i - x7i;
        const V t30 = x19i + x7i;
        // complex block of 8, multiplier 3
        const V t31 = c[2] * t29;
        // complex block of 2
        const V x22r = io.re(22);
        const V x10r = io.re(10);
        const V t32 = x22r + x10r;
        const V t33 = x22r - x10r;
        const V x22i = io.im(22);
        const V x10i = io.im(10);
        const V t34 = x22i + x10i;
        const V t35 = x22i - x10i;
        // complex block of 2
        const V t36 = t22 + t32;
        // complex block of 2
        const V t37 = t27 + t17;
        // complex block of 2
        const V t38 = t36 + t37;
        const V t39 = t36 - t37;
        // complex block of 2
        const V t40 = t24 + t34;
        // complex block of 2
        const V t41 = t30 + t20;
        // complex block of 2
        const V t42 = t40 + t41;
        const V t43 = t40 - t41;
        // complex block of 2
        const V t44 = t22 - t32;
        // complex block of 2
        const V t45 = t30 - t20;
        // complex block of 2
        const V t46 = t44 - t45;
        const V t47 = t44 + t45;
        // complex block of 2
        const V t48 = t24 - t34;
        // complex block of 2
        const V t49 = t27 - t17;
        // complex block of 2
        const V t50 = t48 + t49;
        const V t51 = t48 - t49;
        // complex block of 8, multiplier 3
        const V t52 = t28 + t31;
        const V t53 = t21 - t18;
        // complex block of 2
        const V t54 = t53 - t52;
        const V t55 = t52 + t53;
        // complex block of 8, multiplier 3
        const V t56 = t31 - t28;
        const V t57 = t18 + t21;
        // complex block of 2
        const V t58 = t56 + t57;
        const V t59 = t56 - t57;
        // complex block of 2
        const V t60 = t23 - t35;
        const V t61 = t25 + t33;
        const V t62 = t23 + t35;
        const V t63 = t25 - t33;
        // complex block of 2
        const V x14r = io.re(14);
        const V x2r = io.re(2);
        const V t64 = x14r + x2r;
        const V t65 = x14r - x2r;
        const V x14i = io.im(14);
        const V x2i = io.im(2);
        const V t66 = x14i + x2i;
        const V t67 = x14i - x2i;
        // complex block of 2
        const V x17r = io.re(17);
        const V x5r = io.re(5);
        const V t68 = x17r - x5r;
        const V t69 = x17r + x5r;
        // complex block of 8, multiplier 3
        const V t70 = c[2] * t68;
        // complex block of 2
        const V x17i = io.im(17);
        const V x5i = io.im(5);
        const V t71 = x17i - x5i;
        const V t72 = x17i + x5i;
        // complex block of 8, multiplier 3
        const V t73 = c[2] * t71;
        // complex block of 2
        const V x8r = io.re(8);
        const V x20r = io.re(20);
        const V t74 = x8r + x20r;
        const V t75 = x8r - x20r;
        const V x8i = io.im(8);
        const V x20i = io.im(20);
        const V t76 = x8i + x20i;
        const V t77 = x8i - x20i;
        // complex block of 2
        const V x11r = io.re(11);
        const V x23r = io.re(23);
        const V t78 = x11r - x23r;
        const V t79 = x11r + x23r;
        // complex block of 8, multiplier 3
        const V t80 = c[2] * t78;
        // complex block of 2
        const V x11i = io.im(11);
        const V x23i = io.im(23);
        const V t81 = x11i - x23i;
        const V t82 = x11i + x23i;
        // complex block of 8, multiplier 3
        const V t83 = c[2] * t81;
        // complex block of 2
        const V t84 = t74 + t64;
        // complex block of 2
        const V t85 = t79 + t69;
        // complex block of 2
        const V t86 = t84 + t85;
        const V t87 = t84 - t85;
        // complex block of 2
        const V t88 = t76 + t66;
        // complex block of 2
        const V t89 = t82 + t72;
        // complex block of 2
        const V t90 = t88 + t89;
        const V t91 = t88 - t89;
        // complex block of 2
        const V t92 = t74 - t64;
        // complex block of 2
        const V t93 = t82 - t72;
        // complex block of 2
        const V t94 = t92 - t93;
        const V t95 = t92 + t93;
        // complex block of 2
        const V t96 = t76 - t66;
        // complex block of 2
        const V t97 = t79 - t69;
        // complex block of 2
        const V t98 = t96 + t97;
        const V t99 = t96 - t97;
        // complex block of 8, multiplier 3
        const V t100 = t80 + t83;
        const V t101 = t73 - t70;
        // complex block of 2
        const V t102 = t101 - t100;
        const V t103 = t100 + t101;
        // complex block of 8, multiplier 3
        const V t104 = t83 - t80;
        const V t105 = t70 + t73;
        // complex block of 2
        const V t106 = t104 + t105;
        const V t107 = t104 - t105;
        // complex block of 2
        const V t108 = t75 - t67;
        const V t109 = t77 + t65;
        const V t110 = t75 + t67;
        const V t111 = t77 - t65;
        // complex block of 2
        const V x3r = io.re(3);
        const V x15r = io.re(15);
        const V t112 = x3r + x15r;
        const V t113 = x3r - x15r;
        const V x3i = io.im(3);
        const V x15i = io.im(15);
        const V t114 = x3i + x15i;
        const V t115 = x3i - x15i;
        // complex block of 2
        const V x9r = io.re(9);
        const V x21r = io.re(21);
        const V t116 = x9r + x21r;
        const V t117 = x9r - x21r;
        const V x9i = io.im(9);
        const V x21i = io.im(21);
        const V t118 = x9i + x21i;
        const V t119 = x9i - x21i;
        // complex block of 2
        const V t120 = t112 + t116;
        const V t121 = t114 + t118;
        const V t122 = t112 - t116;
        const V t123 = t114 - t118;
        // complex block of 8, multiplier 3
        const V t124 = c[2] * t113;
        const V t125 = c[2] * t115;
        const V t126 = t124 + t125;
        const V t127 = t125 - t124;
        const V t128 = c[2] * t117;
        const V t129 = c[2] * t119;
        const V t130 = t128 + t129;
        const V t131 = t129 - t128;
        // complex block of 2
        const V t132 = t8 + t120;
        // complex block of 3, multiplier 2
        const V t133 = t86 + t38;
        const V t134 = c[0] * t133;
        const V t135 = t90 - t42;
        const V t136 = c[1] * t135;
        const V t137 = t133 + t132;
        io.re(0, t137);
        const V t138 = t132 - t134;
        const V t139 = t138 + t136;
        io.re(16, t139);
        const V t140 = t138 - t136;
        io.re(8, t140);
        // complex block of 2
        const V t141 = t9 + t121;
        // complex block of 3, multiplier 2
        const V t142 = t90 + t42;
        const V t143 = c[0] * t142;
        const V t144 = t86 - t38;
        const V t145 = c[1] * t144;
        const V t146 = t142 + t141;
        io.im(0, t146);
        const V t147 = t141 - t143;
        const V t148 = t147 - t145;
        io.im(16, t148);
        const V t149 = t147 + t145;
        io.im(8, t149);
        // complex block of 2
        const V t150 = t8 - t120;
        // complex block of 3, multiplier 2
        const V t151 = t87 + t39;
        const V t152 = c[0] * t151;
        const V t153 = t91 - t43;
        const V t154 = c[1] * t153;
        const V t155 = t151 + t150;
        io.re(12, t155);
        const V t156 = t150 - t152;
        const V t157 = t156 + t154;
        io.re(4, t157);
        const V t158 = t156 - t154;
        io.re(20, t158);
        // complex block of 2
        const V t159 = t9 - t121;
        // complex block of 3, multiplier 2
        const V t160 = t91 + t43;
        const V t161 = c[0] * t160;
        const V t162 = t87 - t39;
        const V t163 = c[1] * t162;
        const V t164 = t160 + t159;
        io.im(12, t164);
        const V t165 = t159 - t161;
        const V t166 = t165 - t163;
        io.im(4, t166);
        const V t167 = t165 + t163;
        io.im(20, t167);
        // complex block of 2
        const V t168 = t10 - t123;
        // complex block of 3, multiplier 2
        const V t169 = t94 + t46;
        const V t170 = c[0] * t169;
        const V t171 = t98 - t50;
        const V t172 = c[1] * t171;
        const V t173 = t169 + t168;
        io.re(6, t173);
        const V t174 = t168 - t170;
        const V t175 = t174 + t172;
        io.re(22, t175);
        const V t176 = t174 - t172;
        io.re(14, t176);
        // complex block of 2
        const V t177 = t11 + t122;
        // complex block of 3, multiplier 2
        const V t178 = t98 + t50;
        const V t179 = c[0] * t178;
        const V t180 = t94 - t46;
        const V t181 = c[1] * t180;
        const V t182 = t178 + t177;
        io.im(6, t182);
        const V t183 = t177 - t179;
        const V t184 = t183 - t181;
        io.im(22, t184);
        const V t185 = t183 + t181;
        io.im(14, t185);
        // complex block of 2
        const V t186 = t10 + t123;
        // complex block of 3, multiplier 2
        const V t187 = t95 + t47;
        const V t188 = c[0] * t187;
        const V t189 = t99 - t51;
        const V t190 = c[1] * t189;
        const V t191 = t187 + t186;
        io.re(18, t191);
        const V t192 = t186 - t188;
        const V t193 = t192 + t190;
        io.re(10, t193);
        const V t194 = t192 - t190;
        io.re(2, t194);
        // complex block of 2
        const V t195 = t11 - t122;
        // complex block of 3, multiplier 2
        const V t196 = t99 + t51;
        const V t197 = c[0] * t196;
        const V t198 = t95 - t47;
        const V t199 = c[1] * t198;
        const V t200 = t196 + t195;
        io.im(18, t200);
        const V t201 = t195 - t197;
        const V t202 = t201 - t199;
        io.im(10, t202);
        const V t203 = t201 + t199;
        io.im(2, t203);
        // complex block of 2
        const V t204 = t127 + t130;
        // complex block of 2
        const V t205 = t12 + t204;
        const V t206 = t12 - t204;
        // complex block of 2
        const V t207 = t131 - t126;
        // complex block of 2
        const V t208 = t13 + t207;
        const V t209 = t13 - t207;
        // complex block of 2
        const V t210 = t108 + t106;
        // complex block of 2
        const V t211 = t60 + t58;
        // complex block of 3, multiplier 2
        const V t212 = t210 + t211;
        const V t213 = t210 - t211;
        const V t214 = c[0] * t212;
        // complex block of 2
        const V t215 = t109 + t102;
        // complex block of 2
        const V t216 = t61 + t54;
        // complex block of 3, multiplier 2
        const V t217 = t215 + t216;
        const V t218 = t215 - t216;
        const V t219 = c[0] * t217;
        // complex block of 2
        const V t220 = t108 - t106;
        // complex block of 2
        const V t221 = t60 - t58;
        // complex block of 3, multiplier 2
        const V t222 = t220 + t221;
        const V t223 = t220 - t221;
        const V t224 = c[0] * t222;
        // complex block of 2
        const V t225 = t109 - t102;
        // complex block of 2
        const V t226 = t61 - t54;
        // complex block of 3, multiplier 2
        const V t227 = t225 + t226;
        const V t228 = t225 - t226;
        const V t229 = c[0] * t227;
        // complex block of 3, multiplier 2
        const V t230 = t212 + t205;
        io.re(3, t230);
        const V t231 = t217 + t208;
        io.im(3, t231);
        const V t232 = t205 - t214;
        const V t233 = c[1] * t218;
        const V t234 = t232 + t233;
        io.re(19, t234);
        const V t235 = t232 - t233;
        io.re(11, t235);
        const V t236 = t208 - t219;
        const V t237 = c[1] * t213;
        const V t238 = t236 - t237;
        io.im(19, t238);
        const V t239 = t236 + t237;
        io.im(11, t239);
        // complex block of 3, multiplier 2
        const V t240 = t222 + t206;
        io.re(15, t240);
        const V t241 = t227 + t209;
        io.im(15, t241);
        const V t242 = t206 - t224;
        const V t243 = c[1] * t228;
        const V t244 = t242 + t243;
        io.re(7, t244);
        const V t245 = t242 - t243;
        io.re(23, t245);
        const V t246 = t209 - t229;
        const V t247 = c[1] * t223;
        const V t248 = t246 - t247;
        io.im(7, t248);
        const V t249 = t246 + t247;
        io.im(23, t249);
        // complex block of 2
        const V t250 = t127 - t130;
        // complex block of 2
        const V t251 = t15 + t250;
        const V t252 = t15 - t250;
        // complex block of 2
        const V t253 = t126 + t131;
        // complex block of 2
        const V t254 = t14 + t253;
        const V t255 = t14 - t253;
        // complex block of 2
        const V t256 = t110 + t103;
        // complex block of 2
        const V t257 = t62 + t55;
        // complex block of 3, multiplier 2
        const V t258 = t256 + t257;
        const V t259 = t256 - t257;
        const V t260 = c[0] * t258;
        // complex block of 2
        const V t261 = t111 + t107;
        // complex block of 2
        const V t262 = t63 + t59;
        // complex block of 3, multiplier 2
        const V t263 = t261 + t262;
        const V t264 = t261 - t262;
        const V t265 = c[0] * t263;
        // complex block of 2
        const V t266 = t110 - t103;
        // complex block of 2
        const V t267 = t62 - t55;
        // complex block of 3, multiplier 2
        const V t268 = t266 + t267;
        const V t269 = t266 - t267;
        const V t270 = c[0] * t268;
        // complex block of 2
        const V t271 = t111 - t107;
        // complex block of 2
        const V t272 = t63 - t59;
        // complex block of 3, multiplier 2
        const V t273 = t271 + t272;
        const V t274 = t271 - t272;
        const V t275 = c[0] * t273;
        // complex block of 3, multiplier 2
        const V t276 = t258 + t254;
        io.re(9, t276);
        const V t277 = t263 + t251;
        io.im(9, t277);
        const V t278 = t254 - t260;
        const V t279 = c[1] * t264;
        const V t280 = t278 + t279;
        io.re(1, t280);
        const V t281 = t278 - t279;
        io.re(17, t281);
        const V t282 = t251 - t265;
        const V t283 = c[1] * t259;
        const V t284 = t282 - t283;
        io.im(1, t284);
        const V t285 = t282 + t283;
        io.im(17, t285);
        // complex block of 3, multiplier 2
        const V t286 = t268 + t255;
        io.re(21, t286);
        const V t287 = t273 + t252;
        io.im(21, t287);
        const V t288 = t255 - t270;
        const V t289 = c[1] * t274;
        const V t290 = t288 + t289;
        io.re(13, t290);
        const V t291 = t288 - t289;
        io.re(5, t291);
        const V t292 = t252 - t275;
        const V t293 = c[1] * t269;
        const V t294 = t292 - t293;
        io.im(13, t294);
        const V t295 = t292 + t293;
        io.im(5, t295);
    }
};

}  // namespace zulg
