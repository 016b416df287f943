# Runs the decoder of dialled numbers over what sox dials, over speech, and over what it has to refuse.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${DTMF})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)
set(hertz_of_rows 697 770 852 941)
set(hertz_of_columns 1209 1336 1477 1633)
set(keypad 123A456B789C*0\#D)

# Dials: tones of so many milliseconds with pauses, row and column at their levels, and white noise over all of it.
function(dial path keys)
    cmake_parse_arguments(ARG "" "RATE;ROW;COLUMN;NOISE;MILLISECONDS;PAUSE" "" ${ARGN})
    set(format -t raw -r ${ARG_RATE} -e signed -b 16)
    execute_process(COMMAND ${SOX} -n ${format} -c 1 ${WORK_DIR}/pause trim 0 0.0${ARG_PAUSE} COMMAND_ERROR_IS_FATAL ANY)
    set(parts ${format} -c 1 ${WORK_DIR}/pause)
    string(LENGTH ${keys} count)
    math(EXPR last "${count} - 1")
    foreach(i RANGE ${last})
        string(SUBSTRING ${keys} ${i} 1 key)
        string(FIND ${keypad} "${key}" place)
        math(EXPR row "${place} / 4")
        math(EXPR column "${place} % 4")
        list(GET hertz_of_rows ${row} low)
        list(GET hertz_of_columns ${column} high)
        set(tone ${WORK_DIR}/tone-${place})
        execute_process(
            COMMAND ${SOX} -n ${format} -c 2 - synth 0.0${ARG_MILLISECONDS} sine ${low} sine ${high}
            COMMAND ${SOX} ${format} -c 2 - ${format} -c 1 ${tone} remix -m 1v${ARG_ROW},2v${ARG_COLUMN}
            COMMAND_ERROR_IS_FATAL ANY)
        list(APPEND parts ${format} -c 1 ${tone} ${format} -c 1 ${WORK_DIR}/pause)
    endforeach()
    execute_process(COMMAND ${SOX} ${parts} ${format} -c 1 ${WORK_DIR}/clean COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${SOX} -R -n ${format} -c 1 ${WORK_DIR}/noise synth 3 whitenoise vol ${ARG_NOISE}
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${SOX} -m -v 1 ${format} -c 1 ${WORK_DIR}/clean -v 1 ${format} -c 1 ${WORK_DIR}/noise
        ${format} -c 1 ${path} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(expect_keys keys path)
    execute_process(COMMAND ${DTMF} ${ARGN} INPUT_FILE ${path} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output STREQUAL "${keys}\n")
        message(SEND_ERROR "dtmf ${ARGN}: ${output} in place of ${keys}")
    endif()
endfunction()

if(SOX)
    # Every key, one of them twice; loud, quiet, with levels apart, in noise, at another rate.
    set(number 0123456789ABCD*\#11)
    dial(${WORK_DIR}/number ${number} RATE 8000 ROW 0.3 COLUMN 0.3 NOISE 0 MILLISECONDS 50 PAUSE 50)
    expect_keys(${number} ${WORK_DIR}/number --levels ${WORK_DIR}/levels)
    dial(${WORK_DIR}/twisted ${number} RATE 8000 ROW 0.1 COLUMN 0.25 NOISE 0.05 MILLISECONDS 45 PAUSE 45)
    expect_keys(${number} ${WORK_DIR}/twisted)
    dial(${WORK_DIR}/noisy ${number} RATE 8000 ROW 0.2 COLUMN 0.2 NOISE 0.2 MILLISECONDS 60 PAUSE 60)
    expect_keys(${number} ${WORK_DIR}/noisy)
    dial(${WORK_DIR}/quiet ${number} RATE 8000 ROW 0.02 COLUMN 0.02 NOISE 0.005 MILLISECONDS 50 PAUSE 40)
    expect_keys(${number} ${WORK_DIR}/quiet)
    dial(${WORK_DIR}/fast ${number} RATE 44100 ROW 0.05 COLUMN 0.08 NOISE 0.01 MILLISECONDS 60 PAUSE 50)
    expect_keys(${number} ${WORK_DIR}/fast --rate 44100)
    # A row alone, and tones too far apart in level, are no keys.
    dial(${WORK_DIR}/single 5 RATE 8000 ROW 0.3 COLUMN 0 NOISE 0.001 MILLISECONDS 90 PAUSE 50)
    expect_keys("" ${WORK_DIR}/single)
    dial(${WORK_DIR}/apart 5 RATE 8000 ROW 0.4 COLUMN 0.04 NOISE 0.001 MILLISECONDS 90 PAUSE 50)
    expect_keys("" ${WORK_DIR}/apart)

    # A stream that comes in pieces, cut within samples.
    execute_process(
        COMMAND sh -c "head -c 1; sleep 0.05; head -c 1002; sleep 0.05; cat"
        COMMAND ${DTMF} INPUT_FILE ${WORK_DIR}/number OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output STREQUAL "${number}\n")
        message(SEND_ERROR "dtmf of a stream in pieces: ${output}")
    endif()
    file(STRINGS ${WORK_DIR}/levels lines REGEX "^[0-9.]+( -[0-9.]+)+ 5$")
    list(LENGTH lines count)
    if(count LESS 2)
        message(SEND_ERROR "dtmf --levels: ${count} blocks have the key 5")
    endif()

    # Speech holds many tones and no keys.
    file(GLOB recordings /usr/share/sounds/alsa/*.wav)
    if(recordings)
        execute_process(COMMAND ${SOX} ${recordings} -t raw -r 8000 -e signed -b 16 -c 1 ${WORK_DIR}/speech norm -1
            ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
        expect_keys("" ${WORK_DIR}/speech)
    endif()
endif()

file(WRITE ${WORK_DIR}/empty "")
file(WRITE ${WORK_DIR}/odd "abc")
expect_keys("" ${WORK_DIR}/empty)
expect_failure("input: not 16-bit PCM: its last sample is cut in two" ${WORK_DIR}/odd)
expect_failure("input: Is a directory" ${WORK_DIR})
expect_refusal("--rate: a number from 4000 to 192000 is wanted" ${WORK_DIR}/empty --rate 3999)
expect_refusal("--rate: a number from 4000 to 192000 is wanted" ${WORK_DIR}/empty --rate nan)
expect_refusal("--loud: no such option" ${WORK_DIR}/empty --loud 1)
expect_refusal("--rate: a value is missing" ${WORK_DIR}/empty --rate)
expect_refusal("[^ ]*missing/file: No such file" ${WORK_DIR}/empty --levels ${WORK_DIR}/missing/file)
