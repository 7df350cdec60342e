// TQzNetEncoding: the encodings of the library by name.
//
//     TQzNetEncoding::GetEncoding(beHexEncoded).Encode("\xAB\1", 2);       // AB01, an array of 4 bytes
//     Ref<IQzNetEncoding> Lines = TQzNetEncoding::Base64(64, u"\n");
//     Lines->EncodeBytesToString("some bytes", 10);
#pragma once

#include <atomic>

#include <qz/common/uQzNetEncoding/NetEncodingEx.h>
#include <qz/runtime/objects/InterfacedObject.h>

namespace qz {

class TURLEncoding;

// An encoding by reference count. Each operation is that of the encoding by the same name.
class IQzNetEncoding : public IInterface {
public:
    static constexpr TGUID IID = Guid("{4F2A25E3-FF20-4E21-A2B6-F8110377F507}");

    virtual std::int64_t Decode(TStream& AInput, TStream& AOutput) = 0;
    virtual TBytes Decode(std::span<const std::uint8_t> AText) = 0;
    virtual UnicodeString Decode(const TStringArg& AText) = 0;
    virtual std::int64_t Encode(TStream& AInput, TStream& AOutput) = 0;
    virtual TBytes Encode(std::span<const std::uint8_t> ABytes) = 0;
    virtual UnicodeString Encode(const TStringArg& AText) = 0;
    virtual TBytes DecodeStringToBytes(const TStringArg& AText) = 0;
    virtual UnicodeString EncodeBytesToString(std::span<const std::uint8_t> ABytes) = 0;
    virtual UnicodeString EncodeBytesToString(const void* ABytes, std::int32_t ASize) = 0;

protected:
    ~IQzNetEncoding() = default;
};

class QZ_API TQzNetEncodingImpl : public TInterfacedObject, public IQzNetEncoding {
    QZ_CLASS(TQzNetEncodingImpl, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    std::int64_t Decode(TStream& AInput, TStream& AOutput) override;
    TBytes Decode(std::span<const std::uint8_t> AText) override;
    UnicodeString Decode(const TStringArg& AText) override;
    std::int64_t Encode(TStream& AInput, TStream& AOutput) override;
    TBytes Encode(std::span<const std::uint8_t> ABytes) override;
    UnicodeString Encode(const TStringArg& AText) override;
    TBytes DecodeStringToBytes(const TStringArg& AText) override;
    UnicodeString EncodeBytesToString(std::span<const std::uint8_t> ABytes) override;
    UnicodeString EncodeBytesToString(const void* ABytes, std::int32_t ASize) override;

protected:
    explicit TQzNetEncodingImpl(TOwned<TNetEncoding> AEncoding) noexcept : FEncoding(std::move(AEncoding)) {}
    ~TQzNetEncodingImpl() override = default;

private:
    TOwned<TNetEncoding> FEncoding;
};

// Never instantiated. Each singleton is made on first use, on any number of threads, and lives as long as the
// program.
class QZ_API TQzNetEncoding : public TObject {
    QZ_CLASS(TQzNetEncoding, TObject)

public:
    TQzNetEncoding() = delete;

    static const TQzBase64Encoding& GetBase64ExEncoding();
    static const TQzBase64UrlEncoding& GetBase64UrlEncoding();
    static const TQzHexEncoding& GetHexEncoding();
    // Raises Exception, "The specified NetEncoding is not supported!", for a value that is none of the three.
    static const TNetEncodingEx& GetEncoding(TQzBinEncoding AEncoding);

    // TNetEncoding's own: Base64 in lines of 76 characters with CR LF, and HTML.
    static const TNetEncoding& Base64() { return TNetEncoding::Base64(); }
    static const TNetEncoding& HTML() { return TNetEncoding::HTML(); }
    // A TBase64Encoding with these settings.
    static Ref<IQzNetEncoding> Base64(std::int32_t ACharsPerLine);
    static Ref<IQzNetEncoding> Base64(std::int32_t ACharsPerLine, const TStringArg& ALineSeparator);
    static const TURLEncoding& URL();

private:
    static std::atomic<const TQzBase64Encoding*> FBase64ExEncoding;
    static std::atomic<const TQzBase64UrlEncoding*> FBase64UrlEncoding;
    static std::atomic<const TQzHexEncoding*> FHexEncoding;
};

} // namespace qz
