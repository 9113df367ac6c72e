# Installs the libraries, their headers, the shipped data and the packages that find_package finds: CLConfigUI, and the
# stand-ins CLDataStorage and CLBatteryData, which are a component that can be installed without the rest.

include(CMakePackageConfigHelpers)

# clconfigui_install_package(NAME [FILES file...] [CONFIGURE argument...] [INSTALL argument...])
# The library NAME and its package, whose cmake/NAMEConfig.cmake.in is configured with the arguments CONFIGURE.
function(clconfigui_install_package name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FILES;CONFIGURE;INSTALL")
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${name})

    # The libraries need each other, and find each other wherever the directory in which all of them stand is moved to.
    if(UNIX AND NOT APPLE)
        set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN;${CLCONFIGUI_PLATFORM_RPATH}")
    endif()
    install(TARGETS ${name} EXPORT ${name}Targets ${arg_INSTALL})
    install(EXPORT ${name}Targets NAMESPACE CLConfigUI:: DESTINATION ${package_dir} ${arg_INSTALL})

    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${name}Config.cmake.in
        ${PROJECT_BINARY_DIR}/${name}Config.cmake INSTALL_DESTINATION ${package_dir} ${arg_CONFIGURE})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES
        ${PROJECT_BINARY_DIR}/${name}Config.cmake
        ${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake
        ${arg_FILES}
        DESTINATION ${package_dir} ${arg_INSTALL})
endfunction()

# clconfigui_install_headers(DIRECTORY [argument...])
function(clconfigui_install_headers directory)
    install(DIRECTORY ${directory}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI ${ARGN}
            FILES_MATCHING PATTERN "*.h" PATTERN "private" EXCLUDE)
endfunction()

# clconfigui_install_export_header(NAME [argument...])
function(clconfigui_install_export_header name)
    string(TOLOWER ${name} lower)
    install(FILES ${PROJECT_BINARY_DIR}/include/${lower}_export.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI ${ARGN})
endfunction()

if(CLCONFIGUI_PLATFORM STREQUAL "bundled")
    set(component COMPONENT CLConfigUIPlatform)
    foreach(library IN ITEMS CLDataStorage CLBatteryData)
        clconfigui_install_package(${library} INSTALL ${component})
        clconfigui_install_export_header(${library} ${component})
    endforeach()
    clconfigui_install_headers(${PROJECT_SOURCE_DIR}/platform ${component})
    # The one header of the ground floor that theirs include.
    install(FILES ${PROJECT_SOURCE_DIR}/src/base/Singleton.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI/base ${component})
endif()

set(data_dir ${CMAKE_INSTALL_DATADIR}/CLConfigUI)
clconfigui_install_package(CLConfigUI
    FILES ${PROJECT_SOURCE_DIR}/cmake/FindQCustomPlotHeaders.cmake
    CONFIGURE PATH_VARS data_dir)
clconfigui_install_export_header(CLConfigUI)
clconfigui_install_headers(${PROJECT_SOURCE_DIR}/src)
install(FILES
    ${PROJECT_SOURCE_DIR}/data/UIConfig.json
    ${PROJECT_SOURCE_DIR}/data/UIConfig.schema.json
    ${PROJECT_SOURCE_DIR}/data/DataArrays.json
    ${PROJECT_SOURCE_DIR}/data/DataArrays.schema.json
    ${PROJECT_SOURCE_DIR}/data/techniques.txt
    DESTINATION ${data_dir})
install(FILES ${PROJECT_SOURCE_DIR}/docs/catalogue.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
