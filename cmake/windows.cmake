# What the toolchains for Windows share; `prefix` begins the names of their programs. The compiler is the posix variant,
# since the tests' threads need std::mutex.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)
include(${CMAKE_CURRENT_LIST_DIR}/cross.cmake)
