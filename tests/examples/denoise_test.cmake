# Takes white noise out of spoken recordings, and out of nothing; measures what is gained.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${DENOISE})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)
set(raw -t raw -r 16000 -e signed -b 16 -c 1)

# Adds noise of some volume to speech, and takes it out again: what is left has to be so many dB further below than
# before, at least.
function(expect_gain volume least)
    execute_process(COMMAND ${SOX} -D -R -r 16000 -n ${raw} ${WORK_DIR}/noise synth ${samples}s whitenoise vol ${volume}
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${SOX} -D -m -v 1 ${raw} ${WORK_DIR}/clean -v 1 ${raw} ${WORK_DIR}/noise
        ${raw} ${WORK_DIR}/noisy COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${DENOISE} --clean ${WORK_DIR}/clean --table ${WORK_DIR}/table ${ARGN}
        INPUT_FILE ${WORK_DIR}/noisy OUTPUT_FILE ${WORK_DIR}/cleaned ERROR_VARIABLE message COMMAND_ERROR_IS_FATAL ANY)
    if(NOT message MATCHES "^signal to noise: ([0-9]+)\\.([0-9]) dB before, ([0-9]+)\\.([0-9]) dB after\n$")
        message(SEND_ERROR "denoise ${ARGN}, noise ${volume}: ${message}")
    endif()
    math(EXPR gain "${CMAKE_MATCH_3}${CMAKE_MATCH_4} - ${CMAKE_MATCH_1}${CMAKE_MATCH_2}")
    if(gain LESS least)
        message(SEND_ERROR "denoise ${ARGN}, noise ${volume}: gains ${gain} tenths of a dB, not ${least}")
    endif()
    file(SIZE ${WORK_DIR}/cleaned bytes)
    math(EXPR wanted "2 * ${samples}")
    if(NOT bytes EQUAL wanted)
        message(SEND_ERROR "denoise ${ARGN}: ${bytes} bytes of ${wanted}")
    endif()
endfunction()

set(recordings /usr/share/sounds/alsa/Front_Center.wav /usr/share/sounds/alsa/Front_Left.wav
    /usr/share/sounds/alsa/Rear_Right.wav)
if(SOX AND EXISTS /usr/share/sounds/alsa/Front_Center.wav)
    execute_process(COMMAND ${SOX} -D -R ${recordings} ${raw} ${WORK_DIR}/clean gain -3 ERROR_QUIET
        COMMAND_ERROR_IS_FATAL ANY)
    file(SIZE ${WORK_DIR}/clean bytes)
    math(EXPR samples "${bytes} / 2")
    expect_gain(0.1 70)
    expect_gain(0.03 45)
    expect_gain(0.01 20)
    expect_gain(0.03 30 --levels 2)
    expect_gain(0.03 40 --levels 10 --strength 1)
    # Without a threshold the recording comes back as it was, in its place: the filters' taps are rounded at most.
    foreach(levels 1 2 5 10)
        expect_gain(0.03 0 --strength 0 --levels ${levels})
        execute_process(COMMAND ${DENOISE} --strength 0 --levels ${levels} --clean ${WORK_DIR}/noisy
            INPUT_FILE ${WORK_DIR}/noisy OUTPUT_FILE ${WORK_DIR}/same ERROR_VARIABLE message)
        if(NOT message MATCHES ", ([89][0-9]|[1-9][0-9][0-9])\\.[0-9] dB after")
            message(SEND_ERROR "${levels} levels back and forth: ${message}")
        endif()
    endforeach()
    file(WRITE ${WORK_DIR}/short "ab")
    # A line for each sample: seconds, before, after.
    file(STRINGS ${WORK_DIR}/table lines)
    list(LENGTH lines count)
    list(GET lines 16000 second)
    if(NOT count EQUAL samples OR NOT second MATCHES "^1\\.000000 -?0\\.[0-9]+ -?0\\.[0-9]+$")
        message(SEND_ERROR "a table of ${count} lines for ${samples} samples; second 1: ${second}")
    endif()
    expect_failure("${WORK_DIR}/short: not as long as the input" ${WORK_DIR}/noisy --clean ${WORK_DIR}/short)
endif()

# Silence stays silent, at lengths around those of the bands.
foreach(samples 1 2 31 32 33 1000)
    math(EXPR bytes "2 * ${samples}")
    execute_process(COMMAND head -c ${bytes} /dev/zero OUTPUT_FILE ${WORK_DIR}/silence COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${DENOISE} INPUT_FILE ${WORK_DIR}/silence OUTPUT_FILE ${WORK_DIR}/still
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK_DIR}/silence ${WORK_DIR}/still
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(WRITE ${WORK_DIR}/odd "abc")
expect_refusal("input: not 16-bit PCM" ${WORK_DIR}/odd)
expect_refusal("--levels: " ${WORK_DIR}/silence --levels 11)
expect_refusal("--strength: " ${WORK_DIR}/silence --strength -1)
expect_failure("${WORK_DIR}/missing/file: " ${WORK_DIR}/silence --table ${WORK_DIR}/missing/file)
