# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# Installs the library and the CMake package by which hosts find it.

include(CMakePackageConfigHelpers)

set(HINTREELS_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/Hintreels)
set(HINTREELS_INSTALL_PACKAGESDIR ${CMAKE_INSTALL_DATADIR}/hintreels/packages)

install(TARGETS Hintreels EXPORT HintreelsTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT HintreelsTargets NAMESPACE Hintreels:: DESTINATION ${HINTREELS_INSTALL_CMAKEDIR})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/HintreelsConfig.cmake.in
    ${PROJECT_BINARY_DIR}/HintreelsConfig.cmake
    INSTALL_DESTINATION ${HINTREELS_INSTALL_CMAKEDIR}
    PATH_VARS HINTREELS_INSTALL_PACKAGESDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/HintreelsConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/HintreelsConfig.cmake
    ${PROJECT_BINARY_DIR}/HintreelsConfigVersion.cmake
    DESTINATION ${HINTREELS_INSTALL_CMAKEDIR})
