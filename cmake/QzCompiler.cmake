# Compiler settings that our own targets share: warnings, ccache, precompiled headers.

# The sections of a big test file are more than the plain PE object format can count, hence the "big" one.
add_library(qz_compiler INTERFACE)
target_compile_options(qz_compiler INTERFACE
    -Wall -Wextra -Wconversion -Wshadow
    $<$<BOOL:${QZ_WERROR}>:-Werror>
    $<$<PLATFORM_ID:Windows>:-Wa,-mbig-obj>)
if(WIN32)
    target_compile_definitions(qz_compiler INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
endif()

if(QZ_SANITIZE)
    add_compile_options(-fsanitize=${QZ_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QZ_SANITIZE})
endif()

# A precompiled header changes its time on every build and its macros are not seen again in the text, so
# ccache has to be told that this is harmless; the compilers have to leave a trace of the header for it.
find_program(QZ_CCACHE_PROGRAM ccache)
mark_as_advanced(QZ_CCACHE_PROGRAM)
if(QZ_CCACHE AND QZ_CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        ${QZ_CCACHE_PROGRAM})
    if(QZ_PCH AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(qz_compiler INTERFACE -fpch-preprocess)
    elseif(QZ_PCH AND CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        target_compile_options(qz_compiler INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
    endif()
endif()

set(QZ_STD_HEADERS
    <algorithm> <array> <atomic> <bit> <charconv> <chrono> <cmath> <compare> <concepts> <condition_variable>
    <cstddef> <cstdint> <cstdio> <cstring> <exception> <functional> <initializer_list> <iterator> <limits>
    <map> <memory> <mutex> <optional> <span> <string> <string_view> <thread> <tuple> <type_traits>
    <unordered_map> <utility> <variant> <vector>)

# Gives Target our compiler settings, and the given headers precompiled.
function(qz_target Target)
    cmake_parse_arguments(PARSE_ARGV 1 Arg "" "" "PCH")
    target_link_libraries(${Target} PRIVATE $<BUILD_INTERFACE:qz_compiler>)
    if(QZ_PCH AND Arg_PCH)
        target_precompile_headers(${Target} PRIVATE ${Arg_PCH})
    endif()
endfunction()
