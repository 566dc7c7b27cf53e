# What is installed, in the GNU layout, and how other projects find it: by CMake, by pkg-config, or by -lzulgenpx. The
# tree may be moved as a whole: everything in it is found relative to what asks for it.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/zulgenpx)

install(TARGETS zulgenpx zulcore
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library)
file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*)
if(NOT TARGET zulgenpx_batch)
    list(FILTER headers EXCLUDE REGEX "_batch")
endif()
install(FILES ${headers} TYPE INCLUDE COMPONENT development)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT library)

# development_link(NAME): lib<NAME>.so, by which -l<NAME> finds the library of this release.
function(development_link name)
    set(link ${PROJECT_BINARY_DIR}/lib${name}.so)
    file(CREATE_LINK lib${name}-7.0.so ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endfunction()

# pkg_config_file(NAME DESCRIPTION REQUIRES LIBS): NAME.pc.
function(pkg_config_file name description requires libs)
    configure_file(cmake/package/zulgenpx.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()
file(RELATIVE_PATH from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" from_pc "\${pcfiledir}/${from_pc}")
foreach(folder INCLUDEDIR LIBDIR)
    cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_${folder} BASE_DIRECTORY "\${prefix}" OUTPUT_VARIABLE pc_${folder})
endforeach()

if(WIN32)
    install(FILES ${zulgenpx_import_libraries} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    install(FILES ${import_def} DESTINATION ${CMAKE_INSTALL_LIBDIR} RENAME zulgenpx.def COMPONENT development)
else()
    development_link(zulgenpx)
endif()
pkg_config_file(zulgenpx "${PROJECT_DESCRIPTION}" "" "-L\${libdir} -lzulgenpx")
if(TARGET zulgenpx_static)
    install(FILES ${static_library} DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    pkg_config_file(zulgenpx-static "${PROJECT_DESCRIPTION}, as a static library" ""
        "\${libdir}/libzulgenpx.a -lm")
endif()
if(TARGET zulgenpx_batch)
    install(TARGETS zulgenpx_batch LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library)
    if(WIN32)
        install(FILES ${zulgenpx-batch_import_libraries} ${batch_exports} DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT development)
    else()
        development_link(zulgenpx-batch)
    endif()
    pkg_config_file(zulgenpx-batch "Many transforms of zulgenpx in one call" "zulgenpx = ${PROJECT_VERSION}"
        "-L\${libdir} -lzulgenpx-batch")
endif()

configure_package_config_file(cmake/package/zulgenpx-config.cmake.in ${PROJECT_BINARY_DIR}/zulgenpx-config.cmake
    INSTALL_DESTINATION ${package_folder} NO_CHECK_REQUIRED_COMPONENTS_MACRO
    PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_BINDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zulgenpx-config-version.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zulgenpx-config.cmake ${PROJECT_BINARY_DIR}/zulgenpx-config-version.cmake
    DESTINATION ${package_folder} COMPONENT development)
