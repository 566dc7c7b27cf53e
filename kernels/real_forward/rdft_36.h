// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 36.
// Forward DFT of 36 real points, prime-factor 9, 4.
// 99 additions, 99 subtractions, 80 multiplications (116 with `scale`); 10 outputs negated; 6 constants; 38 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<36> {
    static constexpr int steps = 314;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3420201433256687,  // c[2]: sin 2 pi 4/9
        0.9396926207859084,  // c[3]: -cos 2 pi 4/9
        0.6427876096865394,  // c[4]: -sin 2 pi 8/9
        0.766044443118978,  // c[5]: cos 2 pi 8/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x12 = io.in(12);
        const V x24 = io.in(24);
        const V t0 = x12 + x24;
        const V t1 = x12 - x24;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x16 = io.in(16);
        const V x28 = io.in(28);
        const V t6 = x16 + x28;
        const V t7 = x16 - x28;
        const V x4 = io.in(4);
        const V t8 = t6 + x4;
        const V t9 = c[0] * t6;
        const V t10 = x4 - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x20 = io.in(20);
        const V x32 = io.in(32);
        const V t12 = x20 + x32;
        const V t13 = x20 - x32;
        const V x8 = io.in(8);
        const V t14 = t12 + x8;
        const V t15 = c[0] * t12;
        const V t16 = x8 - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V t18 = t8 + t14;
        const V t19 = t8 - t14;
        const V t20 = t18 + t2;
        const V t21 = c[0] * t18;
        const V t22 = t2 - t21;
        const V t23 = c[1] * t19;
        // real block of 9, multiplier 4
        const V t24 = c[2] * t11;
        const V t25 = c[3] * t10;
        const V t26 = t25 + t24;
        const V t27 = c[2] * t10;
        const V t28 = c[3] * t11;
        const V t29 = t28 - t27;
        const V t30 = c[4] * t17;
        const V t31 = c[5] * t16;
        const V t32 = t31 + t30;
        const V t33 = c[4] * t16;
        const V t34 = c[5] * t17;
        const V t35 = t33 - t34;
        // complex block of 3
        const V t36 = t32 - t26;
        const V t37 = t29 + t35;
        const V t38 = t26 + t32;
        const V t39 = t29 - t35;
        const V t40 = t36 + t4;
        const V t41 = t37 - t5;
        const V t42 = c[0] * t36;
        const V t43 = t4 - t42;
        const V t44 = c[0] * t37;
        const V t45 = t5 + t44;
        const V t46 = c[1] * t38;
        const V t47 = c[1] * t39;
        const V t48 = t43 + t47;
        const V t49 = t46 - t45;
        const V t50 = t43 - t47;
        const V t51 = t45 + t46;
        // real block of 3
        const V x21 = io.in(21);
        const V x33 = io.in(33);
        const V t52 = x21 + x33;
        const V t53 = x21 - x33;
        const V x9 = io.in(9);
        const V t54 = t52 + x9;
        const V t55 = c[0] * t52;
        const V t56 = x9 - t55;
        const V t57 = c[1] * t53;
        // real block of 3
        const V x25 = io.in(25);
        const V x1 = io.in(1);
        const V t58 = x25 + x1;
        const V t59 = x25 - x1;
        const V x13 = io.in(13);
        const V t60 = t58 + x13;
        const V t61 = c[0] * t58;
        const V t62 = x13 - t61;
        const V t63 = c[1] * t59;
        // real block of 3
        const V x29 = io.in(29);
        const V x5 = io.in(5);
        const V t64 = x29 + x5;
        const V t65 = x29 - x5;
        const V x17 = io.in(17);
        const V t66 = t64 + x17;
        const V t67 = c[0] * t64;
        const V t68 = x17 - t67;
        const V t69 = c[1] * t65;
        // real block of 3
        const V t70 = t60 + t66;
        const V t71 = t60 - t66;
        const V t72 = t70 + t54;
        const V t73 = c[0] * t70;
        const V t74 = t54 - t73;
        const V t75 = c[1] * t71;
        // real block of 9, multiplier 4
        const V t76 = c[2] * t63;
        const V t77 = c[3] * t62;
        const V t78 = t77 + t76;
        const V t79 = c[2] * t62;
        const V t80 = c[3] * t63;
        const V t81 = t80 - t79;
        const V t82 = c[4] * t69;
        const V t83 = c[5] * t68;
        const V t84 = t83 + t82;
        const V t85 = c[4] * t68;
        const V t86 = c[5] * t69;
        const V t87 = t85 - t86;
        // complex block of 3
        const V t88 = t84 - t78;
        const V t89 = t81 + t87;
        const V t90 = t78 + t84;
        const V t91 = t81 - t87;
        const V t92 = t88 + t56;
        const V t93 = t89 - t57;
        const V t94 = c[0] * t88;
        const V t95 = t56 - t94;
        const V t96 = c[0] * t89;
        const V t97 = t57 + t96;
        const V t98 = c[1] * t90;
        const V t99 = c[1] * t91;
        const V t100 = t95 + t99;
        const V t101 = t98 - t97;
        const V t102 = t95 - t99;
        const V t103 = t97 + t98;
        // real block of 3
        const V x30 = io.in(30);
        const V x6 = io.in(6);
        const V t104 = x30 + x6;
        const V t105 = x30 - x6;
        const V x18 = io.in(18);
        const V t106 = t104 + x18;
        const V t107 = c[0] * t104;
        const V t108 = x18 - t107;
        const V t109 = c[1] * t105;
        // real block of 3
        const V x34 = io.in(34);
        const V x10 = io.in(10);
        const V t110 = x34 + x10;
        const V t111 = x34 - x10;
        const V x22 = io.in(22);
        const V t112 = t110 + x22;
        const V t113 = c[0] * t110;
        const V t114 = x22 - t113;
        const V t115 = c[1] * t111;
        // real block of 3
        const V x2 = io.in(2);
        const V x14 = io.in(14);
        const V t116 = x2 + x14;
        const V t117 = x2 - x14;
        const V x26 = io.in(26);
        const V t118 = t116 + x26;
        const V t119 = c[0] * t116;
        const V t120 = x26 - t119;
        const V t121 = c[1] * t117;
        // real block of 3
        const V t122 = t112 + t118;
        const V t123 = t112 - t118;
        const V t124 = t122 + t106;
        const V t125 = c[0] * t122;
        const V t126 = t106 - t125;
        const V t127 = c[1] * t123;
        // real block of 9, multiplier 4
        const V t128 = c[2] * t115;
        const V t129 = c[3] * t114;
        const V t130 = t129 + t128;
        const V t131 = c[2] * t114;
        const V t132 = c[3] * t115;
        const V t133 = t132 - t131;
        const V t134 = c[4] * t121;
        const V t135 = c[5] * t120;
        const V t136 = t135 + t134;
        const V t137 = c[4] * t120;
        const V t138 = c[5] * t121;
        const V t139 = t137 - t138;
        // complex block of 3
        const V t140 = t136 - t130;
        const V t141 = t133 + t139;
        const V t142 = t130 + t136;
        const V t143 = t133 - t139;
        const V t144 = t140 + t108;
        const V t145 = t141 - t109;
        const V t146 = c[0] * t140;
        const V t147 = t108 - t146;
        const V t148 = c[0] * t141;
        const V t149 = t109 + t148;
        const V t150 = c[1] * t142;
        const V t151 = c[1] * t143;
        const V t152 = t147 + t151;
        const V t153 = t150 - t149;
        const V t154 = t147 - t151;
        const V t155 = t149 + t150;
        // real block of 3
        const V x3 = io.in(3);
        const V x15 = io.in(15);
        const V t156 = x3 + x15;
        const V t157 = x3 - x15;
        const V x27 = io.in(27);
        const V t158 = t156 + x27;
        const V t159 = c[0] * t156;
        const V t160 = x27 - t159;
        const V t161 = c[1] * t157;
        // real block of 3
        const V x7 = io.in(7);
        const V x19 = io.in(19);
        const V t162 = x7 + x19;
        const V t163 = x7 - x19;
        const V x31 = io.in(31);
        const V t164 = t162 + x31;
        const V t165 = c[0] * t162;
        const V t166 = x31 - t165;
        const V t167 = c[1] * t163;
        // real block of 3
        const V x11 = io.in(11);
        const V x23 = io.in(23);
        const V t168 = x11 + x23;
        const V t169 = x11 - x23;
        const V x35 = io.in(35);
        const V t170 = t168 + x35;
        const V t171 = c[0] * t168;
        const V t172 = x35 - t171;
        const V t173 = c[1] * t169;
        // real block of 3
        const V t174 = t164 + t170;
        const V t175 = t164 - t170;
        const V t176 = t174 + t158;
        const V t177 = c[0] * t174;
        const V t178 = t158 - t177;
        const V t179 = c[1] * t175;
        // real block of 9, multiplier 4
        const V t180 = c[2] * t167;
        const V t181 = c[3] * t166;
        const V t182 = t181 + t180;
        const V t183 = c[2] * t166;
        const V t184 = c[3] * t167;
        const V t185 = t184 - t183;
        const V t186 = c[4] * t173;
        const V t187 = c[5] * t172;
        const V t188 = t187 + t186;
        const V t189 = c[4] * t172;
        const V t190 = c[5] * t173;
        const V t191 = t189 - t190;
        // complex block of 3
        const V t192 = t188 - t182;
        const V t193 = t185 + t191;
        const V t194 = t182 + t188;
        const V t195 = t185 - t191;
        const V t196 = t192 + t160;
        const V t197 = t193 - t161;
        const V t198 = c[0] * t192;
        const V t199 = t160 - t198;
        const V t200 = c[0] * t193;
        const V t201 = t161 + t200;
        const V t202 = c[1] * t194;
        const V t203 = c[1] * t195;
        const V t204 = t199 + t203;
        const V t205 = t202 - t201;
        const V t206 = t199 - t203;
        const V t207 = t201 + t202;
        // real block of 2
        const V t208 = t20 + t124;
        const V t209 = t20 - t124;
        io.re(9, t209);
        // real block of 2
        const V t210 = t72 + t176;
        const V t211 = t72 - t176;
        io.minusIm(9, t211);
        // real block of 2
        const V t212 = t208 + t210;
        io.re(0, t212);
        const V t213 = t208 - t210;
        io.re(18, t213);
        // complex block of 2
        const V t214 = t40 + t144;
        const V t215 = t41 + t145;
        const V t216 = t40 - t144;
        const V t217 = t41 - t145;
        // complex block of 2
        const V t218 = t92 + t196;
        const V t219 = t93 + t197;
        const V t220 = t92 - t196;
        const V t221 = t93 - t197;
        // complex block of 2
        const V t222 = t214 + t218;
        io.re(4, t222);
        const V t223 = t215 + t219;
        io.im(4, t223);
        const V t224 = t214 - t218;
        io.re(14, t224);
        const V t225 = t215 - t219;
        io.minusIm(14, t225);
        // complex block of 2
        const V t226 = t216 + t221;
        io.re(13, t226);
        const V t227 = t217 - t220;
        io.im(13, t227);
        const V t228 = t216 - t221;
        io.re(5, t228);
        const V t229 = t217 + t220;
        io.minusIm(5, t229);
        // complex block of 2
        const V t230 = t50 + t154;
        const V t231 = t51 + t155;
        const V t232 = t50 - t154;
        const V t233 = t51 - t155;
        // complex block of 2
        const V t234 = t102 + t206;
        const V t235 = t103 + t207;
        const V t236 = t102 - t206;
        const V t237 = t103 - t207;
        // complex block of 2
        const V t238 = t230 + t234;
        io.re(8, t238);
        const V t239 = t231 + t235;
        io.im(8, t239);
        const V t240 = t230 - t234;
        io.re(10, t240);
        const V t241 = t231 - t235;
        io.minusIm(10, t241);
        // complex block of 2
        const V t242 = t232 + t237;
        io.re(17, t242);
        const V t243 = t233 - t236;
        io.im(17, t243);
        const V t244 = t232 - t237;
        io.re(1, t244);
        const V t245 = t233 + t236;
        io.minusIm(1, t245);
        // complex block of 2
        const V t246 = t22 + t126;
        const V t247 = t23 + t127;
        const V t248 = t22 - t126;
        const V t249 = t127 - t23;
        // complex block of 2
        const V t250 = t74 + t178;
        const V t251 = t75 + t179;
        const V t252 = t74 - t178;
        const V t253 = t179 - t75;
        // complex block of 2
        const V t254 = t246 + t250;
        io.re(12, t254);
        const V t255 = t247 + t251;
        io.minusIm(12, t255);
        const V t256 = t246 - t250;
        io.re(6, t256);
        const V t257 = t251 - t247;
        io.minusIm(6, t257);
        // complex block of 2
        const V t258 = t248 + t253;
        io.re(15, t258);
        const V t259 = t249 - t252;
        io.minusIm(15, t259);
        const V t260 = t248 - t253;
        io.re(3, t260);
        const V t261 = t249 + t252;
        io.im(3, t261);
        // complex block of 2
        const V t262 = t48 + t152;
        const V t263 = t49 + t153;
        const V t264 = t48 - t152;
        const V t265 = t49 - t153;
        // complex block of 2
        const V t266 = t100 + t204;
        const V t267 = t101 + t205;
        const V t268 = t100 - t204;
        const V t269 = t101 - t205;
        // complex block of 2
        const V t270 = t262 + t266;
        io.re(16, t270);
        const V t271 = t263 + t267;
        io.im(16, t271);
        const V t272 = t262 - t266;
        io.re(2, t272);
        const V t273 = t263 - t267;
        io.minusIm(2, t273);
        // complex block of 2
        const V t274 = t264 + t269;
        io.re(11, t274);
        const V t275 = t265 - t268;
        io.minusIm(11, t275);
        const V t276 = t264 - t269;
        io.re(7, t276);
        const V t277 = t265 + t268;
        io.im(7, t277);
    }
};

}  // namespace zulg
