# SPDX-License-Identifier: GPL-3.0-or-later
#
# Every header of the rules and of the computer clans names its chapter of docs/rules.md, and the chapter is there.
cmake_minimum_required(VERSION 3.25)

file(STRINGS ${SOURCES}/docs/rules.md headings REGEX "^##")
set(chapters)
foreach(heading IN LISTS headings)
    string(REGEX REPLACE "^#+ +" "" chapter "${heading}")
    string(TOLOWER "${chapter}" chapter)
    string(REPLACE " " "-" chapter "${chapter}")
    list(APPEND chapters ${chapter})
endforeach()

file(GLOB headers ${SOURCES}/rules/*.h ${SOURCES}/ai/*.h ${SOURCES}/flow/*.h)
set(faults 0)
foreach(header IN LISTS headers)
    file(STRINGS ${header} links REGEX "^// The rules of it: docs/rules.md#")
    string(REGEX REPLACE "^.*#" "" chapter "${links}")
    if(NOT chapter IN_LIST chapters)
        message(SEND_ERROR "${header} names no chapter of docs/rules.md (\"// The rules of it: docs/rules.md#movement\")")
        math(EXPR faults "${faults} + 1")
    endif()
endforeach()
list(LENGTH headers count)
message(STATUS "${count} headers, ${faults} without their chapter")
