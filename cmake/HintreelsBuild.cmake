# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# What every target of this project is built with.

# The standard of the project that this one is a part of, where it is new enough.
if(NOT CMAKE_CXX_STANDARD OR CMAKE_CXX_STANDARD MATCHES "^(98|11|14)$")
    set(CMAKE_CXX_STANDARD 17)
endif()
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
    add_compile_options(
        $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
        "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
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

include(CheckPIESupported)
check_pie_supported()

# What makes a fault in memory end the process instead of running foreign code; sanitizers find such
# faults themselves, and do not see through the checked functions of the C library.
function(hintreels_harden target)
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${target} PRIVATE -fstack-protector-strong)
    if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
        target_compile_options(${target} PRIVATE
            "$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    endif()
    target_link_options(${target} PRIVATE -Wl,-z,relro,-z,now,-z,noexecstack)
endfunction()

# Links the Qt headers that nearly every source includes into one precompiled header.
function(hintreels_precompile_qt target)
    target_precompile_headers(${target} PRIVATE <QtCore> <QtGui> <QtWidgets> <QtQuick>
        <${HINTREELS_QT_XML_HEADERS}>)
endfunction()
