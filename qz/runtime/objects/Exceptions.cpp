#include <qz/runtime/objects/Exceptions.h>

#include <functional>
#include <qz/platform/Error.h>
#include <qz/runtime/objects/DescribeException.h>

namespace qz {
namespace {

constexpr std::u16string_view cErrorUnit = u"System.SysUtils";
constexpr std::u16string_view cClassesUnit = u"System.Classes";

} // namespace

constinit const TClassRec Exception::ClassRec = DescribeException<Exception>(u"Exception", cErrorUnit);
constinit const TClassRec EAbort::ClassRec = DescribeException<EAbort>(u"EAbort", cErrorUnit);
constinit const TClassRec EAssertionFailed::ClassRec =
    DescribeException<EAssertionFailed>(u"EAssertionFailed", cErrorUnit);
constinit const TClassRec EConvertError::ClassRec =
    DescribeException<EConvertError>(u"EConvertError", cErrorUnit);
constinit const TClassRec EInvalidCast::ClassRec =
    DescribeException<EInvalidCast>(u"EInvalidCast", cErrorUnit);
constinit const TClassRec EIntfCastError::ClassRec =
    DescribeException<EIntfCastError>(u"EIntfCastError", cErrorUnit);
constinit const TClassRec EInvalidPointer::ClassRec =
    DescribeException<EInvalidPointer>(u"EInvalidPointer", cErrorUnit);
constinit const TClassRec EInvalidOperation::ClassRec =
    DescribeException<EInvalidOperation>(u"EInvalidOperation", cErrorUnit);
constinit const TClassRec ERangeError::ClassRec = DescribeException<ERangeError>(u"ERangeError", cErrorUnit);
constinit const TClassRec ENotSupportedException::ClassRec =
    DescribeException<ENotSupportedException>(u"ENotSupportedException", cErrorUnit);
constinit const TClassRec EArgumentException::ClassRec =
    DescribeException<EArgumentException>(u"EArgumentException", cErrorUnit);
constinit const TClassRec EArgumentNilException::ClassRec =
    DescribeException<EArgumentNilException>(u"EArgumentNilException", cErrorUnit);
constinit const TClassRec EArgumentOutOfRangeException::ClassRec =
    DescribeException<EArgumentOutOfRangeException>(u"EArgumentOutOfRangeException", cErrorUnit);
constinit const TClassRec EListError::ClassRec = DescribeException<EListError>(u"EListError", cClassesUnit);
constinit const TClassRec EStringListError::ClassRec =
    DescribeException<EStringListError>(u"EStringListError", cClassesUnit);
constinit const TClassRec EComponentError::ClassRec =
    DescribeException<EComponentError>(u"EComponentError", cClassesUnit);
constinit const TClassRec EClassNotFound::ClassRec =
    DescribeException<EClassNotFound>(u"EClassNotFound", cClassesUnit);
constinit const TClassRec EPropertyError::ClassRec =
    DescribeException<EPropertyError>(u"EPropertyError", cErrorUnit);
constinit const TClassRec EPropertyConvertError::ClassRec =
    DescribeException<EPropertyConvertError>(u"EPropertyConvertError", u"System.TypInfo");
constinit const TClassRec EThread::ClassRec = DescribeException<EThread>(u"EThread", cClassesUnit);
constinit const TClassRec EStreamError::ClassRec =
    DescribeException<EStreamError>(u"EStreamError", cClassesUnit);
constinit const TClassRec EFCreateError::ClassRec =
    DescribeException<EFCreateError>(u"EFCreateError", cClassesUnit);
constinit const TClassRec EFOpenError::ClassRec =
    DescribeException<EFOpenError>(u"EFOpenError", cClassesUnit);
constinit const TClassRec EReadError::ClassRec = DescribeException<EReadError>(u"EReadError", cClassesUnit);
constinit const TClassRec EWriteError::ClassRec =
    DescribeException<EWriteError>(u"EWriteError", cClassesUnit);
constinit const TClassRec EOSError::ClassRec = DescribeException<EOSError>(u"EOSError", cErrorUnit);
constinit const TClassRec EInOutError::ClassRec = DescribeException<EInOutError>(u"EInOutError", cErrorUnit);

Exception::Exception(const UnicodeString& AMessage) : FMessage(AMessage), FWhat(std::string(AMessage)) {}

void Exception::SetMessage(const UnicodeString& AMessage) {
    FWhat = std::runtime_error(std::string(AMessage));
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
    EOSError Error(u"System Error.  Code: %d.\r\n%s", {ACode, SysErrorMessage(ACode)}, ACode);
    if (!AAdditional.View().empty())
        Error.SetMessage(Error.Message() + u"\r\n" + AAdditional.View());
    throw Error;
}

void RaiseLastOSError() {
    RaiseOSError(platform::LastError());
}

void HandleException(const std::function<void(Exception&)>& AHandler) {
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

void Abort() {
    throw EAbort(u"Operation aborted");
}

void detail::RaiseAssertion(std::u16string_view AMessage) {
    throw EAssertionFailed(AMessage);
}

} // namespace qz
