/* Written by `generate write`; do not edit. The rule: generator/output/routine_tables.cpp.
   The routines of the library by family, type of the reals, and length or order. Included by zulgenpx.hpp. */
enum class family {
    DFTFwd_CToC, DFTFwd_RToCCS, DFTFwd_RToPack, DFTFwd_RToPerm, DFTInv_CCSToR, DFTInv_CToC, DFTInv_PackToR,
    DFTInv_PermToR, Hartley, WHT,
};

template <>
struct routines<family::DFTFwd_CToC, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_CToC_64fc;
    static constexpr routine<Zulg64fc> each[] = {
        zulgDFTFwd_CToC_2_64fc, zulgDFTFwd_CToC_3_64fc, zulgDFTFwd_CToC_4_64fc, zulgDFTFwd_CToC_5_64fc,
        zulgDFTFwd_CToC_6_64fc, zulgDFTFwd_CToC_7_64fc, zulgDFTFwd_CToC_8_64fc, zulgDFTFwd_CToC_9_64fc,
        zulgDFTFwd_CToC_10_64fc, zulgDFTFwd_CToC_11_64fc, zulgDFTFwd_CToC_12_64fc, zulgDFTFwd_CToC_13_64fc,
        zulgDFTFwd_CToC_14_64fc, zulgDFTFwd_CToC_15_64fc, zulgDFTFwd_CToC_16_64fc, zulgDFTFwd_CToC_17_64fc,
        zulgDFTFwd_CToC_18_64fc, zulgDFTFwd_CToC_19_64fc, zulgDFTFwd_CToC_20_64fc, zulgDFTFwd_CToC_21_64fc,
        zulgDFTFwd_CToC_22_64fc, zulgDFTFwd_CToC_23_64fc, zulgDFTFwd_CToC_24_64fc, zulgDFTFwd_CToC_25_64fc,
        zulgDFTFwd_CToC_26_64fc, zulgDFTFwd_CToC_27_64fc, zulgDFTFwd_CToC_28_64fc, zulgDFTFwd_CToC_29_64fc,
        zulgDFTFwd_CToC_30_64fc, zulgDFTFwd_CToC_31_64fc, zulgDFTFwd_CToC_32_64fc, zulgDFTFwd_CToC_33_64fc,
        zulgDFTFwd_CToC_34_64fc, zulgDFTFwd_CToC_35_64fc, zulgDFTFwd_CToC_36_64fc, zulgDFTFwd_CToC_37_64fc,
        zulgDFTFwd_CToC_38_64fc, zulgDFTFwd_CToC_39_64fc, zulgDFTFwd_CToC_40_64fc, zulgDFTFwd_CToC_41_64fc,
        zulgDFTFwd_CToC_42_64fc, zulgDFTFwd_CToC_43_64fc, zulgDFTFwd_CToC_44_64fc, zulgDFTFwd_CToC_45_64fc,
        zulgDFTFwd_CToC_46_64fc, zulgDFTFwd_CToC_47_64fc, zulgDFTFwd_CToC_48_64fc, zulgDFTFwd_CToC_49_64fc,
        zulgDFTFwd_CToC_50_64fc, zulgDFTFwd_CToC_51_64fc, zulgDFTFwd_CToC_52_64fc, zulgDFTFwd_CToC_53_64fc,
        zulgDFTFwd_CToC_54_64fc, zulgDFTFwd_CToC_55_64fc, zulgDFTFwd_CToC_56_64fc, zulgDFTFwd_CToC_57_64fc,
        zulgDFTFwd_CToC_58_64fc, zulgDFTFwd_CToC_59_64fc, zulgDFTFwd_CToC_60_64fc, zulgDFTFwd_CToC_61_64fc,
        zulgDFTFwd_CToC_62_64fc, zulgDFTFwd_CToC_63_64fc, zulgDFTFwd_CToC_64_64fc,
    };
};

template <>
struct routines<family::DFTFwd_CToC, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_CToC_32fc;
    static constexpr routine<Zulg32fc> each[] = {
        zulgDFTFwd_CToC_2_32fc, zulgDFTFwd_CToC_3_32fc, zulgDFTFwd_CToC_4_32fc, zulgDFTFwd_CToC_5_32fc,
        zulgDFTFwd_CToC_6_32fc, zulgDFTFwd_CToC_7_32fc, zulgDFTFwd_CToC_8_32fc, zulgDFTFwd_CToC_9_32fc,
        zulgDFTFwd_CToC_10_32fc, zulgDFTFwd_CToC_11_32fc, zulgDFTFwd_CToC_12_32fc, zulgDFTFwd_CToC_13_32fc,
        zulgDFTFwd_CToC_14_32fc, zulgDFTFwd_CToC_15_32fc, zulgDFTFwd_CToC_16_32fc, zulgDFTFwd_CToC_17_32fc,
        zulgDFTFwd_CToC_18_32fc, zulgDFTFwd_CToC_19_32fc, zulgDFTFwd_CToC_20_32fc, zulgDFTFwd_CToC_21_32fc,
        zulgDFTFwd_CToC_22_32fc, zulgDFTFwd_CToC_23_32fc, zulgDFTFwd_CToC_24_32fc, zulgDFTFwd_CToC_25_32fc,
        zulgDFTFwd_CToC_26_32fc, zulgDFTFwd_CToC_27_32fc, zulgDFTFwd_CToC_28_32fc, zulgDFTFwd_CToC_29_32fc,
        zulgDFTFwd_CToC_30_32fc, zulgDFTFwd_CToC_31_32fc, zulgDFTFwd_CToC_32_32fc, zulgDFTFwd_CToC_33_32fc,
        zulgDFTFwd_CToC_34_32fc, zulgDFTFwd_CToC_35_32fc, zulgDFTFwd_CToC_36_32fc, zulgDFTFwd_CToC_37_32fc,
        zulgDFTFwd_CToC_38_32fc, zulgDFTFwd_CToC_39_32fc, zulgDFTFwd_CToC_40_32fc, zulgDFTFwd_CToC_41_32fc,
        zulgDFTFwd_CToC_42_32fc, zulgDFTFwd_CToC_43_32fc, zulgDFTFwd_CToC_44_32fc, zulgDFTFwd_CToC_45_32fc,
        zulgDFTFwd_CToC_46_32fc, zulgDFTFwd_CToC_47_32fc, zulgDFTFwd_CToC_48_32fc, zulgDFTFwd_CToC_49_32fc,
        zulgDFTFwd_CToC_50_32fc, zulgDFTFwd_CToC_51_32fc, zulgDFTFwd_CToC_52_32fc, zulgDFTFwd_CToC_53_32fc,
        zulgDFTFwd_CToC_54_32fc, zulgDFTFwd_CToC_55_32fc, zulgDFTFwd_CToC_56_32fc, zulgDFTFwd_CToC_57_32fc,
        zulgDFTFwd_CToC_58_32fc, zulgDFTFwd_CToC_59_32fc, zulgDFTFwd_CToC_60_32fc, zulgDFTFwd_CToC_61_32fc,
        zulgDFTFwd_CToC_62_32fc, zulgDFTFwd_CToC_63_32fc, zulgDFTFwd_CToC_64_32fc,
    };
};

