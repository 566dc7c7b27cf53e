// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 21.
// Hartley transform of 21 points, form F.
// 69 additions, 63 subtractions, 68 multiplications (89 with `scale`); 8 constants; 28 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<21> {
    static constexpr int steps = 221;  // with `scale`
    static constexpr double inverseRoot = 0.2182178902359924;  // 1/sqrt(21), for `scale`
    static constexpr double constants[] = {
        0.9009688679024191,  // c[0]: -cos 2 pi 4/7
        0.6234898018587335,  // c[1]: cos 2 pi 20/7
        0.2225209339563144,  // c[2]: -cos 2 pi 16/7
        0.4338837391175581,  // c[3]: -sin 2 pi 4/7
        0.7818314824680298,  // c[4]: -sin 2 pi 20/7
        0.9749279121818236,  // c[5]: sin 2 pi 16/7
        0.5,  // c[6]: -cos 2 pi 2/3
        0.8660254037844386,  // c[7]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 7, multiplier 4
        const V x3 = io.in(3);
        const V x18 = io.in(18);
        const V t0 = x3 + x18;
        const V t1 = x3 - x18;
        const V x15 = io.in(15);
        const V x6 = io.in(6);
        const V t2 = x15 + x6;
        const V t3 = x15 - x6;
        const V x12 = io.in(12);
        const V x9 = io.in(9);
        const V t4 = x12 + x9;
        const V t5 = x12 - x9;
        const V t6 = t0 + t2;
        const V t7 = t6 + t4;
        const V x0 = io.in(0);
        const V t8 = t7 + x0;
        const V t9 = c[0] * t0;
        const V t10 = x0 - t9;
        const V t11 = c[1] * t2;
        const V t12 = t10 + t11;
        const V t13 = c[2] * t4;
        const V t14 = t12 - t13;
        const V t15 = c[3] * t1;
        const V t16 = c[4] * t3;
        const V t17 = c[5] * t5;
        const V t18 = t15 + t16;
        const V t19 = t18 - t17;
        const V t20 = c[1] * t0;
        const V t21 = c[2] * t2;
        const V t22 = t20 - t21;
        const V t23 = c[0] * t4;
        const V t24 = t22 - t23;
        const V t25 = t24 + x0;
        const V t26 = c[4] * t1;
        const V t27 = c[5] * t3;
        const V t28 = c[3] * t5;
        const V t29 = t27 + t28;
        const V t30 = t29 - t26;
        const V t31 = c[2] * t0;
        const V t32 = x0 - t31;
        const V t33 = c[0] * t2;
        const V t34 = t32 - t33;
        const V t35 = c[1] * t4;
        const V t36 = t34 + t35;
        const V t37 = c[5] * t1;
        const V t38 = c[3] * t3;
        const V t39 = c[4] * t5;
        const V t40 = t37 + t38;
        const V t41 = t40 + t39;
        // real block of 7, multiplier 4
        const V x10 = io.in(10);
        const V x4 = io.in(4);
        const V t42 = x10 + x4;
        const V t43 = x10 - x4;
        const V x1 = io.in(1);
        const V x13 = io.in(13);
        const V t44 = x1 + x13;
        const V t45 = x1 - x13;
        const V x19 = io.in(19);
        const V x16 = io.in(16);
        const V t46 = x19 + x16;
        const V t47 = x19 - x16;
        const V t48 = t42 + t44;
        const V t49 = t48 + t46;
        const V x7 = io.in(7);
        const V t50 = t49 + x7;
        const V t51 = c[0] * t42;
        const V t52 = x7 - t51;
        const V t53 = c[1] * t44;
        const V t54 = t52 + t53;
        const V t55 = c[2] * t46;
        const V t56 = t54 - t55;
        const V t57 = c[3] * t43;
        const V t58 = c[4] * t45;
        const V t59 = c[5] * t47;
        const V t60 = t57 + t58;
        const V t61 = t60 - t59;
        const V t62 = c[1] * t42;
        const V t63 = c[2] * t44;
        const V t64 = t62 - t63;
        const V t65 = c[0] * t46;
        const V t66 = t64 - t65;
        const V t67 = t66 + x7;
        const V t68 = c[4] * t43;
        const V t69 = c[5] * t45;
        const V t70 = c[3] * t47;
        const V t71 = t69 + t70;
        const V t72 = t71 - t68;
        const V t73 = c[2] * t42;
        const V t74 = x7 - t73;
        const V t75 = c[0] * t44;
        const V t76 = t74 - t75;
        const V t77 = c[1] * t46;
        const V t78 = t76 + t77;
        const V t79 = c[5] * t43;
        const V t80 = c[3] * t45;
        const V t81 = c[4] * t47;
        const V t82 = t79 + t80;
        const V t83 = t82 + t81;
        // real block of 7, multiplier 4
        const V x17 = io.in(17);
        const V x11 = io.in(11);
        const V t84 = x17 + x11;
        const V t85 = x17 - x11;
        const V x8 = io.in(8);
        const V x20 = io.in(20);
        const V t86 = x8 + x20;
        const V t87 = x8 - x20;
        const V x5 = io.in(5);
        const V x2 = io.in(2);
        const V t88 = x5 + x2;
        const V t89 = x5 - x2;
        const V t90 = t84 + t86;
        const V t91 = t90 + t88;
        const V x14 = io.in(14);
        const V t92 = t91 + x14;
        const V t93 = c[0] * t84;
        const V t94 = x14 - t93;
        const V t95 = c[1] * t86;
        const V t96 = t94 + t95;
        const V t97 = c[2] * t88;
        const V t98 = t96 - t97;
        const V t99 = c[3] * t85;
        const V t100 = c[4] * t87;
        const V t101 = c[5] * t89;
        const V t102 = t99 + t100;
        const V t103 = t102 - t101;
        const V t104 = c[1] * t84;
        const V t105 = c[2] * t86;
        const V t106 = t104 - t105;
        const V t107 = c[0] * t88;
        const V t108 = t106 - t107;
        const V t109 = t108 + x14;
        const V t110 = c[4] * t85;
        const V t111 = c[5] * t87;
        const V t112 = c[3] * t89;
        const V t113 = t111 + t112;
        const V t114 = t113 - t110;
        const V t115 = c[2] * t84;
        const V t116 = x14 - t115;
        const V t117 = c[0] * t86;
        const V t118 = t116 - t117;
        const V t119 = c[1] * t88;
        const V t120 = t118 + t119;
        const V t121 = c[5] * t85;
        const V t122 = c[3] * t87;
        const V t123 = c[4] * t89;
        const V t124 = t121 + t122;
        const V t125 = t124 + t123;
        // real block of 3, multiplier 2
        const V t126 = t50 + t92;
        const V t127 = t50 - t92;
        const V t128 = t126 + t8;
        io.out(0, t128);
        const V t129 = c[6] * t126;
        const V t130 = t8 - t129;
        const V t131 = c[7] * t127;
        // complex block of 3, multiplier 2
        const V t132 = t56 + t98;
        const V t133 = t61 + t103;
        const V t134 = t56 - t98;
        const V t135 = t61 - t103;
        const V t136 = t132 + t14;
        const V t137 = t133 + t19;
        const V t138 = c[6] * t132;
        const V t139 = t14 - t138;
        const V t140 = c[6] * t133;
        const V t141 = t19 - t140;
        const V t142 = c[7] * t134;
        const V t143 = c[7] * t135;
        const V t144 = t139 + t143;
        const V t145 = t141 - t142;
        const V t146 = t139 - t143;
        const V t147 = t141 + t142;
        // complex block of 3, multiplier 2
        const V t148 = t67 + t109;
        const V t149 = t72 + t114;
        const V t150 = t67 - t109;
        const V t151 = t72 - t114;
        const V t152 = t148 + t25;
        const V t153 = t149 + t30;
        const V t154 = c[6] * t148;
        const V t155 = t25 - t154;
        const V t156 = c[6] * t149;
        const V t157 = t30 - t156;
        const V t158 = c[7] * t150;
        const V t159 = c[7] * t151;
        const V t160 = t155 + t159;
        const V t161 = t157 - t158;
        const V t162 = t155 - t159;
        const V t163 = t157 + t158;
        // complex block of 3, multiplier 2
        const V t164 = t78 + t120;
        const V t165 = t83 + t125;
        const V t166 = t78 - t120;
        const V t167 = t83 - t125;
        const V t168 = t164 + t36;
        const V t169 = t165 + t41;
        const V t170 = c[6] * t164;
        const V t171 = t36 - t170;
        const V t172 = c[6] * t165;
        const V t173 = t41 - t172;
        const V t174 = c[7] * t166;
        const V t175 = c[7] * t167;
        const V t176 = t171 + t175;
        const V t177 = t173 - t174;
        const V t178 = t171 - t175;
        const V t179 = t173 + t174;
        // output stage
        const V t180 = t160 - t161;
        io.out(1, t180);
        const V t181 = t160 + t161;
        io.out(20, t181);
        const V t182 = t176 + t177;
        io.out(2, t182);
        const V t183 = t176 - t177;
        io.out(19, t183);
        const V t184 = t136 + t137;
        io.out(3, t184);
        const V t185 = t136 - t137;
        io.out(18, t185);
        const V t186 = t144 - t145;
        io.out(4, t186);
        const V t187 = t144 + t145;
        io.out(17, t187);
        const V t188 = t178 - t179;
        io.out(5, t188);
        const V t189 = t178 + t179;
        io.out(16, t189);
        const V t190 = t152 + t153;
        io.out(6, t190);
        const V t191 = t152 - t153;
        io.out(15, t191);
        const V t192 = t130 + t131;
        io.out(7, t192);
        const V t193 = t130 - t131;
        io.out(14, t193);
        const V t194 = t162 - t163;
        io.out(8, t194);
        const V t195 = t162 + t163;
        io.out(13, t195);
        const V t196 = t168 + t169;
        io.out(9, t196);
        const V t197 = t168 - t169;
        io.out(12, t197);
        const V t198 = t146 + t147;
        io.out(10, t198);
        const V t199 = t146 - t147;
        io.out(11, t199);
    }
};

}  // namespace zulg
