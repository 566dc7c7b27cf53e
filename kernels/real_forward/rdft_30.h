// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 30.
// Forward DFT of 30 real points, prime-factor 5, 3, 2.
// 85 additions, 73 subtractions, 68 multiplications (98 with `scale`); 9 outputs negated; 6 constants; 34 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<30> {
    static constexpr int steps = 256;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
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
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5
        const V x6 = io.in(6);
        const V x24 = io.in(24);
        const V t0 = x6 + x24;
        const V t1 = x6 - x24;
        const V x18 = io.in(18);
        const V x12 = io.in(12);
        const V t2 = x18 + x12;
        const V t3 = x18 - x12;
        const V t4 = t0 + t2;
        const V x0 = io.in(0);
        const V t5 = t4 + x0;
        const V t6 = c[0] * t0;
        const V t7 = c[1] * t2;
        const V t8 = t6 - t7;
        const V t9 = t8 + x0;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t11 - t10;
        const V t13 = c[1] * t0;
        const V t14 = x0 - t13;
        const V t15 = c[0] * t2;
        const V t16 = t14 + t15;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 + t18;
        // real block of 5
        const V x11 = io.in(11);
        const V x29 = io.in(29);
        const V t20 = x11 + x29;
        const V t21 = x11 - x29;
        const V x23 = io.in(23);
        const V x17 = io.in(17);
        const V t22 = x23 + x17;
        const V t23 = x23 - x17;
        const V t24 = t20 + t22;
        const V x5 = io.in(5);
        const V t25 = t24 + x5;
        const V t26 = c[0] * t20;
        const V t27 = c[1] * t22;
        const V t28 = t26 - t27;
        const V t29 = t28 + x5;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t31 - t30;
        const V t33 = c[1] * t20;
        const V t34 = x5 - t33;
        const V t35 = c[0] * t22;
        const V t36 = t34 + t35;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 + t38;
        // real block of 5
        const V x16 = io.in(16);
        const V x4 = io.in(4);
        const V t40 = x16 + x4;
        const V t41 = x16 - x4;
        const V x28 = io.in(28);
        const V x22 = io.in(22);
        const V t42 = x28 + x22;
        const V t43 = x28 - x22;
        const V t44 = t40 + t42;
        const V x10 = io.in(10);
        const V t45 = t44 + x10;
        const V t46 = c[0] * t40;
        const V t47 = c[1] * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + x10;
        const V t50 = c[2] * t41;
        const V t51 = c[3] * t43;
        const V t52 = t51 - t50;
        const V t53 = c[1] * t40;
        const V t54 = x10 - t53;
        const V t55 = c[0] * t42;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t41;
        const V t58 = c[2] * t43;
        const V t59 = t57 + t58;
        // real block of 5
        const V x21 = io.in(21);
        const V x9 = io.in(9);
        const V t60 = x21 + x9;
        const V t61 = x21 - x9;
        const V x3 = io.in(3);
        const V x27 = io.in(27);
        const V t62 = x3 + x27;
        const V t63 = x3 - x27;
        const V t64 = t60 + t62;
        const V x15 = io.in(15);
        const V t65 = t64 + x15;
        const V t66 = c[0] * t60;
        const V t67 = c[1] * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + x15;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t71 - t70;
        const V t73 = c[1] * t60;
        const V t74 = x15 - t73;
        const V t75 = c[0] * t62;
        const V t76 = t74 + t75;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t77 + t78;
        // real block of 5
        const V x26 = io.in(26);
        const V x14 = io.in(14);
        const V t80 = x26 + x14;
        const V t81 = x26 - x14;
        const V x8 = io.in(8);
        const V x2 = io.in(2);
        const V t82 = x8 + x2;
        const V t83 = x8 - x2;
        const V t84 = t80 + t82;
        const V x20 = io.in(20);
        const V t85 = t84 + x20;
        const V t86 = c[0] * t80;
        const V t87 = c[1] * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + x20;
        const V t90 = c[2] * t81;
        const V t91 = c[3] * t83;
        const V t92 = t91 - t90;
        const V t93 = c[1] * t80;
        const V t94 = x20 - t93;
        const V t95 = c[0] * t82;
        const V t96 = t94 + t95;
        const V t97 = c[3] * t81;
        const V t98 = c[2] * t83;
        const V t99 = t97 + t98;
        // real block of 5
        const V x1 = io.in(1);
        const V x19 = io.in(19);
        const V t100 = x1 + x19;
        const V t101 = x1 - x19;
        const V x13 = io.in(13);
        const V x7 = io.in(7);
        const V t102 = x13 + x7;
        const V t103 = x13 - x7;
        const V t104 = t100 + t102;
        const V x25 = io.in(25);
        const V t105 = t104 + x25;
        const V t106 = c[0] * t100;
        const V t107 = c[1] * t102;
        const V t108 = t106 - t107;
        const V t109 = t108 + x25;
        const V t110 = c[2] * t101;
        const V t111 = c[3] * t103;
        const V t112 = t111 - t110;
        const V t113 = c[1] * t100;
        const V t114 = x25 - t113;
        const V t115 = c[0] * t102;
        const V t116 = t114 + t115;
        const V t117 = c[3] * t101;
        const V t118 = c[2] * t103;
        const V t119 = t117 + t118;
        // real block of 3
        const V t120 = t45 + t85;
        const V t121 = t45 - t85;
        const V t122 = t120 + t5;
        const V t123 = c[4] * t120;
        const V t124 = t5 - t123;
        const V t125 = c[5] * t121;
        // real block of 3
        const V t126 = t105 + t25;
        const V t127 = t105 - t25;
        const V t128 = t126 + t65;
        const V t129 = c[4] * t126;
        const V t130 = t65 - t129;
        const V t131 = c[5] * t127;
        // real block of 2
        const V t132 = t122 + t128;
        io.re(0, t132);
        const V t133 = t122 - t128;
        io.re(15, t133);
        // complex block of 2
        const V t134 = t124 + t130;
        io.re(10, t134);
        const V t135 = t125 + t131;
        io.minusIm(10, t135);
        const V t136 = t124 - t130;
        io.re(5, t136);
        const V t137 = t131 - t125;
        io.minusIm(5, t137);
        // complex block of 3
        const V t138 = t49 + t89;
        const V t139 = t52 + t92;
        const V t140 = t49 - t89;
        const V t141 = t52 - t92;
        const V t142 = t138 + t9;
        const V t143 = t139 + t12;
        const V t144 = c[4] * t138;
        const V t145 = t9 - t144;
        const V t146 = c[4] * t139;
        const V t147 = t12 - t146;
        const V t148 = c[5] * t140;
        const V t149 = c[5] * t141;
        const V t150 = t145 + t149;
        const V t151 = t147 - t148;
        const V t152 = t145 - t149;
        const V t153 = t147 + t148;
        // complex block of 3
        const V t154 = t109 + t29;
        const V t155 = t112 + t32;
        const V t156 = t109 - t29;
        const V t157 = t112 - t32;
        const V t158 = t154 + t69;
        const V t159 = t155 + t72;
        const V t160 = c[4] * t154;
        const V t161 = t69 - t160;
        const V t162 = c[4] * t155;
        const V t163 = t72 - t162;
        const V t164 = c[5] * t156;
        const V t165 = c[5] * t157;
        const V t166 = t161 + t165;
        const V t167 = t163 - t164;
        const V t168 = t161 - t165;
        const V t169 = t163 + t164;
        // complex block of 2
        const V t170 = t142 + t158;
        io.re(6, t170);
        const V t171 = t143 + t159;
        io.im(6, t171);
        const V t172 = t142 - t158;
        io.re(9, t172);
        const V t173 = t143 - t159;
        io.minusIm(9, t173);
        // complex block of 2
        const V t174 = t150 + t166;
        io.re(14, t174);
        const V t175 = t151 + t167;
        io.minusIm(14, t175);
        const V t176 = t150 - t166;
        io.re(1, t176);
        const V t177 = t151 - t167;
        io.im(1, t177);
        // complex block of 2
        const V t178 = t152 + t168;
        io.re(4, t178);
        const V t179 = t153 + t169;
        io.minusIm(4, t179);
        const V t180 = t152 - t168;
        io.re(11, t180);
        const V t181 = t153 - t169;
        io.im(11, t181);
        // complex block of 3
        const V t182 = t56 + t96;
        const V t183 = t59 + t99;
        const V t184 = t56 - t96;
        const V t185 = t99 - t59;
        const V t186 = t182 + t16;
        const V t187 = t183 + t19;
        const V t188 = c[4] * t182;
        const V t189 = t16 - t188;
        const V t190 = c[4] * t183;
        const V t191 = t190 - t19;
        const V t192 = c[5] * t184;
        const V t193 = c[5] * t185;
        const V t194 = t189 + t193;
        const V t195 = t191 - t192;
        const V t196 = t189 - t193;
        const V t197 = t191 + t192;
        // complex block of 3
        const V t198 = t116 + t36;
        const V t199 = t119 + t39;
        const V t200 = t116 - t36;
        const V t201 = t39 - t119;
        const V t202 = t198 + t76;
        const V t203 = t199 + t79;
        const V t204 = c[4] * t198;
        const V t205 = t76 - t204;
        const V t206 = c[4] * t199;
        const V t207 = t206 - t79;
        const V t208 = c[5] * t200;
        const V t209 = c[5] * t201;
        const V t210 = t205 + t209;
        const V t211 = t207 - t208;
        const V t212 = t205 - t209;
        const V t213 = t207 + t208;
        // complex block of 2
        const V t214 = t186 + t202;
        io.re(12, t214);
        const V t215 = t187 + t203;
        io.minusIm(12, t215);
        const V t216 = t186 - t202;
        io.re(3, t216);
        const V t217 = t203 - t187;
        io.minusIm(3, t217);
        // complex block of 2
        const V t218 = t194 + t210;
        io.re(8, t218);
        const V t219 = t195 + t211;
        io.minusIm(8, t219);
        const V t220 = t194 - t210;
        io.re(7, t220);
        const V t221 = t195 - t211;
        io.im(7, t221);
        // complex block of 2
        const V t222 = t196 + t212;
        io.re(2, t222);
        const V t223 = t197 + t213;
        io.im(2, t223);
        const V t224 = t196 - t212;
        io.re(13, t224);
        const V t225 = t197 - t213;
        io.minusIm(13, t225);
    }
};

}  // namespace zulg