template <>
struct routines<family::DFTFwd_RToCCS, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_RToCCS_64f;
    static constexpr routine<Zulg64f> each[] = {
        zulgDFTFwd_RToCCS_2_64f, zulgDFTFwd_RToCCS_3_64f, zulgDFTFwd_RToCCS_4_64f, zulgDFTFwd_RToCCS_5_64f,
        zulgDFTFwd_RToCCS_6_64f, zulgDFTFwd_RToCCS_7_64f, zulgDFTFwd_RToCCS_8_64f, zulgDFTFwd_RToCCS_9_64f,
        zulgDFTFwd_RToCCS_10_64f, zulgDFTFwd_RToCCS_11_64f, zulgDFTFwd_RToCCS_12_64f, zulgDFTFwd_RToCCS_13_64f,
        zulgDFTFwd_RToCCS_14_64f, zulgDFTFwd_RToCCS_15_64f, zulgDFTFwd_RToCCS_16_64f, zulgDFTFwd_RToCCS_17_64f,
        zulgDFTFwd_RToCCS_18_64f, zulgDFTFwd_RToCCS_19_64f, zulgDFTFwd_RToCCS_20_64f, zulgDFTFwd_RToCCS_21_64f,
        zulgDFTFwd_RToCCS_22_64f, zulgDFTFwd_RToCCS_23_64f, zulgDFTFwd_RToCCS_24_64f, zulgDFTFwd_RToCCS_25_64f,
        zulgDFTFwd_RToCCS_26_64f, zulgDFTFwd_RToCCS_27_64f, zulgDFTFwd_RToCCS_28_64f, zulgDFTFwd_RToCCS_29_64f,
        zulgDFTFwd_RToCCS_30_64f, zulgDFTFwd_RToCCS_31_64f, zulgDFTFwd_RToCCS_32_64f, zulgDFTFwd_RToCCS_33_64f,
        zulgDFTFwd_RToCCS_34_64f, zulgDFTFwd_RToCCS_35_64f, zulgDFTFwd_RToCCS_36_64f, zulgDFTFwd_RToCCS_37_64f,
        zulgDFTFwd_RToCCS_38_64f, zulgDFTFwd_RToCCS_39_64f, zulgDFTFwd_RToCCS_40_64f, zulgDFTFwd_RToCCS_41_64f,
        zulgDFTFwd_RToCCS_42_64f, zulgDFTFwd_RToCCS_43_64f, zulgDFTFwd_RToCCS_44_64f, zulgDFTFwd_RToCCS_45_64f,
        zulgDFTFwd_RToCCS_46_64f, zulgDFTFwd_RToCCS_47_64f, zulgDFTFwd_RToCCS_48_64f, zulgDFTFwd_RToCCS_49_64f,
        zulgDFTFwd_RToCCS_50_64f, zulgDFTFwd_RToCCS_51_64f, zulgDFTFwd_RToCCS_52_64f, zulgDFTFwd_RToCCS_53_64f,
        zulgDFTFwd_RToCCS_54_64f, zulgDFTFwd_RToCCS_55_64f, zulgDFTFwd_RToCCS_56_64f, zulgDFTFwd_RToCCS_57_64f,
        zulgDFTFwd_RToCCS_58_64f, zulgDFTFwd_RToCCS_59_64f, zulgDFTFwd_RToCCS_60_64f, zulgDFTFwd_RToCCS_61_64f,
        zulgDFTFwd_RToCCS_62_64f, zulgDFTFwd_RToCCS_63_64f, zulgDFTFwd_RToCCS_64_64f,
    };
};

template <>
struct routines<family::DFTFwd_RToCCS, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_RToCCS_32f;
    static constexpr routine<Zulg32f> each[] = {
        zulgDFTFwd_RToCCS_2_32f, zulgDFTFwd_RToCCS_3_32f, zulgDFTFwd_RToCCS_4_32f, zulgDFTFwd_RToCCS_5_32f,
        zulgDFTFwd_RToCCS_6_32f, zulgDFTFwd_RToCCS_7_32f, zulgDFTFwd_RToCCS_8_32f, zulgDFTFwd_RToCCS_9_32f,
        zulgDFTFwd_RToCCS_10_32f, zulgDFTFwd_RToCCS_11_32f, zulgDFTFwd_RToCCS_12_32f, zulgDFTFwd_RToCCS_13_32f,
        zulgDFTFwd_RToCCS_14_32f, zulgDFTFwd_RToCCS_15_32f, zulgDFTFwd_RToCCS_16_32f, zulgDFTFwd_RToCCS_17_32f,
        zulgDFTFwd_RToCCS_18_32f, zulgDFTFwd_RToCCS_19_32f, zulgDFTFwd_RToCCS_20_32f, zulgDFTFwd_RToCCS_21_32f,
        zulgDFTFwd_RToCCS_22_32f, zulgDFTFwd_RToCCS_23_32f, zulgDFTFwd_RToCCS_24_32f, zulgDFTFwd_RToCCS_25_32f,
        zulgDFTFwd_RToCCS_26_32f, zulgDFTFwd_RToCCS_27_32f, zulgDFTFwd_RToCCS_28_32f, zulgDFTFwd_RToCCS_29_32f,
        zulgDFTFwd_RToCCS_30_32f, zulgDFTFwd_RToCCS_31_32f, zulgDFTFwd_RToCCS_32_32f, zulgDFTFwd_RToCCS_33_32f,
        zulgDFTFwd_RToCCS_34_32f, zulgDFTFwd_RToCCS_35_32f, zulgDFTFwd_RToCCS_36_32f, zulgDFTFwd_RToCCS_37_32f,
        zulgDFTFwd_RToCCS_38_32f, zulgDFTFwd_RToCCS_39_32f, zulgDFTFwd_RToCCS_40_32f, zulgDFTFwd_RToCCS_41_32f,
        zulgDFTFwd_RToCCS_42_32f, zulgDFTFwd_RToCCS_43_32f, zulgDFTFwd_RToCCS_44_32f, zulgDFTFwd_RToCCS_45_32f,
        zulgDFTFwd_RToCCS_46_32f, zulgDFTFwd_RToCCS_47_32f, zulgDFTFwd_RToCCS_48_32f, zulgDFTFwd_RToCCS_49_32f,
        zulgDFTFwd_RToCCS_50_32f, zulgDFTFwd_RToCCS_51_32f, zulgDFTFwd_RToCCS_52_32f, zulgDFTFwd_RToCCS_53_32f,
        zulgDFTFwd_RToCCS_54_32f, zulgDFTFwd_RToCCS_55_32f, zulgDFTFwd_RToCCS_56_32f, zulgDFTFwd_RToCCS_57_32f,
        zulgDFTFwd_RToCCS_58_32f, zulgDFTFwd_RToCCS_59_32f, zulgDFTFwd_RToCCS_60_32f, zulgDFTFwd_RToCCS_61_32f,
        zulgDFTFwd_RToCCS_62_32f, zulgDFTFwd_RToCCS_63_32f, zulgDFTFwd_RToCCS_64_32f,
    };
};

