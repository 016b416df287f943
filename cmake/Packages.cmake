# Debian packages, one for each component of the installation. The base level's tree says what they are; scripts/packages
# adds what the trees of the wider levels install.
if(NOT PROJECT_IS_TOP_LEVEL OR NOT TARNS_LEVEL STREQUAL "T7" OR TARNS_SANITIZE)
    return()
endif()
set(debian ${CMAKE_CURRENT_LIST_DIR}/debian)
set(TARNS_PACKAGE_MAINTAINER "The tarns developers <tarns@example.org>" CACHE STRING "Maintainer of the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT ${TARNS_PACKAGE_MAINTAINER})
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/PackageControl.cmake)
set(CPACK_TARNS_LIBDIR ${CMAKE_INSTALL_LIBDIR})
set(CPACK_TARNS_PYTHON ${TARNS_PYTHON})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE tarns)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE i386)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE amd64)
endif()
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own

execute_process(COMMAND gzip -9n INPUT_FILE ${debian}/changelog OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog.gz
    COMMAND_ERROR_IS_FATAL ANY)

# tarns_package(<component> <package> <section> <summary> <what it holds>)
macro(tarns_package component package section summary contents)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}
Calls over plain arrays for the inner loops of signal chains: vector
arithmetic with saturation and scale factors, conversions, statistics,
windows and generators, Fourier and cosine transforms of any length,
convolution and correlation, FIR, IIR, adaptive and median filters,
telephone and trellis coding, wavelets. Integer results are defined to the
bit, and those of floats by IEEE arithmetic in a stated order.

${contents}")
    install(FILES ${debian}/copyright ${PROJECT_BINARY_DIR}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${component} EXCLUDE_FROM_ALL)
    if(EXISTS ${debian}/${package}.overrides)
        install(FILES ${debian}/${package}.overrides DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides
            RENAME ${package} COMPONENT ${component} EXCLUDE_FROM_ALL)
    endif()
endmacro()

# Both architectures go side by side, which this CPack has no variable for: the field follows another one's value.
set(same "optional\nMulti-Arch: same")

tarns_package(library libtarns libs "signal-processing primitives (shared library)"
"This package contains the library, for 128-bit vectors (SSE3) and for 256
and 512 bits. On 64-bit systems programs get the widest that the processor
has; the results are the same.")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_PRIORITY ${same})

tarns_package(development libtarns-dev libdevel "signal-processing primitives (development files)"
"This package contains the headers for C and C++, and the files for
pkg-config and CMake.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_PRIORITY ${same})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libtarns (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "tarns-doc")

# What serves every architecture is packed once, with the 64-bit library.
if(TARGET docs AND CMAKE_SIZEOF_VOID_P EQUAL 8)
    tarns_package(documentation tarns-doc doc "signal-processing primitives (documentation)"
"This package contains the reference manual and the guides.")
    set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
    set(directory ${CMAKE_INSTALL_DATAROOTDIR}/doc/tarns-doc)
    install(DIRECTORY ${TARNS_DOCS_DIR}/html DESTINATION ${directory} COMPONENT documentation EXCLUDE_FROM_ALL)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${directory}/guides COMPONENT documentation
        EXCLUDE_FROM_ALL FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg")
    install(FILES ${debian}/tarns-doc.doc-base DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc-base RENAME tarns-doc.tarns
        COMPONENT documentation EXCLUDE_FROM_ALL)
endif()

if(TARGET python_package)
    tarns_package(python python3-tarns python "signal-processing primitives (Python 3)"
"This package contains the Python package for arrays of NumPy.")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
        "libtarns (= ${PROJECT_VERSION}), python3, python3-cffi-backend, python3-numpy")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${debian}/python3-tarns/postinst ${debian}/python3-tarns/prerm)
endif()
include(CPack)
