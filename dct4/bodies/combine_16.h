// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_combine, 16.
// Combine row of radix 16, rotations and DFTs of 4, then of 4.
// 88 additions, 88 subtractions, 96 multiplications; 0 constants; 42 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Combine<16> {
    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // inner step 0
        const V x4i = io.im(4);
        const V w1 = io.inner(1);
        const V t0 = x4i * w1;
        const V x4r = io.re(4);
        const V w0 = io.inner(0);
        const V t1 = x4r * w0;
        const V t2 = t1 - t0;
        const V t3 = x4i * w0;
        const V t4 = x4r * w1;
        const V t5 = t4 + t3;
        const V x8i = io.im(8);
        const V w3 = io.inner(3);
        const V t6 = x8i * w3;
        const V x8r = io.re(8);
        const V w2 = io.inner(2);
        const V t7 = x8r * w2;
        const V t8 = t7 - t6;
        const V t9 = x8i * w2;
        const V t10 = x8r * w3;
        const V t11 = t10 + t9;
        const V x12i = io.im(12);
        const V w5 = io.inner(5);
        const V t12 = x12i * w5;
        const V x12r = io.re(12);
        const V w4 = io.inner(4);
        const V t13 = x12r * w4;
        const V t14 = t13 - t12;
        const V t15 = x12i * w4;
        const V t16 = x12r * w5;
        const V t17 = t16 + t15;
        // complex block of 2
        const V x0i = io.im(0);
        const V t18 = x0i + t11;
        const V x0r = io.re(0);
        const V t19 = x0r + t8;
        const V t20 = x0i - t11;
        const V t21 = x0r - t8;
        // complex block of 2
        const V t22 = t5 + t17;
        const V t23 = t2 + t14;
        const V t24 = t5 - t17;
        const V t25 = t2 - t14;
        // complex block of 2
        const V t26 = t18 + t22;
        const V t27 = t19 + t23;
        const V t28 = t18 - t22;
        const V t29 = t19 - t23;
        // complex block of 2
        const V t30 = t20 + t25;
        const V t31 = t21 - t24;
        const V t32 = t20 - t25;
        const V t33 = t21 + t24;
        // inner step 1
        const V x5i = io.im(5);
        const V t34 = x5i * w1;
        const V x5r = io.re(5);
        const V t35 = x5r * w0;
        const V t36 = t35 - t34;
        const V t37 = x5i * w0;
        const V t38 = x5r * w1;
        const V t39 = t38 + t37;
        const V x9i = io.im(9);
        const V t40 = x9i * w3;
        const V x9r = io.re(9);
        const V t41 = x9r * w2;
        const V t42 = t41 - t40;
        const V t43 = x9i * w2;
        const V t44 = x9r * w3;
        const V t45 = t44 + t43;
        const V x13i = io.im(13);
        const V t46 = x13i * w5;
        const V x13r = io.re(13);
        const V t47 = x13r * w4;
        const V t48 = t47 - t46;
        const V t49 = x13i * w4;
        const V t50 = x13r * w5;
        const V t51 = t50 + t49;
        // complex block of 2
        const V x1i = io.im(1);
        const V t52 = x1i + t45;
        const V x1r = io.re(1);
        const V t53 = x1r + t42;
        const V t54 = x1i - t45;
        const V t55 = x1r - t42;
        // complex block of 2
        const V t56 = t39 + t51;
        const V t57 = t36 + t48;
        const V t58 = t39 - t51;
        const V t59 = t36 - t48;
        // complex block of 2
        const V t60 = t52 + t56;
        const V t61 = t53 + t57;
        const V t62 = t52 - t56;
        const V t63 = t53 - t57;
        // complex block of 2
        const V t64 = t54 + t59;
        const V t65 = t55 - t58;
        const V t66 = t54 - t59;
        const V t67 = t55 + t58;
        // inner step 2
        const V x6i = io.im(6);
        const V t68 = x6i * w1;
        const V x6r = io.re(6);
        const V t69 = x6r * w0;
        const V t70 = t69 - t68;
        const V t71 = x6i * w0;
        const V t72 = x6r * w1;
        const V t73 = t72 + t71;
        const V x10i = io.im(10);
        const V t74 = x10i * w3;
        const V x10r = io.re(10);
        const V t75 = x10r * w2;
        const V t76 = t75 - t74;
        const V t77 = x10i * w2;
        const V t78 = x10r * w3;
        const V t79 = t78 + t77;
        const V x14i = io.im(14);
        const V t80 = x14i * w5;
        const V x14r = io.re(14);
        const V t81 = x14r * w4;
        const V t82 = t81 - t80;
        const V t83 = x14i * w4;
        const V t84 = x14r * w5;
        const V t85 = t84 + t83;
        // complex block of 2
        const V x2i = io.im(2);
        const V t86 = x2i + t79;
        const V x2r = io.re(2);
        const V t87 = x2r + t76;
        const V t88 = x2i - t79;
        const V t89 = x2r - t76;
        // complex block of 2
        const V t90 = t73 + t85;
        const V t91 = t70 + t82;
        const V t92 = t73 - t85;
        const V t93 = t70 - t82;
        // complex block of 2
        const V t94 = t86 + t90;
        const V t95 = t87 + t91;
        const V t96 = t86 - t90;
        const V t97 = t87 - t91;
        // complex block of 2
        const V t98 = t88 + t93;
        const V t99 = t89 - t92;
        const V t100 = t88 - t93;
        const V t101 = t89 + t92;
        // inner step 3
        const V x7i = io.im(7);
        const V t102 = x7i * w1;
        const V x7r = io.re(7);
        const V t103 = x7r * w0;
        const V t104 = t103 - t102;
        const V t105 = x7i * w0;
        const V t106 = x7r * w1;
        const V t107 = t106 + t105;
        const V x11i = io.im(11);
        const V t108 = x11i * w3;
        const V x11r = io.re(11);
        const V t109 = x11r * w2;
        const V t110 = t109 - t108;
        const V t111 = x11i * w2;
        const V t112 = x11r * w3;
        const V t113 = t112 + t111;
        const V x15i = io.im(15);
        const V t114 = x15i * w5;
        const V x15r = io.re(15);
        const V t115 = x15r * w4;
        const V t116 = t115 - t114;
        const V t117 = x15i * w4;
        const V t118 = x15r * w5;
        const V t119 = t118 + t117;
        // complex block of 2
        const V x3i = io.im(3);
        const V t120 = x3i + t113;
        const V x3r = io.re(3);
        const V t121 = x3r + t110;
        const V t122 = x3i - t113;
        const V t123 = x3r - t110;
        // complex block of 2
        const V t124 = t107 + t119;
        const V t125 = t104 + t116;
        const V t126 = t107 - t119;
        const V t127 = t104 - t116;
        // complex block of 2
        const V t128 = t120 + t124;
        const V t129 = t121 + t125;
        const V t130 = t120 - t124;
        const V t131 = t121 - t125;
        // complex block of 2
        const V t132 = t122 + t127;
        const V t133 = t123 - t126;
        const V t134 = t122 - t127;
        const V t135 = t123 + t126;
        // outer step 0
        const V u1 = io.outer(1);
        const V t136 = t60 * u1;
        const V u0 = io.outer(0);
        const V t137 = t61 * u0;
        const V t138 = t137 - t136;
        const V t139 = t60 * u0;
        const V t140 = t61 * u1;
        const V t141 = t140 + t139;
        const V u3 = io.outer(3);
        const V t142 = t94 * u3;
        const V u2 = io.outer(2);
        const V t143 = t95 * u2;
        const V t144 = t143 - t142;
        const V t145 = t94 * u2;
        const V t146 = t95 * u3;
        const V t147 = t146 + t145;
        const V u5 = io.outer(5);
        const V t148 = t128 * u5;
        const V u4 = io.outer(4);
        const V t149 = t129 * u4;
        const V t150 = t149 - t148;
        const V t151 = t128 * u4;
        const V t152 = t129 * u5;
        const V t153 = t152 + t151;
        // complex block of 2
        const V t154 = t26 + t147;
        const V t155 = t27 + t144;
        const V t156 = t26 - t147;
        const V t157 = t27 - t144;
        // complex block of 2
        const V t158 = t141 + t153;
        const V t159 = t138 + t150;
        const V t160 = t141 - t153;
        const V t161 = t138 - t150;
        // complex block of 2
        const V t162 = t154 + t158;
        const V t163 = t155 + t159;
        const V t164 = t155 - t159;
        // complex block of 2
        const V t165 = t156 + t161;
        const V t166 = t157 - t160;
        const V t167 = t157 + t160;
        // outer step 1
        const V u7 = io.outer(7);
        const V t168 = t64 * u7;
        const V u6 = io.outer(6);
        const V t169 = t65 * u6;
        const V t170 = t169 - t168;
        const V t171 = t64 * u6;
        const V t172 = t65 * u7;
        const V t173 = t172 + t171;
        const V u9 = io.outer(9);
        const V t174 = t98 * u9;
        const V u8 = io.outer(8);
        const V t175 = t99 * u8;
        const V t176 = t175 - t174;
        const V t177 = t98 * u8;
        const V t178 = t99 * u9;
        const V t179 = t178 + t177;
        const V u11 = io.outer(11);
        const V t180 = t132 * u11;
        const V u10 = io.outer(10);
        const V t181 = t133 * u10;
        const V t182 = t181 - t180;
        const V t183 = t132 * u10;
        const V t184 = t133 * u11;
        const V t185 = t184 + t183;
        // complex block of 2
        const V t186 = t30 + t179;
        const V t187 = t31 + t176;
        const V t188 = t30 - t179;
        const V t189 = t31 - t176;
        // complex block of 2
        const V t190 = t173 + t185;
        const V t191 = t170 + t182;
        const V t192 = t173 - t185;
        const V t193 = t170 - t182;
        // complex block of 2
        const V t194 = t186 + t190;
        const V t195 = t187 + t191;
        const V t196 = t187 - t191;
        // complex block of 2
        const V t197 = t188 + t193;
        const V t198 = t189 - t192;
        const V t199 = t189 + t192;
        // outer step 2
        const V u13 = io.outer(13);
        const V t200 = t62 * u13;
        const V u12 = io.outer(12);
        const V t201 = t63 * u12;
        const V t202 = t201 - t200;
        const V t203 = t62 * u12;
        const V t204 = t63 * u13;
        const V t205 = t204 + t203;
        const V u15 = io.outer(15);
        const V t206 = t96 * u15;
        const V u14 = io.outer(14);
        const V t207 = t97 * u14;
        const V t208 = t207 - t206;
        const V t209 = t96 * u14;
        const V t210 = t97 * u15;
        const V t211 = t210 + t209;
        const V u17 = io.outer(17);
        const V t212 = t130 * u17;
        const V u16 = io.outer(16);
        const V t213 = t131 * u16;
        const V t214 = t213 - t212;
        const V t215 = t130 * u16;
        const V t216 = t131 * u17;
        const V t217 = t216 + t215;
        // complex block of 2
        const V t218 = t28 + t211;
        const V t219 = t29 + t208;
        const V t220 = t28 - t211;
        const V t221 = t29 - t208;
        // complex block of 2
        const V t222 = t205 + t217;
        const V t223 = t202 + t214;
        const V t224 = t205 - t217;
        const V t225 = t202 - t214;
        // complex block of 2
        const V t226 = t218 + t222;
        const V t227 = t219 + t223;
        const V t228 = t219 - t223;
        // complex block of 2
        const V t229 = t220 + t225;
        const V t230 = t221 - t224;
        const V t231 = t221 + t224;
        // outer step 3
        const V u19 = io.outer(19);
        const V t232 = t66 * u19;
        const V u18 = io.outer(18);
        const V t233 = t67 * u18;
        const V t234 = t233 - t232;
        const V t235 = t66 * u18;
        const V t236 = t67 * u19;
        const V t237 = t236 + t235;
        const V u21 = io.outer(21);
        const V t238 = t100 * u21;
        const V u20 = io.outer(20);
        const V t239 = t101 * u20;
        const V t240 = t239 - t238;
        const V t241 = t100 * u20;
        const V t242 = t101 * u21;
        const V t243 = t242 + t241;
        const V u23 = io.outer(23);
        const V t244 = t134 * u23;
        const V u22 = io.outer(22);
        io.im(0, t162);
        io.re(0, t163);
        io.re(8, t164);
        io.im(4, t165);
        io.re(4, t166);
        io.re(12, t167);
        io.im(1, t194);
        io.re(1, t195);
        io.re(9, t196);
        io.im(5, t197);
        io.re(5, t198);
        io.re(13, t199);
        io.im(2, t226);
        io.re(2, t227);
        io.re(10, t228);
        io.im(6, t229);
        io.re(6, t230);
        io.re(14, t231);
        const V t245 = t135 * u22;
        const V t246 = t245 - t244;
        const V t247 = t134 * u22;
        const V t248 = t135 * u23;
        const V t249 = t248 + t247;
        // complex block of 2
        const V t250 = t32 + t243;
        const V t251 = t33 + t240;
        const V t252 = t32 - t243;
        const V t253 = t33 - t240;
        // complex block of 2
        const V t254 = t237 + t249;
        const V t255 = t234 + t246;
        const V t256 = t237 - t249;
        const V t257 = t234 - t246;
        // complex block of 2
        const V t258 = t250 + t254;
        io.im(3, t258);
        const V t259 = t251 + t255;
        io.re(3, t259);
        const V t260 = t251 - t255;
        io.re(11, t260);
        // complex block of 2
        const V t261 = t252 + t257;
        io.im(7, t261);
        const V t262 = t253 - t256;
        io.re(7, t262);
        const V t263 = t253 + t256;
        io.re(15, t263);
        const V t264 = t158 - t154;
        io.im(8, t264);
        const V t265 = t190 - t186;
        io.im(9, t265);
        const V t266 = t222 - t218;
        io.im(10, t266);
        const V t267 = t254 - t250;
        io.im(11, t267);
        const V t268 = t161 - t156;
        io.im(12, t268);
        const V t269 = t193 - t188;
        io.im(13, t269);
        const V t270 = t225 - t220;
        io.im(14, t270);
        const V t271 = t257 - t252;
        io.im(15, t271);
    }
};

}  // namespace zulg