template <>
struct routines<family::DFTFwd_RToPack, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_RToPack_64f;
    static constexpr routine<Zulg64f> each[] = {
        zulgDFTFwd_RToPack_2_64f, zulgDFTFwd_RToPack_3_64f, zulgDFTFwd_RToPack_4_64f, zulgDFTFwd_RToPack_5_64f,
        zulgDFTFwd_RToPack_6_64f, zulgDFTFwd_RToPack_7_64f, zulgDFTFwd_RToPack_8_64f, zulgDFTFwd_RToPack_9_64f,
        zulgDFTFwd_RToPack_10_64f, zulgDFTFwd_RToPack_11_64f, zulgDFTFwd_RToPack_12_64f, zulgDFTFwd_RToPack_13_64f,
        zulgDFTFwd_RToPack_14_64f, zulgDFTFwd_RToPack_15_64f, zulgDFTFwd_RToPack_16_64f, zulgDFTFwd_RToPack_17_64f,
        zulgDFTFwd_RToPack_18_64f, zulgDFTFwd_RToPack_19_64f, zulgDFTFwd_RToPack_20_64f, zulgDFTFwd_RToPack_21_64f,
        zulgDFTFwd_RToPack_22_64f, zulgDFTFwd_RToPack_23_64f, zulgDFTFwd_RToPack_24_64f, zulgDFTFwd_RToPack_25_64f,
        zulgDFTFwd_RToPack_26_64f, zulgDFTFwd_RToPack_27_64f, zulgDFTFwd_RToPack_28_64f, zulgDFTFwd_RToPack_29_64f,
        zulgDFTFwd_RToPack_30_64f, zulgDFTFwd_RToPack_31_64f, zulgDFTFwd_RToPack_32_64f, zulgDFTFwd_RToPack_33_64f,
        zulgDFTFwd_RToPack_34_64f, zulgDFTFwd_RToPack_35_64f, zulgDFTFwd_RToPack_36_64f, zulgDFTFwd_RToPack_37_64f,
        zulgDFTFwd_RToPack_38_64f, zulgDFTFwd_RToPack_39_64f, zulgDFTFwd_RToPack_40_64f, zulgDFTFwd_RToPack_41_64f,
        zulgDFTFwd_RToPack_42_64f, zulgDFTFwd_RToPack_43_64f, zulgDFTFwd_RToPack_44_64f, zulgDFTFwd_RToPack_45_64f,
        zulgDFTFwd_RToPack_46_64f, zulgDFTFwd_RToPack_47_64f, zulgDFTFwd_RToPack_48_64f, zulgDFTFwd_RToPack_49_64f,
        zulgDFTFwd_RToPack_50_64f, zulgDFTFwd_RToPack_51_64f, zulgDFTFwd_RToPack_52_64f, zulgDFTFwd_RToPack_53_64f,
        zulgDFTFwd_RToPack_54_64f, zulgDFTFwd_RToPack_55_64f, zulgDFTFwd_RToPack_56_64f, zulgDFTFwd_RToPack_57_64f,
        zulgDFTFwd_RToPack_58_64f, zulgDFTFwd_RToPack_59_64f, zulgDFTFwd_RToPack_60_64f, zulgDFTFwd_RToPack_61_64f,
        zulgDFTFwd_RToPack_62_64f, zulgDFTFwd_RToPack_63_64f, zulgDFTFwd_RToPack_64_64f,
    };
};

template <>
struct routines<family::DFTFwd_RToPack, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_RToPack_32f;
    static constexpr routine<Zulg32f> each[] = {
        zulgDFTFwd_RToPack_2_32f, zulgDFTFwd_RToPack_3_32f, zulgDFTFwd_RToPack_4_32f, zulgDFTFwd_RToPack_5_32f,
        zulgDFTFwd_RToPack_6_32f, zulgDFTFwd_RToPack_7_32f, zulgDFTFwd_RToPack_8_32f, zulgDFTFwd_RToPack_9_32f,
        zulgDFTFwd_RToPack_10_32f, zulgDFTFwd_RToPack_11_32f, zulgDFTFwd_RToPack_12_32f, zulgDFTFwd_RToPack_13_32f,
        zulgDFTFwd_RToPack_14_32f, zulgDFTFwd_RToPack_15_32f, zulgDFTFwd_RToPack_16_32f, zulgDFTFwd_RToPack_17_32f,
        zulgDFTFwd_RToPack_18_32f, zulgDFTFwd_RToPack_19_32f, zulgDFTFwd_RToPack_20_32f, zulgDFTFwd_RToPack_21_32f,
        zulgDFTFwd_RToPack_22_32f, zulgDFTFwd_RToPack_23_32f, zulgDFTFwd_RToPack_24_32f, zulgDFTFwd_RToPack_25_32f,
        zulgDFTFwd_RToPack_26_32f, zulgDFTFwd_RToPack_27_32f, zulgDFTFwd_RToPack_28_32f, zulgDFTFwd_RToPack_29_32f,
        zulgDFTFwd_RToPack_30_32f, zulgDFTFwd_RToPack_31_32f, zulgDFTFwd_RToPack_32_32f, zulgDFTFwd_RToPack_33_32f,
        zulgDFTFwd_RToPack_34_32f, zulgDFTFwd_RToPack_35_32f, zulgDFTFwd_RToPack_36_32f, zulgDFTFwd_RToPack_37_32f,
        zulgDFTFwd_RToPack_38_32f, zulgDFTFwd_RToPack_39_32f, zulgDFTFwd_RToPack_40_32f, zulgDFTFwd_RToPack_41_32f,
        zulgDFTFwd_RToPack_42_32f, zulgDFTFwd_RToPack_43_32f, zulgDFTFwd_RToPack_44_32f, zulgDFTFwd_RToPack_45_32f,
        zulgDFTFwd_RToPack_46_32f, zulgDFTFwd_RToPack_47_32f, zulgDFTFwd_RToPack_48_32f, zulgDFTFwd_RToPack_49_32f,
        zulgDFTFwd_RToPack_50_32f, zulgDFTFwd_RToPack_51_32f, zulgDFTFwd_RToPack_52_32f, zulgDFTFwd_RToPack_53_32f,
        zulgDFTFwd_RToPack_54_32f, zulgDFTFwd_RToPack_55_32f, zulgDFTFwd_RToPack_56_32f, zulgDFTFwd_RToPack_57_32f,
        zulgDFTFwd_RToPack_58_32f, zulgDFTFwd_RToPack_59_32f, zulgDFTFwd_RToPack_60_32f, zulgDFTFwd_RToPack_61_32f,
        zulgDFTFwd_RToPack_62_32f, zulgDFTFwd_RToPack_63_32f, zulgDFTFwd_RToPack_64_32f,
    };
};

