# Builds for Windows with Debian's cross compiler. What it makes runs under Wine, which
# scripts/in_wine sets up. Everything is linked in, so that a program needs no other file.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Debian keeps Wine's program for 64 bits out of the search path.
find_program(TERRAFOLD_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(TERRAFOLD_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${TERRAFOLD_WINE})
endif()
