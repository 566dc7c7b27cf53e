/* Written by `generate write`; do not edit. The rule: generator/output/routine_tables.cpp.
   The routines of the batch library by family and type of the reals. Included by zulgenpx_batch.hpp. */
template <>
inline constexpr auto dct4_routine<float> = zulgBatchDCT4_32f;
template <>
inline constexpr auto dct4_routine<double> = zulgBatchDCT4_64f;
template <>
inline constexpr auto routine<family::DFTFwd_CToC, float> = zulgBatchDFTFwd_CToC_32fc;
template <>
inline constexpr auto routine<family::DFTFwd_CToC, double> = zulgBatchDFTFwd_CToC_64fc;
template <>
inline constexpr auto routine<family::DFTFwd_RToCCS, float> = zulgBatchDFTFwd_RToCCS_32f;
template <>
inline constexpr auto routine<family::DFTFwd_RToCCS, double> = zulgBatchDFTFwd_RToCCS_64f;
template <>
inline constexpr auto routine<family::DFTFwd_RToPack, float> = zulgBatchDFTFwd_RToPack_32f;
template <>
inline constexpr auto routine<family::DFTFwd_RToPack, double> = zulgBatchDFTFwd_RToPack_64f;
template <>
inline constexpr auto routine<family::DFTFwd_RToPerm, float> = zulgBatchDFTFwd_RToPerm_32f;
template <>
inline constexpr auto routine<family::DFTFwd_RToPerm, double> = zulgBatchDFTFwd_RToPerm_64f;
template <>
inline constexpr auto routine<family::DFTInv_CCSToR, float> = zulgBatchDFTInv_CCSToR_32f;
template <>
inline constexpr auto routine<family::DFTInv_CCSToR, double> = zulgBatchDFTInv_CCSToR_64f;
template <>
inline constexpr auto routine<family::DFTInv_CToC, float> = zulgBatchDFTInv_CToC_32fc;
template <>
inline constexpr auto routine<family::DFTInv_CToC, double> = zulgBatchDFTInv_CToC_64fc;
template <>
inline constexpr auto routine<family::DFTInv_PackToR, float> = zulgBatchDFTInv_PackToR_32f;
template <>
inline constexpr auto routine<family::DFTInv_PackToR, double> = zulgBatchDFTInv_PackToR_64f;
template <>
inline constexpr auto routine<family::DFTInv_PermToR, float> = zulgBatchDFTInv_PermToR_32f;
template <>
inline constexpr auto routine<family::DFTInv_PermToR, double> = zulgBatchDFTInv_PermToR_64f;
template <>
inline constexpr auto routine<family::Hartley, float> = zulgBatchHartley_32f;
template <>
inline constexpr auto routine<family::Hartley, double> = zulgBatchHartley_64f;
template <>
inline constexpr auto routine_in_single<family::DFTFwd_CToC> = zulgBatchSingleDFTFwd_CToC_32fc;
template <>
inline constexpr auto routine_in_single<family::DFTFwd_RToCCS> = zulgBatchSingleDFTFwd_RToCCS_32f;
template <>
inline constexpr auto routine_in_single<family::DFTFwd_RToPack> = zulgBatchSingleDFTFwd_RToPack_32f;
template <>
inline constexpr auto routine_in_single<family::DFTFwd_RToPerm> = zulgBatchSingleDFTFwd_RToPerm_32f;
template <>
inline constexpr auto routine_in_single<family::DFTInv_CCSToR> = zulgBatchSingleDFTInv_CCSToR_32f;
template <>
inline constexpr auto routine_in_single<family::DFTInv_CToC> = zulgBatchSingleDFTInv_CToC_32fc;
template <>
inline constexpr auto routine_in_single<family::DFTInv_PackToR> = zulgBatchSingleDFTInv_PackToR_32f;
template <>
inline constexpr auto routine_in_single<family::DFTInv_PermToR> = zulgBatchSingleDFTInv_PermToR_32f;
template <>
inline constexpr auto routine_in_single<family::Hartley> = zulgBatchSingleHartley_32f;
template <>
inline constexpr auto routine<family::WHT, float> = zulgBatchWHT_32f;
template <>
inline constexpr auto routine<family::WHT, double> = zulgBatchWHT_64f;