template <>
struct routines<family::DFTFwd_RToPerm, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_RToPerm_64f;
    static constexpr routine<Zulg64f> each[] = {
        zulgDFTFwd_RToPerm_2_64f, zulgDFTFwd_RToPerm_3_64f, zulgDFTFwd_RToPerm_4_64f, zulgDFTFwd_RToPerm_5_64f,
        zulgDFTFwd_RToPerm_6_64f, zulgDFTFwd_RToPerm_7_64f, zulgDFTFwd_RToPerm_8_64f, zulgDFTFwd_RToPerm_9_64f,
        zulgDFTFwd_RToPerm_10_64f, zulgDFTFwd_RToPerm_11_64f, zulgDFTFwd_RToPerm_12_64f, zulgDFTFwd_RToPerm_13_64f,
        zulgDFTFwd_RToPerm_14_64f, zulgDFTFwd_RToPerm_15_64f, zulgDFTFwd_RToPerm_16_64f, zulgDFTFwd_RToPerm_17_64f,
        zulgDFTFwd_RToPerm_18_64f, zulgDFTFwd_RToPerm_19_64f, zulgDFTFwd_RToPerm_20_64f, zulgDFTFwd_RToPerm_21_64f,
        zulgDFTFwd_RToPerm_22_64f, zulgDFTFwd_RToPerm_23_64f, zulgDFTFwd_RToPerm_24_64f, zulgDFTFwd_RToPerm_25_64f,
        zulgDFTFwd_RToPerm_26_64f, zulgDFTFwd_RToPerm_27_64f, zulgDFTFwd_RToPerm_28_64f, zulgDFTFwd_RToPerm_29_64f,
        zulgDFTFwd_RToPerm_30_64f, zulgDFTFwd_RToPerm_31_64f, zulgDFTFwd_RToPerm_32_64f, zulgDFTFwd_RToPerm_33_64f,
        zulgDFTFwd_RToPerm_34_64f, zulgDFTFwd_RToPerm_35_64f, zulgDFTFwd_RToPerm_36_64f, zulgDFTFwd_RToPerm_37_64f,
        zulgDFTFwd_RToPerm_38_64f, zulgDFTFwd_RToPerm_39_64f, zulgDFTFwd_RToPerm_40_64f, zulgDFTFwd_RToPerm_41_64f,
        zulgDFTFwd_RToPerm_42_64f, zulgDFTFwd_RToPerm_43_64f, zulgDFTFwd_RToPerm_44_64f, zulgDFTFwd_RToPerm_45_64f,
        zulgDFTFwd_RToPerm_46_64f, zulgDFTFwd_RToPerm_47_64f, zulgDFTFwd_RToPerm_48_64f, zulgDFTFwd_RToPerm_49_64f,
        zulgDFTFwd_RToPerm_50_64f, zulgDFTFwd_RToPerm_51_64f, zulgDFTFwd_RToPerm_52_64f, zulgDFTFwd_RToPerm_53_64f,
        zulgDFTFwd_RToPerm_54_64f, zulgDFTFwd_RToPerm_55_64f, zulgDFTFwd_RToPerm_56_64f, zulgDFTFwd_RToPerm_57_64f,
        zulgDFTFwd_RToPerm_58_64f, zulgDFTFwd_RToPerm_59_64f, zulgDFTFwd_RToPerm_60_64f, zulgDFTFwd_RToPerm_61_64f,
        zulgDFTFwd_RToPerm_62_64f, zulgDFTFwd_RToPerm_63_64f, zulgDFTFwd_RToPerm_64_64f,
    };
};

template <>
struct routines<family::DFTFwd_RToPerm, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTFwd_RToPerm_32f;
    static constexpr routine<Zulg32f> each[] = {
        zulgDFTFwd_RToPerm_2_32f, zulgDFTFwd_RToPerm_3_32f, zulgDFTFwd_RToPerm_4_32f, zulgDFTFwd_RToPerm_5_32f,
        zulgDFTFwd_RToPerm_6_32f, zulgDFTFwd_RToPerm_7_32f, zulgDFTFwd_RToPerm_8_32f, zulgDFTFwd_RToPerm_9_32f,
        zulgDFTFwd_RToPerm_10_32f, zulgDFTFwd_RToPerm_11_32f, zulgDFTFwd_RToPerm_12_32f, zulgDFTFwd_RToPerm_13_32f,
        zulgDFTFwd_RToPerm_14_32f, zulgDFTFwd_RToPerm_15_32f, zulgDFTFwd_RToPerm_16_32f, zulgDFTFwd_RToPerm_17_32f,
        zulgDFTFwd_RToPerm_18_32f, zulgDFTFwd_RToPerm_19_32f, zulgDFTFwd_RToPerm_20_32f, zulgDFTFwd_RToPerm_21_32f,
        zulgDFTFwd_RToPerm_22_32f, zulgDFTFwd_RToPerm_23_32f, zulgDFTFwd_RToPerm_24_32f, zulgDFTFwd_RToPerm_25_32f,
        zulgDFTFwd_RToPerm_26_32f, zulgDFTFwd_RToPerm_27_32f, zulgDFTFwd_RToPerm_28_32f, zulgDFTFwd_RToPerm_29_32f,
        zulgDFTFwd_RToPerm_30_32f, zulgDFTFwd_RToPerm_31_32f, zulgDFTFwd_RToPerm_32_32f, zulgDFTFwd_RToPerm_33_32f,
        zulgDFTFwd_RToPerm_34_32f, zulgDFTFwd_RToPerm_35_32f, zulgDFTFwd_RToPerm_36_32f, zulgDFTFwd_RToPerm_37_32f,
        zulgDFTFwd_RToPerm_38_32f, zulgDFTFwd_RToPerm_39_32f, zulgDFTFwd_RToPerm_40_32f, zulgDFTFwd_RToPerm_41_32f,
        zulgDFTFwd_RToPerm_42_32f, zulgDFTFwd_RToPerm_43_32f, zulgDFTFwd_RToPerm_44_32f, zulgDFTFwd_RToPerm_45_32f,
        zulgDFTFwd_RToPerm_46_32f, zulgDFTFwd_RToPerm_47_32f, zulgDFTFwd_RToPerm_48_32f, zulgDFTFwd_RToPerm_49_32f,
        zulgDFTFwd_RToPerm_50_32f, zulgDFTFwd_RToPerm_51_32f, zulgDFTFwd_RToPerm_52_32f, zulgDFTFwd_RToPerm_53_32f,
        zulgDFTFwd_RToPerm_54_32f, zulgDFTFwd_RToPerm_55_32f, zulgDFTFwd_RToPerm_56_32f, zulgDFTFwd_RToPerm_57_32f,
        zulgDFTFwd_RToPerm_58_32f, zulgDFTFwd_RToPerm_59_32f, zulgDFTFwd_RToPerm_60_32f, zulgDFTFwd_RToPerm_61_32f,
        zulgDFTFwd_RToPerm_62_32f, zulgDFTFwd_RToPerm_63_32f, zulgDFTFwd_RToPerm_64_32f,
    };
};

template <>
struct routines<family::DFTInv_CCSToR, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_CCSToR_64f;
    static constexpr routine<Zulg64f> each[] = {
        zulgDFTInv_CCSToR_2_64f, zulgDFTInv_CCSToR_3_64f, zulgDFTInv_CCSToR_4_64f, zulgDFTInv_CCSToR_5_64f,
        zulgDFTInv_CCSToR_6_64f, zulgDFTInv_CCSToR_7_64f, zulgDFTInv_CCSToR_8_64f, zulgDFTInv_CCSToR_9_64f,
        zulgDFTInv_CCSToR_10_64f, zulgDFTInv_CCSToR_11_64f, zulgDFTInv_CCSToR_12_64f, zulgDFTInv_CCSToR_13_64f,
        zulgDFTInv_CCSToR_14_64f, zulgDFTInv_CCSToR_15_64f, zulgDFTInv_CCSToR_16_64f, zulgDFTInv_CCSToR_17_64f,
        zulgDFTInv_CCSToR_18_64f, zulgDFTInv_CCSToR_19_64f, zulgDFTInv_CCSToR_20_64f, zulgDFTInv_CCSToR_21_64f,
        zulgDFTInv_CCSToR_22_64f, zulgDFTInv_CCSToR_23_64f, zulgDFTInv_CCSToR_24_64f, zulgDFTInv_CCSToR_25_64f,
        zulgDFTInv_CCSToR_26_64f, zulgDFTInv_CCSToR_27_64f, zulgDFTInv_CCSToR_28_64f, zulgDFTInv_CCSToR_29_64f,
        zulgDFTInv_CCSToR_30_64f, zulgDFTInv_CCSToR_31_64f, zulgDFTInv_CCSToR_32_64f, zulgDFTInv_CCSToR_33_64f,
        zulgDFTInv_CCSToR_34_64f, zulgDFTInv_CCSToR_35_64f, zulgDFTInv_CCSToR_36_64f, zulgDFTInv_CCSToR_37_64f,
        zulgDFTInv_CCSToR_38_64f, zulgDFTInv_CCSToR_39_64f, zulgDFTInv_CCSToR_40_64f, zulgDFTInv_CCSToR_41_64f,
        zulgDFTInv_CCSToR_42_64f, zulgDFTInv_CCSToR_43_64f, zulgDFTInv_CCSToR_44_64f, zulgDFTInv_CCSToR_45_64f,
        zulgDFTInv_CCSToR_46_64f, zulgDFTInv_CCSToR_47_64f, zulgDFTInv_CCSToR_48_64f, zulgDFTInv_CCSToR_49_64f,
        zulgDFTInv_CCSToR_50_64f, zulgDFTInv_CCSToR_51_64f, zulgDFTInv_CCSToR_52_64f, zulgDFTInv_CCSToR_53_64f,
        zulgDFTInv_CCSToR_54_64f, zulgDFTInv_CCSToR_55_64f, zulgDFTInv_CCSToR_56_64f, zulgDFTInv_CCSToR_57_64f,
        zulgDFTInv_CCSToR_58_64f, zulgDFTInv_CCSToR_59_64f, zulgDFTInv_CCSToR_60_64f, zulgDFTInv_CCSToR_61_64f,
        zulgDFTInv_CCSToR_62_64f, zulgDFTInv_CCSToR_63_64f, zulgDFTInv_CCSToR_64_64f,
    };
};

