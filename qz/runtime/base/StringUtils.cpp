#include <qz/runtime/base/StringUtils.h>

#include <algorithm>
#include <vector>

#include <qz/platform/Text.h>

namespace qz {
namespace {

constexpr char16_t cLastBlank = u' ';

using TView = std::u16string_view;

// A text with Map applied to each unit.
template <class TMap> UnicodeString Mapped(TView AText, TMap AMap) {
    UnicodeString Result;
    std::transform(AText.begin(), AText.end(), Result.AppendRoom(AText.size()), AMap);
    return Result;
}

template <class TChar> int Sign(TChar ALeft, TChar ARight) noexcept {
    return ALeft < ARight ? -1 : ALeft > ARight ? 1 : 0;
}

// Up to this length the plain search is cheap even in its worst case.
constexpr std::size_t cShortPiece = 64;

// The search of Knuth, Morris and Pratt: each character of the text is looked at once or twice.
template <class TMap> std::size_t FindLong(TView AText, TView APiece, std::size_t AFrom, TMap AMap) {
    std::vector<std::uint32_t> Border(APiece.size());
    for (std::size_t I = 1, Length = 0; I < APiece.size(); ++I) {
        while (Length != 0 && AMap(APiece[I]) != AMap(APiece[Length]))
            Length = Border[Length - 1];
        if (AMap(APiece[I]) == AMap(APiece[Length]))
            ++Length;
        Border[I] = static_cast<std::uint32_t>(Length);
    }
    for (std::size_t I = AFrom, Length = 0; I < AText.size(); ++I) {
        while (Length != 0 && AMap(AText[I]) != AMap(APiece[Length]))
            Length = Border[Length - 1];
        if (AMap(AText[I]) == AMap(APiece[Length]) && ++Length == APiece.size())
            return I + 1 - Length;
    }
    return TView::npos;
}

constexpr char16_t Same(char16_t AChar) noexcept {
    return AChar;
}

constexpr std::size_t cBlock = 32;

// Whether the first two characters of the piece stand side by side within a block. Without a branch, so that
// the compiler compares many characters at a time.
bool MayStartIn(const char16_t* ABlock, char16_t AFirst, char16_t ASecond) noexcept {
    unsigned Found = 0;
    for (std::size_t I = 0; I < cBlock; ++I)
        Found |= static_cast<unsigned>(ABlock[I] == AFirst) & static_cast<unsigned>(ABlock[I + 1] == ASecond);
    return Found != 0;
}

std::size_t FindShort(TView AText, TView APiece, std::size_t AFrom) {
    if (APiece.size() < 2)
        return AText.find(APiece, AFrom);
    for (; AFrom + cBlock < AText.size(); AFrom += cBlock) {
        if (!MayStartIn(AText.data() + AFrom, APiece[0], APiece[1]))
            continue;
        for (std::size_t I = AFrom; I < AFrom + cBlock; ++I)
            if (AText[I] == APiece[0] && AText.substr(I, APiece.size()) == APiece)
                return I;
    }
    return AText.find(APiece, AFrom);
}

std::size_t Find(TView AText, TView APiece, std::size_t AFrom) {
    return APiece.size() <= cShortPiece ? FindShort(AText, APiece, AFrom)
                                        : FindLong(AText, APiece, AFrom, Same);
}

std::size_t FindText(TView AText, TView APiece) {
    if (APiece.empty())
        return TView::npos;
    if (APiece.size() > cShortPiece)
        return FindLong(AText, APiece, 0, LowCase);
    const auto Found = std::search(AText.begin(), AText.end(), APiece.begin(), APiece.end(),
                                   [](char16_t A, char16_t B) { return LowCase(A) == LowCase(B); });
    return Found == AText.end() ? TView::npos : static_cast<std::size_t>(Found - AText.begin());
}

// The part of AText that starts at the position AIndex and has ACount units, cut to the text.
TView Part(TView AText, int AIndex, int ACount) noexcept {
    const std::size_t First = AIndex < 1 ? 0 : static_cast<std::size_t>(AIndex) - 1;
    if (First >= AText.size() || ACount <= 0)
        return AText.substr(0, 0);
    return AText.substr(First, static_cast<std::size_t>(ACount));
}

constexpr bool IsIdentStart(char16_t AChar) noexcept {
    return (AChar >= u'A' && AChar <= u'Z') || (AChar >= u'a' && AChar <= u'z') || AChar == u'_';
}

// Moves AText, which begins with the quote, past the closing quote. False if that is missing.
bool TakeQuoted(TView& AText, char16_t AQuote, UnicodeString& AContent) {
    AText.remove_prefix(1);
    while (true) {
        const std::size_t At = AText.find(AQuote);
        AContent.Append(AText.substr(0, At));
        AText.remove_prefix(At == TView::npos ? AText.size() : At + 1);
        if (At == TView::npos || !AText.starts_with(AQuote))
            return At != TView::npos;
        AContent += AQuote;
        AText.remove_prefix(1);
    }
}

} // namespace

UnicodeString UpperCase(const TStringArg& AText) {
    return Mapped(AText, UpCase);
}
UnicodeString LowerCase(const TStringArg& AText) {
    return Mapped(AText, LowCase);
}
UnicodeString AnsiUpperCase(const TStringArg& AText) {
    return platform::UpperCase(AText);
}
UnicodeString AnsiLowerCase(const TStringArg& AText) {
    return platform::LowerCase(AText);
}

char16_t detail::UpperUnit(char16_t AChar) noexcept {
    return AChar < 0x80 ? UpCase(AChar) : platform::UpperChar(AChar);
}

std::u16string detail::UpperUnits(TView AText) {
    std::u16string Result(AText);
    std::ranges::transform(Result, Result.begin(), UpperUnit);
    return Result;
}

int detail::CompareUnits(TView ALeft, TView ARight) noexcept {
    return ALeft.compare(ARight);
}

int detail::CompareUnitsNoCase(TView ALeft, TView ARight) noexcept {
    const std::size_t Common = std::min(ALeft.size(), ARight.size());
    for (std::size_t I = 0; I < Common; ++I)
        if (const int Order = Sign(LowCase(ALeft[I]), LowCase(ARight[I])); Order != 0)
            return Order;
    return Sign(ALeft.size(), ARight.size());
}

int CompareStr(const TStringArg& ALeft, const TStringArg& ARight) noexcept {
    return detail::CompareUnits(ALeft, ARight);
}

int CompareText(const TStringArg& ALeft, const TStringArg& ARight) noexcept {
    return detail::CompareUnitsNoCase(ALeft, ARight);
}

bool SameText(const TStringArg& ALeft, const TStringArg& ARight) noexcept {
    const TView Left = ALeft;
    const TView Right = ARight;
    return Left.size() == Right.size() &&
        std::equal(Left.begin(), Left.end(), Right.begin(),
                   [](char16_t A, char16_t B) { return A == B || LowCase(A) == LowCase(B); });
}

int AnsiCompareStr(const TStringArg& ALeft, const TStringArg& ARight) {
    return platform::CompareStrings(ALeft, ARight, false);
}
int AnsiCompareText(const TStringArg& ALeft, const TStringArg& ARight) {
    return platform::CompareStrings(ALeft, ARight, true);
}
bool AnsiSameText(const TStringArg& ALeft, const TStringArg& ARight) {
    return platform::CompareStrings(ALeft, ARight, true) == 0;
}

std::u16string_view TrimView(std::u16string_view AText) noexcept {
    while (!AText.empty() && AText.front() <= cLastBlank)
        AText.remove_prefix(1);
    while (!AText.empty() && AText.back() <= cLastBlank)
        AText.remove_suffix(1);
    return AText;
}

UnicodeString Trim(const TStringArg& AText) {
    const TView Text = TrimView(AText);
    return Text.size() == AText.View().size() ? AText.ToString() : UnicodeString(Text);
}

UnicodeString TrimLeft(const TStringArg& AText) {
    TView Text = AText;
    while (!Text.empty() && Text.front() <= cLastBlank)
        Text.remove_prefix(1);
    return Text;
}

UnicodeString TrimRight(const TStringArg& AText) {
    TView Text = AText;
    while (!Text.empty() && Text.back() <= cLastBlank)
        Text.remove_suffix(1);
    return Text;
}

int Pos(const TStringArg& APiece, const TStringArg& AText, int AOffset) {
    const TView Text = AText;
    if (APiece.View().empty() || AOffset < 1 || static_cast<std::size_t>(AOffset) > Text.size())
        return 0;
    const std::size_t Found = Find(Text, APiece, static_cast<std::size_t>(AOffset) - 1);
    return Found == TView::npos ? 0 : static_cast<int>(Found) + 1;
}

UnicodeString Copy(const TStringArg& AText, int AIndex, int ACount) {
    return Part(AText, AIndex, ACount);
}

void Delete(UnicodeString& AText, int AIndex, int ACount) {
    const TView Text = AText;
    if (AIndex < 1 || static_cast<std::size_t>(AIndex) > Text.size() || ACount <= 0)
        return;
    const TView Gone = Part(Text, AIndex, ACount);
    const std::size_t First = static_cast<std::size_t>(AIndex) - 1;
    AText = UnicodeString::Concat(Text.substr(0, First), Text.substr(First + Gone.size()));
}

void Insert(const TStringArg& APiece, UnicodeString& AText, int AIndex) {
    const TView Text = AText;
    const std::size_t At = AIndex < 1 ? 0 : std::min(static_cast<std::size_t>(AIndex) - 1, Text.size());
    UnicodeString Result;
    Result.Reserve(Text.size() + APiece.View().size());
    Result.Append(Text.substr(0, At)).Append(APiece).Append(Text.substr(At));
    AText = std::move(Result);
}

bool StartsStr(const TStringArg& APiece, const TStringArg& AText) noexcept {
    return AText.View().starts_with(APiece);
}

bool StartsText(const TStringArg& APiece, const TStringArg& AText) noexcept {
    return SameText(APiece.View(), AText.View().substr(0, APiece.View().size()));
}

bool EndsStr(const TStringArg& APiece, const TStringArg& AText) noexcept {
    return AText.View().ends_with(APiece);
}

bool EndsText(const TStringArg& APiece, const TStringArg& AText) noexcept {
    const std::size_t Length = std::min(APiece.View().size(), AText.View().size());
    return SameText(APiece.View(), AText.View().substr(AText.View().size() - Length));
}

bool ContainsText(const TStringArg& AText, const TStringArg& APiece) {
    return FindText(AText, APiece) != TView::npos;
}

UnicodeString StringReplace(const TStringArg& AText, const TStringArg& AOld, const TStringArg& ANew,
                            TReplaceFlags AFlags) {
    const TView Text = AText;
    const bool IgnoreCase = AFlags.Contains(rfIgnoreCase);
    const std::u16string UpperText = IgnoreCase ? detail::UpperUnits(Text) : std::u16string();
    const std::u16string UpperOld = IgnoreCase ? detail::UpperUnits(AOld) : std::u16string();
    const TView Where = IgnoreCase ? TView(UpperText) : Text;
    const TView What = IgnoreCase ? TView(UpperOld) : AOld.View();
    std::size_t Found = What.empty() ? TView::npos : Find(Where, What, 0);
    if (Found == TView::npos)
        return AText.ToString();
    const TView New = ANew;
    UnicodeString Result;
    Result.Reserve(Text.size() + (New.size() > What.size() ? Text.size() / 8 + New.size() : 0));
    std::size_t Done = 0;
    while (Found != TView::npos) {
        Result.Append(Text.substr(Done, Found - Done)).Append(New);
        Done = Found + What.size();
        Found = AFlags.Contains(rfReplaceAll) ? Find(Where, What, Done) : TView::npos;
    }
    return Result.Append(Text.substr(Done));
}

UnicodeString QuotedStr(const TStringArg& AText) {
    return AnsiQuotedStr(AText, u'\'');
}

UnicodeString AnsiQuotedStr(const TStringArg& AText, char16_t AQuote) {
    const TView Text = AText;
    UnicodeString Result;
    Result.Reserve(Text.size() + 2);
    Result += AQuote;
    std::size_t Done = 0;
    for (std::size_t At = Text.find(AQuote); At != TView::npos; At = Text.find(AQuote, Done)) {
        Result.Append(Text.substr(Done, At + 1 - Done)) += AQuote;
        Done = At + 1;
    }
    return Result.Append(Text.substr(Done)) += AQuote;
}

UnicodeString AnsiExtractQuotedStr(TView& AText, char16_t AQuote) {
    UnicodeString Result;
    if (AText.starts_with(AQuote))
        TakeQuoted(AText, AQuote, Result);
    return Result;
}

UnicodeString AnsiDequotedStr(const TStringArg& AText, char16_t AQuote) {
    TView Text = AText;
    if (Text.size() < 2 || Text.front() != AQuote || Text.back() != AQuote)
        return AText.ToString();
    UnicodeString Result;
    return TakeQuoted(Text, AQuote, Result) && Text.empty() ? Result : AText.ToString();
}

UnicodeString StringOfChar(char16_t AChar, int ACount) {
    return ACount <= 0 ? UnicodeString() : UnicodeString(static_cast<std::size_t>(ACount), AChar);
}

UnicodeString ReverseString(const TStringArg& AText) {
    const TView Text = AText;
    UnicodeString Result;
    std::reverse_copy(Text.begin(), Text.end(), Result.AppendRoom(Text.size()));
    return Result;
}

bool IsValidIdent(const TStringArg& AText, bool ADots) noexcept {
    bool AtStart = true;
    for (const char16_t Char : AText.View()) {
        if (ADots && Char == u'.' && !AtStart)
            AtStart = true;
        else if (IsIdentStart(Char) || (!AtStart && Char >= u'0' && Char <= u'9'))
            AtStart = false;
        else
            return false;
    }
    return !AtStart;
}

} // namespace qz
