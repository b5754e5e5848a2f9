# SPDX-FileCopyrightText: 2026 The KorDaoUC authors
# SPDX-License-Identifier: MIT

# The Debian packages: libkordaouc0.1 (what programs run with), libkordaouc-dev (what they are compiled with),
# kordaouc-designer (the form designer's plugin and korform), libkordaouc-doc (the manual). tools/make-packages builds
# them; the libraries they depend on are found in the binaries, so the machine that builds decides for which Debian.
if(NOT KORDAOUC_INSTALL OR NOT KORDAOUC_GUI OR NOT KORDAOUC_DESIGNER OR NOT KORDAOUC_MDB
   OR NOT KORDAOUC_XLSX)
    message(FATAL_ERROR "KorDaoUC: the packages hold all of the library; switch nothing of it off")
endif()
find_program(KOR_DOXYGEN doxygen)
find_program(KOR_SHLIBDEPS dpkg-shlibdeps)
find_program(KOR_FILE file)
if(NOT KOR_DOXYGEN OR NOT KOR_SHLIBDEPS OR NOT KOR_FILE)
    message(FATAL_ERROR "KorDaoUC: the packages need doxygen, dpkg-shlibdeps and file. "
        "On Debian they are in: doxygen dpkg-dev file")
endif()

set(abi ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(runtime_name libkordaouc${abi})
set(dev_name libkordaouc-dev)
set(designer_name kordaouc-designer)
set(doc_name libkordaouc-doc)

# The manual, built anew when something it is made of has changed
file(GLOB_RECURSE pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/* ${PROJECT_SOURCE_DIR}/include/KorDaoUC/*.h)
set(manual ${PROJECT_BINARY_DIR}/manual)
add_custom_command(OUTPUT ${manual}/index.html
    COMMAND ${PROJECT_SOURCE_DIR}/manual --output ${manual}
    DEPENDS ${PROJECT_SOURCE_DIR}/manual ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${pages}
    VERBATIM)
add_custom_target(manual ALL DEPENDS ${manual}/index.html)
install(DIRECTORY ${manual}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${doc_name}/html COMPONENT doc)
install(DIRECTORY examples/minimal DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${doc_name}/examples COMPONENT doc)

# Each package has the licence under its own name.
file(READ LICENSE licence)
string(REGEX REPLACE "^MIT License\n\n(Copyright [^\n]*)\n\n" "" licence "${licence}")
set(holder ${CMAKE_MATCH_1})
string(REGEX REPLACE "^Copyright \\(c\\) " "" holder "${holder}")
string(REGEX REPLACE "\n+$" "" licence "${licence}")
string(REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REPLACE "\n" "\n " licence "${licence}")
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/copyright @ONLY CONTENT [[Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: KorDaoUC

Files: *
Copyright: @holder@
License: Expat
 @licence@
]])
foreach(component runtime dev designer doc)
    install(FILES ${PROJECT_BINARY_DIR}/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${component}_name} COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kordaouc)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own, in the first line of its description
set(CPACK_PACKAGE_CONTACT "The KorDaoUC authors" CACHE STRING "Name and address of whoever makes the packages")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime dev designer doc)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(same "${runtime_name} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_name})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "libqt6sql6-sqlite, fonts-dejavu-core")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "data-entry controls for database forms
Controls for forms that are typed blind: numbers, dates, lists of a dictionary,
colours, long texts, grids and sheets of parameters. An empty field is Null.
.
This package holds the libraries that programs run with.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${dev_name})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${same}, qt6-base-dev (>= 6.4)")
set(CPACK_DEBIAN_DEV_PACKAGE_SUGGESTS "${designer_name}, ${doc_name}")
set(CPACK_DEBIAN_DEV_DESCRIPTION "data-entry controls for database forms (development files)
Headers, and what CMake and pkg-config need to find the libraries, for programs
that use the controls or, without windows, the run-time functions.")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME ${designer_name})
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${same}")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS designer-qt6)
set(CPACK_DEBIAN_DESIGNER_DESCRIPTION "data-entry controls for database forms (form designer)
The plugin that shows the controls in the widget box of Qt's form designer, with
their property pages, and korform, which converts, checks and shows forms.")

set(CPACK_DEBIAN_DOC_PACKAGE_NAME ${doc_name})
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOC_DESCRIPTION "data-entry controls for database forms (manual)
One page for each control, guides and the reference of all public classes and
functions, as HTML with a search box.")

# For dpkg-shlibdeps: where the libraries of this build are
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

# What programs in packages of their own depend on. (CPack adds the call of ldconfig.)
set(shlibs "")
foreach(library KorDaoUC KorDaoUCExport KorDaoUCMdb KorDaoUCRuntime)
    string(APPEND shlibs "lib${library} ${abi} ${runtime_name} (>= ${PROJECT_VERSION})\n")
endforeach()
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs "${shlibs}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/shlibs)
include(CPack)
