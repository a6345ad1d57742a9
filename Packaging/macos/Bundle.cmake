# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Korvane.app: its information, its icon, and what of Qt it takes along.
set(iconset ${CMAKE_CURRENT_BINARY_DIR}/Korvane.iconset)
set(icns ${CMAKE_CURRENT_BINARY_DIR}/Korvane.icns)
set(icon ${CMAKE_CURRENT_SOURCE_DIR}/icon/${KORVANE_APPLICATION_ID}.svg)
file(MAKE_DIRECTORY ${iconset})
set(arguments "")
foreach(size 16 32 128 256 512)
    math(EXPR double "${size} * 2")
    list(APPEND arguments ${size} ${iconset}/icon_${size}x${size}.png ${double} ${iconset}/icon_${size}x${size}@2x.png)
endforeach()
add_custom_command(OUTPUT ${icns}
    COMMAND render-icon ${icon} ${arguments}
    COMMAND iconutil --convert icns --output ${icns} ${iconset}
    DEPENDS render-icon ${icon}
    COMMENT "Rendering the icon"
    VERBATIM)
add_custom_target(icon DEPENDS ${icns})
add_dependencies(korvane icon)

target_sources(korvane PRIVATE ${icns})
set_source_files_properties(${icns} TARGET_DIRECTORY korvane
    PROPERTIES GENERATED ON MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(korvane PROPERTIES
    OUTPUT_NAME Korvane
    MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_SOURCE_DIR}/macos/Info.plist.in)

install(TARGETS korvane BUNDLE DESTINATION .)
# Qt looks for imports where its executable lies, and ours has no QML of its own: the tool is shown the folder that has.
# Needs Qt 6.7.
qt_generate_deploy_script(TARGET korvane OUTPUT_SCRIPT deploy CONTENT "
    qt_deploy_runtime_dependencies(EXECUTABLE Korvane.app
        ADDITIONAL_EXECUTABLES Korvane.app/Contents/MacOS/korvane-cli
        DEPLOY_TOOL_OPTIONS \"-qmldir=${CMAKE_SOURCE_DIR}/UI\")
")
install(SCRIPT ${deploy})
