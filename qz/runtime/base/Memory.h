// GetMem and FreeMem: the functions that allocate and free each block that the library gives as a plain
// pointer.
//
//     void* Block = GetMem(100);
//     ReallocMem(Block, 200);
//     FreeMem(Block);
//
// A block may be freed on another thread, and by another module of the program than the one that got it.
#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <type_traits>

#include <qz/platform/Export.h>

namespace qz {

// A block of at least one byte, aligned for any type, whose bytes are not set. Raises std::bad_alloc.
[[nodiscard]] QZ_API void* GetMem(std::size_t ASize);
// Null does nothing.
QZ_API void FreeMem(void* ABlock) noexcept;
// Resizes the block, which may move. The bytes stay up to the smaller size; new ones are not set. Null gives
// a new block. Raises std::bad_alloc, and the block is as before.
QZ_API void ReallocMem(void*& ABlock, std::size_t ASize);

struct TFreeMem {
    void operator()(void* ABlock) const noexcept { FreeMem(ABlock); }
};
// Owns a block of that pair.
using TMemBlock = std::unique_ptr<std::byte, TFreeMem>;

// Overwrites a value with zeros. The compiler does not remove it, although the value is not read afterwards.
template <class T>
    requires std::is_trivially_copyable_v<T>
void WipeValue(T& AValue) noexcept {
    std::memset(&AValue, 0, sizeof AValue);
    asm volatile("" : : "r"(&AValue) : "memory");
}

inline TMemBlock NewMemBlock(std::size_t ASize) {
    return TMemBlock(static_cast<std::byte*>(GetMem(ASize)));
}

} // namespace qz
