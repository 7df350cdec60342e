#include <qz/runtime/base/Memory.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace qz {

void* GetMem(std::size_t ASize) {
    void* Block = std::malloc(std::max<std::size_t>(ASize, 1));
    if (Block == nullptr)
        throw std::bad_alloc();
    return Block;
}

void FreeMem(void* ABlock) noexcept {
    std::free(ABlock);
}

void ReallocMem(void*& ABlock, std::size_t ASize) {
    void* Block = std::realloc(ABlock, std::max<std::size_t>(ASize, 1));
    if (Block == nullptr)
        throw std::bad_alloc();
    ABlock = Block;
}

} // namespace qz
