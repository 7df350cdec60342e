// Variant: a value that knows at run time what it is.
//
//     Variant Value = u"text";
//     if (VarType(Value) == varUString)
//         Show(VarToStr(Value));
//     Variant Price = Currency(19.99), Day = Date(), Object = Greeter;
//     std::int32_t Number = VarToInteger(Variant(u"12"));        // VariantConvert.h
//
// A Variant is 16 bytes, and numbers are copied as such. Copies of texts share their characters, copies of
// arrays (VariantArray.h) their elements until one is written to, copies of interfaces count. Floats of all
// kinds are kept bit by bit. Different variants may be used by different threads; one that was moved from is
// empty.
#pragma once

#include <algorithm>
#include <compare>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <new>
#include <utility>

#include <qz/runtime/base/Extended.h>
#include <qz/runtime/base/UnicodeString.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/Interface.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/values/Currency.h>
#include <qz/runtime/values/SystemDecimal.h>
#include <qz/runtime/values/VarTypes.h>

namespace qz {

QZ_PLAIN_EXCEPTION(EVariantError, Exception);
// Values that do not go together in this operation.
QZ_PLAIN_EXCEPTION(EVariantInvalidOpError, EVariantError);
// A value that cannot be converted to the requested type.
QZ_PLAIN_EXCEPTION(EVariantTypeCastError, EVariantError);
// A number outside the range of the requested type.
QZ_PLAIN_EXCEPTION(EVariantOverflowError, EVariantError);

namespace detail {
struct TVariantItems;
struct TVariantAccess;
template <class T>
concept CVariantInteger = std::integral<T> && CVariantNumber<T>;
// A type with ToVariant may have a null value, which its text would lose.
template <class T>
concept CHasToVariant = requires(const T& AValue) {
    AValue.ToVariant();
};
template <class T>
concept CVariantText =
    std::convertible_to<const T&, UnicodeString> && !std::derived_from<T, WideString> && !CHasToVariant<T>;
template <class I>
concept CVariantInterface = std::constructible_from<Ref<IInterface>, I*>;
template <class T>
concept CVariantObject = std::derived_from<T, TObject> && !std::is_const_v<T>;
} // namespace detail

class QZ_API Variant {
public:
    // An integer has the type of its width and sign, so that a long is another one on Windows than on Linux.
    Variant() noexcept = default; // empty
    Variant(std::same_as<bool> auto AValue) noexcept : FType(varBoolean) { FData.Integer = AValue ? -1 : 0; }
    template <detail::CVariantInteger T> Variant(T AValue) noexcept : FType(detail::VarTypeOf<T>()) {
        FData.Integer = static_cast<std::int64_t>(AValue);
    }
    Variant(float AValue) noexcept : FType(varSingle) { FData.Single = AValue; }
    Variant(double AValue) noexcept : FType(varDouble) { FData.Real = AValue; }
    Variant(Extended AValue) noexcept : Variant(AValue.Value) {}
    template <class TTag> Variant(TDateTimeKind<TTag> AValue) noexcept : FType(varDate) {
        FData.Real = AValue.Value;
    }
    Variant(Currency AValue) noexcept : FType(varCurrency) { FData.Integer = AValue.Units(); }
    Variant(const TSysDecimal& AValue) noexcept
        : FType(varDecimal),
          FScale(std::min(AValue.Scale, TSysDecimal::cMaxScale)),
          FSign(AValue.Sign),
          FHigh(AValue.High) {
        FData.Integer = static_cast<std::int64_t>(AValue.Low);
    }
    // What AValue.ToVariant() gives.
    template <detail::CHasToVariant T> explicit Variant(const T& AValue) : Variant(AValue.ToVariant()) {}
    // A text of any form that UnicodeString takes.
    template <detail::CVariantText T> Variant(const T& AText) : FType(varUString) {
        new (&FData.Wide) UnicodeString(AText);
    }
    Variant(const WideString& AText) noexcept : FType(varOleStr) { new (&FData.Wide) UnicodeString(AText); }
    Variant(const AnsiString& AText) noexcept : FType(varString) { new (&FData.Narrow) TByteText(AText); }
    // An interface, which the variant counts.
    template <detail::CVariantInterface I>
    Variant(const Ref<I>& AInterface) noexcept : Variant(Ref<IInterface>(AInterface.Get()), varUnknown) {}
    // An object, not owned.
    template <detail::CVariantObject T> Variant(T* AObject) noexcept : FType(varObject) {
        FData.Object = AObject;
    }
    Variant(const Variant& AOther) noexcept {
        CopyBits(AOther);
        if (IsManaged(FType))
            Share(AOther);
    }
    Variant(Variant&& AOther) noexcept {
        CopyBits(AOther);
        AOther.FType = varEmpty;
    }
    Variant& operator=(const Variant& AOther) noexcept { return *this = Variant(AOther); }
    // The old value ends when the new one is in its place.
    Variant& operator=(Variant&& AOther) noexcept {
        Variant Other(std::move(AOther));
        const Variant Old(std::move(*this));
        CopyBits(Other);
        Other.FType = varEmpty;
        return *this;
    }
    ~Variant() {
        if (IsManaged(FType))
            Drop();
    }

