# Warnings for everything we write. In the presets they are errors (CMAKE_COMPILE_WARNING_AS_ERROR).
add_library(zulgen_warnings INTERFACE)
target_compile_options(zulgen_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow)
