# Runs the telephone filter over a square wave, whose harmonics are known, and over what it has to refuse.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${TELEPHONE})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)

# 750 Hz at 48000 samples a second, with harmonics at 2250, 3750, ... Hz; more samples than the program reads at once.
include(${CMAKE_CURRENT_LIST_DIR}/square_wave.cmake)
write_square_wave(${WORK_DIR}/square 64 600)
execute_process(COMMAND head -c 20000 ${WORK_DIR}/square OUTPUT_FILE ${WORK_DIR}/beginning COMMAND_ERROR_IS_FATAL ANY)
file(WRITE ${WORK_DIR}/empty "")
file(WRITE ${WORK_DIR}/odd "abc")

# The strongest tones of what is left after the filter has settled, as `tones` lists them.
function(expect_tones expression)
    execute_process(
        COMMAND ${TELEPHONE} ${ARGN}
        COMMAND tail -c +5001
        COMMAND ${TONES} --count 3
        INPUT_FILE ${WORK_DIR}/square OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output MATCHES "${expression}")
        message(SEND_ERROR "telephone ${ARGN}: ${output}")
    endif()
endfunction()

# Inside the band tones keep their level; the next harmonic, and the constant, are gone.
set(gone "([5-9][0-9]|1[0-9][0-9])\\.[0-9]+ dB")
expect_tones("^ *750.00 Hz +-9.9[0-2] dB\n *2250.00 Hz +-19.4[0-4] dB\n[^\n]* -${gone}\n$" --taps 1024)
expect_tones("^ *2250.00 Hz +-19.4[0-4] dB\n *3750.00 Hz +-23.[78][0-9] dB\n[^\n]* -${gone}\n$"
    --taps 1001 --low 1500 --high 4500 --window hann)
# At half the rate all frequencies are half of what they were.
expect_tones("^ *750.00 Hz +-9.9[0-2] dB\n[^\n]* -${gone}\n[^\n]* -${gone}\n$"
    --taps 1024 --rate 24000 --high 600 --low 100 --window blackman)

# Where the input is cut into blocks changes nothing, and each sample gives one.
execute_process(COMMAND ${TELEPHONE} INPUT_FILE ${WORK_DIR}/beginning OUTPUT_FILE ${WORK_DIR}/beginning.out
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${TELEPHONE} INPUT_FILE ${WORK_DIR}/square OUTPUT_FILE ${WORK_DIR}/square.out
    COMMAND_ERROR_IS_FATAL ANY)
file(SIZE ${WORK_DIR}/square given)
file(SIZE ${WORK_DIR}/square.out written)
if(NOT written EQUAL given)
    message(SEND_ERROR "telephone: ${given} bytes became ${written}")
endif()
execute_process(COMMAND head -c 20000 ${WORK_DIR}/square.out OUTPUT_FILE ${WORK_DIR}/head.out
    COMMAND_ERROR_IS_FATAL ANY)
expect_same(${WORK_DIR}/beginning.out ${WORK_DIR}/head.out)
execute_process(COMMAND ${TELEPHONE} INPUT_FILE ${WORK_DIR}/empty OUTPUT_FILE ${WORK_DIR}/empty.out
    COMMAND_ERROR_IS_FATAL ANY)
expect_same(${WORK_DIR}/empty ${WORK_DIR}/empty.out)

execute_process(COMMAND ${TELEPHONE} --help OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(NOT output MATCHES "^usage: telephone .*--low HZ.*--high HZ.*--taps N.*--window NAME")
    message(SEND_ERROR "telephone --help: ${output}")
endif()

expect_refusal("input: not 16-bit PCM: its last sample is cut in two" ${WORK_DIR}/odd)
expect_refusal("input: Is a directory" ${WORK_DIR})
set(square ${WORK_DIR}/square)
expect_refusal("--low: a number above 0 is wanted" ${square} --low 0)
expect_refusal("--low: a number above 0 is wanted" ${square} --low nan)
expect_refusal("--low: not below the upper edge" ${square} --low 3400)
expect_refusal("--high: a number above 0 is wanted" ${square} --high -3400)
expect_refusal("--high: above half the rate" ${square} --high 24001)
expect_refusal("--rate: a number above 0 is wanted" ${square} --rate 8k)
expect_refusal("--high: above half the rate" ${square} --rate 6000)
foreach(taps 4 5.5 65537)
    expect_refusal("--taps: a whole number from 5 to 65536 is wanted" ${square} --taps ${taps})
endforeach()
expect_refusal("--window: one of these is wanted: bartlett blackman hamming hann none" ${square} --window round)
expect_refusal("--loud: no such option" ${square} --loud 1)
expect_refusal("--low: a value is missing" ${square} --low)

expect_no_space(${square})
