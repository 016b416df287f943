# scripts/setup among package tools that are played: what it does when an index is broken, and when a package is.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR}/bin)

# tool(<name> <text>): a command that comes first in PATH, and writes its arguments down.
function(tool name text)
    file(WRITE ${WORK_DIR}/bin/${name} "#!/bin/sh\necho \"${name} $*\" >>'${WORK_DIR}/calls'\n${text}\n")
    file(CHMOD ${WORK_DIR}/bin/${name} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
endfunction()

# run(<status of update> <status of install> <name of the variable for the calls>): answers the status in `status`.
macro(run update install calls)
    file(WRITE ${WORK_DIR}/calls "")
    tool(apt-get "case $1 in update) exit ${update} ;; install) exit ${install} ;; esac")
    execute_process(COMMAND ${CMAKE_COMMAND} -E env PATH=${WORK_DIR}/bin:$ENV{PATH} ${SETUP}
        RESULT_VARIABLE status OUTPUT_QUIET ERROR_QUIET)
    file(READ ${WORK_DIR}/calls ${calls})
endmacro()

tool(id "echo 0")
tool(dpkg-query "case \"$*\" in *doxygen) echo un ;; *) echo 'ii ' ;; esac")

run(0 0 calls)
if(NOT status EQUAL 0 OR NOT calls MATCHES "apt-get update.*apt-get install[^\n]* doxygen\n" OR calls MATCHES "install[^\n]*cmake")
    message(FATAL_ERROR "The package that is missing, and no other, is to be installed: ${status}\n${calls}")
endif()

run(100 0 calls)
if(NOT status EQUAL 0 OR NOT calls MATCHES "apt-get install[^\n]* doxygen\n")
    message(FATAL_ERROR "A broken index is no reason to give up: ${status}\n${calls}")
endif()

run(100 100 calls)
if(status EQUAL 0)
    message(FATAL_ERROR "A package that cannot be had is a failure\n${calls}")
endif()

tool(dpkg-query "echo 'ii '")
run(100 100 calls)
if(NOT status EQUAL 0 OR calls MATCHES "apt-get")
    message(FATAL_ERROR "Where nothing is missing nothing is to be done: ${status}\n${calls}")
endif()
