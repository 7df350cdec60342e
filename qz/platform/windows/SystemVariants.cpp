#include <qz/platform/SystemVariants.h>

#include <cstring>

#include <windows.h>

#include <oleauto.h>

namespace qz::platform {

namespace {

static_assert(sizeof(VARIANT) == cSystemVariantSize);

constexpr int cMaxHops = 8; // from reference to reference

TResult<> ResultOf(HRESULT AResult) noexcept {
    return TError(SUCCEEDED(AResult) ? S_OK : AResult);
}

std::size_t NumberSize(VARTYPE ACode) noexcept {
    switch (ACode) {
    case VT_I1:
    case VT_UI1: return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL: return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
    case VT_HRESULT: return 4;
    case VT_EMPTY:
    case VT_NULL: return 0;
    default: return 8;
    }
}

// The content of a code whose value lies at APlace.
TSystemVariant ReadPlace(VARTYPE ACode, const void* APlace) noexcept {
    TSystemVariant Result{.Code = ACode};
    if (ACode == VT_DECIMAL) {
        const auto& Decimal = *static_cast<const DECIMAL*>(APlace);
        Result.Scale = Decimal.scale;
        Result.Sign = Decimal.sign;
        Result.High = Decimal.Hi32;
        Result.Bits = Decimal.Lo64;
    } else {
        std::memcpy(&Result.Bits, APlace, NumberSize(ACode));
    }
    return Result;
}

} // namespace

TResult<TSystemVariant> ReadSystemVariant(const void* AVariant) {
    const auto* Variant = static_cast<const VARIANT*>(AVariant);
    for (int I = 0; I < cMaxHops; ++I) {
        const VARTYPE Code = V_VT(Variant);
        if ((Code & VT_BYREF) == 0) {
            const void* Place = Code == VT_DECIMAL ? static_cast<const void*>(Variant) : &V_I8(Variant);
            return ReadPlace(Code, Place);
        }
        const void* Place = V_BYREF(Variant);
        if (Place == nullptr)
            break;
        if (Code != (VT_BYREF | VT_VARIANT))
            return ReadPlace(static_cast<VARTYPE>(Code & ~VT_BYREF), Place);
        Variant = static_cast<const VARIANT*>(Place);
    }
    return TError(E_INVALIDARG);
}

TResult<> WriteSystemVariant(void* AVariant, const TSystemVariant& AContent) {
    VARIANT Variant;
    VariantInit(&Variant);
    if (AContent.Code == VT_DECIMAL) {
        DECIMAL& Decimal = V_DECIMAL(&Variant);
        Decimal.scale = AContent.Scale;
        Decimal.sign = AContent.Sign;
        Decimal.Hi32 = AContent.High;
        Decimal.Lo64 = AContent.Bits;
    } else {
        std::memcpy(&V_I8(&Variant), &AContent.Bits, sizeof(AContent.Bits));
    }
    V_VT(&Variant) = AContent.Code;
    std::memcpy(AVariant, &Variant, sizeof(Variant));
    return {};
}

TResult<> ClearSystemVariant(void* AVariant) {
    return ResultOf(VariantClear(static_cast<VARIANT*>(AVariant)));
}

void* NewSystemText(std::span<const std::byte> ABytes) noexcept {
    if (ABytes.size() > MAXLONG)
        return nullptr;
    const auto* Bytes = ABytes.empty() ? "" : reinterpret_cast<const char*>(ABytes.data());
    return SysAllocStringByteLen(Bytes, static_cast<UINT>(ABytes.size()));
}

std::span<const std::byte> SystemTextBytes(const void* AText) noexcept {
    auto* Text = static_cast<BSTR>(const_cast<void*>(AText));
    return {static_cast<const std::byte*>(AText), SysStringByteLen(Text)};
}

TResult<TSystemArray> LockSystemArray(void* AArray, std::uint16_t AElements) {
    auto* Array = static_cast<SAFEARRAY*>(AArray);
    if (Array == nullptr)
        return TError(E_INVALIDARG);
    VARTYPE Elements = AElements;
    if (VARTYPE Told = VT_EMPTY; SUCCEEDED(SafeArrayGetVartype(Array, &Told)) && Told != VT_EMPTY)
        Elements = Told;
    TSystemArray Result{.Elements = Elements, .ElementSize = SafeArrayGetElemsize(Array)};
    Result.Bounds.resize(SafeArrayGetDim(Array));
    Result.Count = 1;
    // The bounds are kept last to first.
    for (std::size_t I = 0; I < Result.Bounds.size(); ++I) {
        const SAFEARRAYBOUND& Bound = Array->rgsabound[Result.Bounds.size() - 1 - I];
        Result.Bounds[I] = {static_cast<std::int32_t>(Bound.lLbound),
                            static_cast<std::uint32_t>(Bound.cElements)};
        Result.Count *= Bound.cElements;
    }
    void* Data = nullptr;
    if (const TResult<> Locked = ResultOf(SafeArrayAccessData(Array, &Data)); !Locked)
        return Locked.Error();
    Result.Data = static_cast<std::byte*>(Data);
    if (Data == nullptr && Result.Count != 0) {
        SafeArrayUnaccessData(Array);
        return TError(E_INVALIDARG);
    }
    return Result;
}

void UnlockSystemArray(void* AArray) noexcept {
    SafeArrayUnaccessData(static_cast<SAFEARRAY*>(AArray));
}

TResult<void*> NewSystemArray(std::uint16_t AElements, std::span<const TSystemBound> ABounds) {
    std::vector<SAFEARRAYBOUND> Bounds;
    for (const TSystemBound& Bound : ABounds)
        Bounds.push_back({.cElements = Bound.Count, .lLbound = Bound.Low});
    SAFEARRAY* Array = SafeArrayCreate(AElements, static_cast<UINT>(Bounds.size()), Bounds.data());
    if (Array == nullptr)
        return TError(E_OUTOFMEMORY);
    return static_cast<void*>(Array);
}

void FreeSystemArray(void* AArray) noexcept {
    SafeArrayDestroy(static_cast<SAFEARRAY*>(AArray));
}

} // namespace qz::platform
