# Kernels are made of the texts in kernels/. For each text the build folder receives one source, which includes it and
# instantiates its kernels for one target.
include(${CMAKE_CURRENT_LIST_DIR}/../kernels/texts.cmake)
set(texts_in_a_source 1)  # unless a target has more

# choose_texts(VARIABLE FORMS LENGTHS): the texts of these lengths, or of all, each in the first of FORMS that there is.
function(choose_texts variable forms lengths)
    set(chosen "")
    set(keys "")
    foreach(form IN LISTS forms)
        foreach(row IN LISTS kernel_texts)
            string(REPLACE " " ";" words "${row}")
            list(POP_FRONT words file text_form graph length steps)
            string(REPLACE ";" " " families "${words}")
            set(key "${length} ${families}")
            if(NOT text_form STREQUAL form OR "${key}" IN_LIST keys OR (lengths AND NOT length IN_LIST lengths))
                continue()
            endif()
            list(APPEND keys "${key}")
            list(APPEND chosen "${row}")
        endforeach()
    endforeach()
    set(${variable} "${chosen}" PARENT_SCOPE)
endfunction()

# add_objects(LIBRARY FOLDER FLAGS SOURCE ...): an object library for the target in FOLDER.
function(add_objects library folder flags)
    add_library(${library} OBJECT ${ARGN})
    set_target_properties(${library} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_include_directories(${library} PRIVATE ${PROJECT_SOURCE_DIR} ${folder})
    get_filename_component(level ${folder} NAME)
    target_compile_options(${library} PRIVATE
        ${library_compile_flags} ${flags} ${platform_compile_flags} ${platform_compile_flags_${level}})
    target_link_libraries(${library} PRIVATE zulgen_warnings)
endfunction()

# add_kernels(LIBRARY FOLDER [LENGTH ...]): an object library of the kernels of these lengths, or of all, for the target
# in FOLDER. A source has one text, or `texts_in_a_source` of them, which reads the headers less often.
function(add_kernels library folder)
    include_target(${folder})
    get_filename_component(target ${folder} NAME)
    set(sources "")
    set(included "")
    set(instances "")
    set(texts_in_source 0)
    choose_texts(texts "${kernel_forms}" "${ARGN}")
    list(LENGTH texts texts_left)
    foreach(row IN LISTS texts)
        string(REPLACE " " ";" row "${row}")
        list(POP_FRONT row text form graph length steps)
        string(APPEND included "#include \"${text}\"\n")
        foreach(family IN LISTS row)
            string(APPEND instances "template <>\nstruct TextOf<Family::${family}, ${length}> {\n"
                "    using Type = ${graph}<${length}>;\n};\n")
        endforeach()
        foreach(family IN LISTS row)
            foreach(element float double)
                string(APPEND instances "template Status ZULG_CALL kernel<Family::${family}, ${length}, ${element}>"
                    "(const ${element}*, ${element}*, std::int32_t);\n")
            endforeach()
        endforeach()
        math(EXPR texts_in_source "${texts_in_source} + 1")
        math(EXPR texts_left "${texts_left} - 1")
        if(texts_left AND texts_in_source LESS texts_in_a_source)
            continue()
        endif()

        string(REGEX REPLACE "h$" "cpp" source "${CMAKE_CURRENT_BINARY_DIR}/${target}/${text}")
        file(CONFIGURE OUTPUT ${source} @ONLY CONTENT "#include \"kernel/kernel_body.h\"\n${included}\n\
namespace zulg {\ninline namespace ZULG_TARGET {\n\n${instances}\n}\n}\n")
        list(APPEND sources ${source})
        set(included "")
        set(instances "")
        set(texts_in_source 0)
        # By the steps of the last text: where texts have different flags, each has a source.
        set(flags ${kernel_compile_flags})
        if(steps LESS short_kernel_steps)
            set(flags ${short_kernel_compile_flags})
        endif()
        string(REGEX REPLACE "^kernels/([a-z_]+)/.*" "\\1 ${length}" name "${text}")
        if(name IN_LIST scheduled_texts)
            set(flags ${scheduled_compile_flags})
        endif()
        # Texts whose frame would be too deep where the callee saves more registers.
        if(platform_deep_texts AND text MATCHES "${platform_deep_texts}")
            list(APPEND flags ${platform_deep_compile_flags})
        endif()
        set_source_files_properties(${source} PROPERTIES COMPILE_OPTIONS "${flags}")
    endforeach()

    add_objects(${library} ${folder} "${target_compile_flags}" ${sources})
endfunction()

# add_lane_passes(LIBRARY FOLDER): an object library of the routines whose loops run bodies in registers of several
# lanes, for the target in FOLDER.
function(add_lane_passes library folder)
    include_target(${folder})
    list(TRANSFORM lane_sources PREPEND ${PROJECT_SOURCE_DIR}/)
    add_objects(${library} ${folder} "${target_compile_flags};${lane_compile_flags}" ${lane_sources})
endfunction()
