# The shared library itself.
file(GLOB_RECURSE TARNS_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/core/*.cpp ${PROJECT_SOURCE_DIR}/src/*.cpp)
if(TARNS_ONLY_SOURCES)
    list(TRANSFORM TARNS_SOURCES REPLACE "^${PROJECT_SOURCE_DIR}/" "")
    list(FILTER TARNS_SOURCES INCLUDE REGEX "${TARNS_ONLY_SOURCES}")
endif()

# Where all arrays advance together one index serves them all; 32-bit code has no registers for a pointer each. The
# transforms, whose arrays advance at different paces, are left to the compiler.
file(GLOB_RECURSE TARNS_WALKING_KERNELS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/levels/*.cpp)
list(FILTER TARNS_WALKING_KERNELS EXCLUDE REGEX "/psfft[^/]*$")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set_source_files_properties(${TARNS_WALKING_KERNELS} PROPERTIES COMPILE_OPTIONS "-fno-ivopts;-fno-tree-scev-cprop")
endif()

set_source_files_properties(${PROJECT_SOURCE_DIR}/core/tarnversion.cpp PROPERTIES
    COMPILE_DEFINITIONS TARNS_LEVEL_MARK="${TARNS_LEVEL_MARK}")

include(${CMAKE_CURRENT_LIST_DIR}/OpenMP.cmake)

# tarns_link_library(<target>): what its objects are linked with, and what it shows of them.
function(tarns_link_library target)
    target_link_options(${target} PRIVATE -Wl,-Bsymbolic-functions -Wl,--as-needed
        -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:OpenMP::OpenMP_CXX>)
endfunction()

# tarns_add_library(<target> <sanitizers>): the sources under these sanitizers, or optimised if there are none.
function(tarns_add_library target sanitizers)
    add_library(${target} SHARED ${TARNS_SOURCES})
    # The level is part of the name, so that builds for other levels can be installed side by side; so is the major
    # version of the file that programs load, while they are linked with a name without it.
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME tarns${TARNS_LEVEL_MARK}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_include_directories(${target}
        PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
        PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})
    # Kernels are vectorised by hand; the compiler's own vectoriser would only bloat their scalar heads and tails, and
    # its loop patterns would turn the movers into calls of memcpy. Nothing reads errno, so roots may be single
    # instructions.
    target_compile_options(${target} PRIVATE
        -fno-tree-vectorize -fno-tree-slp-vectorize $<$<CXX_COMPILER_ID:GNU>:-fno-tree-loop-distribute-patterns>
        -fno-math-errno -fno-exceptions -fno-rtti -fno-semantic-interposition)
    tarns_link_library(${target})
    if(sanitizers)
        # Line numbers are what a report needs; checks by calls instead of inline ones compile a third faster.
        target_compile_options(${target} PRIVATE -O1 -g1 -UNDEBUG
            $<$<CXX_COMPILER_ID:GNU>:--param=asan-instrumentation-with-call-threshold=0>)
        if(sanitizers MATCHES "undefined")
            target_compile_options(${target} PRIVATE -fno-sanitize=vptr) # needs run-time type information
        endif()
    else()
        target_compile_options(${target} PRIVATE ${TARNS_OPTIMIZATION})
        target_link_options(${target} PRIVATE -Wl,-z,defs) # a sanitizer's functions would be the program's
    endif()
    target_precompile_headers(${target} PRIVATE <frame/precompiled.h>)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tarns_flags>)
endfunction()

tarns_add_library(tarns "${TARNS_SANITIZE}")
add_library(tarns::tarns ALIAS tarns)

# A second build of the library, which the tests are linked with as well; they themselves are not compiled again.
if(TARNS_SANITIZED_COPY)
    tarns_add_library(tarns_sanitized "${TARNS_SANITIZED_COPY}")
    target_link_libraries(tarns_sanitized PRIVATE $<BUILD_INTERFACE:tarns_sanitizers>)
    set_target_properties(tarns_sanitized PROPERTIES
        EXCLUDE_FROM_ALL ON LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/sanitized)
endif()
