# The message table by which the event viewer of Windows shows the events of TQzEventLogAppender: a resource that a program
# carries when it links to rQzCommon210::event_messages. The DLL carries it too.
if(NOT WIN32)
    return()
endif()

enable_language(RC)
find_program(QZ_WINDMC NAMES x86_64-w64-mingw32-windmc windmc REQUIRED)
mark_as_advanced(QZ_WINDMC)

# The texts end as the lines of the file do, and that is CR LF.
set(Folder ${PROJECT_BINARY_DIR}/messages)
configure_file(qz/platform/windows/EventMessages.mc ${Folder}/EventMessages.mc @ONLY NEWLINE_STYLE CRLF)
add_custom_command(
    OUTPUT ${Folder}/EventMessages.rc ${Folder}/EventMessages.bin
    COMMAND ${QZ_WINDMC} -h ${Folder} -r ${Folder} ${Folder}/EventMessages.mc
    DEPENDS ${Folder}/EventMessages.mc
    VERBATIM)
set_source_files_properties(${Folder}/EventMessages.rc PROPERTIES OBJECT_DEPENDS ${Folder}/EventMessages.bin)

add_library(rQzCommon210_event_messages OBJECT ${Folder}/EventMessages.rc)
target_include_directories(rQzCommon210_event_messages PRIVATE ${Folder})
set_target_properties(rQzCommon210_event_messages PROPERTIES EXPORT_NAME event_messages)
add_library(rQzCommon210::event_messages ALIAS rQzCommon210_event_messages)
