// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 18.
// Complex DFT of 18 points, prime-factor, order 2, 9.
// 98 additions, 98 subtractions, 80 multiplications (116 with `scale`); 8 constants; 43 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<18> {
    static constexpr int steps = 312;  // with `scale`
    static constexpr double inverseRoot = 0.23570226039551587;  // 1/sqrt(18), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.17364817766693036,  // c[5]: cos 2 pi 2/9
        0.6427876096865394,  // c[6]: -sin 2 pi 8/9
        0.766044443118978,  // c[7]: cos 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x9r = io.re(9);
        const V t0 = x0r + x9r;
        const V t1 = x0r - x9r;
        const V x0i = io.im(0);
        const V x9i = io.im(9);
        const V t2 = x0i + x9i;
        const V t3 = x0i - x9i;
        // complex block of 2
        const V x10r = io.re(10);
        const V x1r = io.re(1);
        const V t4 = x10r + x1r;
        const V t5 = x10r - x1r;
        // complex block of 2
        const V x16r = io.re(16);
        const V x7r = io.re(7);
        const V t6 = x16r + x7r;
        const V t7 = x16r - x7r;
        // complex block of 3, multiplier 2
        const V t8 = t4 + t6;
        const V t9 = t4 - t6;
        // complex block of 3, multiplier 2
        const V t10 = t5 + t7;
        const V t11 = t5 - t7;
        // complex block of 2
        const V x10i = io.im(10);
        const V x1i = io.im(1);
        const V t12 = x10i + x1i;
        const V t13 = x10i - x1i;
        // complex block of 2
        const V x16i = io.im(16);
        const V x7i = io.im(7);
        const V t14 = x16i + x7i;
        const V t15 = x16i - x7i;
        // complex block of 3, multiplier 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // complex block of 3, multiplier 2
        const V t18 = t13 + t15;
        const V t19 = t13 - t15;
        // complex block of 2
        const V x4r = io.re(4);
        const V x13r = io.re(13);
        const V t20 = x4r + x13r;
        const V t21 = x4r - x13r;
        const V x4i = io.im(4);
        const V x13i = io.im(13);
        const V t22 = x4i + x13i;
        const V t23 = x4i - x13i;
        // complex block of 3, multiplier 2
        const V t24 = t8 + t20;
        const V t25 = t16 + t22;
        const V t26 = c[0] * t8;
        const V t27 = t20 - t26;
        const V t28 = c[1] * t17;
        const V t29 = t27 + t28;
        const V t30 = t27 - t28;
        const V t31 = c[0] * t16;
        const V t32 = t22 - t31;
        const V t33 = c[1] * t9;
        const V t34 = t32 - t33;
        const V t35 = t32 + t33;
        // complex block of 3, multiplier 2
        const V t36 = t10 + t21;
        const V t37 = t18 + t23;
        const V t38 = c[0] * t10;
        const V t39 = t21 - t38;
        const V t40 = c[1] * t19;
        const V t41 = t39 + t40;
        const V t42 = t39 - t40;
        const V t43 = c[0] * t18;
        const V t44 = t23 - t43;
        const V t45 = c[1] * t11;
        const V t46 = t44 - t45;
        const V t47 = t44 + t45;
        // complex block of 2
        const V x2r = io.re(2);
        const V x11r = io.re(11);
        const V t48 = x2r + x11r;
        const V t49 = x2r - x11r;
        const V x2i = io.im(2);
        const V x11i = io.im(11);
        const V t50 = x2i + x11i;
        const V t51 = x2i - x11i;
        // complex block of 2
        const V x14r = io.re(14);
        const V x5r = io.re(5);
        const V t52 = x14r + x5r;
        const V t53 = x14r - x5r;
        // complex block of 2
        const V x8r = io.re(8);
        const V x17r = io.re(17);
        const V t54 = x8r + x17r;
        const V t55 = x8r - x17r;
        // complex block of 3, multiplier 2
        const V t56 = t54 + t52;
        const V t57 = t54 - t52;
        // complex block of 3, multiplier 2
        const V t58 = t55 + t53;
        const V t59 = t55 - t53;
        // complex block of 2
        const V x14i = io.im(14);
        const V x5i = io.im(5);
        const V t60 = x14i + x5i;
        const V t61 = x14i - x5i;
        // complex block of 2
        const V x8i = io.im(8);
        const V x17i = io.im(17);
        const V t62 = x8i + x17i;
        const V t63 = x8i - x17i;
        // complex block of 3, multiplier 2
        const V t64 = t62 + t60;
        const V t65 = t62 - t60;
        // complex block of 3, multiplier 2
        const V t66 = t63 + t61;
        const V t67 = t63 - t61;
        // complex block of 3, multiplier 2
        const V t68 = t56 + t48;
        const V t69 = t64 + t50;
        const V t70 = c[0] * t56;
        const V t71 = t48 - t70;
        const V t72 = c[1] * t65;
        const V t73 = t71 + t72;
        const V t74 = t71 - t72;
        const V t75 = c[0] * t64;
        const V t76 = t50 - t75;
        const V t77 = c[1] * t57;
        const V t78 = t76 - t77;
        const V t79 = t76 + t77;
        // complex block of 3, multiplier 2
        const V t80 = t58 + t49;
        const V t81 = t66 + t51;
        const V t82 = c[0] * t58;
        const V t83 = t49 - t82;
        const V t84 = c[1] * t67;
        const V t85 = t83 + t84;
        const V t86 = t83 - t84;
        const V t87 = c[0] * t66;
        const V t88 = t51 - t87;
        const V t89 = c[1] * t59;
        const V t90 = t88 - t89;
        const V t91 = t88 + t89;
        // complex block of 2
        const V x12r = io.re(12);
        const V x3r = io.re(3);
        const V t92 = x12r + x3r;
        const V t93 = x12r - x3r;
        // complex block of 2
        const V x6r = io.re(6);
        const V x15r = io.re(15);
        const V t94 = x6r + x15r;
        const V t95 = x6r - x15r;
        // complex block of 3, multiplier 2
        const V t96 = t94 + t92;
        const V t97 = c[0] * t96;
        const V t98 = t94 - t92;
        const V t99 = c[1] * t98;
        // complex block of 3, multiplier 2
        const V t100 = t95 + t93;
        const V t101 = c[0] * t100;
        const V t102 = t95 - t93;
        const V t103 = c[1] * t102;
        // complex block of 2
        const V x12i = io.im(12);
        const V x3i = io.im(3);
        const V t104 = x12i + x3i;
        const V t105 = x12i - x3i;
        // complex block of 2
        const V x6i = io.im(6);
        const V x15i = io.im(15);
        const V t106 = x6i + x15i;
        const V t107 = x6i - x15i;
        // complex block of 3, multiplier 2
        const V t108 = t106 + t104;
        const V t109 = c[0] * t108;
        const V t110 = t106 - t104;
        const V t111 = c[1] * t110;
        // complex block of 3, multiplier 2
        const V t112 = t107 + t105;
        const V t113 = c[0] * t112;
        const V t114 = t107 - t105;
        const V t115 = c[1] * t114;
        // complex block of 3, multiplier 2
        const V t116 = t96 + t0;
        // complex block of 3, multiplier 2
        const V t117 = t68 + t24;
        const V t118 = c[0] * t117;
        const V t119 = t69 - t25;
        const V t120 = c[1] * t119;
        const V t121 = t117 + t116;
        io.re(0, t121);
        const V t122 = t116 - t118;
        const V t123 = t122 + t120;
        io.re(12, t123);
        const V t124 = t122 - t120;
        io.re(6, t124);
        // complex block of 3, multiplier 2
        const V t125 = t108 + t2;
        // complex block of 3, multiplier 2
        const V t126 = t69 + t25;
        const V t127 = c[0] * t126;
        const V t128 = t68 - t24;
        const V t129 = c[1] * t128;
        const V t130 = t126 + t125;
        io.im(0, t130);
        const V t131 = t125 - t127;
        const V t132 = t131 - t129;
        io.im(12, t132);
        const V t133 = t131 + t129;
        io.im(6, t133);
        // complex block of 3, multiplier 2
        const V t134 = t0 - t97;
        const V t135 = t134 + t111;
        const V t136 = t134 - t111;
        const V t137 = t2 - t109;
        const V t138 = t137 - t99;
        const V t139 = t137 + t99;
        // complex block of 9, multiplier 2
        const V t140 = c[4] * t79;
        const V t141 = c[5] * t74;
        const V t142 = t141 + t140;
        const V t143 = c[2] * t35;
        const V t144 = c[3] * t30;
        const V t145 = t143 - t144;
        // complex block of 3, multiplier 2
        const V t146 = t142 + t145;
        const V t147 = t142 - t145;
        // complex block of 9, multiplier 2
        const V t148 = c[4] * t74;
        const V t149 = c[5] * t79;
        const V t150 = t149 - t148;
        const V t151 = c[2] * t30;
        const V t152 = c[3] * t35;
        const V t153 = t152 + t151;
        // complex block of 3, multiplier 2
        const V t154 = t150 - t153;
        const V t155 = t150 + t153;
        // complex block of 9, multiplier 2
        const V t156 = c[2] * t78;
        const V t157 = c[3] * t73;
        const V t158 = t156 - t157;
        const V t159 = c[6] * t34;
        const V t160 = c[7] * t29;
        const V t161 = t160 - t159;
        // complex block of 3, multiplier 2
        const V t162 = t158 + t161;
        const V t163 = t158 - t161;
        // complex block of 9, multiplier 2
        const V t164 = c[2] * t73;
        const V t165 = c[3] * t78;
        const V t166 = t165 + t164;
        const V t167 = c[6] * t29;
        const V t168 = c[7] * t34;
        const V t169 = t168 + t167;
        // complex block of 3, multiplier 2
        const V t170 = t169 - t166;
        const V t171 = t166 + t169;
        // complex block of 3, multiplier 2
        const V t172 = t146 + t136;
        io.re(2, t172);
        const V t173 = t154 + t139;
        io.im(2, t173);
        const V t174 = c[0] * t146;
        const V t175 = t136 - t174;
        const V t176 = c[1] * t155;
        const V t177 = t175 + t176;
        io.re(14, t177);
        const V t178 = t175 - t176;
        io.re(8, t178);
        const V t179 = c[0] * t154;
        const V t180 = t139 - t179;
        const V t181 = c[1] * t147;
        const V t182 = t180 - t181;
        io.im(14, t182);
        const V t183 = t180 + t181;
        io.im(8, t183);
        // complex block of 3, multiplier 2
        const V t184 = t162 + t135;
        io.re(4, t184);
        const V t185 = t170 + t138;
        io.im(4, t185);
        const V t186 = c[0] * t162;
        const V t187 = t135 - t186;
        const V t188 = c[1] * t171;
        const V t189 = t187 - t188;
        io.re(16, t189);
        const V t190 = t187 + t188;
        io.re(10, t190);
        const V t191 = c[0] * t170;
        const V t192 = t138 - t191;
        const V t193 = c[1] * t163;
        const V t194 = t192 - t193;
        io.im(16, t194);
        const V t195 = t192 + t193;
        io.im(10, t195);
        // complex block of 3, multiplier 2
        const V t196 = t100 + t1;
        // complex block of 3, multiplier 2
        const V t197 = t80 + t36;
        const V t198 = c[0] * t197;
        const V t199 = t81 - t37;
        const V t200 = c[1] * t199;
        const V t201 = t197 + t196;
        io.re(9, t201);
        const V t202 = t196 - t198;
        const V t203 = t202 + t200;
        io.re(3, t203);
        const V t204 = t202 - t200;
        io.re(15, t204);
        // complex block of 3, multiplier 2
        const V t205 = t112 + t3;
        // complex block of 3, multiplier 2
        const V t206 = t81 + t37;
        const V t207 = c[0] * t206;
        const V t208 = t80 - t36;
        const V t209 = c[1] * t208;
        const V t210 = t206 + t205;
        io.im(9, t210);
        const V t211 = t205 - t207;
        const V t212 = t211 - t209;
        io.im(3, t212);
        const V t213 = t211 + t209;
        io.im(15, t213);
        // complex block of 3, multiplier 2
        const V t214 = t1 - t101;
        const V t215 = t214 + t115;
        const V t216 = t214 - t115;
        const V t217 = t3 - t113;
        const V t218 = t217 - t103;
        const V t219 = t217 + t103;
        // complex block of 9, multiplier 2
        const V t220 = c[4] * t91;
        const V t221 = c[5] * t86;
        const V t222 = t221 + t220;
        const V t223 = c[2] * t47;
        const V t224 = c[3] * t42;
        const V t225 = t223 - t224;
        // complex block of 3, multiplier 2
        const V t226 = t222 + t225;
        const V t227 = t222 - t225;
        // complex block of 9, multiplier 2
        const V t228 = c[4] * t86;
        const V t229 = c[5] * t91;
        const V t230 = t229 - t228;
        const V t231 = c[2] * t42;
        const V t232 = c[3] * t47;
        const V t233 = t232 + t231;
        // complex block of 3, multiplier 2
        const V t234 = t230 - t233;
        const V t235 = t230 + t233;
        // complex block of 9, multiplier 2
        const V t236 = c[2] * t90;
        const V t237 = c[3] * t85;
        const V t238 = t236 - t237;
        const V t239 = c[6] * t46;
        const V t240 = c[7] * t41;
        const V t241 = t240 - t239;
        // complex block of 3, multiplier 2
        const V t242 = t238 + t241;
        const V t243 = t238 - t241;
        // complex block of 9, multiplier 2
        const V t244 = c[2] * t85;
        const V t245 = c[3] * t90;
        const V t246 = t245 + t244;
        const V t247 = c[6] * t41;
        const V t248 = c[7] * t46;
        const V t249 = t248 + t247;
        // complex block of 3, multiplier 2
        const V t250 = t249 - t246;
        const V t251 = t246 + t249;
        // complex block of 3, multiplier 2
        const V t252 = t226 + t216;
        io.re(11, t252);
        const V t253 = t234 + t219;
        io.im(11, t253);
        const V t254 = c[0] * t226;
        const V t255 = t216 - t254;
        const V t256 = c[1] * t235;
        const V t257 = t255 + t256;
        io.re(5, t257);
        const V t258 = t255 - t256;
        io.re(17, t258);
        const V t259 = c[0] * t234;
        const V t260 = t219 - t259;
        const V t261 = c[1] * t227;
        const V t262 = t260 - t261;
        io.im(5, t262);
        const V t263 = t260 + t261;
        io.im(17, t263);
        // complex block of 3, multiplier 2
        const V t264 = t242 + t215;
        io.re(13, t264);
        const V t265 = t250 + t218;
        io.im(13, t265);
        const V t266 = c[0] * t242;
        const V t267 = t215 - t266;
        const V t268 = c[1] * t251;
        const V t269 = t267 - t268;
        io.re(7, t269);
        const V t270 = t267 + t268;
        io.re(1, t270);
        const V t271 = c[0] * t250;
        const V t272 = t218 - t271;
        const V t273 = c[1] * t243;
        const V t274 = t272 - t273;
        io.im(7, t274);
        const V t275 = t272 + t273;
        io.im(1, t275);
    }
};

}  // namespace zulg
