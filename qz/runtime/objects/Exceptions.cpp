#include <qz/runtime/objects/Exceptions.h>

#include <functional>
#include <qz/platform/Error.h>
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"System";

} // namespace

QZ_REGISTER_TYPES(Exception, EAbort, EAssertionFailed, EConvertError, EDivByZero, EInvalidCast,
                  EIntfCastError, EInvalidPointer, EInvalidOperation, ERangeError, ENotSupportedException,
                  EArgumentException, EArgumentNilException, EArgumentOutOfRangeException, EListError,
                  EStringListError, EComponentError, EClassNotFound, EPropertyError, EPropertyConvertError,
                  EThread, EStreamError, EFCreateError, EFOpenError, EReadError, EWriteError, EOSError,
                  EInOutError);

constinit const TClassRec Exception::ClassRec = DescribeException<Exception>(u"Exception", cUnit);
constinit const TClassRec EAbort::ClassRec = DescribeException<EAbort>(u"EAbort", cUnit);
constinit const TClassRec EAssertionFailed::ClassRec =
    DescribeException<EAssertionFailed>(u"EAssertionFailed", cUnit);
constinit const TClassRec EConvertError::ClassRec = DescribeException<EConvertError>(u"EConvertError", cUnit);
constinit const TClassRec EDivByZero::ClassRec = DescribeException<EDivByZero>(u"EDivByZero", cUnit);
constinit const TClassRec EInvalidCast::ClassRec = DescribeException<EInvalidCast>(u"EInvalidCast", cUnit);
constinit const TClassRec EIntfCastError::ClassRec =
    DescribeException<EIntfCastError>(u"EIntfCastError", cUnit);
constinit const TClassRec EInvalidPointer::ClassRec =
    DescribeException<EInvalidPointer>(u"EInvalidPointer", cUnit);
constinit const TClassRec EInvalidOperation::ClassRec =
    DescribeException<EInvalidOperation>(u"EInvalidOperation", cUnit);
constinit const TClassRec ERangeError::ClassRec = DescribeException<ERangeError>(u"ERangeError", cUnit);
constinit const TClassRec ENotSupportedException::ClassRec =
    DescribeException<ENotSupportedException>(u"ENotSupportedException", cUnit);
constinit const TClassRec EArgumentException::ClassRec =
    DescribeException<EArgumentException>(u"EArgumentException", cUnit);
constinit const TClassRec EArgumentNilException::ClassRec =
    DescribeException<EArgumentNilException>(u"EArgumentNilException", cUnit);
constinit const TClassRec EArgumentOutOfRangeException::ClassRec =
    DescribeException<EArgumentOutOfRangeException>(u"EArgumentOutOfRangeException", cUnit);
constinit const TClassRec EListError::ClassRec = DescribeException<EListError>(u"EListError", cUnit);
constinit const TClassRec EStringListError::ClassRec =
    DescribeException<EStringListError>(u"EStringListError", cUnit);
constinit const TClassRec EComponentError::ClassRec =
    DescribeException<EComponentError>(u"EComponentError", cUnit);
constinit const TClassRec EClassNotFound::ClassRec =
    DescribeException<EClassNotFound>(u"EClassNotFound", cUnit);
constinit const TClassRec EPropertyError::ClassRec =
    DescribeException<EPropertyError>(u"EPropertyError", cUnit);
constinit const TClassRec EPropertyConvertError::ClassRec =
    DescribeException<EPropertyConvertError>(u"EPropertyConvertError", cUnit);
constinit const TClassRec EThread::ClassRec = DescribeException<EThread>(u"EThread", cUnit);
constinit const TClassRec EStreamError::ClassRec = DescribeException<EStreamError>(u"EStreamError", cUnit);
constinit const TClassRec EFCreateError::ClassRec = DescribeException<EFCreateError>(u"EFCreateError", cUnit);
constinit const TClassRec EFOpenError::ClassRec = DescribeException<EFOpenError>(u"EFOpenError", cUnit);
constinit const TClassRec EReadError::ClassRec = DescribeException<EReadError>(u"EReadError", cUnit);
constinit const TClassRec EWriteError::ClassRec = DescribeException<EWriteError>(u"EWriteError", cUnit);
constinit const TClassRec EOSError::ClassRec = DescribeException<EOSError>(u"EOSError", cUnit);
constinit const TClassRec EInOutError::ClassRec = DescribeException<EInOutError>(u"EInOutError", cUnit);

Exception::Exception(const UnicodeString& AMessage)
    : FMessage(AMessage),
      FWhat(std::make_shared<const std::string>(AMessage)) {}

void Exception::SetMessage(const UnicodeString& AMessage) {
    FWhat = std::make_shared<const std::string>(AMessage);
    FMessage = AMessage;
}

std::unique_ptr<Exception> CreateException(ExceptionClass AClass, const UnicodeString& AMessage) {
    if (AClass)
        if (const auto Make = Exception::TVirtualCreate::Find(AClass))
            return Make(AMessage);
    return std::make_unique<Exception>(AMessage);
}

UnicodeString SysErrorMessage(std::int32_t ACode) {
    return platform::ErrorText(ACode);
}

void RaiseOSError(std::int32_t ACode, const TStringArg& AAdditional) {
    if (ACode == 0)
        throw EOSError(UnicodeString(u"A call to an OS function failed") + AAdditional.View(), 0);
    const UnicodeString Text = SysErrorMessage(ACode);
    if (AAdditional.View().empty())
        throw EOSError(u"System Error.  Code: %d.\r\n%s", {ACode, Text}, ACode);
    throw EOSError(u"System Error.  Code: %d.\r\n%s\r\n%s", {ACode, Text, AAdditional.View()}, ACode);
}

void RaiseLastOSError() {
    RaiseOSError(platform::LastError());
}

void Abort() {
    throw EAbort(u"Operation aborted");
}

void detail::RaiseAssertion(std::u16string_view AMessage) {
    throw EAssertionFailed(AMessage);
}

} // namespace qz
