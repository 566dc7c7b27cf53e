# How every source of the library is compiled, whatever the target; the target's own folder says the rest.
set(library_compile_flags
    -O2                           # in every kind of build: frames and, on x87, roundings depend on it
    -fvisibility=hidden           # exported are the entries of entries.S and the version call, nothing else
    -fno-exceptions -fno-rtti
    -fno-threadsafe-statics       # the guards of local statics are in the C++ runtime, which is not linked
    -fno-fast-math                # whatever the project asks for that this library is a part of
    -ffp-contract=off             # one step in a graph is one step in the machine
    -fno-tree-vectorize           # GCC 12 packs straight-line code at -O2, and the operation counts break
    -fno-asynchronous-unwind-tables
    -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)  # the same bytes from any folder
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    list(APPEND library_compile_flags -fno-slp-vectorize)  # its name for packing straight-line code
endif()

# Passes that look for equal values and for needless stores, of which the long texts of registers have none. Without
# them the machine code is the same but for one text, where it is as long, and a fifth of the time is saved.
set(idle_pass_flags -fno-tree-fre -fno-tree-pre -fno-code-hoisting --param=dse-max-alias-queries-per-store=4)

# include_target(FOLDER): what the folder of a target says. Another compiler than GCC, for which the flags are chosen,
# gets those that it knows; what the values rest on, every compiler does.
include(CheckCXXCompilerFlag)
macro(include_target folder)
    include(${folder}/target.cmake)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        foreach(list IN ITEMS target kernel short_kernel scheduled lane wht dct4_run batch batch_long)
            keep_known_flags(${list}_compile_flags)
        endforeach()
    endif()
endmacro()
function(keep_known_flags variable)
    set(CMAKE_REQUIRED_QUIET ON)
    set(known "")
    foreach(flag IN LISTS ${variable})
        string(MAKE_C_IDENTIFIER "zulgenpx_knows${flag}" name)
        check_cxx_compiler_flag("-Werror ${flag}" ${name})
        if(${name})
            list(APPEND known ${flag})
        endif()
    endforeach()
    set(${variable} "${known}" PARENT_SCOPE)
endfunction()
