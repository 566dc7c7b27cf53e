// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 27.
// Forward DFT of 27 real points, twiddled 9, 3.
// 82 additions, 82 subtractions, 110 multiplications (137 with `scale`); 8 outputs negated; 14 constants; 29 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardGraph<27> {
    static constexpr int steps = 301;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.6427876096865394,  // c[2]: sin 2 pi 1/9
        0.766044443118978,  // c[3]: cos 2 pi 1/9
        0.984807753012208,  // c[4]: sin 2 pi 2/9
        0.17364817766693036,  // c[5]: cos 2 pi 2/9
        0.44879918020046217,  // c[6]: sin 2 pi 2/27
        0.8936326403234123,  // c[7]: cos 2 pi 2/27
        0.8021231927550437,  // c[8]: sin 2 pi 4/27
        0.5971585917027862,  // c[9]: cos 2 pi 4/27
        0.23061587074244017,  // c[10]: sin 2 pi 1/27
        0.9730448705798238,  // c[11]: cos 2 pi 1/27
        0.9579895123154889,  // c[12]: sin 2 pi 8/27
        0.28680323271109026,  // c[13]: -cos 2 pi 8/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealForwardGraph> c{};
        // real block of 3
        const V x9 = io.in(9);
        const V x18 = io.in(18);
        const V t0 = x9 + x18;
        const V t1 = x9 - x18;
        const V x0 = io.in(0);
        const V t2 = t0 + x0;
        const V t3 = c[0] * t0;
        const V t4 = x0 - t3;
        const V t5 = c[1] * t1;
        // real block of 3
        const V x12 = io.in(12);
        const V x21 = io.in(21);
        const V t6 = x12 + x21;
        const V t7 = x12 - x21;
        const V x3 = io.in(3);
        const V t8 = t6 + x3;
        const V t9 = c[0] * t6;
        const V t10 = x3 - t9;
        const V t11 = c[1] * t7;
        // real block of 3
        const V x15 = io.in(15);
        const V x24 = io.in(24);
        const V t12 = x15 + x24;
        const V t13 = x15 - x24;
        const V x6 = io.in(6);
        const V t14 = t12 + x6;
        const V t15 = c[0] * t12;
        const V t16 = x6 - t15;
        const V t17 = c[1] * t13;
        // real block of 3
        const V t18 = t8 + t14;
        const V t19 = t8 - t14;
        const V t20 = t18 + t2;
        const V t21 = c[0] * t18;
        const V t22 = t2 - t21;
        const V t23 = c[1] * t19;
        // real block of 9
        const V t24 = c[2] * t11;
        const V t25 = c[3] * t10;
        const V t26 = t25 - t24;
        const V t27 = c[2] * t10;
        const V t28 = c[3] * t11;
        const V t29 = t28 + t27;
        const V t30 = c[4] * t17;
        const V t31 = c[5] * t16;
        const V t32 = t31 - t30;
        const V t33 = c[4] * t16;
        const V t34 = c[5] * t17;
        const V t35 = t34 + t33;
        // complex block of 3
        const V t36 = t26 + t32;
        const V t37 = t29 + t35;
        const V t38 = t26 - t32;
        const V t39 = t35 - t29;
        const V t40 = t36 + t4;
        const V t41 = t37 + t5;
        const V t42 = c[0] * t36;
        const V t43 = t4 - t42;
        const V t44 = c[0] * t37;
        const V t45 = t44 - t5;
        const V t46 = c[1] * t38;
        const V t47 = c[1] * t39;
        const V t48 = t43 + t47;
        const V t49 = t45 - t46;
        const V t50 = t43 - t47;
        const V t51 = t45 + t46;
        // real block of 3
        const V x10 = io.in(10);
        const V x19 = io.in(19);
        const V t52 = x10 + x19;
        const V t53 = x10 - x19;
        const V x1 = io.in(1);
        const V t54 = t52 + x1;
        const V t55 = c[0] * t52;
        const V t56 = x1 - t55;
        const V t57 = c[1] * t53;
        // real block of 3
        const V x13 = io.in(13);
        const V x22 = io.in(22);
        const V t58 = x13 + x22;
        const V t59 = x13 - x22;
        const V x4 = io.in(4);
        const V t60 = t58 + x4;
        const V t61 = c[0] * t58;
        const V t62 = x4 - t61;
        const V t63 = c[1] * t59;
        // real block of 3
        const V x16 = io.in(16);
        const V x25 = io.in(25);
        const V t64 = x16 + x25;
        const V t65 = x16 - x25;
        const V x7 = io.in(7);
        const V t66 = t64 + x7;
        const V t67 = c[0] * t64;
        const V t68 = x7 - t67;
        const V t69 = c[1] * t65;
        // real block of 3
        const V t70 = t60 + t66;
        const V t71 = t60 - t66;
        const V t72 = t70 + t54;
        const V t73 = c[0] * t70;
        const V t74 = t54 - t73;
        const V t75 = c[1] * t71;
        // real block of 9
        const V t76 = c[2] * t63;
        const V t77 = c[3] * t62;
        const V t78 = t77 - t76;
        const V t79 = c[2] * t62;
        const V t80 = c[3] * t63;
        const V t81 = t80 + t79;
        const V t82 = c[4] * t69;
        const V t83 = c[5] * t68;
        const V t84 = t83 - t82;
        const V t85 = c[4] * t68;
        const V t86 = c[5] * t69;
        const V t87 = t86 + t85;
        // complex block of 3
        const V t88 = t78 + t84;
        const V t89 = t81 + t87;
        const V t90 = t78 - t84;
        const V t91 = t87 - t81;
        const V t92 = t88 + t56;
        const V t93 = t89 + t57;
        const V t94 = c[0] * t88;
        const V t95 = t56 - t94;
        const V t96 = c[0] * t89;
        const V t97 = t96 - t57;
        const V t98 = c[1] * t90;
        const V t99 = c[1] * t91;
        const V t100 = t95 + t99;
        const V t101 = t97 - t98;
        const V t102 = t95 - t99;
        const V t103 = t97 + t98;
        // real block of 3
        const V x11 = io.in(11);
        const V x20 = io.in(20);
        const V t104 = x11 + x20;
        const V t105 = x11 - x20;
        const V x2 = io.in(2);
        const V t106 = t104 + x2;
        const V t107 = c[0] * t104;
        const V t108 = x2 - t107;
        const V t109 = c[1] * t105;
        // real block of 3
        const V x14 = io.in(14);
        const V x23 = io.in(23);
        const V t110 = x14 + x23;
        const V t111 = x14 - x23;
        const V x5 = io.in(5);
        const V t112 = t110 + x5;
        const V t113 = c[0] * t110;
        const V t114 = x5 - t113;
        const V t115 = c[1] * t111;
        // real block of 3
        const V x17 = io.in(17);
        const V x26 = io.in(26);
        const V t116 = x17 + x26;
        const V t117 = x17 - x26;
        const V x8 = io.in(8);
        const V t118 = t116 + x8;
        const V t119 = c[0] * t116;
        const V t120 = x8 - t119;
        const V t121 = c[1] * t117;
        // real block of 3
        const V t122 = t112 + t118;
        const V t123 = t112 - t118;
        const V t124 = t122 + t106;
        const V t125 = c[0] * t122;
        const V t126 = t106 - t125;
        const V t127 = c[1] * t123;
        // real block of 9
        const V t128 = c[2] * t115;
        const V t129 = c[3] * t114;
        const V t130 = t129 - t128;
        const V t131 = c[2] * t114;
        const V t132 = c[3] * t115;
        const V t133 = t132 + t131;
        const V t134 = c[4] * t121;
        const V t135 = c[5] * t120;
        const V t136 = t135 - t134;
        const V t137 = c[4] * t120;
        const V t138 = c[5] * t121;
        const V t139 = t138 + t137;
        // complex block of 3
        const V t140 = t130 + t136;
        const V t141 = t133 + t139;
        const V t142 = t130 - t136;
        const V t143 = t139 - t133;
        const V t144 = t140 + t108;
        const V t145 = t141 + t109;
        const V t146 = c[0] * t140;
        const V t147 = t108 - t146;
        const V t148 = c[0] * t141;
        const V t149 = t148 - t109;
        const V t150 = c[1] * t142;
        const V t151 = c[1] * t143;
        const V t152 = t147 + t151;
        const V t153 = t149 - t150;
        const V t154 = t147 - t151;
        const V t155 = t149 + t150;
        // real block of 3
        const V t156 = t72 + t124;
        const V t157 = t72 - t124;
        const V t158 = t156 + t20;
        io.re(0, t158);
        const V t159 = c[0] * t156;
        const V t160 = t20 - t159;
        io.re(9, t160);
        const V t161 = c[1] * t157;
        io.minusIm(9, t161);
        // real block of 27
        const V t162 = c[10] * t93;
        const V t163 = c[11] * t92;
        const V t164 = t163 - t162;
        const V t165 = c[10] * t92;
        const V t166 = c[11] * t93;
        const V t167 = t166 + t165;
        const V t168 = c[6] * t145;
        const V t169 = c[7] * t144;
        const V t170 = t169 - t168;
        const V t171 = c[6] * t144;
        const V t172 = c[7] * t145;
        const V t173 = t172 + t171;
        // complex block of 3
        const V t174 = t164 + t170;
        const V t175 = t167 + t173;
        const V t176 = t164 - t170;
        const V t177 = t173 - t167;
        const V t178 = t174 + t40;
        io.re(1, t178);
        const V t179 = t175 + t41;
        io.minusIm(1, t179);
        const V t180 = c[0] * t174;
        const V t181 = t40 - t180;
        const V t182 = c[0] * t175;
        const V t183 = t182 - t41;
        const V t184 = c[1] * t176;
        const V t185 = c[1] * t177;
        const V t186 = t181 + t185;
        io.re(10, t186);
        const V t187 = t183 - t184;
        io.im(10, t187);
        const V t188 = t181 - t185;
        io.re(8, t188);
        const V t189 = t183 + t184;
        io.minusIm(8, t189);
        // real block of 27
        const V t190 = c[6] * t103;
        const V t191 = c[7] * t102;
        const V t192 = t191 - t190;
        const V t193 = c[6] * t102;
        const V t194 = c[7] * t103;
        const V t195 = t194 + t193;
        const V t196 = c[8] * t155;
        const V t197 = c[9] * t154;
        const V t198 = t197 - t196;
        const V t199 = c[8] * t154;
        const V t200 = c[9] * t155;
        const V t201 = t200 + t199;
        // complex block of 3
        const V t202 = t192 + t198;
        const V t203 = t195 + t201;
        const V t204 = t192 - t198;
        const V t205 = t201 - t195;
        const V t206 = t202 + t50;
        io.re(2, t206);
        const V t207 = t203 + t51;
        io.minusIm(2, t207);
        const V t208 = c[0] * t202;
        const V t209 = t50 - t208;
        const V t210 = c[0] * t203;
        const V t211 = t210 - t51;
        const V t212 = c[1] * t204;
        const V t213 = c[1] * t205;
        const V t214 = t209 + t213;
        io.re(11, t214);
        const V t215 = t211 - t212;
        io.im(11, t215);
        const V t216 = t209 - t213;
        io.re(7, t216);
        const V t217 = t211 + t212;
        io.minusIm(7, t217);
        // real block of 27
        const V t218 = c[2] * t75;
        const V t219 = c[3] * t74;
        const V t220 = t219 - t218;
        const V t221 = c[2] * t74;
        const V t222 = c[3] * t75;
        const V t223 = t222 + t221;
        const V t224 = c[4] * t127;
        const V t225 = c[5] * t126;
        const V t226 = t225 - t224;
        const V t227 = c[4] * t126;
        const V t228 = c[5] * t127;
        const V t229 = t228 + t227;
        // complex block of 3
        const V t230 = t220 + t226;
        const V t231 = t223 + t229;
        const V t232 = t220 - t226;
        const V t233 = t229 - t223;
        const V t234 = t230 + t22;
        io.re(3, t234);
        const V t235 = t231 + t23;
        io.minusIm(3, t235);
        const V t236 = c[0] * t230;
        const V t237 = t22 - t236;
        const V t238 = c[0] * t231;
        const V t239 = t238 - t23;
        const V t240 = c[1] * t232;
        const V t241 = c[1] * t233;
        const V t242 = t237 + t241;
        io.re(12, t242);
        const V t243 = t239 - t240;
        io.im(12, t243);
        const V t244 = t237 - t241;
        io.re(6, t244);
        const V t245 = t239 + t240;
        io.minusIm(6, t245);
        // real block of 27
        const V t246 = c[8] * t101;
        const V t247 = c[9] * t100;
        const V t248 = t247 + t246;
        const V t249 = c[8] * t100;
        const V t250 = c[9] * t101;
        const V t251 = t250 - t249;
        const V t252 = c[12] * t153;
        const V t253 = c[13] * t152;
        const V t254 = t252 - t253;
        const V t255 = c[12] * t152;
        const V t256 = c[13] * t153;
        const V t257 = t256 + t255;
        // complex block of 3
        const V t258 = t248 + t254;
        const V t259 = t251 - t257;
        const V t260 = t248 - t254;
        const V t261 = t251 + t257;
        const V t262 = t258 + t48;
        io.re(4, t262);
        const V t263 = t259 + t49;
        io.im(4, t263);
        const V t264 = c[0] * t258;
        const V t265 = t48 - t264;
        const V t266 = c[0] * t259;
        const V t267 = t49 - t266;
        const V t268 = c[1] * t260;
        const V t269 = c[1] * t261;
        const V t270 = t265 + t269;
        io.re(13, t270);
        const V t271 = t267 - t268;
        io.im(13, t271);
        const V t272 = t265 - t269;
        io.re(5, t272);
        const V t273 = t267 + t268;
        io.minusIm(5, t273);
    }
};

}  // namespace zulg
