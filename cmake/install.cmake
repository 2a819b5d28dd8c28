# What "cmake --install" puts where: the library and the programs, the headers, the CMake package and the pkg-config
# file, the manual page and the shell's completion, the database under share/velor, and VELOR.CFG beside everything that
# looks for it there.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/velor)
set(database_folder ${CMAKE_INSTALL_DATADIR}/velor)

install(TARGETS velor velor_static EXPORT velor
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(EXPORT velor NAMESPACE velor:: FILE velorTargets.cmake DESTINATION ${package_folder})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/velorConfig.cmake.in ${PROJECT_BINARY_DIR}/velorConfig.cmake
    INSTALL_DESTINATION ${package_folder}
    PATH_VARS database_folder)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/velorConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/velorConfig.cmake ${PROJECT_BINARY_DIR}/velorConfigVersion.cmake
    DESTINATION ${package_folder})

# Folders relative to the file itself, so that a moved installation is still found.
file(RELATIVE_PATH prefix_from_pkgconfig /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${CMAKE_CURRENT_LIST_DIR}/velor.pc.in ${PROJECT_BINARY_DIR}/velor.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/velor.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# All that the installation takes, for those who do not build the tests.
add_custom_target(installed_parts DEPENDS velor velor_static)

if(VELOR_BUILD_COMMAND)
    add_dependencies(installed_parts velor_command)
    install(TARGETS velor_command RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(FILES ${PROJECT_SOURCE_DIR}/apps/velor/velor.bash RENAME velor
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
    # Under man1 too, where it is found in every locale.
    if(TARGET velor_manual)
        add_dependencies(installed_parts velor_manual)
        foreach(folder cs/man1 man1)
            install(FILES ${PROJECT_BINARY_DIR}/velor.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/${folder})
        endforeach()
    endif()
endif()
if(VELOR_BUILD_DATABASE)
    add_dependencies(installed_parts velor-baze velor_database)
    install(TARGETS velor-baze RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    foreach(folder cs/man1 man1)
        install(FILES ${PROJECT_SOURCE_DIR}/tools/baze/velor-baze.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/${folder})
    endforeach()
    install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/VELOR.DRC ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/VELOR.DOP
        DESTINATION ${database_folder})
    foreach(folder ${CMAKE_INSTALL_LIBDIR} ${CMAKE_INSTALL_BINDIR})
        install(CODE "
            set(folder \"${folder}\")
            set(database_folder \"${database_folder}\")
            set(binary_folder \"${PROJECT_BINARY_DIR}\")
            include(\"${CMAKE_CURRENT_LIST_DIR}/install_configuration.cmake\")")
    endforeach()
endif()
