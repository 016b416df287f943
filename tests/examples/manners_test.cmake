# Asks every example program for help and for what it does not know; gives sound files, silence and patience to those
# that take recordings.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)
file(GLOB programs RELATIVE ${EXAMPLES_SOURCES} ${EXAMPLES_SOURCES}/*.c)
file(WRITE ${WORK_DIR}/empty "")

foreach(source IN LISTS programs)
    cmake_path(GET source STEM program)
    set(command ${EXAMPLES_DIR}/${program})
    foreach(help -h --help)
        execute_process(COMMAND ${command} ${help} INPUT_FILE ${WORK_DIR}/empty RESULT_VARIABLE status
            OUTPUT_VARIABLE output ERROR_VARIABLE message)
        if(NOT status EQUAL 0 OR NOT output MATCHES "^usage: ${program} .*\n  -h, --help  +shows this text\n$" OR NOT message STREQUAL "")
            message(SEND_ERROR "${program} ${help}: status ${status}, output ${output}, message ${message}")
        endif()
    endforeach()
    foreach(unknown --loud -l)
        execute_process(COMMAND ${command} ${unknown} INPUT_FILE ${WORK_DIR}/empty RESULT_VARIABLE status
            OUTPUT_VARIABLE output ERROR_VARIABLE message)
        if(NOT status EQUAL 1 OR NOT message STREQUAL "${program}: ${unknown}: no such option; try --help\n" OR
           NOT output STREQUAL "")
            message(SEND_ERROR "${program} ${unknown}: status ${status}, output ${output}, message ${message}")
        endif()
    endforeach()
endforeach()

if(NOT SOX)
    message("No sox: sound files are left out")
    return()
endif()
set(raw -t raw -r 8000 -e signed -b 16 -c 1)
function(run program input output)
    execute_process(COMMAND ${EXAMPLES_DIR}/${program} ${ARGN} INPUT_FILE ${input} OUTPUT_FILE ${output}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Silence is told, not listed as tones of no level.
sox(-n ${raw} ${WORK_DIR}/silence trim 0 6)
foreach(program dtmf echo hum tones)
    set(PROGRAM ${EXAMPLES_DIR}/${program})
    expect_failure("input: silence\n$" ${WORK_DIR}/silence --rate 8000)
endforeach()

sox(-n ${raw} ${WORK_DIR}/speech.raw synth 3 sine 440 sine 1000 gain -6 remix -)
sox(${raw} ${WORK_DIR}/speech.raw ${WORK_DIR}/speech.wav)
sox(${raw} ${WORK_DIR}/speech.raw -c 2 ${WORK_DIR}/stereo.wav)
set(PROGRAM ${EXAMPLES_DIR}/telephone)
if(NOT SNDFILE)
    expect_refusal("input: a sound file, and this program was built without libsndfile" ${WORK_DIR}/speech.wav)
    return()
endif()

# A sound file tells its rate, through a pipe too, and gives what the same samples give without a header.
sox(${WORK_DIR}/speech.wav ${WORK_DIR}/speech.flac)
run(telephone ${WORK_DIR}/speech.raw ${WORK_DIR}/filtered.raw --rate 8000)
foreach(format wav flac)
    run(telephone ${WORK_DIR}/speech.${format} ${WORK_DIR}/filtered.${format}.wav)
    execute_process(COMMAND cat ${WORK_DIR}/speech.${format} COMMAND ${EXAMPLES_DIR}/telephone
        COMMAND cat OUTPUT_FILE ${WORK_DIR}/piped.${format}.wav COMMAND_ERROR_IS_FATAL ANY)
    sox(${WORK_DIR}/filtered.${format}.wav ${raw} ${WORK_DIR}/filtered.${format}.raw)
    expect_same(${WORK_DIR}/filtered.raw ${WORK_DIR}/filtered.${format}.raw)
    expect_same(${WORK_DIR}/filtered.${format}.wav ${WORK_DIR}/piped.${format}.wav)
endforeach()
run(tones ${WORK_DIR}/speech.raw ${WORK_DIR}/tones.raw --rate 8000)
run(tones ${WORK_DIR}/speech.wav ${WORK_DIR}/tones.wav)
expect_same(${WORK_DIR}/tones.raw ${WORK_DIR}/tones.wav)
run(resample ${WORK_DIR}/speech.wav ${WORK_DIR}/faster.wav --to 16000)
execute_process(COMMAND ${SOX} --i -r ${WORK_DIR}/faster.wav OUTPUT_VARIABLE rate COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${EXAMPLES_DIR}/mix ${WORK_DIR}/speech.wav ${WORK_DIR}/speech.raw ${WORK_DIR}/mixed.wav 1
    RESULT_VARIABLE mixed ERROR_VARIABLE message)
if(NOT rate EQUAL 16000 OR NOT mixed EQUAL 1 OR NOT message MATCHES "speech.raw: at another rate")
    message(SEND_ERROR "rate ${rate}, mix: ${mixed}, ${message}")
endif()
execute_process(COMMAND ${EXAMPLES_DIR}/mix ${WORK_DIR}/speech.wav ${WORK_DIR}/speech.flac ${WORK_DIR}/mixed.wav 1
    COMMAND_ERROR_IS_FATAL ANY)
sox(${WORK_DIR}/mixed.wav ${raw} ${WORK_DIR}/mixed.raw)
expect_same(${WORK_DIR}/mixed.raw ${WORK_DIR}/speech.raw)
expect_refusal("input: 2 channels, and one is wanted" ${WORK_DIR}/stereo.wav)
execute_process(COMMAND head -c 40 ${WORK_DIR}/speech.wav OUTPUT_FILE ${WORK_DIR}/cut.wav)
expect_refusal("input: " ${WORK_DIR}/cut.wav)

# Long work shows on a terminal how far it is, and nothing on a pipe.
find_program(script script)
if(script)
    set(slow "(cat ${WORK_DIR}/speech.raw; sleep 3; cat ${WORK_DIR}/speech.raw; sleep 1; cat ${WORK_DIR}/speech.raw)")
    execute_process(COMMAND ${script} -qec "${slow} | ${EXAMPLES_DIR}/telephone --rate 8000 >/dev/null" /dev/null
        OUTPUT_VARIABLE terminal INPUT_FILE /dev/null)
    execute_process(COMMAND sh -c "${slow}" COMMAND ${EXAMPLES_DIR}/telephone --rate 8000 OUTPUT_QUIET
        ERROR_VARIABLE pipe)
    if(NOT terminal MATCHES "telephone: [3-9] seconds of sound" OR NOT pipe STREQUAL "")
        message(SEND_ERROR "progress on a terminal: ${terminal}; on a pipe: ${pipe}")
    endif()
endif()
