# Runs the example that measures hum over a square wave of the mains' frequency, whose harmonics are known, and over what
# it has to refuse.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${HUM})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)

# 50 Hz at 44100 samples a second, 60 Hz at 48000. Harmonics of even number have no more than what rounding leaves.
include(${CMAKE_CURRENT_LIST_DIR}/square_wave.cmake)
write_square_wave(${WORK_DIR}/fifty 882 3)
write_square_wave(${WORK_DIR}/sixty 800 2)

function(expect_harmonics expression input)
    execute_process(COMMAND ${HUM} ${ARGN} INPUT_FILE ${WORK_DIR}/${input} OUTPUT_VARIABLE output
        COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output MATCHES "${expression}")
        message(SEND_ERROR "hum ${ARGN} <${input}: ${output}")
    endif()
endfunction()

set(nothing "-[1-3][0-9][0-9]\\.[0-9]+")
expect_harmonics("^ *50 Hz +-9.91 dB\n *100 Hz +${nothing} dB\n *150 Hz +-19.45 dB\n *200 Hz +${nothing} dB\n$" fifty
    --count 4)
expect_harmonics("^ *60 Hz +-9.91 dB\n *120 Hz +${nothing} dB\n *180 Hz +-19.45 dB\n$" sixty
    --count 3 --rate 48000 --mains 60)

# The spectrum of the next power of two smears: the fundamental is not alone above its even neighbour.
expect_harmonics("^ *50 Hz +-9.91 dB\n$" fifty --count 1 --spectrum ${WORK_DIR}/spectrum)
file(STRINGS ${WORK_DIR}/spectrum lines)
list(LENGTH lines count)
list(GET lines 1 own)
list(GET lines 445 smeared)
if(NOT count EQUAL 957 OR NOT own STREQUAL "50.000 -9.91" OR NOT smeared MATCHES "^43\\.066 -1[0-9]\\.")
    message(SEND_ERROR "spectra of ${count} lines, the first bins of which are ${own} and ${smeared}")
endif()

file(WRITE ${WORK_DIR}/empty "")
expect_refusal("input: too short" ${WORK_DIR}/empty)
expect_refusal("--rate: must be a multiple" ${WORK_DIR}/fifty --rate 44101)
expect_refusal("--mains: a whole number from 1 to 1000 is wanted" ${WORK_DIR}/fifty --mains 0)
expect_refusal("--count: a whole number from 1 to 100 is wanted" ${WORK_DIR}/fifty --count many)
expect_refusal("--loud: no such option" ${WORK_DIR}/fifty --loud 1)
expect_refusal("--rate: a value is missing" ${WORK_DIR}/fifty --rate)
expect_refusal("[^ ]*missing/file: No such file" ${WORK_DIR}/fifty --spectrum ${WORK_DIR}/missing/file)
