// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 25.
// Inverse DFT to 25 real points, twiddled 5, 5.
// 85 additions, 67 subtractions, 136 multiplications (161 with `scale`); 17 constants; 33 values alive at most.
#include "kernel/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<25> {
    static constexpr double inverseRoot = 0.2;  // 1/sqrt(25), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.30901699437494745;  // cos 2 pi 1/5
    static constexpr double c2 = 0.8090169943749475;  // -cos 2 pi 2/5
    static constexpr double c3 = 0.9510565162951535;  // sin 2 pi 1/5
    static constexpr double c4 = 0.5877852522924731;  // sin 2 pi 2/5
    static constexpr double c5 = 0.2486898871648548;  // -sin 2 pi 24/25
    static constexpr double c6 = 0.9685831611286311;  // cos 2 pi 24/25
    static constexpr double c7 = 0.48175367410171527;  // -sin 2 pi 23/25
    static constexpr double c8 = 0.8763066800438636;  // cos 2 pi 23/25
    static constexpr double c9 = 0.6845471059286887;  // -sin 2 pi 22/25
    static constexpr double c10 = 0.7289686274214116;  // cos 2 pi 22/25
    static constexpr double c11 = 0.8443279255020151;  // -sin 2 pi 21/25
    static constexpr double c12 = 0.5358267949789967;  // cos 2 pi 21/25
    static constexpr double c13 = 0.9980267284282716;  // -sin 2 pi 19/25
    static constexpr double c14 = 0.06279051952931337;  // cos 2 pi 19/25
    static constexpr double c15 = 0.9048270524660196;  // -sin 2 pi 17/25
    static constexpr double c16 = 0.42577929156507266;  // -cos 2 pi 17/25

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = c0 * x1r;
        const V x1i = io.im(1);
        const V t1 = c0 * x1i;
        const V x2r = io.re(2);
        const V t2 = c0 * x2r;
        const V x2i = io.im(2);
        const V t3 = c0 * x2i;
        const V x3r = io.re(3);
        const V t4 = c0 * x3r;
        const V x3i = io.im(3);
        const V t5 = c0 * x3i;
        const V x4r = io.re(4);
        const V t6 = c0 * x4r;
        const V x4i = io.im(4);
        const V t7 = c0 * x4i;
        const V x5r = io.re(5);
        const V t8 = c0 * x5r;
        const V x5i = io.im(5);
        const V t9 = c0 * x5i;
        const V x6r = io.re(6);
        const V t10 = c0 * x6r;
        const V x6i = io.im(6);
        const V t11 = c0 * x6i;
        const V x7r = io.re(7);
        const V t12 = c0 * x7r;
        const V x7i = io.im(7);
        const V t13 = c0 * x7i;
        const V x8r = io.re(8);
        const V t14 = c0 * x8r;
        const V x8i = io.im(8);
        const V t15 = c0 * x8i;
        const V x9r = io.re(9);
        const V t16 = c0 * x9r;
        const V x9i = io.im(9);
        const V t17 = c0 * x9i;
        const V x10r = io.re(10);
        const V t18 = c0 * x10r;
        const V x10i = io.im(10);
        const V t19 = c0 * x10i;
        const V x11r = io.re(11);
        const V t20 = c0 * x11r;
        const V x11i = io.im(11);
        const V t21 = c0 * x11i;
        const V x12r = io.re(12);
        const V t22 = c0 * x12r;
        const V x12i = io.im(12);
        const V t23 = c0 * x12i;
        // spectrum block of 5
        const V t24 = t8 + t18;
        const V x0r = io.re(0);
        const V t25 = t24 + x0r;
        const V t26 = c1 * t8;
        const V t27 = c2 * t18;
        const V t28 = t26 - t27;
        const V t29 = t28 + x0r;
        const V t30 = c3 * t9;
        const V t31 = c4 * t19;
        const V t32 = t30 + t31;
        const V t33 = t29 - t32;
        const V t34 = t29 + t32;
        const V t35 = c2 * t8;
        const V t36 = x0r - t35;
        const V t37 = c1 * t18;
        const V t38 = t36 + t37;
        const V t39 = c4 * t9;
        const V t40 = c3 * t19;
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
        const V t56 = c1 * t44;
        const V t57 = c2 * t48;
        const V t58 = t56 - t57;
        const V t59 = t58 + t1;
        const V t60 = c1 * t45;
        const V t61 = c2 * t49;
        const V t62 = t60 - t61;
        const V t63 = t62 + t0;
        const V t64 = c3 * t46;
        const V t65 = c4 * t50;
        const V t66 = t64 + t65;
        const V t67 = c3 * t47;
        const V t68 = c4 * t51;
        const V t69 = t67 - t68;
        const V t70 = t59 + t69;
        const V t71 = t63 - t66;
        const V t72 = t59 - t69;
        const V t73 = t63 + t66;
        const V t74 = c2 * t44;
        const V t75 = t1 - t74;
        const V t76 = c1 * t48;
        const V t77 = t75 + t76;
        const V t78 = c2 * t45;
        const V t79 = t0 - t78;
        const V t80 = c1 * t49;
        const V t81 = t79 + t80;
        const V t82 = c4 * t46;
        const V t83 = c3 * t50;
        const V t84 = t82 - t83;
        const V t85 = c4 * t47;
        const V t86 = c3 * t51;
        const V t87 = t85 + t86;
        const V t88 = t77 + t87;
        const V t89 = t81 - t84;
        const V t90 = t77 - t87;
        const V t91 = t81 + t84;
        // spectrum block of 25
        const V t92 = c5 * t70;
        const V t93 = c6 * t71;
        const V t94 = t93 - t92;
        const V t95 = c5 * t71;
        const V t96 = c6 * t70;
        const V t97 = t96 + t95;
        const V t98 = c7 * t88;
        const V t99 = c8 * t89;
        const V t100 = t99 - t98;
        const V t101 = c7 * t89;
        const V t102 = c8 * t88;
        const V t103 = t102 + t101;
        const V t104 = c9 * t90;
        const V t105 = c10 * t91;
        const V t106 = t105 - t104;
        const V t107 = c9 * t91;
        const V t108 = c10 * t90;
        const V t109 = t108 + t107;
        const V t110 = c11 * t72;
        const V t111 = c12 * t73;
        const V t112 = t111 - t110;
        const V t113 = c11 * t73;
        const V t114 = c12 * t72;
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
        const V t128 = c1 * t116;
        const V t129 = c2 * t120;
        const V t130 = t128 - t129;
        const V t131 = t130 + t3;
        const V t132 = c1 * t117;
        const V t133 = c2 * t121;
        const V t134 = t132 - t133;
        const V t135 = t134 + t2;
        const V t136 = c3 * t118;
        const V t137 = c4 * t122;
        const V t138 = t136 + t137;
        const V t139 = c3 * t119;
        const V t140 = c4 * t123;
        const V t141 = t139 - t140;
        const V t142 = t131 + t141;
        const V t143 = t135 - t138;
        const V t144 = t131 - t141;
        const V t145 = t135 + t138;
        const V t146 = c2 * t116;
        const V t147 = t3 - t146;
        const V t148 = c1 * t120;
        const V t149 = t147 + t148;
        const V t150 = c2 * t117;
        const V t151 = t2 - t150;
        const V t152 = c1 * t121;
        const V t153 = t151 + t152;
        const V t154 = c4 * t118;
        const V t155 = c3 * t122;
        const V t156 = t154 - t155;
        const V t157 = c4 * t119;
        const V t158 = c3 * t123;
        const V t159 = t157 + t158;
        const V t160 = t149 + t159;
        const V t161 = t153 - t156;
        const V t162 = t149 - t159;
        const V t163 = t153 + t156;
        // spectrum block of 25
        const V t164 = c7 * t142;
        const V t165 = c8 * t143;
        const V t166 = t165 - t164;
        const V t167 = c7 * t143;
        const V t168 = c8 * t142;
        const V t169 = t168 + t167;
        const V t170 = c11 * t160;
        const V t171 = c12 * t161;
        const V t172 = t171 - t170;
        const V t173 = c11 * t161;
        const V t174 = c12 * t160;
        const V t175 = t174 + t173;
        const V t176 = c13 * t162;
        const V t177 = c14 * t163;
        const V t178 = t177 - t176;
        const V t179 = c13 * t163;
        const V t180 = c14 * t162;
        const V t181 = t180 + t179;
        const V t182 = c15 * t144;
        const V t183 = c16 * t145;
        const V t184 = t183 + t182;
        const V t185 = c15 * t145;
        const V t186 = c16 * t144;
        const V t187 = t185 - t186;
        // spectrum block of 5
        const V t188 = t55 + t127;
        const V t189 = t188 + t25;
        io.out(0, t189);
        const V t190 = c1 * t55;
        const V t191 = c2 * t127;
        const V t192 = t190 - t191;
        const V t193 = t192 + t25;
        const V t194 = c3 * t54;
        const V t195 = c4 * t126;
        const V t196 = t194 + t195;
        const V t197 = t193 - t196;
        io.out(5, t197);
        const V t198 = t193 + t196;
        io.out(20, t198);
        const V t199 = c2 * t55;
        const V t200 = t25 - t199;
        const V t201 = c1 * t127;
        const V t202 = t200 + t201;
        const V t203 = c4 * t54;
        const V t204 = c3 * t126;
        const V t205 = t203 - t204;
        const V t206 = t202 - t205;
        io.out(10, t206);
        const V t207 = t202 + t205;
        io.out(15, t207);
        // spectrum block of 5
        const V t208 = t94 + t166;
        const V t209 = t208 + t33;
        io.out(1, t209);
        const V t210 = c1 * t94;
        const V t211 = c2 * t166;
        const V t212 = t210 - t211;
        const V t213 = t212 + t33;
        const V t214 = c3 * t97;
        const V t215 = c4 * t169;
        const V t216 = t214 + t215;
        const V t217 = t213 - t216;
        io.out(6, t217);
        const V t218 = t213 + t216;
        io.out(21, t218);
        const V t219 = c2 * t94;
        const V t220 = t33 - t219;
        const V t221 = c1 * t166;
        const V t222 = t220 + t221;
        const V t223 = c4 * t97;
        const V t224 = c3 * t169;
        const V t225 = t223 - t224;
        const V t226 = t222 - t225;
        io.out(11, t226);
        const V t227 = t222 + t225;
        io.out(16, t227);
        // spectrum block of 5
        const V t228 = t100 + t172;
        const V t229 = t228 + t42;
        io.out(2, t229);
        const V t230 = c1 * t100;
        const V t231 = c2 * t172;
        const V t232 = t230 - t231;
        const V t233 = t232 + t42;
        const V t234 = c3 * t103;
        const V t235 = c4 * t175;
        const V t236 = t234 + t235;
        const V t237 = t233 - t236;
        io.out(7, t237);
        const V t238 = t233 + t236;
        io.out(22, t238);
        const V t239 = c2 * t100;
        const V t240 = t42 - t239;
        const V t241 = c1 * t172;
        const V t242 = t240 + t241;
        const V t243 = c4 * t103;
        const V t244 = c3 * t175;
        const V t245 = t243 - t244;
        const V t246 = t242 - t245;
        io.out(12, t246);
        const V t247 = t242 + t245;
        io.out(17, t247);
        // spectrum block of 5
        const V t248 = t106 + t178;
        const V t249 = t248 + t43;
        io.out(3, t249);
        const V t250 = c1 * t106;
        const V t251 = c2 * t178;
        const V t252 = t250 - t251;
        const V t253 = t252 + t43;
        const V t254 = c3 * t109;
        const V t255 = c4 * t181;
        const V t256 = t254 + t255;
        const V t257 = t253 - t256;
        io.out(8, t257);
        const V t258 = t253 + t256;
        io.out(23, t258);
        const V t259 = c2 * t106;
        const V t260 = t43 - t259;
        const V t261 = c1 * t178;
        const V t262 = t260 + t261;
        const V t263 = c4 * t109;
        const V t264 = c3 * t181;
        const V t265 = t263 - t264;
        const V t266 = t262 - t265;
        io.out(13, t266);
        const V t267 = t262 + t265;
        io.out(18, t267);
        // spectrum block of 5
        const V t268 = t112 - t184;
        const V t269 = t268 + t34;
        io.out(4, t269);
        const V t270 = c1 * t112;
        const V t271 = c2 * t184;
        const V t272 = t270 + t271;
        const V t273 = t272 + t34;
        const V t274 = c3 * t115;
        const V t275 = c4 * t187;
        const V t276 = t274 + t275;
        const V t277 = t273 - t276;
        io.out(9, t277);
        const V t278 = t273 + t276;
        io.out(24, t278);
        const V t279 = c2 * t112;
        const V t280 = t34 - t279;
        const V t281 = c1 * t184;
        const V t282 = t280 - t281;
        const V t283 = c4 * t115;
        const V t284 = c3 * t187;
        const V t285 = t283 - t284;
        const V t286 = t282 - t285;
        io.out(14, t286);
        const V t287 = t282 + t285;
        io.out(19, t287);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 25, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 25, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 25, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 25, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 25, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 25, double>(const double*, double*, std::int32_t);

}  // namespace zulg
