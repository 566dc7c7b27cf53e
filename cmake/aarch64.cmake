# Toolchain for 64-bit ARM with Linux.
set(prefix aarch64-linux-gnu)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER ${prefix}-gcc)
set(CMAKE_CXX_COMPILER ${prefix}-g++)
# Tests run on an emulated processor, with the libraries that came with the compiler.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L ${CMAKE_FIND_ROOT_PATH})
# Arithmetic in long double takes a hundred times as long there: that machine has no instructions for it.
set(slow_emulator ON)
# The folder of targets/ that is built.
set(ZULG_TARGET aarch64)
