# Runs the example that lists tones over a square wave, whose harmonics are known, and over what it has to refuse.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${TONES})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)

# At 48000 samples a second: 750 Hz, and 960 Hz, which lies between two bins. For an odd half of the period the harmonic m
# has the amplitude 8224 / (12.5 sin(pi m / 50)).
include(${CMAKE_CURRENT_LIST_DIR}/square_wave.cmake)
write_square_wave(${WORK_DIR}/square 64 600)
write_square_wave(${WORK_DIR}/between 50 800)

function(expect_tones expression input)
    execute_process(COMMAND ${TONES} ${ARGN} INPUT_FILE ${WORK_DIR}/${input} OUTPUT_VARIABLE output
        COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output MATCHES "${expression}")
        message(SEND_ERROR "tones ${ARGN} <${input}: ${output}")
    endif()
endfunction()

expect_tones("^ *750.00 Hz +-9.91 dB\n *2250.00 Hz +-19.42 dB\n *3750.00 Hz +-23.80 dB\n$" square --count 3)
expect_tones("^ *689.06 Hz +-9.91 dB\n$" square --count 1 --rate 44100)
expect_tones("^ *960.00 Hz +-9.90 dB\n *2880.00 Hz +-19.40 dB\n$" between --count 2)

# In short blocks neighbours leak into each other: a hundredth of a bin is what can be had.
expect_tones("^ *7(49.[6-9]|50.[0-4])[0-9] Hz +-9.9[0-2] dB\n$" square
    --count 1 --order 10 --spectrum ${WORK_DIR}/spectrum)
file(STRINGS ${WORK_DIR}/spectrum lines)
list(LENGTH lines count)
list(GET lines 16 fundamental)
if(NOT count EQUAL 513 OR NOT fundamental STREQUAL "750.000 -9.91")
    message(SEND_ERROR "a spectrum of ${count} lines, bin 16 is ${fundamental}")
endif()

file(WRITE ${WORK_DIR}/empty "")
string(REPEAT "a" 33 text)
file(WRITE ${WORK_DIR}/odd "${text}")
expect_refusal("input: too short: a block has 16384 samples" ${WORK_DIR}/empty)
expect_refusal("input: not 16-bit PCM" ${WORK_DIR}/odd --order 4)
expect_refusal("--order: a whole number from 4 to 20 is wanted" ${WORK_DIR}/square --order 3)
expect_refusal("--count: a whole number from 1 to 100 is wanted" ${WORK_DIR}/square --count many)
expect_refusal("--loud: no such option" ${WORK_DIR}/square --loud 1)
expect_refusal("--rate: a value is missing" ${WORK_DIR}/square --rate)
expect_refusal("[^ ]*missing/file: No such file" ${WORK_DIR}/square --spectrum ${WORK_DIR}/missing/file)