template <>
struct routines<family::DFTInv_CCSToR, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_CCSToR_32f;
    static constexpr routine<Zulg32f> each[] = {
        zulgDFTInv_CCSToR_2_32f, zulgDFTInv_CCSToR_3_32f, zulgDFTInv_CCSToR_4_32f, zulgDFTInv_CCSToR_5_32f,
        zulgDFTInv_CCSToR_6_32f, zulgDFTInv_CCSToR_7_32f, zulgDFTInv_CCSToR_8_32f, zulgDFTInv_CCSToR_9_32f,
        zulgDFTInv_CCSToR_10_32f, zulgDFTInv_CCSToR_11_32f, zulgDFTInv_CCSToR_12_32f, zulgDFTInv_CCSToR_13_32f,
        zulgDFTInv_CCSToR_14_32f, zulgDFTInv_CCSToR_15_32f, zulgDFTInv_CCSToR_16_32f, zulgDFTInv_CCSToR_17_32f,
        zulgDFTInv_CCSToR_18_32f, zulgDFTInv_CCSToR_19_32f, zulgDFTInv_CCSToR_20_32f, zulgDFTInv_CCSToR_21_32f,
        zulgDFTInv_CCSToR_22_32f, zulgDFTInv_CCSToR_23_32f, zulgDFTInv_CCSToR_24_32f, zulgDFTInv_CCSToR_25_32f,
        zulgDFTInv_CCSToR_26_32f, zulgDFTInv_CCSToR_27_32f, zulgDFTInv_CCSToR_28_32f, zulgDFTInv_CCSToR_29_32f,
        zulgDFTInv_CCSToR_30_32f, zulgDFTInv_CCSToR_31_32f, zulgDFTInv_CCSToR_32_32f, zulgDFTInv_CCSToR_33_32f,
        zulgDFTInv_CCSToR_34_32f, zulgDFTInv_CCSToR_35_32f, zulgDFTInv_CCSToR_36_32f, zulgDFTInv_CCSToR_37_32f,
        zulgDFTInv_CCSToR_38_32f, zulgDFTInv_CCSToR_39_32f, zulgDFTInv_CCSToR_40_32f, zulgDFTInv_CCSToR_41_32f,
        zulgDFTInv_CCSToR_42_32f, zulgDFTInv_CCSToR_43_32f, zulgDFTInv_CCSToR_44_32f, zulgDFTInv_CCSToR_45_32f,
        zulgDFTInv_CCSToR_46_32f, zulgDFTInv_CCSToR_47_32f, zulgDFTInv_CCSToR_48_32f, zulgDFTInv_CCSToR_49_32f,
        zulgDFTInv_CCSToR_50_32f, zulgDFTInv_CCSToR_51_32f, zulgDFTInv_CCSToR_52_32f, zulgDFTInv_CCSToR_53_32f,
        zulgDFTInv_CCSToR_54_32f, zulgDFTInv_CCSToR_55_32f, zulgDFTInv_CCSToR_56_32f, zulgDFTInv_CCSToR_57_32f,
        zulgDFTInv_CCSToR_58_32f, zulgDFTInv_CCSToR_59_32f, zulgDFTInv_CCSToR_60_32f, zulgDFTInv_CCSToR_61_32f,
        zulgDFTInv_CCSToR_62_32f, zulgDFTInv_CCSToR_63_32f, zulgDFTInv_CCSToR_64_32f,
    };
};

template <>
struct routines<family::DFTInv_CToC, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_CToC_64fc;
    static constexpr routine<Zulg64fc> each[] = {
        zulgDFTInv_CToC_2_64fc, zulgDFTInv_CToC_3_64fc, zulgDFTInv_CToC_4_64fc, zulgDFTInv_CToC_5_64fc,
        zulgDFTInv_CToC_6_64fc, zulgDFTInv_CToC_7_64fc, zulgDFTInv_CToC_8_64fc, zulgDFTInv_CToC_9_64fc,
        zulgDFTInv_CToC_10_64fc, zulgDFTInv_CToC_11_64fc, zulgDFTInv_CToC_12_64fc, zulgDFTInv_CToC_13_64fc,
        zulgDFTInv_CToC_14_64fc, zulgDFTInv_CToC_15_64fc, zulgDFTInv_CToC_16_64fc, zulgDFTInv_CToC_17_64fc,
        zulgDFTInv_CToC_18_64fc, zulgDFTInv_CToC_19_64fc, zulgDFTInv_CToC_20_64fc, zulgDFTInv_CToC_21_64fc,
        zulgDFTInv_CToC_22_64fc, zulgDFTInv_CToC_23_64fc, zulgDFTInv_CToC_24_64fc, zulgDFTInv_CToC_25_64fc,
        zulgDFTInv_CToC_26_64fc, zulgDFTInv_CToC_27_64fc, zulgDFTInv_CToC_28_64fc, zulgDFTInv_CToC_29_64fc,
        zulgDFTInv_CToC_30_64fc, zulgDFTInv_CToC_31_64fc, zulgDFTInv_CToC_32_64fc, zulgDFTInv_CToC_33_64fc,
        zulgDFTInv_CToC_34_64fc, zulgDFTInv_CToC_35_64fc, zulgDFTInv_CToC_36_64fc, zulgDFTInv_CToC_37_64fc,
        zulgDFTInv_CToC_38_64fc, zulgDFTInv_CToC_39_64fc, zulgDFTInv_CToC_40_64fc, zulgDFTInv_CToC_41_64fc,
        zulgDFTInv_CToC_42_64fc, zulgDFTInv_CToC_43_64fc, zulgDFTInv_CToC_44_64fc, zulgDFTInv_CToC_45_64fc,
        zulgDFTInv_CToC_46_64fc, zulgDFTInv_CToC_47_64fc, zulgDFTInv_CToC_48_64fc, zulgDFTInv_CToC_49_64fc,
        zulgDFTInv_CToC_50_64fc, zulgDFTInv_CToC_51_64fc, zulgDFTInv_CToC_52_64fc, zulgDFTInv_CToC_53_64fc,
        zulgDFTInv_CToC_54_64fc, zulgDFTInv_CToC_55_64fc, zulgDFTInv_CToC_56_64fc, zulgDFTInv_CToC_57_64fc,
        zulgDFTInv_CToC_58_64fc, zulgDFTInv_CToC_59_64fc, zulgDFTInv_CToC_60_64fc, zulgDFTInv_CToC_61_64fc,
        zulgDFTInv_CToC_62_64fc, zulgDFTInv_CToC_63_64fc, zulgDFTInv_CToC_64_64fc,
    };
};

