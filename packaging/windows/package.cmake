# The Windows package velor-<version>-windows.zip: the target windows_package of the x64 build, which also builds what the
# package needs of the native and of the x86 build. The two Windows builds install their parts into one tree.
set(is_x64 FALSE)
set(folder x86)
set(entry_point DllGetClassObject@12)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(is_x64 TRUE)
    set(folder x64)
    set(entry_point DllGetClassObject)
endif()

# For C++ programs that carry velor.dll beside themselves, without registration. The DLL's own import library is empty,
# as its entry points are for the system.
set(import_library ${PROJECT_BINARY_DIR}/velor.lib)
file(WRITE ${PROJECT_BINARY_DIR}/import.def "LIBRARY velor.dll\nEXPORTS\n    ${entry_point}\n")
add_custom_command(OUTPUT ${import_library}
    COMMAND ${CMAKE_DLLTOOL} --deterministic-libraries --kill-at --temp-prefix velor
        --input-def import.def --output-lib velor.lib
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR} # its names get into the library
    VERBATIM)
add_custom_target(windows_parts DEPENDS velor_com velor_static ${import_library})
if(is_x64)
    add_executable(velor_register EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/register.cpp)
    target_compile_definitions(velor_register PRIVATE UNICODE)
    target_link_libraries(velor_register PRIVATE velor_warnings)
    target_link_options(velor_register PRIVATE -municode -s LINKER:--no-insert-timestamp)
    set_target_properties(velor_register PROPERTIES OUTPUT_NAME register)
    add_dependencies(windows_parts velor_register)
    install(TARGETS velor_register RUNTIME DESTINATION ${folder})
endif()

set(generated ${PROJECT_BINARY_DIR}/src/com/generated)
install(FILES $<TARGET_FILE:velor_com> $<TARGET_FILE:velor_static> ${generated}/velor.tlb ${import_library}
    ${VELOR_NATIVE_BUILD}/bin/VELOR.DRC ${VELOR_NATIVE_BUILD}/bin/VELOR.DOP DESTINATION ${folder})
if(NOT is_x64)
    return()
endif()

# Texts get the line ends of Windows, commands also the code page of Czech consoles.
set(texts ${PROJECT_BINARY_DIR}/texts)
file(GLOB examples RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/examples/*)
foreach(example IN LISTS examples)
    configure_file(${PROJECT_SOURCE_DIR}/${example} ${texts}/${example} @ONLY NEWLINE_STYLE CRLF)
endforeach()
configure_file(${CMAKE_CURRENT_LIST_DIR}/prirucka.html ${texts}/prirucka.html @ONLY NEWLINE_STYLE CRLF)
configure_file(${PROJECT_SOURCE_DIR}/LICENSE ${texts}/LICENSE.txt @ONLY NEWLINE_STYLE CRLF)
configure_file(${PROJECT_SOURCE_DIR}/data/README.md ${texts}/data-sources.txt @ONLY NEWLINE_STYLE CRLF)
foreach(command install uninstall)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${command}.cmd ${texts}/utf-8/${command}.cmd @ONLY NEWLINE_STYLE CRLF)
    execute_process(COMMAND iconv -f UTF-8 -t CP852 -o ${texts}/${command}.cmd ${texts}/utf-8/${command}.cmd
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
install(DIRECTORY ${texts}/ DESTINATION . PATTERN utf-8 EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION include)
install(FILES ${generated}/com/velor_com.h DESTINATION include/com)

add_custom_target(windows_package
    COMMAND ${CMAKE_COMMAND} --preset release
    COMMAND ${CMAKE_COMMAND} --build --preset release --target velor_database
    COMMAND ${CMAKE_COMMAND} --preset mingw-x86
    COMMAND ${CMAKE_COMMAND} --build --preset mingw-x86 --target windows_parts
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${PROJECT_BINARY_DIR} "-DBUILDS=${PROJECT_BINARY_DIR};${VELOR_X86_BUILD}"
        -DNAME=velor-${PROJECT_VERSION}-windows -P ${CMAKE_CURRENT_LIST_DIR}/make_zip.cmake
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    DEPENDS windows_parts
    USES_TERMINAL VERBATIM)
