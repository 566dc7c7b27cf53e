// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 22.
// Hartley transform of 22 points, form F.
// 85 additions, 77 subtractions, 100 multiplications (122 with `scale`); 10 constants; 34 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<22> {
    static constexpr int steps = 284;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        0.41541501300188644,  // c[0]: cos 2 pi 2/11
        0.6548607339452851,  // c[1]: -cos 2 pi 18/11
        0.9594929736144974,  // c[2]: -cos 2 pi 6/11
        0.14231483827328514,  // c[3]: -cos 2 pi 8/11
        0.8412535328311812,  // c[4]: cos 2 pi 12/11
        0.9096319953545183,  // c[5]: sin 2 pi 2/11
        0.7557495743542583,  // c[6]: -sin 2 pi 18/11
        0.28173255684142967,  // c[7]: -sin 2 pi 6/11
        0.9898214418809327,  // c[8]: -sin 2 pi 8/11
        0.5406408174555976,  // c[9]: sin 2 pi 12/11
    };

    template <class Ports>
    ZULG_INLINE static void run(const Ports& io) {
        using V = typename Ports::Value;
        const ConstantsOf<Ports, HartleyGraph> c{};
        // real block of 2
        const V x0 = io.in(0);
        const V x11 = io.in(11);
        const V t0 = x0 + x11;
        const V t1 = x0 - x11;
        // real block of 2
        const V x2 = io.in(2);
        const V x13 = io.in(13);
        const V t2 = x2 + x13;
        const V t3 = x2 - x13;
        // real block of 2
        const V x4 = io.in(4);
        const V x15 = io.in(15);
        const V t4 = x4 + x15;
        const V t5 = x4 - x15;
        // real block of 2
        const V x6 = io.in(6);
        const V x17 = io.in(17);
        const V t6 = x6 + x17;
        const V t7 = x6 - x17;
        // real block of 2
        const V x8 = io.in(8);
        const V x19 = io.in(19);
        const V t8 = x8 + x19;
        const V t9 = x8 - x19;
        // real block of 2
        const V x10 = io.in(10);
        const V x21 = io.in(21);
        const V t10 = x10 + x21;
        const V t11 = x10 - x21;
        // real block of 2
        const V x12 = io.in(12);
        const V x1 = io.in(1);
        const V t12 = x12 + x1;
        const V t13 = x12 - x1;
        // real block of 2
        const V x14 = io.in(14);
        const V x3 = io.in(3);
        const V t14 = x14 + x3;
        const V t15 = x14 - x3;
        // real block of 2
        const V x16 = io.in(16);
        const V x5 = io.in(5);
        const V t16 = x16 + x5;
        const V t17 = x16 - x5;
        // real block of 2
        const V x18 = io.in(18);
        const V x7 = io.in(7);
        const V t18 = x18 + x7;
        const V t19 = x18 - x7;
        // real block of 2
        const V x20 = io.in(20);
        const V x9 = io.in(9);
        const V t20 = x20 + x9;
        const V t21 = x20 - x9;
        // real block of 11, multiplier 2
        const V t22 = t2 + t20;
        const V t23 = t2 - t20;
        const V t24 = t18 + t4;
        const V t25 = t18 - t4;
        const V t26 = t6 + t16;
        const V t27 = t6 - t16;
        const V t28 = t8 + t14;
        const V t29 = t8 - t14;
        const V t30 = t12 + t10;
        const V t31 = t12 - t10;
        const V t32 = t22 + t24;
        const V t33 = t32 + t26;
        const V t34 = t33 + t28;
        const V t35 = t34 + t30;
        const V t36 = t35 + t0;
        io.out(0, t36);
        const V t37 = c[0] * t22;
        const V t38 = c[1] * t24;
        const V t39 = t37 - t38;
        const V t40 = c[2] * t26;
        const V t41 = t39 - t40;
        const V t42 = c[3] * t28;
        const V t43 = t41 - t42;
        const V t44 = c[4] * t30;
        const V t45 = t43 + t44;
        const V t46 = t45 + t0;
        const V t47 = c[5] * t23;
        const V t48 = c[6] * t25;
        const V t49 = c[7] * t27;
        const V t50 = c[8] * t29;
        const V t51 = c[9] * t31;
        const V t52 = t48 + t49;
        const V t53 = t52 + t50;
        const V t54 = t53 - t47;
        const V t55 = t54 - t51;
        const V t56 = c[1] * t22;
        const V t57 = t0 - t56;
        const V t58 = c[3] * t24;
        const V t59 = t57 - t58;
        const V t60 = c[4] * t26;
        const V t61 = t59 + t60;
        const V t62 = c[2] * t28;
        const V t63 = t61 - t62;
        const V t64 = c[0] * t30;
        const V t65 = t63 + t64;
        const V t66 = c[6] * t23;
        const V t67 = c[8] * t25;
        const V t68 = c[9] * t27;
        const V t69 = c[7] * t29;
        const V t70 = c[5] * t31;
        const V t71 = t66 + t67;
        const V t72 = t71 + t68;
        const V t73 = t72 + t69;
        const V t74 = t73 + t70;
        const V t75 = c[2] * t22;
        const V t76 = t0 - t75;
        const V t77 = c[4] * t24;
        const V t78 = t76 + t77;
        const V t79 = c[1] * t26;
        const V t80 = t78 - t79;
        const V t81 = c[0] * t28;
        const V t82 = t80 + t81;
        const V t83 = c[3] * t30;
        const V t84 = t82 - t83;
        const V t85 = c[7] * t23;
        const V t86 = c[9] * t25;
        const V t87 = c[6] * t27;
        const V t88 = c[5] * t29;
        const V t89 = c[8] * t31;
        const V t90 = t85 + t86;
        const V t91 = t90 + t87;
        const V t92 = t91 - t88;
        const V t93 = t92 - t89;
        const V t94 = c[3] * t22;
        const V t95 = t0 - t94;
        const V t96 = c[2] * t24;
        const V t97 = t95 - t96;
        const V t98 = c[0] * t26;
        const V t99 = t97 + t98;
        const V t100 = c[4] * t28;
        const V t101 = t99 + t100;
        const V t102 = c[1] * t30;
        const V t103 = t101 - t102;
        const V t104 = c[8] * t23;
        const V t105 = c[7] * t25;
        const V t106 = c[5] * t27;
        const V t107 = c[9] * t29;
        const V t108 = c[6] * t31;
        const V t109 = t104 + t105;
        const V t110 = t109 + t107;
        const V t111 = t110 - t106;
        const V t112 = t111 - t108;
        const V t113 = c[4] * t22;
        const V t114 = c[0] * t24;
        const V t115 = t113 + t114;
        const V t116 = c[3] * t26;
        const V t117 = t115 - t116;
        const V t118 = c[1] * t28;
        const V t119 = t117 - t118;
        const V t120 = c[2] * t30;
        const V t121 = t119 - t120;
        const V t122 = t121 + t0;
        const V t123 = c[9] * t23;
        const V t124 = c[5] * t25;
        const V t125 = c[8] * t27;
        const V t126 = c[6] * t29;
        const V t127 = c[7] * t31;
        const V t128 = t123 + t125;
        const V t129 = t128 + t126;
        const V t130 = t129 - t124;
        const V t131 = t130 - t127;
        // real block of 11, multiplier 2
        const V t132 = t3 + t21;
        const V t133 = t3 - t21;
        const V t134 = t19 + t5;
        const V t135 = t19 - t5;
        const V t136 = t7 + t17;
        const V t137 = t7 - t17;
        const V t138 = t9 + t15;
        const V t139 = t9 - t15;
        const V t140 = t13 + t11;
        const V t141 = t13 - t11;
        const V t142 = t132 + t134;
        const V t143 = t142 + t136;
        const V t144 = t143 + t138;
        const V t145 = t144 + t140;
        const V t146 = t145 + t1;
        io.out(11, t146);
        const V t147 = c[0] * t132;
        const V t148 = c[1] * t134;
        const V t149 = t147 - t148;
        const V t150 = c[2] * t136;
        const V t151 = t149 - t150;
        const V t152 = c[3] * t138;
        const V t153 = t151 - t152;
        const V t154 = c[4] * t140;
        const V t155 = t153 + t154;
        const V t156 = t155 + t1;
        const V t157 = c[5] * t133;
        const V t158 = c[6] * t135;
        const V t159 = c[7] * t137;
        const V t160 = c[8] * t139;
        const V t161 = c[9] * t141;
        const V t162 = t158 + t159;
        const V t163 = t162 + t160;
        const V t164 = t163 - t157;
        const V t165 = t164 - t161;
        const V t166 = c[1] * t132;
        const V t167 = t1 - t166;
        const V t168 = c[3] * t134;
        const V t169 = t167 - t168;
        const V t170 = c[4] * t136;
        const V t171 = t169 + t170;
        const V t172 = c[2] * t138;
        const V t173 = t171 - t172;
        const V t174 = c[0] * t140;
        const V t175 = t173 + t174;
        const V t176 = c[6] * t133;
        const V t177 = c[8] * t135;
        const V t178 = c[9] * t137;
        const V t179 = c[7] * t139;
        const V t180 = c[5] * t141;
        const V t181 = t176 + t177;
        const V t182 = t181 + t178;
        const V t183 = t182 + t179;
        const V t184 = t183 + t180;
        const V t185 = c[2] * t132;
        const V t186 = t1 - t185;
        const V t187 = c[4] * t134;
        const V t188 = t186 + t187;
        const V t189 = c[1] * t136;
        const V t190 = t188 - t189;
        const V t191 = c[0] * t138;
        const V t192 = t190 + t191;
        const V t193 = c[3] * t140;
        const V t194 = t192 - t193;
        const V t195 = c[7] * t133;
        const V t196 = c[9] * t135;
        const V t197 = c[6] * t137;
        const V t198 = c[5] * t139;
        const V t199 = c[8] * t141;
        const V t200 = t195 + t196;
        const V t201 = t200 + t197;
        const V t202 = t201 - t198;
        const V t203 = t202 - t199;
        const V t204 = c[3] * t132;
        const V t205 = t1 - t204;
        const V t206 = c[2] * t134;
        const V t207 = t205 - t206;
        const V t208 = c[0] * t136;
        const V t209 = t207 + t208;
        const V t210 = c[4] * t138;
        const V t211 = t209 + t210;
        const V t212 = c[1] * t140;
        const V t213 = t211 - t212;
        const V t214 = c[8] * t133;
        const V t215 = c[7] * t135;
        const V t216 = c[5] * t137;
        const V t217 = c[9] * t139;
        const V t218 = c[6] * t141;
        const V t219 = t214 + t215;
        const V t220 = t219 + t217;
        const V t221 = t220 - t216;
        const V t222 = t221 - t218;
        const V t223 = c[4] * t132;
        const V t224 = c[0] * t134;
        const V t225 = t223 + t224;
        const V t226 = c[3] * t136;
        const V t227 = t225 - t226;
        const V t228 = c[1] * t138;
        const V t229 = t227 - t228;
        const V t230 = c[2] * t140;
        const V t231 = t229 - t230;
        const V t232 = t231 + t1;
        const V t233 = c[9] * t133;
        const V t234 = c[5] * t135;
        const V t235 = c[8] * t137;
        const V t236 = c[6] * t139;
        const V t237 = c[7] * t141;
        const V t238 = t233 + t235;
        const V t239 = t238 + t236;
        const V t240 = t239 - t234;
        const V t241 = t240 - t237;
        // output stage
        const V t242 = t232 + t241;
        io.out(1, t242);
        const V t243 = t232 - t241;
        io.out(21, t243);
        const V t244 = t46 - t55;
        io.out(2, t244);
        const V t245 = t46 + t55;
        io.out(20, t245);
        const V t246 = t213 + t222;
        io.out(3, t246);
        const V t247 = t213 - t222;
        io.out(19, t247);
        const V t248 = t65 + t74;
        io.out(4, t248);
        const V t249 = t65 - t74;
        io.out(18, t249);
        const V t250 = t194 + t203;
        io.out(5, t250);
        const V t251 = t194 - t203;
        io.out(17, t251);
        const V t252 = t84 - t93;
        io.out(6, t252);
        const V t253 = t84 + t93;
        io.out(16, t253);
        const V t254 = t175 - t184;
        io.out(7, t254);
        const V t255 = t175 + t184;
        io.out(15, t255);
        const V t256 = t103 - t112;
        io.out(8, t256);
        const V t257 = t103 + t112;
        io.out(14, t257);
        const V t258 = t156 + t165;
        io.out(9, t258);
        const V t259 = t156 - t165;
        io.out(13, t259);
        const V t260 = t122 - t131;
        io.out(10, t260);
        const V t261 = t122 + t131;
        io.out(12, t261);
    }
};

}  // namespace zulg
