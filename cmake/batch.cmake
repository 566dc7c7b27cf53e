# The batch library. Complex texts of pairs and real texts of single numbers become routines that do several transforms
# at once, on registers that hold numbers of each.

# The lengths that are computed in single where a caller asks for that. At the others the pooled error would be above
# 1.5 * 2^-24: those with a prime factor from 11 up, other than 13 and 26, and 49, 54 and 63.
set(lengths_in_single 2 3 4 5 6 7 8 9 10 12 13 14 15 16 18 20 21 24 25 26 27 28 30 32 35 36 40 42 45 48 50 56 60 64)

# many_instances(VARIABLE FAMILY GRAPH LENGTH STEPS): how one text becomes routines for one family, as words: the type
# of the elements, the type that the routine computes in, the placement. Where transforms are side by side, the routines
# of CCS serve the other layouts of a half spectrum as well. Long transforms one after the other are as fast one by one;
# in single there is no routine that does one. A text that is IN_PARTS has real and imaginary parts in registers of
# their own.
function(many_instances variable family graph length steps in_parts)
    set(instances "")
    set(isComplex FALSE)
    set(most ${batch_behind_real_steps})
    if(graph MATCHES "^Complex")
        set(isComplex TRUE)
        set(most ${batch_behind_complex_steps})
    endif()
    foreach(types IN LISTS batch_types)
        string(REGEX MATCH "[a-z]+$" computed ${types})
        if(computed STREQUAL "float" AND NOT length IN_LIST lengths_in_single)
            continue()
        endif()
        if(in_parts)
            list(APPEND instances "${types} InParts")
            continue()
        endif()
        if(NOT family MATCHES "Pack|Perm")
            list(APPEND instances "${types} Beside")
        endif()
        if((computed STREQUAL "double" AND steps LESS_EQUAL most) OR (computed STREQUAL "float" AND isComplex))
            list(APPEND instances "${types} Behind")
        endif()
    endforeach()
    set(${variable} "${instances}" PARENT_SCOPE)
endfunction()

# add_batch_level(LIBRARY FOLDER): an object library of what the batch library has for the target in FOLDER.
function(add_batch_level library folder)
    include_target(${folder})
    get_filename_component(target ${folder} NAME)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/${target}/batch)
    set(sources ${PROJECT_SOURCE_DIR}/batch/batch.cpp)
    set(lines "")
    set(complex_graph ComplexPairs)
    if(kernel_forms STREQUAL "scalar")
        set(complex_graph ComplexGraph)
    endif()
    foreach(row IN LISTS kernel_texts)
        string(REPLACE " " ";" row "${row}")
        list(POP_FRONT row text form graph length steps)
        set(in_parts false)
        if(graph STREQUAL "ComplexGraph" AND length IN_LIST batch_in_parts)
            set(in_parts true)
        elseif(NOT graph MATCHES "^${complex_graph}$|^(Real|Hartley).*Graph$")
            continue()
        endif()
        set(definitions "")
        foreach(family IN LISTS row)
            string(APPEND definitions "template <>\nstruct ManyTextOf<Family::${family}, ${length}, ${in_parts}> {\n"
                "    using Type = ${graph}<${length}>;\n};\n")
            many_instances(instances ${family} ${graph} ${length} ${steps} ${in_parts})
            foreach(instance IN LISTS instances)
                string(REPLACE " " ";" words ${instance})
                list(POP_FRONT words element computed placement)
                string(APPEND definitions "template void manyTransforms<Family::${family}, ${length}, ${element}, "
                    "${computed}, Placement::${placement}>(const ManyArrays<${element}>&, std::int32_t, "
                    "std::int64_t);\n")
                list(APPEND lines "MANY_TEXT(${family}, ${length}, ${computed}, ${placement})\n")
            endforeach()
        endforeach()
        if(NOT definitions MATCHES "manyTransforms")
            continue()
        endif()
        string(REGEX REPLACE "h$" "cpp" source "${made}/${text}")
        string(CONCAT content "#include \"batch/many_transforms.h\"\n#include \"${text}\"\n\n"
            "namespace zulg {\ninline namespace ZULG_TARGET {\n\n${definitions}\n}\n}\n")
        file(CONFIGURE OUTPUT ${source} @ONLY CONTENT "${content}")
        list(APPEND sources ${source})
        if(DEFINED batch_long_length AND length GREATER_EQUAL batch_long_length)
            set_source_files_properties(${source} PROPERTIES COMPILE_OPTIONS "${batch_long_compile_flags}")
        endif()
    endforeach()
    foreach(types IN LISTS batch_types)
        string(REPLACE " " "_" key ${types})
        string(REPLACE " " ", " types ${types})
        foreach(length IN LISTS batch_always_in_parts_${key})
            list(APPEND lines "ALWAYS_IN_PARTS(${length}, ${types})\n")
        endforeach()
    endforeach()
    list(REMOVE_DUPLICATES lines)
    list(JOIN lines "" lines)
    file(CONFIGURE OUTPUT ${made}/many_texts.inc @ONLY CONTENT "${lines}")

    add_objects(${library} ${folder} "${target_compile_flags};${batch_compile_flags}" ${sources})
    target_include_directories(${library} PRIVATE ${made})
