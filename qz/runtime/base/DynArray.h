// TDynArray<T>: an array of any length that copies share, and TBytes, the array of bytes.
//
//     TBytes Data = {1, 2, 3};
//     TBytes Same = Data;          // one array, two handles
//     Data[0] = 9;                 // seen through both: an element write does not make a copy
//     Data.SetLength(10);          // now Data has an array of its own
//
// Threads: different handles may be used by different threads; the elements of a shared array are shared
// state.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace qz {

template <class T> class TDynArray {
public:
    using value_type = T;

    TDynArray() noexcept = default;
    // ALength value-initialised elements.
    explicit TDynArray(std::size_t ALength) { SetLength(ALength); }
    TDynArray(std::initializer_list<T> AItems)
        : TDynArray(std::span<const T>(AItems.begin(), AItems.size())) {}
    explicit TDynArray(std::span<const T> AItems) {
        TDynArray Fresh;
        Fresh.Fill(AItems.size(), AItems.size(), AItems, false);
        Swap(Fresh);
    }
    // ALength elements that are not set yet.
    static TDynArray ForOverwrite(std::size_t ALength) requires(std::is_trivially_copyable_v<T>) {
        TDynArray Result;
        if (ALength != 0) {
            Result.FBlock = NewBlock(ALength);
            Result.FBlock->Length = ALength;
        }
        return Result;
    }
    TDynArray(const TDynArray& AOther) noexcept : FBlock(AOther.FBlock) {
        if (FBlock != nullptr)
            FBlock->RefCount.fetch_add(1, std::memory_order_relaxed);
    }
    TDynArray(TDynArray&& AOther) noexcept : FBlock(std::exchange(AOther.FBlock, nullptr)) {}
    TDynArray& operator=(TDynArray AOther) noexcept {
        Swap(AOther);
        return *this;
    }
    ~TDynArray() { Release(); }

    std::size_t Length() const noexcept { return FBlock == nullptr ? 0 : FBlock->Length; }
    std::size_t size() const noexcept { return Length(); }
    bool IsEmpty() const noexcept { return FBlock == nullptr; }
    bool empty() const noexcept { return FBlock == nullptr; }
    // The elements, for reading and writing; a write is seen through every handle that shares them.
    T* data() const noexcept { return FBlock == nullptr ? nullptr : FBlock->Items(); }
    T* begin() const noexcept { return data(); }
    T* end() const noexcept { return data() + Length(); }
    T& operator[](std::size_t AIndex) const noexcept { return data()[AIndex]; }
    // True when both handles hold the very same array.
    bool IsSameArray(const TDynArray& AOther) const noexcept { return FBlock == AOther.FBlock; }
    friend bool operator==(const TDynArray& ALeft, const TDynArray& ARight) {
        return ALeft.FBlock == ARight.FBlock ||
            std::equal(ALeft.begin(), ALeft.end(), ARight.begin(), ARight.end());
    }

    // Cuts the array or lengthens it by value-initialised elements; a shared array becomes private, also when
    // the length stays. Growing step by step takes time in proportion to the final length. An exception
    // leaves the array as it was.
    void SetLength(std::size_t ALength) {
        if (ALength == 0)
            return Clear();
        if (FBlock != nullptr && FBlock->RefCount.load(std::memory_order_acquire) == 1) {
            if (ALength <= FBlock->Capacity)
                return Resize(ALength);
            TDynArray Fresh;
            Fresh.Fill(ALength, std::max(ALength, FBlock->Capacity + FBlock->Capacity / 2),
                       std::span<const T>(data(), Length()), true);
            return Swap(Fresh);
        }
        TDynArray Fresh;
        Fresh.Fill(ALength, ALength, std::span<const T>(data(), std::min(ALength, Length())), false);
        Swap(Fresh);
    }
    // A private array with the same elements, from AFirst on, at most ACount of them.
    TDynArray Copy(std::size_t AFirst = 0, std::size_t ACount = static_cast<std::size_t>(-1)) const {
        AFirst = std::min(AFirst, Length());
        return TDynArray(std::span<const T>(data() + AFirst, std::min(ACount, Length() - AFirst)));
    }
    void Clear() noexcept { TDynArray().Swap(*this); }
    void Swap(TDynArray& AOther) noexcept { std::swap(FBlock, AOther.FBlock); }

private:
    struct alignas(std::max(alignof(T), alignof(std::size_t))) TBlock {
        std::atomic<std::int32_t> RefCount;
        std::size_t Length;
        std::size_t Capacity;
        T* Items() noexcept { return reinterpret_cast<T*>(this + 1); }
    };
    static_assert(alignof(TBlock) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__,
                  "over-aligned elements are not supported");

    // Within a block that this handle holds alone.
    void Resize(std::size_t ALength) {
        const std::size_t Old = FBlock->Length;
        if (ALength < Old)
            std::destroy_n(FBlock->Items() + ALength, Old - ALength);
        else
            std::uninitialized_value_construct_n(FBlock->Items() + Old, ALength - Old);
        FBlock->Length = ALength;
    }

    static TBlock* NewBlock(std::size_t ACapacity) {
        if (ACapacity > (static_cast<std::size_t>(PTRDIFF_MAX) - sizeof(TBlock)) / sizeof(T))
            throw std::length_error("an array cannot be that long");
        return new (::operator new(sizeof(TBlock) + ACapacity * sizeof(T))) TBlock{1, 0, ACapacity};
    }

    // Builds a block of ALength elements of which the first are those of AItems, moved where that cannot fail
    // and AMayMove says that no other handle shares them. This handle is empty.
    void Fill(std::size_t ALength, std::size_t ACapacity, std::span<const T> AItems, bool AMayMove) {
        if (ALength == 0)
            return;
        auto* Block = NewBlock(ACapacity);
        try {
            FillItems(Block->Items(), ALength, AItems, AMayMove);
        } catch (...) {
            ::operator delete(static_cast<void*>(Block));
            throw;
        }
        Block->Length = ALength;
        FBlock = Block;
    }
    // The new elements first: when one of them raises, nothing has been moved.
    static void FillItems(T* ATarget, std::size_t ALength, std::span<const T> AItems, bool AMayMove) {
        T* const Fresh = ATarget + AItems.size();
        std::uninitialized_value_construct_n(Fresh, ALength - AItems.size());
        if (AMayMove && std::is_nothrow_move_constructible_v<T>) {
            std::uninitialized_move_n(const_cast<T*>(AItems.data()), AItems.size(), ATarget);
            return;
        }
        try {
            std::uninitialized_copy(AItems.begin(), AItems.end(), ATarget);
        } catch (...) {
            std::destroy_n(Fresh, ALength - AItems.size());
            throw;
        }
    }
    void Release() noexcept {
        if (FBlock == nullptr || FBlock->RefCount.fetch_sub(1, std::memory_order_acq_rel) != 1)
            return;
        std::destroy_n(FBlock->Items(), FBlock->Length);
        ::operator delete(static_cast<void*>(FBlock));
    }

    TBlock* FBlock = nullptr;
};

using TBytes = TDynArray<std::uint8_t>;

} // namespace qz
