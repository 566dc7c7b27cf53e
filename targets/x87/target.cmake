# 32-bit Windows, any processor of the Pentium class: the x87 unit, no vector instruction.

set(target_compile_flags
    -march=pentium -mfpmath=387
    -fexcess-precision=fast       # a stricter mode would store every x87 intermediate to memory
    -mincoming-stack-boundary=2   # Windows callers align the stack to 4 bytes
    -fcf-protection=none)

# Kernels: smaller code is faster code here, too.
set(kernel_compile_flags -Os)
set(wht_compile_flags ${kernel_compile_flags})
set(dct4_run_compile_flags ${kernel_compile_flags} -flive-range-shrinkage)  # fewer spills in long rows
set(kernel_forms scalar)
set(scalar_kernel_sources kernel/two.cpp)
set(scalar_wht_sources wht/large_orders.cpp wht/small_orders.cpp)
set(lane_sources "")
set(short_kernel_steps 0)

set(common_link_flags
    -nostdlib                     # the stock start files have 70 KB, some 20 imports, and initializers
    -Wl,--no-insert-timestamp     # the same bytes from each build
    -Wl,--dynamicbase,--nxcompat,--no-seh
    -Wl,--strip-all)
# Image bases are fixed, since the linker would otherwise derive them from the output path.
set(library_link_flags ${common_link_flags} -Wl,--entry=_zulgLoadEntry@12 -Wl,--image-base=0x65c00000)
set(companion_link_flags ${common_link_flags} -Wl,--image-base=0x65b00000)

include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/windows_math.cmake)

set(library_link_libraries ${library_math} gcc kernel32 msvcrt)
set(library_platform_sources boundary/shared_library_windows.cpp boundary/library.rc)
set(library_file_prefix "")  # not the "lib" that this toolchain would add
set(library_first_sources "")
set(further_levels "")
