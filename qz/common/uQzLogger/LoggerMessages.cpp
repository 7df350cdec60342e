// TQzLogger: the families of messages.
#include <qz/common/uQzLogger/LogData.h>
#include <qz/common/uQzLogger/LogDrops.h>
#include <qz/common/uQzLogger/LoggerClass.h>
#include <qz/common/uQzLogger/detail/LogDispatch.h>
#include <qz/runtime/text/Format.h>

namespace qz {
namespace {

std::u16string_view ClassOfObject(const TObject* AObject) noexcept {
    return AObject == nullptr ? std::u16string_view(u"nil") : AObject->ClassName();
}

UnicodeString TraceText(const TObject* AObject, const UnicodeString& AMessage) {
    return Format(u"%s($%p).%s", {ClassOfObject(AObject), static_cast<const void*>(AObject), AMessage});
}

UnicodeString MethodText(const TObject* AObject, const TQzLogText& AMessage) {
    return UnicodeString(ClassOfObject(AObject)) + u'.' + AMessage.ToString();
}

bool IsSound(const TQzLogText& APattern, TVarRecs AArgs) {
    try {
        APattern.CheckFor(AArgs);
        return true;
    } catch (const EConvertError&) {
        return false;
    }
}

// An Exception is a value as an object is, any other exception as its text.
UnicodeString TextOf(const std::exception& AException) {
    const auto* const Own = dynamic_cast<const Exception*>(&AException);
    return Own != nullptr ? Own->Message() : UnicodeString(AException.what());
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
inline void TQzLogger::Send(TQzLogLevel ALevel, const TQzLogText& AMessage, PQzDataRec AValue,
                            TQzLogIndent AIndent) {
    if (IsTaken(ALevel))
        SendTaken(ALevel, AMessage, AValue, AIndent);
    else if (AMessage.HasArgs() || ALevel >= llFatal)
        SendToNobody(ALevel, AMessage);
}

// The same for a pattern. The check reads it where it is: a copy would cost more than the rest.
inline void TQzLogger::SendPattern(TQzLogLevel ALevel, const TQzLogText& APattern, const TVarRecs& AArgs,
                                   TQzLogIndent AIndent) {
    if (IsTaken(ALevel))
        return SendTaken(ALevel, TQzLogText(APattern, AArgs), nullptr, AIndent);
    APattern.CheckFor(AArgs);
    if (ALevel >= llFatal)
        SendToNobody(ALevel, TQzLogText(APattern, AArgs));
}

void TQzLogger::SendTaken(TQzLogLevel ALevel, const TQzLogText& AMessage, PQzDataRec AValue,
                          TQzLogIndent AIndent) {
    if (!AMessage.HasArgs())
        return detail::TLogDispatch::Send(*this, {FullName(), ALevel, AMessage, AValue, AIndent});
    const UnicodeString Text = AMessage.ToString(); // a bad pattern ends here
    detail::TLogDispatch::Send(*this, {FullName(), ALevel, Text, AValue, AIndent});
}

void TQzLogger::SendToNobody(TQzLogLevel ALevel, const TQzLogText& AMessage) const {
    AMessage.Check();
    if (ALevel >= llFatal && FTakenFrom.load(std::memory_order_relaxed) == cLevelOfNobody)
        detail::ReportLostFatal(FullName(), AMessage.ToString());
}

void TQzLogger::DoLog(const UnicodeString& ASource, TQzLogLevel ALevel, const TQzLogText& AMessage,
                      PQzDataRec AValue, TQzLogIndent AIndent) noexcept {
    if (IsTaken(ALevel))
        detail::TLogDispatch::Send(*this, {ASource, ALevel, AMessage, AValue, AIndent});
}

void TQzLogger::Trace(const TQzLogText& AMessage) {
    Send(llTrace, AMessage);
}
void TQzLogger::Trace(const TObject* AObject, const TQzLogText& AMessage) {
    if (IsTaken(llTrace))
        Send(llTrace, TraceText(AObject, AMessage.ToString()));
}
void TQzLogger::Trace(const TObject* AObject, const TQzLogText& APattern, TVarRecs AArgs) {
    const TQzLogText Text(APattern, AArgs);
    if (IsTaken(llTrace))
        Send(llTrace, TraceText(AObject, Text.ToString()));
    else
        Text.Check();
}

void TQzLogger::Debug(const TQzLogText& AMessage) {
    Send(llDebug, AMessage);
}
void TQzLogger::Debug(const TQzLogText& APattern, TVarRecs AArgs) {
    SendPattern(llDebug, APattern, AArgs);
}
void TQzLogger::Debug(const TQzLogText& AMessage, const Variant& AValue) {
    Log(llDebug, AMessage, AValue);
}
void TQzLogger::Debug(const TQzLogText& AMessage, const TObject* AValue) {
    Log(llDebug, AMessage, AValue);
}
void TQzLogger::Debug(const TQzLogText& AMessage, const Exception& AValue) {
    Log(llDebug, AMessage, AValue);
}

void TQzLogger::Info(const TQzLogText& AMessage) {
    Send(llInfo, AMessage);
}
void TQzLogger::Warn(const TQzLogText& AMessage) {
    Send(llWarn, AMessage);
}
void TQzLogger::Error(const TQzLogText& AMessage) {
    Send(llError, AMessage);
}

void TQzLogger::Fatal(const TQzLogText& AMessage) {
    Send(llFatal, AMessage);
}
void TQzLogger::Fatal(const TQzLogText& APattern, TVarRecs AArgs) {
    SendPattern(llFatal, APattern, AArgs);
}
void TQzLogger::Fatal(const Exception& AValue) {
    Log(llFatal, AValue.Message(), AValue);
}
void TQzLogger::Fatal(const TQzLogText& AMessage, const Exception& AValue) {
    Log(llFatal, AMessage, AValue);
}

void TQzLogger::Count(const TStringArg& AName, std::int32_t AValue) {
    if (IsTaken(llDebug))
        Log(llDebug, u"#counter::" + AName.ToString() + u"#", Variant(AValue));
}

void TQzLogger::ClearLog() {}

void TQzLogger::EnterMethod(const TQzLogText& AMessage, TQzLogLevel ALevel) {
    Send(ALevel, AMessage, nullptr, liIndentIncrease);
}
void TQzLogger::EnterMethod(const TQzLogText& APattern, TVarRecs AArgs, TQzLogLevel ALevel) {
    SendPattern(ALevel, APattern, AArgs, liIndentIncrease);
}
void TQzLogger::EnterMethod(const TObject* AObject, const TQzLogText& AMessage, TQzLogLevel ALevel) {
    if (IsTaken(ALevel))
        Send(ALevel, MethodText(AObject, AMessage), nullptr, liIndentIncrease);
}
void TQzLogger::EnterMethod(const TObject* AObject, const TQzLogText& APattern, TVarRecs AArgs,
                            TQzLogLevel ALevel) {
    if (IsTaken(ALevel) || !IsSound(APattern, AArgs))
        Send(ALevel, Format(MethodText(AObject, APattern), AArgs), nullptr, liIndentIncrease);
}

void TQzLogger::ExitMethod(const TQzLogText& AMessage, TQzLogLevel ALevel) {
    Send(ALevel, AMessage, nullptr, liIndentDecrease);
}
void TQzLogger::ExitMethod(const TQzLogText& APattern, TVarRecs AArgs, TQzLogLevel ALevel) {
    SendPattern(ALevel, APattern, AArgs, liIndentDecrease);
}
void TQzLogger::ExitMethod(const TObject* AObject, const TQzLogText& AMessage, TQzLogLevel ALevel) {
    if (IsTaken(ALevel))
        Send(ALevel, MethodText(AObject, AMessage), nullptr, liIndentDecrease);
}

void TQzLogger::Log(TQzLogLevel ALevel, const TQzLogText& AMessage, TQzLogIndent AIndent) {
    Send(ALevel, AMessage, nullptr, AIndent);
}
void TQzLogger::Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const Variant& AValue,
                    TQzLogIndent AIndent) {
    if (IsTaken(ALevel))
        LogValue(ALevel, AMessage, TValue::From(AValue), AIndent);
    else
        SendToNobody(ALevel, AMessage);
}
void TQzLogger::Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const TObject* AValue,
                    TQzLogIndent AIndent) {
    LogValue(ALevel, AMessage, ValueOf(AValue), AIndent);
}
void TQzLogger::Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const Exception& AValue,
                    TQzLogIndent AIndent) {
    LogValue(ALevel, AMessage, ValueOf(AValue), AIndent);
}
void TQzLogger::Log(IQzLogData* AData) {
    Assert(AData != nullptr);
    const TQzLogData& Data = *AData->Data();
    Send(Data.FLogLevel, Data.FLogMessage, nullptr, Data.FIndent);
}
void TQzLogger::LogValue(TQzLogLevel ALevel, const TQzLogText& AMessage, const TValue& AValue,
                         TQzLogIndent AIndent) {
    Send(ALevel, AMessage, &AValue, AIndent);
}

void IQzLogger::Error(const TQzLogText& AMessage, const std::exception& AValue) {
    Error(AMessage.ToString() + u"\r\n" + TextOf(AValue));
}

void IQzLogger::Fatal(const std::exception& AValue) {
    Log(llFatal, TextOf(AValue), AValue);
}

void IQzLogger::Log(TQzLogLevel ALevel, const TQzLogText& AMessage, const std::exception& AValue,
                    TQzLogIndent AIndent) {
    const auto* const Own = dynamic_cast<const Exception*>(&AValue);
    LogValue(ALevel, AMessage, Own != nullptr ? ValueOf(*Own) : TValue::From(UnicodeString(AValue.what())),
             AIndent);
}

} // namespace qz
