// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 30.
// Inverse DFT to 30 real points, prime-factor 3, 5, 2.
// 85 additions, 73 subtractions, 94 multiplications (124 with `scale`); 8 constants; 34 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<30> {
    static constexpr int steps = 282;  // with `scale`
    static constexpr double inverseRoot = 0.18257418583505536;  // 1/sqrt(30), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.5,  // c[4]: -cos 2 pi 1/3
        0.8660254037844386,  // c[5]: sin 2 pi 1/3
        1.7320508075688772,  // c[6]: sin 2 pi 1/3 times 2
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x1i = io.im(1);
        const V t1 = two * x1i;
        const V x2r = io.re(2);
        const V t2 = two * x2r;
        const V x2i = io.im(2);
        const V t3 = two * x2i;
        const V x3r = io.re(3);
        const V t4 = two * x3r;
        const V x3i = io.im(3);
        const V t5 = two * x3i;
        const V x4r = io.re(4);
        const V t6 = two * x4r;
        const V x4i = io.im(4);
        const V t7 = two * x4i;
        const V x5r = io.re(5);
        const V t8 = two * x5r;
        const V x6r = io.re(6);
        const V t9 = two * x6r;
        const V x6i = io.im(6);
        const V t10 = two * x6i;
        const V x7r = io.re(7);
        const V t11 = two * x7r;
        const V x7i = io.im(7);
        const V t12 = two * x7i;
        const V x8r = io.re(8);
        const V t13 = two * x8r;
        const V x8i = io.im(8);
        const V t14 = two * x8i;
        const V x9r = io.re(9);
        const V t15 = two * x9r;
        const V x9i = io.im(9);
        const V t16 = two * x9i;
        const V x10r = io.re(10);
        const V t17 = two * x10r;
        const V x11r = io.re(11);
        const V t18 = two * x11r;
        const V x11i = io.im(11);
        const V t19 = two * x11i;
        const V x12r = io.re(12);
        const V t20 = two * x12r;
        const V x12i = io.im(12);
        const V t21 = two * x12i;
        const V x13r = io.re(13);
        const V t22 = two * x13r;
        const V x13i = io.im(13);
        const V t23 = two * x13i;
        const V x14r = io.re(14);
        const V t24 = two * x14r;
        const V x14i = io.im(14);
        const V t25 = two * x14i;
        // spectrum block of 3
        const V x0r = io.re(0);
        const V t26 = t17 + x0r;
        const V t27 = c[4] * t17;
        const V t28 = x0r - t27;
        const V x10i = io.im(10);
        const V t29 = c[6] * x10i;
        const V t30 = t28 - t29;
        const V t31 = t28 + t29;
        // complex block of 3
        const V t32 = t23 - t12;
        const V t33 = t22 + t11;
        const V t34 = t23 + t12;
        const V t35 = t22 - t11;
        const V t36 = t32 + t5;
        const V t37 = t33 + t4;
        const V t38 = c[4] * t32;
        const V t39 = t5 - t38;
        const V t40 = c[4] * t33;
        const V t41 = t4 - t40;
        const V t42 = c[5] * t34;
        const V t43 = c[5] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // complex block of 3
        const V t48 = t25 + t7;
        const V t49 = t24 + t6;
        const V t50 = t7 - t25;
        const V t51 = t24 - t6;
        const V t52 = t10 - t48;
        const V t53 = t49 + t9;
        const V t54 = c[4] * t48;
        const V t55 = t54 + t10;
        const V t56 = c[4] * t49;
        const V t57 = t9 - t56;
        const V t58 = c[5] * t50;
        const V t59 = c[5] * t51;
        const V t60 = t55 + t59;
        const V t61 = t57 - t58;
        const V t62 = t55 - t59;
        const V t63 = t57 + t58;
        // complex block of 3
        const V t64 = t19 + t1;
        const V t65 = t18 + t0;
        const V t66 = t1 - t19;
        const V t67 = t18 - t0;
        const V t68 = t16 - t64;
        const V t69 = t65 + t15;
        const V t70 = c[4] * t64;
        const V t71 = t70 + t16;
        const V t72 = c[4] * t65;
        const V t73 = t15 - t72;
        const V t74 = c[5] * t66;
        const V t75 = c[5] * t67;
        const V t76 = t71 + t75;
        const V t77 = t73 - t74;
        const V t78 = t71 - t75;
        const V t79 = t73 + t74;
        // complex block of 3
        const V t80 = t3 - t14;
        const V t81 = t13 + t2;
        const V t82 = t14 + t3;
        const V t83 = t13 - t2;
        const V t84 = t80 + t21;
        const V t85 = t81 + t20;
        const V t86 = c[4] * t80;
        const V t87 = t21 - t86;
        const V t88 = c[4] * t81;
        const V t89 = t20 - t88;
        const V t90 = c[5] * t82;
        const V t91 = c[5] * t83;
        const V t92 = t87 + t91;
        const V t93 = t89 + t90;
        const V t94 = t87 - t91;
        const V t95 = t89 - t90;
        // spectrum block of 3
        const V x15r = io.re(15);
        const V t96 = t8 + x15r;
        const V t97 = c[4] * t8;
        const V t98 = x15r - t97;
        const V x5i = io.im(5);
        const V t99 = c[6] * x5i;
        const V t100 = t98 + t99;
        const V t101 = t98 - t99;
        // spectrum block of 5
        const V t102 = t53 + t85;
        const V t103 = t102 + t26;
        const V t104 = c[0] * t53;
        const V t105 = c[1] * t85;
        const V t106 = t104 - t105;
        const V t107 = t106 + t26;
        const V t108 = c[2] * t52;
        const V t109 = c[3] * t84;
        const V t110 = t108 + t109;
        const V t111 = t107 - t110;
        const V t112 = t107 + t110;
        const V t113 = c[1] * t53;
        const V t114 = t26 - t113;
        const V t115 = c[0] * t85;
        const V t116 = t114 + t115;
        const V t117 = c[3] * t52;
        const V t118 = c[2] * t84;
        const V t119 = t117 - t118;
        const V t120 = t116 - t119;
        const V t121 = t116 + t119;
        // spectrum block of 5
        const V t122 = t69 + t37;
        const V t123 = t122 + t96;
        const V t124 = c[0] * t69;
        const V t125 = c[1] * t37;
        const V t126 = t124 - t125;
        const V t127 = t126 + t96;
        const V t128 = c[2] * t68;
        const V t129 = c[3] * t36;
        const V t130 = t128 + t129;
        const V t131 = t127 + t130;
        const V t132 = t127 - t130;
        const V t133 = c[1] * t69;
        const V t134 = t96 - t133;
        const V t135 = c[0] * t37;
        const V t136 = t134 + t135;
        const V t137 = c[3] * t68;
        const V t138 = c[2] * t36;
        const V t139 = t138 - t137;
        const V t140 = t136 - t139;
        const V t141 = t136 + t139;
        // spectrum block of 2
        const V t142 = t103 + t123;
        io.out(0, t142);
        const V t143 = t103 - t123;
        io.out(15, t143);
        // spectrum block of 2
        const V t144 = t111 + t131;
        io.out(6, t144);
        const V t145 = t111 - t131;
        io.out(21, t145);
        // spectrum block of 2
        const V t146 = t120 + t140;
        io.out(12, t146);
        const V t147 = t120 - t140;
        io.out(27, t147);
        // spectrum block of 2
        const V t148 = t121 + t141;
        io.out(18, t148);
        const V t149 = t121 - t141;
        io.out(3, t149);
        // spectrum block of 2
        const V t150 = t112 + t132;
        io.out(24, t150);
        const V t151 = t112 - t132;
        io.out(9, t151);
        // spectrum block of 5
        const V t152 = t61 + t93;
        const V t153 = t152 + t30;
        const V t154 = c[0] * t61;
        const V t155 = c[1] * t93;
        const V t156 = t154 - t155;
        const V t157 = t156 + t30;
        const V t158 = c[2] * t60;
        const V t159 = c[3] * t92;
        const V t160 = t158 + t159;
        const V t161 = t157 - t160;
        const V t162 = t157 + t160;
        const V t163 = c[1] * t61;
        const V t164 = t30 - t163;
        const V t165 = c[0] * t93;
        const V t166 = t164 + t165;
        const V t167 = c[3] * t60;
        const V t168 = c[2] * t92;
        const V t169 = t167 - t168;
        const V t170 = t166 - t169;
        const V t171 = t166 + t169;
        // spectrum block of 5
        const V t172 = t77 + t45;
        const V t173 = t172 + t100;
        const V t174 = c[0] * t77;
        const V t175 = c[1] * t45;
        const V t176 = t174 - t175;
        const V t177 = t176 + t100;
        const V t178 = c[2] * t76;
        const V t179 = c[3] * t44;
        const V t180 = t178 + t179;
        const V t181 = t177 + t180;
        const V t182 = t177 - t180;
        const V t183 = c[1] * t77;
        const V t184 = t100 - t183;
        const V t185 = c[0] * t45;
        const V t186 = t184 + t185;
        const V t187 = c[3] * t76;
        const V t188 = c[2] * t44;
        const V t189 = t188 - t187;
        const V t190 = t186 - t189;
        const V t191 = t186 + t189;
        // spectrum block of 2
        const V t192 = t153 + t173;
        io.out(10, t192);
        const V t193 = t153 - t173;
        io.out(25, t193);
        // spectrum block of 2
        const V t194 = t161 + t181;
        io.out(16, t194);
        const V t195 = t161 - t181;
        io.out(1, t195);
        // spectrum block of 2
        const V t196 = t170 + t190;
        io.out(22, t196);
        const V t197 = t170 - t190;
        io.out(7, t197);
        // spectrum block of 2
        const V t198 = t171 + t191;
        io.out(28, t198);
        const V t199 = t171 - t191;
        io.out(13, t199);
        // spectrum block of 2
        const V t200 = t162 + t182;
        io.out(4, t200);
        const V t201 = t162 - t182;
        io.out(19, t201);
        // spectrum block of 5
        const V t202 = t63 + t95;
        const V t203 = t202 + t31;
        const V t204 = c[0] * t63;
        const V t205 = c[1] * t95;
        const V t206 = t204 - t205;
        const V t207 = t206 + t31;
        const V t208 = c[2] * t62;
        const V t209 = c[3] * t94;
        const V t210 = t208 + t209;
        const V t211 = t207 - t210;
        const V t212 = t207 + t210;
        const V t213 = c[1] * t63;
        const V t214 = t31 - t213;
        const V t215 = c[0] * t95;
        const V t216 = t214 + t215;
        const V t217 = c[3] * t62;
        const V t218 = c[2] * t94;
        const V t219 = t217 - t218;
        const V t220 = t216 - t219;
        const V t221 = t216 + t219;
        // spectrum block of 5
        const V t222 = t79 + t47;
        const V t223 = t222 + t101;
        const V t224 = c[0] * t79;
        const V t225 = c[1] * t47;
        const V t226 = t224 - t225;
        const V t227 = t226 + t101;
        const V t228 = c[2] * t78;
        const V t229 = c[3] * t46;
        const V t230 = t228 + t229;
        const V t231 = t227 + t230;
        const V t232 = t227 - t230;
        const V t233 = c[1] * t79;
        const V t234 = t101 - t233;
        const V t235 = c[0] * t47;
        const V t236 = t234 + t235;
        const V t237 = c[3] * t78;
        const V t238 = c[2] * t46;
        const V t239 = t238 - t237;
        const V t240 = t236 - t239;
        const V t241 = t236 + t239;
        // spectrum block of 2
        const V t242 = t203 + t223;
        io.out(20, t242);
        const V t243 = t203 - t223;
        io.out(5, t243);
        // spectrum block of 2
        const V t244 = t211 + t231;
        io.out(26, t244);
        const V t245 = t211 - t231;
        io.out(11, t245);
        // spectrum block of 2
        const V t246 = t220 + t240;
        io.out(2, t246);
        const V t247 = t220 - t240;
        io.out(17, t247);
        // spectrum block of 2
        const V t248 = t221 + t241;
        io.out(8, t248);
        const V t249 = t221 - t241;
        io.out(23, t249);
        // spectrum block of 2
        const V t250 = t212 + t232;
        io.out(14, t250);
        const V t251 = t212 - t232;
        io.out(29, t251);
    }
};

}  // namespace zulg
