# Sine and cosine, for the tables of the DCT-IV, from the C runtime of Windows. The toolchain's import library of that
# runtime leaves these two out in favour of code of its own.
set(library_math ${PROJECT_BINARY_DIR}/libmsvcrt_math.a)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/msvcrt_math.def CONTENT "LIBRARY msvcrt.dll\nEXPORTS\n    cos\n    sin\n")
# The names are relative, since the members of an import library are named after its path.
execute_process(COMMAND ${CMAKE_DLLTOOL} -d msvcrt_math.def -l libmsvcrt_math.a
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR} COMMAND_ERROR_IS_FATAL ANY)
