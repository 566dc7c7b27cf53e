// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 28.
// Forward DFT of 28 real points, prime-factor 4, 7.
// 77 additions, 73 subtractions, 72 multiplications (100 with `scale`); 7 outputs negated; 6 constants; 31 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<28> {
    static constexpr int steps = 250;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x14 = io.in(14);
        const V t0 = x0 + x14;
        const V t1 = x0 - x14;
        // real block of 2
        const V x7 = io.in(7);
        const V x21 = io.in(21);
        const V t2 = x7 + x21;
        const V t3 = x7 - x21;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x4 = io.in(4);
        const V x18 = io.in(18);
        const V t6 = x4 + x18;
        const V t7 = x4 - x18;
        // real block of 2
        const V x11 = io.in(11);
        const V x25 = io.in(25);
        const V t8 = x11 + x25;
        const V t9 = x11 - x25;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x8 = io.in(8);
        const V x22 = io.in(22);
        const V t12 = x8 + x22;
        const V t13 = x8 - x22;
        // real block of 2
        const V x15 = io.in(15);
        const V x1 = io.in(1);
        const V t14 = x15 + x1;
        const V t15 = x15 - x1;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 2
        const V x12 = io.in(12);
        const V x26 = io.in(26);
        const V t18 = x12 + x26;
        const V t19 = x12 - x26;
        // real block of 2
        const V x19 = io.in(19);
        const V x5 = io.in(5);
        const V t20 = x19 + x5;
        const V t21 = x19 - x5;
        // real block of 2
        const V t22 = t18 + t20;
        const V t23 = t18 - t20;
        // real block of 2
        const V x16 = io.in(16);
        const V x2 = io.in(2);
        const V t24 = x16 + x2;
        const V t25 = x16 - x2;
        // real block of 2
        const V x23 = io.in(23);
        const V x9 = io.in(9);
        const V t26 = x23 + x9;
        const V t27 = x23 - x9;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // real block of 2
        const V x20 = io.in(20);
        const V x6 = io.in(6);
        const V t30 = x20 + x6;
        const V t31 = x20 - x6;
        // real block of 2
        const V x27 = io.in(27);
        const V x13 = io.in(13);
        const V t32 = x27 + x13;
        const V t33 = x27 - x13;
        // real block of 2
        const V t34 = t30 + t32;
        const V t35 = t30 - t32;
        // real block of 2
        const V x24 = io.in(24);
        const V x10 = io.in(10);
        const V t36 = x24 + x10;
        const V t37 = x24 - x10;
        // real block of 2
        const V x3 = io.in(3);
        const V x17 = io.in(17);
        const V t38 = x3 + x17;
        const V t39 = x3 - x17;
        // real block of 2
        const V t40 = t36 + t38;
        const V t41 = t36 - t38;
        // real block of 7, multiplier 4
        const V t42 = t10 + t40;
        const V t43 = t10 - t40;
        const V t44 = t34 + t16;
        const V t45 = t34 - t16;
        const V t46 = t28 + t22;
        const V t47 = t28 - t22;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V t50 = t49 + t4;
        io.re(0, t50);
        const V t51 = c[0] * t42;
        const V t52 = t4 - t51;
        const V t53 = c[1] * t44;
        const V t54 = t52 + t53;
        const V t55 = c[2] * t46;
        const V t56 = t54 - t55;
        io.re(4, t56);
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t57 + t58;
        const V t61 = t60 - t59;
        io.im(4, t61);
        const V t62 = c[1] * t42;
        const V t63 = c[2] * t44;
        const V t64 = t62 - t63;
        const V t65 = c[0] * t46;
        const V t66 = t64 - t65;
        const V t67 = t66 + t4;
        io.re(8, t67);
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t69 + t70;
        const V t72 = t71 - t68;
        io.im(8, t72);
        const V t73 = c[2] * t42;
        const V t74 = t4 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 - t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 + t77;
        io.re(12, t78);
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 + t80;
        const V t83 = t82 + t81;
        io.im(12, t83);
        // complex block of 7, multiplier 4
        const V t84 = t7 + t37;
        const V t85 = t9 + t39;
        const V t86 = t7 - t37;
        const V t87 = t9 - t39;
        const V t88 = t31 + t13;
        const V t89 = t33 + t15;
        const V t90 = t31 - t13;
        const V t91 = t33 - t15;
        const V t92 = t25 + t19;
        const V t93 = t27 + t21;
        const V t94 = t25 - t19;
        const V t95 = t27 - t21;
        const V t96 = t84 + t88;
        const V t97 = t96 + t92;
        const V t98 = t85 + t89;
        const V t99 = t98 + t93;
        const V t100 = t97 + t1;
        io.re(7, t100);
        const V t101 = t99 + t3;
        io.im(7, t101);
        const V t102 = c[1] * t84;
        const V t103 = c[2] * t88;
        const V t104 = t102 - t103;
        const V t105 = c[0] * t92;
        const V t106 = t104 - t105;
        const V t107 = t106 + t1;
        const V t108 = c[1] * t85;
        const V t109 = c[2] * t89;
        const V t110 = t108 - t109;
        const V t111 = c[0] * t93;
        const V t112 = t110 - t111;
        const V t113 = t112 + t3;
        const V t114 = c[4] * t86;
        const V t115 = c[5] * t90;
        const V t116 = t114 - t115;
        const V t117 = c[3] * t94;
        const V t118 = t116 - t117;
        const V t119 = c[4] * t87;
        const V t120 = c[5] * t91;
        const V t121 = t119 - t120;
        const V t122 = c[3] * t95;
        const V t123 = t121 - t122;
        const V t124 = t107 + t123;
        io.re(13, t124);
        const V t125 = t113 - t118;
        io.minusIm(13, t125);
        const V t126 = t107 - t123;
        io.re(1, t126);
        const V t127 = t113 + t118;
        io.minusIm(1, t127);
        const V t128 = c[2] * t84;
        const V t129 = t1 - t128;
        const V t130 = c[0] * t88;
        const V t131 = t129 - t130;
        const V t132 = c[1] * t92;
        const V t133 = t131 + t132;
        const V t134 = c[2] * t85;
        const V t135 = t3 - t134;
        const V t136 = c[0] * t89;
        const V t137 = t135 - t136;
        const V t138 = c[1] * t93;
        const V t139 = t137 + t138;
        const V t140 = c[5] * t86;
        const V t141 = c[3] * t90;
        const V t142 = t140 + t141;
        const V t143 = c[4] * t94;
        const V t144 = t142 + t143;
        const V t145 = c[5] * t87;
        const V t146 = c[3] * t91;
        const V t147 = t145 + t146;
        const V t148 = c[4] * t95;
        const V t149 = t147 + t148;
        const V t150 = t133 + t149;
        io.re(5, t150);
        const V t151 = t139 - t144;
        io.minusIm(5, t151);
        const V t152 = t133 - t149;
        io.re(9, t152);
        const V t153 = t139 + t144;
        io.minusIm(9, t153);
        const V t154 = c[0] * t84;
        const V t155 = t1 - t154;
        const V t156 = c[1] * t88;
        const V t157 = t155 + t156;
        const V t158 = c[2] * t92;
        const V t159 = t157 - t158;
        const V t160 = c[0] * t85;
        const V t161 = t3 - t160;
        const V t162 = c[1] * t89;
        const V t163 = t161 + t162;
        const V t164 = c[2] * t93;
        const V t165 = t163 - t164;
        const V t166 = c[3] * t86;
        const V t167 = c[4] * t90;
        const V t168 = t166 + t167;
        const V t169 = c[5] * t94;
        const V t170 = t168 - t169;
        const V t171 = c[3] * t87;
        const V t172 = c[4] * t91;
        const V t173 = t171 + t172;
        const V t174 = c[5] * t95;
        const V t175 = t173 - t174;
        const V t176 = t159 + t175;
        io.re(3, t176);
        const V t177 = t165 - t170;
        io.im(3, t177);
        const V t178 = t159 - t175;
        io.re(11, t178);
        const V t179 = t165 + t170;
        io.im(11, t179);
        // real block of 7, multiplier 4
        const V t180 = t11 + t41;
        const V t181 = t11 - t41;
        const V t182 = t35 + t17;
        const V t183 = t35 - t17;
        const V t184 = t29 + t23;
        const V t185 = t29 - t23;
        const V t186 = t180 + t182;
        const V t187 = t186 + t184;
        const V t188 = t187 + t5;
        io.re(14, t188);
        const V t189 = c[0] * t180;
        const V t190 = t5 - t189;
        const V t191 = c[1] * t182;
        const V t192 = t190 + t191;
        const V t193 = c[2] * t184;
        const V t194 = t192 - t193;
        io.re(10, t194);
        const V t195 = c[3] * t181;
        const V t196 = c[4] * t183;
        const V t197 = c[5] * t185;
        const V t198 = t195 + t196;
        const V t199 = t198 - t197;
        io.minusIm(10, t199);
        const V t200 = c[1] * t180;
        const V t201 = c[2] * t182;
        const V t202 = t200 - t201;
        const V t203 = c[0] * t184;
        const V t204 = t202 - t203;
        const V t205 = t204 + t5;
        io.re(6, t205);
        const V t206 = c[4] * t181;
        const V t207 = c[5] * t183;
        const V t208 = c[3] * t185;
        const V t209 = t207 + t208;
        const V t210 = t209 - t206;
        io.minusIm(6, t210);
        const V t211 = c[2] * t180;
        const V t212 = t5 - t211;
        const V t213 = c[0] * t182;
        const V t214 = t212 - t213;
        const V t215 = c[1] * t184;
        const V t216 = t214 + t215;
        io.re(2, t216);
        const V t217 = c[5] * t181;
        const V t218 = c[3] * t183;
        const V t219 = c[4] * t185;
        const V t220 = t217 + t218;
        const V t221 = t220 + t219;
        io.minusIm(2, t221);
    }
};

}  // namespace zulg
