// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 22.
// Inverse DFT to 22 real points, prime-factor 11, 2.
// 84 additions, 74 subtractions, 120 multiplications (142 with `scale`); 15 constants; 41 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealInverseGraph<22> {
    static constexpr int steps = 300;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        0.30901699437494745,  // c[0]: cos 2 pi 1/5
        0.8090169943749475,  // c[1]: -cos 2 pi 3/5
        0.9510565162951535,  // c[2]: sin 2 pi 1/5
        0.5877852522924731,  // c[3]: -sin 2 pi 3/5
        0.5457579199356125,  // c[4]: P[2] of 11
        0.3770255864361907,  // c[5]: -Q[2] of 11
        0.030342906933726127,  // c[6]: -P[4] of 11
        0.6626305969383026,  // c[7]: -Q[4] of 11
        0.6150936508690751,  // c[8]: -Q[3] of 11
        0.24831391555962465,  // c[9]: -P[3] of 11
        0.6262008235209833,  // c[10]: -Q[1] of 11
        0.21879791731559586,  // c[11]: P[1] of 11
        0.1,  // c[12]: 1/10
        0.33166247903553997,  // c[13]: beta of 11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, RealInverseGraph> c{};
        const V two = Ports::two();
        // doubled bins
        const V x1r = io.re(1);
        const V t0 = two * x1r;
        const V x7r = io.re(7);
        const V t1 = two * x7r;
        // real block of 5
        const V t2 = t1 + t0;
        const V t3 = c[0] * t2;
        const V t4 = c[1] * t2;
        const V t5 = t1 - t0;
        // doubled bins
        const V x3r = io.re(3);
        const V t6 = two * x3r;
        const V x5r = io.re(5);
        const V t7 = two * x5r;
        // real block of 5
        const V t8 = t7 + t6;
        const V t9 = c[1] * t8;
        const V t10 = t7 - t6;
        // doubled bins
        const V x9r = io.re(9);
        const V t11 = two * x9r;
        // real block of 5
        const V t12 = t2 + t8;
        const V t13 = t12 + t11;
        // spectrum block of 11, multiplier 2
        const V t14 = c[12] * t13;
        // real block of 5
        const V t15 = t3 - t9;
        const V t16 = t15 + t11;
        // spectrum block of 11, multiplier 2
        const V t17 = c[4] * t16;
        const V t18 = c[5] * t16;
        // real block of 5
        const V t19 = c[2] * t5;
        const V t20 = c[3] * t10;
        const V t21 = t20 - t19;
        // spectrum block of 11, multiplier 2
        const V t22 = c[5] * t21;
        const V t23 = c[4] * t21;
        // real block of 5
        const V t24 = t11 - t4;
        const V t25 = c[0] * t8;
        const V t26 = t24 + t25;
        // spectrum block of 11, multiplier 2
        const V t27 = c[6] * t26;
        const V t28 = c[7] * t26;
        // real block of 5
        const V t29 = c[3] * t5;
        const V t30 = c[2] * t10;
        const V t31 = t29 + t30;
        // spectrum block of 11, multiplier 2
        const V t32 = c[7] * t31;
        const V t33 = c[6] * t31;
        // doubled bins
        const V x1i = io.im(1);
        const V t34 = two * x1i;
        const V x7i = io.im(7);
        const V t35 = two * x7i;
        // real block of 5
        const V t36 = t35 - t34;
        const V t37 = c[0] * t36;
        const V t38 = c[1] * t36;
        const V t39 = t35 + t34;
        // doubled bins
        const V x3i = io.im(3);
        const V t40 = two * x3i;
        const V x5i = io.im(5);
        const V t41 = two * x5i;
        // real block of 5
        const V t42 = t41 + t40;
        const V t43 = c[1] * t42;
        const V t44 = t40 - t41;
        // doubled bins
        const V x9i = io.im(9);
        const V t45 = two * x9i;
        // real block of 5
        const V t46 = t36 - t42;
        const V t47 = t46 - t45;
        // spectrum block of 11, multiplier 2
        const V t48 = c[13] * t47;
        // real block of 5
        const V t49 = t37 + t43;
        const V t50 = t49 - t45;
        // spectrum block of 11, multiplier 2
        const V t51 = c[8] * t50;
        const V t52 = c[9] * t50;
        // real block of 5
        const V t53 = c[2] * t39;
        const V t54 = c[3] * t44;
        const V t55 = t54 - t53;
        // spectrum block of 11, multiplier 2
        const V t56 = c[9] * t55;
        const V t57 = c[8] * t55;
        // real block of 5
        const V t58 = t45 + t38;
        const V t59 = c[0] * t42;
        const V t60 = t58 + t59;
        // spectrum block of 11, multiplier 2
        const V t61 = c[10] * t60;
        const V t62 = c[11] * t60;
        // real block of 5
        const V t63 = c[3] * t39;
        const V t64 = c[2] * t44;
        const V t65 = t63 + t64;
        // spectrum block of 11, multiplier 2
        const V t66 = c[11] * t65;
        const V t67 = c[10] * t65;
        // doubled bins
        const V x2r = io.re(2);
        const V t68 = two * x2r;
        const V x4r = io.re(4);
        const V t69 = two * x4r;
        const V x10r = io.re(10);
        const V t70 = two * x10r;
        // real block of 5
        const V t71 = t69 + t70;
        const V t72 = c[0] * t71;
        const V t73 = c[1] * t71;
        const V t74 = t69 - t70;
        // doubled bins
        const V x6r = io.re(6);
        const V t75 = two * x6r;
        const V x8r = io.re(8);
        const V t76 = two * x8r;
        // real block of 5
        const V t77 = t75 + t76;
        const V t78 = c[1] * t77;
        const V t79 = t75 - t76;
        const V t80 = t71 + t77;
        const V t81 = t80 + t68;
        // spectrum block of 11, multiplier 2
        const V t82 = c[12] * t81;
        // real block of 5
        const V t83 = t72 - t78;
        const V t84 = t83 + t68;
        // spectrum block of 11, multiplier 2
        const V t85 = c[4] * t84;
        const V t86 = c[5] * t84;
        // real block of 5
        const V t87 = c[2] * t74;
        const V t88 = c[3] * t79;
        const V t89 = t88 - t87;
        // spectrum block of 11, multiplier 2
        const V t90 = c[5] * t89;
        const V t91 = c[4] * t89;
        // real block of 5
        const V t92 = t68 - t73;
        const V t93 = c[0] * t77;
        const V t94 = t92 + t93;
        // spectrum block of 11, multiplier 2
        const V t95 = c[6] * t94;
        const V t96 = c[7] * t94;
        // real block of 5
        const V t97 = c[3] * t74;
        const V t98 = c[2] * t79;
        const V t99 = t97 + t98;
        // spectrum block of 11, multiplier 2
        const V t100 = c[7] * t99;
        const V t101 = c[6] * t99;
        // doubled bins
        const V x2i = io.im(2);
        const V t102 = two * x2i;
        const V x4i = io.im(4);
        const V t103 = two * x4i;
        const V x10i = io.im(10);
        const V t104 = two * x10i;
        // real block of 5
        const V t105 = t104 - t103;
        const V t106 = c[0] * t105;
        const V t107 = c[1] * t105;
        const V t108 = t103 + t104;
        // doubled bins
        const V x6i = io.im(6);
        const V t109 = two * x6i;
        const V x8i = io.im(8);
        const V t110 = two * x8i;
        // real block of 5
        const V t111 = t109 + t110;
        const V t112 = c[1] * t111;
        const V t113 = t109 - t110;
        const V t114 = t105 + t111;
        const V t115 = t114 + t102;
        // spectrum block of 11, multiplier 2
        const V t116 = c[13] * t115;
        // real block of 5
        const V t117 = t106 - t112;
        const V t118 = t117 + t102;
        // spectrum block of 11, multiplier 2
        const V t119 = c[8] * t118;
        const V t120 = c[9] * t118;
        // real block of 5
        const V t121 = c[2] * t108;
        const V t122 = c[3] * t113;
        const V t123 = t121 + t122;
        // spectrum block of 11, multiplier 2
        const V t124 = c[9] * t123;
        const V t125 = c[8] * t123;
        // real block of 5
        const V t126 = t102 - t107;
        const V t127 = c[0] * t111;
        const V t128 = t126 + t127;
        // spectrum block of 11, multiplier 2
        const V t129 = c[10] * t128;
        const V t130 = c[11] * t128;
        // real block of 5
        const V t131 = c[3] * t108;
        const V t132 = c[2] * t113;
        const V t133 = t131 - t132;
        // spectrum block of 11, multiplier 2
        const V t134 = c[11] * t133;
        const V t135 = c[10] * t133;
        const V x0r = io.re(0);
        const V t136 = x0r - t82;
        // spectrum block of 2
        const V t137 = t136 + t116;
        const V t138 = t136 - t116;
        // spectrum block of 11, multiplier 2
        const V t139 = t134 - t129;
        const V t140 = t95 + t100;
        // complex block of 2
        const V t141 = t139 - t140;
        const V t142 = t140 + t139;
        // spectrum block of 11, multiplier 2
        const V t143 = t85 + t90;
        const V t144 = t119 + t124;
        // complex block of 2
        const V t145 = t143 - t144;
        const V t146 = t143 + t144;
        // spectrum block of 5, multiplier 2
        const V t147 = t145 + t141;
        const V t148 = c[0] * t145;
        const V t149 = c[1] * t141;
        const V t150 = t148 - t149;
        const V t151 = c[1] * t145;
        const V t152 = t137 - t151;
        const V t153 = c[0] * t141;
        // spectrum block of 5, multiplier 2
        const V t154 = t146 - t142;
        const V t155 = c[0] * t146;
        const V t156 = c[1] * t142;
        const V t157 = t155 + t156;
        const V t158 = c[1] * t146;
        const V t159 = t138 - t158;
        const V t160 = c[0] * t142;
        // spectrum block of 11, multiplier 2
        const V t161 = t135 + t130;
        const V t162 = t101 - t96;
        // complex block of 2
        const V t163 = t162 - t161;
        const V t164 = t162 + t161;
        // spectrum block of 5, multiplier 2
        const V t165 = c[3] * t163;
        const V t166 = c[2] * t163;
        // spectrum block of 5, multiplier 2
        const V t167 = c[3] * t164;
        const V t168 = c[2] * t164;
        // spectrum block of 11, multiplier 2
        const V t169 = t91 - t86;
        const V t170 = t125 - t120;
        // complex block of 2
        const V t171 = t169 - t170;
        const V t172 = t169 + t170;
        // spectrum block of 5, multiplier 2
        const V t173 = c[2] * t171;
        const V t174 = c[3] * t171;
        // spectrum block of 5, multiplier 2
        const V t175 = c[2] * t172;
        const V t176 = c[3] * t172;
        // spectrum block of 11, multiplier 2
        const V x11r = io.re(11);
        const V t177 = x11r - t14;
        // spectrum block of 2
        const V t178 = t177 + t48;
        const V t179 = t177 - t48;
        // spectrum block of 11, multiplier 2
        const V t180 = t61 - t66;
        const V t181 = t27 + t32;
        // complex block of 2
        const V t182 = t180 - t181;
        const V t183 = t181 + t180;
        // spectrum block of 11, multiplier 2
        const V t184 = t17 + t22;
        const V t185 = t51 + t56;
        // complex block of 2
        const V t186 = t184 - t185;
        const V t187 = t184 + t185;
        // spectrum block of 5, multiplier 2
        const V t188 = t186 + t182;
        const V t189 = c[0] * t186;
        const V t190 = c[1] * t182;
        const V t191 = t189 - t190;
        const V t192 = c[1] * t186;
        const V t193 = t178 - t192;
        const V t194 = c[0] * t182;
        // spectrum block of 5, multiplier 2
        const V t195 = t187 - t183;
        const V t196 = c[0] * t187;
        const V t197 = c[1] * t183;
        const V t198 = t196 + t197;
        const V t199 = c[1] * t187;
        const V t200 = t179 - t199;
        const V t201 = c[0] * t183;
        // spectrum block of 11, multiplier 2
        const V t202 = t67 + t62;
        const V t203 = t33 - t28;
        // complex block of 2
        const V t204 = t203 + t202;
        const V t205 = t203 - t202;
        // spectrum block of 5, multiplier 2
        const V t206 = c[3] * t204;
        const V t207 = c[2] * t204;
        // spectrum block of 5, multiplier 2
        const V t208 = c[3] * t205;
        const V t209 = c[2] * t205;
        // spectrum block of 11, multiplier 2
        const V t210 = t23 - t18;
        const V t211 = t57 - t52;
        // complex block of 2
        const V t212 = t210 - t211;
        const V t213 = t210 + t211;
        // spectrum block of 5, multiplier 2
        const V t214 = c[2] * t212;
        const V t215 = c[3] * t212;
        // spectrum block of 5, multiplier 2
        const V t216 = c[2] * t213;
        const V t217 = c[3] * t213;
        // spectrum block of 5, multiplier 2
        const V t218 = t147 + t137;
        // spectrum block of 5, multiplier 2
        const V t219 = t188 + t178;
        // spectrum block of 2
        const V t220 = t218 + t219;
        io.out(2, t220);
        const V t221 = t218 - t219;
        io.out(13, t221);
        // spectrum block of 5, multiplier 2
        const V t222 = t150 + t137;
        const V t223 = t173 + t165;
        const V t224 = t222 - t223;
        const V t225 = t222 + t223;
        // spectrum block of 5, multiplier 2
        const V t226 = t191 + t178;
        const V t227 = t214 + t206;
        const V t228 = t226 - t227;
        const V t229 = t226 + t227;
        // spectrum block of 2
        const V t230 = t224 + t228;
        io.out(10, t230);
        const V t231 = t224 - t228;
        io.out(21, t231);
        // spectrum block of 2
        const V t232 = t225 + t229;
        io.out(18, t232);
        const V t233 = t225 - t229;
        io.out(7, t233);
        // spectrum block of 5, multiplier 2
        const V t234 = t152 + t153;
        const V t235 = t174 - t166;
        const V t236 = t234 - t235;
        const V t237 = t234 + t235;
        // spectrum block of 5, multiplier 2
        const V t238 = t193 + t194;
        const V t239 = t215 - t207;
        const V t240 = t238 - t239;
        const V t241 = t238 + t239;
        // spectrum block of 2
        const V t242 = t236 + t240;
        io.out(6, t242);
        const V t243 = t236 - t240;
        io.out(17, t243);
        // spectrum block of 2
        const V t244 = t237 + t241;
        io.out(8, t244);
        const V t245 = t237 - t241;
        io.out(19, t245);
        // spectrum block of 5, multiplier 2
        const V t246 = t154 + t138;
        // spectrum block of 5, multiplier 2
        const V t247 = t195 + t179;
        // spectrum block of 2
        const V t248 = t246 + t247;
        io.out(20, t248);
        const V t249 = t246 - t247;
        io.out(9, t249);
        // spectrum block of 5, multiplier 2
        const V t250 = t157 + t138;
        const V t251 = t175 + t167;
        const V t252 = t250 - t251;
        const V t253 = t250 + t251;
        // spectrum block of 5, multiplier 2
        const V t254 = t198 + t179;
        const V t255 = t216 + t208;
        const V t256 = t254 - t255;
        const V t257 = t254 + t255;
        // spectrum block of 2
        const V t258 = t253 + t257;
        io.out(4, t258);
        const V t259 = t253 - t257;
        io.out(15, t259);
        // spectrum block of 2
        const V t260 = t252 + t256;
        io.out(12, t260);
        const V t261 = t252 - t256;
        io.out(1, t261);
        // spectrum block of 5, multiplier 2
        const V t262 = t159 - t160;
        const V t263 = t176 - t168;
        const V t264 = t262 - t263;
        const V t265 = t262 + t263;
        // spectrum block of 5, multiplier 2
        const V t266 = t200 - t201;
        const V t267 = t217 - t209;
        const V t268 = t266 - t267;
        const V t269 = t266 + t267;
        // spectrum block of 2
        const V t270 = t265 + t269;
        io.out(14, t270);
        const V t271 = t265 - t269;
        io.out(3, t271);
        // spectrum block of 2
        const V t272 = t264 + t268;
        io.out(16, t272);
        const V t273 = t264 - t268;
        io.out(5, t273);
        // spectrum block of 11, multiplier 2
        const V t274 = x0r + t81;
        // spectrum block of 11, multiplier 2
        const V t275 = x11r + t13;
        // spectrum block of 2
        const V t276 = t274 + t275;
        io.out(0, t276);
        const V t277 = t274 - t275;
        io.out(11, t277);
    }
};

}  // namespace zulg
