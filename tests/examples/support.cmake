# What the tests of the example programs share: an empty WORK_DIR, and what PROGRAM, the one that is tested, has to refuse.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

# expect_failure(<regular expression of the message> <input> <argument>...)
function(expect_failure reason input)
    cmake_path(GET PROGRAM STEM name)
    execute_process(COMMAND ${PROGRAM} ${ARGN} INPUT_FILE ${input} OUTPUT_FILE ${WORK_DIR}/refused
        RESULT_VARIABLE status ERROR_VARIABLE message)
    if(NOT status EQUAL 1 OR NOT message MATCHES "^${name}: ${reason}")
        message(SEND_ERROR "${name} ${ARGN} <${input}: status ${status}, message ${message}")
    endif()
endfunction()

# The same, before anything is written.
function(expect_refusal reason input)
    expect_failure("${reason}" ${input} ${ARGN})
    file(SIZE ${WORK_DIR}/refused written)
    if(NOT written EQUAL 0)
        message(SEND_ERROR "${PROGRAM} ${ARGN} <${input} wrote ${written} bytes")
    endif()
endfunction()

# expect_no_space(<input> <argument>...): a disk that is full is told.
function(expect_no_space input)
    cmake_path(GET PROGRAM STEM name)
    execute_process(COMMAND ${PROGRAM} ${ARGN} INPUT_FILE ${input} OUTPUT_FILE /dev/full RESULT_VARIABLE status
        ERROR_VARIABLE message)
    if(NOT status EQUAL 1 OR NOT message MATCHES "^${name}: output: No space left on device")
        message(SEND_ERROR "${name} ${ARGN} >/dev/full: status ${status}, message ${message}")
    endif()
endfunction()

function(expect_same first second)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${first} ${second} RESULT_VARIABLE different)
    if(different)
        message(SEND_ERROR "${first} and ${second} differ")
    endif()
endfunction()

# Silently, without dither, and the same noise at each run.
function(sox)
    execute_process(COMMAND ${SOX} -V1 -R -D ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The level of the tone in a recording, that of all the rest, and their ratio, in thousandths and whole decibels.
function(measure path rate frequency)
    math(EXPR skipped "${rate} / 10")
    execute_process(COMMAND ${TONE_QUALITY} ${rate} ${frequency} ${skipped} INPUT_FILE ${path} OUTPUT_VARIABLE output
        COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output MATCHES "^tone (-?)([0-9]+)\\.([0-9][0-9][0-9])[0-9] dB rest -([0-9]+).* ratio (-?[0-9]+) dB")
        message(FATAL_ERROR "tone_quality ${path}: ${output}")
    endif()
    math(EXPR level "${CMAKE_MATCH_2} * 1000 + 1${CMAKE_MATCH_3} - 1000")
    set(level ${CMAKE_MATCH_1}${level} PARENT_SCOPE)
    set(rest -${CMAKE_MATCH_4} PARENT_SCOPE)
    set(ratio ${CMAKE_MATCH_5} PARENT_SCOPE)
endfunction()
