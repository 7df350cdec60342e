// Pointers as numbers and arithmetic on them, in bytes.
//
//     char Block[32];
//     void* Here = Block;
//     QzIncPtr(Here, 16);
//     QzPtrDiff(Here, Block);                       // 16
//
// Nothing is checked: a result that points into no block must not be dereferenced.
#pragma once

#include <concepts>
#include <cstdint>

namespace qz {

inline std::int64_t QzPtr2Int(const void* APointer) noexcept {
    return static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(APointer));
}
inline std::uint64_t QzPtr2UInt(const void* APointer) noexcept {
    return reinterpret_cast<std::uintptr_t>(APointer);
}
inline void* QzInt2Ptr(std::int64_t AValue) noexcept {
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(AValue)); // NOLINT(performance-no-int-to-ptr)
}
inline void* QzUInt2Ptr(std::uint64_t AValue) noexcept {
    return reinterpret_cast<void*>(static_cast<std::uintptr_t>(AValue)); // NOLINT(performance-no-int-to-ptr)
}

// Signed numbers are sign-extended.
template <std::integral T> void* QzOrdinal2Ptr(T AValue) noexcept {
    return QzUInt2Ptr(static_cast<std::uint64_t>(AValue));
}

// The first minus the second.
inline std::uint64_t QzPtrDiff(const void* AFirst, const void* ASecond) noexcept {
    return QzPtr2UInt(AFirst) - QzPtr2UInt(ASecond);
}
inline std::int64_t QzPtrDiffS(const void* AFirst, const void* ASecond) noexcept {
    return static_cast<std::int64_t>(QzPtrDiff(AFirst, ASecond));
}

// Moves on by AOffset bytes, which may be negative. A number beyond the address space wraps.
template <std::integral T> void* QzPtrAdd(const void* APointer, T AOffset) noexcept {
    return QzUInt2Ptr(QzPtr2UInt(APointer) + static_cast<std::uint64_t>(AOffset));
}
template <class TPointed, std::integral T> void QzIncPtr(TPointed*& APointer, T AOffset) noexcept {
    APointer = static_cast<TPointed*>(QzPtrAdd(APointer, AOffset));
}

// The low and the high 32 bits, and back.
inline void QzSplitPtr(const void* APointer, std::uint64_t& ALow, std::uint64_t& AHigh) noexcept {
    ALow = QzPtr2UInt(APointer) & 0xFFFFFFFF;
    AHigh = QzPtr2UInt(APointer) >> 32;
}
inline void* QzCombinePtr(std::uint64_t ALow, std::uint64_t AHigh) noexcept {
    return QzUInt2Ptr(AHigh << 32 | ALow);
}

} // namespace qz
