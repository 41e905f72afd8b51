# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# The target docs: the reference of the public headers, as pages in build/PRESET/reference/html and,
# where qhelpgenerator is installed, as a help file for Qt Creator beside them.

find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
    return()
endif()

get_target_property(qmake Qt${HINTREELS_QT}::qmake LOCATION)
get_filename_component(qt_bin ${qmake} DIRECTORY)
find_program(HINTREELS_QHELPGENERATOR NAMES qhelpgenerator HINTS ${qt_bin})
mark_as_advanced(HINTREELS_QHELPGENERATOR)

set(DOXYGEN_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/reference)
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE ${PROJECT_SOURCE_DIR}/docs/reference.md)
set(DOXYGEN_FULL_PATH_NAMES NO)
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED HINTREELS_EXPORT=)
set(DOXYGEN_DISTRIBUTE_GROUP_DOC YES)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_GENERATE_LATEX NO)
set(DOXYGEN_QUIET YES)
# Every public name says what it is; the run ends with an error after all were looked at.
set(DOXYGEN_WARN_IF_UNDOCUMENTED YES)
# A parameter is described where its name does not tell.
set(DOXYGEN_WARN_IF_INCOMPLETE_DOC NO)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
if(HINTREELS_QHELPGENERATOR)
    set(DOXYGEN_GENERATE_QHP YES)
    set(DOXYGEN_QHG_LOCATION ${HINTREELS_QHELPGENERATOR})
    set(DOXYGEN_QHP_NAMESPACE com.zentora.hintreels.${PROJECT_VERSION})
    set(DOXYGEN_QHP_VIRTUAL_FOLDER hintreels)
    set(DOXYGEN_QCH_FILE ../hintreels.qch)
endif()

get_target_property(headers Hintreels HINTREELS_PUBLIC_HEADERS)
doxygen_add_docs(docs ${headers} ${PROJECT_SOURCE_DIR}/docs/reference.md
    COMMENT "Writing the reference of the public headers")
