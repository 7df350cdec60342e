// Blocks of memory that know their size: TQzMemoryBuffer, a plain one, and IQzMemoryBuffer, one by reference
// count.
//
//     TQzMemoryBuffer* Block = QzGetMem(100);       // zeros
//     QzReallocateMem(Block, 200);
//     QzFreeMem(Block);
//
//     Ref<IQzMemoryBuffer> Buffer = QzCreateMemoryBuffer(16);
//     Buffer->SetAsString(beHexEncoded, RawByteString("0A0B"));
//     Buffer->GetBufferSize();                      // 2
//
// Nothing here locks. References are counted on any number of threads; the content belongs to one at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include <qz/common/uQzNetEncoding/BinEncoding.h>
#include <qz/runtime/objects/Ref.h>
#include <qz/runtime/streams/Stream.h>

namespace qz {

// The header of a block, which the payload follows. It comes from GetMem as a whole.
struct TQzMemoryBuffer {
    std::size_t Size; // of the payload

    std::uint8_t* Data() noexcept { return reinterpret_cast<std::uint8_t*>(this + 1); }
    const std::uint8_t* Data() const noexcept { return reinterpret_cast<const std::uint8_t*>(this + 1); }
    std::span<const std::byte> Bytes() const noexcept { return std::as_bytes(std::span(Data(), Size)); }
};
static_assert(sizeof(TQzMemoryBuffer) == sizeof(std::size_t));

// A payload of zeros. Raises std::bad_alloc, as the others do.
[[nodiscard]] QZ_API TQzMemoryBuffer* QzGetMem(std::uint32_t ASize);
// Keeps the payload up to the smaller size; added bytes are not set. Null gives a new block. The block is as
// before when this raises.
QZ_API void QzReallocateMem(TQzMemoryBuffer*& ABuffer, std::uint32_t ASize);
// Frees the block, if there is one, and sets the variable to null.
QZ_API void QzFreeMem(TQzMemoryBuffer*& ABuffer) noexcept;
// An independent block with the same payload. Raises EAssertionFailed for null.
[[nodiscard]] QZ_API TQzMemoryBuffer* QzCloneMem(const TQzMemoryBuffer* ABuffer);

class IQzMemoryBuffer : public IInterface {
public:
    static constexpr TGUID IID = Guid("{F9DAEC94-FEDE-4A47-B9E8-317D256BD8E3}");

    // Null when there are no bytes. Valid until the content changes.
    virtual void* GetBuffer() = 0;
    virtual std::size_t GetBufferSize() = 0;
    // The bytes as text; see QzBufToString.
    virtual RawByteString GetAsString(TQzBinEncoding AEncoding) = 0;
    // A copy.
    virtual TBytes GetAsBytes() = 0;
    // Keeps the content up to the smaller size; added bytes are not set. 0 frees the block. The same size
    // does nothing.
    virtual void SetBufferSize(std::size_t ASize) = 0;
    // Replace the content by what the text decodes to, or by a copy. When they raise, it is as before.
    virtual void SetAsString(TQzBinEncoding AEncoding, const RawByteString& AValue) = 0;
    virtual void SetAsBytes(const TBytes& AValue) = 0;

protected:
    ~IQzMemoryBuffer() = default;
};

// Takes over a block of GetMem; the buffer frees it at the end of its life, and when this raises.
QZ_API Ref<IQzMemoryBuffer> QzCreateMemoryBuffer(void* AData, std::size_t ASize);
// ASize bytes that are not set.
QZ_API Ref<IQzMemoryBuffer> QzCreateMemoryBuffer(std::size_t ASize);
// The bytes of the stream from APosition on: ASize of them at most, or all with -1. A stream that ends early
// gives what it has. Raises what the stream raises.
QZ_API Ref<IQzMemoryBuffer> QzCreateMemoryBuffer(TStream& AStream, std::int64_t APosition,
                                                 std::int64_t ASize);

} // namespace qz
