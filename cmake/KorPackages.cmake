# SPDX-FileCopyrightText: 2026 The KorDaoUC authors
# SPDX-License-Identifier: MIT

# Inside another project what is found here must be seen there too: its programs link it through the library.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)

# kor_find(<Debian packages> <package> [argument...])
#
# As find_package(<package> <argument...> REQUIRED), but who lacks the package is told what to install.
macro(kor_find debian package)
    find_package(${package} ${ARGN} QUIET)
    if(NOT ${package}_FOUND)
        string(REPLACE ";" " " KOR_WANTED "${package};${ARGN}")
        message(FATAL_ERROR "KorDaoUC: ${KOR_WANTED} was not found. On Debian it is in: ${debian}\n"
            "${${package}_NOT_FOUND_MESSAGE}")
    endif()
endmacro()
