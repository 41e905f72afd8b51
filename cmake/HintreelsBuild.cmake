# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# What every target of this project is built with.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)

find_program(HINTREELS_CCACHE ccache)
mark_as_advanced(HINTREELS_CCACHE)
if(HINTREELS_CCACHE)
    # Precompiled headers are only cacheable with the time macros left out of the comparison.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${HINTREELS_CCACHE})
    add_compile_options(-fpch-preprocess)
endif()

# The warnings and definitions of our own code; Qt's SAX classes are deprecated and stay in use.
function(hintreels_compile_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wno-deprecated-declarations)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_NO_KEYWORDS)
endfunction()

# Links the Qt headers that nearly every source includes into one precompiled header.
function(hintreels_precompile_qt target)
    target_precompile_headers(${target} PRIVATE <QtCore> <QtGui> <QtWidgets> <QtQuick> <QtXml>)
endfunction()
