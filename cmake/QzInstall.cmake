# What a user of the installed library finds: headers, CMake package, pkg-config file.
include(CMakePackageConfigHelpers)

set(QZ_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/rQzCommon210)
set(QZ_INSTALLED_HEADERS ${CMAKE_INSTALL_INCLUDEDIR}/rQzCommon210)

install(DIRECTORY qz DESTINATION ${QZ_INSTALLED_HEADERS} FILES_MATCHING PATTERN "*.h"
    PATTERN detail EXCLUDE PATTERN linux EXCLUDE PATTERN windows EXCLUDE)

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

# Each form has an export file of its own: a user of the shared one needs none of the libraries underneath.
install(TARGETS rQzCommon210_static EXPORT rQzCommon210-static)
install(EXPORT rQzCommon210-static NAMESPACE rQzCommon210:: DESTINATION ${QZ_PACKAGE_DIR})
if(QZ_BUILD_SHARED)
    install(TARGETS rQzCommon210 EXPORT rQzCommon210-shared)
    install(EXPORT rQzCommon210-shared NAMESPACE rQzCommon210:: DESTINATION ${QZ_PACKAGE_DIR})
endif()
if(WIN32)
    install(TARGETS rQzCommon210_event_messages EXPORT rQzCommon210-event_messages
        OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/rQzCommon210)
    install(EXPORT rQzCommon210-event_messages NAMESPACE rQzCommon210:: DESTINATION ${QZ_PACKAGE_DIR})
endif()

configure_package_config_file(cmake/rQzCommon210Config.cmake.in rQzCommon210Config.cmake
    INSTALL_DESTINATION ${QZ_PACKAGE_DIR} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(rQzCommon210ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/rQzCommon210Config.cmake ${PROJECT_BINARY_DIR}/rQzCommon210ConfigVersion.cmake
    cmake/FindPCRE2.cmake DESTINATION ${QZ_PACKAGE_DIR})

# Libraries that pkg-config knows by a name of their own, and those it is given as flags: on Windows all of them, since
# pkg-config searches the folders of Linux.
set(QZ_PC_REQUIRES libpcre2-16 zlib)
set(QZ_PC_LIBS ${QZ_LIBRARIES})
if(WIN32)
    set(QZ_PC_REQUIRES)
    list(TRANSFORM QZ_PC_LIBS REPLACE "^PCRE2::16BIT$" pcre2-16)
    list(TRANSFORM QZ_PC_LIBS REPLACE "^ZLIB::ZLIB$" z)
else()
    list(APPEND QZ_PC_REQUIRES icu-i18n icu-uc)
    list(APPEND QZ_PC_LIBS stdc++ m)
endif()
list(TRANSFORM QZ_PC_LIBS REPLACE "^Threads::Threads$" pthread)
list(FILTER QZ_PC_LIBS EXCLUDE REGEX "::")
list(TRANSFORM QZ_PC_LIBS PREPEND -l)
list(JOIN QZ_PC_LIBS " " QZ_PC_LIBS)
list(JOIN QZ_PC_REQUIRES " " QZ_PC_REQUIRES)

# The prefix is found from where the file lies, so that the installed tree can be moved.
cmake_path(SET QZ_PC_DIR /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH QZ_PC_DIR BASE_DIRECTORY /prefix OUTPUT_VARIABLE QZ_PC_UP)
string(REGEX REPLACE "[^/]+" ".." QZ_PC_UP ${QZ_PC_UP})
configure_file(cmake/rQzCommon210.pc.in rQzCommon210.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/rQzCommon210.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The same package by the name without the version, for find_package(QzCommon) and pkg-config QzCommon.
configure_file(cmake/QzCommonConfig.cmake.in QzCommonConfig.cmake @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/QzCommonConfig.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QzCommon)
install(FILES ${PROJECT_BINARY_DIR}/rQzCommon210ConfigVersion.cmake
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QzCommon RENAME QzCommonConfigVersion.cmake)
install(FILES ${PROJECT_BINARY_DIR}/rQzCommon210.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig RENAME QzCommon.pc)
if(WIN32)
    install(FILES cmake/mingw-w64.cmake DESTINATION ${QZ_PACKAGE_DIR})
endif()

# The printers for debuggers, and where gdb finds them for the shared library: below auto-load, by the path of the library.
install(FILES debug/qzcommon_printers.py DESTINATION ${CMAKE_INSTALL_DATADIR}/rQzCommon210)
if(QZ_BUILD_SHARED AND NOT WIN32)
    install(FILES debug/qzcommon_printers.py RENAME librQzCommon210.so.${PROJECT_VERSION}-gdb.py
        DESTINATION "${CMAKE_INSTALL_DATADIR}/gdb/auto-load/\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}")
endif()
