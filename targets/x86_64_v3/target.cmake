# x86-64 processors with AVX2: the second level of the native library.
include(${CMAKE_CURRENT_LIST_DIR}/../x86_64/target.cmake)

set(target_compile_flags
    -mavx2
    -mno-fma                      # a step that rounds once less is another step
    -fcf-protection=full)

# Complex kernels have this level, and all other kernels have the first one only. Where a length has lines, they share
# registers, but for a few short lengths where putting lines together costs more than it saves: tuning.txt.
set(kernel_forms lines pairs)
