# Installs the libraries, their headers, the shipped data and the packages that find_package finds: CLConfigUI, and the
# stand-ins CLDataStorage and CLBatteryData. What a program needs when it runs and what it needs to be compiled are
# components of their own; CLConfigUIPlatform is all of the stand-ins, which can be installed without the rest.

include(CMakePackageConfigHelpers)

# clconfigui_install_package(NAME LIBRARY component DEVELOPMENT component [FILES file...] [CONFIGURE argument...])
# The library NAME and its package, whose cmake/NAMEConfig.cmake.in is configured with the arguments CONFIGURE.
function(clconfigui_install_package name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LIBRARY;DEVELOPMENT" "FILES;CONFIGURE")
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${name})

    # The libraries need each other, and find each other wherever the directory in which all of them stand is moved to.
    if(UNIX AND NOT APPLE)
        set_target_properties(${name} PROPERTIES INSTALL_RPATH "$ORIGIN;${CLCONFIGUI_PLATFORM_RPATH}")
    endif()
    install(TARGETS ${name} EXPORT ${name}Targets
        RUNTIME COMPONENT ${arg_LIBRARY}
        LIBRARY COMPONENT ${arg_LIBRARY} NAMELINK_COMPONENT ${arg_DEVELOPMENT}
        ARCHIVE COMPONENT ${arg_DEVELOPMENT})
    install(EXPORT ${name}Targets NAMESPACE CLConfigUI:: DESTINATION ${package_dir} COMPONENT ${arg_DEVELOPMENT})

    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/${name}Config.cmake.in
        ${PROJECT_BINARY_DIR}/${name}Config.cmake INSTALL_DESTINATION ${package_dir} ${arg_CONFIGURE})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES
        ${PROJECT_BINARY_DIR}/${name}Config.cmake
        ${PROJECT_BINARY_DIR}/${name}ConfigVersion.cmake
        ${arg_FILES}
        DESTINATION ${package_dir} COMPONENT ${arg_DEVELOPMENT})
endfunction()

# clconfigui_install_headers(DIRECTORY COMPONENT [PATTERN pattern EXCLUDE]...)
function(clconfigui_install_headers directory component)
    install(DIRECTORY ${directory}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI COMPONENT ${component}
            FILES_MATCHING PATTERN "*.h" PATTERN "private" EXCLUDE ${ARGN})
endfunction()

# clconfigui_install_export_header(NAME COMPONENT)
function(clconfigui_install_export_header name component)
    string(TOLOWER ${name} lower)
    install(FILES ${PROJECT_BINARY_DIR}/include/${lower}_export.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI COMPONENT ${component})
endfunction()

set(except "")
if(CLCONFIGUI_PLATFORM STREQUAL "bundled")
    foreach(library IN ITEMS CLDataStorage CLBatteryData)
        clconfigui_install_package(${library}
            LIBRARY CLConfigUIPlatformLibraries DEVELOPMENT CLConfigUIPlatformDevelopment)
        clconfigui_install_export_header(${library} CLConfigUIPlatformDevelopment)
    endforeach()
    clconfigui_install_headers(${PROJECT_SOURCE_DIR}/platform CLConfigUIPlatformDevelopment)
    # The one header of the ground floor that theirs include.
    install(FILES ${PROJECT_SOURCE_DIR}/src/base/Singleton.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI/base COMPONENT CLConfigUIPlatformDevelopment)
    set(except PATTERN base/Singleton.h EXCLUDE)

    install(CODE "
        foreach(CMAKE_INSTALL_COMPONENT IN ITEMS CLConfigUIPlatformLibraries CLConfigUIPlatformDevelopment)
            include(\"${PROJECT_BINARY_DIR}/cmake_install.cmake\")
        endforeach()"
        COMPONENT CLConfigUIPlatform EXCLUDE_FROM_ALL)
endif()

set(data_dir ${CMAKE_INSTALL_DATADIR}/CLConfigUI)
clconfigui_install_package(CLConfigUI
    LIBRARY CLConfigUILibrary DEVELOPMENT CLConfigUIDevelopment
    FILES ${PROJECT_SOURCE_DIR}/cmake/FindQCustomPlotHeaders.cmake
    CONFIGURE PATH_VARS data_dir)
clconfigui_install_export_header(CLConfigUI CLConfigUIDevelopment)
clconfigui_install_headers(${PROJECT_SOURCE_DIR}/src CLConfigUIDevelopment ${except})
install(FILES
    ${PROJECT_SOURCE_DIR}/data/UIConfig.json
    ${PROJECT_SOURCE_DIR}/data/UIConfig.schema.json
    ${PROJECT_SOURCE_DIR}/data/DataArrays.json
    ${PROJECT_SOURCE_DIR}/data/DataArrays.schema.json
    ${PROJECT_SOURCE_DIR}/data/techniques.txt
    DESTINATION ${data_dir} COMPONENT CLConfigUIData)
if(CLCONFIGUI_TRANSLATIONS)
    install(FILES ${CLCONFIGUI_TRANSLATIONS} DESTINATION ${data_dir}/translations COMPONENT CLConfigUIData)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/docs/catalogue.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT CLConfigUIData)
