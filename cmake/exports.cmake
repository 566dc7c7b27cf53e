# From boundary/slots.inc to what the linker needs to export exactly those names: the .def of the DLL, with ordinals and
# undecorated names, and the version script of the ELF library.
file(READ ${PROJECT_SOURCE_DIR}/boundary/slots.inc slots_text)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/boundary/slots.inc)
string(REGEX MATCHALL "SLOT\\(zulg[^\n]+" slot_lines "${slots_text}")
list(APPEND slot_lines "SLOT(zulgenGetLibVersion, the last, 0)")  # after the slots, since it has none

# One .def makes the DLL. The other makes the import libraries for consumers, and it ships. In that one a name ends in
# the bytes of its arguments, as a caller's compiler writes it, and dlltool -k removes this ending from the name that is
# looked up.
set(def_text "LIBRARY \"zulgenpx-7.0.dll\"\nEXPORTS\n")
if(symbols_are_decorated)
    set(dlltool_machine i386)
    string(CONCAT import_text
        "; The exports of zulgenpx-7.0.dll as a caller's compiler writes them. Inside the DLL the names are "
        "undecorated:\n; dlltool -k -d zulgenpx.def -l libzulgenpx.dll.a, or llvm-dlltool -m i386 -k -d zulgenpx.def "
        "-l zulgenpx.lib.\n"
        "${def_text}")
else()
    set(dlltool_machine i386:x86-64)
    string(CONCAT import_text
        "; The exports of zulgenpx-7.0.dll: dlltool -d zulgenpx.def -l libzulgenpx.dll.a, or\n"
        "; llvm-dlltool -m i386:x86-64 -d zulgenpx.def -l zulgenpx.lib.\n"
        "${def_text}")
endif()
set(map_text "ZULGENPX_7.0 {\nglobal:\n")
set(ordinal 0)
foreach(line IN LISTS slot_lines)
    string(REGEX MATCH "SLOT\\(([A-Za-z0-9_]+),.* ([0-9]+)\\)" matched "${line}")
    set(name ${CMAKE_MATCH_1})
    set(bytes ${CMAKE_MATCH_2})
    math(EXPR ordinal "${ordinal} + 1")
    # The version call is compiled, so that its symbol is decorated. The symbols of the entries are plain names.
    if(symbols_are_decorated AND name STREQUAL "zulgenGetLibVersion")
        string(APPEND def_text "    ${name} = ${name}@0 @${ordinal}\n")
    else()
        string(APPEND def_text "    ${name} @${ordinal}\n")
    endif()
    if(symbols_are_decorated)
        string(APPEND import_text "    ${name}@${bytes} @${ordinal}\n")
    else()
        string(APPEND import_text "    ${name} @${ordinal}\n")
    endif()
    string(APPEND map_text "    ${name};\n")
endforeach()
string(APPEND map_text "local:\n    *;\n};\n")
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/zulgenpx.def CONTENT "${def_text}" @ONLY)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/zulgenpx_import.def CONTENT "${import_text}" @ONLY)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/zulgenpx.map CONTENT "${map_text}" @ONLY)

# add_import_libraries(NAME DEF): the target NAME_import_libraries makes those of consumers, lib<NAME>.dll.a in the GNU
# format and <NAME>.lib in the Microsoft one; the variable of that name has their paths.
function(add_import_libraries name def)
    set(gnu ${PROJECT_BINARY_DIR}/lib${name}.dll.a)
    set(microsoft ${PROJECT_BINARY_DIR}/${name}.lib)
    add_custom_command(OUTPUT ${gnu} COMMAND ${CMAKE_DLLTOOL} -k -d ${def} -l ${gnu} DEPENDS ${def})
    set(made ${gnu})
    find_program(LLVM_DLLTOOL llvm-dlltool)
    if(LLVM_DLLTOOL)
        add_custom_command(OUTPUT ${microsoft}
            COMMAND ${LLVM_DLLTOOL} -m ${dlltool_machine} -k -d ${def} -l ${microsoft} DEPENDS ${def})
        list(APPEND made ${microsoft})
    else()
        message(STATUS "${name}.lib, for Microsoft's linkers, is left out: it needs llvm-dlltool")
    endif()
    add_custom_target(${name}_import_libraries ALL DEPENDS ${made})
    set(${name}_import_libraries ${made} PARENT_SCOPE)
endfunction()

# link_consumer(TARGET): links a program with the library as its users do. On Windows this is through an import library,
# and not through the one that the linker writes beside the DLL: that one has no decorated names, so that nothing links
# with it and it is not installed.
if(WIN32)
    set(import_def ${PROJECT_BINARY_DIR}/zulgenpx_import.def)
    add_import_libraries(zulgenpx ${import_def})
    list(GET zulgenpx_import_libraries 0 import_library)
    function(link_consumer target)
        target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/include)
        target_link_libraries(${target} PRIVATE ${import_library})
        add_dependencies(${target} zulgenpx zulgenpx_import_libraries)
    endfunction()
else()
    function(link_consumer target)
        target_link_libraries(${target} PRIVATE zulgenpx)
        set_target_properties(${target} PROPERTIES BUILD_RPATH_USE_ORIGIN ON)
    endfunction()
endif()

# An ELF linker exports by a version script; of another one every visible name is exported, which are the same.
set(exports_link_input "")
set(exports_link_flags "")
if(WIN32)
    set(exports_link_input ${PROJECT_BINARY_DIR}/zulgenpx.def)
else()
    include(CheckLinkerFlag)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/any.map CONTENT "{\nlocal:\n    *;\n};\n")
    check_linker_flag(CXX -Wl,--version-script=${PROJECT_BINARY_DIR}/any.map has_version_scripts)
    if(has_version_scripts)
        set(exports_link_flags -Wl,--version-script=${PROJECT_BINARY_DIR}/zulgenpx.map)
    endif()
endif()
