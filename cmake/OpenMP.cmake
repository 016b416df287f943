# The library asks an OpenMP runtime how many threads a caller wants, and nothing else. clang's own runtime is packaged
# for one version of clang and for the machine's own width only; for the others GCC's does.
find_package(OpenMP QUIET COMPONENTS CXX)
if(NOT OpenMP_CXX_FOUND AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    separate_arguments(flags UNIX_COMMAND "${CMAKE_CXX_FLAGS}")
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} ${flags} -print-file-name=libgomp.so
        OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(EXISTS ${library})
        add_library(OpenMP::OpenMP_CXX INTERFACE IMPORTED)
        target_include_directories(OpenMP::OpenMP_CXX SYSTEM INTERFACE ${CMAKE_CURRENT_LIST_DIR}/openmp)
        target_link_libraries(OpenMP::OpenMP_CXX INTERFACE ${library})
        set(OpenMP_CXX_FOUND TRUE)
    endif()
endif()
if(NOT OpenMP_CXX_FOUND)
    message(FATAL_ERROR "No OpenMP runtime for ${CMAKE_CXX_COMPILER}")
endif()
