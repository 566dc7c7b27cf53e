// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 36.
// Hartley transform of 36 points, form I.
// 116 additions, 116 subtractions, 72 multiplications (108 with `scale`); 10 constants; 39 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<36> {
    static constexpr int steps = 340;  // with `scale`
    static constexpr double inverseRoot = 0.16666666666666666;  // 1/sqrt(36), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.3420201433256687,  // c[2]: -sin 2 pi 5/9
        0.9396926207859084,  // c[3]: -cos 2 pi 5/9
        0.6427876096865394,  // c[4]: sin 2 pi 1/9
        0.766044443118978,  // c[5]: cos 2 pi 1/9
        0.29619813272602386,  // c[6]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[7]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 1/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // input stage
        const V x1 = io.in(1);
        const V x35 = io.in(35);
        const V t0 = x1 + x35;
        const V t1 = x1 - x35;
        const V x2 = io.in(2);
        const V x34 = io.in(34);
        const V t2 = x2 + x34;
        const V t3 = x2 - x34;
        const V x3 = io.in(3);
        const V x33 = io.in(33);
        const V t4 = x3 + x33;
        const V t5 = x3 - x33;
        const V x4 = io.in(4);
        const V x32 = io.in(32);
        const V t6 = x4 + x32;
        const V t7 = x4 - x32;
        const V x5 = io.in(5);
        const V x31 = io.in(31);
        const V t8 = x5 + x31;
        const V t9 = x5 - x31;
        const V x6 = io.in(6);
        const V x30 = io.in(30);
        const V t10 = x6 + x30;
        const V t11 = x6 - x30;
        const V x7 = io.in(7);
        const V x29 = io.in(29);
        const V t12 = x7 + x29;
        const V t13 = x7 - x29;
        const V x8 = io.in(8);
        const V x28 = io.in(28);
        const V t14 = x8 + x28;
        const V t15 = x8 - x28;
        const V x9 = io.in(9);
        const V x27 = io.in(27);
        const V t16 = x9 + x27;
        const V t17 = x9 - x27;
        const V x10 = io.in(10);
        const V x26 = io.in(26);
        const V t18 = x10 + x26;
        const V t19 = x10 - x26;
        const V x11 = io.in(11);
        const V x25 = io.in(25);
        const V t20 = x11 + x25;
        const V t21 = x11 - x25;
        const V x12 = io.in(12);
        const V x24 = io.in(24);
        const V t22 = x12 + x24;
        const V t23 = x12 - x24;
        const V x13 = io.in(13);
        const V x23 = io.in(23);
        const V t24 = x13 + x23;
        const V t25 = x13 - x23;
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t26 = x14 + x22;
        const V t27 = x14 - x22;
        const V x15 = io.in(15);
        const V x21 = io.in(21);
        const V t28 = x15 + x21;
        const V t29 = x15 - x21;
        const V x16 = io.in(16);
        const V x20 = io.in(20);
        const V t30 = x16 + x20;
        const V t31 = x16 - x20;
        const V x17 = io.in(17);
        const V x19 = io.in(19);
        const V t32 = x17 + x19;
        const V t33 = x17 - x19;
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x18 = io.in(18);
        const V t34 = x0 + x18;
        const V t35 = x0 - x18;
        // spectrum block of 2
        const V t36 = t34 + t16;
        const V t37 = t34 - t16;
        // spectrum block of 2
        const V t38 = t35 - t17;
        const V t39 = t35 + t17;
        // complex block of 2
        const V t40 = t7 - t27;
        const V t41 = t6 + t26;
        const V t42 = t7 + t27;
        const V t43 = t6 - t26;
        // complex block of 2
        const V t44 = t25 - t9;
        const V t45 = t24 + t8;
        const V t46 = t25 + t9;
        const V t47 = t24 - t8;
        // complex block of 2
        const V t48 = t40 + t44;
        const V t49 = t41 + t45;
        const V t50 = t40 - t44;
        const V t51 = t41 - t45;
        // complex block of 2
        const V t52 = t42 + t47;
        const V t53 = t43 - t46;
        const V t54 = t42 - t47;
        const V t55 = t43 + t46;
        // complex block of 2
        const V t56 = t15 - t19;
        const V t57 = t14 + t18;
        const V t58 = t15 + t19;
        const V t59 = t14 - t18;
        // complex block of 2
        const V t60 = t33 - t1;
        const V t61 = t32 + t0;
        const V t62 = t33 + t1;
        const V t63 = t32 - t0;
        // complex block of 2
        const V t64 = t56 + t60;
        const V t65 = t57 + t61;
        const V t66 = t56 - t60;
        const V t67 = t57 - t61;
        // complex block of 2
        const V t68 = t58 + t63;
        const V t69 = t59 - t62;
        const V t70 = t58 - t63;
        const V t71 = t59 + t62;
        // complex block of 2
        const V t72 = t23 - t11;
        const V t73 = t22 + t10;
        const V t74 = t23 + t11;
        const V t75 = t22 - t10;
        // complex block of 2
        const V t76 = t5 - t29;
        const V t77 = t28 + t4;
        const V t78 = t29 + t5;
        const V t79 = t28 - t4;
        // complex block of 2
        const V t80 = t72 + t76;
        const V t81 = t73 + t77;
        const V t82 = t72 - t76;
        const V t83 = t73 - t77;
        // complex block of 2
        const V t84 = t74 + t79;
        const V t85 = t75 + t78;
        const V t86 = t74 - t79;
        const V t87 = t75 - t78;
        // complex block of 2
        const V t88 = t31 - t3;
        const V t89 = t30 + t2;
        const V t90 = t31 + t3;
        const V t91 = t30 - t2;
        // complex block of 2
        const V t92 = t13 - t21;
        const V t93 = t20 + t12;
        const V t94 = t21 + t13;
        const V t95 = t20 - t12;
        // complex block of 2
        const V t96 = t88 + t92;
        const V t97 = t89 + t93;
        const V t98 = t88 - t92;
        const V t99 = t89 - t93;
        // complex block of 2
        const V t100 = t90 + t95;
        const V t101 = t91 + t94;
        const V t102 = t90 - t95;
        const V t103 = t91 - t94;
        // spectrum block of 3
        const V t104 = t81 + t36;
        const V t105 = c[0] * t81;
        const V t106 = t36 - t105;
        const V t107 = c[1] * t80;
        const V t108 = t106 - t107;
        const V t109 = t106 + t107;
        // complex block of 3
        const V t110 = t96 - t64;
        const V t111 = t97 + t65;
        const V t112 = t96 + t64;
        const V t113 = t97 - t65;
        const V t114 = t110 + t48;
        const V t115 = t111 + t49;
        const V t116 = c[0] * t110;
        const V t117 = t48 - t116;
        const V t118 = c[0] * t111;
        const V t119 = t49 - t118;
        const V t120 = c[1] * t112;
        const V t121 = c[1] * t113;
        const V t122 = t117 + t121;
        const V t123 = t119 - t120;
        const V t124 = t117 - t121;
        const V t125 = t119 + t120;
        // spectrum block of 9, multiplier 4
        const V t126 = c[2] * t122;
        const V t127 = c[3] * t123;
        const V t128 = t127 + t126;
        const V t129 = c[4] * t124;
        const V t130 = c[5] * t125;
        const V t131 = t130 + t129;
        // spectrum block of 3
        const V t132 = t115 + t104;
        io.out(0, t132);
        const V t133 = c[0] * t115;
        const V t134 = t104 - t133;
        const V t135 = c[1] * t114;
        const V t136 = t134 - t135;
        io.out(24, t136);
        const V t137 = t134 + t135;
        io.out(12, t137);
        // spectrum block of 3
        const V t138 = t108 - t128;
        io.out(32, t138);
        const V t139 = c[0] * t128;
        const V t140 = t139 + t108;
        const V t141 = c[6] * t123;
        const V t142 = c[7] * t122;
        const V t143 = t141 - t142;
        const V t144 = t140 - t143;
        io.out(20, t144);
        const V t145 = t140 + t143;
        io.out(8, t145);
        // spectrum block of 3
        const V t146 = t131 + t109;
        io.out(28, t146);
        const V t147 = c[0] * t131;
        const V t148 = t109 - t147;
        const V t149 = c[8] * t124;
        const V t150 = c[9] * t125;
        const V t151 = t149 - t150;
        const V t152 = t148 - t151;
        io.out(16, t152);
        const V t153 = t148 + t151;
        io.out(4, t153);
        // spectrum block of 3
        const V t154 = t85 + t38;
        const V t155 = c[0] * t85;
        const V t156 = t38 - t155;
        const V t157 = c[1] * t84;
        const V t158 = t156 - t157;
        const V t159 = t156 + t157;
        // complex block of 3
        const V t160 = t100 - t68;
        const V t161 = t101 + t69;
        const V t162 = t100 + t68;
        const V t163 = t101 - t69;
        const V t164 = t160 + t52;
        const V t165 = t161 + t53;
        const V t166 = c[0] * t160;
        const V t167 = t52 - t166;
        const V t168 = c[0] * t161;
        const V t169 = t53 - t168;
        const V t170 = c[1] * t162;
        const V t171 = c[1] * t163;
        const V t172 = t167 + t171;
        const V t173 = t169 - t170;
        const V t174 = t167 - t171;
        const V t175 = t169 + t170;
        // spectrum block of 9, multiplier 4
        const V t176 = c[2] * t172;
        const V t177 = c[3] * t173;
        const V t178 = t177 + t176;
        const V t179 = c[4] * t174;
        const V t180 = c[5] * t175;
        const V t181 = t180 + t179;
        // spectrum block of 3
        const V t182 = t165 + t154;
        io.out(27, t182);
        const V t183 = c[0] * t165;
        const V t184 = t154 - t183;
        const V t185 = c[1] * t164;
        const V t186 = t184 - t185;
        io.out(15, t186);
        const V t187 = t184 + t185;
        io.out(3, t187);
        // spectrum block of 3
        const V t188 = t158 - t178;
        io.out(23, t188);
        const V t189 = c[0] * t178;
        const V t190 = t189 + t158;
        const V t191 = c[6] * t173;
        const V t192 = c[7] * t172;
        const V t193 = t191 - t192;
        const V t194 = t190 - t193;
        io.out(11, t194);
        const V t195 = t190 + t193;
        io.out(35, t195);
        // spectrum block of 3
        const V t196 = t181 + t159;
        io.out(19, t196);
        const V t197 = c[0] * t181;
        const V t198 = t159 - t197;
        const V t199 = c[8] * t174;
        const V t200 = c[9] * t175;
        const V t201 = t199 - t200;
        const V t202 = t198 - t201;
        io.out(7, t202);
        const V t203 = t198 + t201;
        io.out(31, t203);
        // spectrum block of 3
        const V t204 = t83 + t37;
        const V t205 = c[0] * t83;
        const V t206 = t37 - t205;
        const V t207 = c[1] * t82;
        const V t208 = t206 - t207;
        const V t209 = t206 + t207;
        // complex block of 3
        const V t210 = t98 - t66;
        const V t211 = t99 + t67;
        const V t212 = t98 + t66;
        const V t213 = t99 - t67;
        const V t214 = t210 + t50;
        const V t215 = t211 + t51;
        const V t216 = c[0] * t210;
        const V t217 = t50 - t216;
        const V t218 = c[0] * t211;
        const V t219 = t51 - t218;
        const V t220 = c[1] * t212;
        const V t221 = c[1] * t213;
        const V t222 = t217 + t221;
        const V t223 = t219 - t220;
        const V t224 = t217 - t221;
        const V t225 = t219 + t220;
        // spectrum block of 9, multiplier 4
        const V t226 = c[2] * t222;
        const V t227 = c[3] * t223;
        const V t228 = t227 + t226;
        const V t229 = c[4] * t224;
        const V t230 = c[5] * t225;
        const V t231 = t230 + t229;
        // spectrum block of 3
        const V t232 = t215 + t204;
        io.out(18, t232);
        const V t233 = c[0] * t215;
        const V t234 = t204 - t233;
        const V t235 = c[1] * t214;
        const V t236 = t234 - t235;
        io.out(6, t236);
        const V t237 = t234 + t235;
        io.out(30, t237);
        // spectrum block of 3
        const V t238 = t208 - t228;
        io.out(14, t238);
        const V t239 = c[0] * t228;
        const V t240 = t239 + t208;
        const V t241 = c[6] * t223;
        const V t242 = c[7] * t222;
        const V t243 = t241 - t242;
        const V t244 = t240 - t243;
        io.out(2, t244);
        const V t245 = t240 + t243;
        io.out(26, t245);
        // spectrum block of 3
        const V t246 = t231 + t209;
        io.out(10, t246);
        const V t247 = c[0] * t231;
        const V t248 = t209 - t247;
        const V t249 = c[8] * t224;
        const V t250 = c[9] * t225;
        const V t251 = t249 - t250;
        const V t252 = t248 - t251;
        io.out(34, t252);
        const V t253 = t248 + t251;
        io.out(22, t253);
        // spectrum block of 3
        const V t254 = t87 + t39;
        const V t255 = c[0] * t87;
        const V t256 = t39 - t255;
        const V t257 = c[1] * t86;
        const V t258 = t256 - t257;
        const V t259 = t256 + t257;
        // complex block of 3
        const V t260 = t102 - t70;
        const V t261 = t103 + t71;
        const V t262 = t102 + t70;
        const V t263 = t103 - t71;
        const V t264 = t260 + t54;
        const V t265 = t261 + t55;
        const V t266 = c[0] * t260;
        const V t267 = t54 - t266;
        const V t268 = c[0] * t261;
        const V t269 = t55 - t268;
        const V t270 = c[1] * t262;
        const V t271 = c[1] * t263;
        const V t272 = t267 + t271;
        const V t273 = t269 - t270;
        const V t274 = t267 - t271;
        const V t275 = t269 + t270;
        // spectrum block of 9, multiplier 4
        const V t276 = c[2] * t272;
        const V t277 = c[3] * t273;
        const V t278 = t277 + t276;
        const V t279 = c[4] * t274;
        const V t280 = c[5] * t275;
        const V t281 = t280 + t279;
        // spectrum block of 3
        const V t282 = t265 + t254;
        io.out(9, t282);
        const V t283 = c[0] * t265;
        const V t284 = t254 - t283;
        const V t285 = c[1] * t264;
        const V t286 = t284 - t285;
        io.out(33, t286);
        const V t287 = t284 + t285;
        io.out(21, t287);
        // spectrum block of 3
        const V t288 = t258 - t278;
        io.out(5, t288);
        const V t289 = c[0] * t278;
        const V t290 = t289 + t258;
        const V t291 = c[6] * t273;
        const V t292 = c[7] * t272;
        const V t293 = t291 - t292;
        const V t294 = t290 - t293;
        io.out(29, t294);
        const V t295 = t290 + t293;
        io.out(17, t295);
        // spectrum block of 3
        const V t296 = t281 + t259;
        io.out(1, t296);
        const V t297 = c[0] * t281;
        const V t298 = t259 - t297;
        const V t299 = c[8] * t274;
        const V t300 = c[9] * t275;
        const V t301 = t299 - t300;
        const V t302 = t298 - t301;
        io.out(25, t302);
        const V t303 = t298 + t301;
        io.out(13, t303);
    }
};

}  // namespace zulg
