# ZULG_SANITIZE: what the compiler's sanitizers watch, as -fsanitize names it, such as address,undefined. The presets
# asan, tsan and msan set it. Every target is then compiled and linked with it, but for these sources:
#
# - The texts of kernels. They have neither loop nor index, the tests hold them between guard pages at every offset, and
#   GCC takes ten times as long for one of 16 points, and minutes for one of 47.
# - What settles slots while the library is loaded, when no sanitizer's run time has begun. The libraries of one level
#   settle nothing, so that all of their dispatchers are watched.
#
# Loops over long bodies are watched at their arrays, and not at their own variables or for undefined behaviour, which
# would take GCC minutes for each.
#
# The memory sanitizer, which clang has, watches all of them: it would take what an unwatched kernel writes for unset.
# Its preset takes standard C++, which settles nothing while it is loaded.
#
# Arrays need no alignment, which the undefined behaviour sanitizer would report at each load.
set(ZULG_SANITIZE "" CACHE STRING "What sanitizers watch, such as address,undefined or thread")
if(NOT ZULG_SANITIZE)
    return()
endif()
set(sanitizer_flags -fsanitize=${ZULG_SANITIZE} -fno-sanitize-recover=all -fno-sanitize=alignment
    -fno-omit-frame-pointer -g1 -O1)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC says of <regex> with these checks in it that something may not be set.
    list(APPEND sanitizer_flags -Wno-maybe-uninitialized)
endif()
set(body_flags ${sanitizer_flags})
if(ZULG_SANITIZE MATCHES "address")
    set(body_flags -fsanitize=address -fno-sanitize-address-use-after-scope --param=asan-stack=0 -g1 -O1)
endif()
set(body_targets "^(zulgenpx_lane_passes_.*|plain_dct4)$")
set(body_sources ${dct4_run_sources} ${scalar_wht_sources} batch/batch.cpp)
set(sanitizer_link_flags -fsanitize=${ZULG_SANITIZE})
set(unwatched_targets "^(zulgenpx_kernels.*|(plain|own)_objects|zulgenpx_batch_objects_.*)$")
set(settled_libraries "^zulgenpx(_batch.*)?$")
if(ZULG_SANITIZE STREQUAL "memory")
    set(unwatched_targets "^$")
    set(settled_libraries "^$")
    list(APPEND sanitizer_flags -fsanitize-memory-track-origins=1)
endif()
set(settling_slots boundary/dispatch.cpp boundary/slot_table.cpp boundary/wht_dispatch.cpp batch/slot_table.cpp
    targets/x86_64/processor_level.cpp)

# watch_targets(FOLDER): adds the flags to all targets of a folder and of those below it.
function(watch_targets folder)
    get_directory_property(below DIRECTORY ${folder} SUBDIRECTORIES)
    foreach(each IN LISTS below)
        watch_targets(${each})
    endforeach()
    get_directory_property(targets DIRECTORY ${folder} BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(NOT type MATCHES "EXECUTABLE|(SHARED|STATIC|OBJECT)_LIBRARY" OR target MATCHES "${unwatched_targets}")
            continue()
        endif()
        target_link_options(${target} PRIVATE ${sanitizer_link_flags})
        if(NOT target MATCHES "${settled_libraries}")
            set(flags ${sanitizer_flags})
            if(target MATCHES "${body_targets}")
                set(flags ${body_flags})
            endif()
            target_compile_options(${target} PRIVATE "$<$<COMPILE_LANGUAGE:C,CXX>:${flags}>")
            continue()
        endif()
        get_target_property(sources ${target} SOURCES)
        foreach(source IN LISTS sources)
            if(source MATCHES "\\.cpp$" AND NOT source IN_LIST settling_slots AND NOT source IN_LIST body_sources)
                set_property(SOURCE ${source} DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY COMPILE_OPTIONS
                    ${sanitizer_flags})
            endif()
        endforeach()
    endforeach()
endfunction()
set_property(SOURCE ${body_sources} APPEND PROPERTY COMPILE_OPTIONS ${body_flags})
watch_targets(${PROJECT_SOURCE_DIR})
