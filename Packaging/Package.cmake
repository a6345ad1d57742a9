# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later

# `cpack` in a build folder makes a .dmg on macOS and a .deb elsewhere.
set(CPACK_PACKAGE_NAME korvane)
set(CPACK_PACKAGE_VENDOR "The Korvane authors")
set(CPACK_PACKAGE_CONTACT "The Korvane authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_INSTALL_DIRECTORY Korvane)
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

if(APPLE)
    set(CPACK_GENERATOR DragNDrop)
    set(CPACK_DMG_VOLUME_NAME Korvane)
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION utils)
    set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Korvane looks for caches, logs, products of developer tools, temporary
files and what lies in the Trash, shows what it found with sizes, and moves
what is chosen to the Trash or deletes it. Includes korvane-cli, the same
for a terminal and for scripts.")
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    # The tools that talk to iPhones and iPads.
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libimobiledevice-utils")
    if(KORVANE_BUILD_UI)
        # The windows' QML modules and Qt's own texts are loaded at run time, so that no tool can see that they are needed.
        set(CPACK_DEBIAN_PACKAGE_DEPENDS "qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick, \
qml6-module-qtquick-layouts, qml6-module-qtquick-templates, qml6-module-qtquick-window, qt6-translations-l10n")
        string(APPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS ", fonts-inter, pkexec | policykit-1, qt6-wayland")
    endif()
endif()

include(CPack)
