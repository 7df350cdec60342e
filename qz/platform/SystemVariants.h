// Access to the system's OLE Automation values: variants, strings and arrays.
//
//     const TResult<TSystemVariant> Content = ReadSystemVariant(Address);
//     if (Content && Content->Code == 8)
//         Use(SystemTextBytes(Content->Pointer()));
//
// On a system without OLE Automation each function that can fail does so with the code for "not supported".
// Values have the layout that the system documents. The caller owns what New... returns until it is written
// into a variant or an array. Any thread.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include <qz/platform/Error.h>

namespace qz::platform {

// The content of a variant.
struct TSystemVariant {
    std::uint16_t Code = 0; // VT_..., without VT_BYREF
    std::uint8_t Scale = 0; // this and the next two: only for a decimal
    std::uint8_t Sign = 0;
    std::uint32_t High = 0;
    std::uint64_t Bits = 0; // a number, or the address of an interface, a string or an array

    void* Pointer() const noexcept { return std::bit_cast<void*>(static_cast<std::uintptr_t>(Bits)); }
};

inline constexpr std::size_t cSystemVariantSize = 24;

// The content of a variant, or of the one it refers to (VT_BYREF). Nothing is counted or copied. Fails for a
// null reference and for a long chain of references.
QZ_API TResult<TSystemVariant> ReadSystemVariant(const void* AVariant);
// Writes to raw memory or an empty variant. The variant takes ownership of what AContent refers to.
QZ_API TResult<> WriteSystemVariant(void* AVariant, const TSystemVariant& AContent);
// Destroys the content; the variant is then empty.
QZ_API TResult<> ClearSystemVariant(void* AVariant);

// A string (BSTR) of any bytes; null if memory runs out.
QZ_API void* NewSystemText(std::span<const std::byte> ABytes) noexcept;
// The bytes of a string; empty for null.
QZ_API std::span<const std::byte> SystemTextBytes(const void* AText) noexcept;

struct TSystemBound {
    std::int32_t Low;
    std::uint32_t Count;
};

// A locked array: its elements do not move.
struct TSystemArray {
    std::uint16_t Elements = 0; // VT_...
    std::uint32_t ElementSize = 0;
    std::vector<TSystemBound> Bounds{}; // the first index varies fastest
    std::byte* Data = nullptr;
    std::size_t Count = 0;
};

// AElements is the element type of the variant that holds the array, for arrays that do not record it.
QZ_API TResult<TSystemArray> LockSystemArray(void* AArray, std::uint16_t AElements);
QZ_API void UnlockSystemArray(void* AArray) noexcept;
// An array of empty elements.
QZ_API TResult<void*> NewSystemArray(std::uint16_t AElements, std::span<const TSystemBound> ABounds);
// Destroys an unlocked array and its elements.
QZ_API void FreeSystemArray(void* AArray) noexcept;

} // namespace qz::platform
