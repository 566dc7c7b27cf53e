// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 30.
// Hartley transform of 30 points, form I.
// 99 additions, 87 subtractions, 68 multiplications (98 with `scale`); 6 constants; 34 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<30> {
    static constexpr int steps = 284;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x29 = io.in(29);
        const V t0 = x1 + x29;
        const V t1 = x1 - x29;
        const V x2 = io.in(2);
        const V x28 = io.in(28);
        const V t2 = x2 + x28;
        const V t3 = x2 - x28;
        const V x3 = io.in(3);
        const V x27 = io.in(27);
        const V t4 = x3 + x27;
        const V t5 = x3 - x27;
        const V x4 = io.in(4);
        const V x26 = io.in(26);
        const V t6 = x4 + x26;
        const V t7 = x4 - x26;
        const V x5 = io.in(5);
        const V x25 = io.in(25);
        const V t8 = x5 + x25;
        const V t9 = x5 - x25;
        const V x6 = io.in(6);
        const V x24 = io.in(24);
        const V t10 = x6 + x24;
        const V t11 = x6 - x24;
        const V x7 = io.in(7);
        const V x23 = io.in(23);
        const V t12 = x7 + x23;
        const V t13 = x7 - x23;
        const V x8 = io.in(8);
        const V x22 = io.in(22);
        const V t14 = x8 + x22;
        const V t15 = x8 - x22;
        const V x9 = io.in(9);
        const V x21 = io.in(21);
        const V t16 = x9 + x21;
        const V t17 = x9 - x21;
        const V x10 = io.in(10);
        const V x20 = io.in(20);
        const V t18 = x10 + x20;
        const V t19 = x10 - x20;
        const V x11 = io.in(11);
        const V x19 = io.in(19);
        const V t20 = x11 + x19;
        const V t21 = x11 - x19;
        const V x12 = io.in(12);
        const V x18 = io.in(18);
        const V t22 = x12 + x18;
        const V t23 = x12 - x18;
        const V x13 = io.in(13);
        const V x17 = io.in(17);
        const V t24 = x13 + x17;
        const V t25 = x13 - x17;
        const V x14 = io.in(14);
        const V x16 = io.in(16);
        const V t26 = x14 + x16;
        const V t27 = x14 - x16;
        // spectrum block of 3
        const V x0 = io.in(0);
        const V t28 = t18 + x0;
        const V t29 = c[4] * t18;
        const V t30 = x0 - t29;
        const V t31 = c[5] * t19;
        const V t32 = t30 - t31;
        const V t33 = t30 + t31;
        // complex block of 3
        const V t34 = t25 - t13;
        const V t35 = t24 + t12;
        const V t36 = t25 + t13;
        const V t37 = t24 - t12;
        const V t38 = t34 + t5;
        const V t39 = t35 + t4;
        const V t40 = c[4] * t34;
        const V t41 = t5 - t40;
        const V t42 = c[4] * t35;
        const V t43 = t4 - t42;
        const V t44 = c[5] * t36;
        const V t45 = c[5] * t37;
        const V t46 = t41 + t45;
        const V t47 = t43 - t44;
        const V t48 = t41 - t45;
        const V t49 = t43 + t44;
        // complex block of 3
        const V t50 = t27 + t7;
        const V t51 = t26 + t6;
        const V t52 = t7 - t27;
        const V t53 = t26 - t6;
        const V t54 = t11 - t50;
        const V t55 = t51 + t10;
        const V t56 = c[4] * t50;
        const V t57 = t56 + t11;
        const V t58 = c[4] * t51;
        const V t59 = t10 - t58;
        const V t60 = c[5] * t52;
        const V t61 = c[5] * t53;
        const V t62 = t57 + t61;
        const V t63 = t59 - t60;
        const V t64 = t57 - t61;
        const V t65 = t59 + t60;
        // complex block of 3
        const V t66 = t21 + t1;
        const V t67 = t20 + t0;
        const V t68 = t1 - t21;
        const V t69 = t20 - t0;
        const V t70 = t17 - t66;
        const V t71 = t67 + t16;
        const V t72 = c[4] * t66;
        const V t73 = t72 + t17;
        const V t74 = c[4] * t67;
        const V t75 = t16 - t74;
        const V t76 = c[5] * t68;
        const V t77 = c[5] * t69;
        const V t78 = t73 + t77;
        const V t79 = t75 - t76;
        const V t80 = t73 - t77;
        const V t81 = t75 + t76;
        // complex block of 3
        const V t82 = t3 - t15;
        const V t83 = t14 + t2;
        const V t84 = t15 + t3;
        const V t85 = t14 - t2;
        const V t86 = t82 + t23;
        const V t87 = t83 + t22;
        const V t88 = c[4] * t82;
        const V t89 = t23 - t88;
        const V t90 = c[4] * t83;
        const V t91 = t22 - t90;
        const V t92 = c[5] * t84;
        const V t93 = c[5] * t85;
        const V t94 = t89 + t93;
        const V t95 = t91 + t92;
        const V t96 = t89 - t93;
        const V t97 = t91 - t92;
        // spectrum block of 3
        const V x15 = io.in(15);
        const V t98 = t8 + x15;
        const V t99 = c[4] * t8;
        const V t100 = x15 - t99;
        const V t101 = c[5] * t9;
        const V t102 = t100 + t101;
        const V t103 = t100 - t101;
        // spectrum block of 5
        const V t104 = t55 + t87;
        const V t105 = t104 + t28;
        const V t106 = c[0] * t55;
        const V t107 = c[1] * t87;
        const V t108 = t106 - t107;
        const V t109 = t108 + t28;
        const V t110 = c[2] * t54;
        const V t111 = c[3] * t86;
        const V t112 = t110 + t111;
        const V t113 = t109 - t112;
        const V t114 = t109 + t112;
        const V t115 = c[1] * t55;
        const V t116 = t28 - t115;
        const V t117 = c[0] * t87;
        const V t118 = t116 + t117;
        const V t119 = c[3] * t54;
        const V t120 = c[2] * t86;
        const V t121 = t119 - t120;
        const V t122 = t118 - t121;
        const V t123 = t118 + t121;
        // spectrum block of 5
        const V t124 = t71 + t39;
        const V t125 = t124 + t98;
        const V t126 = c[0] * t71;
        const V t127 = c[1] * t39;
        const V t128 = t126 - t127;
        const V t129 = t128 + t98;
        const V t130 = c[2] * t70;
        const V t131 = c[3] * t38;
        const V t132 = t130 + t131;
        const V t133 = t129 + t132;
        const V t134 = t129 - t132;
        const V t135 = c[1] * t71;
        const V t136 = t98 - t135;
        const V t137 = c[0] * t39;
        const V t138 = t136 + t137;
        const V t139 = c[3] * t70;
        const V t140 = c[2] * t38;
        const V t141 = t140 - t139;
        const V t142 = t138 - t141;
        const V t143 = t138 + t141;
        // spectrum block of 2
        const V t144 = t105 + t125;
        io.out(0, t144);
        const V t145 = t105 - t125;
        io.out(15, t145);
        // spectrum block of 2
        const V t146 = t113 + t133;
        io.out(24, t146);
        const V t147 = t113 - t133;
        io.out(9, t147);
        // spectrum block of 2
        const V t148 = t122 + t142;
        io.out(18, t148);
        const V t149 = t122 - t142;
        io.out(3, t149);
        // spectrum block of 2
        const V t150 = t123 + t143;
        io.out(12, t150);
        const V t151 = t123 - t143;
        io.out(27, t151);
        // spectrum block of 2
        const V t152 = t114 + t134;
        io.out(6, t152);
        const V t153 = t114 - t134;
        io.out(21, t153);
        // spectrum block of 5
        const V t154 = t63 + t95;
        const V t155 = t154 + t32;
        const V t156 = c[0] * t63;
        const V t157 = c[1] * t95;
        const V t158 = t156 - t157;
        const V t159 = t158 + t32;
        const V t160 = c[2] * t62;
        const V t161 = c[3] * t94;
        const V t162 = t160 + t161;
        const V t163 = t159 - t162;
        const V t164 = t159 + t162;
        const V t165 = c[1] * t63;
        const V t166 = t32 - t165;
        const V t167 = c[0] * t95;
        const V t168 = t166 + t167;
        const V t169 = c[3] * t62;
        const V t170 = c[2] * t94;
        const V t171 = t169 - t170;
        const V t172 = t168 - t171;
        const V t173 = t168 + t171;
        // spectrum block of 5
        const V t174 = t79 + t47;
        const V t175 = t174 + t102;
        const V t176 = c[0] * t79;
        const V t177 = c[1] * t47;
        const V t178 = t176 - t177;
        const V t179 = t178 + t102;
        const V t180 = c[2] * t78;
        const V t181 = c[3] * t46;
        const V t182 = t180 + t181;
        const V t183 = t179 + t182;
        const V t184 = t179 - t182;
        const V t185 = c[1] * t79;
        const V t186 = t102 - t185;
        const V t187 = c[0] * t47;
        const V t188 = t186 + t187;
        const V t189 = c[3] * t78;
        const V t190 = c[2] * t46;
        const V t191 = t190 - t189;
        const V t192 = t188 - t191;
        const V t193 = t188 + t191;
        // spectrum block of 2
        const V t194 = t155 + t175;
        io.out(20, t194);
        const V t195 = t155 - t175;
        io.out(5, t195);
        // spectrum block of 2
        const V t196 = t163 + t183;
        io.out(14, t196);
        const V t197 = t163 - t183;
        io.out(29, t197);
        // spectrum block of 2
        const V t198 = t172 + t192;
        io.out(8, t198);
        const V t199 = t172 - t192;
        io.out(23, t199);
        // spectrum block of 2
        const V t200 = t173 + t193;
        io.out(2, t200);
        const V t201 = t173 - t193;
        io.out(17, t201);
        // spectrum block of 2
        const V t202 = t164 + t184;
        io.out(26, t202);
        const V t203 = t164 - t184;
        io.out(11, t203);
        // spectrum block of 5
        const V t204 = t65 + t97;
        const V t205 = t204 + t33;
        const V t206 = c[0] * t65;
        const V t207 = c[1] * t97;
        const V t208 = t206 - t207;
        const V t209 = t208 + t33;
        const V t210 = c[2] * t64;
        const V t211 = c[3] * t96;
        const V t212 = t210 + t211;
        const V t213 = t209 - t212;
        const V t214 = t209 + t212;
        const V t215 = c[1] * t65;
        const V t216 = t33 - t215;
        const V t217 = c[0] * t97;
        const V t218 = t216 + t217;
        const V t219 = c[3] * t64;
        const V t220 = c[2] * t96;
        const V t221 = t219 - t220;
        const V t222 = t218 - t221;
        const V t223 = t218 + t221;
        // spectrum block of 5
        const V t224 = t81 + t49;
        const V t225 = t224 + t103;
        const V t226 = c[0] * t81;
        const V t227 = c[1] * t49;
        const V t228 = t226 - t227;
        const V t229 = t228 + t103;
        const V t230 = c[2] * t80;
        const V t231 = c[3] * t48;
        const V t232 = t230 + t231;
        const V t233 = t229 + t232;
        const V t234 = t229 - t232;
        const V t235 = c[1] * t81;
        const V t236 = t103 - t235;
        const V t237 = c[0] * t49;
        const V t238 = t236 + t237;
        const V t239 = c[3] * t80;
        const V t240 = c[2] * t48;
        const V t241 = t240 - t239;
        const V t242 = t238 - t241;
        const V t243 = t238 + t241;
        // spectrum block of 2
        const V t244 = t205 + t225;
        io.out(10, t244);
        const V t245 = t205 - t225;
        io.out(25, t245);
        // spectrum block of 2
        const V t246 = t213 + t233;
        io.out(4, t246);
        const V t247 = t213 - t233;
        io.out(19, t247);
        // spectrum block of 2
        const V t248 = t222 + t242;
        io.out(28, t248);
        const V t249 = t222 - t242;
        io.out(13, t249);
        // spectrum block of 2
        const V t250 = t223 + t243;
        io.out(22, t250);
        const V t251 = t223 - t243;
        io.out(7, t251);
        // spectrum block of 2
        const V t252 = t214 + t234;
        io.out(16, t252);
        const V t253 = t214 - t234;
        io.out(1, t253);
    }
};

}  // namespace zulg
