# Builds the project SOURCE_DIR in BINARY_DIR with the library from LIBRARY_DIR as a part of itself, and runs its program.
# Nothing else of the library must be built, and nothing of it installed.
foreach(way IN ITEMS added fetched)
    execute_process(COMMAND ${CMAKE_COMMAND} --fresh -G ${GENERATOR} -C ${SETTINGS}
        -DLIBRARY_DIR=${LIBRARY_DIR} -DHOW=${way} -S ${SOURCE_DIR} -B ${BINARY_DIR}/${way}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Both ways lead to the same targets: the one is only configured, the other is built.
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY_DIR}/fetched --config ${CONFIG} --parallel 2
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY_DIR}/fetched --config ${CONFIG} --target run
    COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output ECHO_OUTPUT_VARIABLE)
include(${CMAKE_CURRENT_LIST_DIR}/Printed.cmake)
if(NOT output MATCHES ${printed})
    message(FATAL_ERROR "The program did not print: ${printed}")
endif()

file(REMOVE_RECURSE ${BINARY_DIR}/prefix)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BINARY_DIR}/fetched --config ${CONFIG} --prefix ${BINARY_DIR}/prefix
    COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE installed RELATIVE ${BINARY_DIR}/prefix ${BINARY_DIR}/prefix/*)
file(GLOB_RECURSE others ${BINARY_DIR}/*/cluiconfig ${BINARY_DIR}/*/test_* ${BINARY_DIR}/*/CTestTestfile.cmake)
if(others OR NOT installed STREQUAL "bin/program")
    message(FATAL_ERROR "More than the library was built or installed: ${others} ${installed}")
endif()
