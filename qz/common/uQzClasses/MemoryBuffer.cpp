#include <qz/common/uQzClasses/MemoryBuffer.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/InterfacedObject.h>

namespace qz {
namespace {

class TQzMemoryBufferImpl : public TInterfacedObject, public IQzMemoryBuffer {
    QZ_CLASS(TQzMemoryBufferImpl, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    void* GetBuffer() override { return FBuffer.get(); }
    std::size_t GetBufferSize() override { return FBufferSize; }
    RawByteString GetAsString(TQzBinEncoding AEncoding) override {
        return FBuffer == nullptr ? RawByteString()
                                  : detail::EncodeBinary({FBuffer.get(), FBufferSize}, AEncoding);
    }
    TBytes GetAsBytes() override {
        return TBytes(std::span(reinterpret_cast<const std::uint8_t*>(FBuffer.get()), FBufferSize));
    }
    void SetBufferSize(std::size_t ASize) override;
    void SetAsString(TQzBinEncoding AEncoding, const RawByteString& AValue) override;
    void SetAsBytes(const TBytes& AValue) override;

protected:
    TQzMemoryBufferImpl(TMemBlock ABuffer, std::size_t ASize) noexcept
        : FBuffer(std::move(ABuffer)),
          FBufferSize(FBuffer == nullptr ? 0 : ASize) {
        if (FBufferSize == 0)
            FBuffer.reset();
    }
    ~TQzMemoryBufferImpl() override = default;

private:
    TMemBlock FBuffer;
    std::size_t FBufferSize;
};

constinit const TClassRec TQzMemoryBufferImpl::ClassRec = DescribeClass<TQzMemoryBufferImpl>(
    u"TQzMemoryBufferImpl",
    {.Unit = u"uQzClasses", .Interfaces = Interfaces<TQzMemoryBufferImpl, IQzMemoryBuffer>()});

void TQzMemoryBufferImpl::SetBufferSize(std::size_t ASize) {
    if (ASize == FBufferSize)
        return;
    if (ASize == 0) {
        FBuffer.reset();
    } else {
        void* Block = FBuffer.get();
        ReallocMem(Block, ASize);
        std::ignore = FBuffer.release();
        FBuffer.reset(static_cast<std::byte*>(Block));
    }
    FBufferSize = ASize;
}

void TQzMemoryBufferImpl::SetAsString(TQzBinEncoding AEncoding, const RawByteString& AValue) {
    std::size_t Size = 0;
    FBuffer = detail::DecodeBinary(AValue.View(), AEncoding, Size);
    FBufferSize = Size;
}

void TQzMemoryBufferImpl::SetAsBytes(const TBytes& AValue) {
    TMemBlock Block;
    if (!AValue.IsEmpty()) {
        Block = NewMemBlock(AValue.size());
        std::memcpy(Block.get(), AValue.data(), AValue.size());
    }
    FBuffer = std::move(Block);
    FBufferSize = AValue.size();
}

std::size_t WithHeader(std::size_t ASize) noexcept {
    return sizeof(TQzMemoryBuffer) + ASize;
}

} // namespace

TQzMemoryBuffer* QzGetMem(std::uint32_t ASize) {
    auto* Buffer =
        static_cast<TQzMemoryBuffer*>(std::memset(GetMem(WithHeader(ASize)), 0, WithHeader(ASize)));
    Buffer->Size = ASize;
    return Buffer;
}

void QzReallocateMem(TQzMemoryBuffer*& ABuffer, std::uint32_t ASize) {
    void* Block = ABuffer;
    ReallocMem(Block, WithHeader(ASize));
    ABuffer = static_cast<TQzMemoryBuffer*>(Block);
    ABuffer->Size = ASize;
}

void QzFreeMem(TQzMemoryBuffer*& ABuffer) noexcept {
    FreeMem(std::exchange(ABuffer, nullptr));
}

TQzMemoryBuffer* QzCloneMem(const TQzMemoryBuffer* ABuffer) {
    Assert(ABuffer != nullptr, u"There is no block to clone");
    auto* Clone = static_cast<TQzMemoryBuffer*>(GetMem(WithHeader(ABuffer->Size)));
    std::memcpy(Clone, ABuffer, WithHeader(ABuffer->Size));
    return Clone;
}

Ref<IQzMemoryBuffer> QzCreateMemoryBuffer(void* AData, std::size_t ASize) {
    return TQzMemoryBufferImpl::Create(TMemBlock(static_cast<std::byte*>(AData)), ASize);
}

Ref<IQzMemoryBuffer> QzCreateMemoryBuffer(std::size_t ASize) {
    return TQzMemoryBufferImpl::Create(ASize == 0 ? nullptr : NewMemBlock(ASize), ASize);
}

Ref<IQzMemoryBuffer> QzCreateMemoryBuffer(TStream& AStream, std::int64_t APosition, std::int64_t ASize) {
    AStream.SetPosition(APosition);
    const std::int64_t Rest = std::max<std::int64_t>(AStream.Size() - AStream.Position(), 0);
    const std::int64_t Size = ASize == -1 ? Rest : std::clamp<std::int64_t>(ASize, 0, Rest);
    Ref<IQzMemoryBuffer> Result = QzCreateMemoryBuffer(static_cast<std::size_t>(Size));
    Result->SetBufferSize(static_cast<std::size_t>(AStream.ReadUpTo(Result->GetBuffer(), Size)));
    return Result;
}

} // namespace qz
