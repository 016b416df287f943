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
