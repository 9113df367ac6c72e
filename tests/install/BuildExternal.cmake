# Builds the library from SOURCE_DIR in BINARY_DIR with the data libraries that are installed in PLATFORM_PREFIX, and
# installs it into the empty directory PREFIX.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --fresh -G ${GENERATOR} -DPACKAGE_PREFIX=${PLATFORM_PREFIX} -C ${SETTINGS}
    -DCLCONFIGUI_PLATFORM=external -DCLCONFIGUI_BUILD_TOOLS=OFF -DCLCONFIGUI_BUILD_TESTS=OFF
    -S ${SOURCE_DIR} -B ${BINARY_DIR}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY_DIR} --config ${CONFIG} --parallel 2
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BINARY_DIR} --prefix ${PREFIX} --config ${CONFIG}
    COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE theirs ${PREFIX}/*CLDataStorage* ${PREFIX}/*CLBatteryData* ${PREFIX}/*/datastorage/*)
if(theirs)
    message(FATAL_ERROR "Installed what another package has: ${theirs}")
endif()
