# x86-64, with ELF shared libraries: code that any such processor runs.

set(target_compile_flags
    -mfpmath=sse -mno-sse3
    -fcf-protection=full)

# Complex kernels hold a complex number in a register, all others one real number.
set(kernel_forms pairs scalar)
# They are as fast as at -O2 and smaller. The other two flags keep the frame of 47 points within 2 KB.
set(lane_kernel_compile_flags -Os -flive-range-shrinkage -fno-tree-ter)

# Kernels: smaller code is faster code here. It has more memory operands and fewer instructions than at -O2, and a
# kernel that exceeds the instruction cache is slow.
set(kernel_compile_flags -Os)

# Kernels that are faster when compiled for speed: registers are cleared before a conversion that would otherwise wait
# for them. Which these are: tuning.txt.
set(fast_kernel_compile_flags -O2 -fno-schedule-insns2 -fno-tree-pre -flive-range-shrinkage)

# The passes of the DCT-IV.
set(dct4_run_compile_flags ${kernel_compile_flags} -flive-range-shrinkage)  # fewer spills in long rows

# Long kernels. An access by the frame pointer takes a byte less than one by the stack pointer. Fewer values are kept in
# memory. The launcher uses the registers that are left to it for shorter displacements.
set(long_kernel_steps 1200)
set(long_kernel_compile_flags ${kernel_compile_flags} -fno-omit-frame-pointer -flive-range-shrinkage
    -ffixed-rbx -ffixed-r8 -ffixed-r9 -ffixed-r10 -ffixed-r11 -ffixed-r12 -ffixed-r13 -ffixed-r14 -ffixed-r15)
set(long_kernel_launcher ${CMAKE_CURRENT_LIST_DIR}/short_displacements.py)

set(common_link_flags
    -nostartfiles                 # nothing but the load entry runs when the library is loaded
    -Wl,-z,ibt,-z,shstk           # branch-target and shadow-stack marks, which need the note in entries.inc
    -Wl,-z,relro,-z,now,-z,noexecstack
    -Wl,--no-undefined,--build-id=none
    -Wl,--strip-all)
set(library_link_flags ${common_link_flags} -Wl,-init=zulgLoad)
set(companion_link_flags ${common_link_flags})
set(library_math m)  # sine and cosine, for the tables of the DCT-IV
set(library_link_libraries ${library_math} ${CMAKE_DL_LIBS})
set(library_platform_sources boundary/shared_library_elf.cpp boundary/load_elf.cpp)
set(library_first_sources targets/x86_64/processor_level.cpp)  # its word is settled before all slots
set(further_levels x86_64_v3)  # folders of targets/ whose kernels are in the library, too
set(library_file_prefix "lib")
