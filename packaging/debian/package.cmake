# The Debian package: what "cmake --install" puts under /usr, with the documents that the distribution asks for. One
# package, because it is handed over as one file and there is no archive from which the parts of a split one would find
# each other.
function(velor_package_document source name folder)
    install(FILES ${source} RENAME ${name} DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder}
        COMPONENT debian EXCLUDE_FROM_ALL)
endfunction()
velor_package_document(${CMAKE_CURRENT_LIST_DIR}/copyright copyright doc/velor)
velor_package_document(${CMAKE_CURRENT_LIST_DIR}/changelog changelog.Debian doc/velor)
velor_package_document(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog doc/velor)
velor_package_document(${PROJECT_SOURCE_DIR}/data/README.md data-sources.md doc/velor)
velor_package_document(${PROJECT_SOURCE_DIR}/docs/properties.md properties.md doc/velor)
velor_package_document(${PROJECT_SOURCE_DIR}/examples/mixture.cpp mixture.cpp doc/velor/examples)
velor_package_document(${CMAKE_CURRENT_LIST_DIR}/lintian-overrides velor lintian/overrides)

set(CPACK_GENERATOR DEB)
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};velor;ALL;/" "${PROJECT_BINARY_DIR};velor;debian;/")
# By DESTDIR, so that VELOR.CFG names the place where the database will be used.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/compress.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "physical properties of substances and their mixtures")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "VELOR computes physical properties of organic substances, technical gases and
their mixtures: densities, viscosities, thermal conductivities, heat
capacities, vapour pressures, real-gas state functions, bubble and dew points,
flashes. Its database holds about 500 substances.

The package has the command velor, the shared and the static C++ library, their
headers, the database and velor-baze, which compiles databases. All of it
speaks Czech to its users.

VELOR počítá fyzikální vlastnosti organických látek, technických plynů
a jejich směsí. Obsahuje příkaz velor, knihovnu pro C++ a databázi látek.")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "VELOR developers <velor@example.org>")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "gnuplot-nox | gnuplot")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "bash-completion, g++, pkg-config")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/prerm ${CMAKE_CURRENT_LIST_DIR}/triggers)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
