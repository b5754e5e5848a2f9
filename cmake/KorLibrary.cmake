# SPDX-FileCopyrightText: 2026 The KorDaoUC authors
# SPDX-License-Identifier: MIT

# Settings and helpers that every folder shares: one line per library, one line per test.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

find_program(KOR_CCACHE ccache)
if(KOR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${KOR_CCACHE})
endif()

# Warnings are errors for those who develop this project, never for one around it.
if(NOT PROJECT_IS_TOP_LEVEL)
    set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
endif()
add_library(kor_warnings INTERFACE)
target_compile_definitions(kor_warnings INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_STRICT_ITERATORS QT_NO_FOREACH)
target_compile_options(kor_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
    $<$<BOOL:${KORDAOUC_STRICT}>:-Werror>)

# kor_library(<layer> [RULES file...] [SOURCES file...] [PUBLIC_HEADERS name.h...] [LINK target...])
#
# Makes the objects of one layer. RULES are the pure part, without widgets: they become kor_<layer>_rules and are
# built in the no-gui preset too. SOURCES become kor_<layer>. PUBLIC_HEADERS (in include/KorDaoUC) belong to the layer
# in the eyes of tools/check-layers.
function(kor_library layer)
    cmake_parse_arguments(ARG "" "" "RULES;SOURCES;PUBLIC_HEADERS;LINK" ${ARGN})
    set_property(GLOBAL APPEND PROPERTY KOR_LINK_LIBRARIES ${ARG_LINK})
    # moc must see the classes of the public headers, which live away from their sources
    list(TRANSFORM ARG_PUBLIC_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/include/KorDaoUC/)
    if(ARG_RULES)
        add_library(kor_${layer}_rules OBJECT ${ARG_RULES})
        target_include_directories(kor_${layer}_rules PUBLIC ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
        target_compile_definitions(kor_${layer}_rules PRIVATE KORDAOUC_BUILDING)
        target_link_libraries(kor_${layer}_rules PUBLIC KorDaoUCRuntime Qt6::Core PRIVATE kor_warnings ${ARG_LINK})
        set_property(GLOBAL APPEND PROPERTY KOR_OBJECT_LIBRARIES kor_${layer}_rules)
        if(NOT ARG_SOURCES) # a layer without widgets has all its classes here
            target_sources(kor_${layer}_rules PRIVATE ${ARG_PUBLIC_HEADERS})
        endif()
    endif()
    if(ARG_SOURCES AND KORDAOUC_GUI)
        add_library(kor_${layer} OBJECT ${ARG_SOURCES})
        target_include_directories(kor_${layer} PUBLIC ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/src)
        target_compile_definitions(kor_${layer} PRIVATE KORDAOUC_BUILDING)
        target_link_libraries(kor_${layer} PUBLIC KorDaoUCRuntime Qt6::Widgets PRIVATE kor_warnings ${ARG_LINK})
        if(ARG_RULES) # the headers of the pure part are seen there
            list(REMOVE_ITEM ARG_PUBLIC_HEADERS ${ARG_RULES})
        endif()
        target_sources(kor_${layer} PRIVATE ${ARG_PUBLIC_HEADERS})
        set_property(GLOBAL APPEND PROPERTY KOR_OBJECT_LIBRARIES kor_${layer})
    endif()
endfunction()

# kor_shared_library(<target> [PROPERTY value...])
#
# What all shared libraries of the project have: a name that programs of another minor version are not started with
# (before 1.0 each may take something away), and no symbols but their own (tools/exported-symbols keeps the lists).
function(kor_shared_library target)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} ${ARGN})
    target_compile_features(${target} PUBLIC cxx_std_20)
    if(UNIX AND NOT APPLE)
        target_link_options(${target} PRIVATE LINKER:--version-script=${PROJECT_SOURCE_DIR}/src/exported.map)
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${PROJECT_SOURCE_DIR}/src/exported.map)
    endif()
endfunction()

