# What targets with ELF libraries share. `mark_link_flags`: the flags for what the target marks in its code.
set(common_link_flags
    -nostartfiles                 # nothing but the load entry runs when the library is loaded
    ${mark_link_flags}
    -Wl,-z,relro,-z,now,-z,noexecstack
    -Wl,--no-undefined,--build-id=none
    -Wl,--strip-all)
set(library_link_flags ${common_link_flags} -Wl,-init=zulgLoad)
set(companion_link_flags ${common_link_flags})
set(library_math m)  # sine and cosine, for the tables of the DCT-IV
set(library_link_libraries ${library_math} ${CMAKE_DL_LIBS})
set(library_platform_sources boundary/shared_library_elf.cpp boundary/load_elf.cpp)
set(library_file_prefix "lib")
