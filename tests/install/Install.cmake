# Installs the build tree BINARY_DIR into the empty directory PREFIX, where the data stand in DATA_DIR and the pages in
# DOC_DIR.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BINARY_DIR} --prefix ${PREFIX} --config ${CONFIG}
    COMMAND_ERROR_IS_FATAL ANY)
foreach(file ${DATA_DIR}/UIConfig.json ${DATA_DIR}/UIConfig.schema.json ${DATA_DIR}/DataArrays.json
        ${DATA_DIR}/DataArrays.schema.json ${DOC_DIR}/catalogue.md)
    if(NOT EXISTS ${PREFIX}/${file})
        message(FATAL_ERROR "It is not installed: ${file}")
    endif()
endforeach()
