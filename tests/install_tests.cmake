# Tests of what a user gets: every header on its own, an installed copy used from outside, the example programs.
set(TARNS_CONSUMER_FLAGS "")
if(TARNS_SANITIZE)
    set(TARNS_CONSUMER_FLAGS "-fsanitize=${TARNS_SANITIZE}")
endif()

add_test(NAME headers_test COMMAND ${CMAKE_COMMAND}
    -D INCLUDE_DIR=${PROJECT_SOURCE_DIR}/include
    -D C_COMPILER=${CMAKE_C_COMPILER} -D "C_FLAGS=${CMAKE_C_FLAGS}"
    -D CXX_COMPILER=${CMAKE_CXX_COMPILER} -D "CXX_FLAGS=${CMAKE_CXX_FLAGS}"
    -P ${CMAKE_CURRENT_LIST_DIR}/headers_test.cmake)

add_test(NAME consumer_test COMMAND ${CMAKE_COMMAND}
    -D BUILD_DIR=${PROJECT_BINARY_DIR} -D SOURCE_DIR=${CMAKE_CURRENT_LIST_DIR}/consumer
    -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/consumer -D LIBDIR=${CMAKE_INSTALL_LIBDIR} -D GENERATOR=${CMAKE_GENERATOR}
    -D C_COMPILER=${CMAKE_C_COMPILER} -D "C_FLAGS=${CMAKE_C_FLAGS} ${TARNS_CONSUMER_FLAGS}"
    -D CXX_COMPILER=${CMAKE_CXX_COMPILER} -D "CXX_FLAGS=${CMAKE_CXX_FLAGS} ${TARNS_CONSUMER_FLAGS}"
    -P ${CMAKE_CURRENT_LIST_DIR}/consumer_test.cmake)

if(TARNS_BUILD_EXAMPLES)
    add_test(NAME examples_test COMMAND ${CMAKE_COMMAND} -D MIX=$<TARGET_FILE:mix>
        -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/examples -P ${CMAKE_CURRENT_LIST_DIR}/examples_test.cmake)
    add_test(NAME tones_test COMMAND ${CMAKE_COMMAND} -D TONES=$<TARGET_FILE:tones>
        -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/tones -P ${CMAKE_CURRENT_LIST_DIR}/tones_test.cmake)
    add_test(NAME telephone_test COMMAND ${CMAKE_COMMAND} -D TELEPHONE=$<TARGET_FILE:telephone>
        -D TONES=$<TARGET_FILE:tones> -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/telephone
        -P ${CMAKE_CURRENT_LIST_DIR}/telephone_test.cmake)
endif()
