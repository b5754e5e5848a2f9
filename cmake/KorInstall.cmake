# SPDX-FileCopyrightText: 2026 The KorDaoUC authors
# SPDX-License-Identifier: MIT

# What a program needs to find the library with find_package(KorDaoUC): headers, libraries, the package's own files.
# The components are the Debian packages (KorDebian.cmake): runtime, dev, designer, doc.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(KOR_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/KorDaoUC)
set(installed KorDaoUCRuntime)
if(KORDAOUC_GUI)
    list(APPEND installed KorDaoUC)
endif()
if(KORDAOUC_MDB)
    list(APPEND installed KorDaoUCMdb)
endif()
if(KORDAOUC_XLSX)
    list(APPEND installed KorDaoUCExport)
endif()
set_target_properties(${installed} PROPERTIES INSTALL_RPATH $ORIGIN)
install(TARGETS ${installed} EXPORT KorDaoUCTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)

# The headers of the libraries that there are, with the files that forward to them: each exports by the macro of its
# own library, or belongs to the run-time functions.
set(lacking "")
foreach(part GUI:KORDAOUC_EXPORT MDB:KORDAOUC_MDB_EXPORT XLSX:KORDAOUC_SHEET_EXPORT)
    string(REPLACE ":" ";" part ${part})
    list(POP_FRONT part option)
    if(NOT KORDAOUC_${option})
        list(APPEND lacking ${part})
    endif()
endforeach()
set(headers "")
if(lacking)
    list(JOIN lacking "|" lacking)
    file(GLOB names RELATIVE ${PROJECT_SOURCE_DIR}/include/KorDaoUC CONFIGURE_DEPENDS include/KorDaoUC/*)
    foreach(name ${names})
        set(header ${name})
        if(NOT name MATCHES "[.]h$")
            file(STRINGS include/KorDaoUC/${name} header REGEX "^#include")
            string(REGEX REPLACE "^.*/([a-z]+[.]h)>.*" "\\1" header ${header})
        endif()
        file(STRINGS include/KorDaoUC/${header} exports REGEX "^[^#/]*[ (](${lacking})[ )]")
        if(exports)
            list(APPEND headers PATTERN ${name} EXCLUDE)
        endif()
    endforeach()
endif()
install(DIRECTORY include/KorDaoUC DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev ${headers})

install(EXPORT KorDaoUCTargets NAMESPACE KorDaoUC:: DESTINATION ${KOR_PACKAGE_DIR} COMPONENT dev)
if(KORDAOUC_DESIGNER)
    set_target_properties(KorDaoUCPlugin KorDaoUCDesigner PROPERTIES INSTALL_RPATH $ORIGIN/../../..)
    set_target_properties(korform PROPERTIES INSTALL_RPATH $ORIGIN/../${CMAKE_INSTALL_LIBDIR})
    install(TARGETS korform RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT designer)
    install(TARGETS KorDaoUCPlugin KorDaoUCDesigner
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer COMPONENT designer)
endif()

configure_package_config_file(cmake/KorDaoUCConfig.cmake.in ${PROJECT_BINARY_DIR}/KorDaoUCConfig.cmake
    INSTALL_DESTINATION ${KOR_PACKAGE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KorDaoUCConfigVersion.cmake COMPATIBILITY SameMinorVersion)
# What a program needs that is built without CMake. The files say where they are from where they lie.
file(RELATIVE_PATH KOR_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
function(kor_pkgconfig library description requires)
    if(library IN_LIST installed)
        configure_file(cmake/KorLibrary.pc.in ${PROJECT_BINARY_DIR}/${library}.pc @ONLY)
        install(FILES ${PROJECT_BINARY_DIR}/${library}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
    endif()
endfunction()
set(same "= ${PROJECT_VERSION}")
kor_pkgconfig(KorDaoUCRuntime "Values, conversions, masks and dates of KorDaoUC, without windows" "Qt6Core >= 6.4")
kor_pkgconfig(KorDaoUC "${PROJECT_DESCRIPTION}" "KorDaoUCRuntime ${same}, Qt6Widgets >= 6.4")
kor_pkgconfig(KorDaoUCMdb "Reading of .mdb files into SQLite" "KorDaoUCRuntime ${same}, Qt6Sql >= 6.4")
kor_pkgconfig(KorDaoUCExport "Grids of KorDaoUC as CSV files and XLSX workbooks" "KorDaoUC ${same}")
install(FILES ${PROJECT_BINARY_DIR}/KorDaoUCConfig.cmake ${PROJECT_BINARY_DIR}/KorDaoUCConfigVersion.cmake
    DESTINATION ${KOR_PACKAGE_DIR} COMPONENT dev)
