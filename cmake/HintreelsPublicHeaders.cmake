# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# hintreels_install_headers(<target> <class> <header>... EXTRA <header>...)
#
# One list makes three things of the public headers: a forwarding header <Hintreels/Class> for each
# class, in the build tree and installed alike; the install rules, with what the public headers
# include under EXTRA; and a source per class that proves its header compiles alone. The property
# HINTREELS_PUBLIC_HEADERS of the target names them with their paths.
function(hintreels_install_headers target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "EXTRA")

    set(forwarding_dir ${PROJECT_BINARY_DIR}/include/Hintreels)
    set(check_sources)
    set(headers ${arg_EXTRA})
    list(LENGTH arg_UNPARSED_ARGUMENTS length)
    math(EXPR last "${length} - 1")
    foreach(i RANGE 0 ${last} 2)
        math(EXPR j "${i} + 1")
        list(GET arg_UNPARSED_ARGUMENTS ${i} class)
        list(GET arg_UNPARSED_ARGUMENTS ${j} header)
        list(APPEND headers ${header})
        file(CONFIGURE OUTPUT ${forwarding_dir}/${class} CONTENT "#include \"${header}\"\n")
        set(check_source ${CMAKE_CURRENT_BINARY_DIR}/header_check/${class}.cpp)
        file(CONFIGURE OUTPUT ${check_source} CONTENT "#include <Hintreels/${class}>\n")
        list(APPEND check_sources ${check_source})
    endforeach()

    list(TRANSFORM headers PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE paths)
    set_target_properties(${target} PROPERTIES HINTREELS_PUBLIC_HEADERS "${paths}")
    if(HINTREELS_INSTALL)
        foreach(header IN LISTS headers)
            get_filename_component(folder ${header} DIRECTORY)
            install(FILES ${header} COMPONENT development
                DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/HintreelsHeaders/${folder})
        endforeach()
        install(DIRECTORY ${forwarding_dir} COMPONENT development
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    endif()

    target_include_directories(${target} INTERFACE
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/HintreelsHeaders>)

    if(HINTREELS_BUILD_TESTS)
        add_library(hintreels_header_check OBJECT ${check_sources})
        set_target_properties(hintreels_header_check PROPERTIES AUTOMOC OFF)
        hintreels_compile_options(hintreels_header_check)
        # Hosts may treat warnings as errors, deprecation included.
        target_compile_options(hintreels_header_check PRIVATE -Wdeprecated-declarations)
        target_link_libraries(hintreels_header_check PRIVATE ${target})
    endif()
endfunction()
