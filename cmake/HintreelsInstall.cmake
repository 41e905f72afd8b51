# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# Installs the library, and what hosts find it by: a CMake package and a file for pkg-config. What the
# libraries for both Qts have in common, the CMake package included, is the same file in both.
#
# Components: runtime (library and standard packages), development (headers and what finds them),
# tools (the command hintreels), qml (type descriptions for editors and qmllint), documents.

include(CMakePackageConfigHelpers)

set(HINTREELS_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/Hintreels)

install(TARGETS Hintreels EXPORT HintreelsTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
    NAMELINK_COMPONENT development)
install(EXPORT HintreelsTargets NAMESPACE Hintreels:: FILE HintreelsQt${HINTREELS_QT}Targets.cmake
    DESTINATION ${HINTREELS_INSTALL_CMAKEDIR} COMPONENT development)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/HintreelsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/HintreelsConfig.cmake
    INSTALL_DESTINATION ${HINTREELS_INSTALL_CMAKEDIR}
    PATH_VARS HINTREELS_INSTALL_PACKAGESDIR)
configure_file(${PROJECT_SOURCE_DIR}/cmake/HintreelsDependencies.cmake.in
    ${PROJECT_BINARY_DIR}/HintreelsQt${HINTREELS_QT}.cmake @ONLY)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/HintreelsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/HintreelsConfig.cmake
    ${PROJECT_BINARY_DIR}/HintreelsConfigVersion.cmake
    ${PROJECT_BINARY_DIR}/HintreelsQt${HINTREELS_QT}.cmake
    DESTINATION ${HINTREELS_INSTALL_CMAKEDIR} COMPONENT development)

# Found from where the file lies, so that a moved tree works.
file(RELATIVE_PATH HINTREELS_PREFIX_FROM_PKGCONFIG
    /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
list(TRANSFORM HINTREELS_QT_COMPONENTS PREPEND Qt${HINTREELS_QT} OUTPUT_VARIABLE HINTREELS_PKGCONFIG_PUBLIC)
list(JOIN HINTREELS_PKGCONFIG_PUBLIC " " HINTREELS_PKGCONFIG_PUBLIC)
list(TRANSFORM HINTREELS_QT_PRIVATE_COMPONENTS PREPEND Qt${HINTREELS_QT} OUTPUT_VARIABLE HINTREELS_PKGCONFIG_PRIVATE)
list(JOIN HINTREELS_PKGCONFIG_PRIVATE " " HINTREELS_PKGCONFIG_PRIVATE)
string(APPEND HINTREELS_PKGCONFIG_PRIVATE " libavformat libavcodec libavutil libswscale zlib")
if(NOT BUILD_SHARED_LIBS)
    # A static library leaves to hosts what it links itself.
    string(APPEND HINTREELS_PKGCONFIG_PUBLIC " ${HINTREELS_PKGCONFIG_PRIVATE}")
    set(HINTREELS_PKGCONFIG_PRIVATE "")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/hintreels.pc.in ${HINTREELS_FILE_NAME}.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${HINTREELS_FILE_NAME}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    ${PROJECT_SOURCE_DIR}/SECURITY.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