endfunction()

# Exported are the names of batch/slots.inc, on Windows with their places as ordinals. Nothing is decorated where there
# is a batch library.
if(WIN32)
    file(READ ${PROJECT_SOURCE_DIR}/batch/slots.inc batch_slots)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/batch/slots.inc)
    string(REGEX MATCHALL "SLOT\\(zulg[A-Za-z0-9_]+" batch_names "${batch_slots}")
    string(CONCAT batch_def_text
        "; The exports of zulgenpx-batch-7.0.dll: dlltool -d zulgenpx-batch.def -l libzulgenpx-batch.dll.a, or\n"
        "; llvm-dlltool -m ${dlltool_machine} -d zulgenpx-batch.def -l zulgenpx-batch.lib.\n"
        "LIBRARY \"zulgenpx-batch-7.0.dll\"\nEXPORTS\n")
    set(ordinal 0)
    foreach(name IN LISTS batch_names)
        math(EXPR ordinal "${ordinal} + 1")
        string(REPLACE "SLOT(" "" name ${name})
        string(APPEND batch_def_text "    ${name} @${ordinal}\n")
    endforeach()
    set(batch_exports ${PROJECT_BINARY_DIR}/zulgenpx-batch.def)
    file(CONFIGURE OUTPUT ${batch_exports} CONTENT "${batch_def_text}" @ONLY)
    set(batch_platform_sources ${batch_exports} batch/library.rc)
    add_import_libraries(zulgenpx-batch ${batch_exports})
else()
    set(batch_exports ${PROJECT_SOURCE_DIR}/batch/exports.map)
    set(batch_link_flags ${common_link_flags})
    if(has_version_scripts)
        list(APPEND batch_link_flags -Wl,--version-script=${batch_exports})
    endif()
    set(batch_platform_sources "")
endif()

# add_batch_library(NAME MAIN_LIBRARY): the batch library beside a main library.
function(add_batch_library name main)
    add_library(${name} SHARED batch/dct4.cpp ${batch_entry_sources} batch/wht.cpp
        ${library_first_sources} ${batch_platform_sources})
    foreach(level IN ITEMS ${first_level} LISTS further_levels)
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:zulgenpx_batch_objects_${level}>)
    endforeach()
    set_target_properties(${name} PROPERTIES
        OUTPUT_NAME zulgenpx-batch-7.0 PREFIX "${library_file_prefix}"
        LINKER_LANGUAGE C  # no C++ runtime is linked
        LINK_DEPENDS ${batch_exports}
        BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN")
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR} ${target_folder}
        INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>)
    target_compile_options(${name} PRIVATE
        "$<$<COMPILE_LANGUAGE:CXX>:${library_compile_flags};${target_compile_flags}>")
    target_link_options(${name} PRIVATE ${batch_link_flags})
    target_link_libraries(${name} PRIVATE zulgen_warnings ${batch_link_libraries} PUBLIC ${main})
endfunction()

foreach(level IN ITEMS ${first_level} LISTS further_levels)
    add_batch_level(zulgenpx_batch_objects_${level} ${PROJECT_SOURCE_DIR}/targets/${level})
endforeach()
add_batch_library(zulgenpx_batch zulgenpx)
if(settling_sources)
    settled_by_entry(zulgenpx_batch batch/slot_table.cpp)
    target_sources(zulgenpx_batch PRIVATE batch/load.cpp)
endif()
set_source_files_properties(batch/entries.S PROPERTIES OBJECT_DEPENDS
    "${PROJECT_SOURCE_DIR}/batch/slots.inc;${target_folder}/entries.inc")

# One level by itself, for the tests, beside the main library of that level.
if(NOT is_developed OR NOT further_levels)
    return()
endif()
foreach(level IN ITEMS ${first_level} LISTS further_levels)
    add_batch_library(zulgenpx_batch_${level} zulgenpx_${level})
    target_include_directories(zulgenpx_batch_${level} BEFORE PRIVATE tests/levels/one)
    target_compile_definitions(zulgenpx_batch_${level} PRIVATE ZULG_LEVEL=${level})
    target_link_options(zulgenpx_batch_${level} PRIVATE ${batch_level_link_flags})
    set(folder ${PROJECT_BINARY_DIR}/levels/${level})
    set_target_properties(zulgenpx_batch_${level} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${folder}
        LIBRARY_OUTPUT_DIRECTORY ${folder} ARCHIVE_OUTPUT_DIRECTORY ${folder})
endforeach()
