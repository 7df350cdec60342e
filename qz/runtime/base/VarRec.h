// TVarRec: one argument of an open array of constants, as Format takes them.
//
//     Format("%s took %d ms", {Name, 17});
//
// It refers to texts and objects without copying or counting them, so it lives no longer than the call that
// it is made for.
#pragma once

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include <qz/runtime/base/Extended.h>
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

class TByteText;
class TObject;
class IInterface;
struct TClassRec;

enum class TVarRecKind : std::uint8_t {
    vtInteger, // 32 bits, signed
    vtBoolean,
    vtChar,     // 8-bit
    vtExtended, // a double
    vtPointer,
    vtObject,
    vtClass,
    vtWideChar,   // 16-bit
    vtAnsiString, // bytes with a code page
    vtInterface,
    vtInt64,
    vtUInt64,
    vtUnicodeString, // 16-bit text
    vtUtf8           // narrow text of C++
};
using enum TVarRecKind;

namespace detail {
template <class T>
concept CPlainInteger =
    std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char> && !std::same_as<T, char16_t> &&
    !std::same_as<T, wchar_t> && !std::same_as<T, char32_t> && !std::same_as<T, char8_t>;
// 32-bit signed and narrower integers are vtInteger, an unsigned 32-bit one needs 64 bits.
template <CPlainInteger T>
inline constexpr TVarRecKind cKindOf = sizeof(T) < 4 || (sizeof(T) == 4 && std::is_signed_v<T>) ? vtInteger
    : sizeof(T) == 8 && std::is_unsigned_v<T>                                                   ? vtUInt64
                                                                                                : vtInt64;
template <class T>
concept CUtf8Argument = CNarrowText<T> && !std::derived_from<T, TByteText>;
template <class T>
concept COtherArgument = (std::is_class_v<T> || std::is_enum_v<T>)&&!CWideText<T> && !CNarrowText<T> &&
    !CUtf8Text<T> && !std::derived_from<T, TByteText>;
template <class T>
concept CObjectType = requires(const T* AObject) {
    AObject->ClassType();
};
} // namespace detail

class TVarRec {
public:
    TVarRec(std::same_as<bool> auto AValue) noexcept : FKind(vtBoolean) { FValue.Int = AValue; }
    TVarRec(std::same_as<char> auto AValue) noexcept : FKind(vtChar) {
        FValue.Int = static_cast<unsigned char>(AValue);
    }
    TVarRec(std::same_as<char16_t> auto AValue) noexcept : FKind(vtWideChar) { FValue.Int = AValue; }
    template <detail::CPlainInteger T> TVarRec(T AValue) noexcept : FKind(detail::cKindOf<T>) {
        FValue.Int = static_cast<std::int64_t>(AValue);
    }
    TVarRec(std::floating_point auto AValue) noexcept : FKind(vtExtended) {
        FValue.Float = static_cast<double>(AValue);
    }
    TVarRec(Extended AValue) noexcept : FKind(vtExtended) { FValue.Float = AValue.Value; }
    TVarRec(const UnicodeString& AText) noexcept : TVarRec(AText.View(), 0) {}
    TVarRec(const UnicodeString::TCharRef& AChar) noexcept : TVarRec(static_cast<char16_t>(AChar)) {}
    template <CWideText T> TVarRec(const T& AText) noexcept : TVarRec(detail::ViewOf<char16_t>(AText), 0) {}
    template <std::size_t N>
    TVarRec(const TTextConstant<N>& AText) noexcept : TVarRec(std::u16string_view(AText), 0) {}
    template <detail::CUtf8Argument T> TVarRec(const T& AText) noexcept : FKind(vtUtf8) {
        SetText(detail::ViewOf<char>(AText));
    }
    template <CUtf8Text T> TVarRec(const T& AText) noexcept : FKind(vtUtf8) {
        SetText(detail::NarrowView(detail::ViewOf<char8_t>(AText)));
    }
    TVarRec(const TByteText& AText) noexcept : FKind(vtAnsiString) { FValue.Pointer = &AText; }
    TVarRec(const TObject* AObject) noexcept : FKind(vtObject) { FValue.Pointer = AObject; }
    // An object that has interfaces too is taken as the object.
    template <detail::CObjectType T>
    TVarRec(const T* AObject) noexcept : TVarRec(static_cast<const TObject*>(AObject)) {}
    TVarRec(const TClassRec* AClass) noexcept : FKind(vtClass) { FValue.Pointer = AClass; }
    TVarRec(const IInterface* AInterface) noexcept : FKind(vtInterface) { FValue.Pointer = AInterface; }
    TVarRec(const void* APointer) noexcept : FKind(vtPointer) { FValue.Pointer = APointer; }
    TVarRec(std::nullptr_t) noexcept : FKind(vtPointer) { FValue.Pointer = nullptr; }
    // A date, and what else converts to double, is a vtExtended.
    template <detail::COtherArgument T>
        requires std::is_class_v<T> && std::convertible_to<const T&, double> TVarRec(const T& AValue)
    noexcept : TVarRec(static_cast<double>(AValue)) {}
    // So that braces around such a value do not compile, instead of meaning another overload.
    template <detail::COtherArgument T>
        requires(!std::is_class_v<T> || !std::convertible_to<const T&, double>)
    TVarRec(const T&)
    = delete;

    TVarRecKind Kind() const noexcept { return FKind; }
    // vtInteger, vtBoolean, vtChar, vtWideChar, vtInt64; of vtUInt64 the bits.
    std::int64_t Int() const noexcept { return FValue.Int; }
    // vtExtended.
    double Float() const noexcept { return FValue.Float; }
    // vtPointer, vtObject, vtClass, vtInterface.
    const void* Pointer() const noexcept { return FValue.Pointer; }
    // vtUnicodeString.
    std::u16string_view Wide() const noexcept {
        return {static_cast<const char16_t*>(FValue.Text.Data), FValue.Text.Size};
    }
    // vtUtf8.
    std::string_view Narrow() const noexcept {
        return {static_cast<const char*>(FValue.Text.Data), FValue.Text.Size};
    }
    // vtAnsiString.
    const TByteText& Ansi() const noexcept { return *static_cast<const TByteText*>(FValue.Pointer); }

private:
    TVarRec(std::u16string_view AText, int) noexcept : FKind(vtUnicodeString) { SetText(AText); }
    template <class TChar> void SetText(std::basic_string_view<TChar> AText) noexcept {
        FValue.Text.Data = AText.data();
        FValue.Text.Size = AText.size();
    }

    union {
        std::int64_t Int;
        double Float;
        const void* Pointer;
        struct {
            const void* Data;
            std::size_t Size;
        } Text;
    } FValue;
    TVarRecKind FKind;
};

// An open array of constants.
using TVarRecs = std::initializer_list<TVarRec>;

} // namespace qz
