# SPDX-FileCopyrightText: 2026 The Korvane authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What the program says in other languages than English, whose texts are the keys. One file a language; its name is
# that of the language, as Languages looks for it. To be included where KorvaneApp is made.
set(languages de es fr ja zh_CN)
list(TRANSFORM languages REPLACE "(.+)" "${CMAKE_CURRENT_LIST_DIR}/korvane_\\1.ts" OUTPUT_VARIABLE catalogues)

# What lupdate is told, here and in the test that compares the catalogues with the sources.
set(KORVANE_LUPDATE_OPTIONS UI App Core Platform -I .
    -extensions cpp,h,mm,qml -tr-function-alias translate+=localized
    -locations none -no-obsolete -source-language en)
set_property(GLOBAL PROPERTY KORVANE_LUPDATE_OPTIONS "${KORVANE_LUPDATE_OPTIONS}")

# Brings what is new in the sources into the catalogues, and takes out of them what is no longer there.
add_custom_target(update-translations
    COMMAND Qt6::lupdate ${KORVANE_LUPDATE_OPTIONS} -ts ${catalogues}
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
    VERBATIM)

if(KORVANE_BUILD_TESTS)
    # A language of nobody, written from right to left, that shows which texts are not translated and what they clip.
    add_executable(pseudo-language ${CMAKE_CURRENT_LIST_DIR}/PseudoLanguage.cpp)
    target_link_libraries(pseudo-language PRIVATE KorvaneOptions Qt6::Core)
    set_target_properties(pseudo-language PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
    list(GET catalogues 0 anyCatalogue)
    set(pseudoCatalogue ${CMAKE_CURRENT_BINARY_DIR}/korvane_ar_XB.ts)
    add_custom_command(OUTPUT ${pseudoCatalogue}
        COMMAND pseudo-language ${anyCatalogue} ${pseudoCatalogue}
        DEPENDS pseudo-language ${anyCatalogue}
        VERBATIM)
    list(APPEND catalogues ${pseudoCatalogue})
endif()

set(compiledCatalogues)
foreach(catalogue IN LISTS catalogues)
    get_filename_component(name ${catalogue} NAME_WE)
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
    add_custom_command(OUTPUT ${compiled}
        COMMAND Qt6::lrelease -silent ${catalogue} -qm ${compiled}
        DEPENDS ${catalogue}
        VERBATIM)
    list(APPEND compiledCatalogues ${compiled})
endforeach()

if(APPLE)
    # Qt writes the menu of the application, and its bundle brings nothing of what that is called elsewhere.
    get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
    execute_process(COMMAND ${qmake} -query QT_INSTALL_TRANSLATIONS
        OUTPUT_VARIABLE qtCatalogues OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    foreach(language IN LISTS languages)
        if(EXISTS ${qtCatalogues}/qtbase_${language}.qm)
            configure_file(${qtCatalogues}/qtbase_${language}.qm qtbase_${language}.qm COPYONLY)
            list(APPEND compiledCatalogues ${CMAKE_CURRENT_BINARY_DIR}/qtbase_${language}.qm)
        else()
            message(WARNING "Qt's own texts stay English where Korvane speaks ${language}: "
                "there is no ${qtCatalogues}/qtbase_${language}.qm")
        endif()
    endforeach()
endif()
qt_add_resources(KorvaneApp translations
    PREFIX /translations BASE ${CMAKE_CURRENT_BINARY_DIR} FILES ${compiledCatalogues})
