# The targets that other projects link with, of the same names as those of the installed package. zulgenpx::zulgenpx is
# the shared library, or the static one where BUILD_SHARED_LIBS is off.

# linked_as(LIBRARY VARIABLE NAME TARGET ...): the target by which programs link with a library. On Windows this stands
# for the import library lib<NAME>.dll.a, and for the other targets.
function(linked_as library variable name)
    set(${variable} ${library} PARENT_SCOPE)
    if(WIN32)
        list(GET ${name}_import_libraries 0 import)
        add_library(${library}_import INTERFACE)
        target_include_directories(${library}_import INTERFACE ${PROJECT_SOURCE_DIR}/include)
        target_link_libraries(${library}_import INTERFACE ${import} ${ARGN})
        add_dependencies(${library}_import ${library} ${name}_import_libraries)
        set(${variable} ${library}_import PARENT_SCOPE)
    endif()
endfunction()

linked_as(zulgenpx shared zulgenpx)
set(main ${shared})
if(TARGET zulgenpx_static)
    add_library(zulgenpx::static ALIAS zulgenpx_static)
    if(is_static)
        set(main zulgenpx_static)
    endif()
endif()
add_library(zulgenpx::zulgenpx ALIAS ${main})
if(TARGET zulgenpx_batch)
    linked_as(zulgenpx_batch batch zulgenpx-batch ${shared})
    add_library(zulgenpx::batch ALIAS ${batch})
endif()
