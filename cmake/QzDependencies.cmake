# What each layer of the library links to; QZ_LIBRARIES is all of it.
set(THREADS_PREFER_PTHREAD_FLAG ON)
find_package(Threads REQUIRED)
find_package(PCRE2 REQUIRED)
# A Windows program has no DLL but those of the system.
if(WIN32)
    set(ZLIB_USE_STATIC_LIBS ON)
endif()
find_package(ZLIB REQUIRED)

set(QZ_RUNTIME_LIBRARIES PCRE2::16BIT ZLIB::ZLIB)
set(QZ_PLATFORM_LIBRARIES Threads::Threads)
if(WIN32)
    list(APPEND QZ_PLATFORM_LIBRARIES ole32 oleaut32 uuid)
else()
    find_package(ICU REQUIRED COMPONENTS uc i18n)
    list(APPEND QZ_PLATFORM_LIBRARIES ICU::i18n ICU::uc ${CMAKE_DL_LIBS})
endif()
set(QZ_LIBRARIES ${QZ_RUNTIME_LIBRARIES} ${QZ_PLATFORM_LIBRARIES})
