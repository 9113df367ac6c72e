# Copies the project SOURCE_DIR to a directory outside the tree, builds it against the package in PREFIX and runs its
# program. RUNTIME_DIR is where the build tree has the DLLs of others that a program for Windows needs beside it.
foreach(variable TMPDIR TEMP)
    if(NOT temporary AND DEFINED ENV{${variable}})
        cmake_path(CONVERT "$ENV{${variable}}" TO_CMAKE_PATH_LIST temporary)
    endif()
endforeach()
if(NOT temporary)
    set(temporary /tmp)
endif()
string(RANDOM LENGTH 12 name)
set(directory ${temporary}/clconfigui-program-${name})
cmake_path(GET SOURCE_DIR FILENAME project)
file(COPY ${SOURCE_DIR} DESTINATION ${directory})
file(GLOB runtime_libraries ${PREFIX}/bin/*.dll ${RUNTIME_DIR}/Qt*.dll ${RUNTIME_DIR}/lib*.dll)
file(COPY ${runtime_libraries} DESTINATION ${directory}/build)

execute_process(COMMAND ${CMAKE_COMMAND} -G ${GENERATOR} -DPACKAGE_PREFIX=${PREFIX} -C ${SETTINGS}
    -S ${directory}/${project} -B ${directory}/build
    RESULT_VARIABLE result)
if(result EQUAL 0)
    execute_process(COMMAND ${CMAKE_COMMAND} --build ${directory}/build --config ${CONFIG} --target run
        RESULT_VARIABLE result OUTPUT_VARIABLE output ECHO_OUTPUT_VARIABLE)
endif()
file(REMOVE_RECURSE ${directory})

include(${CMAKE_CURRENT_LIST_DIR}/Printed.cmake)
if(NOT result EQUAL 0 OR NOT output MATCHES ${printed})
    message(FATAL_ERROR "The program did not build, or did not print: ${printed}")
endif()
