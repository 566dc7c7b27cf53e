// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 26.
// Hartley transform of 26 points, form F.
// 103 additions, 103 subtractions, 82 multiplications (108 with `scale`); 16 constants; 41 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<26> {
    static constexpr int steps = 314;  // with `scale`
    static constexpr double inverseRoot = 0.19611613513818404;  // 1/sqrt(26), for `scale`
    static constexpr double constants[] = {
        0.5,  // c[0]: -cos 2 pi 1/3
        0.8660254037844386,  // c[1]: sin 2 pi 1/3
        0.1741386011521359,  // c[2]: -P[3] of 13
        0.5751407294740031,  // c[3]: -Q[3] of 13
        0.5242266395265821,  // c[4]: P[2] of 13
        0.29376443202296976,  // c[5]: -Q[2] of 13
        0.42763404682657274,  // c[6]: P[4] of 13
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
        const ConstantsOf<Ports, HartleyGraph> c{};
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
        const V t31 = c[13] * t29;
        // real block of 2
        const V t32 = t17 - t23;
        // real block of 13, multiplier 2
        const V t33 = c[2] * t32;
        const V t34 = c[3] * t32;
        // real block of 2
        const V t35 = t4 - t10;
        // real block of 13, multiplier 2
        const V t36 = c[3] * t35;
        const V t37 = c[2] * t35;
        // complex block of 2
        const V t38 = t19 + t25;
        // complex block of 2
        const V t39 = t6 + t12;
        // complex block of 2
        const V t40 = t38 + t39;
        const V t41 = t38 - t39;
        // real block of 13, multiplier 2
        const V t42 = c[4] * t41;
        const V t43 = c[5] * t41;
        const V t44 = c[6] * t40;
        const V t45 = c[7] * t40;
        // complex block of 2
        const V t46 = t20 + t21;
        // complex block of 2
        const V t47 = t7 + t8;
        // complex block of 2
        const V t48 = t46 + t47;
        const V t49 = t47 - t46;
        // real block of 13, multiplier 2
        const V t50 = c[5] * t49;
        const V t51 = c[4] * t49;
        const V t52 = c[7] * t48;
        const V t53 = c[6] * t48;
        // complex block of 2
        const V t54 = t19 - t25;
        // complex block of 2
        const V t55 = t54 - t9;
        const V t56 = t54 + t9;
        // complex block of 2
        const V t57 = t6 - t12;
        // complex block of 2
        const V t58 = t22 + t57;
        const V t59 = t22 - t57;
        // real block of 13, multiplier 2
        const V t60 = c[8] * t59;
        const V t61 = c[9] * t56;
        const V t62 = t61 + t60;
        const V t63 = c[8] * t56;
        const V t64 = c[9] * t59;
        const V t65 = t64 - t63;
        const V t66 = c[10] * t58;
        const V t67 = c[11] * t55;
        const V t68 = t67 + t66;
        const V t69 = c[10] * t55;
        const V t70 = c[11] * t58;
        const V t71 = t69 - t70;
        // real block of 3
        const V x6 = io.in(6);
        const V x18 = io.in(18);
        const V t72 = x6 + x18;
        const V t73 = x6 - x18;
        // real block of 3
        const V x20 = io.in(20);
        const V x8 = io.in(8);
        const V t74 = x20 + x8;
        const V t75 = x20 - x8;
        // real block of 3
        const V x2 = io.in(2);
        const V t76 = t72 + x2;
        const V t77 = c[0] * t72;
        const V t78 = x2 - t77;
        const V t79 = c[1] * t73;
        // real block of 3
        const V t80 = c[1] * t75;
        // complex block of 2
        const V t81 = t80 - t79;
        // real block of 3
        const V x24 = io.in(24);
        const V t82 = t74 + x24;
        const V t83 = c[0] * t74;
        const V t84 = x24 - t83;
        // real block of 3
        const V x4 = io.in(4);
        const V x12 = io.in(12);
        const V t85 = x4 + x12;
        const V t86 = x4 - x12;
        // real block of 3
        const V x22 = io.in(22);
        const V x14 = io.in(14);
        const V t87 = x22 + x14;
        const V t88 = x22 - x14;
        const V x16 = io.in(16);
        const V t89 = t87 + x16;
        const V t90 = c[0] * t87;
        const V t91 = x16 - t90;
        const V t92 = c[1] * t88;
        // real block of 3
        const V t93 = c[1] * t86;
        // complex block of 2
        const V t94 = t93 - t92;
        // real block of 3
        const V x10 = io.in(10);
        const V t95 = t85 + x10;
        const V t96 = c[0] * t85;
        const V t97 = x10 - t96;
        // real block of 2
        const V t98 = t76 + t82;
        // real block of 2
        const V t99 = t89 + t95;
        // real block of 2
        const V t100 = t98 + t99;
        const V t101 = t98 - t99;
        // real block of 13, multiplier 2
        const V t102 = c[12] * t100;
        const V t103 = c[13] * t101;
        // real block of 2
        const V t104 = t76 - t82;
        // real block of 13, multiplier 2
        const V t105 = c[2] * t104;
        const V t106 = c[3] * t104;
        // real block of 2
        const V t107 = t89 - t95;
        // real block of 13, multiplier 2
        const V t108 = c[3] * t107;
        const V t109 = c[2] * t107;
        // complex block of 2
        const V t110 = t78 + t84;
        // complex block of 2
        const V t111 = t91 + t97;
        // complex block of 2
        const V t112 = t110 + t111;
        const V t113 = t110 - t111;
        // real block of 13, multiplier 2
        const V t114 = c[4] * t113;
        const V t115 = c[5] * t113;
        const V t116 = c[6] * t112;
        const V t117 = c[7] * t112;
        // complex block of 2
        const V t118 = t79 + t80;
        // complex block of 2
        const V t119 = t92 + t93;
        // complex block of 2
        const V t120 = t118 + t119;
        const V t121 = t119 - t118;
        // real block of 13, multiplier 2
        const V t122 = c[5] * t121;
        const V t123 = c[4] * t121;
        const V t124 = c[7] * t120;
        const V t125 = c[6] * t120;
        // complex block of 2
        const V t126 = t78 - t84;
        // complex block of 2
        const V t127 = t126 - t94;
        const V t128 = t126 + t94;
        // complex block of 2
        const V t129 = t91 - t97;
        // complex block of 2
        const V t130 = t81 + t129;
        const V t131 = t81 - t129;
        // real block of 13, multiplier 2
        const V t132 = c[8] * t131;
        const V t133 = c[9] * t128;
        const V t134 = t133 + t132;
        const V t135 = c[8] * t128;
        const V t136 = c[9] * t131;
        const V t137 = t136 - t135;
        const V t138 = c[10] * t130;
        const V t139 = c[11] * t127;
        const V t140 = t139 + t138;
        const V t141 = c[10] * t127;
        const V t142 = c[11] * t130;
        const V t143 = t141 - t142;
        const V x0 = io.in(0);
        const V t144 = x0 + t100;
        // real block of 13, multiplier 2
        const V x13 = io.in(13);
        const V t145 = x13 + t28;
        // real block of 2
        const V t146 = t144 + t145;
        io.out(0, t146);
        const V t147 = t144 - t145;
        io.out(13, t147);
        // real block of 13, multiplier 2
        const V t148 = x0 - t102;
        // spectrum block of 2
        const V t149 = t148 - t103;
        const V t150 = t148 + t103;
        // real block of 13, multiplier 2
        const V t151 = t114 - t122;
        const V t152 = t116 - t124;
        // complex block of 2
        const V t153 = t152 + t151;
        const V t154 = t152 - t151;
        // spectrum block of 3, multiplier 2
        const V t155 = t153 + t149;
        const V t156 = c[0] * t153;
        const V t157 = t149 - t156;
        // spectrum block of 3, multiplier 2
        const V t158 = t154 + t150;
        const V t159 = c[0] * t154;
        const V t160 = t150 - t159;
        // real block of 13, multiplier 2
        const V t161 = t123 + t115;
        const V t162 = t125 + t117;
        // complex block of 2
        const V t163 = t161 - t162;
        const V t164 = t162 + t161;
        // spectrum block of 3, multiplier 2
        const V t165 = c[1] * t163;
        // spectrum block of 3, multiplier 2
        const V t166 = c[1] * t164;
        // real block of 13, multiplier 2
        const V t167 = t108 - t105;
        const V t168 = t109 + t106;
        // complex block of 2
        const V t169 = t137 + t143;
        // spectrum block of 3, multiplier 2
        const V t170 = c[0] * t169;
        const V t171 = t169 - t168;
        const V t172 = t168 + t170;
        // complex block of 2
        const V t173 = t140 - t134;
        // spectrum block of 3, multiplier 2
        const V t174 = c[1] * t173;
        // complex block of 2
        const V t175 = t134 + t140;
        // mirrored skew block of 6
        const V t176 = c[0] * t175;
        // spectrum block of 3, multiplier 2
        const V t177 = c[14] * t175;
        // complex block of 2
        const V t178 = t137 - t143;
        // mirrored skew block of 6
        const V t179 = c[1] * t178;
        // spectrum block of 3, multiplier 2
        const V t180 = c[15] * t178;
        // mirrored skew block of 6
        const V t181 = t179 + t176;
        // spectrum block of 3, multiplier 2
        const V t182 = c[0] * t181;
        const V t183 = t180 - t177;
        // real block of 13, multiplier 2
        const V t184 = x13 - t30;
        // spectrum block of 2
        const V t185 = t184 - t31;
        const V t186 = t184 + t31;
        // real block of 13, multiplier 2
        const V t187 = t42 - t50;
        const V t188 = t44 - t52;
        // complex block of 2
        const V t189 = t188 + t187;
        const V t190 = t188 - t187;
        // spectrum block of 3, multiplier 2
        const V t191 = t189 + t185;
        const V t192 = c[0] * t189;
        const V t193 = t185 - t192;
        // spectrum block of 3, multiplier 2
        const V t194 = t190 + t186;
        const V t195 = c[0] * t190;
        const V t196 = t186 - t195;
        // real block of 13, multiplier 2
        const V t197 = t51 + t43;
        const V t198 = t53 + t45;
        // complex block of 2
        const V t199 = t197 - t198;
        const V t200 = t198 + t197;
        // spectrum block of 3, multiplier 2
        const V t201 = c[1] * t199;
        // spectrum block of 3, multiplier 2
        const V t202 = c[1] * t200;
        // real block of 13, multiplier 2
        const V t203 = t36 - t33;
        const V t204 = t37 + t34;
        // complex block of 2
        const V t205 = t65 + t71;
        // spectrum block of 3, multiplier 2
        const V t206 = c[0] * t205;
        const V t207 = t205 - t204;
        const V t208 = t204 + t206;
        // complex block of 2
        const V t209 = t68 - t62;
        // spectrum block of 3, multiplier 2
        const V t210 = c[1] * t209;
        // complex block of 2
        const V t211 = t62 + t68;
        // mirrored skew block of 6
        const V t212 = c[0] * t211;
        // spectrum block of 3, multiplier 2
        const V t213 = c[14] * t211;
        // complex block of 2
        const V t214 = t65 - t71;
        // mirrored skew block of 6
        const V t215 = c[1] * t214;
        // spectrum block of 3, multiplier 2
        const V t216 = c[15] * t214;
        // mirrored skew block of 6
        const V t217 = t215 + t212;
        // spectrum block of 3, multiplier 2
        const V t218 = c[0] * t217;
        const V t219 = t216 - t213;
        // spectrum block of 3, multiplier 2
        const V t220 = t157 - t165;
        // spectrum block of 3, multiplier 2
        const V t221 = t193 - t201;
        // complex block of 2
        const V t222 = t220 + t221;
        const V t223 = t220 - t221;
        // spectrum block of 3, multiplier 2
        const V t224 = t172 + t174;
        // spectrum block of 3, multiplier 2
        const V t225 = t208 + t210;
        // complex block of 2
        const V t226 = t224 + t225;
        const V t227 = t224 - t225;
        // output stage
        const V t228 = t223 + t227;
        io.out(5, t228);
        const V t229 = t223 - t227;
        io.out(21, t229);
        const V t230 = t222 - t226;
        io.out(8, t230);
        const V t231 = t222 + t226;
        io.out(18, t231);
        // spectrum block of 3, multiplier 2
        const V t232 = t157 + t165;
        // spectrum block of 3, multiplier 2
        const V t233 = t193 + t201;
        // complex block of 2
        const V t234 = t232 + t233;
        const V t235 = t232 - t233;
        // spectrum block of 3, multiplier 2
        const V t236 = t174 - t172;
        // spectrum block of 3, multiplier 2
        const V t237 = t210 - t208;
        // complex block of 2
        const V t238 = t236 + t237;
        const V t239 = t236 - t237;
        // output stage
        const V t240 = t234 - t238;
        io.out(6, t240);
        const V t241 = t234 + t238;
        io.out(20, t241);
        const V t242 = t235 + t239;
        io.out(7, t242);
        const V t243 = t235 - t239;
        io.out(19, t243);
        // spectrum block of 3, multiplier 2
        const V t244 = t160 + t166;
        // spectrum block of 3, multiplier 2
        const V t245 = t196 + t202;
        // complex block of 2
        const V t246 = t244 + t245;
        const V t247 = t244 - t245;
        // spectrum block of 3, multiplier 2
        const V t248 = t181 + t167;
        // spectrum block of 3, multiplier 2
        const V t249 = t217 + t203;
        // complex block of 2
        const V t250 = t248 + t249;
        const V t251 = t249 - t248;
        // output stage
        const V t252 = t247 + t251;
        io.out(1, t252);
        const V t253 = t247 - t251;
        io.out(25, t253);
        const V t254 = t246 + t250;
        io.out(12, t254);
        const V t255 = t246 - t250;
        io.out(14, t255);
        // spectrum block of 3, multiplier 2
        const V t256 = t160 - t166;
        // spectrum block of 3, multiplier 2
        const V t257 = t196 - t202;
        // complex block of 2
        const V t258 = t256 + t257;
        const V t259 = t256 - t257;
        // spectrum block of 3, multiplier 2
        const V t260 = t167 - t182;
        const V t261 = t260 + t183;
        const V t262 = t260 - t183;
        // spectrum block of 3, multiplier 2
        const V t263 = t203 - t218;
        const V t264 = t263 + t219;
        const V t265 = t263 - t219;
        // complex block of 2
        const V t266 = t158 + t194;
        const V t267 = t158 - t194;
        // complex block of 2
        const V t268 = t262 + t265;
        // output stage
        const V t269 = t258 + t268;
        io.out(4, t269);
        const V t270 = t258 - t268;
        io.out(22, t270);
        // complex block of 2
        const V t271 = t265 - t262;
        // output stage
        const V t272 = t259 + t271;
        io.out(9, t272);
        const V t273 = t259 - t271;
        io.out(17, t273);
        // complex block of 2
        const V t274 = t261 + t264;
        // output stage
        const V t275 = t266 + t274;
        io.out(10, t275);
        const V t276 = t266 - t274;
        io.out(16, t276);
        // complex block of 2
        const V t277 = t264 - t261;
        // output stage
        const V t278 = t267 + t277;
        io.out(3, t278);
        const V t279 = t267 - t277;
        io.out(23, t279);
        // complex block of 2
        const V t280 = t155 + t191;
        const V t281 = t171 + t207;
        // output stage
        const V t282 = t280 - t281;
        io.out(2, t282);
        const V t283 = t280 + t281;
        io.out(24, t283);
        // complex block of 2
        const V t284 = t155 - t191;
        const V t285 = t171 - t207;
        // output stage
        const V t286 = t284 + t285;
        io.out(11, t286);
        const V t287 = t284 - t285;
        io.out(15, t287);
    }
};

}  // namespace zulg
