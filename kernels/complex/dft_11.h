// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 11.
// Complex DFT of 11 points, Rader block.
// 86 additions, 70 subtractions, 100 multiplications (122 with `scale`); 14 constants; 24 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<11> {
    static constexpr int steps = 278;  // with `scale`
    static constexpr double inverseRoot = 0.30151134457776363;  // 1/sqrt(11), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.19106037559687397,  // c[4]: P[1] of 11
        0.635213297150478,  // c[5]: Q[1] of 11
        0.4025393125514894,  // c[6]: Q[2] of 11
        0.5272211128649671,  // c[7]: P[2] of 11
        0.5082556049431003,  // c[8]: P[3] of 11
        0.4262349587304204,  // c[9]: -Q[3] of 11
        0.5182443007085755,  // c[10]: Q[4] of 11
        0.41403241996621415,  // c[11]: P[4] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 5, multiplier 2
        const V x4r = io.re(4);
        const V x3r = io.re(3);
        const V t0 = x4r + x3r;
        const V t1 = x4r - x3r;
        const V x9r = io.re(9);
        const V x5r = io.re(5);
        const V t2 = x9r + x5r;
        const V t3 = x9r - x5r;
        const V t4 = t0 + t2;
        const V x1r = io.re(1);
        const V t5 = t4 + x1r;
        const V t6 = c[0] * t0;
        const V t7 = x1r - t6;
        const V t8 = c[1] * t2;
        const V t9 = t7 + t8;
        const V t10 = c[2] * t1;
        const V t11 = c[3] * t3;
        const V t12 = t10 + t11;
        const V t13 = c[1] * t0;
        const V t14 = c[0] * t2;
        const V t15 = t13 - t14;
        const V t16 = t15 + x1r;
        const V t17 = c[3] * t1;
        const V t18 = c[2] * t3;
        const V t19 = t17 - t18;
        // real block of 5, multiplier 2
        const V x7r = io.re(7);
        const V x8r = io.re(8);
        const V t20 = x7r + x8r;
        const V t21 = x7r - x8r;
        const V x2r = io.re(2);
        const V x6r = io.re(6);
        const V t22 = x2r + x6r;
        const V t23 = x2r - x6r;
        const V t24 = t20 + t22;
        const V x10r = io.re(10);
        const V t25 = t24 + x10r;
        const V t26 = c[0] * t20;
        const V t27 = x10r - t26;
        const V t28 = c[1] * t22;
        const V t29 = t27 + t28;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t30 + t31;
        const V t33 = c[1] * t20;
        const V t34 = c[0] * t22;
        const V t35 = t33 - t34;
        const V t36 = t35 + x10r;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 - t38;
        // real block of 2
        const V t40 = t5 + t25;
        const V t41 = t5 - t25;
        // complex block of 2
        const V t42 = t9 + t29;
        const V t43 = t12 + t32;
        const V t44 = t9 - t29;
        const V t45 = t32 - t12;
        // complex block of 2
        const V t46 = t16 + t36;
        const V t47 = t19 + t39;
        const V t48 = t16 - t36;
        const V t49 = t19 - t39;
        // real block of 5, multiplier 2
        const V x4i = io.im(4);
        const V x3i = io.im(3);
        const V t50 = x4i + x3i;
        const V t51 = x4i - x3i;
        const V x9i = io.im(9);
        const V x5i = io.im(5);
        const V t52 = x9i + x5i;
        const V t53 = x9i - x5i;
        const V t54 = t50 + t52;
        const V x1i = io.im(1);
        const V t55 = t54 + x1i;
        const V t56 = c[0] * t50;
        const V t57 = x1i - t56;
        const V t58 = c[1] * t52;
        const V t59 = t57 + t58;
        const V t60 = c[2] * t51;
        const V t61 = c[3] * t53;
        const V t62 = t60 + t61;
        const V t63 = c[1] * t50;
        const V t64 = c[0] * t52;
        const V t65 = t63 - t64;
        const V t66 = t65 + x1i;
        const V t67 = c[3] * t51;
        const V t68 = c[2] * t53;
        const V t69 = t67 - t68;
        // real block of 5, multiplier 2
        const V x7i = io.im(7);
        const V x8i = io.im(8);
        const V t70 = x7i + x8i;
        const V t71 = x7i - x8i;
        const V x2i = io.im(2);
        const V x6i = io.im(6);
        const V t72 = x2i + x6i;
        const V t73 = x2i - x6i;
        const V t74 = t70 + t72;
        const V x10i = io.im(10);
        const V t75 = t74 + x10i;
        const V t76 = c[0] * t70;
        const V t77 = x10i - t76;
        const V t78 = c[1] * t72;
        const V t79 = t77 + t78;
        const V t80 = c[2] * t71;
        const V t81 = c[3] * t73;
        const V t82 = t80 + t81;
        const V t83 = c[1] * t70;
        const V t84 = c[0] * t72;
        const V t85 = t83 - t84;
        const V t86 = t85 + x10i;
        const V t87 = c[3] * t71;
        const V t88 = c[2] * t73;
        const V t89 = t87 - t88;
        // real block of 2
        const V t90 = t55 + t75;
        const V t91 = t55 - t75;
        // complex block of 2
        const V t92 = t59 + t79;
        const V t93 = t62 + t82;
        const V t94 = t59 - t79;
        const V t95 = t82 - t62;
        // complex block of 2
        const V t96 = t66 + t86;
        const V t97 = t69 + t89;
        const V t98 = t66 - t86;
        const V t99 = t69 - t89;
        // complex block of 11
        const V x0r = io.re(0);
        const V t100 = x0r + t40;
        const V x0i = io.im(0);
        io.re(0, t100);
        const V t101 = x0i + t90;
        io.im(0, t101);
        const V t102 = c[12] * t40;
        const V t103 = x0r - t102;
        const V t104 = c[12] * t90;
        const V t105 = x0i - t104;
        const V t106 = c[4] * t99;
        const V t107 = c[5] * t98;
        const V t108 = t107 + t106;
        const V t109 = c[4] * t98;
        const V t110 = c[5] * t99;
        const V t111 = t109 - t110;
        const V t112 = c[4] * t49;
        const V t113 = c[5] * t48;
        const V t114 = t113 + t112;
        const V t115 = c[4] * t48;
        const V t116 = c[5] * t49;
        const V t117 = t116 - t115;
        const V t118 = c[6] * t43;
        const V t119 = c[7] * t42;
        const V t120 = t119 + t118;
        const V t121 = c[6] * t42;
        const V t122 = c[7] * t43;
        const V t123 = t121 - t122;
        const V t124 = c[6] * t93;
        const V t125 = c[7] * t92;
        const V t126 = t125 + t124;
        const V t127 = c[6] * t92;
        const V t128 = c[7] * t93;
        const V t129 = t127 - t128;
        const V t130 = c[8] * t95;
        const V t131 = c[9] * t94;
        const V t132 = t130 - t131;
        const V t133 = c[8] * t94;
        const V t134 = c[9] * t95;
        const V t135 = t134 + t133;
        const V t136 = c[8] * t45;
        const V t137 = c[9] * t44;
        const V t138 = t137 - t136;
        const V t139 = c[8] * t44;
        const V t140 = c[9] * t45;
        const V t141 = t140 + t139;
        const V t142 = c[10] * t47;
        const V t143 = c[11] * t46;
        const V t144 = t143 - t142;
        const V t145 = c[10] * t46;
        const V t146 = c[11] * t47;
        const V t147 = t146 + t145;
        const V t148 = c[10] * t97;
        const V t149 = c[11] * t96;
        const V t150 = t149 - t148;
        const V t151 = c[10] * t96;
        const V t152 = c[11] * t97;
        const V t153 = t152 + t151;
        const V t154 = c[13] * t91;
        const V t155 = c[13] * t41;
        // spectrum block of 2
        const V t156 = t103 + t154;
        const V t157 = t103 - t154;
        // complex block of 2
        const V t158 = t123 - t135;
        const V t159 = t120 + t132;
        const V t160 = t123 + t135;
        const V t161 = t120 - t132;
        // complex block of 2
        const V t162 = t147 - t111;
        const V t163 = t144 + t108;
        const V t164 = t147 + t111;
        const V t165 = t144 - t108;
        // spectrum block of 5, multiplier 2
        const V t166 = t159 + t163;
        const V t167 = t166 + t156;
        io.re(1, t167);
        const V t168 = c[1] * t159;
        const V t169 = c[0] * t163;
        const V t170 = t168 - t169;
        const V t171 = t170 + t156;
        const V t172 = c[3] * t158;
        const V t173 = c[2] * t162;
        const V t174 = t172 + t173;
        const V t175 = t171 - t174;
        io.re(5, t175);
        const V t176 = t171 + t174;
        io.re(9, t176);
        const V t177 = c[0] * t159;
        const V t178 = t156 - t177;
        const V t179 = c[1] * t163;
        const V t180 = t178 + t179;
        const V t181 = c[2] * t158;
        const V t182 = c[3] * t162;
        const V t183 = t181 - t182;
        const V t184 = t180 - t183;
        io.re(3, t184);
        const V t185 = t180 + t183;
        io.re(4, t185);
        // spectrum block of 5, multiplier 2
        const V t186 = t161 + t165;
        const V t187 = t186 + t157;
        io.re(10, t187);
        const V t188 = c[1] * t161;
        const V t189 = c[0] * t165;
        const V t190 = t188 - t189;
        const V t191 = t190 + t157;
        const V t192 = c[3] * t160;
        const V t193 = c[2] * t164;
        const V t194 = t192 + t193;
        const V t195 = t191 - t194;
        io.re(6, t195);
        const V t196 = t191 + t194;
        io.re(2, t196);
        const V t197 = c[0] * t161;
        const V t198 = t157 - t197;
        const V t199 = c[1] * t165;
        const V t200 = t198 + t199;
        const V t201 = c[2] * t160;
        const V t202 = c[3] * t164;
        const V t203 = t201 - t202;
        const V t204 = t200 - t203;
        io.re(8, t204);
        const V t205 = t200 + t203;
        io.re(7, t205);
        // spectrum block of 2
        const V t206 = t105 - t155;
        const V t207 = t105 + t155;
        // complex block of 2
        const V t208 = t129 + t141;
        const V t209 = t126 + t138;
        const V t210 = t129 - t141;
        const V t211 = t126 - t138;
        // complex block of 2
        const V t212 = t153 - t117;
        const V t213 = t150 - t114;
        const V t214 = t153 + t117;
        const V t215 = t150 + t114;
        // spectrum block of 5, multiplier 2
        const V t216 = t209 + t213;
        const V t217 = t216 + t206;
        io.im(1, t217);
        const V t218 = c[1] * t209;
        const V t219 = c[0] * t213;
        const V t220 = t218 - t219;
        const V t221 = t220 + t206;
        const V t222 = c[3] * t208;
        const V t223 = c[2] * t212;
        const V t224 = t222 + t223;
        const V t225 = t221 - t224;
        io.im(5, t225);
        const V t226 = t221 + t224;
        io.im(9, t226);
        const V t227 = c[0] * t209;
        const V t228 = t206 - t227;
        const V t229 = c[1] * t213;
        const V t230 = t228 + t229;
        const V t231 = c[2] * t208;
        const V t232 = c[3] * t212;
        const V t233 = t231 - t232;
        const V t234 = t230 - t233;
        io.im(3, t234);
        const V t235 = t230 + t233;
        io.im(4, t235);
        // spectrum block of 5, multiplier 2
        const V t236 = t211 + t215;
        const V t237 = t236 + t207;
        io.im(10, t237);
        const V t238 = c[1] * t211;
        const V t239 = c[0] * t215;
        const V t240 = t238 - t239;
        const V t241 = t240 + t207;
        const V t242 = c[3] * t210;
        const V t243 = c[2] * t214;
        const V t244 = t242 + t243;
        const V t245 = t241 - t244;
        io.im(6, t245);
        const V t246 = t241 + t244;
        io.im(2, t246);
        const V t247 = c[0] * t211;
        const V t248 = t207 - t247;
        const V t249 = c[1] * t215;
        const V t250 = t248 + t249;
        const V t251 = c[2] * t210;
        const V t252 = c[3] * t214;
        const V t253 = t251 - t252;
        const V t254 = t250 - t253;
        io.im(8, t254);
        const V t255 = t250 + t253;
        io.im(7, t255);
    }
};

}  // namespace zulg
