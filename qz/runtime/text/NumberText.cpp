#include <qz/runtime/text/NumberText.h>

#include <array>
#include <limits>
#include <optional>
#include <utility>

#include <qz/runtime/base/Guid.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/FloatText.h>

namespace qz {
namespace {

constexpr int cMaxHexDigits = 255;

// "00" to "99", so that two digits come with one division.
constexpr auto cPairs = [] {
    std::array<char16_t, 200> Pairs{};
    for (unsigned I = 0; I < 100; ++I) {
        Pairs[2 * I] = static_cast<char16_t>(u'0' + I / 10);
        Pairs[2 * I + 1] = static_cast<char16_t>(u'0' + I % 10);
    }
    return Pairs;
}();

// A parsed number before the range check: sign, digits and base.
struct TNumber {
    std::uint64_t Magnitude;
    bool IsNegative;
    bool IsHex;
};

// Takes off a prefix of hexadecimal numbers: "$", "x" or "0x".
bool TakeHexPrefix(std::u16string_view& AText) noexcept {
    const auto IsX = [](char16_t AChar) { return AChar == u'x' || AChar == u'X'; };
    if (AText.empty())
        return false;
    const std::size_t Length = AText[0] == u'$' || IsX(AText[0]) ? 1
        : AText[0] == u'0' && AText.size() > 1 && IsX(AText[1])  ? 2
                                                                 : 0;
    AText.remove_prefix(Length);
    return Length != 0;
}

std::optional<TNumber> ReadNumber(std::u16string_view AText) noexcept {
    while (!AText.empty() && (AText.front() == u' ' || AText.front() == u'\t'))
        AText.remove_prefix(1);
    TNumber Number{};
    if (!AText.empty() && (AText.front() == u'-' || AText.front() == u'+')) {
        Number.IsNegative = AText.front() == u'-';
        AText.remove_prefix(1);
    }
    Number.IsHex = TakeHexPrefix(AText);
    if (AText.empty())
        return std::nullopt;
    const unsigned Base = Number.IsHex ? 16 : 10;
    const std::uint64_t Limit = std::numeric_limits<std::uint64_t>::max() / Base;
    for (const char16_t Char : AText) {
        const int Digit = detail::HexDigit(Char);
        if (Digit < 0 || static_cast<unsigned>(Digit) >= Base || Number.Magnitude > Limit)
            return std::nullopt;
        const std::uint64_t Next = Number.Magnitude * Base + static_cast<unsigned>(Digit);
        if (Next < Number.Magnitude * Base)
            return std::nullopt;
        Number.Magnitude = Next;
    }
    return Number;
}

// The number as a T, if it fits. A hexadecimal one fits when its bits do.
template <class T> bool Fit(const std::optional<TNumber>& ANumber, T& AValue) noexcept {
    using TUnsigned = std::make_unsigned_t<T>;
    AValue = 0;
    if (!ANumber)
        return false;
    const std::uint64_t Magnitude = ANumber->Magnitude;
    const std::uint64_t Most = ANumber->IsHex ? std::numeric_limits<TUnsigned>::max()
                                              : static_cast<std::uint64_t>(std::numeric_limits<T>::max()) +
            (std::is_signed_v<T> && ANumber->IsNegative ? 1 : 0);
    if (Magnitude > Most || (std::is_unsigned_v<T> && ANumber->IsNegative && Magnitude != 0))
        return false;
    const auto Bits = static_cast<TUnsigned>(Magnitude);
    AValue = static_cast<T>(ANumber->IsNegative ? static_cast<TUnsigned>(0 - Bits) : Bits);
    return true;
}

// As Fit of ReadNumber, the short way for most numbers.
template <class T> bool TryRead(std::u16string_view AText, T& AValue) noexcept {
    std::int64_t Plain = 0;
    if (!detail::TryPlainInteger(AText, Plain))
        return Fit(ReadNumber(AText), AValue);
    const bool Fits = std::in_range<T>(Plain);
    AValue = Fits ? static_cast<T>(Plain) : T{};
    return Fits;
}

template <class T> T Require(const TStringArg& AText) {
    T Value;
    if (!TryRead(AText, Value))
        throw EConvertError(u"'%s' is not a valid integer value", {AText.View()});
    return Value;
}

} // namespace

// Four digits at a time, since each step waits for the multiplication of the one before.
bool detail::TryPlainInteger(std::u16string_view AText, std::int64_t& AValue) noexcept {
    const bool IsNegative = AText.starts_with(u'-');
    AText.remove_prefix(IsNegative ? 1 : 0);
    if (AText.empty() || AText.size() > std::numeric_limits<std::int64_t>::digits10)
        return false;
    const auto Digit = [](char16_t AChar) { return static_cast<unsigned>(AChar - u'0'); };
    const char16_t* Here = AText.data();
    const char16_t* const End = Here + AText.size();
    std::int64_t Value = 0;
    for (; End - Here >= 4; Here += 4) {
        const unsigned A = Digit(Here[0]), B = Digit(Here[1]), C = Digit(Here[2]), D = Digit(Here[3]);
        if (A > 9 || B > 9 || C > 9 || D > 9)
            return false;
        Value = Value * 10000 + (A * 10 + B) * 100 + (C * 10 + D);
    }
    for (; Here != End; ++Here) {
        if (Digit(*Here) > 9)
            return false;
        Value = Value * 10 + Digit(*Here);
    }
    AValue = IsNegative ? -Value : Value;
    return true;
}

char16_t* detail::WriteDecimal(std::uint64_t AValue, char16_t* AEnd) noexcept {
    while (AValue >= 100) {
        const auto Pair = static_cast<std::size_t>(AValue % 100) * 2;
        AValue /= 100;
        *--AEnd = cPairs[Pair + 1];
        *--AEnd = cPairs[Pair];
    }
    const auto Pair = static_cast<std::size_t>(AValue) * 2;
    *--AEnd = cPairs[Pair + 1];
    if (AValue >= 10)
        *--AEnd = cPairs[Pair];
    return AEnd;
}

char16_t* detail::WriteHex(std::uint64_t AValue, char16_t* AEnd) noexcept {
    do {
        *--AEnd = u"0123456789ABCDEF"[AValue & 15];
        AValue >>= 4;
    } while (AValue != 0);
    return AEnd;
}

UnicodeString IntToStr(std::int64_t AValue) {
    std::array<char16_t, detail::cMaxIntLength> Buffer;
    char16_t* End = Buffer.data() + Buffer.size();
    const auto Bits = static_cast<std::uint64_t>(AValue);
    char16_t* Start = detail::WriteDecimal(AValue < 0 ? 0 - Bits : Bits, End);
    if (AValue < 0)
        *--Start = u'-';
    return {Start, static_cast<std::size_t>(End - Start)};
}

UnicodeString UIntToStr(std::uint64_t AValue) {
    std::array<char16_t, detail::cMaxIntLength> Buffer;
    char16_t* End = Buffer.data() + Buffer.size();
    char16_t* Start = detail::WriteDecimal(AValue, End);
    return {Start, static_cast<std::size_t>(End - Start)};
}

UnicodeString detail::HexText(std::uint64_t AValue, int ADigits) {
    std::array<char16_t, cMaxHexDigits> Buffer;
    char16_t* End = Buffer.data() + Buffer.size();
    char16_t* Start = detail::WriteHex(AValue, End);
    while (End - Start < ADigits && Start != Buffer.data())
        *--Start = u'0';
    return {Start, static_cast<std::size_t>(End - Start)};
}

std::int32_t StrToInt(const TStringArg& AText) {
    return Require<std::int32_t>(AText);
}
std::int64_t StrToInt64(const TStringArg& AText) {
    return Require<std::int64_t>(AText);
}
std::uint64_t StrToUInt64(const TStringArg& AText) {
    return Require<std::uint64_t>(AText);
}

bool TryStrToInt(const TStringArg& AText, std::int32_t& AValue) noexcept {
    return TryRead(AText, AValue);
}
bool TryStrToInt64(const TStringArg& AText, std::int64_t& AValue) noexcept {
    return TryRead(AText, AValue);
}
bool TryStrToUInt64(const TStringArg& AText, std::uint64_t& AValue) noexcept {
    return TryRead(AText, AValue);
}

std::int32_t StrToIntDef(const TStringArg& AText, std::int32_t ADefault) noexcept {
    std::int32_t Value;
    return TryStrToInt(AText, Value) ? Value : ADefault;
}

std::int64_t StrToInt64Def(const TStringArg& AText, std::int64_t ADefault) noexcept {
    std::int64_t Value;
    return TryStrToInt64(AText, Value) ? Value : ADefault;
}

UnicodeString BoolToStr(bool AValue, bool AUseBoolStrs) {
    static constexpr TTextConstant cTrue = u"True";
    static constexpr TTextConstant cFalse = u"False";
    static constexpr TTextConstant cMinusOne = u"-1";
    static constexpr TTextConstant cZero = u"0";
    if (AUseBoolStrs)
        return AValue ? UnicodeString(cTrue) : UnicodeString(cFalse);
    return AValue ? UnicodeString(cMinusOne) : UnicodeString(cZero);
}

bool TryStrToBool(const TStringArg& AText, bool& AValue) {
    AValue = false;
    if (SameText(AText, u"True"))
        return AValue = true;
    if (SameText(AText, u"False"))
        return true;
    double Number;
    const bool IsNumber = TryStrToFloat(AText, Number);
    AValue = Number != 0;
    return IsNumber;
}

bool StrToBool(const TStringArg& AText) {
    bool Value;
    if (!TryStrToBool(AText, Value))
        throw EConvertError(u"'%s' is not a valid boolean value", {AText.View()});
    return Value;
}

bool StrToBoolDef(const TStringArg& AText, bool ADefault) {
    bool Value;
    return TryStrToBool(AText, Value) ? Value : ADefault;
}

} // namespace qz
