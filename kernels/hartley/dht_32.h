// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 32.
// Hartley transform of 32 points, form I.
// 93 additions, 93 subtractions, 42 multiplications (74 with `scale`); 7 constants; 34 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<32> {
    static constexpr int steps = 260;  // with `scale`
    static constexpr double inverseRoot = 0.17677669529663687;  // 1/sqrt(32), for `scale`
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.3826834323650898,  // c[1]: -sin 2 pi 30/32
        0.9238795325112867,  // c[2]: cos 2 pi 30/32
        0.19509032201612828,  // c[3]: -sin 2 pi 31/32
        0.9807852804032304,  // c[4]: cos 2 pi 31/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x31 = io.in(31);
        const V t0 = x1 + x31;
        const V t1 = x1 - x31;
        const V x2 = io.in(2);
        const V x30 = io.in(30);
        const V t2 = x2 + x30;
        const V t3 = x2 - x30;
        const V x3 = io.in(3);
        const V x29 = io.in(29);
        const V t4 = x3 + x29;
        const V t5 = x3 - x29;
        const V x4 = io.in(4);
        const V x28 = io.in(28);
        const V t6 = x4 + x28;
        const V t7 = x4 - x28;
        const V x5 = io.in(5);
        const V x27 = io.in(27);
        const V t8 = x5 + x27;
        const V t9 = x5 - x27;
        const V x6 = io.in(6);
        const V x26 = io.in(26);
        const V t10 = x6 + x26;
        const V t11 = x6 - x26;
        const V x7 = io.in(7);
        const V x25 = io.in(25);
        const V t12 = x7 + x25;
        const V t13 = x7 - x25;
        const V x8 = io.in(8);
        const V x24 = io.in(24);
        const V t14 = x8 + x24;
        const V t15 = x8 - x24;
        const V x9 = io.in(9);
        const V x23 = io.in(23);
        const V t16 = x9 + x23;
        const V t17 = x9 - x23;
        const V x10 = io.in(10);
        const V x22 = io.in(22);
        const V t18 = x10 + x22;
        const V t19 = x10 - x22;
        const V x11 = io.in(11);
        const V x21 = io.in(21);
        const V t20 = x11 + x21;
        const V t21 = x11 - x21;
        const V x12 = io.in(12);
        const V x20 = io.in(20);
        const V t22 = x12 + x20;
        const V t23 = x12 - x20;
        const V x13 = io.in(13);
        const V x19 = io.in(19);
        const V t24 = x13 + x19;
        const V t25 = x13 - x19;
        const V x14 = io.in(14);
        const V x18 = io.in(18);
        const V t26 = x14 + x18;
        const V t27 = x14 - x18;
        const V x15 = io.in(15);
        const V x17 = io.in(17);
        const V t28 = x15 + x17;
        const V t29 = x15 - x17;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x16 = io.in(16);
        const V t30 = x0 + x16;
        const V t31 = x0 - x16;
        // spectrum block of 2
        const V t32 = t30 + t14;
        const V t33 = t30 - t14;
        // spectrum block of 2
        const V t34 = t31 - t15;
        const V t35 = t31 + t15;
        // mirrored skew block of 4
        const V t36 = t6 - t22;
        const V t37 = c[0] * t36;
        const V t38 = t7 + t23;
        const V t39 = c[0] * t38;
        const V t40 = t6 + t22;
        const V t41 = t37 - t39;
        const V t42 = t7 - t23;
        const V t43 = t37 + t39;
        // spectrum block of 2
        const V t44 = t32 + t40;
        const V t45 = t32 - t40;
        // spectrum block of 2
        const V t46 = t34 + t41;
        const V t47 = t34 - t41;
        // spectrum block of 2
        const V t48 = t33 - t42;
        const V t49 = t33 + t42;
        // spectrum block of 2
        const V t50 = t35 - t43;
        const V t51 = t35 + t43;
        // complex block of 2
        const V t52 = t1 - t29;
        const V t53 = t0 + t28;
        const V t54 = t1 + t29;
        const V t55 = t0 - t28;
        // complex block of 2
        const V t56 = t9 - t21;
        const V t57 = t8 + t20;
        const V t58 = t9 + t21;
        const V t59 = t8 - t20;
        // complex block of 2
        const V t60 = t17 - t13;
        const V t61 = t16 + t12;
        const V t62 = t17 + t13;
        const V t63 = t16 - t12;
        // complex block of 2
        const V t64 = t25 - t5;
        const V t65 = t24 + t4;
        const V t66 = t25 + t5;
        const V t67 = t24 - t4;
        // complex block of 2
        const V t68 = t52 + t60;
        const V t69 = t53 + t61;
        const V t70 = t52 - t60;
        const V t71 = t53 - t61;
        // complex block of 2
        const V t72 = t56 + t64;
        const V t73 = t57 + t65;
        const V t74 = t56 - t64;
        const V t75 = t57 - t65;
        // complex block of 2
        const V t76 = t68 + t72;
        const V t77 = t69 + t73;
        const V t78 = t68 - t72;
        const V t79 = t69 - t73;
        // complex block of 2
        const V t80 = t70 + t75;
        const V t81 = t71 - t74;
        const V t82 = t70 - t75;
        const V t83 = t71 + t74;
        // complex block of 8
        const V t84 = c[0] * t58;
        const V t85 = c[0] * t59;
        const V t86 = t84 + t85;
        const V t87 = t85 - t84;
        const V t88 = c[0] * t66;
        const V t89 = c[0] * t67;
        const V t90 = t88 + t89;
        const V t91 = t89 - t88;
        // complex block of 2
        const V t92 = t54 + t63;
        const V t93 = t55 - t62;
        const V t94 = t54 - t63;
        const V t95 = t55 + t62;
        // complex block of 2
        const V t96 = t86 + t91;
        const V t97 = t87 - t90;
        const V t98 = t86 - t91;
        const V t99 = t87 + t90;
        // complex block of 2
        const V t100 = t92 + t96;
        const V t101 = t93 + t97;
        const V t102 = t92 - t96;
        const V t103 = t93 - t97;
        // complex block of 2
        const V t104 = t94 + t99;
        const V t105 = t95 - t98;
        const V t106 = t94 - t99;
        const V t107 = t95 + t98;
        // spectrum block of 32
        const V t108 = c[3] * t100;
        const V t109 = c[4] * t101;
        const V t110 = t109 - t108;
        const V t111 = c[3] * t101;
        const V t112 = c[4] * t100;
        const V t113 = t112 + t111;
        const V t114 = c[1] * t80;
        const V t115 = c[2] * t81;
        const V t116 = t115 - t114;
        const V t117 = c[1] * t81;
        const V t118 = c[2] * t80;
        const V t119 = t118 + t117;
        const V t120 = c[5] * t104;
        const V t121 = c[6] * t105;
        const V t122 = t121 - t120;
        const V t123 = c[5] * t105;
        const V t124 = c[6] * t104;
        const V t125 = t124 + t123;
        const V t126 = t79 + t78;
        const V t127 = t78 - t79;
        const V t128 = c[0] * t126;
        const V t129 = c[0] * t127;
        const V t130 = c[6] * t102;
        const V t131 = c[5] * t103;
        const V t132 = t131 - t130;
        const V t133 = c[6] * t103;
        const V t134 = c[5] * t102;
        const V t135 = t134 + t133;
        const V t136 = c[2] * t82;
        const V t137 = c[1] * t83;
        const V t138 = t137 - t136;
        const V t139 = c[2] * t83;
        const V t140 = c[1] * t82;
        const V t141 = t140 + t139;
        const V t142 = c[4] * t106;
        const V t143 = c[3] * t107;
        const V t144 = t143 - t142;
        const V t145 = c[4] * t107;
        const V t146 = c[3] * t106;
        const V t147 = t146 + t145;
        // complex block of 2
        const V t148 = t3 - t27;
        const V t149 = t2 + t26;
        const V t150 = t3 + t27;
        const V t151 = t2 - t26;
        // complex block of 2
        const V t152 = t19 - t11;
        const V t153 = t18 + t10;
        const V t154 = t19 + t11;
        const V t155 = t18 - t10;
        // complex block of 2
        const V t156 = t148 + t152;
        const V t157 = t149 + t153;
        const V t158 = t148 - t152;
        const V t159 = t149 - t153;
        // complex block of 2
        const V t160 = t150 + t155;
        const V t161 = t151 - t154;
        const V t162 = t150 - t155;
        const V t163 = t151 + t154;
        // mirrored skew block of 8
        const V t164 = c[1] * t160;
        const V t165 = c[2] * t161;
        const V t166 = t165 - t164;
        const V t167 = c[1] * t161;
        const V t168 = c[2] * t160;
        const V t169 = t168 + t167;
        const V t170 = c[0] * t159;
        const V t171 = c[0] * t158;
        const V t172 = t170 + t171;
        const V t173 = t171 - t170;
        const V t174 = c[2] * t162;
        const V t175 = c[1] * t163;
        const V t176 = t175 - t174;
        const V t177 = c[2] * t163;
        const V t178 = c[1] * t162;
        const V t179 = t178 + t177;
        // spectrum block of 2
        const V t180 = t44 + t157;
        const V t181 = t44 - t157;
        // spectrum block of 2
        const V t182 = t180 + t77;
        io.out(0, t182);
        const V t183 = t180 - t77;
        io.out(16, t183);
        // spectrum block of 2
        const V t184 = t181 - t76;
        io.out(24, t184);
        const V t185 = t181 + t76;
        io.out(8, t185);
        // spectrum block of 2
        const V t186 = t46 + t166;
        const V t187 = t46 - t166;
        // spectrum block of 2
        const V t188 = t186 + t110;
        io.out(31, t188);
        const V t189 = t186 - t110;
        io.out(15, t189);
        // spectrum block of 2
        const V t190 = t187 - t113;
        io.out(23, t190);
        const V t191 = t187 + t113;
        io.out(7, t191);
        // spectrum block of 2
        const V t192 = t48 - t173;
        const V t193 = t48 + t173;
        // spectrum block of 2
        const V t194 = t192 + t116;
        io.out(30, t194);
        const V t195 = t192 - t116;
        io.out(14, t195);
        // spectrum block of 2
        const V t196 = t193 - t119;
        io.out(22, t196);
        const V t197 = t193 + t119;
        io.out(6, t197);
        // spectrum block of 2
        const V t198 = t50 + t176;
        const V t199 = t50 - t176;
        // spectrum block of 2
        const V t200 = t198 + t122;
        io.out(29, t200);
        const V t201 = t198 - t122;
        io.out(13, t201);
        // spectrum block of 2
        const V t202 = t199 - t125;
        io.out(21, t202);
        const V t203 = t199 + t125;
        io.out(5, t203);
        // spectrum block of 2
        const V t204 = t45 - t156;
        const V t205 = t45 + t156;
        // spectrum block of 2
        const V t206 = t204 - t129;
        io.out(28, t206);
        const V t207 = t204 + t129;
        io.out(12, t207);
        // spectrum block of 2
        const V t208 = t205 - t128;
        io.out(20, t208);
        const V t209 = t205 + t128;
        io.out(4, t209);
        // spectrum block of 2
        const V t210 = t47 - t169;
        const V t211 = t47 + t169;
        // spectrum block of 2
        const V t212 = t210 + t132;
        io.out(27, t212);
        const V t213 = t210 - t132;
        io.out(11, t213);
        // spectrum block of 2
        const V t214 = t211 - t135;
        io.out(19, t214);
        const V t215 = t211 + t135;
        io.out(3, t215);
        // spectrum block of 2
        const V t216 = t49 - t172;
        const V t217 = t49 + t172;
        // spectrum block of 2
        const V t218 = t216 + t138;
        io.out(26, t218);
        const V t219 = t216 - t138;
        io.out(10, t219);
        // spectrum block of 2
        const V t220 = t217 - t141;
        io.out(18, t220);
        const V t221 = t217 + t141;
        io.out(2, t221);
        // spectrum block of 2
        const V t222 = t51 - t179;
        const V t223 = t51 + t179;
        // spectrum block of 2
        const V t224 = t222 + t144;
        io.out(25, t224);
        const V t225 = t222 - t144;
        io.out(9, t225);
        // spectrum block of 2
        const V t226 = t223 - t147;
        io.out(17, t226);
        const V t227 = t223 + t147;
        io.out(1, t227);
    }
};

}  // namespace zulg
