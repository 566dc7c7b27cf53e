# Any machine that a C++20 compiler knows: standard C++, no assembler, and an ordinary shared library. What other targets
# gain from flags is left to the compiler.

add_compile_definitions(ZULG_STANDARD_CPP)
set(target_compile_flags -pedantic-errors)  # nothing but the standard

set(kernel_forms scalar)
set(scalar_kernel_sources kernel/two.cpp)
set(scalar_wht_sources wht/large_orders.cpp wht/small_orders.cpp)
set(kernel_compile_flags -O2)
set(wht_compile_flags -O2)
set(dct4_run_compile_flags -O2)
set(lane_sources "")
set(short_kernel_steps 0)

# Batches: one transform after the other.
set(batch_types "float float")
set(batch_behind_real_steps 0)
set(batch_behind_complex_steps 0)
set(batch_compile_flags -O2)

set(has_start_files ON)  # the toolchain's own, which each shared library has
set(common_link_flags "")
set(library_link_flags "")
set(companion_link_flags "")
set(library_math m)  # sine and cosine, for the tables of the DCT-IV
set(library_link_libraries ${library_math} ${CMAKE_DL_LIBS})
set(library_platform_sources boundary/shared_library_elf.cpp boundary/load_standard.cpp)
set(entry_sources boundary/entries.cpp)
set(batch_entry_sources batch/entries.cpp)
set(library_first_sources "")
set(further_levels "")
set(library_file_prefix "lib")
