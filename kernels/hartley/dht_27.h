// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 27.
// Hartley transform of 27 points, form I.
// 95 additions, 95 subtractions, 100 multiplications (127 with `scale`); 36 constants; 36 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<27> {
    static constexpr int steps = 317;  // with `scale`
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
        0.23061587074244017,  // c[12]: -sin 2 pi 26/27
        0.9730448705798238,  // c[13]: cos 2 pi 26/27
        0.44879918020046217,  // c[14]: -sin 2 pi 25/27
        0.8936326403234123,  // c[15]: cos 2 pi 25/27
        0.8021231927550437,  // c[16]: -sin 2 pi 23/27
        0.5971585917027862,  // c[17]: cos 2 pi 23/27
        0.918216106880274,  // c[18]: -sin 2 pi 22/27
        0.39607976603915684,  // c[19]: cos 2 pi 22/27
        0.9983081582712682,  // c[20]: -sin 2 pi 20/27
        0.05814482891047583,  // c[21]: -cos 2 pi 20/27
        0.9579895123154889,  // c[22]: -sin 2 pi 19/27
        0.28680323271109026,  // c[23]: -cos 2 pi 19/27
        0.8426815769442688,  // c[24]: sin 2 pi 1/3 times cos 2 pi 26/27
        0.19971920257882167,  // c[25]: sin 2 pi 1/3 times -sin 2 pi 26/27
        0.7739085681710371,  // c[26]: sin 2 pi 1/3 times cos 2 pi 25/27
        0.3886714912512303,  // c[27]: sin 2 pi 1/3 times -sin 2 pi 25/27
        0.5171545105027521,  // c[28]: sin 2 pi 1/3 times cos 2 pi 23/27
        0.6946590618905499,  // c[29]: sin 2 pi 1/3 times -sin 2 pi 23/27
        0.3430151393149068,  // c[30]: sin 2 pi 1/3 times cos 2 pi 22/27
        0.7951984747223646,  // c[31]: sin 2 pi 1/3 times -sin 2 pi 22/27
        0.8645602258681744,  // c[32]: sin 2 pi 1/3 times -sin 2 pi 20/27
        0.05035489893517193,  // c[33]: sin 2 pi 1/3 times -cos 2 pi 20/27
        0.8296432542242788,  // c[34]: sin 2 pi 1/3 times -sin 2 pi 19/27
        0.24837888541530426,  // c[35]: sin 2 pi 1/3 times -cos 2 pi 19/27
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x26 = io.in(26);
        const V t0 = x1 + x26;
        const V t1 = x1 - x26;
        const V x2 = io.in(2);
        const V x25 = io.in(25);
        const V t2 = x2 + x25;
        const V t3 = x2 - x25;
        const V x3 = io.in(3);
        const V x24 = io.in(24);
        const V t4 = x3 + x24;
        const V t5 = x3 - x24;
        const V x4 = io.in(4);
        const V x23 = io.in(23);
        const V t6 = x4 + x23;
        const V t7 = x4 - x23;
        const V x5 = io.in(5);
        const V x22 = io.in(22);
        const V t8 = x5 + x22;
        const V t9 = x5 - x22;
        const V x6 = io.in(6);
        const V x21 = io.in(21);
        const V t10 = x6 + x21;
        const V t11 = x6 - x21;
        const V x7 = io.in(7);
        const V x20 = io.in(20);
        const V t12 = x7 + x20;
        const V t13 = x7 - x20;
        const V x8 = io.in(8);
        const V x19 = io.in(19);
        const V t14 = x8 + x19;
        const V t15 = x8 - x19;
        const V x9 = io.in(9);
        const V x18 = io.in(18);
        const V t16 = x9 + x18;
        const V t17 = x9 - x18;
        const V x10 = io.in(10);
        const V x17 = io.in(17);
        const V t18 = x10 + x17;
        const V t19 = x10 - x17;
        const V x11 = io.in(11);
        const V x16 = io.in(16);
        const V t20 = x11 + x16;
        const V t21 = x11 - x16;
        const V x12 = io.in(12);
        const V x15 = io.in(15);
        const V t22 = x12 + x15;
        const V t23 = x12 - x15;
        const V x13 = io.in(13);
        const V x14 = io.in(14);
        const V t24 = x13 + x14;
        const V t25 = x13 - x14;
        // spectrum block of 3
        const V x0 = io.in(0);
        const V t26 = t16 + x0;
        const V t27 = c[0] * t16;
        const V t28 = x0 - t27;
        const V t29 = c[1] * t17;
        const V t30 = t28 - t29;
        const V t31 = t28 + t29;
        // complex block of 3
        const V t32 = t23 - t11;
        const V t33 = t22 + t10;
        const V t34 = t23 + t11;
        const V t35 = t22 - t10;
        const V t36 = t32 + t5;
        const V t37 = t33 + t4;
        const V t38 = c[0] * t32;
        const V t39 = t5 - t38;
        const V t40 = c[0] * t33;
        const V t41 = t4 - t40;
        const V t42 = c[1] * t34;
        const V t43 = c[1] * t35;
        const V t44 = t39 + t43;
        const V t45 = t41 - t42;
        const V t46 = t39 - t43;
        const V t47 = t41 + t42;
        // spectrum block of 9
        const V t48 = c[4] * t44;
        const V t49 = c[5] * t45;
        const V t50 = t49 - t48;
        const V t51 = c[2] * t46;
        const V t52 = c[3] * t47;
        const V t53 = t52 - t51;
        // spectrum block of 3
        const V t54 = t37 + t26;
        const V t55 = c[0] * t37;
        const V t56 = t26 - t55;
        const V t57 = c[1] * t36;
        const V t58 = t56 - t57;
        const V t59 = t56 + t57;
        // spectrum block of 3
        const V t60 = t50 + t30;
        const V t61 = c[0] * t50;
        const V t62 = t30 - t61;
        const V t63 = c[6] * t44;
        const V t64 = c[7] * t45;
        const V t65 = t63 + t64;
        const V t66 = t62 - t65;
        const V t67 = t62 + t65;
        // spectrum block of 3
        const V t68 = t53 + t31;
        const V t69 = c[0] * t53;
        const V t70 = t31 - t69;
        const V t71 = c[8] * t46;
        const V t72 = c[9] * t47;
        const V t73 = t71 + t72;
        const V t74 = t70 - t73;
        const V t75 = t70 + t73;
        // complex block of 3
        const V t76 = t19 - t15;
        const V t77 = t18 + t14;
        const V t78 = t19 + t15;
        const V t79 = t18 - t14;
        const V t80 = t76 + t1;
        const V t81 = t77 + t0;
        const V t82 = c[0] * t76;
        const V t83 = t1 - t82;
        const V t84 = c[0] * t77;
        const V t85 = t0 - t84;
        const V t86 = c[1] * t78;
        const V t87 = c[1] * t79;
        const V t88 = t83 + t87;
        const V t89 = t85 - t86;
        const V t90 = t83 - t87;
        const V t91 = t85 + t86;
        // complex block of 3
        const V t92 = t25 - t9;
        const V t93 = t24 + t8;
        const V t94 = t25 + t9;
        const V t95 = t24 - t8;
        const V t96 = t92 + t7;
        const V t97 = t93 + t6;
        const V t98 = c[0] * t92;
        const V t99 = t7 - t98;
        const V t100 = c[0] * t93;
        const V t101 = t6 - t100;
        const V t102 = c[1] * t94;
        const V t103 = c[1] * t95;
        const V t104 = t99 + t103;
        const V t105 = t101 - t102;
        const V t106 = t99 - t103;
        const V t107 = t101 + t102;
        // complex block of 3
        const V t108 = t21 + t3;
        const V t109 = t20 + t2;
        const V t110 = t3 - t21;
        const V t111 = t20 - t2;
        const V t112 = t13 - t108;
        const V t113 = t109 + t12;
        const V t114 = c[0] * t108;
        const V t115 = t114 + t13;
        const V t116 = c[0] * t109;
        const V t117 = t12 - t116;
        const V t118 = c[1] * t110;
        const V t119 = c[1] * t111;
        const V t120 = t115 + t119;
        const V t121 = t117 - t118;
        const V t122 = t115 - t119;
        const V t123 = t117 + t118;
        // complex block of 3
        const V t124 = t96 + t112;
        const V t125 = t97 + t113;
        const V t126 = t96 - t112;
        const V t127 = t97 - t113;
        const V t128 = t124 + t80;
        const V t129 = t125 + t81;
        const V t130 = c[0] * t124;
        const V t131 = t80 - t130;
        const V t132 = c[0] * t125;
        const V t133 = t81 - t132;
        const V t134 = c[1] * t126;
        const V t135 = c[1] * t127;
        const V t136 = t131 + t135;
        const V t137 = t133 - t134;
        const V t138 = t131 - t135;
        const V t139 = t133 + t134;
        // complex block of 9
        const V t140 = c[4] * t105;
        const V t141 = c[5] * t104;
        const V t142 = t141 + t140;
        const V t143 = c[4] * t104;
        const V t144 = c[5] * t105;
        const V t145 = t144 - t143;
        const V t146 = c[2] * t121;
        const V t147 = c[3] * t120;
        const V t148 = t147 + t146;
        const V t149 = c[2] * t120;
        const V t150 = c[3] * t121;
        const V t151 = t150 - t149;
        // complex block of 3
        const V t152 = t142 + t148;
        const V t153 = t145 + t151;
        const V t154 = t142 - t148;
        const V t155 = t145 - t151;
        const V t156 = t152 + t88;
        const V t157 = t153 + t89;
        const V t158 = c[0] * t152;
        const V t159 = t88 - t158;
        const V t160 = c[0] * t153;
        const V t161 = t89 - t160;
        const V t162 = c[1] * t154;
        const V t163 = c[1] * t155;
        const V t164 = t159 + t163;
        const V t165 = t161 - t162;
        const V t166 = t159 - t163;
        const V t167 = t161 + t162;
        // complex block of 9
        const V t168 = c[2] * t107;
        const V t169 = c[3] * t106;
        const V t170 = t169 + t168;
        const V t171 = c[2] * t106;
        const V t172 = c[3] * t107;
        const V t173 = t172 - t171;
        const V t174 = c[10] * t123;
        const V t175 = c[11] * t122;
        const V t176 = t174 - t175;
        const V t177 = c[10] * t122;
        const V t178 = c[11] * t123;
        const V t179 = t178 + t177;
        // complex block of 3
        const V t180 = t170 + t176;
        const V t181 = t173 - t179;
        const V t182 = t170 - t176;
        const V t183 = t173 + t179;
        const V t184 = t180 + t90;
        const V t185 = t181 + t91;
        const V t186 = c[0] * t180;
        const V t187 = t90 - t186;
        const V t188 = c[0] * t181;
        const V t189 = t91 - t188;
        const V t190 = c[1] * t182;
        const V t191 = c[1] * t183;
        const V t192 = t187 + t191;
        const V t193 = t189 - t190;
        const V t194 = t187 - t191;
        const V t195 = t189 + t190;
        // spectrum block of 27
        const V t196 = c[12] * t156;
        const V t197 = c[13] * t157;
        const V t198 = t197 - t196;
        const V t199 = c[14] * t184;
        const V t200 = c[15] * t185;
        const V t201 = t200 - t199;
        const V t202 = c[4] * t136;
        const V t203 = c[5] * t137;
        const V t204 = t203 - t202;
        const V t205 = c[16] * t164;
        const V t206 = c[17] * t165;
        const V t207 = t206 - t205;
        const V t208 = c[18] * t192;
        const V t209 = c[19] * t193;
        const V t210 = t209 - t208;
        const V t211 = c[2] * t138;
        const V t212 = c[3] * t139;
        const V t213 = t212 - t211;
        const V t214 = c[20] * t166;
        const V t215 = c[21] * t167;
        const V t216 = t215 + t214;
        const V t217 = c[22] * t194;
        const V t218 = c[23] * t195;
        const V t219 = t218 + t217;
        // spectrum block of 3
        const V t220 = t129 + t54;
        io.out(0, t220);
        const V t221 = c[0] * t129;
        const V t222 = t54 - t221;
        const V t223 = c[1] * t128;
        const V t224 = t222 - t223;
        io.out(18, t224);
        const V t225 = t222 + t223;
        io.out(9, t225);
        // spectrum block of 3
        const V t226 = t198 + t60;
        io.out(26, t226);
        const V t227 = c[0] * t198;
        const V t228 = t60 - t227;
        const V t229 = c[24] * t156;
        const V t230 = c[25] * t157;
        const V t231 = t229 + t230;
        const V t232 = t228 - t231;
        io.out(17, t232);
        const V t233 = t228 + t231;
        io.out(8, t233);
        // spectrum block of 3
        const V t234 = t201 + t68;
        io.out(25, t234);
        const V t235 = c[0] * t201;
        const V t236 = t68 - t235;
        const V t237 = c[26] * t184;
        const V t238 = c[27] * t185;
        const V t239 = t237 + t238;
        const V t240 = t236 - t239;
        io.out(16, t240);
        const V t241 = t236 + t239;
        io.out(7, t241);
        // spectrum block of 3
        const V t242 = t204 + t58;
        io.out(24, t242);
        const V t243 = c[0] * t204;
        const V t244 = t58 - t243;
        const V t245 = c[6] * t136;
        const V t246 = c[7] * t137;
        const V t247 = t245 + t246;
        const V t248 = t244 - t247;
        io.out(15, t248);
        const V t249 = t244 + t247;
        io.out(6, t249);
        // spectrum block of 3
        const V t250 = t207 + t66;
        io.out(23, t250);
        const V t251 = c[0] * t207;
        const V t252 = t66 - t251;
        const V t253 = c[28] * t164;
        const V t254 = c[29] * t165;
        const V t255 = t253 + t254;
        const V t256 = t252 - t255;
        io.out(14, t256);
        const V t257 = t252 + t255;
        io.out(5, t257);
        // spectrum block of 3
        const V t258 = t210 + t74;
        io.out(22, t258);
        const V t259 = c[0] * t210;
        const V t260 = t74 - t259;
        const V t261 = c[30] * t192;
        const V t262 = c[31] * t193;
        const V t263 = t261 + t262;
        const V t264 = t260 - t263;
        io.out(13, t264);
        const V t265 = t260 + t263;
        io.out(4, t265);
        // spectrum block of 3
        const V t266 = t213 + t59;
        io.out(21, t266);
        const V t267 = c[0] * t213;
        const V t268 = t59 - t267;
        const V t269 = c[8] * t138;
        const V t270 = c[9] * t139;
        const V t271 = t269 + t270;
        const V t272 = t268 - t271;
        io.out(12, t272);
        const V t273 = t268 + t271;
        io.out(3, t273);
        // spectrum block of 3
        const V t274 = t67 - t216;
        io.out(20, t274);
        const V t275 = c[0] * t216;
        const V t276 = t275 + t67;
        const V t277 = c[32] * t167;
        const V t278 = c[33] * t166;
        const V t279 = t277 - t278;
        const V t280 = t276 - t279;
        io.out(11, t280);
        const V t281 = t276 + t279;
        io.out(2, t281);
        // spectrum block of 3
        const V t282 = t75 - t219;
        io.out(19, t282);
        const V t283 = c[0] * t219;
        const V t284 = t283 + t75;
        const V t285 = c[34] * t195;
        const V t286 = c[35] * t194;
        const V t287 = t285 - t286;
        const V t288 = t284 - t287;
        io.out(10, t288);
        const V t289 = t284 + t287;
        io.out(1, t289);
    }
};

}  // namespace zulg
