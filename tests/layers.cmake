# SPDX-License-Identifier: GPL-3.0-or-later
#
# Checks that includes point one way: model <- rules, ai <- flow <- ui, sim; and that what lies below
# the window includes no header of Qt. Run with -D SOURCES=<folder of the sources>.

cmake_minimum_required(VERSION 3.25)

set(allowed_model model)
set(allowed_rules model rules ai)
set(allowed_ai model rules ai)
set(allowed_flow model rules ai flow)
set(allowed_sim model rules ai flow sim)
set(allowed_ui model rules ai flow ui)

set(faults 0)
foreach(layer model rules ai flow sim ui)
    file(GLOB files ${SOURCES}/${layer}/*.h ${SOURCES}/${layer}/*.cpp)
    foreach(file IN LISTS files)
        file(RELATIVE_PATH shown ${SOURCES} ${file})
        file(STRINGS ${file} lines REGEX "^#include ")
        foreach(line IN LISTS lines)
            if(line MATCHES "\"([a-z]+)/" AND NOT CMAKE_MATCH_1 IN_LIST allowed_${layer})
                message("${shown}: ${layer} may not look at ${CMAKE_MATCH_1}: ${line}")
                math(EXPR faults "${faults} + 1")
            endif()
            if(NOT layer STREQUAL "ui" AND line MATCHES "[<\"/]Q[A-Z]|<q[a-z]+\\.h>|Qt[A-Z]")
                message("${shown}: there is no Qt below the window: ${line}")
                math(EXPR faults "${faults} + 1")
            endif()
        endforeach()
    endforeach()
endforeach()
if(faults GREATER 0)
    message(FATAL_ERROR "${faults} includes point the wrong way")
endif()
