# SPDX-License-Identifier: GPL-3.0-or-later
option(PLASMOS_WERROR "Treat warnings as errors" OFF)

add_library(plasmos_warnings INTERFACE)
target_compile_options(plasmos_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
# g++ 12 warns of overlapping copies wherever a literal is assigned to a string; there are none.
target_compile_options(plasmos_warnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(PLASMOS_WERROR)
    target_compile_options(plasmos_warnings INTERFACE -Werror)
endif()

# Sanitizers and coverage are asked for once and reach everything that links the core.
add_library(plasmos_instrumentation INTERFACE)
if(PLASMOS_SANITIZE)
    target_compile_options(plasmos_instrumentation INTERFACE
        -fsanitize=${PLASMOS_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # g++ 12 takes a reference to a variable of the thread for null once the function that gets it is inlined. A
    # null pointer that is followed ends the program here all the same.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(plasmos_instrumentation INTERFACE -fno-sanitize=null)
    endif()
    target_link_options(plasmos_instrumentation INTERFACE -fsanitize=${PLASMOS_SANITIZE})
endif()
if(PLASMOS_COVERAGE)
    target_compile_options(plasmos_instrumentation INTERFACE --coverage -O0)
    target_link_options(plasmos_instrumentation INTERFACE --coverage)
endif()
