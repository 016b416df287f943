# Runs the removal of interference over speech in noise that came through a room, over signals whose remainder is known,
# and over what it has to refuse.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${CANCEL})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)

set(raw -t raw -r 8000 -e signed -b 16 -c 1)
function(cancel interference recording cleaned)
    execute_process(COMMAND ${CANCEL} ${ARGN} ${WORK_DIR}/${interference} INPUT_FILE ${WORK_DIR}/${recording}
        OUTPUT_FILE ${WORK_DIR}/${cleaned} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# rms_of(<variable> <sox input>...): of what comes after four seconds
function(rms_of variable)
    execute_process(COMMAND ${SOX} -V1 -R -D ${ARGN} -n trim 4 stat ERROR_VARIABLE statistics)
    if(NOT statistics MATCHES "RMS     amplitude: *([0-9.]+)")
        message(FATAL_ERROR "sox ${ARGN}: ${statistics}")
    endif()
    set(${variable} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()

file(WRITE ${WORK_DIR}/empty "")
file(WRITE ${WORK_DIR}/odd "abc")
foreach(samples 0 1 255 256 257 9999)
    math(EXPR bytes "2 * ${samples}")
    execute_process(COMMAND head -c ${bytes} ${CANCEL} OUTPUT_FILE ${WORK_DIR}/anything COMMAND_ERROR_IS_FATAL ANY)
    # Beside silence, and beside what ends at once, everything stays.
    execute_process(COMMAND head -c ${bytes} /dev/zero OUTPUT_FILE ${WORK_DIR}/silence COMMAND_ERROR_IS_FATAL ANY)
    foreach(nothing silence empty)
        cancel(${nothing} anything same)
        file(SHA256 ${WORK_DIR}/anything expected)
        file(SHA256 ${WORK_DIR}/same actual)
        if(NOT actual STREQUAL expected)
            message(SEND_ERROR "${samples} samples changed beside ${nothing}")
        endif()
    endforeach()
endforeach()

set(something ${WORK_DIR}/anything)
expect_refusal("input: not 16-bit PCM: its last sample is cut in two|standard input" ${WORK_DIR}/odd ${something})
expect_refusal("" ${something})
expect_refusal(".*missing: No such file" ${something} ${WORK_DIR}/missing)
expect_refusal("--taps" ${something} --taps 0 ${something})
expect_refusal("--taps" ${something} --taps 4097 ${something})
expect_refusal("--step" ${something} --step 0 ${something})
expect_refusal("--step" ${something} --step 2 ${something})
expect_refusal(".*no/drawing: No such file" ${something} --draw ${WORK_DIR}/no/drawing ${something})
expect_failure("/dev/full: No space left" ${something} --draw /dev/full ${something})
expect_no_space(${something} ${something})

if(NOT SOX)
    message("No sox: sounds are left out")
    return()
endif()

# Speech that is recorded, or a melody where there is none.
file(GLOB recordings /usr/share/sounds/alsa/*.wav)
if(recordings)
    sox(${recordings} ${raw} ${WORK_DIR}/speech remix 1 norm -16)
else()
    sox(-n ${raw} ${WORK_DIR}/speech synth 12 pluck A3 tremolo 2 90 vol 0.15)
endif()

# Noise that comes into the recording by three ways, of which the last takes 13 ms, all of them through a loudspeaker
# that has no bass.
sox(-n ${raw} ${WORK_DIR}/noise synth 30 pinknoise vol 0.7)
sox(${raw} ${WORK_DIR}/noise ${raw} ${WORK_DIR}/heard echo 0.6 0.5 6 0.5 13 0.3 highpass 150 gain 8)
sox(-m -v 1 ${raw} ${WORK_DIR}/speech -v 1 ${raw} ${WORK_DIR}/heard ${raw} ${WORK_DIR}/mixed)
file(SIZE ${WORK_DIR}/speech bytes)
foreach(name heard mixed)
    execute_process(COMMAND head -c ${bytes} ${WORK_DIR}/${name} OUTPUT_FILE ${WORK_DIR}/${name}.cut
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
rms_of(before ${raw} ${WORK_DIR}/heard.cut)

# What is left beside the speech, in thousandths of the interference.
function(expect_remainder most)
    cancel(noise mixed.cut cleaned ${ARGN})
    rms_of(left -m -v 1 ${raw} ${WORK_DIR}/cleaned -v -1 ${raw} ${WORK_DIR}/speech)
    execute_process(COMMAND awk "BEGIN { print int(1000 * ${left} / ${before}) }" OUTPUT_VARIABLE thousandths)
    message("cancel ${ARGN}: ${left} left of ${before}")
    if(thousandths GREATER ${most})
        message(SEND_ERROR "cancel ${ARGN}: ${left} is left of ${before}")
    endif()
endfunction()
expect_remainder(130 --draw ${WORK_DIR}/drawing)
expect_remainder(130 --taps 128 --step 0.05)
expect_remainder(450 --taps 64) # the way of 13 ms is too long for it

file(STRINGS ${WORK_DIR}/drawing lines REGEX "^[0-9.]+ -[0-9.]+ -[0-9.]+$")
list(LENGTH lines count)
math(EXPR expected "${bytes} / 2 / 400")
if(NOT count EQUAL expected)
    message(SEND_ERROR "the drawing has ${count} levels, not ${expected}")
endif()
find_program(GNUPLOT gnuplot)
if(GNUPLOT)
    execute_process(COMMAND ${GNUPLOT} -e "set terminal svg; set output '${WORK_DIR}/drawing.svg'" ${WORK_DIR}/drawing
        COMMAND_ERROR_IS_FATAL ANY ERROR_VARIABLE message)
    file(READ ${WORK_DIR}/drawing.svg svg)
    if(NOT svg MATCHES "cleaned.*</svg>")
        message(SEND_ERROR "gnuplot: ${message}")
    endif()
endif()

# What is known altogether vanishes altogether.
sox(-n ${raw} ${WORK_DIR}/white synth 6 whitenoise vol 0.5)
cancel(white white nothing --taps 16 --step 1)
rms_of(left ${raw} ${WORK_DIR}/nothing)
if(left GREATER 0.0001)
    message(SEND_ERROR "${left} is left of noise beside itself")
endif()
