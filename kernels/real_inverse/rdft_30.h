// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 30.
// Inverse DFT to 30 real points, prime-factor 3, 5, 2.
// 85 additions, 73 subtractions, 94 multiplications (124 with `scale`); 8 constants; 47 values alive at most.
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
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 1/5
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
        const V x10r = io.re(10);
        const V t0 = two * x10r;
        // spectrum block of 3
        const V t1 = c[4] * t0;
        const V x10i = io.im(10);
        const V t2 = c[6] * x10i;
        const V x0r = io.re(0);
        const V t3 = t0 + x0r;
        const V t4 = x0r - t1;
        const V t5 = t4 - t2;
        const V t6 = t4 + t2;
        // doubled bins
        const V x1r = io.re(1);
        const V t7 = two * x1r;
        const V x11r = io.re(11);
        const V t8 = two * x11r;
        // complex block of 3
        const V t9 = t8 + t7;
        // doubled bins
        const V x1i = io.im(1);
        const V t10 = two * x1i;
        const V x11i = io.im(11);
        const V t11 = two * x11i;
        // complex block of 3
        const V t12 = t11 + t10;
        const V t13 = t10 - t11;
        // doubled bins
        const V x9r = io.re(9);
        const V t14 = two * x9r;
        const V x9i = io.im(9);
        const V t15 = two * x9i;
        // complex block of 3
        const V t16 = t8 - t7;
        const V t17 = c[5] * t16;
        const V t18 = t15 - t12;
        const V t19 = t9 + t14;
        // spectrum block of 5
        const V t20 = c[0] * t19;
        const V t21 = c[1] * t19;
        // complex block of 3
        const V t22 = c[4] * t12;
        const V t23 = t22 + t15;
        const V t24 = c[4] * t9;
        const V t25 = t14 - t24;
        const V t26 = c[5] * t13;
        const V t27 = t25 - t26;
        const V t28 = t25 + t26;
        // doubled bins
        const V x2r = io.re(2);
        const V t29 = two * x2r;
        const V x8r = io.re(8);
        const V t30 = two * x8r;
        // complex block of 3
        const V t31 = t30 + t29;
        // doubled bins
        const V x2i = io.im(2);
        const V t32 = two * x2i;
        const V x8i = io.im(8);
        const V t33 = two * x8i;
        // complex block of 3
        const V t34 = t32 - t33;
        const V t35 = t33 + t32;
        // doubled bins
        const V x12r = io.re(12);
        const V t36 = two * x12r;
        const V x12i = io.im(12);
        const V t37 = two * x12i;
        // complex block of 3
        const V t38 = t30 - t29;
        const V t39 = c[5] * t38;
        const V t40 = t34 + t37;
        const V t41 = t31 + t36;
        // spectrum block of 5
        const V t42 = c[1] * t41;
        // complex block of 3
        const V t43 = c[4] * t34;
        const V t44 = t37 - t43;
        const V t45 = c[4] * t31;
        const V t46 = t36 - t45;
        const V t47 = c[5] * t35;
        const V t48 = t46 + t47;
        const V t49 = t46 - t47;
        // doubled bins
        const V x3r = io.re(3);
        const V t50 = two * x3r;
        const V x3i = io.im(3);
        const V t51 = two * x3i;
        const V x7r = io.re(7);
        const V t52 = two * x7r;
        const V x13r = io.re(13);
        const V t53 = two * x13r;
        // complex block of 3
        const V t54 = t53 + t52;
        // doubled bins
        const V x7i = io.im(7);
        const V t55 = two * x7i;
        const V x13i = io.im(13);
        const V t56 = two * x13i;
        // complex block of 3
        const V t57 = t56 - t55;
        const V t58 = t56 + t55;
        const V t59 = t53 - t52;
        const V t60 = c[5] * t59;
        const V t61 = t57 + t51;
        const V t62 = t54 + t50;
        // spectrum block of 5
        const V t63 = c[1] * t62;
        // complex block of 3
        const V t64 = c[4] * t57;
        const V t65 = t51 - t64;
        const V t66 = c[4] * t54;
        const V t67 = t50 - t66;
        const V t68 = c[5] * t58;
        const V t69 = t67 - t68;
        const V t70 = t67 + t68;
        // doubled bins
        const V x4r = io.re(4);
        const V t71 = two * x4r;
        const V x14r = io.re(14);
        const V t72 = two * x14r;
        // complex block of 3
        const V t73 = t72 + t71;
        // doubled bins
        const V x4i = io.im(4);
        const V t74 = two * x4i;
        const V x14i = io.im(14);
        const V t75 = two * x14i;
        // complex block of 3
        const V t76 = t75 + t74;
        const V t77 = t74 - t75;
        // doubled bins
        const V x6r = io.re(6);
        const V t78 = two * x6r;
        const V x6i = io.im(6);
        const V t79 = two * x6i;
        // complex block of 3
        const V t80 = t72 - t71;
        const V t81 = c[5] * t80;
        const V t82 = t79 - t76;
        const V t83 = t73 + t78;
        // spectrum block of 5
        const V t84 = c[0] * t83;
        const V t85 = c[1] * t83;
        // complex block of 3
        const V t86 = c[4] * t76;
        const V t87 = t86 + t79;
        const V t88 = c[4] * t73;
        const V t89 = t78 - t88;
        const V t90 = c[5] * t77;
        const V t91 = t89 - t90;
        const V t92 = t89 + t90;
        // doubled bins
        const V x5r = io.re(5);
        const V t93 = two * x5r;
        // spectrum block of 3
        const V t94 = c[4] * t93;
        const V x5i = io.im(5);
        const V t95 = c[6] * x5i;
        const V x15r = io.re(15);
        const V t96 = t93 + x15r;
        const V t97 = x15r - t94;
        const V t98 = t97 + t95;
        const V t99 = t97 - t95;
        // complex block of 3
        const V t100 = t65 + t60;
        // spectrum block of 5
        const V t101 = c[2] * t100;
        const V t102 = c[3] * t100;
        // complex block of 3
        const V t103 = t23 + t17;
        // spectrum block of 5
        const V t104 = c[3] * t103;
        const V t105 = c[2] * t103;
        const V t106 = t104 + t101;
        const V t107 = t102 - t105;
        // complex block of 3
        const V t108 = t87 + t81;
        // spectrum block of 5
        const V t109 = c[3] * t108;
        const V t110 = c[2] * t108;
        // complex block of 3
        const V t111 = t44 + t39;
        // spectrum block of 5
        const V t112 = c[2] * t111;
        const V t113 = c[3] * t111;
        const V t114 = t109 + t112;
        const V t115 = t110 - t113;
        const V t116 = c[0] * t91;
        const V t117 = c[1] * t48;
        const V t118 = t116 - t117;
        const V t119 = t118 + t5;
        const V t120 = c[1] * t91;
        const V t121 = t5 - t120;
        const V t122 = c[0] * t48;
        const V t123 = t121 + t122;
        // spectrum block of 5
        const V t124 = c[0] * t27;
        const V t125 = c[1] * t69;
        const V t126 = t124 - t125;
        const V t127 = t126 + t98;
        const V t128 = c[1] * t27;
        const V t129 = t98 - t128;
        const V t130 = c[0] * t69;
        const V t131 = t129 + t130;
        // spectrum block of 5
        const V t132 = t119 - t114;
        // spectrum block of 5
        const V t133 = t127 + t106;
        // spectrum block of 2
        const V t134 = t132 + t133;
        io.out(16, t134);
        const V t135 = t132 - t133;
        io.out(1, t135);
        // spectrum block of 5
        const V t136 = t119 + t114;
        // spectrum block of 5
        const V t137 = t127 - t106;
        // spectrum block of 2
        const V t138 = t136 + t137;
        io.out(4, t138);
        const V t139 = t136 - t137;
        io.out(19, t139);
        // spectrum block of 5
        const V t140 = t123 - t115;
        // spectrum block of 5
        const V t141 = t131 - t107;
        // spectrum block of 2
        const V t142 = t140 + t141;
        io.out(22, t142);
        const V t143 = t140 - t141;
        io.out(7, t143);
        // spectrum block of 5
        const V t144 = t123 + t115;
        // spectrum block of 5
        const V t145 = t131 + t107;
        // spectrum block of 2
        const V t146 = t144 + t145;
        io.out(28, t146);
        const V t147 = t144 - t145;
        io.out(13, t147);
        // complex block of 3
        const V t148 = t65 - t60;
        // spectrum block of 5
        const V t149 = c[2] * t148;
        const V t150 = c[3] * t148;
        // complex block of 3
        const V t151 = t23 - t17;
        // spectrum block of 5
        const V t152 = c[3] * t151;
        const V t153 = c[2] * t151;
        const V t154 = t152 + t149;
        const V t155 = t150 - t153;
        // complex block of 3
        const V t156 = t87 - t81;
        // spectrum block of 5
        const V t157 = c[3] * t156;
        const V t158 = c[2] * t156;
        // complex block of 3
        const V t159 = t44 - t39;
        // spectrum block of 5
        const V t160 = c[2] * t159;
        const V t161 = c[3] * t159;
        const V t162 = t157 + t160;
        const V t163 = t158 - t161;
        const V t164 = c[0] * t92;
        const V t165 = c[1] * t49;
        const V t166 = t164 - t165;
        const V t167 = t166 + t6;
        const V t168 = c[1] * t92;
        const V t169 = t6 - t168;
        const V t170 = c[0] * t49;
        const V t171 = t169 + t170;
        // spectrum block of 5
        const V t172 = c[0] * t28;
        const V t173 = c[1] * t70;
        const V t174 = t172 - t173;
        const V t175 = t174 + t99;
        const V t176 = c[1] * t28;
        const V t177 = t99 - t176;
        const V t178 = c[0] * t70;
        const V t179 = t177 + t178;
        // spectrum block of 5
        const V t180 = t167 - t162;
        // spectrum block of 5
        const V t181 = t175 + t154;
        // spectrum block of 2
        const V t182 = t180 + t181;
        io.out(26, t182);
        const V t183 = t180 - t181;
        io.out(11, t183);
        // spectrum block of 5
        const V t184 = t167 + t162;
        // spectrum block of 5
        const V t185 = t175 - t154;
        // spectrum block of 2
        const V t186 = t184 + t185;
        io.out(14, t186);
        const V t187 = t184 - t185;
        io.out(29, t187);
        // spectrum block of 5
        const V t188 = t171 - t163;
        // spectrum block of 5
        const V t189 = t179 - t155;
        // spectrum block of 2
        const V t190 = t188 + t189;
        io.out(2, t190);
        const V t191 = t188 - t189;
        io.out(17, t191);
        // spectrum block of 5
        const V t192 = t171 + t163;
        // spectrum block of 5
        const V t193 = t179 + t155;
        // spectrum block of 2
        const V t194 = t192 + t193;
        io.out(8, t194);
        const V t195 = t192 - t193;
        io.out(23, t195);
        // spectrum block of 5
        const V t196 = t83 + t41;
        const V t197 = t196 + t3;
        // spectrum block of 5
        const V t198 = t19 + t62;
        const V t199 = t198 + t96;
        // spectrum block of 2
        const V t200 = t197 + t199;
        io.out(0, t200);
        const V t201 = t197 - t199;
        io.out(15, t201);
        // spectrum block of 5
        const V t202 = t84 - t42;
        const V t203 = t202 + t3;
        const V t204 = c[3] * t82;
        const V t205 = c[2] * t40;
        const V t206 = t204 + t205;
        // spectrum block of 5
        const V t207 = t20 - t63;
        const V t208 = t207 + t96;
        const V t209 = c[3] * t18;
        const V t210 = c[2] * t61;
        const V t211 = t209 + t210;
        // spectrum block of 5
        const V t212 = t203 - t206;
        // spectrum block of 5
        const V t213 = t208 + t211;
        // spectrum block of 2
        const V t214 = t212 + t213;
        io.out(6, t214);
        const V t215 = t212 - t213;
        io.out(21, t215);
        // spectrum block of 5
        const V t216 = t203 + t206;
        // spectrum block of 5
        const V t217 = t208 - t211;
        // spectrum block of 2
        const V t218 = t216 + t217;
        io.out(24, t218);
        const V t219 = t216 - t217;
        io.out(9, t219);
        // spectrum block of 5
        const V t220 = t3 - t85;
        const V t221 = c[0] * t41;
        const V t222 = t220 + t221;
        const V t223 = c[2] * t82;
        const V t224 = c[3] * t40;
        const V t225 = t223 - t224;
        // spectrum block of 5
        const V t226 = t96 - t21;
        const V t227 = c[0] * t62;
        const V t228 = t226 + t227;
        const V t229 = c[2] * t18;
        const V t230 = c[3] * t61;
        const V t231 = t230 - t229;
        // spectrum block of 5
        const V t232 = t222 - t225;
        // spectrum block of 5
        const V t233 = t228 - t231;
        // spectrum block of 2
        const V t234 = t232 + t233;
        io.out(12, t234);
        const V t235 = t232 - t233;
        io.out(27, t235);
        // spectrum block of 5
        const V t236 = t222 + t225;
        // spectrum block of 5
        const V t237 = t228 + t231;
        // spectrum block of 2
        const V t238 = t236 + t237;
        io.out(18, t238);
        const V t239 = t236 - t237;
        io.out(3, t239);
        // spectrum block of 5
        const V t240 = t91 + t48;
        const V t241 = t240 + t5;
        // spectrum block of 5
        const V t242 = t27 + t69;
        const V t243 = t242 + t98;
        // spectrum block of 2
        const V t244 = t241 + t243;
        io.out(10, t244);
        const V t245 = t241 - t243;
        io.out(25, t245);
        // spectrum block of 5
        const V t246 = t92 + t49;
        const V t247 = t246 + t6;
        // spectrum block of 5
        const V t248 = t28 + t70;
        const V t249 = t248 + t99;
        // spectrum block of 2
        const V t250 = t247 + t249;
        io.out(20, t250);
        const V t251 = t247 - t249;
        io.out(5, t251);
    }
};

}  // namespace zulg
