// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 36.
// Hartley transform of 36 points, form I.
// 116 additions, 116 subtractions, 72 multiplications (108 with `scale`); 10 constants; 48 values alive at most.
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
        0.29619813272602386,  // c[4]: sin 2 pi 1/3 times -sin 2 pi 5/9
        0.8137976813493737,  // c[5]: sin 2 pi 1/3 times -cos 2 pi 5/9
        0.6427876096865394,  // c[6]: sin 2 pi 1/9
        0.766044443118978,  // c[7]: cos 2 pi 1/9
        0.6634139481689384,  // c[8]: sin 2 pi 1/3 times cos 2 pi 1/9
        0.5566703992264194,  // c[9]: sin 2 pi 1/3 times sin 2 pi 1/9
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // spectrum block of 2
        const V x0 = io.in(0);
        const V x18 = io.in(18);
        const V t0 = x0 + x18;
        const V t1 = x0 - x18;
        // input stage
        const V x9 = io.in(9);
        const V x27 = io.in(27);
        const V t2 = x9 + x27;
        const V t3 = x9 - x27;
        // spectrum block of 2
        const V t4 = t0 + t2;
        const V t5 = t0 - t2;
        // spectrum block of 2
        const V t6 = t1 - t3;
        const V t7 = t1 + t3;
        // input stage
        const V x1 = io.in(1);
        const V x35 = io.in(35);
        const V t8 = x1 + x35;
        const V t9 = x1 - x35;
        const V x8 = io.in(8);
        const V x28 = io.in(28);
        const V t10 = x8 + x28;
        const V t11 = x8 - x28;
        const V x10 = io.in(10);
        const V x26 = io.in(26);
        const V t12 = x10 + x26;
        const V t13 = x10 - x26;
        const V x17 = io.in(17);
        const V x19 = io.in(19);
        const V t14 = x17 + x19;
        const V t15 = x17 - x19;
        // complex block of 2
        const V t16 = t11 - t13;
        // complex block of 2
        const V t17 = t15 - t9;
        // complex block of 2
        const V t18 = t16 + t17;
        const V t19 = t16 - t17;
        // complex block of 2
        const V t20 = t10 + t12;
        // complex block of 2
        const V t21 = t14 + t8;
        // complex block of 2
        const V t22 = t20 + t21;
        const V t23 = t20 - t21;
        // complex block of 2
        const V t24 = t11 + t13;
        // complex block of 2
        const V t25 = t14 - t8;
        // complex block of 2
        const V t26 = t24 + t25;
        const V t27 = t24 - t25;
        // complex block of 2
        const V t28 = t10 - t12;
        // complex block of 2
        const V t29 = t15 + t9;
        // complex block of 2
        const V t30 = t28 - t29;
        const V t31 = t28 + t29;
        // input stage
        const V x2 = io.in(2);
        const V x34 = io.in(34);
        const V t32 = x2 + x34;
        const V t33 = x2 - x34;
        const V x7 = io.in(7);
        const V x29 = io.in(29);
        const V t34 = x7 + x29;
        const V t35 = x7 - x29;
        const V x11 = io.in(11);
        const V x25 = io.in(25);
        const V t36 = x11 + x25;
        const V t37 = x11 - x25;
        const V x16 = io.in(16);
        const V x20 = io.in(20);
        const V t38 = x16 + x20;
        const V t39 = x16 - x20;
        // complex block of 2
        const V t40 = t39 - t33;
        // complex block of 2
        const V t41 = t35 - t37;
        // complex block of 2
        const V t42 = t40 + t41;
        const V t43 = t40 - t41;
        // complex block of 2
        const V t44 = t38 + t32;
        // complex block of 2
        const V t45 = t36 + t34;
        // complex block of 2
        const V t46 = t44 + t45;
        const V t47 = t44 - t45;
        // complex block of 2
        const V t48 = t39 + t33;
        // complex block of 2
        const V t49 = t36 - t34;
        // complex block of 2
        const V t50 = t48 + t49;
        const V t51 = t48 - t49;
        // complex block of 2
        const V t52 = t38 - t32;
        // complex block of 2
        const V t53 = t37 + t35;
        // complex block of 2
        const V t54 = t52 + t53;
        const V t55 = t52 - t53;
        // input stage
        const V x4 = io.in(4);
        const V x32 = io.in(32);
        const V t56 = x4 + x32;
        const V t57 = x4 - x32;
        const V x14 = io.in(14);
        const V x22 = io.in(22);
        const V t58 = x14 + x22;
        const V t59 = x14 - x22;
        // complex block of 2
        const V t60 = t57 - t59;
        const V t61 = t56 + t58;
        const V t62 = t57 + t59;
        const V t63 = t56 - t58;
        // input stage
        const V x5 = io.in(5);
        const V x31 = io.in(31);
        const V t64 = x5 + x31;
        const V t65 = x5 - x31;
        const V x13 = io.in(13);
        const V x23 = io.in(23);
        const V t66 = x13 + x23;
        const V t67 = x13 - x23;
        // complex block of 2
        const V t68 = t67 - t65;
        const V t69 = t66 + t64;
        const V t70 = t67 + t65;
        const V t71 = t66 - t64;
        // complex block of 2
        const V t72 = t60 + t68;
        // complex block of 3
        const V t73 = t42 - t18;
        const V t74 = c[0] * t73;
        const V t75 = t72 - t74;
        // complex block of 2
        const V t76 = t61 + t69;
        // complex block of 3
        const V t77 = t46 + t22;
        const V t78 = c[0] * t77;
        const V t79 = t76 - t78;
        // complex block of 2
        const V t80 = t60 - t68;
        // complex block of 3
        const V t81 = t43 - t19;
        const V t82 = c[0] * t81;
        const V t83 = t80 - t82;
        // complex block of 2
        const V t84 = t61 - t69;
        // complex block of 3
        const V t85 = t47 + t23;
        const V t86 = c[0] * t85;
        const V t87 = t84 - t86;
        // complex block of 2
        const V t88 = t62 + t71;
        // complex block of 3
        const V t89 = t50 - t26;
        const V t90 = c[0] * t89;
        const V t91 = t88 - t90;
        // complex block of 2
        const V t92 = t63 - t70;
        // complex block of 3
        const V t93 = t54 + t30;
        const V t94 = c[0] * t93;
        const V t95 = t92 - t94;
        // complex block of 2
        const V t96 = t62 - t71;
        // complex block of 3
        const V t97 = t51 - t27;
        const V t98 = c[0] * t97;
        const V t99 = t96 - t98;
        // complex block of 2
        const V t100 = t63 + t70;
        // complex block of 3
        const V t101 = t55 + t31;
        const V t102 = c[0] * t101;
        const V t103 = t100 - t102;
        // complex block of 3
        const V t104 = t42 + t18;
        const V t105 = c[1] * t104;
        const V t106 = t46 - t22;
        const V t107 = c[1] * t106;
        // complex block of 3
        const V t108 = t50 + t26;
        const V t109 = c[1] * t108;
        const V t110 = t54 - t30;
        const V t111 = c[1] * t110;
        // complex block of 3
        const V t112 = t43 + t19;
        const V t113 = c[1] * t112;
        const V t114 = t47 - t23;
        const V t115 = c[1] * t114;
        // complex block of 3
        const V t116 = t51 + t27;
        const V t117 = c[1] * t116;
        const V t118 = t55 - t31;
        const V t119 = c[1] * t118;
        // input stage
        const V x3 = io.in(3);
        const V x33 = io.in(33);
        const V t120 = x3 + x33;
        const V t121 = x3 - x33;
        const V x15 = io.in(15);
        const V x21 = io.in(21);
        const V t122 = x15 + x21;
        const V t123 = x15 - x21;
        // complex block of 2
        const V t124 = t122 + t120;
        const V t125 = t123 + t121;
        // input stage
        const V x6 = io.in(6);
        const V x30 = io.in(30);
        const V t126 = x6 + x30;
        const V x12 = io.in(12);
        const V x24 = io.in(24);
        const V t127 = x12 + x24;
        const V t128 = x6 - x30;
        const V t129 = x12 - x24;
        // complex block of 2
        const V t130 = t127 + t126;
        const V t131 = t127 - t126;
        const V t132 = t129 - t128;
        // complex block of 2
        const V t133 = t121 - t123;
        // complex block of 2
        const V t134 = t132 + t133;
        const V t135 = t132 - t133;
        // complex block of 2
        const V t136 = t129 + t128;
        // complex block of 2
        const V t137 = t122 - t120;
        // complex block of 2
        const V t138 = t136 + t137;
        const V t139 = t136 - t137;
        // complex block of 2
        const V t140 = t130 + t124;
        // spectrum block of 3
        const V t141 = c[0] * t140;
        // complex block of 2
        const V t142 = t130 - t124;
        // spectrum block of 3
        const V t143 = c[0] * t142;
        // complex block of 2
        const V t144 = t131 + t125;
        // spectrum block of 3
        const V t145 = c[0] * t144;
        // complex block of 2
        const V t146 = t131 - t125;
        // spectrum block of 3
        const V t147 = c[0] * t146;
        // spectrum block of 3
        const V t148 = t140 + t4;
        // complex block of 3
        const V t149 = t73 + t72;
        // spectrum block of 3
        const V t150 = c[1] * t149;
        // complex block of 3
        const V t151 = t77 + t76;
        // spectrum block of 3
        const V t152 = c[0] * t151;
        const V t153 = t151 + t148;
        io.out(0, t153);
        const V t154 = t148 - t152;
        const V t155 = t154 - t150;
        io.out(24, t155);
        const V t156 = t154 + t150;
        io.out(12, t156);
        // spectrum block of 3
        const V t157 = t4 - t141;
        const V t158 = c[1] * t134;
        const V t159 = t157 - t158;
        const V t160 = t157 + t158;
        // complex block of 3
        const V t161 = t75 + t107;
        // spectrum block of 9, multiplier 4
        const V t162 = c[2] * t161;
        // complex block of 3
        const V t163 = t79 - t105;
        // spectrum block of 9, multiplier 4
        const V t164 = c[3] * t163;
        const V t165 = t164 + t162;
        // spectrum block of 3
        const V t166 = c[4] * t163;
        const V t167 = c[5] * t161;
        // complex block of 3
        const V t168 = t75 - t107;
        // spectrum block of 9, multiplier 4
        const V t169 = c[6] * t168;
        // complex block of 3
        const V t170 = t79 + t105;
        // spectrum block of 9, multiplier 4
        const V t171 = c[7] * t170;
        const V t172 = t171 + t169;
        // spectrum block of 3
        const V t173 = c[8] * t168;
        const V t174 = c[9] * t170;
        // spectrum block of 3
        const V t175 = t159 - t165;
        io.out(32, t175);
        const V t176 = c[0] * t165;
        const V t177 = t176 + t159;
        const V t178 = t166 - t167;
        const V t179 = t177 - t178;
        io.out(20, t179);
        const V t180 = t177 + t178;
        io.out(8, t180);
        // spectrum block of 3
        const V t181 = t172 + t160;
        io.out(28, t181);
        const V t182 = c[0] * t172;
        const V t183 = t160 - t182;
        const V t184 = t173 - t174;
        const V t185 = t183 - t184;
        io.out(16, t185);
        const V t186 = t183 + t184;
        io.out(4, t186);
        // spectrum block of 3
        const V t187 = t144 + t6;
        // complex block of 3
        const V t188 = t89 + t88;
        // spectrum block of 3
        const V t189 = c[1] * t188;
        // complex block of 3
        const V t190 = t93 + t92;
        // spectrum block of 3
        const V t191 = c[0] * t190;
        const V t192 = t190 + t187;
        io.out(27, t192);
        const V t193 = t187 - t191;
        const V t194 = t193 - t189;
        io.out(15, t194);
        const V t195 = t193 + t189;
        io.out(3, t195);
        // spectrum block of 3
        const V t196 = t6 - t145;
        const V t197 = c[1] * t138;
        const V t198 = t196 - t197;
        const V t199 = t196 + t197;
        // complex block of 3
        const V t200 = t91 + t111;
        // spectrum block of 9, multiplier 4
        const V t201 = c[2] * t200;
        // complex block of 3
        const V t202 = t95 - t109;
        // spectrum block of 9, multiplier 4
        const V t203 = c[3] * t202;
        const V t204 = t203 + t201;
        // spectrum block of 3
        const V t205 = c[4] * t202;
        const V t206 = c[5] * t200;
        // complex block of 3
        const V t207 = t91 - t111;
        // spectrum block of 9, multiplier 4
        const V t208 = c[6] * t207;
        // complex block of 3
        const V t209 = t95 + t109;
        // spectrum block of 9, multiplier 4
        const V t210 = c[7] * t209;
        const V t211 = t210 + t208;
        // spectrum block of 3
        const V t212 = c[8] * t207;
        const V t213 = c[9] * t209;
        // spectrum block of 3
        const V t214 = t198 - t204;
        io.out(23, t214);
        const V t215 = c[0] * t204;
        const V t216 = t215 + t198;
        const V t217 = t205 - t206;
        const V t218 = t216 - t217;
        io.out(11, t218);
        const V t219 = t216 + t217;
        io.out(35, t219);
        // spectrum block of 3
        const V t220 = t211 + t199;
        io.out(19, t220);
        const V t221 = c[0] * t211;
        const V t222 = t199 - t221;
        const V t223 = t212 - t213;
        const V t224 = t222 - t223;
        io.out(7, t224);
        const V t225 = t222 + t223;
        io.out(31, t225);
        // spectrum block of 3
        const V t226 = t142 + t5;
        // complex block of 3
        const V t227 = t81 + t80;
        // spectrum block of 3
        const V t228 = c[1] * t227;
        // complex block of 3
        const V t229 = t85 + t84;
        // spectrum block of 3
        const V t230 = c[0] * t229;
        const V t231 = t229 + t226;
        io.out(18, t231);
        const V t232 = t226 - t230;
        const V t233 = t232 - t228;
        io.out(6, t233);
        const V t234 = t232 + t228;
        io.out(30, t234);
        // spectrum block of 3
        const V t235 = t5 - t143;
        const V t236 = c[1] * t135;
        const V t237 = t235 - t236;
        const V t238 = t235 + t236;
        // complex block of 3
        const V t239 = t83 + t115;
        // spectrum block of 9, multiplier 4
        const V t240 = c[2] * t239;
        // complex block of 3
        const V t241 = t87 - t113;
        // spectrum block of 9, multiplier 4
        const V t242 = c[3] * t241;
        const V t243 = t242 + t240;
        // spectrum block of 3
        const V t244 = c[4] * t241;
        const V t245 = c[5] * t239;
        // complex block of 3
        const V t246 = t83 - t115;
        // spectrum block of 9, multiplier 4
        const V t247 = c[6] * t246;
        // complex block of 3
        const V t248 = t87 + t113;
        // spectrum block of 9, multiplier 4
        const V t249 = c[7] * t248;
        const V t250 = t249 + t247;
        // spectrum block of 3
        const V t251 = c[8] * t246;
        const V t252 = c[9] * t248;
        // spectrum block of 3
        const V t253 = t237 - t243;
        io.out(14, t253);
        const V t254 = c[0] * t243;
        const V t255 = t254 + t237;
        const V t256 = t244 - t245;
        const V t257 = t255 - t256;
        io.out(2, t257);
        const V t258 = t255 + t256;
        io.out(26, t258);
        // spectrum block of 3
        const V t259 = t250 + t238;
        io.out(10, t259);
        const V t260 = c[0] * t250;
        const V t261 = t238 - t260;
        const V t262 = t251 - t252;
        const V t263 = t261 - t262;
        io.out(34, t263);
        const V t264 = t261 + t262;
        io.out(22, t264);
        // spectrum block of 3
        const V t265 = t146 + t7;
        // complex block of 3
        const V t266 = t97 + t96;
        // spectrum block of 3
        const V t267 = c[1] * t266;
        // complex block of 3
        const V t268 = t101 + t100;
        // spectrum block of 3
        const V t269 = c[0] * t268;
        const V t270 = t268 + t265;
        io.out(9, t270);
        const V t271 = t265 - t269;
        const V t272 = t271 - t267;
        io.out(33, t272);
        const V t273 = t271 + t267;
        io.out(21, t273);
        // spectrum block of 3
        const V t274 = t7 - t147;
        const V t275 = c[1] * t139;
        const V t276 = t274 - t275;
        const V t277 = t274 + t275;
        // complex block of 3
        const V t278 = t99 + t119;
        // spectrum block of 9, multiplier 4
        const V t279 = c[2] * t278;
        // complex block of 3
        const V t280 = t103 - t117;
        // spectrum block of 9, multiplier 4
        const V t281 = c[3] * t280;
        const V t282 = t281 + t279;
        // spectrum block of 3
        const V t283 = c[4] * t280;
        const V t284 = c[5] * t278;
        // complex block of 3
        const V t285 = t99 - t119;
        // spectrum block of 9, multiplier 4
        const V t286 = c[6] * t285;
        // complex block of 3
        const V t287 = t103 + t117;
        // spectrum block of 9, multiplier 4
        const V t288 = c[7] * t287;
        const V t289 = t288 + t286;
        // spectrum block of 3
        const V t290 = c[8] * t285;
        const V t291 = c[9] * t287;
        // spectrum block of 3
        const V t292 = t276 - t282;
        io.out(5, t292);
        const V t293 = c[0] * t282;
        const V t294 = t293 + t276;
        const V t295 = t283 - t284;
        const V t296 = t294 - t295;
        io.out(29, t296);
        const V t297 = t294 + t295;
        io.out(17, t297);
        // spectrum block of 3
        const V t298 = t289 + t277;
        io.out(1, t298);
        const V t299 = c[0] * t289;
        const V t300 = t277 - t299;
        const V t301 = t290 - t291;
        const V t302 = t300 - t301;
        io.out(25, t302);
        const V t303 = t300 + t301;
        io.out(13, t303);
    }
};

}  // namespace zulg
