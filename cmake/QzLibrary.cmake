# The library: every source is compiled once, and the objects make both the static and the shared form.
if(WIN32)
    set(QZ_SYSTEM windows)
else()
    set(QZ_SYSTEM linux)
endif()

file(GLOB_RECURSE QZ_SOURCES CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/common/*.cpp ${PROJECT_SOURCE_DIR}/runtime/*.cpp)
file(GLOB QZ_PLATFORM_SOURCES CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/platform/*.cpp ${PROJECT_SOURCE_DIR}/platform/${QZ_SYSTEM}/*.cpp)
file(GLOB_RECURSE QZ_HEADERS CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/common/*.h ${PROJECT_SOURCE_DIR}/runtime/*.h)
file(GLOB QZ_PLATFORM_HEADERS CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/platform/*.h)
list(APPEND QZ_SOURCES ${QZ_PLATFORM_SOURCES})
list(APPEND QZ_HEADERS ${QZ_PLATFORM_HEADERS})

add_library(qz_objects OBJECT ${QZ_SOURCES})
qz_target(qz_objects PCH ${QZ_STD_HEADERS})
target_include_directories(qz_objects PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(qz_objects PRIVATE ${QZ_LIBRARIES})
if(MINGW)
    # gcc aligns the stack to 16 bytes there and yet takes vectors of 32 bytes on it for aligned.
    set_source_files_properties(${PROJECT_SOURCE_DIR}/runtime/text/UtfAvx2.cpp PROPERTIES
        COMPILE_OPTIONS -Wa,-muse-unaligned-vector-move)
endif()

function(qz_add_library Target Kind)
    add_library(${Target} ${Kind} $<TARGET_OBJECTS:qz_objects>)
    target_compile_features(${Target} INTERFACE cxx_std_20)
    target_include_directories(${Target} INTERFACE
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/rQzCommon210>)
    target_link_libraries(${Target} PRIVATE ${QZ_LIBRARIES})
    set_target_properties(${Target} PROPERTIES LINKER_LANGUAGE CXX OUTPUT_NAME rQzCommon210)
endfunction()

qz_add_library(rQzCommon210_static STATIC)
add_library(rQzCommon210::rQzCommon210_static ALIAS rQzCommon210_static)

if(QZ_BUILD_SHARED)
    qz_add_library(rQzCommon210 SHARED)
    set_target_properties(rQzCommon210 PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    if(WIN32)
        # The symbols of static libraries linked in are no part of what the DLL offers.
        target_link_options(rQzCommon210 PRIVATE -Wl,--export-all-symbols -Wl,--exclude-libs,ALL)
        target_link_libraries(rQzCommon210 PRIVATE $<BUILD_INTERFACE:rQzCommon210_event_messages>)
    else()
        target_link_options(rQzCommon210 PRIVATE -Wl,--no-undefined -Wl,--exclude-libs,ALL)
    endif()
    add_library(rQzCommon210::rQzCommon210 ALIAS rQzCommon210)
else()
    add_library(rQzCommon210::rQzCommon210 ALIAS rQzCommon210_static)
endif()
