# The module zulgenpx.wasm: every exported routine, and memory for arrays by malloc and free. It imports nothing.
add_library(module_objects OBJECT
    boundary/dispatch.cpp ${entry_sources} boundary/version.cpp boundary/wht_dispatch.cpp
    ${dct4_plan_sources} ${dct4_run_sources} companion/zulcore.cpp)
target_include_directories(module_objects PRIVATE ${PROJECT_SOURCE_DIR} ${target_folder})
target_compile_options(module_objects PRIVATE ${library_compile_flags} ${target_compile_flags})
target_link_libraries(module_objects PRIVATE zulgen_warnings)
list(APPEND level_objects module_objects)

file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/nothing.c CONTENT "/* A program needs a source. */\n" @ONLY)
add_executable(zulgenpx ${PROJECT_BINARY_DIR}/nothing.c)
set_target_properties(zulgenpx PROPERTIES LINKER_LANGUAGE CXX SUFFIX .wasm)
foreach(objects IN LISTS level_objects)
    target_sources(zulgenpx PRIVATE $<TARGET_OBJECTS:${objects}>)
endforeach()
target_link_options(zulgenpx PRIVATE -nostartfiles -Wl,--strip-all,-z,stack-size=262144
    -Wl,--no-entry,--export-dynamic,--export=malloc,--export=free)

if(is_developed)
    enable_testing()
    add_subdirectory(tests/module)
endif()