template <>
struct routines<family::DFTInv_CToC, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_CToC_32fc;
    static constexpr routine<Zulg32fc> each[] = {
        zulgDFTInv_CToC_2_32fc, zulgDFTInv_CToC_3_32fc, zulgDFTInv_CToC_4_32fc, zulgDFTInv_CToC_5_32fc,
        zulgDFTInv_CToC_6_32fc, zulgDFTInv_CToC_7_32fc, zulgDFTInv_CToC_8_32fc, zulgDFTInv_CToC_9_32fc,
        zulgDFTInv_CToC_10_32fc, zulgDFTInv_CToC_11_32fc, zulgDFTInv_CToC_12_32fc, zulgDFTInv_CToC_13_32fc,
        zulgDFTInv_CToC_14_32fc, zulgDFTInv_CToC_15_32fc, zulgDFTInv_CToC_16_32fc, zulgDFTInv_CToC_17_32fc,
        zulgDFTInv_CToC_18_32fc, zulgDFTInv_CToC_19_32fc, zulgDFTInv_CToC_20_32fc, zulgDFTInv_CToC_21_32fc,
        zulgDFTInv_CToC_22_32fc, zulgDFTInv_CToC_23_32fc, zulgDFTInv_CToC_24_32fc, zulgDFTInv_CToC_25_32fc,
        zulgDFTInv_CToC_26_32fc, zulgDFTInv_CToC_27_32fc, zulgDFTInv_CToC_28_32fc, zulgDFTInv_CToC_29_32fc,
        zulgDFTInv_CToC_30_32fc, zulgDFTInv_CToC_31_32fc, zulgDFTInv_CToC_32_32fc, zulgDFTInv_CToC_33_32fc,
        zulgDFTInv_CToC_34_32fc, zulgDFTInv_CToC_35_32fc, zulgDFTInv_CToC_36_32fc, zulgDFTInv_CToC_37_32fc,
        zulgDFTInv_CToC_38_32fc, zulgDFTInv_CToC_39_32fc, zulgDFTInv_CToC_40_32fc, zulgDFTInv_CToC_41_32fc,
        zulgDFTInv_CToC_42_32fc, zulgDFTInv_CToC_43_32fc, zulgDFTInv_CToC_44_32fc, zulgDFTInv_CToC_45_32fc,
        zulgDFTInv_CToC_46_32fc, zulgDFTInv_CToC_47_32fc, zulgDFTInv_CToC_48_32fc, zulgDFTInv_CToC_49_32fc,
        zulgDFTInv_CToC_50_32fc, zulgDFTInv_CToC_51_32fc, zulgDFTInv_CToC_52_32fc, zulgDFTInv_CToC_53_32fc,
        zulgDFTInv_CToC_54_32fc, zulgDFTInv_CToC_55_32fc, zulgDFTInv_CToC_56_32fc, zulgDFTInv_CToC_57_32fc,
        zulgDFTInv_CToC_58_32fc, zulgDFTInv_CToC_59_32fc, zulgDFTInv_CToC_60_32fc, zulgDFTInv_CToC_61_32fc,
        zulgDFTInv_CToC_62_32fc, zulgDFTInv_CToC_63_32fc, zulgDFTInv_CToC_64_32fc,
    };
};

template <>
struct routines<family::DFTInv_PackToR, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_PackToR_64f;
    static constexpr routine<Zulg64f> each[] = {
        zulgDFTInv_PackToR_2_64f, zulgDFTInv_PackToR_3_64f, zulgDFTInv_PackToR_4_64f, zulgDFTInv_PackToR_5_64f,
        zulgDFTInv_PackToR_6_64f, zulgDFTInv_PackToR_7_64f, zulgDFTInv_PackToR_8_64f, zulgDFTInv_PackToR_9_64f,
        zulgDFTInv_PackToR_10_64f, zulgDFTInv_PackToR_11_64f, zulgDFTInv_PackToR_12_64f, zulgDFTInv_PackToR_13_64f,
        zulgDFTInv_PackToR_14_64f, zulgDFTInv_PackToR_15_64f, zulgDFTInv_PackToR_16_64f, zulgDFTInv_PackToR_17_64f,
        zulgDFTInv_PackToR_18_64f, zulgDFTInv_PackToR_19_64f, zulgDFTInv_PackToR_20_64f, zulgDFTInv_PackToR_21_64f,
        zulgDFTInv_PackToR_22_64f, zulgDFTInv_PackToR_23_64f, zulgDFTInv_PackToR_24_64f, zulgDFTInv_PackToR_25_64f,
        zulgDFTInv_PackToR_26_64f, zulgDFTInv_PackToR_27_64f, zulgDFTInv_PackToR_28_64f, zulgDFTInv_PackToR_29_64f,
        zulgDFTInv_PackToR_30_64f, zulgDFTInv_PackToR_31_64f, zulgDFTInv_PackToR_32_64f, zulgDFTInv_PackToR_33_64f,
        zulgDFTInv_PackToR_34_64f, zulgDFTInv_PackToR_35_64f, zulgDFTInv_PackToR_36_64f, zulgDFTInv_PackToR_37_64f,
        zulgDFTInv_PackToR_38_64f, zulgDFTInv_PackToR_39_64f, zulgDFTInv_PackToR_40_64f, zulgDFTInv_PackToR_41_64f,
        zulgDFTInv_PackToR_42_64f, zulgDFTInv_PackToR_43_64f, zulgDFTInv_PackToR_44_64f, zulgDFTInv_PackToR_45_64f,
        zulgDFTInv_PackToR_46_64f, zulgDFTInv_PackToR_47_64f, zulgDFTInv_PackToR_48_64f, zulgDFTInv_PackToR_49_64f,
        zulgDFTInv_PackToR_50_64f, zulgDFTInv_PackToR_51_64f, zulgDFTInv_PackToR_52_64f, zulgDFTInv_PackToR_53_64f,
        zulgDFTInv_PackToR_54_64f, zulgDFTInv_PackToR_55_64f, zulgDFTInv_PackToR_56_64f, zulgDFTInv_PackToR_57_64f,
        zulgDFTInv_PackToR_58_64f, zulgDFTInv_PackToR_59_64f, zulgDFTInv_PackToR_60_64f, zulgDFTInv_PackToR_61_64f,
        zulgDFTInv_PackToR_62_64f, zulgDFTInv_PackToR_63_64f, zulgDFTInv_PackToR_64_64f,
    };
};

