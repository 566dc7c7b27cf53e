# How every source of the library is compiled, whatever the target; the target's own folder says the rest.
set(library_compile_flags
    -fvisibility=hidden           # exported are the entries of entries.S and the version call, nothing else
    -fno-exceptions -fno-rtti
    -fno-threadsafe-statics       # the guards of local statics are in the C++ runtime, which is not linked
    -ffp-contract=off             # one step in a graph is one step in the machine
    -fno-tree-vectorize           # GCC 12 packs straight-line code at -O2, and the operation counts break
    -fno-asynchronous-unwind-tables
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)  # the same bytes from any folder
