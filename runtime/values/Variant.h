// Variant: a value that knows at run time what it is.
//
//     Variant Value = u"text";
//     if (VarType(Value) == varUString)
//         Show(VarToStr(Value));
//
// The type codes are those of OLE Automation. A Variant is 16 bytes; copies of texts share their characters, copies of
// arrays (VariantArray.h) their elements until one is written to. Different variants may be used by different threads.
#pragma once

#include <concepts>
#include <cstdint>
#include <utility>

#include "runtime/errors/Exceptions.h"
#include "runtime/text/AnsiString.h"
#include "runtime/text/UnicodeString.h"

namespace qz {

using TVarType = std::uint16_t;

inline constexpr TVarType varEmpty = 0;
inline constexpr TVarType varNull = 1;
inline constexpr TVarType varSmallint = 2;
inline constexpr TVarType varInteger = 3;
inline constexpr TVarType varSingle = 4;
inline constexpr TVarType varDouble = 5;
inline constexpr TVarType varOleStr = 8;
inline constexpr TVarType varBoolean = 11;
inline constexpr TVarType varVariant = 12; // of the elements of an array alone
inline constexpr TVarType varShortInt = 16;
inline constexpr TVarType varByte = 17;
inline constexpr TVarType varWord = 18;
inline constexpr TVarType varLongWord = 19;
inline constexpr TVarType varInt64 = 20;
inline constexpr TVarType varUInt64 = 21;
inline constexpr TVarType varString = 256;
inline constexpr TVarType varUString = 258;
inline constexpr TVarType varArray = 0x2000; // joined with the type of the elements

QZ_PLAIN_EXCEPTION(EVariantError, Exception);
// Values that do not go together in this operation.
QZ_PLAIN_EXCEPTION(EVariantInvalidOpError, EVariantError);
// A value that cannot be had in the form that is asked for.
QZ_PLAIN_EXCEPTION(EVariantTypeCastError, EVariantError);

namespace detail {
struct TVariantItems;
struct TVariantAccess;
} // namespace detail

class QZ_API Variant {
public:
    Variant() noexcept = default; // empty
    Variant(bool AValue) noexcept : FType(varBoolean) { FData.Integer = AValue ? 1 : 0; }
    template <std::integral T>
        requires(!std::same_as<T, bool> && !std::same_as<T, char> && !std::same_as<T, char8_t> &&
                 !std::same_as<T, char16_t> && !std::same_as<T, char32_t> && !std::same_as<T, wchar_t>)
    Variant(T AValue)
    noexcept : FType(CodeOf<T>()) { FData.Integer = static_cast<std::int64_t>(AValue); }
    Variant(float AValue) noexcept : FType(varSingle) { FData.Real = AValue; }
    Variant(double AValue) noexcept : FType(varDouble) { FData.Real = AValue; }
    // A text of any form that UnicodeString takes.
    template <class T>
        requires(std::convertible_to<const T&, UnicodeString> && !std::derived_from<T, WideString>)
    Variant(const T& AText) : FType(varUString) { new (&FData.Wide) UnicodeString(AText); }
    Variant(const WideString& AText) noexcept : FType(varOleStr) { new (&FData.Wide) UnicodeString(AText); }
    Variant(const AnsiString& AText) noexcept : FType(varString) { new (&FData.Narrow) TByteText(AText); }
    Variant(const Variant& AOther) noexcept;
    Variant(Variant&& AOther) noexcept;
    Variant& operator=(Variant AOther) noexcept;
    ~Variant();

    // The value that is null in the sense of databases.
    static Variant Null() noexcept;

    friend TVarType VarType(const Variant& AValue) noexcept { return AValue.FType; }
    friend QZ_API UnicodeString VarToStr(const Variant& AValue);
    // Numbers by their value whatever their types, texts unit by unit, a number and a text by the number that is
    // written there; True is -1 among numbers. Null is equal to null alone, an empty one also to 0 and the empty
    // text. Raises EVariantTypeCastError for a text that should be a number or a boolean and is none, and
    // EVariantInvalidOpError for an array.
    friend QZ_API bool operator==(const Variant& ALeft, const Variant& ARight);

private:
    friend struct detail::TVariantAccess;
    template <class T> static constexpr TVarType CodeOf() noexcept {
        constexpr TVarType cSigned[] = {varShortInt, varSmallint, varInteger, varInt64};
        constexpr TVarType cUnsigned[] = {varByte, varWord, varLongWord, varUInt64};
        constexpr int cSize = sizeof(T) == 1 ? 0 : sizeof(T) == 2 ? 1 : sizeof(T) == 4 ? 2 : 3;
        return std::signed_integral<T> ? cSigned[cSize] : cUnsigned[cSize];
    }
    bool IsWide() const noexcept { return FType == varUString || FType == varOleStr; }

    union TData {
        TData() noexcept : Integer(0) {}
        ~TData() {} // NOLINT(modernize-use-equals-default): a union with strings has no other
        std::int64_t Integer;
        double Real;
        UnicodeString Wide;
        TByteText Narrow;
        detail::TVariantItems* Items; // counted
    };

    TVarType FType = varEmpty;
    TData FData;
};

static_assert(sizeof(Variant) == 16);

// The code of what the value is.
TVarType VarType(const Variant& AValue) noexcept;
inline bool VarIsArray(const Variant& AValue) noexcept {
    return (VarType(AValue) & varArray) != 0;
}
// The value as text; empty for an empty or null one. A text of 8 bits is converted from its code page. Raises
// EVariantTypeCastError for an array.
QZ_API UnicodeString VarToStr(const Variant& AValue);

} // namespace qz
