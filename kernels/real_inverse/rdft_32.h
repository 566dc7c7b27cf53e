// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 32.
// Inverse DFT to 32 real points, twiddled 8, 4.
// 78 additions, 78 subtractions, 72 multiplications (104 with `scale`); 8 constants; 43 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<32> {
    static constexpr int steps = 260;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: -sin 2 pi 30/32
        0.9238795325112867,  // c[2]: cos 2 pi 30/32
        0.19509032201612828,  // c[3]: -sin 2 pi 31/32
        0.9807852804032304,  // c[4]: cos 2 pi 31/32
        0.8314696123025452,  // c[5]: cos 2 pi 29/32
        0.5555702330196022,  // c[6]: -sin 2 pi 29/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // spectrum block of 2
        const V x0r = io.re(0);
        const V x16r = io.re(16);
        const V t0 = x0r + x16r;
        const V t1 = x0r - x16r;
        // doubled bins
        const V x8r = io.re(8);
        const V t2 = two * x8r;
        const V x8i = io.im(8);
        const V t3 = two * x8i;
        // spectrum block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // spectrum block of 2
        const V t6 = t1 - t3;
        const V t7 = t1 + t3;
        // doubled bins
        const V x1r = io.re(1);
        const V t8 = two * x1r;
        const V x1i = io.im(1);
        const V t9 = two * x1i;
        const V x7r = io.re(7);
        const V t10 = two * x7r;
        const V x7i = io.im(7);
        const V t11 = two * x7i;
        const V x9r = io.re(9);
        const V t12 = two * x9r;
        const V x9i = io.im(9);
        const V t13 = two * x9i;
        const V x15r = io.re(15);
        const V t14 = two * x15r;
        const V x15i = io.im(15);
        const V t15 = two * x15i;
        // complex block of 2
        const V t16 = t9 - t15;
        // complex block of 2
        const V t17 = t13 - t11;
        // complex block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        // complex block of 2
        const V t20 = t8 + t14;
        // complex block of 2
        const V t21 = t12 + t10;
        // complex block of 2
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        // complex block of 2
        const V t24 = t9 + t15;
        // complex block of 2
        const V t25 = t12 - t10;
        // complex block of 2
        const V t26 = t24 + t25;
        const V t27 = t24 - t25;
        // complex block of 2
        const V t28 = t8 - t14;
        // complex block of 2
        const V t29 = t13 + t11;
        // complex block of 2
        const V t30 = t28 - t29;
        const V t31 = t28 + t29;
        // doubled bins
        const V x2r = io.re(2);
        const V t32 = two * x2r;
        const V x2i = io.im(2);
        const V t33 = two * x2i;
        const V x6r = io.re(6);
        const V t34 = two * x6r;
        const V x6i = io.im(6);
        const V t35 = two * x6i;
        const V x10r = io.re(10);
        const V t36 = two * x10r;
        const V x10i = io.im(10);
        const V t37 = two * x10i;
        const V x14r = io.re(14);
        const V t38 = two * x14r;
        const V x14i = io.im(14);
        const V t39 = two * x14i;
        // complex block of 2
        const V t40 = t33 - t39;
        // complex block of 2
        const V t41 = t37 - t35;
        // complex block of 2
        const V t42 = t40 - t41;
        // complex block of 2
        const V t43 = t32 + t38;
        // complex block of 2
        const V t44 = t36 + t34;
        // complex block of 2
        const V t45 = t43 - t44;
        // complex block of 2
        const V t46 = t33 + t39;
        // complex block of 2
        const V t47 = t36 - t34;
        // complex block of 2
        const V t48 = t46 + t47;
        const V t49 = t46 - t47;
        // complex block of 2
        const V t50 = t32 - t38;
        // complex block of 2
        const V t51 = t37 + t35;
        // complex block of 2
        const V t52 = t50 - t51;
        const V t53 = t50 + t51;
        // doubled bins
        const V x3r = io.re(3);
        const V t54 = two * x3r;
        const V x13r = io.re(13);
        const V t55 = two * x13r;
        // complex block of 2
        const V t56 = t55 - t54;
        // doubled bins
        const V x3i = io.im(3);
        const V t57 = two * x3i;
        const V x13i = io.im(13);
        const V t58 = two * x13i;
        // complex block of 2
        const V t59 = t58 + t57;
        // doubled bins
        const V x5r = io.re(5);
        const V t60 = two * x5r;
        const V x11r = io.re(11);
        const V t61 = two * x11r;
        // complex block of 2
        const V t62 = t60 - t61;
        // doubled bins
        const V x5i = io.im(5);
        const V t63 = two * x5i;
        const V x11i = io.im(11);
        const V t64 = two * x11i;
        // complex block of 2
        const V t65 = t63 + t64;
        const V t66 = t63 - t64;
        // complex block of 2
        const V t67 = t58 - t57;
        // complex block of 2
        const V t68 = t66 + t67;
        const V t69 = t66 - t67;
        // complex block of 2
        const V t70 = t60 + t61;
        // complex block of 2
        const V t71 = t55 + t54;
        // complex block of 2
        const V t72 = t70 + t71;
        const V t73 = t70 - t71;
        // complex block of 8
        const V t74 = c[0] * t65;
        const V t75 = c[0] * t62;
        const V t76 = t74 + t75;
        const V t77 = t75 - t74;
        const V t78 = c[0] * t59;
        const V t79 = c[0] * t56;
        const V t80 = t78 + t79;
        const V t81 = t79 - t78;
        // doubled bins
        const V x4r = io.re(4);
        const V t82 = two * x4r;
        const V x12r = io.re(12);
        const V t83 = two * x12r;
        // mirrored skew block of 4
        const V t84 = t82 - t83;
        const V t85 = c[0] * t84;
        const V t86 = t82 + t83;
        // doubled bins
        const V x4i = io.im(4);
        const V t87 = two * x4i;
        const V x12i = io.im(12);
        const V t88 = two * x12i;
        // mirrored skew block of 4
        const V t89 = t87 + t88;
        const V t90 = c[0] * t89;
        const V t91 = t87 - t88;
        const V t92 = t85 - t90;
        // spectrum block of 2
        const V t93 = t6 + t92;
        const V t94 = t6 - t92;
        // complex block of 2
        const V t95 = t76 + t81;
        // complex block of 2
        const V t96 = t26 + t95;
        const V t97 = t26 - t95;
        // spectrum block of 32
        const V t98 = c[3] * t96;
        const V t99 = c[4] * t96;
        const V t100 = c[5] * t97;
        const V t101 = c[6] * t97;
        // complex block of 2
        const V t102 = t77 - t80;
        // complex block of 2
        const V t103 = t30 + t102;
        const V t104 = t30 - t102;
        // spectrum block of 32
        const V t105 = c[4] * t103;
        const V t106 = c[3] * t103;
        const V t107 = c[6] * t104;
        const V t108 = c[5] * t104;
        // mirrored skew block of 8
        const V t109 = c[1] * t48;
        const V t110 = c[2] * t52;
        const V t111 = t110 - t109;
        const V t112 = c[1] * t52;
        const V t113 = c[2] * t48;
        const V t114 = t113 + t112;
        // spectrum block of 32
        const V t115 = t105 - t98;
        // spectrum block of 2
        const V t116 = t93 + t111;
        // spectrum block of 2
        const V t117 = t116 + t115;
        io.out(1, t117);
        const V t118 = t116 - t115;
        io.out(17, t118);
        // spectrum block of 32
        const V t119 = t99 + t106;
        // spectrum block of 2
        const V t120 = t93 - t111;
        // spectrum block of 2
        const V t121 = t120 - t119;
        io.out(9, t121);
        const V t122 = t120 + t119;
        io.out(25, t122);
        // spectrum block of 32
        const V t123 = t107 - t100;
        // spectrum block of 2
        const V t124 = t94 - t114;
        // spectrum block of 2
        const V t125 = t124 + t123;
        io.out(5, t125);
        const V t126 = t124 - t123;
        io.out(21, t126);
        // spectrum block of 32
        const V t127 = t101 + t108;
        // spectrum block of 2
        const V t128 = t94 + t114;
        // spectrum block of 2
        const V t129 = t128 - t127;
        io.out(13, t129);
        const V t130 = t128 + t127;
        io.out(29, t130);
        // mirrored skew block of 4
        const V t131 = t85 + t90;
        // spectrum block of 2
        const V t132 = t7 - t131;
        const V t133 = t7 + t131;
        // complex block of 2
        const V t134 = t76 - t81;
        // complex block of 2
        const V t135 = t31 - t134;
        const V t136 = t31 + t134;
        // spectrum block of 32
        const V t137 = c[5] * t135;
        const V t138 = c[6] * t135;
        const V t139 = c[3] * t136;
        const V t140 = c[4] * t136;
        // complex block of 2
        const V t141 = t77 + t80;
        // complex block of 2
        const V t142 = t27 + t141;
        const V t143 = t27 - t141;
        // spectrum block of 32
        const V t144 = c[6] * t142;
        const V t145 = c[5] * t142;
        const V t146 = c[4] * t143;
        const V t147 = c[3] * t143;
        // mirrored skew block of 8
        const V t148 = c[2] * t49;
        const V t149 = c[1] * t53;
        const V t150 = t149 - t148;
        const V t151 = c[2] * t53;
        const V t152 = c[1] * t49;
        const V t153 = t152 + t151;
        // spectrum block of 32
        const V t154 = t137 - t144;
        // spectrum block of 2
        const V t155 = t132 + t150;
        // spectrum block of 2
        const V t156 = t155 + t154;
        io.out(3, t156);
        const V t157 = t155 - t154;
        io.out(19, t157);
        // spectrum block of 32
        const V t158 = t145 + t138;
        // spectrum block of 2
        const V t159 = t132 - t150;
        // spectrum block of 2
        const V t160 = t159 - t158;
        io.out(11, t160);
        const V t161 = t159 + t158;
        io.out(27, t161);
        // spectrum block of 32
        const V t162 = t139 - t146;
        // spectrum block of 2
        const V t163 = t133 - t153;
        // spectrum block of 2
        const V t164 = t163 + t162;
        io.out(7, t164);
        const V t165 = t163 - t162;
        io.out(23, t165);
        // spectrum block of 32
        const V t166 = t147 + t140;
        // spectrum block of 2
        const V t167 = t133 + t153;
        // spectrum block of 2
        const V t168 = t167 - t166;
        io.out(15, t168);
        const V t169 = t167 + t166;
        io.out(31, t169);
        // spectrum block of 2
        const V t170 = t4 + t86;
        // complex block of 2
        const V t171 = t43 + t44;
        // spectrum block of 2
        const V t172 = t170 + t171;
        const V t173 = t170 - t171;
        // complex block of 2
        const V t174 = t18 + t68;
        const V t175 = t22 + t72;
        // spectrum block of 2
        const V t176 = t172 + t175;
        io.out(0, t176);
        const V t177 = t172 - t175;
        io.out(16, t177);
        // spectrum block of 2
        const V t178 = t173 - t174;
        io.out(8, t178);
        const V t179 = t173 + t174;
        io.out(24, t179);
        // spectrum block of 2
        const V t180 = t4 - t86;
        // complex block of 2
        const V t181 = t40 + t41;
        // spectrum block of 2
        const V t182 = t180 - t181;
        const V t183 = t180 + t181;
        // complex block of 2
        const V t184 = t18 - t68;
        const V t185 = t22 - t72;
        // spectrum block of 32
        const V t186 = t185 + t184;
        const V t187 = t184 - t185;
        const V t188 = c[0] * t186;
        // spectrum block of 2
        const V t189 = t183 - t188;
        io.out(12, t189);
        const V t190 = t183 + t188;
        io.out(28, t190);
        // spectrum block of 32
        const V t191 = c[0] * t187;
        // spectrum block of 2
        const V t192 = t182 - t191;
        io.out(4, t192);
        const V t193 = t182 + t191;
        io.out(20, t193);
        // spectrum block of 2
        const V t194 = t5 - t91;
        const V t195 = t5 + t91;
        // complex block of 2
        const V t196 = t19 + t73;
        // spectrum block of 32
        const V t197 = c[1] * t196;
        const V t198 = c[2] * t196;
        // complex block of 2
        const V t199 = t23 - t69;
        // spectrum block of 32
        const V t200 = c[2] * t199;
        const V t201 = c[1] * t199;
        // complex block of 2
        const V t202 = t19 - t73;
        // spectrum block of 32
        const V t203 = c[2] * t202;
        const V t204 = c[1] * t202;
        // complex block of 2
        const V t205 = t23 + t69;
        // spectrum block of 32
        const V t206 = c[1] * t205;
        const V t207 = c[2] * t205;
        // mirrored skew block of 8
        const V t208 = c[0] * t45;
        const V t209 = c[0] * t42;
        const V t210 = t208 + t209;
        const V t211 = t209 - t208;
        // spectrum block of 32
        const V t212 = t200 - t197;
        // spectrum block of 2
        const V t213 = t194 - t211;
        // spectrum block of 2
        const V t214 = t213 + t212;
        io.out(2, t214);
        const V t215 = t213 - t212;
        io.out(18, t215);
        // spectrum block of 32
        const V t216 = t198 + t201;
        // spectrum block of 2
        const V t217 = t194 + t211;
        // spectrum block of 2
        const V t218 = t217 - t216;
        io.out(10, t218);
        const V t219 = t217 + t216;
        io.out(26, t219);
        // spectrum block of 32
        const V t220 = t206 - t203;
        // spectrum block of 2
        const V t221 = t195 - t210;
        // spectrum block of 2
        const V t222 = t221 + t220;
        io.out(6, t222);
        const V t223 = t221 - t220;
        io.out(22, t223);
        // spectrum block of 32
        const V t224 = t204 + t207;
        // spectrum block of 2
        const V t225 = t195 + t210;
        // spectrum block of 2
        const V t226 = t225 - t224;
        io.out(14, t226);
        const V t227 = t225 + t224;
        io.out(30, t227);
    }
};

}  // namespace zulg
