// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 26.
// Forward DFT of 26 real points, prime-factor 13, 2.
// 91 additions, 91 subtractions, 82 multiplications (108 with `scale`); 7 outputs negated; 16 constants; 41 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<26> {
    static constexpr int steps = 290;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.1741386011521359,  // c[2]: -P[3] of 13
        0.5751407294740031,  // c[3]: -Q[3] of 13
        0.5242266395265821,  // c[4]: P[2] of 13
        0.42763404682657274,  // c[5]: P[4] of 13
        0.29376443202296976,  // c[6]: -Q[2] of 13
        0.42218506973345193,  // c[7]: -Q[4] of 13
        0.5279915321544383,  // c[8]: -Q[1] of 13
        0.2869425954512852,  // c[9]: P[1] of 13
        0.280148395734785,  // c[10]: Q[5] of 13
        0.5316276774946329,  // c[11]: P[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: -beta of 13
        0.75,  // c[14]: sin 2 pi 1/3 times sin 2 pi 1/3
        0.4330127018922193,  // c[15]: sin 2 pi 1/3 times -cos 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x9 = io.in(9);
        const V x1 = io.in(1);
        const V t0 = x9 + x1;
        const V t1 = x9 - x1;
        // real block of 3
        const V x17 = io.in(17);
        const V x25 = io.in(25);
        const V t2 = x17 + x25;
        const V t3 = x17 - x25;
        // real block of 3
        const V x3 = io.in(3);
        const V t4 = t0 + x3;
        const V t5 = c[0] * t0;
        const V t6 = x3 - t5;
        const V t7 = c[1] * t1;
        // real block of 3
        const V t8 = c[1] * t3;
        // complex block of 2
        const V t9 = t8 - t7;
        // real block of 3
        const V x23 = io.in(23);
        const V t10 = t2 + x23;
        const V t11 = c[0] * t2;
        const V t12 = x23 - t11;
        // real block of 3
        const V x19 = io.in(19);
        const V x5 = io.in(5);
        const V t13 = x19 + x5;
        const V t14 = x19 - x5;
        // real block of 3
        const V x7 = io.in(7);
        const V x21 = io.in(21);
        const V t15 = x7 + x21;
        const V t16 = x7 - x21;
        // real block of 3
        const V x15 = io.in(15);
        const V t17 = t13 + x15;
        const V t18 = c[0] * t13;
        const V t19 = x15 - t18;
        const V t20 = c[1] * t14;
        // real block of 3
        const V t21 = c[1] * t16;
        // complex block of 2
        const V t22 = t21 - t20;
        // real block of 3
        const V x11 = io.in(11);
        const V t23 = t15 + x11;
        const V t24 = c[0] * t15;
        const V t25 = x11 - t24;
        // real block of 2
        const V t26 = t17 + t23;
        // real block of 2
        const V t27 = t4 + t10;
        // real block of 2
        const V t28 = t26 + t27;
        const V t29 = t26 - t27;
        // real block of 13, multiplier 2
        const V t30 = c[12] * t28;
        // real block of 2
        const V t31 = t17 - t23;
        // real block of 13, multiplier 2
        const V t32 = c[2] * t31;
        const V t33 = c[3] * t31;
        // real block of 2
        const V t34 = t4 - t10;
        // real block of 13, multiplier 2
        const V t35 = c[3] * t34;
        const V t36 = c[2] * t34;
        // complex block of 2
        const V t37 = t19 + t25;
        // complex block of 2
        const V t38 = t6 + t12;
        // complex block of 2
        const V t39 = t37 + t38;
        const V t40 = t37 - t38;
        // real block of 13, multiplier 2
        const V t41 = c[4] * t40;
        const V t42 = c[5] * t39;
        // complex block of 2
        const V t43 = t20 + t21;
        // complex block of 2
        const V t44 = t7 + t8;
        // complex block of 2
        const V t45 = t43 + t44;
        const V t46 = t44 - t43;
        // real block of 13, multiplier 2
        const V t47 = c[6] * t46;
        const V t48 = c[4] * t46;
        const V t49 = c[7] * t45;
        const V t50 = c[5] * t45;
        // complex block of 2
        const V t51 = t19 - t25;
        // complex block of 2
        const V t52 = t51 - t9;
        const V t53 = t51 + t9;
        // complex block of 2
        const V t54 = t6 - t12;
        // complex block of 2
        const V t55 = t22 + t54;
        const V t56 = t22 - t54;
        // real block of 13, multiplier 2
        const V t57 = c[8] * t56;
        const V t58 = c[9] * t53;
        const V t59 = t58 + t57;
        const V t60 = c[8] * t53;
        const V t61 = c[9] * t56;
        const V t62 = t61 - t60;
        const V t63 = c[10] * t55;
        const V t64 = c[11] * t52;
        const V t65 = t64 + t63;
        const V t66 = c[10] * t52;
        const V t67 = c[11] * t55;
        const V t68 = t66 - t67;
        // real block of 3
        const V x6 = io.in(6);
        const V x18 = io.in(18);
        const V t69 = x6 + x18;
        const V t70 = x6 - x18;
        // real block of 3
        const V x20 = io.in(20);
        const V x8 = io.in(8);
        const V t71 = x20 + x8;
        const V t72 = x20 - x8;
        // real block of 3
        const V x2 = io.in(2);
        const V t73 = t69 + x2;
        const V t74 = c[0] * t69;
        const V t75 = x2 - t74;
        const V t76 = c[1] * t70;
        // real block of 3
        const V t77 = c[1] * t72;
        // complex block of 2
        const V t78 = t77 - t76;
        // real block of 3
        const V x24 = io.in(24);
        const V t79 = t71 + x24;
        const V t80 = c[0] * t71;
        const V t81 = x24 - t80;
        // real block of 3
        const V x4 = io.in(4);
        const V x12 = io.in(12);
        const V t82 = x4 + x12;
        const V t83 = x4 - x12;
        // real block of 3
        const V x22 = io.in(22);
        const V x14 = io.in(14);
        const V t84 = x22 + x14;
        const V t85 = x22 - x14;
        const V x16 = io.in(16);
        const V t86 = t84 + x16;
        const V t87 = c[0] * t84;
        const V t88 = x16 - t87;
        const V t89 = c[1] * t85;
        // real block of 3
        const V t90 = c[1] * t83;
        // complex block of 2
        const V t91 = t90 - t89;
        // real block of 3
        const V x10 = io.in(10);
        const V t92 = t82 + x10;
        const V t93 = c[0] * t82;
        const V t94 = x10 - t93;
        // real block of 2
        const V t95 = t73 + t79;
        // real block of 2
        const V t96 = t86 + t92;
        // real block of 2
        const V t97 = t95 + t96;
        const V t98 = t95 - t96;
        // real block of 13, multiplier 2
        const V t99 = c[12] * t97;
        // real block of 2
        const V t100 = t73 - t79;
        // real block of 13, multiplier 2
        const V t101 = c[2] * t100;
        const V t102 = c[3] * t100;
        // real block of 2
        const V t103 = t86 - t92;
        // real block of 13, multiplier 2
        const V t104 = c[3] * t103;
        const V t105 = c[2] * t103;
        // complex block of 2
        const V t106 = t75 + t81;
        // complex block of 2
        const V t107 = t88 + t94;
        // complex block of 2
        const V t108 = t106 + t107;
        const V t109 = t106 - t107;
        // real block of 13, multiplier 2
        const V t110 = c[4] * t109;
        const V t111 = c[5] * t108;
        // complex block of 2
        const V t112 = t76 + t77;
        // complex block of 2
        const V t113 = t89 + t90;
        // complex block of 2
        const V t114 = t112 + t113;
        const V t115 = t113 - t112;
        // real block of 13, multiplier 2
        const V t116 = c[6] * t115;
        const V t117 = c[4] * t115;
        const V t118 = c[7] * t114;
        const V t119 = c[5] * t114;
        // complex block of 2
        const V t120 = t75 - t81;
        // complex block of 2
        const V t121 = t120 - t91;
        const V t122 = t120 + t91;
        // complex block of 2
        const V t123 = t88 - t94;
        // complex block of 2
        const V t124 = t78 + t123;
        const V t125 = t78 - t123;
        // real block of 13, multiplier 2
        const V t126 = c[8] * t125;
        const V t127 = c[9] * t122;
        const V t128 = t127 + t126;
        const V t129 = c[8] * t122;
        const V t130 = c[9] * t125;
        const V t131 = t130 - t129;
        const V t132 = c[10] * t124;
        const V t133 = c[11] * t121;
        const V t134 = t133 + t132;
        const V t135 = c[10] * t121;
        const V t136 = c[11] * t124;
        const V t137 = t135 - t136;
        const V x0 = io.in(0);
        const V t138 = x0 + t97;
        // real block of 13, multiplier 2
        const V x13 = io.in(13);
        const V t139 = x13 + t28;
        // real block of 2
        const V t140 = t138 + t139;
        io.re(0, t140);
        const V t141 = t138 - t139;
        io.re(13, t141);
        // real block of 13, multiplier 2
        const V t142 = x0 - t99;
        const V t143 = c[13] * t98;
        // spectrum block of 2
        const V t144 = t142 - t143;
        const V t145 = t142 + t143;
        // real block of 13, multiplier 2
        const V t146 = t110 - t116;
        const V t147 = t111 - t118;
        // complex block of 2
        const V t148 = t147 + t146;
        const V t149 = t147 - t146;
        // spectrum block of 3, multiplier 2
        const V t150 = c[0] * t148;
        // spectrum block of 3, multiplier 2
        const V t151 = c[0] * t149;
        // real block of 13, multiplier 2
        const V t152 = c[6] * t109;
        const V t153 = t117 + t152;
        const V t154 = c[7] * t108;
        const V t155 = t119 + t154;
        // complex block of 2
        const V t156 = t153 - t155;
        const V t157 = t155 + t153;
        // real block of 13, multiplier 2
        const V t158 = x13 - t30;
        const V t159 = c[13] * t29;
        // spectrum block of 2
        const V t160 = t158 - t159;
        const V t161 = t158 + t159;
        // real block of 13, multiplier 2
        const V t162 = t41 - t47;
        const V t163 = t42 - t49;
        // complex block of 2
        const V t164 = t163 + t162;
        const V t165 = t163 - t162;
        // spectrum block of 3, multiplier 2
        const V t166 = c[0] * t164;
        // spectrum block of 3, multiplier 2
        const V t167 = c[0] * t165;
        // real block of 13, multiplier 2
        const V t168 = c[6] * t40;
        const V t169 = t48 + t168;
        const V t170 = c[7] * t39;
        const V t171 = t50 + t170;
        // complex block of 2
        const V t172 = t169 - t171;
        const V t173 = t171 + t169;
        // spectrum block of 3, multiplier 2
        const V t174 = t148 + t144;
        // spectrum block of 3, multiplier 2
        const V t175 = t164 + t160;
        // complex block of 2
        const V t176 = t174 + t175;
        io.re(2, t176);
        const V t177 = t174 - t175;
        io.re(11, t177);
        // spectrum block of 3, multiplier 2
        const V t178 = t144 - t150;
        const V t179 = c[1] * t156;
        const V t180 = t178 - t179;
        const V t181 = t178 + t179;
        // spectrum block of 3, multiplier 2
        const V t182 = t160 - t166;
        const V t183 = c[1] * t172;
        const V t184 = t182 - t183;
        const V t185 = t182 + t183;
        // complex block of 2
        const V t186 = t181 + t185;
        io.re(6, t186);
        const V t187 = t181 - t185;
        io.re(7, t187);
        // complex block of 2
        const V t188 = t180 + t184;
        io.re(8, t188);
        const V t189 = t180 - t184;
        io.re(5, t189);
        // spectrum block of 3, multiplier 2
        const V t190 = t149 + t145;
        // spectrum block of 3, multiplier 2
        const V t191 = t165 + t161;
        // complex block of 2
        const V t192 = t190 + t191;
        io.re(10, t192);
        const V t193 = t190 - t191;
        io.re(3, t193);
        // spectrum block of 3, multiplier 2
        const V t194 = t145 - t151;
        const V t195 = c[1] * t157;
        const V t196 = t194 + t195;
        const V t197 = t194 - t195;
        // spectrum block of 3, multiplier 2
        const V t198 = t161 - t167;
        const V t199 = c[1] * t173;
        const V t200 = t198 + t199;
        const V t201 = t198 - t199;
        // complex block of 2
        const V t202 = t197 + t201;
        io.re(4, t202);
        const V t203 = t197 - t201;
        io.re(9, t203);
        // complex block of 2
        const V t204 = t196 + t200;
        io.re(12, t204);
        const V t205 = t196 - t200;
        io.re(1, t205);
        // real block of 13, multiplier 2
        const V t206 = t104 - t101;
        // complex block of 2
        const V t207 = t128 + t134;
        // mirrored skew block of 6
        const V t208 = c[0] * t207;
        // spectrum block of 3, multiplier 2
        const V t209 = c[14] * t207;
        // complex block of 2
        const V t210 = t131 - t137;
        // mirrored skew block of 6
        const V t211 = c[1] * t210;
        // spectrum block of 3, multiplier 2
        const V t212 = c[15] * t210;
        // mirrored skew block of 6
        const V t213 = t211 + t208;
        // spectrum block of 3, multiplier 2
        const V t214 = c[0] * t213;
        const V t215 = t212 - t209;
        // real block of 13, multiplier 2
        const V t216 = t35 - t32;
        // complex block of 2
        const V t217 = t59 + t65;
        // mirrored skew block of 6
        const V t218 = c[0] * t217;
        // spectrum block of 3, multiplier 2
        const V t219 = c[14] * t217;
        // complex block of 2
        const V t220 = t62 - t68;
        // mirrored skew block of 6
        const V t221 = c[1] * t220;
        // spectrum block of 3, multiplier 2
        const V t222 = c[15] * t220;
        // mirrored skew block of 6
        const V t223 = t221 + t218;
        // spectrum block of 3, multiplier 2
        const V t224 = c[0] * t223;
        const V t225 = t222 - t219;
        // spectrum block of 3, multiplier 2
        const V t226 = t213 + t206;
        // spectrum block of 3, multiplier 2
        const V t227 = t223 + t216;
        // complex block of 2
        const V t228 = t226 + t227;
        io.minusIm(12, t228);
        const V t229 = t227 - t226;
        io.minusIm(1, t229);
        // spectrum block of 3, multiplier 2
        const V t230 = t206 - t214;
        const V t231 = t230 + t215;
        const V t232 = t230 - t215;
        // spectrum block of 3, multiplier 2
        const V t233 = t216 - t224;
        const V t234 = t233 + t225;
        const V t235 = t233 - t225;
        // complex block of 2
        const V t236 = t232 + t235;
        io.minusIm(4, t236);
        const V t237 = t235 - t232;
        io.minusIm(9, t237);
        // complex block of 2
        const V t238 = t231 + t234;
        io.minusIm(10, t238);
        const V t239 = t234 - t231;
        io.minusIm(3, t239);
        // real block of 13, multiplier 2
        const V t240 = t105 + t102;
        // complex block of 2
        const V t241 = t131 + t137;
        // spectrum block of 3, multiplier 2
        const V t242 = c[0] * t241;
        const V t243 = t240 - t241;
        const V t244 = t240 + t242;
        // complex block of 2
        const V t245 = t128 - t134;
        // spectrum block of 3, multiplier 2
        const V t246 = c[1] * t245;
        // real block of 13, multiplier 2
        const V t247 = t36 + t33;
        // complex block of 2
        const V t248 = t62 + t68;
        // spectrum block of 3, multiplier 2
        const V t249 = c[0] * t248;
        const V t250 = t248 - t247;
        const V t251 = t247 + t249;
        // complex block of 2
        const V t252 = t65 - t59;
        // spectrum block of 3, multiplier 2
        const V t253 = c[1] * t252;
        // spectrum block of 3, multiplier 2
        const V t254 = t246 + t244;
        // spectrum block of 3, multiplier 2
        const V t255 = t253 - t251;
        // complex block of 2
        const V t256 = t255 - t254;
        io.im(6, t256);
        const V t257 = t254 + t255;
        io.im(7, t257);
        // spectrum block of 3, multiplier 2
        const V t258 = t244 - t246;
        // spectrum block of 3, multiplier 2
        const V t259 = t251 + t253;
        // complex block of 2
        const V t260 = t258 + t259;
        io.im(8, t260);
        const V t261 = t258 - t259;
        io.minusIm(5, t261);
        // complex block of 2
        const V t262 = t250 - t243;
        io.im(2, t262);
        const V t263 = t243 + t250;
        io.im(11, t263);
    }
};

}  // namespace zulg
