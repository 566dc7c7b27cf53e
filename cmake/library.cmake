# How the shipped library is compiled and linked, for each target. Sources come from CMakeLists.txt.

# For every source of the library.
set(library_compile_flags
    -fvisibility=hidden           # exported are the entries of entries.S and the version call, nothing else
    -fno-exceptions -fno-rtti
    -fno-threadsafe-statics       # the guards of local statics are in the C++ runtime, which is not linked
    -ffp-contract=off             # one step in a graph is one step in the machine
    -fno-tree-vectorize           # GCC 12 packs straight-line code at -O2, and the operation counts break
    -fexcess-precision=fast       # a stricter mode would store every x87 intermediate to memory
    -fno-asynchronous-unwind-tables
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)  # the same bytes from any folder

# Kernels: smaller code is faster code here. It has more memory operands and fewer instructions than at -O2, and a
# kernel that exceeds the instruction cache is slow.
set(kernel_compile_flags -Os)

if(WIN32)
    list(APPEND library_compile_flags
        -march=pentium -mfpmath=387   # the processor class of this target: no vector registers
        -mincoming-stack-boundary=2   # Windows callers align the stack to 4 bytes
        -fcf-protection=none)
    set(fast_kernel_compile_flags ${kernel_compile_flags})
    set(long_kernel_compile_flags ${kernel_compile_flags})
    set(long_kernel_launcher "")
    set(common_link_flags
        -nostdlib                     # the stock start files have 70 KB, some 20 imports, and initializers
        -Wl,--no-insert-timestamp     # the same bytes from each build
        -Wl,--dynamicbase,--nxcompat,--no-seh
        -Wl,--strip-all)
    # Image bases are fixed, since the linker would otherwise derive them from the output path.
    set(library_link_flags ${common_link_flags} -Wl,--entry=_zulgLoadEntry@12 -Wl,--image-base=0x65c00000)
    set(companion_link_flags ${common_link_flags} -Wl,--image-base=0x65b00000)
    set(library_link_libraries gcc kernel32 msvcrt)
    set(library_platform_sources boundary/shared_library_windows.cpp boundary/library.rc)
    # The file's name does not begin with the "lib" that this toolchain would add.
    set(library_file_prefix "")
else()
    list(APPEND library_compile_flags
        -mfpmath=sse -mno-sse3        # scalar code for any x86-64
        -fcf-protection=full)
    # Kernels that are faster when compiled for speed: registers are cleared before a conversion that would otherwise
    # wait for them.
    set(fast_kernel_compile_flags -O2 -fno-schedule-insns2 -fno-tree-pre -flive-range-shrinkage)
    # Long kernels. An access by the frame pointer takes a byte less than one by the stack pointer. Fewer values are
    # kept in memory. The launcher uses the registers that are left to it for shorter displacements.
    set(long_kernel_compile_flags ${kernel_compile_flags} -fno-omit-frame-pointer -flive-range-shrinkage
        -ffixed-rbx -ffixed-r8 -ffixed-r9 -ffixed-r10 -ffixed-r11 -ffixed-r12 -ffixed-r13 -ffixed-r14 -ffixed-r15)
    set(long_kernel_launcher ${CMAKE_CURRENT_LIST_DIR}/short_displacements.py)
    set(common_link_flags
        -nostartfiles                 # nothing but the load entry runs when the library is loaded
        -Wl,-z,ibt,-z,shstk           # branch-target and shadow-stack marks, which need the note in entries.S
        -Wl,-z,relro,-z,now,-z,noexecstack
        -Wl,--no-undefined,--build-id=none
        -Wl,--strip-all)
    set(library_link_flags ${common_link_flags} -Wl,-init=zulgLoad)
    set(companion_link_flags ${common_link_flags})
    set(library_link_libraries ${CMAKE_DL_LIBS})
    set(library_platform_sources boundary/shared_library_elf.cpp boundary/load_elf.cpp)
    set(library_file_prefix "lib")
endif()

# Sine and cosine, for the tables of the DCT-IV: the mathematics library, or the C runtime of Windows. The toolchain's
# import library of that runtime leaves these two out in favour of code of its own.
if(WIN32)
    set(library_math ${CMAKE_BINARY_DIR}/libmsvcrt_math.a)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/msvcrt_math.def CONTENT "LIBRARY msvcrt.dll\nEXPORTS\n    cos\n    sin\n")
    # The names are relative, since the members of an import library are named after its path.
    execute_process(COMMAND ${CMAKE_DLLTOOL} -d msvcrt_math.def -l libmsvcrt_math.a
        WORKING_DIRECTORY ${CMAKE_BINARY_DIR} COMMAND_ERROR_IS_FATAL ANY)
else()
    set(library_math m)
endif()
list(PREPEND library_link_libraries ${library_math})
