// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, complex, 13.
// Complex DFT of 13 points, Rader block.
// 88 additions, 88 subtractions, 72 multiplications (98 with `scale`); 18 constants; 30 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct ComplexGraph<13> {
    static constexpr int steps = 274;  // with `scale`
    static constexpr double inverseRoot = 0.2773500981126146;  // 1/sqrt(13), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.5124953431658732,  // c[2]: P[1] of 13
        0.31378278210316923,  // c[3]: Q[1] of 13
        0.5751407294740031,  // c[4]: P[3] of 13
        0.1741386011521359,  // c[5]: Q[3] of 13
        0.6004772719326653,  // c[6]: -P[5] of 13
        0.02319821121153658,  // c[7]: -Q[5] of 13
        0.08333333333333333,  // c[8]: 1/12
        0.3071113711590828,  // c[9]: Q[2] of 13
        0.5165207806234897,  // c[10]: P[2] of 13
        0.5814344829416822,  // c[11]: Q[4] of 13
        0.15180597207438773,  // c[12]: P[4] of 13
        0.3004626062886658,  // c[13]: beta of 13
        0.5035370328637666,  // c[14]: sin 2 pi 1/3 times Q[4] of 13
        0.13146782826261086,  // c[15]: sin 2 pi 1/3 times P[4] of 13
        0.4473201176025111,  // c[16]: sin 2 pi 1/3 times P[2] of 13
        0.2659662492148373,  // c[17]: sin 2 pi 1/3 times Q[2] of 13
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, ComplexGraph> c{};
        // real block of 2
        const V x1r = io.re(1);
        const V x12r = io.re(12);
        const V t0 = x1r + x12r;
        const V t1 = x1r - x12r;
        // real block of 2
        const V x8r = io.re(8);
        const V x5r = io.re(5);
        const V t2 = x8r + x5r;
        const V t3 = x8r - x5r;
        // real block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // real block of 2
        const V x3r = io.re(3);
        const V x10r = io.re(10);
        const V t6 = x3r + x10r;
        const V t7 = x3r - x10r;
        // real block of 2
        const V x11r = io.re(11);
        const V x2r = io.re(2);
        const V t8 = x11r + x2r;
        const V t9 = x11r - x2r;
        // real block of 2
        const V t10 = t6 + t8;
        const V t11 = t6 - t8;
        // real block of 2
        const V x9r = io.re(9);
        const V x4r = io.re(4);
        const V t12 = x9r + x4r;
        const V t13 = x9r - x4r;
        // real block of 2
        const V x7r = io.re(7);
        const V x6r = io.re(6);
        const V t14 = x7r + x6r;
        const V t15 = x7r - x6r;
        // real block of 2
        const V t16 = t12 + t14;
        const V t17 = t12 - t14;
        // real block of 3
        const V t18 = t10 + t16;
        const V t19 = t10 - t16;
        const V t20 = t18 + t4;
        const V t21 = c[0] * t18;
        const V t22 = t4 - t21;
        const V t23 = c[1] * t19;
        // complex block of 3
        const V t24 = t7 + t13;
        const V t25 = t9 + t15;
        const V t26 = t7 - t13;
        const V t27 = t9 - t15;
        const V t28 = t24 + t1;
        const V t29 = t25 + t3;
        const V t30 = c[0] * t24;
        const V t31 = t1 - t30;
        const V t32 = c[0] * t25;
        const V t33 = t3 - t32;
        const V t34 = c[1] * t26;
        const V t35 = c[1] * t27;
        const V t36 = t31 + t35;
        const V t37 = t33 - t34;
        const V t38 = t31 - t35;
        const V t39 = t33 + t34;
        // real block of 3
        const V t40 = t11 + t17;
        const V t41 = t11 - t17;
        const V t42 = t40 + t5;
        const V t43 = c[0] * t40;
        const V t44 = t5 - t43;
        const V t45 = c[1] * t41;
        // real block of 2
        const V x1i = io.im(1);
        const V x12i = io.im(12);
        const V t46 = x1i + x12i;
        const V t47 = x1i - x12i;
        // real block of 2
        const V x8i = io.im(8);
        const V x5i = io.im(5);
        const V t48 = x8i + x5i;
        const V t49 = x8i - x5i;
        // real block of 2
        const V t50 = t46 + t48;
        const V t51 = t46 - t48;
        // real block of 2
        const V x3i = io.im(3);
        const V x10i = io.im(10);
        const V t52 = x3i + x10i;
        const V t53 = x3i - x10i;
        // real block of 2
        const V x11i = io.im(11);
        const V x2i = io.im(2);
        const V t54 = x11i + x2i;
        const V t55 = x11i - x2i;
        // real block of 2
        const V t56 = t52 + t54;
        const V t57 = t52 - t54;
        // real block of 2
        const V x9i = io.im(9);
        const V x4i = io.im(4);
        const V t58 = x9i + x4i;
        const V t59 = x9i - x4i;
        // real block of 2
        const V x7i = io.im(7);
        const V x6i = io.im(6);
        const V t60 = x7i + x6i;
        const V t61 = x7i - x6i;
        // real block of 2
        const V t62 = t58 + t60;
        const V t63 = t58 - t60;
        // real block of 3
        const V t64 = t56 + t62;
        const V t65 = t56 - t62;
        const V t66 = t64 + t50;
        const V t67 = c[0] * t64;
        const V t68 = t50 - t67;
        const V t69 = c[1] * t65;
        // complex block of 3
        const V t70 = t53 + t59;
        const V t71 = t55 + t61;
        const V t72 = t53 - t59;
        const V t73 = t55 - t61;
        const V t74 = t70 + t47;
        const V t75 = t71 + t49;
        const V t76 = c[0] * t70;
        const V t77 = t47 - t76;
        const V t78 = c[0] * t71;
        const V t79 = t49 - t78;
        const V t80 = c[1] * t72;
        const V t81 = c[1] * t73;
        const V t82 = t77 + t81;
        const V t83 = t79 - t80;
        const V t84 = t77 - t81;
        const V t85 = t79 + t80;
        // real block of 3
        const V t86 = t57 + t63;
        const V t87 = t57 - t63;
        const V t88 = t86 + t51;
        const V t89 = c[0] * t86;
        const V t90 = t51 - t89;
        const V t91 = c[1] * t87;
        // complex block of 13
        const V x0r = io.re(0);
        const V t92 = x0r + t20;
        const V x0i = io.im(0);
        io.re(0, t92);
        const V t93 = x0i + t66;
        io.im(0, t93);
        const V t94 = c[8] * t20;
        const V t95 = x0r - t94;
        const V t96 = c[8] * t66;
        const V t97 = x0i - t96;
        const V t98 = c[2] * t85;
        const V t99 = c[3] * t84;
        const V t100 = t99 + t98;
        const V t101 = c[2] * t84;
        const V t102 = c[3] * t85;
        const V t103 = t101 - t102;
        const V t104 = c[2] * t39;
        const V t105 = c[3] * t38;
        const V t106 = t105 + t104;
        const V t107 = c[2] * t38;
        const V t108 = c[3] * t39;
        const V t109 = t108 - t107;
        const V t110 = c[9] * t45;
        const V t111 = c[10] * t44;
        const V t112 = t111 - t110;
        const V t113 = c[9] * t91;
        const V t114 = c[10] * t90;
        const V t115 = t114 - t113;
        const V t116 = c[4] * t75;
        const V t117 = c[5] * t74;
        const V t118 = t117 - t116;
        const V t119 = c[4] * t74;
        const V t120 = c[5] * t75;
        const V t121 = t120 + t119;
        const V t122 = c[4] * t29;
        const V t123 = c[5] * t28;
        const V t124 = t122 - t123;
        const V t125 = c[4] * t28;
        const V t126 = c[5] * t29;
        const V t127 = t126 + t125;
        const V t128 = c[11] * t23;
        const V t129 = c[12] * t22;
        const V t130 = t129 + t128;
        const V t131 = c[11] * t69;
        const V t132 = c[12] * t68;
        const V t133 = t132 + t131;
        const V t134 = c[6] * t83;
        const V t135 = c[7] * t82;
        const V t136 = t135 + t134;
        const V t137 = c[6] * t82;
        const V t138 = c[7] * t83;
        const V t139 = t138 - t137;
        const V t140 = c[6] * t37;
        const V t141 = c[7] * t36;
        const V t142 = t141 + t140;
        const V t143 = c[6] * t36;
        const V t144 = c[7] * t37;
        const V t145 = t143 - t144;
        const V t146 = c[13] * t42;
        const V t147 = c[13] * t88;
        // spectrum block of 3
        const V t148 = t130 + t95;
        const V t149 = c[0] * t130;
        const V t150 = t95 - t149;
        const V t151 = c[14] * t22;
        const V t152 = c[15] * t23;
        const V t153 = t151 - t152;
        const V t154 = t150 - t153;
        const V t155 = t150 + t153;
        // complex block of 3
        const V t156 = t139 + t103;
        const V t157 = t100 - t136;
        const V t158 = t103 - t139;
        const V t159 = t136 + t100;
        const V t160 = t121 - t156;
        const V t161 = t157 + t118;
        const V t162 = c[0] * t156;
        const V t163 = t162 + t121;
        const V t164 = c[0] * t157;
        const V t165 = t118 - t164;
        const V t166 = c[1] * t158;
        const V t167 = c[1] * t159;
        const V t168 = t163 - t167;
        const V t169 = t165 - t166;
        const V t170 = t163 + t167;
        const V t171 = t165 + t166;
        // spectrum block of 3
        const V t172 = t112 + t146;
        const V t173 = c[0] * t112;
        const V t174 = t146 - t173;
        const V t175 = c[16] * t45;
        const V t176 = c[17] * t44;
        const V t177 = t175 + t176;
        const V t178 = t174 + t177;
        const V t179 = t174 - t177;
        // spectrum block of 2
        const V t180 = t148 + t172;
        const V t181 = t148 - t172;
        // spectrum block of 2
        const V t182 = t180 + t161;
        io.re(1, t182);
        const V t183 = t180 - t161;
        io.re(12, t183);
        // spectrum block of 2
        const V t184 = t181 + t160;
        io.re(5, t184);
        const V t185 = t181 - t160;
        io.re(8, t185);
        // spectrum block of 2
        const V t186 = t154 + t178;
        const V t187 = t154 - t178;
        // spectrum block of 2
        const V t188 = t186 + t169;
        io.re(9, t188);
        const V t189 = t186 - t169;
        io.re(4, t189);
        // spectrum block of 2
        const V t190 = t187 + t168;
        io.re(6, t190);
        const V t191 = t187 - t168;
        io.re(7, t191);
        // spectrum block of 2
        const V t192 = t155 + t179;
        const V t193 = t155 - t179;
        // spectrum block of 2
        const V t194 = t192 + t171;
        io.re(3, t194);
        const V t195 = t192 - t171;
        io.re(10, t195);
        // spectrum block of 2
        const V t196 = t193 + t170;
        io.re(2, t196);
        const V t197 = t193 - t170;
        io.re(11, t197);
        // spectrum block of 3
        const V t198 = t133 + t97;
        const V t199 = c[0] * t133;
        const V t200 = t97 - t199;
        const V t201 = c[14] * t68;
        const V t202 = c[15] * t69;
        const V t203 = t201 - t202;
        const V t204 = t200 - t203;
        const V t205 = t200 + t203;
        // complex block of 3
        const V t206 = t145 + t109;
        const V t207 = t142 - t106;
        const V t208 = t109 - t145;
        const V t209 = t142 + t106;
        const V t210 = t206 + t127;
        const V t211 = t207 + t124;
        const V t212 = c[0] * t206;
        const V t213 = t212 - t127;
        const V t214 = c[0] * t207;
        const V t215 = t124 - t214;
        const V t216 = c[1] * t208;
        const V t217 = c[1] * t209;
        const V t218 = t213 + t217;
        const V t219 = t215 - t216;
        const V t220 = t213 - t217;
        const V t221 = t215 + t216;
        // spectrum block of 3
        const V t222 = t115 + t147;
        const V t223 = c[0] * t115;
        const V t224 = t147 - t223;
        const V t225 = c[16] * t91;
        const V t226 = c[17] * t90;
        const V t227 = t225 + t226;
        const V t228 = t224 + t227;
        const V t229 = t224 - t227;
        // spectrum block of 2
        const V t230 = t198 + t222;
        const V t231 = t198 - t222;
        // spectrum block of 2
        const V t232 = t230 + t211;
        io.im(1, t232);
        const V t233 = t230 - t211;
        io.im(12, t233);
        // spectrum block of 2
        const V t234 = t231 - t210;
        io.im(5, t234);
        const V t235 = t231 + t210;
        io.im(8, t235);
        // spectrum block of 2
        const V t236 = t204 + t228;
        const V t237 = t204 - t228;
        // spectrum block of 2
        const V t238 = t236 + t219;
        io.im(9, t238);
        const V t239 = t236 - t219;
        io.im(4, t239);
        // spectrum block of 2
        const V t240 = t237 + t218;
        io.im(6, t240);
        const V t241 = t237 - t218;
        io.im(7, t241);
        // spectrum block of 2
        const V t242 = t205 + t229;
        const V t243 = t205 - t229;
        // spectrum block of 2
        const V t244 = t242 + t221;
        io.im(3, t244);
        const V t245 = t242 - t221;
        io.im(10, t245);
        // spectrum block of 2
        const V t246 = t243 + t220;
        io.im(2, t246);
        const V t247 = t243 - t220;
        io.im(11, t247);
    }
};

}  // namespace zulg
