# The Debian packages that scripts/package makes: one for each component that is installed. docs/packages.md says what
# is in which. Those of one version go together, but for the data: they depend on each other with "=".

# clconfigui_package(COMPONENT NAME package SECTION section DESCRIPTION text [ON component...]
#                    [DEPENDS packages] [RECOMMENDS packages] [SUGGESTS packages] [ARCHITECTURE architecture])
# The packages of the components ON are needed in the same version. What a program links is found in the program.
macro(clconfigui_package component)
    set(fields NAME SECTION DEPENDS RECOMMENDS SUGGESTS ARCHITECTURE)
    cmake_parse_arguments(package "" "DESCRIPTION;${fields}" ON ${ARGN})
    string(TOUPPER ${component} upper)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_COMPONENT_${upper}_DEPENDS ${package_ON})
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${package_DESCRIPTION}")
    foreach(field IN LISTS fields)
        if(DEFINED package_${field})
            set(CPACK_DEBIAN_${upper}_PACKAGE_${field} "${package_${field}}")
        endif()
    endforeach()
    # A library is made known by dpkg's trigger, and no script must do so, which CPack writes unless it is given one:
    # that which it is given here does not exist, and so there is none.
    if(package_SECTION STREQUAL "libs")
        set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA
            ${PROJECT_SOURCE_DIR}/cmake/packages/triggers /nonexistent/postinst /nonexistent/postrm)
    endif()
endmacro()

set(CPACK_COMPONENTS_ALL "")
clconfigui_package(CLConfigUIPlatformLibraries NAME libclconfigui-platform${PROJECT_VERSION_MAJOR} SECTION libs
    DESCRIPTION "data arrays and units for the UI configuration of battery-test analysis
CLDataStorage has the physical parameters and units, CLBatteryData the
catalogue of data arrays, on which libclconfigui1 builds. The libraries in
this package stand in for those of the application, which may replace them.")
clconfigui_package(CLConfigUIPlatformDevelopment NAME libclconfigui-platform-dev SECTION libdevel
    ON CLConfigUIPlatformLibraries
    DEPENDS "qt6-base-dev (>= 6.4)"
    DESCRIPTION "data arrays and units, development files
Headers and CMake packages to compile programs with CLDataStorage and
CLBatteryData, the data arrays and units of battery-test analysis.")
clconfigui_package(CLConfigUILibrary NAME libclconfigui${PROJECT_VERSION_MAJOR} SECTION libs
    ON CLConfigUIPlatformLibraries
    RECOMMENDS clconfigui-data
    DESCRIPTION "user-interface configuration of a battery-test analysis application
The library reads UIConfig.json and tells which data arrays may be plotted
against which, and which representations, units, colours, columns, graphs,
recipes and formulas there are. It has a fuzzy finder for search boxes, too.")
clconfigui_package(CLConfigUIDevelopment NAME libclconfigui-dev SECTION libdevel
    ON CLConfigUILibrary CLConfigUIPlatformDevelopment CLConfigUIData
    DEPENDS "qt6-base-dev (>= 6.4), libqcustomplot-dev"
    DESCRIPTION "user-interface configuration of battery-test analysis, development files
Headers and the CMake package to compile programs with libCLConfigUI, which
reads the user-interface configuration of a battery-test analysis application.")
clconfigui_package(CLConfigUIData NAME clconfigui-data SECTION misc ARCHITECTURE all
    SUGGESTS cluiconfig
    DESCRIPTION "shipped configuration of a battery-test analysis application
The shipped UIConfig.json, the catalogue of data arrays, the JSON Schemas of
both, and a list of technique names.")
clconfigui_package(cluiconfig NAME cluiconfig SECTION science
    ON CLConfigUILibrary CLConfigUIPlatformLibraries
    SUGGESTS "bash-completion, clconfigui-data"
    DESCRIPTION "check and show the configuration of battery-test analysis
cluiconfig is for the people who write UIConfig.json: it says everything that
is wrong with such a document, with its place and a remedy, shows what it
gives the application, compares and lays out documents, and looks up data
arrays, axes and units.")
clconfigui_package(cluiedit NAME cluiedit SECTION science
    ON CLConfigUILibrary CLConfigUIPlatformLibraries
    RECOMMENDS "qt6-translations-l10n, libqscintilla2-qt6-l10n"
    SUGGESTS "cluiconfig, clconfigui-data"
    DESCRIPTION "editor for the configuration of battery-test analysis
cluiedit is for the people who write UIConfig.json: it says at every key
stroke what is wrong with the document and what it gives, completes what can
stand at a place, and plots measurements by the document's axes, units and
colours.")

set(CPACK_GENERATOR DEB)
set(CPACK_SOURCE_GENERATOR "")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_CONTACT "CLConfigUI maintainers <maintainers@clconfigui.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each has one of its own
set(CPACK_DEBIAN_PACKAGE_SOURCE clconfigui)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packages/Debian.cmake)
set(CPACK_CLCONFIGUI_SOURCE_DIR ${PROJECT_SOURCE_DIR}) # for that script
include(CPack)
