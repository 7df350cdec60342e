// TXsBinaryString<E>: xs:base64Binary and xs:hexBinary, bytes held as encoded text, that may be null.
//
//     TXsBinaryString<TXsBinaryStringHexEncoding> Picture;
//     Picture.LoadBinaryData(Source);         // FValue is the text "89504E47..."
//     Picture.SaveBinaryData(Target);         // the bytes again
//
// Constructors, assignments and + handle the encoded text as it stands; none of them checks it. A record
// belongs to one thread at a time; copies may be used by different threads.
#pragma once

#include <qz/common/uQzXSTypes/XsCompare.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

// The root of the encodings, which are used through their classes. Each has two static operations:
// LoadFromStream gives the text of the bytes from the position of the stream on, SaveToStream writes the
// bytes of the text at the position of the stream. They raise as the encodings of uQzNetEncoding do, and as
// the stream does.
class QZ_API TXsBinaryStringEncoding : public TObject {
    QZ_CLASS(TXsBinaryStringEncoding, TObject)

public:
    TXsBinaryStringEncoding() = delete;
};

class QZ_API TXsBinaryStringHexEncoding : public TXsBinaryStringEncoding {
    QZ_CLASS(TXsBinaryStringHexEncoding, TXsBinaryStringEncoding)

public:
    static RawByteString LoadFromStream(TStream& AStream);
    static void SaveToStream(TStream& AStream, const RawByteString& AData);
};

class QZ_API TXsBinaryStringB64Encoding : public TXsBinaryStringEncoding {
    QZ_CLASS(TXsBinaryStringB64Encoding, TXsBinaryStringEncoding)

public:
    static RawByteString LoadFromStream(TStream& AStream);
    static void SaveToStream(TStream& AStream, const RawByteString& AData);
};

template <class E> class TXsBinaryString : public detail::TXsRecordOrder<TXsBinaryString<E>> {
public:
    using TXsValue = RawByteString;
    template <class U>
    static constexpr bool cTakes = std::convertible_to<const U&, RawByteString> && !detail::CXsRecord<U>;
    template <class U> static constexpr bool cWidens = false;

    RawByteString FValue;
    UnicodeString FHasValue; // "1" or empty

    TXsBinaryString() noexcept = default;
    // Encoded text: a RawByteString or what becomes one by itself, an optional one, nullopt.
    template <detail::CXsSource<TXsBinaryString> U> TXsBinaryString(const U& AText) {
        if (detail::XsRead<TXsBinaryString>(AText, FValue))
            FHasValue = detail::cXsMarker;
    }

    static TXsBinaryString GetNull() noexcept { return {}; }
    static PTypeInfo GetTypeInfo() noexcept { return TypeInfo<RawByteString>(); } // of RawByteString
    static TTypeKind GetTypeKind() noexcept { return tkLString; }
    static RawByteString ToValue(const RawByteString& AText) noexcept { return AText; }

    bool IsNull() const noexcept { return !detail::XsHasValue(FHasValue); }
    // The encoded text; empty for null.
    template <std::same_as<RawByteString> U> operator U() const { return IsNull() ? U() : FValue; }
    // Nothing for null. An assignment to an optional, and its constructor, take null for the empty text: use
    // ToOptional.
    std::optional<RawByteString> ToOptional() const {
        return IsNull() ? std::nullopt : std::optional<RawByteString>(FValue);
    }
    // NOLINTBEGIN(readability-make-member-function-const): an optional prefers the exact form
    operator std::optional<RawByteString>() & { return ToOptional(); }
    operator std::optional<RawByteString>() const& { return ToOptional(); }
    operator std::optional<RawByteString>() && { return ToOptional(); }
    // NOLINTEND(readability-make-member-function-const)
    Variant ToVariant() const; // the encoded text, of 8 bits, or Null
    void PrintOn(std::ostream& AStream) const;

    // Writes the bytes that the text stands for. A null record writes nothing.
    void SaveBinaryData(TStream& AStream) const;
    // Takes the bytes from the position of the stream to its end. Changes nothing when that raises.
    void LoadBinaryData(TStream& AStream);
    void Clear() noexcept { *this = {}; }

    // The encoded texts one after the other; null for a null operand.
    template <class U>
        requires(cTakes<U> || std::same_as<U, TXsBinaryString>)
    friend TXsBinaryString operator+(const TXsBinaryString& ALeft, const U& ARight) {
        RawByteString Text;
        if (ALeft.IsNull() || !detail::XsRead<TXsBinaryString>(ARight, Text))
            return {};
        return ALeft.FValue + Text;
    }
};

extern template class QZ_API TXsBinaryString<TXsBinaryStringB64Encoding>;
extern template class QZ_API TXsBinaryString<TXsBinaryStringHexEncoding>;

static_assert(sizeof(TXsBinaryString<TXsBinaryStringB64Encoding>) == 16);

} // namespace qz

QZ_TYPE_INFO(qz::TXsBinaryString<qz::TXsBinaryStringB64Encoding>);
QZ_TYPE_INFO(qz::TXsBinaryString<qz::TXsBinaryStringHexEncoding>);
