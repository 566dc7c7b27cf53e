# The manual pages of the library, written into the folder `man` of the build and installed, for systems that have man.
set(man_pages_folder ${PROJECT_BINARY_DIR}/man)
file(GLOB man_pages_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/man/*.in
    ${PROJECT_SOURCE_DIR}/docs/man/parts/*.in ${PROJECT_SOURCE_DIR}/docs/man/examples/*.c)
add_custom_command(OUTPUT ${man_pages_folder}/man3/zulgenpx.3
    COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/docs/man/pages.py ${PROJECT_SOURCE_DIR}/docs/catalogue.json
        ${man_pages_folder}
    DEPENDS ${PROJECT_SOURCE_DIR}/docs/man/pages.py ${man_pages_sources} ${PROJECT_SOURCE_DIR}/docs/catalogue.json
        ${PROJECT_SOURCE_DIR}/include/zulgenpx.h
    COMMENT "Writing the manual pages" VERBATIM)
add_custom_target(man_pages ALL DEPENDS ${man_pages_folder}/man3/zulgenpx.3)
install(DIRECTORY ${man_pages_folder}/man3 TYPE MAN COMPONENT documentation)
