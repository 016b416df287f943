# Compiles every public header alone, as strict C99 and as C++: each must bring what it needs, and stay plain C.
cmake_minimum_required(VERSION 3.25)
file(GLOB_RECURSE headers ${INCLUDE_DIR}/*.h)
if(NOT headers)
    message(FATAL_ERROR "No header under ${INCLUDE_DIR}")
endif()
separate_arguments(c_flags UNIX_COMMAND "${C_FLAGS}")
separate_arguments(cxx_flags UNIX_COMMAND "${CXX_FLAGS}")
set(strict -pedantic -Wall -Wextra -Wundef -Werror -fsyntax-only -I${INCLUDE_DIR})

foreach(header IN LISTS headers)
    # A second inclusion must be harmless.
    set(twice -include ${header} -include ${header} /dev/null)
    execute_process(COMMAND ${C_COMPILER} ${c_flags} -std=c99 ${strict} -Wstrict-prototypes -x c ${twice}
        RESULT_VARIABLE c_result)
    execute_process(COMMAND ${CXX_COMPILER} ${cxx_flags} -std=c++11 ${strict} -x c++ ${twice}
        RESULT_VARIABLE cxx_result)
    if(NOT c_result EQUAL 0 OR NOT cxx_result EQUAL 0)
        message(SEND_ERROR "${header} does not compile on its own")
    endif()
endforeach()

# The C++ face is all text of headers: every compiler that is there takes it without a warning, with exceptions or not.
find_program(clang NAMES clang++ clang++-16 clang++-14)
set(compilers ${CXX_COMPILER})
if(clang)
    list(APPEND compilers ${clang})
endif()
list(FILTER cxx_flags INCLUDE REGEX "^-m") # those that every compiler knows
foreach(compiler IN LISTS compilers)
    foreach(mode IN ITEMS -fexceptions -fno-exceptions)
        execute_process(COMMAND ${compiler} ${cxx_flags} -std=c++20 ${strict} -Wconversion -Wshadow -Wno-psabi ${mode}
            -x c++ -include ${INCLUDE_DIR}/tarns.hpp /dev/null RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(SEND_ERROR "${compiler} ${mode} does not take tarns.hpp")
        endif()
    endforeach()
endforeach()
