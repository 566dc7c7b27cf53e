// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 25.
// Forward DFT of 25 real points, twiddled 5, 5.
// 85 additions, 67 subtractions, 112 multiplications (137 with `scale`); 6 outputs negated; 16 constants; 29 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<25> {
    static constexpr int steps = 289;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.48175367410171527,  // c[4]: sin 2 pi 2/25
        0.8763066800438636,  // c[5]: cos 2 pi 2/25
        0.8443279255020151,  // c[6]: sin 2 pi 4/25
        0.5358267949789967,  // c[7]: cos 2 pi 4/25
        0.2486898871648548,  // c[8]: sin 2 pi 1/25
        0.9685831611286311,  // c[9]: cos 2 pi 1/25
        0.6845471059286887,  // c[10]: sin 2 pi 3/25
        0.7289686274214116,  // c[11]: cos 2 pi 3/25
        0.9980267284282716,  // c[12]: sin 2 pi 6/25
        0.06279051952931337,  // c[13]: cos 2 pi 6/25
        0.9048270524660196,  // c[14]: sin 2 pi 8/25
        0.42577929156507266,  // c[15]: -cos 2 pi 8/25
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 5
        const V x5 = io.in(5);
        const V x20 = io.in(20);
        const V t0 = x5 + x20;
        const V t1 = x5 - x20;
        const V x15 = io.in(15);
        const V x10 = io.in(10);
        const V t2 = x15 + x10;
        const V t3 = x15 - x10;
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
        const V x6 = io.in(6);
        const V x21 = io.in(21);
        const V t20 = x6 + x21;
        const V t21 = x6 - x21;
        const V x16 = io.in(16);
        const V x11 = io.in(11);
        const V t22 = x16 + x11;
        const V t23 = x16 - x11;
        const V t24 = t20 + t22;
        const V x1 = io.in(1);
        const V t25 = t24 + x1;
        const V t26 = c[0] * t20;
        const V t27 = c[1] * t22;
        const V t28 = t26 - t27;
        const V t29 = t28 + x1;
        const V t30 = c[2] * t21;
        const V t31 = c[3] * t23;
        const V t32 = t31 - t30;
        const V t33 = c[1] * t20;
        const V t34 = x1 - t33;
        const V t35 = c[0] * t22;
        const V t36 = t34 + t35;
        const V t37 = c[3] * t21;
        const V t38 = c[2] * t23;
        const V t39 = t37 + t38;
        // real block of 5
        const V x7 = io.in(7);
        const V x22 = io.in(22);
        const V t40 = x7 + x22;
        const V t41 = x7 - x22;
        const V x17 = io.in(17);
        const V x12 = io.in(12);
        const V t42 = x17 + x12;
        const V t43 = x17 - x12;
        const V t44 = t40 + t42;
        const V x2 = io.in(2);
        const V t45 = t44 + x2;
        const V t46 = c[0] * t40;
        const V t47 = c[1] * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + x2;
        const V t50 = c[2] * t41;
        const V t51 = c[3] * t43;
        const V t52 = t51 - t50;
        const V t53 = c[1] * t40;
        const V t54 = x2 - t53;
        const V t55 = c[0] * t42;
        const V t56 = t54 + t55;
        const V t57 = c[3] * t41;
        const V t58 = c[2] * t43;
        const V t59 = t57 + t58;
        // real block of 5
        const V x8 = io.in(8);
        const V x23 = io.in(23);
        const V t60 = x8 + x23;
        const V t61 = x8 - x23;
        const V x18 = io.in(18);
        const V x13 = io.in(13);
        const V t62 = x18 + x13;
        const V t63 = x18 - x13;
        const V t64 = t60 + t62;
        const V x3 = io.in(3);
        const V t65 = t64 + x3;
        const V t66 = c[0] * t60;
        const V t67 = c[1] * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + x3;
        const V t70 = c[2] * t61;
        const V t71 = c[3] * t63;
        const V t72 = t71 - t70;
        const V t73 = c[1] * t60;
        const V t74 = x3 - t73;
        const V t75 = c[0] * t62;
        const V t76 = t74 + t75;
        const V t77 = c[3] * t61;
        const V t78 = c[2] * t63;
        const V t79 = t77 + t78;
        // real block of 5
        const V x9 = io.in(9);
        const V x24 = io.in(24);
        const V t80 = x9 + x24;
        const V t81 = x9 - x24;
        const V x19 = io.in(19);
        const V x14 = io.in(14);
        const V t82 = x19 + x14;
        const V t83 = x19 - x14;
        const V t84 = t80 + t82;
        const V x4 = io.in(4);
        const V t85 = t84 + x4;
        const V t86 = c[0] * t80;
        const V t87 = c[1] * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + x4;
        const V t90 = c[2] * t81;
        const V t91 = c[3] * t83;
        const V t92 = t91 - t90;
        const V t93 = c[1] * t80;
        const V t94 = x4 - t93;
        const V t95 = c[0] * t82;
        const V t96 = t94 + t95;
        const V t97 = c[3] * t81;
        const V t98 = c[2] * t83;
        const V t99 = t97 + t98;
        // real block of 5
        const V t100 = t25 + t85;
        const V t101 = t25 - t85;
        const V t102 = t65 + t45;
        const V t103 = t65 - t45;
        const V t104 = t100 + t102;
        const V t105 = t104 + t5;
        io.re(0, t105);
        const V t106 = c[0] * t100;
        const V t107 = c[1] * t102;
        const V t108 = t106 - t107;
        const V t109 = t108 + t5;
        io.re(5, t109);
        const V t110 = c[2] * t101;
        const V t111 = c[3] * t103;
        const V t112 = t111 - t110;
        io.im(5, t112);
        const V t113 = c[1] * t100;
        const V t114 = t5 - t113;
        const V t115 = c[0] * t102;
        const V t116 = t114 + t115;
        io.re(10, t116);
        const V t117 = c[3] * t101;
        const V t118 = c[2] * t103;
        const V t119 = t117 + t118;
        io.minusIm(10, t119);
        // real block of 25
        const V t120 = c[8] * t32;
        const V t121 = c[9] * t29;
        const V t122 = t121 + t120;
        const V t123 = c[8] * t29;
        const V t124 = c[9] * t32;
        const V t125 = t124 - t123;
        const V t126 = c[4] * t52;
        const V t127 = c[5] * t49;
        const V t128 = t127 + t126;
        const V t129 = c[4] * t49;
        const V t130 = c[5] * t52;
        const V t131 = t130 - t129;
        const V t132 = c[10] * t72;
        const V t133 = c[11] * t69;
        const V t134 = t133 + t132;
        const V t135 = c[10] * t69;
        const V t136 = c[11] * t72;
        const V t137 = t136 - t135;
        const V t138 = c[6] * t92;
        const V t139 = c[7] * t89;
        const V t140 = t139 + t138;
        const V t141 = c[6] * t89;
        const V t142 = c[7] * t92;
        const V t143 = t142 - t141;
        // complex block of 5
        const V t144 = t122 + t140;
        const V t145 = t125 + t143;
        const V t146 = t122 - t140;
        const V t147 = t125 - t143;
        const V t148 = t134 + t128;
        const V t149 = t137 + t131;
        const V t150 = t134 - t128;
        const V t151 = t137 - t131;
        const V t152 = t144 + t148;
        const V t153 = t145 + t149;
        const V t154 = t152 + t9;
        io.re(1, t154);
        const V t155 = t153 + t12;
        io.im(1, t155);
        const V t156 = c[0] * t144;
        const V t157 = c[1] * t148;
        const V t158 = t156 - t157;
        const V t159 = t158 + t9;
        const V t160 = c[0] * t145;
        const V t161 = c[1] * t149;
        const V t162 = t160 - t161;
        const V t163 = t162 + t12;
        const V t164 = c[2] * t146;
        const V t165 = c[3] * t150;
        const V t166 = t164 - t165;
        const V t167 = c[2] * t147;
        const V t168 = c[3] * t151;
        const V t169 = t167 - t168;
        const V t170 = t159 + t169;
        io.re(6, t170);
        const V t171 = t163 - t166;
        io.im(6, t171);
        const V t172 = t159 - t169;
        io.re(4, t172);
        const V t173 = t163 + t166;
        io.minusIm(4, t173);
        const V t174 = c[1] * t144;
        const V t175 = t9 - t174;
        const V t176 = c[0] * t148;
        const V t177 = t175 + t176;
        const V t178 = c[1] * t145;
        const V t179 = t12 - t178;
        const V t180 = c[0] * t149;
        const V t181 = t179 + t180;
        const V t182 = c[3] * t146;
        const V t183 = c[2] * t150;
        const V t184 = t182 + t183;
        const V t185 = c[3] * t147;
        const V t186 = c[2] * t151;
        const V t187 = t185 + t186;
        const V t188 = t177 + t187;
        io.re(11, t188);
        const V t189 = t181 - t184;
        io.im(11, t189);
        const V t190 = t177 - t187;
        io.re(9, t190);
        const V t191 = t181 + t184;
        io.minusIm(9, t191);
        // real block of 25
        const V t192 = c[4] * t39;
        const V t193 = c[5] * t36;
        const V t194 = t193 - t192;
        const V t195 = c[4] * t36;
        const V t196 = c[5] * t39;
        const V t197 = t196 + t195;
        const V t198 = c[6] * t59;
        const V t199 = c[7] * t56;
        const V t200 = t199 - t198;
        const V t201 = c[6] * t56;
        const V t202 = c[7] * t59;
        const V t203 = t202 + t201;
        const V t204 = c[12] * t79;
        const V t205 = c[13] * t76;
        const V t206 = t205 - t204;
        const V t207 = c[12] * t76;
        const V t208 = c[13] * t79;
        const V t209 = t208 + t207;
        const V t210 = c[14] * t99;
        const V t211 = c[15] * t96;
        const V t212 = t211 + t210;
        const V t213 = c[14] * t96;
        const V t214 = c[15] * t99;
        const V t215 = t214 - t213;
        // complex block of 5
        const V t216 = t194 - t212;
        const V t217 = t215 - t197;
        const V t218 = t194 + t212;
        const V t219 = t197 + t215;
        const V t220 = t206 + t200;
        const V t221 = t209 + t203;
        const V t222 = t206 - t200;
        const V t223 = t203 - t209;
        const V t224 = t216 + t220;
        const V t225 = t217 - t221;
        const V t226 = t224 + t16;
        io.re(2, t226);
        const V t227 = t225 - t19;
        io.im(2, t227);
        const V t228 = c[0] * t216;
        const V t229 = c[1] * t220;
        const V t230 = t228 - t229;
        const V t231 = t230 + t16;
        const V t232 = c[0] * t217;
        const V t233 = c[1] * t221;
        const V t234 = t232 + t233;
        const V t235 = t234 - t19;
        const V t236 = c[2] * t218;
        const V t237 = c[3] * t222;
        const V t238 = t236 - t237;
        const V t239 = c[2] * t219;
        const V t240 = c[3] * t223;
        const V t241 = t239 + t240;
        const V t242 = t231 - t241;
        io.re(7, t242);
        const V t243 = t235 - t238;
        io.im(7, t243);
        const V t244 = t231 + t241;
        io.re(3, t244);
        const V t245 = t235 + t238;
        io.minusIm(3, t245);
        const V t246 = c[1] * t216;
        const V t247 = t16 - t246;
        const V t248 = c[0] * t220;
        const V t249 = t247 + t248;
        const V t250 = c[1] * t217;
        const V t251 = t19 + t250;
        const V t252 = c[0] * t221;
        const V t253 = t251 + t252;
        const V t254 = c[3] * t218;
        const V t255 = c[2] * t222;
        const V t256 = t254 + t255;
        const V t257 = c[3] * t219;
        const V t258 = c[2] * t223;
        const V t259 = t258 - t257;
        const V t260 = t249 + t259;
        io.re(12, t260);
        const V t261 = t253 + t256;
        io.minusIm(12, t261);
        const V t262 = t249 - t259;
        io.re(8, t262);
        const V t263 = t256 - t253;
        io.minusIm(8, t263);
    }
};

}  // namespace zulg
