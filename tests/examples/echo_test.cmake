# Runs the search for echoes over sounds that sox makes, noise with an echo, strings, whose delays and pitches are
# known; and over what it has to refuse.
cmake_minimum_required(VERSION 3.25)
set(PROGRAM ${ECHO_PROGRAM})
include(${CMAKE_CURRENT_LIST_DIR}/support.cmake)
file(WRITE ${WORK_DIR}/empty "")
file(WRITE ${WORK_DIR}/odd "abc")
string(REPEAT "aa" 48000 constant)
file(WRITE ${WORK_DIR}/constant "${constant}")

set(raw -t raw -e signed -b 16 -c 1 -r)

# sox <name> <rate> <effect>...: a sound of sox's own
function(make_sound name rate)
    execute_process(COMMAND ${SOX} -V1 -R -D -n ${raw} ${rate} ${WORK_DIR}/${name} ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
function(change_sound from name rate)
    execute_process(COMMAND ${SOX} -V1 -R -D ${raw} ${rate} ${WORK_DIR}/${from} ${raw} ${rate} ${WORK_DIR}/${name} ${ARGN}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# expect_echo(<sound> <regular expression of the first line> <option>...)
function(expect_echo sound expression)
    execute_process(COMMAND ${ECHO_PROGRAM} ${ARGN} INPUT_FILE ${WORK_DIR}/${sound} OUTPUT_VARIABLE output
        COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output MATCHES "^# ${expression}\n")
        message(SEND_ERROR "echo ${ARGN} <${sound}: ${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Noise, and noise that comes back after 5926 samples with 0.4 / 0.8 of its amplitude.
make_sound(noise 48000 synth 2 pinknoise vol 0.5)
change_sound(noise echoing 48000 echo 0.8 0.8 123.4584 0.4)
expect_echo(noise "no echo")
expect_echo(echoing "echo after 123\\.4[56][0-9] ms, at 0\\.(4[5-9]|5[0-5])[0-9] of the sound")
# The drawing: twelve rows, and the highest column where the echo is.
if(NOT output MATCHES "\n 0\\.[34][0-9]+ \\|     #  *\n" OR NOT output MATCHES "\n[0-9.]+  *1000[.0-9]* ms\n$")
    message(SEND_ERROR "the drawing: ${output}")
endif()
expect_echo(echoing "no echo" --from 130)
expect_echo(echoing "no echo" --to 110)
expect_echo(echoing "echo after 246\\.9[0-9]+ ms, at [0-9.]+ of the sound" --rate 24000)

# One recording after another: half a sample is as near as it gets.
change_sound(noise later 48000 delay 0.3371)
expect_echo(later "delayed by 337\\.(09|1[01])[0-9]* ms, at (1\\.00|0\\.99)[0-9] of the reference"
    --reference ${WORK_DIR}/noise)
expect_echo(noise "delayed by -?0\\.00[0-9] ms, at 1\\.000 of the reference" --reference ${WORK_DIR}/noise --to 50)

# Pitches.
make_sound(string 44100 synth 3 pluck A3 vol 0.7)
change_sound(string beginning 44100 trim 0.1 0.08)
expect_echo(beginning "pitch 2(19|20)\\.[0-9]+ Hz, correlation 0\\.[89][0-9]+" --voice --rate 44100)
make_sound(saw 16000 synth 0.2 sawtooth 118 vol 0.5)
expect_echo(saw "pitch (117\\.[89]|118\\.[01])[0-9] Hz, correlation (1\\.0|0\\.9)[0-9]+" --voice --rate 16000)

# The table: delays and correlations, beginning with lag 0, which is 1.
expect_echo(echoing "echo .*" --table --from 0 --to 200)
if(NOT output MATCHES "\n0\\.00000 1\\.000000\n0\\.02083 0\\.[0-9]+\n.*\n200\\.02083 -?0\\.[0-9]+\n$")
    string(SUBSTRING "${output}" 0 200 beginning)
    message(SEND_ERROR "echo --table: ${beginning}")
endif()

execute_process(COMMAND ${ECHO_PROGRAM} --help OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(NOT output MATCHES "^usage: echo .*--rate HZ.*--reference FILE.*--voice.*--table")
    message(SEND_ERROR "echo --help: ${output}")
endif()

set(noise ${WORK_DIR}/noise)
expect_refusal("input: not 16-bit PCM: its last sample is cut in two" ${WORK_DIR}/odd)
expect_refusal("input: empty" ${WORK_DIR}/empty)
expect_refusal("input: silence" ${WORK_DIR}/constant)
expect_refusal("input: Is a directory" ${WORK_DIR})
expect_refusal("input: shorter than the delays" ${noise} --from 5000 --to 6000)
expect_refusal("the reference: silence" ${noise} --reference ${WORK_DIR}/constant)
expect_refusal("${WORK_DIR}/missing: No such file" ${noise} --reference ${WORK_DIR}/missing)
expect_refusal("--voice: not together with --reference" ${noise} --reference ${noise} --voice)
expect_refusal("--from: not below the longest delay" ${noise} --from 1000)
expect_refusal("--rate: a number from 1 to 1000000 is wanted" ${noise} --rate 0)
expect_refusal("--to: a number from 0 to 1000000 is wanted" ${noise} --to -3)
expect_refusal("--to: a number from 0 to 1000000 is wanted" ${noise} --to 1s)
expect_refusal("--loud: no such option" ${noise} --loud 1)
expect_refusal("--rate: a value is missing" ${noise} --rate)

expect_no_space(${noise})
