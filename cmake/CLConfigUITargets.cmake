# What every target of ours has in common: the warnings, and the way a shared library shows its headers.

add_library(clconfigui_warnings INTERFACE)
if(MSVC)
    target_compile_options(clconfigui_warnings INTERFACE /W4)
else()
    target_compile_options(clconfigui_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endif()
if(CLCONFIGUI_WARNINGS_AS_ERRORS)
    target_compile_options(clconfigui_warnings INTERFACE $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()

# Texts are QStringLiteral, u""_s or QLatin1String: a char array never turns into a QString by itself.
add_library(clconfigui_strict INTERFACE)
target_link_libraries(clconfigui_strict INTERFACE clconfigui_warnings)
target_compile_definitions(clconfigui_strict INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)

# clconfigui_add_library(NAME HEADER_ROOT)
# A shared library NAME with the alias CLConfigUI::NAME and a generated export header <name_export.h>. Its headers are
# included relative to HEADER_ROOT, or below CLConfigUI/, in the build tree as after the installation.
function(clconfigui_add_library name header_root)
    add_library(${name} SHARED)
    add_library(CLConfigUI::${name} ALIAS ${name})
    string(TOLOWER ${name} lower)
    generate_export_header(${name} EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/${lower}_export.h)
    clconfigui_forward_headers(${header_root})
    target_include_directories(${name} PUBLIC
        $<BUILD_INTERFACE:${header_root}>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/forward>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/CLConfigUI>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:clconfigui_strict>)
    clconfigui_count_lines(${name})
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    if(WIN32)
        set_target_properties(${name} PROPERTIES PREFIX "") # CLConfigUI.dll, whichever compiler makes it
    endif()
endfunction()

# clconfigui_count_lines(TARGET)
# Counts which lines of TARGET run, where CLCONFIGUI_COVERAGE asks for it.
function(clconfigui_count_lines target)
    if(CLCONFIGUI_COVERAGE)
        target_compile_options(${target} PRIVATE
            -fprofile-instr-generate=${PROJECT_BINARY_DIR}/profiles/%4m.profraw -fcoverage-mapping)
        target_link_options(${target} PRIVATE -fprofile-instr-generate)
    endif()
endfunction()

# clconfigui_forward_headers(HEADER_ROOT)
# Has the build tree's <CLConfigUI/...> include the headers of HEADER_ROOT, for programs with folders of the same names.
function(clconfigui_forward_headers header_root)
    file(GLOB_RECURSE headers RELATIVE ${header_root} CONFIGURE_DEPENDS ${header_root}/*.h)
    list(FILTER headers EXCLUDE REGEX "(^|/)private/")
    foreach(header IN LISTS headers)
        file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/forward/CLConfigUI/${header}
             CONTENT "#include \"@header_root@/@header@\"\n" @ONLY)
    endforeach()
endfunction()
