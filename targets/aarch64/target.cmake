# 64-bit ARM, with ELF shared libraries: code that any such processor runs.

set(target_compile_flags
    -mbranch-protection=standard)  # branch targets are marked, and return addresses signed; no older processor minds

# Registers of two lanes.
set(kernel_forms pairs)
set(scalar_kernel_sources "")
set(scalar_wht_sources "")
set(kernel_compile_flags -O2 -fno-schedule-insns -fno-schedule-insns2 -flive-range-shrinkage -fno-tree-ter
    --param=max-combine-insns=2)  # the same code, for the longest in less than half of the time
set(short_kernel_steps 0)

# The loops of the Walsh-Hadamard family and of the DCT-IV.
set(lane_sources wht/in_lanes.cpp dct4/fold_in_lanes.cpp dct4/output_in_lanes.cpp dct4/run_in_lanes.cpp)
set(lane_compile_flags -O2 -fno-gcse -flive-range-shrinkage)  # fewer spills in long rows
set(wht_compile_flags -Os)
set(dct4_run_compile_flags -Os -flive-range-shrinkage)

# Batches. Exact ones have nothing to gain from registers of two lanes: they run the kernels one by one.
set(batch_types "float float")
set(batch_behind_real_steps 0)
set(batch_behind_complex_steps 800)
set(batch_compile_flags -O2 -fno-schedule-insns -fno-schedule-insns2 -flive-range-shrinkage)

set(mark_link_flags "")  # the note in entries.inc is enough
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/elf.cmake)
set(library_first_sources "")
set(further_levels "")
