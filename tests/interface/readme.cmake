# What tests take from the README: `section`, and the ten lines, written to WORK_DIR/sum.c, with what they promise.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
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
if(promised STREQUAL "")
    message(FATAL_ERROR "the README's ten lines promise nothing")
endif()
