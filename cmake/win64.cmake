# Toolchain for 64-bit Windows.
set(prefix x86_64-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# Tests run in wine, whose loader reads the DLL as that of Windows does.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine64)
# The folder of targets/ that is built.
set(ZULG_TARGET win64)
