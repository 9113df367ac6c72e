# Run by CPack when the files of the packages stand in a directory for each component: adds what Debian wants in every
# package, and compresses what it wants compressed.

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(changelog "clconfigui (${CPACK_PACKAGE_VERSION}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}; what changed stands in CHANGELOG.md.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
set(third_party_copyright "
The program contains code of libraries that are headers only, CLI11, RapidJSON
and valijson. What Debian's packages of them say about their copyright follows.
")
foreach(package IN ITEMS libcli11-dev rapidjson-dev libvalijson-dev)
    file(READ /usr/share/doc/${package}/copyright text)
    string(APPEND third_party_copyright "\n\n${package}\n\n${text}")
endforeach()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(usr ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
    set(doc ${usr}/share/doc/${package})

    file(WRITE ${doc}/changelog "${changelog}")
    file(COPY_FILE ${CPACK_CLCONFIGUI_SOURCE_DIR}/CHANGELOG.md ${doc}/CHANGELOG.md)
    file(GLOB pages ${usr}/share/man/man*/*)
    execute_process(COMMAND gzip -9n ${pages} ${doc}/changelog ${doc}/CHANGELOG.md COMMAND_ERROR_IS_FATAL ANY)

    file(COPY_FILE ${CPACK_CLCONFIGUI_SOURCE_DIR}/cmake/packages/copyright ${doc}/copyright)
    if(IS_DIRECTORY ${usr}/bin)
        file(APPEND ${doc}/copyright "${third_party_copyright}")
    endif()
    set(overrides ${CPACK_CLCONFIGUI_SOURCE_DIR}/cmake/packages/${package}.lintian-overrides)
    if(EXISTS ${overrides})
        file(MAKE_DIRECTORY ${usr}/share/lintian/overrides)
        file(COPY_FILE ${overrides} ${usr}/share/lintian/overrides/${package})
    endif()
endforeach()
