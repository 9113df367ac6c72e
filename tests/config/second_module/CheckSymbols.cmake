# Fails when the library LIBRARY has the object of a singleton itself. NM is the nm of the toolchain. An instance() alone
# may be there: in a DLL it is the jump to the one of another DLL.
execute_process(COMMAND ${NM} --defined-only --demangle ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES "uiConfigOfSecondModule")
    message(FATAL_ERROR "${NM} lists no symbols of ${LIBRARY}")
endif()
string(REGEX MATCHALL "[^\n]*lumo::tools::Singleton<[^\n]*::object" copies "${symbols}")
if(copies)
    message(FATAL_ERROR "The second module has a singleton of its own:\n${copies}")
endif()
