# The module zulgenpx.wasm: every exported routine, and memory for arrays by malloc and free. It imports nothing.
add_library(module_objects OBJECT
    boundary/dispatch.cpp ${entry_sources} boundary/version.cpp boundary/wht_dispatch.cpp
    ${dct4_plan_sources} ${dct4_run_sources} companion/zulcore.cpp)
target_include_directories(module_objects PRIVATE ${PROJECT_SOURCE_DIR} ${target_folder})
target_compile_options(module_objects PRIVATE ${library_compile_flags} ${target_compile_flags})
target_link_libraries(module_objects PRIVATE zulgen_warnings)
list(APPEND level_objects module_objects)

set(module_link_flags -Wl,--strip-all,-z,stack-size=262144)
function(link_module name)
    foreach(objects IN LISTS level_objects)
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:${objects}>)
    endforeach()
    target_link_options(${name} PRIVATE ${module_link_flags} ${ARGN})
    set_target_properties(${name} PROPERTIES SUFFIX .wasm)
endfunction()

file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/nothing.c CONTENT "/* A program needs a source. */\n" @ONLY)
add_executable(zulgenpx ${PROJECT_BINARY_DIR}/nothing.c)
set_target_properties(zulgenpx PROPERTIES LINKER_LANGUAGE CXX)
link_module(zulgenpx -nostartfiles -Wl,--no-entry,--export-dynamic,--export=malloc,--export=free)

# What the tests run: digests of all routines, with the same objects linked in.
if(is_developed)
    add_executable(digests tests/same_bits/digests.cpp tests/same_bits/linked_names.cpp)
    target_include_directories(digests PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_options(digests PRIVATE -fno-exceptions)
    target_link_libraries(digests PRIVATE zulgen_warnings)
    link_module(digests -fno-exceptions)

    enable_testing()
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    find_program(NODE NAMES node nodejs REQUIRED)
    add_test(NAME same_bits COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/same_bits/same_bits.py
        --run ${NODE} --run --no-warnings --run ${PROJECT_SOURCE_DIR}/tests/same_bits/run_module.js check
        $<TARGET_FILE:digests> $<TARGET_FILE:zulgenpx> ${PROJECT_SOURCE_DIR}/tests/same_bits/digests.txt)
endif()
