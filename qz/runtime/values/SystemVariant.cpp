#include <qz/runtime/values/SystemVariant.h>

#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <tuple>
#include <utility>
#include <vector>

#include <qz/platform/SystemVariants.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/detail/VariantItems.h>

namespace qz {
namespace {

using detail::TVariantAccess;
using detail::TVariantItems;
using platform::TSystemArray;
using platform::TSystemBound;
using platform::TSystemVariant;

constexpr int cMaxDepth = 100;

// Codes of the system that variants of this library do not have.
constexpr TVarType cInt = 22;
constexpr TVarType cUInt = 23;
constexpr TVarType cResult = 25;

struct TFreeArray {
    void operator()(void* AArray) const noexcept { platform::FreeSystemArray(AArray); }
};
struct TUnlockArray {
    void operator()(void* AArray) const noexcept { platform::UnlockSystemArray(AArray); }
};
using TArrayPtr = std::unique_ptr<void, TFreeArray>;
using TArrayLock = std::unique_ptr<void, TUnlockArray>;

void Check(const platform::TResult<>& AResult) {
    if (!AResult)
        RaiseOSError(AResult.Code());
}

template <class T> T Require(platform::TResult<T> AResult) {
    if (!AResult)
        RaiseOSError(AResult.Code());
    return std::move(*AResult);
}

// A variant of the system's, which is empty at first.
class TSystemValue {
public:
    TSystemValue() { Write({}); }
    TSystemValue(const TSystemValue&) = delete;
    TSystemValue& operator=(const TSystemValue&) = delete;
    ~TSystemValue() { std::ignore = platform::ClearSystemVariant(FRoom.data()); }
    void Write(const TSystemVariant& AContent) {
        Check(platform::WriteSystemVariant(FRoom.data(), AContent));
    }
    void MoveTo(tagVARIANT* ATarget) {
        Check(platform::ClearSystemVariant(ATarget));
        std::memcpy(static_cast<void*>(ATarget), FRoom.data(), FRoom.size());
        FRoom = {};
    }

private:
    alignas(8) std::array<std::byte, platform::cSystemVariantSize> FRoom{};
};

[[noreturn]] void RaiseUnknown(TVarType AType) {
    throw EVariantTypeCastError(u"A variant of type %s does not exist on both sides of OLE Automation",
                                {VarTypeAsText(AType)});
}

void CheckDepth(int ADepth) {
    if (ADepth > cMaxDepth)
        throw EVariantTypeCastError(u"Variant arrays are nested too deep for OLE Automation");
}

bool IsText(TVarType AType) noexcept {
    return AType == varOleStr || AType == varUString || AType == varString;
}

bool IsInterface(TVarType AType) noexcept {
    return AType == varUnknown || AType == varDispatch;
}

// The system's code for a type without array flag.
TVarType CodeFor(TVarType AType) {
    if (AType == varObject)
        RaiseUnknown(AType);
    return IsText(AType) ? varOleStr : AType;
}

// The type for a code of the system's without array flag.
TVarType TypeFor(TVarType ACode) {
    switch (ACode) {
    case cInt: return varInteger;
    case cUInt: return varLongWord;
    case cResult: return varError;
    default: break;
    }
    if (ACode > varNull && (ACode > varUInt64 || detail::ElementSize(ACode) == 0))
        RaiseUnknown(ACode);
    return ACode;
}

std::uint64_t BitsOf(const void* AAddress) noexcept {
    return std::bit_cast<std::uintptr_t>(AAddress);
}

// A text of the system's that belongs to the caller.
std::uint64_t NewText(const Variant& AText) {
    const bool IsBytes =
        VarType(AText) == varString && TVariantAccess::Narrow(AText).CodePage() == cNoCodePage;
    const UnicodeString Wide = IsBytes ? UnicodeString() : VarToStr(AText);
    void* Text = platform::NewSystemText(IsBytes ? TVariantAccess::Narrow(AText).Bytes()
                                                 : std::as_bytes(std::span(Wide.data(), Wide.size())));
    if (Text == nullptr)
        throw std::bad_alloc();
    return BitsOf(Text);
}

Variant TextOf(const void* AText) {
    const std::span<const std::byte> Bytes = platform::SystemTextBytes(AText);
    if (Bytes.size() % 2 != 0)
        return AnsiString(std::string_view(reinterpret_cast<const char*>(Bytes.data()), Bytes.size()),
                          cNoCodePage);
    WideString Result;
    static_cast<UnicodeString&>(Result) = UnicodeString::ForOverwrite(Bytes.size() / 2);
    if (!Bytes.empty())
        std::memcpy(Result.UniqueData(), Bytes.data(), Bytes.size());
    return Result;
}

void* NewArray(const Variant& AArray, int ADepth);

// The content for a variant of the system's, to which it belongs as soon as it is written there.
TSystemVariant ContentOf(const Variant& AValue, int ADepth) {
    const TVarType Type = VarType(AValue);
    if (VarIsArray(AValue)) {
        const TVarType Code = CodeFor(static_cast<TVarType>(Type & ~varArray));
        return {.Code = static_cast<TVarType>(Code | varArray), .Bits = BitsOf(NewArray(AValue, ADepth))};
    }
    if (IsText(Type))
        return {.Code = varOleStr, .Bits = NewText(AValue)};
    if (Type == varDecimal) {
        const TSysDecimal Decimal = TVariantAccess::Decimal(AValue);
        return {varDecimal, Decimal.Scale, Decimal.Sign, Decimal.High, Decimal.Low};
    }
    if (IsInterface(Type)) {
        Variant Counted = AValue;
        return {.Code = Type, .Bits = TVariantAccess::TakeBits(Counted)};
    }
    return {.Code = CodeFor(Type), .Bits = TVariantAccess::Bits(AValue)};
}

// One element of an array of the system's, whose elements are empty yet.
void WriteElement(std::byte* APlace, const Variant& AValue, TVarType AElements, int ADepth) {
    const TSystemVariant Content = ContentOf(AValue, ADepth);
    if (AElements == varVariant)
        Check(platform::WriteSystemVariant(APlace, Content));
    else
        std::memcpy(APlace, &Content.Bits, sizeof(Content.Bits));
}

void* NewArray(const Variant& AArray, int ADepth) {
    CheckDepth(ADepth);
    const TVariantItems& Items = TVariantAccess::Items(AArray);
    std::vector<TSystemBound> Bounds;
    for (const detail::TVariantBound& Bound : Items.Bounds())
        Bounds.push_back({Bound.Low, static_cast<std::uint32_t>(Bound.Count)});
    const TVarType Code = CodeFor(Items.Elements);
    TArrayPtr Result(Require(platform::NewSystemArray(Code, Bounds)));
    const TSystemArray Target = Require(platform::LockSystemArray(Result.get(), Code));
    const TArrayLock Lock(Result.get());
    if (Code == varVariant || IsText(Code) || IsInterface(Code)) {
        for (std::size_t I = 0; I < Items.Count; ++I)
            WriteElement(Target.Data + I * Target.ElementSize, detail::LoadItem(Items, I), Code, ADepth + 1);
    } else if (Items.Count != 0) {
        std::memcpy(Target.Data, Items.Data(), Items.Count * Target.ElementSize);
    }
    return Result.release();
}

const TSysDecimal& Checked(const TSysDecimal& ADecimal) {
    if (ADecimal.Scale > TSysDecimal::cMaxScale)
        throw EVariantOverflowError(u"A decimal number cannot have %d decimals", {ADecimal.Scale});
    return ADecimal;
}

Variant ArrayFrom(void* AArray, TVarType ACode, int ADepth);

Variant ValueOf(const TSystemVariant& AContent, int ADepth) {
    if ((AContent.Code & varArray) != 0)
        return ArrayFrom(AContent.Pointer(), static_cast<TVarType>(AContent.Code & ~varArray), ADepth);
    const TVarType Type = TypeFor(AContent.Code);
    if (Type == varOleStr)
        return TextOf(AContent.Pointer());
    if (Type == varDecimal) {
        TSysDecimal Decimal(AContent.Bits, AContent.Sign != 0, AContent.Scale);
        Decimal.High = AContent.High;
        return Checked(Decimal);
    }
    if (Type == varVariant)
        RaiseUnknown(Type);
    if (IsInterface(Type)) {
        auto* Interface = static_cast<IInterface*>(AContent.Pointer());
        return Type == varDispatch ? Variant::Dispatch(Interface) : Variant(Ref<IInterface>(Interface));
    }
    return detail::TakeItem(Type, reinterpret_cast<const std::byte*>(&AContent.Bits));
}

Variant ElementFrom(const std::byte* APlace, TVarType ACode, int ADepth) {
    if (ACode == varDecimal) {
        TSysDecimal Decimal;
        std::memcpy(&Decimal, APlace, sizeof(Decimal));
        return Checked(Decimal);
    }
    if (ACode == varVariant)
        return ValueOf(Require(platform::ReadSystemVariant(APlace)), ADepth);
    TSystemVariant Content{.Code = ACode};
    std::memcpy(&Content.Bits, APlace, sizeof(Content.Bits));
    return ValueOf(Content, ADepth);
}

detail::TVariantBound BoundOf(const TSystemBound& ABound) {
    constexpr std::int64_t cMost = std::numeric_limits<std::int32_t>::max();
    const std::int64_t High = std::int64_t{ABound.Low} + ABound.Count - 1;
    if (ABound.Count > cMost || High > cMost || High < std::numeric_limits<std::int32_t>::min())
        throw EVariantArrayCreateError(u"A variant array cannot have %d elements", {ABound.Count});
    return {ABound.Low, static_cast<std::int32_t>(ABound.Count)};
}

// The size of an element on the other side.
std::size_t SystemSize(TVarType AType) noexcept {
    return AType == varVariant ? platform::cSystemVariantSize
        : AType == varDecimal  ? sizeof(TSysDecimal)
                               : detail::ElementSize(AType);
}

Variant ArrayFrom(void* AArray, TVarType ACode, int ADepth) {
    CheckDepth(ADepth);
    const TSystemArray Source = Require(platform::LockSystemArray(AArray, ACode));
    const TArrayLock Lock(AArray);
    std::vector<detail::TVariantBound> Bounds;
    for (const TSystemBound& Bound : Source.Bounds)
        Bounds.push_back(BoundOf(Bound));
    const TVarType Type = TypeFor(Source.Elements);
    detail::TItemsPtr Items = detail::NewItems(Type, Bounds);
    if (Items->Count != 0 && Source.ElementSize != SystemSize(Type))
        throw EVariantArrayCreateError(u"The elements of a system array of type %s have %d bytes",
                                       {VarTypeAsText(Source.Elements), Source.ElementSize});
    if (Type == varVariant || Type == varDecimal || IsText(Type) || IsInterface(Type)) {
        for (std::size_t I = 0; I < Items->Count; ++I)
            detail::StoreItem(*Items, I,
                              ElementFrom(Source.Data + I * Source.ElementSize, Source.Elements, ADepth + 1));
    } else if (Items->Count != 0) {
        std::memcpy(Items->Data(), Source.Data, Items->Count * detail::ElementSize(Type));
    }
    return TVariantAccess::Make(std::move(Items));
}

} // namespace

void VariantToSystem(const Variant& AValue, tagVARIANT* ATarget) {
    TSystemValue Fresh; // raises where the system has no such values, before anything is counted
    Fresh.Write(ContentOf(AValue, 1));
    Fresh.MoveTo(ATarget);
}

Variant VariantFromSystem(const tagVARIANT* ASource) {
    return ValueOf(Require(platform::ReadSystemVariant(ASource)), 1);
}

} // namespace qz
