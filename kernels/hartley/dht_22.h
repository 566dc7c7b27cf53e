// Written by `generate write`; do not edit. The rule: generator/rules/tables.cpp, hartley, 22.
// Hartley transform of 22 points, form F.
// 85 additions, 77 subtractions, 100 multiplications (122 with `scale`); 10 constants; 82 values alive at most.
#pragma once

#include "kernel/graphs.h"

namespace zulg {

template <>
struct HartleyGraph<22> {
    static constexpr int steps = 284;  // with `scale`
    static constexpr double inverseRoot = 0.21320071635561041;  // 1/sqrt(22), for `scale`
    static constexpr double constants[] = {
        0.9594929736144974,  // c[0]: -cos 2 pi 6/11
        0.8412535328311812,  // c[1]: cos 2 pi 12/11
        0.6548607339452851,  // c[2]: -cos 2 pi 18/11
        0.41541501300188644,  // c[3]: cos 2 pi 2/11
        0.14231483827328514,  // c[4]: -cos 2 pi 8/11
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
        const V x20 = io.in(20);
        const V x9 = io.in(9);
        const V t4 = x20 + x9;
        const V t5 = x20 - x9;
        // real block of 11, multiplier 2
        const V t6 = t2 + t4;
        const V t7 = t2 - t4;
        // real block of 11, multiplier 2
        const V t8 = t3 + t5;
        const V t9 = t3 - t5;
        // real block of 2
        const V x4 = io.in(4);
        const V x15 = io.in(15);
        const V t10 = x4 + x15;
        const V t11 = x4 - x15;
        // real block of 2
        const V x18 = io.in(18);
        const V x7 = io.in(7);
        const V t12 = x18 + x7;
        const V t13 = x18 - x7;
        // real block of 11, multiplier 2
        const V t14 = t12 + t10;
        const V t15 = t12 - t10;
        // real block of 11, multiplier 2
        const V t16 = t13 + t11;
        const V t17 = t13 - t11;
        // real block of 2
        const V x16 = io.in(16);
        const V x5 = io.in(5);
        const V t18 = x16 + x5;
        const V t19 = x16 - x5;
        // real block of 2
        const V x6 = io.in(6);
        const V x17 = io.in(17);
        const V t20 = x6 + x17;
        const V t21 = x6 - x17;
        // real block of 11, multiplier 2
        const V t22 = t20 - t18;
        // real block of 11, multiplier 2
        const V t23 = t21 - t19;
        // real block of 11, multiplier 2
        const V t24 = t20 + t18;
        const V t25 = c[0] * t24;
        const V t26 = c[1] * t24;
        const V t27 = c[2] * t24;
        const V t28 = c[3] * t24;
        const V t29 = c[4] * t24;
        const V t30 = t6 + t14;
        const V t31 = c[3] * t6;
        const V t32 = c[2] * t14;
        const V t33 = t31 - t32;
        const V t34 = c[5] * t7;
        const V t35 = c[6] * t15;
        const V t36 = c[7] * t22;
        const V t37 = t35 + t36;
        const V t38 = c[2] * t6;
        const V t39 = t0 - t38;
        const V t40 = c[4] * t14;
        const V t41 = c[6] * t7;
        const V t42 = c[8] * t15;
        const V t43 = t41 + t42;
        const V t44 = c[9] * t22;
        const V t45 = c[0] * t6;
        const V t46 = t0 - t45;
        const V t47 = c[1] * t14;
        const V t48 = c[7] * t7;
        const V t49 = c[9] * t15;
        const V t50 = t48 + t49;
        const V t51 = c[6] * t22;
        const V t52 = c[4] * t6;
        const V t53 = t0 - t52;
        const V t54 = c[0] * t14;
        const V t55 = c[8] * t7;
        const V t56 = c[7] * t15;
        const V t57 = t55 + t56;
        const V t58 = c[5] * t22;
        const V t59 = c[1] * t6;
        const V t60 = c[3] * t14;
        const V t61 = t59 + t60;
        const V t62 = c[9] * t7;
        const V t63 = c[8] * t22;
        const V t64 = t62 + t63;
        const V t65 = c[5] * t15;
        // real block of 11, multiplier 2
        const V t66 = t21 + t19;
        const V t67 = c[0] * t66;
        const V t68 = c[1] * t66;
        const V t69 = c[2] * t66;
        const V t70 = c[3] * t66;
        const V t71 = c[4] * t66;
        const V t72 = t8 + t16;
        const V t73 = c[3] * t8;
        const V t74 = c[2] * t16;
        const V t75 = t73 - t74;
        const V t76 = c[5] * t9;
        const V t77 = c[6] * t17;
        const V t78 = c[7] * t23;
        const V t79 = t77 + t78;
        const V t80 = c[2] * t8;
        const V t81 = t1 - t80;
        const V t82 = c[4] * t16;
        const V t83 = c[6] * t9;
        const V t84 = c[8] * t17;
        const V t85 = t83 + t84;
        const V t86 = c[9] * t23;
        const V t87 = c[0] * t8;
        const V t88 = t1 - t87;
        const V t89 = c[1] * t16;
        const V t90 = c[7] * t9;
        const V t91 = c[9] * t17;
        const V t92 = t90 + t91;
        const V t93 = c[6] * t23;
        const V t94 = c[4] * t8;
        const V t95 = t1 - t94;
        const V t96 = c[0] * t16;
        const V t97 = c[8] * t9;
        const V t98 = c[7] * t17;
        const V t99 = t97 + t98;
        const V t100 = c[5] * t23;
        const V t101 = c[1] * t8;
        const V t102 = c[3] * t16;
        const V t103 = t101 + t102;
        const V t104 = c[9] * t9;
        const V t105 = c[8] * t23;
        const V t106 = t104 + t105;
        const V t107 = c[5] * t17;
        // real block of 2
        const V x12 = io.in(12);
        const V x1 = io.in(1);
        const V t108 = x12 + x1;
        const V t109 = x12 - x1;
        // real block of 2
        const V x10 = io.in(10);
        const V x21 = io.in(21);
        const V t110 = x10 + x21;
        const V t111 = x10 - x21;
        // real block of 11, multiplier 2
        const V t112 = t108 + t110;
        const V t113 = c[1] * t112;
        const V t114 = c[0] * t112;
        const V t115 = t108 - t110;
        // real block of 11, multiplier 2
        const V t116 = t109 + t111;
        const V t117 = c[1] * t116;
        const V t118 = c[0] * t116;
        const V t119 = t109 - t111;
        // real block of 2
        const V x14 = io.in(14);
        const V x3 = io.in(3);
        const V t120 = x14 + x3;
        const V t121 = x14 - x3;
        // real block of 2
        const V x8 = io.in(8);
        const V x19 = io.in(19);
        const V t122 = x8 + x19;
        const V t123 = x8 - x19;
        // real block of 11, multiplier 2
        const V t124 = t122 + t120;
        const V t125 = c[4] * t124;
        const V t126 = c[0] * t124;
        const V t127 = c[3] * t124;
        const V t128 = c[1] * t124;
        const V t129 = c[2] * t124;
        const V t130 = t122 - t120;
        const V t131 = c[8] * t130;
        const V t132 = c[7] * t130;
        const V t133 = c[5] * t130;
        const V t134 = c[9] * t130;
        const V t135 = c[6] * t130;
        // real block of 11, multiplier 2
        const V t136 = t123 + t121;
        const V t137 = c[4] * t136;
        const V t138 = c[0] * t136;
        const V t139 = c[3] * t136;
        const V t140 = c[1] * t136;
        const V t141 = c[2] * t136;
        const V t142 = t123 - t121;
        const V t143 = c[8] * t142;
        const V t144 = c[7] * t142;
        const V t145 = c[5] * t142;
        const V t146 = c[9] * t142;
        const V t147 = c[6] * t142;
        // real block of 11, multiplier 2
        const V t148 = t30 + t24;
        const V t149 = t148 + t124;
        const V t150 = t149 + t112;
        const V t151 = t150 + t0;
        io.out(0, t151);
        const V t152 = t33 - t25;
        const V t153 = t152 - t125;
        const V t154 = t153 + t113;
        const V t155 = c[9] * t115;
        const V t156 = t37 + t131;
        const V t157 = t156 - t34;
        const V t158 = t154 + t0;
        const V t159 = t157 - t155;
        // output stage
        const V t160 = t158 - t159;
        io.out(2, t160);
        const V t161 = t158 + t159;
        io.out(20, t161);
        // real block of 11, multiplier 2
        const V t162 = t39 - t40;
        const V t163 = t162 + t26;
        const V t164 = t163 - t126;
        const V t165 = c[3] * t112;
        const V t166 = c[5] * t115;
        const V t167 = t43 + t44;
        const V t168 = t167 + t132;
        const V t169 = t164 + t165;
        const V t170 = t168 + t166;
        // output stage
        const V t171 = t169 + t170;
        io.out(4, t171);
        const V t172 = t169 - t170;
        io.out(18, t172);
        // real block of 11, multiplier 2
        const V t173 = t46 + t47;
        const V t174 = t173 - t27;
        const V t175 = t174 + t127;
        const V t176 = c[4] * t112;
        const V t177 = c[8] * t115;
        const V t178 = t50 + t51;
        const V t179 = t178 - t133;
        const V t180 = t175 - t176;
        const V t181 = t179 - t177;
        // output stage
        const V t182 = t180 - t181;
        io.out(6, t182);
        const V t183 = t180 + t181;
        io.out(16, t183);
        // real block of 11, multiplier 2
        const V t184 = t53 - t54;
        const V t185 = t184 + t28;
        const V t186 = t185 + t128;
        const V t187 = c[2] * t112;
        const V t188 = c[6] * t115;
        const V t189 = t57 + t134;
        const V t190 = t189 - t58;
        const V t191 = t186 - t187;
        const V t192 = t190 - t188;
        // output stage
        const V t193 = t191 - t192;
        io.out(8, t193);
        const V t194 = t191 + t192;
        io.out(14, t194);
        // real block of 11, multiplier 2
        const V t195 = t61 - t29;
        const V t196 = t195 - t129;
        const V t197 = t196 - t114;
        const V t198 = c[7] * t115;
        const V t199 = t64 + t135;
        const V t200 = t199 - t65;
        const V t201 = t197 + t0;
        const V t202 = t200 - t198;
        // output stage
        const V t203 = t201 - t202;
        io.out(10, t203);
        const V t204 = t201 + t202;
        io.out(12, t204);
        // real block of 11, multiplier 2
        const V t205 = t72 + t66;
        const V t206 = t205 + t136;
        const V t207 = t206 + t116;
        const V t208 = t207 + t1;
        io.out(11, t208);
        const V t209 = t75 - t67;
        const V t210 = t209 - t137;
        const V t211 = t210 + t117;
        const V t212 = c[9] * t119;
        const V t213 = t79 + t143;
        const V t214 = t213 - t76;
        const V t215 = t211 + t1;
        const V t216 = t214 - t212;
        // output stage
        const V t217 = t215 + t216;
        io.out(9, t217);
        const V t218 = t215 - t216;
        io.out(13, t218);
        // real block of 11, multiplier 2
        const V t219 = t81 - t82;
        const V t220 = t219 + t68;
        const V t221 = t220 - t138;
        const V t222 = c[3] * t116;
        const V t223 = c[5] * t119;
        const V t224 = t85 + t86;
        const V t225 = t224 + t144;
        const V t226 = t221 + t222;
        const V t227 = t225 + t223;
        // output stage
        const V t228 = t226 - t227;
        io.out(7, t228);
        const V t229 = t226 + t227;
        io.out(15, t229);
        // real block of 11, multiplier 2
        const V t230 = t88 + t89;
        const V t231 = t230 - t69;
        const V t232 = t231 + t139;
        const V t233 = c[4] * t116;
        const V t234 = c[8] * t119;
        const V t235 = t92 + t93;
        const V t236 = t235 - t145;
        const V t237 = t232 - t233;
        const V t238 = t236 - t234;
        // output stage
        const V t239 = t237 + t238;
        io.out(5, t239);
        const V t240 = t237 - t238;
        io.out(17, t240);
        // real block of 11, multiplier 2
        const V t241 = t95 - t96;
        const V t242 = t241 + t70;
        const V t243 = t242 + t140;
        const V t244 = c[2] * t116;
        const V t245 = c[6] * t119;
        const V t246 = t99 + t146;
        const V t247 = t246 - t100;
        const V t248 = t243 - t244;
        const V t249 = t247 - t245;
        // output stage
        const V t250 = t248 + t249;
        io.out(3, t250);
        const V t251 = t248 - t249;
        io.out(19, t251);
        // real block of 11, multiplier 2
        const V t252 = t103 - t71;
        const V t253 = t252 - t141;
        const V t254 = t253 - t118;
        const V t255 = c[7] * t119;
        const V t256 = t106 + t147;
        const V t257 = t256 - t107;
        const V t258 = t254 + t1;
        const V t259 = t257 - t255;
        // output stage
        const V t260 = t258 + t259;
        io.out(1, t260);
        const V t261 = t258 - t259;
        io.out(21, t261);
    }
};

}  // namespace zulg
