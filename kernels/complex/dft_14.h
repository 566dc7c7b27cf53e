// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 14.
// Complex DFT of 14 points, prime-factor, order 2, 7.
// 74 additions, 74 subtractions, 72 multiplications (100 with `scale`); 6 constants; 33 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<14> {
    static constexpr int steps = 248;  // with `scale`
    static constexpr double inverseRoot = 0.2672612419124244;  // 1/sqrt(14), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 5/7
        0.9009688679024191,  // c[2]: -cos 2 pi 4/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: -sin 2 pi 5/7
        0.4338837391175581,  // c[5]: -sin 2 pi 4/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // complex block of 2
        const V x0r = io.re(0);
        const V x7r = io.re(7);
        const V t0 = x0r + x7r;
        const V x0i = io.im(0);
        const V x7i = io.im(7);
        const V t1 = x0i + x7i;
        const V t2 = x0r - x7r;
        const V t3 = x0i - x7i;
        // complex block of 2
        const V x2r = io.re(2);
        const V x9r = io.re(9);
        const V t4 = x2r + x9r;
        const V x2i = io.im(2);
        const V x9i = io.im(9);
        const V t5 = x2i + x9i;
        const V t6 = x2r - x9r;
        const V t7 = x2i - x9i;
        // complex block of 2
        const V x4r = io.re(4);
        const V x11r = io.re(11);
        const V t8 = x4r + x11r;
        const V x4i = io.im(4);
        const V x11i = io.im(11);
        const V t9 = x4i + x11i;
        const V t10 = x4r - x11r;
        const V t11 = x4i - x11i;
        // complex block of 2
        const V x6r = io.re(6);
        const V x13r = io.re(13);
        const V t12 = x6r + x13r;
        const V x6i = io.im(6);
        const V x13i = io.im(13);
        const V t13 = x6i + x13i;
        const V t14 = x6r - x13r;
        const V t15 = x6i - x13i;
        // complex block of 2
        const V x8r = io.re(8);
        const V x1r = io.re(1);
        const V t16 = x8r + x1r;
        const V x8i = io.im(8);
        const V x1i = io.im(1);
        const V t17 = x8i + x1i;
        const V t18 = x8r - x1r;
        const V t19 = x8i - x1i;
        // complex block of 2
        const V x10r = io.re(10);
        const V x3r = io.re(3);
        const V t20 = x10r + x3r;
        const V x10i = io.im(10);
        const V x3i = io.im(3);
        const V t21 = x10i + x3i;
        const V t22 = x10r - x3r;
        const V t23 = x10i - x3i;
        // complex block of 2
        const V x12r = io.re(12);
        const V x5r = io.re(5);
        const V t24 = x12r + x5r;
        const V x12i = io.im(12);
        const V x5i = io.im(5);
        const V t25 = x12i + x5i;
        const V t26 = x12r - x5r;
        const V t27 = x12i - x5i;
        // complex block of 7, multiplier 2
        const V t28 = t4 + t24;
        const V t29 = t5 + t25;
        const V t30 = t4 - t24;
        const V t31 = t5 - t25;
        const V t32 = t20 + t8;
        const V t33 = t21 + t9;
        const V t34 = t20 - t8;
        const V t35 = t21 - t9;
        const V t36 = t16 + t12;
        const V t37 = t17 + t13;
        const V t38 = t16 - t12;
        const V t39 = t17 - t13;
        const V t40 = t28 + t32;
        const V t41 = t40 + t36;
        const V t42 = t29 + t33;
        const V t43 = t42 + t37;
        const V t44 = t41 + t0;
        io.re(0, t44);
        const V t45 = t43 + t1;
        io.im(0, t45);
        const V t46 = c[0] * t28;
        const V t47 = c[1] * t32;
        const V t48 = t46 - t47;
        const V t49 = c[2] * t36;
        const V t50 = t48 - t49;
        const V t51 = t50 + t0;
        const V t52 = c[0] * t29;
        const V t53 = c[1] * t33;
        const V t54 = t52 - t53;
        const V t55 = c[2] * t37;
        const V t56 = t54 - t55;
        const V t57 = t56 + t1;
        const V t58 = c[3] * t30;
        const V t59 = c[4] * t34;
        const V t60 = t58 - t59;
        const V t61 = c[5] * t38;
        const V t62 = t60 - t61;
        const V t63 = c[3] * t31;
        const V t64 = c[4] * t35;
        const V t65 = t63 - t64;
        const V t66 = c[5] * t39;
        const V t67 = t65 - t66;
        const V t68 = t51 + t67;
        io.re(8, t68);
        const V t69 = t57 - t62;
        io.im(8, t69);
        const V t70 = t51 - t67;
        io.re(6, t70);
        const V t71 = t57 + t62;
        io.im(6, t71);
        const V t72 = c[1] * t28;
        const V t73 = t0 - t72;
        const V t74 = c[2] * t32;
        const V t75 = t73 - t74;
        const V t76 = c[0] * t36;
        const V t77 = t75 + t76;
        const V t78 = c[1] * t29;
        const V t79 = t1 - t78;
        const V t80 = c[2] * t33;
        const V t81 = t79 - t80;
        const V t82 = c[0] * t37;
        const V t83 = t81 + t82;
        const V t84 = c[4] * t30;
        const V t85 = c[5] * t34;
        const V t86 = t84 + t85;
        const V t87 = c[3] * t38;
        const V t88 = t86 + t87;
        const V t89 = c[4] * t31;
        const V t90 = c[5] * t35;
        const V t91 = t89 + t90;
        const V t92 = c[3] * t39;
        const V t93 = t91 + t92;
        const V t94 = t77 + t93;
        io.re(2, t94);
        const V t95 = t83 - t88;
        io.im(2, t95);
        const V t96 = t77 - t93;
        io.re(12, t96);
        const V t97 = t83 + t88;
        io.im(12, t97);
        const V t98 = c[2] * t28;
        const V t99 = t0 - t98;
        const V t100 = c[0] * t32;
        const V t101 = t99 + t100;
        const V t102 = c[1] * t36;
        const V t103 = t101 - t102;
        const V t104 = c[2] * t29;
        const V t105 = t1 - t104;
        const V t106 = c[0] * t33;
        const V t107 = t105 + t106;
        const V t108 = c[1] * t37;
        const V t109 = t107 - t108;
        const V t110 = c[5] * t30;
        const V t111 = c[3] * t34;
        const V t112 = t110 + t111;
        const V t113 = c[4] * t38;
        const V t114 = t112 - t113;
        const V t115 = c[5] * t31;
        const V t116 = c[3] * t35;
        const V t117 = t115 + t116;
        const V t118 = c[4] * t39;
        const V t119 = t117 - t118;
        const V t120 = t103 + t119;
        io.re(10, t120);
        const V t121 = t109 - t114;
        io.im(10, t121);
        const V t122 = t103 - t119;
        io.re(4, t122);
        const V t123 = t109 + t114;
        io.im(4, t123);
        // complex block of 7, multiplier 2
        const V t124 = t6 + t26;
        const V t125 = t7 + t27;
        const V t126 = t6 - t26;
        const V t127 = t7 - t27;
        const V t128 = t22 + t10;
        const V t129 = t23 + t11;
        const V t130 = t22 - t10;
        const V t131 = t23 - t11;
        const V t132 = t18 + t14;
        const V t133 = t19 + t15;
        const V t134 = t18 - t14;
        const V t135 = t19 - t15;
        const V t136 = t124 + t128;
        const V t137 = t136 + t132;
        const V t138 = t125 + t129;
        const V t139 = t138 + t133;
        const V t140 = t137 + t2;
        io.re(7, t140);
        const V t141 = t139 + t3;
        io.im(7, t141);
        const V t142 = c[0] * t124;
        const V t143 = c[1] * t128;
        const V t144 = t142 - t143;
        const V t145 = c[2] * t132;
        const V t146 = t144 - t145;
        const V t147 = t146 + t2;
        const V t148 = c[0] * t125;
        const V t149 = c[1] * t129;
        const V t150 = t148 - t149;
        const V t151 = c[2] * t133;
        const V t152 = t150 - t151;
        const V t153 = t152 + t3;
        const V t154 = c[3] * t126;
        const V t155 = c[4] * t130;
        const V t156 = t154 - t155;
        const V t157 = c[5] * t134;
        const V t158 = t156 - t157;
        const V t159 = c[3] * t127;
        const V t160 = c[4] * t131;
        const V t161 = t159 - t160;
        const V t162 = c[5] * t135;
        const V t163 = t161 - t162;
        const V t164 = t147 + t163;
        io.re(1, t164);
        const V t165 = t153 - t158;
        io.im(1, t165);
        const V t166 = t147 - t163;
        io.re(13, t166);
        const V t167 = t153 + t158;
        io.im(13, t167);
        const V t168 = c[1] * t124;
        const V t169 = t2 - t168;
        const V t170 = c[2] * t128;
        const V t171 = t169 - t170;
        const V t172 = c[0] * t132;
        const V t173 = t171 + t172;
        const V t174 = c[1] * t125;
        const V t175 = t3 - t174;
        const V t176 = c[2] * t129;
        const V t177 = t175 - t176;
        const V t178 = c[0] * t133;
        const V t179 = t177 + t178;
        const V t180 = c[4] * t126;
        const V t181 = c[5] * t130;
        const V t182 = t180 + t181;
        const V t183 = c[3] * t134;
        const V t184 = t182 + t183;
        const V t185 = c[4] * t127;
        const V t186 = c[5] * t131;
        const V t187 = t185 + t186;
        const V t188 = c[3] * t135;
        const V t189 = t187 + t188;
        const V t190 = t173 + t189;
        io.re(9, t190);
        const V t191 = t179 - t184;
        io.im(9, t191);
        const V t192 = t173 - t189;
        io.re(5, t192);
        const V t193 = t179 + t184;
        io.im(5, t193);
        const V t194 = c[2] * t124;
        const V t195 = t2 - t194;
        const V t196 = c[0] * t128;
        const V t197 = t195 + t196;
        const V t198 = c[1] * t132;
        const V t199 = t197 - t198;
        const V t200 = c[2] * t125;
        const V t201 = t3 - t200;
        const V t202 = c[0] * t129;
        const V t203 = t201 + t202;
        const V t204 = c[1] * t133;
        const V t205 = t203 - t204;
        const V t206 = c[5] * t126;
        const V t207 = c[3] * t130;
        const V t208 = t206 + t207;
        const V t209 = c[4] * t134;
        const V t210 = t208 - t209;
        const V t211 = c[5] * t127;
        const V t212 = c[3] * t131;
        const V t213 = t211 + t212;
        const V t214 = c[4] * t135;
        const V t215 = t213 - t214;
        const V t216 = t199 + t215;
        io.re(3, t216);
        const V t217 = t205 - t210;
        io.im(3, t217);
        const V t218 = t199 - t215;
        io.re(11, t218);
        const V t219 = t205 + t210;
        io.im(11, t219);
    }
};

}  // namespace zulg
