# What all toolchains for other machines share; `prefix` begins the names of their programs. Packages are those of the
# other machine, programs those of this one.
set(CMAKE_FIND_ROOT_PATH /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
