# Packages, made by `scripts/packages` of what is built: for Debian one for each component, for Windows a ZIP. The same
# tree gives the same bytes, since all times are those of the commit (SOURCE_DATE_EPOCH).
set(CPACK_PACKAGE_NAME zulgenpx)
set(CPACK_PACKAGE_VENDOR "zulgenpx developers")
set(CPACK_PACKAGE_CONTACT "zulgenpx developers <zulgenpx@debian.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/package/stage.cmake)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
    set(system win64)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        set(system win32)
    endif()
    set(CPACK_GENERATOR ZIP)
    set(CPACK_PACKAGE_FILE_NAME zulgenpx-${PROJECT_VERSION}-${system})
    install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)
    include(CPack)
    return()
endif()

find_program(GZIP gzip)
find_program(DPKG dpkg)
if(NOT GZIP OR NOT DPKG)
    return()
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

# debian_package(COMPONENT NAME SECTION SUMMARY DESCRIPTION DEPENDS): what a component is called as a package. Each has
# its own copy of the licence and of the list of changes, as Debian wants.
function(debian_package component name section summary description depends)
    string(TOUPPER ${component} part)
    foreach(pair "NAME;${name}" "SECTION;${section}" "DEPENDS;${depends}")
        list(POP_FRONT pair key)
        list(JOIN pair ", " value)
        set(CPACK_DEBIAN_${part}_PACKAGE_${key} "${value}" PARENT_SCOPE)
    endforeach()
    set(CPACK_DEBIAN_${part}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
    install(FILES ${package_documents}/copyright ${package_documents}/changelog.gz
        DESTINATION share/doc/${name} COMPONENT ${component} EXCLUDE_FROM_ALL)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} PARENT_SCOPE)
endfunction()

# Debian's own files: the licence in its format, and the changes.
set(package_documents ${PROJECT_BINARY_DIR}/package_documents)
file(READ LICENSE license)
string(REGEX MATCH "Copyright \\(c\\) ([^\n]*)" copyright_line "${license}")
set(copyright_line ${CMAKE_MATCH_1})
string(REGEX REPLACE "^.*Copyright[^\n]*\n\n" "" license "${license}")
string(STRIP "${license}" license)
string(REPLACE "\n\n" "\n.\n" license "${license}")
string(REPLACE "\n" "\n " license "${license}")
file(CONFIGURE OUTPUT ${package_documents}/copyright @ONLY CONTENT
"Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: zulgenpx

Files: *
Copyright: @copyright_line@
License: Expat
 @license@
")
execute_process(COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/cmake/package/changelog
    OUTPUT_FILE ${package_documents}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)

set(on_library "libzulgenpx-7.0 (= ${PROJECT_VERSION})")
debian_package(library libzulgenpx-7.0 libs "small signal transforms"
    "Complex, real and Hartley transforms of every length from 2 to 64,\n\
Walsh-Hadamard transforms and the DCT-IV. Nothing has to be set up, and\n\
arrays need no alignment." "libc6 (>= 2.34)")
debian_package(development libzulgenpx-dev libdevel "small signal transforms, development files"
    "Headers, the static library, and what CMake and pkg-config ask for." "${on_library};libc6-dev")
debian_package(tools zulgenpx-tools sound "spectra of sound files by small transforms"
    "The program zulspectrum runs any transform of zulgenpx on a sound or\n\
text file." "${on_library}")
if(TARGET zulspectrum-mpi)
    debian_package(mpi zulgenpx-mpi sound "spectra of sound files on many machines"
        "The program zulspectrum-mpi does what the command batch of zulspectrum\n\
does, with MPI, on any number of machines." "${on_library};openmpi-bin")
endif()
debian_package(documentation zulgenpx-doc doc "small signal transforms, documentation"
    "Manual pages of each family and routine, and declarations of all\n\
routines for C#, Pascal and Basic." "")
debian_package(python python3-zulgenpx python "small signal transforms of NumPy arrays"
    "The transforms of zulgenpx over arrays of any shape, with axis and norm\n\
as NumPy names them." "python3:any;python3-numpy;${on_library}")
foreach(part DOCUMENTATION PYTHON)
    set(CPACK_DEBIAN_${part}_PACKAGE_ARCHITECTURE all)
endforeach()
# Only the dependencies of the programs are looked for. Where CPack looks at a library, it adds scripts that call
# ldconfig, which is what a trigger is for.
foreach(part LIBRARY DEVELOPMENT DOCUMENTATION PYTHON)
    set(CPACK_DEBIAN_${part}_PACKAGE_SHLIBDEPS OFF)
endforeach()
set(debian_files ${PROJECT_SOURCE_DIR}/cmake/package/debian)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${debian_files}/shlibs ${debian_files}/triggers)
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${debian_files}/postinst ${debian_files}/prerm)
install(FILES ${debian_files}/libzulgenpx-7.0 DESTINATION share/lintian/overrides COMPONENT library EXCLUDE_FROM_ALL)
install(DIRECTORY python/zulgenpx DESTINATION lib/python3/dist-packages COMPONENT python EXCLUDE_FROM_ALL
    PATTERN __pycache__ EXCLUDE)

# By this, pip and importlib.metadata know of the package. Python 3.11 and later can write it.
if(Python3_VERSION VERSION_GREATER_EQUAL 3.11)
    set(from_backend ${Python3_EXECUTABLE} -B -c)
    execute_process(COMMAND ${from_backend} "import build_backend; print(build_backend.info_folder(), end='')"
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}/python OUTPUT_VARIABLE info_folder COMMAND_ERROR_IS_FATAL ANY)
    execute_process(
        COMMAND ${from_backend} "import build_backend, sys; sys.stdout.buffer.write(build_backend.metadata())"
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}/python OUTPUT_FILE ${package_documents}/METADATA
        COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${package_documents}/METADATA DESTINATION lib/python3/dist-packages/${info_folder} COMPONENT python
        EXCLUDE_FROM_ALL)
endif()

include(CPack)
