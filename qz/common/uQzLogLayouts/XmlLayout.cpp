#include <qz/common/uQzLogLayouts/XmlLayout.h>

#include <qz/common/uQzLogLayouts/detail/LinePen.h>
#include <qz/common/uQzLogLayouts/detail/XmlStylesheet.h>
#include <qz/common/uQzWindows/Accounts.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

QZ_REGISTER_TYPES(TQzXmlLayout);

constinit const TClassRec TQzXmlLayout::ClassRec = DescribeLogBase<TQzXmlLayout>(
    u"TQzXmlLayout",
    {.Unit = u"uQzLogLayouts",
     .Interfaces = Interfaces<TQzXmlLayout, IQzLogLayoutEx, IQzLogLayout, _IQzLogLayout, IQzLogDocument>()});

namespace {

constexpr TTextConstant cFooter = u"</log>";
constexpr TTextConstant cExtension = u".log.xml";
constexpr std::size_t cMarkUpOfItem = 224; // with that of a value, roughly
constexpr std::u16string_view cEndOfText = u"]]>";

void AppendTime(UnicodeString& ATarget) {
    std::uint16_t Year = 0, Month = 0, Day = 0, Hour = 0, Minute = 0, Second = 0, MSec = 0;
    DecodeDateTime(NowUTC(), Year, Month, Day, Hour, Minute, Second, MSec);
    constexpr std::size_t cLength = 20; // 2024-01-31T07:15:02Z
    detail::TLinePen Pen{ATarget.AppendRoom(cLength)};
    Pen.PutDate(Year, Month, Day);
    Pen.Put(u'T');
    Pen.PutTime(Hour, Minute, Second);
    Pen.Put(u'Z');
}

void AppendNumber(UnicodeString& ATarget, std::uint32_t ANumber) {
    char16_t Digits[10];
    char16_t* Place = std::end(Digits);
    do {
        *--Place = static_cast<char16_t>(u'0' + ANumber % 10);
        ANumber /= 10;
    } while (ANumber != 0);
    ATarget.Append({Place, std::end(Digits)});
}

// Whether XML 1.0 excludes the character. Lone surrogates pass, since the conversion to UTF-8 replaces them
// by U+FFFD.
constexpr bool IsForbidden(char16_t AChar) noexcept {
    return (AChar < 0x20 && AChar != u'\t' && AChar != u'\n' && AChar != u'\r') || AChar >= 0xFFFE;
}

// The escape of a character, or null.
constexpr const char16_t* EscapeOf(char16_t AChar) noexcept {
    switch (AChar) {
    case u'&': return u"&amp;";
    case u'\'': return u"&apos;";
    case u'"': return u"&quot;";
    case u'<': return u"&lt;";
    case u'>': return u"&gt;";
    case 0: return u"";
    default: return nullptr;
    }
}

} // namespace

// Copies the runs between special characters in one piece.
void TQzXmlLayout::AppendEscaped(UnicodeString& ATarget, std::u16string_view AText) const {
    const bool IsStrict = FIsStrict;
    std::size_t Copied = 0;
    for (std::size_t I = 0; I < AText.size(); ++I) {
        const char16_t Char = AText[I];
        if (Char > u'>' && Char < 0xFFFE)
            continue;
        const char16_t* Escape = EscapeOf(Char);
        if (Escape == nullptr && IsStrict && IsForbidden(Char))
            Escape = u"\uFFFD";
        if (Escape == nullptr)
            continue;
        ATarget.Append(AText.substr(Copied, I - Copied));
        ATarget.Append(Escape);
        Copied = I + 1;
    }
    ATarget.Append(AText.substr(Copied));
}

void TQzXmlLayout::AppendValue(UnicodeString& ATarget, std::u16string_view AValue) const {
    if (TrimView(AValue).empty())
        return;
    ATarget.Append(u"<logValue><![CDATA[");
    const auto Start = static_cast<std::size_t>(ATarget.Length());
    for (std::size_t Place = 0; Place < AValue.size();) {
        const std::size_t Found = std::min(AValue.find(cEndOfText, Place), AValue.size());
        ATarget.Append(AValue.substr(Place, Found - Place));
        if (Found < AValue.size())
            ATarget.Append(u"__>");
        Place = Found + cEndOfText.size();
    }
    if (FIsStrict) {
        std::replace_if(
            ATarget.UniqueData() + Start, ATarget.UniqueData() + ATarget.Length(),
            [](char16_t AChar) { return IsForbidden(AChar); }, u'\uFFFD');
    }
    ATarget.Append(u"]]></logValue>");
}

UnicodeString TQzXmlLayout::GetHeader() {
    UnicodeString Result;
    if (!FXslFilename.IsEmpty()) {
        Result += u"<?xml-stylesheet type=\"text/xsl\" href=\"";
        if (FIsStrict)
            AppendEscaped(Result, ExtractFileName(FXslFilename));
        else
            Result += ExtractFileName(FXslFilename);
        Result += u"\"?>";
    }
    Result += u"<log timeStamp=\"";
    AppendTime(Result);
    Result += u"\" fileName=\"";
    if (FIsStrict)
        AppendEscaped(Result, ProgramFileName());
    else
        Result += ProgramFileName();
    Result += u"\" userName=\"";
    AppendEscaped(Result, QzGetUserName());
    Result += u"\" computer=\"";
    AppendEscaped(Result, QzGetComputerName());
    Result += u"\" processID=\"";
    AppendNumber(Result, platform::CurrentProcessId());
    Result += u"\">";
    return Result;
}

UnicodeString TQzXmlLayout::GetFooter() {
    return cFooter;
}

UnicodeString TQzXmlLayout::GetFileExt() {
    return cExtension;
}

UnicodeString TQzXmlLayout::FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel,
                                       const UnicodeString& AMessage, PQzDataRec AValue,
                                       TQzLogIndent AIndent) {
    const UnicodeString Value = AValue == nullptr ? UnicodeString() : AValue->ToString();
    UnicodeString Result;
    Result.Reserve(cMarkUpOfItem + ALogger.size() + AMessage.size() + Value.size());
    Result += u"<item><timeStamp>";
    AppendTime(Result);
    Result += u"</timeStamp><threadID>";
    AppendNumber(Result, QzGetCurrentThreadId());
    Result += u"</threadID><loggerName>";
    AppendEscaped(Result, ALogger);
    Result += u"</loggerName><logLevel>";
    AppendNumber(Result, static_cast<std::uint32_t>(ALevel));
    Result += u"</logLevel><logIndent>";
    AppendNumber(Result, static_cast<std::uint32_t>(AIndent));
    Result += u"</logIndent><logMessage>";
    AppendEscaped(Result, AMessage);
    Result += u"</logMessage>";
    AppendValue(Result, Value);
    Result += u"</item>";
    return Result;
}

void TQzXmlLayout::Initialize(TQzLogBase* ALogBase) {
    // Not counted, since the appender may have no reference yet.
    auto* const Appender = ALogBase != nullptr
        ? static_cast<IQzFileAppender*>(ALogBase->FindInterface(IQzFileAppender::IID))
        : nullptr;
    if (Appender == nullptr)
        return;
    const UnicodeString FileName = ChangeFileExt(Appender->GetFileName(), u".xsl");
    FXslFilename = FileName;
    if (FileExists(FileName))
        return;
    TStringList Lines;
    for (const std::u16string_view Line : detail::cXmlStylesheet)
        Lines.Add(Line);
    const UnicodeString Path = ExtractFilePath(FileName);
    if (!Path.IsEmpty())
        ForceDirectories(Path);
    Lines.SaveToFile(FileName);
}

} // namespace qz
