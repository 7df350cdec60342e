#include <qz/platform/linux/LocalePattern.h>

#include <algorithm>
#include <array>
#include <iterator>

#include <unicode/uchar.h>

namespace qz::platform::detail {

namespace {

constexpr bool IsAsciiLetter(char16_t AUnit) {
    return (AUnit >= u'a' && AUnit <= u'z') || (AUnit >= u'A' && AUnit <= u'Z');
}

bool IsBlank(char16_t AUnit) {
    return u_isUWhiteSpace(AUnit) != 0;
}

// Marks that only steer the writing direction.
constexpr bool IsDirectionMark(char16_t AUnit) {
    return AUnit == 0x200E || AUnit == 0x200F || AUnit == 0x061C;
}

constexpr bool IsMinus(char16_t AUnit) {
    return AUnit == u'-' || AUnit == 0x2212;
}

std::u16string Repeated(char16_t ALetter, std::size_t ACount) {
    return std::u16string(ACount, ALetter);
}

std::u16string PlainField(char16_t ALetter, std::size_t ACount) {
    switch (ALetter) {
    case u'd': return Repeated(u'd', std::min<std::size_t>(ACount, 2));
    case u'E':
    case u'c':
    case u'e': return ACount == 4 ? u"dddd" : u"ddd";
    case u'M':
    case u'L': return Repeated(u'M', std::min<std::size_t>(ACount, 4));
    case u'y':
    case u'u': return ACount == 2 ? u"yy" : u"yyyy";
    case u'h':
    case u'K': return Repeated(u'h', std::min<std::size_t>(ACount, 2));
    case u'H':
    case u'k': return Repeated(u'H', std::min<std::size_t>(ACount, 2));
    case u'm':
    case u's': return Repeated(ALetter, std::min<std::size_t>(ACount, 2));
    case u'a':
    case u'b':
    case u'B': return u"tt";
    default: return {};
    }
}

// The end of the quoted text that begins at AStart, behind its closing quote.
std::size_t QuotedEnd(std::u16string_view APattern, std::size_t AStart) {
    const std::size_t Quote = APattern.find(u'\'', AStart + 1);
    return Quote == std::u16string_view::npos ? APattern.size() : Quote + 1;
}

std::u16string Trimmed(std::u16string_view AText) {
    while (!AText.empty() && AText.front() == u' ')
        AText.remove_prefix(1);
    while (!AText.empty() && AText.back() == u' ')
        AText.remove_suffix(1);
    return std::u16string(AText);
}

void AppendBlank(std::u16string& AText) {
    if (!AText.ends_with(u' '))
        AText += u' ';
}

// "$" for the currency, "n" for the number, "-" for any minus, " " for any blank.
std::u16string Shape(std::u16string_view AAmount, std::u16string_view ACurrency) {
    std::u16string Result;
    for (std::size_t Index = 0; Index < AAmount.size();) {
        if (!ACurrency.empty() && AAmount.substr(Index).starts_with(ACurrency)) {
            Result += u'$';
            Index += ACurrency.size();
            continue;
        }
        const char16_t Unit = AAmount[Index++];
        if (u_isdigit(Unit))
            Result += u'n';
        else if (IsMinus(Unit))
            Result += u'-';
        else if (IsBlank(Unit))
            AppendBlank(Result);
        else if (!IsDirectionMark(Unit))
            Result += Unit;
    }
    return Result;
}

constexpr std::array<std::u16string_view, 4> cPositive = {u"$n", u"n$", u"$ n", u"n $"};

constexpr std::array<std::u16string_view, 16> cNegative = {
    u"($n)", u"-$n",  u"$-n",  u"$n-",  u"(n$)", u"-n$",  u"n-$",   u"n$-",
    u"-n $", u"-$ n", u"n $-", u"$ n-", u"$ -n", u"n- $", u"($ n)", u"(n $)",
};

// The negative form with the minus in front, for each positive form.
constexpr std::array<std::uint8_t, 4> cMinusInFront = {1, 5, 9, 8};

} // namespace

std::u16string PlainPattern(std::u16string_view APattern) {
    std::u16string Result;
    for (std::size_t Index = 0; Index < APattern.size();) {
        const char16_t Unit = APattern[Index];
        std::size_t End = Index + 1;
        if (Unit == u'\'') {
            End = QuotedEnd(APattern, Index);
            Result += APattern.substr(Index, End - Index);
        } else if (IsAsciiLetter(Unit)) {
            End = std::min(APattern.find_first_not_of(Unit, Index), APattern.size());
            Result += PlainField(Unit, End - Index);
        } else if (IsBlank(Unit)) {
            AppendBlank(Result);
        } else if (!IsDirectionMark(Unit)) {
            Result += Unit;
        }
        Index = End;
    }
    return Trimmed(Result);
}

std::u16string WithLongYear(std::u16string_view APattern) {
    std::u16string Result(APattern);
    const std::size_t Year = Result.find(u"yy");
    if (Year != std::u16string::npos && !std::u16string_view(Result).substr(Year).starts_with(u"yyy"))
        Result.insert(Year, u"yy");
    return Result;
}

std::u16string_view FirstSeparator(std::u16string_view APattern) {
    bool FieldSeen = false;
    for (std::size_t Index = 0; Index < APattern.size(); ++Index) {
        const char16_t Unit = APattern[Index];
        if (Unit == u'\'')
            Index = QuotedEnd(APattern, Index) - 1;
        else if (IsAsciiLetter(Unit))
            FieldSeen = true;
        else if (FieldSeen && !IsBlank(Unit))
            return APattern.substr(Index, 1);
    }
    return {};
}

std::uint8_t PositiveCurrencyCode(std::u16string_view AAmount, std::u16string_view ACurrency) {
    const auto* Found = std::find(cPositive.begin(), cPositive.end(), Shape(AAmount, ACurrency));
    return Found == cPositive.end() ? std::uint8_t{0} : static_cast<std::uint8_t>(Found - cPositive.begin());
}

std::uint8_t NegativeCurrencyCode(std::u16string_view AAmount, std::u16string_view ACurrency,
                                  std::uint8_t APositive) {
    const auto* Found = std::find(cNegative.begin(), cNegative.end(), Shape(AAmount, ACurrency));
    return Found == cNegative.end() ? cMinusInFront[APositive]
                                    : static_cast<std::uint8_t>(Found - cNegative.begin());
}

} // namespace qz::platform::detail
