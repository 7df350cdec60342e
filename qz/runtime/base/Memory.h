// GetMem and FreeMem: the pair that all blocks of memory come from which functions hand out as plain pointers.
//
//     void* Block = GetMem(100);
//     ReallocMem(Block, 200);
//     FreeMem(Block);
//
// A block may be freed on another thread, and by another module of the program than the one that got it.
#pragma once

#include <cstddef>
#include <memory>

#include <qz/platform/Export.h>

namespace qz {

// A block of at least one byte, aligned for any type, whose bytes are not set. Raises std::bad_alloc.
[[nodiscard]] QZ_API void* GetMem(std::size_t ASize);
// Null does nothing.
QZ_API void FreeMem(void* ABlock) noexcept;
// Resizes the block, which may move. The bytes stay up to the smaller size; new ones are not set. Null gives a
// new block. Raises std::bad_alloc, and the block is as before.
QZ_API void ReallocMem(void*& ABlock, std::size_t ASize);

struct TFreeMem {
    void operator()(void* ABlock) const noexcept { FreeMem(ABlock); }
};
// Owns a block of that pair.
using TMemBlock = std::unique_ptr<std::byte, TFreeMem>;

inline TMemBlock NewMemBlock(std::size_t ASize) {
    return TMemBlock(static_cast<std::byte*>(GetMem(ASize)));
}

} // namespace qz
