// The values of OLE Automation: variants, their texts and their arrays, as the system's functions handle them.
//
//     const TResult<TSystemVariant> Content = ReadSystemVariant(Address);
//     if (Content && Content->Code == 8)
//         Use(SystemTextBytes(Content->Pointer()));
//
// A system without OLE Automation has no such values: there each function that can fail does so with the code for what is
// not supported. Numbers of a variant and of the elements of an array have the layout that the system documents for them.
// What is handed out by New... belongs to the caller until it is written into a variant or an array. Any thread.
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
    std::uint8_t Scale = 0; // this and the next two of a decimal alone
    std::uint8_t Sign = 0;
    std::uint32_t High = 0;
    std::uint64_t Bits = 0; // a number in its lower bytes, else an address: of an interface, a text, an array

    void* Pointer() const noexcept { return std::bit_cast<void*>(static_cast<std::uintptr_t>(Bits)); }
};

inline constexpr std::size_t cSystemVariantSize = 24;

// What is in a variant, or in the one that it refers to (VT_BYREF): nothing is counted or copied. Fails for a reference to
// nowhere and for one to a reference to a reference and so on.
QZ_API TResult<TSystemVariant> ReadSystemVariant(const void* AVariant);
// Writes over raw memory or an empty variant, which from then on owns what AContent refers to.
QZ_API TResult<> WriteSystemVariant(void* AVariant, const TSystemVariant& AContent);
// Ends the content, which leaves an empty variant.
QZ_API TResult<> ClearSystemVariant(void* AVariant);

// A text, which may be any bytes; null without memory.
QZ_API void* NewSystemText(std::span<const std::byte> ABytes) noexcept;
// The bytes of a text; none of null.
QZ_API std::span<const std::byte> SystemTextBytes(const void* AText) noexcept;

struct TSystemBound {
    std::int32_t Low;
    std::uint32_t Count;
};

// An array that is locked: its elements stay where they are.
struct TSystemArray {
    std::uint16_t Elements = 0; // VT_...
    std::uint32_t ElementSize = 0;
    std::vector<TSystemBound> Bounds{}; // the first counts fastest
    std::byte* Data = nullptr;
    std::size_t Count = 0;
};

// AElements is what the holder of the array says of it, for arrays that do not tell themselves.
QZ_API TResult<TSystemArray> LockSystemArray(void* AArray, std::uint16_t AElements);
QZ_API void UnlockSystemArray(void* AArray) noexcept;
// An array of empty elements.
QZ_API TResult<void*> NewSystemArray(std::uint16_t AElements, std::span<const TSystemBound> ABounds);
// Ends an array that is not locked, with its elements.
QZ_API void FreeSystemArray(void* AArray) noexcept;

} // namespace qz::platform
