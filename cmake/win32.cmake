# Toolchain for 32-bit Windows.
set(prefix i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
set(CMAKE_SYSTEM_PROCESSOR i686)
# Tests run in wine, whose loader reads the DLL as that of Windows does.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine)
# The folder of targets/ that is built.
set(ZULG_TARGET x87)
