// Written by `generate write`; do not edit. The rule: generator/rules/dct4_bodies.cpp, dct4_output, 32.
// Output row of radix 32, rotations by the table, then a mirrored skew transform.
// 256 additions, 256 subtractions, 352 multiplications; 31 constants; 68 values alive at most.
#pragma once

#include "dct4/bodies.h"

namespace zulg {

template <>
struct Dct4Output<32> {
    static constexpr double constants[] = {
        0.7071067811865476,  // c[0]: cos 2 pi 1/8
        0.19509032201612828,  // c[1]: -sin 2 pi 31/32
        0.9807852804032304,  // c[2]: cos 2 pi 31/32
        0.3826834323650898,  // c[3]: -sin 2 pi 30/32
        0.9238795325112867,  // c[4]: cos 2 pi 30/32
        0.5555702330196022,  // c[5]: -sin 2 pi 29/32
        0.8314696123025452,  // c[6]: cos 2 pi 29/32
        0.049067674327418015,  // c[7]: -sin 2 pi 127/128
        0.9987954562051724,  // c[8]: cos 2 pi 127/128
        0.0980171403295606,  // c[9]: -sin 2 pi 126/128
        0.9951847266721969,  // c[10]: cos 2 pi 126/128
        0.14673047445536175,  // c[11]: -sin 2 pi 125/128
        0.989176509964781,  // c[12]: cos 2 pi 125/128
        0.2902846772544624,  // c[13]: -sin 2 pi 122/128
        0.9569403357322088,  // c[14]: cos 2 pi 122/128
        0.4275550934302821,  // c[15]: -sin 2 pi 119/128
        0.9039892931234433,  // c[16]: cos 2 pi 119/128
        0.2429801799032639,  // c[17]: -sin 2 pi 123/128
        0.970031253194544,  // c[18]: cos 2 pi 123/128
        0.47139673682599764,  // c[19]: -sin 2 pi 118/128
        0.881921264348355,  // c[20]: cos 2 pi 118/128
        0.6715589548470184,  // c[21]: -sin 2 pi 113/128
        0.7409511253549591,  // c[22]: cos 2 pi 113/128
        0.33688985339222005,  // c[23]: -sin 2 pi 121/128
        0.9415440651830208,  // c[24]: cos 2 pi 121/128
        0.6343932841636455,  // c[25]: -sin 2 pi 114/128
        0.773010453362737,  // c[26]: cos 2 pi 114/128
        0.8577286100002721,  // c[27]: -sin 2 pi 107/128
        0.5141027441932218,  // c[28]: cos 2 pi 107/128
        0.5956993044924334,  // c[29]: -sin 2 pi 115/128
        0.8032075314806449,  // c[30]: cos 2 pi 115/128
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, Dct4Output> c{};
        const V x0i = io.im(0);
        const V w1 = io.table(1);
        const V t0 = x0i * w1;
        const V x0r = io.re(0);
        const V w0 = io.table(0);
        const V t1 = x0r * w0;
        const V t2 = t1 - t0;
        const V t3 = x0i * w0;
        const V t4 = x0r * w1;
        const V t5 = t4 + t3;
        const V x31i = io.im(31);
        const V w3 = io.table(3);
        const V t6 = x31i * w3;
        const V x31r = io.re(31);
        const V w2 = io.table(2);
        const V t7 = x31r * w2;
        const V t8 = t7 - t6;
        const V t9 = x31i * w2;
        const V t10 = x31r * w3;
        const V t11 = t10 + t9;
        const V x16i = io.im(16);
        const V w5 = io.table(5);
        const V t12 = x16i * w5;
        const V x16r = io.re(16);
        const V w4 = io.table(4);
        const V t13 = x16r * w4;
        const V t14 = t13 - t12;
        const V t15 = x16i * w4;
        const V t16 = x16r * w5;
        const V t17 = t16 + t15;
        const V x15i = io.im(15);
        const V w7 = io.table(7);
        const V t18 = x15i * w7;
        const V x15r = io.re(15);
        const V w6 = io.table(6);
        const V t19 = x15r * w6;
        const V t20 = t19 - t18;
        const V t21 = x15i * w6;
        const V t22 = x15r * w7;
        const V t23 = t22 + t21;
        const V x4i = io.im(4);
        const V w9 = io.table(9);
        const V t24 = x4i * w9;
        const V x4r = io.re(4);
        const V w8 = io.table(8);
        const V t25 = x4r * w8;
        const V t26 = t25 - t24;
        const V t27 = x4i * w8;
        const V t28 = x4r * w9;
        const V t29 = t28 + t27;
        const V x27i = io.im(27);
        const V w11 = io.table(11);
        const V t30 = x27i * w11;
        const V x27r = io.re(27);
        const V w10 = io.table(10);
        const V t31 = x27r * w10;
        const V t32 = t31 - t30;
        const V t33 = x27i * w10;
        const V t34 = x27r * w11;
        const V t35 = t34 + t33;
        const V x20i = io.im(20);
        const V w13 = io.table(13);
        const V t36 = x20i * w13;
        const V x20r = io.re(20);
        const V w12 = io.table(12);
        const V t37 = x20r * w12;
        const V t38 = t37 - t36;
        const V t39 = x20i * w12;
        const V t40 = x20r * w13;
        const V t41 = t40 + t39;
        const V x11i = io.im(11);
        const V w15 = io.table(15);
        const V t42 = x11i * w15;
        const V x11r = io.re(11);
        const V w14 = io.table(14);
        const V t43 = x11r * w14;
        const V t44 = t43 - t42;
        const V t45 = x11i * w14;
        const V t46 = x11r * w15;
        const V t47 = t46 + t45;
        const V x8i = io.im(8);
        const V w17 = io.table(17);
        const V t48 = x8i * w17;
        const V x8r = io.re(8);
        const V w16 = io.table(16);
        const V t49 = x8r * w16;
        const V t50 = t49 - t48;
        const V t51 = x8i * w16;
        const V t52 = x8r * w17;
        const V t53 = t52 + t51;
        const V x23i = io.im(23);
        const V w19 = io.table(19);
        const V t54 = x23i * w19;
        const V x23r = io.re(23);
        const V w18 = io.table(18);
        const V t55 = x23r * w18;
        const V t56 = t55 - t54;
        const V t57 = x23i * w18;
        const V t58 = x23r * w19;
        const V t59 = t58 + t57;
        const V x24i = io.im(24);
        const V w21 = io.table(21);
        const V t60 = x24i * w21;
        const V x24r = io.re(24);
        const V w20 = io.table(20);
        const V t61 = x24r * w20;
        const V t62 = t61 - t60;
        const V t63 = x24i * w20;
        const V t64 = x24r * w21;
        const V t65 = t64 + t63;
        const V x7i = io.im(7);
        const V w23 = io.table(23);
        const V t66 = x7i * w23;
        const V x7r = io.re(7);
        const V w22 = io.table(22);
        const V t67 = x7r * w22;
        const V t68 = t67 - t66;
        const V t69 = x7i * w22;
        const V t70 = x7r * w23;
        const V t71 = t70 + t69;
        const V x12i = io.im(12);
        const V w25 = io.table(25);
        const V t72 = x12i * w25;
        const V x12r = io.re(12);
        const V w24 = io.table(24);
        const V t73 = x12r * w24;
        const V t74 = t73 - t72;
        const V t75 = x12i * w24;
        const V t76 = x12r * w25;
        const V t77 = t76 + t75;
        const V x19i = io.im(19);
        const V w27 = io.table(27);
        const V t78 = x19i * w27;
        const V x19r = io.re(19);
        const V w26 = io.table(26);
        const V t79 = x19r * w26;
        const V t80 = t79 - t78;
        const V t81 = x19i * w26;
        const V t82 = x19r * w27;
        const V t83 = t82 + t81;
        const V x28i = io.im(28);
        const V w29 = io.table(29);
        const V t84 = x28i * w29;
        const V x28r = io.re(28);
        const V w28 = io.table(28);
        const V t85 = x28r * w28;
        const V t86 = t85 - t84;
        const V t87 = x28i * w28;
        const V t88 = x28r * w29;
        const V t89 = t88 + t87;
        const V x3i = io.im(3);
        const V w31 = io.table(31);
        const V t90 = x3i * w31;
        const V x3r = io.re(3);
        const V w30 = io.table(30);
        const V t91 = x3r * w30;
        const V t92 = t91 - t90;
        const V t93 = x3i * w30;
        const V t94 = x3r * w31;
        const V t95 = t94 + t93;
        const V x1i = io.im(1);
        const V w33 = io.table(33);
        const V t96 = x1i * w33;
        const V x1r = io.re(1);
        const V w32 = io.table(32);
        const V t97 = x1r * w32;
        const V t98 = t97 - t96;
        const V t99 = x1i * w32;
        const V t100 = x1r * w33;
        const V t101 = t100 + t99;
        const V x30i = io.im(30);
        const V w35 = io.table(35);
        const V t102 = x30i * w35;
        const V x30r = io.re(30);
        const V w34 = io.table(34);
        const V t103 = x30r * w34;
        const V t104 = t103 - t102;
        const V t105 = x30i * w34;
        const V t106 = x30r * w35;
        const V t107 = t106 + t105;
        const V x17i = io.im(17);
        const V w37 = io.table(37);
        const V t108 = x17i * w37;
        const V x17r = io.re(17);
        const V w36 = io.table(36);
        const V t109 = x17r * w36;
        const V t110 = t109 - t108;
        const V t111 = x17i * w36;
        const V t112 = x17r * w37;
        const V t113 = t112 + t111;
        const V x14i = io.im(14);
        const V w39 = io.table(39);
        const V t114 = x14i * w39;
        const V x14r = io.re(14);
        const V w38 = io.table(38);
        const V t115 = x14r * w38;
        const V t116 = t115 - t114;
        const V t117 = x14i * w38;
        const V t118 = x14r * w39;
        const V t119 = t118 + t117;
        const V x5i = io.im(5);
        const V w41 = io.table(41);
        const V t120 = x5i * w41;
        const V x5r = io.re(5);
        const V w40 = io.table(40);
        const V t121 = x5r * w40;
        const V t122 = t121 - t120;
        const V t123 = x5i * w40;
        const V t124 = x5r * w41;
        const V t125 = t124 + t123;
        const V x26i = io.im(26);
        const V w43 = io.table(43);
        const V t126 = x26i * w43;
        const V x26r = io.re(26);
        const V w42 = io.table(42);
        const V t127 = x26r * w42;
        const V t128 = t127 - t126;
        const V t129 = x26i * w42;
        const V t130 = x26r * w43;
        const V t131 = t130 + t129;
        const V x21i = io.im(21);
        const V w45 = io.table(45);
        const V t132 = x21i * w45;
        const V x21r = io.re(21);
        const V w44 = io.table(44);
        const V t133 = x21r * w44;
        const V t134 = t133 - t132;
        const V t135 = x21i * w44;
        const V t136 = x21r * w45;
        const V t137 = t136 + t135;
        const V x10i = io.im(10);
        const V w47 = io.table(47);
        const V t138 = x10i * w47;
        const V x10r = io.re(10);
        const V w46 = io.table(46);
        const V t139 = x10r * w46;
        const V t140 = t139 - t138;
        const V t141 = x10i * w46;
        const V t142 = x10r * w47;
        const V t143 = t142 + t141;
        const V x9i = io.im(9);
        const V w49 = io.table(49);
        const V t144 = x9i * w49;
        const V x9r = io.re(9);
        const V w48 = io.table(48);
        const V t145 = x9r * w48;
        const V t146 = t145 - t144;
        const V t147 = x9i * w48;
        const V t148 = x9r * w49;
        const V t149 = t148 + t147;
        const V x22i = io.im(22);
        const V w51 = io.table(51);
        const V t150 = x22i * w51;
        const V x22r = io.re(22);
        const V w50 = io.table(50);
        const V t151 = x22r * w50;
        const V t152 = t151 - t150;
        const V t153 = x22i * w50;
        const V t154 = x22r * w51;
        const V t155 = t154 + t153;
        const V x25i = io.im(25);
        const V w53 = io.table(53);
        const V t156 = x25i * w53;
        const V x25r = io.re(25);
        const V w52 = io.table(52);
        const V t157 = x25r * w52;
        const V t158 = t157 - t156;
        const V t159 = x25i * w52;
        const V t160 = x25r * w53;
        const V t161 = t160 + t159;
        const V x6i = io.im(6);
        const V w55 = io.table(55);
        const V t162 = x6i * w55;
        const V x6r = io.re(6);
        const V w54 = io.table(54);
        const V t163 = x6r * w54;
        const V t164 = t163 - t162;
        const V t165 = x6i * w54;
        const V t166 = x6r * w55;
        const V t167 = t166 + t165;
        const V x13i = io.im(13);
        const V w57 = io.table(57);
        const V t168 = x13i * w57;
        const V x13r = io.re(13);
        const V w56 = io.table(56);
        const V t169 = x13r * w56;
        const V t170 = t169 - t168;
        const V t171 = x13i * w56;
        const V t172 = x13r * w57;
        const V t173 = t172 + t171;
        const V x18i = io.im(18);
        const V w59 = io.table(59);
        const V t174 = x18i * w59;
        const V x18r = io.re(18);
        const V w58 = io.table(58);
        const V t175 = x18r * w58;
        const V t176 = t175 - t174;
        const V t177 = x18i * w58;
        const V t178 = x18r * w59;
        const V t179 = t178 + t177;
        const V x29i = io.im(29);
        const V w61 = io.table(61);
        const V t180 = x29i * w61;
        const V x29r = io.re(29);
        const V w60 = io.table(60);
        const V t181 = x29r * w60;
        const V t182 = t181 - t180;
        const V t183 = x29i * w60;
        const V t184 = x29r * w61;
        const V t185 = t184 + t183;
        const V x2i = io.im(2);
        const V w63 = io.table(63);
        const V t186 = x2i * w63;
        const V x2r = io.re(2);
        const V w62 = io.table(62);
        const V t187 = x2r * w62;
        const V t188 = t187 - t186;
        const V t189 = x2i * w62;
        const V t190 = x2r * w63;
        const V t191 = t190 + t189;
        // complex block of 2
        const V t192 = t5 - t11;
        const V t193 = t2 + t8;
        const V t194 = t5 + t11;
        const V t195 = t2 - t8;
        // complex block of 2
        const V t196 = t17 - t23;
        const V t197 = t14 + t20;
        const V t198 = t17 + t23;
        const V t199 = t14 - t20;
        // complex block of 2
        const V t200 = t192 + t196;
        const V t201 = t193 + t197;
        const V t202 = t192 - t196;
        const V t203 = t193 - t197;
        // complex block of 2
        const V t204 = t194 + t199;
        const V t205 = t195 - t198;
        const V t206 = t194 - t199;
        const V t207 = t195 + t198;
        // mirrored skew block of 64
        const V t208 = c[7] * t204;
        const V t209 = c[8] * t205;
        const V t210 = t209 - t208;
        const V t211 = c[7] * t205;
        const V t212 = c[8] * t204;
        const V t213 = t212 + t211;
        const V t214 = c[9] * t202;
        const V t215 = c[10] * t203;
        const V t216 = t215 - t214;
        const V t217 = c[9] * t203;
        const V t218 = c[10] * t202;
        const V t219 = t218 + t217;
        const V t220 = c[11] * t206;
        const V t221 = c[12] * t207;
        const V t222 = t221 - t220;
        const V t223 = c[11] * t207;
        const V t224 = c[12] * t206;
        const V t225 = t224 + t223;
        // complex block of 2
        const V t226 = t101 - t107;
        const V t227 = t98 + t104;
        const V t228 = t101 + t107;
        const V t229 = t98 - t104;
        // complex block of 2
        const V t230 = t113 - t119;
        const V t231 = t110 + t116;
        const V t232 = t113 + t119;
        const V t233 = t110 - t116;
        // complex block of 2
        const V t234 = t226 + t230;
        const V t235 = t227 + t231;
        const V t236 = t226 - t230;
        const V t237 = t227 - t231;
        // complex block of 2
        const V t238 = t228 + t233;
        const V t239 = t229 - t232;
        const V t240 = t228 - t233;
        const V t241 = t229 + t232;
        // mirrored skew block of 64
        const V t242 = c[11] * t238;
        const V t243 = c[12] * t239;
        const V t244 = t243 - t242;
        const V t245 = c[11] * t239;
        const V t246 = c[12] * t238;
        const V t247 = t246 + t245;
        const V t248 = c[13] * t236;
        const V t249 = c[14] * t237;
        const V t250 = t249 - t248;
        const V t251 = c[13] * t237;
        const V t252 = c[14] * t236;
        const V t253 = t252 + t251;
        const V t254 = c[15] * t240;
        const V t255 = c[16] * t241;
        const V t256 = t255 - t254;
        const V t257 = c[15] * t241;
        const V t258 = c[16] * t240;
        const V t259 = t258 + t257;
        // complex block of 2
        const V t260 = t191 - t185;
        const V t261 = t188 + t182;
        const V t262 = t191 + t185;
        const V t263 = t188 - t182;
        // complex block of 2
        const V t264 = t179 - t173;
        const V t265 = t176 + t170;
        const V t266 = t179 + t173;
        const V t267 = t176 - t170;
        // complex block of 2
        const V t268 = t260 + t264;
        const V t269 = t261 + t265;
        const V t270 = t260 - t264;
        const V t271 = t261 - t265;
        // complex block of 2
        const V t272 = t262 + t267;
        const V t273 = t263 - t266;
        const V t274 = t262 - t267;
        const V t275 = t263 + t266;
        // mirrored skew block of 64
        const V t276 = c[17] * t272;
        const V t277 = c[18] * t273;
        const V t278 = t277 - t276;
        const V t279 = c[17] * t273;
        const V t280 = c[18] * t272;
        const V t281 = t280 + t279;
        const V t282 = c[19] * t270;
        const V t283 = c[20] * t271;
        const V t284 = t283 - t282;
        const V t285 = c[19] * t271;
        const V t286 = c[20] * t270;
        const V t287 = t286 + t285;
        const V t288 = c[21] * t274;
        const V t289 = c[22] * t275;
        const V t290 = t289 - t288;
        const V t291 = c[21] * t275;
        const V t292 = c[22] * t274;
        const V t293 = t292 + t291;
        // complex block of 2
        const V t294 = t95 - t89;
        const V t295 = t92 + t86;
        const V t296 = t95 + t89;
        const V t297 = t92 - t86;
        // complex block of 2
        const V t298 = t83 - t77;
        const V t299 = t80 + t74;
        const V t300 = t83 + t77;
        const V t301 = t80 - t74;
        // complex block of 2
        const V t302 = t294 + t298;
        const V t303 = t295 + t299;
        const V t304 = t294 - t298;
        const V t305 = t295 - t299;
        // complex block of 2
        const V t306 = t296 + t301;
        const V t307 = t297 - t300;
        const V t308 = t296 - t301;
        const V t309 = t297 + t300;
        // mirrored skew block of 64
        const V t310 = c[23] * t306;
        const V t311 = c[24] * t307;
        const V t312 = t311 - t310;
        const V t313 = c[23] * t307;
        const V t314 = c[24] * t306;
        const V t315 = t314 + t313;
        const V t316 = c[25] * t304;
        const V t317 = c[26] * t305;
        const V t318 = t317 - t316;
        const V t319 = c[25] * t305;
        const V t320 = c[26] * t304;
        const V t321 = t320 + t319;
        const V t322 = c[27] * t308;
        const V t323 = c[28] * t309;
        const V t324 = t323 - t322;
        const V t325 = c[27] * t309;
        const V t326 = c[28] * t308;
        const V t327 = t326 + t325;
        // complex block of 2
        const V t328 = t29 - t35;
        const V t329 = t26 + t32;
        const V t330 = t29 + t35;
        const V t331 = t26 - t32;
        // complex block of 2
        const V t332 = t41 - t47;
        const V t333 = t38 + t44;
        const V t334 = t41 + t47;
        const V t335 = t38 - t44;
        // complex block of 2
        const V t336 = t328 + t332;
        const V t337 = t329 + t333;
        const V t338 = t328 - t332;
        const V t339 = t329 - t333;
        // complex block of 2
        const V t340 = t330 + t335;
        const V t341 = t331 - t334;
        const V t342 = t330 - t335;
        const V t343 = t331 + t334;
        // mirrored skew block of 64
        const V t344 = c[15] * t340;
        const V t345 = c[16] * t341;
        const V t346 = t345 - t344;
        const V t347 = c[15] * t341;
        const V t348 = c[16] * t340;
        const V t349 = t348 + t347;
        const V t350 = c[26] * t338;
        const V t351 = c[25] * t339;
        const V t352 = t351 - t350;
        const V t353 = c[26] * t339;
        const V t354 = c[25] * t338;
        const V t355 = t354 + t353;
        const V t356 = c[18] * t342;
        const V t357 = c[17] * t343;
        const V t358 = t357 - t356;
        const V t359 = c[18] * t343;
        const V t360 = c[17] * t342;
        const V t361 = t360 + t359;
        // complex block of 2
        const V t362 = t125 - t131;
        const V t363 = t122 + t128;
        const V t364 = t125 + t131;
        const V t365 = t122 - t128;
        // complex block of 2
        const V t366 = t137 - t143;
        const V t367 = t134 + t140;
        const V t368 = t137 + t143;
        const V t369 = t134 - t140;
        // complex block of 2
        const V t370 = t362 + t366;
        const V t371 = t363 + t367;
        const V t372 = t362 - t366;
        const V t373 = t363 - t367;
        // complex block of 2
        const V t374 = t364 + t369;
        const V t375 = t365 - t368;
        const V t376 = t364 - t369;
        const V t377 = t365 + t368;
        // mirrored skew block of 64
        const V t378 = c[28] * t374;
        const V t379 = c[27] * t375;
        const V t380 = t379 - t378;
        const V t381 = c[28] * t375;
        const V t382 = c[27] * t374;
        const V t383 = t382 + t381;
        const V t384 = c[20] * t372;
        const V t385 = c[19] * t373;
        const V t386 = t385 - t384;
        const V t387 = c[20] * t373;
        const V t388 = c[19] * t372;
        const V t389 = t388 + t387;
        const V t390 = c[8] * t376;
        const V t391 = c[7] * t377;
        const V t392 = t391 + t390;
        const V t393 = c[8] * t377;
        const V t394 = c[7] * t376;
        const V t395 = t393 - t394;
        // complex block of 2
        const V t396 = t167 - t161;
        const V t397 = t164 + t158;
        const V t398 = t167 + t161;
        const V t399 = t164 - t158;
        // complex block of 2
        const V t400 = t155 - t149;
        const V t401 = t152 + t146;
        const V t402 = t155 + t149;
        const V t403 = t152 - t146;
        // complex block of 2
        const V t404 = t396 + t400;
        const V t405 = t397 + t401;
        const V t406 = t396 - t400;
        const V t407 = t397 - t401;
        // complex block of 2
        const V t408 = t398 + t403;
        const V t409 = t399 - t402;
        const V t410 = t398 - t403;
        const V t411 = t399 + t402;
        // mirrored skew block of 64
        const V t412 = c[29] * t408;
        const V t413 = c[30] * t409;
        const V t414 = t413 - t412;
        const V t415 = c[29] * t409;
        const V t416 = c[30] * t408;
        const V t417 = t416 + t415;
        const V t418 = c[14] * t406;
        const V t419 = c[13] * t407;
        const V t420 = t419 - t418;
        const V t421 = c[14] * t407;
        const V t422 = c[13] * t406;
        const V t423 = t422 + t421;
        const V t424 = c[24] * t410;
        const V t425 = c[23] * t411;
        const V t426 = t425 + t424;
        const V t427 = c[24] * t411;
        const V t428 = c[23] * t410;
        const V t429 = t427 - t428;
        // complex block of 2
        const V t430 = t71 - t65;
        const V t431 = t68 + t62;
        const V t432 = t71 + t65;
        const V t433 = t68 - t62;
        // complex block of 2
        const V t434 = t59 - t53;
        const V t435 = t56 + t50;
        const V t436 = t59 + t53;
        const V t437 = t56 - t50;
        // complex block of 2
        const V t438 = t430 + t434;
        const V t439 = t431 + t435;
        const V t440 = t430 - t434;
        const V t441 = t431 - t435;
        // complex block of 2
        const V t442 = t432 + t437;
        const V t443 = t433 - t436;
        const V t444 = t432 - t437;
        const V t445 = t433 + t436;
        // mirrored skew block of 64
        const V t446 = c[21] * t442;
        const V t447 = c[22] * t443;
        const V t448 = t447 - t446;
        const V t449 = c[21] * t443;
        const V t450 = c[22] * t442;
        const V t451 = t450 + t449;
        const V t452 = c[10] * t440;
        const V t453 = c[9] * t441;
        const V t454 = t453 - t452;
        const V t455 = c[10] * t441;
        const V t456 = c[9] * t440;
        const V t457 = t456 + t455;
        const V t458 = c[30] * t444;
        const V t459 = c[29] * t445;
        const V t460 = t459 + t458;
        const V t461 = c[30] * t445;
        const V t462 = c[29] * t444;
        const V t463 = t461 - t462;
        // complex block of 2
        const V t464 = t200 - t438;
        const V t465 = t201 + t439;
        const V t466 = t200 + t438;
        const V t467 = t201 - t439;
        // complex block of 2
        const V t468 = t336 - t302;
        const V t469 = t337 + t303;
        const V t470 = t336 + t302;
        const V t471 = t337 - t303;
        // complex block of 2
        const V t472 = t464 + t468;
        const V t473 = t465 + t469;
        const V t474 = t464 - t468;
        const V t475 = t465 - t469;
        // complex block of 2
        const V t476 = t466 + t471;
        const V t477 = t467 - t470;
        const V t478 = t466 - t471;
        const V t479 = t467 + t470;
        // mirrored skew block of 16
        const V t480 = c[1] * t476;
        const V t481 = c[2] * t477;
        const V t482 = t481 - t480;
        const V t483 = c[1] * t477;
        const V t484 = c[2] * t476;
        const V t485 = t484 + t483;
        const V t486 = c[3] * t474;
        const V t487 = c[4] * t475;
        const V t488 = t487 - t486;
        const V t489 = c[3] * t475;
        const V t490 = c[4] * t474;
        const V t491 = t490 + t489;
        const V t492 = c[5] * t478;
        const V t493 = c[6] * t479;
        const V t494 = t493 - t492;
        const V t495 = c[5] * t479;
        const V t496 = c[6] * t478;
        const V t497 = t496 + t495;
        // complex block of 2
        const V t498 = t234 - t404;
        const V t499 = t235 + t405;
        const V t500 = t234 + t404;
        const V t501 = t235 - t405;
        // complex block of 2
        const V t502 = t370 - t268;
        const V t503 = t371 + t269;
        const V t504 = t370 + t268;
        const V t505 = t371 - t269;
        // complex block of 2
        const V t506 = t498 + t502;
        const V t507 = t499 + t503;
        const V t508 = t498 - t502;
        const V t509 = t499 - t503;
        // complex block of 2
        const V t510 = t500 + t505;
        const V t511 = t501 - t504;
        const V t512 = t500 - t505;
        const V t513 = t501 + t504;
        // mirrored skew block of 16
        const V t514 = c[5] * t510;
        const V t515 = c[6] * t511;
        const V t516 = t515 - t514;
        const V t517 = c[5] * t511;
        const V t518 = c[6] * t510;
        const V t519 = t518 + t517;
        const V t520 = c[4] * t508;
        const V t521 = c[3] * t509;
        const V t522 = t521 - t520;
        const V t523 = c[4] * t509;
        const V t524 = c[3] * t508;
        const V t525 = t524 + t523;
        const V t526 = c[2] * t512;
        const V t527 = c[1] * t513;
        const V t528 = t527 + t526;
        const V t529 = c[2] * t513;
        const V t530 = c[1] * t512;
        const V t531 = t529 - t530;
        // mirrored skew block of 4
        const V t532 = t473 - t507;
        const V t533 = c[0] * t532;
        const V t534 = t472 + t506;
        const V t535 = c[0] * t534;
        const V t536 = t473 + t507;
        io.rising(0, t536);
        const V t537 = t533 - t535;
        io.rising(16, t537);
        const V t538 = t472 - t506;
        io.falling(0, t538);
        const V t539 = t533 + t535;
        io.falling(16, t539);
        // mirrored skew block of 4
        const V t540 = t482 - t516;
        const V t541 = c[0] * t540;
        const V t542 = t485 + t519;
        const V t543 = c[0] * t542;
        const V t544 = t482 + t516;
        io.rising(4, t544);
        const V t545 = t541 - t543;
        io.rising(20, t545);
        const V t546 = t485 - t519;
        io.falling(4, t546);
        const V t547 = t541 + t543;
        io.falling(20, t547);
        // mirrored skew block of 4
        const V t548 = t488 - t522;
        const V t549 = c[0] * t548;
        const V t550 = t491 + t525;
        const V t551 = c[0] * t550;
        const V t552 = t488 + t522;
        io.rising(8, t552);
        const V t553 = t549 - t551;
        io.rising(24, t553);
        const V t554 = t491 - t525;
        io.falling(8, t554);
        const V t555 = t549 + t551;
        io.falling(24, t555);
        // mirrored skew block of 4
        const V t556 = t494 + t528;
        const V t557 = c[0] * t556;
        const V t558 = t497 + t531;
        const V t559 = c[0] * t558;
        const V t560 = t494 - t528;
        io.rising(12, t560);
        const V t561 = t557 - t559;
        io.rising(28, t561);
        const V t562 = t497 - t531;
        io.falling(12, t562);
        const V t563 = t557 + t559;
        io.falling(28, t563);
        // complex block of 2
        const V t564 = t213 - t451;
        const V t565 = t210 + t448;
        const V t566 = t213 + t451;
        const V t567 = t210 - t448;
        // complex block of 2
        const V t568 = t349 - t315;
        const V t569 = t346 + t312;
        const V t570 = t349 + t315;
        const V t571 = t346 - t312;
        // complex block of 2
        const V t572 = t564 + t568;
        const V t573 = t565 + t569;
        const V t574 = t564 - t568;
        const V t575 = t565 - t569;
        // complex block of 2
        const V t576 = t566 + t571;
        const V t577 = t567 - t570;
        const V t578 = t566 - t571;
        const V t579 = t567 + t570;
        // mirrored skew block of 16
        const V t580 = c[1] * t576;
        const V t581 = c[2] * t577;
        const V t582 = t581 - t580;
        const V t583 = c[1] * t577;
        const V t584 = c[2] * t576;
        const V t585 = t584 + t583;
        const V t586 = c[3] * t574;
        const V t587 = c[4] * t575;
        const V t588 = t587 - t586;
        const V t589 = c[3] * t575;
        const V t590 = c[4] * t574;
        const V t591 = t590 + t589;
        const V t592 = c[5] * t578;
        const V t593 = c[6] * t579;
        const V t594 = t593 - t592;
        const V t595 = c[5] * t579;
        const V t596 = c[6] * t578;
        const V t597 = t596 + t595;
        // complex block of 2
        const V t598 = t247 - t417;
        const V t599 = t244 + t414;
        const V t600 = t247 + t417;
        const V t601 = t244 - t414;
        // complex block of 2
        const V t602 = t383 - t281;
        const V t603 = t380 + t278;
        const V t604 = t383 + t281;
        const V t605 = t380 - t278;
        // complex block of 2
        const V t606 = t598 + t602;
        const V t607 = t599 + t603;
        const V t608 = t598 - t602;
        const V t609 = t599 - t603;
        // complex block of 2
        const V t610 = t600 + t605;
        const V t611 = t601 - t604;
        const V t612 = t600 - t605;
        const V t613 = t601 + t604;
        // mirrored skew block of 16
        const V t614 = c[5] * t610;
        const V t615 = c[6] * t611;
        const V t616 = t615 - t614;
        const V t617 = c[5] * t611;
        const V t618 = c[6] * t610;
        const V t619 = t618 + t617;
        const V t620 = c[4] * t608;
        const V t621 = c[3] * t609;
        const V t622 = t621 - t620;
        const V t623 = c[4] * t609;
        const V t624 = c[3] * t608;
        const V t625 = t624 + t623;
        const V t626 = c[2] * t612;
        const V t627 = c[1] * t613;
        const V t628 = t627 + t626;
        const V t629 = c[2] * t613;
        const V t630 = c[1] * t612;
        const V t631 = t629 - t630;
        // mirrored skew block of 4
        const V t632 = t573 - t607;
        const V t633 = c[0] * t632;
        const V t634 = t572 + t606;
        const V t635 = c[0] * t634;
        const V t636 = t573 + t607;
        io.rising(1, t636);
        const V t637 = t633 - t635;
        io.rising(17, t637);
        const V t638 = t572 - t606;
        io.falling(1, t638);
        const V t639 = t633 + t635;
        io.falling(17, t639);
        // mirrored skew block of 4
        const V t640 = t582 - t616;
        const V t641 = c[0] * t640;
        const V t642 = t585 + t619;
        const V t643 = c[0] * t642;
        const V t644 = t582 + t616;
        io.rising(5, t644);
        const V t645 = t641 - t643;
        io.rising(21, t645);
        const V t646 = t585 - t619;
        io.falling(5, t646);
        const V t647 = t641 + t643;
        io.falling(21, t647);
        // mirrored skew block of 4
        const V t648 = t588 - t622;
        const V t649 = c[0] * t648;
        const V t650 = t591 + t625;
        const V t651 = c[0] * t650;
        const V t652 = t588 + t622;
        io.rising(9, t652);
        const V t653 = t649 - t651;
        io.rising(25, t653);
        const V t654 = t591 - t625;
        io.falling(9, t654);
        const V t655 = t649 + t651;
        io.falling(25, t655);
        // mirrored skew block of 4
        const V t656 = t594 + t628;
        const V t657 = c[0] * t656;
        const V t658 = t597 + t631;
        const V t659 = c[0] * t658;
        const V t660 = t594 - t628;
        io.rising(13, t660);
        const V t661 = t657 - t659;
        io.rising(29, t661);
        const V t662 = t597 - t631;
        io.falling(13, t662);
        const V t663 = t657 + t659;
        io.falling(29, t663);
        // complex block of 2
        const V t664 = t219 - t457;
        const V t665 = t216 + t454;
        const V t666 = t219 + t457;
        const V t667 = t216 - t454;
        // complex block of 2
        const V t668 = t355 - t321;
        const V t669 = t352 + t318;
        const V t670 = t355 + t321;
        const V t671 = t352 - t318;
        // complex block of 2
        const V t672 = t664 + t668;
        const V t673 = t665 + t669;
        const V t674 = t664 - t668;
        const V t675 = t665 - t669;
        // complex block of 2
        const V t676 = t666 + t671;
        const V t677 = t667 - t670;
        const V t678 = t666 - t671;
        const V t679 = t667 + t670;
        // mirrored skew block of 16
        const V t680 = c[1] * t676;
        const V t681 = c[2] * t677;
        const V t682 = t681 - t680;
        const V t683 = c[1] * t677;
        const V t684 = c[2] * t676;
        const V t685 = t684 + t683;
        const V t686 = c[3] * t674;
        const V t687 = c[4] * t675;
        const V t688 = t687 - t686;
        const V t689 = c[3] * t675;
        const V t690 = c[4] * t674;
        const V t691 = t690 + t689;
        const V t692 = c[5] * t678;
        const V t693 = c[6] * t679;
        const V t694 = t693 - t692;
        const V t695 = c[5] * t679;
        const V t696 = c[6] * t678;
        const V t697 = t696 + t695;
        // complex block of 2
        const V t698 = t253 - t423;
        const V t699 = t250 + t420;
        const V t700 = t253 + t423;
        const V t701 = t250 - t420;
        // complex block of 2
        const V t702 = t389 - t287;
        const V t703 = t386 + t284;
        const V t704 = t389 + t287;
        const V t705 = t386 - t284;
        // complex block of 2
        const V t706 = t698 + t702;
        const V t707 = t699 + t703;
        const V t708 = t698 - t702;
        const V t709 = t699 - t703;
        // complex block of 2
        const V t710 = t700 + t705;
        const V t711 = t701 - t704;
        const V t712 = t700 - t705;
        const V t713 = t701 + t704;
        // mirrored skew block of 16
        const V t714 = c[5] * t710;
        const V t715 = c[6] * t711;
        const V t716 = t715 - t714;
        const V t717 = c[5] * t711;
        const V t718 = c[6] * t710;
        const V t719 = t718 + t717;
        const V t720 = c[4] * t708;
        const V t721 = c[3] * t709;
        const V t722 = t721 - t720;
        const V t723 = c[4] * t709;
        const V t724 = c[3] * t708;
        const V t725 = t724 + t723;
        const V t726 = c[2] * t712;
        const V t727 = c[1] * t713;
        const V t728 = t727 + t726;
        const V t729 = c[2] * t713;
        const V t730 = c[1] * t712;
        const V t731 = t729 - t730;
        // mirrored skew block of 4
        const V t732 = t673 - t707;
        const V t733 = c[0] * t732;
        const V t734 = t672 + t706;
        const V t735 = c[0] * t734;
        const V t736 = t673 + t707;
        io.rising(2, t736);
        const V t737 = t733 - t735;
        io.rising(18, t737);
        const V t738 = t672 - t706;
        io.falling(2, t738);
        const V t739 = t733 + t735;
        io.falling(18, t739);
        // mirrored skew block of 4
        const V t740 = t682 - t716;
        const V t741 = c[0] * t740;
        const V t742 = t685 + t719;
        const V t743 = c[0] * t742;
        const V t744 = t682 + t716;
        io.rising(6, t744);
        const V t745 = t741 - t743;
        io.rising(22, t745);
        const V t746 = t685 - t719;
        io.falling(6, t746);
        const V t747 = t741 + t743;
        io.falling(22, t747);
        // mirrored skew block of 4
        const V t748 = t688 - t722;
        const V t749 = c[0] * t748;
        const V t750 = t691 + t725;
        const V t751 = c[0] * t750;
        const V t752 = t688 + t722;
        io.rising(10, t752);
        const V t753 = t749 - t751;
        io.rising(26, t753);
        const V t754 = t691 - t725;
        io.falling(10, t754);
        const V t755 = t749 + t751;
        io.falling(26, t755);
        // mirrored skew block of 4
        const V t756 = t694 + t728;
        const V t757 = c[0] * t756;
        const V t758 = t697 + t731;
        const V t759 = c[0] * t758;
        const V t760 = t694 - t728;
        io.rising(14, t760);
        const V t761 = t757 - t759;
        io.rising(30, t761);
        const V t762 = t697 - t731;
        io.falling(14, t762);
        const V t763 = t757 + t759;
        io.falling(30, t763);
        // complex block of 2
        const V t764 = t225 - t463;
        const V t765 = t222 - t460;
        const V t766 = t225 + t463;
        const V t767 = t222 + t460;
        // complex block of 2
        const V t768 = t361 - t327;
        const V t769 = t358 + t324;
        const V t770 = t361 + t327;
        const V t771 = t358 - t324;
        // complex block of 2
        const V t772 = t764 + t768;
        const V t773 = t765 + t769;
        const V t774 = t764 - t768;
        const V t775 = t765 - t769;
        // complex block of 2
        const V t776 = t766 + t771;
        const V t777 = t767 - t770;
        const V t778 = t766 - t771;
        const V t779 = t767 + t770;
        // mirrored skew block of 16
        const V t780 = c[1] * t776;
        const V t781 = c[2] * t777;
        const V t782 = t781 - t780;
        const V t783 = c[1] * t777;
        const V t784 = c[2] * t776;
        const V t785 = t784 + t783;
        const V t786 = c[3] * t774;
        const V t787 = c[4] * t775;
        const V t788 = t787 - t786;
        const V t789 = c[3] * t775;
        const V t790 = c[4] * t774;
        const V t791 = t790 + t789;
        const V t792 = c[5] * t778;
        const V t793 = c[6] * t779;
        const V t794 = t793 - t792;
        const V t795 = c[5] * t779;
        const V t796 = c[6] * t778;
        const V t797 = t796 + t795;
        // complex block of 2
        const V t798 = t259 - t429;
        const V t799 = t256 - t426;
        const V t800 = t259 + t429;
        const V t801 = t256 + t426;
        // complex block of 2
        const V t802 = t395 - t293;
        const V t803 = t290 - t392;
        const V t804 = t395 + t293;
        const V t805 = t392 + t290;
        // complex block of 2
        const V t806 = t798 + t802;
        const V t807 = t799 + t803;
        const V t808 = t798 - t802;
        const V t809 = t799 - t803;
        // complex block of 2
        const V t810 = t800 - t805;
        const V t811 = t801 - t804;
        const V t812 = t800 + t805;
        const V t813 = t801 + t804;
        // mirrored skew block of 16
        const V t814 = c[5] * t810;
        const V t815 = c[6] * t811;
        const V t816 = t815 - t814;
        const V t817 = c[5] * t811;
        const V t818 = c[6] * t810;
        const V t819 = t818 + t817;
        const V t820 = c[4] * t808;
        const V t821 = c[3] * t809;
        const V t822 = t821 - t820;
        const V t823 = c[4] * t809;
        const V t824 = c[3] * t808;
        const V t825 = t824 + t823;
        const V t826 = c[2] * t812;
        const V t827 = c[1] * t813;
        const V t828 = t827 + t826;
        const V t829 = c[2] * t813;
        const V t830 = c[1] * t812;
        const V t831 = t829 - t830;
        // mirrored skew block of 4
        const V t832 = t773 - t807;
        const V t833 = c[0] * t832;
        const V t834 = t772 + t806;
        const V t835 = c[0] * t834;
        const V t836 = t773 + t807;
        io.rising(3, t836);
        const V t837 = t833 - t835;
        io.rising(19, t837);
        const V t838 = t772 - t806;
        io.falling(3, t838);
        const V t839 = t833 + t835;
        io.falling(19, t839);
        // mirrored skew block of 4
        const V t840 = t782 - t816;
        const V t841 = c[0] * t840;
        const V t842 = t785 + t819;
        const V t843 = c[0] * t842;
        const V t844 = t782 + t816;
        io.rising(7, t844);
        const V t845 = t841 - t843;
        io.rising(23, t845);
        const V t846 = t785 - t819;
        io.falling(7, t846);
        const V t847 = t841 + t843;
        io.falling(23, t847);
        // mirrored skew block of 4
        const V t848 = t788 - t822;
        const V t849 = c[0] * t848;
        const V t850 = t791 + t825;
        const V t851 = c[0] * t850;
        const V t852 = t788 + t822;
        io.rising(11, t852);
        const V t853 = t849 - t851;
        io.rising(27, t853);
        const V t854 = t791 - t825;
        io.falling(11, t854);
        const V t855 = t849 + t851;
        io.falling(27, t855);
        // mirrored skew block of 4
        const V t856 = t794 + t828;
        const V t857 = c[0] * t856;
        const V t858 = t797 + t831;
        const V t859 = c[0] * t858;
        const V t860 = t794 - t828;
        io.rising(15, t860);
        const V t861 = t857 - t859;
        io.rising(31, t861);
        const V t862 = t797 - t831;
        io.falling(15, t862);
        const V t863 = t857 + t859;
        io.falling(31, t863);
    }
};

}  // namespace zulg
