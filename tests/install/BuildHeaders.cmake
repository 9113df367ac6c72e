# Builds the project SOURCE_DIR, which includes every header of the PACKAGE in PREFIX, in BINARY_DIR.
execute_process(COMMAND ${CMAKE_COMMAND} --fresh -G ${GENERATOR} -DPACKAGE_PREFIX=${PREFIX} -C ${SETTINGS}
    -DPACKAGE=${PACKAGE} -S ${SOURCE_DIR} -B ${BINARY_DIR}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY_DIR} --config ${CONFIG} --parallel 2
    COMMAND_ERROR_IS_FATAL ANY)
