# SPDX-License-Identifier: GPL-3.0-or-later
#
# `cpack -G DEB` in the build folder makes two packages for Debian, `cpack -G ZIP` an archive.
set(CPACK_PACKAGE_NAME plasmos)
set(CPACK_PACKAGE_VENDOR "The developers of Plasmos")
set(CPACK_PACKAGE_CONTACT "The developers of Plasmos <developers@plasmos.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${PLASMOS_SITE})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/COPYING)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)

set(CPACK_COMPONENTS_ALL)
if(PLASMOS_WINDOW)
    list(APPEND CPACK_COMPONENTS_ALL game)
endif()
if(PLASMOS_SIMULATOR)
    list(APPEND CPACK_COMPONENTS_ALL simulator)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_GAME_PACKAGE_NAME plasmos)
set(CPACK_DEBIAN_GAME_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-qpa-plugins, qt6-wayland")
set(CPACK_DEBIAN_GAME_PACKAGE_SUGGESTS plasmos-sim)
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_NAME plasmos-sim)
set(CPACK_DEBIAN_GAME_DESCRIPTION "clans of amoebas live, divide and fight in a puddle
Three to six clans of amoebas live in a puddle. They drift with the current,
eat what the other clans leave, adapt to the UV light, buy genes, divide and
fight. One or two clans are yours; the computer plays the others, each with a
character of its own.

Answers can be taken back, earlier turns looked back at, and a game that was
left is gone on with later. It can be played by the mouse, by keys and by ear.")
set(CPACK_DEBIAN_SIMULATOR_DESCRIPTION "games of Plasmos without a window
Plays games of Plasmos, thousands in a second, and tells who wins and why. It
writes what happens in them step by step, and plays a game again from its
record.")
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/DebianGames.cmake)

include(CPack)
