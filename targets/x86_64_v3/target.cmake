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

# Complex transforms side by side whose real and imaginary parts are in registers of their own. `batch_in_parts` has the
# lengths that run so at bad steps (batch/checks.h). Shorter transforms fit into the cache at every step. Where a prime
# factor is above 13, loads take little of the time. With 63 points a frame would be above a page.
# The other lists have the lengths that run so at every step, since they are faster by 5 % there. There is one for each
# pair of types: that of the elements, and that of the numbers in registers.
set(batch_in_parts 9 10 11 12 13 14 15 16 18 20 21 22 24 25 26 27 28 30 32 33 35 36 39 40 42 44 45 48 49 50 52 54 55 56
    60 64)
set(batch_always_in_parts_double_double 16 25 26 27 32 35 36 40 42 44 45 48 50 52 54 55 56 60 64)
set(batch_always_in_parts_float_double 64)
set(batch_always_in_parts_float_float 16 25 27 32 48 50 60 64)

set(batch_compile_flags ${short_kernel_compile_flags} -fno-gcse)  # 59 points: no frame above a page
# From this length on, the places of elements are computed in each run of a text. If they are computed once, before the
# loop over registers, there are more of them than general registers, and each run reads them from the frame.
set(batch_long_length 14)
set(batch_long_compile_flags -fno-tree-loop-im -fno-move-loop-invariants)

# Registers of four lanes, where the generator finds that they save a fifth of the steps.
set(kernel_forms lines pairs)
