# Installs the build tree BINARY_DIR, or its COMPONENT, into the empty directory PREFIX. Where DATA_DIR is given, the data
# stand there, and the pages in DOC_DIR.
file(REMOVE_RECURSE ${PREFIX})
if(COMPONENT)
    set(part --component ${COMPONENT})
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BINARY_DIR} --prefix ${PREFIX} --config ${CONFIG} ${part}
    COMMAND_ERROR_IS_FATAL ANY)
if(DATA_DIR)
    if(TRANSLATIONS)
        set(translations ${DATA_DIR}/translations/clconfigui_de.qm ${DATA_DIR}/translations/clconfigui_fr.qm)
    endif()
    foreach(file ${translations} ${DATA_DIR}/UIConfig.json ${DATA_DIR}/UIConfig.schema.json ${DATA_DIR}/DataArrays.json
            ${DATA_DIR}/DataArrays.schema.json ${DOC_DIR}/catalogue.md)
        if(NOT EXISTS ${PREFIX}/${file})
            message(FATAL_ERROR "It is not installed: ${file}")
        endif()
    endforeach()
endif()
