# Google Benchmark and the optional peers, as the interface library tarns_peers with a TARNS_HAVE_<PEER> each.
# TARNS_PEERS_ROOT names a directory of unpacked packages, for a width whose packages are not installed.
set(TARNS_PEERS_ROOT "" CACHE PATH "Where to look for Google Benchmark and the peers instead of the system")

if(TARNS_PEERS_ROOT)
    file(GLOB TARNS_PEERS_LIBRARY_DIRS LIST_DIRECTORIES ON
        ${TARNS_PEERS_ROOT}/usr/lib/*-linux-gnu ${TARNS_PEERS_ROOT}/usr/lib/*-linux-gnu/openblas-pthread
        ${TARNS_PEERS_ROOT}/lib/*-linux-gnu)
    file(GLOB TARNS_PEERS_INCLUDE_DIRS LIST_DIRECTORIES ON ${TARNS_PEERS_ROOT}/usr/include/*-linux-gnu)
    list(APPEND TARNS_PEERS_INCLUDE_DIRS ${TARNS_PEERS_ROOT}/usr/include)
    set(TARNS_PEERS_SEARCH ${TARNS_PEERS_LIBRARY_DIRS} NO_DEFAULT_PATH)
    set(TARNS_PEERS_HEADER_SEARCH ${TARNS_PEERS_INCLUDE_DIRS} NO_DEFAULT_PATH)
endif()

add_library(tarns_peers INTERFACE)
# The peers need libraries of their own from there, which only the old kind of run-time path reaches.
foreach(directory IN LISTS TARNS_PEERS_LIBRARY_DIRS)
    target_link_options(tarns_peers INTERFACE -Wl,--disable-new-dtags -Wl,-rpath,${directory} -Wl,-rpath-link,${directory})
endforeach()

# tarns_find_peer(<NAME> <header> <library>...): all of them or nothing, and only if they link at this width.
function(tarns_find_peer name header)
    find_path(TARNS_${name}_INCLUDE_DIR ${header} PATHS ${TARNS_PEERS_HEADER_SEARCH} PATH_SUFFIXES openblas-pthread)
    set(libraries "")
    foreach(library IN LISTS ARGN)
        find_library(TARNS_${name}_${library} ${library} PATHS ${TARNS_PEERS_SEARCH})
        list(APPEND libraries ${TARNS_${name}_${library}})
    endforeach()
    if(NOT TARNS_${name}_INCLUDE_DIR OR "${libraries}" MATCHES "NOTFOUND")
        message(STATUS "Peer ${name}: not found")
        return()
    endif()
    set(probe ${PROJECT_BINARY_DIR}/peer_${name}.cpp)
    file(WRITE ${probe} "int main() { return 0; }\n")
    set(rpaths "${TARNS_PEERS_LIBRARY_DIRS}")
    list(TRANSFORM rpaths PREPEND -Wl,-rpath-link,)
    try_compile(TARNS_${name}_LINKS ${PROJECT_BINARY_DIR}/peer_${name} ${probe}
        LINK_OPTIONS -Wl,--no-as-needed ${rpaths} LINK_LIBRARIES ${libraries} pthread OUTPUT_VARIABLE log)
    if(NOT TARNS_${name}_LINKS)
        message(STATUS "Peer ${name}: found, but does not link at this width")
        return()
    endif()
    message(STATUS "Peer ${name}: ${libraries}")
    target_include_directories(tarns_peers SYSTEM INTERFACE ${TARNS_${name}_INCLUDE_DIR})
    target_compile_definitions(tarns_peers INTERFACE TARNS_HAVE_${name})
    target_link_libraries(tarns_peers INTERFACE ${libraries} pthread)
    set(TARNS_HAVE_${name} ON PARENT_SCOPE)
endfunction()

tarns_find_peer(BENCHMARK benchmark/benchmark.h benchmark_main benchmark)
if(NOT TARNS_HAVE_BENCHMARK)
    message(FATAL_ERROR "The benchmarks need Google Benchmark of the same width; scripts/bench fetches it")
endif()
tarns_find_peer(VOLK volk/volk.h volk)
tarns_find_peer(FFTW fftw3.h fftw3 fftw3f)
tarns_find_peer(OPENBLAS cblas.h openblas)
tarns_find_peer(LIQUID liquid/liquid.h liquid)
