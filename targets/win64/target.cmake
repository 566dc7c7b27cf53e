# 64-bit Windows: the kernels of both levels of x86-64, in a DLL.
include(${CMAKE_CURRENT_LIST_DIR}/../x86_64/target.cmake)

set(first_level x86_64)  # further_levels are those of x86-64

# What the sources of all levels are compiled with besides the flags of their level.
set(platform_compile_flags
    -fcf-protection=none          # this loader ignores marks of branch targets
    -mcmodel=small                # data of another source is read at its own address, not through a pointer
    -fasynchronous-unwind-tables) # an exception handler of a caller is found through the frames of the library
# Windows aligns the stack to 16 bytes. The compiler stores registers of 32 bytes there as if it were 32.
set(platform_compile_flags_x86_64_v3 -Wa,-muse-unaligned-vector-move)
list(APPEND target_compile_flags ${platform_compile_flags})

# Ten vector registers belong to the caller here, and these kernels save them all. The flags keep their frames within
# 1 KB; that of the inverse becomes larger by them, and does not need them.
set(platform_deep_texts "/(real_forward|hartley)[a-z_]*/[a-z]+_59\\.h$")
set(platform_deep_compile_flags -fno-tree-ter -fschedule-insns -fsched-pressure)

set(common_link_flags
    -nostdlib                     # the stock start files have initializers, and imports of their own
    -Wl,--no-insert-timestamp     # the same bytes from each build
    -Wl,--dynamicbase,--high-entropy-va,--nxcompat
    -Wl,--strip-all)
# Image bases are fixed, since the linker would otherwise derive them from the output path. They are above 4 GB, where
# Windows has most room to move a file.
set(library_link_flags ${common_link_flags} -Wl,--entry=zulgLoadLevels -Wl,--image-base=0x365c00000)
# Of one level by itself, for the tests: there is nothing to settle.
set(level_link_flags -Wl,--entry=zulgLoadEntry)
set(batch_level_link_flags -Wl,-e,0)
set(batch_link_flags ${common_link_flags} -Wl,--entry=zulgLoadBatch -Wl,--image-base=0x367c00000)
set(companion_link_flags ${common_link_flags} -Wl,--image-base=0x365b00000)

include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/windows_math.cmake)
set(library_link_libraries ${library_math} gcc kernel32 msvcrt)
set(batch_link_libraries gcc kernel32 msvcrt)
set(library_platform_sources boundary/shared_library_windows.cpp boundary/library.rc)
set(settling_sources boundary/settle_windows.cpp)
set(library_first_sources "")
set(library_file_prefix "")  # not the "lib" that this toolchain would add
