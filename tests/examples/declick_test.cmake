# Runs the example that repairs clicks over a tone and over speech with clicks in known places, and over what it has to
# refuse.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${DECLICK})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)
set(format -t raw -r 44100 -e signed -b 16 -c 1)

function(declick input output)
    execute_process(COMMAND ${DECLICK} ${ARGN} INPUT_FILE ${WORK_DIR}/${input} OUTPUT_FILE ${WORK_DIR}/${output}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The root of the mean square of a difference, as a fraction of full scale times 10^6.
function(difference first second result)
    sox(-m -v 1 ${format} ${WORK_DIR}/${first} -v -1 ${format} ${WORK_DIR}/${second} ${format} ${WORK_DIR}/difference)
    execute_process(COMMAND od -An -v -td2 -w2 ${WORK_DIR}/difference
        COMMAND awk "{ sum += $1 * $1 } END { printf \"%.0f\", 1e6 * sqrt(sum / NR) / 32768 }" OUTPUT_VARIABLE rms
        COMMAND_ERROR_IS_FATAL ANY)
    set(${result} ${rms} PARENT_SCOPE)
endfunction()

# add_clicks(<sound> <clicked sound> <count>): one sample at 700, three behind 16382, where the second block of the
# program begins, and so on every 19863 samples.
function(add_clicks sound clicked count)
    sox(-r 44100 -n ${format} ${WORK_DIR}/one synth 1s square 10000 vol 0.5 pad 700s 0)
    sox(-r 44100 -n ${format} ${WORK_DIR}/three synth 3s square 2000 vol 0.3 pad 15682s 3477s)
    execute_process(COMMAND cat ${WORK_DIR}/one ${WORK_DIR}/three OUTPUT_FILE ${WORK_DIR}/pair)
    sox(${format} ${WORK_DIR}/pair ${format} ${WORK_DIR}/clicks repeat ${count})
    sox(-m -v 1 ${format} ${WORK_DIR}/${sound} -v 1 ${format} ${WORK_DIR}/clicks ${format} ${WORK_DIR}/${clicked})
endfunction()

# A tone of 3 seconds: all clicks are found, to the sample, and nothing else.
sox(-r 44100 -n ${format} ${WORK_DIR}/tone synth 139041s sine 440 vol 0.3)
add_clicks(tone clicked_tone 6)
declick(clicked_tone repaired_tone --clicks ${WORK_DIR}/list)
set(expected "")
foreach(turn RANGE 6)
    math(EXPR one "700 + 19863 * ${turn}")
    math(EXPR three "16383 + 19863 * ${turn}")
    string(APPEND expected "${one} 1\n${three} 3\n")
endforeach()
file(READ ${WORK_DIR}/list list)
if(NOT list STREQUAL expected)
    message(SEND_ERROR "clicks in the tone:\n${list}\nand not\n${expected}")
endif()
difference(clicked_tone tone before)
difference(repaired_tone tone after)
math(EXPR limit "${before} / 8")
if(before LESS 5000 OR after GREATER limit)
    message(SEND_ERROR "the tone: ${before} before, ${after} after")
endif()
declick(tone same)
difference(same tone after)
if(NOT after EQUAL 0)
    message(SEND_ERROR "a tone without clicks was changed by ${after}")
endif()

# The same through a pipe that comes in small pieces.
execute_process(COMMAND cat ${WORK_DIR}/clicked_tone COMMAND dd bs=777 status=none COMMAND ${DECLICK}
    OUTPUT_FILE ${WORK_DIR}/piped COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/piped ${WORK_DIR}/repaired_tone
    COMMAND_ERROR_IS_FATAL ANY)

# Speech: what clicks leave is less than half as much, and hardly anything else is touched.
set(recording /usr/share/sounds/alsa/Front_Center.wav)
if(EXISTS ${recording})
    sox(${recording} ${format} ${WORK_DIR}/speech norm -4)
    add_clicks(speech clicked_speech 2)
    declick(clicked_speech repaired_speech)
    declick(speech unclicked)
    difference(clicked_speech speech before)
    difference(repaired_speech speech after)
    difference(unclicked speech harm)
    math(EXPR limit "${before} / 2")
    if(after GREATER limit OR harm GREATER 1000)
        message(SEND_ERROR "speech: ${before} before, ${after} after, ${harm} without clicks")
    endif()
else()
    message("No recording of speech")
endif()

# The shortest recordings.
file(WRITE ${WORK_DIR}/single "ab")
file(WRITE ${WORK_DIR}/double "abcd")
foreach(short single double)
    declick(${short} result)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/${short} ${WORK_DIR}/result
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(WRITE ${WORK_DIR}/odd "abc")
expect_refusal("input: not 16-bit PCM" ${WORK_DIR}/odd)
expect_refusal("--longest: a whole number from 1 to 500 is wanted" ${WORK_DIR}/single --longest 0)
expect_refusal("--threshold: a number from 1 to 1000000 is wanted" ${WORK_DIR}/single --threshold 0.5)
expect_refusal("${WORK_DIR}/missing/list: No such file" ${WORK_DIR}/single --clicks ${WORK_DIR}/missing/list)
expect_no_space(${WORK_DIR}/clicked_tone)
