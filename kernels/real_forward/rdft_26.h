// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 26.
// Forward DFT of 26 real points, prime-factor 13, 2.
// 91 additions, 91 subtractions, 82 multiplications (108 with `scale`); 7 outputs negated; 16 constants; 28 values alive at most.
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
        0.5279915321544383,  // c[2]: -Q[1] of 13
        0.2869425954512852,  // c[3]: P[1] of 13
        0.29376443202296976,  // c[4]: -Q[2] of 13
        0.5242266395265821,  // c[5]: P[2] of 13
        0.5751407294740031,  // c[6]: -Q[3] of 13
        0.1741386011521359,  // c[7]: -P[3] of 13
        0.42218506973345193,  // c[8]: -Q[4] of 13
        0.42763404682657274,  // c[9]: P[4] of 13
        0.280148395734785,  // c[10]: Q[5] of 13
        0.5316276774946329,  // c[11]: P[5] of 13
        0.08333333333333333,  // c[12]: 1/12
        0.3004626062886658,  // c[13]: -beta of 13
        0.4330127018922193,  // c[14]: sin 2 pi 1/3 times -cos 2 pi 1/3
        0.75,  // c[15]: sin 2 pi 1/3 times sin 2 pi 1/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x6 = io.in(6);
        const V x18 = io.in(18);
        const V t0 = x6 + x18;
        const V t1 = x6 - x18;
        const V x2 = io.in(2);
        const V t2 = t0 + x2;
        const V t3 = c[0] * t0;
        const V t4 = x2 - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x22 = io.in(22);
        const V x14 = io.in(14);
        const V t6 = x22 + x14;
        const V t7 = x22 - x14;
        const V x16 = io.in(16);
        const V t8 = t6 + x16;
        const V t9 = c[0] * t6;
        const V t10 = x16 - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x20 = io.in(20);
        const V x8 = io.in(8);
        const V t12 = x20 + x8;
        const V t13 = x20 - x8;
        const V x24 = io.in(24);
        const V t14 = t12 + x24;
        const V t15 = c[0] * t12;
        const V t16 = x24 - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V x4 = io.in(4);
        const V x12 = io.in(12);
        const V t18 = x4 + x12;
        const V t19 = x4 - x12;
        const V x10 = io.in(10);
        const V t20 = t18 + x10;
        const V t21 = c[0] * t18;
        const V t22 = x10 - t21;
        const V t23 = c[1] * t19;
        // real block of 2
        const V t24 = t2 + t14;
        const V t25 = t2 - t14;
        // real block of 2
        const V t26 = t8 + t20;
        const V t27 = t8 - t20;
        // real block of 2
        const V t28 = t24 + t26;
        const V t29 = t24 - t26;
        // complex block of 2
        const V t30 = t4 + t16;
        const V t31 = t5 + t17;
        const V t32 = t4 - t16;
        const V t33 = t17 - t5;
        // complex block of 2
        const V t34 = t10 + t22;
        const V t35 = t11 + t23;
        const V t36 = t10 - t22;
        const V t37 = t23 - t11;
        // complex block of 2
        const V t38 = t30 + t34;
        const V t39 = t31 + t35;
        const V t40 = t30 - t34;
        const V t41 = t35 - t31;
        // complex block of 2
        const V t42 = t32 - t37;
        const V t43 = t33 + t36;
        const V t44 = t32 + t37;
        const V t45 = t33 - t36;
        // real block of 13, multiplier 2
        const V x0 = io.in(0);
        const V t46 = x0 + t28;
        const V t47 = c[12] * t28;
        const V t48 = x0 - t47;
        const V t49 = c[2] * t45;
        const V t50 = c[3] * t44;
        const V t51 = t50 + t49;
        const V t52 = c[2] * t44;
        const V t53 = c[3] * t45;
        const V t54 = t53 - t52;
        const V t55 = c[4] * t41;
        const V t56 = c[5] * t40;
        const V t57 = t56 - t55;
        const V t58 = c[4] * t40;
        const V t59 = c[5] * t41;
        const V t60 = t59 + t58;
        const V t61 = c[6] * t27;
        const V t62 = c[7] * t25;
        const V t63 = t61 - t62;
        const V t64 = c[6] * t25;
        const V t65 = c[7] * t27;
        const V t66 = t65 + t64;
        const V t67 = c[8] * t39;
        const V t68 = c[9] * t38;
        const V t69 = t68 - t67;
        const V t70 = c[8] * t38;
        const V t71 = c[9] * t39;
        const V t72 = t71 + t70;
        const V t73 = c[10] * t43;
        const V t74 = c[11] * t42;
        const V t75 = t74 + t73;
        const V t76 = c[10] * t42;
        const V t77 = c[11] * t43;
        const V t78 = t76 - t77;
        const V t79 = c[13] * t29;
        // spectrum block of 2
        const V t80 = t48 - t79;
        const V t81 = t48 + t79;
        // complex block of 2
        const V t82 = t60 - t72;
        const V t83 = t69 + t57;
        const V t84 = t72 + t60;
        const V t85 = t69 - t57;
        // spectrum block of 3, multiplier 2
        const V t86 = t83 + t80;
        const V t87 = c[0] * t83;
        const V t88 = t80 - t87;
        const V t89 = c[1] * t82;
        const V t90 = t88 - t89;
        const V t91 = t88 + t89;
        // spectrum block of 3, multiplier 2
        const V t92 = t85 + t81;
        const V t93 = c[0] * t85;
        const V t94 = t81 - t93;
        const V t95 = c[1] * t84;
        const V t96 = t94 + t95;
        const V t97 = t94 - t95;
        // complex block of 2
        const V t98 = t51 - t75;
        const V t99 = t54 + t78;
        const V t100 = t51 + t75;
        const V t101 = t54 - t78;
        // mirrored skew block of 6
        const V t102 = c[0] * t100;
        const V t103 = c[1] * t101;
        const V t104 = t103 + t102;
        // spectrum block of 3, multiplier 2
        const V t105 = t66 - t99;
        const V t106 = c[0] * t99;
        const V t107 = t66 + t106;
        const V t108 = c[1] * t98;
        const V t109 = t108 + t107;
        const V t110 = t107 - t108;
        // spectrum block of 3, multiplier 2
        const V t111 = t104 + t63;
        const V t112 = c[0] * t104;
        const V t113 = t63 - t112;
        const V t114 = c[14] * t101;
        const V t115 = c[15] * t100;
        const V t116 = t114 - t115;
        const V t117 = t113 + t116;
        const V t118 = t113 - t116;
        // real block of 3
        const V x19 = io.in(19);
        const V x5 = io.in(5);
        const V t119 = x19 + x5;
        const V t120 = x19 - x5;
        const V x15 = io.in(15);
        const V t121 = t119 + x15;
        const V t122 = c[0] * t119;
        const V t123 = x15 - t122;
        const V t124 = c[1] * t120;
        // real block of 3
        const V x9 = io.in(9);
        const V x1 = io.in(1);
        const V t125 = x9 + x1;
        const V t126 = x9 - x1;
        const V x3 = io.in(3);
        const V t127 = t125 + x3;
        const V t128 = c[0] * t125;
        const V t129 = x3 - t128;
        const V t130 = c[1] * t126;
        // real block of 3
        const V x7 = io.in(7);
        const V x21 = io.in(21);
        const V t131 = x7 + x21;
        const V t132 = x7 - x21;
        const V x11 = io.in(11);
        const V t133 = t131 + x11;
        const V t134 = c[0] * t131;
        const V t135 = x11 - t134;
        const V t136 = c[1] * t132;
        // real block of 3
        const V x17 = io.in(17);
        const V x25 = io.in(25);
        const V t137 = x17 + x25;
        const V t138 = x17 - x25;
        const V x23 = io.in(23);
        const V t139 = t137 + x23;
        const V t140 = c[0] * t137;
        const V t141 = x23 - t140;
        const V t142 = c[1] * t138;
        // real block of 2
        const V t143 = t121 + t133;
        const V t144 = t121 - t133;
        // real block of 2
        const V t145 = t127 + t139;
        const V t146 = t127 - t139;
        // real block of 2
        const V t147 = t143 + t145;
        const V t148 = t143 - t145;
        // complex block of 2
        const V t149 = t123 + t135;
        const V t150 = t124 + t136;
        const V t151 = t123 - t135;
        const V t152 = t136 - t124;
        // complex block of 2
        const V t153 = t129 + t141;
        const V t154 = t130 + t142;
        const V t155 = t129 - t141;
        const V t156 = t142 - t130;
        // complex block of 2
        const V t157 = t149 + t153;
        const V t158 = t150 + t154;
        const V t159 = t149 - t153;
        const V t160 = t154 - t150;
        // complex block of 2
        const V t161 = t151 - t156;
        const V t162 = t152 + t155;
        const V t163 = t151 + t156;
        const V t164 = t152 - t155;
        // real block of 13, multiplier 2
        const V x13 = io.in(13);
        const V t165 = x13 + t147;
        const V t166 = c[12] * t147;
        const V t167 = x13 - t166;
        const V t168 = c[2] * t164;
        const V t169 = c[3] * t163;
        const V t170 = t169 + t168;
        const V t171 = c[2] * t163;
        const V t172 = c[3] * t164;
        const V t173 = t172 - t171;
        const V t174 = c[4] * t160;
        const V t175 = c[5] * t159;
        const V t176 = t175 - t174;
        const V t177 = c[4] * t159;
        const V t178 = c[5] * t160;
        const V t179 = t178 + t177;
        const V t180 = c[6] * t146;
        const V t181 = c[7] * t144;
        const V t182 = t180 - t181;
        const V t183 = c[6] * t144;
        const V t184 = c[7] * t146;
        const V t185 = t184 + t183;
        const V t186 = c[8] * t158;
        const V t187 = c[9] * t157;
        const V t188 = t187 - t186;
        const V t189 = c[8] * t157;
        const V t190 = c[9] * t158;
        const V t191 = t190 + t189;
        const V t192 = c[10] * t162;
        const V t193 = c[11] * t161;
        const V t194 = t193 + t192;
        const V t195 = c[10] * t161;
        const V t196 = c[11] * t162;
        const V t197 = t195 - t196;
        const V t198 = c[13] * t148;
        // spectrum block of 2
        const V t199 = t167 - t198;
        const V t200 = t167 + t198;
        // complex block of 2
        const V t201 = t179 - t191;
        const V t202 = t188 + t176;
        const V t203 = t191 + t179;
        const V t204 = t188 - t176;
        // spectrum block of 3, multiplier 2
        const V t205 = t202 + t199;
        const V t206 = c[0] * t202;
        const V t207 = t199 - t206;
        const V t208 = c[1] * t201;
        const V t209 = t207 - t208;
        const V t210 = t207 + t208;
        // spectrum block of 3, multiplier 2
        const V t211 = t204 + t200;
        const V t212 = c[0] * t204;
        const V t213 = t200 - t212;
        const V t214 = c[1] * t203;
        const V t215 = t213 + t214;
        const V t216 = t213 - t214;
        // complex block of 2
        const V t217 = t194 - t170;
        const V t218 = t173 + t197;
        const V t219 = t170 + t194;
        const V t220 = t173 - t197;
        // mirrored skew block of 6
        const V t221 = c[0] * t219;
        const V t222 = c[1] * t220;
        const V t223 = t222 + t221;
        // spectrum block of 3, multiplier 2
        const V t224 = t218 - t185;
        const V t225 = c[0] * t218;
        const V t226 = t185 + t225;
        const V t227 = c[1] * t217;
        const V t228 = t227 - t226;
        const V t229 = t226 + t227;
        // spectrum block of 3, multiplier 2
        const V t230 = t223 + t182;
        const V t231 = c[0] * t223;
        const V t232 = t182 - t231;
        const V t233 = c[14] * t220;
        const V t234 = c[15] * t219;
        const V t235 = t233 - t234;
        const V t236 = t232 + t235;
        const V t237 = t232 - t235;
        // real block of 2
        const V t238 = t46 + t165;
        io.re(0, t238);
        const V t239 = t46 - t165;
        io.re(13, t239);
        // complex block of 2
        const V t240 = t86 + t205;
        io.re(2, t240);
        const V t241 = t224 - t105;
        io.im(2, t241);
        const V t242 = t86 - t205;
        io.re(11, t242);
        const V t243 = t105 + t224;
        io.im(11, t243);
        // complex block of 2
        const V t244 = t97 + t216;
        io.re(4, t244);
        const V t245 = t118 + t237;
        io.minusIm(4, t245);
        const V t246 = t97 - t216;
        io.re(9, t246);
        const V t247 = t237 - t118;
        io.minusIm(9, t247);
        // complex block of 2
        const V t248 = t91 + t210;
        io.re(6, t248);
        const V t249 = t228 - t109;
        io.im(6, t249);
        const V t250 = t91 - t210;
        io.re(7, t250);
        const V t251 = t109 + t228;
        io.im(7, t251);
        // complex block of 2
        const V t252 = t90 + t209;
        io.re(8, t252);
        const V t253 = t110 + t229;
        io.im(8, t253);
        const V t254 = t90 - t209;
        io.re(5, t254);
        const V t255 = t110 - t229;
        io.minusIm(5, t255);
        // complex block of 2
        const V t256 = t92 + t211;
        io.re(10, t256);
        const V t257 = t117 + t236;
        io.minusIm(10, t257);
        const V t258 = t92 - t211;
        io.re(3, t258);
        const V t259 = t236 - t117;
        io.minusIm(3, t259);
        // complex block of 2
        const V t260 = t96 + t215;
        io.re(12, t260);
        const V t261 = t111 + t230;
        io.minusIm(12, t261);
        const V t262 = t96 - t215;
        io.re(1, t262);
        const V t263 = t230 - t111;
        io.minusIm(1, t263);
    }
};

}  // namespace zulg
