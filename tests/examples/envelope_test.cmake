# Runs the program that draws envelopes over a tone, whose envelope and frequency are known, and over speech.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${ENVELOPE})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)

# Every line has to pass an awk condition on $1 seconds, $2 sample, $3 envelope, $4 frequency, and there are so many.
function(expect_lines count condition input)
    execute_process(COMMAND ${ENVELOPE} ${ARGN} INPUT_FILE ${input} OUTPUT_FILE ${WORK_DIR}/lines
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(
        COMMAND awk "!(${condition}) { print \"line \" NR \": \" $0; exit }
                     END { if (NR != ${count}) print NR \" lines\" }"
        INPUT_FILE ${WORK_DIR}/lines OUTPUT_VARIABLE complaint COMMAND_ERROR_IS_FATAL ANY)
    if(complaint)
        message(SEND_ERROR "envelope ${ARGN} <${input}: ${complaint}")
    endif()
endfunction()

if(SOX)
    # The tone begins and ends at once, where no envelope can follow it; in between it is flat, also where blocks meet.
    set(format -t raw -r 8000 -e signed -b 16 -c 1)
    execute_process(COMMAND ${SOX} -n ${format} ${WORK_DIR}/tone synth 2 sine 1000 vol 0.5 COMMAND_ERROR_IS_FATAL ANY)
    set(flat "$1 < 0.05 || $1 > 1.95 || ($3 > 0.49 && $3 < 0.51 && $4 > 990 && $4 < 1010)")
    expect_lines(16000 "${flat}" ${WORK_DIR}/tone)
    expect_lines(160 "${flat}" ${WORK_DIR}/tone --step 100)
    expect_lines(16000 "$1 < 0.1 || $1 > 3.9 || ($4 > 495 && $4 < 505)" ${WORK_DIR}/tone --rate 4000)
    # A sum of two tones beats between 0.4 and 0.2.
    execute_process(COMMAND ${SOX} -n ${format} ${WORK_DIR}/other synth 2 sine 1010 vol 0.5 COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${SOX} -m -v 0.6 ${format} ${WORK_DIR}/tone -v 0.2 ${format} ${WORK_DIR}/other
        ${format} ${WORK_DIR}/beats COMMAND_ERROR_IS_FATAL ANY)
    set(beat "sqrt(0.1 + 0.06 * cos(62.8318530718 * $1))")
    expect_lines(16000 "$1 < 0.05 || $1 > 1.95 || ($3 - ${beat} < 0.01 && $3 - ${beat} > -0.01)" ${WORK_DIR}/beats)

    # No sample is larger than the envelope at its place.
    if(EXISTS /usr/share/sounds/alsa/Front_Center.wav)
        execute_process(COMMAND ${SOX} /usr/share/sounds/alsa/Front_Center.wav ${format} ${WORK_DIR}/speech norm -1
            ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
        file(SIZE ${WORK_DIR}/speech bytes)
        math(EXPR samples "${bytes} / 2")
        expect_lines(${samples} "$2 <= $3 + 0.0001 && -$2 <= $3 + 0.0001 && $4 >= -4000 && $4 <= 4000"
            ${WORK_DIR}/speech)
    endif()
endif()

# Silence, and lengths around the program's blocks.
foreach(samples 0 1 511 512 3071 3072 3073 3583 3584 3585 6144 9999)
    math(EXPR bytes "2 * ${samples}")
    execute_process(COMMAND head -c ${bytes} /dev/zero OUTPUT_FILE ${WORK_DIR}/silence COMMAND_ERROR_IS_FATAL ANY)
    expect_lines(${samples} "$2 == 0 && $3 == 0 && $4 == 0" ${WORK_DIR}/silence)
endforeach()

file(WRITE ${WORK_DIR}/odd "abc")
expect_refusal("input: not 16-bit PCM: its last sample is cut in two" ${WORK_DIR}/odd)
expect_refusal("input: Is a directory" ${WORK_DIR})
expect_refusal("--rate: a number from 1 to 1000000000 is wanted" ${WORK_DIR}/odd --rate 0)
expect_refusal("--step: a whole number from 1 to 100000 is wanted" ${WORK_DIR}/odd --step many)
expect_refusal("--loud: no such option" ${WORK_DIR}/odd --loud 1)
expect_refusal("--step: a value is missing" ${WORK_DIR}/odd --step)
expect_no_space(${WORK_DIR}/silence)
