// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_fold, 32.
// Skew transform of 32 folded points, decimation in time.
// 92 additions, 92 subtractions, 96 multiplications; 15 constants; 34 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Fold<32> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.19509032201612828,  // c[1]: -sin 2 pi 31/32
        0.9807852804032304,  // c[2]: cos 2 pi 31/32
        0.3826834323650898,  // c[3]: -sin 2 pi 30/32
        0.9238795325112867,  // c[4]: cos 2 pi 30/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
        0.0980171403295606,  // c[7]: -sin 2 pi 63/64
        0.9951847266721969,  // c[8]: cos 2 pi 63/64
        0.2902846772544624,  // c[9]: -sin 2 pi 61/64
        0.9569403357322088,  // c[10]: cos 2 pi 61/64
        0.47139673682599764,  // c[11]: -sin 2 pi 59/64
        0.881921264348355,  // c[12]: cos 2 pi 59/64
        0.6343932841636455,  // c[13]: -sin 2 pi 57/64
        0.773010453362737,  // c[14]: cos 2 pi 57/64
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Fold> c{};
        // part 0 of 16
        const V x8 = io.in(8);
        const V x24 = io.in(24);
        const V t0 = x8 + x24;
        const V t1 = c[0] * t0;
        const V t2 = x8 - x24;
        const V t3 = c[0] * t2;
        const V x0 = io.in(0);
        const V t4 = x0 + t1;
        const V x16 = io.in(16);
        const V t5 = t3 - x16;
        const V t6 = x0 - t1;
        const V t7 = t3 + x16;
        // part 1 of 16
        const V x10 = io.in(10);
        const V x26 = io.in(26);
        const V t8 = x10 + x26;
        const V t9 = c[0] * t8;
        const V t10 = x10 - x26;
        const V t11 = c[0] * t10;
        const V x2 = io.in(2);
        const V t12 = x2 + t9;
        const V x18 = io.in(18);
        const V t13 = t11 - x18;
        const V t14 = x2 - t9;
        const V t15 = t11 + x18;
        // part 2 of 16
        const V x12 = io.in(12);
        const V x28 = io.in(28);
        const V t16 = x12 + x28;
        const V t17 = c[0] * t16;
        const V t18 = x12 - x28;
        const V t19 = c[0] * t18;
        const V x4 = io.in(4);
        const V t20 = x4 + t17;
        const V x20 = io.in(20);
        const V t21 = t19 - x20;
        const V t22 = x4 - t17;
        const V t23 = t19 + x20;
        // part 3 of 16
        const V x14 = io.in(14);
        const V x30 = io.in(30);
        const V t24 = x14 + x30;
        const V t25 = c[0] * t24;
        const V t26 = x14 - x30;
        const V t27 = c[0] * t26;
        const V x6 = io.in(6);
        const V t28 = x6 + t25;
        const V x22 = io.in(22);
        const V t29 = t27 - x22;
        const V t30 = x6 - t25;
        const V t31 = t27 + x22;
        // row 0 of 16
        const V t32 = c[1] * t13;
        const V t33 = c[2] * t12;
        const V t34 = t33 - t32;
        const V t35 = c[1] * t12;
        const V t36 = c[2] * t13;
        const V t37 = t36 + t35;
        const V t38 = c[3] * t21;
        const V t39 = c[4] * t20;
        const V t40 = t39 - t38;
        const V t41 = c[3] * t20;
        const V t42 = c[4] * t21;
        const V t43 = t42 + t41;
        const V t44 = c[5] * t29;
        const V t45 = c[6] * t28;
        const V t46 = t45 - t44;
        const V t47 = c[5] * t28;
        const V t48 = c[6] * t29;
        const V t49 = t48 + t47;
        // complex block of 2
        const V t50 = t5 + t43;
        const V t51 = t4 + t40;
        const V t52 = t5 - t43;
        const V t53 = t4 - t40;
        // complex block of 2
        const V t54 = t37 + t49;
        const V t55 = t34 + t46;
        const V t56 = t37 - t49;
        const V t57 = t34 - t46;
        // complex block of 2
        const V t58 = t50 + t54;
        const V t59 = t51 + t55;
        const V t60 = t50 - t54;
        const V t61 = t51 - t55;
        // complex block of 2
        const V t62 = t52 + t57;
        const V t63 = t53 - t56;
        const V t64 = t52 - t57;
        const V t65 = t53 + t56;
        // row 1 of 16
        const V t66 = c[5] * t15;
        const V t67 = c[6] * t14;
        const V t68 = t67 - t66;
        const V t69 = c[5] * t14;
        const V t70 = c[6] * t15;
        const V t71 = t70 + t69;
        const V t72 = c[4] * t23;
        const V t73 = c[3] * t22;
        const V t74 = t73 - t72;
        const V t75 = c[4] * t22;
        const V t76 = c[3] * t23;
        const V t77 = t76 + t75;
        const V t78 = c[2] * t31;
        const V t79 = c[1] * t30;
        const V t80 = t79 + t78;
        const V t81 = c[2] * t30;
        const V t82 = c[1] * t31;
        const V t83 = t81 - t82;
        // complex block of 2
        const V t84 = t7 + t77;
        const V t85 = t6 + t74;
        const V t86 = t7 - t77;
        const V t87 = t6 - t74;
        // complex block of 2
        const V t88 = t71 + t83;
        const V t89 = t68 - t80;
        const V t90 = t71 - t83;
        const V t91 = t68 + t80;
        // complex block of 2
        const V t92 = t84 + t88;
        const V t93 = t85 + t89;
        const V t94 = t84 - t88;
        const V t95 = t85 - t89;
        // complex block of 2
        const V t96 = t86 + t91;
        const V t97 = t87 - t90;
        const V t98 = t86 - t91;
        const V t99 = t87 + t90;
        // part 0 of 16
        const V x9 = io.in(9);
        const V x25 = io.in(25);
        const V t100 = x9 + x25;
        const V t101 = c[0] * t100;
        const V t102 = x9 - x25;
        const V t103 = c[0] * t102;
        const V x1 = io.in(1);
        const V t104 = x1 + t101;
        const V x17 = io.in(17);
        const V t105 = t103 - x17;
        const V t106 = x1 - t101;
        const V t107 = t103 + x17;
        // part 1 of 16
        const V x11 = io.in(11);
        const V x27 = io.in(27);
        const V t108 = x11 + x27;
        const V t109 = c[0] * t108;
        const V t110 = x11 - x27;
        const V t111 = c[0] * t110;
        const V x3 = io.in(3);
        const V t112 = x3 + t109;
        const V x19 = io.in(19);
        const V t113 = t111 - x19;
        const V t114 = x3 - t109;
        const V t115 = t111 + x19;
        // part 2 of 16
        const V x13 = io.in(13);
        const V x29 = io.in(29);
        const V t116 = x13 + x29;
        const V t117 = c[0] * t116;
        const V t118 = x13 - x29;
        const V t119 = c[0] * t118;
        const V x5 = io.in(5);
        const V t120 = x5 + t117;
        const V x21 = io.in(21);
        const V t121 = t119 - x21;
        const V t122 = x5 - t117;
        const V t123 = t119 + x21;
        // part 3 of 16
        const V x15 = io.in(15);
        const V x31 = io.in(31);
        const V t124 = x15 + x31;
        const V t125 = c[0] * t124;
        const V t126 = x15 - x31;
        const V t127 = c[0] * t126;
        const V x7 = io.in(7);
        const V t128 = x7 + t125;
        const V x23 = io.in(23);
        const V t129 = t127 - x23;
        const V t130 = x7 - t125;
        const V t131 = t127 + x23;
        // row 0 of 16
        const V t132 = c[1] * t113;
        const V t133 = c[2] * t112;
        const V t134 = t133 - t132;
        const V t135 = c[1] * t112;
        const V t136 = c[2] * t113;
        const V t137 = t136 + t135;
        const V t138 = c[3] * t121;
        const V t139 = c[4] * t120;
        const V t140 = t139 - t138;
        const V t141 = c[3] * t120;
        const V t142 = c[4] * t121;
        const V t143 = t142 + t141;
        const V t144 = c[5] * t129;
        const V t145 = c[6] * t128;
        const V t146 = t145 - t144;
        const V t147 = c[5] * t128;
        const V t148 = c[6] * t129;
        const V t149 = t148 + t147;
        // complex block of 2
        const V t150 = t105 + t143;
        const V t151 = t104 + t140;
        const V t152 = t105 - t143;
        const V t153 = t104 - t140;
        // complex block of 2
        const V t154 = t137 + t149;
        const V t155 = t134 + t146;
        const V t156 = t137 - t149;
        const V t157 = t134 - t146;
        // complex block of 2
        const V t158 = t150 + t154;
        const V t159 = t151 + t155;
        const V t160 = t150 - t154;
        const V t161 = t151 - t155;
        // complex block of 2
        const V t162 = t152 + t157;
        const V t163 = t153 - t156;
        const V t164 = t152 - t157;
        const V t165 = t153 + t156;
        // row 1 of 16
        const V t166 = c[5] * t115;
        const V t167 = c[6] * t114;
        const V t168 = t167 - t166;
        const V t169 = c[5] * t114;
        const V t170 = c[6] * t115;
        const V t171 = t170 + t169;
        const V t172 = c[4] * t123;
        const V t173 = c[3] * t122;
        const V t174 = t173 - t172;
        const V t175 = c[4] * t122;
        const V t176 = c[3] * t123;
        const V t177 = t176 + t175;
        const V t178 = c[2] * t131;
        const V t179 = c[1] * t130;
        const V t180 = t179 + t178;
        const V t181 = c[2] * t130;
        const V t182 = c[1] * t131;
        const V t183 = t181 - t182;
        // complex block of 2
        const V t184 = t107 + t177;
        const V t185 = t106 + t174;
        const V t186 = t107 - t177;
        const V t187 = t106 - t174;
        // complex block of 2
        const V t188 = t171 + t183;
        const V t189 = t168 - t180;
        const V t190 = t171 - t183;
        const V t191 = t168 + t180;
        // complex block of 2
        const V t192 = t184 + t188;
        const V t193 = t185 + t189;
        const V t194 = t184 - t188;
        const V t195 = t185 - t189;
        // complex block of 2
        const V t196 = t186 + t191;
        const V t197 = t187 - t190;
        const V t198 = t186 - t191;
        const V t199 = t187 + t190;
        // row 0 of 32
        const V t200 = c[7] * t158;
        const V t201 = c[8] * t159;
        const V t202 = t201 - t200;
        const V t203 = c[7] * t159;
        const V t204 = c[8] * t158;
        const V t205 = t204 + t203;
        // complex block of 2
        const V t206 = t58 + t205;
        io.im(0, t206);
        const V t207 = t59 + t202;
        io.re(0, t207);
        const V t208 = t59 - t202;
        io.re(15, t208);
        // row 1 of 32
        const V t209 = c[9] * t192;
        const V t210 = c[10] * t193;
        const V t211 = t210 - t209;
        const V t212 = c[9] * t193;
        const V t213 = c[10] * t192;
        const V t214 = t213 + t212;
        // complex block of 2
        const V t215 = t92 + t214;
        io.im(1, t215);
        const V t216 = t93 + t211;
        io.re(1, t216);
        const V t217 = t93 - t211;
        io.re(14, t217);
        // row 2 of 32
        const V t218 = c[11] * t198;
        const V t219 = c[12] * t199;
        const V t220 = t219 + t218;
        const V t221 = c[11] * t199;
        const V t222 = c[12] * t198;
        const V t223 = t221 - t222;
        // complex block of 2
        const V t224 = t223 - t98;
        io.im(2, t224);
        const V t225 = t99 + t220;
        io.re(2, t225);
        const V t226 = t98 + t223;
        io.im(13, t226);
        const V t227 = t99 - t220;
        io.re(13, t227);
        // row 3 of 32
        const V t228 = c[13] * t164;
        const V t229 = c[14] * t165;
        const V t230 = t229 + t228;
        const V t231 = c[13] * t165;
        const V t232 = c[14] * t164;
        const V t233 = t231 - t232;
        // complex block of 2
        const V t234 = t233 - t64;
        io.im(3, t234);
        const V t235 = t65 + t230;
        io.re(3, t235);
        const V t236 = t64 + t233;
        io.im(12, t236);
        const V t237 = t65 - t230;
        io.re(12, t237);
        // row 4 of 32
        const V t238 = c[14] * t162;
        const V t239 = c[13] * t163;
        const V t240 = t239 - t238;
        const V t241 = c[14] * t163;
        const V t242 = c[13] * t162;
        const V t243 = t242 + t241;
        // complex block of 2
        const V t244 = t62 + t243;
        io.im(4, t244);
        const V t245 = t63 + t240;
        io.re(4, t245);
        const V t246 = t63 - t240;
        io.re(11, t246);
        // row 5 of 32
        const V t247 = c[12] * t196;
        const V t248 = c[11] * t197;
        const V t249 = t248 - t247;
        const V t250 = c[12] * t197;
        const V t251 = c[11] * t196;
        const V t252 = t251 + t250;
        // complex block of 2
        const V t253 = t96 + t252;
        io.im(5, t253);
        const V t254 = t97 + t249;
        io.re(5, t254);
        const V t255 = t97 - t249;
        io.re(10, t255);
        // row 6 of 32
        const V t256 = c[10] * t194;
        const V t257 = c[9] * t195;
        const V t258 = t257 + t256;
        const V t259 = c[10] * t195;
        const V t260 = c[9] * t194;
        const V t261 = t259 - t260;
        // complex block of 2
        const V t262 = t261 - t94;
        io.im(6, t262);
        const V t263 = t95 + t258;
        io.re(6, t263);
        const V t264 = t94 + t261;
        io.im(9, t264);
        const V t265 = t95 - t258;
        io.re(9, t265);
        // row 7 of 32
        const V t266 = c[8] * t160;
        const V t267 = c[7] * t161;
        const V t268 = t267 + t266;
        const V t269 = c[8] * t161;
        const V t270 = c[7] * t160;
        const V t271 = t269 - t270;
        // complex block of 2
        const V t272 = t271 - t60;
        io.im(7, t272);
        const V t273 = t61 + t268;
        io.re(7, t273);
        const V t274 = t60 + t271;
        io.im(8, t274);
        const V t275 = t61 - t268;
        io.re(8, t275);
        const V t276 = t252 - t96;
        io.im(10, t276);
        const V t277 = t243 - t62;
        io.im(11, t277);
        const V t278 = t214 - t92;
        io.im(14, t278);
        const V t279 = t205 - t58;
        io.im(15, t279);
    }
};

}  // namespace zulg