    // The value that is null in the sense of databases.
    static Variant Null() noexcept { return Variant(0, varNull); }
    // A result code, such as that of a parameter left out.
    static Variant Error(std::int32_t ACode) noexcept { return Variant(ACode, varError); }
    // An interface that is IDispatch of the system's automation, or has its operations in the same places:
    // nothing checks that. The variant counts it.
    static Variant Dispatch(IInterface* AInterface) noexcept {
        return Variant(Ref<IInterface>(AInterface), varDispatch);
    }

    friend TVarType VarType(const Variant& AValue) noexcept { return AValue.FType; }
    // Numbers by their value whatever their types, where one of them is a float both as floats, texts unit by
    // unit, a number and a text by the number that is written there; True is -1 among numbers. Null is equal
    // to null alone, an empty one also to 0 and the empty text, an interface or object to the same address.
    // Raises EVariantTypeCastError for a text that should be a number, date or boolean and is none, and
    // EVariantInvalidOpError for an array.
    friend QZ_API bool operator==(const Variant& ALeft, const Variant& ARight);
    // By the same rules. Values without an order, such as null and any other value, are unordered.
    friend QZ_API std::partial_ordering operator<=>(const Variant& ALeft, const Variant& ARight);

private:
    friend struct detail::TVariantAccess;
    Variant(std::int64_t AInteger, TVarType AType) noexcept : FType(AType) { FData.Integer = AInteger; }
    Variant(Ref<IInterface> AInterface, TVarType AType) noexcept : FType(AType) {
        FData.Interface = AInterface.Detach();
    }
    // Whether copies count something.
    static constexpr bool IsManaged(TVarType AType) noexcept {
        constexpr std::uint32_t cSmall = 1U << varOleStr | 1U << varDispatch | 1U << varUnknown;
        return AType < 32 ? (cSmall >> AType & 1) != 0 : AType != varObject;
    }
    // Values of every type may be moved as bytes.
    void CopyBits(const Variant& AOther) noexcept {
        std::memcpy(static_cast<void*>(this), static_cast<const void*>(&AOther), sizeof(Variant));
    }
    // Counts what the bytes copied from AOther refer to.
    void Share(const Variant& AOther) noexcept {
        if (FType == varUString || FType == varOleStr)
            new (&FData.Wide) UnicodeString(AOther.FData.Wide);
        else
            ShareOther(AOther);
    }
    void Drop() noexcept {
        if (FType == varUString || FType == varOleStr)
            FData.Wide.~UnicodeString();
        else
            DropOther();
    }
    void ShareOther(const Variant& AOther) noexcept;
    void DropOther() noexcept;

    union TData {
        TData() noexcept : Integer(0) {}
        ~TData() {} // NOLINT(modernize-use-equals-default): a union with strings has no other
        std::int64_t
            Integer; // all integers, booleans (-1 and 0), currency, error codes, the lower bits of a decimal
        double Real; // dates too
        float Single;
        UnicodeString Wide;
        TByteText Narrow;
        detail::TVariantItems* Items; // counted
        IInterface* Interface;        // counted
        TObject* Object;
    };

    TVarType FType = varEmpty;
    std::uint8_t FScale = 0; // this and the next two of a decimal alone
    std::uint8_t FSign = 0;
    std::uint32_t FHigh = 0;
    TData FData;
};

static_assert(sizeof(Variant) == 16);

// The type code of the value.
TVarType VarType(const Variant& AValue) noexcept;
inline bool VarIsArray(const Variant& AValue) noexcept {
    return (VarType(AValue) & varArray) != 0;
}
// The value as text; empty for an empty or null one. A text of 8 bits is converted from its code page.
// Numbers and dates are written by FloatToStr, DateTimeToStr, CurrToStr and DecimalToStr, an error by its
// code. Raises EVariantTypeCastError for an array, an interface, an object, and a date out of range.
QZ_API UnicodeString VarToStr(const Variant& AValue);

} // namespace qz

QZ_TYPE_INFO(qz::Variant);
