# The static library, libzulgenpx.a: the kernels, passes and plans of the shared one, and public names that are indirect
# functions. It has no slots, no entries, no load entry and no allocator hook. The two routines of the core library are
# members of it; a program's own routines of these names take their place.
add_objects(zulgenpx_static_names ${target_folder} "${target_compile_flags};-ffunction-sections"
    boundary/static_names.cpp)
target_include_directories(zulgenpx_static_names BEFORE PRIVATE ${target_folder}/static)

set(objects_of_library $<TARGET_OBJECTS:zulgenpx> $<TARGET_OBJECTS:zulcore>)
foreach(library IN LISTS level_objects)
    list(APPEND objects_of_library $<TARGET_OBJECTS:${library}>)
endforeach()
set(only_shared "/boundary/(allocator_hook|entries|load_|shared_library_|slot_table)")
set(of_many_routines "/kernels/|/wht/|/boundary/(dispatch|wht_dispatch)")
set(static_objects "$<FILTER:${objects_of_library},EXCLUDE,${only_shared}>")
set(static_apart "$<FILTER:${static_objects},INCLUDE,${of_many_routines}>" $<TARGET_OBJECTS:zulgenpx_static_names>)
set(static_whole "$<FILTER:${static_objects},EXCLUDE,${of_many_routines}>")

set(static_folder ${PROJECT_BINARY_DIR}/static)
set(static_library ${PROJECT_BINARY_DIR}/libzulgenpx.a)
foreach(list apart whole)
    file(GENERATE OUTPUT ${static_folder}/${list}.txt CONTENT "$<JOIN:${static_${list}},\n>\n")
endforeach()
add_custom_command(OUTPUT ${static_library}
    COMMAND ${CMAKE_COMMAND} -D ARCHIVE=${static_library} -D FOLDER=${static_folder}/members
        -D APART=${static_folder}/apart.txt -D WHOLE=${static_folder}/whole.txt
        -D AR=${CMAKE_AR} -D LINKER=${CMAKE_LINKER} -D NM=${CMAKE_NM} -D STRIP=${CMAKE_STRIP}
        -P ${PROJECT_SOURCE_DIR}/cmake/split_archive.cmake
    DEPENDS "${static_objects}" $<TARGET_OBJECTS:zulgenpx_static_names> ${PROJECT_SOURCE_DIR}/cmake/split_archive.cmake
        ${static_folder}/apart.txt ${static_folder}/whole.txt
    COMMENT "Making libzulgenpx.a" VERBATIM)
add_custom_target(zulgenpx_static_archive ALL DEPENDS ${static_library})

add_library(zulgenpx_static INTERFACE)
add_dependencies(zulgenpx_static zulgenpx_static_archive)
target_include_directories(zulgenpx_static INTERFACE ${PROJECT_SOURCE_DIR}/include)
target_link_libraries(zulgenpx_static INTERFACE ${static_library} ${library_math})
