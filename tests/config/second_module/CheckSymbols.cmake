# Fails when the library LIBRARY defines an instance() of a singleton, or its guarded static object, itself. NM is the
# nm of the toolchain.
execute_process(COMMAND ${NM} --defined-only --demangle ${LIBRARY} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES "uiConfigOfSecondModule")
    message(FATAL_ERROR "${NM} lists no symbols of ${LIBRARY}")
endif()
string(REGEX MATCHALL "[^\n]*lumo::tools::Singleton<[^\n]*" copies "${symbols}")
if(copies)
    message(FATAL_ERROR "The second module has a singleton of its own:\n${copies}")
endif()
