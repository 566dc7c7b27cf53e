// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, real_forward, 60.
// Forward DFT of 60 real points, prime-factor 3, 5, 4; two lanes to a register.
// 100 sums, 88 differences, 68 products of registers, which do the 570 steps of the graph, those with
// `scale` included; 60 shuffles, 7 changes of sign.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct RealForwardPairs<60> {
    static constexpr int steps = 570;  // with `scale`
    static constexpr double inverseRoot = 0.12909944487358055;  // 1/sqrt(60), for `scale`
    static constexpr double constants[] = {
        0.8090169943749475,  // c[0]: -cos 2 pi 2/5
        0.30901699437494745,  // c[1]: cos 2 pi 6/5
        0.5877852522924731,  // c[2]: sin 2 pi 2/5
        0.9510565162951535,  // c[3]: sin 2 pi 6/5
        0.5,  // c[4]: -cos 2 pi 2/3
        0.8660254037844386,  // c[5]: -sin 2 pi 2/3
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        using P = typename Ports::Pair;
        const ConstantsOf<Ports, RealForwardPairs> c{};
        const P x20_35 = io.in(20, 35);
        const P x40_55 = io.in(40, 55);
        // real block of 3, multiplier 2
        const P t0 = x20_35 + x40_55;
        const P t1 = x20_35 - x40_55;
        const P x0_15 = io.in(0, 15);
        const P t2 = t0 + x0_15;
        const P t3 = c[4] * t0;
        const P t4 = x0_15 - t3;
        const P x32_47 = io.in(32, 47);
        const P x52_7 = io.in(52, 7);
        // real block of 3, multiplier 2
        const P t5 = x32_47 + x52_7;
        const P t6 = x32_47 - x52_7;
        const P x12_27 = io.in(12, 27);
        const P t7 = t5 + x12_27;
        const P t8 = c[4] * t5;
        const P t9 = x12_27 - t8;
        const P x44_59 = io.in(44, 59);
        const P x4_19 = io.in(4, 19);
        // real block of 3, multiplier 2
        const P t10 = x44_59 + x4_19;
        const P t11 = x44_59 - x4_19;
        const P x24_39 = io.in(24, 39);
        const P t12 = t10 + x24_39;
        const P t13 = c[4] * t10;
        const P t14 = x24_39 - t13;
        const P x56_11 = io.in(56, 11);
        const P x16_31 = io.in(16, 31);
        // real block of 3, multiplier 2
        const P t15 = x56_11 + x16_31;
        const P t16 = x56_11 - x16_31;
        const P x36_51 = io.in(36, 51);
        const P t17 = t15 + x36_51;
        const P t18 = c[4] * t15;
        const P t19 = x36_51 - t18;
        const P x8_23 = io.in(8, 23);
        const P x28_43 = io.in(28, 43);
        // real block of 3, multiplier 2
        const P t20 = x8_23 + x28_43;
        const P t21 = x8_23 - x28_43;
        const P x48_3 = io.in(48, 3);
        const P t22 = t20 + x48_3;
        const P t23 = c[4] * t20;
        const P t24 = x48_3 - t23;
        // real block of 5, multiplier 2
        const P t25 = t7 + t22;
        const P t26 = t7 - t22;
        const P t27 = t17 + t12;
        const P t28 = t17 - t12;
        const P t29 = t25 + t27;
        const P t30 = t29 + t2;
        const P t31 = c[0] * t25;
        const P t32 = t2 - t31;
        const P t33 = c[1] * t27;
        const P t34 = t32 + t33;
        const P t35 = c[2] * t26;
        const P t36 = c[3] * t28;
        const P t37 = t35 + t36;
        const P t38 = c[1] * t25;
        const P t39 = c[0] * t27;
        const P t40 = t38 - t39;
        const P t41 = t40 + t2;
        const P t42 = c[3] * t26;
        const P t43 = c[2] * t28;
        const P t44 = t42 - t43;
        // complex block of 5, multiplier 2
        const P t45 = t9 + t24;
        // real block of 3, multiplier 2
        const P t46 = c[5] * t6;
        // real block of 3, multiplier 2
        const P t47 = c[5] * t21;
        // complex block of 5, multiplier 2
        const P t48 = t46 + t47;
        const P t49 = t9 - t24;
        const P t50 = t46 - t47;
        const P t51 = t19 + t14;
        // real block of 3, multiplier 2
        const P t52 = c[5] * t16;
        // real block of 3, multiplier 2
        const P t53 = c[5] * t11;
        // complex block of 5, multiplier 2
        const P t54 = t52 + t53;
        const P t55 = t19 - t14;
        const P t56 = t52 - t53;
        const P t57 = t45 + t51;
        const P t58 = t48 + t54;
        const P t59 = t57 + t4;
        // real block of 3, multiplier 2
        const P t60 = c[5] * t1;
        // complex block of 5, multiplier 2
        const P t61 = t58 + t60;
        const P t62 = c[1] * t45;
        const P t63 = c[0] * t51;
        const P t64 = t62 - t63;
        const P t65 = t64 + t4;
        const P t66 = c[1] * t48;
        const P t67 = c[0] * t54;
        const P t68 = t66 - t67;
        const P t69 = t68 + t60;
        const P t70 = c[3] * t49;
        const P t71 = c[2] * t55;
        const P t72 = t70 - t71;
        const P t73 = c[3] * t50;
        const P t74 = c[2] * t56;
        const P t75 = t73 - t74;
        const P t76 = t65 + t75;
        const P t77 = t69 - t72;
        const P t78 = t65 - t75;
        const P t79 = t69 + t72;
        const P t80 = c[0] * t45;
        const P t81 = t4 - t80;
        const P t82 = c[1] * t51;
        const P t83 = t81 + t82;
        const P t84 = c[0] * t48;
        const P t85 = t60 - t84;
        const P t86 = c[1] * t54;
        const P t87 = t85 + t86;
        const P t88 = c[2] * t49;
        const P t89 = c[3] * t55;
        const P t90 = t88 + t89;
        const P t91 = c[2] * t50;
        const P t92 = c[3] * t56;
        const P t93 = t91 + t92;
        const P t94 = t83 + t93;
        const P t95 = t87 - t90;
        const P t96 = t83 - t93;
        const P t97 = t87 + t90;
        const P x50_5 = io.in(50, 5);
        const P x10_25 = io.in(10, 25);
        // real block of 3, multiplier 2
        const P t98 = x50_5 + x10_25;
        const P t99 = x50_5 - x10_25;
        const P x30_45 = io.in(30, 45);
        const P t100 = t98 + x30_45;
        const P t101 = c[4] * t98;
        const P t102 = x30_45 - t101;
        const P x2_17 = io.in(2, 17);
        const P x22_37 = io.in(22, 37);
        // real block of 3, multiplier 2
        const P t103 = x2_17 + x22_37;
        const P t104 = x2_17 - x22_37;
        const P x42_57 = io.in(42, 57);
        const P t105 = t103 + x42_57;
        const P t106 = c[4] * t103;
        const P t107 = x42_57 - t106;
        const P x14_29 = io.in(14, 29);
        const P x34_49 = io.in(34, 49);
        // real block of 3, multiplier 2
        const P t108 = x14_29 + x34_49;
        const P t109 = x14_29 - x34_49;
        const P x54_9 = io.in(54, 9);
        const P t110 = t108 + x54_9;
        const P t111 = c[4] * t108;
        const P t112 = x54_9 - t111;
        const P x26_41 = io.in(26, 41);
        const P x46_1 = io.in(46, 1);
        // real block of 3, multiplier 2
        const P t113 = x26_41 + x46_1;
        const P t114 = x26_41 - x46_1;
        const P x6_21 = io.in(6, 21);
        const P t115 = t113 + x6_21;
        const P t116 = c[4] * t113;
        const P t117 = x6_21 - t116;
        const P x38_53 = io.in(38, 53);
        const P x58_13 = io.in(58, 13);
        // real block of 3, multiplier 2
        const P t118 = x38_53 + x58_13;
        const P t119 = x38_53 - x58_13;
        const P x18_33 = io.in(18, 33);
        const P t120 = t118 + x18_33;
        const P t121 = c[4] * t118;
        const P t122 = x18_33 - t121;
        // real block of 5, multiplier 2
        const P t123 = t105 + t120;
        const P t124 = t105 - t120;
        const P t125 = t115 + t110;
        const P t126 = t115 - t110;
        const P t127 = t123 + t125;
        const P t128 = t127 + t100;
        const P t129 = c[0] * t123;
        const P t130 = t100 - t129;
        const P t131 = c[1] * t125;
        const P t132 = t130 + t131;
        const P t133 = c[2] * t124;
        const P t134 = c[3] * t126;
        const P t135 = t133 + t134;
        const P t136 = c[1] * t123;
        const P t137 = c[0] * t125;
        const P t138 = t136 - t137;
        const P t139 = t138 + t100;
        const P t140 = c[3] * t124;
        const P t141 = c[2] * t126;
        const P t142 = t140 - t141;
        // complex block of 5, multiplier 2
        const P t143 = t107 + t122;
        // real block of 3, multiplier 2
        const P t144 = c[5] * t104;
        // real block of 3, multiplier 2
        const P t145 = c[5] * t119;
        // complex block of 5, multiplier 2
        const P t146 = t144 + t145;
        const P t147 = t107 - t122;
        const P t148 = t144 - t145;
        const P t149 = t117 + t112;
        // real block of 3, multiplier 2
        const P t150 = c[5] * t114;
        // real block of 3, multiplier 2
        const P t151 = c[5] * t109;
        // complex block of 5, multiplier 2
        const P t152 = t150 + t151;
        const P t153 = t117 - t112;
        const P t154 = t150 - t151;
        const P t155 = t143 + t149;
        const P t156 = t146 + t152;
        const P t157 = t155 + t102;
        // real block of 3, multiplier 2
        const P t158 = c[5] * t99;
        // complex block of 5, multiplier 2
        const P t159 = t156 + t158;
        const P t160 = c[1] * t143;
        const P t161 = c[0] * t149;
        const P t162 = t160 - t161;
        const P t163 = t162 + t102;
        const P t164 = c[1] * t146;
        const P t165 = c[0] * t152;
        const P t166 = t164 - t165;
        const P t167 = t166 + t158;
        const P t168 = c[3] * t147;
        const P t169 = c[2] * t153;
        const P t170 = t168 - t169;
        const P t171 = c[3] * t148;
        const P t172 = c[2] * t154;
        const P t173 = t171 - t172;
        const P t174 = t163 + t173;
        const P t175 = t167 - t170;
        const P t176 = t163 - t173;
        const P t177 = t167 + t170;
        const P t178 = c[0] * t143;
        const P t179 = t102 - t178;
        const P t180 = c[1] * t149;
        const P t181 = t179 + t180;
        const P t182 = c[0] * t146;
        const P t183 = t158 - t182;
        const P t184 = c[1] * t152;
        const P t185 = t183 + t184;
        const P t186 = c[2] * t147;
        const P t187 = c[3] * t153;
        const P t188 = t186 + t187;
        const P t189 = c[2] * t148;
        const P t190 = c[3] * t154;
        const P t191 = t189 + t190;
        const P t192 = t181 + t191;
        const P t193 = t185 - t188;
        const P t194 = t181 - t191;
        const P t195 = t185 + t188;
        // real block of 2
        const P t196 = t30 + t128;
        const P t197 = t30 - t128;
        io.pair(15, t197);
        const V t198 = part<0>(t196);
        const V t199 = part<1>(t196);
        // real block of 2
        const V t200 = t198 + t199;
        io.re(0, t200);
        const V t201 = t198 - t199;
        io.re(30, t201);
        const P t202 = shuffled<0, 2>(t76, t77);
        const P t203 = shuffled<0, 2>(t174, t175);
        // complex block of 2
        const P t204 = t202 + t203;
        const P t205 = shuffled<0, 3>(t202, t203);
        const P t206 = shuffled<0, 3>(t203, t202);
        const P t207 = t205 - t206;
        const P t208 = shuffled<1, 3>(t76, t77);
        const P t209 = shuffled<1, 3>(t174, t175);
        // complex block of 2
        const P t210 = t208 + t209;
        const P t211 = shuffled<0, 3>(t208, t209);
        const P t212 = shuffled<0, 3>(t209, t208);
        const P t213 = t211 - t212;
        // complex block of 2
        const P t214 = t204 + t210;
        io.pair(4, negated<0, 1>(t214));
        const P t215 = shuffled<0, 3>(t204, t210);
        const P t216 = shuffled<0, 3>(t210, t204);
        const P t217 = t215 - t216;
        io.pair(26, negated<0, 1>(t217));
        const P t218 = shuffled<1, 0>(t213);
        const P t219 = flipped<1, 0>(t218);
        // complex block of 2
        const P t220 = t207 + t219;
        io.pair(19, t220);
        const P t221 = t207 - t219;
        io.pair(11, negated<0, 1>(t221));
        const P t222 = shuffled<0, 2>(t96, t97);
        const P t223 = shuffled<0, 2>(t194, t195);
        // complex block of 2
        const P t224 = t222 + t223;
        const P t225 = t222 - t223;
        const P t226 = shuffled<1, 3>(t96, t97);
        const P t227 = shuffled<1, 3>(t194, t195);
        // complex block of 2
        const P t228 = t226 + t227;
        const P t229 = t226 - t227;
        // complex block of 2
        const P t230 = t224 + t228;
        io.pair(8, t230);
        const P t231 = t224 - t228;
        io.pair(22, negated<0, 1>(t231));
        const P t232 = shuffled<1, 0>(t229);
        const P t233 = flipped<1, 0>(t232);
        // complex block of 2
        const P t234 = t225 + t233;
        io.pair(23, t234);
        const P t235 = t225 - t233;
        io.pair(7, negated<0, 1>(t235));
        const P t236 = shuffled<0, 2>(t34, t37);
        const P t237 = shuffled<0, 2>(t132, t135);
        // complex block of 2
        const P t238 = t236 + t237;
        const P t239 = shuffled<0, 3>(t236, t237);
        const P t240 = shuffled<0, 3>(t237, t236);
        const P t241 = t239 - t240;
        const P t242 = shuffled<1, 3>(t34, t37);
        const P t243 = shuffled<1, 3>(t132, t135);
        // complex block of 2
        const P t244 = t242 + t243;
        const P t245 = shuffled<0, 3>(t242, t243);
        const P t246 = shuffled<0, 3>(t243, t242);
        const P t247 = t245 - t246;
        // complex block of 2
        const P t248 = t238 + t244;
        io.pair(12, negated<0, 1>(t248));
        const P t249 = shuffled<0, 3>(t238, t244);
        const P t250 = shuffled<0, 3>(t244, t238);
        const P t251 = t249 - t250;
        io.pair(18, negated<0, 1>(t251));
        const P t252 = shuffled<1, 0>(t247);
        const P t253 = flipped<1, 0>(t252);
        // complex block of 2
        const P t254 = t241 + t253;
        io.pair(27, t254);
        const P t255 = t241 - t253;
        io.pair(3, negated<0, 1>(t255));
        const P t256 = shuffled<0, 2>(t78, t79);
        const P t257 = shuffled<0, 2>(t176, t177);
        // complex block of 2
        const P t258 = t256 + t257;
        const P t259 = shuffled<0, 3>(t256, t257);
        const P t260 = shuffled<0, 3>(t257, t256);
        const P t261 = t259 - t260;
        const P t262 = shuffled<1, 3>(t78, t79);
        const P t263 = shuffled<1, 3>(t176, t177);
        // complex block of 2
        const P t264 = t262 + t263;
        const P t265 = shuffled<0, 3>(t262, t263);
        const P t266 = shuffled<0, 3>(t263, t262);
        const P t267 = t265 - t266;
        // complex block of 2
        const P t268 = t258 + t264;
        io.pair(16, negated<0, 1>(t268));
        const P t269 = shuffled<0, 3>(t258, t264);
        const P t270 = shuffled<0, 3>(t264, t258);
        const P t271 = t269 - t270;
        io.pair(14, negated<0, 1>(t271));
        const P t272 = shuffled<1, 0>(t267);
        const P t273 = flipped<1, 0>(t272);
        // complex block of 2
        const P t274 = t261 + t273;
        io.pair(29, negated<0, 1>(t274));
        const P t275 = t261 - t273;
        io.pair(1, t275);
        const P t276 = shuffled<0, 2>(t59, t61);
        const P t277 = shuffled<0, 2>(t157, t159);
        // complex block of 2
        const P t278 = t276 + t277;
        const P t279 = t276 - t277;
        const P t280 = shuffled<1, 3>(t59, t61);
        const P t281 = shuffled<1, 3>(t157, t159);
        // complex block of 2
        const P t282 = t280 + t281;
        const P t283 = t280 - t281;
        // complex block of 2
        const P t284 = t278 + t282;
        io.pair(20, t284);
        const P t285 = t278 - t282;
        io.pair(10, negated<0, 1>(t285));
        const P t286 = shuffled<1, 0>(t283);
        const P t287 = flipped<1, 0>(t286);
        // complex block of 2
        const P t288 = t279 + t287;
        io.pair(25, negated<0, 1>(t288));
        const P t289 = t279 - t287;
        io.pair(5, t289);
        const P t290 = shuffled<0, 2>(t41, t44);
        const P t291 = shuffled<0, 2>(t139, t142);
        // complex block of 2
        const P t292 = t290 + t291;
        const P t293 = t290 - t291;
        const P t294 = shuffled<1, 3>(t41, t44);
        const P t295 = shuffled<1, 3>(t139, t142);
        // complex block of 2
        const P t296 = t294 + t295;
        const P t297 = t294 - t295;
        // complex block of 2
        const P t298 = t292 + t296;
        io.pair(24, t298);
        const P t299 = t292 - t296;
        io.pair(6, negated<0, 1>(t299));
        const P t300 = shuffled<1, 0>(t297);
        const P t301 = flipped<1, 0>(t300);
        // complex block of 2
        const P t302 = t293 + t301;
        io.pair(21, negated<0, 1>(t302));
        const P t303 = t293 - t301;
        io.pair(9, t303);
        const P t304 = shuffled<0, 2>(t94, t95);
        const P t305 = shuffled<0, 2>(t192, t193);
        // complex block of 2
        const P t306 = t304 + t305;
        const P t307 = shuffled<0, 3>(t304, t305);
        const P t308 = shuffled<0, 3>(t305, t304);
        const P t309 = t307 - t308;
        const P t310 = shuffled<1, 3>(t94, t95);
        const P t311 = shuffled<1, 3>(t192, t193);
        // complex block of 2
        const P t312 = t310 + t311;
        const P t313 = shuffled<0, 3>(t310, t311);
        const P t314 = shuffled<0, 3>(t311, t310);
        const P t315 = t313 - t314;
        // complex block of 2
        const P t316 = t306 + t312;
        io.pair(28, negated<0, 1>(t316));
        const P t317 = shuffled<0, 3>(t306, t312);
        const P t318 = shuffled<0, 3>(t312, t306);
        const P t319 = t317 - t318;
        io.pair(2, negated<0, 1>(t319));
        const P t320 = shuffled<1, 0>(t315);
        const P t321 = flipped<1, 0>(t320);
        // complex block of 2
        const P t322 = t309 + t321;
        io.pair(17, negated<0, 1>(t322));
        const P t323 = t309 - t321;
        io.pair(13, t323);
    }
};

}  // namespace zulg
