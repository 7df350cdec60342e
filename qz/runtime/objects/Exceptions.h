// Exception, the root of the exception classes, and the classes that the runtime itself raises.
//
//     class EBadShape : public Exception {
//         QZ_EXCEPTION(EBadShape, Exception)
//     public:
//         using Exception::Exception;
//     };
//     const TClassRec EBadShape::ClassRec =                     // in the .cpp, with DescribeException.h
//         DescribeException<EBadShape>(u"EBadShape", u"Drawing");
//
//     try {
//         throw EBadShape(u"The shape %s has no corner", {Name});
//     } catch (const Exception& E) {
//         Show(E.Message());
//     }
//
// Exceptions are values: thrown, copied and caught as any of C++, and a std::exception whose what() is UTF-8.
#pragma once

#include <concepts>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/base/VarRec.h>
#include <qz/runtime/objects/Object.h>

// Opens the body of an exception class, as QZ_CLASS does, and lets an object of it be raised by its own
// class.
#define QZ_EXCEPTION(AClass, AParent)          \
    QZ_CLASS(AClass, AParent)                  \
public:                                        \
    [[noreturn]] void Raise() const override { \
        throw AClass(*this);                   \
    }                                          \
                                               \
private:

namespace qz {

class QZ_API Exception : public TObject, public std::exception {
    QZ_CLASS(Exception, TObject)

public:
    // Ways to make an exception of a class that is known at run time only; each gives null where a class has
    // none.
    using TVirtualCreate =
        TVirtualConstructor<Exception, std::unique_ptr<Exception>(const UnicodeString& AMessage)>;
    using TVirtualCreateCode =
        TVirtualConstructor<Exception,
                            std::unique_ptr<Exception>(const UnicodeString& AMessage, std::int32_t ACode)>;

    explicit Exception(const UnicodeString& AMessage);
    // The message is built by Format; a bad pattern raises EConvertError instead.
    Exception(const TStringArg& APattern, TVarRecs AArgs);

