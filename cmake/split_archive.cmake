# Makes an archive of object files, one routine to a member, so that a program links with what it calls and nothing
# else. Each routine is in a section of its own; a linker that makes an object of objects takes them apart.
#
# cmake -D ARCHIVE=FILE -D FOLDER=SCRATCH -D APART=LIST.txt -D WHOLE=LIST.txt -D AR=... -D LINKER=... -D NM=...
#     -D STRIP=... -P THIS
# The two lists have the path of an object in each line: those to be taken apart, and those that go in as they are.
cmake_policy(SET CMP0007 NEW)
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})

set(members "")
file(STRINGS ${WHOLE} objects)
foreach(object IN LISTS objects)
    # Two members may not have one name: the target and the folder of the source are a part of it.
    string(REGEX REPLACE "^.*CMakeFiles/|\\.dir" "" name ${object})
    string(REPLACE "/./" "/" name ${name})
    string(REPLACE "/" "_" name ${name})
    file(COPY_FILE ${object} ${FOLDER}/${name})
    list(APPEND members ${name})
endforeach()

file(STRINGS ${APART} objects)
foreach(object IN LISTS objects)
    execute_process(COMMAND ${NM} --defined-only --extern-only --format=posix ${object}
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" symbols "${symbols}")
    foreach(symbol IN LISTS symbols)
        # Public names and routines, and not the indirect functions of a table, which go where the table goes.
        if(NOT symbol MATCHES "^(zulg[^ ]+) i |^([^ ]+) [TW] ")
            continue()
        endif()
        set(name ${CMAKE_MATCH_1}${CMAKE_MATCH_2})
        execute_process(COMMAND ${LINKER} -r --gc-sections -u ${name} ${object} -o ${FOLDER}/${name}.o
            COMMAND_ERROR_IS_FATAL ANY)
        list(APPEND members ${name}.o)
    endforeach()
endforeach()

set(copies ${members})
list(REMOVE_DUPLICATES copies)
if(NOT copies STREQUAL members)
    message(FATAL_ERROR "two members of ${ARCHIVE} have one name")
endif()
list(JOIN members "\n" members)
file(WRITE ${FOLDER}/members.txt "${members}\n")
# A member names no routine that it does not call, since the linker of a program would look for it.
execute_process(COMMAND ${STRIP} --strip-unneeded --remove-section=.comment @members.txt WORKING_DIRECTORY ${FOLDER}
    COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE ${ARCHIVE})
execute_process(COMMAND ${AR} qcDS ${ARCHIVE} @members.txt WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${AR} sD ${ARCHIVE} COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE ${FOLDER})
