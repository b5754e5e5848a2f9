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
install(DIRECTORY include/KorDaoUC DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev)
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
foreach(package KorDaoUCRuntime KorDaoUC)
    if(package IN_LIST installed)
        configure_file(cmake/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
        install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
            COMPONENT dev)
    endif()
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/KorDaoUCConfig.cmake ${PROJECT_BINARY_DIR}/KorDaoUCConfigVersion.cmake
    DESTINATION ${KOR_PACKAGE_DIR} COMPONENT dev)
