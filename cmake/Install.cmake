# SPDX-License-Identifier: GPL-3.0-or-later
#
# What an installation has, in two components: the game, and the simulator for people who like figures.
include(GNUInstallDirs)

set(PLASMOS_SITE "https://plasmos.example" CACHE STRING "Where the project can be read about; its pictures lie below")
set(PLASMOS_RELEASED 2026-11-22)
set(PLASMOS_ID org.plasmos.Plasmos)

find_program(PLASMOS_GZIP gzip)
mark_as_advanced(PLASMOS_GZIP)

# plasmos_install_packed(COMPONENT FOLDER FILE NAME): a page of the manual or a changelog, packed where gzip is there.
function(plasmos_install_packed component folder file name)
    if(NOT PLASMOS_GZIP)
        install(FILES ${file} DESTINATION ${folder} RENAME ${name} COMPONENT ${component})
        return()
    endif()
    set(packed ${PROJECT_BINARY_DIR}/packed/${component}/${name}.gz)
    add_custom_command(OUTPUT ${packed}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packed/${component}
        COMMAND ${PLASMOS_GZIP} -9nc ${file} > ${packed}
        DEPENDS ${file} VERBATIM)
    add_custom_target(packed_${component}_${name} ALL DEPENDS ${packed})
    install(FILES ${packed} DESTINATION ${folder} COMPONENT ${component})
endfunction()

set(plasmos_documents)
if(PLASMOS_SIMULATOR)
    install(TARGETS plasmos-sim DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT simulator)
    plasmos_install_packed(simulator ${CMAKE_INSTALL_MANDIR}/man6 ${PROJECT_SOURCE_DIR}/packaging/man/plasmos-sim.6
        plasmos-sim.6)
    install(FILES packaging/completion/plasmos-sim DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        COMPONENT simulator)
    list(APPEND plasmos_documents simulator:plasmos-sim)
endif()

if(PLASMOS_WINDOW)
    install(TARGETS plasmos DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT game)
    plasmos_install_packed(game ${CMAKE_INSTALL_MANDIR}/man6 ${PROJECT_SOURCE_DIR}/packaging/man/plasmos.6 plasmos.6)
    set(data packaging/data/${PLASMOS_ID})
    install(FILES ${data}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT game)
    install(FILES ${data}.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT game)
    configure_file(${data}.metainfo.xml.in ${PLASMOS_ID}.metainfo.xml @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${PLASMOS_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
        COMPONENT game)
    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    install(FILES ${data}.svg DESTINATION ${icons}/scalable/apps COMPONENT game)
    install(FILES ${data}-symbolic.svg DESTINATION ${icons}/symbolic/apps COMPONENT game)
    install(FILES ${data}-48.png DESTINATION ${icons}/48x48/apps RENAME ${PLASMOS_ID}.png COMPONENT game)
    list(APPEND plasmos_documents game:plasmos)
endif()

foreach(document IN LISTS plasmos_documents)
    string(REPLACE ":" ";" parts ${document})
    list(GET parts 0 component)
    list(GET parts 1 package)
    set(folder ${CMAKE_INSTALL_DATADIR}/doc/${package})
    install(FILES packaging/data/copyright DESTINATION ${folder} COMPONENT ${component})
    plasmos_install_packed(${component} ${folder} ${PROJECT_SOURCE_DIR}/packaging/data/debian-changelog changelog)
endforeach()
