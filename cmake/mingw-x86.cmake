set(CMAKE_SYSTEM_PROCESSOR i686)
set(triple i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
# The x87 unit would compute with another precision than the 64-bit build.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
