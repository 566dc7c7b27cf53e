# x86-64 processors with AVX2: the second level of the native library.
include(${CMAKE_CURRENT_LIST_DIR}/../x86_64/target.cmake)

set(target_compile_flags
    -march=x86-64 -mtune=generic
    -mavx2
    -mno-fma                      # a step that rounds once less is another step
    -fcf-protection=full)
# The last flag keeps the frames of 47 and 59 complex points within 2 KB. Shorter kernels are faster without it.
set(short_kernel_steps 4500)
set(short_kernel_compile_flags -O2 -fno-schedule-insns2 -flive-range-shrinkage ${idle_pass_flags})
set(kernel_compile_flags ${short_kernel_compile_flags} -fno-tree-ter)

# Texts that are faster where the compiler may put the steps into another order. Fewer steps wait for each other then,
# but more values wait in the frame, so that it slows other texts down. scripts/tune writes the table.
if(NOT DEFINED scheduled_table)
    set(scheduled_table ${CMAKE_CURRENT_LIST_DIR}/scheduled.txt)
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${scheduled_table})
file(STRINGS ${scheduled_table} scheduled_texts REGEX "^[a-z]")
list(TRANSFORM scheduled_texts REPLACE "^([a-z_]+) +([0-9]+) .*" "\\1 \\2")
set(scheduled_compile_flags -O2 -fschedule-insns -fsched-pressure ${idle_pass_flags})

# Batches. Transforms one after the other that have more steps are as fast one by one.
set(batch_types "float double" "double double" "float float")
set(batch_behind_real_steps 150)
set(batch_behind_complex_steps 800)
set(batch_compile_flags ${short_kernel_compile_flags} -fno-gcse)  # 59 points: no frame above a page
# From this length on, places are reckoned in each run of a text. Before the loop over registers there are so many that
# they go to the frame and have to be read from there, and constants with them.
set(batch_long_length 14)
set(batch_long_compile_flags -fno-tree-loop-im -fno-move-loop-invariants)

# Registers of four lanes, where the generator finds that they save a fifth of the steps.
set(kernel_forms lines pairs)
