# From frame/slots.inc to what the linker needs to export exactly those names: the .def of the DLL, with ordinals and
# undecorated names, and the version script of the ELF library.
file(READ ${CMAKE_SOURCE_DIR}/frame/slots.inc slots_text)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/frame/slots.inc)
string(REGEX MATCHALL "SLOT\\(zulg[^\n]+" slot_lines "${slots_text}")
list(APPEND slot_lines "SLOT(zulgenGetLibVersion, the last, 0)")  # behind the slots: it has none

# One .def makes the DLL, the other the import library for consumers: there a name carries the bytes of its arguments,
# as a caller's compiler writes it, and dlltool -k takes them off again in the name that is looked up.
set(def_text "LIBRARY \"zulgenpx-7.0.dll\"\nEXPORTS\n")
set(import_text "${def_text}")
set(map_text "{\nglobal:\n")
set(ordinal 0)
foreach(line IN LISTS slot_lines)
    string(REGEX MATCH "SLOT\\(([A-Za-z0-9_]+),.* ([0-9]+)\\)" matched "${line}")
    set(name ${CMAKE_MATCH_1})
    set(bytes ${CMAKE_MATCH_2})
    math(EXPR ordinal "${ordinal} + 1")
    # The version call is compiled, so that its own symbol is decorated; the entries carry their plain names.
    if(name STREQUAL "zulgenGetLibVersion")
        string(APPEND def_text "    ${name} = ${name}@0 @${ordinal}\n")
    else()
        string(APPEND def_text "    ${name} @${ordinal}\n")
    endif()
    string(APPEND import_text "    ${name}@${bytes} @${ordinal}\n")
    string(APPEND map_text "    ${name};\n")
endforeach()
string(APPEND map_text "local:\n    *;\n};\n")
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/zulgenpx.def CONTENT "${def_text}" @ONLY)
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/zulgenpx_import.def CONTENT "${import_text}" @ONLY)
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/zulgenpx.map CONTENT "${map_text}" @ONLY)

# link_consumer(TARGET): links a program with the library as its users do.
if(WIN32)
    set(import_library ${CMAKE_BINARY_DIR}/libzulgenpx.dll.a)
    add_custom_command(OUTPUT ${import_library}
        COMMAND ${CMAKE_DLLTOOL} -k -d ${CMAKE_BINARY_DIR}/zulgenpx_import.def -l ${import_library}
        DEPENDS ${CMAKE_BINARY_DIR}/zulgenpx_import.def)
    add_custom_target(import_library ALL DEPENDS ${import_library})
    function(link_consumer target)
        target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR}/include)
        target_link_libraries(${target} PRIVATE ${import_library})
        add_dependencies(${target} zulgenpx import_library)
    endfunction()
else()
    function(link_consumer target)
        target_link_libraries(${target} PRIVATE zulgenpx)
        set_target_properties(${target} PROPERTIES BUILD_RPATH_USE_ORIGIN ON)
    endfunction()
endif()

if(WIN32)
    set(exports_link_input ${CMAKE_BINARY_DIR}/zulgenpx.def)
    set(exports_link_flags "")
else()
    set(exports_link_input "")
    set(exports_link_flags -Wl,--version-script=${CMAKE_BINARY_DIR}/zulgenpx.map)
endif()