template <>
struct routines<family::DFTInv_PackToR, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_PackToR_32f;
    static constexpr routine<Zulg32f> each[] = {
        zulgDFTInv_PackToR_2_32f, zulgDFTInv_PackToR_3_32f, zulgDFTInv_PackToR_4_32f, zulgDFTInv_PackToR_5_32f,
        zulgDFTInv_PackToR_6_32f, zulgDFTInv_PackToR_7_32f, zulgDFTInv_PackToR_8_32f, zulgDFTInv_PackToR_9_32f,
        zulgDFTInv_PackToR_10_32f, zulgDFTInv_PackToR_11_32f, zulgDFTInv_PackToR_12_32f, zulgDFTInv_PackToR_13_32f,
        zulgDFTInv_PackToR_14_32f, zulgDFTInv_PackToR_15_32f, zulgDFTInv_PackToR_16_32f, zulgDFTInv_PackToR_17_32f,
        zulgDFTInv_PackToR_18_32f, zulgDFTInv_PackToR_19_32f, zulgDFTInv_PackToR_20_32f, zulgDFTInv_PackToR_21_32f,
        zulgDFTInv_PackToR_22_32f, zulgDFTInv_PackToR_23_32f, zulgDFTInv_PackToR_24_32f, zulgDFTInv_PackToR_25_32f,
        zulgDFTInv_PackToR_26_32f, zulgDFTInv_PackToR_27_32f, zulgDFTInv_PackToR_28_32f, zulgDFTInv_PackToR_29_32f,
        zulgDFTInv_PackToR_30_32f, zulgDFTInv_PackToR_31_32f, zulgDFTInv_PackToR_32_32f, zulgDFTInv_PackToR_33_32f,
        zulgDFTInv_PackToR_34_32f, zulgDFTInv_PackToR_35_32f, zulgDFTInv_PackToR_36_32f, zulgDFTInv_PackToR_37_32f,
        zulgDFTInv_PackToR_38_32f, zulgDFTInv_PackToR_39_32f, zulgDFTInv_PackToR_40_32f, zulgDFTInv_PackToR_41_32f,
        zulgDFTInv_PackToR_42_32f, zulgDFTInv_PackToR_43_32f, zulgDFTInv_PackToR_44_32f, zulgDFTInv_PackToR_45_32f,
        zulgDFTInv_PackToR_46_32f, zulgDFTInv_PackToR_47_32f, zulgDFTInv_PackToR_48_32f, zulgDFTInv_PackToR_49_32f,
        zulgDFTInv_PackToR_50_32f, zulgDFTInv_PackToR_51_32f, zulgDFTInv_PackToR_52_32f, zulgDFTInv_PackToR_53_32f,
        zulgDFTInv_PackToR_54_32f, zulgDFTInv_PackToR_55_32f, zulgDFTInv_PackToR_56_32f, zulgDFTInv_PackToR_57_32f,
        zulgDFTInv_PackToR_58_32f, zulgDFTInv_PackToR_59_32f, zulgDFTInv_PackToR_60_32f, zulgDFTInv_PackToR_61_32f,
        zulgDFTInv_PackToR_62_32f, zulgDFTInv_PackToR_63_32f, zulgDFTInv_PackToR_64_32f,
    };
};

template <>
struct routines<family::DFTInv_PermToR, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_PermToR_64f;
    static constexpr routine<Zulg64f> each[] = {
        zulgDFTInv_PermToR_2_64f, zulgDFTInv_PermToR_3_64f, zulgDFTInv_PermToR_4_64f, zulgDFTInv_PermToR_5_64f,
        zulgDFTInv_PermToR_6_64f, zulgDFTInv_PermToR_7_64f, zulgDFTInv_PermToR_8_64f, zulgDFTInv_PermToR_9_64f,
        zulgDFTInv_PermToR_10_64f, zulgDFTInv_PermToR_11_64f, zulgDFTInv_PermToR_12_64f, zulgDFTInv_PermToR_13_64f,
        zulgDFTInv_PermToR_14_64f, zulgDFTInv_PermToR_15_64f, zulgDFTInv_PermToR_16_64f, zulgDFTInv_PermToR_17_64f,
        zulgDFTInv_PermToR_18_64f, zulgDFTInv_PermToR_19_64f, zulgDFTInv_PermToR_20_64f, zulgDFTInv_PermToR_21_64f,
        zulgDFTInv_PermToR_22_64f, zulgDFTInv_PermToR_23_64f, zulgDFTInv_PermToR_24_64f, zulgDFTInv_PermToR_25_64f,
        zulgDFTInv_PermToR_26_64f, zulgDFTInv_PermToR_27_64f, zulgDFTInv_PermToR_28_64f, zulgDFTInv_PermToR_29_64f,
        zulgDFTInv_PermToR_30_64f, zulgDFTInv_PermToR_31_64f, zulgDFTInv_PermToR_32_64f, zulgDFTInv_PermToR_33_64f,
        zulgDFTInv_PermToR_34_64f, zulgDFTInv_PermToR_35_64f, zulgDFTInv_PermToR_36_64f, zulgDFTInv_PermToR_37_64f,
        zulgDFTInv_PermToR_38_64f, zulgDFTInv_PermToR_39_64f, zulgDFTInv_PermToR_40_64f, zulgDFTInv_PermToR_41_64f,
        zulgDFTInv_PermToR_42_64f, zulgDFTInv_PermToR_43_64f, zulgDFTInv_PermToR_44_64f, zulgDFTInv_PermToR_45_64f,
        zulgDFTInv_PermToR_46_64f, zulgDFTInv_PermToR_47_64f, zulgDFTInv_PermToR_48_64f, zulgDFTInv_PermToR_49_64f,
        zulgDFTInv_PermToR_50_64f, zulgDFTInv_PermToR_51_64f, zulgDFTInv_PermToR_52_64f, zulgDFTInv_PermToR_53_64f,
        zulgDFTInv_PermToR_54_64f, zulgDFTInv_PermToR_55_64f, zulgDFTInv_PermToR_56_64f, zulgDFTInv_PermToR_57_64f,
        zulgDFTInv_PermToR_58_64f, zulgDFTInv_PermToR_59_64f, zulgDFTInv_PermToR_60_64f, zulgDFTInv_PermToR_61_64f,
        zulgDFTInv_PermToR_62_64f, zulgDFTInv_PermToR_63_64f, zulgDFTInv_PermToR_64_64f,
    };
};

