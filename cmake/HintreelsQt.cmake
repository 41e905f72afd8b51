# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# Finds the Qt that all is built with. HINTREELS_QT is its major version, 5 or 6: in a subproject
# that of the host, else 5 unless somebody asks for the other.

if(TARGET Qt6::Core)
    set(hintreels_default_qt 6)
else()
    set(hintreels_default_qt 5)
endif()
set(HINTREELS_QT ${hintreels_default_qt} CACHE STRING "Major version of Qt: 5 or 6")
set_property(CACHE HINTREELS_QT PROPERTY STRINGS 5 6)

set(HINTREELS_QT_COMPONENTS Core Gui Widgets Qml Quick Sql)
if(HINTREELS_QT EQUAL 5)
    set(HINTREELS_QT_VERSION 5.15)
    list(APPEND HINTREELS_QT_COMPONENTS Xml)
    set(HINTREELS_QT_XML_HEADERS QtXml)
else()
    set(HINTREELS_QT_VERSION 6.4)
    list(APPEND HINTREELS_QT_COMPONENTS Core5Compat) # XML by SAX
    set(HINTREELS_QT_XML_HEADERS QtCore5Compat)
endif()
# What the library links for itself.
set(HINTREELS_QT_PRIVATE_COMPONENTS DBus Network)
find_package(Qt${HINTREELS_QT} ${HINTREELS_QT_VERSION} REQUIRED
    COMPONENTS ${HINTREELS_QT_COMPONENTS} ${HINTREELS_QT_PRIVATE_COMPONENTS})

# Libraries for both lie side by side under one prefix: that for Qt 6 has its Qt in the names of what
# they cannot share.
if(HINTREELS_QT EQUAL 5)
    set(HINTREELS_FILE_NAME hintreels)
else()
    set(HINTREELS_FILE_NAME hintreels-qt${HINTREELS_QT})
endif()

# What hosts of the library link as well.
list(TRANSFORM HINTREELS_QT_COMPONENTS PREPEND Qt${HINTREELS_QT}:: OUTPUT_VARIABLE HINTREELS_QT_LIBRARIES)
list(TRANSFORM HINTREELS_QT_PRIVATE_COMPONENTS PREPEND Qt${HINTREELS_QT}::
    OUTPUT_VARIABLE HINTREELS_QT_PRIVATE_LIBRARIES)
