# The library: every source is compiled once, and the objects make both the static and the shared form.
if(WIN32)
    set(QZ_SYSTEM windows)
else()
    set(QZ_SYSTEM linux)
endif()

# One set of objects a layer. The tests of a layer link to it and the layers below alone, so that the linker sees a
# call upwards.
set(QZ_LAYERS platform runtime common)
set(QZ_HEADERS)
set(QZ_OBJECTS)
foreach(Layer IN LISTS QZ_LAYERS)
    set(Folder ${PROJECT_SOURCE_DIR}/qz/${Layer})
    if(Layer STREQUAL platform)
        file(GLOB Sources CONFIGURE_DEPENDS ${Folder}/*.cpp ${Folder}/${QZ_SYSTEM}/*.cpp)
        file(GLOB Headers CONFIGURE_DEPENDS ${Folder}/*.h)
    else()
        file(GLOB_RECURSE Sources CONFIGURE_DEPENDS ${Folder}/*.cpp)
        file(GLOB_RECURSE Headers CONFIGURE_DEPENDS ${Folder}/*.h)
        list(FILTER Headers EXCLUDE REGEX "/detail/")
    endif()
    list(APPEND QZ_HEADERS ${Headers})

    add_library(qz_${Layer} OBJECT ${Sources})
    qz_target(qz_${Layer} PCH ${QZ_STD_HEADERS})
    target_include_directories(qz_${Layer} PUBLIC ${PROJECT_SOURCE_DIR})
    list(APPEND QZ_OBJECTS qz_${Layer})
    set(QZ_OBJECTS_${Layer} ${QZ_OBJECTS})
endforeach()
target_link_libraries(qz_platform PRIVATE ${QZ_PLATFORM_LIBRARIES})
target_link_libraries(qz_runtime PRIVATE ${QZ_RUNTIME_LIBRARIES})
if(MINGW)
    # gcc aligns the stack to 16 bytes there and yet takes vectors of 32 bytes on it for aligned.
    set_source_files_properties(
        ${PROJECT_SOURCE_DIR}/qz/runtime/base/detail/UtfAvx2.cpp
        ${PROJECT_SOURCE_DIR}/qz/runtime/text/detail/BinaryAvx2.cpp PROPERTIES
        COMPILE_OPTIONS -Wa,-muse-unaligned-vector-move)
endif()

function(qz_add_library Target Kind)
    add_library(${Target} ${Kind})
    foreach(Objects IN LISTS QZ_OBJECTS)
        target_sources(${Target} PRIVATE $<TARGET_OBJECTS:${Objects}>)
    endforeach()
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
