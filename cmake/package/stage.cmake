# Run by CPack between installing and packing. Debian wants manual pages compressed, and programs without symbols; all
# files get the time of SOURCE_DATE_EPOCH, since a ZIP has times.
set(folder ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
function(each_of_files)
    execute_process(COMMAND find ${folder} ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
if(CPACK_GENERATOR STREQUAL "DEB")
    each_of_files(-path "*/share/man/*" -type f -exec gzip -9n {} +)
    each_of_files(-path "*/usr/bin/*" -type f -exec strip {} +)
endif()
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    each_of_files(-exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +)
endif()
