// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 22.
// Inverse DFT to 22 real points, prime-factor 11, 2.
// 84 additions, 74 subtractions, 120 multiplications (142 with `scale`); 15 constants; 27 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<22> {
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.30901699437494745;  // cos 2 pi 1/5
    static constexpr double c2 = 0.8090169943749475;  // -cos 2 pi 3/5
    static constexpr double c3 = 0.9510565162951535;  // sin 2 pi 1/5
    static constexpr double c4 = 0.5877852522924731;  // -sin 2 pi 3/5
    static constexpr double c5 = 0.1;  // 1/10
    static constexpr double c6 = 0.21879791731559586;  // P[1] of 11
    static constexpr double c7 = 0.6262008235209833;  // -Q[1] of 11
    static constexpr double c8 = 0.3770255864361907;  // -Q[2] of 11
    static constexpr double c9 = 0.5457579199356125;  // P[2] of 11
    static constexpr double c10 = 0.24831391555962465;  // -P[3] of 11
    static constexpr double c11 = 0.6150936508690751;  // -Q[3] of 11
    static constexpr double c12 = 0.6626305969383026;  // -Q[4] of 11
    static constexpr double c13 = 0.030342906933726127;  // -P[4] of 11
    static constexpr double c14 = 0.33166247903553997;  // beta of 11

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
        // real block of 5
        const V t20 = t6 + t18;
        const V t21 = t6 - t18;
        const V t22 = t10 + t14;
        const V t23 = t10 - t14;
        const V t24 = t20 + t22;
        const V t25 = t24 + t2;
        const V t26 = c1 * t20;
        const V t27 = c2 * t22;
        const V t28 = t26 - t27;
        const V t29 = t28 + t2;
        const V t30 = c3 * t21;
        const V t31 = c4 * t23;
        const V t32 = t31 - t30;
        const V t33 = c2 * t20;
        const V t34 = t2 - t33;
        const V t35 = c1 * t22;
        const V t36 = t34 + t35;
        const V t37 = c4 * t21;
        const V t38 = c3 * t23;
        const V t39 = t37 + t38;
        // real block of 5
        const V t40 = t19 - t7;
        const V t41 = t7 + t19;
        const V t42 = t11 + t15;
        const V t43 = t11 - t15;
        const V t44 = t40 + t42;
        const V t45 = t44 + t3;
        const V t46 = c1 * t40;
        const V t47 = c2 * t42;
        const V t48 = t46 - t47;
        const V t49 = t48 + t3;
        const V t50 = c3 * t41;
        const V t51 = c4 * t43;
        const V t52 = t50 + t51;
        const V t53 = c2 * t40;
        const V t54 = t3 - t53;
        const V t55 = c1 * t42;
        const V t56 = t54 + t55;
        const V t57 = c4 * t41;
        const V t58 = c3 * t43;
        const V t59 = t57 - t58;
        // spectrum block of 11, multiplier 2
        const V t60 = c5 * t25;
        const V x0r = io.re(0);
        const V t61 = x0r - t60;
        const V t62 = c6 * t59;
        const V t63 = c7 * t56;
        const V t64 = t62 - t63;
        const V t65 = c6 * t56;
        const V t66 = c7 * t59;
        const V t67 = t66 + t65;
        const V t68 = c8 * t32;
        const V t69 = c9 * t29;
        const V t70 = t69 + t68;
        const V t71 = c8 * t29;
        const V t72 = c9 * t32;
        const V t73 = t72 - t71;
        const V t74 = c10 * t52;
        const V t75 = c11 * t49;
        const V t76 = t75 + t74;
        const V t77 = c10 * t49;
        const V t78 = c11 * t52;
        const V t79 = t78 - t77;
        const V t80 = c12 * t39;
        const V t81 = c13 * t36;
        const V t82 = t81 + t80;
        const V t83 = c12 * t36;
        const V t84 = c13 * t39;
        const V t85 = t84 - t83;
        const V t86 = c14 * t45;
        // spectrum block of 2
        const V t87 = t61 + t86;
        const V t88 = t61 - t86;
        // complex block of 2
        const V t89 = t73 - t79;
        const V t90 = t70 - t76;
        const V t91 = t73 + t79;
        const V t92 = t70 + t76;
        // complex block of 2
        const V t93 = t85 - t67;
        const V t94 = t64 - t82;
        const V t95 = t85 + t67;
        const V t96 = t82 + t64;
        // spectrum block of 5, multiplier 2
        const V t97 = t90 + t94;
        const V t98 = t97 + t87;
        const V t99 = c1 * t90;
        const V t100 = c2 * t94;
        const V t101 = t99 - t100;
        const V t102 = t101 + t87;
        const V t103 = c3 * t89;
        const V t104 = c4 * t93;
        const V t105 = t103 + t104;
        const V t106 = t102 - t105;
        const V t107 = t102 + t105;
        const V t108 = c2 * t90;
        const V t109 = t87 - t108;
        const V t110 = c1 * t94;
        const V t111 = t109 + t110;
        const V t112 = c4 * t89;
        const V t113 = c3 * t93;
        const V t114 = t112 - t113;
        const V t115 = t111 - t114;
        const V t116 = t111 + t114;
        // spectrum block of 5, multiplier 2
        const V t117 = t92 - t96;
        const V t118 = t117 + t88;
        const V t119 = c1 * t92;
        const V t120 = c2 * t96;
        const V t121 = t119 + t120;
        const V t122 = t121 + t88;
        const V t123 = c3 * t91;
        const V t124 = c4 * t95;
        const V t125 = t123 + t124;
        const V t126 = t122 - t125;
        const V t127 = t122 + t125;
        const V t128 = c2 * t92;
        const V t129 = t88 - t128;
        const V t130 = c1 * t96;
        const V t131 = t129 - t130;
        const V t132 = c4 * t91;
        const V t133 = c3 * t95;
        const V t134 = t132 - t133;
        const V t135 = t131 - t134;
        const V t136 = t131 + t134;
        // spectrum block of 11, multiplier 2
        const V t137 = x0r + t25;
        // real block of 5
        const V t138 = t12 + t0;
        const V t139 = t12 - t0;
        const V t140 = t8 + t4;
        const V t141 = t8 - t4;
        const V t142 = t138 + t140;
        const V t143 = t142 + t16;
        const V t144 = c1 * t138;
        const V t145 = c2 * t140;
        const V t146 = t144 - t145;
        const V t147 = t146 + t16;
        const V t148 = c3 * t139;
        const V t149 = c4 * t141;
        const V t150 = t149 - t148;
        const V t151 = c2 * t138;
        const V t152 = t16 - t151;
        const V t153 = c1 * t140;
        const V t154 = t152 + t153;
        const V t155 = c4 * t139;
        const V t156 = c3 * t141;
        const V t157 = t155 + t156;
        // real block of 5
        const V t158 = t13 - t1;
        const V t159 = t13 + t1;
        const V t160 = t9 + t5;
        const V t161 = t5 - t9;
        const V t162 = t158 - t160;
        const V t163 = t162 - t17;
        const V t164 = c1 * t158;
        const V t165 = c2 * t160;
        const V t166 = t164 + t165;
        const V t167 = t166 - t17;
        const V t168 = c3 * t159;
        const V t169 = c4 * t161;
        const V t170 = t169 - t168;
        const V t171 = c2 * t158;
        const V t172 = t17 + t171;
        const V t173 = c1 * t160;
        const V t174 = t172 + t173;
        const V t175 = c4 * t159;
        const V t176 = c3 * t161;
        const V t177 = t175 + t176;
        // spectrum block of 11, multiplier 2
        const V t178 = c5 * t143;
        const V x11r = io.re(11);
        const V t179 = x11r - t178;
        const V t180 = c6 * t177;
        const V t181 = c7 * t174;
        const V t182 = t181 - t180;
        const V t183 = c6 * t174;
        const V t184 = c7 * t177;
        const V t185 = t184 + t183;
        const V t186 = c8 * t150;
        const V t187 = c9 * t147;
        const V t188 = t187 + t186;
        const V t189 = c8 * t147;
        const V t190 = c9 * t150;
        const V t191 = t190 - t189;
        const V t192 = c10 * t170;
        const V t193 = c11 * t167;
        const V t194 = t193 + t192;
        const V t195 = c10 * t167;
        const V t196 = c11 * t170;
        const V t197 = t196 - t195;
        const V t198 = c12 * t157;
        const V t199 = c13 * t154;
        const V t200 = t199 + t198;
        const V t201 = c12 * t154;
        const V t202 = c13 * t157;
        const V t203 = t202 - t201;
        const V t204 = c14 * t163;
        // spectrum block of 2
        const V t205 = t179 + t204;
        const V t206 = t179 - t204;
        // complex block of 2
        const V t207 = t191 - t197;
        const V t208 = t188 - t194;
        const V t209 = t191 + t197;
        const V t210 = t188 + t194;
        // complex block of 2
        const V t211 = t203 + t185;
        const V t212 = t182 - t200;
        const V t213 = t203 - t185;
        const V t214 = t200 + t182;
        // spectrum block of 5, multiplier 2
        const V t215 = t208 + t212;
        const V t216 = t215 + t205;
        const V t217 = c1 * t208;
        const V t218 = c2 * t212;
        const V t219 = t217 - t218;
        const V t220 = t219 + t205;
        const V t221 = c3 * t207;
        const V t222 = c4 * t211;
        const V t223 = t221 + t222;
        const V t224 = t220 - t223;
        const V t225 = t220 + t223;
        const V t226 = c2 * t208;
        const V t227 = t205 - t226;
        const V t228 = c1 * t212;
        const V t229 = t227 + t228;
        const V t230 = c4 * t207;
        const V t231 = c3 * t211;
        const V t232 = t230 - t231;
        const V t233 = t229 - t232;
        const V t234 = t229 + t232;
        // spectrum block of 5, multiplier 2
        const V t235 = t210 - t214;
        const V t236 = t235 + t206;
        const V t237 = c1 * t210;
        const V t238 = c2 * t214;
        const V t239 = t237 + t238;
        const V t240 = t239 + t206;
        const V t241 = c3 * t209;
        const V t242 = c4 * t213;
        const V t243 = t241 + t242;
        const V t244 = t240 - t243;
        const V t245 = t240 + t243;
        const V t246 = c2 * t210;
        const V t247 = t206 - t246;
        const V t248 = c1 * t214;
        const V t249 = t247 - t248;
        const V t250 = c4 * t209;
        const V t251 = c3 * t213;
        const V t252 = t250 - t251;
        const V t253 = t249 - t252;
        const V t254 = t249 + t252;
        // spectrum block of 11, multiplier 2
        const V t255 = x11r + t143;
        // spectrum block of 2
        const V t256 = t137 + t255;
        io.out(0, t256);
        const V t257 = t137 - t255;
        io.out(11, t257);
        // spectrum block of 2
        const V t258 = t98 + t216;
        io.out(2, t258);
        const V t259 = t98 - t216;
        io.out(13, t259);
        // spectrum block of 2
        const V t260 = t127 + t245;
        io.out(4, t260);
        const V t261 = t127 - t245;
        io.out(15, t261);
        // spectrum block of 2
        const V t262 = t115 + t233;
        io.out(6, t262);
        const V t263 = t115 - t233;
        io.out(17, t263);
        // spectrum block of 2
        const V t264 = t116 + t234;
        io.out(8, t264);
        const V t265 = t116 - t234;
        io.out(19, t265);
        // spectrum block of 2
        const V t266 = t106 + t224;
        io.out(10, t266);
        const V t267 = t106 - t224;
        io.out(21, t267);
        // spectrum block of 2
        const V t268 = t126 + t244;
        io.out(12, t268);
        const V t269 = t126 - t244;
        io.out(1, t269);
        // spectrum block of 2
        const V t270 = t136 + t254;
        io.out(14, t270);
        const V t271 = t136 - t254;
        io.out(3, t271);
        // spectrum block of 2
        const V t272 = t135 + t253;
        io.out(16, t272);
        const V t273 = t135 - t253;
        io.out(5, t273);
        // spectrum block of 2
        const V t274 = t107 + t225;
        io.out(18, t274);
        const V t275 = t107 - t225;
        io.out(7, t275);
        // spectrum block of 2
        const V t276 = t118 + t236;
        io.out(20, t276);
        const V t277 = t118 - t236;
        io.out(9, t277);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 22, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 22, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 22, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 22, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 22, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 22, double>(const double*, double*, std::int32_t);

}  // namespace zulg
