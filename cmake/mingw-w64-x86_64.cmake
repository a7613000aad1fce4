# Cross build for 64-bit Windows with Debian's mingw-w64 (the posix thread
# flavour, which std::thread and friends need). Programs link to the
# compiler's runtime DLLs, as Qt's DLLs do, and cmake/windows.cmake puts
# those beside them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(KOLTA_MINGW_PREFIX x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${KOLTA_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${KOLTA_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${KOLTA_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${KOLTA_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# A Release build's programs are stripped, and optimised as Debian builds its
# packages: at -O3 this GCC warns of overlapping copies inside std::string
# that cannot happen.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "Flags of a Release build")
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT "-s")

# Tests and build steps that run a program run it under Wine.
find_program(KOLTA_WINE NAMES wine wine64)
if(KOLTA_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${KOLTA_WINE})
endif()
