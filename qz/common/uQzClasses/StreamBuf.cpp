#include <qz/common/uQzClasses/StreamBuf.h>

#include <algorithm>
#include <new>

#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/runtime/base/Memory.h>
#include <qz/runtime/streams/MemoryStream.h>

namespace qz {
bool QzStreamToReadBuf(TStream& AStream, void*& ABuffer, std::size_t& ASize) {
    const std::int64_t Position = AStream.Position();
    const auto Size = static_cast<std::size_t>(std::max<std::int64_t>(AStream.Size() - Position, 0));
    if (auto* Memory = dynamic_cast<TQzMemoryStream*>(&AStream)) {
        ABuffer = Memory->FCurPos;
        ASize = Size;
        return false;
    }
    if (auto* Memory = dynamic_cast<TCustomMemoryStream*>(&AStream)) {
        ABuffer = static_cast<std::byte*>(Memory->Memory()) + (Size == 0 ? 0 : Position);
        ASize = Size;
        return false;
    }
    TMemBlock Block = NewMemBlock(Size);
    ASize = static_cast<std::size_t>(AStream.ReadUpTo(Block.get(), static_cast<std::int64_t>(Size)));
    ABuffer = Block.release();
    return true;
}

bool QzStreamToWriteBuf(TStream& AStream, void*& ABuffer, std::size_t ASize) {
    auto* Memory = dynamic_cast<TQzMemoryStream*>(&AStream);
    if (Memory == nullptr) {
        ABuffer = GetMem(ASize);
        return true;
    }
    const std::int64_t Position = Memory->Position();
    if (ASize > static_cast<std::size_t>(INT64_MAX - Position))
        throw std::bad_alloc();
    Memory->SetSize(Position + static_cast<std::int64_t>(ASize));
    ABuffer = Memory->FCurPos;
    return false;
}

void QzFreeStreamBuf(void* ABuffer) noexcept {
    FreeMem(ABuffer);
}

} // namespace qz
