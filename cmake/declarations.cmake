# The declarations for C#, Pascal and Basic, written into the folder `declarations` of the build and installed in
# share/zulgenpx.
set(declarations_folder ${PROJECT_BINARY_DIR}/declarations)
set(declarations_names Zulgenpx.cs ZulgenpxBatch.cs zulgenpx.pas zulgenpx_batch.pas zulgenpx.bas zulgenpx_batch.bas)
list(TRANSFORM declarations_names PREPEND ${declarations_folder}/ OUTPUT_VARIABLE declarations_files)
list(TRANSFORM declarations_names PREPEND ${PROJECT_SOURCE_DIR}/bindings/heads/ OUTPUT_VARIABLE declarations_heads)
add_custom_command(OUTPUT ${declarations_files}
    COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/bindings/declarations.py
        ${PROJECT_SOURCE_DIR}/docs/catalogue.json ${declarations_folder}
    DEPENDS ${PROJECT_SOURCE_DIR}/bindings/declarations.py ${declarations_heads}
        ${PROJECT_SOURCE_DIR}/docs/catalogue.json
    COMMENT "Writing the declarations for other languages" VERBATIM)
add_custom_target(declarations ALL DEPENDS ${declarations_files})
install(FILES ${declarations_files} ${PROJECT_SOURCE_DIR}/bindings/README.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zulgenpx COMPONENT documentation)
