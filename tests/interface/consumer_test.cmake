# Installs the build into a scratch prefix, moves it, and builds the consumer project against the moved copy, by its
# CMake package and by pkg-config.
cmake_minimum_required(VERSION 3.25)
set(installed ${WORK_DIR}/installed)
set(prefix ${WORK_DIR}/moved)
set(build ${WORK_DIR}/build)
file(REMOVE_RECURSE ${WORK_DIR})

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${installed})
file(RENAME ${installed} ${prefix})

# A compiler of two widths tells CMake the folder of its own one alone.
cmake_path(GET LIBDIR FILENAME processor)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${build} -G ${GENERATOR} -D CMAKE_BUILD_TYPE=Release
    -D CMAKE_LIBRARY_ARCHITECTURE=${processor}
    -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_C_COMPILER=${C_COMPILER} -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
    -D CMAKE_C_FLAGS=${C_FLAGS} -D CMAKE_CXX_FLAGS=${CXX_FLAGS})
run(${CMAKE_COMMAND} --build ${build})
run(${build}/consumer_c)
run(${build}/consumer_cpp)

# Only the copy just installed may answer, never one of the system.
find_program(PKG_CONFIG NAMES pkg-config pkgconf REQUIRED)
set(ENV{PKG_CONFIG_LIBDIR} ${prefix}/${LIBDIR}/pkgconfig)
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs tarns OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
separate_arguments(c_flags UNIX_COMMAND "${C_FLAGS}")
run(${C_COMPILER} ${c_flags} -std=c99 -pedantic -Wall -Wextra -Werror ${SOURCE_DIR}/consumer.c ${flags}
    -Wl,-rpath,${prefix}/${LIBDIR} -o ${build}/consumer_pkg_config)
run(${build}/consumer_pkg_config)
