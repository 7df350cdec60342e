// The heap block of every string type: a header of 16 bytes, the characters, and a terminator.
//
// A string handle is one pointer to the first character, or null for the empty text. Copies share the block;
// the count says how many handles do. A block with the count cImmortal is a constant of the program: it is
// never counted and never freed. The header is part of the binary interface and pinned below.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

#include <qz/platform/Export.h>

namespace qz::detail {

struct TStringBlock {
    std::uint16_t CodePage;             // of the characters: 1200 for 16-bit text
    std::uint16_t ElementSize;          // bytes of a character: 1 or 2
    std::atomic<std::int32_t> RefCount; // handles that share the block, or cImmortal
    std::int32_t Length;                // characters in use
    std::int32_t Capacity;              // characters there is room for, the terminator not counted

    static constexpr std::int32_t cImmortal = -1;

    template <class TChar> static TStringBlock* Of(TChar* AData) noexcept {
        return reinterpret_cast<TStringBlock*>(const_cast<std::remove_const_t<TChar>*>(AData)) - 1;
    }

    template <class TChar> TChar* Data() noexcept { return reinterpret_cast<TChar*>(this + 1); }

    void AddRef() noexcept {
        if (RefCount.load(std::memory_order_relaxed) != cImmortal)
            RefCount.fetch_add(1, std::memory_order_relaxed);
    }

    // True when exactly one handle holds the block, so that it may be written to. The acquire pairs with the
    // release of the handles that went before: what they read is read before we write.
    bool IsUnique() const noexcept { return RefCount.load(std::memory_order_acquire) == 1; }

    // Drops one handle and frees the block with the last. A holder that is alone needs no locked instruction.
    void Release() noexcept {
        const std::int32_t Count = RefCount.load(std::memory_order_acquire);
        if (Count == cImmortal)
            return;
        if (Count == 1 || RefCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
            FreeBlock(this);
    }

    // A block with the count 1, ALength characters not yet set, and the terminator set. Raises std::bad_alloc
    // when there is no memory, std::length_error above cMaxLength.
    QZ_API static TStringBlock* Allocate(std::uint16_t AElementSize, std::uint16_t ACodePage,
                                         std::size_t ALength, std::size_t ACapacity);

    // Makes room for ACapacity characters in a block that its caller holds alone; the block may move.
    QZ_API static TStringBlock* Reallocate(TStringBlock* ABlock, std::size_t ACapacity);

    QZ_API static void FreeBlock(TStringBlock* ABlock) noexcept;

    // The capacity for appending to a text that has ACapacity and now needs ANeeded: as much again, at least.
    // With the header and the terminator the blocks of a text that grows are multiples of 8 bytes.
    static std::size_t Grown(std::size_t ACapacity, std::size_t ANeeded) noexcept {
        const std::size_t Larger = 2 * ACapacity + 19;
        const std::size_t Possible = Larger < cMaxLength ? Larger : cMaxLength;
        return Possible > ANeeded ? Possible : ANeeded;
    }

    static constexpr std::size_t cMaxLength = 0x3FFFFFF0;
};

static_assert(sizeof(TStringBlock) == 16 && alignof(TStringBlock) == 4);
static_assert(offsetof(TStringBlock, CodePage) == 0 && offsetof(TStringBlock, ElementSize) == 2);
static_assert(offsetof(TStringBlock, RefCount) == 4 && offsetof(TStringBlock, Length) == 8);
static_assert(offsetof(TStringBlock, Capacity) == 12);
static_assert(std::atomic<std::int32_t>::is_always_lock_free);

} // namespace qz::detail
