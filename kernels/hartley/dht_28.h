// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 28.
// Hartley transform of 28 points, form I.
// 88 additions, 88 subtractions, 72 multiplications (100 with `scale`); 6 constants; 31 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<28> {
    static constexpr int steps = 276;  // with `scale`
    static constexpr double inverseRoot = 0.1889822365046136;  // 1/sqrt(28), for `scale`
    static constexpr double constants[] = {
        0.6234898018587335,  // c[0]: cos 2 pi 1/7
        0.2225209339563144,  // c[1]: -cos 2 pi 2/7
        0.9009688679024191,  // c[2]: -cos 2 pi 3/7
        0.7818314824680298,  // c[3]: sin 2 pi 1/7
        0.9749279121818236,  // c[4]: sin 2 pi 2/7
        0.4338837391175581,  // c[5]: sin 2 pi 3/7
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x27 = io.in(27);
        const V t0 = x1 + x27;
        const V t1 = x1 - x27;
        const V x2 = io.in(2);
        const V x26 = io.in(26);
        const V t2 = x2 + x26;
        const V t3 = x2 - x26;
        const V x3 = io.in(3);
        const V x25 = io.in(25);
        const V t4 = x3 + x25;
        const V t5 = x3 - x25;
        const V x4 = io.in(4);
        const V x24 = io.in(24);
        const V t6 = x4 + x24;
        const V t7 = x4 - x24;
        const V x5 = io.in(5);
        const V x23 = io.in(23);
        const V t8 = x5 + x23;
        const V t9 = x5 - x23;
        const V x6 = io.in(6);
        const V x22 = io.in(22);
        const V t10 = x6 + x22;
        const V t11 = x6 - x22;
        const V x7 = io.in(7);
        const V x21 = io.in(21);
        const V t12 = x7 + x21;
        const V t13 = x7 - x21;
        const V x8 = io.in(8);
        const V x20 = io.in(20);
        const V t14 = x8 + x20;
        const V t15 = x8 - x20;
        const V x9 = io.in(9);
        const V x19 = io.in(19);
        const V t16 = x9 + x19;
        const V t17 = x9 - x19;
        const V x10 = io.in(10);
        const V x18 = io.in(18);
        const V t18 = x10 + x18;
        const V t19 = x10 - x18;
        const V x11 = io.in(11);
        const V x17 = io.in(17);
        const V t20 = x11 + x17;
        const V t21 = x11 - x17;
        const V x12 = io.in(12);
        const V x16 = io.in(16);
        const V t22 = x12 + x16;
        const V t23 = x12 - x16;
        const V x13 = io.in(13);
        const V x15 = io.in(15);
        const V t24 = x13 + x15;
        const V t25 = x13 - x15;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x14 = io.in(14);
        const V t26 = x0 + x14;
        const V t27 = x0 - x14;
        // spectrum block of 2
        const V t28 = t26 + t12;
        const V t29 = t26 - t12;
        // spectrum block of 2
        const V t30 = t27 + t13;
        const V t31 = t27 - t13;
        // complex block of 2
        const V t32 = t7 - t19;
        const V t33 = t6 + t18;
        const V t34 = t7 + t19;
        const V t35 = t6 - t18;
        // complex block of 2
        const V t36 = t21 - t5;
        const V t37 = t20 + t4;
        const V t38 = t21 + t5;
        const V t39 = t20 - t4;
        // complex block of 2
        const V t40 = t32 + t36;
        const V t41 = t33 + t37;
        const V t42 = t32 - t36;
        const V t43 = t33 - t37;
        // complex block of 2
        const V t44 = t34 - t39;
        const V t45 = t35 + t38;
        const V t46 = t34 + t39;
        const V t47 = t35 - t38;
        // complex block of 2
        const V t48 = t15 - t11;
        const V t49 = t14 + t10;
        const V t50 = t15 + t11;
        const V t51 = t14 - t10;
        // complex block of 2
        const V t52 = t1 - t25;
        const V t53 = t24 + t0;
        const V t54 = t25 + t1;
        const V t55 = t24 - t0;
        // complex block of 2
        const V t56 = t48 + t52;
        const V t57 = t49 + t53;
        const V t58 = t48 - t52;
        const V t59 = t49 - t53;
        // complex block of 2
        const V t60 = t50 - t55;
        const V t61 = t51 - t54;
        const V t62 = t50 + t55;
        const V t63 = t51 + t54;
        // complex block of 2
        const V t64 = t23 - t3;
        const V t65 = t22 + t2;
        const V t66 = t23 + t3;
        const V t67 = t22 - t2;
        // complex block of 2
        const V t68 = t9 - t17;
        const V t69 = t16 + t8;
        const V t70 = t17 + t9;
        const V t71 = t16 - t8;
        // complex block of 2
        const V t72 = t64 + t68;
        const V t73 = t65 + t69;
        const V t74 = t64 - t68;
        const V t75 = t65 - t69;
        // complex block of 2
        const V t76 = t66 - t71;
        const V t77 = t67 - t70;
        const V t78 = t66 + t71;
        const V t79 = t67 + t70;
        // spectrum block of 7, multiplier 4
        const V t80 = t41 + t57;
        const V t81 = t80 + t73;
        const V t82 = t81 + t28;
        io.out(0, t82);
        const V t83 = c[0] * t41;
        const V t84 = c[1] * t57;
        const V t85 = t83 - t84;
        const V t86 = c[2] * t73;
        const V t87 = t85 - t86;
        const V t88 = t87 + t28;
        const V t89 = c[3] * t40;
        const V t90 = c[4] * t56;
        const V t91 = t89 + t90;
        const V t92 = c[5] * t72;
        const V t93 = t91 + t92;
        const V t94 = t88 - t93;
        io.out(20, t94);
        const V t95 = t88 + t93;
        io.out(8, t95);
        const V t96 = c[1] * t41;
        const V t97 = t28 - t96;
        const V t98 = c[2] * t57;
        const V t99 = t97 - t98;
        const V t100 = c[0] * t73;
        const V t101 = t99 + t100;
        const V t102 = c[4] * t40;
        const V t103 = c[5] * t56;
        const V t104 = t102 - t103;
        const V t105 = c[3] * t72;
        const V t106 = t104 - t105;
        const V t107 = t101 - t106;
        io.out(12, t107);
        const V t108 = t101 + t106;
        io.out(16, t108);
        const V t109 = c[2] * t41;
        const V t110 = t28 - t109;
        const V t111 = c[0] * t57;
        const V t112 = t110 + t111;
        const V t113 = c[1] * t73;
        const V t114 = t112 - t113;
        const V t115 = c[5] * t40;
        const V t116 = c[3] * t56;
        const V t117 = t115 - t116;
        const V t118 = c[4] * t72;
        const V t119 = t117 + t118;
        const V t120 = t114 - t119;
        io.out(4, t120);
        const V t121 = t114 + t119;
        io.out(24, t121);
        // spectrum block of 7, multiplier 4
        const V t122 = t45 + t61;
        const V t123 = t122 + t77;
        const V t124 = t123 + t30;
        io.out(21, t124);
        const V t125 = c[0] * t45;
        const V t126 = c[1] * t61;
        const V t127 = t125 - t126;
        const V t128 = c[2] * t77;
        const V t129 = t127 - t128;
        const V t130 = t129 + t30;
        const V t131 = c[3] * t44;
        const V t132 = c[4] * t60;
        const V t133 = t131 + t132;
        const V t134 = c[5] * t76;
        const V t135 = t133 + t134;
        const V t136 = t130 - t135;
        io.out(13, t136);
        const V t137 = t130 + t135;
        io.out(1, t137);
        const V t138 = c[1] * t45;
        const V t139 = t30 - t138;
        const V t140 = c[2] * t61;
        const V t141 = t139 - t140;
        const V t142 = c[0] * t77;
        const V t143 = t141 + t142;
        const V t144 = c[4] * t44;
        const V t145 = c[5] * t60;
        const V t146 = t144 - t145;
        const V t147 = c[3] * t76;
        const V t148 = t146 - t147;
        const V t149 = t143 - t148;
        io.out(5, t149);
        const V t150 = t143 + t148;
        io.out(9, t150);
        const V t151 = c[2] * t45;
        const V t152 = t30 - t151;
        const V t153 = c[0] * t61;
        const V t154 = t152 + t153;
        const V t155 = c[1] * t77;
        const V t156 = t154 - t155;
        const V t157 = c[5] * t44;
        const V t158 = c[3] * t60;
        const V t159 = t157 - t158;
        const V t160 = c[4] * t76;
        const V t161 = t159 + t160;
        const V t162 = t156 - t161;
        io.out(25, t162);
        const V t163 = t156 + t161;
        io.out(17, t163);
        // spectrum block of 7, multiplier 4
        const V t164 = t43 + t59;
        const V t165 = t164 + t75;
        const V t166 = t165 + t29;
        io.out(14, t166);
        const V t167 = c[0] * t43;
        const V t168 = c[1] * t59;
        const V t169 = t167 - t168;
        const V t170 = c[2] * t75;
        const V t171 = t169 - t170;
        const V t172 = t171 + t29;
        const V t173 = c[3] * t42;
        const V t174 = c[4] * t58;
        const V t175 = t173 + t174;
        const V t176 = c[5] * t74;
        const V t177 = t175 + t176;
        const V t178 = t172 - t177;
        io.out(6, t178);
        const V t179 = t172 + t177;
        io.out(22, t179);
        const V t180 = c[1] * t43;
        const V t181 = t29 - t180;
        const V t182 = c[2] * t59;
        const V t183 = t181 - t182;
        const V t184 = c[0] * t75;
        const V t185 = t183 + t184;
        const V t186 = c[4] * t42;
        const V t187 = c[5] * t58;
        const V t188 = t186 - t187;
        const V t189 = c[3] * t74;
        const V t190 = t188 - t189;
        const V t191 = t185 - t190;
        io.out(26, t191);
        const V t192 = t185 + t190;
        io.out(2, t192);
        const V t193 = c[2] * t43;
        const V t194 = t29 - t193;
        const V t195 = c[0] * t59;
        const V t196 = t194 + t195;
        const V t197 = c[1] * t75;
        const V t198 = t196 - t197;
        const V t199 = c[5] * t42;
        const V t200 = c[3] * t58;
        const V t201 = t199 - t200;
        const V t202 = c[4] * t74;
        const V t203 = t201 + t202;
        const V t204 = t198 - t203;
        io.out(18, t204);
        const V t205 = t198 + t203;
        io.out(10, t205);
        // spectrum block of 7, multiplier 4
        const V t206 = t47 + t63;
        const V t207 = t206 + t79;
        const V t208 = t207 + t31;
        io.out(7, t208);
        const V t209 = c[0] * t47;
        const V t210 = c[1] * t63;
        const V t211 = t209 - t210;
        const V t212 = c[2] * t79;
        const V t213 = t211 - t212;
        const V t214 = t213 + t31;
        const V t215 = c[3] * t46;
        const V t216 = c[4] * t62;
        const V t217 = t215 + t216;
        const V t218 = c[5] * t78;
        const V t219 = t217 + t218;
        const V t220 = t214 - t219;
        io.out(27, t220);
        const V t221 = t214 + t219;
        io.out(15, t221);
        const V t222 = c[1] * t47;
        const V t223 = t31 - t222;
        const V t224 = c[2] * t63;
        const V t225 = t223 - t224;
        const V t226 = c[0] * t79;
        const V t227 = t225 + t226;
        const V t228 = c[4] * t46;
        const V t229 = c[5] * t62;
        const V t230 = t228 - t229;
        const V t231 = c[3] * t78;
        const V t232 = t230 - t231;
        const V t233 = t227 - t232;
        io.out(19, t233);
        const V t234 = t227 + t232;
        io.out(23, t234);
        const V t235 = c[2] * t47;
        const V t236 = t31 - t235;
        const V t237 = c[0] * t63;
        const V t238 = t236 + t237;
        const V t239 = c[1] * t79;
        const V t240 = t238 - t239;
        const V t241 = c[5] * t46;
        const V t242 = c[3] * t62;
        const V t243 = t241 - t242;
        const V t244 = c[4] * t78;
        const V t245 = t243 + t244;
        const V t246 = t240 - t245;
        io.out(11, t246);
        const V t247 = t240 + t245;
        io.out(3, t247);
    }
};

}  // namespace zulg
