#include <qz/runtime/base/StringBlock.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>

namespace qz::detail {
namespace {

constexpr std::size_t cSmallBlock = 1024;

std::size_t BlockSize(std::size_t AElementSize, std::size_t ACapacity) {
    if (ACapacity > TStringBlock::cMaxLength)
        throw std::length_error("a string cannot be that long");
    return sizeof(TStringBlock) + (ACapacity + 1) * AElementSize;
}

} // namespace

TStringBlock* TStringBlock::Allocate(std::uint16_t AElementSize, std::uint16_t ACodePage, std::size_t ALength,
                                     std::size_t ACapacity) {
    ACapacity = std::max(ACapacity, ALength);
    void* Memory = std::malloc(BlockSize(AElementSize, ACapacity));
    if (Memory == nullptr)
        throw std::bad_alloc();
    auto* Block = new (Memory) TStringBlock{ACodePage, AElementSize, 1, static_cast<std::int32_t>(ALength),
                                            static_cast<std::int32_t>(ACapacity)};
    std::memset(Block->Data<char>() + ALength * AElementSize, 0, AElementSize);
    return Block;
}

// A small block is quicker to copy than to grow where it lies; a large one may not have to move at all.
TStringBlock* TStringBlock::Reallocate(TStringBlock* ABlock, std::size_t ACapacity) {
    const std::size_t Size = BlockSize(ABlock->ElementSize, ACapacity);
    void* Memory = nullptr;
    if (Size <= cSmallBlock) {
        Memory = std::malloc(Size);
        if (Memory == nullptr)
            throw std::bad_alloc();
        const auto Length = static_cast<std::size_t>(ABlock->Length);
        std::memcpy(Memory, static_cast<const void*>(ABlock), BlockSize(ABlock->ElementSize, Length));
        std::free(static_cast<void*>(ABlock));
    } else {
        Memory = std::realloc(static_cast<void*>(ABlock), Size);
        if (Memory == nullptr)
            throw std::bad_alloc();
    }
    auto* Block = static_cast<TStringBlock*>(Memory);
    Block->Capacity = static_cast<std::int32_t>(ACapacity);
    return Block;
}

void TStringBlock::FreeBlock(TStringBlock* ABlock) noexcept {
    std::free(static_cast<void*>(ABlock));
}

} // namespace qz::detail
