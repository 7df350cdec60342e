// EQzException and EQzAbort, exceptions with an error code, and the registry that finds a class by its code.
//
//     throw EQzException(u"Cannot reach %s", {Host}, 1722);
//
//     QzRegisterExceptionClass(u"net", 1722, EQzExceptionClass::Of<EHostUnreachable>());   // at program start
//     if (ExceptionClass Class = QzGetExceptionClass(u"net", 1722))
//         Use(Class->Name());
//     throw EQzException(u"Cannot reach %s", {Host}, 1722);
//
// The registry has no lock: classes are registered by one thread while the program starts, and looked up by
// any number of threads afterwards.
#pragma once

#include <qz/runtime/objects/Exceptions.h>

namespace qz {

// A failure with an error code.
class QZ_API EQzException : public Exception {
    QZ_EXCEPTION(EQzException, Exception)

public:
    EQzException(const UnicodeString& AMessage, std::convertible_to<std::int32_t> auto AErrorCode)
        : Exception(AMessage),
          FErrorCode(static_cast<std::int32_t>(AErrorCode)) {}
    // The message is built by Format; a bad pattern raises EConvertError instead.
    EQzException(const TStringArg& AFormat, TVarRecs AArgs, std::int32_t AErrorCode)
        : Exception(AFormat, AArgs),
          FErrorCode(AErrorCode) {}

    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    std::int32_t FErrorCode;
};

// A silent abort with an error code: a last-resort handler shows nothing for it.
class QZ_API EQzAbort : public EAbort {
    QZ_EXCEPTION(EQzAbort, EAbort)

public:
    EQzAbort(const UnicodeString& AMessage, std::convertible_to<std::int32_t> auto AErrorCode)
        : EAbort(AMessage),
          FErrorCode(static_cast<std::int32_t>(AErrorCode)) {}
    EQzAbort(const TStringArg& AFormat, TVarRecs AArgs, std::int32_t AErrorCode)
        : EAbort(AFormat, AArgs),
          FErrorCode(AErrorCode) {}

    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    std::int32_t FErrorCode;
};

using EQzExceptionClass = ClassRef<EQzException>;
using EQzAbortClass = ClassRef<EQzAbort>;

inline constexpr TTextConstant SErrorCodeInUse = u"ErrorCode %d is already in use by %s!";

// Enters a class for an error group and code. The pair is looked up first as QzGetExceptionClass does it, so
// an empty group meets an entry of that code in any group. The same class again changes nothing. Another
// class raises EAssertionFailed with SErrorCodeInUse and leaves the registry as it was; while the development
// environment runs the collision is ignored and the old entry stays. A null class is an assertion failure.
QZ_API void QzRegisterExceptionClass(const UnicodeString& AErrorGroup, std::int32_t AErrorCode,
                                     EQzExceptionClass AClass);
QZ_API void QzRegisterExceptionClass(const UnicodeString& AErrorGroup, std::int32_t AErrorCode,
                                     EQzAbortClass AClass);

// The class of the earliest entry with that code and group, or null. Groups are compared exactly; an empty
// group stands for any.
QZ_API ExceptionClass QzGetExceptionClass(const TStringArg& AErrorGroup, std::int32_t AErrorCode) noexcept;

// The class of the earliest entry whose class bears that name, in any case of letters, or null. AErrorCode,
// unless null, receives the code of the entry, or 0.
QZ_API ExceptionClass QzGetExceptionClassByName(const TStringArg& AClassName,
                                                std::int32_t* AErrorCode = nullptr) noexcept;

// True when the development environment has a window on this desktop: one of class "TAlignPalette",
// "TPropertyInspector" or "TAppBuilder", or one of class "TApplication" with the title set by QzSetIdeTitle.
// Always false on a system that has no such desktop.
QZ_API bool QzIsIdeRunning();

// Sets the title of the environment's application window; empty, the default, leaves that window out. Meant
// for program start.
QZ_API void QzSetIdeTitle(const UnicodeString& ATitle);

// True if a debugger is attached to the process; false if the system cannot report it.
QZ_API bool QzIsDebuggerPresent() noexcept;

} // namespace qz
