#include <qz/platform/SystemVariants.h>

#include <cstring>

#include <windows.h>

#include <oleauto.h>

namespace qz::platform {

namespace {

static_assert(sizeof(VARIANT) == cSystemVariantSize);

constexpr int cMaxHops = 8; // from reference to reference

bool Succeed(HRESULT AResult, TError& AError) noexcept {
    AError.Code = SUCCEEDED(AResult) ? 0 : static_cast<int>(AResult);
    return AError.Code == 0;
}

size_t NumberSize(VARTYPE ACode) noexcept {
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
void ReadPlace(VARTYPE ACode, const void* APlace, TSystemVariant& AContent) noexcept {
    AContent = {.Code = ACode};
    if (ACode == VT_DECIMAL) {
        const auto& Decimal = *static_cast<const DECIMAL*>(APlace);
        AContent.Scale = Decimal.scale;
        AContent.Sign = Decimal.sign;
        AContent.High = Decimal.Hi32;
        AContent.Bits = Decimal.Lo64;
    } else {
        std::memcpy(&AContent.Bits, APlace, NumberSize(ACode));
    }
}

} // namespace

bool ReadSystemVariant(const void* AVariant, TSystemVariant& AContent, TError& AError) {
    const auto* Variant = static_cast<const VARIANT*>(AVariant);
    for (int I = 0; I < cMaxHops; ++I) {
        const VARTYPE Code = V_VT(Variant);
        if ((Code & VT_BYREF) == 0) {
            const void* Place = Code == VT_DECIMAL ? static_cast<const void*>(Variant) : &V_I8(Variant);
            ReadPlace(Code, Place, AContent);
            return Succeed(S_OK, AError);
        }
        const void* Place = V_BYREF(Variant);
        if (Place == nullptr)
            break;
        if (Code != (VT_BYREF | VT_VARIANT)) {
            ReadPlace(static_cast<VARTYPE>(Code & ~VT_BYREF), Place, AContent);
            return Succeed(S_OK, AError);
        }
        Variant = static_cast<const VARIANT*>(Place);
    }
    return Succeed(E_INVALIDARG, AError);
}

bool WriteSystemVariant(void* AVariant, const TSystemVariant& AContent, TError& AError) {
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
    return Succeed(S_OK, AError);
}

bool ClearSystemVariant(void* AVariant, TError& AError) {
    return Succeed(VariantClear(static_cast<VARIANT*>(AVariant)), AError);
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

bool LockSystemArray(void* AArray, std::uint16_t AElements, TSystemArray& AContent, TError& AError) {
    auto* Array = static_cast<SAFEARRAY*>(AArray);
    if (Array == nullptr)
        return Succeed(E_INVALIDARG, AError);
    VARTYPE Elements = AElements;
    if (VARTYPE Told = VT_EMPTY; SUCCEEDED(SafeArrayGetVartype(Array, &Told)) && Told != VT_EMPTY)
        Elements = Told;
    AContent = {.Elements = Elements, .ElementSize = SafeArrayGetElemsize(Array)};
    AContent.Bounds.resize(SafeArrayGetDim(Array));
    AContent.Count = 1;
    // The bounds are kept last to first.
    for (size_t I = 0; I < AContent.Bounds.size(); ++I) {
        const SAFEARRAYBOUND& Bound = Array->rgsabound[AContent.Bounds.size() - 1 - I];
        AContent.Bounds[I] = {static_cast<std::int32_t>(Bound.lLbound),
                              static_cast<std::uint32_t>(Bound.cElements)};
        AContent.Count *= Bound.cElements;
    }
    void* Data = nullptr;
    if (!Succeed(SafeArrayAccessData(Array, &Data), AError))
        return false;
    AContent.Data = static_cast<std::byte*>(Data);
    if (Data == nullptr && AContent.Count != 0) {
        SafeArrayUnaccessData(Array);
        return Succeed(E_INVALIDARG, AError);
    }
    return true;
}

void UnlockSystemArray(void* AArray) noexcept {
    SafeArrayUnaccessData(static_cast<SAFEARRAY*>(AArray));
}

void* NewSystemArray(std::uint16_t AElements, std::span<const TSystemBound> ABounds, TError& AError) {
    std::vector<SAFEARRAYBOUND> Bounds;
    for (const TSystemBound& Bound : ABounds)
        Bounds.push_back({.cElements = Bound.Count, .lLbound = Bound.Low});
    SAFEARRAY* Array = SafeArrayCreate(AElements, static_cast<UINT>(Bounds.size()), Bounds.data());
    Succeed(Array != nullptr ? S_OK : E_OUTOFMEMORY, AError);
    return Array;
}

void FreeSystemArray(void* AArray) noexcept {
    SafeArrayDestroy(static_cast<SAFEARRAY*>(AArray));
}

} // namespace qz::platform
