# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# hintreels_content_package(<target> <package directory> <data path>)
#
# Copies a content package into a data path of the build tree and compiles its translations there:
# l10n/NAME.ts becomes l10n/NAME.qm. The copy is made anew when a file of the package changes.
get_target_property(hintreels_qmake Qt${HINTREELS_QT}::qmake LOCATION)
get_filename_component(hintreels_qt_bin ${hintreels_qmake} DIRECTORY)
find_program(HINTREELS_LRELEASE NAMES lrelease lrelease-qt${HINTREELS_QT}
    HINTS ${hintreels_qt_bin} REQUIRED)
mark_as_advanced(HINTREELS_LRELEASE)

function(hintreels_content_package target package data_path)
    get_filename_component(name ${package} NAME)
    set(copy ${data_path}/${name})
    set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}.stamp)

    # Content comes and goes file by file, which is why it is globbed and sources are not.
    file(GLOB_RECURSE content CONFIGURE_DEPENDS ${package}/*)
    file(GLOB translations CONFIGURE_DEPENDS ${package}/l10n/*.ts)
    set(compile)
    foreach(translation IN LISTS translations)
        get_filename_component(base ${translation} NAME_WE)
        list(APPEND compile
            COMMAND ${HINTREELS_LRELEASE} -silent ${translation} -qm ${copy}/l10n/${base}.qm)
    endforeach()

    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${copy}
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${package} ${copy}
        ${compile}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${content}
        COMMENT "Copying the content package ${name}"
        VERBATIM)
    add_custom_target(${target} ALL DEPENDS ${stamp})
endfunction()
