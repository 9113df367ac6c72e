# Installs the build tree BINARY_DIR into the empty directory PREFIX.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BINARY_DIR} --prefix ${PREFIX} --config ${CONFIG}
    COMMAND_ERROR_IS_FATAL ANY)
