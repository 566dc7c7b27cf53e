// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 18.
// Complex DFT of 18 points, prime-factor, order 2, 9.
// 98 additions, 98 subtractions, 80 multiplications (116 with `scale`); 8 constants; 38 values alive at most.
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
        const V x0i = io.im(0);
        const V x9i = io.im(9);
        const V t1 = x0i + x9i;
        const V t2 = x0r - x9r;
        const V t3 = x0i - x9i;
        // complex block of 2
        const V x2r = io.re(2);
        const V x11r = io.re(11);
        const V t4 = x2r + x11r;
        const V x2i = io.im(2);
        const V x11i = io.im(11);
        const V t5 = x2i + x11i;
        const V t6 = x2r - x11r;
        const V t7 = x2i - x11i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x13r = io.re(13);
        const V t8 = x4r + x13r;
        const V x4i = io.im(4);
        const V x13i = io.im(13);
        const V t9 = x4i + x13i;
        const V t10 = x4r - x13r;
        const V t11 = x4i - x13i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x15r = io.re(15);
        const V t12 = x6r + x15r;
        const V x6i = io.im(6);
        const V x15i = io.im(15);
        const V t13 = x6i + x15i;
        const V t14 = x6r - x15r;
        const V t15 = x6i - x15i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x17r = io.re(17);
        const V t16 = x8r + x17r;
        const V x8i = io.im(8);
        const V x17i = io.im(17);
        const V t17 = x8i + x17i;
        const V t18 = x8r - x17r;
        const V t19 = x8i - x17i;
        // complex block of 2
        const V x10r = io.re(10);
        const V x1r = io.re(1);
        const V t20 = x10r + x1r;
        const V x10i = io.im(10);
        const V x1i = io.im(1);
        const V t21 = x10i + x1i;
        const V t22 = x10r - x1r;
        const V t23 = x10i - x1i;
        // complex block of 2
        const V x12r = io.re(12);
        const V x3r = io.re(3);
        const V t24 = x12r + x3r;
        const V x12i = io.im(12);
        const V x3i = io.im(3);
        const V t25 = x12i + x3i;
        const V t26 = x12r - x3r;
        const V t27 = x12i - x3i;
        // complex block of 2
        const V x14r = io.re(14);
        const V x5r = io.re(5);
        const V t28 = x14r + x5r;
        const V x14i = io.im(14);
        const V x5i = io.im(5);
        const V t29 = x14i + x5i;
        const V t30 = x14r - x5r;
        const V t31 = x14i - x5i;
        // complex block of 2
        const V x16r = io.re(16);
        const V x7r = io.re(7);
        const V t32 = x16r + x7r;
        const V x16i = io.im(16);
        const V x7i = io.im(7);
        const V t33 = x16i + x7i;
        const V t34 = x16r - x7r;
        const V t35 = x16i - x7i;
        // complex block of 3, multiplier 2
        const V t36 = t12 + t24;
        const V t37 = t13 + t25;
        const V t38 = t12 - t24;
        const V t39 = t13 - t25;
        const V t40 = t36 + t0;
        const V t41 = t37 + t1;
        const V t42 = c[0] * t36;
        const V t43 = t0 - t42;
        const V t44 = c[0] * t37;
        const V t45 = t1 - t44;
        const V t46 = c[1] * t38;
        const V t47 = c[1] * t39;
        const V t48 = t43 + t47;
        const V t49 = t45 - t46;
        const V t50 = t43 - t47;
        const V t51 = t45 + t46;
        // complex block of 3, multiplier 2
        const V t52 = t16 + t28;
        const V t53 = t17 + t29;
        const V t54 = t16 - t28;
        const V t55 = t17 - t29;
        const V t56 = t52 + t4;
        const V t57 = t53 + t5;
        const V t58 = c[0] * t52;
        const V t59 = t4 - t58;
        const V t60 = c[0] * t53;
        const V t61 = t5 - t60;
        const V t62 = c[1] * t54;
        const V t63 = c[1] * t55;
        const V t64 = t59 + t63;
        const V t65 = t61 - t62;
        const V t66 = t59 - t63;
        const V t67 = t61 + t62;
        // complex block of 3, multiplier 2
        const V t68 = t20 + t32;
        const V t69 = t21 + t33;
        const V t70 = t20 - t32;
        const V t71 = t21 - t33;
        const V t72 = t68 + t8;
        const V t73 = t69 + t9;
        const V t74 = c[0] * t68;
        const V t75 = t8 - t74;
        const V t76 = c[0] * t69;
        const V t77 = t9 - t76;
        const V t78 = c[1] * t70;
        const V t79 = c[1] * t71;
        const V t80 = t75 + t79;
        const V t81 = t77 - t78;
        const V t82 = t75 - t79;
        const V t83 = t77 + t78;
        // complex block of 3, multiplier 2
        const V t84 = t56 + t72;
        const V t85 = t57 + t73;
        const V t86 = t56 - t72;
        const V t87 = t57 - t73;
        const V t88 = t84 + t40;
        io.re(0, t88);
        const V t89 = t85 + t41;
        io.im(0, t89);
        const V t90 = c[0] * t84;
        const V t91 = t40 - t90;
        const V t92 = c[0] * t85;
        const V t93 = t41 - t92;
        const V t94 = c[1] * t86;
        const V t95 = c[1] * t87;
        const V t96 = t91 + t95;
        io.re(12, t96);
        const V t97 = t93 - t94;
        io.im(12, t97);
        const V t98 = t91 - t95;
        io.re(6, t98);
        const V t99 = t93 + t94;
        io.im(6, t99);
        // complex block of 9, multiplier 2
        const V t100 = c[4] * t67;
        const V t101 = c[5] * t66;
        const V t102 = t101 + t100;
        const V t103 = c[4] * t66;
        const V t104 = c[5] * t67;
        const V t105 = t104 - t103;
        const V t106 = c[2] * t83;
        const V t107 = c[3] * t82;
        const V t108 = t106 - t107;
        const V t109 = c[2] * t82;
        const V t110 = c[3] * t83;
        const V t111 = t110 + t109;
        // complex block of 3, multiplier 2
        const V t112 = t102 + t108;
        const V t113 = t105 - t111;
        const V t114 = t102 - t108;
        const V t115 = t105 + t111;
        const V t116 = t112 + t50;
        io.re(2, t116);
        const V t117 = t113 + t51;
        io.im(2, t117);
        const V t118 = c[0] * t112;
        const V t119 = t50 - t118;
        const V t120 = c[0] * t113;
        const V t121 = t51 - t120;
        const V t122 = c[1] * t114;
        const V t123 = c[1] * t115;
        const V t124 = t119 + t123;
        io.re(14, t124);
        const V t125 = t121 - t122;
        io.im(14, t125);
        const V t126 = t119 - t123;
        io.re(8, t126);
        const V t127 = t121 + t122;
        io.im(8, t127);
        // complex block of 9, multiplier 2
        const V t128 = c[2] * t65;
        const V t129 = c[3] * t64;
        const V t130 = t128 - t129;
        const V t131 = c[2] * t64;
        const V t132 = c[3] * t65;
        const V t133 = t132 + t131;
        const V t134 = c[6] * t81;
        const V t135 = c[7] * t80;
        const V t136 = t135 - t134;
        const V t137 = c[6] * t80;
        const V t138 = c[7] * t81;
        const V t139 = t138 + t137;
        // complex block of 3, multiplier 2
        const V t140 = t130 + t136;
        const V t141 = t139 - t133;
        const V t142 = t130 - t136;
        const V t143 = t133 + t139;
        const V t144 = t140 + t48;
        io.re(4, t144);
        const V t145 = t141 + t49;
        io.im(4, t145);
        const V t146 = c[0] * t140;
        const V t147 = t48 - t146;
        const V t148 = c[0] * t141;
        const V t149 = t49 - t148;
        const V t150 = c[1] * t142;
        const V t151 = c[1] * t143;
        const V t152 = t147 - t151;
        io.re(16, t152);
        const V t153 = t149 - t150;
        io.im(16, t153);
        const V t154 = t147 + t151;
        io.re(10, t154);
        const V t155 = t149 + t150;
        io.im(10, t155);
        // complex block of 3, multiplier 2
        const V t156 = t14 + t26;
        const V t157 = t15 + t27;
        const V t158 = t14 - t26;
        const V t159 = t15 - t27;
        const V t160 = t156 + t2;
        const V t161 = t157 + t3;
        const V t162 = c[0] * t156;
        const V t163 = t2 - t162;
        const V t164 = c[0] * t157;
        const V t165 = t3 - t164;
        const V t166 = c[1] * t158;
        const V t167 = c[1] * t159;
        const V t168 = t163 + t167;
        const V t169 = t165 - t166;
        const V t170 = t163 - t167;
        const V t171 = t165 + t166;
        // complex block of 3, multiplier 2
        const V t172 = t18 + t30;
        const V t173 = t19 + t31;
        const V t174 = t18 - t30;
        const V t175 = t19 - t31;
        const V t176 = t172 + t6;
        const V t177 = t173 + t7;
        const V t178 = c[0] * t172;
        const V t179 = t6 - t178;
        const V t180 = c[0] * t173;
        const V t181 = t7 - t180;
        const V t182 = c[1] * t174;
        const V t183 = c[1] * t175;
        const V t184 = t179 + t183;
        const V t185 = t181 - t182;
        const V t186 = t179 - t183;
        const V t187 = t181 + t182;
        // complex block of 3, multiplier 2
        const V t188 = t22 + t34;
        const V t189 = t23 + t35;
        const V t190 = t22 - t34;
        const V t191 = t23 - t35;
        const V t192 = t188 + t10;
        const V t193 = t189 + t11;
        const V t194 = c[0] * t188;
        const V t195 = t10 - t194;
        const V t196 = c[0] * t189;
        const V t197 = t11 - t196;
        const V t198 = c[1] * t190;
        const V t199 = c[1] * t191;
        const V t200 = t195 + t199;
        const V t201 = t197 - t198;
        const V t202 = t195 - t199;
        const V t203 = t197 + t198;
        // complex block of 3, multiplier 2
        const V t204 = t176 + t192;
        const V t205 = t177 + t193;
        const V t206 = t176 - t192;
        const V t207 = t177 - t193;
        const V t208 = t204 + t160;
        io.re(9, t208);
        const V t209 = t205 + t161;
        io.im(9, t209);
        const V t210 = c[0] * t204;
        const V t211 = t160 - t210;
        const V t212 = c[0] * t205;
        const V t213 = t161 - t212;
        const V t214 = c[1] * t206;
        const V t215 = c[1] * t207;
        const V t216 = t211 + t215;
        io.re(3, t216);
        const V t217 = t213 - t214;
        io.im(3, t217);
        const V t218 = t211 - t215;
        io.re(15, t218);
        const V t219 = t213 + t214;
        io.im(15, t219);
        // complex block of 9, multiplier 2
        const V t220 = c[4] * t187;
        const V t221 = c[5] * t186;
        const V t222 = t221 + t220;
        const V t223 = c[4] * t186;
        const V t224 = c[5] * t187;
        const V t225 = t224 - t223;
        const V t226 = c[2] * t203;
        const V t227 = c[3] * t202;
        const V t228 = t226 - t227;
        const V t229 = c[2] * t202;
        const V t230 = c[3] * t203;
        const V t231 = t230 + t229;
        // complex block of 3, multiplier 2
        const V t232 = t222 + t228;
        const V t233 = t225 - t231;
        const V t234 = t222 - t228;
        const V t235 = t225 + t231;
        const V t236 = t232 + t170;
        io.re(11, t236);
        const V t237 = t233 + t171;
        io.im(11, t237);
        const V t238 = c[0] * t232;
        const V t239 = t170 - t238;
        const V t240 = c[0] * t233;
        const V t241 = t171 - t240;
        const V t242 = c[1] * t234;
        const V t243 = c[1] * t235;
        const V t244 = t239 + t243;
        io.re(5, t244);
        const V t245 = t241 - t242;
        io.im(5, t245);
        const V t246 = t239 - t243;
        io.re(17, t246);
        const V t247 = t241 + t242;
        io.im(17, t247);
        // complex block of 9, multiplier 2
        const V t248 = c[2] * t185;
        const V t249 = c[3] * t184;
        const V t250 = t248 - t249;
        const V t251 = c[2] * t184;
        const V t252 = c[3] * t185;
        const V t253 = t252 + t251;
        const V t254 = c[6] * t201;
        const V t255 = c[7] * t200;
        const V t256 = t255 - t254;
        const V t257 = c[6] * t200;
        const V t258 = c[7] * t201;
        const V t259 = t258 + t257;
        // complex block of 3, multiplier 2
        const V t260 = t250 + t256;
        const V t261 = t259 - t253;
        const V t262 = t250 - t256;
        const V t263 = t253 + t259;
        const V t264 = t260 + t168;
        io.re(13, t264);
        const V t265 = t261 + t169;
        io.im(13, t265);
        const V t266 = c[0] * t260;
        const V t267 = t168 - t266;
        const V t268 = c[0] * t261;
        const V t269 = t169 - t268;
        const V t270 = c[1] * t262;
        const V t271 = c[1] * t263;
        const V t272 = t267 - t271;
        io.re(7, t272);
        const V t273 = t269 - t270;
        io.im(7, t273);
        const V t274 = t267 + t271;
        io.re(1, t274);
        const V t275 = t269 + t270;
        io.im(1, t275);
    }
};

}  // namespace zulg