template <>
struct routines<family::DFTInv_PermToR, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgDFTInv_PermToR_32f;
    static constexpr routine<Zulg32f> each[] = {
        zulgDFTInv_PermToR_2_32f, zulgDFTInv_PermToR_3_32f, zulgDFTInv_PermToR_4_32f, zulgDFTInv_PermToR_5_32f,
        zulgDFTInv_PermToR_6_32f, zulgDFTInv_PermToR_7_32f, zulgDFTInv_PermToR_8_32f, zulgDFTInv_PermToR_9_32f,
        zulgDFTInv_PermToR_10_32f, zulgDFTInv_PermToR_11_32f, zulgDFTInv_PermToR_12_32f, zulgDFTInv_PermToR_13_32f,
        zulgDFTInv_PermToR_14_32f, zulgDFTInv_PermToR_15_32f, zulgDFTInv_PermToR_16_32f, zulgDFTInv_PermToR_17_32f,
        zulgDFTInv_PermToR_18_32f, zulgDFTInv_PermToR_19_32f, zulgDFTInv_PermToR_20_32f, zulgDFTInv_PermToR_21_32f,
        zulgDFTInv_PermToR_22_32f, zulgDFTInv_PermToR_23_32f, zulgDFTInv_PermToR_24_32f, zulgDFTInv_PermToR_25_32f,
        zulgDFTInv_PermToR_26_32f, zulgDFTInv_PermToR_27_32f, zulgDFTInv_PermToR_28_32f, zulgDFTInv_PermToR_29_32f,
        zulgDFTInv_PermToR_30_32f, zulgDFTInv_PermToR_31_32f, zulgDFTInv_PermToR_32_32f, zulgDFTInv_PermToR_33_32f,
        zulgDFTInv_PermToR_34_32f, zulgDFTInv_PermToR_35_32f, zulgDFTInv_PermToR_36_32f, zulgDFTInv_PermToR_37_32f,
        zulgDFTInv_PermToR_38_32f, zulgDFTInv_PermToR_39_32f, zulgDFTInv_PermToR_40_32f, zulgDFTInv_PermToR_41_32f,
        zulgDFTInv_PermToR_42_32f, zulgDFTInv_PermToR_43_32f, zulgDFTInv_PermToR_44_32f, zulgDFTInv_PermToR_45_32f,
        zulgDFTInv_PermToR_46_32f, zulgDFTInv_PermToR_47_32f, zulgDFTInv_PermToR_48_32f, zulgDFTInv_PermToR_49_32f,
        zulgDFTInv_PermToR_50_32f, zulgDFTInv_PermToR_51_32f, zulgDFTInv_PermToR_52_32f, zulgDFTInv_PermToR_53_32f,
        zulgDFTInv_PermToR_54_32f, zulgDFTInv_PermToR_55_32f, zulgDFTInv_PermToR_56_32f, zulgDFTInv_PermToR_57_32f,
        zulgDFTInv_PermToR_58_32f, zulgDFTInv_PermToR_59_32f, zulgDFTInv_PermToR_60_32f, zulgDFTInv_PermToR_61_32f,
        zulgDFTInv_PermToR_62_32f, zulgDFTInv_PermToR_63_32f, zulgDFTInv_PermToR_64_32f,
    };
};

template <>
struct routines<family::Hartley, double> {
    static constexpr int first = 2;
    static constexpr auto any = zulgHartley_64f;
    static constexpr routine<Zulg64f> each[] = {
        zulgHartley_2_64f, zulgHartley_3_64f, zulgHartley_4_64f, zulgHartley_5_64f, zulgHartley_6_64f,
        zulgHartley_7_64f, zulgHartley_8_64f, zulgHartley_9_64f, zulgHartley_10_64f, zulgHartley_11_64f,
        zulgHartley_12_64f, zulgHartley_13_64f, zulgHartley_14_64f, zulgHartley_15_64f, zulgHartley_16_64f,
        zulgHartley_17_64f, zulgHartley_18_64f, zulgHartley_19_64f, zulgHartley_20_64f, zulgHartley_21_64f,
        zulgHartley_22_64f, zulgHartley_23_64f, zulgHartley_24_64f, zulgHartley_25_64f, zulgHartley_26_64f,
        zulgHartley_27_64f, zulgHartley_28_64f, zulgHartley_29_64f, zulgHartley_30_64f, zulgHartley_31_64f,
        zulgHartley_32_64f, zulgHartley_33_64f, zulgHartley_34_64f, zulgHartley_35_64f, zulgHartley_36_64f,
        zulgHartley_37_64f, zulgHartley_38_64f, zulgHartley_39_64f, zulgHartley_40_64f, zulgHartley_41_64f,
        zulgHartley_42_64f, zulgHartley_43_64f, zulgHartley_44_64f, zulgHartley_45_64f, zulgHartley_46_64f,
        zulgHartley_47_64f, zulgHartley_48_64f, zulgHartley_49_64f, zulgHartley_50_64f, zulgHartley_51_64f,
        zulgHartley_52_64f, zulgHartley_53_64f, zulgHartley_54_64f, zulgHartley_55_64f, zulgHartley_56_64f,
        zulgHartley_57_64f, zulgHartley_58_64f, zulgHartley_59_64f, zulgHartley_60_64f, zulgHartley_61_64f,
        zulgHartley_62_64f, zulgHartley_63_64f, zulgHartley_64_64f,
    };
};

template <>
struct routines<family::Hartley, float> {
    static constexpr int first = 2;
    static constexpr auto any = zulgHartley_32f;
    static constexpr routine<Zulg32f> each[] = {
        zulgHartley_2_32f, zulgHartley_3_32f, zulgHartley_4_32f, zulgHartley_5_32f, zulgHartley_6_32f,
        zulgHartley_7_32f, zulgHartley_8_32f, zulgHartley_9_32f, zulgHartley_10_32f, zulgHartley_11_32f,
        zulgHartley_12_32f, zulgHartley_13_32f, zulgHartley_14_32f, zulgHartley_15_32f, zulgHartley_16_32f,
        zulgHartley_17_32f, zulgHartley_18_32f, zulgHartley_19_32f, zulgHartley_20_32f, zulgHartley_21_32f,
        zulgHartley_22_32f, zulgHartley_23_32f, zulgHartley_24_32f, zulgHartley_25_32f, zulgHartley_26_32f,
        zulgHartley_27_32f, zulgHartley_28_32f, zulgHartley_29_32f, zulgHartley_30_32f, zulgHartley_31_32f,
        zulgHartley_32_32f, zulgHartley_33_32f, zulgHartley_34_32f, zulgHartley_35_32f, zulgHartley_36_32f,
        zulgHartley_37_32f, zulgHartley_38_32f, zulgHartley_39_32f, zulgHartley_40_32f, zulgHartley_41_32f,
        zulgHartley_42_32f, zulgHartley_43_32f, zulgHartley_44_32f, zulgHartley_45_32f, zulgHartley_46_32f,
        zulgHartley_47_32f, zulgHartley_48_32f, zulgHartley_49_32f, zulgHartley_50_32f, zulgHartley_51_32f,
        zulgHartley_52_32f, zulgHartley_53_32f, zulgHartley_54_32f, zulgHartley_55_32f, zulgHartley_56_32f,
        zulgHartley_57_32f, zulgHartley_58_32f, zulgHartley_59_32f, zulgHartley_60_32f, zulgHartley_61_32f,
        zulgHartley_62_32f, zulgHartley_63_32f, zulgHartley_64_32f,
    };
};

template <>
struct routines<family::WHT, double> {
    static constexpr int first = 1;
    static constexpr auto any = zulgWHT_64f;
    static constexpr wht_routine<Zulg64f> each[] = {
        zulgWHT_1_64f, zulgWHT_2_64f, zulgWHT_3_64f, zulgWHT_4_64f, zulgWHT_5_64f, zulgWHT_6_64f, zulgWHT_7_64f,
        zulgWHT_8_64f, zulgWHT_9_64f, zulgWHT_10_64f, zulgWHT_11_64f, zulgWHT_12_64f, zulgWHT_13_64f,
    };
};

template <>
struct routines<family::WHT, float> {
    static constexpr int first = 1;
    static constexpr auto any = zulgWHT_32f;
    static constexpr wht_routine<Zulg32f> each[] = {
        zulgWHT_1_32f, zulgWHT_2_32f, zulgWHT_3_32f, zulgWHT_4_32f, zulgWHT_5_32f, zulgWHT_6_32f, zulgWHT_7_32f,
        zulgWHT_8_32f, zulgWHT_9_32f, zulgWHT_10_32f, zulgWHT_11_32f, zulgWHT_12_32f, zulgWHT_13_32f,
    };
};