# kor_test(<name> [SOURCES file...] [RULES layer...] [INSIDE layer...] [LINK target...] [X11] [READER] [POSTGRES|SERVER])
#
# One test program, run under the C and the Polish locale. With RULES it links the pure rules of those layers only and
# needs no windowing system; otherwise it links the library as a host does, runs on the offscreen platform and, with
# X11, once more under a real X server, with READER on one where a screen reader could listen. With POSTGRES it runs once more beside a PostgreSQL server that lives as long as
# the test, with SERVER there only. INSIDE takes the widgets of those layers, with their rules, in place of the
# library: for what the library does not show to hosts. Sources default to <name>.cpp.
function(kor_test name)
    cmake_parse_arguments(ARG "X11;READER;NOGUI;POSTGRES;SERVER" "" "SOURCES;RULES;INSIDE;LINK" ${ARGN})
    if(NOT ARG_RULES AND NOT ARG_NOGUI AND NOT KORDAOUC_GUI)
        return()
    endif()
    if(NOT ARG_SOURCES)
        set(ARG_SOURCES ${name}.cpp)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE KOR_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
    target_link_libraries(${name} PRIVATE Qt6::Test kor_warnings ${ARG_LINK})
    if(ARG_RULES)
        list(TRANSFORM ARG_RULES REPLACE "(.+)" "kor_\\1_rules")
        target_link_libraries(${name} PRIVATE ${ARG_RULES} KorDaoUCRuntime)
    elseif(ARG_INSIDE)
        target_link_libraries(${name} PRIVATE kor_test_stage)
        foreach(layer ${ARG_INSIDE})
            foreach(objects kor_${layer} kor_${layer}_rules)
                if(TARGET ${objects})
                    target_link_libraries(${name} PRIVATE ${objects})
                endif()
            endforeach()
        endforeach()
    elseif(ARG_NOGUI)
        target_link_libraries(${name} PRIVATE KorDaoUCRuntime)
    else()
        target_link_libraries(${name} PRIVATE kor_test_support)
    endif()
    set(environment "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=qt.qpa.*=false;TZ=Europe/Warsaw;QT_STYLE_OVERRIDE=Fusion")
    if(ARG_POSTGRES OR ARG_SERVER)
        add_test(NAME ${name}.postgres
            COMMAND ${PROJECT_SOURCE_DIR}/tests/support/with-postgres $<TARGET_FILE:${name}>)
        set_tests_properties(${name}.postgres PROPERTIES LABELS postgres TIMEOUT 180 SKIP_RETURN_CODE 77
            ENVIRONMENT "${environment};LC_ALL=pl_PL.UTF-8")
    endif()
    if(ARG_SERVER)
        return()
    endif()
    foreach(locale C pl_PL.UTF-8)
        string(REGEX REPLACE "[.].*" "" suffix ${locale})
        add_test(NAME ${name}.${suffix} COMMAND ${name})
        set_tests_properties(${name}.${suffix} PROPERTIES ENVIRONMENT "${environment};LC_ALL=${locale}" TIMEOUT 120)
    endforeach()
    set(screen "QT_QPA_PLATFORM=xcb;TZ=Europe/Warsaw;LC_ALL=pl_PL.UTF-8;QT_STYLE_OVERRIDE=Fusion")
    if(ARG_X11)
        add_test(NAME ${name}.x11 COMMAND ${PROJECT_SOURCE_DIR}/tests/support/with-x-server $<TARGET_FILE:${name}>)
        set_tests_properties(${name}.x11 PROPERTIES LABELS x11 TIMEOUT 180 RUN_SERIAL TRUE ENVIRONMENT "${screen}")
    endif()
    if(ARG_READER)
        set(support ${PROJECT_SOURCE_DIR}/tests/support)
        add_test(NAME ${name}.reader
            COMMAND ${support}/with-x-server ${support}/with-reader-bus $<TARGET_FILE:${name}>)
        set_tests_properties(${name}.reader PROPERTIES LABELS x11 TIMEOUT 180 RUN_SERIAL TRUE SKIP_RETURN_CODE 77
            ENVIRONMENT "${screen}")
    endif()
endfunction()
