// TQzDN: its text form, read and written.
#include <algorithm>
#include <array>

#include <qz/common/uQzClasses/DistinguishedName.h>
#include <qz/common/uQzClasses/TextParser.h>
#include <qz/runtime/base/StringUtils.h>

namespace qz {
namespace {

using TView = std::u16string_view;

// What "\" may stand before in a text, and what it is written before within a value.
constexpr TCharSet cSpecial{'"', '+', ',', '/', ';', '<', '=', '>', '\\'};
constexpr TCharSet cEscapable = cSpecial + TCharSet{' ', '#'};
// What ends a run of plain characters, in a text and in a value.
constexpr TCharSet cStops{',', '\\', '"'};
constexpr TCharSet cUnplain = cSpecial + TCharSet{' ', '\n', '\r'};

std::size_t FindOf(TView AText, std::size_t AFrom, const TCharSet& ASet) noexcept {
    while (AFrom < AText.size() && !ASet.Contains(char32_t{AText[AFrom]}))
        ++AFrom;
    return AFrom;
}

std::size_t FindNot(TView AText, std::size_t AFrom, char16_t AChar) noexcept {
    return std::min(AText.find_first_not_of(AChar, AFrom), AText.size());
}

// The value of a hex digit; -1 for any other character.
int DigitOf(char16_t AChar) noexcept {
    if (AChar >= u'0' && AChar <= u'9')
        return AChar - u'0';
    const char16_t Lower = LowCase(AChar);
    return Lower >= u'a' && Lower <= u'f' ? Lower - u'a' + 10 : -1;
}

class TParser {
public:
    explicit TParser(TView AText) noexcept : FText(AText) {}

    bool AtEnd() const noexcept { return FPos == FText.size(); }
    TQzRDN Entry() {
        const std::size_t Start = FPos;
        FPos = std::min(FText.find(u'=', Start), FText.size());
        const TView Name = TrimView(FText.substr(Start, FPos - Start));
        FPos = FindNot(FText, FindNot(FText, FPos, u'='), u' ');
        TQzRDN Result(Name, Value());
        FPos = FindNot(FText, FPos, u',');
        return Result;
    }

private:
    bool Is(char16_t AChar) const noexcept { return !AtEnd() && FText[FPos] == AChar; }
    void Step() {
        if (AtEnd())
            RaiseEnd();
        ++FPos;
    }
    [[noreturn]] static void RaiseEnd() { throw EQzTextParserEOF(u"Unexpected EOF"); }

    UnicodeString Value() {
        const std::size_t First = FPos;
        FPos = FindOf(FText, First, cStops);
        if (AtEnd() || Is(u','))
            return FText.substr(First, FPos - First);
        FPos = First;
        UnicodeString Result;
        bool Quoted = Is(u'"');
        if (Quoted)
            PassOpeningQuote();
        while (Is(u'\\'))
            Escape(Result);
        do {
            const std::size_t Start = FPos;
            FPos = FindOf(FText, Start, cStops);
            Result.Append(FText.substr(Start, FPos - Start));
            if (Is(u'"')) {
                FPos += Quoted ? 0 : 1; // the quote that closes is passed by the next turn
                Quoted = false;
            }
            if (Is(u'\\'))
                Escape(Result);
            if (Quoted && (AtEnd() || Is(u','))) {
                Result += u',';
                Step();
            }
        } while (!AtEnd() && !Is(u','));
        return Result;
    }
    // Control characters after it are passed too.
    void PassOpeningQuote() {
        do
            Step();
        while (!AtEnd() && FText[FPos] < u' ');
    }
    void Escape(UnicodeString& AValue) {
        const TView Chars = FText.substr(FPos + 1, 2);
        if (!Chars.empty() && cEscapable.Contains(char32_t{Chars[0]})) {
            AValue += Chars[0];
            FPos += 2;
            return;
        }
        if (Chars.size() < 2)
            RaiseEnd();
        const int High = DigitOf(Chars[0]), Low = DigitOf(Chars[1]);
        if (High >= 0 && Low >= 0 && High + Low > 0)
            AValue += static_cast<char16_t>(High * 16 + Low);
        else
            AValue.Append(Chars);
        FPos += 3;
    }

    TView FText;
    std::size_t FPos = 0;
};

void AppendEscaped(UnicodeString& AText, char16_t AChar) {
    if (AChar == u'\n')
        AText += u"\\0A";
    else if (AChar == u'\r')
        AText += u"\\0D";
    else
        (AText += u'\\') += AChar;
}

void AppendValue(UnicodeString& AText, TView AValue) {
    std::size_t Pos = 0;
    for (; Pos < AValue.size() && (AValue[Pos] == u' ' || AValue[Pos] == u'#'); ++Pos)
        AppendEscaped(AText, AValue[Pos]);
    while (Pos < AValue.size()) {
        const std::size_t Start = Pos;
        Pos = FindOf(AValue, Pos, cUnplain);
        AText.Append(AValue.substr(Start, Pos - Start));
        if (Pos == AValue.size())
            return;
        const std::size_t RunEnd = FindNot(AValue, Pos, u' ');
        if (RunEnd > Pos && RunEnd < AValue.size()) {
            AText.Append(AValue.substr(Pos, RunEnd + 1 - Pos));
            Pos = RunEnd + 1;
            continue;
        }
        do // blanks at the end, or one other character
            AppendEscaped(AText, AValue[Pos++]);
        while (Pos < RunEnd);
    }
}

} // namespace

void TQzDN::ParseDN(const TStringArg& AText) {
    constexpr std::size_t cUsualCount = 8;
    TDynArray<TQzRDN> Fresh;
    std::size_t Count = 0;
    for (TParser Parser(AText); !Parser.AtEnd(); ++Count) {
        if (Count == Fresh.Length())
            Fresh.SetLength(std::max(cUsualCount, Count * 2));
        Fresh[Count] = Parser.Entry();
    }
    Fresh.SetLength(Count);
    FData.Swap(Fresh);
}

TQzDN::operator UnicodeString() const {
    UnicodeString Result;
    std::size_t Length = 0;
    for (const TQzRDN& Entry : FData)
        Length += Entry.FName.size() + Entry.FValue.size() + 2;
    Result.Reserve(Length);
    for (const TQzRDN& Entry : FData) {
        if (&Entry != begin())
            Result += u',';
        Result.Append(Entry.FName.View()) += u'=';
        AppendValue(Result, Entry.FValue);
    }
    return Result;
}

} // namespace qz
