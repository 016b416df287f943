# The library asks an OpenMP runtime how many threads a caller wants, and nothing else. clang's own runtime is packaged
# for one version of clang and for the machine's own width only; for the others GCC's does, with its header.
find_package(OpenMP QUIET COMPONENTS CXX)
if(NOT OpenMP_CXX_FOUND AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    separate_arguments(flags UNIX_COMMAND "${CMAKE_CXX_FLAGS}")
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} ${flags} -print-file-name=libgomp.so
        OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
    execute_process(COMMAND gcc -print-file-name=include/omp.h
        OUTPUT_VARIABLE header OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(EXISTS ${library} AND EXISTS ${header})
        # Alone: what else lies beside it is for GCC only.
        configure_file(${header} ${PROJECT_BINARY_DIR}/openmp/omp.h COPYONLY)
        add_library(OpenMP::OpenMP_CXX INTERFACE IMPORTED)
        target_include_directories(OpenMP::OpenMP_CXX SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/openmp)
        target_link_libraries(OpenMP::OpenMP_CXX INTERFACE ${library})
        set(OpenMP_CXX_FOUND TRUE)
    endif()
endif()
if(NOT OpenMP_CXX_FOUND)
    message(FATAL_ERROR "No OpenMP runtime for ${CMAKE_CXX_COMPILER}")
endif()
