# x86-64 processors with AVX2: the second level of the native library.
include(${CMAKE_CURRENT_LIST_DIR}/../x86_64/target.cmake)

set(target_compile_flags
    -mavx2
    -mno-fma                      # a step that rounds once less is another step
    -fcf-protection=full)
set(lane_kernel_compile_flags -O2 -fno-schedule-insns2 -flive-range-shrinkage)

# Complex kernels have this level, and all other kernels have the first one only. Where a length has lines, they share
# registers: that is faster at every length that has some, by 1.05 to 1.7 times, but for 6 and 9 in double (0.97).
set(kernel_forms lines pairs)
