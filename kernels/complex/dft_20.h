// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 20.
// Complex DFT of 20 points, prime-factor, order 4, 5.
// 112 additions, 96 subtractions, 64 multiplications (104 with `scale`); 4 constants; 45 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<20> {
    static constexpr int steps = 312;  // with `scale`
    static constexpr double inverseRoot = 0.22360679774997896;  // 1/sqrt(20), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x10r = io.re(10);
        const V t0 = x0r + x10r;
        const V x0i = io.im(0);
        const V x10i = io.im(10);
        const V t1 = x0i + x10i;
        const V t2 = x0r - x10r;
        const V t3 = x0i - x10i;
        // complex block of 2
        const V x5r = io.re(5);
        const V x15r = io.re(15);
        const V t4 = x5r + x15r;
        const V x5i = io.im(5);
        const V x15i = io.im(15);
        const V t5 = x5i + x15i;
        const V t6 = x5r - x15r;
        const V t7 = x5i - x15i;
        // complex block of 2
        const V t8 = t0 + t4;
        const V t9 = t1 + t5;
        const V t10 = t0 - t4;
        const V t11 = t1 - t5;
        // complex block of 2
        const V t12 = t2 + t7;
        const V t13 = t3 - t6;
        const V t14 = t2 - t7;
        const V t15 = t3 + t6;
        // complex block of 2
        const V x4r = io.re(4);
        const V x14r = io.re(14);
        const V t16 = x4r + x14r;
        const V x4i = io.im(4);
        const V x14i = io.im(14);
        const V t17 = x4i + x14i;
        const V t18 = x4r - x14r;
        const V t19 = x4i - x14i;
        // complex block of 2
        const V x9r = io.re(9);
        const V x19r = io.re(19);
        const V t20 = x9r + x19r;
        const V x9i = io.im(9);
        const V x19i = io.im(19);
        const V t21 = x9i + x19i;
        const V t22 = x9r - x19r;
        const V t23 = x9i - x19i;
        // complex block of 2
        const V t24 = t16 + t20;
        const V t25 = t17 + t21;
        const V t26 = t16 - t20;
        const V t27 = t17 - t21;
        // complex block of 2
        const V t28 = t18 + t23;
        const V t29 = t19 - t22;
        const V t30 = t18 - t23;
        const V t31 = t19 + t22;
        // complex block of 2
        const V x8r = io.re(8);
        const V x18r = io.re(18);
        const V t32 = x8r + x18r;
        const V x8i = io.im(8);
        const V x18i = io.im(18);
        const V t33 = x8i + x18i;
        const V t34 = x8r - x18r;
        const V t35 = x8i - x18i;
        // complex block of 2
        const V x13r = io.re(13);
        const V x3r = io.re(3);
        const V t36 = x13r + x3r;
        const V x13i = io.im(13);
        const V x3i = io.im(3);
        const V t37 = x13i + x3i;
        const V t38 = x13r - x3r;
        const V t39 = x13i - x3i;
        // complex block of 2
        const V t40 = t32 + t36;
        const V t41 = t33 + t37;
        const V t42 = t32 - t36;
        const V t43 = t33 - t37;
        // complex block of 2
        const V t44 = t34 + t39;
        const V t45 = t35 - t38;
        const V t46 = t34 - t39;
        const V t47 = t35 + t38;
        // complex block of 2
        const V x12r = io.re(12);
        const V x2r = io.re(2);
        const V t48 = x12r + x2r;
        const V x12i = io.im(12);
        const V x2i = io.im(2);
        const V t49 = x12i + x2i;
        const V t50 = x12r - x2r;
        const V t51 = x12i - x2i;
        // complex block of 2
        const V x17r = io.re(17);
        const V x7r = io.re(7);
        const V t52 = x17r + x7r;
        const V x17i = io.im(17);
        const V x7i = io.im(7);
        const V t53 = x17i + x7i;
        const V t54 = x17r - x7r;
        const V t55 = x17i - x7i;
        // complex block of 2
        const V t56 = t48 + t52;
        const V t57 = t49 + t53;
        const V t58 = t48 - t52;
        const V t59 = t49 - t53;
        // complex block of 2
        const V t60 = t50 + t55;
        const V t61 = t51 - t54;
        const V t62 = t50 - t55;
        const V t63 = t51 + t54;
        // complex block of 2
        const V x16r = io.re(16);
        const V x6r = io.re(6);
        const V t64 = x16r + x6r;
        const V x16i = io.im(16);
        const V x6i = io.im(6);
        const V t65 = x16i + x6i;
        const V t66 = x16r - x6r;
        const V t67 = x16i - x6i;
        // complex block of 2
        const V x1r = io.re(1);
        const V x11r = io.re(11);
        const V t68 = x1r + x11r;
        const V x1i = io.im(1);
        const V x11i = io.im(11);
        const V t69 = x1i + x11i;
        const V t70 = x1r - x11r;
        const V t71 = x1i - x11i;
        // complex block of 2
        const V t72 = t64 + t68;
        const V t73 = t65 + t69;
        const V t74 = t64 - t68;
        const V t75 = t65 - t69;
        // complex block of 2
        const V t76 = t66 + t71;
        const V t77 = t67 - t70;
        const V t78 = t66 - t71;
        const V t79 = t67 + t70;
        // complex block of 5, multiplier 4
        const V t80 = t24 + t72;
        const V t81 = t25 + t73;
        const V t82 = t24 - t72;
        const V t83 = t25 - t73;
        const V t84 = t56 + t40;
        const V t85 = t57 + t41;
        const V t86 = t56 - t40;
        const V t87 = t57 - t41;
        const V t88 = t80 + t84;
        const V t89 = t81 + t85;
        const V t90 = t88 + t8;
        io.re(0, t90);
        const V t91 = t89 + t9;
        io.im(0, t91);
        const V t92 = c[0] * t80;
        const V t93 = c[1] * t84;
        const V t94 = t92 - t93;
        const V t95 = t94 + t8;
        const V t96 = c[0] * t81;
        const V t97 = c[1] * t85;
        const V t98 = t96 - t97;
        const V t99 = t98 + t9;
        const V t100 = c[2] * t82;
        const V t101 = c[3] * t86;
        const V t102 = t100 - t101;
        const V t103 = c[2] * t83;
        const V t104 = c[3] * t87;
        const V t105 = t103 - t104;
        const V t106 = t95 + t105;
        io.re(16, t106);
        const V t107 = t99 - t102;
        io.im(16, t107);
        const V t108 = t95 - t105;
        io.re(4, t108);
        const V t109 = t99 + t102;
        io.im(4, t109);
        const V t110 = c[1] * t80;
        const V t111 = t8 - t110;
        const V t112 = c[0] * t84;
        const V t113 = t111 + t112;
        const V t114 = c[1] * t81;
        const V t115 = t9 - t114;
        const V t116 = c[0] * t85;
        const V t117 = t115 + t116;
        const V t118 = c[3] * t82;
        const V t119 = c[2] * t86;
        const V t120 = t118 + t119;
        const V t121 = c[3] * t83;
        const V t122 = c[2] * t87;
        const V t123 = t121 + t122;
        const V t124 = t113 + t123;
        io.re(12, t124);
        const V t125 = t117 - t120;
        io.im(12, t125);
        const V t126 = t113 - t123;
        io.re(8, t126);
        const V t127 = t117 + t120;
        io.im(8, t127);
        // complex block of 5, multiplier 4
        const V t128 = t28 + t76;
        const V t129 = t29 + t77;
        const V t130 = t28 - t76;
        const V t131 = t29 - t77;
        const V t132 = t60 + t44;
        const V t133 = t61 + t45;
        const V t134 = t60 - t44;
        const V t135 = t61 - t45;
        const V t136 = t128 + t132;
        const V t137 = t129 + t133;
        const V t138 = t136 + t12;
        io.re(5, t138);
        const V t139 = t137 + t13;
        io.im(5, t139);
        const V t140 = c[0] * t128;
        const V t141 = c[1] * t132;
        const V t142 = t140 - t141;
        const V t143 = t142 + t12;
        const V t144 = c[0] * t129;
        const V t145 = c[1] * t133;
        const V t146 = t144 - t145;
        const V t147 = t146 + t13;
        const V t148 = c[2] * t130;
        const V t149 = c[3] * t134;
        const V t150 = t148 - t149;
        const V t151 = c[2] * t131;
        const V t152 = c[3] * t135;
        const V t153 = t151 - t152;
        const V t154 = t143 + t153;
        io.re(1, t154);
        const V t155 = t147 - t150;
        io.im(1, t155);
        const V t156 = t143 - t153;
        io.re(9, t156);
        const V t157 = t147 + t150;
        io.im(9, t157);
        const V t158 = c[1] * t128;
        const V t159 = t12 - t158;
        const V t160 = c[0] * t132;
        const V t161 = t159 + t160;
        const V t162 = c[1] * t129;
        const V t163 = t13 - t162;
        const V t164 = c[0] * t133;
        const V t165 = t163 + t164;
        const V t166 = c[3] * t130;
        const V t167 = c[2] * t134;
        const V t168 = t166 + t167;
        const V t169 = c[3] * t131;
        const V t170 = c[2] * t135;
        const V t171 = t169 + t170;
        const V t172 = t161 + t171;
        io.re(17, t172);
        const V t173 = t165 - t168;
        io.im(17, t173);
        const V t174 = t161 - t171;
        io.re(13, t174);
        const V t175 = t165 + t168;
        io.im(13, t175);
        // complex block of 5, multiplier 4
        const V t176 = t26 + t74;
        const V t177 = t27 + t75;
        const V t178 = t26 - t74;
        const V t179 = t27 - t75;
        const V t180 = t58 + t42;
        const V t181 = t59 + t43;
        const V t182 = t58 - t42;
        const V t183 = t59 - t43;
        const V t184 = t176 + t180;
        const V t185 = t177 + t181;
        const V t186 = t184 + t10;
        io.re(10, t186);
        const V t187 = t185 + t11;
        io.im(10, t187);
        const V t188 = c[0] * t176;
        const V t189 = c[1] * t180;
        const V t190 = t188 - t189;
        const V t191 = t190 + t10;
        const V t192 = c[0] * t177;
        const V t193 = c[1] * t181;
        const V t194 = t192 - t193;
        const V t195 = t194 + t11;
        const V t196 = c[2] * t178;
        const V t197 = c[3] * t182;
        const V t198 = t196 - t197;
        const V t199 = c[2] * t179;
        const V t200 = c[3] * t183;
        const V t201 = t199 - t200;
        const V t202 = t191 + t201;
        io.re(6, t202);
        const V t203 = t195 - t198;
        io.im(6, t203);
        const V t204 = t191 - t201;
        io.re(14, t204);
        const V t205 = t195 + t198;
        io.im(14, t205);
        const V t206 = c[1] * t176;
        const V t207 = t10 - t206;
        const V t208 = c[0] * t180;
        const V t209 = t207 + t208;
        const V t210 = c[1] * t177;
        const V t211 = t11 - t210;
        const V t212 = c[0] * t181;
        const V t213 = t211 + t212;
        const V t214 = c[3] * t178;
        const V t215 = c[2] * t182;
        const V t216 = t214 + t215;
        const V t217 = c[3] * t179;
        const V t218 = c[2] * t183;
        const V t219 = t217 + t218;
        const V t220 = t209 + t219;
        io.re(2, t220);
        const V t221 = t213 - t216;
        io.im(2, t221);
        const V t222 = t209 - t219;
        io.re(18, t222);
        const V t223 = t213 + t216;
        io.im(18, t223);
        // complex block of 5, multiplier 4
        const V t224 = t30 + t78;
        const V t225 = t31 + t79;
        const V t226 = t30 - t78;
        const V t227 = t31 - t79;
        const V t228 = t62 + t46;
        const V t229 = t63 + t47;
        const V t230 = t62 - t46;
        const V t231 = t63 - t47;
        const V t232 = t224 + t228;
        const V t233 = t225 + t229;
        const V t234 = t232 + t14;
        io.re(15, t234);
        const V t235 = t233 + t15;
        io.im(15, t235);
        const V t236 = c[0] * t224;
        const V t237 = c[1] * t228;
        const V t238 = t236 - t237;
        const V t239 = t238 + t14;
        const V t240 = c[0] * t225;
        const V t241 = c[1] * t229;
        const V t242 = t240 - t241;
        const V t243 = t242 + t15;
        const V t244 = c[2] * t226;
        const V t245 = c[3] * t230;
        const V t246 = t244 - t245;
        const V t247 = c[2] * t227;
        const V t248 = c[3] * t231;
        const V t249 = t247 - t248;
        const V t250 = t239 + t249;
        io.re(11, t250);
        const V t251 = t243 - t246;
        io.im(11, t251);
        const V t252 = t239 - t249;
        io.re(19, t252);
        const V t253 = t243 + t246;
        io.im(19, t253);
        const V t254 = c[1] * t224;
        const V t255 = t14 - t254;
        const V t256 = c[0] * t228;
        const V t257 = t255 + t256;
        const V t258 = c[1] * t225;
        const V t259 = t15 - t258;
        const V t260 = c[0] * t229;
        const V t261 = t259 + t260;
        const V t262 = c[3] * t226;
        const V t263 = c[2] * t230;
        const V t264 = t262 + t263;
        const V t265 = c[3] * t227;
        const V t266 = c[2] * t231;
        const V t267 = t265 + t266;
        const V t268 = t257 + t267;
        io.re(7, t268);
        const V t269 = t261 - t264;
        io.im(7, t269);
        const V t270 = t257 - t267;
        io.re(3, t270);
        const V t271 = t261 + t264;
        io.im(3, t271);
    }
};

}  // namespace zulg
