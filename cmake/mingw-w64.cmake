# Toolchain: 64-bit Windows programs by Debian's mingw-w64 with POSIX threads, run under Wine. It is installed with the
# Windows package, which it then finds without further settings.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Libraries that Debian has no mingw package for: tools/windows-deps builds them into this folder.
if(DEFINED ENV{QZ_DEPS_DIR})
    set(QZ_DEPS_DIR $ENV{QZ_DEPS_DIR})
elseif(DEFINED ENV{XDG_CACHE_HOME})
    set(QZ_DEPS_DIR $ENV{XDG_CACHE_HOME}/qzcommon)
else()
    set(QZ_DEPS_DIR $ENV{HOME}/.cache/qzcommon)
endif()

# A user of this file adds his own prefixes with -DCMAKE_FIND_ROOT_PATH.
list(APPEND CMAKE_FIND_ROOT_PATH ${QZ_DEPS_DIR}/mingw-w64 /usr/x86_64-w64-mingw32)
if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/rQzCommon210Config.cmake)
    cmake_path(SET QZ_PREFIX NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../..)
    list(APPEND CMAKE_FIND_ROOT_PATH ${QZ_PREFIX})
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs and the DLL carry the compiler's libraries within, so that they run on a machine without them.
set(CMAKE_FIND_LIBRARY_SUFFIXES .a)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

# Programs that a build runs are started by this tree's own script, or by the Wine of the machine.
if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/../tools/wine)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine)
else()
    find_program(QZ_WINE NAMES wine wine64 PATHS /usr/lib/wine)
    mark_as_advanced(QZ_WINE)
    if(QZ_WINE)
        set(CMAKE_CROSSCOMPILING_EMULATOR ${QZ_WINE})
    endif()
endif()
