# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The desktop entry, the AppStream metadata and the icon, where the freedesktop.org standards want them.
install(TARGETS korvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES linux/${KORVANE_APPLICATION_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications)
install(FILES linux/${KORVANE_APPLICATION_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo)

set(icon ${CMAKE_CURRENT_SOURCE_DIR}/icon/${KORVANE_APPLICATION_ID}.svg)
set(icons ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor)
install(FILES ${icon} DESTINATION ${icons}/scalable/apps)

set(rendered "")
set(arguments "")
foreach(size 16 22 24 32 48 64 128 256 512)
    set(picture ${CMAKE_CURRENT_BINARY_DIR}/icon/${size}x${size}/${KORVANE_APPLICATION_ID}.png)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/icon/${size}x${size})
    list(APPEND rendered ${picture})
    list(APPEND arguments ${size} ${picture})
    install(FILES ${picture} DESTINATION ${icons}/${size}x${size}/apps)
endforeach()
add_custom_command(OUTPUT ${rendered}
    COMMAND render-icon ${icon} ${arguments}
    DEPENDS render-icon ${icon}
    COMMENT "Rendering the icon"
    VERBATIM)
add_custom_target(icon ALL DEPENDS ${rendered})
