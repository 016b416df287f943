# Measures the equalizer by tones that sox makes: the levels that come out are those of the analog filters that the bands
# stand for, at the frequencies that the bilinear transform makes of theirs; and tries what is to be refused.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${EQUALIZER})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)
set(raw -b 16 -c 1 -e signed -t raw)

function(equalize input output)
    execute_process(COMMAND ${EQUALIZER} ${ARGN} INPUT_FILE ${input} OUTPUT_FILE ${output}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# `levels` are pairs of a frequency and the gain that it is to have; within a hundredth of a decibel, where 16 bits leave
# that much of a tone.
function(expect_response rate levels)
    while(levels)
        list(POP_FRONT levels frequency expected)
        execute_process(COMMAND ${SOX} -D -n -r ${rate} ${raw} ${WORK_DIR}/tone synth 1 sine ${frequency} gain -15
            COMMAND_ERROR_IS_FATAL ANY)
        equalize(${WORK_DIR}/tone ${WORK_DIR}/out --rate ${rate} ${ARGN})
        measure(${WORK_DIR}/tone ${rate} ${frequency})
        set(before ${level})
        measure(${WORK_DIR}/out ${rate} ${frequency})
        math(EXPR gain "${level} - ${before}")
        math(EXPR error "${gain} - (${expected})")
        message(STATUS "${frequency} Hz: ${gain} thousandths of a dB, expected ${expected}")
        if(error GREATER 10 OR error LESS -10)
            message(SEND_ERROR "equalizer ${ARGN}: ${frequency} Hz get ${gain} thousandths of a dB, not ${expected}")
        endif()
    endwhile()
endfunction()

expect_response(48000 "50;5968;100;5597;200;2886;500;-852;900;-7480;1000;-8995;1100;-7719;2000;-1094;5000;-2106;12000;-3957"
    low:200:6 peak:1000:-9:2 high:5000:-4)
expect_response(44100 "40;-22088;100;-9387;400;-8988;2800;3181;3000;6532;6000;-3407;8000;-4283;11000;-11622"
    --gain -6 lowcut:100 peak:3000:12:4 highcut:8000:1.2 peak:400:-3)
# One band, and a gain alone.
expect_response(8000 "1000;-12000;2000;-12000" --gain -12 peak:1000:0)

# What it lists is what it does.
execute_process(COMMAND ${EQUALIZER} --response --rate 48000 low:200:6 peak:1000:-9:2 high:5000:-4
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "\n" lines "${output}")
list(LENGTH lines count)
if(NOT count EQUAL 241 OR NOT output MATCHES "^ *10\\.00 +(5\\.99[0-9]|6\\.00[0-9])\n" OR
   NOT output MATCHES " 24000\\.00 +-(3\\.99[0-9]|4\\.00[0-9])\n$")
    message(SEND_ERROR "equalizer --response: ${output}")
endif()

# Where the input is cut into blocks changes nothing, and each sample gives one; a pipe may end at any time.
execute_process(COMMAND ${SOX} -D -R -n -r 8000 ${raw} ${WORK_DIR}/noise synth 4 pinknoise gain -6
    COMMAND_ERROR_IS_FATAL ANY)
set(bands --rate 8000 low:200:-6 peak:1000:4:2 high:3000:2)
equalize(${WORK_DIR}/noise ${WORK_DIR}/whole ${bands})
execute_process(COMMAND head -c 20002 ${WORK_DIR}/noise COMMAND ${EQUALIZER} ${bands}
    OUTPUT_FILE ${WORK_DIR}/beginning COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND head -c 20002 ${WORK_DIR}/whole OUTPUT_FILE ${WORK_DIR}/head COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/beginning ${WORK_DIR}/head
    RESULT_VARIABLE different)
file(SIZE ${WORK_DIR}/noise given)
file(SIZE ${WORK_DIR}/whole written)
if(different OR NOT written EQUAL given)
    message(SEND_ERROR "equalizer: ${given} bytes became ${written}, or their beginning differs")
endif()

expect_refusal("arguments: some are missing" ${WORK_DIR}/noise)
foreach(band loud:200:6 lowest:200:6 lo:200:6 200:6 :200:6 peak)
    expect_refusal("${band}: not a band like" ${WORK_DIR}/noise ${band})
endforeach()
foreach(band low: low:a:6 low:0:6 low:-5:6 peak:inf:3 lowcut:1e999)
    expect_refusal("${band}: a frequency above 0 is wanted" ${WORK_DIR}/noise ${band})
endforeach()
foreach(band low:200 low:200: low:200:61 peak:200:nan high:200:x)
    expect_refusal("${band}: a gain between -60 and 60 dB is wanted" ${WORK_DIR}/noise ${band})
endforeach()
foreach(band low:200:3:1 high:200:3:1 peak:200:3:0 peak:200:3:q lowcut:200:1001)
    expect_refusal("${band}: a quality between" ${WORK_DIR}/noise ${band})
endforeach()
expect_refusal("peak:200:3:2:1: there is more than a band in it" ${WORK_DIR}/noise peak:200:3:2:1)
expect_refusal("high: a band lies above half the rate" ${WORK_DIR}/noise --rate 8000 high:4000:1)
expect_refusal("--gain: a number from -120 to 60 is wanted" ${WORK_DIR}/noise --gain loud low:200:3)
foreach(i RANGE 32)
    list(APPEND many low:200:0)
endforeach()
expect_refusal("low:200:0: one argument too many" ${WORK_DIR}/noise ${many})

expect_no_space(${WORK_DIR}/noise ${bands})
