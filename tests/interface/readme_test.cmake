# Follows the README: takes its ten lines and its commands as they stand, and installs into a prefix of its own instead
# of /usr/local. What the commands would build is there already.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/readme.cmake)
file(MAKE_DIRECTORY ${WORK_DIR}/home)

section("Install and link" steps)
string(REPLACE ";" "\\;" steps "${steps}")
string(REGEX MATCHALL "```sh\n[^`]*```" blocks "${steps}")
list(LENGTH blocks count)
if(NOT count EQUAL 3)
    message(FATAL_ERROR "the README has ${count} blocks of commands: this test follows three")
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
