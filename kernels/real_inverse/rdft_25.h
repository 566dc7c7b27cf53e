// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 25.
// Inverse DFT to 25 real points, twiddled 5, 5.
// 85 additions, 67 subtractions, 136 multiplications (161 with `scale`); 17 constants; 33 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<25> {
    static constexpr int steps = 313;  // with `scale`
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 2/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: sin 2 pi 2/5
        0.48175367410171527,  // c[4]: -sin 2 pi 23/25
        0.8763066800438636,  // c[5]: cos 2 pi 23/25
        0.8443279255020151,  // c[6]: -sin 2 pi 21/25
        0.5358267949789967,  // c[7]: cos 2 pi 21/25
        0.2486898871648548,  // c[8]: -sin 2 pi 24/25
        0.9685831611286311,  // c[9]: cos 2 pi 24/25
        0.6845471059286887,  // c[10]: -sin 2 pi 22/25
        0.7289686274214116,  // c[11]: cos 2 pi 22/25
        0.9980267284282716,  // c[12]: -sin 2 pi 19/25
        0.06279051952931337,  // c[13]: cos 2 pi 19/25
        0.9048270524660196,  // c[14]: -sin 2 pi 17/25
        0.42577929156507266,  // c[15]: -cos 2 pi 17/25
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
        const V x9i = io.im(9);
        const V t17 = two * x9i;
        const V x10r = io.re(10);
        const V t18 = two * x10r;
        const V x10i = io.im(10);
        const V t19 = two * x10i;
        const V x11r = io.re(11);
        const V t20 = two * x11r;
        const V x11i = io.im(11);
        const V t21 = two * x11i;
        const V x12r = io.re(12);
        const V t22 = two * x12r;
        const V x12i = io.im(12);
        const V t23 = two * x12i;
        // spectrum block of 5
        const V t24 = t8 + t18;
        const V x0r = io.re(0);
        const V t25 = t24 + x0r;
        const V t26 = c[0] * t8;
        const V t27 = c[1] * t18;
        const V t28 = t26 - t27;
        const V t29 = t28 + x0r;
        const V t30 = c[2] * t9;
        const V t31 = c[3] * t19;
        const V t32 = t30 + t31;
        const V t33 = t29 - t32;
        const V t34 = t29 + t32;
        const V t35 = c[1] * t8;
        const V t36 = x0r - t35;
        const V t37 = c[0] * t18;
        const V t38 = t36 + t37;
        const V t39 = c[3] * t9;
        const V t40 = c[2] * t19;
        const V t41 = t39 - t40;
        const V t42 = t38 - t41;
        const V t43 = t38 + t41;
        // complex block of 5
        const V t44 = t11 - t7;
        const V t45 = t10 + t6;
        const V t46 = t11 + t7;
        const V t47 = t10 - t6;
        const V t48 = t21 - t17;
        const V t49 = t16 + t20;
        const V t50 = t17 + t21;
        const V t51 = t16 - t20;
        const V t52 = t44 + t48;
        const V t53 = t45 + t49;
        const V t54 = t52 + t1;
        const V t55 = t53 + t0;
        const V t56 = c[0] * t44;
        const V t57 = c[1] * t48;
        const V t58 = t56 - t57;
        const V t59 = t58 + t1;
        const V t60 = c[0] * t45;
        const V t61 = c[1] * t49;
        const V t62 = t60 - t61;
        const V t63 = t62 + t0;
        const V t64 = c[2] * t46;
        const V t65 = c[3] * t50;
        const V t66 = t64 + t65;
        const V t67 = c[2] * t47;
        const V t68 = c[3] * t51;
        const V t69 = t67 - t68;
        const V t70 = t59 + t69;
        const V t71 = t63 - t66;
        const V t72 = t59 - t69;
        const V t73 = t63 + t66;
        const V t74 = c[1] * t44;
        const V t75 = t1 - t74;
        const V t76 = c[0] * t48;
        const V t77 = t75 + t76;
        const V t78 = c[1] * t45;
        const V t79 = t0 - t78;
        const V t80 = c[0] * t49;
        const V t81 = t79 + t80;
        const V t82 = c[3] * t46;
        const V t83 = c[2] * t50;
        const V t84 = t82 - t83;
        const V t85 = c[3] * t47;
        const V t86 = c[2] * t51;
        const V t87 = t85 + t86;
        const V t88 = t77 + t87;
        const V t89 = t81 - t84;
        const V t90 = t77 - t87;
        const V t91 = t81 + t84;
        // spectrum block of 25
        const V t92 = c[8] * t70;
        const V t93 = c[9] * t71;
        const V t94 = t93 - t92;
        const V t95 = c[8] * t71;
        const V t96 = c[9] * t70;
        const V t97 = t96 + t95;
        const V t98 = c[4] * t88;
        const V t99 = c[5] * t89;
        const V t100 = t99 - t98;
        const V t101 = c[4] * t89;
        const V t102 = c[5] * t88;
        const V t103 = t102 + t101;
        const V t104 = c[10] * t90;
        const V t105 = c[11] * t91;
        const V t106 = t105 - t104;
        const V t107 = c[10] * t91;
        const V t108 = c[11] * t90;
        const V t109 = t108 + t107;
        const V t110 = c[6] * t72;
        const V t111 = c[7] * t73;
        const V t112 = t111 - t110;
        const V t113 = c[6] * t73;
        const V t114 = c[7] * t72;
        const V t115 = t114 + t113;
        // complex block of 5
        const V t116 = t13 - t5;
        const V t117 = t12 + t4;
        const V t118 = t13 + t5;
        const V t119 = t12 - t4;
        const V t120 = t23 - t15;
        const V t121 = t14 + t22;
        const V t122 = t15 + t23;
        const V t123 = t14 - t22;
        const V t124 = t116 + t120;
        const V t125 = t117 + t121;
        const V t126 = t124 + t3;
        const V t127 = t125 + t2;
        const V t128 = c[0] * t116;
        const V t129 = c[1] * t120;
        const V t130 = t128 - t129;
        const V t131 = t130 + t3;
        const V t132 = c[0] * t117;
        const V t133 = c[1] * t121;
        const V t134 = t132 - t133;
        const V t135 = t134 + t2;
        const V t136 = c[2] * t118;
        const V t137 = c[3] * t122;
        const V t138 = t136 + t137;
        const V t139 = c[2] * t119;
        const V t140 = c[3] * t123;
        const V t141 = t139 - t140;
        const V t142 = t131 + t141;
        const V t143 = t135 - t138;
        const V t144 = t131 - t141;
        const V t145 = t135 + t138;
        const V t146 = c[1] * t116;
        const V t147 = t3 - t146;
        const V t148 = c[0] * t120;
        const V t149 = t147 + t148;
        const V t150 = c[1] * t117;
        const V t151 = t2 - t150;
        const V t152 = c[0] * t121;
        const V t153 = t151 + t152;
        const V t154 = c[3] * t118;
        const V t155 = c[2] * t122;
        const V t156 = t154 - t155;
        const V t157 = c[3] * t119;
        const V t158 = c[2] * t123;
        const V t159 = t157 + t158;
        const V t160 = t149 + t159;
        const V t161 = t153 - t156;
        const V t162 = t149 - t159;
        const V t163 = t153 + t156;
        // spectrum block of 25
        const V t164 = c[4] * t142;
        const V t165 = c[5] * t143;
        const V t166 = t165 - t164;
        const V t167 = c[4] * t143;
        const V t168 = c[5] * t142;
        const V t169 = t168 + t167;
        const V t170 = c[6] * t160;
        const V t171 = c[7] * t161;
        const V t172 = t171 - t170;
        const V t173 = c[6] * t161;
        const V t174 = c[7] * t160;
        const V t175 = t174 + t173;
        const V t176 = c[12] * t162;
        const V t177 = c[13] * t163;
        const V t178 = t177 - t176;
        const V t179 = c[12] * t163;
        const V t180 = c[13] * t162;
        const V t181 = t180 + t179;
        const V t182 = c[14] * t144;
        const V t183 = c[15] * t145;
        const V t184 = t183 + t182;
        const V t185 = c[14] * t145;
        const V t186 = c[15] * t144;
        const V t187 = t185 - t186;
        // spectrum block of 5
        const V t188 = t55 + t127;
        const V t189 = t188 + t25;
        io.out(0, t189);
        const V t190 = c[0] * t55;
        const V t191 = c[1] * t127;
        const V t192 = t190 - t191;
        const V t193 = t192 + t25;
        const V t194 = c[2] * t54;
        const V t195 = c[3] * t126;
        const V t196 = t194 + t195;
        const V t197 = t193 - t196;
        io.out(5, t197);
        const V t198 = t193 + t196;
        io.out(20, t198);
        const V t199 = c[1] * t55;
        const V t200 = t25 - t199;
        const V t201 = c[0] * t127;
        const V t202 = t200 + t201;
        const V t203 = c[3] * t54;
        const V t204 = c[2] * t126;
        const V t205 = t203 - t204;
        const V t206 = t202 - t205;
        io.out(10, t206);
        const V t207 = t202 + t205;
        io.out(15, t207);
        // spectrum block of 5
        const V t208 = t94 + t166;
        const V t209 = t208 + t33;
        io.out(1, t209);
        const V t210 = c[0] * t94;
        const V t211 = c[1] * t166;
        const V t212 = t210 - t211;
        const V t213 = t212 + t33;
        const V t214 = c[2] * t97;
        const V t215 = c[3] * t169;
        const V t216 = t214 + t215;
        const V t217 = t213 - t216;
        io.out(6, t217);
        const V t218 = t213 + t216;
        io.out(21, t218);
        const V t219 = c[1] * t94;
        const V t220 = t33 - t219;
        const V t221 = c[0] * t166;
        const V t222 = t220 + t221;
        const V t223 = c[3] * t97;
        const V t224 = c[2] * t169;
        const V t225 = t223 - t224;
        const V t226 = t222 - t225;
        io.out(11, t226);
        const V t227 = t222 + t225;
        io.out(16, t227);
        // spectrum block of 5
        const V t228 = t100 + t172;
        const V t229 = t228 + t42;
        io.out(2, t229);
        const V t230 = c[0] * t100;
        const V t231 = c[1] * t172;
        const V t232 = t230 - t231;
        const V t233 = t232 + t42;
        const V t234 = c[2] * t103;
        const V t235 = c[3] * t175;
        const V t236 = t234 + t235;
        const V t237 = t233 - t236;
        io.out(7, t237);
        const V t238 = t233 + t236;
        io.out(22, t238);
        const V t239 = c[1] * t100;
        const V t240 = t42 - t239;
        const V t241 = c[0] * t172;
        const V t242 = t240 + t241;
        const V t243 = c[3] * t103;
        const V t244 = c[2] * t175;
        const V t245 = t243 - t244;
        const V t246 = t242 - t245;
        io.out(12, t246);
        const V t247 = t242 + t245;
        io.out(17, t247);
        // spectrum block of 5
        const V t248 = t106 + t178;
        const V t249 = t248 + t43;
        io.out(3, t249);
        const V t250 = c[0] * t106;
        const V t251 = c[1] * t178;
        const V t252 = t250 - t251;
        const V t253 = t252 + t43;
        const V t254 = c[2] * t109;
        const V t255 = c[3] * t181;
        const V t256 = t254 + t255;
        const V t257 = t253 - t256;
        io.out(8, t257);
        const V t258 = t253 + t256;
        io.out(23, t258);
        const V t259 = c[1] * t106;
        const V t260 = t43 - t259;
        const V t261 = c[0] * t178;
        const V t262 = t260 + t261;
        const V t263 = c[3] * t109;
        const V t264 = c[2] * t181;
        const V t265 = t263 - t264;
        const V t266 = t262 - t265;
        io.out(13, t266);
        const V t267 = t262 + t265;
        io.out(18, t267);
        // spectrum block of 5
        const V t268 = t112 - t184;
        const V t269 = t268 + t34;
        io.out(4, t269);
        const V t270 = c[0] * t112;
        const V t271 = c[1] * t184;
        const V t272 = t270 + t271;
        const V t273 = t272 + t34;
        const V t274 = c[2] * t115;
        const V t275 = c[3] * t187;
        const V t276 = t274 + t275;
        const V t277 = t273 - t276;
        io.out(9, t277);
        const V t278 = t273 + t276;
        io.out(24, t278);
        const V t279 = c[1] * t112;
        const V t280 = t34 - t279;
        const V t281 = c[0] * t184;
        const V t282 = t280 - t281;
        const V t283 = c[3] * t115;
        const V t284 = c[2] * t187;
        const V t285 = t283 - t284;
        const V t286 = t282 - t285;
        io.out(14, t286);
        const V t287 = t282 + t285;
        io.out(19, t287);
    }
};

}  // namespace zulg
