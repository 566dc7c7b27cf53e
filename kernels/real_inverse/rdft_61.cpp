// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_inverse, 61.
// Inverse DFT to 61 real points, Rader 4, 3, 5.
// 404 additions, 358 subtractions, 478 multiplications (539 with `scale`); 75 constants; 68 values alive at most.
#include "frame/kernel_body.h"

namespace zulg {

template <>
struct RealInverseGraph<61> {
    static constexpr double inverseRoot = 0.12803687993289598;  // 1/sqrt(61), for `scale`
    static constexpr double c0 = 2.0;  // 2
    static constexpr double c1 = 0.30901699437494745;  // cos 2 pi 1/5
    static constexpr double c2 = 0.8090169943749475;  // -cos 2 pi 3/5
    static constexpr double c3 = 0.9510565162951535;  // sin 2 pi 1/5
    static constexpr double c4 = 0.5877852522924731;  // -sin 2 pi 3/5
    static constexpr double c5 = 0.5;  // -cos 2 pi 1/3
    static constexpr double c6 = 0.8660254037844386;  // sin 2 pi 1/3
    static constexpr double c7 = 0.10452846326765347;  // sin 2 pi 1/60
    static constexpr double c8 = 0.9945218953682733;  // cos 2 pi 1/60
    static constexpr double c9 = 0.6691306063588582;  // sin 2 pi 7/60
    static constexpr double c10 = 0.7431448254773942;  // cos 2 pi 7/60
    static constexpr double c11 = 0.9135454576426009;  // sin 2 pi 11/60
    static constexpr double c12 = 0.4067366430758002;  // cos 2 pi 11/60
    static constexpr double c13 = 0.9781476007338057;  // sin 2 pi 13/60
    static constexpr double c14 = 0.20791169081775934;  // cos 2 pi 13/60
    static constexpr double c15 = 0.016666666666666666;  // 1/60
    static constexpr double c16 = 0.20918808865965802;  // -P[1] of 61
    static constexpr double c17 = 0.15497780918795065;  // -Q[1] of 61
    static constexpr double c18 = 0.16101883855703142;  // Q[2] of 61
    static constexpr double c19 = 0.20457446421174474;  // P[2] of 61
    static constexpr double c20 = 0.23892325195327072;  // -P[3] of 61
    static constexpr double c21 = 0.10340917490170637;  // Q[3] of 61
    static constexpr double c22 = 0.2578608473569129;  // Q[4] of 61
    static constexpr double c23 = 0.035854723233524656;  // -P[4] of 61
    static constexpr double c24 = 0.2380667501964918;  // -P[5] of 61
    static constexpr double c25 = 0.1053660297660444;  // -Q[5] of 61
    static constexpr double c26 = 0.20515266792101527;  // Q[6] of 61
    static constexpr double c27 = 0.1602815043062281;  // P[6] of 61
    static constexpr double c28 = 0.2406977012179139;  // P[7] of 61
    static constexpr double c29 = 0.09920884237904212;  // Q[7] of 61
    static constexpr double c30 = 0.07049354660050404;  // Q[8] of 61
    static constexpr double c31 = 0.25061611613274265;  // P[8] of 61
    static constexpr double c32 = 0.24403592948183833;  // -P[9] of 61
    static constexpr double c33 = 0.09068761161102994;  // Q[9] of 61
    static constexpr double c34 = 0.23081456598926853;  // Q[10] of 61
    static constexpr double c35 = 0.12042596856560207;  // P[10] of 61
    static constexpr double c36 = 0.24096799804842803;  // -P[11] of 61
    static constexpr double c37 = 0.09855050326766758;  // Q[11] of 61
    static constexpr double c38 = 0.17085954303793666;  // Q[12] of 61
    static constexpr double c39 = 0.19643012582250524;  // -P[12] of 61
    static constexpr double c40 = 0.25591390402746017;  // P[13] of 61
    static constexpr double c41 = 0.047810579406671994;  // -Q[13] of 61
    static constexpr double c42 = 0.035146745480687275;  // Q[14] of 61
    static constexpr double c43 = 0.25795829907156226;  // -P[14] of 61
    static constexpr double c44 = 0.11042531820311542;  // P[15] of 61
    static constexpr double c45 = 0.23576264945389142;  // -Q[15] of 61
    static constexpr double c46 = 0.07154712447968609;  // Q[16] of 61
    static constexpr double c47 = 0.2503173720628796;  // P[16] of 61
    static constexpr double c48 = 0.20961095261841867;  // -P[17] of 61
    static constexpr double c49 = 0.15440539602027134;  // Q[17] of 61
    static constexpr double c50 = 0.22994320324173947;  // -Q[18] of 61
    static constexpr double c51 = 0.12208153447883048;  // P[18] of 61
    static constexpr double c52 = 0.13608829619444565;  // P[19] of 61
    static constexpr double c53 = 0.22194087820108896;  // -Q[19] of 61
    static constexpr double c54 = 0.2602823006297202;  // Q[20] of 61
    static constexpr double c55 = 0.005558934851007752;  // -P[20] of 61
    static constexpr double c56 = 0.256047285458026;  // -P[21] of 61
    static constexpr double c57 = 0.04709103298244708;  // Q[21] of 61
    static constexpr double c58 = 0.25902765669579647;  // Q[22] of 61
    static constexpr double c59 = 0.02612376015167778;  // -P[22] of 61
    static constexpr double c60 = 0.09177478132326014;  // P[23] of 61
    static constexpr double c61 = 0.24362915936079071;  // -Q[23] of 61
    static constexpr double c62 = 0.0673035010610264;  // -Q[24] of 61
    static constexpr double c63 = 0.2514915834033143;  // P[24] of 61
    static constexpr double c64 = 0.23335104576758062;  // P[25] of 61
    static constexpr double c65 = 0.1154342549547329;  // Q[25] of 61
    static constexpr double c66 = 0.1988310412655552;  // Q[26] of 61
    static constexpr double c67 = 0.1680594978185787;  // -P[26] of 61
    static constexpr double c68 = 0.25817133658934166;  // P[27] of 61
    static constexpr double c69 = 0.0335460689418391;  // -Q[27] of 61
    static constexpr double c70 = 0.15195717683014903;  // -Q[28] of 61
    static constexpr double c71 = 0.21139251213699267;  // P[28] of 61
    static constexpr double c72 = 0.1192479770652986;  // P[29] of 61
    static constexpr double c73 = 0.2314253610640195;  // Q[29] of 61
    static constexpr double c74 = 0.13017082793177756;  // beta of 61

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
        const V x13r = io.re(13);
        const V t24 = c0 * x13r;
        const V x13i = io.im(13);
        const V t25 = c0 * x13i;
        const V x14r = io.re(14);
        const V t26 = c0 * x14r;
        const V x14i = io.im(14);
        const V t27 = c0 * x14i;
        const V x15r = io.re(15);
        const V t28 = c0 * x15r;
        const V x15i = io.im(15);
        const V t29 = c0 * x15i;
        const V x16r = io.re(16);
        const V t30 = c0 * x16r;
        const V x16i = io.im(16);
        const V t31 = c0 * x16i;
        const V x17r = io.re(17);
        const V t32 = c0 * x17r;
        const V x17i = io.im(17);
        const V t33 = c0 * x17i;
        const V x18r = io.re(18);
        const V t34 = c0 * x18r;
        const V x18i = io.im(18);
        const V t35 = c0 * x18i;
        const V x19r = io.re(19);
        const V t36 = c0 * x19r;
        const V x19i = io.im(19);
        const V t37 = c0 * x19i;
        const V x20r = io.re(20);
        const V t38 = c0 * x20r;
        const V x20i = io.im(20);
        const V t39 = c0 * x20i;
        const V x21r = io.re(21);
        const V t40 = c0 * x21r;
        const V x21i = io.im(21);
        const V t41 = c0 * x21i;
        const V x22r = io.re(22);
        const V t42 = c0 * x22r;
        const V x22i = io.im(22);
        const V t43 = c0 * x22i;
        const V x23r = io.re(23);
        const V t44 = c0 * x23r;
        const V x23i = io.im(23);
        const V t45 = c0 * x23i;
        const V x24r = io.re(24);
        const V t46 = c0 * x24r;
        const V x24i = io.im(24);
        const V t47 = c0 * x24i;
        const V x25r = io.re(25);
        const V t48 = c0 * x25r;
        const V x25i = io.im(25);
        const V t49 = c0 * x25i;
        const V x26r = io.re(26);
        const V t50 = c0 * x26r;
        const V x26i = io.im(26);
        const V t51 = c0 * x26i;
        const V x27r = io.re(27);
        const V t52 = c0 * x27r;
        const V x27i = io.im(27);
        const V t53 = c0 * x27i;
        const V x28r = io.re(28);
        const V t54 = c0 * x28r;
        const V x28i = io.im(28);
        const V t55 = c0 * x28i;
        const V x29r = io.re(29);
        const V t56 = c0 * x29r;
        const V x29i = io.im(29);
        const V t57 = c0 * x29i;
        const V x30r = io.re(30);
        const V t58 = c0 * x30r;
        const V x30i = io.im(30);
        const V t59 = c0 * x30i;
        // real block of 5
        const V t60 = t4 + t38;
        const V t61 = t4 - t38;
        const V t62 = t52 + t16;
        const V t63 = t52 - t16;
        const V t64 = t60 + t62;
        const V t65 = t64 + t0;
        const V t66 = c1 * t60;
        const V t67 = c2 * t62;
        const V t68 = t66 - t67;
        const V t69 = t68 + t0;
        const V t70 = c3 * t61;
        const V t71 = c4 * t63;
        const V t72 = t71 - t70;
        const V t73 = c2 * t60;
        const V t74 = t0 - t73;
        const V t75 = c1 * t62;
        const V t76 = t74 + t75;
        const V t77 = c4 * t61;
        const V t78 = c3 * t63;
        const V t79 = t77 + t78;
        // real block of 5
        const V t80 = t50 + t58;
        const V t81 = t50 - t58;
        const V t82 = t18 + t32;
        const V t83 = t18 - t32;
        const V t84 = t80 + t82;
        const V t85 = t84 + t56;
        const V t86 = c1 * t80;
        const V t87 = c2 * t82;
        const V t88 = t86 - t87;
        const V t89 = t88 + t56;
        const V t90 = c3 * t81;
        const V t91 = c4 * t83;
        const V t92 = t91 - t90;
        const V t93 = c2 * t80;
        const V t94 = t56 - t93;
        const V t95 = c1 * t82;
        const V t96 = t94 + t95;
        const V t97 = c4 * t81;
        const V t98 = c3 * t83;
        const V t99 = t97 + t98;
        // real block of 5
        const V t100 = t42 + t30;
        const V t101 = t42 - t30;
        const V t102 = t28 + t8;
        const V t103 = t28 - t8;
        const V t104 = t100 + t102;
        const V t105 = t104 + t24;
        const V t106 = c1 * t100;
        const V t107 = c2 * t102;
        const V t108 = t106 - t107;
        const V t109 = t108 + t24;
        const V t110 = c3 * t101;
        const V t111 = c4 * t103;
        const V t112 = t111 - t110;
        const V t113 = c2 * t100;
        const V t114 = t24 - t113;
        const V t115 = c1 * t102;
        const V t116 = t114 + t115;
        const V t117 = c4 * t101;
        const V t118 = c3 * t103;
        const V t119 = t117 + t118;
        // real block of 5
        const V t120 = t54 + t46;
        const V t121 = t54 - t46;
        const V t122 = t14 + t44;
        const V t123 = t14 - t44;
        const V t124 = t120 + t122;
        const V t125 = t124 + t20;
        const V t126 = c1 * t120;
        const V t127 = c2 * t122;
        const V t128 = t126 - t127;
        const V t129 = t128 + t20;
        const V t130 = c3 * t121;
        const V t131 = c4 * t123;
        const V t132 = t131 - t130;
        const V t133 = c2 * t120;
        const V t134 = t20 - t133;
        const V t135 = c1 * t122;
        const V t136 = t134 + t135;
        const V t137 = c4 * t121;
        const V t138 = c3 * t123;
        const V t139 = t137 + t138;
        // real block of 5
        const V t140 = t36 + t48;
        const V t141 = t36 - t48;
        const V t142 = t22 + t6;
        const V t143 = t22 - t6;
        const V t144 = t140 + t142;
        const V t145 = t144 + t26;
        const V t146 = c1 * t140;
        const V t147 = c2 * t142;
        const V t148 = t146 - t147;
        const V t149 = t148 + t26;
        const V t150 = c3 * t141;
        const V t151 = c4 * t143;
        const V t152 = t151 - t150;
        const V t153 = c2 * t140;
        const V t154 = t26 - t153;
        const V t155 = c1 * t142;
        const V t156 = t154 + t155;
        const V t157 = c4 * t141;
        const V t158 = c3 * t143;
        const V t159 = t157 + t158;
        // real block of 5
        const V t160 = t2 + t12;
        const V t161 = t2 - t12;
        const V t162 = t34 + t10;
        const V t163 = t34 - t10;
        const V t164 = t160 + t162;
        const V t165 = t164 + t40;
        const V t166 = c1 * t160;
        const V t167 = c2 * t162;
        const V t168 = t166 - t167;
        const V t169 = t168 + t40;
        const V t170 = c3 * t161;
        const V t171 = c4 * t163;
        const V t172 = t171 - t170;
        const V t173 = c2 * t160;
        const V t174 = t40 - t173;
        const V t175 = c1 * t162;
        const V t176 = t174 + t175;
        const V t177 = c4 * t161;
        const V t178 = c3 * t163;
        const V t179 = t177 + t178;
        // real block of 3
        const V t180 = t105 + t145;
        const V t181 = t105 - t145;
        const V t182 = t180 + t65;
        const V t183 = c5 * t180;
        const V t184 = t65 - t183;
        const V t185 = c6 * t181;
        // real block of 3
        const V t186 = t165 + t85;
        const V t187 = t165 - t85;
        const V t188 = t186 + t125;
        const V t189 = c5 * t186;
        const V t190 = t125 - t189;
        const V t191 = c6 * t187;
        // real block of 2
        const V t192 = t182 + t188;
        const V t193 = t182 - t188;
        // complex block of 2
        const V t194 = t184 + t190;
        const V t195 = t185 + t191;
        const V t196 = t184 - t190;
        const V t197 = t191 - t185;
        // complex block of 3
        const V t198 = t109 + t149;
        const V t199 = t112 + t152;
        const V t200 = t109 - t149;
        const V t201 = t112 - t152;
        const V t202 = t198 + t69;
        const V t203 = t199 + t72;
        const V t204 = c5 * t198;
        const V t205 = t69 - t204;
        const V t206 = c5 * t199;
        const V t207 = t72 - t206;
        const V t208 = c6 * t200;
        const V t209 = c6 * t201;
        const V t210 = t205 + t209;
        const V t211 = t207 - t208;
        const V t212 = t205 - t209;
        const V t213 = t207 + t208;
        // complex block of 3
        const V t214 = t169 + t89;
        const V t215 = t172 + t92;
        const V t216 = t169 - t89;
        const V t217 = t172 - t92;
        const V t218 = t214 + t129;
        const V t219 = t215 + t132;
        const V t220 = c5 * t214;
        const V t221 = t129 - t220;
        const V t222 = c5 * t215;
        const V t223 = t132 - t222;
        const V t224 = c6 * t216;
        const V t225 = c6 * t217;
        const V t226 = t221 + t225;
        const V t227 = t223 - t224;
        const V t228 = t221 - t225;
        const V t229 = t223 + t224;
        // complex block of 2
        const V t230 = t202 + t218;
        const V t231 = t203 + t219;
        const V t232 = t202 - t218;
        const V t233 = t203 - t219;
        // complex block of 2
        const V t234 = t210 + t226;
        const V t235 = t211 + t227;
        const V t236 = t210 - t226;
        const V t237 = t211 - t227;
        // complex block of 2
        const V t238 = t212 + t228;
        const V t239 = t213 + t229;
        const V t240 = t212 - t228;
        const V t241 = t213 - t229;
        // complex block of 3
        const V t242 = t116 + t156;
        const V t243 = t119 + t159;
        const V t244 = t116 - t156;
        const V t245 = t159 - t119;
        const V t246 = t242 + t76;
        const V t247 = t243 + t79;
        const V t248 = c5 * t242;
        const V t249 = t76 - t248;
        const V t250 = c5 * t243;
        const V t251 = t250 - t79;
        const V t252 = c6 * t244;
        const V t253 = c6 * t245;
        const V t254 = t249 + t253;
        const V t255 = t251 - t252;
        const V t256 = t249 - t253;
        const V t257 = t251 + t252;
        // complex block of 3
        const V t258 = t176 + t96;
        const V t259 = t179 + t99;
        const V t260 = t176 - t96;
        const V t261 = t99 - t179;
        const V t262 = t258 + t136;
        const V t263 = t259 + t139;
        const V t264 = c5 * t258;
        const V t265 = t136 - t264;
        const V t266 = c5 * t259;
        const V t267 = t266 - t139;
        const V t268 = c6 * t260;
        const V t269 = c6 * t261;
        const V t270 = t265 + t269;
        const V t271 = t267 - t268;
        const V t272 = t265 - t269;
        const V t273 = t267 + t268;
        // complex block of 2
        const V t274 = t246 + t262;
        const V t275 = t247 + t263;
        const V t276 = t246 - t262;
        const V t277 = t263 - t247;
        // complex block of 2
        const V t278 = t254 + t270;
        const V t279 = t255 + t271;
        const V t280 = t254 - t270;
        const V t281 = t255 - t271;
        // complex block of 2
        const V t282 = t256 + t272;
        const V t283 = t257 + t273;
        const V t284 = t256 - t272;
        const V t285 = t257 - t273;
        // real block of 3, multiplier 2
        const V t286 = t25 - t27;
        const V t287 = t25 + t27;
        const V t288 = t286 + t1;
        const V t289 = c5 * t286;
        const V t290 = t1 - t289;
        const V t291 = c6 * t287;
        // real block of 3, multiplier 2
        const V t292 = t43 - t37;
        const V t293 = t43 + t37;
        const V t294 = t292 - t5;
        const V t295 = c5 * t292;
        const V t296 = t5 + t295;
        const V t297 = c6 * t293;
        // real block of 3, multiplier 2
        const V t298 = t9 + t7;
        const V t299 = t7 - t9;
        const V t300 = t17 - t298;
        const V t301 = c5 * t298;
        const V t302 = t301 + t17;
        const V t303 = c6 * t299;
        // real block of 3, multiplier 2
        const V t304 = t29 + t23;
        const V t305 = t29 - t23;
        const V t306 = t304 - t53;
        const V t307 = c5 * t304;
        const V t308 = t53 + t307;
        const V t309 = c6 * t305;
        // real block of 3, multiplier 2
        const V t310 = t31 + t49;
        const V t311 = t31 - t49;
        const V t312 = t310 + t39;
        const V t313 = c5 * t310;
        const V t314 = t39 - t313;
        const V t315 = c6 * t311;
        // real block of 5, multiplier 3
        const V t316 = t294 + t312;
        const V t317 = t294 - t312;
        const V t318 = t306 + t300;
        const V t319 = t306 - t300;
        const V t320 = t316 + t318;
        const V t321 = t320 + t288;
        const V t322 = c2 * t316;
        const V t323 = t288 - t322;
        const V t324 = c1 * t318;
        const V t325 = t323 + t324;
        const V t326 = c4 * t317;
        const V t327 = c3 * t319;
        const V t328 = t326 + t327;
        const V t329 = c1 * t316;
        const V t330 = c2 * t318;
        const V t331 = t329 - t330;
        const V t332 = t331 + t288;
        const V t333 = c3 * t317;
        const V t334 = c4 * t319;
        const V t335 = t334 - t333;
        // complex block of 5, multiplier 3
        const V t336 = t314 - t296;
        const V t337 = t297 + t315;
        const V t338 = t296 + t314;
        const V t339 = t297 - t315;
        const V t340 = t302 - t308;
        const V t341 = t309 + t303;
        const V t342 = t308 + t302;
        const V t343 = t309 - t303;
        const V t344 = t336 + t340;
        const V t345 = t337 + t341;
        const V t346 = t344 + t290;
        const V t347 = t345 + t291;
        const V t348 = c1 * t336;
        const V t349 = c2 * t340;
        const V t350 = t348 - t349;
        const V t351 = t350 + t290;
        const V t352 = c1 * t337;
        const V t353 = c2 * t341;
        const V t354 = t352 - t353;
        const V t355 = t354 + t291;
        const V t356 = c3 * t338;
        const V t357 = c4 * t342;
        const V t358 = t357 - t356;
        const V t359 = c3 * t339;
        const V t360 = c4 * t343;
        const V t361 = t359 - t360;
        const V t362 = t351 + t361;
        const V t363 = t355 - t358;
        const V t364 = t351 - t361;
        const V t365 = t355 + t358;
        const V t366 = c2 * t336;
        const V t367 = t290 - t366;
        const V t368 = c1 * t340;
        const V t369 = t367 + t368;
        const V t370 = c2 * t337;
        const V t371 = t291 - t370;
        const V t372 = c1 * t341;
        const V t373 = t371 + t372;
        const V t374 = c4 * t338;
        const V t375 = c3 * t342;
        const V t376 = t374 + t375;
        const V t377 = c4 * t339;
        const V t378 = c3 * t343;
        const V t379 = t377 + t378;
        const V t380 = t369 + t379;
        const V t381 = t373 + t376;
        const V t382 = t369 - t379;
        const V t383 = t373 - t376;
        // real block of 3, multiplier 2
        const V t384 = t51 - t55;
        const V t385 = t51 + t55;
        const V t386 = t384 + t3;
        const V t387 = c5 * t384;
        const V t388 = t3 - t387;
        const V t389 = c6 * t385;
        // real block of 3, multiplier 2
        const V t390 = t45 - t33;
        const V t391 = t33 + t45;
        const V t392 = t390 - t11;
        const V t393 = c5 * t390;
        const V t394 = t11 + t393;
        const V t395 = c6 * t391;
        // real block of 3, multiplier 2
        const V t396 = t19 + t15;
        const V t397 = t15 - t19;
        const V t398 = t35 - t396;
        const V t399 = c5 * t396;
        const V t400 = t399 + t35;
        const V t401 = c6 * t397;
        // real block of 3, multiplier 2
        const V t402 = t59 + t47;
        const V t403 = t59 - t47;
        const V t404 = t402 + t13;
        const V t405 = c5 * t402;
        const V t406 = t13 - t405;
        const V t407 = c6 * t403;
        // real block of 3, multiplier 2
        const V t408 = t57 + t21;
        const V t409 = t21 - t57;
        const V t410 = t408 + t41;
        const V t411 = c5 * t408;
        const V t412 = t411 - t41;
        const V t413 = c6 * t409;
        // real block of 5, multiplier 3
        const V t414 = t392 - t410;
        const V t415 = t392 + t410;
        const V t416 = t404 + t398;
        const V t417 = t404 - t398;
        const V t418 = t414 + t416;
        const V t419 = t418 + t386;
        const V t420 = c2 * t414;
        const V t421 = t386 - t420;
        const V t422 = c1 * t416;
        const V t423 = t421 + t422;
        const V t424 = c4 * t415;
        const V t425 = c3 * t417;
        const V t426 = t424 + t425;
        const V t427 = c1 * t414;
        const V t428 = c2 * t416;
        const V t429 = t427 - t428;
        const V t430 = t429 + t386;
        const V t431 = c3 * t415;
        const V t432 = c4 * t417;
        const V t433 = t432 - t431;
        // complex block of 5, multiplier 3
        const V t434 = t412 - t394;
        const V t435 = t413 - t395;
        const V t436 = t394 + t412;
        const V t437 = t395 + t413;
        const V t438 = t406 + t400;
        const V t439 = t407 + t401;
        const V t440 = t406 - t400;
        const V t441 = t407 - t401;
        const V t442 = t434 + t438;
        const V t443 = t435 + t439;
        const V t444 = t442 + t388;
        const V t445 = t443 + t389;
        const V t446 = c1 * t434;
        const V t447 = c2 * t438;
        const V t448 = t446 - t447;
        const V t449 = t448 + t388;
        const V t450 = c1 * t435;
        const V t451 = c2 * t439;
        const V t452 = t450 - t451;
        const V t453 = t452 + t389;
        const V t454 = c3 * t436;
        const V t455 = c4 * t440;
        const V t456 = t454 + t455;
        const V t457 = c3 * t437;
        const V t458 = c4 * t441;
        const V t459 = t457 + t458;
        const V t460 = t449 - t459;
        const V t461 = t453 + t456;
        const V t462 = t449 + t459;
        const V t463 = t453 - t456;
        const V t464 = c2 * t434;
        const V t465 = t388 - t464;
        const V t466 = c1 * t438;
        const V t467 = t465 + t466;
        const V t468 = c2 * t435;
        const V t469 = t389 - t468;
        const V t470 = c1 * t439;
        const V t471 = t469 + t470;
        const V t472 = c4 * t436;
        const V t473 = c3 * t440;
        const V t474 = t473 - t472;
        const V t475 = c4 * t437;
        const V t476 = c3 * t441;
        const V t477 = t476 - t475;
        const V t478 = t467 + t477;
        const V t479 = t471 - t474;
        const V t480 = t467 - t477;
        const V t481 = t471 + t474;
        // skew block of 30
        const V t482 = c7 * t481;
        const V t483 = c8 * t480;
        const V t484 = t483 + t482;
        const V t485 = c7 * t480;
        const V t486 = c8 * t481;
        const V t487 = t486 - t485;
        // complex block of 2
        const V t488 = t382 + t484;
        const V t489 = t383 + t487;
        const V t490 = t382 - t484;
        const V t491 = t383 - t487;
        // skew block of 30
        const V t492 = c1 * t433;
        const V t493 = c3 * t430;
        const V t494 = t493 - t492;
        const V t495 = c1 * t430;
        const V t496 = c3 * t433;
        const V t497 = t496 + t495;
        // complex block of 2
        const V t498 = t332 + t494;
        const V t499 = t335 + t497;
        const V t500 = t332 - t494;
        const V t501 = t497 - t335;
        // skew block of 30
        const V t502 = c5 * t445;
        const V t503 = c6 * t444;
        const V t504 = t503 - t502;
        const V t505 = c5 * t444;
        const V t506 = c6 * t445;
        const V t507 = t506 + t505;
        // complex block of 2
        const V t508 = t346 + t504;
        const V t509 = t347 + t507;
        const V t510 = t346 - t504;
        const V t511 = t507 - t347;
        // skew block of 30
        const V t512 = c9 * t461;
        const V t513 = c10 * t460;
        const V t514 = t513 + t512;
        const V t515 = c9 * t460;
        const V t516 = c10 * t461;
        const V t517 = t516 - t515;
        // complex block of 2
        const V t518 = t362 + t514;
        const V t519 = t363 + t517;
        const V t520 = t362 - t514;
        const V t521 = t363 - t517;
        // skew block of 30
        const V t522 = c2 * t426;
        const V t523 = c4 * t423;
        const V t524 = t523 - t522;
        const V t525 = c2 * t423;
        const V t526 = c4 * t426;
        const V t527 = t526 + t525;
        // complex block of 2
        const V t528 = t325 + t524;
        const V t529 = t328 + t527;
        const V t530 = t325 - t524;
        const V t531 = t527 - t328;
        // skew block of 30
        const V t532 = c11 * t479;
        const V t533 = c12 * t478;
        const V t534 = t533 - t532;
        const V t535 = c11 * t478;
        const V t536 = c12 * t479;
        const V t537 = t536 + t535;
        // complex block of 2
        const V t538 = t380 + t534;
        const V t539 = t381 + t537;
        const V t540 = t380 - t534;
        const V t541 = t537 - t381;
        // skew block of 30
        const V t542 = c13 * t463;
        const V t543 = c14 * t462;
        const V t544 = t543 + t542;
        const V t545 = c13 * t462;
        const V t546 = c14 * t463;
        const V t547 = t546 - t545;
        // complex block of 2
        const V t548 = t364 + t544;
        const V t549 = t365 + t547;
        const V t550 = t364 - t544;
        const V t551 = t365 - t547;
        // spectrum block of 61
        const V t552 = c15 * t192;
        const V x0r = io.re(0);
        const V t553 = x0r - t552;
        const V t554 = c16 * t489;
        const V t555 = c17 * t488;
        const V t556 = t554 - t555;
        const V t557 = c16 * t488;
        const V t558 = c17 * t489;
        const V t559 = t558 + t557;
        const V t560 = c18 * t237;
        const V t561 = c19 * t236;
        const V t562 = t561 - t560;
        const V t563 = c18 * t236;
        const V t564 = c19 * t237;
        const V t565 = t564 + t563;
        const V t566 = c20 * t499;
        const V t567 = c21 * t498;
        const V t568 = t567 - t566;
        const V t569 = c20 * t498;
        const V t570 = c21 * t499;
        const V t571 = t570 + t569;
        const V t572 = c22 * t283;
        const V t573 = c23 * t282;
        const V t574 = t573 + t572;
        const V t575 = c22 * t282;
        const V t576 = c23 * t283;
        const V t577 = t575 - t576;
        const V t578 = c24 * t509;
        const V t579 = c25 * t508;
        const V t580 = t579 + t578;
        const V t581 = c24 * t508;
        const V t582 = c25 * t509;
        const V t583 = t582 - t581;
        const V t584 = c26 * t277;
        const V t585 = c27 * t276;
        const V t586 = t585 + t584;
        const V t587 = c26 * t276;
        const V t588 = c27 * t277;
        const V t589 = t587 - t588;
        const V t590 = c28 * t519;
        const V t591 = c29 * t518;
        const V t592 = t591 - t590;
        const V t593 = c28 * t518;
        const V t594 = c29 * t519;
        const V t595 = t594 + t593;
        const V t596 = c30 * t239;
        const V t597 = c31 * t238;
        const V t598 = t597 + t596;
        const V t599 = c30 * t238;
        const V t600 = c31 * t239;
        const V t601 = t599 - t600;
        const V t602 = c32 * t529;
        const V t603 = c33 * t528;
        const V t604 = t603 - t602;
        const V t605 = c32 * t528;
        const V t606 = c33 * t529;
        const V t607 = t606 + t605;
        const V t608 = c34 * t197;
        const V t609 = c35 * t196;
        const V t610 = t609 + t608;
        const V t611 = c34 * t196;
        const V t612 = c35 * t197;
        const V t613 = t611 - t612;
        const V t614 = c36 * t539;
        const V t615 = c37 * t538;
        const V t616 = t615 - t614;
        const V t617 = c36 * t538;
        const V t618 = c37 * t539;
        const V t619 = t618 + t617;
        const V t620 = c38 * t231;
        const V t621 = c39 * t230;
        const V t622 = t621 + t620;
        const V t623 = c38 * t230;
        const V t624 = c39 * t231;
        const V t625 = t623 - t624;
        const V t626 = c40 * t549;
        const V t627 = c41 * t548;
        const V t628 = t627 + t626;
        const V t629 = c40 * t548;
        const V t630 = c41 * t549;
        const V t631 = t629 - t630;
        const V t632 = c42 * t281;
        const V t633 = c43 * t280;
        const V t634 = t633 + t632;
        const V t635 = c42 * t280;
        const V t636 = c43 * t281;
        const V t637 = t635 - t636;
        const V t638 = c44 * t419;
        const V t639 = c45 * t321;
        const V t640 = t638 - t639;
        const V t641 = c44 * t321;
        const V t642 = c45 * t419;
        const V t643 = t642 + t641;
        const V t644 = c46 * t279;
        const V t645 = c47 * t278;
        const V t646 = t645 + t644;
        const V t647 = c46 * t278;
        const V t648 = c47 * t279;
        const V t649 = t647 - t648;
        const V t650 = c48 * t551;
        const V t651 = c49 * t550;
        const V t652 = t651 - t650;
        const V t653 = c48 * t550;
        const V t654 = c49 * t551;
        const V t655 = t654 + t653;
        const V t656 = c50 * t233;
        const V t657 = c51 * t232;
        const V t658 = t657 - t656;
        const V t659 = c50 * t232;
        const V t660 = c51 * t233;
        const V t661 = t660 + t659;
        const V t662 = c52 * t541;
        const V t663 = c53 * t540;
        const V t664 = t662 - t663;
        const V t665 = c52 * t540;
        const V t666 = c53 * t541;
        const V t667 = t666 + t665;
        const V t668 = c54 * t195;
        const V t669 = c55 * t194;
        const V t670 = t668 - t669;
        const V t671 = c54 * t194;
        const V t672 = c55 * t195;
        const V t673 = t672 + t671;
        const V t674 = c56 * t531;
        const V t675 = c57 * t530;
        const V t676 = t675 - t674;
        const V t677 = c56 * t530;
        const V t678 = c57 * t531;
        const V t679 = t678 + t677;
        const V t680 = c58 * t241;
        const V t681 = c59 * t240;
        const V t682 = t681 + t680;
        const V t683 = c58 * t240;
        const V t684 = c59 * t241;
        const V t685 = t683 - t684;
        const V t686 = c60 * t521;
        const V t687 = c61 * t520;
        const V t688 = t686 - t687;
        const V t689 = c60 * t520;
        const V t690 = c61 * t521;
        const V t691 = t690 + t689;
        const V t692 = c62 * t275;
        const V t693 = c63 * t274;
        const V t694 = t693 - t692;
        const V t695 = c62 * t274;
        const V t696 = c63 * t275;
        const V t697 = t696 + t695;
        const V t698 = c64 * t511;
        const V t699 = c65 * t510;
        const V t700 = t699 + t698;
        const V t701 = c64 * t510;
        const V t702 = c65 * t511;
        const V t703 = t701 - t702;
        const V t704 = c66 * t285;
        const V t705 = c67 * t284;
        const V t706 = t704 - t705;
        const V t707 = c66 * t284;
        const V t708 = c67 * t285;
        const V t709 = t708 + t707;
        const V t710 = c68 * t501;
        const V t711 = c69 * t500;
        const V t712 = t710 - t711;
        const V t713 = c68 * t500;
        const V t714 = c69 * t501;
        const V t715 = t714 + t713;
        const V t716 = c70 * t235;
        const V t717 = c71 * t234;
        const V t718 = t717 - t716;
        const V t719 = c70 * t234;
        const V t720 = c71 * t235;
        const V t721 = t720 + t719;
        const V t722 = c72 * t491;
        const V t723 = c73 * t490;
        const V t724 = t723 + t722;
        const V t725 = c72 * t490;
        const V t726 = c73 * t491;
        const V t727 = t725 - t726;
        const V t728 = c74 * t193;
        // spectrum block of 2
        const V t729 = t553 + t728;
        const V t730 = t553 - t728;
        // spectrum block of 2
        const V t731 = t729 + t640;
        const V t732 = t729 - t640;
        // spectrum block of 2
        const V t733 = t730 + t643;
        const V t734 = t730 - t643;
        // complex block of 2
        const V t735 = t577 - t709;
        const V t736 = t706 - t574;
        const V t737 = t577 + t709;
        const V t738 = t574 + t706;
        // complex block of 2
        const V t739 = t667 + t619;
        const V t740 = t664 + t616;
        const V t741 = t667 - t619;
        const V t742 = t664 - t616;
        // complex block of 2
        const V t743 = t735 + t739;
        const V t744 = t736 + t740;
        const V t745 = t735 - t739;
        const V t746 = t736 - t740;
        // complex block of 2
        const V t747 = t737 - t742;
        const V t748 = t741 - t738;
        const V t749 = t737 + t742;
        const V t750 = t738 + t741;
        // complex block of 2
        const V t751 = t601 - t685;
        const V t752 = t598 - t682;
        const V t753 = t601 + t685;
        const V t754 = t598 + t682;
        // complex block of 2
        const V t755 = t691 - t595;
        const V t756 = t688 + t592;
        const V t757 = t691 + t595;
        const V t758 = t688 - t592;
        // complex block of 2
        const V t759 = t751 + t755;
        const V t760 = t752 + t756;
        const V t761 = t751 - t755;
        const V t762 = t752 - t756;
        // complex block of 2
        const V t763 = t753 - t758;
        const V t764 = t754 + t757;
        const V t765 = t753 + t758;
        const V t766 = t754 - t757;
        // complex block of 2
        const V t767 = t625 + t661;
        const V t768 = t658 - t622;
        const V t769 = t625 - t661;
        const V t770 = t622 + t658;
        // complex block of 2
        const V t771 = t715 + t571;
        const V t772 = t712 + t568;
        const V t773 = t715 - t571;
        const V t774 = t712 - t568;
        // complex block of 2
        const V t775 = t767 + t771;
        const V t776 = t768 + t772;
        const V t777 = t767 - t771;
        const V t778 = t768 - t772;
        // complex block of 2
        const V t779 = t769 - t774;
        const V t780 = t773 - t770;
        const V t781 = t769 + t774;
        const V t782 = t770 + t773;
        // complex block of 2
        const V t783 = t649 - t637;
        const V t784 = t646 - t634;
        const V t785 = t649 + t637;
        const V t786 = t646 + t634;
        // complex block of 2
        const V t787 = t727 + t559;
        const V t788 = t724 + t556;
        const V t789 = t559 - t727;
        const V t790 = t724 - t556;
        // complex block of 2
        const V t791 = t783 - t787;
        const V t792 = t784 + t788;
        const V t793 = t783 + t787;
        const V t794 = t784 - t788;
        // complex block of 2
        const V t795 = t785 - t790;
        const V t796 = t786 + t789;
        const V t797 = t785 + t790;
        const V t798 = t786 - t789;
        // complex block of 2
        const V t799 = t673 - t613;
        const V t800 = t670 + t610;
        const V t801 = t673 + t613;
        const V t802 = t670 - t610;
        // complex block of 2
        const V t803 = t583 - t703;
        const V t804 = t700 - t580;
        const V t805 = t703 + t583;
        const V t806 = t700 + t580;
        // complex block of 2
        const V t807 = t799 + t803;
        const V t808 = t800 + t804;
        const V t809 = t799 - t803;
        const V t810 = t800 - t804;
        // complex block of 2
        const V t811 = t801 - t806;
        const V t812 = t802 - t805;
        const V t813 = t801 + t806;
        const V t814 = t802 + t805;
        // complex block of 2
        const V t815 = t697 + t589;
        const V t816 = t694 + t586;
        const V t817 = t589 - t697;
        const V t818 = t694 - t586;
        // complex block of 2
        const V t819 = t679 - t607;
        const V t820 = t676 + t604;
        const V t821 = t679 + t607;
        const V t822 = t676 - t604;
        // complex block of 2
        const V t823 = t819 - t815;
        const V t824 = t816 + t820;
        const V t825 = t815 + t819;
        const V t826 = t816 - t820;
        // complex block of 2
        const V t827 = t817 - t822;
        const V t828 = t818 + t821;
        const V t829 = t817 + t822;
        const V t830 = t818 - t821;
        // complex block of 2
        const V t831 = t721 + t565;
        const V t832 = t718 + t562;
        const V t833 = t565 - t721;
        const V t834 = t718 - t562;
        // complex block of 2
        const V t835 = t655 + t631;
        const V t836 = t652 - t628;
        const V t837 = t655 - t631;
        const V t838 = t652 + t628;
        // complex block of 2
        const V t839 = t835 - t831;
        const V t840 = t832 + t836;
        const V t841 = t831 + t835;
        const V t842 = t832 - t836;
        // complex block of 2
        const V t843 = t833 - t838;
        const V t844 = t834 + t837;
        const V t845 = t833 + t838;
        const V t846 = t834 - t837;
        // spectrum block of 3, multiplier 2
        const V t847 = t808 + t731;
        const V t848 = c5 * t808;
        const V t849 = t731 - t848;
        const V t850 = c6 * t807;
        const V t851 = t849 - t850;
        const V t852 = t849 + t850;
        // complex block of 3, multiplier 2
        const V t853 = t839 + t759;
        const V t854 = t840 + t760;
        const V t855 = t759 - t839;
        const V t856 = t840 - t760;
        const V t857 = t775 - t853;
        const V t858 = t854 + t776;
        const V t859 = c5 * t853;
        const V t860 = t859 + t775;
        const V t861 = c5 * t854;
        const V t862 = t776 - t861;
        const V t863 = c6 * t855;
        const V t864 = c6 * t856;
        const V t865 = t860 + t864;
        const V t866 = t862 - t863;
        const V t867 = t860 - t864;
        const V t868 = t862 + t863;
        // complex block of 3, multiplier 2
        const V t869 = t743 - t791;
        const V t870 = t792 + t744;
        const V t871 = t791 + t743;
        const V t872 = t792 - t744;
        const V t873 = t869 + t823;
        const V t874 = t870 + t824;
        const V t875 = c5 * t869;
        const V t876 = t823 - t875;
        const V t877 = c5 * t870;
        const V t878 = t824 - t877;
        const V t879 = c6 * t871;
        const V t880 = c6 * t872;
        const V t881 = t876 + t880;
        const V t882 = t878 + t879;
        const V t883 = t876 - t880;
        const V t884 = t878 - t879;
        // spectrum block of 5, multiplier 2
        const V t885 = t858 + t874;
        const V t886 = t885 + t847;
        io.out(1, t886);
        const V t887 = c1 * t858;
        const V t888 = c2 * t874;
        const V t889 = t887 - t888;
        const V t890 = t889 + t847;
        const V t891 = c3 * t857;
        const V t892 = c4 * t873;
        const V t893 = t891 + t892;
        const V t894 = t890 - t893;
        io.out(20, t894);
        const V t895 = t890 + t893;
        io.out(58, t895);
        const V t896 = c2 * t858;
        const V t897 = t847 - t896;
        const V t898 = c1 * t874;
        const V t899 = t897 + t898;
        const V t900 = c4 * t857;
        const V t901 = c3 * t873;
        const V t902 = t900 - t901;
        const V t903 = t899 - t902;
        io.out(34, t903);
        const V t904 = t899 + t902;
        io.out(9, t904);
        // spectrum block of 5, multiplier 2
        const V t905 = t868 + t884;
        const V t906 = t905 + t852;
        io.out(13, t906);
        const V t907 = c1 * t868;
        const V t908 = c2 * t884;
        const V t909 = t907 - t908;
        const V t910 = t909 + t852;
        const V t911 = c3 * t867;
        const V t912 = c4 * t883;
        const V t913 = t911 + t912;
        const V t914 = t910 - t913;
        io.out(16, t914);
        const V t915 = t910 + t913;
        io.out(22, t915);
        const V t916 = c2 * t868;
        const V t917 = t852 - t916;
        const V t918 = c1 * t884;
        const V t919 = t917 + t918;
        const V t920 = c4 * t867;
        const V t921 = c3 * t883;
        const V t922 = t920 - t921;
        const V t923 = t919 - t922;
        io.out(15, t923);
        const V t924 = t919 + t922;
        io.out(56, t924);
        // spectrum block of 5, multiplier 2
        const V t925 = t866 + t882;
        const V t926 = t925 + t851;
        io.out(47, t926);
        const V t927 = c1 * t866;
        const V t928 = c2 * t882;
        const V t929 = t927 - t928;
        const V t930 = t929 + t851;
        const V t931 = c3 * t865;
        const V t932 = c4 * t881;
        const V t933 = t931 + t932;
        const V t934 = t930 - t933;
        io.out(25, t934);
        const V t935 = t930 + t933;
        io.out(42, t935);
        const V t936 = c2 * t866;
        const V t937 = t851 - t936;
        const V t938 = c1 * t882;
        const V t939 = t937 + t938;
        const V t940 = c4 * t865;
        const V t941 = c3 * t881;
        const V t942 = t940 - t941;
        const V t943 = t939 - t942;
        io.out(12, t943);
        const V t944 = t939 + t942;
        io.out(57, t944);
        // spectrum block of 3, multiplier 2
        const V t945 = t812 + t733;
        const V t946 = c5 * t812;
        const V t947 = t733 - t946;
        const V t948 = c6 * t811;
        const V t949 = t947 - t948;
        const V t950 = t947 + t948;
        // complex block of 3, multiplier 2
        const V t951 = t843 + t763;
        const V t952 = t844 + t764;
        const V t953 = t763 - t843;
        const V t954 = t844 - t764;
        const V t955 = t779 - t951;
        const V t956 = t952 + t780;
        const V t957 = c5 * t951;
        const V t958 = t957 + t779;
        const V t959 = c5 * t952;
        const V t960 = t780 - t959;
        const V t961 = c6 * t953;
        const V t962 = c6 * t954;
        const V t963 = t958 + t962;
        const V t964 = t960 - t961;
        const V t965 = t958 - t962;
        const V t966 = t960 + t961;
        // complex block of 3, multiplier 2
        const V t967 = t747 - t795;
        const V t968 = t796 + t748;
        const V t969 = t795 + t747;
        const V t970 = t796 - t748;
        const V t971 = t967 + t827;
        const V t972 = t968 + t828;
        const V t973 = c5 * t967;
        const V t974 = t827 - t973;
        const V t975 = c5 * t968;
        const V t976 = t828 - t975;
        const V t977 = c6 * t969;
        const V t978 = c6 * t970;
        const V t979 = t974 + t978;
        const V t980 = t976 + t977;
        const V t981 = t974 - t978;
        const V t982 = t976 - t977;
        // spectrum block of 5, multiplier 2
        const V t983 = t956 + t972;
        const V t984 = t983 + t945;
        io.out(50, t984);
        const V t985 = c1 * t956;
        const V t986 = c2 * t972;
        const V t987 = t985 - t986;
        const V t988 = t987 + t945;
        const V t989 = c3 * t955;
        const V t990 = c4 * t971;
        const V t991 = t989 + t990;
        const V t992 = t988 - t991;
        io.out(24, t992);
        const V t993 = t988 + t991;
        io.out(33, t993);
        const V t994 = c2 * t956;
        const V t995 = t945 - t994;
        const V t996 = c1 * t972;
        const V t997 = t995 + t996;
        const V t998 = c4 * t955;
        const V t999 = c3 * t971;
        const V t1000 = t998 - t999;
        const V t1001 = t997 - t1000;
        io.out(53, t1001);
        const V t1002 = t997 + t1000;
        io.out(23, t1002);
        // spectrum block of 5, multiplier 2
        const V t1003 = t966 + t982;
        const V t1004 = t1003 + t950;
        io.out(40, t1004);
        const V t1005 = c1 * t966;
        const V t1006 = c2 * t982;
        const V t1007 = t1005 - t1006;
        const V t1008 = t1007 + t950;
        const V t1009 = c3 * t965;
        const V t1010 = c4 * t981;
        const V t1011 = t1009 + t1010;
        const V t1012 = t1008 - t1011;
        io.out(7, t1012);
        const V t1013 = t1008 + t1011;
        io.out(2, t1013);
        const V t1014 = c2 * t966;
        const V t1015 = t950 - t1014;
        const V t1016 = c1 * t982;
        const V t1017 = t1015 + t1016;
        const V t1018 = c4 * t965;
        const V t1019 = c3 * t981;
        const V t1020 = t1018 - t1019;
        const V t1021 = t1017 - t1020;
        io.out(18, t1021);
        const V t1022 = t1017 + t1020;
        io.out(55, t1022);
        // spectrum block of 5, multiplier 2
        const V t1023 = t964 + t980;
        const V t1024 = t1023 + t949;
        io.out(32, t1024);
        const V t1025 = c1 * t964;
        const V t1026 = c2 * t980;
        const V t1027 = t1025 - t1026;
        const V t1028 = t1027 + t949;
        const V t1029 = c3 * t963;
        const V t1030 = c4 * t979;
        const V t1031 = t1029 + t1030;
        const V t1032 = t1028 - t1031;
        io.out(30, t1032);
        const V t1033 = t1028 + t1031;
        io.out(26, t1033);
        const V t1034 = c2 * t964;
        const V t1035 = t949 - t1034;
        const V t1036 = c1 * t980;
        const V t1037 = t1035 + t1036;
        const V t1038 = c4 * t963;
        const V t1039 = c3 * t979;
        const V t1040 = t1038 - t1039;
        const V t1041 = t1037 - t1040;
        io.out(51, t1041);
        const V t1042 = t1037 + t1040;
        io.out(44, t1042);
        // spectrum block of 3, multiplier 2
        const V t1043 = t810 + t732;
        const V t1044 = c5 * t810;
        const V t1045 = t732 - t1044;
        const V t1046 = c6 * t809;
        const V t1047 = t1045 - t1046;
        const V t1048 = t1045 + t1046;
        // complex block of 3, multiplier 2
        const V t1049 = t841 - t761;
        const V t1050 = t842 + t762;
        const V t1051 = t841 + t761;
        const V t1052 = t842 - t762;
        const V t1053 = t1049 + t777;
        const V t1054 = t1050 + t778;
        const V t1055 = c5 * t1049;
        const V t1056 = t777 - t1055;
        const V t1057 = c5 * t1050;
        const V t1058 = t778 - t1057;
        const V t1059 = c6 * t1051;
        const V t1060 = c6 * t1052;
        const V t1061 = t1056 + t1060;
        const V t1062 = t1058 - t1059;
        const V t1063 = t1056 - t1060;
        const V t1064 = t1058 + t1059;
        // complex block of 3, multiplier 2
        const V t1065 = t745 - t793;
        const V t1066 = t794 + t746;
        const V t1067 = t793 + t745;
        const V t1068 = t794 - t746;
        const V t1069 = t1065 - t825;
        const V t1070 = t1066 + t826;
        const V t1071 = c5 * t1065;
        const V t1072 = t825 + t1071;
        const V t1073 = c5 * t1066;
        const V t1074 = t826 - t1073;
        const V t1075 = c6 * t1067;
        const V t1076 = c6 * t1068;
        const V t1077 = t1076 - t1072;
        const V t1078 = t1074 + t1075;
        const V t1079 = t1072 + t1076;
        const V t1080 = t1074 - t1075;
        // spectrum block of 5, multiplier 2
        const V t1081 = t1054 + t1070;
        const V t1082 = t1081 + t1043;
        io.out(60, t1082);
        const V t1083 = c1 * t1054;
        const V t1084 = c2 * t1070;
        const V t1085 = t1083 - t1084;
        const V t1086 = t1085 + t1043;
        const V t1087 = c3 * t1053;
        const V t1088 = c4 * t1069;
        const V t1089 = t1087 + t1088;
        const V t1090 = t1086 - t1089;
        io.out(41, t1090);
        const V t1091 = t1086 + t1089;
        io.out(3, t1091);
        const V t1092 = c2 * t1054;
        const V t1093 = t1043 - t1092;
        const V t1094 = c1 * t1070;
        const V t1095 = t1093 + t1094;
        const V t1096 = c4 * t1053;
        const V t1097 = c3 * t1069;
        const V t1098 = t1096 - t1097;
        const V t1099 = t1095 - t1098;
        io.out(27, t1099);
        const V t1100 = t1095 + t1098;
        io.out(52, t1100);
        // spectrum block of 5, multiplier 2
        const V t1101 = t1064 + t1080;
        const V t1102 = t1101 + t1048;
        io.out(48, t1102);
        const V t1103 = c1 * t1064;
        const V t1104 = c2 * t1080;
        const V t1105 = t1103 - t1104;
        const V t1106 = t1105 + t1048;
        const V t1107 = c3 * t1063;
        const V t1108 = c4 * t1079;
        const V t1109 = t1107 - t1108;
        const V t1110 = t1106 - t1109;
        io.out(45, t1110);
        const V t1111 = t1106 + t1109;
        io.out(39, t1111);
        const V t1112 = c2 * t1064;
        const V t1113 = t1048 - t1112;
        const V t1114 = c1 * t1080;
        const V t1115 = t1113 + t1114;
        const V t1116 = c4 * t1063;
        const V t1117 = c3 * t1079;
        const V t1118 = t1116 + t1117;
        const V t1119 = t1115 - t1118;
        io.out(46, t1119);
        const V t1120 = t1115 + t1118;
        io.out(5, t1120);
        // spectrum block of 5, multiplier 2
        const V t1121 = t1062 + t1078;
        const V t1122 = t1121 + t1047;
        io.out(14, t1122);
        const V t1123 = c1 * t1062;
        const V t1124 = c2 * t1078;
        const V t1125 = t1123 - t1124;
        const V t1126 = t1125 + t1047;
        const V t1127 = c3 * t1061;
        const V t1128 = c4 * t1077;
        const V t1129 = t1127 + t1128;
        const V t1130 = t1126 - t1129;
        io.out(36, t1130);
        const V t1131 = t1126 + t1129;
        io.out(19, t1131);
        const V t1132 = c2 * t1062;
        const V t1133 = t1047 - t1132;
        const V t1134 = c1 * t1078;
        const V t1135 = t1133 + t1134;
        const V t1136 = c4 * t1061;
        const V t1137 = c3 * t1077;
        const V t1138 = t1136 - t1137;
        const V t1139 = t1135 - t1138;
        io.out(49, t1139);
        const V t1140 = t1135 + t1138;
        io.out(4, t1140);
        // spectrum block of 3, multiplier 2
        const V t1141 = t814 + t734;
        const V t1142 = c5 * t814;
        const V t1143 = t734 - t1142;
        const V t1144 = c6 * t813;
        const V t1145 = t1143 - t1144;
        const V t1146 = t1143 + t1144;
        // complex block of 3, multiplier 2
        const V t1147 = t845 + t765;
        const V t1148 = t846 + t766;
        const V t1149 = t765 - t845;
        const V t1150 = t846 - t766;
        const V t1151 = t781 - t1147;
        const V t1152 = t1148 - t782;
        const V t1153 = c5 * t1147;
        const V t1154 = t1153 + t781;
        const V t1155 = c5 * t1148;
        const V t1156 = t782 + t1155;
        const V t1157 = c6 * t1149;
        const V t1158 = c6 * t1150;
        const V t1159 = t1154 + t1158;
        const V t1160 = t1156 + t1157;
        const V t1161 = t1154 - t1158;
        const V t1162 = t1157 - t1156;
        // complex block of 3, multiplier 2
        const V t1163 = t749 - t797;
        const V t1164 = t798 - t750;
        const V t1165 = t797 + t749;
        const V t1166 = t798 + t750;
        const V t1167 = t1163 + t829;
        const V t1168 = t1164 + t830;
        const V t1169 = c5 * t1163;
        const V t1170 = t829 - t1169;
        const V t1171 = c5 * t1164;
        const V t1172 = t830 - t1171;
        const V t1173 = c6 * t1165;
        const V t1174 = c6 * t1166;
        const V t1175 = t1170 + t1174;
        const V t1176 = t1172 + t1173;
        const V t1177 = t1170 - t1174;
        const V t1178 = t1172 - t1173;
        // spectrum block of 5, multiplier 2
        const V t1179 = t1152 + t1168;
        const V t1180 = t1179 + t1141;
        io.out(11, t1180);
        const V t1181 = c1 * t1152;
        const V t1182 = c2 * t1168;
        const V t1183 = t1181 - t1182;
        const V t1184 = t1183 + t1141;
        const V t1185 = c3 * t1151;
        const V t1186 = c4 * t1167;
        const V t1187 = t1185 + t1186;
        const V t1188 = t1184 - t1187;
        io.out(37, t1188);
        const V t1189 = t1184 + t1187;
        io.out(28, t1189);
        const V t1190 = c2 * t1152;
        const V t1191 = t1141 - t1190;
        const V t1192 = c1 * t1168;
        const V t1193 = t1191 + t1192;
        const V t1194 = c4 * t1151;
        const V t1195 = c3 * t1167;
        const V t1196 = t1194 - t1195;
        const V t1197 = t1193 - t1196;
        io.out(8, t1197);
        const V t1198 = t1193 + t1196;
        io.out(38, t1198);
        // spectrum block of 5, multiplier 2
        const V t1199 = t1162 + t1178;
        const V t1200 = t1199 + t1146;
        io.out(21, t1200);
        const V t1201 = c1 * t1162;
        const V t1202 = c2 * t1178;
        const V t1203 = t1201 - t1202;
        const V t1204 = t1203 + t1146;
        const V t1205 = c3 * t1161;
        const V t1206 = c4 * t1177;
        const V t1207 = t1205 + t1206;
        const V t1208 = t1204 - t1207;
        io.out(54, t1208);
        const V t1209 = t1204 + t1207;
        io.out(59, t1209);
        const V t1210 = c2 * t1162;
        const V t1211 = t1146 - t1210;
        const V t1212 = c1 * t1178;
        const V t1213 = t1211 + t1212;
        const V t1214 = c4 * t1161;
        const V t1215 = c3 * t1177;
        const V t1216 = t1214 - t1215;
        const V t1217 = t1213 - t1216;
        io.out(43, t1217);
        const V t1218 = t1213 + t1216;
        io.out(6, t1218);
        // spectrum block of 5, multiplier 2
        const V t1219 = t1176 - t1160;
        const V t1220 = t1219 + t1145;
        io.out(29, t1220);
        const V t1221 = c1 * t1160;
        const V t1222 = t1145 - t1221;
        const V t1223 = c2 * t1176;
        const V t1224 = t1222 - t1223;
        const V t1225 = c3 * t1159;
        const V t1226 = c4 * t1175;
        const V t1227 = t1225 + t1226;
        const V t1228 = t1224 - t1227;
        io.out(31, t1228);
        const V t1229 = t1224 + t1227;
        io.out(35, t1229);
        const V t1230 = c2 * t1160;
        const V t1231 = c1 * t1176;
        const V t1232 = t1230 + t1231;
        const V t1233 = t1232 + t1145;
        const V t1234 = c4 * t1159;
        const V t1235 = c3 * t1175;
        const V t1236 = t1234 - t1235;
        const V t1237 = t1233 - t1236;
        io.out(10, t1237);
        const V t1238 = t1233 + t1236;
        io.out(17, t1238);
        // spectrum block of 61
        const V t1239 = x0r + t192;
        io.out(0, t1239);
    }
};

template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 61, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_CCSToR, 61, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 61, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PackToR, 61, double>(const double*, double*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 61, float>(const float*, float*, std::int32_t);
template Status ZULG_CALL kernel<Family::DFTInv_PermToR, 61, double>(const double*, double*, std::int32_t);

}  // namespace zulg
