# The target `docs`: the reference manual, built from the public headers and docs/*.md.
find_program(TARNS_DOXYGEN doxygen)
if(TARNS_DOXYGEN)
    set(TARNS_DOCS_DIR ${PROJECT_BINARY_DIR}/docs)
    configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    add_custom_target(docs
        COMMAND ${CMAKE_COMMAND} -E make_directory ${TARNS_DOCS_DIR}
        COMMAND ${TARNS_DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile
        COMMAND python3 ${PROJECT_SOURCE_DIR}/scripts/manual-index ${TARNS_DOCS_DIR}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        COMMENT "Building the manual in ${TARNS_DOCS_DIR}/html"
        VERBATIM)
endif()
