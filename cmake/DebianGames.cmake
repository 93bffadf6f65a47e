# SPDX-License-Identifier: GPL-3.0-or-later
#
# Run by cpack before it packs: on Debian, games lie in /usr/games.
if(CPACK_GENERATOR STREQUAL "DEB")
    file(GLOB folders ${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin ${CPACK_TEMPORARY_DIRECTORY}/usr/bin)
    foreach(folder IN LISTS folders)
        cmake_path(GET folder PARENT_PATH usr)
        file(RENAME ${folder} ${usr}/games)
    endforeach()
endif()
