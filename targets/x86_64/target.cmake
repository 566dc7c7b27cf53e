# x86-64, with ELF shared libraries: code that any such processor runs.

set(target_compile_flags
    -march=x86-64 -mtune=generic  # whatever the project asks for that this library is a part of
    -mfpmath=sse -mno-sse3
    -fcf-protection=full)

# Registers of two lanes. Kernels are as fast as at -O2 and smaller. The other two flags keep the frame of 47 points
# within 2 KB.
set(kernel_forms pairs)
set(scalar_kernel_sources "")
set(scalar_wht_sources "")
set(kernel_compile_flags -Os -flive-range-shrinkage -fno-tree-ter ${idle_pass_flags})

# Short kernels are some percent faster at -O2, and those of singles up to twice as fast: at -Os the compiler does not
# clear a register before a conversion, which then waits for what the register held.
set(short_kernel_steps 300)
set(short_kernel_compile_flags -O2 -fno-schedule-insns2 -flive-range-shrinkage)

# The loops of the Walsh-Hadamard family and of the DCT-IV.
set(lane_sources wht/in_lanes.cpp dct4/fold_in_lanes.cpp dct4/output_in_lanes.cpp dct4/run_in_lanes.cpp)
set(lane_compile_flags -O2 -fno-gcse -flive-range-shrinkage)  # fewer spills in long rows
set(wht_compile_flags -Os)  # as fast, and order 13 stays within 2 KB of stack

# One sequence after the other: what the DCT-IV does at the lengths 2^k + 1, below 64 and in deep splits.
set(dct4_run_compile_flags -Os -flive-range-shrinkage)

# Batches. Exact ones have nothing to gain from registers of two lanes: they run the kernels one by one.
set(batch_types "float float")
set(batch_behind_real_steps 0)
set(batch_behind_complex_steps 800)
set(batch_compile_flags -O2 -fno-schedule-insns2 -flive-range-shrinkage)

set(mark_link_flags -Wl,-z,ibt,-z,shstk)  # branch targets and shadow stacks, which need the note in entries.inc
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/elf.cmake)
set(library_first_sources targets/x86_64/processor_level.cpp)  # its word is settled before all slots
set(further_levels x86_64_v3)  # folders of targets/ whose kernels are in the library, too
