# Puts the libraries of Qt and of the compiler beside the programs that are built: there Windows looks for them.

foreach(library libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND runtime_libraries ${path})
endforeach()
foreach(module Core Gui)
    get_target_property(path Qt6::${module} IMPORTED_LOCATION_RELEASE)
    list(APPEND runtime_libraries ${path})
endforeach()
file(COPY ${runtime_libraries} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
