# The target that is built, by its folder: that of the machine, or standard C++ where there is no folder for it.
if(NOT DEFINED ZULG_TARGET)
    set(ZULG_TARGET generic)
    string(TOLOWER "${CMAKE_SYSTEM_PROCESSOR}" processor)
    if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
        set(ZULG_TARGET x87)
    elseif(WIN32)
        set(ZULG_TARGET win64)
    elseif(CMAKE_SIZEOF_VOID_P EQUAL 8 AND NOT APPLE)
        if(processor MATCHES "^(x86_64|amd64)$")
            set(ZULG_TARGET x86_64)
        elseif(processor MATCHES "^(aarch64|arm64)$")
            set(ZULG_TARGET aarch64)
        endif()
    endif()
endif()
set(target_folder ${PROJECT_SOURCE_DIR}/targets/${ZULG_TARGET})

# What is built on which target. The generator and the tools are programs of the build machine, built beside the library
# for it; the other targets take the generated text as it is committed.
if(CMAKE_CROSSCOMPILING OR NOT ZULG_TARGET STREQUAL "x86_64")
    set(host_tools OFF)
else()
    set(host_tools ON)
endif()

# Timings, errors, the tests of the built file and of what is installed: where the target says what its machine code
# may hold. Elsewhere, and with sanitizers, the tests are those of results and of the boundary.
if(EXISTS ${target_folder}/machine.py AND NOT ZULG_SANITIZE)
    set(whole_suite ON)
else()
    set(whole_suite OFF)
endif()

# A routine of 32-bit Windows removes its arguments itself, and its symbol ends in their bytes.
if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(symbols_are_decorated TRUE)
else()
    set(symbols_are_decorated FALSE)
endif()

# Test programs of Windows are linked with their runtime, since nothing is installed where they run. Those of 32 bits
# may use the upper half of the address space, where an address that is taken as a signed number is negative.
if(symbols_are_decorated)
    set(test_link_flags -static -Wl,--large-address-aware)
elseif(WIN32)
    set(test_link_flags -static)
else()
    set(test_link_flags "")
endif()
