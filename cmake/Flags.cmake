# Compiler flags: what the ABI and the instruction level fix for every target, and what our own targets add.

# Dependencies are built here too, so these go to the whole tree: mixing levels or floating-point units in one
# program would change results in the tests.
#
# The level is the widest vector that the processor must have; results are the same at all of them. Wider registers come
# with instructions that fuse a product and a sum, which nothing may use: see tarns_flags below.
if(TARNS_LEVEL STREQUAL "T7")
    set(TARNS_LEVEL_FLAGS -msse3)
elseif(TARNS_LEVEL STREQUAL "Y8")
    set(TARNS_LEVEL_FLAGS -mavx2)
    add_compile_definitions(TARNS_REGISTER_BYTES=32)
elseif(TARNS_LEVEL STREQUAL "Z9")
    set(TARNS_LEVEL_FLAGS -mavx512f -mavx512bw -mavx512dq -mavx512vl -mprefer-vector-width=512)
    add_compile_definitions(TARNS_REGISTER_BYTES=64)
else()
    message(FATAL_ERROR "TARNS_LEVEL is T7, Y8 or Z9, not ${TARNS_LEVEL}")
endif()
if(NOT TARNS_LEVEL STREQUAL "T7" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # A call or jump to a function that is known to leave the wide registers alone would not clear their upper halves,
    # and that function returns to a caller whose code of 128 bits then waits for them: upper_halves_test.
    list(APPEND TARNS_LEVEL_FLAGS -fno-ipa-ra)
endif()
string(TOLOWER "${TARNS_LEVEL}" TARNS_LEVEL_MARK)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # 32-bit callers may enter with a stack aligned to 4 bytes only. Single and double precision belong on the SSE
    # unit, whose every operation rounds once; long double stays the 80-bit format.
    list(APPEND TARNS_LEVEL_FLAGS -march=i686 -mtune=generic -mfpmath=sse -mstackrealign)
endif()
add_compile_options(${TARNS_LEVEL_FLAGS})

# Tests include the frame, and see the library's width.
if(NOT TARNS_VECTOR_REGISTERS EQUAL 1)
    add_compile_definitions(TARNS_VECTOR_REGISTERS=${TARNS_VECTOR_REGISTERS})
endif()

if(TARNS_SANITIZE)
    add_compile_options(-fsanitize=${TARNS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TARNS_SANITIZE})
endif()

# What is built under the sanitizers of TARNS_SANITIZED_COPY, beside the same thing without them.
add_library(tarns_sanitizers INTERFACE)
target_compile_options(tarns_sanitizers INTERFACE
    -fsanitize=${TARNS_SANITIZED_COPY} -fno-sanitize-recover=all -fno-omit-frame-pointer)
if(TARNS_SANITIZED_COPY MATCHES "undefined")
    # Of the checks at every use of a pointer, which are half of the compile time, only that of alignment tells more than
    # the sanitizer of addresses does.
    target_compile_options(tarns_sanitizers INTERFACE -fno-sanitize=null,object-size,pointer-overflow)
endif()
if(TARNS_SANITIZED_COPY MATCHES "address")
    # To mark where the scope of every local word begins and ends takes as long as all else; the build for fuzzing does.
    target_compile_options(tarns_sanitizers INTERFACE -fno-sanitize-address-use-after-scope)
endif()
target_link_options(tarns_sanitizers INTERFACE -fsanitize=${TARNS_SANITIZED_COPY})

# Results are defined to the bit: no target may contract a*b+c.
add_library(tarns_flags INTERFACE)
target_compile_options(tarns_flags INTERFACE -ffp-contract=off -Wall -Wextra $<$<COMPILE_LANGUAGE:CXX>:-Wconversion>
    # Half a gigabyte is more than any unit needs, so that none is compiled with pauses to collect garbage.
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:--param=ggc-min-heapsize=524288>
    # clang counts changes of sign among the conversions, and takes folds and aggregates for slips.
    $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-sign-conversion -Wno-parentheses-equality -Wno-missing-braces>
    # A precompiled header from a compiler cache is older than the files that it was made of.
    $<$<COMPILE_LANG_AND_ID:CXX,Clang>:SHELL:-Xclang -fno-pch-timestamp>)
if(TARNS_LEVEL STREQUAL "Z9" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Its own header of these vectors has values that are deliberately undefined.
    target_compile_options(tarns_flags INTERFACE -Wno-uninitialized -Wno-maybe-uninitialized)
endif()
if(TARNS_WARNINGS_AS_ERRORS)
    target_compile_options(tarns_flags INTERFACE -Werror)
endif()
