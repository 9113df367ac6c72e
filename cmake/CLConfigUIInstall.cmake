# Installs the libraries, their headers, the shipped data and the package that find_package(CLConfigUI) finds.

include(CMakePackageConfigHelpers)

set(_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/CLConfigUI)
get_property(_libraries GLOBAL PROPERTY CLCONFIGUI_LIBRARIES)

# The libraries need each other, and find each other wherever the directory in which all of them stand is moved to.
if(UNIX AND NOT APPLE)
    set_target_properties(${_libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
install(TARGETS ${_libraries} EXPORT CLConfigUITargets)
install(EXPORT CLConfigUITargets NAMESPACE CLConfigUI:: DESTINATION ${_package_dir})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/ ${PROJECT_BINARY_DIR}/include/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI
        FILES_MATCHING PATTERN "*.h" PATTERN "private" EXCLUDE)
if(CLCONFIGUI_PLATFORM STREQUAL "bundled")
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI
            FILES_MATCHING PATTERN "*.h" PATTERN "private" EXCLUDE)
endif()

install(FILES
    ${PROJECT_SOURCE_DIR}/data/UIConfig.json
    ${PROJECT_SOURCE_DIR}/data/UIConfig.schema.json
    ${PROJECT_SOURCE_DIR}/data/DataArrays.json
    ${PROJECT_SOURCE_DIR}/data/DataArrays.schema.json
    DESTINATION ${CMAKE_INSTALL_DATADIR}/CLConfigUI)
install(FILES ${PROJECT_SOURCE_DIR}/docs/catalogue.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/CLConfigUIConfig.cmake.in
    ${PROJECT_BINARY_DIR}/CLConfigUIConfig.cmake INSTALL_DESTINATION ${_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/CLConfigUIConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/CLConfigUIConfig.cmake
    ${PROJECT_BINARY_DIR}/CLConfigUIConfigVersion.cmake
    ${PROJECT_SOURCE_DIR}/cmake/FindQCustomPlotHeaders.cmake
    DESTINATION ${_package_dir})