    const UnicodeString& Message() const noexcept { return FMessage; }
    void SetMessage(const UnicodeString& AMessage);
    const char* what() const noexcept override { return FWhat->c_str(); }
    UnicodeString ToString() const override { return FMessage; }
    // Throws a copy of this exception with its dynamic class.
    [[noreturn]] virtual void Raise() const { throw Exception(*this); }

private:
    UnicodeString FMessage;
    std::shared_ptr<const std::string> FWhat; // in UTF-8, shared so that a copy cannot fail
};

using ExceptionClass = ClassRef<Exception>;

// Makes an exception of that class, for Raise. A class that takes no plain message gives an Exception.
QZ_API std::unique_ptr<Exception> CreateException(ExceptionClass AClass, const UnicodeString& AMessage);

// Declares an exception class that adds nothing to its parent.
#define QZ_PLAIN_EXCEPTION(AClass, AParent) \
    class QZ_API AClass : public AParent {  \
        QZ_EXCEPTION(AClass, AParent)       \
    public:                                 \
        using AParent::AParent;             \
    }

// A quiet exception: a handler of last resort shows nothing for it.
QZ_PLAIN_EXCEPTION(EAbort, Exception);
// A condition that only a programming error can break.
QZ_PLAIN_EXCEPTION(EAssertionFailed, Exception);
// A text, number or date that cannot be converted.
QZ_PLAIN_EXCEPTION(EConvertError, Exception);
// An integer division by zero.
QZ_PLAIN_EXCEPTION(EDivByZero, Exception);
QZ_PLAIN_EXCEPTION(EInvalidCast, Exception);
QZ_PLAIN_EXCEPTION(EIntfCastError, EInvalidCast);
QZ_PLAIN_EXCEPTION(EInvalidPointer, Exception);
QZ_PLAIN_EXCEPTION(EInvalidOperation, Exception);
QZ_PLAIN_EXCEPTION(ERangeError, Exception);
QZ_PLAIN_EXCEPTION(ENotSupportedException, Exception);
QZ_PLAIN_EXCEPTION(EArgumentException, Exception);
QZ_PLAIN_EXCEPTION(EArgumentNilException, EArgumentException);
QZ_PLAIN_EXCEPTION(EArgumentOutOfRangeException, EArgumentException);
QZ_PLAIN_EXCEPTION(EListError, Exception);
QZ_PLAIN_EXCEPTION(EStringListError, Exception);
QZ_PLAIN_EXCEPTION(EComponentError, Exception);
QZ_PLAIN_EXCEPTION(EClassNotFound, Exception);
QZ_PLAIN_EXCEPTION(EPropertyError, Exception);
// A value or a name that does not fit the type of a property, a set or an enumeration.
QZ_PLAIN_EXCEPTION(EPropertyConvertError, Exception);
QZ_PLAIN_EXCEPTION(EThread, Exception);

// A failure of a stream or a file.
class QZ_API EStreamError : public Exception {
    QZ_EXCEPTION(EStreamError, Exception)
public:
    using Exception::Exception;
    EStreamError(const TStringArg& APattern, TVarRecs AArgs, std::int32_t ACode)
        : Exception(APattern, AArgs),
          FErrorCode(ACode) {}
    // The number of the system's error, or 0.
    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    std::int32_t FErrorCode = 0;
};
QZ_PLAIN_EXCEPTION(EFCreateError, EStreamError);
QZ_PLAIN_EXCEPTION(EFOpenError, EStreamError);
QZ_PLAIN_EXCEPTION(EReadError, EStreamError);
QZ_PLAIN_EXCEPTION(EWriteError, EStreamError);

// A failure of the operating system, with its number: errno or the Windows error.
class QZ_API EOSError : public Exception {
    QZ_EXCEPTION(EOSError, Exception)
public:
    using Exception::Exception;
    EOSError(const UnicodeString& AMessage, std::convertible_to<std::int32_t> auto ACode)
        : Exception(AMessage),
          FErrorCode(static_cast<std::int32_t>(ACode)) {}
    EOSError(const TStringArg& APattern, TVarRecs AArgs, std::int32_t ACode)
        : Exception(APattern, AArgs),
          FErrorCode(ACode) {}
    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    std::int32_t FErrorCode = 0;
};

// A failure of input or output, with its number.
class QZ_API EInOutError : public Exception {
    QZ_EXCEPTION(EInOutError, Exception)
public:
    using Exception::Exception;
    EInOutError(const UnicodeString& AMessage, std::convertible_to<std::int32_t> auto ACode)
        : Exception(AMessage),
          FErrorCode(static_cast<std::int32_t>(ACode)) {}
    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    std::int32_t FErrorCode = 0;
};

// Raises EOSError for a system error number: "System Error.  Code: 2.", the system's own text, and
// AAdditional where given, on lines of their own.
[[noreturn]] QZ_API void RaiseOSError(std::int32_t ACode, const TStringArg& AAdditional = u"");
// The same for the calling thread's last error. Without one: "A call to an OS function failed".
[[noreturn]] QZ_API void RaiseLastOSError();

// The system's text for an error number.
QZ_API UnicodeString SysErrorMessage(std::int32_t ACode);

// Hands the exception that is being handled to AHandler as an Exception; for use in a catch block. What is no
// Exception comes as one with the same message, or "Unknown exception". Inline, since a library that is
// linked dynamically by mingw cannot rethrow what its caller handles.
inline void HandleException(const std::function<void(Exception&)>& AHandler) {
    try {
        throw;
    } catch (Exception& E) {
        AHandler(E);
    } catch (const std::exception& E) {
        Exception Wrapped{UnicodeString(E.what())};
        AHandler(Wrapped);
    } catch (...) {
        Exception Wrapped{UnicodeString(u"Unknown exception")};
        AHandler(Wrapped);
    }
}

// Aborts the operation silently: raises EAbort, "Operation aborted".
[[noreturn]] QZ_API void Abort();

namespace detail {
[[noreturn]] QZ_API void RaiseAssertion(std::u16string_view AMessage);
}

// Raises EAssertionFailed with the message when the condition does not hold; never compiled away.
inline void Assert(bool ACondition, std::u16string_view AMessage = u"Assertion failure") {
    if (!ACondition) [[unlikely]]
        detail::RaiseAssertion(AMessage);
}

} // namespace qz
