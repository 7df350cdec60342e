# What the library itself links to, collected in QZ_LIBRARIES.
set(THREADS_PREFER_PTHREAD_FLAG ON)
find_package(Threads REQUIRED)
find_package(ZLIB REQUIRED)
find_package(PCRE2 REQUIRED)

set(QZ_LIBRARIES PCRE2::16BIT ZLIB::ZLIB Threads::Threads)
if(WIN32)
    list(APPEND QZ_LIBRARIES
        ole32 oleaut32 uuid user32 advapi32 shell32 shlwapi version dbghelp psapi ntdll ws2_32 iphlpapi wtsapi32
        kernel32)
else()
    find_package(ICU REQUIRED COMPONENTS uc i18n)
    list(APPEND QZ_LIBRARIES ICU::i18n ICU::uc ${CMAKE_DL_LIBS})
endif()
