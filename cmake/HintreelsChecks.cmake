# SPDX-FileCopyrightText: 2026 The Hintreels authors
# SPDX-License-Identifier: MIT
#
# What scripts/check builds: the library by clazy, a look of clang-tidy at each of its sources, and
# each header alone. Ninja remembers what was found fine, and looks again where a file has changed
# that it includes.

# Without what asks for other public faces, or for another style:
# - fully-qualified-moc-types: hosts connect to slots by signatures that stay
# - non-pod-global-static: constants are built when the library is loaded, and depend on none
# - overloaded-signal, overridden-signal: the described signals of HRVideoComponent are both
# - qproperty-without-notify: two properties of HRView have nothing to tell of, and say why
set(HINTREELS_CLAZY_CHECKS level1,no-fully-qualified-moc-types,no-non-pod-global-static)
string(APPEND HINTREELS_CLAZY_CHECKS
    ,no-overloaded-signal,no-overridden-signal,no-qproperty-without-notify)

function(hintreels_choose_clazy_checks target)
    target_compile_options(${target} PRIVATE
        "SHELL:-Xclang -plugin-arg-clazy -Xclang ${HINTREELS_CLAZY_CHECKS}")
endfunction()

# hintreels_tidy(<target> <checked target>): the target has clang-tidy look at each source.
function(hintreels_tidy target checked)
    find_program(HINTREELS_CLANG_TIDY clang-tidy REQUIRED)
    mark_as_advanced(HINTREELS_CLANG_TIDY)
    get_target_property(sources ${checked} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    set(stamps)
    foreach(source IN LISTS sources)
        file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${source})
        set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}/${name}.stamp)
        get_filename_component(folder ${stamp} DIRECTORY)
        file(MAKE_DIRECTORY ${folder})
        # clang-tidy leaves options of its own out that ask for a list of what is included.
        add_custom_command(OUTPUT ${stamp}
            COMMAND ${HINTREELS_CLANG_TIDY} --quiet -p ${PROJECT_BINARY_DIR}
                --extra-arg=-Wp,-MD,${stamp}.d,-MT,${stamp} ${source}
            COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
            DEPENDS ${source} ${PROJECT_SOURCE_DIR}/.clang-tidy
            DEPFILE ${stamp}.d
            COMMENT "Looking at ${name}"
            VERBATIM)
        list(APPEND stamps ${stamp})
    endforeach()
    add_custom_target(${target} DEPENDS ${stamps})
    add_dependencies(${target} ${checked}_autogen)
endfunction()

# hintreels_lonely_headers(<target> <folder>...): the target compiles each header of the folders in
# a source of its own.
function(hintreels_lonely_headers target)
    set(sources)
    foreach(folder IN LISTS ARGN)
        file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${folder} ${folder}/*.h)
        # Of an example host, and of a window made from a .ui file: with what only their builds have.
        list(FILTER headers EXCLUDE REGEX "^(integration/Sketchpad|widgets/PartsWindow)")
        foreach(header IN LISTS headers)
            set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}/${header}.cpp)
            file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n")
            list(APPEND sources ${source})
        endforeach()
    endforeach()
    add_library(${target} OBJECT EXCLUDE_FROM_ALL ${sources})
    set_target_properties(${target} PROPERTIES AUTOMOC OFF)
    hintreels_compile_options(${target})
    hintreels_choose_clazy_checks(${target})
    target_compile_definitions(${target} PRIVATE HINTREELS_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    target_link_libraries(${target} PRIVATE hintreels_objects hintreels_test_support)
endfunction()

hintreels_choose_clazy_checks(hintreels_objects)
if(HINTREELS_BUILD_TOOLS)
    hintreels_choose_clazy_checks(hintreels-attach)
    hintreels_choose_clazy_checks(hintreels_command)
endif()
hintreels_tidy(hintreels_tidy hintreels_objects)
hintreels_lonely_headers(hintreels_headers ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
