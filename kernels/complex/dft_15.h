// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 15.
// Complex DFT of 15 points, prime-factor, order 3, 5.
// 84 additions, 72 subtractions, 68 multiplications (98 with `scale`); 6 constants; 35 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<15> {
    static constexpr int steps = 254;  // with `scale`
    static constexpr double inverseRoot = 0.2581988897471611;  // 1/sqrt(15), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 3, multiplier 2
        const V x5r = io.re(5);
        const V x10r = io.re(10);
        const V t0 = x5r + x10r;
        const V x5i = io.im(5);
        const V x10i = io.im(10);
        const V t1 = x5i + x10i;
        const V t2 = x5r - x10r;
        const V t3 = x5i - x10i;
        const V x0r = io.re(0);
        const V t4 = t0 + x0r;
        const V x0i = io.im(0);
        const V t5 = t1 + x0i;
        const V t6 = c[4] * t0;
        const V t7 = x0r - t6;
        const V t8 = c[4] * t1;
        const V t9 = x0i - t8;
        const V t10 = c[5] * t2;
        const V t11 = c[5] * t3;
        const V t12 = t7 + t11;
        const V t13 = t9 - t10;
        const V t14 = t7 - t11;
        const V t15 = t9 + t10;
        // complex block of 3, multiplier 2
        const V x8r = io.re(8);
        const V x13r = io.re(13);
        const V t16 = x8r + x13r;
        const V x8i = io.im(8);
        const V x13i = io.im(13);
        const V t17 = x8i + x13i;
        const V t18 = x8r - x13r;
        const V t19 = x8i - x13i;
        const V x3r = io.re(3);
        const V t20 = t16 + x3r;
        const V x3i = io.im(3);
        const V t21 = t17 + x3i;
        const V t22 = c[4] * t16;
        const V t23 = x3r - t22;
        const V t24 = c[4] * t17;
        const V t25 = x3i - t24;
        const V t26 = c[5] * t18;
        const V t27 = c[5] * t19;
        const V t28 = t23 + t27;
        const V t29 = t25 - t26;
        const V t30 = t23 - t27;
        const V t31 = t25 + t26;
        // complex block of 3, multiplier 2
        const V x11r = io.re(11);
        const V x1r = io.re(1);
        const V t32 = x11r + x1r;
        const V x11i = io.im(11);
        const V x1i = io.im(1);
        const V t33 = x11i + x1i;
        const V t34 = x11r - x1r;
        const V t35 = x11i - x1i;
        const V x6r = io.re(6);
        const V t36 = t32 + x6r;
        const V x6i = io.im(6);
        const V t37 = t33 + x6i;
        const V t38 = c[4] * t32;
        const V t39 = x6r - t38;
        const V t40 = c[4] * t33;
        const V t41 = x6i - t40;
        const V t42 = c[5] * t34;
        const V t43 = c[5] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // complex block of 3, multiplier 2
        const V x14r = io.re(14);
        const V x4r = io.re(4);
        const V t48 = x14r + x4r;
        const V x14i = io.im(14);
        const V x4i = io.im(4);
        const V t49 = x14i + x4i;
        const V t50 = x14r - x4r;
        const V t51 = x14i - x4i;
        const V x9r = io.re(9);
        const V t52 = t48 + x9r;
        const V x9i = io.im(9);
        const V t53 = t49 + x9i;
        const V t54 = c[4] * t48;
        const V t55 = x9r - t54;
        const V t56 = c[4] * t49;
        const V t57 = x9i - t56;
        const V t58 = c[5] * t50;
        const V t59 = c[5] * t51;
        const V t60 = t55 + t59;
        const V t61 = t57 - t58;
        const V t62 = t55 - t59;
        const V t63 = t57 + t58;
        // complex block of 3, multiplier 2
        const V x2r = io.re(2);
        const V x7r = io.re(7);
        const V t64 = x2r + x7r;
        const V x2i = io.im(2);
        const V x7i = io.im(7);
        const V t65 = x2i + x7i;
        const V t66 = x2r - x7r;
        const V t67 = x2i - x7i;
        const V x12r = io.re(12);
        const V t68 = t64 + x12r;
        const V x12i = io.im(12);
        const V t69 = t65 + x12i;
        const V t70 = c[4] * t64;
        const V t71 = x12r - t70;
        const V t72 = c[4] * t65;
        const V t73 = x12i - t72;
        const V t74 = c[5] * t66;
        const V t75 = c[5] * t67;
        const V t76 = t71 + t75;
        const V t77 = t73 - t74;
        const V t78 = t71 - t75;
        const V t79 = t73 + t74;
        // complex block of 5, multiplier 3
        const V t80 = t20 + t68;
        const V t81 = t21 + t69;
        const V t82 = t20 - t68;
        const V t83 = t21 - t69;
        const V t84 = t52 + t36;
        const V t85 = t53 + t37;
        const V t86 = t52 - t36;
        const V t87 = t53 - t37;
        const V t88 = t80 + t84;
        const V t89 = t81 + t85;
        const V t90 = t88 + t4;
        io.re(0, t90);
        const V t91 = t89 + t5;
        io.im(0, t91);
        const V t92 = c[0] * t80;
        const V t93 = c[1] * t84;
        const V t94 = t92 - t93;
        const V t95 = t94 + t4;
        const V t96 = c[0] * t81;
        const V t97 = c[1] * t85;
        const V t98 = t96 - t97;
        const V t99 = t98 + t5;
        const V t100 = c[2] * t82;
        const V t101 = c[3] * t86;
        const V t102 = t100 - t101;
        const V t103 = c[2] * t83;
        const V t104 = c[3] * t87;
        const V t105 = t103 - t104;
        const V t106 = t95 + t105;
        io.re(6, t106);
        const V t107 = t99 - t102;
        io.im(6, t107);
        const V t108 = t95 - t105;
        io.re(9, t108);
        const V t109 = t99 + t102;
        io.im(9, t109);
        const V t110 = c[1] * t80;
        const V t111 = t4 - t110;
        const V t112 = c[0] * t84;
        const V t113 = t111 + t112;
        const V t114 = c[1] * t81;
        const V t115 = t5 - t114;
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
        io.re(3, t126);
        const V t127 = t117 + t120;
        io.im(3, t127);
        // complex block of 5, multiplier 3
        const V t128 = t30 + t78;
        const V t129 = t31 + t79;
        const V t130 = t30 - t78;
        const V t131 = t31 - t79;
        const V t132 = t62 + t46;
        const V t133 = t63 + t47;
        const V t134 = t62 - t46;
        const V t135 = t63 - t47;
        const V t136 = t128 + t132;
        const V t137 = t129 + t133;
        const V t138 = t136 + t14;
        io.re(5, t138);
        const V t139 = t137 + t15;
        io.im(5, t139);
        const V t140 = c[0] * t128;
        const V t141 = c[1] * t132;
        const V t142 = t140 - t141;
        const V t143 = t142 + t14;
        const V t144 = c[0] * t129;
        const V t145 = c[1] * t133;
        const V t146 = t144 - t145;
        const V t147 = t146 + t15;
        const V t148 = c[2] * t130;
        const V t149 = c[3] * t134;
        const V t150 = t148 - t149;
        const V t151 = c[2] * t131;
        const V t152 = c[3] * t135;
        const V t153 = t151 - t152;
        const V t154 = t143 + t153;
        io.re(11, t154);
        const V t155 = t147 - t150;
        io.im(11, t155);
        const V t156 = t143 - t153;
        io.re(14, t156);
        const V t157 = t147 + t150;
        io.im(14, t157);
        const V t158 = c[1] * t128;
        const V t159 = t14 - t158;
        const V t160 = c[0] * t132;
        const V t161 = t159 + t160;
        const V t162 = c[1] * t129;
        const V t163 = t15 - t162;
        const V t164 = c[0] * t133;
        const V t165 = t163 + t164;
        const V t166 = c[3] * t130;
        const V t167 = c[2] * t134;
        const V t168 = t166 + t167;
        const V t169 = c[3] * t131;
        const V t170 = c[2] * t135;
        const V t171 = t169 + t170;
        const V t172 = t161 + t171;
        io.re(2, t172);
        const V t173 = t165 - t168;
        io.im(2, t173);
        const V t174 = t161 - t171;
        io.re(8, t174);
        const V t175 = t165 + t168;
        io.im(8, t175);
        // complex block of 5, multiplier 3
        const V t176 = t28 + t76;
        const V t177 = t29 + t77;
        const V t178 = t28 - t76;
        const V t179 = t29 - t77;
        const V t180 = t60 + t44;
        const V t181 = t61 + t45;
        const V t182 = t60 - t44;
        const V t183 = t61 - t45;
        const V t184 = t176 + t180;
        const V t185 = t177 + t181;
        const V t186 = t184 + t12;
        io.re(10, t186);
        const V t187 = t185 + t13;
        io.im(10, t187);
        const V t188 = c[0] * t176;
        const V t189 = c[1] * t180;
        const V t190 = t188 - t189;
        const V t191 = t190 + t12;
        const V t192 = c[0] * t177;
        const V t193 = c[1] * t181;
        const V t194 = t192 - t193;
        const V t195 = t194 + t13;
        const V t196 = c[2] * t178;
        const V t197 = c[3] * t182;
        const V t198 = t196 - t197;
        const V t199 = c[2] * t179;
        const V t200 = c[3] * t183;
        const V t201 = t199 - t200;
        const V t202 = t191 + t201;
        io.re(1, t202);
        const V t203 = t195 - t198;
        io.im(1, t203);
        const V t204 = t191 - t201;
        io.re(4, t204);
        const V t205 = t195 + t198;
        io.im(4, t205);
        const V t206 = c[1] * t176;
        const V t207 = t12 - t206;
        const V t208 = c[0] * t180;
        const V t209 = t207 + t208;
        const V t210 = c[1] * t177;
        const V t211 = t13 - t210;
        const V t212 = c[0] * t181;
        const V t213 = t211 + t212;
        const V t214 = c[3] * t178;
        const V t215 = c[2] * t182;
        const V t216 = t214 + t215;
        const V t217 = c[3] * t179;
        const V t218 = c[2] * t183;
        const V t219 = t217 + t218;
        const V t220 = t209 + t219;
        io.re(7, t220);
        const V t221 = t213 - t216;
        io.im(7, t221);
        const V t222 = t209 - t219;
        io.re(13, t222);
        const V t223 = t213 + t216;
        io.im(13, t223);
    }
};

}  // namespace zulg
