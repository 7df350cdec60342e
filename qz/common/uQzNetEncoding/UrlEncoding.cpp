#include <qz/common/uQzNetEncoding/UrlEncoding.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string>

#include <qz/common/uQzClasses/TextParser.h>
#include <qz/common/uQzNetEncoding/QzNetEncoding.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/text/Utf8Form.h>

namespace qz {
namespace {

enum class TAction : std::uint8_t { Copy, Escape, Drop };
using TActions = std::array<TAction, 256>;

constexpr std::size_t cFirstPrintable = 33;
constexpr TCharSet cEscaped{'!', '#', '$', '&', '\'', '(', ')', '*', '+',
                            ',', '/', ':', ';', '=',  '?', '@', '[', ']'};

constexpr TActions ActionsFor(const TCharSet& AUnsafe) {
    TActions Result{};
    for (std::size_t Byte = 0; Byte < Result.size(); ++Byte) {
        const auto Char = static_cast<char32_t>(Byte);
        if (Byte < cFirstPrintable || (AUnsafe.Contains(Char) && cEscaped.Contains(Char)))
            Result[Byte] = TAction::Escape;
        else if (AUnsafe.Contains(Char))
            Result[Byte] = TAction::Drop;
    }
    return Result;
}
constexpr TActions cUsualActions = ActionsFor(cEscaped);

std::string Encoded(std::string_view AText, const TActions& AActions) {
    constexpr char cDigits[] = "0123456789ABCDEF";
    std::string Result;
    Result.reserve(AText.size() + AText.size() / 4);
    const char* Start = AText.data();
    const char* const End = Start + AText.size();
    for (;;) {
        const char* Pos = Start;
        while (Pos < End && AActions[static_cast<std::uint8_t>(*Pos)] == TAction::Copy)
            ++Pos;
        Result.append(Start, Pos);
        if (Pos == End)
            return Result;
        const auto Byte = static_cast<std::uint8_t>(*Pos);
        if (AActions[Byte] == TAction::Escape)
            Result.append({'%', cDigits[Byte >> 4], cDigits[Byte & 15]});
        Start = Pos + 1;
    }
}

// The value of a hex digit; 16 for any other character.
constexpr std::uint8_t DigitOf(char AChar) noexcept {
    if (AChar >= '0' && AChar <= '9')
        return static_cast<std::uint8_t>(AChar - '0');
    const char Lower = static_cast<char>(AChar | 0x20);
    return Lower >= 'a' && Lower <= 'f' ? static_cast<std::uint8_t>(Lower - 'a' + 10) : 16;
}

// The byte whose digits follow APos, which is moved past them.
char TakeByte(const char*& APos, const char* AEnd) {
    while (APos < AEnd && static_cast<std::uint8_t>(*APos) < ' ')
        ++APos;
    if (AEnd - APos < 2)
        throw EQzTextParserEOF(u"Unexpected EOF");
    const std::uint8_t High = DigitOf(APos[0]), Low = DigitOf(APos[1]);
    const char Digits[] = {'$', APos[0], APos[1]};
    APos += 2;
    if ((High | Low) < 16) [[likely]]
        return static_cast<char>(High * 16 + Low);
    return static_cast<char>(StrToInt(AnsiString(std::string_view(Digits, 3)).ToUnicode()));
}

// Decodes in place; the number of bytes that are left.
std::size_t DecodeInPlace(char* AText, std::size_t ASize) {
    const char* Pos = AText;
    const char* const End = AText + ASize;
    char* Target = AText;
    while (Pos < End) {
        if (*Pos == '%') {
            *Target++ = TakeByte(++Pos, End);
            continue;
        }
        const void* Found = std::memchr(Pos, '%', static_cast<std::size_t>(End - Pos));
        const char* const RunEnd = Found == nullptr ? End : static_cast<const char*>(Found);
        std::memmove(Target, Pos, static_cast<std::size_t>(RunEnd - Pos));
        Target += RunEnd - Pos;
        Pos = RunEnd;
    }
    return static_cast<std::size_t>(Target - AText);
}

} // namespace

constinit const TClassRec TURLEncoding::ClassRec =
    DescribeClass<TURLEncoding>(u"TURLEncoding", {.Unit = u"uQzNetEncoding"});

UnicodeString TURLEncoding::Encode(const TStringArg& AValue, const TUnsafeChars& AUnsafeChars,
                                   TEncodeOptions) const {
    const std::string Result =
        Encoded(TUtf8Form(AValue).View(), AUnsafeChars.IsEmpty() ? cUsualActions : ActionsFor(AUnsafeChars));
    return IsAscii(Result) ? UnicodeString(Result)
                           : CodePageToUnicode(cSystemCodePage, std::as_bytes(std::span(Result)));
}

UnicodeString TURLEncoding::Decode(const TStringArg& AValue, TDecodeOptions) const {
    AnsiString Bytes(AValue.ToString());
    char* const Text = Bytes.UniqueData();
    return UnicodeString(std::string_view(Text, Bytes.empty() ? 0 : DecodeInPlace(Text, Bytes.size())));
}

const TURLEncoding& TQzNetEncoding::URL() {
    static const TURLEncoding* const Made = std::make_unique<TURLEncoding>().release(); // never destroyed
    return *Made;
}

} // namespace qz
