# Flags of what users get, which make a fault in it harder to use for an attack. They hold for the targets of this project:
# whoever embeds the library has flags of their own.
option(VELOR_HARDENING "Harden what is built; needs optimisation, not for sanitizers" OFF)
if(NOT VELOR_HARDENING)
    return()
endif()

include(CheckPIESupported)
check_pie_supported()
# A compiler that has a level of its own is told to forget it.
add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fstack-protector-strong> $<$<COMPILE_LANGUAGE:CXX>:-U_FORTIFY_SOURCE>
    $<$<COMPILE_LANGUAGE:CXX>:-D_FORTIFY_SOURCE=3>)
if(WIN32)
    # The flag at the linking brings the guard's own library. Control flow guard is not here: GCC cannot make its tables.
    add_link_options(-fstack-protector-strong LINKER:--nxcompat LINKER:--dynamicbase)
    if(CMAKE_SIZEOF_VOID_P EQUAL 8)
        add_link_options(LINKER:--high-entropy-va)
    endif()
else()
    add_link_options(LINKER:-z,relro LINKER:-z,now)
endif()
