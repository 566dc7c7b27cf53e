# What is built on which target. The generator and the tools are programs of the build machine; the other target takes
# the generated text as it is committed.
if(CMAKE_CROSSCOMPILING)
    set(host_tools OFF)
else()
    set(host_tools ON)
endif()

# The target that is built, by its folder.
if(NOT DEFINED ZULG_TARGET)
    set(ZULG_TARGET x86_64)
endif()
set(target_folder ${PROJECT_SOURCE_DIR}/targets/${ZULG_TARGET})

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
