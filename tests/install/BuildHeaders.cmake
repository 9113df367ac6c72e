# Builds the project SOURCE_DIR, which includes every header of the package in PREFIX, in BINARY_DIR.
execute_process(COMMAND ${CMAKE_COMMAND} --fresh -G ${GENERATOR} -C ${SETTINGS} -S ${SOURCE_DIR} -B ${BINARY_DIR}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY_DIR} --config ${CONFIG} --parallel 2
    COMMAND_ERROR_IS_FATAL ANY)
