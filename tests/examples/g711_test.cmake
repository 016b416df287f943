# Sends speech through the coder and back between processes of sox, and through sox's own coder for comparison.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${G711})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)

set(raw -t raw -r 8000 -e signed -b 16 -c 1)
set(a-law -t raw -r 8000 -e a-law -b 8 -c 1)
set(mu-law -t raw -r 8000 -e mu-law -b 8 -c 1)

function(g711 input output)
    execute_process(COMMAND ${G711} ${ARGN} INPUT_FILE ${WORK_DIR}/${input} OUTPUT_FILE ${WORK_DIR}/${output}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The level of a sound, or of the difference between two, in dB of full scale: the rms amplitude that sox finds.
function(level_of_difference first second result)
    execute_process(COMMAND ${SOX} -D -V1 -m -v 1 ${raw} ${WORK_DIR}/${first} -v -1 ${raw} ${WORK_DIR}/${second}
        -n stats ERROR_VARIABLE statistics COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCH "RMS lev dB +(-?[0-9.]+|-inf)" line "${statistics}")
    set(${result} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()

# Something between -1 and -60 dB at all times, longer than a block, and not a whole number of blocks.
sox(-n ${raw} ${WORK_DIR}/sound synth 5.0001 sine 200:3000 synth sine amod 0.7 vol 0.7)

foreach(law a-law mu-law)
    # sox | g711 | sox: what a pipe through the coder gives.
    execute_process(
        COMMAND ${SOX} -D ${raw} ${WORK_DIR}/sound ${raw} -
        COMMAND ${G711} --to ${law}
        COMMAND ${SOX} -D ${${law}} - ${raw} -
        OUTPUT_FILE ${WORK_DIR}/decoded COMMAND_ERROR_IS_FATAL ANY)
    g711(sound coded --to ${law})
    g711(coded back --from ${law} --to linear)
    expect_same(${WORK_DIR}/decoded ${WORK_DIR}/back)

    # The other way round its codes are sox's.
    sox(${raw} ${WORK_DIR}/sound ${${law}} ${WORK_DIR}/coded_by_sox)
    sox(${${law}} ${WORK_DIR}/coded_by_sox ${raw} ${WORK_DIR}/by_sox)
    g711(coded_by_sox by_g711 --from ${law} --to linear)
    expect_same(${WORK_DIR}/by_sox ${WORK_DIR}/by_g711)

    # One byte a sample, and a noise 30 dB or more below the sound.
    file(SIZE ${WORK_DIR}/sound given)
    file(SIZE ${WORK_DIR}/coded bytes)
    math(EXPR twice "2 * ${bytes}")
    level_of_difference(sound back noise)
    if(NOT twice EQUAL given OR NOT noise LESS -42 OR NOT noise GREATER -60)
        message(SEND_ERROR "${law}: ${given} bytes became ${bytes}; noise ${noise} dB")
    endif()
endforeach()

# Between the laws, and back: what was coded in the one is little worse for having been in the other.
g711(sound in_a_law --to a-law)
g711(in_a_law in_mu_law --from a-law --to mu-law)
g711(in_mu_law back --from mu-law --to linear)
level_of_difference(sound back noise)
if(NOT noise LESS -38)
    message(SEND_ERROR "through both laws: noise ${noise} dB")
endif()
g711(in_mu_law in_a_law_again --from mu-law --to a-law)
file(SIZE ${WORK_DIR}/in_a_law given)
file(SIZE ${WORK_DIR}/in_a_law_again bytes)
if(NOT given EQUAL bytes)
    message(SEND_ERROR "through both laws: ${given} bytes became ${bytes}")
endif()

file(WRITE ${WORK_DIR}/empty "")
foreach(formats "linear;a-law" "a-law;mu-law" "mu-law;linear")
    list(GET formats 0 from)
    list(GET formats 1 to)
    g711(empty nothing --from ${from} --to ${to})
    expect_same(${WORK_DIR}/empty ${WORK_DIR}/nothing)
endforeach()

file(WRITE ${WORK_DIR}/odd "abc")
expect_refusal("input: not 16-bit PCM: its last sample is cut in two" ${WORK_DIR}/odd --to mu-law)
expect_refusal("--to: the format that it has already" ${WORK_DIR}/odd --from a-law)
expect_refusal("--to: one of these is wanted: linear a-law mu-law" ${WORK_DIR}/odd --to g722)
foreach(options "--to;a-law" "--from;a-law;--to;linear" "--from;a-law;--to;mu-law")
    expect_no_space(${WORK_DIR}/sound ${options})
endforeach()
