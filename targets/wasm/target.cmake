# WebAssembly with vectors of 128 bits, which every browser of today has. The result is one module with all routines,
# and the core library inside: there are no shared libraries, no entries in assembler and no load entry there.

set(target_compile_flags -msimd128)

# Registers of two lanes.
set(kernel_forms pairs)
set(scalar_kernel_sources "")
set(scalar_wht_sources "")
set(kernel_compile_flags -Os)  # as fast as at -O2, and the module is smaller
set(short_kernel_steps 0)
set(texts_in_a_source 12)

# The loops of the Walsh-Hadamard family and of the DCT-IV.
set(lane_sources wht/in_lanes.cpp dct4/fold_in_lanes.cpp dct4/output_in_lanes.cpp dct4/run_in_lanes.cpp)
set(lane_compile_flags -Os)
set(wht_compile_flags -Os)
set(dct4_run_compile_flags -Os)

set(batch_types "")  # no batches
set(entry_sources boundary/entries.cpp)
set(library_link_flags "")
set(library_math m)
set(further_levels "")
