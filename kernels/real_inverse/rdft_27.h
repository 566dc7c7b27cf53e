// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 27.
// Inverse DFT to 27 real points, twiddled 9, 3.
// 82 additions, 82 subtractions, 125 multiplications (152 with `scale`); 38 constants; 36 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<27> {
    static constexpr int steps = 316;  // with `scale`
    static constexpr double inverseRoot = 0.19245008972987526;  // 1/sqrt(27), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.984807753012208,  // c[2]: -sin 2 pi 7/9
        0.17364817766693036,  // c[3]: cos 2 pi 7/9
        0.6427876096865394,  // c[4]: -sin 2 pi 8/9
        0.766044443118978,  // c[5]: cos 2 pi 8/9
        0.6634139481689384,  // c[6]: sin 2 pi 1/3 times cos 2 pi 8/9
        0.5566703992264194,  // c[7]: sin 2 pi 1/3 times -sin 2 pi 8/9
        0.1503837331804353,  // c[8]: sin 2 pi 1/3 times cos 2 pi 7/9
        0.8528685319524432,  // c[9]: sin 2 pi 1/3 times -sin 2 pi 7/9
        0.3420201433256687,  // c[10]: sin 2 pi 4/9
        0.9396926207859084,  // c[11]: -cos 2 pi 4/9
        1.7320508075688772,  // c[12]: sin 2 pi 1/3 times 2
        0.23061587074244017,  // c[13]: -sin 2 pi 26/27
        0.9730448705798238,  // c[14]: cos 2 pi 26/27
        0.44879918020046217,  // c[15]: -sin 2 pi 25/27
        0.8936326403234123,  // c[16]: cos 2 pi 25/27
        0.8021231927550437,  // c[17]: -sin 2 pi 23/27
        0.5971585917027862,  // c[18]: cos 2 pi 23/27
        0.918216106880274,  // c[19]: -sin 2 pi 22/27
        0.39607976603915684,  // c[20]: cos 2 pi 22/27
        0.9983081582712682,  // c[21]: -sin 2 pi 20/27
        0.05814482891047583,  // c[22]: -cos 2 pi 20/27
        0.9579895123154889,  // c[23]: -sin 2 pi 19/27
        0.28680323271109026,  // c[24]: -cos 2 pi 19/27
        0.8426815769442688,  // c[25]: sin 2 pi 1/3 times cos 2 pi 26/27
        0.19971920257882167,  // c[26]: sin 2 pi 1/3 times -sin 2 pi 26/27
        0.7739085681710371,  // c[27]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.3886714912512303,  // c[28]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.5171545105027521,  // c[29]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.6946590618905499,  // c[30]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.3430151393149068,  // c[31]: sin 2 pi 1/3 times cos 2 pi 22/27
        0.7951984747223646,  // c[32]: sin 2 pi 1/3 times -sin 2 pi 22/27
        0.8645602258681744,  // c[33]: sin 2 pi 1/3 times -sin 2 pi 20/27
        0.05035489893517193,  // c[34]: sin 2 pi 1/3 times -cos 2 pi 20/27
        0.8296432542242788,  // c[35]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.24837888541530426,  // c[36]: sin 2 pi 1/3 times -cos 2 pi 19/27
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
        const V x5i = io.im(5);
        const V t9 = two * x5i;
        const V x6r = io.re(6);
        const V t10 = two * x6r;
        const V x6i = io.im(6);
        const V t11 = two * x6i;
        const V x7r = io.re(7);
        const V t12 = two * x7r;
        const V x7i = io.im(7);
        const V t13 = two * x7i;
        const V x8r = io.re(8);
        const V t14 = two * x8r;
        const V x8i = io.im(8);
        const V t15 = two * x8i;
        const V x9r = io.re(9);
        const V t16 = two * x9r;
        const V x10r = io.re(10);
        const V t17 = two * x10r;
        const V x10i = io.im(10);
        const V t18 = two * x10i;
        const V x11r = io.re(11);
        const V t19 = two * x11r;
        const V x11i = io.im(11);
        const V t20 = two * x11i;
        const V x12r = io.re(12);
        const V t21 = two * x12r;
        const V x12i = io.im(12);
        const V t22 = two * x12i;
        const V x13r = io.re(13);
        const V t23 = two * x13r;
        const V x13i = io.im(13);
        const V t24 = two * x13i;
        // spectrum block of 3
        const V x0r = io.re(0);
        const V t25 = t16 + x0r;
        const V t26 = c[0] * t16;
        const V t27 = x0r - t26;
        const V x9i = io.im(9);
        const V t28 = c[12] * x9i;
        const V t29 = t27 - t28;
        const V t30 = t27 + t28;
        // complex block of 3
        const V t31 = t22 - t11;
        const V t32 = t21 + t10;
        const V t33 = t22 + t11;
        const V t34 = t21 - t10;
        const V t35 = t31 + t5;
        const V t36 = t32 + t4;
        const V t37 = c[0] * t31;
        const V t38 = t5 - t37;
        const V t39 = c[0] * t32;
        const V t40 = t4 - t39;
        const V t41 = c[1] * t33;
        const V t42 = c[1] * t34;
        const V t43 = t38 + t42;
        const V t44 = t40 - t41;
        const V t45 = t38 - t42;
        const V t46 = t40 + t41;
        // spectrum block of 9
        const V t47 = c[4] * t43;
        const V t48 = c[5] * t44;
        const V t49 = t48 - t47;
        const V t50 = c[2] * t45;
        const V t51 = c[3] * t46;
        const V t52 = t51 - t50;
        // spectrum block of 3
        const V t53 = t36 + t25;
        const V t54 = c[0] * t36;
        const V t55 = t25 - t54;
        const V t56 = c[1] * t35;
        const V t57 = t55 - t56;
        const V t58 = t55 + t56;
        // spectrum block of 3
        const V t59 = t49 + t29;
        const V t60 = c[0] * t49;
        const V t61 = t29 - t60;
        const V t62 = c[6] * t43;
        const V t63 = c[7] * t44;
        const V t64 = t62 + t63;
        const V t65 = t61 - t64;
        const V t66 = t61 + t64;
        // spectrum block of 3
        const V t67 = t52 + t30;
        const V t68 = c[0] * t52;
        const V t69 = t30 - t68;
        const V t70 = c[8] * t45;
        const V t71 = c[9] * t46;
        const V t72 = t70 + t71;
        const V t73 = t69 - t72;
        const V t74 = t69 + t72;
        // complex block of 3
        const V t75 = t18 - t15;
        const V t76 = t17 + t14;
        const V t77 = t18 + t15;
        const V t78 = t17 - t14;
        const V t79 = t75 + t1;
        const V t80 = t76 + t0;
        const V t81 = c[0] * t75;
        const V t82 = t1 - t81;
        const V t83 = c[0] * t76;
        const V t84 = t0 - t83;
        const V t85 = c[1] * t77;
        const V t86 = c[1] * t78;
        const V t87 = t82 + t86;
        const V t88 = t84 - t85;
        const V t89 = t82 - t86;
        const V t90 = t84 + t85;
        // complex block of 3
        const V t91 = t24 - t9;
        const V t92 = t23 + t8;
        const V t93 = t24 + t9;
        const V t94 = t23 - t8;
        const V t95 = t91 + t7;
        const V t96 = t92 + t6;
        const V t97 = c[0] * t91;
        const V t98 = t7 - t97;
        const V t99 = c[0] * t92;
        const V t100 = t6 - t99;
        const V t101 = c[1] * t93;
        const V t102 = c[1] * t94;
        const V t103 = t98 + t102;
        const V t104 = t100 - t101;
        const V t105 = t98 - t102;
        const V t106 = t100 + t101;
        // complex block of 3
        const V t107 = t20 + t3;
        const V t108 = t19 + t2;
        const V t109 = t3 - t20;
        const V t110 = t19 - t2;
        const V t111 = t13 - t107;
        const V t112 = t108 + t12;
        const V t113 = c[0] * t107;
        const V t114 = t113 + t13;
        const V t115 = c[0] * t108;
        const V t116 = t12 - t115;
        const V t117 = c[1] * t109;
        const V t118 = c[1] * t110;
        const V t119 = t114 + t118;
        const V t120 = t116 - t117;
        const V t121 = t114 - t118;
        const V t122 = t116 + t117;
        // complex block of 3
        const V t123 = t95 + t111;
        const V t124 = t96 + t112;
        const V t125 = t95 - t111;
        const V t126 = t96 - t112;
        const V t127 = t123 + t79;
        const V t128 = t124 + t80;
        const V t129 = c[0] * t123;
        const V t130 = t79 - t129;
        const V t131 = c[0] * t124;
        const V t132 = t80 - t131;
        const V t133 = c[1] * t125;
        const V t134 = c[1] * t126;
        const V t135 = t130 + t134;
        const V t136 = t132 - t133;
        const V t137 = t130 - t134;
        const V t138 = t132 + t133;
        // complex block of 9
        const V t139 = c[4] * t104;
        const V t140 = c[5] * t103;
        const V t141 = t140 + t139;
        const V t142 = c[4] * t103;
        const V t143 = c[5] * t104;
        const V t144 = t143 - t142;
        const V t145 = c[2] * t120;
        const V t146 = c[3] * t119;
        const V t147 = t146 + t145;
        const V t148 = c[2] * t119;
        const V t149 = c[3] * t120;
        const V t150 = t149 - t148;
        // complex block of 3
        const V t151 = t141 + t147;
        const V t152 = t144 + t150;
        const V t153 = t141 - t147;
        const V t154 = t144 - t150;
        const V t155 = t151 + t87;
        const V t156 = t152 + t88;
        const V t157 = c[0] * t151;
        const V t158 = t87 - t157;
        const V t159 = c[0] * t152;
        const V t160 = t88 - t159;
        const V t161 = c[1] * t153;
        const V t162 = c[1] * t154;
        const V t163 = t158 + t162;
        const V t164 = t160 - t161;
        const V t165 = t158 - t162;
        const V t166 = t160 + t161;
        // complex block of 9
        const V t167 = c[2] * t106;
        const V t168 = c[3] * t105;
        const V t169 = t168 + t167;
        const V t170 = c[2] * t105;
        const V t171 = c[3] * t106;
        const V t172 = t171 - t170;
        const V t173 = c[10] * t122;
        const V t174 = c[11] * t121;
        const V t175 = t173 - t174;
        const V t176 = c[10] * t121;
        const V t177 = c[11] * t122;
        const V t178 = t177 + t176;
        // complex block of 3
        const V t179 = t169 + t175;
        const V t180 = t172 - t178;
        const V t181 = t169 - t175;
        const V t182 = t172 + t178;
        const V t183 = t179 + t89;
        const V t184 = t180 + t90;
        const V t185 = c[0] * t179;
        const V t186 = t89 - t185;
        const V t187 = c[0] * t180;
        const V t188 = t90 - t187;
        const V t189 = c[1] * t181;
        const V t190 = c[1] * t182;
        const V t191 = t186 + t190;
        const V t192 = t188 - t189;
        const V t193 = t186 - t190;
        const V t194 = t188 + t189;
        // spectrum block of 27
        const V t195 = c[13] * t155;
        const V t196 = c[14] * t156;
        const V t197 = t196 - t195;
        const V t198 = c[15] * t183;
        const V t199 = c[16] * t184;
        const V t200 = t199 - t198;
        const V t201 = c[4] * t135;
        const V t202 = c[5] * t136;
        const V t203 = t202 - t201;
        const V t204 = c[17] * t163;
        const V t205 = c[18] * t164;
        const V t206 = t205 - t204;
        const V t207 = c[19] * t191;
        const V t208 = c[20] * t192;
        const V t209 = t208 - t207;
        const V t210 = c[2] * t137;
        const V t211 = c[3] * t138;
        const V t212 = t211 - t210;
        const V t213 = c[21] * t165;
        const V t214 = c[22] * t166;
        const V t215 = t214 + t213;
        const V t216 = c[23] * t193;
        const V t217 = c[24] * t194;
        const V t218 = t217 + t216;
        // spectrum block of 3
        const V t219 = t128 + t53;
        io.out(0, t219);
        const V t220 = c[0] * t128;
        const V t221 = t53 - t220;
        const V t222 = c[1] * t127;
        const V t223 = t221 - t222;
        io.out(9, t223);
        const V t224 = t221 + t222;
        io.out(18, t224);
        // spectrum block of 3
        const V t225 = t197 + t59;
        io.out(1, t225);
        const V t226 = c[0] * t197;
        const V t227 = t59 - t226;
        const V t228 = c[25] * t155;
        const V t229 = c[26] * t156;
        const V t230 = t228 + t229;
        const V t231 = t227 - t230;
        io.out(10, t231);
        const V t232 = t227 + t230;
        io.out(19, t232);
        // spectrum block of 3
        const V t233 = t200 + t67;
        io.out(2, t233);
        const V t234 = c[0] * t200;
        const V t235 = t67 - t234;
        const V t236 = c[27] * t183;
        const V t237 = c[28] * t184;
        const V t238 = t236 + t237;
        const V t239 = t235 - t238;
        io.out(11, t239);
        const V t240 = t235 + t238;
        io.out(20, t240);
        // spectrum block of 3
        const V t241 = t203 + t57;
        io.out(3, t241);
        const V t242 = c[0] * t203;
        const V t243 = t57 - t242;
        const V t244 = c[6] * t135;
        const V t245 = c[7] * t136;
        const V t246 = t244 + t245;
        const V t247 = t243 - t246;
        io.out(12, t247);
        const V t248 = t243 + t246;
        io.out(21, t248);
        // spectrum block of 3
        const V t249 = t206 + t65;
        io.out(4, t249);
        const V t250 = c[0] * t206;
        const V t251 = t65 - t250;
        const V t252 = c[29] * t163;
        const V t253 = c[30] * t164;
        const V t254 = t252 + t253;
        const V t255 = t251 - t254;
        io.out(13, t255);
        const V t256 = t251 + t254;
        io.out(22, t256);
        // spectrum block of 3
        const V t257 = t209 + t73;
        io.out(5, t257);
        const V t258 = c[0] * t209;
        const V t259 = t73 - t258;
        const V t260 = c[31] * t191;
        const V t261 = c[32] * t192;
        const V t262 = t260 + t261;
        const V t263 = t259 - t262;
        io.out(14, t263);
        const V t264 = t259 + t262;
        io.out(23, t264);
        // spectrum block of 3
        const V t265 = t212 + t58;
        io.out(6, t265);
        const V t266 = c[0] * t212;
        const V t267 = t58 - t266;
        const V t268 = c[8] * t137;
        const V t269 = c[9] * t138;
        const V t270 = t268 + t269;
        const V t271 = t267 - t270;
        io.out(15, t271);
        const V t272 = t267 + t270;
        io.out(24, t272);
        // spectrum block of 3
        const V t273 = t66 - t215;
        io.out(7, t273);
        const V t274 = c[0] * t215;
        const V t275 = t274 + t66;
        const V t276 = c[33] * t166;
        const V t277 = c[34] * t165;
        const V t278 = t276 - t277;
        const V t279 = t275 - t278;
        io.out(16, t279);
        const V t280 = t275 + t278;
        io.out(25, t280);
        // spectrum block of 3
        const V t281 = t74 - t218;
        io.out(8, t281);
        const V t282 = c[0] * t218;
        const V t283 = t282 + t74;
        const V t284 = c[35] * t194;
        const V t285 = c[36] * t193;
        const V t286 = t284 - t285;
        const V t287 = t283 - t286;
        io.out(17, t287);
        const V t288 = t283 + t286;
        io.out(26, t288);
    }
};

}  // namespace zulg
