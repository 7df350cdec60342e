#include <qz/common/uQzNetEncoding/QzNetEncoding.h>

#include <memory>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzNetEncoding";

// The object of a place, made if there is none. Of two threads that make one the first wins.
template <class T> const T& Singleton(std::atomic<const T*>& APlace) {
    if (const T* Found = APlace.load(std::memory_order_acquire))
        return *Found;
    auto Made = std::make_unique<T>();
    const T* Found = nullptr;
    return APlace.compare_exchange_strong(Found, Made.get(), std::memory_order_acq_rel) ? *Made.release()
                                                                                        : *Found;
}

} // namespace

constinit const TClassRec TQzNetEncodingImpl::ClassRec = DescribeClass<TQzNetEncodingImpl>(
    u"TQzNetEncodingImpl", {.Unit = cUnit, .Interfaces = Interfaces<TQzNetEncodingImpl, IQzNetEncoding>()});
constinit const TClassRec TQzNetEncoding::ClassRec =
    DescribeClass<TQzNetEncoding>(u"TQzNetEncoding", {.Unit = cUnit});

constinit std::atomic<const TQzBase64Encoding*> TQzNetEncoding::FBase64ExEncoding{nullptr};
constinit std::atomic<const TQzBase64UrlEncoding*> TQzNetEncoding::FBase64UrlEncoding{nullptr};
constinit std::atomic<const TQzHexEncoding*> TQzNetEncoding::FHexEncoding{nullptr};

std::int64_t TQzNetEncodingImpl::Decode(TStream& AInput, TStream& AOutput) {
    return FEncoding->Decode(AInput, AOutput);
}

TBytes TQzNetEncodingImpl::Decode(std::span<const std::uint8_t> AText) {
    return FEncoding->Decode(AText);
}

UnicodeString TQzNetEncodingImpl::Decode(const TStringArg& AText) {
    return FEncoding->Decode(AText);
}

std::int64_t TQzNetEncodingImpl::Encode(TStream& AInput, TStream& AOutput) {
    return FEncoding->Encode(AInput, AOutput);
}

TBytes TQzNetEncodingImpl::Encode(std::span<const std::uint8_t> ABytes) {
    return FEncoding->Encode(ABytes);
}

UnicodeString TQzNetEncodingImpl::Encode(const TStringArg& AText) {
    return FEncoding->Encode(AText);
}

TBytes TQzNetEncodingImpl::DecodeStringToBytes(const TStringArg& AText) {
    return FEncoding->DecodeStringToBytes(AText);
}

UnicodeString TQzNetEncodingImpl::EncodeBytesToString(std::span<const std::uint8_t> ABytes) {
    return FEncoding->EncodeBytesToString(ABytes);
}

UnicodeString TQzNetEncodingImpl::EncodeBytesToString(const void* ABytes, std::int32_t ASize) {
    return FEncoding->EncodeBytesToString(ABytes, ASize);
}

const TQzBase64Encoding& TQzNetEncoding::GetBase64ExEncoding() {
    return Singleton(FBase64ExEncoding);
}

const TQzBase64UrlEncoding& TQzNetEncoding::GetBase64UrlEncoding() {
    return Singleton(FBase64UrlEncoding);
}

const TQzHexEncoding& TQzNetEncoding::GetHexEncoding() {
    return Singleton(FHexEncoding);
}

const TNetEncodingEx& TQzNetEncoding::GetEncoding(TQzBinEncoding AEncoding) {
    switch (AEncoding) {
    case beBase64: return GetBase64ExEncoding();
    case beHexEncoded: return GetHexEncoding();
    case beBase64Url: return GetBase64UrlEncoding();
    }
    throw Exception(SNetEncodingNotSupported);
}

Ref<IQzNetEncoding> TQzNetEncoding::Base64(std::int32_t ACharsPerLine) {
    return TQzNetEncodingImpl::Create(TBase64Encoding::Create(ACharsPerLine));
}

Ref<IQzNetEncoding> TQzNetEncoding::Base64(std::int32_t ACharsPerLine, const TStringArg& ALineSeparator) {
    return TQzNetEncodingImpl::Create(TBase64Encoding::Create(ACharsPerLine, ALineSeparator));
}

} // namespace qz
