# Cross-compiling with MinGW-w64; included by the toolchain files of the two architectures, which set `triple`.
set(CMAKE_SYSTEM_NAME Windows)
# The variant with POSIX threads is the one whose standard library has std::mutex.
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_C_COMPILER ${triple}-gcc-posix) # of GoogleTest, which asks for one
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# What is built depends on nothing but Windows' own libraries.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
# The same sources give the same bytes, so without the time of the build.
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
