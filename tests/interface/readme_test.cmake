# Follows the README: takes its ten lines and its commands as they stand, and installs into a prefix of its own instead
# of /usr/local. What the commands would build is there already.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR}/home)
file(READ ${README} text)

# section(<title> <name of the variable>): what stands below a title.
function(section title variable)
    string(FIND "${text}" "\n## ${title}\n" begin)
    string(SUBSTRING "${text}" ${begin} -1 rest)
    string(SUBSTRING "${rest}" 4 -1 rest)
    string(FIND "${rest}" "\n## " end)
    string(SUBSTRING "${rest}" 0 ${end} rest)
    set(${variable} "${rest}" PARENT_SCOPE)
endfunction()

section("Ten lines" ten)
string(REGEX MATCH "```c\n(.*)```" found "${ten}")
file(WRITE ${WORK_DIR}/sum.c "${CMAKE_MATCH_1}")
string(REGEX MATCH "prints ([-0-9 ]+) \\*/" found "${ten}")
set(promised "${CMAKE_MATCH_1}")

section("Install and link" steps)
string(REPLACE ";" "\\;" steps "${steps}")
string(REGEX MATCHALL "```sh\n[^`]*```" blocks "${steps}")
list(LENGTH blocks count)
if(NOT count EQUAL 3 OR promised STREQUAL "")
    message(FATAL_ERROR "the README has ${count} blocks of commands and promises '${promised}': this test follows three")
endif()
list(TRANSFORM blocks REPLACE "```sh\n|```" "")
list(GET blocks 0 install)
list(GET blocks 1 link)
list(GET blocks 2 tell)

# Installing: the tree that is there, a prefix that nobody else has, no package tools and no other rights.
string(REGEX REPLACE "[^\n]*scripts/setup[^\n]*\n|cmake --preset[^\n]*\n|cmake --build[^\n]*\n|sudo ldconfig\n" "" install "${install}")
string(REPLACE "sudo cmake --install build/x86-64 --prefix /usr/local" "cmake --install '${BUILD_DIR}' --prefix \"$HOME/tarns\""
    install "${install}")
string(REPLACE "lib/x86_64-linux-gnu" "${LIBDIR}" tell "${tell}")
if(NOT install MATCHES "^cmake --install [^\n]*\n$")
    message(FATAL_ERROR "the README installs in another way than this test follows: ${install}")
endif()
string(REGEX REPLACE "(^|\n)cc " "\\1${C_COMPILER} ${C_FLAGS} " link "${link}")
file(WRITE ${WORK_DIR}/follow "set -e\n${install}${tell}${link}")
execute_process(COMMAND ${CMAKE_COMMAND} -E env HOME=${WORK_DIR}/home sh ${WORK_DIR}/follow
    WORKING_DIRECTORY ${WORK_DIR} OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR NOT output MATCHES "${promised}\n$")
    message(FATAL_ERROR "status ${status}, instead of ${promised}: ${output}\n${errors}")
endif()
