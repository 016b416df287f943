# Installs all levels into one prefix and shows by the version record which one a program gets: on x86-64 the widest that
# the processor has, with no more than the base library's name in the program, and another one on request; on i386 the
# one that it links or opens. The libraries have no kernels here, which the choice does not depend on.
cmake_minimum_required(VERSION 3.25)
set(prefix ${WORK_DIR}/prefix)
set(libraries ${prefix}/${LIBDIR})
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(run)
    execute_process(COMMAND ${ARGV} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGV}:\n${output}")
    endif()
endfunction()

foreach(level IN ITEMS T7 Y8 Z9)
    set(build ${WORK_DIR}/${level})
    run(${CMAKE_COMMAND} -S ${PROJECT_DIR} -B ${build} -G ${GENERATOR} -D CMAKE_BUILD_TYPE=Release
        -D TARNS_LEVEL=${level} -D TARNS_ONLY_SOURCES=^core/tarnversion -D CMAKE_INSTALL_LIBDIR=${LIBDIR}
        -D TARNS_BUILD_TESTS=OFF -D TARNS_BUILD_EXAMPLES=OFF -D TARNS_BUILD_PYTHON=OFF
        -D CMAKE_DISABLE_PRECOMPILE_HEADERS=ON
        -D CMAKE_C_COMPILER=${C_COMPILER} -D CMAKE_C_FLAGS=${C_FLAGS}
        -D CMAKE_CXX_COMPILER=${CXX_COMPILER} -D CMAKE_CXX_FLAGS=${CXX_FLAGS})
    run(${CMAKE_COMMAND} --build ${build})
    run(${CMAKE_COMMAND} --install ${build} --prefix ${prefix})
endforeach()

separate_arguments(flags UNIX_COMMAND "${C_FLAGS}")
foreach(mark IN ITEMS t7 y8 z9)
    run(${C_COMPILER} ${flags} -std=c99 -D_GNU_SOURCE -Wall -Wextra -Werror -I${prefix}/include ${SOURCE_DIR}/which.c
        -L${libraries} -ltarns${mark} -ldl -Wl,-rpath,${libraries} -o ${WORK_DIR}/which_${mark})
endforeach()

# expect(<level> <command>...)
function(expect mark)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE error)
    if(NOT output STREQUAL "${mark} libtarns${mark}.so")
        message(SEND_ERROR "${ARGN}\nprinted \"${output}\" instead of the record of ${mark}\n${error}")
    endif()
endfunction()

# A program that names a level gets it, and so does one that opens it.
foreach(mark IN ITEMS y8 z9)
    expect(${mark} ${WORK_DIR}/which_${mark})
    expect(${mark} ${WORK_DIR}/which_t7 ${libraries}/libtarns${mark}.so.4)
endforeach()
if(POINTER_BYTES EQUAL 4)
    expect(t7 ${WORK_DIR}/which_t7)
    return()
endif()

# A program that names the base gets what the processor has.
execute_process(COMMAND grep -m1 ^flags /proc/cpuinfo OUTPUT_VARIABLE cpu)
set(v3 avx avx2 bmi1 bmi2 f16c fma abm movbe)
set(v4 ${v3} avx512f avx512bw avx512cd avx512dq avx512vl)
function(has_all result)
    set(${result} ON PARENT_SCOPE)
    foreach(flag IN LISTS ARGN)
        if(NOT cpu MATCHES "[ \t]${flag}[ \n]")
            set(${result} OFF PARENT_SCOPE)
        endif()
    endforeach()
endfunction()
has_all(has_v3 ${v3})
has_all(has_v4 ${v4})
if(NOT has_v3)
    expect(t7 ${WORK_DIR}/which_t7)
    message("SKIPPED: this processor has no AVX2, so that every program gets the base level")
    return()
endif()

# The base library's own folder in front of all others, or the linker told what not to see.
if(has_v4)
    expect(z9 ${WORK_DIR}/which_t7)
    expect(y8 ${CMAKE_COMMAND} -E env GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX512F ${WORK_DIR}/which_t7)
    expect(y8 ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${libraries}/glibc-hwcaps/x86-64-v3 ${WORK_DIR}/which_t7)
else()
    expect(y8 ${WORK_DIR}/which_t7)
endif()
expect(t7 ${CMAKE_COMMAND} -E env GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX2 ${WORK_DIR}/which_t7)
expect(t7 ${CMAKE_COMMAND} -E env LD_PRELOAD=${libraries}/libtarnst7.so.4 ${WORK_DIR}/which_t7)
if(NOT has_v4)
    message("SKIPPED: this processor has no AVX-512, so that no program gets the widest level by itself")
endif()
