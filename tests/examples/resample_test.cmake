# Changes the rate of tones that sox makes, measures what comes out beside sox's own change of rate, and tries what is to
# be refused.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

# Five eighths of a second one decibel below full scale, without dither.
function(make_tone rate frequency)
    execute_process(COMMAND ${SOX} -D -n -r ${rate} -b 16 -c 1 -e signed -t raw ${WORK_DIR}/tone synth 0.625 sine
        ${frequency} gain -1 COMMAND_ERROR_IS_FATAL ANY)
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

function(resample from to)
    execute_process(COMMAND ${RESAMPLE} --from ${from} --to ${to} INPUT_FILE ${WORK_DIR}/tone
        OUTPUT_FILE ${WORK_DIR}/ours COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${SOX} -D -r ${from} -b 16 -c 1 -e signed -t raw ${WORK_DIR}/tone -r ${to} -t raw
        ${WORK_DIR}/theirs rate -v COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# In the pass band a tone keeps its level to a hundredth of a decibel, and the noise is that of 16 bits.
foreach(case "44100 48000 997" "44100 48000 18000" "48000 44100 19000" "8000 44100 3500" "44100 8000 1000"
        "48000 16000 7000" "22050 192000 9500" "96000 11025 4900" "32000 32000 440")
    string(REPLACE " " ";" case ${case})
    list(GET case 0 from)
    list(GET case 1 to)
    list(GET case 2 frequency)
    make_tone(${from} ${frequency})
    resample(${from} ${to})
    measure(${WORK_DIR}/ours ${to} ${frequency})
    set(our_level ${level})
    set(our_ratio ${ratio})
    measure(${WORK_DIR}/theirs ${to} ${frequency})
    message(STATUS "${from} to ${to}, ${frequency} Hz: ${our_level} mdB, ${our_ratio} dB; sox ${level} mdB, ${ratio} dB")
    if(our_level LESS -1010 OR our_level GREATER -990)
        message(SEND_ERROR "${from} to ${to}: ${frequency} Hz have ${our_level} thousandths of a dB, not -1000")
    endif()
    math(EXPR least "${ratio} - 5")
    if(our_ratio LESS 90 OR our_ratio LESS least)
        message(SEND_ERROR "${from} to ${to}: ${frequency} Hz are ${our_ratio} dB above the rest, sox's ${ratio} dB")
    endif()
    # As many outputs as fit the time of the input.
    file(SIZE ${WORK_DIR}/tone given)
    file(SIZE ${WORK_DIR}/ours written)
    math(EXPR expected "(${given} / 2 * ${to} + ${from} - 1) / ${from} * 2")
    if(NOT written EQUAL expected)
        message(SEND_ERROR "${from} to ${to}: ${written} bytes, not ${expected}")
    endif()
endforeach()

# In the stop band nothing is left of it.
foreach(case "48000 32000 16100" "44100 22050 12000" "48000 8000 20000")
    string(REPLACE " " ";" case ${case})
    list(GET case 0 from)
    list(GET case 1 to)
    list(GET case 2 frequency)
    make_tone(${from} ${frequency})
    resample(${from} ${to})
    measure(${WORK_DIR}/ours ${to} 440)
    message(STATUS "${from} to ${to}, ${frequency} Hz: ${rest} dB are left")
    if(rest GREATER -90)
        message(SEND_ERROR "${from} to ${to}: of ${frequency} Hz ${rest} dB are left")
    endif()
endforeach()

function(expect_refusal reason input)
    execute_process(COMMAND ${RESAMPLE} ${ARGN} INPUT_FILE ${input} RESULT_VARIABLE status ERROR_VARIABLE message
        OUTPUT_FILE ${WORK_DIR}/refused)
    if(NOT status EQUAL 1 OR NOT message MATCHES "^resample: ${reason}")
        message(SEND_ERROR "resample ${ARGN} <${input}: status ${status}, message ${message}")
    endif()
endfunction()

file(WRITE ${WORK_DIR}/empty "")
file(WRITE ${WORK_DIR}/odd "abc")
execute_process(COMMAND ${RESAMPLE} --from 8000 --to 16000 INPUT_FILE ${WORK_DIR}/empty OUTPUT_FILE ${WORK_DIR}/none
    COMMAND_ERROR_IS_FATAL ANY)
file(SIZE ${WORK_DIR}/none written)
if(NOT written EQUAL 0)
    message(SEND_ERROR "resample of nothing: ${written} bytes")
endif()
execute_process(COMMAND ${RESAMPLE} --help OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(NOT output MATCHES "^usage: resample .*--from HZ.*--to HZ")
    message(SEND_ERROR "resample --help: ${output}")
endif()
expect_refusal("input: not 16-bit PCM: its last sample is cut in two" ${WORK_DIR}/odd --from 8000 --to 16000)
expect_refusal("input: Is a directory" ${WORK_DIR} --from 8000 --to 16000)
foreach(rate 0 -1 8k 1000001 1.5)
    expect_refusal("--to: a whole number from 1 to 1000000 is wanted" ${WORK_DIR}/empty --to ${rate} --from 8000)
endforeach()
expect_refusal("the rates: both are wanted" ${WORK_DIR}/empty --to 8000)
expect_refusal("the rates: their ratio is not a usual one" ${WORK_DIR}/empty --from 999999 --to 1000000)
expect_refusal("--loud: no such option" ${WORK_DIR}/empty --loud 1)
expect_refusal("--from: a value is missing" ${WORK_DIR}/empty --from)
execute_process(COMMAND ${RESAMPLE} --from 44100 --to 48000 INPUT_FILE ${WORK_DIR}/tone OUTPUT_FILE /dev/full
    RESULT_VARIABLE status ERROR_VARIABLE message)
if(NOT status EQUAL 1 OR NOT message MATCHES "^resample: output: No space left on device")
    message(SEND_ERROR "resample >/dev/full: status ${status}, message ${message}")
endif()
