# The shared library itself.
file(GLOB_RECURSE TARNS_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/core/*.cpp ${PROJECT_SOURCE_DIR}/src/*.cpp)

add_library(tarns SHARED ${TARNS_SOURCES})
add_library(tarns::tarns ALIAS tarns)

# The level is part of the name, so that builds for other levels can be installed side by side.
set_target_properties(tarns PROPERTIES
    OUTPUT_NAME tarnst7
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
target_include_directories(tarns
    PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})

# Kernels are vectorised by hand; the compiler's own vectoriser would only bloat their scalar heads and tails, and its
# loop patterns would turn the movers into calls of memcpy. Nothing reads errno, so roots may be single instructions.
target_compile_options(tarns PRIVATE
    -fno-tree-vectorize -fno-tree-slp-vectorize $<$<CXX_COMPILER_ID:GNU>:-fno-tree-loop-distribute-patterns>
    -fno-math-errno -fno-exceptions -fno-rtti -fno-semantic-interposition)
if(NOT TARNS_SANITIZE)
    target_compile_options(tarns PRIVATE -O3)
elseif(TARNS_SANITIZE MATCHES "undefined")
    target_compile_options(tarns PRIVATE -fno-sanitize=vptr) # needs run-time type information
endif()
# Where all arrays advance together one index serves them all; 32-bit code has no registers for a pointer each. The
# transforms, whose arrays advance at different paces, are left to the compiler.
file(GLOB_RECURSE TARNS_WALKING_KERNELS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/levels/*.cpp)
list(FILTER TARNS_WALKING_KERNELS EXCLUDE REGEX "/psfft[^/]*$")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set_source_files_properties(${TARNS_WALKING_KERNELS} PROPERTIES COMPILE_OPTIONS "-fno-ivopts;-fno-tree-scev-cprop")
endif()
target_link_options(tarns PRIVATE -Wl,-Bsymbolic-functions -Wl,--as-needed
    -Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map)
if(NOT TARNS_SANITIZE) # whose functions are the program's
    target_link_options(tarns PRIVATE -Wl,-z,defs)
endif()
set_property(TARGET tarns APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/exports.map)

find_package(OpenMP REQUIRED COMPONENTS CXX)
target_link_libraries(tarns PRIVATE $<BUILD_INTERFACE:tarns_flags> $<BUILD_INTERFACE:OpenMP::OpenMP_CXX>)
