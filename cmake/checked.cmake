# The checked library: the names and results of the library, which it loads from its own folder, and one line and a stop
# at every misuse that it detects. It is for finding faults in programs, and is installed only on request:
# cmake --install build/library --component checked.
add_library(zulgenpx_checked SHARED checked/entries.cpp checked/memory.cpp checked/plans.cpp checked/routine.cpp
    checked/stop.cpp)
set_target_properties(zulgenpx_checked PROPERTIES OUTPUT_NAME zulgenpx-7.0-checked PREFIX "${library_file_prefix}"
    LINK_DEPENDS "${PROJECT_BINARY_DIR}/zulgenpx.map")
target_include_directories(zulgenpx_checked PRIVATE ${PROJECT_SOURCE_DIR})
target_compile_options(zulgenpx_checked PRIVATE -fvisibility=hidden -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
target_link_options(zulgenpx_checked PRIVATE ${exports_link_flags} -Wl,-z,relro,-z,now,-z,noexecstack)
target_link_libraries(zulgenpx_checked PRIVATE zulgen_warnings ${CMAKE_DL_LIBS})
add_dependencies(zulgenpx_checked zulgenpx)
link_core(zulgenpx_checked)
if(ZULGENPX_INSTALL)
    install(TARGETS zulgenpx_checked LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT checked EXCLUDE_FROM_ALL)
endif()
