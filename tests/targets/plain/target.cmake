# Plain C++: no flag of a machine, no entries.
set(target_compile_flags "")
set(kernel_compile_flags -O2)
set(kernel_forms scalar)
set(short_kernel_steps 0)
