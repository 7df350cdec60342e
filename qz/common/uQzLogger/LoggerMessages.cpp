// TQzLogger: the families of messages.
#include <qz/common/uQzLogger/LogData.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/LogDispatch.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

std::u16string_view ClassOfObject(const TObject* AObject) noexcept {
    return AObject == nullptr ? std::u16string_view(u"nil") : AObject->ClassName();
}

UnicodeString TraceText(const TObject* AObject, std::u16string_view AMessage) {
    return Format(u"%s($%p).%s", {ClassOfObject(AObject), static_cast<const void*>(AObject), AMessage});
}

UnicodeString MethodText(const TObject* AObject, std::u16string_view AMessage) {
    return UnicodeString(ClassOfObject(AObject)) + u'.' + AMessage;
}

// The value holds the address of the object, which is only read.
TValue ValueOf(const TObject* AObject) {
    return TValue(const_cast<TObject*>(AObject));
}
TValue ValueOf(const Exception& AException) {
    return ValueOf(static_cast<const TObject*>(&AException));
}

} // namespace

// Inlined into the families, so that a message that no appender takes costs one comparison.
inline void TQzLogger::Send(TQzLogLevel ALevel, const TStringArg& AMessage, PQzDataRec AValue,
                            TQzLogIndent AIndent) {
    if (IsTaken(ALevel))
        SendTaken(ALevel, AMessage, AValue, AIndent);
}

void TQzLogger::SendTaken(TQzLogLevel ALevel, const TStringArg& AMessage, PQzDataRec AValue,
                          TQzLogIndent AIndent) {
    detail::TLogDispatch::Send(*this, {FullName(), ALevel, AMessage, AValue, AIndent});
}

void TQzLogger::DoLog(const UnicodeString& ASource, TQzLogLevel ALevel, const TStringArg& AMessage,
                      PQzDataRec AValue, TQzLogIndent AIndent) noexcept {
    if (IsTaken(ALevel))
        detail::TLogDispatch::Send(*this, {ASource, ALevel, AMessage, AValue, AIndent});
}

void TQzLogger::Trace(const TStringArg& AMessage) {
    Send(llTrace, AMessage);
}
void TQzLogger::Trace(const TObject* AObject, const TStringArg& AMessage) {
    if (IsTaken(llTrace))
        Send(llTrace, TraceText(AObject, AMessage));
}
void TQzLogger::Trace(const TObject* AObject, const TStringArg& APattern, TVarRecs AArgs) {
    Trace(AObject, Format(APattern, AArgs));
}

void TQzLogger::Debug(const TStringArg& AMessage) {
    Send(llDebug, AMessage);
}
void TQzLogger::Debug(const TStringArg& APattern, TVarRecs AArgs) {
    Send(llDebug, Format(APattern, AArgs));
}
void TQzLogger::Debug(const TStringArg& AMessage, const Variant& AValue) {
    Log(llDebug, AMessage, AValue);
}
void TQzLogger::Debug(const TStringArg& AMessage, const TObject* AValue) {
    Log(llDebug, AMessage, AValue);
}
void TQzLogger::Debug(const TStringArg& AMessage, const Exception& AValue) {
    Log(llDebug, AMessage, AValue);
}

void TQzLogger::Info(const TStringArg& AMessage) {
    Send(llInfo, AMessage);
}
void TQzLogger::Warn(const TStringArg& AMessage) {
    Send(llWarn, AMessage);
}
void TQzLogger::Error(const TStringArg& AMessage) {
    Send(llError, AMessage);
}
void TQzLogger::Error(const TStringArg& AMessage, const Exception& AValue) {
    Send(llError, AMessage.ToString() + u"\r\n" + AValue.Message());
}

void TQzLogger::Fatal(const TStringArg& AMessage) {
    Send(llFatal, AMessage);
}
void TQzLogger::Fatal(const TStringArg& APattern, TVarRecs AArgs) {
    Send(llFatal, Format(APattern, AArgs));
}
void TQzLogger::Fatal(const Exception& AValue) {
    Log(llFatal, AValue.Message(), AValue);
}
void TQzLogger::Fatal(const TStringArg& AMessage, const Exception& AValue) {
    Log(llFatal, AMessage, AValue);
}

void TQzLogger::Count(const TStringArg& AName, std::int32_t AValue) {
    if (IsTaken(llDebug))
        Log(llDebug, u"#counter::" + AName.ToString() + u"#", Variant(AValue));
}

void TQzLogger::ClearLog() {}

void TQzLogger::EnterMethod(const TStringArg& AMessage, TQzLogLevel ALevel) {
    Send(ALevel, AMessage, nullptr, liIndentIncrease);
}
void TQzLogger::EnterMethod(const TStringArg& APattern, TVarRecs AArgs, TQzLogLevel ALevel) {
    Send(ALevel, Format(APattern, AArgs), nullptr, liIndentIncrease);
}
void TQzLogger::EnterMethod(const TObject* AObject, const TStringArg& AMessage, TQzLogLevel ALevel) {
    if (IsTaken(ALevel))
        Send(ALevel, MethodText(AObject, AMessage), nullptr, liIndentIncrease);
}
void TQzLogger::EnterMethod(const TObject* AObject, const TStringArg& APattern, TVarRecs AArgs,
                            TQzLogLevel ALevel) {
    Send(ALevel, Format(MethodText(AObject, APattern), AArgs), nullptr, liIndentIncrease);
}

void TQzLogger::ExitMethod(const TStringArg& AMessage, TQzLogLevel ALevel) {
    Send(ALevel, AMessage, nullptr, liIndentDecrease);
}
void TQzLogger::ExitMethod(const TStringArg& APattern, TVarRecs AArgs, TQzLogLevel ALevel) {
    Send(ALevel, Format(APattern, AArgs), nullptr, liIndentDecrease);
}
void TQzLogger::ExitMethod(const TObject* AObject, const TStringArg& AMessage, TQzLogLevel ALevel) {
    if (IsTaken(ALevel))
        Send(ALevel, MethodText(AObject, AMessage), nullptr, liIndentDecrease);
}

void TQzLogger::Log(TQzLogLevel ALevel, const TStringArg& AMessage, TQzLogIndent AIndent) {
    Send(ALevel, AMessage, nullptr, AIndent);
}
void TQzLogger::Log(TQzLogLevel ALevel, const TStringArg& AMessage, const Variant& AValue,
                    TQzLogIndent AIndent) {
    if (IsTaken(ALevel))
        LogValue(ALevel, AMessage, TValue::From(AValue), AIndent);
}
void TQzLogger::Log(TQzLogLevel ALevel, const TStringArg& AMessage, const TObject* AValue,
                    TQzLogIndent AIndent) {
    LogValue(ALevel, AMessage, ValueOf(AValue), AIndent);
}
void TQzLogger::Log(TQzLogLevel ALevel, const TStringArg& AMessage, const Exception& AValue,
                    TQzLogIndent AIndent) {
    LogValue(ALevel, AMessage, ValueOf(AValue), AIndent);
}
void TQzLogger::Log(IQzLogData* AData) {
    Assert(AData != nullptr);
    const TQzLogData& Data = *AData->Data();
    Send(Data.FLogLevel, Data.FLogMessage, nullptr, Data.FIndent);
}
void TQzLogger::LogValue(TQzLogLevel ALevel, const TStringArg& AMessage, const TValue& AValue,
                         TQzLogIndent AIndent) {
    Send(ALevel, AMessage, &AValue, AIndent);
}

} // namespace qz
