# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plays the demonstration game and looks at what it leaves: a winner in the log, and three pictures.
# Run with -D SHOT=<plasmos-shot> -D FOLDER=<an own folder>.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${SHOT} --demo ${FOLDER} RESULT_VARIABLE result OUTPUT_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the demonstration ended with ${result}:\n${output}")
endif()
if(NOT output MATCHES "Clan [^\n]* wins!")
    message(FATAL_ERROR "nobody has won:\n${output}")
endif()
foreach(picture first middle last)
    set(path ${FOLDER}/${picture}.png)
    string(FIND "${output}" "${path}" told)
    if(told EQUAL -1 OR NOT EXISTS ${path})
        message(FATAL_ERROR "${picture}.png is missing or not told of")
    endif()
    file(SIZE ${path} size)
    if(size LESS 20000)
        message(FATAL_ERROR "${picture}.png is empty: ${size} bytes")
    endif()
endforeach()
